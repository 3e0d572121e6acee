// Resize by factors, about a point and by steps, by every interpolation.
#include "huxi_geometry.h"

#include "geometry/resampling.h"
#include "support/failing_malloc.h"

namespace hux::test {
namespace {

using FactorFn =
    std::function<HuxStatus(const void*, HuxiSize, int, HuxiRect, void*, int, HuxiSize, double, double, int)>;
using CenterFn = std::function<HuxStatus(const void*, HuxiSize, int, HuxiRect, void*, int, HuxiSize, double, double,
                                         double, double, int)>;

struct ResizeForm : Geometry {
  std::string name;
  FactorFn resize;
  CenterFn center, shift;
};
constexpr Layout P3{1, 1}, P4{1, 1};
#define FORM(t, l)                                                     \
  ResizeForm{{int(sizeof(Hux##t)), #l[0] == 'P' ? #l[1] - '0' : 1, l}, \
             #t "_" #l,                                                \
             erased<huxiResize_##t##_##l##R>,                          \
             erased<huxiResizeCenter_##t##_##l##R>,                    \
             erased<huxiResizeShift_##t##_##l##R>},
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
template <class T>
void expectPixels(const ResizeForm& f, const Image& src, const Image& dst, HuxiSize srcSize, const Axis1d& x,
                  const Axis1d& y, int mode, long dx, long dy) {
  const auto columns = x.places(mode), rows = y.places(mode);
  for (std::size_t j = 0; j < rows.size(); ++j)
    for (std::size_t i = 0; i < columns.size(); ++i)
      for (int c = 0; c < channelsOf(f); ++c) {
        const auto get = [&](long u, long v) { return load<T>(channelAt(src, f, u, v, c)); };
        const T value = mode == huxiInterNearest
                            ? get(columns[i].first, rows[j].first)
                            : interpolated<T>(mode, columns[i], rows[j], srcSize.width, srcSize.height, get);
        std::memcpy(channelAt(dst, f, dx + long(i), dy + long(j), c), &value, sizeof value);
      }
}
void expectPixels(const ResizeForm& f, const Image& src, const Image& dst, HuxiSize srcSize, const Axis1d& x,
                  const Axis1d& y, int mode, long dx = 0, long dy = 0) {
  if (f.elementBytes == 1) return expectPixels<Hux8u>(f, src, dst, srcSize, x, y, mode, dx, dy);
  if (f.elementBytes == 2) return expectPixels<Hux16u>(f, src, dst, srcSize, x, y, mode, dx, dy);
  return expectPixels<Hux32f>(f, src, dst, srcSize, x, y, mode, dx, dy);
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
constexpr int kModes[] = {huxiInterNearest, huxiInterLinear, huxiInterCubic, huxiInterLanczos};

// One image with room for any form of call: sources against unreadable pages, up and down.
struct Scene {
  HuxiSize srcSize, dstSize;
  HuxiRect roi;
  Image src, dst;
  std::byte *srcPlanes[4], *dstPlanes[4];
  int srcStep;

  Scene(Rng& rng, const ResizeForm& f, HuxiSize srcSize, HuxiSize dstSize)
      : srcSize(srcSize),
        dstSize(dstSize),
        roi(anyRegion(rng, srcSize)),
        src(imageOf(rng, f, srcSize, Place(between(rng, 0, 2)))),
        dst(imageOf(rng, f, dstSize, Place(between(rng, 0, 2)))),
        srcStep(src.step()) {
    srcArgument = argumentOf(src, f, srcPlanes), dstArgument = argumentOf(dst, f, dstPlanes);
  }
  void *srcArgument, *dstArgument;
  Axis1d x(double factor, double shift, bool bySteps) const {
    return {srcSize.width, roi.x, std::min(roi.width, srcSize.width - roi.x), dstSize.width, factor, shift, bySteps};
  }
  Axis1d y(double factor, double shift, bool bySteps) const {
    return {srcSize.height, roi.y,  std::min(roi.height, srcSize.height - roi.y), dstSize.height, factor,
            shift,          bySteps};
  }
};
// Sometimes wider than a strip of the passes, and often smaller than a mode needs.
Scene anyScene(Rng& rng, const ResizeForm& f, int n) {
  const int wide = n % 8 == 0 ? 600 : n % 3 == 0 ? 10 : 70;
  return Scene(rng, f, {between(rng, 1, wide), between(rng, 1, 12)},
               {between(rng, 1, n % 8 == 1 ? 1500 : 90), between(rng, 1, 20)});
}

TEST(Resize, PixelsAreThoseOfTheDefinition) {
  Rng rng(1);
  for (const ResizeForm& f : forms())
    for (int mode : kModes)
      for (int n = 0; n < 40; ++n) {
        Scene s = anyScene(rng, f, n);
        const double xf = anyFactor(rng), yf = anyFactor(rng);
        SCOPED_TRACE(f.name + " mode " + std::to_string(mode) + " case " + std::to_string(n));
        const int used = modeFor(s.srcSize, mode);
        const bool nearest = used == huxiInterNearest;
        const Axis1d x = s.x(xf, 0, false), y = s.y(yf, 0, false);
        const bool small = !x.count(nearest) || !y.count(nearest);
        Image expected = s.dst;
        if (!small) expectPixels(f, s.src, expected, s.srcSize, x, y, used);
        ASSERT_EQ(
            f.resize(s.srcArgument, s.srcSize, s.srcStep, s.roi, s.dstArgument, s.dst.step(), s.dstSize, xf, yf, mode),
            small ? huxStsResizeTooSmall : huxStsOk);
        ASSERT_TRUE(same(s.dst, expected));

        const double xs = between(rng, -300, 900) / 100.0, ys = between(rng, -300, 900) / 100.0;
        const Axis1d xb = s.x(xf, xs, true), yb = s.y(yf, ys, true);
        expectPixels(f, s.src, expected, s.srcSize, xb, yb, used);
        ASSERT_EQ(f.shift(s.srcArgument, s.srcSize, s.srcStep, s.roi, s.dstArgument, s.dst.step(), s.dstSize, xf, yf,
                          xs, ys, mode),
                  huxStsOk);
        ASSERT_TRUE(same(s.dst, expected)) << "by steps";
      }
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
  Rng rng(2);
  int seen = 0;
  for (const ResizeForm& f : forms())
    for (int mode : kModes)
      for (int n = 0; n < 30; ++n) {
        Scene s = anyScene(rng, f, n);
        SCOPED_TRACE(f.name + " mode " + std::to_string(mode) + " case " + std::to_string(n));
        const double xf = anyFactor(rng), yf = anyFactor(rng);
        const double xc = between(rng, -100, 100 * s.srcSize.width) / 100.0;
        const double yc = between(rng, -100, 100 * s.srcSize.height) / 100.0;
        Axis1d x = s.x(xf, 0, false), y = s.y(yf, 0, false);
        const Part px = partOf(double(x.origin), double(x.extent), s.dstSize.width, xf, xc);
        const Part py = partOf(double(y.origin), double(y.extent), s.dstSize.height, yf, yc);
        const auto axis = [](Axis1d& a, const Part& p) {
          a.origin = long(p.src), a.most = long(p.dstCount), a.shift = p.shift;
          a.extent = std::min(long(std::min(p.srcCount, 1e9)), a.image - a.origin);
        };
        axis(x, px), axis(y, py);
        const int used = modeFor(s.srcSize, mode);
        const bool nearest = used == huxiInterNearest;
        HuxStatus status = huxStsOk;
        if (px.src < 0 || py.src < 0 || px.srcCount < 1 || py.srcCount < 1)
          status = huxStsBadSize;
        else if (px.src >= s.srcSize.width || py.src >= s.srcSize.height)
          status = huxStsNoOverlapWarn;
        else if (px.dstCount < 1 || py.dstCount < 1)
          status = huxStsBadSize;
        else if (!x.count(nearest) || !y.count(nearest))
          status = huxStsResizeTooSmall;
        Image expected = s.dst;
        if (status == huxStsOk)
          ++seen, expectPixels(f, s.src, expected, s.srcSize, x, y, used, long(px.dst), long(py.dst));
        ASSERT_EQ(f.center(s.srcArgument, s.srcSize, s.srcStep, s.roi, s.dstArgument, s.dst.step(), s.dstSize, xf, yf,
                           xc, yc, mode),
                  status);
        ASSERT_TRUE(same(s.dst, expected));
      }
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
      Scene s = anyScene(rng, f, n);
      SCOPED_TRACE(f.name + " case " + std::to_string(n));
      const double xf = factors[rng() % 10], yf = n % 3 ? factors[rng() % 10] : xf;
      const Axis1d x = s.x(xf, 0, false), y = s.y(yf, 0, false);
      const long width = x.count(true), height = y.count(true);
      const Image before = s.dst;
      ASSERT_EQ(f.resize(s.srcArgument, s.srcSize, s.srcStep, s.roi, s.dstArgument, s.dst.step(), s.dstSize, xf, yf,
                         huxiInterSuper),
                width && height ? huxStsOk : huxStsResizeTooSmall);
      for (long j = 0; j < height && width; ++j)
        for (long i = 0; i < width; ++i)
          for (int c = 0; c < channelsOf(f); ++c) {
            const auto cx = coverage(1 / xf, i, x.image - x.origin), cy = coverage(1 / yf, j, y.image - y.origin);
            double sum = 0, largest = 0;
            for (std::size_t v = 0; v < cy.size(); ++v)
              for (std::size_t u = 0; u < cx.size(); ++u)
                if (cx[u] > 0 && cy[v] > 0) {
                  const std::byte* at = channelAt(s.src, f, x.origin + long(u), y.origin + long(v), c);
                  const double p = f.elementBytes == 1   ? load<Hux8u>(at)
                                   : f.elementBytes == 2 ? load<Hux16u>(at)
                                                         : double(load<Hux32f>(at));
                  sum += p * cx[u] * cy[v], largest = std::max(largest, std::fabs(p));
                }
            std::byte* at = channelAt(s.dst, f, i, j, c);
            const double mean = sum * xf * yf;
            const bool whole = 1 / xf == std::floor(1 / xf) && 1 / yf == std::floor(1 / yf);
            if (f.elementBytes == 4)
              ASSERT_NEAR(load<Hux32f>(at), mean, largest * 1e-5);
            else if (whole)
              ASSERT_EQ(f.elementBytes == 1 ? load<Hux8u>(at) : load<Hux16u>(at), long(sum * (xf * yf) + 0.5));
            else
              ASSERT_NEAR(f.elementBytes == 1 ? load<Hux8u>(at) : load<Hux16u>(at), mean, 0.5 + largest * 1e-5);
            std::memcpy(at, channelAt(before, f, i, j, c), std::size_t(f.elementBytes));
          }
      ASSERT_TRUE(same(s.dst, before)) << "outside the result";
    }
}

// Nothing is left behind and nothing breaks when memory runs out.
TEST(Resize, SupersamplingTellsOfNoMemory) {
  Rng rng(4);
  const int blocks = liveBlocks();
  for (const ResizeForm& f : forms()) {
    Scene s(rng, f, {30, 20}, {10, 10});
    walkAllocationFailures(
        [&] {
          return f.resize(s.srcArgument, s.srcSize, s.srcStep, {0, 0, 30, 20}, s.dstArgument, s.dst.step(), s.dstSize,
                          0.3, 0.5, huxiInterSuper);
        },
        [](HuxStatus status) { EXPECT_EQ(status, huxStsNoMem); });
  }
  EXPECT_EQ(liveBlocks(), blocks);
}

TEST(Resize, NegativeSourceStepsWalkUp) {
  Rng rng(5);
  const ResizeForm f = forms()[0];
  Scene s(rng, f, {20, 12}, {40, 30}), up(rng, f, {20, 12}, {40, 30});
  for (int y = 0; y < 12; ++y) std::memcpy(up.src.bytes(0, y), s.src.bytes(0, 11 - y), 20);
  for (int mode : kModes) {
    f.resize(s.src.bytes(), s.srcSize, s.srcStep, {0, 0, 20, 12}, s.dst.bytes(), s.dst.step(), s.dstSize, 2, 2.2, mode);
    f.resize(up.src.bytes(0, 11), s.srcSize, -up.srcStep, {0, 0, 20, 12}, up.dst.bytes(), up.dst.step(), s.dstSize, 2,
             2.2, mode);
    for (int y = 0; y < 26; ++y) ASSERT_EQ(std::memcmp(s.dst.bytes(0, y), up.dst.bytes(0, y), 40), 0) << y;
  }
}

TEST(Resize, ChecksComeInOrder) {
  Rng rng(6);
  for (const ResizeForm& f : forms()) {
    SCOPED_TRACE(f.name);
    Scene s(rng, f, {20, 12}, {9, 9});
    s.roi = {2, 3, 10, 5};
    const void* src = s.srcArgument;
    void* dst = s.dstArgument;
    double xf = 0.5, yf = 0.5;
    int mode = huxiInterLinear;
    const auto common = [&](CheckOrder order) {
      order.breaks(huxStsBadSize, s.srcSize.width, 0)
          .breaks(huxStsBadSize, s.srcSize.height, -1)
          .breaks(huxStsBadSize, s.roi.x, -1)
          .breaks(huxStsBadSize, s.roi.y, -1)
          .breaks(huxStsBadSize, s.roi.width, 0)
          .breaks(huxStsBadSize, s.roi.height, 0)
          .breaks(huxStsNoOverlapWarn, s.roi.x, 20)
          .breaks(huxStsNoOverlapWarn, s.roi.y, 12)
          .breaks(huxStsBadSize, s.dstSize.width, 0)
          .breaks(huxStsBadSize, s.dstSize.height, 0)
          .breaks(huxStsBadResizeFactor, xf, 0)
          .breaks(huxStsBadResizeFactor, yf, std::nan(""));
      return order;
    };
    const auto byFactors = [&] {
      return f.resize(src, s.srcSize, s.srcStep, s.roi, dst, s.dst.step(), s.dstSize, xf, yf, mode);
    };
    const auto bySteps = [&] {
      return f.shift(src, s.srcSize, s.srcStep, s.roi, dst, s.dst.step(), s.dstSize, xf, yf, 0, 0, mode);
    };
    const auto aboutAPoint = [&] {
      return f.center(src, s.srcSize, s.srcStep, s.roi, dst, s.dst.step(), s.dstSize, xf, yf, 6, 5, mode);
    };
    const auto planes = [&](CheckOrder& order, bool both) {
      order.breaks(huxStsNullPtr, dst, nullptr);
      if (both) order.breaks(huxStsNullPtr, src, nullptr);
      if (f.planes > 1) {
        order.breaks(huxStsNullPtr, s.srcPlanes[f.planes - 1], nullptr);
        order.breaks(huxStsNullPtr, s.dstPlanes[f.planes - 1], nullptr);
      }
    };
    CheckOrder factors(byFactors), steps(bySteps), centre(aboutAPoint);
    planes(factors, true), planes(steps, true), planes(centre, f.planes > 1);
    const auto run = [&](CheckOrder order, bool last) {
      order = common(order);
      if (last) order.breaks(huxStsNullPtr, src, nullptr);
      order.breaks(huxStsBadInterpolation, mode, 3).breaks(huxStsBadInterpolation, mode, 32);
      s.dstSize = {9, 9}, mode = huxiInterLinear;
      order.run(s.dst);
    };
    run(factors, false), run(steps, false), run(centre, f.planes == 1);
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
