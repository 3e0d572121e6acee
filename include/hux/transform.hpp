// Made by tools/cpp_front from the headers of the C library.
// clang-format off
// Frequency transforms of images, packed spectra, wavelets. Plain C99.
//
// Comments name the functions of C, whose header tells units, statuses and the order of checks. In addition all
// images of a call are compared in size: status::bad_size. Functions of hux throw hux::error where C returns an
// error and return warnings; those of hux::nothrow return either. An operation on its own source is C's in place.
#ifndef HUX_TRANSFORM_HPP
#define HUX_TRANSFORM_HPP

#include <algorithm>

#include "call.hpp"
#include "members.hpp"

namespace hux {

namespace nothrow {

// huxiDCT8x8Fwd: the cosine transform of a block of 8 by 8 samples, and its inverse.
template <class T>
requires exists<members::dct8x8_fwd_block<T>>
[[nodiscard]] status dct8x8_fwd(std::type_identity_t<std::span<const T, 64>> src, std::span<T, 64> dst) {
  if constexpr (exists<members::dct8x8_fwd_block_in_place<T>>) {
    if (detail::same(src, dst)) return detail::call<members::dct8x8_fwd_block_in_place<T>>(detail::at(dst));
  }
  return detail::call<members::dct8x8_fwd_block<T>>(detail::at(src), detail::at(dst));
}

// huxiDCT8x8Inv: the cosine transform of a block of 8 by 8 samples, and its inverse.
template <class T>
requires exists<members::dct8x8_inv_block<T>>
[[nodiscard]] status dct8x8_inv(std::type_identity_t<std::span<const T, 64>> src, std::span<T, 64> dst) {
  if constexpr (exists<members::dct8x8_inv_block_in_place<T>>) {
    if (detail::same(src, dst)) return detail::call<members::dct8x8_inv_block_in_place<T>>(detail::at(dst));
  }
  return detail::call<members::dct8x8_inv_block<T>>(detail::at(src), detail::at(dst));
}

// huxiDCT8x8Fwd: a block of 16s coefficients to or from 8 by 8 pixels.
template <readable V, class S = value_type_of<V>>
requires exists<members::dct8x8_fwd_to_block<S>>
[[nodiscard]] status dct8x8_fwd(const V& src, std::span<std::int16_t, 64> dst) {
  view<const S, 1> source = src;
  if (!detail::of_size(source.size(), 8, 8)) return status::bad_size;
  return detail::call<members::dct8x8_fwd_to_block<S>>(detail::at(source), source.step(), detail::at(dst));
}

// huxiDCT8x8Inv: a block of 16s coefficients to or from 8 by 8 pixels.
template <class T>
requires exists<members::dct8x8_inv_from_block<T>>
[[nodiscard]] status dct8x8_inv(std::type_identity_t<std::span<const std::int16_t, 64>> src, view<T, 1> dst) {
  if (!detail::of_size(dst.size(), 8, 8)) return status::bad_size;
  return detail::call<members::dct8x8_inv_from_block<T>>(detail::at(src), detail::at(dst), dst.step());
}

// huxiDCT8x8FwdLS: a block of 16s coefficients to or from 8 by 8 pixels.
template <class T>
requires exists<members::dct8x8_fwd_ls_to_block<T>>
[[nodiscard]] status dct8x8_fwd_ls(source<std::uint8_t, 1> src, std::span<T, 64> dst, std::type_identity_t<T> add_val) {
  if (!detail::of_size(src.size(), 8, 8)) return status::bad_size;
  return detail::call<members::dct8x8_fwd_ls_to_block<T>>(detail::at(src), src.step(), detail::at(dst), add_val);
}

// huxiDCT8x8InvLSClip: a block of 16s coefficients to or from 8 by 8 pixels.
template <class T>
requires exists<members::dct8x8_inv_ls_clip_from_block<T>>
[[nodiscard]] status dct8x8_inv_ls_clip(std::type_identity_t<std::span<const std::int16_t, 64>> src, view<T, 1> dst,
                                        std::int16_t add_val, std::type_identity_t<T> clip_min,
                                        std::type_identity_t<T> clip_max) {
  if (!detail::of_size(dst.size(), 8, 8)) return status::bad_size;
  return detail::call<members::dct8x8_inv_ls_clip_from_block<T>>(detail::at(src), detail::at(dst), dst.step(), add_val,
                                                                 clip_min, clip_max);
}

// huxiDCT8x8Inv_2x2: the inverse of a block of which only the first 2 by 2, or 4 by 4, coefficients are looked at.
template <class T>
requires exists<members::dct8x8_inv_2x2_block<T>>
[[nodiscard]] status dct8x8_inv_2x2(std::type_identity_t<std::span<const T, 64>> src, std::span<T, 64> dst) {
  if constexpr (exists<members::dct8x8_inv_2x2_block_in_place<T>>) {
    if (detail::same(src, dst)) return detail::call<members::dct8x8_inv_2x2_block_in_place<T>>(detail::at(dst));
  }
  return detail::call<members::dct8x8_inv_2x2_block<T>>(detail::at(src), detail::at(dst));
}

// huxiDCT8x8Inv_4x4: the inverse of a block of which only the first 2 by 2, or 4 by 4, coefficients are looked at.
template <class T>
requires exists<members::dct8x8_inv_4x4_block<T>>
[[nodiscard]] status dct8x8_inv_4x4(std::type_identity_t<std::span<const T, 64>> src, std::span<T, 64> dst) {
  if constexpr (exists<members::dct8x8_inv_4x4_block_in_place<T>>) {
    if (detail::same(src, dst)) return detail::call<members::dct8x8_inv_4x4_block_in_place<T>>(detail::at(dst));
  }
  return detail::call<members::dct8x8_inv_4x4_block<T>>(detail::at(src), detail::at(dst));
}

// huxiZigzagFwd8x8: the 64 coefficients of a block along its antidiagonals, from the first to the last, and back.
template <class T>
requires exists<members::zigzag_fwd8x8_block<T>>
[[nodiscard]] status zigzag_fwd8x8(std::type_identity_t<std::span<const T, 64>> src, std::span<T, 64> dst) {
  return detail::call<members::zigzag_fwd8x8_block<T>>(detail::at(src), detail::at(dst));
}

// huxiZigzagInv8x8: the 64 coefficients of a block along its antidiagonals, from the first to the last, and back.
template <class T>
requires exists<members::zigzag_inv8x8_block<T>>
[[nodiscard]] status zigzag_inv8x8(std::type_identity_t<std::span<const T, 64>> src, std::span<T, 64> dst) {
  return detail::call<members::zigzag_inv8x8_block<T>>(detail::at(src), detail::at(dst));
}

// huxiMulPack: the product of two packed spectra, or of the first and the conjugate of the second.
template <class T, int C>
requires exists<members::mul_pack<T, C>>
[[nodiscard]] status mul_pack(source<T, C> a, source<T, C> b, view<T, C> dst,
                              const options_beyond<members::mul_pack<T, C>, 7, scaled>& options = {}) {
  if (!detail::agree(dst, a, b)) return status::bad_size;
  if constexpr (exists<members::mul_pack_in_place<T, C>>) {
    if (detail::same(b, dst))
      return detail::call_with<members::mul_pack_in_place<T, C>>(detail::tail(options), detail::at(a), a.step(),
                                                                 detail::at(dst), dst.step(), dst.size());
  }
  return detail::call_with<members::mul_pack<T, C>>(detail::tail(options), detail::at(a), a.step(), detail::at(b),
                                                    b.step(), detail::at(dst), dst.step(), dst.size());
}

// huxiMulPackConj: the product of two packed spectra, or of the first and the conjugate of the second.
template <class T, int C>
requires exists<members::mul_pack_conj<T, C>>
[[nodiscard]] status mul_pack_conj(source<T, C> a, source<T, C> b, view<T, C> dst) {
  if (!detail::agree(dst, a, b)) return status::bad_size;
  if constexpr (exists<members::mul_pack_conj_in_place<T, C>>) {
    if (detail::same(b, dst))
      return detail::call<members::mul_pack_conj_in_place<T, C>>(detail::at(a), a.step(), detail::at(dst), dst.step(),
                                                                 dst.size());
  }
  return detail::call<members::mul_pack_conj<T, C>>(detail::at(a), a.step(), detail::at(b), b.step(), detail::at(dst),
                                                    dst.step(), dst.size());
}

// huxiMagnitudePack: magnitude and phase of the full spectrum, W by H elements, from a packed one.
template <class T, int C>
requires exists<members::magnitude_pack<T, C>>
[[nodiscard]] status magnitude_pack(source<T, C> src, view<T, C> dst,
                                    const options_beyond<members::magnitude_pack<T, C>, 5, scaled>& options = {}) {
  if (!detail::agree(dst, src)) return status::bad_size;
  return detail::call_with<members::magnitude_pack<T, C>>(detail::tail(options), detail::at(src), src.step(),
                                                          detail::at(dst), dst.step(), dst.size());
}

// huxiPhasePack: magnitude and phase of the full spectrum, W by H elements, from a packed one.
template <class T, int C>
requires exists<members::phase_pack<T, C>>
[[nodiscard]] status phase_pack(source<T, C> src, view<T, C> dst,
                                const options_beyond<members::phase_pack<T, C>, 5, scaled>& options = {}) {
  if (!detail::agree(dst, src)) return status::bad_size;
  return detail::call_with<members::phase_pack<T, C>>(detail::tail(options), detail::at(src), src.step(),
                                                      detail::at(dst), dst.step(), dst.size());
}

// huxiMagnitude: magnitude and phase of each element of a complex image.
template <readable V, class T, int C, class S = value_type_of<V>>
requires exists<members::magnitude<T, C, S>>
[[nodiscard]] status magnitude(const V& src, view<T, C> dst,
                               const options_beyond<members::magnitude<T, C, S>, 5, scaled>& options = {}) {
  view<const S, C> source = src;
  if (!detail::agree(dst, source)) return status::bad_size;
  return detail::call_with<members::magnitude<T, C, S>>(detail::tail(options), detail::at(source), source.step(),
                                                        detail::at(dst), dst.step(), dst.size());
}

// huxiPhase: magnitude and phase of each element of a complex image.
template <readable V, class T, int C, class S = value_type_of<V>>
requires exists<members::phase<T, C, S>>
[[nodiscard]] status phase(const V& src, view<T, C> dst,
                           const options_beyond<members::phase<T, C, S>, 5, scaled>& options = {}) {
  view<const S, C> source = src;
  if (!detail::agree(dst, source)) return status::bad_size;
  return detail::call_with<members::phase<T, C, S>>(detail::tail(options), detail::at(source), source.step(),
                                                    detail::at(dst), dst.step(), dst.size());
}

// huxiPolarToCart: a complex image from one of magnitudes and one of phases, which share srcStep.
template <class T, int C>
requires exists<members::polar_to_cart<T, C>>
[[nodiscard]] status polar_to_cart(source<float, C> magnitude, source<float, C> phase, view<T, C> dst) {
  if (!detail::agree(dst, magnitude, phase)) return status::bad_size;
  return detail::call<members::polar_to_cart<T, C>>(detail::at(magnitude), detail::at(phase), magnitude.step(),
                                                    dst.size(), detail::at(dst), dst.step());
}

// huxiPolarToCart: a complex image from one of magnitudes and one of phases, which share srcStep.
template <readable V, class T, int C, class S = value_type_of<V>>
requires exists<members::polar_to_cart_with_phase_fixed_point<T, C, S>>
[[nodiscard]] status polar_to_cart(const V& magnitude, source<S, C> phase, view<T, C> dst, int phase_fixed_point) {
  view<const S, C> source = magnitude;
  if (!detail::agree(dst, source, phase)) return status::bad_size;
  return detail::call<members::polar_to_cart_with_phase_fixed_point<T, C, S>>(
      detail::at(source), detail::at(phase), source.step(), phase_fixed_point, dst.size(), detail::at(dst), dst.step());
}

// huxiCplxExtendToPack: the packed spectrum from a full one, and the full spectrum from a packed one.
template <readable V, class T, int C, class S = value_type_of<V>>
requires exists<members::cplx_extend_to_pack<T, C, S>>
[[nodiscard]] status cplx_extend_to_pack(const V& src, view<T, C> dst) {
  view<const S, C> source = src;
  if (!detail::agree(dst, source)) return status::bad_size;
  return detail::call<members::cplx_extend_to_pack<T, C, S>>(detail::at(source), source.step(), dst.size(),
                                                             detail::at(dst), dst.step());
}

// huxiPackToCplxExtend: the packed spectrum from a full one, and the full spectrum from a packed one.
template <readable V, class T, int C, class S = value_type_of<V>>
requires exists<members::pack_to_cplx_extend<T, C, S>>
[[nodiscard]] status pack_to_cplx_extend(const V& src, view<T, C> dst) {
  view<const S, C> source = src;
  if (!detail::agree(dst, source)) return status::bad_size;
  return detail::call<members::pack_to_cplx_extend<T, C, S>>(detail::at(source), dst.size(), source.step(),
                                                             detail::at(dst), dst.step());
}

}  // namespace nothrow

template <class T>
requires exists<members::dct8x8_fwd_block<T>>
status dct8x8_fwd(std::type_identity_t<std::span<const T, 64>> src, std::span<T, 64> dst) {
  return detail::checked(nothrow::dct8x8_fwd(src, dst), "dct8x8_fwd");
}

template <class T>
requires exists<members::dct8x8_inv_block<T>>
status dct8x8_inv(std::type_identity_t<std::span<const T, 64>> src, std::span<T, 64> dst) {
  return detail::checked(nothrow::dct8x8_inv(src, dst), "dct8x8_inv");
}

template <readable V, class S = value_type_of<V>>
requires exists<members::dct8x8_fwd_to_block<S>>
status dct8x8_fwd(const V& src, std::span<std::int16_t, 64> dst) {
  return detail::checked(nothrow::dct8x8_fwd(src, dst), "dct8x8_fwd");
}

template <class T>
requires exists<members::dct8x8_inv_from_block<T>>
status dct8x8_inv(std::type_identity_t<std::span<const std::int16_t, 64>> src, view<T, 1> dst) {
  return detail::checked(nothrow::dct8x8_inv(src, dst), "dct8x8_inv");
}

template <class T>
requires exists<members::dct8x8_fwd_ls_to_block<T>>
status dct8x8_fwd_ls(source<std::uint8_t, 1> src, std::span<T, 64> dst, std::type_identity_t<T> add_val) {
  return detail::checked(nothrow::dct8x8_fwd_ls(src, dst, add_val), "dct8x8_fwd_ls");
}

template <class T>
requires exists<members::dct8x8_inv_ls_clip_from_block<T>>
status dct8x8_inv_ls_clip(std::type_identity_t<std::span<const std::int16_t, 64>> src, view<T, 1> dst,
                          std::int16_t add_val, std::type_identity_t<T> clip_min,
                          std::type_identity_t<T> clip_max) {
  return detail::checked(nothrow::dct8x8_inv_ls_clip(src, dst, add_val, clip_min, clip_max), "dct8x8_inv_ls_clip");
}

template <class T>
requires exists<members::dct8x8_inv_2x2_block<T>>
status dct8x8_inv_2x2(std::type_identity_t<std::span<const T, 64>> src, std::span<T, 64> dst) {
  return detail::checked(nothrow::dct8x8_inv_2x2(src, dst), "dct8x8_inv_2x2");
}

template <class T>
requires exists<members::dct8x8_inv_4x4_block<T>>
status dct8x8_inv_4x4(std::type_identity_t<std::span<const T, 64>> src, std::span<T, 64> dst) {
  return detail::checked(nothrow::dct8x8_inv_4x4(src, dst), "dct8x8_inv_4x4");
}

template <class T>
requires exists<members::zigzag_fwd8x8_block<T>>
status zigzag_fwd8x8(std::type_identity_t<std::span<const T, 64>> src, std::span<T, 64> dst) {
  return detail::checked(nothrow::zigzag_fwd8x8(src, dst), "zigzag_fwd8x8");
}

template <class T>
requires exists<members::zigzag_inv8x8_block<T>>
status zigzag_inv8x8(std::type_identity_t<std::span<const T, 64>> src, std::span<T, 64> dst) {
  return detail::checked(nothrow::zigzag_inv8x8(src, dst), "zigzag_inv8x8");
}

template <class T, int C>
requires exists<members::mul_pack<T, C>>
status mul_pack(source<T, C> a, source<T, C> b, view<T, C> dst,
                const options_beyond<members::mul_pack<T, C>, 7, scaled>& options = {}) {
  return detail::checked(nothrow::mul_pack(a, b, dst, options), "mul_pack");
}

template <class T, int C>
requires exists<members::mul_pack_conj<T, C>>
status mul_pack_conj(source<T, C> a, source<T, C> b, view<T, C> dst) {
  return detail::checked(nothrow::mul_pack_conj(a, b, dst), "mul_pack_conj");
}

template <class T, int C>
requires exists<members::magnitude_pack<T, C>>
status magnitude_pack(source<T, C> src, view<T, C> dst,
                      const options_beyond<members::magnitude_pack<T, C>, 5, scaled>& options = {}) {
  return detail::checked(nothrow::magnitude_pack(src, dst, options), "magnitude_pack");
}

template <class T, int C>
requires exists<members::phase_pack<T, C>>
status phase_pack(source<T, C> src, view<T, C> dst,
                  const options_beyond<members::phase_pack<T, C>, 5, scaled>& options = {}) {
  return detail::checked(nothrow::phase_pack(src, dst, options), "phase_pack");
}

template <readable V, class T, int C, class S = value_type_of<V>>
requires exists<members::magnitude<T, C, S>>
status magnitude(const V& src, view<T, C> dst,
                 const options_beyond<members::magnitude<T, C, S>, 5, scaled>& options = {}) {
  return detail::checked(nothrow::magnitude(src, dst, options), "magnitude");
}

template <readable V, class T, int C, class S = value_type_of<V>>
requires exists<members::phase<T, C, S>>
status phase(const V& src, view<T, C> dst,
             const options_beyond<members::phase<T, C, S>, 5, scaled>& options = {}) {
  return detail::checked(nothrow::phase(src, dst, options), "phase");
}

template <class T, int C>
requires exists<members::polar_to_cart<T, C>>
status polar_to_cart(source<float, C> magnitude, source<float, C> phase, view<T, C> dst) {
  return detail::checked(nothrow::polar_to_cart(magnitude, phase, dst), "polar_to_cart");
}

template <readable V, class T, int C, class S = value_type_of<V>>
requires exists<members::polar_to_cart_with_phase_fixed_point<T, C, S>>
status polar_to_cart(const V& magnitude, source<S, C> phase, view<T, C> dst, int phase_fixed_point) {
  return detail::checked(nothrow::polar_to_cart(magnitude, phase, dst, phase_fixed_point), "polar_to_cart");
}

template <readable V, class T, int C, class S = value_type_of<V>>
requires exists<members::cplx_extend_to_pack<T, C, S>>
status cplx_extend_to_pack(const V& src, view<T, C> dst) {
  return detail::checked(nothrow::cplx_extend_to_pack(src, dst), "cplx_extend_to_pack");
}

template <readable V, class T, int C, class S = value_type_of<V>>
requires exists<members::pack_to_cplx_extend<T, C, S>>
status pack_to_cplx_extend(const V& src, view<T, C> dst) {
  return detail::checked(nothrow::pack_to_cplx_extend(src, dst), "pack_to_cplx_extend");
}

}  // namespace hux

#endif
