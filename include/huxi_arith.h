/* Pixel arithmetic: one element in, one element out. Plain C99. */
#ifndef HUXI_ARITH_H
#define HUXI_ARITH_H

#include "huxdefs.h"

HUX_BEGIN_C

/* ---- Arithmetic on real pixels ---- */

/* Scaled arithmetic on real pixels: Add, Sub, Mul, Div and, with a constant, AddC, SubC, MulC, DivC.
 * The exact integer result is multiplied by 2^-scaleFactor with ties rounded to even, then saturated to the pixel
 * type; for 8u and 16u a negative difference becomes 0 first. A negative scaleFactor multiplies. 32f works in single
 * precision without scale. AC4: alpha of the destination stays.
 * Operands: Sub is pSrc2 - pSrc1, Div is pSrc2 / pSrc1; in place pSrc stands for pSrc1, and pSrcDst for pSrc2 and
 * pDst. Constant forms have value (C1), or pValue with 3 (C3, AC4) or 4 (C4) constants, one for each channel. pDst may
 * be one of the sources, with the same step, and must not overlap them otherwise. */

/* Add: the sum pSrc1 + pSrc2, times 2^-scaleFactor.
 * Checks, in order: C3 and C4: width below 1 (huxStsBadSize); null pointers (huxStsNullPtr), width or height below 1
 * (huxStsBadSize). Steps are not checked. But where scaleFactor is so large that every result is 0 (above 9 on 8u, 16
 * on 16s, 17 on 16u), dstStep below 1 is huxStsBadStep, behind the others; and 16u then does not ask for the width
 * first.
 * Example:
 *   huxiAdd_8u_C3RSfs(src, srcStep, dst, dstStep, dst, dstStep, size, 1);  // the mean of two images, in the second
 */
