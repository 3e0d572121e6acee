/* Pixel arithmetic: one element in, one element out. Plain C99. */
#ifndef HUXI_ARITH_H
#define HUXI_ARITH_H

#include "huxdefs.h"

HUX_BEGIN_C

/* Scaled arithmetic on real pixels. The exact integer result is multiplied by 2^-scaleFactor with ties rounded to
 * even, then saturated to the pixel type; for 8u and 16u a negative difference becomes 0 first. 32f works in single
 * precision without scale. AC4: alpha of the destination stays.
 * Operands: Sub is pSrc2 - pSrc1, Div is pSrc2 / pSrc1, SubC and DivC are pSrc - value and pSrc / value; in place
 * pSrcDst stands for pSrc2. pValue addresses 3 (C3, AC4) or 4 (C4) constants.
 * Checks of Add, Sub, Mul and their C forms: null pointers (huxStsNullPtr), size (huxStsBadSize); steps are not
 * checked. C3 and C4 of the two-image forms test the width first (huxStsBadSize). Where scaleFactor is so large that
 * every result is 0, the region is handed to Set, which checks dstStep (huxStsBadStep). 16u forms take that way, and
 * an operation that changes nothing the way of Copy, ahead of their own checks. */

/* Add: pSrc1 + pSrc2. */
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

/* Sub: pSrc2 - pSrc1. */
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

/* Mul: pSrc1 * pSrc2. */
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

/* AddC: pSrc + value. */
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

/* SubC: pSrc - value. */
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

/* MulC: pSrc * value. */
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

/* Div: pSrc2 / pSrc1. A zero denominator is a warning (huxStsDivByZeroWarn); the whole region is written. Integers: 0
 * over 0 is 0, else the end of the range with the numerator's sign. 32f: infinity, NaN (numerator 0), minus infinity
 * (negative or NaN numerator). 8u and 16s divide in single precision, 16u in fixed point with 16 fraction bits.
 * Checks: null pointers, size, steps; 16u: width first in C3 and C4, then null pointers and size only. AC4 of 8u,
 * 16s, 32f: huxStsNoMem. */
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

/* DivC: pSrc / value. A zero constant is an error (huxStsDivByZero) behind the other checks: null pointers, size and,
 * but for 16u, steps. 32f multiplies by the single-precision reciprocal (huxStsDivByZero for NaN as well). 8u C1
 * multiplies by a reciprocal of six decimals and 16s C1 by one in single precision; C3, C4 and AC4 of both divide as
 * Div does (huxStsNoMem). 8u C3 and C4 with a zero constant still write the region, as Div would, before they return
 * huxStsDivByZero; all others write nothing then. 16u in C3, C4, AC4 tests pValue and its constants ahead of all else,
 * and where scaleFactor above 16 makes every quotient 0, hands the region to Set, which checks dstStep. */
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

/* Arithmetic on complex pixels. Add and Sub treat real and imaginary parts apart; Mul and Div are those of complex
 * numbers, rounded, scaled and saturated by part. Operands as for real pixels; pValue addresses 3 constants.
 * Checks: null pointers (huxStsNullPtr), size (huxStsBadSize), steps (huxStsBadStep); two-image C3 forms test the
 * width first. Div by a zero pixel is a warning (huxStsDivByZeroWarn): integers become (0, 0), floats two NaNs. DivC
 * by a zero constant is an error (huxStsDivByZero), nothing is written. Div and DivC on 32sc, and DivC in C3 and AC4:
 * huxStsNoMem. */

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

/* Elementary functions. Integer results are the exact result times 2^-scaleFactor, ties rounded to even, saturated.
 * Float results of Sqrt, Exp and Ln are those in double precision, narrowed. Checks: null pointers (huxStsNullPtr),
 * size (huxStsBadSize), steps (huxStsBadStep); AC4: then huxStsNoMem. Warnings are kept to the end, the first one met
 * stands; in AC4 forms one may come from the alpha of the source. */

/* Abs: 16s: the absolute value, of -32768 32767. 32f: the sign bit cleared. */
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

/* Sqr: the square. */
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

/* Sqrt: the square root. A negative element (32f: also NaN) is a warning (huxStsSqrtNegWarn) and gives 0 on 16s, NaN
 * on 32f. */
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

/* Exp: e to the power of the element. On 8u, 0 at scaleFactor 1 gives 1, a tie that goes up. */
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

/* Ln: the natural logarithm. Zero is a warning (huxStsLogZeroWarn) and gives 0 on 8u, -32768 on 16s, minus infinity
 * on 32f; a negative element is a warning (huxStsLogNegWarn) and gives -32768 on 16s, NaN on 32f. NaN gives NaN,
 * without a warning. */
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

/* Bitwise operations. Checks: null pointers (huxStsNullPtr), steps (huxStsBadStep), size (huxStsBadSize); C3 and C4
 * of And, Or, Xor, MulScale and of Not out of place test the size first. AC4: alpha of the destination stays. */

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

