// The cosine transform of images beside that of vectors, which has its own tests.
#include "huxi_transform.h"
#include "huxs_transform.h"
#include "transform/contexts.h"

namespace hux::test {
namespace {

struct Kind {
  HuxStatus (*initAlloc)(void*, HuxiSize, HuxAccuracyHint);
  FreeFn* free;
  BufSizeFn* getBufSize;

  void* made(HuxiSize size) const {
    void* record = nullptr;
    EXPECT_EQ(initAlloc(&record, size, huxHintNone), huxStsOk);
    return record;
  }
};
#define KIND(way) \
  { erased<huxiDCT##way##InitAlloc_32f>, erased<huxiDCT##way##Free_32f>, erased<huxiDCT##way##GetBufSize_32f> }
const Kind kKinds[] = {KIND(Inv), KIND(Fwd)};

struct Member : Form {
  bool forward;
  HuxStatus (*call)(const void*, int, void*, int, const void*, void*);
  const Kind& kind() const { return kKinds[forward]; }
};
#define MEMBERS(_, l)                                            \
  Member{HUX_FORM(32f, l), true, erased<huxiDCTFwd_32f_##l##R>}, \
      Member{HUX_FORM(32f, l), false, erased<huxiDCTInv_32f_##l##R>},
const Member kMembers[] = {HUX_STAMP(MEMBERS, (_), (C1, C3, C4, AC4))};

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
      SCOPED_TRACE(testing::Message() << m.name << (m.forward ? " " : " inverse ") << size.width << "x" << size.height);
      const int n = m.layout.stride, w = size.width, h = size.height;
      void* record = m.kind().made(size);
      int bytes = 0;
      ASSERT_EQ(m.kind().getBufSize(record, &bytes), huxStsOk);
      const Image src = touchedImage(rng, w, h, m.layout, 4, Place(w % 3)), work(rng, bytes + 1, 1, 1, Place::kEnd);
      const Image dst = touchedImage(rng, w, h, m.layout, 4, Place((w + 1) % 3)), expected = dst;
      src.fill<float>([&] { return float(between(rng, -1000, 1000)) / 10; });
      for (int c = 0; c < m.layout.touched; ++c) {
        // Transforms `count` elements of an image from x, y on, in a row or in a column.
        const auto transform = [&](const Image& from, int x, int y, bool along) {
          std::vector<float> values;
          for (int i = 0; i < (along ? w : h); ++i)
            values.push_back(from.get<float>(0, along ? y : i, (along ? i : x) * n + c));
          values = line(m.forward, values);
          for (int i = 0; i < int(values.size()); ++i)
            expected.set<float>(0, along ? y : i, (along ? i : x) * n + c, values[std::size_t(i)]);
        };
        for (int y = 0; y < h; ++y) transform(src, 0, y, true);
        for (int x = 0; x < w; ++x) transform(expected, x, 0, false);
      }
      const Image both = src;
      ASSERT_EQ(m.call(src.bytes(), src.step(), dst.bytes(), dst.step(), record, work.bytes() + 1), huxStsOk);
      ASSERT_EQ(m.call(both.bytes(), both.step(), both.bytes(), both.step(), record, nullptr), huxStsOk);
      for (int y = 0; y < h; ++y)
        for (int i = 0; i < src.elementsIn<float>(); ++i)
          if (i % n < m.layout.touched) {
            EXPECT_EQ(both.get<float>(0, y, i), dst.get<float>(0, y, i)) << i << "," << y;
          }
      // Of norms of about 60 times the root of the area.
      EXPECT_TRUE(sameBut<float>(dst, expected, 1, [](float a, float b) { return std::abs(a - b) < 1e-3; }));
      EXPECT_EQ(m.kind().free(record), huxStsOk);
    }
}

TEST(ImageCosine, ReportsItsWorkMemory) {
  const auto expectSize = [](HuxiSize size, int expected) {
    for (const Kind& kind : kKinds) {
      void* record = kind.made(size);
      int bytes = 0;
      EXPECT_EQ(kind.getBufSize(record, &bytes), huxStsOk);
      EXPECT_EQ(bytes, expected) << size.width << "x" << size.height;
      kind.free(record);
    }
  };
  expectSize({8, 8}, 16 * 64 + 16), expectSize({4, 4}, 64 + 16), expectSize({32, 32}, 16 * 32 + (4 * 32 + 16) + 16);
  expectSize({16, 99}, 16 * 99 + (4 * 99 + 16) + 16), expectSize({101, 1}, 16 * 101 + (8 * 256 + 16) + 16);
}

TEST(ImageCosine, ChecksInOrderAndMemory) {
  Rng rng(2);
  const Image src(rng, 64, 16, 4), dst = src;
  for (const Member& m : kMembers) {
    const Kind &kind = m.kind(), &other = kKinds[!m.forward];
    void *good = kind.made({12, 16}), *foreign = other.made({12, 16}), *record = nullptr, *pp = &record;
    const void* context = good;
    Arguments a(src);
    a.d = dst.bytes();
    HuxiSize size{12, 16};
    const auto run = [&] { return m.call(a.a, a.aStep, a.d, a.dStep, context, nullptr); };
    CheckOrder(run).nulls(context).in(a, "a").run(dst);
    CheckOrder(run).breaks(huxStsBadContext, context, foreign).in(a, "adAD").run(dst);
    EXPECT_GT(failuresOf(run, dst), 0);
    CheckOrder([&] {
      const HuxStatus status = kind.initAlloc(pp, size, huxHintNone);
      if (status == huxStsOk) kind.free(record);
      return status;
    })
        .nulls(pp)
        .sizes(size)
        .run(dst);
    expectContract(
        [&](void* to) {
          return kind.initAlloc(to, {12, 1000}, huxHintNone);
        },
        kind.free, kind.getBufSize, foreign);
    kind.free(good), other.free(foreign);
  }
  // One block without gaps needs no memory.
  void* block = kKinds[true].made({8, 8});
  float floats[64] = {};
  EXPECT_EQ(failuresOf([&] { return kMembers[0].call(floats, 32, floats, 32, block, nullptr); }), 0);
  kKinds[true].free(block);
}

}  // namespace
}  // namespace hux::test
