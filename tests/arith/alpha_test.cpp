// Alpha composition and premultiplication, against the tables of their rules, element by element.
#include "core/layout.h"
#include "core/stamp.h"
#include "huxi_arith.h"
#include "support/image.h"
#include "support/order.h"

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

// How the elements of a pixel lie: AC1 is alpha alone, AP4 are four planes of one step.
struct AC1 : Layout<1, 0> {};
struct AP4 : Layout<4, 3> {};
template <class L>
constexpr bool kPlanar = std::is_same_v<L, AP4>;

// An image argument as the public functions take it, from a pointer, or from an array of pointers to planes.
template <class L, class T>
struct Argument {
  T* planes[4] = {};
  const void* given;
  explicit Argument(const void* p) : given(p) {
    for (int c = 0; c < 4 && kPlanar<L> && p; ++c) planes[c] = static_cast<T*>(static_cast<void* const*>(p)[c]);
  }
  operator T*() const requires(!kPlanar<L>) { return static_cast<T*>(const_cast<void*>(given)); }
  operator T* const*() const requires kPlanar<L> { return given ? planes : nullptr; }
};

// What a member is given: two images or one, the alphas of those that take them by value, the rule of AlphaComp.
struct Operands {
  const void *a, *b;
  const void* dst;
  int aStep, bStep, dstStep;
  HuxiSize roi;
  int alpha1, alpha2;
  HuxiAlphaType rule;
};

enum class Family { kComp, kCompC, kPremul, kPremulC };

struct Member {
  std::string name;
  Family family;
  int bytes, channels, colours;
  bool planar;
  HuxStatus (*call)(const Operands& o);
  HuxStatus (*inPlace)(const Operands& o);
};

