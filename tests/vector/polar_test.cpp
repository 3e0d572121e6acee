// Magnitude, Phase and PolarToCart against their definitions.
#include <numbers>

#include "huxs.h"
#include "support/complex_reference.h"
#include "support/forms.h"

namespace hux::test {
namespace {

// Runs call(src, dst, len) at all lengths and places, and compares with expected(element).
template <class C, class D, class Call, class Expected>
void sweep(Rng& rng, Call call, Expected expected) {
  for (int len = 1; len <= 40; ++len) {
    const Place place = Place(len % 3);
    Image src(rng, len, 1, int(sizeof(C)), place), dst(rng, len, 1, int(sizeof(D)), place);
    src.fill<C>([&] { return anyComplex<C>(rng); });
    Image wanted = dst;
    ASSERT_EQ(call(src.data<C>(), dst.data<D>(), len), huxStsOk);
    for (int x = 0; x < len; ++x) {
      const C z = src.get<C>(x, 0);
      const D want = expected(z), got = dst.get<D>(x, 0);
      wanted.set(x, 0, 0, want != want && got != got ? got : want);
      ASSERT_TRUE(want == got || (want != want && got != got))
          << "(" << z.re << ", " << z.im << "): " << got << ", not " << want << " (" << +want << ")";
    }
    ASSERT_TRUE(same(dst, wanted));
  }
}

template <class T, class C>
T magnitudeOf(C z, int scaleFactor) {
  constexpr double top = std::numeric_limits<T>::max();
  constexpr int bits = int(sizeof(T)) * 8;
  const double r = std::sqrt(double(z.re) * z.re + double(z.im) * z.im);
  if (scaleFactor > bits) return 0;
  if (scaleFactor < 2 - bits) return r != 0 ? T(top) : T(0);
  const double v = r * factorOf(scaleFactor) + 0.5;
  if (scaleFactor <= 0) return T(v > top ? top : std::trunc(v));
  const long i = long(v);
  return T(i % 2 != 0 && double(i) == v ? i - 1 : i);
}

template <class T, class C>
T phaseOf(C z, int scaleFactor) {
  float t;
  if (scaleFactor != 0) {
    const float p = float(std::atan2(double(z.im), double(z.re))), s = float(factorOf(scaleFactor));
    if (p == 0) return 0;  // also times infinity
    t = p * s;
  } else {
    const double x = z.re, a = std::abs(double(z.im)) + 1e-10, quarter = std::numbers::pi / 4;
    double angle = x >= 0 ? quarter - quarter * (x - a) / (x + a) : 3 * quarter - quarter * (x + a) / (a - x);
    if (z.re == 0 && z.im == 0) angle = 0;
    t = z.im < 0 ? -float(angle) : float(angle);
  }
  t += t < 0 ? -0.5f : 0.5f;
  if (t >= (sizeof(T) == 2 ? 32767.0f : 2147483648.0f)) return std::numeric_limits<T>::max();
  if (t < float(std::numeric_limits<T>::min())) return std::numeric_limits<T>::min();
  return T(t);
}

TEST(Polar, MagnitudeAndPhaseOfIntegers) {
  Rng rng(1);
  std::vector<int> scales;
  for (int s = -36; s <= 36; ++s) scales.push_back(s);
  for (int s : {-1000, 1000, -149, 200, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
    scales.push_back(s);
  for (int s : scales) {
    SCOPED_TRACE(s);
    const auto with = [&](auto function) {
      return [=](auto* src, auto* dst, int len) { return function(src, dst, len, s); };
    };
    sweep<Hux16sc, Hux16s>(rng, with(huxsMagnitude_16sc_Sfs), [&](Hux16sc z) { return magnitudeOf<Hux16s>(z, s); });
    sweep<Hux32sc, Hux32s>(rng, with(huxsMagnitude_32sc_Sfs), [&](Hux32sc z) { return magnitudeOf<Hux32s>(z, s); });
    sweep<Hux16sc, Hux16s>(rng, with(huxsPhase_16sc_Sfs), [&](Hux16sc z) { return phaseOf<Hux16s>(z, s); });
    sweep<Hux32sc, Hux32s>(rng, with(huxsPhase_32sc_Sfs), [&](Hux32sc z) { return phaseOf<Hux32s>(z, s); });
  }
  const auto one = [](auto function, auto z, int scaleFactor) {
    std::remove_cvref_t<decltype(z.re)> result;
    EXPECT_EQ(function(&z, &result, 1, scaleFactor), huxStsOk);
    return int(result);
  };
  EXPECT_EQ(one(huxsPhase_16sc_Sfs, Hux16sc{-1, 0}, 0), 3);
  EXPECT_EQ(one(huxsMagnitude_16sc_Sfs, Hux16sc{3, 4}, 1), 2);  // 2.5 to the even neighbour
  EXPECT_EQ(one(huxsMagnitude_16sc_Sfs, Hux16sc{0, 5}, 1), 2);
}

TEST(Polar, MagnitudeAndPhaseOfFloatsAreThoseOfDoublesNarrowed) {
  Rng rng(2);
  for (int repeat = 0; repeat < 200; ++repeat) {
    sweep<Hux32fc, Hux32f>(rng, huxsMagnitude_32fc,
                           [](Hux32fc z) { return float(std::sqrt(double(z.re) * z.re + double(z.im) * z.im)); });
    sweep<Hux32fc, Hux32f>(rng, huxsPhase_32fc,
                           [](Hux32fc z) { return float(std::atan2(double(z.im), double(z.re))); });
  }
}

struct Polynomial {
  double cosine, sine;
  explicit Polynomial(double phase) {
    const auto wave = [](double r) {
      return r +
             r * r * r *
                 (((2.630033909762885e-06 * r * r - 0.00019820663968799938) * r * r + 0.008333215738643764) * r * r -
                  0.16666665094466732);
    };
    const double k = std::trunc(phase * 0.3183098861837907), sign = std::fmod(k, 2) == 0 ? 1 : -1;
    double r = phase - k * std::numbers::pi, flip = sign;
    if (std::abs(r) >= std::numbers::pi / 2) r = std::copysign(std::numbers::pi, phase) - r, flip = -flip;
    cosine = flip * wave(std::numbers::pi / 2 - std::abs(r)), sine = sign * wave(r);
  }
};

TEST(Polar, CartesianOfFloatsIsThePolynomialButForALoneLastElement) {
  Rng rng(3);
  for (int len = 1; len <= 200; ++len) {
    Image m(rng, len, 1, 4, Place(len % 3)), p(rng, len, 1, 4, Place(len % 3)), dst(rng, len, 1, 8, Place(len % 3));
    m.fill<float>([&] { return float(between(rng, -1000, 1000)) / 7; });
    p.fill<float>(
        [&] { return std::ldexp(float(between(rng, -1 << 20, 1 << 20)), between(rng, -30, len % 4 ? -16 : 20)); });
    ASSERT_EQ(huxsPolarToCart_32fc(m.data<float>(), p.data<float>(), dst.data<Hux32fc>(), len), huxStsOk);
    for (int x = 0; x < len; ++x) {
      const double magnitude = m.get<float>(x, 0), phase = p.get<float>(x, 0);
      const Hux32fc got = dst.get<Hux32fc>(x, 0);
      const bool lone = len % 2 != 0 && x == len - 1, large = std::abs(phase) >= 0x1p20;
      if (lone || large) {
        ASSERT_EQ(got.re, float(magnitude * std::cos(phase))) << phase;
        ASSERT_EQ(got.im, float(magnitude * std::sin(phase))) << phase;
      } else {
        const Polynomial wave(phase);
        const auto near = [&](float actual, double wanted) {
          return std::abs(actual - wanted) <= std::abs(wanted) * 0x1p-24 + std::abs(magnitude) * 1e-14;
        };
        ASSERT_TRUE(near(got.re, magnitude * wave.cosine))
            << phase << ": " << got.re / magnitude << ", not " << wave.cosine;
        ASSERT_TRUE(near(got.im, magnitude * wave.sine))
            << phase << ": " << got.im / magnitude << ", not " << wave.sine;
        ASSERT_NEAR(got.re, magnitude * std::cos(phase), std::abs(magnitude) * 1.3e-7);
        ASSERT_NEAR(got.im, magnitude * std::sin(phase), std::abs(magnitude) * 1.3e-7);
      }
    }
  }
}

TEST(Polar, CartesianOfIntegersIsTruncated) {
  Rng rng(4);
  const auto truncated = [](double v, double low, double high) { return std::trunc(std::clamp(v, low, high)); };
  const auto run = [&]<class C>(C, auto function, int maxFixedPoint) {
    using T = PartOf<C>;
    const double low = std::numeric_limits<T>::min(), high = std::numeric_limits<T>::max();
    for (int len = 1; len <= 100; ++len) {
      const int fixedPoint = between(rng, 0, maxFixedPoint);
      Image m(rng, len, 1, sizeof(T), Place(len % 3)), p(rng, len, 1, sizeof(T), Place(len % 3)),
          dst(rng, len, 1, sizeof(C), Place(len % 3));
      m.fill<T>([&] { return anyPart<T>(rng); });
      p.fill<T>([&] { return anyPart<T>(rng); });
      ASSERT_EQ(function(m.template data<T>(), p.template data<T>(), fixedPoint, dst.template data<C>(), len),
                huxStsOk);
      for (int x = 0; x < len; ++x) {
        const double magnitude = m.template get<T>(x, 0), phase = p.template get<T>(x, 0) * factorOf(fixedPoint);
        const bool library = sizeof(T) == 4 || (len % 2 != 0 && x == len - 1);
        const Polynomial wave(phase);
        const double re = magnitude * (library ? std::cos(phase) : wave.cosine);
        const double im = magnitude * (library ? std::sin(phase) : wave.sine);
        const C got = dst.template get<C>(x, 0);
        ASSERT_EQ(got.re, truncated(re, low, high)) << magnitude << " at " << phase;
        ASSERT_EQ(got.im, truncated(im, low, high)) << magnitude << " at " << phase;
      }
    }
  };
  run(Hux16sc{}, huxsPolarToCart_16sc, 15);
  run(Hux32sc{}, huxsPolarToCart_32sc, 31);
}

// Products so close to an integer that only the library's own digits tell on which side.
TEST(Polar, CartesianOf32BitIntegersTakesTheLibrarysLastDigit) {
  const Hux32s magnitudes[] = {-1417949219, -1922067113, 1858642746, 2093665689, 1393540023, -805871434};
  const Hux32s phases[] = {-1349422835, -392335293, -592154065, 1026758718, 1374105354, 1061265560};
  Hux32sc z[6];
  ASSERT_EQ(huxsPolarToCart_32sc(magnitudes, phases, 28, z, 6), huxStsOk);
  for (int i = 0; i < 6; ++i) {
    EXPECT_EQ(z[i].re, Hux32s(magnitudes[i] * std::cos(phases[i] * 0x1p-28)));
    EXPECT_EQ(z[i].im, Hux32s(magnitudes[i] * std::sin(phases[i] * 0x1p-28)));
  }
}

TEST(Polar, ChecksPointersLengthFixedPoint) {
  Rng rng(5);
  const Image image(rng, 4, 1, 32);
  using CheckFn = HuxStatus(const void* a, const void* b, int fixedPoint, void* d, int len);
  struct Member {
    CheckFn* call;
    int sources, fixedPoints;  // the largest, or -1 where there are none
  };
#define MEASURE(name, t) \
  { as<CheckFn, huxs##name##_##t, 0, 3, 4>, 1, -1 }
#define MEASURE_SCALED(name, t) \
  { as<CheckFn, huxs##name##_##t##_Sfs, 0, 3, 4, 2>, 1, -1 }
  const Member members[] = {MEASURE(Magnitude, 32fc),
                            MEASURE_SCALED(Magnitude, 16sc),
                            MEASURE_SCALED(Magnitude, 32sc),
                            MEASURE(Phase, 32fc),
                            MEASURE_SCALED(Phase, 16sc),
                            MEASURE_SCALED(Phase, 32sc),
                            {as<CheckFn, huxsPolarToCart_16sc>, 2, 15},
                            {as<CheckFn, huxsPolarToCart_32sc>, 2, 31},
                            {as<CheckFn, huxsPolarToCart_32fc, 0, 1, 3, 4>, 2, -1}};
  for (const Member& m : members) {
    Arguments a(image);
    int len = 1, fixedPoint = 0;
    CheckOrder order([&] { return m.call(a.a, a.b, fixedPoint, a.d, len); });
    order.in(a, "adb", m.sources == 2 ? "" : "b").breaks(huxStsBadSize, len, 0);
    if (m.fixedPoints >= 0)
      order.breaks(huxStsBadSize, fixedPoint, -1).breaks(huxStsBadSize, fixedPoint, m.fixedPoints + 1);
    order.run(image);
  }
}

}  // namespace
}  // namespace hux::test
