// Norm, NormDiff and NormRel: the largest magnitude (Inf), the sum of magnitudes (L1) or the root of the sum of squares
// (L2) of an image, of the difference of two, and of the difference relative to the second one.
#include "core/check.h"
#include "core/stamp.h"
#include "huxi_stats.h"
#include "stats/norms.h"

namespace hux {
namespace {

// 16u members test the steps before the size.
template <class T, class... S>
HuxStatus region(HuxiSize roi, S... step) {
  return std::is_same_v<T, Hux16u> ? check(steps(step...), size(roi)) : check(size(roi), steps(step...));
}

template <class L, class M, class... T>
void measure(HuxiSize roi, Hux64f* pValue, const Rows<const T>&... images) {
  // Where sums of squares of bytes could outgrow 32 bits, each strip of the image has a norm of its own, whose square
  // is added up, rounded as it is.
  constexpr bool strips = std::is_same_v<M, L2> && ((sizeof(T) == 1) && ...);
  constexpr bool anyOrder = std::is_same_v<M, L2> && sizeof...(T) == 2;
  std::array<Hux64f, L::processed> norms{};
  if (strips && roi.width > kWidest) {
    for (Index x = 0; x < roi.width; x += kWidest) {
      const HuxiSize strip = {int(std::min<Index>(kWidest, roi.width - x)), roi.height};
      const auto squares = totals<L, M, anyOrder>(
          strip, Rows<const T>{images.first + x * L::channels, images.step, images.pixelBytes}...);
      for (int c = 0; c < L::processed; ++c) norms[c] += std::sqrt(squares[c]) * std::sqrt(squares[c]);
    }
  } else {
    norms = totals<L, M, anyOrder>(roi, images...);
  }
  std::ranges::transform(norms, elements(pValue), M::finished);
}

template <class L, class M, class T>
HuxStatus norm(const T* pSrc, int srcStep, HuxiSize roi, Hux64f* pValue) {
  if (HuxStatus s = check(pointers(pSrc, pValue), region<T>(roi, srcStep))) return s;
  measure<L, M>(roi, pValue, rows<L>(pSrc, srcStep));
  return huxStsOk;
}

template <class L, class M, class T>
HuxStatus normDiff(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, HuxiSize roi, Hux64f* pValue) {
  if (HuxStatus s = check(pointers(pSrc1, pSrc2, pValue), region<T>(roi, src1Step, src2Step))) return s;
  measure<L, M>(roi, pValue, rows<L>(pSrc1, src1Step), rows<L>(pSrc2, src2Step));
  return huxStsOk;
}

// False for a NaN.
bool divides(Hux64f denominator) { return denominator >= std::numeric_limits<Hux64f>::min(); }

// One channel divides before the root and several divide after it; and several divide all or none.
template <class L, class M, class T>
HuxStatus normRel(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, HuxiSize roi, Hux64f* pValue) {
  if (HuxStatus s = check(pointers(pSrc1, pSrc2, pValue), region<T>(roi, src1Step, src2Step))) return s;
  auto* values = elements(pValue);
  const auto images = std::make_tuple(rows<L>(pSrc1, src1Step), rows<L>(pSrc2, src2Step));
  if constexpr (L::channels == 1) {
    const Hux64f numerator = totals<L, M, true>(roi, std::get<0>(images), std::get<1>(images))[0];
    const Hux64f denominator = totals<L, M, true>(roi, std::get<1>(images))[0];
    *values = M::finished(divides(denominator) ? numerator / denominator : numerator);
    return divides(denominator) ? huxStsOk : huxStsDivByZeroWarn;
  } else {
    Hux64f denominators[L::processed];
    measure<L, M>(roi, denominators, std::get<1>(images));
    measure<L, M>(roi, pValue, std::get<0>(images), std::get<1>(images));
    if (!std::ranges::all_of(denominators, divides)) return huxStsDivByZeroWarn;
    for (int c = 0; c < L::processed; ++c) values[c] = values[c] / denominators[c];
    return huxStsOk;
  }
}

}  // namespace
}  // namespace hux

#define EXPORT_NORM(M, t, l, ...)                                                          \
  HuxStatus huxiNorm_##M##_##t##_##l##R(const Hux##t* pSrc, int srcStep, HuxiSize roiSize, \
                                        Hux64f* pValue __VA_ARGS__) {                      \
    return hux::norm<hux::l, hux::M>(pSrc, srcStep, roiSize, pValue);                      \
  }
#define EXPORT_NORMS(M, t, l, ...)                                                                                \
  EXPORT_NORM(M, t, l, __VA_ARGS__)                                                                               \
  HuxStatus huxiNormDiff_##M##_##t##_##l##R(const Hux##t* pSrc1, int src1Step, const Hux##t* pSrc2, int src2Step, \
                                            HuxiSize roiSize, Hux64f* pValue __VA_ARGS__) {                       \
    return hux::normDiff<hux::l, hux::M>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue);                      \
  }                                                                                                               \
  HuxStatus huxiNormRel_##M##_##t##_##l##R(const Hux##t* pSrc1, int src1Step, const Hux##t* pSrc2, int src2Step,  \
                                           HuxiSize roiSize, Hux64f* pValue __VA_ARGS__) {                        \
    return hux::normRel<hux::l, hux::M>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue);                       \
  }

#define EXPORT(t, l) EXPORT_NORMS(Inf, t, l, ) EXPORT_NORMS(L1, t, l, ) EXPORT_NORMS(L2, t, l, )
HUX_STAMP(EXPORT, (8u, 16s, 16u), (C1, C3, C4, AC4))
#undef EXPORT

#define EXPORT(t, l)                        \
  EXPORT_NORMS(Inf, t, l, )                 \
  EXPORT_NORMS(L1, t, l, , HuxAccuracyHint) \
  EXPORT_NORMS(L2, t, l, , HuxAccuracyHint)
HUX_STAMP(EXPORT, (32f), (C1, C3, C4, AC4))
EXPORT_NORM(Inf, 32s, C1, )
