// Dup and SwapChannels: channels repeated or permuted, values unchanged.
#include "core/stamp.h"
#include "huxi_pixel.h"
#include "pixel/move.h"

namespace hux {
namespace {

HuxStatus dup(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roi) {
  if (HuxStatus s = check(pointers(pSrc, pDst), size(roi))) return s;
  forEachRow(roi, rows<C1>(pSrc, srcStep), rows<C3>(pDst, dstStep),
             [](auto* src, auto* dst, Index n) { moveRow<Hux8u, Repeated, Interleaved<3>, 3>(src, dst, n); });
  return huxStsOk;
}

struct ChannelOrder {
  int from[3];
};

HuxStatus channelNumbers(const int* dstOrder) {
  for (int c = 0; c < 3; ++c)
    if (dstOrder[c] < 0 || dstOrder[c] > 2) return huxStsBadChannelOrder;
  return huxStsOk;
}

// The order is only known at run time, so a group of pixels is split into its channels, and these are put together
// again in the order asked for. A group is read as a whole before it is written: source and destination may be one
// image.
template <class L, class W>
void swapRow(const Element<W>* src, Element<W>* dst, Index n, ChannelOrder order) {
  using Pixels = Interleaved<L::channels>;
  constexpr int bytes = sizeof(W);
  constexpr Index group = simd::kBytes / bytes;
  constexpr bool whole = L::processed == L::channels;
  Index i = 0;
  if constexpr (simd::kPermutes && (whole || simd::kMasks)) {
    for (; i + group <= n; i += group) {
      simd::Vec in[L::channels], split[3];
      for (int k = 0; k < L::channels; ++k) in[k] = simd::load(Pixels::vectorAt(src, i, k));
      const auto channel = [&]<int C>(std::integral_constant<int, C>) {
        split[C] = simd::permute<detail::MoveMap<Pixels, Planar<3>, bytes, 3, C>, L::channels>(in);
      };
      channel(std::integral_constant<int, 0>{}), channel(std::integral_constant<int, 1>{}),
          channel(std::integral_constant<int, 2>{});
      const simd::Vec ordered[3] = {split[order.from[0]], split[order.from[1]], split[order.from[2]]};
      [&]<std::size_t... Out>(std::index_sequence<Out...>) {
        (
            [&] {
              using Map = detail::MoveMap<Planar<3>, Pixels, bytes, 3, int(Out)>;
              auto* to = Pixels::vectorAt(dst, i, int(Out));
              if constexpr (whole)
                simd::store(to, simd::permute<Map, 3>(ordered));
              else
                simd::store(to, simd::permute<Map, 3>(ordered), simd::written<Map>());
            }(),
            ...);
      }
      (std::make_index_sequence<L::channels>{});
    }
  }
  for (; i < n; ++i) {
    const Element<W>* from = src + i * L::channels;
    Element<W>* to = dst + i * L::channels;
    const W a = from[order.from[0]], b = from[order.from[1]], c = from[order.from[2]];
    to[0] = a, to[1] = b, to[2] = c;
  }
}

template <class L, class T>
HuxStatus swapChannels(const T* pSrc, int srcStep, T* pDst, int dstStep, HuxiSize roi, const int* dstOrder) {
  if (HuxStatus s = check(pointers(pSrc, pDst, dstOrder), size(roi), steps(srcStep, dstStep),
                          [&] { return channelNumbers(dstOrder); }))
    return s;
  const ChannelOrder order = {{dstOrder[0], dstOrder[1], dstOrder[2]}};
  forEachRow(roi, wordRows<L>(pSrc, srcStep), wordRows<L>(pDst, dstStep),
             [&](auto* src, auto* dst, Index n) { swapRow<L, Word<T>>(src, dst, n, order); });
  return huxStsOk;
}

}  // namespace
}  // namespace hux

HuxStatus huxiDup_8u_C1C3R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roiSize) {
  return hux::dup(pSrc, srcStep, pDst, dstStep, roiSize);
}

#define EXPORT(t, l)                                                                                  \
  HuxStatus huxiSwapChannels_##t##_##l##R(const Hux##t* pSrc, int srcStep, Hux##t* pDst, int dstStep, \
                                          HuxiSize roiSize, const int dstOrder[3]) {                  \
    return hux::swapChannels<hux::l>(pSrc, srcStep, pDst, dstStep, roiSize, dstOrder);                \
  }
HUX_STAMP(EXPORT, (8u, 16u, 32s, 32f), (C3, AC4))
#undef EXPORT

HuxStatus huxiSwapChannels_8u_C3IR(Hux8u* pSrcDst, int srcDstStep, HuxiSize roiSize, const int dstOrder[3]) {
  return hux::swapChannels<hux::C3, Hux8u>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, dstOrder);
}
