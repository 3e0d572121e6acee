// LUT, LUT_Linear, LUT_Cubic: pixels through a staircase, straight lines or polynomials, given by pairs of a level and
// a value.
#include <algorithm>
#include <array>
#include <limits>

#include "core/check.h"
#include "core/rows.h"
#include "core/scratch.h"
#include "core/stamp.h"
#include "huxi_stats.h"
#include "lanes/elementwise.h"
#include "workers/channels.h"
#include "workers/segments.h"
#include "workers/table.h"

namespace hux {
namespace {

enum class Curve { kStairs, kLines, kCubics };

template <class T>
using PairOf = std::conditional_t<std::is_floating_point_v<T>, Hux32f, Hux32s>;

// The pairs of one channel.
template <class N>
struct Pairs {
  Levels<N> levels;
  const Element<N>* values;
};
template <class L, class T>
using ChannelPairs = std::array<Pairs<PairOf<T>>, L::processed>;

// A difference in the precision of the pairs; on integers it wraps.
template <class N>
N difference(N a, N b) {
  if constexpr (std::is_integral_v<N>)
    return N(Hux32u(a) - Hux32u(b));
  else
    return a - b;
}

// The line of segment k.
template <class N>
struct Line {
  Hux64f slope;
  Line(const Pairs<N>& pairs, int k) {
    const N run = difference<N>(pairs.levels[k + 1], pairs.levels[k]);
    const N rise = difference<N>(pairs.values[k + 1], pairs.values[k]);
    if constexpr (std::is_integral_v<N>)
      slope = Hux64f(rise) / Hux64f(run);
    else
      slope = run != 0 ? rise / run : N(0);  // divided in single precision
  }
};

// The polynomial of segment k, A t^3 + B t^2 + C t above the value of pair `origin`, through four neighbouring pairs,
// by Cramer's rule. Two equal levels among the four make the determinant 0, and the coefficients infinite or NaN.
template <class N>
struct Cubic {
  int origin;
  Hux64f A, B, C;
  Cubic(const Pairs<N>& pairs, int k) {
    const int first = std::min(std::max(k - 1, 0), pairs.levels.count - 4);
    origin = first + 1;
    Hux64f x[3], y[3];
    for (int i = 0; i < 3; ++i) {
      const int j = first + (i ? i + 1 : 0);
      x[i] = difference<N>(pairs.levels[j], pairs.levels[origin]);
      y[i] = difference<N>(pairs.values[j], pairs.values[origin]);
    }
    const std::array<Hux64f, 3> x1 = {x[0], x[1], x[2]}, y1 = {y[0], y[1], y[2]};
    const std::array<Hux64f, 3> x2 = {x[0] * x[0], x[1] * x[1], x[2] * x[2]};
    const std::array<Hux64f, 3> x3 = {x2[0] * x[0], x2[1] * x[1], x2[2] * x[2]};
    const Hux64f r = 1.0 / determinant(x3, x2, x1);
    A = determinant(y1, x2, x1) * r;
    B = determinant(x3, y1, x1) * r;
    C = determinant(x3, x2, y1) * r;
  }

