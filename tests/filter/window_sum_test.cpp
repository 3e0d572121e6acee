// Window sums against their definition: running sums in single precision, one addition at a time.
#include "huxi_filter.h"
#include "support/failing_malloc.h"
#include "support/forms.h"

namespace hux::test {
namespace {

template <class T>
struct Member {
  std::string name;
  Layout layout;
  bool along;  // the row
  HuxStatus (*sum)(const T*, int, Hux32f*, int, HuxiSize, int, int);
};
template <class Body>
void forMembers(Body body) {
#define MEMBER(t, l)                                                                 \
  body(Member<Hux##t>{#t "_" #l " row", l, true, huxiSumWindowRow_##t##32f_##l##R}); \
  body(Member<Hux##t>{#t "_" #l " column", l, false, huxiSumWindowColumn_##t##32f_##l##R});
  HUX_STAMP(MEMBER, (8u, 16s), (C1, C3, C4))
}

// The image is the region and what the windows reach, and nothing else of it can be read where it ends at a page.
template <class T>
void expectSums(Rng& rng, const Member<T>& m, HuxiSize roi, int mask, int anchor, bool extremes) {
  SCOPED_TRACE(m.name + testing::PrintToString(std::array{roi.width, roi.height, mask, anchor}));
  const int stride = m.layout.stride, pixel = stride * int(sizeof(T)), dx = m.along, dy = !m.along;
  Image src(rng, roi.width + dx * (mask - 1), roi.height + dy * (mask - 1), pixel, Place(between(rng, 0, 2)));
  if (extremes) {
    const int low = std::numeric_limits<T>::min(), high = std::numeric_limits<T>::max();
    src.fill<T>([&] { return T(between(rng, 0, 40) ? high : low); });
  }
  const Image dst(rng, roi.width, roi.height, stride * int(sizeof(Hux32f)), Place(between(rng, 0, 2)));
  Image expected = dst;
  for (int c = 0; c < stride; ++c)
    for (int j = 0; j < (m.along ? roi.height : roi.width); ++j) {
      // Pixel i of line j, a row or a column.
      const auto pixelAt = [&](int i) { return src.get<T>(m.along ? i : j, m.along ? j : i, c); };
      Hux32f sum = Hux32f(pixelAt(0));
      for (int k = 1; k < mask; ++k) sum = sum + Hux32f(pixelAt(k));
      for (int i = 0; i < (m.along ? roi.width : roi.height); ++i) {
        if (i > 0) sum = sum + Hux32f(Hux32s(pixelAt(i - 1 + mask)) - Hux32s(pixelAt(i - 1)));
        expected.set(m.along ? i : j, m.along ? j : i, c, sum);
      }
    }
  const auto* first = reinterpret_cast<const T*>(src.bytes(dx * anchor, dy * anchor));
  ASSERT_EQ(m.sum(first, src.step(), dst.data<Hux32f>(), dst.step(), roi, mask, anchor), huxStsOk);
  ASSERT_TRUE(same(dst, expected));
}

TEST(WindowSum, Shapes) {
  Rng rng(1);
  forMembers([&](auto m) {
    for (int width = 1; width <= 50; ++width) {
      const int mask = between(rng, 1, 12);
      expectSums(rng, m, {width, between(rng, 1, 12)}, mask, between(rng, 0, mask - 1), false);
    }
  });
}

// Masks whose sums are exact, and masks whose order of additions shows.
TEST(WindowSum, LargeMasks) {
  Rng rng(2);
  forMembers([&](auto m) {
    for (int mask : {257, 512, 513, 3000})
      expectSums(rng, m, {m.along ? 40 : 9, m.along ? 19 : 40}, mask, between(rng, 0, mask - 1), true);
  });
  expectSums(rng, Member<Hux8u>{"8u", C1, true, huxiSumWindowRow_8u32f_C1R}, {700, 3}, 66000, 5, true);
}

// Any step is taken; rows of the destination that overlap are written from top to bottom.
TEST(WindowSum, StepsAndSizesAreNotChecked) {
  Rng rng(3);
  forMembers([&]<class T>(const Member<T>& m) {
    SCOPED_TRACE(m.name);
    const int stride = m.layout.stride;
    const Image src(rng, 700, 30, stride * int(sizeof(T)));
    std::vector<Hux32f> whole(std::size_t(20 * stride * 20)), last = whole;
    const auto run = [&](int srcStep, std::vector<Hux32f>& dst, int dstStep, HuxiSize roi, int mask) {
      return m.sum(src.data<T>(), srcStep, dst.data(), dstStep, roi, mask, 0);
    };
    for (int mask : {3, 600}) {
      if (!m.along && mask > 3) continue;
      ASSERT_EQ(run(src.step(), whole, 80 * stride, {20, 20}, mask), huxStsOk);
      ASSERT_EQ(run(src.step(), last, 0, {20, 20}, mask), huxStsOk);
      for (int i = 0; i < 20 * stride; ++i) EXPECT_EQ(last[std::size_t(i)], whole[std::size_t(19 * 20 * stride + i)]);
    }
    for (HuxiSize none : {HuxiSize{0, 5}, {5, 0}, {-1, 5}, {5, -1}}) {
      const auto before = last;
      EXPECT_EQ(run(src.step(), last, 80, none, 3), huxStsOk);
      EXPECT_EQ(last, before);
    }
  });
}

TEST(WindowSum, ChecksInOrder) {
  Rng rng(4);
  forMembers([&]<class T>(const Member<T>& m) {
    SCOPED_TRACE(m.name);
    const Image src(rng, 20, 20, 16), dst(rng, 20, 20, 16);
    const T* pSrc = src.data<T>();
    Hux32f* pDst = dst.data<Hux32f>();
    int mask = 3, anchor = 1;
    CheckOrder([&] {
      return m.sum(pSrc + 60, src.step(), pDst, dst.step(), {4, 4}, mask, anchor);
    })
        .nulls(pDst)
        .breaks(huxStsBadMaskSize, mask, 0)
        .breaks(huxStsBadAnchor, anchor, -1)
        .breaks(huxStsBadAnchor, anchor, 3)
        .run(dst);
    EXPECT_EQ(m.sum(nullptr, 0, pDst, 0, {4, 4}, 0, 0), huxStsNullPtr);
  });
}

// Without memory the columns are summed in strips: no failure, the same sums.
TEST(WindowSum, ColumnsNeedNoMemory) {
  Rng rng(5);
  forMembers([&](auto m) {
    if (m.along) return;
    failAllocation(0);
    expectSums(rng, m, {700, 5}, 4, 2, false);
    stopFailing();
  });
}

}  // namespace
}  // namespace hux::test
