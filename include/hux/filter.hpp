// Made by tools/cpp_front from the headers of the C library.
// clang-format off
// Neighbourhood filters: each output pixel from a window of input pixels. Plain C99.
//
// Comments name the functions of C, whose header tells units, statuses and the order of checks. In addition all
// images of a call are compared in size: status::bad_size. Functions of hux throw hux::error where C returns an
// error and return warnings; those of hux::nothrow return either. An operation on its own source is C's in place.
#ifndef HUX_FILTER_HPP
#define HUX_FILTER_HPP

#include <algorithm>

#include "call.hpp"
#include "members.hpp"

namespace hux {

namespace nothrow {

// huxiFilterBox: the mean of a window around each pixel.
template <class T, int C>
requires exists<members::filter_box<T, C>>
[[nodiscard]] status filter_box(source<T, C> src, view<T, C> dst, extent mask_size,
                                const std::type_identity_t<window<T, C>>& options = {}) {
  if (!detail::agree(dst, src)) return status::bad_size;
  const point anchor = detail::anchored(options.anchor, mask_size);
  if constexpr (exists<members::filter_box_in_place<T, C>>) {
    if (options.border == border::surroundings && detail::same(src, dst))
      return detail::call<members::filter_box_in_place<T, C>>(detail::at(dst), dst.step(), dst.size(), mask_size,
                                                              anchor);
  }
  const detail::pixel<T, C> value(options.border_value);
  return detail::windowed(
      src, dst,
      {detail::wide(anchor.x), detail::wide(anchor.y), detail::wide(mask_size.width) - 1 - detail::wide(anchor.x),
       detail::wide(mask_size.height) - 1 - detail::wide(anchor.y)},
      options.border, value.elements,
      !detail::begins_anew<members::filter_box<T, C>> &&
          (!std::is_same_v<T, std::uint8_t> || (detail::wide(mask_size.width) + 1) * mask_size.height <= 65793),
      [&](const auto& from, const auto& to) {
        return detail::call<members::filter_box<T, C>>(detail::at(from), from.step(), detail::at(to), to.step(),
                                                       to.size(), mask_size, anchor);
      });
}

// huxiSumWindowRow: the sum of each channel over maskSize pixels along a row, or down a column, as a float.
template <readable V, int C, class S = value_type_of<V>>
requires exists<members::sum_window_row<C, S>>
[[nodiscard]] status sum_window_row(const V& src, view<float, C> dst, int mask_size,
                                    const std::type_identity_t<line_window<S, C>>& options = {}) {
  view<const S, C> source = src;
  if (!detail::agree(dst, source)) return status::bad_size;
  const int anchor = detail::anchored(options.anchor, mask_size);
  const detail::pixel<S, C> value(options.border_value);
  return detail::windowed(source, dst, {detail::wide(anchor), 0, detail::wide(mask_size) - detail::wide(anchor), 0},
                          options.border, value.elements, false, [&](const auto& from, const auto& to) {
                            return detail::call<members::sum_window_row<C, S>>(
                                detail::at(from), from.step(), detail::at(to), to.step(), to.size(), mask_size, anchor);
                          });
}

// huxiSumWindowColumn: the sum of each channel over maskSize pixels along a row, or down a column, as a float.
template <readable V, int C, class S = value_type_of<V>>
requires exists<members::sum_window_column<C, S>>
[[nodiscard]] status sum_window_column(const V& src, view<float, C> dst, int mask_size,
                                       const std::type_identity_t<line_window<S, C>>& options = {}) {
  view<const S, C> source = src;
  if (!detail::agree(dst, source)) return status::bad_size;
  const int anchor = detail::anchored(options.anchor, mask_size);
  const detail::pixel<S, C> value(options.border_value);
  return detail::windowed(source, dst, {0, detail::wide(anchor), 0, detail::wide(mask_size) - 1 - detail::wide(anchor)},
                          options.border, value.elements, false, [&](const auto& from, const auto& to) {
                            return detail::call<members::sum_window_column<C, S>>(
                                detail::at(from), from.step(), detail::at(to), to.step(), to.size(), mask_size, anchor);
                          });
}

// huxiFilter: convolution with a kernel of the caller's.
template <class T, int C>
requires exists<members::filter<T, C>>
[[nodiscard]] status filter(source<T, C> src, view<T, C> dst, const grid<std::int32_t>& kernel,
                            const std::type_identity_t<divided_window<T, C>>& options = {}) {
  if (!detail::filled(kernel)) return status::bad_size;
  if (!detail::agree(dst, src)) return status::bad_size;
  const extent size = kernel.size;
  const point anchor = detail::anchored(options.anchor, size);
  const detail::pixel<T, C> value(options.border_value);
  return detail::windowed(
      src, dst,
      {detail::wide(size.width) - 1 - detail::wide(anchor.x), detail::wide(size.height) - 1 - detail::wide(anchor.y),
       detail::wide(anchor.x), detail::wide(anchor.y)},
      options.border, value.elements, !detail::begins_anew<members::filter<T, C>>,
      [&](const auto& from, const auto& to) {
        return detail::call<members::filter<T, C>>(detail::at(from), from.step(), detail::at(to), to.step(), to.size(),
                                                   detail::at(kernel), size, anchor, options.divisor);
      });
}

// huxiFilter, huxiFilter32f: convolution with a kernel of the caller's.
template <class T, int C>
requires exists<members::filter_with_kernel<T, C>>
[[nodiscard]] status filter(source<T, C> src, view<T, C> dst, const grid<float>& kernel,
                            const std::type_identity_t<window<T, C>>& options = {}) {
  if (!detail::filled(kernel)) return status::bad_size;
  if (!detail::agree(dst, src)) return status::bad_size;
  const extent size = kernel.size;
  const point anchor = detail::anchored(options.anchor, size);
  const detail::pixel<T, C> value(options.border_value);
  return detail::windowed(
      src, dst,
      {detail::wide(size.width) - 1 - detail::wide(anchor.x), detail::wide(size.height) - 1 - detail::wide(anchor.y),
       detail::wide(anchor.x), detail::wide(anchor.y)},
      options.border, value.elements, !detail::begins_anew<members::filter_with_kernel<T, C>>,
      [&](const auto& from, const auto& to) {
        return detail::call<members::filter_with_kernel<T, C>>(detail::at(from), from.step(), detail::at(to), to.step(),
                                                               to.size(), detail::at(kernel), size, anchor);
      });
}

// huxiFilterRow: convolution with a kernel of the caller's.
template <class T, int C>
requires exists<members::filter_row<T, C>>
[[nodiscard]] status filter_row(source<T, C> src, view<T, C> dst, std::span<const std::int32_t> kernel,
                                const std::type_identity_t<divided_line_window<T, C>>& options = {}) {
  if (!detail::agree(dst, src)) return status::bad_size;
  const int size = static_cast<int>(kernel.size());
  const int anchor = detail::anchored(options.anchor, size);
  const detail::pixel<T, C> value(options.border_value);
  return detail::windowed(src, dst, {detail::wide(size) - 1 - detail::wide(anchor), 0, detail::wide(anchor), 0},
                          options.border, value.elements, !detail::begins_anew<members::filter_row<T, C>>,
                          [&](const auto& from, const auto& to) {
                            return detail::call<members::filter_row<T, C>>(
                                detail::at(from), from.step(), detail::at(to), to.step(), to.size(),
                                detail::address{kernel.data()}, size, anchor, options.divisor);
                          });
}

// huxiFilterRow, huxiFilterRow32f: convolution with a kernel of the caller's.
template <class T, int C>
requires exists<members::filter_row_with_kernel<T, C>>
[[nodiscard]] status filter_row(source<T, C> src, view<T, C> dst, std::span<const float> kernel,
                                const std::type_identity_t<line_window<T, C>>& options = {}) {
  if (!detail::agree(dst, src)) return status::bad_size;
  const int size = static_cast<int>(kernel.size());
  const int anchor = detail::anchored(options.anchor, size);
  const detail::pixel<T, C> value(options.border_value);
  return detail::windowed(src, dst, {detail::wide(size) - 1 - detail::wide(anchor), 0, detail::wide(anchor), 0},
                          options.border, value.elements, !detail::begins_anew<members::filter_row_with_kernel<T, C>>,
                          [&](const auto& from, const auto& to) {
                            return detail::call<members::filter_row_with_kernel<T, C>>(
                                detail::at(from), from.step(), detail::at(to), to.step(), to.size(),
                                detail::address{kernel.data()}, size, anchor);
                          });
}

// huxiFilterColumn: convolution with a kernel of the caller's.
template <class T, int C>
requires exists<members::filter_column<T, C>>
[[nodiscard]] status filter_column(source<T, C> src, view<T, C> dst, std::span<const std::int32_t> kernel,
                                   const std::type_identity_t<divided_line_window<T, C>>& options = {}) {
  if (!detail::agree(dst, src)) return status::bad_size;
  const int size = static_cast<int>(kernel.size());
  const int anchor = detail::anchored(options.anchor, size);
  const detail::pixel<T, C> value(options.border_value);
  return detail::windowed(src, dst, {0, detail::wide(size) - 1 - detail::wide(anchor), 0, detail::wide(anchor)},
                          options.border, value.elements, !detail::begins_anew<members::filter_column<T, C>>,
                          [&](const auto& from, const auto& to) {
                            return detail::call<members::filter_column<T, C>>(
                                detail::at(from), from.step(), detail::at(to), to.step(), to.size(),
                                detail::address{kernel.data()}, size, anchor, options.divisor);
                          });
}

// huxiFilterColumn, huxiFilterColumn32f: convolution with a kernel of the caller's.
template <class T, int C>
requires exists<members::filter_column_with_kernel<T, C>>
[[nodiscard]] status filter_column(source<T, C> src, view<T, C> dst, std::span<const float> kernel,
                                   const std::type_identity_t<line_window<T, C>>& options = {}) {
  if (!detail::agree(dst, src)) return status::bad_size;
  const int size = static_cast<int>(kernel.size());
  const int anchor = detail::anchored(options.anchor, size);
  const detail::pixel<T, C> value(options.border_value);
  return detail::windowed(src, dst, {0, detail::wide(size) - 1 - detail::wide(anchor), 0, detail::wide(anchor)},
                          options.border, value.elements,
                          !detail::begins_anew<members::filter_column_with_kernel<T, C>>,
                          [&](const auto& from, const auto& to) {
                            return detail::call<members::filter_column_with_kernel<T, C>>(
                                detail::at(from), from.step(), detail::at(to), to.step(), to.size(),
                                detail::address{kernel.data()}, size, anchor);
                          });
}

// huxiFilterPrewittVert: edges between columns (Vert) and between rows (Horiz).
template <class T, int C>
requires exists<members::filter_prewitt_vert<T, C>>
[[nodiscard]] status filter_prewitt_vert(source<T, C> src, view<T, C> dst,
                                         const std::type_identity_t<fixed_window<T, C>>& options = {}) {
  if (!detail::agree(dst, src)) return status::bad_size;
  const detail::pixel<T, C> value(options.border_value);
  return detail::windowed(src, dst, {1, 1, 1, 1}, options.border, value.elements,
                          !detail::begins_anew<members::filter_prewitt_vert<T, C>>,
                          [&](const auto& from, const auto& to) {
                            return detail::call<members::filter_prewitt_vert<T, C>>(
                                detail::at(from), from.step(), detail::at(to), to.step(), to.size());
                          });
}

// huxiFilterPrewittHoriz: edges between columns (Vert) and between rows (Horiz).
template <class T, int C>
requires exists<members::filter_prewitt_horiz<T, C>>
[[nodiscard]] status filter_prewitt_horiz(source<T, C> src, view<T, C> dst,
                                          const std::type_identity_t<fixed_window<T, C>>& options = {}) {
  if (!detail::agree(dst, src)) return status::bad_size;
  const detail::pixel<T, C> value(options.border_value);
  return detail::windowed(src, dst, {1, 1, 1, 1}, options.border, value.elements,
                          !detail::begins_anew<members::filter_prewitt_horiz<T, C>>,
                          [&](const auto& from, const auto& to) {
                            return detail::call<members::filter_prewitt_horiz<T, C>>(
                                detail::at(from), from.step(), detail::at(to), to.step(), to.size());
                          });
}

// huxiFilterSobelVert: edges between columns and between rows, those near the pixel weighted more.
template <class T, int C>
requires exists<members::filter_sobel_vert<T, C>>
[[nodiscard]] status filter_sobel_vert(source<T, C> src, view<T, C> dst,
                                       const std::type_identity_t<fixed_window<T, C>>& options = {}) {
  if (!detail::agree(dst, src)) return status::bad_size;
  const detail::pixel<T, C> value(options.border_value);
  return detail::windowed(src, dst, {1, 1, 1, 1}, options.border, value.elements,
                          !detail::begins_anew<members::filter_sobel_vert<T, C>>,
                          [&](const auto& from, const auto& to) {
                            return detail::call<members::filter_sobel_vert<T, C>>(detail::at(from), from.step(),
                                                                                  detail::at(to), to.step(), to.size());
                          });
}

// huxiFilterSobelVert: edges between columns and between rows, those near the pixel weighted more.
template <readable V, int C, class S = value_type_of<V>>
requires exists<members::filter_sobel_vert_with_mask<C, S>>
[[nodiscard]] status filter_sobel_vert(const V& src, view<std::int16_t, C> dst, mask_size mask_size,
                                       const std::type_identity_t<fixed_window<S, C>>& options = {}) {
  view<const S, C> source = src;
  if (!detail::agree(dst, source)) return status::bad_size;
  const detail::pixel<S, C> value(options.border_value);
  return detail::windowed(
      source, dst, {2, 2, 2, 2}, options.border, value.elements,
      !detail::begins_anew<members::filter_sobel_vert_with_mask<C, S>>, [&](const auto& from, const auto& to) {
        return detail::call<members::filter_sobel_vert_with_mask<C, S>>(
            detail::at(from), from.step(), detail::at(to), to.step(), to.size(), static_cast<int>(mask_size));
      });
}

// huxiFilterSobelHoriz: edges between columns and between rows, those near the pixel weighted more.
template <class T, int C>
requires exists<members::filter_sobel_horiz<T, C>>
[[nodiscard]] status filter_sobel_horiz(source<T, C> src, view<T, C> dst,
                                        const std::type_identity_t<fixed_window<T, C>>& options = {}) {
  if (!detail::agree(dst, src)) return status::bad_size;
  const detail::pixel<T, C> value(options.border_value);
  return detail::windowed(src, dst, {1, 1, 1, 1}, options.border, value.elements,
                          !detail::begins_anew<members::filter_sobel_horiz<T, C>>,
                          [&](const auto& from, const auto& to) {
                            return detail::call<members::filter_sobel_horiz<T, C>>(
                                detail::at(from), from.step(), detail::at(to), to.step(), to.size());
                          });
}

// huxiFilterSobelHoriz: edges between columns and between rows, those near the pixel weighted more.
template <readable V, int C, class S = value_type_of<V>>
requires exists<members::filter_sobel_horiz_with_mask<C, S>>
[[nodiscard]] status filter_sobel_horiz(const V& src, view<std::int16_t, C> dst, mask_size mask_size,
                                        const std::type_identity_t<fixed_window<S, C>>& options = {}) {
  view<const S, C> source = src;
  if (!detail::agree(dst, source)) return status::bad_size;
  const detail::pixel<S, C> value(options.border_value);
  return detail::windowed(
      source, dst, {2, 2, 2, 2}, options.border, value.elements,
      !detail::begins_anew<members::filter_sobel_horiz_with_mask<C, S>>, [&](const auto& from, const auto& to) {
        return detail::call<members::filter_sobel_horiz_with_mask<C, S>>(
            detail::at(from), from.step(), detail::at(to), to.step(), to.size(), static_cast<int>(mask_size));
      });
}

// huxiFilterSobelVertMask: edges between columns and between rows, those near the pixel weighted more.
template <class T, int C>
requires exists<members::filter_sobel_vert_mask<T, C>>
[[nodiscard]] status filter_sobel_vert_mask(source<T, C> src, view<T, C> dst, mask_size mask_size,
                                            const std::type_identity_t<fixed_window<T, C>>& options = {}) {
  if (!detail::agree(dst, src)) return status::bad_size;
  const detail::pixel<T, C> value(options.border_value);
  return detail::windowed(
      src, dst, {2, 2, 2, 2}, options.border, value.elements,
      !detail::begins_anew<members::filter_sobel_vert_mask<T, C>>, [&](const auto& from, const auto& to) {
        return detail::call<members::filter_sobel_vert_mask<T, C>>(detail::at(from), from.step(), detail::at(to),
                                                                   to.step(), to.size(), static_cast<int>(mask_size));
      });
}

// huxiFilterSobelHorizMask: edges between columns and between rows, those near the pixel weighted more.
template <class T, int C>
requires exists<members::filter_sobel_horiz_mask<T, C>>
[[nodiscard]] status filter_sobel_horiz_mask(source<T, C> src, view<T, C> dst, mask_size mask_size,
                                             const std::type_identity_t<fixed_window<T, C>>& options = {}) {
  if (!detail::agree(dst, src)) return status::bad_size;
  const detail::pixel<T, C> value(options.border_value);
  return detail::windowed(
      src, dst, {2, 2, 2, 2}, options.border, value.elements,
      !detail::begins_anew<members::filter_sobel_horiz_mask<T, C>>, [&](const auto& from, const auto& to) {
        return detail::call<members::filter_sobel_horiz_mask<T, C>>(detail::at(from), from.step(), detail::at(to),
                                                                    to.step(), to.size(), static_cast<int>(mask_size));
      });
}

// huxiFilterSobelVertSecond: second derivatives across columns, across rows, along the diagonals.
template <readable V, class T, int C, class S = value_type_of<V>>
requires exists<members::filter_sobel_vert_second<T, C, S>>
[[nodiscard]] status filter_sobel_vert_second(const V& src, view<T, C> dst, mask_size mask_size,
                                              const std::type_identity_t<fixed_window<S, C>>& options = {}) {
  view<const S, C> source = src;
  if (!detail::agree(dst, source)) return status::bad_size;
  const detail::pixel<S, C> value(options.border_value);
  return detail::windowed(
      source, dst, {2, 2, 2, 2}, options.border, value.elements,
      !detail::begins_anew<members::filter_sobel_vert_second<T, C, S>>, [&](const auto& from, const auto& to) {
        return detail::call<members::filter_sobel_vert_second<T, C, S>>(
            detail::at(from), from.step(), detail::at(to), to.step(), to.size(), static_cast<int>(mask_size));
      });
}

// huxiFilterSobelHorizSecond: second derivatives across columns, across rows, along the diagonals.
template <readable V, class T, int C, class S = value_type_of<V>>
requires exists<members::filter_sobel_horiz_second<T, C, S>>
[[nodiscard]] status filter_sobel_horiz_second(const V& src, view<T, C> dst, mask_size mask_size,
                                               const std::type_identity_t<fixed_window<S, C>>& options = {}) {
  view<const S, C> source = src;
  if (!detail::agree(dst, source)) return status::bad_size;
  const detail::pixel<S, C> value(options.border_value);
  return detail::windowed(
      source, dst, {2, 2, 2, 2}, options.border, value.elements,
      !detail::begins_anew<members::filter_sobel_horiz_second<T, C, S>>, [&](const auto& from, const auto& to) {
        return detail::call<members::filter_sobel_horiz_second<T, C, S>>(
            detail::at(from), from.step(), detail::at(to), to.step(), to.size(), static_cast<int>(mask_size));
      });
}

// huxiFilterSobelCross: second derivatives across columns, across rows, along the diagonals.
template <readable V, class T, int C, class S = value_type_of<V>>
requires exists<members::filter_sobel_cross<T, C, S>>
[[nodiscard]] status filter_sobel_cross(const V& src, view<T, C> dst, mask_size mask_size,
                                        const std::type_identity_t<fixed_window<S, C>>& options = {}) {
  view<const S, C> source = src;
  if (!detail::agree(dst, source)) return status::bad_size;
  const detail::pixel<S, C> value(options.border_value);
  return detail::windowed(
      source, dst, {2, 2, 2, 2}, options.border, value.elements,
      !detail::begins_anew<members::filter_sobel_cross<T, C, S>>, [&](const auto& from, const auto& to) {
        return detail::call<members::filter_sobel_cross<T, C, S>>(detail::at(from), from.step(), detail::at(to),
                                                                  to.step(), to.size(), static_cast<int>(mask_size));
      });
}

// huxiFilterScharrVert: edges with a response that hardly depends on their angle.
template <readable V, class T, int C, class S = value_type_of<V>>
requires exists<members::filter_scharr_vert<T, C, S>>
[[nodiscard]] status filter_scharr_vert(const V& src, view<T, C> dst,
                                        const std::type_identity_t<fixed_window<S, C>>& options = {}) {
  view<const S, C> source = src;
  if (!detail::agree(dst, source)) return status::bad_size;
  const detail::pixel<S, C> value(options.border_value);
  return detail::windowed(source, dst, {1, 1, 1, 1}, options.border, value.elements,
                          !detail::begins_anew<members::filter_scharr_vert<T, C, S>>,
                          [&](const auto& from, const auto& to) {
                            return detail::call<members::filter_scharr_vert<T, C, S>>(
                                detail::at(from), from.step(), detail::at(to), to.step(), to.size());
                          });
}

// huxiFilterScharrHoriz: edges with a response that hardly depends on their angle.
template <readable V, class T, int C, class S = value_type_of<V>>
requires exists<members::filter_scharr_horiz<T, C, S>>
[[nodiscard]] status filter_scharr_horiz(const V& src, view<T, C> dst,
                                         const std::type_identity_t<fixed_window<S, C>>& options = {}) {
  view<const S, C> source = src;
  if (!detail::agree(dst, source)) return status::bad_size;
  const detail::pixel<S, C> value(options.border_value);
  return detail::windowed(source, dst, {1, 1, 1, 1}, options.border, value.elements,
                          !detail::begins_anew<members::filter_scharr_horiz<T, C, S>>,
                          [&](const auto& from, const auto& to) {
                            return detail::call<members::filter_scharr_horiz<T, C, S>>(
                                detail::at(from), from.step(), detail::at(to), to.step(), to.size());
                          });
}

// huxiFilterRobertsDown: the pixel less its neighbour in the row above, on the left (Down) or on the right (Up).
template <class T, int C>
requires exists<members::filter_roberts_down<T, C>>
[[nodiscard]] status filter_roberts_down(source<T, C> src, view<T, C> dst,
                                         const std::type_identity_t<fixed_window<T, C>>& options = {}) {
  if (!detail::agree(dst, src)) return status::bad_size;
  const detail::pixel<T, C> value(options.border_value);
  return detail::windowed(src, dst, {1, 1, 1, 1}, options.border, value.elements,
                          !detail::begins_anew<members::filter_roberts_down<T, C>>,
                          [&](const auto& from, const auto& to) {
                            return detail::call<members::filter_roberts_down<T, C>>(
                                detail::at(from), from.step(), detail::at(to), to.step(), to.size());
                          });
}

// huxiFilterRobertsUp: the pixel less its neighbour in the row above, on the left (Down) or on the right (Up).
template <class T, int C>
requires exists<members::filter_roberts_up<T, C>>
[[nodiscard]] status filter_roberts_up(source<T, C> src, view<T, C> dst,
                                       const std::type_identity_t<fixed_window<T, C>>& options = {}) {
  if (!detail::agree(dst, src)) return status::bad_size;
  const detail::pixel<T, C> value(options.border_value);
  return detail::windowed(src, dst, {1, 1, 1, 1}, options.border, value.elements,
                          !detail::begins_anew<members::filter_roberts_up<T, C>>,
                          [&](const auto& from, const auto& to) {
                            return detail::call<members::filter_roberts_up<T, C>>(detail::at(from), from.step(),
                                                                                  detail::at(to), to.step(), to.size());
                          });
}

// huxiFilterLaplace: how far a pixel is above its surroundings.
template <readable V, class T, int C, class S = value_type_of<V>>
requires exists<members::filter_laplace<T, C, S>>
[[nodiscard]] status filter_laplace(const V& src, view<T, C> dst, mask_size mask_size,
                                    const std::type_identity_t<fixed_window<S, C>>& options = {}) {
  view<const S, C> source = src;
  if (!detail::agree(dst, source)) return status::bad_size;
  const detail::pixel<S, C> value(options.border_value);
  return detail::windowed(
      source, dst, {2, 2, 2, 2}, options.border, value.elements, !detail::begins_anew<members::filter_laplace<T, C, S>>,
      [&](const auto& from, const auto& to) {
        return detail::call<members::filter_laplace<T, C, S>>(detail::at(from), from.step(), detail::at(to), to.step(),
                                                              to.size(), static_cast<int>(mask_size));
      });
}

// huxiFilterGauss: the mean of the window, weighted by distance.
template <class T, int C>
requires exists<members::filter_gauss<T, C>>
[[nodiscard]] status filter_gauss(source<T, C> src, view<T, C> dst, mask_size mask_size,
                                  const std::type_identity_t<fixed_window<T, C>>& options = {}) {
  if (!detail::agree(dst, src)) return status::bad_size;
  const detail::pixel<T, C> value(options.border_value);
  return detail::windowed(src, dst, {2, 2, 2, 2}, options.border, value.elements,
                          !detail::begins_anew<members::filter_gauss<T, C>>, [&](const auto& from, const auto& to) {
                            return detail::call<members::filter_gauss<T, C>>(detail::at(from), from.step(),
                                                                             detail::at(to), to.step(), to.size(),
                                                                             static_cast<int>(mask_size));
                          });
}

// huxiFilterLowpass: the mean of the window.
template <class T, int C>
requires exists<members::filter_lowpass<T, C>>
[[nodiscard]] status filter_lowpass(source<T, C> src, view<T, C> dst, mask_size mask_size,
                                    const std::type_identity_t<fixed_window<T, C>>& options = {}) {
  if (!detail::agree(dst, src)) return status::bad_size;
  const detail::pixel<T, C> value(options.border_value);
  return detail::windowed(src, dst, {2, 2, 2, 2}, options.border, value.elements,
                          !detail::begins_anew<members::filter_lowpass<T, C>>, [&](const auto& from, const auto& to) {
                            return detail::call<members::filter_lowpass<T, C>>(detail::at(from), from.step(),
                                                                               detail::at(to), to.step(), to.size(),
                                                                               static_cast<int>(mask_size));
                          });
}

// huxiFilterHipass: the pixel, times the number of pixels in the window, less their sum.
template <class T, int C>
requires exists<members::filter_hipass<T, C>>
[[nodiscard]] status filter_hipass(source<T, C> src, view<T, C> dst, mask_size mask_size,
                                   const std::type_identity_t<fixed_window<T, C>>& options = {}) {
  if (!detail::agree(dst, src)) return status::bad_size;
  const detail::pixel<T, C> value(options.border_value);
  return detail::windowed(src, dst, {2, 2, 2, 2}, options.border, value.elements,
                          !detail::begins_anew<members::filter_hipass<T, C>>, [&](const auto& from, const auto& to) {
                            return detail::call<members::filter_hipass<T, C>>(detail::at(from), from.step(),
                                                                              detail::at(to), to.step(), to.size(),
                                                                              static_cast<int>(mask_size));
                          });
}

// huxiFilterSharpen: the pixel plus an eighth of its 3 by 3 Laplace filter.
template <class T, int C>
requires exists<members::filter_sharpen<T, C>>
[[nodiscard]] status filter_sharpen(source<T, C> src, view<T, C> dst,
                                    const std::type_identity_t<fixed_window<T, C>>& options = {}) {
  if (!detail::agree(dst, src)) return status::bad_size;
  const detail::pixel<T, C> value(options.border_value);
  return detail::windowed(src, dst, {1, 1, 1, 1}, options.border, value.elements,
                          !detail::begins_anew<members::filter_sharpen<T, C>>, [&](const auto& from, const auto& to) {
                            return detail::call<members::filter_sharpen<T, C>>(detail::at(from), from.step(),
                                                                               detail::at(to), to.step(), to.size());
                          });
}

// huxiFilterMedian: the median of the maskSize.width by maskSize.height values of each channel.
template <class T, int C>
requires exists<members::filter_median<T, C>>
[[nodiscard]] status filter_median(source<T, C> src, view<T, C> dst, extent mask_size,
                                   const std::type_identity_t<window<T, C>>& options = {}) {
  if (!detail::agree(dst, src)) return status::bad_size;
  const point anchor = detail::anchored(options.anchor, mask_size);
  const detail::pixel<T, C> value(options.border_value);
  return detail::windowed(
      src, dst,
      {detail::wide(anchor.x), detail::wide(anchor.y), detail::wide(mask_size.width) - 1 - detail::wide(anchor.x),
       detail::wide(mask_size.height) - 1 - detail::wide(anchor.y)},
      options.border, value.elements, !detail::begins_anew<members::filter_median<T, C>>,
      [&](const auto& from, const auto& to) {
        return detail::call<members::filter_median<T, C>>(detail::at(from), from.step(), detail::at(to), to.step(),
                                                          to.size(), mask_size, anchor);
      });
}

// huxiFilterMedianHoriz: the median of a few neighbours in a row, in a column, or in both.
template <class T, int C>
requires exists<members::filter_median_horiz<T, C>>
[[nodiscard]] status filter_median_horiz(source<T, C> src, view<T, C> dst, mask_size mask_size,
                                         const std::type_identity_t<fixed_window<T, C>>& options = {}) {
  if (!detail::agree(dst, src)) return status::bad_size;
  const detail::pixel<T, C> value(options.border_value);
  return detail::windowed(
      src, dst, {2, 2, 2, 2}, options.border, value.elements, !detail::begins_anew<members::filter_median_horiz<T, C>>,
      [&](const auto& from, const auto& to) {
        return detail::call<members::filter_median_horiz<T, C>>(detail::at(from), from.step(), detail::at(to),
                                                                to.step(), to.size(), static_cast<int>(mask_size));
      });
}

// huxiFilterMedianVert: the median of a few neighbours in a row, in a column, or in both.
template <class T, int C>
requires exists<members::filter_median_vert<T, C>>
[[nodiscard]] status filter_median_vert(source<T, C> src, view<T, C> dst, mask_size mask_size,
                                        const std::type_identity_t<fixed_window<T, C>>& options = {}) {
  if (!detail::agree(dst, src)) return status::bad_size;
  const detail::pixel<T, C> value(options.border_value);
  return detail::windowed(
      src, dst, {2, 2, 2, 2}, options.border, value.elements, !detail::begins_anew<members::filter_median_vert<T, C>>,
      [&](const auto& from, const auto& to) {
        return detail::call<members::filter_median_vert<T, C>>(detail::at(from), from.step(), detail::at(to), to.step(),
                                                               to.size(), static_cast<int>(mask_size));
      });
}

// huxiFilterMedianCross: the median of a few neighbours in a row, in a column, or in both.
template <class T, int C>
requires exists<members::filter_median_cross<T, C>>
[[nodiscard]] status filter_median_cross(source<T, C> src, view<T, C> dst, mask_size mask_size,
                                         const std::type_identity_t<fixed_window<T, C>>& options = {}) {
  if (!detail::agree(dst, src)) return status::bad_size;
  const detail::pixel<T, C> value(options.border_value);
  return detail::windowed(
      src, dst, {2, 2, 2, 2}, options.border, value.elements, !detail::begins_anew<members::filter_median_cross<T, C>>,
      [&](const auto& from, const auto& to) {
        return detail::call<members::filter_median_cross<T, C>>(detail::at(from), from.step(), detail::at(to),
                                                                to.step(), to.size(), static_cast<int>(mask_size));
      });
}

// huxiFilterMedianColor: of the pixels around it, the one whose colour is the nearest to all others.
template <class T, int C>
requires exists<members::filter_median_color<T, C>>
[[nodiscard]] status filter_median_color(source<T, C> src, view<T, C> dst, mask_size mask_size,
                                         const std::type_identity_t<fixed_window<T, C>>& options = {}) {
  if (!detail::agree(dst, src)) return status::bad_size;
  const detail::pixel<T, C> value(options.border_value);
  return detail::windowed(
      src, dst, {2, 2, 2, 2}, options.border, value.elements, !detail::begins_anew<members::filter_median_color<T, C>>,
      [&](const auto& from, const auto& to) {
        return detail::call<members::filter_median_color<T, C>>(detail::at(from), from.step(), detail::at(to),
                                                                to.step(), to.size(), static_cast<int>(mask_size));
      });
}

// huxiFilterMin: the least or the greatest value of each channel over the mask.
template <class T, int C>
requires exists<members::filter_min<T, C>>
[[nodiscard]] status filter_min(source<T, C> src, view<T, C> dst, extent mask_size,
                                const std::type_identity_t<window<T, C>>& options = {}) {
  if (!detail::agree(dst, src)) return status::bad_size;
  const point anchor = detail::anchored(options.anchor, mask_size);
  const detail::pixel<T, C> value(options.border_value);
  return detail::windowed(
      src, dst,
      {detail::wide(anchor.x), detail::wide(anchor.y), detail::wide(mask_size.width) - 1 - detail::wide(anchor.x),
       detail::wide(mask_size.height) - 1 - detail::wide(anchor.y)},
      options.border, value.elements, !detail::begins_anew<members::filter_min<T, C>>,
      [&](const auto& from, const auto& to) {
        return detail::call<members::filter_min<T, C>>(detail::at(from), from.step(), detail::at(to), to.step(),
                                                       to.size(), mask_size, anchor);
      });
}

// huxiFilterMax: the least or the greatest value of each channel over the mask.
template <class T, int C>
requires exists<members::filter_max<T, C>>
[[nodiscard]] status filter_max(source<T, C> src, view<T, C> dst, extent mask_size,
                                const std::type_identity_t<window<T, C>>& options = {}) {
  if (!detail::agree(dst, src)) return status::bad_size;
  const point anchor = detail::anchored(options.anchor, mask_size);
  const detail::pixel<T, C> value(options.border_value);
  return detail::windowed(
      src, dst,
      {detail::wide(anchor.x), detail::wide(anchor.y), detail::wide(mask_size.width) - 1 - detail::wide(anchor.x),
       detail::wide(mask_size.height) - 1 - detail::wide(anchor.y)},
      options.border, value.elements, !detail::begins_anew<members::filter_max<T, C>>,
      [&](const auto& from, const auto& to) {
        return detail::call<members::filter_max<T, C>>(detail::at(from), from.step(), detail::at(to), to.step(),
                                                       to.size(), mask_size, anchor);
      });
}

// huxiErode3x3: the least (Erode3x3) or the greatest value of each channel over the 9 pixels around each pixel.
template <class T, int C>
requires exists<members::erode3x3<T, C>>
[[nodiscard]] status erode3x3(source<T, C> src, view<T, C> dst,
                              const std::type_identity_t<fixed_window<T, C>>& options = {}) {
  if (!detail::agree(dst, src)) return status::bad_size;
  if constexpr (exists<members::erode3x3_in_place<T, C>>) {
    if (options.border == border::surroundings && detail::same(src, dst))
      return detail::call<members::erode3x3_in_place<T, C>>(detail::at(dst), dst.step(), dst.size());
  }
  const detail::pixel<T, C> value(options.border_value);
  return detail::windowed(src, dst, {1, 1, 1, 1}, options.border, value.elements,
                          !detail::begins_anew<members::erode3x3<T, C>>, [&](const auto& from, const auto& to) {
                            return detail::call<members::erode3x3<T, C>>(detail::at(from), from.step(), detail::at(to),
                                                                         to.step(), to.size());
                          });
}

// huxiDilate3x3: the least (Erode3x3) or the greatest value of each channel over the 9 pixels around each pixel.
template <class T, int C>
requires exists<members::dilate3x3<T, C>>
[[nodiscard]] status dilate3x3(source<T, C> src, view<T, C> dst,
                               const std::type_identity_t<fixed_window<T, C>>& options = {}) {
  if (!detail::agree(dst, src)) return status::bad_size;
  if constexpr (exists<members::dilate3x3_in_place<T, C>>) {
    if (options.border == border::surroundings && detail::same(src, dst))
      return detail::call<members::dilate3x3_in_place<T, C>>(detail::at(dst), dst.step(), dst.size());
  }
  const detail::pixel<T, C> value(options.border_value);
  return detail::windowed(src, dst, {1, 1, 1, 1}, options.border, value.elements,
                          !detail::begins_anew<members::dilate3x3<T, C>>, [&](const auto& from, const auto& to) {
                            return detail::call<members::dilate3x3<T, C>>(detail::at(from), from.step(), detail::at(to),
                                                                          to.step(), to.size());
                          });
}

// huxiErode: the least (Erode) or the greatest value of each channel over the cells that a structuring element
// selects.
template <class T, int C>
requires exists<members::erode<T, C>>
[[nodiscard]] status erode(source<T, C> src, view<T, C> dst, const grid<std::uint8_t>& footprint,
                           const std::type_identity_t<window<T, C>>& options = {}) {
  if (!detail::filled(footprint)) return status::bad_size;
  if (!detail::agree(dst, src)) return status::bad_size;
  const extent mask_size = footprint.size;
  const point anchor = detail::anchored(options.anchor, mask_size);
  if constexpr (exists<members::erode_in_place<T, C>>) {
    if (options.border == border::surroundings && detail::same(src, dst))
      return detail::call<members::erode_in_place<T, C>>(detail::at(dst), dst.step(), dst.size(), detail::at(footprint),
                                                         mask_size, anchor);
  }
  const detail::pixel<T, C> value(options.border_value);
  return detail::windowed(
      src, dst,
      {detail::wide(anchor.x), detail::wide(anchor.y), detail::wide(mask_size.width) - 1 - detail::wide(anchor.x),
       detail::wide(mask_size.height) - 1 - detail::wide(anchor.y)},
      options.border, value.elements, !detail::begins_anew<members::erode<T, C>>,
      [&](const auto& from, const auto& to) {
        return detail::call<members::erode<T, C>>(detail::at(from), from.step(), detail::at(to), to.step(), to.size(),
                                                  detail::at(footprint), mask_size, anchor);
      });
}

// huxiDilate: the least (Erode) or the greatest value of each channel over the cells that a structuring element
// selects.
template <class T, int C>
requires exists<members::dilate<T, C>>
[[nodiscard]] status dilate(source<T, C> src, view<T, C> dst, const grid<std::uint8_t>& footprint,
                            const std::type_identity_t<window<T, C>>& options = {}) {
  if (!detail::filled(footprint)) return status::bad_size;
  if (!detail::agree(dst, src)) return status::bad_size;
  const extent mask_size = footprint.size;
  const point anchor = detail::anchored(options.anchor, mask_size);
  if constexpr (exists<members::dilate_in_place<T, C>>) {
    if (options.border == border::surroundings && detail::same(src, dst))
      return detail::call<members::dilate_in_place<T, C>>(detail::at(dst), dst.step(), dst.size(),
                                                          detail::at(footprint), mask_size, anchor);
  }
  const detail::pixel<T, C> value(options.border_value);
  return detail::windowed(
      src, dst,
      {detail::wide(anchor.x), detail::wide(anchor.y), detail::wide(mask_size.width) - 1 - detail::wide(anchor.x),
       detail::wide(mask_size.height) - 1 - detail::wide(anchor.y)},
      options.border, value.elements, !detail::begins_anew<members::dilate<T, C>>,
      [&](const auto& from, const auto& to) {
        return detail::call<members::dilate<T, C>>(detail::at(from), from.step(), detail::at(to), to.step(), to.size(),
                                                   detail::at(footprint), mask_size, anchor);
      });
}

// huxiFilterWiener: removes noise by drawing each pixel towards the mean of its window.
template <class T, int C>
requires exists<members::filter_wiener<T, C>>
[[nodiscard]] status filter_wiener(source<T, C> src, view<T, C> dst, extent mask_size, per_channel<float, C>& noise,
                                   const std::type_identity_t<window<T, C>>& options = {}) {
  if (!detail::agree(dst, src)) return status::bad_size;
  const point anchor = detail::anchored(options.anchor, mask_size);
  int bytes = 0;
  if (HuxStatus s = huxiFilterWienerGetBufferSize(
          extent{static_cast<int>(detail::wide(dst.width())), static_cast<int>(detail::wide(dst.height()))},
          extent{static_cast<int>(detail::wide(mask_size.width)), static_cast<int>(detail::wide(mask_size.height))},
          static_cast<int>(detail::channels_of(C)), &bytes))
    return static_cast<status>(s);
  const detail::memory buffer(static_cast<std::size_t>(bytes));
  if (!buffer) return status::no_mem;
  const detail::pixel<T, C> value(options.border_value);
  return detail::windowed(
      src, dst,
      {detail::wide(mask_size.width) - 1 - detail::wide(anchor.x),
       detail::wide(mask_size.height) - 1 - detail::wide(anchor.y), detail::wide(anchor.x), detail::wide(anchor.y)},
      options.border, value.elements, false, [&](const auto& from, const auto& to) {
        return detail::call<members::filter_wiener<T, C>>(detail::at(from), from.step(), detail::at(to), to.step(),
                                                          to.size(), mask_size, anchor, detail::at(noise), buffer.at());
      });
}

// huxiConvFull: the convolution of two images, and that part of it where the smaller lies within the larger.
template <class T, int C>
requires exists<members::conv_full<T, C>>
[[nodiscard]] status conv_full(source<T, C> a, source<T, C> b, view<T, C> dst,
                               const options_beyond<members::conv_full<T, C>, 8, divided>& options = {}) {
  if (!detail::of_size(dst.size(), detail::wide(a.width()) + detail::wide(b.width()) - 1,
                       detail::wide(a.height()) + detail::wide(b.height()) - 1))
    return status::bad_size;
  return detail::call_with<members::conv_full<T, C>>(detail::tail(options), detail::at(a), a.step(), a.size(),
                                                     detail::at(b), b.step(), b.size(), detail::at(dst), dst.step());
}

// huxiConvValid: the convolution of two images, and that part of it where the smaller lies within the larger.
template <class T, int C>
requires exists<members::conv_valid<T, C>>
[[nodiscard]] status conv_valid(source<T, C> a, source<T, C> b, view<T, C> dst,
                                const options_beyond<members::conv_valid<T, C>, 8, divided>& options = {}) {
  if (!detail::of_size(dst.size(),
                       std::max(detail::wide(a.width()) - detail::wide(b.width()),
                                detail::wide(b.width()) - detail::wide(a.width())) +
                           1,
                       std::max(detail::wide(a.height()) - detail::wide(b.height()),
                                detail::wide(b.height()) - detail::wide(a.height())) +
                           1))
    return status::bad_size;
  return detail::call_with<members::conv_valid<T, C>>(detail::tail(options), detail::at(a), a.step(), a.size(),
                                                      detail::at(b), b.step(), b.size(), detail::at(dst), dst.step());
}

// huxiWinBartlett: the image times a window that falls off towards the edges.
template <class T, int C>
requires exists<members::win_bartlett<T, C>>
[[nodiscard]] status win_bartlett(source<T, C> src, view<T, C> dst) {
  if (!detail::agree(dst, src)) return status::bad_size;
  if constexpr (exists<members::win_bartlett_in_place<T, C>>) {
    if (detail::same(src, dst))
      return detail::call<members::win_bartlett_in_place<T, C>>(detail::at(dst), dst.step(), dst.size());
  }
  return detail::call<members::win_bartlett<T, C>>(detail::at(src), src.step(), detail::at(dst), dst.step(),
                                                   dst.size());
}

// huxiWinBartlettSep: the image times a window that falls off towards the edges.
template <class T, int C>
requires exists<members::win_bartlett_sep<T, C>>
[[nodiscard]] status win_bartlett_sep(source<T, C> src, view<T, C> dst) {
  if (!detail::agree(dst, src)) return status::bad_size;
  if constexpr (exists<members::win_bartlett_sep_in_place<T, C>>) {
    if (detail::same(src, dst))
      return detail::call<members::win_bartlett_sep_in_place<T, C>>(detail::at(dst), dst.step(), dst.size());
  }
  return detail::call<members::win_bartlett_sep<T, C>>(detail::at(src), src.step(), detail::at(dst), dst.step(),
                                                       dst.size());
}

// huxiWinHamming: the image times a window that falls off towards the edges.
template <class T, int C>
requires exists<members::win_hamming<T, C>>
[[nodiscard]] status win_hamming(source<T, C> src, view<T, C> dst) {
  if (!detail::agree(dst, src)) return status::bad_size;
  if constexpr (exists<members::win_hamming_in_place<T, C>>) {
    if (detail::same(src, dst))
      return detail::call<members::win_hamming_in_place<T, C>>(detail::at(dst), dst.step(), dst.size());
  }
  return detail::call<members::win_hamming<T, C>>(detail::at(src), src.step(), detail::at(dst), dst.step(), dst.size());
}

// huxiWinHammingSep: the image times a window that falls off towards the edges.
template <class T, int C>
requires exists<members::win_hamming_sep<T, C>>
[[nodiscard]] status win_hamming_sep(source<T, C> src, view<T, C> dst) {
  if (!detail::agree(dst, src)) return status::bad_size;
  if constexpr (exists<members::win_hamming_sep_in_place<T, C>>) {
    if (detail::same(src, dst))
      return detail::call<members::win_hamming_sep_in_place<T, C>>(detail::at(dst), dst.step(), dst.size());
  }
  return detail::call<members::win_hamming_sep<T, C>>(detail::at(src), src.step(), detail::at(dst), dst.step(),
                                                      dst.size());
}

}  // namespace nothrow

template <class T, int C>
requires exists<members::filter_box<T, C>>
status filter_box(source<T, C> src, view<T, C> dst, extent mask_size,
                  const std::type_identity_t<window<T, C>>& options = {}) {
  return detail::checked(nothrow::filter_box(src, dst, mask_size, options), "filter_box");
}

template <readable V, int C, class S = value_type_of<V>>
requires exists<members::sum_window_row<C, S>>
status sum_window_row(const V& src, view<float, C> dst, int mask_size,
                      const std::type_identity_t<line_window<S, C>>& options = {}) {
  return detail::checked(nothrow::sum_window_row(src, dst, mask_size, options), "sum_window_row");
}

template <readable V, int C, class S = value_type_of<V>>
requires exists<members::sum_window_column<C, S>>
status sum_window_column(const V& src, view<float, C> dst, int mask_size,
                         const std::type_identity_t<line_window<S, C>>& options = {}) {
  return detail::checked(nothrow::sum_window_column(src, dst, mask_size, options), "sum_window_column");
}

template <class T, int C>
requires exists<members::filter<T, C>>
status filter(source<T, C> src, view<T, C> dst, const grid<std::int32_t>& kernel,
              const std::type_identity_t<divided_window<T, C>>& options = {}) {
  return detail::checked(nothrow::filter(src, dst, kernel, options), "filter");
}

template <class T, int C>
requires exists<members::filter_with_kernel<T, C>>
status filter(source<T, C> src, view<T, C> dst, const grid<float>& kernel,
              const std::type_identity_t<window<T, C>>& options = {}) {
  return detail::checked(nothrow::filter(src, dst, kernel, options), "filter");
}

template <class T, int C>
requires exists<members::filter_row<T, C>>
status filter_row(source<T, C> src, view<T, C> dst, std::span<const std::int32_t> kernel,
                  const std::type_identity_t<divided_line_window<T, C>>& options = {}) {
  return detail::checked(nothrow::filter_row(src, dst, kernel, options), "filter_row");
}

template <class T, int C>
requires exists<members::filter_row_with_kernel<T, C>>
status filter_row(source<T, C> src, view<T, C> dst, std::span<const float> kernel,
                  const std::type_identity_t<line_window<T, C>>& options = {}) {
  return detail::checked(nothrow::filter_row(src, dst, kernel, options), "filter_row");
}

template <class T, int C>
requires exists<members::filter_column<T, C>>
status filter_column(source<T, C> src, view<T, C> dst, std::span<const std::int32_t> kernel,
                     const std::type_identity_t<divided_line_window<T, C>>& options = {}) {
  return detail::checked(nothrow::filter_column(src, dst, kernel, options), "filter_column");
}

template <class T, int C>
requires exists<members::filter_column_with_kernel<T, C>>
status filter_column(source<T, C> src, view<T, C> dst, std::span<const float> kernel,
                     const std::type_identity_t<line_window<T, C>>& options = {}) {
  return detail::checked(nothrow::filter_column(src, dst, kernel, options), "filter_column");
}

template <class T, int C>
requires exists<members::filter_prewitt_vert<T, C>>
status filter_prewitt_vert(source<T, C> src, view<T, C> dst,
                           const std::type_identity_t<fixed_window<T, C>>& options = {}) {
  return detail::checked(nothrow::filter_prewitt_vert(src, dst, options), "filter_prewitt_vert");
}

template <class T, int C>
requires exists<members::filter_prewitt_horiz<T, C>>
status filter_prewitt_horiz(source<T, C> src, view<T, C> dst,
                            const std::type_identity_t<fixed_window<T, C>>& options = {}) {
  return detail::checked(nothrow::filter_prewitt_horiz(src, dst, options), "filter_prewitt_horiz");
}

template <class T, int C>
requires exists<members::filter_sobel_vert<T, C>>
status filter_sobel_vert(source<T, C> src, view<T, C> dst,
                         const std::type_identity_t<fixed_window<T, C>>& options = {}) {
  return detail::checked(nothrow::filter_sobel_vert(src, dst, options), "filter_sobel_vert");
}

template <readable V, int C, class S = value_type_of<V>>
requires exists<members::filter_sobel_vert_with_mask<C, S>>
status filter_sobel_vert(const V& src, view<std::int16_t, C> dst, mask_size mask_size,
                         const std::type_identity_t<fixed_window<S, C>>& options = {}) {
  return detail::checked(nothrow::filter_sobel_vert(src, dst, mask_size, options), "filter_sobel_vert");
}

template <class T, int C>
requires exists<members::filter_sobel_horiz<T, C>>
status filter_sobel_horiz(source<T, C> src, view<T, C> dst,
                          const std::type_identity_t<fixed_window<T, C>>& options = {}) {
  return detail::checked(nothrow::filter_sobel_horiz(src, dst, options), "filter_sobel_horiz");
}

template <readable V, int C, class S = value_type_of<V>>
requires exists<members::filter_sobel_horiz_with_mask<C, S>>
status filter_sobel_horiz(const V& src, view<std::int16_t, C> dst, mask_size mask_size,
                          const std::type_identity_t<fixed_window<S, C>>& options = {}) {
  return detail::checked(nothrow::filter_sobel_horiz(src, dst, mask_size, options), "filter_sobel_horiz");
}

template <class T, int C>
requires exists<members::filter_sobel_vert_mask<T, C>>
status filter_sobel_vert_mask(source<T, C> src, view<T, C> dst, mask_size mask_size,
                              const std::type_identity_t<fixed_window<T, C>>& options = {}) {
  return detail::checked(nothrow::filter_sobel_vert_mask(src, dst, mask_size, options), "filter_sobel_vert_mask");
}

template <class T, int C>
requires exists<members::filter_sobel_horiz_mask<T, C>>
status filter_sobel_horiz_mask(source<T, C> src, view<T, C> dst, mask_size mask_size,
                               const std::type_identity_t<fixed_window<T, C>>& options = {}) {
  return detail::checked(nothrow::filter_sobel_horiz_mask(src, dst, mask_size, options), "filter_sobel_horiz_mask");
}

template <readable V, class T, int C, class S = value_type_of<V>>
requires exists<members::filter_sobel_vert_second<T, C, S>>
status filter_sobel_vert_second(const V& src, view<T, C> dst, mask_size mask_size,
                                const std::type_identity_t<fixed_window<S, C>>& options = {}) {
  return detail::checked(nothrow::filter_sobel_vert_second(src, dst, mask_size, options), "filter_sobel_vert_second");
}

template <readable V, class T, int C, class S = value_type_of<V>>
requires exists<members::filter_sobel_horiz_second<T, C, S>>
status filter_sobel_horiz_second(const V& src, view<T, C> dst, mask_size mask_size,
                                 const std::type_identity_t<fixed_window<S, C>>& options = {}) {
  return detail::checked(nothrow::filter_sobel_horiz_second(src, dst, mask_size, options), "filter_sobel_horiz_second");
}

template <readable V, class T, int C, class S = value_type_of<V>>
requires exists<members::filter_sobel_cross<T, C, S>>
status filter_sobel_cross(const V& src, view<T, C> dst, mask_size mask_size,
                          const std::type_identity_t<fixed_window<S, C>>& options = {}) {
  return detail::checked(nothrow::filter_sobel_cross(src, dst, mask_size, options), "filter_sobel_cross");
}

template <readable V, class T, int C, class S = value_type_of<V>>
requires exists<members::filter_scharr_vert<T, C, S>>
status filter_scharr_vert(const V& src, view<T, C> dst,
                          const std::type_identity_t<fixed_window<S, C>>& options = {}) {
  return detail::checked(nothrow::filter_scharr_vert(src, dst, options), "filter_scharr_vert");
}

template <readable V, class T, int C, class S = value_type_of<V>>
requires exists<members::filter_scharr_horiz<T, C, S>>
status filter_scharr_horiz(const V& src, view<T, C> dst,
                           const std::type_identity_t<fixed_window<S, C>>& options = {}) {
  return detail::checked(nothrow::filter_scharr_horiz(src, dst, options), "filter_scharr_horiz");
}

template <class T, int C>
requires exists<members::filter_roberts_down<T, C>>
status filter_roberts_down(source<T, C> src, view<T, C> dst,
                           const std::type_identity_t<fixed_window<T, C>>& options = {}) {
  return detail::checked(nothrow::filter_roberts_down(src, dst, options), "filter_roberts_down");
}

template <class T, int C>
requires exists<members::filter_roberts_up<T, C>>
status filter_roberts_up(source<T, C> src, view<T, C> dst,
                         const std::type_identity_t<fixed_window<T, C>>& options = {}) {
  return detail::checked(nothrow::filter_roberts_up(src, dst, options), "filter_roberts_up");
}

template <readable V, class T, int C, class S = value_type_of<V>>
requires exists<members::filter_laplace<T, C, S>>
status filter_laplace(const V& src, view<T, C> dst, mask_size mask_size,
                      const std::type_identity_t<fixed_window<S, C>>& options = {}) {
  return detail::checked(nothrow::filter_laplace(src, dst, mask_size, options), "filter_laplace");
}

template <class T, int C>
requires exists<members::filter_gauss<T, C>>
status filter_gauss(source<T, C> src, view<T, C> dst, mask_size mask_size,
                    const std::type_identity_t<fixed_window<T, C>>& options = {}) {
  return detail::checked(nothrow::filter_gauss(src, dst, mask_size, options), "filter_gauss");
}

template <class T, int C>
requires exists<members::filter_lowpass<T, C>>
status filter_lowpass(source<T, C> src, view<T, C> dst, mask_size mask_size,
                      const std::type_identity_t<fixed_window<T, C>>& options = {}) {
  return detail::checked(nothrow::filter_lowpass(src, dst, mask_size, options), "filter_lowpass");
}

template <class T, int C>
requires exists<members::filter_hipass<T, C>>
status filter_hipass(source<T, C> src, view<T, C> dst, mask_size mask_size,
                     const std::type_identity_t<fixed_window<T, C>>& options = {}) {
  return detail::checked(nothrow::filter_hipass(src, dst, mask_size, options), "filter_hipass");
}

template <class T, int C>
requires exists<members::filter_sharpen<T, C>>
status filter_sharpen(source<T, C> src, view<T, C> dst,
                      const std::type_identity_t<fixed_window<T, C>>& options = {}) {
  return detail::checked(nothrow::filter_sharpen(src, dst, options), "filter_sharpen");
}

template <class T, int C>
requires exists<members::filter_median<T, C>>
status filter_median(source<T, C> src, view<T, C> dst, extent mask_size,
                     const std::type_identity_t<window<T, C>>& options = {}) {
  return detail::checked(nothrow::filter_median(src, dst, mask_size, options), "filter_median");
}

template <class T, int C>
requires exists<members::filter_median_horiz<T, C>>
status filter_median_horiz(source<T, C> src, view<T, C> dst, mask_size mask_size,
                           const std::type_identity_t<fixed_window<T, C>>& options = {}) {
  return detail::checked(nothrow::filter_median_horiz(src, dst, mask_size, options), "filter_median_horiz");
}

template <class T, int C>
requires exists<members::filter_median_vert<T, C>>
status filter_median_vert(source<T, C> src, view<T, C> dst, mask_size mask_size,
                          const std::type_identity_t<fixed_window<T, C>>& options = {}) {
  return detail::checked(nothrow::filter_median_vert(src, dst, mask_size, options), "filter_median_vert");
}

template <class T, int C>
requires exists<members::filter_median_cross<T, C>>
status filter_median_cross(source<T, C> src, view<T, C> dst, mask_size mask_size,
                           const std::type_identity_t<fixed_window<T, C>>& options = {}) {
  return detail::checked(nothrow::filter_median_cross(src, dst, mask_size, options), "filter_median_cross");
}

template <class T, int C>
requires exists<members::filter_median_color<T, C>>
status filter_median_color(source<T, C> src, view<T, C> dst, mask_size mask_size,
                           const std::type_identity_t<fixed_window<T, C>>& options = {}) {
  return detail::checked(nothrow::filter_median_color(src, dst, mask_size, options), "filter_median_color");
}

template <class T, int C>
requires exists<members::filter_min<T, C>>
status filter_min(source<T, C> src, view<T, C> dst, extent mask_size,
                  const std::type_identity_t<window<T, C>>& options = {}) {
  return detail::checked(nothrow::filter_min(src, dst, mask_size, options), "filter_min");
}

template <class T, int C>
requires exists<members::filter_max<T, C>>
status filter_max(source<T, C> src, view<T, C> dst, extent mask_size,
                  const std::type_identity_t<window<T, C>>& options = {}) {
  return detail::checked(nothrow::filter_max(src, dst, mask_size, options), "filter_max");
}

template <class T, int C>
requires exists<members::erode3x3<T, C>>
status erode3x3(source<T, C> src, view<T, C> dst, const std::type_identity_t<fixed_window<T, C>>& options = {}) {
  return detail::checked(nothrow::erode3x3(src, dst, options), "erode3x3");
}

template <class T, int C>
requires exists<members::dilate3x3<T, C>>
status dilate3x3(source<T, C> src, view<T, C> dst, const std::type_identity_t<fixed_window<T, C>>& options = {}) {
  return detail::checked(nothrow::dilate3x3(src, dst, options), "dilate3x3");
}

template <class T, int C>
requires exists<members::erode<T, C>>
status erode(source<T, C> src, view<T, C> dst, const grid<std::uint8_t>& footprint,
             const std::type_identity_t<window<T, C>>& options = {}) {
  return detail::checked(nothrow::erode(src, dst, footprint, options), "erode");
}

template <class T, int C>
requires exists<members::dilate<T, C>>
status dilate(source<T, C> src, view<T, C> dst, const grid<std::uint8_t>& footprint,
              const std::type_identity_t<window<T, C>>& options = {}) {
  return detail::checked(nothrow::dilate(src, dst, footprint, options), "dilate");
}

template <class T, int C>
requires exists<members::filter_wiener<T, C>>
status filter_wiener(source<T, C> src, view<T, C> dst, extent mask_size, per_channel<float, C>& noise,
                     const std::type_identity_t<window<T, C>>& options = {}) {
  return detail::checked(nothrow::filter_wiener(src, dst, mask_size, noise, options), "filter_wiener");
}

template <class T, int C>
requires exists<members::conv_full<T, C>>
status conv_full(source<T, C> a, source<T, C> b, view<T, C> dst,
                 const options_beyond<members::conv_full<T, C>, 8, divided>& options = {}) {
  return detail::checked(nothrow::conv_full(a, b, dst, options), "conv_full");
}

template <class T, int C>
requires exists<members::conv_valid<T, C>>
status conv_valid(source<T, C> a, source<T, C> b, view<T, C> dst,
                  const options_beyond<members::conv_valid<T, C>, 8, divided>& options = {}) {
  return detail::checked(nothrow::conv_valid(a, b, dst, options), "conv_valid");
}

template <class T, int C>
requires exists<members::win_bartlett<T, C>>
status win_bartlett(source<T, C> src, view<T, C> dst) {
  return detail::checked(nothrow::win_bartlett(src, dst), "win_bartlett");
}

template <class T, int C>
requires exists<members::win_bartlett_sep<T, C>>
status win_bartlett_sep(source<T, C> src, view<T, C> dst) {
  return detail::checked(nothrow::win_bartlett_sep(src, dst), "win_bartlett_sep");
}

template <class T, int C>
requires exists<members::win_hamming<T, C>>
status win_hamming(source<T, C> src, view<T, C> dst) {
  return detail::checked(nothrow::win_hamming(src, dst), "win_hamming");
}

template <class T, int C>
requires exists<members::win_hamming_sep<T, C>>
status win_hamming_sep(source<T, C> src, view<T, C> dst) {
  return detail::checked(nothrow::win_hamming_sep(src, dst), "win_hamming_sep");
}

}  // namespace hux

#endif
