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

}  // namespace
}  // namespace hux::tool
