/* Image memory, and moving pixels without computing on them. Plain C99. */
#ifndef HUXI_PIXEL_H
#define HUXI_PIXEL_H

#include "huxdefs.h"

HUX_BEGIN_C

/* ---- Image memory ---- */

/* Malloc: allocates an image of widthPixels by heightPixels whose rows all start at a multiple of 32 bytes.
 * The step from one row to the next, in bytes, goes to *pStepBytes: the length of a row rounded up to a multiple of
 * 32. The pixels are not initialised. The caller frees the image by huxiFree, never by free.
 * Null results, in order: pStepBytes null (nothing is written); width or height below 1 (*pStepBytes becomes 0); no
 * memory, or an image of 2^31 bytes or more (*pStepBytes is set all the same).
 * Example:
 *   int step;
 *   Hux8u* image = huxiMalloc_8u_C3(640, 480, &step);
 *   if (image) image[100 * step + 200 * 3] = 255;  // the first channel of column 200 in row 100
 *   huxiFree(image);
 */
HUX_API Hux8u* huxiMalloc_8u_C1(int widthPixels, int heightPixels, int* pStepBytes);
HUX_API Hux8u* huxiMalloc_8u_C2(int widthPixels, int heightPixels, int* pStepBytes);
HUX_API Hux8u* huxiMalloc_8u_C3(int widthPixels, int heightPixels, int* pStepBytes);
HUX_API Hux8u* huxiMalloc_8u_C4(int widthPixels, int heightPixels, int* pStepBytes);
HUX_API Hux8u* huxiMalloc_8u_AC4(int widthPixels, int heightPixels, int* pStepBytes);
HUX_API Hux16u* huxiMalloc_16u_C1(int widthPixels, int heightPixels, int* pStepBytes);
HUX_API Hux16u* huxiMalloc_16u_C2(int widthPixels, int heightPixels, int* pStepBytes);
HUX_API Hux16u* huxiMalloc_16u_C3(int widthPixels, int heightPixels, int* pStepBytes);
HUX_API Hux16u* huxiMalloc_16u_C4(int widthPixels, int heightPixels, int* pStepBytes);
HUX_API Hux16u* huxiMalloc_16u_AC4(int widthPixels, int heightPixels, int* pStepBytes);
HUX_API Hux16s* huxiMalloc_16s_C1(int widthPixels, int heightPixels, int* pStepBytes);
HUX_API Hux16s* huxiMalloc_16s_C2(int widthPixels, int heightPixels, int* pStepBytes);
HUX_API Hux16s* huxiMalloc_16s_C3(int widthPixels, int heightPixels, int* pStepBytes);
HUX_API Hux16s* huxiMalloc_16s_C4(int widthPixels, int heightPixels, int* pStepBytes);
HUX_API Hux16s* huxiMalloc_16s_AC4(int widthPixels, int heightPixels, int* pStepBytes);
HUX_API Hux32s* huxiMalloc_32s_C1(int widthPixels, int heightPixels, int* pStepBytes);
HUX_API Hux32s* huxiMalloc_32s_C2(int widthPixels, int heightPixels, int* pStepBytes);
HUX_API Hux32s* huxiMalloc_32s_C3(int widthPixels, int heightPixels, int* pStepBytes);
HUX_API Hux32s* huxiMalloc_32s_C4(int widthPixels, int heightPixels, int* pStepBytes);
HUX_API Hux32s* huxiMalloc_32s_AC4(int widthPixels, int heightPixels, int* pStepBytes);
HUX_API Hux32f* huxiMalloc_32f_C1(int widthPixels, int heightPixels, int* pStepBytes);
HUX_API Hux32f* huxiMalloc_32f_C2(int widthPixels, int heightPixels, int* pStepBytes);
HUX_API Hux32f* huxiMalloc_32f_C3(int widthPixels, int heightPixels, int* pStepBytes);
HUX_API Hux32f* huxiMalloc_32f_C4(int widthPixels, int heightPixels, int* pStepBytes);
HUX_API Hux32f* huxiMalloc_32f_AC4(int widthPixels, int heightPixels, int* pStepBytes);
HUX_API Hux32sc* huxiMalloc_32sc_C1(int widthPixels, int heightPixels, int* pStepBytes);
HUX_API Hux32sc* huxiMalloc_32sc_C2(int widthPixels, int heightPixels, int* pStepBytes);
HUX_API Hux32sc* huxiMalloc_32sc_C3(int widthPixels, int heightPixels, int* pStepBytes);
HUX_API Hux32sc* huxiMalloc_32sc_C4(int widthPixels, int heightPixels, int* pStepBytes);
HUX_API Hux32sc* huxiMalloc_32sc_AC4(int widthPixels, int heightPixels, int* pStepBytes);
HUX_API Hux32fc* huxiMalloc_32fc_C1(int widthPixels, int heightPixels, int* pStepBytes);
HUX_API Hux32fc* huxiMalloc_32fc_C2(int widthPixels, int heightPixels, int* pStepBytes);
HUX_API Hux32fc* huxiMalloc_32fc_C3(int widthPixels, int heightPixels, int* pStepBytes);
HUX_API Hux32fc* huxiMalloc_32fc_C4(int widthPixels, int heightPixels, int* pStepBytes);
HUX_API Hux32fc* huxiMalloc_32fc_AC4(int widthPixels, int heightPixels, int* pStepBytes);

/* Free: frees an image from huxiMalloc, or a vector from huxsMalloc; a null pointer is ignored. */
HUX_API void huxiFree(void* pImage);

/* ---- Copies and constants ---- */

/* Copy: copies the pixels of the region.
 * C1R, C3R, C4R: all elements. AC4R: the first three of each pixel; alpha of the destination stays. AC4C3R, C3AC4R:
 * three elements between a four- and a three-channel image. Unsigned 16-bit images use the 16s members; 32s and 32f
 * keep the bits of any pixel of that size.
 * Rows go top to bottom, elements first to last, with no other care for overlap. Zero and negative steps are legal: a
 * srcStep of 0 repeats one row, a negative one walks up.
 * Checks, in order: null pointers (huxStsNullPtr), width or height below 1 (huxStsBadSize). Steps are not checked. */
