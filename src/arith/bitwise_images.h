// Image functions that test their steps ahead of their size: two images, or an image and a constant, through a rule.
#pragma once

#include "arith/exports.h"
#include "core/check.h"
#include "lanes/elementwise.h"

namespace hux {

template <class L, class Rule, class T>
HuxStatus zipImages(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst, int dstStep, HuxiSize roi) {
  if (HuxStatus s =
          check(delegated<L>(size(roi)), pointers(pSrc1, pSrc2, pDst), steps(src1Step, src2Step, dstStep), size(roi)))
    return s;
  forEachRow(roi, rows<L>(pSrc1, src1Step), rows<L>(pSrc2, src2Step), rows<L>(pDst, dstStep),
             [](auto* a, auto* b, auto* d, Index n) { zipRow<L>(a, b, d, n, Rule{}); });
  return huxStsOk;
}

// pPixel addresses one constant per processed channel.
template <class L, class Rule, class T>
HuxStatus zipConstant(const T* pSrc, int srcStep, const T* pPixel, T* pDst, int dstStep, HuxiSize roi) {
  if (HuxStatus s = check(pointers(pSrc, pPixel, pDst), steps(srcStep, dstStep), size(roi))) return s;
  const Repeat<L, T, Rule::lanes> constants(elements(pPixel));
  forEachRow(roi, rows<L>(pSrc, srcStep), rows<L>(pDst, dstStep),
             [&](auto* s, auto* d, Index n) { applyRule<L>(d, n, Rule{}, constants, FromRow<T, Rule::lanes>{s}); });
  return huxStsOk;
}

}  // namespace hux
