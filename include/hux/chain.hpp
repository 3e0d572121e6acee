// Made by tools/cpp_front from the headers of the C library.
// Chains: several calls, one pass over memory, all cores.
//
//   hux::chain c;
//   auto sum = c.add(c.input(a), c.input(b), {.shift = 1});
//   c.output(c.filter_box(sum, {5, 3}), out);
//   c.output(c.count_in_range(sum, 200, 255), bright);
//   c.run({.threads = 2});
//
// Calls are recorded with the parameters of the functions of their names, on nodes in place of images, and without
// destinations; what no source tells of the result is named: c.convert<float>(node), c.dup<3>(node). run() takes the
// images through all calls in bands of rows that stay in the cache, with the bits of the calls one by one on whole
// images. Inputs, outputs, and lists, kernels and footprints of calls must be there until it returns; a chain may
// run again on them, and then does without recording, planning and allocating.
//
// A chain holds what is local: operations on pixels, windows, and measures that do not depend on the order of pixels.
// Other calls (transforms, geometry, matching, sums of floats) do not compile, and say so: end the chain there, give
// what they need an output, and call them then.
#ifndef HUX_CHAIN_HPP
#define HUX_CHAIN_HPP

#include "arith.hpp"
#include "chained.hpp"
#include "filter.hpp"
#include "transform.hpp"

namespace hux {

// A member whose bits do not depend on how rows are shared.
template <auto Function>
concept steady = exists<Function> && !detail::begins_anew<Function>;

class chain : public chain_calls {
 public:
  template <class T, int C>
  requires exists<members::add<T, C>>
  [[nodiscard]] node<T, C> add(node<T, C> a, std::type_identity_t<node<T, C>> b,
                               const options_beyond<members::add<T, C>, 7, scaled>& options = {}) {
    return recorded<T, C>(
        "add", {part(a), part(b)}, detail::work([options](const detail::band* in, const detail::band& out) {
          return nothrow::add(in[0].as<const T, C>(), in[1].as<const T, C>(), out.as<T, C>(), options);
        }));
  }

  template <class T, int C>
  requires exists<members::sub<T, C>>
  [[nodiscard]] node<T, C> sub(node<T, C> a, std::type_identity_t<node<T, C>> b,
                               const options_beyond<members::sub<T, C>, 7, scaled>& options = {}) {
    return recorded<T, C>(
        "sub", {part(a), part(b)}, detail::work([options](const detail::band* in, const detail::band& out) {
          return nothrow::sub(in[0].as<const T, C>(), in[1].as<const T, C>(), out.as<T, C>(), options);
        }));
  }

  template <class T, int C>
  requires exists<members::mul<T, C>>
  [[nodiscard]] node<T, C> mul(node<T, C> a, std::type_identity_t<node<T, C>> b,
                               const options_beyond<members::mul<T, C>, 7, scaled>& options = {}) {
    return recorded<T, C>(
        "mul", {part(a), part(b)}, detail::work([options](const detail::band* in, const detail::band& out) {
          return nothrow::mul(in[0].as<const T, C>(), in[1].as<const T, C>(), out.as<T, C>(), options);
        }));
  }

  template <class T, int C>
  requires exists<members::add_c<T, C>>
  [[nodiscard]] node<T, C> add(node<T, C> src, values<T, C> value,
                               const options_beyond<members::add_c<T, C>, 6, scaled>& options = {}) {
    return recorded<T, C>("add", {part(src)},
                          detail::work([value, options](const detail::band* in, const detail::band& out) {
                            return nothrow::add(in[0].as<const T, C>(), value, out.as<T, C>(), options);
                          }));
  }

  template <class T, int C>
  requires exists<members::sub_c<T, C>>
  [[nodiscard]] node<T, C> sub(node<T, C> src, values<T, C> value,
                               const options_beyond<members::sub_c<T, C>, 6, scaled>& options = {}) {
    return recorded<T, C>("sub", {part(src)},
                          detail::work([value, options](const detail::band* in, const detail::band& out) {
                            return nothrow::sub(in[0].as<const T, C>(), value, out.as<T, C>(), options);
                          }));
  }

  template <class T, int C>
  requires exists<members::mul_c<T, C>>
  [[nodiscard]] node<T, C> mul(node<T, C> src, values<T, C> value,
                               const options_beyond<members::mul_c<T, C>, 6, scaled>& options = {}) {
    return recorded<T, C>("mul", {part(src)},
                          detail::work([value, options](const detail::band* in, const detail::band& out) {
                            return nothrow::mul(in[0].as<const T, C>(), value, out.as<T, C>(), options);
                          }));
  }

  template <class T, int C>
  requires exists<members::div<T, C>>
  [[nodiscard]] node<T, C> div(node<T, C> a, std::type_identity_t<node<T, C>> b,
                               const options_beyond<members::div<T, C>, 7, scaled>& options = {}) {
    return recorded<T, C>(
        "div", {part(a), part(b)}, detail::work([options](const detail::band* in, const detail::band& out) {
          return nothrow::div(in[0].as<const T, C>(), in[1].as<const T, C>(), out.as<T, C>(), options);
        }));
  }

  template <class T, int C>
  requires exists<members::div_c<T, C>>
  [[nodiscard]] node<T, C> div(node<T, C> src, values<T, C> value,
                               const options_beyond<members::div_c<T, C>, 6, scaled>& options = {}) {
    return recorded<T, C>("div", {part(src)},
                          detail::work([value, options](const detail::band* in, const detail::band& out) {
                            return nothrow::div(in[0].as<const T, C>(), value, out.as<T, C>(), options);
                          }));
  }

  template <class T, int C>
  requires exists<members::abs<T, C>>
  [[nodiscard]] node<T, C> abs(node<T, C> src) {
    return recorded<T, C>("abs", {part(src)}, detail::work([](const detail::band* in, const detail::band& out) {
                            return nothrow::abs(in[0].as<const T, C>(), out.as<T, C>());
                          }));
  }

  template <class T, int C>
  requires exists<members::sqr<T, C>>
  [[nodiscard]] node<T, C> sqr(node<T, C> src, const options_beyond<members::sqr<T, C>, 5, scaled>& options = {}) {
    return recorded<T, C>("sqr", {part(src)}, detail::work([options](const detail::band* in, const detail::band& out) {
                            return nothrow::sqr(in[0].as<const T, C>(), out.as<T, C>(), options);
                          }));
  }

  template <class T, int C>
  requires exists<members::sqrt<T, C>>
  [[nodiscard]] node<T, C> sqrt(node<T, C> src, const options_beyond<members::sqrt<T, C>, 5, scaled>& options = {}) {
    return recorded<T, C>("sqrt", {part(src)}, detail::work([options](const detail::band* in, const detail::band& out) {
                            return nothrow::sqrt(in[0].as<const T, C>(), out.as<T, C>(), options);
                          }));
  }

  template <class T, int C>
  requires exists<members::exp<T, C>>
  [[nodiscard]] node<T, C> exp(node<T, C> src, const options_beyond<members::exp<T, C>, 5, scaled>& options = {}) {
    return recorded<T, C>("exp", {part(src)}, detail::work([options](const detail::band* in, const detail::band& out) {
                            return nothrow::exp(in[0].as<const T, C>(), out.as<T, C>(), options);
                          }));
  }

  template <class T, int C>
  requires exists<members::ln<T, C>>
  [[nodiscard]] node<T, C> ln(node<T, C> src, const options_beyond<members::ln<T, C>, 5, scaled>& options = {}) {
    return recorded<T, C>("ln", {part(src)}, detail::work([options](const detail::band* in, const detail::band& out) {
                            return nothrow::ln(in[0].as<const T, C>(), out.as<T, C>(), options);
                          }));
  }

