// FilterMin and FilterMax: the least and the greatest element of each channel over a rectangle.
#include "core/scratch.h"
#include "core/stamp.h"
#include "filter/extremes.h"
#include "huxi_filter.h"
#include "workers/delegate.h"

namespace hux {
namespace {

// Any window with its NaN: the extremes of its rows, then of these.
template <class Pick, class Store, class T>
void extremesInOrder(Window<T> window, HuxiSize mask, Index neighbour, Element<T>* dst, Index count) {
  using V = Lanes<T, laneCount<T>>;
  const Pick pick;
  overRow<V, T>(count, [&](Index i, auto load) {
    V v{};
    for (Index j = 0; j < mask.height; ++j) {
      V along = load(window[j] + i);
      for (Index k = 1; k < mask.width; ++k) along = pick(along, load(window[j] + i + k * neighbour));
      v = j == 0 ? along : pick(v, along);
    }
    storePixels<Store>(dst, i, v, count);
  });
}

template <class Pick, class Store, class T>
HuxStatus extremes(WindowRows<T> src, Rows<T> dst, HuxiSize mask, Index neighbour, Index elements, Index height) {
  using Strip = ExtremeRows<Pick, T>;
  using V = typename Strip::V;
  const auto shape = Strip::shapeFor(mask, neighbour, elements, height);
  const Scratch<std::byte> memory(Index(shape.bytes()));
  if (!memory) return huxStsNoMem;
  Strip strip(memory.get(), shape);
  for (Index from = 0; from < elements; from += shape.count) {
    const Index count = std::min(shape.count, elements - from);
    const auto windowAt = [&](Index y) { return Window<T>{src.top[y] + from, src.top.step}; };
    const auto line = [&](Index y) { return dst.row(y) + from; };
    strip.start(windowAt(0), count);
    for (Index y = 0; y < height; y += shape.atOnce) {
      const Index rows = std::min(shape.atOnce, height - y);
      if (!strip.template compute<Store>(y, rows, line, [](V v) { return v; }))
        for (Index r = y; r < y + rows; ++r) extremesInOrder<Pick, Store>(windowAt(r), mask, neighbour, line(r), count);
    }
  }
  return huxStsOk;
}

template <class Pick, class L, class T>
HuxStatus filterExtreme(const T* pSrc, int srcStep, T* pDst, int dstStep, HuxiSize roi, HuxiSize mask,
                        HuxiPoint anchor) {
  const auto copy = [&] { return copyAll<L>(pSrc, srcStep, pDst, dstStep, roi); };
  if (const auto s = check(pointers(pSrc, pDst), size(roi), steps(srcStep, dstStep), maskSize(mask),
                           anchorInside(anchor, mask), answer(mask.width == 1 && mask.height == 1, copy)))
    return s;
  using Store = StoreOf<L>;
  const auto src = windowRows<L>(pSrc, srcStep, imageOrder(mask, anchor));
  const auto dst = rows<L>(pDst, dstStep);
  if (mask.width == 3 && mask.height == 3) {
    extremes3x3<Pick, Order::kRows, Store>(src, dst, L::channels, elementsOf<L>(roi.width), roi.height);
    return huxStsOk;
  }
  return extremes<Pick, Store>(src, dst, mask, L::channels, elementsOf<L>(roi.width), roi.height);
}

}  // namespace
}  // namespace hux

#define EXPORT_EXTREME(Name, Pick, t, l)                                                                      \
  HuxStatus huxiFilter##Name##_##t##_##l##R(const Hux##t* pSrc, int srcStep, Hux##t* pDst, int dstStep,       \
                                            HuxiSize dstRoiSize, HuxiSize maskSize, HuxiPoint anchor) {       \
    return hux::filterExtreme<hux::Pick, hux::l>(pSrc, srcStep, pDst, dstStep, dstRoiSize, maskSize, anchor); \
  }
#define EXPORT(t, l) EXPORT_EXTREME(Min, Lesser, t, l) EXPORT_EXTREME(Max, Greater, t, l)
HUX_STAMP(EXPORT, (8u, 16s, 32f), (C1, C3, C4, AC4))
