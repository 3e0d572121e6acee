// Threshold in all its forms, against the definition, element by element.
#include "arith/samples.h"
#include "core/stamp.h"
#include "huxi_arith.h"
#include "support/image.h"
#include "support/order.h"

namespace hux::test {
namespace {

// The arguments behind the region. `lower` is the only threshold of the single-sided forms.
struct Args {
  const void* lower = nullptr;
  const void* lowerValue = nullptr;
  const void* upper = nullptr;
  const void* upperValue = nullptr;
  HuxCmpOp op = huxCmpLess;
};

enum class Kind { kAbove, kBelow, kByOperator, kOutside };

struct Form {
  std::string name;
  Kind kind;
  bool ownValue;  // a replaced element takes a value of its own, not the threshold
  bool inPlace;
  int bytes, channels, colours;
  HuxStatus (*call)(const void*, int, void*, int, HuxiSize, const Args&);
  // One element of channel c after the call.
  void (*replace)(const Form&, std::byte* element, const Args&, int c);
  bool (*inOrder)(const Form&, const Args&);  // the thresholds of all colour channels
  // The elements, thresholds and values worth trying, one behind the other.
  std::vector<std::byte> (*samples)();

  HuxCmpOp op(const Args& a) const {
    return kind == Kind::kAbove ? huxCmpGreater : kind == Kind::kBelow ? huxCmpLess : a.op;
  }
};

// Above and below as the family's definition has them. One-channel floats go by their patterns.
template <class T, bool ByPattern>
bool above(T e, T t) {
  if constexpr (!ByPattern) return e > t;
  if (t >= 0) return std::bit_cast<Hux32s>(Hux32f(e)) > std::bit_cast<Hux32s>(Hux32f(t));
  return std::bit_cast<Hux32u>(Hux32f(e)) < std::bit_cast<Hux32u>(Hux32f(t));
}
template <class T, bool ByPattern>
bool below(T e, T t) {
  if constexpr (!ByPattern) return !(e >= t);
  if (t >= 0) return std::bit_cast<Hux32s>(Hux32f(e)) < std::bit_cast<Hux32s>(Hux32f(t));
  return std::bit_cast<Hux32u>(Hux32f(e)) > std::bit_cast<Hux32u>(Hux32f(t));
}

template <class T, bool ByPattern>
void replace(const Form& f, std::byte* element, const Args& a, int c) {
  const T e = at<T>(element), lower = at<T>(a.lower, c);
  const void* by = nullptr;
  if (f.kind == Kind::kOutside)
    by = above<T, ByPattern>(e, at<T>(a.upper, c)) ? a.upperValue
         : below<T, ByPattern>(e, lower)           ? a.lowerValue
                                                   : nullptr;
  else if (f.op(a) == huxCmpGreater ? above<T, ByPattern>(e, lower) : below<T, ByPattern>(e, lower))
    by = f.ownValue ? a.lowerValue : a.lower;
  if (by) std::memcpy(element, static_cast<const std::byte*>(by) + c * f.bytes, std::size_t(f.bytes));
}
template <class T>
bool inOrder(const Form& f, const Args& a) {
  for (int c = 0; c < f.colours; ++c)
    if (!(at<T>(a.upper, c) >= at<T>(a.lower, c))) return false;
  return true;
}

#define FORM(name, suffix, kind, own, inPlace, t, l, ...)                                                       \
  Form{#name "_" #t "_" #l #suffix,                                                                             \
       kind,                                                                                                    \
       own,                                                                                                     \
       inPlace,                                                                                                 \
       sizeof(Hux##t),                                                                                          \
       l::channels,                                                                                             \
       l::processed,                                                                                            \
       []([[maybe_unused]] const void* src, [[maybe_unused]] int srcStep, void* dst, int dstStep, HuxiSize roi, \
          const Args& a) { return huxiThreshold##name##_##t##_##l##suffix(__VA_ARGS__); },                      \
       replace < Hux##t,                                                                                        \
       l::channels == 1 && std::is_same_v < Hux##t,                                                             \
       Hux32f >>                                                                                                \
       , inOrder<Hux##t>, samples<Hux##t>},
#define FORMS(name, kind, own, t, l, ...)                                                                             \
  FORM(name, R, kind, own, false, t, l, static_cast<const Hux##t*>(src), srcStep, static_cast<Hux##t*>(dst), dstStep, \
       roi, __VA_ARGS__)                                                                                              \
  FORM(name, IR, kind, own, true, t, l, static_cast<Hux##t*>(dst), dstStep, roi, __VA_ARGS__)
#define CONSTANT(t, l, which) constant<l, Hux##t>(a.which)
#define EACH(t, l)                                                                                    \
  FORMS(, Kind::kByOperator, false, t, l, CONSTANT(t, l, lower), a.op)                                \
  FORMS(_GT, Kind::kAbove, false, t, l, CONSTANT(t, l, lower))                                        \
  FORMS(_LT, Kind::kBelow, false, t, l, CONSTANT(t, l, lower))                                        \
  FORMS(_Val, Kind::kByOperator, true, t, l, CONSTANT(t, l, lower), CONSTANT(t, l, lowerValue), a.op) \
  FORMS(_LTValGTVal, Kind::kOutside, true, t, l, CONSTANT(t, l, lower), CONSTANT(t, l, lowerValue),   \
        CONSTANT(t, l, upper), CONSTANT(t, l, upperValue))
#define EACH_OF_FOUR(t, l)                                                                   \
  FORMS(_GTVal, Kind::kAbove, true, t, l, CONSTANT(t, l, lower), CONSTANT(t, l, lowerValue)) \
  FORMS(_LTVal, Kind::kBelow, true, t, l, CONSTANT(t, l, lower), CONSTANT(t, l, lowerValue))

std::vector<Form> forms() {
  return {
    HUX_STAMP(EACH, (8u, 16s, 32f), (C1, C3, AC4))
    HUX_STAMP(EACH_OF_FOUR, (8u, 16s, 32f), (C1, C3, C4, AC4))
  };
}

// The constants of a call are the rows of an image one pixel wide, at any address and with nothing readable behind the
// last colour channel of `lower`.
Args argsIn(const Image& constants, HuxCmpOp op) {
  return {constants.bytes(0, 3), constants.bytes(0, 2), constants.bytes(0, 1), constants.bytes(0, 0), op};
}

// Runs the form and compares with the definition. Steps are rounded down to whole elements.
void expectReplaced(const Form& f, const Image& src, int srcStep, const Image& dst, const Args& args) {
  const bool allowed = f.kind != Kind::kOutside || f.inOrder(f, args);
  const Image expected = dst, before = src;
  const std::ptrdiff_t from = f.inPlace ? dst.step() : srcStep, to = dst.step();
  for (int y = 0; y < dst.height() && allowed; ++y)
    for (int x = 0; x < dst.width() * f.channels; ++x) {
      if (x % f.channels >= f.colours) continue;
      std::byte* element = expected.bytes() + y * (to - to % f.bytes) + x * f.bytes;
      if (!f.inPlace)
        std::memcpy(element, src.bytes() + y * (from - from % f.bytes) + x * f.bytes, std::size_t(f.bytes));
      f.replace(f, element, args, x % f.channels);
    }
  ASSERT_EQ(f.call(src.bytes(), srcStep, dst.bytes(), dst.step(), dst.size(), args),
            allowed ? huxStsOk : huxStsBadThreshold);
  ASSERT_TRUE(same(dst, expected));
  ASSERT_TRUE(same(src, before));
}

// Every element against every threshold that matters: all of 8u, and the edges of the others.
TEST(Threshold, SamplesAgainstSamples) {
  Rng rng(1);
  for (const Form& f : forms()) {
    SCOPED_TRACE(f.name);
    const auto values = f.samples();
    const int n = int(values.size()) / f.bytes;
    const auto put = [&](const Image& image, int x, int y, int c, int sample) {
      std::memcpy(image.bytes(x, y) + c * f.bytes, values.data() + sample % n * f.bytes, std::size_t(f.bytes));
    };
    const Image pixels(rng, n, 1, f.bytes * f.channels), constants(rng, 1, 4, f.bytes * f.colours, Place::kEnd);
    for (int x = 0; x < n; ++x)
      for (int c = 0; c < f.channels; ++c) put(pixels, x, 0, c, x + 5 * c);
    for (int i = 0; i < n; ++i)
      for (int j = f.kind == Kind::kOutside ? 0 : n - 1; j < n; j += n == 256 ? 15 : 1) {
        for (int c = 0; c < f.colours; ++c) {
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
  for (const Form& f : forms()) {
    SCOPED_TRACE(f.name);
    const auto values = f.samples();
    const auto scatter = [&](const Image& image) {
      for (int y = 0; y < image.height(); ++y)
        for (std::byte* e = image.bytes(0, y); e < image.bytes(image.width(), y); e += between(rng, 1, 2) * f.bytes)
          std::memcpy(e, &values[std::size_t(between(rng, 0, int(values.size()) / f.bytes - 1) * f.bytes)],
                      std::size_t(f.bytes));
    };
    forShapes(rng, 200, [&](int width, int height, Place place) {
      const int pixelBytes = f.bytes * f.channels;
      const Image src(rng, width, height, pixelBytes, place), dst(rng, width, height, pixelBytes, place);
      const Image constants(rng, 1, 4, f.bytes * f.colours, Place::kEnd);
      const Args args = argsIn(constants, width % 2 ? huxCmpLess : huxCmpGreater);
      scatter(src), scatter(dst);
      do scatter(constants);
      while (!f.inOrder(f, args));
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
  for (const Form& f : forms()) {
    SCOPED_TRACE(f.name);
    unsigned char constants[4][16] = {};
    Args args = {constants[0], constants[1], constants[2], constants[3], huxCmpGreater};
    const void* src = image.bytes();
    void* dst = image.bytes();
    int srcStep = 16, dstStep = 16;
    HuxiSize roi = {1, 1};
    CheckOrder order([&] { return f.call(src, srcStep, dst, dstStep, roi, args); });
    if (f.kind == Kind::kByOperator) order.breaks(huxStsInternal, args.op, refused[turn++ % 5]);
    if (!f.inPlace) order.breaks(huxStsNullPtr, src, nullptr);
    order.breaks(huxStsNullPtr, dst, nullptr).breaks(huxStsBadSize, roi.width, 0).breaks(huxStsBadSize, roi.height, -1);
    if (!f.inPlace) order.breaks(huxStsBadStep, srcStep, 0);
    order.breaks(huxStsBadStep, dstStep, -1);
    if (f.channels > 1) {
      order.breaks(huxStsNullPtr, args.lower, nullptr);
      if (f.ownValue) order.breaks(huxStsNullPtr, args.lowerValue, nullptr);
      if (f.kind == Kind::kOutside)
        order.breaks(huxStsNullPtr, args.upper, nullptr).breaks(huxStsNullPtr, args.upperValue, nullptr);
    }
    if (f.kind == Kind::kOutside)
      order.breaks(huxStsBadThreshold, constants[0][(f.colours - 1) * f.bytes], 1);  // just above 0
    order.run(image);
  }
}

}  // namespace
}  // namespace hux::test
