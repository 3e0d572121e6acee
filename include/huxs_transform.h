/* Frequency transforms of vectors. Plain C99. */
#ifndef HUXS_TRANSFORM_H
#define HUXS_TRANSFORM_H

#include "huxdefs.h"

HUX_BEGIN_C

/* ---- FFT ---- */

/* Contexts of the FFT: the Fourier transform of N = 2^order numbers, order 0 to 30.
 *
 *   forward   X[k] = sum over n of x[n] * exp(-2 pi i n k / N)
 *   inverse   x[n] = sum over k of X[k] * exp(+2 pi i n k / N)
 *
 * either of them times a factor that the flag of creation tells:
 *
 *   huxFftScaleFwd    forward times 1/N, inverse as it is
 *   huxFftScaleInv    forward as it is, inverse times 1/N
 *   huxFftScaleRoot   both times 1/sqrt(N)
 *   huxFftScaleNone   neither
 *
 * All of it is computed in single precision. A real sequence of N numbers has a spectrum with X[N - k] the conjugate
 * of X[k]; half of it tells all, and lies in N floats in one of two ways, where R(k) and I(k) are the parts of X[k]:
 *
 *   Perm   R(0) R(N/2) R(1) I(1) R(2) I(2) ... R(N/2-1) I(N/2-1)
 *   Pack   R(0) R(1) I(1) R(2) I(2) ... R(N/2-1) I(N/2-1) R(N/2)
 *
 * N = 1 has just R(0), and N = 2 has R(0) R(1) in both.
 *
 * A context holds the tables of a length. It is made once, is only read from then on, and may serve any number of
 * threads at once. hint is kept and has no effect.
 * Example:
 *   Hux32f x[8] = {4, 3.7f, 3, 2.3f, 2, 2.3f, 3, 3.7f}, spectrum[8];
 *   HuxsFFTRecord* context;
 *   if (huxsFFTInitAlloc_R_32f(&context, 3, huxFftScaleInv, huxHintNone) == huxStsOk) {
 *     huxsFFTFwd_RToPack_32f(x, spectrum, context, NULL);  // NULL: the call allocates what it needs
 *     huxsFFTInv_PackToR_32f(spectrum, x, context, NULL);
 *     huxsFFTFree_R_32f(context);
 *   }
 */
typedef struct HuxsFFTRecord HuxsFFTRecord;

/* FFTInitAlloc: makes a context, complex (C) or real (R), in *ppCtx, to be freed by the Free of its kind.
 * Checks, in order: ppCtx null (huxStsNullPtr), order outside 0..30 (huxStsBadOrder), memory (huxStsNoMem; also where
 * GetSize would have to report more than a signed 32-bit number holds), flag none of the four (huxStsBadFlag). On
 * failure *ppCtx is as it was. */
HUX_API HuxStatus huxsFFTInitAlloc_C_32fc(HuxsFFTRecord** ppCtx, int order, int flag, HuxAccuracyHint hint);
HUX_API HuxStatus huxsFFTInitAlloc_R_32f(HuxsFFTRecord** ppCtx, int order, int flag, HuxAccuracyHint hint);

/* FFTGetSize: the bytes of a context in memory of the caller's, and of the memory that it works with.
 * pSize: of the context; pInitBufSize: of the memory that only its making needs; pBufSize: of the work buffer of a
 * transform. The latter two may be 0. flag and hint are not looked at.
 * Checks, in order: order outside 0..30 (huxStsBadOrder), null pointers (huxStsNullPtr), a size beyond a signed 32-bit
 * number (huxStsNoMem). On failure nothing is written. */
HUX_API HuxStatus huxsFFTGetSize_C_32fc(int order, int flag, HuxAccuracyHint hint, int* pSize, int* pInitBufSize,
                                        int* pBufSize);
HUX_API HuxStatus huxsFFTGetSize_R_32f(int order, int flag, HuxAccuracyHint hint, int* pSize, int* pInitBufSize,
                                       int* pBufSize);

/* FFTInit: makes a context in the caller's memory pMem, and sets *ppCtx to it.
 * pMem has the size that GetSize reports and may lie at any address; the context lives as long as pMem, at that
 * address. pInitBuf is no longer needed afterwards; up to order 3 it is not looked at and may be null.
 * Checks, in order: ppCtx null (huxStsNullPtr), order outside 0..30 (huxStsBadOrder), pMem null (huxStsNullPtr), flag
 * none of the four (huxStsBadFlag), pInitBuf null from order 4 on (huxStsNullPtr), a size that GetSize refuses
 * (huxStsNoMem). On failure *ppCtx is as it was.
 * Example:
 *   int contextBytes, makingBytes, workBytes;
 *   HuxsFFTRecord* context;
 *   huxsFFTGetSize_C_32fc(12, huxFftScaleInv, huxHintNone, &contextBytes, &makingBytes, &workBytes);
 *   Hux8u *memory = huxsMalloc_8u(contextBytes), *making = huxsMalloc_8u(makingBytes);
 *   if (memory && making) huxsFFTInit_C_32fc(&context, 12, huxFftScaleInv, huxHintNone, memory, making);
 *   huxsFree(making);
 *   huxsFree(memory);  // behind the last transform
 */
