/* Frequency transforms of images, packed spectra, wavelets. Plain C99. */
#ifndef HUXI_TRANSFORM_H
#define HUXI_TRANSFORM_H

#include "huxdefs.h"

HUX_BEGIN_C

/* ---- FFT and DFT ---- */

/* The two-dimensional Fourier transform of an image, for sizes that are powers of two (FFT, told by their orders) and
 * for any (DFT): the one-dimensional transforms of huxs_transform.h of all rows, then of all columns; the inverse of a
 * real image takes the columns first. Each applies its own factor, so huxFftScaleFwd divides the forward transform by
 * width * height, huxFftScaleInv the inverse, huxFftScaleRoot both by the root of it, huxFftScaleNone neither.
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
 * complex images, R_32f for real ones, R_32s for real ones of integers. hint is kept and has no effect. */
typedef struct HuxiFFTRecord HuxiFFTRecord;
typedef struct HuxiDFTRecord HuxiDFTRecord;

/* InitAlloc: makes a context, to be freed by the Free of its kind.
 * Checks: ppCtx null (huxStsNullPtr), an order outside 0..30 (FFT, huxStsBadOrder), a size below 1 (DFT,
 * huxStsBadSize), memory (huxStsNoMem; also where GetBufSize would have to report more than a signed 32-bit number
 * holds), flag (huxStsBadFlag). On failure *ppCtx is as it was. */
HUX_API HuxStatus huxiFFTInitAlloc_C_32fc(HuxiFFTRecord** ppCtx, int orderX, int orderY, int flag,
                                          HuxAccuracyHint hint);
HUX_API HuxStatus huxiFFTInitAlloc_R_32f(HuxiFFTRecord** ppCtx, int orderX, int orderY, int flag, HuxAccuracyHint hint);
HUX_API HuxStatus huxiFFTInitAlloc_R_32s(HuxiFFTRecord** ppCtx, int orderX, int orderY, int flag, HuxAccuracyHint hint);
HUX_API HuxStatus huxiDFTInitAlloc_C_32fc(HuxiDFTRecord** ppCtx, int width, int height, int flag, HuxAccuracyHint hint);
HUX_API HuxStatus huxiDFTInitAlloc_R_32f(HuxiDFTRecord** ppCtx, int width, int height, int flag, HuxAccuracyHint hint);
HUX_API HuxStatus huxiDFTInitAlloc_R_32s(HuxiDFTRecord** ppCtx, int width, int height, int flag, HuxAccuracyHint hint);

/* Free: ends a context. GetBufSize: the bytes of the work buffer of a transform.
 * Checks: null pointers (huxStsNullPtr), a context of another kind (huxStsBadContext). */
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

/* CToC: the transform of a complex image. IR works in place. Source and destination may be the same image and must not
 * overlap otherwise. pBuffer is work memory at any address, as large as GetBufSize tells, for this call alone; when it
 * is null the call allocates its own. Steps are in bytes and are not compared with the width. Checks: pCtx null
 * (huxStsNullPtr), a context of another kind (huxStsBadContext), pSrc or pDst null (huxStsNullPtr), a step below 1
 * (huxStsBadStep), memory (huxStsNoMem). */
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

/* Fwd_RToPack: the spectrum of a real image. Inv_PackToR: the real image of a spectrum. AC4 transforms the first three
 * channels and leaves the fourth of the destination as it is. Buffer, overlap and checks as above. */
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

/* The same between 8u images and 32s spectra, computed in 32f. The results are multiplied by 2^-scaleFactor, rounded to
 * nearest with ties to even, and saturated; what goes in is not scaled. The context is one of R_32s. Buffer and checks
 * as above. */
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

/* The orthonormal cosine transform of an image of any size, and its inverse: those of huxs_transform.h on all rows,
 * then on all columns, in single precision. A context is made for one direction (Fwd, Inv) and one size, is only read
 * from then on, and may serve any number of threads at once; hint as there. */
typedef struct HuxiDCTRecord HuxiDCTRecord;

/* InitAlloc: makes a context, to be freed by the Free of its direction.
 * Checks: ppSpec null (huxStsNullPtr), size (huxStsBadSize), memory (huxStsNoMem; also where GetBufSize would have to
 * report more than a signed 32-bit number holds). On failure *ppSpec is as it was. */
