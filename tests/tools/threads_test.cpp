// Every function from several threads at once, while the thread count changes: each gets what it would get alone.
#include <gtest/gtest.h>

#include <thread>
#include <vector>

#include "caller.h"
#include "huxcore.h"

namespace hux::tool {
namespace {

// The digest of the last legal call, of those that lists give the largest, which are shared out. Sums of floats that
// depend on the team count for nothing but their status.
std::uint64_t digestOf(Caller& caller, const Function& function) {
  const std::uint64_t digest = caller.run(function, {function.calls - 1, {-1, -1}, {0, 0}});
  return function.sums ? static_cast<std::uint64_t>(caller.status()) : digest;
}

TEST(Threads, EveryFunctionFromSeveralAtOnce) {
  std::vector<const Function*> functions;
  for (int i = 0; i < kFunctionCount; ++i)
    if (kFunctions[i].covered && !kFunctions[i].byHand) functions.push_back(kFunctions + i);
  Arena arena;
  Caller caller(arena);
  std::vector<std::uint64_t> alone;
  for (const Function* function : functions) alone.push_back(digestOf(caller, *function));

  // Two go through the same functions side by side, one through others.
  std::vector<std::thread> threads;
  for (std::size_t start : {std::size_t{0}, std::size_t{0}, functions.size() / 2}) {
    threads.emplace_back([&, start] {
      Arena own;
      Caller caller(own);
      for (std::size_t k = 0; k < functions.size(); ++k) {
        const std::size_t i = (start + k) % functions.size();
        if (start) huxSetThreadCount(static_cast<Hux32u>(1 + k % 3));
        EXPECT_EQ(digestOf(caller, *functions[i]), alone[i]) << functions[i]->name;
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
}

// Each way to share work out, on one source that is large enough for it.
TEST(Threads, LargeImagesAreSharedOut) {
  const HuxiSize size = {500, 300}, kernelSize = {20, 18};
  Random random(7);
  std::vector<Hux8u> src(std::size_t(size.width) * std::size_t(size.height));
  for (Hux8u& e : src) e = static_cast<Hux8u>(random.next());
  std::vector<Hux32f> floats(src.begin(), src.end());
  const std::vector<Hux32s> taps(25, 1);
  const int step = size.width, floatStep = 4 * step;
  const auto results = [&](bool changing) {
    std::vector<Hux8u> bytes(src.size()), buffer;
    std::vector<Hux32f> wide(src.size() * 2);
    Digest digest;
    const HuxiSize inner = {480, 280};
    const Hux8u* at = src.data() + 10 * step + 10;
    int bytesNeeded = 0;
    huxiFilterWienerGetBufferSize(inner, {5, 4}, 1, &bytesNeeded);
    buffer.resize(static_cast<std::size_t>(bytesNeeded));
    for (Hux32u round = 0; round < 4; ++round) {
      if (changing) huxSetThreadCount(2 + round);
      Hux32f noise = 0.1f, quality = 0;
      EXPECT_EQ(huxiFilterBox_8u_C1R(at, step, bytes.data(), step, inner, {7, 5}, {3, 2}), huxStsOk);
      EXPECT_EQ(huxiFilter_8u_C1R(at, step, bytes.data(), step, inner, taps.data(), {5, 5}, {2, 2}, 25), huxStsOk);
      digest.add(bytes.data(), bytes.size());
      EXPECT_EQ(huxiFilterWiener_8u_C1R(at, step, bytes.data(), step, inner, {5, 4}, {2, 2}, &noise, buffer.data()),
                huxStsOk);
      EXPECT_EQ(huxiQualityIndex_8u32f_C1R(at, step, at + 1, step, inner, &quality), huxStsOk);
      EXPECT_EQ(huxiConvFull_32f_C1R(floats.data(), floatStep, {200, 150}, floats.data(), floatStep, kernelSize,
                                     wide.data(), floatStep),
                huxStsOk);
      EXPECT_EQ(
          huxiCrossCorrFull_NormLevel_8u32f_C1R(at, step, {200, 150}, at, step, kernelSize, wide.data(), floatStep),
          huxStsOk);
      digest.add(wide.data(), wide.size() * sizeof(Hux32f));
    }
    return digest.value();
  };
  const std::uint64_t alone = results(false);
  std::vector<std::thread> threads;
  for (const bool changing : {true, false, false})
    threads.emplace_back([&, changing] { EXPECT_EQ(results(changing), alone); });
  for (std::thread& thread : threads) thread.join();
}

}  // namespace
}  // namespace hux::tool
