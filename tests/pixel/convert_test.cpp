// Convert in all its forms, against the definition of one element, and the bit images bit by bit.
#include <algorithm>

#include "huxi_pixel.h"
#include "pixel/element_map.h"
#include "support/failing_malloc.h"

namespace hux::test {
namespace {

template <class D, class S>
D keep(S v) {
  if constexpr (std::is_floating_point_v<D>)
    return D(v);
  else
    return D(std::clamp<std::int64_t>(v, std::numeric_limits<D>::min(), std::numeric_limits<D>::max()));
}

#define KEEP(s, d, l) elementMap<Hux##s, Hux##d>(#s #d "_" #l, l, huxiConvert_##s##d##_##l##R, keep<Hux##d, Hux##s>),
#define ROUND_BY(s, d, l, mode)                                                                                \
  elementMap<Hux##s, Hux##d>(                                                                                  \
      #s #d "_" #l " mode " #mode, l, [](auto... args) { return huxiConvert_##s##d##_##l##R(args..., mode); }, \
      [](Hux##s v) { return roundTo<Hux##d>(v, mode); }),
#define ROUND(s, d, l) ROUND_BY(s, d, l, 0) ROUND_BY(s, d, l, 1)
#define KEEP_ALL(d, s) HUX_LAYOUTS(KEEP, s, d)
#define ROUND_ALL(d, s) HUX_LAYOUTS(ROUND, s, d)

std::vector<ElementMap> integerMaps() {
  return {
    HUX_STAMP(KEEP_ALL, (16u, 16s, 32s, 32f), (8u))
    HUX_STAMP(KEEP_ALL, (32s, 32f), (8s))
    HUX_STAMP(KEEP_ALL, (8u, 32s, 32f), (16u))
    HUX_STAMP(KEEP_ALL, (8u, 32f), (16s))
    HUX_STAMP(KEEP_ALL, (8u, 8s), (32s))
  };
}
std::vector<ElementMap> floatMaps() {
  return {
    HUX_STAMP(ROUND_ALL, (8u, 8s, 16u, 16s), (32f))
    ROUND_BY(32f, 8u, C1, 2) ROUND_BY(32f, 16s, C1, -1)
  };
}

TEST(Convert, EveryIntegerKeepsItsValueOrIsLimited) {
  Rng rng(1);
  // The member reads the values as its source type, whatever it is: all bit patterns of 8 and 16 bits are there.
  const auto bytes = integers<Hux8u>(rng);
  const auto words = integers<Hux16u>(rng);
  const auto longs = integers<Hux32s>(rng);
  for (const ElementMap& map : integerMaps()) {
    expectShapes(map, rng);
    if (map.srcBytes == 1) expectValues(map, rng, bytes);
    if (map.srcBytes == 2) expectValues(map, rng, words);
    if (map.srcBytes == 4) expectValues(map, rng, longs);
  }
}

TEST(Convert, FloatsAreRoundedByTheMode) {
  Rng rng(2);
  const auto values = floats<Hux32f>(rng, -33000, 66000, 7);
  for (const ElementMap& map : floatMaps()) {
    expectShapes(map, rng);
    expectValues(map, rng, values);
  }
}

TEST(Convert, ChecksPointersSizeSteps) {
  Rng rng(3);
  for (const ElementMap& map : integerMaps()) expectOrder(map, rng);
  for (const ElementMap& map : floatMaps()) expectOrder(map, rng);
}

bool bitAt(const std::byte* row, int i) { return (int(row[i / 8]) >> (7 - i % 8) & 1) != 0; }
void setBit(std::byte* row, int i, bool set) {
  const auto bit = std::byte(0x80 >> i % 8);
  row[i / 8] = set ? row[i / 8] | bit : row[i / 8] & ~bit;
}

TEST(Convert1u8u, UnpacksTheBitsBehindTheOffset) {
  Rng rng(4);
  for (int offset : {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 23, 1 << 30})
    forShapes(rng, 300, [&](int width, int height, Place place) {
      // The source has no byte more than the row's bits need.
      const Image src(rng, (offset % 8 + width + 7) / 8, height, 1, place), dst(rng, width, height, 1);
      Image expected = dst;
      forPixels({width, height},
                [&](int x, int y) { expected.set<Hux8u>(x, y, 0, bitAt(src.bytes(0, y), offset % 8 + x) ? 255 : 0); });
      ASSERT_EQ(huxiConvert_1u8u_C1R(src.data<Hux8u>(), src.step(), offset, dst.data<Hux8u>(), dst.step(), dst.size()),
                huxStsOk);
      ASSERT_TRUE(same(dst, expected)) << "offset " << offset;
    });
}

// The definition of the halftone, bit by bit.
void halftone(const Image& src, Image& dst, int dstBitOffset, int threshold) {
  const int width = src.width(), first = dstBitOffset % 8;
  std::vector<int> a(std::size_t(width) + 4), b = a, c = a;
  for (int y = 0; y < src.height(); ++y) {
    std::byte* row = dst.bytes(0, y);
    if (first != 0)
      for (int i = first; i < 8; ++i) setBit(row, i, false);
    for (int x = 0; x < width; ++x) {
      const auto A = a.begin() + x + 2, B = b.begin() + x + 2, C = c.begin() + x + 2;
      const int sum = A[-2] + 2 * A[-1] + 4 * A[0] + 2 * A[1] + A[2] + 2 * B[-2] + 4 * B[-1] + 8 * B[0] + 4 * B[1] +
                      2 * B[2] + 4 * C[-2] + 8 * C[-1];
      const int t = (src.get<Hux8u>(x, y) << 13) + sum * 23;
      C[0] = (t >> 10) - (t > threshold * 8192 ? 2047 : 0);
      setBit(row, first + x, t > threshold * 8192);
    }
    std::swap(a, b);
    std::swap(b, c);
  }
}

TEST(Convert8u1u, DiffusesTheErrorAndKeepsTheBitsAround) {
  Rng rng(5);
  for (int offset : {0, 1, 2, 3, 4, 5, 6, 7, 8, 13})
    forShapes(rng, 300, [&](int width, int height, Place place) {
      height += between(rng, 0, 1) * 7;
      const Image dst(rng, (offset % 8 + width + 7) / 8, height, 1, place);
      Image src(rng, width, height, 1, place), expected = dst;
      const int kind = between(rng, 0, 3), level = between(rng, 0, 255);
      if (kind < 3)
        src.fill<Hux8u>([&] { return Hux8u(kind == 0 ? level : kind == 1 ? 255 * (rng() & 1) : rng() & 63); });
      const Hux8u threshold = Hux8u(std::array{0, 127, 255, between(rng, 0, 255)}[std::size_t(between(rng, 0, 3))]);
      halftone(src, expected, offset, threshold);
      ASSERT_EQ(huxiConvert_8u1u_C1R(src.data<Hux8u>(), src.step(), dst.data<Hux8u>(), dst.step(), offset, src.size(),
                                     threshold),
                huxStsOk);
      ASSERT_TRUE(same(dst, expected)) << "offset " << offset << ", width " << width;
    });
}

// Steps are not checked: row upon row of the source may go to one row, and rows may go upwards.
TEST(Convert8u1u, StepsMayBeZeroOrNegative) {
  Rng rng(7);
  const Image src(rng, 50, 3, 1);
  Image all(rng, 8, 3, 1), actual(rng, 8, 3, 1);
  halftone(src, all, 0, 99);
  ASSERT_EQ(huxiConvert_8u1u_C1R(src.data<Hux8u>(), src.step(), actual.data<Hux8u>(), 0, 0, src.size(), 99), huxStsOk);
  EXPECT_EQ(std::memcmp(actual.bytes(), all.bytes(0, 2), 6), 0);
  ASSERT_EQ(huxiConvert_8u1u_C1R(src.data<Hux8u>(), src.step(), reinterpret_cast<Hux8u*>(actual.bytes(0, 2)),
                                 -actual.step(), 0, src.size(), 99),
            huxStsOk);
  for (int y = 0; y < 3; ++y) EXPECT_EQ(std::memcmp(actual.bytes(0, 2 - y), all.bytes(0, y), 6), 0) << y;
}

TEST(BitImages, Checks) {
  Rng rng(8);
  const Image image(rng, 16, 8, 1);
  const Hux8u* src = image.data<Hux8u>();
  Hux8u* dst = image.data<Hux8u>() + 8;
  HuxiSize roi = {1, 1};
  int srcStep = 1, dstStep = 1, offset = 0;
  CheckOrder([&] { return huxiConvert_1u8u_C1R(src, srcStep, offset, dst, dstStep, roi); })
      .nulls(src, dst)
      .sizes(roi)
      .steps(srcStep, dstStep)
      .breaks(huxStsBadSize, offset, -1)
      .run(image);
  CheckOrder([&] { return huxiConvert_8u1u_C1R(src, -5, dst, 0, offset, roi, 1); })
      .nulls(src, dst)
      .sizes(roi)
      .breaks(huxStsBadSize, offset, -8)
      .run(image);
  const auto call = [&] { return huxiConvert_8u1u_C1R(src, 16, dst, 16, 0, {5, 3}, 1); };
  EXPECT_EQ(failuresOf(call, image), 1);
}

}  // namespace
}  // namespace hux::test
