// Resize: a region scaled by factors of x and y, about a point, or by given steps.
#include "core/stamp.h"
#include "geometry/modes.h"
#include "geometry/resize_super.h"
#include "huxi_geometry.h"

namespace hux {
namespace {

// The arguments of a resize. Factors, or the steps in the source from one pixel of the destination to the next.
struct Call : Images {
  HuxiSize dstSize;
  bool bySteps;
  Hux64f x, y, xShift, yShift;
  HuxiInterpolation interpolation;
};

// Supersampling only shrinks.
bool isSuper(const Call& c) { return c.interpolation == huxiInterSuper && !c.bySteps && !(c.x > 1) && !(c.y > 1); }

// Pixels of the destination by steps: what reaches its last pixel but one fills it.
Index countBySteps(int extent, Hux64f step, int most, HuxiInterpolation mode) {
  const bool nearest = mode == huxiInterNearest;
  const Hux64f whole = std::trunc((nearest ? extent : extent - 1) / step + 1e-7);
  if (!(whole < most - 1)) return most;
  return nearest ? std::max(Index(whole), Index(1)) : Index(whole) + 1;
}

Axis axisOf(int image, int origin, int extent, int most, Hux64f factor, Hux64f shift, bool bySteps,
            HuxiInterpolation mode) {
  const Hux64f step = bySteps ? factor : stepOf(extent, factor, mode);
  const Index count = bySteps ? countBySteps(extent, step, most, mode) : countOf(extent, factor, most);
  return {image, count, false, Hux64f(origin), mode == huxiInterNearest ? shift + step / 2 : shift, step};
}

HuxStatus ownviResize(const Call& c) {
  const bool super = isSuper(c);
  if (HuxStatus s = check(pointers(c.src.argument, c.dst.argument), planes(c.format, c.src, c.dst), size(c.srcSize),
                          rectangle(c.srcRoi), overlap(c.srcSize, c.srcRoi), size(c.dstSize), positive(c.x, c.y),
                          super ? HuxStatus(huxStsOk) : resizeMode(c.interpolation)))
    return s;
  const HuxiRect roi = commonPart(c.srcSize, c.srcRoi);
  const HuxiInterpolation mode = modeFor(c.srcSize, c.interpolation);
  const auto axis = [&](int image, int origin, int extent, int most, Hux64f factor, Hux64f shift) {
    if (super) return Axis{image, countOf(extent, factor, most), false, Hux64f(origin), 0, factor};
    return axisOf(image, origin, extent, most, factor, shift, c.bySteps, mode);
  };
  const ResizePlane plane{c.format,
                          nullptr,
                          c.src.step,
                          nullptr,
                          c.dst.step,
                          axis(c.srcSize.width, roi.x, roi.width, c.dstSize.width, c.x, c.xShift),
                          axis(c.srcSize.height, roi.y, roi.height, c.dstSize.height, c.y, c.yShift)};
  if (plane.x.count < 1 || plane.y.count < 1) return huxStsResizeTooSmall;
  const auto count = std::size_t(c.format.planes);
  std::array<ResizePlane, 4> planes;
  for (std::size_t i = 0; i < count; ++i) {
    planes[i] = plane;
    planes[i].src = c.src.plane[i], planes[i].dst = c.dst.plane[i];
    if (!super) resizePlane(planes[i], mode);
  }
  return super ? ownviDecimateSuper({planes.data(), count}) : huxStsOk;
}

// One axis of a resize about a point, which comes to the middle of the destination.
struct Centred {
  Index dstFirst, dstCount, srcFirst, srcCount;
  Hux64f shift;
};
Centred centred(int origin, int extent, int dstExtent, Hux64f factor, Hux64f center) {
  const Hux64f half = 0.5 * dstExtent, at = (origin - center) * factor + half;
  Centred c;
  c.dstFirst = std::max(pixelsOf(std::ceil(at)), Index(0));
  // The right edge enters as a whole coordinate, not from the centre.
  const Hux64f end = (Hux64f(origin) + extent) * factor + at;
  c.dstCount = pixelsOf(end < dstExtent ? end : end >= dstExtent ? dstExtent : end) - c.dstFirst;
  const Hux64f last = (dstExtent - at) / factor;
  c.srcCount = pixelsOf(std::ceil(last < extent ? last : last >= extent ? extent : last));
  const Hux64f from = (Hux64f(c.dstFirst) - half) / factor + center;
  c.srcFirst = pixelsOf(from);
  c.shift = from - std::trunc(from);
  return c;
}

HuxStatus ownviResizeCenter(Call c, Hux64f xCenter, Hux64f yCenter) {
  // The source of interleaved images is looked at last, with what the region has become.
  const bool planar = c.format.planes > 1;
  if (HuxStatus s = check(pointers(c.dst.argument), pointers(planar ? c.src.argument : c.dst.argument),
                          planar ? planes(c.format, c.src, c.dst) : HuxStatus(huxStsOk), size(c.srcSize),
                          rectangle(c.srcRoi), overlap(c.srcSize, c.srcRoi), size(c.dstSize), positive(c.x, c.y)))
    return s;
  const HuxiRect roi = commonPart(c.srcSize, c.srcRoi);
  const Centred x = centred(roi.x, roi.width, c.dstSize.width, c.x, xCenter);
  const Centred y = centred(roi.y, roi.height, c.dstSize.height, c.y, yCenter);
  const auto narrow = [](Index v) { return Hux32s(std::max(v, Index(std::numeric_limits<Hux32s>::min()))); };
  c.srcRoi = {narrow(x.srcFirst), narrow(y.srcFirst), narrow(x.srcCount), narrow(y.srcCount)};
  c.dstSize = {narrow(x.dstCount), narrow(y.dstCount)};
  for (std::size_t i = 0; i < std::size_t(c.format.planes); ++i)
    c.dst.plane[i] += y.dstFirst * c.dst.step + x.dstFirst * c.format.pixelBytes();
  c.xShift = x.shift, c.yShift = y.shift;
  return ownviResize(c);
}

HuxStatus getResizeFract(HuxiSize srcSize, HuxiRect srcRoi, Hux64f xFactor, Hux64f yFactor, Hux64f* pxFr, Hux64f* pyFr,
                         HuxiInterpolation interpolation) {
  if (HuxStatus s = check(size(srcSize), rectangle(srcRoi), overlap(srcSize, srcRoi), positive(xFactor, yFactor),
                          pointers(pxFr, pyFr), resizeMode(interpolation)))
    return s;
  const HuxiRect roi = commonPart(srcSize, srcRoi);
  *pxFr = stepOf(roi.width, xFactor, interpolation);
  *pyFr = stepOf(roi.height, yFactor, interpolation);
  return huxStsOk;
}

}  // namespace
}  // namespace hux

