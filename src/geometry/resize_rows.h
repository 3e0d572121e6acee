// The two passes of every resize: along the columns of a source row into a line, then across the lines of neighbouring
// rows. Both go over strips of the destination, so that tables and lines have room on the stack: a resize takes no
// memory and cannot fail for want of it.
#pragma once

#include <type_traits>

#include "core/rows.h"
#include "geometry/image.h"
#include "geometry/taps.h"
#include "lanes/windows.h"

namespace hux {

// Elements of a line.
inline constexpr Index kStrip = 1024;

// Lines and tables go on to the next whole vector, whatever its elements.
constexpr Index padded(Index elements) { return (elements + kLaneBytes - 1) / kLaneBytes * kLaneBytes; }

// Tables of windows for a strip: each sixteen bytes of a vector come from one window of a source row, or from two that
// follow each other. No window leaves the row.
class Windows {
 public:
  // A lane has units of so many bytes, of which `Used` come from the row, the others are 0. at(unit) tells where in the
  // row a unit comes from, for 16 / Unit of them in each lane. A row has `rowBytes`, of which `ahead` lie behind
  // whatever is picked. Where the units of a lane lie too far apart, there are no windows.
  template <int Unit, int Used, class At>
  void build(Index lanes, Index rowBytes, Index ahead, At at) {
    for (perLane_ = kPicks ? 1 : 3; perLane_ <= 2; ++perLane_)
      if (fits<Unit, Used>(lanes, rowBytes - ahead, at)) return;
    perLane_ = 0;
  }
  // Windows per lane: 1 or 2, 0 where there are none.
  int perLane() const { return perLane_; }

  template <int PerLane>
  WindowBytes pick(const std::byte* row, Index lane) const {
    WindowBytes v = pickBytes(loadWindows(row, at_ + lane), loadLanes<WindowBytes>(pick_[0] + lane * kWindowBytes));
    if constexpr (PerLane == 2)
      v |= pickBytes(loadWindows(row + kWindowBytes, at_ + lane),
                     loadLanes<WindowBytes>(pick_[1] + lane * kWindowBytes));
    return v;
  }

  // Writes the bytes of all lanes, whole vectors of them, and returns their number: 0 where there are no windows.
  Index copy(const std::byte* row, std::byte* dst, Index lanes) const {
    if (perLane_ == 0) return 0;
    for (Index lane = 0; lane < lanes; lane += kWindows)
      storeLanes(dst + lane * kWindowBytes, perLane_ == 1 ? pick<1>(row, lane) : pick<2>(row, lane));
    return lanes * kWindowBytes;
  }

 private:
  template <int Unit, int Used, class At>
  bool fits(Index lanes, Index rowBytes, At at) {
    constexpr int units = kWindowBytes / Unit;
    using U = typename WordOf<Unit>::Type;
    using Bytes = Lanes<Hux8u, kWindowBytes>;
    Bytes inUnit{}, unused{};
    for (int j = 0; j < kWindowBytes; ++j) inUnit[j] = Hux8u(j % Unit), unused[j] = j % Unit < Used ? 0 : 0x80;
    const Index width = perLane_ * kWindowBytes;
    for (Index lane = 0; lane < lanes; ++lane) {
      Index low = rowBytes - width, high = 0, from[units];
      for (int i = 0; i < units; ++i) {
        from[i] = at(lane * units + i);
        low = std::min(low, from[i]), high = std::max(high, from[i]);
      }
      if (low < 0 || high + Used > low + width) return false;
      at_[lane] = low;
      Lanes<U, units> unit{};
      for (int i = 0; i < units; ++i) unit[i] = U(U(from[i] - low) * U(0x01010101));
      // The top bit of a byte tells that it lies in the other window, or nowhere.
      const Bytes in = bitsAs<Bytes>(unit) + inUnit;
      storeLanes(pick_[0] + lane * kWindowBytes, (in + Hux8u(0x70)) | unused);
      storeLanes(pick_[1] + lane * kWindowBytes, (in - Hux8u(0x10)) | unused);
    }
    return true;
  }

  int perLane_ = 0;
  Index at_[kStrip / 4];
  alignas(64) Hux8u pick_[2][kStrip * 4];
};

// The last lines that were made, by the numbers of their rows: from one row of the destination to the next most stay.
template <int K, class B>
class LineCache {
 public:
  LineCache() { held_.fill(-1); }

