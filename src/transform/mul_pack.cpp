// MulPack and MulPackConj: the product of two packed spectra. Elements of the outer columns pair up down the column,
// all others along the row; in the first row, and the last of an even height, those of the outer columns stand alone.
#include "core/stamp.h"
#include "huxi_transform.h"
#include "lanes/split.h"
#include "workers/complex.h"

namespace hux {
namespace {

// What products are computed in.
template <class T>
struct PartOf {
  using Type = Wide<T>;
};
template <>
struct PartOf<Hux32f> {
  using Type = Hux32f;
};
template <class T, int N>
using Parts = Lanes<typename PartOf<T>::Type, N>;

template <class V>
V product(V a, V b) {
  if constexpr (sizeof(LaneType<V>) == 8)
    return mulLow(a, b);
  else
    return a * b;
}

// Rules: real(a, c) of elements that stand alone, pair(x, y) of complex numbers.
template <bool Conjugate>
struct FloatRule {
  template <class V>
  V real(V a, V c) const {
    return a * c;
  }
  template <class V>
  Split<V> pair(Split<V> x, Split<V> y) const {
    if constexpr (Conjugate)
      return {x.re * y.re + x.im * y.im, x.im * y.re - x.re * y.im};
    else
      return {x.re * y.re - x.im * y.im, x.re * y.im + x.im * y.re};
  }
};

// The imaginary part leaves out its second product where the first is the square of the lowest number: in place of a
// sum that would not fit. Deliberate, though other sums with that product would.
template <class T, class Scale>
struct IntegerRule {
  Scale scale;
  template <class V>
  V real(V a, V c) const {
    return scale(product(a, c));
  }
  template <class V>
  Split<V> pair(Split<V> x, Split<V> y) const {
    using W = LaneType<V>;
    const V ad = product(x.re, y.im), bc = product(x.im, y.re);
    const V im = ad + (ad == W(1) << (sizeof(W) * 8 - 2) ? V{} : bc);
    return {scale(product(x.re, y.re) - product(x.im, y.im)), scale(im)};
  }
};

// Scaled down by more than zero, products are rounded toward minus infinity.
template <class T>
struct Floored {
  int shift;
  template <class V>
  V operator()(V v) const {
    return limited<T>(v >> LaneType<V>(shift));
  }
};

// Calls run(rule). What a scale factor beyond the words' width makes of a product does not change any more.
template <class T, class Run>
void withScale(int scaleFactor, Run run) {
  constexpr int bits = int(sizeof(T)) * 8;
  if (scaleFactor > 0)
    run(IntegerRule<T, Floored<T>>{{std::min(scaleFactor, 2 * bits - 1)}});
  else if (scaleFactor < 0)
    run(IntegerRule<T, ScaledUp<T>>{{scaleFactor < -bits ? bits : -scaleFactor}});
  else
    run(IntegerRule<T, Unscaled<T>>{});
}

// --- One pixel in four lanes. `whole` tells that four elements may be read.

template <class L, class T>
Parts<T, 4> loadPixel(const Element<T>* p, bool whole = false) {
  using V = Lanes<T, 4>;
  return convert<LaneType<Parts<T, 4>>>(whole ? loadLanes<V>(p) : loadLanes<V>(p, L::processed, T(0)));
}
template <class L, class T, class V>
void storePixel(Element<T>* p, V v) {
  storeColours<4>(p, convert<T>(v), L::processed);
}

// --- Complex numbers that lie one behind the other.

template <class T>
inline constexpr int kPairs = std::is_floating_point_v<T> ? kSplitLanes : laneCount<typename PartOf<T>::Type>;
template <class T>
Split<Parts<T, kPairs<T>>> loadPairs(const void* p) {
  using V = Parts<T, kPairs<T>>;
  if constexpr (std::is_floating_point_v<T>) {
    return loadSplit<V>(p);
  } else {
    const V v = loadLanes<V>(p);
    // Products of 64 bits look at the lower halves alone.
    if constexpr (sizeof(T) == 4)
      return {v, V(Lanes<std::uint64_t, kPairs<T>>(v) >> std::uint64_t(32))};
    else
      return {wideRe<T>(v), wideIm<T>(v)};
  }
}
template <class T, class V>
void storePairs(void* p, Split<V> z) {
  if constexpr (std::is_floating_point_v<T>)
    storeSplit(p, z);
  else
    storeLanes(p, joinWide<T>(z.re, z.im));
}

// Pairs of neighbouring pixels of a row.
template <class L, class T, class Rule>
void multiplyPairs(const Element<T>* a, const Element<T>* b, Element<T>* dst, Index pairs, Rule rule) {
  Index u = 0;
  if constexpr (L::channels == 1) {
    constexpr int n = kPairs<T>;
    for (; u + n <= pairs; u += n)
      storePairs<T>(dst + 2 * u, rule.pair(loadPairs<T>(a + 2 * u), loadPairs<T>(b + 2 * u)));
    if (u == pairs) return;
    const std::size_t bytes = sizeof(T) * 2 * std::size_t(pairs - u);
    T x[2 * n] = {}, y[2 * n] = {};
    std::memcpy(x, a + 2 * u, bytes), std::memcpy(y, b + 2 * u, bytes);
    storePairs<T>(x, rule.pair(loadPairs<T>(x), loadPairs<T>(y)));
    std::memcpy(dst + 2 * u, x, bytes);
  } else {
    constexpr Index pixel = L::channels;
    for (; u < pairs; ++u, a += 2 * pixel, b += 2 * pixel, dst += 2 * pixel) {
      const bool whole = u + 1 < pairs;
      const auto load = [=](auto* p) {
        return Split<Parts<T, 4>>{loadPixel<L, T>(p, whole), loadPixel<L, T>(p + pixel, whole)};
      };
      const auto z = rule.pair(load(a), load(b));
      storePixel<L>(dst, z.re);
      storePixel<L>(dst + pixel, z.im);
    }
  }
}

template <class L, class T, class Rule>
void multiply(Rows<const T> a, Rows<const T> b, Rows<T> dst, HuxiSize roi, Rule rule) {
  const Index height = roi.height, columns[] = {0, Index(roi.width - 1) * L::channels};
  const int outer = roi.width % 2 ? 1 : 2;
  const auto alongRow = [&](Index y) {
    multiplyPairs<L>(a.row(y) + L::channels, b.row(y) + L::channels, dst.row(y) + L::channels, (roi.width - 1) / 2,
                     rule);
  };
  const auto single = [&](Index y) {
    for (int i = 0; i < outer; ++i) {
      const Index x = columns[i];
      storePixel<L>(dst.row(y) + x, rule.real(loadPixel<L, T>(a.row(y) + x), loadPixel<L, T>(b.row(y) + x)));
    }
    alongRow(y);
  };
  single(0);
  Index y = 1;
  for (; y + 1 < height; y += 2) {
    for (int i = 0; i < outer; ++i) {
      const auto load = [=, x = columns[i]](const auto& rows) {
        return Split<Parts<T, 4>>{loadPixel<L, T>(rows.row(y) + x), loadPixel<L, T>(rows.row(y + 1) + x)};
      };
      const auto z = rule.pair(load(a), load(b));
      storePixel<L>(dst.row(y) + columns[i], z.re);
      storePixel<L>(dst.row(y + 1) + columns[i], z.im);
    }
    alongRow(y), alongRow(y + 1);
  }
  if (y < height) single(y);
}

template <class L, class T, class Rule>
HuxStatus mulPack(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst, int dstStep, HuxiSize roi,
                  Rule withRule) {
  if (HuxStatus s = check(pointers(pSrc1, pSrc2, pDst), steps(src1Step, src2Step, dstStep), size(roi))) return s;
  withRule([&](auto rule) {
    multiply<L>(rows<L>(pSrc1, src1Step), rows<L>(pSrc2, src2Step), rows<L>(pDst, dstStep), roi, rule);
  });
  return huxStsOk;
}

template <bool Conjugate, class L>
HuxStatus mulPackFloat(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step, Hux32f* pDst, int dstStep,
                       HuxiSize roi) {
  return mulPack<L>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roi,
                    [](auto run) { run(FloatRule<Conjugate>{}); });
}
template <class L, class T>
HuxStatus mulPackScaled(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst, int dstStep, HuxiSize roi,
                        int scaleFactor) {
  return mulPack<L>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roi,
                    [=](auto run) { withScale<T>(scaleFactor, run); });
}

}  // namespace
}  // namespace hux

