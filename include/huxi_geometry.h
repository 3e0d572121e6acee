/* Geometric transforms: pixels moved to computed positions. Plain C99. */
#ifndef HUXI_GEOMETRY_H
#define HUXI_GEOMETRY_H

#include "huxdefs.h"

HUX_BEGIN_C

/* ---- Quadrangles ---- */

/* Where a rectangle of pixels goes. Pixels are points at integer coordinates, counted from the image's origin, x to the
 * right and y downwards. srcRoi stands for its inclusive corners x, y and x + width - 1, y + height - 1. A quadrangle
 * has its vertices in the order top left, top right, bottom right, bottom left of the rectangle, each as {x, y}; a
 * bound is {smallest x, smallest y}, {largest x, largest y} of the four. All numbers are 64-bit floats.
 *   affine       x' = c00 x + c01 y + c02, y' = c10 x + c11 y + c12
 *   bilinear     x' = c00 x y + c01 x + c02 y + c03, y' = c10 x y + c11 x + c12 y + c13
 *   perspective  x' = (c00 x + c01 y + c02) / (c20 x + c21 y + c22), y' = (c10 x + c11 y + c12) / (the same)
 *   shear        x' = x + xShear y + xShift, y' = yShear x + y + yShift
 *   rotation     x' = x cos a + y sin a + xShift, y' = -x sin a + y cos a + yShift: a positive angle, in degrees,
 *                turns counter-clockwise on the screen; at 90, 180 and 270 the coefficients are exact
 * Checks: an x or y of srcRoi below 0, a width or height below 1 (huxStsBadSize; nothing is written). A quadrangle that
 * is not convex, or has three vertices in line, gives huxStsBadQuad with quad or bound written all the same; a rotation
 * is not tested for that. Pointers are not checked. */
HUX_API HuxStatus huxiGetAffineQuad(HuxiRect srcRoi, Hux64f quad[4][2], const Hux64f coeffs[2][3]);
HUX_API HuxStatus huxiGetAffineBound(HuxiRect srcRoi, Hux64f bound[2][2], const Hux64f coeffs[2][3]);
HUX_API HuxStatus huxiGetBilinearQuad(HuxiRect srcRoi, Hux64f quad[4][2], const Hux64f coeffs[2][4]);
HUX_API HuxStatus huxiGetBilinearBound(HuxiRect srcRoi, Hux64f bound[2][2], const Hux64f coeffs[2][4]);
HUX_API HuxStatus huxiGetPerspectiveQuad(HuxiRect srcRoi, Hux64f quad[4][2], const Hux64f coeffs[3][3]);
HUX_API HuxStatus huxiGetPerspectiveBound(HuxiRect srcRoi, Hux64f bound[2][2], const Hux64f coeffs[3][3]);
HUX_API HuxStatus huxiGetShearQuad(HuxiRect srcRoi, Hux64f quad[4][2], Hux64f xShear, Hux64f yShear, Hux64f xShift,
                                   Hux64f yShift);
HUX_API HuxStatus huxiGetShearBound(HuxiRect srcRoi, Hux64f bound[2][2], Hux64f xShear, Hux64f yShear, Hux64f xShift,
                                    Hux64f yShift);
HUX_API HuxStatus huxiGetRotateQuad(HuxiRect srcRoi, Hux64f quad[4][2], Hux64f angle, Hux64f xShift, Hux64f yShift);
HUX_API HuxStatus huxiGetRotateBound(HuxiRect srcRoi, Hux64f bound[2][2], Hux64f angle, Hux64f xShift, Hux64f yShift);

/* The map that carries srcRoi on to a quadrangle, to coeffs. An affine map follows from vertices 0, 1 and 2; where
 * vertex 3 does not follow from it, the coefficients are written and the result is huxStsQuadNotAffineWarn.
 * Checks: an x or y of srcRoi below 0, a width or height below 1 (huxStsBadSize), quad not convex or with three
 * vertices in line (huxStsBadCoeffs), srcRoi of one row or one column (huxStsBadRect). Pointers are not checked. */
HUX_API HuxStatus huxiGetAffineTransform(HuxiRect srcRoi, const Hux64f quad[4][2], Hux64f coeffs[2][3]);
HUX_API HuxStatus huxiGetBilinearTransform(HuxiRect srcRoi, const Hux64f quad[4][2], Hux64f coeffs[2][4]);
HUX_API HuxStatus huxiGetPerspectiveTransform(HuxiRect srcRoi, const Hux64f quad[4][2], Hux64f coeffs[3][3]);

/* The shifts with which a rotation by `angle` degrees keeps the point (xCenter, yCenter) where it is: written, or added
 * to what is there. Checks: null pointers (huxStsNullPtr). */
HUX_API HuxStatus huxiGetRotateShift(Hux64f xCenter, Hux64f yCenter, Hux64f angle, Hux64f* pxShift, Hux64f* pyShift);
HUX_API HuxStatus huxiAddRotateShift(Hux64f xCenter, Hux64f yCenter, Hux64f angle, Hux64f* pxShift, Hux64f* pyShift);

/* ---- Resize ---- */

/* Resize: the region srcRoi of an image, scaled by xFactor and yFactor. pSrc addresses the first pixel of the whole
 * source image, whose size is srcSize, and srcRoi counts from there; what overruns the image is cut off, and W, H below
 * are what is left of its width and height. pDst addresses the first pixel that is written. Neighbours of
 * interpolation come from the whole image, never from outside it. AC4: alpha of the destination stays. Images may not
 * overlap.
 *
 * Size. The destination has W xFactor columns, truncated, and H yFactor rows, at most dstRoiSize; less than one, but at
 * least half a pixel, is one.
 * Interpolation, and where the source pixel of destination column j lies, from srcRoi.x; rows likewise:
 *   huxiInterNearest    (j + 1/2) / xFactor, truncated: whole pixels are copied
 *   huxiInterLinear, huxiInterCubic, huxiInterLanczos (six pixels)
 *                       j (W - 1) / (W xFactor - 1): the first and the last pixels coincide; all on the first where
 *                       W xFactor is at most 1
 *   huxiInterSuper      factors of at most 1 only: the mean of all that the pixel covers, by area
 * Positions are sums of steps in double precision; 1e-7 is added before they are truncated. Beyond the last pixel they
 * stand for it. A small image (the whole of it counts) makes Lanczos cubic (a side below 8), cubic linear (below 4) and
 * anything nearest (below 2).
 * Arithmetic: linear 8u and 16u in integers with weights of 2^-14, along columns first, rounded in each of the two
 * directions; all else in single precision, cubic by Newton's form, and 8u and 16u rounded and limited at the end;
 * means in double precision.
 *
 * ResizeCenter: the point (xCenter, yCenter) of the source comes to the middle of the destination dstRoiSize, of which
 * the part that the region covers is written. Mode huxiInterSuper starts at a whole source pixel.
 * ResizeShift: xFr and yFr are steps in the source from one destination pixel to the next, in place of 1 / xFactor and
 * 1 / yFactor, from xShift, yShift on; half a step more in nearest mode. With w = (W - 1) / xFr (W / xFr in nearest
 * mode) truncated, w + 1 (w, at least 1) columns are written if w is below dstRoiSize.width - 1, else all.
 * huxiInterSuper is not for it. xFr and yFr are the factors of the checks.
 *
 * Checks: null pointers, planes included (huxStsNullPtr); srcSize, srcRoi's x or y below 0, its width or height below 1
 * (huxStsBadSize); a first pixel of srcRoi outside the image (huxStsNoOverlapWarn, nothing is done); dstRoiSize
 * (huxStsBadSize); factors not above 0 (huxStsBadResizeFactor); interpolation (huxStsBadInterpolation, also for
 * huxiInterSuper with a factor above 1). Then, of factors: less than half a pixel (huxStsResizeTooSmall).
 * ResizeCenter makes these checks but for pSrc (unless planar) and interpolation, then all of them once more on the
 * part of the region and of the destination that it has found. Supersampling may end with huxStsNoMem. Steps are not
 * checked: a negative srcStep walks up. */
HUX_API HuxStatus huxiResize_8u_C1R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi, Hux8u* pDst,
                                    int dstStep, HuxiSize dstRoiSize, Hux64f xFactor, Hux64f yFactor,
                                    HuxiInterpolation interpolation);
HUX_API HuxStatus huxiResize_8u_C3R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi, Hux8u* pDst,
                                    int dstStep, HuxiSize dstRoiSize, Hux64f xFactor, Hux64f yFactor,
                                    HuxiInterpolation interpolation);
HUX_API HuxStatus huxiResize_8u_AC4R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi, Hux8u* pDst,
                                     int dstStep, HuxiSize dstRoiSize, Hux64f xFactor, Hux64f yFactor,
                                     HuxiInterpolation interpolation);
HUX_API HuxStatus huxiResize_8u_C4R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi, Hux8u* pDst,
                                    int dstStep, HuxiSize dstRoiSize, Hux64f xFactor, Hux64f yFactor,
                                    HuxiInterpolation interpolation);
HUX_API HuxStatus huxiResize_8u_P3R(const Hux8u* const pSrc[3], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                    Hux8u* const pDst[3], int dstStep, HuxiSize dstRoiSize, Hux64f xFactor,
                                    Hux64f yFactor, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiResize_8u_P4R(const Hux8u* const pSrc[4], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                    Hux8u* const pDst[4], int dstStep, HuxiSize dstRoiSize, Hux64f xFactor,
                                    Hux64f yFactor, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiResize_16u_C1R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi, Hux16u* pDst,
                                     int dstStep, HuxiSize dstRoiSize, Hux64f xFactor, Hux64f yFactor,
                                     HuxiInterpolation interpolation);
HUX_API HuxStatus huxiResize_16u_C3R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi, Hux16u* pDst,
                                     int dstStep, HuxiSize dstRoiSize, Hux64f xFactor, Hux64f yFactor,
                                     HuxiInterpolation interpolation);
HUX_API HuxStatus huxiResize_16u_AC4R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi, Hux16u* pDst,
                                      int dstStep, HuxiSize dstRoiSize, Hux64f xFactor, Hux64f yFactor,
                                      HuxiInterpolation interpolation);
HUX_API HuxStatus huxiResize_16u_C4R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi, Hux16u* pDst,
                                     int dstStep, HuxiSize dstRoiSize, Hux64f xFactor, Hux64f yFactor,
                                     HuxiInterpolation interpolation);
HUX_API HuxStatus huxiResize_16u_P3R(const Hux16u* const pSrc[3], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                     Hux16u* const pDst[3], int dstStep, HuxiSize dstRoiSize, Hux64f xFactor,
                                     Hux64f yFactor, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiResize_16u_P4R(const Hux16u* const pSrc[4], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                     Hux16u* const pDst[4], int dstStep, HuxiSize dstRoiSize, Hux64f xFactor,
                                     Hux64f yFactor, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiResize_32f_C1R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi, Hux32f* pDst,
                                     int dstStep, HuxiSize dstRoiSize, Hux64f xFactor, Hux64f yFactor,
                                     HuxiInterpolation interpolation);
HUX_API HuxStatus huxiResize_32f_C3R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi, Hux32f* pDst,
                                     int dstStep, HuxiSize dstRoiSize, Hux64f xFactor, Hux64f yFactor,
                                     HuxiInterpolation interpolation);
