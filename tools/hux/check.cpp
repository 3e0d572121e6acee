#include "check.h"

#include <algorithm>
#include <cctype>
#include <cinttypes>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <map>
#include <set>
#include <sstream>

#include "about.h"
#include "caller.h"

namespace hux::tool {
namespace {

// A size that depends on how many threads the machine may start.
bool isForAllThreads(const Function& function) { return !std::strcmp(function.name, "huxiFilterWienerGetBufferSize"); }

// Functions without pixels, called one by one.
std::uint64_t digestByHand(const Function& function) {
  Digest digest;
  const Any address = function.address;
  const auto is = [&function](const char* operation) { return !std::strcmp(function.operation, operation); };
  const auto allocated = [&digest](void* memory) {
    digest.add(memory != nullptr);
    digest.add(reinterpret_cast<std::uintptr_t>(memory) % 32);
    return memory;
  };
  if (is("Malloc") && function.own == 0 && function.name[3] == 'i') {
    const auto allocate = reinterpret_cast<void* (*)(int, int, int*)>(address);
    for (const HuxiSize size : {HuxiSize{1, 1}, {7, 3}, {33, 2}, {1000, 10}, {0, 3}, {3, -1}, {1 << 29, 1 << 29}}) {
      int step = -7;
      huxiFree(allocated(allocate(size.width, size.height, &step)));
      digest.add(static_cast<std::uint64_t>(step));
    }
    digest.add(allocate(3, 3, nullptr) == nullptr);
  } else if (is("Malloc")) {
    for (const int length : {1, 7, 1000, 0, -4}) huxsFree(allocated(reinterpret_cast<void* (*)(int)>(address)(length)));
  } else if (is("Free")) {
    const auto free = reinterpret_cast<void (*)(void*)>(address);
    free(nullptr);
    int step;
    free(huxiMalloc_8u_C1(9, 9, &step));
    free(huxsMalloc_8u(9));
    digest.add(1);
  } else if (is("GetLibVersion")) {
    const HuxLibraryVersion* version = huxiGetLibVersion();
    digest.add(version->libraryName, std::strlen(version->libraryName));
    digest.add(version->versionText != nullptr && version->buildDateText != nullptr);
  } else if (is("SetThreadCount") || is("GetThreadCount")) {
    const Hux32u before = huxGetThreadCount();
    for (const Hux32u count : {3u, 0u, 5000u}) {
      huxSetThreadCount(count);
      digest.add(huxGetThreadCount());
    }
    huxSetThreadCount(before);
  } else if (isForAllThreads(function)) {
    const auto size = [&digest](HuxiSize roi, HuxiSize mask, int channels) {
      int bytes = 14;  // as a call leaves it that fails
      digest.add(static_cast<std::uint64_t>(huxiFilterWienerGetBufferSize(roi, mask, channels, &bytes)));
      return bytes - 15;
    };
    // The least size stands for the number of threads: the others are counted in halves of it.
    const int least = std::max(size({1, 1}, {2, 2}, 1), 1);
    for (const int channels : {1, 3, 4}) {
      for (const HuxiSize roi : {HuxiSize{1, 1}, {3, 7}, {33, 2}, {100, 45}}) {
        for (const HuxiSize mask : {HuxiSize{2, 2}, {3, 9}, {16, 5}}) {
          const int bytes = 2 * size(roi, mask, channels);
          digest.add(static_cast<std::uint64_t>(bytes / least));
          digest.add(static_cast<std::uint64_t>(bytes % least));
        }
      }
    }
    for (const int wrong : {size({0, 1}, {1, 2}, 2), size({1, 1}, {1, 2}, 2), size({1, 1}, {1, 2}, 4)})
      digest.add(static_cast<std::uint64_t>(wrong));
    digest.add(static_cast<std::uint64_t>(huxiFilterWienerGetBufferSize({0, 1}, {1, 1}, 2, nullptr)));
  } else {
    std::fprintf(stderr, "hux: nobody knows how to call %s\n", function.name);
  }
  return digest.value();
}

class Check {
 public:
  explicit Check(const CheckOptions& options) : options_(options) {}

  std::uint64_t digest(const Function& function) {
    if (function.byHand || isForAllThreads(function)) return digestByHand(function);
    Digest all;
    const Argument* arguments = kArguments + function.firstArgument;
    for (int call = 0; call < function.calls; ++call) add(all, function, {call, {-1, -1}, {0, 0}});
    for (int i = 0; i < function.own; ++i) {
      const int ways = Caller::breaks(function, arguments[i]);
      for (int how = 0; how < ways; ++how) add(all, function, {0, {i, -1}, {how, 0}});
      // With something else wrong as well: which of the two is told first.
      for (int j = i + 1; ways && j < function.own; ++j)
        if (Caller::breaks(function, arguments[j])) add(all, function, {0, {i, j}, {0, 0}});
    }
    return all.value();
  }

