// What the transforms of vectors share: the checks of their records, and their exports. A record has a tag, the size of
// its work memory, and whether it is in a block of ours.
#pragma once

#include "core/context.h"
#include "huxs_transform.h"
#include "workers/fft/image.h"

namespace hux::fft {

template <class R>
HuxStatus freeRecord(Hux32s tag, R* pCtx) {
  if (HuxStatus s = check(pointers(pCtx), recordOf(pCtx, tag))) return s;
  retire(pCtx, pCtx->owned != 0);
  return huxStsOk;
}

template <class R>
HuxStatus getBufSize(Hux32s tag, const R* pCtx, int* pSize) {
  if (HuxStatus s = check(pointers(pCtx, pSize), recordOf(pCtx, tag))) return s;
  *elements(pSize) = int(bufferBytes(pCtx->workSize));
  return huxStsOk;
}

// Checks and work memory of a transform.
template <class T, class R, class Run>
HuxStatus transforming(Hux32s tag, const T* pSrc, const T* pDst, const R* pCtx, Hux8u* pBuffer, Run run) {
  if (HuxStatus s = check(pointers(pCtx), recordOf(pCtx, tag), pointers(pSrc, pDst))) return s;
  const WorkBuffer work(pBuffer, std::size_t(pCtx->workSize));
  if (!work) return huxStsNoMem;
  run(work.get());
  return huxStsOk;
}

// Fourier transforms. The tags of their records are R::kComplex and R::kReal; `plan` is that of a real one, `whole()`
// that of a complex one.
template <Way W, class R>
HuxStatus complexVector(const Hux32fc* pSrc, Hux32fc* pDst, const R* pCtx, Hux8u* pBuffer) {
  return transforming(R::kComplex, pSrc, pDst, pCtx, pBuffer,
                      [=](std::byte* work) { transform<W>(pCtx, pCtx->whole(), pSrc, pDst, work); });
}
template <Way W, class R>
HuxStatus packedVector(const Hux32f* pSrc, Hux32f* pDst, const R* pCtx, Hux8u* pBuffer) {
  return transforming(R::kReal, pSrc, pDst, pCtx, pBuffer,
                      [=](std::byte* work) { transformReals<W>(pCtx, pCtx->plan, pSrc, pDst, work); });
}

}  // namespace hux::fft

#define HUX_VECTOR_RECORD(name, t, R, tag)                                            \
  HuxStatus huxs##name##Free_##t(R* pCtx) { return hux::fft::freeRecord(tag, pCtx); } \
  HuxStatus huxs##name##GetBufSize_##t(const R* pCtx, int* pSize) { return hux::fft::getBufSize(tag, pCtx, pSize); }
#define HUX_VECTOR_TRANSFORM(name, T, R, ...)                                   \
  HuxStatus huxs##name(const T* pSrc, T* pDst, const R* pCtx, Hux8u* pBuffer) { \
    return hux::__VA_ARGS__(pSrc, pDst, pCtx, pBuffer);                         \
  }

// Those of FFT and of DFT; what makes a record takes sizes and checks of its own.
#define HUX_FOURIER_VECTORS(F)                                                                                 \
  HUX_VECTOR_RECORD(F, C_32fc, Huxs##F##Record, Huxs##F##Record::kComplex)                                     \
  HUX_VECTOR_RECORD(F, R_32f, Huxs##F##Record, Huxs##F##Record::kReal)                                         \
  HUX_VECTOR_TRANSFORM(F##Fwd_CToC_32fc, Hux32fc, Huxs##F##Record, fft::complexVector<hux::fft::Way::forward>) \
  HUX_VECTOR_TRANSFORM(F##Inv_CToC_32fc, Hux32fc, Huxs##F##Record, fft::complexVector<hux::fft::Way::inverse>) \
  HUX_VECTOR_TRANSFORM(F##Fwd_RToPack_32f, Hux32f, Huxs##F##Record, fft::packedVector<hux::fft::Way::forward>) \
  HUX_VECTOR_TRANSFORM(F##Inv_PackToR_32f, Hux32f, Huxs##F##Record, fft::packedVector<hux::fft::Way::inverse>)
