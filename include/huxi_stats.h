/* Statistics and proximity: what an image, or a pair of images, measures; histograms and look-up tables. Plain C99. */
#ifndef HUXI_STATS_H
#define HUXI_STATS_H

#include "huxdefs.h"

HUX_BEGIN_C

/* ---- Sums and extrema ---- */

/* Sum: the sum of each channel, 1 (C1), 3 (C3, AC4) or 4 (C4) values; alpha of AC4 is not read.
 * Integer pixels are added up in 32 bits that wrap silently: 8u row by row, 16s and 16u in blocks of 65536 pixels of a
 * row, each total taken as a signed number (on 16u too, where a block of more than 32768 bright pixels turns
 * negative), and the totals in double precision. 32f is summed in double precision. hint is not read.
 * Checks, in order: null pointers (huxStsNullPtr), srcStep below 1 (huxStsBadStep), width or height below 1
 * (huxStsBadSize). */
HUX_API HuxStatus huxiSum_8u_C1R(const Hux8u* pSrc, int srcStep, HuxiSize roiSize, Hux64f* pSum);
HUX_API HuxStatus huxiSum_8u_C3R(const Hux8u* pSrc, int srcStep, HuxiSize roiSize, Hux64f pSum[3]);
HUX_API HuxStatus huxiSum_8u_AC4R(const Hux8u* pSrc, int srcStep, HuxiSize roiSize, Hux64f pSum[3]);
HUX_API HuxStatus huxiSum_8u_C4R(const Hux8u* pSrc, int srcStep, HuxiSize roiSize, Hux64f pSum[4]);
HUX_API HuxStatus huxiSum_16s_C1R(const Hux16s* pSrc, int srcStep, HuxiSize roiSize, Hux64f* pSum);
HUX_API HuxStatus huxiSum_16s_C3R(const Hux16s* pSrc, int srcStep, HuxiSize roiSize, Hux64f pSum[3]);
HUX_API HuxStatus huxiSum_16s_AC4R(const Hux16s* pSrc, int srcStep, HuxiSize roiSize, Hux64f pSum[3]);
HUX_API HuxStatus huxiSum_16s_C4R(const Hux16s* pSrc, int srcStep, HuxiSize roiSize, Hux64f pSum[4]);
HUX_API HuxStatus huxiSum_16u_C1R(const Hux16u* pSrc, int srcStep, HuxiSize roiSize, Hux64f* pSum);
HUX_API HuxStatus huxiSum_16u_C3R(const Hux16u* pSrc, int srcStep, HuxiSize roiSize, Hux64f pSum[3]);
HUX_API HuxStatus huxiSum_16u_AC4R(const Hux16u* pSrc, int srcStep, HuxiSize roiSize, Hux64f pSum[3]);
HUX_API HuxStatus huxiSum_16u_C4R(const Hux16u* pSrc, int srcStep, HuxiSize roiSize, Hux64f pSum[4]);
HUX_API HuxStatus huxiSum_32f_C1R(const Hux32f* pSrc, int srcStep, HuxiSize roiSize, Hux64f* pSum,
                                  HuxAccuracyHint hint);
HUX_API HuxStatus huxiSum_32f_C3R(const Hux32f* pSrc, int srcStep, HuxiSize roiSize, Hux64f pSum[3],
                                  HuxAccuracyHint hint);
HUX_API HuxStatus huxiSum_32f_AC4R(const Hux32f* pSrc, int srcStep, HuxiSize roiSize, Hux64f pSum[3],
                                   HuxAccuracyHint hint);
HUX_API HuxStatus huxiSum_32f_C4R(const Hux32f* pSrc, int srcStep, HuxiSize roiSize, Hux64f pSum[4],
                                  HuxAccuracyHint hint);

/* Mean: the mean of each channel, 1 (C1), 3 (C3, AC4) or 4 (C4) values; alpha of AC4 is not read.
 * The sum, as by Sum, over width * height, a product of 32 bits that wraps. C1 divides; the other layouts multiply by
 * the reciprocal. hint is not read.
 * Checks, in order: null pointers (huxStsNullPtr), srcStep below 1 (huxStsBadStep), width or height below 1
 * (huxStsBadSize). A failed call leaves pMean unwritten. */
HUX_API HuxStatus huxiMean_8u_C1R(const Hux8u* pSrc, int srcStep, HuxiSize roiSize, Hux64f* pMean);
HUX_API HuxStatus huxiMean_8u_C3R(const Hux8u* pSrc, int srcStep, HuxiSize roiSize, Hux64f pMean[3]);
HUX_API HuxStatus huxiMean_8u_AC4R(const Hux8u* pSrc, int srcStep, HuxiSize roiSize, Hux64f pMean[3]);
HUX_API HuxStatus huxiMean_8u_C4R(const Hux8u* pSrc, int srcStep, HuxiSize roiSize, Hux64f pMean[4]);
HUX_API HuxStatus huxiMean_16s_C1R(const Hux16s* pSrc, int srcStep, HuxiSize roiSize, Hux64f* pMean);
HUX_API HuxStatus huxiMean_16s_C3R(const Hux16s* pSrc, int srcStep, HuxiSize roiSize, Hux64f pMean[3]);
HUX_API HuxStatus huxiMean_16s_AC4R(const Hux16s* pSrc, int srcStep, HuxiSize roiSize, Hux64f pMean[3]);
HUX_API HuxStatus huxiMean_16s_C4R(const Hux16s* pSrc, int srcStep, HuxiSize roiSize, Hux64f pMean[4]);
HUX_API HuxStatus huxiMean_16u_C1R(const Hux16u* pSrc, int srcStep, HuxiSize roiSize, Hux64f* pMean);
HUX_API HuxStatus huxiMean_16u_C3R(const Hux16u* pSrc, int srcStep, HuxiSize roiSize, Hux64f pMean[3]);
HUX_API HuxStatus huxiMean_16u_AC4R(const Hux16u* pSrc, int srcStep, HuxiSize roiSize, Hux64f pMean[3]);
HUX_API HuxStatus huxiMean_16u_C4R(const Hux16u* pSrc, int srcStep, HuxiSize roiSize, Hux64f pMean[4]);
HUX_API HuxStatus huxiMean_32f_C1R(const Hux32f* pSrc, int srcStep, HuxiSize roiSize, Hux64f* pMean,
                                   HuxAccuracyHint hint);
HUX_API HuxStatus huxiMean_32f_C3R(const Hux32f* pSrc, int srcStep, HuxiSize roiSize, Hux64f pMean[3],
                                   HuxAccuracyHint hint);
HUX_API HuxStatus huxiMean_32f_AC4R(const Hux32f* pSrc, int srcStep, HuxiSize roiSize, Hux64f pMean[3],
                                    HuxAccuracyHint hint);
HUX_API HuxStatus huxiMean_32f_C4R(const Hux32f* pSrc, int srcStep, HuxiSize roiSize, Hux64f pMean[4],
                                   HuxAccuracyHint hint);

/* Min, Max, MinMax: the smallest and the largest element of each channel, 1, 3 (C3, AC4) or 4 values; alpha of AC4 is
 * not read.
 * With a NaN among 32f pixels: in Min and Max it displaces the running value and is displaced by the next pixel; in
 * MinMax it counts as a maximum until the next pixel that does not lower the minimum.
 * Checks, in order: null pointers (huxStsNullPtr), width or height below 1 (huxStsBadSize), srcStep below 1
 * (huxStsBadStep). */
HUX_API HuxStatus huxiMin_8u_C1R(const Hux8u* pSrc, int srcStep, HuxiSize roiSize, Hux8u* pMin);
HUX_API HuxStatus huxiMin_8u_C3R(const Hux8u* pSrc, int srcStep, HuxiSize roiSize, Hux8u pMin[3]);
HUX_API HuxStatus huxiMin_8u_AC4R(const Hux8u* pSrc, int srcStep, HuxiSize roiSize, Hux8u pMin[3]);
HUX_API HuxStatus huxiMin_8u_C4R(const Hux8u* pSrc, int srcStep, HuxiSize roiSize, Hux8u pMin[4]);
HUX_API HuxStatus huxiMin_16s_C1R(const Hux16s* pSrc, int srcStep, HuxiSize roiSize, Hux16s* pMin);
HUX_API HuxStatus huxiMin_16s_C3R(const Hux16s* pSrc, int srcStep, HuxiSize roiSize, Hux16s pMin[3]);
HUX_API HuxStatus huxiMin_16s_AC4R(const Hux16s* pSrc, int srcStep, HuxiSize roiSize, Hux16s pMin[3]);
HUX_API HuxStatus huxiMin_16s_C4R(const Hux16s* pSrc, int srcStep, HuxiSize roiSize, Hux16s pMin[4]);
HUX_API HuxStatus huxiMin_32f_C1R(const Hux32f* pSrc, int srcStep, HuxiSize roiSize, Hux32f* pMin);
HUX_API HuxStatus huxiMin_32f_C3R(const Hux32f* pSrc, int srcStep, HuxiSize roiSize, Hux32f pMin[3]);
HUX_API HuxStatus huxiMin_32f_AC4R(const Hux32f* pSrc, int srcStep, HuxiSize roiSize, Hux32f pMin[3]);
HUX_API HuxStatus huxiMin_32f_C4R(const Hux32f* pSrc, int srcStep, HuxiSize roiSize, Hux32f pMin[4]);
HUX_API HuxStatus huxiMax_8u_C1R(const Hux8u* pSrc, int srcStep, HuxiSize roiSize, Hux8u* pMax);
HUX_API HuxStatus huxiMax_8u_C3R(const Hux8u* pSrc, int srcStep, HuxiSize roiSize, Hux8u pMax[3]);
HUX_API HuxStatus huxiMax_8u_AC4R(const Hux8u* pSrc, int srcStep, HuxiSize roiSize, Hux8u pMax[3]);
HUX_API HuxStatus huxiMax_8u_C4R(const Hux8u* pSrc, int srcStep, HuxiSize roiSize, Hux8u pMax[4]);
HUX_API HuxStatus huxiMax_16s_C1R(const Hux16s* pSrc, int srcStep, HuxiSize roiSize, Hux16s* pMax);
HUX_API HuxStatus huxiMax_16s_C3R(const Hux16s* pSrc, int srcStep, HuxiSize roiSize, Hux16s pMax[3]);
HUX_API HuxStatus huxiMax_16s_AC4R(const Hux16s* pSrc, int srcStep, HuxiSize roiSize, Hux16s pMax[3]);
HUX_API HuxStatus huxiMax_16s_C4R(const Hux16s* pSrc, int srcStep, HuxiSize roiSize, Hux16s pMax[4]);
HUX_API HuxStatus huxiMax_32f_C1R(const Hux32f* pSrc, int srcStep, HuxiSize roiSize, Hux32f* pMax);
HUX_API HuxStatus huxiMax_32f_C3R(const Hux32f* pSrc, int srcStep, HuxiSize roiSize, Hux32f pMax[3]);
HUX_API HuxStatus huxiMax_32f_AC4R(const Hux32f* pSrc, int srcStep, HuxiSize roiSize, Hux32f pMax[3]);
HUX_API HuxStatus huxiMax_32f_C4R(const Hux32f* pSrc, int srcStep, HuxiSize roiSize, Hux32f pMax[4]);
HUX_API HuxStatus huxiMinMax_8u_C1R(const Hux8u* pSrc, int srcStep, HuxiSize roiSize, Hux8u* pMin, Hux8u* pMax);
HUX_API HuxStatus huxiMinMax_8u_C3R(const Hux8u* pSrc, int srcStep, HuxiSize roiSize, Hux8u pMin[3], Hux8u pMax[3]);
HUX_API HuxStatus huxiMinMax_8u_AC4R(const Hux8u* pSrc, int srcStep, HuxiSize roiSize, Hux8u pMin[3], Hux8u pMax[3]);
HUX_API HuxStatus huxiMinMax_8u_C4R(const Hux8u* pSrc, int srcStep, HuxiSize roiSize, Hux8u pMin[4], Hux8u pMax[4]);
HUX_API HuxStatus huxiMinMax_16s_C1R(const Hux16s* pSrc, int srcStep, HuxiSize roiSize, Hux16s* pMin, Hux16s* pMax);
HUX_API HuxStatus huxiMinMax_16s_C3R(const Hux16s* pSrc, int srcStep, HuxiSize roiSize, Hux16s pMin[3], Hux16s pMax[3]);
HUX_API HuxStatus huxiMinMax_16s_AC4R(const Hux16s* pSrc, int srcStep, HuxiSize roiSize, Hux16s pMin[3],
                                      Hux16s pMax[3]);
HUX_API HuxStatus huxiMinMax_16s_C4R(const Hux16s* pSrc, int srcStep, HuxiSize roiSize, Hux16s pMin[4], Hux16s pMax[4]);
HUX_API HuxStatus huxiMinMax_32f_C1R(const Hux32f* pSrc, int srcStep, HuxiSize roiSize, Hux32f* pMin, Hux32f* pMax);
HUX_API HuxStatus huxiMinMax_32f_C3R(const Hux32f* pSrc, int srcStep, HuxiSize roiSize, Hux32f pMin[3], Hux32f pMax[3]);
HUX_API HuxStatus huxiMinMax_32f_AC4R(const Hux32f* pSrc, int srcStep, HuxiSize roiSize, Hux32f pMin[3],
                                      Hux32f pMax[3]);
HUX_API HuxStatus huxiMinMax_32f_C4R(const Hux32f* pSrc, int srcStep, HuxiSize roiSize, Hux32f pMin[4], Hux32f pMax[4]);

/* MinIndx, MaxIndx: the smallest or largest element of each channel, and the column and row of the first pixel that
 * holds it.
 * Rows are gone through from top to bottom; columns and rows count from 0 in the region. Each result is an array of 1,
 * 3 (C3, AC4) or 4 values; alpha of AC4 is not read. On 32f a NaN in the first pixel stays, a later one is never
 * taken.
 * Checks, in order: null pointers (huxStsNullPtr), width or height below 1 (huxStsBadSize), srcStep below 1
 * (huxStsBadStep).
 * Example:
 *   Hux8u brightest;
 *   int x, y;
 *   huxiMaxIndx_8u_C1R(src, srcStep, size, &brightest, &x, &y);
 */
HUX_API HuxStatus huxiMinIndx_8u_C1R(const Hux8u* pSrc, int srcStep, HuxiSize roiSize, Hux8u* pMin, int* pIndexX,
                                     int* pIndexY);
