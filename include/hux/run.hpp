// How a chain runs: steps over bands of rows. Not for use by itself; see chain.hpp.
#ifndef HUX_RUN_HPP
#define HUX_RUN_HPP

#include <algorithm>
#include <functional>
#include <system_error>
#include <thread>
#include <vector>

#include "call.hpp"

namespace hux {

// An image of a chain that is there only while it runs: what an input holds or what a call makes.
template <class T, int C>
struct node {
  int index = -1;
};

struct running {
  int threads = 1;
  int rows = 0;  // to a band; 0 leaves it to the chain
};

namespace detail {

// Rows of an image while a chain runs: the rows from first on, at data.
struct band {
  void* data = nullptr;
  int step = 0;
  extent size = {};

  template <class T, int C>
  operator view<T, C>() const {
    return view<T, C>(static_cast<T*>(data), step, size);
  }
};

// One call of a chain.
struct step {
  const char* name = "";
  std::vector<int> sources;
  int destination = 0;
  bool windowed = false;  // the first source is framed
  reach around = {};
  border rule = border::replicate;
  std::vector<std::byte> value;  // a pixel of a constant border
  std::function<status(const band* sources, band destination)> call;
};

// A value of a chain: an input of the caller's, or what a step makes.
struct value {
  int pixel = 0;  // bytes
  const void* input = nullptr;
  int input_step = 0;
  void* output = nullptr;  // where it goes, or null
  int output_step = 0;
};

// How many rows of each value are needed: ahead of the rows of a band, kept behind them, and before a share of rows.
struct needs {
  int ahead = 0, behind = 0, before = 0;
};

class runner {
 public:
  runner(const std::vector<value>& values, const std::vector<step>& steps, extent size)
      : values_(values), steps_(steps), size_(size), needs_(values.size()) {
    for (std::size_t i = steps.size(); i-- > 0;) {
      const needs& own = needs_[static_cast<std::size_t>(steps[i].destination)];
      for (std::size_t k = 0; k < steps[i].sources.size(); ++k) {
        needs& source = needs_[static_cast<std::size_t>(steps[i].sources[k])];
        // Mirrored borders take as many rows inside of the image as a window takes outside, and one more.
        const bool framed = steps[i].windowed && k == 0;
        const std::int64_t above = framed ? std::max<std::int64_t>({steps[i].around.top, 0}) : 0;
        const std::int64_t below = framed ? std::max<std::int64_t>({steps[i].around.bottom, 0}) : 0;
        // A wrapped one takes rows of the other end of the image.
        const bool all = framed && steps[i].rule == border::wrap && above + below > 0;
        const std::int64_t most = all ? size.height : std::max(above, below) + (framed ? 1 : 0);
        const int far = static_cast<int>(std::min<std::int64_t>(most, size.height));
        source.ahead = std::min(std::max(source.ahead, own.ahead + far), size.height);
        source.behind = std::min(std::max(source.behind, all ? far : far - own.ahead), size.height);
        source.before = std::min(std::max(source.before, own.before + far), size.height);
      }
    }
  }

  // Rows to a band, such that what lives at once takes half of a second-level cache.
  int rows() const {
    std::int64_t row = 1, fixed = 0;
    for (std::size_t i = 0; i < values_.size(); ++i) {
      const std::int64_t bytes = std::int64_t{values_[i].pixel} * size_.width;
      row += bytes;
      if (!values_[i].input) fixed += bytes * (needs_[i].ahead + needs_[i].behind);
    }
    return static_cast<int>(std::clamp<std::int64_t>((kCache - fixed) / row, 8, 4096));
  }

