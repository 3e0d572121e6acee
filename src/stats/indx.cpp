// MinIndx, MaxIndx: the smallest or the largest element of each channel, and where it is met first.
#include "core/check.h"
#include "core/stamp.h"
#include "lanes/lanes_math.h"
#include "stats/extrema.h"

namespace hux {
namespace {

// Whether a replaces b. A NaN neither replaces nor is replaced.
template <bool Most, class T>
bool beats(T a, T b) {
  return Most ? a > b : a < b;
}

// The extreme of a batch; which of equal elements is open.
template <class T, bool Most>
struct Extreme {
  using Limits = std::numeric_limits<T>;
  static constexpr T kHighest = Limits::has_infinity ? Limits::infinity() : Limits::max();
  static constexpr T kLowest = Limits::has_infinity ? -Limits::infinity() : Limits::lowest();

  static constexpr int lanes = laneCount<T>, steps = std::numeric_limits<int>::max();
  static constexpr T rest = Most ? kLowest : kHighest;
  using V = Lanes<T, lanes>;
  struct State {
    V best = splat<V>(rest);
  };
  static void add(State& s, V v) {
    if constexpr (Most)
      s.best = greater(v, s.best);
    else
      s.best = lesser(v, s.best);
  }
  static void join(State& s, const State& other) { add(s, other.best); }
  static void settle(State&) {}

  struct Total {
    T best = rest;
  };
  template <class F>
  static void eachLane(const State& s, F f) {
    for (int l = 0; l < lanes; ++l) f(l, Total{s.best[l]});
  }
  static Total merge(Total a, Total b) { return beats<Most>(b.best, a.best) ? b : a; }
};

// The first of n pixels whose channel c equals the value; n if there is none.
template <class L, class T>
Index firstEqual(const Element<T>* pixels, Index n, int c, T value) {
  constexpr int lanes = laneCount<T>, period = L::channels == 3 ? 3 : 1;
  using V = Lanes<T, lanes>;
  using Mask = decltype(V{} == V{});
  Mask channel[period];
  for (int e = 0; e < period * lanes; ++e) channel[e / lanes][e % lanes] = e % L::channels == c ? -1 : 0;
  const Index elements = n * L::channels - (L::channels - L::processed);
  Index e = 0;
  for (; e + period * lanes <= elements; e += period * lanes) {
    Mask equal = {};
    for (int k = 0; k < period; ++k) equal |= (loadLanes<V>(pixels + e + k * lanes) == value) & channel[k];
    if (any(equal)) break;
  }
  Index i = e / L::channels;
  while (i < n && pixels[i * L::channels + c] != value) ++i;
  return i;
}

// Small batches, since one that holds a better element than those before it is searched for that.
constexpr Index kBatch = 1 << 15;

template <bool Most, class L, class T>
HuxStatus extremeIndx(const T* pSrc, int srcStep, HuxiSize roi, T* pBest, int* pIndexX, int* pIndexY) {
  if (HuxStatus s = check(pointers(pSrc, pBest, pIndexX, pIndexY), size(roi), steps(srcStep))) return s;
  const auto src = rows<L>(pSrc, srcStep);
  T best[L::processed];
  Index at[L::processed] = {};
  for (int c = 0; c < L::processed; ++c) best[c] = src.row(0)[c];
  using Fold = Extreme<T, Most>;
  reduceInBatches<L, Fold>(src, roi, kBatch, [&](const auto& totals, auto again) {
    bool final = std::is_integral_v<T>;
    for (int c = 0; c < L::processed; ++c) {
      if (beats<Most>(totals[c].best, best[c]))
        again([&](const auto* pixels, Index n, Index first) {
          const Index i = firstEqual<L>(pixels, n, c, totals[c].best);
          if (i < n) best[c] = pixels[i * L::channels + c], at[c] = first + i;
          return i < n;
        });
      final = final && best[c] == (Most ? Fold::kHighest : Fold::kLowest);
    }
    return final;
  });
  for (int c = 0; c < L::processed; ++c) {
    elements(pBest)[c] = best[c];
    elements(pIndexX)[c] = int(at[c] % roi.width);
    elements(pIndexY)[c] = int(at[c] / roi.width);
  }
  return huxStsOk;
}

}  // namespace
}  // namespace hux

#define EXPORT(t, l)                                                                                                \
  HuxStatus huxiMinIndx_##t##_##l##R(const Hux##t* pSrc, int srcStep, HuxiSize roiSize, Hux##t* pMin, int* pIndexX, \
                                     int* pIndexY) {                                                                \
    return hux::extremeIndx<false, hux::l>(pSrc, srcStep, roiSize, pMin, pIndexX, pIndexY);                         \
  }                                                                                                                 \
  HuxStatus huxiMaxIndx_##t##_##l##R(const Hux##t* pSrc, int srcStep, HuxiSize roiSize, Hux##t* pMax, int* pIndexX, \
                                     int* pIndexY) {                                                                \
    return hux::extremeIndx<true, hux::l>(pSrc, srcStep, roiSize, pMax, pIndexX, pIndexY);                          \
  }
HUX_STAMP(EXPORT, (8u, 16s, 32f), (C1, C3, AC4, C4))
