// FilterWiener: each pixel is drawn towards the mean of its window, the more so the nearer the variance there is to
// that of the noise, which is given, or taken for the mean of all variances.
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

#include "core/check.h"
#include "core/stamp.h"
#include "core/team.h"
#include "core/window.h"
#include "filter/vector_rows.h"
#include "huxi_filter.h"
#include "huxi_stats.h"
#include "lanes/row_lanes.h"
#include "lanes/unrolled.h"

namespace hux {
namespace {

using Floats = Lanes<Hux32f, laneCount<Hux32f>>;
constexpr int kLanes = lanesIn<Floats>;

// Differences of elements and of their squares. Those of integers are exact, and become floats once.
template <class T>
struct Values {
  static Hux32f value(T a) { return a; }
  static Hux32f square(T a) { return a * a; }
  static Hux32f difference(T a, T b) { return a - b; }
  static Hux32f squares(T a, T b) { return a * a - b * b; }

  // (a - b) - (c - d), of the elements and of their squares.
  using V = Lanes<T, kLanes>;
  static std::array<Floats, 2> ofFour(V va, V vb, V vc, V vd) {
    // The squares of bytes, too, are exact in single precision.
    const Floats a = convert<Hux32f>(va), b = convert<Hux32f>(vb), c = convert<Hux32f>(vc), d = convert<Hux32f>(vd);
    return {(a - b) - (c - d), (a * a - b * b) - (c * c - d * d)};
  }
};
template <>
inline std::array<Floats, 2> Values<Hux16s>::ofFour(V va, V vb, V vc, V vd) {
  using Ints = Lanes<Hux32s, kLanes>;
  using Wrapped = Lanes<Hux32u, kLanes>;
  const Ints a = convert<Hux32s>(va), b = convert<Hux32s>(vb), c = convert<Hux32s>(vc), d = convert<Hux32s>(vd);
  const Ints ab = Ints(Wrapped(a - b) * Wrapped(a + b)), cd = Ints(Wrapped(c - d) * Wrapped(c + d));
  // Between -2^31 and 2^31, of which the one wraps to the other.
  const Ints squares = Ints(Wrapped(ab) - Wrapped(cd));
  const Floats rounded = convert<Hux32f>(squares);
  return {convert<Hux32f>((a - b) - (c - d)), ((squares < 0) & (ab > 0) & (cd < 0)) ? -rounded : rounded};
}

// The sums of the elements and of their squares in the windows of one row after the other, in single precision. The
// first row's are made from left to right; a row's become the next one's by what enters below less what leaves above,
// which is itself kept up from left to right, one window column at a time. Each addition rounds, so that their order is
// told; a vector therefore keeps it up for as many rows at a time as it has lanes.
template <class L, class T>
class LocalVarMean {
 public:
  static constexpr int C = L::channels;
  // The floats of a row of sums.
  static Index room(Index width) { return (elementsOf<L>(width) + kLanes - 1) / kLanes * kLanes; }

  LocalVarMean(WindowRows<T> windows, HuxiSize mask, Index width, Hux32f* room)
      : windows_(windows),
        mask_(mask),
        elements_(elementsOf<L>(width)),
        far_((mask.width - 1) * Index(C)),
        sums_{room, room + LocalVarMean::room(width)} {}

  void start(Index y) {
    const Window<T> window = windows_.row(y);
    for (Index e = 0; e < elements_; ++e) {
      Hux32f sum = 0, squares = 0;
      if (e < C) {
        for (Index j = 0; j < mask_.height; ++j)
          for (Index i = 0; i <= far_; i += C)
            sum += Of::value(window[j][e + i]), squares += Of::square(window[j][e + i]);
      } else {
        sum = sums_[0][e - C], squares = sums_[1][e - C];
        for (Index j = 0; j < mask_.height; ++j) {
          const T entering = window[j][e + far_], leaving = window[j][e - C];
          sum += Of::difference(entering, leaving), squares += Of::squares(entering, leaving);
        }
      }
      sums_[0][e] = sum, sums_[1][e] = squares;
    }
  }

