// How functions of the C++ front call the C library: arguments of any pointer type, sizes that must agree, windows over
// a frame of the source, work memory. Not for use by itself.
#ifndef HUX_CALL_HPP
#define HUX_CALL_HPP

#include <cstring>
#include <memory>
#include <new>
#include <string>
#include <vector>

#include "status.hpp"
#include "view.hpp"

namespace hux {

// Whether the library has a member: see members.hpp for those that it has.
template <auto Function>
concept exists = !std::is_null_pointer_v<std::remove_const_t<decltype(Function)>>;

template <auto Function, auto Other>
concept exists_either = exists<Function> || exists<Other>;

// What functions throw when the library returns an error.
class error : public std::runtime_error {
 public:
  error(status code, const char* function)
      : std::runtime_error(std::string("hux::") + function + ": " + message(code)), code_(code) {}
  status code() const { return code_; }

 private:
  status code_;
};

// What functions of hux::nothrow return when they measure: the value is meaningful where the status is no error.
template <class T>
struct [[nodiscard]] result {
  hux::status status = hux::status::ok;
  T value = {};
};

// What a window takes for the pixels around its source.
enum class border {
  replicate,    // aaa|abcd|ddd
  constant,     // border_value
  symmetric,    // cba|abcd|dcb
  reflect101,   // dcb|abcd|cba
  wrap,         // bcd|abcd|abc
  surroundings  // what lies around the view in memory: the caller says that it is there
};

// The anchor of a window of any size: the middle, or right and below of it.
inline constexpr point centre = {INT_MIN, INT_MIN};

namespace detail {

inline status checked(status code, const char* function) {
  if (static_cast<int>(code) < 0) throw error(code, function);
  return code;
}
template <class T>
T checked(result<T>&& result, const char* function) {
  checked(result.status, function);
  return std::move(result.value);
}

// An address for a pointer of whatever type the callee takes: types have been checked by the choice of the callee.
struct address {
  const void* at;
  template <class U>
  operator U*() const {
    return static_cast<U*>(const_cast<void*>(at));
  }
};

// Numbers for a callee that takes the first by value, or all of them by pointer.
template <class T>
struct numbers {
  const T* at;
  template <class U>
  requires std::is_arithmetic_v<T>
  operator const U*() const { return reinterpret_cast<const U*>(at); }
  template <class U>
  requires(!std::is_arithmetic_v<T>) operator const U*() const { return reinterpret_cast<const U*>(at); }
  template <class U>
  requires(!std::is_pointer_v<U>) operator U() const { return std::bit_cast<U>(*at); }
};

template <class T, int C>
address at(const view<T, C>& v) {
  return {v.data()};
}
template <class T, int N>
address at(const planes<T, N>& v) {
  return {v.data().data()};
}
template <class T>
address at(const line<T>& v) {
  return {v.data()};
}
template <class T, std::size_t N>
address at(std::span<T, N> block) {
  return {block.data()};
}
template <class T>
address at(const grid<T>& cells) {
  return {cells.cells.data()};
}
template <class T, std::size_t N>
address at(const std::array<T, N>& values) {
  return {values.data()};
}
template <class T>
requires std::is_arithmetic_v<T> address at(const T& value) { return {&value}; }
template <class T, int C>
numbers<T> at(const constant<T, C>& values) {
  return {values.data()};
}

// Lists for a callee that takes one by its address, or several by an array of addresses; and their lengths.
template <class T>
struct list_pointers {
  T* data[4];
  int lengths[4];
  int count = 0;