  // The lines of the wanted rows; make(row, line) for those that are not there yet.
  template <class Make>
  std::array<const B*, K> rows(const std::array<Index, K>& wanted, Make make) {
    unsigned used = 0;
    for (Index row : wanted)
      for (unsigned s = 0; s < K; ++s) used |= unsigned(held_[s] == row) << s;
    std::array<const B*, K> lines;
    for (std::size_t k = 0; k < K; ++k) {
      std::size_t s = 0;
      while (s < K && held_[s] != wanted[k]) ++s;
      if (s == K) {
        for (s = 0; used >> s & 1;) ++s;
        used |= 1u << s;
        held_[s] = wanted[k];
        make(wanted[k], line_[s]);
      }
      lines[k] = line_[s];
    }
    return lines;
  }

 private:
  std::array<Index, K> held_;
  alignas(64) B line_[K][kStrip];
};

// The source rows of a position.
template <class Mode>
std::array<Index, Mode::taps> rowsOf(const Axis& axis, Tap tap) {
  std::array<Index, Mode::taps> rows;
  for (int k = 0; k < Mode::taps; ++k) rows[std::size_t(k)] = std::clamp(tap.first + k, Index(0), axis.image - 1);
  return rows;
}

// Integers in linear mode: lines of 16 bits, products of two pixels at a time.
//   8u   (w1 p1 + w0 p0 + 128) >> 8 along, (b f + a (16384 - f) + 0x80000) >> 20 across
//   16u  (w1 p1 + w0 p0 + 8192) >> 14 in both
// 16-bit pixels and lines count from the middle of their range, which the weights, 16384 together, leave where it is.
template <class T>
struct PairRule {
  static constexpr bool wide = sizeof(T) == 2;
  static constexpr Hux32s middle = wide ? 32768 : 0;
  static constexpr Hux32s alongHalf = wide ? 8192 : 128, acrossHalf = wide ? 8192 : 0x80000;
  static constexpr int alongShift = wide ? 14 : 8, acrossShift = wide ? 14 : 20;
};

// The places and weights of a strip's elements for it.
template <class T>
class PairColumns {
 public:
  using Rule = PairRule<T>;

  // An element more: the bytes from a row's start to its two samples, and what the second counts. After the last one,
  // finish tells how many bytes a row has.
  void add(Index first, Index second, Hux16s q14) {
    first_[elements_] = first, second_[elements_] = second, q14_[elements_++] = q14;
  }
  void finish(Index rowBytes) {
    for (const Index last = elements_ - 1, all = padded(elements_); elements_ < all;)
      add(first_[last], second_[last], q14_[last]);
    windows_.build<2, int(sizeof(T))>(elements_ / 4, rowBytes, 0, [&](Index unit) {
      const Index e = groupOf(unit / 8) * 4 + unit % 8 / 2;
      return unit % 2 ? second_[e] : first_[e];
    });
    for (Index lane = 0; lane < elements_ / 4; ++lane)
      for (Index i = 0; i < 4; ++i) {
        const Hux16s q14 = q14_[groupOf(lane) * 4 + i];
        weights_[lane * 8 + 2 * i] = Hux16s(16384 - q14), weights_[lane * 8 + 2 * i + 1] = q14;
      }
  }

  void along(const std::byte* row, Hux16s* line) const {
    if (windows_.perLane() == 1) return pick<1>(row, line);
    if (windows_.perLane() == 2) return pick<2>(row, line);
    const auto pixel = [&](Index at) { return Hux32s(*reinterpret_cast<const Element<T>*>(row + at)) - Rule::middle; };
    for (Index e = 0; e < elements_; ++e) {
      const Hux32s sum = q14_[e] * pixel(second_[e]) + (16384 - q14_[e]) * pixel(first_[e]);
      line[e] = Hux16s(std::clamp((sum + Rule::alongHalf) >> Rule::alongShift, -32768, 32767));
    }
  }

 private:
  // Which four elements a lane holds. Vectors come in twos, whose windows alternate, so that packing leaves the
  // elements in order.
  static Index groupOf(Index lane) {
    const Index in = lane % (2 * kWindows);
    return lane - in + in % kWindows * 2 + in / kWindows;
  }
  template <int PerLane>
  void pick(const std::byte* row, Hux16s* line) const {
    using Words = Lanes<Hux16s, kLaneBytes / 2>;
    const auto part = [&](Index lane) {
      Words pixels = bitsAs<Words>(windows_.pick<PerLane>(row, lane));
      if constexpr (Rule::wide) pixels ^= Hux16s(-32768);
      return (pairProducts(pixels, loadLanes<Words>(weights_ + lane * 8)) + Rule::alongHalf) >> Rule::alongShift;
    };
    for (Index lane = 0; lane < elements_ / 4; lane += 2 * kWindows)
      storeLanes(line + lane * 4, packWords(part(lane), part(lane + kWindows)));
  }

