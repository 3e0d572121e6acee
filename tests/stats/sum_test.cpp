// Sum and Mean against the definition, element by element.
#include "huxi_stats.h"
#include "stats/reductions.h"

namespace hux::test {
namespace {

struct Member : Form {
  OneFn *sum, *mean;
};
#define MEMBER(t, l) Member{HUX_FORM(t, l), as<OneFn, huxiSum_##t##_##l##R>, as<OneFn, huxiMean_##t##_##l##R>},
std::vector<Member> members() {
  return { HUX_STAMP(MEMBER, (8u, 16s, 16u, 32f), (C1, C3, C4, AC4)) };
}

double sumOf(const Member& m, const Image& image, HuxiSize roi, int c) {
  const Elements elements{image, m};
  const auto term = [&](int x, int y) { return elements(x, y, c); };
  if (m.type == Number::k32f) return orderedSum(roi, m.layout.stride == 1, term);
  return blockSum(roi, m.type == Number::k8u ? roi.width : 65536, term);
}

void expectSums(Rng& rng, const Member& m, int width, int height, int kind) {
  SCOPED_TRACE(m.name + " " + std::to_string(width) + "x" + std::to_string(height) + " " + std::to_string(kind));
  const Image image = touchedImage(rng, width, height, m.layout, m.elementBytes, Place(between(rng, 0, 2)));
  scatter(rng, image, m.type, kind);
  const HuxiSize roi = {width, height};
  double sums[4] = {-1, -1, -1, -1}, means[4] = {-1, -1, -1, -1};
  ASSERT_EQ(m.sum(image.bytes(), image.step(), roi, sums, 0), huxStsOk);
  ASSERT_EQ(m.mean(image.bytes(), image.step(), roi, means, 0), huxStsOk);
  const double pixels = Hux32s(Hux32u(width) * Hux32u(height));
  for (int c = 0; c < 4; ++c) {
    const double sum = c < m.layout.touched ? sumOf(m, image, roi, c) : -1;
    ASSERT_TRUE(alike(sums[c], sum)) << "channel " << c;
    const double mean = c >= m.layout.touched ? -1 : m.layout.stride == 1 ? sum / pixels : sum * (1 / pixels);
    ASSERT_TRUE(alike(means[c], mean)) << "channel " << c;
  }
}

TEST(Sum, Shapes) {
  Rng rng(1);
  for (const Member& m : members()) {
    int kind = 0;
    forRegions(rng, [&](int width, int height) { expectSums(rng, m, width, height, kind++); });
    for (kind = 0; kind < 8; ++kind) expectSums(rng, m, 600, 51, kind);
    if (m.type == Number::k32f && m.layout.stride == 1) expectSums(rng, m, 800, 600, 1);  // as many as fill a double
  }
}

// Rows from both sides of where 32 bits wrap, in blocks and in whole rows.
TEST(Sum, Wraps) {
  Rng rng(2);
  for (const Member& m : members())
    if (m.type == Number::k16u || m.type == Number::k16s)
      for (int width : {32768, 32769, 65536, 65537, 131072 + 40001})
        for (int kind : {1, 2})
          if (m.layout.stride == 1 || width == 65537) expectSums(rng, m, width, 2, kind);
  const int fits = 8421504;
  const std::vector<Hux8u> bright(4 * (fits + 1), 255);
  for (int width : {fits, fits + 1}) {
    double sums[4];
    EXPECT_EQ(huxiSum_8u_C1R(bright.data(), 1, {width, 1}, sums), huxStsOk);
    EXPECT_EQ(sums[0], wrapped(std::int64_t(255) * width));
    EXPECT_EQ(huxiSum_8u_AC4R(bright.data(), 1, {width, 1}, sums), huxStsOk);
    EXPECT_EQ(sums[2], wrapped(std::int64_t(255) * width));
  }
}

// Rows without gaps, which may be taken for one, and rows that lie over each other.
TEST(Sum, Steps) {
  Rng rng(3);
  for (const Member& m : members()) {
    SCOPED_TRACE(m.name);
    const Image image(rng, 1 << 16, 1, 1);
    scatter(rng, image, m.type, 0);
    const int pixel = m.pixelBytes();
    for (int width : {1, 31, 100})
      for (int step : {1, width * pixel}) {
        const HuxiSize roi = {width, 40};
        const Image rows(rng, width * pixel, 40, 1);
        for (int y = 0; y < 40; ++y) std::memcpy(rows.bytes(0, y), image.bytes(y * step), std::size_t(width * pixel));
        double sums[4];
        ASSERT_EQ(m.sum(image.bytes(), step, roi, sums, 0), huxStsOk);
        for (int c = 0; c < m.layout.touched; ++c) ASSERT_TRUE(alike(sums[c], sumOf(m, rows, roi, c)));
      }
  }
}

// width * height wraps: here to 0, by rows that lie over each other.
TEST(Mean, PixelsWrap) {
  const std::vector<Hux8u> pixels(65536 + 65536, 1);
  double mean = -1;
  EXPECT_EQ(huxiMean_8u_C1R(pixels.data(), 1, {65536, 65536}, &mean), huxStsOk);
  EXPECT_EQ(mean, std::numeric_limits<double>::infinity());
}

TEST(Sum, ChecksInOrder) {
  Rng rng(4);
  const Image image(rng, 64, 4, 1), sums(rng, 4, 1, 8);
  for (const Member& m : members())
    for (OneFn* fn : {m.sum, m.mean}) {
      SCOPED_TRACE(m.name);
      Arguments a(image);
      a.d = sums.bytes();
      CheckOrder([&] { return fn(a.a, a.aStep, a.roi, a.d, 0); }).in(a, "daAz").run(sums);
    }
}

}  // namespace
}  // namespace hux::test
