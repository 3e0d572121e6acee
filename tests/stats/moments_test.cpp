// Moments: the scan against its definition, to the bit, and what is derived from a record against sums over the image.
#include <array>
#include <cmath>
#include <limits>

#include "huxi_stats.h"
#include "huxs.h"
#include "support/failing_malloc.h"
#include "support/forms.h"

namespace hux::test {
namespace {

constexpr int kOrders[10][2] = {{0, 0}, {1, 0}, {2, 0}, {3, 0}, {0, 1}, {1, 1}, {2, 1}, {0, 2}, {1, 2}, {0, 3}};

using Record64f = HuxiMomentRecord_64f;
using Record64s = HuxiMomentRecord_64s;

// A record as bytes: tag, hint, number of channels, 4 bytes, and 16 entries for each of three channels.
struct Bytes {
  Hux32s tag, hint, channels, reserved;
  std::uint64_t entries[3][16];
};
Bytes bytesOf(const void* record) { return valueAt<Bytes>(record); }

// Records that live as long as the program.
Record64f* record64f() {
  static Record64f* const record = [] {
    Record64f* made = nullptr;
    huxiMomentInitAlloc_64f(&made, huxHintAccurate);
    return made;
  }();
  return record;
}
Record64s* record64s() {
  static unsigned char memory[401];  // at any address
  static auto* record = reinterpret_cast<Record64s*>(memory + 1);
  static const HuxStatus made = huxiMomentInit_64s(record, huxHintNone);
  return made == huxStsOk ? record : nullptr;
}
const bool kBoth = record64f() && record64s();  // ahead of all tests

void fillBoth(const Hux8u* pixels, int step, HuxiSize roi, bool three) {
  (three ? huxiMoments64f_8u_C3R : huxiMoments64f_8u_C1R)(pixels, step, roi, record64f());
  (three ? huxiMoments64s_8u_C3R : huxiMoments64s_8u_C1R)(pixels, step, roi, record64s());
}

struct Member : Form {
  HuxStatus (*call)(const void*, int, HuxiSize, void* record);
  void* (*record)();
  bool integers;
};
#define MEMBER(r, t, l)                                                                                    \
  Member{HUX_NAMED(r, t, l), erased<huxiMoments##r##_##t##_##l##R>, []() -> void* { return record##r(); }, \
         std::is_same_v<Hux##r, Hux64s>},
#define MEMBERS(_, l) MEMBER(64f, 8u, l) MEMBER(64f, 32f, l) MEMBER(64s, 8u, l)
const Member kMembers[] = {HUX_STAMP(MEMBERS, (_), (C1, C3, AC4))};

// The entries of a channel: row sums in the type S, from the products that term() forms, and then the rows.
template <class S, class Term>
std::array<S, 16> scanned(const Member& f, const Image& image, int c, Term term) {
  std::array<S, 16> m{};
  for (int y = 0; y < image.height(); ++y) {
    S s[4] = {};
    for (int x = 0; x < image.width(); ++x)
      for (int k = 0; k < 4; ++k) s[k] += term(Hux32f(numberAt(f.type, image.bytes(x, y) + c * f.elementBytes)), x, k);
    for (const auto& [i, j] : kOrders) {
      S product = s[i];
      for (int k = 0; k < j; ++k) product *= S(y);
      m[std::size_t(i + 4 * j)] += product;
    }
  }
  return m;
}
Hux64f termOf(Hux32f p, int x, int k) {
  Hux64f term = p;
  while (k-- > 0) term *= x;
  return term;
}
// A product of 32 bits that wraps, as a signed number.
std::uint64_t wrappedTermOf(Hux32f p, int x, int k) {
  Hux32u term = Hux32u(p);
  while (k-- > 0) term *= Hux32u(x);
  return std::uint64_t(Hux64s(Hux32s(term)));
}

void expectScanned(const Member& f, const Image& image) {
  const Image before = image;
  void* record = f.record();
  const Hux8u old[12] = {1, 2, 3, 4, 5, 6, 7, 8, 9};  // whose traces must go
  fillBoth(old, 12, {4, 1}, true);
  ASSERT_EQ(f.call(image.bytes(), image.step(), image.size(), record), huxStsOk);
  const Bytes got = bytesOf(record);
  ASSERT_EQ(got.tag, f.integers ? 34 : 33);
  ASSERT_EQ(got.channels, f.layout.touched);
  for (int c = 0; c < 3; ++c) {
    std::array<Hux64f, 16> floats{};
    std::array<std::uint64_t, 16> integers{};
    if (c < f.layout.touched && f.integers) integers = scanned<std::uint64_t>(f, image, c, wrappedTermOf);
    if (c < f.layout.touched && !f.integers) floats = scanned<Hux64f>(f, image, c, termOf);
    for (std::size_t i = 0; i < 16; ++i)
      ASSERT_TRUE(f.integers ? integers[i] == got.entries[c][i] : alike(floats[i], valueAt<Hux64f>(&got.entries[c][i])))
          << f.name << ", " << image.width() << " x " << image.height() << ", channel " << c << ", entry " << i;
  }
  ASSERT_TRUE(same(image, before));
}

TEST(Moments, ScanEveryWidth) {
  Rng rng(1);
  for (const Member& f : kMembers)
    for (int width = 1; width <= 150; ++width) {
      Image image(rng, width, between(rng, 1, 20), f.pixelBytes(), Place(between(rng, 0, 2)));
      if (f.elementBytes == 4)
        image.fill<Hux32f>([&, strange = width % 5 == 0] {
          constexpr Hux32f some[] = {-0.0f, 0, INFINITY, -INFINITY, NAN, 1e-40f, 3e38f};
          return strange && between(rng, 0, 200) == 0 ? some[rng() % 7] : Hux32f(Hux32s(rng())) * 1e-3f;
        });
      expectScanned(f, image);
    }
}

// Beyond the width up to which integers do for doubles, and where products of 32 bits wrap.
TEST(Moments, ScanWideRows) {
  Rng rng(2);
  for (const Member& f : kMembers)
    for (int width : {203, 204, 205, 1023, 3446, 3447, 3448, 3449, 3450, 3456, 3457, 4095, 4096, 4097, 8200}) {
      Image image(rng, width, between(rng, 1, 9), f.pixelBytes(), Place(between(rng, 0, 2)));
      if (f.elementBytes == 1 && width % 2 != 0) image.fill<Hux8u>([&] { return Hux8u(255 - between(rng, 0, 1)); });
      if (f.elementBytes == 1 && width % 4 == 0) image.fill<Hux8u>([] { return Hux8u(255); });
      if (f.elementBytes == 4) image.fill<Hux32f>([&] { return Hux32f(between(rng, -1 << 20, 1 << 20)) / 3; });
      expectScanned(f, image);
    }
}

// sum(p * (x - x0)^m * (y - y0)^n) over a channel of bytes.
long double moment(const Image& image, int c, int m, int n, long double x0, long double y0) {
  long double sum = 0;
  forPixels(image.size(), [&](int x, int y) {
    sum += image.get<Hux8u>(x, y, c) * std::pow(x - x0, (long double)m) * std::pow(y - y0, (long double)n);
  });
  return sum;
}

// A number by a scale and towards zero, as 64s results come.
Hux64s scaled(Hux64f v, int scaleFactor, bool reciprocal = false) {
  const auto count = unsigned(scaleFactor < 0 ? -std::int64_t(scaleFactor) : scaleFactor) % 32;
  const Hux64f scale = Hux32s(Hux32u(1) << count);
  v = scaleFactor <= 0 ? v * scale : reciprocal ? v * (1.0 / scale) : v / scale;
  if (v >= 9223372036854775807.0) return std::numeric_limits<Hux64s>::max();
  return v > -9223372036854775808.0 ? Hux64s(v) : std::numeric_limits<Hux64s>::min();
}
constexpr int kScales[] = {0, 1, 7, 30, 31, 32, 33, -1, -20, -30, -31, -32, -40, INT32_MIN, INT32_MAX};

// All functions that read a record, by family; each takes what it needs.
using GetFn = HuxStatus(const void* record, int m, int n, int channel, HuxiPoint offset, void* result, int scale);
#define GETTERS(t)                                                                                                   \
  {                                                                                                                  \
    as<GetFn, huxiGetSpatialMoment_##t>, as<GetFn, huxiGetNormalizedSpatialMoment_##t>,                              \
        as<GetFn, huxiGetCentralMoment_##t, 0, 1, 2, 3, 5, 6>,                                                       \
        as<GetFn, huxiGetNormalizedCentralMoment_##t, 0, 1, 2, 3, 5, 6>, as<GetFn, huxiGetHuMoments_##t, 0, 3, 5, 6> \
  }
GetFn* const kGetters[2][5] = {GETTERS(64f), GETTERS(64s)};

enum Getter { spatial, normalizedSpatial, central, normalizedCentral, hu };

// What a function finds in the records.
Hux64f of64f(int getter, int m, int n, int channel, HuxiPoint offset) {
  Hux64f value = -1;
  EXPECT_EQ(kGetters[0][getter](record64f(), m, n, channel, offset, &value, 0), huxStsOk);
  return value;
}
Hux64s of64s(int getter, int scale, int m, int n, int channel, HuxiPoint offset) {
  Hux64s value = -1;
  EXPECT_EQ(kGetters[1][getter](record64s(), m, n, channel, offset, &value, scale), huxStsOk);
  return value;
}

// Small images, whose spatial moments are exact in doubles and in which no product of 32 bits wraps.
TEST(Moments, DerivedFromTheImage) {
  Rng rng(3);
  for (int round = 0; round < 30; ++round) {
    // Heavy in one corner, so that no moment is next to nothing.
    Image image(rng, between(rng, 2, 40), between(rng, 2, 40), 3);
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width() * 3; ++x)
        image.data<Hux8u>()[y * image.step() + x] = Hux8u(between(rng, 0, 255) >> (x / 3 + 2 * y) / 6 % 8);
    fillBoth(image.data<Hux8u>(), image.step(), image.size(), true);
    const int c = round % 3;
    const HuxiPoint offset = {between(rng, -50, 50), between(rng, -50, 50)};
    const auto mass = Hux64f(moment(image, c, 0, 0, 0, 0));
    const long double xc = moment(image, c, 1, 0, 0, 0) / mass, yc = moment(image, c, 0, 1, 0, 0) / mass;
    long double u[4][4] = {};
    for (const auto& [m, n] : kOrders) {
      const Hux64f norm = std::pow(mass, (m + n + 2) * -0.5);
      const auto about = Hux64f(moment(image, c, m, n, -offset.x, -offset.y));
      const Hux64f f = of64f(central, m, n, c, offset);
      const long double aboutCentre = m + n == 1 ? 0 : moment(image, c, m, n, xc, yc);
      ASSERT_NEAR(f, aboutCentre, m + n == 1 ? 0 : 1e-10 * Hux64f(moment(image, c, m, n, 0, 0))) << m << n;
      const Hux64f floats[] = {about, about * norm, f, f * norm},
                   whole[] = {about, about * norm, f, std::trunc(f) * norm};
      for (int g : {spatial, normalizedSpatial, central, normalizedCentral}) {
        ASSERT_EQ(of64f(g, m, n, c, offset), floats[g]) << m << n << " getter " << g;
        for (int scale : kScales)
          ASSERT_EQ(of64s(g, scale, m, n, c, offset), scaled(whole[g], scale))
              << m << n << " getter " << g << " by " << scale;
      }
      u[m][n] = aboutCentre * norm;
    }
    // The invariants; the fifth has the sum of the others' third line once too often.
    const auto a = 3 * u[2][1] - u[0][3], b = u[3][0] - 3 * u[1][2], p = u[3][0] + u[1][2], e = u[2][1] + u[0][3];
    const auto d = u[2][0] - u[0][2], q = u[1][2] + u[0][3];
    const long double expected[7] = {u[2][0] + u[0][2],
                                     4 * u[1][1] * u[1][1] + d * d,
                                     b * b + a * a,
                                     p * p + e * e,
                                     b * p * (q * q - 3 * e * e) + a * e * (3 * p * p - e * e),
                                     d * (p * p - e * e) + 4 * u[1][1] * p * e,
                                     a * p * (p * p - 3 * e * e) - b * e * (3 * p * p - e * e)};
    Hux64f invariants[7];
    Hux64s whole[7];
    ASSERT_EQ(kGetters[0][hu](record64f(), 0, 0, c, offset, invariants, 0), huxStsOk);
    // Third central moments are small differences of large numbers, and the later invariants powers of them.
    const Hux64f third =
        1e-10 * Hux64f(moment(image, c, 3, 0, 0, 0) + moment(image, c, 0, 3, 0, 0)) * std::pow(mass, -2.5);
    Hux64f near = 0;
    for (const long double v : {a, b, p, e, q}) near += std::fabs(Hux64f(v));
    for (int i = 0; i < 7; ++i) {
      const Hux64f bound =
          i < 2 ? 1e-9 * Hux64f(expected[0]) : (i == 4 || i == 6 ? 40 * near * near : 1) * near * third;
      ASSERT_NEAR(invariants[i], expected[i], bound + 1e-10 * std::fabs(Hux64f(expected[i]))) << i;
      for (int scale : kScales) {
        ASSERT_EQ(kGetters[1][hu](record64s(), 0, 0, c, offset, whole, scale), huxStsOk);
        const Hux64s want = scaled(invariants[i], scale, true);
        ASSERT_NEAR(Hux64f(whole[i]), Hux64f(want), 1 + 1e-9 * std::fabs(Hux64f(want))) << i << " by " << scale;
      }
    }
  }
}

TEST(Moments, SaturateAndSayNothing) {
  const Hux8u white[2] = {255, 255}, black[2] = {};
  fillBoth(white, 2, {2, 1}, false);
  const HuxiPoint far = {2000000000, -2000000000}, near = {1, 2};
  EXPECT_EQ(of64s(spatial, 0, 3, 0, 0, far), std::numeric_limits<Hux64s>::max());
  EXPECT_EQ(of64s(spatial, 0, 0, 3, 0, far), std::numeric_limits<Hux64s>::min());
  // Orders that no moment has pass the test of their sum.
  for (const auto& [m, n] : {std::pair{-1, 0}, {0, -1}, {4, -1}, {-4, 7}, {INT32_MIN, INT32_MIN}}) {
    for (int g : {spatial, normalizedSpatial, central, normalizedCentral})
      EXPECT_EQ(of64f(g, m, n, 0, near), -1) << "as it was";
    EXPECT_EQ(of64s(spatial, 3, m, n, 0, near), 0);
    EXPECT_EQ(of64s(central, -3, m, n, 0, near), 0);
  }
  // Without mass there are spatial moments only; the normalised one of 64f shows the plain one.
  Hux64f f = -7;
  Hux64s s = -7;
  fillBoth(black, 2, {2, 1}, false);
  EXPECT_EQ(huxiGetNormalizedSpatialMoment_64f(record64f(), 2, 0, 0, {1, 2}, &f), huxStsMomentTooSmall);
  EXPECT_EQ(f, 0);
  f = -7;
  EXPECT_EQ(huxiGetNormalizedCentralMoment_64f(record64f(), 2, 0, 0, &f), huxStsMomentTooSmall);
  EXPECT_EQ(huxiGetNormalizedSpatialMoment_64s(record64s(), 2, 0, 0, {1, 2}, &s, 0), huxStsMomentTooSmall);
  EXPECT_TRUE(f == -7 && s == -7);
  // The least mass of 64f is not above itself.
  const Hux32f epsilon = std::numeric_limits<Hux64f>::epsilon(), more = -1.001f * epsilon;
  huxiMoments64f_32f_C1R(&epsilon, 4, {1, 1}, record64f());
  EXPECT_EQ(huxiGetCentralMoment_64f(record64f(), 0, 0, 0, &f), huxStsMomentTooSmall);
  huxiMoments64f_32f_C1R(&more, 4, {1, 1}, record64f());
  EXPECT_EQ(huxiGetCentralMoment_64f(record64f(), 0, 0, 0, &f), huxStsOk);
}

TEST(Moments, ScanChecksInOrder) {
  Rng rng(4);
  const Image image(rng, 64, 4, 16);
  for (const Member& f : kMembers) {
    SCOPED_TRACE(f.name);
    Bytes kept = bytesOf(f.record());
    const void* src = image.bytes();
    void* record = &kept;
    const int rowBytes = 3 * f.pixelBytes();
    int step = rowBytes;
    HuxiSize roi = {3, 2};
    const auto call = [&] {
      const Bytes before = kept;
      const HuxStatus s = f.call(src, step, roi, record);
      EXPECT_TRUE(s == huxStsOk || std::memcmp(&before, &kept, sizeof kept) == 0);
      return s;
    };
    CheckOrder order(call);
    order.nulls(src, record).breaks(huxStsBadContext, kept.tag, f.integers ? 33 : 34).steps(step).sizes(roi).run(image);
    CheckOrder(call).breaks(huxStsStepBelowWidth, step, rowBytes - 1).run(image);
    CheckOrder(call).breaks(huxStsStepBelowWidth, roi.width, INT32_MAX).run(image);
  }
}

TEST(Moments, GetChecksInOrder) {
  Rng rng(5);
  const Image image(rng, 64, 4, 16);
  const Hux8u pixels[12] = {1, 2, 3, 4, 5, 6, 7, 8, 9};
  for (int family = 0; family < 2; ++family) {
    const void* const filled = family ? static_cast<void*>(record64s()) : record64f();
    fillBoth(pixels, 12, {4, 1}, true);
    Bytes record = bytesOf(filled);
    for (int g = 0; g < 5; ++g) {
      SCOPED_TRACE(testing::Message() << "family " << family << ", function " << g);
      const void* from = &record;
      void* result = image.bytes(0, 2);
      int m = 1, n = 1, channel = 2;
      CheckOrder order([&] { return kGetters[family][g](from, m, n, channel, {1, 1}, result, 2); });
      order.nulls(from, result).breaks(huxStsBadContext, record.tag, 34 - family);
      if (g < 4) order.breaks(huxStsBadSize, m, 3).breaks(huxStsBadSize, n, INT32_MAX);
      order.breaks(huxStsBadMomentIndex, channel, -1).breaks(huxStsBadMomentIndex, channel, 3);
      if (g > 1) order.breaks(huxStsMomentTooSmall, record.entries[2][0], 0);
      order.run(image);
    }
    fillBoth(pixels, 12, {4, 1}, false);
    Hux64f room[7];
    EXPECT_EQ(kGetters[family][0](filled, 0, 0, 1, {1, 1}, room, 2), huxStsBadMomentIndex)
        << "after an image of one channel";
  }
}

TEST(Moments, RecordsComeAndGo) {
  const auto live = [](auto* create, auto* free, auto* freeOther, auto* record, auto* other, HuxAccuracyHint hint) {
    EXPECT_EQ(create(nullptr, hint), huxStsNullPtr);
    EXPECT_EQ(free(nullptr), huxStsNullPtr);
    const auto refused = [&](HuxStatus s) { EXPECT_TRUE(s == huxStsNoMem && !record); };
    ASSERT_EQ(walkAllocationFailures([&] { return create(&record, hint); }, refused), huxStsOk);
    EXPECT_EQ(bytesOf(record).hint, hint);
    EXPECT_EQ(bytesOf(record).channels, -1);  // so that no channel is there to be read
    EXPECT_EQ(freeOther(reinterpret_cast<decltype(other)>(record)), huxStsBadContext);
    EXPECT_EQ(free(record), huxStsOk);
  };
  Record64f* f = nullptr;
  Record64s* s = nullptr;
  live(huxiMomentInitAlloc_64f, huxiMomentFree_64f, huxiMomentFree_64s, f, s, 77);
  live(huxiMomentInitAlloc_64s, huxiMomentFree_64s, huxiMomentFree_64f, s, f, -5);
  int size = 0;
  EXPECT_EQ(huxiMomentInit_64s(nullptr, 0), huxStsNullPtr);
  EXPECT_EQ(huxiMomentGetStateSize_64s(0, nullptr), huxStsNullPtr);
  EXPECT_EQ(huxiMomentGetStateSize_64s(99, &size), huxStsOk);
  EXPECT_EQ(size, int(sizeof(Bytes)));
}

}  // namespace
}  // namespace hux::test
