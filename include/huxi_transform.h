/* Frequency transforms of images, packed spectra, wavelets. Plain C99. */
#ifndef HUXI_TRANSFORM_H
#define HUXI_TRANSFORM_H

#include "huxdefs.h"

HUX_BEGIN_C

/* ---- FFT and DFT ---- */

/* Contexts of two-dimensional Fourier transforms: of images whose sides are powers of two (FFT) or any numbers (DFT).
 * The transform is the one-dimensional one of huxs_transform.h of all rows, then of all columns; the inverse of a real
 * image takes the columns first. Each applies its own factor, so the flag huxFftScaleFwd divides the forward transform
 * by width * height, huxFftScaleInv the inverse, huxFftScaleRoot both by the root of it, huxFftScaleNone neither.
 *
 * The spectrum of a real image of W by H pixels lies in an image of the same size. F(u, v) is its value at frequencies
 * u along rows and v along columns, R and I its parts; F(W - u, H - v) is the conjugate of F(u, v). For even W and H:
 *
 *   R(0,0)      R(1,0)   I(1,0)   ...  R(W/2-1,0)   I(W/2-1,0)     R(W/2,0)
 *   R(0,1)      R(1,1)   I(1,1)   ...  R(W/2-1,1)   I(W/2-1,1)     R(W/2,1)
 *   I(0,1)      R(1,2)   I(1,2)   ...  R(W/2-1,2)   I(W/2-1,2)     I(W/2,1)
 *   ...
 *   R(0,H/2-1)  R(1,H-3) I(1,H-3) ...  R(W/2-1,H-3) I(W/2-1,H-3)   R(W/2,H/2-1)
 *   I(0,H/2-1)  R(1,H-2) I(1,H-2) ...  R(W/2-1,H-2) I(W/2-1,H-2)   I(W/2,H/2-1)
 *   R(0,H/2)    R(1,H-1) I(1,H-1) ...  R(W/2-1,H-1) I(W/2-1,H-1)   R(W/2,H/2)
 *
 * An odd W has no last column, an odd H no last row in the outer columns: they end with the pair before. In images of
 * several channels each has this layout of its own.
 *
 * A context is made for one size, is only read from then on, and may serve any number of threads at once: C_32fc for
 * complex images, R_32f for real ones, R_32s for real ones of integers. hint is kept and has no effect.
 * Example:
 *   HuxiFFTRecord* context;
 *   int step, bytes;
 *   Hux32f* image = huxiMalloc_32f_C1(256, 128, &step);  // 2^8 by 2^7 pixels
 *   if (image && huxiFFTInitAlloc_R_32f(&context, 8, 7, huxFftScaleInv, huxHintNone) == huxStsOk) {
 *     huxiFFTGetBufSize_R_32f(context, &bytes);
 *     Hux8u* buffer = huxsMalloc_8u(bytes);  // if this is null, each call allocates its own
 *     huxiFFTFwd_RToPack_32f_C1IR(image, step, context, buffer);
 *     huxiFFTInv_PackToR_32f_C1IR(image, step, context, buffer);
 *     huxsFree(buffer);
 *     huxiFFTFree_R_32f(context);
 *   }
 *   huxiFree(image);
 */
typedef struct HuxiFFTRecord HuxiFFTRecord;
typedef struct HuxiDFTRecord HuxiDFTRecord;

/* FFTInitAlloc, DFTInitAlloc: make a context for an image of 2^orderX by 2^orderY, or of width by height, pixels.
 * The context goes to *ppCtx, and is to be freed by the Free of its kind. flag is one of huxFftScaleFwd,
 * huxFftScaleInv, huxFftScaleRoot, huxFftScaleNone.
 * Checks, in order: ppCtx null (huxStsNullPtr), an order outside 0..30 (FFT, huxStsBadOrder), width or height below 1
 * (DFT, huxStsBadSize), memory (huxStsNoMem; also where GetBufSize would have to report more than a signed 32-bit
 * number holds), flag none of the four (huxStsBadFlag). On failure *ppCtx is as it was. */
HUX_API HuxStatus huxiFFTInitAlloc_C_32fc(HuxiFFTRecord** ppCtx, int orderX, int orderY, int flag,
                                          HuxAccuracyHint hint);
HUX_API HuxStatus huxiFFTInitAlloc_R_32f(HuxiFFTRecord** ppCtx, int orderX, int orderY, int flag, HuxAccuracyHint hint);
HUX_API HuxStatus huxiFFTInitAlloc_R_32s(HuxiFFTRecord** ppCtx, int orderX, int orderY, int flag, HuxAccuracyHint hint);
HUX_API HuxStatus huxiDFTInitAlloc_C_32fc(HuxiDFTRecord** ppCtx, int width, int height, int flag, HuxAccuracyHint hint);
HUX_API HuxStatus huxiDFTInitAlloc_R_32f(HuxiDFTRecord** ppCtx, int width, int height, int flag, HuxAccuracyHint hint);
HUX_API HuxStatus huxiDFTInitAlloc_R_32s(HuxiDFTRecord** ppCtx, int width, int height, int flag, HuxAccuracyHint hint);

/* FFTFree, FFTGetBufSize, DFTFree, DFTGetBufSize: end a context; tell the bytes of a transform's work buffer, to
 * *pSize.
 * Checks, in order: null pointers (huxStsNullPtr), a context of another kind (huxStsBadContext). */
HUX_API HuxStatus huxiFFTFree_C_32fc(HuxiFFTRecord* pCtx);
HUX_API HuxStatus huxiFFTFree_R_32f(HuxiFFTRecord* pCtx);
HUX_API HuxStatus huxiFFTFree_R_32s(HuxiFFTRecord* pCtx);
HUX_API HuxStatus huxiFFTGetBufSize_C_32fc(const HuxiFFTRecord* pCtx, int* pSize);
HUX_API HuxStatus huxiFFTGetBufSize_R_32f(const HuxiFFTRecord* pCtx, int* pSize);
HUX_API HuxStatus huxiFFTGetBufSize_R_32s(const HuxiFFTRecord* pCtx, int* pSize);
HUX_API HuxStatus huxiDFTFree_C_32fc(HuxiDFTRecord* pCtx);
HUX_API HuxStatus huxiDFTFree_R_32f(HuxiDFTRecord* pCtx);
HUX_API HuxStatus huxiDFTFree_R_32s(HuxiDFTRecord* pCtx);
HUX_API HuxStatus huxiDFTGetBufSize_C_32fc(const HuxiDFTRecord* pCtx, int* pSize);
HUX_API HuxStatus huxiDFTGetBufSize_R_32f(const HuxiDFTRecord* pCtx, int* pSize);
HUX_API HuxStatus huxiDFTGetBufSize_R_32s(const HuxiDFTRecord* pCtx, int* pSize);

