// Calls of a chain that are not made from a function of the front as it stands: measures, masks, other layouts. Not for
// use by itself; see chain.hpp.
#ifndef HUX_CHAINED_HPP
#define HUX_CHAINED_HPP

#include "arith.hpp"
#include "measures.hpp"
#include "pixel.hpp"
#include "run.hpp"
#include "stats.hpp"

namespace hux {

namespace detail {

// How numbers of parts of an image make those of the whole. Values of channels are taken one by one.
template <class V, class F>
void by_channel(V& into, const V& from, F f) {
  if constexpr (std::is_arithmetic_v<V>)
    f(into, from, 0);
  else
    for (std::size_t c = 0; c < into.size(); ++c) f(into[c], from[c], c);
}
struct untouched {
  template <class V>
  void first(V&, int) const {}
};
// Sums of integers, in doubles: exact in any order. Counts wrap as one call's do.
struct sums : untouched {
  template <class V>
  void operator()(V& into, const V& from, int) const {
    by_channel(into, from, [](auto& a, auto b, std::size_t) {
      if constexpr (std::is_same_v<decltype(b), int>)
        a = static_cast<int>(static_cast<unsigned>(a) + static_cast<unsigned>(b));
      else
        a += b;
    });
  }
};
struct least : untouched {
  template <class V>
  void operator()(V& into, const V& from, int) const {
    by_channel(into, from, [](auto& a, auto b, std::size_t) { a = std::min(a, b); });
  }
};
struct greatest : untouched {
  template <class V>
  void operator()(V& into, const V& from, int) const {
    by_channel(into, from, [](auto& a, auto b, std::size_t) { a = std::max(a, b); });
  }
};
struct extremes : untouched {
  template <class V>
  void operator()(V& into, const V& from, int row) const {
    least()(into.min, from.min, row);
    greatest()(into.max, from.max, row);
  }
};
// The first in the order of rows stays. Rows are told from the first of a part.
template <bool Least>
struct placed {
  template <class V>
  void first(V& own, int row) const {
    by_channel(own.index_y, own.index_y, [row](int& y, int, std::size_t) { y += row; });
  }
  template <class V>
  void operator()(V& into, const V& from, int row) const {
    auto better = [](auto a, auto b) { return Least ? a < b : a > b; };
    auto take = [&](auto& a, auto b, int& x, int& y, int from_x, int from_y) {
      if (better(b, a)) a = b, x = from_x, y = from_y + row;
    };
    auto& kept = [&]() -> auto& {
      if constexpr (Least)
        return into.min;
      else
        return into.max;
    }
    ();
    const auto& other = [&]() -> const auto& {
      if constexpr (Least)
        return from.min;
      else
        return from.max;
    }
    ();
    if constexpr (std::is_arithmetic_v<std::remove_reference_t<decltype(kept)>>)
      take(kept, other, into.index_x, into.index_y, from.index_x, from.index_y);
    else
      for (std::size_t c = 0; c < kept.size(); ++c)
        take(kept[c], other[c], into.index_x[c], into.index_y[c], from.index_x[c], from.index_y[c]);
  }
};
struct as_it_is {
  template <class V>
  const V& operator()(const V& value, extent) const {
    return value;
  }
};
// A sum over the number of pixels, as the library divides: that number is of 32 bits and wraps; one channel divides, of
// several each is multiplied by the reciprocal.
struct over_pixels {
  double operator()(double sum, extent size) const { return sum / pixels(size); }
  template <std::size_t N>
  std::array<double, N> operator()(std::array<double, N> sum, extent size) const {
    for (double& one : sum) one *= 1.0 / pixels(size);
    return sum;
  }
  static double pixels(extent size) {
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(size.width) * static_cast<std::uint32_t>(size.height));
  }
};

// Histograms, whose counters are there before the first band is counted.
template <int C, class Value, class Count, class Give>
class histogram_tally : public tally {
 public:
  histogram_tally(const Count& count, const Give& give, const int* bins) : count_(count), give_(give) {
    for (int c = 0; c < channels_of(C); ++c) bins_[c] = std::max(0, bins[c]);
  }

  Value* to = nullptr;

