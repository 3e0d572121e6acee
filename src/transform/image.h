// Transforms of images by either kind of plan: the checks of their arguments, and the forms of integers.
#pragma once

#include "huxs.h"
#include "workers/fft/record.h"

namespace hux::fft {

template <class R>
HuxStatus imageBufSize(const R* pCtx, Hux32s tag, int* pSize) {
  if (HuxStatus s = check(pointers(pCtx, pSize), recordOf(pCtx, tag))) return s;
  *elements(pSize) = pCtx->bufSize + 16;
  return huxStsOk;
}

// The checks of a transform, and its work memory.
template <class R, class S, class D, class Run>
HuxStatus imageTransform(Hux32s tag, const S* pSrc, int srcStep, D* pDst, int dstStep, const R* pCtx, Hux8u* pBuffer,
                         Run run) {
  if (HuxStatus s = check(pointers(pCtx), recordOf(pCtx, tag), pointers(pSrc, pDst), steps(srcStep, dstStep))) return s;
  const WorkBuffer work(pBuffer, std::size_t(pCtx->bufSize));
  if (!work) return huxStsNoMem;
  run(work.get());
  return huxStsOk;
}

template <Way W, class R>
HuxStatus complexImage(const Hux32fc* pSrc, int srcStep, Hux32fc* pDst, int dstStep, const R* pCtx, Hux8u* pBuffer) {
  return imageTransform(R::kComplex, pSrc, srcStep, pDst, dstStep, pCtx, pBuffer, [=](std::byte* work) {
    transformImage<W>(pCtx, pCtx->plan, rows<C1>(reinterpret_cast<const Hux32f*>(pSrc), srcStep),
                      rows<C1>(reinterpret_cast<Hux32f*>(pDst), dstStep), work);
  });
}

template <Way W, class L, class R>
HuxStatus realImage(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, const R* pCtx, Hux8u* pBuffer) {
  return imageTransform(R::kReal, pSrc, srcStep, pDst, dstStep, pCtx, pBuffer, [=](std::byte* work) {
    transformRealImage<W, L>(pCtx, pCtx->plan, rows<L>(pSrc, srcStep), rows<L>(pDst, dstStep), work);
  });
}

// Integer images: as floats of the channels that count, in the work memory, transformed there in place.
inline HuxStatus toFloats(const Hux8u* src, Hux32f* dst, int n) { return huxsConvert_8u32f(src, dst, n); }
inline HuxStatus toFloats(const Hux32s* src, Hux32f* dst, int n) { return huxsConvert_32s32f(src, dst, n); }
inline HuxStatus fromFloats(const Hux32f* src, Hux8u* dst, int n, int scaleFactor) {
  return huxsConvert_32f8u_Sfs(src, dst, n, huxRndNear, scaleFactor);
}
inline HuxStatus fromFloats(const Hux32f* src, Hux32s* dst, int n, int scaleFactor) {
  return huxsConvert_32f32s_Sfs(src, dst, n, huxRndNear, scaleFactor);
}

// The first three of four elements of n pixels, a piece at a time, from and to rows without the fourth.
inline constexpr int kPiece = 64;
template <class S>
void coloursToFloats(const Element<S>* row, Hux32f* dst, Index n) {
  for (Index x = 0; x < n; ++x)
    for (int c = 0; c < 3; ++c) dst[3 * x + c] = Hux32f(S(row[4 * x + c]));
}
template <class D>
void coloursFromFloats(const Hux32f* src, Element<D>* row, Index n, int scaleFactor) {
  D piece[3 * kPiece];
  for (Index x = 0; x < n; x += kPiece) {
    const Index count = std::min<Index>(kPiece, n - x);
    fromFloats(src + 3 * x, piece, int(3 * count), scaleFactor);
    for (Index i = 0; i < count; ++i)
      for (int c = 0; c < 3; ++c) row[4 * (x + i) + c] = piece[3 * i + c];
  }
}

template <Way W, class L, class R, class S, class D>
HuxStatus integerImage(const S* pSrc, int srcStep, D* pDst, int dstStep, const R* pCtx, int scaleFactor,
                       Hux8u* pBuffer) {
  return imageTransform(R::kInteger, pSrc, srcStep, pDst, dstStep, pCtx, pBuffer, [=](std::byte* work) {
    using Floats = Layout<L::processed, L::processed>;
    const Index width = pCtx->plan.size.width, height = pCtx->plan.size.height, row = width * Floats::channels;
    auto* floats = reinterpret_cast<Hux32f*>(work);
    const auto src = rows<L>(pSrc, srcStep);
    const auto dst = rows<L>(pDst, dstStep);
    for (Index y = 0; y < height; ++y)
      if constexpr (L::channels == L::processed)
        toFloats(advance(pSrc, y * Index(srcStep)), floats + y * row, int(row));
      else
        coloursToFloats(src.row(y), floats + y * row, width);
    const Rows<Hux32f> image{elements(floats), row * Index(sizeof(Hux32f)), Index(sizeof(Hux32f)) * Floats::channels};
    transformRealImage<W, Floats>(pCtx, pCtx->plan, {image.first, image.step, image.pixelBytes}, image,
                                  roundedUp(floats + height * row));
    for (Index y = 0; y < height; ++y)
      if constexpr (L::channels == L::processed)
        fromFloats(floats + y * row, advance(pDst, y * Index(dstStep)), int(row), scaleFactor);
      else
        coloursFromFloats(floats + y * row, dst.row(y), width, scaleFactor);
  });
}

}  // namespace hux::fft