HUX_API HuxStatus huxiDCTFwdInitAlloc_32f(HuxiDCTRecord** ppSpec, HuxiSize roiSize, HuxAccuracyHint hint);
HUX_API HuxStatus huxiDCTInvInitAlloc_32f(HuxiDCTRecord** ppSpec, HuxiSize roiSize, HuxAccuracyHint hint);

/* Free: ends a context. GetBufSize: the bytes of the work buffer of a transform.
 * Checks: null pointers (huxStsNullPtr), a context of the other direction or of another kind (huxStsBadContext). */
HUX_API HuxStatus huxiDCTFwdFree_32f(HuxiDCTRecord* pSpec);
HUX_API HuxStatus huxiDCTInvFree_32f(HuxiDCTRecord* pSpec);
HUX_API HuxStatus huxiDCTFwdGetBufSize_32f(const HuxiDCTRecord* pSpec, int* pSize);
HUX_API HuxStatus huxiDCTInvGetBufSize_32f(const HuxiDCTRecord* pSpec, int* pSize);

/* The transforms of a region of the context's size, each channel by itself; AC4 leaves the fourth channel of the
 * destination as it is. Source and destination may be the same image and must not overlap otherwise. pBuffer is work
 * memory at any address, as large as GetBufSize tells, for this call alone; when it is null the call allocates its own,
 * except for one channel of 8 by 8 with both steps 32, which needs none. Steps are in bytes and are not compared with
 * the width.
 * Checks: pSpec null (huxStsNullPtr), a context of the other direction or of another kind (huxStsBadContext), pSrc or
 * pDst null (huxStsNullPtr), a step below 1 (huxStsBadStep), memory (huxStsNoMem). */
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

/* The cosine transform of a block of 8 by 8 samples, u numbering rows of the result and v its columns:
 *
 *   forward  F(u, v) = c(u) c(v) / 4 * sum over y, x of f(y, x) cos((2x + 1) v pi / 16) cos((2y + 1) u pi / 16)
 *
 * with c(0) = 1 / sqrt(2) and c = 1 otherwise, and its inverse: no gain either way, so that a block of equal samples a
 * has F(0, 0) = 8a. A block is 64 samples in rows of 8, one row behind the other; where a step is given, that side has
 * rows at that distance in bytes. Source and destination may be the same block, and pointers any address.
 *
 * 32f works in single precision. 16s is a fixed-point transform in 32-bit arithmetic that wraps, rows first forward and
 * columns first inverse, with 16 bits between the passes: results are the same everywhere and within a rounding of the
 * true ones for samples of up to 12 bits.
 * Checks: null pointers (huxStsNullPtr), where a step is given, a step below 1 (huxStsBadStep). */
HUX_API HuxStatus huxiDCT8x8Fwd_32f_C1(const Hux32f* pSrc, Hux32f* pDst);
HUX_API HuxStatus huxiDCT8x8Fwd_32f_C1I(Hux32f* pSrcDst);
HUX_API HuxStatus huxiDCT8x8Inv_32f_C1(const Hux32f* pSrc, Hux32f* pDst);
HUX_API HuxStatus huxiDCT8x8Inv_32f_C1I(Hux32f* pSrcDst);
HUX_API HuxStatus huxiDCT8x8Fwd_16s_C1(const Hux16s* pSrc, Hux16s* pDst);
HUX_API HuxStatus huxiDCT8x8Fwd_16s_C1I(Hux16s* pSrcDst);
HUX_API HuxStatus huxiDCT8x8Inv_16s_C1(const Hux16s* pSrc, Hux16s* pDst);
HUX_API HuxStatus huxiDCT8x8Inv_16s_C1I(Hux16s* pSrcDst);

/* The same between blocks and images. Fwd_8u16s takes pixels as they are, FwdLS adds addVal to each in 16 bits that
 * wrap; Inv_16s8u limits results to 0..255. InvLSClip adds addVal, then writes clipMin for what is below clipMin, and
 * clipMax for what is not below clipMax. */
