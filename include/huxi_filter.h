/* Neighbourhood filters: each output pixel from a window of input pixels. Plain C99. */
#ifndef HUXI_FILTER_H
#define HUXI_FILTER_H

#include "huxdefs.h"

HUX_BEGIN_C

/* ---- Box filter and window sums ---- */

/* FilterBox: the mean of a window around each pixel.
 * Of a mask of maskSize cells, cell anchor lies over the pixel being computed, both counted from the top left: the
 * window of pixel (x, y) is the columns x - anchor.x ... x - anchor.x + maskSize.width - 1 and the rows y - anchor.y
 * ... y - anchor.y + maskSize.height - 1. pSrc is the pixel at the first output pixel, and the filter reads around the
 * region as far as its window reaches: anchor.x pixels on the left, maskSize.width - 1 - anchor.x on the right,
 * anchor.y rows above and maskSize.height - 1 - anchor.y below must be readable. There is no border mode;
 * huxiCopyReplicateBorder and its kin build bordered images. The alpha of AC4 is neither read nor written. Source and
 * destination must not overlap, but for the in-place forms (names in I).
 *
 * With s for the sum of the window and recip for 1.0f / area:
 *
 *   8u, area up to 8100    (s * mult) >> shift, where mult (12 bits) and shift stand for recip, a little above it: an
 *                          area of 3 has (2731, 13), of 9 (3641, 15), of 256 (2049, 20). An image of one value keeps it
 *   8u, larger             s * recip + 9e-6f, truncated
 *   16s                    the same of the pixels plus 32768, and 32768 less: the floor of the mean. C1, C3 and AC4
 *                          keep s in 32 bits that wrap, read as signed: beyond 32768 cells bright images may turn
 *                          negative. C4 adds s up in single precision, and 9e-6 in double precision
 *   32f                    s * recip
 *
 * Float sums (32f, 16s C4, 8u of areas above 65793 or so) are running sums whose order of additions is part of the
 * result: s = (s + entering column) - leaving column along a row, where a column's sum moves on by (sum + entering) -
 * leaving in 32f C1 and by sum + (entering - leaving) in all others. So an infinity or NaN spreads to the right and
 * down. A mask of 1 by 1 copies.
 *
 * With regions of more than 4096 pixels, and always in C4, the rows are shared out to the set number of threads (see
 * huxSetThreadCount), each of which starts its sums anew: the last bits of float sums depend on the number of threads;
 * all other results do not. The in-place forms are serial. They give what the others give into a second image, but for
 * regions of few rows: a region of fewer than anchor.y + 1 rows is computed and written down to row anchor.y, below
 * the region, where the image must be writable; and in a region of anchor.y + 2 rows all rows are given the value of
 * the first (8u, of an area up to 8100 or C4; 16s and 32f of C4; but not 8u C3 with a mask of 3 by 3), while in the
 * remaining forms the rows below the region are given the values of the region's last row.
 *
 * Steps of 16s and 32f are rounded down to whole elements, but in C4.
 * Checks, in order: null pointers (huxStsNullPtr), a step below 1 (huxStsBadStep), width or height below 1
 * (huxStsBadSize), a side of the mask below 1 (huxStsBadMaskSize), anchor outside the mask (huxStsBadAnchor), memory
 * for the sums (huxStsNoMem; no pixel has been written then).
 * Example:
 *   const HuxiSize mask = {5, 3}, inner = {size.width - 4, size.height - 2};  // its windows lie in the image
 *   const HuxiPoint middle = {2, 1};
 *   huxiFilterBox_8u_C1R(src + srcStep + 2, srcStep, dst, dstStep, inner, mask, middle);
 */
HUX_API HuxStatus huxiFilterBox_8u_C1R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                       HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiFilterBox_8u_C3R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                       HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiFilterBox_8u_AC4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                        HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiFilterBox_8u_C4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                       HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiFilterBox_16s_C1R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize,
                                        HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiFilterBox_16s_C3R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize,
                                        HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiFilterBox_16s_AC4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize,
                                         HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiFilterBox_16s_C4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize,
                                        HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiFilterBox_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize,
                                        HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiFilterBox_32f_C3R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize,
                                        HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiFilterBox_32f_AC4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize,
                                         HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiFilterBox_32f_C4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize,
                                        HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiFilterBox_8u_C1IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, HuxiSize maskSize,
                                        HuxiPoint anchor);
HUX_API HuxStatus huxiFilterBox_8u_C3IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, HuxiSize maskSize,
                                        HuxiPoint anchor);
HUX_API HuxStatus huxiFilterBox_8u_AC4IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, HuxiSize maskSize,
                                         HuxiPoint anchor);
HUX_API HuxStatus huxiFilterBox_8u_C4IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, HuxiSize maskSize,
                                        HuxiPoint anchor);
HUX_API HuxStatus huxiFilterBox_16s_C1IR(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize, HuxiSize maskSize,
                                         HuxiPoint anchor);
HUX_API HuxStatus huxiFilterBox_16s_C3IR(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize, HuxiSize maskSize,
                                         HuxiPoint anchor);
HUX_API HuxStatus huxiFilterBox_16s_AC4IR(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize, HuxiSize maskSize,
                                          HuxiPoint anchor);
HUX_API HuxStatus huxiFilterBox_16s_C4IR(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize, HuxiSize maskSize,
                                         HuxiPoint anchor);
HUX_API HuxStatus huxiFilterBox_32f_C1IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize, HuxiSize maskSize,
                                         HuxiPoint anchor);
HUX_API HuxStatus huxiFilterBox_32f_C3IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize, HuxiSize maskSize,
                                         HuxiPoint anchor);
HUX_API HuxStatus huxiFilterBox_32f_AC4IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize, HuxiSize maskSize,
                                          HuxiPoint anchor);
HUX_API HuxStatus huxiFilterBox_32f_C4IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize, HuxiSize maskSize,
                                         HuxiPoint anchor);

/* SumWindowRow, SumWindowColumn: the sum of each channel over maskSize pixels along a row, or down a column, as a
 * float.
 * The window of a pixel begins anchor pixels before it: it reaches anchor pixels to the left and maskSize - 1 - anchor
 * to the right, in columns up and down likewise, and these must be readable around the region. The first sum of each
 * row, or column, is added up in single precision; each further one is that of the pixel before plus the difference of
 * what enters and what leaves. This is exact, and shows in nothing, as long as sums stay within 2^24: up to 65793
 * pixels of 8u, 512 of 16s. The destination has as many channels as the source.
 * Checks, in order: null pointers (huxStsNullPtr), maskSize below 1 (huxStsBadMaskSize), anchor below 0 or not below
 * maskSize (huxStsBadAnchor). Steps, any number of bytes, and dstRoiSize are not checked: a width or height below 1 is
 * no work. */
HUX_API HuxStatus huxiSumWindowRow_8u32f_C1R(const Hux8u* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                             HuxiSize dstRoiSize, int maskSize, int anchor);
HUX_API HuxStatus huxiSumWindowRow_8u32f_C3R(const Hux8u* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                             HuxiSize dstRoiSize, int maskSize, int anchor);
HUX_API HuxStatus huxiSumWindowRow_8u32f_C4R(const Hux8u* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                             HuxiSize dstRoiSize, int maskSize, int anchor);
HUX_API HuxStatus huxiSumWindowRow_16s32f_C1R(const Hux16s* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                              HuxiSize dstRoiSize, int maskSize, int anchor);
HUX_API HuxStatus huxiSumWindowRow_16s32f_C3R(const Hux16s* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                              HuxiSize dstRoiSize, int maskSize, int anchor);
HUX_API HuxStatus huxiSumWindowRow_16s32f_C4R(const Hux16s* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                              HuxiSize dstRoiSize, int maskSize, int anchor);
HUX_API HuxStatus huxiSumWindowColumn_8u32f_C1R(const Hux8u* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                                HuxiSize dstRoiSize, int maskSize, int anchor);
HUX_API HuxStatus huxiSumWindowColumn_8u32f_C3R(const Hux8u* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                                HuxiSize dstRoiSize, int maskSize, int anchor);
HUX_API HuxStatus huxiSumWindowColumn_8u32f_C4R(const Hux8u* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                                HuxiSize dstRoiSize, int maskSize, int anchor);
HUX_API HuxStatus huxiSumWindowColumn_16s32f_C1R(const Hux16s* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                                 HuxiSize dstRoiSize, int maskSize, int anchor);
HUX_API HuxStatus huxiSumWindowColumn_16s32f_C3R(const Hux16s* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                                 HuxiSize dstRoiSize, int maskSize, int anchor);
HUX_API HuxStatus huxiSumWindowColumn_16s32f_C4R(const Hux16s* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                                 HuxiSize dstRoiSize, int maskSize, int anchor);

/* ---- General linear filters ---- */