HUX_API HuxStatus huxsFFTInit_C_32fc(HuxsFFTRecord** ppCtx, int order, int flag, HuxAccuracyHint hint, Hux8u* pMem,
                                     Hux8u* pInitBuf);
HUX_API HuxStatus huxsFFTInit_R_32f(HuxsFFTRecord** ppCtx, int order, int flag, HuxAccuracyHint hint, Hux8u* pMem,
                                    Hux8u* pInitBuf);

/* FFTFree: ends a context, and frees its memory if it came from InitAlloc.
 * Checks, in order: pCtx null (huxStsNullPtr), a context of another kind (huxStsBadContext). */
HUX_API HuxStatus huxsFFTFree_C_32fc(HuxsFFTRecord* pCtx);
HUX_API HuxStatus huxsFFTFree_R_32f(HuxsFFTRecord* pCtx);

/* FFTGetBufSize: the bytes of the work buffer of a transform; 0 up to a complex order of 12 (order 13 of a real
 * context).
 * Checks, in order: null pointers (huxStsNullPtr), a context of another kind (huxStsBadContext). */
HUX_API HuxStatus huxsFFTGetBufSize_C_32fc(const HuxsFFTRecord* pCtx, int* pSize);
HUX_API HuxStatus huxsFFTGetBufSize_R_32f(const HuxsFFTRecord* pCtx, int* pSize);

/* FFTFwd, FFTInv: the transforms of vectors of N elements.
 * CToC: complex to complex, in natural order, frequency 0 first. Fwd_RToPack and Fwd_RToPerm take N real numbers to a
 * spectrum, Inv_PackToR and Inv_PermToR take one back. pSrc and pDst hold N elements each, at any address; they may be
 * equal and must not overlap otherwise. pBuffer is work memory at any address, as large as GetBufSize tells, for this
 * call alone; when it is null the call allocates its own where it needs any.
 * Checks, in order: pCtx null (huxStsNullPtr), a context of another kind (huxStsBadContext), pSrc or pDst null
 * (huxStsNullPtr), memory (huxStsNoMem; nothing is written then). */
HUX_API HuxStatus huxsFFTFwd_CToC_32fc(const Hux32fc* pSrc, Hux32fc* pDst, const HuxsFFTRecord* pCtx, Hux8u* pBuffer);
HUX_API HuxStatus huxsFFTInv_CToC_32fc(const Hux32fc* pSrc, Hux32fc* pDst, const HuxsFFTRecord* pCtx, Hux8u* pBuffer);
HUX_API HuxStatus huxsFFTFwd_RToPack_32f(const Hux32f* pSrc, Hux32f* pDst, const HuxsFFTRecord* pCtx, Hux8u* pBuffer);
HUX_API HuxStatus huxsFFTFwd_RToPerm_32f(const Hux32f* pSrc, Hux32f* pDst, const HuxsFFTRecord* pCtx, Hux8u* pBuffer);
HUX_API HuxStatus huxsFFTInv_PackToR_32f(const Hux32f* pSrc, Hux32f* pDst, const HuxsFFTRecord* pCtx, Hux8u* pBuffer);
HUX_API HuxStatus huxsFFTInv_PermToR_32f(const Hux32f* pSrc, Hux32f* pDst, const HuxsFFTRecord* pCtx, Hux8u* pBuffer);

/* ---- DFT ---- */

/* Contexts of the DFT: the Fourier transform of any number of elements.
 * Sums, signs and flags are those of the FFT above, with the length for N. Powers of two give the very values of the
 * FFT. How others are computed depends on the length: by mixed radix where its factors are all below 151, else by a
 * convolution (from 151 on, real odd lengths from 181 on), else as the sum stands. A real spectrum is in the order
 * Pack:
 *
 *   even N   R(0) R(1) I(1) R(2) I(2) ... R(N/2-1) I(N/2-1) R(N/2)
 *   odd N    R(0) R(1) I(1) R(2) I(2) ... R((N-1)/2) I((N-1)/2)
 *
 * A context is only read once it is made, and may serve any number of threads at once. hint is kept and has no effect.
 * Example:
 *   Hux32f x[5] = {1, 2, 3, 4, 5};
 *   HuxsDFTRecord* context;
 *   if (huxsDFTInitAlloc_R_32f(&context, 5, huxFftScaleFwd, huxHintNone) == huxStsOk) {
 *     huxsDFTFwd_RToPack_32f(x, x, context, NULL);  // x[0] is the mean
 *     huxsDFTFree_R_32f(context);
 *   }
 */
