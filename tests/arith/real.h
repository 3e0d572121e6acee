// The real members of Add, Sub, Mul, Div and their forms with a constant, and operands that find their corners.
#pragma once

#include <climits>

#include "arith/operation.h"
#include "support/failing_malloc.h"

namespace hux::test {

enum class Op { Add, Sub, Mul, Div };

// The functions of an operation, a type and a layout: of two images, and of a constant and an image.
struct Member : Form {
  Op op;
  Operation ofImages, ofConstant;
  bool equalChannels() const { return ofImages.equalChannels(); }

  HuxStatus images(const void* a, int aStep, const void* b, int bStep, void* d, int dStep, HuxiSize roi,
                   int scale) const {
    return ofImages.call(a, aStep, b, bStep, d, dStep, roi, &scale);
  }
  HuxStatus imagesInPlace(const void* a, int aStep, void* d, int dStep, HuxiSize roi, int scale) const {
    return ofImages.inPlace(a, aStep, nullptr, 0, d, dStep, roi, &scale);
  }
  HuxStatus constant(const void* b, int bStep, const void* pixel, void* d, int dStep, HuxiSize roi, int scale) const {
    return ofConstant.call(pixel, 0, b, bStep, d, dStep, roi, &scale);
  }
  HuxStatus constantInPlace(const void* pixel, void* d, int dStep, HuxiSize roi, int scale) const {
    return ofConstant.inPlace(pixel, 0, nullptr, 0, d, dStep, roi, &scale);
  }
};

#define HUX_MEMBER(op, t, l, s) \
  Member{HUX_NAMED(op, t, l), Op::op, HUX_OF_IMAGES(op, t, l, s), HUX_OF_CONSTANT(op##C, t, l, s)},
#define HUX_OPERATIONS(t, l, s) \
  HUX_MEMBER(Add, t, l, s) HUX_MEMBER(Sub, t, l, s) HUX_MEMBER(Mul, t, l, s) HUX_MEMBER(Div, t, l, s)
#define HUX_INTEGERS(t, l) HUX_OPERATIONS(t, l, Sfs)
#define HUX_FLOATS(t, l) HUX_OPERATIONS(t, l, )

inline std::vector<Member> allMembers() {
  return {
    HUX_STAMP(HUX_INTEGERS, (8u, 16s, 16u), (C1, C3, C4, AC4))
    HUX_STAMP(HUX_FLOATS, (32f), (C1, C3, C4, AC4))
  };
}
// Those of the type T that do `op`, or all but those.
template <class T>
std::vector<Member> members(Op op, bool but = false) {
  constexpr Number number = std::is_same_v<T, Hux8u>    ? Number::k8u
                            : std::is_same_v<T, Hux16s> ? Number::k16s
                            : std::is_same_v<T, Hux16u> ? Number::k16u
                                                        : Number::k32f;
  std::vector<Member> list = allMembers();
  std::erase_if(list, [&](const Member& m) { return m.type != number || (m.op == op) == but; });
  return list;
}

// Around every scale factor at which some type changes its way.
inline const std::vector<int> kScaleFactors = [] {
  std::vector<int> v{INT_MIN, INT_MIN + 1, -128, -127, -126, -100, 100, 127, 148, 149, 150, INT_MAX};
  for (int s = -33; s <= 34; ++s) v.push_back(s);
  return v;
}();

template <class T>
T operand(Rng& rng) {
  using Limits = std::numeric_limits<T>;
  if constexpr (std::is_floating_point_v<T>) {
    const T corners[] = {0, -0.0f, 1, -1, Limits::infinity(), -Limits::infinity(), Limits::max(), Limits::denorm_min()};
    if (between(rng, 0, 5) == 0) return corners[between(rng, 0, 7)];
    return std::ldexp(T(between(rng, -99999, 99999)), between(rng, -40, 40));
  } else {
    const int kind = between(rng, 0, 3);
    if (kind == 0) return T(rng());
    if (kind == 1) return T(between(rng, 0, 4));
    if (kind == 2) return T(Limits::max() / 2 + between(rng, -3, 3));
    return T((between(rng, 0, 1) ? Limits::max() : Limits::min()) + between(rng, -2, 2));
  }
}

// Calls the four functions over all shapes with scale factors from `scales`, and compares what they write with
// images(first, second, scaleFactor) and constant(constant, source, scaleFactor). status(denominators, constants), with
// the one that is not meant null, is the expected status; an error leaves the destination alone, but for the one family
// that carries on.
template <class T, class Images, class Constant, class Status>
void compareWith(const Member& m, unsigned seed, const std::vector<int>& scales, Images images, Constant constant,
                 Status expectedStatus) {
  SCOPED_TRACE(m.name);
  Rng rng(seed);
  forShapes(rng, 150, [&](int width, int height, Place place) {
    const auto image = [&] {
      const Image i(rng, width, height, m.pixelBytes(), place);
      i.fill<T>([&] { return operand<T>(rng); });
      return i;
    };
    const int scale = scales[std::size_t(between(rng, 0, int(scales.size()) - 1))];
    SCOPED_TRACE("scale factor " + std::to_string(scale));
    const Image a = image(), b = image(), d = image();
    const Image c(rng, 1, 1, int(m.touchedBytes()), Place::kEnd);  // what lies behind the constants cannot be read
    const bool equal = between(rng, 0, 2) == 0;
    c.fill<T>([&, first = operand<T>(rng)] { return equal ? first : operand<T>(rng); });
    const auto expect = [&](const Image& base, auto element) {
      Image e = base;
      for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
          for (int k = 0; k < m.layout.touched; ++k) e.set<T>(x, y, k, element(x, y, k));
      return e;
    };
    const auto ofImages = [&](int x, int y, int k) { return images(a.get<T>(x, y, k), b.get<T>(x, y, k), scale); };
    const auto ofConstant = [&](int x, int y, int k) { return constant(c.get<T>(0, 0, k), b.get<T>(x, y, k), scale); };
    const auto run = [&](const Image& base, const Image* denominators, auto element, auto call) {
      const Image actual = base;
      const HuxStatus status = call(actual);
      ASSERT_EQ(status, expectedStatus(denominators, denominators ? nullptr : &c));
      const bool written = status >= 0 || (sizeof(T) == 1 && m.equalChannels());
      ASSERT_TRUE(same(actual, written ? expect(base, element) : base));
    };
    run(d, &a, ofImages, [&](const Image& dst) {
      return m.images(a.bytes(), a.step(), b.bytes(), b.step(), dst.bytes(), dst.step(), d.size(), scale);
    });
    run(b, &a, ofImages, [&](const Image& dst) {
      return m.imagesInPlace(a.bytes(), a.step(), dst.bytes(), dst.step(), d.size(), scale);
    });
    run(d, nullptr, ofConstant, [&](const Image& dst) {
      return m.constant(b.bytes(), b.step(), c.bytes(), dst.bytes(), dst.step(), d.size(), scale);
    });
    run(b, nullptr, ofConstant,
        [&](const Image& dst) { return m.constantInPlace(c.bytes(), dst.bytes(), dst.step(), d.size(), scale); });
  });
}

// All pairs of two lists of elements, as one image each: the first runs along the rows.
template <class T>
struct Pairs {
  std::vector<T> first, second, result;
  HuxiSize size;
  explicit Pairs(const std::vector<T>& values) : size{int(values.size()), int(values.size())} {
    for (T b : values)
      for (T a : values) first.push_back(a), second.push_back(b);
    result.resize(first.size());
  }
  int step() const { return size.width * int(sizeof(T)); }
};

// All bytes; of longer integers the corners, the powers of two and a sample.
template <class T>
std::vector<T> richValues() {
  std::vector<T> values;
  if constexpr (sizeof(T) == 1) {
    for (int v = 0; v < 256; ++v) values.push_back(T(v));
  } else {
    Rng rng(5);
    for (int v = -3; v <= 3; ++v)
      for (int at : {0, 32768, -32768, 65536, 256, 16384, 21845}) values.push_back(T(at + v));
    for (int i = 0; i < 140; ++i) values.push_back(T(rng() >> between(rng, 48, 62)));
  }
  return values;
}

}  // namespace hux::test
