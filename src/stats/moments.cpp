// Moments up to the third order: the scan of an image into a record, and what is derived from the record.
#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

#include "core/context.h"
#include "core/stamp.h"
#include "huxi_stats.h"
#include "lanes/elementwise.h"
#include "lanes/lanes_math.h"
#include "lanes/lanes_sum.h"
#include "workers/channels.h"

namespace hux {
namespace {

// The moments of a channel, M(m, n) = sum(p * x^m * y^n); those of m + n > 3 stay 0.
template <class W>
struct Moments {
  Element<W> entries[16];

  // Adds the sums of row y over p, p * x, p * x^2 and p * x^3, by doubles in this very order or modulo 2^64.
  template <class S>
  void add(const S (&s)[4], S y) {
    const auto to = [&](int m, int n, S term) { entries[m + 4 * n] = W(S(W(entries[m + 4 * n])) + term); };
    to(0, 0, s[0]), to(1, 0, s[1]), to(2, 0, s[2]), to(3, 0, s[3]);
    to(0, 1, s[0] * y), to(1, 1, s[1] * y), to(2, 1, s[2] * y);
    to(0, 2, s[0] * y * y), to(1, 2, s[1] * y * y);
    to(0, 3, s[0] * y * y * y);
  }
};

// A record may lie at any address, since callers may bring its memory.
template <class W, Hux32s Tag>
struct Record {
  using Value = W;
  static constexpr Hux32s kTag = Tag;
  // M00 must be above this to divide by.
  static constexpr Hux64f kLeastMass = std::is_integral_v<W> ? 0 : std::numeric_limits<Hux64f>::epsilon();
  Element<Hux32s> tag, hint;
  Element<Hux32s> nChannels;  // -1 before the first image
  Element<Hux32s> reserved;
  Moments<W> moments[3];
};

}  // namespace
}  // namespace hux

struct HuxiMomentRecord_64f : hux::Record<Hux64f, 33> {};
struct HuxiMomentRecord_64s : hux::Record<Hux64s, 34> {};
static_assert(sizeof(HuxiMomentRecord_64f) == 400 && sizeof(HuxiMomentRecord_64s) == 400);

