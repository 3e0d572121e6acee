// Box filter: the mean of a window, by running sums. What the types and masks differ in is the width of the sums and
// how they are scaled (box_scale.h).
#include "core/check.h"
#include "core/ring.h"
#include "core/scratch.h"
#include "core/stamp.h"
#include "core/team.h"
#include "core/window.h"
#include "filter/box_scale.h"
#include "filter/vector_rows.h"
#include "huxi_filter.h"
#include "lanes/elementwise.h"
#include "workers/move.h"
#include "workers/running.h"

namespace hux {
namespace {

// The arguments of a call.
template <class T>
struct Box {
  const T* pSrc;
  int srcStep;
  T* pDst;
  int dstStep;
  HuxiSize roi, mask;
  HuxiPoint anchor;
};

// The sums of a call keep state from row to row. Each kind of them gives
//   bytes()                             the work memory for it
//   start(memory, window)               the sums of the first row
//   rows(windows, count, moves, line)   `count` rows into line(0), line(1), ..., whose windows are windows.row(0), ...;
//                                       after each of the first `moves` the sums move on to the next row
//   atOnce                              how many rows it computes in one go

// Integers, columns S and windows W: any order is exact.
template <class L, class T, class S, class W, class Finish>
class IntegerSums {
 public:
  static constexpr Index atOnce = 1;

  IntegerSums(HuxiSize roi, HuxiSize mask, Hux32s bias, Finish finish)
      : n_(elementsOf<L>(roi.width)),
        columns_(elementsOf<L>(Index(roi.width) + mask.width - 1)),
        mask_(mask),
        bias_(bias),
        finish_(finish) {}

  std::size_t bytes() const { return std::size_t(ColumnSums<S>::room(columns_)) * sizeof(S); }
  void start(std::byte* memory, Window<T> window) {
    sums_ = reinterpret_cast<S*>(memory);
    ColumnSums<S>(sums_, columns_).start(window, mask_.height, S(bias_));
  }
  template <class Line>
  void rows(WindowRows<T> windows, Index count, Index moves, Line line) const {
    ColumnSums<S> columns(sums_, columns_);
    for (Index y = 0; y < count; ++y) {
      Element<T>* dst = line(y);
      windowSums<L::channels, W, true>(sums_, mask_.width, n_, [dst, finish = finish_](Index x, auto s, int some) {
        storeColours<L::channels == 4 ? L::processed : 4>(dst + x, finish(s), some);
      });
      if (y < moves) columns.move(windows.row(y)[mask_.height], windows.row(y)[0]);
    }
  }

 private:
  Index n_, columns_;
  HuxiSize mask_;
  Hux32s bias_;
  Finish finish_;
  S* sums_ = nullptr;
};

// How a float sum of columns begins and moves on. Floats of one channel take in the entering pixel before they drop the
// leaving one; all others add the difference, which integer pixels form as integers. Both orders are established.
template <class T>
struct AddDifference {
  Hux32s bias = 0;
  template <class V>
  OrderedLanes begin(V in) const {
    if constexpr (std::is_floating_point_v<T>)
      return in;
    else
      return convert<Hux32f>(convert<Hux32s>(in) + bias);
  }
  template <class V>
  OrderedLanes operator()(OrderedLanes sum, V in, V out) const {
    if constexpr (std::is_floating_point_v<T>)
      return sum + (in - out);
    else
      return sum + convert<Hux32f>(convert<Hux32s>(in) - convert<Hux32s>(out));
  }
};
struct AddThenSubtract {
  OrderedLanes begin(OrderedLanes in) const { return in; }
  OrderedLanes operator()(OrderedLanes sum, OrderedLanes in, OrderedLanes out) const { return (sum + in) - out; }
};

// Floats, in the told order.
template <class L, class T, class Move, class Finish>
class FloatSums {
 public:
  static constexpr Index atOnce = kRowsInOrder<L::channels>;

  FloatSums(HuxiSize roi, HuxiSize mask, Move move, Finish finish)
      : columns_(elementsOf<L>(Index(roi.width) + mask.width - 1)), mask_(mask), move_(move), finish_(finish) {}

  std::size_t bytes() const {
    return std::size_t(columns_ + kOrderedLanes + orderedRoom<N>(mask_.width)) * sizeof(Hux32f);
  }
  void start(std::byte* memory, Window<T> window) {
    room_ = reinterpret_cast<Hux32f*>(memory);
    sums_ = room_ + orderedRoom<N>(mask_.width);
    for (Index y = 0; y < mask_.height; ++y)
      for (Index j = 0; j < columns_; j += lanes) {
        const V row = move_.begin(load(window[y], j));
        storeLanes(sums_ + j, y == 0 ? row : V(loadLanes<V>(sums_ + j) + row));
      }
  }
  template <class Line>
  void rows(WindowRows<T> windows, Index count, Index moves, Line line) const {
    for (Index first = 0; first < count; first += atOnce)
      someRows(windows.from(first), std::min(atOnce, count - first), std::clamp<Index>(moves - first, 0, atOnce),
               [&](Index y) { return line(first + y); });
  }

