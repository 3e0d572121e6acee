// Made by tools/cpp_front from the headers of the C library.
// clang-format off
// Image memory, and moving pixels without computing on them. Plain C99.
//
// Comments name the functions of C, whose header tells units, statuses and the order of checks. In addition all
// images of a call are compared in size: status::bad_size. Functions of hux throw hux::error where C returns an
// error and return warnings; those of hux::nothrow return either. An operation on its own source is C's in place.
#ifndef HUX_PIXEL_HPP
#define HUX_PIXEL_HPP

#include <algorithm>

#include "call.hpp"
#include "members.hpp"

namespace hux {

namespace nothrow {

// huxiCopy: copies the pixels of the region.
template <readable V, class T, int C, int CS = layout_of<V>>
requires exists<members::copy<T, C, CS>>
[[nodiscard]] status copy(const V& src, view<T, C> dst,
                          const options_if<exists<members::copy_masked<T, C, CS>>, masked>& options = {}) {
  view<const T, CS> source = src;
  if (!detail::agree(dst, source)) return status::bad_size;
  if constexpr (exists<members::copy_masked<T, C, CS>>) {
    if (options.mask.data()) {
      if (!detail::equal(options.mask.size(), dst.size())) return status::bad_size;
      return detail::call<members::copy_masked<T, C, CS>>(detail::at(source), source.step(), detail::at(dst),
                                                          dst.step(), dst.size(), detail::at(options.mask),
                                                          options.mask.step());
    }
  }
  return detail::call<members::copy<T, C, CS>>(detail::at(source), source.step(), detail::at(dst), dst.step(),
                                               dst.size());
}

// huxiCopy: element c of each pixel goes to plane c, or comes from it.
template <readable V, class T, int N, int CS = layout_of<V>>
requires exists<members::copy_to_planes<T, 200 + N, CS>>
[[nodiscard]] status copy(const V& src, planes<T, N> dst) {
  view<const T, CS> source = src;
  if (!detail::agree(dst, source)) return status::bad_size;
  return detail::call<members::copy_to_planes<T, 200 + N, CS>>(detail::at(source), source.step(), detail::at(dst),
                                                               dst.step(), dst.size());
}

// huxiCopy: element c of each pixel goes to plane c, or comes from it.
template <readable_planes V, class T, int C, int CS = layout_of<V>>
requires exists<members::copy_from_planes<T, C, CS>>
[[nodiscard]] status copy(const V& src, view<T, C> dst) {
  if (!detail::agree(dst, src)) return status::bad_size;
  return detail::call<members::copy_from_planes<T, C, CS>>(detail::at(src), src.step(), detail::at(dst), dst.step(),
                                                           dst.size());
}

// huxiSet: fills the region with a constant.
template <class T, int C>
requires exists<members::set<T, C>>
[[nodiscard]] status set(values<T, C> value, view<T, C> dst,
                         const options_if<exists<members::set_masked<T, C>>, masked>& options = {}) {
  if constexpr (exists<members::set_masked<T, C>>) {
    if (options.mask.data()) {
      if (!detail::equal(options.mask.size(), dst.size())) return status::bad_size;
      return detail::call<members::set_masked<T, C>>(detail::at(value), detail::at(dst), dst.step(), dst.size(),
                                                     detail::at(options.mask), options.mask.step());
    }
  }
  return detail::call<members::set<T, C>>(detail::at(value), detail::at(dst), dst.step(), dst.size());
}

// huxiConvert: the same value in another type.
template <readable V, class T, int C, class S = value_type_of<V>>
requires exists<members::convert<T, C, S>>
[[nodiscard]] status convert(const V& src, view<T, C> dst,
                             const options_beyond<members::convert<T, C, S>, 5, rounded>& options = {}) {
  view<const S, C> source = src;
  if (!detail::agree(dst, source)) return status::bad_size;
  return detail::call_with<members::convert<T, C, S>>(detail::tail(options), detail::at(source), source.step(),
                                                      detail::at(dst), dst.step(), dst.size());
}

// huxiScale: maps the full range of one type onto the full range of the other, floats onto or from vMin..vMax.
template <readable V, class T, int C, class S = value_type_of<V>>
requires exists<members::scale<T, C, S>>
[[nodiscard]] status scale(const V& src, view<T, C> dst,
                           const options_beyond<members::scale<T, C, S>, 5, hinted>& options = {}) {
  view<const S, C> source = src;
  if (!detail::agree(dst, source)) return status::bad_size;
  return detail::call_with<members::scale<T, C, S>>(detail::tail(options), detail::at(source), source.step(),
                                                    detail::at(dst), dst.step(), dst.size());
}

// huxiScale: maps the full range of one type onto the full range of the other, floats onto or from vMin..vMax.
template <readable V, class T, int C, class S = value_type_of<V>>
requires exists<members::scale_with_v_min_v_max<T, C, S>>
[[nodiscard]] status scale(const V& src, view<T, C> dst, float v_min, float v_max) {
  view<const S, C> source = src;
  if (!detail::agree(dst, source)) return status::bad_size;
  return detail::call<members::scale_with_v_min_v_max<T, C, S>>(detail::at(source), source.step(), detail::at(dst),
                                                                dst.step(), dst.size(), v_min, v_max);
}

// huxiCopyConstBorder: places the source region in a larger destination and fills the frame around it with a
// constant.
template <class T, int C>
requires exists<members::copy_const_border<T, C>>
[[nodiscard]] status copy_const_border(source<T, C> src, values<T, C> value, view<T, C> dst, int top_border_height,
                                       int left_border_width) {
  return detail::call<members::copy_const_border<T, C>>(detail::at(src), src.step(), src.size(), detail::at(dst),
                                                        dst.step(), dst.size(), top_border_height, left_border_width,
                                                        detail::at(value));
}

// huxiCopyReplicateBorder: places the source region in a larger destination, whose frame takes the nearest pixel of
// the region.
template <class T, int C>
requires exists<members::copy_replicate_border<T, C>>
[[nodiscard]] status copy_replicate_border(source<T, C> src, view<T, C> dst, int top_border_height,
                                           int left_border_width) {
  if constexpr (exists<members::copy_replicate_border_in_place<T, C>>) {
    if (detail::same(src, dst))
      return detail::call<members::copy_replicate_border_in_place<T, C>>(
          detail::at(dst), dst.step(), dst.size(), dst.size(), top_border_height, left_border_width);
  }
  return detail::call<members::copy_replicate_border<T, C>>(detail::at(src), src.step(), src.size(), detail::at(dst),
                                                            dst.step(), dst.size(), top_border_height,
                                                            left_border_width);
}

// huxiCopyWrapBorder: places the source region in a larger destination, whose frame is the periodic continuation of
// the region.
template <class T, int C>
requires exists<members::copy_wrap_border<T, C>>
[[nodiscard]] status copy_wrap_border(source<T, C> src, view<T, C> dst, int top_border_height, int left_border_width) {
  if constexpr (exists<members::copy_wrap_border_in_place<T, C>>) {
    if (detail::same(src, dst))
      return detail::call<members::copy_wrap_border_in_place<T, C>>(detail::at(dst), dst.step(), dst.size(), dst.size(),
                                                                    top_border_height, left_border_width);
  }
  return detail::call<members::copy_wrap_border<T, C>>(detail::at(src), src.step(), src.size(), detail::at(dst),
                                                       dst.step(), dst.size(), top_border_height, left_border_width);
}

// huxiDup: writes each source element to all three channels of the destination pixel.
template <class T, int C>
requires exists<members::dup<T, C>>
[[nodiscard]] status dup(source<T, 1> src, view<T, C> dst) {
  if (!detail::agree(dst, src)) return status::bad_size;
  return detail::call<members::dup<T, C>>(detail::at(src), src.step(), detail::at(dst), dst.step(), dst.size());
}

// huxiSwapChannels: channel c of the destination takes channel dstOrder[c] of the source, c = 0..2.
template <class T, int C>
requires exists<members::swap_channels<T, C>>
[[nodiscard]] status swap_channels(source<T, C> src, view<T, C> dst, const std::array<int, 3>& dst_order) {
  if (!detail::agree(dst, src)) return status::bad_size;
  if constexpr (exists<members::swap_channels_in_place<T, C>>) {
    if (detail::same(src, dst))
      return detail::call<members::swap_channels_in_place<T, C>>(detail::at(dst), dst.step(), dst.size(),
                                                                 detail::at(dst_order));
  }
  return detail::call<members::swap_channels<T, C>>(detail::at(src), src.step(), detail::at(dst), dst.step(),
                                                    dst.size(), detail::at(dst_order));
}

// huxiTranspose: pixel (x, y) of the source goes to (y, x).
template <class T, int C>
requires exists<members::transpose<T, C>>
[[nodiscard]] status transpose(source<T, C> src, view<T, C> dst) {
  if (!detail::of_size(dst.size(), detail::wide(src.height()), detail::wide(src.width()))) return status::bad_size;
  if constexpr (exists<members::transpose_in_place<T, C>>) {
    if (detail::same(src, dst))
      return detail::call<members::transpose_in_place<T, C>>(detail::at(dst), dst.step(), dst.size());
  }
  return detail::call<members::transpose<T, C>>(detail::at(src), src.step(), detail::at(dst), dst.step(), src.size());
}

// huxiMirror: reverses the order of the rows, of the pixels in each row, or both.
template <class T, int C>
requires exists<members::mirror<T, C>>
[[nodiscard]] status mirror(source<T, C> src, view<T, C> dst, axis axis) {
  if (!detail::agree(dst, src)) return status::bad_size;
  if constexpr (exists<members::mirror_in_place<T, C>>) {
    if (detail::same(src, dst))
      return detail::call<members::mirror_in_place<T, C>>(detail::at(dst), dst.step(), dst.size(),
                                                          static_cast<int>(axis));
  }
  return detail::call<members::mirror<T, C>>(detail::at(src), src.step(), detail::at(dst), dst.step(), dst.size(),
                                             static_cast<int>(axis));
}

// huxiImageRamp: writes a linear ramp.
template <class T, int C>
requires exists<members::image_ramp<T, C>>
[[nodiscard]] status image_ramp(view<T, C> dst, float offset, float slope, axis axis) {
  return detail::call<members::image_ramp<T, C>>(detail::at(dst), dst.step(), dst.size(), offset, slope,
                                                 static_cast<int>(axis));
}

// huxiImageJaehne: writes a radial chirp, whose rings grow finer from the centre of the region outwards.
template <class T, int C>
requires exists<members::image_jaehne<T, C>>
[[nodiscard]] status image_jaehne(view<T, C> dst) {
  return detail::call<members::image_jaehne<T, C>>(detail::at(dst), dst.step(), dst.size());
}

// huxiAddRandUniform_Direct: add noise to an image in place, uniform from low to high or normal with mean and
// stdDev.
template <class T, int C>
requires exists<members::add_rand_uniform_direct_in_place<T, C>>
[[nodiscard]] status add_rand_uniform_direct(view<T, C> dst, std::type_identity_t<T> low, std::type_identity_t<T> high,
                                             std::uint32_t& seed) {
  return detail::call<members::add_rand_uniform_direct_in_place<T, C>>(detail::at(dst), dst.step(), dst.size(), low,
                                                                       high, detail::at(seed));
}

// huxiAddRandGauss_Direct: add noise to an image in place, uniform from low to high or normal with mean and stdDev.
template <class T, int C>
requires exists<members::add_rand_gauss_direct_in_place<T, C>>
[[nodiscard]] status add_rand_gauss_direct(view<T, C> dst, std::type_identity_t<T> mean,
                                           std::type_identity_t<T> std_dev, std::uint32_t& seed) {
  return detail::call<members::add_rand_gauss_direct_in_place<T, C>>(detail::at(dst), dst.step(), dst.size(), mean,
                                                                     std_dev, detail::at(seed));
}

}  // namespace nothrow

template <readable V, class T, int C, int CS = layout_of<V>>
requires exists<members::copy<T, C, CS>>
status copy(const V& src, view<T, C> dst,
            const options_if<exists<members::copy_masked<T, C, CS>>, masked>& options = {}) {
  return detail::checked(nothrow::copy(src, dst, options), "copy");
}

template <readable V, class T, int N, int CS = layout_of<V>>
requires exists<members::copy_to_planes<T, 200 + N, CS>>
status copy(const V& src, planes<T, N> dst) { return detail::checked(nothrow::copy(src, dst), "copy"); }

template <readable_planes V, class T, int C, int CS = layout_of<V>>
requires exists<members::copy_from_planes<T, C, CS>>
status copy(const V& src, view<T, C> dst) { return detail::checked(nothrow::copy(src, dst), "copy"); }

template <class T, int C>
requires exists<members::set<T, C>>
status set(values<T, C> value, view<T, C> dst,
           const options_if<exists<members::set_masked<T, C>>, masked>& options = {}) {
  return detail::checked(nothrow::set(value, dst, options), "set");
}

template <readable V, class T, int C, class S = value_type_of<V>>
requires exists<members::convert<T, C, S>>
status convert(const V& src, view<T, C> dst,
               const options_beyond<members::convert<T, C, S>, 5, rounded>& options = {}) {
  return detail::checked(nothrow::convert(src, dst, options), "convert");
}

template <readable V, class T, int C, class S = value_type_of<V>>
requires exists<members::scale<T, C, S>>
status scale(const V& src, view<T, C> dst,
             const options_beyond<members::scale<T, C, S>, 5, hinted>& options = {}) {
  return detail::checked(nothrow::scale(src, dst, options), "scale");
}

template <readable V, class T, int C, class S = value_type_of<V>>
requires exists<members::scale_with_v_min_v_max<T, C, S>>
status scale(const V& src, view<T, C> dst, float v_min, float v_max) {
  return detail::checked(nothrow::scale(src, dst, v_min, v_max), "scale");
}

template <class T, int C>
requires exists<members::copy_const_border<T, C>>
status copy_const_border(source<T, C> src, values<T, C> value, view<T, C> dst, int top_border_height,
                         int left_border_width) {
  return detail::checked(nothrow::copy_const_border(src, value, dst, top_border_height, left_border_width),
                         "copy_const_border");
}

template <class T, int C>
requires exists<members::copy_replicate_border<T, C>>
status copy_replicate_border(source<T, C> src, view<T, C> dst, int top_border_height, int left_border_width) {
  return detail::checked(nothrow::copy_replicate_border(src, dst, top_border_height, left_border_width),
                         "copy_replicate_border");
}

template <class T, int C>
requires exists<members::copy_wrap_border<T, C>>
status copy_wrap_border(source<T, C> src, view<T, C> dst, int top_border_height, int left_border_width) {
  return detail::checked(nothrow::copy_wrap_border(src, dst, top_border_height, left_border_width), "copy_wrap_border");
}

template <class T, int C>
requires exists<members::dup<T, C>>
status dup(source<T, 1> src, view<T, C> dst) { return detail::checked(nothrow::dup(src, dst), "dup"); }

template <class T, int C>
requires exists<members::swap_channels<T, C>>
status swap_channels(source<T, C> src, view<T, C> dst, const std::array<int, 3>& dst_order) {
  return detail::checked(nothrow::swap_channels(src, dst, dst_order), "swap_channels");
}

template <class T, int C>
requires exists<members::transpose<T, C>>
status transpose(source<T, C> src, view<T, C> dst) {
  return detail::checked(nothrow::transpose(src, dst), "transpose");
}

template <class T, int C>
requires exists<members::mirror<T, C>>
status mirror(source<T, C> src, view<T, C> dst, axis axis) {
  return detail::checked(nothrow::mirror(src, dst, axis), "mirror");
}

template <class T, int C>
requires exists<members::image_ramp<T, C>>
status image_ramp(view<T, C> dst, float offset, float slope, axis axis) {
  return detail::checked(nothrow::image_ramp(dst, offset, slope, axis), "image_ramp");
}

template <class T, int C>
requires exists<members::image_jaehne<T, C>>
status image_jaehne(view<T, C> dst) { return detail::checked(nothrow::image_jaehne(dst), "image_jaehne"); }

template <class T, int C>
requires exists<members::add_rand_uniform_direct_in_place<T, C>>
status add_rand_uniform_direct(view<T, C> dst, std::type_identity_t<T> low, std::type_identity_t<T> high,
                               std::uint32_t& seed) {
  return detail::checked(nothrow::add_rand_uniform_direct(dst, low, high, seed), "add_rand_uniform_direct");
}

template <class T, int C>
requires exists<members::add_rand_gauss_direct_in_place<T, C>>
status add_rand_gauss_direct(view<T, C> dst, std::type_identity_t<T> mean, std::type_identity_t<T> std_dev,
                             std::uint32_t& seed) {
  return detail::checked(nothrow::add_rand_gauss_direct(dst, mean, std_dev, seed), "add_rand_gauss_direct");
}

}  // namespace hux

#endif
