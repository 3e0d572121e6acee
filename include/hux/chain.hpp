// Made by tools/cpp_front from the headers of the C library.
// Chains: several calls, one pass over memory, all cores.
//
//   hux::chain c;
//   auto sum = c.add(c.input(a), c.input(b), {.shift = 1});
//   c.output(c.filter_box(sum, {5, 3}), out);
//   c.run({.threads = 2});
//
// Calls are recorded with the parameters of the functions of their names, on nodes in place of images, and without
// destinations; where no source tells the type of the result, it is named: c.convert<float>(node). run() takes the
// images through all calls in bands of rows that stay in the cache, with the bits of the calls one by one on whole
// images. Inputs, outputs, and lists, kernels and footprints of calls must be there until it returns; a chain may
// run again on them.
//
// A chain holds what is local: operations on pixels and windows over 1 to 4 channels. What is not a member (transforms,
// geometry, measures, sums of floats whose order tells) ends a chain: give what it needs an output, and call it then.
#ifndef HUX_CHAIN_HPP
#define HUX_CHAIN_HPP

#include "arith.hpp"
#include "filter.hpp"
#include "pixel.hpp"
#include "run.hpp"
#include "stats.hpp"
#include "transform.hpp"

namespace hux {

namespace detail {
// Functions whose sums of floats run on from the first row of a call or of a thread.
template <auto>
inline constexpr bool begins_anew = false;
template <>
inline constexpr bool begins_anew<huxiFilterBox_16s_C4R> = true;
template <>
inline constexpr bool begins_anew<huxiFilterBox_32f_C1R> = true;
template <>
inline constexpr bool begins_anew<huxiFilterBox_32f_C3R> = true;
template <>
inline constexpr bool begins_anew<huxiFilterBox_32f_AC4R> = true;
template <>
inline constexpr bool begins_anew<huxiFilterBox_32f_C4R> = true;
template <>
inline constexpr bool begins_anew<huxiFilterLowpass_32f_C1R> = true;
template <>
inline constexpr bool begins_anew<huxiFilterLowpass_32f_C3R> = true;
template <>
inline constexpr bool begins_anew<huxiFilterLowpass_32f_AC4R> = true;
template <>
inline constexpr bool begins_anew<huxiFilterHipass_32f_C1R> = true;
template <>
inline constexpr bool begins_anew<huxiFilterHipass_32f_C3R> = true;
template <>
inline constexpr bool begins_anew<huxiFilterHipass_32f_C4R> = true;
template <>
inline constexpr bool begins_anew<huxiFilterHipass_32f_AC4R> = true;
}  // namespace detail

// A member whose bits do not depend on how rows are shared.
template <auto Function>
concept steady = exists<Function> && !detail::begins_anew<Function>;

class chain : public detail::chain_base {
 public:
  template <class T, int C>
  requires exists<members::add<T, C>>
  [[nodiscard]] node<T, C> add(node<T, C> a, std::type_identity_t<node<T, C>> b,
                               const options_beyond<members::add<T, C>, 7, scaled>& options = {}) {
    return recorded<T, C>("add", {a.index, b.index}, [options](const detail::band* in, detail::band out) {
      return nothrow::add(view<const T, C>(in[0]), view<const T, C>(in[1]), view<T, C>(out), options);
    });
  }

  template <class T, int C>
  requires exists<members::sub<T, C>>
  [[nodiscard]] node<T, C> sub(node<T, C> a, std::type_identity_t<node<T, C>> b,
                               const options_beyond<members::sub<T, C>, 7, scaled>& options = {}) {
    return recorded<T, C>("sub", {a.index, b.index}, [options](const detail::band* in, detail::band out) {
      return nothrow::sub(view<const T, C>(in[0]), view<const T, C>(in[1]), view<T, C>(out), options);
    });
  }

  template <class T, int C>
  requires exists<members::mul<T, C>>
  [[nodiscard]] node<T, C> mul(node<T, C> a, std::type_identity_t<node<T, C>> b,
                               const options_beyond<members::mul<T, C>, 7, scaled>& options = {}) {
    return recorded<T, C>("mul", {a.index, b.index}, [options](const detail::band* in, detail::band out) {
      return nothrow::mul(view<const T, C>(in[0]), view<const T, C>(in[1]), view<T, C>(out), options);
    });
  }

  template <class T, int C>
  requires exists<members::add_c<T, C>>
  [[nodiscard]] node<T, C> add(node<T, C> src, values<T, C> value,
                               const options_beyond<members::add_c<T, C>, 6, scaled>& options = {}) {
    return recorded<T, C>("add", {src.index}, [value, options](const detail::band* in, detail::band out) {
      return nothrow::add(view<const T, C>(in[0]), value, view<T, C>(out), options);
    });
  }

  template <class T, int C>
  requires exists<members::sub_c<T, C>>
  [[nodiscard]] node<T, C> sub(node<T, C> src, values<T, C> value,
                               const options_beyond<members::sub_c<T, C>, 6, scaled>& options = {}) {
    return recorded<T, C>("sub", {src.index}, [value, options](const detail::band* in, detail::band out) {
      return nothrow::sub(view<const T, C>(in[0]), value, view<T, C>(out), options);
    });
  }

  template <class T, int C>
  requires exists<members::mul_c<T, C>>
  [[nodiscard]] node<T, C> mul(node<T, C> src, values<T, C> value,
                               const options_beyond<members::mul_c<T, C>, 6, scaled>& options = {}) {
    return recorded<T, C>("mul", {src.index}, [value, options](const detail::band* in, detail::band out) {
      return nothrow::mul(view<const T, C>(in[0]), value, view<T, C>(out), options);
    });
  }

  template <class T, int C>
  requires exists<members::div<T, C>>
  [[nodiscard]] node<T, C> div(node<T, C> a, std::type_identity_t<node<T, C>> b,
                               const options_beyond<members::div<T, C>, 7, scaled>& options = {}) {
    return recorded<T, C>("div", {a.index, b.index}, [options](const detail::band* in, detail::band out) {
      return nothrow::div(view<const T, C>(in[0]), view<const T, C>(in[1]), view<T, C>(out), options);
    });
  }

