// The cosine transform of images beside that of vectors, which has its own tests.
#include "huxi_transform.h"
#include "huxs_transform.h"
#include "support/failing_malloc.h"
#include "support/forms.h"

namespace hux::test {
namespace {

using Record = HuxiDCTRecord;

struct Member {
  Form form;
  bool forward;
  decltype(&huxiDCTFwd_32f_C1R) call;
};
#define MEMBERS(_, l) {HUX_FORM(32f, l), true, huxiDCTFwd_32f_##l##R}, {HUX_FORM(32f, l), false, huxiDCTInv_32f_##l##R},
const Member kMembers[] = {HUX_STAMP(MEMBERS, (_), (C1, C3, C4, AC4))};

Record* made(bool forward, HuxiSize size) {
  Record* record = nullptr;
  EXPECT_EQ((forward ? huxiDCTFwdInitAlloc_32f : huxiDCTInvInitAlloc_32f)(&record, size, huxHintNone), huxStsOk);
  return record;
}
HuxStatus freed(bool forward, Record* record) { return (forward ? huxiDCTFwdFree_32f : huxiDCTInvFree_32f)(record); }
HuxStatus bytesOf(bool forward, const Record* record, int* size) {
  return (forward ? huxiDCTFwdGetBufSize_32f : huxiDCTInvGetBufSize_32f)(record, size);
}

std::vector<float> line(bool forward, std::vector<float> x) {
  HuxsDCTRecord* record = nullptr;
  (forward ? huxsDCTFwdInitAlloc_32f : huxsDCTInvInitAlloc_32f)(&record, int(x.size()), huxHintNone);
  (forward ? huxsDCTFwd_32f : huxsDCTInv_32f)(x.data(), x.data(), record, nullptr);
  (forward ? huxsDCTFwdFree_32f : huxsDCTInvFree_32f)(record);
  return x;
}

TEST(ImageCosine, TransformsRowsAndColumns) {
  Rng rng(1);
  for (const HuxiSize size :
       {HuxiSize{1, 1}, {8, 8}, {1, 7}, {9, 1}, {8, 1}, {16, 16}, {5, 5}, {12, 7}, {33, 20}, {103, 6}})
    for (const Member& m : kMembers) {
      SCOPED_TRACE(testing::Message() << m.form.name << (m.forward ? " " : " inverse ") << size.width << "x"
                                      << size.height);
      const int n = m.form.layout.stride, w = size.width, h = size.height;
      Record* record = made(m.forward, size);
      int bytes = 0;
      ASSERT_EQ(bytesOf(m.forward, record, &bytes), huxStsOk);
      const Image src = touchedImage(rng, w, h, m.form.layout, 4, Place(w % 3)),
                  work(rng, bytes + 1, 1, 1, Place::kEnd);
      Image dst = touchedImage(rng, w, h, m.form.layout, 4, Place((w + 1) % 3)), expected = dst;
      for (int y = 0; y < h; ++y)
        for (int i = 0; i < src.width() / 4; ++i)
          const_cast<Image&>(src).set<float>(0, y, i, float(between(rng, -1000, 1000)) / 10);
      for (int c = 0; c < m.form.layout.touched; ++c) {
        for (int y = 0; y < h; ++y) {
          std::vector<float> row;
          for (int x = 0; x < w; ++x) row.push_back(src.get<float>(0, y, x * n + c));
          row = line(m.forward, row);
          for (int x = 0; x < w; ++x) expected.set<float>(0, y, x * n + c, row[std::size_t(x)]);
        }
        for (int x = 0; x < w; ++x) {
          std::vector<float> column;
          for (int y = 0; y < h; ++y) column.push_back(expected.get<float>(0, y, x * n + c));
          column = line(m.forward, column);
          for (int y = 0; y < h; ++y) expected.set<float>(0, y, x * n + c, column[std::size_t(y)]);
        }
      }
      Image both = src;
      ASSERT_EQ(m.call(src.data<float>(), src.step(), dst.data<float>(), dst.step(), record, work.data<Hux8u>() + 1),
                huxStsOk);
      ASSERT_EQ(m.call(both.data<float>(), both.step(), both.data<float>(), both.step(), record, nullptr), huxStsOk);
      for (int y = 0; y < h; ++y)
        for (int i = 0; i < src.width() / 4; ++i) {
          const bool touched = i % n < m.form.layout.touched;
          if (!touched) continue;
          const float truth = expected.get<float>(0, y, i), got = dst.get<float>(0, y, i);
          EXPECT_NEAR(got, truth, 1e-3) << i << "," << y;  // of norms of about 60 times the root of the area
          EXPECT_EQ(both.get<float>(0, y, i), got) << i << "," << y;
          dst.set<float>(0, y, i, truth);
        }
      EXPECT_TRUE(same(dst, expected));
      EXPECT_EQ(freed(m.forward, record), huxStsOk);
    }
}

TEST(ImageCosine, ReportsItsWorkMemory) {
  const auto expectSize = [](HuxiSize size, int expected) {
    for (const bool forward : {false, true}) {
      Record* record = made(forward, size);
      int bytes = 0;
      EXPECT_EQ(bytesOf(forward, record, &bytes), huxStsOk);
      EXPECT_EQ(bytes, expected) << size.width << "x" << size.height;
      freed(forward, record);
    }
  };
  expectSize({8, 8}, 16 * 64 + 16), expectSize({4, 4}, 64 + 16), expectSize({32, 32}, 16 * 32 + (4 * 32 + 16) + 16);
  expectSize({16, 99}, 16 * 99 + (4 * 99 + 16) + 16), expectSize({101, 1}, 16 * 101 + (8 * 256 + 16) + 16);
}

TEST(ImageCosine, ChecksInOrder) {
  Rng rng(2);
  const Image src(rng, 64, 16, 4), dst(rng, 64, 16, 4);
  const int live = liveBlocks();
  for (const Member& m : kMembers) {
    Record *good = made(m.forward, {12, 16}), *foreign = made(!m.forward, {12, 16}), *record = nullptr, **pp = &record;
    const Record* context = good;
    const float* s = src.data<float>();
    float* d = dst.data<float>();
    int srcStep = src.step(), dstStep = dst.step(), bytes = 0, *pSize = &bytes;
    HuxiSize size{12, 16};
    const auto run = [&] { return m.call(s, srcStep, d, dstStep, context, nullptr); };
    CheckOrder(run).breaks(huxStsNullPtr, context, nullptr).breaks(huxStsNullPtr, s, nullptr).run(dst);
    CheckOrder(run)
        .breaks(huxStsBadContext, context, foreign)
        .breaks(huxStsNullPtr, s, nullptr)
        .breaks(huxStsNullPtr, d, nullptr)
        .breaks(huxStsBadStep, srcStep, 0)
        .breaks(huxStsBadStep, dstStep, -1)
        .run(dst);
    CheckOrder([&] { return bytesOf(m.forward, context, pSize); })
        .breaks(huxStsNullPtr, pSize, nullptr)
        .breaks(huxStsBadContext, context, foreign)
        .run(dst);
    CheckOrder([&] {
      const HuxStatus status = (m.forward ? huxiDCTFwdInitAlloc_32f : huxiDCTInvInitAlloc_32f)(pp, size, huxHintNone);
      if (status == huxStsOk) freed(m.forward, record);
      return status;
    })
        .breaks(huxStsNullPtr, pp, nullptr)
        .breaks(huxStsBadSize, size.width, 0)
        .breaks(huxStsBadSize, size.height, -1)
        .run(dst);
    const Image before = dst;
    failAllocation(0);
    EXPECT_EQ(run(), huxStsNoMem);
    stopFailing();
    EXPECT_TRUE(same(dst, before));
    EXPECT_EQ(freed(m.forward, nullptr), huxStsNullPtr);
    EXPECT_EQ(freed(m.forward, foreign), huxStsBadContext);
    EXPECT_EQ(freed(m.forward, good), huxStsOk);
    EXPECT_EQ(freed(!m.forward, foreign), huxStsOk);
    record = nullptr;
    walkAllocationFailures(
        [&] {
          return huxiDCTFwdInitAlloc_32f(&record, {12, 1000}, huxHintNone);
        },
        [&](HuxStatus status) {
          EXPECT_EQ(status, huxStsNoMem);
          EXPECT_EQ(record, nullptr);
          EXPECT_EQ(liveBlocks(), live);
        });
    huxiDCTFwdFree_32f(record);
    EXPECT_EQ(liveBlocks(), live);
  }
  // One block without gaps needs no memory.
  Record* block = made(true, {8, 8});
  float floats[64] = {};
  failAllocation(0);
  EXPECT_EQ(huxiDCTFwd_32f_C1R(floats, 32, floats, 32, block, nullptr), huxStsOk);
  stopFailing();
  freed(true, block);
}

}  // namespace
}  // namespace hux::test