  void add(T* at, std::size_t length) {
    data[count] = at;
    lengths[count++] = static_cast<int>(length);
  }
  explicit list_pointers(std::span<T> list) { add(list.data(), list.size()); }
  template <std::size_t N>
  explicit list_pointers(const std::array<std::span<T>, N>& lists) {
    for (const auto& list : lists) add(list.data(), list.size());
  }
  address at() const { return {count == 1 ? static_cast<const void*>(data[0]) : static_cast<const void*>(data)}; }
  numbers<int> size() const { return {lengths}; }
  bool same_sizes(const list_pointers& other) const {
    for (int i = 0; i < count; ++i)
      if (lengths[i] != other.lengths[i]) return false;
    return true;
  }
};

// Calls a function with as many of the arguments as it takes: what comes last is for the types that need it.
template <class F>
inline constexpr std::size_t arity = 0;
template <class... Parameters>
inline constexpr std::size_t arity<HuxStatus (*)(Parameters...)> = sizeof...(Parameters);
template <auto Function, class Last, class... Args>
status call_with(const Last& last, const Args&... args) {
  if constexpr (arity<std::remove_const_t<decltype(Function)>> == sizeof...(Args))
    return static_cast<status>(Function(args...));
  else
    return static_cast<status>(Function(args..., last));
}
template <auto Function, class... Args>
status call(const Args&... args) {
  return static_cast<status>(Function(args...));
}

// Whether a source is the destination itself.
template <class A, class B>
bool same(const A& a, const B& b) {
  return a.data() == b.data() && a.step() == b.step() && equal(a.size(), b.size());
}
template <class A, class B>
bool same(const line<A>& a, const line<B>& b) {
  return a.data() == b.data() && a.size() == b.size();
}
template <class A, class B, int N>
bool same(const planes<A, N>& a, const planes<B, N>& b) {
  for (int i = 0; i < N; ++i)
    if (a.data()[i] != b.data()[i]) return false;
  return a.step() == b.step() && equal(a.size(), b.size());
}
template <class A, class B>
bool same(std::span<const A, 64> a, std::span<B, 64> b) {
  return a.data() == b.data();
}

constexpr std::int64_t wide(int number) { return number; }
constexpr bool of_size(extent size, std::int64_t width, std::int64_t height) {
  return size.width == width && size.height == height;
}
constexpr bool of_size(int length, std::int64_t width, std::int64_t) { return length == width; }

// Whether sizes agree, where all must.
constexpr bool same_size(extent a, extent b) { return equal(a, b); }
constexpr bool same_size(int a, int b) { return a == b; }
template <class First, class... Others>
bool agree(const First& first, const Others&... others) {
  return (same_size(first.size(), others.size()) && ...);
}
template <class T>
bool filled(const grid<T>& cells) {
  return cells.size.width >= 0 && cells.size.height >= 0 &&
         cells.cells.size() == static_cast<std::size_t>(cells.size.width) * static_cast<std::size_t>(cells.size.height);
}

// For operations that a type has in place only.
template <class T, int C>
void copy_rows(const view<const T, C>& source, const view<T, C>& destination) {
  const std::size_t bytes = sizeof(T) * static_cast<std::size_t>(elements_of(C) * source.width());
  for (int y = 0; y < source.height(); ++y) std::memmove(destination.row(y), source.row(y), bytes);
}
template <class T>
void copy_rows(const line<const T>& source, const line<T>& destination) {
  if (source.size() > 0)
    std::memmove(destination.data(), source.data(), sizeof(T) * static_cast<std::size_t>(source.size()));
}

// Memory for the time of a call; null where there is none.
class memory {
 public:
  memory() = default;
  explicit memory(std::size_t bytes) : bytes_(new (std::nothrow) std::byte[bytes]) {}
  explicit operator bool() const { return bytes_ != nullptr; }
  std::byte* data() const { return bytes_.get(); }
  address at() const { return {bytes_.get()}; }