  template <class T, int C>
  requires exists<members::div_c<T, C>>
  [[nodiscard]] node<T, C> div(node<T, C> src, values<T, C> value,
                               const options_beyond<members::div_c<T, C>, 6, scaled>& options = {}) {
    return recorded<T, C>("div", {src.index}, [value, options](const detail::band* in, detail::band out) {
      return nothrow::div(view<const T, C>(in[0]), value, view<T, C>(out), options);
    });
  }

  template <class T, int C>
  requires exists<members::abs<T, C>>
  [[nodiscard]] node<T, C> abs(node<T, C> src) {
    return recorded<T, C>("abs", {src.index}, [](const detail::band* in, detail::band out) {
      return nothrow::abs(view<const T, C>(in[0]), view<T, C>(out));
    });
  }

  template <class T, int C>
  requires exists<members::sqr<T, C>>
  [[nodiscard]] node<T, C> sqr(node<T, C> src, const options_beyond<members::sqr<T, C>, 5, scaled>& options = {}) {
    return recorded<T, C>("sqr", {src.index}, [options](const detail::band* in, detail::band out) {
      return nothrow::sqr(view<const T, C>(in[0]), view<T, C>(out), options);
    });
  }

  template <class T, int C>
  requires exists<members::sqrt<T, C>>
  [[nodiscard]] node<T, C> sqrt(node<T, C> src, const options_beyond<members::sqrt<T, C>, 5, scaled>& options = {}) {
    return recorded<T, C>("sqrt", {src.index}, [options](const detail::band* in, detail::band out) {
      return nothrow::sqrt(view<const T, C>(in[0]), view<T, C>(out), options);
    });
  }

  template <class T, int C>
  requires exists<members::exp<T, C>>
  [[nodiscard]] node<T, C> exp(node<T, C> src, const options_beyond<members::exp<T, C>, 5, scaled>& options = {}) {
    return recorded<T, C>("exp", {src.index}, [options](const detail::band* in, detail::band out) {
      return nothrow::exp(view<const T, C>(in[0]), view<T, C>(out), options);
    });
  }

  template <class T, int C>
  requires exists<members::ln<T, C>>
  [[nodiscard]] node<T, C> ln(node<T, C> src, const options_beyond<members::ln<T, C>, 5, scaled>& options = {}) {
    return recorded<T, C>("ln", {src.index}, [options](const detail::band* in, detail::band out) {
      return nothrow::ln(view<const T, C>(in[0]), view<T, C>(out), options);
    });
  }

  template <class T, int C>
  requires exists<members::and_<T, C>>
  [[nodiscard]] node<T, C> and_(node<T, C> a, std::type_identity_t<node<T, C>> b) {
    return recorded<T, C>("and_", {a.index, b.index}, [](const detail::band* in, detail::band out) {
      return nothrow::and_(view<const T, C>(in[0]), view<const T, C>(in[1]), view<T, C>(out));
    });
  }

  template <class T, int C>
  requires exists<members::or_<T, C>>
  [[nodiscard]] node<T, C> or_(node<T, C> a, std::type_identity_t<node<T, C>> b) {
    return recorded<T, C>("or_", {a.index, b.index}, [](const detail::band* in, detail::band out) {
      return nothrow::or_(view<const T, C>(in[0]), view<const T, C>(in[1]), view<T, C>(out));
    });
  }

  template <class T, int C>
  requires exists<members::xor_<T, C>>
  [[nodiscard]] node<T, C> xor_(node<T, C> a, std::type_identity_t<node<T, C>> b) {
    return recorded<T, C>("xor_", {a.index, b.index}, [](const detail::band* in, detail::band out) {
      return nothrow::xor_(view<const T, C>(in[0]), view<const T, C>(in[1]), view<T, C>(out));
    });
  }

  template <class T, int C>
  requires exists<members::and_c<T, C>>
  [[nodiscard]] node<T, C> and_(node<T, C> src, values<T, C> value) {
    return recorded<T, C>("and_", {src.index}, [value](const detail::band* in, detail::band out) {
      return nothrow::and_(view<const T, C>(in[0]), value, view<T, C>(out));
    });
  }

  template <class T, int C>
  requires exists<members::or_c<T, C>>
  [[nodiscard]] node<T, C> or_(node<T, C> src, values<T, C> value) {
    return recorded<T, C>("or_", {src.index}, [value](const detail::band* in, detail::band out) {
      return nothrow::or_(view<const T, C>(in[0]), value, view<T, C>(out));
    });
  }

  template <class T, int C>
  requires exists<members::xor_c<T, C>>
  [[nodiscard]] node<T, C> xor_(node<T, C> src, values<T, C> value) {
    return recorded<T, C>("xor_", {src.index}, [value](const detail::band* in, detail::band out) {
      return nothrow::xor_(view<const T, C>(in[0]), value, view<T, C>(out));
    });
  }

  template <class T, int C>
  requires exists<members::not_<T, C>>
  [[nodiscard]] node<T, C> not_(node<T, C> src) {
    return recorded<T, C>("not_", {src.index}, [](const detail::band* in, detail::band out) {
      return nothrow::not_(view<const T, C>(in[0]), view<T, C>(out));
    });
  }

  template <class T, int C>
  requires exists<members::l_shift_c<T, C>>
  [[nodiscard]] node<T, C> l_shift(node<T, C> src, values<std::uint32_t, C> value) {
    return recorded<T, C>("l_shift", {src.index}, [value](const detail::band* in, detail::band out) {
      return nothrow::l_shift(view<const T, C>(in[0]), value, view<T, C>(out));
    });
  }

  template <class T, int C>
  requires exists<members::r_shift_c<T, C>>
  [[nodiscard]] node<T, C> r_shift(node<T, C> src, values<std::uint32_t, C> value) {
    return recorded<T, C>("r_shift", {src.index}, [value](const detail::band* in, detail::band out) {
      return nothrow::r_shift(view<const T, C>(in[0]), value, view<T, C>(out));
    });
  }

  template <class T, int C>
  requires exists<members::mul_scale<T, C>>
  [[nodiscard]] node<T, C> mul_scale(node<T, C> a, std::type_identity_t<node<T, C>> b) {
    return recorded<T, C>("mul_scale", {a.index, b.index}, [](const detail::band* in, detail::band out) {
      return nothrow::mul_scale(view<const T, C>(in[0]), view<const T, C>(in[1]), view<T, C>(out));
    });
  }

