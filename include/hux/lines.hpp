// Made by tools/cpp_front from the headers of the C library.
// clang-format off
// Functions on lines: vectors of elements without gaps.
//
// Comments name the functions of C, whose header tells units, statuses and the order of checks. In addition all
// images of a call are compared in size: status::bad_size. Functions of hux throw hux::error where C returns an
// error and return warnings; those of hux::nothrow return either. An operation on its own source is C's in place.
#ifndef HUX_LINES_HPP
#define HUX_LINES_HPP

#include <algorithm>

#include "call.hpp"
#include "members.hpp"

namespace hux {

namespace nothrow {

// huxsAdd: Add, Sub, Mul, Div and, with a constant, AddC, SubC, MulC, DivC.
template <class T>
requires exists<members::add_line<T>>
[[nodiscard]] status add(source_line<T> a, source_line<T> b, line<T> dst,
                         const options_beyond<members::add_line<T>, 4, scaled>& options = {}) {
  if (!detail::agree(dst, a, b)) return status::bad_size;
  if constexpr (exists<members::add_line_in_place<T>>) {
    if (detail::same(b, dst))
      return detail::call_with<members::add_line_in_place<T>>(detail::tail(options), detail::at(a), detail::at(dst),
                                                              dst.size());
    if (detail::same(a, dst))
      return detail::call_with<members::add_line_in_place<T>>(detail::tail(options), detail::at(b), detail::at(dst),
                                                              dst.size());
  }
  return detail::call_with<members::add_line<T>>(detail::tail(options), detail::at(a), detail::at(b), detail::at(dst),
                                                 dst.size());
}

// huxsSub: Add, Sub, Mul, Div and, with a constant, AddC, SubC, MulC, DivC; a is pSrc2 there, b is pSrc1.
template <class T>
requires exists<members::sub_line<T>>
[[nodiscard]] status sub(source_line<T> a, source_line<T> b, line<T> dst,
                         const options_beyond<members::sub_line<T>, 4, scaled>& options = {}) {
  if (!detail::agree(dst, b, a)) return status::bad_size;
  if constexpr (exists<members::sub_line_in_place<T>>) {
    if (detail::same(a, dst))
      return detail::call_with<members::sub_line_in_place<T>>(detail::tail(options), detail::at(b), detail::at(dst),
                                                              dst.size());
  }
  return detail::call_with<members::sub_line<T>>(detail::tail(options), detail::at(b), detail::at(a), detail::at(dst),
                                                 dst.size());
}

// huxsAddC: Add, Sub, Mul, Div and, with a constant, AddC, SubC, MulC, DivC.
template <class T>
requires exists<members::add_c_line<T>>
[[nodiscard]] status add(source_line<T> src, values<T, 1> value, line<T> dst,
                         const options_beyond<members::add_c_line<T>, 4, scaled>& options = {}) {
  if (!detail::agree(dst, src)) return status::bad_size;
  if constexpr (exists<members::add_c_line_in_place<T>>) {
    if (detail::same(src, dst))
      return detail::call_with<members::add_c_line_in_place<T>>(detail::tail(options), detail::at(value),
                                                                detail::at(dst), dst.size());
  }
  return detail::call_with<members::add_c_line<T>>(detail::tail(options), detail::at(src), detail::at(value),
                                                   detail::at(dst), dst.size());
}

// huxsSubC: Add, Sub, Mul, Div and, with a constant, AddC, SubC, MulC, DivC.
template <class T>
requires exists<members::sub_c_line<T>>
[[nodiscard]] status sub(source_line<T> src, values<T, 1> value, line<T> dst,
                         const options_beyond<members::sub_c_line<T>, 4, scaled>& options = {}) {
  if (!detail::agree(dst, src)) return status::bad_size;
  if constexpr (exists<members::sub_c_line_in_place<T>>) {
    if (detail::same(src, dst))
      return detail::call_with<members::sub_c_line_in_place<T>>(detail::tail(options), detail::at(value),
                                                                detail::at(dst), dst.size());
  }
  return detail::call_with<members::sub_c_line<T>>(detail::tail(options), detail::at(src), detail::at(value),
                                                   detail::at(dst), dst.size());
}

// huxsMul: Add, Sub, Mul, Div and, with a constant, AddC, SubC, MulC, DivC.
template <class T>
requires exists_either<members::mul_line<T>, members::mul_line_in_place<T>>
[[nodiscard]] status mul(source_line<T> a, source_line<T> b, line<T> dst,
                         const options_beyond<members::mul_line<T>, 4, scaled>& options = {}) {
  if (!detail::agree(dst, a, b)) return status::bad_size;
  if constexpr (exists<members::mul_line_in_place<T>>) {
    if (detail::same(b, dst))
      return detail::call_with<members::mul_line_in_place<T>>(detail::tail(options), detail::at(a), detail::at(dst),
                                                              dst.size());
    if (detail::same(a, dst))
      return detail::call_with<members::mul_line_in_place<T>>(detail::tail(options), detail::at(b), detail::at(dst),
                                                              dst.size());
    if constexpr (!exists<members::mul_line<T>>) {
      if (detail::same(a, dst)) return status::bad_arg;
    }
    if constexpr (!exists<members::mul_line<T>>) {
      detail::copy_rows(b, dst);
      return detail::call_with<members::mul_line_in_place<T>>(detail::tail(options), detail::at(a), detail::at(dst),
                                                              dst.size());
    }
  }
  if constexpr (exists<members::mul_line<T>>)
    return detail::call_with<members::mul_line<T>>(detail::tail(options), detail::at(a), detail::at(b), detail::at(dst),
                                                   dst.size());
}

// huxsMulC: Add, Sub, Mul, Div and, with a constant, AddC, SubC, MulC, DivC.
template <class T>
requires exists_either<members::mul_c_line<T>, members::mul_c_line_in_place<T>>
[[nodiscard]] status mul(source_line<T> src, values<T, 1> value, line<T> dst,
                         const options_beyond<members::mul_c_line<T>, 4, scaled>& options = {}) {
  if (!detail::agree(dst, src)) return status::bad_size;
  if constexpr (exists<members::mul_c_line_in_place<T>>) {
    if (detail::same(src, dst))
      return detail::call_with<members::mul_c_line_in_place<T>>(detail::tail(options), detail::at(value),
                                                                detail::at(dst), dst.size());
    if constexpr (!exists<members::mul_c_line<T>>) {
      detail::copy_rows(src, dst);
      return detail::call_with<members::mul_c_line_in_place<T>>(detail::tail(options), detail::at(value),
                                                                detail::at(dst), dst.size());
    }
  }
  if constexpr (exists<members::mul_c_line<T>>)
    return detail::call_with<members::mul_c_line<T>>(detail::tail(options), detail::at(src), detail::at(value),
                                                     detail::at(dst), dst.size());
}

// huxsDiv: Add, Sub, Mul, Div and, with a constant, AddC, SubC, MulC, DivC; a is pSrc2 there, b is pSrc1.
template <class T>
requires exists<members::div_line<T>>
[[nodiscard]] status div(source_line<T> a, source_line<T> b, line<T> dst,
                         const options_beyond<members::div_line<T>, 4, scaled>& options = {}) {
  if (!detail::agree(dst, b, a)) return status::bad_size;
  if constexpr (exists<members::div_line_in_place<T>>) {
    if (detail::same(a, dst))
      return detail::call_with<members::div_line_in_place<T>>(detail::tail(options), detail::at(b), detail::at(dst),
                                                              dst.size());
  }
  return detail::call_with<members::div_line<T>>(detail::tail(options), detail::at(b), detail::at(a), detail::at(dst),
                                                 dst.size());
}

// huxsDivC: Add, Sub, Mul, Div and, with a constant, AddC, SubC, MulC, DivC.
template <class T>
requires exists<members::div_c_line<T>>
[[nodiscard]] status div(source_line<T> src, values<T, 1> value, line<T> dst,
                         const options_beyond<members::div_c_line<T>, 4, scaled>& options = {}) {
  if (!detail::agree(dst, src)) return status::bad_size;
  if constexpr (exists<members::div_c_line_in_place<T>>) {
    if (detail::same(src, dst))
      return detail::call_with<members::div_c_line_in_place<T>>(detail::tail(options), detail::at(value),
                                                                detail::at(dst), dst.size());
  }
  return detail::call_with<members::div_c_line<T>>(detail::tail(options), detail::at(src), detail::at(value),
                                                   detail::at(dst), dst.size());
}

// huxsAbs: Abs, Sqr, Sqrt, Exp, Ln, as on images (huxi_arith.h).
template <class T>
requires exists<members::abs_line<T>>
[[nodiscard]] status abs(source_line<T> src, line<T> dst) {
  if (!detail::agree(dst, src)) return status::bad_size;
  if constexpr (exists<members::abs_line_in_place<T>>) {
    if (detail::same(src, dst)) return detail::call<members::abs_line_in_place<T>>(detail::at(dst), dst.size());
  }
  return detail::call<members::abs_line<T>>(detail::at(src), detail::at(dst), dst.size());
}

// huxsSqr: Abs, Sqr, Sqrt, Exp, Ln, as on images (huxi_arith.h).
template <class T>
requires exists<members::sqr_line<T>>
[[nodiscard]] status sqr(source_line<T> src, line<T> dst,
                         const options_beyond<members::sqr_line<T>, 3, scaled>& options = {}) {
  if (!detail::agree(dst, src)) return status::bad_size;
  if constexpr (exists<members::sqr_line_in_place<T>>) {
    if (detail::same(src, dst))
      return detail::call_with<members::sqr_line_in_place<T>>(detail::tail(options), detail::at(dst), dst.size());
  }
  return detail::call_with<members::sqr_line<T>>(detail::tail(options), detail::at(src), detail::at(dst), dst.size());
}

// huxsSqrt: Abs, Sqr, Sqrt, Exp, Ln, as on images (huxi_arith.h).
template <class T>
requires exists<members::sqrt_line<T>>
[[nodiscard]] status sqrt(source_line<T> src, line<T> dst,
                          const options_beyond<members::sqrt_line<T>, 3, scaled>& options = {}) {
  if (!detail::agree(dst, src)) return status::bad_size;
  if constexpr (exists<members::sqrt_line_in_place<T>>) {
    if (detail::same(src, dst))
      return detail::call_with<members::sqrt_line_in_place<T>>(detail::tail(options), detail::at(dst), dst.size());
  }
  return detail::call_with<members::sqrt_line<T>>(detail::tail(options), detail::at(src), detail::at(dst), dst.size());
}

// huxsExp: Abs, Sqr, Sqrt, Exp, Ln, as on images (huxi_arith.h).
template <class T>
requires exists<members::exp_line<T>>
[[nodiscard]] status exp(source_line<T> src, line<T> dst,
                         const options_beyond<members::exp_line<T>, 3, scaled>& options = {}) {
  if (!detail::agree(dst, src)) return status::bad_size;
  if constexpr (exists<members::exp_line_in_place<T>>) {
    if (detail::same(src, dst))
      return detail::call_with<members::exp_line_in_place<T>>(detail::tail(options), detail::at(dst), dst.size());
  }
  return detail::call_with<members::exp_line<T>>(detail::tail(options), detail::at(src), detail::at(dst), dst.size());
}

// huxsLn: Abs, Sqr, Sqrt, Exp, Ln, as on images (huxi_arith.h).
template <class T>
requires exists<members::ln_line<T>>
[[nodiscard]] status ln(source_line<T> src, line<T> dst, const scaled& options = {}) {
  if (!detail::agree(dst, src)) return status::bad_size;
  if constexpr (exists<members::ln_line_in_place<T>>) {
    if (detail::same(src, dst))
      return detail::call<members::ln_line_in_place<T>>(detail::at(dst), dst.size(), options.shift);
  }
  return detail::call<members::ln_line<T>>(detail::at(src), detail::at(dst), dst.size(), options.shift);
}

// huxsMagnitude: magnitude and phase, in radians, of complex elements, times 2^-scaleFactor on integers.
template <readable_line V, class T, class S = value_type_of<V>>
requires exists<members::magnitude_line<T, S>>
[[nodiscard]] status magnitude(const V& src, line<T> dst,
                               const options_beyond<members::magnitude_line<T, S>, 3, scaled>& options = {}) {
  line<const S> source = src;
  if (!detail::agree(dst, source)) return status::bad_size;
  return detail::call_with<members::magnitude_line<T, S>>(detail::tail(options), detail::at(source), detail::at(dst),
                                                          dst.size());
}

// huxsPhase: magnitude and phase, in radians, of complex elements, times 2^-scaleFactor on integers.
template <readable_line V, class T, class S = value_type_of<V>>
requires exists<members::phase_line<T, S>>
[[nodiscard]] status phase(const V& src, line<T> dst,
                           const options_beyond<members::phase_line<T, S>, 3, scaled>& options = {}) {
  line<const S> source = src;
  if (!detail::agree(dst, source)) return status::bad_size;
  return detail::call_with<members::phase_line<T, S>>(detail::tail(options), detail::at(source), detail::at(dst),
                                                      dst.size());
}

// huxsPolarToCart: magnitude and phase, in radians, to a complex element.
template <class T>
requires exists<members::polar_to_cart_line<T>>
[[nodiscard]] status polar_to_cart(source_line<float> magnitude, source_line<float> phase, line<T> dst) {
  if (!detail::agree(dst, magnitude, phase)) return status::bad_size;
  return detail::call<members::polar_to_cart_line<T>>(detail::at(magnitude), detail::at(phase), detail::at(dst),
                                                      dst.size());
}

// huxsPolarToCart: magnitude and phase, in radians, to a complex element.
template <readable_line V, class T, class S = value_type_of<V>>
requires exists<members::polar_to_cart_line_with_phase_fixed_point<T, S>>
[[nodiscard]] status polar_to_cart(const V& magnitude, source_line<S> phase, line<T> dst, int phase_fixed_point) {
  line<const S> source = magnitude;
  if (!detail::agree(dst, source, phase)) return status::bad_size;
  return detail::call<members::polar_to_cart_line_with_phase_fixed_point<T, S>>(
      detail::at(source), detail::at(phase), phase_fixed_point, detail::at(dst), dst.size());
}

// huxsConvert: between element types.
template <readable_line V, class T, class S = value_type_of<V>>
requires exists<members::convert_line<T, S>>
[[nodiscard]] status convert(const V& src, line<T> dst) {
  line<const S> source = src;
  if (!detail::agree(dst, source)) return status::bad_size;
  return detail::call<members::convert_line<T, S>>(detail::at(source), detail::at(dst), dst.size());
}

// huxsConvert: between element types.
template <readable_line V, class T, class S = value_type_of<V>>
requires exists<members::convert_line_with_round_mode<T, S>>
[[nodiscard]] status convert(const V& src, line<T> dst, const rounded_scaled& options = {}) {
  line<const S> source = src;
  if (!detail::agree(dst, source)) return status::bad_size;
  return detail::call<members::convert_line_with_round_mode<T, S>>(detail::at(source), detail::at(dst), dst.size(),
                                                                   static_cast<int>(options.round), options.shift);
}

// huxsSet: fill a vector with a value or with zeros, or copy one.
template <class T>
requires exists<members::set_line<T>>
[[nodiscard]] status set(values<T, 1> value, line<T> dst) {
  return detail::call<members::set_line<T>>(detail::at(value), detail::at(dst), dst.size());
}

// huxsZero: fill a vector with a value or with zeros, or copy one.
template <class T>
requires exists<members::zero_line<T>>
[[nodiscard]] status zero(line<T> dst) { return detail::call<members::zero_line<T>>(detail::at(dst), dst.size()); }

// huxsCopy: fill a vector with a value or with zeros, or copy one.
template <class T>
requires exists<members::copy_line<T>>
[[nodiscard]] status copy(source_line<T> src, line<T> dst) {
  if (!detail::agree(dst, src)) return status::bad_size;
  return detail::call<members::copy_line<T>>(detail::at(src), detail::at(dst), dst.size());
}

// huxsMove: fill a vector with a value or with zeros, or copy one.
template <class T>
requires exists<members::move_line<T>>
[[nodiscard]] status move(source_line<T> src, line<T> dst) {
  if (!detail::agree(dst, src)) return status::bad_size;
  return detail::call<members::move_line<T>>(detail::at(src), detail::at(dst), dst.size());
}

// huxsWinBartlett: the vector times a window that falls off from the middle to both ends alike.
template <class T>
requires exists<members::win_bartlett_line_in_place<T>>
[[nodiscard]] status win_bartlett(line<T> dst) {
  return detail::call<members::win_bartlett_line_in_place<T>>(detail::at(dst), dst.size());
}

// huxsWinHamming: the vector times a window that falls off from the middle to both ends alike.
template <class T>
requires exists<members::win_hamming_line_in_place<T>>
[[nodiscard]] status win_hamming(line<T> dst) {
  return detail::call<members::win_hamming_line_in_place<T>>(detail::at(dst), dst.size());
}

// huxsMean: the mean of a vector, its Euclidean norm, the sum of products of two vectors.
template <readable_line V, class S = value_type_of<V>>
requires exists<members::mean_line<S>>
[[nodiscard]] result<S> mean(const V& src) {
  line<const S> source = src;
  result<S> out;
  out.status = detail::call<members::mean_line<S>>(detail::at(source), source.size(), detail::at(out.value));
  return out;
}

// huxsNorm_L2: the mean of a vector, its Euclidean norm, the sum of products of two vectors.
template <readable_line V, class S = value_type_of<V>>
requires exists<members::norm_l2_line<S>>
[[nodiscard]] result<S> norm_l2(const V& src) {
  line<const S> source = src;
  result<S> out;
  out.status = detail::call<members::norm_l2_line<S>>(detail::at(source), source.size(), detail::at(out.value));
  return out;
}

// huxsDotProd: the mean of a vector, its Euclidean norm, the sum of products of two vectors.
template <readable_line V, class S = value_type_of<V>>
requires exists<members::dot_prod_line<S>>
[[nodiscard]] result<S> dot_prod(const V& a, source_line<S> b) {
  line<const S> source = a;
  if (!detail::agree(source, b)) return {status::bad_size};
  result<S> out;
  out.status =
      detail::call<members::dot_prod_line<S>>(detail::at(source), detail::at(b), source.size(), detail::at(out.value));
  return out;
}

}  // namespace nothrow

template <class T>
requires exists<members::add_line<T>>
status add(source_line<T> a, source_line<T> b, line<T> dst,
           const options_beyond<members::add_line<T>, 4, scaled>& options = {}) {
  return detail::checked(nothrow::add(a, b, dst, options), "add");
}

template <class T>
requires exists<members::sub_line<T>>
status sub(source_line<T> a, source_line<T> b, line<T> dst,
           const options_beyond<members::sub_line<T>, 4, scaled>& options = {}) {
  return detail::checked(nothrow::sub(a, b, dst, options), "sub");
}

template <class T>
requires exists<members::add_c_line<T>>
status add(source_line<T> src, values<T, 1> value, line<T> dst,
           const options_beyond<members::add_c_line<T>, 4, scaled>& options = {}) {
  return detail::checked(nothrow::add(src, value, dst, options), "add");
}

template <class T>
requires exists<members::sub_c_line<T>>
status sub(source_line<T> src, values<T, 1> value, line<T> dst,
           const options_beyond<members::sub_c_line<T>, 4, scaled>& options = {}) {
  return detail::checked(nothrow::sub(src, value, dst, options), "sub");
}

template <class T>
requires exists_either<members::mul_line<T>, members::mul_line_in_place<T>>
status mul(source_line<T> a, source_line<T> b, line<T> dst,
           const options_beyond<members::mul_line<T>, 4, scaled>& options = {}) {
  return detail::checked(nothrow::mul(a, b, dst, options), "mul");
}

template <class T>
requires exists_either<members::mul_c_line<T>, members::mul_c_line_in_place<T>>
status mul(source_line<T> src, values<T, 1> value, line<T> dst,
           const options_beyond<members::mul_c_line<T>, 4, scaled>& options = {}) {
  return detail::checked(nothrow::mul(src, value, dst, options), "mul");
}

template <class T>
requires exists<members::div_line<T>>
status div(source_line<T> a, source_line<T> b, line<T> dst,
           const options_beyond<members::div_line<T>, 4, scaled>& options = {}) {
  return detail::checked(nothrow::div(a, b, dst, options), "div");
}

template <class T>
requires exists<members::div_c_line<T>>
status div(source_line<T> src, values<T, 1> value, line<T> dst,
           const options_beyond<members::div_c_line<T>, 4, scaled>& options = {}) {
  return detail::checked(nothrow::div(src, value, dst, options), "div");
}

template <class T>
requires exists<members::abs_line<T>>
status abs(source_line<T> src, line<T> dst) { return detail::checked(nothrow::abs(src, dst), "abs"); }

template <class T>
requires exists<members::sqr_line<T>>
status sqr(source_line<T> src, line<T> dst, const options_beyond<members::sqr_line<T>, 3, scaled>& options = {}) {
  return detail::checked(nothrow::sqr(src, dst, options), "sqr");
}

template <class T>
requires exists<members::sqrt_line<T>>
status sqrt(source_line<T> src, line<T> dst,
            const options_beyond<members::sqrt_line<T>, 3, scaled>& options = {}) {
  return detail::checked(nothrow::sqrt(src, dst, options), "sqrt");
}

template <class T>
requires exists<members::exp_line<T>>
status exp(source_line<T> src, line<T> dst, const options_beyond<members::exp_line<T>, 3, scaled>& options = {}) {
  return detail::checked(nothrow::exp(src, dst, options), "exp");
}

template <class T>
requires exists<members::ln_line<T>>
status ln(source_line<T> src, line<T> dst, const scaled& options = {}) {
  return detail::checked(nothrow::ln(src, dst, options), "ln");
}

template <readable_line V, class T, class S = value_type_of<V>>
requires exists<members::magnitude_line<T, S>>
status magnitude(const V& src, line<T> dst,
                 const options_beyond<members::magnitude_line<T, S>, 3, scaled>& options = {}) {
  return detail::checked(nothrow::magnitude(src, dst, options), "magnitude");
}

template <readable_line V, class T, class S = value_type_of<V>>
requires exists<members::phase_line<T, S>>
status phase(const V& src, line<T> dst,
             const options_beyond<members::phase_line<T, S>, 3, scaled>& options = {}) {
  return detail::checked(nothrow::phase(src, dst, options), "phase");
}

template <class T>
requires exists<members::polar_to_cart_line<T>>
status polar_to_cart(source_line<float> magnitude, source_line<float> phase, line<T> dst) {
  return detail::checked(nothrow::polar_to_cart(magnitude, phase, dst), "polar_to_cart");
}

template <readable_line V, class T, class S = value_type_of<V>>
requires exists<members::polar_to_cart_line_with_phase_fixed_point<T, S>>
status polar_to_cart(const V& magnitude, source_line<S> phase, line<T> dst, int phase_fixed_point) {
  return detail::checked(nothrow::polar_to_cart(magnitude, phase, dst, phase_fixed_point), "polar_to_cart");
}

template <readable_line V, class T, class S = value_type_of<V>>
requires exists<members::convert_line<T, S>>
status convert(const V& src, line<T> dst) { return detail::checked(nothrow::convert(src, dst), "convert"); }

template <readable_line V, class T, class S = value_type_of<V>>
requires exists<members::convert_line_with_round_mode<T, S>>
status convert(const V& src, line<T> dst, const rounded_scaled& options = {}) {
  return detail::checked(nothrow::convert(src, dst, options), "convert");
}

template <class T>
requires exists<members::set_line<T>>
status set(values<T, 1> value, line<T> dst) { return detail::checked(nothrow::set(value, dst), "set"); }

template <class T>
requires exists<members::zero_line<T>>
status zero(line<T> dst) { return detail::checked(nothrow::zero(dst), "zero"); }

template <class T>
requires exists<members::copy_line<T>>
status copy(source_line<T> src, line<T> dst) { return detail::checked(nothrow::copy(src, dst), "copy"); }

template <class T>
requires exists<members::move_line<T>>
status move(source_line<T> src, line<T> dst) { return detail::checked(nothrow::move(src, dst), "move"); }

template <class T>
requires exists<members::win_bartlett_line_in_place<T>>
status win_bartlett(line<T> dst) { return detail::checked(nothrow::win_bartlett(dst), "win_bartlett"); }

template <class T>
requires exists<members::win_hamming_line_in_place<T>>
status win_hamming(line<T> dst) { return detail::checked(nothrow::win_hamming(dst), "win_hamming"); }

template <readable_line V, class S = value_type_of<V>>
requires exists<members::mean_line<S>>
[[nodiscard]] S mean(const V& src) { return detail::checked(nothrow::mean(src), "mean"); }

template <readable_line V, class S = value_type_of<V>>
requires exists<members::norm_l2_line<S>>
[[nodiscard]] S norm_l2(const V& src) { return detail::checked(nothrow::norm_l2(src), "norm_l2"); }

template <readable_line V, class S = value_type_of<V>>
requires exists<members::dot_prod_line<S>>
[[nodiscard]] S dot_prod(const V& a, source_line<S> b) { return detail::checked(nothrow::dot_prod(a, b), "dot_prod"); }

}  // namespace hux

#endif
