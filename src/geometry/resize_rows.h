// The two passes of every resize: along the columns of a source row into a line, then across the lines of neighbouring
// rows. Both go over strips of the destination, so that tables and lines have room on the stack: a resize takes no
// memory and cannot fail for want of it.
#pragma once

#include <type_traits>

#include "core/fetch.h"
#include "core/rows.h"
#include "geometry/image.h"
#include "geometry/taps.h"
#include "lanes/windows.h"

namespace hux {

// Elements of a line.
inline constexpr Index kStrip = 1024;

// Lines and tables go on to the next whole vector, whatever its elements.
constexpr Index padded(Index elements) { return (elements + kLaneBytes - 1) / kLaneBytes * kLaneBytes; }

// Tables of windows for a strip: each sixteen bytes of a vector come from one window of a source row, or from several
// that follow each other. No window leaves the row.
class Windows {
 public:
  // A lane has units of so many bytes, of which `Used` come from the row, the others are 0. at(unit) tells where in the
  // row a unit comes from, for 16 / Unit of them in each lane. A row has `rowBytes`, of which `ahead` lie behind
  // whatever is picked. Where the units of a lane lie too far apart for `Most` windows, there are none.
  template <int Unit, int Used, int Most, class At>
  void build(Index lanes, Index rowBytes, Index ahead, At at) {
    lanes_ = lanes;
    const int most = lanes <= kMostLanes / 2 ? Most : 2;
    for (perLane_ = kPicks ? 1 : 2 * Most; perLane_ <= most; perLane_ *= 2)
      if (fits<Unit, Used>(rowBytes - ahead, at)) return;
    perLane_ = straight_ = 0;
  }
  // Windows per lane: 1, 2 or, of not too many lanes, 4; 0 where there are none.
  int perLane() const { return perLane_; }
  // Of the first so many lanes, whole vectors of them, the bytes are those of the row one by one.
  Index straight() const { return straight_; }

  template <int PerLane>
  WindowBytes pick(const std::byte* row, Index lane) const {
    WindowBytes v{};
    for (int k = 0; k < PerLane; ++k)
      v |= pickBytes(loadWindows(row + k * kWindowBytes, at_ + lane),
                     loadLanes<WindowBytes>(pick_ + (k * lanes_ + lane) * kWindowBytes));
    return v;
  }
  // Calls take(lane, its vector) for all vectors, where there are windows.
  template <class Take>
  void forVectors(const std::byte* row, Take take) const {
    for (Index lane = 0; lane < straight_; lane += kWindows)
      take(lane, loadLanes<WindowBytes>(row + at_[0] + lane * kWindowBytes));
    const auto picked = [&]<int PerLane>(std::integral_constant<int, PerLane>) {
      for (Index lane = straight_; lane < lanes_; lane += kWindows) take(lane, pick<PerLane>(row, lane));
    };
    if (perLane_ == 1) picked(std::integral_constant<int, 1>{});
    if (perLane_ == 2) picked(std::integral_constant<int, 2>{});
    if (perLane_ == 4) picked(std::integral_constant<int, 4>{});
  }

  // Writes the bytes of all lanes, whole vectors of them, and returns their number: 0 where there are no windows.
  Index copy(const std::byte* row, std::byte* dst) const {
    forVectors(row, [&](Index lane, WindowBytes v) { storeLanes(dst + lane * kWindowBytes, v); });
    return perLane_ == 0 ? 0 : lanes_ * kWindowBytes;
  }

 private:
  static constexpr Index kMostLanes = kStrip / 4;

  template <int Unit, int Used, class At>
  bool fits(Index rowBytes, At at) {
    constexpr int units = kWindowBytes / Unit;
    using U = typename WordOf<Unit>::Type;
    using Bytes = Lanes<Hux8u, kWindowBytes>;
    Bytes inUnit{}, unused{};
    for (int j = 0; j < kWindowBytes; ++j) inUnit[j] = Hux8u(j % Unit), unused[j] = j % Unit < Used ? 0 : 0x80;
    const Index width = perLane_ * kWindowBytes;
    straight_ = 0;
    for (Index lane = 0; lane < lanes_; ++lane) {
      Index low = rowBytes - width, high = 0, from[units];
      bool oneByOne = Used == Unit;
      for (int i = 0; i < units; ++i) {
        from[i] = at(lane * units + i);
        low = std::min(low, from[i]), high = std::max(high, from[i]);
        oneByOne &= from[i] == from[0] + i * Unit;
      }
      if (low < 0 || high + Used > low + width) return false;
      at_[lane] = low;
      if (straight_ == lane && oneByOne && low == from[0] && low == at_[0] + lane * kWindowBytes) ++straight_;
      Lanes<U, units> unit{};
      for (int i = 0; i < units; ++i) unit[i] = U(U(from[i] - low) * U(0x01010101));
      // The top bit of a byte tells that it lies in another window, or nowhere.
      for (int k = 0; k < perLane_; ++k) {
        const Bytes in = bitsAs<Bytes>(unit) + inUnit - Hux8u(k * kWindowBytes);
        storeLanes(pick_ + (k * lanes_ + lane) * kWindowBytes, (in + Hux8u(0x70)) | in | unused);
      }
    }
    straight_ = straight_ / kWindows * kWindows;
    return true;
  }