HUX_API HuxStatus huxiMinIndx_8u_C3R(const Hux8u* pSrc, int srcStep, HuxiSize roiSize, Hux8u pMin[3], int pIndexX[3],
                                     int pIndexY[3]);
HUX_API HuxStatus huxiMinIndx_8u_AC4R(const Hux8u* pSrc, int srcStep, HuxiSize roiSize, Hux8u pMin[3], int pIndexX[3],
                                      int pIndexY[3]);
HUX_API HuxStatus huxiMinIndx_8u_C4R(const Hux8u* pSrc, int srcStep, HuxiSize roiSize, Hux8u pMin[4], int pIndexX[4],
                                     int pIndexY[4]);
HUX_API HuxStatus huxiMinIndx_16s_C1R(const Hux16s* pSrc, int srcStep, HuxiSize roiSize, Hux16s* pMin, int* pIndexX,
                                      int* pIndexY);
HUX_API HuxStatus huxiMinIndx_16s_C3R(const Hux16s* pSrc, int srcStep, HuxiSize roiSize, Hux16s pMin[3], int pIndexX[3],
                                      int pIndexY[3]);
HUX_API HuxStatus huxiMinIndx_16s_AC4R(const Hux16s* pSrc, int srcStep, HuxiSize roiSize, Hux16s pMin[3],
                                       int pIndexX[3], int pIndexY[3]);
HUX_API HuxStatus huxiMinIndx_16s_C4R(const Hux16s* pSrc, int srcStep, HuxiSize roiSize, Hux16s pMin[4], int pIndexX[4],
                                      int pIndexY[4]);
HUX_API HuxStatus huxiMinIndx_32f_C1R(const Hux32f* pSrc, int srcStep, HuxiSize roiSize, Hux32f* pMin, int* pIndexX,
                                      int* pIndexY);
HUX_API HuxStatus huxiMinIndx_32f_C3R(const Hux32f* pSrc, int srcStep, HuxiSize roiSize, Hux32f pMin[3], int pIndexX[3],
                                      int pIndexY[3]);
HUX_API HuxStatus huxiMinIndx_32f_AC4R(const Hux32f* pSrc, int srcStep, HuxiSize roiSize, Hux32f pMin[3],
                                       int pIndexX[3], int pIndexY[3]);
HUX_API HuxStatus huxiMinIndx_32f_C4R(const Hux32f* pSrc, int srcStep, HuxiSize roiSize, Hux32f pMin[4], int pIndexX[4],
                                      int pIndexY[4]);
HUX_API HuxStatus huxiMaxIndx_8u_C1R(const Hux8u* pSrc, int srcStep, HuxiSize roiSize, Hux8u* pMax, int* pIndexX,
                                     int* pIndexY);
HUX_API HuxStatus huxiMaxIndx_8u_C3R(const Hux8u* pSrc, int srcStep, HuxiSize roiSize, Hux8u pMax[3], int pIndexX[3],
                                     int pIndexY[3]);
HUX_API HuxStatus huxiMaxIndx_8u_AC4R(const Hux8u* pSrc, int srcStep, HuxiSize roiSize, Hux8u pMax[3], int pIndexX[3],
                                      int pIndexY[3]);
HUX_API HuxStatus huxiMaxIndx_8u_C4R(const Hux8u* pSrc, int srcStep, HuxiSize roiSize, Hux8u pMax[4], int pIndexX[4],
                                     int pIndexY[4]);
HUX_API HuxStatus huxiMaxIndx_16s_C1R(const Hux16s* pSrc, int srcStep, HuxiSize roiSize, Hux16s* pMax, int* pIndexX,
                                      int* pIndexY);
HUX_API HuxStatus huxiMaxIndx_16s_C3R(const Hux16s* pSrc, int srcStep, HuxiSize roiSize, Hux16s pMax[3], int pIndexX[3],
                                      int pIndexY[3]);
HUX_API HuxStatus huxiMaxIndx_16s_AC4R(const Hux16s* pSrc, int srcStep, HuxiSize roiSize, Hux16s pMax[3],
                                       int pIndexX[3], int pIndexY[3]);
HUX_API HuxStatus huxiMaxIndx_16s_C4R(const Hux16s* pSrc, int srcStep, HuxiSize roiSize, Hux16s pMax[4], int pIndexX[4],
                                      int pIndexY[4]);
HUX_API HuxStatus huxiMaxIndx_32f_C1R(const Hux32f* pSrc, int srcStep, HuxiSize roiSize, Hux32f* pMax, int* pIndexX,
                                      int* pIndexY);
HUX_API HuxStatus huxiMaxIndx_32f_C3R(const Hux32f* pSrc, int srcStep, HuxiSize roiSize, Hux32f pMax[3], int pIndexX[3],
                                      int pIndexY[3]);
HUX_API HuxStatus huxiMaxIndx_32f_AC4R(const Hux32f* pSrc, int srcStep, HuxiSize roiSize, Hux32f pMax[3],
                                       int pIndexX[3], int pIndexY[3]);
HUX_API HuxStatus huxiMaxIndx_32f_C4R(const Hux32f* pSrc, int srcStep, HuxiSize roiSize, Hux32f pMax[4], int pIndexX[4],
                                      int pIndexY[4]);

/* CountInRange: how many elements of each channel lie in lowerBound..upperBound, both included.
 * One count and pair of bounds (C1) or three of each (C3, AC4); alpha of AC4 is not read. A NaN never counts. On 32f a
 * step that is not a multiple of 4 is rounded down.
 * Checks, in order: null pointers (huxStsNullPtr), srcStep below 1 (huxStsBadStep), width or height below 1
 * (huxStsBadSize), lowerBound above upperBound in any channel (huxStsBadRange). */
HUX_API HuxStatus huxiCountInRange_8u_C1R(const Hux8u* pSrc, int srcStep, HuxiSize roiSize, int* pCounts,
                                          Hux8u lowerBound, Hux8u upperBound);
HUX_API HuxStatus huxiCountInRange_8u_C3R(const Hux8u* pSrc, int srcStep, HuxiSize roiSize, int pCounts[3],
                                          const Hux8u lowerBound[3], const Hux8u upperBound[3]);
HUX_API HuxStatus huxiCountInRange_8u_AC4R(const Hux8u* pSrc, int srcStep, HuxiSize roiSize, int pCounts[3],
                                           const Hux8u lowerBound[3], const Hux8u upperBound[3]);
HUX_API HuxStatus huxiCountInRange_32f_C1R(const Hux32f* pSrc, int srcStep, HuxiSize roiSize, int* pCounts,
                                           Hux32f lowerBound, Hux32f upperBound);
HUX_API HuxStatus huxiCountInRange_32f_C3R(const Hux32f* pSrc, int srcStep, HuxiSize roiSize, int pCounts[3],
                                           const Hux32f lowerBound[3], const Hux32f upperBound[3]);
HUX_API HuxStatus huxiCountInRange_32f_AC4R(const Hux32f* pSrc, int srcStep, HuxiSize roiSize, int pCounts[3],
                                            const Hux32f lowerBound[3], const Hux32f upperBound[3]);

/* ---- Norms ---- */

/* Norms: of an image (Norm), of the difference pSrc1 - pSrc2 (NormDiff), and of the difference relative to pSrc2
 * (NormRel).
 *   Inf  the largest magnitude      L1  the sum of magnitudes      L2  the root of the sum of squares
 * for each channel: 1, 3 (C3, AC4) or 4 values; alpha of AC4 is not read. Integer row totals of L1 are 32-bit numbers
 * that wrap silently; L2 on 8u takes strips of 32768 columns, whose norms are squared and added up; L2 on 16s and 16u
 * adds in 64 bits; the rest is double precision. In Inf a NaN displaces the running value and is displaced by what
 * follows; in L1 and L2 it reaches the result. hint is not read. */

/* Norm: the norm of an image, for each channel.
 * Checks, in order: null pointers (huxStsNullPtr), width or height below 1 (huxStsBadSize), srcStep below 1
 * (huxStsBadStep); 16u tests the step before the size. */