/* Filter, FilterRow, FilterColumn, and Filter32f, FilterRow32f, FilterColumn32f: convolution with a kernel of the
 * caller's.
 *   dst(x, y) = sum over all taps (i, j) of pKernel[j * kernelSize.width + i] * src(x + anchor.x - i, y + anchor.y - j)
 *   in one dimension     sum over i of pKernel[i] * src(x + xAnchor - i, y), or src(x, y + yAnchor - i)
 * The kernel is flipped, and the anchor is the cell of it that meets (x, y). So the source is read kernelSize - 1 -
 * anchor pixels to the left and above the region, and anchor pixels to the right and below it; these pixels must be
 * there. Any anchor is taken, also one outside the kernel, which moves the window away from the pixel. Channels are
 * filtered alike, but for the alpha of AC4, which is left as it was in the destination. The images must not overlap.
 * 16s and 32f move from row to row in whole elements. Parallel: the result is the same for any number of threads. Of
 * all these functions only those of 16s with integer taps take memory.
 *
 * Integer taps and divisor on 8u: the sum is taken in 32 bits that wrap. It is divided, rounded half up, and limited
 * to 0..255. A divisor of 1 or of another power of two is exact; any other multiplies the sum, as a float, by 1 /
 * divisor in single precision. A negative divisor makes negative sums positive.
 *
 * Integer taps and divisor on 16s: as with float taps, after each tap was multiplied by 1 / divisor in single
 * precision.
 *
 * 32f, and float taps on 8u and 16s (Filter32f and its kin): the sum is taken in single precision from 0 on, each
 * product and each addition rounded, in the order of the source pixels, row by row and left to right. 32f stores it as
 * it is. 8u adds 0.5 to a positive sum and truncates, within 0..255, a NaN as 0; 16s rounds likewise, but half away
 * from zero, within -32768..32767, a NaN as -32768.
 *
 * Checks, in order, all but 16s with integer taps: FilterColumn of C3 and C4: width below 1 (huxStsBadSize); null
 * pointers (huxStsNullPtr), width or height of the region or the kernel below 1 (huxStsBadSize), divisor of 0
 * (huxStsBadDivisor), srcStep below the bytes of the row that is read, of as many pixels as the region and the kernel
 * are wide together less 1, or in FilterColumn as the region is wide, then dstStep below those of a row of the region
 * (huxStsBadStep). 16s with integer taps: the width in FilterColumn of C3 and C4 likewise, pKernel, the size of the
 * kernel, divisor, memory (huxStsNoMem), and then all of the others. With any of these nothing is written.
 * Example:
 *   const Hux32s emboss[9] = {1, 1, 0, 1, 0, -1, 0, -1, -1};  // flipped: the last tap meets the pixel at the top left
 *   const HuxiSize kernel = {3, 3}, inner = {size.width - 2, size.height - 2};
 *   const HuxiPoint middle = {1, 1};
 *   huxiFilter_8u_C1R(src + srcStep + 1, srcStep, dst, dstStep, inner, emboss, kernel, middle, 1);
 */
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

/* Fixed filters: filters of 3 by 3 or 5 by 5 pixels, whose kernels are built in.
 * The window lies with its middle over the pixel: pSrc is the pixel at the first output pixel, and one pixel around
 * the region (3 by 3) or two (5 by 5) must be readable; Roberts reads the row above and one column. There is no border
 * mode: huxiCopyReplicateBorder and its kin build bordered images. Channels are filtered for themselves; the alpha of
 * AC4 is not written. Source and destination must not overlap. Steps are in bytes, those of 16s and 32f rounded down
 * to whole elements.
 *
 * Weights are drawn as they lie over the image. Of integers, t stands for the weighted sum. 8u and 16s: t, divided as
 * told, then limited to the type's range, so that a negative 8u result is 0. 8u16s and 8s16s: t as it is, it always
 * fits. 32f: single precision, operation by operation in the order told, with p for the pixels of a row from left to
 * right (p0 p1 p2, or p0 ... p4), q for the pixel itself, and r for the results of the rows from top to bottom.
 *
 * Forms with a mask take huxMskSize3x3 or huxMskSize5x5, forms without one are of 3 by 3. A step is not compared with
 * the length of a row. No memory is taken, but by the 5 by 5 forms of Lowpass and Hipass on 32f.
 * Example:
 *   const HuxiSize inner = {size.width - 2, size.height - 2};
 *   huxiFilterSobelHoriz_8u_C1R(src + srcStep + 1, srcStep, dst, dstStep, inner);
 */

/* FilterPrewittVert, FilterPrewittHoriz: edges between columns (Vert) and between rows (Horiz).
 * 8u shows the edges of one direction: Vert those that fall from left to right, Horiz those that rise downwards.
 *
 *   Vert  1 0 -1    Horiz -1 -1 -1    32f, Vert   row p0 - p2, then r0 + r1 + r2
 *         1 0 -1           0  0  0         Horiz  row p0 + p1 + p2, then r2 - r0
 *         1 0 -1           1  1  1
 *
 * Checks, in order: null pointers (huxStsNullPtr), width or height below 1 (huxStsBadSize), a step below 1
 * (huxStsBadStep). */
HUX_API HuxStatus huxiFilterPrewittVert_8u_C1R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep,
                                               HuxiSize roiSize);
HUX_API HuxStatus huxiFilterPrewittVert_8u_C3R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep,
                                               HuxiSize roiSize);
HUX_API HuxStatus huxiFilterPrewittVert_8u_C4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep,
                                               HuxiSize roiSize);
HUX_API HuxStatus huxiFilterPrewittVert_8u_AC4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep,
                                                HuxiSize roiSize);
HUX_API HuxStatus huxiFilterPrewittVert_16s_C1R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                                HuxiSize roiSize);
HUX_API HuxStatus huxiFilterPrewittVert_16s_C3R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                                HuxiSize roiSize);
HUX_API HuxStatus huxiFilterPrewittVert_16s_C4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                                HuxiSize roiSize);
HUX_API HuxStatus huxiFilterPrewittVert_16s_AC4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                                 HuxiSize roiSize);
HUX_API HuxStatus huxiFilterPrewittVert_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                                HuxiSize roiSize);
HUX_API HuxStatus huxiFilterPrewittVert_32f_C3R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                                HuxiSize roiSize);
HUX_API HuxStatus huxiFilterPrewittVert_32f_C4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                                HuxiSize roiSize);
HUX_API HuxStatus huxiFilterPrewittVert_32f_AC4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                                 HuxiSize roiSize);
HUX_API HuxStatus huxiFilterPrewittHoriz_8u_C1R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep,
                                                HuxiSize roiSize);
HUX_API HuxStatus huxiFilterPrewittHoriz_8u_C3R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep,
                                                HuxiSize roiSize);
HUX_API HuxStatus huxiFilterPrewittHoriz_8u_C4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep,
                                                HuxiSize roiSize);
HUX_API HuxStatus huxiFilterPrewittHoriz_8u_AC4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep,
                                                 HuxiSize roiSize);
HUX_API HuxStatus huxiFilterPrewittHoriz_16s_C1R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                                 HuxiSize roiSize);
HUX_API HuxStatus huxiFilterPrewittHoriz_16s_C3R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                                 HuxiSize roiSize);
HUX_API HuxStatus huxiFilterPrewittHoriz_16s_C4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                                 HuxiSize roiSize);
HUX_API HuxStatus huxiFilterPrewittHoriz_16s_AC4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                                  HuxiSize roiSize);
HUX_API HuxStatus huxiFilterPrewittHoriz_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                                 HuxiSize roiSize);
HUX_API HuxStatus huxiFilterPrewittHoriz_32f_C3R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                                 HuxiSize roiSize);
HUX_API HuxStatus huxiFilterPrewittHoriz_32f_C4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                                 HuxiSize roiSize);
HUX_API HuxStatus huxiFilterPrewittHoriz_32f_AC4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                                  HuxiSize roiSize);

/* FilterSobelVert, FilterSobelHoriz: edges between columns and between rows, those near the pixel weighted more.
 * SobelVertMask and SobelHorizMask of 32f take a mask, and so do the forms of 8u16s and 8s16s.
 *
 *   Vert  1 0 -1    Horiz -1 -2 -1    32f, Vert   row p0 - p2, then r0 + r2 + r1 + r1
 *         2 0 -2           0  0  0         Horiz  row p0 + p2 + p1 + p1, then r2 - r0
 *         1 0 -1           1  2  1
 *
 * 5 by 5 weighs columns by rows, as the outer product of
 *
 *   Vert   1 2 0 -2 -1 along rows, 1 4 6 4 1 down columns
 *   Horiz  1 4 6 4 1 along rows, -1 -2 0 2 1 down columns
 *
 *   32f: 1 4 6 4 1 is a0 + a4 + (a1 + a3) * 4 + a2 * 6, with a for p or r; 1 2 0 -2 -1 of p is p0 - p4 + d + d with
 *        d = p1 - p3, and -1 -2 0 2 1 of r is r4 - r0 + d + d with d = r3 - r1
 *
 * Checks, in order: null pointers (huxStsNullPtr), width or height below 1 (huxStsBadSize), a step below 1
 * (huxStsBadStep), 8u16s and 8s16s: mask neither of the two (huxStsBadMaskSize). SobelVertMask and SobelHorizMask take
 * any mask but huxMskSize3x3 for huxMskSize5x5. */
