// Bit operations, shifts and products of fractions, against their definitions on single elements in 64 bits.
#include "arith/samples.h"
#include "core/stamp.h"
#include "huxi_arith.h"
#include "support/image.h"
#include "support/order.h"

namespace hux::test {
namespace {

// The second operand of a member: an image, a pixel of constants, or none.
enum class Second { kImage, kConstant, kNone };

// In place, the first operand is none in the forms with one image, and the destination is the second of two images.
using Call = HuxStatus (*)(const void* a, int aStep, const void* b, int bStep, void* dst, int dstStep, HuxiSize roi);

struct Member {
  std::string name;
  int bytes;
  bool isSigned;
  int channels, processed;
  Second second;
  int constantBytes;
  bool sizeFirst, sizeFirstInPlace;
  std::int64_t (*define)(std::int64_t a, std::int64_t b, int bits);
  Call call, inPlace;
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

// C3 and C4 forms on two images stand for C1.
template <class L>
constexpr bool kDelegates = L::channels > 1 && L::channels == L::processed;

#define CALL(...)                                                                                \
  [](const void* a, int aStep, const void* b, int bStep, void* dst, int dstStep, HuxiSize roi) { \
    (void)a, (void)aStep, (void)b, (void)bStep;                                                  \
    return __VA_ARGS__;                                                                          \
  }
#define MEMBER(f, t, l, second, constantBytes, sizeFirst, sizeFirstInPlace, define, call, inPlace)                 \
  Member{"huxi" #f "_" #t "_" #l, sizeof(Hux##t), Hux##t(-1) < 0,   l::channels,     l::processed, Second::second, \
         constantBytes,           sizeFirst,      sizeFirstInPlace, defined##define, call,         inPlace},
#define IMAGES(f, define, t, l)                                                                                  \
  MEMBER(f, t, l, kImage, 0, kDelegates<l>, kDelegates<l>, define,                                               \
         CALL(huxi##f##_##t##_##l##R(static_cast<const Hux##t*>(a), aStep, static_cast<const Hux##t*>(b), bStep, \
                                     static_cast<Hux##t*>(dst), dstStep, roi)),                                  \
         CALL(huxi##f##_##t##_##l##IR(static_cast<const Hux##t*>(a), aStep, static_cast<Hux##t*>(dst), dstStep, roi)))
#define CONSTANT(f, define, t, l, ct)                                                          \
  MEMBER(f, t, l, kConstant, sizeof(ct), false, false, define,                                 \
         CALL(huxi##f##_##t##_##l##R(static_cast<const Hux##t*>(a), aStep, constant<l, ct>(b), \
                                     static_cast<Hux##t*>(dst), dstStep, roi)),                \
         CALL(huxi##f##_##t##_##l##IR(constant<l, ct>(b), static_cast<Hux##t*>(dst), dstStep, roi)))
#define NOT(t, l)                                                                                                   \
  MEMBER(Not, t, l, kNone, 0, kDelegates<l>, false, Not,                                                            \
         CALL(huxiNot_##t##_##l##R(static_cast<const Hux##t*>(a), aStep, static_cast<Hux##t*>(dst), dstStep, roi)), \
         CALL(huxiNot_##t##_##l##IR(static_cast<Hux##t*>(dst), dstStep, roi)))
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
    MEMBER(Complement, 32s, C1, kNone, 0, false, false, Complement, nullptr,
           CALL(huxiComplement_32s_C1IR(static_cast<Hux32s*>(dst), dstStep, roi)))
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
    for (int e = 0; e < image.width() * m.channels; ++e) {
      const std::uint64_t roll = rng();
      if (roll % 3) continue;
      const std::uint32_t top = 1u << (8 * m.bytes - 1), values[] = {0, 1, ~0u, top, top - 1, top + 1};
      std::memcpy(image.bytes(0, y) + e * m.bytes, &values[roll / 3 % 6], std::size_t(m.bytes));
    }
}

// The constants of a pixel, with nothing readable behind the last. Counts of shifts are mostly about the limit.
Image makeConstants(Rng& rng, const Member& m) {
  Image pixel(rng, 1, 1, m.processed * m.constantBytes, Place::kEnd);
  if (m.name.find("Shift") != std::string::npos) {
    const bool equal = between(rng, 0, 2) == 0, above = between(rng, 0, 4) == 0;
    const auto count = [&] {
      const Hux32u large[] = {Hux32u(8 * m.bytes), 31, 32, 40, 256, 0x80000000, 0xffffffff};
      return above || between(rng, 0, 5) == 0 ? std::max(large[rng() % 7], Hux32u(8 * m.bytes))
                                              : Hux32u(between(rng, 0, 8 * m.bytes - 1));
    };
    const Hux32u first = count();
    for (int c = 0; c < m.processed; ++c) pixel.set<Hux32u>(0, 0, c, equal ? first : count());
  } else if (between(rng, 0, 2) == 0) {
    for (int c = 1; c < m.processed; ++c)
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
      const Image a(rng, width, height, m.channels * m.bytes, place),
          b(rng, width, height, m.channels * m.bytes, place), dst(rng, width, height, m.channels * m.bytes, place);
      for (const Image* image : {&a, &b, &dst}) addExtremes(rng, m, *image);
      const Image pixel = m.second == Second::kConstant ? makeConstants(rng, m) : Image(rng, 1, 1, 1);
      const Image aBefore = a, bBefore = b, expected = dst;
      // Of two images the destination is the second, else the only one.
      const Image &first = inPlace && m.second != Second::kImage ? dst : a, &second = inPlace ? dst : b;
      const auto at = [&](const Image& image, int x, int y, int c) {
        return number(image.bytes(x, y) + c * m.bytes, m.bytes, m.isSigned);
      };
      for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
          for (int c = 0; c < m.processed; ++c) {
            const std::int64_t other = m.second == Second::kImage
                                           ? at(second, x, y, c)
                                           : number(pixel.bytes() + c * m.constantBytes, m.constantBytes, false);
            const std::int64_t v = m.define(at(first, x, y, c), other, 8 * m.bytes);
            std::memcpy(expected.bytes(x, y) + c * m.bytes, &v, std::size_t(m.bytes));
          }
      const void* operand = m.second == Second::kConstant ? pixel.bytes() : b.bytes();
      ASSERT_EQ(
          (inPlace ? m.inPlace : m.call)(a.bytes(), a.step(), operand, b.step(), dst.bytes(), dst.step(), dst.size()),
          huxStsOk);
      ASSERT_TRUE(same(dst, expected)) << (inPlace ? "in place" : "out of place");
      ASSERT_TRUE(same(a, aBefore) && same(b, bBefore));
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
      const void *a = image.bytes(), *b = m.second == Second::kConstant ? static_cast<const void*>(counts) : a;
      void* dst = image.bytes();
      int aStep = 1, bStep = 1, dstStep = 1;
      HuxiSize roi = {1, 1};
      CheckOrder order([&] { return (inPlace ? m.inPlace : m.call)(a, aStep, b, bStep, dst, dstStep, roi); });
      const auto breakSize = [&] { order.breaks(huxStsBadSize, roi.width, 0).breaks(huxStsBadSize, roi.height, -1); };
      const bool sizeFirst = inPlace ? m.sizeFirstInPlace : m.sizeFirst;
      const bool hasA = !inPlace || m.second == Second::kImage, hasB = !inPlace && m.second == Second::kImage;
      if (sizeFirst) breakSize();
      if (hasA) order.breaks(huxStsNullPtr, a, nullptr);
      if (hasB || (m.second == Second::kConstant && m.channels > 1)) order.breaks(huxStsNullPtr, b, nullptr);
      order.breaks(huxStsNullPtr, dst, nullptr);
      if (hasA) order.breaks(huxStsBadStep, aStep, 0);
      if (hasB) order.breaks(huxStsBadStep, bStep, -1);
      order.breaks(huxStsBadStep, dstStep, 0);
      if (!sizeFirst) breakSize();
      order.run(image);
    }
}

}  // namespace
}  // namespace hux::test