HUX_API HuxStatus huxiNorm_Inf_8u_C1R(const Hux8u* pSrc, int srcStep, HuxiSize roiSize, Hux64f* pValue);
HUX_API HuxStatus huxiNorm_Inf_8u_C3R(const Hux8u* pSrc, int srcStep, HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNorm_Inf_8u_AC4R(const Hux8u* pSrc, int srcStep, HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNorm_Inf_8u_C4R(const Hux8u* pSrc, int srcStep, HuxiSize roiSize, Hux64f pValue[4]);
HUX_API HuxStatus huxiNorm_Inf_16s_C1R(const Hux16s* pSrc, int srcStep, HuxiSize roiSize, Hux64f* pValue);
HUX_API HuxStatus huxiNorm_Inf_16s_C3R(const Hux16s* pSrc, int srcStep, HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNorm_Inf_16s_AC4R(const Hux16s* pSrc, int srcStep, HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNorm_Inf_16s_C4R(const Hux16s* pSrc, int srcStep, HuxiSize roiSize, Hux64f pValue[4]);
HUX_API HuxStatus huxiNorm_Inf_16u_C1R(const Hux16u* pSrc, int srcStep, HuxiSize roiSize, Hux64f* pValue);
HUX_API HuxStatus huxiNorm_Inf_16u_C3R(const Hux16u* pSrc, int srcStep, HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNorm_Inf_16u_AC4R(const Hux16u* pSrc, int srcStep, HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNorm_Inf_16u_C4R(const Hux16u* pSrc, int srcStep, HuxiSize roiSize, Hux64f pValue[4]);
HUX_API HuxStatus huxiNorm_Inf_32f_C1R(const Hux32f* pSrc, int srcStep, HuxiSize roiSize, Hux64f* pValue);
HUX_API HuxStatus huxiNorm_Inf_32f_C3R(const Hux32f* pSrc, int srcStep, HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNorm_Inf_32f_AC4R(const Hux32f* pSrc, int srcStep, HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNorm_Inf_32f_C4R(const Hux32f* pSrc, int srcStep, HuxiSize roiSize, Hux64f pValue[4]);
HUX_API HuxStatus huxiNorm_Inf_32s_C1R(const Hux32s* pSrc, int srcStep, HuxiSize roiSize, Hux64f* pValue);
HUX_API HuxStatus huxiNorm_L1_8u_C1R(const Hux8u* pSrc, int srcStep, HuxiSize roiSize, Hux64f* pValue);
HUX_API HuxStatus huxiNorm_L1_8u_C3R(const Hux8u* pSrc, int srcStep, HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNorm_L1_8u_AC4R(const Hux8u* pSrc, int srcStep, HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNorm_L1_8u_C4R(const Hux8u* pSrc, int srcStep, HuxiSize roiSize, Hux64f pValue[4]);
HUX_API HuxStatus huxiNorm_L1_16s_C1R(const Hux16s* pSrc, int srcStep, HuxiSize roiSize, Hux64f* pValue);
HUX_API HuxStatus huxiNorm_L1_16s_C3R(const Hux16s* pSrc, int srcStep, HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNorm_L1_16s_AC4R(const Hux16s* pSrc, int srcStep, HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNorm_L1_16s_C4R(const Hux16s* pSrc, int srcStep, HuxiSize roiSize, Hux64f pValue[4]);
HUX_API HuxStatus huxiNorm_L1_16u_C1R(const Hux16u* pSrc, int srcStep, HuxiSize roiSize, Hux64f* pValue);
HUX_API HuxStatus huxiNorm_L1_16u_C3R(const Hux16u* pSrc, int srcStep, HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNorm_L1_16u_AC4R(const Hux16u* pSrc, int srcStep, HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNorm_L1_16u_C4R(const Hux16u* pSrc, int srcStep, HuxiSize roiSize, Hux64f pValue[4]);
HUX_API HuxStatus huxiNorm_L1_32f_C1R(const Hux32f* pSrc, int srcStep, HuxiSize roiSize, Hux64f* pValue,
                                      HuxAccuracyHint hint);
HUX_API HuxStatus huxiNorm_L1_32f_C3R(const Hux32f* pSrc, int srcStep, HuxiSize roiSize, Hux64f pValue[3],
                                      HuxAccuracyHint hint);
HUX_API HuxStatus huxiNorm_L1_32f_AC4R(const Hux32f* pSrc, int srcStep, HuxiSize roiSize, Hux64f pValue[3],
                                       HuxAccuracyHint hint);
HUX_API HuxStatus huxiNorm_L1_32f_C4R(const Hux32f* pSrc, int srcStep, HuxiSize roiSize, Hux64f pValue[4],
                                      HuxAccuracyHint hint);
HUX_API HuxStatus huxiNorm_L2_8u_C1R(const Hux8u* pSrc, int srcStep, HuxiSize roiSize, Hux64f* pValue);
HUX_API HuxStatus huxiNorm_L2_8u_C3R(const Hux8u* pSrc, int srcStep, HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNorm_L2_8u_AC4R(const Hux8u* pSrc, int srcStep, HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNorm_L2_8u_C4R(const Hux8u* pSrc, int srcStep, HuxiSize roiSize, Hux64f pValue[4]);
HUX_API HuxStatus huxiNorm_L2_16s_C1R(const Hux16s* pSrc, int srcStep, HuxiSize roiSize, Hux64f* pValue);
HUX_API HuxStatus huxiNorm_L2_16s_C3R(const Hux16s* pSrc, int srcStep, HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNorm_L2_16s_AC4R(const Hux16s* pSrc, int srcStep, HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNorm_L2_16s_C4R(const Hux16s* pSrc, int srcStep, HuxiSize roiSize, Hux64f pValue[4]);
HUX_API HuxStatus huxiNorm_L2_16u_C1R(const Hux16u* pSrc, int srcStep, HuxiSize roiSize, Hux64f* pValue);
HUX_API HuxStatus huxiNorm_L2_16u_C3R(const Hux16u* pSrc, int srcStep, HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNorm_L2_16u_AC4R(const Hux16u* pSrc, int srcStep, HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNorm_L2_16u_C4R(const Hux16u* pSrc, int srcStep, HuxiSize roiSize, Hux64f pValue[4]);
HUX_API HuxStatus huxiNorm_L2_32f_C1R(const Hux32f* pSrc, int srcStep, HuxiSize roiSize, Hux64f* pValue,
                                      HuxAccuracyHint hint);
HUX_API HuxStatus huxiNorm_L2_32f_C3R(const Hux32f* pSrc, int srcStep, HuxiSize roiSize, Hux64f pValue[3],
                                      HuxAccuracyHint hint);
HUX_API HuxStatus huxiNorm_L2_32f_AC4R(const Hux32f* pSrc, int srcStep, HuxiSize roiSize, Hux64f pValue[3],
                                       HuxAccuracyHint hint);
HUX_API HuxStatus huxiNorm_L2_32f_C4R(const Hux32f* pSrc, int srcStep, HuxiSize roiSize, Hux64f pValue[4],
                                      HuxAccuracyHint hint);

/* NormDiff: the norm of the difference of two images, for each channel.
 * Checks, in order: null pointers (huxStsNullPtr), width or height below 1 (huxStsBadSize), a step below 1
 * (huxStsBadStep); 16u tests the steps before the size. */
HUX_API HuxStatus huxiNormDiff_Inf_8u_C1R(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step,
                                          HuxiSize roiSize, Hux64f* pValue);
HUX_API HuxStatus huxiNormDiff_Inf_8u_C3R(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step,
                                          HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNormDiff_Inf_8u_AC4R(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step,
                                           HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNormDiff_Inf_8u_C4R(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step,
                                          HuxiSize roiSize, Hux64f pValue[4]);
HUX_API HuxStatus huxiNormDiff_Inf_16s_C1R(const Hux16s* pSrc1, int src1Step, const Hux16s* pSrc2, int src2Step,
                                           HuxiSize roiSize, Hux64f* pValue);
HUX_API HuxStatus huxiNormDiff_Inf_16s_C3R(const Hux16s* pSrc1, int src1Step, const Hux16s* pSrc2, int src2Step,
                                           HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNormDiff_Inf_16s_AC4R(const Hux16s* pSrc1, int src1Step, const Hux16s* pSrc2, int src2Step,
                                            HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNormDiff_Inf_16s_C4R(const Hux16s* pSrc1, int src1Step, const Hux16s* pSrc2, int src2Step,
                                           HuxiSize roiSize, Hux64f pValue[4]);
HUX_API HuxStatus huxiNormDiff_Inf_16u_C1R(const Hux16u* pSrc1, int src1Step, const Hux16u* pSrc2, int src2Step,
                                           HuxiSize roiSize, Hux64f* pValue);
HUX_API HuxStatus huxiNormDiff_Inf_16u_C3R(const Hux16u* pSrc1, int src1Step, const Hux16u* pSrc2, int src2Step,
                                           HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNormDiff_Inf_16u_AC4R(const Hux16u* pSrc1, int src1Step, const Hux16u* pSrc2, int src2Step,
                                            HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNormDiff_Inf_16u_C4R(const Hux16u* pSrc1, int src1Step, const Hux16u* pSrc2, int src2Step,
                                           HuxiSize roiSize, Hux64f pValue[4]);
HUX_API HuxStatus huxiNormDiff_Inf_32f_C1R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step,
                                           HuxiSize roiSize, Hux64f* pValue);
HUX_API HuxStatus huxiNormDiff_Inf_32f_C3R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step,
                                           HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNormDiff_Inf_32f_AC4R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step,
                                            HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNormDiff_Inf_32f_C4R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step,
                                           HuxiSize roiSize, Hux64f pValue[4]);
HUX_API HuxStatus huxiNormDiff_L1_8u_C1R(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step,
                                         HuxiSize roiSize, Hux64f* pValue);
HUX_API HuxStatus huxiNormDiff_L1_8u_C3R(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step,
                                         HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNormDiff_L1_8u_AC4R(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step,
                                          HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNormDiff_L1_8u_C4R(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step,
                                         HuxiSize roiSize, Hux64f pValue[4]);
HUX_API HuxStatus huxiNormDiff_L1_16s_C1R(const Hux16s* pSrc1, int src1Step, const Hux16s* pSrc2, int src2Step,
                                          HuxiSize roiSize, Hux64f* pValue);
HUX_API HuxStatus huxiNormDiff_L1_16s_C3R(const Hux16s* pSrc1, int src1Step, const Hux16s* pSrc2, int src2Step,
                                          HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNormDiff_L1_16s_AC4R(const Hux16s* pSrc1, int src1Step, const Hux16s* pSrc2, int src2Step,
                                           HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNormDiff_L1_16s_C4R(const Hux16s* pSrc1, int src1Step, const Hux16s* pSrc2, int src2Step,
                                          HuxiSize roiSize, Hux64f pValue[4]);
HUX_API HuxStatus huxiNormDiff_L1_16u_C1R(const Hux16u* pSrc1, int src1Step, const Hux16u* pSrc2, int src2Step,
                                          HuxiSize roiSize, Hux64f* pValue);
HUX_API HuxStatus huxiNormDiff_L1_16u_C3R(const Hux16u* pSrc1, int src1Step, const Hux16u* pSrc2, int src2Step,
                                          HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNormDiff_L1_16u_AC4R(const Hux16u* pSrc1, int src1Step, const Hux16u* pSrc2, int src2Step,
                                           HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNormDiff_L1_16u_C4R(const Hux16u* pSrc1, int src1Step, const Hux16u* pSrc2, int src2Step,
                                          HuxiSize roiSize, Hux64f pValue[4]);
HUX_API HuxStatus huxiNormDiff_L1_32f_C1R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step,
                                          HuxiSize roiSize, Hux64f* pValue, HuxAccuracyHint hint);
HUX_API HuxStatus huxiNormDiff_L1_32f_C3R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step,
                                          HuxiSize roiSize, Hux64f pValue[3], HuxAccuracyHint hint);
HUX_API HuxStatus huxiNormDiff_L1_32f_AC4R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step,
                                           HuxiSize roiSize, Hux64f pValue[3], HuxAccuracyHint hint);
HUX_API HuxStatus huxiNormDiff_L1_32f_C4R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step,
                                          HuxiSize roiSize, Hux64f pValue[4], HuxAccuracyHint hint);
HUX_API HuxStatus huxiNormDiff_L2_8u_C1R(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step,
                                         HuxiSize roiSize, Hux64f* pValue);
HUX_API HuxStatus huxiNormDiff_L2_8u_C3R(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step,
                                         HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNormDiff_L2_8u_AC4R(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step,
                                          HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNormDiff_L2_8u_C4R(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step,
                                         HuxiSize roiSize, Hux64f pValue[4]);
HUX_API HuxStatus huxiNormDiff_L2_16s_C1R(const Hux16s* pSrc1, int src1Step, const Hux16s* pSrc2, int src2Step,
                                          HuxiSize roiSize, Hux64f* pValue);
HUX_API HuxStatus huxiNormDiff_L2_16s_C3R(const Hux16s* pSrc1, int src1Step, const Hux16s* pSrc2, int src2Step,
                                          HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNormDiff_L2_16s_AC4R(const Hux16s* pSrc1, int src1Step, const Hux16s* pSrc2, int src2Step,
                                           HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNormDiff_L2_16s_C4R(const Hux16s* pSrc1, int src1Step, const Hux16s* pSrc2, int src2Step,
                                          HuxiSize roiSize, Hux64f pValue[4]);
HUX_API HuxStatus huxiNormDiff_L2_16u_C1R(const Hux16u* pSrc1, int src1Step, const Hux16u* pSrc2, int src2Step,
                                          HuxiSize roiSize, Hux64f* pValue);
HUX_API HuxStatus huxiNormDiff_L2_16u_C3R(const Hux16u* pSrc1, int src1Step, const Hux16u* pSrc2, int src2Step,
                                          HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNormDiff_L2_16u_AC4R(const Hux16u* pSrc1, int src1Step, const Hux16u* pSrc2, int src2Step,
                                           HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNormDiff_L2_16u_C4R(const Hux16u* pSrc1, int src1Step, const Hux16u* pSrc2, int src2Step,
                                          HuxiSize roiSize, Hux64f pValue[4]);
HUX_API HuxStatus huxiNormDiff_L2_32f_C1R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step,
                                          HuxiSize roiSize, Hux64f* pValue, HuxAccuracyHint hint);
HUX_API HuxStatus huxiNormDiff_L2_32f_C3R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step,
                                          HuxiSize roiSize, Hux64f pValue[3], HuxAccuracyHint hint);
HUX_API HuxStatus huxiNormDiff_L2_32f_AC4R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step,
                                           HuxiSize roiSize, Hux64f pValue[3], HuxAccuracyHint hint);
HUX_API HuxStatus huxiNormDiff_L2_32f_C4R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step,
                                          HuxiSize roiSize, Hux64f pValue[4], HuxAccuracyHint hint);

/* NormRel: the norm of the difference of two images over that of the second, for each channel.
 * Where the norm of pSrc2 (in L2 of C1: its sum of squares) is not at least the smallest normal double (NaN included),
 * the value is the plain NormDiff and the status huxStsDivByZeroWarn, with C3, AC4 and C4 for all channels if it is so
 * in one.
 * Checks, in order: null pointers (huxStsNullPtr), width or height below 1 (huxStsBadSize), a step below 1
 * (huxStsBadStep); 16u tests the steps before the size. */
HUX_API HuxStatus huxiNormRel_Inf_8u_C1R(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step,
                                         HuxiSize roiSize, Hux64f* pValue);
HUX_API HuxStatus huxiNormRel_Inf_8u_C3R(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step,
                                         HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNormRel_Inf_8u_AC4R(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step,
                                          HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNormRel_Inf_8u_C4R(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step,
                                         HuxiSize roiSize, Hux64f pValue[4]);
HUX_API HuxStatus huxiNormRel_Inf_16s_C1R(const Hux16s* pSrc1, int src1Step, const Hux16s* pSrc2, int src2Step,
                                          HuxiSize roiSize, Hux64f* pValue);
HUX_API HuxStatus huxiNormRel_Inf_16s_C3R(const Hux16s* pSrc1, int src1Step, const Hux16s* pSrc2, int src2Step,
                                          HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNormRel_Inf_16s_AC4R(const Hux16s* pSrc1, int src1Step, const Hux16s* pSrc2, int src2Step,
                                           HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNormRel_Inf_16s_C4R(const Hux16s* pSrc1, int src1Step, const Hux16s* pSrc2, int src2Step,
                                          HuxiSize roiSize, Hux64f pValue[4]);
HUX_API HuxStatus huxiNormRel_Inf_16u_C1R(const Hux16u* pSrc1, int src1Step, const Hux16u* pSrc2, int src2Step,
                                          HuxiSize roiSize, Hux64f* pValue);
HUX_API HuxStatus huxiNormRel_Inf_16u_C3R(const Hux16u* pSrc1, int src1Step, const Hux16u* pSrc2, int src2Step,
                                          HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNormRel_Inf_16u_AC4R(const Hux16u* pSrc1, int src1Step, const Hux16u* pSrc2, int src2Step,
                                           HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNormRel_Inf_16u_C4R(const Hux16u* pSrc1, int src1Step, const Hux16u* pSrc2, int src2Step,
                                          HuxiSize roiSize, Hux64f pValue[4]);
HUX_API HuxStatus huxiNormRel_Inf_32f_C1R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step,
                                          HuxiSize roiSize, Hux64f* pValue);
HUX_API HuxStatus huxiNormRel_Inf_32f_C3R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step,
                                          HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNormRel_Inf_32f_AC4R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step,
                                           HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNormRel_Inf_32f_C4R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step,
                                          HuxiSize roiSize, Hux64f pValue[4]);
HUX_API HuxStatus huxiNormRel_L1_8u_C1R(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step,
                                        HuxiSize roiSize, Hux64f* pValue);
HUX_API HuxStatus huxiNormRel_L1_8u_C3R(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step,
                                        HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNormRel_L1_8u_AC4R(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step,
                                         HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNormRel_L1_8u_C4R(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step,
                                        HuxiSize roiSize, Hux64f pValue[4]);
HUX_API HuxStatus huxiNormRel_L1_16s_C1R(const Hux16s* pSrc1, int src1Step, const Hux16s* pSrc2, int src2Step,
                                         HuxiSize roiSize, Hux64f* pValue);
HUX_API HuxStatus huxiNormRel_L1_16s_C3R(const Hux16s* pSrc1, int src1Step, const Hux16s* pSrc2, int src2Step,
                                         HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNormRel_L1_16s_AC4R(const Hux16s* pSrc1, int src1Step, const Hux16s* pSrc2, int src2Step,
                                          HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNormRel_L1_16s_C4R(const Hux16s* pSrc1, int src1Step, const Hux16s* pSrc2, int src2Step,
                                         HuxiSize roiSize, Hux64f pValue[4]);
HUX_API HuxStatus huxiNormRel_L1_16u_C1R(const Hux16u* pSrc1, int src1Step, const Hux16u* pSrc2, int src2Step,
                                         HuxiSize roiSize, Hux64f* pValue);
HUX_API HuxStatus huxiNormRel_L1_16u_C3R(const Hux16u* pSrc1, int src1Step, const Hux16u* pSrc2, int src2Step,
                                         HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNormRel_L1_16u_AC4R(const Hux16u* pSrc1, int src1Step, const Hux16u* pSrc2, int src2Step,
                                          HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNormRel_L1_16u_C4R(const Hux16u* pSrc1, int src1Step, const Hux16u* pSrc2, int src2Step,
                                         HuxiSize roiSize, Hux64f pValue[4]);
HUX_API HuxStatus huxiNormRel_L1_32f_C1R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step,
                                         HuxiSize roiSize, Hux64f* pValue, HuxAccuracyHint hint);
HUX_API HuxStatus huxiNormRel_L1_32f_C3R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step,
                                         HuxiSize roiSize, Hux64f pValue[3], HuxAccuracyHint hint);
HUX_API HuxStatus huxiNormRel_L1_32f_AC4R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step,
                                          HuxiSize roiSize, Hux64f pValue[3], HuxAccuracyHint hint);
HUX_API HuxStatus huxiNormRel_L1_32f_C4R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step,
                                         HuxiSize roiSize, Hux64f pValue[4], HuxAccuracyHint hint);
HUX_API HuxStatus huxiNormRel_L2_8u_C1R(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step,
                                        HuxiSize roiSize, Hux64f* pValue);
HUX_API HuxStatus huxiNormRel_L2_8u_C3R(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step,
                                        HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNormRel_L2_8u_AC4R(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step,
                                         HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNormRel_L2_8u_C4R(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step,
                                        HuxiSize roiSize, Hux64f pValue[4]);
HUX_API HuxStatus huxiNormRel_L2_16s_C1R(const Hux16s* pSrc1, int src1Step, const Hux16s* pSrc2, int src2Step,
                                         HuxiSize roiSize, Hux64f* pValue);
HUX_API HuxStatus huxiNormRel_L2_16s_C3R(const Hux16s* pSrc1, int src1Step, const Hux16s* pSrc2, int src2Step,
                                         HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNormRel_L2_16s_AC4R(const Hux16s* pSrc1, int src1Step, const Hux16s* pSrc2, int src2Step,
                                          HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNormRel_L2_16s_C4R(const Hux16s* pSrc1, int src1Step, const Hux16s* pSrc2, int src2Step,
                                         HuxiSize roiSize, Hux64f pValue[4]);
HUX_API HuxStatus huxiNormRel_L2_16u_C1R(const Hux16u* pSrc1, int src1Step, const Hux16u* pSrc2, int src2Step,
                                         HuxiSize roiSize, Hux64f* pValue);
HUX_API HuxStatus huxiNormRel_L2_16u_C3R(const Hux16u* pSrc1, int src1Step, const Hux16u* pSrc2, int src2Step,
                                         HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNormRel_L2_16u_AC4R(const Hux16u* pSrc1, int src1Step, const Hux16u* pSrc2, int src2Step,
                                          HuxiSize roiSize, Hux64f pValue[3]);
HUX_API HuxStatus huxiNormRel_L2_16u_C4R(const Hux16u* pSrc1, int src1Step, const Hux16u* pSrc2, int src2Step,
                                         HuxiSize roiSize, Hux64f pValue[4]);
HUX_API HuxStatus huxiNormRel_L2_32f_C1R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step,
                                         HuxiSize roiSize, Hux64f* pValue, HuxAccuracyHint hint);
HUX_API HuxStatus huxiNormRel_L2_32f_C3R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step,
                                         HuxiSize roiSize, Hux64f pValue[3], HuxAccuracyHint hint);
HUX_API HuxStatus huxiNormRel_L2_32f_AC4R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step,
                                          HuxiSize roiSize, Hux64f pValue[3], HuxAccuracyHint hint);
HUX_API HuxStatus huxiNormRel_L2_32f_C4R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step,
                                         HuxiSize roiSize, Hux64f pValue[4], HuxAccuracyHint hint);

/* ---- Moments ---- */

/* Records of moments: sums of pixels times powers of their coordinates, up to the third order, and what follows from
 * them.
 * A record is created (MomentInitAlloc, or MomentInit in MomentGetStateSize bytes of the caller's, at any address),
 * filled from an image by Moments, read by any number of Get functions, filled again as often as wanted, and freed
 * (MomentFree; never after MomentInit). A record that several threads only read may be shared.
 * 64f records hold double precision numbers. 64s records hold 64-bit integers, in which the products of a pixel with
 * the powers of its column wrap at 32 bits; their results are multiplied by 2^-scaleFactor and truncated towards zero.
 * The factor 2^scaleFactor is a 32-bit shift with the count modulo 32, read as a signed number.
 * Example:
 *   HuxiMomentRecord_64f* moments;
 *   const HuxiPoint origin = {0, 0};
 *   Hux64f mass, column;
 *   if (huxiMomentInitAlloc_64f(&moments, huxHintNone) == huxStsOk) {
 *     huxiMoments64f_8u_C1R(src, srcStep, size, moments);
 *     huxiGetSpatialMoment_64f(moments, 0, 0, 0, origin, &mass);
 *     huxiGetSpatialMoment_64f(moments, 1, 0, 0, origin, &column);  // the centre of mass is at column / mass
 *     huxiMomentFree_64f(moments);
 *   }
 */
typedef struct HuxiMomentRecord_64f HuxiMomentRecord_64f;
typedef struct HuxiMomentRecord_64s HuxiMomentRecord_64s;

/* MomentInitAlloc, MomentInit, MomentGetStateSize, MomentFree: make a record of moments, and free it.
 * MomentInitAlloc: a new record in *ppState; on failure *ppState is as it was. MomentGetStateSize: the size of a
 * record in bytes, in *pSize. MomentInit: makes a record of the memory at pState, whatever it holds. MomentFree: frees
 * a record of MomentInitAlloc. hint is stored and not read.
 * Checks, in order: null pointers (huxStsNullPtr); MomentFree: a record of another kind (huxStsBadContext);
 * MomentInitAlloc: memory (huxStsNoMem). */
HUX_API HuxStatus huxiMomentInitAlloc_64f(HuxiMomentRecord_64f** ppState, HuxAccuracyHint hint);
HUX_API HuxStatus huxiMomentInitAlloc_64s(HuxiMomentRecord_64s** ppState, HuxAccuracyHint hint);
HUX_API HuxStatus huxiMomentFree_64f(HuxiMomentRecord_64f* pState);
HUX_API HuxStatus huxiMomentFree_64s(HuxiMomentRecord_64s* pState);
HUX_API HuxStatus huxiMomentGetStateSize_64s(HuxAccuracyHint hint, int* pSize);
HUX_API HuxStatus huxiMomentInit_64s(HuxiMomentRecord_64s* pState, HuxAccuracyHint hint);

/* Moments: fills a record with the ten moments of each channel of an image.
 *   M(m, n) = sum over x, y of p(x, y) * x^m * y^n, m + n <= 3
 * with x and y counted from 0 in the region. What the record held is gone; afterwards it has 1 channel, or 3 (C3, AC4,
 * whose alpha is not read).
 * Checks, in order: null pointers (huxStsNullPtr), a record of another kind (huxStsBadContext), srcStep below 1
 * (huxStsBadStep), width or height below 1 (huxStsBadSize), srcStep below the bytes of a row (huxStsStepBelowWidth). A
 * failed call leaves the record as it was. */
HUX_API HuxStatus huxiMoments64f_8u_C1R(const Hux8u* pSrc, int srcStep, HuxiSize roiSize, HuxiMomentRecord_64f* pState);
HUX_API HuxStatus huxiMoments64f_8u_C3R(const Hux8u* pSrc, int srcStep, HuxiSize roiSize, HuxiMomentRecord_64f* pState);
HUX_API HuxStatus huxiMoments64f_8u_AC4R(const Hux8u* pSrc, int srcStep, HuxiSize roiSize,
                                         HuxiMomentRecord_64f* pState);
HUX_API HuxStatus huxiMoments64f_32f_C1R(const Hux32f* pSrc, int srcStep, HuxiSize roiSize,
                                         HuxiMomentRecord_64f* pState);
HUX_API HuxStatus huxiMoments64f_32f_C3R(const Hux32f* pSrc, int srcStep, HuxiSize roiSize,
                                         HuxiMomentRecord_64f* pState);
HUX_API HuxStatus huxiMoments64f_32f_AC4R(const Hux32f* pSrc, int srcStep, HuxiSize roiSize,
                                          HuxiMomentRecord_64f* pState);
HUX_API HuxStatus huxiMoments64s_8u_C1R(const Hux8u* pSrc, int srcStep, HuxiSize roiSize, HuxiMomentRecord_64s* pState);
HUX_API HuxStatus huxiMoments64s_8u_C3R(const Hux8u* pSrc, int srcStep, HuxiSize roiSize, HuxiMomentRecord_64s* pState);
HUX_API HuxStatus huxiMoments64s_8u_AC4R(const Hux8u* pSrc, int srcStep, HuxiSize roiSize,
                                         HuxiMomentRecord_64s* pState);

/* GetSpatialMoment, GetCentralMoment, and their Normalized forms: a moment of one channel, from a filled record.
 *   spatial   sum(p * (x + offset.x)^m * (y + offset.y)^n), m being xOrder and n yOrder; the offset tells where the
 *             region lies in a larger frame
 *   central   the same about the centre of mass
 *   The Normalized forms multiply by M00^(-(m + n + 2) / 2), M00 being the sum of the pixels.
 * Checks, in order: null pointers (huxStsNullPtr), a record of another kind (huxStsBadContext), xOrder + yOrder above
 * 3 (huxStsBadSize), channel outside those filled (huxStsBadMomentIndex); central and normalised: M00 zero, on 64f of
 * magnitude 2.220446049250313e-16 or less (huxStsMomentTooSmall). Orders of which one is negative are not refused: 64f
 * then leaves *pValue as it is, 64s writes 0. Normalised spatial 64f moments that fail for M00 leave the plain moment
 * in *pValue. */
HUX_API HuxStatus huxiGetSpatialMoment_64f(const HuxiMomentRecord_64f* pState, int xOrder, int yOrder, int channel,
                                           HuxiPoint offset, Hux64f* pValue);
HUX_API HuxStatus huxiGetSpatialMoment_64s(const HuxiMomentRecord_64s* pState, int xOrder, int yOrder, int channel,
                                           HuxiPoint offset, Hux64s* pValue, int scaleFactor);
HUX_API HuxStatus huxiGetNormalizedSpatialMoment_64f(const HuxiMomentRecord_64f* pState, int xOrder, int yOrder,
                                                     int channel, HuxiPoint offset, Hux64f* pValue);
HUX_API HuxStatus huxiGetNormalizedSpatialMoment_64s(const HuxiMomentRecord_64s* pState, int xOrder, int yOrder,
                                                     int channel, HuxiPoint offset, Hux64s* pValue, int scaleFactor);
HUX_API HuxStatus huxiGetCentralMoment_64f(const HuxiMomentRecord_64f* pState, int xOrder, int yOrder, int channel,
                                           Hux64f* pValue);
HUX_API HuxStatus huxiGetCentralMoment_64s(const HuxiMomentRecord_64s* pState, int xOrder, int yOrder, int channel,
                                           Hux64s* pValue, int scaleFactor);
HUX_API HuxStatus huxiGetNormalizedCentralMoment_64f(const HuxiMomentRecord_64f* pState, int xOrder, int yOrder,
                                                     int channel, Hux64f* pValue);
HUX_API HuxStatus huxiGetNormalizedCentralMoment_64s(const HuxiMomentRecord_64s* pState, int xOrder, int yOrder,
                                                     int channel, Hux64s* pValue, int scaleFactor);

/* GetHuMoments: seven numbers that hardly change when a shape is moved, scaled or turned, from a filled record.
 * They are made of the normalised central moments. The fifth is built from u12 + u03 where the textbooks have u30 +
 * u12.
 * Checks, in order: null pointers (huxStsNullPtr), a record of another kind (huxStsBadContext), channel outside those
 * filled (huxStsBadMomentIndex), M00 zero, on 64f of magnitude 2.220446049250313e-16 or less (huxStsMomentTooSmall). */
HUX_API HuxStatus huxiGetHuMoments_64f(const HuxiMomentRecord_64f* pState, int channel, Hux64f pHu[7]);
HUX_API HuxStatus huxiGetHuMoments_64s(const HuxiMomentRecord_64s* pState, int channel, Hux64s pHu[7], int scaleFactor);

/* ---- Histograms and tables ---- */

/* HistogramRange, HistogramEven: count pixels into nLevels - 1 bins.
 * Bin k of a channel counts pLevels[k] <= p < pLevels[k + 1]; pHist holds nLevels - 1 counters, which are set, not
 * added to, and pLevels nLevels levels. The last level closes the last bin and is not in it: all 256 values of a byte
 * take 257 levels, 0 to 256. Levels need not ascend: each bin stands for its own interval, and one whose ends do not
 * ascend stays 0. A NaN is counted nowhere, except where the levels of some channel do not strictly ascend: there it
 * is counted in every bin of every channel that it stands in.
 * HistogramEven: with nLevels levels from lowerLevel to upperLevel, which it computes and writes to pLevels; where the
 * range does not divide evenly, the first steps are wider by 1.
 * C3, AC4, C4: pHist and pLevels are arrays of pointers, one per channel (3, 3, 4), the other arguments arrays;
 * channels may share a list of levels (in HistogramEven only with equal bounds) but no counters. Alpha of AC4 is not
 * read.
 * Checks, in order, C1: null pointers (huxStsNullPtr), width or height below 1 (huxStsBadSize), srcStep below 1
 * (huxStsBadStep), nLevels below 2 (huxStsBadHistLevels). Other layouts: null pointers, then by channel pHist[c] or
 * pLevels[c] null (huxStsNullPtr) and nLevels[c] (huxStsBadHistLevels), then size, step. 16s, 16u: then memory
 * (huxStsNoMem), with pHist zeroed (and pLevels of HistogramEven written).
 * Example:
 *   Hux32s counts[256], levels[257];
 *   huxiHistogramEven_8u_C1R(src, srcStep, size, counts, levels, 257, 0, 256);
 */

HUX_API HuxStatus huxiHistogramRange_8u_C1R(const Hux8u* pSrc, int srcStep, HuxiSize roiSize, Hux32s* pHist,
                                            const Hux32s* pLevels, int nLevels);
HUX_API HuxStatus huxiHistogramRange_8u_C3R(const Hux8u* pSrc, int srcStep, HuxiSize roiSize, Hux32s* const pHist[3],
                                            const Hux32s* const pLevels[3], const int nLevels[3]);
HUX_API HuxStatus huxiHistogramRange_8u_AC4R(const Hux8u* pSrc, int srcStep, HuxiSize roiSize, Hux32s* const pHist[3],
                                             const Hux32s* const pLevels[3], const int nLevels[3]);
HUX_API HuxStatus huxiHistogramRange_8u_C4R(const Hux8u* pSrc, int srcStep, HuxiSize roiSize, Hux32s* const pHist[4],
                                            const Hux32s* const pLevels[4], const int nLevels[4]);
HUX_API HuxStatus huxiHistogramRange_16s_C1R(const Hux16s* pSrc, int srcStep, HuxiSize roiSize, Hux32s* pHist,
                                             const Hux32s* pLevels, int nLevels);
HUX_API HuxStatus huxiHistogramRange_16s_C3R(const Hux16s* pSrc, int srcStep, HuxiSize roiSize, Hux32s* const pHist[3],
                                             const Hux32s* const pLevels[3], const int nLevels[3]);
HUX_API HuxStatus huxiHistogramRange_16s_AC4R(const Hux16s* pSrc, int srcStep, HuxiSize roiSize, Hux32s* const pHist[3],
                                              const Hux32s* const pLevels[3], const int nLevels[3]);
HUX_API HuxStatus huxiHistogramRange_16s_C4R(const Hux16s* pSrc, int srcStep, HuxiSize roiSize, Hux32s* const pHist[4],
                                             const Hux32s* const pLevels[4], const int nLevels[4]);
HUX_API HuxStatus huxiHistogramRange_16u_C1R(const Hux16u* pSrc, int srcStep, HuxiSize roiSize, Hux32s* pHist,
                                             const Hux32s* pLevels, int nLevels);
HUX_API HuxStatus huxiHistogramRange_16u_C3R(const Hux16u* pSrc, int srcStep, HuxiSize roiSize, Hux32s* const pHist[3],
                                             const Hux32s* const pLevels[3], const int nLevels[3]);
HUX_API HuxStatus huxiHistogramRange_16u_AC4R(const Hux16u* pSrc, int srcStep, HuxiSize roiSize, Hux32s* const pHist[3],
                                              const Hux32s* const pLevels[3], const int nLevels[3]);
HUX_API HuxStatus huxiHistogramRange_16u_C4R(const Hux16u* pSrc, int srcStep, HuxiSize roiSize, Hux32s* const pHist[4],
                                             const Hux32s* const pLevels[4], const int nLevels[4]);
HUX_API HuxStatus huxiHistogramRange_32f_C1R(const Hux32f* pSrc, int srcStep, HuxiSize roiSize, Hux32s* pHist,
                                             const Hux32f* pLevels, int nLevels);
HUX_API HuxStatus huxiHistogramRange_32f_C3R(const Hux32f* pSrc, int srcStep, HuxiSize roiSize, Hux32s* const pHist[3],
                                             const Hux32f* const pLevels[3], const int nLevels[3]);
HUX_API HuxStatus huxiHistogramRange_32f_AC4R(const Hux32f* pSrc, int srcStep, HuxiSize roiSize, Hux32s* const pHist[3],
                                              const Hux32f* const pLevels[3], const int nLevels[3]);
HUX_API HuxStatus huxiHistogramRange_32f_C4R(const Hux32f* pSrc, int srcStep, HuxiSize roiSize, Hux32s* const pHist[4],
                                             const Hux32f* const pLevels[4], const int nLevels[4]);

HUX_API HuxStatus huxiHistogramEven_8u_C1R(const Hux8u* pSrc, int srcStep, HuxiSize roiSize, Hux32s* pHist,
                                           Hux32s* pLevels, int nLevels, Hux32s lowerLevel, Hux32s upperLevel);
HUX_API HuxStatus huxiHistogramEven_8u_C3R(const Hux8u* pSrc, int srcStep, HuxiSize roiSize, Hux32s* const pHist[3],
                                           Hux32s* const pLevels[3], const int nLevels[3], const Hux32s lowerLevel[3],
                                           const Hux32s upperLevel[3]);
HUX_API HuxStatus huxiHistogramEven_8u_AC4R(const Hux8u* pSrc, int srcStep, HuxiSize roiSize, Hux32s* const pHist[3],
                                            Hux32s* const pLevels[3], const int nLevels[3], const Hux32s lowerLevel[3],
                                            const Hux32s upperLevel[3]);
HUX_API HuxStatus huxiHistogramEven_8u_C4R(const Hux8u* pSrc, int srcStep, HuxiSize roiSize, Hux32s* const pHist[4],
                                           Hux32s* const pLevels[4], const int nLevels[4], const Hux32s lowerLevel[4],
                                           const Hux32s upperLevel[4]);
HUX_API HuxStatus huxiHistogramEven_16s_C1R(const Hux16s* pSrc, int srcStep, HuxiSize roiSize, Hux32s* pHist,
                                            Hux32s* pLevels, int nLevels, Hux32s lowerLevel, Hux32s upperLevel);
HUX_API HuxStatus huxiHistogramEven_16s_C3R(const Hux16s* pSrc, int srcStep, HuxiSize roiSize, Hux32s* const pHist[3],
                                            Hux32s* const pLevels[3], const int nLevels[3], const Hux32s lowerLevel[3],
                                            const Hux32s upperLevel[3]);
HUX_API HuxStatus huxiHistogramEven_16s_AC4R(const Hux16s* pSrc, int srcStep, HuxiSize roiSize, Hux32s* const pHist[3],
                                             Hux32s* const pLevels[3], const int nLevels[3], const Hux32s lowerLevel[3],
                                             const Hux32s upperLevel[3]);
HUX_API HuxStatus huxiHistogramEven_16s_C4R(const Hux16s* pSrc, int srcStep, HuxiSize roiSize, Hux32s* const pHist[4],
                                            Hux32s* const pLevels[4], const int nLevels[4], const Hux32s lowerLevel[4],
                                            const Hux32s upperLevel[4]);
HUX_API HuxStatus huxiHistogramEven_16u_C1R(const Hux16u* pSrc, int srcStep, HuxiSize roiSize, Hux32s* pHist,
                                            Hux32s* pLevels, int nLevels, Hux32s lowerLevel, Hux32s upperLevel);
HUX_API HuxStatus huxiHistogramEven_16u_C3R(const Hux16u* pSrc, int srcStep, HuxiSize roiSize, Hux32s* const pHist[3],
                                            Hux32s* const pLevels[3], const int nLevels[3], const Hux32s lowerLevel[3],
                                            const Hux32s upperLevel[3]);
HUX_API HuxStatus huxiHistogramEven_16u_AC4R(const Hux16u* pSrc, int srcStep, HuxiSize roiSize, Hux32s* const pHist[3],
                                             Hux32s* const pLevels[3], const int nLevels[3], const Hux32s lowerLevel[3],
                                             const Hux32s upperLevel[3]);
HUX_API HuxStatus huxiHistogramEven_16u_C4R(const Hux16u* pSrc, int srcStep, HuxiSize roiSize, Hux32s* const pHist[4],
                                            Hux32s* const pLevels[4], const int nLevels[4], const Hux32s lowerLevel[4],
                                            const Hux32s upperLevel[4]);

/* LUT, LUT_Linear, LUT_Cubic: replace pixels by way of tables of nLevels (level, value) pairs.
 * A pixel with pLevels[k] <= p < pLevels[k + 1] takes pValues[k] (LUT, which never reads the last value), the straight
 * line from (pLevels[k], pValues[k]) to the next pair (LUT_Linear), or the third-order polynomial through four
 * neighbouring pairs (LUT_Cubic; with fewer than 4 levels in any channel the straight line in all). A pixel below the
 * first level, or at or above the last, stays as it is: for a table that covers all bytes the last level is 256, not
 * 255. Results are saturated; on integers a line or polynomial is computed in double precision, 0.5 is added and the
 * sum truncated towards zero. On 32f a NaN takes the first segment's result.
 * On integers the first and the last level lie within the range of the type (the last may be one above it), and levels
 * ascend; what levels that fall make of a pixel is not promised, though nothing outside the images is touched.
 * C3, AC4, C4: pValues and pLevels are arrays of pointers, one per channel (3, 3, 4), nLevels an array; channels may
 * share lists. AC4: alpha of the destination stays.
 * Checks, in order, C1: null pointers (huxStsNullPtr), width or height below 1 (huxStsBadSize), a step below 1
 * (huxStsBadStep), nLevels below 2 (huxStsBadLutLevels). Other layouts: null pointers, then by channel pValues[c] or
 * pLevels[c] null (huxStsNullPtr) and nLevels[c] (huxStsBadLutLevels), then size, steps. Then memory (huxStsNoMem),
 * with the destination untouched: 16s and 16u, and LUT_Linear and LUT_Cubic on 32f.
 * Example:
 *   const Hux32s levels[] = {0, 64, 192, 256}, values[] = {0, 32, 224, 256};
 *   const Hux32s *allLevels[] = {levels, levels, levels}, *allValues[] = {values, values, values};
 *   const int counts[] = {4, 4, 4};
 *   huxiLUT_Linear_8u_C1R(src, srcStep, dst, dstStep, size, values, levels, 4);
 *   huxiLUT_Linear_8u_C3R(src, srcStep, dst, dstStep, size, allValues, allLevels, counts);
 */

HUX_API HuxStatus huxiLUT_8u_C1R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                 const Hux32s* pValues, const Hux32s* pLevels, int nLevels);
HUX_API HuxStatus huxiLUT_8u_C1IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, const Hux32s* pValues,
                                  const Hux32s* pLevels, int nLevels);
HUX_API HuxStatus huxiLUT_8u_C3R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                 const Hux32s* const pValues[3], const Hux32s* const pLevels[3], const int nLevels[3]);
HUX_API HuxStatus huxiLUT_8u_C3IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, const Hux32s* const pValues[3],
                                  const Hux32s* const pLevels[3], const int nLevels[3]);
HUX_API HuxStatus huxiLUT_8u_C4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                 const Hux32s* const pValues[4], const Hux32s* const pLevels[4], const int nLevels[4]);
HUX_API HuxStatus huxiLUT_8u_C4IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, const Hux32s* const pValues[4],
                                  const Hux32s* const pLevels[4], const int nLevels[4]);
HUX_API HuxStatus huxiLUT_8u_AC4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                  const Hux32s* const pValues[3], const Hux32s* const pLevels[3], const int nLevels[3]);
HUX_API HuxStatus huxiLUT_8u_AC4IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, const Hux32s* const pValues[3],
                                   const Hux32s* const pLevels[3], const int nLevels[3]);
HUX_API HuxStatus huxiLUT_16s_C1R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize,
                                  const Hux32s* pValues, const Hux32s* pLevels, int nLevels);
HUX_API HuxStatus huxiLUT_16s_C1IR(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize, const Hux32s* pValues,
                                   const Hux32s* pLevels, int nLevels);
HUX_API HuxStatus huxiLUT_16s_C3R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize,
                                  const Hux32s* const pValues[3], const Hux32s* const pLevels[3], const int nLevels[3]);
HUX_API HuxStatus huxiLUT_16s_C3IR(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize, const Hux32s* const pValues[3],
                                   const Hux32s* const pLevels[3], const int nLevels[3]);
HUX_API HuxStatus huxiLUT_16s_C4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize,
                                  const Hux32s* const pValues[4], const Hux32s* const pLevels[4], const int nLevels[4]);
HUX_API HuxStatus huxiLUT_16s_C4IR(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize, const Hux32s* const pValues[4],
                                   const Hux32s* const pLevels[4], const int nLevels[4]);
HUX_API HuxStatus huxiLUT_16s_AC4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize,
                                   const Hux32s* const pValues[3], const Hux32s* const pLevels[3],
                                   const int nLevels[3]);
HUX_API HuxStatus huxiLUT_16s_AC4IR(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize, const Hux32s* const pValues[3],
                                    const Hux32s* const pLevels[3], const int nLevels[3]);
HUX_API HuxStatus huxiLUT_16u_C1R(const Hux16u* pSrc, int srcStep, Hux16u* pDst, int dstStep, HuxiSize roiSize,
                                  const Hux32s* pValues, const Hux32s* pLevels, int nLevels);
HUX_API HuxStatus huxiLUT_16u_C1IR(Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize, const Hux32s* pValues,
                                   const Hux32s* pLevels, int nLevels);
HUX_API HuxStatus huxiLUT_16u_C3R(const Hux16u* pSrc, int srcStep, Hux16u* pDst, int dstStep, HuxiSize roiSize,
                                  const Hux32s* const pValues[3], const Hux32s* const pLevels[3], const int nLevels[3]);
HUX_API HuxStatus huxiLUT_16u_C3IR(Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize, const Hux32s* const pValues[3],
                                   const Hux32s* const pLevels[3], const int nLevels[3]);
HUX_API HuxStatus huxiLUT_16u_C4R(const Hux16u* pSrc, int srcStep, Hux16u* pDst, int dstStep, HuxiSize roiSize,
                                  const Hux32s* const pValues[4], const Hux32s* const pLevels[4], const int nLevels[4]);
HUX_API HuxStatus huxiLUT_16u_C4IR(Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize, const Hux32s* const pValues[4],
                                   const Hux32s* const pLevels[4], const int nLevels[4]);
HUX_API HuxStatus huxiLUT_16u_AC4R(const Hux16u* pSrc, int srcStep, Hux16u* pDst, int dstStep, HuxiSize roiSize,
                                   const Hux32s* const pValues[3], const Hux32s* const pLevels[3],
                                   const int nLevels[3]);
HUX_API HuxStatus huxiLUT_16u_AC4IR(Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize, const Hux32s* const pValues[3],
                                    const Hux32s* const pLevels[3], const int nLevels[3]);
HUX_API HuxStatus huxiLUT_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize,
                                  const Hux32f* pValues, const Hux32f* pLevels, int nLevels);
HUX_API HuxStatus huxiLUT_32f_C1IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize, const Hux32f* pValues,
                                   const Hux32f* pLevels, int nLevels);
HUX_API HuxStatus huxiLUT_32f_C3R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize,
                                  const Hux32f* const pValues[3], const Hux32f* const pLevels[3], const int nLevels[3]);
HUX_API HuxStatus huxiLUT_32f_C3IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize, const Hux32f* const pValues[3],
                                   const Hux32f* const pLevels[3], const int nLevels[3]);
HUX_API HuxStatus huxiLUT_32f_C4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize,
                                  const Hux32f* const pValues[4], const Hux32f* const pLevels[4], const int nLevels[4]);
HUX_API HuxStatus huxiLUT_32f_C4IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize, const Hux32f* const pValues[4],
                                   const Hux32f* const pLevels[4], const int nLevels[4]);
HUX_API HuxStatus huxiLUT_32f_AC4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize,
                                   const Hux32f* const pValues[3], const Hux32f* const pLevels[3],
                                   const int nLevels[3]);
HUX_API HuxStatus huxiLUT_32f_AC4IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize, const Hux32f* const pValues[3],
                                    const Hux32f* const pLevels[3], const int nLevels[3]);

HUX_API HuxStatus huxiLUT_Linear_8u_C1R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                        const Hux32s* pValues, const Hux32s* pLevels, int nLevels);
HUX_API HuxStatus huxiLUT_Linear_8u_C1IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, const Hux32s* pValues,
                                         const Hux32s* pLevels, int nLevels);
HUX_API HuxStatus huxiLUT_Linear_8u_C3R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                        const Hux32s* const pValues[3], const Hux32s* const pLevels[3],
                                        const int nLevels[3]);
HUX_API HuxStatus huxiLUT_Linear_8u_C3IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                         const Hux32s* const pValues[3], const Hux32s* const pLevels[3],
                                         const int nLevels[3]);
HUX_API HuxStatus huxiLUT_Linear_8u_C4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                        const Hux32s* const pValues[4], const Hux32s* const pLevels[4],
                                        const int nLevels[4]);
HUX_API HuxStatus huxiLUT_Linear_8u_C4IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                         const Hux32s* const pValues[4], const Hux32s* const pLevels[4],
                                         const int nLevels[4]);
HUX_API HuxStatus huxiLUT_Linear_8u_AC4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                         const Hux32s* const pValues[3], const Hux32s* const pLevels[3],
                                         const int nLevels[3]);
HUX_API HuxStatus huxiLUT_Linear_8u_AC4IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                          const Hux32s* const pValues[3], const Hux32s* const pLevels[3],
                                          const int nLevels[3]);
HUX_API HuxStatus huxiLUT_Linear_16s_C1R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize,
                                         const Hux32s* pValues, const Hux32s* pLevels, int nLevels);
HUX_API HuxStatus huxiLUT_Linear_16s_C1IR(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize, const Hux32s* pValues,
                                          const Hux32s* pLevels, int nLevels);
HUX_API HuxStatus huxiLUT_Linear_16s_C3R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize,
                                         const Hux32s* const pValues[3], const Hux32s* const pLevels[3],
                                         const int nLevels[3]);
HUX_API HuxStatus huxiLUT_Linear_16s_C3IR(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                          const Hux32s* const pValues[3], const Hux32s* const pLevels[3],
                                          const int nLevels[3]);
HUX_API HuxStatus huxiLUT_Linear_16s_C4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize,
                                         const Hux32s* const pValues[4], const Hux32s* const pLevels[4],
                                         const int nLevels[4]);
HUX_API HuxStatus huxiLUT_Linear_16s_C4IR(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                          const Hux32s* const pValues[4], const Hux32s* const pLevels[4],
                                          const int nLevels[4]);
HUX_API HuxStatus huxiLUT_Linear_16s_AC4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize,
                                          const Hux32s* const pValues[3], const Hux32s* const pLevels[3],
                                          const int nLevels[3]);
HUX_API HuxStatus huxiLUT_Linear_16s_AC4IR(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                           const Hux32s* const pValues[3], const Hux32s* const pLevels[3],
                                           const int nLevels[3]);
HUX_API HuxStatus huxiLUT_Linear_16u_C1R(const Hux16u* pSrc, int srcStep, Hux16u* pDst, int dstStep, HuxiSize roiSize,
                                         const Hux32s* pValues, const Hux32s* pLevels, int nLevels);
HUX_API HuxStatus huxiLUT_Linear_16u_C1IR(Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize, const Hux32s* pValues,
                                          const Hux32s* pLevels, int nLevels);
HUX_API HuxStatus huxiLUT_Linear_16u_C3R(const Hux16u* pSrc, int srcStep, Hux16u* pDst, int dstStep, HuxiSize roiSize,
                                         const Hux32s* const pValues[3], const Hux32s* const pLevels[3],
                                         const int nLevels[3]);
HUX_API HuxStatus huxiLUT_Linear_16u_C3IR(Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                          const Hux32s* const pValues[3], const Hux32s* const pLevels[3],
                                          const int nLevels[3]);
HUX_API HuxStatus huxiLUT_Linear_16u_C4R(const Hux16u* pSrc, int srcStep, Hux16u* pDst, int dstStep, HuxiSize roiSize,
                                         const Hux32s* const pValues[4], const Hux32s* const pLevels[4],
                                         const int nLevels[4]);
HUX_API HuxStatus huxiLUT_Linear_16u_C4IR(Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                          const Hux32s* const pValues[4], const Hux32s* const pLevels[4],
                                          const int nLevels[4]);
HUX_API HuxStatus huxiLUT_Linear_16u_AC4R(const Hux16u* pSrc, int srcStep, Hux16u* pDst, int dstStep, HuxiSize roiSize,
                                          const Hux32s* const pValues[3], const Hux32s* const pLevels[3],
                                          const int nLevels[3]);
HUX_API HuxStatus huxiLUT_Linear_16u_AC4IR(Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                           const Hux32s* const pValues[3], const Hux32s* const pLevels[3],
                                           const int nLevels[3]);
HUX_API HuxStatus huxiLUT_Linear_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize,
                                         const Hux32f* pValues, const Hux32f* pLevels, int nLevels);
HUX_API HuxStatus huxiLUT_Linear_32f_C1IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize, const Hux32f* pValues,
                                          const Hux32f* pLevels, int nLevels);
HUX_API HuxStatus huxiLUT_Linear_32f_C3R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize,
                                         const Hux32f* const pValues[3], const Hux32f* const pLevels[3],
                                         const int nLevels[3]);