HUX_API HuxStatus huxiFilterSobelVert_8u_C1R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep,
                                             HuxiSize roiSize);
HUX_API HuxStatus huxiFilterSobelVert_8u_C3R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep,
                                             HuxiSize roiSize);
HUX_API HuxStatus huxiFilterSobelVert_8u_C4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep,
                                             HuxiSize roiSize);
HUX_API HuxStatus huxiFilterSobelVert_8u_AC4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep,
                                              HuxiSize roiSize);
HUX_API HuxStatus huxiFilterSobelVert_16s_C1R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                              HuxiSize roiSize);
HUX_API HuxStatus huxiFilterSobelVert_16s_C3R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                              HuxiSize roiSize);
HUX_API HuxStatus huxiFilterSobelVert_16s_C4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                              HuxiSize roiSize);
HUX_API HuxStatus huxiFilterSobelVert_16s_AC4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                               HuxiSize roiSize);
HUX_API HuxStatus huxiFilterSobelVert_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                              HuxiSize roiSize);
HUX_API HuxStatus huxiFilterSobelVert_32f_C3R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                              HuxiSize roiSize);
HUX_API HuxStatus huxiFilterSobelVert_32f_C4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                              HuxiSize roiSize);
HUX_API HuxStatus huxiFilterSobelVert_32f_AC4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                               HuxiSize roiSize);
HUX_API HuxStatus huxiFilterSobelVert_8u16s_C1R(const Hux8u* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                                HuxiSize roiSize, HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterSobelVert_8s16s_C1R(const Hux8s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                                HuxiSize roiSize, HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterSobelHoriz_8u_C1R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep,
                                              HuxiSize roiSize);
HUX_API HuxStatus huxiFilterSobelHoriz_8u_C3R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep,
                                              HuxiSize roiSize);
HUX_API HuxStatus huxiFilterSobelHoriz_8u_C4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep,
                                              HuxiSize roiSize);
HUX_API HuxStatus huxiFilterSobelHoriz_8u_AC4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep,
                                               HuxiSize roiSize);
HUX_API HuxStatus huxiFilterSobelHoriz_16s_C1R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                               HuxiSize roiSize);
HUX_API HuxStatus huxiFilterSobelHoriz_16s_C3R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                               HuxiSize roiSize);
HUX_API HuxStatus huxiFilterSobelHoriz_16s_C4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                               HuxiSize roiSize);
HUX_API HuxStatus huxiFilterSobelHoriz_16s_AC4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                                HuxiSize roiSize);
HUX_API HuxStatus huxiFilterSobelHoriz_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                               HuxiSize roiSize);
HUX_API HuxStatus huxiFilterSobelHoriz_32f_C3R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                               HuxiSize roiSize);
HUX_API HuxStatus huxiFilterSobelHoriz_32f_C4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                               HuxiSize roiSize);
HUX_API HuxStatus huxiFilterSobelHoriz_32f_AC4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                                HuxiSize roiSize);
HUX_API HuxStatus huxiFilterSobelHoriz_8u16s_C1R(const Hux8u* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                                 HuxiSize roiSize, HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterSobelHoriz_8s16s_C1R(const Hux8s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                                 HuxiSize roiSize, HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterSobelVertMask_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                                  HuxiSize roiSize, HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterSobelHorizMask_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                                   HuxiSize roiSize, HuxiMaskSize mask);

/* FilterSobelVertSecond, FilterSobelHorizSecond, FilterSobelCross: second derivatives across columns, across rows,
 * along the diagonals.
 * As outer products, along rows by down columns,
 *
 *               3 by 3                5 by 5
 *   VertSecond  1 -2 1 by 1 2 1       1 0 -2 0 1 by 1 4 6 4 1
 *   HorizSecond 1 2 1 by 1 -2 1       1 4 6 4 1 by 1 0 -2 0 1
 *   Cross       1 0 -1 by -1 0 1      1 2 0 -2 -1 by -1 -2 0 2 1
 *
 * 32f: 1 -2 1 is a0 + a2 - a1 - a1, and 1 0 -2 0 1 is a0 + a4 - a2 - a2, with a for p or r; the others as in
 * FilterSobelVert.
 * Checks, in order: null pointers (huxStsNullPtr), width or height below 1 (huxStsBadSize), a step below 1
 * (huxStsBadStep), 8u16s and 8s16s: mask neither huxMskSize3x3 nor huxMskSize5x5 (huxStsBadMaskSize). 32f takes any
 * mask but huxMskSize3x3 for huxMskSize5x5. */
HUX_API HuxStatus huxiFilterSobelVertSecond_8u16s_C1R(const Hux8u* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                                      HuxiSize roiSize, HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterSobelVertSecond_8s16s_C1R(const Hux8s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                                      HuxiSize roiSize, HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterSobelVertSecond_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                                    HuxiSize roiSize, HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterSobelHorizSecond_8u16s_C1R(const Hux8u* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                                       HuxiSize roiSize, HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterSobelHorizSecond_8s16s_C1R(const Hux8s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                                       HuxiSize roiSize, HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterSobelHorizSecond_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                                     HuxiSize roiSize, HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterSobelCross_8u16s_C1R(const Hux8u* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                                 HuxiSize roiSize, HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterSobelCross_8s16s_C1R(const Hux8s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                                 HuxiSize roiSize, HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterSobelCross_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                               HuxiSize roiSize, HuxiMaskSize mask);

/* FilterScharrVert, FilterScharrHoriz: edges with a response that hardly depends on their angle.
 * Vert has the sign opposite to that of PrewittVert and SobelVert: it is positive where the image rises from left to
 * right.
 *
 *   Vert   -3 0  3    Horiz -3 -10 -3    32f, Vert   row p2 - p0, then (r0 + r2) * 3 + r1 * 10
 *         -10 0 10           0   0  0         Horiz  row (p0 + p2) * 3 + p1 * 10, then r2 - r0
 *          -3 0  3           3  10  3
 *
 * Checks, in order: null pointers (huxStsNullPtr), width or height below 1 (huxStsBadSize), a step below 1
 * (huxStsBadStep). */
HUX_API HuxStatus huxiFilterScharrVert_8u16s_C1R(const Hux8u* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                                 HuxiSize roiSize);
HUX_API HuxStatus huxiFilterScharrVert_8s16s_C1R(const Hux8s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                                 HuxiSize roiSize);
HUX_API HuxStatus huxiFilterScharrVert_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                               HuxiSize roiSize);
HUX_API HuxStatus huxiFilterScharrHoriz_8u16s_C1R(const Hux8u* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                                  HuxiSize roiSize);
HUX_API HuxStatus huxiFilterScharrHoriz_8s16s_C1R(const Hux8s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                                  HuxiSize roiSize);
HUX_API HuxStatus huxiFilterScharrHoriz_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                                HuxiSize roiSize);

/* FilterRobertsDown, FilterRobertsUp: the pixel less its neighbour in the row above, on the left (Down) or on the
 * right (Up).
 *
 *   Down  -1 0    Up  0 -1     over the pixel lies the 1
 *          0 1        1  0
 *
 * Checks, in order: null pointers (huxStsNullPtr), width or height below 1 (huxStsBadSize), a step below 1
 * (huxStsBadStep). */
HUX_API HuxStatus huxiFilterRobertsDown_8u_C1R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep,
                                               HuxiSize roiSize);
HUX_API HuxStatus huxiFilterRobertsDown_8u_C3R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep,
                                               HuxiSize roiSize);
HUX_API HuxStatus huxiFilterRobertsDown_8u_AC4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep,
                                                HuxiSize roiSize);
HUX_API HuxStatus huxiFilterRobertsDown_16s_C1R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                                HuxiSize roiSize);
HUX_API HuxStatus huxiFilterRobertsDown_16s_C3R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                                HuxiSize roiSize);
HUX_API HuxStatus huxiFilterRobertsDown_16s_AC4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                                 HuxiSize roiSize);
HUX_API HuxStatus huxiFilterRobertsDown_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                                HuxiSize roiSize);
HUX_API HuxStatus huxiFilterRobertsDown_32f_C3R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                                HuxiSize roiSize);
HUX_API HuxStatus huxiFilterRobertsDown_32f_AC4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                                 HuxiSize roiSize);
HUX_API HuxStatus huxiFilterRobertsUp_8u_C1R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep,
                                             HuxiSize roiSize);
HUX_API HuxStatus huxiFilterRobertsUp_8u_C3R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep,
                                             HuxiSize roiSize);
HUX_API HuxStatus huxiFilterRobertsUp_8u_AC4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep,
                                              HuxiSize roiSize);
HUX_API HuxStatus huxiFilterRobertsUp_16s_C1R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                              HuxiSize roiSize);
HUX_API HuxStatus huxiFilterRobertsUp_16s_C3R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                              HuxiSize roiSize);
HUX_API HuxStatus huxiFilterRobertsUp_16s_AC4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                               HuxiSize roiSize);
HUX_API HuxStatus huxiFilterRobertsUp_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                              HuxiSize roiSize);
HUX_API HuxStatus huxiFilterRobertsUp_32f_C3R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                              HuxiSize roiSize);
HUX_API HuxStatus huxiFilterRobertsUp_32f_AC4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                               HuxiSize roiSize);