  template <class T, int C>
  requires exists<members::and_<T, C>>
  [[nodiscard]] node<T, C> and_(node<T, C> a, std::type_identity_t<node<T, C>> b) {
    return recorded<T, C>("and_", {part(a), part(b)}, detail::work([](const detail::band* in, const detail::band& out) {
                            return nothrow::and_(in[0].as<const T, C>(), in[1].as<const T, C>(), out.as<T, C>());
                          }));
  }

  template <class T, int C>
  requires exists<members::or_<T, C>>
  [[nodiscard]] node<T, C> or_(node<T, C> a, std::type_identity_t<node<T, C>> b) {
    return recorded<T, C>("or_", {part(a), part(b)}, detail::work([](const detail::band* in, const detail::band& out) {
                            return nothrow::or_(in[0].as<const T, C>(), in[1].as<const T, C>(), out.as<T, C>());
                          }));
  }

  template <class T, int C>
  requires exists<members::xor_<T, C>>
  [[nodiscard]] node<T, C> xor_(node<T, C> a, std::type_identity_t<node<T, C>> b) {
    return recorded<T, C>("xor_", {part(a), part(b)}, detail::work([](const detail::band* in, const detail::band& out) {
                            return nothrow::xor_(in[0].as<const T, C>(), in[1].as<const T, C>(), out.as<T, C>());
                          }));
  }

  template <class T, int C>
  requires exists<members::and_c<T, C>>
  [[nodiscard]] node<T, C> and_(node<T, C> src, values<T, C> value) {
    return recorded<T, C>("and_", {part(src)}, detail::work([value](const detail::band* in, const detail::band& out) {
                            return nothrow::and_(in[0].as<const T, C>(), value, out.as<T, C>());
                          }));
  }

  template <class T, int C>
  requires exists<members::or_c<T, C>>
  [[nodiscard]] node<T, C> or_(node<T, C> src, values<T, C> value) {
    return recorded<T, C>("or_", {part(src)}, detail::work([value](const detail::band* in, const detail::band& out) {
                            return nothrow::or_(in[0].as<const T, C>(), value, out.as<T, C>());
                          }));
  }

  template <class T, int C>
  requires exists<members::xor_c<T, C>>
  [[nodiscard]] node<T, C> xor_(node<T, C> src, values<T, C> value) {
    return recorded<T, C>("xor_", {part(src)}, detail::work([value](const detail::band* in, const detail::band& out) {
                            return nothrow::xor_(in[0].as<const T, C>(), value, out.as<T, C>());
                          }));
  }

  template <class T, int C>
  requires exists<members::not_<T, C>>
  [[nodiscard]] node<T, C> not_(node<T, C> src) {
    return recorded<T, C>("not_", {part(src)}, detail::work([](const detail::band* in, const detail::band& out) {
                            return nothrow::not_(in[0].as<const T, C>(), out.as<T, C>());
                          }));
  }

  template <class T, int C>
  requires exists<members::l_shift_c<T, C>>
  [[nodiscard]] node<T, C> l_shift(node<T, C> src, values<std::uint32_t, C> value) {
    return recorded<T, C>("l_shift", {part(src)},
                          detail::work([value](const detail::band* in, const detail::band& out) {
                            return nothrow::l_shift(in[0].as<const T, C>(), value, out.as<T, C>());
                          }));
  }

  template <class T, int C>
  requires exists<members::r_shift_c<T, C>>
  [[nodiscard]] node<T, C> r_shift(node<T, C> src, values<std::uint32_t, C> value) {
    return recorded<T, C>("r_shift", {part(src)},
                          detail::work([value](const detail::band* in, const detail::band& out) {
                            return nothrow::r_shift(in[0].as<const T, C>(), value, out.as<T, C>());
                          }));
  }

  template <class T, int C>
  requires exists<members::mul_scale<T, C>>
  [[nodiscard]] node<T, C> mul_scale(node<T, C> a, std::type_identity_t<node<T, C>> b) {
    return recorded<T, C>("mul_scale", {part(a), part(b)},
                          detail::work([](const detail::band* in, const detail::band& out) {
                            return nothrow::mul_scale(in[0].as<const T, C>(), in[1].as<const T, C>(), out.as<T, C>());
                          }));
  }

  template <class T, int C>
  requires exists<members::mul_c_scale<T, C>>
  [[nodiscard]] node<T, C> mul_scale(node<T, C> src, values<T, C> value) {
    return recorded<T, C>("mul_scale", {part(src)},
                          detail::work([value](const detail::band* in, const detail::band& out) {
                            return nothrow::mul_scale(in[0].as<const T, C>(), value, out.as<T, C>());
                          }));
  }

  template <class T, int C>
  requires exists<members::alpha_comp<T, C>>
  [[nodiscard]] node<T, C> alpha_comp(node<T, C> a, std::type_identity_t<node<T, C>> b, alpha_type alpha_type) {
    return recorded_with_alpha<T, C>(
        "alpha_comp", {part(a), part(b)}, detail::work([alpha_type](const detail::band* in, const detail::band& out) {
          return nothrow::alpha_comp(in[0].as<const T, C>(), in[1].as<const T, C>(), out.as<T, C>(), alpha_type);
        }));
  }

  template <class T, int C>
  requires exists<members::alpha_comp_planes<T, C>>
  [[nodiscard]] node<T, C> alpha_comp(node<T, C> a, std::type_identity_t<node<T, C>> b, alpha_type alpha_type) {
    return recorded_with_alpha<T, C>(
        "alpha_comp", {part(a), part(b)}, detail::work([alpha_type](const detail::band* in, const detail::band& out) {
          return nothrow::alpha_comp(in[0].as<const T, C>(), in[1].as<const T, C>(), out.as<T, C>(), alpha_type);
        }));
  }

  template <class T, int C>
  requires exists<members::alpha_comp_c<T, C>>
  [[nodiscard]] node<T, C> alpha_comp(node<T, C> a, std::type_identity_t<node<T, C>> b, std::type_identity_t<T> alpha1,
                                      std::type_identity_t<T> alpha2, alpha_type alpha_type) {
    return recorded_with_alpha<T, C>(
        "alpha_comp", {part(a), part(b)},
        detail::work([alpha1, alpha2, alpha_type](const detail::band* in, const detail::band& out) {
          return nothrow::alpha_comp(in[0].as<const T, C>(), in[1].as<const T, C>(), out.as<T, C>(), alpha1, alpha2,
                                     alpha_type);
        }));
  }

  template <class T, int C>
  requires exists<members::alpha_comp_c_planes<T, C>>
  [[nodiscard]] node<T, C> alpha_comp(node<T, C> a, std::type_identity_t<node<T, C>> b, std::type_identity_t<T> alpha1,
                                      std::type_identity_t<T> alpha2, alpha_type alpha_type) {
    return recorded_with_alpha<T, C>(
        "alpha_comp", {part(a), part(b)},
        detail::work([alpha1, alpha2, alpha_type](const detail::band* in, const detail::band& out) {
          return nothrow::alpha_comp(in[0].as<const T, C>(), in[1].as<const T, C>(), out.as<T, C>(), alpha1, alpha2,
                                     alpha_type);
        }));
  }