typedef struct HuxsDFTRecord HuxsDFTRecord;

/* DFTInitAlloc: makes a context, complex (C) or real (R), in *ppCtx, to be freed by the Free of its kind.
 * Checks, in order: ppCtx null (huxStsNullPtr), length below 1 (huxStsBadSize), memory (huxStsNoMem; also where
 * GetBufSize would have to report more than a signed 32-bit number holds), flag none of the four (huxStsBadFlag). On
 * failure *ppCtx is as it was. */
HUX_API HuxStatus huxsDFTInitAlloc_C_32fc(HuxsDFTRecord** ppCtx, int length, int flag, HuxAccuracyHint hint);
HUX_API HuxStatus huxsDFTInitAlloc_R_32f(HuxsDFTRecord** ppCtx, int length, int flag, HuxAccuracyHint hint);

/* DFTFree, DFTGetBufSize: end a context; tell the bytes of the work buffer of a transform, which may be 0.
 * Checks, in order: null pointers (huxStsNullPtr), a context of another kind (huxStsBadContext). */
HUX_API HuxStatus huxsDFTFree_C_32fc(HuxsDFTRecord* pCtx);
HUX_API HuxStatus huxsDFTFree_R_32f(HuxsDFTRecord* pCtx);
HUX_API HuxStatus huxsDFTGetBufSize_C_32fc(const HuxsDFTRecord* pCtx, int* pSize);
HUX_API HuxStatus huxsDFTGetBufSize_R_32f(const HuxsDFTRecord* pCtx, int* pSize);

/* DFTFwd, DFTInv: the transforms of vectors of as many elements as the length tells.
 * CToC: complex to complex, in natural order, frequency 0 first; RToPack: real numbers to a spectrum; PackToR: back.
 * pSrc and pDst may lie at any address; they may be equal and must not overlap otherwise. pBuffer is work memory at
 * any address, as large as GetBufSize tells, for this call alone; when it is null the call allocates its own where it
 * needs any.
 * Checks, in order: pCtx null (huxStsNullPtr), a context of another kind (huxStsBadContext), pSrc or pDst null
 * (huxStsNullPtr), memory (huxStsNoMem; nothing is written then). */
HUX_API HuxStatus huxsDFTFwd_CToC_32fc(const Hux32fc* pSrc, Hux32fc* pDst, const HuxsDFTRecord* pCtx, Hux8u* pBuffer);
HUX_API HuxStatus huxsDFTInv_CToC_32fc(const Hux32fc* pSrc, Hux32fc* pDst, const HuxsDFTRecord* pCtx, Hux8u* pBuffer);
HUX_API HuxStatus huxsDFTFwd_RToPack_32f(const Hux32f* pSrc, Hux32f* pDst, const HuxsDFTRecord* pCtx, Hux8u* pBuffer);
HUX_API HuxStatus huxsDFTInv_PackToR_32f(const Hux32f* pSrc, Hux32f* pDst, const HuxsDFTRecord* pCtx, Hux8u* pBuffer);

/* ---- DCT ---- */

/* Contexts of the DCT: the orthonormal cosine transform of N numbers, any N, and its inverse.
 *
 *   forward  X[0] = 1 / sqrt(N) * sum of x[n],  X[k] = sqrt(2 / N) * sum over n of x[n] * cos(pi (2n + 1) k / 2N)
 *
 * It is computed in single precision: lengths 1, 2, 4 and 8 as they stand; powers of two by repeated halves, whose
 * errors grow with the root of N, or from 1024 on with hint huxHintAccurate by a Fourier transform, which takes
 * longer; other lengths up to 100 by the sum, longer ones by a Fourier transform. No other hint has an effect. A
 * context is made for one direction (Fwd, Inv) and one length, is only read from then on, and may serve any number of
 * threads at once.
 * Example:
 *   Hux32f x[10] = {1, 2, 3, 4, 5, 5, 4, 3, 2, 1};
 *   HuxsDCTRecord* context;
 *   if (huxsDCTFwdInitAlloc_32f(&context, 10, huxHintNone) == huxStsOk) {
 *     huxsDCTFwd_32f(x, x, context, NULL);
 *     huxsDCTFwdFree_32f(context);
 *   }
 */
