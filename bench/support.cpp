// Runs the cases, and prints them either as Google Benchmark does or, with --table, as the rows of docs/performance.md.
#include "support.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <iostream>
#include <map>
#include <random>

#include "huxcore.h"

namespace bench {
namespace {

std::vector<Case>& cases() {
  static std::vector<Case> all;
  return all;
}

constexpr HuxiSize kSmall = {512, 512};

// The smallest usual image whose operands are together at least 96 MiB, three times a large last-level cache.
HuxiSize largeSize(const Case& c) {
  HuxiSize size = {3840, 2160};
  while (std::int64_t(size.width) * size.height * c.pixelBytes < (96 << 20)) size = {size.width * 2, size.height * 2};
  if (c.shape == Shape::InPlaceSquare) size.width = size.height;
  return size;
}

// The sizes of a case: of its table in the cache, or in memory. None where it has a size of its own that belongs to the
// other.
std::vector<HuxiSize> sizes(const Case& c, bool large) {
  if (c.only.width == 0) return {large ? largeSize(c) : kSmall};
  const bool isLarge = std::int64_t(c.only.width) * c.only.height * c.pixelBytes > (1 << 20);
  return isLarge == large ? std::vector{c.only} : std::vector<HuxiSize>();
}

// What a case is timed against besides its peer: the C library moving as many bytes in one piece.
enum class Limit { None, Memcpy, Memset };
Limit limitOf(Shape shape) {
  if (hasMask(shape)) return Limit::None;
  return shape == Shape::Fill || shape == Shape::FillRegion ? Limit::Memset : Limit::Memcpy;
}

// The operands of the last case used: both sides, all repetitions and the limit run on the same memory.
struct Current {
  const Case* owner = nullptr;
  HuxiSize size = {0, 0};
  Job job;
  std::string fault;
};

bool sameWork(Job& job) {
  job.refill();
  job.hux();
  const std::vector<std::uint8_t> ours(job.result.begin(), job.result.end());
  job.refill();
  job.peer();
  return std::ranges::equal(ours, job.result);
}

Current& current(const Case& c, HuxiSize size) {
  static Current now;
  if (now.owner != &c || now.size.width != size.width) {
    now = {};
    now = {&c, size, c.make(size), ""};
    if (!c.peerName.empty() && !sameWork(now.job)) now.fault = "the peer's result differs";
  }
  return now;
}

void measure(benchmark::State& state, const std::function<void()>& work, std::int64_t bytes) {
  for (auto _ : state) {
    work();
    benchmark::ClobberMemory();
  }
  state.SetBytesProcessed(std::int64_t(state.iterations()) * bytes);
}

void timeLimit(benchmark::State& state, Limit limit, std::int64_t bytes) {
  static std::vector<std::uint8_t> from, to;
  const std::size_t n = std::size_t(limit == Limit::Memcpy ? bytes / 2 : bytes);
  if (to.size() != n) {
    to.clear(), from.clear(), to.shrink_to_fit(), from.shrink_to_fit();
    to.resize(n, 1), from.resize(limit == Limit::Memcpy ? n : 0, 2);
  }
  const auto work = [&] {
    if (limit == Limit::Memcpy)
      std::memcpy(to.data(), from.data(), n);
    else
      std::memset(to.data(), 3, n);
  };
  measure(state, work, bytes);
}

constexpr const char* kOurs = "hux";
constexpr const char* kPeer = "peer";
constexpr const char* kLimit = "limit";

// The sides take turns, round after round, so that what else goes on in the machine meets them alike.
void registerCase(const Case& c, int rounds) {
  for (bool large : {false, true})
    for (const HuxiSize size : sizes(c, large)) {
      const std::string stem = c.name + "/" + std::to_string(size.width) + "x" + std::to_string(size.height) + "/";
      const auto side = [&, size](const char* who, std::function<void()> Job::*work) {
        benchmark::RegisterBenchmark((stem + who).c_str(), [&c, size, work](benchmark::State& state) {
          Current& now = current(c, size);
          if (!now.fault.empty()) return state.SkipWithError(now.fault.c_str());
          measure(state, now.job.*work, now.job.bytes);
        });
      };
      for (int round = 0; round < rounds; ++round) {
        side(kOurs, &Job::hux);
        if (!c.peerName.empty()) side(kPeer, &Job::peer);
        if (const Limit limit = limitOf(c.shape); limit != Limit::None)
          benchmark::RegisterBenchmark((stem + kLimit).c_str(), [&c, size, limit](benchmark::State& state) {
            timeLimit(state, limit, current(c, size).job.bytes);
          });
      }
    }
}

std::string duration(double ns) {
  char text[32];
  if (ns < 1e6)
    std::snprintf(text, sizeof text, "%.1f µs", ns / 1e3);
  else
    std::snprintf(text, sizeof text, "%.2f ms", ns / 1e6);
  return text;
}
std::string ratio(double value) {
  char text[32];
  std::snprintf(text, sizeof text, "%.2f", value);
  return text;
}

// Medians of processor time over the repetitions, a table for each of the two sizes.
class Table : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context&) override { return true; }

  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      const std::string& name = run.run_name.function_name;
      if (run.error_occurred) {
        std::cerr << name << ": " << run.error_message << '\n';
        failed = true;
        continue;
      }
      const double ns = run.GetAdjustedCPUTime();
      const std::size_t slash = name.rfind('/');
      Times& t = measured_[name.substr(0, slash)][name.substr(slash + 1)];
      t.ns.push_back(ns);
      t.bytes = run.counters.at("bytes_per_second") * ns * 1e-9;
      std::cerr << name << ' ' << duration(ns) << '\n';
    }
  }

  void Finalize() override {
    print("In the cache", true);
    print("In memory", false);
  }

  bool failed = false;

 private:
  struct Times {
    std::vector<double> ns;
    double bytes;
    double median() {
      std::ranges::nth_element(ns, ns.begin() + std::ptrdiff_t(ns.size() / 2));
      return ns[ns.size() / 2];
    }
  };

  void print(const char* title, bool small) {
    std::cout << "\n### " << title << "\n\n"
              << "| Function | Size | hux | GB/s | Peer | Peer's time | Ratio | Of memcpy |\n"
              << "|---|---|---:|---:|---|---:|---:|---:|\n";
    int compared = 0;
    std::string behind;
    for (const Case& c : cases())
      for (const HuxiSize s : sizes(c, !small)) {
        const std::string size = std::to_string(s.width) + "x" + std::to_string(s.height);
        const auto found = measured_.find(c.name + "/" + size);
        if (found == measured_.end()) continue;
        auto& sides = found->second;
        const auto medianOf = [&](const char* who) { return sides.contains(who) ? sides[who].median() : 0; };
        const double ns = medianOf(kOurs), peer = medianOf(kPeer), limit = medianOf(kLimit);
        const std::string against = peer ? ratio(peer / ns) : "";
        std::cout << "| " << c.name << " | " << size << " | " << duration(ns) << " | " << ratio(sides[kOurs].bytes / ns)
                  << " | " << (peer ? c.peerName : "") << " | " << (peer ? duration(peer) : "") << " | " << against
                  << " | " << (limit ? ratio(limit / ns) : "") << " |\n";
        compared += peer != 0;
        if (peer && peer < ns) behind += (behind.empty() ? "" : "; ") + c.name + " " + against;
      }
    std::cout << "\nOf " << compared << " compared, behind the peer: " << (behind.empty() ? "none" : behind) << ".\n";
  }

  std::map<std::string, std::map<std::string, Times>> measured_;
};

}  // namespace

