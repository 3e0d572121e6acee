// Sum and Mean of the channels of an image.
#include "core/check.h"
#include "core/stamp.h"
#include "huxi_stats.h"
#include "workers/ordered_sum.h"
#include "workers/reduce.h"

namespace hux {
namespace {

template <class T>
struct Itself {
  using Result = T;
  template <class V>
  static V of(V v) {
    return v;
  }
};

// Integers are added up in 32 bits: bytes in a row of any length, words in blocks of 65536 pixels of a row.
template <class L, class T>
HuxStatus sum(const T* pSrc, int srcStep, HuxiSize roi, Hux64f* pSum) {
  if (HuxStatus s = check(pointers(pSrc, pSum), steps(srcStep), size(roi))) return s;
  std::array<Hux64f, L::processed> sums{};
  if constexpr (std::is_floating_point_v<T>) {
    sums = orderedTotals<L, ItsValue>(roi, rows<L>(pSrc, srcStep));
  } else {
    const Index block = sizeof(T) == 1 ? roi.width : 65536, most = std::is_signed_v<T> ? 32768 : T(-1);
    const auto add = [&](const auto& totals) {
      for (int c = 0; c < L::processed; ++c) sums[c] += signedTotal(totals[c]);
      return false;
    };
    reduce<L, SumFold<Itself<T>, L::channels != 1>>(roi, batches(roi, block, most), add, rows<L>(pSrc, srcStep));
  }
  std::copy_n(sums.begin(), L::processed, elements(pSum));
  return huxStsOk;
}

template <class L, class T>
HuxStatus mean(const T* pSrc, int srcStep, HuxiSize roi, Hux64f* pMean) {
  Hux64f sums[L::processed];
  if (HuxStatus s = check(pointers(pMean), [&] { return sum<L>(pSrc, srcStep, roi, sums); })) return s;
  const Hux64f pixels = Hux32s(Hux32u(roi.width) * Hux32u(roi.height));  // wraps
  auto* means = elements(pMean);
  for (int c = 0; c < L::processed; ++c) means[c] = L::channels == 1 ? sums[c] / pixels : sums[c] * (1.0 / pixels);
  return huxStsOk;
}

}  // namespace
}  // namespace hux

#define EXPORT_HINTED(t, l, ...)                                                                                  \
  HuxStatus huxiSum_##t##_##l##R(const Hux##t* pSrc, int srcStep, HuxiSize roiSize, Hux64f* pSum __VA_ARGS__) {   \
    return hux::sum<hux::l>(pSrc, srcStep, roiSize, pSum);                                                        \
  }                                                                                                               \
  HuxStatus huxiMean_##t##_##l##R(const Hux##t* pSrc, int srcStep, HuxiSize roiSize, Hux64f* pMean __VA_ARGS__) { \
    return hux::mean<hux::l>(pSrc, srcStep, roiSize, pMean);                                                      \
  }
#define EXPORT(t, l) EXPORT_HINTED(t, l, )
HUX_STAMP(EXPORT, (8u, 16s, 16u), (C1, C3, C4, AC4))
#undef EXPORT

#define EXPORT(t, l) EXPORT_HINTED(t, l, , HuxAccuracyHint)
HUX_STAMP(EXPORT, (32f), (C1, C3, C4, AC4))
