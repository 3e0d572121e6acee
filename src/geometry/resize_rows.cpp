#include "geometry/resize_rows.h"

#include "huxi_pixel.h"

namespace hux {
namespace {

// The touched elements of a pixel have weights of their own; where alpha is passed over, the elements of its place
// repeat the colour before, and are not written.
Index inPixel(const Format& f, Index element) { return std::min<Index>(element, f.touched - 1) * f.elementBytes(); }

// Calls strip(columns, the walk at the first of them, where they are written), left to right.
template <class Strip>
void forStrips(const ResizePlane& p, Index columnsAtOnce, Strip strip) {
  Walk walk(p.x);
  for (Index done = 0; done < p.x.count; done += columnsAtOnce)
    strip(std::min(columnsAtOnce, p.x.count - done), walk, p.dst + done * p.format.pixelBytes());
}

template <class T>
void linearIntegers(const ResizePlane& p) {
  const Format& f = p.format;
  forStrips(p, kStrip / f.stride, [&](Index n, Walk& walk, std::byte* dst) {
    PairColumns<T> columns;
    for (Index j = 0; j < n; ++j) {
      const Tap tap = Linear::tap(p.x, walk.next());
      for (int c = 0; c < f.stride; ++c) {
        const Index at = tap.first * f.pixelBytes() + inPixel(f, c);
        columns.add(at, at + f.pixelBytes(), q14Of(tap.fraction));
      }
    }
    columns.finish(p.rowBytes());
    LineCache<2, Hux16s> cache;
    Walk rows(p.y);
    for (Index y = 0; y < p.y.count; ++y) {
      const Tap tap = Linear::tap(p.y, rows.next());
      const auto lines = cache.rows(rowsOf<Linear>(p.y, tap),
                                    [&](Index row, Hux16s* line) { columns.along(p.src + row * p.srcStep, line); });
      auto* to = reinterpret_cast<Element<T>*>(dst + y * p.dstStep);
      if (f.touched < f.stride)
        acrossPairs<3>(lines, q14Of(tap.fraction), to, n * f.stride);
      else
        acrossPairs<4>(lines, q14Of(tap.fraction), to, n * f.stride);
    }
  });
}

template <class Mode, class T>
void floats(const ResizePlane& p) {
  const Format& f = p.format;
  forStrips(p, kStrip / f.stride, [&](Index n, Walk& walk, std::byte* dst) {
    FloatColumns<Mode, T> columns(p.x.image, f.pixelBytes());
    Hux32f weights[Mode::weights];
    for (Index j = 0; j < n; ++j) {
      const Tap tap = Mode::tap(p.x, walk.next());
      Mode::weigh(tap.fraction, weights);
      for (int c = 0; c < f.stride; ++c) columns.add(inPixel(f, c), tap.first, weights);
    }
    columns.finish(p.rowBytes());
    LineCache<Mode::taps, Hux32f> cache;
    Walk rows(p.y);
    for (Index y = 0; y < p.y.count; ++y) {
      const Tap tap = Mode::tap(p.y, rows.next());
      Mode::weigh(tap.fraction, weights);
      const auto lines = cache.rows(rowsOf<Mode>(p.y, tap),
                                    [&](Index row, Hux32f* line) { columns.along(p.src + row * p.srcStep, line); });
      auto* to = reinterpret_cast<Element<T>*>(dst + y * p.dstStep);
      if (f.touched < f.stride)
        acrossFloats<3, Mode>(lines, weights, to, n * f.stride);
      else
        acrossFloats<4, Mode>(lines, weights, to, n * f.stride);
    }
  });
}

// Whole pixels, by the bytes of them that move.
template <std::size_t Bytes>
void movePixels(const std::byte* row, const Index* offsets, std::byte* dst, Index pixelBytes, Index n) {
  for (Index j = 0; j < n; ++j) std::memcpy(dst + j * pixelBytes, row + offsets[j], Bytes);
}

void nearest(const ResizePlane& p) {
  const Format& f = p.format;
  const Index pixelBytes = f.pixelBytes();
  forStrips(p, kStrip / f.stride, [&](Index n, Walk& walk, std::byte* dst) {
    Index offsets[kStrip];
    for (Index j = 0; j < n; ++j) offsets[j] = walk.nextNearest() * pixelBytes;
    // Vectors hold whole bytes of neighbouring pixels; what is left of the last one, and pixels with a gap, go one by
    // one.
    const Index runs = f.touched < f.stride ? 0 : n * pixelBytes / kLaneBytes * kWindows;
    Windows windows;
    windows.build<1, 1>(runs, p.rowBytes(), 0, [&](Index byte) {
      const auto pixel = unsigned(byte) / unsigned(pixelBytes);
      return offsets[pixel] + Index(unsigned(byte) % unsigned(pixelBytes));
    });
    Walk rows(p.y);
    for (Index y = 0; y < p.y.count; ++y) {
      const std::byte* row = p.src + rows.nextNearest() * p.srcStep;
      std::byte* to = dst + y * p.dstStep;
      const Index done = windows.copy(row, to, runs) / pixelBytes;
      const auto move = [&]<std::size_t Bytes>(std::integral_constant<std::size_t, Bytes>) {
        movePixels<Bytes>(row, offsets + done, to + done * pixelBytes, pixelBytes, n - done);
      };
      switch (f.touched * f.elementBytes()) {
        case 1:
          move(std::integral_constant<std::size_t, 1>{});
          break;
        case 2:
          move(std::integral_constant<std::size_t, 2>{});
          break;
        case 3:
          move(std::integral_constant<std::size_t, 3>{});
          break;
        case 4:
          move(std::integral_constant<std::size_t, 4>{});
          break;
        case 6:
          move(std::integral_constant<std::size_t, 6>{});
          break;
        case 8:
          move(std::integral_constant<std::size_t, 8>{});
          break;
        case 12:
          move(std::integral_constant<std::size_t, 12>{});
          break;
        case 16:
          move(std::integral_constant<std::size_t, 16>{});
          break;
      }
    }
  });
}

template <class T>
void resize(const ResizePlane& p, HuxiInterpolation mode) {
  if (mode == huxiInterCubic) return floats<Cubic, T>(p);
  if (mode == huxiInterLanczos) return floats<Lanczos, T>(p);
  if constexpr (std::is_integral_v<T>)
    linearIntegers<T>(p);
  else
    floats<Linear, T>(p);
}

// The first of the source pixels that are those of the destination one by one; -1 where they are not.
Index firstOfCopy(const Axis& axis, bool nearest) {
  Walk walk(axis);
  Index first = 0;
  for (Index j = 0; j < axis.count; ++j) {
    const Position at = nearest ? Position{walk.nextNearest(), 0} : walk.next();
    if (j == 0) first = at.whole;
    if (at.whole != first + j || at.fraction != 0) return -1;
  }
  return first;
}

// Copies the pixels where every position is one of a pixel, as those of a factor of 1 are, and does nothing else. All
// interpolations of integers give the pixel there; in floats, an infinite neighbour shows.
bool copies(const ResizePlane& p, bool nearest) {
  const Format& f = p.format;
  if (!nearest && f.type == ElementType::f32) return false;
  const Index x = firstOfCopy(p.x, nearest), y = x < 0 ? -1 : firstOfCopy(p.y, nearest);
  if (x < 0 || y < 0) return false;
  const std::byte* src = p.src + y * p.srcStep + x * f.pixelBytes();
  const auto copy = [&]<class T>(auto function, T, Index elements) {
    function(reinterpret_cast<const T*>(src), int(p.srcStep), reinterpret_cast<T*>(p.dst), int(p.dstStep),
             HuxiSize{int(p.x.count * elements), int(p.y.count)});
  };
  if (f.touched == f.stride)
    copy(huxiCopy_8u_C1R, Hux8u(), f.pixelBytes());
  else if (f.type == ElementType::u8)
    copy(huxiCopy_8u_AC4R, Hux8u(), 1);
  else if (f.type == ElementType::u16)
    copy(huxiCopy_16s_AC4R, Hux16s(), 1);
  else
    copy(huxiCopy_32s_AC4R, Hux32s(), 1);
  return true;
}

}  // namespace

void resizePlane(const ResizePlane& p, HuxiInterpolation mode) {
  if (copies(p, mode == huxiInterNearest)) return;
  if (mode == huxiInterNearest) return nearest(p);
  switch (p.format.type) {
    case ElementType::u8:
      return resize<Hux8u>(p, mode);
    case ElementType::u16:
      return resize<Hux16u>(p, mode);
    case ElementType::f32:
      return resize<Hux32f>(p, mode);
  }
}

}  // namespace hux