HUX_API HuxStatus huxiDCT8x8Fwd_16s_C1R(const Hux16s* pSrc, int srcStep, Hux16s* pDst);
HUX_API HuxStatus huxiDCT8x8Inv_16s_C1R(const Hux16s* pSrc, Hux16s* pDst, int dstStep);
HUX_API HuxStatus huxiDCT8x8Fwd_8u16s_C1R(const Hux8u* pSrc, int srcStep, Hux16s* pDst);
HUX_API HuxStatus huxiDCT8x8Inv_16s8u_C1R(const Hux16s* pSrc, Hux8u* pDst, int dstStep);
HUX_API HuxStatus huxiDCT8x8FwdLS_8u16s_C1R(const Hux8u* pSrc, int srcStep, Hux16s* pDst, Hux16s addVal);
HUX_API HuxStatus huxiDCT8x8InvLSClip_16s8u_C1R(const Hux16s* pSrc, Hux8u* pDst, int dstStep, Hux16s addVal,
                                                Hux8u clipMin, Hux8u clipMax);

/* The inverse of a block of which only the first 2 by 2, or 4 by 4, coefficients are looked at; the others count as 0.
 * Results may differ from those of the whole inverse by a rounding. */
HUX_API HuxStatus huxiDCT8x8Inv_2x2_16s_C1(const Hux16s* pSrc, Hux16s* pDst);
HUX_API HuxStatus huxiDCT8x8Inv_2x2_16s_C1I(Hux16s* pSrcDst);
HUX_API HuxStatus huxiDCT8x8Inv_4x4_16s_C1(const Hux16s* pSrc, Hux16s* pDst);
HUX_API HuxStatus huxiDCT8x8Inv_4x4_16s_C1I(Hux16s* pSrcDst);

/* Zigzag: the coefficients of a block along its antidiagonals, from the first to the last, (0,0) (0,1) (1,0) (2,0)
 * (1,1) (0,2) ... in (row, column); Inv puts them back. Checks: null pointers (huxStsNullPtr). */
HUX_API HuxStatus huxiZigzagFwd8x8_16s_C1(const Hux16s* pSrc, Hux16s* pDst);
HUX_API HuxStatus huxiZigzagInv8x8_16s_C1(const Hux16s* pSrc, Hux16s* pDst);

/* ---- Packed spectra ---- */

/* Operations on the packed spectra of real images, and the polar functions on complex images. The spectrum of a real
 * image of W by H pixels lies in an image of W by H elements. With R(u, v) and I(u, v) the parts of its value at
 * frequencies u along rows and v along columns, for W = 6 and H = 6:
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
 * not stored is the conjugate of F((W - u) mod W, (H - v) mod H). In images of several channels each has this layout of
 * its own. Steps are in bytes and are not compared with the width; nothing tells a packed spectrum from another image.
 */

/* MulPack: the product of two packed spectra, (a + ib)(c + id) where the pair of the first is a + ib, and a * c of real
 * elements: circular convolution of the images. MulPackConj: the first times the conjugate of the second, correlation.
 * IR forms put the result where the second factor is; AC4 leaves the fourth channel of the destination as it is.
 * Source and destination may be the same image.
 * Integers: the exact parts times 2^-scaleFactor, rounded toward minus infinity, then saturated. Where a * d is the
 * square of the lowest number (a and d both -32768, or -2^31), b * c is left out of a * d + b * c.
 * Checks: null pointers (huxStsNullPtr), a step below 1 (huxStsBadStep), size (huxStsBadSize). */
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

/* MagnitudePack, PhasePack: magnitude and phase of the full spectrum, W by H elements, from a packed one, by the rules
 * of huxsMagnitude and huxsPhase; the conjugate of the lowest integer saturates. Source and destination must not
 * overlap.
 * Checks: null pointers (huxStsNullPtr), size (huxStsBadSize), a step below 1 (huxStsBadStep), memory for one row
 * (huxStsNullPtr, not huxStsNoMem). */
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

/* Magnitude, Phase: of each element of a complex image, by the rules of huxsMagnitude and huxsPhase (huxs.h).
 * Checks: null pointers (huxStsNullPtr), size (huxStsBadSize), a step below 1 (huxStsBadStep). */
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

