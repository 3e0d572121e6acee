// The power-of-two transform against double precision, and what its contexts report, need and refuse.
#include <array>
#include <memory>

#include "huxs_transform.h"
#include "support/failing_malloc.h"
#include "support/order.h"
#include "transform/reference.h"

namespace hux::test {
namespace {

using Record = HuxsFFTRecord;

struct Kind {
  decltype(&huxsFFTInitAlloc_C_32fc) initAlloc;
  decltype(&huxsFFTGetSize_C_32fc) getSize;
  decltype(&huxsFFTInit_C_32fc) init;
  decltype(&huxsFFTFree_C_32fc) free;
  decltype(&huxsFFTGetBufSize_C_32fc) getBufSize;
};
const Kind kComplex = {huxsFFTInitAlloc_C_32fc, huxsFFTGetSize_C_32fc, huxsFFTInit_C_32fc, huxsFFTFree_C_32fc,
                       huxsFFTGetBufSize_C_32fc};
const Kind kReal = {huxsFFTInitAlloc_R_32f, huxsFFTGetSize_R_32f, huxsFFTInit_R_32f, huxsFFTFree_R_32f,
                    huxsFFTGetBufSize_R_32f};

// What is done with N numbers, and what it should give.
struct Form {
  const char* name;
  const Kind* kind;
  HuxStatus (*call)(const void*, void*, const Record*, Hux8u*);
  bool forward, perm;
};
#define FORM(kind, name, T, forward, perm)                                                                        \
  Form {                                                                                                          \
#name, &kind,                                                                                                 \
        [](const void* s, void* d, const Record* r,                                                               \
           Hux8u* b) { return huxsFFT##name(static_cast<const T*>(s), static_cast<T*>(d), r, b); }, forward, perm \
  }
const Form kForms[] = {
    FORM(kComplex, Fwd_CToC_32fc, Hux32fc, true, false), FORM(kComplex, Inv_CToC_32fc, Hux32fc, false, false),
    FORM(kReal, Fwd_RToPerm_32f, Hux32f, true, true),    FORM(kReal, Fwd_RToPack_32f, Hux32f, true, false),
    FORM(kReal, Inv_PermToR_32f, Hux32f, false, true),   FORM(kReal, Inv_PackToR_32f, Hux32f, false, false)};

// The numbers that an inverse real transform is given: those of a packed spectrum.
Numbers unpacked(const Numbers& p, bool perm) {
  const std::size_t n = p.size();
  Numbers x(n);
  x[0] = p[0].real();
  if (n > 1) x[n / 2] = p[perm ? 1 : n - 1].real();
  for (std::size_t k = 1; 2 * k < n; ++k) {
    const std::size_t at = 2 * k - (perm ? 0 : 1);
    x[k] = {p[at].real(), p[at + 1].real()};
    x[n - k] = std::conj(x[k]);
  }
  return x;
}
Numbers expected(const Form& f, const Numbers& input) {
  if (f.kind == &kComplex) return f.forward ? spectrum(input) : inverseSpectrum(input);
  if (f.forward) return asNumbers(packed(spectrum(input), f.perm));
  Numbers x = inverseSpectrum(unpacked(input, f.perm));
  for (Complex& z : x) z = z.real();
  return x;
}

Record* made(const Kind& kind, int order, int flag) {
  Record* record = nullptr;
  EXPECT_EQ(kind.initAlloc(&record, order, flag, huxHintNone), huxStsOk);
  return record;
}

TEST(Fft, AgreesWithDoublePrecision) {
  Rng rng(1);
  for (const Form& f : kForms)
    for (int order = 0; order <= 21; ++order) {
      if (order > 16 && &f != &kForms[order % 6]) continue;
      SCOPED_TRACE(testing::Message() << f.name << " order " << order);
      const std::size_t n = std::size_t(1) << order;
      const int parts = f.kind == &kComplex ? 2 : 1;
      const Floats src(rng, n, parts, Place(order % 3));
      const Image before = src.image();
      const Numbers truth = expected(f, src.numbers());
      for (int flag : kFlags) {
        if (order > 14 && flag != kFlags[order % 4]) continue;
        Record* record = made(*f.kind, order, flag);
        const Numbers target = scaledBy(factorOf(flag, f.forward, double(n)), truth);
        // The work buffer and everything around it, and source and destination apart.
        int bytes = 0;
        ASSERT_EQ(f.kind->getBufSize(record, &bytes), huxStsOk);
        const Image buffer(rng, bytes + 1, 1, 1, Place::kEnd);
        const Floats dst(rng, n, parts, Place(flag % 3));
        ASSERT_EQ(f.call(src.as<void>(), dst.as<void>(), record, bytes ? buffer.data<Hux8u>() + 1 : nullptr), huxStsOk);
        EXPECT_TRUE(near(dst.numbers(), target, tolerance(double(n)))) << "flag " << flag;
        EXPECT_TRUE(same(src.image(), before));
        // In place, without a buffer.
        const Floats both(rng, n, parts, Place::kInside);
        std::memcpy(both.as<char>(), src.as<char>(), src.count() * 4);
        ASSERT_EQ(f.call(both.as<void>(), both.as<void>(), record, nullptr), huxStsOk);
        EXPECT_EQ(std::memcmp(both.as<char>(), dst.as<char>(), dst.count() * 4), 0) << "in place, flag " << flag;
        EXPECT_EQ(f.kind->free(record), huxStsOk);
      }
    }
}

TEST(Fft, KnownSpectra) {
  Record* record = made(kReal, 2, huxFftScaleFwd);
  const Hux32f x[4] = {4, 0, 0, 0};
  Hux32f y[4];
  EXPECT_EQ(huxsFFTFwd_RToPerm_32f(x, y, record, nullptr), huxStsOk);
  EXPECT_EQ((std::array{y[0], y[1], y[2], y[3]}), (std::array<Hux32f, 4>{1, 1, 1, 0}));
  EXPECT_EQ(huxsFFTFwd_RToPack_32f(x, y, record, nullptr), huxStsOk);
  EXPECT_EQ((std::array{y[0], y[1], y[2], y[3]}), (std::array<Hux32f, 4>{1, 1, 0, 1}));
  EXPECT_EQ(huxsFFTInv_PackToR_32f(y, y, record, nullptr), huxStsOk);
  EXPECT_EQ((std::array{y[0], y[1], y[2], y[3]}), (std::array<Hux32f, 4>{4, 0, 0, 0}));
  huxsFFTFree_R_32f(record);
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

TEST(Fft, SizesAndMemoryOfTheCaller) {
  Rng rng(2);
  for (const Kind* kind : {&kComplex, &kReal})
    for (int order = 0; order <= 30; ++order) {
      SCOPED_TRACE(testing::Message() << (kind == &kReal ? "real" : "complex") << " order " << order);
      const Sizes told = sizesOf(kind == &kReal, order);
      int size = -1, scratch = -1, buffer = -1;
      if (told.record > 0x7fffffff) {
        EXPECT_EQ(kind->getSize(order, 8, huxHintNone, &size, &scratch, &buffer), huxStsNoMem);
        EXPECT_EQ(size + scratch + buffer, -3);
        Record* record = nullptr;
        EXPECT_EQ(kind->initAlloc(&record, order, 8, huxHintNone), huxStsNoMem);
        EXPECT_EQ(record, nullptr);
        continue;
      }
      ASSERT_EQ(kind->getSize(order, -7, huxHintNone, &size, &scratch, &buffer), huxStsOk);
      EXPECT_EQ((std::array<std::int64_t, 3>{size, scratch, buffer}),
                (std::array{told.record, told.scratch, told.buffer}));
      if (order > 18) continue;
      // A context at the end of a page, at any address, does what one of the library's own memory does.
      const Floats src(rng, std::size_t(1) << order, 2), dst(rng, src.count() / 2, 2), other(rng, src.count() / 2, 2);
      const int odd = between(rng, 0, 15);
      const Image memory(rng, size, 1, 1, Place(between(rng, 1, 2))), aside(rng, scratch + 1, 1, 1, Place::kEnd);
      const Image more(rng, size + odd, 1, 1, Place::kEnd);
      for (auto* at : {memory.data<Hux8u>(), more.data<Hux8u>() + odd}) {
        Record *theirs = nullptr, *ours = made(*kind, order, huxFftScaleRoot);
        ASSERT_EQ(
            kind->init(&theirs, order, huxFftScaleRoot, huxHintNone, at, scratch ? aside.data<Hux8u>() + 1 : nullptr),
            huxStsOk);
        for (const Form& f : kForms) {
          if (f.kind != kind) continue;
          ASSERT_EQ(f.call(src.as<void>(), dst.as<void>(), theirs, nullptr), huxStsOk);
          ASSERT_EQ(f.call(src.as<void>(), other.as<void>(), ours, nullptr), huxStsOk);
          EXPECT_EQ(std::memcmp(dst.as<char>(), other.as<char>(), dst.count() * 4 / (kind == &kReal ? 2 : 1)), 0);
        }
        EXPECT_EQ(kind->free(theirs), huxStsOk);
        EXPECT_EQ(kind->free(theirs), huxStsBadContext);
        kind->free(ours);
      }
    }
}

TEST(Fft, ChecksInOrder) {
  Rng rng(3);
  const Image image(rng, 4, 1, 8);
  for (const Kind* kind : {&kComplex, &kReal}) {
    const Kind& other = kind == &kReal ? kComplex : kReal;
    Record *good = made(*kind, 5, huxFftScaleNone), *foreign = made(other, 5, huxFftScaleNone), *null = nullptr;
    const Record* context = good;
    for (const Form& f : kForms) {
      if (f.kind != kind) continue;
      const Floats src(rng, 32, 2), dst(rng, 32, 2);
      const void* s = src.as<void>();
      void* d = dst.as<void>();
      const auto call = [&] { return f.call(s, d, context, nullptr); };
      CheckOrder(call).breaks(huxStsNullPtr, context, null).breaks(huxStsNullPtr, s, nullptr).run(image);
      CheckOrder(call).breaks(huxStsBadContext, context, foreign).breaks(huxStsNullPtr, d, nullptr).run(image);
    }
    int size = 0, scratch = 0, bytes = 0, order = 5, flag = 1;
    int *pSize = &size, *pScratch = &scratch, *pBytes = &bytes;
    const auto getSize = [&] { return kind->getSize(order, flag, huxHintNone, pSize, pScratch, pBytes); };
    for (int** p : {&pSize, &pScratch, &pBytes})
      CheckOrder(getSize).breaks(huxStsBadOrder, order, 31).breaks(huxStsNullPtr, *p, nullptr).run(image);
    getSize();
    const auto memory = std::make_unique<Hux8u[]>(std::size_t(size)),
               aside = std::make_unique<Hux8u[]>(std::size_t(scratch));
    Hux8u *pMem = memory.get(), *pInit = aside.get();
    Record *record = nullptr, **pp = &record;
    CheckOrder([&] { return kind->init(pp, order, flag, huxHintNone, pMem, pInit); })
        .breaks(huxStsNullPtr, pp, nullptr)
        .breaks(huxStsBadOrder, order, -1)
        .breaks(huxStsNullPtr, pMem, nullptr)
        .breaks(huxStsBadFlag, flag, 3)
        .breaks(huxStsNullPtr, pInit, nullptr)
        .run(image);
    EXPECT_EQ(kind->init(&record, 3, flag, huxHintNone, pMem, nullptr), huxStsOk);
    for (int bad : {-1, 31}) EXPECT_EQ(kind->initAlloc(&record, bad, 0, huxHintNone), huxStsBadOrder);
    EXPECT_EQ(kind->initAlloc(nullptr, -1, 0, huxHintNone), huxStsNullPtr);
    EXPECT_EQ(kind->getBufSize(nullptr, pSize), huxStsNullPtr);
    EXPECT_EQ(kind->getBufSize(good, nullptr), huxStsNullPtr);
    EXPECT_EQ(kind->getBufSize(foreign, pSize), huxStsBadContext);
    EXPECT_EQ(kind->free(nullptr), huxStsNullPtr);
    EXPECT_EQ(kind->free(foreign), huxStsBadContext);
    EXPECT_EQ(kind->free(good), huxStsOk);
    EXPECT_EQ(other.free(foreign), huxStsOk);
  }
}

TEST(Fft, LeavesNothingBehindWhenMemoryRunsOut) {
  int live = liveBlocks();
  for (const Kind* kind : {&kComplex, &kReal}) {
    for (int flag : {1, 5}) {
      Record *untouched = reinterpret_cast<Record*>(&live), *record = untouched;
      const HuxStatus last = walkAllocationFailures([&] { return kind->initAlloc(&record, 14, flag, huxHintNone); },
                                                    [&](HuxStatus s) {
                                                      EXPECT_EQ(s, huxStsNoMem);
                                                      EXPECT_EQ(record, untouched);
                                                      EXPECT_EQ(liveBlocks(), live);
                                                    });
      EXPECT_EQ(last, flag == 1 ? HuxStatus(huxStsOk) : HuxStatus(huxStsBadFlag));
      if (flag == 5) {
        EXPECT_EQ(record, untouched);
        continue;
      }
      Rng rng(4);
      const Floats x(rng, 1 << 14, 2);
      for (const Form& f : kForms) {
        if (f.kind != kind) continue;
        const Image before = x.image();
        const auto call = [&] { return f.call(x.as<void>(), x.as<void>(), record, nullptr); };
        walkAllocationFailures(call, [&](HuxStatus s) {
          EXPECT_EQ(s, huxStsNoMem);
          EXPECT_TRUE(same(x.image(), before));
        });
      }
      kind->free(record);
    }
    EXPECT_EQ(liveBlocks(), live);
  }
}

}  // namespace
}  // namespace hux::test