  // The sums of rows y, y + 1, ..., at most kLanes of them: take(e, count, sums, squares) is called for one block of
  // elements after the other, with the sums of a row in each vector. With `more` the next row's are kept for the next
  // call.
  template <class Take>
  void rows(Index y, int count, bool more, Take take) {
    const int moves = count - 1 + more;
    Pixels entering, leaving;
    for (int r = 0; r < kLanes && moves > 0; ++r) {
      const Window<T> window = windows_.row(y + std::min(r, moves - 1));
      leaving[r] = window[0], entering[r] = window[mask_.height];
    }
    Floats carried[2][C] = {};
    for (Index e = 0; e < elements_; e += kLanes) {
      Floats change[2][kLanes] = {};
      if (moves > 0) {
        makeChanges(entering, leaving, e, change);
        for (auto& square : change) transpose(square);
        if (e == 0) startChanges(entering, leaving, change);
        unrolled<2>([&](auto k) HUX_INLINE {
          unrolled<kLanes>([&](auto i) HUX_INLINE {
            const Floats before = [&] {
              if constexpr (i < C)
                return carried[k][i];
              else
                return change[k][i - C];
            }();
            change[k][i] = before + change[k][i];
          });
          unrolled<C>([&](auto c) HUX_INLINE { carried[k][c] = change[k][kLanes - C + c]; });
        });
        for (auto& square : change) transpose(square);
      }
      Floats sums[2][kLanes + 1];
      for (int k = 0; k < 2; ++k) {
        sums[k][0] = loadLanes<Floats>(sums_[k] + e);
        for (int r = 0; r < moves; ++r) sums[k][r + 1] = sums[k][r] + change[k][r];
        if (more) storeLanes(sums_[k] + e, sums[k][count]);
      }
      take(e, int(std::min<Index>(kLanes, elements_ - e)), sums[0], sums[1]);
    }
  }

 private:
  using Of = Values<T>;
  using Pixels = std::array<const Element<T>*, kLanes>;

  // What one window column to the right changes: the four corners of the two windows. A row in each vector; those of
  // the first columns stay open.
  void makeChanges(const Pixels& entering, const Pixels& leaving, Index e, Floats (&change)[2][kLanes]) const {
    using V = Lanes<T, kLanes>;
    const auto with = [&](auto load) HUX_INLINE {
      for (int r = 0; r < kLanes; ++r) {
        const auto four =
            Of::ofFour(load(entering[r], far_), load(leaving[r], far_), load(entering[r], -C), load(leaving[r], -C));
        change[0][r] = four[0], change[1][r] = four[1];
      }
    };
    if (e > 0 && e + kLanes <= elements_) return with([&](auto* row, Index at) { return loadLanes<V>(row + e + at); });
    // Before the first column and behind the last one nothing may be read.
    const Index from = e == 0 ? C : 0, count = std::min<Index>(kLanes, elements_ - e);
    with([&](auto* row, Index at) {
      T values[kLanes] = {};
      if (count > from) std::memcpy(values + from, row + e + at + from, std::size_t(count - from) * sizeof(T));
      return loadLanes<V>(values);
    });
  }

  // In the first columns there is nothing to go on from: all of the window enters or leaves. A column in each vector.
  void startChanges(const Pixels& entering, const Pixels& leaving, Floats (&change)[2][kLanes]) const {
    for (int r = 0; r < kLanes; ++r)
      for (Index c = 0; c < std::min<Index>(C, elements_); ++c) {
        Hux32f sum = 0, squares = 0;
        for (Index i = c; i <= far_ + c; i += C)
          sum += Of::difference(entering[r][i], leaving[r][i]), squares += Of::squares(entering[r][i], leaving[r][i]);
        change[0][c][r] = sum, change[1][c][r] = squares;
      }
  }

  WindowRows<T> windows_;
  HuxiSize mask_;
  Index elements_, far_;
  Hux32f* sums_[2];
};

// One number for each channel, as they lie in the vectors of a row, which repeat after three with three channels.
template <class L>
struct PerChannel {
  static constexpr int period = L::channels == 3 ? 3 : 1;
  Floats vectors[period];

  explicit PerChannel(const std::array<Hux32f, L::processed>& values) {
    for (int i = 0; i < period * kLanes; ++i)
      vectors[i / kLanes][i % kLanes] = i % L::channels < L::processed ? values[std::size_t(i % L::channels)] : 0;
  }
  Floats at(Index e) const { return vectors[period == 1 ? 0 : e / kLanes % 3]; }
};

template <class L, class T>
class Wiener {
 public:
  Wiener(const T* pSrc, int srcStep, T* pDst, int dstStep, HuxiSize roi, HuxiSize mask, HuxiPoint anchor)
      : windows_(windowRows<L>(pSrc, srcStep, fromFarCorner(mask, anchor))),
        src_(hux::rows<L>(pSrc, srcStep)),
        dst_(hux::rows<L>(pDst, dstStep)),
        srcStep_(srcStep),
        roi_(roi),
        mask_(mask),
        recip_(1.0f / Hux32f(Index(mask.width) * mask.height)) {}