/* FilterLaplace: how far a pixel is above its surroundings.
 *
 *   3 by 3  -1 -1 -1    5 by 5  -1 -3 -4 -3 -1
 *           -1  8 -1            -3  0  6  0 -3
 *           -1 -1 -1            -4  6 20  6 -4
 *                               -3  0  6  0 -3
 *                               -1 -3 -4 -3 -1
 *
 * 32f, 3 by 3: rows p0 + p1 + p2, then q * 9 - r0 - r1 - r2. 5 by 5: the products of each row are added up from left
 * to right, without those of weight 0, then r0 + r1 + r2 + r3 + r4.
 * Checks, in order: null pointers (huxStsNullPtr), width or height below 1 (huxStsBadSize), a step below 1
 * (huxStsBadStep), mask neither huxMskSize3x3 nor huxMskSize5x5 (huxStsBadMaskSize). */
HUX_API HuxStatus huxiFilterLaplace_8u_C1R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                           HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterLaplace_8u_C3R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                           HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterLaplace_8u_C4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                           HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterLaplace_8u_AC4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                            HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterLaplace_16s_C1R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                            HuxiSize roiSize, HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterLaplace_16s_C3R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                            HuxiSize roiSize, HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterLaplace_16s_C4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                            HuxiSize roiSize, HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterLaplace_16s_AC4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                             HuxiSize roiSize, HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterLaplace_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                            HuxiSize roiSize, HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterLaplace_32f_C3R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                            HuxiSize roiSize, HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterLaplace_32f_C4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                            HuxiSize roiSize, HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterLaplace_32f_AC4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                             HuxiSize roiSize, HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterLaplace_8u16s_C1R(const Hux8u* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                              HuxiSize roiSize, HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterLaplace_8s16s_C1R(const Hux8s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                              HuxiSize roiSize, HuxiMaskSize mask);

/* FilterGauss: the mean of the window, weighted by distance.
 *
 *   3 by 3  1 2 1    over 16    5 by 5   2  7  12  7  2    over 571
 *           2 4 2                        7 31  52 31  7
 *           1 2 1                       12 52 127 52 12
 *                                        7 31  52 31  7
 *                                        2  7  12  7  2
 *
 * Integers are rounded to nearest: ties go to even in 3 by 3; there are none in 5 by 5, (t + 285) / 571 rounded down.
 * 32f, 3 by 3: rows p0 + p2 + p1 + p1, then (r0 + r2 + r1 + r1) * 0.0625. 5 by 5: the weights are the floats nearest
 * to 2 / 571 and so on, the products of each row are added up from left to right, then r0 + r1 + r2 + r3 + r4.
 * Checks, in order: null pointers (huxStsNullPtr), width or height below 1 (huxStsBadSize), a step below 1
 * (huxStsBadStep), mask neither huxMskSize3x3 nor huxMskSize5x5 (huxStsBadMaskSize). */
HUX_API HuxStatus huxiFilterGauss_8u_C1R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                         HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterGauss_8u_C3R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                         HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterGauss_8u_C4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                         HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterGauss_8u_AC4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                          HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterGauss_16s_C1R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize,
                                          HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterGauss_16s_C3R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize,
                                          HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterGauss_16s_C4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize,
                                          HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterGauss_16s_AC4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize,
                                           HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterGauss_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize,
                                          HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterGauss_32f_C3R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize,
                                          HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterGauss_32f_C4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize,
                                          HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterGauss_32f_AC4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize,
                                           HuxiMaskSize mask);

/* FilterLowpass: the mean of the window.
 * Integers are rounded to nearest: (t + 4) / 9 and (t + 12) / 25, rounded down.
 * 32f, 3 by 3: rows p0 + p1 + p2, then (r0 + r1 + r2) * 0.1111111, a little less than one ninth. 5 by 5: s * 0.04,
 * where the sum s of the window runs. Along a row v = p0 + p1 + p2 + p3 for the leftmost window, then at each pixel v
 * = v + p4, which is the row's sum, and v = v - p0. Down a column s = r0 + r1 + r2 + r3 + r4 for the topmost window,
 * then s = s - (sum of the row that leaves) + (sum of the row that enters). So an infinity or a NaN remains in all
 * sums to its right and, from there on, below.
 * Checks, in order: null pointers (huxStsNullPtr), width or height below 1 (huxStsBadSize), a step below 1
 * (huxStsBadStep), mask neither huxMskSize3x3 nor huxMskSize5x5 (huxStsBadMaskSize), 32f 5 by 5: memory (huxStsNoMem;
 * nothing is written then). */
HUX_API HuxStatus huxiFilterLowpass_8u_C1R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                           HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterLowpass_8u_C3R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                           HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterLowpass_8u_AC4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                            HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterLowpass_16s_C1R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                            HuxiSize roiSize, HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterLowpass_16s_C3R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                            HuxiSize roiSize, HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterLowpass_16s_AC4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                             HuxiSize roiSize, HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterLowpass_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                            HuxiSize roiSize, HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterLowpass_32f_C3R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                            HuxiSize roiSize, HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterLowpass_32f_AC4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                             HuxiSize roiSize, HuxiMaskSize mask);

/* FilterHipass: the pixel, times the number of pixels in the window, less their sum.
 * 3 by 3 is the Laplace filter; 5 by 5 has 24 in the middle and -1 around it. 32f, 5 by 5: q * 25 - s, with the
 * running sum s of FilterLowpass.
 * Checks, in order: null pointers (huxStsNullPtr), width or height below 1 (huxStsBadSize), a step below 1
 * (huxStsBadStep), mask neither huxMskSize3x3 nor huxMskSize5x5 (huxStsBadMaskSize), 32f 5 by 5: memory (huxStsNoMem;
 * nothing is written then). */
HUX_API HuxStatus huxiFilterHipass_8u_C1R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                          HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterHipass_8u_C3R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                          HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterHipass_8u_C4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                          HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterHipass_8u_AC4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                           HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterHipass_16s_C1R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize,
                                           HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterHipass_16s_C3R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize,
                                           HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterHipass_16s_C4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize,
                                           HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterHipass_16s_AC4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                            HuxiSize roiSize, HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterHipass_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize,
                                           HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterHipass_32f_C3R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize,
                                           HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterHipass_32f_C4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize,
                                           HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterHipass_32f_AC4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                            HuxiSize roiSize, HuxiMaskSize mask);

/* FilterSharpen: the pixel plus an eighth of its 3 by 3 Laplace filter.
 *
 *   -1 -1 -1    over 8, ties to even; limited to the type's range behind that
 *   -1 16 -1
 *   -1 -1 -1    32f: rows p0 + p1 + p2, then (q * 17 - r0 - r1 - r2) * 0.125
 *
 * Checks, in order: null pointers (huxStsNullPtr), width or height below 1 (huxStsBadSize), a step below 1
 * (huxStsBadStep). */
HUX_API HuxStatus huxiFilterSharpen_8u_C1R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiFilterSharpen_8u_C3R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiFilterSharpen_8u_C4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiFilterSharpen_8u_AC4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiFilterSharpen_16s_C1R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                            HuxiSize roiSize);
HUX_API HuxStatus huxiFilterSharpen_16s_C3R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                            HuxiSize roiSize);
HUX_API HuxStatus huxiFilterSharpen_16s_C4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                            HuxiSize roiSize);
HUX_API HuxStatus huxiFilterSharpen_16s_AC4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                             HuxiSize roiSize);
HUX_API HuxStatus huxiFilterSharpen_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                            HuxiSize roiSize);
HUX_API HuxStatus huxiFilterSharpen_32f_C3R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                            HuxiSize roiSize);
HUX_API HuxStatus huxiFilterSharpen_32f_C4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                            HuxiSize roiSize);
HUX_API HuxStatus huxiFilterSharpen_32f_AC4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                             HuxiSize roiSize);

/* ---- Rank filters ---- */

/* Rank filters: order filters of windows of pixels.
 * All walk the region with the rows of a window around each pixel: the window of output (x, y) covers the source
 * columns x - anchor.x to x - anchor.x + maskSize.width - 1 and the source rows y - anchor.y to y - anchor.y +
 * maskSize.height - 1, counted from pSrc, which addresses the pixel under the first output pixel. No filter extends
 * its image: the caller provides readable pixels around the region as far as the windows reach, and nothing beyond
 * them is read (huxiCopyReplicateBorder and its kin build such an image). Forms with a HuxiMaskSize are centred; they
 * reach 1 pixel (a 3 in its digits) or 2 pixels (a 5) to both sides in the directions of the mask. Source and
 * destination must not overlap. Steps are in bytes; AC4 forms leave the fourth element of the destination alone.
 * Channels are filtered independently, except in FilterMedianColor. */