HUX_API HuxStatus huxiLUT_Linear_32f_C3IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                          const Hux32f* const pValues[3], const Hux32f* const pLevels[3],
                                          const int nLevels[3]);
HUX_API HuxStatus huxiLUT_Linear_32f_C4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize,
                                         const Hux32f* const pValues[4], const Hux32f* const pLevels[4],
                                         const int nLevels[4]);
HUX_API HuxStatus huxiLUT_Linear_32f_C4IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                          const Hux32f* const pValues[4], const Hux32f* const pLevels[4],
                                          const int nLevels[4]);
HUX_API HuxStatus huxiLUT_Linear_32f_AC4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize,
                                          const Hux32f* const pValues[3], const Hux32f* const pLevels[3],
                                          const int nLevels[3]);
HUX_API HuxStatus huxiLUT_Linear_32f_AC4IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                           const Hux32f* const pValues[3], const Hux32f* const pLevels[3],
                                           const int nLevels[3]);

HUX_API HuxStatus huxiLUT_Cubic_8u_C1R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                       const Hux32s* pValues, const Hux32s* pLevels, int nLevels);
HUX_API HuxStatus huxiLUT_Cubic_8u_C1IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, const Hux32s* pValues,
                                        const Hux32s* pLevels, int nLevels);
