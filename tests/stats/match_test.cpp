// CrossCorr and SqrDistance: every member bit for bit beside the steps taken one by one with the transforms of images,
// and near the definition of its measure.
#include <algorithm>
#include <cmath>
#include <numeric>

#include "huxcore.h"
#include "huxi_stats.h"
#include "support/forms.h"
#include "support/plane.h"

namespace hux::test {
namespace {

enum Extent { kFull, kSame, kValid };
enum Measure { kCorrelation, kLevel, kDistance };
using MatchFn = HuxStatus(const void*, int, HuxiSize, const void*, int, HuxiSize, void*, int, int scaleFactor);
struct Member : Form {
  Extent extent;
  Measure measure;
  bool scaled;
  MatchFn* call;

  int channels() const { return layout.touched; }
};

#define MEMBER(Name, extent, measure, types, s, d, l, suffix)                                                 \
  Member {                                                                                                    \
    {#Name "_" #types "_" #l #suffix, sizeof(Hux##s), l, Number::k##s}, extent, measure, sizeof(Hux##d) == 1, \
        as<MatchFn, huxi##Name##_##types##_##l##suffix>                                                       \
  }
#define MEASURES(N, ...)                                           \
  MEMBER(CrossCorr##N##_Norm, k##N, kCorrelation, __VA_ARGS__),    \
      MEMBER(CrossCorr##N##_NormLevel, k##N, kLevel, __VA_ARGS__), \
      MEMBER(SqrDistance##N##_Norm, k##N, kDistance, __VA_ARGS__)
#define EXTENTS(...) MEASURES(Full, __VA_ARGS__), MEASURES(Same, __VA_ARGS__), MEASURES(Valid, __VA_ARGS__)
#define MEMBERS(_, l)                                                                         \
  EXTENTS(32f, 32f, 32f, l, R), EXTENTS(8u32f, 8u, 32f, l, R), EXTENTS(8s32f, 8s, 32f, l, R), \
      EXTENTS(8u, 8u, 8u, l, RSfs),
const Member kMembers[] = {HUX_STAMP(MEMBERS, (_), (C1, C3, C4, AC4))};
static_assert(std::size(kMembers) == 144);

// Fractions of eight, so that sums of squares are exact.
Image makeImage(Rng& rng, const Member& m, HuxiSize size) {
  Image image(rng, size.width, size.height, m.pixelBytes(), Place(between(rng, 0, 2)));
  if (m.type == Number::k32f) image.fill<Hux32f>([&] { return Hux32f(between(rng, -40, 400)) / 8; });
  return image;
}

Floats channelOf(const Member& m, const Image& image, int c) {
  Floats p(image.size());
  forPixels(p.size(),
            [&](int x, int y) { p.at(x, y) = Hux32f(numberAt(m.type, image.bytes(x, y) + c * m.elementBytes)); });
  return p;
}

HuxiSize resultSize(Extent extent, HuxiSize src, HuxiSize tpl) {
  if (extent == kSame) return src;
  const int sign = extent == kFull ? 1 : -1;
  return {src.width + sign * (tpl.width - 1), src.height + sign * (tpl.height - 1)};
}
HuxiPoint firstWindow(Extent extent, HuxiSize tpl) {
  if (extent == kFull) return {1 - tpl.width, 1 - tpl.height};
  return extent == kSame ? HuxiPoint{-(tpl.width / 2), -(tpl.height / 2)} : HuxiPoint{0, 0};
}

// 2^scaleFactor as the bits of a float give it.
Hux32f factorOf(int scaleFactor) {
  const int field = int((std::int64_t(scaleFactor) + 127) & 511), exponent = field & 255;
  const Hux32f value = exponent == 0     ? 0
                       : exponent == 255 ? std::numeric_limits<Hux32f>::infinity()
                                         : std::ldexp(1.0f, exponent - 127);
  return field > 255 ? -value : value;
}

// The sums of products of a channel, tile by tile.
Floats products(const Member& m, const Floats& src, const Floats& tpl) {
  const HuxiSize result = resultSize(m.extent, src.size(), tpl.size());
  const HuxiPoint first = firstWindow(m.extent, tpl.size());
  const int orderX = blockOrder(tpl.w, result.width, 7), orderY = blockOrder(tpl.h, result.height, 7);
  const HuxiSize block = {1 << orderX, 1 << orderY};
  const bool whole = m.extent == kFull && block.width >= result.width && block.height >= result.height;
  const HuxiSize tile = whole ? result : HuxiSize{block.width - tpl.w + 1, block.height - tpl.h + 1};
  const Spectrum<Hux32f> spectrum(orderX, orderY, tpl, true);
  Floats all(result);
  for (int y0 = 0; y0 < result.height; y0 += tile.height)
    for (int x0 = 0; x0 < result.width; x0 += tile.width) {
      const Floats p = spectrum.through(src, {first.x + x0, first.y + y0, block.width, block.height});
      forPixels({std::min(tile.width, result.width - x0), std::min(tile.height, result.height - y0)},
                [&](int x, int y) { all.at(x0 + x, y0 + y) = p.at(x, y); });
    }
  return all;
}

void normAndMean(const Member& m, const Image& tpl, Hux64f (&norm)[4], Hux64f (&mean)[4]) {
  if (m.type == Number::k32f) {
    const auto measure = [&](auto normOf, auto meanOf) {
      normOf(tpl.data<Hux32f>(), tpl.step(), tpl.size(), norm, huxHintNone);
      meanOf(tpl.data<Hux32f>(), tpl.step(), tpl.size(), mean, huxHintNone);
    };
    if (m.layout.stride == 1) return measure(huxiNorm_L2_32f_C1R, huxiMean_32f_C1R);
    if (m.layout.stride == 3) return measure(huxiNorm_L2_32f_C3R, huxiMean_32f_C3R);
    if (m.layout.touched == 3) return measure(huxiNorm_L2_32f_AC4R, huxiMean_32f_AC4R);
    return measure(huxiNorm_L2_32f_C4R, huxiMean_32f_C4R);
  }
  const Hux64f n = Hux64f(tpl.width()) * tpl.height();
  for (int c = 0; c < m.channels(); ++c) {
    const Floats plane = channelOf(m, tpl, c);
    Hux64f sum = 0, squares = 0;
    for (Hux32f p : plane.pixels) sum += p, squares += Hux64f(p) * p;
    norm[c] = std::sqrt(squares), mean[c] = m.layout.stride == 1 ? sum / n : sum * (1 / n);
  }
}

// What a call puts into a channel, as floats, step by step; and the definition, within what transforms in single
// precision can do to it.
Floats expectedOf(const Member& m, const Floats& src, Floats tpl, Hux64f norm, Hux64f mean, int scaleFactor) {
  const int n = tpl.area();
  const Hux32f floor = m.type == Number::k32f ? 0.0005f : 1.0f, g = m.scaled ? factorOf(scaleFactor) : 1;
  const Floats original = tpl;
  Hux32f term = std::max(Hux32f(norm), floor) * g;
  if (m.measure == kLevel) {
    for (Hux32f& t : tpl.pixels) t = t - Hux32f(mean);
    term = std::max(Hux32f(norm * norm - n * mean * mean), floor) * g * g;
  }
  if (term < 1.17549435e-38f) term = 1;
  Floats result = products(m, src, tpl);
  const HuxiPoint first = firstWindow(m.extent, tpl.size());
  Hux64f size = 0, worst = 0;
  for (Hux32f p : src.pixels) size += Hux64f(p) * p;
  size = std::sqrt(size);
  forPixels(result.size(), [&](int x, int y) {
    Hux64f squares = 0, sum = 0, direct = 0;
    forPixels(tpl.size(), [&](int i, int j) {
      const Hux64f p = src.at(first.x + x + i, first.y + y + j), t = original.at(i, j);
      squares += p * p, sum += p;
      direct += m.measure == kDistance ? (t - p) * (t - p) : m.measure == kLevel ? (t - mean) * p : t * p;
    });
    const Hux32f energy = Hux32f(squares), s = Hux32f(sum), c = result.at(x, y);
    Hux32f denominator, numerator = c;
    if (m.measure == kLevel) {
      const Hux32f square = s * s, less = square * (1.0f / Hux32f(n)), variance = energy - less;
      denominator = std::sqrt(std::max(variance, floor) * term);
    } else {
      const Hux32f root = std::sqrt(std::max(energy, floor));
      denominator = root * term;
      if (m.measure == kDistance) {
        const Hux32f minusTwice = c * -2.0f, more = minusTwice + energy;
        numerator = more + Hux32f(norm * norm);
      }
    }
    result.at(x, y) = numerator / denominator;
    const Hux64f error = std::abs(numerator - direct) / ((norm + 1) * size + squares + 1);
    worst = std::max(worst, error);
  });
  EXPECT_LT(worst, 1e-6);
  return result;
}

Hux8u rounded(Hux32f v) {
  if (v >= 255) return 255;
  if (!(v > 0)) return 0;
  const Hux32f t = v + 0.5f;
  const int i = int(t);
  return Hux8u(i % 2 && Hux32f(i) == t ? i - 1 : i);
}

void compare(Rng& rng, const Member& m, HuxiSize srcSize, HuxiSize tplSize, int scaleFactor) {
  const Image src = makeImage(rng, m, srcSize), tpl = makeImage(rng, m, tplSize);
  const HuxiSize size = resultSize(m.extent, srcSize, tplSize);
  const int bytes = m.scaled ? 1 : 4;
  Image dst(rng, size.width, size.height, bytes * m.layout.stride, Place(between(rng, 0, 2)));
  Image expected = dst;
  Hux64f norm[4], mean[4];
  normAndMean(m, tpl, norm, mean);
  for (int c = 0; c < m.channels(); ++c) {
    const Floats plane = expectedOf(m, channelOf(m, src, c), channelOf(m, tpl, c), norm[c], mean[c], scaleFactor);
    forPixels(size, [&](int x, int y) {
      if (m.scaled)
        expected.set<Hux8u>(x, y, c, rounded(plane.at(x, y)));
      else
        expected.set<Hux32f>(x, y, c, plane.at(x, y));
    });
  }
  ASSERT_EQ(
      m.call(src.bytes(), src.step(), srcSize, tpl.bytes(), tpl.step(), tplSize, dst.bytes(), dst.step(), scaleFactor),
      huxStsOk);
  ASSERT_TRUE(same(dst, expected));
}

class Match : public testing::Test {
 protected:
  ~Match() override { huxSetThreadCount(before_); }
  Rng rng_{7};

 private:
  Hux32u before_ = huxGetThreadCount();
};

// Templates of all small sizes, and some for blocks that never double; results on both sides of the lengths at which
// blocks double or one block holds a full result; one tile or several along either axis.
TEST_F(Match, EveryMember) {
  for (const Member& m : kMembers)
    for (int round = 0; round < 5; ++round) {
      const auto side = [&](int tpl) {
        int block = 2;
        while (block < 2 * tpl) block *= 2;
        const int result = between(rng_, 0, 2) ? block + between(rng_, -1, 1) : between(rng_, tpl, 2 * block);
        return std::array{std::max(result - resultSize(m.extent, {0, 0}, {tpl, 1}).width, tpl), tpl};
      };
      const auto x = side(round ? between(rng_, 1, 17) : between(rng_, 33, 36)),
                 y = side(round ? between(rng_, 1, 12) : between(rng_, 1, 3));
      const int scaleFactor = between(rng_, -9, -3);
      SCOPED_TRACE(m.name + ", " + std::to_string(x[0]) + " x " + std::to_string(y[0]) + " by " + std::to_string(x[1]) +
                   " x " + std::to_string(y[1]));
      huxSetThreadCount(Hux32u(between(rng_, 1, 3)));
      ASSERT_NO_FATAL_FAILURE(compare(rng_, m, {x[0], y[0]}, {x[1], y[1]}, scaleFactor));
      ASSERT_FALSE(HasNonfatalFailure());
    }
}

// The factor in the exponent: small, large, beyond what floats hold, and into the sign.
TEST_F(Match, EveryScaleFactor) {
  constexpr int low = std::numeric_limits<int>::min(), high = std::numeric_limits<int>::max();
  constexpr int factors[] = {0,    1,    -1,  30,  -30, 63,  -60, -64, -70, 100, -126,
                             -127, -128, 127, 128, 129, 383, 384, 385, 512, low, high};
  for (const Member& m : kMembers) {
    if (!m.scaled || m.layout.stride > 1) continue;
    for (int scaleFactor : factors) {
      SCOPED_TRACE(m.name + ", " + std::to_string(scaleFactor));
      ASSERT_NO_FATAL_FAILURE(compare(rng_, m, {19, 11}, {5, 4}, scaleFactor));
    }
  }
}

// Floors: nothing but zeros, and windows or templates without variance.
TEST_F(Match, FlatImages) {
  for (const Member& m : kMembers) {
    SCOPED_TRACE(m.name);
    for (int value : {0, 1, 100}) {
      const auto flat = [&](HuxiSize size, int v) {
        Image image(rng_, size.width, size.height, m.pixelBytes());
        if (m.type == Number::k32f)
          image.fill<Hux32f>([=] { return Hux32f(v); });
        else
          image.fill<Hux8u>([=] { return Hux8u(v); });
        return image;
      };
      const Image src = flat({12, 9}, value), tpl = flat({4, 3}, value ? 100 - value : 7);
      const HuxiSize size = resultSize(m.extent, src.size(), tpl.size());
      Image dst(rng_, size.width, size.height, (m.scaled ? 1 : 4) * m.layout.stride);
      m.call(src.bytes(), src.step(), src.size(), tpl.bytes(), tpl.step(), tpl.size(), dst.bytes(), dst.step(), 0);
      if (m.scaled) continue;
      forPixels(size, [&](int x, int y) {
        const Hux32f result = dst.get<Hux32f>(x, y, 0);
        ASSERT_TRUE(std::isfinite(result));
        ASSERT_EQ(value || m.measure == kDistance ? 0 : result, 0);
      });
    }
  }
}

// What a NaN cannot reach it does not change: it stays within its tiles.
TEST_F(Match, NaNStaysInItsTiles) {
  const HuxiSize size = {70, 50}, tplSize = {8, 8}, result = {63, 43};  // blocks of 32, tiles of 25
  const Member& m = *std::find_if(std::begin(kMembers), std::end(kMembers),
                                  [](const Member& f) { return f.name == "CrossCorrValid_NormLevel_32f_C1R"; });
  Image src = makeImage(rng_, m, size);
  const Image tpl = makeImage(rng_, m, tplSize);
  Image clean(rng_, result.width, result.height, 4), spoiled = clean;
  const auto call = [&](Image& dst) {
    m.call(src.bytes(), src.step(), size, tpl.bytes(), tpl.step(), tplSize, dst.bytes(), dst.step(), 0);
  };
  call(clean);
  src.set<Hux32f>(60, 10, 0, std::numeric_limits<Hux32f>::quiet_NaN());
  call(spoiled);
  forPixels(result, [&](int x, int y) {
    ASSERT_TRUE(x >= 50 && y < 25 ? std::isnan(spoiled.get<Hux32f>(x, y))
                                  : spoiled.get<Hux32f>(x, y) == clean.get<Hux32f>(x, y));
  });
}

// Sums over windows are kept up from place to place, and made afresh every 20 rows of a tile: there the rounding that
// bright pixels left behind ends. With a template of zeros and the floor for its length, the result is the sum's root.
TEST_F(Match, SumsStartAfreshInEveryBand) {
  const HuxiSize size = {24, 100}, tplSize = {3, 16};
  Image src(rng_, size.width, size.height, 4), tpl(rng_, tplSize.width, tplSize.height, 4), dst(rng_, 22, 85, 4);
  src.fill<Hux32f>([&] { return Hux32f(between(rng_, 100, 999)) / 1000; });
  for (int x = 0; x < size.width; ++x)
    for (int y = 0; y < 3; ++y) src.set<Hux32f>(x, y, 0, 1e10f);
  tpl.fill<Hux32f>([] { return 0.0f; });
  huxiSqrDistanceValid_Norm_32f_C1R(src.data<Hux32f>(), src.step(), size, tpl.data<Hux32f>(), tpl.step(), tplSize,
                                    dst.data<Hux32f>(), dst.step());
  for (int y = 20; y < dst.height(); ++y)
    for (int x = 0; x < dst.width(); ++x) {
      Hux64f squares = 0;
      for (int j = 0; j < tplSize.height; ++j)
        for (int i = 0; i < tplSize.width; ++i) squares += std::pow(Hux64f(src.get<Hux32f>(x + i, y + j)), 2);
      ASSERT_NEAR(dst.get<Hux32f>(x, y) * 0.0005, std::sqrt(squares), 1e-6 * std::sqrt(squares)) << x << ", " << y;
    }
}

// Of bright bytes, on both sides of the sizes up to which sums of columns fit floats and those of windows integers.
// With a template of zeros the numerator is the sum of squares alone, and the denominator its root.
TEST_F(Match, SumsOfBytesAreExact) {
  for (const HuxiSize tplSize : {HuxiSize{1, 258}, {1, 259}, {128, 258}, {129, 257}, {400, 2}}) {
    Image src(rng_, tplSize.width + 9, tplSize.height + 25, 1), tpl(rng_, tplSize.width, tplSize.height, 1);
    Image dst(rng_, 10, 26, 4);
    src.fill<Hux8u>([&] { return Hux8u(255 - (between(rng_, 0, 30) == 0)); });
    tpl.fill<Hux8u>([] { return Hux8u(0); });
    huxiSqrDistanceValid_Norm_8u32f_C1R(src.data<Hux8u>(), src.step(), src.size(), tpl.data<Hux8u>(), tpl.step(),
                                        tplSize, dst.data<Hux32f>(), dst.step());
    forPixels(dst.size(), [&](int x, int y) {
      Hux64s squares = 0;
      forPixels(tplSize,
                [&](int i, int j) { squares += Hux64s(src.get<Hux8u>(x + i, y + j)) * src.get<Hux8u>(x + i, y + j); });
      ASSERT_EQ(dst.get<Hux32f>(x, y), Hux32f(squares) / std::sqrt(Hux32f(squares))) << tplSize.width << ", " << y;
    });
  }
}

TEST_F(Match, ChecksInOrder) {
  const Image image(rng_, 64, 8, 16);
  for (const Member& m : kMembers) {
    SCOPED_TRACE(m.name);
    const void *src = image.bytes(), *tpl = src;
    void* dst = image.bytes(0, 4);
    int srcStep = 64, tplStep = 64, dstStep = 64;
    HuxiSize size = {2, 2}, tplSize = {1, 1};
    const auto call = [&] { return m.call(src, srcStep, size, tpl, tplStep, tplSize, dst, dstStep, 0); };
    CheckOrder order(call);
    order.nulls(src, tpl, dst).sizes(size).sizes(tplSize);
    order.breaks(huxStsBadSize, tplSize.width, 3).breaks(huxStsBadSize, tplSize.height, 3);
    order.steps(srcStep, tplStep, dstStep).run(image);

    // Of blocks beyond the largest transform, and beyond what a work buffer may be.
    size.width = tplSize.width = 1 << 30;
    EXPECT_EQ(call(), huxStsBadOrder);
    size.width = tplSize.width = 1 << 29;
    EXPECT_EQ(call(), huxStsNoMem);
  }
}

}  // namespace
}  // namespace hux::test
