// What functions of the C++ front work on: views of images, of planes and of lines, constants, and their layouts.
//
// A view does not own its pixels: a pointer to the first element of a region, the distance in bytes from one row to the
// next, and the region's size in pixels. T is const where pixels are only read. Nothing need be aligned.
#ifndef HUX_VIEW_HPP
#define HUX_VIEW_HPP

#include <array>
#include <bit>
#include <climits>
#include <complex>
#include <cstddef>
#include <cstdint>
#include <span>
#include <stdexcept>
#include <type_traits>
#include <utility>

#include "../huxdefs.h"

namespace hux {

using extent = HuxiSize;  // width and height
using point = HuxiPoint;  // x and y
using rect = HuxiRect;    // x, y, width and height, all in pixels

// Layouts: 1 to 4 interleaved channels, or one of these.
inline constexpr int ac4 = -4;  // four elements to a pixel, of which the fourth, alpha, is neither read nor written
inline constexpr int ac1 = -1;  // a plane of alpha
template <int C>
inline constexpr int one_of = 100 + C;  // one channel of C interleaved ones
template <int N>
inline constexpr int planar = 200 + N;  // N planes

namespace detail {

// Elements from one pixel to the next, and how many of them are processed.
constexpr int elements_of(int layout) { return layout > 100 ? layout - 100 : layout < 0 ? -layout : layout; }
constexpr int channels_of(int layout) {
  return layout == ac4 ? 3 : layout > 200 ? layout - 200 : layout > 100 || layout == ac1 ? 1 : layout;
}

constexpr bool equal(extent a, extent b) { return a.width == b.width && a.height == b.height; }

template <class T, class... Ts>
inline constexpr bool one_of_types = (std::is_same_v<T, Ts> || ...);

}  // namespace detail

// Elements of images. Complex floats are those of the standard library.
template <class T>
concept element = detail::one_of_types < std::remove_const_t<T>,
        std::uint8_t, std::int8_t, std::uint16_t, std::int16_t, std::uint32_t, std::int32_t, std::int64_t,
float, double, Hux16sc, Hux32sc, std::complex<float>, std::complex < double >> ;

template <element T, int C>
class image;

// An image, or a region of one.
template <element T, int C>
class view {
 public:
  using value_type = std::remove_const_t<T>;
  using element_type = T;
  static constexpr int layout = C;

  view() = default;
  explicit view(T* data, std::ptrdiff_t step, extent size) : data_(data), step_(static_cast<int>(step)), size_(size) {
    if (step != step_) throw std::length_error("hux::view: a step beyond 32 bits");
  }

  // A view may always be read.
  template <class U>
  view(view<U, C> other) requires(std::is_const_v<T>&& std::is_same_v<U, value_type>)
      : data_(other.data()), step_(other.step()), size_(other.size()) {}
  // Four channels may be read as three and a gap; to write so, say colors().
  template <class U>
  view(view<U, 4> other) requires(C == ac4 && std::is_const_v<T> && std::is_same_v<std::remove_const_t<U>, value_type>)
      : data_(other.data()), step_(other.step()), size_(other.size()) {}

  // An image may be read; it may be written unless it is const or about to go.
  view(image<value_type, C>& whole) : view(whole.data(), whole.step(), whole.size()) {}
  view(const image<value_type, C>& whole) requires std::is_const_v<T> : view(whole.data(), whole.step(), whole.size()) {
  }
  view(const image<value_type, C>&) requires(!std::is_const_v<T>) = delete;
  view(const image<value_type, 4>& whole) requires(C == ac4 && std::is_const_v<T>)
      : view(whole.data(), whole.step(), whole.size()) {}

  T* data() const { return data_; }
  int step() const { return step_; }
  extent size() const { return size_; }
  int width() const { return size_.width; }
  int height() const { return size_.height; }
  bool empty() const { return !data_ || size_.width < 1 || size_.height < 1; }

  // The first element of row y, or of the pixel at (x, y). Rows of odd steps are not aligned.
  T* row(int y) const { return shifted(0, y); }
  T* at(int x, int y) const { return shifted(x, y); }

  // A part of the view. Throws std::out_of_range where it is not inside.
  view roi(int x, int y, int width, int height) const {
    if (x < 0 || y < 0 || width < 0 || height < 0 || width > size_.width - x || height > size_.height - y)
      throw std::out_of_range("hux::view::roi: not inside of the view");
    return view(shifted(x, y), step_, {width, height});
  }
  view roi(rect part) const { return roi(part.x, part.y, part.width, part.height); }

  // One channel of several.
  view<T, one_of<C>> channel(int index) const requires(C == 3 || C == 4) {
    if (index < 0 || index >= C) throw std::out_of_range("hux::view::channel: no such channel");
    return view<T, one_of<C>>(data_ + index, step_, size_);
  }

  // Without the fourth channel.
  view<T, ac4> colors() const requires(C == 4) { return view<T, ac4>(data_, step_, size_); }

 private:
  using Byte = std::conditional_t<std::is_const_v<T>, const std::byte, std::byte>;

  T* shifted(int x, int y) const {
    return reinterpret_cast<T*>(reinterpret_cast<Byte*>(data_) + std::ptrdiff_t{y} * step_) +
           std::ptrdiff_t{x} * detail::elements_of(C);
  }