HUX_API HuxStatus huxiResize_32f_AC4R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi, Hux32f* pDst,
                                      int dstStep, HuxiSize dstRoiSize, Hux64f xFactor, Hux64f yFactor,
                                      HuxiInterpolation interpolation);
HUX_API HuxStatus huxiResize_32f_C4R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi, Hux32f* pDst,
                                     int dstStep, HuxiSize dstRoiSize, Hux64f xFactor, Hux64f yFactor,
                                     HuxiInterpolation interpolation);
HUX_API HuxStatus huxiResize_32f_P3R(const Hux32f* const pSrc[3], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                     Hux32f* const pDst[3], int dstStep, HuxiSize dstRoiSize, Hux64f xFactor,
                                     Hux64f yFactor, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiResize_32f_P4R(const Hux32f* const pSrc[4], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                     Hux32f* const pDst[4], int dstStep, HuxiSize dstRoiSize, Hux64f xFactor,
                                     Hux64f yFactor, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiResizeCenter_8u_C1R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                          Hux8u* pDst, int dstStep, HuxiSize dstRoiSize, Hux64f xFactor, Hux64f yFactor,
                                          Hux64f xCenter, Hux64f yCenter, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiResizeCenter_8u_C3R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                          Hux8u* pDst, int dstStep, HuxiSize dstRoiSize, Hux64f xFactor, Hux64f yFactor,
                                          Hux64f xCenter, Hux64f yCenter, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiResizeCenter_8u_AC4R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                           Hux8u* pDst, int dstStep, HuxiSize dstRoiSize, Hux64f xFactor,
                                           Hux64f yFactor, Hux64f xCenter, Hux64f yCenter,
                                           HuxiInterpolation interpolation);
HUX_API HuxStatus huxiResizeCenter_8u_C4R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                          Hux8u* pDst, int dstStep, HuxiSize dstRoiSize, Hux64f xFactor, Hux64f yFactor,
                                          Hux64f xCenter, Hux64f yCenter, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiResizeCenter_8u_P3R(const Hux8u* const pSrc[3], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                          Hux8u* const pDst[3], int dstStep, HuxiSize dstRoiSize, Hux64f xFactor,
                                          Hux64f yFactor, Hux64f xCenter, Hux64f yCenter,
                                          HuxiInterpolation interpolation);
HUX_API HuxStatus huxiResizeCenter_8u_P4R(const Hux8u* const pSrc[4], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                          Hux8u* const pDst[4], int dstStep, HuxiSize dstRoiSize, Hux64f xFactor,
                                          Hux64f yFactor, Hux64f xCenter, Hux64f yCenter,
                                          HuxiInterpolation interpolation);
HUX_API HuxStatus huxiResizeCenter_16u_C1R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                           Hux16u* pDst, int dstStep, HuxiSize dstRoiSize, Hux64f xFactor,
                                           Hux64f yFactor, Hux64f xCenter, Hux64f yCenter,
                                           HuxiInterpolation interpolation);
HUX_API HuxStatus huxiResizeCenter_16u_C3R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                           Hux16u* pDst, int dstStep, HuxiSize dstRoiSize, Hux64f xFactor,
                                           Hux64f yFactor, Hux64f xCenter, Hux64f yCenter,
                                           HuxiInterpolation interpolation);
HUX_API HuxStatus huxiResizeCenter_16u_AC4R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                            Hux16u* pDst, int dstStep, HuxiSize dstRoiSize, Hux64f xFactor,
                                            Hux64f yFactor, Hux64f xCenter, Hux64f yCenter,
                                            HuxiInterpolation interpolation);
HUX_API HuxStatus huxiResizeCenter_16u_C4R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                           Hux16u* pDst, int dstStep, HuxiSize dstRoiSize, Hux64f xFactor,
                                           Hux64f yFactor, Hux64f xCenter, Hux64f yCenter,
                                           HuxiInterpolation interpolation);
HUX_API HuxStatus huxiResizeCenter_16u_P3R(const Hux16u* const pSrc[3], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                           Hux16u* const pDst[3], int dstStep, HuxiSize dstRoiSize, Hux64f xFactor,
                                           Hux64f yFactor, Hux64f xCenter, Hux64f yCenter,
                                           HuxiInterpolation interpolation);
HUX_API HuxStatus huxiResizeCenter_16u_P4R(const Hux16u* const pSrc[4], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                           Hux16u* const pDst[4], int dstStep, HuxiSize dstRoiSize, Hux64f xFactor,
                                           Hux64f yFactor, Hux64f xCenter, Hux64f yCenter,
                                           HuxiInterpolation interpolation);
HUX_API HuxStatus huxiResizeCenter_32f_C1R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                           Hux32f* pDst, int dstStep, HuxiSize dstRoiSize, Hux64f xFactor,
                                           Hux64f yFactor, Hux64f xCenter, Hux64f yCenter,
                                           HuxiInterpolation interpolation);
HUX_API HuxStatus huxiResizeCenter_32f_C3R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                           Hux32f* pDst, int dstStep, HuxiSize dstRoiSize, Hux64f xFactor,
                                           Hux64f yFactor, Hux64f xCenter, Hux64f yCenter,
                                           HuxiInterpolation interpolation);
HUX_API HuxStatus huxiResizeCenter_32f_AC4R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                            Hux32f* pDst, int dstStep, HuxiSize dstRoiSize, Hux64f xFactor,
                                            Hux64f yFactor, Hux64f xCenter, Hux64f yCenter,
                                            HuxiInterpolation interpolation);
HUX_API HuxStatus huxiResizeCenter_32f_C4R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                           Hux32f* pDst, int dstStep, HuxiSize dstRoiSize, Hux64f xFactor,
                                           Hux64f yFactor, Hux64f xCenter, Hux64f yCenter,
                                           HuxiInterpolation interpolation);
HUX_API HuxStatus huxiResizeCenter_32f_P3R(const Hux32f* const pSrc[3], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                           Hux32f* const pDst[3], int dstStep, HuxiSize dstRoiSize, Hux64f xFactor,
                                           Hux64f yFactor, Hux64f xCenter, Hux64f yCenter,
                                           HuxiInterpolation interpolation);
HUX_API HuxStatus huxiResizeCenter_32f_P4R(const Hux32f* const pSrc[4], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                           Hux32f* const pDst[4], int dstStep, HuxiSize dstRoiSize, Hux64f xFactor,
                                           Hux64f yFactor, Hux64f xCenter, Hux64f yCenter,
                                           HuxiInterpolation interpolation);
