// The image functions of Add, Sub and Mul on real pixels, by operation: checks, shortcuts, rows.
#pragma once

#include "arith/exports.h"
#include "core/check.h"
#include "workers/delegate.h"
#include "workers/scaled.h"

namespace hux {

template <class T>
inline constexpr bool kInteger = std::is_integral_v<T>;

template <class L, class Op, class T>
HuxStatus combine(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst, int dstStep, HuxiSize roi,
                  int scaleFactor = 0) {
  const auto zip = [&](auto rule) {
    forEachRow(roi, rows<L>(pSrc1, src1Step), rows<L>(pSrc2, src2Step), rows<L>(pDst, dstStep),
               [&](auto* a, auto* b, auto* d, Index n) { zipRow<L>(a, b, d, n, rule); });
  };
  if constexpr (!kInteger<T>) {
    if (HuxStatus s = check(delegated<L>(width(roi)), pointers(pSrc1, pSrc2, pDst), size(roi))) return s;
    zip(Float<Op, T>{});
  } else {
    const bool allZero = scaleFactor > Op::template allZeroAbove<T>;
    const auto zeros = [=] { return setAll<L>(T(0), pDst, dstStep, roi); };
    // 16u takes the all-zero shortcut ahead of its checks: Set judges the destination, the size and the step.
    if (const auto s = check(answer(std::is_same_v<T, Hux16u> && allZero,
                                    [=] { return HuxStatus(check(pointers(pSrc1, pSrc2), zeros)); }),
                             delegated<L>(width(roi)), pointers(pSrc1, pSrc2, pDst), size(roi), answer(allZero, zeros)))
      return s;
    withRule<Op, T>(scaleFactor, zip);
  }
  return huxStsOk;
}

// What is special about constant forms of an operation, by element type: a constant that makes it the identity at
// scaleFactor 0, a constant that makes every result 0, and a non-zero constant that saturates every result far enough
// below 0.
template <class Op, class T>
struct ConstantCases {
  static constexpr bool zeroIsIdentity = std::is_same_v<T, Hux16u> && !std::is_same_v<Op, MulOp>;
  static constexpr bool oneIsIdentity = std::is_same_v<T, Hux16u> && std::is_same_v<Op, MulOp>;
  static constexpr bool zeroIsZero = kInteger<T> && std::is_same_v<Op, MulOp>;
  static constexpr bool saturates = std::is_same_v<Op, AddOp> && std::is_unsigned_v<T>;
};

// pPixel addresses one constant per processed channel. 16u forms take their shortcuts ahead of all other checks, and
// for that reason test pPixel alone first; of their multi-channel forms C3 stands for C1 over a wider row where its
// constants are equal.
template <class L, class Op, class T>
HuxStatus combineC(const T* pSrc, int srcStep, const T* pPixel, T* pDst, int dstStep, HuxiSize roi,
                   int scaleFactor = 0) {
  using Case = ConstantCases<Op, T>;
  constexpr bool early = std::is_same_v<T, Hux16u>, single = L::channels == 1;
  const auto run = [&](auto rule) {
    using Rule = decltype(rule);
    const Repeat<L, T, Rule::lanes> constants(elements(pPixel));
    forEachRow(roi, rows<L>(pSrc, srcStep), rows<L>(pDst, dstStep),
               [&](auto* s, auto* d, Index n) { applyRule<L>(d, n, rule, constants, FromRow<T, Rule::lanes>{s}); });
  };
  if constexpr (!kInteger<T>) {
    if (HuxStatus s = check(pointers(pSrc, pPixel, pDst), size(roi))) return s;
    run(Float<Op, T>{});
    return huxStsOk;
  } else {
    const auto* value = elements(pPixel);
    const auto equal = [=] {
      return L::channels == 3 && value[1] == value[0] && value[2] == value[0] && roi.width >= 1 &&
             roi.width <= std::numeric_limits<int>::max() / 3;
    };
    const auto asOneChannel = [=] {
      const T one = *value;
      return combineC<C1, Op>(pSrc, srcStep, &one, pDst, dstStep, {roi.width * 3, roi.height}, scaleFactor);
    };
    const auto identity = [=] {
      return single && scaleFactor == 0 &&
             ((Case::zeroIsIdentity && *value == 0) || (Case::oneIsIdentity && *value == 1));
    };
    const auto copy = [=] { return copyAll<L>(pSrc, srcStep, pDst, dstStep, roi); };
    const auto zero = [=] {
      return scaleFactor > Op::template allZeroAbove<T> || (single && Case::zeroIsZero && *value == 0);
    };
    const auto full = [=] {
      return single && Case::saturates && *value != 0 && scaleFactor < (sizeof(T) == 1 ? -7 : -15);
    };
    const auto fill = [=](T with) { return [=] { return setAll<L>(with, pDst, dstStep, roi); }; };
    const auto checks = [=](auto... ahead) {
      return check(ahead..., pointers(pSrc, pPixel, pDst), size(roi), answer(zero, fill(T(0))),
                   answer(full, fill(std::numeric_limits<T>::max())));
    };
    if constexpr (early) {
      if (const auto s = checks(pointers(pPixel), answer(equal, asOneChannel), answer(identity, copy))) return s;
    } else {
      if (const auto s = checks()) return s;
    }
    withRule<Op, T>(scaleFactor, run);
    return huxStsOk;
  }
}

}  // namespace hux

// The names of one operation and its constant form.
#define HUX_EXPORT_ARITH(name, Op, t, l, sfs)                                \
  HUX_EXPORT_ARITH_IMAGES(name, t, l, sfs, hux::combine<hux::l, Op, Hux##t>) \
  HUX_EXPORT_ARITH_CONSTANT(name##C, t, l, sfs, hux::combineC<hux::l, Op, Hux##t>)
