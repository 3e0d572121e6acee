/* Geometric transforms: pixels moved to computed positions. Plain C99. */
#ifndef HUXI_GEOMETRY_H
#define HUXI_GEOMETRY_H

#include "huxdefs.h"

HUX_BEGIN_C

/* ---- Quadrangles ---- */

/* Get...Quad, Get...Bound: where a rectangle of pixels goes: the quadrangle that a map makes of it, or the bounds of
 * that.
 * Pixels are points at integer coordinates, counted from the image's origin, x to the right and y downwards. srcRoi
 * stands for its inclusive corners x, y and x + width - 1, y + height - 1. A quadrangle has its vertices in the order
 * top left, top right, bottom right, bottom left of the rectangle, each as {x, y}; a bound is {smallest x, smallest
 * y}, {largest x, largest y} of the four. All numbers are 64-bit floats.
 *   affine       x' = c00 x + c01 y + c02, y' = c10 x + c11 y + c12
 *   bilinear     x' = c00 x y + c01 x + c02 y + c03, y' = c10 x y + c11 x + c12 y + c13
 *   perspective  x' = (c00 x + c01 y + c02) / (c20 x + c21 y + c22), y' = (c10 x + c11 y + c12) / (the same)
 *   shear        x' = x + xShear y + xShift, y' = yShear x + y + yShift
 *   rotation     x' = x cos a + y sin a + xShift, y' = -x sin a + y cos a + yShift: a positive angle, in degrees,
 *                turns counter-clockwise on the screen; at 90, 180 and 270 the coefficients are exact
 * Checks, in order: an x or y of srcRoi below 0, a width or height below 1 (huxStsBadSize; nothing is written). A
 * quadrangle that is not convex, or has three vertices in line, gives huxStsBadQuad with quad or bound written all the
 * same; a rotation is not tested for that. Pointers are not checked.
 * Example:
 *   const HuxiRect whole = {0, 0, 640, 480};
 *   Hux64f bound[2][2];
 *   huxiGetRotateBound(whole, bound, 30, 0, 0);
 *   const int columns = (int)(bound[1][0] - bound[0][0]) + 2;  // of the image, turned by 30 degrees
 */
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

/* GetAffineTransform, GetBilinearTransform, GetPerspectiveTransform: the map that carries srcRoi on to a quadrangle,
 * to coeffs.
 * quad has the vertices for the rectangle's corners in the order top left, top right, bottom right, bottom left. An
 * affine map follows from vertices 0, 1 and 2; where vertex 3 does not follow from it, the coefficients are written
 * and the result is huxStsQuadNotAffineWarn.
 * Checks, in order: an x or y of srcRoi below 0, a width or height below 1 (huxStsBadSize), quad not convex or with
 * three vertices in line (huxStsBadCoeffs), srcRoi of one row or one column (huxStsBadRect). Pointers are not checked.
 * Example:
 *   const HuxiRect whole = {0, 0, 640, 480};
 *   const Hux64f quad[4][2] = {{10, 0}, {600, 40}, {639, 479}, {0, 400}};
 *   Hux64f coeffs[3][3];
 *   huxiGetPerspectiveTransform(whole, quad, coeffs);
 */
HUX_API HuxStatus huxiGetAffineTransform(HuxiRect srcRoi, const Hux64f quad[4][2], Hux64f coeffs[2][3]);
HUX_API HuxStatus huxiGetBilinearTransform(HuxiRect srcRoi, const Hux64f quad[4][2], Hux64f coeffs[2][4]);
HUX_API HuxStatus huxiGetPerspectiveTransform(HuxiRect srcRoi, const Hux64f quad[4][2], Hux64f coeffs[3][3]);

/* GetRotateShift, AddRotateShift: the shifts with which a rotation by `angle` degrees keeps the point (xCenter,
 * yCenter) where it is.
 * Get writes them to *pxShift and *pyShift, Add adds them to what is there.
 * Checks, in order: null pointers (huxStsNullPtr). */
HUX_API HuxStatus huxiGetRotateShift(Hux64f xCenter, Hux64f yCenter, Hux64f angle, Hux64f* pxShift, Hux64f* pyShift);
HUX_API HuxStatus huxiAddRotateShift(Hux64f xCenter, Hux64f yCenter, Hux64f angle, Hux64f* pxShift, Hux64f* pyShift);

/* ---- Resize ---- */