/* FilterMedian: the median of the maskSize.width by maskSize.height values of each channel.
 * Both sides are odd, so that there is a value in the middle. A mask of 1 by 1 copies. The time for a pixel does not
 * grow with the area of the mask: masks of 3 by 3 and 5 by 5, and rows and columns of 3 and 5, are the fastest.
 * Checks, in order: null pointers (huxStsNullPtr), width or height below 1 (huxStsBadSize), a step below 1
 * (huxStsBadStep), a side of the mask below 1 or even (huxStsBadMaskSize), anchor outside the mask (huxStsBadAnchor),
 * 16s where the mask is none of those named above: memory (huxStsNoMem; nothing is written then).
 * Example:
 *   const HuxiSize mask = {7, 7}, inner = {size.width - 6, size.height - 6};
 *   const HuxiPoint middle = {3, 3};
 *   huxiFilterMedian_8u_C1R(src + 3 * srcStep + 3, srcStep, dst, dstStep, inner, mask, middle);
 */
HUX_API HuxStatus huxiFilterMedian_8u_C1R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize dstRoiSize,
                                          HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiFilterMedian_8u_C3R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize dstRoiSize,
                                          HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiFilterMedian_8u_C4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize dstRoiSize,
                                          HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiFilterMedian_8u_AC4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep,
                                           HuxiSize dstRoiSize, HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiFilterMedian_16s_C1R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                           HuxiSize dstRoiSize, HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiFilterMedian_16s_C3R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                           HuxiSize dstRoiSize, HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiFilterMedian_16s_C4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                           HuxiSize dstRoiSize, HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiFilterMedian_16s_AC4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                            HuxiSize dstRoiSize, HuxiSize maskSize, HuxiPoint anchor);

/* FilterMedianHoriz, FilterMedianVert, FilterMedianCross: the median of a few neighbours in a row, in a column, or in
 * both.
 * Horiz: 3 or 5 neighbours in the row (huxMskSize3x1, huxMskSize5x1). Vert: in the column (huxMskSize1x3,
 * huxMskSize1x5). Cross: the row and the column through the pixel, 5 (huxMskSize3x3) or 9 pixels (huxMskSize5x5).
 * Checks, in order: null pointers (huxStsNullPtr), width or height below 1 (huxStsBadSize), a step below 1
 * (huxStsBadStep), any other mask (huxStsBadMaskSize). */
HUX_API HuxStatus huxiFilterMedianHoriz_8u_C1R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep,
                                               HuxiSize dstRoiSize, HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterMedianHoriz_8u_C3R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep,
                                               HuxiSize dstRoiSize, HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterMedianHoriz_8u_C4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep,
                                               HuxiSize dstRoiSize, HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterMedianHoriz_8u_AC4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep,
                                                HuxiSize dstRoiSize, HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterMedianHoriz_16s_C1R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                                HuxiSize dstRoiSize, HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterMedianHoriz_16s_C3R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                                HuxiSize dstRoiSize, HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterMedianHoriz_16s_C4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                                HuxiSize dstRoiSize, HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterMedianHoriz_16s_AC4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                                 HuxiSize dstRoiSize, HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterMedianVert_8u_C1R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep,
                                              HuxiSize dstRoiSize, HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterMedianVert_8u_C3R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep,
                                              HuxiSize dstRoiSize, HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterMedianVert_8u_C4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep,
                                              HuxiSize dstRoiSize, HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterMedianVert_8u_AC4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep,
                                               HuxiSize dstRoiSize, HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterMedianVert_16s_C1R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                               HuxiSize dstRoiSize, HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterMedianVert_16s_C3R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                               HuxiSize dstRoiSize, HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterMedianVert_16s_C4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                               HuxiSize dstRoiSize, HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterMedianVert_16s_AC4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                                HuxiSize dstRoiSize, HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterMedianCross_8u_C1R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep,
                                               HuxiSize dstRoiSize, HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterMedianCross_8u_C3R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep,
                                               HuxiSize dstRoiSize, HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterMedianCross_8u_AC4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep,
                                                HuxiSize dstRoiSize, HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterMedianCross_16s_C1R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                                HuxiSize dstRoiSize, HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterMedianCross_16s_C3R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                                HuxiSize dstRoiSize, HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterMedianCross_16s_AC4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                                 HuxiSize dstRoiSize, HuxiMaskSize mask);

/* FilterMedianColor: of the pixels around it, the one whose colour is the nearest to all others.
 * These are 9 (huxMskSize3x3) or 25 (huxMskSize5x5), and the sum of its distances |r - r'| + |g - g'| + |b - b'| to
 * them is the least. No colour is made that the image does not have. Of pixels with equal sums the first stands, rows
 * top to bottom, left to right. 8u and 16s sums are exact; 32f sums are of single precision, and a pixel whose sum is
 * NaN is taken only where it is the first.
 * Checks, in order: null pointers (huxStsNullPtr), width or height below 1 (huxStsBadSize), a step below 1
 * (huxStsBadStep), any other mask (huxStsBadMaskSize). */
HUX_API HuxStatus huxiFilterMedianColor_8u_C3R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep,
                                               HuxiSize dstRoiSize, HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterMedianColor_8u_AC4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep,
                                                HuxiSize dstRoiSize, HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterMedianColor_16s_C3R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                                HuxiSize dstRoiSize, HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterMedianColor_16s_AC4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                                 HuxiSize dstRoiSize, HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterMedianColor_32f_C3R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                                HuxiSize dstRoiSize, HuxiMaskSize mask);
HUX_API HuxStatus huxiFilterMedianColor_32f_AC4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                                 HuxiSize dstRoiSize, HuxiMaskSize mask);

/* FilterMin, FilterMax: the least or the greatest value of each channel over the mask.
 * The mask has any size from 1 by 1, where it copies; the time for a pixel does not grow with it. On 32f the extreme
 * of each row of the window is found from left to right, then the extreme of these from the top down, and a candidate
 * takes the place of what was found before it unless that is less (greater): so of 0 and -0 the later stands, and a
 * NaN replaces what came before it and gives way to what follows.
 * Checks, in order: null pointers (huxStsNullPtr), width or height below 1 (huxStsBadSize), a step below 1
 * (huxStsBadStep), a side of the mask below 1 (huxStsBadMaskSize), anchor outside the mask (huxStsBadAnchor), masks
 * other than 1 by 1 and 3 by 3: memory (huxStsNoMem; nothing is written then). */
HUX_API HuxStatus huxiFilterMin_8u_C1R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize dstRoiSize,
                                       HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiFilterMin_8u_C3R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize dstRoiSize,
                                       HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiFilterMin_8u_C4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize dstRoiSize,
                                       HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiFilterMin_8u_AC4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize dstRoiSize,
                                        HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiFilterMin_16s_C1R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize dstRoiSize,
                                        HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiFilterMin_16s_C3R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize dstRoiSize,
                                        HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiFilterMin_16s_C4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize dstRoiSize,
                                        HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiFilterMin_16s_AC4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                         HuxiSize dstRoiSize, HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiFilterMin_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize dstRoiSize,
                                        HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiFilterMin_32f_C3R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize dstRoiSize,
                                        HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiFilterMin_32f_C4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize dstRoiSize,
                                        HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiFilterMin_32f_AC4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                         HuxiSize dstRoiSize, HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiFilterMax_8u_C1R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize dstRoiSize,
                                       HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiFilterMax_8u_C3R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize dstRoiSize,
                                       HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiFilterMax_8u_C4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize dstRoiSize,
                                       HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiFilterMax_8u_AC4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize dstRoiSize,
                                        HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiFilterMax_16s_C1R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize dstRoiSize,
                                        HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiFilterMax_16s_C3R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize dstRoiSize,
                                        HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiFilterMax_16s_C4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize dstRoiSize,
                                        HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiFilterMax_16s_AC4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                         HuxiSize dstRoiSize, HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiFilterMax_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize dstRoiSize,
                                        HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiFilterMax_32f_C3R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize dstRoiSize,
                                        HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiFilterMax_32f_C4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize dstRoiSize,
                                        HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiFilterMax_32f_AC4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                         HuxiSize dstRoiSize, HuxiSize maskSize, HuxiPoint anchor);

/* ---- Morphology ---- */

/* Erode3x3, Dilate3x3: the least (Erode3x3) or the greatest value of each channel over the 9 pixels around each pixel.
 * The pixels around the region must be readable; no others are read. Steps are in bytes; AC4 forms leave the fourth
 * element of the destination alone. On 32f a result starts from the largest (Dilate: the lowest) finite number, and a
 * candidate takes the place of what was found before it unless that is less (greater): so an infinity of the wrong
 * sign gives that number, of 0 and -0 the later stands, and a NaN replaces what came before it and gives way to what
 * follows; each column of the window gives its extreme, top to bottom, then these from left to right.
 * IR forms work in place: as if all rows were computed before the first is written; they take memory for two rows.
 * Otherwise source and destination must not overlap.
 * Checks, in order: null pointers (huxStsNullPtr), a step below 1 (huxStsBadStep), width or height below 1
 * (huxStsBadSize), a source step that does not hold a row of width + 2 pixels or a destination step that does not hold
 * one of width (huxStsStepBelowWidth; a pixel of AC4 has four elements), in place: memory (huxStsNoMem; nothing is
 * written then). */