 private:
  // Of three columns.
  static Hux64f determinant(std::array<Hux64f, 3> a, std::array<Hux64f, 3> b, std::array<Hux64f, 3> c) {
    return a[0] * (b[1] * c[2] - b[2] * c[1]) - b[0] * (a[1] * c[2] - a[2] * c[1]) + c[0] * (a[1] * b[2] - a[2] * b[1]);
  }
};

// --- Integers: tables of all values.

template <class T>
constexpr int kValues = 1 << 8 * sizeof(T);

template <class T, class N>
T saturated(N v) {
  return T(std::clamp<N>(v, std::numeric_limits<T>::min(), std::numeric_limits<T>::max()));
}

// Entries by a rule of doubles on the values from `first` on, truncated and saturated; NaN gives the lowest value.
template <class T, class Rule>
void fillEntries(T* entries, int first, int count, Rule rule) {
  constexpr int lanes = laneCount<Hux64f>;
  using V = Lanes<Hux64f, lanes>;
  using I = Lanes<Hux32s, lanes>;
  I value = splat<I>(first);
  for (int l = 0; l < lanes; ++l) value[l] += l;
  for (int i = 0; i < count; i += lanes, value += lanes) {
    V v = rule(convert<Hux64f>(value));
    v = lesser(greater(v, splat<V>(std::numeric_limits<T>::min())), splat<V>(std::numeric_limits<T>::max()));
    const Lanes<T, lanes> entry = convert<T>(convert<Hux32s>(v));
    std::memcpy(entries + i, &entry, std::size_t(std::min(lanes, count - i)) * sizeof(T));
  }
}

// The table of one channel, by the number of the value from the lowest on.
template <Curve curve, class T>
void ownvi_LUT_FullMap(T* table, const Pairs<Hux32s>& pairs) {
  constexpr Hux32s low = std::numeric_limits<T>::min(), end = low + kValues<T>;
  const auto& levels = pairs.levels;
  const auto clamped = [=](Hux32s level, Hux32s top) { return std::clamp(level, low, top); };
  const auto identity = [&](Hux32s from, Hux32s to) {
    for (Hux32s v = from; v < to; ++v) table[v - low] = T(v);
  };
  identity(low, clamped(levels[0], end));
  for (int k = 0; k < levels.segments(); ++k) {
    const Hux32s a = levels[k], b = levels[k + 1], to = clamped(b, end);
    const Hux32s value = pairs.values[k];
    if (b <= a) continue;
    if constexpr (curve == Curve::kStairs) {
      for (Hux32s v = clamped(a, end); v < to; ++v) table[v - low] = saturated<T>(value);
    } else {
      // The start is limited to the highest element, so a segment that lies above all elements still sets that one.
      const Hux32s from = clamped(a, end - 1);
      if (to - from == 1) {
        table[from - low] = saturated<T>(value);
      } else if constexpr (curve == Curve::kLines) {
        const Hux64f slope = Line<Hux32s>(pairs, k).slope, intercept = value + 0.5 - a * slope;
        fillEntries(table + (from - low), from, to - from, [=](auto i) { return i * slope + intercept; });
      } else {
        const Cubic<Hux32s> c(pairs, k);
        const Hux64f start = levels[c.origin], base = pairs.values[c.origin] + 0.5;
        fillEntries(table + (from - low), from, to - from, [=](auto i) {
          const auto t = i - start;
          return c.C * t + base + t * t * t * c.A + t * t * c.B;
        });
      }
    }
  }
  identity(clamped(levels.last(), end), end);
}

template <class L, class T>
void ownvi_LUT(const T* tables, const T* pSrc, int srcStep, T* pDst, int dstStep, HuxiSize roi) {
  const auto src = rows<L>(pSrc, srcStep);
  const auto dst = rows<L>(pDst, dstStep);
  if constexpr (sizeof(T) == 1) {
    const ByteTables<L> rule(tables);
    forEachRow(roi, src, dst, [&](auto* s, auto* d, Index n) { rule.map(s, d, n); });
  } else {
    forEachRow(roi, src, dst, [=](auto* s, auto* d, Index n) {
      for (Index i = 0; i < n * L::channels; i += L::channels)
        for (int c = 0; c < L::processed; ++c)
          d[i + c] = tables[Index(c) * kValues<T> + s[i + c] - std::numeric_limits<T>::min()];
    });
  }
}

// Stairs by search, where a table would cost more. Of levels that do not ascend it makes something else than the table
// does; the header promises a result for ascending levels only.
template <class L, class T>
void ownvi_LUT_BS(const ChannelPairs<L, T>& channels, const T* pSrc, int srcStep, T* pDst, int dstStep, HuxiSize roi) {
  bool regular[L::processed];
  for (int c = 0; c < L::processed; ++c) regular[c] = channels[c].levels.regular();
  forEachRow(roi, rows<L>(pSrc, srcStep), rows<L>(pDst, dstStep), [&](auto* src, auto* dst, Index n) {
    mapChannels<L>(src, dst, n, [&](int c, const auto* from, auto* to, Index length) {
      const auto [levels, values] = channels[c];
      const Hux32s first = levels[0], last = levels.last();
      Hux32s found[kChannelBlock];
      if (regular[c])
        levels.byHalves(from, length, found);
      else
        for (Index i = 0; i < length; ++i) found[i] = levels.byHalves(from[i]);
      for (Index i = 0; i < length; ++i) {
        const T p = from[i];
        to[i] = first <= p && p < last ? saturated<T, Hux32s>(values[found[i]]) : p;
      }
    });
  });
}

template <class L>
bool searchPays(HuxiSize roi) {
  const std::int64_t pixels = std::int64_t(roi.width) * roi.height;
  return L::channels == 1 ? pixels <= 6400 : L::channels == 3 && pixels < 4097;
}

template <Curve curve, class L, class T>
HuxStatus mapIntegers(const ChannelPairs<L, T>& channels, const T* pSrc, int srcStep, T* pDst, int dstStep,
                      HuxiSize roi) {
  const auto apply = [&](T* tables) {
    for (int c = 0; c < L::processed; ++c) ownvi_LUT_FullMap<curve>(tables + c * kValues<T>, channels[c]);
    ownvi_LUT<L>(tables, pSrc, srcStep, pDst, dstStep, roi);
  };
  if constexpr (sizeof(T) == 1) {
    T tables[L::processed * kValues<T>];
    apply(tables);
  } else {
    if (curve == Curve::kStairs && searchPays<L>(roi)) {
      ownvi_LUT_BS<L>(channels, pSrc, srcStep, pDst, dstStep, roi);
      return huxStsOk;
    }
    const Scratch<T> tables(Index(L::processed) * kValues<T>);
    if (!tables) return huxStsNoMem;
    apply(tables.get());
  }
  return huxStsOk;
}

// --- Floats: the segment of each pixel, and what the curve makes of it.

// The slope, or the coefficients A, B and C, of a segment, of one without extent 0; which pair the curve starts from;
// and its value at a distance from there, on doubles or on lanes of them. Stairs have none of this.
template <Curve curve>
struct Terms {};
template <>
struct Terms<Curve::kLines> {
  Hux64f numbers[1];
  Terms(const Pairs<Hux32f>& pairs, int k) : numbers{Line<Hux32f>(pairs, k).slope} {}
  static int origin(const Pairs<Hux32f>&, int k) { return k; }
  template <class D>
  static D at(D t, D value, const D (&n)[1]) {
    return t * n[0] + value;
  }
};
template <>
struct Terms<Curve::kCubics> {
  Hux64f numbers[3] = {};
  Terms(const Pairs<Hux32f>& pairs, int k) {
    if (!(pairs.levels[k] < pairs.levels[k + 1])) return;
    const Cubic<Hux32f> c(pairs, k);
    numbers[0] = c.A, numbers[1] = c.B, numbers[2] = c.C;
  }
  static int origin(const Pairs<Hux32f>& pairs, int k) {
    const int n = pairs.levels.count;
    return k == 0 ? 1 : k == n - 2 ? n - 3 : k;
  }
  template <class D>
  static D at(D t, D value, const D (&n)[3]) {
    return value + n[2] * t + t * (t * t) * n[0] + n[1] * (t * t);
  }
};

// The same on lanes, where the segments are so few that each is selected in turn. They lie above one another.
template <Curve curve>
struct FewSegments {
  static constexpr int lanes = curve == Curve::kStairs ? laneCount<Hux32f> : laneCount<Hux64f>;
  using V = Lanes<Hux32f, lanes>;
  Pairs<Hux32f> pairs;
  const Terms<curve>* terms;