  template <class T, int C>
  requires exists<members::mul_c_scale<T, C>>
  [[nodiscard]] node<T, C> mul_scale(node<T, C> src, values<T, C> value) {
    return recorded<T, C>("mul_scale", {src.index}, [value](const detail::band* in, detail::band out) {
      return nothrow::mul_scale(view<const T, C>(in[0]), value, view<T, C>(out));
    });
  }

  template <class T, int C>
  requires exists<members::alpha_comp_c<T, C>>
  [[nodiscard]] node<T, C> alpha_comp(node<T, C> a, std::type_identity_t<node<T, C>> b, std::type_identity_t<T> alpha1,
                                      std::type_identity_t<T> alpha2, alpha_type alpha_type) {
    return recorded<T, C>("alpha_comp", {a.index, b.index},
                          [alpha1, alpha2, alpha_type](const detail::band* in, detail::band out) {
                            return nothrow::alpha_comp(view<const T, C>(in[0]), view<const T, C>(in[1]),
                                                       view<T, C>(out), alpha1, alpha2, alpha_type);
                          });
  }

  template <class T, int C>
  requires exists<members::alpha_premul_c<T, C>>
  [[nodiscard]] node<T, C> alpha_premul(node<T, C> src, std::type_identity_t<T> alpha) {
    return recorded<T, C>("alpha_premul", {src.index}, [alpha](const detail::band* in, detail::band out) {
      return nothrow::alpha_premul(view<const T, C>(in[0]), view<T, C>(out), alpha);
    });
  }

  template <class T, int C>
  requires exists<members::threshold<T, C>>
  [[nodiscard]] node<T, C> threshold(node<T, C> src, values<T, C> threshold, cmp_op cmp_op) {
    return recorded<T, C>("threshold", {src.index}, [threshold, cmp_op](const detail::band* in, detail::band out) {
      return nothrow::threshold(view<const T, C>(in[0]), threshold, view<T, C>(out), cmp_op);
    });
  }

  template <class T, int C>
  requires exists<members::threshold_gt<T, C>>
  [[nodiscard]] node<T, C> threshold_gt(node<T, C> src, values<T, C> threshold) {
    return recorded<T, C>("threshold_gt", {src.index}, [threshold](const detail::band* in, detail::band out) {
      return nothrow::threshold_gt(view<const T, C>(in[0]), threshold, view<T, C>(out));
    });
  }

  template <class T, int C>
  requires exists<members::threshold_lt<T, C>>
  [[nodiscard]] node<T, C> threshold_lt(node<T, C> src, values<T, C> threshold) {
    return recorded<T, C>("threshold_lt", {src.index}, [threshold](const detail::band* in, detail::band out) {
      return nothrow::threshold_lt(view<const T, C>(in[0]), threshold, view<T, C>(out));
    });
  }

  template <class T, int C>
  requires exists<members::threshold_val<T, C>>
  [[nodiscard]] node<T, C> threshold_val(node<T, C> src, values<T, C> threshold, values<T, C> value, cmp_op cmp_op) {
    return recorded<T, C>(
        "threshold_val", {src.index}, [threshold, value, cmp_op](const detail::band* in, detail::band out) {
          return nothrow::threshold_val(view<const T, C>(in[0]), threshold, value, view<T, C>(out), cmp_op);
        });
  }

  template <class T, int C>
  requires exists<members::threshold_gt_val<T, C>>
  [[nodiscard]] node<T, C> threshold_gt_val(node<T, C> src, values<T, C> threshold, values<T, C> value) {
    return recorded<T, C>(
        "threshold_gt_val", {src.index}, [threshold, value](const detail::band* in, detail::band out) {
          return nothrow::threshold_gt_val(view<const T, C>(in[0]), threshold, value, view<T, C>(out));
        });
  }

  template <class T, int C>
  requires exists<members::threshold_lt_val<T, C>>
  [[nodiscard]] node<T, C> threshold_lt_val(node<T, C> src, values<T, C> threshold, values<T, C> value) {
    return recorded<T, C>(
        "threshold_lt_val", {src.index}, [threshold, value](const detail::band* in, detail::band out) {
          return nothrow::threshold_lt_val(view<const T, C>(in[0]), threshold, value, view<T, C>(out));
        });
  }

  template <class T, int C>
  requires exists<members::threshold_lt_val_gt_val<T, C>>
  [[nodiscard]] node<T, C> threshold_lt_val_gt_val(node<T, C> src, values<T, C> threshold_lt, values<T, C> value_lt,
                                                   values<T, C> threshold_gt, values<T, C> value_gt) {
    return recorded<T, C>("threshold_lt_val_gt_val", {src.index},
                          [threshold_lt, value_lt, threshold_gt, value_gt](const detail::band* in, detail::band out) {
                            return nothrow::threshold_lt_val_gt_val(view<const T, C>(in[0]), threshold_lt, value_lt,
                                                                    threshold_gt, value_gt, view<T, C>(out));
                          });
  }

  template <class S, int CS>
  requires exists<members::compare<S, CS>>
  [[nodiscard]] node<std::uint8_t, 1> compare(node<S, CS> a, std::type_identity_t<node<S, CS>> b, cmp_op cmp_op) {
    return recorded<std::uint8_t, 1>("compare", {a.index, b.index}, [cmp_op](const detail::band* in, detail::band out) {
      return nothrow::compare(view<const S, CS>(in[0]), view<const S, CS>(in[1]), view<std::uint8_t, 1>(out), cmp_op);
    });
  }

  template <class S, int CS>
  requires exists<members::compare_c<S, CS>>
  [[nodiscard]] node<std::uint8_t, 1> compare(node<S, CS> src, values<S, CS> value, cmp_op cmp_op) {
    return recorded<std::uint8_t, 1>("compare", {src.index}, [value, cmp_op](const detail::band* in, detail::band out) {
      return nothrow::compare(view<const S, CS>(in[0]), value, view<std::uint8_t, 1>(out), cmp_op);
    });
  }