HUX_API HuxStatus huxiErode3x3_8u_C1R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiErode3x3_8u_C3R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiErode3x3_8u_C4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiErode3x3_8u_AC4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiErode3x3_8u_C1IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiErode3x3_8u_C3IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiErode3x3_8u_C4IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiErode3x3_8u_AC4IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiErode3x3_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiErode3x3_32f_C3R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiErode3x3_32f_C4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiErode3x3_32f_AC4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiErode3x3_32f_C1IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiErode3x3_32f_C3IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiErode3x3_32f_C4IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiErode3x3_32f_AC4IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiDilate3x3_8u_C1R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiDilate3x3_8u_C3R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiDilate3x3_8u_C4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiDilate3x3_8u_AC4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiDilate3x3_8u_C1IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiDilate3x3_8u_C3IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiDilate3x3_8u_C4IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiDilate3x3_8u_AC4IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiDilate3x3_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiDilate3x3_32f_C3R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiDilate3x3_32f_C4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiDilate3x3_32f_AC4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiDilate3x3_32f_C1IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiDilate3x3_32f_C3IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiDilate3x3_32f_C4IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiDilate3x3_32f_AC4IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);

/* Erode, Dilate: the least (Erode) or the greatest value of each channel over the cells that a structuring element
 * selects.
 * pMask has maskSize.height rows of maskSize.width bytes without gaps, on 32f as well; a byte other than 0 selects its
 * cell. The mask is not flipped: cell (i, j) lies over the pixel (x - anchor.x + i, y - anchor.y + j). The pixels
 * around the region must be readable as far as the element reaches; no others are read. Steps are in bytes; AC4 forms
 * leave the fourth element of the destination alone. On 32f the cells are taken row by row, and the rule is that of
 * Erode3x3.
 * The time for a pixel does not grow with the size of a mask of which all cells are selected; with others it grows
 * with the runs of neighbouring cells in their rows.
 * IR forms work in place: results wait in memory for anchor.y + 1 rows and a few more. A region lower than that is
 * computed and written on down to row anchor.y, below the region: the caller's image must be readable and writable
 * there. Otherwise source and destination must not overlap.
 * Checks, in order: null pointers (huxStsNullPtr), a step below 1 (huxStsBadStep), width or height below 1
 * (huxStsBadSize), a side of the mask below 1 (huxStsBadMaskSize), no cell selected (huxStsZeroMask), anchor outside
 * the mask (huxStsBadAnchor), a source step that does not hold a row of width + maskSize.width - 1 pixels or a
 * destination step that does not hold one of width (huxStsStepBelowWidth; a pixel of AC4 has four elements), in place:
 * memory (huxStsNoMem; nothing is written then).
 * Example:
 *   const Hux8u disc[25] = {0, 1, 1, 1, 0, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 0, 1, 1, 1, 0};
 *   const HuxiSize mask = {5, 5}, inner = {size.width - 4, size.height - 4};
 *   const HuxiPoint middle = {2, 2};
 *   huxiDilate_8u_C1R(src + 2 * srcStep + 2, srcStep, dst, dstStep, inner, disc, mask, middle);
 */
HUX_API HuxStatus huxiErode_8u_C1R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                   const Hux8u* pMask, HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiErode_8u_C3R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                   const Hux8u* pMask, HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiErode_8u_C4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                   const Hux8u* pMask, HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiErode_8u_AC4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                    const Hux8u* pMask, HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiErode_8u_C1IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, const Hux8u* pMask,
                                    HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiErode_8u_C3IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, const Hux8u* pMask,
                                    HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiErode_8u_AC4IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, const Hux8u* pMask,
                                     HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiErode_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize,
                                    const Hux8u* pMask, HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiErode_32f_C3R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize,
                                    const Hux8u* pMask, HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiErode_32f_C4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize,
                                    const Hux8u* pMask, HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiErode_32f_AC4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize,
                                     const Hux8u* pMask, HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiErode_32f_C1IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize, const Hux8u* pMask,
                                     HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiErode_32f_C3IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize, const Hux8u* pMask,
                                     HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiErode_32f_AC4IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize, const Hux8u* pMask,
                                      HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiDilate_8u_C1R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                    const Hux8u* pMask, HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiDilate_8u_C3R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                    const Hux8u* pMask, HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiDilate_8u_C4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                    const Hux8u* pMask, HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiDilate_8u_AC4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                     const Hux8u* pMask, HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiDilate_8u_C1IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, const Hux8u* pMask,
                                     HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiDilate_8u_C3IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, const Hux8u* pMask,
                                     HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiDilate_8u_AC4IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, const Hux8u* pMask,
                                      HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiDilate_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize,
                                     const Hux8u* pMask, HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiDilate_32f_C3R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize,
                                     const Hux8u* pMask, HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiDilate_32f_C4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize,
                                     const Hux8u* pMask, HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiDilate_32f_AC4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize,
                                      const Hux8u* pMask, HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiDilate_32f_C1IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize, const Hux8u* pMask,
                                      HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiDilate_32f_C3IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize, const Hux8u* pMask,
                                      HuxiSize maskSize, HuxiPoint anchor);
HUX_API HuxStatus huxiDilate_32f_AC4IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize, const Hux8u* pMask,
                                       HuxiSize maskSize, HuxiPoint anchor);

/* ---- Wiener filter ---- */

/* FilterWienerGetBufferSize: the bytes of work memory that FilterWiener needs for a region and a mask, to
 * *pBufferSize.
 * channels is 1 for C1, 3 for C3 and AC4, 4 for C4. The buffer has room for as many threads as the OpenMP runtime may
 * start at the time of this call; it must not be used after that limit has been raised (omp_set_num_threads).
 * huxSetThreadCount may be called in between.
 * Checks, in order: pBufferSize null (huxStsNullPtr), width or height of roiSize below 1 (huxStsBadSize), channels
 * other than 1, 3, 4 (huxStsBadChannelCount), a side of the mask below 2 (huxStsBadMaskSize). */
HUX_API HuxStatus huxiFilterWienerGetBufferSize(HuxiSize roiSize, HuxiSize maskSize, int channels, int* pBufferSize);

/* FilterWiener: removes noise by drawing each pixel towards the mean of its window.
 *   mean + (pixel - mean) * (variance - n) / variance, where a variance below n counts as n
 * so the more so the nearer the variance of the window is to n, that of the noise. The window's top left pixel is (x -
 * (maskSize.width - 1 - anchor.x), y - (maskSize.height - 1 - anchor.y)): the anchor counts from the far corner. All
 * pixels under the windows must be there. Integers drop the fraction; a NaN becomes 0. noise holds one value for each
 * channel (3 for AC4), the variance of the noise relative to the square of the pixel range: 255 for 8u, 65535 for 16s,
 * and for 32f the range of all pixels under the windows, of C3 and C4 over all channels, of AC4 of each. Where one of
 * the values is below 2^-23, all are estimated, as the mean variance of all windows, and noise is overwritten by the
 * estimates.
 * pBuffer is work memory of the size that FilterWienerGetBufferSize tells, at any address, for this call alone. The
 * alpha of AC4 is left as it was in the destination. The images must not overlap.
 * Parallel, but for 8u_C1R and 16s_C1R. Window sums are kept up in single precision from the first row on, and by each
 * thread from its own first row: where they are too large to be exact the last bits of a result, and those of an
 * estimate, depend on the number of threads.
 * Checks, in order: null pointers (huxStsNullPtr), width or height of roiSize below 1 (huxStsBadSize), a side of the
 * mask below 2 (huxStsBadMaskSize), the anchor outside the mask (huxStsBadAnchor), a step below 1 (huxStsBadStep), a
 * value of noise that is not at or above 0 and below 1 (huxStsBadNoise).
 * Example:
 *   const HuxiSize mask = {5, 5}, inner = {size.width - 4, size.height - 4};
 *   const HuxiPoint middle = {2, 2};
 *   Hux32f noise = 0;  // to be estimated
 *   int bytes;
 *   huxiFilterWienerGetBufferSize(inner, mask, 1, &bytes);
 *   Hux8u* buffer = huxsMalloc_8u(bytes);
 *   if (buffer)
 *     huxiFilterWiener_8u_C1R(src + 2 * srcStep + 2, srcStep, dst, dstStep, inner, mask, middle, &noise, buffer);
 *   huxsFree(buffer);
 */
HUX_API HuxStatus huxiFilterWiener_8u_C1R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                          HuxiSize maskSize, HuxiPoint anchor, Hux32f* noise, Hux8u* pBuffer);
HUX_API HuxStatus huxiFilterWiener_8u_C3R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                          HuxiSize maskSize, HuxiPoint anchor, Hux32f noise[3], Hux8u* pBuffer);
HUX_API HuxStatus huxiFilterWiener_8u_C4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                          HuxiSize maskSize, HuxiPoint anchor, Hux32f noise[4], Hux8u* pBuffer);
HUX_API HuxStatus huxiFilterWiener_8u_AC4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                           HuxiSize maskSize, HuxiPoint anchor, Hux32f noise[3], Hux8u* pBuffer);
HUX_API HuxStatus huxiFilterWiener_16s_C1R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize,
                                           HuxiSize maskSize, HuxiPoint anchor, Hux32f* noise, Hux8u* pBuffer);