HUX_API HuxStatus huxiLUT_Cubic_8u_C3R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                       const Hux32s* const pValues[3], const Hux32s* const pLevels[3],
                                       const int nLevels[3]);
HUX_API HuxStatus huxiLUT_Cubic_8u_C3IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                        const Hux32s* const pValues[3], const Hux32s* const pLevels[3],
                                        const int nLevels[3]);
HUX_API HuxStatus huxiLUT_Cubic_8u_C4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                       const Hux32s* const pValues[4], const Hux32s* const pLevels[4],
                                       const int nLevels[4]);
HUX_API HuxStatus huxiLUT_Cubic_8u_C4IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                        const Hux32s* const pValues[4], const Hux32s* const pLevels[4],
                                        const int nLevels[4]);
HUX_API HuxStatus huxiLUT_Cubic_8u_AC4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                        const Hux32s* const pValues[3], const Hux32s* const pLevels[3],
                                        const int nLevels[3]);
HUX_API HuxStatus huxiLUT_Cubic_8u_AC4IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                         const Hux32s* const pValues[3], const Hux32s* const pLevels[3],
                                         const int nLevels[3]);
HUX_API HuxStatus huxiLUT_Cubic_16s_C1R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize,
                                        const Hux32s* pValues, const Hux32s* pLevels, int nLevels);