/* Resize: the region srcRoi of an image, scaled by xFactor and yFactor. pSrc addresses the first pixel of the whole
 * source image, whose size is srcSize, and srcRoi counts from there; what overruns the image is cut off, and W, H below
 * are what is left of its width and height. pDst addresses the first pixel that is written. Neighbours of
 * interpolation come from the whole image, never from outside it. AC4: alpha of the destination stays. Images may not
 * overlap.
 *
 * Size. The destination has W xFactor columns, 1e-7 added and truncated, and rows likewise, at most dstRoiSize; less
 * than one, but at least half a pixel, is one.
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
 * ResizeCenter: the point (xCenter, yCenter) of the source comes to the middle of the destination, of dstRoiSize, whose
 * first pixel is at pDst; the part that the region covers is written. huxiInterSuper starts at a whole source pixel.
 * ResizeShift: xFr and yFr are steps in the source from one destination pixel to the next, in place of 1 / xFactor and
 * 1 / yFactor, from xShift, yShift on; half a step more in nearest mode. With w = (W - 1) / xFr (W / xFr in nearest
 * mode) truncated, w + 1 (w, at least 1) columns are written if w is below dstRoiSize.width - 1, else all.
 * huxiInterSuper is not for it. xFr and yFr are the factors of the checks. Shifts may be negative: positions below 0
 * are truncated towards 0 as well, so that their fractions are negative and interpolation extrapolates; integers are
 * limited to their type. What lies a pixel or more before the image stands for its first pixel.
 *
 * Checks, in order: null pointers, planes included (huxStsNullPtr); srcSize, srcRoi's x or y below 0, its width or
 * height below 1 (huxStsBadSize); a first pixel of srcRoi outside the image (huxStsNoOverlapWarn, nothing is done);
 * dstRoiSize (huxStsBadSize); factors not above 0 (huxStsBadResizeFactor); interpolation (huxStsBadInterpolation, also
 * for huxiInterSuper with a factor above 1). Then, of factors: less than half a pixel (huxStsResizeTooSmall).
 * ResizeCenter makes these checks but for pSrc (unless planar) and interpolation, then all of them once more on the
 * part of the region and of the destination that it has found. Supersampling may end with huxStsNoMem. Steps are not
 * checked: a negative srcStep walks up.
 * Example:
 *   const HuxiRect whole = {0, 0, size.width, size.height};
 *   const HuxiSize small = {160, 120};
 *   huxiResize_8u_C1R(src, size, srcStep, whole, dst, dstStep, small, 160.0 / size.width, 120.0 / size.height,
 *                     huxiInterSuper);
 */
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

/* GetResizeFract: the steps, in pixels of the source, that Resize takes for these factors, to *pxFr and *pyFr.
 * They are what ResizeShift wants. The mode is taken as it is, whatever the image's size.
 * Checks, in order: srcSize, srcRoi's x or y below 0, its width or height below 1 (huxStsBadSize), a first pixel of
 * srcRoi outside the image (huxStsNoOverlapWarn), factors not above 0 (huxStsBadResizeFactor), null pointers
 * (huxStsNullPtr), interpolation (huxStsBadInterpolation, also for huxiInterSuper). */
HUX_API HuxStatus huxiGetResizeFract(HuxiSize srcSize, HuxiRect srcRoi, Hux64f xFactor, Hux64f yFactor, Hux64f* pxFr,
                                     Hux64f* pyFr, HuxiInterpolation interpolation);

/* ---- Resize to square pixels ---- */