  Index elements_ = 0;
  Windows windows_;
  Index first_[kStrip], second_[kStrip];
  Hux16s q14_[kStrip];
  alignas(64) Hux16s weights_[2 * kStrip];
};

// Between two lines, of which the second counts q14. Of four elements each, `Colours` are written.
template <int Colours, class T>
void acrossPairs(const std::array<const Hux16s*, 2>& lines, Hux16s q14, Element<T>* dst, Index elements) {
  using Rule = PairRule<T>;
  using Words = Lanes<Hux16s, kLaneBytes / 2>;
  const Words weights =
      bitsAs<Words>(splat<Lanes<Hux32u, kLaneBytes / 4>>(Hux32u(Hux16u(16384 - q14)) | Hux32u(Hux16u(q14)) << 16));
  const auto mixed = [&](Index e) {
    const Words a = loadLanes<Words>(lines[0] + e), b = loadLanes<Words>(lines[1] + e);
    return packWords((pairProducts(simd::zip<2, false>(a, b), weights) + Rule::acrossHalf) >> Rule::acrossShift,
                     (pairProducts(simd::zip<2, true>(a, b), weights) + Rule::acrossHalf) >> Rule::acrossShift);
  };
  constexpr Index lanes = kLaneBytes / Index(sizeof(T));
  const auto pixels = [&](Index e) {
    if constexpr (Rule::wide)
      return bitsAs<Lanes<T, lanes>>(mixed(e)) ^ T(0x8000);
    else
      return inOrder<2>(packBytes(mixed(e), mixed(e + lanes / 2)));
  };
  Index e = 0;
  for (; e + lanes <= elements; e += lanes) storeColours<Colours>(dst + e, pixels(e));
  if (e < elements) storeColours<Colours>(dst + e, pixels(e), int(elements - e));
}

// All other interpolations: lines of 32-bit floats.
using Floats = Lanes<Hux32f, kLaneBytes / 4>;

// Interpolated integers: truncate(v + 0.5000001) in double precision, limited to the type. The fraction of a float
// shows whether the sum reaches the next integer; the comparison is exact up to 65536.
template <class T>
auto toPixels(Floats v) {
  if constexpr (std::is_floating_point_v<T>) {
    return v;
  } else {
    v = lesser(greater(v, Floats{}), splat<Floats>(Hux32f(std::numeric_limits<T>::max())));
    const auto whole = convert<Hux32s>(v);
    return whole - (v - convert<Hux32f>(whole) >= 0x1.fffffap-2f);  // the smallest float not below 0.4999999
  }
}

template <class Mode, class T>
class FloatColumns {
 public:
  // Pixels are `pixelBytes` apart, and there are `pixels` of them in a row.
  FloatColumns(Index pixels, Index pixelBytes) : pixels_(pixels), pixelBytes_(pixelBytes) {}

  // An element more: how many bytes into a pixel it lies, its taps and what they count. After the last one, finish
  // tells how many bytes a row has.
  void add(Index inPixel, Index first, const Hux32f (&weights)[Mode::weights]) {
    const Index last = pixels_ - Mode::taps, e = elements_++;
    inPixel_[e] = inPixel, first_[e] = first;
    offset_[e] = std::clamp(first, Index(0), last) * pixelBytes_ + inPixel;
    for (int k = 0; k < Mode::weights; ++k) weights_[k][e] = weights[k];
    if (first < 0) begin_ = e + 1;
    if (first <= last) end_ = e + 1;
  }
  void finish(Index rowBytes) {
    Hux32f weights[Mode::weights];
    for (int k = 0; k < Mode::weights; ++k) weights[k] = weights_[k][elements_ - 1];
    for (const Index last = elements_ - 1, all = padded(elements_); elements_ < all;)
      add(inPixel_[last], first_[last], weights);
    // Vectors that hold taps outside the image stand before and behind those that do not.
    begin_ = std::min((begin_ + kLanes - 1) / kLanes * kLanes, elements_);
    end_ = std::max(end_ / kLanes * kLanes, begin_);
    windows_.build<4, int(sizeof(T))>(elements_ / 4, rowBytes, (Mode::taps - 1) * pixelBytes_,
                                      [&](Index e) { return offset_[e]; });
  }

