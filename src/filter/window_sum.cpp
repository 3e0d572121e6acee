// Window sums: the sums of the pixels along a row, or down a column. Each is that of the neighbour plus the difference
// of what enters and what leaves, in single precision and in this order.
#include "core/check.h"
#include "core/scratch.h"
#include "core/stamp.h"
#include "core/window.h"
#include "huxi_filter.h"
#include "workers/running.h"

namespace hux {
namespace {

// R rows side by side, since an addition waits for the one before it.
template <int N, int R, class T>
void sumRowsInOrder(WindowRows<T> src, Rows<Hux32f> dst, Index mask, Index n) {
  const Element<T>* from[R];
  Element<Hux32f>* to[R];
  for (int r = 0; r < R; ++r) from[r] = src.row(r).first, to[r] = dst.row(r);
  for (int c = 0; c < N; ++c) {
    Hux32f sum[R];
    for (int r = 0; r < R; ++r) sum[r] = from[r][c];
    for (Index k = 1; k < mask; ++k)
      for (int r = 0; r < R; ++r) sum[r] += Hux32f(from[r][k * N + c]);
    for (int r = 0; r < R; ++r) to[r][c] = sum[r];
    for (Index x = c; x + N < n; x += N)
      for (int r = 0; r < R; ++r) {
        sum[r] += Hux32f(Hux32s(from[r][x + mask * N]) - Hux32s(from[r][x]));
        to[r][x + N] = sum[r];
      }
  }
}

template <class L, class T>
HuxStatus sumWindowRow(const T* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roi, int mask, int anchor) {
  if (HuxStatus s = check(pointers(pSrc, pDst), maskSize(mask), anchorInside(anchor, mask))) return s;
  if (roi.width < 1) return huxStsOk;
  constexpr int N = L::channels;
  const auto src = windowRows<L>(pSrc, srcStep, imageOrder({mask, 1}, {anchor, 0}));
  const auto dst = rows<L>(pDst, dstStep);
  const Index n = Index(roi.width) * N;
  if (exactSums(mask, std::is_signed_v<T> ? 32768 : 255)) {
    forEachRow(roi, src, dst, [&](Window<T> window, Element<Hux32f>* row, Index) {
      windowSums<N, Hux32s, false>(window[0], mask, n, [row](Index x, auto sums, int count) {
        storeColours<4>(row + x, convert<Hux32f>(sums), count);
      });
    });
    return huxStsOk;
  }
  // Rows that overlap are written one after another, so that the last one stands.
  Index y = 0;
  if (std::abs(Index(dstStep)) >= n * Index(sizeof(Hux32f)))
    for (; y + 8 <= roi.height; y += 8) sumRowsInOrder<N, 8>(src.from(y), dst.from(y), mask, n);
  for (; y < roi.height; ++y) sumRowsInOrder<N, 1>(src.from(y), dst.from(y), mask, n);
  return huxStsOk;
}

template <class T>
void sumColumns(WindowRows<T> src, Rows<Hux32f> dst, Index height, Index mask, Hux32f* memory, Index n) {
  ColumnSums<Hux32f> sums(memory, n);
  sums.start(src.row(0), mask, 0);
  for (Index y = 0;; ++y) {
    std::memcpy(dst.row(y), sums.get(), std::size_t(n) * sizeof(Hux32f));
    if (y + 1 >= height) break;
    sums.move(src.row(y)[mask], src.row(y)[0]);
  }
}

template <class L, class T>
HuxStatus sumWindowColumn(const T* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roi, int mask, int anchor) {
  if (HuxStatus s = check(pointers(pSrc, pDst), maskSize(mask), anchorInside(anchor, mask))) return s;
  if (roi.width < 1 || roi.height < 1) return huxStsOk;
  const auto src = windowRows<L>(pSrc, srcStep, imageOrder({1, mask}, {0, anchor}));
  const auto dst = rows<L>(pDst, dstStep);
  const Index n = Index(roi.width) * L::channels;
  if (const Scratch<Hux32f> row(ColumnSums<Hux32f>::room(n)); row) {
    sumColumns(src, dst, roi.height, mask, row.get(), n);
    return huxStsOk;
  }
  // Without memory, which is not a failure here, strips are worked on that fit the stack.
  constexpr Index strip = 512;
  Hux32f memory[strip + 4 * laneCount<Hux8u>];
  for (Index x = 0; x < n; x += strip)
    sumColumns<T>({{src.top.first + x, src.top.step}}, {dst.first + x, dst.step, dst.pixelBytes}, roi.height, mask,
                  memory, std::min(strip, n - x));
  return huxStsOk;
}

}  // namespace
}  // namespace hux

#define EXPORT(t, l)                                                                                        \
  HuxStatus huxiSumWindowRow_##t##32f_##l##R(const Hux##t* pSrc, int srcStep, Hux32f* pDst, int dstStep,    \
                                             HuxiSize dstRoiSize, int maskSize, int anchor) {               \
    return hux::sumWindowRow<hux::l>(pSrc, srcStep, pDst, dstStep, dstRoiSize, maskSize, anchor);           \
  }                                                                                                         \
  HuxStatus huxiSumWindowColumn_##t##32f_##l##R(const Hux##t* pSrc, int srcStep, Hux32f* pDst, int dstStep, \
                                                HuxiSize dstRoiSize, int maskSize, int anchor) {            \
    return hux::sumWindowColumn<hux::l>(pSrc, srcStep, pDst, dstStep, dstRoiSize, maskSize, anchor);        \
  }
HUX_STAMP(EXPORT, (8u, 16s), (C1, C3, C4))
