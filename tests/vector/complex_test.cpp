// The complex vector functions, every member against the definition.
#include "huxs.h"
#include "support/complex_reference.h"
#include "support/order.h"

namespace hux::test {
namespace {

// In constant forms src1 is the constant, in place src2 is dst.
struct Member {
  std::string name;
  Op op;
  bool inPlace, lengthFirst;
  int bytes;
  HuxStatus (*call)(const void* src1, const void* src2, void* dst, int len, int scaleFactor);
  void (*check)(const Member&, Rng&, int len, Place place);
};

template <class C>
void checkLength(const Member& m, Rng& rng, int len, Place place) {
  const bool constant = isConstant(m.op);
  Image a(rng, constant ? 1 : len, 1, m.bytes, place), b(rng, len, 1, m.bytes, place), dst(rng, len, 1, m.bytes, place);
  for (Image* image : {&a, &b, &dst}) image->fill<C>([&] { return anyComplex<C>(rng); });
  const Image before = dst, expected = dst, aBefore = a, bBefore = b;
  const int scaleFactor = std::is_floating_point_v<PartOf<C>> ? 0 : anyScale(rng);
  const HuxStatus status = m.call(a.bytes(), b.bytes(), dst.bytes(), len, scaleFactor);
  bool warned = false;
  for (int x = 0; x < len; ++x) {
    const C y = (m.inPlace ? before : b).get<C>(x, 0);
    const C result = reference(m.op, a.get<C>(constant ? 0 : x, 0), y, scaleFactor,
                               m.op == Op::kDivC ? Way::kReciprocal : Way::kDivide, warned);
    std::memcpy(expected.bytes(x),
                alike(result, dst.get<C>(x, 0)) ? dst.bytes(x) : reinterpret_cast<const std::byte*>(&result),
                sizeof result);
  }
  const bool refused = warned && m.op == Op::kDivC;
  ASSERT_EQ(status, refused ? huxStsDivByZero : warned ? huxStsDivByZeroWarn : huxStsOk);
  ASSERT_TRUE(same(dst, refused ? before : expected)) << "scaleFactor " << scaleFactor << ", length " << len;
  ASSERT_TRUE(same(a, aBefore) && same(b, bBefore));
}

#define MEMBER(op, t, inPlace, lengthFirst, function, ...)                                                       \
  Member{#function,                                                                                              \
         Op::k##op,                                                                                              \
         inPlace,                                                                                                \
         lengthFirst,                                                                                            \
         int(sizeof(Hux##t)),                                                                                    \
         [](const void* a, [[maybe_unused]] const void* b, void* d, int len, [[maybe_unused]] int scaleFactor) { \
           return function(__VA_ARGS__);                                                                         \
         },                                                                                                      \
         checkLength<Hux##t>},
#define SRC(t, p) static_cast<const Hux##t*>(p)
#define DST(t) static_cast<Hux##t*>(d)
#define VALUE(t) valueAt<Hux##t>(a)
#define TWO(op, t, first) MEMBER(op, t, false, first, huxs##op##_##t, SRC(t, a), SRC(t, b), DST(t), len)
#define TWO_I(op, t, first) MEMBER(op, t, true, first, huxs##op##_##t##_I, SRC(t, a), DST(t), len)
#define ONE(op, t) MEMBER(op, t, false, false, huxs##op##_##t, SRC(t, b), VALUE(t), DST(t), len)
#define ONE_I(op, t) MEMBER(op, t, true, false, huxs##op##_##t##_I, VALUE(t), DST(t), len)
#define TWO_SFS(op, t, first)                                                                       \
  MEMBER(op, t, false, first, huxs##op##_##t##_Sfs, SRC(t, a), SRC(t, b), DST(t), len, scaleFactor) \
  MEMBER(op, t, true, first, huxs##op##_##t##_ISfs, SRC(t, a), DST(t), len, scaleFactor)
#define ONE_SFS(op, t)                                                                             \
  MEMBER(op, t, false, false, huxs##op##_##t##_Sfs, SRC(t, b), VALUE(t), DST(t), len, scaleFactor) \
  MEMBER(op, t, true, false, huxs##op##_##t##_ISfs, VALUE(t), DST(t), len, scaleFactor)
#define FORMS(op, first)   \
  TWO_SFS(op, 16sc, first) \
  TWO_SFS(op, 32sc, false) \
  TWO(op, 32fc, first)     \
  TWO_I(op, 32fc, first) ONE_SFS(op##C, 16sc) ONE_SFS(op##C, 32sc) ONE(op##C, 32fc) ONE_I(op##C, 32fc)

const std::vector<Member>& members() {
  static const std::vector<Member> all = {FORMS(Add, true) FORMS(Sub, true) FORMS(Mul, false) TWO_I(Mul, 64fc, false)
                                              ONE_I(MulC, 64fc) TWO_SFS(Div, 16sc, false) TWO(Div, 32fc, false)
                                                  TWO_I(Div, 32fc, false) TWO(Div, 64fc, false) TWO_I(Div, 64fc, false)
                                                      ONE_SFS(DivC, 16sc) ONE(DivC, 32fc) ONE_I(DivC, 32fc)};
  return all;
}

TEST(ComplexVectors, MatchTheDefinition) {
  Rng rng(1);
  for (const Member& m : members()) {
    SCOPED_TRACE(m.name);
    for (int len = 1; len <= 70; ++len)
      for (Place place : {Place::kInside, Place::kEnd, Place::kStart}) m.check(m, rng, len, place);
  }
}

TEST(ComplexVectors, CheckPointersAndLengthThenTheConstant) {
  Rng rng(2);
  for (const Member& m : members()) {
    SCOPED_TRACE(m.name);
    Image image(rng, 4, 1, 16);
    image.fill<Hux8u>([] { return Hux8u(0x3f); });
    const Hux64fc zero = {0, 0};
    const void *a = image.bytes(), *b = a;
    void* d = image.bytes();
    int len = 1;
    CheckOrder order([&] { return m.call(a, b, d, len, 0); });
    if (m.lengthFirst) order.breaks(huxStsBadSize, len, 0);
    if (!isConstant(m.op)) order.breaks(huxStsNullPtr, a, nullptr);
    if (!m.inPlace) order.breaks(huxStsNullPtr, b, nullptr);
    order.breaks(huxStsNullPtr, d, nullptr);
    if (!m.lengthFirst) order.breaks(huxStsBadSize, len, -1);
    if (m.op == Op::kDivC) order.breaks(huxStsDivByZero, a, &zero);
    order.run(image);
  }
}

}  // namespace
}  // namespace hux::test
