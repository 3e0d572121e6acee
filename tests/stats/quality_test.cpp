// QualityIndex: step by step in the precision of each step, for every team, and beside its definition.
#include <cmath>
#include <numeric>

#include "huxcore.h"
#include "huxi_stats.h"
#include "huxs.h"
#include "stats/reductions.h"
#include "support/failing_malloc.h"

namespace hux::test {
namespace {

struct Member : Form {
  TwoFn* call;
  OneFn* mean;
};
#define MEMBER(types, t, l) \
  Member{HUX_FORM(t, l), as<TwoFn, huxiQualityIndex_##types##_##l##R>, as<OneFn, huxiMean_##t##_##l##R>},
#define MEMBERS(_, l) MEMBER(8u32f, 8u, l) MEMBER(32f, 32f, l)
const Member kMembers[] = {HUX_STAMP(MEMBERS, (_), (C1, C3, AC4))};

Image makeImage(Rng& rng, const Member& f, HuxiSize size) {
  const Image image(rng, size.width, size.height, f.pixelBytes(), Place(between(rng, 0, 2)));
  if (f.elementBytes == 4) image.fill<Hux32f>([&] { return Hux32f(between(rng, -1000, 9000)) / 7; });
  return image;
}

// A channel, row after row.
std::vector<Hux32f> channelOf(const Member& f, const Image& image, int c) {
  std::vector<Hux32f> all;
  forPixels(image.size(),
            [&](int x, int y) { all.push_back(Hux32f(numberAt(f.type, image.bytes(x, y) + c * f.elementBytes))); });
  return all;
}

Hux64f indexOf(Hux64f cov4, Hux64f vars, Hux64f mp, Hux64f mq) { return cov4 * mp * mq / (vars * (mp * mp + mq * mq)); }

// The index of a channel as a team of n computes it.
Hux32f stepped(const Member& f, const Image& a, const Image& b, int c, int n) {
  Hux64f mp[3], mq[3];
  f.mean(a.bytes(), a.step(), a.size(), mp, 0), f.mean(b.bytes(), b.step(), b.size(), mq, 0);
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

Hux64f defined(const Member& f, const Image& a, const Image& b, int c) {
  const auto p = channelOf(f, a, c), q = channelOf(f, b, c);
  const Hux64f mp = std::accumulate(p.begin(), p.end(), 0.0) / Hux64f(p.size());
  const Hux64f mq = std::accumulate(q.begin(), q.end(), 0.0) / Hux64f(q.size());
  Hux64f cov = 0, vars = 0;
  for (std::size_t i = 0; i < p.size(); ++i)
    cov += (p[i] - mp) * (q[i] - mq), vars += (p[i] - mp) * (p[i] - mp) + (q[i] - mq) * (q[i] - mq);
  return indexOf(4 * cov, vars, mp, mq);
}

TEST(QualityIndex, EveryTeamAndShape) {
  Rng rng(1);
  for (const Member& f : kMembers)
    for (int width = 1; width < 150; width += between(rng, 1, 9)) {
      const Image a = makeImage(rng, f, {width, between(rng, 1, 9)});
      const Image other = makeImage(rng, f, a.size());
      const Image& b = width % 4 == 3 ? a : other;  // an image is quite like itself
      const Image keptA = a, keptB = b;
      for (int team : {1, 2, 3, 7}) {
        huxSetThreadCount(Hux32u(team));
        Hux32f q[4] = {9, 9, 9, 9};
        ASSERT_EQ(f.call(a.bytes(), a.step(), b.bytes(), b.step(), a.size(), q, 0), huxStsOk);
        for (int c = 0; c < f.layout.touched; ++c) {
          bool met = false;  // a runtime may grant a smaller team
          for (int n = team; n >= 1 && !met; --n) met = alike<Hux32f>(q[c], stepped(f, a, b, c, n));
          ASSERT_TRUE(met) << f.name << ", channel " << c << " of " << width << " x " << a.height() << ": " << q[c];
          if (a.width() * a.height() > 1) {
            ASSERT_NEAR(q[c], defined(f, a, b, c), 1e-4) << f.name;
          } else {
            ASSERT_TRUE(std::isnan(q[c]));
          }
        }
        ASSERT_EQ(q[f.layout.touched], 9);
      }
      ASSERT_TRUE(same(a, keptA) && same(b, keptB));
    }
}

TEST(QualityIndex, ChecksInOrderAndMemory) {
  Rng rng(2);
  const Image image(rng, 8, 4, 16);
  for (const Member& f : kMembers) {
    SCOPED_TRACE(f.name);
    Arguments a(image);
    a.d = image.bytes(0, 1);
    const auto call = [&] { return f.call(a.a, a.aStep, a.b, a.bStep, a.roi, a.d, 0); };
    CheckOrder(call).in(a, "abdzAB").run(image);
    EXPECT_GT(failuresOf(call, image), 0);
  }
}

}  // namespace
}  // namespace hux::test