  long calls() const { return calls_; }

 private:
  void add(Digest& all, const Function& function, const Plan& plan) {
    if (options_.verbose) std::fflush(stdout);
    const std::uint64_t digest = caller_.run(function, plan);
    all.add(digest);
    ++calls_;
    if (options_.verbose) {
      std::printf("  %016" PRIx64 " %-20s %s\n", digest, nameOf(caller_.status()), caller_.arguments().c_str());
    }
  }

  const CheckOptions& options_;
  Arena arena_;
  Caller caller_{arena_};
  long calls_ = 0;
};

bool contains(std::string text, std::string part) {
  for (std::string* s : {&text, &part})
    for (char& c : *s) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return text.find(part) != std::string::npos;
}

std::map<std::string, std::string> readList(const std::string& file) {
  std::map<std::string, std::string> list;
  std::ifstream in(file);
  for (std::string line; std::getline(in, line);) {
    std::istringstream words(line);
    std::string name, digest;
    if (words >> name >> digest && name[0] != '#') list[name] = digest;
  }
  return list;
}

}  // namespace

int uncovered() {
  int count = 0;
  for (int i = 0; i < kFunctionCount; ++i) {
    if (kFunctions[i].covered) continue;
    std::printf("%s\n", kFunctions[i].name);
    ++count;
  }
  std::printf("hux: %d functions, %d of them without rules\n", kFunctionCount, count);
  return count ? 1 : 0;
}

int check(const CheckOptions& options) {
  const auto list = options.write ? std::map<std::string, std::string>() : readList(options.list);
  if (!options.write && list.empty()) {
    std::fprintf(stderr, "hux: no list of digests in '%s'\n", options.list.c_str());
    return 2;
  }
  std::string written =
      "# What every function of hux makes of fixed data: a digest of its results, of all bytes around them and of the\n"
      "# statuses of wrong calls. Written by `hux check --write`, read by `hux check`. team=1: sums of floats that "
      "begin\n"
      "# anew with each thread; computed by one.\n";
  const Hux32u threads = options.threads ? static_cast<Hux32u>(options.threads) : huxGetThreadCount();
  Check check(options);
  std::set<std::string> known;
  int checked = 0, different = 0, without = 0, unknown = 0;
  for (int i = 0; i < kFunctionCount; ++i) {
    const Function& function = kFunctions[i];
    known.insert(function.name);
    if (!contains(function.name, options.only) && !contains(function.family, options.only)) continue;
    if (!function.covered) {
      ++without;
      continue;
    }
    if (options.verbose) std::printf("%s\n", function.name);
    huxSetThreadCount(function.sums ? 1 : threads);
    char digest[17];
    std::snprintf(digest, sizeof digest, "%016" PRIx64, check.digest(function));
    ++checked;
    written += std::string(function.name) + ' ' + digest + (function.sums ? " team=1\n" : "\n");
    if (options.write) continue;
    const auto expected = list.find(function.name);
    if (expected == list.end()) {
      std::printf("%s is not in the list (%s)\n", function.name, digest);
      ++unknown;
    } else if (expected->second != digest) {
      std::printf("%s differs: %s, the list says %s\n", function.name, digest, expected->second.c_str());
      ++different;
    }
  }
  huxSetThreadCount(threads);
  for (const auto& [name, digest] : list) {
    if (options.only.empty() && !known.count(name)) {
      std::printf("%s is in the list and not in the library\n", name.c_str());
      ++unknown;
    }
  }
  if (options.write) {
    std::ofstream out(options.list);
    out << written;
    if (!out.flush()) {
      std::fprintf(stderr, "hux: cannot write '%s'\n", options.list.c_str());
      return 2;
    }
    std::printf("hux: %d digests written to %s\n", checked, options.list.c_str());
    return 0;
  }
  std::printf("hux check: %d functions, %ld calls: ", checked, check.calls());
  if (different || unknown)
    std::printf("%d differ, %d are in the list or the library alone", different, unknown);
  else
    std::printf("all as in the list");
  if (without) std::printf("; %d have no rules and were not called", without);
  std::printf("\n  list       %s\n%s", options.list.c_str(), about().c_str());
  return different || unknown ? 1 : 0;
}

}  // namespace hux::tool
