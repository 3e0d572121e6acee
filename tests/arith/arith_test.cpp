// Add, Sub, Mul and their forms with a constant, against exact integer arithmetic.
#include "arith/real.h"

namespace hux::test {
namespace {

// The element that the definition gives; operands in the order of the argument lists.
template <class T>
T defined(Op op, T a, T b, int scaleFactor) {
  if constexpr (std::is_floating_point_v<T>) {
    return op == Op::Add ? a + b : op == Op::Sub ? b - a : a * b;
  } else {
    __int128 v = op == Op::Add ? std::int64_t(a) + b : op == Op::Sub ? std::int64_t(b) - a : std::int64_t(a) * b;
    if (std::is_unsigned_v<T> && v < 0) v = 0;
    const int n = std::clamp(scaleFactor, -80, 80);
    if (n < 0) v *= __int128(1) << -n;
    if (n > 0) v = (v + (__int128(1) << (n - 1)) - 1 + ((v >> n) & 1)) >> n;
    return T(std::clamp<__int128>(v, std::numeric_limits<T>::min(), std::numeric_limits<T>::max()));
  }
}

template <class T>
struct Arith : testing::Test {};
using Types = testing::Types<Hux8u, Hux16s, Hux16u, Hux32f>;
TYPED_TEST_SUITE(Arith, Types);

TYPED_TEST(Arith, FollowsTheDefinitionInAllShapes) {
  using T = TypeParam;
  for (const auto& m : members<T>(Op::Div, true)) {
    const auto element = [&](T a, T b, int scale) { return defined(m.op, a, b, scale); };
    compareWith<T>(m, 1, kScaleFactors, element, element, [](auto...) { return huxStsOk; });
  }
}

template <class T>
struct ArithOfIntegers : testing::Test {};
using Integers = testing::Types<Hux8u, Hux16s, Hux16u>;
TYPED_TEST_SUITE(ArithOfIntegers, Integers);

// Every scale factor with every pair: of all bytes, and of a rich choice of longer integers.
TYPED_TEST(ArithOfIntegers, IsExactForAllPairsAtAllScaleFactors) {
  using T = TypeParam;
  Pairs<T> p(richValues<T>());
  for (const auto& m : members<T>(Op::Div, true)) {
    if (m.layout.stride != 1) continue;
    for (int scale : kScaleFactors) {
      ASSERT_EQ(m.images(p.first.data(), p.step(), p.second.data(), p.step(), p.result.data(), p.step(), p.size, scale),
                huxStsOk);
      for (std::size_t i = 0; i < p.result.size(); ++i)
        ASSERT_EQ(p.result[i], defined(m.op, p.first[i], p.second[i], scale))
            << m.name << " of " << int(p.first[i]) << ", " << int(p.second[i]) << " at " << scale;
      // The constant form meets the same pairs row by row, with its shortcuts.
      for (int y = 0; y < p.size.height; y += 7) {
        const T value = p.second[std::size_t(y) * std::size_t(p.size.width)];
        ASSERT_EQ(m.constant(p.first.data(), p.step(), &value, p.result.data(), p.step(), {p.size.width, 1}, scale),
                  huxStsOk);
        for (int x = 0; x < p.size.width; ++x)
          ASSERT_EQ(p.result[std::size_t(x)], defined(m.op, value, p.first[std::size_t(x)], scale))
              << m.name << "C of " << int(p.first[std::size_t(x)]) << ", " << int(value) << " at " << scale;
      }
    }
  }
}

// Where the region is handed to Set: all results are 0, or all are the top of the range.
template <class T>
bool allZero(const Member& m, int scale) {
  constexpr bool byte = sizeof(T) == 1, isSigned = std::is_signed_v<T>;
  if (m.op == Op::Add) return scale > (byte ? 9 : isSigned ? 16 : 17);
  if (m.op == Op::Sub) return scale > (byte ? 8 : 16);
  return scale > (byte ? 16 : isSigned ? 30 : 32);
}
template <class T>
bool constantSet(const Member& m, T value, int scale) {
  // Of 16u, three equal channels are one channel of thrice the width.
  const bool single = m.layout.stride == 1 || (std::is_same_v<T, Hux16u> && m.layout.stride == 3);
  if (allZero<T>(m, scale)) return true;
  if (m.op == Op::Mul) return single && value == 0;
  return m.op == Op::Add && std::is_unsigned_v<T> && single && value != 0 && scale < (sizeof(T) == 1 ? -7 : -15);
}

// Steps are not looked at, but for dstStep where Set looks at it: that tells which calls go through Set.
TYPED_TEST(ArithOfIntegers, ShortcutsAreThoseOfSet) {
  using T = TypeParam;
  std::vector<T> src(64), dst(64);
  for (const auto& m : members<T>(Op::Div, true))
    for (int scale : kScaleFactors) {
      SCOPED_TRACE(m.name + " at " + std::to_string(scale));
      const HuxStatus expected = allZero<T>(m, scale) ? huxStsBadStep : huxStsOk;
      EXPECT_EQ(m.images(src.data(), 0, src.data(), -1, dst.data(), 0, {3, 1}, scale), expected);
      EXPECT_EQ(m.imagesInPlace(src.data(), 0, dst.data(), 0, {3, 1}, scale), expected);
      for (T value : {T(0), T(1), T(2)}) {
        const T values[] = {value, value, value, value};
        const HuxStatus s = constantSet(m, value, scale) ? huxStsBadStep : huxStsOk;
        EXPECT_EQ(m.constant(src.data(), 0, values, dst.data(), 0, {3, 1}, scale), s) << int(value);
        EXPECT_EQ(m.constantInPlace(values, dst.data(), -4, {3, 1}, scale), s) << int(value);
      }
    }
}

TYPED_TEST(Arith, ChecksInOrder) {
  using T = TypeParam;
  Rng rng(3);
  const Image image(rng, 16, 4, 16);
  const T ones[] = {1, 1, 1, 1};
  for (const auto& m : members<T>(Op::Div, true))
    for (int scale : {0, 40}) {
      SCOPED_TRACE(m.name + " at " + std::to_string(scale));
      const bool zeroed = scale != 0 && !std::is_same_v<T, Hux32f>;
      // Forms that stand for one channel ask for a width first, unless 16u takes its shortcut before that.
      const bool widthFirst = m.equalChannels() && !(zeroed && std::is_same_v<T, Hux16u>);
      Arguments a(image);
      const T* c = ones;
      int step = zeroed ? 1 : 0;
      CheckOrder images([&] { return m.images(a.a, 0, a.b, 0, a.d, step, a.roi, scale); });
      images.in(a, widthFirst ? "wabdh" : "abdz");
      if (zeroed) images.breaks(huxStsBadStep, step, 0);
      images.run(image);
      CheckOrder constant([&] { return m.constant(a.b, 0, c, a.d, step, a.roi, scale); });
      if (m.layout.stride > 1) constant.nulls(c);
      constant.in(a, "bdz");
      if (zeroed) constant.breaks(huxStsBadStep, step, 0);
      constant.run(image);
    }
}

}  // namespace
}  // namespace hux::test
