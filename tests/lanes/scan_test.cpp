// Running totals in vectors, for every width and number of channels, and squares turned over.
#include "lanes/scan.h"

#include <gtest/gtest.h>

#include "lanes/row_lanes.h"

namespace hux::test {
namespace {

template <int N, class V>
void expectScan() {
  constexpr int lanes = lanesIn<V>;
  V v;
  for (int i = 0; i < lanes; ++i) v[i] = LaneType<V>(i * i * 7 + 3);
  const V totals = runningTotals<N>(v), last = lastPixel<N>(v);
  for (int i = 0; i < lanes; ++i) {
    LaneType<V> total = 0;
    for (int k = i; k >= 0; k -= N) total = LaneType<V>(total + v[k]);
    EXPECT_EQ(totals[i], total) << lanes << " lanes, " << N << " channels, lane " << i;
    EXPECT_EQ(last[i], v[lanes - N + i % N]) << lanes << " lanes, " << N << " channels, lane " << i;
  }
}

template <class T, int... Bytes>
void expectScans() {
  (..., (expectScan<1, Lanes<T, Bytes / int(sizeof(T))>>(), expectScan<3, Lanes<T, Bytes / int(sizeof(T))>>(),
         expectScan<4, Lanes<T, Bytes / int(sizeof(T))>>()));
}

TEST(Scan, TotalsByChannel) {
  expectScans<Hux16u, 16, 32, 64>();
  expectScans<Hux32u, 16, 32, 64>();
}

template <int n>
void expectTransposed() {
  Lanes<Hux32f, n> square[n];
  for (int y = 0; y < n; ++y)
    for (int x = 0; x < n; ++x) square[y][x] = Hux32f(y * 100 + x);
  transpose(square);
  for (int y = 0; y < n; ++y)
    for (int x = 0; x < n; ++x) EXPECT_EQ(square[y][x], Hux32f(x * 100 + y)) << n;
}

TEST(RowLanes, Transpose) {
  expectTransposed<4>();
  expectTransposed<8>();
  expectTransposed<16>();
}

}  // namespace
}  // namespace hux::test
