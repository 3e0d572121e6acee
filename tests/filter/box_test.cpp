// The box filter against its definition: running sums, one addition at a time.
#include <bit>
#include <cmath>
#include <cstdlib>

#include "filter/windows.h"
#include "huxcore.h"
#include "huxi_filter.h"
#include "support/failing_malloc.h"

namespace hux::test {
namespace {

template <class T>
struct Member {
  std::string name;
  Layout layout;
  HuxStatus (*box)(const T*, int, T*, int, HuxiSize, HuxiSize, HuxiPoint);
  HuxStatus (*inPlace)(T*, int, HuxiSize, HuxiSize, HuxiPoint);
};
template <class Body>
void forMembers(Body body) {
#define MEMBER(t, l) body(Member<Hux##t>{#t "_" #l, l, huxiFilterBox_##t##_##l##R, huxiFilterBox_##t##_##l##IR});
  HUX_STAMP(MEMBER, (8u, 16s, 32f), (C1, C3, AC4, C4))
}

// What is told of each kind of sum. S is its type, an unsigned one read as signed.
template <class T, class S>
struct Rule {
  const Layout layout;
  const HuxiSize mask;
  const Hux32s area = Hux32s(Hux32u(mask.width) * Hux32u(mask.height));
  const Hux32f recip = 1.0f / Hux32f(area);

  static S term(T pixel) { return std::is_same_v<T, Hux16s> ? S(pixel + 32768) : S(pixel); }
  S moved(S sum, T in, T out) const {
    if constexpr (std::is_same_v<T, Hux32f>) return layout.stride == 1 ? (sum + in) - out : sum + (in - out);
    return sum + S(Hux32s(in) - Hux32s(out));
  }
  T mean(S s) const {
    if constexpr (std::is_same_v<T, Hux32f>) {
      return s * recip;
    } else if constexpr (std::is_same_v<T, Hux16s>) {
      if (layout.touched == 4) return T(Hux32s(Hux64f(s * recip) + 9e-6) - 32768);
      return T(Hux32s(Hux32f(Hux32s(s)) * recip + 9e-6f) - 32768);
    } else if constexpr (std::is_same_v<S, Hux32f>) {
      return T(Hux32s(s * recip + 9e-6f));
    } else {
      Hux32u mult = 256;
      int shift = 8;
      if (recip != 1.0f) {
        const Hux32f scaled = 4294967296.0f * recip + 9e-6f;
        Hux32u v = scaled >= 2147483648.0f ? 0x80000000u : Hux32u(scaled);
        for (shift = 12; v < 0x80000000u && shift < 36; ++shift) v <<= 1;
        mult = (v >> 20) + 1;
      }
      return T((mult * s) >> shift);
    }
  }
};

// An image in whose memory (0, 0) is the region's first pixel; its steps are those that count.
template <class T>
struct Pixels {
  std::byte* first;
  std::ptrdiff_t step;
  int stride;
  std::byte* at(int x, int y, int c) const { return first + y * step + (x * stride + c) * std::ptrdiff_t(sizeof(T)); }
  T get(int x, int y, int c) const { return valueAt<T>(at(x, y, c)); }
  void set(int x, int y, int c, T value) const { std::memcpy(at(x, y, c), &value, sizeof value); }
};

// The running sums of one channel, and rows of means.
template <class T, class S>
class Running {
 public:
  Running(Rule<T, S> rule, Pixels<T> src, int c, int width, HuxiPoint anchor)
      : rule_(rule), src_(src), c_(c), width_(width), anchor_(anchor) {}

  void start(int y) {
    columns_.clear();
    for (int x = -anchor_.x; x < width_ + rule_.mask.width - 1 - anchor_.x; ++x) {
      S sum = rule_.term(src_.get(x, y - anchor_.y, c_));
      for (int k = 1; k < rule_.mask.height; ++k) sum = sum + rule_.term(src_.get(x, y - anchor_.y + k, c_));
      columns_.push_back(sum);
    }
  }
  void move(int y) {
    for (std::size_t j = 0; j < columns_.size(); ++j) {
      const int x = int(j) - anchor_.x;
      columns_[j] =
          rule_.moved(columns_[j], src_.get(x, y - anchor_.y + rule_.mask.height, c_), src_.get(x, y - anchor_.y, c_));
    }
  }
  std::vector<T> means() const {
    std::vector<T> row;
    const std::size_t m = std::size_t(rule_.mask.width);
    S sum = columns_[0];
    for (std::size_t k = 1; k < m; ++k) sum = sum + columns_[k];
    for (std::size_t x = 0;; ++x) {
      row.push_back(rule_.mean(sum));
      if (int(x) == width_ - 1) return row;
      sum = sum + columns_[x + m];
      sum = sum - columns_[x];
    }
  }