  int perLane_ = 0;
  Index lanes_ = 0, straight_ = 0;
  Index at_[kMostLanes];
  alignas(64) Hux8u pick_[2 * kMostLanes * kWindowBytes];
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

// Integers in linear mode, by weights in units of 2^-14 that are 16384 together: lines of 16 bits, products of two
// pixels at a time.
//   8u   (w1 p1 + w0 p0 + 128) >> 8 along, (b f + a (16384 - f) + 0x80000) >> 20 across
//   16u  (w1 p1 + w0 p0 + 8192) >> 14 in both
// 16-bit pixels and lines count from the middle of their range, which the weights leave where it is.
//
// Of bytes, both fit 16 bits as what is added to the first of the two: 64 p0 + ((p1 - p0) w1 + 128 >> 8), whose last
// term is a rounded product, and a + ((b - a) f >> 14) + 32 >> 6, which drops the same bits.
template <class T>
struct PairRule {
  static constexpr bool wide = sizeof(T) == 2;
  static constexpr Hux32s middle = wide ? 32768 : 0;
  static constexpr Hux32s alongHalf = wide ? 8192 : 128, acrossHalf = wide ? 8192 : 0x80000;
  static constexpr int alongShift = wide ? 14 : 8, acrossShift = wide ? 14 : 20;
};
using LineWords = Lanes<Hux16s, kLaneBytes / 2>;

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
    windows_.build<size, size, size == 1 ? 4 : 2>(elements_ / perLane, rowBytes, 0, [&](Index unit) {
      constexpr Index units = 2 * perLane;
      const Index e = groupOf(unit / units) * perLane + unit % units / 2;
      return unit % 2 ? second_[e] : first_[e];
    });
    if constexpr (size == 1) {
      // In units of 2^-15, negative: so all of them fit.
      for (Index e = 0; e < elements_; ++e) weights_[e] = Hux16s(-2 * q14_[e]);
    } else {
      for (Index lane = 0; lane < elements_ / perLane; ++lane)
        for (Index i = 0; i < perLane; ++i) {
          const Hux16s q14 = q14_[groupOf(lane) * perLane + i];
          Hux16s* to = weights_ + 2 * (lane * perLane + i);
          to[0] = Hux16s(16384 - q14), to[1] = q14;
        }
    }
  }

  // Where there is a row `ahead`, its bytes are asked for one after the other meanwhile: so many at once as a row has
  // are more than the machine waits for without a halt.
  void along(const std::byte* row, Hux16s* line, const std::byte* ahead = nullptr) const {
    if (ahead == nullptr) ahead = row;
    if (windows_.perLane() != 0) return inLanes(row, line, ahead);
    fetch(ahead);
    const auto pixel = [&](Index at) { return Hux32s(*reinterpret_cast<const Element<T>*>(row + at)) - Rule::middle; };
    for (Index e = 0; e < elements_; ++e) {
      const Hux32s sum = q14_[e] * pixel(second_[e]) + (16384 - q14_[e]) * pixel(first_[e]);
      line[e] = Hux16s(std::clamp((sum + Rule::alongHalf) >> Rule::alongShift, -32768, 32767));
    }
  }
  // Whether all elements lie between their samples; a shift below 0 lets some lie before them.
  bool inside() const { return *std::min_element(q14_, q14_ + elements_) >= 0; }
  // Asks for what a row's line is made of.
  void fetch(const std::byte* row) const { fetchPiece(row + first_[0], second_[elements_ - 1] - first_[0] + size); }

 private:
  static constexpr Index size = sizeof(T), perLane = 8 / size;