/* FFTFwd_CToC, FFTInv_CToC, DFTFwd_CToC, DFTInv_CToC: the transform of a complex image, and its inverse.
 * The images are of the context's size, their spectra in natural order, frequency 0 first. IR works in place. Source
 * and destination may be the same image, with the same step, and must not overlap otherwise. pBuffer is work memory at
 * any address, as large as GetBufSize tells, for this call alone; when it is null the call allocates its own. Steps
 * are in bytes and are not compared with the width.
 * Checks, in order: pCtx null (huxStsNullPtr), a context of another kind (huxStsBadContext), pSrc or pDst null
 * (huxStsNullPtr), a step below 1 (huxStsBadStep), memory (huxStsNoMem; nothing is written then). */
HUX_API HuxStatus huxiFFTFwd_CToC_32fc_C1R(const Hux32fc* pSrc, int srcStep, Hux32fc* pDst, int dstStep,
                                           const HuxiFFTRecord* pCtx, Hux8u* pBuffer);
HUX_API HuxStatus huxiFFTFwd_CToC_32fc_C1IR(Hux32fc* pSrcDst, int srcDstStep, const HuxiFFTRecord* pCtx,
                                            Hux8u* pBuffer);
HUX_API HuxStatus huxiFFTInv_CToC_32fc_C1R(const Hux32fc* pSrc, int srcStep, Hux32fc* pDst, int dstStep,
                                           const HuxiFFTRecord* pCtx, Hux8u* pBuffer);
HUX_API HuxStatus huxiFFTInv_CToC_32fc_C1IR(Hux32fc* pSrcDst, int srcDstStep, const HuxiFFTRecord* pCtx,
                                            Hux8u* pBuffer);
HUX_API HuxStatus huxiDFTFwd_CToC_32fc_C1R(const Hux32fc* pSrc, int srcStep, Hux32fc* pDst, int dstStep,
                                           const HuxiDFTRecord* pCtx, Hux8u* pBuffer);
HUX_API HuxStatus huxiDFTFwd_CToC_32fc_C1IR(Hux32fc* pSrcDst, int srcDstStep, const HuxiDFTRecord* pCtx,
                                            Hux8u* pBuffer);
HUX_API HuxStatus huxiDFTInv_CToC_32fc_C1R(const Hux32fc* pSrc, int srcStep, Hux32fc* pDst, int dstStep,
                                           const HuxiDFTRecord* pCtx, Hux8u* pBuffer);
HUX_API HuxStatus huxiDFTInv_CToC_32fc_C1IR(Hux32fc* pSrcDst, int srcDstStep, const HuxiDFTRecord* pCtx,
                                            Hux8u* pBuffer);

/* FFTFwd_RToPack, DFTFwd_RToPack, FFTInv_PackToR, DFTInv_PackToR: the packed spectrum of a real image, and the image
 * of one.
 * The layout of the spectrum is shown above. AC4 transforms the first three channels and leaves the fourth of the
 * destination as it is. IR works in place. Source and destination may be the same image, with the same step, and must
 * not overlap otherwise. pBuffer is work memory at any address, as large as GetBufSize tells, for this call alone;
 * when it is null the call allocates its own. Steps are in bytes and are not compared with the width.
 * Checks, in order: pCtx null (huxStsNullPtr), a context of another kind (huxStsBadContext), pSrc or pDst null
 * (huxStsNullPtr), a step below 1 (huxStsBadStep), memory (huxStsNoMem; nothing is written then). */
HUX_API HuxStatus huxiFFTFwd_RToPack_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                             const HuxiFFTRecord* pCtx, Hux8u* pBuffer);
HUX_API HuxStatus huxiFFTFwd_RToPack_32f_C3R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                             const HuxiFFTRecord* pCtx, Hux8u* pBuffer);
HUX_API HuxStatus huxiFFTFwd_RToPack_32f_C4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                             const HuxiFFTRecord* pCtx, Hux8u* pBuffer);
HUX_API HuxStatus huxiFFTFwd_RToPack_32f_AC4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                              const HuxiFFTRecord* pCtx, Hux8u* pBuffer);
HUX_API HuxStatus huxiFFTFwd_RToPack_32f_C1IR(Hux32f* pSrcDst, int srcDstStep, const HuxiFFTRecord* pCtx,
                                              Hux8u* pBuffer);
HUX_API HuxStatus huxiFFTFwd_RToPack_32f_C3IR(Hux32f* pSrcDst, int srcDstStep, const HuxiFFTRecord* pCtx,
                                              Hux8u* pBuffer);
HUX_API HuxStatus huxiFFTFwd_RToPack_32f_C4IR(Hux32f* pSrcDst, int srcDstStep, const HuxiFFTRecord* pCtx,
                                              Hux8u* pBuffer);
HUX_API HuxStatus huxiFFTFwd_RToPack_32f_AC4IR(Hux32f* pSrcDst, int srcDstStep, const HuxiFFTRecord* pCtx,
                                               Hux8u* pBuffer);
HUX_API HuxStatus huxiFFTInv_PackToR_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                             const HuxiFFTRecord* pCtx, Hux8u* pBuffer);
HUX_API HuxStatus huxiFFTInv_PackToR_32f_C3R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                             const HuxiFFTRecord* pCtx, Hux8u* pBuffer);
HUX_API HuxStatus huxiFFTInv_PackToR_32f_C4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                             const HuxiFFTRecord* pCtx, Hux8u* pBuffer);
HUX_API HuxStatus huxiFFTInv_PackToR_32f_AC4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                              const HuxiFFTRecord* pCtx, Hux8u* pBuffer);
HUX_API HuxStatus huxiFFTInv_PackToR_32f_C1IR(Hux32f* pSrcDst, int srcDstStep, const HuxiFFTRecord* pCtx,
                                              Hux8u* pBuffer);
HUX_API HuxStatus huxiFFTInv_PackToR_32f_C3IR(Hux32f* pSrcDst, int srcDstStep, const HuxiFFTRecord* pCtx,
                                              Hux8u* pBuffer);
HUX_API HuxStatus huxiFFTInv_PackToR_32f_C4IR(Hux32f* pSrcDst, int srcDstStep, const HuxiFFTRecord* pCtx,
                                              Hux8u* pBuffer);
HUX_API HuxStatus huxiFFTInv_PackToR_32f_AC4IR(Hux32f* pSrcDst, int srcDstStep, const HuxiFFTRecord* pCtx,
                                               Hux8u* pBuffer);
HUX_API HuxStatus huxiDFTFwd_RToPack_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                             const HuxiDFTRecord* pCtx, Hux8u* pBuffer);
HUX_API HuxStatus huxiDFTFwd_RToPack_32f_C3R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                             const HuxiDFTRecord* pCtx, Hux8u* pBuffer);
HUX_API HuxStatus huxiDFTFwd_RToPack_32f_C4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                             const HuxiDFTRecord* pCtx, Hux8u* pBuffer);
HUX_API HuxStatus huxiDFTFwd_RToPack_32f_AC4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                              const HuxiDFTRecord* pCtx, Hux8u* pBuffer);
HUX_API HuxStatus huxiDFTFwd_RToPack_32f_C1IR(Hux32f* pSrcDst, int srcDstStep, const HuxiDFTRecord* pCtx,
                                              Hux8u* pBuffer);
HUX_API HuxStatus huxiDFTFwd_RToPack_32f_C3IR(Hux32f* pSrcDst, int srcDstStep, const HuxiDFTRecord* pCtx,
                                              Hux8u* pBuffer);
