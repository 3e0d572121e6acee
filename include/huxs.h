/* hux vector functions. Plain C99. */
#ifndef HUXS_H
#define HUXS_H

#include "huxdefs.h"
#include "huxs_transform.h"

HUX_BEGIN_C

/* ---- Memory ---- */

/* Malloc: allocates len elements, aligned to 32 bytes, whose contents are not initialised.
 * Null when len is below 1 or memory runs out. The caller frees the vector by huxsFree, never by free.
 * Example:
 *   Hux32f* samples = huxsMalloc_32f(1000);
 *   if (samples) huxsZero_32f(samples, 1000);
 *   huxsFree(samples);
 */
HUX_API Hux8u* huxsMalloc_8u(int len);
HUX_API Hux8s* huxsMalloc_8s(int len);
HUX_API Hux16u* huxsMalloc_16u(int len);
HUX_API Hux16s* huxsMalloc_16s(int len);
HUX_API Hux32u* huxsMalloc_32u(int len);
HUX_API Hux32s* huxsMalloc_32s(int len);
HUX_API Hux32f* huxsMalloc_32f(int len);
HUX_API Hux16sc* huxsMalloc_16sc(int len);
HUX_API Hux32sc* huxsMalloc_32sc(int len);
HUX_API Hux32fc* huxsMalloc_32fc(int len);
HUX_API Hux64fc* huxsMalloc_64fc(int len);

/* Free: frees a vector from huxsMalloc, or an image from huxiMalloc; a null pointer is ignored. */
HUX_API void huxsFree(void* pVector);

/* ---- Arithmetic ---- */

/* Arithmetic on vectors of len elements: Add, Sub, Mul, Div and, with a constant, AddC, SubC, MulC, DivC.
 *   Add  pSrc1 + pSrc2     Sub  pSrc2 - pSrc1     Mul  pSrc1 * pSrc2     Div  pSrc2 / pSrc1
 *   AddC, SubC, MulC, DivC: pSrc and then value
 * In place, pSrc stands for pSrc1, and pSrcDst for pSrc2 and pDst. pDst may be a source, and must not overlap one
 * otherwise. Integer results (Sfs) are multiplied by 2^-scaleFactor, rounded to nearest with ties to even, and
 * saturated; float results are not scaled. They are those of the image functions of the same names, see huxi_arith.h.
 * Div by zero is a warning (huxStsDivByZeroWarn): the whole vector is written, with what the image functions give
 * there.
 * Checks, in order: Add and Sub on 16sc and 32fc: len below 1 (huxStsBadSize); null pointers (huxStsNullPtr), len
 * below 1 (huxStsBadSize), DivC: a zero constant (huxStsDivByZero). */
HUX_API HuxStatus huxsAdd_32f(const Hux32f* pSrc1, const Hux32f* pSrc2, Hux32f* pDst, int len);
HUX_API HuxStatus huxsAdd_32f_I(const Hux32f* pSrc, Hux32f* pSrcDst, int len);
HUX_API HuxStatus huxsAdd_32fc(const Hux32fc* pSrc1, const Hux32fc* pSrc2, Hux32fc* pDst, int len);
HUX_API HuxStatus huxsAdd_32fc_I(const Hux32fc* pSrc, Hux32fc* pSrcDst, int len);
HUX_API HuxStatus huxsAdd_16s_Sfs(const Hux16s* pSrc1, const Hux16s* pSrc2, Hux16s* pDst, int len, int scaleFactor);
HUX_API HuxStatus huxsAdd_16s_ISfs(const Hux16s* pSrc, Hux16s* pSrcDst, int len, int scaleFactor);
HUX_API HuxStatus huxsAdd_16sc_Sfs(const Hux16sc* pSrc1, const Hux16sc* pSrc2, Hux16sc* pDst, int len, int scaleFactor);
HUX_API HuxStatus huxsAdd_16sc_ISfs(const Hux16sc* pSrc, Hux16sc* pSrcDst, int len, int scaleFactor);
HUX_API HuxStatus huxsAdd_32s_Sfs(const Hux32s* pSrc1, const Hux32s* pSrc2, Hux32s* pDst, int len, int scaleFactor);
HUX_API HuxStatus huxsAdd_32s_ISfs(const Hux32s* pSrc, Hux32s* pSrcDst, int len, int scaleFactor);
HUX_API HuxStatus huxsAdd_32sc_Sfs(const Hux32sc* pSrc1, const Hux32sc* pSrc2, Hux32sc* pDst, int len, int scaleFactor);
HUX_API HuxStatus huxsAdd_32sc_ISfs(const Hux32sc* pSrc, Hux32sc* pSrcDst, int len, int scaleFactor);

