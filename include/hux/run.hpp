// How a chain is kept and run: its steps, the plan made of them, and the plan's run over bands of rows. Not for use by
// itself; see chain.hpp.
#ifndef HUX_RUN_HPP
#define HUX_RUN_HPP

#include <algorithm>
#include <optional>
#include <thread>
#include <vector>

#include "call.hpp"

namespace hux {

// An image of a chain that is there only while it runs: what an input holds or what a call makes.
template <class T, int C>
struct node {
  int index = -1;
  int part = 0;  // the plane or the channel that is meant, where it is one of several

  // One channel of several, the first three of four, a plane of several: no pixels are moved.
  node<T, one_of<C>> channel(int number) const requires(C == 3 || C == 4) {
    if (number < 0 || number >= C) throw std::out_of_range("hux::node::channel: no such channel");
    return {index, number};
  }
  node<T, ac4> colors() const requires(C == 4) { return {index}; }
  node<T, 1> plane(int number) const requires(C > 200) {
    if (number < 0 || number >= C - 200) throw std::out_of_range("hux::node::plane: no such plane");
    return {index, number};
  }
  template <int D>
  requires(C == 4 && D == ac4) operator node<T, D>() const { return {index}; }
};

// A number, or several, that a chain measures.
template <class V>
struct number {
  int index = -1;
};

struct running {
  int threads = 1;
  int rows = 0;  // to a band; 0 leaves it to the chain
};

namespace detail {

// Teams of the library's own would ask for the processors that the chain's have: where that is needed, calls of the
// thread have none while one of these is there. Where the program has no OpenMP, or its names cannot be looked up, the
// library decides.
#if defined __ELF__ && defined __GNUC__
extern "C" {
[[gnu::weak, gnu::visibility("default")]] int hux_get_active_levels() __asm__("omp_get_max_active_levels");
[[gnu::weak, gnu::visibility("default")]] void hux_set_active_levels(int) __asm__("omp_set_max_active_levels");
}
class alone {
 public:
  explicit alone(bool needed)
      : before_(needed && hux_get_active_levels && hux_set_active_levels ? hux_get_active_levels() : 0) {
    if (before_ > 0) hux_set_active_levels(0);
  }
  ~alone() {
    if (before_ > 0) hux_set_active_levels(before_);
  }

 private:
  int before_;
};
#else
class alone {
 public:
  explicit alone(bool) {}
};
#endif

// What a node of a layout is to a call: a view or planes.
template <class T, int C>
struct image_of_layout {
  using type = view<T, C>;
};
template <class T, int C>
requires(C > 200) struct image_of_layout<T, C> {
  using type = planes<T, C - 200>;
};
template <class T, int C>
using image_of = typename image_of_layout<T, C>::type;

constexpr int planes_of(int layout) { return layout > 200 ? layout - 200 : 1; }
// Bytes from one pixel of a plane to the next, and how many of them are processed.
template <class T, int C>
inline constexpr int pixel_bytes = static_cast<int>(sizeof(T)) * (C > 200 ? 1 : elements_of(C));
template <class T, int C>
inline constexpr int own_bytes = static_cast<int>(sizeof(T)) * (C > 200 ? 1 : channels_of(C));

// Rows of an image while a chain runs.
struct band {
  std::byte* data[4];  // by plane
  int step;
  extent size;

  template <class T, int C>
  image_of<T, C> as() const {
    if constexpr (C > 200) {
      std::array<T*, C - 200> at;
      for (std::size_t p = 0; p < at.size(); ++p) at[p] = reinterpret_cast<T*>(data[p]);
      return planes<T, C - 200>(at, step, size);
    } else {
      return view<T, C>(reinterpret_cast<T*>(data[0]), step, size);
    }
  }
};

// What a step does to a band: a function of its sources and destination. It is kept as bytes, so that recording a call
// takes no memory of its own.
class work {
 public:
  work() = default;
  template <class F>
  explicit work(const F& call)
      : call_(
            [](const void* kept, const band* in, const band& out) { return (*static_cast<const F*>(kept))(in, out); }) {
    static_assert(sizeof(F) <= sizeof kept_ && std::is_trivially_copyable_v<F>);
    new (kept_) F(call);
  }
  status operator()(const band* in, const band& out) const { return call_(kept_, in, out); }

 private:
  status (*call_)(const void*, const band*, const band&) = nullptr;
  alignas(16) std::byte kept_[160];
};

// Numbers that a step measures, band by band.
class tally {
 public:
  tally() = default;
  tally(const tally&) = default;
  virtual ~tally() = default;
  virtual tally* another() const = 0;  // which has measured nothing; null where there is no memory
  virtual void clear() = 0;
  virtual status add(const band* in, int row) = 0;  // the next band, which begins at a row of the image
  virtual void join(const tally& next) = 0;         // what was measured of rows that follow
  virtual void give(extent size) = 0;               // writes the numbers where they are wanted
};

// What a call reads: a value of the chain, or a plane or channel of it.
struct part_of_value {
  int value = -1;
  int plane = 0, offset = 0;  // in bytes
};

// One call of a chain.
struct step {
  const char* name = "";
  part_of_value sources[4];
  int count = 0;
  int destination = -1;   // a value, or none
  int measured = -1;      // a tally, or none
  bool windowed = false;  // the first source is framed
  reach around = {};
  border rule = border::replicate;
  std::byte outside[80] = {};  // a pixel of a constant border
  detail::work work;
};

// A value of a chain: an input of the caller's, or what a step makes.
struct value {
  int layout = 1, planes = 1;
  int pixel = 0, own = 0;  // bytes from pixel to pixel, and how many of them are processed
  bool input = false, output = false;
  std::byte* in[4] = {};
  std::byte* out[4] = {};
  int in_step = 0, out_step = 0;
};

// How many bytes two images of one size share: those of rows at the same place at most, or others too.
enum class shared { nothing, rows, more };
struct spread {
  const std::byte* data;
  int step, pixel, own;
};
inline shared sharing(const spread& a, const spread& b, extent size) {
  const std::int64_t height = size.height - 1, d = b.data - a.data;
  const std::int64_t length_a = std::int64_t{a.pixel} * (size.width - 1) + a.own,
                     length_b = std::int64_t{b.pixel} * (size.width - 1) + b.own;
  const std::int64_t span_a = a.step * height, span_b = b.step * height;
  if (std::max<std::int64_t>(span_a, 0) + length_a <= d + std::min<std::int64_t>(span_b, 0) ||
      d + std::max<std::int64_t>(span_b, 0) + length_b <= std::min<std::int64_t>(span_a, 0))
    return shared::nothing;
  if (height == 0) return shared::rows;
  const std::int64_t step = a.step < 0 ? -std::int64_t{a.step} : a.step;
  if (a.step != b.step || length_a > step || length_b > step) return shared::more;
  // Row i + k of b begins d + k * step behind row i of a.
  shared found = shared::nothing;
  const std::int64_t near = -d / a.step;
  for (std::int64_t k = near - 1; k <= near + 1; ++k) {
    const std::int64_t behind = d + k * a.step;
    if (k < -height || k > height || behind >= length_a || behind <= -length_b) continue;
    // Channels of one image lie beside each other.
    const std::int64_t within = ((behind % a.pixel) + a.pixel) % a.pixel;
    if (a.pixel == b.pixel && within >= a.own && within + b.own <= a.pixel) continue;
    if (k != 0) return shared::more;
    found = shared::rows;
  }
  return found;
}

// Where rows of a value stand while a chain runs: in the caller's image, or in memory of the chain's. There they
// stand one after the other, with those around them that windows read: a ring of which the turn takes the rows still
// needed along, so that every call sees rows at one distance.
struct store {
  enum place_type { in_input, in_output, in_ring, for_band };

