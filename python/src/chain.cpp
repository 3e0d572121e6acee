// How a chain runs. Bands of rows pass through all calls, so that what lies between calls stays in the cache; rows that
// windows still need are kept, so that no row is computed twice within a thread's share.
#include "chain.h"

#include <unistd.h>

#include <algorithm>
#include <climits>
#include <cstring>
#include <memory>
#include <new>
#include <string>
#include <system_error>
#include <thread>
#include <vector>

#ifdef _OPENMP
#include <omp.h>
#endif

#include "module.h"

namespace hux::python {

int gRecording = 0, gNoting = 0;

namespace {

using tool::Value;
using Index = std::ptrdiff_t;

PyObject *gImages, *gRecorder;  // the types of what stands for images and numbers, and what records a call with them
thread_local PyObject* tNotes;

// ---- The plan
// --------------------------------------------------------------------------------------------------------

// An image of a chain: given by the caller, or made by a step. Where windows read it, it has a border.
struct Image {
  bool input = false, output = false, own = false;  // own: never made in the caller's memory
  int pixel = 0;                                    // bytes
  int left = 0, top = 0, right = 0, bottom = 0;     // of the border
  int mode = kReplicate;
  std::string filler;  // a pixel of a constant border
};

struct Field {  // of what a measure gives
  char type;    // of the elements: B, h, H, i, f, d
  char merge;   // +, < the least, > the greatest
  int count;
  Index offset;
};

constexpr int kZeros = -2;

// A call, or without a function a copy of rows.
struct Step {
  int function = -1;
  // A letter for each parameter: a, b, o the sources and the destination, m the mask, A, B, O, M their steps, J the
  // step of both sources, S the size, x, y, z the results, h a list of all results, = a value that is given.
  std::string program;
  std::vector<Value> values;
  std::vector<int> a, b, o;   // several are planes
  int mask = -1, offset = 0;  // offset: bytes to the channel of the first source that is meant
  int start = -1;             // what the destination starts as: an image, kZeros, or below as the source
  int left = 0, top = 0, right = 0, bottom = 0;  // how far around a pixel the first source is read
  bool all = false;                              // whether a copy needs the whole source first
  std::vector<Field> fields;
  Index bytes = 0;  // of all fields
};

struct Chain {
  std::vector<Image> images;
  std::vector<Step> steps;
};

bool mirrors(int mode) { return mode == kSymmetric || mode == kReflect101; }

// ---- Running
// ---------------------------------------------------------------------------------------------------------

struct Given {  // an image of the caller's
  char* data = nullptr;
  Index step = 0;
};

Index cacheBytes() {
#ifdef _SC_LEVEL2_CACHE_SIZE
  if (const long size = sysconf(_SC_LEVEL2_CACHE_SIZE); size > 0) return size;
#endif
  return 512 << 10;
}

// Teams of the library's own would ask for the processors that the chain's have.
class AloneOnThread {
 public:
#ifdef _OPENMP
  AloneOnThread() : before_(omp_get_max_active_levels()) { omp_set_max_active_levels(0); }
  ~AloneOnThread() { omp_set_max_active_levels(before_); }

 private:
  int before_;
#endif
};

// What rows are wanted: of a whole share, and of a band.
class Demand {
 public:
  Demand(const Chain& chain, Index height) : chain_(chain), height_(height) {}

  // The end of the rows of each image that a band needs which ends at the row given.
  void until(Index end, std::vector<Index>& rows) const {
    for (std::size_t i = 0; i < rows.size(); ++i) rows[i] = chain_.images[i].output ? end : 0;
    for (std::size_t s = chain_.steps.size(); s-- > 0;) {
      const Step& step = chain_.steps[s];
      const Index own = step.o.empty() ? end : highest(step.o, rows);
      if (own == 0) continue;
      for (int image : step.o) rows[std::size_t(image)] = own;
      each(step, [&](int image, bool windowed) {
        Index last = own;
        if (windowed) {
          // What is mirrored above the first row lies below it.
          const bool mirrored = step.top && mirrors(chain_.images[std::size_t(image)].mode);
          last = std::max<Index>(own + step.bottom, mirrored ? step.top + 1 : 0);
        }
        if (step.all) last = height_;
        rows[std::size_t(image)] = std::max(rows[std::size_t(image)], std::min(last, height_));
      });
    }
  }

