// Sums of 5 by 5 windows of floats, which run along the rows and down the columns in a told order of additions: an
// infinity or a NaN stays in the sums of the rest of its row, and of all rows below.
#pragma once

#include <cstring>

#include "core/scratch.h"
#include "filter/fixed.h"
#include "filter/vector_rows.h"
#include "workers/running.h"

namespace hux {

// Gives rule(sum, pixel) for each pixel of the region and the sum of the window around it.
template <class L, class Rule>
HuxStatus runningSums5x5(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roi, Rule rule) {
  using V = Lanes<Hux32f, laneCount<Hux32f>>;
  constexpr int N = L::channels;
  constexpr Index reach = 4 * N, piece = kOrderedPiece<N>, atOnce = kRowsInOrder<N>;
  const Index n = Index(roi.width) * N - (N - L::processed);
  const Index line = (n + piece - 1) / piece * piece;
  // The sums along the five source rows before, row r at r modulo 5, and of those rows the totals.
  const Scratch<Hux32f> memory(6 * line);
  if (!memory) return huxStsNoMem;
  Hux32f* const totals = memory.get() + 5 * line;

  const auto src = rows<L>(pSrc, srcStep);
  const auto dst = rows<L>(pDst, dstStep);
  const auto window = windowRows<L>(pSrc, srcStep, centred(5)).top;
  alignas(64) Hux32f room[orderedRoom<N>(5)];
  const Index sourceRows = Index(roi.height) + 4;  // source row r is the lowest of the window of row r - 4
  for (Index row = 0; row < sourceRows; row += atOnce) {
    const Index count = std::min<Index>(atOnce, sourceRows - row);
    const auto make = [&](Index j, int elements, OrderedLines<N>& lines) {
      for (Index k = 0; k < atOnce; ++k) {
        const Element<Hux32f>* const from = window[row + std::min(k, count - 1)] + j;
        fetchPiece(from + piece, piece);
        if (elements == piece)
          std::memcpy(lines[k], from, piece * sizeof(Hux32f));
        else
          std::memcpy(lines[k], from, std::size_t(elements) * sizeof(Hux32f));
      }
    };
    const auto take = [&](Index x, int elements, OrderedLines<N>& lines) {
      for (Index r = std::max<Index>(row, 4); r < row + count; ++r) fetchPiece(dst.row(r - 4) + x + elements, piece);
      const auto before = [&](Index r) { return memory.get() + r % 5 * line + x; };
      for (int i = 0; i < elements; i += lanesIn<V>) {
        V total = loadLanes<V>(totals + x + i);
        for (Index k = 0; k < count; ++k) {
          const Index r = row + k;
          total = total - loadLanes<V>((k < 5 ? before(r) : lines[k - 5]) + i);
          if (r < 4) continue;
          if (r == 4) {
            total = loadLanes<V>(lines[0] + i);
            for (Index j = 1; j < 4; ++j) total = total + loadLanes<V>(lines[j] + i);
          }
          total = total + loadLanes<V>(lines[k] + i);
          const Element<Hux32f>* const pixels = src.row(r - 4) + x + i;
          const V centre = elements - i < lanesIn<V> ? loadLanes<V>(pixels, elements - i, 0) : loadLanes<V>(pixels);
          storePixels<StoreOf<L>>(dst.row(r - 4) + x, i, rule(total, centre), elements);
        }
        storeLanes(totals + x + i, total);
        for (Index k = std::max<Index>(count - 5, 0); k < count; ++k)
          storeLanes(before(row + k) + i, loadLanes<V>(lines[k] + i));
      }
    };
    // The sum of a row is left without its first pixel before it takes the next.
    windowSumsInOrder<N>(
        room, n + reach, 5, [](V sum, V entering, V leaving) { return sum - leaving + entering; }, make, take);
  }
  return huxStsOk;
}

// A filter of floats whose 5 by 5 form is such a rule.
template <class L, class Filter3x3, class Rule5x5>
HuxStatus runningFilter(const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roi, HuxiMaskSize mask) {
  if (mask != huxMskSize5x5)
    return runFixed<L>(pSrc, srcStep, pDst, dstStep, roi,
                       mask == huxMskSize3x3 ? &passesOf<Filter3x3, Hux32f, Hux32f> : nullptr);
  if (HuxStatus s = check(pointers(pSrc, pDst), size(roi), steps(srcStep, dstStep))) return s;
  return runningSums5x5<L>(pSrc, wholeElements<Hux32f>(srcStep), pDst, wholeElements<Hux32f>(dstStep), roi, Rule5x5());
}

}  // namespace hux
