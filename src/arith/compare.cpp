// Compare: a map of the pixels for which a test holds, of two images or of an image and a constant.
#include <bit>
#include <utility>

#include "core/check.h"
#include "core/stamp.h"
#include "huxi_arith.h"
#include "lanes/elementwise.h"

namespace hux {
namespace {

// Tests on lanes, written as they treat a NaN: most hold where the opposite does not.
constexpr auto kNotAtLeast = [](auto a, auto b) { return ~(a >= b); };
constexpr auto kNotAbove = [](auto a, auto b) { return ~(a > b); };
constexpr auto kNeitherSide = [](auto a, auto b) {
  if constexpr (std::is_integral_v<LaneType<decltype(a)>>)
    return a == b;
  else
    return ~((a < b) | (a > b));
};
constexpr auto kAtLeast = [](auto a, auto b) { return a >= b; };
constexpr auto kAbove = [](auto a, auto b) { return a > b; };
// The difference without its sign is not above eps.
struct Within {
  Hux32f eps;
  template <class V>
  auto operator()(V a, V b) const {
    using I = Lanes<Hux32s, lanesIn<V>>;
    return ~(bitsAs<V>(bitsAs<I>(a - b) & 0x7fffffff) > eps);
  }
};

// The result of a test, 0 and -1, as signed bytes or where it narrows with others of its kind. Half the width at a time
// is what every machine can do.
template <class V>
auto bytesOf(V holds) {
  if constexpr (sizeof(LaneType<V>) == 1)
    return Lanes<Hux8s, lanesIn<V>>(holds);
  else if constexpr (kJoined<Hux8s, V> > 1)
    return holds;
  else if constexpr (detail::kSaturates<Hux8s, V>)
    return saturate<Hux8s>(holds);
  else if constexpr (sizeof(LaneType<V>) == 4)
    return bytesOf(convert<Hux16s>(holds));
  else
    return convert<Hux8s>(holds);
}

// The rule that writes a test's result as bytes of 255 and 0.
template <class T, class Test>
struct Marks {
  static constexpr int lanes = sizeof(T) < 4 ? memoryLanes<T> : laneCount<T>;  // floats have far to narrow
  using V = Lanes<T, lanes>;
  Test test;
  auto operator()(V a, V b) const { return bytesOf(test(a, b)); }
};

// The rule that joins the marks of a pixel's four channels, taken as one word; `ignored` are the bits of those that do
// not count.
struct AllFour {
  static constexpr int lanes = laneCount<Hux32u>;
  Hux32u ignored;
  auto operator()(Lanes<Hux32u, lanes> marks) const { return bytesOf((marks | ignored) == ~Hux32u(0)); }
};

// The marks of n pixels from those of their elements.
template <class L>
void joinMarks(const Hux8u* marks, Element<Hux8u>* dst, Index n) {
  if constexpr (L::channels == 4) {
    constexpr Hux8u ignored[4] = {0, 0, 0, L::processed == 4 ? 0 : 255};
    mapRow<C1>(elementsAs<Hux32u>(marks), elementsAs<Hux8s>(dst), n, AllFour{std::bit_cast<Hux32u>(ignored)});
  } else {
    for (Index i = 0; i < n; ++i) dst[i] = marks[3 * i] & marks[3 * i + 1] & marks[3 * i + 2];
  }
}

// One row of n pixels: mark(to, first, count) writes the marks of elements. Those of pixels with more than one channel
// go through a short buffer, a piece of the row at a time.
template <class L, class Mark>
void markRow(Element<Hux8u>* dst, Index n, Mark mark) {
  if constexpr (L::channels == 1) {
    mark(dst, Index(0), n);
  } else {
    constexpr Index piece = 256;
    alignas(64) Hux8u marks[piece * L::channels];
    forPieces(n, piece, [&](Index i, Index count) {
      mark(elements(marks), i * L::channels, count * L::channels);
      joinMarks<L>(marks, dst + i, count);
    });
  }
}

template <class L, class T, class Test>
void markPairs(Test test, const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, Hux8u* pDst, int dstStep,
               HuxiSize roi) {
  forEachRow(roi, rows<L>(pSrc1, src1Step), rows<L>(pSrc2, src2Step), rows<C1>(pDst, dstStep),
             [=](auto* a, auto* b, auto* dst, Index n) {
               markRow<L>(dst, n, [=](auto* to, Index first, Index count) {
                 zipRow<C1>(a + first, b + first, elementsAs<Hux8s>(to), count, Marks<T, Test>{test});
               });
             });
}

template <class L, class T, class Test>
void markAgainst(Test test, const T* pSrc, int srcStep, const T* pPixel, Hux8u* pDst, int dstStep, HuxiSize roi) {
  using Rule = Marks<T, Test>;
  const Repeat<L, T, Rule::lanes> constants(elements(pPixel));
  forEachRow(roi, rows<L>(pSrc, srcStep), rows<C1>(pDst, dstStep), [=](auto* src, auto* dst, Index n) {
    markRow<L>(dst, n, [=](auto* to, Index first, Index count) {
      applyRule<C1>(elementsAs<Hux8s>(to), count, Rule{test}, FromRow<T, Rule::lanes>{src + first}, constants);
    });
  });
}

// Both forms succeed and write nothing where cmpOp is none of the five.
template <class L, class T>
HuxStatus compare(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, Hux8u* pDst, int dstStep, HuxiSize roi,
                  HuxCmpOp cmpOp) {
  if (HuxStatus s = check(pointers(pSrc1, pSrc2, pDst), steps(src1Step, src2Step, dstStep), size(roi))) return s;
  if (cmpOp == huxCmpGreaterEq || cmpOp == huxCmpGreater) {  // a >= b is b <= a
    std::swap(pSrc1, pSrc2), std::swap(src1Step, src2Step);
    cmpOp = cmpOp == huxCmpGreater ? huxCmpLess : huxCmpLessEq;
  }
  const auto run = [&](auto test) { markPairs<L>(test, pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roi); };
  if (cmpOp == huxCmpLess) run(kNotAtLeast);
  if (cmpOp == huxCmpLessEq) run(kNotAbove);
  if (cmpOp == huxCmpEq) run(kNeitherSide);
  return huxStsOk;
}

template <class L, class T>
HuxStatus compareC(const T* pSrc, int srcStep, const T* pPixel, Hux8u* pDst, int dstStep, HuxiSize roi,
                   HuxCmpOp cmpOp) {
  if (HuxStatus s = check(pointers(pSrc, pPixel, pDst), steps(srcStep, dstStep), size(roi))) return s;
  const auto run = [&](auto test) { markAgainst<L>(test, pSrc, srcStep, pPixel, pDst, dstStep, roi); };
  if (cmpOp == huxCmpLess) run(kNotAtLeast);
  if (cmpOp == huxCmpLessEq) run(kNotAbove);
  if (cmpOp == huxCmpEq) run(kNeitherSide);
  if (cmpOp == huxCmpGreaterEq) run(kAtLeast);
  if (cmpOp == huxCmpGreater) run(kAbove);
  return huxStsOk;
}

HuxStatus usable(Hux32f eps) { return failUnless(eps >= 0.0f, huxStsBadEps); }

template <class L>
HuxStatus compareEps(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step, Hux8u* pDst, int dstStep,
                     HuxiSize roi, Hux32f eps) {
  if (HuxStatus s = check(pointers(pSrc1, pSrc2, pDst), steps(src1Step, src2Step, dstStep), size(roi), usable(eps)))
    return s;
  markPairs<L>(Within{eps}, pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roi);
  return huxStsOk;
}

template <class L>
HuxStatus compareEpsC(const Hux32f* pSrc, int srcStep, const Hux32f* pPixel, Hux8u* pDst, int dstStep, HuxiSize roi,
                      Hux32f eps) {
  if (HuxStatus s = check(pointers(pSrc, pPixel, pDst), steps(srcStep, dstStep), size(roi), usable(eps))) return s;
  markAgainst<L>(Within{eps}, pSrc, srcStep, pPixel, pDst, dstStep, roi);
  return huxStsOk;
}

}  // namespace
}  // namespace hux