  template <class T, int CS>
  requires exists<members::compare_equal_eps<T, CS>>
  [[nodiscard]] node<T, 1> compare_equal_eps(node<float, CS> a, std::type_identity_t<node<float, CS>> b, float eps) {
    return recorded<T, 1>("compare_equal_eps", {a.index, b.index}, [eps](const detail::band* in, detail::band out) {
      return nothrow::compare_equal_eps(view<const float, CS>(in[0]), view<const float, CS>(in[1]), view<T, 1>(out),
                                        eps);
    });
  }

  template <class T, int CS>
  requires exists<members::compare_equal_eps_c<T, CS>>
  [[nodiscard]] node<T, 1> compare_equal_eps(node<float, CS> src, values<float, CS> value, float eps) {
    return recorded<T, 1>("compare_equal_eps", {src.index}, [value, eps](const detail::band* in, detail::band out) {
      return nothrow::compare_equal_eps(view<const float, CS>(in[0]), value, view<T, 1>(out), eps);
    });
  }

  template <class T, int C>
  requires steady<members::filter_box<T, C>>
  [[nodiscard]] node<T, C> filter_box(node<T, C> src, extent mask_size,
                                      const std::type_identity_t<window<T, C>>& options = {}) {
    const point anchor = detail::anchored(options.anchor, mask_size);
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>(
        "filter_box", {src.index},
        [mask_size, inner](const detail::band* in, detail::band out) {
          return nothrow::filter_box(view<const T, C>(in[0]), view<T, C>(out), mask_size, inner);
        },
        detail::reach{detail::wide(anchor.x), detail::wide(anchor.y),
                      detail::wide(mask_size.width) - 1 - detail::wide(anchor.x),
                      detail::wide(mask_size.height) - 1 - detail::wide(anchor.y)},
        options.border, options.border_value);
  }

  template <class T, int C>
  requires exists<members::filter<T, C>>
  [[nodiscard]] node<T, C> filter(node<T, C> src, const grid<std::int32_t>& kernel,
                                  const std::type_identity_t<divided_window<T, C>>& options = {}) {
    const extent size = kernel.size;
    const point anchor = detail::anchored(options.anchor, size);
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>(
        "filter", {src.index},
        [kernel, inner](const detail::band* in, detail::band out) {
          return nothrow::filter(view<const T, C>(in[0]), view<T, C>(out), kernel, inner);
        },
        detail::reach{detail::wide(size.width) - 1 - detail::wide(anchor.x),
                      detail::wide(size.height) - 1 - detail::wide(anchor.y), detail::wide(anchor.x),
                      detail::wide(anchor.y)},
        options.border, options.border_value);
  }

  template <class T, int C>
  requires exists<members::filter_with_kernel<T, C>>
  [[nodiscard]] node<T, C> filter(node<T, C> src, const grid<float>& kernel,
                                  const std::type_identity_t<window<T, C>>& options = {}) {
    const extent size = kernel.size;
    const point anchor = detail::anchored(options.anchor, size);
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>(
        "filter", {src.index},
        [kernel, inner](const detail::band* in, detail::band out) {
          return nothrow::filter(view<const T, C>(in[0]), view<T, C>(out), kernel, inner);
        },
        detail::reach{detail::wide(size.width) - 1 - detail::wide(anchor.x),
                      detail::wide(size.height) - 1 - detail::wide(anchor.y), detail::wide(anchor.x),
                      detail::wide(anchor.y)},
        options.border, options.border_value);
  }

  template <class T, int C>
  requires exists<members::filter_row<T, C>>
  [[nodiscard]] node<T, C> filter_row(node<T, C> src, std::span<const std::int32_t> kernel,
                                      const std::type_identity_t<divided_line_window<T, C>>& options = {}) {
    const int size = static_cast<int>(kernel.size());
    const int anchor = detail::anchored(options.anchor, size);
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>(
        "filter_row", {src.index},
        [kernel, inner](const detail::band* in, detail::band out) {
          return nothrow::filter_row(view<const T, C>(in[0]), view<T, C>(out), kernel, inner);
        },
        detail::reach{detail::wide(size) - 1 - detail::wide(anchor), 0, detail::wide(anchor), 0}, options.border,
        options.border_value);
  }

  template <class T, int C>
  requires exists<members::filter_row_with_kernel<T, C>>
  [[nodiscard]] node<T, C> filter_row(node<T, C> src, std::span<const float> kernel,
                                      const std::type_identity_t<line_window<T, C>>& options = {}) {
    const int size = static_cast<int>(kernel.size());
    const int anchor = detail::anchored(options.anchor, size);
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>(
        "filter_row", {src.index},
        [kernel, inner](const detail::band* in, detail::band out) {
          return nothrow::filter_row(view<const T, C>(in[0]), view<T, C>(out), kernel, inner);
        },
        detail::reach{detail::wide(size) - 1 - detail::wide(anchor), 0, detail::wide(anchor), 0}, options.border,
        options.border_value);
  }

  template <class T, int C>
  requires exists<members::filter_column<T, C>>
  [[nodiscard]] node<T, C> filter_column(node<T, C> src, std::span<const std::int32_t> kernel,
                                         const std::type_identity_t<divided_line_window<T, C>>& options = {}) {
    const int size = static_cast<int>(kernel.size());
    const int anchor = detail::anchored(options.anchor, size);
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>(
        "filter_column", {src.index},
        [kernel, inner](const detail::band* in, detail::band out) {
          return nothrow::filter_column(view<const T, C>(in[0]), view<T, C>(out), kernel, inner);
        },
        detail::reach{0, detail::wide(size) - 1 - detail::wide(anchor), 0, detail::wide(anchor)}, options.border,
        options.border_value);
  }

  template <class T, int C>
  requires exists<members::filter_column_with_kernel<T, C>>
  [[nodiscard]] node<T, C> filter_column(node<T, C> src, std::span<const float> kernel,
                                         const std::type_identity_t<line_window<T, C>>& options = {}) {
    const int size = static_cast<int>(kernel.size());
    const int anchor = detail::anchored(options.anchor, size);
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>(
        "filter_column", {src.index},
        [kernel, inner](const detail::band* in, detail::band out) {
          return nothrow::filter_column(view<const T, C>(in[0]), view<T, C>(out), kernel, inner);
        },
        detail::reach{0, detail::wide(size) - 1 - detail::wide(anchor), 0, detail::wide(anchor)}, options.border,
        options.border_value);
  }