HUX_API HuxStatus huxsSub_32f(const Hux32f* pSrc1, const Hux32f* pSrc2, Hux32f* pDst, int len);
HUX_API HuxStatus huxsSub_32f_I(const Hux32f* pSrc, Hux32f* pSrcDst, int len);
HUX_API HuxStatus huxsSub_32fc(const Hux32fc* pSrc1, const Hux32fc* pSrc2, Hux32fc* pDst, int len);
HUX_API HuxStatus huxsSub_32fc_I(const Hux32fc* pSrc, Hux32fc* pSrcDst, int len);
HUX_API HuxStatus huxsSub_16s_Sfs(const Hux16s* pSrc1, const Hux16s* pSrc2, Hux16s* pDst, int len, int scaleFactor);
HUX_API HuxStatus huxsSub_16s_ISfs(const Hux16s* pSrc, Hux16s* pSrcDst, int len, int scaleFactor);
HUX_API HuxStatus huxsSub_16sc_Sfs(const Hux16sc* pSrc1, const Hux16sc* pSrc2, Hux16sc* pDst, int len, int scaleFactor);
HUX_API HuxStatus huxsSub_16sc_ISfs(const Hux16sc* pSrc, Hux16sc* pSrcDst, int len, int scaleFactor);
HUX_API HuxStatus huxsSub_32s_Sfs(const Hux32s* pSrc1, const Hux32s* pSrc2, Hux32s* pDst, int len, int scaleFactor);
HUX_API HuxStatus huxsSub_32s_ISfs(const Hux32s* pSrc, Hux32s* pSrcDst, int len, int scaleFactor);
HUX_API HuxStatus huxsSub_32sc_Sfs(const Hux32sc* pSrc1, const Hux32sc* pSrc2, Hux32sc* pDst, int len, int scaleFactor);
HUX_API HuxStatus huxsSub_32sc_ISfs(const Hux32sc* pSrc, Hux32sc* pSrcDst, int len, int scaleFactor);

HUX_API HuxStatus huxsAddC_32fc(const Hux32fc* pSrc, Hux32fc value, Hux32fc* pDst, int len);
HUX_API HuxStatus huxsAddC_32fc_I(Hux32fc value, Hux32fc* pSrcDst, int len);
HUX_API HuxStatus huxsAddC_16sc_Sfs(const Hux16sc* pSrc, Hux16sc value, Hux16sc* pDst, int len, int scaleFactor);
HUX_API HuxStatus huxsAddC_16sc_ISfs(Hux16sc value, Hux16sc* pSrcDst, int len, int scaleFactor);
HUX_API HuxStatus huxsAddC_32sc_Sfs(const Hux32sc* pSrc, Hux32sc value, Hux32sc* pDst, int len, int scaleFactor);
HUX_API HuxStatus huxsAddC_32sc_ISfs(Hux32sc value, Hux32sc* pSrcDst, int len, int scaleFactor);

HUX_API HuxStatus huxsSubC_32f(const Hux32f* pSrc, Hux32f value, Hux32f* pDst, int len);
HUX_API HuxStatus huxsSubC_32f_I(Hux32f value, Hux32f* pSrcDst, int len);
HUX_API HuxStatus huxsSubC_32fc(const Hux32fc* pSrc, Hux32fc value, Hux32fc* pDst, int len);
HUX_API HuxStatus huxsSubC_32fc_I(Hux32fc value, Hux32fc* pSrcDst, int len);
HUX_API HuxStatus huxsSubC_16sc_Sfs(const Hux16sc* pSrc, Hux16sc value, Hux16sc* pDst, int len, int scaleFactor);
HUX_API HuxStatus huxsSubC_16sc_ISfs(Hux16sc value, Hux16sc* pSrcDst, int len, int scaleFactor);
HUX_API HuxStatus huxsSubC_32sc_Sfs(const Hux32sc* pSrc, Hux32sc value, Hux32sc* pDst, int len, int scaleFactor);
HUX_API HuxStatus huxsSubC_32sc_ISfs(Hux32sc value, Hux32sc* pSrcDst, int len, int scaleFactor);

