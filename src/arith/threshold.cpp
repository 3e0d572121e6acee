// Threshold: elements beyond a threshold take the threshold or a given value.
#include <bit>

#include "core/check.h"
#include "core/stamp.h"
#include "huxi_arith.h"
#include "lanes/elementwise.h"

namespace hux {
namespace {

// One-channel floats are compared as bit patterns: as signed integers against a threshold of 0 and above, and against
// any other, a NaN among them, as unsigned integers in reverse. -0 is such a threshold of 0, so that everything else
// lies above it. The other layouts compare floats.
template <class L, class T>
using Compared = std::conditional_t<L::channels == 1 && std::is_same_v<T, Hux32f>, Hux32s, T>;

// The order in which elements lie around a threshold: that of their keys.
template <class T>
struct Order {
  explicit Order(T) {}
  template <class V>
  V key(V v) const {
    return v;
  }
};
template <>
struct Order<Hux32s> {
  Hux32s flip;  // turns the signed order of patterns into the unsigned one in reverse
  explicit Order(Hux32s threshold) : flip(std::bit_cast<Hux32f>(threshold) >= 0.0f ? 0 : 0x7fffffff) {}
  template <class V>
  V key(V v) const {
    return v ^ flip;
  }
};

// The tests are written as they treat a NaN: it is not above, and not at least.
template <class T>
struct ReplaceAbove {
  static constexpr int lanes = memoryLanes<T>;
  using V = Lanes<T, lanes>;
  Order<T> order;
  V operator()(V e, V threshold, V value) const { return order.key(e) > order.key(threshold) ? value : e; }
};
template <class T>
struct ReplaceBelow {
  static constexpr int lanes = memoryLanes<T>;
  using V = Lanes<T, lanes>;
  Order<T> order;
  V operator()(V e, V threshold, V value) const { return order.key(e) >= order.key(threshold) ? e : value; }
};
template <class T>
struct ReplaceOutside {
  static constexpr int lanes = memoryLanes<T>;
  using V = Lanes<T, lanes>;
  Order<T> lower, upper;
  V operator()(V e, V thresholdLT, V valueLT, V thresholdGT, V valueGT) const {
    const V kept = lower.key(e) >= lower.key(thresholdLT) ? e : valueLT;
    return upper.key(e) > upper.key(thresholdGT) ? valueGT : kept;
  }
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
  const auto run = [&](auto rule) {
    return replace<L, E>(pSrc, srcStep, pDst, dstStep, roi, rule, threshold, elementsAs<E>(pValue));
  };
  const Order<E> order(*threshold);
  return cmpOp == huxCmpGreater ? run(ReplaceAbove<E>{order}) : run(ReplaceBelow<E>{order});
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
  return replace<L, E>(pSrc, srcStep, pDst, dstStep, roi, ReplaceOutside<E>{Order<E>(*lower), Order<E>(*upper)}, lower,
                       elementsAs<E>(pValueLT), upper, elementsAs<E>(pValueGT));
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
