// Resize to square pixels: a pixel is a square of unit area, and the centre of a destination pixel comes from the
// centre of a source area. The picture goes on beyond its edges as they are.
#include "core/stamp.h"
#include "geometry/modes.h"
#include "geometry/resize_rows.h"
#include "huxi_geometry.h"

namespace hux {
namespace {

HuxStatus bufferSize(HuxiSize dstSize, int nChannels, HuxiInterpolation interpolation, int* pSize) {
  if (HuxStatus s = check(pointers(pSize), size(dstSize),
                          failUnless(nChannels == 1 || nChannels == 3 || nChannels == 4, huxStsBadChannelCount),
                          resizeMode(interpolation)))
    return s;
  const Hux64s width = dstSize.width, height = dstSize.height, channels = nChannels;
  const Hux64s blocks = ((width + 15) >> 4) + ((height + 15) >> 4);
  const auto lines = [&](Hux64s count) { return 4 * channels * ((count * width + 16 * count - 1) & ~Hux64s(15)); };
  Hux64s bytes = interpolation == huxiInterNearest ? 64 * blocks : 128 * blocks;
  if (interpolation == huxiInterLinear) bytes += lines(2);
  if (interpolation == huxiInterCubic) bytes += lines(4);
  if (interpolation == huxiInterLanczos)
    bytes += lines(6) + 64 * ((6 * width + 95) >> 4) + 64 * ((6 * height + 95) >> 4);
  *pSize = int(std::min<Hux64s>(bytes + 15, std::numeric_limits<int>::max()));
  return huxStsOk;
}

// The pixels of the destination along one axis: of its region those that the source's region comes to.
struct Extent {
  Hux64f first, end;
};
Extent extentOf(int dst, int dstExtent, int src, int srcExtent, Hux64f factor, Hux64f shift) {
  constexpr Hux64f half = 0.4999999999;
  const Hux64f from = src * factor + shift, to = (Hux64f(src) + srcExtent) * factor + shift;
  const Hux64f end = Hux64f(dst) + dstExtent;
  return {std::trunc((from < dst ? dst : from) + half), std::trunc((to > end ? end : to) + half)};
}

// How many pixels from the first on lie before the source's first sample, and how many there are up to its last one.
struct Inner {
  Index first, end;
};
Inner innerOf(const Axis& axis) {
  Walk walk(axis);
  Inner inner{0, axis.count};
  for (Index i = 0; i < axis.count; ++i) {
    const Position p = walk.next();
    if (p.whole < 0) inner.first = i + 1;
    if (p.whole >= axis.image - 1 && p.fraction > 0) return {inner.first, i};
  }
  return inner;
}
Axis partOf(Axis axis, Index first, Index end) {
  axis.origin += Hux64f(first), axis.count = end - first;
  return axis;
}

// Linear mode beyond the outer samples of the image: in one direction nothing changes, and pixels are rounded once.
// Where there are no such pixels, the outer samples are not looked at: of the image, only what the region of the
// destination needs must be in memory.
template <class T>
class Border {
 public:
  explicit Border(const ResizePlane& plane) : p_(plane) {}

  // Rows, from one row of the source.
  void rows(Index from, Index to, Index srcRow) const {
    if (from >= to) return;
    Walk walk(p_.x);
    for (Index x = 0; x < p_.x.count; ++x) {
      const Position at = walk.next();
      const Index last = p_.x.image - 1, left = std::max(at.whole, Index(0)), right = std::min(at.whole + 1, last);
      for (int c = 0; c < p_.format.touched; ++c) {
        const T value = along(pixel(left, srcRow, c), pixel(right, srcRow, c), at.fraction);
        for (Index y = from; y < to; ++y) write(x, y, c, value);
      }
    }
  }
  // Columns between such rows, from one column of the source.
  void columns(Index from, Index to, Index srcColumn, Inner inner) const {
    if (from >= to) return;
    Walk walk(partOf(p_.y, inner.first, inner.end));
    for (Index y = inner.first; y < inner.end; ++y) {
      const Tap tap = Linear::tap(p_.y, walk.next());
      for (int c = 0; c < p_.format.touched; ++c) {
        const T value = across(pixel(srcColumn, tap.first, c), pixel(srcColumn, tap.first + 1, c), tap.fraction);
        for (Index x = from; x < to; ++x) write(x, y, c, value);
      }
    }
  }

