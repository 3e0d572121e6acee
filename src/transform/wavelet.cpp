// One level of a wavelet transform with the caller's filters, and its inverse.
//
// Images are walked in strips of 256 columns of a sub-band: for each row of a strip the columns are filtered into two
// lines in the caller's buffer, and the lines into rows of results. Rows and columns outside the region are read as
// they stand. Sums run from the first sample, which meets the last tap, to the last one; all in single precision.
#include <limits>

#include "core/context.h"
#include "core/rows.h"
#include "core/stamp.h"
#include "huxi_transform.h"
#include "lanes/interleave.h"

namespace hux {
namespace {

// Taps in the order of the samples that they meet.
struct Taps {
  At<Hux32f> at;
  Hux32s count;
};

struct Filter {
  Hux32s length, anchor;
  Hux32s ahead, behind;  // samples, of a sub-band for the inverse, that are read outside the region
  Taps all;              // forward
  Taps parity[2];        // inverse: taps of even and of odd index
};

}  // namespace
}  // namespace hux

struct HuxiWTRecord {
  Hux32s tag;
  Hux32s line[2];    // pixels of the lines
  Hux32s lineBytes;  // of the first one
  Hux32s bufferBytes;
  hux::Filter low, high;
};

namespace hux {
namespace {

using Record = HuxiWTRecord;

constexpr Index kStrip = 256;  // columns of a sub-band
constexpr int kLanes = 8;
using V = Lanes<Hux32f, kLanes>;

template <class L, bool Forward>
inline constexpr Hux32s kTag = (L::channels == 1 ? 46 : 48) + (Forward ? 0 : 1);

V load(const void* p) { return loadLanes<V>(p); }

// --- Columns.

// A line of `elements` floats: the sum over the taps' rows from `top` on, added to what is there or not. put(i, v) and
// put(i, f) take the results.
template <class Put>
void alongColumns(const Hux32f* taps, int count, const Element<Hux32f>* top, Index step, Index elements, Put put) {
  constexpr int wide = 4;
  Index i = 0;
  for (; i + wide * kLanes <= elements; i += wide * kLanes) {
    const auto* row = top + i;
    V sum[wide];
    for (int w = 0; w < wide; ++w) sum[w] = load(row + w * kLanes) * taps[0];
    for (int m = 1; m < count; ++m) {
      row = advance(row, step);
      for (int w = 0; w < wide; ++w) sum[w] += load(row + w * kLanes) * taps[m];
    }
    for (int w = 0; w < wide; ++w) put(i + w * kLanes, sum[w]);
  }
  for (; i < elements; ++i) {
    const auto* row = top + i;
    Hux32f sum = row[0] * taps[0];
    for (int m = 1; m < count; ++m) {
      row = advance(row, step);
      sum += row[0] * taps[m];
    }
    put(i, sum);
  }
}

void storeAt(Element<Hux32f>* to, V v) { storeLanes(to, v); }
void storeAt(Element<Hux32f>* to, Hux32f v) { *to = v; }
V loadAt(const Element<Hux32f>* from, V) { return load(from); }
Hux32f loadAt(const Element<Hux32f>* from, Hux32f) { return *from; }

// --- Rows. Lines hold pixels of C floats, so that the next sample of a filter is C floats on, whatever the channel.

// Sum over the taps of samples from `line` on, of N vectors or one float at a time.
template <class T, int C>
T alongLine(const Hux32f* taps, int count, const Element<Hux32f>* line) {
  T sum = loadAt(line, T{}) * taps[0];
  for (int m = 1; m < count; ++m) sum += loadAt(line + m * C, T{}) * taps[m];
  return sum;
}

// --- Forward. A line is parted into its pixels of even and of odd number, as decimation asks for them.

template <int C>
struct PartedLine {
  Element<Hux32f>*even, *odd;
  PartedLine(Element<Hux32f>* memory, Index pixels) : even(memory), odd(memory + (pixels + 1) / 2 * C) {}