  tally* another() const override {
    auto made = std::make_unique<histogram_tally>(count_, give_, bins_);
    made->to = to;
    if (!resize<C>(made->part_, bins_, 0) || !resize<C>(made->all_, bins_, 0)) return nullptr;
    return made.release();
  }
  void clear() override {
    for (auto& list : spans_of(all_)) std::fill(list.begin(), list.end(), 0);
  }
  status add(const band* in, int) override {
    const status found = count_(in, spans(part_));
    if (static_cast<int>(found) >= 0) add_up(part_);
    return found;
  }
  void join(const tally& next) override { add_up(static_cast<const histogram_tally&>(next).all_); }
  void give(extent) override {
    if (to) give_(*to, all_);
  }

 private:
  static auto spans_of(counts<C>& lists) {
    if constexpr (channels_of(C) == 1)
      return std::array{std::span<std::int32_t>(lists)};
    else
      return spans(lists);
  }
  void add_up(const counts<C>& part) {
    const auto from = spans_of(const_cast<counts<C>&>(part));
    const auto into = spans_of(all_);
    for (std::size_t c = 0; c < into.size(); ++c)
      for (std::size_t i = 0; i < into[c].size(); ++i)
        into[c][i] =
            static_cast<std::int32_t>(static_cast<std::uint32_t>(into[c][i]) + static_cast<std::uint32_t>(from[c][i]));
  }

  Count count_;
  Give give_;
  int bins_[4] = {};
  counts<C> part_ = {}, all_ = {};
};

}  // namespace detail

// Types whose sums, extrema and norms do not depend on the order in which pixels come.
template <class T>
concept in_any_order = std::is_integral_v<T>;

class chain_calls : public detail::chain_base {
 public:
  // Measures: numbers of all pixels, which output(number, variable) has written when the chain has run.

