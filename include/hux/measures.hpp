// Histograms, moments, packed bits, and what the library tells of itself.
#ifndef HUX_MEASURES_HPP
#define HUX_MEASURES_HPP

#include <vector>

#include "../huxcore.h"
#include "call.hpp"
#include "members.hpp"

namespace hux {

// A list of counters for each channel that is processed.
template <int C>
using counts = per_channel<std::vector<std::int32_t>, C>;
template <int C>
struct even_histogram {
  hux::counts<C> counts = {};
  hux::counts<C> levels = {};
};

namespace detail {

// One vector for each channel, as spans.
inline std::span<std::int32_t> spans(std::vector<std::int32_t>& list) { return list; }
template <std::size_t N>
std::array<std::span<std::int32_t>, N> spans(std::array<std::vector<std::int32_t>, N>& lists) {
  std::array<std::span<std::int32_t>, N> out;
  for (std::size_t i = 0; i < N; ++i) out[i] = lists[i];
  return out;
}

// Vectors of the lengths given, less by some; false where there is no memory.
template <int C>
bool resize(counts<C>& lists, const int* lengths, int less) try {
  auto one = [&](std::vector<std::int32_t>& list, int length) {
    list.assign(static_cast<std::size_t>(length > less ? length - less : 0), 0);
  };
  if constexpr (channels_of(C) == 1)
    one(lists, lengths[0]);
  else
    for (std::size_t i = 0; i < lists.size(); ++i) one(lists[i], lengths[i]);
  return true;
} catch (const std::exception&) {
  return false;
}

}  // namespace detail

namespace nothrow {

// huxiHistogramRange: counts the pixels between levels, by channel; of n levels there are n - 1 bins.
template <readable V, class S = value_type_of<V>, int CS = layout_of<V>>
requires exists<members::histogram_range<S, CS>> result<counts<CS>> histogram(const V& src,
                                                                              const lists<level_type<S>, CS>& levels) {
  const view<const S, CS> source = src;
  const detail::list_pointers<const level_type<S>> levels_of(levels);
  result<counts<CS>> out;
  if (!detail::resize<CS>(out.value, levels_of.lengths, 1)) return {status::no_mem};
  detail::list_pointers<std::int32_t> counters(detail::spans(out.value));
  // The callee refuses fewer than two levels, and a null pointer before that.
  for (int c = 0; c < counters.count; ++c)
    if (levels_of.lengths[c] < 2) return {status::bad_hist_levels};
  out.status = detail::call<members::histogram_range<S, CS>>(detail::at(source), source.step(), source.size(),
                                                             counters.at(), levels_of.at(), levels_of.size());
  return out;
}

// huxiHistogramEven: counts the pixels in bins of one width from lower to upper, which is outside of the last, and
// tells the levels between them.
template <readable V, class S = value_type_of<V>, int CS = layout_of<V>>
requires exists<members::histogram_even<S, CS>> result<even_histogram<CS>> histogram_even(
    const V& src, values<int, CS> bins, values<std::int32_t, CS> lower, values<std::int32_t, CS> upper) {
  const view<const S, CS> source = src;
  result<even_histogram<CS>> out;
  int lengths[4] = {};
  for (int c = 0; c < constant<int, CS>::count; ++c) {
    if (bins.data()[c] < 1 || bins.data()[c] == INT_MAX) return {status::bad_hist_levels};
    lengths[c] = bins.data()[c] + 1;
  }
  if (!detail::resize<CS>(out.value.counts, lengths, 1) || !detail::resize<CS>(out.value.levels, lengths, 0))
    return {status::no_mem};
  detail::list_pointers<std::int32_t> counters(detail::spans(out.value.counts)),
      levels(detail::spans(out.value.levels));
  out.status =
      detail::call<members::histogram_even<S, CS>>(detail::at(source), source.step(), source.size(), counters.at(),
                                                   levels.at(), levels.size(), detail::at(lower), detail::at(upper));
  return out;
}

}  // namespace nothrow

template <readable V, class S = value_type_of<V>, int CS = layout_of<V>>
requires exists<members::histogram_range<S, CS>>
[[nodiscard]] counts<CS> histogram(const V& src, const lists<level_type<S>, CS>& levels) {
  return detail::checked(nothrow::histogram(src, levels), "histogram");
}
template <readable V, class S = value_type_of<V>, int CS = layout_of<V>>
requires exists<members::histogram_even<S, CS>>
[[nodiscard]] even_histogram<CS> histogram_even(const V& src, values<int, CS> bins, values<std::int32_t, CS> lower,
                                                values<std::int32_t, CS> upper) {
  return detail::checked(nothrow::histogram_even(src, bins, lower, upper), "histogram_even");
}

// The moments of an image to the third order, as double or std::int64_t: a record of the C library.
template <class K>
class moments {
  static_assert(exists<members::moment_init_alloc<K>>, "moments are of double or std::int64_t");
  using Record = std::conditional_t<std::is_same_v<K, double>, HuxiMomentRecord_64f, HuxiMomentRecord_64s>;

