// What the tests of element-by-element families of one source and one destination share: a member with its parameters
// bound, and its definition for one element.
#pragma once

#include <bit>
#include <cmath>
#include <limits>

#include "support/forms.h"

namespace hux::test {

struct ElementMap {
  std::string name;
  int srcBytes, dstBytes;
  Layout layout;
  std::function<HuxStatus(const void*, int, void*, int, HuxiSize)> call;
  std::function<void(const std::byte*, std::byte*)> define;
  std::function<void(Rng&, const Image&)> fill;
};

// M(source type, destination type, layout) for the four layouts.
#define HUX_LAYOUTS(M, s, d) M(s, d, C1) M(s, d, C3) M(s, d, C4) M(s, d, AC4)

template <class S, class D, class Call, class Rule>
ElementMap elementMap(std::string name, Layout layout, Call call, Rule rule) {
  return {std::move(name), int(sizeof(S)), int(sizeof(D)), layout,
          [=](const void* src, int srcStep, void* dst, int dstStep, HuxiSize roi) {
            return call(static_cast<const S*>(src), srcStep, static_cast<D*>(dst), dstStep, roi);
          },
          [=](const std::byte* src, std::byte* dst) {
            const D result = rule(valueAt<S>(src));
            std::memcpy(dst, &result, sizeof result);
          },
          // Any bit pattern; for floats, half of them ordinary values, which random patterns hardly ever are.
          [](Rng& rng, const Image& image) {
            if constexpr (std::is_floating_point_v<S>)
              image.fill<S>(
                  [&] { return rng() & 1 ? S(between(rng, -600, 600)) / 2 : std::bit_cast<Hux32f>(Hux32u(rng())); });
          }};
}

inline void expectDefined(const ElementMap& map, const Image& src, const Image& dst) {
  const Image expected = dst, srcBefore = src;
  forElements(src.size(), map.layout.touched, [&](int x, int y, int c) {
    map.define(src.bytes(x, y) + c * map.srcBytes, expected.bytes(x, y) + c * map.dstBytes);
  });
  ASSERT_EQ(map.call(src.bytes(), src.step(), dst.bytes(), dst.step(), src.size()), huxStsOk);
  ASSERT_TRUE(same(dst, expected));
  ASSERT_TRUE(same(src, srcBefore));
}

// Images of up to that many rows: of vectors one, which ends where they do.
inline void expectShapes(const ElementMap& map, Rng& rng, int mostRows = 4) {
  SCOPED_TRACE(map.name);
  forShapes(rng, 160, [&](int width, int height, Place place) {
    height = std::min(height, mostRows);
    const Image src(rng, width, height, map.layout.stride * map.srcBytes, place);
    map.fill(rng, src);
    expectDefined(map, src, Image(rng, width, height, map.layout.stride * map.dstBytes, place));
  });
}

template <class S>
void expectValues(const ElementMap& map, Rng& rng, const std::vector<S>& values) {
  SCOPED_TRACE(map.name);
  const int width = (int(values.size()) + map.layout.stride - 1) / map.layout.stride;
  const Image src(rng, width, 1, map.layout.stride * map.srcBytes);
  std::memcpy(src.bytes(), values.data(), values.size() * sizeof(S));
  expectDefined(map, src, Image(rng, width, 1, map.layout.stride * map.dstBytes));
}

inline void expectOrder(const ElementMap& map, Rng& rng) {
  SCOPED_TRACE(map.name);
  const Image image(rng, 16, 4, 16);
  Arguments a(image);
  CheckOrder([&] { return map.call(a.a, a.aStep, a.d, a.dStep, a.roi); }).in(a, "adzAD").run(image);
}

// Every value of an 8- or 16-bit type; a sample and the ends of a wider one.
template <class T>
std::vector<T> integers(Rng& rng) {
  using Limits = std::numeric_limits<T>;
  std::vector<T> all;
  if constexpr (sizeof(T) < 4) {
    for (int v = Limits::min(); v <= Limits::max(); ++v) all.push_back(T(v));
  } else {
    for (int i = 0; i < 20000; ++i) all.push_back(T(rng()) >> between(rng, 0, 31));
    for (int i = 0; i < 400; ++i) all.insert(all.end(), {T(Limits::min() + i), T(Limits::max() - i), T(i), T(-i)});
  }
  return all;
}

// Values around x: it, its neighbours, and theirs.
template <class F>
void addAround(std::vector<F>& values, F x) {
  const F inf = std::numeric_limits<F>::infinity();
  const F below = std::nextafter(x, -inf), above = std::nextafter(x, inf);
  values.insert(values.end(), {x, below, above, std::nextafter(below, -inf), std::nextafter(above, inf)});
}

// Integers and ties from `low` to `high`, the ends of types, numbers of no size or too much, and any bit patterns.
template <class F>
std::vector<F> floats(Rng& rng, int low, int high, int step) {
  using Limits = std::numeric_limits<F>;
  using Bits = std::conditional_t<sizeof(F) == 4, Hux32u, std::uint64_t>;
  std::vector<F> values;
  for (int i = 2 * low; i <= 2 * high; i += std::abs(i) < 600 ? 1 : step) addAround(values, F(i) / 2);
  for (double limit : {127.0, 128.0, 255.0, 32767.0, 32768.0, 65535.0, 8388607.0, 2147483647.0, 2147483648.0})
    for (double sign : {-1.0, 1.0})
      for (double tie : {-0.5, 0.0, 0.5}) addAround(values, F(sign * limit + tie));
  for (F sign : {F(-1), F(1)})
    for (F x : {F(0), Limits::denorm_min(), Limits::min(), Limits::max(), Limits::infinity(), Limits::quiet_NaN(),
                F(0.50000006f), F(0.49999997f)})
      values.push_back(std::copysign(x, sign));
  for (int i = 0; i < 5000; ++i) values.push_back(std::bit_cast<F>(Bits(rng())));
  return values;
}

// t truncated, and one less where that is odd and exact: what a sum with one half stands for.
template <class F>
std::int64_t truncateTie(F t) {
  const auto i = std::int64_t(t);
  return i - (i % 2 != 0 && F(i) == t);
}

// A float to the integer type D by a rounding mode; the half is added in the precision of F.
template <class D, class F>
D roundTo(F v, HuxRoundMode mode) {
  if (v >= F(std::numeric_limits<D>::max())) return std::numeric_limits<D>::max();
  if (!(v > F(std::numeric_limits<D>::min()))) return std::numeric_limits<D>::min();
  if (mode != huxRndNear) return D(v);
  return D(v >= 0 ? truncateTie(F(v + F(0.5))) : -truncateTie(F(-(v - F(0.5)))));
}

}  // namespace hux::test