  // Runs the rows from first to last; with outputs of a check, rows that the caller does not see.
  status run(int first, int last, int rows, bool check, std::vector<status>& statuses) const {
    std::vector<buffer> buffers(values_.size());
    for (std::size_t i = 0; i < values_.size(); ++i) {
      if (values_[i].input) continue;
      if (values_[i].output && !check && needs_[i].before == 0 && needs_[i].ahead == 0) continue;  // made in its place
      buffer& own = buffers[i];
      own.row = (std::int64_t{values_[i].pixel} * size_.width + 63) / 64 * 64;
      if (own.row > INT_MAX) return status::no_mem;
      own.rows = std::min(size_.height, rows + needs_[i].ahead + needs_[i].behind + needs_[i].before);
      own.pixels = memory(static_cast<std::size_t>(own.row * own.rows));
      if (!own.pixels) return status::no_mem;
    }
    for (std::size_t i = 0; i < values_.size(); ++i)
      buffers[i].first = buffers[i].next = std::max(0, first - needs_[i].before);
    std::vector<frame_of_band> frames(steps_.size());
    std::vector<band> sources;
    for (int y = first; y < last; y += rows) {
      const int end = std::min(last, y + rows);
      for (std::size_t s = 0; s < steps_.size(); ++s) {
        const step& own = steps_[s];
        const std::size_t to = static_cast<std::size_t>(own.destination);
        buffer& made = buffers[to];
        const int from = made.next, until = std::min(size_.height, end + needs_[to].ahead);
        if (from >= until) continue;
        if (made.pixels) slide(made, std::max(0, y - needs_[to].behind), until);
        sources.clear();
        for (std::size_t k = 0; k < own.sources.size(); ++k) {
          const std::size_t source = static_cast<std::size_t>(own.sources[k]);
          if (own.windowed && k == 0) {
            band framed;
            if (status failed = frames[s].make(*this, own, source, buffers, from, until, framed); failed != status::ok)
              return failed;
            sources.push_back(framed);
          } else {
            sources.push_back({const_cast<std::byte*>(row_of(source, buffers, from)),
                               step_of(source, buffers),
                               {size_.width, until - from}});
          }
        }
        std::byte* at =
            made.pixels ? const_cast<std::byte*>(row_of(to, buffers, from))
                        : static_cast<std::byte*>(values_[to].output) + std::ptrdiff_t{values_[to].output_step} * from;
        const int step = made.pixels ? static_cast<int>(made.row) : values_[to].output_step;
        const status result = own.call(sources.data(), {at, step, {size_.width, until - from}});
        if (result != status::ok && statuses[s] == status::ok) statuses[s] = result;
        if (static_cast<int>(result) < 0) return result;
        made.next = until;
        if (made.pixels && values_[to].output && !check) {
          const int low = std::max(from, first), high = std::min(until, last);
          for (int row = low; row < high; ++row)
            std::memcpy(static_cast<std::byte*>(values_[to].output) + std::ptrdiff_t{values_[to].output_step} * row,
                        row_of(to, buffers, row),
                        static_cast<std::size_t>(values_[to].pixel) * static_cast<std::size_t>(size_.width));
        }
      }
    }
    return status::ok;
  }

 private:
  static constexpr std::int64_t kCache = 512 << 10;

  // Rows first to next of a value; pixels is null where they stand in the caller's image.
  struct buffer {
    memory pixels;
    std::int64_t row = 0;
    int rows = 0, first = 0, next = 0;
  };

  const std::byte* row_of(std::size_t value, const std::vector<buffer>& buffers, int y) const {
    const buffer& own = buffers[value];
    if (own.pixels) return own.pixels.data() + own.row * (y - own.first);
    if (values_[value].input)
      return static_cast<const std::byte*>(values_[value].input) + std::ptrdiff_t{values_[value].input_step} * y;
    return static_cast<const std::byte*>(values_[value].output) + std::ptrdiff_t{values_[value].output_step} * y;
  }
  int step_of(std::size_t value, const std::vector<buffer>& buffers) const {
    if (buffers[value].pixels) return static_cast<int>(buffers[value].row);
    return values_[value].input ? values_[value].input_step : values_[value].output_step;
  }

  // Moves the rows that are still needed to the front where those to come would not fit.
  static void slide(buffer& own, int keep, int until) {
    if (until - own.first <= own.rows) return;
    keep = std::min(keep, own.next);
    std::memmove(own.pixels.data(), own.pixels.data() + own.row * (keep - own.first),
                 static_cast<std::size_t>(own.row * (own.next - keep)));
    own.first = keep;
  }

