// Erode, Dilate and their 3 by 3 forms: the least and the greatest element of each channel over the cells of a
// structuring element.
#include <cstring>

#include "core/scratch.h"
#include "core/stamp.h"
#include "filter/runs.h"
#include "huxi_filter.h"
#include "huxi_stats.h"
#include "workers/move.h"

namespace hux {
namespace {

// The cells of a mask that are selected, row by row, a part of them at a time.
class Cells {
 public:
  static constexpr int kMost = 512;

  // Between pixels of so many bytes and rows of such a step.
  Cells(const Hux8u* pMask, HuxiSize size, Index pixelBytes, Index step)
      : mask_(elements(pMask)), width_(size.width), area_(area(size)), pixelBytes_(pixelBytes), step_(step) {
    next();
    whole_ = atEnd();
  }

  // Starts again with the first part.
  void restart() {
    if (whole_) return;
    cell_ = 0;
    next();
  }
  bool atEnd() const { return cell_ == area_; }
  void next() {
    for (count_ = 0; cell_ < area_ && count_ < kMost; ++cell_)
      if (mask_[cell_]) at_[count_++] = cell_ / width_ * step_ + cell_ % width_ * pixelBytes_;
  }
  // Distances from the first element of a window, in bytes.
  const Index* begin() const { return at_; }
  const Index* end() const { return at_ + count_; }

 private:
  const Element<Hux8u>* mask_;
  Index width_, area_, pixelBytes_, step_, cell_ = 0;
  bool whole_;
  int count_ = 0;
  Index at_[kMost];
};

// A row of windows by all their cells, strip after strip.
template <class Pick, class Store, class T>
void selectCells(Cells& cells, const Element<T>* window, Element<T>* dst, Index elements) {
  constexpr int lanes = laneCount<T>, vectors = 4;
  constexpr Index strip = 1024;
  using V = Lanes<T, lanes>;
  const Pick pick;
  T kept[strip];
  for (Index from = 0; from < elements; from += strip) {
    const Index count = std::min(strip, elements - from);
    for (bool first = true;; cells.next(), first = false) {
      if (first) cells.restart();
      const bool last = cells.atEnd();
      const auto part = [=, &kept, &cells](Index i, auto load, auto& v) {
        for (auto& one : v) one = splat<V>(Pick::template limit<T>);
        if (!first)
          for (int u = 0; u < int(std::size(v)); ++u) v[u] = loadLanes<V>(kept + i + u * lanes);
        for (const Index at : cells) {
          const auto* p = advance(window, at) + from + i;
          for (int u = 0; u < int(std::size(v)); ++u) v[u] = pick(v[u], load(p + u * lanes));
        }
        for (int u = 0; u < int(std::size(v)); ++u)
          if (last)
            storePixels<Store>(dst + from, i + u * lanes, v[u], count);
          else
            storeLanes(kept + i + u * lanes, v[u]);
      };
      const auto whole = [](const Element<T>* p) { return loadLanes<V>(p); };
      Index i = 0;
      for (; i + vectors * lanes <= count; i += vectors * lanes) {
        V v[vectors];
        part(i, whole, v);
      }
      // The last vector may lie across the one before: to see the same cells twice changes nothing.
      for (; i < count && count >= lanes; i += lanes) {
        V v[1];
        part(std::min(i, count - lanes), whole, v);
      }
      if (count < lanes) {
        V v[1];
        part(
            0, [&](const Element<T>* p) { return loadLanes<V>(p, int(count), T(0)); }, v);
      }
      if (last) break;
    }
  }
}

// A structuring element over an image.
template <class Pick, class T>
class StructuringElement {
 public:
  StructuringElement(const Hux8u* pMask, HuxiSize mask, WindowRows<T> src, Index neighbour)
      : src_(src),
        neighbour_(neighbour),
        size_(mask),
        full_(!std::memchr(pMask, 0, std::size_t(area(mask)))),
        cells_(pMask, mask, neighbour * Index(sizeof(T)), src.top.step),
        pieces_(pMask, mask) {}

  bool nine() const { return full_ && size_.width == 3 && size_.height == 3; }

