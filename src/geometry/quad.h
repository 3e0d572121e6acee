// Quadrangles and the maps between them: what all warps rest on. Everything is computed in 64-bit floats, expressions
// from left to right. Pixels are points at integer coordinates, counted from the image's origin.
#pragma once

#include <algorithm>
#include <array>
#include <cmath>

#include "core/layout.h"
#include "workers/portable.h"

namespace hux {

struct Point {
  Hux64f x, y;
};

// Vertex 0 is the image of a rectangle's top left pixel, 1 of its top right, 2 of its bottom right, 3 of its bottom
// left.
using Quad = std::array<Point, 4>;

// A rectangle of pixels by its corners, which belong to it.
struct Box {
  Hux64f x1, y1, x2, y2;

  bool holds(Point p) const { return p.x >= x1 && p.x <= x2 && p.y >= y1 && p.y <= y2; }
  // Whether the two have a point in common.
  bool meets(const Box& other) const { return !(other.x2 < x1 || other.x1 > x2 || other.y2 < y1 || other.y1 > y2); }
};

inline Box cornersOf(HuxiRect r) {
  return {Hux64f(r.x), Hux64f(r.y), Hux64f(Hux64s(r.x) + r.width - 1), Hux64f(Hux64s(r.y) + r.height - 1)};
}

// x' = c00 x + c01 y + c02; y' = c10 x + c11 y + c12.
struct AffineCoeffs {
  Hux64f c00, c01, c02, c10, c11, c12;
  Point operator()(Point p) const { return {c00 * p.x + c01 * p.y + c02, c10 * p.x + c11 * p.y + c12}; }
};

// x' = c00 x y + c01 x + c02 y + c03; y' = c10 x y + c11 x + c12 y + c13.
struct BilinearCoeffs {
  Hux64f c00, c01, c02, c03, c10, c11, c12, c13;
  Point operator()(Point p) const {
    return {c00 * p.x * p.y + c01 * p.x + c02 * p.y + c03, c10 * p.x * p.y + c11 * p.x + c12 * p.y + c13};
  }
};

// x' = (c00 x + c01 y + c02) / (c20 x + c21 y + c22); y' = (c10 x + c11 y + c12) / (the same). A denominator of 0 is
// divided by like any other.
struct PerspectiveCoeffs {
  Hux64f c00, c01, c02, c10, c11, c12, c20, c21, c22;
  Point operator()(Point p) const {
    const Hux64f d = c20 * p.x + c21 * p.y + c22;
    return {(c00 * p.x + c01 * p.y + c02) / d, (c10 * p.x + c11 * p.y + c12) / d};
  }
};

// The callers' arrays.
inline Quad quadAt(const Hux64f quad[4][2]) {
  return {{{quad[0][0], quad[0][1]}, {quad[1][0], quad[1][1]}, {quad[2][0], quad[2][1]}, {quad[3][0], quad[3][1]}}};
}
inline AffineCoeffs affineAt(const Hux64f c[2][3]) { return {c[0][0], c[0][1], c[0][2], c[1][0], c[1][1], c[1][2]}; }
inline BilinearCoeffs bilinearAt(const Hux64f c[2][4]) {
  return {c[0][0], c[0][1], c[0][2], c[0][3], c[1][0], c[1][1], c[1][2], c[1][3]};
}
inline PerspectiveCoeffs perspectiveAt(const Hux64f c[3][3]) {
  return {c[0][0], c[0][1], c[0][2], c[1][0], c[1][1], c[1][2], c[2][0], c[2][1], c[2][2]};
}

// The corners of a rectangle carried through a map, from the top left clockwise.
template <class Map>
Quad ownvi_WarpRect(const Map& map, const Box& box) {
  return {map({box.x1, box.y1}), map({box.x2, box.y1}), map({box.x2, box.y2}), map({box.x1, box.y2})};
}

// The sense in which a convex quadrangle runs: 1 where its vertices run clockwise on the screen, else 0. Below 0 it is
// none to work with: kDegenerate where an edge has no extent or goes straight on (or is not a number), kNotConvex.
inline constexpr int kNotConvex = -4, kDegenerate = -5;
inline int ownvi_CheckQuad(const Quad& q) {
  // The cross product of the two edges that meet at a vertex.
  const auto turn = [&](int before, int at, int after) {
    return (q[at].x - q[before].x) * (q[after].y - q[at].y) - (q[after].x - q[at].x) * (q[at].y - q[before].y);
  };
  const Hux64f at3 = turn(2, 3, 0), at0 = turn(3, 0, 1), at1 = turn(0, 1, 2), at2 = turn(1, 2, 3);
  for (Hux64f t : {at3, at0, at1, at2})
    if (!(t < 0) && !(t > 0)) return kDegenerate;
  const bool clockwise = at3 > 0;
  if ((at0 > 0) != clockwise || (at1 > 0) != clockwise || (at2 > 0) != clockwise) return kNotConvex;
  return clockwise;
}

inline Box ownvi_GetQuadrangleBound(const Quad& q) {
  Box b{q[0].x, q[0].y, q[0].x, q[0].y};
  for (Point p : q) {
    b.x1 = std::min(b.x1, p.x), b.x2 = std::max(b.x2, p.x);
    b.y1 = std::min(b.y1, p.y), b.y2 = std::max(b.y2, p.y);
  }
  return b;
}

// Whether two products are told apart: relative to the first, unless that is next to 0.
inline bool differ(Hux64f a, Hux64f b) {
  return std::fabs(a) > 1e-200 ? std::fabs((a - b) / a) > 1e-12 : std::fabs(b) > 1e-12;
}

// An angle in degrees brought to 0 up to 360; an infinite one comes to NaN.
inline Hux64f reducedAngle(Hux64f angle) {
  const Hux64f a = angle - std::trunc(angle / 360) * 360;
  return a < 0 ? a + 360 : a;
}

// The rotation by a reduced angle, counter-clockwise on the screen. Quarter turns have exact coefficients; no turn at
// all goes the way of all others.
inline AffineCoeffs rotation(Hux64f reduced, Hux64f xShift, Hux64f yShift) {
  if (reduced == 90) return {0, 1, xShift, -1, 0, yShift};
  if (reduced == 180) return {-1, 0, xShift, 0, -1, yShift};
  if (reduced == 270) return {0, -1, xShift, 1, 0, yShift};
  const Hux64f t = reduced / 180 * 3.141592653589793, cos = portable::cos(t), sin = portable::sin(t);
  return {cos, sin, xShift, -sin, cos, yShift};
}

inline AffineCoeffs shearing(Hux64f xShear, Hux64f yShear, Hux64f xShift, Hux64f yShift) {
  return {1, xShear, xShift, yShear, 1, yShift};
}

// The perspective map of a rectangle on to a quadrangle.
inline PerspectiveCoeffs ownvi_GetPerspectiveTransform(const Box& box, const Quad& q) {
  const Hux64f d1 = q[0].x - q[3].x, d2 = q[2].x - q[1].x, d3 = q[3].x - q[2].x;
  const Hux64f e1 = q[0].y - q[3].y, e2 = q[2].y - q[1].y, e3 = q[3].y - q[2].y;
  const Hux64f s = 1 / (d3 * e2 - d2 * e3);
  const Hux64f g = ((d1 + d2) * e3 - (e1 + e2) * d3) * s, h = ((d1 + d2) * e2 - (e1 + e2) * d2) * s;
  const Hux64f u = 1 / (box.x2 - box.x1), v = 1 / (box.y2 - box.y1);
  PerspectiveCoeffs c;
  c.c00 = (q[1].x - q[0].x + q[1].x * g) * u;
  c.c10 = (q[1].y - q[0].y + q[1].y * g) * u;
  c.c20 = g * u;
  c.c01 = (q[3].x * h - d1) * v;
  c.c11 = (q[3].y * h - e1) * v;
  c.c21 = h * v;
  c.c02 = q[0].x - c.c00 * box.x1 - c.c01 * box.y1;
  c.c12 = q[0].y - c.c10 * box.x1 - c.c11 * box.y1;
  c.c22 = 1 - box.x1 * c.c20 - box.y1 * c.c21;
  return c;
}

// The inverse of a perspective map up to a factor, which perspective maps do not feel.
inline PerspectiveCoeffs adjugate(const PerspectiveCoeffs& c) {
  return {c.c11 * c.c22 - c.c21 * c.c12, c.c21 * c.c02 - c.c01 * c.c22, c.c01 * c.c12 - c.c11 * c.c02,
          c.c20 * c.c12 - c.c10 * c.c22, c.c22 * c.c00 - c.c20 * c.c02, c.c02 * c.c10 - c.c12 * c.c00,
          c.c10 * c.c21 - c.c20 * c.c11, c.c20 * c.c01 - c.c21 * c.c00, c.c00 * c.c11 - c.c10 * c.c01};
}

// The bilinear map of a rectangle on to a quadrangle.
inline BilinearCoeffs ownvi_GetBilinearTransform(const Box& box, const Quad& q) {
  const Hux64f area = (box.x2 - box.x1) * (box.y2 - box.y1);
  BilinearCoeffs c;
  c.c00 = (q[0].x - q[1].x + q[2].x - q[3].x) / area;
  c.c10 = (q[0].y - q[1].y + q[2].y - q[3].y) / area;
  c.c01 = ((q[1].x - q[0].x) * box.y2 + (q[3].x - q[2].x) * box.y1) / area;
  c.c11 = ((q[1].y - q[0].y) * box.y2 + (q[3].y - q[2].y) * box.y1) / area;
  c.c02 = (-(q[0].x - q[3].x) * box.x2 - (q[2].x - q[1].x) * box.x1) / area;
  c.c12 = (-(q[0].y - q[3].y) * box.x2 - (q[2].y - q[1].y) * box.x1) / area;
  c.c03 = q[0].x - c.c01 * box.x1 - c.c02 * box.y1 - c.c00 * box.x1 * box.y1;
  c.c13 = q[0].y - c.c11 * box.x1 - c.c12 * box.y1 - c.c10 * box.x1 * box.y1;
  return c;
}

}  // namespace hux
