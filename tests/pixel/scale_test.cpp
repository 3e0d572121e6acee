// Scale in all its forms, against the definition of one element in the precision that it names.
#include "huxi_pixel.h"
#include "pixel/element_map.h"

namespace hux::test {
namespace {

template <class D>
D spread(Hux8u p) {
  if constexpr (sizeof(D) == 2)
    return D(p * 257 - (std::is_signed_v<D> ? 32768 : 0));
  else
    return D(p * 16843009u + 0x80000000u);
}

Hux8u accurate(Hux16u v) { return Hux8u(truncateTie(float(v) * 0.0038910506f + 0.5f)); }
Hux8u accurate(Hux16s v) { return Hux8u(truncateTie(float(v) * 0.0038910506f + 128.00195f)); }
Hux8u accurate(Hux32s v) { return Hux8u(truncateTie(double(v) * 5.937181414556033e-8 + 128.0000000296859)); }
Hux8u quick(Hux16s v) { return Hux8u(((v - (v >> 8)) >> 8) + 128); }
Hux8u quick(Hux16u v) { return quick(Hux16s(v - 32768)); }
Hux8u quick(Hux32s v) { return Hux8u(((v - (v >> 8)) >> 24) + 128); }

Hux32f ontoRange(Hux8u p, Hux32f vMin, Hux32f vMax) {
  const Hux32f s = (vMax - vMin) / 255.0f;
  return p * s + vMin;
}
Hux8u fromRange(Hux32f v, Hux32f vMin, Hux32f vMax) {
  const Hux32f m = 255.0f / (vMax - vMin), b = 0.5f + (0.0f - m) * vMin;
  if (v >= vMax) return 255;
  if (!(v > vMin)) return 0;
  const Hux32f t = v * m + b;
  return t >= 256.0f ? 255 : t > 0.0f ? Hux8u(truncateTie(t)) : 0;
}

#define UP(s, d, l) elementMap<Hux##s, Hux##d>(#s #d "_" #l, l, huxiScale_##s##d##_##l##R, spread<Hux##d>),
#define DOWN_BY(s, d, l, hint, rule)                                                                         \
  elementMap<Hux##s, Hux##d>(                                                                                \
      #s #d "_" #l " hint " #hint, l, [](auto... args) { return huxiScale_##s##d##_##l##R(args..., hint); }, \
      [](Hux##s v) { return rule(v); }),
#define DOWN(s, d, l) DOWN_BY(s, d, l, 2, accurate) DOWN_BY(s, d, l, 1, quick)
#define RANGE(s, d, l)                                                                               \
  elementMap<Hux##s, Hux##d>(                                                                        \
      #s #d "_" #l, l, [=](auto... args) { return huxiScale_##s##d##_##l##R(args..., vMin, vMax); }, \
      [=](Hux##s v) { return Range(v, vMin, vMax); }),

std::vector<ElementMap> upMaps() {
  return {HUX_LAYOUTS(UP, 8u, 16u) HUX_LAYOUTS(UP, 8u, 16s) HUX_LAYOUTS(UP, 8u, 32s)};
}
std::vector<ElementMap> downMaps() {
  return {HUX_LAYOUTS(DOWN, 16u, 8u) HUX_LAYOUTS(DOWN, 16s, 8u) HUX_LAYOUTS(DOWN, 32s, 8u)
              DOWN_BY(16s, 8u, C1, 0, quick) DOWN_BY(32s, 8u, C1, -1, quick)};
}
#define Range ontoRange
std::vector<ElementMap> ontoRangeMaps(Hux32f vMin, Hux32f vMax) { return {HUX_LAYOUTS(RANGE, 8u, 32f)}; }
#undef Range
#define Range fromRange
std::vector<ElementMap> fromRangeMaps(Hux32f vMin, Hux32f vMax) { return {HUX_LAYOUTS(RANGE, 32f, 8u)}; }
#undef Range

constexpr Hux32f kMax = std::numeric_limits<Hux32f>::max(), kTiny = std::numeric_limits<Hux32f>::denorm_min(),
                 kInf = std::numeric_limits<Hux32f>::infinity(), kNan = std::numeric_limits<Hux32f>::quiet_NaN();

// Narrow ranges far from 0, where the image of an end is coarse; ranges whose extent or factor is infinite or 0.
constexpr std::pair<Hux32f, Hux32f> kRanges[] = {
    {0, 1},           {-1, 1},          {0, 255},           {1, 256},           {0.1f, 0.7f},    {-100, -20},
    {1e6f, 1e6f + 1}, {-1e9f, 5},       {1e7f, 1e7f + 100}, {-1e7f - 9, -1e7f}, {3, 3.0000002f}, {0, kTiny},
    {-kTiny, kTiny},  {1e-38f, 3e-38f}, {-kMax, kMax},      {0, kInf},          {-kInf, 7},      {-kMax, 0},
};

TEST(Scale, FromBytes) {
  Rng rng(1);
  const auto bytes = integers<Hux8u>(rng);
  for (const ElementMap& map : upMaps()) expectShapes(map, rng), expectValues(map, rng, bytes);
  for (const ElementMap& map : ontoRangeMaps(-3, 11.3f)) expectShapes(map, rng);
  for (auto [vMin, vMax] : kRanges)
    for (const ElementMap& map : ontoRangeMaps(vMin, vMax)) expectValues(map, rng, bytes);
}

TEST(Scale, ToBytesFromIntegers) {
  Rng rng(2);
  const auto words = integers<Hux16u>(rng);
  // Both sides of every step of either path.
  auto longs = integers<Hux32s>(rng);
  for (std::int64_t i = 0; i < 4 * 256; ++i)
    for (std::int64_t step : {16843009 / 4, 1 << 22, 0xff0100 / 4})
      for (int d = -40; d <= 40; ++d) longs.push_back(Hux32s(Hux32u(i * step + i * (step == 4210752) / 4 + d)));
  for (const ElementMap& map : downMaps()) {
    expectShapes(map, rng);
    if (map.srcBytes == 2)
      expectValues(map, rng, words);
    else
      expectValues(map, rng, longs);
  }
}

TEST(Scale, ToBytesFromARange) {
  Rng rng(3);
  for (auto [vMin, vMax] : kRanges) {
    SCOPED_TRACE(testing::Message() << "range " << vMin << " to " << vMax);
    auto values = floats<Hux32f>(rng, -300, 300, 1);
    for (Hux32f end : {vMin, vMax}) addAround(values, end);
    // The range in small steps and around its ties.
    for (int i = 0; i <= 20 * 255; ++i) addAround(values, vMin + (vMax - vMin) * Hux32f(i) / (20 * 255));
    for (const ElementMap& map : fromRangeMaps(vMin, vMax)) expectValues(map, rng, values);
  }
  // Ranges of a few numbers, far out, where the image of either end may miss its place.
  for (int i = 0; i < 300; ++i) {
    const Hux32f vMin = Hux32f(between(rng, -1000000, 1000000)) * 64;
    const Hux32f vMax = vMin + Hux32f(between(rng, 8, 80));
    std::vector<Hux32f> values;
    for (int d = -16; d <= 96; d += 2) addAround(values, vMin + Hux32f(d));
    if (vMax > vMin) expectValues(fromRangeMaps(vMin, vMax)[0], rng, values);
  }
  for (const ElementMap& map : fromRangeMaps(-300, 280)) expectShapes(map, rng);
  for (const ElementMap& map : fromRangeMaps(1e8f, 1e8f + 8)) expectShapes(map, rng);
}

TEST(Scale, ChecksTheRangeThenPointersSizeSteps) {
  Rng rng(4);
  for (const ElementMap& map : upMaps()) expectOrder(map, rng);
  for (const ElementMap& map : downMaps()) expectOrder(map, rng);
  for (const ElementMap& map : ontoRangeMaps(0, 1)) expectOrder(map, rng);
  for (const ElementMap& map : fromRangeMaps(0, 1)) expectOrder(map, rng);
  for (auto [vMin, vMax] :
       {std::pair{1.0f, 1.0f}, {1.0f, 0.5f}, {kNan, 1.0f}, {0.0f, kNan}, {kInf, kInf}, {0.0f, -0.0f}})
    for (const auto& maps : {ontoRangeMaps(vMin, vMax), fromRangeMaps(vMin, vMax)})
      for (const ElementMap& map : maps)
        EXPECT_EQ(map.call(nullptr, 0, nullptr, 0, {0, 0}), huxStsBadScaleRange) << map.name;
}

}  // namespace
}  // namespace hux::test
