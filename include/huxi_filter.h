/* Neighbourhood filters: each output pixel from a window of input pixels. Plain C99. */
#ifndef HUXI_FILTER_H
#define HUXI_FILTER_H

#include "huxdefs.h"

HUX_BEGIN_C

/* ---- Box filter and window sums ---- */

/* ---- General linear filters ---- */

/* Filter, FilterRow, FilterColumn: convolution with a kernel of the caller's, of two dimensions or along a row or a
 * column. Output pixel (x, y) is the sum over all taps of pKernel[j * kernelSize.width + i] times the source pixel
 * (x + anchor.x - i, y + anchor.y - j): the kernel is flipped, and the anchor is the cell of it that meets (x, y). In
 * one dimension, likewise, pKernel[i] meets x + xAnchor - i, or y + yAnchor - i. So the source is read kernelSize - 1 -
 * anchor pixels to the left and above the region, and anchor pixels to the right and below it; these pixels must be
 * there. Any anchor is taken, also one outside the kernel, which moves the window away from the pixel. Channels are
 * filtered alike, but for the alpha of AC4, which is left as it was in the destination. The images must not overlap.
 * 16s and 32f move from row to row in whole elements. The work is shared among threads; the result is the same for any
 * number of them. Of all these functions only those of 16s with integer taps take memory.
 *
 * 8u, taps and divisor of integers: the sum is taken in 32 bits that wrap. It is divided, rounded half up, and limited
 * to 0..255. A divisor of 1 or of another power of two is exact; any other multiplies the sum, as a float, by 1 /
 * divisor in single precision. A negative divisor makes negative sums positive. 16s, taps and divisor of integers: as
 * with float taps, after each tap was multiplied by 1 / divisor in single precision. 32f, and float taps on 8u and 16s
 * (Filter32f and its kin): the sum is taken in single precision from 0 on, each product and each addition rounded, in
 * the order of the source pixels, row by row and left to right. 32f stores it as it is. 8u adds 0.5 to a positive sum
 * and truncates, within 0..255, a NaN as 0; 16s rounds likewise, but half away from zero, within -32768..32767, a NaN
 * as -32768.
 *
 * Checks of all but 16s with integer taps: null pointers (huxStsNullPtr), the sizes of region and kernel
 * (huxStsBadSize), divisor of 0 (huxStsBadDivisor), srcStep below the bytes of the row that is read, of
 * dstRoiSize.width + kernelSize.width
 * - 1 pixels, or in FilterColumn of dstRoiSize.width, then dstStep below those of a row of dstRoiSize.width
 * (huxStsBadStep). 16s with integer taps: pKernel, the size of the kernel, divisor, memory (huxStsNoMem), and then all
 * of the others. The width of the region is looked at before all else in FilterColumn of C3 and C4. */
HUX_API HuxStatus huxiFilter_8u_C1R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize dstRoiSize,
                                    const Hux32s* pKernel, HuxiSize kernelSize, HuxiPoint anchor, Hux32s divisor);
HUX_API HuxStatus huxiFilter_8u_C3R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize dstRoiSize,
                                    const Hux32s* pKernel, HuxiSize kernelSize, HuxiPoint anchor, Hux32s divisor);
HUX_API HuxStatus huxiFilter_8u_C4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize dstRoiSize,
                                    const Hux32s* pKernel, HuxiSize kernelSize, HuxiPoint anchor, Hux32s divisor);
HUX_API HuxStatus huxiFilter_8u_AC4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize dstRoiSize,
                                     const Hux32s* pKernel, HuxiSize kernelSize, HuxiPoint anchor, Hux32s divisor);
HUX_API HuxStatus huxiFilter_16s_C1R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize dstRoiSize,
                                     const Hux32s* pKernel, HuxiSize kernelSize, HuxiPoint anchor, Hux32s divisor);
HUX_API HuxStatus huxiFilter_16s_C3R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize dstRoiSize,
                                     const Hux32s* pKernel, HuxiSize kernelSize, HuxiPoint anchor, Hux32s divisor);
HUX_API HuxStatus huxiFilter_16s_C4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize dstRoiSize,
                                     const Hux32s* pKernel, HuxiSize kernelSize, HuxiPoint anchor, Hux32s divisor);
HUX_API HuxStatus huxiFilter_16s_AC4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize dstRoiSize,
                                      const Hux32s* pKernel, HuxiSize kernelSize, HuxiPoint anchor, Hux32s divisor);
HUX_API HuxStatus huxiFilter_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize dstRoiSize,
                                     const Hux32f* pKernel, HuxiSize kernelSize, HuxiPoint anchor);
HUX_API HuxStatus huxiFilter_32f_C3R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize dstRoiSize,
                                     const Hux32f* pKernel, HuxiSize kernelSize, HuxiPoint anchor);