  // The first row of each image that a share needs which starts at the row given; last: where its rows end.
  void from(Index first, const std::vector<Index>& last, std::vector<Index>& rows) const {
    for (std::size_t i = 0; i < rows.size(); ++i) rows[i] = chain_.images[i].output ? first : height_;
    for (std::size_t s = chain_.steps.size(); s-- > 0;) {
      const Step& step = chain_.steps[s];
      const Index own = step.o.empty() ? first : lowest(step.o, rows);
      for (int image : step.o) rows[std::size_t(image)] = own;
      each(step, [&](int image, bool windowed) {
        Index low = own;
        if (windowed) {
          low -= step.top;
          // What is mirrored below the last row lies above it.
          const Index end = step.o.empty() ? height_ : highest(step.o, last);
          if (mirrors(chain_.images[std::size_t(image)].mode) && end + step.bottom > height_)
            low = std::min(low, height_ - 1 - step.bottom);
        }
        if (step.all) low = 0;
        rows[std::size_t(image)] = std::min(rows[std::size_t(image)], std::max<Index>(low, 0));
      });
    }
  }

  // The first row of each image that is still read when a band starts: next is how far its images have been made.
  void keep(Index first, const std::vector<Index>& next, std::vector<Index>& rows) const {
    std::fill(rows.begin(), rows.end(), Index(INT_MAX));
    for (const Step& step : chain_.steps) {
      const Index own = step.o.empty() ? first : lowest(step.o, next);
      each(step, [&](int image, bool windowed) {
        const Index low = step.all ? 0 : own - (windowed ? step.top : 0);
        rows[std::size_t(image)] = std::min(rows[std::size_t(image)], low);
      });
    }
  }

  template <class Do>
  static void each(const Step& step, Do act) {
    for (int image : step.a) act(image, step.left || step.top || step.right || step.bottom);
    for (int image : step.b) act(image, false);
    if (step.mask >= 0) act(step.mask, false);
    if (step.start >= 0) act(step.start, false);
  }

 private:
  static Index highest(const std::vector<int>& images, const std::vector<Index>& rows) {
    Index most = 0;
    for (int image : images) most = std::max(most, rows[std::size_t(image)]);
    return most;
  }
  static Index lowest(const std::vector<int>& images, const std::vector<Index>& rows) {
    Index least = INT_MAX;
    for (int image : images) least = std::min(least, rows[std::size_t(image)]);
    return least;
  }

  const Chain& chain_;
  Index height_;
};

// The rows of an image that there are, from first on; those above next are made. Rows of the border count from below 0.
struct Rows {
  char* data = nullptr;
  Index step = 0, first = 0, next = 0, room = 0, bytes = 0;
  bool kept = false, direct = false;  // kept: from band to band; direct: in the caller's memory
  int lastUse = -1;
  char* row(Index y) const { return data + step * (y - first); }
};

// A thread's share of the rows.
class Share {
 public:
  Share(const Chain& chain, const std::vector<Given>& given, Index height, Index width)
      : statuses(chain.steps.size()),
        totals(chain.steps.size()),
        chain_(chain),
        given_(given),
        height_(height),
        width_(width),
        demand_(chain, height),
        images_(chain.images.size()),
        until_(chain.images.size()),
        from_(chain.images.size()),
        keep_(chain.images.size()),
        next_(chain.images.size()) {}

  std::vector<int> statuses;              // of the steps
  std::vector<std::vector<char>> totals;  // of the measures; empty before the first band

  bool run(Index first, Index last, Index rows) {
    first_ = first;
    last_ = last;
    rows_ = rows;
    demand_.until(last, until_);
    demand_.from(first, until_, from_);
    if (!rows_) chooseRows();
    measure();
    if (!allocate()) return false;
    [[maybe_unused]] const AloneOnThread alone;
    for (Index y = first; y < last; y += rows_)
      if (!band(y, std::min(last, y + rows_))) return true;
    return true;
  }

 private:
  std::size_t at(int image) const { return std::size_t(image); }

  void begin() {
    for (std::size_t i = 0; i < images_.size(); ++i) next_[i] = from_[i];
  }

  // What is made in the band that ends at a row: until_ and keep_.
  void look(Index first, Index end) {
    demand_.until(end, until_);
    demand_.keep(first, next_, keep_);
    for (std::size_t i = 0; i < images_.size(); ++i) {
      const Image& image = chain_.images[i];
      if (until_[i] == height_ && next_[i] < height_ && image.bottom && mirrors(image.mode))
        keep_[i] = std::min(keep_[i], height_ - 1 - image.bottom);
      keep_[i] = std::clamp(keep_[i], from_[i] ? from_[i] : Index(-image.top), next_[i]);
      if (next_[i] == 0) keep_[i] = -image.top;
    }
  }

