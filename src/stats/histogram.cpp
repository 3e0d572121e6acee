// HistogramRange, HistogramEven: how many pixels of each channel lie between levels.
#include <algorithm>
#include <array>

#include "core/check.h"
#include "core/stamp.h"
#include "huxi_stats.h"
#include "stats/counters.h"

namespace hux {
namespace {

// Writes evenly spaced levels: each step is the quotient, and the first ones take one of the remainder, which is
// returned. Sums and differences wrap.
Hux32s ownvi_HistogramEven(Element<Hux32s>* levels, int n, Hux32s lower, Hux32s upper) {
  const auto range = std::int64_t(Hux32s(Hux32u(upper) - Hux32u(lower)));
  const Hux32s step = Hux32s(range / (n - 1)), remainder = Hux32s(range % (n - 1)), more = step >= 0 ? 1 : -1;
  Hux32u level = Hux32u(lower);
  levels[0] = lower;
  Hux32s left = remainder;
  for (int i = 0; i + 1 < n; ++i) {
    level += Hux32u(step);
    if (more > 0 ? left > 0 : left < 0) level += Hux32u(more), left -= more;
    levels[i + 1] = Hux32s(level);
  }
  return remainder;
}

// The arguments of C1 are those of one channel.

template <class L, class T, class Level>
Histograms<L, T> histogramsOf(Hux32s* const* pHist, const Level* const* pLevels, const int* nLevels) {
  Histograms<L, T> histograms;
  for (int c = 0; c < L::processed; ++c)
    histograms[c] = {{elements(pLevels[c]), elements(nLevels)[c]}, elements(pHist[c])};
  return histograms;
}

// Each channel in turn: its pointers, its number of levels.
template <class L, class Level>
HuxStatus channelsSound(Hux32s* const* pHist, const Level* const* pLevels, const int* nLevels) {
  for (int c = 0; c < L::processed; ++c)
    if (HuxStatus s = check(pointers(pHist[c], pLevels[c]), failUnless(elements(nLevels)[c] >= 2, huxStsBadHistLevels)))
      return s;
  return huxStsOk;
}

// One channel tests its levels last, several test them ahead of size and step.
template <class L, class... Arrays>
HuxStatus checkArguments(const void* pSrc, int srcStep, HuxiSize roi, Hux32s* const* pHist, auto* const* pLevels,
                         const int* nLevels, const Arrays*... bounds) {
  if constexpr (L::channels == 1)
    return check(pointers(pSrc, *pHist, *pLevels), size(roi), steps(srcStep),
                 failUnless(*nLevels >= 2, huxStsBadHistLevels));
  else
    return check(
        pointers(pSrc, pHist, pLevels, nLevels, bounds...), [=] { return channelsSound<L>(pHist, pLevels, nLevels); },
        size(roi), steps(srcStep));
}

template <class L, class T>
HuxStatus range(const T* pSrc, int srcStep, HuxiSize roi, Hux32s* const* pHist, const LevelOf<T>* const* pLevels,
                const int* nLevels) {
  if (HuxStatus s = checkArguments<L>(pSrc, srcStep, roi, pHist, pLevels, nLevels)) return s;
  return count<L, T>(rows<L>(pSrc, srcStep), roi, histogramsOf<L, T>(pHist, pLevels, nLevels));
}

template <class L, class T>
HuxStatus even(const T* pSrc, int srcStep, HuxiSize roi, Hux32s* const* pHist, Hux32s* const* pLevels,
               const int* nLevels, const Hux32s* lower, const Hux32s* upper) {
  if (HuxStatus s = checkArguments<L>(pSrc, srcStep, roi, pHist, pLevels, nLevels, lower, upper)) return s;
  bool divides = true;
  for (int c = 0; c < L::processed; ++c)
    divides &=
        ownvi_HistogramEven(elements(pLevels[c]), elements(nLevels)[c], elements(lower)[c], elements(upper)[c]) == 0;
  const auto src = rows<L>(pSrc, srcStep);
  const auto histograms = histogramsOf<L, T, Hux32s>(pHist, pLevels, nLevels);
  if (sizeof(T) == 1 || !divides) return count<L, T>(src, roi, histograms);
  if constexpr (sizeof(T) == 2) {
    bool small = true;
    for (const auto& histogram : histograms) histogram.clear(), small &= stepsAreSmall(histogram.levels);
    if (small)
      countChannels<L>(src, roi, [&](int c, const auto* p, Index n) { countEven(p, n, histograms[c]); });
    else
      countWithoutTable<L>(src, roi, histograms);
  }
  return huxStsOk;
}

}  // namespace
}  // namespace hux

// What a function of one channel gets by value or by pointer, one of several channels gets as an array of it.
#define EXPORT_C1(t, Level)                                                                                \
  HuxStatus huxiHistogramRange_##t##_C1R(const Hux##t* pSrc, int srcStep, HuxiSize roiSize, Hux32s* pHist, \
                                         const Level* pLevels, int nLevels) {                              \
    return hux::range<hux::C1>(pSrc, srcStep, roiSize, &pHist, &pLevels, &nLevels);                        \
  }
#define EXPORT_RANGE(t, l, Level)                                                                                    \
  HuxStatus huxiHistogramRange_##t##_##l##R(const Hux##t* pSrc, int srcStep, HuxiSize roiSize, Hux32s* const* pHist, \
                                            const Level* const* pLevels, const int* nLevels) {                       \
    return hux::range<hux::l>(pSrc, srcStep, roiSize, pHist, pLevels, nLevels);                                      \
  }
#define EXPORT(t, l) EXPORT_RANGE(t, l, Hux32s)
HUX_STAMP(EXPORT, (8u, 16s, 16u), (C3, AC4, C4))
#undef EXPORT
#define EXPORT(t, l) EXPORT_RANGE(t, l, Hux32f)
HUX_STAMP(EXPORT, (32f), (C3, AC4, C4))
#undef EXPORT
EXPORT_C1(8u, Hux32s)
EXPORT_C1(16s, Hux32s)
EXPORT_C1(16u, Hux32s)
EXPORT_C1(32f, Hux32f)

#define EXPORT(t, l)                                                                                                \
  HuxStatus huxiHistogramEven_##t##_##l##R(const Hux##t* pSrc, int srcStep, HuxiSize roiSize, Hux32s* const* pHist, \
                                           Hux32s* const* pLevels, const int* nLevels, const Hux32s* lowerLevel,    \
                                           const Hux32s* upperLevel) {                                              \
    return hux::even<hux::l>(pSrc, srcStep, roiSize, pHist, pLevels, nLevels, lowerLevel, upperLevel);              \
  }
HUX_STAMP(EXPORT, (8u, 16s, 16u), (C3, AC4, C4))
#undef EXPORT
#define EXPORT(t, _)                                                                                          \
  HuxStatus huxiHistogramEven_##t##_C1R(const Hux##t* pSrc, int srcStep, HuxiSize roiSize, Hux32s* pHist,     \
                                        Hux32s* pLevels, int nLevels, Hux32s lowerLevel, Hux32s upperLevel) { \
    return hux::even<hux::C1>(pSrc, srcStep, roiSize, &pHist, &pLevels, &nLevels, &lowerLevel, &upperLevel);  \
  }
HUX_STAMP(EXPORT, (8u, 16s, 16u), (C1))
