// The complex image functions, every member against the definition.
#include "core/stamp.h"
#include "huxi_arith.h"
#include "support/complex_reference.h"
#include "support/failing_malloc.h"
#include "support/image.h"
#include "support/order.h"

namespace hux::test {
namespace {

// In constant forms src1 is the constant pixel, in place src2 is dst.
using Call = HuxStatus (*)(const void* src1, int src1Step, const void* src2, int src2Step, void* dst, int dstStep,
                           HuxiSize roi, int scaleFactor);
struct Member {
  std::string name;
  Op op;
  bool inPlace;
  int channels, colours, bytes;
  Call call;
  void (*expect)(const Member&, const Image& src1, const Image& src2, Image& dst, int scaleFactor, bool& warned,
                 const Image& actual);
  void (*fill)(Rng&, Image&);

  bool constant() const { return isConstant(op); }
  bool widthFirst() const { return !constant() && channels == 3; }
};

// The expected contents of dst; where one NaN stands for another the actual one is taken over.
template <class C>
void expectImage(const Member& m, const Image& src1, const Image& src2, Image& dst, int scaleFactor, bool& warned,
                 const Image& actual) {
  const Way way = m.op == Op::kDivC && (sizeof(C) > 4 || m.channels == 1) ? Way::kReciprocal : Way::kDivide;
  for (int y = 0; y < dst.height(); ++y)
    for (int x = 0; x < dst.width(); ++x)
      for (int c = 0; c < m.colours; ++c) {
        const C a = m.constant() ? src1.get<C>(c, 0) : src1.get<C>(x, y, c);
        const C result = reference(m.op, a, src2.get<C>(x, y, c), scaleFactor, way, warned);
        const C got = actual.get<C>(x, y, c);
        dst.set(x, y, c, alike(result, got) ? got : result);
      }
}

template <class C>
void fillImage(Rng& rng, Image& image) {
  image.fill<C>([&] { return anyComplex<C>(rng); });
}

#define ARGUMENT_
#define ARGUMENT_Sfs , scaleFactor
#define VALUE_C1(t, p) valueAt<Hux##t>(p)
#define VALUE_C3(t, p) static_cast<const Hux##t*>(p)
#define VALUE_AC4(t, p) static_cast<const Hux##t*>(p)
#define MEMBER(t, op, l, inPlace, function, ...)                                                                   \
  Member{#function,                                                                                                \
         Op::k##op,                                                                                                \
         inPlace,                                                                                                  \
         C_##l,                                                                                                    \
         K_##l,                                                                                                    \
         int(sizeof(Hux##t)),                                                                                      \
         [](const void* a, [[maybe_unused]] int aStep, [[maybe_unused]] const void* b, [[maybe_unused]] int bStep, \
            void* d, int dStep, HuxiSize roi, [[maybe_unused]] int scaleFactor) { return function(__VA_ARGS__); }, \
         expectImage<Hux##t>,                                                                                      \
         fillImage<Hux##t>},
#define SRC(t, p) static_cast<const Hux##t*>(p)
#define DST(t, p) static_cast<Hux##t*>(p)
#define TWO(t, op, l, sfs)                                                                                    \
  MEMBER(t, op, l, false, huxi##op##_##t##_##l##R##sfs, SRC(t, a), aStep, SRC(t, b), bStep, DST(t, d), dStep, \
         roi ARGUMENT_##sfs)                                                                                  \
  MEMBER(t, op, l, true, huxi##op##_##t##_##l##IR##sfs, SRC(t, a), aStep, DST(t, d), dStep, roi ARGUMENT_##sfs)
#define ONE(t, op, l, sfs)                                                                                   \
  MEMBER(t, op, l, false, huxi##op##_##t##_##l##R##sfs, SRC(t, b), bStep, VALUE_##l(t, a), DST(t, d), dStep, \
         roi ARGUMENT_##sfs)                                                                                 \
  MEMBER(t, op, l, true, huxi##op##_##t##_##l##IR##sfs, VALUE_##l(t, a), DST(t, d), dStep, roi ARGUMENT_##sfs)
#define FORMS(t, l, sfs) \
  TWO(t, Add, l, sfs)    \
  TWO(t, Sub, l, sfs)    \
  TWO(t, Mul, l, sfs)    \
  TWO(t, Div, l, sfs) ONE(t, AddC, l, sfs) ONE(t, SubC, l, sfs) ONE(t, MulC, l, sfs) ONE(t, DivC, l, sfs)
#define INTEGER_FORMS(t, l) FORMS(t, l, Sfs)
#define FLOAT_FORMS(t, l) FORMS(t, l, )
constexpr int C_C1 = 1, C_C3 = 3, C_AC4 = 4, K_C1 = 1, K_C3 = 3, K_AC4 = 3;

const std::vector<Member>& members() {
  static const std::vector<Member> all = {
    HUX_STAMP(INTEGER_FORMS, (16sc, 32sc), (C1, C3, AC4)) HUX_STAMP(FLOAT_FORMS, (32fc), (C1, C3, AC4))
  };
  return all;
}

// One call on random operands. A zero divisor is a warning in an image, and an error in a constant.
void tryShape(Rng& rng, const Member& m, int width, int height, Place place) {
  const Image src1(rng, m.constant() ? m.colours : width, m.constant() ? 1 : height,
                   m.bytes * (m.constant() ? 1 : m.channels), place);
  Image a = src1, b(rng, width, height, m.channels * m.bytes, place),
        dst(rng, width, height, m.channels * m.bytes, place);
  m.fill(rng, a), m.fill(rng, b), m.fill(rng, dst);
  const Image& src2 = m.inPlace ? dst : b;
  const Image before = dst, aBefore = a, bBefore = b;
  const int scaleFactor = anyScale(rng);
  const HuxStatus status =
      m.call(a.bytes(), a.step(), b.bytes(), b.step(), dst.bytes(), dst.step(), dst.size(), scaleFactor);
  Image expected = before;
  bool warned = false;
  m.expect(m, a, m.inPlace ? before : src2, expected, scaleFactor, warned, dst);
  const bool refused = warned && m.op == Op::kDivC;
  ASSERT_EQ(status, refused ? huxStsDivByZero : warned ? huxStsDivByZeroWarn : huxStsOk);
  ASSERT_TRUE(same(dst, refused ? before : expected)) << "scaleFactor " << scaleFactor;
  ASSERT_TRUE(same(a, aBefore) && same(b, bBefore));
}

TEST(ComplexArithmetic, MatchesTheDefinition) {
  Rng rng(1);
  for (const Member& m : members()) {
    SCOPED_TRACE(m.name);
    for (int width = 1; width <= 48; width += width < 24 ? 1 : between(rng, 1, 6))
      for (int repeat = 0; repeat < (m.channels == 1 ? 3 : 2); ++repeat)
        tryShape(rng, m, width * (repeat + 1), between(rng, 1, 3), Place(between(rng, 0, 2)));
  }
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
  for (const Member& m : members()) {
    SCOPED_TRACE(m.name);
    const Image image = dividable(rng);
    const void *a = image.bytes(), *b = a;
    void* d = image.bytes();
    int aStep = image.step(), bStep = aStep, dStep = aStep;
    HuxiSize roi = {1, 1};
    CheckOrder order([&] { return m.call(a, aStep, b, bStep, d, dStep, roi, 0); });
    if (m.widthFirst()) order.breaks(huxStsBadSize, roi.width, 0);
    if (!m.constant() || m.channels > 1) order.breaks(huxStsNullPtr, a, nullptr);
    if (!m.inPlace) order.breaks(huxStsNullPtr, b, nullptr);
    order.breaks(huxStsNullPtr, d, nullptr).breaks(huxStsBadSize, roi.height, -1);
    if (!m.widthFirst()) order.breaks(huxStsBadSize, roi.width, 0);
    if (!m.constant()) order.breaks(huxStsBadStep, aStep, 0);
    if (!m.inPlace) order.breaks(huxStsBadStep, bStep, -4);
    order.breaks(huxStsBadStep, dStep, 0);
    if (m.op == Op::kDivC) order.breaks(huxStsDivByZero, a, zeros.bytes());
    order.run(image);
  }
}

TEST(ComplexArithmetic, WithoutMemoryNothingIsWritten) {
  Rng rng(3);
  for (const Member& m : members()) {
    const bool wide = m.name.find("32sc") != std::string::npos;
    const bool allocates = twoSided(m.op) == Op::kDiv && (wide || (m.constant() && m.channels > 1));
    SCOPED_TRACE(m.name);
    const Image image = dividable(rng), before = image;
    const int blocks = liveBlocks();
    int failures = 0;
    const HuxStatus status = walkAllocationFailures(
        [&] {
          return m.call(image.bytes(), image.step(), image.bytes(0, 1), image.step(), image.bytes(0, 2), image.step(),
                        {3, 2}, 0);
        },
        [&](HuxStatus failed) {
          ++failures;
          EXPECT_EQ(failed, huxStsNoMem);
          EXPECT_TRUE(same(image, before));
        });
    EXPECT_EQ(status, huxStsOk);
    EXPECT_EQ(failures > 0, allocates);
    EXPECT_EQ(liveBlocks(), blocks);
  }
}

}  // namespace
}  // namespace hux::test