  // Which elements a lane holds. Of 16 bits vectors come in twos, whose windows alternate, so that packing leaves the
  // elements in order.
  static Index groupOf(Index lane) {
    if (size == 1) return lane;
    const Index in = lane % (2 * kWindows);
    return lane - in + in % kWindows * 2 + in / kWindows;
  }
  void inLanes(const std::byte* row, Hux16s* line, const std::byte* ahead) const {
    if constexpr (size == 1) {
      windows_.forVectors(row, [&](Index lane, WindowBytes pairs) {
        const Index e = lane * perLane;
        __builtin_prefetch(ahead + first_[e]);
        const LineWords between = roundedProducts(weighedPairs<64, -64>(pairs), loadLanes<LineWords>(weights_ + e));
        storeLanes(line + e, weighedPairs<64, 0>(pairs) + between);
      });
    } else if (windows_.perLane() == 1) {
      pick<1>(row, line, ahead);
    } else {
      pick<2>(row, line, ahead);
    }
  }
  template <int PerLane>
  void pick(const std::byte* row, Hux16s* line, const std::byte* ahead) const {
    const auto part = [&](Index lane) {
      const LineWords pixels = bitsAs<LineWords>(windows_.pick<PerLane>(row, lane)) ^ Hux16s(-Rule::middle);
      return (pairProducts(pixels, loadLanes<LineWords>(weights_ + lane * 8)) + Rule::alongHalf) >> Rule::alongShift;
    };
    for (Index lane = 0; lane < elements_ / perLane; lane += 2 * kWindows) {
      __builtin_prefetch(ahead + first_[lane * perLane]);
      storeLanes(line + lane * perLane, packWords(part(lane), part(lane + kWindows)));
    }
  }

  Index elements_ = 0;
  Windows windows_;
  Index first_[kStrip], second_[kStrip];
  Hux16s q14_[kStrip];
  alignas(64) Hux16s weights_[2 * kStrip];
};