  template <class T, int C>
  requires exists<members::alpha_premul<T, C>>
  [[nodiscard]] node<T, C> alpha_premul(node<T, C> src) {
    return recorded_with_alpha<T, C>("alpha_premul", {part(src)},
                                     detail::work([](const detail::band* in, const detail::band& out) {
                                       return nothrow::alpha_premul(in[0].as<const T, C>(), out.as<T, C>());
                                     }));
  }

  template <class T, int C>
  requires exists<members::alpha_premul_planes<T, C>>
  [[nodiscard]] node<T, C> alpha_premul(node<T, C> src) {
    return recorded_with_alpha<T, C>("alpha_premul", {part(src)},
                                     detail::work([](const detail::band* in, const detail::band& out) {
                                       return nothrow::alpha_premul(in[0].as<const T, C>(), out.as<T, C>());
                                     }));
  }

  template <class T, int C>
  requires exists<members::alpha_premul_c<T, C>>
  [[nodiscard]] node<T, C> alpha_premul(node<T, C> src, std::type_identity_t<T> alpha) {
    return recorded_with_alpha<T, C>("alpha_premul", {part(src)},
                                     detail::work([alpha](const detail::band* in, const detail::band& out) {
                                       return nothrow::alpha_premul(in[0].as<const T, C>(), out.as<T, C>(), alpha);
                                     }));
  }

  template <class T, int C>
  requires exists<members::alpha_premul_c_planes<T, C>>
  [[nodiscard]] node<T, C> alpha_premul(node<T, C> src, std::type_identity_t<T> alpha) {
    return recorded_with_alpha<T, C>("alpha_premul", {part(src)},
                                     detail::work([alpha](const detail::band* in, const detail::band& out) {
                                       return nothrow::alpha_premul(in[0].as<const T, C>(), out.as<T, C>(), alpha);
                                     }));
  }

  template <class T, int C>
  requires exists<members::threshold<T, C>>
  [[nodiscard]] node<T, C> threshold(node<T, C> src, values<T, C> threshold, cmp_op cmp_op) {
    return recorded<T, C>("threshold", {part(src)},
                          detail::work([threshold, cmp_op](const detail::band* in, const detail::band& out) {
                            return nothrow::threshold(in[0].as<const T, C>(), threshold, out.as<T, C>(), cmp_op);
                          }));
  }

  template <class T, int C>
  requires exists<members::threshold_gt<T, C>>
  [[nodiscard]] node<T, C> threshold_gt(node<T, C> src, values<T, C> threshold) {
    return recorded<T, C>("threshold_gt", {part(src)},
                          detail::work([threshold](const detail::band* in, const detail::band& out) {
                            return nothrow::threshold_gt(in[0].as<const T, C>(), threshold, out.as<T, C>());
                          }));
  }

  template <class T, int C>
  requires exists<members::threshold_lt<T, C>>
  [[nodiscard]] node<T, C> threshold_lt(node<T, C> src, values<T, C> threshold) {
    return recorded<T, C>("threshold_lt", {part(src)},
                          detail::work([threshold](const detail::band* in, const detail::band& out) {
                            return nothrow::threshold_lt(in[0].as<const T, C>(), threshold, out.as<T, C>());
                          }));
  }

  template <class T, int C>
  requires exists<members::threshold_val<T, C>>
  [[nodiscard]] node<T, C> threshold_val(node<T, C> src, values<T, C> threshold, values<T, C> value, cmp_op cmp_op) {
    return recorded<T, C>("threshold_val", {part(src)},
                          detail::work([threshold, value, cmp_op](const detail::band* in, const detail::band& out) {
                            return nothrow::threshold_val(in[0].as<const T, C>(), threshold, value, out.as<T, C>(),
                                                          cmp_op);
                          }));
  }

  template <class T, int C>
  requires exists<members::threshold_gt_val<T, C>>
  [[nodiscard]] node<T, C> threshold_gt_val(node<T, C> src, values<T, C> threshold, values<T, C> value) {
    return recorded<T, C>("threshold_gt_val", {part(src)},
                          detail::work([threshold, value](const detail::band* in, const detail::band& out) {
                            return nothrow::threshold_gt_val(in[0].as<const T, C>(), threshold, value, out.as<T, C>());
                          }));
  }

  template <class T, int C>
  requires exists<members::threshold_lt_val<T, C>>
  [[nodiscard]] node<T, C> threshold_lt_val(node<T, C> src, values<T, C> threshold, values<T, C> value) {
    return recorded<T, C>("threshold_lt_val", {part(src)},
                          detail::work([threshold, value](const detail::band* in, const detail::band& out) {
                            return nothrow::threshold_lt_val(in[0].as<const T, C>(), threshold, value, out.as<T, C>());
                          }));
  }

  template <class T, int C>
  requires exists<members::threshold_lt_val_gt_val<T, C>>
  [[nodiscard]] node<T, C> threshold_lt_val_gt_val(node<T, C> src, values<T, C> threshold_lt, values<T, C> value_lt,
                                                   values<T, C> threshold_gt, values<T, C> value_gt) {
    return recorded<T, C>(
        "threshold_lt_val_gt_val", {part(src)},
        detail::work([threshold_lt, value_lt, threshold_gt, value_gt](const detail::band* in, const detail::band& out) {
          return nothrow::threshold_lt_val_gt_val(in[0].as<const T, C>(), threshold_lt, value_lt, threshold_gt,
                                                  value_gt, out.as<T, C>());
        }));
  }

  template <class S, int CS>
  requires exists<members::compare<S, CS>>
  [[nodiscard]] node<std::uint8_t, 1> compare(node<S, CS> a, std::type_identity_t<node<S, CS>> b, cmp_op cmp_op) {
    return recorded<std::uint8_t, 1>(
        "compare", {part(a), part(b)}, detail::work([cmp_op](const detail::band* in, const detail::band& out) {
          return nothrow::compare(in[0].as<const S, CS>(), in[1].as<const S, CS>(), out.as<std::uint8_t, 1>(), cmp_op);
        }));
  }

  template <class S, int CS>
  requires exists<members::compare_c<S, CS>>
  [[nodiscard]] node<std::uint8_t, 1> compare(node<S, CS> src, values<S, CS> value, cmp_op cmp_op) {
    return recorded<std::uint8_t, 1>(
        "compare", {part(src)}, detail::work([value, cmp_op](const detail::band* in, const detail::band& out) {
          return nothrow::compare(in[0].as<const S, CS>(), value, out.as<std::uint8_t, 1>(), cmp_op);
        }));
  }

  template <class T, int CS>
  requires exists<members::compare_equal_eps<T, CS>>
  [[nodiscard]] node<T, 1> compare_equal_eps(node<float, CS> a, std::type_identity_t<node<float, CS>> b, float eps) {
    return recorded<T, 1>("compare_equal_eps", {part(a), part(b)},
                          detail::work([eps](const detail::band* in, const detail::band& out) {
                            return nothrow::compare_equal_eps(in[0].as<const float, CS>(), in[1].as<const float, CS>(),
                                                              out.as<T, 1>(), eps);
                          }));
  }

  template <class T, int CS>
  requires exists<members::compare_equal_eps_c<T, CS>>
  [[nodiscard]] node<T, 1> compare_equal_eps(node<float, CS> src, values<float, CS> value, float eps) {
    return recorded<T, 1>("compare_equal_eps", {part(src)},
                          detail::work([value, eps](const detail::band* in, const detail::band& out) {
                            return nothrow::compare_equal_eps(in[0].as<const float, CS>(), value, out.as<T, 1>(), eps);
                          }));
  }

