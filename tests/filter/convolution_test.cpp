// ConvFull and ConvValid: each way of computing them step by step, at both sides of the sizes that choose one, and all
// of them beside the sum in double precision.
#include <cmath>

#include "filter/windows.h"
#include "huxcore.h"
#include "huxi_filter.h"
#include "support/plane.h"

namespace hux::test {
namespace {

using ConvFn = HuxStatus(const void*, int, HuxiSize, const void*, int, HuxiSize, void*, int, int divisor);
struct Member : Form {
  bool valid;
  ConvFn* call;
};
#define BOTH(t, l)                                                             \
  Member{HUX_NAMED(Full, t, l), false, as<ConvFn, huxiConvFull_##t##_##l##R>}, \
      Member{HUX_NAMED(Valid, t, l), true, as<ConvFn, huxiConvValid_##t##_##l##R>},
std::vector<Member> members() {
  return { HUX_STAMP(BOTH, (8u, 16s, 32f), (C1, C3, AC4)) };
}

template <class T>
double limited(double v) {
  return std::clamp(v, double(std::numeric_limits<T>::lowest()), double(std::numeric_limits<T>::max()));
}

// A channel of a result.
template <class T>
struct Expected {
  static constexpr bool integer = std::is_integral_v<T>;
  using Product = std::conditional_t<integer, Hux64s, Hux32f>;

  bool valid;
  Plane<T> big, small, out{1, 1};
  Hux32f recip;

  Expected(bool onlyValid, Plane<T> first, Plane<T> second, int divisor, bool colour)
      : valid(onlyValid), big(std::move(first)), small(std::move(second)), recip(1.0f / Hux32f(divisor)) {
    if (big.w < small.w || (valid && big.h < small.h)) std::swap(big, small);
    const int sign = valid ? -1 : 1;
    out = Plane<T>(big.w + sign * (small.w - 1), big.h + sign * (small.h - 1));
    if (valid && (small.area() < 121 || (out.area() < 81 && colour && !integer)))
      filter();
    else if (valid && out.area() < 81)
      sums();
    else if (!valid && (out.area() < 1705 || small.area() < 121))
      sums();
    else if (!valid && big.area() <= 7 * small.area())
      transforms(orderOf(out.w), orderOf(out.h), out.w, out.h);
    else
      blocks();
    if (std::isfinite(norm(big) * norm(small))) near();
  }

  T nearestEven(Hux32f f) const { return integer ? T(limited<T>(std::nearbyint(f * recip))) : T(f); }
  Product product(int i, int j, int x, int y) const {
    const int u = valid ? x + small.w - 1 - i : x - i, v = valid ? y + small.h - 1 - j : y - j;
    return u < 0 || v < 0 || u >= big.w || v >= big.h ? 0 : Product(small.at(i, j)) * Product(big.at(u, v));
  }

  // From the last pixel of the smaller image back to the first: rows by themselves, or only the products. The full sums
  // of 16s go the other way; those of bytes are exact.
  void sums() {
    const bool forth = !valid && sizeof(T) == 2, exact = sizeof(T) == 1;
    forPixels(out.size(), [&](int x, int y) {
      Hux32f f = 0;
      Product all = 0;
      for (int r = small.h - 1; r >= 0; --r) {
        Product row = 0;
        for (int c = small.w - 1; c >= 0; --c) {
          const int i = forth ? small.w - 1 - c : c, j = forth ? small.h - 1 - r : r;
          row += product(i, j, x, y), all += product(i, j, x, y);
          if (!valid) f += Hux32f(product(i, j, x, y));
        }
        if (valid) f += Hux32f(row);
      }
      if (!valid && exact) f = Hux32f(all);
      const Hux32f g = f * recip;
      out.at(x, y) = !exact ? nearestEven(f) : g > 255 ? T(255) : g > 0 ? T(std::min(0.5f + g, 255.0f)) : T(0);
    });
  }

  void blocks() {
    const int x = blockOrder(small.w, out.w, 8), y = blockOrder(small.h, out.h, 8);
    transforms(x, y, (1 << x) - small.w + 1, (1 << y) - small.h + 1);
  }
  void transforms(int orderX, int orderY, int stepX, int stepY) {
    const Spectrum<T> spectrum(orderX, orderY, small, false);
    for (int y0 = 0; y0 < out.h; y0 += stepY)
      for (int x0 = 0; x0 < out.w; x0 += stepX) {
        const int left = valid || x0 ? small.w - 1 : 0, top = valid || y0 ? small.h - 1 : 0;
        const int x = valid ? x0 : x0 - left, y = valid ? y0 : y0 - top;
        const Floats block = spectrum.through(
            big, {x, y, std::min({big.w, big.w - x, stepX + left}), std::min({big.h, big.h - y, stepY + top})});
        forPixels({std::min(stepX, out.w - x0), std::min(stepY, out.h - y0)},
                  [&](int u, int v) { out.at(x0 + u, y0 + v) = nearestEven(block.at(left + u, top + v)); });
      }
  }

  void filter() {
    const HuxiSize size = {out.w, out.h}, kernel = {small.w, small.h};
    const HuxiPoint anchor = {small.w - 1, small.h - 1};
    std::vector<std::conditional_t<sizeof(T) == 1, Hux32s, Hux32f>> taps(small.pixels.begin(), small.pixels.end());
    if constexpr (sizeof(T) == 2)
      for (auto& tap : taps) tap *= recip;
    const auto run = [&](auto call, auto... divisor) {
      call(big.pixels.data(), big.w * int(sizeof(T)), out.pixels.data(), out.w * int(sizeof(T)), size, taps.data(),
           kernel, anchor, divisor...);
    };
    if constexpr (sizeof(T) == 1)
      run(huxiFilter_8u_C1R, Hux32s(limited<Hux32s>(std::trunc(1.0f / recip + (recip > 0 ? 0.5 : -0.5)))));
    else if constexpr (sizeof(T) == 2)
      run(huxiFilter32f_16s_C1R);
    else
      run(huxiFilter_32f_C1R);
  }

  // Some results beside the definition. The noise of a transform is that of all its products.
  static double norm(const Plane<T>& p) {
    double squares = 0;
    for (const T v : p.pixels) squares += double(v) * double(v);
    return std::sqrt(squares);
  }
  void near() const {
    const double scale = integer ? double(recip) : 1, noise = 4e-6 * norm(big) * norm(small) * std::fabs(scale);
    for (int n = 0; n < 50; ++n) {
      const int x = n * 1009 % out.w, y = n * 2003 % out.h;
      double sum = 0;
      forPixels(small.size(), [&](int i, int j) { sum += double(product(i, j, x, y)); });
      EXPECT_NEAR(double(out.at(x, y)), limited<T>(sum * scale), noise + (integer ? 0.5 : 0)) << x << ", " << y;
    }
  }
};

struct Operands {
  HuxiSize aSize, bSize, dSize;
  Image a, b, d;

  Operands(Rng& rng, const Member& m, HuxiSize first, HuxiSize second)
      : aSize(first),
        bSize(second),
        dSize(m.valid ? HuxiSize{std::abs(first.width - second.width) + 1, std::abs(first.height - second.height) + 1}
                      : HuxiSize{first.width + second.width - 1, first.height + second.height - 1}),
        a(imageOf(rng, m, first)),
        b(imageOf(rng, m, second)),
        d(imageOf(rng, m, dSize)) {}

  // Filters move in whole elements, so they are given such steps; all else takes any.
  static Image imageOf(Rng& rng, const Member& m, HuxiSize size) {
    for (;;) {
      const Image image = formImage(rng, m, size.width, size.height, Place(between(rng, 0, 2)));
      if (m.valid && image.step() % m.elementBytes != 0) continue;
      for (int y = 0; m.elementBytes == 4 && y < size.height; ++y)
        for (int at = 0; at < image.width(); at += 4) {
          const Hux32f value = Hux32f(between(rng, -9000, 9000)) / 77;
          std::memcpy(image.bytes(at, y), &value, sizeof value);
        }
      return image;
    }
  }

  Image expected(const Member& m, int divisor) const {
    const Image image = d;
    withElement(m, [&](auto zero) {
      using T = decltype(zero);
      for (int c = 0; c < m.layout.touched; ++c) {
        const auto channel = [&](const Image& from, HuxiSize size) {
          Plane<T> p(size.width, size.height);
          forPixels(size, [&](int x, int y) {
            p.at(x, y) = valueAt<T>(from.bytes(x * m.pixelBytes() + c * m.elementBytes, y));
          });
          return p;
        };
        const Expected<T> e(m.valid, channel(a, aSize), channel(b, bSize), divisor, m.layout.stride > 1);
        forPixels(dSize, [&](int x, int y) {
          const T v = e.out.at(x, y);
          std::memcpy(image.bytes(x * m.pixelBytes() + c * m.elementBytes, y), &v, sizeof v);
        });
      }
    });
    return image;
  }
};

void expectResult(const Member& m, const Operands& o, int divisor) {
  const Image expected = o.expected(m, divisor);
  ASSERT_EQ(
      m.call(o.a.bytes(), o.a.step(), o.aSize, o.b.bytes(), o.b.step(), o.bSize, o.d.bytes(), o.d.step(), divisor),
      huxStsOk);
  ASSERT_TRUE(same(o.d, expected));
}

using Pairs = std::vector<std::pair<HuxiSize, HuxiSize>>;
const Pairs kFull = {{{1, 1}, {1, 1}},      {{9, 5}, {2, 4}},
                     {{14, 61}, {11, 11}},  {{21, 45}, {11, 11}},   // results of 1704 and 1705 pixels
                     {{40, 50}, {10, 12}},  {{40, 50}, {11, 11}},   // 120 and 121
                     {{77, 11}, {11, 11}},  {{106, 8}, {11, 11}},   // 847 and 848, seven times 121 being 847
                     {{45, 120}, {20, 20}}, {{46, 121}, {20, 20}},  // blocks of 64 are doubled for more than 64 results
                     {{140, 70}, {64, 12}}, {{140, 70}, {65, 12}},  // of 256 are not, whether doubled before or not
                     {{12, 12}, {12, 100}}, {{12, 100}, {12, 12}},  // of equal widths the first is the larger
                     {{13, 40}, {1220, 3}}, {{30, 200}, {1, 121}},  // higher than the larger; a column
                     {{121, 1}, {200, 40}}, {{3, 400}, {2, 70}}};
const Pairs kValid = {{{3, 2}, {1, 1}},     {{40, 30}, {10, 12}}, {{12, 10}, {30, 40}},  // filters
                      {{20, 18}, {11, 11}}, {{19, 19}, {11, 11}},                        // 80 and 81 results
                      {{90, 15}, {95, 30}}, {{50, 40}, {11, 11}}, {{300, 5}, {121, 1}},
                      {{5, 300}, {1, 121}}, {{330, 60}, {70, 33}}};

TEST(Convolution, EachWayStepByStep) {
  Rng rng(1);
  constexpr int low = std::numeric_limits<int>::min(), high = std::numeric_limits<int>::max();
  constexpr float infinity = std::numeric_limits<float>::infinity();
  for (const Member& m : members())
    for (const auto& [first, second] : m.valid ? kValid : kFull)
      for (int divisor : {0, 0, low, high, -3}) {
        SCOPED_TRACE(m.name + " of " + std::to_string(first.width) + "x" + std::to_string(first.height) + " and " +
                     std::to_string(second.width) + "x" + std::to_string(second.height));
        const int area = std::min(first.width, second.width) * std::min(first.height, second.height);
        if (divisor != 0 && (area >= 150 || m.elementBytes == 4)) continue;
        // Results within the range; of even divisors, which make ties.
        if (divisor == 0) divisor = 2 * area * (m.elementBytes == 1 ? between(rng, 20, 80) : between(rng, 90, 4000));
        const Operands o(rng, m, first, second);
        // Nothing is added outside of the images, where zeros times an infinity would be no number.
        if (m.elementBytes == 4 && !m.valid && area < 11)
          std::memcpy((between(rng, 0, 1) ? o.a : o.b).bytes(0, 0), &infinity, sizeof infinity);
        huxSetThreadCount(Hux32u(between(rng, 1, 4)));
        ASSERT_NO_FATAL_FAILURE(expectResult(m, o, divisor));
      }
}

// The filters that stand behind ConvValid ask for whole rows in one channel; nothing else does.
TEST(Convolution, Checks) {
  Rng rng(5);
  for (const Member& m : members())
    for (const int k : {3, 12}) {
      SCOPED_TRACE(m.name);
      const Operands o(rng, m, {30, 20}, {k, k});
      const void *a = o.a.bytes(), *b = o.b.bytes();
      void* d = o.d.bytes();
      HuxiSize first = o.aSize, second = o.bSize;
      int aStep = 30 * m.pixelBytes(), bStep = o.b.step(), dStep = o.d.step(), divisor = 9;
      CheckOrder order([&] { return m.call(a, aStep, first, b, bStep, second, d, dStep, divisor); });
      order.nulls(a, b, d).sizes(first).sizes(second).steps(aStep, bStep, dStep);
      if (m.elementBytes < 4) order.breaks(huxStsBadDivisor, divisor, 0);
      if (m.valid) order.breaks(huxStsBadSize, second, {k, 21});
      if (m.valid && k == 3 && m.layout.stride == 1) order.breaks(huxStsBadStep, aStep, aStep - m.elementBytes);
      order.run(o.d);
      aStep -= m.elementBytes;
      if (k == 3) continue;
      EXPECT_EQ(m.call(a, aStep, first, b, bStep, second, d, dStep, divisor), huxStsOk);
    }
}

}  // namespace
}  // namespace hux::test
