// WarpBilinear, WarpBilinearBack, WarpBilinearQuad: an image through a bilinear map, which is given from source to
// destination, from destination to source, or by two quadrangles.
#include "core/stamp.h"
#include "geometry/warp.h"
#include "huxi_geometry.h"

namespace hux {
namespace {

// The inverse of a bilinear map as the root of a quadratic equation: of the destination point (X, Y), with
// E = r0 X + r1 Y + r2, F = r4 X + r6 Y + r8 and G = r5 X + r7 Y + r9, the source point is
//   quadratic   x = t + r10, y = r3 t + G, with t = E + sqrt(E E - F), or minus the root
//   xQuotient   x = F / E + r10, y = G
//   yQuotient   x = F, y = G / E + r10
//   linear      x = F, y = G
// by which of the quadrangle's pairs of opposite edges are parallel.
struct InverseRecord {
  enum Case { quadratic, xQuotient, yQuotient, linear } kind;
  bool positiveRoot;
  Hux64f r0, r1, r2, r3, r4, r5, r6, r7, r8, r9, r10;

  InverseRecord(const Quad& v, const Box& box, int orientation) {
    const Hux64f W = box.x2 - box.x1, H = box.y2 - box.y1;
    const Hux64f a1 = v[0].x - v[3].x, b1 = v[0].y - v[3].y, a2 = v[1].x - v[0].x, b2 = v[1].y - v[0].y;
    const Hux64f a3 = v[2].x - v[1].x, b3 = v[2].y - v[1].y, a4 = v[3].x - v[2].x, b4 = v[3].y - v[2].y;
    const Hux64f A = a4 + a2, B = b4 + b2, S = a1 * b2 - a2 * b1, x0 = v[0].x, y0 = v[0].y;
    const Hux64f P = differ(a2 * b4, a4 * b2) ? a4 * b2 - a2 * b4 : 0, p = P / W;
    const Hux64f Q = differ(a1 * b3, a3 * b1) ? a3 * b1 - a1 * b3 : 0, q = Q / H;
    kind = P != 0 ? (Q != 0 ? quadratic : yQuotient) : Q != 0 ? xQuotient : linear;
    positiveRoot = orientation ? P > 0 : P < 0;
    r0 = B, r1 = -A, r3 = 0;
    Hux64f from8 = box.x1, from9 = box.y1;
    switch (kind) {
      case quadratic:
        r0 = -B / (2 * p), r1 = A / (2 * p), r2 = -S / (2 * p) - y0 * r1 - x0 * r0, r3 = -p / q;
        r4 = b1 * W / p, r5 = -B / q, r6 = -a1 * W / p, r7 = A / q;
        from8 = 0, r10 = box.x1;
        break;
      case xQuotient:
        r2 = S + A * y0 - B * x0;
        r4 = -b1 * W, r5 = -B / q, r6 = a1 * W, r7 = A / q;
        from8 = 0, r10 = box.x1;
        break;
      case yQuotient:
        r2 = -S + A * y0 - B * x0;
        r4 = -B / p, r5 = b2 * H, r6 = A / p, r7 = -a2 * H;
        from9 = 0, r10 = box.y1;
        break;
      case linear:
        r0 = r1 = r2 = 0;
        r4 = -b1 * W / S, r5 = -b2 * H / S, r6 = a1 * W / S, r7 = a2 * H / S;
        r10 = 0;
        break;
    }
    r8 = from8 - r4 * x0 - r6 * y0;
    r9 = from9 - r5 * x0 - r7 * y0;
  }
};

// The inverse of a bilinear map. E, F and G accumulate, pixel by pixel and row by row.
struct InverseMap {
  static constexpr int rows = Chains<3>::rows;
  static constexpr bool straight = false;