HUX_API HuxStatus huxiLUT_Cubic_16s_C1IR(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize, const Hux32s* pValues,
                                         const Hux32s* pLevels, int nLevels);
HUX_API HuxStatus huxiLUT_Cubic_16s_C3R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize,
                                        const Hux32s* const pValues[3], const Hux32s* const pLevels[3],
                                        const int nLevels[3]);
HUX_API HuxStatus huxiLUT_Cubic_16s_C3IR(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                         const Hux32s* const pValues[3], const Hux32s* const pLevels[3],
                                         const int nLevels[3]);
HUX_API HuxStatus huxiLUT_Cubic_16s_C4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize,
                                        const Hux32s* const pValues[4], const Hux32s* const pLevels[4],
                                        const int nLevels[4]);
HUX_API HuxStatus huxiLUT_Cubic_16s_C4IR(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                         const Hux32s* const pValues[4], const Hux32s* const pLevels[4],
                                         const int nLevels[4]);
HUX_API HuxStatus huxiLUT_Cubic_16s_AC4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize,
                                         const Hux32s* const pValues[3], const Hux32s* const pLevels[3],
                                         const int nLevels[3]);
HUX_API HuxStatus huxiLUT_Cubic_16s_AC4IR(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                          const Hux32s* const pValues[3], const Hux32s* const pLevels[3],
                                          const int nLevels[3]);
HUX_API HuxStatus huxiLUT_Cubic_16u_C1R(const Hux16u* pSrc, int srcStep, Hux16u* pDst, int dstStep, HuxiSize roiSize,
                                        const Hux32s* pValues, const Hux32s* pLevels, int nLevels);
HUX_API HuxStatus huxiLUT_Cubic_16u_C1IR(Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize, const Hux32s* pValues,
                                         const Hux32s* pLevels, int nLevels);
HUX_API HuxStatus huxiLUT_Cubic_16u_C3R(const Hux16u* pSrc, int srcStep, Hux16u* pDst, int dstStep, HuxiSize roiSize,
                                        const Hux32s* const pValues[3], const Hux32s* const pLevels[3],
                                        const int nLevels[3]);
HUX_API HuxStatus huxiLUT_Cubic_16u_C3IR(Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                         const Hux32s* const pValues[3], const Hux32s* const pLevels[3],
                                         const int nLevels[3]);
HUX_API HuxStatus huxiLUT_Cubic_16u_C4R(const Hux16u* pSrc, int srcStep, Hux16u* pDst, int dstStep, HuxiSize roiSize,
                                        const Hux32s* const pValues[4], const Hux32s* const pLevels[4],
                                        const int nLevels[4]);
HUX_API HuxStatus huxiLUT_Cubic_16u_C4IR(Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                         const Hux32s* const pValues[4], const Hux32s* const pLevels[4],
                                         const int nLevels[4]);
HUX_API HuxStatus huxiLUT_Cubic_16u_AC4R(const Hux16u* pSrc, int srcStep, Hux16u* pDst, int dstStep, HuxiSize roiSize,
                                         const Hux32s* const pValues[3], const Hux32s* const pLevels[3],
                                         const int nLevels[3]);
HUX_API HuxStatus huxiLUT_Cubic_16u_AC4IR(Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                          const Hux32s* const pValues[3], const Hux32s* const pLevels[3],
                                          const int nLevels[3]);
HUX_API HuxStatus huxiLUT_Cubic_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize,
                                        const Hux32f* pValues, const Hux32f* pLevels, int nLevels);
HUX_API HuxStatus huxiLUT_Cubic_32f_C1IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize, const Hux32f* pValues,
                                         const Hux32f* pLevels, int nLevels);
HUX_API HuxStatus huxiLUT_Cubic_32f_C3R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize,
                                        const Hux32f* const pValues[3], const Hux32f* const pLevels[3],
                                        const int nLevels[3]);
HUX_API HuxStatus huxiLUT_Cubic_32f_C3IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                         const Hux32f* const pValues[3], const Hux32f* const pLevels[3],
                                         const int nLevels[3]);
HUX_API HuxStatus huxiLUT_Cubic_32f_C4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize,
                                        const Hux32f* const pValues[4], const Hux32f* const pLevels[4],
                                        const int nLevels[4]);
HUX_API HuxStatus huxiLUT_Cubic_32f_C4IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                         const Hux32f* const pValues[4], const Hux32f* const pLevels[4],
                                         const int nLevels[4]);
HUX_API HuxStatus huxiLUT_Cubic_32f_AC4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize,
                                         const Hux32f* const pValues[3], const Hux32f* const pLevels[3],
                                         const int nLevels[3]);
HUX_API HuxStatus huxiLUT_Cubic_32f_AC4IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize,
                                          const Hux32f* const pValues[3], const Hux32f* const pLevels[3],
                                          const int nLevels[3]);

/* LUTPalette: the destination takes entry p & (2^nBitSize - 1) of pTable, which holds 2^nBitSize entries.
 * 8u24u and 16u24u: entries and destination pixels of three bytes. The others: entries of the destination's type.
 * Checks, in order: null pointers (huxStsNullPtr), a step below 1 (huxStsBadStep), width or height below 1
 * (huxStsBadSize), nBitSize below 1 or above the bits of a source pixel (huxStsBadBitSize).
 * Example:
 *   Hux8u rainbow[16 * 3] = {0};  // entry k is rainbow[3 * k] to rainbow[3 * k + 2]
 *   huxiLUTPalette_8u24u_C1R(src, srcStep, dst, dstStep, size, rainbow, 4);
 */
HUX_API HuxStatus huxiLUTPalette_8u24u_C1R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                           const Hux8u* pTable, int nBitSize);
HUX_API HuxStatus huxiLUTPalette_8u32u_C1R(const Hux8u* pSrc, int srcStep, Hux32u* pDst, int dstStep, HuxiSize roiSize,
                                           const Hux32u* pTable, int nBitSize);
HUX_API HuxStatus huxiLUTPalette_16u8u_C1R(const Hux16u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                           const Hux8u* pTable, int nBitSize);
HUX_API HuxStatus huxiLUTPalette_16u24u_C1R(const Hux16u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                            const Hux8u* pTable, int nBitSize);
HUX_API HuxStatus huxiLUTPalette_16u32u_C1R(const Hux16u* pSrc, int srcStep, Hux32u* pDst, int dstStep,
                                            HuxiSize roiSize, const Hux32u* pTable, int nBitSize);

/* ---- Template matching ---- */

/* Template matching: for each place of a window of the template's size over the image, one number that tells how alike
 * the two are, for each channel: 1 (C1), 3 (C3, AC4) or 4; alpha of AC4 is neither read nor written.
 * The template must not be larger than the image, in either direction. The name tells which windows there are:
 *   Full   a result of srcRoiSize + tplRoiSize - 1, from the window at (1 - tplRoiSize.width, 1 - tplRoiSize.height) on
 *   Same   of srcRoiSize, from the window at (-(tplRoiSize.width >> 1), -(tplRoiSize.height >> 1)) on
 *   Valid  of srcRoiSize - tplRoiSize + 1, from the window at (0, 0) on
 * Pixels outside the image count as 0 and are not read. In the formulas t is the template, p the window, n the number
 * of their pixels, and all sums are over these; max(..., f) stands for the floor f that the terms of a denominator do
 * not fall below, 1 on 8u and 8s and 0.0005 on 32f. Sums of products come from transforms of tiles in single precision,
 * with an error of about 1e-7 of the largest in the tile; the others are made in double precision.
 * 8u results are multiplied by 2^-scaleFactor, rounded to the nearest, ties to even, and limited to 0..255. */

/* CrossCorrFull_Norm, CrossCorrSame_Norm, CrossCorrValid_Norm: normalised correlation.
 *   sum(t * p) / (sqrt(max(sum(p^2), f)) * max(sqrt(sum(t^2)), f))
 * is 1 where the window is a positive multiple of the template.
 * Checks, in order: null pointers (huxStsNullPtr), a width or height below 1 or a template larger than the image
 * (huxStsBadSize), a step below 1 (huxStsBadStep), a template that needs transforms of an order above 30
 * (huxStsBadOrder), memory (huxStsNoMem; nothing is written then). */