  int value = 0;
  place_type place = in_ring;
  int ahead = 0, behind = INT_MIN, before = 0;   // rows needed: of a band, kept before it, before a share of rows
  int left = 0, top = 0, right = 0, bottom = 0;  // what lies around the image
  const step* frame = nullptr;                   // whose border that is
  std::int64_t row = 0, pitch = 0;               // bytes of a row, and of those of all planes
  int margin = 0;                                // bytes of a row before its first pixel
  int rows = 0;                                  // that there is memory for
  std::size_t at = 0;
  int input = -1;            // of which input these are copies
  bool edges = false;        // only of its edges, where that is enough: windows read the rest where it stands
  int first = 0, last = 0;   // pixels of a row that are computed from them at its start and its end
  int beside = -1;           // an output to which a window of them goes at once
  bool caught = false;       // an input whose rows an output overwrites
  bool several = false;      // planes
  bool handed_out = false;   // also in an image of the caller's
  std::size_t seams_at = 0;  // copies of the rows that other threads may have overwritten
  int last_task = -1;
};

// One thing to do for a band: a step, or a copy of rows from one store to another.
struct task {
  int step = -1;
  int sources[4] = {};
  int to = -1;
};

class plan {
 public:
  // Lays out the work on bands of so many rows, or of as many as the cache holds.
  status make(const std::vector<value>& values, const std::vector<step>& steps, extent size, int rows) {
    values_ = values.data(), steps_ = steps.data(), size_ = size;
    stores_.clear(), tasks_.clear();
    stores_.reserve(values.size() + steps.size());
    tasks_.reserve(2 * steps.size() + values.size());
    if (!find_caught(values, caught_)) return status::bad_arg;
    place(values);
    for (std::size_t s = 0; s < steps.size(); ++s)
      if (!take(static_cast<int>(s))) return status::bad_arg;
    for (std::size_t t = tasks_.size(); t-- > 0;) need(tasks_[t], static_cast<int>(t));
    return lay_out(rows);
  }

  // Whether it still holds when images of the caller's have moved: which of them share bytes is what it depends on.
  bool holds(const std::vector<value>& values) { return find_caught(values, now_) && now_ == caught_; }

  std::size_t bytes() const { return bytes_; }
  // How many threads are worth their start: each makes four megabytes or more, of which seams are the least part.
  // Whoever says how many rows a band has gets the threads asked for.
  int team(const running& options) const {
    const std::int64_t by_work = std::min(work_ >> 22, size_.height / std::max<std::int64_t>(8, 4 * seam_));
    const std::int64_t most = options.rows > 0 ? size_.height / std::min(rows_, 16) : by_work;
    return static_cast<int>(std::clamp<std::int64_t>(most, 1, std::clamp(options.threads, 1, kMostThreads)));
  }
  // Whether a call may have a team of the library's own.
  bool windows() const { return windows_; }
  // Whether a call comes behind one that writes to an image of the caller's, and could fail when that is done.
  bool checked_ahead() const { return first_output_ < tasks_.size(); }

  // What one thread has of its own. Of each store: where its first row in memory stands, which that is, and up to where
  // rows are made.
  struct rows {
    std::byte* data = nullptr;
    std::ptrdiff_t step = 0;
    int first = 0, next = 0;

    std::byte* row(int y) const { return data + step * (y - first); }
  };
  struct share {
    std::byte* memory = nullptr;
    std::vector<rows> stores;
    std::vector<status> statuses;  // of the steps
    bool clean = true;             // whether all of them are ok
    std::vector<std::unique_ptr<tally>> tallies;
    int from = 0, until = 0;
  };
  void provide(share& own, std::int64_t number, std::int64_t team) const {
    own.from = static_cast<int>(size_.height * number / team);
    own.until = static_cast<int>(size_.height * (number + 1) / team);
    own.stores.resize(stores_.size());
    for (std::size_t i = 0; i < stores_.size(); ++i) {
      const store& s = stores_[i];
      own.stores[i] = {own.memory + s.at + s.margin, s.pitch};
    }
    point(own);
  }
  // Images of the caller's, which may have moved.
  void point(share& own) const {
    for (std::size_t i = 0; i < stores_.size(); ++i) {
      const value& v = value_of(stores_[i]);
      if (stores_[i].place == store::in_input) own.stores[i] = {v.in[0], v.in_step};
      if (stores_[i].place == store::in_output) own.stores[i] = {v.out[0], v.out_step};
    }
  }
  void begin(share& own) const {
    if (!own.clean) std::fill(own.statuses.begin(), own.statuses.end(), status::ok);
    own.clean = true;
    for (const auto& one : own.tallies) one->clear();
    const store* s = stores_.data();
    for (rows& there : own.stores) {
      there.next = std::max(0, own.from - s->before);
      if (s->place == store::in_ring) there.first = there.next == 0 ? -s->top : there.next;
      ++s;
    }
  }

  // Has every call look at its arguments, on a row that no one sees. False where one fails.
  bool check(share& own) const {
    for (const task& t : tasks_) {
      if (t.step < 0) continue;
      const step& call = steps_[t.step];
      band in[4], out;
      for (int k = 0; k < call.count; ++k) blank(own, t.sources[k], call.sources[k], in[k]);
      if (t.to >= 0) blank(own, t.to, {}, out);
      if (!apply(own, t, 0, in, out)) return false;
      if (call.measured >= 0) own.tallies[at(call.measured)]->clear();
    }
    // What that row made a call warn of is not what the image holds.
    if (!own.clean) std::fill(own.statuses.begin(), own.statuses.end(), status::ok);
    own.clean = true;
    return true;
  }