  InverseMap(const InverseRecord& r, Index firstRow)
      : r_(r), atRow_{r.r1 * Hux64f(firstRow) + r.r2, r.r6 * Hux64f(firstRow) + r.r8, r.r7 * Hux64f(firstRow) + r.r9} {
    for (int row = 0; row < rows; ++row)
      chains_.step[0][row] = r.r0, chains_.step[1][row] = r.r4, chains_.step[2][row] = r.r5;
  }
  void start(int row, Index left) {
    const Hux64f perPixel[] = {r_.r0, r_.r4, r_.r5}, perRow[] = {r_.r1, r_.r6, r_.r7};
    for (int q = 0; q < 3; ++q) {
      chains_.value[q][row] = perPixel[q] * Hux64f(left) + atRow_[q];
      atRow_[q] += perRow[q];
    }
  }
  void fill(Positions (&block)[rows], Index n) {
    alignas(64) Hux64f e[rows][kBlock];
    chains_.run(n, [&](int q, int r) { return q == 0 ? e[r] : q == 1 ? block[r].x : block[r].y; });
    for (int r = 0; r < rows; ++r) ownvi_WarpBC(e[r], block[r].x, block[r].y, n);
  }

 private:
  // F and G stand where x and y will.
  void ownvi_WarpBC(const Hux64f* e, Hux64f* x, Hux64f* y, Index n) const {
    const Hux64f sign = r_.positiveRoot ? 1 : -1, r3 = r_.r3, r10 = r_.r10;
    switch (r_.kind) {
      case InverseRecord::quadratic:
        for (Index k = 0; k < n; ++k) {
          // Inside the quadrangle there is a root; rounding may tell otherwise on its edge.
          const Hux64f square = e[k] * e[k] - x[k];
          const Hux64f t = e[k] + sign * std::sqrt(square < 0 ? 0 : square);
          x[k] = t + r10;
          y[k] = r3 * t + y[k];
        }
        break;
      case InverseRecord::xQuotient:
        for (Index k = 0; k < n; ++k) x[k] = x[k] / e[k] + r10;
        break;
      case InverseRecord::yQuotient:
        for (Index k = 0; k < n; ++k) y[k] = y[k] / e[k] + r10;
        break;
      case InverseRecord::linear:
        break;
    }
  }

  InverseRecord r_;
  Hux64f atRow_[3];  // E, F and G of the next row, at column 0
  Chains<3> chains_;
};

// Two quadrangles: the inverse of the map of a rectangle on to the one, then the map of that rectangle on to the other
// (ownvi_WarpBQC).
struct TwofoldMap {
  static constexpr int rows = InverseMap::rows;
  static constexpr bool straight = false;
  InverseMap inverse;
  BilinearCoeffs forward;

  void start(int row, Index left) { inverse.start(row, left); }
  void fill(Positions (&block)[rows], Index n) {
    inverse.fill(block, n);
    const BilinearCoeffs c = forward;
    for (Positions& p : block)
      for (Index k = 0; k < n; ++k) {
        const Point to = c({p.x[k], p.y[k]});
        p.x[k] = to.x, p.y[k] = to.y;
      }
  }
};

// From destination to source as it is given: along a row a straight line, whose slope changes from row to row.
struct ForwardMap {
  static constexpr int rows = Chains<2>::rows;
  static constexpr bool straight = true;

  ForwardMap(const BilinearCoeffs& c, Index firstRow)
      : c_(c),
        slopeX_(c.c00 * Hux64f(firstRow) + c.c01),
        slopeY_(c.c10 * Hux64f(firstRow) + c.c11),
        x_(c.c02 * Hux64f(firstRow) + c.c03),
        y_(c.c12 * Hux64f(firstRow) + c.c13) {}
  void start(int r, Index left) {
    chains_.step[0][r] = slopeX_, chains_.step[1][r] = slopeY_;
    chains_.value[0][r] = slopeX_ * Hux64f(left) + x_, chains_.value[1][r] = slopeY_ * Hux64f(left) + y_;
    slopeX_ += c_.c00, slopeY_ += c_.c10, x_ += c_.c02, y_ += c_.c12;
  }
  void fill(Positions (&block)[rows], Index n) {
    chains_.run(n, [&](int q, int r) { return q ? block[r].y : block[r].x; });
  }

