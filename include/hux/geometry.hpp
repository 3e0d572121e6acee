// Made by tools/cpp_front from the headers of the C library.
// clang-format off
// Geometric transforms: pixels moved to computed positions. Plain C99.
//
// Comments name the functions of C, whose header tells units, statuses and the order of checks. In addition all
// images of a call are compared in size: status::bad_size. Functions of hux throw hux::error where C returns an
// error and return warnings; those of hux::nothrow return either. An operation on its own source is C's in place.
#ifndef HUX_GEOMETRY_HPP
#define HUX_GEOMETRY_HPP

#include <algorithm>

#include "call.hpp"
#include "members.hpp"

namespace hux {

struct get_resize_fract_result {
  double x_fr = {};
  double y_fr = {};
};

namespace nothrow {

// huxiGetAffineQuad: where a rectangle of pixels goes: the quadrangle that a map makes of it, or the bounds of that.
[[nodiscard]] inline result<quad> get_affine_quad(rect src_roi, const matrix<2, 3>& coeffs) {
  result<quad> out;
  out.status = detail::call<huxiGetAffineQuad>(src_roi, detail::at(out.value), detail::at(coeffs));
  return out;
}

// huxiGetAffineBound: where a rectangle of pixels goes: the quadrangle that a map makes of it, or the bounds of
// that.
[[nodiscard]] inline result<matrix<2, 2>> get_affine_bound(rect src_roi, const matrix<2, 3>& coeffs) {
  result<matrix<2, 2>> out;
  out.status = detail::call<huxiGetAffineBound>(src_roi, detail::at(out.value), detail::at(coeffs));
  return out;
}

// huxiGetBilinearQuad: where a rectangle of pixels goes: the quadrangle that a map makes of it, or the bounds of
// that.
[[nodiscard]] inline result<quad> get_bilinear_quad(rect src_roi, const matrix<2, 4>& coeffs) {
  result<quad> out;
  out.status = detail::call<huxiGetBilinearQuad>(src_roi, detail::at(out.value), detail::at(coeffs));
  return out;
}

// huxiGetBilinearBound: where a rectangle of pixels goes: the quadrangle that a map makes of it, or the bounds of
// that.
[[nodiscard]] inline result<matrix<2, 2>> get_bilinear_bound(rect src_roi, const matrix<2, 4>& coeffs) {
  result<matrix<2, 2>> out;
  out.status = detail::call<huxiGetBilinearBound>(src_roi, detail::at(out.value), detail::at(coeffs));
  return out;
}

// huxiGetPerspectiveQuad: where a rectangle of pixels goes: the quadrangle that a map makes of it, or the bounds of
// that.
[[nodiscard]] inline result<quad> get_perspective_quad(rect src_roi, const matrix<3, 3>& coeffs) {
  result<quad> out;
  out.status = detail::call<huxiGetPerspectiveQuad>(src_roi, detail::at(out.value), detail::at(coeffs));
  return out;
}

// huxiGetPerspectiveBound: where a rectangle of pixels goes: the quadrangle that a map makes of it, or the bounds of
// that.
[[nodiscard]] inline result<matrix<2, 2>> get_perspective_bound(rect src_roi, const matrix<3, 3>& coeffs) {
  result<matrix<2, 2>> out;
  out.status = detail::call<huxiGetPerspectiveBound>(src_roi, detail::at(out.value), detail::at(coeffs));
  return out;
}

// huxiGetShearQuad: where a rectangle of pixels goes: the quadrangle that a map makes of it, or the bounds of that.
[[nodiscard]] inline result<quad> get_shear_quad(rect src_roi, double x_shear, double y_shear, double x_shift,
                                                 double y_shift) {
  result<quad> out;
  out.status = detail::call<huxiGetShearQuad>(src_roi, detail::at(out.value), x_shear, y_shear, x_shift, y_shift);
  return out;
}

// huxiGetShearBound: where a rectangle of pixels goes: the quadrangle that a map makes of it, or the bounds of that.
[[nodiscard]] inline result<matrix<2, 2>> get_shear_bound(rect src_roi, double x_shear, double y_shear, double x_shift,
                                                          double y_shift) {
  result<matrix<2, 2>> out;
  out.status = detail::call<huxiGetShearBound>(src_roi, detail::at(out.value), x_shear, y_shear, x_shift, y_shift);
  return out;
}

// huxiGetRotateQuad: where a rectangle of pixels goes: the quadrangle that a map makes of it, or the bounds of that.
[[nodiscard]] inline result<quad> get_rotate_quad(rect src_roi, double angle, double x_shift, double y_shift) {
  result<quad> out;
  out.status = detail::call<huxiGetRotateQuad>(src_roi, detail::at(out.value), angle, x_shift, y_shift);
  return out;
}

// huxiGetRotateBound: where a rectangle of pixels goes: the quadrangle that a map makes of it, or the bounds of
// that.
[[nodiscard]] inline result<matrix<2, 2>> get_rotate_bound(rect src_roi, double angle, double x_shift, double y_shift) {
  result<matrix<2, 2>> out;
  out.status = detail::call<huxiGetRotateBound>(src_roi, detail::at(out.value), angle, x_shift, y_shift);
  return out;
}

// huxiGetAffineTransform: the map that carries srcRoi on to a quadrangle, to coeffs.
[[nodiscard]] inline result<matrix<2, 3>> get_affine_transform(rect src_roi, const quad& quad) {
  result<matrix<2, 3>> out;
  out.status = detail::call<huxiGetAffineTransform>(src_roi, detail::at(quad), detail::at(out.value));
  return out;
}

// huxiGetBilinearTransform: the map that carries srcRoi on to a quadrangle, to coeffs.
[[nodiscard]] inline result<matrix<2, 4>> get_bilinear_transform(rect src_roi, const quad& quad) {
  result<matrix<2, 4>> out;
  out.status = detail::call<huxiGetBilinearTransform>(src_roi, detail::at(quad), detail::at(out.value));
  return out;
}

// huxiGetPerspectiveTransform: the map that carries srcRoi on to a quadrangle, to coeffs.
[[nodiscard]] inline result<matrix<3, 3>> get_perspective_transform(rect src_roi, const quad& quad) {
  result<matrix<3, 3>> out;
  out.status = detail::call<huxiGetPerspectiveTransform>(src_roi, detail::at(quad), detail::at(out.value));
  return out;
}

// huxiGetRotateShift: the shifts with which a rotation by `angle` degrees keeps the point (xCenter, yCenter) where
// it is.
[[nodiscard]] inline status get_rotate_shift(double x_center, double y_center, double angle, double& x_shift,
                                             double& y_shift) {
  return detail::call<huxiGetRotateShift>(x_center, y_center, angle, detail::at(x_shift), detail::at(y_shift));
}

// huxiAddRotateShift: the shifts with which a rotation by `angle` degrees keeps the point (xCenter, yCenter) where
// it is.
[[nodiscard]] inline status add_rotate_shift(double x_center, double y_center, double angle, double& x_shift,
                                             double& y_shift) {
  return detail::call<huxiAddRotateShift>(x_center, y_center, angle, detail::at(x_shift), detail::at(y_shift));
}

// huxiResize: the region srcRoi of an image, scaled by xFactor and yFactor.
template <class T, int C>
requires exists<members::resize<T, C>>
[[nodiscard]] status resize(source<T, C> src, view<T, C> dst, const resizing& options = {}) {
  const rect roi = detail::whole(options.roi, src.size());
  const int inter = detail::interpolation_of(options.inter, options.smooth_edge);
  return detail::call<members::resize<T, C>>(detail::at(src), src.size(), src.step(), roi, detail::at(dst), dst.step(),
                                             dst.size(), detail::ratio(options.x_factor, dst.width(), roi.width),
                                             detail::ratio(options.y_factor, dst.height(), roi.height), inter);
}

// huxiResize: the region srcRoi of an image, scaled by xFactor and yFactor.
template <class T, int N>
requires exists<members::resize_planes<T, 200 + N>>
[[nodiscard]] status resize(source_planes<T, N> src, planes<T, N> dst, const resizing& options = {}) {
  const rect roi = detail::whole(options.roi, src.size());
  const int inter = detail::interpolation_of(options.inter, options.smooth_edge);
  return detail::call<members::resize_planes<T, 200 + N>>(
      detail::at(src), src.size(), src.step(), roi, detail::at(dst), dst.step(), dst.size(),
      detail::ratio(options.x_factor, dst.width(), roi.width),
      detail::ratio(options.y_factor, dst.height(), roi.height), inter);
}

// huxiResizeCenter: the region srcRoi of an image, scaled by xFactor and yFactor.
template <class T, int C>
requires exists<members::resize_center<T, C>>
[[nodiscard]] status resize_center(source<T, C> src, view<T, C> dst, double x_factor, double y_factor, double x_center,
                                   double y_center, const mapping& options = {}) {
  const rect roi = detail::whole(options.roi, src.size());
  const int inter = detail::interpolation_of(options.inter, options.smooth_edge);
  return detail::call<members::resize_center<T, C>>(detail::at(src), src.size(), src.step(), roi, detail::at(dst),
                                                    dst.step(), dst.size(), x_factor, y_factor, x_center, y_center,
                                                    inter);
}

// huxiResizeCenter: the region srcRoi of an image, scaled by xFactor and yFactor.
template <class T, int N>
requires exists<members::resize_center_planes<T, 200 + N>>
[[nodiscard]] status resize_center(source_planes<T, N> src, planes<T, N> dst, double x_factor, double y_factor,
                                   double x_center, double y_center, const mapping& options = {}) {
  const rect roi = detail::whole(options.roi, src.size());
  const int inter = detail::interpolation_of(options.inter, options.smooth_edge);
  return detail::call<members::resize_center_planes<T, 200 + N>>(detail::at(src), src.size(), src.step(), roi,
                                                                 detail::at(dst), dst.step(), dst.size(), x_factor,
                                                                 y_factor, x_center, y_center, inter);
}

// huxiResizeShift: the region srcRoi of an image, scaled by xFactor and yFactor.
template <class T, int C>
requires exists<members::resize_shift<T, C>>
[[nodiscard]] status resize_shift(source<T, C> src, view<T, C> dst, double x_fr, double y_fr, double x_shift,
                                  double y_shift, const mapping& options = {}) {
  const rect roi = detail::whole(options.roi, src.size());
  const int inter = detail::interpolation_of(options.inter, options.smooth_edge);
  return detail::call<members::resize_shift<T, C>>(detail::at(src), src.size(), src.step(), roi, detail::at(dst),
                                                   dst.step(), dst.size(), x_fr, y_fr, x_shift, y_shift, inter);
}

// huxiResizeShift: the region srcRoi of an image, scaled by xFactor and yFactor.
template <class T, int N>
requires exists<members::resize_shift_planes<T, 200 + N>>
[[nodiscard]] status resize_shift(source_planes<T, N> src, planes<T, N> dst, double x_fr, double y_fr, double x_shift,
                                  double y_shift, const mapping& options = {}) {
  const rect roi = detail::whole(options.roi, src.size());
  const int inter = detail::interpolation_of(options.inter, options.smooth_edge);
  return detail::call<members::resize_shift_planes<T, 200 + N>>(detail::at(src), src.size(), src.step(), roi,
                                                                detail::at(dst), dst.step(), dst.size(), x_fr, y_fr,
                                                                x_shift, y_shift, inter);
}

// huxiGetResizeFract: the steps, in pixels of the source, that Resize takes for these factors, to *pxFr and *pyFr.
[[nodiscard]] inline result<get_resize_fract_result> get_resize_fract(extent src_size, rect src_roi, double x_factor,
                                                                      double y_factor, interpolation interpolation) {
  result<get_resize_fract_result> out;
  out.status = detail::call<huxiGetResizeFract>(src_size, src_roi, x_factor, y_factor, detail::at(out.value.x_fr),
                                                detail::at(out.value.y_fr), static_cast<int>(interpolation));
  return out;
}

// huxiResizeSqrPixel: the region srcRoi of an image, scaled by xFactor and yFactor and moved by xShift, yShift
// destination pixels.
template <class T, int C>
requires exists<members::resize_sqr_pixel<T, C>>
[[nodiscard]] status resize_sqr_pixel(source<T, C> src, view<T, C> dst, double x_shift, double y_shift,
                                      const placing& options = {}) {
  const rect roi = detail::whole(options.roi, src.size());
  const rect dst_roi = detail::whole(options.dst_roi, dst.size());
  const int inter = detail::interpolation_of(options.inter, options.smooth_edge);
  int bytes = 0;
  if (HuxStatus s = huxiResizeSqrPixelGetBufSize(
          extent{static_cast<int>(detail::wide(dst_roi.width)), static_cast<int>(detail::wide(dst_roi.height))},
          static_cast<int>(detail::elements_of(C)), static_cast<int>(detail::wide(inter)), &bytes))
    return static_cast<status>(s);
  const detail::memory buffer(static_cast<std::size_t>(bytes));
  if (!buffer) return status::no_mem;
  return detail::call<members::resize_sqr_pixel<T, C>>(
      detail::at(src), src.size(), src.step(), roi, detail::at(dst), dst.step(), dst_roi,
      detail::ratio(options.x_factor, dst_roi.width, roi.width),
      detail::ratio(options.y_factor, dst_roi.height, roi.height), x_shift, y_shift, inter, buffer.at());
}

// huxiResizeSqrPixel: the region srcRoi of an image, scaled by xFactor and yFactor and moved by xShift, yShift
// destination pixels.
template <class T, int N>
requires exists<members::resize_sqr_pixel_planes<T, 200 + N>>
[[nodiscard]] status resize_sqr_pixel(source_planes<T, N> src, planes<T, N> dst, double x_shift, double y_shift,
                                      const placing& options = {}) {
  const rect roi = detail::whole(options.roi, src.size());
  const rect dst_roi = detail::whole(options.dst_roi, dst.size());
  const int inter = detail::interpolation_of(options.inter, options.smooth_edge);
  int bytes = 0;
  if (HuxStatus s = huxiResizeSqrPixelGetBufSize(
          extent{static_cast<int>(detail::wide(dst_roi.width)), static_cast<int>(detail::wide(dst_roi.height))},
          static_cast<int>(1), static_cast<int>(detail::wide(inter)), &bytes))
    return static_cast<status>(s);
  const detail::memory buffer(static_cast<std::size_t>(bytes));
  if (!buffer) return status::no_mem;
  return detail::call<members::resize_sqr_pixel_planes<T, 200 + N>>(
      detail::at(src), src.size(), src.step(), roi, detail::at(dst), dst.step(), dst_roi,
      detail::ratio(options.x_factor, dst_roi.width, roi.width),
      detail::ratio(options.y_factor, dst_roi.height, roi.height), x_shift, y_shift, inter, buffer.at());
}

// huxiResizeYUV422: Resize of packed 4:2:2, in which two pixels are four bytes, Y0 U Y1 V.
template <class T, int C>
requires exists<members::resize_yuv422<T, C>>
[[nodiscard]] status resize_yuv422(source<T, C> src, view<T, C> dst, const resizing& options = {}) {
  const rect roi = detail::whole(options.roi, src.size());
  const int inter = detail::interpolation_of(options.inter, options.smooth_edge);
  return detail::call<members::resize_yuv422<T, C>>(detail::at(src), src.size(), src.step(), roi, detail::at(dst),
                                                    dst.step(), dst.size(),
                                                    detail::ratio(options.x_factor, dst.width(), roi.width),
                                                    detail::ratio(options.y_factor, dst.height(), roi.height), inter);
}

// huxiWarpAffine: an image warped by an affine map, whose coefficients carry the source to the destination.
template <class T, int C>
requires exists<members::warp_affine<T, C>>
[[nodiscard]] status warp_affine(source<T, C> src, view<T, C> dst, const matrix<2, 3>& coeffs,
                                 const warping& options = {}) {
  const rect roi = detail::whole(options.roi, src.size());
  const rect dst_roi = detail::whole(options.dst_roi, dst.size());
  const int inter = detail::interpolation_of(options.inter, options.smooth_edge);
  return detail::call<members::warp_affine<T, C>>(detail::at(src), src.size(), src.step(), roi, detail::at(dst),
                                                  dst.step(), dst_roi, detail::at(coeffs), inter);
}

// huxiWarpAffine: an image warped by an affine map, whose coefficients carry the source to the destination.
template <class T, int N>
requires exists<members::warp_affine_planes<T, 200 + N>>
[[nodiscard]] status warp_affine(source_planes<T, N> src, planes<T, N> dst, const matrix<2, 3>& coeffs,
                                 const warping& options = {}) {
  const rect roi = detail::whole(options.roi, src.size());
  const rect dst_roi = detail::whole(options.dst_roi, dst.size());
  const int inter = detail::interpolation_of(options.inter, options.smooth_edge);
  return detail::call<members::warp_affine_planes<T, 200 + N>>(
      detail::at(src), src.size(), src.step(), roi, detail::at(dst), dst.step(), dst_roi, detail::at(coeffs), inter);
}

// huxiWarpAffineBack: an image warped by an affine map, whose coefficients carry the destination to the source.
template <class T, int C>
requires exists<members::warp_affine_back<T, C>>
[[nodiscard]] status warp_affine_back(source<T, C> src, view<T, C> dst, const matrix<2, 3>& coeffs,
                                      const warping& options = {}) {
  const rect roi = detail::whole(options.roi, src.size());
  const rect dst_roi = detail::whole(options.dst_roi, dst.size());
  const int inter = detail::interpolation_of(options.inter, options.smooth_edge);
  return detail::call<members::warp_affine_back<T, C>>(detail::at(src), src.size(), src.step(), roi, detail::at(dst),
                                                       dst.step(), dst_roi, detail::at(coeffs), inter);
}

// huxiWarpAffineBack: an image warped by an affine map, whose coefficients carry the destination to the source.
template <class T, int N>
requires exists<members::warp_affine_back_planes<T, 200 + N>>
[[nodiscard]] status warp_affine_back(source_planes<T, N> src, planes<T, N> dst, const matrix<2, 3>& coeffs,
                                      const warping& options = {}) {
  const rect roi = detail::whole(options.roi, src.size());
  const rect dst_roi = detail::whole(options.dst_roi, dst.size());
  const int inter = detail::interpolation_of(options.inter, options.smooth_edge);
  return detail::call<members::warp_affine_back_planes<T, 200 + N>>(
      detail::at(src), src.size(), src.step(), roi, detail::at(dst), dst.step(), dst_roi, detail::at(coeffs), inter);
}

// huxiWarpAffineQuad: an image warped by the affine map that carries vertices 0, 1 and 2 of srcQuad to those of
// dstQuad.
template <class T, int C>
requires exists<members::warp_affine_quad<T, C>>
[[nodiscard]] status warp_affine_quad(source<T, C> src, view<T, C> dst, const quad& src_quad, const quad& dst_quad,
                                      const warping& options = {}) {
  const rect roi = detail::whole(options.roi, src.size());
  const rect dst_roi = detail::whole(options.dst_roi, dst.size());
  const int inter = detail::interpolation_of(options.inter, options.smooth_edge);
  return detail::call<members::warp_affine_quad<T, C>>(detail::at(src), src.size(), src.step(), roi,
                                                       detail::at(src_quad), detail::at(dst), dst.step(), dst_roi,
                                                       detail::at(dst_quad), inter);
}

// huxiWarpAffineQuad: an image warped by the affine map that carries vertices 0, 1 and 2 of srcQuad to those of
// dstQuad.
template <class T, int N>
requires exists<members::warp_affine_quad_planes<T, 200 + N>>
[[nodiscard]] status warp_affine_quad(source_planes<T, N> src, planes<T, N> dst, const quad& src_quad,
                                      const quad& dst_quad, const warping& options = {}) {
  const rect roi = detail::whole(options.roi, src.size());
  const rect dst_roi = detail::whole(options.dst_roi, dst.size());
  const int inter = detail::interpolation_of(options.inter, options.smooth_edge);
  return detail::call<members::warp_affine_quad_planes<T, 200 + N>>(detail::at(src), src.size(), src.step(), roi,
                                                                    detail::at(src_quad), detail::at(dst), dst.step(),
                                                                    dst_roi, detail::at(dst_quad), inter);
}

// huxiRotate: an image turned about its origin, and shifted.
template <class T, int C>
requires exists<members::rotate<T, C>>
[[nodiscard]] status rotate(source<T, C> src, view<T, C> dst, double angle, double x_shift, double y_shift,
                            const warping& options = {}) {
  const rect roi = detail::whole(options.roi, src.size());
  const rect dst_roi = detail::whole(options.dst_roi, dst.size());
  const int inter = detail::interpolation_of(options.inter, options.smooth_edge);
  return detail::call<members::rotate<T, C>>(detail::at(src), src.size(), src.step(), roi, detail::at(dst), dst.step(),
                                             dst_roi, angle, x_shift, y_shift, inter);
}

// huxiRotate: an image turned about its origin, and shifted.
template <class T, int N>
requires exists<members::rotate_planes<T, 200 + N>>
[[nodiscard]] status rotate(source_planes<T, N> src, planes<T, N> dst, double angle, double x_shift, double y_shift,
                            const warping& options = {}) {
  const rect roi = detail::whole(options.roi, src.size());
  const rect dst_roi = detail::whole(options.dst_roi, dst.size());
  const int inter = detail::interpolation_of(options.inter, options.smooth_edge);
  return detail::call<members::rotate_planes<T, 200 + N>>(detail::at(src), src.size(), src.step(), roi, detail::at(dst),
                                                          dst.step(), dst_roi, angle, x_shift, y_shift, inter);
}

// huxiRotateCenter: an image turned about the point (xCenter, yCenter), which stays where it is.
template <class T, int C>
requires exists<members::rotate_center<T, C>>
[[nodiscard]] status rotate_center(source<T, C> src, view<T, C> dst, double angle, double x_center, double y_center,
                                   const warping& options = {}) {
  const rect roi = detail::whole(options.roi, src.size());
  const rect dst_roi = detail::whole(options.dst_roi, dst.size());
  const int inter = detail::interpolation_of(options.inter, options.smooth_edge);
  return detail::call<members::rotate_center<T, C>>(detail::at(src), src.size(), src.step(), roi, detail::at(dst),
                                                    dst.step(), dst_roi, angle, x_center, y_center, inter);
}

// huxiRotateCenter: an image turned about the point (xCenter, yCenter), which stays where it is.
template <class T, int N>
requires exists<members::rotate_center_planes<T, 200 + N>>
[[nodiscard]] status rotate_center(source_planes<T, N> src, planes<T, N> dst, double angle, double x_center,
                                   double y_center, const warping& options = {}) {
  const rect roi = detail::whole(options.roi, src.size());
  const rect dst_roi = detail::whole(options.dst_roi, dst.size());
  const int inter = detail::interpolation_of(options.inter, options.smooth_edge);
  return detail::call<members::rotate_center_planes<T, 200 + N>>(detail::at(src), src.size(), src.step(), roi,
                                                                 detail::at(dst), dst.step(), dst_roi, angle, x_center,
                                                                 y_center, inter);
}

// huxiShear: an image sheared, and shifted.
template <class T, int C>
requires exists<members::shear<T, C>>
[[nodiscard]] status shear(source<T, C> src, view<T, C> dst, double x_shear, double y_shear, double x_shift,
                           double y_shift, const warping& options = {}) {
  const rect roi = detail::whole(options.roi, src.size());
  const rect dst_roi = detail::whole(options.dst_roi, dst.size());
  const int inter = detail::interpolation_of(options.inter, options.smooth_edge);
  return detail::call<members::shear<T, C>>(detail::at(src), src.size(), src.step(), roi, detail::at(dst), dst.step(),
                                            dst_roi, x_shear, y_shear, x_shift, y_shift, inter);
}

// huxiShear: an image sheared, and shifted.
template <class T, int N>
requires exists<members::shear_planes<T, 200 + N>>
[[nodiscard]] status shear(source_planes<T, N> src, planes<T, N> dst, double x_shear, double y_shear, double x_shift,
                           double y_shift, const warping& options = {}) {
  const rect roi = detail::whole(options.roi, src.size());
  const rect dst_roi = detail::whole(options.dst_roi, dst.size());
  const int inter = detail::interpolation_of(options.inter, options.smooth_edge);
  return detail::call<members::shear_planes<T, 200 + N>>(detail::at(src), src.size(), src.step(), roi, detail::at(dst),
                                                         dst.step(), dst_roi, x_shear, y_shear, x_shift, y_shift,
                                                         inter);
}

// huxiWarpBilinear: an image warped by a bilinear map, whose coefficients carry the source to the destination.
template <class T, int C>
requires exists<members::warp_bilinear<T, C>>
[[nodiscard]] status warp_bilinear(source<T, C> src, view<T, C> dst, const matrix<2, 4>& coeffs,
                                   const warping& options = {}) {
  const rect roi = detail::whole(options.roi, src.size());
  const rect dst_roi = detail::whole(options.dst_roi, dst.size());
  const int inter = detail::interpolation_of(options.inter, options.smooth_edge);
  return detail::call<members::warp_bilinear<T, C>>(detail::at(src), src.size(), src.step(), roi, detail::at(dst),
                                                    dst.step(), dst_roi, detail::at(coeffs), inter);
}

// huxiWarpBilinear: an image warped by a bilinear map, whose coefficients carry the source to the destination.
template <class T, int N>
requires exists<members::warp_bilinear_planes<T, 200 + N>>
[[nodiscard]] status warp_bilinear(source_planes<T, N> src, planes<T, N> dst, const matrix<2, 4>& coeffs,
                                   const warping& options = {}) {
  const rect roi = detail::whole(options.roi, src.size());
  const rect dst_roi = detail::whole(options.dst_roi, dst.size());
  const int inter = detail::interpolation_of(options.inter, options.smooth_edge);
  return detail::call<members::warp_bilinear_planes<T, 200 + N>>(
      detail::at(src), src.size(), src.step(), roi, detail::at(dst), dst.step(), dst_roi, detail::at(coeffs), inter);
}

// huxiWarpBilinearBack: an image warped by a bilinear map, whose coefficients carry the destination to the source.
template <class T, int C>
requires exists<members::warp_bilinear_back<T, C>>
[[nodiscard]] status warp_bilinear_back(source<T, C> src, view<T, C> dst, const matrix<2, 4>& coeffs,
                                        const warping& options = {}) {
  const rect roi = detail::whole(options.roi, src.size());
  const rect dst_roi = detail::whole(options.dst_roi, dst.size());
  const int inter = detail::interpolation_of(options.inter, options.smooth_edge);
  return detail::call<members::warp_bilinear_back<T, C>>(detail::at(src), src.size(), src.step(), roi, detail::at(dst),
                                                         dst.step(), dst_roi, detail::at(coeffs), inter);
}

// huxiWarpBilinearBack: an image warped by a bilinear map, whose coefficients carry the destination to the source.
template <class T, int N>
requires exists<members::warp_bilinear_back_planes<T, 200 + N>>
[[nodiscard]] status warp_bilinear_back(source_planes<T, N> src, planes<T, N> dst, const matrix<2, 4>& coeffs,
                                        const warping& options = {}) {
  const rect roi = detail::whole(options.roi, src.size());
  const rect dst_roi = detail::whole(options.dst_roi, dst.size());
  const int inter = detail::interpolation_of(options.inter, options.smooth_edge);
  return detail::call<members::warp_bilinear_back_planes<T, 200 + N>>(
      detail::at(src), src.size(), src.step(), roi, detail::at(dst), dst.step(), dst_roi, detail::at(coeffs), inter);
}

// huxiWarpBilinearQuad: an image warped by a bilinear map that carries the vertices of srcQuad to those of dstQuad.
template <class T, int C>
requires exists<members::warp_bilinear_quad<T, C>>
[[nodiscard]] status warp_bilinear_quad(source<T, C> src, view<T, C> dst, const quad& src_quad, const quad& dst_quad,
                                        const warping& options = {}) {
  const rect roi = detail::whole(options.roi, src.size());
  const rect dst_roi = detail::whole(options.dst_roi, dst.size());
  const int inter = detail::interpolation_of(options.inter, options.smooth_edge);
  return detail::call<members::warp_bilinear_quad<T, C>>(detail::at(src), src.size(), src.step(), roi,
                                                         detail::at(src_quad), detail::at(dst), dst.step(), dst_roi,
                                                         detail::at(dst_quad), inter);
}

// huxiWarpBilinearQuad: an image warped by a bilinear map that carries the vertices of srcQuad to those of dstQuad.
template <class T, int N>
requires exists<members::warp_bilinear_quad_planes<T, 200 + N>>
[[nodiscard]] status warp_bilinear_quad(source_planes<T, N> src, planes<T, N> dst, const quad& src_quad,
                                        const quad& dst_quad, const warping& options = {}) {
  const rect roi = detail::whole(options.roi, src.size());
  const rect dst_roi = detail::whole(options.dst_roi, dst.size());
  const int inter = detail::interpolation_of(options.inter, options.smooth_edge);
  return detail::call<members::warp_bilinear_quad_planes<T, 200 + N>>(detail::at(src), src.size(), src.step(), roi,
                                                                      detail::at(src_quad), detail::at(dst), dst.step(),
                                                                      dst_roi, detail::at(dst_quad), inter);
}

// huxiWarpPerspective: an image warped by a perspective map, whose coefficients carry the source to the destination.
template <class T, int C>
requires exists<members::warp_perspective<T, C>>
[[nodiscard]] status warp_perspective(source<T, C> src, view<T, C> dst, const matrix<3, 3>& coeffs,
                                      const warping& options = {}) {
  const rect roi = detail::whole(options.roi, src.size());
  const rect dst_roi = detail::whole(options.dst_roi, dst.size());
  const int inter = detail::interpolation_of(options.inter, options.smooth_edge);
  return detail::call<members::warp_perspective<T, C>>(detail::at(src), src.size(), src.step(), roi, detail::at(dst),
                                                       dst.step(), dst_roi, detail::at(coeffs), inter);
}

// huxiWarpPerspective: an image warped by a perspective map, whose coefficients carry the source to the destination.
template <class T, int N>
requires exists<members::warp_perspective_planes<T, 200 + N>>
[[nodiscard]] status warp_perspective(source_planes<T, N> src, planes<T, N> dst, const matrix<3, 3>& coeffs,
                                      const warping& options = {}) {
  const rect roi = detail::whole(options.roi, src.size());
  const rect dst_roi = detail::whole(options.dst_roi, dst.size());
  const int inter = detail::interpolation_of(options.inter, options.smooth_edge);
  return detail::call<members::warp_perspective_planes<T, 200 + N>>(
      detail::at(src), src.size(), src.step(), roi, detail::at(dst), dst.step(), dst_roi, detail::at(coeffs), inter);
}

// huxiWarpPerspectiveBack: an image warped by a perspective map, whose coefficients carry the destination to the
// source.
template <class T, int C>
requires exists<members::warp_perspective_back<T, C>>
[[nodiscard]] status warp_perspective_back(source<T, C> src, view<T, C> dst, const matrix<3, 3>& coeffs,
                                           const warping& options = {}) {
  const rect roi = detail::whole(options.roi, src.size());
  const rect dst_roi = detail::whole(options.dst_roi, dst.size());
  const int inter = detail::interpolation_of(options.inter, options.smooth_edge);
  return detail::call<members::warp_perspective_back<T, C>>(
      detail::at(src), src.size(), src.step(), roi, detail::at(dst), dst.step(), dst_roi, detail::at(coeffs), inter);
}

// huxiWarpPerspectiveBack: an image warped by a perspective map, whose coefficients carry the destination to the
// source.
template <class T, int N>
requires exists<members::warp_perspective_back_planes<T, 200 + N>>
[[nodiscard]] status warp_perspective_back(source_planes<T, N> src, planes<T, N> dst, const matrix<3, 3>& coeffs,
                                           const warping& options = {}) {
  const rect roi = detail::whole(options.roi, src.size());
  const rect dst_roi = detail::whole(options.dst_roi, dst.size());
  const int inter = detail::interpolation_of(options.inter, options.smooth_edge);
  return detail::call<members::warp_perspective_back_planes<T, 200 + N>>(
      detail::at(src), src.size(), src.step(), roi, detail::at(dst), dst.step(), dst_roi, detail::at(coeffs), inter);
}

// huxiWarpPerspectiveQuad: an image warped by the perspective map that carries the vertices of srcQuad to those of
// dstQuad.
template <class T, int C>
requires exists<members::warp_perspective_quad<T, C>>
[[nodiscard]] status warp_perspective_quad(source<T, C> src, view<T, C> dst, const quad& src_quad, const quad& dst_quad,
                                           const warping& options = {}) {
  const rect roi = detail::whole(options.roi, src.size());
  const rect dst_roi = detail::whole(options.dst_roi, dst.size());
  const int inter = detail::interpolation_of(options.inter, options.smooth_edge);
  return detail::call<members::warp_perspective_quad<T, C>>(detail::at(src), src.size(), src.step(), roi,
                                                            detail::at(src_quad), detail::at(dst), dst.step(), dst_roi,
                                                            detail::at(dst_quad), inter);
}

// huxiWarpPerspectiveQuad: an image warped by the perspective map that carries the vertices of srcQuad to those of
// dstQuad.
template <class T, int N>
requires exists<members::warp_perspective_quad_planes<T, 200 + N>>
[[nodiscard]] status warp_perspective_quad(source_planes<T, N> src, planes<T, N> dst, const quad& src_quad,
                                           const quad& dst_quad, const warping& options = {}) {
  const rect roi = detail::whole(options.roi, src.size());
  const rect dst_roi = detail::whole(options.dst_roi, dst.size());
  const int inter = detail::interpolation_of(options.inter, options.smooth_edge);
  return detail::call<members::warp_perspective_quad_planes<T, 200 + N>>(
      detail::at(src), src.size(), src.step(), roi, detail::at(src_quad), detail::at(dst), dst.step(), dst_roi,
      detail::at(dst_quad), inter);
}

// huxiRemap: pixel (i, j) of the destination region is the source at (pxMap(i, j), pyMap(i, j)).
template <class T, int C>
requires exists<members::remap<T, C>>
[[nodiscard]] status remap(source<T, C> src, source<float, 1> x_map, source<float, 1> y_map, view<T, C> dst,
                           const mapping& options = {}) {
  if (!detail::agree(dst, x_map, y_map)) return status::bad_size;
  const rect roi = detail::whole(options.roi, src.size());
  const int inter = detail::interpolation_of(options.inter, options.smooth_edge);
  return detail::call<members::remap<T, C>>(detail::at(src), src.size(), src.step(), roi, detail::at(x_map),
                                            x_map.step(), detail::at(y_map), y_map.step(), detail::at(dst), dst.step(),
                                            dst.size(), inter);
}

// huxiRemap: pixel (i, j) of the destination region is the source at (pxMap(i, j), pyMap(i, j)).
template <class T, int N>
requires exists<members::remap_planes<T, 200 + N>>
[[nodiscard]] status remap(source_planes<T, N> src, source<float, 1> x_map, source<float, 1> y_map, planes<T, N> dst,
                           const mapping& options = {}) {
  if (!detail::agree(dst, x_map, y_map)) return status::bad_size;
  const rect roi = detail::whole(options.roi, src.size());
  const int inter = detail::interpolation_of(options.inter, options.smooth_edge);
  return detail::call<members::remap_planes<T, 200 + N>>(detail::at(src), src.size(), src.step(), roi,
                                                         detail::at(x_map), x_map.step(), detail::at(y_map),
                                                         y_map.step(), detail::at(dst), dst.step(), dst.size(), inter);
}

}  // namespace nothrow

[[nodiscard]] inline quad get_affine_quad(rect src_roi, const matrix<2, 3>& coeffs) {
  return detail::checked(nothrow::get_affine_quad(src_roi, coeffs), "get_affine_quad");
}

[[nodiscard]] inline matrix<2, 2> get_affine_bound(rect src_roi, const matrix<2, 3>& coeffs) {
  return detail::checked(nothrow::get_affine_bound(src_roi, coeffs), "get_affine_bound");
}

[[nodiscard]] inline quad get_bilinear_quad(rect src_roi, const matrix<2, 4>& coeffs) {
  return detail::checked(nothrow::get_bilinear_quad(src_roi, coeffs), "get_bilinear_quad");
}

[[nodiscard]] inline matrix<2, 2> get_bilinear_bound(rect src_roi, const matrix<2, 4>& coeffs) {
  return detail::checked(nothrow::get_bilinear_bound(src_roi, coeffs), "get_bilinear_bound");
}

[[nodiscard]] inline quad get_perspective_quad(rect src_roi, const matrix<3, 3>& coeffs) {
  return detail::checked(nothrow::get_perspective_quad(src_roi, coeffs), "get_perspective_quad");
}

[[nodiscard]] inline matrix<2, 2> get_perspective_bound(rect src_roi, const matrix<3, 3>& coeffs) {
  return detail::checked(nothrow::get_perspective_bound(src_roi, coeffs), "get_perspective_bound");
}

[[nodiscard]] inline quad get_shear_quad(rect src_roi, double x_shear, double y_shear, double x_shift, double y_shift) {
  return detail::checked(nothrow::get_shear_quad(src_roi, x_shear, y_shear, x_shift, y_shift), "get_shear_quad");
}

[[nodiscard]] inline matrix<2, 2> get_shear_bound(rect src_roi, double x_shear, double y_shear, double x_shift,
                                                  double y_shift) {
  return detail::checked(nothrow::get_shear_bound(src_roi, x_shear, y_shear, x_shift, y_shift), "get_shear_bound");
}

[[nodiscard]] inline quad get_rotate_quad(rect src_roi, double angle, double x_shift, double y_shift) {
  return detail::checked(nothrow::get_rotate_quad(src_roi, angle, x_shift, y_shift), "get_rotate_quad");
}

[[nodiscard]] inline matrix<2, 2> get_rotate_bound(rect src_roi, double angle, double x_shift, double y_shift) {
  return detail::checked(nothrow::get_rotate_bound(src_roi, angle, x_shift, y_shift), "get_rotate_bound");
}

[[nodiscard]] inline matrix<2, 3> get_affine_transform(rect src_roi, const quad& quad) {
  return detail::checked(nothrow::get_affine_transform(src_roi, quad), "get_affine_transform");
}

[[nodiscard]] inline matrix<2, 4> get_bilinear_transform(rect src_roi, const quad& quad) {
  return detail::checked(nothrow::get_bilinear_transform(src_roi, quad), "get_bilinear_transform");
}

[[nodiscard]] inline matrix<3, 3> get_perspective_transform(rect src_roi, const quad& quad) {
  return detail::checked(nothrow::get_perspective_transform(src_roi, quad), "get_perspective_transform");
}

inline status get_rotate_shift(double x_center, double y_center, double angle, double& x_shift, double& y_shift) {
  return detail::checked(nothrow::get_rotate_shift(x_center, y_center, angle, x_shift, y_shift), "get_rotate_shift");
}

inline status add_rotate_shift(double x_center, double y_center, double angle, double& x_shift, double& y_shift) {
  return detail::checked(nothrow::add_rotate_shift(x_center, y_center, angle, x_shift, y_shift), "add_rotate_shift");
}

template <class T, int C>
requires exists<members::resize<T, C>>
status resize(source<T, C> src, view<T, C> dst, const resizing& options = {}) {
  return detail::checked(nothrow::resize(src, dst, options), "resize");
}

template <class T, int N>
requires exists<members::resize_planes<T, 200 + N>>
status resize(source_planes<T, N> src, planes<T, N> dst, const resizing& options = {}) {
  return detail::checked(nothrow::resize(src, dst, options), "resize");
}

template <class T, int C>
requires exists<members::resize_center<T, C>>
status resize_center(source<T, C> src, view<T, C> dst, double x_factor, double y_factor, double x_center,
                     double y_center, const mapping& options = {}) {
  return detail::checked(nothrow::resize_center(src, dst, x_factor, y_factor, x_center, y_center, options),
                         "resize_center");
}

template <class T, int N>
requires exists<members::resize_center_planes<T, 200 + N>>
status resize_center(source_planes<T, N> src, planes<T, N> dst, double x_factor, double y_factor, double x_center,
                     double y_center, const mapping& options = {}) {
  return detail::checked(nothrow::resize_center(src, dst, x_factor, y_factor, x_center, y_center, options),
                         "resize_center");
}

template <class T, int C>
requires exists<members::resize_shift<T, C>>
status resize_shift(source<T, C> src, view<T, C> dst, double x_fr, double y_fr, double x_shift, double y_shift,
                    const mapping& options = {}) {
  return detail::checked(nothrow::resize_shift(src, dst, x_fr, y_fr, x_shift, y_shift, options), "resize_shift");
}

template <class T, int N>
requires exists<members::resize_shift_planes<T, 200 + N>>
status resize_shift(source_planes<T, N> src, planes<T, N> dst, double x_fr, double y_fr, double x_shift,
                    double y_shift, const mapping& options = {}) {
  return detail::checked(nothrow::resize_shift(src, dst, x_fr, y_fr, x_shift, y_shift, options), "resize_shift");
}

[[nodiscard]] inline get_resize_fract_result get_resize_fract(extent src_size, rect src_roi, double x_factor,
                                                              double y_factor, interpolation interpolation) {
  return detail::checked(nothrow::get_resize_fract(src_size, src_roi, x_factor, y_factor, interpolation),
                         "get_resize_fract");
}

template <class T, int C>
requires exists<members::resize_sqr_pixel<T, C>>
status resize_sqr_pixel(source<T, C> src, view<T, C> dst, double x_shift, double y_shift,
                        const placing& options = {}) {
  return detail::checked(nothrow::resize_sqr_pixel(src, dst, x_shift, y_shift, options), "resize_sqr_pixel");
}

template <class T, int N>
requires exists<members::resize_sqr_pixel_planes<T, 200 + N>>
status resize_sqr_pixel(source_planes<T, N> src, planes<T, N> dst, double x_shift, double y_shift,
                        const placing& options = {}) {
  return detail::checked(nothrow::resize_sqr_pixel(src, dst, x_shift, y_shift, options), "resize_sqr_pixel");
}

template <class T, int C>
requires exists<members::resize_yuv422<T, C>>
status resize_yuv422(source<T, C> src, view<T, C> dst, const resizing& options = {}) {
  return detail::checked(nothrow::resize_yuv422(src, dst, options), "resize_yuv422");
}

template <class T, int C>
requires exists<members::warp_affine<T, C>>
status warp_affine(source<T, C> src, view<T, C> dst, const matrix<2, 3>& coeffs, const warping& options = {}) {
  return detail::checked(nothrow::warp_affine(src, dst, coeffs, options), "warp_affine");
}

template <class T, int N>
requires exists<members::warp_affine_planes<T, 200 + N>>
status warp_affine(source_planes<T, N> src, planes<T, N> dst, const matrix<2, 3>& coeffs,
                   const warping& options = {}) {
  return detail::checked(nothrow::warp_affine(src, dst, coeffs, options), "warp_affine");
}

template <class T, int C>
requires exists<members::warp_affine_back<T, C>>
status warp_affine_back(source<T, C> src, view<T, C> dst, const matrix<2, 3>& coeffs,
                        const warping& options = {}) {
  return detail::checked(nothrow::warp_affine_back(src, dst, coeffs, options), "warp_affine_back");
}

template <class T, int N>
requires exists<members::warp_affine_back_planes<T, 200 + N>>
status warp_affine_back(source_planes<T, N> src, planes<T, N> dst, const matrix<2, 3>& coeffs,
                        const warping& options = {}) {
  return detail::checked(nothrow::warp_affine_back(src, dst, coeffs, options), "warp_affine_back");
}

template <class T, int C>
requires exists<members::warp_affine_quad<T, C>>
status warp_affine_quad(source<T, C> src, view<T, C> dst, const quad& src_quad, const quad& dst_quad,
                        const warping& options = {}) {
  return detail::checked(nothrow::warp_affine_quad(src, dst, src_quad, dst_quad, options), "warp_affine_quad");
}

template <class T, int N>
requires exists<members::warp_affine_quad_planes<T, 200 + N>>
status warp_affine_quad(source_planes<T, N> src, planes<T, N> dst, const quad& src_quad, const quad& dst_quad,
                        const warping& options = {}) {
  return detail::checked(nothrow::warp_affine_quad(src, dst, src_quad, dst_quad, options), "warp_affine_quad");
}

template <class T, int C>
requires exists<members::rotate<T, C>>
status rotate(source<T, C> src, view<T, C> dst, double angle, double x_shift, double y_shift,
              const warping& options = {}) {
  return detail::checked(nothrow::rotate(src, dst, angle, x_shift, y_shift, options), "rotate");
}

template <class T, int N>
requires exists<members::rotate_planes<T, 200 + N>>
status rotate(source_planes<T, N> src, planes<T, N> dst, double angle, double x_shift, double y_shift,
              const warping& options = {}) {
  return detail::checked(nothrow::rotate(src, dst, angle, x_shift, y_shift, options), "rotate");
}

template <class T, int C>
requires exists<members::rotate_center<T, C>>
status rotate_center(source<T, C> src, view<T, C> dst, double angle, double x_center, double y_center,
                     const warping& options = {}) {
  return detail::checked(nothrow::rotate_center(src, dst, angle, x_center, y_center, options), "rotate_center");
}

template <class T, int N>
requires exists<members::rotate_center_planes<T, 200 + N>>
status rotate_center(source_planes<T, N> src, planes<T, N> dst, double angle, double x_center, double y_center,
                     const warping& options = {}) {
  return detail::checked(nothrow::rotate_center(src, dst, angle, x_center, y_center, options), "rotate_center");
}

template <class T, int C>
requires exists<members::shear<T, C>>
status shear(source<T, C> src, view<T, C> dst, double x_shear, double y_shear, double x_shift, double y_shift,
             const warping& options = {}) {
  return detail::checked(nothrow::shear(src, dst, x_shear, y_shear, x_shift, y_shift, options), "shear");
}

template <class T, int N>
requires exists<members::shear_planes<T, 200 + N>>
status shear(source_planes<T, N> src, planes<T, N> dst, double x_shear, double y_shear, double x_shift,
             double y_shift, const warping& options = {}) {
  return detail::checked(nothrow::shear(src, dst, x_shear, y_shear, x_shift, y_shift, options), "shear");
}

template <class T, int C>
requires exists<members::warp_bilinear<T, C>>
status warp_bilinear(source<T, C> src, view<T, C> dst, const matrix<2, 4>& coeffs, const warping& options = {}) {
  return detail::checked(nothrow::warp_bilinear(src, dst, coeffs, options), "warp_bilinear");
}

template <class T, int N>
requires exists<members::warp_bilinear_planes<T, 200 + N>>
status warp_bilinear(source_planes<T, N> src, planes<T, N> dst, const matrix<2, 4>& coeffs,
                     const warping& options = {}) {
  return detail::checked(nothrow::warp_bilinear(src, dst, coeffs, options), "warp_bilinear");
}

template <class T, int C>
requires exists<members::warp_bilinear_back<T, C>>
status warp_bilinear_back(source<T, C> src, view<T, C> dst, const matrix<2, 4>& coeffs,
                          const warping& options = {}) {
  return detail::checked(nothrow::warp_bilinear_back(src, dst, coeffs, options), "warp_bilinear_back");
}

template <class T, int N>
requires exists<members::warp_bilinear_back_planes<T, 200 + N>>
status warp_bilinear_back(source_planes<T, N> src, planes<T, N> dst, const matrix<2, 4>& coeffs,
                          const warping& options = {}) {
  return detail::checked(nothrow::warp_bilinear_back(src, dst, coeffs, options), "warp_bilinear_back");
}

template <class T, int C>
requires exists<members::warp_bilinear_quad<T, C>>
status warp_bilinear_quad(source<T, C> src, view<T, C> dst, const quad& src_quad, const quad& dst_quad,
                          const warping& options = {}) {
  return detail::checked(nothrow::warp_bilinear_quad(src, dst, src_quad, dst_quad, options), "warp_bilinear_quad");
}

template <class T, int N>
requires exists<members::warp_bilinear_quad_planes<T, 200 + N>>
status warp_bilinear_quad(source_planes<T, N> src, planes<T, N> dst, const quad& src_quad, const quad& dst_quad,
                          const warping& options = {}) {
  return detail::checked(nothrow::warp_bilinear_quad(src, dst, src_quad, dst_quad, options), "warp_bilinear_quad");
}

template <class T, int C>
requires exists<members::warp_perspective<T, C>>
status warp_perspective(source<T, C> src, view<T, C> dst, const matrix<3, 3>& coeffs,
                        const warping& options = {}) {
  return detail::checked(nothrow::warp_perspective(src, dst, coeffs, options), "warp_perspective");
}

template <class T, int N>
requires exists<members::warp_perspective_planes<T, 200 + N>>
status warp_perspective(source_planes<T, N> src, planes<T, N> dst, const matrix<3, 3>& coeffs,
                        const warping& options = {}) {
  return detail::checked(nothrow::warp_perspective(src, dst, coeffs, options), "warp_perspective");
}

template <class T, int C>
requires exists<members::warp_perspective_back<T, C>>
status warp_perspective_back(source<T, C> src, view<T, C> dst, const matrix<3, 3>& coeffs,
                             const warping& options = {}) {
  return detail::checked(nothrow::warp_perspective_back(src, dst, coeffs, options), "warp_perspective_back");
}

template <class T, int N>
requires exists<members::warp_perspective_back_planes<T, 200 + N>>
status warp_perspective_back(source_planes<T, N> src, planes<T, N> dst, const matrix<3, 3>& coeffs,
                             const warping& options = {}) {
  return detail::checked(nothrow::warp_perspective_back(src, dst, coeffs, options), "warp_perspective_back");
}

template <class T, int C>
requires exists<members::warp_perspective_quad<T, C>>
status warp_perspective_quad(source<T, C> src, view<T, C> dst, const quad& src_quad, const quad& dst_quad,
                             const warping& options = {}) {
  return detail::checked(nothrow::warp_perspective_quad(src, dst, src_quad, dst_quad, options),
                         "warp_perspective_quad");
}

template <class T, int N>
requires exists<members::warp_perspective_quad_planes<T, 200 + N>>
status warp_perspective_quad(source_planes<T, N> src, planes<T, N> dst, const quad& src_quad,
                             const quad& dst_quad, const warping& options = {}) {
  return detail::checked(nothrow::warp_perspective_quad(src, dst, src_quad, dst_quad, options),
                         "warp_perspective_quad");
}

template <class T, int C>
requires exists<members::remap<T, C>>
status remap(source<T, C> src, source<float, 1> x_map, source<float, 1> y_map, view<T, C> dst,
             const mapping& options = {}) {
  return detail::checked(nothrow::remap(src, x_map, y_map, dst, options), "remap");
}

template <class T, int N>
requires exists<members::remap_planes<T, 200 + N>>
status remap(source_planes<T, N> src, source<float, 1> x_map, source<float, 1> y_map, planes<T, N> dst,
             const mapping& options = {}) {
  return detail::checked(nothrow::remap(src, x_map, y_map, dst, options), "remap");
}

}  // namespace hux

#endif