  // body(shape, type of strips) for strips of so many elements and rows where these pay; else otherwise().
  template <class Body, class Otherwise>
  auto byStrips(Index elements, Index rows, Body body, Otherwise otherwise) const {
    using Full = ExtremeRows<Pick, T>;
    using Parts = PieceRows<Pick, T>;
    if (full_ && area(size_) > 9)
      return body(Full::shapeFor(size_, neighbour_, elements, rows), std::type_identity<Full>{});
    if (!full_ && pieces_.pay())
      return body(Parts::shapeFor(pieces_, size_, neighbour_, elements), std::type_identity<Parts>{});
    return otherwise();
  }

  // `elements` of one row from element `from` on.
  template <class Store>
  void row(Index y, Index from, Element<T>* dst, Index elements) {
    const Window<T> window = windowAt(y, from);
    if (nine())
      extremes3x3<Pick, Order::kCells, Store>(window, neighbour_, std::array{dst}, elements);
    else
      selectCells<Pick, Store>(cells_, window.first, dst, elements);
  }
  // The region's rows.
  template <class Store>
  void everyRow(Rows<T> dst, Index elements, Index height) {
    if (nine())
      extremes3x3<Pick, Order::kCells, Store>(src_, dst, neighbour_, elements, height);
    else
      for (Index y = 0; y < height; ++y) row<Store>(y, 0, dst.row(y), elements);
  }

  // A strip's rows follow each other from the first on.
  template <class Strip>
  void start(Strip& strip, Index from, Index elements) const {
    strip.start(windowAt(0, from), elements);
  }
  template <class Store, class Strip, class Line>
  void compute(Strip& strip, Index y, Index rows, Index from, Index elements, Line line) {
    using V = typename Strip::V;
    const auto limited = [](V v) {
      if constexpr (std::is_floating_point_v<T>) v = Pick()(splat<V>(Pick::template limit<T>), v);
      return v;
    };
    if (!strip.template compute<Store>(y, rows, line, limited))
      for (Index r = y; r < y + rows; ++r) row<Store>(r, from, line(r), elements);
  }

 private:
  Window<T> windowAt(Index y, Index from) const {
    const Window<T> window = src_.row(y);
    return {window.first + from, window.step};
  }

  WindowRows<T> src_;
  Index neighbour_;
  HuxiSize size_;
  bool full_;
  Cells cells_;
  Pieces pieces_;
};

// Memory for strips: on the stack, else from the heap. Where there is none the cells serve, one by one.
class StripMemory {
 public:
  explicit StripMemory(std::size_t bytes)
      : far_(bytes > kNear ? allocate(bytes) : nullptr), first_(bytes > kNear ? far_ : near_) {}
  ~StripMemory() { release(far_); }
  StripMemory(const StripMemory&) = delete;
  std::byte* get() const { return static_cast<std::byte*>(first_); }