 private:
  std::unique_ptr<std::byte[]> bytes_;
};

// How far a window looks around a pixel.
struct reach {
  std::int64_t left, top, right, bottom;
};

// Where the pixel at index lies in a row or column of n, or -1 where the border is constant.
inline int inside(std::int64_t index, int n, border rule) {
  if (index >= 0 && index < n) return static_cast<int>(index);
  auto modulo = [&](std::int64_t period) { return (index % period + period) % period; };
  std::int64_t at = 0;
  switch (rule) {
    case border::constant:
      return -1;
    case border::symmetric:
      at = modulo(2LL * n);
      return static_cast<int>(at < n ? at : 2LL * n - 1 - at);
    case border::reflect101:
      if (n == 1) return 0;
      at = modulo(2LL * n - 2);
      return static_cast<int>(at < n ? at : 2LL * n - 2 - at);
    case border::wrap:
      return static_cast<int>(modulo(n));
    default:
      return index < 0 ? 0 : n - 1;
  }
}

// Copies of an image, or of parts of it, with a frame around them.
class frame {
 public:
  template <class T, int C>
  frame(view<const T, C> source, reach around, border rule, const void* value)
      : first_(reinterpret_cast<const std::byte*>(source.data())),
        step_(source.step()),
        size_(source.size()),
        pixel_(static_cast<int>(sizeof(T)) * elements_of(C)),
        left_(at_least(around.left, 0)),
        top_(at_least(around.top, 0)),
        right_(at_least(around.right, 0)),
        bottom_(at_least(around.bottom, 0)),
        rule_(rule),
        value_(value) {}

  // Puts a copy of the whole image in its place. Where the image is empty it is left as it is, for the callee to judge.
  template <class T, int C>
  status replace(view<const T, C>& source) {
    if (rule_ == border::surroundings || source.empty()) return status::ok;
    const rect whole = {0, 0, size_.width, size_.height};
    const status held = hold(whole);
    if (held == status::ok) source = copy<T, C>(whole);
    return held;
  }

  // Memory for the copy of a part.
  status hold(rect part) {
    const std::int64_t row = row_of(part), rows = rows_of(part);
    if (row > INT_MAX || rows > INT_MAX) return status::no_mem;
    if (row * rows <= held_) return status::ok;
    memory_ = memory(static_cast<std::size_t>(row * rows));
    held_ = memory_ ? row * rows : 0;
    return memory_ ? status::ok : status::no_mem;
  }
  // The copy, for which there is memory. It replaces the one before.
  template <class T, int C>
  view<const T, C> copy(rect part) {
    const std::int64_t row = row_of(part), rows = rows_of(part);
    const std::int64_t x0 = part.x - left_, x1 = part.x + std::int64_t{part.width} + right_;
    const std::int64_t in0 = x0 < 0 ? 0 : x0, in1 = x1 < size_.width ? x1 : size_.width;
    for (std::int64_t y = 0; y < rows; ++y) {
      std::byte* out = memory_.data() + y * row - x0 * pixel_;
      const int from = inside(part.y - top_ + y, size_.height, rule_);
      const std::byte* in = first_ + std::ptrdiff_t{step_} * (from < 0 ? 0 : from);
      auto put = [&](std::int64_t x) {
        const int column = from < 0 ? -1 : inside(x, size_.width, rule_);
        const void* taken = column < 0 ? value_ : in + std::ptrdiff_t{column} * pixel_;
        std::memcpy(out + x * pixel_, taken, static_cast<std::size_t>(pixel_));
      };
      for (std::int64_t x = x0; x < in0; ++x) put(x);
      if (from < 0)
        for (std::int64_t x = in0; x < in1; ++x) put(x);
      else
        std::memcpy(out + in0 * pixel_, in + in0 * pixel_, static_cast<std::size_t>((in1 - in0) * pixel_));
      for (std::int64_t x = in1; x < x1; ++x) put(x);
    }
    const std::byte* first = memory_.data() + top_ * row + left_ * pixel_;
    return view<const T, C>(reinterpret_cast<const T*>(first), row, {part.width, part.height});
  }

