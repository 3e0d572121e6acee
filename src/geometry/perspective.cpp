// WarpPerspective, WarpPerspectiveBack, WarpPerspectiveQuad: an image through a perspective map, which is given from
// source to destination, from destination to source, or by two quadrangles.
#include "core/stamp.h"
#include "geometry/warp.h"
#include "huxi_geometry.h"

namespace hux {
namespace {

// From destination to source. Numerators and denominator accumulate row by row; along a row they are computed afresh.
struct PerspectiveMap {
  static constexpr int rows = 1;
  static constexpr bool straight = false;

  PerspectiveMap(const PerspectiveCoeffs& c, Index firstRow)
      : c_(c),
        x_(c.c01 * Hux64f(firstRow) + c.c02),
        y_(c.c11 * Hux64f(firstRow) + c.c12),
        d_(c.c21 * Hux64f(firstRow) + c.c22) {}
  void start(int, Index left) {
    nx_ = c_.c00 * Hux64f(left) + x_, ny_ = c_.c10 * Hux64f(left) + y_, nd_ = c_.c20 * Hux64f(left) + d_;
    x_ += c_.c01, y_ += c_.c11, d_ += c_.c21;
    at_ = 0;
  }
  void fill(Positions (&block)[rows], Index n) {
    ownvi_WarpPC(block[0], n);
    at_ += int(n);
  }

 private:
  void ownvi_WarpPC(Positions& p, Index n) const {
    const Hux64f nx = nx_, ny = ny_, nd = nd_, stepX = c_.c00, stepY = c_.c10, stepD = c_.c20;
    for (int j = 0; j < int(n); ++j) {
      const Hux64f k = at_ + j, q = 1 / (nd + k * stepD);
      p.x[j] = (nx + k * stepX) * q;
      p.y[j] = (ny + k * stepY) * q;
    }
  }

  PerspectiveCoeffs c_;
  Hux64f x_, y_, d_;                 // of the next row, at column 0
  Hux64f nx_ = 0, ny_ = 0, nd_ = 0;  // of this row, at its first pixel
  int at_ = 0;                       // the pixel of this row that is next
};

HuxStatus regular(const PerspectiveCoeffs& c) {
  return failUnless(differ(c.c00 * c.c11, c.c01 * c.c10) && !(std::fabs(c.c22) <= 1e-200), huxStsBadQuad);
}

PerspectiveCoeffs product(const PerspectiveCoeffs& a, const PerspectiveCoeffs& b) {
  return {a.c00 * b.c00 + a.c01 * b.c10 + a.c02 * b.c20, a.c00 * b.c01 + a.c01 * b.c11 + a.c02 * b.c21,
          a.c00 * b.c02 + a.c01 * b.c12 + a.c02 * b.c22, a.c10 * b.c00 + a.c11 * b.c10 + a.c12 * b.c20,
          a.c10 * b.c01 + a.c11 * b.c11 + a.c12 * b.c21, a.c10 * b.c02 + a.c11 * b.c12 + a.c12 * b.c22,
          a.c20 * b.c00 + a.c21 * b.c10 + a.c22 * b.c20, a.c20 * b.c01 + a.c21 * b.c11 + a.c22 * b.c21,
          a.c20 * b.c02 + a.c21 * b.c12 + a.c22 * b.c22};
}

// The map from one quadrangle to another, by way of the unit square.
PerspectiveCoeffs ownvi_GetPerspectiveTransformQ(const Quad& from, const Quad& to) {
  const Box unit = {0, 0, 1, 1};
  return product(ownvi_GetPerspectiveTransform(unit, to), adjugate(ownvi_GetPerspectiveTransform(unit, from)));
}

HuxStatus ownvi_WarpPerspective(const Warp& w, const Hux64f (*coeffs)[3]) {
  if (HuxStatus s = check(
          w.arguments(), [&] { return regular(perspectiveAt(coeffs)); }, overlap(w.srcSize, w.srcRoi),
          [&] { return extent(commonPart(w.srcSize, w.srcRoi)); }))
    return s;
  const PerspectiveCoeffs c = perspectiveAt(coeffs);
  const Quad quad = ownvi_WarpRect(c, w.source());
  const int orientation = ownvi_CheckQuad(quad);
  if (HuxStatus s = convex(orientation)) return s;
  Spans spans;
  if (!ownvi_ClipQuad(quad, w.destination(), orientation, spans)) return huxStsQuadOutsideWarn;
  w.sample(spans, PerspectiveMap(adjugate(c), spans.first), kAnywhere);
  w.smoothEdges(quad, orientation);
  return huxStsOk;
}

// Where the image of the source region is no quadrangle, because it crosses the line of denominator 0 or has no extent,
// every pixel of the destination is looked up, and those stay as they are that lie outside the source region.
HuxStatus ownvi_WarpPerspectiveBack(const Warp& w, const Hux64f (*coeffs)[3]) {
  if (HuxStatus s = check(
          w.arguments(), [&] { return regular(perspectiveAt(coeffs)); }, overlap(w.srcSize, w.srcRoi)))
    return s;
  const PerspectiveCoeffs c = perspectiveAt(coeffs);
  const Box source = w.source(), destination = w.destination();
  const Quad quad = ownvi_WarpRect(adjugate(c), source);
  if (const int orientation = ownvi_CheckQuad(quad); orientation >= 0) {
    Spans spans;
    if (!ownvi_ClipQuad(quad, destination, orientation, spans)) return huxStsQuadOutsideWarn;
    w.sample(spans, PerspectiveMap(c, spans.first), kAnywhere);
    return huxStsOk;
  }
  const Quad seen = ownvi_WarpRect(c, destination);
  if (!ownvi_GetQuadrangleBound(seen).meets(source)) return huxStsQuadOutsideWarn;
  const WholeRows rows(w.dstRoi);
  w.sample(rows, PerspectiveMap(c, rows.first), holdsAll(source, seen) ? kAnywhere : source);
  return huxStsOk;
}

HuxStatus ownvi_WarpPerspectiveQ(const Warp& w, const Hux64f (*pSrcQuad)[2], const Hux64f (*pDstQuad)[2]) {
  if (HuxStatus s = check(w.arguments(), convex(pSrcQuad, pDstQuad), overlap(w.srcSize, w.srcRoi))) return s;
  const Quad srcQuad = quadAt(pSrcQuad), dstQuad = quadAt(pDstQuad);
  const Box source = w.source();
  if (!ownvi_GetQuadrangleBound(srcQuad).meets(source)) return huxStsQuadOutsideWarn;
  const int orientation = ownvi_CheckQuad(dstQuad);
  Spans spans;
  if (!ownvi_ClipQuad(dstQuad, w.destination(), orientation, spans)) return huxStsQuadOutsideWarn;
  const bool whole = holdsAll(source, srcQuad);
  w.sample(spans, PerspectiveMap(ownvi_GetPerspectiveTransformQ(dstQuad, srcQuad), spans.first),
           whole ? kAnywhere : source);
  if (whole) w.smoothEdges(dstQuad, orientation);
  return huxStsOk;
}

}  // namespace
}  // namespace hux

#define EXPORT(t, l) HUX_EXPORT_WARPS(WarpPerspective, hux::ownvi_WarpPerspective, t, l, 3, 3)
HUX_STAMP(EXPORT, (8u, 16u, 32f), (C1, C3, AC4, C4, P3, P4))
