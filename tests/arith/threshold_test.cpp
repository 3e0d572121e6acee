// Threshold in all its forms, against the definition, element by element.
#include "arith/samples.h"
#include "huxi_arith.h"
#include "support/forms.h"

namespace hux::test {
namespace {

// The arguments behind the region. `lower` is the only threshold of the single-sided forms.
using V = const void*;
struct Args {
  V lower, lowerValue, upper, upperValue;
  HuxCmpOp op = huxCmpLess;
};

enum class Kind { kAbove, kBelow, kByOperator, kOutside };

using ThresholdFn = HuxStatus(const void*, int, void*, int, HuxiSize, V, V, V, V);
struct Member : Form {
  Kind kind;
  bool ownValue;  // a replaced element takes a value of its own, not the threshold
  bool inPlace;
  ThresholdFn* threshold;

  // The operator comes behind what a form has of thresholds and values.
  HuxStatus call(V src, int srcStep, void* dst, int dstStep, HuxiSize roi, const Args& a) const {
    const bool byOperator = kind == Kind::kByOperator;
    return threshold(src, srcStep, dst, dstStep, roi, a.lower, byOperator && !ownValue ? &a.op : a.lowerValue,
                     byOperator ? &a.op : a.upper, a.upperValue);
  }
  HuxCmpOp op(const Args& a) const {
    return kind == Kind::kAbove ? huxCmpGreater : kind == Kind::kBelow ? huxCmpLess : a.op;
  }
  V at(V constants, int c) const { return static_cast<const std::byte*>(constants) + c * elementBytes; }
  // Above and below as the family's definition has them. One-channel floats go by their patterns.
  bool above(V e, V t) const {
    if (layout.stride > 1 || type != Number::k32f) return numberAt(type, e) > numberAt(type, t);
    return valueAt<Hux32f>(t) >= 0 ? valueAt<Hux32s>(e) > valueAt<Hux32s>(t) : valueAt<Hux32u>(e) < valueAt<Hux32u>(t);
  }
  bool below(V e, V t) const {
    if (layout.stride > 1 || type != Number::k32f) return !(numberAt(type, e) >= numberAt(type, t));
    return valueAt<Hux32f>(t) >= 0 ? valueAt<Hux32s>(e) < valueAt<Hux32s>(t) : valueAt<Hux32u>(e) > valueAt<Hux32u>(t);
  }
  // One element of channel c after the call.
  void replace(std::byte* e, const Args& a, int c) const {
    V by = nullptr;
    if (kind == Kind::kOutside)
      by = above(e, at(a.upper, c)) ? a.upperValue : below(e, at(a.lower, c)) ? a.lowerValue : nullptr;
    else if (op(a) == huxCmpGreater ? above(e, at(a.lower, c)) : below(e, at(a.lower, c)))
      by = ownValue ? a.lowerValue : a.lower;
    if (by) std::memcpy(e, at(by, c), std::size_t(elementBytes));
  }
  // Whether the thresholds of all colour channels are.
  bool inOrder(const Args& a) const {
    for (int c = 0; c < layout.touched; ++c)
      if (!(numberAt(type, at(a.upper, c)) >= numberAt(type, at(a.lower, c)))) return false;
    return true;
  }
  // The elements, thresholds and values worth trying, one behind the other.
  std::vector<std::byte> samples() const {
    return withElement(*this, [](auto zero) { return test::samples<decltype(zero)>(); });
  }
};

#define MEMBERS(name, kind, own, t, l)                                                                 \
  Member{HUX_FORM(t, l), Kind::kind, own, false, as<ThresholdFn, huxiThreshold##name##_##t##_##l##R>}, \
      Member{HUX_FORM(t, l), Kind::kind, own, true,                                                    \
             as<ThresholdFn, huxiThreshold##name##_##t##_##l##IR, 2, 3, 4, 5, 6, 7, 8>},
#define EACH(t, l)                       \
  MEMBERS(, kByOperator, false, t, l)    \
  MEMBERS(_GT, kAbove, false, t, l)      \
  MEMBERS(_LT, kBelow, false, t, l)      \
  MEMBERS(_Val, kByOperator, true, t, l) \
  MEMBERS(_LTValGTVal, kOutside, true, t, l)
#define EACH_OF_FOUR(t, l) MEMBERS(_GTVal, kAbove, true, t, l) MEMBERS(_LTVal, kBelow, true, t, l)
std::vector<Member> members() {
  return {
    HUX_STAMP(EACH, (8u, 16s, 32f), (C1, C3, AC4))
    HUX_STAMP(EACH_OF_FOUR, (8u, 16s, 32f), (C1, C3, C4, AC4))
  };
}
std::string name(const Member& f) {
  return f.name + ", kind " + std::to_string(int(f.kind)) + (f.ownValue ? " value" : "") +
         (f.inPlace ? " in place" : "");
}

// The constants of a call are the rows of an image one pixel wide, at any address and with nothing readable behind the
// last colour channel of `lower`.
Args argsIn(const Image& constants, HuxCmpOp op) {
  return {constants.bytes(0, 3), constants.bytes(0, 2), constants.bytes(0, 1), constants.bytes(0, 0), op};
}

// Runs the form and compares with the definition. Steps are rounded down to whole elements.
void expectReplaced(const Member& f, const Image& src, int srcStep, const Image& dst, const Args& args) {
  const bool allowed = f.kind != Kind::kOutside || f.inOrder(args);
  const Image expected = dst, before = src;
  const std::ptrdiff_t from = f.inPlace ? dst.step() : srcStep, to = dst.step();
  for (int y = 0; y < dst.height() && allowed; ++y)
    for (int x = 0; x < dst.width() * f.layout.stride; ++x) {
      if (x % f.layout.stride >= f.layout.touched) continue;
      std::byte* element = expected.bytes() + y * (to - to % f.elementBytes) + x * f.elementBytes;
      if (!f.inPlace)
        std::memcpy(element, src.bytes() + y * (from - from % f.elementBytes) + x * f.elementBytes,
                    std::size_t(f.elementBytes));
      f.replace(element, args, x % f.layout.stride);
    }
  ASSERT_EQ(f.call(src.bytes(), srcStep, dst.bytes(), dst.step(), dst.size(), args),
            allowed ? huxStsOk : huxStsBadThreshold);
  ASSERT_TRUE(same(dst, expected));
  ASSERT_TRUE(same(src, before));
}

// Every element against every threshold that matters: all of 8u, and the edges of the others.
TEST(Threshold, SamplesAgainstSamples) {
  Rng rng(1);
  for (const Member& f : members()) {
    SCOPED_TRACE(name(f));
    const auto values = f.samples();
    const int n = int(values.size()) / f.elementBytes;
    const auto put = [&](const Image& image, int x, int y, int c, int sample) {
      std::memcpy(image.bytes(x, y) + c * f.elementBytes, values.data() + sample % n * f.elementBytes,
                  std::size_t(f.elementBytes));
    };
    const Image pixels(rng, n, 1, f.pixelBytes()), constants(rng, 1, 4, f.elementBytes * f.layout.touched, Place::kEnd);
    for (int x = 0; x < n; ++x)
      for (int c = 0; c < f.layout.stride; ++c) put(pixels, x, 0, c, x + 5 * c);
    for (int i = 0; i < n; ++i)
      for (int j = f.kind == Kind::kOutside ? 0 : n - 1; j < n; j += n == 256 ? 15 : 1) {
        for (int c = 0; c < f.layout.touched; ++c) {
          put(constants, 0, 3, c, i + 3 * c), put(constants, 0, 1, c, j + 3 * c);
          put(constants, 0, 2, c, between(rng, 0, n)), put(constants, 0, 0, c, between(rng, 0, n));
        }
        for (HuxCmpOp op : {huxCmpLess, huxCmpGreater}) {
          if (f.kind != Kind::kByOperator && op == huxCmpGreater) continue;
          const Image dst = pixels;
          expectReplaced(f, pixels, pixels.step(), dst, argsIn(constants, op));
          ASSERT_FALSE(testing::Test::HasFatalFailure()) << "threshold " << i << ", " << j << ", op " << op;
        }
      }
  }
}

TEST(Threshold, ShapesAndSteps) {
  Rng rng(2);
  for (const Member& f : members()) {
    SCOPED_TRACE(name(f));
    const auto values = f.samples();
    const auto scatter = [&](const Image& image) {
      for (int y = 0; y < image.height(); ++y)
        for (std::byte* e = image.bytes(0, y); e < image.bytes(image.width(), y);
             e += between(rng, 1, 2) * f.elementBytes)
          std::memcpy(e,
                      &values[std::size_t(between(rng, 0, int(values.size()) / f.elementBytes - 1) * f.elementBytes)],
                      std::size_t(f.elementBytes));
    };
    forShapes(rng, 200, [&](int width, int height, Place place) {
      const int pixelBytes = f.pixelBytes();
      const Image src(rng, width, height, pixelBytes, place), dst(rng, width, height, pixelBytes, place);
      const Image constants(rng, 1, 4, f.elementBytes * f.layout.touched, Place::kEnd);
      const Args args = argsIn(constants, width % 2 ? huxCmpLess : huxCmpGreater);
      scatter(src), scatter(dst);
      do scatter(constants);
      while (!f.inOrder(args));
      // A step below an element is one of 0.
      expectReplaced(f, src, width % 7 == 0 ? 1 : src.step(), dst, args);
    });
  }
}

TEST(Threshold, ChecksInOrder) {
  Rng rng(3);
  const Image image(rng, 8, 4, 16);
  const HuxCmpOp refused[] = {huxCmpLessEq, huxCmpEq, huxCmpGreaterEq, -1, 5};
  int turn = 0;
  for (const Member& f : members()) {
    SCOPED_TRACE(name(f));
    unsigned char constants[4][16] = {};
    Args args = {constants[0], constants[1], constants[2], constants[3], huxCmpGreater};
    Arguments a(image);
    CheckOrder order([&] { return f.call(a.a, a.aStep, a.d, a.dStep, a.roi, args); });
    if (f.kind == Kind::kByOperator) order.breaks(huxStsInternal, args.op, refused[turn++ % 5]);
    order.in(a, "adzAD", f.inPlace ? "aA" : "");
    if (f.layout.stride > 1) {
      order.nulls(args.lower);
      if (f.ownValue) order.nulls(args.lowerValue);
      if (f.kind == Kind::kOutside) order.nulls(args.upper, args.upperValue);
    }
    if (f.kind == Kind::kOutside)
      order.breaks(huxStsBadThreshold, constants[0][(f.layout.touched - 1) * f.elementBytes], 1);  // just above 0
    order.run(image);
  }
}

}  // namespace
}  // namespace hux::test