HUX_API HuxStatus huxiFilterWiener_16s_C3R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize,
                                           HuxiSize maskSize, HuxiPoint anchor, Hux32f noise[3], Hux8u* pBuffer);
HUX_API HuxStatus huxiFilterWiener_16s_C4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize,
                                           HuxiSize maskSize, HuxiPoint anchor, Hux32f noise[4], Hux8u* pBuffer);
HUX_API HuxStatus huxiFilterWiener_16s_AC4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep,
                                            HuxiSize roiSize, HuxiSize maskSize, HuxiPoint anchor, Hux32f noise[3],
                                            Hux8u* pBuffer);
HUX_API HuxStatus huxiFilterWiener_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize,
                                           HuxiSize maskSize, HuxiPoint anchor, Hux32f* noise, Hux8u* pBuffer);
HUX_API HuxStatus huxiFilterWiener_32f_C3R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize,
                                           HuxiSize maskSize, HuxiPoint anchor, Hux32f noise[3], Hux8u* pBuffer);
HUX_API HuxStatus huxiFilterWiener_32f_C4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize,
                                           HuxiSize maskSize, HuxiPoint anchor, Hux32f noise[4], Hux8u* pBuffer);
HUX_API HuxStatus huxiFilterWiener_32f_AC4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                            HuxiSize roiSize, HuxiSize maskSize, HuxiPoint anchor, Hux32f noise[3],
                                            Hux8u* pBuffer);

/* ---- Convolution ---- */

/* ConvFull, ConvValid: the convolution of two images, and that part of it where the smaller lies within the larger.
 *
 *   ConvFull   W = src1Size.width + src2Size.width - 1 by H = src1Size.height + src2Size.height - 1 pixels, of which
 *              (x, y) is the sum over all (i, j) of src1(i, j) * src2(x - i, y - j), nothing being added outside
 *   ConvValid  bigWidth - smallWidth + 1 by bigHeight - smallHeight + 1 pixels, of which (x, y) is the sum over all
 *              (i, j) of small(i, j) * big(x + smallWidth - 1 - i, y + smallHeight - 1 - j)
 *
 * Neither reads around its images. Each channel is convolved with that of the other image; the alpha of AC4 is left as
 * it was in the destination. In 8u and 16s the sum is divided by the divisor, that is, multiplied by recip = 1.0f /
 * divisor in single precision, and limited to the range of the type. The images must not overlap.
 *
 * The order of the sources does not matter but for what follows. In ConvFull the first is `big` unless it is narrower
 * than the second; in ConvValid unless it is narrower or lower. Of several ways of computing the same, which round
 * differently, the sizes choose one:
 *
 *   ConvFull, W * H < 1705 or smallWidth * smallHeight < 121
 *       Sums. 8u: exact; (float)sum * recip, half up. 16s: products rounded to floats and added up in single
 *       precision, the rows of `small` downwards, its pixels from left to right; times recip, ties to even. 32f:
 *       likewise, but from the last pixel of `small` back to the first, and as it is.
 *   ConvFull, otherwise, bigWidth * bigHeight <= 7 * smallWidth * smallHeight
 *       Transforms of both images, extended by zeros to powers of two.
 *   ConvFull, otherwise
 *       Transforms of blocks of `big`. The side of a block is the power of two from twice that of `small` on; doubled
 *       once if that is below 256 and below the result's side.
 *   ConvValid, smallWidth * smallHeight < 121; 32f of C3 and AC4 also where the result has fewer than 81 pixels
 *       Filter with `small` as its kernel and its rules of rounding: huxiFilter_8u with the divisor nearest to
 *       1 / recip, huxiFilter32f_16s with taps times recip, or huxiFilter_32f; in C1 also with its check of steps,
 *       which it cuts to whole elements.
 *   ConvValid, otherwise, a result of fewer than 81 pixels
 *       Sums of the rows of `small`, added up in single precision from the last one back. 8u and 16s: sums of rows are
 *       exact and rounded to floats; the total times recip, 8u half up, 16s ties to even. 32f: FilterRow, with its
 *       check of the step of `big`, which it cuts to whole elements.
 *   ConvValid, otherwise
 *       Transforms of blocks of `big`.
 *
 * Transforms are those of huxiFFTFwd_RToPack_32f and huxiFFTInv_PackToR_32f, so that results are within the rounding of
 * floats; 8u and 16s are rounded to the nearest integer, ties to even, after they were multiplied by recip.
 * Parallel: the result is the same for any number of threads.
 * Checks, in order: null pointers (huxStsNullPtr), a width or height below 1 (huxStsBadSize), a step below 1
 * (huxStsBadStep), divisor 0 (huxStsBadDivisor), in ConvValid images of which neither fits into the other
 * (huxStsBadSize), memory (huxStsNoMem), which the sums of ConvFull_32f can do without. Blocks of more than 2^30 pixels
 * along a side are refused (huxStsBadOrder). Nothing has been written then.
 * Example:
 *   Hux8u ones[32 * 32];  // the mean of 32 by 32 pixels, where the image has them
 *   const HuxiSize kernel = {32, 32};
 *   for (int i = 0; i < 32 * 32; ++i) ones[i] = 1;
 *   huxiConvValid_8u_C1R(src, srcStep, size, ones, 32, kernel, dst, dstStep, 32 * 32);
 */
HUX_API HuxStatus huxiConvFull_8u_C1R(const Hux8u* pSrc1, int src1Step, HuxiSize src1Size, const Hux8u* pSrc2,
                                      int src2Step, HuxiSize src2Size, Hux8u* pDst, int dstStep, Hux32s divisor);
HUX_API HuxStatus huxiConvFull_8u_C3R(const Hux8u* pSrc1, int src1Step, HuxiSize src1Size, const Hux8u* pSrc2,
                                      int src2Step, HuxiSize src2Size, Hux8u* pDst, int dstStep, Hux32s divisor);
HUX_API HuxStatus huxiConvFull_8u_AC4R(const Hux8u* pSrc1, int src1Step, HuxiSize src1Size, const Hux8u* pSrc2,
                                       int src2Step, HuxiSize src2Size, Hux8u* pDst, int dstStep, Hux32s divisor);
HUX_API HuxStatus huxiConvFull_16s_C1R(const Hux16s* pSrc1, int src1Step, HuxiSize src1Size, const Hux16s* pSrc2,
                                       int src2Step, HuxiSize src2Size, Hux16s* pDst, int dstStep, Hux32s divisor);
HUX_API HuxStatus huxiConvFull_16s_C3R(const Hux16s* pSrc1, int src1Step, HuxiSize src1Size, const Hux16s* pSrc2,
                                       int src2Step, HuxiSize src2Size, Hux16s* pDst, int dstStep, Hux32s divisor);
HUX_API HuxStatus huxiConvFull_16s_AC4R(const Hux16s* pSrc1, int src1Step, HuxiSize src1Size, const Hux16s* pSrc2,
                                        int src2Step, HuxiSize src2Size, Hux16s* pDst, int dstStep, Hux32s divisor);
HUX_API HuxStatus huxiConvFull_32f_C1R(const Hux32f* pSrc1, int src1Step, HuxiSize src1Size, const Hux32f* pSrc2,
                                       int src2Step, HuxiSize src2Size, Hux32f* pDst, int dstStep);
HUX_API HuxStatus huxiConvFull_32f_C3R(const Hux32f* pSrc1, int src1Step, HuxiSize src1Size, const Hux32f* pSrc2,
                                       int src2Step, HuxiSize src2Size, Hux32f* pDst, int dstStep);
HUX_API HuxStatus huxiConvFull_32f_AC4R(const Hux32f* pSrc1, int src1Step, HuxiSize src1Size, const Hux32f* pSrc2,
                                        int src2Step, HuxiSize src2Size, Hux32f* pDst, int dstStep);
HUX_API HuxStatus huxiConvValid_8u_C1R(const Hux8u* pSrc1, int src1Step, HuxiSize src1Size, const Hux8u* pSrc2,
                                       int src2Step, HuxiSize src2Size, Hux8u* pDst, int dstStep, Hux32s divisor);
HUX_API HuxStatus huxiConvValid_8u_C3R(const Hux8u* pSrc1, int src1Step, HuxiSize src1Size, const Hux8u* pSrc2,
                                       int src2Step, HuxiSize src2Size, Hux8u* pDst, int dstStep, Hux32s divisor);
HUX_API HuxStatus huxiConvValid_8u_AC4R(const Hux8u* pSrc1, int src1Step, HuxiSize src1Size, const Hux8u* pSrc2,
                                        int src2Step, HuxiSize src2Size, Hux8u* pDst, int dstStep, Hux32s divisor);
HUX_API HuxStatus huxiConvValid_16s_C1R(const Hux16s* pSrc1, int src1Step, HuxiSize src1Size, const Hux16s* pSrc2,
                                        int src2Step, HuxiSize src2Size, Hux16s* pDst, int dstStep, Hux32s divisor);