  // Saves rows of inputs that other threads are about to overwrite.
  void save_seams(share& own) const {
    for (std::size_t i = 0; i < stores_.size(); ++i) {
      const store& s = stores_[i];
      if (!s.caught) continue;
      std::byte* to = own.memory + s.seams_at;
      auto save = [&](int y) {
        for (int p = 0; p < planes(s); ++p, to += s.row) std::memcpy(to, input_row(s, y, p), length(s));
      };
      for (int y = std::max(0, own.from - s.before); y < own.from; ++y) save(y);
      for (int y = own.until; y < std::min(size_.height, own.until + s.ahead); ++y) save(y);
    }
  }

  // Ends at a call that fails; the statuses tell.
  void run(share& own) const {
    for (int y = own.from, end; y < own.until; y = end) {
      end = rows_ < own.until - y ? y + rows_ : own.until;
      for (const task& t : tasks_) {
        int from = y, until = end;
        if (t.to >= 0) {
          const store& s = stores_[at(t.to)];
          from = own.stores[at(t.to)].next;
          until = std::min(size_.height, end + s.ahead);
          if (from >= until) continue;
          if (s.place == store::for_band) own.stores[at(t.to)].first = from;
          if (s.place == store::in_ring) turn(own, t.to, y, until);
        }
        if (t.step < 0) {
          copy(own, t, from, until);
        } else {
          const step& call = steps_[t.step];
          if (call.windowed && edges_only(stores_[at(t.sources[0])])) {
            if (!apply_in_parts(own, t, from, until)) return;
          } else {
            band in[4], out;
            for (int k = 0; k < call.count; ++k) rows_of(own, t.sources[k], call.sources[k], from, until, in[k]);
            if (t.to >= 0) rows_of(own, t.to, {}, from, until, out);
            if (!apply(own, t, from, in, out)) return;
          }
        }
        if (t.to < 0) continue;
        own.stores[at(t.to)].next = until;
        if (stores_[at(t.to)].frame) surround(own, t.to, from, until);
        if (t.step >= 0 && stores_[at(t.to)].handed_out)
          hand_out(own, t.to, std::max(from, own.from), std::min(until, own.until));
      }
    }
  }

 private:
  // What bands may take of the cache: half of a second level of 512 KiB; where there is more of it, larger bands gain
  // nothing. Windows begin anew with each call, so they have more rows even if some go to the next level.
  static constexpr std::int64_t kCache = 256 << 10;
  static constexpr int kLeastRowsOfWindows = 16;
  static constexpr int kFarApart = 2048;  // bytes
  static constexpr int kMostThreads = 1024;
  static constexpr std::size_t at(int index) { return static_cast<std::size_t>(index); }

  const value& value_of(const store& s) const { return values_[s.value]; }
  int planes(const store& s) const { return value_of(s).planes; }
  // Bytes of a row of pixels; what lies behind the last one's processed elements may not be there.
  std::size_t length(const store& s) const {
    const value& own = value_of(s);
    return static_cast<std::size_t>(std::int64_t{own.pixel} * (size_.width - 1) + own.own);
  }

  // The making.

  spread of_input(const value& v, int plane) const { return {v.in[plane], v.in_step, v.pixel, v.own}; }
  spread of_output(const value& v, int plane) const { return {v.out[plane], v.out_step, v.pixel, v.own}; }

  // Which inputs share rows with an output; false where images share more than that, or outputs anything.
  bool find_caught(const std::vector<value>& values, std::vector<char>& caught) const {
    caught.assign(values.size(), false);
    for (std::size_t o = 0; o < values.size(); ++o)
      for (int p = 0; values[o].output && p < values[o].planes; ++p) {
        const spread own = of_output(values[o], p);
        for (std::size_t k = 0; k < values.size(); ++k)
          for (int q = 0; q < values[k].planes; ++q) {
            if (values[k].input) {
              const shared found = sharing(own, of_input(values[k], q), size_);
              if (found == shared::more) return false;
              if (found == shared::rows) caught[k] = true;
            }
            if (values[k].output && (k > o || (k == o && q > p)) &&
                sharing(own, of_output(values[k], q), size_) != shared::nothing)
              return false;
          }
      }
    return true;
  }

  // A store for each value. Inputs that share rows with an output are copied before those are written.
  void place(const std::vector<value>& values) {
    for (std::size_t i = 0; i < values.size(); ++i) {
      store own;
      own.value = static_cast<int>(i);
      own.place = values[i].input ? store::in_input : store::in_ring;
      stores_.push_back(own);
    }
    here_.resize(values.size());
    for (std::size_t i = 0; i < values.size(); ++i) {
      here_[i] = static_cast<int>(i);
      if (caught_[i]) catch_input(static_cast<int>(i));
    }
  }
  void catch_input(int input) {
    store own;
    own.value = own.input = input;
    own.caught = true;
    tasks_.push_back({-1, {input}, static_cast<int>(stores_.size())});
    here_[at(input)] = static_cast<int>(stores_.size());
    stores_.push_back(own);
  }

  // The tasks of a step.
  bool take(int index) {
    const step& own = steps_[index];
    task made;
    made.step = index;
    made.to = own.destination;
    for (int k = 0; k < own.count; ++k) made.sources[k] = here_[at(own.sources[k].value)];
    if (own.windowed && own.rule == border::surroundings) {
      if (stores_[at(made.sources[0])].place != store::in_input) return false;
    } else if (own.windowed &&
               (own.around.left > 0 || own.around.top > 0 || own.around.right > 0 || own.around.bottom > 0)) {
      made.sources[0] = framed(own, made.sources[0]);
    }
    tasks_.push_back(made);
    return true;
  }
  static int within(std::int64_t reach) { return static_cast<int>(std::clamp<std::int64_t>(reach, 0, INT_MAX / 4)); }

  // The store from which a window reads: it has the border that the step asks for.
  int framed(const step& own, int source) {
    const int value = stores_[at(source)].value;
    int found = -1;
    for (std::size_t i = 0; i < stores_.size() && found < 0; ++i) {
      const store& other = stores_[i];
      if (other.value == value && other.place == store::in_ring && other.frame && other.frame->rule == own.rule &&
          std::memcmp(other.frame->outside, own.outside, sizeof own.outside) == 0)
        found = static_cast<int>(i);
    }
    if (found < 0) {
      const store& bare = stores_[at(source)];
      if (bare.place == store::in_ring && !bare.frame) {
        found = source;
      } else {
        store copy;
        copy.value = value;
        if (bare.place == store::in_input) copy.input = value;
        found = static_cast<int>(stores_.size());
        stores_.push_back(copy);
        tasks_.push_back({-1, {source}, found});
      }
    }
    store& to = stores_[at(found)];
    to.frame = &own;
    to.left = std::max(to.left, within(own.around.left));
    to.top = std::max(to.top, within(own.around.top));
    to.right = std::max(to.right, within(own.around.right));
    to.bottom = std::max(to.bottom, within(own.around.bottom));
    return found;
  }