/* PolarToCart: a complex image from one of magnitudes and one of phases, which share srcStep, by the rules of
 * huxsPolarToCart applied to each row (huxs.h). Checks as above, then phaseFixedPoint outside 0..15 (16sc), 0..31
 * (32sc) (huxStsBadSize). */
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

/* CplxExtendToPack: the packed spectrum from a full one, of which columns 0 to W / 2 are read, and of the outer ones
 * rows 0 to H / 2. PackToCplxExtend: the full spectrum from a packed one; real elements get an imaginary part of 0, the
 * conjugate of the lowest integer saturates. Source and destination must not overlap. Checks as Magnitude. */
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

/* One level of a separable wavelet transform with filters of the caller's, low-pass and high-pass, and its inverse.
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
 * for one direction and one layout, is only read from then on, and may serve any number of threads at once. */
typedef struct HuxiWTRecord HuxiWTRecord;

/* InitAlloc: makes a state, which keeps the taps, to be freed by the Free of its kind.
 * Checks: null pointers (huxStsNullPtr), lenLow or lenHigh below 2 (huxStsBadSize), an anchor outside 0..len-1
 * (huxStsBadAnchor), memory (huxStsNoMem; also where GetBufSize would have to report more than a signed 32-bit number
 * holds). On failure *ppState is as it was. */
HUX_API HuxStatus huxiWTFwdInitAlloc_32f_C1R(HuxiWTRecord** ppState, const Hux32f* pTapsLow, int lenLow, int anchorLow,
                                             const Hux32f* pTapsHigh, int lenHigh, int anchorHigh);
HUX_API HuxStatus huxiWTFwdInitAlloc_32f_C3R(HuxiWTRecord** ppState, const Hux32f* pTapsLow, int lenLow, int anchorLow,
                                             const Hux32f* pTapsHigh, int lenHigh, int anchorHigh);
HUX_API HuxStatus huxiWTInvInitAlloc_32f_C1R(HuxiWTRecord** ppState, const Hux32f* pTapsLow, int lenLow, int anchorLow,
                                             const Hux32f* pTapsHigh, int lenHigh, int anchorHigh);
HUX_API HuxStatus huxiWTInvInitAlloc_32f_C3R(HuxiWTRecord** ppState, const Hux32f* pTapsLow, int lenLow, int anchorLow,
                                             const Hux32f* pTapsHigh, int lenHigh, int anchorHigh);

/* Free: ends a state. GetBufSize: the bytes of the work buffer of a transform.
 * Checks: pState null (huxStsNullPtr), a state of another kind (huxStsBadContext), pSize null (huxStsNullPtr). */
HUX_API HuxStatus huxiWTFwdFree_32f_C1R(HuxiWTRecord* pState);
HUX_API HuxStatus huxiWTFwdFree_32f_C3R(HuxiWTRecord* pState);
HUX_API HuxStatus huxiWTInvFree_32f_C1R(HuxiWTRecord* pState);
HUX_API HuxStatus huxiWTInvFree_32f_C3R(HuxiWTRecord* pState);
HUX_API HuxStatus huxiWTFwdGetBufSize_C1R(const HuxiWTRecord* pState, int* pSize);
HUX_API HuxStatus huxiWTFwdGetBufSize_C3R(const HuxiWTRecord* pState, int* pSize);
HUX_API HuxStatus huxiWTInvGetBufSize_C1R(const HuxiWTRecord* pState, int* pSize);
HUX_API HuxStatus huxiWTInvGetBufSize_C3R(const HuxiWTRecord* pState, int* pSize);

/* Fwd: dstRoiSize is the size of each sub-band. Inv: srcRoiSize likewise. pSrc and pDst point to the first sample of
 * the region; source and destination must not overlap. pBuffer is work memory at any address, as large as GetBufSize
 * tells, for this call alone. Steps are in bytes and are not compared with the width. Checks, Fwd: pState null
 * (huxStsNullPtr), a state of another kind (huxStsBadContext), pBuffer, pSrc or a destination null (huxStsNullPtr),
 * size (huxStsBadSize), a step below 1 (huxStsBadStep). Inv: the same, but a null pBuffer comes with a null pState. */
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
