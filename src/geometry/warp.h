// What the warps have in common besides the walk over their pixels: the arguments and their checks, and the smoothing
// of edges.
#pragma once

#include <limits>

#include "geometry/walk.h"

namespace hux {

constexpr HuxStatus interpolationMode(HuxiInterpolation mode) {
  return failUnless(mode == huxiInterNearest || mode == huxiInterLinear || mode == huxiInterCubic,
                    huxStsBadInterpolation);
}

// All that warps are given but their maps.
struct Warp : Images {
  HuxiRect dstRoi;
  HuxiInterpolation interpolation;

  HuxiInterpolation mode() const { return interpolation & ~huxiInterSmoothEdge; }
  // The source region cut to the image, which it must overlap, and the destination region.
  Box source() const { return cornersOf(commonPart(srcSize, srcRoi)); }
  Box destination() const { return cornersOf(dstRoi); }

  // The checks with which every warp begins.
  HuxStatus arguments() const {
    return check(pointers(src.argument, dst.argument), size(srcSize), rectangle(srcRoi), rectangle(dstRoi),
                 steps(src.step, dst.step), interpolationMode(mode()), planes(format, src, dst));
  }

  // The pixels of the spans whose positions by the map the box holds.
  template <class Rows, class Map>
  void sample(const Rows& spans, const Map& map, const Box& box) const {
    walkSpans(spans, dst, format, map, box, Sampler(format, src, srcSize, mode()));
  }

  // Blends the pixels just outside the edges of a quadrangle where the call asks for it.
  void smoothEdges(const Quad& quad, int orientation) const;
};

// The box that holds every position but those that are not numbers.
inline constexpr Box kAnywhere = {-std::numeric_limits<Hux64f>::infinity(), -std::numeric_limits<Hux64f>::infinity(),
                                  std::numeric_limits<Hux64f>::infinity(), std::numeric_limits<Hux64f>::infinity()};

inline bool holdsAll(const Box& box, const Quad& quad) {
  for (Point p : quad)
    if (!box.holds(p)) return false;
  return true;
}

// A region of one row or column has no inverse map.
constexpr HuxStatus extent(HuxiRect r) { return failUnless(r.width > 1 && r.height > 1, huxStsBadRect); }

// The quadrangle test on one that was computed from coefficients, and on those of the caller: an item of a check line
// which reads the caller's arrays only once the checks before it have passed.
inline HuxStatus convex(int orientation) { return failUnless(orientation >= 0, huxStsBadQuad); }
inline auto convex(const Hux64f (*srcQuad)[2], const Hux64f (*dstQuad)[2]) {
  return [=] {
    return failUnless(ownvi_CheckQuad(quadAt(srcQuad)) >= 0 && ownvi_CheckQuad(quadAt(dstQuad)) >= 0, huxStsBadCoeffs);
  };
}

}  // namespace hux

// A member of a warp: its name, its type and layout, the parameters between destination and interpolation, and the call
// with `warp` for all the rest.
#define HUX_EXPORT_WARP(name, t, l, parameters, ...)                                                                 \
  HuxStatus huxi##name##_##t##_##l##R(HUX_SOURCE(t, l), HUX_DESTINATION(t, l), HuxiRect dstRoi, HUX_LIST parameters, \
                                      HuxiInterpolation interpolation) {                                             \
    const hux::Warp warp = {HUX_IMAGES(t, l), dstRoi, interpolation};                                                \
    return __VA_ARGS__;                                                                                              \
  }
#define HUX_EXPORT_WARP_QUAD(name, t, l, ...)                                                                         \
  HuxStatus huxi##name##_##t##_##l##R(HUX_SOURCE(t, l), const Hux64f srcQuad[4][2], HUX_DESTINATION(t, l),            \
                                      HuxiRect dstRoi, const Hux64f dstQuad[4][2], HuxiInterpolation interpolation) { \
    const hux::Warp warp = {HUX_IMAGES(t, l), dstRoi, interpolation};                                                 \
    return __VA_ARGS__;                                                                                               \
  }
// The three members of a kind of map, whose routines are own<name>, own<name>Back and own<name>Q, with coefficients of
// this many rows and columns.
#define HUX_EXPORT_WARPS(name, own, t, l, rows, columns)                                           \
  HUX_EXPORT_WARP(name, t, l, (const Hux64f coeffs[rows][columns]), own(warp, coeffs))             \
  HUX_EXPORT_WARP(name##Back, t, l, (const Hux64f coeffs[rows][columns]), own##Back(warp, coeffs)) \
  HUX_EXPORT_WARP_QUAD(name##Quad, t, l, own##Q(warp, srcQuad, dstQuad))
