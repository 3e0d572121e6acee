// One image to another of the same layout, element by element.
#pragma once

#include "core/check.h"
#include "lanes/elementwise.h"

namespace hux {

template <class L, class S, class D, class Rule>
HuxStatus mapImage(const S* pSrc, int srcStep, D* pDst, int dstStep, HuxiSize roi, Rule rule) {
  if (HuxStatus s = check(pointers(pSrc, pDst), size(roi), steps(srcStep, dstStep))) return s;
  forEachRow(roi, rows<L>(pSrc, srcStep), rows<L>(pDst, dstStep),
             [&](auto* src, auto* dst, Index n) { mapRow<L>(src, dst, n, rule); });
  return huxStsOk;
}

}  // namespace hux
