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
  forPixels({w, h}, [&](int x, int y) {
    const Frequency p = frequencyOf(x, y, size);
    const std::size_t i = std::size_t(p.v * w + p.u);
    const T value = packed.get<T>(0, y, x * channels + c);
    known[i] = true;
    (p.part == PartKind::kIm ? full[i].im : full[i].re) = value;
  });
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

// The members of a product; the scale factor is taken by those of integers.
using ProductFn = HuxStatus(const void*, int, const void*, int, void*, int, HuxiSize, int scaleFactor);
struct Product : Form {
  bool conjugate;
  ProductFn *call, *inPlace;
};

template <class C>
void expectProducts(const Product& f) {
  using T = PartOf<C>;
  Rng rng(1);
  const int n = f.layout.stride;
  for (int turn = 0; turn < 90; ++turn) {
    const HuxiSize size{turn < 60 ? turn / 2 + 1 : between(rng, 1, 80), between(rng, 1, 9)};
    const auto image = [&] {
      Image made = touchedImage(rng, size.width, size.height, f.layout, f.elementBytes, Place(turn % 3));
      made.fill<T>([&] { return anyPart<T>(rng); });
      return made;
    };
    const Image a = image(), b = image(), dst = image(), both = b, expected = dst, expectedBoth = b;
    const int scaleFactor = anyScale(rng);
    for (int c = 0; c < f.layout.touched; ++c) {
      const auto fullA = fullSpectrum<C>(a, size, n, c), fullB = fullSpectrum<C>(b, size, n, c);
      forPixels(size, [&](int x, int y) {
        const Frequency p = frequencyOf(x, y, size);
        const std::size_t i = std::size_t(p.v * size.width + p.u);
        const C z = packedProduct(fullA[i], fullB[i], p.part == PartKind::kReal, f.conjugate, scaleFactor);
        for (const Image* e : {&expected, &expectedBoth})
          e->set<T>(0, y, x * n + c, p.part == PartKind::kIm ? z.im : z.re);
      });
    }
    ASSERT_EQ(f.call(a.bytes(), a.step(), b.bytes(), b.step(), dst.bytes(), dst.step(), size, scaleFactor), huxStsOk);
    ASSERT_EQ(f.inPlace(a.bytes(), a.step(), nullptr, 0, both.bytes(), both.step(), size, scaleFactor), huxStsOk);
    ASSERT_TRUE(sameBut<T>(dst, expected)) << size.width << "x" << size.height << " scale " << scaleFactor;
    ASSERT_TRUE(sameBut<T>(both, expectedBoth)) << size.width << "x" << size.height << " in place " << scaleFactor;
  }
}