HUX_API HuxStatus huxsMul_32fc(const Hux32fc* pSrc1, const Hux32fc* pSrc2, Hux32fc* pDst, int len);
HUX_API HuxStatus huxsMul_32fc_I(const Hux32fc* pSrc, Hux32fc* pSrcDst, int len);
HUX_API HuxStatus huxsMul_64fc_I(const Hux64fc* pSrc, Hux64fc* pSrcDst, int len);
HUX_API HuxStatus huxsMul_16sc_Sfs(const Hux16sc* pSrc1, const Hux16sc* pSrc2, Hux16sc* pDst, int len, int scaleFactor);
HUX_API HuxStatus huxsMul_16sc_ISfs(const Hux16sc* pSrc, Hux16sc* pSrcDst, int len, int scaleFactor);
HUX_API HuxStatus huxsMul_32sc_Sfs(const Hux32sc* pSrc1, const Hux32sc* pSrc2, Hux32sc* pDst, int len, int scaleFactor);
HUX_API HuxStatus huxsMul_32sc_ISfs(const Hux32sc* pSrc, Hux32sc* pSrcDst, int len, int scaleFactor);

HUX_API HuxStatus huxsMulC_32f_I(Hux32f value, Hux32f* pSrcDst, int len);
HUX_API HuxStatus huxsMulC_32fc(const Hux32fc* pSrc, Hux32fc value, Hux32fc* pDst, int len);
HUX_API HuxStatus huxsMulC_32fc_I(Hux32fc value, Hux32fc* pSrcDst, int len);
HUX_API HuxStatus huxsMulC_64fc_I(Hux64fc value, Hux64fc* pSrcDst, int len);
HUX_API HuxStatus huxsMulC_16sc_Sfs(const Hux16sc* pSrc, Hux16sc value, Hux16sc* pDst, int len, int scaleFactor);
HUX_API HuxStatus huxsMulC_16sc_ISfs(Hux16sc value, Hux16sc* pSrcDst, int len, int scaleFactor);
HUX_API HuxStatus huxsMulC_32sc_Sfs(const Hux32sc* pSrc, Hux32sc value, Hux32sc* pDst, int len, int scaleFactor);
HUX_API HuxStatus huxsMulC_32sc_ISfs(Hux32sc value, Hux32sc* pSrcDst, int len, int scaleFactor);

HUX_API HuxStatus huxsDiv_32f(const Hux32f* pSrc1, const Hux32f* pSrc2, Hux32f* pDst, int len);
HUX_API HuxStatus huxsDiv_32fc(const Hux32fc* pSrc1, const Hux32fc* pSrc2, Hux32fc* pDst, int len);
HUX_API HuxStatus huxsDiv_32fc_I(const Hux32fc* pSrc, Hux32fc* pSrcDst, int len);
HUX_API HuxStatus huxsDiv_64fc(const Hux64fc* pSrc1, const Hux64fc* pSrc2, Hux64fc* pDst, int len);
HUX_API HuxStatus huxsDiv_64fc_I(const Hux64fc* pSrc, Hux64fc* pSrcDst, int len);
HUX_API HuxStatus huxsDiv_8u_Sfs(const Hux8u* pSrc1, const Hux8u* pSrc2, Hux8u* pDst, int len, int scaleFactor);
HUX_API HuxStatus huxsDiv_16s_Sfs(const Hux16s* pSrc1, const Hux16s* pSrc2, Hux16s* pDst, int len, int scaleFactor);
HUX_API HuxStatus huxsDiv_16sc_Sfs(const Hux16sc* pSrc1, const Hux16sc* pSrc2, Hux16sc* pDst, int len, int scaleFactor);
HUX_API HuxStatus huxsDiv_16sc_ISfs(const Hux16sc* pSrc, Hux16sc* pSrcDst, int len, int scaleFactor);