#define MEMBER(f, t, l, call, inPlace)           \
  Member{"huxi" #f "_" #t "_" #l,                \
         Family::k##f,                           \
         sizeof(Hux##t),                         \
         l::channels,                            \
         l::processed,                           \
         kPlanar<l>,                             \
         [](const Operands& o) { return call; }, \
         inPlace},
#define SRC(t, l, x) Argument<l, const Hux##t>(o.x), o.x##Step
#define DST(t, l) Argument<l, Hux##t>(o.dst), o.dstStep, o.roi
#define ALPHA(t, n) Hux##t(o.alpha##n)
#define COMP(t, l) \
  MEMBER(Comp, t, l, huxiAlphaComp_##t##_##l##R(SRC(t, l, a), SRC(t, l, b), DST(t, l), o.rule), nullptr)
#define COMP_C(t, l)                                                                                           \
  MEMBER(CompC, t, l,                                                                                          \
         huxiAlphaCompC_##t##_##l##R(SRC(t, l, a), ALPHA(t, 1), SRC(t, l, b), ALPHA(t, 2), DST(t, l), o.rule), \
         nullptr)
#define PREMUL(t, l)                                                          \
  MEMBER(Premul, t, l, huxiAlphaPremul_##t##_##l##R(SRC(t, l, a), DST(t, l)), \
         ([](const Operands& o) { return huxiAlphaPremul_##t##_##l##IR(DST(t, l)); }))
#define PREMUL_C(t, l)                                                                       \
  MEMBER(PremulC, t, l, huxiAlphaPremulC_##t##_##l##R(SRC(t, l, a), ALPHA(t, 1), DST(t, l)), \
         ([](const Operands& o) { return huxiAlphaPremulC_##t##_##l##IR(ALPHA(t, 1), DST(t, l)); }))

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
  std::array<const void*, 4> planes{};

  Picture(Rng& rng, const Member& m, int width, int height, Place place)
      : m(m),
        image(rng, width, m.planar ? 4 * height : height, m.planar ? m.bytes : m.channels * m.bytes, place),
        height(height) {
    for (int y = 0; y < height; ++y)  // random bytes already; one in three gets an end of the range
      for (int x = 0; x < width; ++x)
        for (int c = 0; c < m.channels; ++c)
          if (const auto roll = rng(); roll % 3 == 0) set(x, y, c, roll % 2 ? 0 : -1);
  }
  std::byte* at(int x, int y, int c) const {
    return m.planar ? image.bytes(x, c * height + y) : image.bytes(x, y) + c * m.bytes;
  }
  int get(int x, int y, int c) const {
    Hux16u v = 0;
    std::memcpy(&v, at(x, y, c), std::size_t(m.bytes));
    return v;
  }
  void set(int x, int y, int c, std::int64_t v) { std::memcpy(at(x, y, c), &v, std::size_t(m.bytes)); }
  const void* argument() {
    for (int c = 0; c < 4 && m.planar; ++c) planes[std::size_t(c)] = image.bytes(0, c * height);
    return m.planar ? static_cast<const void*>(planes.data()) : image.bytes();
  }
};

// Element c of the destination, or -1 where the member leaves it alone.
std::int64_t defined(const Member& m, const Scalar& s, const Operands& o, const Picture& A, const Picture& B, int x,
                     int y, int c) {
  const bool colour = c < m.colours;
  const int last = m.channels - 1;
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
  const Scalar s{8 * m.bytes};
  Picture A(rng, m, width, height, place), B(rng, m, width, height, place), dst(rng, m, width, height, place);
  const int edges[] = {0, 1, 77, int(s.m / 2), int(s.m) - 1, int(s.m)};
  const bool overA = between(rng, 0, 1);  // the destination is the first source as well
  Picture& D = overA ? A : dst;
  const Operands o = {A.argument(),   B.argument(),    D.argument(),     A.image.step(),   B.image.step(),
                      D.image.step(), {width, height}, edges[rng() % 6], edges[rng() % 6], rule};
  const Picture before = A;
  Picture expected = D;
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x)
      for (int c = 0; c < m.channels; ++c)
        if (const auto v = defined(m, s, o, before, B, x, y, c); v >= 0) expected.set(x, y, c, v);
  ASSERT_EQ((overA && m.inPlace ? m.inPlace : m.call)(o), huxStsOk);
  ASSERT_TRUE(same(D.image, expected.image)) << "alphas " << o.alpha1 << ", " << o.alpha2;
}

TEST(Alpha, EveryElementIsThatOfTheTables) {
  Rng rng(1);
  for (const Member& m : members())
    for (HuxiAlphaType rule = 0; rule <= (m.family <= Family::kCompC ? 11 : 0); ++rule) {
      SCOPED_TRACE(m.name + ", rule " + std::to_string(rule));
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
      if (inPlace && !m.inPlace) continue;
      SCOPED_TRACE(m.name + (inPlace ? ", in place" : ""));
      Picture A(rng, m, 1, 1, Place::kEnd), B = A, D(rng, m, 1, 1, Place::kEnd);
      Operands o = {A.argument(), B.argument(), D.argument(), 0, -1, 0, {1, 1}, 0, 0, 0};
      const bool comp = m.family <= Family::kCompC;
      CheckOrder order([&] { return (inPlace ? m.inPlace : m.call)(o); });
      const auto breakImage = [&](const void*& image, Picture& picture) {
        order.breaks(huxStsNullPtr, image, nullptr);
        for (int c = 0; c < 4 && m.planar; ++c) order.breaks(huxStsNullPtr, picture.planes[std::size_t(c)], nullptr);
      };
      if (!inPlace) breakImage(o.a, A);
      if (comp) breakImage(o.b, B);
      breakImage(o.dst, D);
      order.breaks(huxStsBadSize, o.roi.width, 0).breaks(huxStsBadSize, o.roi.height, 0);
      if (comp) order.breaks(huxStsBadAlphaType, o.rule, 12).breaks(huxStsBadAlphaType, o.rule, -1);
      order.run(D.image);
    }
}

}  // namespace
}  // namespace hux::test