  void along(const std::byte* row, Hux32f* line) const {
    const auto clamped = [&](Index e, Index k) {
      return std::clamp(first_[e] + k, Index(0), pixels_ - 1) * pixelBytes_ + inPixel_[e];
    };
    gather(row, line, 0, begin_, clamped);
    if (windows_.perLane() == 1)
      pick<1>(row, line);
    else if (windows_.perLane() == 2)
      pick<2>(row, line);
    else
      gather(row, line, begin_, end_, [&](Index e, Index k) { return offset_[e] + k * pixelBytes_; });
    gather(row, line, end_, elements_, clamped);
  }

 private:
  static constexpr Index kLanes = lanesIn<Floats>;

  Floats combined(const Floats (&p)[Mode::taps], Index e) const {
    Floats w[Mode::weights];
    for (int k = 0; k < Mode::weights; ++k) w[k] = loadLanes<Floats>(weights_[k] + e);
    return Mode::along(p, w);
  }
  template <int PerLane>
  void pick(const std::byte* row, Hux32f* line) const {
    for (Index e = begin_; e < end_; e += kLanes) {
      Floats p[Mode::taps];
      for (int k = 0; k < Mode::taps; ++k) {
        const WindowBytes bytes = windows_.pick<PerLane>(row + k * pixelBytes_, e / 4);
        if constexpr (std::is_floating_point_v<T>)
          p[k] = bitsAs<Floats>(bytes);
        else
          p[k] = convert<Hux32f>(bitsAs<Lanes<Hux32s, kLanes>>(bytes));
      }
      storeLanes(line + e, combined(p, e));
    }
  }
  template <class Offset>
  void gather(const std::byte* row, Hux32f* line, Index from, Index to, Offset offset) const {
    for (Index e = from; e < to; e += kLanes) {
      Floats p[Mode::taps];
      for (int k = 0; k < Mode::taps; ++k)
        p[k] = lanesOf<Floats>(
            [&](int i) { return Hux32f(T(*reinterpret_cast<const Element<T>*>(row + offset(e + i, k)))); });
      storeLanes(line + e, combined(p, e));
    }
  }

  Index pixels_, pixelBytes_, elements_ = 0, begin_ = 0, end_ = 0;
  Windows windows_;
  Index offset_[kStrip], first_[kStrip], inPixel_[kStrip];
  alignas(64) Hux32f weights_[Mode::weights][kStrip];
};

template <int Colours, class Mode, class T>
void acrossFloats(const std::array<const Hux32f*, Mode::taps>& lines, const Hux32f (&weights)[Mode::weights],
                  Element<T>* dst, Index elements) {
  Floats w[Mode::weights];
  for (int k = 0; k < Mode::weights; ++k) w[k] = splat<Floats>(weights[k]);
  constexpr Index vectors = 4 / Index(sizeof(T)), lanes = vectors * lanesIn<Floats>;
  const auto pixels = [&](Index e) {
    std::array<decltype(toPixels<T>(Floats{})), vectors> v;
    for (Index i = 0; i < vectors; ++i) {
      Floats p[Mode::taps];
      for (std::size_t k = 0; k < Mode::taps; ++k) p[k] = loadLanes<Floats>(lines[k] + e + i * lanesIn<Floats>);
      v[std::size_t(i)] = toPixels<T>(Mode::across(p, w));
    }
    return narrowed<T>(v);
  };
  Index e = 0;
  for (; e + lanes <= elements; e += lanes) storeColours<Colours>(dst + e, pixels(e));
  if (e < elements) storeColours<Colours>(dst + e, pixels(e), int(elements - e));
}

// One plane, or an interleaved image, of a resize. Positions count in the whole source image; nothing else of memory is
// read.
struct ResizePlane {
  Format format;
  const std::byte* src;  // the image's first pixel
  Index srcStep;
  std::byte* dst;  // the first pixel that is written
  Index dstStep;
  Axis x, y;

  // Bytes of an image row that are there; alpha of the last pixel is none of them.
  Index rowBytes() const { return ((x.image - 1) * format.stride + format.touched) * format.elementBytes(); }
};

// By nearest, linear, cubic or Lanczos interpolation.
void resizePlane(const ResizePlane& plane, HuxiInterpolation mode);

}  // namespace hux
