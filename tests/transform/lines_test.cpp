// Transforms of a line against double precision, and what their contexts report, need and refuse.
#include <array>
#include <bit>

#include "huxs_transform.h"
#include "transform/contexts.h"

namespace hux::test {
namespace {

enum class Family { kFft, kDft, kCosine };

// The flag is none of cosine transforms; those of any length take no memory of the caller's for contexts.
using MakeFn = HuxStatus(void* pp, int length, int flag, HuxAccuracyHint);
using SizeFn = HuxStatus(int length, int flag, HuxAccuracyHint, void*, void*, void*);
using InitFn = HuxStatus(void* pp, int length, int flag, HuxAccuracyHint, void*, void*);
using RunFn = HuxStatus(const void*, void*, const void*, void*);
struct Way {
  bool forward, perm;
  RunFn* run;
};
struct Kind {
  const char* name;
  Family family;
  bool real;
  MakeFn* make;
  FreeFn* free;
  BufSizeFn* getBufSize;
  std::vector<Way> ways;
  SizeFn* getSize = nullptr;
  InitFn* init = nullptr;

  bool isFft() const { return family == Family::kFft; }
  // A length as its functions take it.
  int lengthOf(int n) const { return isFft() ? std::countr_zero(unsigned(n)) : n; }
  void* made(int n, int flag = huxFftScaleNone, HuxAccuracyHint hint = huxHintNone) const {
    void* record = nullptr;
    EXPECT_EQ(make(&record, lengthOf(n), flag, hint), huxStsOk);
    return record;
  }
  int bytes(int n) const {
    int told = -1;
    void* record = made(n);
    EXPECT_EQ(getBufSize(record, &told), huxStsOk);
    EXPECT_EQ(free(record), huxStsOk);
    return told;
  }
};
#define CONTEXTS(T, suffix, ...)                                                                      \
  as<MakeFn, huxs##T##InitAlloc_##suffix __VA_OPT__(, ) __VA_ARGS__>, erased<huxs##T##Free_##suffix>, \
      erased<huxs##T##GetBufSize_##suffix>
#define WAY(forward, perm, f) \
  Way { forward, perm, erased<huxs##f> }
#define FFT(suffix, real, ...)                                                                                     \
  Kind {                                                                                                           \
    "FFT_" #suffix, Family::kFft, real, CONTEXTS(FFT, suffix), {__VA_ARGS__}, as<SizeFn, huxsFFTGetSize_##suffix>, \
        as<InitFn, huxsFFTInit_##suffix>                                                                           \
  }
#define DFT(suffix, real, ...)                                                 \
  Kind {                                                                       \
    "DFT_" #suffix, Family::kDft, real, CONTEXTS(DFT, suffix), { __VA_ARGS__ } \
  }
#define COSINE(way, forward)                                                                                     \
  Kind {                                                                                                         \
    "DCT_" #way, Family::kCosine, true, CONTEXTS(DCT##way, 32f, 0, 1, 3), {WAY(forward, false, DCT##way##_32f)}, \
        as<SizeFn, huxsDCT##way##GetSize_32f, 0, 2, 3, 4, 5>, as<InitFn, huxsDCT##way##Init_32f, 0, 1, 3, 4, 5>  \
  }
// Kinds of a family stand in pairs.
const Kind kKinds[] = {FFT(C_32fc, false, WAY(true, false, FFTFwd_CToC_32fc), WAY(false, false, FFTInv_CToC_32fc)),
                       FFT(R_32f, true, WAY(true, true, FFTFwd_RToPerm_32f), WAY(true, false, FFTFwd_RToPack_32f),
                           WAY(false, true, FFTInv_PermToR_32f), WAY(false, false, FFTInv_PackToR_32f)),
                       DFT(C_32fc, false, WAY(true, false, DFTFwd_CToC_32fc), WAY(false, false, DFTInv_CToC_32fc)),
                       DFT(R_32f, true, WAY(true, false, DFTFwd_RToPack_32f), WAY(false, false, DFTInv_PackToR_32f)),
                       COSINE(Fwd, true),
                       COSINE(Inv, false)};
const Kind& siblingOf(const Kind& kind) { return kKinds[std::size_t(&kind - kKinds) ^ 1]; }

// Cosines by a spectrum of twice the length.
Numbers cosines(const Numbers& x, bool forward) {
  const std::size_t n = x.size();
  Numbers longer(2 * n), y(n);
  const auto turn = [&](std::size_t k) {
    return std::polar(std::sqrt((k ? 2.0 : 1.0) / double(n)), std::numbers::pi * double(k) / double(2 * n));
  };
  for (std::size_t i = 0; i < n; ++i) longer[i] = forward ? x[i] : x[i] * turn(i);
  longer = forward ? spectrum(longer) : inverseSpectrum(longer);
  for (std::size_t i = 0; i < n; ++i) y[i] = (forward ? longer[i] * std::conj(turn(i)) : longer[i]).real();
  return y;
}

double bound(const Kind& kind, int n, HuxAccuracyHint hint) {
  const bool halves = n >= 16 && (n & (n - 1)) == 0 && !(n > 512 && hint == huxHintAccurate);
  return kind.family == Family::kCosine && halves ? std::max(tolerance(n), 1.5e-7 * std::sqrt(double(n)))
                                                  : tolerance(n);
}

// With a context in the caller's memory, where there can be one, and in place with one of the library's.
void expectTransforms(Rng& rng, const Kind& kind, int n, HuxAccuracyHint hint = huxHintNone) {
  const bool cosine = kind.family == Family::kCosine;
  for (std::size_t w = 0; w < kind.ways.size(); ++w) {
    const Way& way = kind.ways[w];
    if (kind.isFft() && n > 65536 && std::size_t(kind.lengthOf(n)) % kind.ways.size() != w) continue;
    const Floats src(rng, std::size_t(n), kind.real ? 1 : 2, Place(n % 3));
    const Numbers truth =
        cosine ? cosines(src.numbers(), way.forward) : expectedLine(kind.real, way.forward, way.perm, src.numbers());
    for (int flag : kFlags) {
      if ((cosine || n > 256) && flag != kFlags[kind.lengthOf(n) % 4]) continue;
      SCOPED_TRACE(testing::Message() << kind.name << " way " << w << " length " << n << " flag " << flag);
      void *ours = kind.made(n, flag, hint), *theirs = nullptr;
      int size = 0, scratch = 0, bytes = 0, told = 0;
      ASSERT_EQ(kind.getBufSize(ours, &bytes), huxStsOk);
      if (kind.getSize) {
        ASSERT_EQ(kind.getSize(kind.lengthOf(n), flag, hint, &size, &scratch, &told), huxStsOk);
        EXPECT_EQ(told, bytes);
      }
      // Each piece of memory ends with its page, at any address.
      const Image memory(rng, size + 1, 1, 1, Place::kEnd), aside(rng, scratch + 1, 1, 1, Place::kEnd);
      if (kind.init) {
        ASSERT_EQ(
            kind.init(&theirs, kind.lengthOf(n), flag, hint, memory.bytes() + 1, scratch ? aside.bytes() + 1 : nullptr),
            huxStsOk);
      }
      expectTransform(
          rng, src, cosine ? truth : scaledBy(factorOf(flag, way.forward, n), truth), bound(kind, n, hint), bytes,
          [&](auto s, auto d, auto buffer) { return way.run(s, d, theirs && s != d ? theirs : ours, buffer); });
      EXPECT_EQ(kind.free(ours), huxStsOk);
      if (!theirs) continue;
      EXPECT_EQ(kind.free(theirs), huxStsOk);
      EXPECT_EQ(kind.free(theirs), huxStsBadContext);
    }
  }
}

TEST(Fft, AgreesWithDoublePrecision) {
  Rng rng(1);
  for (const Kind* kind : {&kKinds[0], &kKinds[1]})
    for (int order = 0; order <= 21; ++order)
      if (order <= 16 || order % 2 == int(kind->real)) expectTransforms(rng, *kind, 1 << order);
}
TEST(Dft, AgreesWithDoublePrecision) {
  Rng rng(2);
  for (const Kind* kind : {&kKinds[2], &kKinds[3]}) {
    for (int n = 1; n <= 512; ++n) expectTransforms(rng, *kind, n);
    // Primes and products around every change of method, deep and shallow factorisations, the long chirps.
    for (int n :
         {600,  720,  1000, 1023,  1024,  1080,  1920,  1999,  2000,  2001,  2003,  2187,   2310,          4096,  4099,
          6561, 8191, 8192, 10000, 22201, 22650, 22801, 30030, 31861, 44402, 78125, 131072, 149 * 149 * 4, 177147})
      expectTransforms(rng, *kind, n);
  }
}
TEST(Cosine, AgreesWithDoublePrecision) {
  Rng rng(3);
  for (const Kind* kind : {&kKinds[4], &kKinds[5]}) {
    for (int n = 1; n <= 140; ++n) expectTransforms(rng, *kind, n);
    for (int n : {256, 512, 1000, 1023, 1024, 1025, 1999, 2048, 4097, 8192, 65536, 1 << 18, 100000})
      for (HuxAccuracyHint hint : {huxHintNone, huxHintAccurate})
        if (hint == huxHintNone || (n & (n - 1)) == 0) expectTransforms(rng, *kind, n, hint);
  }
}

// The sizes, in the words of their definition.
struct Sizes {
  std::int64_t record = 96, scratch = 0, buffer = 0;
};
std::int64_t align(std::int64_t n) { return n / 16 * 16; }
Sizes sizesOf(bool real, int order) {
  Sizes s;
  if (order <= 3) return s;
  const std::int64_t n = std::int64_t(1) << order;
  int m = real ? order - 1 : order;
  s.record += align((std::int64_t(1) << m) + 19) + (real ? 2 * align(2 * n + 15) : 0);
  s.scratch = align(n + 19) + 16;
  while (m >= 13) {
    const int power[] = {5, 6, 7, 8, 8, 8, 10, 10, 10, 10, 8, 8, 10, 10, 10, 10, 10, 10};
    const std::int64_t rows = std::int64_t(1) << power[m - 13];
    s.record += align(8 * rows + 23) + (std::int64_t(8) << m);
    s.scratch += 32 * rows + align(rows + 19);
    s.buffer = std::max(s.buffer, 32 * rows + 16);
    m -= power[m - 13];
  }
  s.record += m < 11 ? align((std::int64_t(8) << m) + 23) : align((std::int64_t(2) << m) + 15) + 8208;
  return s;
}
TEST(Fft, ReportsItsSizes) {
  for (const Kind* kind : {&kKinds[0], &kKinds[1]})
    for (int order = 0; order <= 30; ++order) {
      const Sizes told = sizesOf(kind->real, order);
      const bool fits = told.record <= 0x7fffffff;
      int size = -1, scratch = -1, buffer = -1;
      EXPECT_EQ(kind->getSize(order, -7, huxHintNone, &size, &scratch, &buffer), fits ? huxStsOk : huxStsNoMem);
      EXPECT_EQ((std::array<std::int64_t, 3>{size, scratch, buffer}),
                (fits ? std::array{told.record, told.scratch, told.buffer} : std::array<std::int64_t, 3>{-1, -1, -1}));
      void* record = nullptr;
      if (fits) continue;
      EXPECT_EQ(kind->make(&record, order, 8, huxHintNone), huxStsNoMem);
      EXPECT_EQ(record, nullptr);
    }
}

TEST(Dft, ReportsItsWorkMemory) {
  const auto expectSize = [](bool real, int n, int expected) { EXPECT_EQ(kKinds[2 + real].bytes(n), expected) << n; };
  for (int n : {1, 2, 3, 4, 8, 4096}) expectSize(false, n, 0), expectSize(true, n, 0);
  expectSize(false, 8192, 32 * 32 + 16), expectSize(true, 16384, 32 * 32 + 16);
  // Mixed radix: the length and the largest factor above 5; real even lengths by half of theirs.
  expectSize(false, 6, 8 * 6 + 32), expectSize(true, 12, 8 * 6 + 32), expectSize(true, 15, 8 * 15 + 32);
  expectSize(false, 210, 8 * (210 + 7) + 32), expectSize(true, 420, 8 * (210 + 7) + 32);
  expectSize(false, 149 * 2, 8 * (298 + 149) + 32), expectSize(true, 21, 8 * (21 + 7) + 32);
  // The sum as it stands, and the chirp.
  expectSize(false, 149, 8 * 149 + 32), expectSize(true, 298, 8 * 149 + 32), expectSize(true, 179, 4 * 179 + 32);
  expectSize(false, 151, 8 * 512 + 32), expectSize(true, 302, 8 * 512 + 32), expectSize(true, 181, 8 * 512 + 32);
  expectSize(false, 302, 8 * 1024 + 32), expectSize(false, 4099, 8 * 16384 + 32 * 64 + 48);
}

TEST(Cosine, ReportsItsWorkMemory) {
  const auto expectSize = [](int n, HuxAccuracyHint hint, int expected) {
    for (const Kind* kind : {&kKinds[4], &kKinds[5]}) {
      int size = 0, scratch = 0, work = -1;
      EXPECT_EQ(kind->getSize(n, 0, hint, &size, &scratch, &work), huxStsOk);
      EXPECT_EQ(work, expected) << n;
    }
  };
  for (int n : {1, 2, 4, 8}) expectSize(n, huxHintNone, 0);
  expectSize(16, huxHintNone, 4 * 16 + 16), expectSize(512, huxHintAccurate, 4 * 512 + 16);
  expectSize(1024, huxHintNone, 4 * 1024 + 16), expectSize(1024, huxHintAccurate, 8 * 1024 + 16);
  expectSize(3, huxHintNone, 12 + 16), expectSize(100, huxHintAccurate, 400 + 16);
  expectSize(101, huxHintNone, 8 * 256 + 16), expectSize(129, huxHintNone, 8 * 512 + 16);
  // Those of the Fourier transform within come on top, as it reports them.
  expectSize(8192, huxHintAccurate, 8 * 8192 + (32 * 32 + 16) + 16);
  expectSize(4099, huxHintNone, 8 * 16384 + (32 * 64 + 16) + 16);
}

TEST(Dft, PowersOfTwoAreThoseOfTheFft) {
  Rng rng(4);
  for (int n : {1, 2, 4, 8, 64, 2048, 8192}) {
    const Floats src(rng, std::size_t(n), 2), a(rng, std::size_t(n), 2), b(rng, std::size_t(n), 2);
    void *fft = kKinds[0].made(n), *dft = kKinds[2].made(n);
    EXPECT_EQ(kKinds[0].ways[0].run(src.as<void>(), a.as<void>(), fft, nullptr), huxStsOk);
    EXPECT_EQ(kKinds[2].ways[0].run(src.as<void>(), b.as<void>(), dft, nullptr), huxStsOk);
    EXPECT_EQ(std::memcmp(a.as<char>(), b.as<char>(), std::size_t(n) * 8), 0) << n;
    kKinds[0].free(fft), kKinds[2].free(dft);
  }
}

TEST(Lines, ChecksInOrderAndMemory) {
  Rng rng(5);
  const Image image(rng, 4, 1, 8);
  for (const Kind& kind : kKinds) {
    SCOPED_TRACE(kind.name);
    const HuxStatus outside = kind.isFft() ? huxStsBadOrder : huxStsBadSize;
    const bool flags = kind.family != Family::kCosine;
    void *foreign = siblingOf(kind).made(16), *record = nullptr, *pp = &record;
    for (int n : {8, 64, 99, 105, 149, 210, 1000, 1024, 4099, 8192, 1 << 14}) {
      if (kind.isFft() && (n & (n - 1)) != 0) continue;
      void* good = kind.made(n, huxFftScaleNone, huxHintAccurate);
      const void* context = good;
      const Floats src(rng, std::size_t(n), 2), dst(rng, std::size_t(n), 2);
      for (const Way& way : kind.ways) {
        const void* s = src.as<void>();
        void* d = dst.as<void>();
        const auto call = [&] { return way.run(s, d, context, nullptr); };
        CheckOrder(call).nulls(context, s).run(dst.image());
        CheckOrder(call).breaks(huxStsBadContext, context, foreign).nulls(d).run(dst.image());
        EXPECT_EQ(failuresOf(call, dst.image()) > 0, kind.bytes(n) > 0);
      }
      kind.free(good);
      expectContract([&](void* to) { return kind.make(to, kind.lengthOf(n), 1, huxHintAccurate); }, kind.free,
                     kind.getBufSize, foreign);
    }
    int length = kind.lengthOf(32), flag = 2, sizes[3];
    CheckOrder create([&] {
      const HuxStatus s = kind.make(pp, length, flag, huxHintNone);
      if (s == huxStsOk) kind.free(record);
      return s;
    });
    create.nulls(pp).breaks(outside, length, kind.isFft() ? 31 : 0).breaks(outside, length, -1);
    if (flags) create.breaks(huxStsBadFlag, flag, 6);
    create.run(image);
    // Memory beyond what can be reported; orders that are too much have their own test.
    record = nullptr;
    for (int huge : {0x7fffffff, 1 << 30, 300000000}) {
      if (kind.isFft()) continue;
      EXPECT_EQ(kind.make(&record, huge, 6, huxHintAccurate), huxStsNoMem);
      EXPECT_EQ(kind.getSize ? kind.getSize(huge, 6, huxHintNone, sizes, sizes, sizes) : huxStsNoMem, huxStsNoMem);
    }
    EXPECT_EQ(record, nullptr);
    if (kind.getSize) {
      void *pSize = sizes, *pScratch = sizes + 1, *pWork = sizes + 2;
      CheckOrder([&] { return kind.getSize(length, flag, huxHintNone, pSize, pScratch, pWork); })
          .breaks(outside, length, kind.isFft() ? 31 : 0)
          .nulls(pSize, pScratch, pWork)
          .run(image);
      const Image memory(rng, sizes[0], 1, 1), scratch(rng, sizes[1] + 1, 1, 1);
      void *pMem = memory.bytes(), *pInit = scratch.bytes();
      CheckOrder init([&] { return kind.init(pp, length, flag, huxHintNone, pMem, pInit); });
      init.nulls(pp).breaks(outside, length, -1).nulls(pMem);
      if (flags) init.breaks(huxStsBadFlag, flag, 3);
      length = kind.lengthOf(32);
      if (sizes[1]) init.nulls(pInit);
      init.run(image);
      // Memory to work in is not asked for where none is needed.
      EXPECT_EQ(kind.init(&record, kind.lengthOf(8), flag, huxHintNone, pMem, nullptr), huxStsOk);
    }
    siblingOf(kind).free(foreign);
  }
}

}  // namespace
}  // namespace hux::test