  template <in_any_order T, int C>
  requires exists<members::sum<T, C>>
  [[nodiscard]] number<per_channel<double, C>> sum(node<T, C> src) {
    return measure<T, C>(
        "sum", {part(src)}, [](auto a) { return nothrow::sum(a); }, detail::sums());
  }
  template <in_any_order T, int C>
  requires exists<members::mean<T, C>>
  [[nodiscard]] number<per_channel<double, C>> mean(node<T, C> src) {
    return measure<T, C>(
        "mean", {part(src)}, [](auto a) { return nothrow::sum(a); }, detail::sums(), detail::over_pixels());
  }
  template <in_any_order T, int C>
  requires exists<members::min<T, C>>
  [[nodiscard]] number<per_channel<T, C>> min(node<T, C> src) {
    return measure<T, C>(
        "min", {part(src)}, [](auto a) { return nothrow::min(a); }, detail::least());
  }
  template <in_any_order T, int C>
  requires exists<members::max<T, C>>
  [[nodiscard]] number<per_channel<T, C>> max(node<T, C> src) {
    return measure<T, C>(
        "max", {part(src)}, [](auto a) { return nothrow::max(a); }, detail::greatest());
  }
  template <in_any_order T, int C>
  requires exists<members::min_max<T, C>>
  [[nodiscard]] number<min_max_result<T, C>> min_max(node<T, C> src) {
    return measure<T, C>(
        "min_max", {part(src)}, [](auto a) { return nothrow::min_max(a); }, detail::extremes());
  }
  // Of equal pixels the first in the order of rows, as in one call.
  template <in_any_order T, int C>
  requires exists<members::min_indx<T, C>>
  [[nodiscard]] number<min_indx_result<T, C>> min_indx(node<T, C> src) {
    return measure<T, C>(
        "min_indx", {part(src)}, [](auto a) { return nothrow::min_indx(a); }, detail::placed<true>());
  }
  template <in_any_order T, int C>
  requires exists<members::max_indx<T, C>>
  [[nodiscard]] number<max_indx_result<T, C>> max_indx(node<T, C> src) {
    return measure<T, C>(
        "max_indx", {part(src)}, [](auto a) { return nothrow::max_indx(a); }, detail::placed<false>());
  }
  template <class T, int C>
  requires exists<members::count_in_range<T, C>>
  [[nodiscard]] number<per_channel<int, C>> count_in_range(node<T, C> src, values<T, C> lower_bound,
                                                           values<T, C> upper_bound) {
    const auto count = [=](auto a) { return nothrow::count_in_range(a, lower_bound, upper_bound); };
    return measure<T, C>("count_in_range", {part(src)}, count, detail::sums());
  }
  template <in_any_order T, int C>
  requires exists<members::norm_inf<T, C>>
  [[nodiscard]] number<per_channel<double, C>> norm_inf(node<T, C> src) {
    return measure<T, C>(
        "norm_inf", {part(src)}, [](auto a) { return nothrow::norm_inf(a); }, detail::greatest());
  }
  template <in_any_order T, int C>
  requires exists<members::norm_l1<T, C>>
  [[nodiscard]] number<per_channel<double, C>> norm_l1(node<T, C> src) {
    return measure<T, C>(
        "norm_l1", {part(src)}, [](auto a) { return nothrow::norm_l1(a); }, detail::sums());
  }
  template <in_any_order T, int C>
  requires exists<members::norm_diff_inf<T, C>>
  [[nodiscard]] number<per_channel<double, C>> norm_diff_inf(node<T, C> a, std::type_identity_t<node<T, C>> b) {
    const auto norm = [](auto x, auto y) { return nothrow::norm_diff_inf(x, y); };
    return measure<T, C>("norm_diff_inf", {part(a), part(b)}, norm, detail::greatest());
  }
  template <in_any_order T, int C>
  requires exists<members::norm_diff_l1<T, C>>
  [[nodiscard]] number<per_channel<double, C>> norm_diff_l1(node<T, C> a, std::type_identity_t<node<T, C>> b) {
    const auto norm = [](auto x, auto y) { return nothrow::norm_diff_l1(x, y); };
    return measure<T, C>("norm_diff_l1", {part(a), part(b)}, norm, detail::sums());
  }
  template <class T, int C>
  requires exists<members::histogram_range<T, C>>
  [[nodiscard]] number<counts<C>> histogram(node<T, C> src, const lists<level_type<T>, C>& levels) {
    const detail::list_pointers<const level_type<T>> levels_of(levels);
    int bins[4] = {};
    for (int c = 0; c < levels_of.count; ++c) bins[c] = levels_of.lengths[c] - 1;
    const auto count = [levels](const detail::band* in, auto counters) {
      const view<const T, C> source = in->as<const T, C>();
      const detail::list_pointers<const level_type<T>> own(levels);
      for (int c = 0; c < own.count; ++c)
        if (own.lengths[c] < 2) return status::bad_hist_levels;
      return detail::call<members::histogram_range<T, C>>(detail::at(source), source.step(), source.size(),
                                                          detail::list_pointers<std::int32_t>(counters).at(), own.at(),
                                                          own.size());
    };
    return counted<C, counts<C>>("histogram", part(src), bins, count,
                                 [](counts<C>& to, const counts<C>& all) { to = all; });
  }
  template <class T, int C>
  requires exists<members::histogram_even<T, C>>
  [[nodiscard]] number<even_histogram<C>> histogram_even(node<T, C> src, values<int, C> bins,
                                                         values<std::int32_t, C> lower, values<std::int32_t, C> upper) {
    // The levels, which the call tells of any image.
    const T pixel[4] = {};
    auto known = nothrow::histogram_even(view<const T, C>(pixel, sizeof pixel, {1, 1}), bins, lower, upper);
    if (static_cast<int>(known.status) < 0) refuse(known.status, "histogram_even");
    const auto count = [levels = known.value.levels, lower, upper](const detail::band* in, auto counters) mutable {
      const view<const T, C> source = in->as<const T, C>();
      detail::list_pointers<std::int32_t> own(detail::spans(levels));
      return detail::call<members::histogram_even<T, C>>(detail::at(source), source.step(), source.size(),
                                                         detail::list_pointers<std::int32_t>(counters).at(), own.at(),
                                                         own.size(), detail::at(lower), detail::at(upper));
    };
    return counted<C, even_histogram<C>>("histogram_even", part(src), bins.data(), count,
                                         [levels = std::move(known.value.levels)](auto& to, const counts<C>& all) {
                                           to.counts = all;
                                           to.levels = levels;
                                         });
  }

