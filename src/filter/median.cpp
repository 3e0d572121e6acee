// FilterMedian: the median of each channel over a rectangle of odd sides.
#include "core/scratch.h"
#include "core/stamp.h"
#include "filter/medians.h"
#include "filter/ranks.h"
#include "huxi_filter.h"
#include "workers/delegate.h"

namespace hux {
namespace {

// A row of square windows of `side` pixels, from sorted columns: each is sorted once for all windows that it takes part
// in. Strips of columns stay in the nearest cache.
template <int side, class Store, class T>
void ownhuxiFilterMedianSqr(Window<T> window, Index neighbour, Element<T>* dst, Index elements) {
  constexpr int lanes = laneCount<T>;
  constexpr Index strip = 1024 / sizeof(T);
  using V = Lanes<T, lanes>;
  constexpr Index step = (strip + kWidestMargin + 2 * lanes - 1) / lanes * lanes;
  alignas(64) T sorted[side][step];
  const auto sortColumns = [sorted = &sorted](const auto& rows, Index i) {
    Sorted<V, side> column;
    unrolled<side>([&](auto j) HUX_INLINE { column[j] = loadLanes<V>(rows[j] + i); });
    if constexpr (side == 3)
      ownsort3(column[0], column[1], column[2]);
    else
      ownsort5(column[0], column[1], column[2], column[3], column[4]);
    unrolled<side>([&](auto j) HUX_INLINE { storeLanes((*sorted)[j] + i, column[j]); });
  };
  const auto columnAt = [sorted = &sorted](Index i) {
    Sorted<V, side> column;
    unrolled<side>([&](auto j) HUX_INLINE { column[j] = loadLanes<V>((*sorted)[j] + i); });
    return column;
  };
  const auto median = [=](Index i) {
    const auto at = [=](Index k) { return columnAt(i + k * neighbour); };
    if constexpr (side == 3)
      return ownmed9(at(0), at(1), at(2));
    else
      return ownmed25(at(0), at(1), at(2), at(3), at(4));
  };
  for (Index from = 0; from < elements; from += strip) {
    const Index count = std::min<Index>(strip, elements - from);
    const Window<T> below = {window.first + from, window.step};
    alongRows<V>(sourceRows<side>(below, 0), count + (side - 1) * neighbour, sortColumns);
    coverRow<lanes>(count, [=](Index i) { storePixels<Store>(dst + from, i, median(i), count); });
  }
}

// Elements of a region and its windows that begin a channel.
template <class L, class T, class Body>
void forEachChannel(const T* pSrc, int srcStep, T* pDst, int dstStep, Reach reach, Body body) {
  for (int c = 0; c < L::processed; ++c)
    body(windowRows<L>(advance(pSrc, c * Index(sizeof(T))), srcStep, reach),
         rows<L>(advance(pDst, c * Index(sizeof(T))), dstStep));
}

template <class L>
HuxStatus ownhuxiFilterMedianCom(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roi, HuxiSize mask,
                                 Reach reach) {
  if (ColumnRanks::serve(mask)) {
    ColumnRanks columns;
    forEachChannel<L>(pSrc, srcStep, pDst, dstStep, reach,
                      [&](auto src, auto dst) { columns.run<L>(src, dst, roi, mask); });
  } else {
    Hux32s counts[Ranks<Hux8u, Hux32s>::counts];
    Ranks<Hux8u, Hux32s> ranks(counts);
    forEachChannel<L>(pSrc, srcStep, pDst, dstStep, reach,
                      [&](auto src, auto dst) { slideWindow<L>(ranks, src, dst, roi, mask); });
  }
  return huxStsOk;
}

template <class L>
HuxStatus ownhuxiFilterMedianCom(const Hux16s* pSrc, int srcStep, Hux16s* pDst, int dstStep, HuxiSize roi,
                                 HuxiSize mask, Reach reach) {
  const auto countIn = [&](auto zero) {
    using Count = decltype(zero);
    const Scratch<Count> counts(Ranks<Hux16s, Count>::counts);
    if (!counts) return huxStsNoMem;
    Ranks<Hux16s, Count> ranks(counts.get());
    forEachChannel<L>(pSrc, srcStep, pDst, dstStep, reach,
                      [&](auto src, auto dst) { slideWindow<L>(ranks, src, dst, roi, mask); });
    return huxStsOk;
  };
  return countsInSixteenBits(mask) ? countIn(Hux16s()) : countIn(Hux32s());
}

// Both sides must be odd: the lowest bit of both is set.
constexpr HuxStatus oddMask(HuxiSize mask) {
  return failUnless(mask.width > 0 && mask.height > 0 && (mask.width & mask.height & 1), huxStsBadMaskSize);
}

template <class L, class T>
HuxStatus filterMedian(const T* pSrc, int srcStep, T* pDst, int dstStep, HuxiSize roi, HuxiSize mask,
                       HuxiPoint anchor) {
  const auto copy = [&] { return copyAll<L>(pSrc, srcStep, pDst, dstStep, roi); };
  if (const auto s = check(pointers(pSrc, pDst), size(roi), steps(srcStep, dstStep), oddMask(mask),
                           anchorInside(anchor, mask), answer(mask.width == 1 && mask.height == 1, copy)))
    return s;
  const Reach reach = imageOrder(mask, anchor);
  const auto run = [&](auto row) {
    forEachRow(roi, windowRows<L>(pSrc, srcStep, reach), rows<L>(pDst, dstStep),
               [&](auto window, auto* dst, Index n) { row(window, L::channels, dst, elementsOf<L>(n)); });
    return HuxStatus(huxStsOk);
  };
  using Store = StoreOf<L>;
  switch (mask.width <= 5 && mask.height <= 5 ? mask.width * 10 + mask.height : 0) {
    case huxMskSize3x3:
      return run(ownhuxiFilterMedianSqr<3, Store, T>);
    case huxMskSize5x5:
      return run(ownhuxiFilterMedianSqr<5, Store, T>);
    case huxMskSize3x1:
      return run(ownhuxiFilterMedianHoriz<3, Store, T>);
    case huxMskSize5x1:
      return run(ownhuxiFilterMedianHoriz<5, Store, T>);
    case huxMskSize1x3:
      return run(ownhuxiFilterMedianVert<3, Store, T>);
    case huxMskSize1x5:
      return run(ownhuxiFilterMedianVert<5, Store, T>);
    default:
      return ownhuxiFilterMedianCom<L>(pSrc, srcStep, pDst, dstStep, roi, mask, reach);
  }
}

}  // namespace
}  // namespace hux

#define EXPORT(t, l)                                                                                  \
  HuxStatus huxiFilterMedian_##t##_##l##R(const Hux##t* pSrc, int srcStep, Hux##t* pDst, int dstStep, \
                                          HuxiSize dstRoiSize, HuxiSize maskSize, HuxiPoint anchor) { \
    return hux::filterMedian<hux::l>(pSrc, srcStep, pDst, dstStep, dstRoiSize, maskSize, anchor);     \
  }
HUX_STAMP(EXPORT, (8u, 16s), (C1, C3, C4, AC4))
