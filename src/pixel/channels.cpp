// Dup and SwapChannels: channels repeated or permuted, values unchanged.
#include "core/stamp.h"
#include "huxi_pixel.h"
#include "lanes/planes.h"
#include "lanes/windows.h"
#include "workers/move.h"

namespace hux {
namespace {

HuxStatus dup(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roi) {
  if (HuxStatus s = check(pointers(pSrc, pDst), size(roi))) return s;
  const auto src = rows<C1>(pSrc, srcStep);
  const auto dst = rows<C3>(pDst, dstStep);
  const simd::Streaming streaming(roi, src, dst);
  forEachRow(roi, src, dst,
             [&](auto* s, auto* d, Index n) { moveRow<Hux8u, Repeated, Interleaved<3>, 3>(s, d, n, streaming); });
  return huxStsOk;
}

struct ChannelOrder {
  int from[3];
};

HuxStatus channelNumbers(const Element<int>* dstOrder) {
  for (int c = 0; c < 3; ++c)
    if (dstOrder[c] < 0 || dstOrder[c] > 2) return huxStsBadChannelOrder;
  return huxStsOk;
}

// The order is only known at run time, and so are the indices of the shuffles that reorder a group of pixels. Pixels
// may lie across vectors: output vector k draws on two windows of the group, one from the start of its first pixel on,
// the other up to the end of its last.
template <class L, class W>
class Shuffles {
 public:
  static constexpr int pixelBytes = L::channels * int(sizeof(W));
  static constexpr int vectors = L::channels;
  static constexpr Index pixels = simd::kBytes / Index(sizeof(W));
  static constexpr bool whole = L::processed == L::channels;

  explicit Shuffles(ChannelOrder order) {
    simd::Vec index[vectors];
    for (int at = 0; at < vectors * simd::kBytes; ++at) {
      const int channel = at % pixelBytes / int(sizeof(W)), k = at / simd::kBytes;
      const int from = channel < 3 ? at + (order.from[channel] - channel) * int(sizeof(W)) : at;
      const int inFirst = from - firstWindow(k), inLast = from - lastWindow(k);
      index[k][at % simd::kBytes] = std::uint8_t(inFirst < simd::kBytes ? inFirst : simd::kBytes + inLast);
    }
    for (int k = 0; k < vectors; ++k) permute_[k] = simd::PermuteBy(index[k]);
  }

  enum Mode { Whole, PastCache, Part };

  // Moves a group, or its first `left` pixels. It is read as a whole before it is written: source and destination may
  // be one image.
  template <Mode M>
  void move(const Element<W>* src, Element<W>* dst, Index left = pixels) const {
    const Index bytes = left * pixelBytes - (L::channels - L::processed) * Index(sizeof(W));
    const auto window = [&](int at) {
      return M == Part ? simd::load(advance(src, at), simd::lowBytes(bytes - at)) : simd::load(advance(src, at));
    };
    simd::Vec out[vectors];
    for (int k = 0; k < vectors; ++k) out[k] = permute_[k](window(firstWindow(k)), window(lastWindow(k)));
    for (int k = 0; k < vectors; ++k) {
      auto* to = advance(dst, k * simd::kBytes);
      if constexpr (M == Part)
        simd::store(to, out[k], kWritten & simd::lowBytes(bytes - k * simd::kBytes));
      else if constexpr (M == PastCache)
        simd::stream(to, out[k]);
      else if constexpr (whole)
        simd::store(to, out[k]);
      else
        simd::store(to, out[k], kWritten);
    }
  }

 private:
  static constexpr int firstWindow(int k) { return k * simd::kBytes / pixelBytes * pixelBytes; }
  static constexpr int lastWindow(int k) {
    return ((k + 1) * simd::kBytes + pixelBytes - 1) / pixelBytes * pixelBytes - simd::kBytes;
  }
  static constexpr simd::Mask kWritten = [] {
    simd::Mask mask = 0;
    for (int j = 0; j < simd::kBytes; ++j)
      mask |= simd::Mask(whole || j % pixelBytes / int(sizeof(W)) < L::processed) << j;
    return mask;
  }();

