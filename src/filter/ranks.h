// Medians of windows of any size, from counts of the values in the window. Values are taken four bits at a time: how
// many lie at or below each of sixteen classes stands in one vector, so that counting a value is one addition of a
// vector, and finding a class one comparison.
#pragma once

#include <algorithm>
#include <array>
#include <limits>

#include "core/window.h"
#include "lanes/lanes_count.h"
#include "workers/move.h"

namespace hux {

// One value of a class in sixteen cumulative counts.
template <class Count>
inline constexpr auto kSteps = [] {
  std::array<Count, 32> steps{};
  for (std::size_t k = 16; k < 32; ++k) steps[k] = 1;
  return steps;
}();
template <class Count>
Lanes<Count, 16> stepOf(unsigned valueClass) {
  return loadLanes<Lanes<Count, 16>>(&kSteps<Count>[16 - valueClass]);
}

// The class that holds the element of rank `rank`, counted from 1. What lies in the classes below leaves the rank.
template <class Count>
unsigned classOf(Lanes<Count, 16> counts, Count& rank) {
  Count below[17] = {0};
  storeLanes(below + 1, counts);
  const unsigned valueClass = unsigned(lanesThatHold(counts < rank));
  rank = Count(rank - below[valueClass]);
  return valueClass;
}

// The values of a window, counted in Count: classes of their highest four bits, below each of these classes of the next
// four, and so on.
template <class T, class Count>
class Ranks {
 public:
  using Key = std::make_unsigned_t<T>;
  static constexpr int levels = int(sizeof(T)) * 2;
  static constexpr Index counts = sizeof(T) == 1 ? 16 + 256 : 16 + 256 + 4096 + 65536;

  explicit Ranks(Count* memory) : counts_(memory) { std::fill_n(counts_, counts, 0); }

  void add(T value) {
    forNodes(value, [](Lanes<Count, 16> node, auto step) { return node + step; });
  }
  void remove(T value) {
    forNodes(value, [](Lanes<Count, 16> node, auto step) { return node - step; });
  }
  T element(Count rank) const {
    unsigned key = 0;
    const Count* level = counts_;
    for (int l = 0; l < levels; ++l) {
      key = key * 16 + classOf(loadLanes<Lanes<Count, 16>>(level + key * 16), rank);
      level += Index(1) << 4 * (l + 1);
    }
    return T(key ^ kFlip);
  }

 private:
  static constexpr unsigned kFlip = std::is_signed_v<T> ? 0x8000 : 0;  // signed values in the order of unsigned ones

  template <class Move>
  void forNodes(T value, Move move) {
    const unsigned key = Key(value) ^ kFlip;
    Count* level = counts_;
    for (int l = 0; l < levels; ++l) {
      const unsigned digits = key >> 4 * (levels - 1 - l);
      Count* node = level + digits / 16 * 16;
      storeLanes(node, move(loadLanes<Lanes<Count, 16>>(node), stepOf<Count>(digits % 16)));
      level += Index(1) << 4 * (l + 1);
    }
  }

  Count* counts_;
};

// Slides the window over one channel, to the right and to the left in turn, so that it is counted from nothing only
// once.
template <class L, class T, class Count>
void slideWindow(Ranks<T, Count>& ranks, WindowRows<T> src, Rows<T> dst, HuxiSize roi, HuxiSize mask) {
  const auto rank = Count(area(mask) / 2 + 1);
  const auto rowOf = [&](Index y, Index x, auto change) {
    const auto* p = src.row(y).first + x * L::channels;
    for (Index i = 0; i < mask.width; ++i) change(T(p[i * L::channels]));
  };
  const auto columnOf = [&](Index y, Index x, auto change) {
    const Window<T> window = src.row(y);
    for (Index j = 0; j < mask.height; ++j) change(T(window[j][x * L::channels]));
  };
  const auto add = [&](T value) { ranks.add(value); };
  const auto remove = [&](T value) { ranks.remove(value); };
  Index x = 0;
  for (Index j = 0; j < mask.height; ++j) rowOf(j, x, add);
  for (Index y = 0; y < roi.height; ++y) {
    if (y > 0) rowOf(y - 1, x, remove), rowOf(y + mask.height - 1, x, add);
    const Index move = x == 0 ? 1 : -1;
    for (Index i = 0;; x += move) {
      dst.row(y)[x * L::channels] = ranks.element(rank);
      if (++i == roi.width) break;
      columnOf(y, move > 0 ? x : x + mask.width - 1, remove);
      columnOf(y, move > 0 ? x + mask.width : x - 1, add);
    }
  }
  for (Index j = 0; j < mask.height; ++j) rowOf(roi.height - 1 + j, x, remove);
}

// Whether the pixels of a window can be counted in 16 bits.
constexpr bool countsInSixteenBits(HuxiSize mask) { return area(mask) <= std::numeric_limits<Hux16s>::max(); }

// Bytes in windows of moderate size: each column of pixels keeps its counts, one byte each, from row to row, and the
// window adds a column and takes one away. Of the lower classes it counts only those in which a median lies, and keeps
// them for the next windows.
class ColumnRanks {
 public:
  static constexpr Index kColumns = 192;
  static bool serve(HuxiSize mask) {
    return mask.height <= std::numeric_limits<Hux8u>::max() && mask.width <= kColumns / 2 && countsInSixteenBits(mask);
  }