#define PRODUCT(name, conjugate, t, l, s)                                                \
  Product{HUX_NAMED(name, t, l), conjugate, as<ProductFn, huxi##name##_##t##_##l##R##s>, \
          as<ProductFn, huxi##name##_##t##_##l##IR##s, 0, 1, 4, 5, 6, 7>},
#define PRODUCTS(_, l)              \
  PRODUCT(MulPack, false, 32f, l, ) \
  PRODUCT(MulPackConj, true, 32f, l, ) PRODUCT(MulPack, false, 16s, l, Sfs) PRODUCT(MulPack, false, 32s, l, Sfs)
TEST(MulPack, IsTheProductOfTheSpectra) {
  Rng rng(7);
  const Product products[] = { HUX_STAMP(PRODUCTS, (_), (C1, C3, C4, AC4)) };
  for (const Product& f : products) {
    SCOPED_TRACE(f.name);
    if (f.type == Number::k32f) expectProducts<Hux32fc>(f);
    if (f.type == Number::k16s) expectProducts<Hux16sc>(f);
    if (f.type == Number::k32s) expectProducts<Hux32sc>(f);
    const Image a(rng, 32, 4, 4), dst = a;
    Arguments args(a, {4, 4});
    args.d = dst.bytes();
    const auto run = [&](ProductFn* call, const char* without) {
      CheckOrder([&] { return call(args.a, args.aStep, args.b, args.bStep, args.d, args.dStep, args.roi, 1); })
          .in(args, "abdABDz", without)
          .run(dst);
    };
    run(f.call, ""), run(f.inPlace, "bB");
  }
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
  image.fill<T>([&] {
    const T value = anyPart<T>(rng);
    return value == value ? value : T(1);
  });
  return image;
}

// Vector functions on up to two sources, and members that do the same with the rows of images, or with those of the
// full spectrum that an image packs.
using VectorFn = HuxStatus(const void* a, const void* b, void* dst, int len, int parameter);
using RowsFn = HuxStatus(const void* a, const void* b, int srcStep, void* dst, int dstStep, HuxiSize, int parameter);
struct Rows {
  const char* name;
  Layout layout;
  bool packed;
  int sources, srcParts, dstParts;  // 2 parts are a complex number
  RowsFn* call;
  VectorFn* vector;
};

template <class C>
void expectRows(const Rows& m) {
  using T = PartOf<C>;
  SCOPED_TRACE(testing::Message() << m.name << " C" << m.layout.stride);
  Rng rng(2);
  const int channels = m.layout.stride;
  forSizes(rng, [&](HuxiSize size, Place place) {
    const int n = size.width * channels, parameter = between(rng, m.sources == 2 ? 0 : -12, 12) * between(rng, 0, 1);
    const Image src = anyImage<T>(rng, n * m.srcParts, {size.width, size.height * m.sources}, place);
    const Image dst = anyImage<T>(rng, n * m.dstParts, size, place), expected = dst;
    const std::byte* second = src.bytes(0, (m.sources - 1) * size.height);
    for (int y = 0; y < size.height; ++y) {
      std::vector<C> row(std::size_t(n), C{});
      for (int c = 0; m.packed && c < channels; ++c) {
        const auto full = fullSpectrum<C>(src, size, channels, c);
        for (int x = 0; x < size.width; ++x) row[std::size_t(x * channels + c)] = full[std::size_t(y * size.width + x)];
      }
      m.vector(m.packed ? static_cast<const void*>(row.data()) : src.bytes(0, y), second + y * src.step(),
               expected.bytes(0, y), n, parameter);
    }
    ASSERT_EQ(m.call(src.bytes(), second, src.step(), dst.bytes(), dst.step(), size, parameter), huxStsOk);
    ASSERT_TRUE(sameBut<T>(dst, expected)) << size.width << "x" << size.height << " by " << parameter;
  });
  const Image src(rng, 64, 4, 8), dst = src;
  Arguments a(src, {4, 4});
  a.d = dst.bytes();
  const auto call = [&] { return m.call(a.a, a.b, a.aStep, a.d, a.dStep, a.roi, 0); };
  CheckOrder(call).in(a, "adbzAD", m.sources == 2 ? "" : "b").run(dst);
  walkAllocationFailures(call, [](HuxStatus s) { EXPECT_EQ(s, huxStsNullPtr); });
}

#define ROWS(name, t, l, packed, sources, src, dst, vector, ...) \
  expectRows<Hux##t##c>({name "_" #t, l, packed, sources, src, dst, as<RowsFn, __VA_ARGS__>, vector});
#define MEASURES(name, t, l, s, ss)                                                            \
  ROWS(#name "Pack", t, l, true, 1, 1, 1, (as<VectorFn, huxs##name##_##t##c##ss, 0, 2, 3, 4>), \
       huxi##name##Pack_##t##_##l##R##s, 0, 2, 3, 4, 5, 6)                                     \
  ROWS(#name, t, l, false, 1, 2, 1, (as<VectorFn, huxs##name##_##t##c##ss, 0, 2, 3, 4>),       \
       huxi##name##_##t##c##t##_##l##R##s, 0, 2, 3, 4, 5, 6)
#define FLOATS(_, l)                                                                                                   \
  MEASURES(Magnitude, 32f, l, , )                                                                                      \
  MEASURES(Phase, 32f, l, , )                                                                                          \
  ROWS("PolarToCart", 32f, l, false, 2, 1, 2, (as<VectorFn, huxsPolarToCart_32fc>), huxiPolarToCart_32fc_##l##R, 0, 1, \
       2, 5, 3, 4)
#define INTEGERS(t, l)                                                                             \
  MEASURES(Magnitude, t, l, Sfs, _Sfs)                                                             \
  MEASURES(Phase, t, l, Sfs, _Sfs)                                                                 \
  ROWS("PolarToCart", t, l, false, 2, 1, 2, (as<VectorFn, huxsPolarToCart_##t##c, 0, 1, 4, 2, 3>), \
       huxiPolarToCart_##t##c_##l##R, 0, 1, 2, 6, 5, 3, 4)
TEST(PolarImages, AreTheVectorFunctionsRowByRow) {
  HUX_STAMP(FLOATS, (_), (C1, C3))
  HUX_STAMP(INTEGERS, (16s, 32s), (C1, C3))
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
    forElements({w, size.height}, channels, [&](int x, int y, int c) {
      const Frequency p = frequencyOf(x, y, size);
      expected.set<T>(0, y, x * channels + c,
                      full.get<T>(0, p.v, 2 * (p.u * channels + c) + (p.part == PartKind::kIm)));
    });
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
    forPixels(size, [&](int x, int y) { expected.set<C>(0, y, x, truth[std::size_t(y * size.width + x)]); });
    ASSERT_EQ(unpack(src.data<T>(), size, src.step(), full.data<C>(), full.step()), huxStsOk);
    ASSERT_TRUE(same(full, expected)) << size.width << "x" << size.height;
    ASSERT_EQ(pack(full.data<C>(), full.step(), size, back.data<T>(), back.step()), huxStsOk);
    ASSERT_TRUE(same(back, src));
  });
  const Image src(rng, 64, 4, 8), dst = src;
  Arguments a(src, {4, 4});
  a.d = dst.bytes();
  CheckOrder([&] { return unpack(static_cast<const T*>(a.a), a.roi, a.aStep, static_cast<C*>(a.d), a.dStep); })
      .in(a, "adzAD")
      .run(dst);
  CheckOrder([&] { return pack(static_cast<const C*>(a.a), a.aStep, a.roi, static_cast<T*>(a.d), a.dStep); })
      .in(a, "adzAD")
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
