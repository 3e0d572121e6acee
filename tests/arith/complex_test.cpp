// The complex functions of images and of vectors, every member against the definition.
#include "arith/operation.h"
#include "support/complex_reference.h"
#include "support/failing_malloc.h"

namespace hux::test {
namespace {

struct Member : Operation {
  Op op;
  // Fills an image, and sets what a call should write; where one NaN stands for another the actual one is taken over.
  void (*fill)(Rng&, const Image&);
  void (*expect)(const Member&, const Image& src1, const Image& src2, const Image& dst, int scaleFactor, bool& warned,
                 const Image& actual);

  bool lengthFirst = false;

  bool constant() const { return first == First::kConstant; }
  bool widthFirst() const { return !constant() && layout.stride == 3; }
};

template <class C>
void expectImage(const Member& m, const Image& src1, const Image& src2, const Image& dst, int scaleFactor, bool& warned,
                 const Image& actual) {
  const Way way = m.op == Op::kDivC && (sizeof(C) > 4 || m.layout.stride == 1) ? Way::kReciprocal : Way::kDivide;
  forElements(dst.size(), m.layout.touched, [&](int x, int y, int c) {
    const C a = m.constant() ? src1.get<C>(c, 0) : src1.get<C>(x, y, c);
    const C result = reference(m.op, a, src2.get<C>(x, y, c), scaleFactor, way, warned);
    const C got = actual.get<C>(x, y, c);
    dst.set(x, y, c, alike(result, got) ? got : result);
  });
}

template <class C>
void fillImage(Rng& rng, const Image& image) {
  image.fill<C>([&] { return anyComplex<C>(rng); });
}

#define OF(kind, t, op, l, s) Member{HUX_OF_##kind(op, t, l, s), Op::k##op, fillImage<Hux##t>, expectImage<Hux##t>},
#define FORMS(t, l, s)     \
  OF(IMAGES, t, Add, l, s) \
  OF(IMAGES, t, Sub, l, s) \
  OF(IMAGES, t, Mul, l, s) \
  OF(IMAGES, t, Div, l, s) \
  OF(CONSTANT, t, AddC, l, s) OF(CONSTANT, t, SubC, l, s) OF(CONSTANT, t, MulC, l, s) OF(CONSTANT, t, DivC, l, s)
#define INTEGER_FORMS(t, l) FORMS(t, l, Sfs)
#define FLOAT_FORMS(t, l) FORMS(t, l, )
#define LINES(kind, t, op, s, i, ...)                                    \
  Member{HUX_LINES_OF_##kind(op, t, s, i), Op::k##op, fillImage<Hux##t>, \
         expectImage<Hux##t> __VA_OPT__(, ) __VA_ARGS__},
#define LINES_OF_TYPES(op, first)           \
  LINES(IMAGES, 16sc, op, _Sfs, Sfs, first) \
  LINES(IMAGES, 32sc, op, _Sfs, Sfs)        \
  LINES(IMAGES, 32fc, op, , , first)        \
  LINES(CONSTANT, 16sc, op##C, _Sfs, Sfs) LINES(CONSTANT, 32sc, op##C, _Sfs, Sfs) LINES(CONSTANT, 32fc, op##C, , )
#define OF_64FC(op, first, call, ...)                                                                 \
  Member{{{#op "_64fc", int(sizeof(Hux64fc)), C1}, First::k##first, call, onLine<__VA_ARGS__>, true}, \
         Op::k##op,                                                                                   \
         fillImage<Hux64fc>,                                                                          \
         expectImage<Hux64fc>},
const Member kMembers[] = {
    HUX_STAMP(INTEGER_FORMS, (16sc, 32sc), (C1, C3, AC4)) HUX_STAMP(FLOAT_FORMS, (32fc), (C1, C3, AC4))
        LINES_OF_TYPES(Add, true) LINES_OF_TYPES(Sub, true) LINES_OF_TYPES(Mul, false)
            LINES(IMAGES, 16sc, Div, _Sfs, Sfs) LINES(IMAGES, 32fc, Div, , ) LINES(CONSTANT, 16sc, DivC, _Sfs, Sfs)
                LINES(CONSTANT, 32fc, DivC, , ) OF_64FC(Mul, Image, nullptr, huxsMul_64fc_I, 0, 2, 3)
                    OF_64FC(MulC, Constant, nullptr, huxsMulC_64fc_I, 0, 2, 3)
                        OF_64FC(Div, Image, (onLine<huxsDiv_64fc, 0, 1, 2, 3>), huxsDiv_64fc_I, 0, 2, 3)};

// One call on random operands. A zero divisor is a warning in an image, and an error in a constant.
void tryShape(Rng& rng, const Member& m, bool inPlace, int width, int height, Place place) {
  if (m.line) height = 1;
  const Image a(rng, m.constant() ? m.layout.touched : width, m.constant() ? 1 : height,
                m.constant() ? m.elementBytes : m.pixelBytes(), place),
      b(rng, width, height, m.pixelBytes(), place), other(rng, width, height, m.pixelBytes(), place),
      &dst = inPlace ? b : other;
  m.fill(rng, a), m.fill(rng, b), m.fill(rng, other);
  const Image before = dst, aBefore = a, bBefore = b, expected = before;
  const int scaleFactor = anyScale(rng);
  const HuxStatus status = (inPlace ? m.inPlace : m.call)(a.bytes(), a.step(), b.bytes(), b.step(), dst.bytes(),
                                                          dst.step(), dst.size(), &scaleFactor);
  bool warned = false;
  m.expect(m, a, bBefore, expected, scaleFactor, warned, dst);
  const bool refused = warned && m.op == Op::kDivC;
  ASSERT_EQ(status, refused ? huxStsDivByZero : warned ? huxStsDivByZeroWarn : huxStsOk);
  ASSERT_TRUE(same(dst, refused ? before : expected)) << "scaleFactor " << scaleFactor;
  ASSERT_TRUE(same(a, aBefore) && (inPlace || same(b, bBefore)));
}
// Calls body(member, whether in place).
template <class Body>
void forMembers(Body body) {
  for (const Member& m : kMembers)
    for (bool inPlace : {false, true}) {
      if (!inPlace && !m.call) continue;
      SCOPED_TRACE(m.name + (m.line ? " of vectors" : "") + (inPlace ? " in place" : ""));
      body(m, inPlace);
    }
}

TEST(ComplexArithmetic, MatchesTheDefinition) {
  Rng rng(1);
  forMembers([&](const Member& m, bool inPlace) {
    for (int width = 1; width <= 48; width += width < 24 ? 1 : between(rng, 1, 6))
      for (int repeat = 0; repeat < (m.layout.stride == 1 ? 3 : 2); ++repeat)
        tryShape(rng, m, inPlace, width * (repeat + 1), between(rng, 1, 3), Place(between(rng, 0, 2)));
  });
}

// An image in which no element of any type is zero, or not a number.
Image dividable(Rng& rng) {
  Image image(rng, 16, 4, 32);
  image.fill<Hux8u>([&] { return Hux8u(between(rng, 0x30, 0x3f)); });
  return image;
}

TEST(ComplexArithmetic, ChecksPointersSizeStepsAndConstants) {
  Rng rng(2);
  const Image zeros(rng, 4, 1, 8);
  std::memset(zeros.bytes(), 0, 32);
  forMembers([&](const Member& m, bool inPlace) {
    const Image image = dividable(rng);
    Arguments a(image);
    const int scaleFactor = 0;
    const auto call = [&] {
      return (inPlace ? m.inPlace : m.call)(a.a, a.aStep, a.b, a.bStep, a.d, a.dStep, a.roi, &scaleFactor);
    };
    CheckOrder order(call);
    std::string without = inPlace ? "bB" : "", letters = m.widthFirst() ? "wabdhABD" : "abdzABD";
    if (m.constant()) without += m.layout.stride > 1 ? "A" : "aA";
    if (m.line) letters = m.lengthFirst ? "wabd" : "abdw";
    order.in(a, letters, without);
    if (m.op == Op::kDivC) order.breaks(huxStsDivByZero, a.a, zeros.bytes());
    order.run(image);
    const bool wide = m.name.find("32sc") != std::string::npos || (m.constant() && m.layout.stride > 1);
    EXPECT_EQ(failuresOf(call) > 0, !m.line && twoSided(m.op) == Op::kDiv && wide) << "only these take memory";
  });
}

}  // namespace
}  // namespace hux::test
