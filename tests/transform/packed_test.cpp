// Packed spectra beside their definition: where each frequency lies, and what the operations make of it.
#include "huxi_transform.h"
#include "huxs.h"
#include "support/complex_reference.h"
#include "support/failing_malloc.h"
#include "support/forms.h"

namespace hux::test {
namespace {

// What element (x, y) of a packed spectrum is: a part of the value at (u, v).
enum class PartKind { kReal, kRe, kIm };
struct Frequency {
  int u, v;
  PartKind part;
};
Frequency frequencyOf(int x, int y, HuxiSize size) {
  const auto part = [](int i) { return i % 2 ? PartKind::kRe : PartKind::kIm; };
  const bool lastColumn = size.width % 2 == 0 && x == size.width - 1;
  if (x > 0 && !lastColumn) return {(x + 1) / 2, y, part(x)};
  const int u = lastColumn ? size.width / 2 : 0;
  if (y == 0) return {u, 0, PartKind::kReal};
  if (size.height % 2 == 0 && y == size.height - 1) return {u, size.height / 2, PartKind::kReal};
  return {u, (y + 1) / 2, part(y)};
}

template <class C>
C conjugateOf(C z) {
  using T = PartOf<C>;
  if constexpr (std::is_integral_v<T>)
    if (z.im == std::numeric_limits<T>::min()) return {z.re, std::numeric_limits<T>::max()};
  return {z.re, T(-z.im)};
}

// The full spectrum of channel c, by rows.
template <class C>
std::vector<C> fullSpectrum(const Image& packed, HuxiSize size, int channels, int c) {
  using T = PartOf<C>;
  const int w = size.width, h = size.height;
  std::vector<C> full(std::size_t(w * h));
  std::vector<bool> known(full.size());
  for (int y = 0; y < h; ++y)
    for (int x = 0; x < w; ++x) {
      const Frequency p = frequencyOf(x, y, size);
      const std::size_t i = std::size_t(p.v * w + p.u);
      const T value = packed.get<T>(0, y, x * channels + c);
      known[i] = true;
      (p.part == PartKind::kIm ? full[i].im : full[i].re) = value;
    }
  for (int v = 0; v < h; ++v)
    for (int u = 0; u < w; ++u)
      if (!known[std::size_t(v * w + u)])
        full[std::size_t(v * w + u)] = conjugateOf(full[std::size_t((h - v) % h * w + (w - u) % w)]);
  return full;
}

// --- Products.

template <class T>
T clamped(__int128 v) {
  return T(std::clamp(v, __int128(std::numeric_limits<T>::min()), __int128(std::numeric_limits<T>::max())));
}
__int128 floorShift(__int128 v, int n) { return v >> std::min(n, 100); }

// A part of a complex product, and a real product, as they are scaled.
template <class T>
T scaledPart(__int128 v, int scaleFactor) {
  if (scaleFactor > 0) return clamped<T>(floorShift(v, scaleFactor));
  const int n = scaleFactor < -100 ? 100 : -scaleFactor;
  if (v > floorShift(std::numeric_limits<T>::max(), n)) return std::numeric_limits<T>::max();
  if (v < (n >= int(sizeof(T)) * 8 ? 0 : floorShift(std::numeric_limits<T>::min(), n)))
    return std::numeric_limits<T>::min();
  return T(v * (__int128(1) << std::min(n, 40)));
}
template <class T>
T scaledReal(__int128 v, int scaleFactor) {
  if (scaleFactor > 0) return clamped<T>(floorShift(v, scaleFactor));
  return clamped<T>(__int128(clamped<T>(v)) * (__int128(1) << (scaleFactor < -64 ? 64 : -scaleFactor)));
}

template <class C>
C packedProduct(C x, C y, bool real, bool conjugate, int scaleFactor) {
  using T = PartOf<C>;
  if constexpr (std::is_integral_v<T>) {
    const __int128 a = x.re, b = x.im, c = y.re, d = y.im, square = __int128(1) << (sizeof(T) * 16 - 2);
    if (real) return {scaledReal<T>(a * c, scaleFactor), 0};
    return {scaledPart<T>(a * c - b * d, scaleFactor),
            scaledPart<T>(a * d == square ? a * d : a * d + b * c, scaleFactor)};
  } else {
    if (real) return {x.re * y.re, 0};
    if (conjugate) return {x.re * y.re + x.im * y.im, x.im * y.re - x.re * y.im};
    return {x.re * y.re - x.im * y.im, x.re * y.im + x.im * y.re};
  }
}

template <class C, class Call, class InPlace>
void expectProducts(const Form& f, bool conjugate, Call call, InPlace inPlace) {
  using T = PartOf<C>;
  SCOPED_TRACE(f.name + (conjugate ? " conjugate" : ""));
  Rng rng(1);
  for (int turn = 0; turn < 90; ++turn) {
    const HuxiSize size{turn < 60 ? turn / 2 + 1 : between(rng, 1, 80), between(rng, 1, 9)};
    const Place place = Place(turn % 3);
    const auto image = [&] {
      Image made = touchedImage(rng, size.width, size.height, f.layout, f.elementBytes, place);
      for (int y = 0; y < size.height; ++y)
        for (int i = 0; i < made.width() / f.elementBytes; ++i) made.set<T>(0, y, i, anyPart<T>(rng));
      return made;
    };
    const Image a = image(), b = image();
    Image dst = image();
    const int scaleFactor = anyScale(rng), n = f.layout.stride;
    Image expected = dst, both = b, expectedBoth = b;
    for (int c = 0; c < f.layout.touched; ++c) {
      const auto fullA = fullSpectrum<C>(a, size, n, c), fullB = fullSpectrum<C>(b, size, n, c);
      for (int y = 0; y < size.height; ++y)
        for (int x = 0; x < size.width; ++x) {
          const Frequency p = frequencyOf(x, y, size);
          const std::size_t i = std::size_t(p.v * size.width + p.u);
          const C z = packedProduct(fullA[i], fullB[i], p.part == PartKind::kReal, conjugate, scaleFactor);
          const T value = p.part == PartKind::kIm ? z.im : z.re;
          expected.set<T>(0, y, x * n + c, value), expectedBoth.set<T>(0, y, x * n + c, value);
        }
    }
    ASSERT_EQ(call(a.data<T>(), a.step(), b.data<T>(), b.step(), dst.data<T>(), dst.step(), size, scaleFactor),
              huxStsOk);
    ASSERT_EQ(inPlace(a.data<T>(), a.step(), both.data<T>(), both.step(), size, scaleFactor), huxStsOk);
    // One NaN is as good as another.
    for (Image* pair : {&dst, &both})
      for (int y = 0; std::is_floating_point_v<T> && y < size.height; ++y)
        for (int i = 0; i < a.width() / f.elementBytes; ++i) {
          const Image& truth = pair == &dst ? expected : expectedBoth;
          const T wanted = truth.get<T>(0, y, i), got = pair->get<T>(0, y, i);
          if (wanted != wanted && got != got) pair->set<T>(0, y, i, wanted);
        }
    ASSERT_TRUE(same(dst, expected)) << size.width << "x" << size.height << " scale " << scaleFactor;
    ASSERT_TRUE(same(both, expectedBoth)) << size.width << "x" << size.height << " in place, scale " << scaleFactor;
  }
  // Checks.
  Image a(rng, 32, 4, 4), dst(rng, 32, 4, 4);
  T *p1 = a.data<T>(), *p2 = a.data<T>(), *pDst = dst.data<T>();
  int step1 = a.step(), step2 = a.step(), dstStep = dst.step();
  HuxiSize roi{4, 4};
  CheckOrder([&] { return call(p1, step1, p2, step2, pDst, dstStep, roi, 1); })
      .breaks(huxStsNullPtr, p1, nullptr)
      .breaks(huxStsNullPtr, p2, nullptr)
      .breaks(huxStsNullPtr, pDst, nullptr)
      .breaks(huxStsBadStep, step1, 0)
      .breaks(huxStsBadStep, step2, -4)
      .breaks(huxStsBadStep, dstStep, 0)
      .breaks(huxStsBadSize, roi.width, 0)
      .breaks(huxStsBadSize, roi.height, -1)
      .run(dst);
  CheckOrder([&] { return inPlace(p1, step1, pDst, dstStep, roi, 1); })
      .breaks(huxStsNullPtr, p1, nullptr)
      .breaks(huxStsNullPtr, pDst, nullptr)
      .breaks(huxStsBadStep, step1, 0)
      .breaks(huxStsBadStep, dstStep, 0)
      .breaks(huxStsBadSize, roi.height, 0)
      .run(dst);
}

TEST(MulPack, IsTheProductOfTheSpectra) {
#define FLOATS(name, conjugate, l)                                              \
  expectProducts<Hux32fc>(                                                      \
      HUX_FORM(32f, l), conjugate,                                              \
      [](auto p1, int s1, auto p2, int s2, auto d, int ds, HuxiSize roi, int) { \
        return huxi##name##_32f_##l##R(p1, s1, p2, s2, d, ds, roi);             \
      },                                                                        \
      [](auto p1, int s1, auto d, int ds, HuxiSize roi, int) {                  \
        return huxi##name##_32f_##l##IR(p1, s1, d, ds, roi);                    \
      });
#define INTEGERS(t, l) \
  expectProducts<Hux##t##c>(HUX_FORM(t, l), false, huxiMulPack_##t##_##l##RSfs, huxiMulPack_##t##_##l##IRSfs);
#define BOTH(_, l) FLOATS(MulPack, false, l) FLOATS(MulPackConj, true, l)
  HUX_STAMP(BOTH, (_), (C1, C3, C4, AC4))
  HUX_STAMP(INTEGERS, (16s, 32s), (C1, C3, C4, AC4))
}

// --- The full spectrum, and measures of it.

// Calls body(size, place) for small sizes of all parities.
template <class Body>
void forSizes(Rng& rng, Body body) {
  for (int turn = 0; turn < 60; ++turn)
    body(HuxiSize{turn < 40 ? turn / 2 + 1 : between(rng, 1, 50), between(rng, 1, 8)}, Place(turn % 3));
}
template <class T>
Image anyImage(Rng& rng, int width, HuxiSize size, Place place) {
  Image image(rng, width * int(sizeof(T)), size.height, 1, place);
  for (int y = 0; y < size.height; ++y)
    for (int i = 0; i < width; ++i) {
      T value = anyPart<T>(rng);
      image.set<T>(0, y, i, value == value ? value : T(1));
    }
  return image;
}

// Rows of the full spectrum through a vector function.
template <class C, class Call, class Vector>
void expectMeasured(const char* name, int channels, Call call, Vector vector) {
  using T = PartOf<C>;
  SCOPED_TRACE(testing::Message() << name << " C" << channels);
  Rng rng(2);
  forSizes(rng, [&](HuxiSize size, Place place) {
    const int n = size.width * channels, scaleFactor = between(rng, 0, 1) ? 0 : between(rng, -12, 3);
    const Image src = anyImage<T>(rng, n, size, place);
    Image dst = anyImage<T>(rng, n, size, place), expected = dst;
    std::vector<C> row(std::size_t(n), C{});
    for (int y = 0; y < size.height; ++y) {
      for (int c = 0; c < channels; ++c) {
        const auto full = fullSpectrum<C>(src, size, channels, c);
        for (int x = 0; x < size.width; ++x) row[std::size_t(x * channels + c)] = full[std::size_t(y * size.width + x)];
      }
      vector(row.data(), reinterpret_cast<T*>(expected.bytes(0, y)), n, scaleFactor);
    }
    ASSERT_EQ(call(src.data<T>(), src.step(), dst.data<T>(), dst.step(), size, scaleFactor), huxStsOk);
    ASSERT_TRUE(same(dst, expected)) << size.width << "x" << size.height << " scale " << scaleFactor;
  });
  Image dst(rng, 64, 4, 4);
  const Image before = dst;
  T *pSrc = before.data<T>(), *pDst = dst.data<T>();
  int srcStep = before.step(), dstStep = dst.step();
  HuxiSize roi{4, 4};
  CheckOrder([&] { return call(pSrc, srcStep, pDst, dstStep, roi, 0); })
      .breaks(huxStsNullPtr, pSrc, nullptr)
      .breaks(huxStsNullPtr, pDst, nullptr)
      .breaks(huxStsBadSize, roi.height, 0)
      .breaks(huxStsBadStep, srcStep, 0)
      .breaks(huxStsBadStep, dstStep, 0)
      .run(dst);
  const int live = liveBlocks();
  walkAllocationFailures([&] { return call(pSrc, srcStep, pDst, dstStep, roi, 0); },
                         [](HuxStatus s) { EXPECT_EQ(s, huxStsNullPtr); });
  EXPECT_EQ(liveBlocks(), live);
}

#define UNSCALED(f) [](auto s, int ss, auto d, int ds, HuxiSize roi, int) { return f(s, ss, d, ds, roi); }
#define VECTOR(f) [](auto s, auto d, int n, int) { return f(s, d, n); }
#define MEASURED(name, l) \
  expectMeasured<Hux32fc>(#name "_32f", l.stride, UNSCALED(huxi##name##Pack_32f_##l##R), VECTOR(huxs##name##_32fc));
#define SCALED(name, t, l) \
  expectMeasured<Hux##t##c>(#name "_" #t, l.stride, huxi##name##Pack_##t##_##l##RSfs, huxs##name##_##t##c_Sfs);
#undef BOTH
#define BOTH(_, l) MEASURED(Magnitude, l) MEASURED(Phase, l)
#define INTEGER(t, l) SCALED(Magnitude, t, l) SCALED(Phase, t, l)

TEST(MagnitudePack, MeasuresTheFullSpectrum) {
  HUX_STAMP(BOTH, (_), (C1, C3))
  HUX_STAMP(INTEGER, (16s, 32s), (C1, C3))
}

TEST(MagnitudePack, IsSymmetric) {
  Rng rng(3);
  const Image src = anyImage<Hux32f>(rng, 10, {10, 7}, Place::kEnd), dst(rng, 10, 7, 4);
  huxiMagnitudePack_32f_C1R(src.data<Hux32f>(), src.step(), dst.data<Hux32f>(), dst.step(), {10, 7});
  for (int y = 0; y < 7; ++y)
    for (int x = 0; x < 10; ++x) EXPECT_EQ(dst.get<Hux32f>(x, y), dst.get<Hux32f>((10 - x) % 10, (7 - y) % 7));
}

// Images of as many operands as there are, each row by a vector function.
template <class S, class D, class Call, class Vector>
void expectRows(const char* name, int sources, int channels, Call call, Vector vector) {
  SCOPED_TRACE(testing::Message() << name << " C" << channels);
  Rng rng(4);
  forSizes(rng, [&](HuxiSize size, Place place) {
    const int n = size.width * channels;
    const auto bytes = [&](auto t) { return n * int(sizeof t); };
    Image src(rng, bytes(S{}), size.height * sources, 1, place), dst(rng, bytes(D{}), size.height, 1, place);
    using T = std::conditional_t<sizeof(S) == 2 || std::is_same_v<S, Hux16sc>, Hux16s, Hux32s>;
    for (int y = 0; y < src.height(); ++y)
      for (int i = 0; i < bytes(S{}) / int(sizeof(T)); ++i)
        if constexpr (std::is_same_v<S, Hux32f> || std::is_same_v<S, Hux32fc>)
          src.set<Hux32f>(0, y, i, Hux32f(between(rng, -3000, 3000)) / 64);
        else
          src.set<T>(0, y, i, anyPart<T>(rng));
    Image expected = dst;
    const int parameter = between(rng, 0, 12);
    const auto rowOf = [&](int y) { return reinterpret_cast<const S*>(src.bytes(0, y)); };
    for (int y = 0; y < size.height; ++y)
      vector(rowOf(y), rowOf(y + (sources - 1) * size.height), reinterpret_cast<D*>(expected.bytes(0, y)), n,
             parameter);
    ASSERT_EQ(
        call(rowOf(0), rowOf((sources - 1) * size.height), src.step(), dst.data<D>(), dst.step(), size, parameter),
        huxStsOk);
    ASSERT_TRUE(same(dst, expected)) << size.width << "x" << size.height;
  });
  Image dst(rng, 64, 4, 8);
  const Image before = dst;
  const S *p1 = before.data<S>(), *p2 = p1;
  D* pDst = dst.data<D>();
  int srcStep = before.step(), dstStep = dst.step();
  HuxiSize roi{4, 4};
  CheckOrder order([&] { return call(p1, p2, srcStep, pDst, dstStep, roi, 0); });
  order.breaks(huxStsNullPtr, p1, nullptr).breaks(huxStsNullPtr, pDst, nullptr);
  if (sources == 2) order.breaks(huxStsNullPtr, p2, nullptr);
  order.breaks(huxStsBadSize, roi.width, 0)
      .breaks(huxStsBadStep, srcStep, 0)
      .breaks(huxStsBadStep, dstStep, 0)
      .run(dst);
}

TEST(PolarImages, AreTheVectorFunctionsRowByRow) {
#define MEASURE(name, l)                                            \
  expectRows<Hux32fc, Hux32f>(                                      \
      #name, 1, l.stride,                                           \
      [](auto s, auto, int ss, auto d, int ds, HuxiSize roi, int) { \
        return huxi##name##_32fc32f_##l##R(s, ss, d, ds, roi);      \
      },                                                            \
      [](auto s, auto, auto d, int n, int) { return huxs##name##_32fc(s, d, n); });
#define MEASURE_SCALED(name, t, l)                                       \
  expectRows<Hux##t##c, Hux##t>(                                         \
      #name #t, 1, l.stride,                                             \
      [](auto s, auto, int ss, auto d, int ds, HuxiSize roi, int k) {    \
        return huxi##name##_##t##c##t##_##l##RSfs(s, ss, d, ds, roi, k); \
      },                                                                 \
      [](auto s, auto, auto d, int n, int k) { return huxs##name##_##t##c_Sfs(s, d, n, k); });
#define FLOAT(_, l)                                                   \
  MEASURE(Magnitude, l)                                               \
  MEASURE(Phase, l)                                                   \
  expectRows<Hux32f, Hux32fc>(                                        \
      "PolarToCart", 2, l.stride,                                     \
      [](auto m, auto p, int ss, auto d, int ds, HuxiSize roi, int) { \
        return huxiPolarToCart_32fc_##l##R(m, p, ss, roi, d, ds);     \
      },                                                              \
      [](auto m, auto p, auto d, int n, int) { return huxsPolarToCart_32fc(m, p, d, n); });
#undef INTEGER
#define INTEGER(t, l)                                                   \
  MEASURE_SCALED(Magnitude, t, l)                                       \
  MEASURE_SCALED(Phase, t, l)                                           \
  expectRows<Hux##t, Hux##t##c>(                                        \
      "PolarToCart" #t, 2, l.stride,                                    \
      [](auto m, auto p, int ss, auto d, int ds, HuxiSize roi, int k) { \
        return huxiPolarToCart_##t##c_##l##R(m, p, ss, k, roi, d, ds);  \
      },                                                                \
      [](auto m, auto p, auto d, int n, int k) { return huxsPolarToCart_##t##c(m, p, k, d, n); });
  HUX_STAMP(FLOAT, (_), (C1, C3))
  HUX_STAMP(INTEGER, (16s, 32s), (C1, C3))
  Hux16s x[4] = {};
  Hux16sc z[2] = {};
  EXPECT_EQ(huxiPolarToCart_16sc_C1R(x, x, 4, 16, {2, 1}, z, 8), huxStsBadSize);
}

// From a full spectrum to a packed one, and back where there is a way back.
template <class C, class Pack>
void expectPacked(int channels, Pack pack) {
  using T = PartOf<C>;
  Rng rng(5);
  forSizes(rng, [&](HuxiSize size, Place place) {
    const int w = size.width;
    const Image full = anyImage<T>(rng, 2 * channels * w, size, place);
    Image dst = anyImage<T>(rng, channels * w, size, place), expected = dst;
    for (int y = 0; y < size.height; ++y)
      for (int x = 0; x < w; ++x)
        for (int c = 0; c < channels; ++c) {
          const Frequency p = frequencyOf(x, y, size);
          expected.set<T>(0, y, x * channels + c,
                          full.get<T>(0, p.v, 2 * (p.u * channels + c) + (p.part == PartKind::kIm)));
        }
    ASSERT_EQ(pack(full.data<C>(), full.step(), size, dst.data<T>(), dst.step()), huxStsOk);
    ASSERT_TRUE(same(dst, expected)) << w << "x" << size.height << " C" << channels;
  });
}
template <class C, class Unpack, class Pack>
void expectUnpacked(Unpack unpack, Pack pack) {
  using T = PartOf<C>;
  Rng rng(6);
  forSizes(rng, [&](HuxiSize size, Place place) {
    const Image src = anyImage<T>(rng, size.width, size, place);
    Image full = anyImage<T>(rng, 2 * size.width, size, place), expected = full, back = src;
    const auto truth = fullSpectrum<C>(src, size, 1, 0);
    for (int y = 0; y < size.height; ++y)
      for (int x = 0; x < size.width; ++x) expected.set<C>(0, y, x, truth[std::size_t(y * size.width + x)]);
    ASSERT_EQ(unpack(src.data<T>(), size, src.step(), full.data<C>(), full.step()), huxStsOk);
    ASSERT_TRUE(same(full, expected)) << size.width << "x" << size.height;
    ASSERT_EQ(pack(full.data<C>(), full.step(), size, back.data<T>(), back.step()), huxStsOk);
    ASSERT_TRUE(same(back, src));
  });
  Image dst(rng, 64, 4, 8);
  const Image before = dst;
  T *pReal = before.data<T>(), *pPacked = dst.data<T>();
  C *pComplex = before.data<C>(), *pFull = dst.data<C>();
  int srcStep = before.step(), dstStep = dst.step();
  HuxiSize size{4, 4};
  CheckOrder([&] { return unpack(pReal, size, srcStep, pFull, dstStep); })
      .breaks(huxStsNullPtr, pReal, nullptr)
      .breaks(huxStsNullPtr, pFull, nullptr)
      .breaks(huxStsBadSize, size.width, 0)
      .breaks(huxStsBadStep, srcStep, 0)
      .breaks(huxStsBadStep, dstStep, 0)
      .run(dst);
  CheckOrder([&] { return pack(pComplex, srcStep, size, pPacked, dstStep); })
      .breaks(huxStsNullPtr, pComplex, nullptr)
      .breaks(huxStsNullPtr, pPacked, nullptr)
      .breaks(huxStsBadSize, size.height, 0)
      .breaks(huxStsBadStep, srcStep, 0)
      .breaks(huxStsBadStep, dstStep, 0)
      .run(dst);
}

TEST(PackToCplxExtend, GoesBothWays) {
#define PACK(t, l) expectPacked<Hux##t##c>(l.stride, huxiCplxExtendToPack_##t##c##t##_##l##R);
  HUX_STAMP(PACK, (32f, 32s, 16s), (C1, C3))
  expectUnpacked<Hux32fc>(huxiPackToCplxExtend_32f32fc_C1R, huxiCplxExtendToPack_32fc32f_C1R);
  expectUnpacked<Hux32sc>(huxiPackToCplxExtend_32s32sc_C1R, huxiCplxExtendToPack_32sc32s_C1R);
}

}  // namespace
}  // namespace hux::test