/* ResizeSqrPixel: the region srcRoi of an image, scaled by xFactor and yFactor and moved by xShift, yShift destination
 * pixels.
 * Pixels are squares of unit area: the centre of destination column i lies at (i + 0.5) / xFactor - 0.5 - xShift /
 * xFactor in the source, a row likewise; each position is computed afresh, in double precision. pSrc and pDst address
 * the first pixels of both images, and both regions count from there. Of the source region, what overruns the image
 * srcSize is cut off. Written are the pixels of dstRoi that come from the source region: columns from max(dstRoi.x,
 * srcRoi.x xFactor + xShift) up to, but without, min(dstRoi.x + dstRoi.width, (srcRoi.x + srcRoi.width) xFactor +
 * xShift), each rounded, and rows likewise; if the first lies behind the end, nothing is done and the result is
 * huxStsEmptyDestWarn.
 *
 * Interpolation is that of Resize, by huxiInterNearest, huxiInterLinear, huxiInterCubic or huxiInterLanczos, with the
 * same rules for small images; beyond the image's edge its outer pixels are repeated. In linear mode an integer pixel
 * there is rounded once, an inner one in each of the two directions. AC4: alpha of the destination stays. P3R, P4R:
 * arrays of three or four plane pointers, with one step for all planes. Images may not overlap.
 *
 * pBuffer is work memory of the size that huxiResizeSqrPixelGetBufSize tells, at any address; calls at the same time
 * need one each.
 * Checks, in order: null pointers, planes included (huxStsNullPtr); srcSize, an x or y of srcRoi and dstRoi below 0,
 * their widths and heights below 1 (huxStsBadSize); factors not above 0 (huxStsBadResizeFactor); interpolation
 * (huxStsBadInterpolation); a first pixel of srcRoi outside the image (huxStsNoOverlapWarn, nothing is done). Steps
 * are not checked.
 * Example:
 *   const HuxiRect part = {40, 30, 16, 12}, large = {0, 0, 64, 48};  // four times as large
 *   const HuxiSize largeSize = {64, 48};
 *   int bytes;
 *   huxiResizeSqrPixelGetBufSize(largeSize, 1, huxiInterCubic, &bytes);
 *   Hux8u* buffer = huxsMalloc_8u(bytes);
 *   if (buffer)
 *     huxiResizeSqrPixel_8u_C1R(src, size, srcStep, part, dst, dstStep, large, 4, 4, -4 * 40, -4 * 30, huxiInterCubic,
 *                               buffer);
 *   huxsFree(buffer);
 */
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

/* ResizeSqrPixelGetBufSize: the bytes of work memory for a destination region of that size, to *pSize.
 * nChannels is 1 for C1 and planes, 3 for C3 and AC4, 4 for C4.
 * Checks, in order: pSize null (huxStsNullPtr), width or height below 1 (huxStsBadSize), nChannels not 1, 3 or 4
 * (huxStsBadChannelCount), interpolation (huxStsBadInterpolation). */
HUX_API HuxStatus huxiResizeSqrPixelGetBufSize(HuxiSize dstSize, int nChannels, HuxiInterpolation interpolation,
                                               int* pSize);

/* ---- Resize of packed YUV ---- */

/* ResizeYUV422: Resize of packed 4:2:2, in which two pixels are four bytes, Y0 U Y1 V.
 * Widths and x count pixels. The region begins at byte 4 srcRoi.x of a row (four bytes for each unit of x,
 * deliberately); no sample behind the last pair of the image's row, and no row behind its last, is read. Y is
 * resampled as a row of srcRoi.width samples, U and V as rows of half as many; in nearest mode pair k takes its U and
 * V from the pair whose number is that of the sample that column k would take. The destination has as many pixels as
 * with Resize, at least two, and at least 1.5 columns count as two; an odd last column is not written. Images may not
 * overlap.
 * Interpolation: huxiInterNearest, huxiInterLinear, huxiInterCubic, huxiInterSuper, as in Resize; a width below 8 or a
 * height below 4 of the whole image makes cubic linear, a width below 4 or a height below 2 makes both nearest.
 * Checks, in order: null pointers (huxStsNullPtr); srcSize, srcRoi's x or y below 0, its width or height below 1
 * (huxStsBadSize); a first pixel of srcRoi outside the image (huxStsNoOverlapWarn, nothing is done); dstRoiSize, an
 * odd srcSize.width, srcRoi.width or srcRoi.x, a dstRoiSize.width below 2 (huxStsBadSize); factors not above 0
 * (huxStsBadResizeFactor); interpolation (huxStsBadInterpolation); huxiInterSuper with a factor above 1
 * (huxStsBadResizeFactor); a result of less than 1.5 columns or half a row (huxStsResizeTooSmall). Supersampling may
 * end with huxStsNoMem. Steps are not checked. */
HUX_API HuxStatus huxiResizeYUV422_8u_C2R(const Hux8u* pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi,
                                          Hux8u* pDst, int dstStep, HuxiSize dstRoiSize, Hux64f xFactor, Hux64f yFactor,
                                          HuxiInterpolation interpolation);

/* ---- Affine warps, rotation and shear ---- */