  // What a task needs of its sources; those behind it have told what they need of it.
  void need(const task& t, int index) {
    const store none;
    const store& own = t.to >= 0 ? stores_[at(t.to)] : none;
    const int count = t.step < 0 ? 1 : steps_[t.step].count;
    for (int k = 0; k < count; ++k) {
      store& source = stores_[at(t.sources[k])];
      source.last_task = std::max(source.last_task, index);
      int above = 0, below = 0, mirrored = 0;
      bool all = false;
      if (t.step >= 0 && k == 0 && source.frame && steps_[t.step].windowed) {
        const step& call = steps_[t.step];
        above = within(call.around.top), below = within(call.around.bottom);
        // Mirrors show rows inside of the image for those outside, and wrapped images those of the other end, which an
        // input has at hand.
        if (call.rule == border::symmetric || call.rule == border::reflect101) mirrored = std::max(above, below);
        all = call.rule == border::wrap && above + below > 0 && (source.input < 0 || source.caught);
      }
      const auto most = [&](std::int64_t rows) {
        return all ? size_.height : static_cast<int>(std::min<std::int64_t>(rows, size_.height));
      };
      source.ahead = std::max({source.ahead, most(std::int64_t{own.ahead} + below), most(mirrored)});
      source.before = std::max({source.before, most(std::int64_t{own.before} + above), most(mirrored)});
      source.behind = std::max(source.behind, all ? size_.height : std::min(above - own.ahead, size_.height));
    }
  }

  // Memory for the stores.
  status lay_out(int rows) {
    std::int64_t per_row = 1, fixed = 0;
    windows_ = false;
    first_output_ = tasks_.size();
    work_ = seam_ = 0;
    for (std::size_t i = 0; i < stores_.size(); ++i) {
      store& own = stores_[i];
      const value& v = value_of(own);
      own.behind = std::max(own.behind, -own.ahead);
      // Where no row is read in a later band.
      if (own.place == store::in_ring && own.ahead + own.behind == 0 && !own.frame && own.input < 0) {
        if (v.output && own.ahead == 0 && own.before == 0)
          own.place = store::in_output;
        else if (!v.output && v.own == v.pixel)
          own.place = store::for_band;  // what is not processed stays 0 where it has a place
      }
      own.several = v.planes > 1;
      own.handed_out = v.output && own.place == store::in_ring;
      // Rows begin on cache lines. They are an odd number of lines apart, as neighbours a power of two apart would
      // drive each other from the cache.
      const auto lines = [&](std::int64_t pixels) { return (pixels * v.pixel + 63) / 64; };
      if (lines(own.left) > INT_MAX / 64) return status::no_mem;
      own.margin = static_cast<int>(lines(own.left)) * 64;
      own.row = ((lines(own.left) + lines(std::int64_t{size_.width} + own.right)) | 1) * 64;
      own.pitch = own.row * v.planes;
      if (own.pitch > INT_MAX) return status::no_mem;
      if (own.place == store::in_ring && own.input >= 0 && !own.caught) {
        // Copies weigh most where pixels are wide and windows small. Large windows would read their rows several times,
        // and of bytes the two come out even. Parts at the sides are whole cache lines, and a small part of a row.
        const std::int64_t line = std::max(1, 64 / v.pixel);
        const auto part = [&](std::int64_t reach) { return reach > 0 ? (reach + line) / line * line : 0; };
        const std::int64_t first = part(own.left), last = part(own.right);
        own.edges = v.pixel >= 4 && std::max(own.left + own.right, own.top + own.bottom) <= 4 &&
                    size_.width >= 16 * (first + last + own.left + own.right) &&
                    size_.height > 2 * (std::int64_t{own.top} + own.bottom);
        if (own.edges) own.first = static_cast<int>(first), own.last = static_cast<int>(last);
      }
      if (own.place == store::in_ring)
        fixed += own.pitch * (std::int64_t{own.ahead} + own.behind + own.top + own.bottom), windows_ = true;
      seam_ = std::max(seam_, std::int64_t{own.ahead} + own.before);
      if (own.place != store::for_band) per_row += own.pitch;
    }
    for (std::size_t t = 0; t < tasks_.size(); ++t)
      if (first_output_ == tasks_.size() && tasks_[t].step >= 0 && tasks_[t].to >= 0 &&
          value_of(stores_[at(tasks_[t].to)]).output)
        first_output_ = t + 1;
    for (const task& t : tasks_)
      if (t.step >= 0) {
        windows_ = windows_ || steps_[t.step].windowed;
        const value& made = value_of(stores_[at(t.to >= 0 ? t.to : t.sources[0])]);
        work_ += std::int64_t{steps_[t.step].windowed ? 4 : 1} * made.pixel * made.planes * size_.width * size_.height;
      }
    for (const task& t : tasks_)
      if (t.step >= 0 && t.to >= 0 && stores_[at(t.to)].place == store::in_output)
        stores_[at(t.sources[0])].beside = stores_[at(t.to)].value;
    // Stores for a band alone take turns.
    slots_.clear();
    for (std::size_t t = 0; t < tasks_.size(); ++t) {
      if (tasks_[t].to < 0) continue;
      store& own = stores_[at(tasks_[t].to)];
      if (own.place != store::for_band) continue;
      auto slot =
          std::find_if(slots_.begin(), slots_.end(), [&](const auto& s) { return s.until < static_cast<int>(t); });
      if (slot == slots_.end()) slot = slots_.insert(slots_.end(), {0, 0, 0, 0});
      slot->until = std::max(own.last_task, static_cast<int>(t));
      slot->pitch = std::max(slot->pitch, own.pitch);
      slot->more = std::max(slot->more, std::int64_t{own.ahead} + own.before);
      own.at = static_cast<std::size_t>(slot - slots_.begin());
    }
    for (const auto& slot : slots_) per_row += slot.pitch, fixed += slot.pitch * slot.more;
    rows_ = rows > 0 ? rows
                     : static_cast<int>(std::clamp<std::int64_t>((kCache - fixed) / per_row,
                                                                 windows_ ? kLeastRowsOfWindows : 1, 4096));
    rows_ = std::min(rows_, size_.height);
    std::int64_t bytes = 0;
    const auto taken = [&](std::int64_t more) {
      const std::int64_t begin = bytes;
      bytes += more;
      return static_cast<std::size_t>(begin);
    };
    for (auto& slot : slots_) {
      const std::int64_t most = std::min(rows_ + slot.more, std::int64_t{size_.height});
      if (slot.pitch * most > PTRDIFF_MAX / 4 - bytes) return status::no_mem;
      slot.at = taken(slot.pitch * most);
    }
    std::int64_t unseen = 0;
    for (store& own : stores_) {
      if (own.place == store::for_band) own.at = slots_[own.at].at;
      if (own.place == store::in_output) unseen = std::max(unseen, own.pitch);
      if (own.place != store::in_ring) continue;
      const std::int64_t kept = std::int64_t{own.ahead} + own.behind;
      const std::int64_t most =
          std::max(std::int64_t{own.top} + own.before + rows_ + own.ahead, kept + std::max<std::int64_t>(rows_, kept)) +
          own.bottom;
      const std::int64_t limit = std::int64_t{size_.height} + own.top + own.bottom;
      if (limit > INT_MAX) return status::no_mem;
      own.rows = static_cast<int>(std::min(most, limit));
      if (own.pitch * own.rows > PTRDIFF_MAX / 4 - bytes) return status::no_mem;
      own.at = taken(own.pitch * own.rows);
      if (own.caught) own.seams_at = taken(own.pitch * (std::int64_t{own.before} + own.ahead));
    }
    if (checked_ahead()) unseen_at_ = taken(unseen);
    bytes_ = static_cast<std::size_t>(bytes);
    return status::ok;
  }

