// The real members of Add, Sub, Mul, Div and their forms with a constant, and operands that find their corners.
#pragma once

#include <climits>

#include "core/layout.h"
#include "core/stamp.h"
#include "huxi_arith.h"
#include "support/failing_malloc.h"
#include "support/image.h"
#include "support/order.h"

namespace hux::test {

enum class Op { Add, Sub, Mul, Div };

// The four functions of an operation, a type and a layout. A constant comes as a pointer to one element per channel.
template <class T>
struct Member {
  std::string name;
  Op op;
  int channels, processed;
  HuxStatus (*images)(const T*, int, const T*, int, T*, int, HuxiSize, int);
  HuxStatus (*imagesInPlace)(const T*, int, T*, int, HuxiSize, int);
  HuxStatus (*constant)(const T*, int, const T*, T*, int, HuxiSize, int);
  HuxStatus (*constantInPlace)(const T*, T*, int, HuxiSize, int);
  bool equalChannels() const { return channels == processed && channels > 1; }
};

template <class L, class T>
auto constantOf(const T* p) {
  if constexpr (L::channels == 1)
    return *p;
  else
    return p;
}

#define HUX_MEMBER(op, t, l, sfs, SCALE)                                                                          \
  Member<Hux##t>{#op "_" #t "_" #l,                                                                               \
                 Op::op,                                                                                          \
                 l::channels,                                                                                     \
                 l::processed,                                                                                    \
                 [](const Hux##t* a, int aStep, const Hux##t* b, int bStep, Hux##t* d, int dStep, HuxiSize roi,   \
                    [[maybe_unused]] int scale) {                                                                 \
                   return huxi##op##_##t##_##l##R##sfs(a, aStep, b, bStep, d, dStep, roi SCALE);                  \
                 },                                                                                               \
                 [](const Hux##t* a, int aStep, Hux##t* d, int dStep, HuxiSize roi, [[maybe_unused]] int scale) { \
                   return huxi##op##_##t##_##l##IR##sfs(a, aStep, d, dStep, roi SCALE);                           \
                 },                                                                                               \
                 [](const Hux##t* s, int sStep, const Hux##t* c, Hux##t* d, int dStep, HuxiSize roi,              \
                    [[maybe_unused]] int scale) {                                                                 \
                   return huxi##op##C_##t##_##l##R##sfs(s, sStep, constantOf<l>(c), d, dStep, roi SCALE);         \
                 },                                                                                               \
                 [](const Hux##t* c, Hux##t* d, int dStep, HuxiSize roi, [[maybe_unused]] int scale) {            \
                   return huxi##op##C_##t##_##l##IR##sfs(constantOf<l>(c), d, dStep, roi SCALE);                  \
                 }},
#define HUX_SCALE , scale
#define HUX_MEMBER_8u(op, l) HUX_MEMBER(op, 8u, l, Sfs, HUX_SCALE)
#define HUX_MEMBER_16s(op, l) HUX_MEMBER(op, 16s, l, Sfs, HUX_SCALE)
#define HUX_MEMBER_16u(op, l) HUX_MEMBER(op, 16u, l, Sfs, HUX_SCALE)
#define HUX_MEMBER_32f(op, l) HUX_MEMBER(op, 32f, l, , )

template <class T>
std::vector<Member<T>> members() {
  if constexpr (std::is_same_v<T, Hux8u>) return {
      HUX_STAMP(HUX_MEMBER_8u, (Add, Sub, Mul, Div), (C1, C3, C4, AC4))
    };
  else if constexpr (std::is_same_v<T, Hux16s>)
    return { HUX_STAMP(HUX_MEMBER_16s, (Add, Sub, Mul, Div), (C1, C3, C4, AC4)) };
  else if constexpr (std::is_same_v<T, Hux16u>)
    return { HUX_STAMP(HUX_MEMBER_16u, (Add, Sub, Mul, Div), (C1, C3, C4, AC4)) };
  else
    return { HUX_STAMP(HUX_MEMBER_32f, (Add, Sub, Mul, Div), (C1, C3, C4, AC4)) };
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
void compareWith(const Member<T>& m, unsigned seed, const std::vector<int>& scales, Images images, Constant constant,
                 Status expectedStatus) {
  SCOPED_TRACE(m.name);
  Rng rng(seed);
  forShapes(rng, 150, [&](int width, int height, Place place) {
    const auto image = [&] {
      Image i(rng, width, height, m.channels * int(sizeof(T)), place);
      i.fill<T>([&] { return operand<T>(rng); });
      return i;
    };
    const int scale = scales[std::size_t(between(rng, 0, int(scales.size()) - 1))];
    SCOPED_TRACE("scale factor " + std::to_string(scale));
    const Image a = image(), b = image(), d = image();
    Image c(rng, 1, 1, m.processed * int(sizeof(T)), Place::kEnd);  // what lies behind the constants cannot be read
    const bool equal = between(rng, 0, 2) == 0;
    c.fill<T>([&, first = operand<T>(rng)] { return equal ? first : operand<T>(rng); });
    const auto expect = [&](const Image& base, auto element) {
      Image e = base;
      for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
          for (int k = 0; k < m.processed; ++k) e.set<T>(x, y, k, element(x, y, k));
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
      return m.images(a.data<T>(), a.step(), b.data<T>(), b.step(), dst.data<T>(), dst.step(), d.size(), scale);
    });
    run(b, &a, ofImages, [&](const Image& dst) {
      return m.imagesInPlace(a.data<T>(), a.step(), dst.data<T>(), dst.step(), d.size(), scale);
    });
    run(d, nullptr, ofConstant, [&](const Image& dst) {
      return m.constant(b.data<T>(), b.step(), c.data<T>(), dst.data<T>(), dst.step(), d.size(), scale);
    });
    run(b, nullptr, ofConstant,
        [&](const Image& dst) { return m.constantInPlace(c.data<T>(), dst.data<T>(), dst.step(), d.size(), scale); });
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
