// Real vector arithmetic, fills, moves and measures. The rules of scaled results are those of the images and tested
// there; here it is the vectors' own frame, types and shortcuts.
#include <climits>
#include <cmath>

#include "huxi_arith.h"
#include "huxs.h"
#include "support/complex_reference.h"
#include "support/forms.h"

namespace hux::test {
namespace {

constexpr int kLengths = 150;
constexpr float kInf = std::numeric_limits<float>::infinity(), kNaN = std::numeric_limits<float>::quiet_NaN();

// A vector is an image of one row, of either alignment, next to unreadable pages or not.
template <class T, class Make>
Image vectorOf(Rng& rng, int len, Make make) {
  Image v(rng, len, 1, sizeof(T), Place(len % 3));
  v.fill<T>(make);
  return v;
}

// Runs call(image) on a copy of `base` and compares with element(i) in all its elements.
template <class T, class Element, class Call>
void expectVector(const Image& base, Element element, Call call, HuxStatus status = huxStsOk) {
  const Image actual = base;
  Image expected = base;
  for (int i = 0; i < base.width(); ++i) expected.set<T>(i, 0, 0, element(i));
  ASSERT_EQ(call(actual.data<T>()), status);
  ASSERT_TRUE(same(actual, expected)) << "length " << base.width();
}

TEST(VectorArith, ScaledSumsAndDifferencesAreExact) {
  Rng rng(1);
  const auto run = [&]<class T>(T, bool sub, auto plain, auto inPlace) {
    const auto make = [&] {
      return T(between(rng, 0, 2)   ? rng()
               : between(rng, 0, 1) ? std::numeric_limits<T>::max()
                                    : std::numeric_limits<T>::min());
    };
    const std::vector<int> scales = {0,  1,  -1, 2,   8,   -8,  15,  16,  17,   18,      31,
                                     32, 33, 34, -16, -31, -32, -33, 100, -100, INT_MIN, INT_MAX};
    for (int len = 1; len <= kLengths; ++len)
      for (int scale : {scales[std::size_t(len) % scales.size()], 0}) {
        const Image a = vectorOf<T>(rng, len, make), b = vectorOf<T>(rng, len, make), d = vectorOf<T>(rng, len, make);
        const auto element = [&](int i) {
          const std::int64_t x = a.get<T>(i, 0), y = b.get<T>(i, 0);
          return scaled<T>(sub ? y - x : x + y, scale);
        };
        expectVector<T>(d, element, [&](T* p) { return plain(a.data<T>(), b.data<T>(), p, len, scale); });
        expectVector<T>(b, element, [&](T* p) { return inPlace(a.data<T>(), p, len, scale); });
      }
  };
  run(Hux16s(), false, huxsAdd_16s_Sfs, huxsAdd_16s_ISfs);
  run(Hux16s(), true, huxsSub_16s_Sfs, huxsSub_16s_ISfs);
  run(Hux32s(), false, huxsAdd_32s_Sfs, huxsAdd_32s_ISfs);
  run(Hux32s(), true, huxsSub_32s_Sfs, huxsSub_32s_ISfs);
}

TEST(VectorArith, FloatsAreAddedSubtractedMultiplied) {
  Rng rng(2);
  const auto make = [&] { return std::ldexp(float(between(rng, -99999, 99999)), between(rng, -30, 30)); };
  for (int len = 1; len <= kLengths; ++len) {
    const Image a = vectorOf<float>(rng, len, make), b = vectorOf<float>(rng, len, make),
                d = vectorOf<float>(rng, len, make);
    const float value = make() + 0.5f, *pA = a.data<float>(), *pB = b.data<float>();
    // plain(p) writes to d, inPlace(p) over b.
    const auto expect = [&](auto rule, auto plain, auto inPlace) {
      const auto element = [&](int i) { return rule(a.get<float>(i, 0), b.get<float>(i, 0)); };
      expectVector<float>(d, element, plain);
      expectVector<float>(b, element, inPlace);
    };
    expect([](float x, float y) { return x + y; }, [&](float* p) { return huxsAdd_32f(pA, pB, p, len); },
           [&](float* p) { return huxsAdd_32f_I(pA, p, len); });
    expect([](float x, float y) { return y - x; }, [&](float* p) { return huxsSub_32f(pA, pB, p, len); },
           [&](float* p) { return huxsSub_32f_I(pA, p, len); });
    expect([&](float, float y) { return y - value; }, [&](float* p) { return huxsSubC_32f(pB, value, p, len); },
           [&](float* p) { return huxsSubC_32f_I(value, p, len); });
    expectVector<float>(
        b, [&](int i) { return b.get<float>(i, 0) * value; }, [&](float* p) { return huxsMulC_32f_I(value, p, len); });
  }
}

// 0 subtracted, NaN included, and 1 multiplied leave the bits alone; 0 multiplied gives 0, of infinity and NaN too.
TEST(VectorArith, ConstantsThatDecideTheResult) {
  Rng rng(3);
  const Image v(rng, 20, 1, 4), d(rng, 20, 1, 4);  // any bits, signalling NaNs among them
  const auto bits = [&](int i) { return v.get<Hux32u>(i, 0); };
  const auto f = [](Hux32u* p) { return reinterpret_cast<float*>(p); };
  for (float zero : {0.0f, -0.0f, kNaN}) {
    expectVector<Hux32u>(d, bits, [&](Hux32u* p) { return huxsSubC_32f(v.data<float>(), zero, f(p), 20); });
    expectVector<Hux32u>(v, bits, [&](Hux32u* p) { return huxsSubC_32f_I(zero, f(p), 20); });
  }
  expectVector<Hux32u>(v, bits, [&](Hux32u* p) { return huxsMulC_32f_I(1.0f, f(p), 20); });
  float values[] = {kInf, kNaN, -3, -0.0f};
  ASSERT_EQ(huxsMulC_32f_I(-0.0f, values, 4), huxStsOk);
  for (float e : values) EXPECT_TRUE(e == 0 && !std::signbit(e));
  float other[] = {kInf, 0, -3, 1};
  ASSERT_EQ(huxsMulC_32f_I(kNaN, other, 4), huxStsOk);
  for (float e : other) EXPECT_TRUE(std::isnan(e));
}

// The quotients are those of the image functions; warnings and errors as there.
TEST(VectorArith, DivisionIsThatOfImages) {
  Rng rng(4);
  const auto run = [&]<class T>(T, auto divide, auto image, auto divideC, auto imageC) {
    for (int len = 1; len <= kLengths; ++len) {
      const auto make = [&] { return T(between(rng, 0, 30) ? rng() >> between(rng, 48, 62) : 0); };
      const Image a = vectorOf<T>(rng, len, make), b = vectorOf<T>(rng, len, make), d = vectorOf<T>(rng, len, make);
      const Image expected = d, expectedC = d;
      const int scale = between(rng, -20, 20), step = d.step();
      const HuxStatus status = image(a.data<T>(), step, b.data<T>(), step, expected.data<T>(), step, {len, 1}, scale);
      expectVector<T>(
          d, [&](int i) { return expected.get<T>(i, 0); },
          [&](T* p) { return divide(a.data<T>(), b.data<T>(), p, len, scale); }, status);
      const T value = T(len % 20);
      const HuxStatus statusC = imageC(b.data<T>(), step, value, expectedC.data<T>(), step, {len, 1}, scale);
      ASSERT_EQ(statusC, value ? huxStsOk : huxStsDivByZero);
      expectVector<T>(
          d, [&](int i) { return expectedC.get<T>(i, 0); },
          [&](T* p) { return divideC(b.data<T>(), value, p, len, scale); }, statusC);
    }
  };
  run(Hux8u(), huxsDiv_8u_Sfs, huxiDiv_8u_C1RSfs, huxsDivC_8u_Sfs, huxiDivC_8u_C1RSfs);
  run(Hux16s(), huxsDiv_16s_Sfs, huxiDiv_16s_C1RSfs, huxsDivC_16s_Sfs, huxiDivC_16s_C1RSfs);
  const float d[] = {0, -0.0f, kNaN, 0, kNaN, -2}, n[] = {1, 0, -1, kNaN, kNaN, 5};
  float q[6];
  EXPECT_EQ(huxsDiv_32f(d, n, q, 6), huxStsDivByZeroWarn);
  EXPECT_EQ(q[0], kInf);
  EXPECT_TRUE(std::isnan(q[1]) && !std::signbit(q[1]));
  for (int i : {2, 3, 4}) EXPECT_EQ(q[i], -kInf);
  EXPECT_EQ(q[5], -2.5f);
  EXPECT_EQ(huxsDiv_32f(d + 5, n, q, 1), huxStsOk);
}

TEST(VectorFill, SetAndZeroMoveBitsOnly) {
  Rng rng(5);
  const auto run = [&]<class T>(T, auto set, auto zero) {
    for (int len = 1; len <= kLengths; ++len) {
      std::array<std::byte, sizeof(T)> bits;
      for (auto& b : bits) b = std::byte(rng());
      const T value = std::bit_cast<T>(bits);
      const Image d(rng, len, 1, sizeof(T), Place(len % 3)), expected = d, zeros = d;
      for (int i = 0; i < len; ++i) std::memcpy(expected.bytes(i), &bits, sizeof bits);
      std::memset(zeros.bytes(), 0, std::size_t(len) * sizeof(T));
      const Image actual = d, cleared = d;
      ASSERT_EQ(set(value, actual.data<T>(), len), huxStsOk);
      ASSERT_TRUE(same(actual, expected));
      if constexpr (!std::is_null_pointer_v<decltype(zero)>) {
        ASSERT_EQ(zero(cleared.data<T>(), len), huxStsOk);
        ASSERT_TRUE(same(cleared, zeros));
      }
    }
  };
  run(Hux8u(), huxsSet_8u, huxsZero_8u);
  run(Hux16s(), huxsSet_16s, huxsZero_16s);
  run(Hux32s(), huxsSet_32s, nullptr);
  run(Hux32f(), huxsSet_32f, huxsZero_32f);
  run(Hux16sc(), huxsSet_16sc, huxsZero_16sc);
  run(Hux32fc(), huxsSet_32fc, nullptr);
}

// Move keeps all values whatever the overlap; a source up to an element ahead is taken for the same place.
TEST(VectorFill, CopyAndMove) {
  Rng rng(6);
  const auto run = [&]<class T>(T, auto function, bool overlap) {
    const int size = int(sizeof(T));
    for (int len : {1, 7, 64, 100})
      for (int ahead : {0, 1, 2, 3, 4, 5, -1, -2, -4, -8, 40, -40, 1000}) {
        if (!overlap && std::abs(ahead) < 1000) continue;
        const Image buffer(rng, 3000, 1, 1), expected = buffer;
        const int dst = 1200, src = dst + ahead;
        if (ahead < 0 || ahead >= size) std::memmove(expected.bytes(dst), buffer.bytes(src), std::size_t(len * size));
        ASSERT_EQ(function(reinterpret_cast<const T*>(buffer.bytes(src)), reinterpret_cast<T*>(buffer.bytes(dst)), len),
                  huxStsOk);
        ASSERT_TRUE(same(buffer, expected)) << len << " elements from " << ahead << " bytes ahead";
      }
  };
  run(Hux8u(), huxsCopy_8u, false);
  run(Hux32f(), huxsCopy_32f, false);
  run(Hux16s(), huxsMove_16s, true);
  run(Hux32f(), huxsMove_32f, true);
}

TEST(VectorMeasure, SumsInTheToldPrecision) {
  Rng rng(7);
  for (int len = 1; len <= 400; ++len) {
    // Integers whose sums are exact in single precision, and one that only double precision can carry along.
    const bool large = len > 2 && len % 2;
    const auto make = [&] { return float(between(rng, -90, 90)); };
    Image a = vectorOf<float>(rng, len, make);
    const Image b = vectorOf<float>(rng, len, make);
    double dot = 0, sum = 0, squares = 0;
    for (int i = 0; i < len; ++i) dot += double(a.get<float>(i, 0)) * b.get<float>(i, 0);
    if (large) a.set<float>(0, 0, 0, 0x1p30f), a.set<float>(len - 1, 0, 0, 1 - 0x1p30f - 1);
    for (int i = 0; i < len; ++i) sum += a.get<float>(i, 0), squares += double(a.get<float>(i, 0)) * a.get<float>(i, 0);
    float result = kNaN;
    ASSERT_EQ(huxsMean_32f(a.data<float>(), len, &result), huxStsOk);
    ASSERT_EQ(result, float(sum / len));
    ASSERT_EQ(huxsNorm_L2_32f(a.data<float>(), len, &result), huxStsOk);
    ASSERT_FLOAT_EQ(result, float(std::sqrt(squares)));
    if (large) continue;
    ASSERT_EQ(huxsDotProd_32f(a.data<float>(), b.data<float>(), len, &result), huxStsOk);
    ASSERT_EQ(result, float(dot));
  }
  const float huge[] = {0x1p100f, 0x1p100f};
  float result;
  ASSERT_EQ(huxsNorm_L2_32f(huge, 2, &result), huxStsOk);
  EXPECT_EQ(result, float(std::sqrt(0x1p201)));
  ASSERT_EQ(huxsDotProd_32f(huge, huge, 2, &result), huxStsOk);
  EXPECT_EQ(result, kInf);
}

TEST(Vector, ChecksPointersThenLength) {
  Rng rng(8);
  const Image memory(rng, 64, 1, 1);
  // What a member does not take is not broken; a constant that is not 0 comes through a pointer.
  using CheckFn = HuxStatus(const void* a, const void* b, void* d, int len, const void* constant, int scale);
  struct Case {
    int reads;
    CheckFn* call;
  };
#define CASE(reads, f, ...) {reads, as<CheckFn, huxs##f, __VA_ARGS__>},
#define TWO(f, s, i) CASE(2, f##s, 0, 1, 2, 3, 5) CASE(1, f##i, 0, 2, 3, 5)
#define SUMS(op, _) TWO(op##_16s, _Sfs, _ISfs) TWO(op##_32s, _Sfs, _ISfs) TWO(op##_32f, , _I)
#define QUOTIENT(f, _) CASE(2, Div_##f, 0, 1, 2, 3, 5)
#define QUOTIENT_C(f, _) CASE(1, DivC_##f, 0, 4, 2, 3, 5)
#define FILL(f, _) CASE(0, f, 4, 2, 3)
#define ZERO(f, _) CASE(0, Zero_##f, 2, 3)
#define COPY(f, _) CASE(1, f, 0, 2, 3)
  const Case cases[] = {
    HUX_STAMP(SUMS, (Add, Sub), (_)) CASE(1, SubC_32f, 0, 4, 2, 3) HUX_STAMP(QUOTIENT, (32f, 8u_Sfs, 16s_Sfs), (_))
        HUX_STAMP(QUOTIENT_C, (8u_Sfs, 16s_Sfs), (_))
            HUX_STAMP(FILL, (SubC_32f_I, MulC_32f_I, Set_8u, Set_16s, Set_32s, Set_32f, Set_16sc, Set_32fc), (_))
                HUX_STAMP(ZERO, (8u, 16s, 16sc, 32f), (_)) HUX_STAMP(COPY, (Copy_8u, Copy_32f, Move_16s, Move_32f), (_))
                    CASE(1, Mean_32f, 0, 3, 2) CASE(1, Norm_L2_32f, 0, 3, 2) CASE(2, DotProd_32f, 0, 1, 3, 2)
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(&c - cases);
    const void *a = memory.bytes(), *b = memory.bytes(8);
    void* d = memory.bytes(16);
    const Hux64f constant = 1.0000001;  // whose bits are no zero of any type
    int len = 1;
    CheckOrder order([&] { return std::min<HuxStatus>(c.call(a, b, d, len, &constant, 90), huxStsOk); });
    if (c.reads > 0) order.nulls(a);
    if (c.reads > 1) order.nulls(b);
    order.nulls(d).breaks(huxStsBadSize, len, 0).breaks(huxStsBadSize, len, INT_MIN).run(memory);
  }
  Hux8u byte = 9;
  EXPECT_EQ(huxsDivC_8u_Sfs(&byte, 0, &byte, 0, 0), huxStsBadSize);
  EXPECT_EQ(huxsDivC_8u_Sfs(&byte, 0, &byte, 1, 0), huxStsDivByZero);
  EXPECT_EQ(byte, 9);
}

}  // namespace
}  // namespace hux::test