  // A band with what lies around it, made from rows of a value and, at the edges of the image, from the border.
  class frame_of_band {
   public:
    status make(const runner& chain, const step& own, std::size_t source, const std::vector<buffer>& buffers, int from,
                int until, band& out) {
      const std::int64_t left = std::max<std::int64_t>(own.around.left, 0),
                         right = std::max<std::int64_t>(own.around.right, 0);
      const std::int64_t top = std::max<std::int64_t>(own.around.top, 0),
                         bottom = std::max<std::int64_t>(own.around.bottom, 0);
      const int pixel = chain.values_[source].pixel, width = chain.size_.width;
      const std::int64_t row = (left + width + right) * pixel, rows = top + (until - from) + bottom;
      if (row > INT_MAX || rows > INT_MAX) return status::no_mem;
      if (row * rows > bytes_) {
        pixels_ = memory(static_cast<std::size_t>(row * rows));
        if (!pixels_) return status::no_mem;
        bytes_ = row * rows;
      }
      for (std::int64_t y = 0; y < rows; ++y) {
        const int taken = inside(from - top + y, chain.size_.height, own.rule);
        std::byte* to = pixels_.data() + y * row;
        const std::byte* in = taken < 0 ? nullptr : chain.row_of(source, buffers, taken);
        auto put = [&](std::int64_t x) {
          const int column = in ? inside(x - left, width, own.rule) : -1;
          std::memcpy(to + x * pixel, column < 0 ? own.value.data() : in + std::ptrdiff_t{column} * pixel,
                      static_cast<std::size_t>(pixel));
        };
        for (std::int64_t x = 0; x < left; ++x) put(x);
        if (in)
          std::memcpy(to + left * pixel, in, static_cast<std::size_t>(pixel) * static_cast<std::size_t>(width));
        else
          for (std::int64_t x = left; x < left + width; ++x) put(x);
        for (std::int64_t x = left + width; x < left + width + right; ++x) put(x);
      }
      out = {pixels_.data() + top * row + left * pixel, static_cast<int>(row), {width, until - from}};
      return status::ok;
    }

   private:
    memory pixels_;
    std::int64_t bytes_ = 0;
  };

  const std::vector<value>& values_;
  const std::vector<step>& steps_;
  extent size_;
  std::vector<needs> needs_;
};

// What chains of any calls have: see chain.hpp.
class chain_base {
 public:
  // An image that the chain reads; it is to be there when the chain runs. All images of a chain have one size.
  template <readable V, class T = value_type_of<V>, int C = layout_of<V>>
  requires(C > 0 && C <= 4) node<T, C> input(const V& image) {
    const view<const T, C> pixels = image;
    sized(pixels.size());
    if (!pixels.data()) refuse(status::null_ptr, "input");
    return {added({static_cast<int>(sizeof(T)) * C, pixels.data(), pixels.step(), nullptr, 0})};
  }

  // Where an image of the chain goes. It must share no byte with an input, nor with another output.
  template <class T, int C>
  void output(node<T, C> from, view<T, C> to) {
    sized(to.size());
    if (!to.data()) refuse(status::null_ptr, "output");
    int index = from.index;
    if (values_[static_cast<std::size_t>(index)].input || values_[static_cast<std::size_t>(index)].output) {
      constexpr std::size_t kPixel = sizeof(T) * C;
      index = recorded<T, C>("output", {index}, [](const band* in, band out) {
                for (int y = 0; y < out.size.height; ++y)
                  std::memcpy(static_cast<std::byte*>(out.data) + std::ptrdiff_t{out.step} * y,
                              static_cast<const std::byte*>(in->data) + std::ptrdiff_t{in->step} * y,
                              kPixel * static_cast<std::size_t>(out.size.width));
                return status::ok;
              }).index;
    }
    values_[static_cast<std::size_t>(index)].output = to.data();
    values_[static_cast<std::size_t>(index)].output_step = to.step();
  }

  // Runs the calls on bands of rows, each thread on a share of its own. Throws hux::error, naming the call, with the
  // status of the first call that fails; no output has been written then, unless memory ran out on the way. Returns the
  // first warning.
  status run(const running& options = {}) const {
    const char* name = "chain::run";
    const status out = try_run(options, name);
    if (static_cast<int>(out) < 0) throw error(out, name);
    return out;
  }
  [[nodiscard]] status try_run(const running& options = {}) const {
    const char* name = "";
    return try_run(options, name);
  }

 protected:
  template <class T, int C>
  node<T, C> recorded(const char* name, std::vector<int> sources, std::function<status(const band*, band)> call) {
    const int made = added({static_cast<int>(sizeof(T)) * C, nullptr, 0, nullptr, 0});
    steps_.push_back({name, std::move(sources), made, false, {}, border::replicate, {}, std::move(call)});
    return {made};
  }
  // A window over the first source.
  template <class T, int C, class S, int CS>
  node<T, C> recorded(const char* name, std::vector<int> sources, std::function<status(const band*, band)> call,
                      reach around, border rule, const constant<S, CS>& border_value) {
    if (rule == border::surroundings) refuse(status::bad_arg, name);
    const node<T, C> made = recorded<T, C>(name, std::move(sources), std::move(call));
    step& own = steps_.back();
    own.windowed = true;
    own.around = around;
    own.rule = rule;
    const auto* bytes = reinterpret_cast<const std::byte*>(border_value.data());
    own.value.assign(bytes, bytes + sizeof(S) * CS);
    return made;
  }