HUX_API HuxStatus huxsDivC_32fc(const Hux32fc* pSrc, Hux32fc value, Hux32fc* pDst, int len);
HUX_API HuxStatus huxsDivC_32fc_I(Hux32fc value, Hux32fc* pSrcDst, int len);
HUX_API HuxStatus huxsDivC_8u_Sfs(const Hux8u* pSrc, Hux8u value, Hux8u* pDst, int len, int scaleFactor);
HUX_API HuxStatus huxsDivC_16s_Sfs(const Hux16s* pSrc, Hux16s value, Hux16s* pDst, int len, int scaleFactor);
HUX_API HuxStatus huxsDivC_16sc_Sfs(const Hux16sc* pSrc, Hux16sc value, Hux16sc* pDst, int len, int scaleFactor);
HUX_API HuxStatus huxsDivC_16sc_ISfs(Hux16sc value, Hux16sc* pSrcDst, int len, int scaleFactor);

/* ---- Elementary functions ---- */

/* Elementary functions of len elements: Abs, Sqr, Sqrt, Exp, Ln, as on images (huxi_arith.h).
 * Integer results (Sfs) are multiplied by 2^-scaleFactor. Warnings of Sqrt (huxStsSqrtNegWarn) and Ln
 * (huxStsLogZeroWarn, huxStsLogNegWarn) come at the end, the first one met stands, and the whole vector is written.
 * pDst may be pSrc.
 * Checks, in order: null pointers (huxStsNullPtr), len below 1 (huxStsBadSize). */
HUX_API HuxStatus huxsAbs_16s(const Hux16s* pSrc, Hux16s* pDst, int len);
HUX_API HuxStatus huxsAbs_16s_I(Hux16s* pSrcDst, int len);
HUX_API HuxStatus huxsAbs_32f(const Hux32f* pSrc, Hux32f* pDst, int len);
HUX_API HuxStatus huxsAbs_32f_I(Hux32f* pSrcDst, int len);

HUX_API HuxStatus huxsSqr_8u_Sfs(const Hux8u* pSrc, Hux8u* pDst, int len, int scaleFactor);
HUX_API HuxStatus huxsSqr_8u_ISfs(Hux8u* pSrcDst, int len, int scaleFactor);
HUX_API HuxStatus huxsSqr_16u_Sfs(const Hux16u* pSrc, Hux16u* pDst, int len, int scaleFactor);
HUX_API HuxStatus huxsSqr_16u_ISfs(Hux16u* pSrcDst, int len, int scaleFactor);
HUX_API HuxStatus huxsSqr_16s_Sfs(const Hux16s* pSrc, Hux16s* pDst, int len, int scaleFactor);
HUX_API HuxStatus huxsSqr_16s_ISfs(Hux16s* pSrcDst, int len, int scaleFactor);
HUX_API HuxStatus huxsSqr_32f(const Hux32f* pSrc, Hux32f* pDst, int len);
HUX_API HuxStatus huxsSqr_32f_I(Hux32f* pSrcDst, int len);

HUX_API HuxStatus huxsSqrt_8u_Sfs(const Hux8u* pSrc, Hux8u* pDst, int len, int scaleFactor);
HUX_API HuxStatus huxsSqrt_8u_ISfs(Hux8u* pSrcDst, int len, int scaleFactor);
HUX_API HuxStatus huxsSqrt_16u_Sfs(const Hux16u* pSrc, Hux16u* pDst, int len, int scaleFactor);
HUX_API HuxStatus huxsSqrt_16u_ISfs(Hux16u* pSrcDst, int len, int scaleFactor);
HUX_API HuxStatus huxsSqrt_16s_Sfs(const Hux16s* pSrc, Hux16s* pDst, int len, int scaleFactor);
HUX_API HuxStatus huxsSqrt_16s_ISfs(Hux16s* pSrcDst, int len, int scaleFactor);
HUX_API HuxStatus huxsSqrt_32f(const Hux32f* pSrc, Hux32f* pDst, int len);
HUX_API HuxStatus huxsSqrt_32f_I(Hux32f* pSrcDst, int len);

