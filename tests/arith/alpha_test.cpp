// Alpha composition and premultiplication, against the tables of their rules, element by element.
#include "huxi_arith.h"
#include "support/forms.h"

namespace hux::test {
namespace {

// Fractions of the maximum of `bits` bits, and the tables in the order of the rules.
struct Scalar {
  int bits;
  std::int64_t m = (std::int64_t(1) << bits) - 1;
  std::int64_t D(std::int64_t x) const { return (x + (x >> bits) + 1) >> bits; }
  std::int64_t sat(std::int64_t x) const { return std::min(x, m); }

  std::int64_t colour(HuxiAlphaType rule, std::int64_t A, std::int64_t B, std::int64_t a, std::int64_t b) const {
    const std::int64_t results[] = {
        D(A * a) + D((m - a) * D(B * b)),
        D(b * D(A * a)),
        D((m - b) * D(A * a)),
        D(b * D(A * a)) + D((m - a) * D(B * b)),
        D((m - b) * D(A * a)) + D((m - a) * D(B * b)),
        sat(D(A * a) + D(b * B)),
        sat(A + D((m - a) * B)),
        D(b * A),
        D((m - b) * A),
        sat(D(b * A) + D((m - a) * B)),
        sat(D((m - b) * A) + D((m - a) * B)),
        sat(A + B),
    };
    return results[rule];
  }
  std::int64_t alpha(HuxiAlphaType rule, std::int64_t a, std::int64_t b) const {
    const std::int64_t results[] = {
        a + D((m - a) * b), D(a * b), D(a * (m - b)), b, D((m - b) * a) + D((m - a) * b), sat(a + b),
    };
    return results[rule % 6];
  }
};

// AC1 is alpha alone, AP4 are four planes of one step.
constexpr Layout AC1{1, 0}, AP4{4, 3};

// The alphas of members that take them by value, the rule of AlphaComp.
using AlphaFn = HuxStatus(const void* a, int aStep, const void* b, int bStep, const void* d, int dStep, HuxiSize roi,
                          int alpha1, int alpha2, HuxiAlphaType rule);
struct Operands : Arguments {
  int alpha1, alpha2;
  HuxiAlphaType rule;
};

enum class Family { kComp, kCompC, kPremul, kPremulC };
struct Member : Form {
  Family family;
  bool planar;
  AlphaFn *alpha, *alphaInPlace = nullptr;

