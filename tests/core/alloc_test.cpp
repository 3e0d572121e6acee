// The allocators: alignment, steps, refusals, and that nothing is lost when memory runs out.
#include <cmath>
#include <limits>
#include <string>

#include "core/scratch.h"
#include "core/stamp.h"
#include "huxcore.h"
#include "huxi.h"
#include "huxs.h"
#include "support/failing_malloc.h"

namespace hux::test {
namespace {

struct Vectors {
  int bytes;
  void* (*malloc)(int);
};
#define VECTORS(t, _) {int(sizeof(Hux##t)), [](int len) -> void* { return huxsMalloc_##t(len); }},
const Vectors kVectors[] = {HUX_STAMP(VECTORS, (8u, 8s, 16u, 16s, 32u, 32s, 32f, 16sc, 32sc, 32fc, 64fc), (_))};

struct Images {
  int pixelBytes;
  void* (*malloc)(int, int, int*);
};
#define IMAGES(t, l)                                       \
  {(#l[0] == 'A' ? 4 : #l[1] - '0') * int(sizeof(Hux##t)), \
   [](int w, int h, int* step) -> void* { return huxiMalloc_##t##_##l(w, h, step); }},
const Images kImages[] = {HUX_STAMP(IMAGES, (8u, 16u, 16s, 32s, 32f, 32sc, 32fc), (C1, C2, C3, C4, AC4))};

bool aligned(const void* p) { return reinterpret_cast<std::uintptr_t>(p) % 32 == 0; }

TEST(Malloc, VectorsAreAlignedAndWholeAndFreed) {
  const int before = liveBlocks();
  for (const Vectors& v : kVectors)
    for (int len : {1, 2, 3, 7, 31, 32, 33, 1000}) {
      void* p = v.malloc(len);
      ASSERT_NE(p, nullptr);
      EXPECT_TRUE(aligned(p));
      std::memset(p, 0xa5, std::size_t(len) * std::size_t(v.bytes));  // the address sanitizer watches the ends
      EXPECT_EQ(liveBlocks(), before + 1);
      huxsFree(p);
      EXPECT_EQ(liveBlocks(), before);
    }
  huxsFree(nullptr);
  huxiFree(nullptr);
}

TEST(Malloc, VectorsRefuseEmptyAndExhausted) {
  for (const Vectors& v : kVectors) {
    EXPECT_EQ(v.malloc(0), nullptr);
    EXPECT_EQ(v.malloc(std::numeric_limits<int>::min()), nullptr);
    failAllocation(0);
    EXPECT_EQ(v.malloc(5), nullptr);
    stopFailing();
  }
}

TEST(Malloc, ImagesHaveRowsOfMultiplesOf32) {
  for (const Images& image : kImages)
    for (int width : {1, 3, 8, 31, 32, 33, 100})
      for (int height : {1, 5}) {
        int step = -1;
        void* p = image.malloc(width, height, &step);
        ASSERT_NE(p, nullptr);
        EXPECT_TRUE(aligned(p));
        EXPECT_EQ(step % 32, 0);
        EXPECT_GE(step, width * image.pixelBytes);
        EXPECT_LT(step, width * image.pixelBytes + 32);
        std::memset(p, 0x5a, std::size_t(step) * std::size_t(height));
        huxiFree(p);
      }
}

TEST(Malloc, ImagesRefuseWhatCannotBe) {
  constexpr int most = std::numeric_limits<int>::max();
  for (const Images& image : kImages) {
    EXPECT_EQ(image.malloc(4, 4, nullptr), nullptr);
    for (auto [width, height] : {std::pair{0, 5}, {5, 0}, {-1, 1}, {1, std::numeric_limits<int>::min()}}) {
      int step = 99;
      EXPECT_EQ(image.malloc(width, height, &step), nullptr);
      EXPECT_EQ(step, 0);
    }
    // A size past 2^31 bytes: null, and the step, as 32 bits hold it, is stored all the same.
    for (auto [width, height] :
         {std::pair{most / image.pixelBytes, 2}, {1, most / 32 + 1}, {1 << 20, 1 << 20}, {most, most}}) {
      int step = 99;
      EXPECT_EQ(image.malloc(width, height, &step), nullptr);
      EXPECT_EQ(unsigned(step), unsigned((std::uint64_t(width) * unsigned(image.pixelBytes) + 31) / 32 * 32));
    }
    int step = 99;
    failAllocation(0);
    EXPECT_EQ(image.malloc(3, 2, &step), nullptr);
    stopFailing();
    EXPECT_EQ(step, (3 * image.pixelBytes + 31) / 32 * 32);
  }
}

TEST(Scratch, IsFreedAndTellsWhenThereIsNone) {
  const int before = liveBlocks();
  {
    Scratch<Hux64fc> row(17);
    ASSERT_TRUE(row);
    EXPECT_TRUE(aligned(row.get()));
    EXPECT_EQ(liveBlocks(), before + 1);
    failAllocation(0);
    Scratch<Hux8u> none(10);
    stopFailing();
    EXPECT_FALSE(none);
    EXPECT_FALSE(Scratch<Hux32f>(std::numeric_limits<Index>::max() / 2));
  }
  EXPECT_EQ(liveBlocks(), before);
}

TEST(Constants, AreInfinityAndQuietNaN) {
  EXPECT_EQ(huxConstantOfINF_32f, std::numeric_limits<Hux32f>::infinity());
  EXPECT_TRUE(std::isnan(huxConstantOfNAN_32f) && std::isnan(huxConstantOfNAN_64f));
}

TEST(Version, IsAConstantRecord) {
  const HuxLibraryVersion* v = huxiGetLibVersion();
  EXPECT_EQ(v, huxiGetLibVersion());
  EXPECT_STREQ(v->targetCode, "px");
  const std::string numbers = std::to_string(v->versionMajor) + "." + std::to_string(v->versionMinor);
  EXPECT_EQ(std::string(v->versionText).find(numbers + "."), 0);
  EXPECT_EQ(v->libraryName, "libhuxipx-" + numbers + ".dylib");
}

}  // namespace
}  // namespace hux::test
