// Abs, Sqr, Sqrt, Exp and Ln on images: the row workers of the vector functions, over the rows of a region.
#include "workers/elementary.h"
#include "core/scratch.h"
#include "core/stamp.h"
#include "huxi_arith.h"
#include "lanes/elementwise.h"

namespace hux {
namespace {

// Abs, Sqr and Sqrt move their row pointers in whole elements: a step is rounded down to those. Exp and Ln take any
// step.
template <class Worker, class T>
constexpr int stepOf(int step) {
  constexpr bool any = std::is_same_v<Worker, Exp<T>> || std::is_same_v<Worker, Ln<T>>;
  return any ? step : wholeElements<T>(step);
}

template <class L, class Worker, class T>
HuxStatus onImage(const T* pSrc, int srcStep, T* pDst, int dstStep, HuxiSize roi, int scaleFactor = 0) {
  if (HuxStatus s = check(pointers(pSrc, pDst), size(roi), steps(srcStep, dstStep))) return s;
  const Worker worker(scaleFactor);
  const auto src = rows<L>(pSrc, stepOf<Worker, T>(srcStep));
  const auto dst = rows<L>(pDst, stepOf<Worker, T>(dstStep));
  if constexpr (L::channels == L::processed) {
    return forEachRow(roi, src, dst, [&](auto* s, auto* d, Index n) { return worker(s, d, n * L::channels); });
  } else {
    // All four elements of a pixel are computed, into a row of their own, and three of them are copied: a warning may
    // come from alpha.
    const Index width = roi.width;
    const Scratch<Element<T>> row(width * L::channels);
    if (!row) return huxStsNoMem;
    return forEachRow(roi, src, dst, [&](auto* s, auto* d, Index n) {
      HuxStatus status = huxStsOk;
      forPieces(n, width, [&](Index x, Index count) {
        status = firstOf(status, worker(s + x * L::channels, row.get(), count * L::channels));
        mapRow<L>(row.get(), d + x * L::channels, count, Same<T>{});
      });
      return status;
    });
  }
}

}  // namespace
}  // namespace hux

#define EXPORT_IN_PLACE(function, t, l)                                                                            \
  HuxStatus huxi##function##_##t##_##l##IR(Hux##t* pSrcDst, int srcDstStep, HuxiSize roiSize) {                    \
    return hux::onImage<hux::l, hux::function<Hux##t>, Hux##t>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize); \
  }
#define EXPORT_PLAIN(function, t, l)                                                                  \
  HuxStatus huxi##function##_##t##_##l##R(const Hux##t* pSrc, int srcStep, Hux##t* pDst, int dstStep, \
                                          HuxiSize roiSize) {                                         \
    return hux::onImage<hux::l, hux::function<Hux##t>>(pSrc, srcStep, pDst, dstStep, roiSize);        \
  }                                                                                                   \
  EXPORT_IN_PLACE(function, t, l)
#define EXPORT_SFS(function, t, l)                                                                                  \
  HuxStatus huxi##function##_##t##_##l##RSfs(const Hux##t* pSrc, int srcStep, Hux##t* pDst, int dstStep,            \
                                             HuxiSize roiSize, int scaleFactor) {                                   \
    return hux::onImage<hux::l, hux::function<Hux##t>>(pSrc, srcStep, pDst, dstStep, roiSize, scaleFactor);         \
  }                                                                                                                 \
  HuxStatus huxi##function##_##t##_##l##IRSfs(Hux##t* pSrcDst, int srcDstStep, HuxiSize roiSize, int scaleFactor) { \
    return hux::onImage<hux::l, hux::function<Hux##t>, Hux##t>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize,   \
                                                               scaleFactor);                                        \
  }

#define ABS(t, l) EXPORT_PLAIN(Abs, t, l)
HUX_STAMP(ABS, (16s, 32f), (C1, C3, C4, AC4))

#define SQR(t, l) EXPORT_SFS(Sqr, t, l)
HUX_STAMP(SQR, (8u, 16u, 16s), (C1, C3, C4, AC4))
#define SQR_FLOAT(t, l) EXPORT_PLAIN(Sqr, t, l)
HUX_STAMP(SQR_FLOAT, (32f), (C1, C3, C4, AC4))

#define SQRT(t, l) EXPORT_SFS(Sqrt, t, l)
HUX_STAMP(SQRT, (8u, 16u, 16s), (C1, C3, AC4))
#define SQRT_FLOAT(t, l) EXPORT_PLAIN(Sqrt, t, l)
HUX_STAMP(SQRT_FLOAT, (32f), (C1, C3, AC4))
EXPORT_IN_PLACE(Sqrt, 32f, C4)

#define EXP_LN(t, l) EXPORT_SFS(Exp, t, l) EXPORT_SFS(Ln, t, l)
HUX_STAMP(EXP_LN, (8u, 16s), (C1, C3))
#define EXP_LN_FLOAT(t, l) EXPORT_PLAIN(Exp, t, l) EXPORT_PLAIN(Ln, t, l)
HUX_STAMP(EXP_LN_FLOAT, (32f), (C1, C3))