HUX_API HuxStatus huxsExp_16s_Sfs(const Hux16s* pSrc, Hux16s* pDst, int len, int scaleFactor);
HUX_API HuxStatus huxsExp_16s_ISfs(Hux16s* pSrcDst, int len, int scaleFactor);
HUX_API HuxStatus huxsExp_32f(const Hux32f* pSrc, Hux32f* pDst, int len);
HUX_API HuxStatus huxsExp_32f_I(Hux32f* pSrcDst, int len);

HUX_API HuxStatus huxsLn_16s_Sfs(const Hux16s* pSrc, Hux16s* pDst, int len, int scaleFactor);
HUX_API HuxStatus huxsLn_16s_ISfs(Hux16s* pSrcDst, int len, int scaleFactor);

/* ---- Complex elements ---- */

/* Magnitude, Phase: magnitude and phase, in radians, of complex elements, times 2^-scaleFactor on integers.
 * Magnitude rounds ties to even for a positive scaleFactor only, else up. Phase lies in -pi..pi; at scaleFactor 0 it
 * uses a fast approximation of the arc tangent. The vectors must not overlap.
 * Checks, in order: null pointers (huxStsNullPtr), len below 1 (huxStsBadSize). */
HUX_API HuxStatus huxsMagnitude_32fc(const Hux32fc* pSrc, Hux32f* pDst, int len);
HUX_API HuxStatus huxsMagnitude_16sc_Sfs(const Hux16sc* pSrc, Hux16s* pDst, int len, int scaleFactor);
HUX_API HuxStatus huxsMagnitude_32sc_Sfs(const Hux32sc* pSrc, Hux32s* pDst, int len, int scaleFactor);
HUX_API HuxStatus huxsPhase_32fc(const Hux32fc* pSrc, Hux32f* pDst, int len);
HUX_API HuxStatus huxsPhase_16sc_Sfs(const Hux16sc* pSrc, Hux16s* pDst, int len, int scaleFactor);
HUX_API HuxStatus huxsPhase_32sc_Sfs(const Hux32sc* pSrc, Hux32s* pDst, int len, int scaleFactor);

/* PolarToCart: magnitude and phase, in radians, to a complex element.
 * Integer phases are multiplied by 2^-phaseFixedPoint; integer results are truncated and saturated. 16sc and 32fc take
 * sine and cosine from a polynomial good to 3e-8, except for the last element of an odd len, which may differ in the
 * last place. The vectors must not overlap.
 * Checks, in order: null pointers (huxStsNullPtr), len below 1 (huxStsBadSize), phaseFixedPoint outside 0..15 (16sc),
 * 0..31 (32sc) (huxStsBadSize).
 * Example:
 *   const Hux16s magnitudes[2] = {1000, 1000}, phases[2] = {0, 3217};  // of 2^-11: 3217 is pi / 2
 *   Hux16sc points[2];
 *   huxsPolarToCart_16sc(magnitudes, phases, 11, points, 2);
 */
HUX_API HuxStatus huxsPolarToCart_32fc(const Hux32f* pMagnitude, const Hux32f* pPhase, Hux32fc* pDst, int len);
HUX_API HuxStatus huxsPolarToCart_16sc(const Hux16s* pMagnitude, const Hux16s* pPhase, int phaseFixedPoint,
                                       Hux16sc* pDst, int len);
HUX_API HuxStatus huxsPolarToCart_32sc(const Hux32s* pMagnitude, const Hux32s* pPhase, int phaseFixedPoint,
                                       Hux32sc* pDst, int len);

/* ---- Types, constants and copies ---- */

/* Convert: between element types.
 * From float: times 2^-scaleFactor, in single precision (to 32s in double), then rounded by roundMode (huxRndNear: to
 * nearest, ties to even; any other value: towards zero) and saturated; NaN gives the type's minimum, and so does 0
 * times the infinity that a far negative scaleFactor stands for. To 32f, 32s is rounded to the nearest float; all
 * other values are exact. The vectors must not overlap.
 * Checks, in order: null pointers (huxStsNullPtr), len below 1 (huxStsBadSize). */