namespace hux {
namespace {

template <class R>
HuxStatus init(R* pState, HuxAccuracyHint hint) {
  if (HuxStatus s = pointers(pState)) return s;
  *pState = R{};
  pState->tag = R::kTag;
  pState->hint = hint;
  pState->nChannels = -1;
  return huxStsOk;
}

template <class R>
HuxStatus initAlloc(R** ppState, HuxAccuracyHint hint) {
  if (HuxStatus s = pointers(ppState)) return s;
  return create(ppState, sizeof(R), [=](R* record) { return init(record, hint); });
}

template <class R>
auto kind(const R* pState) {
  return recordOf(pState, R::kTag);
}

template <class R>
HuxStatus freeRecord(R* pState) {
  if (HuxStatus s = check(pointers(pState), kind(pState))) return s;
  retire(pState, true);
  return huxStsOk;
}

// --- Row sums of 8u in integers, for 64f.
//
// As long as no sum exceeds 2^53, additions of doubles in order are exact, and any other way to the same integers will
// do. That holds up to this many columns, whatever the pixels.
constexpr int kExactColumns = [] {
  std::int64_t x = 0, s3 = 0;
  while (s3 + 255 * x * x * x <= std::int64_t(1) << 53) s3 += 255 * x * x * x, ++x;
  return int(x);
}();

// A row is cut into blocks; x is c + j with c = 64 * b + 32 in block b, and the powers of j fit 16 bits.
constexpr int kBlock = 64;
constexpr auto kPowers = [] {
  std::array<Hux16s, 4 * kBlock> powers{};
  for (int i = 0; i < kBlock; ++i)
    for (int k = 0, power = 1; k < 4; ++k, power *= i - kBlock / 2) powers[k * kBlock + i] = Hux16s(power);
  return powers;
}();

// The sum of p * x^m over a row is the sum over k and d of kShift[m][k][d] * T(k, d), where T(k, d) is the sum over the
// blocks of C(b, d) * sum(p * j^k): the binomial rule for c + j, and c^(m - k) in terms of C(b, d), whose factors are
// the differences of c^(m - k) at b = 0.
constexpr auto kShift = [] {
  constexpr int choose[4][4] = {{1}, {1, 1}, {1, 2, 1}, {1, 3, 3, 1}};
  std::array<std::array<std::array<Hux64s, 4>, 4>, 4> shift{};
  for (int m = 0; m < 4; ++m)
    for (int k = 0; k <= m; ++k) {
      Hux64s power[4] = {1, 1, 1, 1};
      for (int b = 0; b < 4; ++b)
        for (int i = k; i < m; ++i) power[b] *= kBlock * b + kBlock / 2;
      for (int d = 0; d <= m - k; ++d) {
        shift[m][k][d] = choose[m][k] * power[0];
        for (int b = 0; b < 3; ++b) power[b] = power[b + 1] - power[b];
      }
    }
  return shift;
}();

template <int N, class Body>
void unrolled(Body body) {
  [&]<int... I>(std::integer_sequence<int, I...>) { (body(std::integral_constant<int, I>{}), ...); }
  (std::make_integer_sequence<int, N>{});
}

// The row sums of up to kExactColumns bytes. The totals T are kept in 32-bit lanes, each of the pixel pairs that lie
// `lanes` pairs apart: going through the blocks from last to first, T(k, d) takes T(k, d - 1) before the new block is
// added there, which makes it count C(b, d) times. None reaches 2^31 over 54 blocks of any pixels: the largest is T(2,
// 1) in vectors of four lanes, 255 * 5576 * C(54, 2).
void ownMoments_8u(const Hux8u* row, int n, Hux64f (&sums)[4]) {
  constexpr int lanes = laneCount<Hux32s>, pixels = 2 * lanes, vectors = kBlock / pixels;
  static_assert(kExactColumns <= 54 * kBlock);
  using V = Lanes<Hux32s, lanes>;
  using Pixels = Lanes<Hux16s, pixels>;
  Pixels powers[4][vectors];
  std::memcpy(powers, kPowers.data(), sizeof powers);
  V total[4][4] = {};
  const auto* bytes = elements(row);
  Element<Hux8u> last[kBlock] = {};
  const int whole = n / kBlock;
  std::memcpy(last, bytes + whole * kBlock, std::size_t(n - whole * kBlock));
  for (int b = n > whole * kBlock ? whole : whole - 1; b >= 0; --b) {
    const auto* block = b == whole ? last : bytes + b * kBlock;
    V t[4] = {};
    for (int v = 0; v < vectors; ++v) {
      const Pixels p = bitsAs<Pixels>(convert<Hux16u>(loadLanes<Lanes<Hux8u, pixels>>(block + v * pixels)));
      for (int k = 0; k < 4; ++k) t[k] += pairProducts(p, powers[k][v]);
    }
    for (int k = 0; k < 4; ++k) {
      for (int d = 3 - k; d > 0; --d) total[k][d] += total[k][d - 1];
      total[k][0] += t[k];
    }
  }
  // No lane of a sum, and no term of one, is above 2^53 either.
  using W = Lanes<Hux64f, lanes / 2>;
  W s[4] = {};
  unrolled<4>([&](auto k) {
    unrolled<4 - k>([&](auto d) {
      const W t = convert<Hux64f>(half<0>(total[k][d])) + convert<Hux64f>(half<1>(total[k][d]));
      for (int m = k + d; m < 4; ++m) s[m] += t * Hux64f(kShift[m][k][d]);
    });
  });
  for (int m = 0; m < 4; ++m) {
    sums[m] = 0;
    for (int l = 0; l < lanes / 2; ++l) sums[m] += s[m][l];
  }
}

// --- Row sums in doubles, added in the order of the columns. A lane is a row, so that several rows go at once.

constexpr int kRows = laneCount<Hux64f>;
using RowLanes = Lanes<Hux64f, kRows>;

template <int Half, class V>
V interleaved(V a, V b) {
  constexpr int n = lanesIn<V>;
  return [&]<std::size_t... I>(std::index_sequence<I...>) {
    return __builtin_shufflevector(a, b, (Half * n / 2 + int(I) / 2 + int(I) % 2 * n)...);
  }
  (std::make_index_sequence<n>{});
}

// A square of lanes about its diagonal: with the index of an element in binary, rows above lanes, each pass rotates it
// by one bit.
template <class V>
void transpose(V* square) {
  constexpr int n = lanesIn<V>;
  for (int pass = 1; pass < n; pass *= 2) {
    V next[n];
    for (int i = 0; i < n / 2; ++i) {
      next[2 * i] = interleaved<0>(square[i], square[i + n / 2]);
      next[2 * i + 1] = interleaved<1>(square[i], square[i + n / 2]);
    }
    std::copy_n(next, n, square);
  }
}

template <class L>
struct GroupSums {
  RowLanes s[L::processed][4] = {};
};

// Adds the columns first..n.
template <class L, class T>
GroupSums<L> ownMoments(std::array<const Element<T>*, kRows> rows, int first, int n, GroupSums<L> sums) {
  using Floats = Lanes<Hux32f, kRows>;
  for (int x0 = first; x0 < n; x0 += kRows) {
    const int count = std::min(kRows, n - x0);
    Floats column[L::channels * kRows];  // by element
    for (int k = 0; k < L::channels; ++k) {
      const int left = count * L::channels - k * kRows;
      for (int r = 0; r < kRows; ++r) {
        using V = Lanes<T, kRows>;
        const Element<T>* from = rows[r] + Index(x0) * L::channels + k * kRows;
        column[k * kRows + r] =
            convert<Hux32f>(left >= kRows ? loadLanes<V>(from) : loadLanes<V>(from, std::max(left, 0), T(0)));
      }
      transpose(column + k * kRows);
    }
    for (int i = 0; i < count; ++i) {
      const RowLanes x = splat<RowLanes>(x0 + i);
      for (int c = 0; c < L::processed; ++c) {
        RowLanes term = convert<Hux64f>(column[i * L::channels + c]);
        sums.s[c][0] += term;
        for (int k = 1; k < 4; ++k) term *= x, sums.s[c][k] += term;
      }
    }
  }
  return sums;
}

template <class L, class T>
void scan(Rows<const T> src, HuxiSize roi, Moments<Hux64f>* moments) {
  for (int y = 0; y < roi.height; y += kRows) {
    const int count = std::min(kRows, roi.height - y);
    std::array<const Element<T>*, kRows> rows;
    for (int r = 0; r < kRows; ++r) rows[r] = src.row(y + std::min(r, count - 1));
    GroupSums<L> sums;
    int first = 0;
    if constexpr (std::is_same_v<T, Hux8u>) {
      first = std::min(kExactColumns, roi.width);
      for (int r = 0; r < count; ++r)
        for (int c = 0; c < L::processed; ++c) {
          Hux8u room[kExactColumns];
          Hux64f s[4];
          ownMoments_8u(channelOf<L>(rows[r], c, room, first), first, s);
          for (int k = 0; k < 4; ++k) sums.s[c][k][r] = s[k];
        }
    }
    if (first < roi.width) sums = ownMoments<L>(rows, first, roi.width, sums);
    for (int r = 0; r < count; ++r)
      for (int c = 0; c < L::processed; ++c) {
        const auto& s = sums.s[c];
        moments[c].add({s[0][r], s[1][r], s[2][r], s[3][r]}, Hux64f(y + r));
      }
  }
}

// --- Row sums of 8u for 64s.

// Adds the columns x.. of a row, n of them. p * x, p * x^2 and p * x^3 are signed products of 32 bits, that wrap; they
// are widened and added in 64 bits, where no row overflows.
void ownMoments_8u(const Hux8u* row, int x, int n, std::uint64_t (&sums)[4]) {
  constexpr int lanes = laneCount<Hux64s>;
  using V = Lanes<Hux32u, lanes>;
  Lanes<Hux64s, lanes> total[4] = {};
  V columns = splat<V>(unsigned(x));
  for (int l = 0; l < lanes; ++l) columns[l] += unsigned(l);
  for (int i = 0; i < n; i += lanes) {
    using Bytes = Lanes<Hux8u, lanes>;
    const auto* from = elements(row) + i;
    V term = convert<Hux32u>(i + lanes <= n ? loadLanes<Bytes>(from) : loadLanes<Bytes>(from, n - i, 0));
    for (int k = 0; k < 4; ++k, term *= columns) total[k] += convert<Hux64s>(Lanes<Hux32s, lanes>(term));
    columns += unsigned(lanes);
  }
  for (int k = 0; k < 4; ++k)
    for (int l = 0; l < lanes; ++l) sums[k] += std::uint64_t(total[k][l]);
}

template <class L, class T>
void scan(Rows<const T> src, HuxiSize roi, Moments<Hux64s>* moments) {
  constexpr int kRoom = 4096;
  const int most = L::channels == 1 ? roi.width : kRoom;
  for (int y = 0; y < roi.height; ++y)
    for (int c = 0; c < L::processed; ++c) {
      std::uint64_t sums[4] = {};
      for (int x = 0, n; x < roi.width; x += n) {
        T room[kRoom];
        n = std::min(most, roi.width - x);
        ownMoments_8u(channelOf<L>(src.row(y) + Index(x) * L::channels, c, room, n), x, n, sums);
      }
      moments[c].add(sums, std::uint64_t(y));
    }
}

template <class L, class T, class R>
HuxStatus moments(const T* pSrc, int srcStep, HuxiSize roi, R* pState) {
  const auto rowFits = [=] {
    return failUnless(srcStep >= Index(roi.width) * L::channels * Index(sizeof(T)), huxStsStepBelowWidth);
  };
  if (HuxStatus s = check(pointers(pSrc, pState), kind(pState), steps(srcStep), size(roi), rowFits)) return s;
  std::fill(std::begin(pState->moments), std::end(pState->moments), Moments<typename R::Value>{});
  pState->nChannels = L::processed;
  scan<L>(rows<L>(pSrc, srcStep), roi, pState->moments);
  return huxStsOk;
}

// --- What is derived from a record.

// The moments of a channel as doubles.
struct Raw {
  Hux64f M00, M10, M20, M30, M01, M11, M21, M02, M12, M03;
};
template <class R>
Raw rawOf(const R* pState, int channel) {
  const auto M = [&](int m, int n) { return Hux64f(typename R::Value(pState->moments[channel].entries[m + 4 * n])); };
  return {M(0, 0), M(1, 0), M(2, 0), M(3, 0), M(0, 1), M(1, 1), M(2, 1), M(0, 2), M(1, 2), M(0, 3)};
}

// The expressions are evaluated as they stand, from left to right: their last bits show. Orders that no moment has give
// none.
using Derived = std::optional<Hux64f>;

Derived spatial(const Raw& raw, int m, int n, HuxiPoint offset) {
  const auto& [M00, M10, M20, M30, M01, M11, M21, M02, M12, M03] = raw;
  const Hux64f X = offset.x, Y = offset.y;
  const auto is = [=](int i, int j) { return m == i && n == j; };
  if (is(0, 0)) return M00;
  if (is(0, 1)) return M00 * Y + M01;
  if (is(0, 2)) return (Y + Y) * M01 + M02 + Y * Y * M00;
  if (is(0, 3)) return 3 * Y * M02 + M03 + 3 * Y * Y * M01 + Y * Y * Y * M00;
  if (is(1, 0)) return M00 * X + M10;
  if (is(1, 1)) return M01 * X + M11 + M10 * Y + X * Y * M00;
  if (is(1, 2)) return M02 * X + M12 + (Y + Y) * M11 + Y * Y * M10 + (X + X) * Y * M01 + Y * Y * X * M00;
  if (is(2, 0)) return (X + X) * M10 + M20 + X * X * M00;
  if (is(2, 1)) return M11 * (X + X) + M21 + X * X * M01 + M20 * Y + (X + X) * Y * M10 + X * X * Y * M00;
  if (is(3, 0)) return 3 * X * M20 + M30 + 3 * X * X * M10 + X * X * X * M00;
  return {};
}

Derived central(const Raw& raw, int m, int n) {
  const auto& [M00, M10, M20, M30, M01, M11, M21, M02, M12, M03] = raw;
  const Hux64f r = 1.0 / M00, xc = M10 * r, yc = r * M01;
  const auto is = [=](int i, int j) { return m == i && n == j; };
  if (is(0, 0)) return M00;
  if (is(0, 1) || is(1, 0)) return 0.0;
  if (is(0, 2)) return M02 - yc * M01;
  if (is(0, 3)) return M03 - 3 * yc * M02 + (yc + yc) * yc * M01;
  if (is(1, 1)) return M11 - xc * M01;
  if (is(1, 2)) return M12 - xc * M02 - (yc + yc) * M11 + (yc + yc) * yc * M10;
  if (is(2, 0)) return M20 - xc * M10;
  if (is(2, 1)) return M21 - (xc + xc) * M11 + (xc + xc) * xc * M01 - yc * M20;
  if (is(3, 0)) return M30 - 3 * xc * M20 + (xc + xc) * xc * M10;
  return {};
}

// r3 is M00^-2.5; the two families form it in ways of their own.
std::array<Hux64f, 7> huMoments(const Raw& raw, Hux64f r1, Hux64f r3) {
  const auto& [M00, M10, M20, M30, M01, M11, M21, M02, M12, M03] = raw;
  const Hux64f r2 = 1.0 / (M00 * M00), xc = M10 * r1, yc = r1 * M01;
  const Hux64f u20 = (M20 - M10 * xc) * r2, u11 = (M11 - M01 * xc) * r2, u02 = r2 * (M02 - M01 * yc);
  const Hux64f u30 = (M30 - 3 * xc * M20 + M10 * (xc + xc) * xc) * r3;
  const Hux64f u21 = (M21 - (xc + xc) * M11 + (xc + xc) * xc * M01 - M20 * yc) * r3;
  const Hux64f u12 = (M12 - xc * M02 - (yc + yc) * M11 + M10 * (yc + yc) * yc) * r3;
  const Hux64f u03 = r3 * (M03 - 3 * yc * M02 + (yc + yc) * yc * M01);
  const Hux64f d = u20 - u02, a = 3 * u21 - u03, b = u30 - 3 * u12, c = u30 + u12, e = u21 + u03;
  return {u20 + u02, u11 * (4 * u11) + d * d, b * b + a * a, c * c + e * e,
          // The square is of u12 + u03 where the textbooks have c: deliberately so.
          b * c * ((u12 + u03) * (u12 + u03) - 3 * e * e) + a * e * (3 * c * c - e * e),
          d * (c * c - e * e) + 4 * u11 * c * e, a * c * (c * c - 3 * e * e) - b * e * (3 * c * c - e * e)};
}

// 2^|scaleFactor| as a signed 32-bit shift gives it: the count modulo 32, and 2^31 as a negative number.
Hux64f scaleOf(int scaleFactor) {
  const unsigned count = scaleFactor < 0 ? 0u - unsigned(scaleFactor) : unsigned(scaleFactor);
  return Hux32s(1u << count % 32);
}

// Towards zero, limited to the range; the lowest number for a NaN.
Hux64s truncated(Hux64f v) {
  if (v >= 0x1p63) return std::numeric_limits<Hux64s>::max();
  return v > -0x1p63 ? Hux64s(v) : std::numeric_limits<Hux64s>::min();
}

// Results leave 64f records as they are, and where there is none nothing is written; 64s records scale them and write
// 0 where there is none.
void finish(Derived v, Hux64f* pValue, int) {
  if (v) *elements(pValue) = *v;
}
void finish(Derived v, Hux64s* pValue, int scaleFactor) {
  const Hux64f scale = scaleOf(scaleFactor), value = v.value_or(0.0);
  *elements(pValue) = truncated(scaleFactor > 0 ? value / scale : value * scale);
}

template <class R>
auto channelFilled(const R* pState, int channel) {
  return [=] { return failUnless(channel >= 0 && channel < pState->nChannels, huxStsBadMomentIndex); };
}
template <class R>
auto massSuffices(const R* pState, int channel) {
  return [=] { return failUnless(std::fabs(rawOf(pState, channel).M00) > R::kLeastMass, huxStsMomentTooSmall); };
}
template <class R, class V>
HuxStatus checkMoment(const R* pState, int m, int n, int channel, const V* pValue) {
  return check(pointers(pState, pValue), kind(pState), failUnless(std::int64_t(m) + n <= 3, huxStsBadSize),
               channelFilled(pState, channel));
}

// Multiplies a moment by the power of M00 that takes out the scale of the shape. In 64s the moment is one truncated.
template <class R, class V>
HuxStatus normalize(const R* pState, int m, int n, int channel, Derived moment, V* pValue, int scaleFactor) {
  if constexpr (std::is_same_v<V, Hux64f>)
    finish(moment, pValue, 0);
  else
    moment = Hux64f(truncated(moment.value_or(0.0)));
  if (HuxStatus s = massSuffices(pState, channel)()) return s;
  if (moment) *moment *= std::pow(rawOf(pState, channel).M00, (Hux64f(m) + n + 2) * -0.5);
  finish(moment, pValue, scaleFactor);
  return huxStsOk;
}

template <bool Normalized, class R, class V>
HuxStatus getSpatial(const R* pState, int m, int n, int channel, HuxiPoint offset, V* pValue, int scaleFactor = 0) {
  if (HuxStatus s = checkMoment(pState, m, n, channel, pValue)) return s;
  const Derived moment = spatial(rawOf(pState, channel), m, n, offset);
  if constexpr (Normalized) return normalize(pState, m, n, channel, moment, pValue, scaleFactor);
  finish(moment, pValue, scaleFactor);
  return huxStsOk;
}

template <bool Normalized, class R, class V>
HuxStatus getCentral(const R* pState, int m, int n, int channel, V* pValue, int scaleFactor = 0) {
  if (HuxStatus s = check(checkMoment(pState, m, n, channel, pValue), massSuffices(pState, channel))) return s;
  const Derived moment = central(rawOf(pState, channel), m, n);
  if constexpr (Normalized) return normalize(pState, m, n, channel, moment, pValue, scaleFactor);
  finish(moment, pValue, scaleFactor);
  return huxStsOk;
}

template <class R, class V>
HuxStatus getHu(const R* pState, int channel, V* pHu, int scaleFactor = 0) {
  if (HuxStatus s =
          check(pointers(pState, pHu), kind(pState), channelFilled(pState, channel), massSuffices(pState, channel)))
    return s;
  constexpr bool floats = std::is_same_v<V, Hux64f>;
  const Raw raw = rawOf(pState, channel);
  const Hux64f M00 = raw.M00, r1 = 1.0 / M00;
  const auto hu = huMoments(raw, r1, floats ? 1.0 / (std::sqrt(M00) * M00 * M00) : std::sqrt(r1) * r1 * r1);
  // A reciprocal here, where single moments are divided.
  const Hux64f scale = scaleFactor > 0 ? 1.0 / scaleOf(scaleFactor) : scaleOf(scaleFactor);
  for (int i = 0; i < 7; ++i) finish(floats ? hu[i] : hu[i] * scale, pHu + i, 0);
  return huxStsOk;
}

}  // namespace
}  // namespace hux