  HuxStatus call(const Operands& o, bool inPlace = false) const {
    return (inPlace ? alphaInPlace : alpha)(o.a, o.aStep, o.b, o.bStep, o.d, o.dStep, o.roi, o.alpha1, o.alpha2,
                                            o.rule);
  }
};

#define MEMBER(f, t, l, ...) Member{HUX_FORM(t, l), Family::k##f, #l[1] == 'P', __VA_ARGS__},
#define COMP(t, l) MEMBER(Comp, t, l, as<AlphaFn, huxiAlphaComp_##t##_##l##R, 0, 1, 2, 3, 4, 5, 6, 9>)
#define COMP_C(t, l) MEMBER(CompC, t, l, as<AlphaFn, huxiAlphaCompC_##t##_##l##R, 0, 1, 7, 2, 3, 8, 4, 5, 6, 9>)
#define PREMUL(t, l)                                                             \
  MEMBER(Premul, t, l, as<AlphaFn, huxiAlphaPremul_##t##_##l##R, 0, 1, 4, 5, 6>, \
         as<AlphaFn, huxiAlphaPremul_##t##_##l##IR, 4, 5, 6>)
#define PREMUL_C(t, l)                                                                \
  MEMBER(PremulC, t, l, as<AlphaFn, huxiAlphaPremulC_##t##_##l##R, 0, 1, 7, 4, 5, 6>, \
         as<AlphaFn, huxiAlphaPremulC_##t##_##l##IR, 7, 4, 5, 6>)

std::vector<Member> members() {
  return {
    HUX_STAMP(COMP, (8u, 16u), (AC4, AC1, AP4))
    HUX_STAMP(COMP_C, (8u, 16u), (C1, C3, C4, AC4, AP4))
    HUX_STAMP(PREMUL, (8u, 16u), (AC4, AP4))
    HUX_STAMP(PREMUL_C, (8u, 16u), (C1, C3, C4, AC4, AP4))
  };
}

// Pixels of a member: interleaved, or four planes in one image.
struct Picture {
  const Member& m;
  Image image;
  int height;
  void* planes[4] = {};

  Picture(Rng& rng, const Member& m, int width, int height, Place place)
      : m(m),
        image(rng, width, m.planar ? 4 * height : height, m.planar ? m.elementBytes : m.pixelBytes(), place),
        height(height) {
    // Random bytes already; one in three gets an end of the range.
    forElements({width, height}, m.layout.stride, [&](int x, int y, int c) {
      if (const auto roll = rng(); roll % 3 == 0) set(x, y, c, roll % 2 ? 0 : -1);
    });
  }
  std::byte* at(int x, int y, int c) const {
    return m.planar ? image.bytes(x, c * height + y) : image.bytes(x, y) + c * m.elementBytes;
  }
  int get(int x, int y, int c) const {
    Hux16u v = 0;
    std::memcpy(&v, at(x, y, c), std::size_t(m.elementBytes));
    return v;
  }
  void set(int x, int y, int c, std::int64_t v) { std::memcpy(at(x, y, c), &v, std::size_t(m.elementBytes)); }
  void* argument() {
    for (int c = 0; c < 4 && m.planar; ++c) planes[c] = image.bytes(0, c * height);
    return m.planar ? static_cast<void*>(planes) : image.bytes();
  }
};

// Element c of the destination, or -1 where the member leaves it alone.
std::int64_t defined(const Member& m, const Scalar& s, const Operands& o, const Picture& A, const Picture& B, int x,
                     int y, int c) {
  const bool colour = c < m.layout.touched;
  const int last = m.layout.stride - 1;
  switch (m.family) {
    case Family::kComp: {
      const int a = A.get(x, y, last), b = B.get(x, y, last);
      return colour ? s.colour(o.rule, A.get(x, y, c), B.get(x, y, c), a, b) : s.alpha(o.rule, a, b);
    }
    case Family::kCompC:
      return colour ? s.colour(o.rule, A.get(x, y, c), B.get(x, y, c), o.alpha1, o.alpha2) : -1;
    case Family::kPremul:
      return colour ? s.D(std::int64_t(A.get(x, y, c)) * A.get(x, y, last)) : A.get(x, y, c);
    default:
      return colour ? s.D(std::int64_t(A.get(x, y, c)) * o.alpha1) : o.alpha1;
  }
}

void expectDefined(Rng& rng, const Member& m, HuxiAlphaType rule, int width, int height, Place place) {
  const Scalar s{8 * m.elementBytes};
  Picture A(rng, m, width, height, place), B(rng, m, width, height, place), dst(rng, m, width, height, place);
  const int edges[] = {0, 1, 77, int(s.m / 2), int(s.m) - 1, int(s.m)};
  const bool overA = between(rng, 0, 1);  // the destination is the first source as well
  Picture& D = overA ? A : dst;
  Operands o{Arguments(A.image, {width, height}), edges[rng() % 6], edges[rng() % 6], rule};
  o.a = A.argument(), o.b = B.argument(), o.d = D.argument(), o.bStep = B.image.step(), o.dStep = D.image.step();
  const Picture before = A;
  Picture expected = D;
  forElements({width, height}, m.layout.stride, [&](int x, int y, int c) {
    if (const auto v = defined(m, s, o, before, B, x, y, c); v >= 0) expected.set(x, y, c, v);
  });
  ASSERT_EQ(m.call(o, overA && m.alphaInPlace), huxStsOk);
  ASSERT_TRUE(same(D.image, expected.image)) << "alphas " << o.alpha1 << ", " << o.alpha2;
}

TEST(Alpha, EveryElementIsThatOfTheTables) {
  Rng rng(1);
  for (const Member& m : members())
    for (HuxiAlphaType rule = 0; rule <= (m.family <= Family::kCompC ? 11 : 0); ++rule) {
      SCOPED_TRACE(m.name + ", family " + std::to_string(int(m.family)) + ", rule " + std::to_string(rule));
      forShapes(rng, 70,
                [&](int width, int height, Place place) { expectDefined(rng, m, rule, width, height, place); });
      // Longer than the pieces in which planes are gone through.
      if (m.planar) expectDefined(rng, m, rule, 8250, 1, Place::kEnd);
    }
}

// All pairs of 8-bit colours, by alphas at which the products turn over.
TEST(Alpha, RulesAreExactForAllColours) {
  const Scalar s{8};
  std::vector<Hux8u> A(65536), B(65536), dst(65536);
  for (std::size_t i = 0; i < 65536; ++i) A[i] = Hux8u(i >> 8), B[i] = Hux8u(i);
  for (HuxiAlphaType rule = 0; rule < 12; ++rule)
    for (int a : {0, 1, 128, 254, 255})
      for (int b : {0, 1, 127, 255}) {
        ASSERT_EQ(huxiAlphaCompC_8u_C1R(A.data(), 0, Hux8u(a), B.data(), 0, Hux8u(b), dst.data(), 0, {65536, 1}, rule),
                  huxStsOk);
        for (std::size_t i = 0; i < 65536; ++i)
          ASSERT_EQ(dst[i], s.colour(rule, A[i], B[i], a, b))
              << "rule " << rule << " of " << int(A[i]) << ", " << a << " and " << int(B[i]) << ", " << b;
      }
}

// Steps are not tested, not even those of planes that are copied and filled.
TEST(Alpha, ChecksPointersThenSizeThenTheRule) {
  Rng rng(3);
  for (const Member& m : members())
    for (bool inPlace : {false, true}) {
      if (inPlace && !m.alphaInPlace) continue;
      SCOPED_TRACE(m.name + ", family " + std::to_string(int(m.family)) + (inPlace ? ", in place" : ""));
      Picture A(rng, m, 1, 1, Place::kEnd), B = A, D(rng, m, 1, 1, Place::kEnd);
      Operands o{Arguments(A.image), 0, 0, 0};
      o.a = A.argument(), o.b = B.argument(), o.d = D.argument(), o.aStep = 0, o.bStep = -1, o.dStep = 0;
      const bool comp = m.family <= Family::kCompC;
      CheckOrder order([&] { return m.call(o, inPlace); });
      const auto breakImage = [&](const char* letter, Picture& picture) {
        order.in(o, letter);
        for (int c = 0; c < 4 && m.planar; ++c) order.nulls(picture.planes[c]);
      };
      if (!inPlace) breakImage("a", A);
      if (comp) breakImage("b", B);
      breakImage("d", D);
      order.in(o, "z");
      if (comp) order.breaks(huxStsBadAlphaType, o.rule, 12).breaks(huxStsBadAlphaType, o.rule, -1);
      order.run(D.image);
    }
}

}  // namespace
}  // namespace hux::test