/* Warps: an image resampled through a map.
 * The image of the source region in the destination is a quadrangle; each pixel of the destination region that lies in
 * it, its edges included, takes the source's value at the place that the inverse map tells, and all others stay as
 * they are. Positions are computed in 64-bit floats.
 * pSrc and pDst address the origins of whole images, and all coordinates count pixels from there, x to the right and y
 * downwards; pixels are points at integer coordinates. srcSize is the size of the source image, srcRoi the region of
 * it that is warped, cut to the image; interpolation sees the whole image around it, and nothing outside. dstRoi is
 * the region of the destination that may be written. Source and destination must not overlap.
 * C1R, C3R, C4R: all channels. AC4R: alpha of the destination stays. P3R, P4R: arrays of three or four plane pointers,
 * with one step for all planes; the arrays are only read.
 * interpolation is one of
 *   huxiInterNearest  the pixel at (x + 0.5, y + 0.5) truncated
 *   huxiInterLinear   between the four neighbours; of 8u the result is rounded, of 16u it is truncated
 *   huxiInterCubic    polynomials through the four by four neighbours, saturated
 * An image of one row or column is sampled as by huxiInterNearest, one with fewer than four as by huxiInterLinear at
 * most.
 * huxiInterSmoothEdge may be added: then the pixels just outside the slanted edges of the quadrangle are blended with
 * their neighbours inside, in all channels, alpha included. The Back forms ignore it.
 * Checks, in order, of all warps: null pointers (huxStsNullPtr); srcSize, srcRoi, dstRoi of less than one row or
 * column, or regions with x or y below 0 (huxStsBadSize); steps below 1 (huxStsBadStep); interpolation
 * (huxStsBadInterpolation); null plane pointers (huxStsNullPtr); the map, as told for each; then the source region's
 * first pixel not one of the image (huxStsNoOverlapWarn). The arrays of the map are not checked for null.
 * huxStsQuadOutsideWarn tells that the quadrangle misses the destination region, or that there is no memory for its 8
 * bytes per row. With any of these nothing is written. */

/* WarpAffine: an image warped by an affine map, whose coefficients carry the source to the destination.
 *   x' = c00 x + c01 y + c02, y' = c10 x + c11 y + c12
 * Checks, in order: pointers, sizes, steps, interpolation and planes, as of all warps; c00 c11 and c01 c10 equal, to a
 * relative 1e-12 (huxStsBadQuad); the source region's first pixel not one of the image (huxStsNoOverlapWarn); a source
 * region of one row or column (huxStsBadRect); a quadrangle without extent (huxStsBadQuad); one that misses the
 * destination region (huxStsQuadOutsideWarn).
 * Example:
 *   const HuxiRect whole = {0, 0, size.width, size.height};
 *   const Hux64f halved[2][3] = {{0.5, 0, size.width / 4.0}, {0, 0.5, size.height / 4.0}};
 *   huxiWarpAffine_8u_C1R(src, size, srcStep, whole, dst, dstStep, whole, halved, huxiInterLinear);
 */
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

/* WarpAffineBack: an image warped by an affine map, whose coefficients carry the destination to the source.
 * Checks, in order: pointers, sizes, steps, interpolation and planes, as of all warps; c00 c11 and c01 c10 equal, to a
 * relative 1e-12 (huxStsBadQuad); the source region's first pixel not one of the image (huxStsNoOverlapWarn); a
 * quadrangle without extent, such as that of a source region of one row or column (huxStsBadQuad); one that misses the
 * destination region (huxStsQuadOutsideWarn). */
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

/* WarpAffineQuad: an image warped by the affine map that carries vertices 0, 1 and 2 of srcQuad to those of dstQuad.
 * Vertices are {x, y}, in the order top left, top right, bottom right, bottom left. Where vertex 3 does not follow,
 * the image is warped by these three all the same and the result is huxStsQuadNotAffineWarn; then pixels whose place
 * lies outside the source image stay as they are. What of srcQuad lies outside srcRoi is cut off. Edges are smoothed
 * only of a quadrangle that was not cut.
 * Checks, in order: pointers, sizes, steps, interpolation and planes, as of all warps; a quadrangle that is not convex
 * or has three vertices in line (huxStsBadCoeffs); the source region's first pixel not one of the image
 * (huxStsNoOverlapWarn); a quadrangle that misses the destination region (huxStsQuadOutsideWarn), or memory for the
 * rows of one that was cut (huxStsNoMem). */
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