HUX_API HuxStatus huxiAdd_8u_C1RSfs(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step, Hux8u* pDst,
                                    int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiAdd_8u_C1IRSfs(const Hux8u* pSrc, int srcStep, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                     int scaleFactor);
HUX_API HuxStatus huxiAdd_8u_C3RSfs(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step, Hux8u* pDst,
                                    int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiAdd_8u_C3IRSfs(const Hux8u* pSrc, int srcStep, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                     int scaleFactor);
HUX_API HuxStatus huxiAdd_8u_C4RSfs(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step, Hux8u* pDst,
                                    int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiAdd_8u_C4IRSfs(const Hux8u* pSrc, int srcStep, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                     int scaleFactor);
HUX_API HuxStatus huxiAdd_8u_AC4RSfs(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step, Hux8u* pDst,
                                     int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiAdd_8u_AC4IRSfs(const Hux8u* pSrc, int srcStep, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                      int scaleFactor);
HUX_API HuxStatus huxiAdd_16s_C1RSfs(const Hux16s* pSrc1, int src1Step, const Hux16s* pSrc2, int src2Step, Hux16s* pDst,
                                     int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiAdd_16s_C1IRSfs(const Hux16s* pSrc, int srcStep, Hux16s* pSrcDst, int srcDstStep,
                                      HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiAdd_16s_C3RSfs(const Hux16s* pSrc1, int src1Step, const Hux16s* pSrc2, int src2Step, Hux16s* pDst,
                                     int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiAdd_16s_C3IRSfs(const Hux16s* pSrc, int srcStep, Hux16s* pSrcDst, int srcDstStep,
                                      HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiAdd_16s_C4RSfs(const Hux16s* pSrc1, int src1Step, const Hux16s* pSrc2, int src2Step, Hux16s* pDst,
                                     int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiAdd_16s_C4IRSfs(const Hux16s* pSrc, int srcStep, Hux16s* pSrcDst, int srcDstStep,
                                      HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiAdd_16s_AC4RSfs(const Hux16s* pSrc1, int src1Step, const Hux16s* pSrc2, int src2Step,
                                      Hux16s* pDst, int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiAdd_16s_AC4IRSfs(const Hux16s* pSrc, int srcStep, Hux16s* pSrcDst, int srcDstStep,
                                       HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiAdd_16u_C1RSfs(const Hux16u* pSrc1, int src1Step, const Hux16u* pSrc2, int src2Step, Hux16u* pDst,
                                     int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiAdd_16u_C1IRSfs(const Hux16u* pSrc, int srcStep, Hux16u* pSrcDst, int srcDstStep,
                                      HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiAdd_16u_C3RSfs(const Hux16u* pSrc1, int src1Step, const Hux16u* pSrc2, int src2Step, Hux16u* pDst,
                                     int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiAdd_16u_C3IRSfs(const Hux16u* pSrc, int srcStep, Hux16u* pSrcDst, int srcDstStep,
                                      HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiAdd_16u_C4RSfs(const Hux16u* pSrc1, int src1Step, const Hux16u* pSrc2, int src2Step, Hux16u* pDst,
                                     int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiAdd_16u_C4IRSfs(const Hux16u* pSrc, int srcStep, Hux16u* pSrcDst, int srcDstStep,
                                      HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiAdd_16u_AC4RSfs(const Hux16u* pSrc1, int src1Step, const Hux16u* pSrc2, int src2Step,
                                      Hux16u* pDst, int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiAdd_16u_AC4IRSfs(const Hux16u* pSrc, int srcStep, Hux16u* pSrcDst, int srcDstStep,
                                       HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiAdd_32f_C1R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step, Hux32f* pDst,
                                  int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAdd_32f_C1IR(const Hux32f* pSrc, int srcStep, Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAdd_32f_C3R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step, Hux32f* pDst,
                                  int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAdd_32f_C3IR(const Hux32f* pSrc, int srcStep, Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAdd_32f_C4R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step, Hux32f* pDst,
                                  int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAdd_32f_C4IR(const Hux32f* pSrc, int srcStep, Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAdd_32f_AC4R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step, Hux32f* pDst,
                                   int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAdd_32f_AC4IR(const Hux32f* pSrc, int srcStep, Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);

/* Sub: the difference pSrc2 - pSrc1, times 2^-scaleFactor.
 * The first image is taken from the second; in place, pSrc is taken from pSrcDst. On 8u and 16u a negative difference
 * is 0.
 * Checks, in order: C3 and C4: width below 1 (huxStsBadSize); null pointers (huxStsNullPtr), width or height below 1
 * (huxStsBadSize). Steps are not checked. But where scaleFactor is so large that every result is 0 (above 8 on 8u, 16
 * on 16s and 16u), dstStep below 1 is huxStsBadStep, behind the others; and 16u then does not ask for the width first.
 * Example:
 *   huxiSub_8u_C1IRSfs(src, srcStep, dst, dstStep, size, 0);  // dst = dst - src
 */
HUX_API HuxStatus huxiSub_8u_C1RSfs(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step, Hux8u* pDst,
                                    int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSub_8u_C1IRSfs(const Hux8u* pSrc, int srcStep, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                     int scaleFactor);
HUX_API HuxStatus huxiSub_8u_C3RSfs(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step, Hux8u* pDst,
                                    int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSub_8u_C3IRSfs(const Hux8u* pSrc, int srcStep, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                     int scaleFactor);
HUX_API HuxStatus huxiSub_8u_C4RSfs(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step, Hux8u* pDst,
                                    int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSub_8u_C4IRSfs(const Hux8u* pSrc, int srcStep, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                     int scaleFactor);
HUX_API HuxStatus huxiSub_8u_AC4RSfs(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step, Hux8u* pDst,
                                     int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSub_8u_AC4IRSfs(const Hux8u* pSrc, int srcStep, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                      int scaleFactor);
HUX_API HuxStatus huxiSub_16s_C1RSfs(const Hux16s* pSrc1, int src1Step, const Hux16s* pSrc2, int src2Step, Hux16s* pDst,
                                     int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSub_16s_C1IRSfs(const Hux16s* pSrc, int srcStep, Hux16s* pSrcDst, int srcDstStep,
                                      HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSub_16s_C3RSfs(const Hux16s* pSrc1, int src1Step, const Hux16s* pSrc2, int src2Step, Hux16s* pDst,
                                     int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSub_16s_C3IRSfs(const Hux16s* pSrc, int srcStep, Hux16s* pSrcDst, int srcDstStep,
                                      HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSub_16s_C4RSfs(const Hux16s* pSrc1, int src1Step, const Hux16s* pSrc2, int src2Step, Hux16s* pDst,
                                     int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSub_16s_C4IRSfs(const Hux16s* pSrc, int srcStep, Hux16s* pSrcDst, int srcDstStep,
                                      HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSub_16s_AC4RSfs(const Hux16s* pSrc1, int src1Step, const Hux16s* pSrc2, int src2Step,
                                      Hux16s* pDst, int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSub_16s_AC4IRSfs(const Hux16s* pSrc, int srcStep, Hux16s* pSrcDst, int srcDstStep,
                                       HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSub_16u_C1RSfs(const Hux16u* pSrc1, int src1Step, const Hux16u* pSrc2, int src2Step, Hux16u* pDst,
                                     int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSub_16u_C1IRSfs(const Hux16u* pSrc, int srcStep, Hux16u* pSrcDst, int srcDstStep,
                                      HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSub_16u_C3RSfs(const Hux16u* pSrc1, int src1Step, const Hux16u* pSrc2, int src2Step, Hux16u* pDst,
                                     int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSub_16u_C3IRSfs(const Hux16u* pSrc, int srcStep, Hux16u* pSrcDst, int srcDstStep,
                                      HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSub_16u_C4RSfs(const Hux16u* pSrc1, int src1Step, const Hux16u* pSrc2, int src2Step, Hux16u* pDst,
                                     int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSub_16u_C4IRSfs(const Hux16u* pSrc, int srcStep, Hux16u* pSrcDst, int srcDstStep,
                                      HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSub_16u_AC4RSfs(const Hux16u* pSrc1, int src1Step, const Hux16u* pSrc2, int src2Step,
                                      Hux16u* pDst, int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSub_16u_AC4IRSfs(const Hux16u* pSrc, int srcStep, Hux16u* pSrcDst, int srcDstStep,
                                       HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSub_32f_C1R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step, Hux32f* pDst,
                                  int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiSub_32f_C1IR(const Hux32f* pSrc, int srcStep, Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiSub_32f_C3R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step, Hux32f* pDst,
                                  int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiSub_32f_C3IR(const Hux32f* pSrc, int srcStep, Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiSub_32f_C4R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step, Hux32f* pDst,
                                  int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiSub_32f_C4IR(const Hux32f* pSrc, int srcStep, Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiSub_32f_AC4R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step, Hux32f* pDst,
                                   int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiSub_32f_AC4IR(const Hux32f* pSrc, int srcStep, Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);

/* Mul: the product pSrc1 * pSrc2, times 2^-scaleFactor.
 * Checks, in order: C3 and C4: width below 1 (huxStsBadSize); null pointers (huxStsNullPtr), width or height below 1
 * (huxStsBadSize). Steps are not checked. But where scaleFactor is so large that every result is 0 (above 16 on 8u, 30
 * on 16s, 32 on 16u), dstStep below 1 is huxStsBadStep, behind the others; and 16u then does not ask for the width
 * first. */
HUX_API HuxStatus huxiMul_8u_C1RSfs(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step, Hux8u* pDst,
                                    int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMul_8u_C1IRSfs(const Hux8u* pSrc, int srcStep, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                     int scaleFactor);
HUX_API HuxStatus huxiMul_8u_C3RSfs(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step, Hux8u* pDst,
                                    int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMul_8u_C3IRSfs(const Hux8u* pSrc, int srcStep, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                     int scaleFactor);
HUX_API HuxStatus huxiMul_8u_C4RSfs(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step, Hux8u* pDst,
                                    int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMul_8u_C4IRSfs(const Hux8u* pSrc, int srcStep, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                     int scaleFactor);
HUX_API HuxStatus huxiMul_8u_AC4RSfs(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step, Hux8u* pDst,
                                     int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMul_8u_AC4IRSfs(const Hux8u* pSrc, int srcStep, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                      int scaleFactor);
HUX_API HuxStatus huxiMul_16s_C1RSfs(const Hux16s* pSrc1, int src1Step, const Hux16s* pSrc2, int src2Step, Hux16s* pDst,
                                     int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMul_16s_C1IRSfs(const Hux16s* pSrc, int srcStep, Hux16s* pSrcDst, int srcDstStep,
                                      HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMul_16s_C3RSfs(const Hux16s* pSrc1, int src1Step, const Hux16s* pSrc2, int src2Step, Hux16s* pDst,
                                     int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMul_16s_C3IRSfs(const Hux16s* pSrc, int srcStep, Hux16s* pSrcDst, int srcDstStep,
                                      HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMul_16s_C4RSfs(const Hux16s* pSrc1, int src1Step, const Hux16s* pSrc2, int src2Step, Hux16s* pDst,
                                     int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMul_16s_C4IRSfs(const Hux16s* pSrc, int srcStep, Hux16s* pSrcDst, int srcDstStep,
                                      HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMul_16s_AC4RSfs(const Hux16s* pSrc1, int src1Step, const Hux16s* pSrc2, int src2Step,
                                      Hux16s* pDst, int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMul_16s_AC4IRSfs(const Hux16s* pSrc, int srcStep, Hux16s* pSrcDst, int srcDstStep,
                                       HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMul_16u_C1RSfs(const Hux16u* pSrc1, int src1Step, const Hux16u* pSrc2, int src2Step, Hux16u* pDst,
                                     int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMul_16u_C1IRSfs(const Hux16u* pSrc, int srcStep, Hux16u* pSrcDst, int srcDstStep,
                                      HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMul_16u_C3RSfs(const Hux16u* pSrc1, int src1Step, const Hux16u* pSrc2, int src2Step, Hux16u* pDst,
                                     int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMul_16u_C3IRSfs(const Hux16u* pSrc, int srcStep, Hux16u* pSrcDst, int srcDstStep,
                                      HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMul_16u_C4RSfs(const Hux16u* pSrc1, int src1Step, const Hux16u* pSrc2, int src2Step, Hux16u* pDst,
                                     int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMul_16u_C4IRSfs(const Hux16u* pSrc, int srcStep, Hux16u* pSrcDst, int srcDstStep,
                                      HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMul_16u_AC4RSfs(const Hux16u* pSrc1, int src1Step, const Hux16u* pSrc2, int src2Step,
                                      Hux16u* pDst, int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMul_16u_AC4IRSfs(const Hux16u* pSrc, int srcStep, Hux16u* pSrcDst, int srcDstStep,
                                       HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMul_32f_C1R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step, Hux32f* pDst,
                                  int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiMul_32f_C1IR(const Hux32f* pSrc, int srcStep, Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiMul_32f_C3R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step, Hux32f* pDst,
                                  int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiMul_32f_C3IR(const Hux32f* pSrc, int srcStep, Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiMul_32f_C4R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step, Hux32f* pDst,
                                  int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiMul_32f_C4IR(const Hux32f* pSrc, int srcStep, Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiMul_32f_AC4R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step, Hux32f* pDst,
                                   int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiMul_32f_AC4IR(const Hux32f* pSrc, int srcStep, Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);

/* AddC: the sum pSrc + value, times 2^-scaleFactor.
 * Checks, in order: 16u: pValue null (huxStsNullPtr); null pointers (huxStsNullPtr), width or height below 1
 * (huxStsBadSize). Steps are not checked. But where scaleFactor leaves every result 0 (above 9 on 8u, 16 on 16s, 17 on
 * 16u), or in C1 of 8u and 16u makes all of them the maximum (below -7, -15, with a value above 0), dstStep below 1 is
 * huxStsBadStep, behind the others.
 * Example:
 *   const Hux8u warmer[3] = {24, 8, 0};
 *   huxiAddC_8u_C3IRSfs(warmer, dst, dstStep, size, 0);
 */
HUX_API HuxStatus huxiAddC_8u_C1RSfs(const Hux8u* pSrc, int srcStep, Hux8u value, Hux8u* pDst, int dstStep,
                                     HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiAddC_8u_C1IRSfs(Hux8u value, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiAddC_8u_C3RSfs(const Hux8u* pSrc, int srcStep, const Hux8u* pValue, Hux8u* pDst, int dstStep,
                                     HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiAddC_8u_C3IRSfs(const Hux8u* pValue, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                      int scaleFactor);
HUX_API HuxStatus huxiAddC_8u_C4RSfs(const Hux8u* pSrc, int srcStep, const Hux8u* pValue, Hux8u* pDst, int dstStep,
                                     HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiAddC_8u_C4IRSfs(const Hux8u* pValue, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                      int scaleFactor);
HUX_API HuxStatus huxiAddC_8u_AC4RSfs(const Hux8u* pSrc, int srcStep, const Hux8u* pValue, Hux8u* pDst, int dstStep,
                                      HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiAddC_8u_AC4IRSfs(const Hux8u* pValue, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                       int scaleFactor);
HUX_API HuxStatus huxiAddC_16s_C1RSfs(const Hux16s* pSrc, int srcStep, Hux16s value, Hux16s* pDst, int dstStep,
                                      HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiAddC_16s_C1IRSfs(Hux16s value, Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                       int scaleFactor);
HUX_API HuxStatus huxiAddC_16s_C3RSfs(const Hux16s* pSrc, int srcStep, const Hux16s* pValue, Hux16s* pDst, int dstStep,
                                      HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiAddC_16s_C3IRSfs(const Hux16s* pValue, Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                       int scaleFactor);
HUX_API HuxStatus huxiAddC_16s_C4RSfs(const Hux16s* pSrc, int srcStep, const Hux16s* pValue, Hux16s* pDst, int dstStep,
                                      HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiAddC_16s_C4IRSfs(const Hux16s* pValue, Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                       int scaleFactor);
HUX_API HuxStatus huxiAddC_16s_AC4RSfs(const Hux16s* pSrc, int srcStep, const Hux16s* pValue, Hux16s* pDst, int dstStep,
                                       HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiAddC_16s_AC4IRSfs(const Hux16s* pValue, Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                        int scaleFactor);
HUX_API HuxStatus huxiAddC_16u_C1RSfs(const Hux16u* pSrc, int srcStep, Hux16u value, Hux16u* pDst, int dstStep,
                                      HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiAddC_16u_C1IRSfs(Hux16u value, Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                       int scaleFactor);
HUX_API HuxStatus huxiAddC_16u_C3RSfs(const Hux16u* pSrc, int srcStep, const Hux16u* pValue, Hux16u* pDst, int dstStep,
                                      HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiAddC_16u_C3IRSfs(const Hux16u* pValue, Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                       int scaleFactor);
HUX_API HuxStatus huxiAddC_16u_C4RSfs(const Hux16u* pSrc, int srcStep, const Hux16u* pValue, Hux16u* pDst, int dstStep,
                                      HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiAddC_16u_C4IRSfs(const Hux16u* pValue, Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                       int scaleFactor);
HUX_API HuxStatus huxiAddC_16u_AC4RSfs(const Hux16u* pSrc, int srcStep, const Hux16u* pValue, Hux16u* pDst, int dstStep,
                                       HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiAddC_16u_AC4IRSfs(const Hux16u* pValue, Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                        int scaleFactor);
HUX_API HuxStatus huxiAddC_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f value, Hux32f* pDst, int dstStep,
                                   HuxiSize roiSize);
HUX_API HuxStatus huxiAddC_32f_C1IR(Hux32f value, Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAddC_32f_C3R(const Hux32f* pSrc, int srcStep, const Hux32f* pValue, Hux32f* pDst, int dstStep,
                                   HuxiSize roiSize);
HUX_API HuxStatus huxiAddC_32f_C3IR(const Hux32f* pValue, Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAddC_32f_C4R(const Hux32f* pSrc, int srcStep, const Hux32f* pValue, Hux32f* pDst, int dstStep,
                                   HuxiSize roiSize);
HUX_API HuxStatus huxiAddC_32f_C4IR(const Hux32f* pValue, Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAddC_32f_AC4R(const Hux32f* pSrc, int srcStep, const Hux32f* pValue, Hux32f* pDst, int dstStep,
                                    HuxiSize roiSize);
HUX_API HuxStatus huxiAddC_32f_AC4IR(const Hux32f* pValue, Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);

/* SubC: the difference pSrc - value, times 2^-scaleFactor.
 * On 8u and 16u a negative difference is 0.
 * Checks, in order: 16u: pValue null (huxStsNullPtr); null pointers (huxStsNullPtr), width or height below 1
 * (huxStsBadSize). Steps are not checked. But where scaleFactor leaves every result 0 (above 8 on 8u, 16 on 16s and
 * 16u), dstStep below 1 is huxStsBadStep, behind the others. */
HUX_API HuxStatus huxiSubC_8u_C1RSfs(const Hux8u* pSrc, int srcStep, Hux8u value, Hux8u* pDst, int dstStep,
                                     HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSubC_8u_C1IRSfs(Hux8u value, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSubC_8u_C3RSfs(const Hux8u* pSrc, int srcStep, const Hux8u* pValue, Hux8u* pDst, int dstStep,
                                     HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSubC_8u_C3IRSfs(const Hux8u* pValue, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                      int scaleFactor);
HUX_API HuxStatus huxiSubC_8u_C4RSfs(const Hux8u* pSrc, int srcStep, const Hux8u* pValue, Hux8u* pDst, int dstStep,
                                     HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSubC_8u_C4IRSfs(const Hux8u* pValue, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                      int scaleFactor);
HUX_API HuxStatus huxiSubC_8u_AC4RSfs(const Hux8u* pSrc, int srcStep, const Hux8u* pValue, Hux8u* pDst, int dstStep,
                                      HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSubC_8u_AC4IRSfs(const Hux8u* pValue, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                       int scaleFactor);
HUX_API HuxStatus huxiSubC_16s_C1RSfs(const Hux16s* pSrc, int srcStep, Hux16s value, Hux16s* pDst, int dstStep,
                                      HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSubC_16s_C1IRSfs(Hux16s value, Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                       int scaleFactor);
HUX_API HuxStatus huxiSubC_16s_C3RSfs(const Hux16s* pSrc, int srcStep, const Hux16s* pValue, Hux16s* pDst, int dstStep,
                                      HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSubC_16s_C3IRSfs(const Hux16s* pValue, Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                       int scaleFactor);
HUX_API HuxStatus huxiSubC_16s_C4RSfs(const Hux16s* pSrc, int srcStep, const Hux16s* pValue, Hux16s* pDst, int dstStep,
                                      HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSubC_16s_C4IRSfs(const Hux16s* pValue, Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                       int scaleFactor);
HUX_API HuxStatus huxiSubC_16s_AC4RSfs(const Hux16s* pSrc, int srcStep, const Hux16s* pValue, Hux16s* pDst, int dstStep,
                                       HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSubC_16s_AC4IRSfs(const Hux16s* pValue, Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                        int scaleFactor);
HUX_API HuxStatus huxiSubC_16u_C1RSfs(const Hux16u* pSrc, int srcStep, Hux16u value, Hux16u* pDst, int dstStep,
                                      HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSubC_16u_C1IRSfs(Hux16u value, Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                       int scaleFactor);
HUX_API HuxStatus huxiSubC_16u_C3RSfs(const Hux16u* pSrc, int srcStep, const Hux16u* pValue, Hux16u* pDst, int dstStep,
                                      HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSubC_16u_C3IRSfs(const Hux16u* pValue, Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                       int scaleFactor);
HUX_API HuxStatus huxiSubC_16u_C4RSfs(const Hux16u* pSrc, int srcStep, const Hux16u* pValue, Hux16u* pDst, int dstStep,
                                      HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSubC_16u_C4IRSfs(const Hux16u* pValue, Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                       int scaleFactor);
HUX_API HuxStatus huxiSubC_16u_AC4RSfs(const Hux16u* pSrc, int srcStep, const Hux16u* pValue, Hux16u* pDst, int dstStep,
                                       HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSubC_16u_AC4IRSfs(const Hux16u* pValue, Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                        int scaleFactor);
HUX_API HuxStatus huxiSubC_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f value, Hux32f* pDst, int dstStep,
                                   HuxiSize roiSize);
HUX_API HuxStatus huxiSubC_32f_C1IR(Hux32f value, Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiSubC_32f_C3R(const Hux32f* pSrc, int srcStep, const Hux32f* pValue, Hux32f* pDst, int dstStep,
                                   HuxiSize roiSize);
HUX_API HuxStatus huxiSubC_32f_C3IR(const Hux32f* pValue, Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiSubC_32f_C4R(const Hux32f* pSrc, int srcStep, const Hux32f* pValue, Hux32f* pDst, int dstStep,
                                   HuxiSize roiSize);
HUX_API HuxStatus huxiSubC_32f_C4IR(const Hux32f* pValue, Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiSubC_32f_AC4R(const Hux32f* pSrc, int srcStep, const Hux32f* pValue, Hux32f* pDst, int dstStep,
                                    HuxiSize roiSize);
HUX_API HuxStatus huxiSubC_32f_AC4IR(const Hux32f* pValue, Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);

/* MulC: the product pSrc * value, times 2^-scaleFactor.
 * Checks, in order: 16u: pValue null (huxStsNullPtr); null pointers (huxStsNullPtr), width or height below 1
 * (huxStsBadSize). Steps are not checked. But where scaleFactor leaves every result 0 (above 16 on 8u, 30 on 16s, 32
 * on 16u), or in C1 on integers value is 0, dstStep below 1 is huxStsBadStep, behind the others. */
HUX_API HuxStatus huxiMulC_8u_C1RSfs(const Hux8u* pSrc, int srcStep, Hux8u value, Hux8u* pDst, int dstStep,
                                     HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMulC_8u_C1IRSfs(Hux8u value, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMulC_8u_C3RSfs(const Hux8u* pSrc, int srcStep, const Hux8u* pValue, Hux8u* pDst, int dstStep,
                                     HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMulC_8u_C3IRSfs(const Hux8u* pValue, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                      int scaleFactor);
HUX_API HuxStatus huxiMulC_8u_C4RSfs(const Hux8u* pSrc, int srcStep, const Hux8u* pValue, Hux8u* pDst, int dstStep,
                                     HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMulC_8u_C4IRSfs(const Hux8u* pValue, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                      int scaleFactor);
HUX_API HuxStatus huxiMulC_8u_AC4RSfs(const Hux8u* pSrc, int srcStep, const Hux8u* pValue, Hux8u* pDst, int dstStep,
                                      HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMulC_8u_AC4IRSfs(const Hux8u* pValue, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                       int scaleFactor);
HUX_API HuxStatus huxiMulC_16s_C1RSfs(const Hux16s* pSrc, int srcStep, Hux16s value, Hux16s* pDst, int dstStep,
                                      HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMulC_16s_C1IRSfs(Hux16s value, Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                       int scaleFactor);
HUX_API HuxStatus huxiMulC_16s_C3RSfs(const Hux16s* pSrc, int srcStep, const Hux16s* pValue, Hux16s* pDst, int dstStep,
                                      HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMulC_16s_C3IRSfs(const Hux16s* pValue, Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                       int scaleFactor);
HUX_API HuxStatus huxiMulC_16s_C4RSfs(const Hux16s* pSrc, int srcStep, const Hux16s* pValue, Hux16s* pDst, int dstStep,
                                      HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMulC_16s_C4IRSfs(const Hux16s* pValue, Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                       int scaleFactor);
HUX_API HuxStatus huxiMulC_16s_AC4RSfs(const Hux16s* pSrc, int srcStep, const Hux16s* pValue, Hux16s* pDst, int dstStep,
                                       HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMulC_16s_AC4IRSfs(const Hux16s* pValue, Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                        int scaleFactor);
HUX_API HuxStatus huxiMulC_16u_C1RSfs(const Hux16u* pSrc, int srcStep, Hux16u value, Hux16u* pDst, int dstStep,
                                      HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMulC_16u_C1IRSfs(Hux16u value, Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                       int scaleFactor);
HUX_API HuxStatus huxiMulC_16u_C3RSfs(const Hux16u* pSrc, int srcStep, const Hux16u* pValue, Hux16u* pDst, int dstStep,
                                      HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMulC_16u_C3IRSfs(const Hux16u* pValue, Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                       int scaleFactor);
HUX_API HuxStatus huxiMulC_16u_C4RSfs(const Hux16u* pSrc, int srcStep, const Hux16u* pValue, Hux16u* pDst, int dstStep,
                                      HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMulC_16u_C4IRSfs(const Hux16u* pValue, Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                       int scaleFactor);
HUX_API HuxStatus huxiMulC_16u_AC4RSfs(const Hux16u* pSrc, int srcStep, const Hux16u* pValue, Hux16u* pDst, int dstStep,
                                       HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMulC_16u_AC4IRSfs(const Hux16u* pValue, Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                        int scaleFactor);
HUX_API HuxStatus huxiMulC_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f value, Hux32f* pDst, int dstStep,
                                   HuxiSize roiSize);
HUX_API HuxStatus huxiMulC_32f_C1IR(Hux32f value, Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiMulC_32f_C3R(const Hux32f* pSrc, int srcStep, const Hux32f* pValue, Hux32f* pDst, int dstStep,
                                   HuxiSize roiSize);
HUX_API HuxStatus huxiMulC_32f_C3IR(const Hux32f* pValue, Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiMulC_32f_C4R(const Hux32f* pSrc, int srcStep, const Hux32f* pValue, Hux32f* pDst, int dstStep,
                                   HuxiSize roiSize);
HUX_API HuxStatus huxiMulC_32f_C4IR(const Hux32f* pValue, Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiMulC_32f_AC4R(const Hux32f* pSrc, int srcStep, const Hux32f* pValue, Hux32f* pDst, int dstStep,
                                    HuxiSize roiSize);
HUX_API HuxStatus huxiMulC_32f_AC4IR(const Hux32f* pValue, Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);

/* Div: the quotient pSrc2 / pSrc1, times 2^-scaleFactor.
 * The second image is divided by the first; in place, pSrcDst by pSrc. A zero denominator is a warning
 * (huxStsDivByZeroWarn); the whole region is written. Integers: 0 over 0 is 0, else the end of the range with the
 * numerator's sign. 32f: infinity, NaN (numerator 0), minus infinity (negative or NaN numerator). 8u and 16s divide in
 * single precision, 16u in fixed point with 16 fraction bits.
 * Checks, in order, 8u, 16s, 32f: null pointers (huxStsNullPtr), width or height below 1 (huxStsBadSize), a step below
 * 1 (huxStsBadStep), AC4: memory for a row (huxStsNoMem; nothing is written then). 16u: in C3 and C4 width below 1
 * (huxStsBadSize); null pointers (huxStsNullPtr), width or height below 1 (huxStsBadSize); steps are not checked.
 * Example:
 *   huxiDiv_8u_C1RSfs(src, srcStep, dst, dstStep, dst, dstStep, size, -7);  // dst = dst / src * 128
 */
HUX_API HuxStatus huxiDiv_8u_C1RSfs(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step, Hux8u* pDst,
                                    int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiDiv_8u_C1IRSfs(const Hux8u* pSrc, int srcStep, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                     int scaleFactor);
HUX_API HuxStatus huxiDiv_8u_C3RSfs(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step, Hux8u* pDst,
                                    int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiDiv_8u_C3IRSfs(const Hux8u* pSrc, int srcStep, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                     int scaleFactor);
HUX_API HuxStatus huxiDiv_8u_C4RSfs(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step, Hux8u* pDst,
                                    int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiDiv_8u_C4IRSfs(const Hux8u* pSrc, int srcStep, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                     int scaleFactor);
HUX_API HuxStatus huxiDiv_8u_AC4RSfs(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step, Hux8u* pDst,
                                     int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiDiv_8u_AC4IRSfs(const Hux8u* pSrc, int srcStep, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                      int scaleFactor);
HUX_API HuxStatus huxiDiv_16s_C1RSfs(const Hux16s* pSrc1, int src1Step, const Hux16s* pSrc2, int src2Step, Hux16s* pDst,
                                     int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiDiv_16s_C1IRSfs(const Hux16s* pSrc, int srcStep, Hux16s* pSrcDst, int srcDstStep,
                                      HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiDiv_16s_C3RSfs(const Hux16s* pSrc1, int src1Step, const Hux16s* pSrc2, int src2Step, Hux16s* pDst,
                                     int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiDiv_16s_C3IRSfs(const Hux16s* pSrc, int srcStep, Hux16s* pSrcDst, int srcDstStep,
                                      HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiDiv_16s_C4RSfs(const Hux16s* pSrc1, int src1Step, const Hux16s* pSrc2, int src2Step, Hux16s* pDst,
                                     int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiDiv_16s_C4IRSfs(const Hux16s* pSrc, int srcStep, Hux16s* pSrcDst, int srcDstStep,
                                      HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiDiv_16s_AC4RSfs(const Hux16s* pSrc1, int src1Step, const Hux16s* pSrc2, int src2Step,
                                      Hux16s* pDst, int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiDiv_16s_AC4IRSfs(const Hux16s* pSrc, int srcStep, Hux16s* pSrcDst, int srcDstStep,
                                       HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiDiv_16u_C1RSfs(const Hux16u* pSrc1, int src1Step, const Hux16u* pSrc2, int src2Step, Hux16u* pDst,
                                     int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiDiv_16u_C1IRSfs(const Hux16u* pSrc, int srcStep, Hux16u* pSrcDst, int srcDstStep,
                                      HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiDiv_16u_C3RSfs(const Hux16u* pSrc1, int src1Step, const Hux16u* pSrc2, int src2Step, Hux16u* pDst,
                                     int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiDiv_16u_C3IRSfs(const Hux16u* pSrc, int srcStep, Hux16u* pSrcDst, int srcDstStep,
                                      HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiDiv_16u_C4RSfs(const Hux16u* pSrc1, int src1Step, const Hux16u* pSrc2, int src2Step, Hux16u* pDst,
                                     int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiDiv_16u_C4IRSfs(const Hux16u* pSrc, int srcStep, Hux16u* pSrcDst, int srcDstStep,
                                      HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiDiv_16u_AC4RSfs(const Hux16u* pSrc1, int src1Step, const Hux16u* pSrc2, int src2Step,
                                      Hux16u* pDst, int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiDiv_16u_AC4IRSfs(const Hux16u* pSrc, int srcStep, Hux16u* pSrcDst, int srcDstStep,
                                       HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiDiv_32f_C1R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step, Hux32f* pDst,
                                  int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiDiv_32f_C1IR(const Hux32f* pSrc, int srcStep, Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiDiv_32f_C3R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step, Hux32f* pDst,
                                  int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiDiv_32f_C3IR(const Hux32f* pSrc, int srcStep, Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiDiv_32f_C4R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step, Hux32f* pDst,
                                  int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiDiv_32f_C4IR(const Hux32f* pSrc, int srcStep, Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiDiv_32f_AC4R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step, Hux32f* pDst,
                                   int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiDiv_32f_AC4IR(const Hux32f* pSrc, int srcStep, Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);

/* DivC: the quotient pSrc / value, times 2^-scaleFactor.
 * A zero constant is an error. 32f multiplies by the single-precision reciprocal, and takes a NaN for a zero. 8u C1
 * multiplies by a reciprocal of six decimals and 16s C1 by one in single precision; C3, C4 and AC4 of both divide as
 * Div does. 16u divides in fixed point with 16 fraction bits.
 * Checks, in order, 8u, 16s, 32f: null pointers (huxStsNullPtr), width or height below 1 (huxStsBadSize), a step below
 * 1 (huxStsBadStep), a zero constant (huxStsDivByZero), C3, C4 and AC4 of 8u and 16s: memory (huxStsNoMem). 8u C3 and
 * C4 with a zero constant still write the region, as Div would, before they return huxStsDivByZero; all others write
 * nothing then.
 * 16u, C1: null pointers (huxStsNullPtr), width or height below 1 (huxStsBadSize), a zero constant (huxStsDivByZero).
 * 16u, C3, C4, AC4: pValue null (huxStsNullPtr), a zero constant (huxStsDivByZero), then the other null pointers,
 * width or height. Steps are not checked, but where scaleFactor above 16 makes every quotient 0, dstStep below 1 is
 * huxStsBadStep, behind the others. */
HUX_API HuxStatus huxiDivC_8u_C1RSfs(const Hux8u* pSrc, int srcStep, Hux8u value, Hux8u* pDst, int dstStep,
                                     HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiDivC_8u_C1IRSfs(Hux8u value, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiDivC_8u_C3RSfs(const Hux8u* pSrc, int srcStep, const Hux8u* pValue, Hux8u* pDst, int dstStep,
                                     HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiDivC_8u_C3IRSfs(const Hux8u* pValue, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                      int scaleFactor);
HUX_API HuxStatus huxiDivC_8u_C4RSfs(const Hux8u* pSrc, int srcStep, const Hux8u* pValue, Hux8u* pDst, int dstStep,
                                     HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiDivC_8u_C4IRSfs(const Hux8u* pValue, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                      int scaleFactor);
HUX_API HuxStatus huxiDivC_8u_AC4RSfs(const Hux8u* pSrc, int srcStep, const Hux8u* pValue, Hux8u* pDst, int dstStep,
                                      HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiDivC_8u_AC4IRSfs(const Hux8u* pValue, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                       int scaleFactor);
HUX_API HuxStatus huxiDivC_16s_C1RSfs(const Hux16s* pSrc, int srcStep, Hux16s value, Hux16s* pDst, int dstStep,
                                      HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiDivC_16s_C1IRSfs(Hux16s value, Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                       int scaleFactor);
HUX_API HuxStatus huxiDivC_16s_C3RSfs(const Hux16s* pSrc, int srcStep, const Hux16s* pValue, Hux16s* pDst, int dstStep,
                                      HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiDivC_16s_C3IRSfs(const Hux16s* pValue, Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                       int scaleFactor);
HUX_API HuxStatus huxiDivC_16s_C4RSfs(const Hux16s* pSrc, int srcStep, const Hux16s* pValue, Hux16s* pDst, int dstStep,
                                      HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiDivC_16s_C4IRSfs(const Hux16s* pValue, Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                       int scaleFactor);
HUX_API HuxStatus huxiDivC_16s_AC4RSfs(const Hux16s* pSrc, int srcStep, const Hux16s* pValue, Hux16s* pDst, int dstStep,
                                       HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiDivC_16s_AC4IRSfs(const Hux16s* pValue, Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                        int scaleFactor);
HUX_API HuxStatus huxiDivC_16u_C1RSfs(const Hux16u* pSrc, int srcStep, Hux16u value, Hux16u* pDst, int dstStep,
                                      HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiDivC_16u_C1IRSfs(Hux16u value, Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                       int scaleFactor);
HUX_API HuxStatus huxiDivC_16u_C3RSfs(const Hux16u* pSrc, int srcStep, const Hux16u* pValue, Hux16u* pDst, int dstStep,
                                      HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiDivC_16u_C3IRSfs(const Hux16u* pValue, Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                       int scaleFactor);
HUX_API HuxStatus huxiDivC_16u_C4RSfs(const Hux16u* pSrc, int srcStep, const Hux16u* pValue, Hux16u* pDst, int dstStep,
                                      HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiDivC_16u_C4IRSfs(const Hux16u* pValue, Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                       int scaleFactor);
HUX_API HuxStatus huxiDivC_16u_AC4RSfs(const Hux16u* pSrc, int srcStep, const Hux16u* pValue, Hux16u* pDst, int dstStep,
                                       HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiDivC_16u_AC4IRSfs(const Hux16u* pValue, Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                        int scaleFactor);
HUX_API HuxStatus huxiDivC_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f value, Hux32f* pDst, int dstStep,
                                   HuxiSize roiSize);
HUX_API HuxStatus huxiDivC_32f_C1IR(Hux32f value, Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiDivC_32f_C3R(const Hux32f* pSrc, int srcStep, const Hux32f* pValue, Hux32f* pDst, int dstStep,
                                   HuxiSize roiSize);
HUX_API HuxStatus huxiDivC_32f_C3IR(const Hux32f* pValue, Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiDivC_32f_C4R(const Hux32f* pSrc, int srcStep, const Hux32f* pValue, Hux32f* pDst, int dstStep,
                                   HuxiSize roiSize);
HUX_API HuxStatus huxiDivC_32f_C4IR(const Hux32f* pValue, Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiDivC_32f_AC4R(const Hux32f* pSrc, int srcStep, const Hux32f* pValue, Hux32f* pDst, int dstStep,
                                    HuxiSize roiSize);
HUX_API HuxStatus huxiDivC_32f_AC4IR(const Hux32f* pValue, Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);

/* ---- Arithmetic on complex pixels ---- */

/* Arithmetic on complex pixels: Add, Sub, Mul, Div and, with a constant, AddC, SubC, MulC, DivC.
 * Add and Sub treat real and imaginary parts apart; Mul and Div are those of complex numbers. Integer parts are
 * multiplied by 2^-scaleFactor, rounded to nearest with ties to even, and saturated; 32fc works in single precision.
 * AC4: alpha of the destination stays.
 * Operands: Sub is pSrc2 - pSrc1, Div is pSrc2 / pSrc1, SubC is pSrc - value, DivC is pSrc / value; in place pSrc
 * stands for pSrc1, and pSrcDst for pSrc2 and pDst. C3 and AC4 constant forms have pValue with 3 constants. pDst may
 * be one of the sources, with the same step, and must not overlap them otherwise.
 * Div by a zero pixel is a warning (huxStsDivByZeroWarn): integers become (0, 0), floats two NaNs, and the whole
 * region is written.
 * Checks, in order: C3 with two images: width below 1 (huxStsBadSize); null pointers (huxStsNullPtr), width or height
 * below 1 (huxStsBadSize), a step below 1 (huxStsBadStep), DivC: a zero constant (huxStsDivByZero), Div and DivC on
 * 32sc, and DivC in C3 and AC4: memory (huxStsNoMem). With any of these nothing is written.
 * Example:
 *   Hux32fc a[4] = {{1, 2}, {0, 1}, {3, 0}, {1, 1}};
 *   const Hux32fc half = {0.5f, 0};
 *   const HuxiSize pixels = {2, 2};
 *   huxiMulC_32fc_C1IR(half, a, 2 * sizeof(Hux32fc), pixels);
 */

HUX_API HuxStatus huxiAdd_16sc_C1RSfs(const Hux16sc* pSrc1, int src1Step, const Hux16sc* pSrc2, int src2Step,
                                      Hux16sc* pDst, int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiAdd_16sc_C1IRSfs(const Hux16sc* pSrc, int srcStep, Hux16sc* pSrcDst, int srcDstStep,
                                       HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiAdd_16sc_C3RSfs(const Hux16sc* pSrc1, int src1Step, const Hux16sc* pSrc2, int src2Step,
                                      Hux16sc* pDst, int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiAdd_16sc_C3IRSfs(const Hux16sc* pSrc, int srcStep, Hux16sc* pSrcDst, int srcDstStep,
                                       HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiAdd_16sc_AC4RSfs(const Hux16sc* pSrc1, int src1Step, const Hux16sc* pSrc2, int src2Step,
                                       Hux16sc* pDst, int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiAdd_16sc_AC4IRSfs(const Hux16sc* pSrc, int srcStep, Hux16sc* pSrcDst, int srcDstStep,
                                        HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiAdd_32sc_C1RSfs(const Hux32sc* pSrc1, int src1Step, const Hux32sc* pSrc2, int src2Step,
                                      Hux32sc* pDst, int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiAdd_32sc_C1IRSfs(const Hux32sc* pSrc, int srcStep, Hux32sc* pSrcDst, int srcDstStep,
                                       HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiAdd_32sc_C3RSfs(const Hux32sc* pSrc1, int src1Step, const Hux32sc* pSrc2, int src2Step,
                                      Hux32sc* pDst, int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiAdd_32sc_C3IRSfs(const Hux32sc* pSrc, int srcStep, Hux32sc* pSrcDst, int srcDstStep,
                                       HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiAdd_32sc_AC4RSfs(const Hux32sc* pSrc1, int src1Step, const Hux32sc* pSrc2, int src2Step,
                                       Hux32sc* pDst, int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiAdd_32sc_AC4IRSfs(const Hux32sc* pSrc, int srcStep, Hux32sc* pSrcDst, int srcDstStep,
                                        HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiAdd_32fc_C1R(const Hux32fc* pSrc1, int src1Step, const Hux32fc* pSrc2, int src2Step,
                                   Hux32fc* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAdd_32fc_C1IR(const Hux32fc* pSrc, int srcStep, Hux32fc* pSrcDst, int srcDstStep,
                                    HuxiSize roiSize);
HUX_API HuxStatus huxiAdd_32fc_C3R(const Hux32fc* pSrc1, int src1Step, const Hux32fc* pSrc2, int src2Step,
                                   Hux32fc* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAdd_32fc_C3IR(const Hux32fc* pSrc, int srcStep, Hux32fc* pSrcDst, int srcDstStep,
                                    HuxiSize roiSize);
HUX_API HuxStatus huxiAdd_32fc_AC4R(const Hux32fc* pSrc1, int src1Step, const Hux32fc* pSrc2, int src2Step,
                                    Hux32fc* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAdd_32fc_AC4IR(const Hux32fc* pSrc, int srcStep, Hux32fc* pSrcDst, int srcDstStep,
                                     HuxiSize roiSize);

HUX_API HuxStatus huxiSub_16sc_C1RSfs(const Hux16sc* pSrc1, int src1Step, const Hux16sc* pSrc2, int src2Step,
                                      Hux16sc* pDst, int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSub_16sc_C1IRSfs(const Hux16sc* pSrc, int srcStep, Hux16sc* pSrcDst, int srcDstStep,
                                       HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSub_16sc_C3RSfs(const Hux16sc* pSrc1, int src1Step, const Hux16sc* pSrc2, int src2Step,
                                      Hux16sc* pDst, int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSub_16sc_C3IRSfs(const Hux16sc* pSrc, int srcStep, Hux16sc* pSrcDst, int srcDstStep,
                                       HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSub_16sc_AC4RSfs(const Hux16sc* pSrc1, int src1Step, const Hux16sc* pSrc2, int src2Step,
                                       Hux16sc* pDst, int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSub_16sc_AC4IRSfs(const Hux16sc* pSrc, int srcStep, Hux16sc* pSrcDst, int srcDstStep,
                                        HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSub_32sc_C1RSfs(const Hux32sc* pSrc1, int src1Step, const Hux32sc* pSrc2, int src2Step,
                                      Hux32sc* pDst, int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSub_32sc_C1IRSfs(const Hux32sc* pSrc, int srcStep, Hux32sc* pSrcDst, int srcDstStep,
                                       HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSub_32sc_C3RSfs(const Hux32sc* pSrc1, int src1Step, const Hux32sc* pSrc2, int src2Step,
                                      Hux32sc* pDst, int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSub_32sc_C3IRSfs(const Hux32sc* pSrc, int srcStep, Hux32sc* pSrcDst, int srcDstStep,
                                       HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSub_32sc_AC4RSfs(const Hux32sc* pSrc1, int src1Step, const Hux32sc* pSrc2, int src2Step,
                                       Hux32sc* pDst, int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSub_32sc_AC4IRSfs(const Hux32sc* pSrc, int srcStep, Hux32sc* pSrcDst, int srcDstStep,
                                        HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSub_32fc_C1R(const Hux32fc* pSrc1, int src1Step, const Hux32fc* pSrc2, int src2Step,
                                   Hux32fc* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiSub_32fc_C1IR(const Hux32fc* pSrc, int srcStep, Hux32fc* pSrcDst, int srcDstStep,
                                    HuxiSize roiSize);
HUX_API HuxStatus huxiSub_32fc_C3R(const Hux32fc* pSrc1, int src1Step, const Hux32fc* pSrc2, int src2Step,
                                   Hux32fc* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiSub_32fc_C3IR(const Hux32fc* pSrc, int srcStep, Hux32fc* pSrcDst, int srcDstStep,
                                    HuxiSize roiSize);
HUX_API HuxStatus huxiSub_32fc_AC4R(const Hux32fc* pSrc1, int src1Step, const Hux32fc* pSrc2, int src2Step,
                                    Hux32fc* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiSub_32fc_AC4IR(const Hux32fc* pSrc, int srcStep, Hux32fc* pSrcDst, int srcDstStep,
                                     HuxiSize roiSize);

HUX_API HuxStatus huxiMul_16sc_C1RSfs(const Hux16sc* pSrc1, int src1Step, const Hux16sc* pSrc2, int src2Step,
                                      Hux16sc* pDst, int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMul_16sc_C1IRSfs(const Hux16sc* pSrc, int srcStep, Hux16sc* pSrcDst, int srcDstStep,
                                       HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMul_16sc_C3RSfs(const Hux16sc* pSrc1, int src1Step, const Hux16sc* pSrc2, int src2Step,
                                      Hux16sc* pDst, int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMul_16sc_C3IRSfs(const Hux16sc* pSrc, int srcStep, Hux16sc* pSrcDst, int srcDstStep,
                                       HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMul_16sc_AC4RSfs(const Hux16sc* pSrc1, int src1Step, const Hux16sc* pSrc2, int src2Step,
                                       Hux16sc* pDst, int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMul_16sc_AC4IRSfs(const Hux16sc* pSrc, int srcStep, Hux16sc* pSrcDst, int srcDstStep,
                                        HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMul_32sc_C1RSfs(const Hux32sc* pSrc1, int src1Step, const Hux32sc* pSrc2, int src2Step,
                                      Hux32sc* pDst, int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMul_32sc_C1IRSfs(const Hux32sc* pSrc, int srcStep, Hux32sc* pSrcDst, int srcDstStep,
                                       HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMul_32sc_C3RSfs(const Hux32sc* pSrc1, int src1Step, const Hux32sc* pSrc2, int src2Step,
                                      Hux32sc* pDst, int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMul_32sc_C3IRSfs(const Hux32sc* pSrc, int srcStep, Hux32sc* pSrcDst, int srcDstStep,
                                       HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMul_32sc_AC4RSfs(const Hux32sc* pSrc1, int src1Step, const Hux32sc* pSrc2, int src2Step,
                                       Hux32sc* pDst, int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMul_32sc_AC4IRSfs(const Hux32sc* pSrc, int srcStep, Hux32sc* pSrcDst, int srcDstStep,
                                        HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMul_32fc_C1R(const Hux32fc* pSrc1, int src1Step, const Hux32fc* pSrc2, int src2Step,
                                   Hux32fc* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiMul_32fc_C1IR(const Hux32fc* pSrc, int srcStep, Hux32fc* pSrcDst, int srcDstStep,
                                    HuxiSize roiSize);
HUX_API HuxStatus huxiMul_32fc_C3R(const Hux32fc* pSrc1, int src1Step, const Hux32fc* pSrc2, int src2Step,
                                   Hux32fc* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiMul_32fc_C3IR(const Hux32fc* pSrc, int srcStep, Hux32fc* pSrcDst, int srcDstStep,
                                    HuxiSize roiSize);
HUX_API HuxStatus huxiMul_32fc_AC4R(const Hux32fc* pSrc1, int src1Step, const Hux32fc* pSrc2, int src2Step,
                                    Hux32fc* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiMul_32fc_AC4IR(const Hux32fc* pSrc, int srcStep, Hux32fc* pSrcDst, int srcDstStep,
                                     HuxiSize roiSize);

HUX_API HuxStatus huxiDiv_16sc_C1RSfs(const Hux16sc* pSrc1, int src1Step, const Hux16sc* pSrc2, int src2Step,
                                      Hux16sc* pDst, int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiDiv_16sc_C1IRSfs(const Hux16sc* pSrc, int srcStep, Hux16sc* pSrcDst, int srcDstStep,
                                       HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiDiv_16sc_C3RSfs(const Hux16sc* pSrc1, int src1Step, const Hux16sc* pSrc2, int src2Step,
                                      Hux16sc* pDst, int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiDiv_16sc_C3IRSfs(const Hux16sc* pSrc, int srcStep, Hux16sc* pSrcDst, int srcDstStep,
                                       HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiDiv_16sc_AC4RSfs(const Hux16sc* pSrc1, int src1Step, const Hux16sc* pSrc2, int src2Step,
                                       Hux16sc* pDst, int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiDiv_16sc_AC4IRSfs(const Hux16sc* pSrc, int srcStep, Hux16sc* pSrcDst, int srcDstStep,
                                        HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiDiv_32sc_C1RSfs(const Hux32sc* pSrc1, int src1Step, const Hux32sc* pSrc2, int src2Step,
                                      Hux32sc* pDst, int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiDiv_32sc_C1IRSfs(const Hux32sc* pSrc, int srcStep, Hux32sc* pSrcDst, int srcDstStep,
                                       HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiDiv_32sc_C3RSfs(const Hux32sc* pSrc1, int src1Step, const Hux32sc* pSrc2, int src2Step,
                                      Hux32sc* pDst, int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiDiv_32sc_C3IRSfs(const Hux32sc* pSrc, int srcStep, Hux32sc* pSrcDst, int srcDstStep,
                                       HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiDiv_32sc_AC4RSfs(const Hux32sc* pSrc1, int src1Step, const Hux32sc* pSrc2, int src2Step,
                                       Hux32sc* pDst, int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiDiv_32sc_AC4IRSfs(const Hux32sc* pSrc, int srcStep, Hux32sc* pSrcDst, int srcDstStep,
                                        HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiDiv_32fc_C1R(const Hux32fc* pSrc1, int src1Step, const Hux32fc* pSrc2, int src2Step,
                                   Hux32fc* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiDiv_32fc_C1IR(const Hux32fc* pSrc, int srcStep, Hux32fc* pSrcDst, int srcDstStep,
                                    HuxiSize roiSize);
HUX_API HuxStatus huxiDiv_32fc_C3R(const Hux32fc* pSrc1, int src1Step, const Hux32fc* pSrc2, int src2Step,
                                   Hux32fc* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiDiv_32fc_C3IR(const Hux32fc* pSrc, int srcStep, Hux32fc* pSrcDst, int srcDstStep,
                                    HuxiSize roiSize);
HUX_API HuxStatus huxiDiv_32fc_AC4R(const Hux32fc* pSrc1, int src1Step, const Hux32fc* pSrc2, int src2Step,
                                    Hux32fc* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiDiv_32fc_AC4IR(const Hux32fc* pSrc, int srcStep, Hux32fc* pSrcDst, int srcDstStep,
                                     HuxiSize roiSize);

HUX_API HuxStatus huxiAddC_16sc_C1RSfs(const Hux16sc* pSrc, int srcStep, Hux16sc value, Hux16sc* pDst, int dstStep,
                                       HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiAddC_16sc_C1IRSfs(Hux16sc value, Hux16sc* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                        int scaleFactor);
HUX_API HuxStatus huxiAddC_16sc_C3RSfs(const Hux16sc* pSrc, int srcStep, const Hux16sc* pValue, Hux16sc* pDst,
                                       int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiAddC_16sc_C3IRSfs(const Hux16sc* pValue, Hux16sc* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                        int scaleFactor);
HUX_API HuxStatus huxiAddC_16sc_AC4RSfs(const Hux16sc* pSrc, int srcStep, const Hux16sc* pValue, Hux16sc* pDst,
                                        int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiAddC_16sc_AC4IRSfs(const Hux16sc* pValue, Hux16sc* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                         int scaleFactor);
HUX_API HuxStatus huxiAddC_32sc_C1RSfs(const Hux32sc* pSrc, int srcStep, Hux32sc value, Hux32sc* pDst, int dstStep,
                                       HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiAddC_32sc_C1IRSfs(Hux32sc value, Hux32sc* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                        int scaleFactor);
HUX_API HuxStatus huxiAddC_32sc_C3RSfs(const Hux32sc* pSrc, int srcStep, const Hux32sc* pValue, Hux32sc* pDst,
                                       int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiAddC_32sc_C3IRSfs(const Hux32sc* pValue, Hux32sc* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                        int scaleFactor);
HUX_API HuxStatus huxiAddC_32sc_AC4RSfs(const Hux32sc* pSrc, int srcStep, const Hux32sc* pValue, Hux32sc* pDst,
                                        int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiAddC_32sc_AC4IRSfs(const Hux32sc* pValue, Hux32sc* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                         int scaleFactor);
HUX_API HuxStatus huxiAddC_32fc_C1R(const Hux32fc* pSrc, int srcStep, Hux32fc value, Hux32fc* pDst, int dstStep,
                                    HuxiSize roiSize);
HUX_API HuxStatus huxiAddC_32fc_C1IR(Hux32fc value, Hux32fc* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAddC_32fc_C3R(const Hux32fc* pSrc, int srcStep, const Hux32fc* pValue, Hux32fc* pDst, int dstStep,
                                    HuxiSize roiSize);
HUX_API HuxStatus huxiAddC_32fc_C3IR(const Hux32fc* pValue, Hux32fc* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAddC_32fc_AC4R(const Hux32fc* pSrc, int srcStep, const Hux32fc* pValue, Hux32fc* pDst,
                                     int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAddC_32fc_AC4IR(const Hux32fc* pValue, Hux32fc* pSrcDst, int srcDstStep, HuxiSize roiSize);

HUX_API HuxStatus huxiSubC_16sc_C1RSfs(const Hux16sc* pSrc, int srcStep, Hux16sc value, Hux16sc* pDst, int dstStep,
                                       HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSubC_16sc_C1IRSfs(Hux16sc value, Hux16sc* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                        int scaleFactor);
HUX_API HuxStatus huxiSubC_16sc_C3RSfs(const Hux16sc* pSrc, int srcStep, const Hux16sc* pValue, Hux16sc* pDst,
                                       int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSubC_16sc_C3IRSfs(const Hux16sc* pValue, Hux16sc* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                        int scaleFactor);
HUX_API HuxStatus huxiSubC_16sc_AC4RSfs(const Hux16sc* pSrc, int srcStep, const Hux16sc* pValue, Hux16sc* pDst,
                                        int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSubC_16sc_AC4IRSfs(const Hux16sc* pValue, Hux16sc* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                         int scaleFactor);
HUX_API HuxStatus huxiSubC_32sc_C1RSfs(const Hux32sc* pSrc, int srcStep, Hux32sc value, Hux32sc* pDst, int dstStep,
                                       HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSubC_32sc_C1IRSfs(Hux32sc value, Hux32sc* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                        int scaleFactor);
HUX_API HuxStatus huxiSubC_32sc_C3RSfs(const Hux32sc* pSrc, int srcStep, const Hux32sc* pValue, Hux32sc* pDst,
                                       int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSubC_32sc_C3IRSfs(const Hux32sc* pValue, Hux32sc* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                        int scaleFactor);
HUX_API HuxStatus huxiSubC_32sc_AC4RSfs(const Hux32sc* pSrc, int srcStep, const Hux32sc* pValue, Hux32sc* pDst,
                                        int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSubC_32sc_AC4IRSfs(const Hux32sc* pValue, Hux32sc* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                         int scaleFactor);
HUX_API HuxStatus huxiSubC_32fc_C1R(const Hux32fc* pSrc, int srcStep, Hux32fc value, Hux32fc* pDst, int dstStep,
                                    HuxiSize roiSize);
HUX_API HuxStatus huxiSubC_32fc_C1IR(Hux32fc value, Hux32fc* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiSubC_32fc_C3R(const Hux32fc* pSrc, int srcStep, const Hux32fc* pValue, Hux32fc* pDst, int dstStep,
                                    HuxiSize roiSize);
HUX_API HuxStatus huxiSubC_32fc_C3IR(const Hux32fc* pValue, Hux32fc* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiSubC_32fc_AC4R(const Hux32fc* pSrc, int srcStep, const Hux32fc* pValue, Hux32fc* pDst,
                                     int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiSubC_32fc_AC4IR(const Hux32fc* pValue, Hux32fc* pSrcDst, int srcDstStep, HuxiSize roiSize);

HUX_API HuxStatus huxiMulC_16sc_C1RSfs(const Hux16sc* pSrc, int srcStep, Hux16sc value, Hux16sc* pDst, int dstStep,
                                       HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMulC_16sc_C1IRSfs(Hux16sc value, Hux16sc* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                        int scaleFactor);
HUX_API HuxStatus huxiMulC_16sc_C3RSfs(const Hux16sc* pSrc, int srcStep, const Hux16sc* pValue, Hux16sc* pDst,
                                       int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMulC_16sc_C3IRSfs(const Hux16sc* pValue, Hux16sc* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                        int scaleFactor);
HUX_API HuxStatus huxiMulC_16sc_AC4RSfs(const Hux16sc* pSrc, int srcStep, const Hux16sc* pValue, Hux16sc* pDst,
                                        int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMulC_16sc_AC4IRSfs(const Hux16sc* pValue, Hux16sc* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                         int scaleFactor);
HUX_API HuxStatus huxiMulC_32sc_C1RSfs(const Hux32sc* pSrc, int srcStep, Hux32sc value, Hux32sc* pDst, int dstStep,
                                       HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMulC_32sc_C1IRSfs(Hux32sc value, Hux32sc* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                        int scaleFactor);
HUX_API HuxStatus huxiMulC_32sc_C3RSfs(const Hux32sc* pSrc, int srcStep, const Hux32sc* pValue, Hux32sc* pDst,
                                       int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMulC_32sc_C3IRSfs(const Hux32sc* pValue, Hux32sc* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                        int scaleFactor);
HUX_API HuxStatus huxiMulC_32sc_AC4RSfs(const Hux32sc* pSrc, int srcStep, const Hux32sc* pValue, Hux32sc* pDst,
                                        int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiMulC_32sc_AC4IRSfs(const Hux32sc* pValue, Hux32sc* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                         int scaleFactor);
HUX_API HuxStatus huxiMulC_32fc_C1R(const Hux32fc* pSrc, int srcStep, Hux32fc value, Hux32fc* pDst, int dstStep,
                                    HuxiSize roiSize);
HUX_API HuxStatus huxiMulC_32fc_C1IR(Hux32fc value, Hux32fc* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiMulC_32fc_C3R(const Hux32fc* pSrc, int srcStep, const Hux32fc* pValue, Hux32fc* pDst, int dstStep,
                                    HuxiSize roiSize);
HUX_API HuxStatus huxiMulC_32fc_C3IR(const Hux32fc* pValue, Hux32fc* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiMulC_32fc_AC4R(const Hux32fc* pSrc, int srcStep, const Hux32fc* pValue, Hux32fc* pDst,
                                     int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiMulC_32fc_AC4IR(const Hux32fc* pValue, Hux32fc* pSrcDst, int srcDstStep, HuxiSize roiSize);

HUX_API HuxStatus huxiDivC_16sc_C1RSfs(const Hux16sc* pSrc, int srcStep, Hux16sc value, Hux16sc* pDst, int dstStep,
                                       HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiDivC_16sc_C1IRSfs(Hux16sc value, Hux16sc* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                        int scaleFactor);
HUX_API HuxStatus huxiDivC_16sc_C3RSfs(const Hux16sc* pSrc, int srcStep, const Hux16sc* pValue, Hux16sc* pDst,
                                       int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiDivC_16sc_C3IRSfs(const Hux16sc* pValue, Hux16sc* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                        int scaleFactor);
HUX_API HuxStatus huxiDivC_16sc_AC4RSfs(const Hux16sc* pSrc, int srcStep, const Hux16sc* pValue, Hux16sc* pDst,
                                        int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiDivC_16sc_AC4IRSfs(const Hux16sc* pValue, Hux16sc* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                         int scaleFactor);
HUX_API HuxStatus huxiDivC_32sc_C1RSfs(const Hux32sc* pSrc, int srcStep, Hux32sc value, Hux32sc* pDst, int dstStep,
                                       HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiDivC_32sc_C1IRSfs(Hux32sc value, Hux32sc* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                        int scaleFactor);
HUX_API HuxStatus huxiDivC_32sc_C3RSfs(const Hux32sc* pSrc, int srcStep, const Hux32sc* pValue, Hux32sc* pDst,
                                       int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiDivC_32sc_C3IRSfs(const Hux32sc* pValue, Hux32sc* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                        int scaleFactor);
HUX_API HuxStatus huxiDivC_32sc_AC4RSfs(const Hux32sc* pSrc, int srcStep, const Hux32sc* pValue, Hux32sc* pDst,
                                        int dstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiDivC_32sc_AC4IRSfs(const Hux32sc* pValue, Hux32sc* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                         int scaleFactor);
HUX_API HuxStatus huxiDivC_32fc_C1R(const Hux32fc* pSrc, int srcStep, Hux32fc value, Hux32fc* pDst, int dstStep,
                                    HuxiSize roiSize);
HUX_API HuxStatus huxiDivC_32fc_C1IR(Hux32fc value, Hux32fc* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiDivC_32fc_C3R(const Hux32fc* pSrc, int srcStep, const Hux32fc* pValue, Hux32fc* pDst, int dstStep,
                                    HuxiSize roiSize);
HUX_API HuxStatus huxiDivC_32fc_C3IR(const Hux32fc* pValue, Hux32fc* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiDivC_32fc_AC4R(const Hux32fc* pSrc, int srcStep, const Hux32fc* pValue, Hux32fc* pDst,
                                     int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiDivC_32fc_AC4IR(const Hux32fc* pValue, Hux32fc* pSrcDst, int srcDstStep, HuxiSize roiSize);

/* ---- Elementary functions ---- */

/* Elementary functions: Abs, Sqr, Sqrt, Exp, Ln of each element.
 * Integer results are the exact result times 2^-scaleFactor, ties rounded to even, saturated. Float results of Sqrt,
 * Exp and Ln are those in double precision, narrowed. Warnings are kept to the end, the first one met stands, and the
 * whole region is written; in AC4 forms one may come from the alpha of the source. AC4: alpha of the destination
 * stays. Forms in place have one image, pSrcDst; other images must not overlap. Abs, Sqr and Sqrt round steps down to
 * whole elements. */

/* Abs: the absolute value; of -32768 on 16s 32767, on 32f the sign bit is cleared, of a NaN too.
 * Checks, in order: null pointers (huxStsNullPtr), width or height below 1 (huxStsBadSize), a step below 1
 * (huxStsBadStep), AC4: memory for a row (huxStsNoMem). */
HUX_API HuxStatus huxiAbs_16s_C1R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAbs_16s_C3R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAbs_16s_C4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAbs_16s_AC4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAbs_16s_C1IR(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAbs_16s_C3IR(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAbs_16s_C4IR(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAbs_16s_AC4IR(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAbs_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAbs_32f_C3R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAbs_32f_C4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAbs_32f_AC4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAbs_32f_C1IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAbs_32f_C3IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAbs_32f_C4IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAbs_32f_AC4IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);

/* Sqr: the square, times 2^-scaleFactor.
 * Checks, in order: null pointers (huxStsNullPtr), width or height below 1 (huxStsBadSize), a step below 1
 * (huxStsBadStep), AC4: memory for a row (huxStsNoMem). */
HUX_API HuxStatus huxiSqr_8u_C1RSfs(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                    int scaleFactor);
HUX_API HuxStatus huxiSqr_8u_C3RSfs(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                    int scaleFactor);
HUX_API HuxStatus huxiSqr_8u_C4RSfs(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                    int scaleFactor);
HUX_API HuxStatus huxiSqr_8u_AC4RSfs(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                     int scaleFactor);
HUX_API HuxStatus huxiSqr_8u_C1IRSfs(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSqr_8u_C3IRSfs(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSqr_8u_C4IRSfs(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSqr_8u_AC4IRSfs(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSqr_16u_C1RSfs(const Hux16u* pSrc, int srcStep, Hux16u* pDst, int dstStep, HuxiSize roiSize,
                                     int scaleFactor);
HUX_API HuxStatus huxiSqr_16u_C3RSfs(const Hux16u* pSrc, int srcStep, Hux16u* pDst, int dstStep, HuxiSize roiSize,
                                     int scaleFactor);
HUX_API HuxStatus huxiSqr_16u_C4RSfs(const Hux16u* pSrc, int srcStep, Hux16u* pDst, int dstStep, HuxiSize roiSize,
                                     int scaleFactor);
HUX_API HuxStatus huxiSqr_16u_AC4RSfs(const Hux16u* pSrc, int srcStep, Hux16u* pDst, int dstStep, HuxiSize roiSize,
                                      int scaleFactor);
HUX_API HuxStatus huxiSqr_16u_C1IRSfs(Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSqr_16u_C3IRSfs(Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSqr_16u_C4IRSfs(Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSqr_16u_AC4IRSfs(Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSqr_16s_C1RSfs(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize,
                                     int scaleFactor);
HUX_API HuxStatus huxiSqr_16s_C3RSfs(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize,
                                     int scaleFactor);
HUX_API HuxStatus huxiSqr_16s_C4RSfs(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize,
                                     int scaleFactor);
HUX_API HuxStatus huxiSqr_16s_AC4RSfs(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize,
                                      int scaleFactor);
HUX_API HuxStatus huxiSqr_16s_C1IRSfs(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSqr_16s_C3IRSfs(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSqr_16s_C4IRSfs(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSqr_16s_AC4IRSfs(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSqr_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiSqr_32f_C3R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiSqr_32f_C4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiSqr_32f_AC4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiSqr_32f_C1IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiSqr_32f_C3IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiSqr_32f_C4IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiSqr_32f_AC4IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);

/* Sqrt: the square root, times 2^-scaleFactor.
 * A negative element (32f: also NaN) is a warning (huxStsSqrtNegWarn) and gives 0 on 16s, NaN on 32f.
 * Checks, in order: null pointers (huxStsNullPtr), width or height below 1 (huxStsBadSize), a step below 1
 * (huxStsBadStep), AC4: memory for a row (huxStsNoMem). */
HUX_API HuxStatus huxiSqrt_8u_C1RSfs(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                     int scaleFactor);
HUX_API HuxStatus huxiSqrt_8u_C3RSfs(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                     int scaleFactor);
HUX_API HuxStatus huxiSqrt_8u_AC4RSfs(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                      int scaleFactor);
HUX_API HuxStatus huxiSqrt_8u_C1IRSfs(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSqrt_8u_C3IRSfs(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSqrt_8u_AC4IRSfs(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSqrt_16u_C1RSfs(const Hux16u* pSrc, int srcStep, Hux16u* pDst, int dstStep, HuxiSize roiSize,
                                      int scaleFactor);
HUX_API HuxStatus huxiSqrt_16u_C3RSfs(const Hux16u* pSrc, int srcStep, Hux16u* pDst, int dstStep, HuxiSize roiSize,
                                      int scaleFactor);
HUX_API HuxStatus huxiSqrt_16u_AC4RSfs(const Hux16u* pSrc, int srcStep, Hux16u* pDst, int dstStep, HuxiSize roiSize,
                                       int scaleFactor);
HUX_API HuxStatus huxiSqrt_16u_C1IRSfs(Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSqrt_16u_C3IRSfs(Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSqrt_16u_AC4IRSfs(Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSqrt_16s_C1RSfs(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize,
                                      int scaleFactor);
HUX_API HuxStatus huxiSqrt_16s_C3RSfs(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize,
                                      int scaleFactor);
HUX_API HuxStatus huxiSqrt_16s_AC4RSfs(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize,
                                       int scaleFactor);
HUX_API HuxStatus huxiSqrt_16s_C1IRSfs(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSqrt_16s_C3IRSfs(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSqrt_16s_AC4IRSfs(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiSqrt_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiSqrt_32f_C3R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiSqrt_32f_AC4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiSqrt_32f_C1IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiSqrt_32f_C3IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiSqrt_32f_AC4IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiSqrt_32f_C4IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);

/* Exp: the exponential, e to the power of the element, times 2^-scaleFactor.
 * On 8u, 0 at scaleFactor 1 gives 1, a tie that goes up.
 * Checks, in order: null pointers (huxStsNullPtr), width or height below 1 (huxStsBadSize), a step below 1
 * (huxStsBadStep). */
HUX_API HuxStatus huxiExp_8u_C1RSfs(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                    int scaleFactor);
HUX_API HuxStatus huxiExp_8u_C3RSfs(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                    int scaleFactor);
HUX_API HuxStatus huxiExp_8u_C1IRSfs(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiExp_8u_C3IRSfs(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiExp_16s_C1RSfs(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize,
                                     int scaleFactor);
HUX_API HuxStatus huxiExp_16s_C3RSfs(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize,
                                     int scaleFactor);
HUX_API HuxStatus huxiExp_16s_C1IRSfs(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiExp_16s_C3IRSfs(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiExp_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiExp_32f_C3R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiExp_32f_C1IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiExp_32f_C3IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);

/* Ln: the natural logarithm, times 2^-scaleFactor.
 * Zero is a warning (huxStsLogZeroWarn) and gives 0 on 8u, -32768 on 16s, minus infinity on 32f; a negative element is
 * a warning (huxStsLogNegWarn) and gives -32768 on 16s, NaN on 32f. NaN gives NaN, without a warning.
 * Checks, in order: null pointers (huxStsNullPtr), width or height below 1 (huxStsBadSize), a step below 1
 * (huxStsBadStep).
 * Example:
 *   HuxStatus status = huxiLn_8u_C1RSfs(src, srcStep, dst, dstStep, size, -5);  // 32 ln p
 *   if (status == huxStsLogZeroWarn) status = huxStsOk;                         // pixels of 0 have become 0
 */
HUX_API HuxStatus huxiLn_8u_C1RSfs(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                   int scaleFactor);
HUX_API HuxStatus huxiLn_8u_C3RSfs(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                   int scaleFactor);
HUX_API HuxStatus huxiLn_8u_C1IRSfs(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiLn_8u_C3IRSfs(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiLn_16s_C1RSfs(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize,
                                    int scaleFactor);
HUX_API HuxStatus huxiLn_16s_C3RSfs(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize,
                                    int scaleFactor);
HUX_API HuxStatus huxiLn_16s_C1IRSfs(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiLn_16s_C3IRSfs(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize, int scaleFactor);
HUX_API HuxStatus huxiLn_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiLn_32f_C3R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiLn_32f_C1IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiLn_32f_C3IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);

/* ---- Operations on bits ---- */

/* And, Or, Xor, AndC, OrC, XorC: operations on the bits of each element of two images, or of an image and a constant.
 * Constant forms have value (C1), or pValue with 3 (C3, AC4) or 4 (C4) constants, of the pixel type. In place pSrcDst
 * is the second source and the destination. pDst may be one of the sources, with the same step. AC4: alpha of the
 * destination stays.
 * Checks, in order: C3 and C4 of And, Or and Xor: width or height below 1 (huxStsBadSize); null pointers
 * (huxStsNullPtr), a step below 1 (huxStsBadStep), width or height below 1 (huxStsBadSize). */

HUX_API HuxStatus huxiAnd_8u_C1R(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step, Hux8u* pDst,
                                 int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAnd_8u_C1IR(const Hux8u* pSrc, int srcStep, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAnd_8u_C3R(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step, Hux8u* pDst,
                                 int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAnd_8u_C3IR(const Hux8u* pSrc, int srcStep, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAnd_8u_C4R(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step, Hux8u* pDst,
                                 int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAnd_8u_C4IR(const Hux8u* pSrc, int srcStep, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAnd_8u_AC4R(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step, Hux8u* pDst,
                                  int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAnd_8u_AC4IR(const Hux8u* pSrc, int srcStep, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAnd_16u_C1R(const Hux16u* pSrc1, int src1Step, const Hux16u* pSrc2, int src2Step, Hux16u* pDst,
                                  int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAnd_16u_C1IR(const Hux16u* pSrc, int srcStep, Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAnd_16u_C3R(const Hux16u* pSrc1, int src1Step, const Hux16u* pSrc2, int src2Step, Hux16u* pDst,
                                  int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAnd_16u_C3IR(const Hux16u* pSrc, int srcStep, Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAnd_16u_C4R(const Hux16u* pSrc1, int src1Step, const Hux16u* pSrc2, int src2Step, Hux16u* pDst,
                                  int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAnd_16u_C4IR(const Hux16u* pSrc, int srcStep, Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAnd_16u_AC4R(const Hux16u* pSrc1, int src1Step, const Hux16u* pSrc2, int src2Step, Hux16u* pDst,
                                   int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAnd_16u_AC4IR(const Hux16u* pSrc, int srcStep, Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAnd_32s_C1R(const Hux32s* pSrc1, int src1Step, const Hux32s* pSrc2, int src2Step, Hux32s* pDst,
                                  int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAnd_32s_C1IR(const Hux32s* pSrc, int srcStep, Hux32s* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAnd_32s_C3R(const Hux32s* pSrc1, int src1Step, const Hux32s* pSrc2, int src2Step, Hux32s* pDst,
                                  int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAnd_32s_C3IR(const Hux32s* pSrc, int srcStep, Hux32s* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAnd_32s_C4R(const Hux32s* pSrc1, int src1Step, const Hux32s* pSrc2, int src2Step, Hux32s* pDst,
                                  int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAnd_32s_C4IR(const Hux32s* pSrc, int srcStep, Hux32s* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAnd_32s_AC4R(const Hux32s* pSrc1, int src1Step, const Hux32s* pSrc2, int src2Step, Hux32s* pDst,
                                   int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAnd_32s_AC4IR(const Hux32s* pSrc, int srcStep, Hux32s* pSrcDst, int srcDstStep, HuxiSize roiSize);

HUX_API HuxStatus huxiOr_8u_C1R(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step, Hux8u* pDst,
                                int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiOr_8u_C1IR(const Hux8u* pSrc, int srcStep, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiOr_8u_C3R(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step, Hux8u* pDst,
                                int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiOr_8u_C3IR(const Hux8u* pSrc, int srcStep, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiOr_8u_C4R(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step, Hux8u* pDst,
                                int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiOr_8u_C4IR(const Hux8u* pSrc, int srcStep, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiOr_8u_AC4R(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step, Hux8u* pDst,
                                 int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiOr_8u_AC4IR(const Hux8u* pSrc, int srcStep, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiOr_16u_C1R(const Hux16u* pSrc1, int src1Step, const Hux16u* pSrc2, int src2Step, Hux16u* pDst,
                                 int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiOr_16u_C1IR(const Hux16u* pSrc, int srcStep, Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiOr_16u_C3R(const Hux16u* pSrc1, int src1Step, const Hux16u* pSrc2, int src2Step, Hux16u* pDst,
                                 int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiOr_16u_C3IR(const Hux16u* pSrc, int srcStep, Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiOr_16u_C4R(const Hux16u* pSrc1, int src1Step, const Hux16u* pSrc2, int src2Step, Hux16u* pDst,
                                 int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiOr_16u_C4IR(const Hux16u* pSrc, int srcStep, Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiOr_16u_AC4R(const Hux16u* pSrc1, int src1Step, const Hux16u* pSrc2, int src2Step, Hux16u* pDst,
                                  int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiOr_16u_AC4IR(const Hux16u* pSrc, int srcStep, Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiOr_32s_C1R(const Hux32s* pSrc1, int src1Step, const Hux32s* pSrc2, int src2Step, Hux32s* pDst,
                                 int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiOr_32s_C1IR(const Hux32s* pSrc, int srcStep, Hux32s* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiOr_32s_C3R(const Hux32s* pSrc1, int src1Step, const Hux32s* pSrc2, int src2Step, Hux32s* pDst,
                                 int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiOr_32s_C3IR(const Hux32s* pSrc, int srcStep, Hux32s* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiOr_32s_C4R(const Hux32s* pSrc1, int src1Step, const Hux32s* pSrc2, int src2Step, Hux32s* pDst,
                                 int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiOr_32s_C4IR(const Hux32s* pSrc, int srcStep, Hux32s* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiOr_32s_AC4R(const Hux32s* pSrc1, int src1Step, const Hux32s* pSrc2, int src2Step, Hux32s* pDst,
                                  int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiOr_32s_AC4IR(const Hux32s* pSrc, int srcStep, Hux32s* pSrcDst, int srcDstStep, HuxiSize roiSize);

HUX_API HuxStatus huxiXor_8u_C1R(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step, Hux8u* pDst,
                                 int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiXor_8u_C1IR(const Hux8u* pSrc, int srcStep, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiXor_8u_C3R(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step, Hux8u* pDst,
                                 int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiXor_8u_C3IR(const Hux8u* pSrc, int srcStep, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiXor_8u_C4R(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step, Hux8u* pDst,
                                 int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiXor_8u_C4IR(const Hux8u* pSrc, int srcStep, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiXor_8u_AC4R(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step, Hux8u* pDst,
                                  int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiXor_8u_AC4IR(const Hux8u* pSrc, int srcStep, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiXor_16u_C1R(const Hux16u* pSrc1, int src1Step, const Hux16u* pSrc2, int src2Step, Hux16u* pDst,
                                  int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiXor_16u_C1IR(const Hux16u* pSrc, int srcStep, Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiXor_16u_C3R(const Hux16u* pSrc1, int src1Step, const Hux16u* pSrc2, int src2Step, Hux16u* pDst,
                                  int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiXor_16u_C3IR(const Hux16u* pSrc, int srcStep, Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiXor_16u_C4R(const Hux16u* pSrc1, int src1Step, const Hux16u* pSrc2, int src2Step, Hux16u* pDst,
                                  int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiXor_16u_C4IR(const Hux16u* pSrc, int srcStep, Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiXor_16u_AC4R(const Hux16u* pSrc1, int src1Step, const Hux16u* pSrc2, int src2Step, Hux16u* pDst,
                                   int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiXor_16u_AC4IR(const Hux16u* pSrc, int srcStep, Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiXor_32s_C1R(const Hux32s* pSrc1, int src1Step, const Hux32s* pSrc2, int src2Step, Hux32s* pDst,
                                  int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiXor_32s_C1IR(const Hux32s* pSrc, int srcStep, Hux32s* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiXor_32s_C3R(const Hux32s* pSrc1, int src1Step, const Hux32s* pSrc2, int src2Step, Hux32s* pDst,
                                  int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiXor_32s_C3IR(const Hux32s* pSrc, int srcStep, Hux32s* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiXor_32s_C4R(const Hux32s* pSrc1, int src1Step, const Hux32s* pSrc2, int src2Step, Hux32s* pDst,
                                  int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiXor_32s_C4IR(const Hux32s* pSrc, int srcStep, Hux32s* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiXor_32s_AC4R(const Hux32s* pSrc1, int src1Step, const Hux32s* pSrc2, int src2Step, Hux32s* pDst,
                                   int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiXor_32s_AC4IR(const Hux32s* pSrc, int srcStep, Hux32s* pSrcDst, int srcDstStep, HuxiSize roiSize);

HUX_API HuxStatus huxiAndC_8u_C1R(const Hux8u* pSrc, int srcStep, Hux8u value, Hux8u* pDst, int dstStep,
                                  HuxiSize roiSize);
HUX_API HuxStatus huxiAndC_8u_C1IR(Hux8u value, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAndC_8u_C3R(const Hux8u* pSrc, int srcStep, const Hux8u* pValue, Hux8u* pDst, int dstStep,
                                  HuxiSize roiSize);
HUX_API HuxStatus huxiAndC_8u_C3IR(const Hux8u* pValue, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAndC_8u_C4R(const Hux8u* pSrc, int srcStep, const Hux8u* pValue, Hux8u* pDst, int dstStep,
                                  HuxiSize roiSize);
HUX_API HuxStatus huxiAndC_8u_C4IR(const Hux8u* pValue, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAndC_8u_AC4R(const Hux8u* pSrc, int srcStep, const Hux8u* pValue, Hux8u* pDst, int dstStep,
                                   HuxiSize roiSize);
HUX_API HuxStatus huxiAndC_8u_AC4IR(const Hux8u* pValue, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAndC_16u_C1R(const Hux16u* pSrc, int srcStep, Hux16u value, Hux16u* pDst, int dstStep,
                                   HuxiSize roiSize);
HUX_API HuxStatus huxiAndC_16u_C1IR(Hux16u value, Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAndC_16u_C3R(const Hux16u* pSrc, int srcStep, const Hux16u* pValue, Hux16u* pDst, int dstStep,
                                   HuxiSize roiSize);
HUX_API HuxStatus huxiAndC_16u_C3IR(const Hux16u* pValue, Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAndC_16u_C4R(const Hux16u* pSrc, int srcStep, const Hux16u* pValue, Hux16u* pDst, int dstStep,
                                   HuxiSize roiSize);
HUX_API HuxStatus huxiAndC_16u_C4IR(const Hux16u* pValue, Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAndC_16u_AC4R(const Hux16u* pSrc, int srcStep, const Hux16u* pValue, Hux16u* pDst, int dstStep,
                                    HuxiSize roiSize);
HUX_API HuxStatus huxiAndC_16u_AC4IR(const Hux16u* pValue, Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAndC_32s_C1R(const Hux32s* pSrc, int srcStep, Hux32s value, Hux32s* pDst, int dstStep,
                                   HuxiSize roiSize);
HUX_API HuxStatus huxiAndC_32s_C1IR(Hux32s value, Hux32s* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAndC_32s_C3R(const Hux32s* pSrc, int srcStep, const Hux32s* pValue, Hux32s* pDst, int dstStep,
                                   HuxiSize roiSize);
HUX_API HuxStatus huxiAndC_32s_C3IR(const Hux32s* pValue, Hux32s* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAndC_32s_C4R(const Hux32s* pSrc, int srcStep, const Hux32s* pValue, Hux32s* pDst, int dstStep,
                                   HuxiSize roiSize);
HUX_API HuxStatus huxiAndC_32s_C4IR(const Hux32s* pValue, Hux32s* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAndC_32s_AC4R(const Hux32s* pSrc, int srcStep, const Hux32s* pValue, Hux32s* pDst, int dstStep,
                                    HuxiSize roiSize);
HUX_API HuxStatus huxiAndC_32s_AC4IR(const Hux32s* pValue, Hux32s* pSrcDst, int srcDstStep, HuxiSize roiSize);

HUX_API HuxStatus huxiOrC_8u_C1R(const Hux8u* pSrc, int srcStep, Hux8u value, Hux8u* pDst, int dstStep,
                                 HuxiSize roiSize);
HUX_API HuxStatus huxiOrC_8u_C1IR(Hux8u value, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiOrC_8u_C3R(const Hux8u* pSrc, int srcStep, const Hux8u* pValue, Hux8u* pDst, int dstStep,
                                 HuxiSize roiSize);
HUX_API HuxStatus huxiOrC_8u_C3IR(const Hux8u* pValue, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiOrC_8u_C4R(const Hux8u* pSrc, int srcStep, const Hux8u* pValue, Hux8u* pDst, int dstStep,
                                 HuxiSize roiSize);
HUX_API HuxStatus huxiOrC_8u_C4IR(const Hux8u* pValue, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiOrC_8u_AC4R(const Hux8u* pSrc, int srcStep, const Hux8u* pValue, Hux8u* pDst, int dstStep,
                                  HuxiSize roiSize);
HUX_API HuxStatus huxiOrC_8u_AC4IR(const Hux8u* pValue, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiOrC_16u_C1R(const Hux16u* pSrc, int srcStep, Hux16u value, Hux16u* pDst, int dstStep,
                                  HuxiSize roiSize);
HUX_API HuxStatus huxiOrC_16u_C1IR(Hux16u value, Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiOrC_16u_C3R(const Hux16u* pSrc, int srcStep, const Hux16u* pValue, Hux16u* pDst, int dstStep,
                                  HuxiSize roiSize);
HUX_API HuxStatus huxiOrC_16u_C3IR(const Hux16u* pValue, Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiOrC_16u_C4R(const Hux16u* pSrc, int srcStep, const Hux16u* pValue, Hux16u* pDst, int dstStep,
                                  HuxiSize roiSize);
HUX_API HuxStatus huxiOrC_16u_C4IR(const Hux16u* pValue, Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiOrC_16u_AC4R(const Hux16u* pSrc, int srcStep, const Hux16u* pValue, Hux16u* pDst, int dstStep,
                                   HuxiSize roiSize);
HUX_API HuxStatus huxiOrC_16u_AC4IR(const Hux16u* pValue, Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiOrC_32s_C1R(const Hux32s* pSrc, int srcStep, Hux32s value, Hux32s* pDst, int dstStep,
                                  HuxiSize roiSize);
HUX_API HuxStatus huxiOrC_32s_C1IR(Hux32s value, Hux32s* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiOrC_32s_C3R(const Hux32s* pSrc, int srcStep, const Hux32s* pValue, Hux32s* pDst, int dstStep,
                                  HuxiSize roiSize);
HUX_API HuxStatus huxiOrC_32s_C3IR(const Hux32s* pValue, Hux32s* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiOrC_32s_C4R(const Hux32s* pSrc, int srcStep, const Hux32s* pValue, Hux32s* pDst, int dstStep,
                                  HuxiSize roiSize);
HUX_API HuxStatus huxiOrC_32s_C4IR(const Hux32s* pValue, Hux32s* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiOrC_32s_AC4R(const Hux32s* pSrc, int srcStep, const Hux32s* pValue, Hux32s* pDst, int dstStep,
                                   HuxiSize roiSize);
HUX_API HuxStatus huxiOrC_32s_AC4IR(const Hux32s* pValue, Hux32s* pSrcDst, int srcDstStep, HuxiSize roiSize);

HUX_API HuxStatus huxiXorC_8u_C1R(const Hux8u* pSrc, int srcStep, Hux8u value, Hux8u* pDst, int dstStep,
                                  HuxiSize roiSize);
HUX_API HuxStatus huxiXorC_8u_C1IR(Hux8u value, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiXorC_8u_C3R(const Hux8u* pSrc, int srcStep, const Hux8u* pValue, Hux8u* pDst, int dstStep,
                                  HuxiSize roiSize);
HUX_API HuxStatus huxiXorC_8u_C3IR(const Hux8u* pValue, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiXorC_8u_C4R(const Hux8u* pSrc, int srcStep, const Hux8u* pValue, Hux8u* pDst, int dstStep,
                                  HuxiSize roiSize);
HUX_API HuxStatus huxiXorC_8u_C4IR(const Hux8u* pValue, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiXorC_8u_AC4R(const Hux8u* pSrc, int srcStep, const Hux8u* pValue, Hux8u* pDst, int dstStep,
                                   HuxiSize roiSize);
HUX_API HuxStatus huxiXorC_8u_AC4IR(const Hux8u* pValue, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiXorC_16u_C1R(const Hux16u* pSrc, int srcStep, Hux16u value, Hux16u* pDst, int dstStep,
                                   HuxiSize roiSize);
HUX_API HuxStatus huxiXorC_16u_C1IR(Hux16u value, Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiXorC_16u_C3R(const Hux16u* pSrc, int srcStep, const Hux16u* pValue, Hux16u* pDst, int dstStep,
                                   HuxiSize roiSize);
HUX_API HuxStatus huxiXorC_16u_C3IR(const Hux16u* pValue, Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiXorC_16u_C4R(const Hux16u* pSrc, int srcStep, const Hux16u* pValue, Hux16u* pDst, int dstStep,
                                   HuxiSize roiSize);
HUX_API HuxStatus huxiXorC_16u_C4IR(const Hux16u* pValue, Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiXorC_16u_AC4R(const Hux16u* pSrc, int srcStep, const Hux16u* pValue, Hux16u* pDst, int dstStep,
                                    HuxiSize roiSize);
HUX_API HuxStatus huxiXorC_16u_AC4IR(const Hux16u* pValue, Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiXorC_32s_C1R(const Hux32s* pSrc, int srcStep, Hux32s value, Hux32s* pDst, int dstStep,
                                   HuxiSize roiSize);
HUX_API HuxStatus huxiXorC_32s_C1IR(Hux32s value, Hux32s* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiXorC_32s_C3R(const Hux32s* pSrc, int srcStep, const Hux32s* pValue, Hux32s* pDst, int dstStep,
                                   HuxiSize roiSize);
HUX_API HuxStatus huxiXorC_32s_C3IR(const Hux32s* pValue, Hux32s* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiXorC_32s_C4R(const Hux32s* pSrc, int srcStep, const Hux32s* pValue, Hux32s* pDst, int dstStep,
                                   HuxiSize roiSize);
HUX_API HuxStatus huxiXorC_32s_C4IR(const Hux32s* pValue, Hux32s* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiXorC_32s_AC4R(const Hux32s* pSrc, int srcStep, const Hux32s* pValue, Hux32s* pDst, int dstStep,
                                    HuxiSize roiSize);
HUX_API HuxStatus huxiXorC_32s_AC4IR(const Hux32s* pValue, Hux32s* pSrcDst, int srcDstStep, HuxiSize roiSize);

/* Not: inverts all bits of each element.
 * AC4: alpha of the destination stays.
 * Checks, in order: C3 and C4 out of place: width or height below 1 (huxStsBadSize); null pointers (huxStsNullPtr), a
 * step below 1 (huxStsBadStep), width or height below 1 (huxStsBadSize). */
HUX_API HuxStatus huxiNot_8u_C1R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiNot_8u_C1IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiNot_8u_C3R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiNot_8u_C3IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiNot_8u_C4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiNot_8u_C4IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiNot_8u_AC4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiNot_8u_AC4IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);

/* LShiftC, RShiftC: shift the bits of each element to the left or to the right by a constant count.
 * Counts are Hux32u whatever the pixel type: value (C1), or pValue with 3 (C3, AC4) or 4 (C4) of them. Left: bits fall
 * off the top, without saturation. Right: logical on unsigned, arithmetic on signed types. A count of the type's width
 * or more leaves zeros, on signed types shifted right the sign. AC4: alpha of the destination stays.
 * Checks, in order: null pointers (huxStsNullPtr), a step below 1 (huxStsBadStep), width or height below 1
 * (huxStsBadSize).
 * Example:
 *   const Hux32u posterize[3] = {5, 5, 6};
 *   huxiRShiftC_8u_C3IR(posterize, dst, dstStep, size);
 *   huxiLShiftC_8u_C3IR(posterize, dst, dstStep, size);
 */
HUX_API HuxStatus huxiLShiftC_8u_C1R(const Hux8u* pSrc, int srcStep, Hux32u value, Hux8u* pDst, int dstStep,
                                     HuxiSize roiSize);
HUX_API HuxStatus huxiLShiftC_8u_C1IR(Hux32u value, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiLShiftC_8u_C3R(const Hux8u* pSrc, int srcStep, const Hux32u* pValue, Hux8u* pDst, int dstStep,
                                     HuxiSize roiSize);
HUX_API HuxStatus huxiLShiftC_8u_C3IR(const Hux32u* pValue, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiLShiftC_8u_C4R(const Hux8u* pSrc, int srcStep, const Hux32u* pValue, Hux8u* pDst, int dstStep,
                                     HuxiSize roiSize);
HUX_API HuxStatus huxiLShiftC_8u_C4IR(const Hux32u* pValue, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiLShiftC_8u_AC4R(const Hux8u* pSrc, int srcStep, const Hux32u* pValue, Hux8u* pDst, int dstStep,
                                      HuxiSize roiSize);
HUX_API HuxStatus huxiLShiftC_8u_AC4IR(const Hux32u* pValue, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiLShiftC_16u_C1R(const Hux16u* pSrc, int srcStep, Hux32u value, Hux16u* pDst, int dstStep,
                                      HuxiSize roiSize);
HUX_API HuxStatus huxiLShiftC_16u_C1IR(Hux32u value, Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiLShiftC_16u_C3R(const Hux16u* pSrc, int srcStep, const Hux32u* pValue, Hux16u* pDst, int dstStep,
                                      HuxiSize roiSize);
HUX_API HuxStatus huxiLShiftC_16u_C3IR(const Hux32u* pValue, Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiLShiftC_16u_C4R(const Hux16u* pSrc, int srcStep, const Hux32u* pValue, Hux16u* pDst, int dstStep,
                                      HuxiSize roiSize);
HUX_API HuxStatus huxiLShiftC_16u_C4IR(const Hux32u* pValue, Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiLShiftC_16u_AC4R(const Hux16u* pSrc, int srcStep, const Hux32u* pValue, Hux16u* pDst, int dstStep,
                                       HuxiSize roiSize);
HUX_API HuxStatus huxiLShiftC_16u_AC4IR(const Hux32u* pValue, Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiLShiftC_32s_C1R(const Hux32s* pSrc, int srcStep, Hux32u value, Hux32s* pDst, int dstStep,
                                      HuxiSize roiSize);
HUX_API HuxStatus huxiLShiftC_32s_C1IR(Hux32u value, Hux32s* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiLShiftC_32s_C3R(const Hux32s* pSrc, int srcStep, const Hux32u* pValue, Hux32s* pDst, int dstStep,
                                      HuxiSize roiSize);
HUX_API HuxStatus huxiLShiftC_32s_C3IR(const Hux32u* pValue, Hux32s* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiLShiftC_32s_C4R(const Hux32s* pSrc, int srcStep, const Hux32u* pValue, Hux32s* pDst, int dstStep,
                                      HuxiSize roiSize);
HUX_API HuxStatus huxiLShiftC_32s_C4IR(const Hux32u* pValue, Hux32s* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiLShiftC_32s_AC4R(const Hux32s* pSrc, int srcStep, const Hux32u* pValue, Hux32s* pDst, int dstStep,
                                       HuxiSize roiSize);
HUX_API HuxStatus huxiLShiftC_32s_AC4IR(const Hux32u* pValue, Hux32s* pSrcDst, int srcDstStep, HuxiSize roiSize);

HUX_API HuxStatus huxiRShiftC_8u_C1R(const Hux8u* pSrc, int srcStep, Hux32u value, Hux8u* pDst, int dstStep,
                                     HuxiSize roiSize);
HUX_API HuxStatus huxiRShiftC_8u_C1IR(Hux32u value, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiRShiftC_8u_C3R(const Hux8u* pSrc, int srcStep, const Hux32u* pValue, Hux8u* pDst, int dstStep,
                                     HuxiSize roiSize);
HUX_API HuxStatus huxiRShiftC_8u_C3IR(const Hux32u* pValue, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiRShiftC_8u_C4R(const Hux8u* pSrc, int srcStep, const Hux32u* pValue, Hux8u* pDst, int dstStep,
                                     HuxiSize roiSize);
HUX_API HuxStatus huxiRShiftC_8u_C4IR(const Hux32u* pValue, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiRShiftC_8u_AC4R(const Hux8u* pSrc, int srcStep, const Hux32u* pValue, Hux8u* pDst, int dstStep,
                                      HuxiSize roiSize);
HUX_API HuxStatus huxiRShiftC_8u_AC4IR(const Hux32u* pValue, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiRShiftC_8s_C1R(const Hux8s* pSrc, int srcStep, Hux32u value, Hux8s* pDst, int dstStep,
                                     HuxiSize roiSize);
HUX_API HuxStatus huxiRShiftC_8s_C1IR(Hux32u value, Hux8s* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiRShiftC_8s_C3R(const Hux8s* pSrc, int srcStep, const Hux32u* pValue, Hux8s* pDst, int dstStep,
                                     HuxiSize roiSize);
HUX_API HuxStatus huxiRShiftC_8s_C3IR(const Hux32u* pValue, Hux8s* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiRShiftC_8s_C4R(const Hux8s* pSrc, int srcStep, const Hux32u* pValue, Hux8s* pDst, int dstStep,
                                     HuxiSize roiSize);
HUX_API HuxStatus huxiRShiftC_8s_C4IR(const Hux32u* pValue, Hux8s* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiRShiftC_8s_AC4R(const Hux8s* pSrc, int srcStep, const Hux32u* pValue, Hux8s* pDst, int dstStep,
                                      HuxiSize roiSize);
HUX_API HuxStatus huxiRShiftC_8s_AC4IR(const Hux32u* pValue, Hux8s* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiRShiftC_16u_C1R(const Hux16u* pSrc, int srcStep, Hux32u value, Hux16u* pDst, int dstStep,
                                      HuxiSize roiSize);
HUX_API HuxStatus huxiRShiftC_16u_C1IR(Hux32u value, Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiRShiftC_16u_C3R(const Hux16u* pSrc, int srcStep, const Hux32u* pValue, Hux16u* pDst, int dstStep,
                                      HuxiSize roiSize);
HUX_API HuxStatus huxiRShiftC_16u_C3IR(const Hux32u* pValue, Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiRShiftC_16u_C4R(const Hux16u* pSrc, int srcStep, const Hux32u* pValue, Hux16u* pDst, int dstStep,
                                      HuxiSize roiSize);
HUX_API HuxStatus huxiRShiftC_16u_C4IR(const Hux32u* pValue, Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiRShiftC_16u_AC4R(const Hux16u* pSrc, int srcStep, const Hux32u* pValue, Hux16u* pDst, int dstStep,
                                       HuxiSize roiSize);
HUX_API HuxStatus huxiRShiftC_16u_AC4IR(const Hux32u* pValue, Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiRShiftC_16s_C1R(const Hux16s* pSrc, int srcStep, Hux32u value, Hux16s* pDst, int dstStep,
                                      HuxiSize roiSize);
HUX_API HuxStatus huxiRShiftC_16s_C1IR(Hux32u value, Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiRShiftC_16s_C3R(const Hux16s* pSrc, int srcStep, const Hux32u* pValue, Hux16s* pDst, int dstStep,
                                      HuxiSize roiSize);
HUX_API HuxStatus huxiRShiftC_16s_C3IR(const Hux32u* pValue, Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiRShiftC_16s_C4R(const Hux16s* pSrc, int srcStep, const Hux32u* pValue, Hux16s* pDst, int dstStep,
                                      HuxiSize roiSize);
HUX_API HuxStatus huxiRShiftC_16s_C4IR(const Hux32u* pValue, Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiRShiftC_16s_AC4R(const Hux16s* pSrc, int srcStep, const Hux32u* pValue, Hux16s* pDst, int dstStep,
                                       HuxiSize roiSize);
HUX_API HuxStatus huxiRShiftC_16s_AC4IR(const Hux32u* pValue, Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiRShiftC_32s_C1R(const Hux32s* pSrc, int srcStep, Hux32u value, Hux32s* pDst, int dstStep,
                                      HuxiSize roiSize);
HUX_API HuxStatus huxiRShiftC_32s_C1IR(Hux32u value, Hux32s* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiRShiftC_32s_C3R(const Hux32s* pSrc, int srcStep, const Hux32u* pValue, Hux32s* pDst, int dstStep,
                                      HuxiSize roiSize);
HUX_API HuxStatus huxiRShiftC_32s_C3IR(const Hux32u* pValue, Hux32s* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiRShiftC_32s_C4R(const Hux32s* pSrc, int srcStep, const Hux32u* pValue, Hux32s* pDst, int dstStep,
                                      HuxiSize roiSize);
HUX_API HuxStatus huxiRShiftC_32s_C4IR(const Hux32u* pValue, Hux32s* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiRShiftC_32s_AC4R(const Hux32s* pSrc, int srcStep, const Hux32u* pValue, Hux32s* pDst, int dstStep,
                                       HuxiSize roiSize);
HUX_API HuxStatus huxiRShiftC_32s_AC4IR(const Hux32u* pValue, Hux32s* pSrcDst, int srcDstStep, HuxiSize roiSize);

/* ---- Fractions ---- */

/* MulScale, MulCScale: the product of two images, or of an image and a constant, as fractions of the type's maximum.
 *   8u   (p + (p >> 8) + 1) >> 8      of the product p: the maximum times b is b
 *   16u  (p + (p >> 16) + 1) >> 16
 * Constant forms have value (C1), or pValue with 3 (C3, AC4) or 4 (C4) constants. In place pSrcDst is the second
 * source and the destination. AC4: alpha of the destination stays.
 * Checks, in order: C3 and C4 of MulScale: width or height below 1 (huxStsBadSize); null pointers (huxStsNullPtr), a
 * step below 1 (huxStsBadStep), width or height below 1 (huxStsBadSize). */
HUX_API HuxStatus huxiMulScale_8u_C1R(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step, Hux8u* pDst,
                                      int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiMulScale_8u_C1IR(const Hux8u* pSrc, int srcStep, Hux8u* pSrcDst, int srcDstStep,
                                       HuxiSize roiSize);
HUX_API HuxStatus huxiMulScale_8u_C3R(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step, Hux8u* pDst,
                                      int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiMulScale_8u_C3IR(const Hux8u* pSrc, int srcStep, Hux8u* pSrcDst, int srcDstStep,
                                       HuxiSize roiSize);
HUX_API HuxStatus huxiMulScale_8u_C4R(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step, Hux8u* pDst,
                                      int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiMulScale_8u_C4IR(const Hux8u* pSrc, int srcStep, Hux8u* pSrcDst, int srcDstStep,
                                       HuxiSize roiSize);
HUX_API HuxStatus huxiMulScale_8u_AC4R(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step, Hux8u* pDst,
                                       int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiMulScale_8u_AC4IR(const Hux8u* pSrc, int srcStep, Hux8u* pSrcDst, int srcDstStep,
                                        HuxiSize roiSize);
HUX_API HuxStatus huxiMulScale_16u_C1R(const Hux16u* pSrc1, int src1Step, const Hux16u* pSrc2, int src2Step,
                                       Hux16u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiMulScale_16u_C1IR(const Hux16u* pSrc, int srcStep, Hux16u* pSrcDst, int srcDstStep,
                                        HuxiSize roiSize);
HUX_API HuxStatus huxiMulScale_16u_C3R(const Hux16u* pSrc1, int src1Step, const Hux16u* pSrc2, int src2Step,
                                       Hux16u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiMulScale_16u_C3IR(const Hux16u* pSrc, int srcStep, Hux16u* pSrcDst, int srcDstStep,
                                        HuxiSize roiSize);
HUX_API HuxStatus huxiMulScale_16u_C4R(const Hux16u* pSrc1, int src1Step, const Hux16u* pSrc2, int src2Step,
                                       Hux16u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiMulScale_16u_C4IR(const Hux16u* pSrc, int srcStep, Hux16u* pSrcDst, int srcDstStep,
                                        HuxiSize roiSize);
HUX_API HuxStatus huxiMulScale_16u_AC4R(const Hux16u* pSrc1, int src1Step, const Hux16u* pSrc2, int src2Step,
                                        Hux16u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiMulScale_16u_AC4IR(const Hux16u* pSrc, int srcStep, Hux16u* pSrcDst, int srcDstStep,
                                         HuxiSize roiSize);

HUX_API HuxStatus huxiMulCScale_8u_C1R(const Hux8u* pSrc, int srcStep, Hux8u value, Hux8u* pDst, int dstStep,
                                       HuxiSize roiSize);
HUX_API HuxStatus huxiMulCScale_8u_C1IR(Hux8u value, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiMulCScale_8u_C3R(const Hux8u* pSrc, int srcStep, const Hux8u* pValue, Hux8u* pDst, int dstStep,
                                       HuxiSize roiSize);
HUX_API HuxStatus huxiMulCScale_8u_C3IR(const Hux8u* pValue, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiMulCScale_8u_C4R(const Hux8u* pSrc, int srcStep, const Hux8u* pValue, Hux8u* pDst, int dstStep,
                                       HuxiSize roiSize);
HUX_API HuxStatus huxiMulCScale_8u_C4IR(const Hux8u* pValue, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiMulCScale_8u_AC4R(const Hux8u* pSrc, int srcStep, const Hux8u* pValue, Hux8u* pDst, int dstStep,
                                        HuxiSize roiSize);
HUX_API HuxStatus huxiMulCScale_8u_AC4IR(const Hux8u* pValue, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiMulCScale_16u_C1R(const Hux16u* pSrc, int srcStep, Hux16u value, Hux16u* pDst, int dstStep,
                                        HuxiSize roiSize);
HUX_API HuxStatus huxiMulCScale_16u_C1IR(Hux16u value, Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiMulCScale_16u_C3R(const Hux16u* pSrc, int srcStep, const Hux16u* pValue, Hux16u* pDst,
                                        int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiMulCScale_16u_C3IR(const Hux16u* pValue, Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiMulCScale_16u_C4R(const Hux16u* pSrc, int srcStep, const Hux16u* pValue, Hux16u* pDst,
                                        int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiMulCScale_16u_C4IR(const Hux16u* pValue, Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiMulCScale_16u_AC4R(const Hux16u* pSrc, int srcStep, const Hux16u* pValue, Hux16u* pDst,
                                         int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiMulCScale_16u_AC4IR(const Hux16u* pValue, Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize);

/* ---- Sign and magnitude ---- */

/* Complement: turns two's complement into sign and magnitude, in place; the lowest value stays.
 * Checks, in order: pSrcDst null (huxStsNullPtr), srcDstStep below 1 (huxStsBadStep), width or height below 1
 * (huxStsBadSize). */
HUX_API HuxStatus huxiComplement_32s_C1IR(Hux32s* pSrcDst, int srcDstStep, HuxiSize roiSize);

/* ---- Alpha ---- */

/* AlphaComp: composes image A (pSrc1) with image B (pSrc2) by alphaType.
 * With a and b for the alphas, M for the maximum of the type and D(x) for x / M rounded down, in integers (x + (x >>
 * 8) + 1) >> 8, on 16u with 16, premultiplied colours become
 *   Over  A + D((M - a) B)        In   D(b A)                        Out   D((M - b) A)
 *   ATop  D(b A) + D((M - a) B)   Xor  D((M - b) A) + D((M - a) B)   Plus  A + B
 * limited to M. Plain colours (huxAlphaOver to huxAlphaPlus) become the same of D(A a) and D(B b), and alpha the same
 * of a and b, but b by ATop. So plain colours come in plain and come out multiplied by the composed alpha; to compose
 * the result further, take a premultiplied type (huxAlphaOverPremul to huxAlphaPlusPremul) for it.
 * AC4R: by the alpha of each pixel, alpha of the destination gets the composed alpha; AC1R: images of alpha only;
 * AP4R: arrays of four planes, the fourth is alpha, one step for all planes. Every result depends on its own pixel
 * alone: pDst may be pSrc1 or pSrc2.
 * Checks, in order: null pointers, each plane's too (huxStsNullPtr), width or height below 1 (huxStsBadSize),
 * alphaType outside 0..11 (huxStsBadAlphaType). Steps are not checked.
 * Example:
 *   huxiAlphaComp_8u_AC4R(src, srcStep, dst, dstStep, dst, dstStep, size, huxAlphaOver);  // src over dst, into dst
 */
HUX_API HuxStatus huxiAlphaComp_8u_AC4R(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step, Hux8u* pDst,
                                        int dstStep, HuxiSize roiSize, HuxiAlphaType alphaType);
HUX_API HuxStatus huxiAlphaComp_8u_AC1R(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step, Hux8u* pDst,
                                        int dstStep, HuxiSize roiSize, HuxiAlphaType alphaType);
HUX_API HuxStatus huxiAlphaComp_8u_AP4R(const Hux8u* const pSrc1[4], int src1Step, const Hux8u* const pSrc2[4],
                                        int src2Step, Hux8u* const pDst[4], int dstStep, HuxiSize roiSize,
                                        HuxiAlphaType alphaType);
HUX_API HuxStatus huxiAlphaComp_16u_AC4R(const Hux16u* pSrc1, int src1Step, const Hux16u* pSrc2, int src2Step,
                                         Hux16u* pDst, int dstStep, HuxiSize roiSize, HuxiAlphaType alphaType);
HUX_API HuxStatus huxiAlphaComp_16u_AC1R(const Hux16u* pSrc1, int src1Step, const Hux16u* pSrc2, int src2Step,
                                         Hux16u* pDst, int dstStep, HuxiSize roiSize, HuxiAlphaType alphaType);
HUX_API HuxStatus huxiAlphaComp_16u_AP4R(const Hux16u* const pSrc1[4], int src1Step, const Hux16u* const pSrc2[4],
                                         int src2Step, Hux16u* const pDst[4], int dstStep, HuxiSize roiSize,
                                         HuxiAlphaType alphaType);

/* AlphaCompC: composes two images as AlphaComp does, with one alpha for each image.
 * All elements are colours, in C4R too; AC4R and AP4R leave the alpha of the destination alone, and do not read those
 * of the sources. Plain colours come out multiplied by the composed alpha. pDst may be pSrc1 or pSrc2.
 * Checks, in order: null pointers, each plane's too, the fourth's as well (huxStsNullPtr), width or height below 1
 * (huxStsBadSize), alphaType outside 0..11 (huxStsBadAlphaType). Steps are not checked.
 * Example:
 *   huxiAlphaCompC_8u_C3R(src, srcStep, 64, dst, dstStep, 191, dst, dstStep, size, huxAlphaPlus);  // a quarter of src
 */
HUX_API HuxStatus huxiAlphaCompC_8u_C1R(const Hux8u* pSrc1, int src1Step, Hux8u alpha1, const Hux8u* pSrc2,
                                        int src2Step, Hux8u alpha2, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                        HuxiAlphaType alphaType);
HUX_API HuxStatus huxiAlphaCompC_8u_C3R(const Hux8u* pSrc1, int src1Step, Hux8u alpha1, const Hux8u* pSrc2,
                                        int src2Step, Hux8u alpha2, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                        HuxiAlphaType alphaType);
HUX_API HuxStatus huxiAlphaCompC_8u_C4R(const Hux8u* pSrc1, int src1Step, Hux8u alpha1, const Hux8u* pSrc2,
                                        int src2Step, Hux8u alpha2, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                        HuxiAlphaType alphaType);
HUX_API HuxStatus huxiAlphaCompC_8u_AC4R(const Hux8u* pSrc1, int src1Step, Hux8u alpha1, const Hux8u* pSrc2,
                                         int src2Step, Hux8u alpha2, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                         HuxiAlphaType alphaType);
HUX_API HuxStatus huxiAlphaCompC_8u_AP4R(const Hux8u* const pSrc1[4], int src1Step, Hux8u alpha1,
                                         const Hux8u* const pSrc2[4], int src2Step, Hux8u alpha2, Hux8u* const pDst[4],
                                         int dstStep, HuxiSize roiSize, HuxiAlphaType alphaType);
HUX_API HuxStatus huxiAlphaCompC_16u_C1R(const Hux16u* pSrc1, int src1Step, Hux16u alpha1, const Hux16u* pSrc2,
                                         int src2Step, Hux16u alpha2, Hux16u* pDst, int dstStep, HuxiSize roiSize,
                                         HuxiAlphaType alphaType);
HUX_API HuxStatus huxiAlphaCompC_16u_C3R(const Hux16u* pSrc1, int src1Step, Hux16u alpha1, const Hux16u* pSrc2,
                                         int src2Step, Hux16u alpha2, Hux16u* pDst, int dstStep, HuxiSize roiSize,
                                         HuxiAlphaType alphaType);
HUX_API HuxStatus huxiAlphaCompC_16u_C4R(const Hux16u* pSrc1, int src1Step, Hux16u alpha1, const Hux16u* pSrc2,
                                         int src2Step, Hux16u alpha2, Hux16u* pDst, int dstStep, HuxiSize roiSize,
                                         HuxiAlphaType alphaType);
HUX_API HuxStatus huxiAlphaCompC_16u_AC4R(const Hux16u* pSrc1, int src1Step, Hux16u alpha1, const Hux16u* pSrc2,
                                          int src2Step, Hux16u alpha2, Hux16u* pDst, int dstStep, HuxiSize roiSize,
                                          HuxiAlphaType alphaType);
HUX_API HuxStatus huxiAlphaCompC_16u_AP4R(const Hux16u* const pSrc1[4], int src1Step, Hux16u alpha1,
                                          const Hux16u* const pSrc2[4], int src2Step, Hux16u alpha2,
                                          Hux16u* const pDst[4], int dstStep, HuxiSize roiSize,
                                          HuxiAlphaType alphaType);

/* AlphaPremul: multiplies the colours by the alpha of their pixel; alpha is copied.
 * Products are the fractions of MulScale: by the maximum they stay as they are. AP4: arrays of four planes, the fourth
 * is alpha, one step for all planes.
 * Checks, in order: null pointers, each plane's too (huxStsNullPtr), width or height below 1 (huxStsBadSize). Steps
 * are not checked. */
HUX_API HuxStatus huxiAlphaPremul_8u_AC4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAlphaPremul_8u_AC4IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAlphaPremul_8u_AP4R(const Hux8u* const pSrc[4], int srcStep, Hux8u* const pDst[4], int dstStep,
                                          HuxiSize roiSize);
HUX_API HuxStatus huxiAlphaPremul_8u_AP4IR(Hux8u* const pSrcDst[4], int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAlphaPremul_16u_AC4R(const Hux16u* pSrc, int srcStep, Hux16u* pDst, int dstStep,
                                           HuxiSize roiSize);
HUX_API HuxStatus huxiAlphaPremul_16u_AC4IR(Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAlphaPremul_16u_AP4R(const Hux16u* const pSrc[4], int srcStep, Hux16u* const pDst[4], int dstStep,
                                           HuxiSize roiSize);
HUX_API HuxStatus huxiAlphaPremul_16u_AP4IR(Hux16u* const pSrcDst[4], int srcDstStep, HuxiSize roiSize);

/* AlphaPremulC: multiplies the colours by one alpha.
 * C1, C3, C4: all elements; AC4, AP4: the colours, and alpha of the destination becomes that alpha. Products are the
 * fractions of MulScale. AP4: arrays of four planes, the fourth is alpha, one step for all planes.
 * Checks, in order: null pointers, each plane's too (huxStsNullPtr), width or height below 1 (huxStsBadSize). Steps
 * are not checked. */
HUX_API HuxStatus huxiAlphaPremulC_8u_C1R(const Hux8u* pSrc, int srcStep, Hux8u alpha, Hux8u* pDst, int dstStep,
                                          HuxiSize roiSize);
HUX_API HuxStatus huxiAlphaPremulC_8u_C1IR(Hux8u alpha, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAlphaPremulC_8u_C3R(const Hux8u* pSrc, int srcStep, Hux8u alpha, Hux8u* pDst, int dstStep,
                                          HuxiSize roiSize);
HUX_API HuxStatus huxiAlphaPremulC_8u_C3IR(Hux8u alpha, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAlphaPremulC_8u_C4R(const Hux8u* pSrc, int srcStep, Hux8u alpha, Hux8u* pDst, int dstStep,
                                          HuxiSize roiSize);
HUX_API HuxStatus huxiAlphaPremulC_8u_C4IR(Hux8u alpha, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAlphaPremulC_8u_AC4R(const Hux8u* pSrc, int srcStep, Hux8u alpha, Hux8u* pDst, int dstStep,
                                           HuxiSize roiSize);
HUX_API HuxStatus huxiAlphaPremulC_8u_AC4IR(Hux8u alpha, Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAlphaPremulC_8u_AP4R(const Hux8u* const pSrc[4], int srcStep, Hux8u alpha, Hux8u* const pDst[4],
                                           int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAlphaPremulC_8u_AP4IR(Hux8u alpha, Hux8u* const pSrcDst[4], int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAlphaPremulC_16u_C1R(const Hux16u* pSrc, int srcStep, Hux16u alpha, Hux16u* pDst, int dstStep,
                                           HuxiSize roiSize);
HUX_API HuxStatus huxiAlphaPremulC_16u_C1IR(Hux16u alpha, Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAlphaPremulC_16u_C3R(const Hux16u* pSrc, int srcStep, Hux16u alpha, Hux16u* pDst, int dstStep,
                                           HuxiSize roiSize);
HUX_API HuxStatus huxiAlphaPremulC_16u_C3IR(Hux16u alpha, Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAlphaPremulC_16u_C4R(const Hux16u* pSrc, int srcStep, Hux16u alpha, Hux16u* pDst, int dstStep,
                                           HuxiSize roiSize);
HUX_API HuxStatus huxiAlphaPremulC_16u_C4IR(Hux16u alpha, Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAlphaPremulC_16u_AC4R(const Hux16u* pSrc, int srcStep, Hux16u alpha, Hux16u* pDst, int dstStep,
                                            HuxiSize roiSize);
HUX_API HuxStatus huxiAlphaPremulC_16u_AC4IR(Hux16u alpha, Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAlphaPremulC_16u_AP4R(const Hux16u* const pSrc[4], int srcStep, Hux16u alpha,
                                            Hux16u* const pDst[4], int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiAlphaPremulC_16u_AP4IR(Hux16u alpha, Hux16u* const pSrcDst[4], int srcDstStep, HuxiSize roiSize);

/* ---- Thresholds and comparisons ---- */

/* Threshold: replaces elements beyond a threshold by it (Threshold, GT, LT) or by a value (Val, GTVal, LTVal,
 * LTValGTVal).
 * GT: above, LT: below; without either, cmpOp says which (huxCmpGreater, huxCmpLess). An element equal to the
 * threshold stays; LTValGTVal tests for above first. C3, C4 and AC4 take arrays of one threshold and one value per
 * colour channel, 3 or 4. AC4: alpha of the destination stays. A step that is not a multiple of the element size is
 * rounded down to one.
 * 32f, C1: elements and thresholds are compared as bit patterns: -0 is below 0, a NaN with its sign bit clear above
 * and a NaN with its sign bit set below every threshold, but for a threshold of -0, which has nothing below it and
 * everything else above. Other 32f layouts compare floats: a NaN is not above, but counts as below.
 * Checks, in order: cmpOp neither of the two (huxStsInternal), pSrc or pDst null (huxStsNullPtr), width or height
 * below 1 (huxStsBadSize), a step below 1 (huxStsBadStep), null thresholds and values (huxStsNullPtr), for LTValGTVal
 * thresholdGT below thresholdLT or NaN (huxStsBadThreshold).
 * Example:
 *   huxiThreshold_LTValGTVal_8u_C1R(src, srcStep, dst, dstStep, size, 16, 0, 235, 255);  // 16..235 stay
 */
HUX_API HuxStatus huxiThreshold_8u_C1R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                       Hux8u threshold, HuxCmpOp cmpOp);
HUX_API HuxStatus huxiThreshold_8u_C1IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, Hux8u threshold,
                                        HuxCmpOp cmpOp);
HUX_API HuxStatus huxiThreshold_8u_C3R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                       const Hux8u* pThreshold, HuxCmpOp cmpOp);
HUX_API HuxStatus huxiThreshold_8u_C3IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, const Hux8u* pThreshold,
                                        HuxCmpOp cmpOp);
HUX_API HuxStatus huxiThreshold_8u_AC4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                        const Hux8u* pThreshold, HuxCmpOp cmpOp);
HUX_API HuxStatus huxiThreshold_8u_AC4IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, const Hux8u* pThreshold,
                                         HuxCmpOp cmpOp);
HUX_API HuxStatus huxiThreshold_16s_C1R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize,
                                        Hux16s threshold, HuxCmpOp cmpOp);
HUX_API HuxStatus huxiThreshold_16s_C1IR(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize, Hux16s threshold,
                                         HuxCmpOp cmpOp);
HUX_API HuxStatus huxiThreshold_16s_C3R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize,
                                        const Hux16s* pThreshold, HuxCmpOp cmpOp);
HUX_API HuxStatus huxiThreshold_16s_C3IR(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize, const Hux16s* pThreshold,
                                         HuxCmpOp cmpOp);
HUX_API HuxStatus huxiThreshold_16s_AC4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize,
                                         const Hux16s* pThreshold, HuxCmpOp cmpOp);
HUX_API HuxStatus huxiThreshold_16s_AC4IR(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize, const Hux16s* pThreshold,
                                          HuxCmpOp cmpOp);
HUX_API HuxStatus huxiThreshold_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize,
                                        Hux32f threshold, HuxCmpOp cmpOp);
HUX_API HuxStatus huxiThreshold_32f_C1IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize, Hux32f threshold,
                                         HuxCmpOp cmpOp);
HUX_API HuxStatus huxiThreshold_32f_C3R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize,
                                        const Hux32f* pThreshold, HuxCmpOp cmpOp);
HUX_API HuxStatus huxiThreshold_32f_C3IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize, const Hux32f* pThreshold,
                                         HuxCmpOp cmpOp);
HUX_API HuxStatus huxiThreshold_32f_AC4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize,
                                         const Hux32f* pThreshold, HuxCmpOp cmpOp);
HUX_API HuxStatus huxiThreshold_32f_AC4IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize, const Hux32f* pThreshold,
                                          HuxCmpOp cmpOp);

HUX_API HuxStatus huxiThreshold_GT_8u_C1R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                          Hux8u threshold);
HUX_API HuxStatus huxiThreshold_GT_8u_C1IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, Hux8u threshold);
HUX_API HuxStatus huxiThreshold_GT_8u_C3R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                          const Hux8u* pThreshold);
HUX_API HuxStatus huxiThreshold_GT_8u_C3IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, const Hux8u* pThreshold);
HUX_API HuxStatus huxiThreshold_GT_8u_AC4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                           const Hux8u* pThreshold);
HUX_API HuxStatus huxiThreshold_GT_8u_AC4IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, const Hux8u* pThreshold);
HUX_API HuxStatus huxiThreshold_GT_16s_C1R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize,
                                           Hux16s threshold);
HUX_API HuxStatus huxiThreshold_GT_16s_C1IR(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize, Hux16s threshold);
HUX_API HuxStatus huxiThreshold_GT_16s_C3R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize,
                                           const Hux16s* pThreshold);
HUX_API HuxStatus huxiThreshold_GT_16s_C3IR(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                            const Hux16s* pThreshold);
HUX_API HuxStatus huxiThreshold_GT_16s_AC4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                            HuxiSize roiSize, const Hux16s* pThreshold);
HUX_API HuxStatus huxiThreshold_GT_16s_AC4IR(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                             const Hux16s* pThreshold);
HUX_API HuxStatus huxiThreshold_GT_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize,
                                           Hux32f threshold);
HUX_API HuxStatus huxiThreshold_GT_32f_C1IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize, Hux32f threshold);
HUX_API HuxStatus huxiThreshold_GT_32f_C3R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize,
                                           const Hux32f* pThreshold);
HUX_API HuxStatus huxiThreshold_GT_32f_C3IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                            const Hux32f* pThreshold);
HUX_API HuxStatus huxiThreshold_GT_32f_AC4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                            HuxiSize roiSize, const Hux32f* pThreshold);
HUX_API HuxStatus huxiThreshold_GT_32f_AC4IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                             const Hux32f* pThreshold);

HUX_API HuxStatus huxiThreshold_LT_8u_C1R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                          Hux8u threshold);
HUX_API HuxStatus huxiThreshold_LT_8u_C1IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, Hux8u threshold);
HUX_API HuxStatus huxiThreshold_LT_8u_C3R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                          const Hux8u* pThreshold);
HUX_API HuxStatus huxiThreshold_LT_8u_C3IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, const Hux8u* pThreshold);
HUX_API HuxStatus huxiThreshold_LT_8u_AC4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                           const Hux8u* pThreshold);
HUX_API HuxStatus huxiThreshold_LT_8u_AC4IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, const Hux8u* pThreshold);
HUX_API HuxStatus huxiThreshold_LT_16s_C1R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize,
                                           Hux16s threshold);
HUX_API HuxStatus huxiThreshold_LT_16s_C1IR(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize, Hux16s threshold);
HUX_API HuxStatus huxiThreshold_LT_16s_C3R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize,
                                           const Hux16s* pThreshold);
HUX_API HuxStatus huxiThreshold_LT_16s_C3IR(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                            const Hux16s* pThreshold);
HUX_API HuxStatus huxiThreshold_LT_16s_AC4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                            HuxiSize roiSize, const Hux16s* pThreshold);
HUX_API HuxStatus huxiThreshold_LT_16s_AC4IR(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                             const Hux16s* pThreshold);
HUX_API HuxStatus huxiThreshold_LT_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize,
                                           Hux32f threshold);
HUX_API HuxStatus huxiThreshold_LT_32f_C1IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize, Hux32f threshold);
HUX_API HuxStatus huxiThreshold_LT_32f_C3R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize,
                                           const Hux32f* pThreshold);
HUX_API HuxStatus huxiThreshold_LT_32f_C3IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                            const Hux32f* pThreshold);
HUX_API HuxStatus huxiThreshold_LT_32f_AC4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                            HuxiSize roiSize, const Hux32f* pThreshold);
HUX_API HuxStatus huxiThreshold_LT_32f_AC4IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                             const Hux32f* pThreshold);

HUX_API HuxStatus huxiThreshold_Val_8u_C1R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                           Hux8u threshold, Hux8u value, HuxCmpOp cmpOp);
HUX_API HuxStatus huxiThreshold_Val_8u_C1IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, Hux8u threshold,
                                            Hux8u value, HuxCmpOp cmpOp);
HUX_API HuxStatus huxiThreshold_Val_8u_C3R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                           const Hux8u* pThreshold, const Hux8u* pValue, HuxCmpOp cmpOp);
HUX_API HuxStatus huxiThreshold_Val_8u_C3IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, const Hux8u* pThreshold,
                                            const Hux8u* pValue, HuxCmpOp cmpOp);
HUX_API HuxStatus huxiThreshold_Val_8u_AC4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                            const Hux8u* pThreshold, const Hux8u* pValue, HuxCmpOp cmpOp);
HUX_API HuxStatus huxiThreshold_Val_8u_AC4IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, const Hux8u* pThreshold,
                                             const Hux8u* pValue, HuxCmpOp cmpOp);
HUX_API HuxStatus huxiThreshold_Val_16s_C1R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                            HuxiSize roiSize, Hux16s threshold, Hux16s value, HuxCmpOp cmpOp);
HUX_API HuxStatus huxiThreshold_Val_16s_C1IR(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize, Hux16s threshold,
                                             Hux16s value, HuxCmpOp cmpOp);
HUX_API HuxStatus huxiThreshold_Val_16s_C3R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                            HuxiSize roiSize, const Hux16s* pThreshold, const Hux16s* pValue,
                                            HuxCmpOp cmpOp);
HUX_API HuxStatus huxiThreshold_Val_16s_C3IR(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                             const Hux16s* pThreshold, const Hux16s* pValue, HuxCmpOp cmpOp);
HUX_API HuxStatus huxiThreshold_Val_16s_AC4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                             HuxiSize roiSize, const Hux16s* pThreshold, const Hux16s* pValue,
                                             HuxCmpOp cmpOp);
HUX_API HuxStatus huxiThreshold_Val_16s_AC4IR(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                              const Hux16s* pThreshold, const Hux16s* pValue, HuxCmpOp cmpOp);
HUX_API HuxStatus huxiThreshold_Val_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                            HuxiSize roiSize, Hux32f threshold, Hux32f value, HuxCmpOp cmpOp);
HUX_API HuxStatus huxiThreshold_Val_32f_C1IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize, Hux32f threshold,
                                             Hux32f value, HuxCmpOp cmpOp);
HUX_API HuxStatus huxiThreshold_Val_32f_C3R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                            HuxiSize roiSize, const Hux32f* pThreshold, const Hux32f* pValue,
                                            HuxCmpOp cmpOp);
HUX_API HuxStatus huxiThreshold_Val_32f_C3IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                             const Hux32f* pThreshold, const Hux32f* pValue, HuxCmpOp cmpOp);
HUX_API HuxStatus huxiThreshold_Val_32f_AC4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                             HuxiSize roiSize, const Hux32f* pThreshold, const Hux32f* pValue,
                                             HuxCmpOp cmpOp);
HUX_API HuxStatus huxiThreshold_Val_32f_AC4IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                              const Hux32f* pThreshold, const Hux32f* pValue, HuxCmpOp cmpOp);

HUX_API HuxStatus huxiThreshold_GTVal_8u_C1R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                             Hux8u threshold, Hux8u value);
HUX_API HuxStatus huxiThreshold_GTVal_8u_C1IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, Hux8u threshold,
                                              Hux8u value);
HUX_API HuxStatus huxiThreshold_GTVal_8u_C3R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                             const Hux8u* pThreshold, const Hux8u* pValue);
HUX_API HuxStatus huxiThreshold_GTVal_8u_C3IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, const Hux8u* pThreshold,
                                              const Hux8u* pValue);
HUX_API HuxStatus huxiThreshold_GTVal_8u_C4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                             const Hux8u* pThreshold, const Hux8u* pValue);
HUX_API HuxStatus huxiThreshold_GTVal_8u_C4IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, const Hux8u* pThreshold,
                                              const Hux8u* pValue);
HUX_API HuxStatus huxiThreshold_GTVal_8u_AC4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep,
                                              HuxiSize roiSize, const Hux8u* pThreshold, const Hux8u* pValue);
HUX_API HuxStatus huxiThreshold_GTVal_8u_AC4IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                               const Hux8u* pThreshold, const Hux8u* pValue);
HUX_API HuxStatus huxiThreshold_GTVal_16s_C1R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                              HuxiSize roiSize, Hux16s threshold, Hux16s value);
HUX_API HuxStatus huxiThreshold_GTVal_16s_C1IR(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize, Hux16s threshold,
                                               Hux16s value);
HUX_API HuxStatus huxiThreshold_GTVal_16s_C3R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                              HuxiSize roiSize, const Hux16s* pThreshold, const Hux16s* pValue);
HUX_API HuxStatus huxiThreshold_GTVal_16s_C3IR(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                               const Hux16s* pThreshold, const Hux16s* pValue);
HUX_API HuxStatus huxiThreshold_GTVal_16s_C4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                              HuxiSize roiSize, const Hux16s* pThreshold, const Hux16s* pValue);
HUX_API HuxStatus huxiThreshold_GTVal_16s_C4IR(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                               const Hux16s* pThreshold, const Hux16s* pValue);
HUX_API HuxStatus huxiThreshold_GTVal_16s_AC4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                               HuxiSize roiSize, const Hux16s* pThreshold, const Hux16s* pValue);
HUX_API HuxStatus huxiThreshold_GTVal_16s_AC4IR(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                                const Hux16s* pThreshold, const Hux16s* pValue);
HUX_API HuxStatus huxiThreshold_GTVal_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                              HuxiSize roiSize, Hux32f threshold, Hux32f value);
HUX_API HuxStatus huxiThreshold_GTVal_32f_C1IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize, Hux32f threshold,
                                               Hux32f value);
HUX_API HuxStatus huxiThreshold_GTVal_32f_C3R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                              HuxiSize roiSize, const Hux32f* pThreshold, const Hux32f* pValue);
HUX_API HuxStatus huxiThreshold_GTVal_32f_C3IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                               const Hux32f* pThreshold, const Hux32f* pValue);
HUX_API HuxStatus huxiThreshold_GTVal_32f_C4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                              HuxiSize roiSize, const Hux32f* pThreshold, const Hux32f* pValue);
HUX_API HuxStatus huxiThreshold_GTVal_32f_C4IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                               const Hux32f* pThreshold, const Hux32f* pValue);
HUX_API HuxStatus huxiThreshold_GTVal_32f_AC4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                               HuxiSize roiSize, const Hux32f* pThreshold, const Hux32f* pValue);
HUX_API HuxStatus huxiThreshold_GTVal_32f_AC4IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                                const Hux32f* pThreshold, const Hux32f* pValue);

HUX_API HuxStatus huxiThreshold_LTVal_8u_C1R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                             Hux8u threshold, Hux8u value);
HUX_API HuxStatus huxiThreshold_LTVal_8u_C1IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, Hux8u threshold,
                                              Hux8u value);
HUX_API HuxStatus huxiThreshold_LTVal_8u_C3R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                             const Hux8u* pThreshold, const Hux8u* pValue);
HUX_API HuxStatus huxiThreshold_LTVal_8u_C3IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, const Hux8u* pThreshold,
                                              const Hux8u* pValue);
HUX_API HuxStatus huxiThreshold_LTVal_8u_C4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                             const Hux8u* pThreshold, const Hux8u* pValue);
HUX_API HuxStatus huxiThreshold_LTVal_8u_C4IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, const Hux8u* pThreshold,
                                              const Hux8u* pValue);
HUX_API HuxStatus huxiThreshold_LTVal_8u_AC4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep,
                                              HuxiSize roiSize, const Hux8u* pThreshold, const Hux8u* pValue);
HUX_API HuxStatus huxiThreshold_LTVal_8u_AC4IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                               const Hux8u* pThreshold, const Hux8u* pValue);
HUX_API HuxStatus huxiThreshold_LTVal_16s_C1R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                              HuxiSize roiSize, Hux16s threshold, Hux16s value);
HUX_API HuxStatus huxiThreshold_LTVal_16s_C1IR(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize, Hux16s threshold,
                                               Hux16s value);
HUX_API HuxStatus huxiThreshold_LTVal_16s_C3R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                              HuxiSize roiSize, const Hux16s* pThreshold, const Hux16s* pValue);
HUX_API HuxStatus huxiThreshold_LTVal_16s_C3IR(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                               const Hux16s* pThreshold, const Hux16s* pValue);
HUX_API HuxStatus huxiThreshold_LTVal_16s_C4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                              HuxiSize roiSize, const Hux16s* pThreshold, const Hux16s* pValue);
HUX_API HuxStatus huxiThreshold_LTVal_16s_C4IR(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                               const Hux16s* pThreshold, const Hux16s* pValue);
HUX_API HuxStatus huxiThreshold_LTVal_16s_AC4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                               HuxiSize roiSize, const Hux16s* pThreshold, const Hux16s* pValue);
HUX_API HuxStatus huxiThreshold_LTVal_16s_AC4IR(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                                const Hux16s* pThreshold, const Hux16s* pValue);
HUX_API HuxStatus huxiThreshold_LTVal_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                              HuxiSize roiSize, Hux32f threshold, Hux32f value);
HUX_API HuxStatus huxiThreshold_LTVal_32f_C1IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize, Hux32f threshold,
                                               Hux32f value);
HUX_API HuxStatus huxiThreshold_LTVal_32f_C3R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                              HuxiSize roiSize, const Hux32f* pThreshold, const Hux32f* pValue);
HUX_API HuxStatus huxiThreshold_LTVal_32f_C3IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                               const Hux32f* pThreshold, const Hux32f* pValue);
HUX_API HuxStatus huxiThreshold_LTVal_32f_C4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                              HuxiSize roiSize, const Hux32f* pThreshold, const Hux32f* pValue);
HUX_API HuxStatus huxiThreshold_LTVal_32f_C4IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                               const Hux32f* pThreshold, const Hux32f* pValue);
HUX_API HuxStatus huxiThreshold_LTVal_32f_AC4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                               HuxiSize roiSize, const Hux32f* pThreshold, const Hux32f* pValue);
HUX_API HuxStatus huxiThreshold_LTVal_32f_AC4IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                                const Hux32f* pThreshold, const Hux32f* pValue);

HUX_API HuxStatus huxiThreshold_LTValGTVal_8u_C1R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep,
                                                  HuxiSize roiSize, Hux8u thresholdLT, Hux8u valueLT, Hux8u thresholdGT,
                                                  Hux8u valueGT);
HUX_API HuxStatus huxiThreshold_LTValGTVal_8u_C1IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, Hux8u thresholdLT,
                                                   Hux8u valueLT, Hux8u thresholdGT, Hux8u valueGT);
HUX_API HuxStatus huxiThreshold_LTValGTVal_8u_C3R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep,
                                                  HuxiSize roiSize, const Hux8u* pThresholdLT, const Hux8u* pValueLT,
                                                  const Hux8u* pThresholdGT, const Hux8u* pValueGT);
HUX_API HuxStatus huxiThreshold_LTValGTVal_8u_C3IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                                   const Hux8u* pThresholdLT, const Hux8u* pValueLT,
                                                   const Hux8u* pThresholdGT, const Hux8u* pValueGT);
HUX_API HuxStatus huxiThreshold_LTValGTVal_8u_AC4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep,
                                                   HuxiSize roiSize, const Hux8u* pThresholdLT, const Hux8u* pValueLT,
                                                   const Hux8u* pThresholdGT, const Hux8u* pValueGT);
HUX_API HuxStatus huxiThreshold_LTValGTVal_8u_AC4IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                                    const Hux8u* pThresholdLT, const Hux8u* pValueLT,
                                                    const Hux8u* pThresholdGT, const Hux8u* pValueGT);
HUX_API HuxStatus huxiThreshold_LTValGTVal_16s_C1R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                                   HuxiSize roiSize, Hux16s thresholdLT, Hux16s valueLT,
                                                   Hux16s thresholdGT, Hux16s valueGT);
HUX_API HuxStatus huxiThreshold_LTValGTVal_16s_C1IR(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                                    Hux16s thresholdLT, Hux16s valueLT, Hux16s thresholdGT,
                                                    Hux16s valueGT);
HUX_API HuxStatus huxiThreshold_LTValGTVal_16s_C3R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                                   HuxiSize roiSize, const Hux16s* pThresholdLT, const Hux16s* pValueLT,
                                                   const Hux16s* pThresholdGT, const Hux16s* pValueGT);
HUX_API HuxStatus huxiThreshold_LTValGTVal_16s_C3IR(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                                    const Hux16s* pThresholdLT, const Hux16s* pValueLT,
                                                    const Hux16s* pThresholdGT, const Hux16s* pValueGT);
HUX_API HuxStatus huxiThreshold_LTValGTVal_16s_AC4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                                    HuxiSize roiSize, const Hux16s* pThresholdLT,
                                                    const Hux16s* pValueLT, const Hux16s* pThresholdGT,
                                                    const Hux16s* pValueGT);
HUX_API HuxStatus huxiThreshold_LTValGTVal_16s_AC4IR(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                                     const Hux16s* pThresholdLT, const Hux16s* pValueLT,
                                                     const Hux16s* pThresholdGT, const Hux16s* pValueGT);
HUX_API HuxStatus huxiThreshold_LTValGTVal_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                                   HuxiSize roiSize, Hux32f thresholdLT, Hux32f valueLT,
                                                   Hux32f thresholdGT, Hux32f valueGT);
HUX_API HuxStatus huxiThreshold_LTValGTVal_32f_C1IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                                    Hux32f thresholdLT, Hux32f valueLT, Hux32f thresholdGT,
                                                    Hux32f valueGT);
HUX_API HuxStatus huxiThreshold_LTValGTVal_32f_C3R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                                   HuxiSize roiSize, const Hux32f* pThresholdLT, const Hux32f* pValueLT,
                                                   const Hux32f* pThresholdGT, const Hux32f* pValueGT);
HUX_API HuxStatus huxiThreshold_LTValGTVal_32f_C3IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                                    const Hux32f* pThresholdLT, const Hux32f* pValueLT,
                                                    const Hux32f* pThresholdGT, const Hux32f* pValueGT);
HUX_API HuxStatus huxiThreshold_LTValGTVal_32f_AC4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                                    HuxiSize roiSize, const Hux32f* pThresholdLT,
                                                    const Hux32f* pValueLT, const Hux32f* pThresholdGT,
                                                    const Hux32f* pValueGT);
HUX_API HuxStatus huxiThreshold_LTValGTVal_32f_AC4IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                                     const Hux32f* pThresholdLT, const Hux32f* pValueLT,
                                                     const Hux32f* pThresholdGT, const Hux32f* pValueGT);

/* Compare, CompareC: write 255 where a comparison of two images, or of an image and a constant, holds, else 0.
 * The comparison is pSrc1 op pSrc2, or pSrc op value, and must hold for all colour channels of a pixel (pValue has 3
 * constants for C3 and AC4, 4 for C4). The destination is a one-channel 8u image, such as masked functions take. A
 * cmpOp outside 0..4 succeeds and writes nothing.
 * NaN on 32f: every comparison of two images holds; against a constant Less, LessEq and Eq hold, GreaterEq and Greater
 * do not.
 * Checks, in order: null pointers (huxStsNullPtr), a step below 1 (huxStsBadStep), width or height below 1
 * (huxStsBadSize).
 * Example:
 *   const Hux8u green[3] = {0, 177, 64};
 *   int step;
 *   Hux8u* mask = huxiMalloc_8u_C1(size.width, size.height, &step);
 *   if (mask) huxiCompareC_8u_C3R(dst, dstStep, green, mask, step, size, huxCmpEq);
 *   if (mask) huxiCopy_8u_C3MR(src, srcStep, dst, dstStep, size, mask, step);  // src shows through where dst is green
 *   huxiFree(mask);
 */
HUX_API HuxStatus huxiCompare_8u_C1R(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step, Hux8u* pDst,
                                     int dstStep, HuxiSize roiSize, HuxCmpOp cmpOp);
HUX_API HuxStatus huxiCompare_8u_C3R(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step, Hux8u* pDst,
                                     int dstStep, HuxiSize roiSize, HuxCmpOp cmpOp);
HUX_API HuxStatus huxiCompare_8u_C4R(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step, Hux8u* pDst,
                                     int dstStep, HuxiSize roiSize, HuxCmpOp cmpOp);
HUX_API HuxStatus huxiCompare_8u_AC4R(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step, Hux8u* pDst,
                                      int dstStep, HuxiSize roiSize, HuxCmpOp cmpOp);
HUX_API HuxStatus huxiCompare_16s_C1R(const Hux16s* pSrc1, int src1Step, const Hux16s* pSrc2, int src2Step, Hux8u* pDst,
                                      int dstStep, HuxiSize roiSize, HuxCmpOp cmpOp);
HUX_API HuxStatus huxiCompare_16s_C3R(const Hux16s* pSrc1, int src1Step, const Hux16s* pSrc2, int src2Step, Hux8u* pDst,
                                      int dstStep, HuxiSize roiSize, HuxCmpOp cmpOp);
HUX_API HuxStatus huxiCompare_16s_C4R(const Hux16s* pSrc1, int src1Step, const Hux16s* pSrc2, int src2Step, Hux8u* pDst,
                                      int dstStep, HuxiSize roiSize, HuxCmpOp cmpOp);
HUX_API HuxStatus huxiCompare_16s_AC4R(const Hux16s* pSrc1, int src1Step, const Hux16s* pSrc2, int src2Step,
                                       Hux8u* pDst, int dstStep, HuxiSize roiSize, HuxCmpOp cmpOp);
HUX_API HuxStatus huxiCompare_32f_C1R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step, Hux8u* pDst,
                                      int dstStep, HuxiSize roiSize, HuxCmpOp cmpOp);
HUX_API HuxStatus huxiCompare_32f_C3R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step, Hux8u* pDst,
                                      int dstStep, HuxiSize roiSize, HuxCmpOp cmpOp);
HUX_API HuxStatus huxiCompare_32f_C4R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step, Hux8u* pDst,
                                      int dstStep, HuxiSize roiSize, HuxCmpOp cmpOp);
HUX_API HuxStatus huxiCompare_32f_AC4R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step,
                                       Hux8u* pDst, int dstStep, HuxiSize roiSize, HuxCmpOp cmpOp);

HUX_API HuxStatus huxiCompareC_8u_C1R(const Hux8u* pSrc, int srcStep, Hux8u value, Hux8u* pDst, int dstStep,
                                      HuxiSize roiSize, HuxCmpOp cmpOp);
HUX_API HuxStatus huxiCompareC_8u_C3R(const Hux8u* pSrc, int srcStep, const Hux8u* pValue, Hux8u* pDst, int dstStep,
                                      HuxiSize roiSize, HuxCmpOp cmpOp);
HUX_API HuxStatus huxiCompareC_8u_C4R(const Hux8u* pSrc, int srcStep, const Hux8u* pValue, Hux8u* pDst, int dstStep,
                                      HuxiSize roiSize, HuxCmpOp cmpOp);
HUX_API HuxStatus huxiCompareC_8u_AC4R(const Hux8u* pSrc, int srcStep, const Hux8u* pValue, Hux8u* pDst, int dstStep,
                                       HuxiSize roiSize, HuxCmpOp cmpOp);
HUX_API HuxStatus huxiCompareC_16s_C1R(const Hux16s* pSrc, int srcStep, Hux16s value, Hux8u* pDst, int dstStep,
                                       HuxiSize roiSize, HuxCmpOp cmpOp);
HUX_API HuxStatus huxiCompareC_16s_C3R(const Hux16s* pSrc, int srcStep, const Hux16s* pValue, Hux8u* pDst, int dstStep,
                                       HuxiSize roiSize, HuxCmpOp cmpOp);
HUX_API HuxStatus huxiCompareC_16s_C4R(const Hux16s* pSrc, int srcStep, const Hux16s* pValue, Hux8u* pDst, int dstStep,
                                       HuxiSize roiSize, HuxCmpOp cmpOp);
HUX_API HuxStatus huxiCompareC_16s_AC4R(const Hux16s* pSrc, int srcStep, const Hux16s* pValue, Hux8u* pDst, int dstStep,
                                        HuxiSize roiSize, HuxCmpOp cmpOp);
HUX_API HuxStatus huxiCompareC_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f value, Hux8u* pDst, int dstStep,
                                       HuxiSize roiSize, HuxCmpOp cmpOp);
HUX_API HuxStatus huxiCompareC_32f_C3R(const Hux32f* pSrc, int srcStep, const Hux32f* pValue, Hux8u* pDst, int dstStep,
                                       HuxiSize roiSize, HuxCmpOp cmpOp);
HUX_API HuxStatus huxiCompareC_32f_C4R(const Hux32f* pSrc, int srcStep, const Hux32f* pValue, Hux8u* pDst, int dstStep,
                                       HuxiSize roiSize, HuxCmpOp cmpOp);
HUX_API HuxStatus huxiCompareC_32f_AC4R(const Hux32f* pSrc, int srcStep, const Hux32f* pValue, Hux8u* pDst, int dstStep,
                                        HuxiSize roiSize, HuxCmpOp cmpOp);

/* CompareEqualEps, CompareEqualEpsC: write 255 where two images, or an image and a constant, differ by no more than
 * eps, else 0.
 * The difference is taken in single precision and without its sign, and must not be above eps for all colour channels
 * of a pixel; a NaN difference passes. pValue has 3 constants for C3 and AC4, 4 for C4. The destination is a
 * one-channel 8u image.
 * Checks, in order: null pointers (huxStsNullPtr), a step below 1 (huxStsBadStep), width or height below 1
 * (huxStsBadSize), eps negative or NaN (huxStsBadEps). */
HUX_API HuxStatus huxiCompareEqualEps_32f_C1R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step,
                                              Hux8u* pDst, int dstStep, HuxiSize roiSize, Hux32f eps);
HUX_API HuxStatus huxiCompareEqualEps_32f_C3R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step,
                                              Hux8u* pDst, int dstStep, HuxiSize roiSize, Hux32f eps);
HUX_API HuxStatus huxiCompareEqualEps_32f_C4R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step,
                                              Hux8u* pDst, int dstStep, HuxiSize roiSize, Hux32f eps);
HUX_API HuxStatus huxiCompareEqualEps_32f_AC4R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step,
                                               Hux8u* pDst, int dstStep, HuxiSize roiSize, Hux32f eps);
HUX_API HuxStatus huxiCompareEqualEpsC_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f value, Hux8u* pDst, int dstStep,
                                               HuxiSize roiSize, Hux32f eps);
HUX_API HuxStatus huxiCompareEqualEpsC_32f_C3R(const Hux32f* pSrc, int srcStep, const Hux32f* pValue, Hux8u* pDst,
                                               int dstStep, HuxiSize roiSize, Hux32f eps);
HUX_API HuxStatus huxiCompareEqualEpsC_32f_C4R(const Hux32f* pSrc, int srcStep, const Hux32f* pValue, Hux8u* pDst,
                                               int dstStep, HuxiSize roiSize, Hux32f eps);
HUX_API HuxStatus huxiCompareEqualEpsC_32f_AC4R(const Hux32f* pSrc, int srcStep, const Hux32f* pValue, Hux8u* pDst,
                                                int dstStep, HuxiSize roiSize, Hux32f eps);

HUX_END_C

#endif