  T* data_ = nullptr;
  int step_ = 0;
  extent size_ = {};
};

// N planes of one size, whose rows have one step.
template <element T, int N>
class planes {
 public:
  using value_type = std::remove_const_t<T>;
  using element_type = T;
  static constexpr int layout = 200 + N;

  planes() = default;
  explicit planes(const std::array<T*, N>& data, std::ptrdiff_t step, extent size)
      : data_(data), step_(static_cast<int>(step)), size_(size) {
    if (step != step_) throw std::length_error("hux::planes: a step beyond 32 bits");
  }
  // Throws std::invalid_argument where sizes or steps differ.
  explicit planes(const std::array<view<T, 1>, N>& views) : step_(views[0].step()), size_(views[0].size()) {
    for (int i = 0; i < N; ++i) {
      if (views[i].step() != step_ || !detail::equal(views[i].size(), size_))
        throw std::invalid_argument("hux::planes: sizes or steps differ");
      data_[i] = views[i].data();
    }
  }
  template <class U>
  planes(planes<U, N> other) requires(std::is_const_v<T>&& std::is_same_v<U, value_type>)
      : step_(other.step()), size_(other.size()) {
    for (int i = 0; i < N; ++i) data_[i] = other.data()[i];
  }

  const std::array<T*, N>& data() const { return data_; }
  int step() const { return step_; }
  extent size() const { return size_; }
  int width() const { return size_.width; }
  int height() const { return size_.height; }
  view<T, 1> plane(int index) const { return view<T, 1>(data_.at(static_cast<std::size_t>(index)), step_, size_); }

 private:
  std::array<T*, N> data_ = {};
  int step_ = 0;
  extent size_ = {};
};

// A vector: elements without gaps.
template <element T>
class line {
 public:
  using value_type = std::remove_const_t<T>;
  using element_type = T;
  static constexpr int layout = 1;

  line() = default;
  explicit line(T* data, int length) : data_(data), length_(length) {}
  template <class Range>
  requires(!std::is_base_of_v<line, std::remove_cvref_t<Range>>) explicit line(Range&& range)
      : data_(std::data(range)), length_(static_cast<int>(std::size(range))) {
    if (std::size(range) > std::size_t{INT_MAX}) throw std::length_error("hux::line: a length beyond 32 bits");
  }
  template <class U>
  line(line<U> other) requires(std::is_const_v<T>&& std::is_same_v<U, value_type>)
      : data_(other.data()), length_(other.size()) {}

  T* data() const { return data_; }
  int size() const { return length_; }

 private:
  T* data_ = nullptr;
  int length_ = 0;
};
template <class Range>
line(Range&& range) -> line<std::remove_reference_t<decltype(*std::data(range))>>;

// Numbers, one for each channel that is processed: a number for one channel, an array for several.
template <class T, int C>
using per_channel =
    std::conditional_t<detail::channels_of(C) == 1, T, std::array<T, static_cast<std::size_t>(detail::channels_of(C))>>;

// A value of the pixels' type for each channel that is processed.
template <class T, int C>
class constant {
 public:
  static constexpr int count = detail::channels_of(C);

  constant() = default;
  constant(T value) requires(count == 1) : values_{value} {}
  constant(const std::array<T, count>& values) : values_(values) {}
  template <std::convertible_to<T>... Ts>
  requires(count > 1 && sizeof...(Ts) == count) constant(Ts... values) : values_{static_cast<T>(values)...} {}

  const T* data() const { return values_.data(); }

 private:
  std::array<T, static_cast<std::size_t>(count)> values_ = {};
};

// Parameters that are not deduced, so that whatever converts may be passed.
template <class T, int C>
using source = std::type_identity_t<view<const T, C>>;
template <class T, int N>
using source_planes = std::type_identity_t<planes<const T, N>>;
template <class T>
using source_line = std::type_identity_t<line<const T>>;
template <class T, int C>
using values = std::type_identity_t<constant<T, C>>;

// Levels and values of tables: floats for floats, else 32-bit integers.
template <class T>
using level_type = std::conditional_t<std::is_same_v<T, float>, float, std::int32_t>;

// The taps of a filter or a structuring element: rows without gaps.
template <class T>
struct grid {
  std::span<const T> cells;
  extent size;
};

// For each channel a list: of levels, of values.
template <class T, int C>
using lists = std::type_identity_t<per_channel<std::span<const T>, C>>;

// Corners, and the matrix of a map.
using quad = std::array<std::array<double, 2>, 4>;
template <int Rows, int Columns>
using matrix = std::array<std::array<double, Columns>, Rows>;

// What is known of a view, an image, planes or a line from its type.
template <class V>
using value_type_of = typename std::remove_cvref_t<V>::value_type;
template <class V>
inline constexpr int layout_of = std::remove_cvref_t<V>::layout;

// An image that T and C of a call are deduced from.
template <class V>
concept readable = requires {
  requires element<value_type_of<V>>;
  requires std::remove_cvref_t<V>::layout < 200;
}
&&std::is_convertible_v<const V&, view<const value_type_of<V>, layout_of<V>>>;
template <class V>
concept readable_planes = requires {
  requires element<value_type_of<V>>;
  requires std::remove_cvref_t<V>::layout >
  200;
};
template <class V>
concept readable_line = requires(const V& v) {
  requires element<value_type_of<V>>;
  requires std::is_convertible_v<const V&, line<const value_type_of<V>>>;
};
template <class V>
concept readable_block = std::is_convertible_v<const V&, std::span<const typename V::value_type, 64>>;

}  // namespace hux

#endif