#define ARGUMENTS(t, l) HUX_SOURCE(t, l), HUX_DESTINATION(t, l), HuxiSize dstRoiSize
#define CALL(t, l, ...) \
  hux::Call { HUX_IMAGES(t, l), dstRoiSize, __VA_ARGS__ }
#define EXPORT(t, l)                                                                                            \
  HuxStatus huxiResize_##t##_##l##R(ARGUMENTS(t, l), Hux64f xFactor, Hux64f yFactor,                            \
                                    HuxiInterpolation interpolation) {                                          \
    return hux::ownviResize(CALL(t, l, false, xFactor, yFactor, 0, 0, interpolation));                          \
  }                                                                                                             \
  HuxStatus huxiResizeCenter_##t##_##l##R(ARGUMENTS(t, l), Hux64f xFactor, Hux64f yFactor, Hux64f xCenter,      \
                                          Hux64f yCenter, HuxiInterpolation interpolation) {                    \
    return hux::ownviResizeCenter(CALL(t, l, false, xFactor, yFactor, 0, 0, interpolation), xCenter, yCenter);  \
  }                                                                                                             \
  HuxStatus huxiResizeShift_##t##_##l##R(ARGUMENTS(t, l), Hux64f xFr, Hux64f yFr, Hux64f xShift, Hux64f yShift, \
                                         HuxiInterpolation interpolation) {                                     \
    return hux::ownviResize(CALL(t, l, true, xFr, yFr, xShift, yShift, interpolation));                         \
  }
HUX_STAMP(EXPORT, (8u, 16u, 32f), (C1, C3, AC4, C4, P3, P4))
#undef EXPORT

HuxStatus huxiGetResizeFract(HuxiSize srcSize, HuxiRect srcRoi, Hux64f xFactor, Hux64f yFactor, Hux64f* pxFr,
                             Hux64f* pyFr, HuxiInterpolation interpolation) {
  return hux::getResizeFract(srcSize, srcRoi, xFactor, yFactor, pxFr, pyFr, interpolation);
}
