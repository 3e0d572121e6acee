// Views of std::mdspan, or of what has its members: the elements are shared.
#ifndef HUX_MDSPAN_HPP
#define HUX_MDSPAN_HPP

#include "view.hpp"

#if __has_include(<mdspan>)
#include <mdspan>
#endif

namespace hux {

// hux::as_view<float, 3>(span): of rows and columns, or of rows, columns and channels. Throws std::invalid_argument
// where elements of a pixel or pixels of a row have gaps, or channels are not those of C.
template <class T, int C, class Span>
requires requires(const Span& span) {
  { span.data_handle() } -> std::convertible_to<T*>;
  span.stride(0);
  span.extent(0);
  requires Span::rank()
  == 2 || Span::rank() == 3;
}
view<T, C> as_view(const Span& span) {
  constexpr auto elements = static_cast<std::int64_t>(detail::elements_of(C));
  auto side = [&](std::size_t dimension) { return static_cast<std::int64_t>(span.extent(dimension)); };
  auto apart = [&](std::size_t dimension, std::int64_t stride) {
    return side(dimension) > 1 && static_cast<std::int64_t>(span.stride(dimension)) != stride;
  };
  std::int64_t width = side(1);
  bool gaps = false;
  if constexpr (Span::rank() == 3) {
    gaps = side(2) != elements || apart(2, 1) || apart(1, elements);
  } else {
    gaps = width % elements != 0 || apart(1, 1);
    width /= elements;
  }
  if (gaps || width > INT_MAX || side(0) > INT_MAX)
    throw std::invalid_argument("hux::as_view: the span is not laid out as such an image");
  return view<T, C>(span.data_handle(),
                    static_cast<std::ptrdiff_t>(span.stride(0)) * static_cast<std::ptrdiff_t>(sizeof(T)),
                    {static_cast<int>(width), static_cast<int>(side(0))});
}

}  // namespace hux

#endif