  template <class T, int C>
  requires exists<members::filter_prewitt_vert<T, C>>
  [[nodiscard]] node<T, C> filter_prewitt_vert(node<T, C> src,
                                               const std::type_identity_t<fixed_window<T, C>>& options = {}) {
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>(
        "filter_prewitt_vert", {src.index},
        [inner](const detail::band* in, detail::band out) {
          return nothrow::filter_prewitt_vert(view<const T, C>(in[0]), view<T, C>(out), inner);
        },
        detail::reach{1, 1, 1, 1}, options.border, options.border_value);
  }

  template <class T, int C>
  requires exists<members::filter_prewitt_horiz<T, C>>
  [[nodiscard]] node<T, C> filter_prewitt_horiz(node<T, C> src,
                                                const std::type_identity_t<fixed_window<T, C>>& options = {}) {
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>(
        "filter_prewitt_horiz", {src.index},
        [inner](const detail::band* in, detail::band out) {
          return nothrow::filter_prewitt_horiz(view<const T, C>(in[0]), view<T, C>(out), inner);
        },
        detail::reach{1, 1, 1, 1}, options.border, options.border_value);
  }

  template <class T, int C>
  requires exists<members::filter_sobel_vert<T, C>>
  [[nodiscard]] node<T, C> filter_sobel_vert(node<T, C> src,
                                             const std::type_identity_t<fixed_window<T, C>>& options = {}) {
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>(
        "filter_sobel_vert", {src.index},
        [inner](const detail::band* in, detail::band out) {
          return nothrow::filter_sobel_vert(view<const T, C>(in[0]), view<T, C>(out), inner);
        },
        detail::reach{1, 1, 1, 1}, options.border, options.border_value);
  }

  template <class S, int C>
  requires exists<members::filter_sobel_vert_with_mask<C, S>>
  [[nodiscard]] node<std::int16_t, C> filter_sobel_vert(node<S, C> src, mask_size mask_size,
                                                        const std::type_identity_t<fixed_window<S, C>>& options = {}) {
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<std::int16_t, C>(
        "filter_sobel_vert", {src.index},
        [mask_size, inner](const detail::band* in, detail::band out) {
          return nothrow::filter_sobel_vert(view<const S, C>(in[0]), view<std::int16_t, C>(out), mask_size, inner);
        },
        detail::reach{2, 2, 2, 2}, options.border, options.border_value);
  }

  template <class T, int C>
  requires exists<members::filter_sobel_horiz<T, C>>
  [[nodiscard]] node<T, C> filter_sobel_horiz(node<T, C> src,
                                              const std::type_identity_t<fixed_window<T, C>>& options = {}) {
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>(
        "filter_sobel_horiz", {src.index},
        [inner](const detail::band* in, detail::band out) {
          return nothrow::filter_sobel_horiz(view<const T, C>(in[0]), view<T, C>(out), inner);
        },
        detail::reach{1, 1, 1, 1}, options.border, options.border_value);
  }

  template <class S, int C>
  requires exists<members::filter_sobel_horiz_with_mask<C, S>>
  [[nodiscard]] node<std::int16_t, C> filter_sobel_horiz(node<S, C> src, mask_size mask_size,
                                                         const std::type_identity_t<fixed_window<S, C>>& options = {}) {
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<std::int16_t, C>(
        "filter_sobel_horiz", {src.index},
        [mask_size, inner](const detail::band* in, detail::band out) {
          return nothrow::filter_sobel_horiz(view<const S, C>(in[0]), view<std::int16_t, C>(out), mask_size, inner);
        },
        detail::reach{2, 2, 2, 2}, options.border, options.border_value);
  }

  template <class T, int C>
  requires exists<members::filter_sobel_vert_mask<T, C>>
  [[nodiscard]] node<T, C> filter_sobel_vert_mask(node<T, C> src, mask_size mask_size,
                                                  const std::type_identity_t<fixed_window<T, C>>& options = {}) {
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>(
        "filter_sobel_vert_mask", {src.index},
        [mask_size, inner](const detail::band* in, detail::band out) {
          return nothrow::filter_sobel_vert_mask(view<const T, C>(in[0]), view<T, C>(out), mask_size, inner);
        },
        detail::reach{2, 2, 2, 2}, options.border, options.border_value);
  }

  template <class T, int C>
  requires exists<members::filter_sobel_horiz_mask<T, C>>
  [[nodiscard]] node<T, C> filter_sobel_horiz_mask(node<T, C> src, mask_size mask_size,
                                                   const std::type_identity_t<fixed_window<T, C>>& options = {}) {
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>(
        "filter_sobel_horiz_mask", {src.index},
        [mask_size, inner](const detail::band* in, detail::band out) {
          return nothrow::filter_sobel_horiz_mask(view<const T, C>(in[0]), view<T, C>(out), mask_size, inner);
        },
        detail::reach{2, 2, 2, 2}, options.border, options.border_value);
  }

  template <class T, class S, int C>
  requires exists<members::filter_sobel_vert_second<T, C, S>>
  [[nodiscard]] node<T, C> filter_sobel_vert_second(node<S, C> src, mask_size mask_size,
                                                    const std::type_identity_t<fixed_window<S, C>>& options = {}) {
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>(
        "filter_sobel_vert_second", {src.index},
        [mask_size, inner](const detail::band* in, detail::band out) {
          return nothrow::filter_sobel_vert_second(view<const S, C>(in[0]), view<T, C>(out), mask_size, inner);
        },
        detail::reach{2, 2, 2, 2}, options.border, options.border_value);
  }

  template <class T, class S, int C>
  requires exists<members::filter_sobel_horiz_second<T, C, S>>
  [[nodiscard]] node<T, C> filter_sobel_horiz_second(node<S, C> src, mask_size mask_size,
                                                     const std::type_identity_t<fixed_window<S, C>>& options = {}) {
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>(
        "filter_sobel_horiz_second", {src.index},
        [mask_size, inner](const detail::band* in, detail::band out) {
          return nothrow::filter_sobel_horiz_second(view<const S, C>(in[0]), view<T, C>(out), mask_size, inner);
        },
        detail::reach{2, 2, 2, 2}, options.border, options.border_value);
  }

