// What the families of extrema share: an image is reduced batch by batch, and a batch whose total tells too little is
// gone through again.
#pragma once

#include <algorithm>

#include "core/rows.h"
#include "huxi_stats.h"
#include "workers/reduce.h"

namespace hux {

// Calls take(totals, again) with the channels' totals of each batch of so many pixels, rows joined, until it returns
// true. again(look) calls look(pixels, n, i) for the rows, or parts of rows, of the batch, i being the number of their
// first pixel in the region, until it returns true.
template <class L, class Fold, class T, class Take>
void reduceInBatches(const Rows<const T>& src, HuxiSize roi, Index pixels, Take take) {
  const Index width = roi.width, all = width * roi.height;
  const Index length = src.contiguous(width) ? all : width;
  Index first = 0;
  reduce<L, Fold>(
      roi, {pixels, true},
      [&](const auto& totals) {
        const Index end = std::min(first + pixels, all);
        const auto again = [&](auto look) {
          for (Index i = first, n; i < end; i += n) {
            const Index x = i % length;
            n = std::min(length - x, end - i);
            if (look(src.row(i / length) + x * L::channels, n, i)) return;
          }
        };
        const bool done = take(totals, again);
        first = end;
        return done;
      },
      src);
}

}  // namespace hux