 private:
  void *far_, *first_;
  static constexpr std::size_t kNear = 60 << 10;
  alignas(64) std::byte near_[kNear];
};

template <class Store, class Pick, class T>
void select(StructuringElement<Pick, T>& element, Rows<T> dst, Index elements, Index height) {
  const auto byCells = [&] { element.template everyRow<Store>(dst, elements, height); };
  const auto byStrips = [&](auto shape, auto type) {
    using Strip = typename decltype(type)::type;
    const StripMemory memory(shape.bytes());
    if (!memory.get()) return byCells();
    Strip strip(memory.get(), shape);
    for (Index from = 0; from < elements; from += shape.count) {
      const Index count = std::min(shape.count, elements - from);
      element.start(strip, from, count);
      for (Index y = 0; y < height; y += shape.atOnce)
        element.template compute<Store>(strip, y, std::min(shape.atOnce, height - y), from, count,
                                        [&](Index r) { return dst.row(r) + from; });
    }
  };
  element.byStrips(elements, height, byStrips, byCells);
}

// Takes memory for the ring of rows and `bytes` more. computeWith(ring, more memory) gives what computes rows into the
// ring.
template <class L, class T, class ComputeWith>
HuxStatus throughRing(Rows<T> image, Index width, InPlace order, std::size_t bytes, ComputeWith computeWith) {
  const Index elements = elementsOf<L>(width);
  const std::size_t lines = Ring<T>::bytes(order.lines, elements);
  const Scratch<std::byte> memory(Index(lines + bytes));
  if (!memory) return huxStsNoMem;
  const Ring<T> ring(memory.get(), order.lines, elements);
  inPlace(order, computeWith(ring, memory.get() + lines), [&](Index y) {
    using W = Word<T>;
    copyPixels<L, W>(elementsAs<const W>(ring[y]), elementsAs<W>(image.row(y)), width);
  });
  return huxStsOk;
}

template <class L, class Pick, class T>
HuxStatus selectInPlace(StructuringElement<Pick, T>& element, Rows<T> image, HuxiSize roi, Index above) {
  const Index elements = elementsOf<L>(roi.width);
  const auto byCells = [&] {
    return throughRing<L>(image, roi.width, rowsInPlace(roi.height, above), 0, [&](Ring<T> ring, std::byte*) {
      return [&, ring](Index y, Index) { element.template row<C1>(y, 0, ring[y], elements); };
    });
  };
  const auto byStrips = [&](auto shape, auto type) {
    using Strip = typename decltype(type)::type;
    shape.count = elements;  // a strip beside another one would read what the other has written
    const InPlace order = rowsInPlace(roi.height, above, shape.atOnce);
    return throughRing<L>(image, roi.width, order, shape.bytes(), [&](Ring<T> ring, std::byte* memory) {
      Strip strip(memory, shape);
      element.start(strip, 0, elements);
      return [&, ring, strip](Index y, Index rows) mutable {
        element.template compute<C1>(strip, y, rows, 0, elements, [&](Index r) { return ring[r]; });
      };
    });
  };
  const Index rows = rowsInPlace(roi.height, above).rows;
  return element.byStrips(elements, rows, byStrips, byCells);
}

// A row of so many elements of T must lie within its step.
template <class T>
HuxStatus rowsWithin(Index elements, int step) {
  return failUnless(step >= elements * Index(sizeof(T)), huxStsStepBelowWidth);
}

// Whether a mask selects any cell.
HuxStatus anyCell(const Hux8u* pMask, HuxiSize mask) {
  Hux8u most = 0;
  huxiMax_8u_C1R(pMask, mask.width, mask, &most);
  return failUnless(most != 0, huxStsZeroMask);
}

template <class Pick, class L, class T>
HuxStatus morphology(const T* pSrc, int srcStep, T* pDst, int dstStep, HuxiSize roi, const Hux8u* pMask, HuxiSize mask,
                     HuxiPoint anchor) {
  if (HuxStatus s = check(
          pointers(pSrc, pDst, pMask), steps(srcStep, dstStep), size(roi), maskSize(mask),
          [&] { return anyCell(pMask, mask); }, anchorInside(anchor, mask),
          rowsWithin<T>((Index(mask.width) + roi.width - 1) * L::channels, srcStep),
          rowsWithin<T>(Index(roi.width) * L::channels, dstStep)))
    return s;
  StructuringElement<Pick, T> element(pMask, mask, windowRows<L>(pSrc, srcStep, imageOrder(mask, anchor)), L::channels);
  select<StoreOf<L>>(element, rows<L>(pDst, dstStep), elementsOf<L>(roi.width), roi.height);
  return huxStsOk;
}

template <class Pick, class L, class T>
HuxStatus morphologyInPlace(T* pSrcDst, int srcDstStep, HuxiSize roi, const Hux8u* pMask, HuxiSize mask,
                            HuxiPoint anchor) {
  if (HuxStatus s = check(
          pointers(pSrcDst, pMask), steps(srcDstStep), size(roi), maskSize(mask), [&] { return anyCell(pMask, mask); },
          anchorInside(anchor, mask), rowsWithin<T>((Index(mask.width) + roi.width - 1) * L::channels, srcDstStep)))
    return s;
  StructuringElement<Pick, T> element(pMask, mask, windowRows<L, T>(pSrcDst, srcDstStep, imageOrder(mask, anchor)),
                                      L::channels);
  return selectInPlace<L>(element, rows<L>(pSrcDst, srcDstStep), roi, anchor.y);
}

template <class Pick, class L, class T>
HuxStatus morphology3x3(const T* pSrc, int srcStep, T* pDst, int dstStep, HuxiSize roi) {
  if (HuxStatus s = check(pointers(pSrc, pDst), steps(srcStep, dstStep), size(roi),
                          rowsWithin<T>((Index(roi.width) + 2) * L::channels, srcStep),
                          rowsWithin<T>(Index(roi.width) * L::channels, dstStep)))
    return s;
  extremes3x3<Pick, Order::kColumns, StoreOf<L>>(windowRows<L>(pSrc, srcStep, centred(3)), rows<L>(pDst, dstStep),
                                                 L::channels, elementsOf<L>(roi.width), roi.height);
  return huxStsOk;
}

template <class Pick, class L, class T>
HuxStatus morphology3x3InPlace(T* pSrcDst, int srcDstStep, HuxiSize roi) {
  if (HuxStatus s = check(pointers(pSrcDst), steps(srcDstStep), size(roi),
                          rowsWithin<T>((Index(roi.width) + 2) * L::channels, srcDstStep)))
    return s;
  const auto src = windowRows<L, T>(pSrcDst, srcDstStep, centred(3));
  return throughRing<L>(rows<L>(pSrcDst, srcDstStep), roi.width, rowsInPlace3x3(roi.height), 0,
                        [&](Ring<T> ring, std::byte*) {
                          return [=](Index y, Index) {
                            extremes3x3<Pick, Order::kColumns, C1>(src.row(y), L::channels, std::array{ring[y]},
                                                                   elementsOf<L>(roi.width));
                          };
                        });
}

}  // namespace
}  // namespace hux