 public:
  moments() {
    Record* record = nullptr;
    detail::checked(detail::call<members::moment_init_alloc<K>>(&record, huxHintNone), "moments");
    record_.reset(record);
  }
  // In memory of the caller's, of bytes() at least and aligned to 16.
  explicit moments(std::span<std::byte> memory) requires exists<members::moment_init<K>> {
    if (static_cast<std::int64_t>(memory.size()) < bytes()) throw error(status::bad_size, "moments");
    auto* record = reinterpret_cast<Record*>(memory.data());
    detail::checked(detail::call<members::moment_init<K>>(record, huxHintNone), "moments");
    record_ = {record, ender{false}};
  }
  static int bytes() requires exists<members::moment_get_state_size<K>> {
    int size = 0;
    detail::checked(detail::call<members::moment_get_state_size<K>>(huxHintNone, &size), "moments::bytes");
    return size;
  }
  template <readable V>
  explicit moments(const V& src) : moments() {
    measure(src);
  }

  template <readable V, class S = value_type_of<V>, int CS = layout_of<V>>
  requires(exists<members::moments64f<S, CS>> &&
           (std::is_same_v<K, double> || exists<members::moments64s<S, CS>>)) void measure(const V& src) {
    const view<const S, CS> source = src;
    if constexpr (std::is_same_v<K, double>)
      detail::checked(
          detail::call<members::moments64f<S, CS>>(detail::at(source), source.step(), source.size(), record_.get()),
          "moments::measure");
    else
      detail::checked(
          detail::call<members::moments64s<S, CS>>(detail::at(source), source.step(), source.size(), record_.get()),
          "moments::measure");
  }

  // Integers are multiplied by 2^-shift; of doubles, shift is not looked at.
  [[nodiscard]] K spatial(int x_order, int y_order, int channel = 0, point offset = {}, int shift = 0) const {
    return get<members::get_spatial_moment<K>>("spatial", shift, x_order, y_order, channel, offset);
  }
  [[nodiscard]] K normalized_spatial(int x_order, int y_order, int channel = 0, point offset = {},
                                     int shift = 0) const {
    return get<members::get_normalized_spatial_moment<K>>("normalized_spatial", shift, x_order, y_order, channel,
                                                          offset);
  }
  [[nodiscard]] K central(int x_order, int y_order, int channel = 0, int shift = 0) const {
    return get<members::get_central_moment<K>>("central", shift, x_order, y_order, channel);
  }
  [[nodiscard]] K normalized_central(int x_order, int y_order, int channel = 0, int shift = 0) const {
    return get<members::get_normalized_central_moment<K>>("normalized_central", shift, x_order, y_order, channel);
  }
  [[nodiscard]] std::array<K, 7> hu(int channel = 0, int shift = 0) const {
    std::array<K, 7> out = {};
    detail::checked(detail::call_with<members::get_hu_moments<K>>(shift, record_.get(), channel, out.data()),
                    "moments::hu");
    return out;
  }

 private:
  struct ender {
    bool own = true;
    void operator()(Record* record) const {
      if (own) members::moment_free<K>(record);
    }
  };

  template <auto Function, class... Args>
  K get(const char* name, int shift, const Args&... args) const {
    K out = {};
    detail::checked(detail::call_with<Function>(shift, record_.get(), args..., &out), name);
    return out;
  }

  std::unique_ptr<Record, ender> record_;
};
template <class V>
moments(const V&) -> moments<double>;

// The first bit of each row, from the most significant of the row's first byte.
struct bits {
  int offset = 0;
};

namespace nothrow {

// huxiConvert_1u8u: packed bits as bytes of 0 and 255. src is as many bytes wide as hold a row's bits.
[[nodiscard]] inline status unpack_bits(source<std::uint8_t, 1> src, view<std::uint8_t, 1> dst,
                                        const bits& options = {}) {
  if (src.height() != dst.height() || detail::wide(src.width()) * 8 < detail::wide(dst.width()) + (options.offset & 7))
    return status::bad_size;
  return detail::call<huxiConvert_1u8u_C1R>(src.data(), src.step(), options.offset, dst.data(), dst.step(), dst.size());
}

// huxiConvert_8u1u: bytes halftoned to packed bits. dst is as many bytes wide as hold a row's bits.
[[nodiscard]] inline status pack_bits(source<std::uint8_t, 1> src, view<std::uint8_t, 1> dst, std::uint8_t threshold,
                                      const bits& options = {}) {
  if (src.height() != dst.height() || detail::wide(dst.width()) * 8 < detail::wide(src.width()) + (options.offset & 7))
    return status::bad_size;
  return detail::call<huxiConvert_8u1u_C1R>(src.data(), src.step(), dst.data(), dst.step(), options.offset, src.size(),
                                            threshold);
}

}  // namespace nothrow

inline status unpack_bits(source<std::uint8_t, 1> src, view<std::uint8_t, 1> dst, const bits& options = {}) {
  return detail::checked(nothrow::unpack_bits(src, dst, options), "unpack_bits");
}
inline status pack_bits(source<std::uint8_t, 1> src, view<std::uint8_t, 1> dst, std::uint8_t threshold,
                        const bits& options = {}) {
  return detail::checked(nothrow::pack_bits(src, dst, threshold, options), "pack_bits");
}

// The library's identity, and how many threads its parallel functions may use.
inline const HuxLibraryVersion& version() { return *huxiGetLibVersion(); }
inline unsigned threads() { return huxGetThreadCount(); }
inline void set_threads(unsigned count) { huxSetThreadCount(count); }

}  // namespace hux

#endif