HUX_API HuxStatus huxsConvert_8u32f(const Hux8u* pSrc, Hux32f* pDst, int len);
HUX_API HuxStatus huxsConvert_32s32f(const Hux32s* pSrc, Hux32f* pDst, int len);
HUX_API HuxStatus huxsConvert_32s64f(const Hux32s* pSrc, Hux64f* pDst, int len);
HUX_API HuxStatus huxsConvert_32f8u_Sfs(const Hux32f* pSrc, Hux8u* pDst, int len, HuxRoundMode roundMode,
                                        int scaleFactor);
HUX_API HuxStatus huxsConvert_32f16s_Sfs(const Hux32f* pSrc, Hux16s* pDst, int len, HuxRoundMode roundMode,
                                         int scaleFactor);
HUX_API HuxStatus huxsConvert_32f32s_Sfs(const Hux32f* pSrc, Hux32s* pDst, int len, HuxRoundMode roundMode,
                                         int scaleFactor);
HUX_API HuxStatus huxsConvert_64f32s_Sfs(const Hux64f* pSrc, Hux32s* pDst, int len, HuxRoundMode roundMode,
                                         int scaleFactor);

/* Set, Zero, Copy, Move: fill a vector with a value or with zeros, or copy one.
 * Set and Copy keep the bits of floats. Copy assumes that the vectors do not overlap, Move allows it.
 * Checks, in order: null pointers (huxStsNullPtr), len below 1 (huxStsBadSize). */
HUX_API HuxStatus huxsSet_8u(Hux8u value, Hux8u* pDst, int len);
HUX_API HuxStatus huxsSet_16s(Hux16s value, Hux16s* pDst, int len);
HUX_API HuxStatus huxsSet_32s(Hux32s value, Hux32s* pDst, int len);
HUX_API HuxStatus huxsSet_32f(Hux32f value, Hux32f* pDst, int len);
HUX_API HuxStatus huxsSet_16sc(Hux16sc value, Hux16sc* pDst, int len);
HUX_API HuxStatus huxsSet_32fc(Hux32fc value, Hux32fc* pDst, int len);
HUX_API HuxStatus huxsZero_8u(Hux8u* pDst, int len);
HUX_API HuxStatus huxsZero_16s(Hux16s* pDst, int len);
HUX_API HuxStatus huxsZero_16sc(Hux16sc* pDst, int len);
HUX_API HuxStatus huxsZero_32f(Hux32f* pDst, int len);
HUX_API HuxStatus huxsCopy_8u(const Hux8u* pSrc, Hux8u* pDst, int len);
HUX_API HuxStatus huxsCopy_32f(const Hux32f* pSrc, Hux32f* pDst, int len);
HUX_API HuxStatus huxsMove_16s(const Hux16s* pSrc, Hux16s* pDst, int len);
HUX_API HuxStatus huxsMove_32f(const Hux32f* pSrc, Hux32f* pDst, int len);

/* ---- Windows and measures ---- */

/* WinBartlett, WinHamming: the vector times a window that falls off from the middle to both ends alike.
 * Of len values, number k from either end has the weight
 *   WinBartlett  2 k / (len - 1), the steps added up in double precision
 *   WinHamming   0.54 - 0.46 cos(2 pi k / (len - 1)), the nearest double
 * and the middle of an odd len stays as it is. Products are formed in double precision. A weight of 0 leaves a NaN
 * what it is.
 * Checks, in order: pSrcDst null (huxStsNullPtr), len below 3 (huxStsBadSize). */
HUX_API HuxStatus huxsWinBartlett_32f_I(Hux32f* pSrcDst, int len);
HUX_API HuxStatus huxsWinHamming_32f_I(Hux32f* pSrcDst, int len);

/* Mean, Norm_L2, DotProd: the mean of a vector, its Euclidean norm, the sum of products of two vectors.
 * Mean and Norm_L2 sum in double precision; DotProd sums in single precision, in an order that is left open.
 * Checks, in order: null pointers (huxStsNullPtr), len below 1 (huxStsBadSize). */
HUX_API HuxStatus huxsMean_32f(const Hux32f* pSrc, int len, Hux32f* pResult);
HUX_API HuxStatus huxsNorm_L2_32f(const Hux32f* pSrc, int len, Hux32f* pResult);
HUX_API HuxStatus huxsDotProd_32f(const Hux32f* pSrc1, const Hux32f* pSrc2, int len, Hux32f* pResult);

HUX_END_C

#endif