HUX_API HuxStatus huxiDFTFwd_RToPack_32f_C4IR(Hux32f* pSrcDst, int srcDstStep, const HuxiDFTRecord* pCtx,
                                              Hux8u* pBuffer);
HUX_API HuxStatus huxiDFTFwd_RToPack_32f_AC4IR(Hux32f* pSrcDst, int srcDstStep, const HuxiDFTRecord* pCtx,
                                               Hux8u* pBuffer);
HUX_API HuxStatus huxiDFTInv_PackToR_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                             const HuxiDFTRecord* pCtx, Hux8u* pBuffer);
HUX_API HuxStatus huxiDFTInv_PackToR_32f_C3R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                             const HuxiDFTRecord* pCtx, Hux8u* pBuffer);
HUX_API HuxStatus huxiDFTInv_PackToR_32f_C4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                             const HuxiDFTRecord* pCtx, Hux8u* pBuffer);
HUX_API HuxStatus huxiDFTInv_PackToR_32f_AC4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                              const HuxiDFTRecord* pCtx, Hux8u* pBuffer);
HUX_API HuxStatus huxiDFTInv_PackToR_32f_C1IR(Hux32f* pSrcDst, int srcDstStep, const HuxiDFTRecord* pCtx,
                                              Hux8u* pBuffer);
HUX_API HuxStatus huxiDFTInv_PackToR_32f_C3IR(Hux32f* pSrcDst, int srcDstStep, const HuxiDFTRecord* pCtx,
                                              Hux8u* pBuffer);
HUX_API HuxStatus huxiDFTInv_PackToR_32f_C4IR(Hux32f* pSrcDst, int srcDstStep, const HuxiDFTRecord* pCtx,
                                              Hux8u* pBuffer);
HUX_API HuxStatus huxiDFTInv_PackToR_32f_AC4IR(Hux32f* pSrcDst, int srcDstStep, const HuxiDFTRecord* pCtx,
                                               Hux8u* pBuffer);

/* FFTFwd_RToPack, DFTFwd_RToPack, FFTInv_PackToR, DFTInv_PackToR of integers: between 8u images and packed 32s
 * spectra.
 * Both are computed in 32f. The results are multiplied by 2^-scaleFactor, rounded to nearest with ties to even, and
 * saturated; what goes in is not scaled: the inverse takes the factor of the forward transform negated. The context is
 * one of R_32s. AC4 leaves the fourth channel of the destination as it is. The images must not overlap. pBuffer is
 * work memory at any address, as large as GetBufSize tells, for this call alone; when it is null the call allocates
 * its own.
 * Checks, in order: pCtx null (huxStsNullPtr), a context of another kind (huxStsBadContext), pSrc or pDst null
 * (huxStsNullPtr), a step below 1 (huxStsBadStep), memory (huxStsNoMem; nothing is written then). */
HUX_API HuxStatus huxiFFTFwd_RToPack_8u32s_C1RSfs(const Hux8u* pSrc, int srcStep, Hux32s* pDst, int dstStep,
                                                  const HuxiFFTRecord* pCtx, int scaleFactor, Hux8u* pBuffer);
HUX_API HuxStatus huxiFFTFwd_RToPack_8u32s_C3RSfs(const Hux8u* pSrc, int srcStep, Hux32s* pDst, int dstStep,
                                                  const HuxiFFTRecord* pCtx, int scaleFactor, Hux8u* pBuffer);
HUX_API HuxStatus huxiFFTFwd_RToPack_8u32s_C4RSfs(const Hux8u* pSrc, int srcStep, Hux32s* pDst, int dstStep,
                                                  const HuxiFFTRecord* pCtx, int scaleFactor, Hux8u* pBuffer);
HUX_API HuxStatus huxiFFTFwd_RToPack_8u32s_AC4RSfs(const Hux8u* pSrc, int srcStep, Hux32s* pDst, int dstStep,
                                                   const HuxiFFTRecord* pCtx, int scaleFactor, Hux8u* pBuffer);
HUX_API HuxStatus huxiFFTInv_PackToR_32s8u_C1RSfs(const Hux32s* pSrc, int srcStep, Hux8u* pDst, int dstStep,
                                                  const HuxiFFTRecord* pCtx, int scaleFactor, Hux8u* pBuffer);
HUX_API HuxStatus huxiFFTInv_PackToR_32s8u_C3RSfs(const Hux32s* pSrc, int srcStep, Hux8u* pDst, int dstStep,
                                                  const HuxiFFTRecord* pCtx, int scaleFactor, Hux8u* pBuffer);
HUX_API HuxStatus huxiFFTInv_PackToR_32s8u_C4RSfs(const Hux32s* pSrc, int srcStep, Hux8u* pDst, int dstStep,
                                                  const HuxiFFTRecord* pCtx, int scaleFactor, Hux8u* pBuffer);
HUX_API HuxStatus huxiFFTInv_PackToR_32s8u_AC4RSfs(const Hux32s* pSrc, int srcStep, Hux8u* pDst, int dstStep,
                                                   const HuxiFFTRecord* pCtx, int scaleFactor, Hux8u* pBuffer);
HUX_API HuxStatus huxiDFTFwd_RToPack_8u32s_C1RSfs(const Hux8u* pSrc, int srcStep, Hux32s* pDst, int dstStep,
                                                  const HuxiDFTRecord* pCtx, int scaleFactor, Hux8u* pBuffer);
HUX_API HuxStatus huxiDFTFwd_RToPack_8u32s_C3RSfs(const Hux8u* pSrc, int srcStep, Hux32s* pDst, int dstStep,
                                                  const HuxiDFTRecord* pCtx, int scaleFactor, Hux8u* pBuffer);
HUX_API HuxStatus huxiDFTFwd_RToPack_8u32s_C4RSfs(const Hux8u* pSrc, int srcStep, Hux32s* pDst, int dstStep,
                                                  const HuxiDFTRecord* pCtx, int scaleFactor, Hux8u* pBuffer);
HUX_API HuxStatus huxiDFTFwd_RToPack_8u32s_AC4RSfs(const Hux8u* pSrc, int srcStep, Hux32s* pDst, int dstStep,
                                                   const HuxiDFTRecord* pCtx, int scaleFactor, Hux8u* pBuffer);
HUX_API HuxStatus huxiDFTInv_PackToR_32s8u_C1RSfs(const Hux32s* pSrc, int srcStep, Hux8u* pDst, int dstStep,
                                                  const HuxiDFTRecord* pCtx, int scaleFactor, Hux8u* pBuffer);
HUX_API HuxStatus huxiDFTInv_PackToR_32s8u_C3RSfs(const Hux32s* pSrc, int srcStep, Hux8u* pDst, int dstStep,
                                                  const HuxiDFTRecord* pCtx, int scaleFactor, Hux8u* pBuffer);
HUX_API HuxStatus huxiDFTInv_PackToR_32s8u_C4RSfs(const Hux32s* pSrc, int srcStep, Hux8u* pDst, int dstStep,
                                                  const HuxiDFTRecord* pCtx, int scaleFactor, Hux8u* pBuffer);
