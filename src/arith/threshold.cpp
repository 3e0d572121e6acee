// Threshold: elements beyond a threshold take the threshold or a given value.
#include <bit>

#include "core/check.h"
#include "core/stamp.h"
#include "huxi_arith.h"
#include "lanes/elementwise.h"

namespace hux {
namespace {

// One-channel floats are compared as bit patterns: as signed integers with a threshold of 0 and above, and with any
// other, a NaN among them, as unsigned integers in reverse. -0 is such a threshold of 0, so that everything else lies
// above it. The other layouts compare floats.
template <class L, class T>
using Compared = std::conditional_t<L::channels == 1 && std::is_same_v<T, Hux32f>, Hux32s, T>;

// The order around a threshold, in which the tests are written as they treat a NaN: it is not above, and not at least.
struct Upwards {
  template <class V>
  static auto isAbove(V e, V threshold) {
    return e > threshold;
  }
  template <class V>
  static auto isAtLeast(V e, V threshold) {
    return e >= threshold;
  }
  template <class V>
  static V lowerOf(V e, V threshold) {
    return lesser(threshold, e);
  }
  template <class V>
  static V upperOf(V e, V threshold) {
    if constexpr (std::is_integral_v<LaneType<V>>)
      return greater(e, threshold);
    else
      return e >= threshold ? e : threshold;
  }
};
struct InReverse {
  template <class V>
  static auto pattern(V v) {
    return bitsAs<Lanes<Hux32u, lanesIn<V>>>(v);
  }
  template <class V>
  static auto isAbove(V e, V threshold) {
    return pattern(e) < pattern(threshold);
  }
  template <class V>
  static auto isAtLeast(V e, V threshold) {
    return pattern(e) <= pattern(threshold);
  }
  template <class V>
  static V lowerOf(V e, V threshold) {
    return V(greater(pattern(e), pattern(threshold)));
  }
  template <class V>
  static V upperOf(V e, V threshold) {
    return V(lesser(pattern(e), pattern(threshold)));
  }
};
template <class E, class Run>
HuxStatus inOrderAround(E threshold, Run run) {
  if constexpr (std::is_same_v<E, Hux32s>)
    if (!(std::bit_cast<Hux32f>(threshold) >= 0.0f)) return run(InReverse{});
  return run(Upwards{});
}

template <class T, class Order>
struct ReplaceAbove {
  static constexpr int lanes = memoryLanes<T>;
  using V = Lanes<T, lanes>;
  V operator()(V e, V threshold, V value) const { return Order::isAbove(e, threshold) ? value : e; }
};
template <class T, class Order>
struct ReplaceBelow {
  static constexpr int lanes = memoryLanes<T>;
  using V = Lanes<T, lanes>;
  V operator()(V e, V threshold, V value) const { return Order::isAtLeast(e, threshold) ? e : value; }
};
template <class T, class Lower, class Upper>
struct ReplaceOutside {
  static constexpr int lanes = memoryLanes<T>;
  using V = Lanes<T, lanes>;
  V operator()(V e, V thresholdLT, V valueLT, V thresholdGT, V valueGT) const {
    const V kept = Lower::isAtLeast(e, thresholdLT) ? e : valueLT;
    return Upper::isAbove(e, thresholdGT) ? valueGT : kept;
  }
};

// The first two where the value is the threshold.
template <class T, class Order>
struct LimitAbove {
  static constexpr int lanes = memoryLanes<T>;
  using V = Lanes<T, lanes>;
  V operator()(V e, V threshold) const { return Order::lowerOf(e, threshold); }
};
template <class T, class Order>
struct LimitBelow {
  static constexpr int lanes = memoryLanes<T>;
  using V = Lanes<T, lanes>;
  V operator()(V e, V threshold) const { return Order::upperOf(e, threshold); }
};

// Applies a rule of elements and constants per channel, compared as E, to the region. Row pointers move in whole
// elements.
template <class L, class E, class T, class Rule, class... Pixels>
HuxStatus replace(const T* pSrc, int srcStep, T* pDst, int dstStep, HuxiSize roi, Rule rule, Pixels... pPixel) {
  constexpr int lanes = Rule::lanes;
  using Constants = Repeat<L, E, lanes>;
  forEachRow(roi, rowsAs<L, E>(pSrc, wholeElements<T>(srcStep)), rowsAs<L, E>(pDst, wholeElements<T>(dstStep)),
             [=, ... constants = Constants(pPixel)](auto* src, auto* dst, Index n) {
               applyRule<L>(dst, n, rule, FromRow<E, lanes>{src}, constants...);
             });
  return huxStsOk;
}

template <class L, class T>
HuxStatus replaceBeyond(const T* pSrc, int srcStep, T* pDst, int dstStep, HuxiSize roi, const T* pThreshold,
                        const T* pValue, HuxCmpOp cmpOp) {
  if (HuxStatus s = check(failUnless(cmpOp == huxCmpLess || cmpOp == huxCmpGreater, huxStsInternal),
                          pointers(pSrc, pDst), size(roi), steps(srcStep, dstStep), pointers(pThreshold, pValue)))
    return s;
  using E = Compared<L, T>;
  const auto* threshold = elementsAs<E>(pThreshold);
  const auto run = [&](auto rule, auto... constants) {
    return replace<L, E>(pSrc, srcStep, pDst, dstStep, roi, rule, constants...);
  };
  return inOrderAround<E>(*threshold, [&](auto order) {
    using Order = decltype(order);
    const auto* value = elementsAs<E>(pValue);
    const bool above = cmpOp == huxCmpGreater;
    if (pValue == pThreshold)
      return above ? run(LimitAbove<E, Order>{}, threshold) : run(LimitBelow<E, Order>{}, threshold);
    return above ? run(ReplaceAbove<E, Order>{}, threshold, value) : run(ReplaceBelow<E, Order>{}, threshold, value);
  });
}

template <class L, class T>
HuxStatus thresholdsInOrder(const T* pLower, const T* pUpper) {
  const auto *lower = elements(pLower), *upper = elements(pUpper);
  for (int c = 0; c < L::processed; ++c)
    if (!(upper[c] >= lower[c])) return huxStsBadThreshold;
  return huxStsOk;
}

// Elements above are looked for first, which shows where an element passes both tests, as NaN and -0 may.
template <class L, class T>
HuxStatus replaceOutside(const T* pSrc, int srcStep, T* pDst, int dstStep, HuxiSize roi, const T* pThresholdLT,
                         const T* pValueLT, const T* pThresholdGT, const T* pValueGT) {
  if (HuxStatus s = check(pointers(pSrc, pDst), size(roi), steps(srcStep, dstStep),
                          pointers(pThresholdLT, pValueLT, pThresholdGT, pValueGT),
                          [&] { return thresholdsInOrder<L>(pThresholdLT, pThresholdGT); }))
    return s;
  using E = Compared<L, T>;
  const auto *lower = elementsAs<E>(pThresholdLT), *upper = elementsAs<E>(pThresholdGT);
  return inOrderAround<E>(*lower, [&](auto below) {
    return inOrderAround<E>(*upper, [&](auto above) {
      return replace<L, E>(pSrc, srcStep, pDst, dstStep, roi, ReplaceOutside<E, decltype(below), decltype(above)>{},
                           lower, elementsAs<E>(pValueLT), upper, elementsAs<E>(pValueGT));
    });
  });
}

}  // namespace
}  // namespace hux