HUX_API HuxStatus huxiFilter_32f_C4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize dstRoiSize,
                                     const Hux32f* pKernel, HuxiSize kernelSize, HuxiPoint anchor);
HUX_API HuxStatus huxiFilter_32f_AC4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize dstRoiSize,
                                      const Hux32f* pKernel, HuxiSize kernelSize, HuxiPoint anchor);
HUX_API HuxStatus huxiFilter32f_8u_C1R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize dstRoiSize,
                                       const Hux32f* pKernel, HuxiSize kernelSize, HuxiPoint anchor);
HUX_API HuxStatus huxiFilter32f_8u_C3R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize dstRoiSize,
                                       const Hux32f* pKernel, HuxiSize kernelSize, HuxiPoint anchor);
HUX_API HuxStatus huxiFilter32f_8u_C4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize dstRoiSize,
                                       const Hux32f* pKernel, HuxiSize kernelSize, HuxiPoint anchor);
HUX_API HuxStatus huxiFilter32f_8u_AC4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize dstRoiSize,
                                        const Hux32f* pKernel, HuxiSize kernelSize, HuxiPoint anchor);
HUX_API HuxStatus huxiFilter32f_16s_C1R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize dstRoiSize,
                                        const Hux32f* pKernel, HuxiSize kernelSize, HuxiPoint anchor);
HUX_API HuxStatus huxiFilter32f_16s_C3R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize dstRoiSize,
                                        const Hux32f* pKernel, HuxiSize kernelSize, HuxiPoint anchor);
HUX_API HuxStatus huxiFilter32f_16s_C4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize dstRoiSize,
                                        const Hux32f* pKernel, HuxiSize kernelSize, HuxiPoint anchor);
HUX_API HuxStatus huxiFilter32f_16s_AC4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                         HuxiSize dstRoiSize, const Hux32f* pKernel, HuxiSize kernelSize,
                                         HuxiPoint anchor);
HUX_API HuxStatus huxiFilterRow_8u_C1R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize dstRoiSize,
                                       const Hux32s* pKernel, int kernelSize, int xAnchor, Hux32s divisor);
HUX_API HuxStatus huxiFilterRow_8u_C3R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize dstRoiSize,
                                       const Hux32s* pKernel, int kernelSize, int xAnchor, Hux32s divisor);
HUX_API HuxStatus huxiFilterRow_8u_C4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize dstRoiSize,
                                       const Hux32s* pKernel, int kernelSize, int xAnchor, Hux32s divisor);
HUX_API HuxStatus huxiFilterRow_8u_AC4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize dstRoiSize,
                                        const Hux32s* pKernel, int kernelSize, int xAnchor, Hux32s divisor);
HUX_API HuxStatus huxiFilterRow_16s_C1R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize dstRoiSize,
                                        const Hux32s* pKernel, int kernelSize, int xAnchor, Hux32s divisor);
HUX_API HuxStatus huxiFilterRow_16s_C3R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize dstRoiSize,
                                        const Hux32s* pKernel, int kernelSize, int xAnchor, Hux32s divisor);
HUX_API HuxStatus huxiFilterRow_16s_C4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize dstRoiSize,
                                        const Hux32s* pKernel, int kernelSize, int xAnchor, Hux32s divisor);
HUX_API HuxStatus huxiFilterRow_16s_AC4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                         HuxiSize dstRoiSize, const Hux32s* pKernel, int kernelSize, int xAnchor,
                                         Hux32s divisor);
HUX_API HuxStatus huxiFilterRow_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize dstRoiSize,
                                        const Hux32f* pKernel, int kernelSize, int xAnchor);
HUX_API HuxStatus huxiFilterRow_32f_C3R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize dstRoiSize,
                                        const Hux32f* pKernel, int kernelSize, int xAnchor);
HUX_API HuxStatus huxiFilterRow_32f_C4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize dstRoiSize,
                                        const Hux32f* pKernel, int kernelSize, int xAnchor);
HUX_API HuxStatus huxiFilterRow_32f_AC4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                         HuxiSize dstRoiSize, const Hux32f* pKernel, int kernelSize, int xAnchor);
HUX_API HuxStatus huxiFilterRow32f_8u_C1R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize dstRoiSize,
                                          const Hux32f* pKernel, int kernelSize, int xAnchor);
HUX_API HuxStatus huxiFilterRow32f_8u_C3R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize dstRoiSize,
                                          const Hux32f* pKernel, int kernelSize, int xAnchor);
HUX_API HuxStatus huxiFilterRow32f_8u_C4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize dstRoiSize,
                                          const Hux32f* pKernel, int kernelSize, int xAnchor);
HUX_API HuxStatus huxiFilterRow32f_8u_AC4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep,
                                           HuxiSize dstRoiSize, const Hux32f* pKernel, int kernelSize, int xAnchor);
