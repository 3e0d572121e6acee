// CplxExtendToPack and PackToCplxExtend: between full spectra of real images and packed ones. Values only move, and
// change their sign where a conjugate stands for what is not stored.
#include "transform/packed.h"

#include "core/stamp.h"
#include "huxi_transform.h"

namespace hux {
namespace {

template <class L, class C, class T>
HuxStatus toPacked(const C* pSrc, int srcStep, HuxiSize size, T* pDst, int dstStep) {
  if (HuxStatus s = check(pointers(pSrc, pDst), hux::size(size), steps(srcStep, dstStep))) return s;
  constexpr Index n = L::channels;
  const Index width = size.width, height = size.height, pairs = (width - 1) / 2;
  const auto src = rows<L>(pSrc, srcStep);
  const auto dst = rows<L>(pDst, dstStep);
  // Column x of the spectrum, in the outer column of the result.
  const auto outer = [&](Index x, Index column) {
    for (Index c = 0; c < n; ++c) {
      const auto at = [&](Index v) { return C(src.row(v)[x * n + c]); };
      const auto put = [&](Index y, T value) { dst.row(y)[column * n + c] = value; };
      put(0, at(0).re);
      for (Index v = 1; 2 * v < height; ++v) put(2 * v - 1, at(v).re), put(2 * v, at(v).im);
      if (height % 2 == 0) put(height - 1, at(height / 2).re);
    }
  };
  outer(0, 0);
  if (width % 2 == 0) outer(width / 2, width - 1);
  for (Index y = 0; y < height; ++y) {
    const auto* from = src.row(y) + n;
    auto* to = dst.row(y) + n;
    if constexpr (n == 1)
      std::memcpy(to, from, sizeof(C) * std::size_t(pairs));
    else
      for (Index u = 0; u < pairs; ++u, from += n, to += 2 * n)
        for (Index c = 0; c < n; ++c) {
          const C z = from[c];
          to[c] = z.re, to[n + c] = z.im;
        }
  }
  return huxStsOk;
}

template <class C>
HuxStatus toFull(const Part<C>* pSrc, HuxiSize size, int srcStep, C* pDst, int dstStep) {
  if (HuxStatus s = check(pointers(pSrc, pDst), hux::size(size), steps(srcStep, dstStep))) return s;
  const PackedSpectrum<C1, C> spectrum(rows<C1>(pSrc, srcStep), size);
  const auto dst = rows<C1>(pDst, dstStep);
  for (Index y = 0; y < size.height; ++y) spectrum.row(y, dst.row(y));
  return huxStsOk;
}

}  // namespace
}  // namespace hux

#define EXPORT(t, l)                                                                                      \
  HuxStatus huxiCplxExtendToPack_##t##c##t##_##l##R(const Hux##t##c* pSrc, int srcStep, HuxiSize srcSize, \
                                                    Hux##t* pDst, int dstStep) {                          \
    return hux::toPacked<hux::l>(pSrc, srcStep, srcSize, pDst, dstStep);                                  \
  }
HUX_STAMP(EXPORT, (32f, 32s, 16s), (C1, C3))
#undef EXPORT

#define EXPORT(t, _)                                                                                               \
  HuxStatus huxiPackToCplxExtend_##t##t##c_C1R(const Hux##t* pSrc, HuxiSize srcSize, int srcStep, Hux##t##c* pDst, \
                                               int dstStep) {                                                      \
    return hux::toFull(pSrc, srcSize, srcStep, pDst, dstStep);                                                     \
  }
HUX_STAMP(EXPORT, (32f, 32s), (_))
