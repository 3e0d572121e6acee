// The window functions against their formulas, in extended precision where they ask for the nearest double.
#include <cmath>
#include <limits>
#include <numbers>

#include "huxi_filter.h"
#include "huxs.h"
#include "support/forms.h"

namespace hux::test {
namespace {

struct Member : Form {
  bool hamming, separable, bytes;
  HuxStatus (*apart)(const void*, int, void*, int, HuxiSize);
  HuxStatus (*inPlace)(void*, int, HuxiSize);
};
#define MEMBER(name, t, hamming, separable)       \
  Member{{#name "_" #t, int(sizeof(Hux##t)), C1}, \
         hamming,                                 \
         separable,                               \
         sizeof(Hux##t) == 1,                     \
         erased<huxiWin##name##_##t##_C1R>,       \
         erased<huxiWin##name##_##t##_C1IR>},
#define MEMBERS(t, _)               \
  MEMBER(Bartlett, t, false, false) \
  MEMBER(Hamming, t, true, false) MEMBER(BartlettSep, t, false, true) MEMBER(HammingSep, t, true, true)
const Member kMembers[] = {HUX_STAMP(MEMBERS, (8u, 32f), (_))};

// Value k of a vector of n, from the nearer end.
double lineWeight(bool hamming, int k, int n) {
  k = std::min(k, n - 1 - k);
  if (2 * k == n - 1) return 1;
  if (hamming)
    return double(static_cast<long double>(0.54) -
                  static_cast<long double>(0.46) * std::cos(2 * std::numbers::pi_v<long double> * k / (n - 1)));
  double w = 0;
  for (int i = 0; i < k; ++i) w += 2.0 / (n - 1);
  return w;
}

double radialWeight(bool hamming, int j, int i, HuxiSize size) {
  if (size.height % 2 && i == size.height / 2) return Hux32f(lineWeight(hamming, j, size.width));
  if (size.width % 2 && j == size.width / 2) return Hux32f(lineWeight(hamming, i, size.height));
  j = std::min(j, size.width - 1 - j), i = std::min(i, size.height - 1 - i);
  const double n = size.width, rx = n / 2, ry = size.height / 2.0, dx = rx - j, dy = ry - i;
  const double q = (ry / rx) * (ry / rx), square = std::sqrt(dx * dx + dy * dy);
  const bool isSquare = size.width == size.height;
  const bool outside = isSquare ? square >= rx : dx * dx / (rx * rx) + dy * dy / (ry * ry) >= 1.0;
  const double r = isSquare ? square : std::sqrt(dy * dy / q + dx * dx);
  if (hamming) return outside ? 0.08 : 0.54 - 0.46 * std::cos((rx - r) * (2 * std::numbers::pi / n));
  return outside ? 0 : 1 - r * (2 / n);
}

// Whether a pixel became what it should; of a cosine in double precision the last bits are not told.
bool holds(const Member& m, double pixel, double actual, int x, int y, HuxiSize size) {
  double product;
  if (m.separable) {
    const Hux32f row = Hux32f(lineWeight(m.hamming, y, size.height));
    product = Hux32f(pixel) * Hux32f(lineWeight(m.hamming, x, size.width)) * row;
  } else {
    product = pixel * radialWeight(m.hamming, x, y, size);
  }
  const double slack = m.separable ? 0 : std::fabs(product) * 1e-15;
  const auto stored = [&](double v) { return m.bytes ? (v > 255 ? 255 : std::floor(v + 0.5)) : double(Hux32f(v)); };
  if (std::isnan(product)) return std::isnan(actual);
  return actual == stored(product - slack) || actual == stored(product + slack);
}

void expectWindowed(Rng& rng, const Member& m, HuxiSize size) {
  SCOPED_TRACE(m.name + " " + std::to_string(size.width) + "x" + std::to_string(size.height));
  const Place place = Place(between(rng, 0, 2));
  Image src(rng, size.width, size.height, m.elementBytes, place);
  if (!m.bytes)
    src.fill<Hux32f>([&] {
      constexpr Hux32f nan = std::numeric_limits<Hux32f>::quiet_NaN();
      return between(rng, 0, 99) == 0 ? nan : Hux32f(between(rng, -9000, 9000)) / 7;
    });
  const Image dst(rng, size.width, size.height, m.elementBytes, place), before = src;
  Image outside = dst, image = src;
  ASSERT_EQ(m.apart(src.bytes(), src.step(), dst.bytes(), dst.step(), size), huxStsOk);
  ASSERT_EQ(m.inPlace(image.bytes(), image.step(), size), huxStsOk);
  ASSERT_TRUE(same(src, before));
  const auto get = [&](const Image& of, int x, int y) {
    return m.bytes ? double(of.get<Hux8u>(x, y)) : double(of.get<Hux32f>(x, y));
  };
  forPixels(size, [&](int x, int y) {
    ASSERT_TRUE(holds(m, get(src, x, y), get(dst, x, y), x, y, size))
        << x << ", " << y << ": " << get(src, x, y) << " became " << get(dst, x, y);
    std::memcpy(outside.bytes(x, y), dst.bytes(x, y), std::size_t(m.elementBytes));
    std::memcpy(src.bytes(x, y), dst.bytes(x, y), std::size_t(m.elementBytes));
  });
  ASSERT_TRUE(same(dst, outside));
  ASSERT_TRUE(same(image, src)) << "in place";
}

TEST(Windows, Shapes) {
  Rng rng(1);
  for (const Member& m : kMembers) {
    for (int width = 3; width < 80; ++width) expectWindowed(rng, m, {width, between(rng, 3, 9)});
    for (int side : {3, 4, 5, 8, 33, 40}) expectWindowed(rng, m, {side, side});
    expectWindowed(rng, m, {2 * 256 + 30, 4}), expectWindowed(rng, m, {2 * 512 + 31, 3});
    if (HasFatalFailure()) return;
  }
}

TEST(Windows, Vectors) {
  for (const bool hamming : {false, true})
    for (int n : {3, 4, 5, 6, 7, 31, 64, 1001, 65536, 1 << 20}) {
      std::vector<Hux32f> values(std::size_t(n) + 1, 3);
      values[0] = std::numeric_limits<Hux32f>::quiet_NaN();
      ASSERT_EQ((hamming ? huxsWinHamming_32f_I : huxsWinBartlett_32f_I)(values.data(), n), huxStsOk);
      EXPECT_TRUE(std::isnan(values[0]));
      EXPECT_EQ(values[std::size_t(n)], 3);
      for (int k = 1; k<n; k += n> 2000 ? n / 500 : 1)
        ASSERT_EQ(values[std::size_t(k)], Hux32f(3 * lineWeight(hamming, k, n))) << k << " of " << n;
    }
}

// Where the cosine is 1/2 the weight lies in the middle between two doubles. The even one is the nearest, for any
// length; this value tells it from the other.
TEST(Windows, TiesOfWeights) {
  for (int k = 1; k < 3000; ++k) {
    const Hux32f value = 0x1.bbb66ep+3f;
    std::vector<Hux32f> values(std::size_t(6 * k + 1), value);
    ASSERT_EQ(huxsWinHamming_32f_I(values.data(), 6 * k + 1), huxStsOk);
    ASSERT_EQ(values[std::size_t(k)], Hux32f(value * 0x1.3d70a3d70a3d8p-2)) << k;
    ASSERT_EQ(values[std::size_t(5 * k)], values[std::size_t(k)]) << k;
  }
}

TEST(Windows, ChecksInOrder) {
  Rng rng(2);
  const Image image(rng, 16, 8, 4);
  for (const Member& m : kMembers) {
    SCOPED_TRACE(m.name);
    Arguments a(image, {3, 3});
    CheckOrder order([&] { return m.apart(a.a, a.aStep, a.d, a.dStep, a.roi); });
    order.in(a, "ad").breaks(huxStsBadSize, a.roi.width, 2).breaks(huxStsBadSize, a.roi.height, 2).in(a, "AD");
    order.run(image);
    CheckOrder([&] { return m.inPlace(a.d, a.dStep, a.roi); }).in(a, "dzD").run(image);
  }
  Hux32f value = 1;
  for (auto* line : {huxsWinBartlett_32f_I, huxsWinHamming_32f_I}) {
    EXPECT_EQ(line(nullptr, 2), huxStsNullPtr);
    EXPECT_EQ(line(&value, 2), huxStsBadSize);
  }
}

}  // namespace
}  // namespace hux::test