HUX_API HuxStatus huxiFilterRow32f_16s_C1R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                           HuxiSize dstRoiSize, const Hux32f* pKernel, int kernelSize, int xAnchor);
HUX_API HuxStatus huxiFilterRow32f_16s_C3R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                           HuxiSize dstRoiSize, const Hux32f* pKernel, int kernelSize, int xAnchor);
HUX_API HuxStatus huxiFilterRow32f_16s_C4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                           HuxiSize dstRoiSize, const Hux32f* pKernel, int kernelSize, int xAnchor);
HUX_API HuxStatus huxiFilterRow32f_16s_AC4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                            HuxiSize dstRoiSize, const Hux32f* pKernel, int kernelSize, int xAnchor);
HUX_API HuxStatus huxiFilterColumn_8u_C1R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize dstRoiSize,
                                          const Hux32s* pKernel, int kernelSize, int yAnchor, Hux32s divisor);
HUX_API HuxStatus huxiFilterColumn_8u_C3R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize dstRoiSize,
                                          const Hux32s* pKernel, int kernelSize, int yAnchor, Hux32s divisor);
HUX_API HuxStatus huxiFilterColumn_8u_C4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize dstRoiSize,
                                          const Hux32s* pKernel, int kernelSize, int yAnchor, Hux32s divisor);
HUX_API HuxStatus huxiFilterColumn_8u_AC4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep,
                                           HuxiSize dstRoiSize, const Hux32s* pKernel, int kernelSize, int yAnchor,
                                           Hux32s divisor);
HUX_API HuxStatus huxiFilterColumn_16s_C1R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                           HuxiSize dstRoiSize, const Hux32s* pKernel, int kernelSize, int yAnchor,
                                           Hux32s divisor);
HUX_API HuxStatus huxiFilterColumn_16s_C3R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                           HuxiSize dstRoiSize, const Hux32s* pKernel, int kernelSize, int yAnchor,
                                           Hux32s divisor);
HUX_API HuxStatus huxiFilterColumn_16s_C4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                           HuxiSize dstRoiSize, const Hux32s* pKernel, int kernelSize, int yAnchor,
                                           Hux32s divisor);
HUX_API HuxStatus huxiFilterColumn_16s_AC4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                            HuxiSize dstRoiSize, const Hux32s* pKernel, int kernelSize, int yAnchor,
                                            Hux32s divisor);
HUX_API HuxStatus huxiFilterColumn_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                           HuxiSize dstRoiSize, const Hux32f* pKernel, int kernelSize, int yAnchor);
HUX_API HuxStatus huxiFilterColumn_32f_C3R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                           HuxiSize dstRoiSize, const Hux32f* pKernel, int kernelSize, int yAnchor);
HUX_API HuxStatus huxiFilterColumn_32f_C4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                           HuxiSize dstRoiSize, const Hux32f* pKernel, int kernelSize, int yAnchor);
HUX_API HuxStatus huxiFilterColumn_32f_AC4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                            HuxiSize dstRoiSize, const Hux32f* pKernel, int kernelSize, int yAnchor);
HUX_API HuxStatus huxiFilterColumn32f_8u_C1R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep,
                                             HuxiSize dstRoiSize, const Hux32f* pKernel, int kernelSize, int yAnchor);
HUX_API HuxStatus huxiFilterColumn32f_8u_C3R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep,
                                             HuxiSize dstRoiSize, const Hux32f* pKernel, int kernelSize, int yAnchor);
HUX_API HuxStatus huxiFilterColumn32f_8u_C4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep,
                                             HuxiSize dstRoiSize, const Hux32f* pKernel, int kernelSize, int yAnchor);
HUX_API HuxStatus huxiFilterColumn32f_8u_AC4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep,
                                              HuxiSize dstRoiSize, const Hux32f* pKernel, int kernelSize, int yAnchor);
HUX_API HuxStatus huxiFilterColumn32f_16s_C1R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                              HuxiSize dstRoiSize, const Hux32f* pKernel, int kernelSize, int yAnchor);
HUX_API HuxStatus huxiFilterColumn32f_16s_C3R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                              HuxiSize dstRoiSize, const Hux32f* pKernel, int kernelSize, int yAnchor);
HUX_API HuxStatus huxiFilterColumn32f_16s_C4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                              HuxiSize dstRoiSize, const Hux32f* pKernel, int kernelSize, int yAnchor);
HUX_API HuxStatus huxiFilterColumn32f_16s_AC4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                               HuxiSize dstRoiSize, const Hux32f* pKernel, int kernelSize, int yAnchor);

/* ---- Fixed filters ---- */

/* ---- Rank filters ---- */

/* ---- Morphology ---- */

/* ---- Wiener filter ---- */

/* ---- Convolution ---- */

/* ---- Deconvolution ---- */

/* ---- Window functions ---- */

HUX_END_C

#endif
