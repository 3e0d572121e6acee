// The cosine transform of any length against double precision, and what its contexts report and refuse.
#include "huxs_transform.h"
#include "support/failing_malloc.h"
#include "support/order.h"
#include "transform/reference.h"

namespace hux::test {
namespace {

using Record = HuxsDCTRecord;

// By whether it is forward: the inverse first.
constexpr decltype(&huxsDCTFwdInitAlloc_32f) kInitAlloc[] = {huxsDCTInvInitAlloc_32f, huxsDCTFwdInitAlloc_32f};
constexpr decltype(&huxsDCTFwdGetSize_32f) kGetSize[] = {huxsDCTInvGetSize_32f, huxsDCTFwdGetSize_32f};
constexpr decltype(&huxsDCTFwdInit_32f) kInit[] = {huxsDCTInvInit_32f, huxsDCTFwdInit_32f};
constexpr decltype(&huxsDCTFwdFree_32f) kFree[] = {huxsDCTInvFree_32f, huxsDCTFwdFree_32f};
constexpr decltype(&huxsDCTFwdGetBufSize_32f) kGetBufSize[] = {huxsDCTInvGetBufSize_32f, huxsDCTFwdGetBufSize_32f};
constexpr decltype(&huxsDCTFwd_32f) kRun[] = {huxsDCTInv_32f, huxsDCTFwd_32f};

// By a spectrum of twice the length.
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

double bound(int n, HuxAccuracyHint hint) {
  const bool halves = n >= 16 && (n & (n - 1)) == 0 && !(n > 512 && hint == huxHintAccurate);
  return halves ? std::max(tolerance(n), 1.5e-7 * std::sqrt(double(n))) : tolerance(n);
}

void expectTransforms(Rng& rng, int n, HuxAccuracyHint hint) {
  const std::size_t count = std::size_t(n);
  for (const bool forward : {false, true}) {
    SCOPED_TRACE(testing::Message() << "length " << n << " hint " << hint << (forward ? "" : " inverse"));
    const Floats src(rng, count, 1, Place(n % 3)), dst(rng, count, 1, Place((n + 1) % 3)), both(rng, count, 1);
    const Image before = src.image();
    int size = -1, scratchSize = -1, workSize = -1, told = -1;
    ASSERT_EQ(kGetSize[forward](n, hint, &size, &scratchSize, &workSize), huxStsOk);
    // Each piece of memory ends with its page, at any address.
    const Image memory(rng, size, 1, 1, Place::kEnd), scratch(rng, scratchSize + 1, 1, 1, Place::kEnd);
    const Image work(rng, workSize + 1, 1, 1, Place::kEnd);
    Record* record = nullptr;
    ASSERT_EQ(kInit[forward](&record, n, hint, memory.data<Hux8u>(), scratchSize ? scratch.data<Hux8u>() + 1 : nullptr),
              huxStsOk);
    ASSERT_EQ(kGetBufSize[forward](record, &told), huxStsOk);
    EXPECT_EQ(told, workSize);
    ASSERT_EQ(kRun[forward](src.as<Hux32f>(), dst.as<Hux32f>(), record, workSize ? work.data<Hux8u>() + 1 : nullptr),
              huxStsOk);
    EXPECT_TRUE(near(dst.numbers(), cosines(src.numbers(), forward), bound(n, hint)));
    EXPECT_TRUE(same(src.image(), before));
    EXPECT_EQ(kFree[forward](record), huxStsOk);
    ASSERT_EQ(kInitAlloc[forward](&record, n, hint), huxStsOk);
    std::memcpy(both.as<char>(), src.as<char>(), count * 4);
    ASSERT_EQ(kRun[forward](both.as<Hux32f>(), both.as<Hux32f>(), record, nullptr), huxStsOk);
    EXPECT_EQ(std::memcmp(both.as<char>(), dst.as<char>(), count * 4), 0) << "in place";
    EXPECT_EQ(kFree[forward](record), huxStsOk);
  }
}

TEST(Cosine, AgreesWithDoublePrecision) {
  Rng rng(1);
  for (int n = 1; n <= 140; ++n) expectTransforms(rng, n, huxHintNone);
  for (int n : {256, 512, 1000, 1023, 1024, 1025, 1999, 2048, 4097, 8192, 65536, 1 << 18, 100000}) {
    expectTransforms(rng, n, huxHintNone);
    if ((n & (n - 1)) == 0) expectTransforms(rng, n, huxHintAccurate);
  }
}

TEST(Cosine, ReportsItsWorkMemory) {
  const auto expectSize = [](int n, HuxAccuracyHint hint, int expected) {
    for (const bool forward : {false, true}) {
      int size = 0, scratch = 0, work = -1;
      EXPECT_EQ(kGetSize[forward](n, hint, &size, &scratch, &work), huxStsOk);
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

TEST(Cosine, ChecksInOrder) {
  Rng rng(2);
  const Floats src(rng, 120, 1), dst(rng, 120, 1);
  for (const bool forward : {false, true}) {
    Record *good = nullptr, *foreign = nullptr, *record = nullptr, **pp = &record;
    ASSERT_EQ(kInitAlloc[forward](&good, 120, huxHintNone), huxStsOk);
    ASSERT_EQ(kInitAlloc[!forward](&foreign, 120, huxHintNone), huxStsOk);
    const Record* context = good;
    const Hux32f* s = src.as<Hux32f>();
    Hux32f* d = dst.as<Hux32f>();
    const auto run = [&] { return kRun[forward](s, d, context, nullptr); };
    CheckOrder(run).breaks(huxStsNullPtr, context, nullptr).breaks(huxStsNullPtr, s, nullptr).run(dst.image());
    CheckOrder(run).breaks(huxStsBadContext, context, foreign).breaks(huxStsNullPtr, d, nullptr).run(dst.image());
    int n = 120, sizes[3], *pSize = sizes, *pInit = sizes + 1, *pWork = sizes + 2;
    CheckOrder([&] { return kGetSize[forward](n, huxHintNone, pSize, pInit, pWork); })
        .breaks(huxStsBadSize, n, 0)
        .breaks(huxStsNullPtr, pSize, nullptr)
        .breaks(huxStsNullPtr, pInit, nullptr)
        .breaks(huxStsNullPtr, pWork, nullptr)
        .run(dst.image());
    const Image memory(rng, sizes[0], 1, 1), scratch(rng, sizes[1], 1, 1);
    Hux8u *pMem = memory.data<Hux8u>(), *pInitBuf = scratch.data<Hux8u>();
    CheckOrder([&] { return kInit[forward](pp, n, huxHintNone, pMem, pInitBuf); })
        .breaks(huxStsNullPtr, pp, nullptr)
        .breaks(huxStsBadSize, n, -1)
        .breaks(huxStsNullPtr, pMem, nullptr)
        .breaks(huxStsNullPtr, pInitBuf, nullptr)
        .run(dst.image());
    EXPECT_EQ(kInitAlloc[forward](nullptr, 0, huxHintNone), huxStsNullPtr);
    EXPECT_EQ(kInitAlloc[forward](&record, 0, huxHintNone), huxStsBadSize);
    record = nullptr;
    for (int huge : {0x7fffffff, 1 << 30, 200000001}) {
      EXPECT_EQ(kInitAlloc[forward](&record, huge, huxHintAccurate), huxStsNoMem);
      EXPECT_EQ(kGetSize[forward](huge, huxHintNone, pSize, pInit, pWork), huxStsNoMem);
    }
    EXPECT_EQ(record, nullptr);
    EXPECT_EQ(kGetBufSize[forward](nullptr, pSize), huxStsNullPtr);
    EXPECT_EQ(kGetBufSize[forward](good, nullptr), huxStsNullPtr);
    EXPECT_EQ(kGetBufSize[forward](foreign, pSize), huxStsBadContext);
    EXPECT_EQ(kFree[forward](nullptr), huxStsNullPtr);
    EXPECT_EQ(kFree[forward](foreign), huxStsBadContext);
    EXPECT_EQ(kFree[forward](good), huxStsOk);
    EXPECT_EQ(kFree[!forward](foreign), huxStsOk);
  }
}

TEST(Cosine, LeavesNothingBehindWhenMemoryRunsOut) {
  const int live = liveBlocks();
  Rng rng(3);
  const Floats x(rng, 1024, 1);
  for (int n : {8, 64, 99, 1000, 1024}) {
    Record* record = nullptr;
    const HuxStatus last = walkAllocationFailures([&] { return huxsDCTFwdInitAlloc_32f(&record, n, huxHintAccurate); },
                                                  [&](HuxStatus s) {
                                                    EXPECT_EQ(s, huxStsNoMem);
                                                    EXPECT_EQ(record, nullptr);
                                                    EXPECT_EQ(liveBlocks(), live);
                                                  });
    ASSERT_EQ(last, huxStsOk);
    const Image before = x.image();
    failAllocation(0);
    const HuxStatus s = huxsDCTFwd_32f(x.as<Hux32f>(), x.as<Hux32f>(), record, nullptr);
    EXPECT_EQ(s, n == 8 ? huxStsOk : huxStsNoMem);
    stopFailing();
    if (n != 8) {
      EXPECT_TRUE(same(x.image(), before));
    }
    huxsDCTFwdFree_32f(record);
    EXPECT_EQ(liveBlocks(), live);
  }
}

}  // namespace
}  // namespace hux::test