  void run(Element<Hux32f>* noise, Hux8u* pBuffer) const {
    const auto aligned = (reinterpret_cast<std::uintptr_t>(pBuffer) + 15) & ~std::uintptr_t(15);
    auto* slices = reinterpret_cast<std::byte*>(aligned);
    PerPixel power;
    const PerPixel scale = scales();
    const bool given = std::all_of(noise, noise + L::processed, [](Hux32f n) { return std::fabs(n) >= 0x1p-23f; });
    if (given) {
      for (std::size_t c = 0; c < power.size(); ++c)
        power[c] = noise[c].bits * scale[c] * Hux32f(mask_.width) * Hux32f(mask_.height);
    } else {
      power = estimate(slices);
      for (std::size_t c = 0; c < power.size(); ++c) noise[c] = relative(power[c], scale[c]) * recip_;
    }
    const auto filterRows = [&](RowRange range, std::byte* slice) { filter(range, slice, power); };
    if (kSerial)
      filterRows({0, roi_.height}, slices);
    else
      splitRows(roi_.height, maxTeam(), slices, sliceBytes(), filterRows);
  }

 private:
  using PerPixel = std::array<Hux32f, L::processed>;
  using Sums = LocalVarMean<L, T>;
  static constexpr bool kSerial = L::channels == 1 && std::is_integral_v<T>;

  // A thread's part of the caller's buffer: a sum of variances for each channel, then two rows of sums. It is at most
  // what five rows take that have room for colours alone.
  struct Slice {
    Hux64f* variances;
    Hux32f* sums;
    explicit Slice(std::byte* slice)
        : variances(reinterpret_cast<Hux64f*>(slice)), sums(reinterpret_cast<Hux32f*>(slice + 4 * sizeof(Hux64f))) {}
  };
  std::size_t sliceBytes() const {
    const Index floats = Index(roi_.width) * L::processed + (L::channels == 1 ? mask_.width : 0) + 6;
    return std::size_t(floats / 4 * 16 * 5);
  }

  // The squares of the ranges that noise is relative to.
  PerPixel scales() const {
    PerPixel scale;
    if constexpr (std::is_same_v<T, Hux32f>) {
      const auto* pFirst = reinterpret_cast<const Hux32f*>(windows_.top.first);
      HuxiSize all = {roi_.width + mask_.width - 1, roi_.height + mask_.height - 1};
      Hux32f low[3], high[3];
      if constexpr (L::channels != L::processed) {
        huxiMinMax_32f_AC4R(pFirst, srcStep_, all, low, high);
        for (std::size_t c = 0; c < 3; ++c) scale[c] = (high[c] - low[c]) * (high[c] - low[c]);
      } else {
        all.width *= L::channels;  // one range for all channels
        huxiMinMax_32f_C1R(pFirst, srcStep_, all, low, high);
        scale.fill((high[0] - low[0]) * (high[0] - low[0]));
      }
    } else {
      scale.fill(sizeof(T) == 1 ? 65025.0f : 4294836224.0f);
    }
    return scale;
  }
  static Hux32f relative(Hux32f power, Hux32f scale) {
    if constexpr (std::is_same_v<T, Hux32f>)
      return power / scale;
    else
      return power * (sizeof(T) == 1 ? 1.537870048196055e-05f : 2.3283774908122723e-10f);
  }

  // Calls body(sums, y, count, more) for groups of rows.
  template <class Body>
  void eachGroup(RowRange range, std::byte* slice, Body body) const {
    Sums sums(windows_, mask_, roi_.width, Slice(slice).sums);
    sums.start(range.first);
    const Index end = range.first + range.count;
    for (Index y = range.first; y < end; y += kLanes)
      body(sums, y, int(std::min<Index>(kLanes, end - y)), y + kLanes < end);
  }

  // The mean over all rows of the means of a row's variances.
  PerPixel estimate(std::byte* slices) const {
    std::array<Hux64f, L::processed> total{};
    const auto addRows = [&](RowRange range, std::byte* slice) {
      Hux64f* variances = Slice(slice).variances;
      std::fill_n(variances, L::processed, 0.0);
      if (range.count > 0) eachGroup(range, slice, [&](auto&&... group) { addVariances(group..., variances); });
    };
    const auto add = [&](const std::byte* slice) {
      for (std::size_t c = 0; c < total.size(); ++c) total[c] += reinterpret_cast<const Hux64f*>(slice)[c];
    };
    if (kSerial)
      addRows({0, roi_.height}, slices), add(slices);
    else
      sumRows(roi_.height, maxTeam(), slices, sliceBytes(), addRows, add);
    PerPixel power;
    for (std::size_t c = 0; c < power.size(); ++c) power[c] = Hux32f(total[c] / roi_.height);
    return power;
  }

