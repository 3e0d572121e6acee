// The transform of any length against double precision, and what its contexts report and refuse.
#include "huxs_transform.h"
#include "support/failing_malloc.h"
#include "support/order.h"
#include "transform/reference.h"

namespace hux::test {
namespace {

using Record = HuxsDFTRecord;

// By whether it is real: complex transforms first.
constexpr decltype(&huxsDFTInitAlloc_C_32fc) kInitAlloc[] = {huxsDFTInitAlloc_C_32fc, huxsDFTInitAlloc_R_32f};
constexpr decltype(&huxsDFTFree_C_32fc) kFree[] = {huxsDFTFree_C_32fc, huxsDFTFree_R_32f};
constexpr decltype(&huxsDFTGetBufSize_C_32fc) kGetBufSize[] = {huxsDFTGetBufSize_C_32fc, huxsDFTGetBufSize_R_32f};

HuxStatus run(bool real, bool forward, const void* s, void* d, const Record* record, Hux8u* buffer) {
  if (real)
    return (forward ? huxsDFTFwd_RToPack_32f : huxsDFTInv_PackToR_32f)(static_cast<const Hux32f*>(s),
                                                                       static_cast<Hux32f*>(d), record, buffer);
  return (forward ? huxsDFTFwd_CToC_32fc : huxsDFTInv_CToC_32fc)(static_cast<const Hux32fc*>(s),
                                                                 static_cast<Hux32fc*>(d), record, buffer);
}

Record* made(bool real, int length, int flag) {
  Record* record = nullptr;
  EXPECT_EQ(kInitAlloc[real](&record, length, flag, huxHintNone), huxStsOk);
  return record;
}

Numbers expected(bool real, bool forward, const Numbers& input) {
  if (!real) return forward ? spectrum(input) : inverseSpectrum(input);
  if (forward) return asNumbers(packed(spectrum(input)));
  const std::size_t n = input.size();
  Numbers x(n);
  x[0] = input[0];
  if (n % 2 == 0) x[n / 2] = input[n - 1];
  for (std::size_t k = 1; 2 * k < n; ++k) {
    x[k] = {input[2 * k - 1].real(), input[2 * k].real()};
    x[n - k] = std::conj(x[k]);
  }
  x = inverseSpectrum(x);
  for (Complex& z : x) z = z.real();
  return x;
}

void expectTransforms(Rng& rng, int n) {
  const std::size_t count = std::size_t(n);
  for (int real = 0; real < 2; ++real)
    for (int forward = 0; forward < 2; ++forward) {
      SCOPED_TRACE(testing::Message() << "length " << n << (real ? " real" : " complex")
                                      << (forward ? "" : " inverse"));
      const int parts = real ? 1 : 2;
      const Floats src(rng, count, parts, Place(n % 3));
      const Image before = src.image();
      const Numbers truth = expected(real, forward, src.numbers());
      for (int flag : kFlags) {
        if (n > 200 && flag != kFlags[n % 4]) continue;
        Record* record = made(real, n, flag);
        const Numbers target = scaledBy(factorOf(flag, forward, n), truth);
        int bytes = 0;
        ASSERT_EQ(kGetBufSize[real](record, &bytes), huxStsOk);
        const Image buffer(rng, bytes + 1, 1, 1, Place::kEnd);
        const Floats dst(rng, count, parts, Place(flag % 3)), both(rng, count, parts);
        // The buffer ends with its page.
        ASSERT_EQ(
            run(real, forward, src.as<void>(), dst.as<void>(), record, bytes ? buffer.data<Hux8u>() + 1 : nullptr),
            huxStsOk);
        EXPECT_TRUE(near(dst.numbers(), target, tolerance(n))) << "flag " << flag;
        EXPECT_TRUE(same(src.image(), before));
        std::memcpy(both.as<char>(), src.as<char>(), src.count() * 4);
        ASSERT_EQ(run(real, forward, both.as<void>(), both.as<void>(), record, nullptr), huxStsOk);
        EXPECT_EQ(std::memcmp(both.as<char>(), dst.as<char>(), dst.count() * 4), 0) << "in place, flag " << flag;
        EXPECT_EQ(kFree[real](record), huxStsOk);
      }
    }
}

TEST(Dft, AgreesWithDoublePrecisionForShortLengths) {
  Rng rng(1);
  for (int n = 1; n <= 512; ++n) expectTransforms(rng, n);
}

TEST(Dft, AgreesWithDoublePrecisionForLongLengths) {
  Rng rng(2);
  // Primes and products around every change of method, deep and shallow factorisations, the long chirps.
  for (int n : {600,   720,   1000,  1023,  1024,  1080,  1920,   1999,          2000,      2001,
                2003,  2187,  2310,  4096,  4099,  6561,  8191,   8192,          10000,     22201,
                22499, 22801, 30030, 44402, 31861, 78125, 131072, 149 * 149 * 4, 151 * 151, 177147})
    expectTransforms(rng, n);
}

TEST(Dft, ReportsItsWorkMemory) {
  const auto expectSize = [](bool real, int n, int expected) {
    Record* record = made(real, n, huxFftScaleNone);
    int bytes = -1;
    EXPECT_EQ(kGetBufSize[real](record, &bytes), huxStsOk);
    EXPECT_EQ(bytes, expected) << n << (real ? " real" : " complex");
    kFree[real](record);
  };
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

TEST(Dft, PowersOfTwoAreThoseOfTheFft) {
  Rng rng(3);
  for (int order : {0, 1, 2, 3, 6, 11, 13}) {
    const int n = 1 << order;
    const Floats src(rng, std::size_t(n), 2), a(rng, std::size_t(n), 2), b(rng, std::size_t(n), 2);
    HuxsFFTRecord* fft = nullptr;
    ASSERT_EQ(huxsFFTInitAlloc_C_32fc(&fft, order, huxFftScaleRoot, huxHintNone), huxStsOk);
    Record* dft = made(false, n, huxFftScaleRoot);
    huxsFFTFwd_CToC_32fc(src.as<Hux32fc>(), a.as<Hux32fc>(), fft, nullptr);
    huxsDFTFwd_CToC_32fc(src.as<Hux32fc>(), b.as<Hux32fc>(), dft, nullptr);
    EXPECT_EQ(std::memcmp(a.as<char>(), b.as<char>(), std::size_t(n) * 8), 0) << order;
    huxsFFTFree_C_32fc(fft), huxsDFTFree_C_32fc(dft);
  }
}

TEST(Dft, ChecksInOrder) {
  Rng rng(4);
  const Image image(rng, 4, 1, 8);
  int size = 0, *pSize = &size;
  for (int real = 0; real < 2; ++real) {
    Record *good = made(real, 15, 8), *foreign = made(!real, 15, 8), *record = nullptr, **pp = &record;
    const Record* context = good;
    const Floats src(rng, 15, 2), dst(rng, 15, 2);
    for (int forward = 0; forward < 2; ++forward) {
      const void* s = src.as<void>();
      void* d = dst.as<void>();
      const auto call = [&] { return run(real, forward, s, d, context, nullptr); };
      CheckOrder(call).breaks(huxStsNullPtr, context, nullptr).breaks(huxStsNullPtr, s, nullptr).run(image);
      CheckOrder(call).breaks(huxStsBadContext, context, foreign).breaks(huxStsNullPtr, d, nullptr).run(image);
    }
    int length = 15, flag = 2;
    CheckOrder([&] {
      const HuxStatus s = kInitAlloc[real](pp, length, flag, huxHintNone);
      if (s == huxStsOk) kFree[real](record);
      return s;
    })
        .breaks(huxStsNullPtr, pp, nullptr)
        .breaks(huxStsBadSize, length, 0)
        .breaks(huxStsBadFlag, flag, 6)
        .run(image);
    // Work memory beyond what can be reported.
    record = nullptr;
    for (int huge : {0x7fffffff, 300000000}) EXPECT_EQ(kInitAlloc[real](&record, huge, 6, huxHintNone), huxStsNoMem);
    EXPECT_EQ(record, nullptr);
    CheckOrder([&] { return kGetBufSize[real](context, pSize); })
        .breaks(huxStsNullPtr, pSize, nullptr)
        .breaks(huxStsBadContext, context, foreign)
        .run(image);
    EXPECT_EQ(kFree[real](nullptr), huxStsNullPtr);
    EXPECT_EQ(kFree[real](foreign), huxStsBadContext);
    EXPECT_EQ(kFree[real](good), huxStsOk);
    EXPECT_EQ(kFree[!real](foreign), huxStsOk);
  }
}

TEST(Dft, LeavesNothingBehindWhenMemoryRunsOut) {
  const int live = liveBlocks();
  Rng rng(5);
  const Floats x(rng, 8192, 2);
  const Image before = x.image();
  for (int real = 0; real < 2; ++real)
    for (int n : {210, 8192, 4099, 149, 105}) {
      Record* record = nullptr;
      const HuxStatus last = walkAllocationFailures([&] { return kInitAlloc[real](&record, n, 1, huxHintNone); },
                                                    [&](HuxStatus s) {
                                                      EXPECT_EQ(s, huxStsNoMem);
                                                      EXPECT_EQ(record, nullptr);
                                                      EXPECT_EQ(liveBlocks(), live);
                                                    });
      ASSERT_EQ(last, huxStsOk);
      for (int forward = 0; forward < 2; ++forward) {
        failAllocation(0);
        const HuxStatus s = run(real, forward, x.as<void>(), x.as<void>(), record, nullptr);
        if (allocationFailed()) {
          EXPECT_EQ(s, huxStsNoMem);
          EXPECT_TRUE(same(x.image(), before));
        }
        stopFailing();
      }
      std::memcpy(x.as<char>(), before.bytes(), x.count() * 4);
      kFree[real](record);
      EXPECT_EQ(liveBlocks(), live);
    }
}

}  // namespace
}  // namespace hux::test
