// Laplace, Hipass and Sharpen: what a pixel has beyond its surroundings, alone or added to it.
#include "core/stamp.h"
#include "filter/running_sum.h"
#include "huxi_filter.h"
#include "lanes/round.h"

namespace hux {
namespace {

// -1 -1 -1
// -1  8 -1
// -1 -1 -1
struct Laplace3 {
  static constexpr int height = 3;
  static auto row(const auto& p) { return Sum3::of(p); }
  template <class D>
  static auto column(const auto& r, const auto& p) {
    return saturate<D>(times<9>(p[0]) - r[-1] - r[0] - r[1]);
  }
};
using Hipass3 = Laplace3;

// -1 -1 -1   over 8, ties to even
// -1 16 -1
// -1 -1 -1
struct Sharpen {
  static constexpr int height = 3;
  static auto row(const auto& p) { return Sum3::of(p); }
  template <class D>
  static auto column(const auto& r, const auto& p) {
    const auto sum = times<17>(p[0]) - r[-1] - r[0] - r[1];
    if constexpr (std::is_same_v<D, Hux32f>)
      return sum * 0.125f;
    else
      return saturate<D>(roundShift(sum, 3));
  }
};

// -1 -3 -4 -3 -1
// -3  0  6  0 -3
// -4  6 20  6 -4
// -3  0  6  0 -3
// -1 -3 -4 -3 -1
//
// Each source row gives the sums for the window in which it is outermost, next to the middle, and in the middle.
struct Laplace5 {
  static constexpr int height = 5;
  static auto row(const auto& p) {
    using V = std::remove_cvref_t<decltype(p[0])>;
    if constexpr (isFloat<V>) {
      // From left to right; a weight of 0 takes no part.
      const V outermost = times<-1>(p[-2]) - times<3>(p[-1]) - times<4>(p[0]) - times<3>(p[1]) - p[2];
      const V inner = times<-3>(p[-2]) + times<6>(p[0]) - times<3>(p[2]);
      const V middle = times<-4>(p[-2]) + times<6>(p[-1]) + times<20>(p[0]) + times<6>(p[1]) - times<4>(p[2]);
      return std::array{outermost, inner, middle};
    } else {
      const V outer = p[-2] + p[2], next = p[-1] + p[1], centre = p[0];
      return std::array{V(times<-4>(centre) - times<3>(next) - outer), V(times<6>(centre) - times<3>(outer)),
                        V(times<20>(centre) + times<6>(next) - times<4>(outer))};
    }
  }
  template <class D>
  static auto ofSum(const auto& sum) {
    return saturate<D>(sum);
  }
};

// 24 at the centre, -1 around it. That of floats runs.
struct Hipass5 {
  static constexpr int height = 5;
  static auto row(const auto& p) { return Sum5::of(p); }
  template <class D>
  static auto column(const auto& r, const auto& p) {
    return saturate<D>(times<25>(p[0]) - Sum5::of(r));
  }
};
struct RunningHipass5 {
  static constexpr int lanes = laneCount<Hux32f>;
  using V = Lanes<Hux32f, lanes>;
  V operator()(V sum, V pixel) const { return pixel * 25.0f - sum; }
};

}  // namespace
}  // namespace hux

#define EXPORT(t, l)                                                                                   \
  HuxStatus huxiFilterSharpen_##t##_##l##R(const Hux##t* pSrc, int srcStep, Hux##t* pDst, int dstStep, \
                                           HuxiSize roiSize) {                                         \
    return hux::fixedFilter<hux::l, hux::Sharpen>(pSrc, srcStep, pDst, dstStep, roiSize);              \
  }
HUX_STAMP(EXPORT, (8u, 16s, 32f), (C1, C3, C4, AC4))
#undef EXPORT

#define EXPORT_FILTER(name, types, t, d, l, body, filter3x3, filter5x5)                                     \
  HuxStatus huxiFilter##name##_##types##_##l##R(const Hux##t* pSrc, int srcStep, Hux##d* pDst, int dstStep, \
                                                HuxiSize roiSize, HuxiMaskSize mask) {                      \
    return hux::body<hux::l, hux::filter3x3, hux::filter5x5>(pSrc, srcStep, pDst, dstStep, roiSize, mask);  \
  }
#define EXPORT(t, l) EXPORT_FILTER(Laplace, t, t, t, l, fixedFilter, Laplace3, Laplace5)
HUX_STAMP(EXPORT, (8u, 16s, 32f), (C1, C3, C4, AC4))
#undef EXPORT
#define EXPORT(t, l) EXPORT_FILTER(Laplace, t##16s, t, 16s, l, fixedFilter, Laplace3, Laplace5)
HUX_STAMP(EXPORT, (8u, 8s), (C1))
#undef EXPORT
#define EXPORT(t, l) EXPORT_FILTER(Hipass, t, t, t, l, fixedFilter, Hipass3, Hipass5)
HUX_STAMP(EXPORT, (8u, 16s), (C1, C3, C4, AC4))
#undef EXPORT
#define EXPORT(t, l) EXPORT_FILTER(Hipass, t, t, t, l, runningFilter, Hipass3, RunningHipass5)
HUX_STAMP(EXPORT, (32f), (C1, C3, C4, AC4))
