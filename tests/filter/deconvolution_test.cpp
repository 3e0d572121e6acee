// DeconvFFT and DeconvLR step by step, the margin cell by cell.
#include <cmath>
#include <limits>

#include "huxi_filter.h"
#include "support/failing_malloc.h"
#include "support/forms.h"
#include "support/plane.h"

namespace hux::test {
namespace {

using Taps = std::vector<Hux32f>;

// The image with its margin, in an array of w by h.
Floats widened(const Floats& p, const Floats& kernel, int w, int h) {
  const int k = kernel.w, m = (k - 1) / 2;
  Floats out(w, h);
  forPixels({p.w + 2 * m, p.h + 2 * m}, [&](int x, int y) {
    const bool above = y < m, left = x < m, row = above || y >= m + p.h, column = left || x >= m + p.w;
    const int u = std::clamp(x - m, 0, p.w - 1), v = std::clamp(y - m, 0, p.h - 1);
    const int i = above ? y : p.h + 2 * m - 1 - y;
    const int j = left ? x : above ? x - m - p.w : p.w + 2 * m - 1 - x;  // the upper right runs outwards
    const auto sum = [&](int a0, int a1, int b0, int b1, bool up, bool mirror) {
      Hux32f total = 0;
      for (int a = a0; a < a1; ++a)
        for (int b = b0; b < b1; ++b) total += kernel.at(mirror ? k - 1 - b : b, up ? k - 1 - a : a);
      return total;
    };
    const auto lo = [&](int at) { return std::max(m - at, 0); };
    const auto hi = [&](int at, int n) { return std::min(k, m + n - at); };
    Hux32f part = 1, whole = 1;
    if (row && column) {
      part = sum(0, i + 1, 0, j + 1, above, left), whole = sum(0, m + 1, 0, m + 1, above, left);
    } else if (row) {
      part = sum(0, i + 1, lo(u), hi(u, p.w), above, true), whole = sum(0, m + 1, lo(u), hi(u, p.w), above, false);
    } else if (column) {
      const int edge = left ? x : p.w + 2 * m - 1 - x;
      part = sum(lo(v), hi(v, p.h), 0, edge + 1, false, left), whole = sum(lo(v), hi(v, p.h), 0, m + 1, false, left);
    }
    out.at(x, y) = p.at(u, v) * part / whole;
  });
  return out;
}

Hux32f kept(Hux32f v, Hux32f threshold) { return std::fabs(v) > threshold ? v : 0; }

Floats byFFT(const Floats& p, const Floats& kernel, int order, Hux32f threshold) {
  const int n = 1 << order;
  using Numbers = std::vector<Hux32fc>;
  HuxiFFTRecord* context = nullptr;
  EXPECT_EQ(huxiFFTInitAlloc_C_32fc(&context, order, order, huxFftScaleInv, huxHintAccurate), huxStsOk);
  const auto spectrum = [&](const Floats& image) {
    Numbers z(std::size_t(n) * std::size_t(n), Hux32fc{0, 0});
    forPixels(image.size(), [&](int x, int y) { z[std::size_t(y * n + x)].re = image.at(x, y); });
    huxiFFTFwd_CToC_32fc_C1IR(z.data(), 8 * n, context, nullptr);
    return z;
  };
  Floats taps = kernel;
  for (Hux32f& tap : taps.pixels)
    if (std::fabs(tap) <= threshold) tap = 0;
  const Numbers blur = spectrum(taps);
  Numbers image = spectrum(widened(p, kernel, n, n));
  for (std::size_t i = 0; i < image.size(); ++i) {
    Hux32f re = blur[i].re, im = blur[i].im;
    if (std::fabs(re) < threshold) re = 0;
    if (std::fabs(im) < threshold) im = 0;
    Hux32fc inverse = {1, 0};
    if (std::fabs(re) > threshold || std::fabs(im) > threshold) {
      const Hux32f square = re * re + im * im;
      inverse = {re / square, -1.0f * im / square};
    }
    const Hux32fc z = image[i];
    image[i] = {z.re * inverse.re - z.im * inverse.im, z.re * inverse.im + z.im * inverse.re};
  }
  huxiFFTInv_CToC_32fc_C1IR(image.data(), 8 * n, context, nullptr);
  huxiFFTFree_C_32fc(context);
  Floats out(p.w, p.h);
  forPixels(p.size(), [&](int x, int y) { out.at(x, y) = kept(image[std::size_t(y * n + x)].re, threshold); });
  return out;
}

Floats filtered(const Floats& p, const Floats& kernel) {
  const int k = kernel.w, m = (k - 1) / 2;
  Floats out(p.w, p.h);
  forPixels(p.size(), [&](int x, int y) {
    for (int j = k - 1; j >= 0; --j)
      for (int i = k - 1; i >= 0; --i) out.at(x, y) += p.at(x + m - i, y + m - j) * kernel.at(i, j);
  });
  return out;
}
Floats byLR(const Floats& p, const Floats& kernel, int iterations, Hux32f threshold) {
  const int k = kernel.w, m = (k - 1) / 2;
  const Floats image = widened(p, kernel, p.w + k - 1, p.h + k - 1);
  Floats estimate = image, transposed = kernel;
  forPixels({k, k}, [&](int x, int y) { transposed.at(x, y) = kernel.at(y, x); });
  for (int n = 0; n < iterations; ++n) {
    Floats ratio = filtered(estimate, kernel);
    for (std::size_t i = 0; i < ratio.pixels.size(); ++i) {
      Hux32f& r = ratio.pixels[i];
      r = std::fabs(r) > threshold ? image.pixels[i] / r : 0;
    }
    const Floats correction = filtered(ratio, transposed);
    for (std::size_t i = 0; i < estimate.pixels.size(); ++i) {
      Hux32f& e = estimate.pixels[i];
      e = std::fabs(double(e)) > 1.1754943508222875e-36 ? e * correction.pixels[i] : 0;
    }
  }
  Floats out(p.w, p.h);
  forPixels(p.size(), [&](int x, int y) { out.at(x, y) = kept(estimate.at(m + x, m + y), threshold); });
  return out;
}

// Both families, for one layout. A state is told the largest region with its margin; `times` is the iterations.
using InitFn = HuxStatus(void* state, const void* kernel, int k, HuxiSize most, int order, Hux32f threshold);
using RunFn = HuxStatus(const void*, int, void*, int, HuxiSize, int times, void* state);
struct Family : Form {
  bool fft;
  InitFn* init;
  RunFn* run;
  HuxStatus (*free)(void*);
};
#define FFT(_, l)                                                      \
  Family{{"FFT " #l, 4, l},                                            \
         true,                                                         \
         as<InitFn, huxiDeconvFFTInitAlloc_32f_##l##R, 0, 1, 2, 4, 5>, \
         as<RunFn, huxiDeconvFFT_32f_##l##R, 0, 1, 2, 3, 4, 6>,        \
         erased<huxiDeconvFFTFree_32f_##l##R>},
#define LR(_, l)                                                      \
  Family{{"LR " #l, 4, l},                                            \
         false,                                                       \
         as<InitFn, huxiDeconvLRInitAlloc_32f_##l##R, 0, 1, 2, 3, 5>, \
         as<RunFn, huxiDeconvLR_32f_##l##R>,                          \
         erased<huxiDeconvLRFree_32f_##l##R>},
std::vector<Family> families() {
  return {
    HUX_STAMP(FFT, (_), (C1, C3))
    HUX_STAMP(LR, (_), (C1, C3))
  };
}

// An image whose step is a multiple of 4 and holds its rows.
Image imageOf(Rng& rng, const Family& f, HuxiSize size) {
  for (;;) {
    Image image(rng, size.width, size.height, f.pixelBytes(), Place(between(rng, 0, 2)));
    if (image.step() % 4 != 0 || image.step() < size.width * f.pixelBytes()) continue;
    image.fill<Hux32f>([&] { return Hux32f(between(rng, 0, 4000)) / 16; });
    return image;
  }
}
Floats channelOf(const Image& image, int c) {
  Floats p(image.width(), image.height());
  forPixels(p.size(), [&](int x, int y) { p.at(x, y) = image.get<Hux32f>(x, y, c); });
  return p;
}
// Interleaved kernels with their weight in the middle.
Taps kernelOf(Rng& rng, const Family& f, int k) {
  const int channels = f.layout.stride;
  Taps taps(std::size_t(k * k * channels));
  for (std::size_t i = 0; i < taps.size(); ++i) {
    const bool middle = int(i) / channels == k * k / 2;
    taps[i] = (middle ? Hux32f(k * k) : Hux32f(between(rng, 1, 100)) / 100) / Hux32f(2 * k * k);
  }
  return taps;
}

// Calls that follow each other with one state, of any regions.
TEST(Deconvolution, StepByStep) {
  Rng rng(1);
  for (const Family& f : families())
    for (const int k : {1, 2, 3, 4, 5, 8, 9})
      for (const Hux32f threshold : {0.0f, 0.004f, std::numeric_limits<Hux32f>::quiet_NaN()}) {
        SCOPED_TRACE(f.name + " k " + std::to_string(k) + " threshold " + std::to_string(threshold));
        const Taps kernel = kernelOf(rng, f, k);
        const int order = between(rng, 4, 6), n = 1 << order;
        const HuxiSize most = f.fft ? HuxiSize{n, n} : HuxiSize{between(rng, k, 70), between(rng, k, 40)};
        const int live = liveBlocks();
        void* state = nullptr;
        ASSERT_EQ(f.init(&state, kernel.data(), k, most, order, threshold), huxStsOk);
        for (int call = 0; call < 3; ++call) {
          HuxiSize roi = {most.width - k + 1, most.height - k + 1};
          if (call == 1) roi = {between(rng, 1, roi.width), between(rng, 1, roi.height)};
          const Image src = imageOf(rng, f, roi), dst = imageOf(rng, f, roi);
          Image expected = dst;
          const int times = between(rng, 1, 3);
          for (int c = 0; c < f.layout.stride; ++c) {
            Floats taps(k, k);
            for (int i = 0; i < k * k; ++i) taps.pixels[std::size_t(i)] = kernel[std::size_t(i * f.layout.stride + c)];
            const Floats p = channelOf(src, c);
            const Floats out = f.fft ? byFFT(p, taps, order, threshold) : byLR(p, taps, times, threshold);
            forPixels(roi, [&](int x, int y) { expected.set(x, y, c, out.at(x, y)); });
          }
          ASSERT_EQ(f.run(src.bytes(), src.step(), dst.bytes(), dst.step(), roi, times, state), huxStsOk);
          ASSERT_TRUE(same(dst, expected)) << roi.width << "x" << roi.height;
        }
        ASSERT_EQ(f.free(state), huxStsOk);
        ASSERT_EQ(liveBlocks(), live);
      }
}

TEST(Deconvolution, Checks) {
  Rng rng(3);
  for (const Family& f : families()) {
    SCOPED_TRACE(f.name);
    constexpr int k = 9;
    const Taps taps = kernelOf(rng, f, k);
    const Image untouched = imageOf(rng, f, {1, 1});
    void* made = nullptr;
    {
      void* to = &made;
      const void* kernel = taps.data();
      int size = k, order = 5;
      HuxiSize most = {9, 32};
      Hux32f threshold = 0.5f;
      CheckOrder check([&] {
        const HuxStatus s = f.init(to, kernel, size, most, order, threshold);
        if (s == huxStsOk) f.free(made);
        return s;
      });
      check.nulls(to, kernel).breaks(huxStsBadSize, size, 0);
      if (f.fft)
        check.breaks(huxStsBadSize, order, 3).breaks(huxStsBadSize, order, -1);
      else
        check.breaks(huxStsBadSize, most.width, 8).breaks(huxStsBadSize, most.height, 8);
      check.breaks(huxStsBadArg, threshold, -1.0f);
      if (f.fft) check.breaks(huxStsBadOrder, order, 31).breaks(huxStsBadOrder, order, 2000);
      check.run(untouched);
    }
    void* state = nullptr;
    ASSERT_EQ(f.init(&state, taps.data(), k, {32, 32}, 5, 0), huxStsOk);
    constexpr int huge = std::numeric_limits<int>::max();
    EXPECT_EQ(f.init(&made, taps.data(), k, {huge, huge}, 30, 0), huxStsNoMem);
    const Image src = imageOf(rng, f, {24, 24}), dst = imageOf(rng, f, {24, 24});
    const void *from = src.bytes(), *kept = state;
    void *to = dst.bytes(), *used = state;
    HuxiSize roi = {24, 24};
    const int row = 24 * f.pixelBytes();
    int srcStep = src.step(), dstStep = dst.step(), times = 1;
    CheckOrder check([&] { return f.run(from, srcStep, to, dstStep, roi, times, used); });
    check.nulls(from, to, used).sizes(roi).breaks(huxStsBadSize, roi.width, 25).breaks(huxStsBadSize, roi.height, 25);
    check.breaks(huxStsBadStep, srcStep, row - 1).breaks(huxStsBadStep, dstStep, row - 4);
    check.breaks(huxStsStepNotMultipleOf4, srcStep, row + 2).breaks(huxStsStepNotMultipleOf4, dstStep, row + 1);
    if (!f.fft) check.breaks(huxStsBadArg, times, 0);
    check.run(dst);
    EXPECT_EQ(used, kept);
    EXPECT_EQ(f.free(state), huxStsOk);
    EXPECT_EQ(f.free(nullptr), huxStsNullPtr);
  }
}

}  // namespace
}  // namespace hux::test
