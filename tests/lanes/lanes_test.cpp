// The operations on lanes that have an implementation for each level, beside their plain definitions.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <numeric>
#include <random>
#include <vector>

#include "lanes/lanes.h"
#include "lanes/lanes_math.h"
#include "lanes/lanes_sum.h"
#include "lanes/planes.h"
#include "lanes/round.h"
#include "lanes/simd.h"

namespace hux {
namespace {

// The ends of every integer type and of its halves, their neighbours, and random numbers of random magnitudes.
template <class T>
std::vector<T> samples() {
  std::mt19937_64 random(1);
  std::vector<T> all;
  if constexpr (std::is_integral_v<T>) {
    for (int bits : {0, 7, 8, 15, 16, 31, 32, 63})
      for (int beside : {-1, 0, 1})
        for (int sign : {1, -1})
          all.push_back(T((std::uint64_t(1) << bits) * std::uint64_t(sign) + std::uint64_t(beside)));
    while (all.size() < 1024) all.push_back(T(random() >> random() % 64));
  } else {
    constexpr T inf = std::numeric_limits<T>::infinity(), below = T(0.5) - std::numeric_limits<T>::epsilon() / 4;
    for (T v : {T(0), T(0.5), below, T(1.5), T(2.5), T(254.5), T(255.5), T(32767.5), T(32768.5), T(0x1p23), T(0x1p30),
                T(0x1p31), T(0x1p31) - 128, T(0x1p31) - T(0.5), T(0x1p62), T(1e-30), inf})
      all.push_back(v), all.push_back(-v);
    all.push_back(std::numeric_limits<T>::quiet_NaN());
    while (all.size() < 1024) all.push_back(std::ldexp(T(std::int64_t(random())), -int(random() % 72)));
  }
  std::shuffle(all.begin(), all.end(), random);
  return all;
}

template <class V>
V vectorAt(const std::vector<LaneType<V>>& values, std::size_t i) {
  return loadLanes<V>(values.data() + i);
}

// Calls check(vector, first sample of it) with vectors of all samples.
template <class V, class Check>
void forVectors(Check check) {
  static const auto all = samples<LaneType<V>>();
  for (std::size_t i = 0; i + lanesIn<V> <= all.size(); i += lanesIn<V>) check(vectorAt<V>(all, i), &all[i]);
}

template <class To, class From, int N>
void resizes() {
  using V = Lanes<From, N>;
  SCOPED_TRACE(testing::Message() << sizeof(From) << (std::is_signed_v<From> ? "s" : "u") << " to " << sizeof(To)
                                  << (std::is_signed_v<To> ? "s" : "u") << " x " << N);
  forVectors<V>([](V v, const From* from) {
    const auto converted = convert<To>(v);
    for (int i = 0; i < N; ++i) ASSERT_EQ(To(converted[i]), To(from[i])) << +from[i];
    if constexpr (sizeof(To) < sizeof(From)) {
      const auto limited = [](From e) {
        if (e > From(std::numeric_limits<To>::max())) return std::numeric_limits<To>::max();
        if (std::is_signed_v<From> && e < From(std::numeric_limits<To>::min())) return std::numeric_limits<To>::min();
        return To(e);
      };
      const auto saturated = saturate<To>(v);
      for (int i = 0; i < N; ++i) ASSERT_EQ(To(saturated[i]), limited(from[i])) << +from[i];
      constexpr int k = kJoined<To, V>;
      std::array<V, k> many;
      for (int j = 0; j < k; ++j) many[j] = j % 2 ? ~v : v;
      const auto joined = saturate<To>(many);
      for (int i = 0; i < k * N; ++i) ASSERT_EQ(To(joined[i]), limited(From(many[i / N][i % N])));
    }
  });
}
template <class To, class From>
void resizes() {
  constexpr int lanes = std::min(laneCount<To>, laneCount<From>);
  resizes<To, From, lanes>();
  if constexpr (lanes > 2) resizes<To, From, lanes / 2>();
}
template <class From, class... To>
void resizesTo() {
  (
      [] {
        if constexpr (sizeof(To) != sizeof(From)) resizes<To, From>();
      }(),
      ...);
}
template <class... T>
void resizesAll() {
  (resizesTo<T, T...>(), ...);
}

TEST(Lanes, BecomeWiderAndNarrowerIntegers) { resizesAll<Hux8u, Hux8s, Hux16u, Hux16s, Hux32u, Hux32s, Hux64s>(); }

TEST(Lanes, BecomeFloats) {
  const auto check = []<class V, class F>(V, F) {
    forVectors<V>([](V v, const auto* from) {
      const auto floats = convert<F>(v);
      for (int i = 0; i < lanesIn<V>; ++i) ASSERT_EQ(floats[i], F(from[i]));
    });
  };
  check(Lanes<Hux8u, laneCount<Hux32f>>{}, Hux32f()), check(Lanes<Hux8s, laneCount<Hux32f>>{}, Hux32f());
  check(Lanes<Hux16u, laneCount<Hux32f>>{}, Hux32f()), check(Lanes<Hux16s, laneCount<Hux32f>>{}, Hux32f());
  check(Lanes<Hux32s, laneCount<Hux32f>>{}, Hux32f()), check(Lanes<Hux32s, laneCount<Hux64f>>{}, Hux64f());
  forVectors<Lanes<Hux64s, laneCount<Hux64f>>>([](auto v, const Hux64s* from) {
    using U = Lanes<std::uint64_t, laneCount<Hux64f>>;
    const auto doubles = highToDouble(U(v) & ~std::uint64_t(0xffffffff)) * kHighUnit;
    for (int i = 0; i < lanesIn<U>; ++i) ASSERT_EQ(doubles[i], Hux64f(from[i] & ~Hux64s(0xffffffff)));
  });
}

template <class F>
void rounds() {
  using V = Lanes<F, laneCount<F>>;
  forVectors<V>([](V v, const F* from) {
    const auto near = nearestInteger(v), toZero = truncated(v);
    const auto expected = [](F e) { return e >= -0x1p31 && e < 0x1p31 ? Hux32s(e) : Hux32s(-0x7fffffff - 1); };
    for (int i = 0; i < lanesIn<V>; ++i) {
      ASSERT_EQ(Hux32s(near[i]), expected(std::nearbyint(from[i]))) << from[i];
      ASSERT_EQ(Hux32s(toZero[i]), expected(std::trunc(from[i]))) << from[i];
    }
    const V roots = squareRoot(v);
    for (int i = 0; i < lanesIn<V>; ++i)
      if (from[i] >= 0) {
        ASSERT_EQ(roots[i], std::sqrt(from[i]));
      }
  });
}
TEST(Lanes, RoundToIntegers) { rounds<Hux32f>(), rounds<Hux64f>(); }

template <class T>
void selects() {
  using V = Lanes<T, laneCount<T>>;
  const auto other = samples<T>();
  std::size_t at = 0;
  forVectors<V>([&](V v, const T* from) {
    const V w = vectorAt<V>(other, other.size() - lanesIn<V> - at++);
    const V low = lesser(v, w), high = greater(v, w);
    bool someZero = false, someAbove = false;
    for (int i = 0; i < lanesIn<V>; ++i) {
      const T a = from[i], b = w[i], expectedLow = a < b ? a : b, expectedHigh = a > b ? a : b;
      const T l = low[i], h = high[i];
      ASSERT_EQ(std::memcmp(&l, &expectedLow, sizeof l), 0);
      ASSERT_EQ(std::memcmp(&h, &expectedHigh, sizeof h), 0);
      someZero |= a == 0, someAbove |= a > b;
    }
    ASSERT_EQ(anyZero(v), someZero);
    ASSERT_EQ(anyAbove(v, w), someAbove);
    if constexpr (sizeof(T) <= 2 && std::is_integral_v<T>) {
      const V sum = addSaturated(v, w), difference = subSaturated(v, w);
      for (int i = 0; i < lanesIn<V>; ++i) {
        using Limits = std::numeric_limits<T>;
        ASSERT_EQ(+sum[i], std::clamp(v[i] + w[i], int(Limits::min()), int(Limits::max())));
        ASSERT_EQ(+difference[i], std::clamp(v[i] - w[i], int(Limits::min()), int(Limits::max())));
        if constexpr (sizeof(T) == 2) {
          ASSERT_EQ(+mulHigh(v, w)[i], T((std::int64_t(v[i]) * w[i]) >> 16));
        }
      }
    }
  });
}
TEST(Lanes, SelectAndAddSaturated) {
  selects<Hux8u>(), selects<Hux16u>(), selects<Hux16s>(), selects<Hux32u>(), selects<Hux32s>(), selects<Hux64s>();
  selects<Hux32f>(), selects<Hux64f>();
}

// Every number of lanes, in memory of just that length, which the address sanitizer watches.
template <class T, int N>
void takesParts() {
  using V = Lanes<T, N>;
  const auto values = samples<T>();
  const V v = vectorAt<V>(values, 7);
  for (int count = 0; count <= N; ++count) {
    SCOPED_TRACE(testing::Message() << count << " of " << N << " lanes of " << sizeof(T) << " bytes");
    // Not vectors, which have no address when they are empty.
    const auto n = std::size_t(count);
    const std::unique_ptr<T[]> memory(new T[n]), stored(new T[n]), colours(new T[n]);
    std::copy_n(values.begin(), n, memory.get()), std::fill_n(colours.get(), n, T(5));
    const V loaded = loadLanes<V>(memory.get(), count, T(3));
    storeColours<4>(stored.get(), v, count);
    for (int i = 0; i < N; ++i) {
      const T is = loaded[i], expected = i < count ? values[std::size_t(i)] : T(3);
      ASSERT_EQ(std::memcmp(&is, &expected, sizeof is), 0);
    }
    ASSERT_EQ(std::memcmp(stored.get(), &v, n * sizeof(T)), 0);
    if constexpr (N % 4 == 0) {
      if (count % 4 != 0) continue;
      storeColours<3>(colours.get(), v, count);
      for (int i = 0; i < count; ++i) {
        const T expected = i % 4 < 3 ? T(v[i]) : T(5);
        ASSERT_EQ(std::memcmp(&colours[std::size_t(i)], &expected, sizeof expected), 0);
      }
    }
  }
}
template <class... T>
void takesPartsOf() {
  (takesParts<T, laneCount<T>>(), ...), (takesParts<T, 4>(), ...);
}
TEST(Lanes, LoadAndStoreParts) { takesPartsOf<Hux8u, Hux16u, Hux32f, Hux64s, Hux64f>(); }

// Pixels of N elements of so many bytes.
template <int Bytes, int N>
void movesToPlanes() {
  std::uint8_t pixels[N * 16], planes[N * 16], expected[N * 16];
  std::iota(pixels, pixels + N * 16, std::uint8_t(Bytes));
  for (int at = 0; at < N * 16; ++at) expected[at / Bytes % N * 16 + at / Bytes / N * Bytes + at % Bytes] = pixels[at];
  simd::Quad v[N];
  std::memcpy(v, pixels, sizeof v);
  simd::toPlanes<Bytes>(v);
  std::memcpy(planes, v, sizeof v);
  ASSERT_TRUE(std::ranges::equal(planes, expected)) << N << " of " << Bytes << " bytes";
  simd::fromPlanes<Bytes>(v);
  std::memcpy(planes, v, sizeof v);
  ASSERT_TRUE(std::ranges::equal(planes, pixels)) << N << " of " << Bytes << " bytes";
  v[0] = simd::reversed<Bytes>(v[0]);
  for (int at = 0; at < 16; ++at) ASSERT_EQ(v[0][(16 / Bytes - 1 - at / Bytes) * Bytes + at % Bytes], pixels[at]);
}
TEST(Lanes, AreMovedToPlanesAndBack) {
  movesToPlanes<1, 3>(), movesToPlanes<2, 3>(), movesToPlanes<4, 3>();
  movesToPlanes<1, 4>(), movesToPlanes<2, 4>(), movesToPlanes<4, 4>();
}

TEST(Lanes, AddUpNeighboursAndProducts) {
  using Bytes = Lanes<Hux8u, laneCount<Hux8u>>;
  forVectors<Bytes>([](Bytes v, const Hux8u* from) {
    const auto sums = sumsOfEight(v);
    for (int i = 0; i < lanesIn<Bytes>; i += 8) ASSERT_EQ(int(sums[i / 8]), std::accumulate(from + i, from + i + 8, 0));
  });
  using Words = Lanes<Hux16s, laneCount<Hux16s>>;
  forVectors<Words>([](Words v, const Hux16s* from) {
    const Words w = ~v;
    const auto sums = pairProducts(v, w), lowest = pairProducts(splat<Words>(-32768), splat<Words>(-32768));
    for (int i = 0; i < lanesIn<Words>; i += 2)
      ASSERT_EQ(Hux32s(sums[i / 2]), from[i] * ~from[i] + from[i + 1] * ~from[i + 1]);
    ASSERT_EQ(Hux32s(lowest[0]), std::numeric_limits<Hux32s>::min());
  });
  using Longs = Lanes<Hux64s, laneCount<Hux64s>>;
  forVectors<Longs>([](Longs v, const Hux64s* from) {
    const auto product = mulLow(v, Longs(~v));
    for (int i = 0; i < lanesIn<Longs>; ++i)
      ASSERT_EQ(Hux64s(product[i]), Hux64s(Hux32s(from[i])) * Hux64s(Hux32s(~from[i])));
  });
}

}  // namespace
}  // namespace hux