  // Masks: the pixels of src, or a value, where mask is not 0, and those of onto elsewhere.
  template <class T, int C>
  requires exists<members::copy_masked<T, C, C>>
  [[nodiscard]] node<T, C> copy(node<T, C> src, std::type_identity_t<node<T, C>> onto, node<std::uint8_t, 1> mask) {
    return recorded<T, C>(
        "copy", {part(onto), part(src), part(mask)}, detail::work([](const detail::band* in, const detail::band& out) {
          over<T, C>(in[0], out);
          return nothrow::copy(in[1].as<const T, C>(), out.as<T, C>(), {in[2].as<const std::uint8_t, 1>()});
        }));
  }
  template <class T, int C>
  requires exists<members::set_masked<T, C>>
  [[nodiscard]] node<T, C> set(values<T, C> value, node<T, C> onto, node<std::uint8_t, 1> mask) {
    return recorded<T, C>("set", {part(onto), part(mask)},
                          detail::work([value](const detail::band* in, const detail::band& out) {
                            over<T, C>(in[0], out);
                            return nothrow::set<T, C>(value, out.as<T, C>(), {in[1].as<const std::uint8_t, 1>()});
                          }));
  }
  // The same where an image goes: pixels of the output stay as they are where mask is 0.
  using detail::chain_base::output;
  template <class T, int C>
  requires exists<members::copy_masked<T, C, C>>
  void output(node<T, C> from, std::type_identity_t<view<T, C>> to, node<std::uint8_t, 1> mask) {
    output(recorded<T, C>(
               "output", {part(from), part(mask)}, detail::work([](const detail::band* in, const detail::band& out) {
                 return nothrow::copy(in[0].as<const T, C>(), out.as<T, C>(), {in[1].as<const std::uint8_t, 1>()});
               })),
           to);
  }

  // Of two's complement, sign and magnitude: an image of its own, where the call works in place.
  template <class T, int C>
  requires exists<members::complement_in_place<T, C>>
  [[nodiscard]] node<T, C> complement(node<T, C> src) {
    return recorded<T, C>("complement", {part(src)}, detail::work([](const detail::band* in, const detail::band& out) {
                            over<T, C>(*in, out);
                            return nothrow::complement(out.as<T, C>());
                          }));
  }

  // Other layouts: copy<planar<3>>(interleaved), copy<3>(planes), copy<1>(pixels.channel(2)), copy<one_of<3>>(plane).
  template <int D, class T, int C>
  requires(exists<members::copy<T, D, C>> || exists<members::copy_to_planes<T, D, C>> ||
           exists<members::copy_from_planes<T, D, C>>) [[nodiscard]] node<T, D> copy(node<T, C> src) {
    return recorded<T, D>("copy", {part(src)}, detail::work([](const detail::band* in, const detail::band& out) {
                            return nothrow::copy(in->as<const T, C>(), out.as<T, D>());
                          }));
  }
  // Planes of images of one channel each.
  template <class T, std::size_t N>
  requires(N == 3 || N == 4)
      [[nodiscard]] node<T, 200 + static_cast<int>(N)> planes(const std::array<node<T, 1>, N>& channels) {
    detail::part_of_value sources[N];
    for (std::size_t p = 0; p < N; ++p) sources[p] = part(channels[p]);
    return recorded<T, 200 + static_cast<int>(N)>(
        "planes", sources, detail::work([](const detail::band* in, const detail::band& out) {
          for (std::size_t p = 0; p < N; ++p)
            for (int y = 0; y < out.size.height; ++y)
              std::memcpy(out.data[p] + std::ptrdiff_t{out.step} * y, in[p].data[0] + std::ptrdiff_t{in[p].step} * y,
                          sizeof(T) * static_cast<std::size_t>(out.size.width));
          return status::ok;
        }));
  }

 private:
  template <class T, int C, std::size_t N, class F, class Join, class Finish = detail::as_it_is>
  auto measure(const char* name, const detail::part_of_value (&sources)[N], const F& f, const Join& join,
               const Finish& finish = {}) {
    const auto call = [f](const detail::band* in) {
      if constexpr (N == 1)
        return f(in[0].as<const T, C>());
      else
        return f(in[0].as<const T, C>(), in[1].as<const T, C>());
    };
    using Part = decltype(call(nullptr).value);
    return measured<Part, Part>(name, sources, call, join, finish);
  }
  template <int C, class Value, class Count, class Give>
  number<Value> counted(const char* name, const detail::part_of_value& source, const int* bins, const Count& count,
                        const Give& give) {
    return tallied<Value>(name, {source},
                          std::make_unique<detail::histogram_tally<C, Value, Count, Give>>(count, give, bins));
  }
  template <class T, int C>
  static void over(const detail::band& from, const detail::band& to) {
    copying<T, C>()(&from, to);
  }
};

}  // namespace hux

#endif
