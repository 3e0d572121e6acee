// FilterWiener against the sums kept up one by one, for every team, and beside its definition.
#include <algorithm>
#include <cmath>
#include <limits>

#include "filter/windows.h"
#include "huxcore.h"
#include "huxi_filter.h"
#include "huxi_stats.h"

namespace hux::test {
namespace {

using WienerFn = HuxStatus(const void*, int, void*, int, HuxiSize, HuxiSize, HuxiPoint, void*, void*);
struct Member : Form {
  WienerFn* call;

  int noises() const { return layout.touched; }
  bool serial() const { return layout.stride == 1 && type != Number::k32f; }
};
#define MEMBER(t, l) Member{HUX_FORM(t, l), as<WienerFn, huxiFilterWiener_##t##_##l##R>},
std::vector<Member> members() {
  return { HUX_STAMP(MEMBER, (8u, 16s, 32f), (C1, C3, C4, AC4)) };
}

// Products and differences of integers as such, of floats in single precision.
template <class T>
using Exact = std::conditional_t<std::is_integral_v<T>, Hux64s, Hux32f>;

// The filter of one channel, for a team of n, step by step.
template <class T>
class Channel {
 public:
  using E = Exact<T>;
  // The pixels under all windows, row by row.
  Channel(std::vector<T> pixels, HuxiSize roi, HuxiSize mask)
      : pixels_(std::move(pixels)), roi_(roi), mask_(mask), recip_(1.0f / Hux32f(mask.width * mask.height)) {}

  E at(int x, int y) const { return pixels_[std::size_t(y * (roi_.width + mask_.width - 1) + x)]; }

  // Calls row(y, sums, squares) for all rows.
  template <class Row>
  void walk(int team, Row row) const {
    const int share = roi_.height / team;
    for (int t = 0; t < team; ++t) {
      const int first = t * share, end = t == team - 1 ? roi_.height : first + share;
      std::vector<Hux32f> s1, s2;
      for (int y = first; y < end; ++y) {
        if (y == first)
          startRow(y, s1, s2);
        else
          nextRow(y - 1, s1, s2);
        row(y, s1, s2);
      }
    }
  }
  Hux32f mean(Hux32f s1) const { return s1 * recip_; }
  Hux32f variance(Hux32f s1, Hux32f s2, Hux32f least) const {
    const Hux32f v = s2 - s1 * s1 * recip_;
    return v > least ? v : least;
  }
  Hux32f recip() const { return recip_; }

  Hux32f estimate(int team, bool one) const {
    const int share = roi_.height / team;
    std::vector<double> sums(std::size_t(team), 0.0);
    walk(team, [&](int y, auto& s1, auto& s2) {
      double sum = 0;
      for (std::size_t x = 0; x < s1.size(); ++x) sum += variance(s1[x], s2[x], 0);
      const int t = share == 0 ? team - 1 : std::min(y / share, team - 1);
      sums[std::size_t(t)] += one ? Hux32f(sum / roi_.width) : sum * (1.0 / roi_.width);
    });
    double total = 0;
    for (const double sum : sums) total += sum;
    return Hux32f(total / roi_.height);
  }

 private:
  void startRow(int y, std::vector<Hux32f>& s1, std::vector<Hux32f>& s2) const {
    s1.assign(std::size_t(roi_.width), 0), s2 = s1;
    for (int j = 0; j < mask_.height; ++j)
      for (int i = 0; i < mask_.width; ++i) s1[0] += Hux32f(at(i, y + j)), s2[0] += Hux32f(at(i, y + j) * at(i, y + j));
    for (int x = 1; x < roi_.width; ++x) {
      Hux32f a = s1[std::size_t(x - 1)], b = s2[std::size_t(x - 1)];
      for (int j = 0; j < mask_.height; ++j) {
        const E in = at(x + mask_.width - 1, y + j), out = at(x - 1, y + j);
        a += Hux32f(in - out), b += Hux32f(in * in - out * out);
      }
      s1[std::size_t(x)] = a, s2[std::size_t(x)] = b;
    }
  }
  void nextRow(int y, std::vector<Hux32f>& s1, std::vector<Hux32f>& s2) const {
    const auto square = [](E v) { return v * v; };
    const int h = mask_.height, w = mask_.width;
    Hux32f d1 = 0, d2 = 0;
    for (int x = 0; x < roi_.width; ++x) {
      if (x == 0) {
        for (int i = 0; i < w; ++i)
          d1 += Hux32f(at(i, y + h) - at(i, y)), d2 += Hux32f(square(at(i, y + h)) - square(at(i, y)));
      } else {
        const E a = at(x + w - 1, y + h), b = at(x + w - 1, y), c = at(x - 1, y + h), d = at(x - 1, y);
        d1 += Hux32f((a - b) - (c - d)), d2 += Hux32f((square(a) - square(b)) - (square(c) - square(d)));
      }
      s1[std::size_t(x)] += d1, s2[std::size_t(x)] += d2;
    }
  }