  // How many rows each image keeps, and which of them are made in the caller's memory; by the first bands alone.
  void measure(Index bands = INT_MAX) {
    demand_.until(last_, until_);
    for (std::size_t i = 0; i < images_.size(); ++i) {
      Rows& own = images_[i];
      own.direct = chain_.images[i].output && !chain_.images[i].own && from_[i] == first_ && until_[i] == last_;
      const Image& image = chain_.images[i];
      own.step =
          ((Index(image.left) * image.pixel + 63) / 64 * 64 + (width_ + image.right) * image.pixel + 63) / 64 * 64;
      own.room = 0;
      own.kept = false;
      own.lastUse = -1;
    }
    for (std::size_t s = 0; s < chain_.steps.size(); ++s)
      Demand::each(chain_.steps[s], [&](int image, bool) { images_[at(image)].lastUse = int(s); });
    begin();
    for (Index y = first_; y < last_ && bands-- > 0; y += rows_) {
      look(y, std::min(last_, y + rows_));
      for (std::size_t i = 0; i < images_.size(); ++i) {
        if (until_[i] <= next_[i]) continue;
        Rows& own = images_[i];
        const Index bottom = until_[i] == height_ ? chain_.images[i].bottom : 0;
        own.room = std::max(own.room, until_[i] + bottom - keep_[i]);
        if (keep_[i] != next_[i]) own.kept = true;
      }
      for (std::size_t i = 0; i < images_.size(); ++i) next_[i] = std::max(next_[i], until_[i]);
    }
    for (std::size_t i = 0; i < images_.size(); ++i) images_[i].bytes = images_[i].room * images_[i].step;
  }

  // So many rows to a band that what lives at once takes half of the second-level cache.
  void chooseRows() {
    Index row = 0, fixed = 0;
    for (int trial = 0; trial < 2; ++trial) {
      rows_ = trial ? 32 : 16;
      measure(4);
      Index bytes = place(nullptr);
      for (std::size_t i = 0; i < images_.size(); ++i)
        if (chain_.images[i].input || images_[i].direct) bytes += rows_ * width_ * chain_.images[i].pixel;
      row = trial ? (bytes - fixed) / 16 : 0;
      fixed = bytes;
    }
    fixed -= 32 * row;
    // Windows start anew with each band, which is no gain on few rows, also where more of them leave this cache.
    const bool windows =
        std::any_of(chain_.steps.begin(), chain_.steps.end(), [](const Step& step) { return step.top + step.bottom; });
    rows_ = std::clamp<Index>((cacheBytes() / 2 - fixed) / std::max<Index>(row, 1), windows ? 32 : 8, 4096) / 8 * 8;
  }

  // Places what is kept one after another, and what lives within a band where nothing else lives at that time.
  Index place(char* memory) {
    Index end = 0;
    struct Slot {
      Index at, bytes;
      int until;
    };
    std::vector<Slot> slots;
    for (std::size_t s = 0; s < chain_.steps.size(); ++s)
      for (int image : chain_.steps[s].o) {
        Rows& own = images_[at(image)];
        if (own.direct || !own.bytes) continue;
        Slot* free = nullptr;
        if (!own.kept)
          for (Slot& slot : slots)
            if (slot.until < int(s) && slot.bytes >= own.bytes) free = &slot;
        if (!free) {
          slots.push_back({end, own.bytes, 0});
          free = &slots.back();
          end += own.bytes;
        }
        free->until = own.kept ? INT_MAX : std::max(own.lastUse, int(s));
        if (memory) own.data = memory + free->at + margin(image);
      }
    return end;
  }
  Index margin(int image) const {
    const Image& own = chain_.images[at(image)];
    return (Index(own.left) * own.pixel + 63) / 64 * 64;
  }

  bool allocate() {
    const Index bytes = place(nullptr);
    memory_.reset(new (std::nothrow) char[std::size_t(bytes) + 64]);
    if (!memory_) return false;
    char* const start = memory_.get() + (64 - std::uintptr_t(memory_.get()) % 64) % 64;
    place(start);
    for (std::size_t i = 0; i < images_.size(); ++i) {
      Rows& own = images_[i];
      if (chain_.images[i].input || own.direct) {
        own.data = given_[i].data;
        own.step = given_[i].step;
        own.first = 0;
      } else {
        own.first = from_[i] ? from_[i] : -chain_.images[i].top;
      }
    }
    begin();
    return true;
  }