HUX_API HuxStatus huxiDFTInv_PackToR_32s8u_AC4RSfs(const Hux32s* pSrc, int srcStep, Hux8u* pDst, int dstStep,
                                                   const HuxiDFTRecord* pCtx, int scaleFactor, Hux8u* pBuffer);

/* ---- DCT ---- */

/* Contexts of two-dimensional cosine transforms: orthonormal ones, of images of any size, and their inverses.
 * These are the transforms of huxs_transform.h on all rows, then on all columns, in single precision. A context is
 * made for one direction (Fwd, Inv) and one size, is only read from then on, and may serve any number of threads at
 * once; hint has an effect where a side is a power of two from 1024 on, as there.
 * Example:
 *   const HuxiSize tile = {16, 16};
 *   Hux32f pixels[16][16] = {{0}};
 *   const int step = sizeof pixels[0];
 *   HuxiDCTRecord* context;
 *   if (huxiDCTFwdInitAlloc_32f(&context, tile, huxHintNone) == huxStsOk) {
 *     huxiDCTFwd_32f_C1R(pixels[0], step, pixels[0], step, context, NULL);
 *     huxiDCTFwdFree_32f(context);
 *   }
 */
typedef struct HuxiDCTRecord HuxiDCTRecord;

/* DCTFwdInitAlloc, DCTInvInitAlloc: make a context for images of roiSize, in *ppSpec, to be freed by the Free of its
 * direction.
 * Checks, in order: ppSpec null (huxStsNullPtr), width or height below 1 (huxStsBadSize), memory (huxStsNoMem; also
 * where GetBufSize would have to report more than a signed 32-bit number holds). On failure *ppSpec is as it was. */
HUX_API HuxStatus huxiDCTFwdInitAlloc_32f(HuxiDCTRecord** ppSpec, HuxiSize roiSize, HuxAccuracyHint hint);
HUX_API HuxStatus huxiDCTInvInitAlloc_32f(HuxiDCTRecord** ppSpec, HuxiSize roiSize, HuxAccuracyHint hint);

/* DCTFwdFree, DCTInvFree, DCTFwdGetBufSize, DCTInvGetBufSize: end a context; tell the bytes of a transform's work
 * buffer.
 * Checks, in order: null pointers (huxStsNullPtr), a context of the other direction or of another kind
 * (huxStsBadContext). */
HUX_API HuxStatus huxiDCTFwdFree_32f(HuxiDCTRecord* pSpec);
HUX_API HuxStatus huxiDCTInvFree_32f(HuxiDCTRecord* pSpec);
HUX_API HuxStatus huxiDCTFwdGetBufSize_32f(const HuxiDCTRecord* pSpec, int* pSize);
HUX_API HuxStatus huxiDCTInvGetBufSize_32f(const HuxiDCTRecord* pSpec, int* pSize);

/* DCTFwd, DCTInv: the cosine transform of an image of the context's size, and its inverse, each channel by itself.
 * AC4 leaves the fourth channel of the destination as it is. Source and destination may be the same image, with the
 * same step, and must not overlap otherwise. pBuffer is work memory at any address, as large as GetBufSize tells, for
 * this call alone; when it is null the call allocates its own, except for one channel of 8 by 8 with both steps 32,
 * which needs none. Steps are in bytes and are not compared with the width.
 * Checks, in order: pSpec null (huxStsNullPtr), a context of the other direction or of another kind
 * (huxStsBadContext), pSrc or pDst null (huxStsNullPtr), a step below 1 (huxStsBadStep), memory (huxStsNoMem). */
HUX_API HuxStatus huxiDCTFwd_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                     const HuxiDCTRecord* pSpec, Hux8u* pBuffer);
HUX_API HuxStatus huxiDCTFwd_32f_C3R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                     const HuxiDCTRecord* pSpec, Hux8u* pBuffer);
HUX_API HuxStatus huxiDCTFwd_32f_C4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                     const HuxiDCTRecord* pSpec, Hux8u* pBuffer);
HUX_API HuxStatus huxiDCTFwd_32f_AC4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                      const HuxiDCTRecord* pSpec, Hux8u* pBuffer);
HUX_API HuxStatus huxiDCTInv_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                     const HuxiDCTRecord* pSpec, Hux8u* pBuffer);
HUX_API HuxStatus huxiDCTInv_32f_C3R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                     const HuxiDCTRecord* pSpec, Hux8u* pBuffer);
HUX_API HuxStatus huxiDCTInv_32f_C4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                     const HuxiDCTRecord* pSpec, Hux8u* pBuffer);
HUX_API HuxStatus huxiDCTInv_32f_AC4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                      const HuxiDCTRecord* pSpec, Hux8u* pBuffer);

/* ---- Blocks of 8 by 8 ---- */

/* DCT8x8Fwd, DCT8x8Inv: the cosine transform of a block of 8 by 8 samples, and its inverse.
 *
 *   forward  F(u, v) = c(u) c(v) / 4 * sum over y, x of f(y, x) cos((2x + 1) v pi / 16) cos((2y + 1) u pi / 16)
 *
 * u numbers rows of the result and v its columns; c(0) = 1 / sqrt(2) and c = 1 otherwise. No gain either way: a block
 * of equal samples a has F(0, 0) = 8a. A block is 64 samples in rows of 8, one row behind the other. Source and
 * destination may be the same block, and pointers any address.
 *
 * 32f works in single precision. 16s is a fixed-point transform in 32-bit arithmetic that wraps, rows first forward
 * and columns first inverse, with 16 bits between the passes: results are the same everywhere and within a rounding of
 * the true ones for samples of up to 12 bits.
 * Checks, in order: null pointers (huxStsNullPtr). */
HUX_API HuxStatus huxiDCT8x8Fwd_32f_C1(const Hux32f* pSrc, Hux32f* pDst);
HUX_API HuxStatus huxiDCT8x8Fwd_32f_C1I(Hux32f* pSrcDst);
HUX_API HuxStatus huxiDCT8x8Inv_32f_C1(const Hux32f* pSrc, Hux32f* pDst);
HUX_API HuxStatus huxiDCT8x8Inv_32f_C1I(Hux32f* pSrcDst);
HUX_API HuxStatus huxiDCT8x8Fwd_16s_C1(const Hux16s* pSrc, Hux16s* pDst);
HUX_API HuxStatus huxiDCT8x8Fwd_16s_C1I(Hux16s* pSrcDst);
HUX_API HuxStatus huxiDCT8x8Inv_16s_C1(const Hux16s* pSrc, Hux16s* pDst);
HUX_API HuxStatus huxiDCT8x8Inv_16s_C1I(Hux16s* pSrcDst);

