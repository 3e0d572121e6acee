// Moments up to the third order: the scan of an image into a record.
#include <algorithm>
#include <array>

#include "core/stamp.h"
#include "lanes/elementwise.h"
#include "lanes/lanes_math.h"
#include "lanes/lanes_sum.h"
#include "lanes/unrolled.h"
#include "stats/moment_record.h"
#include "workers/channels.h"

namespace hux {
namespace {

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
  const Index most = L::channels == 1 ? roi.width : kRoom;
  for (int y = 0; y < roi.height; ++y)
    for (int c = 0; c < L::processed; ++c) {
      std::uint64_t sums[4] = {};
      forPieces(roi.width, most, [&](Index x, Index n) {
        T room[kRoom];
        ownMoments_8u(channelOf<L>(src.row(y) + x * L::channels, c, room, int(n)), int(x), int(n), sums);
      });
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

}  // namespace
}  // namespace hux

#define EXPORT_MOMENTS(r, t, l)                                                              \
  HuxStatus huxiMoments##r##_##t##_##l##R(const Hux##t* pSrc, int srcStep, HuxiSize roiSize, \
                                          HuxiMomentRecord_##r* pState) {                    \
    return hux::moments<hux::l>(pSrc, srcStep, roiSize, pState);                             \
  }
#define EXPORT(_, l) EXPORT_MOMENTS(64f, 8u, l) EXPORT_MOMENTS(64f, 32f, l) EXPORT_MOMENTS(64s, 8u, l)
HUX_STAMP(EXPORT, (_), (C1, C3, AC4))
