// FilterMedianColor: of the pixels of a window the one whose colour lies nearest to all others.
#include <algorithm>

#include "core/stamp.h"
#include "filter/vector_rows.h"
#include "huxi_filter.h"
#include "lanes/lanes_sum.h"

namespace hux {
namespace {

// What distances of elements are computed and added up in.
template <class T>
struct DistanceOf;
template <>
struct DistanceOf<Hux8u> {
  using Type = Hux16s;
};
template <>
struct DistanceOf<Hux16s> {
  using Type = Hux32s;
};
template <>
struct DistanceOf<Hux32f> {
  using Type = Hux32f;
};

template <class V>
V between(V a, V b) {
  if constexpr (std::is_floating_point_v<LaneType<V>>)
    return bitsAs<V>(bitsAs<Lanes<Hux32s, lanesIn<V>>>(a - b) & 0x7fffffff);
  else
    return V(magnitude(a - b));
}

// A strip of windows. The distances between the pixels of two rows are added up once, when the lower of them enters the
// windows, and serve until the upper one leaves.
template <int side, class T>
class ColorWindows {
 public:
  using D = typename DistanceOf<T>::Type;
  static constexpr Index kPixels = 256 / sizeof(D);

  // The next row, which takes the place of the oldest.
  template <class L>
  void enter(const Element<T>* src, Index n) {
    newest_ = slot(1);
    if (entered_ < side) ++entered_;
    for (int c = 0; c < 3; ++c)
      for (Index x = 0; x < n + side - 1; ++x) pixels_[newest_][c][x] = D(src[x * L::channels + c]);
    for (int back = 0; back < entered_; ++back) addUp(newest_, slot(side - back), n);
  }

  template <class L>
  void store(Element<T>* dst, Index n) {
    coverRow<lanes>(std::max<Index>(n, lanes), [&](Index x) {
      V best = cost(0, 0, x), colour[3];
      for (int c = 0; c < 3; ++c) colour[c] = pixel(0, 0, c, x);
      for (int j = 0; j < side; ++j)
        for (int i = j == 0; i < side; ++i) {
          const V candidate = cost(j, i, x);
          const auto nearer = best > candidate;
          best = nearer ? candidate : best;
          for (int c = 0; c < 3; ++c) colour[c] = nearer ? pixel(j, i, c, x) : colour[c];
        }
      for (int c = 0; c < 3; ++c) storeLanes(chosen_[c] + x, colour[c]);
    });
    for (Index x = 0; x < n; ++x)
      for (int c = 0; c < 3; ++c) dst[x * L::channels + c] = T(chosen_[c][x]);
  }

 private:
  static constexpr int lanes = laneCount<D>;
  using V = Lanes<D, lanes>;
  using Row = D[kPixels + side - 1 + lanes];

  // Row j of the windows; side and more wrap.
  int slot(int j) const { return (newest_ + j) % side; }
  int windowRow(int j) const { return slot(j + 1); }

  V pixel(int j, int i, int c, Index x) const { return loadLanes<V>(pixels_[windowRow(j)][c] + x + i); }

  // Distances of the pixels of rows a and b of the strip, of each to those beside and above or below the other, and
  // their sums over the pixels that are together in a window: of pixel i of row a to row b, and of pixel i of row b to
  // row a.
  void addUp(int a, int b, Index n) {
    const Index count = n + side - 1;
    for (int shift = 1 - side; shift < side; ++shift) {
      const Index from = std::max(-shift, 0), to = count - std::max(shift, 0);
      for (Index x = from; x < to; x += lanes) {
        const auto part = [&](int c) {
          return between(loadLanes<V>(pixels_[a][c] + x), loadLanes<V>(pixels_[b][c] + x + shift));
        };
        storeLanes(apart_[shift + side - 1] + x, V(part(0) + part(1) + part(2)));
      }
    }
    const auto distance = [&](int i, int k, Index x) { return loadLanes<V>(apart_[k - i + side - 1] + x + i); };
    for (Index x = 0; x < n; x += lanes)
      for (int i = 0; i < side; ++i) {
        V toB = distance(i, 0, x), toA = distance(0, i, x);
        for (int k = 1; k < side; ++k) toB += distance(i, k, x), toA += distance(k, i, x);
        storeLanes(sums_[a][b][i] + x, toB);
        if (a != b) storeLanes(sums_[b][a][i] + x, toA);
      }
  }

  V cost(int j, int i, Index x) const {
    V sum = loadLanes<V>(sums_[windowRow(j)][windowRow(0)][i] + x);
    for (int k = 1; k < side; ++k) sum += loadLanes<V>(sums_[windowRow(j)][windowRow(k)][i] + x);
    return sum;
  }

  int newest_ = 0, entered_ = 0;
  D pixels_[side][3][kPixels + 2 * (side - 1) + 2 * lanes];
  Row apart_[2 * side - 1], sums_[side][side][side], chosen_[3];
};

template <int side, class L, class T>
void ownhuxiFilterMedianColor(const T* pSrc, int srcStep, T* pDst, int dstStep, HuxiSize roi) {
  using Windows = ColorWindows<side, T>;
  const auto src = windowRows<L>(pSrc, srcStep, centred(side));
  const auto dst = rows<L>(pDst, dstStep);
  for (Index from = 0; from < roi.width; from += Windows::kPixels) {
    const Index n = std::min<Index>(Windows::kPixels, roi.width - from);
    Windows windows{};  // also what lies behind the last pixel of a row is added up
    for (Index y = 1 - side; y < roi.height; ++y) {
      windows.template enter<L>(src.top[y + side - 1] + from * L::channels, n);
      if (y >= 0) windows.template store<L>(dst.row(y) + from * L::channels, n);
    }
  }
}

template <class L, class T>
HuxStatus filterMedianColor(const T* pSrc, int srcStep, T* pDst, int dstStep, HuxiSize roi, HuxiMaskSize mask) {
  if (HuxStatus s = check(pointers(pSrc, pDst), size(roi), steps(srcStep, dstStep),
                          failUnless(mask == huxMskSize3x3 || mask == huxMskSize5x5, huxStsBadMaskSize)))
    return s;
  if (mask == huxMskSize3x3)
    ownhuxiFilterMedianColor<3, L>(pSrc, srcStep, pDst, dstStep, roi);
  else
    ownhuxiFilterMedianColor<5, L>(pSrc, srcStep, pDst, dstStep, roi);
  return huxStsOk;
}

}  // namespace
}  // namespace hux

#define EXPORT(t, l)                                                                                       \
  HuxStatus huxiFilterMedianColor_##t##_##l##R(const Hux##t* pSrc, int srcStep, Hux##t* pDst, int dstStep, \
                                               HuxiSize dstRoiSize, HuxiMaskSize mask) {                   \
    return hux::filterMedianColor<hux::l>(pSrc, srcStep, pDst, dstStep, dstRoiSize, mask);                 \
  }
HUX_STAMP(EXPORT, (8u, 16s, 32f), (C3, AC4))
