// WarpAffine, WarpAffineBack, WarpAffineQuad, Shear: an image through an affine map, which is given from source to
// destination, from destination to source, or by two quadrangles.
#include "geometry/affine.h"

#include "core/stamp.h"
#include "huxi_geometry.h"

namespace hux {
namespace {

// From destination to source. Positions accumulate, pixel by pixel and row by row, since their last bits show where a
// result is truncated.
struct AffineMap {
  static constexpr int rows = Chains<2>::rows;
  static constexpr bool straight = true;

  AffineMap(const AffineCoeffs& c, Index firstRow)
      : c_(c), x_(c.c01 * Hux64f(firstRow) + c.c02), y_(Hux64f(firstRow) * c.c11 + c.c12) {
    for (int r = 0; r < rows; ++r) chains_.step[0][r] = c.c00, chains_.step[1][r] = c.c10;
  }
  void start(int r, Index left) {
    chains_.value[0][r] = c_.c00 * Hux64f(left) + x_;
    chains_.value[1][r] = Hux64f(left) * c_.c10 + y_;
    x_ += c_.c01, y_ += c_.c11;
  }
  void fill(Positions (&block)[rows], Index n) {
    chains_.run(n, [&](int q, int r) { return q ? block[r].y : block[r].x; });
  }

 private:
  AffineCoeffs c_;
  Hux64f x_, y_;  // of the next row, at column 0
  Chains<2> chains_;
};

HuxStatus regular(const AffineCoeffs& c) { return failUnless(differ(c.c00 * c.c11, c.c01 * c.c10), huxStsBadQuad); }

// The map that carries three points to three others. `clockwise` tells whether the first three turn that way.
AffineCoeffs throughVertices(const Quad& from, const Quad& to, bool& clockwise) {
  const Hux64f a = from[1].x - from[0].x, b = from[1].y - from[0].y;
  const Hux64f c = from[2].x - from[1].x, e = from[2].y - from[1].y;
  const Hux64f m = to[1].x - to[0].x, n = to[2].x - to[1].x, p = to[1].y - to[0].y, q = to[2].y - to[1].y;
  const Hux64f r = 1 / (a * e - c * b);
  clockwise = r > 0;
  AffineCoeffs map;
  map.c00 = (m * e - n * b) * r, map.c01 = (n * a - m * c) * r;
  map.c02 = to[2].x - map.c00 * from[2].x - map.c01 * from[2].y;
  map.c10 = (e * p - b * q) * r, map.c11 = (q * a - p * c) * r;
  map.c12 = to[2].y - map.c10 * from[2].x - map.c11 * from[2].y;
  return map;
}

HuxStatus ownvi_WarpAffineBack(const Warp& w, const Hux64f (*coeffs)[3]) {
  if (HuxStatus s = check(
          w.arguments(), [&] { return regular(affineAt(coeffs)); }, overlap(w.srcSize, w.srcRoi)))
    return s;
  const AffineCoeffs c = affineAt(coeffs);
  const Hux64f d = c.c00 * c.c11 - c.c01 * c.c10;
  const AffineCoeffs forward = {c.c11 / d,  -c.c01 / d, (c.c01 * c.c12 - c.c11 * c.c02) / d,
                                -c.c10 / d, c.c00 / d,  (c.c10 * c.c02 - c.c00 * c.c12) / d};
  const Quad quad = ownvi_WarpRect(forward, w.source());
  const int orientation = ownvi_CheckQuad(quad);
  if (HuxStatus s = convex(orientation)) return s;
  Spans spans;
  if (!ownvi_ClipQuad(quad, w.destination(), orientation, spans)) return huxStsQuadOutsideWarn;
  w.sample(spans, AffineMap(c, spans.first), kAnywhere);
  return huxStsOk;
}

// Vertices 0, 1 and 2 make the map. Where vertex 3 does not follow from it, the destination's quadrangle is not the
// image of the source's, and positions in it may leave the image: their pixels stay as they are.
HuxStatus ownvi_WarpAffineQ(const Warp& w, const Hux64f (*pSrcQuad)[2], const Hux64f (*pDstQuad)[2]) {
  if (HuxStatus s = check(w.arguments(), convex(pSrcQuad, pDstQuad), overlap(w.srcSize, w.srcRoi))) return s;
  const Quad srcQuad = quadAt(pSrcQuad), dstQuad = quadAt(pDstQuad);
  bool clockwise;
  const AffineCoeffs forward = throughVertices(srcQuad, dstQuad, clockwise);
  const Point fourth = forward(srcQuad[3]);
  const bool follows = !differ(fourth.x, dstQuad[3].x) && !differ(fourth.y, dstQuad[3].y);
  const AffineCoeffs inverse = throughVertices(dstQuad, srcQuad, clockwise);
  const Box source = w.source(), destination = w.destination();
  const bool whole = holdsAll(source, srcQuad);
  Spans spans;
  if (whole) {
    if (!ownvi_ClipQuad(dstQuad, destination, clockwise, spans)) return huxStsQuadOutsideWarn;
  } else {
    Polygon polygon(srcQuad);
    ownvi_ClipPolygon(polygon, source);
    if (polygon.count < 1) return huxStsQuadOutsideWarn;
    for (int k = 0; k < polygon.count; ++k) polygon.at[k] = forward(polygon.at[k]);
    ownvi_ClipPolygon(polygon, destination);
    if (!spansOf(polygon, clockwise, destination, spans)) return spans.noMemory() ? huxStsNoMem : huxStsQuadOutsideWarn;
  }
  constexpr Hux64f tolerance = 1e-7;  // of positions on the edge
  const Box image = {-tolerance, -tolerance, w.srcSize.width - 1 + tolerance, w.srcSize.height - 1 + tolerance};
  w.sample(spans, AffineMap(inverse, spans.first), follows ? kAnywhere : image);
  if (whole) w.smoothEdges(dstQuad, clockwise);
  return follows ? huxStsOk : huxStsQuadNotAffineWarn;
}

}  // namespace

// The inverse map is taken from the quadrangle, not from the coefficients.
HuxStatus ownvi_WarpAffine(const Warp& w, const AffineCoeffs& coeffs) {
  if (HuxStatus s = check(w.arguments(), regular(coeffs), overlap(w.srcSize, w.srcRoi),
                          [&] { return extent(commonPart(w.srcSize, w.srcRoi)); }))
    return s;
  const Box source = w.source();
  const Quad q = ownvi_WarpRect(coeffs, source);
  if (HuxStatus s = convex(ownvi_CheckQuad(q))) return s;
  const Hux64f d = 1 / ((q[1].x - q[0].x) * (q[2].y - q[1].y) - (q[2].x - q[1].x) * (q[1].y - q[0].y));
  const Hux64f across = (source.x2 - source.x1) * d, down = (source.y2 - source.y1) * d;
  AffineCoeffs inverse;
  inverse.c00 = (q[2].y - q[1].y) * across, inverse.c01 = -(q[2].x - q[1].x) * across;
  inverse.c02 = source.x1 - inverse.c00 * q[0].x - inverse.c01 * q[0].y;
  inverse.c10 = -(q[1].y - q[0].y) * down, inverse.c11 = (q[1].x - q[0].x) * down;
  inverse.c12 = source.y1 - inverse.c10 * q[0].x - inverse.c11 * q[0].y;
  const int orientation = d > 0;
  Spans spans;
  if (!ownvi_ClipQuad(q, w.destination(), orientation, spans)) return huxStsQuadOutsideWarn;
  w.sample(spans, AffineMap(inverse, spans.first), kAnywhere);
  w.smoothEdges(q, orientation);
  return huxStsOk;
}

// Reads the coefficients behind the checks that come before them.
static HuxStatus ownvi_WarpAffine(const Warp& w, const Hux64f (*coeffs)[3]) {
  if (HuxStatus s = w.arguments()) return s;
  return ownvi_WarpAffine(w, affineAt(coeffs));
}

}  // namespace hux

#define EXPORT(t, l)                                                                         \
  HUX_EXPORT_WARPS(WarpAffine, hux::ownvi_WarpAffine, t, l, 2, 3)                            \
  HUX_EXPORT_WARP(Shear, t, l, (Hux64f xShear, Hux64f yShear, Hux64f xShift, Hux64f yShift), \
                  hux::ownvi_WarpAffine(warp, hux::shearing(xShear, yShear, xShift, yShift)))
HUX_STAMP(EXPORT, (8u, 16u, 32f), (C1, C3, AC4, C4, P3, P4))
