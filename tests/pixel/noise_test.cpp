// AddRandUniform_Direct and AddRandGauss_Direct against a generator that makes one number at a time.
#include "huxi_pixel.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>

#include "support/forms.h"

namespace hux::test {
namespace {

struct Generator {
  Hux32u x0, x1 = x0 * 69069 + 1013904243, x2 = x1 * 69069 + 1013904243, lcg = 1131199209, carry = -1u;
  Hux64f next() {
    lcg = lcg * 69069 + 1013904243;
    const Hux32u d = x1 - x2 + carry;
    const bool negative = Hux32s(d) < 0;
    carry = negative ? -1u : 0;
    x2 = x1, x1 = x0, x0 = negative ? d - 18 : d;
    return Hux64f(Hux32s(x0 + lcg));
  }
};

void addTo(Number type, std::byte* element, Hux64f noise) {
  withType(type, [&]<class T>(T) {
    const Hux64f e = numberAt(type, element);
    using Limits = std::numeric_limits<T>;
    const T sum = Limits::is_integer ? T(std::clamp<Hux64f>(e + std::trunc(noise), Limits::lowest(), Limits::max()))
                                     : T(e + noise);
    std::memcpy(element, &sum, sizeof sum);
  });
}

// Arguments of the type of the pixel, from small ones to the ends of integers; in either order, of either sign.
Hux64f anyArgument(Rng& rng, Number type) {
  return withType(type, [&]<class T>(T) -> Hux64f {
    using Limits = std::numeric_limits<T>;
    const int kind = between(rng, 0, 3);
    if constexpr (Limits::is_integer)
      return kind == 0 ? Limits::min() : kind == 1 ? Limits::max() : T(T(rng()) >> (kind == 2 ? 0 : sizeof(T) * 4));
    return std::ldexp(T(between(rng, -1000, 1000)), between(rng, 0, 9) ? -9 : 90);
  });
}

struct NoiseForm : Form {
  bool gauss;
  HuxStatus (*call)(void*, int, HuxiSize, Hux64f, Hux64f, Hux32u*);
};
#define FORM(name, gauss, t, l)                                     \
  NoiseForm{{#name "_" #t "_" #l, sizeof(Hux##t), l, Number::k##t}, \
            gauss,                                                  \
            as<HuxStatus(void*, int, HuxiSize, Hux64f, Hux64f, Hux32u*), huxiAddRand##name##_Direct_##t##_##l##IR>},
#define FORMS(t, l) FORM(Uniform, false, t, l) FORM(Gauss, true, t, l)
std::vector<NoiseForm> forms() {
  return { HUX_STAMP(FORMS, (8u, 16s, 32f), (C1, C3, C4, AC4)) };
}

// Adds the noise as it is defined and returns the seed that is left.
Hux32u addNoise(const NoiseForm& f, const Image& image, HuxiSize roi, Hux64f a, Hux64f b, Hux32u seed) {
  Generator generator{seed};
  for (int y = 0; y < roi.height; ++y) {
    Hux64f pair[2] = {};
    for (int i = 0; i < roi.width * f.layout.touched; ++i) {
      if (!f.gauss) {
        pair[i % 2] = generator.next() * ((b - a) * 2.3283064365387e-10) + (a + b) * 0.5;
      } else if (i % 2 == 0) {
        Hux64f u, v, w;
        do {
          u = generator.next() * 4.656612873077e-10, v = generator.next() * 4.656612873077e-10;
          w = v * v + u * u;
        } while (w >= 1.0 || w == 0);
        const Hux64f factor = b * std::sqrt(std::log(w) * -2.0 / w);
        pair[0] = u * factor + a, pair[1] = v * factor + a;
      }
      const int element = i / f.layout.touched * f.layout.stride + i % f.layout.touched;
      addTo(f.type, image.bytes(0, y) + element * f.elementBytes, pair[i % 2]);
    }
  }
  return generator.x0;
}

TEST(AddRand, FollowsTheDefinition) {
  Rng rng(1);
  for (const NoiseForm& f : forms()) {
    SCOPED_TRACE(f.name);
    Hux32u seed = 0;
    const auto expectNoise = [&](HuxiSize roi, Place place) {
      Image dst = touchedImage(rng, roi.width, roi.height, f.layout, f.elementBytes, place);
      if (f.elementBytes == 4) dst.fill<Hux8u>([&] { return Hux8u(between(rng, 0x38, 0x47)); });  // usual floats
      const Image expected = dst;
      const Hux64f a = anyArgument(rng, f.type), b = anyArgument(rng, f.type);
      const Hux32u seedAfter = addNoise(f, expected, roi, a, b, seed);
      ASSERT_EQ(f.call(dst.bytes(), dst.step(), roi, a, b, &seed), huxStsOk);
      ASSERT_TRUE(same(dst, expected)) << roi.width << " x " << roi.height;
      ASSERT_EQ(seed, seedAfter);
      if (between(rng, 0, 3) == 0) seed = Hux32u(rng());
    };
    forShapes(rng, 600, [&](int width, int height, Place place) { expectNoise({width, height}, place); });
    for (const HuxiSize roi : {HuxiSize{1, 700}, HuxiSize{256, 16}, HuxiSize{1031, 41}}) expectNoise(roi, Place::kEnd);
  }
}

TEST(AddRand, ChecksPointersSizeStepAndKeepsTheSeed) {
  Rng rng(2);
  for (const NoiseForm& f : forms()) {
    SCOPED_TRACE(f.name);
    const Image image(rng, 4, 4, 16);
    void* dst = image.bytes();
    int step = image.step();
    HuxiSize roi = {1, 2};
    Hux32u seed = 7;
    Hux32u* pSeed = &seed;
    CheckOrder([&] {
      const HuxStatus status = f.call(dst, step, roi, 1, 2, pSeed);
      EXPECT_EQ(status == huxStsOk, seed != 7);
      return status;
    })
        .nulls(dst, pSeed)
        .sizes(roi)
        .steps(step)
        .run(image);
  }
}

}  // namespace
}  // namespace hux::test