#define EXPORT_PAIR(name, body, t, l, Parameter, parameter)                                                     \
  HuxStatus huxi##name##_##t##_##l##R(const Hux##t* pSrc1, int src1Step, const Hux##t* pSrc2, int src2Step,     \
                                      Hux8u* pDst, int dstStep, HuxiSize roiSize, Parameter parameter) {        \
    return hux::body<hux::l>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, parameter);              \
  }                                                                                                             \
  HuxStatus huxi##name##C_##t##_##l##R(const Hux##t* pSrc, int srcStep, hux::Constant<hux::l, Hux##t> constant, \
                                       Hux8u* pDst, int dstStep, HuxiSize roiSize, Parameter parameter) {       \
    return hux::body##C<hux::l>(pSrc, srcStep, hux::pixelOf(constant), pDst, dstStep, roiSize, parameter);      \
  }
#define EXPORT(t, l) EXPORT_PAIR(Compare, compare, t, l, HuxCmpOp, cmpOp)
HUX_STAMP(EXPORT, (8u, 16s, 32f), (C1, C3, C4, AC4))
#undef EXPORT
#define EXPORT(t, l) EXPORT_PAIR(CompareEqualEps, compareEps, t, l, Hux32f, eps)
HUX_STAMP(EXPORT, (32f), (C1, C3, C4, AC4))