/* Not: all bits inverted. */
HUX_API HuxStatus huxiNot_8u_C1R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiNot_8u_C1IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiNot_8u_C3R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiNot_8u_C3IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiNot_8u_C4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiNot_8u_C4IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiNot_8u_AC4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiNot_8u_AC4IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);

/* LShiftC, RShiftC: shift by a count for all, or by one count per channel. Left: bits fall off the top, without
 * saturation. Right: logical on unsigned, arithmetic on signed types. A count of the type's width or more leaves
 * zeros, on signed types shifted right the sign. Checks as above. */
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

/* MulScale, MulCScale: the product of pixels as fractions of the type's maximum: (p + (p >> 8) + 1) >> 8 of the
 * product p on 8u, with 16 on 16u. The maximum times b is b. Checks as above. */
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

/* Complement: turns two's complement into sign and magnitude; the lowest value stays. Checks as above. */
HUX_API HuxStatus huxiComplement_32s_C1IR(Hux32s* pSrcDst, int srcDstStep, HuxiSize roiSize);

/* AlphaComp: composes image A (pSrc1) with image B (pSrc2) by alphaType. AC4R: by the alpha of each pixel, alpha of
 * the destination gets the composed alpha; AC1R: images of alpha only; AP4R: four planes, the fourth is alpha, one
 * step for all planes. With a and b for the alphas, M for the maximum of the type and D(x) for x / M rounded down, in
 * integers (x + (x >> 8) + 1) >> 8, on 16u with 16, premultiplied colours become
 *   Over  A + D((M - a) B)        In   D(b A)                      Out   D((M - b) A)
 *   ATop  D(b A) + D((M - a) B)   Xor  D((M - b) A) + D((M - a) B)   Plus  A + B
 * limited to M. Plain colours become the same of D(A a) and D(B b), and alpha the same of a and b, but b by ATop. So
 * plain colours come in plain and come out multiplied by the composed alpha; to compose the result further, take a
 * premultiplied type (6..11) for it. Every result depends on its own pixel alone: pDst may be pSrc1 or pSrc2.
 *   huxiAlphaComp_8u_AC4R(title, titleStep, frame, frameStep, frame, frameStep, size, huxAlphaOver);
 * Checks: null pointers, each plane's too (huxStsNullPtr), size (huxStsBadSize), alphaType outside 0..11
 * (huxStsBadAlphaType). Steps are not checked. */
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

/* AlphaCompC: the same with one alpha for each image. All elements are colours, in C4R too; AC4R and AP4R leave the
 * alpha of the destination alone. Checks as above. */
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

/* AlphaPremul: multiplies the colours by the alpha of their pixel; alpha is copied. Checks: null pointers, size;
 * steps are not checked. */
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

/* AlphaPremulC: multiplies by one alpha. C1, C3, C4: all elements; AC4, AP4: the colours, and alpha of the
 * destination becomes that alpha. Checks as above. */
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

/* Threshold: elements beyond a threshold are replaced by it (Threshold, GT, LT) or by a value (Val, GTVal, LTVal,
 * LTValGTVal). GT: above, LT: below; without either, cmpOp says which (huxCmpGreater, huxCmpLess). An element equal
 * to the threshold stays; LTValGTVal tests for above first. Multi-channel forms take arrays of one threshold and value
 * per colour channel. AC4: alpha of the destination stays. A step that is not a multiple of the element size is rounded
 * down to one.
 * 32f, C1: elements and thresholds are compared as bit patterns: -0 is below 0, a NaN with its sign bit clear above
 * and a NaN with its sign bit set below every threshold, but for a threshold of -0, which has nothing below it and
 * everything else above. Other 32f layouts compare floats: a NaN is not above, but counts as below.
 * Checks: cmpOp (huxStsInternal), null pSrc, pDst (huxStsNullPtr), size (huxStsBadSize), steps (huxStsBadStep), null
 * thresholds and values (huxStsNullPtr), for LTValGTVal thresholdGT below thresholdLT or NaN (huxStsBadThreshold). */
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

/* Compare: writes 255 where pSrc1 op pSrc2 (CompareC: pSrc op value) holds for all colour channels of a pixel, else
 * 0, to a one-channel 8u image. A cmpOp outside 0..4 succeeds and writes nothing.
 * NaN on 32f: every comparison of two images holds; against a constant Less, LessEq and Eq hold, GreaterEq and
 * Greater do not.
 * Checks: null pointers (huxStsNullPtr), steps (huxStsBadStep), size (huxStsBadSize). */
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

/* CompareEqualEps: writes 255 where the difference, taken in single precision and without its sign, is not above eps
 * for all colour channels of a pixel (a NaN difference passes), else 0. Checks as above, then eps negative or NaN
 * (huxStsBadEps). */
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