  // The run.

  // Takes bands through a call, and keeps its status: the first that is not ok, or an error, at which all ends.
  bool apply(share& own, const task& t, int row, const band* in, const band& out) const {
    const step& call = steps_[t.step];
    const status found = call.measured >= 0 ? own.tallies[at(call.measured)]->add(in, row) : call.work(in, out);
    if (found == status::ok) return true;
    status& kept = own.statuses[at(t.step)];
    if (kept == status::ok || static_cast<int>(found) < 0) kept = found;
    own.clean = false;
    return static_cast<int>(found) >= 0;
  }

  // Whether windows read an input but for its edges. Calls take rows that go down in memory, in whole elements; rows of
  // the caller's that are powers of two apart at both ends drive each other from the cache.
  bool edges_only(const store& s) const {
    const value& v = value_of(s);
    if (!s.edges || v.in_step % (v.pixel & -v.pixel) != 0 || v.in_step / v.pixel < size_.width) return false;
    return s.beside < 0 || v.in_step % kFarApart != 0 || values_[s.beside].out_step % kFarApart != 0;
  }
  // Rows of it of which all is needed, for windows that reach beyond the first or the last row.
  bool whole(const store& s, int y) const {
    return y < s.top + s.bottom || y >= size_.height - s.top - s.bottom || !edges_only(s);
  }
  // Takes a band through a window in parts: its edges are read from copies, the rest from the input.
  bool apply_in_parts(share& own, const task& t, int from, int until) const {
    const store& s = stores_[at(t.sources[0])];
    const step& call = steps_[t.step];
    const auto part = [&](int y, int end, int x, int right, int source) {
      if (y >= end || x >= right) return true;
      const auto cut = [&](int index, const part_of_value& of, band& out) {
        rows_of(own, index, of, y, end, out);
        out.size.width = right - x;
        for (int p = 0; p < planes(stores_[at(index)]); ++p)
          out.data[p] += std::ptrdiff_t{value_of(stores_[at(index)]).pixel} * x;
      };
      band in[4], out;
      for (int k = 0; k < call.count; ++k) cut(k == 0 ? source : t.sources[k], call.sources[k], in[k]);
      cut(t.to, {}, out);
      return apply(own, t, y, in, out);
    };
    const int top = std::clamp(s.top, from, until), bottom = std::clamp(size_.height - s.bottom, from, until);
    const int width = size_.width, last = width - s.last, framed = t.sources[0];
    return part(from, top, 0, width, framed) && part(top, bottom, 0, s.first, framed) &&
           part(top, bottom, s.first, last, s.input) && part(top, bottom, last, width, framed) &&
           part(bottom, until, 0, width, framed);
  }

  const std::byte* input_row(const store& s, int y, int plane) const {
    return value_of(s).in[plane] + std::ptrdiff_t{value_of(s).in_step} * y;
  }

  // Rows of a store, or of a plane or channel of it.
  void rows_of(const share& own, int index, const part_of_value& part, int from, int until, band& out) const {
    const rows& there = own.stores[at(index)];
    out.size = {size_.width, until - from};
    out.step = static_cast<int>(there.step);
    out.data[0] = there.row(from) + part.offset;
    if (stores_[at(index)].several) [[unlikely]]
      planes_of(there, stores_[at(index)], part, from, out);
  }
  void planes_of(const rows& there, const store& s, const part_of_value& part, int from, band& out) const {
    const value& v = value_of(s);
    std::byte* const* const data = s.place == store::in_input ? v.in : s.place == store::in_output ? v.out : nullptr;
    for (int p = 0; p < v.planes; ++p)
      out.data[p] = data ? data[p] + std::ptrdiff_t{out.step} * from : there.row(from) + s.row * p;
    out.data[0] = out.data[part.plane] + part.offset;
  }
  void blank(const share& own, int index, const part_of_value& part, band& out) const {
    const store& s = stores_[at(index)];
    const int row = s.place == store::in_ring    ? own.stores[at(index)].first + s.top
                    : s.place == store::for_band ? own.stores[at(index)].first
                                                 : 0;
    rows_of(own, index, part, row, row + 1, out);
    if (s.place == store::in_output)  // where no one sees it
      for (int p = 0; p < planes(s); ++p) out.data[p] = own.memory + unseen_at_ + s.row * p;
  }

  // Makes room for rows: those that are still needed go to the start.
  void turn(share& own, int index, int y, int until) const {
    const store& s = stores_[at(index)];
    int& first = own.stores[at(index)].first;
    const int next = own.stores[at(index)].next;
    if (until + (until == size_.height ? s.bottom : 0) - first <= s.rows) return;
    const int keep = std::clamp(y - s.behind, first, next);
    std::byte* start = own.memory + s.at;
    if (edges_only(s))
      for (int k = keep; k < next && keep > first; ++k)
        for (int p = 0; p < planes(s); ++p) {
          std::byte* to = start + s.margin + s.pitch * (k - keep) + s.row * p;
          copy_row(s, to, to + s.pitch * (keep - first), k, true);
        }
    else
      std::memmove(start, start + s.pitch * (keep - first), static_cast<std::size_t>(s.pitch * (next - keep)));
    first = keep;
  }