  template <class T, class S, int C>
  requires exists<members::filter_sobel_cross<T, C, S>>
  [[nodiscard]] node<T, C> filter_sobel_cross(node<S, C> src, mask_size mask_size,
                                              const std::type_identity_t<fixed_window<S, C>>& options = {}) {
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>(
        "filter_sobel_cross", {src.index},
        [mask_size, inner](const detail::band* in, detail::band out) {
          return nothrow::filter_sobel_cross(view<const S, C>(in[0]), view<T, C>(out), mask_size, inner);
        },
        detail::reach{2, 2, 2, 2}, options.border, options.border_value);
  }

  template <class T, class S, int C>
  requires exists<members::filter_scharr_vert<T, C, S>>
  [[nodiscard]] node<T, C> filter_scharr_vert(node<S, C> src,
                                              const std::type_identity_t<fixed_window<S, C>>& options = {}) {
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>(
        "filter_scharr_vert", {src.index},
        [inner](const detail::band* in, detail::band out) {
          return nothrow::filter_scharr_vert(view<const S, C>(in[0]), view<T, C>(out), inner);
        },
        detail::reach{1, 1, 1, 1}, options.border, options.border_value);
  }

  template <class T, class S, int C>
  requires exists<members::filter_scharr_horiz<T, C, S>>
  [[nodiscard]] node<T, C> filter_scharr_horiz(node<S, C> src,
                                               const std::type_identity_t<fixed_window<S, C>>& options = {}) {
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>(
        "filter_scharr_horiz", {src.index},
        [inner](const detail::band* in, detail::band out) {
          return nothrow::filter_scharr_horiz(view<const S, C>(in[0]), view<T, C>(out), inner);
        },
        detail::reach{1, 1, 1, 1}, options.border, options.border_value);
  }

  template <class T, int C>
  requires exists<members::filter_roberts_down<T, C>>
  [[nodiscard]] node<T, C> filter_roberts_down(node<T, C> src,
                                               const std::type_identity_t<fixed_window<T, C>>& options = {}) {
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>(
        "filter_roberts_down", {src.index},
        [inner](const detail::band* in, detail::band out) {
          return nothrow::filter_roberts_down(view<const T, C>(in[0]), view<T, C>(out), inner);
        },
        detail::reach{1, 1, 1, 1}, options.border, options.border_value);
  }

  template <class T, int C>
  requires exists<members::filter_roberts_up<T, C>>
  [[nodiscard]] node<T, C> filter_roberts_up(node<T, C> src,
                                             const std::type_identity_t<fixed_window<T, C>>& options = {}) {
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>(
        "filter_roberts_up", {src.index},
        [inner](const detail::band* in, detail::band out) {
          return nothrow::filter_roberts_up(view<const T, C>(in[0]), view<T, C>(out), inner);
        },
        detail::reach{1, 1, 1, 1}, options.border, options.border_value);
  }

  template <class T, class S, int C>
  requires exists<members::filter_laplace<T, C, S>>
  [[nodiscard]] node<T, C> filter_laplace(node<S, C> src, mask_size mask_size,
                                          const std::type_identity_t<fixed_window<S, C>>& options = {}) {
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>(
        "filter_laplace", {src.index},
        [mask_size, inner](const detail::band* in, detail::band out) {
          return nothrow::filter_laplace(view<const S, C>(in[0]), view<T, C>(out), mask_size, inner);
        },
        detail::reach{2, 2, 2, 2}, options.border, options.border_value);
  }

  template <class T, int C>
  requires exists<members::filter_gauss<T, C>>
  [[nodiscard]] node<T, C> filter_gauss(node<T, C> src, mask_size mask_size,
                                        const std::type_identity_t<fixed_window<T, C>>& options = {}) {
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>(
        "filter_gauss", {src.index},
        [mask_size, inner](const detail::band* in, detail::band out) {
          return nothrow::filter_gauss(view<const T, C>(in[0]), view<T, C>(out), mask_size, inner);
        },
        detail::reach{2, 2, 2, 2}, options.border, options.border_value);
  }

  template <class T, int C>
  requires steady<members::filter_lowpass<T, C>>
  [[nodiscard]] node<T, C> filter_lowpass(node<T, C> src, mask_size mask_size,
                                          const std::type_identity_t<fixed_window<T, C>>& options = {}) {
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>(
        "filter_lowpass", {src.index},
        [mask_size, inner](const detail::band* in, detail::band out) {
          return nothrow::filter_lowpass(view<const T, C>(in[0]), view<T, C>(out), mask_size, inner);
        },
        detail::reach{2, 2, 2, 2}, options.border, options.border_value);
  }

  template <class T, int C>
  requires steady<members::filter_hipass<T, C>>
  [[nodiscard]] node<T, C> filter_hipass(node<T, C> src, mask_size mask_size,
                                         const std::type_identity_t<fixed_window<T, C>>& options = {}) {
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>(
        "filter_hipass", {src.index},
        [mask_size, inner](const detail::band* in, detail::band out) {
          return nothrow::filter_hipass(view<const T, C>(in[0]), view<T, C>(out), mask_size, inner);
        },
        detail::reach{2, 2, 2, 2}, options.border, options.border_value);
  }

  template <class T, int C>
  requires exists<members::filter_sharpen<T, C>>
  [[nodiscard]] node<T, C> filter_sharpen(node<T, C> src,
                                          const std::type_identity_t<fixed_window<T, C>>& options = {}) {
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>(
        "filter_sharpen", {src.index},
        [inner](const detail::band* in, detail::band out) {
          return nothrow::filter_sharpen(view<const T, C>(in[0]), view<T, C>(out), inner);
        },
        detail::reach{1, 1, 1, 1}, options.border, options.border_value);
  }

  template <class T, int C>
  requires exists<members::filter_median<T, C>>
  [[nodiscard]] node<T, C> filter_median(node<T, C> src, extent mask_size,
                                         const std::type_identity_t<window<T, C>>& options = {}) {
    const point anchor = detail::anchored(options.anchor, mask_size);
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>(
        "filter_median", {src.index},
        [mask_size, inner](const detail::band* in, detail::band out) {
          return nothrow::filter_median(view<const T, C>(in[0]), view<T, C>(out), mask_size, inner);
        },
        detail::reach{detail::wide(anchor.x), detail::wide(anchor.y),
                      detail::wide(mask_size.width) - 1 - detail::wide(anchor.x),
                      detail::wide(mask_size.height) - 1 - detail::wide(anchor.y)},
        options.border, options.border_value);
  }