 private:
  static constexpr int lanes = kOrderedLanes, N = L::channels;
  using V = OrderedLanes;
  using VT = Lanes<T, lanes>;

  VT load(const Element<T>* row, Index j) const {
    if (j + lanes <= columns_) return loadLanes<VT>(row + j);
    return loadEnd<VT>(row + j, int(columns_ - j), j);
  }

  template <class Line>
  void someRows(WindowRows<T> windows, Index count, Index moves, Line line) const {
    const Element<T>*leaving[atOnce], *entering[atOnce];
    Element<T>* dst[atOnce];
    for (Index y = 0; y < count; ++y) {
      dst[y] = line(y);
      leaving[y] = windows.row(y)[0], entering[y] = windows.row(y)[mask_.height];
    }
    // Columns move on by as many rows as there are; what they hold on the way are the rows.
    const auto make = [&, sums = sums_, move = move_](Index j, int some, OrderedLines<N>& lines) {
      constexpr int piece = kOrderedPiece<N>;
      // Several columns beside each other, whose sums stay in registers on their way down.
      const auto down = [&](auto vectors, int at, auto loadAt) HUX_INLINE {
        const auto each = [&](auto body)
                              HUX_INLINE { unrolled<vectors>([&](auto k) HUX_INLINE { body(at + k * lanes, k); }); };
        V sum[vectors];
        each([&](int i, auto k) HUX_INLINE { sum[k] = loadLanes<V>(sums + j + i); });
        for (Index y = 0; y < atOnce; ++y) {
          each([&](int i, auto k) HUX_INLINE { storeLanes(lines[y] + i, sum[k]); });
          if (y >= moves) continue;
          const Element<T>*const in = entering[y] + j, *const out = leaving[y] + j;
          if (vectors > 1) fetchPiece(in + piece, piece);
          each([&](int i, auto k) HUX_INLINE { sum[k] = move(sum[k], loadAt(in, i), loadAt(out, i)); });
        }
        each([&](int i, auto k) HUX_INLINE { storeLanes(sums + j + i, sum[k]); });
      };
      if (some == piece)
        down(std::integral_constant<int, piece / lanes>{}, 0,
             [](const Element<T>* row, int i) HUX_INLINE { return loadLanes<VT>(row + i); });
      else
        for (int at = 0; at < some; at += lanes)
          down(std::integral_constant<int, 1>{}, at,
               [&](const Element<T>* row, int i) { return load(row - j, j + i); });
    };
    const auto take = [&, finish = finish_](Index x, int some, const OrderedLines<N>& lines) {
      for (Index y = 0; y < count; ++y) {
        fetchPiece(dst[y] + x + some, some);
        for (int k = 0; k < some; k += lanes)
          storePixels<StoreOf<L>>(dst[y] + x, k, finish(loadLanes<V>(lines[y] + k)), some);
      }
    };
    const auto along = [](V sum, V in, V out) { return (sum + in) - out; };
    windowSumsInOrder<N>(room_, columns_, mask_.width, along, make, take);
  }