  // Rows of an input, or of a store with another frame.
  void copy(const share& own, const task& t, int from, int until) const {
    const store& s = stores_[at(t.to)];
    const int start = std::max(0, own.from - s.before), kept = own.from - start;
    for (int y = from; y < until; ++y) {
      std::byte* to = own.stores[at(t.to)].row(y);
      const bool elsewhere = s.caught && (y < own.from || y >= own.until);
      const std::byte* seam =
          elsewhere ? own.memory + s.seams_at + s.pitch * (y < own.from ? y - start : kept + y - own.until) : nullptr;
      for (int p = 0; p < planes(s); ++p) {
        const std::byte* row = elsewhere      ? seam + s.row * p
                               : s.input >= 0 ? input_row(s, y, p)
                                              : own.stores[at(t.sources[0])].row(y) + stores_[at(t.sources[0])].row * p;
        copy_row(s, to + s.row * p, row, y, false);
      }
    }
  }
  // A row, or of an input of which only edges are needed its two ends, each with what windows at them reach; framed
  // tells whether what lies around the image goes along.
  void copy_row(const store& s, std::byte* to, const std::byte* from, int y, bool framed) const {
    const std::ptrdiff_t pixel = value_of(s).pixel;
    const int left = framed ? s.left : 0, right = framed ? s.right : 0;
    const auto put = [&](int x, int end) {  // what lies behind the last pixel's processed elements may not be there
      const std::ptrdiff_t bytes =
          end < size_.width || framed ? pixel * (end - x) : std::ptrdiff_t(length(s)) - pixel * x;
      std::memcpy(to + pixel * x, from + pixel * x, static_cast<std::size_t>(bytes));
    };
    if (whole(s, y)) return put(-left, size_.width + right);
    put(-left, s.first + s.right);
    put(size_.width - s.last - s.left, size_.width + right);
  }

  // What lies around the rows from..until, and above and below the image where they reach its ends.
  void surround(const share& own, int index, int from, int until) const {
    const store& s = stores_[at(index)];
    for (int y = from; y < until; ++y) sides(s, own.stores[at(index)].row(y));
    if (from == 0)
      for (int y = -s.top; y < 0; ++y) outside(own, index, y);
    if (until == size_.height)
      for (int y = until; y < until + s.bottom; ++y) outside(own, index, y);
  }
  void sides(const store& s, std::byte* row) const {
    const std::size_t pixel = static_cast<std::size_t>(value_of(s).pixel);
    for (int p = 0; p < planes(s); ++p, row += s.row) {
      const auto put = [&](int x) {
        const int taken = inside(x, size_.width, s.frame->rule);
        std::memcpy(row + std::ptrdiff_t{x} * value_of(s).pixel,
                    taken < 0 ? s.frame->outside : row + std::ptrdiff_t{taken} * value_of(s).pixel, pixel);
      };
      for (int x = -s.left; x < 0; ++x) put(x);
      for (int x = size_.width; x < size_.width + s.right; ++x) put(x);
    }
  }
  void outside(const share& own, int index, int y) const {
    const store& s = stores_[at(index)];
    const int pixel = value_of(s).pixel, taken = inside(y, size_.height, s.frame->rule);
    std::byte* row = own.stores[at(index)].row(y);
    if (taken < 0) {
      for (int p = 0; p < planes(s); ++p)
        for (int x = -s.left; x < size_.width + s.right; ++x)
          std::memcpy(row + s.row * p + std::ptrdiff_t{x} * pixel, s.frame->outside, static_cast<std::size_t>(pixel));
    } else if (s.input >= 0 && !s.caught) {
      for (int p = 0; p < planes(s); ++p) std::memcpy(row + s.row * p, input_row(s, taken, p), length(s));
      sides(s, row);
    } else {
      std::memcpy(row - s.margin, own.stores[at(index)].row(taken) - s.margin, static_cast<std::size_t>(s.pitch));
    }
  }

  // Rows of a ring that the caller wants as well.
  void hand_out(const share& own, int index, int from, int until) const {
    const store& s = stores_[at(index)];
    const value& v = value_of(s);
    for (int y = from; y < until; ++y)
      for (int p = 0; p < v.planes; ++p) {
        std::byte* to = v.out[p] + std::ptrdiff_t{v.out_step} * y;
        const std::byte* row = own.stores[at(index)].row(y) + s.row * p;
        if (v.own == v.pixel)
          std::memcpy(to, row, length(s));
        else
          for (int x = 0; x < size_.width; ++x, to += v.pixel, row += v.pixel)
            std::memcpy(to, row, static_cast<std::size_t>(v.own));
      }
  }

  struct slot {
    int until;
    std::int64_t pitch, more;  // more: rows of the first band beyond its own
    std::size_t at;
  };

  const value* values_ = nullptr;
  const step* steps_ = nullptr;
  extent size_ = {};
  std::vector<store> stores_;
  std::vector<task> tasks_;
  std::vector<int> here_;           // by value, where to read it
  std::vector<char> caught_, now_;  // by value, whether an output overwrites it
  std::vector<slot> slots_;
  int rows_ = 1;
  bool windows_ = false;
  std::int64_t work_ = 0;  // bytes that the calls make, windows counted four times
  std::int64_t seam_ = 0;  // rows around a share that they need
  std::size_t bytes_ = 0, unseen_at_ = 0, first_output_ = 0;
};

// Numbers of type V: Call measures those of a band, Join takes them up, Finish makes of them what is given.
template <class V, class Part, class Call, class Join, class Finish>
class tally_of : public tally {
 public:
  tally_of(const Call& call, const Join& join, const Finish& finish) : call_(call), join_(join), finish_(finish) {}

  V* to = nullptr;

  tally* another() const override {
    auto* made = new (std::nothrow) tally_of(*this);
    if (made) made->clear();
    return made;
  }
  void clear() override { all_.reset(); }
  status add(const band* in, int row) override {
    result<Part> found = call_(in);
    if (static_cast<int>(found.status) >= 0) take(found.value, row);
    return found.status;
  }
  void join(const tally& next) override {
    if (const auto& other = static_cast<const tally_of&>(next); other.all_) take(*other.all_, 0);
  }
  void give(extent size) override {
    if (to && all_) *to = finish_(*all_, size);
  }

 private:
  void take(const Part& part, int row) {
    if (all_)
      join_(*all_, part, row);
    else
      all_ = part, join_.first(*all_, row);
  }

  Call call_;
  Join join_;
  Finish finish_;
  std::optional<Part> all_;
};

// Runs the calls of a chain, whoever recorded them. It keeps the plan and the memory for the next run.
class runner {
 public:
  static constexpr int kNoStep = -1;

  std::vector<value> values;
  std::vector<step> steps;
  std::vector<std::unique_ptr<tally>> tallies;  // of which each thread has another
  extent size = {};

  // To be told when other images, calls or outputs have come, and when images of the caller's stand elsewhere.
  void changed() { planned_ = false; }
  void moved() { moved_ = true; }

