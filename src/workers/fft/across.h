// The passes of a transform where a lane is a column: the same operations as along a row, in the same order, so that
// they give the same bits. A column's numbers lie in two planes, real and imaginary parts, a vector for each row.
#pragma once

#include "workers/fft/power.h"

namespace hux::fft {

template <class V>
struct Columns {
  Hux32f *re, *im;

  Split<V> operator[](Index row) const {
    return {loadLanes<V>(re + row * splitLanes<V>), loadLanes<V>(im + row * splitLanes<V>)};
  }
  void set(Index row, Split<V> z) const {
    storeLanes(re + row * splitLanes<V>, z.re);
    storeLanes(im + row * splitLanes<V>, z.im);
  }
};

// The factor for every column, of a table for vectors along a row.
inline Split<Hux32f> factorAt(const Hux32f* factors, Index vectors, Index j, int which) {
  const Hux32f* at =
      factors + (j / kSplitLanes * vectors + which) * 2 * kSplitLanes + laneOf<SplitLanes>(int(j % kSplitLanes));
  return {at[0], at[kSplitLanes]};
}
template <class V>
Split<V> splat(Split<Hux32f> w) {
  return {hux::splat<V>(w.re), hux::splat<V>(w.im)};
}

// One radix-4 pass over rows first..first + n, in groups of four times `quarter`. out(row, z) takes the results.
template <Way W, class V, class Out>
void radix4Across(Columns<V> d, Index first, Index n, Index quarter, const Hux32f* factors, Out out) {
  for (Index j = 0; j < quarter; ++j) {
    const Split<V> w1 = splat<V>(factorAt(factors, 3, j, 0)), w2 = splat<V>(factorAt(factors, 3, j, 1)),
                   w3 = splat<V>(factorAt(factors, 3, j, 2));
    for (Index r = first + j; r < first + n; r += 4 * quarter) {
      Split<V> a = d[r];
      Split<V> b = turned<W>(d[r + quarter], w2);
      Split<V> c = turned<W>(d[r + 2 * quarter], w1);
      Split<V> e = turned<W>(d[r + 3 * quarter], w3);
      radix4<W>(a, b, c, e);
      out(r, a), out(r + quarter, b), out(r + 2 * quarter, c), out(r + 3 * quarter, e);
    }
  }
}

// The passes behind kernels of `quarter` rows, up to n of them.
template <Way W, class V, class Scale, class Out>
void cRadix4Across(Columns<V> d, Index first, Index n, Index quarter, const Hux32f* factors, Scale scale, Out out) {
  for (; 4 * quarter < n; factors += 6 * quarter, quarter *= 4)
    radix4Across<W>(d, first, n, quarter, factors, [&](Index r, Split<V> z) { d.set(r, z); });
  radix4Across<W>(d, first, n, quarter, factors, [&](Index r, Split<V> z) { out(r, scale(z)); });
}

// Rows of columns whose planes the nearest cache holds.
inline constexpr Index kNearRows = 512;

// The same with the kernels, which kernels(first, end) leaves in rows first to end. What fits the nearest cache goes
// through all of its passes before the next; that does not show in the bits.
template <Way W, class V, class Kernels, class Scale, class Out>
void blockAcross(Columns<V> d, Index first, Index n, Index quarter, const Hux32f* factors, Kernels kernels, Scale scale,
                 Out out) {
  if (n <= kNearRows) {
    kernels(first, first + n);
    return cRadix4Across<W>(d, first, n, quarter, factors, scale, out);
  }
  const Index part = n / 4;
  for (Index r = first; r < first + n; r += part) {
    kernels(r, r + part);
    cRadix4Across<W>(d, r, part, quarter, factors, Unscaled{}, [&](Index row, Split<V> z) { d.set(row, z); });
  }
  // Ahead of the factors of the last pass are those of all shorter ones.
  radix4Across<W>(d, first, n, part, factors + 2 * (part - quarter), [&](Index r, Split<V> z) { out(r, scale(z)); });
}

template <Way W, class V, class Out>
void cFft_Blk_R2Across(Columns<V> d, Index first, Index half, const Hux32f* factors, Out out) {
  const Index q = half / 2;
  for (Index j = 0; j < q; ++j) {
    const Split<V> w = splat<V>(factorAt(factors, 1, j, 0));
    const Index r = first + j;
    const Split<V> a = d[r], b = d[r + q], s = turned<W>(d[r + half], w), t = turned<W>(d[r + half + q], w);
    out(r, a + s);
    out(r + half, a - s);
    out(r + q, addTurned<W>(b, t));
    out(r + half + q, subTurned<W>(b, t));
  }
}

// Calls body with the scaling of the direction.
template <Way W, class Body>
void withScale(const Scaling& scaling, Body body) {
  if (scaling.on<W>())
    body(Scaled{scaling.factor});
  else
    body(Unscaled{});
}

// Whole transforms of orders up to kMergeOrder. in(row) gives a row of the columns, out(row, z) takes one; every row is
// taken in before the same row, or any when the order is 4 or less, is given out.
template <Way W, class V, class In, class Out>
void transformAcross(const void* block, const PowerPlan& plan, Columns<V> d, In in, Out out) {
  const int order = plan.order;
  const Index n = Index(1) << order;
  withScale<W>(plan.scaling, [&](auto scale) {
    // Of rows `begin` to `end`, scaled at their first sums.
    const auto kernels = [&](auto size, Index begin, Index end, auto first, auto take) {
      constexpr int N = size, bits = N == 4 ? 2 : N == 8 ? 3 : 4;
      for (Index r = begin; r < end; r += N) {
        const Index from = reversed(r / N, order - bits);
        Split<V> z[N];
        for (int i = 0; i < N; ++i) z[i] = in(from + reversed(i, bits) * (n / N));
        kernel<W>(z, first);
        for (int i = 0; i < N; ++i) take(r + i, z[i]);
      }
    };
    constexpr std::integral_constant<int, 4> four{};
    constexpr std::integral_constant<int, 8> eight{};
    constexpr std::integral_constant<int, 16> sixteen{};
    if (order == 0) return out(0, scale(in(0)));
    if (order == 1) {
      const Split<V> a = in(0), b = in(1);
      out(0, scale(a + b));
      return out(1, scale(a - b));
    }
    if (order == 2) return kernels(four, 0, 4, scale, out);
    if (order == 3) return kernels(eight, 0, 8, scale, out);
    if (order == 4) return kernels(sixteen, 0, 16, Unscaled{}, [&](Index r, Split<V> z) { out(r, scale(z)); });
    const auto keep = [&](Index r, Split<V> z) { d.set(r, z); };
    const Hux32f *passes = plan.passes.in(block), *merges = plan.merges.in(block);
    const auto blocks = [&](auto size, Index first, Index length, auto give) {
      blockAcross<W>(
          d, first, length, size, passes, [&](Index begin, Index end) { kernels(size, begin, end, Unscaled{}, keep); },
          scale, give);
    };
    if (order <= kBlockOrder) return order % 2 ? blocks(eight, 0, n, out) : blocks(sixteen, 0, n, out);
    constexpr Index length = Index(1) << kBlockOrder;
    for (Index r = 0; r < n; r += length) blocks(sixteen, r, length, keep);
    if (order == kBlockOrder + 1) return cFft_Blk_R2Across<W>(d, 0, length, merges, out);
    for (Index r = 0; r < n; r += 2 * length) cFft_Blk_R2Across<W>(d, r, length, merges, keep);
    cFft_Blk_R2Across<W>(d, 0, 2 * length, merges + length, out);
  });
}

}  // namespace hux::fft