HUX_API HuxStatus huxiCrossCorrFull_Norm_32f_C1R(const Hux32f* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                 const Hux32f* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                 int dstStep);
HUX_API HuxStatus huxiCrossCorrFull_Norm_32f_C3R(const Hux32f* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                 const Hux32f* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                 int dstStep);
HUX_API HuxStatus huxiCrossCorrFull_Norm_32f_C4R(const Hux32f* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                 const Hux32f* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                 int dstStep);
HUX_API HuxStatus huxiCrossCorrFull_Norm_32f_AC4R(const Hux32f* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                  const Hux32f* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                  int dstStep);
HUX_API HuxStatus huxiCrossCorrFull_Norm_8u32f_C1R(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                   const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                   int dstStep);
HUX_API HuxStatus huxiCrossCorrFull_Norm_8u32f_C3R(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                   const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                   int dstStep);
HUX_API HuxStatus huxiCrossCorrFull_Norm_8u32f_C4R(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                   const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                   int dstStep);
HUX_API HuxStatus huxiCrossCorrFull_Norm_8u32f_AC4R(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                    const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                    int dstStep);
HUX_API HuxStatus huxiCrossCorrFull_Norm_8s32f_C1R(const Hux8s* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                   const Hux8s* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                   int dstStep);
HUX_API HuxStatus huxiCrossCorrFull_Norm_8s32f_C3R(const Hux8s* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                   const Hux8s* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                   int dstStep);
HUX_API HuxStatus huxiCrossCorrFull_Norm_8s32f_C4R(const Hux8s* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                   const Hux8s* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                   int dstStep);
HUX_API HuxStatus huxiCrossCorrFull_Norm_8s32f_AC4R(const Hux8s* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                    const Hux8s* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                    int dstStep);
HUX_API HuxStatus huxiCrossCorrFull_Norm_8u_C1RSfs(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                   const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize, Hux8u* pDst,
                                                   int dstStep, int scaleFactor);
HUX_API HuxStatus huxiCrossCorrFull_Norm_8u_C3RSfs(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                   const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize, Hux8u* pDst,
                                                   int dstStep, int scaleFactor);
HUX_API HuxStatus huxiCrossCorrFull_Norm_8u_C4RSfs(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                   const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize, Hux8u* pDst,
                                                   int dstStep, int scaleFactor);
HUX_API HuxStatus huxiCrossCorrFull_Norm_8u_AC4RSfs(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                    const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize, Hux8u* pDst,
                                                    int dstStep, int scaleFactor);
HUX_API HuxStatus huxiCrossCorrSame_Norm_32f_C1R(const Hux32f* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                 const Hux32f* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                 int dstStep);
HUX_API HuxStatus huxiCrossCorrSame_Norm_32f_C3R(const Hux32f* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                 const Hux32f* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                 int dstStep);
HUX_API HuxStatus huxiCrossCorrSame_Norm_32f_C4R(const Hux32f* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                 const Hux32f* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                 int dstStep);
HUX_API HuxStatus huxiCrossCorrSame_Norm_32f_AC4R(const Hux32f* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                  const Hux32f* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                  int dstStep);
HUX_API HuxStatus huxiCrossCorrSame_Norm_8u32f_C1R(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                   const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                   int dstStep);
HUX_API HuxStatus huxiCrossCorrSame_Norm_8u32f_C3R(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                   const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                   int dstStep);
HUX_API HuxStatus huxiCrossCorrSame_Norm_8u32f_C4R(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                   const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                   int dstStep);
HUX_API HuxStatus huxiCrossCorrSame_Norm_8u32f_AC4R(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                    const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                    int dstStep);
HUX_API HuxStatus huxiCrossCorrSame_Norm_8s32f_C1R(const Hux8s* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                   const Hux8s* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                   int dstStep);
HUX_API HuxStatus huxiCrossCorrSame_Norm_8s32f_C3R(const Hux8s* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                   const Hux8s* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                   int dstStep);
HUX_API HuxStatus huxiCrossCorrSame_Norm_8s32f_C4R(const Hux8s* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                   const Hux8s* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                   int dstStep);
HUX_API HuxStatus huxiCrossCorrSame_Norm_8s32f_AC4R(const Hux8s* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                    const Hux8s* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                    int dstStep);
HUX_API HuxStatus huxiCrossCorrSame_Norm_8u_C1RSfs(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                   const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize, Hux8u* pDst,
                                                   int dstStep, int scaleFactor);
HUX_API HuxStatus huxiCrossCorrSame_Norm_8u_C3RSfs(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                   const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize, Hux8u* pDst,
                                                   int dstStep, int scaleFactor);
HUX_API HuxStatus huxiCrossCorrSame_Norm_8u_C4RSfs(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                   const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize, Hux8u* pDst,
                                                   int dstStep, int scaleFactor);
HUX_API HuxStatus huxiCrossCorrSame_Norm_8u_AC4RSfs(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                    const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize, Hux8u* pDst,
                                                    int dstStep, int scaleFactor);
HUX_API HuxStatus huxiCrossCorrValid_Norm_32f_C1R(const Hux32f* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                  const Hux32f* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                  int dstStep);
HUX_API HuxStatus huxiCrossCorrValid_Norm_32f_C3R(const Hux32f* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                  const Hux32f* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                  int dstStep);
HUX_API HuxStatus huxiCrossCorrValid_Norm_32f_C4R(const Hux32f* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                  const Hux32f* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                  int dstStep);
HUX_API HuxStatus huxiCrossCorrValid_Norm_32f_AC4R(const Hux32f* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                   const Hux32f* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                   int dstStep);
HUX_API HuxStatus huxiCrossCorrValid_Norm_8u32f_C1R(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                    const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                    int dstStep);
HUX_API HuxStatus huxiCrossCorrValid_Norm_8u32f_C3R(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                    const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                    int dstStep);
HUX_API HuxStatus huxiCrossCorrValid_Norm_8u32f_C4R(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                    const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                    int dstStep);
HUX_API HuxStatus huxiCrossCorrValid_Norm_8u32f_AC4R(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                     const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                     int dstStep);
HUX_API HuxStatus huxiCrossCorrValid_Norm_8s32f_C1R(const Hux8s* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                    const Hux8s* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                    int dstStep);
HUX_API HuxStatus huxiCrossCorrValid_Norm_8s32f_C3R(const Hux8s* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                    const Hux8s* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                    int dstStep);
HUX_API HuxStatus huxiCrossCorrValid_Norm_8s32f_C4R(const Hux8s* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                    const Hux8s* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                    int dstStep);
HUX_API HuxStatus huxiCrossCorrValid_Norm_8s32f_AC4R(const Hux8s* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                     const Hux8s* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                     int dstStep);
HUX_API HuxStatus huxiCrossCorrValid_Norm_8u_C1RSfs(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                    const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize, Hux8u* pDst,
                                                    int dstStep, int scaleFactor);
HUX_API HuxStatus huxiCrossCorrValid_Norm_8u_C3RSfs(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                    const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize, Hux8u* pDst,
                                                    int dstStep, int scaleFactor);
HUX_API HuxStatus huxiCrossCorrValid_Norm_8u_C4RSfs(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                    const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize, Hux8u* pDst,
                                                    int dstStep, int scaleFactor);
HUX_API HuxStatus huxiCrossCorrValid_Norm_8u_AC4RSfs(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                     const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize, Hux8u* pDst,
                                                     int dstStep, int scaleFactor);

/* CrossCorrFull_NormLevel, CrossCorrSame_NormLevel, CrossCorrValid_NormLevel: normalised correlation without the means.
 *   sum((t - mean(t)) * p) / sqrt(max(sum(p^2) - sum(p)^2 / n, f) * max(sum(t^2) - n * mean(t)^2, f))
 * is 1 where the window is a positive multiple of the template plus a constant. Parallel; no result depends on the
 * number of threads.
 * Checks, in order: null pointers (huxStsNullPtr), a width or height below 1 or a template larger than the image
 * (huxStsBadSize), a step below 1 (huxStsBadStep), a template that needs transforms of an order above 30
 * (huxStsBadOrder), memory (huxStsNoMem; nothing is written then).
 * Example:
 *   const HuxiSize patch = {40, 40}, places = {size.width - 39, size.height - 39};
 *   Hux32f best;
 *   int step, x, y;
 *   Hux32f* scores = huxiMalloc_32f_C1(places.width, places.height, &step);
 *   huxiCrossCorrValid_NormLevel_8u32f_C1R(src, srcStep, size, dst, dstStep, patch, scores, step);
 *   huxiMaxIndx_32f_C1R(scores, step, places, &best, &x, &y);
 *   huxiFree(scores);
 */
HUX_API HuxStatus huxiCrossCorrFull_NormLevel_32f_C1R(const Hux32f* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                      const Hux32f* pTpl, int tplStep, HuxiSize tplRoiSize,
                                                      Hux32f* pDst, int dstStep);
HUX_API HuxStatus huxiCrossCorrFull_NormLevel_32f_C3R(const Hux32f* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                      const Hux32f* pTpl, int tplStep, HuxiSize tplRoiSize,
                                                      Hux32f* pDst, int dstStep);
HUX_API HuxStatus huxiCrossCorrFull_NormLevel_32f_C4R(const Hux32f* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                      const Hux32f* pTpl, int tplStep, HuxiSize tplRoiSize,
                                                      Hux32f* pDst, int dstStep);
HUX_API HuxStatus huxiCrossCorrFull_NormLevel_32f_AC4R(const Hux32f* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                       const Hux32f* pTpl, int tplStep, HuxiSize tplRoiSize,
                                                       Hux32f* pDst, int dstStep);
HUX_API HuxStatus huxiCrossCorrFull_NormLevel_8u32f_C1R(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                        const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize,
                                                        Hux32f* pDst, int dstStep);
HUX_API HuxStatus huxiCrossCorrFull_NormLevel_8u32f_C3R(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                        const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize,
                                                        Hux32f* pDst, int dstStep);
HUX_API HuxStatus huxiCrossCorrFull_NormLevel_8u32f_C4R(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                        const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize,
                                                        Hux32f* pDst, int dstStep);
HUX_API HuxStatus huxiCrossCorrFull_NormLevel_8u32f_AC4R(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                         const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize,
                                                         Hux32f* pDst, int dstStep);
HUX_API HuxStatus huxiCrossCorrFull_NormLevel_8s32f_C1R(const Hux8s* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                        const Hux8s* pTpl, int tplStep, HuxiSize tplRoiSize,
                                                        Hux32f* pDst, int dstStep);
HUX_API HuxStatus huxiCrossCorrFull_NormLevel_8s32f_C3R(const Hux8s* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                        const Hux8s* pTpl, int tplStep, HuxiSize tplRoiSize,
                                                        Hux32f* pDst, int dstStep);
HUX_API HuxStatus huxiCrossCorrFull_NormLevel_8s32f_C4R(const Hux8s* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                        const Hux8s* pTpl, int tplStep, HuxiSize tplRoiSize,
                                                        Hux32f* pDst, int dstStep);
HUX_API HuxStatus huxiCrossCorrFull_NormLevel_8s32f_AC4R(const Hux8s* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                         const Hux8s* pTpl, int tplStep, HuxiSize tplRoiSize,
                                                         Hux32f* pDst, int dstStep);
HUX_API HuxStatus huxiCrossCorrFull_NormLevel_8u_C1RSfs(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                        const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize,
                                                        Hux8u* pDst, int dstStep, int scaleFactor);
HUX_API HuxStatus huxiCrossCorrFull_NormLevel_8u_C3RSfs(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                        const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize,
                                                        Hux8u* pDst, int dstStep, int scaleFactor);
HUX_API HuxStatus huxiCrossCorrFull_NormLevel_8u_C4RSfs(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                        const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize,
                                                        Hux8u* pDst, int dstStep, int scaleFactor);
HUX_API HuxStatus huxiCrossCorrFull_NormLevel_8u_AC4RSfs(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                         const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize,
                                                         Hux8u* pDst, int dstStep, int scaleFactor);
HUX_API HuxStatus huxiCrossCorrSame_NormLevel_32f_C1R(const Hux32f* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                      const Hux32f* pTpl, int tplStep, HuxiSize tplRoiSize,
                                                      Hux32f* pDst, int dstStep);
HUX_API HuxStatus huxiCrossCorrSame_NormLevel_32f_C3R(const Hux32f* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                      const Hux32f* pTpl, int tplStep, HuxiSize tplRoiSize,
                                                      Hux32f* pDst, int dstStep);
HUX_API HuxStatus huxiCrossCorrSame_NormLevel_32f_C4R(const Hux32f* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                      const Hux32f* pTpl, int tplStep, HuxiSize tplRoiSize,
                                                      Hux32f* pDst, int dstStep);
HUX_API HuxStatus huxiCrossCorrSame_NormLevel_32f_AC4R(const Hux32f* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                       const Hux32f* pTpl, int tplStep, HuxiSize tplRoiSize,
                                                       Hux32f* pDst, int dstStep);
HUX_API HuxStatus huxiCrossCorrSame_NormLevel_8u32f_C1R(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                        const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize,
                                                        Hux32f* pDst, int dstStep);
HUX_API HuxStatus huxiCrossCorrSame_NormLevel_8u32f_C3R(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                        const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize,
                                                        Hux32f* pDst, int dstStep);
HUX_API HuxStatus huxiCrossCorrSame_NormLevel_8u32f_C4R(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                        const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize,
                                                        Hux32f* pDst, int dstStep);
HUX_API HuxStatus huxiCrossCorrSame_NormLevel_8u32f_AC4R(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                         const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize,
                                                         Hux32f* pDst, int dstStep);
HUX_API HuxStatus huxiCrossCorrSame_NormLevel_8s32f_C1R(const Hux8s* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                        const Hux8s* pTpl, int tplStep, HuxiSize tplRoiSize,
                                                        Hux32f* pDst, int dstStep);
HUX_API HuxStatus huxiCrossCorrSame_NormLevel_8s32f_C3R(const Hux8s* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                        const Hux8s* pTpl, int tplStep, HuxiSize tplRoiSize,
                                                        Hux32f* pDst, int dstStep);
HUX_API HuxStatus huxiCrossCorrSame_NormLevel_8s32f_C4R(const Hux8s* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                        const Hux8s* pTpl, int tplStep, HuxiSize tplRoiSize,
                                                        Hux32f* pDst, int dstStep);
