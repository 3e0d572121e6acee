// QualityIndex: step by step in the precision of each step, for every team, and beside its definition.
#include <cmath>
#include <numeric>

#include "core/stamp.h"
#include "huxcore.h"
#include "huxi_stats.h"
#include "huxs.h"
#include "support/failing_malloc.h"
#include "support/image.h"
#include "support/order.h"

namespace hux::test {
namespace {

struct Form {
  std::string name;
  int bytes, channels, colours;
  HuxStatus (*call)(const void*, int, const void*, int, HuxiSize, Hux32f*);
  HuxStatus (*mean)(const void*, int, HuxiSize, Hux64f*);
};

#define FORM(types, t, l, c, p, ...)                                                                      \
  Form {                                                                                                  \
#types "_" #l, sizeof(Hux##t), c, p,                                                                    \
       [](const void* a, int aStep, const void* b, int bStep, HuxiSize roi, Hux32f* q) {                       \
         return huxiQualityIndex_##types##_##l##R(static_cast<const Hux##t*>(a), aStep,                        \
                                                  static_cast<const Hux##t*>(b), bStep, roi, q);               \
       },                                                                                                      \
       [](const void* a, int step, HuxiSize roi, Hux64f* m) {                                                  \
         return huxiMean_##t##_##l##R(static_cast<const Hux##t*>(a), step, roi, m __VA_OPT__(, ) __VA_ARGS__); \
       } \
  }
const Form kForms[] = {FORM(8u32f, 8u, C1, 1, 1),
                       FORM(8u32f, 8u, C3, 3, 3),
                       FORM(8u32f, 8u, AC4, 4, 3),
                       FORM(32f, 32f, C1, 1, 1, huxHintNone),
                       FORM(32f, 32f, C3, 3, 3, huxHintNone),
                       FORM(32f, 32f, AC4, 4, 3, huxHintNone)};

Image makeImage(Rng& rng, const Form& f, HuxiSize size) {
  Image image(rng, size.width, size.height, f.bytes * f.channels, Place(between(rng, 0, 2)));
  if (f.bytes == 4) image.fill<Hux32f>([&] { return Hux32f(between(rng, -1000, 9000)) / 7; });
  return image;
}

// A channel, row after row.
std::vector<Hux32f> channelOf(const Form& f, const Image& image, int c) {
  std::vector<Hux32f> all;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      all.push_back(f.bytes == 1 ? Hux32f(image.get<Hux8u>(x, y, c)) : image.get<Hux32f>(x, y, c));
  return all;
}

Hux64f indexOf(Hux64f cov4, Hux64f vars, Hux64f mp, Hux64f mq) { return cov4 * mp * mq / (vars * (mp * mp + mq * mq)); }

// The index of a channel as a team of n computes it.
Hux32f stepped(const Form& f, const Image& a, const Image& b, int c, int n) {
  Hux64f mp[3], mq[3];
  f.mean(a.bytes(), a.step(), a.size(), mp), f.mean(b.bytes(), b.step(), b.size(), mq);
  auto p = channelOf(f, a, c), q = channelOf(f, b, c);
  const int len = a.width(), share = a.height() / n;
  Hux32f cov = 0, varP = 0, varQ = 0;
  for (int t = 0; t < n; ++t) {
    Hux32f own[3] = {}, dot, norm[2];
    for (int y = t * share; y < (t == n - 1 ? a.height() : (t + 1) * share); ++y) {
      Hux32f *rowP = p.data() + y * len, *rowQ = q.data() + y * len;
      huxsSubC_32f_I(Hux32f(mp[c]), rowP, len), huxsSubC_32f_I(Hux32f(mq[c]), rowQ, len);
      huxsDotProd_32f(rowP, rowQ, len, &dot);
      huxsNorm_L2_32f(rowP, len, &norm[0]), huxsNorm_L2_32f(rowQ, len, &norm[1]);
      own[0] += dot, own[1] += norm[0] * norm[0], own[2] += norm[1] * norm[1];
    }
    cov += own[0], varP += own[1], varQ += own[2];
  }
  return Hux32f(indexOf(cov * 4.0f, varP + varQ, mp[c], mq[c]));
}

Hux64f defined(const Form& f, const Image& a, const Image& b, int c) {
  const auto p = channelOf(f, a, c), q = channelOf(f, b, c);
  const Hux64f mp = std::accumulate(p.begin(), p.end(), 0.0) / Hux64f(p.size());
  const Hux64f mq = std::accumulate(q.begin(), q.end(), 0.0) / Hux64f(q.size());
  Hux64f cov = 0, vars = 0;
  for (std::size_t i = 0; i < p.size(); ++i)
    cov += (p[i] - mp) * (q[i] - mq), vars += (p[i] - mp) * (p[i] - mp) + (q[i] - mq) * (q[i] - mq);
  return indexOf(4 * cov, vars, mp, mq);
}

bool alike(Hux32f a, Hux32f b) { return std::memcmp(&a, &b, sizeof a) == 0 || (a != a && b != b); }

TEST(QualityIndex, EveryTeamAndShape) {
  Rng rng(1);
  const Hux32u before = huxGetThreadCount();
  for (const Form& f : kForms)
    for (int width = 1; width < 150; width += between(rng, 1, 9)) {
      const Image a = makeImage(rng, f, {width, between(rng, 1, 9)});
      const Image other = makeImage(rng, f, a.size());
      const Image& b = width % 4 == 3 ? a : other;  // an image is quite like itself
      const Image keptA = a, keptB = b;
      for (int team : {1, 2, 3, 7}) {
        huxSetThreadCount(Hux32u(team));
        Hux32f q[4] = {9, 9, 9, 9};
        ASSERT_EQ(f.call(a.bytes(), a.step(), b.bytes(), b.step(), a.size(), q), huxStsOk);
        for (int c = 0; c < f.colours; ++c) {
          bool met = false;  // a runtime may grant a smaller team
          for (int n = team; n >= 1 && !met; --n) met = alike(q[c], stepped(f, a, b, c, n));
          ASSERT_TRUE(met) << f.name << ", channel " << c << " of " << width << " x " << a.height() << ": " << q[c];
          if (a.width() * a.height() > 1) {
            ASSERT_NEAR(q[c], defined(f, a, b, c), 1e-4) << f.name;
          } else {
            ASSERT_TRUE(std::isnan(q[c]));
          }
        }
        ASSERT_EQ(q[f.colours], 9);
      }
      ASSERT_TRUE(same(a, keptA) && same(b, keptB));
    }
  huxSetThreadCount(before);
}

TEST(QualityIndex, ChecksInOrderAndMemory) {
  Rng rng(2);
  const Image image(rng, 8, 4, 16);
  for (const Form& f : kForms) {
    SCOPED_TRACE(f.name);
    const void *a = image.bytes(), *b = a;
    auto* q = reinterpret_cast<Hux32f*>(image.bytes(0, 1));
    int aStep = 16, bStep = 16;
    HuxiSize roi = {1, 1};
    const auto call = [&] { return f.call(a, aStep, b, bStep, roi, q); };
    CheckOrder order(call);
    order.breaks(huxStsNullPtr, a, nullptr).breaks(huxStsNullPtr, b, nullptr).breaks(huxStsNullPtr, q, nullptr);
    order.breaks(huxStsBadSize, roi.width, 0).breaks(huxStsBadSize, roi.height, -1);
    order.breaks(huxStsBadStep, aStep, 0).breaks(huxStsBadStep, bStep, -5);
    order.run(image);

    const Image before = image;
    const int blocks = liveBlocks();
    int failures = 0;
    walkAllocationFailures(call, [&](HuxStatus s) {
      ++failures;
      EXPECT_EQ(s, huxStsNoMem);
      EXPECT_TRUE(same(image, before));
    });
    EXPECT_GT(failures, 0);
    EXPECT_EQ(liveBlocks(), blocks);
  }
}

}  // namespace
}  // namespace hux::test