  template <class T, int C>
  requires exists<members::filter_median_horiz<T, C>>
  [[nodiscard]] node<T, C> filter_median_horiz(node<T, C> src, mask_size mask_size,
                                               const std::type_identity_t<fixed_window<T, C>>& options = {}) {
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>(
        "filter_median_horiz", {src.index},
        [mask_size, inner](const detail::band* in, detail::band out) {
          return nothrow::filter_median_horiz(view<const T, C>(in[0]), view<T, C>(out), mask_size, inner);
        },
        detail::reach{2, 2, 2, 2}, options.border, options.border_value);
  }

  template <class T, int C>
  requires exists<members::filter_median_vert<T, C>>
  [[nodiscard]] node<T, C> filter_median_vert(node<T, C> src, mask_size mask_size,
                                              const std::type_identity_t<fixed_window<T, C>>& options = {}) {
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>(
        "filter_median_vert", {src.index},
        [mask_size, inner](const detail::band* in, detail::band out) {
          return nothrow::filter_median_vert(view<const T, C>(in[0]), view<T, C>(out), mask_size, inner);
        },
        detail::reach{2, 2, 2, 2}, options.border, options.border_value);
  }

  template <class T, int C>
  requires exists<members::filter_median_cross<T, C>>
  [[nodiscard]] node<T, C> filter_median_cross(node<T, C> src, mask_size mask_size,
                                               const std::type_identity_t<fixed_window<T, C>>& options = {}) {
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>(
        "filter_median_cross", {src.index},
        [mask_size, inner](const detail::band* in, detail::band out) {
          return nothrow::filter_median_cross(view<const T, C>(in[0]), view<T, C>(out), mask_size, inner);
        },
        detail::reach{2, 2, 2, 2}, options.border, options.border_value);
  }

  template <class T, int C>
  requires exists<members::filter_median_color<T, C>>
  [[nodiscard]] node<T, C> filter_median_color(node<T, C> src, mask_size mask_size,
                                               const std::type_identity_t<fixed_window<T, C>>& options = {}) {
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>(
        "filter_median_color", {src.index},
        [mask_size, inner](const detail::band* in, detail::band out) {
          return nothrow::filter_median_color(view<const T, C>(in[0]), view<T, C>(out), mask_size, inner);
        },
        detail::reach{2, 2, 2, 2}, options.border, options.border_value);
  }

  template <class T, int C>
  requires exists<members::filter_min<T, C>>
  [[nodiscard]] node<T, C> filter_min(node<T, C> src, extent mask_size,
                                      const std::type_identity_t<window<T, C>>& options = {}) {
    const point anchor = detail::anchored(options.anchor, mask_size);
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>(
        "filter_min", {src.index},
        [mask_size, inner](const detail::band* in, detail::band out) {
          return nothrow::filter_min(view<const T, C>(in[0]), view<T, C>(out), mask_size, inner);
        },
        detail::reach{detail::wide(anchor.x), detail::wide(anchor.y),
                      detail::wide(mask_size.width) - 1 - detail::wide(anchor.x),
                      detail::wide(mask_size.height) - 1 - detail::wide(anchor.y)},
        options.border, options.border_value);
  }

  template <class T, int C>
  requires exists<members::filter_max<T, C>>
  [[nodiscard]] node<T, C> filter_max(node<T, C> src, extent mask_size,
                                      const std::type_identity_t<window<T, C>>& options = {}) {
    const point anchor = detail::anchored(options.anchor, mask_size);
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>(
        "filter_max", {src.index},
        [mask_size, inner](const detail::band* in, detail::band out) {
          return nothrow::filter_max(view<const T, C>(in[0]), view<T, C>(out), mask_size, inner);
        },
        detail::reach{detail::wide(anchor.x), detail::wide(anchor.y),
                      detail::wide(mask_size.width) - 1 - detail::wide(anchor.x),
                      detail::wide(mask_size.height) - 1 - detail::wide(anchor.y)},
        options.border, options.border_value);
  }

  template <class T, int C>
  requires exists<members::erode3x3<T, C>>
  [[nodiscard]] node<T, C> erode3x3(node<T, C> src, const std::type_identity_t<fixed_window<T, C>>& options = {}) {
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>(
        "erode3x3", {src.index},
        [inner](const detail::band* in, detail::band out) {
          return nothrow::erode3x3(view<const T, C>(in[0]), view<T, C>(out), inner);
        },
        detail::reach{1, 1, 1, 1}, options.border, options.border_value);
  }

  template <class T, int C>
  requires exists<members::dilate3x3<T, C>>
  [[nodiscard]] node<T, C> dilate3x3(node<T, C> src, const std::type_identity_t<fixed_window<T, C>>& options = {}) {
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>(
        "dilate3x3", {src.index},
        [inner](const detail::band* in, detail::band out) {
          return nothrow::dilate3x3(view<const T, C>(in[0]), view<T, C>(out), inner);
        },
        detail::reach{1, 1, 1, 1}, options.border, options.border_value);
  }

  template <class T, int C>
  requires exists<members::erode<T, C>>
  [[nodiscard]] node<T, C> erode(node<T, C> src, const grid<std::uint8_t>& footprint,
                                 const std::type_identity_t<window<T, C>>& options = {}) {
    const extent mask_size = footprint.size;
    const point anchor = detail::anchored(options.anchor, mask_size);
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>(
        "erode", {src.index},
        [footprint, inner](const detail::band* in, detail::band out) {
          return nothrow::erode(view<const T, C>(in[0]), view<T, C>(out), footprint, inner);
        },
        detail::reach{detail::wide(anchor.x), detail::wide(anchor.y),
                      detail::wide(mask_size.width) - 1 - detail::wide(anchor.x),
                      detail::wide(mask_size.height) - 1 - detail::wide(anchor.y)},
        options.border, options.border_value);
  }