  simd::PermuteBy permute_[vectors];
};

// Pixels of four elements where no store has a mask: as many as fill a vector, whose colours are stored. Returns the
// number of pixels moved, never all of them: the last one's alpha is not read.
template <class W>
Index swapColours(const Element<W>* src, Element<W>* dst, Index n, ChannelOrder order) {
  constexpr Index pixels = kLaneBytes / Index(4 * sizeof(W));
  WindowBytes pick{};
  for (int j = 0; j < kLaneBytes; ++j) {
    const int channel = j / int(sizeof(W)) % 4, from = channel < 3 ? order.from[channel] : channel;
    pick[j] = Hux8u(j % 16 + (from - channel) * int(sizeof(W)));
  }
  Index i = 0;
  for (; i + pixels < n; i += pixels) {
    const WindowBytes v = pickBytes(loadLanes<WindowBytes>(src + i * 4), pick);
    storeColours<3>(dst + i * 4, bitsAs<Lanes<W, int(4 * pixels)>>(v));
  }
  return i;
}

// Groups of pixels by way of planes, as long as the groups are whole; the number of pixels moved. Pays for bytes.
[[maybe_unused]] Index swapByPlanes(const Element<Hux8u>* src, Element<Hux8u>* dst, Index n, ChannelOrder order) {
  constexpr Index group = simd::kBytes;
  Index i = 0;
  for (; i + group <= n; i += group) {
    simd::Vec v[3], to[3];
    for (int k = 0; k < 3; ++k) v[k] = simd::load(advance(src + 3 * i, k * simd::kBytes));
    simd::toPlanes<1>(v);
    for (int k = 0; k < 3; ++k) to[k] = v[order.from[k]];
    simd::fromPlanes<1>(to);
    for (int k = 0; k < 3; ++k) simd::store(advance(dst + 3 * i, k * simd::kBytes), to[k]);
  }
  return i;
}

template <class L, class W>
void swapEach(const Element<W>* src, Element<W>* dst, Index first, Index n, ChannelOrder order) {
  for (Index i = first; i < n; ++i) {
    const Element<W>* from = src + i * L::channels;
    Element<W>* to = dst + i * L::channels;
    const W a = from[order.from[0]], b = from[order.from[1]], c = from[order.from[2]];
    to[0] = a, to[1] = b, to[2] = c;
  }
}

// Groups of pixels of three elements; the number of pixels moved.
template <class W>
Index swapThirds(const Element<W>* src, Element<W>* dst, Index n, ChannelOrder order, bool streaming) {
  constexpr Index group = kLaneBytes / Index(sizeof(W)), step = 3 * kWindowBytes;
  const simd::ThirdsInOrder<int(sizeof(W))> inOrder(order.from);
  const auto groups = [&]<bool PastCache>(std::bool_constant<PastCache>, Index i) {
    for (; i + group <= n; i += group) {
      const auto* from = reinterpret_cast<const std::byte*>(src + 3 * i);
      auto* to = reinterpret_cast<std::byte*>(dst + 3 * i);
      WindowBytes v[3];
      for (int k = 0; k < 3; ++k) v[k] = simd::loadQuads<WindowBytes>(from + k * kWindowBytes, step);
      inOrder(v);
      for (int k = 0; k < 3; ++k) storeWindows<PastCache>(to + k * kWindowBytes, step, v[k]);
    }
    return i;
  };
  const Index head = streaming ? simd::pixelsToBoundary(dst, 3 * int(sizeof(W))) : -1;
  if (head < 0 || head > n) return groups(std::false_type{}, 0);
  swapEach<C3>(src, dst, 0, head, order);
  return groups(std::true_type{}, head);
}

template <class L, class W>
void swapRow(const Element<W>* src, Element<W>* dst, Index n, const Shuffles<L, W>& shuffles, ChannelOrder order,
             bool streaming) {
  using S = Shuffles<L, W>;
  Index i = 0;
  const auto move = [&]<typename S::Mode M>(std::integral_constant<typename S::Mode, M>, Index left) {
    shuffles.template move<M>(src + i * L::channels, dst + i * L::channels, left);
  };
  // Bytes are chosen slowly where vectors have 16 of them.
  constexpr bool byThirds = L::channels == 3 && (sizeof(W) > 1 || kLaneBytes > 16);
  if constexpr (kPicks && !simd::kMasks && byThirds) {
    i = swapThirds<W>(src, dst, n, order, streaming);
  } else if constexpr (kPicks && !simd::kMasks && L::channels == 4) {
    i = swapColours<W>(src, dst, n, order);
  } else if constexpr (simd::kPermutes && (S::whole || simd::kMasks)) {
    const std::integral_constant<typename S::Mode, S::Part> part;
    if constexpr (S::whole && simd::kStreams && simd::kMasks) {
      const Index head = streaming ? simd::pixelsToBoundary(dst, S::pixelBytes) : -1;
      if (head >= 0 && head <= n) {
        if (head > 0) move(part, head);
        for (i = head; i + S::pixels <= n; i += S::pixels)
          move(std::integral_constant<typename S::Mode, S::PastCache>{}, S::pixels);
      }
    }
    for (; i + S::pixels <= n; i += S::pixels) move(std::integral_constant<typename S::Mode, S::Whole>{}, S::pixels);
    if constexpr (simd::kMasks) {
      if (i < n) move(part, n - i);
      return;
    }
  } else if constexpr (!simd::kPermutes && L::channels == 3 && sizeof(W) == 1) {
    i = swapByPlanes(src, dst, n, order);
  }
  swapEach<L>(src, dst, i, n, order);
}

template <class L, class T>
HuxStatus swapChannels(const T* pSrc, int srcStep, T* pDst, int dstStep, HuxiSize roi, const int* dstOrder) {
  if (HuxStatus s = check(pointers(pSrc, pDst, dstOrder), size(roi), steps(srcStep, dstStep),
                          [&] { return channelNumbers(elements(dstOrder)); }))
    return s;
  const auto* from = elements(dstOrder);
  const ChannelOrder order = {{from[0], from[1], from[2]}};
  const Shuffles<L, Word<T>> shuffles(order);
  const auto src = wordRows<L>(pSrc, srcStep);
  const auto dst = wordRows<L>(pDst, dstStep);
  // In place every line has been read: nothing is gained by going past the cache.
  const simd::Streaming streaming(pSrc == pDst ? HuxiSize{0, 0} : roi, src, dst);
  forEachRow(roi, src, dst,
             [&](auto* s, auto* d, Index n) { swapRow<L, Word<T>>(s, d, n, shuffles, order, streaming); });
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
