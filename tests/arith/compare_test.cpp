// Compare in all its forms, against the definition, pixel by pixel.
#include "arith/operation.h"
#include "arith/samples.h"

namespace hux::test {
namespace {

// What one call asks of two elements: the operator, or eps.
struct Relation {
  HuxCmpOp op;
  Hux32f eps;
};

struct Member : Form {
  bool byEps, constant;  // a constant is a pixel, not an image
  OperationFn* compare;

  HuxStatus call(const void* a, int aStep, const void* b, int bStep, void* dst, int dstStep, HuxiSize roi,
                 const Relation& relation) const {
    const void* by = byEps ? static_cast<const void*>(&relation.eps) : &relation.op;
    return compare(a, aStep, b, bStep, dst, dstStep, roi, by);
  }
  std::vector<std::byte> samples() const {
    return withElement(*this, [](auto zero) { return test::samples<decltype(zero)>(); });
  }
  // For one element; numbers compare alike as doubles.
  bool holds(const std::byte* pA, const std::byte* pB, const Relation& relation) const {
    const double a = numberAt(type, pA), b = numberAt(type, pB);
    if (byEps) return !(std::fabs(Hux32f(a) - Hux32f(b)) > relation.eps);
    switch (relation.op) {
      case huxCmpLess:
        return !(a >= b);
      case huxCmpLessEq:
        return !(a > b);
      case huxCmpEq:
        return !(a < b) && !(a > b);
      case huxCmpGreaterEq:
        return constant ? a >= b : !(b > a);
      default:
        return constant ? a > b : !(b >= a);
    }
  }
};

#define MEMBERS(name, byEps, t, l)                                                         \
  Member{HUX_NAMED(name, t, l), byEps, false, as<OperationFn, huxi##name##_##t##_##l##R>}, \
      Member{HUX_NAMED(name##C, t, l), byEps, true, as<OperationFn, huxi##name##C_##t##_##l##R, 0, 1, 2, 4, 5, 6, 7>},
#define BY_OPERATOR(t, l) MEMBERS(Compare, false, t, l)
#define BY_EPS(t, l) MEMBERS(CompareEqualEps, true, t, l)
std::vector<Member> members() {
  return {
    HUX_STAMP(BY_OPERATOR, (8u, 16s, 32f), (C1, C3, C4, AC4))
    HUX_STAMP(BY_EPS, (32f), (C1, C3, C4, AC4))
  };
}

std::vector<Relation> relations(const Member& f) {
  using Limits = std::numeric_limits<Hux32f>;
  if (!f.byEps) return {{huxCmpLess, 0}, {huxCmpLessEq, 0}, {huxCmpEq, 0}, {huxCmpGreaterEq, 0}, {huxCmpGreater, 0}};
  return {{0, 0.0f}, {0, -0.0f}, {0, Limits::denorm_min()}, {0, 0.5f}, {0, Limits::max()}, {0, Limits::infinity()}};
}

// Runs the form and compares with the definition. `b` is one pixel where the form takes a constant.
void expectMarked(const Member& f, const Image& a, const Image& b, const Image& dst, const Relation& relation) {
  Image expected = dst;
  forPixels(a.size(), [&](int x, int y) {
    bool all = true;
    for (int c = 0; c < f.layout.touched; ++c)
      all &= f.holds(a.bytes(x, y) + c * f.elementBytes, (f.constant ? b.bytes() : b.bytes(x, y)) + c * f.elementBytes,
                     relation);
    expected.set<Hux8u>(x, y, 0, all ? 255 : 0);
  });
  ASSERT_EQ(f.call(a.bytes(), a.step(), b.bytes(), b.step(), dst.bytes(), dst.step(), a.size(), relation), huxStsOk);
  ASSERT_TRUE(same(dst, expected));
}

// Every sample against every other in one channel, while the others pass; all values of 8u, the edges of other types.
TEST(Compare, SamplesAgainstSamples) {
  Rng rng(1);
  for (const Member& f : members()) {
    SCOPED_TRACE(f.name);
    const auto values = f.samples();
    const int n = int(values.size()) / f.elementBytes, pixelBytes = f.pixelBytes();
    const Image a(rng, n, 1, pixelBytes), b(rng, f.constant ? 1 : n, 1, pixelBytes), dst(rng, n, 1, 1);
    const auto sample = [&](int i) { return values.data() + i * f.elementBytes; };
    for (const Relation& relation : relations(f))
      for (int j = 0; j < n; ++j) {
        for (int c = 0; c < f.layout.touched; ++c) {
          const bool tried = c == j % f.layout.touched;
          int p = 0, q = j;
          if (!tried) do
              p = between(rng, 0, n - 1), q = between(rng, 0, n - 1);
            while (!f.holds(sample(p), sample(q), relation));
          for (int x = 0; x < n; ++x) {
            std::memcpy(a.bytes(x) + c * f.elementBytes, sample(tried ? x : p), std::size_t(f.elementBytes));
            if (x < b.width()) std::memcpy(b.bytes(x) + c * f.elementBytes, sample(q), std::size_t(f.elementBytes));
          }
        }
        expectMarked(f, a, b, dst, relation);
        ASSERT_FALSE(testing::Test::HasFatalFailure())
            << "sample " << j << ", op " << relation.op << ", eps " << relation.eps;
      }
  }
}

TEST(Compare, Shapes) {
  Rng rng(2);
  for (const Member& f : members()) {
    SCOPED_TRACE(f.name);
    const auto values = f.samples();
    const int n = int(values.size()) / f.elementBytes, pixelBytes = f.pixelBytes();
    forShapes(rng, 1200, [&](int width, int height, Place place) {
      const Image a(rng, width, height, pixelBytes, place);
      // Constants end where memory does: that of alpha does not exist.
      const Image b = f.constant ? Image(rng, 1, 1, f.elementBytes * f.layout.touched, Place::kEnd)
                                 : Image(rng, width, height, pixelBytes, place);
      const Image dst(rng, width, height, 1, place);
      const Relation relation = relations(f)[std::size_t(width) % relations(f).size()];
      const auto sample = [&] { return values.data() + between(rng, 0, n - 1) * f.elementBytes; };
      if (f.constant)  // middling ones, for both outcomes
        for (int c = 0; c < f.layout.touched; ++c)
          std::memcpy(b.bytes() + c * f.elementBytes, values.data() + (n / 2 + c) * f.elementBytes,
                      std::size_t(f.elementBytes));
      // Most elements pass, so that most pixels fail by one element or not at all.
      forElements({width, height}, f.layout.touched, [&](int x, int y, int c) {
        std::byte* e = a.bytes(x, y) + c * f.elementBytes;
        std::byte* other = (f.constant ? b.bytes() : b.bytes(x, y)) + c * f.elementBytes;
        const int tries = between(rng, 0, 7) ? 9 : 1;
        for (int k = 0; k < tries && (k == 0 || !f.holds(e, other, relation)); ++k) {
          std::memcpy(e, sample(), std::size_t(f.elementBytes));
          if (k % 2) std::memcpy(e, other, std::size_t(f.elementBytes));
        }
      });
      expectMarked(f, a, b, dst, relation);
    });
  }
}

TEST(Compare, ChecksInOrder) {
  Rng rng(3);
  const Image image(rng, 8, 4, 16);
  for (const Member& f : members()) {
    SCOPED_TRACE(f.name);
    Arguments a(image);
    Relation relation = {huxCmpEq, 0};
    CheckOrder order([&] { return f.call(a.a, a.aStep, a.b, a.bStep, a.d, a.dStep, a.roi, relation); });
    order.in(a, "abdABDz", !f.constant ? "" : f.layout.stride > 1 ? "B" : "bB");
    if (f.byEps) order.breaks(huxStsBadEps, relation.eps, -1e-45f).breaks(huxStsBadEps, relation.eps, NAN);
    order.run(image);
    if (f.byEps) continue;
    // An unknown operator is no failure, and nothing is written.
    for (HuxCmpOp unknown : {-1, 5, 9, std::numeric_limits<int>::min()}) {
      const Image before = image;
      EXPECT_EQ(f.call(a.a, 16, a.b, 16, a.d, 16, {1, 1}, {unknown, 0}), huxStsOk);
      EXPECT_TRUE(same(image, before));
      EXPECT_EQ(f.call(a.a, 16, a.b, 16, a.d, 16, {0, 1}, {unknown, 0}), huxStsBadSize);
    }
  }
}

}  // namespace
}  // namespace hux::test
