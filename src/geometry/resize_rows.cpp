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

// Images that caches do not hold.
constexpr Index kLargeImage = 2 << 20;
bool isLarge(const ResizePlane& p) { return p.y.image * p.rowBytes() >= kLargeImage; }

// The taps of the destination's rows, one after the other. Whatever rows of a large source the following one needs in
// addition are to be asked for while this one is computed.
template <class Mode>
class RowTaps {
 public:
  explicit RowTaps(const ResizePlane& p) : p_(p), large_(isLarge(p)), walk_(p.y), next_(Mode::tap(p.y, walk_.next())) {}

  Tap next() {
    const Tap tap = next_;
    ahead_ = end_ = 0;
    if (++row_ < p_.y.count) {
      next_ = Mode::tap(p_.y, walk_.next());
      if (large_) ahead_ = rowsOf<Mode>(p_.y, tap).back() + 1, end_ = rowsOf<Mode>(p_.y, next_).back() + 1;
      ahead_ = std::max(ahead_, end_ - Mode::taps);
    }
    return tap;
  }
  // A row to be asked for, each time another one, as long as there are any.
  const std::byte* ahead() { return ahead_ < end_ ? p_.src + ahead_++ * p_.srcStep : nullptr; }
  template <class Columns>
  void fetchAll(const Columns& columns) {
    while (const std::byte* row = ahead()) columns.fetch(row);
  }

 private:
  const ResizePlane& p_;
  bool large_;
  Walk walk_;
  Tap next_;
  Index row_ = 0, ahead_ = 0, end_ = 0;
};

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
    const bool inside = columns.inside();
    LineCache<2, Hux16s> cache;
    RowTaps<Linear> rows(p);
    for (Index y = 0; y < p.y.count; ++y) {
      const Tap tap = rows.next();
      const auto lines = cache.rows(rowsOf<Linear>(p.y, tap), [&](Index row, Hux16s* line) {
        columns.along(p.src + row * p.srcStep, line, rows.ahead());
      });
      rows.fetchAll(columns);
      auto* to = reinterpret_cast<Element<T>*>(dst + y * p.dstStep);
      if (f.touched < f.stride)
        acrossPairs<3>(lines, q14Of(tap.fraction), to, n * f.stride, inside);
      else
        acrossPairs<4>(lines, q14Of(tap.fraction), to, n * f.stride, inside);
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
    RowTaps<Mode> rows(p);
    for (Index y = 0; y < p.y.count; ++y) {
      const Tap tap = rows.next();
      Mode::weigh(tap.fraction, weights);
      const auto lines = cache.rows(rowsOf<Mode>(p.y, tap), [&](Index row, Hux32f* line) {
        columns.along(p.src + row * p.srcStep, line, rows.ahead());
      });
      rows.fetchAll(columns);
      auto* to = reinterpret_cast<Element<T>*>(dst + y * p.dstStep);
      if (f.touched < f.stride)
        acrossFloats<3, Mode>(lines, weights, to, n * f.stride);
      else
        acrossFloats<4, Mode>(lines, weights, to, n * f.stride);
    }
  });
}

// Whole pixels of so many bytes, of which the first `Moved` move. Those of twelve go in sixteen while another one
// follows on both sides; the last of a row lies at `last`.
template <std::size_t Moved, Index Bytes>
void movePixels(const std::byte* row, const Index* offsets, std::byte* dst, Index n, Index last) {
  Index j = 0;
  if (Moved == 12 && Bytes == 12)
    for (; j < n - 1 && offsets[j] < last; ++j) std::memcpy(dst + j * Bytes, row + offsets[j], 16);
  for (; j < n; ++j) std::memcpy(dst + j * Bytes, row + offsets[j], Moved);
}
using MovePixels = void (*)(const std::byte*, const Index*, std::byte*, Index, Index);
template <Index Size>
MovePixels moveOf(const Format& f) {
  return f.stride == 1    ? movePixels<Size, Size>
         : f.stride == 3  ? movePixels<3 * Size, 3 * Size>
         : f.touched == 3 ? movePixels<3 * Size, 4 * Size>
                          : movePixels<4 * Size, 4 * Size>;
}

void nearest(const ResizePlane& p) {
  const Format& f = p.format;
  const Index pixelBytes = f.pixelBytes();
  const bool large = isLarge(p);
  const MovePixels move = f.elementBytes() == 1 ? moveOf<1>(f) : f.elementBytes() == 2 ? moveOf<2>(f) : moveOf<4>(f);
  forStrips(p, kStrip / f.stride, [&](Index n, Walk& walk, std::byte* dst) {
    Index offsets[kStrip];
    for (Index j = 0; j < n; ++j) offsets[j] = walk.nextNearest() * pixelBytes;
    // Vectors hold whole bytes of neighbouring pixels; what is left of the last one, large pixels and those with a gap
    // go one by one.
    const Index runs = f.touched < f.stride || pixelBytes >= 8 ? 0 : n * pixelBytes / kLaneBytes * kWindows;
    Windows windows;
    windows.build<1, 1, 4>(runs, p.rowBytes(), 0, [&](Index byte) {
      const auto pixel = unsigned(byte) / unsigned(pixelBytes);
      return offsets[pixel] + Index(unsigned(byte) % unsigned(pixelBytes));
    });
    Walk rows(p.y);
    Index at = rows.nextNearest();
    for (Index y = 0; y < p.y.count; ++y) {
      const std::byte* row = p.src + at * p.srcStep;
      if (y + 1 < p.y.count) at = rows.nextNearest();
      if (large) fetchPiece(p.src + at * p.srcStep + offsets[0], offsets[n - 1] - offsets[0] + pixelBytes);
      std::byte* to = dst + y * p.dstStep;
      const Index done = windows.copy(row, to) / pixelBytes;
      move(row, offsets + done, to + done * pixelBytes, n - done, (p.x.image - 1) * pixelBytes);
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

void resizeBand(const ResizePlane& p, HuxiInterpolation mode) {
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

// Strips of a few rows at a time: of large images that are wider than a strip, so that the pages of rows are left only
// when all strips have been there.
constexpr Index kBandRows = 128;

}  // namespace

void resizePlane(const ResizePlane& p, HuxiInterpolation mode) {
  if (copies(p, mode == huxiInterNearest)) return;
  const bool inBands = isLarge(p) && p.x.count * p.format.stride > kStrip;
  Walk rows(p.y);
  ResizePlane band = p;
  for (Index y = 0; y < p.y.count; y += band.y.count) {
    band.y = rows.take(inBands ? std::min(kBandRows, p.y.count - y) : p.y.count);
    band.dst = p.dst + y * p.dstStep;
    resizeBand(band, mode);
  }
}

}  // namespace hux
