// Compare in all its forms, against the definition, pixel by pixel.
#include "arith/samples.h"
#include "core/stamp.h"
#include "huxi_arith.h"
#include "support/image.h"
#include "support/order.h"

namespace hux::test {
namespace {

// What one call asks of two elements: the operator, or eps.
struct Relation {
  HuxCmpOp op;
  Hux32f eps;
};

struct Form {
  std::string name;
  bool constant;  // the second operand is a pixel, not an image
  bool byEps;
  int bytes, channels, colours;
  HuxStatus (*call)(const void*, int, const void*, int, Hux8u*, int, HuxiSize, const Relation&);
  bool (*holds)(const Form&, const std::byte* a, const std::byte* b, const Relation&);  // for one element
  std::vector<std::byte> (*samples)();
};

template <class T>
bool holds(const Form& f, const std::byte* pA, const std::byte* pB, const Relation& relation) {
  const T a = at<T>(pA), b = at<T>(pB);
  if (f.byEps) return !(std::fabs(Hux32f(a) - Hux32f(b)) > relation.eps);
  switch (relation.op) {
    case huxCmpLess:
      return !(a >= b);
    case huxCmpLessEq:
      return !(a > b);
    case huxCmpEq:
      return !(a < b) && !(a > b);
    case huxCmpGreaterEq:
      return f.constant ? a >= b : !(b > a);
    default:
      return f.constant ? a > b : !(b >= a);
  }
}

#define FORM(name, isConstant, byEps, t, l, ...)                                                                      \
  Form{#name "_" #t "_" #l,                                                                                           \
       isConstant,                                                                                                    \
       byEps,                                                                                                         \
       sizeof(Hux##t),                                                                                                \
       l::channels,                                                                                                   \
       l::processed,                                                                                                  \
       [](const void* a, int aStep, const void* b, [[maybe_unused]] int bStep, Hux8u* dst, int dstStep, HuxiSize roi, \
          const Relation& relation) {                                                                                 \
         return huxi##name##_##t##_##l##R(static_cast<const Hux##t*>(a), aStep, __VA_ARGS__);                         \
       },                                                                                                             \
       holds<Hux##t>,                                                                                                 \
       samples<Hux##t>},
#define FORMS(name, byEps, argument, t, l)                                                                   \
  FORM(name, false, byEps, t, l, static_cast<const Hux##t*>(b), bStep, dst, dstStep, roi, relation.argument) \
  FORM(name##C, true, byEps, t, l, constant<l, Hux##t>(b), dst, dstStep, roi, relation.argument)
#define BY_OPERATOR(t, l) FORMS(Compare, false, op, t, l)
#define BY_EPS(t, l) FORMS(CompareEqualEps, true, eps, t, l)

std::vector<Form> forms() {
  return {
    HUX_STAMP(BY_OPERATOR, (8u, 16s, 32f), (C1, C3, C4, AC4))
    HUX_STAMP(BY_EPS, (32f), (C1, C3, C4, AC4))
  };
}

std::vector<Relation> relations(const Form& f) {
  using Limits = std::numeric_limits<Hux32f>;
  if (!f.byEps) return {{huxCmpLess, 0}, {huxCmpLessEq, 0}, {huxCmpEq, 0}, {huxCmpGreaterEq, 0}, {huxCmpGreater, 0}};
  return {{0, 0.0f}, {0, -0.0f}, {0, Limits::denorm_min()}, {0, 0.5f}, {0, Limits::max()}, {0, Limits::infinity()}};
}

// Runs the form and compares with the definition. `b` is one pixel where the form takes a constant.
void expectMarked(const Form& f, const Image& a, const Image& b, const Image& dst, const Relation& relation) {
  Image expected = dst;
  for (int y = 0; y < a.height(); ++y)
    for (int x = 0; x < a.width(); ++x) {
      bool all = true;
      for (int c = 0; c < f.colours; ++c)
        all &=
            f.holds(f, a.bytes(x, y) + c * f.bytes, (f.constant ? b.bytes() : b.bytes(x, y)) + c * f.bytes, relation);
      expected.set<Hux8u>(x, y, 0, all ? 255 : 0);
    }
  ASSERT_EQ(f.call(a.bytes(), a.step(), b.bytes(), b.step(), dst.data<Hux8u>(), dst.step(), a.size(), relation),
            huxStsOk);
  ASSERT_TRUE(same(dst, expected));
}

// Every sample against every other in one channel, while the others pass; all values of 8u, the edges of other types.
TEST(Compare, SamplesAgainstSamples) {
  Rng rng(1);
  for (const Form& f : forms()) {
    SCOPED_TRACE(f.name);
    const auto values = f.samples();
    const int n = int(values.size()) / f.bytes, pixelBytes = f.bytes * f.channels;
    const Image a(rng, n, 1, pixelBytes), b(rng, f.constant ? 1 : n, 1, pixelBytes), dst(rng, n, 1, 1);
    const auto sample = [&](int i) { return values.data() + i * f.bytes; };
    for (const Relation& relation : relations(f))
      for (int j = 0; j < n; ++j) {
        for (int c = 0; c < f.colours; ++c) {
          const bool tried = c == j % f.colours;
          int p = 0, q = j;
          if (!tried) do
              p = between(rng, 0, n - 1), q = between(rng, 0, n - 1);
            while (!f.holds(f, sample(p), sample(q), relation));
          for (int x = 0; x < n; ++x) {
            std::memcpy(a.bytes(x) + c * f.bytes, sample(tried ? x : p), std::size_t(f.bytes));
            if (x < b.width()) std::memcpy(b.bytes(x) + c * f.bytes, sample(q), std::size_t(f.bytes));
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
  for (const Form& f : forms()) {
    SCOPED_TRACE(f.name);
    const auto values = f.samples();
    const int n = int(values.size()) / f.bytes, pixelBytes = f.bytes * f.channels;
    forShapes(rng, 1200, [&](int width, int height, Place place) {
      const Image a(rng, width, height, pixelBytes, place);
      // Constants end where memory does: that of alpha does not exist.
      const Image b = f.constant ? Image(rng, 1, 1, f.bytes * f.colours, Place::kEnd)
                                 : Image(rng, width, height, pixelBytes, place);
      const Image dst(rng, width, height, 1, place);
      const Relation relation = relations(f)[std::size_t(width) % relations(f).size()];
      const auto sample = [&] { return values.data() + between(rng, 0, n - 1) * f.bytes; };
      if (f.constant)  // middling ones, for both outcomes
        for (int c = 0; c < f.colours; ++c)
          std::memcpy(b.bytes() + c * f.bytes, values.data() + (n / 2 + c) * f.bytes, std::size_t(f.bytes));
      // Most elements pass, so that most pixels fail by one element or not at all.
      for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
          for (int c = 0; c < f.colours; ++c) {
            std::byte* e = a.bytes(x, y) + c * f.bytes;
            std::byte* other = (f.constant ? b.bytes() : b.bytes(x, y)) + c * f.bytes;
            const int tries = between(rng, 0, 7) ? 9 : 1;
            for (int k = 0; k < tries && (k == 0 || !f.holds(f, e, other, relation)); ++k) {
              std::memcpy(e, sample(), std::size_t(f.bytes));
              if (k % 2) std::memcpy(e, other, std::size_t(f.bytes));
            }
          }
      expectMarked(f, a, b, dst, relation);
    });
  }
}

TEST(Compare, ChecksInOrder) {
  Rng rng(3);
  const Image image(rng, 8, 4, 16);
  for (const Form& f : forms()) {
    SCOPED_TRACE(f.name);
    const void *a = image.bytes(), *b = image.bytes();
    Hux8u* dst = image.data<Hux8u>();
    int aStep = 16, bStep = 16, dstStep = 16;
    HuxiSize roi = {1, 1};
    Relation relation = {huxCmpEq, 0};
    CheckOrder order([&] { return f.call(a, aStep, b, bStep, dst, dstStep, roi, relation); });
    order.breaks(huxStsNullPtr, a, nullptr);
    if (!f.constant || f.channels > 1) order.breaks(huxStsNullPtr, b, nullptr);
    order.breaks(huxStsNullPtr, dst, nullptr).breaks(huxStsBadStep, aStep, 0);
    if (!f.constant) order.breaks(huxStsBadStep, bStep, -1);
    order.breaks(huxStsBadStep, dstStep, 0).breaks(huxStsBadSize, roi.width, 0).breaks(huxStsBadSize, roi.height, -1);
    if (f.byEps)
      order.breaks(huxStsBadEps, relation.eps, -1e-45f)
          .breaks(huxStsBadEps, relation.eps, std::numeric_limits<Hux32f>::quiet_NaN());
    order.run(image);
    if (f.byEps) continue;
    // An unknown operator is no failure, and nothing is written.
    for (HuxCmpOp unknown : {-1, 5, 9, std::numeric_limits<int>::min()}) {
      const Image before = image;
      EXPECT_EQ(f.call(a, aStep, b, bStep, dst, dstStep, roi, {unknown, 0}), huxStsOk);
      EXPECT_TRUE(same(image, before));
      EXPECT_EQ(f.call(a, aStep, b, bStep, dst, dstStep, {0, 1}, {unknown, 0}), huxStsBadSize);
    }
  }
}

}  // namespace
}  // namespace hux::test
