// Div and DivC against their rules, written out one element at a time.
#include <cmath>

#include "arith/real.h"
#include "huxcore.h"

namespace hux::test {
namespace {

// 2^-scaleFactor by doubling or halving, which changes nothing any more after 200 rounds.
float factorOf(int scaleFactor) {
  static int of = 0;
  static float factor = 1;
  if (of == scaleFactor) return factor;
  factor = 1;
  for (int i = std::max(of = scaleFactor, -200); i < 0; ++i) factor *= 2.0f;
  for (int i = std::min(scaleFactor, 200); i > 0; --i) factor *= 0.5f;
  return factor;
}

// The truncation of x, one less where it is odd and exact.
int truncated(float x) {
  const int i = int(x);
  return i % 2 != 0 && float(i) == x ? i - 1 : i;
}

Hux8u quotient(Hux8u d, Hux8u n, int scaleFactor) {
  if (d == 0 || scaleFactor < -15) return n != 0 ? 255 : 0;
  if (scaleFactor > 8) return 0;
  return Hux8u(std::min(truncated(float(n) * factorOf(scaleFactor) / float(d) + 0.5f), 255));
}

Hux16s limited(float q) {
  if (!(q >= -32768.0f)) return -32768;
  if (q > 32767.0f) return 32767;
  return Hux16s(truncated((q + 32768.0f) + 0.5f) - 32768);
}
Hux16s quotient(Hux16s d, Hux16s n, int scaleFactor) {
  if (d == 0) return n == 0 ? 0 : n > 0 ? 32767 : -32768;
  return limited(float(n) * factorOf(scaleFactor) / float(d));
}

Hux16u quotient(Hux16u d, Hux16u n, int scaleFactor) {
  if (d == 0 || scaleFactor < -31) return n != 0 ? 65535 : 0;
  if (scaleFactor > 16) return 0;
  const std::uint64_t p = std::uint64_t(n) << std::max(-scaleFactor, 0);
  const std::uint64_t q = (p << 16) / (std::uint64_t(d) << std::max(scaleFactor, 0));
  return Hux16u(std::min<std::uint64_t>((q + ((q & 0x10000) >> 15) + 32767) >> 16, 65535));
}

Hux32f quotient(Hux32f d, Hux32f n, int) {
  if (d < 0 || d > 0) return n / d;
  return n > 0 ? huxConstantOfINF_32f : n == 0 ? huxConstantOfNAN_32f : -huxConstantOfINF_32f;
}

// By a constant, where that is a rule of its own: a product with the reciprocal.
Hux8u byReciprocal(Hux8u d, Hux8u n, int scaleFactor) {
  static const std::vector<float> reciprocals = [] {
    std::vector<float> list{0};
    for (int k = 1; k < 256; ++k) {
      char decimals[16];  // six places, halves up
      std::snprintf(decimals, sizeof decimals, "%d.%06d", k == 1, (2000000 + k) / (2 * k) % 1000000);
      list.push_back(std::strtof(decimals, nullptr));
    }
    return list;
  }();
  if (d == 0 || n == 0) return 0;
  const float m = factorOf(scaleFactor) * reciprocals[d], x = float(n) * m;
  return x > 255.0f ? 255 : Hux8u(std::min(truncated(0.5f + x), 255));
}
Hux16s byReciprocal(Hux16s d, Hux16s n, int scaleFactor) {
  return d == 0 ? Hux16s(0) : limited(float(n) * (factorOf(scaleFactor) / float(d)));
}
Hux32f byReciprocal(Hux32f d, Hux32f n, int) { return n * (1.0f / d); }
// Quotients by 1 are rounded to nearest.
Hux16u byReciprocal(Hux16u d, Hux16u n, int scaleFactor) {
  if (d != 1 || scaleFactor < 0) return quotient(d, n, scaleFactor);
  const int s = std::min(scaleFactor, 20);
  return s == 0 ? n : Hux16u((n + (1 << (s - 1)) - 1 + (n >> s & 1)) >> s);
}

// Whether the colours of an image have a zero, or a NaN.
template <class T>
bool hasZero(const Image& image, int colours) {
  bool zero = false;
  forElements(image.size(), colours, [&](int x, int y, int c) {
    const T v = image.get<T>(x, y, c);
    zero |= !(v < 0 || v > 0);
  });
  return zero;
}

template <class T>
struct Div : testing::Test {};
using Types = testing::Types<Hux8u, Hux16s, Hux16u, Hux32f>;
TYPED_TEST_SUITE(Div, Types);

TYPED_TEST(Div, FollowsTheRulesInAllShapes) {
  using T = TypeParam;
  for (const auto& m : members<T>(Op::Div)) {
    // 8u and 16s divide in all but one channel.
    const bool divides = m.layout.stride > 1 && std::is_integral_v<T> && !std::is_same_v<T, Hux16u>;
    const auto images = [&](T d, T n, int scale) { return quotient(d, n, scale); };
    const auto constant = [&](T d, T n, int scale) {
      return divides ? quotient(d, n, scale) : byReciprocal(d, n, scale);
    };
    compareWith<T>(m, 1, kScaleFactors, images, constant, [&](const Image* denominators, const Image* constants) {
      if (denominators) return hasZero<T>(*denominators, m.layout.touched) ? huxStsDivByZeroWarn : huxStsOk;
      return hasZero<T>(*constants, m.layout.touched) ? huxStsDivByZero : huxStsOk;
    });
  }
}

template <class T>
struct DivOfIntegers : testing::Test {};
using Integers = testing::Types<Hux8u, Hux16s, Hux16u>;
TYPED_TEST_SUITE(DivOfIntegers, Integers);

TYPED_TEST(DivOfIntegers, FollowsTheRulesForAllPairsAtAllScaleFactors) {
  using T = TypeParam;
  Pairs<T> p(richValues<T>());
  const auto m = members<T>(Op::Div).front();
  ASSERT_EQ(m.layout.stride, 1);
  for (int scale : kScaleFactors) {
    ASSERT_EQ(m.images(p.first.data(), p.step(), p.second.data(), p.step(), p.result.data(), p.step(), p.size, scale),
              huxStsDivByZeroWarn);
    for (std::size_t i = 0; i < p.result.size(); ++i)
      ASSERT_EQ(p.result[i], quotient(p.first[i], p.second[i], scale))
          << int(p.second[i]) << " / " << int(p.first[i]) << " at " << scale;
    for (int y = 0; y < p.size.height; ++y) {
      const T value = p.second[std::size_t(y) * std::size_t(p.size.width)];
      if (value == 0) continue;
      ASSERT_EQ(m.constant(p.first.data(), p.step(), &value, p.result.data(), p.step(), {p.size.width, 1}, scale),
                huxStsOk);
      for (int x = 0; x < p.size.width; ++x)
        ASSERT_EQ(p.result[std::size_t(x)], byReciprocal(value, p.first[std::size_t(x)], scale))
            << int(p.first[std::size_t(x)]) << " / constant " << int(value) << " at " << scale;
    }
  }
}

// In fixed point, quotients next to a tie count as ties where the denominator is long: denominators on either side of
// where that starts, with the numerators around each tie.
TEST(Div16u, RoundsNextToTiesAsTheFixedPointTells) {
  for (int scale = -20; scale <= 17; ++scale) {
    std::vector<Hux16u> d, n;
    for (int base : {32768, 32768 + 4096, 65535, 21845, 16384, 1024, 257, 3})
      for (int near = -40; near <= 0; ++near)
        for (int tie = 1; tie < 60; tie += 2)
          for (int off = -2; off <= 2; ++off) {
            const int denominator = base == 65535 ? base + near : base + near + 20;
            const std::int64_t half = std::int64_t(std::ldexp(double(denominator) * tie / 2, scale));
            if (denominator < 1 || half + off < 0 || half + off > 65535) continue;
            d.push_back(Hux16u(denominator)), n.push_back(Hux16u(half + off));
          }
    std::vector<Hux16u> q(d.size());
    ASSERT_EQ(huxiDiv_16u_C1RSfs(d.data(), 1, n.data(), 1, q.data(), 1, {int(d.size()), 1}, scale), huxStsOk);
    for (std::size_t i = 0; i < q.size(); ++i)
      ASSERT_EQ(q[i], quotient(d[i], n[i], scale)) << n[i] << " / " << d[i] << " at " << scale;
  }
}

// A single zero warns wherever it is met, but for alpha.
TYPED_TEST(Div, WarnsOfTheZerosOfColours) {
  using T = TypeParam;
  for (const auto& m : members<T>(Op::Div)) {
    const int pixels = 40, elements = pixels * m.layout.stride;
    std::vector<T> d(std::size_t(elements), T(3)), q(d);
    for (int at = 0; at < elements; ++at) {
      d[std::size_t(at)] = 0;
      const HuxStatus expected = at % m.layout.stride < m.layout.touched ? huxStsDivByZeroWarn : huxStsOk;
      for (int scale : {0, -1})
        ASSERT_EQ(m.images(d.data(), 1, d.data(), 1, q.data(), 1, {pixels, 1}, scale), expected) << m.name << " " << at;
      d[std::size_t(at)] = 3;
    }
  }
}

TYPED_TEST(Div, ChecksInOrder) {
  using T = TypeParam;
  constexpr bool word = std::is_same_v<T, Hux16u>;
  Rng rng(3);
  const Image image(rng, 16, 4, 16);
  for (const auto& m : members<T>(Op::Div)) {
    SCOPED_TRACE(m.name);
    T values[] = {1, 2, 3, 0};
    if (m.layout.stride == m.layout.touched) values[3] = 4;
    Arguments a(image);
    const T* c = values;
    int step = word ? 0 : 1;
    const auto failure = [](HuxStatus status) { return std::min<HuxStatus>(status, huxStsOk); };
    const auto ofImages = [&] { return failure(m.images(a.a, step, a.b, step, a.d, step, a.roi, 0)); };
    CheckOrder images(ofImages);
    images.in(a, word && m.equalChannels() ? "wabdh" : "abdz");
    if (!word) images.steps(step);
    images.run(image);
    EXPECT_EQ(failuresOf(ofImages) > 0, !word && m.layout.stride != m.layout.touched) << "only alpha forms take memory";

    T& last = values[m.layout.touched - 1];
    const auto ofConstant = [&] { return m.constant(a.b, step, c, a.d, step, a.roi, 0); };
    CheckOrder constant(ofConstant);
    if (m.layout.stride > 1) constant.nulls(c);
    if (word && m.layout.stride > 1) constant.breaks(huxStsDivByZero, last, 0);
    constant.in(a, "bdz");
    if (!word) constant.steps(step);
    const bool carriesOn = sizeof(T) == 1 && m.equalChannels();
    if (!(word && m.layout.stride > 1) && !carriesOn) constant.breaks(huxStsDivByZero, last, 0);
    constant.run(image);
    EXPECT_EQ(failuresOf(ofConstant) > 0, !word && std::is_integral_v<T> && m.layout.stride > 1);
  }
}

// Past 16 every quotient by a 16u constant is 0, and the region is Set's, which looks at dstStep.
TEST(Div16u, ConstantsHandTheRegionToSet) {
  Hux16u src[8] = {}, dst[8] = {};
  for (const auto& m : members<Hux16u>(Op::Div))
    for (int scale : {16, 17, INT_MAX})
      for (const auto& values : {std::array<Hux16u, 4>{7, 7, 7, 7}, std::array<Hux16u, 4>{7, 8, 9, 7}}) {
        EXPECT_EQ(m.constant(src, 0, values.data(), dst, 0, {2, 1}, scale), scale > 16 ? huxStsBadStep : huxStsOk)
            << m.name;
        EXPECT_EQ(m.constant(nullptr, 0, values.data(), dst, 0, {0, 1}, scale), huxStsNullPtr) << m.name;
      }
}

}  // namespace
}  // namespace hux::test
