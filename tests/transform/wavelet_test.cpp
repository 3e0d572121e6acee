// Wavelets beside their definition. Samples and taps are small numbers whose sums are exact, so that results are
// compared to the bit whatever the order.
#include <cmath>
#include <limits>

#include "huxi_transform.h"
#include "transform/contexts.h"

namespace hux::test {
namespace {

struct Member {
  int channels;
  HuxStatus (*initAlloc[2])(void*, const void*, int, int, const void*, int, int);  // forward, inverse
  FreeFn* free[2];
  BufSizeFn* getBufSize[2];
  decltype(erased<huxiWTFwd_32f_C1R>) forward;
  decltype(erased<huxiWTInv_32f_C1R>) inverse;
};
#define MEMBER(l)                                                                                               \
  {                                                                                                             \
    l.stride, {erased<huxiWTFwdInitAlloc_32f_##l##R>, erased<huxiWTInvInitAlloc_32f_##l##R>},                   \
        {erased<huxiWTFwdFree_32f_##l##R>, erased<huxiWTInvFree_32f_##l##R>},                                   \
        {erased<huxiWTFwdGetBufSize_##l##R>, erased<huxiWTInvGetBufSize_##l##R>}, erased<huxiWTFwd_32f_##l##R>, \
        erased<huxiWTInv_32f_##l##R>                                                                            \
  }
const Member kMembers[] = {MEMBER(C1), MEMBER(C3)};

struct Filter {
  std::vector<float> taps;
  int anchor;
  int length() const { return int(taps.size()); }
};
Filter anyFilter(Rng& rng) {
  Filter f{std::vector<float>(std::size_t(between(rng, 2, 9))), 0};
  for (float& t : f.taps) t = float(between(rng, -8, 8)) / 4;
  f.anchor = between(rng, 0, f.length() - 1);
  return f;
}

// What lies around a region of width by height pixels that may be read.
struct Around {
  int left, right, above, below;
};
// An image with just that around a region, of small whole numbers.
struct Bordered {
  Around around;
  Image image;
  int channels;
  Bordered(Rng& rng, HuxiSize size, Around a, int channels, Place place)
      : around(a),
        image(rng, (a.left + size.width + a.right) * channels * 4, a.above + size.height + a.below, 1, place),
        channels(channels) {
    image.fill<float>([&] { return float(between(rng, -20, 20)); });
  }
  float* first() const { return reinterpret_cast<float*>(image.bytes(around.left * channels * 4, around.above)); }
  float at(int x, int y, int c) const {
    return image.get<float>(0, y + around.above, (x + around.left) * channels + c);
  }
};

// Zeros of either sign are alike.
testing::AssertionResult sameNumbers(const Image& actual, const Image& expected) {
  return sameBut<float>(actual, expected, 1, [](float a, float b) { return a == b; });
}

void* made(const Member& m, bool inverse, const Filter& low, const Filter& high) {
  void* record = nullptr;
  EXPECT_EQ(m.initAlloc[inverse](&record, low.taps.data(), low.length(), low.anchor, high.taps.data(), high.length(),
                                 high.anchor),
            huxStsOk);
  return record;
}

// Sizes around the length of vectors and strips.
HuxiSize anySize(Rng& rng, int turn) {
  constexpr int widths[] = {256, 257, 512, 513, 300};
  return {turn < 60 ? turn / 2 + 1 : widths[turn % 5], between(rng, 1, 4)};
}

TEST(Wavelet, ForwardIsItsDefinition) {
  Rng rng(1);
  for (const Member& m : kMembers)
    for (int turn = 0; turn < 70; ++turn) {
      const Filter filters[2] = {anyFilter(rng), anyFilter(rng)};
      Around around{0, 0, 0, 0};
      for (const Filter& f : filters) {
        around.left = around.above = std::max(around.left, f.length() - f.anchor - 1);
        around.right = around.below = std::max(around.right, f.anchor - 1);
      }
      const HuxiSize size = anySize(rng, turn);
      const Place place = Place(turn % 3);
      const Bordered src(rng, {2 * size.width, 2 * size.height}, around, m.channels, place);
      void* record = made(m, false, filters[0], filters[1]);
      int bytes = 0;
      ASSERT_EQ(m.getBufSize[false](record, &bytes), huxStsOk);
      const Image buffer(rng, bytes, 1, 1, Place::kEnd);
      const int n = size.width * m.channels;
      std::vector<Image> dst, expected;
      for (int band = 0; band < 4; ++band) dst.emplace_back(rng, n, size.height, 4, place);
      for (const Image& d : dst) expected.push_back(d);
      // Bands by column filter, then row filter: Approx, DetailY, DetailX, DetailXY.
      constexpr int bandOf[2][2] = {{0, 2}, {1, 3}};
      for (int down = 0; down < 2; ++down)
        for (int along = 0; along < 2; ++along)
          for (int y = 0; y < size.height; ++y)
            for (int i = 0; i < n; ++i) {
              float sum = 0;
              for (int p = 0; p < filters[down].length(); ++p)
                for (int q = 0; q < filters[along].length(); ++q) {
                  const int sx = 2 * (i / m.channels) + filters[along].anchor - q,
                            sy = 2 * y + filters[down].anchor - p;
                  sum += filters[down].taps[std::size_t(p)] * filters[along].taps[std::size_t(q)] *
                         src.at(sx, sy, i % m.channels);
                }
              expected[std::size_t(bandOf[down][along])].set<float>(i, y, 0, sum);
            }
      ASSERT_EQ(m.forward(src.first(), src.image.step(), dst[0].data<float>(), dst[0].step(), dst[1].data<float>(),
                          dst[1].step(), dst[2].data<float>(), dst[2].step(), dst[3].data<float>(), dst[3].step(), size,
                          record, buffer.bytes()),
                huxStsOk);
      for (std::size_t band = 0; band < 4; ++band)
        ASSERT_TRUE(sameNumbers(dst[band], expected[band]))
            << "C" << m.channels << " " << size.width << " band " << band;
      EXPECT_EQ(m.free[false](record), huxStsOk);
    }
}

TEST(Wavelet, InverseIsItsDefinition) {
  Rng rng(2);
  for (const Member& m : kMembers)
    for (int turn = 0; turn < 70; ++turn) {
      const Filter filters[2] = {anyFilter(rng), anyFilter(rng)};
      const auto ahead = [&](int f) { return (filters[f].length() - filters[f].anchor - 1) / 2; };
      const auto behind = [&](int f) { return (filters[f].anchor + 1) / 2; };
      const HuxiSize size = anySize(rng, turn);
      const Place place = Place(turn % 3);
      // Approx, DetailX, DetailY, DetailXY by the filters that they go through.
      constexpr int downOf[4] = {0, 1, 0, 1}, alongOf[4] = {0, 0, 1, 1};
      std::vector<Bordered> src;
      for (int b = 0; b < 4; ++b) {
        const int d = downOf[b], a = alongOf[b];
        src.emplace_back(rng, size, Around{ahead(a), behind(a), ahead(d), behind(d)}, m.channels, place);
      }
      void* record = made(m, true, filters[0], filters[1]);
      int bytes = 0;
      ASSERT_EQ(m.getBufSize[true](record, &bytes), huxStsOk);
      const Image buffer(rng, bytes, 1, 1, Place::kEnd);
      const int n = 2 * size.width * m.channels;
      Image dst(rng, n, 2 * size.height, 4, place), expected = dst;
      for (int y = 0; y < dst.height(); ++y)
        for (int i = 0; i < n; ++i) {
          float sum = 0;
          for (std::size_t b = 0; b < 4; ++b) {
            const Filter &down = filters[downOf[b]], &along = filters[alongOf[b]];
            for (int p = 0; p < down.length(); ++p)
              for (int q = 0; q < along.length(); ++q) {
                const int sy = y + down.anchor - p, sx = i / m.channels + along.anchor - q;
                if (sy % 2 == 0 && sx % 2 == 0)
                  sum += down.taps[std::size_t(p)] * along.taps[std::size_t(q)] *
                         src[b].at(sx / 2, sy / 2, i % m.channels);
              }
          }
          expected.set<float>(i, y, 0, sum);
        }
      ASSERT_EQ(m.inverse(src[0].first(), src[0].image.step(), src[1].first(), src[1].image.step(), src[2].first(),
                          src[2].image.step(), src[3].first(), src[3].image.step(), size, dst.data<float>(), dst.step(),
                          record, buffer.bytes()),
                huxStsOk);
      ASSERT_TRUE(sameNumbers(dst, expected)) << "C" << m.channels << " " << size.width;
      EXPECT_EQ(m.free[true](record), huxStsOk);
    }
}

TEST(Wavelet, ReportsItsWorkMemory) {
  const Filter low{{1, 2, 3, 4, 5}, 1}, high{{1, 2, 1}, 2};
  int bytes = 0;
  for (const Member& m : kMembers) {
    // Lines of 3 + 1 + 512 samples; of 1 + 1 + 256 and of 0 + 1 + 256. The first is rounded up to 32 bytes.
    void *forward = made(m, false, low, high), *inverse = made(m, true, low, high);
    EXPECT_EQ(m.getBufSize[false](forward, &bytes), huxStsOk);
    EXPECT_EQ(bytes, m.channels * (2080 + 4 * 516));
    EXPECT_EQ(m.getBufSize[true](inverse, &bytes), huxStsOk);
    EXPECT_EQ(bytes, m.channels * (1056 + 4 * 257));
    m.free[false](forward), m.free[true](inverse);
  }
}

TEST(Wavelet, ChecksInOrder) {
  Rng rng(3);
  const Filter haar{{0.5f, 0.5f}, 1};
  const Image src(rng, 80, 8, 4), dst(rng, 80, 8, 4);
  for (const Member& m : kMembers)
    for (const bool inverse : {false, true}) {
      void *good = made(m, inverse, haar, haar), *foreign = made(m, !inverse, haar, haar), *record = nullptr,
           *pp = &record;
      std::vector<Hux32s> bare(256);
      bare[0] = (m.channels == 1 ? 46 : 48) + inverse;  // the right tag and nothing else
      void* hollow = bare.data();
      const void *pLow = haar.taps.data(), *pHigh = pLow;
      int lenLow = 2, lenHigh = 2, anchorLow = 1, anchorHigh = 0;
      CheckOrder create([&] {
        const HuxStatus s = m.initAlloc[inverse](pp, pLow, lenLow, anchorLow, pHigh, lenHigh, anchorHigh);
        if (s == huxStsOk) m.free[inverse](record);
        return s;
      });
      create.nulls(pp, pLow, pHigh).breaks(huxStsBadSize, lenLow, 1).breaks(huxStsBadSize, lenHigh, 0);
      create.breaks(huxStsBadAnchor, anchorLow, 2).breaks(huxStsBadAnchor, anchorHigh, -1).run(dst);
      expectContract([&](void* to) { return m.initAlloc[inverse](to, pLow, 2, 0, pHigh, 2, 1); }, m.free[inverse],
                     m.getBufSize[inverse], foreign);
      // Work memory of more than a signed 32-bit number of bytes; the taps are not looked at.
      constexpr int most = std::numeric_limits<int>::max();
      for (const int anchor : {0, most / 2, most - 1}) {
        record = nullptr;
        EXPECT_EQ(m.initAlloc[inverse](&record, pLow, most, anchor, pHigh, 2, 1), huxStsNoMem);
        EXPECT_EQ(record, nullptr);
      }

      const void* state = good;
      int bytes = 0;
      void* pSize = &bytes;
      CheckOrder([&] { return m.getBufSize[inverse](state, pSize); })
          .breaks(huxStsBadContext, state, foreign)
          .nulls(pSize)
          .run(dst);
      EXPECT_EQ(m.getBufSize[inverse](hollow, pSize), huxStsBadContext);
      std::vector<Hux8u> memory(std::size_t(bytes) + 1);
      void* pBuffer = memory.data();
      const void* s[4];
      void* d[4];
      int sourceStep[4], step[4];
      for (int b = 0; b < 4; ++b)
        s[b] = src.bytes(8, 2), d[b] = dst.bytes(), sourceStep[b] = src.step(), step[b] = dst.step();
      HuxiSize size{2, 2};
      CheckOrder order([&] {
        return inverse ? m.inverse(s[0], sourceStep[0], s[1], sourceStep[1], s[2], sourceStep[2], s[3], sourceStep[3],
                                   size, d[0], step[0], state, pBuffer)
                       : m.forward(s[0], sourceStep[0], d[0], step[0], d[1], step[1], d[2], step[2], d[3], step[3],
                                   size, state, pBuffer);
      });
      if (inverse) order.nulls(pBuffer);
      order.breaks(huxStsBadContext, state, foreign).breaks(huxStsBadContext, state, hollow);
      if (!inverse) order.nulls(pBuffer);
      for (int b = 0; b < 4; ++b)
        if (inverse || b == 0) order.nulls(s[b]);
      for (int b = 0; b < 4; ++b)
        if (!inverse || b == 0) order.nulls(d[b]);
      order.sizes(size);
      for (int b = 0; b < 4; ++b)
        if (inverse || b == 0) order.steps(sourceStep[b]);
      for (int b = 0; b < 4; ++b)
        if (!inverse || b == 0) order.steps(step[b]);
      order.run(dst);
      state = nullptr;
      EXPECT_EQ(inverse ? m.inverse(s[0], 4, s[1], 4, s[2], 4, s[3], 4, size, d[0], 4, state, pBuffer)
                        : m.forward(s[0], 4, d[0], 4, d[1], 4, d[2], 4, d[3], 4, size, state, pBuffer),
                huxStsNullPtr);
      EXPECT_EQ(m.free[inverse](hollow), huxStsBadContext);
      m.free[inverse](good), m.free[!inverse](foreign);
    }
}

// A sample that is not finite shows only where a filter meets it.
TEST(Wavelet, AnInfinitySpreadsNoFurtherThanTheTaps) {
  Rng rng(4);
  const Filter f{{1, 2, 3, 4, 5}, 2};
  void* record = made(kMembers[0], true, f, f);
  std::vector<Hux8u> buffer(4096);
  Bordered src(rng, {12, 12}, {2, 2, 2, 2}, 1, Place::kInside);
  src.image.set<float>(0, 8, 8, std::numeric_limits<float>::infinity());
  Image dst(rng, 24, 24, 4);
  const int step = src.image.step();
  ASSERT_EQ(kMembers[0].inverse(src.first(), step, src.first(), step, src.first(), step, src.first(), step, {12, 12},
                                dst.bytes(), dst.step(), record, buffer.data()),
            huxStsOk);
  forPixels({24, 24}, [&](int x, int y) {
    EXPECT_EQ(std::isfinite(dst.get<float>(x, y)), std::abs(x - 12) > 2 || std::abs(y - 12) > 2) << x << "," << y;
  });
  kMembers[0].free[true](record);
}

}  // namespace
}  // namespace hux::test
