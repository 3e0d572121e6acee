// Norm, NormDiff and NormRel against the definition, element by element.
#include "huxi_stats.h"
#include "stats/reductions.h"

namespace hux::test {
namespace {

enum class Metric { kInf, kL1, kL2 };
enum class Family { kNorm, kNormDiff, kNormRel };

struct Member : Form {
  Family family;
  Metric metric;
  OneFn* one;
  TwoFn* two;

  bool single() const { return layout.stride == 1; }
  HuxStatus call(const void* a, int aStep, const void* b, int bStep, HuxiSize roi, void* result) const {
    return one ? one(a, aStep, roi, result, 0) : two(a, aStep, b, bStep, roi, result, 0);
  }
};

#define MEMBER(F, M, t, l, ...) \
  Member{{#F "_" #M "_" #t "_" #l, int(sizeof(Hux##t)), l, Number::k##t}, Family::k##F, Metric::k##M, __VA_ARGS__},
#define ONE(M, t, l) MEMBER(Norm, M, t, l, as<OneFn, huxiNorm_##M##_##t##_##l##R>, nullptr)
#define TWO(F, M, t, l) MEMBER(F, M, t, l, nullptr, as<TwoFn, huxi##F##_##M##_##t##_##l##R>)
#define FAMILIES(M, t, l) ONE(M, t, l) TWO(NormDiff, M, t, l) TWO(NormRel, M, t, l)
#define METRICS(t, l) FAMILIES(Inf, t, l) FAMILIES(L1, t, l) FAMILIES(L2, t, l)
std::vector<Member> members() {
  return {
    HUX_STAMP(METRICS, (8u, 16s, 16u, 32f), (C1, C3, C4, AC4))
    ONE(Inf, 32s, C1)
  };
}

// The order in which 32 sums of one channel are formed and joined where the order is free.
template <class Term>
double stridedSum(HuxiSize roi, Term term) {
  double sums[32] = {};
  forPixels(roi, [&](int x, int y) { sums[x % 32] += term(x, y); });
  for (int half = 16; half > 0; half /= 2)
    for (int k = 0; k < half; ++k) sums[k] += sums[k + half];
  return sums[0];
}

// The elements of one channel of an image, or their distances from another's.
struct Values {
  const Elements *a, *b;
  int c, from = 0;
  double operator()(int x, int y) const { return (*a)(from + x, y, c) - (b ? (*b)(from + x, y, c) : 0); }
};

// Their norm; `rooted` is false for the sum of squares.
double measure(const Member& m, HuxiSize roi, bool rooted, Values d) {
  const auto magnitude = [&](int x, int y) { return std::fabs(d(x, y)); };
  const auto square = [&](int x, int y) { return d(x, y) * d(x, y); };
  const bool floats = m.type == Number::k32f, relative = m.family == Family::kNormRel;
  const bool anyOrder = m.single() && roi.width >= 9 && (relative || (d.b && m.metric == Metric::kL2));
  if (m.metric == Metric::kInf) {
    double running[2] = {};
    forPixels(roi, [&](int x, int y) {
      double& value = running[m.single() && x % 2];
      value = value > magnitude(x, y) ? value : magnitude(x, y);
    });
    return running[0] > running[1] || !m.single() ? running[0] : running[1];
  }
  if (m.metric == Metric::kL1) {
    if (!floats) return blockSum(roi, roi.width, magnitude);
    return anyOrder ? stridedSum(roi, magnitude) : orderedSum(roi, m.single(), magnitude);
  }
  double squares = 0;
  if (floats) {
    squares = anyOrder ? stridedSum(roi, square) : orderedSum(roi, m.single(), square);
  } else if (m.type == Number::k8u && rooted && roi.width > 32768) {
    for (int x = 0; x < roi.width; x += 32768) {
      const HuxiSize strip = {std::min(32768, roi.width - x), roi.height};
      const double norm = measure(m, strip, true, {d.a, d.b, d.c, x});
      squares += norm * norm;
    }
  } else {
    Hux64s sum = 0;
    forPixels(roi, [&](int x, int y) { sum += Hux64s(square(x, y)); });
    squares = double(sum);
  }
  return rooted ? std::sqrt(squares) : squares;
}

HuxStatus reference(const Member& m, const Elements& a, const Elements& b, HuxiSize roi, double* values) {
  const bool relative = m.family == Family::kNormRel, rooted = !(relative && m.single());
  bool divides = relative;
  double denominators[4];
  for (int c = 0; c < m.layout.touched; ++c) {
    values[c] = measure(m, roi, rooted, {&a, m.family == Family::kNorm ? nullptr : &b, c});
    if (relative) denominators[c] = measure(m, roi, rooted, {&b, nullptr, c});
    divides &= denominators[c] >= 2.2250738585072014e-308;
  }
  for (int c = 0; c < m.layout.touched; ++c) {
    if (divides) values[c] /= denominators[c];
    if (!rooted && m.metric == Metric::kL2) values[c] = std::sqrt(values[c]);
  }
  return relative && !divides ? huxStsDivByZeroWarn : huxStsOk;
}

void expectNorm(Rng& rng, const Member& m, int width, int height, int kind1, int kind2) {
  SCOPED_TRACE(m.name + " " + std::to_string(width) + "x" + std::to_string(height) + " " + std::to_string(kind1));
  const auto image = [&](int kind) {
    Image image = touchedImage(rng, width, height, m.layout, m.elementBytes, Place(between(rng, 0, 2)));
    if (kind < 0)
      image.fill<Hux8u>([] { return Hux8u(0); });
    else
      scatter(rng, image, m.type, kind);
    return image;
  };
  const Image a = image(kind1), b = image(kind2);
  const HuxiSize roi = {width, height};
  double values[4] = {-1, -1, -1, -1}, expected[4] = {-1, -1, -1, -1};
  const HuxStatus status = reference(m, {a, m}, {b, m}, roi, expected);
  ASSERT_EQ(m.call(a.bytes(), a.step(), b.bytes(), b.step(), roi, values), status);
  for (int c = 0; c < 4; ++c) ASSERT_TRUE(alike(values[c], expected[c])) << "channel " << c;
}

TEST(Norm, Shapes) {
  Rng rng(1);
  int turn = 0;
  for (const Member& m : members()) {
    forRegions(rng, [&](int width, int height) {
      if (width * height < 10000 || turn % 4 == 0) expectNorm(rng, m, width, height, turn % 8, turn / 8 % 8);
      ++turn;
    });
    for (int kind = 0; kind < 8; ++kind) expectNorm(rng, m, 100, 9, kind, kind == 3 ? -1 : kind);
  }
}

// Rows and strips from both sides of where 32 bits end, with the largest magnitudes.
TEST(Norm, WideRows) {
  Rng rng(2);
  for (const Member& m : members()) {
    const bool words = m.type == Number::k16s || m.type == Number::k16u;
    if (m.metric == Metric::kInf || m.layout.stride == 3 || m.layout.touched == 4) continue;
    if (m.type == Number::k8u && m.metric == Metric::kL2)
      for (int width : {32768, 32769, 65536 + 5})
        expectNorm(rng, m, width, 2, 0, 0), expectNorm(rng, m, width, 1, 1, -1);
    for (int width : {32768, 32769, 65535, 65536})
      if (words && (m.single() || width == 32769))
        for (int kind : {1, 2}) expectNorm(rng, m, width, 2, kind, 3 - kind);
  }
}
TEST(Norm, WidestRows) {
  const int fits = 8421504;
  const std::vector<Hux8u> bright(fits + 1, 255), dark(fits + 1);
  for (int width : {fits, fits + 1}) {
    double norm, difference;
    EXPECT_EQ(huxiNorm_L1_8u_C1R(bright.data(), 1, {width, 1}, &norm), huxStsOk);
    EXPECT_EQ(huxiNormDiff_L1_8u_C1R(dark.data(), 1, bright.data(), 1, {width, 1}, &difference), huxStsOk);
    EXPECT_EQ(norm, wrapped(std::int64_t(255) * width));
    EXPECT_EQ(difference, wrapped(std::int64_t(255) * width));
  }
}

// One channel of the reference without any magnitude, or with a NaN, stops the division in all.
TEST(NormRel, OneBadChannel) {
  Rng rng(3);
  for (const Member& m : members())
    for (const Hux32f bad : {0.0f, std::numeric_limits<Hux32f>::quiet_NaN()}) {
      if (m.family != Family::kNormRel || (bad != 0 && m.type != Number::k32f)) continue;
      SCOPED_TRACE(m.name);
      const HuxiSize roi = {9, 3};
      const Image a(rng, 9, 3, m.pixelBytes()), b = a;
      scatter(rng, a, m.type, 0), scatter(rng, b, m.type, 0);
      forPixels({9, 3}, [&](int x, int y) {
        std::memcpy(b.bytes(x, y) + m.layout.touched / 2 * m.elementBytes, &bad, std::size_t(m.elementBytes));
      });
      double values[4], expected[4];
      ASSERT_EQ(reference(m, {a, m}, {b, m}, roi, expected), huxStsDivByZeroWarn);
      ASSERT_EQ(m.call(a.bytes(), a.step(), b.bytes(), b.step(), roi, values), huxStsDivByZeroWarn);
      for (int c = 0; c < m.layout.touched; ++c) ASSERT_TRUE(alike(values[c], expected[c])) << "channel " << c;
    }
}

TEST(Norm, ChecksInOrder) {
  Rng rng(4);
  const Image image(rng, 64, 4, 1);
  double values[4];
  for (const Member& m : members()) {
    SCOPED_TRACE(m.name);
    Arguments a(image);
    a.d = values;
    const auto call = [&] { return m.call(a.a, a.aStep, a.b, a.bStep, a.roi, a.d); };
    CheckOrder order([&] { return std::min<HuxStatus>(call(), huxStsOk); });
    order.in(a, m.type == Number::k16u ? "adbABz" : "adbzAB", m.two ? "" : "bB").run(image);
  }
}

}  // namespace
}  // namespace hux::test
