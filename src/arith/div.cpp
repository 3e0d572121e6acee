// Div: the second image divided by the first.
#include "arith/scaled_images.h"
#include "core/scratch.h"
#include "huxi_arith.h"
#include "workers/divide.h"
#include "workers/fill.h"

namespace hux {
namespace {

template <class L, class T>
HuxStatus div(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst, int dstStep, HuxiSize roi,
              int scaleFactor = 0) {
  constexpr bool fixedPoint = std::is_same_v<T, Hux16u>;
  if constexpr (fixedPoint) {
    if (HuxStatus s = check(delegated<L>(width(roi)), pointers(pSrc1, pSrc2, pDst), size(roi))) return s;
  } else {
    if (HuxStatus s = check(pointers(pSrc1, pSrc2, pDst), size(roi), steps(src1Step, src2Step, dstStep))) return s;
  }
  const auto denominators = rows<L>(pSrc1, src1Step), numerators = rows<L>(pSrc2, src2Step);
  const auto quotients = rows<L>(pDst, dstStep);
  return withQuotient<T>(scaleFactor, [&](auto rule) -> HuxStatus {
    if constexpr (L::channels == L::processed || fixedPoint) {
      return forEachRow(roi, denominators, numerators, quotients,
                        [&](auto* d, auto* n, auto* q, Index width) { return ownDiv<L>(d, n, q, width, rule); });
    } else {
      // The denominators go through a row whose alpha is 1.
      const Scratch<T> row(4 * Index(roi.width));
      if (!row) return huxStsNoMem;
      std::fill_n(row.get(), 4 * Index(roi.width), T(1));
      return forEachRow(roi, denominators, rows<L>(row.get(), 0), numerators, quotients,
                        [&](auto* d, auto* opaque, auto* n, auto* q, Index width) {
                          mapRow<L>(d, opaque, width, Same<T>{});
                          return ownDiv<L, T, C4>(opaque, n, q, width, rule);
                        });
    }
  });
}

}  // namespace
}  // namespace hux

#define EXPORT(t, l) HUX_EXPORT_ARITH_IMAGES(Div, t, l, Sfs, hux::div<hux::l, Hux##t>)
HUX_STAMP(EXPORT, (8u, 16s, 16u), (C1, C3, C4, AC4))
#undef EXPORT

#define EXPORT(t, l) HUX_EXPORT_ARITH_IMAGES(Div, t, l, , hux::div<hux::l, Hux##t>)
HUX_STAMP(EXPORT, (32f), (C1, C3, C4, AC4))
