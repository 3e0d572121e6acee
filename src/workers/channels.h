// Interleaved pixels one channel at a time.
#pragma once

#include <algorithm>

#include "core/rows.h"
#include "huxi_pixel.h"

namespace hux {

// The members of Copy that take elements of so many bytes out of pixels of so many channels, and put them back.
template <int Channels, int Bytes>
struct ChannelCopy;
#define HUX_CHANNEL_COPY(channels, t)                             \
  template <>                                                     \
  struct ChannelCopy<channels, sizeof(Hux##t)> {                  \
    using T = Hux##t;                                             \
    static constexpr auto out = &huxiCopy_##t##_C##channels##C1R; \
    static constexpr auto in = &huxiCopy_##t##_C1C##channels##R;  \
  };
HUX_CHANNEL_COPY(3, 8u)
HUX_CHANNEL_COPY(4, 8u)
HUX_CHANNEL_COPY(3, 16s)
HUX_CHANNEL_COPY(4, 16s)
HUX_CHANNEL_COPY(3, 32f)
HUX_CHANNEL_COPY(4, 32f)
#undef HUX_CHANNEL_COPY

// Channel c of n pixels: copied to `room` where there are several channels, else the pixels themselves.
template <class L, class T>
const T* channelOf(const Element<T>* pixels, int c, T* room, int n) {
  if constexpr (L::channels == 1) {
    return argument<T>(pixels);
  } else {
    using Members = ChannelCopy<L::channels, sizeof(T)>;
    using W = typename Members::T;
    Members::out(argument<W>(pixels + c), 1, argument<W>(room), 1, {n, 1});
    return room;
  }
}

// Pieces of rows that stay in the cache.
inline constexpr Index kChannelBlock = 1024;

// Calls body(c, elements, count) for every processed channel of every piece of n pixels.
template <class L, class T, class Body>
void forChannels(const Element<T>* row, Index n, Body body) {
  forPieces(n, kChannelBlock, [&](Index i, Index count) {
    for (int c = 0; c < L::processed; ++c) {
      T room[kChannelBlock];
      const T* elements = channelOf<L>(row + i * L::channels, c, room, int(count));
      body(c, hux::elements(elements), count);
    }
  });
}

// The same for rows that are written: body(c, elements, results, count). Source and destination may be one row.
template <class L, class T, class Body>
void mapChannels(const Element<T>* src, Element<T>* dst, Index n, Body body) {
  if constexpr (L::channels == 1) {
    forPieces(n, kChannelBlock, [&](Index i, Index count) { body(0, src + i, dst + i, count); });
  } else {
    forChannels<L>(src, n, [&](int c, const Element<T>* elements, Index count) {
      using Members = ChannelCopy<L::channels, sizeof(T)>;
      using W = typename Members::T;
      Element<T> results[kChannelBlock];
      body(c, elements, results, count);
      Members::in(argument<W>(results), 1, argument<W>(dst + c), 1, {int(count), 1});
      if (c + 1 == L::processed) dst += count * L::channels;
    });
  }
}

}  // namespace hux