/* DCT8x8Fwd, DCT8x8Inv, DCT8x8FwdLS, DCT8x8InvLSClip, between blocks and images: a block of 16s coefficients to or
 * from 8 by 8 pixels.
 * The image's side has rows at a distance of srcStep or dstStep bytes. Fwd_8u16s takes pixels as they are, FwdLS adds
 * addVal to each in 16 bits that wrap; Inv_16s8u limits results to 0..255. InvLSClip adds addVal, then writes clipMin
 * for what is below clipMin, and clipMax for what is not below clipMax.
 * Checks, in order: null pointers (huxStsNullPtr), the step below 1 (huxStsBadStep).
 * Example:
 *   Hux16s block[64];
 *   huxiDCT8x8FwdLS_8u16s_C1R(src, srcStep, block, -128);
 *   for (int k = 0; k < 64; ++k) block[k] = (Hux16s)(block[k] / 16 * 16);
 *   huxiDCT8x8InvLSClip_16s8u_C1R(block, dst, dstStep, 128, 0, 255);
 */
HUX_API HuxStatus huxiDCT8x8Fwd_16s_C1R(const Hux16s* pSrc, int srcStep, Hux16s* pDst);
HUX_API HuxStatus huxiDCT8x8Inv_16s_C1R(const Hux16s* pSrc, Hux16s* pDst, int dstStep);
HUX_API HuxStatus huxiDCT8x8Fwd_8u16s_C1R(const Hux8u* pSrc, int srcStep, Hux16s* pDst);
HUX_API HuxStatus huxiDCT8x8Inv_16s8u_C1R(const Hux16s* pSrc, Hux8u* pDst, int dstStep);
HUX_API HuxStatus huxiDCT8x8FwdLS_8u16s_C1R(const Hux8u* pSrc, int srcStep, Hux16s* pDst, Hux16s addVal);
HUX_API HuxStatus huxiDCT8x8InvLSClip_16s8u_C1R(const Hux16s* pSrc, Hux8u* pDst, int dstStep, Hux16s addVal,
                                                Hux8u clipMin, Hux8u clipMax);

/* DCT8x8Inv_2x2, DCT8x8Inv_4x4: the inverse of a block of which only the first 2 by 2, or 4 by 4, coefficients are
 * looked at.
 * The others count as 0. Results may differ from those of the whole inverse by a rounding. Source and destination may
 * be the same block.
 * Checks, in order: null pointers (huxStsNullPtr). */
HUX_API HuxStatus huxiDCT8x8Inv_2x2_16s_C1(const Hux16s* pSrc, Hux16s* pDst);
HUX_API HuxStatus huxiDCT8x8Inv_2x2_16s_C1I(Hux16s* pSrcDst);
HUX_API HuxStatus huxiDCT8x8Inv_4x4_16s_C1(const Hux16s* pSrc, Hux16s* pDst);
HUX_API HuxStatus huxiDCT8x8Inv_4x4_16s_C1I(Hux16s* pSrcDst);

/* ZigzagFwd8x8, ZigzagInv8x8: the 64 coefficients of a block along its antidiagonals, from the first to the last, and
 * back.
 *   (0,0) (0,1) (1,0) (2,0) (1,1) (0,2) ... in (row, column)
 * Source and destination may be the same block.
 * Checks, in order: null pointers (huxStsNullPtr). */
HUX_API HuxStatus huxiZigzagFwd8x8_16s_C1(const Hux16s* pSrc, Hux16s* pDst);
HUX_API HuxStatus huxiZigzagInv8x8_16s_C1(const Hux16s* pSrc, Hux16s* pDst);

/* ---- Packed spectra ---- */

/* Packed spectra: operations on the packed spectra of real images, and the polar functions on complex images.
 * The spectrum of a real image of W by H pixels lies in an image of W by H elements. With R(u, v) and I(u, v) the
 * parts of its value at frequencies u along rows and v along columns, for W = 6 and H = 6:
 *
 *   R(0,0)  R(1,0) I(1,0)  R(2,0) I(2,0)  R(3,0)
 *   R(0,1)  R(1,1) I(1,1)  R(2,1) I(2,1)  R(3,1)
 *   I(0,1)  R(1,2) I(1,2)  R(2,2) I(2,2)  I(3,1)
 *   R(0,2)  R(1,3) I(1,3)  R(2,3) I(2,3)  R(3,2)
 *   I(0,2)  R(1,4) I(1,4)  R(2,4) I(2,4)  I(3,2)
 *   R(0,3)  R(1,5) I(1,5)  R(2,5) I(2,5)  R(3,3)
 *
 * and for W = 5 and H = 5, which have no last column and no last row of their own:
 *
 *   R(0,0)  R(1,0) I(1,0)  R(2,0) I(2,0)
 *   R(0,1)  R(1,1) I(1,1)  R(2,1) I(2,1)
 *   I(0,1)  R(1,2) I(1,2)  R(2,2) I(2,2)
 *   R(0,2)  R(1,3) I(1,3)  R(2,3) I(2,3)
 *   I(0,2)  R(1,4) I(1,4)  R(2,4) I(2,4)
 *
 * The outer columns hold pairs one above the other, all others side by side; the corners of a column are real. What is
 * not stored is the conjugate of F((W - u) mod W, (H - v) mod H). In images of several channels each has this layout
 * of its own. Steps are in bytes and are not compared with the width; nothing tells a packed spectrum from another
 * image. */

/* MulPack, MulPackConj: the product of two packed spectra, or of the first and the conjugate of the second.
 *   MulPack      (a + ib)(c + id), and a * c of real elements: circular convolution of the images
 *   MulPackConj  (a + ib)(c - id): correlation
 * where the pair of the first is a + ib, and that of the second c + id. IR forms put the result where the second
 * factor is; AC4 leaves the fourth channel of the destination as it is. Source and destination may be the same image,
 * with the same step.
 * Integers: the exact parts times 2^-scaleFactor, rounded toward minus infinity, then saturated. Where a * d is the
 * square of the lowest number (a and d both -32768, or -2^31), b * c is left out of a * d + b * c.
 * Checks, in order: null pointers (huxStsNullPtr), a step below 1 (huxStsBadStep), width or height below 1
 * (huxStsBadSize).
 * Example:
 *   Hux32f image[16][16] = {{0}}, kernel[16][16] = {{0}};  // one size; the kernel's origin is kernel[0][0]
 *   const HuxiSize all = {16, 16};
 *   const int step = sizeof image[0];
 *   HuxiFFTRecord* context;
 *   if (huxiFFTInitAlloc_R_32f(&context, 4, 4, huxFftScaleInv, huxHintNone) == huxStsOk) {
 *     huxiFFTFwd_RToPack_32f_C1IR(image[0], step, context, NULL);
 *     huxiFFTFwd_RToPack_32f_C1IR(kernel[0], step, context, NULL);
 *     huxiMulPack_32f_C1IR(kernel[0], step, image[0], step, all);
 *     huxiFFTInv_PackToR_32f_C1IR(image[0], step, context, NULL);
 *     huxiFFTFree_R_32f(context);
 *   }
 */
HUX_API HuxStatus huxiMulPack_32f_C1R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step,
                                      Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiMulPack_32f_C1IR(const Hux32f* pSrc, int srcStep, Hux32f* pSrcDst, int srcDstStep,
                                       HuxiSize roiSize);
HUX_API HuxStatus huxiMulPack_32f_C3R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step,
                                      Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiMulPack_32f_C3IR(const Hux32f* pSrc, int srcStep, Hux32f* pSrcDst, int srcDstStep,
                                       HuxiSize roiSize);