  Element<Hux32f>* at(Index pixel) const { return (pixel % 2 ? odd : even) + pixel / 2 * C; }
};

template <int C>
void columnsToParted(const Hux32f* taps, int count, const Element<Hux32f>* top, Index step, Index pixels,
                     PartedLine<C> line) {
  if constexpr (C == 1) {
    V before = {};
    alongColumns(taps, count, top, step, pixels, [&](Index i, auto v) {
      if constexpr (sizeof v == sizeof(Hux32f)) {
        *line.at(i) = v;
      } else if (i / kLanes % 2 == 0) {
        before = v;
      } else {
        storeLanes(line.at(i - kLanes), alternate<0>(before, v));
        storeLanes(line.at(i - kLanes + 1), alternate<1>(before, v));
      }
    });
  } else {
    // Whole pixels pass by way of a piece of a line.
    constexpr Index piece = 64;
    Element<Hux32f> whole[piece * C];
    forPieces(pixels, piece, [&](Index first, Index n) {
      alongColumns(taps, count, top + first * C, step, n * C, [&](Index i, auto v) { storeAt(whole + i, v); });
      for (Index p = 0; p < n; ++p) std::memcpy(line.at(first + p), whole + p * C, C * sizeof(Hux32f));
    });
  }
}

// n pixels of a row of a sub-band; offset is the first sample's, of the first pixel.
template <int C>
void decimated(const Record* r, const Filter& f, PartedLine<C> line, Index offset, Element<Hux32f>* dst, Index n) {
  const Hux32f* taps = f.all.at.in(r);
  const int count = f.all.count;
  // Some vectors side by side, or one float.
  const auto sums = [&](Index i, auto kind, auto wide) {
    using T = decltype(kind);
    constexpr int step = int(sizeof(T) / sizeof(Hux32f));
    T sum[wide];
    const auto* at = line.at(offset) + i;
    for (int w = 0; w < wide; ++w) sum[w] = loadAt(at + w * step, T{}) * taps[0];
    for (int m = 1; m < count; ++m) {
      at = line.at(offset + m) + i;
      for (int w = 0; w < wide; ++w) sum[w] += loadAt(at + w * step, T{}) * taps[m];
    }
    for (int w = 0; w < wide; ++w) storeAt(dst + i + w * step, sum[w]);
  };
  Index i = 0;
  for (; i + 4 * kLanes <= n * C; i += 4 * kLanes) sums(i, V{}, std::integral_constant<int, 4>{});
  for (; i + kLanes <= n * C; i += kLanes) sums(i, V{}, std::integral_constant<int, 1>{});
  for (; i < n * C; ++i) sums(i, Hux32f{}, std::integral_constant<int, 1>{});
}

template <class L>
void forwardStrip(const Record* r, Rows<const Hux32f> src, const Rows<Hux32f> (&dst)[4], Index first, HuxiSize size,
                  Element<Hux32f>* buffer) {
  constexpr int C = L::channels;
  const Filter &low = r->low, &high = r->high;
  const Index ahead = std::max(low.ahead, high.ahead), behind = std::max(low.behind, high.behind);
  const Index n = size.width, pixels = ahead + 2 * n + behind;
  const PartedLine<C> lowLine(buffer, pixels), highLine(advance(buffer, r->lineBytes), pixels);
  for (Index y = 0; y < size.height; ++y) {
    const auto columns = [&](const Filter& f, PartedLine<C> line) {
      columnsToParted<C>(f.all.at.in(r), f.all.count, src.row(2 * y - f.ahead) + (2 * first - ahead) * C, src.step,
                         pixels, line);
    };
    columns(low, lowLine), columns(high, highLine);
    const auto rowOf = [&](int band) { return dst[band].row(y) + first * C; };
    decimated<C>(r, low, lowLine, ahead - low.ahead, rowOf(0), n);
    decimated<C>(r, high, lowLine, ahead - high.ahead, rowOf(2), n);
    decimated<C>(r, low, highLine, ahead - low.ahead, rowOf(1), n);
    decimated<C>(r, high, highLine, ahead - high.ahead, rowOf(3), n);
  }
}

// --- Inverse. Of a sequence stretched by two, a result meets only the taps of one parity.

struct Phase {
  const Hux32f* taps;
  int count;
  Index first;  // the first sample that is met, from the one that result 0 is made of
};
Phase phaseOf(const Record* r, const Filter& f, Index result) {
  const int odd = int((result + f.anchor) & 1);
  const Taps& taps = f.parity[odd];
  return {taps.at.in(r), taps.count, (result + f.anchor - odd) / 2 - (taps.count - 1)};
}

// A line of the sum of two sub-bands, filtered down the columns, for the `along` filter to go on with.
template <class L>
void bandsToLine(const Record* r, const Filter& along, Rows<const Hux32f> lowBand, Rows<const Hux32f> highBand,
                 Index result, Index first, Index n, Element<Hux32f>* line) {
  const Index elements = (along.ahead + n + along.behind) * L::channels;
  const auto columns = [&](const Filter& f, Rows<const Hux32f> band, auto put) {
    const Phase phase = phaseOf(r, f, result);
    alongColumns(phase.taps, phase.count, band.row(phase.first) + (first - along.ahead) * L::channels, band.step,
                 elements, put);
  };
  columns(r->low, lowBand, [=](Index i, auto v) { storeAt(line + i, v); });
  columns(r->high, highBand, [=](Index i, auto v) { storeAt(line + i, loadAt(line + i, decltype(v){}) + v); });
}

template <class L>
void inverseStrip(const Record* r, const Rows<const Hux32f> (&src)[4], Rows<Hux32f> dst, Index first, HuxiSize size,
                  Element<Hux32f>* buffer) {
  constexpr int C = L::channels;
  const Index n = size.width;
  Element<Hux32f>* lines[2] = {buffer, advance(buffer, r->lineBytes)};
  const Filter* filters[2] = {&r->low, &r->high};
  Phase phase[2][2];  // by filter and parity of the result
  for (int f = 0; f < 2; ++f)
    for (int odd = 0; odd < 2; ++odd) phase[f][odd] = phaseOf(r, *filters[f], odd);
  for (Index y = 0; y < 2 * Index(size.height); ++y) {
    bandsToLine<L>(r, r->low, src[0], src[1], y, first, n, lines[0]);
    bandsToLine<L>(r, r->high, src[2], src[3], y, first, n, lines[1]);
    auto* to = dst.row(y) + 2 * first * C;
    const auto sumAt = [&](Index i, int odd, auto kind) {
      using T = decltype(kind);
      const auto one = [&](int f) {
        const Phase& p = phase[f][odd];
        return alongLine<T, C>(p.taps, p.count, lines[f] + (filters[f]->ahead + p.first) * C + i);
      };
      const T low = one(0);
      return low + one(1);
    };
    Index i = 0;
    if constexpr (C == 1) {
      for (; i + kLanes <= n; i += kLanes) {
        const V even = sumAt(i, 0, V{}), odd = sumAt(i, 1, V{});
        storeLanes(to + 2 * i, interleaved<0>(even, odd));
        storeLanes(to + 2 * i + kLanes, interleaved<1>(even, odd));
      }
    } else {
      for (; i + kLanes * C <= n * C; i += kLanes * C) {
        Hux32f part[2][kLanes * C];
        for (int odd = 0; odd < 2; ++odd)
          for (int v = 0; v < C; ++v) storeLanes(part[odd] + v * kLanes, sumAt(i + v * kLanes, odd, V{}));
        for (int p = 0; p < kLanes; ++p)
          for (int odd = 0; odd < 2; ++odd)
            std::memcpy(to + 2 * i + (2 * p + odd) * C, part[odd] + p * C, C * sizeof(Hux32f));
      }
    }
    for (; i < n * C; ++i)
      for (int odd = 0; odd < 2; ++odd) to[(2 * (i / C) + odd) * C + i % C] = sumAt(i, odd, Hux32f{});
  }
}

// --- Records.

template <bool Forward>
void lay(Filter& f, Arena& arena, int length, int anchor) {
  f.length = length, f.anchor = anchor;
  if constexpr (Forward) {
    f.ahead = length - anchor - 1, f.behind = std::max(anchor - 1, 0);
    f.all = {arena.take<Hux32f>(length), length};
  } else {
    f.ahead = (length - anchor - 1) / 2, f.behind = (anchor + 1) / 2;
    const int odd = length / 2, even = length - odd;
    f.parity[0] = {arena.take<Hux32f>(even), even};
    f.parity[1] = {arena.take<Hux32f>(odd), odd};
  }
}

template <bool Forward>
void fill(Record* r, const Filter& f, const Hux32f* pTaps) {
  const auto* taps = elements(pTaps);
  for (int m = 0; m < f.length; ++m) {
    const Taps& to = Forward ? f.all : f.parity[m % 2];
    to.at.in(r)[to.count - 1 - (Forward ? m : m / 2)] = taps[m];
  }
}

template <class L, bool Forward>
HuxStatus initAlloc(Record** ppState, const Hux32f* pTapsLow, int lenLow, int anchorLow, const Hux32f* pTapsHigh,
                    int lenHigh, int anchorHigh) {
  if (HuxStatus s =
          check(pointers(ppState, pTapsLow, pTapsHigh), failUnless(lenLow >= 2 && lenHigh >= 2, huxStsBadSize),
                anchorInside(anchorLow, lenLow), anchorInside(anchorHigh, lenHigh)))
    return s;
  Record record{};
  Arena arena(sizeof(Record));
  lay<Forward>(record.low, arena, lenLow, anchorLow);
  lay<Forward>(record.high, arena, lenHigh, anchorHigh);
  const Filter &low = record.low, &high = record.high;
  std::int64_t line[2];
  if constexpr (Forward) {
    line[0] = line[1] = std::int64_t(std::max(low.ahead, high.ahead)) + std::max(low.behind, high.behind) + 2 * kStrip;
  } else {
    line[0] = std::int64_t(low.ahead) + low.behind + kStrip;
    line[1] = std::int64_t(high.ahead) + high.behind + kStrip;
  }
  const auto first = std::int64_t(roundedUp(std::size_t(line[0]) * sizeof(Hux32f), 32)) * L::channels;
  const std::int64_t bytes = first + line[1] * std::int64_t(sizeof(Hux32f)) * L::channels;
  // What is reported must be a signed 32-bit number.
  if (bytes > std::numeric_limits<Hux32s>::max()) return huxStsNoMem;
  record.tag = kTag<L, Forward>;
  record.line[0] = Hux32s(line[0]), record.line[1] = Hux32s(line[1]);
  record.lineBytes = Hux32s(first), record.bufferBytes = Hux32s(bytes);
  return create(ppState, arena.bytes(), [&](Record* made) -> HuxStatus {
    *made = record;
    fill<Forward>(made, made->low, pTapsLow);
    fill<Forward>(made, made->high, pTapsHigh);
    return huxStsOk;
  });
}

// A record of the kind whose filters are there.
template <class L, bool Forward>
auto stateOf(const Record* r) {
  return [=]() -> HuxStatus {
    if (HuxStatus s = check(recordOf(r, kTag<L, Forward>))) return s;
    const auto holds = [](const Filter& f) {
      return f.length >= 2 && f.anchor >= 0 && f.anchor < f.length && f.ahead >= 0 && f.behind >= 0 &&
             (Forward ? bool(f.all.at) : f.parity[0].at && f.parity[1].at);
    };
    return failUnless(holds(r->low) && holds(r->high) && r->line[0] > 0 && r->line[1] > 0, huxStsBadContext);
  };
}

template <class L, bool Forward>
HuxStatus freeState(Record* pState) {
  if (HuxStatus s = check(pointers(pState), stateOf<L, Forward>(pState))) return s;
  retire(pState, true);
  return huxStsOk;
}

template <class L, bool Forward>
HuxStatus getBufSize(const Record* pState, int* pSize) {
  if (HuxStatus s = check(pointers(pState), stateOf<L, Forward>(pState), pointers(pSize))) return s;
  *elements(pSize) = pState->bufferBytes;
  return huxStsOk;
}

template <class L>
HuxStatus forward(const Hux32f* pSrc, int srcStep, Hux32f* const (&pDst)[4], const int (&step)[4], HuxiSize roi,
                  const Record* pState, Hux8u* pBuffer) {
  if (HuxStatus s =
          check(pointers(pState), stateOf<L, true>(pState), pointers(pBuffer, pSrc, pDst[0], pDst[1], pDst[2], pDst[3]),
                size(roi), steps(srcStep, step[0], step[1], step[2], step[3])))
    return s;
  const Rows<Hux32f> bands[4] = {rows<L>(pDst[0], step[0]), rows<L>(pDst[1], step[1]), rows<L>(pDst[2], step[2]),
                                 rows<L>(pDst[3], step[3])};
  forPieces(roi.width, kStrip, [&](Index first, Index n) {
    forwardStrip<L>(pState, rows<L>(pSrc, srcStep), bands, first, {int(n), roi.height}, elementsAs<Hux32f>(pBuffer));
  });
  return huxStsOk;
}

template <class L>
HuxStatus inverse(const Hux32f* const (&pSrc)[4], const int (&step)[4], HuxiSize roi, Hux32f* pDst, int dstStep,
                  const Record* pState, Hux8u* pBuffer) {
  if (HuxStatus s = check(pointers(pState, pBuffer), stateOf<L, false>(pState),
                          pointers(pSrc[0], pSrc[1], pSrc[2], pSrc[3], pDst), size(roi),
                          steps(step[0], step[1], step[2], step[3], dstStep)))
    return s;
  const Rows<const Hux32f> bands[4] = {rows<L>(pSrc[0], step[0]), rows<L>(pSrc[1], step[1]), rows<L>(pSrc[2], step[2]),
                                       rows<L>(pSrc[3], step[3])};
  forPieces(roi.width, kStrip, [&](Index first, Index n) {
    inverseStrip<L>(pState, bands, rows<L>(pDst, dstStep), first, {int(n), roi.height}, elementsAs<Hux32f>(pBuffer));
  });
  return huxStsOk;
}

}  // namespace
}  // namespace hux