  bool band(Index first, Index end) {
    look(first, end);
    for (std::size_t s = 0; s < chain_.steps.size(); ++s) {
      const Step& step = chain_.steps[s];
      if (step.o.empty()) {
        if (!call(s, first, end)) return false;
        continue;
      }
      const std::size_t to = at(step.o[0]);
      const Index from = next_[to], until = until_[to];
      if (from >= until) continue;
      for (int image : step.o) slide(at(image), from, until);
      start(step, from, until);
      if (step.function < 0)
        copyRows(step, from, until);
      else if (!call(s, from, until))
        return false;
      for (int image : step.o) finish(at(image), from, until);
    }
    return true;
  }

  // Makes room behind the rows that are still needed.
  void slide(std::size_t image, Index from, Index until) {
    Rows& own = images_[image];
    if (own.direct) return;
    if (!own.kept) {
      own.first = from;
      return;
    }
    const Index end = until + (until == height_ ? chain_.images[image].bottom : 0);
    if (end - own.first <= own.room) return;
    const Index margin = this->margin(int(image)), keep = keep_[image];
    std::memmove(own.row(own.first) - margin, own.row(keep) - margin, std::size_t((from - keep) * own.step));
    own.first = keep;
  }

  void start(const Step& step, Index from, Index until) {
    if (step.start == -1) return;
    for (std::size_t k = 0; k < step.o.size(); ++k) {
      const std::size_t to = at(step.o[k]);
      const std::size_t bytes = std::size_t(width_ * chain_.images[to].pixel);
      for (Index y = from; y < until; ++y)
        if (step.start == kZeros)
          std::memset(images_[to].row(y), 0, bytes);
        else
          std::memcpy(images_[to].row(y), images_[at(step.start >= 0 ? step.start : step.a[k])].row(y), bytes);
    }
  }

  void copyRows(const Step& step, Index from, Index until) {
    const Rows &in = images_[at(step.a[0])], &to = images_[at(step.o[0])];
    const std::size_t bytes = std::size_t(width_ * chain_.images[at(step.o[0])].pixel);
    for (Index y = from; y < until; ++y) std::memcpy(to.row(y), in.row(y), bytes);
    const Image& image = chain_.images[at(step.o[0])];
    if (image.mode != kWrap) return;
    // Rows of the other end are there in the source only.
    for (Index y = -image.top; from == 0 && y < 0; ++y)
      std::memcpy(to.row(y), in.row(inside(y, height_, kWrap)), bytes);
    for (Index y = height_; until == height_ && y < height_ + image.bottom; ++y)
      std::memcpy(to.row(y), in.row(inside(y, height_, kWrap)), bytes);
  }

  // The border of rows that have been made, and what the caller gets of them.
  void finish(std::size_t image, Index from, Index until) {
    const Image& own = chain_.images[image];
    Rows& rows = images_[image];
    next_[image] = rows.next = until;
    const bool atTop = from == 0 && own.top, atBottom = until == height_ && own.bottom;
    const bool wraps = own.mode == kWrap;
    if (own.left || own.right) {
      const Index low = from - (wraps && atTop ? own.top : 0), high = until + (wraps && atBottom ? own.bottom : 0);
      for (Index y = low; y < high; ++y) sides(own, rows.row(y));
    }
    if (atTop && !wraps)
      for (Index y = -own.top; y < 0; ++y) beyond(own, rows, y);
    if (atBottom && !wraps)
      for (Index y = height_; y < height_ + own.bottom; ++y) beyond(own, rows, y);
    if (!own.output || rows.direct) return;
    const Index low = std::max(from, first_), high = std::min(until, last_);
    for (Index y = low; y < high; ++y)
      std::memcpy(given_[image].data + given_[image].step * y, rows.row(y), std::size_t(width_ * own.pixel));
  }