  std::vector<T> pixels_;
  HuxiSize roi_, mask_;
  Hux32f recip_;
};

template <class T>
struct Case {
  const Member& m;
  HuxiSize roi, mask;
  HuxiPoint anchor;
  std::vector<Hux32f> noise;

  Image makeSource(Rng& rng) const {
    const Image image = touchedImage(rng, roi.width + mask.width - 1, roi.height + mask.height - 1, m.layout,
                                     m.elementBytes, Place(between(rng, 0, 2)));
    const int kind = between(rng, 0, 4), base = between(rng, 0, 200);
    image.fill<T>([&] {
      if (kind == 0) return T(base);
      if constexpr (std::is_integral_v<T>) {
        if (kind == 1) return T(rng());
        return kind == 2 ? T(base + between(rng, 0, 9)) : T(rng() % 7 ? base : rng());
      } else {
        return kind == 1 && between(rng, 0, 300) == 0 ? T(NAN) : T(between(rng, -9000, 9000)) / 77;
      }
    });
    return image;
  }

  void run(Rng& rng) {
    const int px = m.pixelBytes();
    const Image src = makeSource(rng);
    const Image dst(rng, roi.width, roi.height, px, Place(between(rng, 0, 2)));
    const int above = mask.height - 1 - anchor.y, left = mask.width - 1 - anchor.x;
    int bytes = 0;
    ASSERT_EQ(huxiFilterWienerGetBufferSize(roi, mask, m.noises(), &bytes), huxStsOk);
    const Image buffer(rng, bytes, 1, 1, Place::kEnd);
    const int team = between(rng, 1, 4);
    huxSetThreadCount(Hux32u(team));
    std::vector<Hux32f> result = noise;
    const Image before = dst;
    ASSERT_EQ(m.call(src.bytes() + above * src.step() + left * px, src.step(), dst.bytes(), dst.step(), roi, mask,
                     anchor, result.data(), buffer.bytes()),
              huxStsOk);
    bool met = false;  // a runtime may grant a smaller team
    for (int n = m.serial() ? 1 : team; n >= 1 && !met; --n) {
      Image expected = before;
      std::vector<Hux32f> expectedNoise = noise;
      expect(n, src, expected, expectedNoise);
      met = std::equal(result.begin(), result.end(), expectedNoise.begin(), alike<Hux32f>) && sameBut<T>(dst, expected);
      if (n == 1 && !met) {
        EXPECT_TRUE(sameBut<T>(dst, expected)) << "team of " << team;
        for (std::size_t c = 0; c < result.size(); ++c) EXPECT_EQ(result[c], expectedNoise[c]);
      }
    }
    ASSERT_TRUE(met);
  }