HUX_API HuxStatus huxiResizeShift_8u_C1R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi, Hux8u* pDst,
                                         int dstStep, HuxiSize dstRoiSize, Hux64f xFr, Hux64f yFr, Hux64f xShift,
                                         Hux64f yShift, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiResizeShift_8u_C3R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi, Hux8u* pDst,
                                         int dstStep, HuxiSize dstRoiSize, Hux64f xFr, Hux64f yFr, Hux64f xShift,
                                         Hux64f yShift, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiResizeShift_8u_AC4R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                          Hux8u* pDst, int dstStep, HuxiSize dstRoiSize, Hux64f xFr, Hux64f yFr,
                                          Hux64f xShift, Hux64f yShift, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiResizeShift_8u_C4R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi, Hux8u* pDst,
                                         int dstStep, HuxiSize dstRoiSize, Hux64f xFr, Hux64f yFr, Hux64f xShift,
                                         Hux64f yShift, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiResizeShift_8u_P3R(const Hux8u* const pSrc[3], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                         Hux8u* const pDst[3], int dstStep, HuxiSize dstRoiSize, Hux64f xFr, Hux64f yFr,
                                         Hux64f xShift, Hux64f yShift, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiResizeShift_8u_P4R(const Hux8u* const pSrc[4], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                         Hux8u* const pDst[4], int dstStep, HuxiSize dstRoiSize, Hux64f xFr, Hux64f yFr,
                                         Hux64f xShift, Hux64f yShift, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiResizeShift_16u_C1R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                          Hux16u* pDst, int dstStep, HuxiSize dstRoiSize, Hux64f xFr, Hux64f yFr,
                                          Hux64f xShift, Hux64f yShift, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiResizeShift_16u_C3R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                          Hux16u* pDst, int dstStep, HuxiSize dstRoiSize, Hux64f xFr, Hux64f yFr,
                                          Hux64f xShift, Hux64f yShift, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiResizeShift_16u_AC4R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                           Hux16u* pDst, int dstStep, HuxiSize dstRoiSize, Hux64f xFr, Hux64f yFr,
                                           Hux64f xShift, Hux64f yShift, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiResizeShift_16u_C4R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                          Hux16u* pDst, int dstStep, HuxiSize dstRoiSize, Hux64f xFr, Hux64f yFr,
                                          Hux64f xShift, Hux64f yShift, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiResizeShift_16u_P3R(const Hux16u* const pSrc[3], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                          Hux16u* const pDst[3], int dstStep, HuxiSize dstRoiSize, Hux64f xFr,
                                          Hux64f yFr, Hux64f xShift, Hux64f yShift, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiResizeShift_16u_P4R(const Hux16u* const pSrc[4], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                          Hux16u* const pDst[4], int dstStep, HuxiSize dstRoiSize, Hux64f xFr,
                                          Hux64f yFr, Hux64f xShift, Hux64f yShift, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiResizeShift_32f_C1R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                          Hux32f* pDst, int dstStep, HuxiSize dstRoiSize, Hux64f xFr, Hux64f yFr,
                                          Hux64f xShift, Hux64f yShift, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiResizeShift_32f_C3R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                          Hux32f* pDst, int dstStep, HuxiSize dstRoiSize, Hux64f xFr, Hux64f yFr,
                                          Hux64f xShift, Hux64f yShift, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiResizeShift_32f_AC4R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                           Hux32f* pDst, int dstStep, HuxiSize dstRoiSize, Hux64f xFr, Hux64f yFr,
                                           Hux64f xShift, Hux64f yShift, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiResizeShift_32f_C4R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                          Hux32f* pDst, int dstStep, HuxiSize dstRoiSize, Hux64f xFr, Hux64f yFr,
                                          Hux64f xShift, Hux64f yShift, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiResizeShift_32f_P3R(const Hux32f* const pSrc[3], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                          Hux32f* const pDst[3], int dstStep, HuxiSize dstRoiSize, Hux64f xFr,
                                          Hux64f yFr, Hux64f xShift, Hux64f yShift, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiResizeShift_32f_P4R(const Hux32f* const pSrc[4], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                          Hux32f* const pDst[4], int dstStep, HuxiSize dstRoiSize, Hux64f xFr,
                                          Hux64f yFr, Hux64f xShift, Hux64f yShift, HuxiInterpolation interpolation);

/* The steps, in pixels of the source, that Resize takes for these factors, to *pxFr and *pyFr: what ResizeShift wants.
 * The mode is taken as it is, whatever the image's size. Checks: srcSize and srcRoi (huxStsBadSize), a first pixel
 * outside the image (huxStsNoOverlapWarn), factors not above 0 (huxStsBadResizeFactor), null pointers (huxStsNullPtr),
 * interpolation (huxStsBadInterpolation, also for huxiInterSuper). */
HUX_API HuxStatus huxiGetResizeFract(HuxiSize srcSize, HuxiRect srcRoi, Hux64f xFactor, Hux64f yFactor, Hux64f* pxFr,
                                     Hux64f* pyFr, HuxiInterpolation interpolation);

/* ---- Resize to square pixels ---- */

/* ResizeSqrPixel: the region srcRoi of an image, scaled by xFactor and yFactor and moved by xShift, yShift destination
 * pixels, as squares of unit area: the centre of destination column i lies at (i + 0.5) / xFactor - 0.5 - xShift /
 * xFactor in the source, a row likewise; each position is computed afresh, in double precision. pSrc and pDst address
 * the first pixels of both images, and both regions count from there. Of the source region, what overruns the image
 * srcSize is cut off. Written are the pixels of dstRoi that come from the source region: columns from
 * max(dstRoi.x, srcRoi.x xFactor + xShift) up to, but without, min(dstRoi.x + dstRoi.width,
 * (srcRoi.x + srcRoi.width) xFactor + xShift), each rounded, and rows likewise; if the first lies behind the end,
 * nothing is done and the result is huxStsEmptyDestWarn.
 *
 * Interpolation is that of Resize, by huxiInterNearest, huxiInterLinear, huxiInterCubic or huxiInterLanczos, with the
 * same rules for small images; beyond the image's edge its outer pixels are repeated. In linear mode an integer pixel
 * there is rounded once, an inner one in each of the two directions. AC4: alpha of the destination stays. Images may
 * not overlap.
 *
 * pBuffer is work memory of the size that huxiResizeSqrPixelGetBufSize tells; calls at the same time need one each.
 * Checks: null pointers, planes included (huxStsNullPtr); srcSize, an x or y of srcRoi and dstRoi below 0, their widths
 * and heights below 1 (huxStsBadSize); factors not above 0 (huxStsBadResizeFactor); interpolation
 * (huxStsBadInterpolation); a first pixel of srcRoi outside the image (huxStsNoOverlapWarn, nothing is done). Steps are
 * not checked. */
HUX_API HuxStatus huxiResizeSqrPixel_8u_C1R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                            Hux8u* pDst, int dstStep, HuxiRect dstRoi, Hux64f xFactor, Hux64f yFactor,
                                            Hux64f xShift, Hux64f yShift, HuxiInterpolation interpolation,
                                            Hux8u* pBuffer);
HUX_API HuxStatus huxiResizeSqrPixel_8u_C3R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                            Hux8u* pDst, int dstStep, HuxiRect dstRoi, Hux64f xFactor, Hux64f yFactor,
                                            Hux64f xShift, Hux64f yShift, HuxiInterpolation interpolation,
                                            Hux8u* pBuffer);
HUX_API HuxStatus huxiResizeSqrPixel_8u_AC4R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                             Hux8u* pDst, int dstStep, HuxiRect dstRoi, Hux64f xFactor, Hux64f yFactor,
                                             Hux64f xShift, Hux64f yShift, HuxiInterpolation interpolation,
                                             Hux8u* pBuffer);
HUX_API HuxStatus huxiResizeSqrPixel_8u_C4R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                            Hux8u* pDst, int dstStep, HuxiRect dstRoi, Hux64f xFactor, Hux64f yFactor,
                                            Hux64f xShift, Hux64f yShift, HuxiInterpolation interpolation,
                                            Hux8u* pBuffer);
HUX_API HuxStatus huxiResizeSqrPixel_8u_P3R(const Hux8u* const pSrc[3], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                            Hux8u* const pDst[3], int dstStep, HuxiRect dstRoi, Hux64f xFactor,
                                            Hux64f yFactor, Hux64f xShift, Hux64f yShift,
                                            HuxiInterpolation interpolation, Hux8u* pBuffer);
HUX_API HuxStatus huxiResizeSqrPixel_8u_P4R(const Hux8u* const pSrc[4], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                            Hux8u* const pDst[4], int dstStep, HuxiRect dstRoi, Hux64f xFactor,
                                            Hux64f yFactor, Hux64f xShift, Hux64f yShift,
                                            HuxiInterpolation interpolation, Hux8u* pBuffer);
HUX_API HuxStatus huxiResizeSqrPixel_16u_C1R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                             Hux16u* pDst, int dstStep, HuxiRect dstRoi, Hux64f xFactor, Hux64f yFactor,
                                             Hux64f xShift, Hux64f yShift, HuxiInterpolation interpolation,
                                             Hux8u* pBuffer);
HUX_API HuxStatus huxiResizeSqrPixel_16u_C3R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                             Hux16u* pDst, int dstStep, HuxiRect dstRoi, Hux64f xFactor, Hux64f yFactor,
                                             Hux64f xShift, Hux64f yShift, HuxiInterpolation interpolation,
                                             Hux8u* pBuffer);
HUX_API HuxStatus huxiResizeSqrPixel_16u_AC4R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                              Hux16u* pDst, int dstStep, HuxiRect dstRoi, Hux64f xFactor,
                                              Hux64f yFactor, Hux64f xShift, Hux64f yShift,
                                              HuxiInterpolation interpolation, Hux8u* pBuffer);
HUX_API HuxStatus huxiResizeSqrPixel_16u_C4R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                             Hux16u* pDst, int dstStep, HuxiRect dstRoi, Hux64f xFactor, Hux64f yFactor,
                                             Hux64f xShift, Hux64f yShift, HuxiInterpolation interpolation,
                                             Hux8u* pBuffer);
HUX_API HuxStatus huxiResizeSqrPixel_16u_P3R(const Hux16u* const pSrc[3], HuxiSize srcSize, int srcStep,
                                             HuxiRect srcRoi, Hux16u* const pDst[3], int dstStep, HuxiRect dstRoi,
                                             Hux64f xFactor, Hux64f yFactor, Hux64f xShift, Hux64f yShift,
                                             HuxiInterpolation interpolation, Hux8u* pBuffer);
HUX_API HuxStatus huxiResizeSqrPixel_16u_P4R(const Hux16u* const pSrc[4], HuxiSize srcSize, int srcStep,
                                             HuxiRect srcRoi, Hux16u* const pDst[4], int dstStep, HuxiRect dstRoi,
                                             Hux64f xFactor, Hux64f yFactor, Hux64f xShift, Hux64f yShift,
                                             HuxiInterpolation interpolation, Hux8u* pBuffer);
HUX_API HuxStatus huxiResizeSqrPixel_32f_C1R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                             Hux32f* pDst, int dstStep, HuxiRect dstRoi, Hux64f xFactor, Hux64f yFactor,
                                             Hux64f xShift, Hux64f yShift, HuxiInterpolation interpolation,
                                             Hux8u* pBuffer);
HUX_API HuxStatus huxiResizeSqrPixel_32f_C3R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                             Hux32f* pDst, int dstStep, HuxiRect dstRoi, Hux64f xFactor, Hux64f yFactor,
                                             Hux64f xShift, Hux64f yShift, HuxiInterpolation interpolation,
                                             Hux8u* pBuffer);
HUX_API HuxStatus huxiResizeSqrPixel_32f_AC4R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                              Hux32f* pDst, int dstStep, HuxiRect dstRoi, Hux64f xFactor,
                                              Hux64f yFactor, Hux64f xShift, Hux64f yShift,
                                              HuxiInterpolation interpolation, Hux8u* pBuffer);
HUX_API HuxStatus huxiResizeSqrPixel_32f_C4R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                             Hux32f* pDst, int dstStep, HuxiRect dstRoi, Hux64f xFactor, Hux64f yFactor,
                                             Hux64f xShift, Hux64f yShift, HuxiInterpolation interpolation,
                                             Hux8u* pBuffer);
HUX_API HuxStatus huxiResizeSqrPixel_32f_P3R(const Hux32f* const pSrc[3], HuxiSize srcSize, int srcStep,
                                             HuxiRect srcRoi, Hux32f* const pDst[3], int dstStep, HuxiRect dstRoi,
                                             Hux64f xFactor, Hux64f yFactor, Hux64f xShift, Hux64f yShift,
                                             HuxiInterpolation interpolation, Hux8u* pBuffer);
HUX_API HuxStatus huxiResizeSqrPixel_32f_P4R(const Hux32f* const pSrc[4], HuxiSize srcSize, int srcStep,
                                             HuxiRect srcRoi, Hux32f* const pDst[4], int dstStep, HuxiRect dstRoi,
                                             Hux64f xFactor, Hux64f yFactor, Hux64f xShift, Hux64f yShift,
                                             HuxiInterpolation interpolation, Hux8u* pBuffer);

/* The bytes of work memory for a destination region of that size, to *pSize; nChannels is 1 for planes.
 * Checks: null pointer (huxStsNullPtr), size (huxStsBadSize), nChannels not 1, 3 or 4 (huxStsBadChannelCount),
 * interpolation (huxStsBadInterpolation). */
HUX_API HuxStatus huxiResizeSqrPixelGetBufSize(HuxiSize dstSize, int nChannels, HuxiInterpolation interpolation,
                                               int* pSize);

/* ---- Resize of packed YUV ---- */

/* ResizeYUV422: Resize of packed 4:2:2, in which two pixels are four bytes, Y0 U Y1 V. Widths and x count pixels. The
 * region begins at byte 4 srcRoi.x of a row (four bytes for each unit of x, deliberately); no sample behind the last
 * pair of the image's row, and no row behind its last, is read. Y is resampled as a row of srcRoi.width samples, U and
 * V as rows of half as many; in nearest mode pair k takes its U and V from the pair whose number is that of the sample
 * that column k would take. The destination has as many pixels as with Resize, at least two, and at least 1.5 columns
 * count as two; an odd last column is not written.
 * Interpolation: huxiInterNearest, huxiInterLinear, huxiInterCubic, huxiInterSuper, as in Resize; a width below 8 or a
 * height below 4 of the whole image makes cubic linear, a width below 4 or a height below 2 makes both nearest.
 * Checks: null pointers (huxStsNullPtr); srcSize, srcRoi's x or y below 0, its width or height below 1 (huxStsBadSize);
 * a first pixel of srcRoi outside the image (huxStsNoOverlapWarn, nothing is done); dstRoiSize, an odd srcSize.width,
 * srcRoi.width or srcRoi.x, a dstRoiSize.width below 2 (huxStsBadSize); factors not above 0 (huxStsBadResizeFactor);
 * interpolation (huxStsBadInterpolation); huxiInterSuper with a factor above 1 (huxStsBadResizeFactor); a result of
 * less than 1.5 columns or half a row (huxStsResizeTooSmall). Supersampling may end with huxStsNoMem. */