// The members of both kinds, T being FFT or DFT; what makes a record takes the names of its two sizes and their checks.
#define HUX_IMAGE_TRANSFORMS(T)          \
  HUX_IMAGE_RECORDS(T, C_32fc, kComplex) \
  HUX_IMAGE_RECORDS(T, R_32f, kReal)     \
  HUX_IMAGE_RECORDS(T, R_32s, kInteger)  \
  HUX_IMAGE_COMPLEX(T, Fwd, forward)     \
  HUX_IMAGE_COMPLEX(T, Inv, inverse)     \
  HUX_IMAGE_REAL(T, C1) HUX_IMAGE_REAL(T, C3) HUX_IMAGE_REAL(T, C4) HUX_IMAGE_REAL(T, AC4)

#define HUX_IMAGE_RECORDS(T, t, kind)                                          \
  HuxStatus huxi##T##Free_##t(Huxi##T##Record* pCtx) {                         \
    return hux::fft::freeImageRecord(pCtx, Huxi##T##Record::kind);             \
  }                                                                            \
  HuxStatus huxi##T##GetBufSize_##t(const Huxi##T##Record* pCtx, int* pSize) { \
    return hux::fft::imageBufSize(pCtx, Huxi##T##Record::kind, pSize);         \
  }

#define HUX_IMAGE_COMPLEX(T, Name, way)                                                                         \
  HuxStatus huxi##T##Name##_CToC_32fc_C1R(const Hux32fc* pSrc, int srcStep, Hux32fc* pDst, int dstStep,         \
                                          const Huxi##T##Record* pCtx, Hux8u* pBuffer) {                        \
    return hux::fft::complexImage<hux::fft::Way::way>(pSrc, srcStep, pDst, dstStep, pCtx, pBuffer);             \
  }                                                                                                             \
  HuxStatus huxi##T##Name##_CToC_32fc_C1IR(Hux32fc* pSrcDst, int srcDstStep, const Huxi##T##Record* pCtx,       \
                                           Hux8u* pBuffer) {                                                    \
    return hux::fft::complexImage<hux::fft::Way::way>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, pCtx, pBuffer); \
  }

#define HUX_IMAGE_REAL(T, l)                                         \
  HUX_IMAGE_REAL_WAY(T, l, Fwd_RToPack, forward)                     \
  HUX_IMAGE_REAL_WAY(T, l, Inv_PackToR, inverse)                     \
  HUX_IMAGE_INTEGER(T, l, Fwd_RToPack_8u32s, forward, Hux8u, Hux32s) \
  HUX_IMAGE_INTEGER(T, l, Inv_PackToR_32s8u, inverse, Hux32s, Hux8u)

#define HUX_IMAGE_REAL_WAY(T, l, Name, way)                                                                          \
  HuxStatus huxi##T##Name##_32f_##l##R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,                   \
                                       const Huxi##T##Record* pCtx, Hux8u* pBuffer) {                                \
    return hux::fft::realImage<hux::fft::Way::way, hux::l>(pSrc, srcStep, pDst, dstStep, pCtx, pBuffer);             \
  }                                                                                                                  \
  HuxStatus huxi##T##Name##_32f_##l##IR(Hux32f* pSrcDst, int srcDstStep, const Huxi##T##Record* pCtx,                \
                                        Hux8u* pBuffer) {                                                            \
    return hux::fft::realImage<hux::fft::Way::way, hux::l>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, pCtx, pBuffer); \
  }

#define HUX_IMAGE_INTEGER(T, l, Name, way, S, D)                                                                     \
  HuxStatus huxi##T##Name##_##l##RSfs(const S* pSrc, int srcStep, D* pDst, int dstStep, const Huxi##T##Record* pCtx, \
                                      int scaleFactor, Hux8u* pBuffer) {                                             \
    return hux::fft::integerImage<hux::fft::Way::way, hux::l>(pSrc, srcStep, pDst, dstStep, pCtx, scaleFactor,       \
                                                              pBuffer);                                              \
  }