  template <class T, int C>
  requires steady<members::filter_box<T, C>>
  [[nodiscard]] node<T, C> filter_box(node<T, C> src, extent mask_size,
                                      const std::type_identity_t<window<T, C>>& options = {}) {
    const point anchor = detail::anchored(options.anchor, mask_size);
    // Sums of larger windows are rounded, and run on from row to row.
    if (std::is_same_v<T, std::uint8_t> && (detail::wide(mask_size.width) + 1) * mask_size.height > 65793)
      refuse(status::bad_mask_size, "filter_box");
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>("filter_box", {part(src)},
                          detail::work([mask_size, inner](const detail::band* in, const detail::band& out) {
                            return nothrow::filter_box(in[0].as<const T, C>(), out.as<T, C>(), mask_size, inner);
                          }),
                          detail::reach{detail::wide(anchor.x), detail::wide(anchor.y),
                                        detail::wide(mask_size.width) - 1 - detail::wide(anchor.x),
                                        detail::wide(mask_size.height) - 1 - detail::wide(anchor.y)},
                          options.border, options.border_value);
  }

  template <class T, int C>
  requires detail::begins_anew<members::filter_box<T, C>>
  [[nodiscard]] node<T, C> filter_box(node<T, C>, extent, const std::type_identity_t<window<T, C>>& = {}) {
    static_assert(!detail::begins_anew<members::filter_box<T, C>>,
                  "hux::chain::filter_box: sums of these floats run on from row to row: end the chain there, give what "
                  "it needs an output, and call hux::filter_box when the chain has run");
    return {};
  }