  void sides(const Image& own, char* row) const {
    const auto put = [&](Index x) {
      const char* const from =
          own.mode == kConstant ? own.filler.data() : row + inside(x, width_, own.mode) * own.pixel;
      char* const to = row + x * own.pixel;
      switch (own.pixel) {
        case 1:
          *to = *from;
          break;
        case 4:
          std::memcpy(to, from, 4);
          break;
        default:
          std::memcpy(to, from, std::size_t(own.pixel));
      }
    };
    for (Index x = -own.left; x < 0; ++x) put(x);
    for (Index x = width_; x < width_ + own.right; ++x) put(x);
  }
  void beyond(const Image& own, const Rows& rows, Index y) const {
    char* const row = rows.row(y) - Index(own.left) * own.pixel;
    const Index columns = own.left + width_ + own.right;
    if (own.mode == kConstant)
      for (Index x = 0; x < columns; ++x) std::memcpy(row + x * own.pixel, own.filler.data(), std::size_t(own.pixel));
    else
      std::memcpy(row, rows.row(inside(y, height_, own.mode)) - Index(own.left) * own.pixel,
                  std::size_t(columns * own.pixel));
  }

  bool call(std::size_t s, Index from, Index until) {
    const Step& step = chain_.steps[s];
    void *a[4], *b[4], *o[4], *results[4];
    const auto point = [&](const std::vector<int>& images, void** to, Index offset) {
      for (std::size_t k = 0; k < images.size(); ++k) to[k] = images_[at(images[k])].row(from) + offset;
      return images.size() > 1 ? static_cast<void*>(to) : to[0];
    };
    const auto stepOf = [&](const std::vector<int>& images) { return int(images_[at(images[0])].step); };
    char* const found = step.bytes ? resultsOf(s) : nullptr;
    Value arguments[20];
    const Value* given = step.values.data();
    for (std::size_t i = 0; i < step.program.size(); ++i) {
      Value& value = arguments[i];
      switch (const char letter = step.program[i]) {
        case 'a':
          value.p = point(step.a, a, step.offset);
          break;
        case 'b':
          value.p = point(step.b, b, 0);
          break;
        case 'o':
          value.p = point(step.o, o, 0);
          break;
        case 'm':
          value.p = images_[at(step.mask)].row(from);
          break;
        case 'A':
        case 'J':
          value.i = stepOf(step.a);
          break;
        case 'B':
          value.i = stepOf(step.b);
          break;
        case 'O':
          value.i = stepOf(step.o);
          break;
        case 'M':
          value.i = int(images_[at(step.mask)].step);
          break;
        case 'S':
          value.size = {int(width_), int(until - from)};
          break;
        case 'h':
          for (std::size_t k = 0; k < step.fields.size(); ++k) results[k] = found + step.fields[k].offset;
          value.p = results;
          break;
        case '=':
          value = *given++;
          break;
        default:
          value.p = found + step.fields[std::size_t(letter - 'x')].offset;
      }
    }
    const Function& function = kFunctions[step.function];
    const int status = tool::call(function.shape, function.address, arguments).i;
    if (status && (!statuses[s] || status < 0)) statuses[s] = status;
    if (status < 0) return false;
    if (found) addUp(step, totals[s], found);
    return true;
  }

  // Where a measure puts what it finds in a band.
  char* resultsOf(std::size_t s) {
    found_.resize(std::size_t(chain_.steps[s].bytes));
    return found_.data();
  }

 public:
  static void addUp(const Step& step, std::vector<char>& total, const char* more) {
    if (total.empty()) {
      total.assign(more, more + step.bytes);
      return;
    }
    for (const Field& field : step.fields) {
      const auto merge = [&](auto kind) {
        using T = decltype(kind);
        for (int k = 0; k < field.count; ++k) {
          T own, other;
          char* const place = total.data() + field.offset + k * Index(sizeof(T));
          std::memcpy(&own, place, sizeof own);
          std::memcpy(&other, more + field.offset + k * Index(sizeof(T)), sizeof other);
          if (field.merge == '<')
            own = std::min(own, other);
          else if (field.merge == '>')
            own = std::max(own, other);
          else if constexpr (std::is_integral_v<T>)
            own = T(std::make_unsigned_t<T>(own) + std::make_unsigned_t<T>(other));
          else
            own += other;
          std::memcpy(place, &own, sizeof own);
        }
      };
      switch (field.type) {
        case 'B':
          merge(Hux8u());
          break;
        case 'h':
          merge(Hux16s());
          break;
        case 'H':
          merge(Hux16u());
          break;
        case 'i':
          merge(Hux32s());
          break;
        case 'f':
          merge(Hux32f());
          break;
        default:
          merge(Hux64f());
      }
    }
  }