  Index columns_;
  HuxiSize mask_;
  Move move_;
  Finish finish_;
  Hux32f *sums_ = nullptr, *room_ = nullptr;
};

// After how many rows of a form in place the sums stand still. Established: in some forms from the region's last row
// on, also where rows below the region are computed; in the others not before the last row that is computed, but from
// the first row on where the region is two rows higher than what the window reaches up.
enum class Still { fromLastRow, ifTwoAboveReach };
constexpr Index movesInPlace(Still still, Index height, Index above) {
  if (still == Still::fromLastRow) return height - 1;
  return height == above + 2 ? 0 : std::max(height, above + 1) - 1;
}

// Rows are divided where the work is worth a team; four channels always ask for one.
template <class L, class T>
bool forks(const Box<T>& b) {
  return L::processed == 4 || Index(b.roi.width) * b.roi.height > 4096;
}

template <class L, class T>
auto windowsOf(const Box<T>& b) {
  return windowRows<L>(b.pSrc, b.srcStep, imageOrder(b.mask, b.anchor));
}

template <class L, class T, class Sums>
HuxStatus ownBlur(const Box<T>& b, Sums sums) {
  const auto windows = windowsOf<L>(b);
  const auto dst = rows<L>(b.pDst, b.dstStep);
  // Where rows of the destination overlap, the last one stands: they are not computed side by side.
  const bool overlap = b.dstStep < elementsOf<L>(b.roi.width) * Index(sizeof(T));
  return loopRows(b.roi.height, forks<L>(b), sums.bytes(), [&](RowRange share, std::byte* slice) {
    Sums own = sums;  // one for each thread
    own.start(slice, windows.row(share.first));
    const Index some = overlap ? 1 : share.count, end = share.first + share.count;
    for (Index first = share.first; first < end; first += some)
      own.rows(windows.from(first), some, std::min(some, end - 1 - first), [&](Index y) { return dst.row(first + y); });
  });
}

template <class L, class T, class Sums>
HuxStatus ownBlur_I(const Box<T>& b, Sums sums, Still still) {
  const auto windows = windowsOf<L>(b);
  const auto image = rows<L>(b.pDst, b.dstStep);
  const InPlace order = rowsInPlace(b.roi.height, b.anchor.y, Sums::atOnce);
  const Index width = Index(b.roi.width) * L::channels, moves = movesInPlace(still, b.roi.height, b.anchor.y);
  Scratch<std::byte> memory(Index(sums.bytes())), lines(Index(Ring<T>::bytes(order.lines, width)));
  if (!memory || !lines) return huxStsNoMem;
  const Ring<T> ring(lines.get(), order.lines, width);
  sums.start(memory.get(), windows.row(0));
  inPlace(
      order,
      [&](Index first, Index count) {
        sums.rows(windows.from(first), count, std::clamp<Index>(moves - first, 0, count),
                  [&](Index y) { return ring[first + y]; });
      },
      [&](Index row) { copyPixels<L>(ring[row], image.row(row), b.roi.width); });
  return huxStsOk;
}

// 3 by 3 bytes of three channels need no memory and keep no state. In place they are right also where the running sums
// of the other forms stand still.
void blurRow_33(Window<Hux8u> window, Element<Hux8u>* dst, Index width) {
  constexpr int lanes = laneCount<Hux16u>;
  const ShiftedWords finish(get_shift_int(1.0f / 9.0f));
  const auto mean = [&](auto load) {
    Lanes<Hux16u, lanes> sum{};
    for (int k = 0; k < 9; ++k) sum += convert<Hux16u>(load(window[k / 3] + k % 3 * 3));
    return finish(sum);
  };
  using V = Lanes<Hux8u, lanes>;
  const Index n = width * 3;
  const auto meanAt = [&](Index x) { return mean([x](auto* row) { return loadLanes<V>(row + x); }); };
  if (n < lanes) return storeColours<4>(dst, mean([n](auto* row) { return loadLanes<V>(row, int(n), 0); }), int(n));
  for (Index x = 0; x + lanes < n; x += lanes) storeLanes(dst + x, meanAt(x));
  storeLanes(dst + n - lanes, meanAt(n - lanes));
}

HuxStatus ownBlur_33(const Box<Hux8u>& b) {
  const auto windows = windowsOf<C3>(b);
  const auto dst = rows<C3>(b.pDst, b.dstStep);
  return loopRows(b.roi.height, forks<C3>(b), 0, [&](RowRange share, std::byte*) {
    const HuxiSize part = {b.roi.width, int(share.count)};
    forEachRow(part, windows.from(share.first), dst.from(share.first), blurRow_33);
  });
}

HuxStatus ownBlur_33_I(const Box<Hux8u>& b) {
  const auto windows = windowsOf<C3>(b);
  const auto image = rows<C3>(b.pDst, b.dstStep);
  const InPlace order = rowsInPlace(b.roi.height, b.anchor.y);
  const Index width = Index(b.roi.width) * 3;
  Scratch<std::byte> lines(Index(Ring<Hux8u>::bytes(order.lines, width)));
  if (!lines) return huxStsNoMem;
  const Ring<Hux8u> ring(lines.get(), order.lines, width);
  inPlace(
      order, [&](Index row, Index) { blurRow_33(windows.row(row), ring[row], b.roi.width); },
      [&](Index row) { copyPixels<C3>(ring[row], image.row(row), b.roi.width); });
  return huxStsOk;
}

// Chooses the sums by type, layout and mask: run(sums, still).
template <class L, class T, class Run>
HuxStatus withSums(const Box<T>& b, Run run) {
  // The area is a 32-bit product, which wraps; what is summed does not.
  const Hux32s area = Hux32s(Hux32u(b.mask.width) * Hux32u(b.mask.height));
  const Index cells = Index(b.mask.width) * b.mask.height, widest = cells + b.mask.height;  // with a column more
  const Hux32f recip = 1.0f / Hux32f(area);
  const auto integers = [&]<class S, class W>(S, W, Hux32s bias, auto finish, Still still) {
    return run(IntegerSums<L, T, S, W, decltype(finish)>(b.roi, b.mask, bias, finish), still);
  };
  const auto floats = [&](auto move, auto finish, Still still) {
    return run(FloatSums<L, T, decltype(move), decltype(finish)>(b.roi, b.mask, move, finish), still);
  };
  constexpr Still still = L::processed == 4 ? Still::ifTwoAboveReach : Still::fromLastRow;
  if constexpr (std::is_same_v<T, Hux8u>) {
    if (area > 8100) {
      if (exactSums(widest, 255)) return integers(Hux32u(), Hux32u(), 0, ScaledBytes{recip}, still);
      return floats(AddDifference<T>{}, ScaledBytes{recip}, still);
    }
    constexpr Still always = Still::ifTwoAboveReach;
    constexpr Index narrow = 257;  // the most bytes whose sum fits 16 bits
    const Reciprocal r = get_shift_int(recip);
    if (cells <= narrow) return integers(Hux16u(), Hux16u(), 0, ShiftedWords(r), always);
    if (b.mask.height <= narrow) return integers(Hux16u(), Hux32u(), 0, ShiftedSums(r), always);
    return integers(Hux32u(), Hux32u(), 0, ShiftedSums(r), always);
  } else if constexpr (std::is_same_v<T, Hux16s>) {
    if constexpr (L::processed != 4) {
      return integers(Hux32u(), Hux32u(), kWordBias, ScaledWords{recip}, still);
    } else {
      if (exactSums(widest, 65535)) return integers(Hux32u(), Hux32u(), kWordBias, ScaledWordsC4{recip}, still);
      return floats(AddDifference<T>{kWordBias}, ScaledWordsC4{recip}, still);
    }
  } else {
    using Move = std::conditional_t<L::channels == 1, AddThenSubtract, AddDifference<T>>;
    return floats(Move{}, ScaledFloats{recip}, still);
  }
}

template <bool InPlace, class L, class T>
HuxStatus filterBox(Box<T> b) {
  if (HuxStatus s = check(pointers(b.pSrc, b.pDst), steps(b.srcStep, b.dstStep), size(b.roi), maskSize(b.mask),
                          anchorInside(b.anchor, b.mask)))
    return s;
  // All but the forms of four processed channels move their rows in whole elements.
  if (L::processed != 4) b.srcStep = wholeElements<T>(b.srcStep), b.dstStep = wholeElements<T>(b.dstStep);
  const auto side = [&](int n) { return b.mask.width == n && b.mask.height == n; };
  // A window of one pixel gives the pixel, to the bit: running sums of floats would not.
  if (side(1)) {
    if (!InPlace) {
      const auto src = rows<L>(b.pSrc, b.srcStep);
      const auto dst = rows<L>(b.pDst, b.dstStep);
      const simd::Streaming streaming(b.roi, src, dst);
      forEachRow(b.roi, src, dst, [&](auto* from, auto* to, Index n) { copyPixels<L, T>(from, to, n, streaming); });
    }
    return huxStsOk;
  }
  if constexpr (std::is_same_v<T, Hux8u> && L::channels == 3)
    if (side(3)) return InPlace ? ownBlur_33_I(b) : ownBlur_33(b);
  return withSums<L>(b, [&](auto sums, Still still) {
    if constexpr (InPlace)
      return ownBlur_I<L>(b, sums, still);
    else
      return ownBlur<L>(b, sums);
  });
}

}  // namespace
}  // namespace hux

#define EXPORT(t, l)                                                                                                 \
  HuxStatus huxiFilterBox_##t##_##l##R(const Hux##t* pSrc, int srcStep, Hux##t* pDst, int dstStep, HuxiSize roiSize, \
                                       HuxiSize maskSize, HuxiPoint anchor) {                                        \
    return hux::filterBox<false, hux::l, Hux##t>({pSrc, srcStep, pDst, dstStep, roiSize, maskSize, anchor});         \
  }                                                                                                                  \
  HuxStatus huxiFilterBox_##t##_##l##IR(Hux##t* pSrcDst, int srcDstStep, HuxiSize roiSize, HuxiSize maskSize,        \
                                        HuxiPoint anchor) {                                                          \
    return hux::filterBox<true, hux::l, Hux##t>(                                                                     \
        {pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, maskSize, anchor});                                      \
  }
HUX_STAMP(EXPORT, (8u, 16s, 32f), (C1, C3, AC4, C4))
