// Made by tools/cpp_front from the headers of the C library.
// clang-format off
// Statistics and proximity: what an image, or a pair of images, measures; histograms and look-up tables. Plain C99.
//
// Comments name the functions of C, whose header tells units, statuses and the order of checks. In addition all
// images of a call are compared in size: status::bad_size. Functions of hux throw hux::error where C returns an
// error and return warnings; those of hux::nothrow return either. An operation on its own source is C's in place.
#ifndef HUX_STATS_HPP
#define HUX_STATS_HPP

#include <algorithm>

#include "call.hpp"
#include "members.hpp"

namespace hux {

template <class S, int CS>
struct min_max_result {
  per_channel<S, CS> min = {};
  per_channel<S, CS> max = {};
};

template <class S, int CS>
struct min_indx_result {
  per_channel<S, CS> min = {};
  per_channel<int, CS> index_x = {};
  per_channel<int, CS> index_y = {};
};

template <class S, int CS>
struct max_indx_result {
  per_channel<S, CS> max = {};
  per_channel<int, CS> index_x = {};
  per_channel<int, CS> index_y = {};
};

namespace nothrow {

// huxiSum: the sum of each channel, 1 (C1), 3 (C3, AC4) or 4 (C4) values.
template <readable V, class S = value_type_of<V>, int CS = layout_of<V>>
requires exists<members::sum<S, CS>>
[[nodiscard]] result<per_channel<double, CS>> sum(const V& src,
                                                  const options_beyond<members::sum<S, CS>, 4, hinted>& options = {}) {
  view<const S, CS> source = src;
  result<per_channel<double, CS>> out;
  out.status = detail::call_with<members::sum<S, CS>>(detail::tail(options), detail::at(source), source.step(),
                                                      source.size(), detail::at(out.value));
  return out;
}

// huxiMean: the mean of each channel, 1 (C1), 3 (C3, AC4) or 4 (C4) values.
template <readable V, class S = value_type_of<V>, int CS = layout_of<V>>
requires exists<members::mean<S, CS>>
[[nodiscard]] result<per_channel<double, CS>> mean(
    const V& src, const options_beyond<members::mean<S, CS>, 4, hinted>& options = {}) {
  view<const S, CS> source = src;
  result<per_channel<double, CS>> out;
  out.status = detail::call_with<members::mean<S, CS>>(detail::tail(options), detail::at(source), source.step(),
                                                       source.size(), detail::at(out.value));
  return out;
}

// huxiMin: the smallest and the largest element of each channel, 1, 3 (C3, AC4) or 4 values.
template <readable V, class S = value_type_of<V>, int CS = layout_of<V>>
requires exists<members::min<S, CS>>
[[nodiscard]] result<per_channel<S, CS>> min(const V& src) {
  view<const S, CS> source = src;
  result<per_channel<S, CS>> out;
  out.status =
      detail::call<members::min<S, CS>>(detail::at(source), source.step(), source.size(), detail::at(out.value));
  return out;
}

// huxiMax: the smallest and the largest element of each channel, 1, 3 (C3, AC4) or 4 values.
template <readable V, class S = value_type_of<V>, int CS = layout_of<V>>
requires exists<members::max<S, CS>>
[[nodiscard]] result<per_channel<S, CS>> max(const V& src) {
  view<const S, CS> source = src;
  result<per_channel<S, CS>> out;
  out.status =
      detail::call<members::max<S, CS>>(detail::at(source), source.step(), source.size(), detail::at(out.value));
  return out;
}

// huxiMinMax: the smallest and the largest element of each channel, 1, 3 (C3, AC4) or 4 values.
template <readable V, class S = value_type_of<V>, int CS = layout_of<V>>
requires exists<members::min_max<S, CS>>
[[nodiscard]] result<min_max_result<S, CS>> min_max(const V& src) {
  view<const S, CS> source = src;
  result<min_max_result<S, CS>> out;
  out.status = detail::call<members::min_max<S, CS>>(detail::at(source), source.step(), source.size(),
                                                     detail::at(out.value.min), detail::at(out.value.max));
  return out;
}

// huxiMinIndx: the smallest or largest element of each channel, and the column and row of the first pixel that holds
// it.
template <readable V, class S = value_type_of<V>, int CS = layout_of<V>>
requires exists<members::min_indx<S, CS>>
[[nodiscard]] result<min_indx_result<S, CS>> min_indx(const V& src) {
  view<const S, CS> source = src;
  result<min_indx_result<S, CS>> out;
  out.status = detail::call<members::min_indx<S, CS>>(detail::at(source), source.step(), source.size(),
                                                      detail::at(out.value.min), detail::at(out.value.index_x),
                                                      detail::at(out.value.index_y));
  return out;
}

// huxiMaxIndx: the smallest or largest element of each channel, and the column and row of the first pixel that holds
// it.
template <readable V, class S = value_type_of<V>, int CS = layout_of<V>>
requires exists<members::max_indx<S, CS>>
[[nodiscard]] result<max_indx_result<S, CS>> max_indx(const V& src) {
  view<const S, CS> source = src;
  result<max_indx_result<S, CS>> out;
  out.status = detail::call<members::max_indx<S, CS>>(detail::at(source), source.step(), source.size(),
                                                      detail::at(out.value.max), detail::at(out.value.index_x),
                                                      detail::at(out.value.index_y));
  return out;
}

// huxiCountInRange: how many elements of each channel lie in lowerBound..upperBound, both included.
template <readable V, class S = value_type_of<V>, int CS = layout_of<V>>
requires exists<members::count_in_range<S, CS>>
[[nodiscard]] result<per_channel<int, CS>> count_in_range(const V& src, values<S, CS> lower_bound,
                                                          values<S, CS> upper_bound) {
  view<const S, CS> source = src;
  result<per_channel<int, CS>> out;
  out.status = detail::call<members::count_in_range<S, CS>>(detail::at(source), source.step(), source.size(),
                                                            detail::at(out.value), detail::at(lower_bound),
                                                            detail::at(upper_bound));
  return out;
}

// huxiNorm_Inf: the norm of an image, for each channel.
template <readable V, class S = value_type_of<V>, int CS = layout_of<V>>
requires exists<members::norm_inf<S, CS>>
[[nodiscard]] result<per_channel<double, CS>> norm_inf(const V& src) {
  view<const S, CS> source = src;
  result<per_channel<double, CS>> out;
  out.status =
      detail::call<members::norm_inf<S, CS>>(detail::at(source), source.step(), source.size(), detail::at(out.value));
  return out;
}

// huxiNorm_L1: the norm of an image, for each channel.
template <readable V, class S = value_type_of<V>, int CS = layout_of<V>>
requires exists<members::norm_l1<S, CS>>
[[nodiscard]] result<per_channel<double, CS>> norm_l1(
    const V& src, const options_beyond<members::norm_l1<S, CS>, 4, hinted>& options = {}) {
  view<const S, CS> source = src;
  result<per_channel<double, CS>> out;
  out.status = detail::call_with<members::norm_l1<S, CS>>(detail::tail(options), detail::at(source), source.step(),
                                                          source.size(), detail::at(out.value));
  return out;
}

// huxiNorm_L2: the norm of an image, for each channel.
template <readable V, class S = value_type_of<V>, int CS = layout_of<V>>
requires exists<members::norm_l2<S, CS>>
[[nodiscard]] result<per_channel<double, CS>> norm_l2(
    const V& src, const options_beyond<members::norm_l2<S, CS>, 4, hinted>& options = {}) {
  view<const S, CS> source = src;
  result<per_channel<double, CS>> out;
  out.status = detail::call_with<members::norm_l2<S, CS>>(detail::tail(options), detail::at(source), source.step(),
                                                          source.size(), detail::at(out.value));
  return out;
}

// huxiNormDiff_Inf: the norm of the difference of two images, for each channel.
template <readable V, class S = value_type_of<V>, int CS = layout_of<V>>
requires exists<members::norm_diff_inf<S, CS>>
[[nodiscard]] result<per_channel<double, CS>> norm_diff_inf(const V& a, source<S, CS> b) {
  view<const S, CS> source = a;
  if (!detail::agree(source, b)) return {status::bad_size};
  result<per_channel<double, CS>> out;
  out.status = detail::call<members::norm_diff_inf<S, CS>>(detail::at(source), source.step(), detail::at(b), b.step(),
                                                           source.size(), detail::at(out.value));
  return out;
}

// huxiNormDiff_L1: the norm of the difference of two images, for each channel.
template <readable V, class S = value_type_of<V>, int CS = layout_of<V>>
requires exists<members::norm_diff_l1<S, CS>>
[[nodiscard]] result<per_channel<double, CS>> norm_diff_l1(
    const V& a, source<S, CS> b, const options_beyond<members::norm_diff_l1<S, CS>, 6, hinted>& options = {}) {
  view<const S, CS> source = a;
  if (!detail::agree(source, b)) return {status::bad_size};
  result<per_channel<double, CS>> out;
  out.status =
      detail::call_with<members::norm_diff_l1<S, CS>>(detail::tail(options), detail::at(source), source.step(),
                                                      detail::at(b), b.step(), source.size(), detail::at(out.value));
  return out;
}

// huxiNormDiff_L2: the norm of the difference of two images, for each channel.
template <readable V, class S = value_type_of<V>, int CS = layout_of<V>>
requires exists<members::norm_diff_l2<S, CS>>
[[nodiscard]] result<per_channel<double, CS>> norm_diff_l2(
    const V& a, source<S, CS> b, const options_beyond<members::norm_diff_l2<S, CS>, 6, hinted>& options = {}) {
  view<const S, CS> source = a;
  if (!detail::agree(source, b)) return {status::bad_size};
  result<per_channel<double, CS>> out;
  out.status =
      detail::call_with<members::norm_diff_l2<S, CS>>(detail::tail(options), detail::at(source), source.step(),
                                                      detail::at(b), b.step(), source.size(), detail::at(out.value));
  return out;
}

// huxiNormRel_Inf: the norm of the difference of two images over that of the second, for each channel.
template <readable V, class S = value_type_of<V>, int CS = layout_of<V>>
requires exists<members::norm_rel_inf<S, CS>>
[[nodiscard]] result<per_channel<double, CS>> norm_rel_inf(const V& a, source<S, CS> b) {
  view<const S, CS> source = a;
  if (!detail::agree(source, b)) return {status::bad_size};
  result<per_channel<double, CS>> out;
  out.status = detail::call<members::norm_rel_inf<S, CS>>(detail::at(source), source.step(), detail::at(b), b.step(),
                                                          source.size(), detail::at(out.value));
  return out;
}

// huxiNormRel_L1: the norm of the difference of two images over that of the second, for each channel.
template <readable V, class S = value_type_of<V>, int CS = layout_of<V>>
requires exists<members::norm_rel_l1<S, CS>>
[[nodiscard]] result<per_channel<double, CS>> norm_rel_l1(
    const V& a, source<S, CS> b, const options_beyond<members::norm_rel_l1<S, CS>, 6, hinted>& options = {}) {
  view<const S, CS> source = a;
  if (!detail::agree(source, b)) return {status::bad_size};
  result<per_channel<double, CS>> out;
  out.status =
      detail::call_with<members::norm_rel_l1<S, CS>>(detail::tail(options), detail::at(source), source.step(),
                                                     detail::at(b), b.step(), source.size(), detail::at(out.value));
  return out;
}

// huxiNormRel_L2: the norm of the difference of two images over that of the second, for each channel.
template <readable V, class S = value_type_of<V>, int CS = layout_of<V>>
requires exists<members::norm_rel_l2<S, CS>>
[[nodiscard]] result<per_channel<double, CS>> norm_rel_l2(
    const V& a, source<S, CS> b, const options_beyond<members::norm_rel_l2<S, CS>, 6, hinted>& options = {}) {
  view<const S, CS> source = a;
  if (!detail::agree(source, b)) return {status::bad_size};
  result<per_channel<double, CS>> out;
  out.status =
      detail::call_with<members::norm_rel_l2<S, CS>>(detail::tail(options), detail::at(source), source.step(),
                                                     detail::at(b), b.step(), source.size(), detail::at(out.value));
  return out;
}

// huxiLUT: replace pixels by way of tables of nLevels (level, value) pairs.
template <class T, int C>
requires exists<members::lut<T, C>>
[[nodiscard]] status lut(source<T, C> src, view<T, C> dst, const lists<level_type<T>, C>& values,
                         const lists<level_type<T>, C>& levels) {
  if (!detail::agree(dst, src)) return status::bad_size;
  const detail::list_pointers<const level_type<T>> values_of(values);
  const detail::list_pointers<const level_type<T>> levels_of(levels);
  if (!levels_of.same_sizes(values_of)) return status::bad_size;
  if constexpr (exists<members::lut_in_place<T, C>>) {
    if (detail::same(src, dst))
      return detail::call<members::lut_in_place<T, C>>(detail::at(dst), dst.step(), dst.size(), values_of.at(),
                                                       levels_of.at(), levels_of.size());
  }
  return detail::call<members::lut<T, C>>(detail::at(src), src.step(), detail::at(dst), dst.step(), dst.size(),
                                          values_of.at(), levels_of.at(), levels_of.size());
}

// huxiLUT_Linear: replace pixels by way of tables of nLevels (level, value) pairs.
template <class T, int C>
requires exists<members::lut_linear<T, C>>
[[nodiscard]] status lut_linear(source<T, C> src, view<T, C> dst, const lists<level_type<T>, C>& values,
                                const lists<level_type<T>, C>& levels) {
  if (!detail::agree(dst, src)) return status::bad_size;
  const detail::list_pointers<const level_type<T>> values_of(values);
  const detail::list_pointers<const level_type<T>> levels_of(levels);
  if (!levels_of.same_sizes(values_of)) return status::bad_size;
  if constexpr (exists<members::lut_linear_in_place<T, C>>) {
    if (detail::same(src, dst))
      return detail::call<members::lut_linear_in_place<T, C>>(detail::at(dst), dst.step(), dst.size(), values_of.at(),
                                                              levels_of.at(), levels_of.size());
  }
  return detail::call<members::lut_linear<T, C>>(detail::at(src), src.step(), detail::at(dst), dst.step(), dst.size(),
                                                 values_of.at(), levels_of.at(), levels_of.size());
}

// huxiLUT_Cubic: replace pixels by way of tables of nLevels (level, value) pairs.
template <class T, int C>
requires exists<members::lut_cubic<T, C>>
[[nodiscard]] status lut_cubic(source<T, C> src, view<T, C> dst, const lists<level_type<T>, C>& values,
                               const lists<level_type<T>, C>& levels) {
  if (!detail::agree(dst, src)) return status::bad_size;
  const detail::list_pointers<const level_type<T>> values_of(values);
  const detail::list_pointers<const level_type<T>> levels_of(levels);
  if (!levels_of.same_sizes(values_of)) return status::bad_size;
  if constexpr (exists<members::lut_cubic_in_place<T, C>>) {
    if (detail::same(src, dst))
      return detail::call<members::lut_cubic_in_place<T, C>>(detail::at(dst), dst.step(), dst.size(), values_of.at(),
                                                             levels_of.at(), levels_of.size());
  }
  return detail::call<members::lut_cubic<T, C>>(detail::at(src), src.step(), detail::at(dst), dst.step(), dst.size(),
                                                values_of.at(), levels_of.at(), levels_of.size());
}

// huxiLUTPalette: the destination takes entry p & (2^nBitSize - 1) of pTable, which holds 2^nBitSize entries.
template <readable V, class T, int C, class S = value_type_of<V>>
requires exists<members::lut_palette<T, C, S>>
[[nodiscard]] status lut_palette(const V& src, view<T, C> dst, std::span<const std::type_identity_t<T>> table,
                                 int n_bit_size) {
  view<const S, 1> source = src;
  if (!detail::agree(dst, source)) return status::bad_size;
  return detail::call<members::lut_palette<T, C, S>>(detail::at(source), source.step(), detail::at(dst), dst.step(),
                                                     dst.size(), detail::address{table.data()}, n_bit_size);
}

// huxiCrossCorrFull_Norm: normalised correlation.
template <readable V, class T, int C, class S = value_type_of<V>>
requires exists<members::cross_corr_full_norm<T, C, S>>
[[nodiscard]] status cross_corr_full_norm(
    const V& src, source<S, C> tpl, view<T, C> dst,
    const options_beyond<members::cross_corr_full_norm<T, C, S>, 8, scaled>& options = {}) {
  view<const S, C> source = src;
  if (!detail::of_size(dst.size(), detail::wide(source.width()) + detail::wide(tpl.width()) - 1,
                       detail::wide(source.height()) + detail::wide(tpl.height()) - 1))
    return status::bad_size;
  return detail::call_with<members::cross_corr_full_norm<T, C, S>>(detail::tail(options), detail::at(source),
                                                                   source.step(), source.size(), detail::at(tpl),
                                                                   tpl.step(), tpl.size(), detail::at(dst), dst.step());
}

// huxiCrossCorrSame_Norm: normalised correlation.
template <readable V, class T, int C, class S = value_type_of<V>>
requires exists<members::cross_corr_same_norm<T, C, S>>
[[nodiscard]] status cross_corr_same_norm(
    const V& src, source<S, C> tpl, view<T, C> dst,
    const options_beyond<members::cross_corr_same_norm<T, C, S>, 8, scaled>& options = {}) {
  view<const S, C> source = src;
  if (!detail::agree(dst, source)) return status::bad_size;
  return detail::call_with<members::cross_corr_same_norm<T, C, S>>(detail::tail(options), detail::at(source),
                                                                   source.step(), dst.size(), detail::at(tpl),
                                                                   tpl.step(), tpl.size(), detail::at(dst), dst.step());
}

// huxiCrossCorrValid_Norm: normalised correlation.
template <readable V, class T, int C, class S = value_type_of<V>>
requires exists<members::cross_corr_valid_norm<T, C, S>>
[[nodiscard]] status cross_corr_valid_norm(
    const V& src, source<S, C> tpl, view<T, C> dst,
    const options_beyond<members::cross_corr_valid_norm<T, C, S>, 8, scaled>& options = {}) {
  view<const S, C> source = src;
  if (!detail::of_size(dst.size(), detail::wide(source.width()) - detail::wide(tpl.width()) + 1,
                       detail::wide(source.height()) - detail::wide(tpl.height()) + 1))
    return status::bad_size;
  return detail::call_with<members::cross_corr_valid_norm<T, C, S>>(
      detail::tail(options), detail::at(source), source.step(), source.size(), detail::at(tpl), tpl.step(), tpl.size(),
      detail::at(dst), dst.step());
}

// huxiCrossCorrFull_NormLevel: normalised correlation without the means.
template <readable V, class T, int C, class S = value_type_of<V>>
requires exists<members::cross_corr_full_norm_level<T, C, S>>
[[nodiscard]] status cross_corr_full_norm_level(
    const V& src, source<S, C> tpl, view<T, C> dst,
    const options_beyond<members::cross_corr_full_norm_level<T, C, S>, 8, scaled>& options = {}) {
  view<const S, C> source = src;
  if (!detail::of_size(dst.size(), detail::wide(source.width()) + detail::wide(tpl.width()) - 1,
                       detail::wide(source.height()) + detail::wide(tpl.height()) - 1))
    return status::bad_size;
  return detail::call_with<members::cross_corr_full_norm_level<T, C, S>>(
      detail::tail(options), detail::at(source), source.step(), source.size(), detail::at(tpl), tpl.step(), tpl.size(),
      detail::at(dst), dst.step());
}

// huxiCrossCorrSame_NormLevel: normalised correlation without the means.
template <readable V, class T, int C, class S = value_type_of<V>>
requires exists<members::cross_corr_same_norm_level<T, C, S>>
[[nodiscard]] status cross_corr_same_norm_level(
    const V& src, source<S, C> tpl, view<T, C> dst,
    const options_beyond<members::cross_corr_same_norm_level<T, C, S>, 8, scaled>& options = {}) {
  view<const S, C> source = src;
  if (!detail::agree(dst, source)) return status::bad_size;
  return detail::call_with<members::cross_corr_same_norm_level<T, C, S>>(
      detail::tail(options), detail::at(source), source.step(), dst.size(), detail::at(tpl), tpl.step(), tpl.size(),
      detail::at(dst), dst.step());
}

// huxiCrossCorrValid_NormLevel: normalised correlation without the means.
template <readable V, class T, int C, class S = value_type_of<V>>
requires exists<members::cross_corr_valid_norm_level<T, C, S>>
[[nodiscard]] status cross_corr_valid_norm_level(
    const V& src, source<S, C> tpl, view<T, C> dst,
    const options_beyond<members::cross_corr_valid_norm_level<T, C, S>, 8, scaled>& options = {}) {
  view<const S, C> source = src;
  if (!detail::of_size(dst.size(), detail::wide(source.width()) - detail::wide(tpl.width()) + 1,
                       detail::wide(source.height()) - detail::wide(tpl.height()) + 1))
    return status::bad_size;
  return detail::call_with<members::cross_corr_valid_norm_level<T, C, S>>(
      detail::tail(options), detail::at(source), source.step(), source.size(), detail::at(tpl), tpl.step(), tpl.size(),
      detail::at(dst), dst.step());
}

// huxiSqrDistanceFull_Norm: normalised squared distance.
template <readable V, class T, int C, class S = value_type_of<V>>
requires exists<members::sqr_distance_full_norm<T, C, S>>
[[nodiscard]] status sqr_distance_full_norm(
    const V& src, source<S, C> tpl, view<T, C> dst,
    const options_beyond<members::sqr_distance_full_norm<T, C, S>, 8, scaled>& options = {}) {
  view<const S, C> source = src;
  if (!detail::of_size(dst.size(), detail::wide(source.width()) + detail::wide(tpl.width()) - 1,
                       detail::wide(source.height()) + detail::wide(tpl.height()) - 1))
    return status::bad_size;
  return detail::call_with<members::sqr_distance_full_norm<T, C, S>>(
      detail::tail(options), detail::at(source), source.step(), source.size(), detail::at(tpl), tpl.step(), tpl.size(),
      detail::at(dst), dst.step());
}

// huxiSqrDistanceSame_Norm: normalised squared distance.
template <readable V, class T, int C, class S = value_type_of<V>>
requires exists<members::sqr_distance_same_norm<T, C, S>>
[[nodiscard]] status sqr_distance_same_norm(
    const V& src, source<S, C> tpl, view<T, C> dst,
    const options_beyond<members::sqr_distance_same_norm<T, C, S>, 8, scaled>& options = {}) {
  view<const S, C> source = src;
  if (!detail::agree(dst, source)) return status::bad_size;
  return detail::call_with<members::sqr_distance_same_norm<T, C, S>>(
      detail::tail(options), detail::at(source), source.step(), dst.size(), detail::at(tpl), tpl.step(), tpl.size(),
      detail::at(dst), dst.step());
}

// huxiSqrDistanceValid_Norm: normalised squared distance.
template <readable V, class T, int C, class S = value_type_of<V>>
requires exists<members::sqr_distance_valid_norm<T, C, S>>
[[nodiscard]] status sqr_distance_valid_norm(
    const V& src, source<S, C> tpl, view<T, C> dst,
    const options_beyond<members::sqr_distance_valid_norm<T, C, S>, 8, scaled>& options = {}) {
  view<const S, C> source = src;
  if (!detail::of_size(dst.size(), detail::wide(source.width()) - detail::wide(tpl.width()) + 1,
                       detail::wide(source.height()) - detail::wide(tpl.height()) + 1))
    return status::bad_size;
  return detail::call_with<members::sqr_distance_valid_norm<T, C, S>>(
      detail::tail(options), detail::at(source), source.step(), source.size(), detail::at(tpl), tpl.step(), tpl.size(),
      detail::at(dst), dst.step());
}

// huxiQualityIndex: how alike two images are, for each channel.
template <readable V, class S = value_type_of<V>, int CS = layout_of<V>>
requires exists<members::quality_index<S, CS>>
[[nodiscard]] result<per_channel<float, CS>> quality_index(const V& a, source<S, CS> b) {
  view<const S, CS> source = a;
  if (!detail::agree(source, b)) return {status::bad_size};
  result<per_channel<float, CS>> out;
  out.status = detail::call<members::quality_index<S, CS>>(detail::at(source), source.step(), detail::at(b), b.step(),
                                                           source.size(), detail::at(out.value));
  return out;
}

}  // namespace nothrow

template <readable V, class S = value_type_of<V>, int CS = layout_of<V>>
requires exists<members::sum<S, CS>>
[[nodiscard]] per_channel<double, CS> sum(const V& src,
                                          const options_beyond<members::sum<S, CS>, 4, hinted>& options = {}) {
  return detail::checked(nothrow::sum(src, options), "sum");
}

template <readable V, class S = value_type_of<V>, int CS = layout_of<V>>
requires exists<members::mean<S, CS>>
[[nodiscard]] per_channel<double, CS> mean(const V& src,
                                           const options_beyond<members::mean<S, CS>, 4, hinted>& options = {}) {
  return detail::checked(nothrow::mean(src, options), "mean");
}

template <readable V, class S = value_type_of<V>, int CS = layout_of<V>>
requires exists<members::min<S, CS>>
[[nodiscard]] per_channel<S, CS> min(const V& src) { return detail::checked(nothrow::min(src), "min"); }

template <readable V, class S = value_type_of<V>, int CS = layout_of<V>>
requires exists<members::max<S, CS>>
[[nodiscard]] per_channel<S, CS> max(const V& src) { return detail::checked(nothrow::max(src), "max"); }

template <readable V, class S = value_type_of<V>, int CS = layout_of<V>>
requires exists<members::min_max<S, CS>>
[[nodiscard]] min_max_result<S, CS> min_max(const V& src) { return detail::checked(nothrow::min_max(src), "min_max"); }

template <readable V, class S = value_type_of<V>, int CS = layout_of<V>>
requires exists<members::min_indx<S, CS>>
[[nodiscard]] min_indx_result<S, CS> min_indx(const V& src) {
  return detail::checked(nothrow::min_indx(src), "min_indx");
}

template <readable V, class S = value_type_of<V>, int CS = layout_of<V>>
requires exists<members::max_indx<S, CS>>
[[nodiscard]] max_indx_result<S, CS> max_indx(const V& src) {
  return detail::checked(nothrow::max_indx(src), "max_indx");
}

template <readable V, class S = value_type_of<V>, int CS = layout_of<V>>
requires exists<members::count_in_range<S, CS>>
[[nodiscard]] per_channel<int, CS> count_in_range(const V& src, values<S, CS> lower_bound, values<S, CS> upper_bound) {
  return detail::checked(nothrow::count_in_range(src, lower_bound, upper_bound), "count_in_range");
}

template <readable V, class S = value_type_of<V>, int CS = layout_of<V>>
requires exists<members::norm_inf<S, CS>>
[[nodiscard]] per_channel<double, CS> norm_inf(const V& src) {
  return detail::checked(nothrow::norm_inf(src), "norm_inf");
}

template <readable V, class S = value_type_of<V>, int CS = layout_of<V>>
requires exists<members::norm_l1<S, CS>>
[[nodiscard]] per_channel<double, CS> norm_l1(const V& src,
                                              const options_beyond<members::norm_l1<S, CS>, 4, hinted>& options = {}) {
  return detail::checked(nothrow::norm_l1(src, options), "norm_l1");
}

template <readable V, class S = value_type_of<V>, int CS = layout_of<V>>
requires exists<members::norm_l2<S, CS>>
[[nodiscard]] per_channel<double, CS> norm_l2(const V& src,
                                              const options_beyond<members::norm_l2<S, CS>, 4, hinted>& options = {}) {
  return detail::checked(nothrow::norm_l2(src, options), "norm_l2");
}

template <readable V, class S = value_type_of<V>, int CS = layout_of<V>>
requires exists<members::norm_diff_inf<S, CS>>
[[nodiscard]] per_channel<double, CS> norm_diff_inf(const V& a, source<S, CS> b) {
  return detail::checked(nothrow::norm_diff_inf(a, b), "norm_diff_inf");
}

template <readable V, class S = value_type_of<V>, int CS = layout_of<V>>
requires exists<members::norm_diff_l1<S, CS>>
[[nodiscard]] per_channel<double, CS> norm_diff_l1(
    const V& a, source<S, CS> b, const options_beyond<members::norm_diff_l1<S, CS>, 6, hinted>& options = {}) {
  return detail::checked(nothrow::norm_diff_l1(a, b, options), "norm_diff_l1");
}

template <readable V, class S = value_type_of<V>, int CS = layout_of<V>>
requires exists<members::norm_diff_l2<S, CS>>
[[nodiscard]] per_channel<double, CS> norm_diff_l2(
    const V& a, source<S, CS> b, const options_beyond<members::norm_diff_l2<S, CS>, 6, hinted>& options = {}) {
  return detail::checked(nothrow::norm_diff_l2(a, b, options), "norm_diff_l2");
}

template <readable V, class S = value_type_of<V>, int CS = layout_of<V>>
requires exists<members::norm_rel_inf<S, CS>>
[[nodiscard]] per_channel<double, CS> norm_rel_inf(const V& a, source<S, CS> b) {
  return detail::checked(nothrow::norm_rel_inf(a, b), "norm_rel_inf");
}

template <readable V, class S = value_type_of<V>, int CS = layout_of<V>>
requires exists<members::norm_rel_l1<S, CS>>
[[nodiscard]] per_channel<double, CS> norm_rel_l1(
    const V& a, source<S, CS> b, const options_beyond<members::norm_rel_l1<S, CS>, 6, hinted>& options = {}) {
  return detail::checked(nothrow::norm_rel_l1(a, b, options), "norm_rel_l1");
}

template <readable V, class S = value_type_of<V>, int CS = layout_of<V>>
requires exists<members::norm_rel_l2<S, CS>>
[[nodiscard]] per_channel<double, CS> norm_rel_l2(
    const V& a, source<S, CS> b, const options_beyond<members::norm_rel_l2<S, CS>, 6, hinted>& options = {}) {
  return detail::checked(nothrow::norm_rel_l2(a, b, options), "norm_rel_l2");
}

template <class T, int C>
requires exists<members::lut<T, C>>
status lut(source<T, C> src, view<T, C> dst, const lists<level_type<T>, C>& values,
           const lists<level_type<T>, C>& levels) {
  return detail::checked(nothrow::lut(src, dst, values, levels), "lut");
}

template <class T, int C>
requires exists<members::lut_linear<T, C>>
status lut_linear(source<T, C> src, view<T, C> dst, const lists<level_type<T>, C>& values,
                  const lists<level_type<T>, C>& levels) {
  return detail::checked(nothrow::lut_linear(src, dst, values, levels), "lut_linear");
}

template <class T, int C>
requires exists<members::lut_cubic<T, C>>
status lut_cubic(source<T, C> src, view<T, C> dst, const lists<level_type<T>, C>& values,
                 const lists<level_type<T>, C>& levels) {
  return detail::checked(nothrow::lut_cubic(src, dst, values, levels), "lut_cubic");
}

template <readable V, class T, int C, class S = value_type_of<V>>
requires exists<members::lut_palette<T, C, S>>
status lut_palette(const V& src, view<T, C> dst, std::span<const std::type_identity_t<T>> table, int n_bit_size) {
  return detail::checked(nothrow::lut_palette(src, dst, table, n_bit_size), "lut_palette");
}

template <readable V, class T, int C, class S = value_type_of<V>>
requires exists<members::cross_corr_full_norm<T, C, S>>
status cross_corr_full_norm(
    const V& src, source<S, C> tpl, view<T, C> dst,
    const options_beyond<members::cross_corr_full_norm<T, C, S>, 8, scaled>& options = {}) {
  return detail::checked(nothrow::cross_corr_full_norm(src, tpl, dst, options), "cross_corr_full_norm");
}

template <readable V, class T, int C, class S = value_type_of<V>>
requires exists<members::cross_corr_same_norm<T, C, S>>
status cross_corr_same_norm(
    const V& src, source<S, C> tpl, view<T, C> dst,
    const options_beyond<members::cross_corr_same_norm<T, C, S>, 8, scaled>& options = {}) {
  return detail::checked(nothrow::cross_corr_same_norm(src, tpl, dst, options), "cross_corr_same_norm");
}

template <readable V, class T, int C, class S = value_type_of<V>>
requires exists<members::cross_corr_valid_norm<T, C, S>>
status cross_corr_valid_norm(
    const V& src, source<S, C> tpl, view<T, C> dst,
    const options_beyond<members::cross_corr_valid_norm<T, C, S>, 8, scaled>& options = {}) {
  return detail::checked(nothrow::cross_corr_valid_norm(src, tpl, dst, options), "cross_corr_valid_norm");
}

template <readable V, class T, int C, class S = value_type_of<V>>
requires exists<members::cross_corr_full_norm_level<T, C, S>>
status cross_corr_full_norm_level(
    const V& src, source<S, C> tpl, view<T, C> dst,
    const options_beyond<members::cross_corr_full_norm_level<T, C, S>, 8, scaled>& options = {}) {
  return detail::checked(nothrow::cross_corr_full_norm_level(src, tpl, dst, options), "cross_corr_full_norm_level");
}

template <readable V, class T, int C, class S = value_type_of<V>>
requires exists<members::cross_corr_same_norm_level<T, C, S>>
status cross_corr_same_norm_level(
    const V& src, source<S, C> tpl, view<T, C> dst,
    const options_beyond<members::cross_corr_same_norm_level<T, C, S>, 8, scaled>& options = {}) {
  return detail::checked(nothrow::cross_corr_same_norm_level(src, tpl, dst, options), "cross_corr_same_norm_level");
}

template <readable V, class T, int C, class S = value_type_of<V>>
requires exists<members::cross_corr_valid_norm_level<T, C, S>>
status cross_corr_valid_norm_level(
    const V& src, source<S, C> tpl, view<T, C> dst,
    const options_beyond<members::cross_corr_valid_norm_level<T, C, S>, 8, scaled>& options = {}) {
  return detail::checked(nothrow::cross_corr_valid_norm_level(src, tpl, dst, options), "cross_corr_valid_norm_level");
}

template <readable V, class T, int C, class S = value_type_of<V>>
requires exists<members::sqr_distance_full_norm<T, C, S>>
status sqr_distance_full_norm(
    const V& src, source<S, C> tpl, view<T, C> dst,
    const options_beyond<members::sqr_distance_full_norm<T, C, S>, 8, scaled>& options = {}) {
  return detail::checked(nothrow::sqr_distance_full_norm(src, tpl, dst, options), "sqr_distance_full_norm");
}

template <readable V, class T, int C, class S = value_type_of<V>>
requires exists<members::sqr_distance_same_norm<T, C, S>>
status sqr_distance_same_norm(
    const V& src, source<S, C> tpl, view<T, C> dst,
    const options_beyond<members::sqr_distance_same_norm<T, C, S>, 8, scaled>& options = {}) {
  return detail::checked(nothrow::sqr_distance_same_norm(src, tpl, dst, options), "sqr_distance_same_norm");
}

template <readable V, class T, int C, class S = value_type_of<V>>
requires exists<members::sqr_distance_valid_norm<T, C, S>>
status sqr_distance_valid_norm(
    const V& src, source<S, C> tpl, view<T, C> dst,
    const options_beyond<members::sqr_distance_valid_norm<T, C, S>, 8, scaled>& options = {}) {
  return detail::checked(nothrow::sqr_distance_valid_norm(src, tpl, dst, options), "sqr_distance_valid_norm");
}

template <readable V, class S = value_type_of<V>, int CS = layout_of<V>>
requires exists<members::quality_index<S, CS>>
[[nodiscard]] per_channel<float, CS> quality_index(const V& a, source<S, CS> b) {
  return detail::checked(nothrow::quality_index(a, b), "quality_index");
}

}  // namespace hux

#endif