HUX_API HuxStatus huxiCopy_8u_C1R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_16s_C1R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_32s_C1R(const Hux32s* pSrc, int srcStep, Hux32s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_32f_C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_8u_C3R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_16s_C3R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_32s_C3R(const Hux32s* pSrc, int srcStep, Hux32s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_32f_C3R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_8u_C4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_16s_C4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_32s_C4R(const Hux32s* pSrc, int srcStep, Hux32s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_32f_C4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_8u_AC4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_16s_AC4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_32s_AC4R(const Hux32s* pSrc, int srcStep, Hux32s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_32f_AC4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_8u_AC4C3R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_16s_AC4C3R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_32s_AC4C3R(const Hux32s* pSrc, int srcStep, Hux32s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_32f_AC4C3R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_8u_C3AC4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_16s_C3AC4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_32s_C3AC4R(const Hux32s* pSrc, int srcStep, Hux32s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_32f_C3AC4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize);

/* Copy, one channel: copies one channel of the pixels of the region.
 * pSrc and pDst address the channel in question of the first pixel. C3CR, C4CR: channel to channel; C3C1R, C4C1R:
 * channel to one-channel image; C1C3R, C1C4R: one-channel image to channel. Other channels of the destination are not
 * written.
 * Checks, in order: null pointers (huxStsNullPtr), width or height below 1 (huxStsBadSize). Steps are not checked.
 * Example:
 *   huxiCopy_8u_C3C1R(src + 2, srcStep, dst, dstStep, size);  // the third channel, by itself
 */
HUX_API HuxStatus huxiCopy_8u_C3CR(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_16s_C3CR(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_32s_C3CR(const Hux32s* pSrc, int srcStep, Hux32s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_32f_C3CR(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_8u_C4CR(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_16s_C4CR(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_32s_C4CR(const Hux32s* pSrc, int srcStep, Hux32s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_32f_C4CR(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_8u_C3C1R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_16s_C3C1R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_32s_C3C1R(const Hux32s* pSrc, int srcStep, Hux32s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_32f_C3C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_8u_C4C1R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_16s_C4C1R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_32s_C4C1R(const Hux32s* pSrc, int srcStep, Hux32s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_32f_C4C1R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_8u_C1C3R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_16s_C1C3R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_32s_C1C3R(const Hux32s* pSrc, int srcStep, Hux32s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_32f_C1C3R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_8u_C1C4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_16s_C1C4R(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_32s_C1C4R(const Hux32s* pSrc, int srcStep, Hux32s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_32f_C1C4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize);

/* Copy, interleaved to planar and back: element c of each pixel goes to plane c, or comes from it.
 * The planar side is an array of 3 or 4 pointers to the first elements of the planes, which share one step. The array
 * itself is only read.
 * Checks, in order: null pointers, each plane's too (huxStsNullPtr), width or height below 1 (huxStsBadSize). Steps are
 * not checked.
 * Example:
 *   int planeStep;
 *   Hux8u* plane = huxiMalloc_8u_C1(size.width, 3 * size.height, &planeStep);
 *   const int bytes = planeStep * size.height;
 *   Hux8u* const planes[3] = {plane, plane + bytes, plane + 2 * bytes};
 *   if (plane) huxiCopy_8u_C3P3R(src, srcStep, planes, planeStep, size);
 *   huxiFree(plane);
 */
HUX_API HuxStatus huxiCopy_8u_C3P3R(const Hux8u* pSrc, int srcStep, Hux8u* const pDst[3], int dstStep,
                                    HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_16s_C3P3R(const Hux16s* pSrc, int srcStep, Hux16s* const pDst[3], int dstStep,
                                     HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_32s_C3P3R(const Hux32s* pSrc, int srcStep, Hux32s* const pDst[3], int dstStep,
                                     HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_32f_C3P3R(const Hux32f* pSrc, int srcStep, Hux32f* const pDst[3], int dstStep,
                                     HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_8u_C4P4R(const Hux8u* pSrc, int srcStep, Hux8u* const pDst[4], int dstStep,
                                    HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_16s_C4P4R(const Hux16s* pSrc, int srcStep, Hux16s* const pDst[4], int dstStep,
                                     HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_32s_C4P4R(const Hux32s* pSrc, int srcStep, Hux32s* const pDst[4], int dstStep,
                                     HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_32f_C4P4R(const Hux32f* pSrc, int srcStep, Hux32f* const pDst[4], int dstStep,
                                     HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_8u_P3C3R(const Hux8u* const pSrc[3], int srcStep, Hux8u* pDst, int dstStep,
                                    HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_16s_P3C3R(const Hux16s* const pSrc[3], int srcStep, Hux16s* pDst, int dstStep,
                                     HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_32s_P3C3R(const Hux32s* const pSrc[3], int srcStep, Hux32s* pDst, int dstStep,
                                     HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_32f_P3C3R(const Hux32f* const pSrc[3], int srcStep, Hux32f* pDst, int dstStep,
                                     HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_8u_P4C4R(const Hux8u* const pSrc[4], int srcStep, Hux8u* pDst, int dstStep,
                                    HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_16s_P4C4R(const Hux16s* const pSrc[4], int srcStep, Hux16s* pDst, int dstStep,
                                     HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_32s_P4C4R(const Hux32s* const pSrc[4], int srcStep, Hux32s* pDst, int dstStep,
                                     HuxiSize roiSize);
HUX_API HuxStatus huxiCopy_32f_P4C4R(const Hux32f* const pSrc[4], int srcStep, Hux32f* pDst, int dstStep,
                                     HuxiSize roiSize);

/* Copy, masked: copies the pixels whose byte in the one-channel image pMask is not 0; the others are not written.
 * Checks, in order: null pointers, pMask among them (huxStsNullPtr), width or height below 1 (huxStsBadSize). Steps
 * are not checked. */
HUX_API HuxStatus huxiCopy_8u_C1MR(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                   const Hux8u* pMask, int maskStep);
HUX_API HuxStatus huxiCopy_16s_C1MR(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize,
                                    const Hux8u* pMask, int maskStep);
HUX_API HuxStatus huxiCopy_32s_C1MR(const Hux32s* pSrc, int srcStep, Hux32s* pDst, int dstStep, HuxiSize roiSize,
                                    const Hux8u* pMask, int maskStep);
HUX_API HuxStatus huxiCopy_32f_C1MR(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize,
                                    const Hux8u* pMask, int maskStep);
HUX_API HuxStatus huxiCopy_8u_C3MR(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                   const Hux8u* pMask, int maskStep);
HUX_API HuxStatus huxiCopy_16s_C3MR(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize,
                                    const Hux8u* pMask, int maskStep);
HUX_API HuxStatus huxiCopy_32s_C3MR(const Hux32s* pSrc, int srcStep, Hux32s* pDst, int dstStep, HuxiSize roiSize,
                                    const Hux8u* pMask, int maskStep);
HUX_API HuxStatus huxiCopy_32f_C3MR(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize,
                                    const Hux8u* pMask, int maskStep);
HUX_API HuxStatus huxiCopy_8u_C4MR(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                   const Hux8u* pMask, int maskStep);
HUX_API HuxStatus huxiCopy_16s_C4MR(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize,
                                    const Hux8u* pMask, int maskStep);
HUX_API HuxStatus huxiCopy_32s_C4MR(const Hux32s* pSrc, int srcStep, Hux32s* pDst, int dstStep, HuxiSize roiSize,
                                    const Hux8u* pMask, int maskStep);
HUX_API HuxStatus huxiCopy_32f_C4MR(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize,
                                    const Hux8u* pMask, int maskStep);
HUX_API HuxStatus huxiCopy_8u_AC4MR(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                    const Hux8u* pMask, int maskStep);
HUX_API HuxStatus huxiCopy_16s_AC4MR(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize,
                                     const Hux8u* pMask, int maskStep);
HUX_API HuxStatus huxiCopy_32s_AC4MR(const Hux32s* pSrc, int srcStep, Hux32s* pDst, int dstStep, HuxiSize roiSize,
                                     const Hux8u* pMask, int maskStep);
HUX_API HuxStatus huxiCopy_32f_AC4MR(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize,
                                     const Hux8u* pMask, int maskStep);

/* Set: fills the region with a constant.
 * That is value, or for element c of each pixel pValue[c] (3 values for C3 and AC4, 4 for C4). AC4: alpha stays. C3CR,
 * C4CR: only the channel that pDst addresses. M forms: only pixels whose byte in the one-channel image pMask is not 0.
 * 32f members write the bit pattern of the constant.
 * Checks, in order: null pointers (huxStsNullPtr), width or height below 1 (huxStsBadSize), dstStep, then maskStep
 * below 1 (huxStsBadStep).
 * Example:
 *   const Hux8u amber[3] = {250, 180, 30};
 *   huxiSet_8u_C3R(amber, dst, dstStep, size);
 */
HUX_API HuxStatus huxiSet_8u_C1R(Hux8u value, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiSet_16s_C1R(Hux16s value, Hux16s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiSet_32s_C1R(Hux32s value, Hux32s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiSet_32f_C1R(Hux32f value, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiSet_8u_C3CR(Hux8u value, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiSet_16s_C3CR(Hux16s value, Hux16s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiSet_32s_C3CR(Hux32s value, Hux32s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiSet_32f_C3CR(Hux32f value, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiSet_8u_C4CR(Hux8u value, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiSet_16s_C4CR(Hux16s value, Hux16s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiSet_32s_C4CR(Hux32s value, Hux32s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiSet_32f_C4CR(Hux32f value, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiSet_8u_C3R(const Hux8u* pValue, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiSet_16s_C3R(const Hux16s* pValue, Hux16s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiSet_32s_C3R(const Hux32s* pValue, Hux32s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiSet_32f_C3R(const Hux32f* pValue, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiSet_8u_C4R(const Hux8u* pValue, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiSet_16s_C4R(const Hux16s* pValue, Hux16s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiSet_32s_C4R(const Hux32s* pValue, Hux32s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiSet_32f_C4R(const Hux32f* pValue, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiSet_8u_AC4R(const Hux8u* pValue, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiSet_16s_AC4R(const Hux16s* pValue, Hux16s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiSet_32s_AC4R(const Hux32s* pValue, Hux32s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiSet_32f_AC4R(const Hux32f* pValue, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiSet_8u_C1MR(Hux8u value, Hux8u* pDst, int dstStep, HuxiSize roiSize, const Hux8u* pMask,
                                  int maskStep);
HUX_API HuxStatus huxiSet_16s_C1MR(Hux16s value, Hux16s* pDst, int dstStep, HuxiSize roiSize, const Hux8u* pMask,
                                   int maskStep);
HUX_API HuxStatus huxiSet_32s_C1MR(Hux32s value, Hux32s* pDst, int dstStep, HuxiSize roiSize, const Hux8u* pMask,
                                   int maskStep);
HUX_API HuxStatus huxiSet_32f_C1MR(Hux32f value, Hux32f* pDst, int dstStep, HuxiSize roiSize, const Hux8u* pMask,
                                   int maskStep);
HUX_API HuxStatus huxiSet_8u_C3MR(const Hux8u* pValue, Hux8u* pDst, int dstStep, HuxiSize roiSize, const Hux8u* pMask,
                                  int maskStep);
HUX_API HuxStatus huxiSet_16s_C3MR(const Hux16s* pValue, Hux16s* pDst, int dstStep, HuxiSize roiSize,
                                   const Hux8u* pMask, int maskStep);
HUX_API HuxStatus huxiSet_32s_C3MR(const Hux32s* pValue, Hux32s* pDst, int dstStep, HuxiSize roiSize,
                                   const Hux8u* pMask, int maskStep);
HUX_API HuxStatus huxiSet_32f_C3MR(const Hux32f* pValue, Hux32f* pDst, int dstStep, HuxiSize roiSize,
                                   const Hux8u* pMask, int maskStep);
HUX_API HuxStatus huxiSet_8u_C4MR(const Hux8u* pValue, Hux8u* pDst, int dstStep, HuxiSize roiSize, const Hux8u* pMask,
                                  int maskStep);
HUX_API HuxStatus huxiSet_16s_C4MR(const Hux16s* pValue, Hux16s* pDst, int dstStep, HuxiSize roiSize,
                                   const Hux8u* pMask, int maskStep);
HUX_API HuxStatus huxiSet_32s_C4MR(const Hux32s* pValue, Hux32s* pDst, int dstStep, HuxiSize roiSize,
                                   const Hux8u* pMask, int maskStep);
HUX_API HuxStatus huxiSet_32f_C4MR(const Hux32f* pValue, Hux32f* pDst, int dstStep, HuxiSize roiSize,
                                   const Hux8u* pMask, int maskStep);
HUX_API HuxStatus huxiSet_8u_AC4MR(const Hux8u* pValue, Hux8u* pDst, int dstStep, HuxiSize roiSize, const Hux8u* pMask,
                                   int maskStep);
HUX_API HuxStatus huxiSet_16s_AC4MR(const Hux16s* pValue, Hux16s* pDst, int dstStep, HuxiSize roiSize,
                                    const Hux8u* pMask, int maskStep);
HUX_API HuxStatus huxiSet_32s_AC4MR(const Hux32s* pValue, Hux32s* pDst, int dstStep, HuxiSize roiSize,
                                    const Hux8u* pMask, int maskStep);
HUX_API HuxStatus huxiSet_32f_AC4MR(const Hux32f* pValue, Hux32f* pDst, int dstStep, HuxiSize roiSize,
                                    const Hux8u* pMask, int maskStep);

/* ---- Types of pixels ---- */

/* Convert: the same value in another type; what does not fit is saturated.
 * From 32f: rounded by roundMode (huxRndNear: to nearest, ties to even, with the half added in single precision; any
 * other value: towards zero); NaN gives the lower limit. To 32f all values are exact. AC4: alpha of the destination
 * stays.
 * Checks, in order: null pointers (huxStsNullPtr), width or height below 1 (huxStsBadSize), a step below 1
 * (huxStsBadStep). */
HUX_API HuxStatus huxiConvert_8u16u_C1R(const Hux8u* pSrc, int srcStep, Hux16u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiConvert_8u16u_C3R(const Hux8u* pSrc, int srcStep, Hux16u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiConvert_8u16u_C4R(const Hux8u* pSrc, int srcStep, Hux16u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiConvert_8u16u_AC4R(const Hux8u* pSrc, int srcStep, Hux16u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiConvert_8u16s_C1R(const Hux8u* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiConvert_8u16s_C3R(const Hux8u* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiConvert_8u16s_C4R(const Hux8u* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiConvert_8u16s_AC4R(const Hux8u* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiConvert_8u32s_C1R(const Hux8u* pSrc, int srcStep, Hux32s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiConvert_8u32s_C3R(const Hux8u* pSrc, int srcStep, Hux32s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiConvert_8u32s_C4R(const Hux8u* pSrc, int srcStep, Hux32s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiConvert_8u32s_AC4R(const Hux8u* pSrc, int srcStep, Hux32s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiConvert_8u32f_C1R(const Hux8u* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiConvert_8u32f_C3R(const Hux8u* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiConvert_8u32f_C4R(const Hux8u* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiConvert_8u32f_AC4R(const Hux8u* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiConvert_8s32s_C1R(const Hux8s* pSrc, int srcStep, Hux32s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiConvert_8s32s_C3R(const Hux8s* pSrc, int srcStep, Hux32s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiConvert_8s32s_C4R(const Hux8s* pSrc, int srcStep, Hux32s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiConvert_8s32s_AC4R(const Hux8s* pSrc, int srcStep, Hux32s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiConvert_8s32f_C1R(const Hux8s* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiConvert_8s32f_C3R(const Hux8s* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiConvert_8s32f_C4R(const Hux8s* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiConvert_8s32f_AC4R(const Hux8s* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiConvert_16u8u_C1R(const Hux16u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiConvert_16u8u_C3R(const Hux16u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiConvert_16u8u_C4R(const Hux16u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiConvert_16u8u_AC4R(const Hux16u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiConvert_16u32s_C1R(const Hux16u* pSrc, int srcStep, Hux32s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiConvert_16u32s_C3R(const Hux16u* pSrc, int srcStep, Hux32s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiConvert_16u32s_C4R(const Hux16u* pSrc, int srcStep, Hux32s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiConvert_16u32s_AC4R(const Hux16u* pSrc, int srcStep, Hux32s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiConvert_16u32f_C1R(const Hux16u* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiConvert_16u32f_C3R(const Hux16u* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiConvert_16u32f_C4R(const Hux16u* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiConvert_16u32f_AC4R(const Hux16u* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiConvert_16s8u_C1R(const Hux16s* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiConvert_16s8u_C3R(const Hux16s* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiConvert_16s8u_C4R(const Hux16s* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiConvert_16s8u_AC4R(const Hux16s* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiConvert_16s32f_C1R(const Hux16s* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiConvert_16s32f_C3R(const Hux16s* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiConvert_16s32f_C4R(const Hux16s* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiConvert_16s32f_AC4R(const Hux16s* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiConvert_32s8u_C1R(const Hux32s* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiConvert_32s8u_C3R(const Hux32s* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiConvert_32s8u_C4R(const Hux32s* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiConvert_32s8u_AC4R(const Hux32s* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiConvert_32s8s_C1R(const Hux32s* pSrc, int srcStep, Hux8s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiConvert_32s8s_C3R(const Hux32s* pSrc, int srcStep, Hux8s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiConvert_32s8s_C4R(const Hux32s* pSrc, int srcStep, Hux8s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiConvert_32s8s_AC4R(const Hux32s* pSrc, int srcStep, Hux8s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiConvert_32f8u_C1R(const Hux32f* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                        HuxRoundMode roundMode);
HUX_API HuxStatus huxiConvert_32f8u_C3R(const Hux32f* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                        HuxRoundMode roundMode);
HUX_API HuxStatus huxiConvert_32f8u_C4R(const Hux32f* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                        HuxRoundMode roundMode);
HUX_API HuxStatus huxiConvert_32f8u_AC4R(const Hux32f* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                         HuxRoundMode roundMode);
HUX_API HuxStatus huxiConvert_32f8s_C1R(const Hux32f* pSrc, int srcStep, Hux8s* pDst, int dstStep, HuxiSize roiSize,
                                        HuxRoundMode roundMode);
HUX_API HuxStatus huxiConvert_32f8s_C3R(const Hux32f* pSrc, int srcStep, Hux8s* pDst, int dstStep, HuxiSize roiSize,
                                        HuxRoundMode roundMode);
HUX_API HuxStatus huxiConvert_32f8s_C4R(const Hux32f* pSrc, int srcStep, Hux8s* pDst, int dstStep, HuxiSize roiSize,
                                        HuxRoundMode roundMode);
HUX_API HuxStatus huxiConvert_32f8s_AC4R(const Hux32f* pSrc, int srcStep, Hux8s* pDst, int dstStep, HuxiSize roiSize,
                                         HuxRoundMode roundMode);
HUX_API HuxStatus huxiConvert_32f16u_C1R(const Hux32f* pSrc, int srcStep, Hux16u* pDst, int dstStep, HuxiSize roiSize,
                                         HuxRoundMode roundMode);
HUX_API HuxStatus huxiConvert_32f16u_C3R(const Hux32f* pSrc, int srcStep, Hux16u* pDst, int dstStep, HuxiSize roiSize,
                                         HuxRoundMode roundMode);
HUX_API HuxStatus huxiConvert_32f16u_C4R(const Hux32f* pSrc, int srcStep, Hux16u* pDst, int dstStep, HuxiSize roiSize,
                                         HuxRoundMode roundMode);
HUX_API HuxStatus huxiConvert_32f16u_AC4R(const Hux32f* pSrc, int srcStep, Hux16u* pDst, int dstStep, HuxiSize roiSize,
                                          HuxRoundMode roundMode);
HUX_API HuxStatus huxiConvert_32f16s_C1R(const Hux32f* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize,
                                         HuxRoundMode roundMode);
HUX_API HuxStatus huxiConvert_32f16s_C3R(const Hux32f* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize,
                                         HuxRoundMode roundMode);
HUX_API HuxStatus huxiConvert_32f16s_C4R(const Hux32f* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize,
                                         HuxRoundMode roundMode);
HUX_API HuxStatus huxiConvert_32f16s_AC4R(const Hux32f* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize,
                                          HuxRoundMode roundMode);

/* Convert, 1u8u: unpacks bits, the most significant of a byte first, to bytes of 0 or 255.
 * The first bit of each row is bit srcBitOffset & 7 of the row's first byte: an offset of 8 or more does not move on
 * to a later byte.
 * Checks, in order: null pointers (huxStsNullPtr), width or height below 1 (huxStsBadSize), a step below 1
 * (huxStsBadStep), srcBitOffset below 0 (huxStsBadSize). */
HUX_API HuxStatus huxiConvert_1u8u_C1R(const Hux8u* pSrc, int srcStep, int srcBitOffset, Hux8u* pDst, int dstStep,
                                       HuxiSize roiSize);
/* Convert, 8u1u: halftones by error diffusion to packed bits, the most significant of a byte first.
 * A bit is 1 where the pixel, together with the errors that it has been handed, lies above threshold. The first bit of
 * each row is bit dstBitOffset & 7 of the row's first byte. Bits before the offset are kept; bits behind the end are
 * kept where a row ends in a later byte, and cleared in a first byte that the row does not fill and that has an
 * offset.
 * Checks, in order: null pointers (huxStsNullPtr), width or height below 1 or dstBitOffset below 0 (huxStsBadSize),
 * memory for three rows (huxStsNoMem; nothing is written then). Steps are not checked. */
HUX_API HuxStatus huxiConvert_8u1u_C1R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, int dstBitOffset,
                                       HuxiSize roiSize, Hux8u threshold);

/* Scale: maps the full range of one type onto the full range of the other, floats onto or from vMin..vMax.
 *   8u16u   p * 257                                   16u8u   ((p' - (p' >> 8)) >> 8) + 128 with p' = p - 32768
 *   8u16s   p * 257 - 32768                           16s8u   ((p - (p >> 8)) >> 8) + 128
 *   8u32s   p * 16843009 - 2^31                       32s8u   ((p - (p >> 8)) >> 24) + 128
 *   8u32f   p * ((vMax - vMin) / 255) + vMin, in single precision
 *   32f8u   255 from vMax on, 0 up to vMin and for NaN; in between p * m + (0.5 - m * vMin) in single precision, with
 *           m = 255 / (vMax - vMin), rounded down, a tie to even
 * From integers to 8u, the hint huxAlgHintAccurate takes the nearest value; any other hint takes the form above, which
 * is quicker and may be one off. AC4: alpha of the destination stays.
 * Checks, in order: forms with 32f first of all vMax - vMin not above 0 (huxStsBadScaleRange); then null pointers
 * (huxStsNullPtr), width or height below 1 (huxStsBadSize), a step below 1 (huxStsBadStep). */
HUX_API HuxStatus huxiScale_8u16u_C1R(const Hux8u* pSrc, int srcStep, Hux16u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiScale_8u16u_C3R(const Hux8u* pSrc, int srcStep, Hux16u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiScale_8u16u_C4R(const Hux8u* pSrc, int srcStep, Hux16u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiScale_8u16u_AC4R(const Hux8u* pSrc, int srcStep, Hux16u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiScale_8u16s_C1R(const Hux8u* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiScale_8u16s_C3R(const Hux8u* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiScale_8u16s_C4R(const Hux8u* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiScale_8u16s_AC4R(const Hux8u* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiScale_8u32s_C1R(const Hux8u* pSrc, int srcStep, Hux32s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiScale_8u32s_C3R(const Hux8u* pSrc, int srcStep, Hux32s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiScale_8u32s_C4R(const Hux8u* pSrc, int srcStep, Hux32s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiScale_8u32s_AC4R(const Hux8u* pSrc, int srcStep, Hux32s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiScale_8u32f_C1R(const Hux8u* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize,
                                      Hux32f vMin, Hux32f vMax);
HUX_API HuxStatus huxiScale_8u32f_C3R(const Hux8u* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize,
                                      Hux32f vMin, Hux32f vMax);
HUX_API HuxStatus huxiScale_8u32f_C4R(const Hux8u* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize,
                                      Hux32f vMin, Hux32f vMax);
HUX_API HuxStatus huxiScale_8u32f_AC4R(const Hux8u* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize,
                                       Hux32f vMin, Hux32f vMax);
HUX_API HuxStatus huxiScale_16u8u_C1R(const Hux16u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                      HuxAccuracyHint hint);
HUX_API HuxStatus huxiScale_16u8u_C3R(const Hux16u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                      HuxAccuracyHint hint);
HUX_API HuxStatus huxiScale_16u8u_C4R(const Hux16u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                      HuxAccuracyHint hint);
HUX_API HuxStatus huxiScale_16u8u_AC4R(const Hux16u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                       HuxAccuracyHint hint);
HUX_API HuxStatus huxiScale_16s8u_C1R(const Hux16s* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                      HuxAccuracyHint hint);
HUX_API HuxStatus huxiScale_16s8u_C3R(const Hux16s* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                      HuxAccuracyHint hint);
HUX_API HuxStatus huxiScale_16s8u_C4R(const Hux16s* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                      HuxAccuracyHint hint);
HUX_API HuxStatus huxiScale_16s8u_AC4R(const Hux16s* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                       HuxAccuracyHint hint);
HUX_API HuxStatus huxiScale_32s8u_C1R(const Hux32s* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                      HuxAccuracyHint hint);
HUX_API HuxStatus huxiScale_32s8u_C3R(const Hux32s* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                      HuxAccuracyHint hint);
HUX_API HuxStatus huxiScale_32s8u_C4R(const Hux32s* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                      HuxAccuracyHint hint);
HUX_API HuxStatus huxiScale_32s8u_AC4R(const Hux32s* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                       HuxAccuracyHint hint);
HUX_API HuxStatus huxiScale_32f8u_C1R(const Hux32f* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                      Hux32f vMin, Hux32f vMax);
HUX_API HuxStatus huxiScale_32f8u_C3R(const Hux32f* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                      Hux32f vMin, Hux32f vMax);
HUX_API HuxStatus huxiScale_32f8u_C4R(const Hux32f* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                      Hux32f vMin, Hux32f vMax);
HUX_API HuxStatus huxiScale_32f8u_AC4R(const Hux32f* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                       Hux32f vMin, Hux32f vMax);

/* ---- Borders ---- */

/* CopyConstBorder: places the source region in a larger destination and fills the frame around it with a constant.
 * The region lies topBorderHeight rows down and leftBorderWidth pixels to the right in the destination; what
 * dstRoiSize leaves on the right and below is frame too. pValue holds 3 constants (C3, AC4) or 4 (C4). AC4: alpha of
 * frame and region is not written. Borders of 0 are legal.
 * Checks, in order: pSrc or pDst null (huxStsNullPtr); a step below 1 (huxStsBadStep); width or height of either size
 * below 1, a negative border, a destination narrower than leftBorderWidth + srcRoiSize.width or lower than
 * topBorderHeight + srcRoiSize.height (huxStsBadSize); last, pValue null (huxStsNullPtr). */
HUX_API HuxStatus huxiCopyConstBorder_8u_C1R(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize, Hux8u* pDst,
                                             int dstStep, HuxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth,
                                             Hux8u value);
HUX_API HuxStatus huxiCopyConstBorder_16s_C1R(const Hux16s* pSrc, int srcStep, HuxiSize srcRoiSize, Hux16s* pDst,
                                              int dstStep, HuxiSize dstRoiSize, int topBorderHeight,
                                              int leftBorderWidth, Hux16s value);
HUX_API HuxStatus huxiCopyConstBorder_32s_C1R(const Hux32s* pSrc, int srcStep, HuxiSize srcRoiSize, Hux32s* pDst,
                                              int dstStep, HuxiSize dstRoiSize, int topBorderHeight,
                                              int leftBorderWidth, Hux32s value);
HUX_API HuxStatus huxiCopyConstBorder_8u_C3R(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize, Hux8u* pDst,
                                             int dstStep, HuxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth,
                                             const Hux8u* pValue);
HUX_API HuxStatus huxiCopyConstBorder_16s_C3R(const Hux16s* pSrc, int srcStep, HuxiSize srcRoiSize, Hux16s* pDst,
                                              int dstStep, HuxiSize dstRoiSize, int topBorderHeight,
                                              int leftBorderWidth, const Hux16s* pValue);
HUX_API HuxStatus huxiCopyConstBorder_32s_C3R(const Hux32s* pSrc, int srcStep, HuxiSize srcRoiSize, Hux32s* pDst,
                                              int dstStep, HuxiSize dstRoiSize, int topBorderHeight,
                                              int leftBorderWidth, const Hux32s* pValue);
HUX_API HuxStatus huxiCopyConstBorder_8u_C4R(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize, Hux8u* pDst,
                                             int dstStep, HuxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth,
                                             const Hux8u* pValue);
HUX_API HuxStatus huxiCopyConstBorder_16s_C4R(const Hux16s* pSrc, int srcStep, HuxiSize srcRoiSize, Hux16s* pDst,
                                              int dstStep, HuxiSize dstRoiSize, int topBorderHeight,
                                              int leftBorderWidth, const Hux16s* pValue);
HUX_API HuxStatus huxiCopyConstBorder_32s_C4R(const Hux32s* pSrc, int srcStep, HuxiSize srcRoiSize, Hux32s* pDst,
                                              int dstStep, HuxiSize dstRoiSize, int topBorderHeight,
                                              int leftBorderWidth, const Hux32s* pValue);
HUX_API HuxStatus huxiCopyConstBorder_8u_AC4R(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize, Hux8u* pDst,
                                              int dstStep, HuxiSize dstRoiSize, int topBorderHeight,
                                              int leftBorderWidth, const Hux8u* pValue);
HUX_API HuxStatus huxiCopyConstBorder_16s_AC4R(const Hux16s* pSrc, int srcStep, HuxiSize srcRoiSize, Hux16s* pDst,
                                               int dstStep, HuxiSize dstRoiSize, int topBorderHeight,
                                               int leftBorderWidth, const Hux16s* pValue);
HUX_API HuxStatus huxiCopyConstBorder_32s_AC4R(const Hux32s* pSrc, int srcStep, HuxiSize srcRoiSize, Hux32s* pDst,
                                               int dstStep, HuxiSize dstRoiSize, int topBorderHeight,
                                               int leftBorderWidth, const Hux32s* pValue);

/* CopyReplicateBorder: places the source region in a larger destination, whose frame takes the nearest pixel of the
 * region.
 * The region lies topBorderHeight rows down and leftBorderWidth pixels to the right in the destination; what
 * dstRoiSize leaves on the right and below is frame too. In place, pSrc addresses the first pixel of the region inside
 * the larger image, and the frame is written into the memory around it. AC4: alpha of frame and region is not written.
 * Borders of 0 are legal.
 * Checks, in order: null pointers (huxStsNullPtr); a step below 1 (huxStsBadStep); width or height of either size
 * below 1, a negative border, a destination narrower than leftBorderWidth + srcRoiSize.width or lower than
 * topBorderHeight + srcRoiSize.height (huxStsBadSize).
 * Example:
 *   const HuxiSize framed = {size.width + 4, size.height + 4};  // two pixels on each side, for a filter of 5 by 5
 *   int step;
 *   Hux8u* image = huxiMalloc_8u_C1(framed.width, framed.height, &step);
 *   if (image) huxiCopyReplicateBorder_8u_C1R(src, srcStep, size, image, step, framed, 2, 2);
 *   if (image) huxiFilterGauss_8u_C1R(image + 2 * step + 2, step, dst, dstStep, size, huxMskSize5x5);
 *   huxiFree(image);
 */
HUX_API HuxStatus huxiCopyReplicateBorder_8u_C1R(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize, Hux8u* pDst,
                                                 int dstStep, HuxiSize dstRoiSize, int topBorderHeight,
                                                 int leftBorderWidth);
HUX_API HuxStatus huxiCopyReplicateBorder_16s_C1R(const Hux16s* pSrc, int srcStep, HuxiSize srcRoiSize, Hux16s* pDst,
                                                  int dstStep, HuxiSize dstRoiSize, int topBorderHeight,
                                                  int leftBorderWidth);
HUX_API HuxStatus huxiCopyReplicateBorder_32s_C1R(const Hux32s* pSrc, int srcStep, HuxiSize srcRoiSize, Hux32s* pDst,
                                                  int dstStep, HuxiSize dstRoiSize, int topBorderHeight,
                                                  int leftBorderWidth);
HUX_API HuxStatus huxiCopyReplicateBorder_8u_C3R(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize, Hux8u* pDst,
                                                 int dstStep, HuxiSize dstRoiSize, int topBorderHeight,
                                                 int leftBorderWidth);
HUX_API HuxStatus huxiCopyReplicateBorder_16s_C3R(const Hux16s* pSrc, int srcStep, HuxiSize srcRoiSize, Hux16s* pDst,
                                                  int dstStep, HuxiSize dstRoiSize, int topBorderHeight,
                                                  int leftBorderWidth);
HUX_API HuxStatus huxiCopyReplicateBorder_32s_C3R(const Hux32s* pSrc, int srcStep, HuxiSize srcRoiSize, Hux32s* pDst,
                                                  int dstStep, HuxiSize dstRoiSize, int topBorderHeight,
                                                  int leftBorderWidth);
HUX_API HuxStatus huxiCopyReplicateBorder_8u_C4R(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize, Hux8u* pDst,
                                                 int dstStep, HuxiSize dstRoiSize, int topBorderHeight,
                                                 int leftBorderWidth);
HUX_API HuxStatus huxiCopyReplicateBorder_16s_C4R(const Hux16s* pSrc, int srcStep, HuxiSize srcRoiSize, Hux16s* pDst,
                                                  int dstStep, HuxiSize dstRoiSize, int topBorderHeight,
                                                  int leftBorderWidth);
HUX_API HuxStatus huxiCopyReplicateBorder_32s_C4R(const Hux32s* pSrc, int srcStep, HuxiSize srcRoiSize, Hux32s* pDst,
                                                  int dstStep, HuxiSize dstRoiSize, int topBorderHeight,
                                                  int leftBorderWidth);
HUX_API HuxStatus huxiCopyReplicateBorder_8u_AC4R(const Hux8u* pSrc, int srcStep, HuxiSize srcRoiSize, Hux8u* pDst,
                                                  int dstStep, HuxiSize dstRoiSize, int topBorderHeight,
                                                  int leftBorderWidth);
HUX_API HuxStatus huxiCopyReplicateBorder_16s_AC4R(const Hux16s* pSrc, int srcStep, HuxiSize srcRoiSize, Hux16s* pDst,
                                                   int dstStep, HuxiSize dstRoiSize, int topBorderHeight,
                                                   int leftBorderWidth);
HUX_API HuxStatus huxiCopyReplicateBorder_32s_AC4R(const Hux32s* pSrc, int srcStep, HuxiSize srcRoiSize, Hux32s* pDst,
                                                   int dstStep, HuxiSize dstRoiSize, int topBorderHeight,
                                                   int leftBorderWidth);
HUX_API HuxStatus huxiCopyReplicateBorder_8u_C1IR(Hux8u* pSrc, int srcDstStep, HuxiSize srcRoiSize, HuxiSize dstRoiSize,
                                                  int topBorderHeight, int leftBorderWidth);
HUX_API HuxStatus huxiCopyReplicateBorder_16s_C1IR(Hux16s* pSrc, int srcDstStep, HuxiSize srcRoiSize,
                                                   HuxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
HUX_API HuxStatus huxiCopyReplicateBorder_32s_C1IR(Hux32s* pSrc, int srcDstStep, HuxiSize srcRoiSize,
                                                   HuxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
HUX_API HuxStatus huxiCopyReplicateBorder_8u_C3IR(Hux8u* pSrc, int srcDstStep, HuxiSize srcRoiSize, HuxiSize dstRoiSize,
                                                  int topBorderHeight, int leftBorderWidth);
HUX_API HuxStatus huxiCopyReplicateBorder_16s_C3IR(Hux16s* pSrc, int srcDstStep, HuxiSize srcRoiSize,
                                                   HuxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
HUX_API HuxStatus huxiCopyReplicateBorder_32s_C3IR(Hux32s* pSrc, int srcDstStep, HuxiSize srcRoiSize,
                                                   HuxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
HUX_API HuxStatus huxiCopyReplicateBorder_8u_C4IR(Hux8u* pSrc, int srcDstStep, HuxiSize srcRoiSize, HuxiSize dstRoiSize,
                                                  int topBorderHeight, int leftBorderWidth);
HUX_API HuxStatus huxiCopyReplicateBorder_16s_C4IR(Hux16s* pSrc, int srcDstStep, HuxiSize srcRoiSize,
                                                   HuxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
HUX_API HuxStatus huxiCopyReplicateBorder_32s_C4IR(Hux32s* pSrc, int srcDstStep, HuxiSize srcRoiSize,
                                                   HuxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
HUX_API HuxStatus huxiCopyReplicateBorder_8u_AC4IR(Hux8u* pSrc, int srcDstStep, HuxiSize srcRoiSize,
                                                   HuxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
HUX_API HuxStatus huxiCopyReplicateBorder_16s_AC4IR(Hux16s* pSrc, int srcDstStep, HuxiSize srcRoiSize,
                                                    HuxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
HUX_API HuxStatus huxiCopyReplicateBorder_32s_AC4IR(Hux32s* pSrc, int srcDstStep, HuxiSize srcRoiSize,
                                                    HuxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth);

/* CopyWrapBorder: places the source region in a larger destination, whose frame is the periodic continuation of the
 * region.
 * Pixel (x, y) of the destination is pixel ((x - leftBorderWidth) mod width, (y - topBorderHeight) mod height) of the
 * region, also where the frame is wider than the region. In place, pSrc addresses the first pixel of the region inside
 * the larger image. Unsigned, float and packed pixels of 32 bits use the same members. Borders of 0 are legal.
 * Checks, in order: null pointers (huxStsNullPtr); a step below 1 (huxStsBadStep); width or height of either size
 * below 1, a negative border, a destination narrower than leftBorderWidth + srcRoiSize.width or lower than
 * topBorderHeight + srcRoiSize.height (huxStsBadSize). */
HUX_API HuxStatus huxiCopyWrapBorder_32s_C1R(const Hux32s* pSrc, int srcStep, HuxiSize srcRoiSize, Hux32s* pDst,
                                             int dstStep, HuxiSize dstRoiSize, int topBorderHeight,
                                             int leftBorderWidth);
HUX_API HuxStatus huxiCopyWrapBorder_32s_C1IR(Hux32s* pSrc, int srcDstStep, HuxiSize srcRoiSize, HuxiSize dstRoiSize,
                                              int topBorderHeight, int leftBorderWidth);

/* ---- Channels and places ---- */

/* Dup: writes each source element to all three channels of the destination pixel.
 * Checks, in order: null pointers (huxStsNullPtr), width or height below 1 (huxStsBadSize). Steps are not checked. */
HUX_API HuxStatus huxiDup_8u_C1C3R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize);

/* SwapChannels: channel c of the destination takes channel dstOrder[c] of the source, c = 0..2.
 * dstOrder need not be a permutation: {0, 0, 0} repeats a channel. AC4: alpha of the destination stays.
 * Checks, in order: null pointers (huxStsNullPtr), width or height below 1 (huxStsBadSize), a step below 1
 * (huxStsBadStep), a channel number outside 0..2 (huxStsBadChannelOrder).
 * Example:
 *   const int backwards[3] = {2, 1, 0};  // RGB to BGR, or back
 *   huxiSwapChannels_8u_C3IR(dst, dstStep, size, backwards);
 */
HUX_API HuxStatus huxiSwapChannels_8u_C3R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                          const int dstOrder[3]);
HUX_API HuxStatus huxiSwapChannels_16u_C3R(const Hux16u* pSrc, int srcStep, Hux16u* pDst, int dstStep, HuxiSize roiSize,
                                           const int dstOrder[3]);
HUX_API HuxStatus huxiSwapChannels_32s_C3R(const Hux32s* pSrc, int srcStep, Hux32s* pDst, int dstStep, HuxiSize roiSize,
                                           const int dstOrder[3]);
HUX_API HuxStatus huxiSwapChannels_32f_C3R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roiSize,
                                           const int dstOrder[3]);
HUX_API HuxStatus huxiSwapChannels_8u_AC4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                           const int dstOrder[3]);
HUX_API HuxStatus huxiSwapChannels_16u_AC4R(const Hux16u* pSrc, int srcStep, Hux16u* pDst, int dstStep,
                                            HuxiSize roiSize, const int dstOrder[3]);
HUX_API HuxStatus huxiSwapChannels_32s_AC4R(const Hux32s* pSrc, int srcStep, Hux32s* pDst, int dstStep,
                                            HuxiSize roiSize, const int dstOrder[3]);
HUX_API HuxStatus huxiSwapChannels_32f_AC4R(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                                            HuxiSize roiSize, const int dstOrder[3]);
HUX_API HuxStatus huxiSwapChannels_8u_C3IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, const int dstOrder[3]);

/* Transpose: pixel (x, y) of the source goes to (y, x).
 * roiSize is the source's; the destination has roiSize.height columns and roiSize.width rows, and must not overlap the
 * source. In place the region must be square.
 * Checks, in order: null pointers (huxStsNullPtr), width or height below 1, in place also a width different from the
 * height (huxStsBadSize). Steps are not checked. */
HUX_API HuxStatus huxiTranspose_8u_C1R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiTranspose_16u_C1R(const Hux16u* pSrc, int srcStep, Hux16u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiTranspose_32s_C1R(const Hux32s* pSrc, int srcStep, Hux32s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiTranspose_8u_C3R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiTranspose_16u_C3R(const Hux16u* pSrc, int srcStep, Hux16u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiTranspose_32s_C3R(const Hux32s* pSrc, int srcStep, Hux32s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiTranspose_8u_C4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiTranspose_16u_C4R(const Hux16u* pSrc, int srcStep, Hux16u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiTranspose_32s_C4R(const Hux32s* pSrc, int srcStep, Hux32s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiTranspose_8u_C1IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiTranspose_16u_C1IR(Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiTranspose_32s_C1IR(Hux32s* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiTranspose_8u_C3IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiTranspose_16u_C3IR(Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiTranspose_32s_C3IR(Hux32s* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiTranspose_8u_C4IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiTranspose_16u_C4IR(Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiTranspose_32s_C4IR(Hux32s* pSrcDst, int srcDstStep, HuxiSize roiSize);

/* Mirror: reverses the order of the rows, of the pixels in each row, or both.
 * flip is huxAxsHorizontal for the rows, huxAxsVertical for the pixels in each row, huxAxsBoth for both. Channels keep
 * their order within a pixel. AC4: alpha of the destination stays where it is, in place too.
 * Checks, in order: null pointers (huxStsNullPtr), width or height below 1 (huxStsBadSize), flip none of the three
 * (huxStsBadAxis). Steps are not checked. */
HUX_API HuxStatus huxiMirror_8u_C1R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                    HuxiAxis flip);
HUX_API HuxStatus huxiMirror_16u_C1R(const Hux16u* pSrc, int srcStep, Hux16u* pDst, int dstStep, HuxiSize roiSize,
                                     HuxiAxis flip);
HUX_API HuxStatus huxiMirror_32s_C1R(const Hux32s* pSrc, int srcStep, Hux32s* pDst, int dstStep, HuxiSize roiSize,
                                     HuxiAxis flip);
HUX_API HuxStatus huxiMirror_8u_C3R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                    HuxiAxis flip);
HUX_API HuxStatus huxiMirror_16u_C3R(const Hux16u* pSrc, int srcStep, Hux16u* pDst, int dstStep, HuxiSize roiSize,
                                     HuxiAxis flip);
HUX_API HuxStatus huxiMirror_32s_C3R(const Hux32s* pSrc, int srcStep, Hux32s* pDst, int dstStep, HuxiSize roiSize,
                                     HuxiAxis flip);
HUX_API HuxStatus huxiMirror_8u_C4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                    HuxiAxis flip);
HUX_API HuxStatus huxiMirror_16u_C4R(const Hux16u* pSrc, int srcStep, Hux16u* pDst, int dstStep, HuxiSize roiSize,
                                     HuxiAxis flip);
HUX_API HuxStatus huxiMirror_32s_C4R(const Hux32s* pSrc, int srcStep, Hux32s* pDst, int dstStep, HuxiSize roiSize,
                                     HuxiAxis flip);
HUX_API HuxStatus huxiMirror_8u_AC4R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize,
                                     HuxiAxis flip);
HUX_API HuxStatus huxiMirror_16u_AC4R(const Hux16u* pSrc, int srcStep, Hux16u* pDst, int dstStep, HuxiSize roiSize,
                                      HuxiAxis flip);
HUX_API HuxStatus huxiMirror_32s_AC4R(const Hux32s* pSrc, int srcStep, Hux32s* pDst, int dstStep, HuxiSize roiSize,
                                      HuxiAxis flip);
HUX_API HuxStatus huxiMirror_8u_C1IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, HuxiAxis flip);
HUX_API HuxStatus huxiMirror_16u_C1IR(Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize, HuxiAxis flip);
HUX_API HuxStatus huxiMirror_32s_C1IR(Hux32s* pSrcDst, int srcDstStep, HuxiSize roiSize, HuxiAxis flip);
HUX_API HuxStatus huxiMirror_8u_C3IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, HuxiAxis flip);
HUX_API HuxStatus huxiMirror_16u_C3IR(Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize, HuxiAxis flip);
HUX_API HuxStatus huxiMirror_32s_C3IR(Hux32s* pSrcDst, int srcDstStep, HuxiSize roiSize, HuxiAxis flip);
HUX_API HuxStatus huxiMirror_8u_C4IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, HuxiAxis flip);
HUX_API HuxStatus huxiMirror_16u_C4IR(Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize, HuxiAxis flip);
HUX_API HuxStatus huxiMirror_32s_C4IR(Hux32s* pSrcDst, int srcDstStep, HuxiSize roiSize, HuxiAxis flip);
HUX_API HuxStatus huxiMirror_8u_AC4IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, HuxiAxis flip);
HUX_API HuxStatus huxiMirror_16u_AC4IR(Hux16u* pSrcDst, int srcDstStep, HuxiSize roiSize, HuxiAxis flip);
HUX_API HuxStatus huxiMirror_32s_AC4IR(Hux32s* pSrcDst, int srcDstStep, HuxiSize roiSize, HuxiAxis flip);

/* ---- Test images and noise ---- */

/* ImageRamp: writes a linear ramp.
 *   c * slope + offset, in single precision
 * with c the column of the pixel (huxAxsHorizontal), its row (huxAxsVertical) or their product (huxAxsBoth), counted
 * from 0; the same for all channels. Integers are rounded to nearest, halves away from zero, and saturated; NaN
 * becomes the lowest value. Any other axis succeeds and writes nothing. AC4: alpha stays. dstStep is rounded down to
 * whole elements.
 * Checks, in order: pDst null (huxStsNullPtr), dstStep below 1 (huxStsBadStep), width or height below 1
 * (huxStsBadSize). */
HUX_API HuxStatus huxiImageRamp_8u_C1R(Hux8u* pDst, int dstStep, HuxiSize roiSize, Hux32f offset, Hux32f slope,
                                       HuxiAxis axis);
HUX_API HuxStatus huxiImageRamp_8u_C3R(Hux8u* pDst, int dstStep, HuxiSize roiSize, Hux32f offset, Hux32f slope,
                                       HuxiAxis axis);
HUX_API HuxStatus huxiImageRamp_8u_C4R(Hux8u* pDst, int dstStep, HuxiSize roiSize, Hux32f offset, Hux32f slope,
                                       HuxiAxis axis);
HUX_API HuxStatus huxiImageRamp_8u_AC4R(Hux8u* pDst, int dstStep, HuxiSize roiSize, Hux32f offset, Hux32f slope,
                                        HuxiAxis axis);
HUX_API HuxStatus huxiImageRamp_8s_C1R(Hux8s* pDst, int dstStep, HuxiSize roiSize, Hux32f offset, Hux32f slope,
                                       HuxiAxis axis);
HUX_API HuxStatus huxiImageRamp_8s_C3R(Hux8s* pDst, int dstStep, HuxiSize roiSize, Hux32f offset, Hux32f slope,
                                       HuxiAxis axis);
HUX_API HuxStatus huxiImageRamp_8s_C4R(Hux8s* pDst, int dstStep, HuxiSize roiSize, Hux32f offset, Hux32f slope,
                                       HuxiAxis axis);
HUX_API HuxStatus huxiImageRamp_8s_AC4R(Hux8s* pDst, int dstStep, HuxiSize roiSize, Hux32f offset, Hux32f slope,
                                        HuxiAxis axis);
HUX_API HuxStatus huxiImageRamp_16u_C1R(Hux16u* pDst, int dstStep, HuxiSize roiSize, Hux32f offset, Hux32f slope,
                                        HuxiAxis axis);
HUX_API HuxStatus huxiImageRamp_16u_C3R(Hux16u* pDst, int dstStep, HuxiSize roiSize, Hux32f offset, Hux32f slope,
                                        HuxiAxis axis);
HUX_API HuxStatus huxiImageRamp_16u_C4R(Hux16u* pDst, int dstStep, HuxiSize roiSize, Hux32f offset, Hux32f slope,
                                        HuxiAxis axis);
HUX_API HuxStatus huxiImageRamp_16u_AC4R(Hux16u* pDst, int dstStep, HuxiSize roiSize, Hux32f offset, Hux32f slope,
                                         HuxiAxis axis);
HUX_API HuxStatus huxiImageRamp_16s_C1R(Hux16s* pDst, int dstStep, HuxiSize roiSize, Hux32f offset, Hux32f slope,
                                        HuxiAxis axis);
HUX_API HuxStatus huxiImageRamp_16s_C3R(Hux16s* pDst, int dstStep, HuxiSize roiSize, Hux32f offset, Hux32f slope,
                                        HuxiAxis axis);
HUX_API HuxStatus huxiImageRamp_16s_C4R(Hux16s* pDst, int dstStep, HuxiSize roiSize, Hux32f offset, Hux32f slope,
                                        HuxiAxis axis);
HUX_API HuxStatus huxiImageRamp_16s_AC4R(Hux16s* pDst, int dstStep, HuxiSize roiSize, Hux32f offset, Hux32f slope,
                                         HuxiAxis axis);
HUX_API HuxStatus huxiImageRamp_32s_C1R(Hux32s* pDst, int dstStep, HuxiSize roiSize, Hux32f offset, Hux32f slope,
                                        HuxiAxis axis);
HUX_API HuxStatus huxiImageRamp_32s_C3R(Hux32s* pDst, int dstStep, HuxiSize roiSize, Hux32f offset, Hux32f slope,
                                        HuxiAxis axis);
HUX_API HuxStatus huxiImageRamp_32s_C4R(Hux32s* pDst, int dstStep, HuxiSize roiSize, Hux32f offset, Hux32f slope,
                                        HuxiAxis axis);
HUX_API HuxStatus huxiImageRamp_32s_AC4R(Hux32s* pDst, int dstStep, HuxiSize roiSize, Hux32f offset, Hux32f slope,
                                         HuxiAxis axis);
HUX_API HuxStatus huxiImageRamp_32f_C1R(Hux32f* pDst, int dstStep, HuxiSize roiSize, Hux32f offset, Hux32f slope,
                                        HuxiAxis axis);
HUX_API HuxStatus huxiImageRamp_32f_C3R(Hux32f* pDst, int dstStep, HuxiSize roiSize, Hux32f offset, Hux32f slope,
                                        HuxiAxis axis);
HUX_API HuxStatus huxiImageRamp_32f_C4R(Hux32f* pDst, int dstStep, HuxiSize roiSize, Hux32f offset, Hux32f slope,
                                        HuxiAxis axis);
HUX_API HuxStatus huxiImageRamp_32f_AC4R(Hux32f* pDst, int dstStep, HuxiSize roiSize, Hux32f offset, Hux32f slope,
                                         HuxiAxis axis);

/* ImageJaehne: writes a radial chirp, whose rings grow finer from the centre of the region outwards.
 *   s = sin(2 pi r^2 / (4 height)), r being the distance from the centre, in an image of any width
 * Unsigned integers take s + 1 and signed ones s, over the whole range of the type, truncated; 32f takes s + 1 over 0
 * to 1. The same for all channels; AC4: alpha stays.
 * Checks, in order: pDst null (huxStsNullPtr), dstStep below 1 (huxStsBadStep), width or height below 1
 * (huxStsBadSize). */
HUX_API HuxStatus huxiImageJaehne_8u_C1R(Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiImageJaehne_8u_C3R(Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiImageJaehne_8u_C4R(Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiImageJaehne_8u_AC4R(Hux8u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiImageJaehne_8s_C1R(Hux8s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiImageJaehne_8s_C3R(Hux8s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiImageJaehne_8s_C4R(Hux8s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiImageJaehne_8s_AC4R(Hux8s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiImageJaehne_16u_C1R(Hux16u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiImageJaehne_16u_C3R(Hux16u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiImageJaehne_16u_C4R(Hux16u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiImageJaehne_16u_AC4R(Hux16u* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiImageJaehne_16s_C1R(Hux16s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiImageJaehne_16s_C3R(Hux16s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiImageJaehne_16s_C4R(Hux16s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiImageJaehne_16s_AC4R(Hux16s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiImageJaehne_32s_C1R(Hux32s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiImageJaehne_32s_C3R(Hux32s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiImageJaehne_32s_C4R(Hux32s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiImageJaehne_32s_AC4R(Hux32s* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiImageJaehne_32f_C1R(Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiImageJaehne_32f_C3R(Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiImageJaehne_32f_C4R(Hux32f* pDst, int dstStep, HuxiSize roiSize);
HUX_API HuxStatus huxiImageJaehne_32f_AC4R(Hux32f* pDst, int dstStep, HuxiSize roiSize);

/* AddRandUniform_Direct, AddRandGauss_Direct: add noise to an image in place, uniform from low to high or normal with
 * mean and stdDev.
 * These take any value; low above high and a negative stdDev are not refused. On integers the noise is truncated and
 * the sum saturated; on 32f the sum is formed in double precision. The generator starts from *pSeed, and what it would
 * go on from is left there, so that further calls do not repeat the noise; the same seed gives the same noise
 * everywhere. Elements are served in memory order, normal noise in pairs that end with a row; alpha of AC4 takes none
 * and stays.
 * Checks, in order: null pointers (huxStsNullPtr), width or height below 1 (huxStsBadSize), srcDstStep below 1
 * (huxStsBadStep).
 * Example:
 *   Hux32u seed = 1;
 *   huxiAddRandGauss_Direct_8u_C1IR(dst, dstStep, size, 0, 12, &seed);
 */
HUX_API HuxStatus huxiAddRandUniform_Direct_8u_C1IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, Hux8u low,
                                                    Hux8u high, Hux32u* pSeed);
HUX_API HuxStatus huxiAddRandUniform_Direct_8u_C3IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, Hux8u low,
                                                    Hux8u high, Hux32u* pSeed);
HUX_API HuxStatus huxiAddRandUniform_Direct_8u_C4IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, Hux8u low,
                                                    Hux8u high, Hux32u* pSeed);
HUX_API HuxStatus huxiAddRandUniform_Direct_8u_AC4IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, Hux8u low,
                                                     Hux8u high, Hux32u* pSeed);
HUX_API HuxStatus huxiAddRandUniform_Direct_16s_C1IR(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize, Hux16s low,
                                                     Hux16s high, Hux32u* pSeed);
HUX_API HuxStatus huxiAddRandUniform_Direct_16s_C3IR(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize, Hux16s low,
                                                     Hux16s high, Hux32u* pSeed);
HUX_API HuxStatus huxiAddRandUniform_Direct_16s_C4IR(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize, Hux16s low,
                                                     Hux16s high, Hux32u* pSeed);
HUX_API HuxStatus huxiAddRandUniform_Direct_16s_AC4IR(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize, Hux16s low,
                                                      Hux16s high, Hux32u* pSeed);
HUX_API HuxStatus huxiAddRandUniform_Direct_32f_C1IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize, Hux32f low,
                                                     Hux32f high, Hux32u* pSeed);
HUX_API HuxStatus huxiAddRandUniform_Direct_32f_C3IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize, Hux32f low,
                                                     Hux32f high, Hux32u* pSeed);
HUX_API HuxStatus huxiAddRandUniform_Direct_32f_C4IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize, Hux32f low,
                                                     Hux32f high, Hux32u* pSeed);
HUX_API HuxStatus huxiAddRandUniform_Direct_32f_AC4IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize, Hux32f low,
                                                      Hux32f high, Hux32u* pSeed);
HUX_API HuxStatus huxiAddRandGauss_Direct_8u_C1IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, Hux8u mean,
                                                  Hux8u stdDev, Hux32u* pSeed);
HUX_API HuxStatus huxiAddRandGauss_Direct_8u_C3IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, Hux8u mean,
                                                  Hux8u stdDev, Hux32u* pSeed);
HUX_API HuxStatus huxiAddRandGauss_Direct_8u_C4IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, Hux8u mean,
                                                  Hux8u stdDev, Hux32u* pSeed);
HUX_API HuxStatus huxiAddRandGauss_Direct_8u_AC4IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, Hux8u mean,
                                                   Hux8u stdDev, Hux32u* pSeed);
HUX_API HuxStatus huxiAddRandGauss_Direct_16s_C1IR(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize, Hux16s mean,
                                                   Hux16s stdDev, Hux32u* pSeed);
HUX_API HuxStatus huxiAddRandGauss_Direct_16s_C3IR(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize, Hux16s mean,
                                                   Hux16s stdDev, Hux32u* pSeed);
HUX_API HuxStatus huxiAddRandGauss_Direct_16s_C4IR(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize, Hux16s mean,
                                                   Hux16s stdDev, Hux32u* pSeed);
HUX_API HuxStatus huxiAddRandGauss_Direct_16s_AC4IR(Hux16s* pSrcDst, int srcDstStep, HuxiSize roiSize, Hux16s mean,
                                                    Hux16s stdDev, Hux32u* pSeed);
HUX_API HuxStatus huxiAddRandGauss_Direct_32f_C1IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize, Hux32f mean,
                                                   Hux32f stdDev, Hux32u* pSeed);
HUX_API HuxStatus huxiAddRandGauss_Direct_32f_C3IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize, Hux32f mean,
                                                   Hux32f stdDev, Hux32u* pSeed);
HUX_API HuxStatus huxiAddRandGauss_Direct_32f_C4IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize, Hux32f mean,
                                                   Hux32f stdDev, Hux32u* pSeed);
HUX_API HuxStatus huxiAddRandGauss_Direct_32f_AC4IR(Hux32f* pSrcDst, int srcDstStep, HuxiSize roiSize, Hux32f mean,
                                                    Hux32f stdDev, Hux32u* pSeed);

HUX_END_C

#endif