HUX_API HuxStatus huxiCrossCorrSame_NormLevel_8s32f_AC4R(const Hux8s* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                         const Hux8s* pTpl, int tplStep, HuxiSize tplRoiSize,
                                                         Hux32f* pDst, int dstStep);
HUX_API HuxStatus huxiCrossCorrSame_NormLevel_8u_C1RSfs(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                        const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize,
                                                        Hux8u* pDst, int dstStep, int scaleFactor);
HUX_API HuxStatus huxiCrossCorrSame_NormLevel_8u_C3RSfs(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                        const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize,
                                                        Hux8u* pDst, int dstStep, int scaleFactor);
HUX_API HuxStatus huxiCrossCorrSame_NormLevel_8u_C4RSfs(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                        const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize,
                                                        Hux8u* pDst, int dstStep, int scaleFactor);
HUX_API HuxStatus huxiCrossCorrSame_NormLevel_8u_AC4RSfs(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                         const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize,
                                                         Hux8u* pDst, int dstStep, int scaleFactor);
HUX_API HuxStatus huxiCrossCorrValid_NormLevel_32f_C1R(const Hux32f* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                       const Hux32f* pTpl, int tplStep, HuxiSize tplRoiSize,
                                                       Hux32f* pDst, int dstStep);
HUX_API HuxStatus huxiCrossCorrValid_NormLevel_32f_C3R(const Hux32f* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                       const Hux32f* pTpl, int tplStep, HuxiSize tplRoiSize,
                                                       Hux32f* pDst, int dstStep);
HUX_API HuxStatus huxiCrossCorrValid_NormLevel_32f_C4R(const Hux32f* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                       const Hux32f* pTpl, int tplStep, HuxiSize tplRoiSize,
                                                       Hux32f* pDst, int dstStep);
HUX_API HuxStatus huxiCrossCorrValid_NormLevel_32f_AC4R(const Hux32f* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                        const Hux32f* pTpl, int tplStep, HuxiSize tplRoiSize,
                                                        Hux32f* pDst, int dstStep);
HUX_API HuxStatus huxiCrossCorrValid_NormLevel_8u32f_C1R(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                         const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize,
                                                         Hux32f* pDst, int dstStep);
HUX_API HuxStatus huxiCrossCorrValid_NormLevel_8u32f_C3R(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                         const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize,
                                                         Hux32f* pDst, int dstStep);
HUX_API HuxStatus huxiCrossCorrValid_NormLevel_8u32f_C4R(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                         const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize,
                                                         Hux32f* pDst, int dstStep);
HUX_API HuxStatus huxiCrossCorrValid_NormLevel_8u32f_AC4R(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                          const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize,
                                                          Hux32f* pDst, int dstStep);
HUX_API HuxStatus huxiCrossCorrValid_NormLevel_8s32f_C1R(const Hux8s* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                         const Hux8s* pTpl, int tplStep, HuxiSize tplRoiSize,
                                                         Hux32f* pDst, int dstStep);
HUX_API HuxStatus huxiCrossCorrValid_NormLevel_8s32f_C3R(const Hux8s* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                         const Hux8s* pTpl, int tplStep, HuxiSize tplRoiSize,
                                                         Hux32f* pDst, int dstStep);
HUX_API HuxStatus huxiCrossCorrValid_NormLevel_8s32f_C4R(const Hux8s* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                         const Hux8s* pTpl, int tplStep, HuxiSize tplRoiSize,
                                                         Hux32f* pDst, int dstStep);
HUX_API HuxStatus huxiCrossCorrValid_NormLevel_8s32f_AC4R(const Hux8s* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                          const Hux8s* pTpl, int tplStep, HuxiSize tplRoiSize,
                                                          Hux32f* pDst, int dstStep);
HUX_API HuxStatus huxiCrossCorrValid_NormLevel_8u_C1RSfs(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                         const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize,
                                                         Hux8u* pDst, int dstStep, int scaleFactor);
HUX_API HuxStatus huxiCrossCorrValid_NormLevel_8u_C3RSfs(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                         const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize,
                                                         Hux8u* pDst, int dstStep, int scaleFactor);
HUX_API HuxStatus huxiCrossCorrValid_NormLevel_8u_C4RSfs(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                         const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize,
                                                         Hux8u* pDst, int dstStep, int scaleFactor);
HUX_API HuxStatus huxiCrossCorrValid_NormLevel_8u_AC4RSfs(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                          const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize,
                                                          Hux8u* pDst, int dstStep, int scaleFactor);

/* SqrDistanceFull_Norm, SqrDistanceSame_Norm, SqrDistanceValid_Norm: normalised squared distance.
 *   sum((t - p)^2) / (sqrt(max(sum(p^2), f)) * max(sqrt(sum(t^2)), f))
 * is 0 where the window is the template. It comes from sum(p^2) - 2 * sum(t * p) + sum(t^2) and may miss 0 by a
 * little, below it too. Parallel; no result depends on the number of threads.
 * Checks, in order: null pointers (huxStsNullPtr), a width or height below 1 or a template larger than the image
 * (huxStsBadSize), a step below 1 (huxStsBadStep), a template that needs transforms of an order above 30
 * (huxStsBadOrder), memory (huxStsNoMem; nothing is written then). */
HUX_API HuxStatus huxiSqrDistanceFull_Norm_32f_C1R(const Hux32f* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                   const Hux32f* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                   int dstStep);
HUX_API HuxStatus huxiSqrDistanceFull_Norm_32f_C3R(const Hux32f* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                   const Hux32f* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                   int dstStep);
HUX_API HuxStatus huxiSqrDistanceFull_Norm_32f_C4R(const Hux32f* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                   const Hux32f* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                   int dstStep);
HUX_API HuxStatus huxiSqrDistanceFull_Norm_32f_AC4R(const Hux32f* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                    const Hux32f* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                    int dstStep);
HUX_API HuxStatus huxiSqrDistanceFull_Norm_8u32f_C1R(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                     const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                     int dstStep);
HUX_API HuxStatus huxiSqrDistanceFull_Norm_8u32f_C3R(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                     const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                     int dstStep);
HUX_API HuxStatus huxiSqrDistanceFull_Norm_8u32f_C4R(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                     const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                     int dstStep);
HUX_API HuxStatus huxiSqrDistanceFull_Norm_8u32f_AC4R(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                      const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                      int dstStep);
HUX_API HuxStatus huxiSqrDistanceFull_Norm_8s32f_C1R(const Hux8s* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                     const Hux8s* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                     int dstStep);
HUX_API HuxStatus huxiSqrDistanceFull_Norm_8s32f_C3R(const Hux8s* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                     const Hux8s* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                     int dstStep);
HUX_API HuxStatus huxiSqrDistanceFull_Norm_8s32f_C4R(const Hux8s* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                     const Hux8s* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                     int dstStep);
HUX_API HuxStatus huxiSqrDistanceFull_Norm_8s32f_AC4R(const Hux8s* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                      const Hux8s* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                      int dstStep);
HUX_API HuxStatus huxiSqrDistanceFull_Norm_8u_C1RSfs(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                     const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize, Hux8u* pDst,
                                                     int dstStep, int scaleFactor);
HUX_API HuxStatus huxiSqrDistanceFull_Norm_8u_C3RSfs(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                     const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize, Hux8u* pDst,
                                                     int dstStep, int scaleFactor);
HUX_API HuxStatus huxiSqrDistanceFull_Norm_8u_C4RSfs(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                     const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize, Hux8u* pDst,
                                                     int dstStep, int scaleFactor);
HUX_API HuxStatus huxiSqrDistanceFull_Norm_8u_AC4RSfs(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                      const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize, Hux8u* pDst,
                                                      int dstStep, int scaleFactor);
HUX_API HuxStatus huxiSqrDistanceSame_Norm_32f_C1R(const Hux32f* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                   const Hux32f* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                   int dstStep);
HUX_API HuxStatus huxiSqrDistanceSame_Norm_32f_C3R(const Hux32f* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                   const Hux32f* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                   int dstStep);
HUX_API HuxStatus huxiSqrDistanceSame_Norm_32f_C4R(const Hux32f* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                   const Hux32f* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                   int dstStep);
HUX_API HuxStatus huxiSqrDistanceSame_Norm_32f_AC4R(const Hux32f* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                    const Hux32f* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                    int dstStep);
HUX_API HuxStatus huxiSqrDistanceSame_Norm_8u32f_C1R(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                     const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                     int dstStep);
HUX_API HuxStatus huxiSqrDistanceSame_Norm_8u32f_C3R(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                     const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                     int dstStep);
HUX_API HuxStatus huxiSqrDistanceSame_Norm_8u32f_C4R(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                     const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                     int dstStep);
HUX_API HuxStatus huxiSqrDistanceSame_Norm_8u32f_AC4R(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                      const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                      int dstStep);
HUX_API HuxStatus huxiSqrDistanceSame_Norm_8s32f_C1R(const Hux8s* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                     const Hux8s* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                     int dstStep);
HUX_API HuxStatus huxiSqrDistanceSame_Norm_8s32f_C3R(const Hux8s* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                     const Hux8s* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                     int dstStep);
HUX_API HuxStatus huxiSqrDistanceSame_Norm_8s32f_C4R(const Hux8s* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                     const Hux8s* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                     int dstStep);
HUX_API HuxStatus huxiSqrDistanceSame_Norm_8s32f_AC4R(const Hux8s* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                      const Hux8s* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                      int dstStep);
HUX_API HuxStatus huxiSqrDistanceSame_Norm_8u_C1RSfs(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                     const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize, Hux8u* pDst,
                                                     int dstStep, int scaleFactor);
HUX_API HuxStatus huxiSqrDistanceSame_Norm_8u_C3RSfs(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                     const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize, Hux8u* pDst,
                                                     int dstStep, int scaleFactor);
HUX_API HuxStatus huxiSqrDistanceSame_Norm_8u_C4RSfs(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                     const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize, Hux8u* pDst,
                                                     int dstStep, int scaleFactor);
HUX_API HuxStatus huxiSqrDistanceSame_Norm_8u_AC4RSfs(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                      const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize, Hux8u* pDst,
                                                      int dstStep, int scaleFactor);
HUX_API HuxStatus huxiSqrDistanceValid_Norm_32f_C1R(const Hux32f* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                    const Hux32f* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                    int dstStep);
HUX_API HuxStatus huxiSqrDistanceValid_Norm_32f_C3R(const Hux32f* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                    const Hux32f* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                    int dstStep);
HUX_API HuxStatus huxiSqrDistanceValid_Norm_32f_C4R(const Hux32f* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                    const Hux32f* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                    int dstStep);
HUX_API HuxStatus huxiSqrDistanceValid_Norm_32f_AC4R(const Hux32f* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                     const Hux32f* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                     int dstStep);
HUX_API HuxStatus huxiSqrDistanceValid_Norm_8u32f_C1R(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                      const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                      int dstStep);
HUX_API HuxStatus huxiSqrDistanceValid_Norm_8u32f_C3R(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                      const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                      int dstStep);
HUX_API HuxStatus huxiSqrDistanceValid_Norm_8u32f_C4R(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                      const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                      int dstStep);
HUX_API HuxStatus huxiSqrDistanceValid_Norm_8u32f_AC4R(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                       const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize,
                                                       Hux32f* pDst, int dstStep);
HUX_API HuxStatus huxiSqrDistanceValid_Norm_8s32f_C1R(const Hux8s* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                      const Hux8s* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                      int dstStep);
HUX_API HuxStatus huxiSqrDistanceValid_Norm_8s32f_C3R(const Hux8s* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                      const Hux8s* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                      int dstStep);
HUX_API HuxStatus huxiSqrDistanceValid_Norm_8s32f_C4R(const Hux8s* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                      const Hux8s* pTpl, int tplStep, HuxiSize tplRoiSize, Hux32f* pDst,
                                                      int dstStep);
HUX_API HuxStatus huxiSqrDistanceValid_Norm_8s32f_AC4R(const Hux8s* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                       const Hux8s* pTpl, int tplStep, HuxiSize tplRoiSize,
                                                       Hux32f* pDst, int dstStep);
HUX_API HuxStatus huxiSqrDistanceValid_Norm_8u_C1RSfs(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                      const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize, Hux8u* pDst,
                                                      int dstStep, int scaleFactor);
HUX_API HuxStatus huxiSqrDistanceValid_Norm_8u_C3RSfs(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                      const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize, Hux8u* pDst,
                                                      int dstStep, int scaleFactor);
HUX_API HuxStatus huxiSqrDistanceValid_Norm_8u_C4RSfs(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                      const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize, Hux8u* pDst,
                                                      int dstStep, int scaleFactor);
HUX_API HuxStatus huxiSqrDistanceValid_Norm_8u_AC4RSfs(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize,
                                                       const Hux8u* pTpl, int tplStep, HuxiSize tplRoiSize, Hux8u* pDst,
                                                       int dstStep, int scaleFactor);

/* ---- Quality index ---- */

/* QualityIndex: how alike two images are, for each channel.
 *   4 * cov * mean1 * mean2 / ((var1 + var2) * (mean1^2 + mean2^2))
 * is 1 for equal images that are not constant. One value (C1) or three; alpha of AC4 is not read. A zero denominator
 * gives an infinity or NaN. Parallel: the sums are single precision numbers whose last bits depend on the number of
 * threads.
 * Checks, in order: null pointers (huxStsNullPtr), width or height below 1 (huxStsBadSize), a step below 1
 * (huxStsBadStep), memory (huxStsNoMem; nothing is written then). */
HUX_API HuxStatus huxiQualityIndex_8u32f_C1R(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step,
                                             HuxiSize roiSize, Hux32f* pQualityIndex);
HUX_API HuxStatus huxiQualityIndex_8u32f_C3R(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step,
                                             HuxiSize roiSize, Hux32f pQualityIndex[3]);
HUX_API HuxStatus huxiQualityIndex_8u32f_AC4R(const Hux8u* pSrc1, int src1Step, const Hux8u* pSrc2, int src2Step,
                                              HuxiSize roiSize, Hux32f pQualityIndex[3]);
HUX_API HuxStatus huxiQualityIndex_32f_C1R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step,
                                           HuxiSize roiSize, Hux32f* pQualityIndex);
HUX_API HuxStatus huxiQualityIndex_32f_C3R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step,
                                           HuxiSize roiSize, Hux32f pQualityIndex[3]);
HUX_API HuxStatus huxiQualityIndex_32f_AC4R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step,
                                            HuxiSize roiSize, Hux32f pQualityIndex[3]);

HUX_END_C

#endif
