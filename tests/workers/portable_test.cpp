#include "workers/portable.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <random>

namespace hux::test {
namespace {

constexpr Hux64f kInfinity = std::numeric_limits<Hux64f>::infinity();

// Within half a unit of the last place of the exact value, for which extended precision stands.
void nearest(Hux64f value, long double exact) {
  const Hux64f narrowed = Hux64f(exact), unit = std::nextafter(std::fabs(narrowed), kInfinity) - std::fabs(narrowed);
  ASSERT_LE(std::fabs(value - exact), unit * 0.502L) << double(exact);
  ASSERT_EQ(std::signbit(value), std::signbit(narrowed));
}

class Portable : public testing::Test {
 protected:
  void SetUp() override {
    if (std::numeric_limits<long double>::digits < 64) GTEST_SKIP() << "no extended precision to compare with";
  }
  Hux64f real(Hux64f low, Hux64f high) { return std::uniform_real_distribution<Hux64f>(low, high)(rng_); }
  // Of any sign and any binary exponent between the two.
  Hux64f spread(Hux64f low, Hux64f high) { return (rng_() % 2 ? -1 : 1) * std::exp2(real(low, high)); }

  std::mt19937 rng_{5};
};

TEST_F(Portable, SineAndCosineOfAnyAngle) {
  const auto compare = [](Hux64f x) {
    ASSERT_NO_FATAL_FAILURE(nearest(portable::sin(x), std::sin(static_cast<long double>(x)))) << x;
    ASSERT_NO_FATAL_FAILURE(nearest(portable::cos(x), std::cos(static_cast<long double>(x)))) << x;
  };
  for (int i = 0; i < 20000; ++i) ASSERT_NO_FATAL_FAILURE(compare(i % 2 ? real(-20, 20) : spread(-60, 62)));
  // The doubles next to multiples of pi/2, whose sines or cosines have no digits in common with those.
  for (int k = 1; k < 2000; ++k) ASSERT_NO_FATAL_FAILURE(compare(k * 1.5707963267948966));
  // Near 6381956970095103 * 2^797, the closest that a double comes to such a multiple.
  const Hux64f closest = std::ldexp(6381956970095103.0, 797);
  EXPECT_DOUBLE_EQ(portable::cos(closest), -4.6871659242546277e-19);
  EXPECT_EQ(portable::sin(closest), 1);
  EXPECT_TRUE(std::isnan(portable::sin(kInfinity)) && std::isnan(portable::cos(std::nan(""))));
  EXPECT_TRUE(std::signbit(portable::sin(-0.0)));
}

TEST_F(Portable, ArcTangentOfAnyPoint) {
  for (int i = 0; i < 20000; ++i) {
    const Hux64f y = spread(-40, 40), x = i % 2 ? spread(-40, 40) : y * real(-2, 2);
    ASSERT_NO_FATAL_FAILURE(
        nearest(portable::atan2(y, x), std::atan2(static_cast<long double>(y), static_cast<long double>(x))));
  }
  for (Hux64f y : {0.0, -0.0, 1.0, -3.0, kInfinity, -kInfinity})
    for (Hux64f x : {0.0, -0.0, 1.0, -3.0, kInfinity, -kInfinity})
      EXPECT_NO_FATAL_FAILURE(
          nearest(portable::atan2(y, x), std::atan2(static_cast<long double>(y), static_cast<long double>(x))));
  EXPECT_TRUE(std::isnan(portable::atan2(std::nan(""), 1)) && std::isnan(portable::atan2(1, std::nan(""))));
}

TEST_F(Portable, ExponentialLogarithmAndPowers) {
  for (int i = 0; i < 20000; ++i) {
    const Hux64f x = i % 2 ? real(-700, 700) : spread(-30, 3), y = i % 2 ? real(0.5, 2) : std::fabs(spread(-900, 900));
    ASSERT_NO_FATAL_FAILURE(nearest(portable::exp(x), std::exp(static_cast<long double>(x)))) << x;
    ASSERT_NO_FATAL_FAILURE(nearest(portable::log(y), std::log(static_cast<long double>(y)))) << y;
    const int halves = 2 + i % 4;
    const Hux64f z = (halves % 2 ? 1 : -1) * std::fabs(spread(-190, 190));
    ASSERT_NO_FATAL_FAILURE(
        nearest(portable::rootOfInverse(z, halves), std::pow(static_cast<long double>(z), halves * -0.5L)))
        << z;
  }
  EXPECT_TRUE(std::isnan(portable::rootOfInverse(-2, 3)));
  EXPECT_EQ(portable::rootOfInverse(kInfinity, 3), 0);
}

TEST_F(Portable, SmallAnglesForTables) {
  for (int i = 0; i < 20000; ++i) {
    const Hux64f x = real(-0.7853981633974483, 0.7853981633974483);
    const portable::SinCos v = portable::ofEighth(x);
    ASSERT_NEAR(v.sin, std::sin(x), std::fabs(x) * 0x1p-51) << x;
    ASSERT_NEAR(v.cos, std::cos(x), 0x1p-52) << x;
  }
}

}  // namespace
}  // namespace hux::test
