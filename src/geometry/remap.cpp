// Remap: every pixel of the destination from a place in the source that two maps tell.
#include "core/fetch.h"
#include "core/stamp.h"
#include "geometry/warp.h"
#include "huxi_geometry.h"

namespace hux {
namespace {

// Positions from a table for each coordinate. Neighbouring rows mostly come from the same pages of the source.
struct TableMap {
  static constexpr int rows = 8;
  static constexpr bool straight = false;
  Rows<const Hux32f> xMap, yMap;
  Index row = 0;
  int started = 0;
  const Element<Hux32f>*x[rows] = {}, *y[rows] = {};

  void start(int r, Index) { x[r] = xMap.row(row), y[r] = yMap.row(row), ++row, started = r + 1; }
  void fill(Positions (&block)[rows], Index n) {
    for (int r = 0; r < started; ++r) {
      fetchPiece(x[r] + n, n), fetchPiece(y[r] + n, n);
      for (Index k = 0; k < n; ++k) block[r].x[k] = x[r][k];
      for (Index k = 0; k < n; ++k) block[r].y[k] = y[r][k];
      x[r] += n, y[r] += n;
    }
  }
};

// Maps are compared with the region's ends in single precision.
Box asFloats(const Box& b) { return {Hux32f(b.x1), Hux32f(b.y1), Hux32f(b.x2), Hux32f(b.y2)}; }

HuxStatus remap(const Images& images, const Hux32f* pxMap, int xMapStep, const Hux32f* pyMap, int yMapStep,
                HuxiSize dstRoiSize, HuxiInterpolation interpolation) {
  const auto& [format, src, srcSize, srcRoi, dst] = images;
  // Planes come last here; the steps of the images, which are kept wide, are those of the call.
  if (HuxStatus s =
          check(pointers(src.argument, dst.argument, pxMap, pyMap), size(srcSize), rectangle(srcRoi), size(dstRoiSize),
                interpolationMode(interpolation), steps(src.step, dst.step, xMapStep, yMapStep),
                overlap(srcSize, srcRoi), planes(format, src, dst)))
    return s;
  const TableMap map{rows<C1>(pxMap, xMapStep), rows<C1>(pyMap, yMapStep)};
  walkSpans(WholeRows({0, 0, dstRoiSize.width, dstRoiSize.height}), dst, format, map,
            asFloats(cornersOf(commonPart(srcSize, srcRoi))), Sampler(format, src, srcSize, interpolation));
  return huxStsOk;
}

}  // namespace
}  // namespace hux

#define EXPORT(t, l)                                                                                         \
  HuxStatus huxiRemap_##t##_##l##R(HUX_SOURCE(t, l), const Hux32f* pxMap, int xMapStep, const Hux32f* pyMap, \
                                   int yMapStep, HUX_DESTINATION(t, l), HuxiSize dstRoiSize,                 \
                                   HuxiInterpolation interpolation) {                                        \
    return hux::remap(HUX_IMAGES(t, l), pxMap, xMapStep, pyMap, yMapStep, dstRoiSize, interpolation);        \
  }
HUX_STAMP(EXPORT, (8u, 16u, 32f), (C1, C3, AC4, C4, P3, P4))
