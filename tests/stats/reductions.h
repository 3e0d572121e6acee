// What the tests of sums and norms share: members whose elements are read as doubles, whatever their type, and images
// on which accumulators differ.
#pragma once

#include <bit>
#include <cmath>
#include <functional>

#include "support/forms.h"

namespace hux::test {

// Members of one or of two images; some take a hint.
using OneFn = HuxStatus(const void*, int, HuxiSize, void*, HuxAccuracyHint);
using TwoFn = HuxStatus(const void*, int, const void*, int, HuxiSize, void*, HuxAccuracyHint);

// Elements of a region of an image seen as bytes.
struct Elements {
  const Image& image;
  const Form& form;
  double operator()(int x, int y, int c) const {
    return numberAt(form.type, image.bytes(0, y) + x * form.pixelBytes() + c * form.elementBytes);
  }
};

// Fills an image, but for what lies in between the elements, in one of several manners: anything, the largest
// magnitudes, few bits; floats of much and of little range, and among them some that spoil a sum.
inline void scatter(Rng& rng, const Image& image, Number type, int kind) {
  const int bytes = bytesOf(type), n = image.width() * image.pixelBytes() / bytes;
  const auto random = [&](int scale) { return std::ldexp(Hux32f(Hux64s(rng())), between(rng, -scale, scale) - 63); };
  const auto number = [&](int y) -> Hux32f {
    switch (kind % 8) {
      case 0:
        return Hux32f(Hux16s(rng())) / 64;
      case 1:
        return rng() % 2 ? std::fabs(random(0)) : std::ldexp(1 + std::fabs(random(0)), -15);
      case 2:
        return std::ldexp(random(0), y ? 12 : -12);
      case 3:
        return random(30);
      case 4:
        return Hux32f(rng() % (1u << 21));
      case 5:
        return rng() % 500 ? random(0) : std::ldexp(random(0), 20);
      case 6:
        return std::bit_cast<Hux32f>(Hux32u(rng() % (rng() % 2 ? 1u << 24 : 0x7f000000u)));
      default:
        return rng() % 100 ? std::fabs(random(1)) : std::bit_cast<Hux32f>(Hux32u(rng() | 0x7f800000u));
    }
  };
  forPixels({n, image.height()}, [&](int x, int y) {
    Hux32u bits = Hux32u(kind % 4 == 0 ? rng() : kind % 4 == 1 ? ~0u : kind % 4 == 2 ? 0x80008000u : rng() % 4);
    if (type == Number::k32f) bits = std::bit_cast<Hux32u>(number(y));
    // Rows that cancel each other show what was lost of the first one.
    if (type == Number::k32f && kind % 8 == 2 && y > 1 && y % 2 == 0)
      std::memcpy(&bits, image.bytes(0, y - 1) + x * bytes, sizeof bits), bits ^= 0x80000000u;
    std::memcpy(image.bytes(0, y) + x * bytes, &bits, std::size_t(bytes));
  });
}

// An integer total as the library converts it: 32 bits, signed, whatever the total.
inline double wrapped(std::int64_t total) { return Hux32s(Hux32u(total)); }

// term(x, y) of all pixels in double precision, in the order of the pixels; `split` is for one channel.
template <class Term>
double orderedSum(HuxiSize roi, bool split, Term term) {
  double sums[2] = {};
  forPixels(roi, [&](int x, int y) { sums[split && x % 2] += term(x, y); });
  return split ? sums[1] + sums[0] : sums[0];
}
// The same of integers, 32 bits of each `block` pixels of a row.
template <class Term>
double blockSum(HuxiSize roi, int block, Term term) {
  double sum = 0;
  for (int y = 0; y < roi.height; ++y)
    for (int x = 0; x < roi.width;) {
      std::int64_t total = 0;
      do total += std::int64_t(term(x, y));
      while (++x < roi.width && x % block != 0);
      sum += wrapped(total);
    }
  return sum;
}

inline testing::AssertionResult alike(double actual, double expected) {
  if (std::bit_cast<Hux64s>(actual) == std::bit_cast<Hux64s>(expected) || (actual != actual && expected != expected))
    return testing::AssertionSuccess();
  return testing::AssertionFailure() << std::hexfloat << actual << " instead of " << expected;
}

// Shapes of images: narrow ones through the lengths of vectors, and some of many pixels.
template <class Body>
void forRegions(Rng& rng, Body body) {
  for (int width = 1; width < 150; width += between(rng, 1, 2)) body(width, between(rng, 1, 4));
  for (int width : {511, 512, 520, 1301}) body(width, 40);
  body(256, 300), body(20, 900);
}

}  // namespace hux::test