// One name with its in-place twin: what follows the region in the argument list, and the call that it stands for.
#define EXPORT_PAIR(name, t, l, body, parameters, arguments)                                                 \
  HuxStatus huxiThreshold##name##_##t##_##l##R(const Hux##t* pSrc, int srcStep, Hux##t* pDst, int dstStep,   \
                                               HuxiSize roiSize, HUX_LIST parameters) {                      \
    return hux::body<hux::l>(pSrc, srcStep, pDst, dstStep, roiSize, HUX_LIST arguments);                     \
  }                                                                                                          \
  HuxStatus huxiThreshold##name##_##t##_##l##IR(Hux##t* pSrcDst, int srcDstStep, HuxiSize roiSize,           \
                                                HUX_LIST parameters) {                                       \
    return hux::body<hux::l, Hux##t>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, HUX_LIST arguments); \
  }
#define CONSTANT(t, l) hux::Constant<hux::l, Hux##t>
#define PIXEL(constant) hux::pixelOf(constant)

#define EXPORT(t, l)                                                                                                  \
  EXPORT_PAIR(, t, l, replaceBeyond, (CONSTANT(t, l) threshold, HuxCmpOp cmpOp),                                      \
              (PIXEL(threshold), PIXEL(threshold), cmpOp))                                                            \
  EXPORT_PAIR(_GT, t, l, replaceBeyond, (CONSTANT(t, l) threshold),                                                   \
              (PIXEL(threshold), PIXEL(threshold), huxCmpGreater))                                                    \
  EXPORT_PAIR(_LT, t, l, replaceBeyond, (CONSTANT(t, l) threshold), (PIXEL(threshold), PIXEL(threshold), huxCmpLess)) \
  EXPORT_PAIR(_Val, t, l, replaceBeyond, (CONSTANT(t, l) threshold, CONSTANT(t, l) value, HuxCmpOp cmpOp),            \
              (PIXEL(threshold), PIXEL(value), cmpOp))                                                                \
  EXPORT_PAIR(                                                                                                        \
      _LTValGTVal, t, l, replaceOutside,                                                                              \
      (CONSTANT(t, l) thresholdLT, CONSTANT(t, l) valueLT, CONSTANT(t, l) thresholdGT, CONSTANT(t, l) valueGT),       \
      (PIXEL(thresholdLT), PIXEL(valueLT), PIXEL(thresholdGT), PIXEL(valueGT)))
HUX_STAMP(EXPORT, (8u, 16s, 32f), (C1, C3, AC4))
#undef EXPORT

#define EXPORT(t, l)                                                                         \
  EXPORT_PAIR(_GTVal, t, l, replaceBeyond, (CONSTANT(t, l) threshold, CONSTANT(t, l) value), \
              (PIXEL(threshold), PIXEL(value), huxCmpGreater))                               \
  EXPORT_PAIR(_LTVal, t, l, replaceBeyond, (CONSTANT(t, l) threshold, CONSTANT(t, l) value), \
              (PIXEL(threshold), PIXEL(value), huxCmpLess))
HUX_STAMP(EXPORT, (8u, 16s, 32f), (C1, C3, C4, AC4))