HUX_API HuxStatus huxiResizeYUV422_8u_C2R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                          Hux8u* pDst, int dstStep, HuxiSize dstRoiSize, Hux64f xFactor, Hux64f yFactor,
                                          HuxiInterpolation interpolation);

/* ---- Affine warps, rotation and shear ---- */

/* Warps: an image resampled through a map. The image of the source region in the destination is a quadrangle; each
 * pixel of the destination region that lies in it, its edges included, takes the source's value at the place that the
 * inverse map tells, and all others stay as they are. Positions are computed in 64-bit floats.
 * pSrc and pDst address the origins of whole images, and all coordinates count pixels from there, x to the right and
 * y downwards; pixels are points at integer coordinates. srcSize is the size of the source image, srcRoi the region
 * of it that is warped, cut to the image; interpolation sees the whole image around it, and nothing outside. dstRoi
 * is the region of the destination that may be written. Source and destination must not overlap.
 * C1R, C3R, C4R: all channels. AC4R: alpha of the destination stays. P3R, P4R: arrays of three or four plane
 * pointers, with one step for all planes; the arrays are only read.
 * interpolation is one of
 *   huxiInterNearest  the pixel at (x + 0.5, y + 0.5) truncated
 *   huxiInterLinear   between the four neighbours; of 8u the result is rounded, of 16u it is truncated
 *   huxiInterCubic    polynomials through the four by four neighbours, saturated
 * An image of one row or column is sampled as by huxiInterNearest, one with fewer than four as by huxiInterLinear at
 * most.
 * huxiInterSmoothEdge may be added: then the pixels just outside the slanted edges of the quadrangle are blended with
 * their neighbours inside, in all channels, alpha included. The Back forms ignore it.
 * Checks of all warps: null pointers (huxStsNullPtr); srcSize, srcRoi, dstRoi of less than one row or column, or
 * regions with x or y below 0 (huxStsBadSize); steps below 1 (huxStsBadStep); interpolation (huxStsBadInterpolation);
 * null plane pointers (huxStsNullPtr); the map, as told for each; then the source region's first pixel not one of the
 * image (huxStsNoOverlapWarn). The arrays of the map are not checked for null. huxStsQuadOutsideWarn tells that the
 * quadrangle misses the destination region, or that there is no memory for its 8 bytes per row. With any of these
 * nothing is written. */

/* WarpAffine: x' = c00 x + c01 y + c02, y' = c10 x + c11 y + c12 carries the source to the destination. Checks, as
 * above, and of the map: c00 c11 and c01 c10 equal, to a relative 1e-12 (huxStsBadQuad). Behind them: a source region
 * of one row or column (huxStsBadRect), a quadrangle without extent (huxStsBadQuad). */