#define EXPORT_FLOAT(name, conjugate, l)                                                                           \
  HuxStatus huxi##name##_32f_##l##R(const Hux32f* pSrc1, int src1Step, const Hux32f* pSrc2, int src2Step,          \
                                    Hux32f* pDst, int dstStep, HuxiSize roiSize) {                                 \
    return hux::mulPackFloat<conjugate, hux::l>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);         \
  }                                                                                                                \
  HuxStatus huxi##name##_32f_##l##IR(const Hux32f* pSrc, int srcStep, Hux32f* pSrcDst, int srcDstStep,             \
                                     HuxiSize roiSize) {                                                           \
    return hux::mulPackFloat<conjugate, hux::l>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize); \
  }
#define EXPORT(_, l) EXPORT_FLOAT(MulPack, false, l) EXPORT_FLOAT(MulPackConj, true, l)
HUX_STAMP(EXPORT, (_), (C1, C3, C4, AC4))
#undef EXPORT

#define EXPORT(t, l)                                                                                                  \
  HuxStatus huxiMulPack_##t##_##l##RSfs(const Hux##t* pSrc1, int src1Step, const Hux##t* pSrc2, int src2Step,         \
                                        Hux##t* pDst, int dstStep, HuxiSize roiSize, int scaleFactor) {               \
    return hux::mulPackScaled<hux::l>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, scaleFactor);         \
  }                                                                                                                   \
  HuxStatus huxiMulPack_##t##_##l##IRSfs(const Hux##t* pSrc, int srcStep, Hux##t* pSrcDst, int srcDstStep,            \
                                         HuxiSize roiSize, int scaleFactor) {                                         \
    return hux::mulPackScaled<hux::l>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor); \
  }
HUX_STAMP(EXPORT, (16s, 32s), (C1, C3, C4, AC4))