HUX_API HuxStatus huxiConvValid_16s_C3R(const Hux16s* pSrc1, int src1Step, HuxiSize src1Size, const Hux16s* pSrc2,
                                        int src2Step, HuxiSize src2Size, Hux16s* pDst, int dstStep, Hux32s divisor);
HUX_API HuxStatus huxiConvValid_16s_AC4R(const Hux16s* pSrc1, int src1Step, HuxiSize src1Size, const Hux16s* pSrc2,
                                         int src2Step, HuxiSize src2Size, Hux16s* pDst, int dstStep, Hux32s divisor);
HUX_API HuxStatus huxiConvValid_32f_C1R(const Hux32f* pSrc1, int src1Step, HuxiSize src1Size, const Hux32f* pSrc2,
                                        int src2Step, HuxiSize src2Size, Hux32f* pDst, int dstStep);
HUX_API HuxStatus huxiConvValid_32f_C3R(const Hux32f* pSrc1, int src1Step, HuxiSize src1Size, const Hux32f* pSrc2,
                                        int src2Step, HuxiSize src2Size, Hux32f* pDst, int dstStep);
HUX_API HuxStatus huxiConvValid_32f_AC4R(const Hux32f* pSrc1, int src1Step, HuxiSize src1Size, const Hux32f* pSrc2,
                                         int src2Step, HuxiSize src2Size, Hux32f* pDst, int dstStep);

/* ---- Deconvolution ---- */

/* DeconvFFTInitAlloc, DeconvLRInitAlloc: states that restore images which were blurred by a known kernel.
 * The kernel has kernelSize by kernelSize taps, row by row; of C3 three interleaved values for each tap, one for each
 * channel, and each channel is restored by itself. A state serves any number of calls one after the other, each of
 * which starts afresh, and ends with Free. The calls write to it: threads must not share one. Nothing tells a state of
 * C1 from one of C3.
 *
 * Both ways widen the region by h = (kernelSize - 1) / 2 pixels on each side: its edge, weighted by what part of the
 * kernel's weight reaches each pixel. A kernel that adds up to 0 over a quarter or an edge makes that part infinite or
 * NaN. Values of the result of a magnitude not above the threshold become 0.
 *
 *   DeconvFFT  inverse filtering on a square of 2^FFTorder pixels, which holds the region with its margin. Taps of a
 *              magnitude not above the threshold count as 0; of each frequency of the kernel, a part below the
 *              threshold counts as 0, and where neither is above it the frequency passes unchanged
 *   DeconvLR   numIter times estimate = estimate * filter(image / filter(estimate)), from the widened image on. The
 *              filters are those of huxiFilter_32f_C1R with the anchor (h, h), the inner one with the kernel, the
 *              outer one with the kernel transposed. A quotient whose divisor is not above the threshold in magnitude
 *              counts as 0, and an estimate not above 1.1754943508222875e-36 becomes 0. maxRoiSize is the largest
 *              region with its margin: roiSize + kernelSize - 1
 *
 * Checks, in order: null pointers (huxStsNullPtr), kernelSize below 1 or above 2^FFTorder, or above a side of
 * maxRoiSize (huxStsBadSize), threshold below 0 (huxStsBadArg), FFTorder above 30 (huxStsBadOrder), memory
 * (huxStsNoMem). On failure *ppState is as it was. */
typedef struct HuxiDeconvFFTState HuxiDeconvFFTState;
typedef struct HuxiDeconvLRState HuxiDeconvLRState;
HUX_API HuxStatus huxiDeconvFFTInitAlloc_32f_C1R(HuxiDeconvFFTState** ppState, const Hux32f* pKernel, int kernelSize,
                                                 int FFTorder, Hux32f threshold);
HUX_API HuxStatus huxiDeconvFFTInitAlloc_32f_C3R(HuxiDeconvFFTState** ppState, const Hux32f* pKernel, int kernelSize,
                                                 int FFTorder, Hux32f threshold);
HUX_API HuxStatus huxiDeconvLRInitAlloc_32f_C1R(HuxiDeconvLRState** ppState, const Hux32f* pKernel, int kernelSize,
                                                HuxiSize maxRoiSize, Hux32f threshold);
HUX_API HuxStatus huxiDeconvLRInitAlloc_32f_C3R(HuxiDeconvLRState** ppState, const Hux32f* pKernel, int kernelSize,
                                                HuxiSize maxRoiSize, Hux32f threshold);

/* DeconvFFT, DeconvLR: the restoration of a region by a state. Source and destination may be one image.
 * Checks, in order: null pointers (huxStsNullPtr), width or height of roiSize below 1 (huxStsBadSize), roiSize +
 * kernelSize - 1 above 2^FFTorder or maxRoiSize (huxStsBadSize), a step below the bytes of a row (huxStsBadStep), a
 * step that is no multiple of 4 (huxStsStepNotMultipleOf4), numIter below 1 (huxStsBadArg).
 * Example:
 *   const Hux32f ninth = 1 / 9.f, box[9] = {ninth, ninth, ninth, ninth, ninth, ninth, ninth, ninth, ninth};
 *   const HuxiSize most = {size.width + 2, size.height + 2};
 *   HuxiDeconvLRState* state;
 *   int step;
 *   Hux32f* image = huxiMalloc_32f_C1(size.width, size.height, &step);
 *   if (image && huxiDeconvLRInitAlloc_32f_C1R(&state, box, 3, most, 1e-4f) == huxStsOk) {
 *     huxiConvert_8u32f_C1R(src, srcStep, image, step, size);
 *     huxiDeconvLR_32f_C1R(image, step, image, step, size, 20, state);
 *     huxiConvert_32f8u_C1R(image, step, dst, dstStep, size, huxRndNear);
 *     huxiDeconvLRFree_32f_C1R(state);
 *   }
 *   huxiFree(image);
 */
HUX_API HuxStatus huxiDeconvFFT_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize,
                                        HuxiDeconvFFTState* pState);
HUX_API HuxStatus huxiDeconvFFT_32f_C3R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize,
                                        HuxiDeconvFFTState* pState);
HUX_API HuxStatus huxiDeconvLR_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize,
                                       int numIter, HuxiDeconvLRState* pState);
HUX_API HuxStatus huxiDeconvLR_32f_C3R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize,
                                       int numIter, HuxiDeconvLRState* pState);

/* DeconvFFTFree, DeconvLRFree: end a state.
 * Checks, in order: pState null (huxStsNullPtr). */
HUX_API HuxStatus huxiDeconvFFTFree_32f_C1R(HuxiDeconvFFTState* pState);
HUX_API HuxStatus huxiDeconvFFTFree_32f_C3R(HuxiDeconvFFTState* pState);
HUX_API HuxStatus huxiDeconvLRFree_32f_C1R(HuxiDeconvLRState* pState);
HUX_API HuxStatus huxiDeconvLRFree_32f_C3R(HuxiDeconvLRState* pState);

/* ---- Window functions ---- */

/* WinBartlett, WinHamming, and their Sep forms: the image times a window that falls off towards the edges.
 * Such a window is laid over an image ahead of a spectrum. With N columns, M rows, Rx = N / 2, Ry = M / 2, dx = Rx - j
 * and dy = Ry - i, pixel (j, i) of the top left quarter and its three mirror images have the weight
 *   WinBartlett  1 - r * (2 / N), or 0 outside
 *   WinHamming   0.54 - 0.46 cos((Rx - r) * (2 pi / N)), or 0.08 outside
 * where r = sqrt(dx^2 + dy^2 / (Ry / Rx)^2), and outside means outside the ellipse with half axes Rx and Ry. The
 * middle column of an odd width has the weights of a vector of M values, and the middle row of an odd height those of
 * one of N; see huxsWinBartlett_32f_I, huxsWinHamming_32f_I. In the Sep forms a pixel is multiplied by the weight of
 * its column, then by that of its row, both those of a vector. Products are formed in double precision, in the Sep
 * forms in single; 8u rounds them half up. A weight of 0 leaves a NaN what it is. Forms in place have one image,
 * pSrcDst; otherwise the images must not overlap.
 * Checks, in order: null pointers (huxStsNullPtr), width or height below 3 (huxStsBadSize), a step below 1
 * (huxStsBadStep), memory for the weights of rows and columns (huxStsNoMem; nothing is written then). */
HUX_API HuxStatus huxiWinBartlett_8u_C1R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiWinBartlett_8u_C1IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiWinBartlett_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiWinBartlett_32f_C1IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiWinBartlettSep_8u_C1R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiWinBartlettSep_8u_C1IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiWinBartlettSep_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                             HuxiSize roiSize);
HUX_API HuxStatus huxiWinBartlettSep_32f_C1IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiWinHamming_8u_C1R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiWinHamming_8u_C1IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiWinHamming_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiWinHamming_32f_C1IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiWinHammingSep_8u_C1R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiWinHammingSep_8u_C1IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiWinHammingSep_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                            HuxiSize roiSize);
HUX_API HuxStatus huxiWinHammingSep_32f_C1IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize);

HUX_END_C

#endif
