// Min, Max, MinMax: the smallest and the largest element of each channel.
#include <bit>

#include "core/check.h"
#include "core/stamp.h"
#include "stats/extrema.h"

namespace hux {
namespace {

// The definition, pixel by pixel; it starts from the first. A NaN shows where no comparison holds, and of equal numbers
// that are not the same, the zeros, the last stays, but in the minimum of both the first.
template <class T, bool Min, bool Max>
struct Running {
  T least, greatest;

  void take(T p) {
    if constexpr (!Max)
      least = least < p ? least : p;
    else if constexpr (!Min)
      greatest = greatest > p ? greatest : p;
    else if (least > p)
      least = p;
    else
      greatest = greatest > p ? greatest : p;
  }
  bool isNaN() const { return (Min && least != least) || (Max && greatest != greatest); }
  // Whether no pixel can change anything.
  bool isFinal() const {
    using Limits = std::numeric_limits<T>;
    return std::is_integral_v<T> && (!Min || least == Limits::lowest()) && (!Max || greatest == Limits::max());
  }
};

// Elements as integers in the order of their values. Of floats, -0 lies below 0, and NaNs beyond the infinities.
template <class T>
struct Keys {
  using Key = T;
  template <class V>
  static V of(V v) {
    return v;
  }
};
template <>
struct Keys<Hux32f> {
  using Key = Hux32s;
  static constexpr Key kInfinity = 0x7f800000;
  template <class I>
  static I flipped(I bits) {
    return bits ^ ((bits >> 31) & 0x7fffffff);
  }
  static Hux32s of(Hux32f v) { return flipped(std::bit_cast<Hux32s>(v)); }
  template <class V>
  static auto of(V v) {
    return flipped(bitsAs<Lanes<Hux32s, lanesIn<V>>>(v));
  }
};

// The extremes of a batch, in any order of its pixels.
template <class T, bool Min, bool Max>
struct Extremes {
  using Key = typename Keys<T>::Key;
  static constexpr bool floats = !std::is_integral_v<T>, low = Min || floats, high = Max || floats;
  static constexpr Key kTop = std::numeric_limits<Key>::max(), kBottom = std::numeric_limits<Key>::lowest();

  static constexpr int lanes = laneCount<T>, steps = std::numeric_limits<int>::max();
  using V = Lanes<Key, lanes>;
  struct State {
    V least = splat<V>(kTop), greatest = splat<V>(kBottom);
  };
  static void join(State& s, const State& other) {
    if constexpr (low) s.least = lesser(s.least, other.least);
    if constexpr (high) s.greatest = greater(s.greatest, other.greatest);
  }
  static void add(State& s, Lanes<T, lanes> v) {
    const V key = Keys<T>::of(v);
    join(s, {key, key});
  }
  static void addPart(State& s, int count, const Element<T>* row) {
    Lanes<T, lanes> v = loadLanes<Lanes<T, lanes>>(row, count, T(0));
    V least = Keys<T>::of(v), greatest = least;
    for (int l = count; l < lanes; ++l) least[l] = kTop, greatest[l] = kBottom;
    join(s, {least, greatest});
  }
  static void settle(State&) {}

  struct Total {
    Key least = kTop, greatest = kBottom;

    // Whether the order of the pixels does not matter, for there is no NaN and no sign of a zero to choose.
    bool isPlain() const {
      if constexpr (floats) {
        if (greatest > Keys<T>::kInfinity || least < ~Keys<T>::kInfinity) return false;
        constexpr Key minusZero = ~0, plusZero = 0;
        if ((Min && least == minusZero && greatest >= plusZero) || (Max && greatest == plusZero && least <= minusZero))
          return false;
      }
      return true;
    }
  };
  template <class F>
  static void eachLane(const State& s, F f) {
    for (int l = 0; l < lanes; ++l) f(l, Total{s.least[l], s.greatest[l]});
  }
  static Total merge(Total a, Total b) { return {std::min(a.least, b.least), std::max(a.greatest, b.greatest)}; }
};

template <class T>
T valueOf(typename Keys<T>::Key key) {
  if constexpr (std::is_integral_v<T>)
    return key;
  else
    return std::bit_cast<T>(Keys<T>::flipped(key));
}

constexpr Index kBatch = 1 << 17;

// pMin and pMax are one pointer where only one of the two is wanted.
template <bool Min, bool Max, class L, class T>
HuxStatus minMax(const T* pSrc, int srcStep, HuxiSize roi, T* pMin, T* pMax) {
  if (HuxStatus s = check(pointers(pSrc, pMin, pMax), size(roi), steps(srcStep))) return s;
  const auto src = rows<L>(pSrc, srcStep);
  Running<T, Min, Max> running[L::processed];
  for (int c = 0; c < L::processed; ++c) running[c] = {src.row(0)[c], src.row(0)[c]};
  reduceInBatches<L, Extremes<T, Min, Max>>(src, roi, kBatch, [&](const auto& totals, auto again) {
    bool final = true;
    for (int c = 0; c < L::processed; ++c) {
      auto& r = running[c];
      if (totals[c].isPlain() && !r.isNaN()) {
        if (Min) r.take(valueOf<T>(totals[c].least));
        if (Max) r.take(valueOf<T>(totals[c].greatest));
      } else {
        again([&](const auto* pixels, Index n, Index) {
          for (Index i = 0; i < n; ++i) r.take(pixels[i * L::channels + c]);
          return false;
        });
      }
      final = final && r.isFinal();
    }
    return final;
  });
  for (int c = 0; c < L::processed; ++c) {
    if (Min) elements(pMin)[c] = running[c].least;
    if (Max) elements(pMax)[c] = running[c].greatest;
  }
  return huxStsOk;
}

}  // namespace
}  // namespace hux

#define EXPORT(t, l)                                                                                                 \
  HuxStatus huxiMin_##t##_##l##R(const Hux##t* pSrc, int srcStep, HuxiSize roiSize, Hux##t* pMin) {                  \
    return hux::minMax<true, false, hux::l>(pSrc, srcStep, roiSize, pMin, pMin);                                     \
  }                                                                                                                  \
  HuxStatus huxiMax_##t##_##l##R(const Hux##t* pSrc, int srcStep, HuxiSize roiSize, Hux##t* pMax) {                  \
    return hux::minMax<false, true, hux::l>(pSrc, srcStep, roiSize, pMax, pMax);                                     \
  }                                                                                                                  \
  HuxStatus huxiMinMax_##t##_##l##R(const Hux##t* pSrc, int srcStep, HuxiSize roiSize, Hux##t* pMin, Hux##t* pMax) { \
    return hux::minMax<true, true, hux::l>(pSrc, srcStep, roiSize, pMin, pMax);                                      \
  }
HUX_STAMP(EXPORT, (8u, 16s, 32f), (C1, C3, AC4, C4))