  void expect(int team, const Image& src, Image& expected, std::vector<Hux32f>& noises) const {
    const int width = roi.width + mask.width - 1, height = roi.height + mask.height - 1;
    const bool estimated = std::any_of(noise.begin(), noise.end(), [](Hux32f n) { return std::fabs(n) < 0x1p-23f; });
    std::vector<Hux32f> low(4, std::numeric_limits<Hux32f>::infinity()), high(4, -low[0]);
    if (m.type == Number::k32f) {
      const auto* first = reinterpret_cast<const Hux32f*>(src.bytes());
      if (m.layout.stride != m.layout.touched) {
        huxiMinMax_32f_AC4R(first, src.step(), {width, height}, low.data(), high.data());
      } else {
        huxiMinMax_32f_C1R(first, src.step(), {width * m.layout.stride, height}, low.data(), high.data());
        std::fill(low.begin(), low.end(), low[0]), std::fill(high.begin(), high.end(), high[0]);
      }
    }
    for (int c = 0; c < m.layout.touched; ++c) {
      std::vector<T> pixels;
      forPixels({width, height}, [&](int x, int y) { pixels.push_back(src.get<T>(0, y, x * m.layout.stride + c)); });
      const Channel<T> channel(pixels, roi, mask);
      Hux32f& n = noises[std::size_t(c)];
      const Hux32f range = high[std::size_t(c)] - low[std::size_t(c)];
      const Hux32f scale = m.type == Number::k8u ? 65025.0f : m.type == Number::k16s ? 4294836224.0f : range * range;
      Hux32f power = n * scale * Hux32f(mask.width) * Hux32f(mask.height);
      if (estimated) {
        power = channel.estimate(team, m.layout.stride == 1);
        n = (m.type == Number::k8u    ? power * 1.537870048196055e-05f
             : m.type == Number::k16s ? power * 2.3283774908122723e-10f
                                      : power / scale) *
            channel.recip();
      }
      channel.walk(team, [&](int y, auto& s1, auto& s2) {
        for (int x = 0; x < roi.width; ++x) {
          const Hux32f sum = s1[std::size_t(x)], s = channel.variance(sum, s2[std::size_t(x)], power);
          const Hux32f mean = channel.mean(sum), k = (s - power) / s;
          const Hux32f r = Hux32f(channel.at(x + mask.width - 1 - anchor.x, y + mask.height - 1 - anchor.y));
          const Hux32f out = mean + (r - mean) * k;
          if constexpr (std::is_integral_v<T>)
            expected.set<T>(x, y, c, std::isnan(out) ? T(0) : T(int(out)));
          else
            expected.set<T>(x, y, c, out);
        }
      });
    }
  }
};

void expectFiltered(Rng& rng, const Member& m, HuxiSize roi, HuxiSize mask) {
  SCOPED_TRACE(m.name + " " + std::to_string(roi.width) + "x" + std::to_string(roi.height) + ", mask " +
               std::to_string(mask.width) + "x" + std::to_string(mask.height));
  const HuxiPoint anchor = anyAnchor(rng, mask);
  std::vector<Hux32f> noise;
  const int kind = between(rng, 0, 3);
  for (int c = 0; c < m.noises(); ++c)
    noise.push_back(kind == 0 || (kind == 1 && c == 1) ? 0.0f : std::ldexp(0.9f, -between(rng, 0, 18)));
  withElement(m, [&]<class T>(T) { Case<T>{m, roi, mask, anchor, noise}.run(rng); });
}

TEST(Wiener, EveryTeamAndShape) {
  Rng rng(1);
  for (const Member& m : members()) {
    for (int width = 1; width < 90; width += between(rng, 1, 3)) {
      expectFiltered(rng, m, {width, between(rng, 1, 21)}, {between(rng, 2, 6), between(rng, 2, 6)});
      if (HasFatalFailure() || HasNonfatalFailure()) return;
    }
    expectFiltered(rng, m, {40, 40}, {33, 29});
  }
}

// The largest corner difference of squares, 2^31, which makes a large variance out of a small one; and no variance.
TEST(Wiener, Extremes) {
  const Hux16s corners[9] = {-32768, 5, 0, 1, 100, 3, 0, 9, -32768};
  Hux8u buffer[4096];
  Hux16s result[4] = {};
  Hux32f noise = 0x1p-22f;
  ASSERT_EQ(huxiFilterWiener_16s_C1R(corners, 6, result, 4, {2, 2}, {2, 2}, {1, 1}, &noise, buffer), huxStsOk);
  EXPECT_EQ(result[3], 99);
  const Hux8u flat[16] = {9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9};
  Hux8u dark = 1;
  noise = 0;
  ASSERT_EQ(huxiFilterWiener_8u_C1R(flat, 4, &dark, 1, {1, 1}, {2, 2}, {1, 1}, &noise, buffer), huxStsOk);
  EXPECT_EQ(dark, 0);
  EXPECT_EQ(noise, 0);
}

TEST(Wiener, ChecksInOrder) {
  Rng rng(2);
  const Image image(rng, 64, 40, 16), work(rng, 4096, 1, 1);
  for (const Member& m : members()) {
    SCOPED_TRACE(m.name);
    Arguments a(image, {2, 2});
    a.a = image.bytes(8, 8), a.d = image.bytes(8, 20);
    void* buffer = work.bytes();
    Hux32f noise[4] = {0.5f, 0.25f, 0.5f, 0.125f};
    void* pNoise = noise;
    HuxiSize mask = {2, 3};
    HuxiPoint anchor = {1, 2};
    CheckOrder order([&] { return m.call(a.a, a.aStep, a.d, a.dStep, a.roi, mask, anchor, pNoise, buffer); });
    order.in(a, "ad").nulls(pNoise, buffer).in(a, "z").breaks(huxStsBadMaskSize, mask.width, 1);
    order.breaks(huxStsBadMaskSize, mask.height, 1).anchors(anchor, mask).in(a, "AD");
    const int last = m.noises() - 1;
    for (const Hux32f bad : {1.0f, -0.1f, std::numeric_limits<Hux32f>::quiet_NaN()})
      order.breaks(huxStsBadNoise, noise[last], bad);
    order.run(image);
  }
  int bytes = 77;
  int* pBytes = &bytes;
  HuxiSize roi = {10, 4}, mask = {3, 3};
  int channels = 3;
  const auto size = [&] { return huxiFilterWienerGetBufferSize(roi, mask, channels, pBytes); };
  CheckOrder(size)
      .nulls(pBytes)
      .sizes(roi)
      .breaks(huxStsBadChannelCount, channels, 2)
      .breaks(huxStsBadMaskSize, mask.width, 1)
      .breaks(huxStsBadMaskSize, mask.height, 1)
      .run(image);
  const int threads = (bytes - 15) / (36 * 20);  // 10 columns of 3 channels, and 6, in fours
  EXPECT_EQ(bytes, 36 * threads * 20 + 15);
  channels = 1;
  ASSERT_EQ(size(), huxStsOk);
  EXPECT_EQ(bytes, 16 * threads * 20 + 15);
}

}  // namespace
}  // namespace hux::test
