// Counting pixels between levels.
//
// There are several ways to count, which come to the same numbers. They differ in what they cost, and two choices show:
// only the table of all values of 16 bits takes memory, and only the count of every interval puts a NaN anywhere.
#pragma once

#include <algorithm>
#include <array>
#include <iterator>
#include <limits>

#include "core/rows.h"
#include "core/scratch.h"
#include "lanes/lanes_math.h"
#include "workers/channels.h"
#include "workers/segments.h"

namespace hux {

template <class T>
using LevelOf = std::conditional_t<std::is_floating_point_v<T>, Hux32f, Hux32s>;

// The bins of one channel: counters of 32 bits, that wrap.
template <class T>
struct Histogram {
  Levels<LevelOf<T>> levels;
  Element<Hux32s>* counts;

  int bins() const { return levels.segments(); }
  void clear() const { std::fill_n(counts, bins(), Element<Hux32s>{0}); }
  void add(int bin, Hux32u count = 1) const { counts[bin] = Hux32s(Hux32u(counts[bin]) + count); }
};
template <class L, class T>
using Histograms = std::array<Histogram<T>, L::processed>;

// How many of up to 65536 elements pass a test of lanes.
template <class T, class Test>
Hux32u countWhere(const Element<T>* elements, Index n, Test test) {
  constexpr int lanes = laneCount<T>;
  using V = Lanes<T, lanes>;
  using U = Lanes<Word<T>, lanes>;
  U counts{};
  Index i = 0;
  for (; i + lanes <= n; i += lanes) counts -= U(test(loadLanes<V>(elements + i)));
  if (i < n) {
    Lanes<Word<T>, lanes> rest = U(test(loadLanes<V>(elements + i, int(n - i), T(0))));
    for (int l = int(n - i); l < lanes; ++l) rest[l] = 0;
    counts -= rest;
  }
  Hux32u sum = 0;
  for (int l = 0; l < lanes; ++l) sum += counts[l];
  return sum;
}

// Every interval by itself: what levels mean when they do not ascend. The tests are written so that a NaN passes all.
template <class T>
void ownvi_Histogram_BH(const Element<T>* elements, Index n, Histogram<T> histogram) {
  for (int k = 0; k < histogram.bins(); ++k) {
    const T low = histogram.levels[k], high = histogram.levels[k + 1];
    histogram.add(k, countWhere(elements, n, [=](auto v) { return ~(low > v) & ~(v >= high); }));
  }
}

// Integers: an interval is counted as the elements from its lower end on, less those from its upper end on.
template <class T>
Hux32u countFrom(const Element<T>* elements, Index n, Hux32s level) {
  using Limits = std::numeric_limits<T>;
  if (level <= Limits::min()) return Hux32u(n);
  if (level > Limits::max()) return 0;
  return countWhere(elements, n, [low = T(level)](auto v) { return v >= low; });
}
template <class T>
void countIntervals(const Element<T>* elements, Index n, Histogram<T> histogram) {
  Hux32s low = histogram.levels[0];
  Hux32u from = countFrom(elements, n, low);
  for (int k = 0; k < histogram.bins(); ++k) {
    const Hux32s high = histogram.levels[k + 1];
    const Hux32u beyond = high == low ? from : countFrom(elements, n, high);
    if (low < high) histogram.add(k, from - beyond);
    low = high, from = beyond;
  }
}

// By search, for levels that strictly ascend. NaN among them is no fault, and then each step counts.
template <class T>
void ownvi_Histogram_BS(const Element<T>* elements, Index n, Histogram<T> histogram) {
  const auto levels = histogram.levels;
  const auto first = levels[0], last = levels.last();
  const auto isInside = [=](T p) { return p >= first && !(p >= last); };
  if constexpr (std::is_integral_v<T>) {
    Hux32s bins[kChannelBlock];
    levels.byHalves(elements, n, bins);
    for (Index i = 0; i < n; ++i)
      if (isInside(elements[i])) histogram.add(bins[i]);
  } else {
    for (Index i = 0; i < n; ++i)
      if (const T p = elements[i]; isInside(p)) histogram.add(levels.byHalves(p));
  }
}

// By a scan from the first level on. With a NaN among the levels it stops at the last bin.
inline void ownvi_Histogram_FS(const Element<Hux32f>* elements, Index n, Histogram<Hux32f> histogram) {
  const auto levels = histogram.levels;
  for (Index i = 0; i < n; ++i) {
    const Hux32f p = elements[i];
    if (!(p >= levels[0]) || p >= levels.last()) continue;
    int k = 0;
    while (k + 1 < histogram.bins() && !(p < levels[k + 1])) ++k;
    histogram.add(k);
  }
}

// Floats whose levels all lie above one another, by either search.
inline void countSegments(const Element<Hux32f>* elements, Index n, Histogram<Hux32f> histogram,
                          const Segments& segments) {
  Hux32s bins[kChannelBlock];
  segments.find(elements, n, bins);
  for (Index i = 0; i < n; ++i)
    if (const Hux32f p = elements[i]; bins[i] != Segments::kNone && p == p) histogram.add(bins[i]);
}

// The full table: a counter for each value of T, and from those the bins.
template <class T>
constexpr int kValues = 1 << 8 * sizeof(T);
template <class T>
constexpr Hux32s kLowest = std::numeric_limits<T>::min();

template <class T>
void ownvi_HistogramRecalc(const Hux32u* table, Histogram<T> histogram) {
  const auto indexOf = [](Hux32s level) { return std::clamp(level, kLowest<T>, kLowest<T> + kValues<T>) - kLowest<T>; };
  for (int k = 0; k < histogram.bins(); ++k) {
    Hux32u sum = 0;
    for (int v = indexOf(histogram.levels[k]); v < indexOf(histogram.levels[k + 1]); ++v) sum += table[v];
    histogram.counts[k] = Hux32s(sum);
  }
}

// Bytes: neighbours are counted in tables of their own, since equal ones would wait for each other.
template <class L, class T>
requires(sizeof(T) == 1) HuxStatus
    ownvi_Histogram(const Rows<const T>& src, HuxiSize roi, const Histograms<L, T>& histograms) {
  constexpr int ways = 4;
  Hux32u tables[L::processed][ways][kValues<Hux8u>] = {};
  forEachRow(roi, src, [&](auto* row, Index n) {
    Index i = 0;
    for (; i + ways <= n; i += ways)
      for (int w = 0; w < ways; ++w)
        for (int c = 0; c < L::processed; ++c) ++tables[c][w][row[(i + w) * L::channels + c]];
    for (; i < n; ++i)
      for (int c = 0; c < L::processed; ++c) ++tables[c][0][row[i * L::channels + c]];
  });
  for (int c = 0; c < L::processed; ++c) {
    for (int w = 1; w < ways; ++w)
      for (int v = 0; v < kValues<Hux8u>; ++v) tables[c][0][v] += tables[c][w][v];
    ownvi_HistogramRecalc(tables[c][0], histograms[c]);
  }
  return huxStsOk;
}
template <class L, class T>
requires(sizeof(T) == 2) HuxStatus
    ownvi_Histogram(const Rows<const T>& src, HuxiSize roi, const Histograms<L, T>& histograms) {
  const Scratch<Hux32u> tables(Index(L::processed) * kValues<T>);
  if (!tables) return huxStsNoMem;
  std::fill_n(tables.get(), Index(L::processed) * kValues<T>, 0);
  forEachRow(roi, src, [&](auto* row, Index n) {
    for (Index i = 0; i < n; ++i)
      for (int c = 0; c < L::processed; ++c) ++tables[Index(c) * kValues<T> + row[i * L::channels + c] - kLowest<T>];
  });
  for (int c = 0; c < L::processed; ++c) ownvi_HistogramRecalc(&tables[Index(c) * kValues<T>], histograms[c]);
  return huxStsOk;
}

// When the table pays on 16-bit pixels: from so many pixels on, where there are more levels than this.
struct Bound {
  int pixels, levels;
};
inline constexpr Bound kAscendingC1[] = {{12544, 214}, {16384, 74}, {20736, 38}, {25600, 34}, {30976, 22},
                                         {43264, 18},  {50176, 14}, {65536, 3},  {123904, 2}};
inline constexpr Bound kAscendingC3[] = {{12544, 262}, {16384, 126}, {20736, 62}, {25600, 46}, {30976, 34},
                                         {36864, 30},  {43264, 22},  {50176, 18}, {73984, 14}, {135424, 10}};
inline constexpr Bound kAscendingC4[] = {{12544, 190}, {16384, 102}, {20736, 62}, {25600, 46}, {30976, 38},
                                         {36864, 34},  {43264, 22},  {50176, 18}, {173056, 14}};
inline constexpr Bound kOtherC1[] = {{1024, 442}, {2304, 202}, {4096, 114}, {6400, 74},  {9216, 54},  {12544, 42},
                                     {16384, 30}, {20736, 22}, {30976, 18}, {36864, 14}, {50176, 10}, {82944, 6}};
inline constexpr Bound kOtherC3[] = {{1024, 406}, {2304, 194}, {4096, 110}, {6400, 74},  {9216, 54},  {12544, 42},
                                     {16384, 34}, {20736, 26}, {25600, 22}, {36864, 18}, {57600, 14}, {92416, 10}};
inline constexpr Bound kOtherC4[] = {{1024, 358}, {2304, 162}, {4096, 98},  {6400, 66},  {9216, 50},  {12544, 38},
                                     {16384, 30}, {20736, 26}, {25600, 22}, {36864, 18}, {57600, 14}, {160000, 10}};

template <std::size_t N>
bool exceeds(const Bound (&bounds)[N], std::int64_t levels, std::int64_t pixels) {
  const auto above = std::find_if(std::begin(bounds), std::end(bounds), [=](Bound b) { return b.pixels > pixels; });
  return above != std::begin(bounds) && levels > std::prev(above)->levels;
}
template <class L>
bool tablePays(bool ascending, std::int64_t levels, HuxiSize roi) {
  const std::int64_t pixels = std::int64_t(roi.width) * roi.height;
  if constexpr (L::channels == 1)
    return ascending ? exceeds(kAscendingC1, levels, pixels) : exceeds(kOtherC1, levels, pixels);
  else if constexpr (L::processed == 3)
    return ascending ? exceeds(kAscendingC3, levels, pixels) : exceeds(kOtherC3, levels, pixels);
  else
    return ascending ? exceeds(kAscendingC4, levels, pixels) : exceeds(kOtherC4, levels, pixels);
}

// The mean number of levels of the channels. Of three it is a product with 21845 / 65536, which falls short, and on
// 16-bit pixels it is kept in 16 bits.
template <class L, class T>
std::int64_t meanLevels(const Histograms<L, T>& histograms) {
  std::int64_t sum = 0;
  for (const auto& histogram : histograms) sum += histogram.levels.count;
  if constexpr (L::processed == 3)
    return sizeof(T) == 2 ? Hux16u((21845 * sum) >> 16) : (21845 * sum) >> 16;
  else
    return L::processed == 4 ? sum >> 2 : sum;
}

template <class L, class T, class Count>
void countChannels(const Rows<const T>& src, HuxiSize roi, Count count) {
  forEachRow(roi, src, [&](auto* row, Index n) { forChannels<L, T>(row, n, count); });
}

// Integers without a table. Few levels are compared with all pixels, a vector at a time.
template <class L, class T>
void countWithoutTable(const Rows<const T>& src, HuxiSize roi, const Histograms<L, T>& histograms) {
  constexpr int kFew = 80;
  bool search[L::processed];
  for (int c = 0; c < L::processed; ++c)
    search[c] = histograms[c].levels.count > kFew && histograms[c].levels.regular();
  countChannels<L>(src, roi, [&](int c, const Element<T>* elements, Index n) {
    if (search[c])
      ownvi_Histogram_BS(elements, n, histograms[c]);
    else
      countIntervals(elements, n, histograms[c]);
  });
}

template <class L, class T>
HuxStatus count(const Rows<const T>& src, HuxiSize roi, const Histograms<L, T>& histograms) {
  for (const auto& histogram : histograms) histogram.clear();
  if constexpr (sizeof(T) == 1) {
    return ownvi_Histogram<L>(src, roi, histograms);
  } else {
    bool ascending = true;
    for (const auto& histogram : histograms) ascending &= histogram.levels.ascend();
    const std::int64_t levels = meanLevels<L, T>(histograms);
    if constexpr (sizeof(T) == 2) {
      if (tablePays<L>(ascending, levels, roi)) return ownvi_Histogram<L>(src, roi, histograms);
      countWithoutTable<L>(src, roi, histograms);
    } else if (!ascending) {
      countChannels<L>(src, roi, [&](int c, const auto* p, Index n) { ownvi_Histogram_BH(p, n, histograms[c]); });
    } else {
      Segments segments[L::processed];
      for (int c = 0; c < L::processed; ++c) segments[c] = Segments(histograms[c].levels);
      countChannels<L>(src, roi, [&](int c, const auto* p, Index n) {
        const auto& histogram = histograms[c];
        if (segments[c].regular())
          countSegments(p, n, histogram, segments[c]);
        else if (levels > 30)
          ownvi_Histogram_BS(p, n, histogram);
        else
          ownvi_Histogram_FS(p, n, histogram);
      });
    }
    return huxStsOk;
  }
}

// Pixels in equal steps: the bin is a quotient. All quantities are small enough that a float, half a unit above the
// whole one, does not miss it.
inline bool stepsAreSmall(Levels<Hux32s> levels) {
  return levels.regular() && levels[0] >= -(1 << 17) && levels.last() <= 1 << 17;
}
template <class T>
struct Quotients {
  static constexpr int lanes = laneCount<Hux32s>;
  Hux32s lower, upper;
  Hux32f perStep;
  Lanes<Hux32s, lanes> operator()(Lanes<T, lanes> p) const {
    const auto v = convert<Hux32s>(p);
    return convert<Hux32s>((convert<Hux32f>(v - lower) + 0.5f) * perStep) | (v < lower) | (v >= upper);
  }
};
template <class T>
void countEven(const Element<T>* elements, Index n, Histogram<T> histogram) {
  const auto levels = histogram.levels;
  Hux32s bins[kChannelBlock];  // negative where there is none
  mapRow<C1>(elements, hux::elements(bins), n,
             Quotients<T>{levels[0], levels.last(), 1.0f / Hux32f(levels[1] - levels[0])});
  for (Index i = 0; i < n; ++i)
    if (bins[i] >= 0) histogram.add(bins[i]);
}

}  // namespace hux