#define EXPORT_3X3(Name, Pick, t, l)                                                                 \
  HuxStatus huxi##Name##3x3_##t##_##l##R(const Hux##t* pSrc, int srcStep, Hux##t* pDst, int dstStep, \
                                         HuxiSize roiSize) {                                         \
    return hux::morphology3x3<hux::Pick, hux::l>(pSrc, srcStep, pDst, dstStep, roiSize);             \
  }                                                                                                  \
  HuxStatus huxi##Name##3x3_##t##_##l##IR(Hux##t* pSrcDst, int srcDstStep, HuxiSize roiSize) {       \
    return hux::morphology3x3InPlace<hux::Pick, hux::l>(pSrcDst, srcDstStep, roiSize);               \
  }
#define EXPORT_MASK(Name, Pick, t, l)                                                                               \
  HuxStatus huxi##Name##_##t##_##l##R(const Hux##t* pSrc, int srcStep, Hux##t* pDst, int dstStep, HuxiSize roiSize, \
                                      const Hux8u* pMask, HuxiSize maskSize, HuxiPoint anchor) {                    \
    return hux::morphology<hux::Pick, hux::l>(pSrc, srcStep, pDst, dstStep, roiSize, pMask, maskSize, anchor);      \
  }
#define EXPORT_MASK_IN_PLACE(Name, Pick, t, l)                                                                \
  HuxStatus huxi##Name##_##t##_##l##IR(Hux##t* pSrcDst, int srcDstStep, HuxiSize roiSize, const Hux8u* pMask, \
                                       HuxiSize maskSize, HuxiPoint anchor) {                                 \
    return hux::morphologyInPlace<hux::Pick, hux::l>(pSrcDst, srcDstStep, roiSize, pMask, maskSize, anchor);  \
  }

#define EXPORT(t, l)              \
  EXPORT_3X3(Erode, Lesser, t, l) \
  EXPORT_3X3(Dilate, Greater, t, l) EXPORT_MASK(Erode, Lesser, t, l) EXPORT_MASK(Dilate, Greater, t, l)
HUX_STAMP(EXPORT, (8u, 32f), (C1, C3, C4, AC4))
#undef EXPORT

#define EXPORT(t, l) EXPORT_MASK_IN_PLACE(Erode, Lesser, t, l) EXPORT_MASK_IN_PLACE(Dilate, Greater, t, l)
HUX_STAMP(EXPORT, (8u, 32f), (C1, C3, AC4))
