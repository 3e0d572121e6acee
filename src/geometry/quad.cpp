// Quadrangles of rectangles, their bounding boxes, and the maps that make them.
#include "geometry/quad.h"

#include "core/check.h"
#include "huxi_geometry.h"

namespace hux {
namespace {

HuxStatus region(HuxiRect r) {
  return failUnless(r.x >= 0 && r.y >= 0 && r.width >= 1 && r.height >= 1, huxStsBadSize);
}
HuxStatus isGiven(const Quad& q) { return failUnless(ownvi_CheckQuad(q) >= 0, huxStsBadCoeffs); }
HuxStatus hasExtent(const Box& b) { return failUnless(b.x2 - b.x1 >= 1 && b.y2 - b.y1 >= 1, huxStsBadRect); }

// What may be wrong with a quadrangle that was computed.
HuxStatus anyQuad(const Quad&) { return huxStsOk; }
HuxStatus convex(const Quad& q) { return failUnless(ownvi_CheckQuad(q) >= 0, huxStsBadQuad); }

// map() gives the map; it reads the caller's coefficients and may only run once the rectangle has passed.
template <class Map>
HuxStatus getQuad(HuxiRect srcRoi, Hux64f quad[4][2], Map map, HuxStatus (*test)(const Quad&) = convex) {
  if (HuxStatus s = region(srcRoi)) return s;
  const Quad q = ownvi_WarpRect(map(), cornersOf(srcRoi));
  for (int k = 0; k < 4; ++k) quad[k][0] = q[k].x, quad[k][1] = q[k].y;
  return test(q);
}

// A degenerate quadrangle has a box all the same.
template <class Map>
HuxStatus getBound(HuxiRect srcRoi, Hux64f bound[2][2], Map map, HuxStatus (*test)(const Quad&) = convex) {
  Hux64f quad[4][2];
  const HuxStatus status = getQuad(srcRoi, quad, map, test);
  if (status != huxStsOk && status != huxStsBadQuad) return status;
  const Box b = ownvi_GetQuadrangleBound(quadAt(quad));
  bound[0][0] = b.x1, bound[0][1] = b.y1, bound[1][0] = b.x2, bound[1][1] = b.y2;
  return status;
}

bool isParallelogram(const Quad& q) {
  return !differ((q[3].x - q[2].x) * (q[1].y - q[0].y), (q[1].x - q[0].x) * (q[3].y - q[2].y)) &&
         !differ((q[0].y - q[3].y) * (q[2].x - q[1].x), (q[0].x - q[3].x) * (q[2].y - q[1].y));
}

// Three vertices decide; the fourth may only say that it does not follow.
HuxStatus getAffine(const Quad& q, const Box& b, Hux64f coeffs[2][3]) {
  const Hux64f width = b.x2 - b.x1, height = b.y2 - b.y1;
  const Hux64f c00 = (q[1].x - q[0].x) / width, c01 = (q[2].x - q[1].x) / height;
  const Hux64f c10 = (q[1].y - q[0].y) / width, c11 = (q[2].y - q[1].y) / height;
  coeffs[0][0] = c00, coeffs[0][1] = c01, coeffs[0][2] = q[0].x - c01 * b.y1 - c00 * b.x1;
  coeffs[1][0] = c10, coeffs[1][1] = c11, coeffs[1][2] = q[0].y - c10 * b.x1 - c11 * b.y1;
  return isParallelogram(q) ? huxStsOk : huxStsQuadNotAffineWarn;
}
HuxStatus getBilinear(const Quad& q, const Box& b, Hux64f coeffs[2][4]) {
  const BilinearCoeffs c = ownvi_GetBilinearTransform(b, q);
  const Hux64f rows[2][4] = {{c.c00, c.c01, c.c02, c.c03}, {c.c10, c.c11, c.c12, c.c13}};
  std::copy_n(&rows[0][0], 8, &coeffs[0][0]);
  return huxStsOk;
}
HuxStatus getPerspective(const Quad& q, const Box& b, Hux64f coeffs[3][3]) {
  const PerspectiveCoeffs c = ownvi_GetPerspectiveTransform(b, q);
  const Hux64f rows[3][3] = {{c.c00, c.c01, c.c02}, {c.c10, c.c11, c.c12}, {c.c20, c.c21, c.c22}};
  std::copy_n(&rows[0][0], 9, &coeffs[0][0]);
  return huxStsOk;
}

template <class Coeffs, class Get>
HuxStatus getTransform(HuxiRect srcRoi, const Hux64f quad[4][2], Coeffs coeffs, Get get) {
  if (HuxStatus s = check(
          region(srcRoi), [&] { return isGiven(quadAt(quad)); }, hasExtent(cornersOf(srcRoi))))
    return s;
  return get(quadAt(quad), cornersOf(srcRoi), coeffs);
}

// The shifts that keep a point where it is; quarter turns are exact.
Point shiftAbout(Point centre, Hux64f angle) {
  const Hux64f a = reducedAngle(angle), x = centre.x, y = centre.y;
  if (a == 0) return {0, 0};
  if (a == 90) return {x - y, x + y};
  if (a == 180) return {2 * x, 2 * y};
  if (a == 270) return {x + y, y - x};
  const AffineCoeffs r = rotation(a, 0, 0);
  return {x - x * r.c00 - y * r.c01, y - y * r.c00 + x * r.c01};
}

}  // namespace
}  // namespace hux