 private:
  BilinearCoeffs c_;
  Hux64f slopeX_, slopeY_, x_, y_;  // of the next row, at column 0
  Chains<2> chains_;
};

// Whether the linear part of the map can be inverted.
HuxStatus regular(const BilinearCoeffs& c) { return failUnless(differ(c.c01 * c.c12, c.c02 * c.c11), huxStsBadQuad); }

HuxStatus ownvi_WarpBilinear(const Warp& w, const Hux64f (*coeffs)[4]) {
  if (HuxStatus s =
          check(w.arguments(), overlap(w.srcSize, w.srcRoi), [&] { return extent(commonPart(w.srcSize, w.srcRoi)); }))
    return s;
  const BilinearCoeffs c = bilinearAt(coeffs);
  const Box source = w.source();
  const Quad quad = ownvi_WarpRect(c, source);
  const int orientation = ownvi_CheckQuad(quad);
  if (HuxStatus s = convex(orientation)) return s;
  Spans spans;
  if (!ownvi_ClipQuad(quad, w.destination(), orientation, spans)) return huxStsQuadOutsideWarn;
  w.sample(spans, InverseMap(InverseRecord(quad, source, orientation), spans.first), kAnywhere);
  w.smoothEdges(quad, orientation);
  return huxStsOk;
}

// There is no quadrangle in the destination: all of it is looked up, and pixels that lie outside the source region stay
// as they are.
HuxStatus ownvi_WarpBilinearBack(const Warp& w, const Hux64f (*coeffs)[4]) {
  if (HuxStatus s = check(
          w.arguments(), [&] { return regular(bilinearAt(coeffs)); }, overlap(w.srcSize, w.srcRoi)))
    return s;
  const BilinearCoeffs c = bilinearAt(coeffs);
  const Box source = w.source();
  const Quad seen = ownvi_WarpRect(c, w.destination());
  if (HuxStatus s = convex(ownvi_CheckQuad(seen))) return s;
  if (!ownvi_GetQuadrangleBound(seen).meets(source)) return huxStsQuadOutsideWarn;
  const WholeRows rows(w.dstRoi);
  w.sample(rows, ForwardMap(c, rows.first), holdsAll(source, seen) ? kAnywhere : source);
  return huxStsOk;
}

// Whether the edges run along the axes, in either order.
bool alongAxes(const Quad& q) {
  const auto upright = [&](int a, int b) { return !differ(q[a].x, q[b].x); };
  const auto level = [&](int a, int b) { return !differ(q[a].y, q[b].y); };
  return (level(0, 1) && upright(1, 2) && level(2, 3) && upright(3, 0)) ||
         (upright(0, 1) && level(1, 2) && upright(2, 3) && level(3, 0));
}

// The rectangle between the quadrangles is the unit square; where the source's is upright, its own, which gives the
// same map with less rounding.
HuxStatus ownvi_WarpBilinearQ(const Warp& w, const Hux64f (*pSrcQuad)[2], const Hux64f (*pDstQuad)[2]) {
  if (HuxStatus s = check(w.arguments(), convex(pSrcQuad, pDstQuad), overlap(w.srcSize, w.srcRoi))) return s;
  const Quad srcQuad = quadAt(pSrcQuad), dstQuad = quadAt(pDstQuad);
  const Box source = w.source(), bound = ownvi_GetQuadrangleBound(srcQuad);
  if (!bound.meets(source)) return huxStsQuadOutsideWarn;
  const bool unit = !alongAxes(srcQuad);
  const Box box = unit ? Box{0, 0, 1, 1} : bound;
  const int orientation = ownvi_CheckQuad(dstQuad);
  Spans spans;
  if (!ownvi_ClipQuad(dstQuad, w.destination(), orientation, spans)) return huxStsQuadOutsideWarn;
  const bool whole = holdsAll(source, srcQuad);
  w.sample(spans,
           TwofoldMap{InverseMap(InverseRecord(dstQuad, box, orientation), spans.first),
                      ownvi_GetBilinearTransform(box, srcQuad)},
           whole ? kAnywhere : source);
  if (whole && unit) w.smoothEdges(dstQuad, orientation);
  return huxStsOk;
}

}  // namespace
}  // namespace hux

#define EXPORT(t, l) HUX_EXPORT_WARPS(WarpBilinear, hux::ownvi_WarpBilinear, t, l, 2, 4)
HUX_STAMP(EXPORT, (8u, 16u, 32f), (C1, C3, AC4, C4, P3, P4))