  template <class T, int C>
  requires exists<members::filter<T, C>>
  [[nodiscard]] node<T, C> filter(node<T, C> src, const grid<std::int32_t>& kernel,
                                  const std::type_identity_t<divided_window<T, C>>& options = {}) {
    const extent size = kernel.size;
    const point anchor = detail::anchored(options.anchor, size);
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>("filter", {part(src)},
                          detail::work([kernel, inner](const detail::band* in, const detail::band& out) {
                            return nothrow::filter(in[0].as<const T, C>(), out.as<T, C>(), kernel, inner);
                          }),
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
    return recorded<T, C>("filter", {part(src)},
                          detail::work([kernel, inner](const detail::band* in, const detail::band& out) {
                            return nothrow::filter(in[0].as<const T, C>(), out.as<T, C>(), kernel, inner);
                          }),
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
    return recorded<T, C>("filter_row", {part(src)},
                          detail::work([kernel, inner](const detail::band* in, const detail::band& out) {
                            return nothrow::filter_row(in[0].as<const T, C>(), out.as<T, C>(), kernel, inner);
                          }),
                          detail::reach{detail::wide(size) - 1 - detail::wide(anchor), 0, detail::wide(anchor), 0},
                          options.border, options.border_value);
  }

  template <class T, int C>
  requires exists<members::filter_row_with_kernel<T, C>>
  [[nodiscard]] node<T, C> filter_row(node<T, C> src, std::span<const float> kernel,
                                      const std::type_identity_t<line_window<T, C>>& options = {}) {
    const int size = static_cast<int>(kernel.size());
    const int anchor = detail::anchored(options.anchor, size);
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>("filter_row", {part(src)},
                          detail::work([kernel, inner](const detail::band* in, const detail::band& out) {
                            return nothrow::filter_row(in[0].as<const T, C>(), out.as<T, C>(), kernel, inner);
                          }),
                          detail::reach{detail::wide(size) - 1 - detail::wide(anchor), 0, detail::wide(anchor), 0},
                          options.border, options.border_value);
  }

  template <class T, int C>
  requires exists<members::filter_column<T, C>>
  [[nodiscard]] node<T, C> filter_column(node<T, C> src, std::span<const std::int32_t> kernel,
                                         const std::type_identity_t<divided_line_window<T, C>>& options = {}) {
    const int size = static_cast<int>(kernel.size());
    const int anchor = detail::anchored(options.anchor, size);
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>("filter_column", {part(src)},
                          detail::work([kernel, inner](const detail::band* in, const detail::band& out) {
                            return nothrow::filter_column(in[0].as<const T, C>(), out.as<T, C>(), kernel, inner);
                          }),
                          detail::reach{0, detail::wide(size) - 1 - detail::wide(anchor), 0, detail::wide(anchor)},
                          options.border, options.border_value);
  }

  template <class T, int C>
  requires exists<members::filter_column_with_kernel<T, C>>
  [[nodiscard]] node<T, C> filter_column(node<T, C> src, std::span<const float> kernel,
                                         const std::type_identity_t<line_window<T, C>>& options = {}) {
    const int size = static_cast<int>(kernel.size());
    const int anchor = detail::anchored(options.anchor, size);
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>("filter_column", {part(src)},
                          detail::work([kernel, inner](const detail::band* in, const detail::band& out) {
                            return nothrow::filter_column(in[0].as<const T, C>(), out.as<T, C>(), kernel, inner);
                          }),
                          detail::reach{0, detail::wide(size) - 1 - detail::wide(anchor), 0, detail::wide(anchor)},
                          options.border, options.border_value);
  }

  template <class T, int C>
  requires exists<members::filter_prewitt_vert<T, C>>
  [[nodiscard]] node<T, C> filter_prewitt_vert(node<T, C> src,
                                               const std::type_identity_t<fixed_window<T, C>>& options = {}) {
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>("filter_prewitt_vert", {part(src)},
                          detail::work([inner](const detail::band* in, const detail::band& out) {
                            return nothrow::filter_prewitt_vert(in[0].as<const T, C>(), out.as<T, C>(), inner);
                          }),
                          detail::reach{1, 1, 1, 1}, options.border, options.border_value);
  }

  template <class T, int C>
  requires exists<members::filter_prewitt_horiz<T, C>>
  [[nodiscard]] node<T, C> filter_prewitt_horiz(node<T, C> src,
                                                const std::type_identity_t<fixed_window<T, C>>& options = {}) {
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>("filter_prewitt_horiz", {part(src)},
                          detail::work([inner](const detail::band* in, const detail::band& out) {
                            return nothrow::filter_prewitt_horiz(in[0].as<const T, C>(), out.as<T, C>(), inner);
                          }),
                          detail::reach{1, 1, 1, 1}, options.border, options.border_value);
  }

  template <class T, int C>
  requires exists<members::filter_sobel_vert<T, C>>
  [[nodiscard]] node<T, C> filter_sobel_vert(node<T, C> src,
                                             const std::type_identity_t<fixed_window<T, C>>& options = {}) {
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>("filter_sobel_vert", {part(src)},
                          detail::work([inner](const detail::band* in, const detail::band& out) {
                            return nothrow::filter_sobel_vert(in[0].as<const T, C>(), out.as<T, C>(), inner);
                          }),
                          detail::reach{1, 1, 1, 1}, options.border, options.border_value);
  }

  template <class S, int C>
  requires exists<members::filter_sobel_vert_with_mask<C, S>>
  [[nodiscard]] node<std::int16_t, C> filter_sobel_vert(node<S, C> src, mask_size mask_size,
                                                        const std::type_identity_t<fixed_window<S, C>>& options = {}) {
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<std::int16_t, C>("filter_sobel_vert", {part(src)},
                                     detail::work([mask_size, inner](const detail::band* in, const detail::band& out) {
                                       return nothrow::filter_sobel_vert(in[0].as<const S, C>(),
                                                                         out.as<std::int16_t, C>(), mask_size, inner);
                                     }),
                                     detail::reach{2, 2, 2, 2}, options.border, options.border_value);
  }

  template <class T, int C>
  requires exists<members::filter_sobel_horiz<T, C>>
  [[nodiscard]] node<T, C> filter_sobel_horiz(node<T, C> src,
                                              const std::type_identity_t<fixed_window<T, C>>& options = {}) {
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>("filter_sobel_horiz", {part(src)},
                          detail::work([inner](const detail::band* in, const detail::band& out) {
                            return nothrow::filter_sobel_horiz(in[0].as<const T, C>(), out.as<T, C>(), inner);
                          }),
                          detail::reach{1, 1, 1, 1}, options.border, options.border_value);
  }

  template <class S, int C>
  requires exists<members::filter_sobel_horiz_with_mask<C, S>>
  [[nodiscard]] node<std::int16_t, C> filter_sobel_horiz(node<S, C> src, mask_size mask_size,
                                                         const std::type_identity_t<fixed_window<S, C>>& options = {}) {
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<std::int16_t, C>("filter_sobel_horiz", {part(src)},
                                     detail::work([mask_size, inner](const detail::band* in, const detail::band& out) {
                                       return nothrow::filter_sobel_horiz(in[0].as<const S, C>(),
                                                                          out.as<std::int16_t, C>(), mask_size, inner);
                                     }),
                                     detail::reach{2, 2, 2, 2}, options.border, options.border_value);
  }

  template <class T, int C>
  requires exists<members::filter_sobel_vert_mask<T, C>>
  [[nodiscard]] node<T, C> filter_sobel_vert_mask(node<T, C> src, mask_size mask_size,
                                                  const std::type_identity_t<fixed_window<T, C>>& options = {}) {
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>("filter_sobel_vert_mask", {part(src)},
                          detail::work([mask_size, inner](const detail::band* in, const detail::band& out) {
                            return nothrow::filter_sobel_vert_mask(in[0].as<const T, C>(), out.as<T, C>(), mask_size,
                                                                   inner);
                          }),
                          detail::reach{2, 2, 2, 2}, options.border, options.border_value);
  }

  template <class T, int C>
  requires exists<members::filter_sobel_horiz_mask<T, C>>
  [[nodiscard]] node<T, C> filter_sobel_horiz_mask(node<T, C> src, mask_size mask_size,
                                                   const std::type_identity_t<fixed_window<T, C>>& options = {}) {
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>("filter_sobel_horiz_mask", {part(src)},
                          detail::work([mask_size, inner](const detail::band* in, const detail::band& out) {
                            return nothrow::filter_sobel_horiz_mask(in[0].as<const T, C>(), out.as<T, C>(), mask_size,
                                                                    inner);
                          }),
                          detail::reach{2, 2, 2, 2}, options.border, options.border_value);
  }

  template <class T, class S, int C>
  requires exists<members::filter_sobel_vert_second<T, C, S>>
  [[nodiscard]] node<T, C> filter_sobel_vert_second(node<S, C> src, mask_size mask_size,
                                                    const std::type_identity_t<fixed_window<S, C>>& options = {}) {
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>("filter_sobel_vert_second", {part(src)},
                          detail::work([mask_size, inner](const detail::band* in, const detail::band& out) {
                            return nothrow::filter_sobel_vert_second(in[0].as<const S, C>(), out.as<T, C>(), mask_size,
                                                                     inner);
                          }),
                          detail::reach{2, 2, 2, 2}, options.border, options.border_value);
  }

  template <class T, class S, int C>
  requires exists<members::filter_sobel_horiz_second<T, C, S>>
  [[nodiscard]] node<T, C> filter_sobel_horiz_second(node<S, C> src, mask_size mask_size,
                                                     const std::type_identity_t<fixed_window<S, C>>& options = {}) {
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>("filter_sobel_horiz_second", {part(src)},
                          detail::work([mask_size, inner](const detail::band* in, const detail::band& out) {
                            return nothrow::filter_sobel_horiz_second(in[0].as<const S, C>(), out.as<T, C>(), mask_size,
                                                                      inner);
                          }),
                          detail::reach{2, 2, 2, 2}, options.border, options.border_value);
  }

  template <class T, class S, int C>
  requires exists<members::filter_sobel_cross<T, C, S>>
  [[nodiscard]] node<T, C> filter_sobel_cross(node<S, C> src, mask_size mask_size,
                                              const std::type_identity_t<fixed_window<S, C>>& options = {}) {
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>("filter_sobel_cross", {part(src)},
                          detail::work([mask_size, inner](const detail::band* in, const detail::band& out) {
                            return nothrow::filter_sobel_cross(in[0].as<const S, C>(), out.as<T, C>(), mask_size,
                                                               inner);
                          }),
                          detail::reach{2, 2, 2, 2}, options.border, options.border_value);
  }

  template <class T, class S, int C>
  requires exists<members::filter_scharr_vert<T, C, S>>
  [[nodiscard]] node<T, C> filter_scharr_vert(node<S, C> src,
                                              const std::type_identity_t<fixed_window<S, C>>& options = {}) {
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>("filter_scharr_vert", {part(src)},
                          detail::work([inner](const detail::band* in, const detail::band& out) {
                            return nothrow::filter_scharr_vert(in[0].as<const S, C>(), out.as<T, C>(), inner);
                          }),
                          detail::reach{1, 1, 1, 1}, options.border, options.border_value);
  }

  template <class T, class S, int C>
  requires exists<members::filter_scharr_horiz<T, C, S>>
  [[nodiscard]] node<T, C> filter_scharr_horiz(node<S, C> src,
                                               const std::type_identity_t<fixed_window<S, C>>& options = {}) {
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>("filter_scharr_horiz", {part(src)},
                          detail::work([inner](const detail::band* in, const detail::band& out) {
                            return nothrow::filter_scharr_horiz(in[0].as<const S, C>(), out.as<T, C>(), inner);
                          }),
                          detail::reach{1, 1, 1, 1}, options.border, options.border_value);
  }

  template <class T, int C>
  requires exists<members::filter_roberts_down<T, C>>
  [[nodiscard]] node<T, C> filter_roberts_down(node<T, C> src,
                                               const std::type_identity_t<fixed_window<T, C>>& options = {}) {
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>("filter_roberts_down", {part(src)},
                          detail::work([inner](const detail::band* in, const detail::band& out) {
                            return nothrow::filter_roberts_down(in[0].as<const T, C>(), out.as<T, C>(), inner);
                          }),
                          detail::reach{1, 1, 1, 1}, options.border, options.border_value);
  }

  template <class T, int C>
  requires exists<members::filter_roberts_up<T, C>>
  [[nodiscard]] node<T, C> filter_roberts_up(node<T, C> src,
                                             const std::type_identity_t<fixed_window<T, C>>& options = {}) {
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>("filter_roberts_up", {part(src)},
                          detail::work([inner](const detail::band* in, const detail::band& out) {
                            return nothrow::filter_roberts_up(in[0].as<const T, C>(), out.as<T, C>(), inner);
                          }),
                          detail::reach{1, 1, 1, 1}, options.border, options.border_value);
  }

  template <class T, class S, int C>
  requires exists<members::filter_laplace<T, C, S>>
  [[nodiscard]] node<T, C> filter_laplace(node<S, C> src, mask_size mask_size,
                                          const std::type_identity_t<fixed_window<S, C>>& options = {}) {
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>("filter_laplace", {part(src)},
                          detail::work([mask_size, inner](const detail::band* in, const detail::band& out) {
                            return nothrow::filter_laplace(in[0].as<const S, C>(), out.as<T, C>(), mask_size, inner);
                          }),
                          detail::reach{2, 2, 2, 2}, options.border, options.border_value);
  }

  template <class T, int C>
  requires exists<members::filter_gauss<T, C>>
  [[nodiscard]] node<T, C> filter_gauss(node<T, C> src, mask_size mask_size,
                                        const std::type_identity_t<fixed_window<T, C>>& options = {}) {
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>("filter_gauss", {part(src)},
                          detail::work([mask_size, inner](const detail::band* in, const detail::band& out) {
                            return nothrow::filter_gauss(in[0].as<const T, C>(), out.as<T, C>(), mask_size, inner);
                          }),
                          detail::reach{2, 2, 2, 2}, options.border, options.border_value);
  }

  template <class T, int C>
  requires steady<members::filter_lowpass<T, C>>
  [[nodiscard]] node<T, C> filter_lowpass(node<T, C> src, mask_size mask_size,
                                          const std::type_identity_t<fixed_window<T, C>>& options = {}) {
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>("filter_lowpass", {part(src)},
                          detail::work([mask_size, inner](const detail::band* in, const detail::band& out) {
                            return nothrow::filter_lowpass(in[0].as<const T, C>(), out.as<T, C>(), mask_size, inner);
                          }),
                          detail::reach{2, 2, 2, 2}, options.border, options.border_value);
  }

  template <class T, int C>
  requires detail::begins_anew<members::filter_lowpass<T, C>>
  [[nodiscard]] node<T, C> filter_lowpass(node<T, C>, mask_size, const std::type_identity_t<fixed_window<T, C>>& = {}) {
    static_assert(!detail::begins_anew<members::filter_lowpass<T, C>>,
                  "hux::chain::filter_lowpass: sums of these floats run on from row to row: end the chain there, give "
                  "what it needs an output, and call hux::filter_lowpass when the chain has run");
    return {};
  }

  template <class T, int C>
  requires steady<members::filter_hipass<T, C>>
  [[nodiscard]] node<T, C> filter_hipass(node<T, C> src, mask_size mask_size,
                                         const std::type_identity_t<fixed_window<T, C>>& options = {}) {
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>("filter_hipass", {part(src)},
                          detail::work([mask_size, inner](const detail::band* in, const detail::band& out) {
                            return nothrow::filter_hipass(in[0].as<const T, C>(), out.as<T, C>(), mask_size, inner);
                          }),
                          detail::reach{2, 2, 2, 2}, options.border, options.border_value);
  }

  template <class T, int C>
  requires detail::begins_anew<members::filter_hipass<T, C>>
  [[nodiscard]] node<T, C> filter_hipass(node<T, C>, mask_size, const std::type_identity_t<fixed_window<T, C>>& = {}) {
    static_assert(!detail::begins_anew<members::filter_hipass<T, C>>,
                  "hux::chain::filter_hipass: sums of these floats run on from row to row: end the chain there, give "
                  "what it needs an output, and call hux::filter_hipass when the chain has run");
    return {};
  }

  template <class T, int C>
  requires exists<members::filter_sharpen<T, C>>
  [[nodiscard]] node<T, C> filter_sharpen(node<T, C> src,
                                          const std::type_identity_t<fixed_window<T, C>>& options = {}) {
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>("filter_sharpen", {part(src)},
                          detail::work([inner](const detail::band* in, const detail::band& out) {
                            return nothrow::filter_sharpen(in[0].as<const T, C>(), out.as<T, C>(), inner);
                          }),
                          detail::reach{1, 1, 1, 1}, options.border, options.border_value);
  }

  template <class T, int C>
  requires exists<members::filter_median<T, C>>
  [[nodiscard]] node<T, C> filter_median(node<T, C> src, extent mask_size,
                                         const std::type_identity_t<window<T, C>>& options = {}) {
    const point anchor = detail::anchored(options.anchor, mask_size);
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>("filter_median", {part(src)},
                          detail::work([mask_size, inner](const detail::band* in, const detail::band& out) {
                            return nothrow::filter_median(in[0].as<const T, C>(), out.as<T, C>(), mask_size, inner);
                          }),
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
    return recorded<T, C>("filter_median_horiz", {part(src)},
                          detail::work([mask_size, inner](const detail::band* in, const detail::band& out) {
                            return nothrow::filter_median_horiz(in[0].as<const T, C>(), out.as<T, C>(), mask_size,
                                                                inner);
                          }),
                          detail::reach{2, 2, 2, 2}, options.border, options.border_value);
  }

  template <class T, int C>
  requires exists<members::filter_median_vert<T, C>>
  [[nodiscard]] node<T, C> filter_median_vert(node<T, C> src, mask_size mask_size,
                                              const std::type_identity_t<fixed_window<T, C>>& options = {}) {
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>("filter_median_vert", {part(src)},
                          detail::work([mask_size, inner](const detail::band* in, const detail::band& out) {
                            return nothrow::filter_median_vert(in[0].as<const T, C>(), out.as<T, C>(), mask_size,
                                                               inner);
                          }),
                          detail::reach{2, 2, 2, 2}, options.border, options.border_value);
  }

  template <class T, int C>
  requires exists<members::filter_median_cross<T, C>>
  [[nodiscard]] node<T, C> filter_median_cross(node<T, C> src, mask_size mask_size,
                                               const std::type_identity_t<fixed_window<T, C>>& options = {}) {
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>("filter_median_cross", {part(src)},
                          detail::work([mask_size, inner](const detail::band* in, const detail::band& out) {
                            return nothrow::filter_median_cross(in[0].as<const T, C>(), out.as<T, C>(), mask_size,
                                                                inner);
                          }),
                          detail::reach{2, 2, 2, 2}, options.border, options.border_value);
  }

  template <class T, int C>
  requires exists<members::filter_median_color<T, C>>
  [[nodiscard]] node<T, C> filter_median_color(node<T, C> src, mask_size mask_size,
                                               const std::type_identity_t<fixed_window<T, C>>& options = {}) {
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>("filter_median_color", {part(src)},
                          detail::work([mask_size, inner](const detail::band* in, const detail::band& out) {
                            return nothrow::filter_median_color(in[0].as<const T, C>(), out.as<T, C>(), mask_size,
                                                                inner);
                          }),
                          detail::reach{2, 2, 2, 2}, options.border, options.border_value);
  }

  template <class T, int C>
  requires exists<members::filter_min<T, C>>
  [[nodiscard]] node<T, C> filter_min(node<T, C> src, extent mask_size,
                                      const std::type_identity_t<window<T, C>>& options = {}) {
    const point anchor = detail::anchored(options.anchor, mask_size);
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>("filter_min", {part(src)},
                          detail::work([mask_size, inner](const detail::band* in, const detail::band& out) {
                            return nothrow::filter_min(in[0].as<const T, C>(), out.as<T, C>(), mask_size, inner);
                          }),
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
    return recorded<T, C>("filter_max", {part(src)},
                          detail::work([mask_size, inner](const detail::band* in, const detail::band& out) {
                            return nothrow::filter_max(in[0].as<const T, C>(), out.as<T, C>(), mask_size, inner);
                          }),
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
    return recorded<T, C>("erode3x3", {part(src)},
                          detail::work([inner](const detail::band* in, const detail::band& out) {
                            return nothrow::erode3x3(in[0].as<const T, C>(), out.as<T, C>(), inner);
                          }),
                          detail::reach{1, 1, 1, 1}, options.border, options.border_value);
  }

  template <class T, int C>
  requires exists<members::dilate3x3<T, C>>
  [[nodiscard]] node<T, C> dilate3x3(node<T, C> src, const std::type_identity_t<fixed_window<T, C>>& options = {}) {
    auto inner = options;
    inner.border = border::surroundings;
    return recorded<T, C>("dilate3x3", {part(src)},
                          detail::work([inner](const detail::band* in, const detail::band& out) {
                            return nothrow::dilate3x3(in[0].as<const T, C>(), out.as<T, C>(), inner);
                          }),
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
    return recorded<T, C>("erode", {part(src)},
                          detail::work([footprint, inner](const detail::band* in, const detail::band& out) {
                            return nothrow::erode(in[0].as<const T, C>(), out.as<T, C>(), footprint, inner);
                          }),
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
    return recorded<T, C>("dilate", {part(src)},
                          detail::work([footprint, inner](const detail::band* in, const detail::band& out) {
                            return nothrow::dilate(in[0].as<const T, C>(), out.as<T, C>(), footprint, inner);
                          }),
                          detail::reach{detail::wide(anchor.x), detail::wide(anchor.y),
                                        detail::wide(mask_size.width) - 1 - detail::wide(anchor.x),
                                        detail::wide(mask_size.height) - 1 - detail::wide(anchor.y)},
                          options.border, options.border_value);
  }

  template <class T, class S, int C>
  requires exists<members::convert<T, C, S>>
  [[nodiscard]] node<T, C> convert(node<S, C> src,
                                   const options_beyond<members::convert<T, C, S>, 5, rounded>& options = {}) {
    return recorded<T, C>("convert", {part(src)},
                          detail::work([options](const detail::band* in, const detail::band& out) {
                            return nothrow::convert(in[0].as<const S, C>(), out.as<T, C>(), options);
                          }));
  }

  template <class T, class S, int C>
  requires exists<members::scale<T, C, S>>
  [[nodiscard]] node<T, C> scale(node<S, C> src,
                                 const options_beyond<members::scale<T, C, S>, 5, hinted>& options = {}) {
    return recorded<T, C>("scale", {part(src)},
                          detail::work([options](const detail::band* in, const detail::band& out) {
                            return nothrow::scale(in[0].as<const S, C>(), out.as<T, C>(), options);
                          }));
  }

  template <class T, class S, int C>
  requires exists<members::scale_with_v_min_v_max<T, C, S>>
  [[nodiscard]] node<T, C> scale(node<S, C> src, float v_min, float v_max) {
    return recorded<T, C>("scale", {part(src)},
                          detail::work([v_min, v_max](const detail::band* in, const detail::band& out) {
                            return nothrow::scale(in[0].as<const S, C>(), out.as<T, C>(), v_min, v_max);
                          }));
  }

  template <int C, class T>
  requires exists<members::dup<T, C>>
  [[nodiscard]] node<T, C> dup(node<T, 1> src) {
    return recorded<T, C>("dup", {part(src)}, detail::work([](const detail::band* in, const detail::band& out) {
                            return nothrow::dup(in[0].as<const T, 1>(), out.as<T, C>());
                          }));
  }

  template <class T, int C>
  requires exists<members::swap_channels<T, C>>
  [[nodiscard]] node<T, C> swap_channels(node<T, C> src, const std::array<int, 3>& dst_order) {
    return recorded<T, C>("swap_channels", {part(src)},
                          detail::work([dst_order](const detail::band* in, const detail::band& out) {
                            return nothrow::swap_channels(in[0].as<const T, C>(), out.as<T, C>(), dst_order);
                          }));
  }

  template <class T, int C>
  requires exists<members::lut<T, C>>
  [[nodiscard]] node<T, C> lut(node<T, C> src, const lists<level_type<T>, C>& values,
                               const lists<level_type<T>, C>& levels) {
    return recorded<T, C>("lut", {part(src)},
                          detail::work([values, levels](const detail::band* in, const detail::band& out) {
                            return nothrow::lut(in[0].as<const T, C>(), out.as<T, C>(), values, levels);
                          }));
  }

  template <class T, int C>
  requires exists<members::lut_linear<T, C>>
  [[nodiscard]] node<T, C> lut_linear(node<T, C> src, const lists<level_type<T>, C>& values,
                                      const lists<level_type<T>, C>& levels) {
    return recorded<T, C>("lut_linear", {part(src)},
                          detail::work([values, levels](const detail::band* in, const detail::band& out) {
                            return nothrow::lut_linear(in[0].as<const T, C>(), out.as<T, C>(), values, levels);
                          }));
  }

  template <class T, int C>
  requires exists<members::lut_cubic<T, C>>
  [[nodiscard]] node<T, C> lut_cubic(node<T, C> src, const lists<level_type<T>, C>& values,
                                     const lists<level_type<T>, C>& levels) {
    return recorded<T, C>("lut_cubic", {part(src)},
                          detail::work([values, levels](const detail::band* in, const detail::band& out) {
                            return nothrow::lut_cubic(in[0].as<const T, C>(), out.as<T, C>(), values, levels);
                          }));
  }

  template <class T, int C, class S>
  requires exists<members::lut_palette<T, C, S>>
  [[nodiscard]] node<T, C> lut_palette(node<S, 1> src, std::span<const std::type_identity_t<T>> table, int n_bit_size) {
    return recorded<T, C>("lut_palette", {part(src)},
                          detail::work([table, n_bit_size](const detail::band* in, const detail::band& out) {
                            return nothrow::lut_palette(in[0].as<const S, 1>(), out.as<T, C>(), table, n_bit_size);
                          }));
  }

  template <class T, class S, int C>
  requires exists<members::magnitude<T, C, S>>
  [[nodiscard]] node<T, C> magnitude(node<S, C> src,
                                     const options_beyond<members::magnitude<T, C, S>, 5, scaled>& options = {}) {
    return recorded<T, C>("magnitude", {part(src)},
                          detail::work([options](const detail::band* in, const detail::band& out) {
                            return nothrow::magnitude(in[0].as<const S, C>(), out.as<T, C>(), options);
                          }));
  }

  template <class T, class S, int C>
  requires exists<members::phase<T, C, S>>
  [[nodiscard]] node<T, C> phase(node<S, C> src,
                                 const options_beyond<members::phase<T, C, S>, 5, scaled>& options = {}) {
    return recorded<T, C>("phase", {part(src)},
                          detail::work([options](const detail::band* in, const detail::band& out) {
                            return nothrow::phase(in[0].as<const S, C>(), out.as<T, C>(), options);
                          }));
  }

  template <class T, int C>
  requires exists<members::polar_to_cart<T, C>>
  [[nodiscard]] node<T, C> polar_to_cart(node<float, C> magnitude, std::type_identity_t<node<float, C>> phase) {
    return recorded<T, C>("polar_to_cart", {part(magnitude), part(phase)},
                          detail::work([](const detail::band* in, const detail::band& out) {
                            return nothrow::polar_to_cart(in[0].as<const float, C>(), in[1].as<const float, C>(),
                                                          out.as<T, C>());
                          }));
  }

  template <class T, class S, int C>
  requires exists<members::polar_to_cart_with_phase_fixed_point<T, C, S>>
  [[nodiscard]] node<T, C> polar_to_cart(node<S, C> magnitude, std::type_identity_t<node<S, C>> phase,
                                         int phase_fixed_point) {
    return recorded<T, C>("polar_to_cart", {part(magnitude), part(phase)},
                          detail::work([phase_fixed_point](const detail::band* in, const detail::band& out) {
                            return nothrow::polar_to_cart(in[0].as<const S, C>(), in[1].as<const S, C>(),
                                                          out.as<T, C>(), phase_fixed_point);
                          }));
  }

// What chains do not hold says so when it is compiled.
#define HUX_NOT_HELD(name, why)                                                               \
  template <class... Arguments>                                                               \
  void name(const Arguments&...) {                                                            \
    static_assert(sizeof...(Arguments) == SIZE_MAX,                                           \
                  "hux::chain::" #name ": " why                                               \
                  ": end the chain there, give what it needs an output, and call hux::" #name \
                  " when the chain has run");                                                 \
  }
  HUX_NOT_HELD(conv_full, "its pixels are made of pixels that a band does not have")
  HUX_NOT_HELD(conv_valid, "its pixels are made of pixels that a band does not have")
  HUX_NOT_HELD(copy_const_border, "its pixels are made of pixels that a band does not have")
  HUX_NOT_HELD(copy_replicate_border, "its pixels are made of pixels that a band does not have")
  HUX_NOT_HELD(copy_wrap_border, "its pixels are made of pixels that a band does not have")
  HUX_NOT_HELD(cplx_extend_to_pack, "its pixels are made of pixels that a band does not have")
  HUX_NOT_HELD(cross_corr_full_norm, "its pixels are made of pixels that a band does not have")
  HUX_NOT_HELD(cross_corr_full_norm_level, "its pixels are made of pixels that a band does not have")
  HUX_NOT_HELD(cross_corr_same_norm, "its pixels are made of pixels that a band does not have")
  HUX_NOT_HELD(cross_corr_same_norm_level, "its pixels are made of pixels that a band does not have")
  HUX_NOT_HELD(cross_corr_valid_norm, "its pixels are made of pixels that a band does not have")
  HUX_NOT_HELD(cross_corr_valid_norm_level, "its pixels are made of pixels that a band does not have")
  HUX_NOT_HELD(dct8x8_inv, "its pixels are made of pixels that a band does not have")
  HUX_NOT_HELD(dct8x8_inv_ls_clip, "its pixels are made of pixels that a band does not have")
  HUX_NOT_HELD(filter_wiener, "its pixels are made of pixels that a band does not have")
  HUX_NOT_HELD(magnitude_pack, "its pixels are made of pixels that a band does not have")
  HUX_NOT_HELD(mirror, "its pixels are made of pixels that a band does not have")
  HUX_NOT_HELD(mul_pack, "its pixels are made of pixels that a band does not have")
  HUX_NOT_HELD(mul_pack_conj, "its pixels are made of pixels that a band does not have")
  HUX_NOT_HELD(pack_to_cplx_extend, "its pixels are made of pixels that a band does not have")
  HUX_NOT_HELD(phase_pack, "its pixels are made of pixels that a band does not have")
  HUX_NOT_HELD(remap, "its pixels are made of pixels that a band does not have")
  HUX_NOT_HELD(resize, "its pixels are made of pixels that a band does not have")
  HUX_NOT_HELD(resize_center, "its pixels are made of pixels that a band does not have")
  HUX_NOT_HELD(resize_shift, "its pixels are made of pixels that a band does not have")
  HUX_NOT_HELD(resize_sqr_pixel, "its pixels are made of pixels that a band does not have")
  HUX_NOT_HELD(resize_yuv422, "its pixels are made of pixels that a band does not have")
  HUX_NOT_HELD(rotate, "its pixels are made of pixels that a band does not have")
  HUX_NOT_HELD(rotate_center, "its pixels are made of pixels that a band does not have")
  HUX_NOT_HELD(shear, "its pixels are made of pixels that a band does not have")
  HUX_NOT_HELD(sqr_distance_full_norm, "its pixels are made of pixels that a band does not have")
  HUX_NOT_HELD(sqr_distance_same_norm, "its pixels are made of pixels that a band does not have")
  HUX_NOT_HELD(sqr_distance_valid_norm, "its pixels are made of pixels that a band does not have")
  HUX_NOT_HELD(sum_window_column, "its pixels are made of pixels that a band does not have")
  HUX_NOT_HELD(sum_window_row, "its pixels are made of pixels that a band does not have")
  HUX_NOT_HELD(transpose, "its pixels are made of pixels that a band does not have")
  HUX_NOT_HELD(warp_affine, "its pixels are made of pixels that a band does not have")
  HUX_NOT_HELD(warp_affine_back, "its pixels are made of pixels that a band does not have")
  HUX_NOT_HELD(warp_affine_quad, "its pixels are made of pixels that a band does not have")
  HUX_NOT_HELD(warp_bilinear, "its pixels are made of pixels that a band does not have")
  HUX_NOT_HELD(warp_bilinear_back, "its pixels are made of pixels that a band does not have")
  HUX_NOT_HELD(warp_bilinear_quad, "its pixels are made of pixels that a band does not have")
  HUX_NOT_HELD(warp_perspective, "its pixels are made of pixels that a band does not have")
  HUX_NOT_HELD(warp_perspective_back, "its pixels are made of pixels that a band does not have")
  HUX_NOT_HELD(warp_perspective_quad, "its pixels are made of pixels that a band does not have")
  HUX_NOT_HELD(win_bartlett, "its pixels are made of pixels that a band does not have")
  HUX_NOT_HELD(win_bartlett_sep, "its pixels are made of pixels that a band does not have")
  HUX_NOT_HELD(win_hamming, "its pixels are made of pixels that a band does not have")
  HUX_NOT_HELD(win_hamming_sep, "its pixels are made of pixels that a band does not have")
  using chain_calls::max;
  using chain_calls::max_indx;
  using chain_calls::mean;
  using chain_calls::min;
  using chain_calls::min_indx;
  using chain_calls::min_max;
  using chain_calls::norm_diff_inf;
  using chain_calls::norm_diff_l1;
  using chain_calls::norm_inf;
  using chain_calls::norm_l1;
  using chain_calls::sum;
  HUX_NOT_HELD(max, "of floats, the order of pixels tells in the result")
  HUX_NOT_HELD(max_indx, "of floats, the order of pixels tells in the result")
  HUX_NOT_HELD(mean, "of floats, the order of pixels tells in the result")
  HUX_NOT_HELD(min, "of floats, the order of pixels tells in the result")
  HUX_NOT_HELD(min_indx, "of floats, the order of pixels tells in the result")
  HUX_NOT_HELD(min_max, "of floats, the order of pixels tells in the result")
  HUX_NOT_HELD(norm_diff_inf, "of floats, the order of pixels tells in the result")
  HUX_NOT_HELD(norm_diff_l1, "of floats, the order of pixels tells in the result")
  HUX_NOT_HELD(norm_inf, "of floats, the order of pixels tells in the result")
  HUX_NOT_HELD(norm_l1, "of floats, the order of pixels tells in the result")
  HUX_NOT_HELD(sum, "of floats, the order of pixels tells in the result")
  HUX_NOT_HELD(norm_diff_l2, "what it measures is not told by parts of an image")
  HUX_NOT_HELD(norm_l2, "what it measures is not told by parts of an image")
  HUX_NOT_HELD(norm_rel_inf, "what it measures is not told by parts of an image")
  HUX_NOT_HELD(norm_rel_l1, "what it measures is not told by parts of an image")
  HUX_NOT_HELD(norm_rel_l2, "what it measures is not told by parts of an image")
  HUX_NOT_HELD(quality_index, "what it measures is not told by parts of an image")
#undef HUX_NOT_HELD
};

}  // namespace hux

#endif