HuxStatus huxiMomentGetStateSize_64s(HuxAccuracyHint, int* pSize) {
  if (HuxStatus s = hux::pointers(pSize)) return s;
  *hux::elements(pSize) = sizeof(HuxiMomentRecord_64s);
  return huxStsOk;
}
HuxStatus huxiMomentInit_64s(HuxiMomentRecord_64s* pState, HuxAccuracyHint hint) { return hux::init(pState, hint); }

// What follows the type are the further parameters of the functions that scale, and their arguments.
#define HUX_NONE
#define HUX_SCALE , int scaleFactor
#define HUX_SCALE_ARGUMENT , scaleFactor
#define EXPORT(t, parameter, argument)                                                                        \
  HuxStatus huxiMomentInitAlloc_##t(HuxiMomentRecord_##t** ppState, HuxAccuracyHint hint) {                   \
    return hux::initAlloc(ppState, hint);                                                                     \
  }                                                                                                           \
  HuxStatus huxiMomentFree_##t(HuxiMomentRecord_##t* pState) { return hux::freeRecord(pState); }              \
  HuxStatus huxiGetSpatialMoment_##t(const HuxiMomentRecord_##t* pState, int xOrder, int yOrder, int channel, \
                                     HuxiPoint offset, Hux##t* pValue parameter) {                            \
    return hux::getSpatial<false>(pState, xOrder, yOrder, channel, offset, pValue argument);                  \
  }                                                                                                           \
  HuxStatus huxiGetNormalizedSpatialMoment_##t(const HuxiMomentRecord_##t* pState, int xOrder, int yOrder,    \
                                               int channel, HuxiPoint offset, Hux##t* pValue parameter) {     \
    return hux::getSpatial<true>(pState, xOrder, yOrder, channel, offset, pValue argument);                   \
  }                                                                                                           \
  HuxStatus huxiGetCentralMoment_##t(const HuxiMomentRecord_##t* pState, int xOrder, int yOrder, int channel, \
                                     Hux##t* pValue parameter) {                                              \
    return hux::getCentral<false>(pState, xOrder, yOrder, channel, pValue argument);                          \
  }                                                                                                           \
  HuxStatus huxiGetNormalizedCentralMoment_##t(const HuxiMomentRecord_##t* pState, int xOrder, int yOrder,    \
                                               int channel, Hux##t* pValue parameter) {                       \
    return hux::getCentral<true>(pState, xOrder, yOrder, channel, pValue argument);                           \
  }                                                                                                           \
  HuxStatus huxiGetHuMoments_##t(const HuxiMomentRecord_##t* pState, int channel, Hux##t* pHu parameter) {    \
    return hux::getHu(pState, channel, pHu argument);                                                         \
  }
EXPORT(64f, HUX_NONE, HUX_NONE)
EXPORT(64s, HUX_SCALE, HUX_SCALE_ARGUMENT)
#undef EXPORT

#define EXPORT_MOMENTS(r, t, l)                                                              \
  HuxStatus huxiMoments##r##_##t##_##l##R(const Hux##t* pSrc, int srcStep, HuxiSize roiSize, \
                                          HuxiMomentRecord_##r* pState) {                    \
    return hux::moments<hux::l>(pSrc, srcStep, roiSize, pState);                             \
  }
#define EXPORT(_, l) EXPORT_MOMENTS(64f, 8u, l) EXPORT_MOMENTS(64f, 32f, l) EXPORT_MOMENTS(64s, 8u, l)
HUX_STAMP(EXPORT, (_), (C1, C3, AC4))