 private:
  T pixel(Index x, Index y, int c) const {
    return reinterpret_cast<const Element<T>*>(p_.src + y * p_.srcStep + x * p_.format.pixelBytes())[c];
  }
  void write(Index x, Index y, int c, T value) const {
    reinterpret_cast<Element<T>*>(p_.dst + y * p_.dstStep + x * p_.format.pixelBytes())[c] = value;
  }
  static T along(T p0, T p1, Hux64f fraction) {
    if constexpr (std::is_integral_v<T>)
      return weighted(p0, p1, fraction);
    else
      return (p1 - p0) * T(fraction) + p0;
  }
  static T across(T p0, T p1, Hux64f fraction) {
    if constexpr (std::is_integral_v<T>)
      return weighted(p0, p1, fraction);
    else
      return p1 * T(fraction) + p0 * (1 - T(fraction));
  }
  static T weighted(T p0, T p1, Hux64f fraction) {
    const Hux32s q14 = q14Of(fraction);
    return T((q14 * p1 + (16384 - q14) * p0 + 8192) >> 14);
  }

  const ResizePlane& p_;
};

template <class T>
void linear(const ResizePlane& p) {
  const Inner x = innerOf(p.x), y = innerOf(p.y);
  const Border<T> border(p);
  border.rows(0, y.first, 0);
  border.columns(0, x.first, 0, y);
  border.columns(x.end, p.x.count, p.x.image - 1, y);
  border.rows(y.end, p.y.count, p.y.image - 1);
  ResizePlane inner = p;
  inner.x = partOf(p.x, x.first, x.end), inner.y = partOf(p.y, y.first, y.end);
  inner.dst += y.first * p.dstStep + x.first * p.format.pixelBytes();
  resizePlane(inner, huxiInterLinear);
}

HuxStatus ownviResizeSP(const Images& images, HuxiRect dstRoi, Hux64f xFactor, Hux64f yFactor, Hux64f xShift,
                        Hux64f yShift, HuxiInterpolation interpolation, const Hux8u* pBuffer) {
  const auto& [format, src, srcSize, srcRoi, dst] = images;
  if (HuxStatus s = check(planes(format, src, dst), pointers(src.argument, dst.argument, pBuffer), size(srcSize),
                          rectangle(srcRoi), rectangle(dstRoi), positive(xFactor, yFactor), resizeMode(interpolation),
                          overlap(srcSize, srcRoi)))
    return s;
  const HuxiRect roi = commonPart(srcSize, srcRoi);
  const Extent x = extentOf(dstRoi.x, dstRoi.width, roi.x, roi.width, xFactor, xShift);
  const Extent y = extentOf(dstRoi.y, dstRoi.height, roi.y, roi.height, yFactor, yShift);
  if (!(x.first <= x.end && y.first <= y.end)) return huxStsEmptyDestWarn;

  const HuxiInterpolation mode = modeFor(srcSize, interpolation);
  ResizePlane plane{format,
                    nullptr,
                    src.step,
                    nullptr,
                    dst.step,
                    {srcSize.width, Index(x.end - x.first), true, x.first, xShift, xFactor},
                    {srcSize.height, Index(y.end - y.first), true, y.first, yShift, yFactor}};
  for (std::size_t i = 0; i < std::size_t(format.planes); ++i) {
    plane.src = src.plane[i];
    plane.dst = dst.plane[i] + Index(y.first) * dst.step + Index(x.first) * format.pixelBytes();
    if (mode != huxiInterLinear)
      resizePlane(plane, mode);
    else if (format.type == ElementType::u8)
      linear<Hux8u>(plane);
    else if (format.type == ElementType::u16)
      linear<Hux16u>(plane);
    else
      linear<Hux32f>(plane);
  }
  return huxStsOk;
}

}  // namespace
}  // namespace hux

HuxStatus huxiResizeSqrPixelGetBufSize(HuxiSize dstSize, int nChannels, HuxiInterpolation interpolation, int* pSize) {
  return hux::bufferSize(dstSize, nChannels, interpolation, pSize);
}

#define EXPORT(t, l)                                                                                                  \
  HuxStatus huxiResizeSqrPixel_##t##_##l##R(HUX_SOURCE(t, l), HUX_DESTINATION(t, l), HuxiRect dstRoi, Hux64f xFactor, \
                                            Hux64f yFactor, Hux64f xShift, Hux64f yShift,                             \
                                            HuxiInterpolation interpolation, Hux8u* pBuffer) {                        \
    return hux::ownviResizeSP(HUX_IMAGES(t, l), dstRoi, xFactor, yFactor, xShift, yShift, interpolation, pBuffer);    \
  }
HUX_STAMP(EXPORT, (8u, 16u, 32f), (C1, C3, AC4, C4, P3, P4))