  V operator()(V v) const {
    const auto& levels = pairs.levels;
    const V mapped = segmentsOf(v);
    return ((levels[0] > v) | (v >= levels.last())) ? v : mapped;
  }

 private:
  V segmentsOf(V v) const {
    const int n = pairs.levels.segments();
    if constexpr (curve == Curve::kStairs) {
      V value = splat<V>(pairs.values[0]);
      for (int k = 1; k < n; ++k) value = v >= pairs.levels[k] ? splat<V>(pairs.values[k]) : value;
      return value;
    } else {
      using D = Lanes<Hux64f, lanes>;
      constexpr int count = sizeof(Terms<curve>) / sizeof(Hux64f);
      const D wide = convert<Hux64f>(v);
      const auto origin = [&](int k) { return Terms<curve>::origin(pairs, k); };
      V level = splat<V>(pairs.levels[origin(0)]), value = splat<V>(pairs.values[origin(0)]);
      D term[count];
      for (int i = 0; i < count; ++i) term[i] = splat<D>(terms[0].numbers[i]);
      for (int k = 1; k < n; ++k) {
        const auto from = v >= pairs.levels[k];
        const auto fromWide = wide >= Hux64f(pairs.levels[k]);
        level = from ? splat<V>(pairs.levels[origin(k)]) : level;
        value = from ? splat<V>(pairs.values[origin(k)]) : value;
        for (int i = 0; i < count; ++i) term[i] = fromWide ? splat<D>(terms[k].numbers[i]) : term[i];
      }
      return convert<Hux32f>(Terms<curve>::at(D(convert<Hux64f>(v - level)), D(convert<Hux64f>(value)), term));
    }
  }
};

template <Curve curve, class L>
HuxStatus mapFloats(const ChannelPairs<L, Hux32f>& channels, const Hux32f* pSrc, int srcStep, Hux32f* pDst, int dstStep,
                    HuxiSize roi) {
  using Term = Terms<curve>;
  Segments segments[L::processed];
  for (int c = 0; c < L::processed; ++c) segments[c] = Segments(channels[c].levels);
  const Term* terms[L::processed] = {};
  const auto mapAll = [&] {
    forEachRow(roi, rows<L>(pSrc, srcStep), rows<L>(pDst, dstStep), [&](auto* src, auto* dst, Index n) {
      mapChannels<L>(src, dst, n, [&](int c, const auto* from, auto* to, Index length) {
        const auto pairs = channels[c];
        if (segments[c].areFew()) {
          mapRow<C1>(from, to, length, FewSegments<curve>{pairs, terms[c]});
          return;
        }
        Hux32s found[kChannelBlock];
        segments[c].find(from, length, found);
        for (Index i = 0; i < length; ++i) {
          const Hux32f p = from[i];
          const int k = found[i];
          if (k == Segments::kNone) {
            to[i] = p;
          } else if constexpr (curve == Curve::kStairs) {
            to[i] = pairs.values[k];
          } else {
            const int origin = Term::origin(pairs, k);
            const Hux64f t = p - pairs.levels[origin], value = pairs.values[origin];
            to[i] = Hux32f(Term::at(t, value, terms[c][k].numbers));
          }
        }
      });
    });
    return HuxStatus(huxStsOk);
  };
  if constexpr (curve == Curve::kStairs) {
    return mapAll();
  } else {
    Index count = 0;
    for (const auto& pairs : channels) count += pairs.levels.segments();
    const Scratch<Term> memory(count);
    if (!memory) return huxStsNoMem;
    Term* next = memory.get();
    for (int c = 0; c < L::processed; ++c) {
      terms[c] = next;
      for (int k = 0; k < channels[c].levels.segments(); ++k) *next++ = Term(channels[c], k);
    }
    return mapAll();
  }
}

// --- The families, with the arguments of C1 as those of one channel.

template <class L, class N>
HuxStatus channelsSound(const N* const* pValues, const N* const* pLevels, const int* nLevels) {
  for (int c = 0; c < L::processed; ++c)
    if (HuxStatus s =
            check(pointers(pValues[c], pLevels[c]), failUnless(elements(nLevels)[c] >= 2, huxStsBadLutLevels)))
      return s;
  return huxStsOk;
}

template <Curve curve, class L, class T>
HuxStatus lut(const T* pSrc, int srcStep, T* pDst, int dstStep, HuxiSize roi, const PairOf<T>* const* pValues,
              const PairOf<T>* const* pLevels, const int* nLevels) {
  // One channel tests its levels last, several test them ahead of size and steps.
  if constexpr (L::channels == 1) {
    if (HuxStatus s = check(pointers(pSrc, pDst, *pValues, *pLevels), size(roi), steps(srcStep, dstStep),
                            failUnless(*nLevels >= 2, huxStsBadLutLevels)))
      return s;
  } else {
    if (HuxStatus s = check(
            pointers(pSrc, pDst, pValues, pLevels, nLevels),
            [=] { return channelsSound<L>(pValues, pLevels, nLevels); }, size(roi), steps(srcStep, dstStep)))
      return s;
  }
  ChannelPairs<L, T> channels;
  bool fewLevels = false;
  for (int c = 0; c < L::processed; ++c) {
    channels[c] = {{elements(pLevels[c]), elements(nLevels)[c]}, elements(pValues[c])};
    fewLevels |= elements(nLevels)[c] < 4;
  }
  const auto map = [&]<Curve drawn>(std::integral_constant<Curve, drawn>) {
    if constexpr (std::is_floating_point_v<T>)
      return mapFloats<drawn, L>(channels, pSrc, srcStep, pDst, dstStep, roi);
    else
      return mapIntegers<drawn, L, T>(channels, pSrc, srcStep, pDst, dstStep, roi);
  };
  // A polynomial needs four pairs; with fewer in any channel all channels take lines.
  if constexpr (curve == Curve::kCubics)
    if (fewLevels) return map(std::integral_constant<Curve, Curve::kLines>{});
  return map(std::integral_constant<Curve, curve>{});
}

}  // namespace
}  // namespace hux