  // The part that windows see without its surroundings, where the image is large enough for a copy of its edges to be
  // less work than one of all; else it is empty. Edges at the sides are a cache line wide at least.
  rect middle() const {
    const std::int64_t line = at_least(64 / pixel_, 1);
    const std::int64_t left = left_ > 0 ? at_least(left_, line) : 0, right = right_ > 0 ? at_least(right_, line) : 0;
    if (std::int64_t{size_.width} * size_.height * pixel_ < kLarge || size_.width <= 2 * (left + right) ||
        size_.height <= 2 * (top_ + bottom_))
      return {};
    return {static_cast<int>(left), static_cast<int>(top_), static_cast<int>(size_.width - left - right),
            static_cast<int>(size_.height - top_ - bottom_)};
  }

 private:
  static constexpr std::int64_t kLarge = 4 << 20;  // bytes; copies of less stay in the cache

  static std::int64_t at_least(std::int64_t number, std::int64_t least) { return number < least ? least : number; }
  std::int64_t row_of(rect part) const { return (left_ + part.width + right_) * pixel_; }
  std::int64_t rows_of(rect part) const { return top_ + part.height + bottom_; }

  const std::byte* first_;
  int step_;
  extent size_;
  int pixel_;
  std::int64_t left_, top_, right_, bottom_;
  border rule_;
  const void* value_;
  memory memory_;
  std::int64_t held_ = 0;
};

// Whether rows of whole elements go down in memory and do not overlap.
template <class T, int C>
bool plain(view<T, C> image) {
  constexpr int element = sizeof(T);
  return image.data() && image.step() % element == 0 && image.step() / element / elements_of(C) >= image.width();
}
// Whether two such images lie behind each other.
template <class S, int CS, class T, int C>
bool apart(view<const S, CS> a, view<T, C> b) {
  const auto begin_a = reinterpret_cast<std::uintptr_t>(a.data()), begin_b = reinterpret_cast<std::uintptr_t>(b.data());
  const auto bytes = [](const auto& v) {
    return static_cast<std::uintptr_t>(v.step()) * static_cast<std::uintptr_t>(v.height());
  };
  return plain(a) && plain(b) && (begin_a + bytes(a) <= begin_b || begin_b + bytes(b) <= begin_a);
}

// A window over a source that goes on beyond its edges as the rule says: call(source, destination) on a copy with a
// frame. Where pixels depend on nothing but their windows (local), only the edges of a large source are copied.
template <class S, int CS, class T, int C, class Call>
status windowed(view<const S, CS> source, view<T, C> destination, reach around, border rule, const void* value,
                bool local, const Call& call) {
  const extent size = source.size();
  frame framed(source, around, rule, value);
  const bool by_parts = local && rule != border::surroundings && apart(source, destination);
  const rect middle = by_parts ? framed.middle() : rect{};
  if (middle.width == 0) {
    const status held = framed.replace(source);
    return held == status::ok ? call(source, destination) : held;
  }
  const int right = middle.x + middle.width, bottom = middle.y + middle.height;
  const rect edges[] = {{0, 0, size.width, middle.y},
                        {0, bottom, size.width, size.height - bottom},
                        {0, middle.y, middle.x, middle.height},
                        {right, middle.y, size.width - right, middle.height}};
  // A call that fails does so before it writes, and the first one tells of all.
  for (const rect& edge : edges)
    if (const status held = framed.hold(edge); held != status::ok) return held;
  status first = call(source.roi(middle), destination.roi(middle));
  for (const rect& edge : edges) {
    if (edge.width == 0 || edge.height == 0) continue;
    if (static_cast<int>(first) < 0) break;
    const status found = call(framed.template copy<S, CS>(edge), destination.roi(edge));
    if (static_cast<int>(found) < 0 || first == status::ok) first = found;
  }
  return first;
}

// A pixel of a constant, with an element for alpha where there is one.
template <class T, int C>
struct pixel {
  explicit pixel(const constant<T, C>& value) {
    for (int i = 0; i < constant<T, C>::count; ++i) elements[i] = value.data()[i];
  }
  T elements[5] = {};
};

inline point anchored(point anchor, extent window) {
  return anchor.x == INT_MIN && anchor.y == INT_MIN ? point{window.width / 2, window.height / 2} : anchor;
}
inline int anchored(int anchor, int window) { return anchor == INT_MIN ? window / 2 : anchor; }

// A region of an image, or all of it where it was left out.
inline rect whole(rect region, extent size) {
  return region.width == 0 && region.height == 0 && region.x == 0 && region.y == 0 ? rect{0, 0, size.width, size.height}
                                                                                   : region;
}

// A factor that was left out takes the source region to the destination.
inline double ratio(double factor, int to, int from) { return factor != 0 ? factor : from > 0 ? double(to) / from : 1; }

inline int interpolation_of(interpolation mode, bool smooth_edge) {
  return static_cast<int>(mode) | (smooth_edge ? huxiInterSmoothEdge : 0);
}

}  // namespace detail

// Options, by name: {.shift = 1}. What is left out has the value told here.
struct no_options {};
struct scaled {
  int shift = 0;  // results times 2^-shift
};
struct hinted {
  HuxAccuracyHint hint = huxHintNone;
};
struct divided {
  int divisor = 1;  // of sums of products
};
struct rounded {
  round_mode round = round_mode::near;
};
struct rounded_scaled {
  round_mode round = round_mode::near;
  int shift = 0;
};
struct masked {
  view<const std::uint8_t, 1> mask = {};  // of the destination's size; pixels are written where it is not 0
};

// Windows of a fixed size, of any size, and along a row or column.
template <class T, int C>
struct fixed_window {
  hux::border border = hux::border::replicate;
  constant<T, C> border_value = {};
};
template <class T, int C>
struct window {
  point anchor = centre;
  hux::border border = hux::border::replicate;
  constant<T, C> border_value = {};
};
template <class T, int C>
struct line_window {
  int anchor = centre.x;
  hux::border border = hux::border::replicate;
  constant<T, C> border_value = {};
};
template <class T, int C>
struct divided_window {
  int divisor = 1;
  point anchor = centre;
  hux::border border = hux::border::replicate;
  constant<T, C> border_value = {};
};
template <class T, int C>
struct divided_line_window {
  int divisor = 1;
  int anchor = centre.x;
  hux::border border = hux::border::replicate;
  constant<T, C> border_value = {};
};

// Geometry. roi is a part of the source, whose surroundings may be read; dst_roi the part of the destination that is
// written; both are all of it where they are left out. smooth_edge blends the edges of the map's image.
struct mapping {
  rect roi = {};
  interpolation inter = interpolation::linear;
  bool smooth_edge = false;
};
struct warping {
  rect roi = {};
  rect dst_roi = {};
  interpolation inter = interpolation::linear;
  bool smooth_edge = false;
};
// Factors that are left out take the source region to the destination.
struct resizing {
  rect roi = {};
  double x_factor = 0, y_factor = 0;
  interpolation inter = interpolation::linear;
  bool smooth_edge = false;
};
struct placing {
  rect roi = {};
  rect dst_roi = {};
  double x_factor = 0, y_factor = 0;
  interpolation inter = interpolation::linear;
  bool smooth_edge = false;
};

// Options that some types of an operation have: those whose function takes one more argument, or that exist.
template <auto Function, std::size_t Arguments, class Options>
using options_beyond = std::type_identity_t<
    std::conditional_t<(detail::arity<std::remove_const_t<decltype(Function)>> > Arguments), Options, no_options>>;
template <bool Exists, class Options>
using options_if = std::type_identity_t<std::conditional_t<Exists, Options, no_options>>;

namespace detail {

// What a function takes last.
inline int tail(const no_options&) { return 0; }
inline int tail(const scaled& options) { return options.shift; }
inline int tail(const hinted& options) { return options.hint; }
inline int tail(const divided& options) { return options.divisor; }
inline int tail(const rounded& options) { return static_cast<int>(options.round); }

}  // namespace detail
}  // namespace hux

#endif