  // Gives the status of the first call that fails, or else the first that is not ok, and whose it is: kNoStep where the
  // images share bytes that they may not, or there is no memory.
  status run(const running& options, int& whose) try {
    whose = kNoStep;
    if (steps.empty()) return status::ok;
    if (!planned_ || moved_ || options.rows != planned_for_.rows || options.threads != planned_for_.threads)
      if (const status made = prepare(options); made != status::ok) return made;
    for (plan::share& own : shares_) plan_.begin(own);
    const alone here(plan_.windows());
    // A call that fails does so before it writes. Where one comes behind an output, all are asked ahead of the work.
    plan::share& front = shares_.front();
    if (plan_.checked_ahead() && !plan_.check(front)) return first(whose, true);
    if (shares_.size() > 1)
      share_out();
    else
      plan_.run(front);
    if (!front.clean)
      if (const status failed = first(whose, true); failed != status::ok) return failed;
    for (std::size_t t = 0; t < tallies.size(); ++t) {
      for (std::size_t i = 1; i < shares_.size(); ++i) front.tallies[t]->join(*shares_[i].tallies[t]);
      front.tallies[t]->give(size);
    }
    return front.clean ? status::ok : first(whose, false);
  } catch (const std::bad_alloc&) {
    return status::no_mem;
  }

  // Of the last run: the status of a call, and what one measured.
  status status_of(std::size_t call) const { return shares_.front().statuses[call]; }
  const tally& measured(std::size_t index) const { return *shares_.front().tallies[index]; }
  std::size_t bytes() const { return shares_.size() * plan_.bytes(); }

 private:
  // The plan and what each thread has, unless they are there.
  status prepare(const running& options) {
    if (planned_ && options.rows == planned_for_.rows && options.threads == planned_for_.threads &&
        plan_.holds(values)) {
      for (plan::share& own : shares_) plan_.point(own);
      moved_ = false;
      return status::ok;
    }
    planned_ = moved_ = false;
    if (const status made = plan_.make(values, steps, size, std::max(0, options.rows)); made != status::ok) return made;
    shares_.resize(static_cast<std::size_t>(plan_.team(options)));
    memory_.clear();
    const std::size_t bytes = (plan_.bytes() + 63) / 64 * 64;
    for (plan::share& own : shares_) {
      own.statuses.assign(steps.size(), status::ok);
      own.tallies.clear();
      // Owned before the lists grow, which may fail.
      for (const auto& one : tallies) {
        std::unique_ptr<tally> made(one->another());
        if (!made) return status::no_mem;
        own.tallies.push_back(std::move(made));
      }
      own.memory = nullptr;
      if (bytes > 0) {
        std::unique_ptr<std::byte[]> made(new (std::nothrow) std::byte[bytes + 64]());
        if (!made) return status::no_mem;
        memory_.push_back(std::move(made));
        own.memory = memory_.back().get() + (64 - reinterpret_cast<std::uintptr_t>(memory_.back().get()) % 64) % 64;
      }
      plan_.provide(own, &own - shares_.data(), static_cast<std::int64_t>(shares_.size()));
    }
    planned_ = true;
    planned_for_ = options;
    return status::ok;
  }

  // Each thread has a share. Where none can be started, this one runs it.
  void share_out() {
    for (plan::share& own : shares_) plan_.save_seams(own);
    {
      std::vector<std::jthread> others;
      others.reserve(shares_.size());
      for (std::size_t i = 1; i < shares_.size(); ++i) try {
          others.emplace_back([this, i] {
            const alone here(plan_.windows());
            plan_.run(shares_[i]);
          });
        } catch (const std::exception&) {
          plan_.run(shares_[i]);
        }
      plan_.run(shares_.front());
    }
    for (std::size_t i = 1; i < shares_.size(); ++i)
      for (std::size_t s = 0; s < steps.size(); ++s) {
        const status other = shares_[i].statuses[s];
        status& kept = shares_.front().statuses[s];
        if (other != status::ok && (kept == status::ok || (static_cast<int>(other) < 0 && static_cast<int>(kept) > 0)))
          kept = other;
        shares_.front().clean = shares_.front().clean && kept == status::ok;
      }
  }

  // The first status of the steps that is an error, or that is not ok.
  status first(int& whose, bool errors) const {
    const std::vector<status>& all = shares_.front().statuses;
    for (std::size_t i = 0; i < all.size(); ++i)
      if (errors ? static_cast<int>(all[i]) < 0 : all[i] != status::ok) {
        whose = static_cast<int>(i);
        return all[i];
      }
    return status::ok;
  }

  plan plan_;
  bool planned_ = false, moved_ = false;
  running planned_for_;
  std::vector<plan::share> shares_;
  std::vector<std::unique_ptr<std::byte[]>> memory_;
};

// What chains of any calls have: see chain.hpp.
class chain_base {
 public:
  chain_base() { runner_.values.reserve(8), runner_.steps.reserve(8); }
  chain_base(chain_base&&) = default;
  chain_base& operator=(chain_base&&) = default;

  // An image that the chain reads; it is to be there when the chain runs. All images of a chain have one size.
  template <readable V, class T = value_type_of<V>, int C = layout_of<V>>
  node<T, C> input(const V& image) {
    const view<const T, C> pixels = image;
    return taken<T, C>(pixels.size(), pixels.step(), std::array{pixels.data()});
  }
  template <readable_planes V, class T = value_type_of<V>, int C = layout_of<V>>
  node<T, C> input(const V& image) {
    std::array<const T*, C - 200> at;
    for (std::size_t p = 0; p < at.size(); ++p) at[p] = image.data()[p];
    return taken<T, C>(image.size(), image.step(), at);
  }

  // Where an image of the chain goes. It may be the same array as an input; otherwise it must share no byte with one,
  // nor with another output.
  template <class T, int C>
  void output(node<T, C> from, std::type_identity_t<view<T, C>> to) requires(C < 200) {
    given(from, to.size(), to.step(), std::array{to.data()});
  }
  template <class T, int C>
  void output(node<T, C> from, std::type_identity_t<planes<T, C - 200>> to) requires(C > 200) {
    given(from, to.size(), to.step(), to.data());
  }

  // Where a number goes; it is written when all else is done.
  template <class V>
  void output(number<V> from, std::type_identity_t<V>& to) {
    runner_.changed();
    giving_[static_cast<std::size_t>(from.index)](*runner_.tallies[static_cast<std::size_t>(from.index)], &to);
  }

  // Runs the calls on bands of rows, each thread on a share of its own. Throws hux::error, naming the call, with the
  // status of the first call that fails; no output has been written then, unless memory ran out within a call. Returns
  // the first warning. Memory is kept for the next run: one thread at a time may run a chain.
  status run(const running& options = {}) {
    const char* name = "chain::run";
    const status out = try_run(options, name);
    if (static_cast<int>(out) < 0) throw error(out, name);
    return out;
  }
  [[nodiscard]] status try_run(const running& options = {}) {
    const char* name = "";
    return try_run(options, name);
  }

