// Convert on vectors, against the definition of one element.
#include <algorithm>

#include "huxs.h"
#include "pixel/element_map.h"

namespace hux::test {
namespace {

constexpr int kScaleFactors[] = {0,     1,     -1,    2,         -2,        8,       31,        -31, 32,
                                 -32,   100,   -100,  -126,      -127,      -128,    149,       150, 151,
                                 -1023, -1024, 1074,  1075,      -150,      126,     127,       128, 4000,
                                 -4000, 4001,  -4001, INT32_MAX, INT32_MIN, 1 << 30, -(1 << 30)};

// A member on images of one row: the steps are not its business.
template <class S, class D, class Call, class Rule>
ElementMap vectorMap(const char* name, Call call, Rule rule) {
  return elementMap<S, D>(
      name, C1, [=](const S* src, int, D* dst, int, HuxiSize roi) { return call(src, dst, roi.width); }, rule);
}

// F is the precision of the scaled value.
template <class F, class D, class S, class Fn>
ElementMap scaledMap(const char* name, Fn* fn, HuxRoundMode mode, int scaleFactor) {
  F s = 1;
  for (int i = 0; i < 5000 && i < std::abs(std::int64_t(scaleFactor)); ++i) s = scaleFactor < 0 ? s * 2 : s / 2;
  return vectorMap<S, D>(
      name, [=](const S* src, D* dst, int len) { return fn(src, dst, len, mode, scaleFactor); },
      [=](S v) { return roundTo<D>(scaleFactor ? F(F(v) * s) : F(v), mode); });
}

std::vector<ElementMap> plainMaps() {
  return {vectorMap<Hux8u, Hux32f>("8u32f", huxsConvert_8u32f, [](Hux8u v) { return Hux32f(v); }),
          vectorMap<Hux32s, Hux32f>("32s32f", huxsConvert_32s32f, [](Hux32s v) { return Hux32f(v); }),
          vectorMap<Hux32s, Hux64f>("32s64f", huxsConvert_32s64f, [](Hux32s v) { return Hux64f(v); })};
}
std::vector<ElementMap> scaledMaps(HuxRoundMode mode, int scaleFactor) {
  return {scaledMap<Hux32f, Hux8u, Hux32f>("32f8u", huxsConvert_32f8u_Sfs, mode, scaleFactor),
          scaledMap<Hux32f, Hux16s, Hux32f>("32f16s", huxsConvert_32f16s_Sfs, mode, scaleFactor),
          scaledMap<Hux64f, Hux32s, Hux32f>("32f32s", huxsConvert_32f32s_Sfs, mode, scaleFactor),
          scaledMap<Hux64f, Hux32s, Hux64f>("64f32s", huxsConvert_64f32s_Sfs, mode, scaleFactor)};
}

TEST(VectorConvert, FromIntegers) {
  Rng rng(1);
  const auto bytes = integers<Hux8u>(rng);
  const auto longs = integers<Hux32s>(rng);
  for (const ElementMap& map : plainMaps()) {
    expectShapes(map, rng, 1);
    if (map.srcBytes == 1)
      expectValues(map, rng, bytes);
    else
      expectValues(map, rng, longs);
  }
}

TEST(VectorConvert, FromFloatsScaled) {
  Rng rng(2);
  for (HuxRoundMode mode : {0, 1, 3})
    for (int scaleFactor : kScaleFactors) {
      SCOPED_TRACE(testing::Message() << "mode " << mode << ", scale factor " << scaleFactor);
      auto singles = floats<Hux32f>(rng, -600, 600, 7);
      auto doubles = floats<Hux64f>(rng, -600, 600, 7);
      // The same values where this scale factor brings them into range.
      const int power = std::clamp(scaleFactor, -2000, 2000);
      for (std::size_t i = 0, n = singles.size(); i < n; ++i) singles.push_back(std::ldexp(singles[i], power));
      for (std::size_t i = 0, n = doubles.size(); i < n; ++i) doubles.push_back(std::ldexp(doubles[i], power));
      for (const ElementMap& map : scaledMaps(mode, scaleFactor))
        if (map.srcBytes == 4)
          expectValues(map, rng, singles);
        else
          expectValues(map, rng, doubles);
    }
  for (const ElementMap& map : scaledMaps(huxRndNear, 1)) expectShapes(map, rng, 1);
}

TEST(VectorConvert, ChecksPointersThenLength) {
  Rng rng(3);
  auto maps = plainMaps();
  for (const ElementMap& map : scaledMaps(huxRndNear, 0)) maps.push_back(map);
  for (const ElementMap& map : maps) {
    SCOPED_TRACE(map.name);
    const Image image(rng, 32, 2, 1);
    const void* src = image.bytes();
    void* dst = image.bytes(0, 1);
    int len = 1;
    CheckOrder([&] {
      return map.call(src, 0, dst, 0, {len, 0});
    })
        .nulls(src, dst)
        .breaks(huxStsBadSize, len, 0)
        .run(image);
  }
}

}  // namespace
}  // namespace hux::test