// A function of one channel passes the addresses of its parameters where the others pass arrays.
#define EXPORT_FORMS(name, curve, t, l, P, A)                                                                          \
  HuxStatus huxi##name##_##t##_##l##R(const Hux##t* pSrc, int srcStep, Hux##t* pDst, int dstStep, HuxiSize roiSize,    \
                                      HUX_LIST P) {                                                                    \
    return hux::lut<hux::Curve::curve, hux::l>(pSrc, srcStep, pDst, dstStep, roiSize, HUX_LIST A);                     \
  }                                                                                                                    \
  HuxStatus huxi##name##_##t##_##l##IR(Hux##t* pSrcDst, int srcDstStep, HuxiSize roiSize, HUX_LIST P) {                \
    return hux::lut<hux::Curve::curve, hux::l, Hux##t>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, HUX_LIST A); \
  }
#define EXPORT_C1(name, curve, t)                                                                     \
  EXPORT_FORMS(name, curve, t, C1,                                                                    \
               (const hux::PairOf<Hux##t>* pValues, const hux::PairOf<Hux##t>* pLevels, int nLevels), \
               (&pValues, &pLevels, &nLevels))
#define EXPORT_CN(name, curve, t, l)                                                                              \
  EXPORT_FORMS(                                                                                                   \
      name, curve, t, l,                                                                                          \
      (const hux::PairOf<Hux##t>* const* pValues, const hux::PairOf<Hux##t>* const* pLevels, const int* nLevels), \
      (pValues, pLevels, nLevels))
#define EXPORT(t, l)                  \
  EXPORT_CN(LUT, kStairs, t, l)       \
  EXPORT_CN(LUT_Linear, kLines, t, l) \
  EXPORT_CN(LUT_Cubic, kCubics, t, l)
HUX_STAMP(EXPORT, (8u, 16s, 16u, 32f), (C3, C4, AC4))
#undef EXPORT
#define EXPORT(t, _)               \
  EXPORT_C1(LUT, kStairs, t)       \
  EXPORT_C1(LUT_Linear, kLines, t) \
  EXPORT_C1(LUT_Cubic, kCubics, t)
HUX_STAMP(EXPORT, (8u, 16s, 16u, 32f), (C1))