  void addVariances(Sums& sums, Index y, int count, bool more, Hux64f* variances) const {
    using Doubles = Lanes<Hux64f, kLanes>;
    Doubles rowSums[L::channels] = {};  // a row in each lane
    int channel = 0;
    sums.rows(y, count, more, [&](Index, int elements, const Floats* sum, const Floats* squares) {
      Floats variance[kLanes] = {};
      for (int r = 0; r < count; ++r) variance[r] = greater(squares[r] - sum[r] * sum[r] * recip_, Floats{});
      transpose(variance);
      for (int i = 0; i < elements; ++i) {
        rowSums[channel] += convert<Hux64f>(variance[i]);
        channel = channel + 1 == L::channels ? 0 : channel + 1;
      }
    });
    for (int r = 0; r < count; ++r)
      for (int c = 0; c < L::processed; ++c)
        variances[c] +=
            L::channels == 1 ? Hux32f(rowSums[c][r] / roi_.width) : rowSums[c][r] * (1.0 / Hux64f(roi_.width));
  }

  void filter(RowRange range, std::byte* slice, const PerPixel& power) const {
    const PerChannel<L> noise(power);
    eachGroup(range, slice, [&](Sums& sums, Index y, int count, bool more) {
      sums.rows(y, count, more, [&](Index e, int elements, const Floats* sum, const Floats* squares) {
        const Floats n = noise.at(e);
        for (int r = 0; r < count; ++r) {
          const Element<T>* from = src_.row(y + r) + e;
          using V = Lanes<T, kLanes>;
          const V pixels = elements < kLanes ? loadLanes<V>(from, elements, 0) : loadLanes<V>(from);
          const Floats mean = sum[r] * recip_, variance = greater(squares[r] - sum[r] * sum[r] * recip_, n);
          const Floats result = mean + (convert<Hux32f>(pixels) - mean) * ((variance - n) / variance);
          storePixels<StoreOf<L>>(dst_.row(y + r) + e, 0, stored(result), elements);
        }
      });
    });
  }

  // Between the mean and the pixel, so that only a NaN has no integer: it becomes 0.
  static auto stored(Floats result) {
    if constexpr (std::is_same_v<T, Hux32f>)
      return result;
    else
      return convert<T>(convert<Hux32s>(result == result ? result : Floats{}));
  }

  WindowRows<T> windows_;
  Rows<const T> src_;
  Rows<T> dst_;
  int srcStep_;
  HuxiSize roi_, mask_;
  Hux32f recip_;
};

template <class L, class T>
HuxStatus wiener(const T* pSrc, int srcStep, T* pDst, int dstStep, HuxiSize roi, HuxiSize mask, HuxiPoint anchor,
                 Hux32f* noise, Hux8u* pBuffer) {
  const auto relative = [&] {
    const auto* all = elements(noise);
    return failUnless(std::all_of(all, all + L::processed, [](Hux32f n) { return n >= 0 && n < 1.0f; }),
                      huxStsBadNoise);
  };
  if (HuxStatus s = check(pointers(pSrc, pDst, noise, pBuffer), size(roi),
                          failUnless(mask.width >= 2 && mask.height >= 2, huxStsBadMaskSize),
                          anchorInside(anchor, mask), steps(srcStep, dstStep), relative))
    return s;
  Wiener<L, T>(pSrc, srcStep, pDst, dstStep, roi, mask, anchor).run(elements(noise), pBuffer);
  return huxStsOk;
}

HuxStatus wienerBufferSize(HuxiSize roi, HuxiSize mask, int channels, int* pBufferSize) {
  if (HuxStatus s = check(pointers(pBufferSize), size(roi),
                          failUnless(channels == 1 || channels == 3 || channels == 4, huxStsBadChannelCount),
                          failUnless(mask.width >= 2 && mask.height >= 2, huxStsBadMaskSize)))
    return s;
  const Hux32u columns = channels == 1 ? Hux32u(roi.width) + Hux32u(mask.width) : Hux32u(roi.width) * Hux32u(channels);
  *elements(pBufferSize) = int(((columns + 6) & ~3u) * (Hux32u(maxTeam()) * 5) * 4 + 15);
  return huxStsOk;
}

}  // namespace
}  // namespace hux

HuxStatus huxiFilterWienerGetBufferSize(HuxiSize roiSize, HuxiSize maskSize, int channels, int* pBufferSize) {
  return hux::wienerBufferSize(roiSize, maskSize, channels, pBufferSize);
}
#define EXPORT(t, l)                                                                                            \
  HuxStatus huxiFilterWiener_##t##_##l##R(const Hux##t* pSrc, int srcStep, Hux##t* pDst, int dstStep,           \
                                          HuxiSize roiSize, HuxiSize maskSize, HuxiPoint anchor, Hux32f* noise, \
                                          Hux8u* pBuffer) {                                                     \
    return hux::wiener<hux::l>(pSrc, srcStep, pDst, dstStep, roiSize, maskSize, anchor, noise, pBuffer);        \
  }
HUX_STAMP(EXPORT, (8u, 16s, 32f), (C1, C3, C4, AC4))
