// Resize by factors, about a point and by steps, by every interpolation.
#include "geometry/resampling.h"
#include "huxi_geometry.h"

namespace hux::test {
namespace {

using FactorFn = HuxStatus(const void*, HuxiSize, int, HuxiRect, void*, int, HuxiSize, double, double, int);
using PointFn = HuxStatus(const void*, HuxiSize, int, HuxiRect, void*, int, HuxiSize, double, double, double, double,
                          int);
struct ResizeForm : Format {
  FactorFn* resize;
  PointFn *center, *shift;
};
#define FORM(t, l)                                                                                                \
  ResizeForm{HUX_FORMAT(t, l), as<FactorFn, huxiResize_##t##_##l##R>, as<PointFn, huxiResizeCenter_##t##_##l##R>, \
             as<PointFn, huxiResizeShift_##t##_##l##R>},
std::vector<ResizeForm> forms() {
  return { HUX_STAMP(FORM, (8u, 16u, 32f), (C1, C3, AC4, C4, P3, P4)) };
}

// One axis of a resize, from the definitions.
struct Axis1d {
  long image, origin, extent, most;
  double factor, shift;
  bool bySteps;

  double step(bool nearest) const {
    if (bySteps) return factor;
    if (nearest) return 1 / factor;
    return double(extent) * factor > 1.0 ? double(extent - 1) / (double(extent) * factor - 1.0) : 0.0;
  }
  long count(bool nearest) const {
    if (!bySteps) {
      const double n = double(extent) * factor + 1e-7;
      return n < 1 ? (n >= 0.5 ? 1 : 0) : long(std::min(n, double(most)));
    }
    const double c = std::trunc(double(nearest ? extent : extent - 1) / factor + 1e-7);
    if (!(c < double(most - 1))) return most;
    return nearest ? std::max(1L, long(c)) : long(c) + 1;
  }
  // The places of all its pixels.
  std::vector<Place1d> places(int mode) const {
    std::vector<Place1d> all;
    const bool nearest = mode == huxiInterNearest;
    const double by = step(nearest);
    double p = nearest ? shift + 0.5 * by : shift;
    for (long n = count(nearest); n > 0; --n, p += by) {
      const double whole = std::trunc(p + 1e-7);
      double fraction = p - whole;
      const double absolute = whole + double(origin);
      long i = long(std::clamp(absolute, 0.0, double(image - 1)));
      if (absolute != double(i)) fraction = 0;
      if (mode == huxiInterLinear && i == image - 1) --i, fraction = 1;
      if (mode == huxiInterCubic) {
        if (i == image - 1)
          i -= 2, fraction = 2;
        else if (i == 0)
          i += 1, fraction -= 1;
        else if (i == image - 2)
          i -= 1, fraction += 1;
      }
      all.push_back({i - (mode == huxiInterCubic ? 1 : mode == huxiInterLanczos ? 2 : 0), fraction});
    }
    return all;
  }
};

// Writes what a resize writes from (dx, dy) of the destination on.
void expectPixels(const ResizeForm& f, const Picture& src, const Picture& dst, const Axis1d& x, const Axis1d& y,
                  int mode, long dx = 0, long dy = 0) {
  const auto columns = x.places(mode), rows = y.places(mode);
  for (std::size_t j = 0; j < rows.size(); ++j)
    for (std::size_t i = 0; i < columns.size(); ++i)
      for (int c = 0; c < f.channels(); ++c) {
        const auto get = [&](long u, long v) { return src.get(u, v, c); };
        dst.set(dx + long(i), dy + long(j), c,
                mode == huxiInterNearest ? get(columns[i].first, rows[j].first)
                                         : interpolated(f.elementBytes, mode, columns[i], rows[j], src.size().width,
                                                        src.size().height, get));
      }
}

double anyFactor(Rng& rng) {
  constexpr double some[] = {1, 2, 0.5, 0.25, 1.0 / 3, 3, 0.07, 1e-3, 1e9};
  return between(rng, 0, 2) ? between(rng, 50, 3000) / 1000.0 : some[rng() % std::size(some)];
}
HuxiRect anyRegion(Rng& rng, HuxiSize size) {
  const int x = between(rng, 0, 2) ? between(rng, 0, size.width - 1) : 0;
  const int y = between(rng, 0, 2) ? between(rng, 0, size.height - 1) : 0;
  return {x, y, between(rng, 1, size.width - x + 3), between(rng, 1, size.height - y + 3)};
}

struct Scene : ResizeScene {
  HuxiRect roi;

  template <class... A>
  Scene(Rng& rng, const Format& f, A... sizes) : ResizeScene(rng, f, sizes...), roi(anyRegion(rng, src.size())) {}
  Axis1d x(double factor, double shift, bool bySteps) const {
    const int width = src.size().width;
    return {width, roi.x, std::min(roi.width, width - roi.x), dst.size().width, factor, shift, bySteps};
  }
  Axis1d y(double factor, double shift, bool bySteps) const {
    const int height = src.size().height;
    return {height, roi.y, std::min(roi.height, height - roi.y), dst.size().height, factor, shift, bySteps};
  }
  template <class Fn, class... A>
  HuxStatus call(Fn* resize, A... parameters) const {
    return resize(src.argument(), src.size(), src.step(), roi, dst.argument(), dst.step(), dst.size(), parameters...);
  }
};
template <class Body>
void forScenes(int seed, int count, Body body) {
  Rng rng(seed);
  for (const ResizeForm& f : forms())
    for (int mode : kResizeModes)
      for (int n = 0; n < count; ++n) {
        SCOPED_TRACE(f.name + " mode " + std::to_string(mode) + " case " + std::to_string(n));
        const Scene s(rng, f, n);
        body(rng, f, s, mode, modeFor(s.src.size(), mode));
        if (testing::Test::HasFatalFailure()) return;
      }
}

TEST(Resize, PixelsAreThoseOfTheDefinition) {
  forScenes(1, 40, [](Rng& rng, const ResizeForm& f, const Scene& s, int mode, int used) {
    const double xf = anyFactor(rng), yf = anyFactor(rng);
    const bool nearest = used == huxiInterNearest;
    const Axis1d x = s.x(xf, 0, false), y = s.y(yf, 0, false);
    const bool small = !x.count(nearest) || !y.count(nearest);
    const Picture expected = s.dst;
    if (!small) expectPixels(f, s.src, expected, x, y, used);
    ASSERT_EQ(s.call(f.resize, xf, yf, mode), small ? huxStsResizeTooSmall : huxStsOk);
    ASSERT_TRUE(same(s.dst, expected));

    const double xs = between(rng, -300, 900) / 100.0, ys = between(rng, -300, 900) / 100.0;
    expectPixels(f, s.src, expected, s.x(xf, xs, true), s.y(yf, ys, true), used);
    ASSERT_EQ(s.call(f.shift, xf, yf, xs, ys, mode), huxStsOk);
    ASSERT_TRUE(same(s.dst, expected)) << "by steps";
  });
}

// The part of the destination, and the part of the source, that a resize about a point has.
struct Part {
  double dst, dstCount, src, srcCount, shift;
};
Part partOf(double origin, double extent, double dst, double factor, double center) {
  const double half = 0.5 * dst, o = (origin - center) * factor + half;
  Part p;
  p.dst = std::max(std::ceil(o), 0.0);
  p.dstCount = std::trunc(std::min((origin + extent) * factor + o, dst)) - p.dst;
  p.srcCount = std::ceil(std::min((dst - o) / factor, extent));
  const double from = (p.dst - half) / factor + center;
  p.src = std::trunc(from), p.shift = from - std::trunc(from);
  return p;
}

TEST(Resize, AboutAPointItIsAResizeOfThePartThatIsSeen) {
  int seen = 0;
  forScenes(2, 30, [&](Rng& rng, const ResizeForm& f, const Scene& s, int mode, int used) {
    const HuxiSize size = s.src.size();
    const double xf = anyFactor(rng), yf = anyFactor(rng);
    const double xc = between(rng, -100, 100 * size.width) / 100.0, yc = between(rng, -100, 100 * size.height) / 100.0;
    Axis1d x = s.x(xf, 0, false), y = s.y(yf, 0, false);
    const Part px = partOf(double(x.origin), double(x.extent), s.dst.size().width, xf, xc);
    const Part py = partOf(double(y.origin), double(y.extent), s.dst.size().height, yf, yc);
    const auto axis = [](Axis1d& a, const Part& p) {
      a.origin = long(p.src), a.most = long(p.dstCount), a.shift = p.shift;
      a.extent = std::min(long(std::min(p.srcCount, 1e9)), a.image - a.origin);
    };
    axis(x, px), axis(y, py);
    const bool nearest = used == huxiInterNearest;
    HuxStatus status = huxStsOk;
    if (px.src < 0 || py.src < 0 || px.srcCount < 1 || py.srcCount < 1)
      status = huxStsBadSize;
    else if (px.src >= size.width || py.src >= size.height)
      status = huxStsNoOverlapWarn;
    else if (px.dstCount < 1 || py.dstCount < 1)
      status = huxStsBadSize;
    else if (!x.count(nearest) || !y.count(nearest))
      status = huxStsResizeTooSmall;
    const Picture expected = s.dst;
    if (status == huxStsOk) ++seen, expectPixels(f, s.src, expected, x, y, used, long(px.dst), long(py.dst));
    ASSERT_EQ(s.call(f.center, xf, yf, xc, yc, mode), status);
    ASSERT_TRUE(same(s.dst, expected));
  });
  EXPECT_GT(seen, 500);
}

// The parts of source pixels that each destination pixel covers, by area.
std::vector<double> coverage(double step, long j, long count) {
  std::vector<double> parts(std::size_t(count), 0.0);
  for (long i = long(double(j) * step); double(i) < double(j + 1) * step; ++i) {
    const double low = std::max(double(i), double(j) * step), high = std::min(double(i + 1), double(j + 1) * step);
    if (high - low > 1e-9) parts[std::size_t(inside(i, count))] += high - low;
  }
  return parts;
}

TEST(Resize, SupersamplingIsTheMeanByArea) {
  Rng rng(3);
  constexpr double factors[] = {1, 0.5, 0.25, 1.0 / 3, 0.1, 0.3, 0.6, 0.77, 0.9, 0.999};
  for (const ResizeForm& f : forms())
    for (int n = 0; n < 60; ++n) {
      const Scene s(rng, f, n);
      SCOPED_TRACE(f.name + " case " + std::to_string(n));
      const double xf = factors[rng() % 10], yf = n % 3 ? factors[rng() % 10] : xf;
      const Axis1d x = s.x(xf, 0, false), y = s.y(yf, 0, false);
      const long width = x.count(true), height = y.count(true);
      const Picture before = s.dst;
      ASSERT_EQ(s.call(f.resize, xf, yf, huxiInterSuper), width && height ? huxStsOk : huxStsResizeTooSmall);
      for (long j = 0; j < height && width; ++j)
        for (long i = 0; i < width; ++i)
          for (int c = 0; c < f.channels(); ++c) {
            const auto cx = coverage(1 / xf, i, x.image - x.origin), cy = coverage(1 / yf, j, y.image - y.origin);
            double sum = 0, largest = 0;
            for (std::size_t v = 0; v < cy.size(); ++v)
              for (std::size_t u = 0; u < cx.size(); ++u)
                if (cx[u] > 0 && cy[v] > 0) {
                  const double p = s.src.get(x.origin + long(u), y.origin + long(v), c);
                  sum += p * cx[u] * cy[v], largest = std::max(largest, std::fabs(p));
                }
            const bool whole = 1 / xf == std::floor(1 / xf) && 1 / yf == std::floor(1 / yf);
            if (f.elementBytes < 4 && whole)
              ASSERT_EQ(s.dst.get(i, j, c), double(long(sum * (xf * yf) + 0.5)));
            else
              ASSERT_NEAR(s.dst.get(i, j, c), sum * xf * yf, (f.elementBytes < 4 ? 0.5 : 0) + largest * 1e-5);
            s.dst.set(i, j, c, before.get(i, j, c));
          }
      ASSERT_TRUE(same(s.dst, before)) << "outside the result";
    }
}

TEST(Resize, NegativeSourceStepsWalkUp) {
  Rng rng(5);
  const Image src(rng, 20, 12, 1), up(rng, 20, 12, 1), dst(rng, 40, 30, 1), expected = dst;
  for (int y = 0; y < 12; ++y) std::memcpy(up.bytes(0, y), src.bytes(0, 11 - y), 20);
  const auto last = reinterpret_cast<const Hux8u*>(up.bytes(0, 11));
  for (int mode : kResizeModes) {
    huxiResize_8u_C1R(src.data<Hux8u>(), {20, 12}, src.step(), {0, 0, 20, 12}, expected.data<Hux8u>(), dst.step(),
                      {40, 30}, 2, 2.2, mode);
    huxiResize_8u_C1R(last, {20, 12}, -up.step(), {0, 0, 20, 12}, dst.data<Hux8u>(), dst.step(), {40, 30}, 2, 2.2,
                      mode);
    ASSERT_TRUE(same(dst, expected));
  }
}

TEST(Resize, ChecksComeInOrder) {
  Rng rng(6);
  for (const ResizeForm& f : forms()) {
    SCOPED_TRACE(f.name);
    Picture from(rng, f, {20, 12}), to(rng, f, {9, 9});
    HuxiSize srcSize = from.size(), dstSize = to.size();
    HuxiRect roi = {2, 3, 10, 5};
    const void* src = from.argument();
    void* dst = to.argument();
    double xf = 0.5, yf = 0.5;
    int mode = huxiInterLinear;
    const auto call = [&](auto* fn, auto... point) {
      return [&, fn, point...] {
        return fn(src, srcSize, from.step(), roi, dst, to.step(), dstSize, xf, yf, point..., mode);
      };
    };
    const auto byFactors = call(f.resize);
    const auto bySteps = call(f.shift, 0, 0), aboutAPoint = call(f.center, 6, 5);
    // About a point, an interleaved source is looked at behind the factors.
    const auto run = [&](auto fn, bool sourceLast) {
      CheckOrder order(fn);
      order.nulls(dst);
      if (!sourceLast) order.nulls(src);
      if (f.planes > 1) order.nulls(from.plane(f.planes - 1), to.plane(f.planes - 1));
      order.sizes(srcSize).sizes(roi).breaks(huxStsNoOverlapWarn, roi.x, 20).breaks(huxStsNoOverlapWarn, roi.y, 12);
      order.sizes(dstSize).breaks(huxStsBadResizeFactor, xf, 0).breaks(huxStsBadResizeFactor, yf, std::nan(""));
      if (sourceLast) order.nulls(src);
      order.breaks(huxStsBadInterpolation, mode, 3).breaks(huxStsBadInterpolation, mode, 32).run(to.memory);
    };
    run(byFactors, false), run(bySteps, false), run(aboutAPoint, f.planes == 1);
    mode = huxiInterSuper;
    EXPECT_EQ(bySteps(), huxStsBadInterpolation);
    xf = 1.01;
    EXPECT_EQ(byFactors(), huxStsBadInterpolation);
    EXPECT_EQ(aboutAPoint(), huxStsBadInterpolation);
  }
}

TEST(Resize, FractAreTheStepsOfFactors) {
  double x = -1, y = -1;
  HuxiSize size = {100, 50};
  HuxiRect roi = {20, 10, 200, 30};
  EXPECT_EQ(huxiGetResizeFract(size, roi, 0.5, 2, &x, &y, huxiInterLinear), huxStsOk);
  EXPECT_EQ(x, 79 / (80 * 0.5 - 1));
  EXPECT_EQ(y, 29 / (30 * 2.0 - 1));
  EXPECT_EQ(huxiGetResizeFract(size, roi, 0.3, 1.0 / 30, &x, &y, huxiInterNearest), huxStsOk);
  EXPECT_EQ(x, 1 / 0.3);
  EXPECT_EQ(huxiGetResizeFract(size, roi, 0.3, 1.0 / 30, &x, &y, huxiInterCubic), huxStsOk);
  EXPECT_EQ(y, 0);
  EXPECT_EQ(huxiGetResizeFract({0, 1}, {100, 0, 1, 1}, 0, 1, nullptr, &y, 8), huxStsBadSize);
  EXPECT_EQ(huxiGetResizeFract(size, {-1, 0, 1, 1}, 0, 1, nullptr, &y, 8), huxStsBadSize);
  EXPECT_EQ(huxiGetResizeFract(size, {100, 0, 1, 1}, 0, 1, nullptr, &y, 8), huxStsNoOverlapWarn);
  EXPECT_EQ(huxiGetResizeFract(size, roi, 0, 1, nullptr, &y, 8), huxStsBadResizeFactor);
  EXPECT_EQ(huxiGetResizeFract(size, roi, 1, 1, nullptr, &y, 8), huxStsNullPtr);
  EXPECT_EQ(huxiGetResizeFract(size, roi, 1, 1, &x, nullptr, 8), huxStsNullPtr);
  EXPECT_EQ(huxiGetResizeFract(size, roi, 1, 1, &x, &y, 8), huxStsBadInterpolation);
}

}  // namespace
}  // namespace hux::test
