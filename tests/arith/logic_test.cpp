// Bit operations, shifts and products of fractions, against their definitions on single elements in 64 bits.
#include "arith/operation.h"

namespace hux::test {
namespace {

using Definition = std::int64_t (*)(std::int64_t a, std::int64_t b, int bits);
struct Member : Operation {
  Definition define;  // of the second operand, an image, and the first
  int constantBytes = 0;

  int bits() const { return 8 * elementBytes; }
  bool isSigned() const { return type == Number::k8s || type == Number::k16s || type == Number::k32s; }
  // C3 and C4 forms on two images stand for C1, as does Not where it is not in place.
  bool sizeFirst(bool inPlaceForm) const {
    return equalChannels() && (first == First::kImage || (first == First::kNone && !inPlaceForm));
  }
};

std::int64_t definedAnd(std::int64_t a, std::int64_t b, int) { return a & b; }
std::int64_t definedOr(std::int64_t a, std::int64_t b, int) { return a | b; }
std::int64_t definedXor(std::int64_t a, std::int64_t b, int) { return a ^ b; }
std::int64_t definedNot(std::int64_t a, std::int64_t, int) { return 255 - a; }
std::int64_t definedComplement(std::int64_t a, std::int64_t, int) {
  return a < 0 && a != INT32_MIN ? -a + INT64_C(0x80000000) : a;
}
std::int64_t definedMulScale(std::int64_t a, std::int64_t b, int bits) {
  const std::int64_t p = a * b;
  return (p + (p >> bits) + 1) >> bits;
}
std::int64_t definedLShift(std::int64_t a, std::int64_t count, int bits) {
  return count >= bits ? 0 : a * (std::int64_t(1) << count);  // cut to the type when it is stored
}
std::int64_t definedRShift(std::int64_t a, std::int64_t count, int bits) {
  const std::int64_t divisor = std::int64_t(1) << std::min<std::int64_t>(count, bits);
  return a >= 0 ? a / divisor : -((-a + divisor - 1) / divisor);
}

#define IMAGES(f, define, t, l) Member{HUX_OF_IMAGES(f, t, l, ), defined##define},
#define CONSTANT(f, define, t, l, ct) Member{HUX_OF_CONSTANT(f, t, l, ), defined##define, sizeof(ct)},
#define NOT(t, l) Member{HUX_OF_ONE(Not, t, l, ), definedNot},
#define BITS(t, l)       \
  IMAGES(And, And, t, l) \
  IMAGES(Or, Or, t, l)   \
  IMAGES(Xor, Xor, t, l) \
  CONSTANT(AndC, And, t, l, Hux##t) CONSTANT(OrC, Or, t, l, Hux##t) CONSTANT(XorC, Xor, t, l, Hux##t)
#define LSHIFT(t, l) CONSTANT(LShiftC, LShift, t, l, Hux32u)
#define RSHIFT(t, l) CONSTANT(RShiftC, RShift, t, l, Hux32u)
#define MULSCALE(t, l) IMAGES(MulScale, MulScale, t, l) CONSTANT(MulCScale, MulScale, t, l, Hux##t)

std::vector<Member> members() {
  return {
    Member{{HUX_NAMED(Complement, 32s, C1), First::kNone, nullptr, as<OperationFn, huxiComplement_32s_C1IR, 4, 5, 6>},
           definedComplement},
        HUX_STAMP(BITS, (8u, 16u, 32s), (C1, C3, C4, AC4))
    HUX_STAMP(NOT, (8u), (C1, C3, C4, AC4))
    HUX_STAMP(LSHIFT, (8u, 16u, 32s), (C1, C3, C4, AC4))
    HUX_STAMP(RSHIFT, (8u, 8s, 16u, 16s, 32s), (C1, C3, C4, AC4))
    HUX_STAMP(MULSCALE, (8u, 16u), (C1, C3, C4, AC4))
  };
}

std::int64_t number(const std::byte* p, int bytes, bool isSigned) {
  std::uint32_t bits = 0;
  std::memcpy(&bits, p, std::size_t(bytes));
  const int unused = 32 - 8 * bytes;
  return isSigned ? std::int64_t(std::int32_t(bits << unused) >> unused) : std::int64_t(bits);
}

// Random bytes already; a third of the elements become 0, 1, -1 or an end of the type.
void addExtremes(Rng& rng, const Member& m, const Image& image) {
  for (int y = 0; y < image.height(); ++y)
    for (int e = 0; e < image.width() * m.layout.stride; ++e) {
      const std::uint64_t roll = rng();
      const std::uint32_t top = 1u << (m.bits() - 1), values[] = {0, 1, ~0u, top, top - 1, top + 1};
      if (roll % 3 == 0)
        std::memcpy(image.bytes(0, y) + e * m.elementBytes, &values[roll / 3 % 6], std::size_t(m.elementBytes));
    }
}

// The constants of a pixel, with nothing readable behind the last. Counts of shifts are mostly about the limit.
Image makeConstants(Rng& rng, const Member& m) {
  Image pixel(rng, 1, 1, m.layout.touched * m.constantBytes, Place::kEnd);
  if (m.name.find("Shift") != std::string::npos) {
    const bool equal = between(rng, 0, 2) == 0, above = between(rng, 0, 4) == 0;
    const auto count = [&] {
      const Hux32u large[] = {Hux32u(m.bits()), 31, 32, 40, 256, 0x80000000, 0xffffffff};
      return above || between(rng, 0, 5) == 0 ? std::max(large[rng() % 7], Hux32u(m.bits()))
                                              : Hux32u(between(rng, 0, m.bits() - 1));
    };
    const Hux32u first = count();
    for (int c = 0; c < m.layout.touched; ++c) pixel.set<Hux32u>(0, 0, c, equal ? first : count());
  } else if (between(rng, 0, 2) == 0) {
    for (int c = 1; c < m.layout.touched; ++c)
      std::memcpy(pixel.bytes() + c * m.constantBytes, pixel.bytes(), std::size_t(m.constantBytes));
  }
  return pixel;
}

TEST(Logic, EveryElementIsThatOfTheDefinition) {
  Rng rng(1);
  for (const Member& m : members()) {
    SCOPED_TRACE(m.name);
    forShapes(rng, 150, [&](int width, int height, Place place) {
      const bool inPlace = !m.call || between(rng, 0, 1);
      const Image a(rng, width, height, m.pixelBytes(), place), b(rng, width, height, m.pixelBytes(), place),
          other(rng, width, height, m.pixelBytes(), place), &dst = inPlace ? b : other;
      for (const Image* image : {&a, &b, &other}) addExtremes(rng, m, *image);
      const Image pixel = m.first == First::kConstant ? makeConstants(rng, m) : Image(rng, 1, 1, 1);
      const Image aBefore = a, bBefore = b, expected = dst;
      const auto at = [&](const Image& image, int x, int y, int c) {
        return number(image.bytes(x, y) + c * m.elementBytes, m.elementBytes, m.isSigned());
      };
      forElements({width, height}, m.layout.touched, [&](int x, int y, int c) {
        const std::int64_t first = m.first == First::kImage
                                       ? at(a, x, y, c)
                                       : number(pixel.bytes() + c * m.constantBytes, m.constantBytes, false);
        const std::int64_t v = m.define(at(bBefore, x, y, c), first, m.bits());
        std::memcpy(expected.bytes(x, y) + c * m.elementBytes, &v, std::size_t(m.elementBytes));
      });
      const void* first = m.first == First::kConstant ? pixel.bytes() : a.bytes();
      ASSERT_EQ((inPlace ? m.inPlace : m.call)(first, a.step(), b.bytes(), b.step(), dst.bytes(), dst.step(),
                                               dst.size(), nullptr),
                huxStsOk);
      ASSERT_TRUE(same(dst, expected)) << (inPlace ? "in place" : "out of place");
      ASSERT_TRUE(same(a, aBefore) && (inPlace || same(b, bBefore)));
    });
  }
}

// All pairs of bytes; all 16-bit elements with the numbers at which a product carries.
TEST(Logic, MulScaleIsExactForAllOperands) {
  const auto verify = [](auto mulScale, auto largest, const std::vector<int>& factors) {
    using T = decltype(largest);
    std::vector<T> a(std::size_t(largest) + 1), b(a.size()), d(a.size());
    for (std::size_t i = 0; i < a.size(); ++i) a[i] = T(i);
    for (int factor : factors) {
      std::fill(b.begin(), b.end(), T(factor));
      const int step = int(a.size() * sizeof(T));
      ASSERT_EQ(mulScale(a.data(), step, b.data(), step, d.data(), step, HuxiSize{int(a.size()), 1}), huxStsOk);
      for (std::size_t i = 0; i < a.size(); ++i)
        ASSERT_EQ(d[i], definedMulScale(std::int64_t(i), factor, 8 * sizeof(T))) << i << " * " << factor;
    }
  };
  std::vector<int> all(256);
  for (int i = 0; i < 256; ++i) all[std::size_t(i)] = i;
  verify(huxiMulScale_8u_C1R, Hux8u(255), all);
  verify(huxiMulScale_16u_C1R, Hux16u(65535),
         {0, 1, 2, 3, 254, 255, 256, 257, 12345, 32767, 32768, 32769, 54321, 65533, 65534, 65535});
}

TEST(Logic, ChecksPointersThenStepsThenSize) {
  Rng rng(3);
  const Image image(rng, 1, 1, 16);
  const Hux32u counts[] = {1000, 1000, 1000, 1000};  // a large count is looked at last
  for (const Member& m : members())
    for (bool inPlace : {false, true}) {
      if (!inPlace && !m.call) continue;
      SCOPED_TRACE(m.name + (inPlace ? ", in place" : ""));
      const bool images = m.first == First::kImage, constant = m.first == First::kConstant;
      Arguments a(image);
      if (constant) a.a = counts;
      CheckOrder order(
          [&] { return (inPlace ? m.inPlace : m.call)(a.a, a.aStep, a.b, a.bStep, a.d, a.dStep, a.roi, nullptr); });
      const std::string without = inPlace ? "bB" : "", none = images                            ? ""
                                                              : constant && m.layout.stride > 1 ? "A"
                                                                                                : "aA";
      order.in(a, m.sizeFirst(inPlace) ? "zabdABD" : "abdABDz", without + none).run(image);
    }
}

}  // namespace
}  // namespace hux::test
