// QualityIndex: how alike two images are, by the correlation of their pixels, their means and their contrasts.
#include <algorithm>

#include "core/check.h"
#include "core/rows.h"
#include "core/stamp.h"
#include "core/team.h"
#include "huxi_stats.h"
#include "huxs.h"
#include "workers/channels.h"

namespace hux {
namespace {

// Sums of products of the deviations from the means.
struct Sums {
  Hux32f cov, varP, varQ;
};

// What a thread has: sums of each channel, two rows of floats, and one of elements. The sums are floats, each taking
// one term from a row and, in the end, one from each thread, so that their last bits depend on the number of threads.
template <class T>
struct Share {
  static constexpr std::size_t kSums = 64;  // bytes
  static std::size_t bytes(int width) {
    return (kSums + std::size_t(width) * (2 * sizeof(Hux32f) + sizeof(T)) + (kSums - 1)) / kSums * kSums;
  }

  Sums* sums;
  Hux32f *p, *q;
  T* channel;
  Share(std::byte* share, int width)
      : sums(reinterpret_cast<Sums*>(share)),
        p(reinterpret_cast<Hux32f*>(share + kSums)),
        q(p + width),
        channel(reinterpret_cast<T*>(q + width)) {}
};

void toFloats(const Hux8u* from, Hux32f* to, int n) { huxsConvert_8u32f(from, to, n); }
void toFloats(const Hux32f* from, Hux32f* to, int n) { huxsCopy_32f(from, to, n); }

Hux32f squaredNorm(const Hux32f* row, int n) {
  Hux32f norm = 0;
  huxsNorm_L2_32f(row, n, &norm);
  return norm * norm;
}

void addRow(Sums& sums, const Hux32f* p, const Hux32f* q, int n) {
  Hux32f product = 0;
  huxsDotProd_32f(p, q, n, &product);
  sums.cov += product;
  sums.varP += squaredNorm(p, n);
  sums.varQ += squaredNorm(q, n);
}

Hux32f indexOf(const Sums& sums, Hux64f meanP, Hux64f meanQ) {
  const Hux64f a = Hux64f(sums.cov * 4.0f) * meanP * meanQ;
  const Hux64f b = Hux64f(sums.varP + sums.varQ) * (meanP * meanP + meanQ * meanQ);
  return Hux32f(a / b);
}

// The means come from the function `mean`, which may ask for a hint.
template <class L, class T, class Mean, class... Hint>
HuxStatus qualityIndex(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, HuxiSize roi, Hux32f* pQualityIndex,
                       Mean mean, Hint... hint) {
  if (HuxStatus s = check(pointers(pSrc1, pSrc2, pQualityIndex), size(roi), steps(src1Step, src2Step))) return s;
  const auto src1 = rows<L>(pSrc1, src1Step), src2 = rows<L>(pSrc2, src2Step);
  const int width = roi.width;
  Hux64f mean1[L::processed], mean2[L::processed];
  mean(pSrc1, src1Step, roi, mean1, hint...);
  mean(pSrc2, src2Step, roi, mean2, hint...);

  const auto centred = [width](const Element<T>* pixels, int c, T* room, Hux32f* row, Hux64f meanOfAll) {
    toFloats(channelOf<L>(pixels, c, room, width), row, width);
    huxsSubC_32f_I(Hux32f(meanOfAll), row, width);
  };
  const auto addShare = [&](RowRange range, std::byte* memory) {
    const Share<T> share(memory, width);
    std::fill_n(share.sums, L::processed, Sums{0, 0, 0});
    for (Index y = range.first; y < range.first + range.count; ++y)
      for (int c = 0; c < L::processed; ++c) {
        centred(src1.row(y), c, share.channel, share.p, mean1[c]);
        centred(src2.row(y), c, share.channel, share.q, mean2[c]);
        addRow(share.sums[c], share.p, share.q, width);
      }
  };
  Sums all[L::processed] = {};
  const auto gather = [&](const std::byte* memory) {
    for (int c = 0; c < L::processed; ++c) {
      const Sums& sums = reinterpret_cast<const Sums*>(memory)[c];
      all[c].cov += sums.cov, all[c].varP += sums.varP, all[c].varQ += sums.varQ;
    }
  };
  if (HuxStatus s = sumRows(roi.height, Share<T>::bytes(width), addShare, gather)) return s;
  for (int c = 0; c < L::processed; ++c) elements(pQualityIndex)[c] = indexOf(all[c], mean1[c], mean2[c]);
  return huxStsOk;
}

}  // namespace
}  // namespace hux

#define EXPORT_MEMBER(types, t, l, ...)                                                                             \
  HuxStatus huxiQualityIndex_##types##_##l##R(const Hux##t* pSrc1, int src1Step, const Hux##t* pSrc2, int src2Step, \
                                              HuxiSize roiSize, Hux32f* pQualityIndex) {                            \
    return hux::qualityIndex<hux::l>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pQualityIndex, __VA_ARGS__);        \
  }
#define EXPORT(_, l)                              \
  EXPORT_MEMBER(8u32f, 8u, l, huxiMean_8u_##l##R) \
  EXPORT_MEMBER(32f, 32f, l, huxiMean_32f_##l##R, huxHintNone)
HUX_STAMP(EXPORT, (_), (C1, C3, AC4))