typedef struct HuxsDCTRecord HuxsDCTRecord;

/* DCTFwdInitAlloc, DCTInvInitAlloc: make a context, in *ppCtx, to be freed by the Free of its direction.
 * Checks, in order: ppCtx null (huxStsNullPtr), length below 1 (huxStsBadSize), memory (huxStsNoMem; also where
 * GetSize would have to report more than a signed 32-bit number holds). On failure *ppCtx is as it was. */
HUX_API HuxStatus huxsDCTFwdInitAlloc_32f(HuxsDCTRecord** ppCtx, int length, HuxAccuracyHint hint);
HUX_API HuxStatus huxsDCTInvInitAlloc_32f(HuxsDCTRecord** ppCtx, int length, HuxAccuracyHint hint);

/* DCTFwdGetSize, DCTInvGetSize: the bytes of a context in memory of the caller's, and of the memory that it works
 * with.
 * pSize: of the context; pInitBufSize: of the memory that only its making needs; pBufSize: of the work buffer of a
 * transform. The latter two may be 0.
 * Checks, in order: length below 1 (huxStsBadSize), null pointers (huxStsNullPtr), a size beyond a signed 32-bit
 * number (huxStsNoMem). On failure nothing is written. */
HUX_API HuxStatus huxsDCTFwdGetSize_32f(int length, HuxAccuracyHint hint, int* pSize, int* pInitBufSize, int* pBufSize);
HUX_API HuxStatus huxsDCTInvGetSize_32f(int length, HuxAccuracyHint hint, int* pSize, int* pInitBufSize, int* pBufSize);

/* DCTFwdInit, DCTInvInit: make a context in the caller's memory pMem, and set *ppCtx to it.
 * pMem has the size that GetSize reports and may lie at any address; the context lives as long as pMem, at that
 * address. pInitBuf is no longer needed afterwards, and not looked at where GetSize reports 0 for it.
 * Checks, in order: ppCtx null (huxStsNullPtr), length below 1 (huxStsBadSize), pMem null, pInitBuf null where it is
 * needed (huxStsNullPtr), a size that GetSize refuses (huxStsNoMem). On failure *ppCtx is as it was. */
HUX_API HuxStatus huxsDCTFwdInit_32f(HuxsDCTRecord** ppCtx, int length, HuxAccuracyHint hint, Hux8u* pMem,
                                     Hux8u* pInitBuf);
HUX_API HuxStatus huxsDCTInvInit_32f(HuxsDCTRecord** ppCtx, int length, HuxAccuracyHint hint, Hux8u* pMem,
                                     Hux8u* pInitBuf);

/* DCTFwdFree, DCTInvFree, DCTFwdGetBufSize, DCTInvGetBufSize: end a context; tell the bytes of a transform's work
 * buffer.
 * Free gives back the memory of a context from InitAlloc. The size goes to *pSize, and may be 0.
 * Checks, in order: null pointers (huxStsNullPtr), a context of the other direction or of another kind
 * (huxStsBadContext). */
HUX_API HuxStatus huxsDCTFwdFree_32f(HuxsDCTRecord* pCtx);
HUX_API HuxStatus huxsDCTInvFree_32f(HuxsDCTRecord* pCtx);
HUX_API HuxStatus huxsDCTFwdGetBufSize_32f(const HuxsDCTRecord* pCtx, int* pSize);
HUX_API HuxStatus huxsDCTInvGetBufSize_32f(const HuxsDCTRecord* pCtx, int* pSize);

/* DCTFwd, DCTInv: the cosine transform of N numbers, and its inverse.
 * pSrc and pDst hold N numbers each, at any address; they may be equal and must not overlap otherwise. pBuffer is work
 * memory at any address, as large as GetBufSize tells, for this call alone; when it is null the call allocates its own
 * where it needs any.
 * Checks, in order: pCtx null (huxStsNullPtr), a context of the other direction or of another kind (huxStsBadContext),
 * pSrc or pDst null (huxStsNullPtr), memory (huxStsNoMem; nothing is written then). */
HUX_API HuxStatus huxsDCTFwd_32f(const Hux32f* pSrc, Hux32f* pDst, const HuxsDCTRecord* pCtx, Hux8u* pBuffer);
HUX_API HuxStatus huxsDCTInv_32f(const Hux32f* pSrc, Hux32f* pDst, const HuxsDCTRecord* pCtx, Hux8u* pBuffer);

HUX_END_C

#endif