HUX_API HuxStatus huxiMulPack_32f_C4R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step,
                                      Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiMulPack_32f_C4IR(const Hux32f* pSrc, int srcStep, Hux32f* pSrcDst, int srcDstStep,
                                       HuxiSize roiSize);
HUX_API HuxStatus huxiMulPack_32f_AC4R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step,
                                       Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiMulPack_32f_AC4IR(const Hux32f* pSrc, int srcStep, Hux32f* pSrcDst, int srcDstStep,
                                        HuxiSize roiSize);
HUX_API HuxStatus huxiMulPackConj_32f_C1R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step,
                                          Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiMulPackConj_32f_C1IR(const Hux32f* pSrc, int srcStep, Hux32f* pSrcDst, int srcDstStep,
                                           HuxiSize roiSize);
HUX_API HuxStatus huxiMulPackConj_32f_C3R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step,
                                          Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiMulPackConj_32f_C3IR(const Hux32f* pSrc, int srcStep, Hux32f* pSrcDst, int srcDstStep,
                                           HuxiSize roiSize);
HUX_API HuxStatus huxiMulPackConj_32f_C4R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step,
                                          Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiMulPackConj_32f_C4IR(const Hux32f* pSrc, int srcStep, Hux32f* pSrcDst, int srcDstStep,
                                           HuxiSize roiSize);
HUX_API HuxStatus huxiMulPackConj_32f_AC4R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step,
                                           Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiMulPackConj_32f_AC4IR(const Hux32f* pSrc, int srcStep, Hux32f* pSrcDst, int srcDstStep,
                                            HuxiSize roiSize);
