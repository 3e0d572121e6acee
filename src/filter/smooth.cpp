// Gauss and Lowpass: weighted and plain means of the window, to the nearest integer.
#include "core/stamp.h"
#include "filter/running_sum.h"
#include "huxi_filter.h"
#include "lanes/round.h"

namespace hux {
namespace {

// Ties go to even.
struct Gauss3 {
  static constexpr int height = 3;
  static auto row(const auto& p) { return Smooth3::of(p); }
  template <class D>
  static auto column(const auto& r, const auto&) {
    const auto sum = Smooth3::of(r);
    if constexpr (std::is_same_v<D, Hux32f>)
      return sum * 0.0625f;
    else
      return saturate<D>(roundShift(sum, 4));  // in range
  }
};

// sum / divisor to the nearest integer, ties up, as the high word of a product with the truncated reciprocal. The bias
// makes the sum positive.
template <class V>
auto quotient(V sum, Hux32u divisor, Hux32u reciprocal) {
  using U = Lanes<Hux32u, lanesIn<V>>;
  const U biased = U(sum) + (32768 * divisor + divisor / 2 + 1);
  return saturate<Hux16s>(V(mulHigh(biased, splat<U>(reciprocal))) - 32768);  // in range
}

// 2  7  12  7 2   over 571
// 7 31  52 31 7
// 12 52 127 52 12
// 7 31  52 31 7
// 2  7  12  7 2
//
// Each source row gives the sums for the window in which it is outermost, next to the middle, and in the middle.
struct Gauss5 {
  using KeptOfBytes = Hux16u;
  static constexpr int height = 5;
  static auto row(const auto& p) {
    using V = std::remove_cvref_t<decltype(p[0])>;
    if constexpr (isFloat<V>) {
      // Each product for itself, from left to right.
      const auto sum = [&](Hux32f outer, Hux32f inner, Hux32f middle) {
        return p[-2] * outer + p[-1] * inner + p[0] * middle + p[1] * inner + p[2] * outer;
      };
      constexpr auto part = [](int weight) { return Hux32f(weight) / 571.0f; };
      return std::array{sum(part(2), part(7), part(12)), sum(part(7), part(31), part(52)),
                        sum(part(12), part(52), part(127))};
    } else {
      const V outer = p[-2] + p[2], inner = p[-1] + p[1], middle = p[0];
      return std::array{V(times<2>(outer) + times<7>(inner) + times<12>(middle)),
                        V(times<7>(outer) + times<31>(inner) + times<52>(middle)),
                        V(times<12>(outer) + times<52>(inner) + times<127>(middle))};
    }
  }
  template <class D>
  requires std::is_same_v<D, Hux8u>
  static auto column(const auto& r, const auto&) { return divided(r[-2][0] + r[2][0], r[-1][1] + r[1][1], r[0][2]); }
  template <class D, class V>
  requires(!std::is_same_v<D, Hux8u>) static auto ofSum(V sum) {
    if constexpr (isFloat<V>)
      return sum;
    else
      return quotient(sum, 571, 7521834);
  }

 private:
  // (a + b + c + 285) / 571 where the words hold a, b and c, but not their sum. From below, the quotient is found by a
  // quarter of the dividend, and is at most 1 too low; the remainder fits again, and tells.
  template <class V>
  static auto divided(V a, V b, V c) {
    a = a + Hux16u(285);
    const V quarter = (meanUp(b, c) >> Hux16u(1)) + (a >> Hux16u(2));
    const V low = mulHigh(quarter, splat<V>(Hux16u(4 * 65536 / 571)));
    const V rest = a + b + c - low * Hux16u(571);
    return convert<Hux8u>(V(low - V(rest > Hux16u(570))));
  }
};

// The sum of 9 pixels, over 9.
struct Lowpass3 {
  static constexpr int height = 3;
  static auto row(const auto& p) { return Sum3::of(p); }
  template <class D>
  static auto column(const auto& r, const auto&) {
    const auto sum = Sum3::of(r);
    using V = std::remove_cvref_t<decltype(sum)>;
    if constexpr (isFloat<V>)
      return sum * 0.1111111f;  // 0x3de38e37, a little below one ninth: required
    else if constexpr (std::is_same_v<D, Hux8u>)
      return saturate<D>(mulHigh(V(sum + Hux16s(4)), splat<V>(7282)));  // (sum + 4) / 9
    else
      return quotient(sum, 9, 477218588);
  }
};

// The sum of 25 pixels, over 25. That of floats runs.
struct Lowpass5 {
  static constexpr int height = 5;
  static auto row(const auto& p) { return Sum5::of(p); }
  template <class D>
  static auto column(const auto& r, const auto&) {
    const auto sum = Sum5::of(r);
    using V = std::remove_cvref_t<decltype(sum)>;
    if constexpr (std::is_same_v<D, Hux8u>)
      return saturate<D>(mulHigh(V(sum + Hux16s(12)), splat<V>(10486)) >> Hux16s(2));  // (sum + 12) / 25
    else
      return quotient(sum, 25, 171798691);
  }
};

struct RunningLowpass5 {
  static constexpr int lanes = laneCount<Hux32f>;
  using V = Lanes<Hux32f, lanes>;
  V operator()(V sum, V) const { return sum * 0.04f; }
};

}  // namespace
}  // namespace hux

#define EXPORT_FILTER(name, t, l, body, filter3x3, filter5x5)                                              \
  HuxStatus huxiFilter##name##_##t##_##l##R(const Hux##t* pSrc, int srcStep, Hux##t* pDst, int dstStep,    \
                                            HuxiSize roiSize, HuxiMaskSize mask) {                         \
    return hux::body<hux::l, hux::filter3x3, hux::filter5x5>(pSrc, srcStep, pDst, dstStep, roiSize, mask); \
  }

#define EXPORT(t, l) EXPORT_FILTER(Gauss, t, l, fixedFilter, Gauss3, Gauss5)
HUX_STAMP(EXPORT, (8u, 16s, 32f), (C1, C3, C4, AC4))
#undef EXPORT
#define EXPORT(t, l) EXPORT_FILTER(Lowpass, t, l, fixedFilter, Lowpass3, Lowpass5)
HUX_STAMP(EXPORT, (8u, 16s), (C1, C3, AC4))
#undef EXPORT
#define EXPORT(t, l) EXPORT_FILTER(Lowpass, t, l, runningFilter, Lowpass3, RunningLowpass5)
HUX_STAMP(EXPORT, (32f), (C1, C3, AC4))
