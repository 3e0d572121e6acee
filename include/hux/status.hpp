// Made by tools/cpp_front from the headers of the C library.
// Statuses and enumerations.
#ifndef HUX_STATUS_HPP
#define HUX_STATUS_HPP

#include "../huxdefs.h"

namespace hux {

// What a function returns: ok, an error (below 0), or a warning (above 0).
enum class status : int {
  ok = huxStsOk,                                     // success
  bad_arg = huxStsBadArg,                            // a numeric argument is out of its domain
  bad_size = huxStsBadSize,                          // a width, height, order or length is below its minimum
  bad_range = huxStsBadRange,                        // lower bound above upper bound
  null_ptr = huxStsNullPtr,                          // a required pointer is null
  no_mem = huxStsNoMem,                              // allocation of a work buffer or context failed
  div_by_zero = huxStsDivByZero,                     // a constant divisor is zero
  bad_bit_size = huxStsBadBitSize,                   // palette bit size outside 1..8 (8u source) or 1..16 (16u source)
  bad_scale_range = huxStsBadScaleRange,             // vMax not above vMin
  bad_step = huxStsBadStep,                          // a row step is below 1, or below the minimum of the family
  bad_order = huxStsBadOrder,                        // transform order outside 0..30
  bad_flag = huxStsBadFlag,                          // transform normalisation flag unknown
  bad_context = huxStsBadContext,                    // a context record does not belong to this function
  bad_threshold = huxStsBadThreshold,                // lower threshold above upper threshold
  moment_too_small = huxStsMomentTooSmall,           // the normalising moment is zero or too small to divide by
  bad_axis = huxStsBadAxis,                          // mirror axis unknown
  bad_interpolation = huxStsBadInterpolation,        // interpolation mode unknown
  bad_resize_factor = huxStsBadResizeFactor,         // a resize factor is not positive
  bad_mask_size = huxStsBadMaskSize,                 // mask size, or HuxiMaskSize value, not allowed
  bad_anchor = huxStsBadAnchor,                      // anchor outside the mask
  bad_eps = huxStsBadEps,                            // eps negative or NaN
  step_below_width = huxStsStepBelowWidth,           // a step is smaller than one row of the region
  bad_moment_index = huxStsBadMomentIndex,           // channel or order index outside the moment state
  bad_alpha_type = huxStsBadAlphaType,               // alpha composition type outside 0..11
  bad_divisor = huxStsBadDivisor,                    // integer filter divisor is zero
  bad_channel_count = huxStsBadChannelCount,         // channel count not 1, 3 or 4
  bad_quad = huxStsBadQuad,                          // coefficients singular, or giving a degenerate quadrangle
  bad_rect = huxStsBadRect,                          // rectangle has no extent
  bad_coeffs = huxStsBadCoeffs,                      // a quadrangle given by the caller is degenerate
  zero_mask = huxStsZeroMask,                        // the structuring element is all zero
  bad_channel_order = huxStsBadChannelOrder,         // a channel index outside 0..2
  bad_lut_levels = huxStsBadLutLevels,               // fewer than 2 look-up levels
  bad_hist_levels = huxStsBadHistLevels,             // fewer than 2 histogram levels
  step_not_multiple_of4 = huxStsStepNotMultipleOf4,  // step not a multiple of 4
  bad_noise = huxStsBadNoise,                        // noise argument outside 0 up to but not including 1
  resize_too_small = huxStsResizeTooSmall,           // the destination would be less than one pixel
  internal = huxStsInternal,                         // a comparison mode that the function does not handle
  empty_dest_warn = huxStsEmptyDestWarn,             // the destination region comes out empty, nothing is written
  sqrt_neg_warn = huxStsSqrtNegWarn,                 // the square root of a negative value was met
  div_by_zero_warn = huxStsDivByZeroWarn,            // a zero denominator was met
  log_zero_warn = huxStsLogZeroWarn,                 // the logarithm of zero was met
  log_neg_warn = huxStsLogNegWarn,                   // the logarithm of a negative value was met
  quad_not_affine_warn =
      huxStsQuadNotAffineWarn,            // the quadrangle is not a parallelogram; three of its corners are fitted
  no_overlap_warn = huxStsNoOverlapWarn,  // source region and image do not intersect; nothing was done
  quad_outside_warn =
      huxStsQuadOutsideWarn,  // the transformed quadrangle misses the destination region; nothing was done
};

// One line about a status.
inline const char* message(status code) {
  switch (code) {
    case status::ok:
      return "ok: success";
    case status::bad_arg:
      return "bad_arg: a numeric argument is out of its domain";
    case status::bad_size:
      return "bad_size: a width, height, order or length is below its minimum";
    case status::bad_range:
      return "bad_range: lower bound above upper bound";
    case status::null_ptr:
      return "null_ptr: a required pointer is null";
    case status::no_mem:
      return "no_mem: allocation of a work buffer or context failed";
    case status::div_by_zero:
      return "div_by_zero: a constant divisor is zero";
    case status::bad_bit_size:
      return "bad_bit_size: palette bit size outside 1..8 (8u source) or 1..16 (16u source)";
    case status::bad_scale_range:
      return "bad_scale_range: vMax not above vMin";
    case status::bad_step:
      return "bad_step: a row step is below 1, or below the minimum of the family";
    case status::bad_order:
      return "bad_order: transform order outside 0..30";
    case status::bad_flag:
      return "bad_flag: transform normalisation flag unknown";
    case status::bad_context:
      return "bad_context: a context record does not belong to this function";
    case status::bad_threshold:
      return "bad_threshold: lower threshold above upper threshold";
    case status::moment_too_small:
      return "moment_too_small: the normalising moment is zero or too small to divide by";
    case status::bad_axis:
      return "bad_axis: mirror axis unknown";
    case status::bad_interpolation:
      return "bad_interpolation: interpolation mode unknown";
    case status::bad_resize_factor:
      return "bad_resize_factor: a resize factor is not positive";
    case status::bad_mask_size:
      return "bad_mask_size: mask size, or HuxiMaskSize value, not allowed";
    case status::bad_anchor:
      return "bad_anchor: anchor outside the mask";
    case status::bad_eps:
      return "bad_eps: eps negative or NaN";
    case status::step_below_width:
      return "step_below_width: a step is smaller than one row of the region";
    case status::bad_moment_index:
      return "bad_moment_index: channel or order index outside the moment state";
    case status::bad_alpha_type:
      return "bad_alpha_type: alpha composition type outside 0..11";
    case status::bad_divisor:
      return "bad_divisor: integer filter divisor is zero";
    case status::bad_channel_count:
      return "bad_channel_count: channel count not 1, 3 or 4";
    case status::bad_quad:
      return "bad_quad: coefficients singular, or giving a degenerate quadrangle";
    case status::bad_rect:
      return "bad_rect: rectangle has no extent";
    case status::bad_coeffs:
      return "bad_coeffs: a quadrangle given by the caller is degenerate";
    case status::zero_mask:
      return "zero_mask: the structuring element is all zero";
    case status::bad_channel_order:
      return "bad_channel_order: a channel index outside 0..2";
    case status::bad_lut_levels:
      return "bad_lut_levels: fewer than 2 look-up levels";
    case status::bad_hist_levels:
      return "bad_hist_levels: fewer than 2 histogram levels";
    case status::step_not_multiple_of4:
      return "step_not_multiple_of4: step not a multiple of 4";
    case status::bad_noise:
      return "bad_noise: noise argument outside 0 up to but not including 1";
    case status::resize_too_small:
      return "resize_too_small: the destination would be less than one pixel";
    case status::internal:
      return "internal: a comparison mode that the function does not handle";
    case status::empty_dest_warn:
      return "empty_dest_warn: the destination region comes out empty, nothing is written";
    case status::sqrt_neg_warn:
      return "sqrt_neg_warn: the square root of a negative value was met";
    case status::div_by_zero_warn:
      return "div_by_zero_warn: a zero denominator was met";
    case status::log_zero_warn:
      return "log_zero_warn: the logarithm of zero was met";
    case status::log_neg_warn:
      return "log_neg_warn: the logarithm of a negative value was met";
    case status::quad_not_affine_warn:
      return "quad_not_affine_warn: the quadrangle is not a parallelogram; three of its corners are fitted";
    case status::no_overlap_warn:
      return "no_overlap_warn: source region and image do not intersect; nothing was done";
    case status::quad_outside_warn:
      return "quad_outside_warn: the transformed quadrangle misses the destination region; nothing was done";
  }
  return "a status that this version does not know";
}

// Comparison of a with b.
enum class cmp_op : int {
  less = huxCmpLess,
  less_eq = huxCmpLessEq,
  eq = huxCmpEq,
  greater_eq = huxCmpGreaterEq,
  greater = huxCmpGreater
};

// Float to integer: towards zero (every value other than huxRndNear behaves so), or to nearest with ties to even.
enum class round_mode : int { zero = huxRndZero, near = huxRndNear };

// Mask of a fixed filter; the decimal digits are width, then height.
enum class mask_size : int {
  m1x3 = huxMskSize1x3,
  m1x5 = huxMskSize1x5,
  m3x1 = huxMskSize3x1,
  m3x3 = huxMskSize3x3,
  m5x1 = huxMskSize5x1,
  m5x5 = huxMskSize5x5
};

// Mirror: reverse the order of rows, of columns, or of both. ImageRamp: grow along a row, down a column, or both.
enum class axis : int { horizontal = huxAxsHorizontal, vertical = huxAxsVertical, both = huxAxsBoth };

// Composition of image A (first source) with image B; the Premul rules take colours already multiplied by alpha.
enum class alpha_type : int {
  over = huxAlphaOver,
  in = huxAlphaIn,
  out = huxAlphaOut,
  a_top = huxAlphaATop,
  xor_ = huxAlphaXor,
  plus = huxAlphaPlus,
  over_premul = huxAlphaOverPremul,
  in_premul = huxAlphaInPremul,
  out_premul = huxAlphaOutPremul,
  a_top_premul = huxAlphaATopPremul,
  xor_premul = huxAlphaXorPremul,
  plus_premul = huxAlphaPlusPremul
};

// Interpolation of the geometric functions. huxiInterSmoothEdge is a flag added to one of the modes.
enum class interpolation : int {
  nearest = huxiInterNearest,
  linear = huxiInterLinear,
  cubic = huxiInterCubic,
  super = huxiInterSuper,
  lanczos = huxiInterLanczos
};

}  // namespace hux

#endif