void add(Case c) { cases().push_back(std::move(c)); }

void fillRandom(std::span<std::uint8_t> bytes, unsigned seed) {
  std::minstd_rand random(seed);
  std::array<std::uint8_t, 65521> block;
  for (auto& b : block) b = std::uint8_t(random() >> 8);
  for (std::size_t at = 0; at < bytes.size(); at += block.size())
    std::memcpy(bytes.data() + at, block.data(), std::min(block.size(), bytes.size() - at));
}

void fillMask(const Image<Hux8u, 1>& mask, HuxiSize patch) {
  for (int y = 0; y < mask.size.height; ++y)
    for (int x = 0; x < mask.size.width; ++x)
      mask.data[std::int64_t(y) * mask.step + x] =
          ((unsigned(x / patch.width) * 2654435761u) ^ (unsigned(y / patch.height) * 2246822519u)) >> 16 & 1 ? 255 : 0;
}

}  // namespace bench

void addCases();  // of the program's room

// --table[=ROUNDS] prints the rows of the documentation; each time is the median of that many rounds.
int main(int argc, char** argv) {
  int rounds = 0;
  const auto own = [&](const std::string arg) {
    if (arg.rfind("--table", 0) != 0) return false;
    rounds = arg.size() > 8 ? std::stoi(arg.substr(8)) : 5;
    return true;
  };
  argc = int(std::remove_if(argv + 1, argv + argc, own) - argv);
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  huxSetThreadCount(1);
#ifdef HUX_BENCH_OPENCV
  cv::setNumThreads(1);
#endif
  addCases();
  for (const bench::Case& c : bench::cases()) bench::registerCase(c, std::max(rounds, 1));
  if (!rounds) return benchmark::RunSpecifiedBenchmarks() == 0;
  bench::Table reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  return reporter.failed;
}