 private:
  Rule<T, S> rule_;
  Pixels<T> src_;
  int c_, width_;
  HuxiPoint anchor_;
  std::vector<S> columns_;
};

struct Case {
  HuxiSize roi, mask;
  HuxiPoint anchor;
  std::string text() const {
    return testing::PrintToString(std::array{roi.width, roi.height, mask.width, mask.height, anchor.x, anchor.y});
  }
};

// Calls body(S{}) with the type of the sums.
template <class T, class Body>
void withSums(Layout layout, HuxiSize mask, Body body) {
  const bool large = Hux32s(Hux32u(mask.width) * Hux32u(mask.height)) > 8100;
  if (std::is_same_v<T, Hux32f> || (std::is_same_v<T, Hux16s> ? layout.touched == 4 : large))
    body(Hux32f());
  else
    body(Hux32u());
}

template <class T>
void expectOutOfPlace(const Case& k, Layout layout, Pixels<T> src, Pixels<T> dst, int threads) {
  withSums<T>(layout, k.mask, [&]<class S>(S) {
    for (int c = 0; c < layout.touched; ++c) {
      Running<T, S> sums({layout, k.mask}, src, c, k.roi.width, k.anchor);
      const int share = k.roi.height / threads, more = k.roi.height % threads;
      for (int t = 0, y = 0; t < threads; ++t)
        for (int end = y + share + (t < more), first = y; y < end; ++y) {
          y == first ? sums.start(y) : sums.move(y - 1);
          const auto row = sums.means();
          for (int x = 0; x < k.roi.width; ++x)
            dst.set(x, y, c, k.mask.width * k.mask.height == 1 ? src.get(x, y, c) : row[std::size_t(x)]);
        }
    }
  });
}

// The stages of the forms in place. No stage but the fourth looks at how high the region is.
template <class T>
void expectInPlace(const Case& k, Layout layout, Pixels<T> image) {
  const int h = k.roi.height, ay = k.anchor.y, area = k.mask.width * k.mask.height;
  if (area == 1) return;
  const bool direct = layout.stride == 3 && sizeof(T) == 1 && k.mask.width == 3 && k.mask.height == 3;
  const bool once = layout.touched == 4 || (sizeof(T) == 1 && area <= 8100);
  withSums<T>(layout, k.mask, [&]<class S>(S) {
    for (int c = 0; c < layout.touched; ++c) {
      std::vector<std::vector<T>> results;
      Running<T, S> sums({layout, k.mask}, image, c, k.roi.width, k.anchor);
      const int last = std::max(h, ay + 1);  // rows computed beyond it are not written
      for (int i = 0; i < last; ++i) {
        if (i == 0 || direct) sums.start(i);
        results.push_back(sums.means());
        const bool more = direct ? false : i <= 2 * ay && once ? ay + 1 != h - 1 : i < h - 1;
        if (more && i + 1 < last) sums.move(i);
        for (int x = 0; i >= ay && x < k.roi.width; ++x)
          image.set(x, i - ay, c, results[std::size_t(i - ay)][std::size_t(x)]);
      }
      for (int y = last - ay; y < last; ++y)
        for (int x = 0; x < k.roi.width; ++x) image.set(x, y, c, results[std::size_t(y)][std::size_t(x)]);
    }
  });
}

// Any bits at first; from then on few values, extremes, and floats of all sizes.
template <class T>
T anyElement(Rng& rng, int kind) {
  if constexpr (std::is_same_v<T, Hux32f>) {
    if (kind == 2 && between(rng, 0, 200) == 0) return between(rng, 0, 1) ? NAN : INFINITY;
    return std::ldexp(T(between(rng, -999, 999)), kind == 1 ? between(rng, -30, 30) : -9);
  } else {
    const int low = std::numeric_limits<T>::min(), high = std::numeric_limits<T>::max();
    return T(kind == 1 ? high : kind == 2 ? (between(rng, 0, 7) ? high : low) : between(rng, low, high));
  }
}

// Rows in whole elements but in forms of four channels.
template <class T>
int unitOf(Layout layout) {
  return layout.touched == 4 ? 1 : int(sizeof(T));
}
template <class T>
Pixels<T> pixelsOf(const Image& image, Layout layout, int left, int above) {
  const int step = image.step() / unitOf<T>(layout) * unitOf<T>(layout);
  return {image.bytes(left * layout.stride * int(sizeof(T))) + std::ptrdiff_t(above) * step, step, layout.stride};
}
template <class T>
T* typed(std::byte* p) {
  return reinterpret_cast<T*>(p);
}

template <class T>
void expectBox(Rng& rng, const Member<T>& m, Case k, int kind, int threads = 1) {
  SCOPED_TRACE(m.name + " " + k.text() + " kind " + std::to_string(kind));
  const auto make = [&](int width, int height) {
    const Image image = touchedImage(rng, width, height, m.layout, sizeof(T), Place(between(rng, 0, 2)));
    image.fill<T>([&] { return anyElement<T>(rng, kind); });
    return image;
  };
  const int width = k.roi.width + k.mask.width - 1;
  {
    const Image src = make(width, k.roi.height + k.mask.height - 1), dst = make(k.roi.width, k.roi.height);
    const auto from = pixelsOf<T>(src, m.layout, k.anchor.x, k.anchor.y), to = pixelsOf<T>(dst, m.layout, 0, 0);
    const Image before = dst;
    ASSERT_EQ(m.box(typed<T>(from.first), src.step(), typed<T>(to.first), dst.step(), k.roi, k.mask, k.anchor),
              huxStsOk);
    testing::AssertionResult result = testing::AssertionFailure();
    // The runtime may grant fewer threads than asked for.
    for (int team = threads; team >= 1 && !result; --team) {
      const Image expected = before;
      const auto model = pixelsOf<T>(expected, m.layout, 0, 0);
      const bool forks = m.layout.touched == 4 || k.roi.width * k.roi.height > 4096;
      expectOutOfPlace(k, m.layout, from, model, forks ? team : 1);
      result = sameBut<T>(dst, expected, unitOf<T>(m.layout));
    }
    ASSERT_TRUE(result);
  }
  const int rows = std::max(k.roi.height, k.anchor.y + 1);
  const Image image = make(width, rows + k.mask.height - 1);
  const Image expected = image;
  const auto at = pixelsOf<T>(image, m.layout, k.anchor.x, k.anchor.y);
  const auto model = pixelsOf<T>(expected, m.layout, k.anchor.x, k.anchor.y);
  expectInPlace(k, m.layout, model);
  ASSERT_EQ(m.inPlace(typed<T>(at.first), image.step(), k.roi, k.mask, k.anchor), huxStsOk);
  ASSERT_TRUE(sameBut<T>(image, expected, unitOf<T>(m.layout))) << "in place";
}

class BoxTest : public testing::Test {
 protected:
  void SetUp() override { huxSetThreadCount(1); }
  Rng rng{1};
};

TEST_F(BoxTest, Shapes) {
  forMembers([&](auto m) {
    for (int width = 1; width <= 70; width += between(rng, 1, 3)) {
      const HuxiSize mask = {between(rng, 1, 20), between(rng, 1, 12)};
      expectBox(rng, m, {{width, between(rng, 1, 40)}, mask, anyAnchor(rng, mask)}, width % 3);
    }
    for (HuxiSize mask : {HuxiSize{1, 1}, {2, 1}, {1, 2}, {3, 3}, {16, 16}, {257, 1}, {1, 258}, {31, 31}})
      expectBox(rng, m, {{between(rng, 1, 40), between(rng, 1, 40)}, mask, anyAnchor(rng, mask)}, 2);
  });
}

// Every height that the stages in place treat apart.
TEST_F(BoxTest, LowRegionsInPlace) {
  forMembers([&](auto m) {
    for (int above : {0, 1, 2, 5})
      for (int height = 1; height <= 2 * above + 3; ++height) {
        expectBox(rng, m, {{9, height}, {3, above + 1}, {1, above}}, 0);
        expectBox(rng, m, {{5, height}, {2, 7}, {0, above}}, 0);
      }
    for (int above : {0, 1, 2})
      for (int height = 1; height <= 5; ++height) expectBox(rng, m, {{11, height}, {3, 3}, {2, above}}, 0);
    expectBox(rng, m, {{3, 1}, {91, 91}, {40, 2}}, 0);  // large sums, the rows below the region included
    expectBox(rng, m, {{3, 4}, {91, 91}, {40, 2}}, 0);
  });
}

// Areas on both sides of where sums change their type, wrap, or round.
TEST_F(BoxTest, LargeMasks) {
  for (HuxiSize mask : {HuxiSize{90, 90}, {89, 91}, {8101, 1}, {1, 300}, {15, 17}, {12, 22}, {250, 265}, {200, 350}})
    forMembers([&](auto m) {
      for (int kind : {1, 2}) expectBox(rng, m, {{19, 3}, mask, anyAnchor(rng, mask)}, kind);
    });
}

// All pairs of multiplier and shift, on sums whose quotient is whole or nearly so.
TEST_F(BoxTest, EveryAreaOfBytes) {
  for (int area = 2; area <= 8100; area += area < 300 ? 1 : 13) {
    std::vector<Hux8u> row(std::size_t(area) + 600);
    for (auto& pixel : row) pixel = Hux8u(between(rng, 0, 3) ? 255 : 254);
    Hux8u result[600];
    ASSERT_EQ(huxiFilterBox_8u_C1R(row.data(), 1, result, 600, {600, 1}, {area, 1}, {0, 0}), huxStsOk);
    const Rule<Hux8u, Hux32u> rule{C1, {area, 1}};
    Hux32u sum = 0;
    for (int k = 0; k < area; ++k) sum += row[std::size_t(k)];
    for (std::size_t x = 0; x < 600; ++x) {
      ASSERT_EQ(result[x], rule.mean(sum)) << area;
      sum += row[x + std::size_t(area)] - row[x];
    }
  }
  std::vector<Hux8u> nearly(256, 255);
  nearly[7] = 254;
  Hux8u mean = 0;
  EXPECT_EQ(huxiFilterBox_8u_C1R(nearly.data(), 16, &mean, 1, {1, 1}, {16, 16}, {0, 0}), huxStsOk);
  EXPECT_EQ(mean, 255);  // the true quotient lies below
}

TEST_F(BoxTest, TeamsShareTheRows) {
  for (int threads : {2, 3}) {
    huxSetThreadCount(Hux32u(threads));
    forMembers([&](auto m) {
      expectBox(rng, m, {{120, 41}, {7, 5}, {3, 2}}, 1, threads);  // above the least work for a team
      expectBox(rng, m, {{30, 2}, {3, 3}, {1, 1}}, 1, threads);
      expectBox(rng, m, {{120, 41}, {3, 3}, {1, 1}}, 0, threads);
    });
  }
}

// Rows of the destination that overlap: the last one stands.
TEST_F(BoxTest, OverlappingRowsAreWrittenInOrder) {
  std::vector<Hux32f> src(64 * 64);
  for (auto& pixel : src) pixel = Hux32f(between(rng, 0, 99));
  std::vector<Hux32f> whole(60 * 60), last(60 + 59);
  ASSERT_EQ(huxiFilterBox_32f_C1R(src.data(), 256, whole.data(), 240, {60, 60}, {5, 5}, {0, 0}), huxStsOk);
  ASSERT_EQ(huxiFilterBox_32f_C1R(src.data(), 256, last.data(), 4, {60, 60}, {5, 5}, {0, 0}), huxStsOk);
  for (std::size_t y = 0; y < 60; ++y) EXPECT_EQ(last[y], whole[y * 60]);
  for (std::size_t x = 0; x < 60; ++x) EXPECT_EQ(last[59 + x], whole[59 * 60 + x]);
}

TEST_F(BoxTest, ChecksInOrder) {
  forMembers([&]<class T>(const Member<T>& m) {
    SCOPED_TRACE(m.name);
    const Image src(rng, 40 * int(sizeof(T)), 12, 1), dst(rng, 40 * int(sizeof(T)), 12, 1);
    const T* pSrc = typed<T>(src.bytes());
    T* pDst = typed<T>(dst.bytes());
    int srcStep = src.step(), dstStep = dst.step();
    HuxiSize roi = {4, 4}, mask = {3, 3};
    HuxiPoint anchor = {0, 0};
    const auto orderOf = [&](auto call, auto... sources) {
      CheckOrder order(call);
      (..., order.nulls(*sources));
      order.nulls(pDst);
      return order;
    };
    const auto run = [&](CheckOrder order) {
      order.sizes(roi).breaks(huxStsBadMaskSize, mask, {0, 3}).breaks(huxStsBadMaskSize, mask, {3, -1});
      order.anchors(anchor, mask).run(dst);
    };
    run(orderOf([&] { return m.box(pSrc, srcStep, pDst, dstStep, roi, mask, anchor); }, &pSrc).steps(srcStep, dstStep));
    run(orderOf([&] { return m.inPlace(pDst, dstStep, roi, mask, anchor); }).steps(dstStep));
  });
}

// A team takes all its memory at once, and is refused at once.
TEST_F(BoxTest, TeamsTakeOneBlock) {
  huxSetThreadCount(3);
  forMembers([&]<class T>(const Member<T>& m) {
    SCOPED_TRACE(m.name);
    const Image src(rng, 90, 90, m.layout.stride * int(sizeof(T))), dst = src;
    const auto box = [&] {
      return m.box(src.data<T>(), src.step(), dst.data<T>(), dst.step(), {70, 70}, {4, 3}, {0, 0});
    };
    EXPECT_EQ(failuresOf(box, dst), 1);
  });
}

}  // namespace
}  // namespace hux::test