#define EXPORT(name, test, map, ...)                                                 \
  HuxStatus huxiGet##name##Quad(HuxiRect srcRoi, Hux64f quad[4][2], __VA_ARGS__) {   \
    return hux::getQuad(                                                             \
        srcRoi, quad, [&] { return map; }, hux::test);                               \
  }                                                                                  \
  HuxStatus huxiGet##name##Bound(HuxiRect srcRoi, Hux64f bound[2][2], __VA_ARGS__) { \
    return hux::getBound(                                                            \
        srcRoi, bound, [&] { return map; }, hux::test);                              \
  }
EXPORT(Affine, convex, hux::affineAt(coeffs), const Hux64f coeffs[2][3])
EXPORT(Bilinear, convex, hux::bilinearAt(coeffs), const Hux64f coeffs[2][4])
EXPORT(Perspective, convex, hux::perspectiveAt(coeffs), const Hux64f coeffs[3][3])
EXPORT(Shear, convex, hux::shearing(xShear, yShear, xShift, yShift), Hux64f xShear, Hux64f yShear, Hux64f xShift,
       Hux64f yShift)
// A rotation degenerates to nothing that its rectangle was not.
EXPORT(Rotate, anyQuad, hux::rotation(hux::reducedAngle(angle), xShift, yShift), Hux64f angle, Hux64f xShift,
       Hux64f yShift)
#undef EXPORT

#define EXPORT(name, rows, columns)                                                                            \
  HuxStatus huxiGet##name##Transform(HuxiRect srcRoi, const Hux64f quad[4][2], Hux64f coeffs[rows][columns]) { \
    return hux::getTransform(srcRoi, quad, coeffs, hux::get##name);                                            \
  }
EXPORT(Affine, 2, 3)
EXPORT(Bilinear, 2, 4)
EXPORT(Perspective, 3, 3)
#undef EXPORT

HuxStatus huxiGetRotateShift(Hux64f xCenter, Hux64f yCenter, Hux64f angle, Hux64f* pxShift, Hux64f* pyShift) {
  if (HuxStatus s = hux::check(hux::pointers(pxShift, pyShift))) return s;
  const hux::Point shift = hux::shiftAbout({xCenter, yCenter}, angle);
  *pxShift = shift.x, *pyShift = shift.y;
  return huxStsOk;
}

HuxStatus huxiAddRotateShift(Hux64f xCenter, Hux64f yCenter, Hux64f angle, Hux64f* pxShift, Hux64f* pyShift) {
  if (HuxStatus s = hux::check(hux::pointers(pxShift, pyShift))) return s;
  const hux::Point shift = hux::shiftAbout({xCenter, yCenter}, angle);
  *pxShift += shift.x, *pyShift += shift.y;
  return huxStsOk;
}
