// Magnitude, Phase and PolarToCart of images, and the full magnitude and phase of packed spectra: the functions on
// vectors, row by row. Rows are not joined, for the vector functions treat the end of a row in a way of its own.
#include "core/scratch.h"
#include "core/stamp.h"
#include "huxi_transform.h"
#include "huxs.h"
#include "transform/packed.h"

namespace hux {
namespace {

// A vector's length is an int; pieces of an even length do not change what it does at its end.
constexpr Index kPiece = Index(1) << 20;

// call(first, count) for the pieces of each row; the first status that is not success is kept.
template <class L, class Call>
HuxStatus alongRow(Index width, Call call) {
  HuxStatus status = huxStsOk;
  forPieces(width * L::channels, kPiece,
            [&](Index first, Index count) { status = firstOf(status, call(first, int(count))); });
  return status;
}

template <class L, class C, class D, class Measure>
HuxStatus measure(const C* pSrc, int srcStep, D* pDst, int dstStep, HuxiSize roi, Measure call) {
  if (HuxStatus s = check(pointers(pSrc, pDst), size(roi), steps(srcStep, dstStep))) return s;
  const auto src = rows<L>(pSrc, srcStep);
  const auto dst = rows<L>(pDst, dstStep);
  HuxStatus status = huxStsOk;
  for (Index y = 0; y < roi.height; ++y)
    status = firstOf(status, alongRow<L>(roi.width, [&](Index i, int n) {
                       return call(argument<C>(src.row(y) + i), argument<D>(dst.row(y) + i), n);
                     }));
  return status;
}

template <class L, class C, class D, class Measure>
HuxStatus measurePacked(const Part<C>* pSrc, int srcStep, D* pDst, int dstStep, HuxiSize roi, Measure call) {
  if (HuxStatus s = check(pointers(pSrc, pDst), size(roi), steps(srcStep, dstStep))) return s;
  const Scratch<C> line(Index(roi.width) * L::channels);
  if (!line) return huxStsNullPtr;  // and not huxStsNoMem: this family's report
  const PackedSpectrum<L, C> spectrum(rows<L>(pSrc, srcStep), roi);
  const auto dst = rows<L>(pDst, dstStep);
  HuxStatus status = huxStsOk;
  for (Index y = 0; y < roi.height; ++y) {
    spectrum.row(y, elements(line.get()));
    status = firstOf(status, alongRow<L>(roi.width, [&](Index i, int n) {
                       return call(line.get() + i, argument<D>(dst.row(y) + i), n);
                     }));
  }
  return status;
}

template <class L, class T, class C, class Convert>
HuxStatus polarToCart(const T* pMagnitude, const T* pPhase, int srcStep, HuxiSize roi, C* pDst, int dstStep,
                      Convert call) {
  if (HuxStatus s = check(pointers(pMagnitude, pPhase, pDst), size(roi), steps(srcStep, dstStep))) return s;
  const auto magnitudes = rows<L>(pMagnitude, srcStep), phases = rows<L>(pPhase, srcStep);
  const auto dst = rows<L>(pDst, dstStep);
  HuxStatus status = huxStsOk;
  for (Index y = 0; y < roi.height; ++y)
    status = firstOf(status, alongRow<L>(roi.width, [&](Index i, int n) {
                       return call(argument<T>(magnitudes.row(y) + i), argument<T>(phases.row(y) + i),
                                   argument<C>(dst.row(y) + i), n);
                     }));
  return status;
}

}  // namespace
}  // namespace hux

#define SCALED(call) [=](auto* src, auto* dst, int n) { return call(src, dst, n, scaleFactor); }

#define EXPORT_SCALED(name, t, l)                                                                             \
  HuxStatus huxi##name##_##t##c##t##_##l##RSfs(const Hux##t##c* pSrc, int srcStep, Hux##t* pDst, int dstStep, \
                                               HuxiSize roiSize, int scaleFactor) {                           \
    return hux::measure<hux::l>(pSrc, srcStep, pDst, dstStep, roiSize, SCALED(huxs##name##_##t##c_Sfs));      \
  }                                                                                                           \
  HuxStatus huxi##name##Pack_##t##_##l##RSfs(const Hux##t* pSrc, int srcStep, Hux##t* pDst, int dstStep,      \
                                             HuxiSize dstRoiSize, int scaleFactor) {                          \
    return hux::measurePacked<hux::l, Hux##t##c>(pSrc, srcStep, pDst, dstStep, dstRoiSize,                    \
                                                 SCALED(huxs##name##_##t##c_Sfs));                            \
  }
#define EXPORT(t, l) EXPORT_SCALED(Magnitude, t, l) EXPORT_SCALED(Phase, t, l)
HUX_STAMP(EXPORT, (16s, 32s), (C1, C3))
#undef EXPORT

#define EXPORT_FLOAT(name, l)                                                                                \
  HuxStatus huxi##name##_32fc32f_##l##R(const Hux32fc* pSrc, int srcStep, Hux32f* pDst, int dstStep,         \
                                        HuxiSize roiSize) {                                                  \
    return hux::measure<hux::l>(pSrc, srcStep, pDst, dstStep, roiSize, huxs##name##_32fc);                   \
  }                                                                                                          \
  HuxStatus huxi##name##Pack_32f_##l##R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,          \
                                        HuxiSize dstRoiSize) {                                               \
    return hux::measurePacked<hux::l, Hux32fc>(pSrc, srcStep, pDst, dstStep, dstRoiSize, huxs##name##_32fc); \
  }
#define EXPORT(_, l)                                                                                             \
  EXPORT_FLOAT(Magnitude, l)                                                                                     \
  EXPORT_FLOAT(Phase, l)                                                                                         \
  HuxStatus huxiPolarToCart_32fc_##l##R(const Hux32f* pSrcMagn, const Hux32f* pSrcPhase, int srcStep,            \
                                        HuxiSize roiSize, Hux32fc* pDst, int dstStep) {                          \
    return hux::polarToCart<hux::l>(pSrcMagn, pSrcPhase, srcStep, roiSize, pDst, dstStep, huxsPolarToCart_32fc); \
  }
HUX_STAMP(EXPORT, (_), (C1, C3))
#undef EXPORT

#define EXPORT(t, l)                                                                                             \
  HuxStatus huxiPolarToCart_##t##c_##l##R(const Hux##t* pSrcMagn, const Hux##t* pSrcPhase, int srcStep,          \
                                          int phaseFixedPoint, HuxiSize roiSize, Hux##t##c* pDst, int dstStep) { \
    return hux::polarToCart<hux::l>(pSrcMagn, pSrcPhase, srcStep, roiSize, pDst, dstStep,                        \
                                    [=](auto* magnitude, auto* phase, auto* dst, int n) {                        \
                                      return huxsPolarToCart_##t##c(magnitude, phase, phaseFixedPoint, dst, n);  \
                                    });                                                                          \
  }
HUX_STAMP(EXPORT, (16s, 32s), (C1, C3))