 private:
  const Chain& chain_;
  const std::vector<Given>& given_;
  Index height_, width_;
  Demand demand_;
  std::vector<Rows> images_;
  std::vector<Index> until_, from_, keep_, next_;
  Index first_ = 0, last_ = 0, rows_ = 0;
  std::unique_ptr<char[]> memory_;
  std::vector<char> found_;
};

// Gives each thread a contiguous share. False where memory ran out.
bool runShares(const Chain& chain, const std::vector<Given>& given, Index height, Index width, Index team, Index rows,
               std::vector<int>& statuses, std::vector<std::vector<char>>& totals) {
  std::vector<Share> shares;
  shares.reserve(std::size_t(team));
  for (Index t = 0; t < team; ++t) shares.emplace_back(chain, given, height, width);
  std::vector<char> good(std::size_t(team), 0);
  const auto run = [&](Index t) noexcept {
    try {
      good[std::size_t(t)] = shares[std::size_t(t)].run(height * t / team, height * (t + 1) / team, rows);
    } catch (const std::bad_alloc&) {
    }
  };
  {
    std::vector<std::jthread> others;
    others.reserve(std::size_t(team));
    for (Index t = 1; t < team; ++t) try {
        others.emplace_back(run, t);
      } catch (const std::system_error&) {
        run(t);
      }
    run(0);
  }
  for (std::size_t s = 0; s < chain.steps.size(); ++s)
    for (Share& share : shares) {
      if (share.statuses[s] && (!statuses[s] || share.statuses[s] < 0)) statuses[s] = share.statuses[s];
      if (!share.totals[s].empty()) Share::addUp(chain.steps[s], totals[s], share.totals[s].data());
    }
  return std::all_of(good.begin(), good.end(), [](char own) { return own; });
}

// ---- For Python
// ------------------------------------------------------------------------------------------------------

constexpr const char* kName = "hux.chain";

bool readImages(PyObject* list, std::vector<int>& to, std::size_t count) {
  for (Py_ssize_t i = 0; i < PyTuple_Size(list); ++i) {
    const long image = PyLong_AsLong(PyTuple_GetItem(list, i));
    if (image < 0 || std::size_t(image) >= count) return PyErr_SetString(PyExc_ValueError, "no such image"), false;
    to.push_back(int(image));
  }
  return to.size() <= 4;
}

bool readStep(PyObject* from, std::size_t images, Step& step) {
  const char *program, *values;
  Py_ssize_t bytes;
  PyObject *a, *b, *o, *fields;
  int all;
  if (!PyArg_ParseTuple(from, "isy#O!O!O!iii(iiii)pO!", &step.function, &program, &values, &bytes, &PyTuple_Type, &a,
                        &PyTuple_Type, &b, &PyTuple_Type, &o, &step.mask, &step.offset, &step.start, &step.left,
                        &step.top, &step.right, &step.bottom, &all, &PyTuple_Type, &fields) ||
      !readImages(a, step.a, images) || !readImages(b, step.b, images) || !readImages(o, step.o, images))
    return false;
  step.program = program;
  step.all = all;
  step.values.resize(std::size_t(bytes) / sizeof(Value));
  std::memcpy(static_cast<void*>(step.values.data()), values, step.values.size() * sizeof(Value));
  for (Py_ssize_t i = 0; i < PyTuple_Size(fields); ++i) {
    int type, merge, count;
    if (!PyArg_ParseTuple(PyTuple_GetItem(fields, i), "CCi", &type, &merge, &count)) return false;
    step.fields.push_back({char(type), char(merge), count, step.bytes});
    step.bytes += (Index(count) * 8 + 15) / 16 * 16;
  }
  return true;
}

// make_chain(images, steps)
PyObject* makeChain(PyObject*, PyObject* arguments) {
  PyObject *images, *steps;
  if (!PyArg_ParseTuple(arguments, "O!O!", &PyTuple_Type, &images, &PyTuple_Type, &steps)) return nullptr;
  std::unique_ptr<Chain> chain(new Chain);
  for (Py_ssize_t i = 0; i < PyTuple_Size(images); ++i) {
    Image image;
    int input, output, own;
    const char* filler;
    Py_ssize_t bytes;
    if (!PyArg_ParseTuple(PyTuple_GetItem(images, i), "pppii(iiii)y#", &input, &output, &own, &image.pixel, &image.mode,
                          &image.left, &image.top, &image.right, &image.bottom, &filler, &bytes))
      return nullptr;
    image.input = input;
    image.output = output;
    image.own = own;
    image.filler.assign(filler, std::size_t(bytes));
    chain->images.push_back(image);
  }
  for (Py_ssize_t i = 0; i < PyTuple_Size(steps); ++i) {
    Step step;
    if (!readStep(PyTuple_GetItem(steps, i), chain->images.size(), step)) return nullptr;
    chain->steps.push_back(step);
  }
  return PyCapsule_New(chain.release(), kName,
                       [](PyObject* capsule) { delete static_cast<Chain*>(PyCapsule_GetPointer(capsule, kName)); });
}

class Buffers {
 public:
  explicit Buffers(std::size_t count) : all_(new Py_buffer[count]) {}
  ~Buffers() {
    for (std::size_t i = 0; i < held_; ++i) PyBuffer_Release(&all_[i]);
  }
  const Py_buffer* take(PyObject* array, bool written) {
    if (PyObject_GetBuffer(array, &all_[held_], written ? PyBUF_RECORDS : PyBUF_RECORDS_RO) < 0) return nullptr;
    return &all_[held_++];
  }

