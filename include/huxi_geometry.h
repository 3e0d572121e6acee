/* Geometric transforms: pixels moved to computed positions. Plain C99. */
#ifndef HUXI_GEOMETRY_H
#define HUXI_GEOMETRY_H

#include "huxdefs.h"

HUX_BEGIN_C

/* ---- Quadrangles ---- */

/* Where a rectangle of pixels goes. Pixels are points at integer coordinates, counted from the image's origin, x to the
 * right and y downwards. srcRoi stands for its inclusive corners x, y and x + width - 1, y + height - 1. A quadrangle
 * has its vertices in the order top left, top right, bottom right, bottom left of the rectangle, each as {x, y}; a
 * bound is {smallest x, smallest y}, {largest x, largest y} of the four. All numbers are 64-bit floats. affine       x'
 * = c00 x + c01 y + c02, y' = c10 x + c11 y + c12 bilinear     x' = c00 x y + c01 x + c02 y + c03, y' = c10 x y + c11 x
 * + c12 y + c13 perspective  x' = (c00 x + c01 y + c02) / (c20 x + c21 y + c22), y' = (c10 x + c11 y + c12) / (the
 * same) shear        x' = x + xShear y + xShift, y' = yShear x + y + yShift rotation     x' = x cos a + y sin a +
 * xShift, y' = -x sin a + y cos a + yShift: a positive angle, in degrees, turns counter-clockwise on the screen; at 90,
 * 180 and 270 the coefficients are exact Checks: an x or y of srcRoi below 0, a width or height below 1 (huxStsBadSize;
 * nothing is written). A quadrangle that is not convex, or has three vertices in line, gives huxStsBadQuad with quad or
 * bound written all the same; a rotation is not tested for that. Pointers are not checked. */
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

/* ---- Resize to square pixels ---- */

/* ---- Resize of packed YUV ---- */

/* ---- Affine warps, rotation and shear ---- */

/* ---- Bilinear and perspective warps ---- */

/* ---- Remap ---- */

HUX_END_C

#endif