  template <class T, int C>
  requires exists<members::dilate<T, C>>
  [[nodiscard]] node<T, C> dilate(node<T, C> src, const grid<std::uint8_t>& footprint,
                                  const std::type_identity_t<window<T, C>>& options = {}) {
    const extent mask_size = footprint.size;
    const point anchor = detail::anchored(options.anchor, mask_size);
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>(
        "dilate", {src.index},
        [footprint, inner](const detail::band* in, detail::band out) {
          return nothrow::dilate(view<const T, C>(in[0]), view<T, C>(out), footprint, inner);
        },
        detail::reach{detail::wide(anchor.x), detail::wide(anchor.y),
                      detail::wide(mask_size.width) - 1 - detail::wide(anchor.x),
                      detail::wide(mask_size.height) - 1 - detail::wide(anchor.y)},
        options.border, options.border_value);
  }

  template <class T, class S, int C>
  requires exists<members::convert<T, C, S>>
  [[nodiscard]] node<T, C> convert(node<S, C> src,
                                   const options_beyond<members::convert<T, C, S>, 5, rounded>& options = {}) {
    return recorded<T, C>("convert", {src.index}, [options](const detail::band* in, detail::band out) {
      return nothrow::convert(view<const S, C>(in[0]), view<T, C>(out), options);
    });
  }

  template <class T, class S, int C>
  requires exists<members::scale<T, C, S>>
  [[nodiscard]] node<T, C> scale(node<S, C> src,
                                 const options_beyond<members::scale<T, C, S>, 5, hinted>& options = {}) {
    return recorded<T, C>("scale", {src.index}, [options](const detail::band* in, detail::band out) {
      return nothrow::scale(view<const S, C>(in[0]), view<T, C>(out), options);
    });
  }

  template <class T, class S, int C>
  requires exists<members::scale_with_v_min_v_max<T, C, S>>
  [[nodiscard]] node<T, C> scale(node<S, C> src, float v_min, float v_max) {
    return recorded<T, C>("scale", {src.index}, [v_min, v_max](const detail::band* in, detail::band out) {
      return nothrow::scale(view<const S, C>(in[0]), view<T, C>(out), v_min, v_max);
    });
  }

  template <class T, int C>
  requires exists<members::swap_channels<T, C>>
  [[nodiscard]] node<T, C> swap_channels(node<T, C> src, const std::array<int, 3>& dst_order) {
    return recorded<T, C>("swap_channels", {src.index}, [dst_order](const detail::band* in, detail::band out) {
      return nothrow::swap_channels(view<const T, C>(in[0]), view<T, C>(out), dst_order);
    });
  }

  template <class T, int C>
  requires exists<members::lut<T, C>>
  [[nodiscard]] node<T, C> lut(node<T, C> src, const lists<level_type<T>, C>& values,
                               const lists<level_type<T>, C>& levels) {
    return recorded<T, C>("lut", {src.index}, [values, levels](const detail::band* in, detail::band out) {
      return nothrow::lut(view<const T, C>(in[0]), view<T, C>(out), values, levels);
    });
  }

  template <class T, int C>
  requires exists<members::lut_linear<T, C>>
  [[nodiscard]] node<T, C> lut_linear(node<T, C> src, const lists<level_type<T>, C>& values,
                                      const lists<level_type<T>, C>& levels) {
    return recorded<T, C>("lut_linear", {src.index}, [values, levels](const detail::band* in, detail::band out) {
      return nothrow::lut_linear(view<const T, C>(in[0]), view<T, C>(out), values, levels);
    });
  }

  template <class T, int C>
  requires exists<members::lut_cubic<T, C>>
  [[nodiscard]] node<T, C> lut_cubic(node<T, C> src, const lists<level_type<T>, C>& values,
                                     const lists<level_type<T>, C>& levels) {
    return recorded<T, C>("lut_cubic", {src.index}, [values, levels](const detail::band* in, detail::band out) {
      return nothrow::lut_cubic(view<const T, C>(in[0]), view<T, C>(out), values, levels);
    });
  }

  template <class T, class S, int C>
  requires exists<members::lut_palette<T, C, S>>
  [[nodiscard]] node<T, C> lut_palette(node<S, 1> src, std::span<const std::type_identity_t<T>> table, int n_bit_size) {
    return recorded<T, C>("lut_palette", {src.index}, [table, n_bit_size](const detail::band* in, detail::band out) {
      return nothrow::lut_palette(view<const S, 1>(in[0]), view<T, C>(out), table, n_bit_size);
    });
  }

  template <class T, class S, int C>
  requires exists<members::magnitude<T, C, S>>
  [[nodiscard]] node<T, C> magnitude(node<S, C> src,
                                     const options_beyond<members::magnitude<T, C, S>, 5, scaled>& options = {}) {
    return recorded<T, C>("magnitude", {src.index}, [options](const detail::band* in, detail::band out) {
      return nothrow::magnitude(view<const S, C>(in[0]), view<T, C>(out), options);
    });
  }

  template <class T, class S, int C>
  requires exists<members::phase<T, C, S>>
  [[nodiscard]] node<T, C> phase(node<S, C> src,
                                 const options_beyond<members::phase<T, C, S>, 5, scaled>& options = {}) {
    return recorded<T, C>("phase", {src.index}, [options](const detail::band* in, detail::band out) {
      return nothrow::phase(view<const S, C>(in[0]), view<T, C>(out), options);
    });
  }

  template <class T, int C>
  requires exists<members::polar_to_cart<T, C>>
  [[nodiscard]] node<T, C> polar_to_cart(node<float, C> magnitude, std::type_identity_t<node<float, C>> phase) {
    return recorded<T, C>(
        "polar_to_cart", {magnitude.index, phase.index}, [](const detail::band* in, detail::band out) {
          return nothrow::polar_to_cart(view<const float, C>(in[0]), view<const float, C>(in[1]), view<T, C>(out));
        });
  }

  template <class T, class S, int C>
  requires exists<members::polar_to_cart_with_phase_fixed_point<T, C, S>>
  [[nodiscard]] node<T, C> polar_to_cart(node<S, C> magnitude, std::type_identity_t<node<S, C>> phase,
                                         int phase_fixed_point) {
    return recorded<T, C>("polar_to_cart", {magnitude.index, phase.index},
                          [phase_fixed_point](const detail::band* in, detail::band out) {
                            return nothrow::polar_to_cart(view<const S, C>(in[0]), view<const S, C>(in[1]),
                                                          view<T, C>(out), phase_fixed_point);
                          });
  }
};

}  // namespace hux

#endif
