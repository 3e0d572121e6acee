// LUTPalette: pixels as indices into a table.
#include <cstring>

#include "core/check.h"
#include "core/rows.h"
#include "huxi_stats.h"

namespace hux {
namespace {

// Entries of `Elements` elements each, written one behind the other.
template <int Elements, class S, class D>
HuxStatus palette(const S* pSrc, int srcStep, D* pDst, int dstStep, HuxiSize roi, const D* pTable, int nBitSize) {
  if (HuxStatus s = check(pointers(pSrc, pDst, pTable), steps(srcStep, dstStep), size(roi),
                          failUnless(nBitSize >= 1 && nBitSize <= int(sizeof(S)) * 8, huxStsBadBitSize)))
    return s;
  const Index mask = (1 << nBitSize) - 1;
  const auto* table = elements(pTable);
  forEachRow(roi, rows<C1>(pSrc, srcStep), rows<Layout<Elements, Elements>>(pDst, dstStep),
             [=](auto* src, auto* dst, Index n) {
               for (Index i = 0; i < n; ++i)
                 std::memcpy(dst + i * Elements, table + (src[i] & mask) * Elements, Elements * sizeof(D));
             });
  return huxStsOk;
}

}  // namespace
}  // namespace hux

#define EXPORT(s, d, D, entryElements)                                                                           \
  HuxStatus huxiLUTPalette_##s##d##_C1R(const Hux##s* pSrc, int srcStep, D* pDst, int dstStep, HuxiSize roiSize, \
                                        const D* pTable, int nBitSize) {                                         \
    return hux::palette<entryElements>(pSrc, srcStep, pDst, dstStep, roiSize, pTable, nBitSize);                 \
  }
EXPORT(8u, 24u, Hux8u, 3)
EXPORT(8u, 32u, Hux32u, 1)
EXPORT(16u, 8u, Hux8u, 1)
EXPORT(16u, 24u, Hux8u, 3)
EXPORT(16u, 32u, Hux32u, 1)