 protected:
  template <class T, int C>
  static part_of_value part(node<T, C> from) {
    if constexpr (C > 100 && C < 200) return {from.index, 0, from.part * static_cast<int>(sizeof(T))};
    return {from.index, from.part, 0};
  }

  // A call that makes an image.
  template <class T, int C, std::size_t N>
  node<T, C> recorded(const char* name, const part_of_value (&sources)[N], const work& call) {
    const int index = added(value_of<T, C>());
    step& own = runner_.steps.emplace_back();
    own.name = name;
    std::copy_n(sources, N, own.sources);
    own.count = N;
    own.destination = index;
    own.work = call;
    return {index};
  }
  // A window over the first source.
  template <class T, int C, std::size_t N, class S, int CS>
  node<T, C> recorded(const char* name, const part_of_value (&sources)[N], const work& call, reach around, border rule,
                      const constant<S, CS>& border_value) {
    if (rule == border::surroundings && !runner_.values[static_cast<std::size_t>(sources[0].value)].input)
      refuse(status::bad_arg, name);
    const node<T, C> made = recorded<T, C>(name, sources, call);
    step& own = runner_.steps.back();
    own.windowed = true;
    own.around = around;
    own.rule = rule;
    const pixel<S, CS> value(border_value);
    static_assert(sizeof value.elements <= sizeof own.outside);
    if (rule == border::constant) std::memcpy(own.outside, value.elements, sizeof value.elements);
    return made;
  }
  // A call that reads and writes the fourth channel of images that have colours and alpha.
  template <class T, int C, std::size_t N>
  node<T, C> recorded_with_alpha(const char* name, const part_of_value (&sources)[N], const work& call) {
    const node<T, C> made = recorded<T, C>(name, sources, call);
    if constexpr (C == ac4) {
      for (const part_of_value& source : sources) alpha_of(source.value);
      alpha_of(made.index);
    }
    return made;
  }
  // A call that measures: see tally_of.
  template <class V, class Part, std::size_t N, class Call, class Join, class Finish>
  number<V> measured(const char* name, const part_of_value (&sources)[N], const Call& call, const Join& join,
                     const Finish& finish) {
    return tallied<V>(name, sources, std::make_unique<tally_of<V, Part, Call, Join, Finish>>(call, join, finish));
  }
  template <class V, std::size_t N, class Tally>
  number<V> tallied(const char* name, const part_of_value (&sources)[N], std::unique_ptr<Tally> own) {
    step& made = runner_.steps.emplace_back();
    made.name = name;
    std::copy_n(sources, N, made.sources);
    made.count = N;
    made.measured = static_cast<int>(runner_.tallies.size());
    runner_.tallies.push_back(std::move(own));
    giving_.push_back([](tally& from, void* to) { static_cast<Tally&>(from).to = static_cast<V*>(to); });
    runner_.changed();
    return {made.measured};
  }

 private:
  template <class T, int C, std::size_t N>
  node<T, C> taken(extent size, int step, const std::array<const T*, N>& data) {
    sized(size);
    value own = value_of<T, C>();
    own.input = true;
    own.in_step = step;
    for (std::size_t p = 0; p < N; ++p) {
      if (!data[p]) refuse(status::null_ptr, "input");
      own.in[p] = reinterpret_cast<std::byte*>(const_cast<T*>(data[p]));
    }
    return {added(own)};
  }
  template <class T, int C, std::size_t N>
  void given(node<T, C> from, extent size, int step, const std::array<T*, N>& data) {
    sized(size);
    for (T* plane : data)
      if (!plane) refuse(status::null_ptr, "output");
    const value& known = runner_.values[static_cast<std::size_t>(from.index)];
    if (known.input || known.output || known.layout != C)
      from = recorded<T, C>("output", {part(from)}, copying<T, C>());
    value& own = runner_.values[static_cast<std::size_t>(from.index)];
    own.output = true;
    own.out_step = step;
    for (std::size_t p = 0; p < N; ++p) own.out[p] = reinterpret_cast<std::byte*>(data[p]);
    runner_.changed();
  }

  template <class T, int C>
  static value value_of() {
    value own;
    own.layout = C, own.planes = planes_of(C);
    own.pixel = pixel_bytes<T, C>, own.own = own_bytes<T, C>;
    return own;
  }
  int added(const value& own) {
    runner_.changed();
    runner_.values.push_back(own);
    return static_cast<int>(runner_.values.size()) - 1;
  }
  void alpha_of(int index) {
    runner_.values[static_cast<std::size_t>(index)].own = runner_.values[static_cast<std::size_t>(index)].pixel;
  }
  void sized(extent size) {
    if (size.width < 1 || size.height < 1 || (sized_ && !equal(size, runner_.size))) refuse(status::bad_size, "chain");
    runner_.size = size;
    sized_ = true;
  }

 protected:
  void refuse(status code, const char* name) {
    if (refused_ != status::ok) return;
    refused_ = code;
    refused_by_ = name;
  }
  // The processed elements of each pixel.
  template <class T, int C>
  static work copying() {
    return work([](const band* in, const band& out) {
      constexpr std::size_t kOwn = own_bytes<T, C>;
      constexpr std::ptrdiff_t kPixel = pixel_bytes<T, C>;
      for (int p = 0; p < planes_of(C); ++p)
        for (int y = 0; y < out.size.height; ++y) {
          std::byte* to = out.data[p] + std::ptrdiff_t{out.step} * y;
          const std::byte* from = in->data[p] + std::ptrdiff_t{in->step} * y;
          if constexpr (kOwn == kPixel)
            std::memcpy(to, from, kOwn * static_cast<std::size_t>(out.size.width));
          else
            for (int x = 0; x < out.size.width; ++x, to += kPixel, from += kPixel) std::memcpy(to, from, kOwn);
        }
      return status::ok;
    });
  }

 private:
  status try_run(const running& options, const char*& name) {
    if (refused_ != status::ok) {
      name = refused_by_;
      return refused_;
    }
    int whose = runner::kNoStep;
    const status out = runner_.run(options, whose);
    if (whose != runner::kNoStep)
      name = runner_.steps[static_cast<std::size_t>(whose)].name;
    else if (out == status::bad_arg)
      name = "chain::output";
    return out;
  }

  runner runner_;
  std::vector<void (*)(tally&, void*)> giving_;
  bool sized_ = false;
  status refused_ = status::ok;
  const char* refused_by_ = "";
};

}  // namespace detail
}  // namespace hux

#endif