 private:
  int added(const value& own) {
    values_.push_back(own);
    return static_cast<int>(values_.size()) - 1;
  }
  void refuse(status code, const char* name) {
    if (refused_ != status::ok) return;
    refused_ = code;
    refused_by_ = name;
  }
  void sized(extent size) {
    if (size.width < 1 || size.height < 1 || (sized_ && !equal(size, size_))) refuse(status::bad_size, "chain");
    size_ = size;
    sized_ = true;
  }

  // Whether an output shares bytes with another image of the caller's.
  bool overlapping() const {
    auto ends = [&](const void* data, int step, int pixel) {
      const auto* first = static_cast<const std::byte*>(data);
      const auto* last = first + std::ptrdiff_t{step} * (size_.height - 1);
      return std::pair(std::min(first, last), std::max(first, last) + std::ptrdiff_t{pixel} * size_.width);
    };
    for (std::size_t i = 0; i < values_.size(); ++i) {
      if (!values_[i].output) continue;
      const auto own = ends(values_[i].output, values_[i].output_step, values_[i].pixel);
      for (std::size_t k = 0; k < values_.size(); ++k) {
        const value& other = values_[k];
        const void* data = other.input ? other.input : k < i ? other.output : nullptr;
        if (!data) continue;
        const auto theirs = ends(data, other.input ? other.input_step : other.output_step, other.pixel);
        if (own.first < theirs.second && theirs.first < own.second) return true;
      }
    }
    return false;
  }

  status try_run(const running& options, const char*& name) const try {
    if (refused_ != status::ok) {
      name = refused_by_;
      return refused_;
    }
    if (steps_.empty()) return status::ok;
    if (overlapping()) {
      name = "chain::output";
      return status::bad_arg;
    }
    const runner own(values_, steps_, size_);
    auto first = [&](const std::vector<status>& statuses, bool errors) {
      for (std::size_t i = 0; i < statuses.size(); ++i)
        if (errors ? static_cast<int>(statuses[i]) < 0 : statuses[i] != status::ok) {
          name = steps_[i].name;
          return statuses[i];
        }
      return status::ok;
    };
    // What a call refuses, it refuses on any rows. These are seen by no one.
    std::vector<status> statuses(steps_.size());
    const status checked = own.run(0, 1, 1, true, statuses);
    if (const status failed = first(statuses, true); failed != status::ok) return failed;
    if (checked != status::ok) return checked;

    const int rows = options.rows > 0 ? options.rows : own.rows();
    const int team = std::clamp(options.threads, 1, std::max(1, size_.height / std::max(1, std::min(rows, 16))));
    std::vector<std::vector<status>> shares(static_cast<std::size_t>(team), std::vector<status>(steps_.size()));
    std::vector<status> ends(static_cast<std::size_t>(team));
    auto share = [&](int i) {
      const auto from = static_cast<int>(std::int64_t{size_.height} * i / team);
      const auto until = static_cast<int>(std::int64_t{size_.height} * (i + 1) / team);
      auto at = static_cast<std::size_t>(i);
      try {
        ends[at] = own.run(from, until, rows, false, shares[at]);
      } catch (const std::bad_alloc&) {
        ends[at] = status::no_mem;
      }
    };
    {
      std::vector<std::jthread> others;
      others.reserve(static_cast<std::size_t>(team));
      for (int i = 1; i < team; ++i) try {
          others.emplace_back(share, i);
        } catch (const std::system_error&) {
          share(i);
        }
      share(0);
    }
    for (std::size_t s = 0; s < steps_.size(); ++s) {
      statuses[s] = status::ok;
      for (const auto& found : shares)
        if (statuses[s] == status::ok || static_cast<int>(found[s]) < 0)
          if (found[s] != status::ok) statuses[s] = found[s];
    }
    if (const status failed = first(statuses, true); failed != status::ok) return failed;
    for (const status end : ends)
      if (end != status::ok) return end;
    return first(statuses, false);
  } catch (const std::bad_alloc&) {
    return status::no_mem;
  }

  std::vector<value> values_;
  std::vector<step> steps_;
  extent size_ = {};
  bool sized_ = false;
  status refused_ = status::ok;
  const char* refused_by_ = "";
};

}  // namespace detail
}  // namespace hux

#endif