  // One channel.
  template <class L>
  void run(WindowRows<Hux8u> src, Rows<Hux8u> dst, HuxiSize roi, HuxiSize mask) {
    const Index strip = kColumns - (mask.width - 1);
    for (Index from = 0; from < roi.width; from += strip) {
      const Index n = std::min(strip, roi.width - from), columns = n + mask.width - 1;
      const auto rowAt = [&](Index y) { return src.row(y).first + from * L::channels; };
      std::fill_n(high_, columns + 1, Counts{});
      for (auto& low : low_) std::fill_n(low, columns + 1, Counts{});
      for (Index j = 0; j < mask.height; ++j)
        for (Index x = 0; x < columns; ++x) add(x, rowAt(j)[x * L::channels]);
      for (Index y = 0; y < roi.height; ++y) {
        if (y > 0) {
          const auto *leaving = rowAt(y - 1), *entering = rowAt(y + mask.height - 1);
          for (Index x = 0; x < columns; ++x) replace(x, leaving[x * L::channels], entering[x * L::channels]);
        }
        slide<L>(dst.row(y) + from * L::channels, n, mask);
      }
    }
  }

 private:
  using Counts = Lanes<Hux8u, 16>;
  using Sums = Lanes<Hux16s, 16>;
  static Sums wide(Counts counts) { return convert<Hux16s>(counts); }

  void add(Index x, unsigned value) {
    high_[x] += stepOf<Hux8u>(value / 16);
    low_[value / 16][x] += stepOf<Hux8u>(value % 16);
  }
  void replace(Index x, unsigned old, unsigned value) {
    high_[x] += stepOf<Hux8u>(value / 16) - stepOf<Hux8u>(old / 16);
    low_[old / 16][x] -= stepOf<Hux8u>(old % 16);
    low_[value / 16][x] += stepOf<Hux8u>(value % 16);
  }

  template <class L>
  void slide(Element<Hux8u>* dst, Index n, HuxiSize mask) {
    const Index width = mask.width;
    Sums high{}, low[16];
    std::array<Index, 16> at;  // the window that a class was counted in last
    at.fill(-width);
    for (Index k = 0; k < width; ++k) high += wide(high_[k]);
    for (Index x = 0; x < n; ++x) {
      auto rank = Hux16s(area(mask) / 2 + 1);
      const unsigned upper = classOf(high, rank);
      high += wide(high_[x + width]) - wide(high_[x]);
      const Counts* columns = low_[upper];
      Sums sums = low[upper];
      if (const Index last = at[upper]; 2 * (x - last) < width) {
        for (Index k = last; k < x; ++k) sums += wide(columns[k + width]) - wide(columns[k]);
      } else {
        sums = Sums{};
        for (Index k = x; k < x + width; ++k) sums += wide(columns[k]);
      }
      low[upper] = sums;
      at[upper] = x;
      dst[x * L::channels] = Hux8u(upper * 16 + classOf(sums, rank));
    }
  }

  Counts high_[kColumns + 1], low_[16][kColumns + 1];
};

}  // namespace hux