HUX_API HuxStatus huxiMulPack_16s_C1RSfs(const Hux16s* pSrc1, int src1Step, const Hux16s* pSrc2, int src2Step,
                                         Hux16s* pDst, int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMulPack_16s_C1IRSfs(const Hux16s* pSrc, int srcStep, Hux16s* pSrcDst, int srcDstStep,
                                          HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMulPack_16s_C3RSfs(const Hux16s* pSrc1, int src1Step, const Hux16s* pSrc2, int src2Step,
                                         Hux16s* pDst, int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMulPack_16s_C3IRSfs(const Hux16s* pSrc, int srcStep, Hux16s* pSrcDst, int srcDstStep,
                                          HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMulPack_16s_C4RSfs(const Hux16s* pSrc1, int src1Step, const Hux16s* pSrc2, int src2Step,
                                         Hux16s* pDst, int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMulPack_16s_C4IRSfs(const Hux16s* pSrc, int srcStep, Hux16s* pSrcDst, int srcDstStep,
                                          HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMulPack_16s_AC4RSfs(const Hux16s* pSrc1, int src1Step, const Hux16s* pSrc2, int src2Step,
                                          Hux16s* pDst, int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMulPack_16s_AC4IRSfs(const Hux16s* pSrc, int srcStep, Hux16s* pSrcDst, int srcDstStep,
                                           HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMulPack_32s_C1RSfs(const Hux32s* pSrc1, int src1Step, const Hux32s* pSrc2, int src2Step,
                                         Hux32s* pDst, int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMulPack_32s_C1IRSfs(const Hux32s* pSrc, int srcStep, Hux32s* pSrcDst, int srcDstStep,
                                          HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMulPack_32s_C3RSfs(const Hux32s* pSrc1, int src1Step, const Hux32s* pSrc2, int src2Step,
                                         Hux32s* pDst, int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMulPack_32s_C3IRSfs(const Hux32s* pSrc, int srcStep, Hux32s* pSrcDst, int srcDstStep,
                                          HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMulPack_32s_C4RSfs(const Hux32s* pSrc1, int src1Step, const Hux32s* pSrc2, int src2Step,
                                         Hux32s* pDst, int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMulPack_32s_C4IRSfs(const Hux32s* pSrc, int srcStep, Hux32s* pSrcDst, int srcDstStep,
                                          HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMulPack_32s_AC4RSfs(const Hux32s* pSrc1, int src1Step, const Hux32s* pSrc2, int src2Step,
                                          Hux32s* pDst, int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMulPack_32s_AC4IRSfs(const Hux32s* pSrc, int srcStep, Hux32s* pSrcDst, int srcDstStep,
                                           HuxiSize roiSize, int scaleFactor);

/* MagnitudePack, PhasePack: magnitude and phase of the full spectrum, W by H elements, from a packed one.
 * The rules are those of huxsMagnitude and huxsPhase (huxs.h), with scaleFactor on integers; the conjugate of the
 * lowest integer saturates. dstRoiSize is W by H, and the spectrum in natural order, frequency 0 first. Source and
 * destination must not overlap.
 * Checks, in order: null pointers (huxStsNullPtr), width or height below 1 (huxStsBadSize), a step below 1
 * (huxStsBadStep), memory for one row (huxStsNullPtr, not huxStsNoMem; nothing is written then). */
HUX_API HuxStatus huxiMagnitudePack_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                            HuxiSize dstRoiSize);
HUX_API HuxStatus huxiMagnitudePack_32f_C3R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                            HuxiSize dstRoiSize);
HUX_API HuxStatus huxiMagnitudePack_16s_C1RSfs(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                               HuxiSize dstRoiSize, int scaleFactor);
HUX_API HuxStatus huxiMagnitudePack_16s_C3RSfs(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                               HuxiSize dstRoiSize, int scaleFactor);
HUX_API HuxStatus huxiMagnitudePack_32s_C1RSfs(const Hux32s* pSrc, int srcStep, Hux32s* pDst, int dstStep,
                                               HuxiSize dstRoiSize, int scaleFactor);
HUX_API HuxStatus huxiMagnitudePack_32s_C3RSfs(const Hux32s* pSrc, int srcStep, Hux32s* pDst, int dstStep,
                                               HuxiSize dstRoiSize, int scaleFactor);
HUX_API HuxStatus huxiPhasePack_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                        HuxiSize dstRoiSize);
HUX_API HuxStatus huxiPhasePack_32f_C3R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                        HuxiSize dstRoiSize);
HUX_API HuxStatus huxiPhasePack_16s_C1RSfs(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                           HuxiSize dstRoiSize, int scaleFactor);
HUX_API HuxStatus huxiPhasePack_16s_C3RSfs(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                           HuxiSize dstRoiSize, int scaleFactor);
HUX_API HuxStatus huxiPhasePack_32s_C1RSfs(const Hux32s* pSrc, int srcStep, Hux32s* pDst, int dstStep,
                                           HuxiSize dstRoiSize, int scaleFactor);
HUX_API HuxStatus huxiPhasePack_32s_C3RSfs(const Hux32s* pSrc, int srcStep, Hux32s* pDst, int dstStep,
                                           HuxiSize dstRoiSize, int scaleFactor);

/* Magnitude, Phase: magnitude and phase of each element of a complex image.
 * The rules are those of huxsMagnitude and huxsPhase (huxs.h), with scaleFactor on integers. The images must not
 * overlap.
 * Checks, in order: null pointers (huxStsNullPtr), width or height below 1 (huxStsBadSize), a step below 1
 * (huxStsBadStep). */
HUX_API HuxStatus huxiMagnitude_32fc32f_C1R(const Hux32fc* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                            HuxiSize roiSize);
HUX_API HuxStatus huxiMagnitude_32fc32f_C3R(const Hux32fc* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                            HuxiSize roiSize);
HUX_API HuxStatus huxiMagnitude_16sc16s_C1RSfs(const Hux16sc* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                               HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMagnitude_16sc16s_C3RSfs(const Hux16sc* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                               HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMagnitude_32sc32s_C1RSfs(const Hux32sc* pSrc, int srcStep, Hux32s* pDst, int dstStep,
                                               HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMagnitude_32sc32s_C3RSfs(const Hux32sc* pSrc, int srcStep, Hux32s* pDst, int dstStep,
                                               HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiPhase_32fc32f_C1R(const Hux32fc* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiPhase_32fc32f_C3R(const Hux32fc* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiPhase_16sc16s_C1RSfs(const Hux16sc* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                           HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiPhase_16sc16s_C3RSfs(const Hux16sc* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                           HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiPhase_32sc32s_C1RSfs(const Hux32sc* pSrc, int srcStep, Hux32s* pDst, int dstStep,
                                           HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiPhase_32sc32s_C3RSfs(const Hux32sc* pSrc, int srcStep, Hux32s* pDst, int dstStep,
                                           HuxiSize roiSize, int scaleFactor);

/* PolarToCart: a complex image from one of magnitudes and one of phases, which share srcStep.
 * The rules are those of huxsPolarToCart applied to each row (huxs.h): integer phases are multiplied by
 * 2^-phaseFixedPoint. The images must not overlap.
 * Checks, in order: null pointers (huxStsNullPtr), width or height below 1 (huxStsBadSize), a step below 1
 * (huxStsBadStep), phaseFixedPoint outside 0..15 (16sc), 0..31 (32sc) (huxStsBadSize). */
HUX_API HuxStatus huxiPolarToCart_32fc_C1R(const Hux32f* pSrcMagn, const Hux32f* pSrcPhase, int srcStep,
                                           HuxiSize roiSize, Hux32fc* pDst, int dstStep);
HUX_API HuxStatus huxiPolarToCart_32fc_C3R(const Hux32f* pSrcMagn, const Hux32f* pSrcPhase, int srcStep,
                                           HuxiSize roiSize, Hux32fc* pDst, int dstStep);
HUX_API HuxStatus huxiPolarToCart_16sc_C1R(const Hux16s* pSrcMagn, const Hux16s* pSrcPhase, int srcStep,
                                           int phaseFixedPoint, HuxiSize roiSize, Hux16sc* pDst, int dstStep);
HUX_API HuxStatus huxiPolarToCart_16sc_C3R(const Hux16s* pSrcMagn, const Hux16s* pSrcPhase, int srcStep,
                                           int phaseFixedPoint, HuxiSize roiSize, Hux16sc* pDst, int dstStep);
HUX_API HuxStatus huxiPolarToCart_32sc_C1R(const Hux32s* pSrcMagn, const Hux32s* pSrcPhase, int srcStep,
                                           int phaseFixedPoint, HuxiSize roiSize, Hux32sc* pDst, int dstStep);
HUX_API HuxStatus huxiPolarToCart_32sc_C3R(const Hux32s* pSrcMagn, const Hux32s* pSrcPhase, int srcStep,
                                           int phaseFixedPoint, HuxiSize roiSize, Hux32sc* pDst, int dstStep);

/* CplxExtendToPack, PackToCplxExtend: the packed spectrum from a full one, and the full spectrum from a packed one.
 * CplxExtendToPack reads columns 0 to W / 2 of the full spectrum, and of the outer ones rows 0 to H / 2.
 * PackToCplxExtend gives real elements an imaginary part of 0; the conjugate of the lowest integer saturates. srcSize
 * is W by H for both. Source and destination must not overlap.
 * Checks, in order: null pointers (huxStsNullPtr), width or height below 1 (huxStsBadSize), a step below 1
 * (huxStsBadStep). */
HUX_API HuxStatus huxiCplxExtendToPack_32fc32f_C1R(const Hux32fc* pSrc, int srcStep, HuxiSize srcSize, Hux32f* pDst,
                                                   int dstStep);
HUX_API HuxStatus huxiCplxExtendToPack_32fc32f_C3R(const Hux32fc* pSrc, int srcStep, HuxiSize srcSize, Hux32f* pDst,
                                                   int dstStep);
HUX_API HuxStatus huxiCplxExtendToPack_32sc32s_C1R(const Hux32sc* pSrc, int srcStep, HuxiSize srcSize, Hux32s* pDst,
                                                   int dstStep);
HUX_API HuxStatus huxiCplxExtendToPack_32sc32s_C3R(const Hux32sc* pSrc, int srcStep, HuxiSize srcSize, Hux32s* pDst,
                                                   int dstStep);
HUX_API HuxStatus huxiCplxExtendToPack_16sc16s_C1R(const Hux16sc* pSrc, int srcStep, HuxiSize srcSize, Hux16s* pDst,
                                                   int dstStep);
HUX_API HuxStatus huxiCplxExtendToPack_16sc16s_C3R(const Hux16sc* pSrc, int srcStep, HuxiSize srcSize, Hux16s* pDst,
                                                   int dstStep);
HUX_API HuxStatus huxiPackToCplxExtend_32f32fc_C1R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, Hux32fc* pDst,
                                                   int dstStep);
HUX_API HuxStatus huxiPackToCplxExtend_32s32sc_C1R(const Hux32s* pSrc, HuxiSize srcSize, int srcStep, Hux32sc* pDst,
                                                   int dstStep);

/* ---- Wavelets ---- */

/* States of wavelet transforms: one level, separable, with low-pass and high-pass filters of the caller's, and its
 * inverse.
 * Filtering a sequence s with taps t[0..len-1] and anchor a,
 *
 *   decimated   D(s)(i) = sum over m of t[m] * s(2i + a - m)
 *   stretched   U(s)(i) = sum over m of t[m] * u(i + a - m),  u(2j) = s(j), u(2j + 1) = 0
 *
 * the forward transform takes a region of 2 width by 2 height samples to four sub-bands of width by height: columns by
 * the low filter, then rows by the low one (Approx) and the high one (DetailY); columns by the high filter, then rows
 * by the low one (DetailX) and the high one (DetailXY), all decimated. The inverse stretches: the columns of Approx
 * (low) and DetailX (high) added up, whose rows go through the low filter, and those of DetailY (low) and DetailXY
 * (high), whose rows go through the high one; the sum is the image. It undoes the forward transform where the four
 * filters are such that it can.
 *
 *        low along rows     high along rows
 *     +------------------+------------------+
 *     |      Approx      |     DetailY      |   low along columns
 *     +------------------+------------------+
 *     |     DetailX      |     DetailXY     |   high along columns
 *     +------------------+------------------+
 *
 * Samples around the regions are read as they stand, and must be there. Forward: len - a - 1 rows and columns ahead of
 * the region and a - 1 behind it (none for a = 0), the larger of both filters for columns. Inverse, around each
 * sub-band: (len - a - 1) / 2 ahead and (a + 1) / 2 behind, of the filter that it goes through in that direction.
 * Everything is in single precision; sums begin with the last tap. C3 treats each channel by itself. A state is made
 * for one direction and one layout, is only read from then on, and may serve any number of threads at once.
 * Example:
 *   const Hux32f low[2] = {0.70710678f, 0.70710678f}, high[2] = {-0.70710678f, 0.70710678f};
 *   Hux32f image[8][8] = {{0}}, bands[4][4][4];  // Approx, DetailX, DetailY, DetailXY
 *   const HuxiSize band = {4, 4};
 *   const int imageStep = sizeof image[0], step = sizeof bands[0][0];
 *   HuxiWTRecord* state;
 *   int bytes;
 *   if (huxiWTFwdInitAlloc_32f_C1R(&state, low, 2, 1, high, 2, 1) == huxStsOk) {  // needs nothing around the image
 *     huxiWTFwdGetBufSize_C1R(state, &bytes);
 *     Hux8u* buffer = huxsMalloc_8u(bytes);
 *     if (buffer)
 *       huxiWTFwd_32f_C1R(image[0], imageStep, bands[0][0], step, bands[1][0], step, bands[2][0], step, bands[3][0],
 *                         step, band, state, buffer);
 *     huxsFree(buffer);
 *     huxiWTFwdFree_32f_C1R(state);
 *   }
 */
typedef struct HuxiWTRecord HuxiWTRecord;

/* WTFwdInitAlloc, WTInvInitAlloc: make a state, which keeps the taps, in *ppState, to be freed by the Free of its
 * kind.
 * pTapsLow and pTapsHigh hold lenLow and lenHigh floats, at any address; they are no longer needed afterwards.
 * Checks, in order: null pointers (huxStsNullPtr), lenLow or lenHigh below 2 (huxStsBadSize), an anchor outside
 * 0..len-1 (huxStsBadAnchor), memory (huxStsNoMem; also where GetBufSize would have to report more than a signed
 * 32-bit number holds). On failure *ppState is as it was. */
HUX_API HuxStatus huxiWTFwdInitAlloc_32f_C1R(HuxiWTRecord** ppState, const Hux32f* pTapsLow, int lenLow, int anchorLow,
                                             const Hux32f* pTapsHigh, int lenHigh, int anchorHigh);
HUX_API HuxStatus huxiWTFwdInitAlloc_32f_C3R(HuxiWTRecord** ppState, const Hux32f* pTapsLow, int lenLow, int anchorLow,
                                             const Hux32f* pTapsHigh, int lenHigh, int anchorHigh);
HUX_API HuxStatus huxiWTInvInitAlloc_32f_C1R(HuxiWTRecord** ppState, const Hux32f* pTapsLow, int lenLow, int anchorLow,
                                             const Hux32f* pTapsHigh, int lenHigh, int anchorHigh);
HUX_API HuxStatus huxiWTInvInitAlloc_32f_C3R(HuxiWTRecord** ppState, const Hux32f* pTapsLow, int lenLow, int anchorLow,
                                             const Hux32f* pTapsHigh, int lenHigh, int anchorHigh);

/* WTFwdFree, WTInvFree, WTFwdGetBufSize, WTInvGetBufSize: end a state; tell the bytes of a transform's work buffer.
 * Checks, in order: pState null (huxStsNullPtr), a state of another kind (huxStsBadContext), pSize null
 * (huxStsNullPtr). */
HUX_API HuxStatus huxiWTFwdFree_32f_C1R(HuxiWTRecord* pState);
HUX_API HuxStatus huxiWTFwdFree_32f_C3R(HuxiWTRecord* pState);
HUX_API HuxStatus huxiWTInvFree_32f_C1R(HuxiWTRecord* pState);
HUX_API HuxStatus huxiWTInvFree_32f_C3R(HuxiWTRecord* pState);
HUX_API HuxStatus huxiWTFwdGetBufSize_C1R(const HuxiWTRecord* pState, int* pSize);
HUX_API HuxStatus huxiWTFwdGetBufSize_C3R(const HuxiWTRecord* pState, int* pSize);
HUX_API HuxStatus huxiWTInvGetBufSize_C1R(const HuxiWTRecord* pState, int* pSize);
HUX_API HuxStatus huxiWTInvGetBufSize_C3R(const HuxiWTRecord* pState, int* pSize);

/* WTFwd, WTInv: the wavelet transform of a region to four sub-bands, and its inverse.
 * Fwd: dstRoiSize is the size of each sub-band; the source has twice as many columns and rows. Inv: srcRoiSize
 * likewise. All pointers address the first sample of their region; source and destination must not overlap. pBuffer is
 * work memory at any address, as large as GetBufSize tells, for this call alone; it must not be null. Steps are in
 * bytes and are not compared with the width.
 * Checks, in order, Fwd: pState null (huxStsNullPtr), a state of another kind (huxStsBadContext), pBuffer, pSrc or a
 * destination null (huxStsNullPtr), width or height below 1 (huxStsBadSize), a step below 1 (huxStsBadStep). Inv: the
 * same, but a null pBuffer comes with a null pState. */
HUX_API HuxStatus huxiWTFwd_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pApproxDst, int approxStep,
                                    Hux32f* pDetailXDst, int detailXStep, Hux32f* pDetailYDst, int detailYStep,
                                    Hux32f* pDetailXYDst, int detailXYStep, HuxiSize dstRoiSize,
                                    const HuxiWTRecord* pState, Hux8u* pBuffer);
HUX_API HuxStatus huxiWTFwd_32f_C3R(const Hux32f* pSrc, int srcStep, Hux32f* pApproxDst, int approxStep,
                                    Hux32f* pDetailXDst, int detailXStep, Hux32f* pDetailYDst, int detailYStep,
                                    Hux32f* pDetailXYDst, int detailXYStep, HuxiSize dstRoiSize,
                                    const HuxiWTRecord* pState, Hux8u* pBuffer);
HUX_API HuxStatus huxiWTInv_32f_C1R(const Hux32f* pApproxSrc, int approxStep, const Hux32f* pDetailXSrc,
                                    int detailXStep, const Hux32f* pDetailYSrc, int detailYStep,
                                    const Hux32f* pDetailXYSrc, int detailXYStep, HuxiSize srcRoiSize, Hux32f* pDst,
                                    int dstStep, const HuxiWTRecord* pState, Hux8u* pBuffer);
HUX_API HuxStatus huxiWTInv_32f_C3R(const Hux32f* pApproxSrc, int approxStep, const Hux32f* pDetailXSrc,
                                    int detailXStep, const Hux32f* pDetailYSrc, int detailYStep,
                                    const Hux32f* pDetailXYSrc, int detailXYStep, HuxiSize srcRoiSize, Hux32f* pDst,
                                    int dstStep, const HuxiWTRecord* pState, Hux8u* pBuffer);

HUX_END_C

#endif