/* Rotate: an image turned about its origin, and shifted.
 *   x' = x cos a + y sin a + xShift, y' = -x sin a + y cos a + yShift
 * The angle is in degrees: a positive one turns counter-clockwise on the screen. At 90, 180 and 270 degrees and all
 * that differ from these by full turns, with shifts that are whole numbers, pixels are only moved; interpolation is
 * then not looked at, regions may be of one row or column, and the result is huxStsNoOverlapWarn where the image of
 * the source region misses the destination region.
 * Checks, in order: pointers, sizes, steps, interpolation and planes, as of all warps; the source region's first pixel
 * not one of the image (huxStsNoOverlapWarn); a source region of one row or column (huxStsBadRect); a quadrangle
 * without extent (huxStsBadQuad); one that misses the destination region (huxStsQuadOutsideWarn).
 * Example:
 *   const HuxiRect whole = {0, 0, size.width, size.height};
 *   Hux64f xShift, yShift;
 *   huxiGetRotateShift((size.width - 1) / 2.0, (size.height - 1) / 2.0, 15, &xShift, &yShift);
 *   huxiRotate_8u_C1R(src, size, srcStep, whole, dst, dstStep, whole, 15, xShift, yShift,
 *                     huxiInterCubic | huxiInterSmoothEdge);
 */
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

/* RotateCenter: an image turned about the point (xCenter, yCenter), which stays where it is.
 * The angle is in degrees: a positive one turns counter-clockwise on the screen. This is Rotate with the shifts that
 * huxiGetRotateShift tells.
 * Checks, in order: pointers, sizes, steps, interpolation and planes, as of all warps; the source region's first pixel
 * not one of the image (huxStsNoOverlapWarn); a source region of one row or column (huxStsBadRect); a quadrangle
 * without extent (huxStsBadQuad); one that misses the destination region (huxStsQuadOutsideWarn). */
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

/* Shear: an image sheared, and shifted.
 *   x' = x + xShear y + xShift, y' = yShear x + y + yShift
 * Checks, in order: pointers, sizes, steps, interpolation and planes, as of all warps; xShear yShear equal to 1, to a
 * relative 1e-12 (huxStsBadQuad); the source region's first pixel not one of the image (huxStsNoOverlapWarn); a source
 * region of one row or column (huxStsBadRect); a quadrangle without extent (huxStsBadQuad); one that misses the
 * destination region (huxStsQuadOutsideWarn). */
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

/* WarpBilinear: an image warped by a bilinear map, whose coefficients carry the source to the destination.
 *   x' = c00 x y + c01 x + c02 y + c03, y' = c10 x y + c11 x + c12 y + c13
 * Arguments are those of the warps above.
 * Checks, in order: pointers, sizes, steps, interpolation and planes, as of all warps; the source region's first pixel
 * not one of the image (huxStsNoOverlapWarn); a source region of one row or column (huxStsBadRect); a quadrangle that
 * is not convex or has three vertices in line (huxStsBadQuad); one that misses the destination region
 * (huxStsQuadOutsideWarn). */
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

/* WarpBilinearBack: an image warped by a bilinear map, whose coefficients carry the destination to the source.
 * Every pixel of the destination region is looked up, and those stay as they are whose place lies outside the source
 * region.
 * Checks, in order: pointers, sizes, steps, interpolation and planes, as of all warps; c01 c12 and c02 c11 equal, to a
 * relative 1e-12 (huxStsBadQuad); the source region's first pixel not one of the image (huxStsNoOverlapWarn); an image
 * of the destination region in the source that is not convex or has three vertices in line (huxStsBadQuad), or whose
 * bounding box misses the source region (huxStsQuadOutsideWarn). */
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

/* WarpBilinearQuad: an image warped by a bilinear map that carries the vertices of srcQuad to those of dstQuad.
 * Vertices are {x, y}, in the order top left, top right, bottom right, bottom left. Of srcQuad only what lies in
 * srcRoi is looked up. Edges are smoothed only if srcQuad lies wholly in the source region and its edges do not all
 * run along the axes.
 * Checks, in order: pointers, sizes, steps, interpolation and planes, as of all warps; a quadrangle that is not convex
 * or has three vertices in line (huxStsBadCoeffs); the source region's first pixel not one of the image
 * (huxStsNoOverlapWarn); a bounding box of srcQuad that misses the source region, or a dstQuad that misses the
 * destination region (huxStsQuadOutsideWarn). */
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

