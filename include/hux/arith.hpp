// Made by tools/cpp_front from the headers of the C library.
// clang-format off
// Pixel arithmetic: one element in, one element out. Plain C99.
//
// Comments name the functions of C, whose header tells units, statuses and the order of checks. In addition all
// images of a call are compared in size: status::bad_size. Functions of hux throw hux::error where C returns an
// error and return warnings; those of hux::nothrow return either. An operation on its own source is C's in place.
#ifndef HUX_ARITH_HPP
#define HUX_ARITH_HPP

#include <algorithm>

#include "call.hpp"
#include "members.hpp"

namespace hux {

namespace nothrow {

// huxiAdd: the sum pSrc1 + pSrc2, times 2^-scaleFactor.
template <class T, int C>
requires exists<members::add<T, C>>
[[nodiscard]] status add(source<T, C> a, source<T, C> b, view<T, C> dst,
                         const options_beyond<members::add<T, C>, 7, scaled>& options = {}) {
  if (!detail::agree(dst, a, b)) return status::bad_size;
  if constexpr (exists<members::add_in_place<T, C>>) {
    if (detail::same(b, dst))
      return detail::call_with<members::add_in_place<T, C>>(detail::tail(options), detail::at(a), a.step(),
                                                            detail::at(dst), dst.step(), dst.size());
    if (detail::same(a, dst))
      return detail::call_with<members::add_in_place<T, C>>(detail::tail(options), detail::at(b), b.step(),
                                                            detail::at(dst), dst.step(), dst.size());
  }
  return detail::call_with<members::add<T, C>>(detail::tail(options), detail::at(a), a.step(), detail::at(b), b.step(),
                                               detail::at(dst), dst.step(), dst.size());
}

// huxiSub: the difference pSrc2 - pSrc1, times 2^-scaleFactor; a is pSrc2 there, b is pSrc1.
template <class T, int C>
requires exists<members::sub<T, C>>
[[nodiscard]] status sub(source<T, C> a, source<T, C> b, view<T, C> dst,
                         const options_beyond<members::sub<T, C>, 7, scaled>& options = {}) {
  if (!detail::agree(dst, b, a)) return status::bad_size;
  if constexpr (exists<members::sub_in_place<T, C>>) {
    if (detail::same(a, dst))
      return detail::call_with<members::sub_in_place<T, C>>(detail::tail(options), detail::at(b), b.step(),
                                                            detail::at(dst), dst.step(), dst.size());
  }
  return detail::call_with<members::sub<T, C>>(detail::tail(options), detail::at(b), b.step(), detail::at(a), a.step(),
                                               detail::at(dst), dst.step(), dst.size());
}

// huxiMul: the product pSrc1 * pSrc2, times 2^-scaleFactor.
template <class T, int C>
requires exists<members::mul<T, C>>
[[nodiscard]] status mul(source<T, C> a, source<T, C> b, view<T, C> dst,
                         const options_beyond<members::mul<T, C>, 7, scaled>& options = {}) {
  if (!detail::agree(dst, a, b)) return status::bad_size;
  if constexpr (exists<members::mul_in_place<T, C>>) {
    if (detail::same(b, dst))
      return detail::call_with<members::mul_in_place<T, C>>(detail::tail(options), detail::at(a), a.step(),
                                                            detail::at(dst), dst.step(), dst.size());
    if (detail::same(a, dst))
      return detail::call_with<members::mul_in_place<T, C>>(detail::tail(options), detail::at(b), b.step(),
                                                            detail::at(dst), dst.step(), dst.size());
  }
  return detail::call_with<members::mul<T, C>>(detail::tail(options), detail::at(a), a.step(), detail::at(b), b.step(),
                                               detail::at(dst), dst.step(), dst.size());
}

// huxiAddC: the sum pSrc + value, times 2^-scaleFactor.
template <class T, int C>
requires exists<members::add_c<T, C>>
[[nodiscard]] status add(source<T, C> src, values<T, C> value, view<T, C> dst,
                         const options_beyond<members::add_c<T, C>, 6, scaled>& options = {}) {
  if (!detail::agree(dst, src)) return status::bad_size;
  if constexpr (exists<members::add_c_in_place<T, C>>) {
    if (detail::same(src, dst))
      return detail::call_with<members::add_c_in_place<T, C>>(detail::tail(options), detail::at(value), detail::at(dst),
                                                              dst.step(), dst.size());
  }
  return detail::call_with<members::add_c<T, C>>(detail::tail(options), detail::at(src), src.step(), detail::at(value),
                                                 detail::at(dst), dst.step(), dst.size());
}

// huxiSubC: the difference pSrc - value, times 2^-scaleFactor.
template <class T, int C>
requires exists<members::sub_c<T, C>>
[[nodiscard]] status sub(source<T, C> src, values<T, C> value, view<T, C> dst,
                         const options_beyond<members::sub_c<T, C>, 6, scaled>& options = {}) {
  if (!detail::agree(dst, src)) return status::bad_size;
  if constexpr (exists<members::sub_c_in_place<T, C>>) {
    if (detail::same(src, dst))
      return detail::call_with<members::sub_c_in_place<T, C>>(detail::tail(options), detail::at(value), detail::at(dst),
                                                              dst.step(), dst.size());
  }
  return detail::call_with<members::sub_c<T, C>>(detail::tail(options), detail::at(src), src.step(), detail::at(value),
                                                 detail::at(dst), dst.step(), dst.size());
}

// huxiMulC: the product pSrc * value, times 2^-scaleFactor.
template <class T, int C>
requires exists<members::mul_c<T, C>>
[[nodiscard]] status mul(source<T, C> src, values<T, C> value, view<T, C> dst,
                         const options_beyond<members::mul_c<T, C>, 6, scaled>& options = {}) {
  if (!detail::agree(dst, src)) return status::bad_size;
  if constexpr (exists<members::mul_c_in_place<T, C>>) {
    if (detail::same(src, dst))
      return detail::call_with<members::mul_c_in_place<T, C>>(detail::tail(options), detail::at(value), detail::at(dst),
                                                              dst.step(), dst.size());
  }
  return detail::call_with<members::mul_c<T, C>>(detail::tail(options), detail::at(src), src.step(), detail::at(value),
                                                 detail::at(dst), dst.step(), dst.size());
}

// huxiDiv: the quotient pSrc2 / pSrc1, times 2^-scaleFactor; a is pSrc2 there, b is pSrc1.
template <class T, int C>
requires exists<members::div<T, C>>
[[nodiscard]] status div(source<T, C> a, source<T, C> b, view<T, C> dst,
                         const options_beyond<members::div<T, C>, 7, scaled>& options = {}) {
  if (!detail::agree(dst, b, a)) return status::bad_size;
  if constexpr (exists<members::div_in_place<T, C>>) {
    if (detail::same(a, dst))
      return detail::call_with<members::div_in_place<T, C>>(detail::tail(options), detail::at(b), b.step(),
                                                            detail::at(dst), dst.step(), dst.size());
  }
  return detail::call_with<members::div<T, C>>(detail::tail(options), detail::at(b), b.step(), detail::at(a), a.step(),
                                               detail::at(dst), dst.step(), dst.size());
}

// huxiDivC: the quotient pSrc / value, times 2^-scaleFactor.
template <class T, int C>
requires exists<members::div_c<T, C>>
[[nodiscard]] status div(source<T, C> src, values<T, C> value, view<T, C> dst,
                         const options_beyond<members::div_c<T, C>, 6, scaled>& options = {}) {
  if (!detail::agree(dst, src)) return status::bad_size;
  if constexpr (exists<members::div_c_in_place<T, C>>) {
    if (detail::same(src, dst))
      return detail::call_with<members::div_c_in_place<T, C>>(detail::tail(options), detail::at(value), detail::at(dst),
                                                              dst.step(), dst.size());
  }
  return detail::call_with<members::div_c<T, C>>(detail::tail(options), detail::at(src), src.step(), detail::at(value),
                                                 detail::at(dst), dst.step(), dst.size());
}

// huxiAbs: the absolute value.
template <class T, int C>
requires exists<members::abs<T, C>>
[[nodiscard]] status abs(source<T, C> src, view<T, C> dst) {
  if (!detail::agree(dst, src)) return status::bad_size;
  if constexpr (exists<members::abs_in_place<T, C>>) {
    if (detail::same(src, dst))
      return detail::call<members::abs_in_place<T, C>>(detail::at(dst), dst.step(), dst.size());
  }
  return detail::call<members::abs<T, C>>(detail::at(src), src.step(), detail::at(dst), dst.step(), dst.size());
}

// huxiSqr: the square, times 2^-scaleFactor.
template <class T, int C>
requires exists<members::sqr<T, C>>
[[nodiscard]] status sqr(source<T, C> src, view<T, C> dst,
                         const options_beyond<members::sqr<T, C>, 5, scaled>& options = {}) {
  if (!detail::agree(dst, src)) return status::bad_size;
  if constexpr (exists<members::sqr_in_place<T, C>>) {
    if (detail::same(src, dst))
      return detail::call_with<members::sqr_in_place<T, C>>(detail::tail(options), detail::at(dst), dst.step(),
                                                            dst.size());
  }
  return detail::call_with<members::sqr<T, C>>(detail::tail(options), detail::at(src), src.step(), detail::at(dst),
                                               dst.step(), dst.size());
}

// huxiSqrt: the square root, times 2^-scaleFactor.
template <class T, int C>
requires exists_either<members::sqrt<T, C>, members::sqrt_in_place<T, C>>
[[nodiscard]] status sqrt(source<T, C> src, view<T, C> dst,
                          const options_beyond<members::sqrt<T, C>, 5, scaled>& options = {}) {
  if (!detail::agree(dst, src)) return status::bad_size;
  if constexpr (exists<members::sqrt_in_place<T, C>>) {
    if (detail::same(src, dst))
      return detail::call_with<members::sqrt_in_place<T, C>>(detail::tail(options), detail::at(dst), dst.step(),
                                                             dst.size());
    if constexpr (!exists<members::sqrt<T, C>>) {
      detail::copy_rows(src, dst);
      return detail::call_with<members::sqrt_in_place<T, C>>(detail::tail(options), detail::at(dst), dst.step(),
                                                             dst.size());
    }
  }
  if constexpr (exists<members::sqrt<T, C>>)
    return detail::call_with<members::sqrt<T, C>>(detail::tail(options), detail::at(src), src.step(), detail::at(dst),
                                                  dst.step(), dst.size());
}

// huxiExp: the exponential, e to the power of the element, times 2^-scaleFactor.
template <class T, int C>
requires exists<members::exp<T, C>>
[[nodiscard]] status exp(source<T, C> src, view<T, C> dst,
                         const options_beyond<members::exp<T, C>, 5, scaled>& options = {}) {
  if (!detail::agree(dst, src)) return status::bad_size;
  if constexpr (exists<members::exp_in_place<T, C>>) {
    if (detail::same(src, dst))
      return detail::call_with<members::exp_in_place<T, C>>(detail::tail(options), detail::at(dst), dst.step(),
                                                            dst.size());
  }
  return detail::call_with<members::exp<T, C>>(detail::tail(options), detail::at(src), src.step(), detail::at(dst),
                                               dst.step(), dst.size());
}

// huxiLn: the natural logarithm, times 2^-scaleFactor.
template <class T, int C>
requires exists<members::ln<T, C>>
[[nodiscard]] status ln(source<T, C> src, view<T, C> dst,
                        const options_beyond<members::ln<T, C>, 5, scaled>& options = {}) {
  if (!detail::agree(dst, src)) return status::bad_size;
  if constexpr (exists<members::ln_in_place<T, C>>) {
    if (detail::same(src, dst))
      return detail::call_with<members::ln_in_place<T, C>>(detail::tail(options), detail::at(dst), dst.step(),
                                                           dst.size());
  }
  return detail::call_with<members::ln<T, C>>(detail::tail(options), detail::at(src), src.step(), detail::at(dst),
                                              dst.step(), dst.size());
}

// huxiAnd: operations on the bits of each element of two images, or of an image and a constant.
template <class T, int C>
requires exists<members::and_<T, C>>
[[nodiscard]] status and_(source<T, C> a, source<T, C> b, view<T, C> dst) {
  if (!detail::agree(dst, a, b)) return status::bad_size;
  if constexpr (exists<members::and_in_place<T, C>>) {
    if (detail::same(b, dst))
      return detail::call<members::and_in_place<T, C>>(detail::at(a), a.step(), detail::at(dst), dst.step(),
                                                       dst.size());
    if (detail::same(a, dst))
      return detail::call<members::and_in_place<T, C>>(detail::at(b), b.step(), detail::at(dst), dst.step(),
                                                       dst.size());
  }
  return detail::call<members::and_<T, C>>(detail::at(a), a.step(), detail::at(b), b.step(), detail::at(dst),
                                           dst.step(), dst.size());
}

// huxiOr: operations on the bits of each element of two images, or of an image and a constant.
template <class T, int C>
requires exists<members::or_<T, C>>
[[nodiscard]] status or_(source<T, C> a, source<T, C> b, view<T, C> dst) {
  if (!detail::agree(dst, a, b)) return status::bad_size;
  if constexpr (exists<members::or_in_place<T, C>>) {
    if (detail::same(b, dst))
      return detail::call<members::or_in_place<T, C>>(detail::at(a), a.step(), detail::at(dst), dst.step(), dst.size());
    if (detail::same(a, dst))
      return detail::call<members::or_in_place<T, C>>(detail::at(b), b.step(), detail::at(dst), dst.step(), dst.size());
  }
  return detail::call<members::or_<T, C>>(detail::at(a), a.step(), detail::at(b), b.step(), detail::at(dst), dst.step(),
                                          dst.size());
}

// huxiXor: operations on the bits of each element of two images, or of an image and a constant.
template <class T, int C>
requires exists<members::xor_<T, C>>
[[nodiscard]] status xor_(source<T, C> a, source<T, C> b, view<T, C> dst) {
  if (!detail::agree(dst, a, b)) return status::bad_size;
  if constexpr (exists<members::xor_in_place<T, C>>) {
    if (detail::same(b, dst))
      return detail::call<members::xor_in_place<T, C>>(detail::at(a), a.step(), detail::at(dst), dst.step(),
                                                       dst.size());
    if (detail::same(a, dst))
      return detail::call<members::xor_in_place<T, C>>(detail::at(b), b.step(), detail::at(dst), dst.step(),
                                                       dst.size());
  }
  return detail::call<members::xor_<T, C>>(detail::at(a), a.step(), detail::at(b), b.step(), detail::at(dst),
                                           dst.step(), dst.size());
}

// huxiAndC: operations on the bits of each element of two images, or of an image and a constant.
template <class T, int C>
requires exists<members::and_c<T, C>>
[[nodiscard]] status and_(source<T, C> src, values<T, C> value, view<T, C> dst) {
  if (!detail::agree(dst, src)) return status::bad_size;
  if constexpr (exists<members::and_c_in_place<T, C>>) {
    if (detail::same(src, dst))
      return detail::call<members::and_c_in_place<T, C>>(detail::at(value), detail::at(dst), dst.step(), dst.size());
  }
  return detail::call<members::and_c<T, C>>(detail::at(src), src.step(), detail::at(value), detail::at(dst), dst.step(),
                                            dst.size());
}

// huxiOrC: operations on the bits of each element of two images, or of an image and a constant.
template <class T, int C>
requires exists<members::or_c<T, C>>
[[nodiscard]] status or_(source<T, C> src, values<T, C> value, view<T, C> dst) {
  if (!detail::agree(dst, src)) return status::bad_size;
  if constexpr (exists<members::or_c_in_place<T, C>>) {
    if (detail::same(src, dst))
      return detail::call<members::or_c_in_place<T, C>>(detail::at(value), detail::at(dst), dst.step(), dst.size());
  }
  return detail::call<members::or_c<T, C>>(detail::at(src), src.step(), detail::at(value), detail::at(dst), dst.step(),
                                           dst.size());
}

// huxiXorC: operations on the bits of each element of two images, or of an image and a constant.
template <class T, int C>
requires exists<members::xor_c<T, C>>
[[nodiscard]] status xor_(source<T, C> src, values<T, C> value, view<T, C> dst) {
  if (!detail::agree(dst, src)) return status::bad_size;
  if constexpr (exists<members::xor_c_in_place<T, C>>) {
    if (detail::same(src, dst))
      return detail::call<members::xor_c_in_place<T, C>>(detail::at(value), detail::at(dst), dst.step(), dst.size());
  }
  return detail::call<members::xor_c<T, C>>(detail::at(src), src.step(), detail::at(value), detail::at(dst), dst.step(),
                                            dst.size());
}

// huxiNot: inverts all bits of each element.
template <class T, int C>
requires exists<members::not_<T, C>>
[[nodiscard]] status not_(source<T, C> src, view<T, C> dst) {
  if (!detail::agree(dst, src)) return status::bad_size;
  if constexpr (exists<members::not_in_place<T, C>>) {
    if (detail::same(src, dst))
      return detail::call<members::not_in_place<T, C>>(detail::at(dst), dst.step(), dst.size());
  }
  return detail::call<members::not_<T, C>>(detail::at(src), src.step(), detail::at(dst), dst.step(), dst.size());
}

// huxiLShiftC: shift the bits of each element to the left or to the right by a constant count.
template <class T, int C>
requires exists<members::l_shift_c<T, C>>
[[nodiscard]] status l_shift(source<T, C> src, values<std::uint32_t, C> value, view<T, C> dst) {
  if (!detail::agree(dst, src)) return status::bad_size;
  if constexpr (exists<members::l_shift_c_in_place<T, C>>) {
    if (detail::same(src, dst))
      return detail::call<members::l_shift_c_in_place<T, C>>(detail::at(value), detail::at(dst), dst.step(),
                                                             dst.size());
  }
  return detail::call<members::l_shift_c<T, C>>(detail::at(src), src.step(), detail::at(value), detail::at(dst),
                                                dst.step(), dst.size());
}

// huxiRShiftC: shift the bits of each element to the left or to the right by a constant count.
template <class T, int C>
requires exists<members::r_shift_c<T, C>>
[[nodiscard]] status r_shift(source<T, C> src, values<std::uint32_t, C> value, view<T, C> dst) {
  if (!detail::agree(dst, src)) return status::bad_size;
  if constexpr (exists<members::r_shift_c_in_place<T, C>>) {
    if (detail::same(src, dst))
      return detail::call<members::r_shift_c_in_place<T, C>>(detail::at(value), detail::at(dst), dst.step(),
                                                             dst.size());
  }
  return detail::call<members::r_shift_c<T, C>>(detail::at(src), src.step(), detail::at(value), detail::at(dst),
                                                dst.step(), dst.size());
}

// huxiMulScale: the product of two images, or of an image and a constant, as fractions of the type's maximum.
template <class T, int C>
requires exists<members::mul_scale<T, C>>
[[nodiscard]] status mul_scale(source<T, C> a, source<T, C> b, view<T, C> dst) {
  if (!detail::agree(dst, a, b)) return status::bad_size;
  if constexpr (exists<members::mul_scale_in_place<T, C>>) {
    if (detail::same(b, dst))
      return detail::call<members::mul_scale_in_place<T, C>>(detail::at(a), a.step(), detail::at(dst), dst.step(),
                                                             dst.size());
    if (detail::same(a, dst))
      return detail::call<members::mul_scale_in_place<T, C>>(detail::at(b), b.step(), detail::at(dst), dst.step(),
                                                             dst.size());
  }
  return detail::call<members::mul_scale<T, C>>(detail::at(a), a.step(), detail::at(b), b.step(), detail::at(dst),
                                                dst.step(), dst.size());
}

// huxiMulCScale: the product of two images, or of an image and a constant, as fractions of the type's maximum.
template <class T, int C>
requires exists<members::mul_c_scale<T, C>>
[[nodiscard]] status mul_scale(source<T, C> src, values<T, C> value, view<T, C> dst) {
  if (!detail::agree(dst, src)) return status::bad_size;
  if constexpr (exists<members::mul_c_scale_in_place<T, C>>) {
    if (detail::same(src, dst))
      return detail::call<members::mul_c_scale_in_place<T, C>>(detail::at(value), detail::at(dst), dst.step(),
                                                               dst.size());
  }
  return detail::call<members::mul_c_scale<T, C>>(detail::at(src), src.step(), detail::at(value), detail::at(dst),
                                                  dst.step(), dst.size());
}

// huxiComplement: turns two's complement into sign and magnitude, in place.
template <class T, int C>
requires exists<members::complement_in_place<T, C>>
[[nodiscard]] status complement(view<T, C> dst) {
  return detail::call<members::complement_in_place<T, C>>(detail::at(dst), dst.step(), dst.size());
}

// huxiAlphaComp: composes image A (pSrc1) with image B (pSrc2) by alphaType.
template <class T, int C>
requires exists<members::alpha_comp<T, C>>
[[nodiscard]] status alpha_comp(source<T, C> a, source<T, C> b, view<T, C> dst, alpha_type alpha_type) {
  if (!detail::agree(dst, a, b)) return status::bad_size;
  return detail::call<members::alpha_comp<T, C>>(detail::at(a), a.step(), detail::at(b), b.step(), detail::at(dst),
                                                 dst.step(), dst.size(), static_cast<int>(alpha_type));
}

// huxiAlphaComp: composes image A (pSrc1) with image B (pSrc2) by alphaType.
template <class T, int N>
requires exists<members::alpha_comp_planes<T, 200 + N>>
[[nodiscard]] status alpha_comp(source_planes<T, N> a, source_planes<T, N> b, planes<T, N> dst, alpha_type alpha_type) {
  if (!detail::agree(dst, a, b)) return status::bad_size;
  return detail::call<members::alpha_comp_planes<T, 200 + N>>(detail::at(a), a.step(), detail::at(b), b.step(),
                                                              detail::at(dst), dst.step(), dst.size(),
                                                              static_cast<int>(alpha_type));
}

// huxiAlphaCompC: composes two images as AlphaComp does, with one alpha for each image.
template <class T, int C>
requires exists<members::alpha_comp_c<T, C>>
[[nodiscard]] status alpha_comp(source<T, C> a, source<T, C> b, view<T, C> dst, std::type_identity_t<T> alpha1,
                                std::type_identity_t<T> alpha2, alpha_type alpha_type) {
  if (!detail::agree(dst, a, b)) return status::bad_size;
  return detail::call<members::alpha_comp_c<T, C>>(detail::at(a), a.step(), alpha1, detail::at(b), b.step(), alpha2,
                                                   detail::at(dst), dst.step(), dst.size(),
                                                   static_cast<int>(alpha_type));
}

// huxiAlphaCompC: composes two images as AlphaComp does, with one alpha for each image.
template <class T, int N>
requires exists<members::alpha_comp_c_planes<T, 200 + N>>
[[nodiscard]] status alpha_comp(source_planes<T, N> a, source_planes<T, N> b, planes<T, N> dst,
                                std::type_identity_t<T> alpha1, std::type_identity_t<T> alpha2, alpha_type alpha_type) {
  if (!detail::agree(dst, a, b)) return status::bad_size;
  return detail::call<members::alpha_comp_c_planes<T, 200 + N>>(detail::at(a), a.step(), alpha1, detail::at(b),
                                                                b.step(), alpha2, detail::at(dst), dst.step(),
                                                                dst.size(), static_cast<int>(alpha_type));
}

// huxiAlphaPremul: multiplies the colours by the alpha of their pixel.
template <class T, int C>
requires exists<members::alpha_premul<T, C>>
[[nodiscard]] status alpha_premul(source<T, C> src, view<T, C> dst) {
  if (!detail::agree(dst, src)) return status::bad_size;
  if constexpr (exists<members::alpha_premul_in_place<T, C>>) {
    if (detail::same(src, dst))
      return detail::call<members::alpha_premul_in_place<T, C>>(detail::at(dst), dst.step(), dst.size());
  }
  return detail::call<members::alpha_premul<T, C>>(detail::at(src), src.step(), detail::at(dst), dst.step(),
                                                   dst.size());
}

// huxiAlphaPremul: multiplies the colours by the alpha of their pixel.
template <class T, int N>
requires exists<members::alpha_premul_planes<T, 200 + N>>
[[nodiscard]] status alpha_premul(source_planes<T, N> src, planes<T, N> dst) {
  if (!detail::agree(dst, src)) return status::bad_size;
  if constexpr (exists<members::alpha_premul_planes_in_place<T, 200 + N>>) {
    if (detail::same(src, dst))
      return detail::call<members::alpha_premul_planes_in_place<T, 200 + N>>(detail::at(dst), dst.step(), dst.size());
  }
  return detail::call<members::alpha_premul_planes<T, 200 + N>>(detail::at(src), src.step(), detail::at(dst),
                                                                dst.step(), dst.size());
}

// huxiAlphaPremulC: multiplies the colours by one alpha.
template <class T, int C>
requires exists<members::alpha_premul_c<T, C>>
[[nodiscard]] status alpha_premul(source<T, C> src, view<T, C> dst, std::type_identity_t<T> alpha) {
  if (!detail::agree(dst, src)) return status::bad_size;
  if constexpr (exists<members::alpha_premul_c_in_place<T, C>>) {
    if (detail::same(src, dst))
      return detail::call<members::alpha_premul_c_in_place<T, C>>(alpha, detail::at(dst), dst.step(), dst.size());
  }
  return detail::call<members::alpha_premul_c<T, C>>(detail::at(src), src.step(), alpha, detail::at(dst), dst.step(),
                                                     dst.size());
}

// huxiAlphaPremulC: multiplies the colours by one alpha.
template <class T, int N>
requires exists<members::alpha_premul_c_planes<T, 200 + N>>
[[nodiscard]] status alpha_premul(source_planes<T, N> src, planes<T, N> dst, std::type_identity_t<T> alpha) {
  if (!detail::agree(dst, src)) return status::bad_size;
  if constexpr (exists<members::alpha_premul_c_planes_in_place<T, 200 + N>>) {
    if (detail::same(src, dst))
      return detail::call<members::alpha_premul_c_planes_in_place<T, 200 + N>>(alpha, detail::at(dst), dst.step(),
                                                                               dst.size());
  }
  return detail::call<members::alpha_premul_c_planes<T, 200 + N>>(detail::at(src), src.step(), alpha, detail::at(dst),
                                                                  dst.step(), dst.size());
}

// huxiThreshold: replaces elements beyond a threshold by it (Threshold, GT, LT) or by a value (Val, GTVal, LTVal,
// LTValGTVal).
template <class T, int C>
requires exists<members::threshold<T, C>>
[[nodiscard]] status threshold(source<T, C> src, values<T, C> threshold, view<T, C> dst, cmp_op cmp_op) {
  if (!detail::agree(dst, src)) return status::bad_size;
  if constexpr (exists<members::threshold_in_place<T, C>>) {
    if (detail::same(src, dst))
      return detail::call<members::threshold_in_place<T, C>>(detail::at(dst), dst.step(), dst.size(),
                                                             detail::at(threshold), static_cast<int>(cmp_op));
  }
  return detail::call<members::threshold<T, C>>(detail::at(src), src.step(), detail::at(dst), dst.step(), dst.size(),
                                                detail::at(threshold), static_cast<int>(cmp_op));
}

// huxiThreshold_GT: replaces elements beyond a threshold by it (Threshold, GT, LT) or by a value (Val, GTVal, LTVal,
// LTValGTVal).
template <class T, int C>
requires exists<members::threshold_gt<T, C>>
[[nodiscard]] status threshold_gt(source<T, C> src, values<T, C> threshold, view<T, C> dst) {
  if (!detail::agree(dst, src)) return status::bad_size;
  if constexpr (exists<members::threshold_gt_in_place<T, C>>) {
    if (detail::same(src, dst))
      return detail::call<members::threshold_gt_in_place<T, C>>(detail::at(dst), dst.step(), dst.size(),
                                                                detail::at(threshold));
  }
  return detail::call<members::threshold_gt<T, C>>(detail::at(src), src.step(), detail::at(dst), dst.step(), dst.size(),
                                                   detail::at(threshold));
}

// huxiThreshold_LT: replaces elements beyond a threshold by it (Threshold, GT, LT) or by a value (Val, GTVal, LTVal,
// LTValGTVal).
template <class T, int C>
requires exists<members::threshold_lt<T, C>>
[[nodiscard]] status threshold_lt(source<T, C> src, values<T, C> threshold, view<T, C> dst) {
  if (!detail::agree(dst, src)) return status::bad_size;
  if constexpr (exists<members::threshold_lt_in_place<T, C>>) {
    if (detail::same(src, dst))
      return detail::call<members::threshold_lt_in_place<T, C>>(detail::at(dst), dst.step(), dst.size(),
                                                                detail::at(threshold));
  }
  return detail::call<members::threshold_lt<T, C>>(detail::at(src), src.step(), detail::at(dst), dst.step(), dst.size(),
                                                   detail::at(threshold));
}

// huxiThreshold_Val: replaces elements beyond a threshold by it (Threshold, GT, LT) or by a value (Val, GTVal,
// LTVal, LTValGTVal).
template <class T, int C>
requires exists<members::threshold_val<T, C>>
[[nodiscard]] status threshold_val(source<T, C> src, values<T, C> threshold, values<T, C> value, view<T, C> dst,
                                   cmp_op cmp_op) {
  if (!detail::agree(dst, src)) return status::bad_size;
  if constexpr (exists<members::threshold_val_in_place<T, C>>) {
    if (detail::same(src, dst))
      return detail::call<members::threshold_val_in_place<T, C>>(
          detail::at(dst), dst.step(), dst.size(), detail::at(threshold), detail::at(value), static_cast<int>(cmp_op));
  }
  return detail::call<members::threshold_val<T, C>>(detail::at(src), src.step(), detail::at(dst), dst.step(),
                                                    dst.size(), detail::at(threshold), detail::at(value),
                                                    static_cast<int>(cmp_op));
}

// huxiThreshold_GTVal: replaces elements beyond a threshold by it (Threshold, GT, LT) or by a value (Val, GTVal,
// LTVal, LTValGTVal).
template <class T, int C>
requires exists<members::threshold_gt_val<T, C>>
[[nodiscard]] status threshold_gt_val(source<T, C> src, values<T, C> threshold, values<T, C> value, view<T, C> dst) {
  if (!detail::agree(dst, src)) return status::bad_size;
  if constexpr (exists<members::threshold_gt_val_in_place<T, C>>) {
    if (detail::same(src, dst))
      return detail::call<members::threshold_gt_val_in_place<T, C>>(detail::at(dst), dst.step(), dst.size(),
                                                                    detail::at(threshold), detail::at(value));
  }
  return detail::call<members::threshold_gt_val<T, C>>(detail::at(src), src.step(), detail::at(dst), dst.step(),
                                                       dst.size(), detail::at(threshold), detail::at(value));
}

// huxiThreshold_LTVal: replaces elements beyond a threshold by it (Threshold, GT, LT) or by a value (Val, GTVal,
// LTVal, LTValGTVal).
template <class T, int C>
requires exists<members::threshold_lt_val<T, C>>
[[nodiscard]] status threshold_lt_val(source<T, C> src, values<T, C> threshold, values<T, C> value, view<T, C> dst) {
  if (!detail::agree(dst, src)) return status::bad_size;
  if constexpr (exists<members::threshold_lt_val_in_place<T, C>>) {
    if (detail::same(src, dst))
      return detail::call<members::threshold_lt_val_in_place<T, C>>(detail::at(dst), dst.step(), dst.size(),
                                                                    detail::at(threshold), detail::at(value));
  }
  return detail::call<members::threshold_lt_val<T, C>>(detail::at(src), src.step(), detail::at(dst), dst.step(),
                                                       dst.size(), detail::at(threshold), detail::at(value));
}

// huxiThreshold_LTValGTVal: replaces elements beyond a threshold by it (Threshold, GT, LT) or by a value (Val,
// GTVal, LTVal, LTValGTVal).
template <class T, int C>
requires exists<members::threshold_lt_val_gt_val<T, C>>
[[nodiscard]] status threshold_lt_val_gt_val(source<T, C> src, values<T, C> threshold_lt, values<T, C> value_lt,
                                             values<T, C> threshold_gt, values<T, C> value_gt, view<T, C> dst) {
  if (!detail::agree(dst, src)) return status::bad_size;
  if constexpr (exists<members::threshold_lt_val_gt_val_in_place<T, C>>) {
    if (detail::same(src, dst))
      return detail::call<members::threshold_lt_val_gt_val_in_place<T, C>>(
          detail::at(dst), dst.step(), dst.size(), detail::at(threshold_lt), detail::at(value_lt),
          detail::at(threshold_gt), detail::at(value_gt));
  }
  return detail::call<members::threshold_lt_val_gt_val<T, C>>(
      detail::at(src), src.step(), detail::at(dst), dst.step(), dst.size(), detail::at(threshold_lt),
      detail::at(value_lt), detail::at(threshold_gt), detail::at(value_gt));
}

// huxiCompare: write 255 where a comparison of two images, or of an image and a constant, holds, else 0.
template <readable V, class S = value_type_of<V>, int CS = layout_of<V>>
requires exists<members::compare<S, CS>>
[[nodiscard]] status compare(const V& a, source<S, CS> b, view<std::uint8_t, 1> dst, cmp_op cmp_op) {
  view<const S, CS> source = a;
  if (!detail::agree(dst, source, b)) return status::bad_size;
  return detail::call<members::compare<S, CS>>(detail::at(source), source.step(), detail::at(b), b.step(),
                                               detail::at(dst), dst.step(), dst.size(), static_cast<int>(cmp_op));
}

// huxiCompareC: write 255 where a comparison of two images, or of an image and a constant, holds, else 0.
template <readable V, class S = value_type_of<V>, int CS = layout_of<V>>
requires exists<members::compare_c<S, CS>>
[[nodiscard]] status compare(const V& src, values<S, CS> value, view<std::uint8_t, 1> dst, cmp_op cmp_op) {
  view<const S, CS> source = src;
  if (!detail::agree(dst, source)) return status::bad_size;
  return detail::call<members::compare_c<S, CS>>(detail::at(source), source.step(), detail::at(value), detail::at(dst),
                                                 dst.step(), dst.size(), static_cast<int>(cmp_op));
}

// huxiCompareEqualEps: write 255 where two images, or an image and a constant, differ by no more than eps, else 0.
template <readable V, class T, int CS = layout_of<V>>
requires exists<members::compare_equal_eps<T, CS>>
[[nodiscard]] status compare_equal_eps(const V& a, source<float, CS> b, view<T, 1> dst, float eps) {
  view<const float, CS> source = a;
  if (!detail::agree(dst, source, b)) return status::bad_size;
  return detail::call<members::compare_equal_eps<T, CS>>(detail::at(source), source.step(), detail::at(b), b.step(),
                                                         detail::at(dst), dst.step(), dst.size(), eps);
}

// huxiCompareEqualEpsC: write 255 where two images, or an image and a constant, differ by no more than eps, else 0.
template <readable V, class T, int CS = layout_of<V>>
requires exists<members::compare_equal_eps_c<T, CS>>
[[nodiscard]] status compare_equal_eps(const V& src, values<float, CS> value, view<T, 1> dst, float eps) {
  view<const float, CS> source = src;
  if (!detail::agree(dst, source)) return status::bad_size;
  return detail::call<members::compare_equal_eps_c<T, CS>>(detail::at(source), source.step(), detail::at(value),
                                                           detail::at(dst), dst.step(), dst.size(), eps);
}

}  // namespace nothrow

template <class T, int C>
requires exists<members::add<T, C>>
status add(source<T, C> a, source<T, C> b, view<T, C> dst,
           const options_beyond<members::add<T, C>, 7, scaled>& options = {}) {
  return detail::checked(nothrow::add(a, b, dst, options), "add");
}

template <class T, int C>
requires exists<members::sub<T, C>>
status sub(source<T, C> a, source<T, C> b, view<T, C> dst,
           const options_beyond<members::sub<T, C>, 7, scaled>& options = {}) {
  return detail::checked(nothrow::sub(a, b, dst, options), "sub");
}

template <class T, int C>
requires exists<members::mul<T, C>>
status mul(source<T, C> a, source<T, C> b, view<T, C> dst,
           const options_beyond<members::mul<T, C>, 7, scaled>& options = {}) {
  return detail::checked(nothrow::mul(a, b, dst, options), "mul");
}

template <class T, int C>
requires exists<members::add_c<T, C>>
status add(source<T, C> src, values<T, C> value, view<T, C> dst,
           const options_beyond<members::add_c<T, C>, 6, scaled>& options = {}) {
  return detail::checked(nothrow::add(src, value, dst, options), "add");
}

template <class T, int C>
requires exists<members::sub_c<T, C>>
status sub(source<T, C> src, values<T, C> value, view<T, C> dst,
           const options_beyond<members::sub_c<T, C>, 6, scaled>& options = {}) {
  return detail::checked(nothrow::sub(src, value, dst, options), "sub");
}

template <class T, int C>
requires exists<members::mul_c<T, C>>
status mul(source<T, C> src, values<T, C> value, view<T, C> dst,
           const options_beyond<members::mul_c<T, C>, 6, scaled>& options = {}) {
  return detail::checked(nothrow::mul(src, value, dst, options), "mul");
}

template <class T, int C>
requires exists<members::div<T, C>>
status div(source<T, C> a, source<T, C> b, view<T, C> dst,
           const options_beyond<members::div<T, C>, 7, scaled>& options = {}) {
  return detail::checked(nothrow::div(a, b, dst, options), "div");
}

template <class T, int C>
requires exists<members::div_c<T, C>>
status div(source<T, C> src, values<T, C> value, view<T, C> dst,
           const options_beyond<members::div_c<T, C>, 6, scaled>& options = {}) {
  return detail::checked(nothrow::div(src, value, dst, options), "div");
}

template <class T, int C>
requires exists<members::abs<T, C>>
status abs(source<T, C> src, view<T, C> dst) { return detail::checked(nothrow::abs(src, dst), "abs"); }

template <class T, int C>
requires exists<members::sqr<T, C>>
status sqr(source<T, C> src, view<T, C> dst, const options_beyond<members::sqr<T, C>, 5, scaled>& options = {}) {
  return detail::checked(nothrow::sqr(src, dst, options), "sqr");
}

template <class T, int C>
requires exists_either<members::sqrt<T, C>, members::sqrt_in_place<T, C>>
status sqrt(source<T, C> src, view<T, C> dst,
            const options_beyond<members::sqrt<T, C>, 5, scaled>& options = {}) {
  return detail::checked(nothrow::sqrt(src, dst, options), "sqrt");
}

template <class T, int C>
requires exists<members::exp<T, C>>
status exp(source<T, C> src, view<T, C> dst, const options_beyond<members::exp<T, C>, 5, scaled>& options = {}) {
  return detail::checked(nothrow::exp(src, dst, options), "exp");
}

template <class T, int C>
requires exists<members::ln<T, C>>
status ln(source<T, C> src, view<T, C> dst, const options_beyond<members::ln<T, C>, 5, scaled>& options = {}) {
  return detail::checked(nothrow::ln(src, dst, options), "ln");
}

template <class T, int C>
requires exists<members::and_<T, C>>
status and_(source<T, C> a, source<T, C> b, view<T, C> dst) {
  return detail::checked(nothrow::and_(a, b, dst), "and_");
}

template <class T, int C>
requires exists<members::or_<T, C>>
status or_(source<T, C> a, source<T, C> b, view<T, C> dst) {
  return detail::checked(nothrow::or_(a, b, dst), "or_");
}

template <class T, int C>
requires exists<members::xor_<T, C>>
status xor_(source<T, C> a, source<T, C> b, view<T, C> dst) {
  return detail::checked(nothrow::xor_(a, b, dst), "xor_");
}

template <class T, int C>
requires exists<members::and_c<T, C>>
status and_(source<T, C> src, values<T, C> value, view<T, C> dst) {
  return detail::checked(nothrow::and_(src, value, dst), "and_");
}

template <class T, int C>
requires exists<members::or_c<T, C>>
status or_(source<T, C> src, values<T, C> value, view<T, C> dst) {
  return detail::checked(nothrow::or_(src, value, dst), "or_");
}

template <class T, int C>
requires exists<members::xor_c<T, C>>
status xor_(source<T, C> src, values<T, C> value, view<T, C> dst) {
  return detail::checked(nothrow::xor_(src, value, dst), "xor_");
}

template <class T, int C>
requires exists<members::not_<T, C>>
status not_(source<T, C> src, view<T, C> dst) { return detail::checked(nothrow::not_(src, dst), "not_"); }

template <class T, int C>
requires exists<members::l_shift_c<T, C>>
status l_shift(source<T, C> src, values<std::uint32_t, C> value, view<T, C> dst) {
  return detail::checked(nothrow::l_shift(src, value, dst), "l_shift");
}

template <class T, int C>
requires exists<members::r_shift_c<T, C>>
status r_shift(source<T, C> src, values<std::uint32_t, C> value, view<T, C> dst) {
  return detail::checked(nothrow::r_shift(src, value, dst), "r_shift");
}

template <class T, int C>
requires exists<members::mul_scale<T, C>>
status mul_scale(source<T, C> a, source<T, C> b, view<T, C> dst) {
  return detail::checked(nothrow::mul_scale(a, b, dst), "mul_scale");
}

template <class T, int C>
requires exists<members::mul_c_scale<T, C>>
status mul_scale(source<T, C> src, values<T, C> value, view<T, C> dst) {
  return detail::checked(nothrow::mul_scale(src, value, dst), "mul_scale");
}

template <class T, int C>
requires exists<members::complement_in_place<T, C>>
status complement(view<T, C> dst) { return detail::checked(nothrow::complement(dst), "complement"); }

template <class T, int C>
requires exists<members::alpha_comp<T, C>>
status alpha_comp(source<T, C> a, source<T, C> b, view<T, C> dst, alpha_type alpha_type) {
  return detail::checked(nothrow::alpha_comp(a, b, dst, alpha_type), "alpha_comp");
}

template <class T, int N>
requires exists<members::alpha_comp_planes<T, 200 + N>>
status alpha_comp(source_planes<T, N> a, source_planes<T, N> b, planes<T, N> dst, alpha_type alpha_type) {
  return detail::checked(nothrow::alpha_comp(a, b, dst, alpha_type), "alpha_comp");
}

template <class T, int C>
requires exists<members::alpha_comp_c<T, C>>
status alpha_comp(source<T, C> a, source<T, C> b, view<T, C> dst, std::type_identity_t<T> alpha1,
                  std::type_identity_t<T> alpha2, alpha_type alpha_type) {
  return detail::checked(nothrow::alpha_comp(a, b, dst, alpha1, alpha2, alpha_type), "alpha_comp");
}

template <class T, int N>
requires exists<members::alpha_comp_c_planes<T, 200 + N>>
status alpha_comp(source_planes<T, N> a, source_planes<T, N> b, planes<T, N> dst, std::type_identity_t<T> alpha1,
                  std::type_identity_t<T> alpha2, alpha_type alpha_type) {
  return detail::checked(nothrow::alpha_comp(a, b, dst, alpha1, alpha2, alpha_type), "alpha_comp");
}

template <class T, int C>
requires exists<members::alpha_premul<T, C>>
status alpha_premul(source<T, C> src, view<T, C> dst) {
  return detail::checked(nothrow::alpha_premul(src, dst), "alpha_premul");
}

template <class T, int N>
requires exists<members::alpha_premul_planes<T, 200 + N>>
status alpha_premul(source_planes<T, N> src, planes<T, N> dst) {
  return detail::checked(nothrow::alpha_premul(src, dst), "alpha_premul");
}

template <class T, int C>
requires exists<members::alpha_premul_c<T, C>>
status alpha_premul(source<T, C> src, view<T, C> dst, std::type_identity_t<T> alpha) {
  return detail::checked(nothrow::alpha_premul(src, dst, alpha), "alpha_premul");
}

template <class T, int N>
requires exists<members::alpha_premul_c_planes<T, 200 + N>>
status alpha_premul(source_planes<T, N> src, planes<T, N> dst, std::type_identity_t<T> alpha) {
  return detail::checked(nothrow::alpha_premul(src, dst, alpha), "alpha_premul");
}

template <class T, int C>
requires exists<members::threshold<T, C>>
status threshold(source<T, C> src, values<T, C> threshold, view<T, C> dst, cmp_op cmp_op) {
  return detail::checked(nothrow::threshold(src, threshold, dst, cmp_op), "threshold");
}

template <class T, int C>
requires exists<members::threshold_gt<T, C>>
status threshold_gt(source<T, C> src, values<T, C> threshold, view<T, C> dst) {
  return detail::checked(nothrow::threshold_gt(src, threshold, dst), "threshold_gt");
}

template <class T, int C>
requires exists<members::threshold_lt<T, C>>
status threshold_lt(source<T, C> src, values<T, C> threshold, view<T, C> dst) {
  return detail::checked(nothrow::threshold_lt(src, threshold, dst), "threshold_lt");
}

template <class T, int C>
requires exists<members::threshold_val<T, C>>
status threshold_val(source<T, C> src, values<T, C> threshold, values<T, C> value, view<T, C> dst,
                     cmp_op cmp_op) {
  return detail::checked(nothrow::threshold_val(src, threshold, value, dst, cmp_op), "threshold_val");
}

template <class T, int C>
requires exists<members::threshold_gt_val<T, C>>
status threshold_gt_val(source<T, C> src, values<T, C> threshold, values<T, C> value, view<T, C> dst) {
  return detail::checked(nothrow::threshold_gt_val(src, threshold, value, dst), "threshold_gt_val");
}

template <class T, int C>
requires exists<members::threshold_lt_val<T, C>>
status threshold_lt_val(source<T, C> src, values<T, C> threshold, values<T, C> value, view<T, C> dst) {
  return detail::checked(nothrow::threshold_lt_val(src, threshold, value, dst), "threshold_lt_val");
}

template <class T, int C>
requires exists<members::threshold_lt_val_gt_val<T, C>>
status threshold_lt_val_gt_val(source<T, C> src, values<T, C> threshold_lt, values<T, C> value_lt,
                               values<T, C> threshold_gt, values<T, C> value_gt, view<T, C> dst) {
  return detail::checked(nothrow::threshold_lt_val_gt_val(src, threshold_lt, value_lt, threshold_gt, value_gt, dst),
                         "threshold_lt_val_gt_val");
}

template <readable V, class S = value_type_of<V>, int CS = layout_of<V>>
requires exists<members::compare<S, CS>>
status compare(const V& a, source<S, CS> b, view<std::uint8_t, 1> dst, cmp_op cmp_op) {
  return detail::checked(nothrow::compare(a, b, dst, cmp_op), "compare");
}

template <readable V, class S = value_type_of<V>, int CS = layout_of<V>>
requires exists<members::compare_c<S, CS>>
status compare(const V& src, values<S, CS> value, view<std::uint8_t, 1> dst, cmp_op cmp_op) {
  return detail::checked(nothrow::compare(src, value, dst, cmp_op), "compare");
}

template <readable V, class T, int CS = layout_of<V>>
requires exists<members::compare_equal_eps<T, CS>>
status compare_equal_eps(const V& a, source<float, CS> b, view<T, 1> dst, float eps) {
  return detail::checked(nothrow::compare_equal_eps(a, b, dst, eps), "compare_equal_eps");
}

template <readable V, class T, int CS = layout_of<V>>
requires exists<members::compare_equal_eps_c<T, CS>>
status compare_equal_eps(const V& src, values<float, CS> value, view<T, 1> dst, float eps) {
  return detail::checked(nothrow::compare_equal_eps(src, value, dst, eps), "compare_equal_eps");
}

}  // namespace hux

#endif