HUX_API HuxStatus huxiWarpAffine_8u_C1R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi, Hux8u* pDst,
                                        int dstStep, HuxiRect dstRoi, const Hux64f coeffs[2][3],
                                        HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpAffine_8u_C3R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi, Hux8u* pDst,
                                        int dstStep, HuxiRect dstRoi, const Hux64f coeffs[2][3],
                                        HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpAffine_8u_AC4R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi, Hux8u* pDst,
                                         int dstStep, HuxiRect dstRoi, const Hux64f coeffs[2][3],
                                         HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpAffine_8u_C4R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi, Hux8u* pDst,
                                        int dstStep, HuxiRect dstRoi, const Hux64f coeffs[2][3],
                                        HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpAffine_8u_P3R(const Hux8u* const pSrc[3], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                        Hux8u* const pDst[3], int dstStep, HuxiRect dstRoi, const Hux64f coeffs[2][3],
                                        HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpAffine_8u_P4R(const Hux8u* const pSrc[4], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                        Hux8u* const pDst[4], int dstStep, HuxiRect dstRoi, const Hux64f coeffs[2][3],
                                        HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpAffine_16u_C1R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                         Hux16u* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[2][3],
                                         HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpAffine_16u_C3R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                         Hux16u* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[2][3],
                                         HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpAffine_16u_AC4R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                          Hux16u* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[2][3],
                                          HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpAffine_16u_C4R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                         Hux16u* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[2][3],
                                         HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpAffine_16u_P3R(const Hux16u* const pSrc[3], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                         Hux16u* const pDst[3], int dstStep, HuxiRect dstRoi, const Hux64f coeffs[2][3],
                                         HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpAffine_16u_P4R(const Hux16u* const pSrc[4], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                         Hux16u* const pDst[4], int dstStep, HuxiRect dstRoi, const Hux64f coeffs[2][3],
                                         HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpAffine_32f_C1R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                         Hux32f* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[2][3],
                                         HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpAffine_32f_C3R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                         Hux32f* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[2][3],
                                         HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpAffine_32f_AC4R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                          Hux32f* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[2][3],
                                          HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpAffine_32f_C4R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                         Hux32f* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[2][3],
                                         HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpAffine_32f_P3R(const Hux32f* const pSrc[3], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                         Hux32f* const pDst[3], int dstStep, HuxiRect dstRoi, const Hux64f coeffs[2][3],
                                         HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpAffine_32f_P4R(const Hux32f* const pSrc[4], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                         Hux32f* const pDst[4], int dstStep, HuxiRect dstRoi, const Hux64f coeffs[2][3],
                                         HuxiInterpolation interpolation);

/* WarpAffineBack: the coefficients carry the destination to the source. Checks as for WarpAffine, but huxStsBadRect;
 * a source region of one row or column has a quadrangle without extent (huxStsBadQuad). */
HUX_API HuxStatus huxiWarpAffineBack_8u_C1R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                            Hux8u* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[2][3],
                                            HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpAffineBack_8u_C3R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                            Hux8u* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[2][3],
                                            HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpAffineBack_8u_AC4R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                             Hux8u* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[2][3],
                                             HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpAffineBack_8u_C4R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                            Hux8u* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[2][3],
                                            HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpAffineBack_8u_P3R(const Hux8u* const pSrc[3], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                            Hux8u* const pDst[3], int dstStep, HuxiRect dstRoi,
                                            const Hux64f coeffs[2][3], HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpAffineBack_8u_P4R(const Hux8u* const pSrc[4], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                            Hux8u* const pDst[4], int dstStep, HuxiRect dstRoi,
                                            const Hux64f coeffs[2][3], HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpAffineBack_16u_C1R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                             Hux16u* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[2][3],
                                             HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpAffineBack_16u_C3R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                             Hux16u* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[2][3],
                                             HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpAffineBack_16u_AC4R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                              Hux16u* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[2][3],
                                              HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpAffineBack_16u_C4R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                             Hux16u* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[2][3],
                                             HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpAffineBack_16u_P3R(const Hux16u* const pSrc[3], HuxiSize srcSize, int srcStep,
                                             HuxiRect srcRoi, Hux16u* const pDst[3], int dstStep, HuxiRect dstRoi,
                                             const Hux64f coeffs[2][3], HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpAffineBack_16u_P4R(const Hux16u* const pSrc[4], HuxiSize srcSize, int srcStep,
                                             HuxiRect srcRoi, Hux16u* const pDst[4], int dstStep, HuxiRect dstRoi,
                                             const Hux64f coeffs[2][3], HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpAffineBack_32f_C1R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                             Hux32f* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[2][3],
                                             HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpAffineBack_32f_C3R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                             Hux32f* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[2][3],
                                             HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpAffineBack_32f_AC4R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                              Hux32f* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[2][3],
                                              HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpAffineBack_32f_C4R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                             Hux32f* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[2][3],
                                             HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpAffineBack_32f_P3R(const Hux32f* const pSrc[3], HuxiSize srcSize, int srcStep,
                                             HuxiRect srcRoi, Hux32f* const pDst[3], int dstStep, HuxiRect dstRoi,
                                             const Hux64f coeffs[2][3], HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpAffineBack_32f_P4R(const Hux32f* const pSrc[4], HuxiSize srcSize, int srcStep,
                                             HuxiRect srcRoi, Hux32f* const pDst[4], int dstStep, HuxiRect dstRoi,
                                             const Hux64f coeffs[2][3], HuxiInterpolation interpolation);

/* WarpAffineQuad: vertices 0, 1 and 2 of srcQuad go to those of dstQuad, each vertex being {x, y}. Where vertex 3
 * does not follow, the image is warped by these three all the same and the result is huxStsQuadNotAffineWarn; then
 * pixels whose place lies outside the source image stay as they are. What of srcQuad lies outside srcRoi is cut off.
 * Checks, as above, and of the map: a quadrangle that is not convex or has three vertices in line (huxStsBadCoeffs).
 * huxStsNoMem if there is no memory for the rows of a quadrangle that was cut. Edges are smoothed only of one that
 * was not. */
HUX_API HuxStatus huxiWarpAffineQuad_8u_C1R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                            const Hux64f srcQuad[4][2], Hux8u* pDst, int dstStep, HuxiRect dstRoi,
                                            const Hux64f dstQuad[4][2], HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpAffineQuad_8u_C3R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                            const Hux64f srcQuad[4][2], Hux8u* pDst, int dstStep, HuxiRect dstRoi,
                                            const Hux64f dstQuad[4][2], HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpAffineQuad_8u_AC4R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                             const Hux64f srcQuad[4][2], Hux8u* pDst, int dstStep, HuxiRect dstRoi,
                                             const Hux64f dstQuad[4][2], HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpAffineQuad_8u_C4R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                            const Hux64f srcQuad[4][2], Hux8u* pDst, int dstStep, HuxiRect dstRoi,
                                            const Hux64f dstQuad[4][2], HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpAffineQuad_8u_P3R(const Hux8u* const pSrc[3], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                            const Hux64f srcQuad[4][2], Hux8u* const pDst[3], int dstStep,
                                            HuxiRect dstRoi, const Hux64f dstQuad[4][2],
                                            HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpAffineQuad_8u_P4R(const Hux8u* const pSrc[4], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                            const Hux64f srcQuad[4][2], Hux8u* const pDst[4], int dstStep,
                                            HuxiRect dstRoi, const Hux64f dstQuad[4][2],
                                            HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpAffineQuad_16u_C1R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                             const Hux64f srcQuad[4][2], Hux16u* pDst, int dstStep, HuxiRect dstRoi,
                                             const Hux64f dstQuad[4][2], HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpAffineQuad_16u_C3R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                             const Hux64f srcQuad[4][2], Hux16u* pDst, int dstStep, HuxiRect dstRoi,
                                             const Hux64f dstQuad[4][2], HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpAffineQuad_16u_AC4R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                              const Hux64f srcQuad[4][2], Hux16u* pDst, int dstStep, HuxiRect dstRoi,
                                              const Hux64f dstQuad[4][2], HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpAffineQuad_16u_C4R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                             const Hux64f srcQuad[4][2], Hux16u* pDst, int dstStep, HuxiRect dstRoi,
                                             const Hux64f dstQuad[4][2], HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpAffineQuad_16u_P3R(const Hux16u* const pSrc[3], HuxiSize srcSize, int srcStep,
                                             HuxiRect srcRoi, const Hux64f srcQuad[4][2], Hux16u* const pDst[3],
                                             int dstStep, HuxiRect dstRoi, const Hux64f dstQuad[4][2],
                                             HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpAffineQuad_16u_P4R(const Hux16u* const pSrc[4], HuxiSize srcSize, int srcStep,
                                             HuxiRect srcRoi, const Hux64f srcQuad[4][2], Hux16u* const pDst[4],
                                             int dstStep, HuxiRect dstRoi, const Hux64f dstQuad[4][2],
                                             HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpAffineQuad_32f_C1R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                             const Hux64f srcQuad[4][2], Hux32f* pDst, int dstStep, HuxiRect dstRoi,
                                             const Hux64f dstQuad[4][2], HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpAffineQuad_32f_C3R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                             const Hux64f srcQuad[4][2], Hux32f* pDst, int dstStep, HuxiRect dstRoi,
                                             const Hux64f dstQuad[4][2], HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpAffineQuad_32f_AC4R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                              const Hux64f srcQuad[4][2], Hux32f* pDst, int dstStep, HuxiRect dstRoi,
                                              const Hux64f dstQuad[4][2], HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpAffineQuad_32f_C4R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                             const Hux64f srcQuad[4][2], Hux32f* pDst, int dstStep, HuxiRect dstRoi,
                                             const Hux64f dstQuad[4][2], HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpAffineQuad_32f_P3R(const Hux32f* const pSrc[3], HuxiSize srcSize, int srcStep,
                                             HuxiRect srcRoi, const Hux64f srcQuad[4][2], Hux32f* const pDst[3],
                                             int dstStep, HuxiRect dstRoi, const Hux64f dstQuad[4][2],
                                             HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpAffineQuad_32f_P4R(const Hux32f* const pSrc[4], HuxiSize srcSize, int srcStep,
                                             HuxiRect srcRoi, const Hux64f srcQuad[4][2], Hux32f* const pDst[4],
                                             int dstStep, HuxiRect dstRoi, const Hux64f dstQuad[4][2],
                                             HuxiInterpolation interpolation);

/* Rotate: x' = x cos a + y sin a + xShift, y' = -x sin a + y cos a + yShift, the angle in degrees: a positive one
 * turns counter-clockwise on the screen. At 90, 180 and 270 degrees and all that differ from these by full turns,
 * with shifts that are whole numbers, pixels are only moved; interpolation is then not looked at, regions may be of
 * one row or column, and the result is huxStsNoOverlapWarn where the image of the source region misses the
 * destination region. Otherwise as WarpAffine. */
HUX_API HuxStatus huxiRotate_8u_C1R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi, Hux8u* pDst,
                                    int dstStep, HuxiRect dstRoi, Hux64f angle, Hux64f xShift, Hux64f yShift,
                                    HuxiInterpolation interpolation);
HUX_API HuxStatus huxiRotate_8u_C3R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi, Hux8u* pDst,
                                    int dstStep, HuxiRect dstRoi, Hux64f angle, Hux64f xShift, Hux64f yShift,
                                    HuxiInterpolation interpolation);
HUX_API HuxStatus huxiRotate_8u_AC4R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi, Hux8u* pDst,
                                     int dstStep, HuxiRect dstRoi, Hux64f angle, Hux64f xShift, Hux64f yShift,
                                     HuxiInterpolation interpolation);
HUX_API HuxStatus huxiRotate_8u_C4R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi, Hux8u* pDst,
                                    int dstStep, HuxiRect dstRoi, Hux64f angle, Hux64f xShift, Hux64f yShift,
                                    HuxiInterpolation interpolation);
HUX_API HuxStatus huxiRotate_8u_P3R(const Hux8u* const pSrc[3], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                    Hux8u* const pDst[3], int dstStep, HuxiRect dstRoi, Hux64f angle, Hux64f xShift,
                                    Hux64f yShift, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiRotate_8u_P4R(const Hux8u* const pSrc[4], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                    Hux8u* const pDst[4], int dstStep, HuxiRect dstRoi, Hux64f angle, Hux64f xShift,
                                    Hux64f yShift, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiRotate_16u_C1R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi, Hux16u* pDst,
                                     int dstStep, HuxiRect dstRoi, Hux64f angle, Hux64f xShift, Hux64f yShift,
                                     HuxiInterpolation interpolation);
HUX_API HuxStatus huxiRotate_16u_C3R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi, Hux16u* pDst,
                                     int dstStep, HuxiRect dstRoi, Hux64f angle, Hux64f xShift, Hux64f yShift,
                                     HuxiInterpolation interpolation);
HUX_API HuxStatus huxiRotate_16u_AC4R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi, Hux16u* pDst,
                                      int dstStep, HuxiRect dstRoi, Hux64f angle, Hux64f xShift, Hux64f yShift,
                                      HuxiInterpolation interpolation);
HUX_API HuxStatus huxiRotate_16u_C4R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi, Hux16u* pDst,
                                     int dstStep, HuxiRect dstRoi, Hux64f angle, Hux64f xShift, Hux64f yShift,
                                     HuxiInterpolation interpolation);
HUX_API HuxStatus huxiRotate_16u_P3R(const Hux16u* const pSrc[3], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                     Hux16u* const pDst[3], int dstStep, HuxiRect dstRoi, Hux64f angle, Hux64f xShift,
                                     Hux64f yShift, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiRotate_16u_P4R(const Hux16u* const pSrc[4], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                     Hux16u* const pDst[4], int dstStep, HuxiRect dstRoi, Hux64f angle, Hux64f xShift,
                                     Hux64f yShift, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiRotate_32f_C1R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi, Hux32f* pDst,
                                     int dstStep, HuxiRect dstRoi, Hux64f angle, Hux64f xShift, Hux64f yShift,
                                     HuxiInterpolation interpolation);
HUX_API HuxStatus huxiRotate_32f_C3R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi, Hux32f* pDst,
                                     int dstStep, HuxiRect dstRoi, Hux64f angle, Hux64f xShift, Hux64f yShift,
                                     HuxiInterpolation interpolation);
HUX_API HuxStatus huxiRotate_32f_AC4R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi, Hux32f* pDst,
                                      int dstStep, HuxiRect dstRoi, Hux64f angle, Hux64f xShift, Hux64f yShift,
                                      HuxiInterpolation interpolation);
HUX_API HuxStatus huxiRotate_32f_C4R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi, Hux32f* pDst,
                                     int dstStep, HuxiRect dstRoi, Hux64f angle, Hux64f xShift, Hux64f yShift,
                                     HuxiInterpolation interpolation);
HUX_API HuxStatus huxiRotate_32f_P3R(const Hux32f* const pSrc[3], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                     Hux32f* const pDst[3], int dstStep, HuxiRect dstRoi, Hux64f angle, Hux64f xShift,
                                     Hux64f yShift, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiRotate_32f_P4R(const Hux32f* const pSrc[4], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                     Hux32f* const pDst[4], int dstStep, HuxiRect dstRoi, Hux64f angle, Hux64f xShift,
                                     Hux64f yShift, HuxiInterpolation interpolation);

/* RotateCenter: the rotation that keeps the point (xCenter, yCenter) where it is. Otherwise as Rotate. */
HUX_API HuxStatus huxiRotateCenter_8u_C1R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                          Hux8u* pDst, int dstStep, HuxiRect dstRoi, Hux64f angle, Hux64f xCenter,
                                          Hux64f yCenter, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiRotateCenter_8u_C3R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                          Hux8u* pDst, int dstStep, HuxiRect dstRoi, Hux64f angle, Hux64f xCenter,
                                          Hux64f yCenter, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiRotateCenter_8u_AC4R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                           Hux8u* pDst, int dstStep, HuxiRect dstRoi, Hux64f angle, Hux64f xCenter,
                                           Hux64f yCenter, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiRotateCenter_8u_C4R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                          Hux8u* pDst, int dstStep, HuxiRect dstRoi, Hux64f angle, Hux64f xCenter,
                                          Hux64f yCenter, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiRotateCenter_8u_P3R(const Hux8u* const pSrc[3], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                          Hux8u* const pDst[3], int dstStep, HuxiRect dstRoi, Hux64f angle,
                                          Hux64f xCenter, Hux64f yCenter, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiRotateCenter_8u_P4R(const Hux8u* const pSrc[4], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                          Hux8u* const pDst[4], int dstStep, HuxiRect dstRoi, Hux64f angle,
                                          Hux64f xCenter, Hux64f yCenter, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiRotateCenter_16u_C1R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                           Hux16u* pDst, int dstStep, HuxiRect dstRoi, Hux64f angle, Hux64f xCenter,
                                           Hux64f yCenter, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiRotateCenter_16u_C3R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                           Hux16u* pDst, int dstStep, HuxiRect dstRoi, Hux64f angle, Hux64f xCenter,
                                           Hux64f yCenter, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiRotateCenter_16u_AC4R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                            Hux16u* pDst, int dstStep, HuxiRect dstRoi, Hux64f angle, Hux64f xCenter,
                                            Hux64f yCenter, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiRotateCenter_16u_C4R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                           Hux16u* pDst, int dstStep, HuxiRect dstRoi, Hux64f angle, Hux64f xCenter,
                                           Hux64f yCenter, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiRotateCenter_16u_P3R(const Hux16u* const pSrc[3], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                           Hux16u* const pDst[3], int dstStep, HuxiRect dstRoi, Hux64f angle,
                                           Hux64f xCenter, Hux64f yCenter, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiRotateCenter_16u_P4R(const Hux16u* const pSrc[4], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                           Hux16u* const pDst[4], int dstStep, HuxiRect dstRoi, Hux64f angle,
                                           Hux64f xCenter, Hux64f yCenter, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiRotateCenter_32f_C1R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                           Hux32f* pDst, int dstStep, HuxiRect dstRoi, Hux64f angle, Hux64f xCenter,
                                           Hux64f yCenter, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiRotateCenter_32f_C3R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                           Hux32f* pDst, int dstStep, HuxiRect dstRoi, Hux64f angle, Hux64f xCenter,
                                           Hux64f yCenter, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiRotateCenter_32f_AC4R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                            Hux32f* pDst, int dstStep, HuxiRect dstRoi, Hux64f angle, Hux64f xCenter,
                                            Hux64f yCenter, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiRotateCenter_32f_C4R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                           Hux32f* pDst, int dstStep, HuxiRect dstRoi, Hux64f angle, Hux64f xCenter,
                                           Hux64f yCenter, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiRotateCenter_32f_P3R(const Hux32f* const pSrc[3], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                           Hux32f* const pDst[3], int dstStep, HuxiRect dstRoi, Hux64f angle,
                                           Hux64f xCenter, Hux64f yCenter, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiRotateCenter_32f_P4R(const Hux32f* const pSrc[4], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                           Hux32f* const pDst[4], int dstStep, HuxiRect dstRoi, Hux64f angle,
                                           Hux64f xCenter, Hux64f yCenter, HuxiInterpolation interpolation);

/* Shear: x' = x + xShear y + xShift, y' = yShear x + y + yShift. Otherwise as WarpAffine. */
HUX_API HuxStatus huxiShear_8u_C1R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi, Hux8u* pDst,
                                   int dstStep, HuxiRect dstRoi, Hux64f xShear, Hux64f yShear, Hux64f xShift,
                                   Hux64f yShift, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiShear_8u_C3R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi, Hux8u* pDst,
                                   int dstStep, HuxiRect dstRoi, Hux64f xShear, Hux64f yShear, Hux64f xShift,
                                   Hux64f yShift, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiShear_8u_AC4R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi, Hux8u* pDst,
                                    int dstStep, HuxiRect dstRoi, Hux64f xShear, Hux64f yShear, Hux64f xShift,
                                    Hux64f yShift, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiShear_8u_C4R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi, Hux8u* pDst,
                                   int dstStep, HuxiRect dstRoi, Hux64f xShear, Hux64f yShear, Hux64f xShift,
                                   Hux64f yShift, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiShear_8u_P3R(const Hux8u* const pSrc[3], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                   Hux8u* const pDst[3], int dstStep, HuxiRect dstRoi, Hux64f xShear, Hux64f yShear,
                                   Hux64f xShift, Hux64f yShift, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiShear_8u_P4R(const Hux8u* const pSrc[4], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                   Hux8u* const pDst[4], int dstStep, HuxiRect dstRoi, Hux64f xShear, Hux64f yShear,
                                   Hux64f xShift, Hux64f yShift, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiShear_16u_C1R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi, Hux16u* pDst,
                                    int dstStep, HuxiRect dstRoi, Hux64f xShear, Hux64f yShear, Hux64f xShift,
                                    Hux64f yShift, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiShear_16u_C3R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi, Hux16u* pDst,
                                    int dstStep, HuxiRect dstRoi, Hux64f xShear, Hux64f yShear, Hux64f xShift,
                                    Hux64f yShift, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiShear_16u_AC4R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi, Hux16u* pDst,
                                     int dstStep, HuxiRect dstRoi, Hux64f xShear, Hux64f yShear, Hux64f xShift,
                                     Hux64f yShift, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiShear_16u_C4R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi, Hux16u* pDst,
                                    int dstStep, HuxiRect dstRoi, Hux64f xShear, Hux64f yShear, Hux64f xShift,
                                    Hux64f yShift, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiShear_16u_P3R(const Hux16u* const pSrc[3], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                    Hux16u* const pDst[3], int dstStep, HuxiRect dstRoi, Hux64f xShear, Hux64f yShear,
                                    Hux64f xShift, Hux64f yShift, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiShear_16u_P4R(const Hux16u* const pSrc[4], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                    Hux16u* const pDst[4], int dstStep, HuxiRect dstRoi, Hux64f xShear, Hux64f yShear,
                                    Hux64f xShift, Hux64f yShift, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiShear_32f_C1R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi, Hux32f* pDst,
                                    int dstStep, HuxiRect dstRoi, Hux64f xShear, Hux64f yShear, Hux64f xShift,
                                    Hux64f yShift, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiShear_32f_C3R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi, Hux32f* pDst,
                                    int dstStep, HuxiRect dstRoi, Hux64f xShear, Hux64f yShear, Hux64f xShift,
                                    Hux64f yShift, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiShear_32f_AC4R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi, Hux32f* pDst,
                                     int dstStep, HuxiRect dstRoi, Hux64f xShear, Hux64f yShear, Hux64f xShift,
                                     Hux64f yShift, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiShear_32f_C4R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi, Hux32f* pDst,
                                    int dstStep, HuxiRect dstRoi, Hux64f xShear, Hux64f yShear, Hux64f xShift,
                                    Hux64f yShift, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiShear_32f_P3R(const Hux32f* const pSrc[3], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                    Hux32f* const pDst[3], int dstStep, HuxiRect dstRoi, Hux64f xShear, Hux64f yShear,
                                    Hux64f xShift, Hux64f yShift, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiShear_32f_P4R(const Hux32f* const pSrc[4], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                    Hux32f* const pDst[4], int dstStep, HuxiRect dstRoi, Hux64f xShear, Hux64f yShear,
                                    Hux64f xShift, Hux64f yShift, HuxiInterpolation interpolation);

/* ---- Bilinear and perspective warps ---- */

/* WarpBilinear: x' = c00 x y + c01 x + c02 y + c03, y' = c10 x y + c11 x + c12 y + c13 carries the source to the
 * destination. Arguments and checks as for the warps above; of the map none. Behind them: a source region of one row
 * or column (huxStsBadRect), a quadrangle that is not convex or has three vertices in line (huxStsBadQuad). */
HUX_API HuxStatus huxiWarpBilinear_8u_C1R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                          Hux8u* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[2][4],
                                          HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpBilinear_8u_C3R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                          Hux8u* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[2][4],
                                          HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpBilinear_8u_AC4R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                           Hux8u* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[2][4],
                                           HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpBilinear_8u_C4R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                          Hux8u* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[2][4],
                                          HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpBilinear_8u_P3R(const Hux8u* const pSrc[3], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                          Hux8u* const pDst[3], int dstStep, HuxiRect dstRoi, const Hux64f coeffs[2][4],
                                          HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpBilinear_8u_P4R(const Hux8u* const pSrc[4], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                          Hux8u* const pDst[4], int dstStep, HuxiRect dstRoi, const Hux64f coeffs[2][4],
                                          HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpBilinear_16u_C1R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                           Hux16u* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[2][4],
                                           HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpBilinear_16u_C3R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                           Hux16u* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[2][4],
                                           HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpBilinear_16u_AC4R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                            Hux16u* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[2][4],
                                            HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpBilinear_16u_C4R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                           Hux16u* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[2][4],
                                           HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpBilinear_16u_P3R(const Hux16u* const pSrc[3], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                           Hux16u* const pDst[3], int dstStep, HuxiRect dstRoi,
                                           const Hux64f coeffs[2][4], HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpBilinear_16u_P4R(const Hux16u* const pSrc[4], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                           Hux16u* const pDst[4], int dstStep, HuxiRect dstRoi,
                                           const Hux64f coeffs[2][4], HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpBilinear_32f_C1R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                           Hux32f* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[2][4],
                                           HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpBilinear_32f_C3R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                           Hux32f* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[2][4],
                                           HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpBilinear_32f_AC4R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                            Hux32f* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[2][4],
                                            HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpBilinear_32f_C4R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                           Hux32f* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[2][4],
                                           HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpBilinear_32f_P3R(const Hux32f* const pSrc[3], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                           Hux32f* const pDst[3], int dstStep, HuxiRect dstRoi,
                                           const Hux64f coeffs[2][4], HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpBilinear_32f_P4R(const Hux32f* const pSrc[4], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                           Hux32f* const pDst[4], int dstStep, HuxiRect dstRoi,
                                           const Hux64f coeffs[2][4], HuxiInterpolation interpolation);

/* WarpBilinearBack: the coefficients carry the destination to the source. Every pixel of the destination region is
 * looked up, and those stay as they are whose place lies outside the source region.
 * Checks of the map: c01 c12 and c02 c11 equal, to a relative 1e-12 (huxStsBadQuad). Behind them: the image of the
 * destination region in the source is not convex or has three vertices in line (huxStsBadQuad), or its bounding box
 * misses the source region (huxStsQuadOutsideWarn). */
HUX_API HuxStatus huxiWarpBilinearBack_8u_C1R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                              Hux8u* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[2][4],
                                              HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpBilinearBack_8u_C3R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                              Hux8u* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[2][4],
                                              HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpBilinearBack_8u_AC4R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                               Hux8u* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[2][4],
                                               HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpBilinearBack_8u_C4R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                              Hux8u* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[2][4],
                                              HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpBilinearBack_8u_P3R(const Hux8u* const pSrc[3], HuxiSize srcSize, int srcStep,
                                              HuxiRect srcRoi, Hux8u* const pDst[3], int dstStep, HuxiRect dstRoi,
                                              const Hux64f coeffs[2][4], HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpBilinearBack_8u_P4R(const Hux8u* const pSrc[4], HuxiSize srcSize, int srcStep,
                                              HuxiRect srcRoi, Hux8u* const pDst[4], int dstStep, HuxiRect dstRoi,
                                              const Hux64f coeffs[2][4], HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpBilinearBack_16u_C1R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                               Hux16u* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[2][4],
                                               HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpBilinearBack_16u_C3R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                               Hux16u* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[2][4],
                                               HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpBilinearBack_16u_AC4R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                                Hux16u* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[2][4],
                                                HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpBilinearBack_16u_C4R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                               Hux16u* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[2][4],
                                               HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpBilinearBack_16u_P3R(const Hux16u* const pSrc[3], HuxiSize srcSize, int srcStep,
                                               HuxiRect srcRoi, Hux16u* const pDst[3], int dstStep, HuxiRect dstRoi,
                                               const Hux64f coeffs[2][4], HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpBilinearBack_16u_P4R(const Hux16u* const pSrc[4], HuxiSize srcSize, int srcStep,
                                               HuxiRect srcRoi, Hux16u* const pDst[4], int dstStep, HuxiRect dstRoi,
                                               const Hux64f coeffs[2][4], HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpBilinearBack_32f_C1R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                               Hux32f* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[2][4],
                                               HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpBilinearBack_32f_C3R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                               Hux32f* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[2][4],
                                               HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpBilinearBack_32f_AC4R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                                Hux32f* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[2][4],
                                                HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpBilinearBack_32f_C4R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                               Hux32f* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[2][4],
                                               HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpBilinearBack_32f_P3R(const Hux32f* const pSrc[3], HuxiSize srcSize, int srcStep,
                                               HuxiRect srcRoi, Hux32f* const pDst[3], int dstStep, HuxiRect dstRoi,
                                               const Hux64f coeffs[2][4], HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpBilinearBack_32f_P4R(const Hux32f* const pSrc[4], HuxiSize srcSize, int srcStep,
                                               HuxiRect srcRoi, Hux32f* const pDst[4], int dstStep, HuxiRect dstRoi,
                                               const Hux64f coeffs[2][4], HuxiInterpolation interpolation);

/* WarpBilinearQuad: the vertices of srcQuad go to those of dstQuad, each vertex being {x, y}. Of srcQuad only what
 * lies in srcRoi is looked up.
 * Checks of the map: a quadrangle that is not convex or has three vertices in line (huxStsBadCoeffs). Behind them:
 * the bounding box of srcQuad misses the source region (huxStsQuadOutsideWarn). Edges are smoothed only if srcQuad
 * lies wholly in the source region and its edges do not all run along the axes. */
HUX_API HuxStatus huxiWarpBilinearQuad_8u_C1R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                              const Hux64f srcQuad[4][2], Hux8u* pDst, int dstStep, HuxiRect dstRoi,
                                              const Hux64f dstQuad[4][2], HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpBilinearQuad_8u_C3R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                              const Hux64f srcQuad[4][2], Hux8u* pDst, int dstStep, HuxiRect dstRoi,
                                              const Hux64f dstQuad[4][2], HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpBilinearQuad_8u_AC4R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                               const Hux64f srcQuad[4][2], Hux8u* pDst, int dstStep, HuxiRect dstRoi,
                                               const Hux64f dstQuad[4][2], HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpBilinearQuad_8u_C4R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                              const Hux64f srcQuad[4][2], Hux8u* pDst, int dstStep, HuxiRect dstRoi,
                                              const Hux64f dstQuad[4][2], HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpBilinearQuad_8u_P3R(const Hux8u* const pSrc[3], HuxiSize srcSize, int srcStep,
                                              HuxiRect srcRoi, const Hux64f srcQuad[4][2], Hux8u* const pDst[3],
                                              int dstStep, HuxiRect dstRoi, const Hux64f dstQuad[4][2],
                                              HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpBilinearQuad_8u_P4R(const Hux8u* const pSrc[4], HuxiSize srcSize, int srcStep,
                                              HuxiRect srcRoi, const Hux64f srcQuad[4][2], Hux8u* const pDst[4],
                                              int dstStep, HuxiRect dstRoi, const Hux64f dstQuad[4][2],
                                              HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpBilinearQuad_16u_C1R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                               const Hux64f srcQuad[4][2], Hux16u* pDst, int dstStep, HuxiRect dstRoi,
                                               const Hux64f dstQuad[4][2], HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpBilinearQuad_16u_C3R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                               const Hux64f srcQuad[4][2], Hux16u* pDst, int dstStep, HuxiRect dstRoi,
                                               const Hux64f dstQuad[4][2], HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpBilinearQuad_16u_AC4R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                                const Hux64f srcQuad[4][2], Hux16u* pDst, int dstStep, HuxiRect dstRoi,
                                                const Hux64f dstQuad[4][2], HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpBilinearQuad_16u_C4R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                               const Hux64f srcQuad[4][2], Hux16u* pDst, int dstStep, HuxiRect dstRoi,
                                               const Hux64f dstQuad[4][2], HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpBilinearQuad_16u_P3R(const Hux16u* const pSrc[3], HuxiSize srcSize, int srcStep,
                                               HuxiRect srcRoi, const Hux64f srcQuad[4][2], Hux16u* const pDst[3],
                                               int dstStep, HuxiRect dstRoi, const Hux64f dstQuad[4][2],
                                               HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpBilinearQuad_16u_P4R(const Hux16u* const pSrc[4], HuxiSize srcSize, int srcStep,
                                               HuxiRect srcRoi, const Hux64f srcQuad[4][2], Hux16u* const pDst[4],
                                               int dstStep, HuxiRect dstRoi, const Hux64f dstQuad[4][2],
                                               HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpBilinearQuad_32f_C1R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                               const Hux64f srcQuad[4][2], Hux32f* pDst, int dstStep, HuxiRect dstRoi,
                                               const Hux64f dstQuad[4][2], HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpBilinearQuad_32f_C3R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                               const Hux64f srcQuad[4][2], Hux32f* pDst, int dstStep, HuxiRect dstRoi,
                                               const Hux64f dstQuad[4][2], HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpBilinearQuad_32f_AC4R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                                const Hux64f srcQuad[4][2], Hux32f* pDst, int dstStep, HuxiRect dstRoi,
                                                const Hux64f dstQuad[4][2], HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpBilinearQuad_32f_C4R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                               const Hux64f srcQuad[4][2], Hux32f* pDst, int dstStep, HuxiRect dstRoi,
                                               const Hux64f dstQuad[4][2], HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpBilinearQuad_32f_P3R(const Hux32f* const pSrc[3], HuxiSize srcSize, int srcStep,
                                               HuxiRect srcRoi, const Hux64f srcQuad[4][2], Hux32f* const pDst[3],
                                               int dstStep, HuxiRect dstRoi, const Hux64f dstQuad[4][2],
                                               HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpBilinearQuad_32f_P4R(const Hux32f* const pSrc[4], HuxiSize srcSize, int srcStep,
                                               HuxiRect srcRoi, const Hux64f srcQuad[4][2], Hux32f* const pDst[4],
                                               int dstStep, HuxiRect dstRoi, const Hux64f dstQuad[4][2],
                                               HuxiInterpolation interpolation);

/* WarpPerspective: x' = (c00 x + c01 y + c02) / (c20 x + c21 y + c22), y' = (c10 x + c11 y + c12) / (the same)
 * carries the source to the destination. Arguments and checks as for the warps above; of the map: c00 c11 and c01 c10
 * equal, to a relative 1e-12, or c22 of 1e-200 or less in amount (huxStsBadQuad). Behind them: a source region of one
 * row or column (huxStsBadRect), a quadrangle that is not convex or has three vertices in line (huxStsBadQuad). */
HUX_API HuxStatus huxiWarpPerspective_8u_C1R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                             Hux8u* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[3][3],
                                             HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpPerspective_8u_C3R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                             Hux8u* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[3][3],
                                             HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpPerspective_8u_AC4R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                              Hux8u* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[3][3],
                                              HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpPerspective_8u_C4R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                             Hux8u* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[3][3],
                                             HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpPerspective_8u_P3R(const Hux8u* const pSrc[3], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                             Hux8u* const pDst[3], int dstStep, HuxiRect dstRoi,
                                             const Hux64f coeffs[3][3], HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpPerspective_8u_P4R(const Hux8u* const pSrc[4], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                             Hux8u* const pDst[4], int dstStep, HuxiRect dstRoi,
                                             const Hux64f coeffs[3][3], HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpPerspective_16u_C1R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                              Hux16u* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[3][3],
                                              HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpPerspective_16u_C3R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                              Hux16u* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[3][3],
                                              HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpPerspective_16u_AC4R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                               Hux16u* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[3][3],
                                               HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpPerspective_16u_C4R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                              Hux16u* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[3][3],
                                              HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpPerspective_16u_P3R(const Hux16u* const pSrc[3], HuxiSize srcSize, int srcStep,
                                              HuxiRect srcRoi, Hux16u* const pDst[3], int dstStep, HuxiRect dstRoi,
                                              const Hux64f coeffs[3][3], HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpPerspective_16u_P4R(const Hux16u* const pSrc[4], HuxiSize srcSize, int srcStep,
                                              HuxiRect srcRoi, Hux16u* const pDst[4], int dstStep, HuxiRect dstRoi,
                                              const Hux64f coeffs[3][3], HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpPerspective_32f_C1R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                              Hux32f* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[3][3],
                                              HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpPerspective_32f_C3R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                              Hux32f* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[3][3],
                                              HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpPerspective_32f_AC4R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                               Hux32f* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[3][3],
                                               HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpPerspective_32f_C4R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                              Hux32f* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[3][3],
                                              HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpPerspective_32f_P3R(const Hux32f* const pSrc[3], HuxiSize srcSize, int srcStep,
                                              HuxiRect srcRoi, Hux32f* const pDst[3], int dstStep, HuxiRect dstRoi,
                                              const Hux64f coeffs[3][3], HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpPerspective_32f_P4R(const Hux32f* const pSrc[4], HuxiSize srcSize, int srcStep,
                                              HuxiRect srcRoi, Hux32f* const pDst[4], int dstStep, HuxiRect dstRoi,
                                              const Hux64f coeffs[3][3], HuxiInterpolation interpolation);

/* WarpPerspectiveBack: the coefficients carry the destination to the source. Checks as for WarpPerspective but the
 * last two: where the image of the source region is no convex quadrangle, because the map's horizon crosses the
 * region or the region has no extent, every pixel of the destination region is looked up, and those stay as they are
 * whose place lies outside the source region. huxStsQuadOutsideWarn then tells that the bounding box of the
 * destination region's image misses the source region. */
HUX_API HuxStatus huxiWarpPerspectiveBack_8u_C1R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                                 Hux8u* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[3][3],
                                                 HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpPerspectiveBack_8u_C3R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                                 Hux8u* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[3][3],
                                                 HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpPerspectiveBack_8u_AC4R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                                  Hux8u* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[3][3],
                                                  HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpPerspectiveBack_8u_C4R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                                 Hux8u* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[3][3],
                                                 HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpPerspectiveBack_8u_P3R(const Hux8u* const pSrc[3], HuxiSize srcSize, int srcStep,
                                                 HuxiRect srcRoi, Hux8u* const pDst[3], int dstStep, HuxiRect dstRoi,
                                                 const Hux64f coeffs[3][3], HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpPerspectiveBack_8u_P4R(const Hux8u* const pSrc[4], HuxiSize srcSize, int srcStep,
                                                 HuxiRect srcRoi, Hux8u* const pDst[4], int dstStep, HuxiRect dstRoi,
                                                 const Hux64f coeffs[3][3], HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpPerspectiveBack_16u_C1R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                                  Hux16u* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[3][3],
                                                  HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpPerspectiveBack_16u_C3R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                                  Hux16u* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[3][3],
                                                  HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpPerspectiveBack_16u_AC4R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                                   Hux16u* pDst, int dstStep, HuxiRect dstRoi,
                                                   const Hux64f coeffs[3][3], HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpPerspectiveBack_16u_C4R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                                  Hux16u* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[3][3],
                                                  HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpPerspectiveBack_16u_P3R(const Hux16u* const pSrc[3], HuxiSize srcSize, int srcStep,
                                                  HuxiRect srcRoi, Hux16u* const pDst[3], int dstStep, HuxiRect dstRoi,
                                                  const Hux64f coeffs[3][3], HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpPerspectiveBack_16u_P4R(const Hux16u* const pSrc[4], HuxiSize srcSize, int srcStep,
                                                  HuxiRect srcRoi, Hux16u* const pDst[4], int dstStep, HuxiRect dstRoi,
                                                  const Hux64f coeffs[3][3], HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpPerspectiveBack_32f_C1R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                                  Hux32f* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[3][3],
                                                  HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpPerspectiveBack_32f_C3R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                                  Hux32f* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[3][3],
                                                  HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpPerspectiveBack_32f_AC4R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                                   Hux32f* pDst, int dstStep, HuxiRect dstRoi,
                                                   const Hux64f coeffs[3][3], HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpPerspectiveBack_32f_C4R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                                  Hux32f* pDst, int dstStep, HuxiRect dstRoi, const Hux64f coeffs[3][3],
                                                  HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpPerspectiveBack_32f_P3R(const Hux32f* const pSrc[3], HuxiSize srcSize, int srcStep,
                                                  HuxiRect srcRoi, Hux32f* const pDst[3], int dstStep, HuxiRect dstRoi,
                                                  const Hux64f coeffs[3][3], HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpPerspectiveBack_32f_P4R(const Hux32f* const pSrc[4], HuxiSize srcSize, int srcStep,
                                                  HuxiRect srcRoi, Hux32f* const pDst[4], int dstStep, HuxiRect dstRoi,
                                                  const Hux64f coeffs[3][3], HuxiInterpolation interpolation);

/* WarpPerspectiveQuad: the vertices of srcQuad go to those of dstQuad, each vertex being {x, y}. Of srcQuad only what
 * lies in srcRoi is looked up.
 * Checks of the map: a quadrangle that is not convex or has three vertices in line (huxStsBadCoeffs). Behind them:
 * the bounding box of srcQuad misses the source region (huxStsQuadOutsideWarn). Edges are smoothed only if srcQuad
 * lies wholly in the source region. */
HUX_API HuxStatus huxiWarpPerspectiveQuad_8u_C1R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                                 const Hux64f srcQuad[4][2], Hux8u* pDst, int dstStep, HuxiRect dstRoi,
                                                 const Hux64f dstQuad[4][2], HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpPerspectiveQuad_8u_C3R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                                 const Hux64f srcQuad[4][2], Hux8u* pDst, int dstStep, HuxiRect dstRoi,
                                                 const Hux64f dstQuad[4][2], HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpPerspectiveQuad_8u_AC4R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                                  const Hux64f srcQuad[4][2], Hux8u* pDst, int dstStep, HuxiRect dstRoi,
                                                  const Hux64f dstQuad[4][2], HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpPerspectiveQuad_8u_C4R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                                 const Hux64f srcQuad[4][2], Hux8u* pDst, int dstStep, HuxiRect dstRoi,
                                                 const Hux64f dstQuad[4][2], HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpPerspectiveQuad_8u_P3R(const Hux8u* const pSrc[3], HuxiSize srcSize, int srcStep,
                                                 HuxiRect srcRoi, const Hux64f srcQuad[4][2], Hux8u* const pDst[3],
                                                 int dstStep, HuxiRect dstRoi, const Hux64f dstQuad[4][2],
                                                 HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpPerspectiveQuad_8u_P4R(const Hux8u* const pSrc[4], HuxiSize srcSize, int srcStep,
                                                 HuxiRect srcRoi, const Hux64f srcQuad[4][2], Hux8u* const pDst[4],
                                                 int dstStep, HuxiRect dstRoi, const Hux64f dstQuad[4][2],
                                                 HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpPerspectiveQuad_16u_C1R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                                  const Hux64f srcQuad[4][2], Hux16u* pDst, int dstStep,
                                                  HuxiRect dstRoi, const Hux64f dstQuad[4][2],
                                                  HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpPerspectiveQuad_16u_C3R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                                  const Hux64f srcQuad[4][2], Hux16u* pDst, int dstStep,
                                                  HuxiRect dstRoi, const Hux64f dstQuad[4][2],
                                                  HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpPerspectiveQuad_16u_AC4R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                                   const Hux64f srcQuad[4][2], Hux16u* pDst, int dstStep,
                                                   HuxiRect dstRoi, const Hux64f dstQuad[4][2],
                                                   HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpPerspectiveQuad_16u_C4R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                                  const Hux64f srcQuad[4][2], Hux16u* pDst, int dstStep,
                                                  HuxiRect dstRoi, const Hux64f dstQuad[4][2],
                                                  HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpPerspectiveQuad_16u_P3R(const Hux16u* const pSrc[3], HuxiSize srcSize, int srcStep,
                                                  HuxiRect srcRoi, const Hux64f srcQuad[4][2], Hux16u* const pDst[3],
                                                  int dstStep, HuxiRect dstRoi, const Hux64f dstQuad[4][2],
                                                  HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpPerspectiveQuad_16u_P4R(const Hux16u* const pSrc[4], HuxiSize srcSize, int srcStep,
                                                  HuxiRect srcRoi, const Hux64f srcQuad[4][2], Hux16u* const pDst[4],
                                                  int dstStep, HuxiRect dstRoi, const Hux64f dstQuad[4][2],
                                                  HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpPerspectiveQuad_32f_C1R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                                  const Hux64f srcQuad[4][2], Hux32f* pDst, int dstStep,
                                                  HuxiRect dstRoi, const Hux64f dstQuad[4][2],
                                                  HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpPerspectiveQuad_32f_C3R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                                  const Hux64f srcQuad[4][2], Hux32f* pDst, int dstStep,
                                                  HuxiRect dstRoi, const Hux64f dstQuad[4][2],
                                                  HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpPerspectiveQuad_32f_AC4R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                                   const Hux64f srcQuad[4][2], Hux32f* pDst, int dstStep,
                                                   HuxiRect dstRoi, const Hux64f dstQuad[4][2],
                                                   HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpPerspectiveQuad_32f_C4R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                                  const Hux64f srcQuad[4][2], Hux32f* pDst, int dstStep,
                                                  HuxiRect dstRoi, const Hux64f dstQuad[4][2],
                                                  HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpPerspectiveQuad_32f_P3R(const Hux32f* const pSrc[3], HuxiSize srcSize, int srcStep,
                                                  HuxiRect srcRoi, const Hux64f srcQuad[4][2], Hux32f* const pDst[3],
                                                  int dstStep, HuxiRect dstRoi, const Hux64f dstQuad[4][2],
                                                  HuxiInterpolation interpolation);
HUX_API HuxStatus huxiWarpPerspectiveQuad_32f_P4R(const Hux32f* const pSrc[4], HuxiSize srcSize, int srcStep,
                                                  HuxiRect srcRoi, const Hux64f srcQuad[4][2], Hux32f* const pDst[4],
                                                  int dstStep, HuxiRect dstRoi, const Hux64f dstQuad[4][2],
                                                  HuxiInterpolation interpolation);

/* ---- Remap ---- */

/* Remap: pixel (i, j) of the destination region is the source at (pxMap(i, j), pyMap(i, j)). The maps are images of
 * 32-bit floats of the region's size, with row steps in bytes; their coordinates count pixels from pSrc, the source
 * image's origin, whatever the source region. pDst addresses the first pixel of the destination region.
 * Only places inside the source region are looked up, its first and last columns and rows included (compared in
 * single precision); the pixel of any other, as of a NaN, stays as it was. Neighbours that interpolation needs come
 * from the whole source image, and from nowhere else. Images and interpolation as in the warps above, without
 * huxiInterSmoothEdge.
 * Checks: null pointers, those of planes excepted (huxStsNullPtr); sizes of less than one row or column, srcRoi with
 * x or y below 0 (huxStsBadSize); interpolation (huxStsBadInterpolation); steps below 1, of the maps too
 * (huxStsBadStep); the source region's first pixel not one of the image (huxStsNoOverlapWarn); null plane pointers
 * (huxStsNullPtr). */
HUX_API HuxStatus huxiRemap_8u_C1R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                   const Hux32f* pxMap, int xMapStep, const Hux32f* pyMap, int yMapStep, Hux8u* pDst,
                                   int dstStep, HuxiSize dstRoiSize, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiRemap_8u_C3R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                   const Hux32f* pxMap, int xMapStep, const Hux32f* pyMap, int yMapStep, Hux8u* pDst,
                                   int dstStep, HuxiSize dstRoiSize, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiRemap_8u_AC4R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                    const Hux32f* pxMap, int xMapStep, const Hux32f* pyMap, int yMapStep, Hux8u* pDst,
                                    int dstStep, HuxiSize dstRoiSize, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiRemap_8u_C4R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                   const Hux32f* pxMap, int xMapStep, const Hux32f* pyMap, int yMapStep, Hux8u* pDst,
                                   int dstStep, HuxiSize dstRoiSize, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiRemap_8u_P3R(const Hux8u* const pSrc[3], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                   const Hux32f* pxMap, int xMapStep, const Hux32f* pyMap, int yMapStep,
                                   Hux8u* const pDst[3], int dstStep, HuxiSize dstRoiSize,
                                   HuxiInterpolation interpolation);
HUX_API HuxStatus huxiRemap_8u_P4R(const Hux8u* const pSrc[4], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                   const Hux32f* pxMap, int xMapStep, const Hux32f* pyMap, int yMapStep,
                                   Hux8u* const pDst[4], int dstStep, HuxiSize dstRoiSize,
                                   HuxiInterpolation interpolation);
HUX_API HuxStatus huxiRemap_16u_C1R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                    const Hux32f* pxMap, int xMapStep, const Hux32f* pyMap, int yMapStep, Hux16u* pDst,
                                    int dstStep, HuxiSize dstRoiSize, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiRemap_16u_C3R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                    const Hux32f* pxMap, int xMapStep, const Hux32f* pyMap, int yMapStep, Hux16u* pDst,
                                    int dstStep, HuxiSize dstRoiSize, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiRemap_16u_AC4R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                     const Hux32f* pxMap, int xMapStep, const Hux32f* pyMap, int yMapStep, Hux16u* pDst,
                                     int dstStep, HuxiSize dstRoiSize, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiRemap_16u_C4R(const Hux16u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                    const Hux32f* pxMap, int xMapStep, const Hux32f* pyMap, int yMapStep, Hux16u* pDst,
                                    int dstStep, HuxiSize dstRoiSize, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiRemap_16u_P3R(const Hux16u* const pSrc[3], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                    const Hux32f* pxMap, int xMapStep, const Hux32f* pyMap, int yMapStep,
                                    Hux16u* const pDst[3], int dstStep, HuxiSize dstRoiSize,
                                    HuxiInterpolation interpolation);
HUX_API HuxStatus huxiRemap_16u_P4R(const Hux16u* const pSrc[4], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                    const Hux32f* pxMap, int xMapStep, const Hux32f* pyMap, int yMapStep,
                                    Hux16u* const pDst[4], int dstStep, HuxiSize dstRoiSize,
                                    HuxiInterpolation interpolation);
HUX_API HuxStatus huxiRemap_32f_C1R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                    const Hux32f* pxMap, int xMapStep, const Hux32f* pyMap, int yMapStep, Hux32f* pDst,
                                    int dstStep, HuxiSize dstRoiSize, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiRemap_32f_C3R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                    const Hux32f* pxMap, int xMapStep, const Hux32f* pyMap, int yMapStep, Hux32f* pDst,
                                    int dstStep, HuxiSize dstRoiSize, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiRemap_32f_AC4R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                     const Hux32f* pxMap, int xMapStep, const Hux32f* pyMap, int yMapStep, Hux32f* pDst,
                                     int dstStep, HuxiSize dstRoiSize, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiRemap_32f_C4R(const Hux32f* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                    const Hux32f* pxMap, int xMapStep, const Hux32f* pyMap, int yMapStep, Hux32f* pDst,
                                    int dstStep, HuxiSize dstRoiSize, HuxiInterpolation interpolation);
HUX_API HuxStatus huxiRemap_32f_P3R(const Hux32f* const pSrc[3], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                    const Hux32f* pxMap, int xMapStep, const Hux32f* pyMap, int yMapStep,
                                    Hux32f* const pDst[3], int dstStep, HuxiSize dstRoiSize,
                                    HuxiInterpolation interpolation);
HUX_API HuxStatus huxiRemap_32f_P4R(const Hux32f* const pSrc[4], HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                    const Hux32f* pxMap, int xMapStep, const Hux32f* pyMap, int yMapStep,
                                    Hux32f* const pDst[4], int dstStep, HuxiSize dstRoiSize,
                                    HuxiInterpolation interpolation);

HUX_END_C

#endif