/* WarpPerspective: an image warped by a perspective map, whose coefficients carry the source to the destination.
 *   x' = (c00 x + c01 y + c02) / (c20 x + c21 y + c22), y' = (c10 x + c11 y + c12) / (the same)
 * Arguments are those of the warps above.
 * Checks, in order: pointers, sizes, steps, interpolation and planes, as of all warps; c00 c11 and c01 c10 equal, to a
 * relative 1e-12, or c22 of 1e-200 or less in amount (huxStsBadQuad); the source region's first pixel not one of the
 * image (huxStsNoOverlapWarn); a source region of one row or column (huxStsBadRect); a quadrangle that is not convex
 * or has three vertices in line (huxStsBadQuad); one that misses the destination region (huxStsQuadOutsideWarn). */
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

/* WarpPerspectiveBack: an image warped by a perspective map, whose coefficients carry the destination to the source.
 * Where the image of the source region is no convex quadrangle, because the map's horizon crosses the region or the
 * region has no extent, every pixel of the destination region is looked up, and those stay as they are whose place
 * lies outside the source region.
 * Checks, in order: pointers, sizes, steps, interpolation and planes, as of all warps; c00 c11 and c01 c10 equal, to a
 * relative 1e-12, or c22 of 1e-200 or less in amount (huxStsBadQuad); the source region's first pixel not one of the
 * image (huxStsNoOverlapWarn); a quadrangle that misses the destination region, or where there is none, a bounding box
 * of the destination region's image that misses the source region (huxStsQuadOutsideWarn). */
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

/* WarpPerspectiveQuad: an image warped by the perspective map that carries the vertices of srcQuad to those of
 * dstQuad.
 * Vertices are {x, y}, in the order top left, top right, bottom right, bottom left. Of srcQuad only what lies in
 * srcRoi is looked up. Edges are smoothed only if srcQuad lies wholly in the source region.
 * Checks, in order: pointers, sizes, steps, interpolation and planes, as of all warps; a quadrangle that is not convex
 * or has three vertices in line (huxStsBadCoeffs); the source region's first pixel not one of the image
 * (huxStsNoOverlapWarn); a bounding box of srcQuad that misses the source region, or a dstQuad that misses the
 * destination region (huxStsQuadOutsideWarn).
 * Example:
 *   const HuxiRect photo = {0, 0, size.width, size.height}, page = {0, 0, 210, 297};
 *   const Hux64f seen[4][2] = {{112, 64}, {498, 90}, {530, 420}, {70, 385}};  // its corners in the photograph
 *   const Hux64f upright[4][2] = {{0, 0}, {209, 0}, {209, 296}, {0, 296}};
 *   huxiWarpPerspectiveQuad_8u_C1R(src, size, srcStep, photo, seen, dst, dstStep, page, upright, huxiInterCubic);
 */
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

/* Remap: pixel (i, j) of the destination region is the source at (pxMap(i, j), pyMap(i, j)).
 * The maps are images of 32-bit floats of the region's size, with row steps in bytes; their coordinates count pixels
 * from pSrc, the source image's origin, whatever the source region. pDst addresses the first pixel of the destination
 * region. Only places inside the source region are looked up, its first and last columns and rows included (compared
 * in single precision); the pixel of any other, as of a NaN, stays as it was. Neighbours that interpolation needs come
 * from the whole source image, and from nowhere else. Images and interpolation as in the warps above, without
 * huxiInterSmoothEdge.
 * Checks, in order: null pointers, those of planes excepted (huxStsNullPtr); sizes of less than one row or column,
 * srcRoi with x or y below 0 (huxStsBadSize); interpolation (huxStsBadInterpolation); steps below 1, of the maps too
 * (huxStsBadStep); the source region's first pixel not one of the image (huxStsNoOverlapWarn); null plane pointers
 * (huxStsNullPtr).
 * Example:
 *   const HuxiRect whole = {0, 0, size.width, size.height};
 *   int xMapStep, yMapStep;
 *   Hux32f* xMap = huxiMalloc_32f_C1(size.width, size.height, &xMapStep);
 *   Hux32f* yMap = huxiMalloc_32f_C1(size.width, size.height, &yMapStep);
 *   if (xMap && yMap) {
 *     huxiImageRamp_32f_C1R(xMap, xMapStep, size, 0.25f, 1, huxAxsHorizontal);  // a quarter of a pixel to the left
 *     huxiImageRamp_32f_C1R(yMap, yMapStep, size, 0, 1, huxAxsVertical);
 *     huxiRemap_8u_C1R(src, size, srcStep, whole, xMap, xMapStep, yMap, yMapStep, dst, dstStep, size, huxiInterLinear);
 *   }
 *   huxiFree(xMap);
 *   huxiFree(yMap);
 */
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