// Between two lines, of which the second counts q14. Of four elements each, `Colours` are written. Lines that are
// `inside` hold nothing but what lies between pixels.
template <int Colours, class T>
void acrossPairs(const std::array<const Hux16s*, 2>& lines, Hux16s q14, Element<T>* dst, Index elements, bool inside) {
  using Rule = PairRule<T>;
  constexpr Index lanes = kLaneBytes / Index(sizeof(T));
  const auto run = [&](auto mixed) {
    const auto pixels = [&](Index e) {
      const auto words = [&](Index e) {
        return mixed(loadLanes<LineWords>(lines[0] + e), loadLanes<LineWords>(lines[1] + e));
      };
      if constexpr (Rule::wide)
        return bitsAs<Lanes<T, lanes>>(words(e)) ^ T(0x8000);
      else
        return inOrder<2>(packBytes(words(e), words(e + lanes / 2)));
    };
    Index e = 0;
    for (; e + lanes <= elements; e += lanes) storeColours<Colours>(dst + e, pixels(e));
    if (e < elements) storeColours<Colours>(dst + e, pixels(e), int(elements - e));
  };
  if constexpr (!Rule::wide)
    if (inside)
      return run([back = splat<LineWords>(Hux16s(-2 * q14))](LineWords a, LineWords b) {
        const LineWords difference = a - b;
        return (a + mulHigh(difference + difference, back) + 32) >> 6;
      });
  const auto both = Hux32u(Hux16u(16384 - q14)) | Hux32u(Hux16u(q14)) << 16;
  run([weights = bitsAs<LineWords>(splat<Lanes<Hux32u, kLaneBytes / 4>>(both))](LineWords a, LineWords b) {
    const auto part = [&](LineWords pairs) {
      return (pairProducts(pairs, weights) + Rule::acrossHalf) >> Rule::acrossShift;
    };
    return packWords(part(simd::zip<2, false>(a, b)), part(simd::zip<2, true>(a, b)));
  });
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
    findPixels();
    if (findPairs() || inPixels_ > 0) return;
    windows_.build<4, int(sizeof(T)), 2>(elements_ / 4, rowBytes, (Mode::taps - 1) * pixelBytes_,
                                         [&](Index e) { return offset_[e]; });
  }

  // Asks for the bytes of a row `ahead` meanwhile.
  void along(const std::byte* row, Hux32f* line, const std::byte* ahead) const {
    if (ahead == nullptr) ahead = row;
    if (inPairs_) return pairs(row, line, ahead);
    if (inPixels_ > 0) {
      wholePixels(row, line, ahead);
      return gather(row, line, inPixels_ / kLanes * kLanes, elements_,
                    [&](Index e, Index k) { return offset_[e] + k * pixelBytes_; });
    }
    const auto clamped = [&](Index e, Index k) {
      return std::clamp(first_[e] + k, Index(0), pixels_ - 1) * pixelBytes_ + inPixel_[e];
    };
    gather(row, line, 0, begin_, clamped);
    if (windows_.perLane() == 1) {
      pick<1>(row, line, ahead);
    } else if (windows_.perLane() == 2) {
      pick<2>(row, line, ahead);
    } else {
      fetch(ahead);
      gather(row, line, begin_, end_, [&](Index e, Index k) { return offset_[e] + k * pixelBytes_; });
    }
    gather(row, line, end_, elements_, clamped);
  }
  // Asks for what a row's line is made of.
  void fetch(const std::byte* row) const {
    fetchPiece(row + offset_[0], offset_[elements_ - 1] - offset_[0] + Mode::taps * pixelBytes_);
  }

 private:
  static constexpr Index kLanes = lanesIn<Floats>;
  static constexpr bool kBetweenFloats = std::is_same_v<Mode, Linear> && std::is_floating_point_v<T>;

  // Linear mode, one channel: the two samples of each of four elements from one window of eight floats. False where
  // they lie farther apart.
  bool findPairs() {
    if constexpr (kBetweenFloats && kPicksFloats) {
      inPairs_ = pixelBytes_ == 4 && pixels_ >= 8;
      for (Index e = 0; inPairs_ && e < elements_; e += 4) {
        const Index low = std::min(first_[e], pixels_ - 8);
        windowAt_[e / 4] = low * 4;
        for (Index i = 0; i < 4; ++i) {
          const Index in = first_[e + i] - low;
          if (in > 6) inPairs_ = false;
          inWindow_[2 * e + i] = Hux32s(in), inWindow_[2 * e + i + 4] = Hux32s(in + 1);
        }
      }
    }
    return inPairs_;
  }
  void pairs(const std::byte* row, Hux32f* line, const std::byte* ahead) const {
    if constexpr (kBetweenFloats && kPicksFloats) {
      using Window = std::conditional_t<kBetweenFloats, FloatWindow, Floats>;  // looked at where there are any
      for (Index e = 0; e < elements_; e += 8) {
        const auto window = [&](Index e) {
          return pickFloats(loadLanes<FloatWindow>(row + windowAt_[e / 4]),
                            loadLanes<Lanes<Hux32s, 8>>(inWindow_ + 2 * e));
        };
        __builtin_prefetch(ahead + windowAt_[e / 4]);
        const Window a = window(e), b = window(e + 4);
        const Floats p[2] = {__builtin_shufflevector(a, b, 0, 1, 2, 3, 8, 9, 10, 11),
                             __builtin_shufflevector(a, b, 4, 5, 6, 7, 12, 13, 14, 15)};
        storeLanes(line + e, combined(p, e));
      }
    }
  }

  // Linear mode, three channels: two pixels at a time in four lanes each, of which the last is overwritten by what
  // comes next.
  void findPixels() {
    if constexpr (kBetweenFloats)
      if (pixelBytes_ == 12)
        while (inPixels_ + 9 <= elements_ && first_[inPixels_ + 3] + 2 < pixels_) inPixels_ += 6;
  }
  void wholePixels(const std::byte* row, Hux32f* line, const std::byte* ahead) const {
    if constexpr (kBetweenFloats) {
      using Four = Lanes<Hux32f, 4>;
      using Eight = Lanes<Hux32f, 8>;
      const auto join = [](Four a, Four b) { return __builtin_shufflevector(a, b, 0, 1, 2, 3, 4, 5, 6, 7); };
      for (Index e = 0, n = inPixels_; e < n; e += 6) {
        __builtin_prefetch(ahead + offset_[e]);
        const std::byte *a = row + offset_[e], *b = row + offset_[e + 3];
        const Eight p[2] = {join(loadLanes<Four>(a), loadLanes<Four>(b)),
                            join(loadLanes<Four>(a + 12), loadLanes<Four>(b + 12))};
        const auto weights = loadLanes<Eight>(weights_[0] + e);
        const Eight w[1] = {__builtin_shufflevector(weights, weights, 0, 0, 0, 0, 4, 4, 4, 4)};
        const Eight v = Mode::along(p, w);
        storeLanes(line + e, Four(__builtin_shufflevector(v, v, 0, 1, 2, 3)));
        storeLanes(line + e + 3, Four(__builtin_shufflevector(v, v, 4, 5, 6, 7)));
      }
    }
  }

  Floats combined(const Floats (&p)[Mode::taps], Index e) const {
    Floats w[Mode::weights];
    for (int k = 0; k < Mode::weights; ++k) w[k] = loadLanes<Floats>(weights_[k] + e);
    return Mode::along(p, w);
  }
  template <int PerLane>
  void pick(const std::byte* row, Hux32f* line, const std::byte* ahead) const {
    for (Index e = begin_; e < end_; e += kLanes) {
      __builtin_prefetch(ahead + offset_[e]);
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
  bool inPairs_ = false;
  Index inPixels_ = 0;
  Windows windows_;
  Index windowAt_[kBetweenFloats ? kStrip / 4 : 1];
  alignas(64) Hux32s inWindow_[kBetweenFloats ? 2 * kStrip : 1];
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