 private:
  std::unique_ptr<Py_buffer[]> all_;
  std::size_t held_ = 0;
};

// run_chain(chain, arrays, threads, rows): the arrays are those of the inputs and outputs, in the order of the images,
// with their pixels one after another. Gives the statuses of the steps, or None where all are 0, and the measures.
PyObject* runChain(PyObject*, PyObject* arguments) {
  PyObject *capsule, *arrays;
  Py_ssize_t threads, rows;
  if (!PyArg_ParseTuple(arguments, "OO!nn", &capsule, &PyTuple_Type, &arrays, &threads, &rows)) return nullptr;
  const auto* const chain = static_cast<const Chain*>(PyCapsule_GetPointer(capsule, kName));
  if (!chain) return nullptr;
  std::vector<Given> given(chain->images.size());
  const Py_ssize_t count = PyTuple_Size(arrays);
  Buffers buffers{std::size_t(count)};
  Index height = 0, width = 0, taken = 0;
  for (std::size_t i = 0; i < given.size(); ++i) {
    const Image& image = chain->images[i];
    if (!image.input && !image.output) continue;
    const Py_buffer* const own = taken < count ? buffers.take(PyTuple_GetItem(arrays, taken++), image.output) : nullptr;
    if (!own) {
      if (!PyErr_Occurred()) PyErr_SetString(PyExc_TypeError, "an array is missing");
      return nullptr;
    }
    const Index pixel = own->ndim == 3 ? own->itemsize * own->shape[2] : own->itemsize;
    if (own->ndim < 2 || pixel != image.pixel || (height && (own->shape[0] != height || own->shape[1] != width)) ||
        (own->shape[1] > 1 && own->strides[1] != pixel))
      return PyErr_SetString(PyExc_ValueError, "no such array"), nullptr;
    height = own->shape[0];
    width = own->shape[1];
    given[i] = {static_cast<char*>(own->buf), height > 1 ? own->strides[0] : std::max<Index>(width * pixel, 1)};
  }
  if (threads < 1) threads = huxGetThreadCount();
  // A share is worth a thread where it is long, and not mostly seam.
  Index seam = 0;
  bool all = false;
  for (const Step& step : chain->steps) {
    seam += step.top + step.bottom;
    all = all || (step.all && !chain->images[std::size_t(step.a[0])].input);
  }
  const Index most =
      std::min(height / std::max<Index>(8, 4 * seam), height * width * Index(chain->steps.size()) / (Index(1) << 20));
  const Index team = all ? 1 : std::clamp<Index>(std::min<Index>(threads, 1024), 1, std::max<Index>(most, 1));
  std::vector<int> statuses(chain->steps.size());
  std::vector<std::vector<char>> totals(chain->steps.size());
  bool good = false;
  PyThreadState* const state = height * width > 4000 ? PyEval_SaveThread() : nullptr;
  try {
    good = runShares(*chain, given, height, width, team, rows, statuses, totals);
  } catch (const std::bad_alloc&) {
  }
  if (state) PyEval_RestoreThread(state);
  const bool failed = std::any_of(statuses.begin(), statuses.end(), [](int status) { return status < 0; });
  if (!good && !failed) return PyErr_NoMemory();
  PyObject* told = Py_NewRef(Py_None);
  if (std::any_of(statuses.begin(), statuses.end(), [](int status) { return status; })) {
    Py_DECREF(told);
    told = PyTuple_New(Py_ssize_t(statuses.size()));
    for (std::size_t s = 0; told && s < statuses.size(); ++s)
      PyTuple_SetItem(told, Py_ssize_t(s), PyLong_FromLong(statuses[s]));
  }
  PyObject* measures = PyList_New(0);
  for (std::size_t s = 0; told && measures && !failed && s < totals.size(); ++s)
    for (const Field& field : chain->steps[s].fields) {
      PyObject* bytes = PyBytes_FromStringAndSize(totals[s].data() + field.offset, Index(field.count) * 8);
      if (!bytes || PyList_Append(measures, bytes) < 0) Py_CLEAR(measures);
      Py_XDECREF(bytes);
      if (!measures) break;
    }
  PyObject* both = told && measures ? PyTuple_Pack(2, told, measures) : nullptr;
  Py_XDECREF(told);
  Py_XDECREF(measures);
  return both;
}

// record(by): a function of a chain starts (1) or ends (-1). set_recorder(images, recorder): what it is recorded with.
PyObject* record(PyObject*, PyObject* by) {
  gRecording += int(PyLong_AsLong(by));
  Py_RETURN_NONE;
}
PyObject* setRecorder(PyObject*, PyObject* arguments) {
  if (!PyArg_ParseTuple(arguments, "O!O", &PyTuple_Type, &gImages, &gRecorder)) return nullptr;
  Py_INCREF(gImages);
  Py_INCREF(gRecorder);
  Py_RETURN_NONE;
}

// noted(operation, arguments, keywords): what the call gives, and the notes of the functions that it ran.
PyObject* noted(PyObject*, PyObject* arguments) {
  PyObject *operation, *given, *options;
  if (!PyArg_ParseTuple(arguments, "OO!O!", &operation, &PyTuple_Type, &given, &PyDict_Type, &options)) return nullptr;
  PyObject *const before = tNotes, *const notes = PyList_New(0);
  if (!notes) return nullptr;
  tNotes = notes;
  ++gNoting;
  PyObject* const result = PyObject_Call(operation, given, options);
  --gNoting;
  tNotes = before;
  PyObject* const both = result ? PyTuple_Pack(2, result, notes) : nullptr;
  Py_XDECREF(result);
  Py_DECREF(notes);
  return both;
}

// Whether it stands for an image or a number of a chain, or has one that does among its planes.
bool standsFor(PyObject* object) {
  for (Py_ssize_t i = 0; i < PyTuple_Size(gImages); ++i)
    if (PyObject_IsInstance(object, PyTuple_GetItem(gImages, i)) == 1) return true;
  if (!PyTuple_Check(object) && !PyList_Check(object)) return false;
  bool any = false;
  for (Py_ssize_t i = 0; !any && i < PySequence_Size(object); ++i) {
    PyObject* const item = PySequence_GetItem(object, i);
    any = item && standsFor(item);
    Py_XDECREF(item);
  }
  return any;
}

}  // namespace

bool thisThreadNotes() { return tNotes; }
bool note(PyObject* entry) {
  const bool good = entry && PyList_Append(tNotes, entry) == 0;
  Py_XDECREF(entry);
  return good;
}

PyObject* recorded(PyObject* operation, PyObject* const* given, Py_ssize_t count, PyObject* names) {
  const Py_ssize_t named = names ? PyTuple_Size(names) : 0;
  bool any = false;
  for (Py_ssize_t i = 0; !any && i < count + named; ++i) any = standsFor(given[i]);
  if (!any) return Py_NewRef(Py_NotImplemented);
  PyObject *arguments = PyTuple_New(count), *options = PyDict_New(), *result = nullptr;
  bool good = arguments && options;
  for (Py_ssize_t i = 0; good && i < count; ++i) good = PyTuple_SetItem(arguments, i, Py_NewRef(given[i])) == 0;
  for (Py_ssize_t i = 0; good && i < named; ++i)
    good = PyDict_SetItem(options, PyTuple_GetItem(names, i), given[count + i]) == 0;
  if (good) result = PyObject_CallFunctionObjArgs(gRecorder, operation, arguments, options, nullptr);
  Py_XDECREF(arguments);
  Py_XDECREF(options);
  return result;
}

PyMethodDef kChainFunctions[] = {{"make_chain", makeChain, METH_VARARGS, nullptr},
                                 {"run_chain", runChain, METH_VARARGS, nullptr},
                                 {"record", record, METH_O, nullptr},
                                 {"set_recorder", setRecorder, METH_VARARGS, nullptr},
                                 {"noted", noted, METH_VARARGS, nullptr},
                                 {}};

}  // namespace hux::python