#define EXPORT_WAY(name, forward, l)                                                                                  \
  HuxStatus huxiWT##name##InitAlloc_32f_##l##R(HuxiWTRecord** ppState, const Hux32f* pTapsLow, int lenLow,            \
                                               int anchorLow, const Hux32f* pTapsHigh, int lenHigh, int anchorHigh) { \
    return hux::initAlloc<hux::l, forward>(ppState, pTapsLow, lenLow, anchorLow, pTapsHigh, lenHigh, anchorHigh);     \
  }                                                                                                                   \
  HuxStatus huxiWT##name##Free_32f_##l##R(HuxiWTRecord* pState) { return hux::freeState<hux::l, forward>(pState); }   \
  HuxStatus huxiWT##name##GetBufSize_##l##R(const HuxiWTRecord* pState, int* pSize) {                                 \
    return hux::getBufSize<hux::l, forward>(pState, pSize);                                                           \
  }
#define EXPORT(_, l)                                                                                                   \
  EXPORT_WAY(Fwd, true, l)                                                                                             \
  EXPORT_WAY(Inv, false, l)                                                                                            \
  HuxStatus huxiWTFwd_32f_##l##R(const Hux32f* pSrc, int srcStep, Hux32f* pApproxDst, int approxStep,                  \
                                 Hux32f* pDetailXDst, int detailXStep, Hux32f* pDetailYDst, int detailYStep,           \
                                 Hux32f* pDetailXYDst, int detailXYStep, HuxiSize dstRoiSize,                          \
                                 const HuxiWTRecord* pState, Hux8u* pBuffer) {                                         \
    return hux::forward<hux::l>(pSrc, srcStep, {pApproxDst, pDetailXDst, pDetailYDst, pDetailXYDst},                   \
                                {approxStep, detailXStep, detailYStep, detailXYStep}, dstRoiSize, pState, pBuffer);    \
  }                                                                                                                    \
  HuxStatus huxiWTInv_32f_##l##R(const Hux32f* pApproxSrc, int approxStep, const Hux32f* pDetailXSrc, int detailXStep, \
                                 const Hux32f* pDetailYSrc, int detailYStep, const Hux32f* pDetailXYSrc,               \
                                 int detailXYStep, HuxiSize srcRoiSize, Hux32f* pDst, int dstStep,                     \
                                 const HuxiWTRecord* pState, Hux8u* pBuffer) {                                         \
    return hux::inverse<hux::l>({pApproxSrc, pDetailXSrc, pDetailYSrc, pDetailXYSrc},                                  \
                                {approxStep, detailXStep, detailYStep, detailXYStep}, srcRoiSize, pDst, dstStep,       \
                                pState, pBuffer);                                                                      \
  }
HUX_STAMP(EXPORT, (_), (C1, C3))
