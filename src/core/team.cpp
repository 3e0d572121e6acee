#include "core/team.h"

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <memory>

#include "core/check.h"
#include "core/scratch.h"
#include "huxcore.h"

#ifdef _OPENMP
#include <omp.h>
#endif
#if defined _OPENMP && !defined _WIN32 && __has_include(<pthread.h>)
#define HUX_FORKS
#include <pthread.h>
#endif
#if __has_include(<sys/single_threaded.h>)
#include <sys/single_threaded.h>
#endif

namespace hux {
namespace {

// Slices are padded to whole cache lines, so that threads do not write to each other's.
constexpr std::size_t kLine = 64;
std::size_t padded(std::size_t bytes) { return (bytes + kLine - 1) / kLine * kLine; }

// Runtimes abort the process when they cannot create the threads asked for, so an absurd count is cut to a plain large
// one.
constexpr int kMostThreads = 1024;
int requestedTeam(int most = kMostThreads) {
  const Hux32u count = std::atomic_ref(threads_omp_of_n_hux).load(std::memory_order_relaxed);
  return int(std::clamp<Hux32u>(count, 1, Hux32u(std::clamp(most, 1, kMostThreads))));
}

// A fork takes along the thread that called it and no other, but the runtime of a child may wait for the team that it
// remembers. So the teams of a child have one thread, unless its parent had only one as well.
#ifdef HUX_FORKS
bool childAlone = false, severalAtFork = true;
void beforeFork() {
#if __has_include(<sys/single_threaded.h>)
  severalAtFork = !__libc_single_threaded;
#endif
}
void inChild() { childAlone = childAlone || severalAtFork; }
// Where there is no memory for it, children are as they would be without.
[[maybe_unused]] const int kRegistered = pthread_atfork(beforeFork, nullptr, inChild);
#else
constexpr bool childAlone = false;
#endif

// The region that all four patterns open: master(n) on its first thread, n being the size of the team, then body(t) on
// each thread t.
template <class Master, class Body>
void region([[maybe_unused]] int threads, Master master, Body body) {
#ifdef _OPENMP
  if (!childAlone) {
#pragma omp parallel num_threads(threads)
    {
#pragma omp master
      master(omp_get_num_threads());
#pragma omp barrier
      body(omp_get_thread_num());
    }
    return;
  }
#endif
  master(1);
  body(0);
}

RowRange evenShare(Index height, int n, int t) {
  const Index rows = height / n, rest = height % n;
  return {t * rows, rows + (t == n - 1 ? rest : 0)};
}

// The contiguous range that a static schedule gives to thread t: the first height % n threads have one row more.
RowRange staticShare(Index height, int n, int t) {
  const Index rows = height / n, more = height % n;
  return {t * rows + std::min<Index>(t, more), rows + (t < more)};
}

// Memory that the master allocates once the team's size is known and that lives until the region has ended. It starts
// on a cache line.
class RegionBlock {
 public:
  RegionBlock() = default;
  ~RegionBlock() { release(block_); }
  RegionBlock(const RegionBlock&) = delete;
  RegionBlock& operator=(const RegionBlock&) = delete;
  std::byte* allocate(std::size_t bytes) {
    block_ = hux::allocate(bytes + kLine - kAlignment);
    return get();
  }
  std::byte* get() const {
    return reinterpret_cast<std::byte*>(padded(reinterpret_cast<std::uintptr_t>(block_)));  // null stays null
  }

 private:
  void* block_ = nullptr;
};

}  // namespace

int maxTeam() {
#ifdef _OPENMP
  return omp_get_max_threads();
#else
  return 1;
#endif
}

void splitRows(Index height, Callable<void(RowRange)> body) {
  splitRows(height, kMostThreads, nullptr, 0, [&](RowRange share, std::byte*) { body(share); });
}

void splitRows(Index height, int mostThreads, std::byte* slices, std::size_t sliceBytes,
               Callable<void(RowRange, std::byte*)> body) {
  int n = 1;
  region(
      requestedTeam(mostThreads), [&](int team) { n = team; },
      [&](int t) {
        const RowRange share = evenShare(height, n, t);
        if (share.count > 0) body(share, slices + sliceBytes * std::size_t(t));
      });
}

HuxStatus loopRows(Index height, bool fork, std::size_t sliceBytes, Callable<void(RowRange, std::byte*)> body) {
  RegionBlock block;
  const std::size_t stride = padded(sliceBytes);
  int n = 1;
  bool failed = false;
  const auto master = [&](int team) {
    n = team;
    failed = stride && !block.allocate(stride * std::size_t(n));
  };
  const auto run = [&](int t) {
    const RowRange share = staticShare(height, n, t);
    if (!failed && share.count > 0) body(share, block.get() + stride * std::size_t(t));
  };
  if (fork)
    region(requestedTeam(), master, run);
  else
    master(1), run(0);
  return failUnless(!failed, huxStsNoMem);
}

HuxStatus runTiles(TilePool pool, Callable<HuxStatus(std::byte*, Index&)> prepare,
                   Callable<HuxStatus(Index, std::byte*, std::byte*)> body) {
  // One block: the shared part, a status for each thread, a slice for each thread, all on cache lines of their own.
  struct alignas(kLine) Slot {
    HuxStatus status = huxStsOk;
  };
  RegionBlock block;
  const std::size_t shared = padded(pool.sharedBytes), stride = padded(pool.sliceBytes);
  int n = 1;
  Index tiles = 0;
  HuxStatus status = huxStsOk;
  Slot* slots = nullptr;
  std::byte* slices = nullptr;
  const auto master = [&](int team) {
    n = team;
    if (std::byte* memory = block.allocate(shared + (sizeof(Slot) + stride) * std::size_t(n))) {
      slots = reinterpret_cast<Slot*>(memory + shared);
      slices = memory + shared + sizeof(Slot) * std::size_t(n);
      std::uninitialized_default_construct_n(slots, n);
      status = prepare(memory, tiles);
    } else {
      status = huxStsNoMem;
    }
  };
  region(requestedTeam(), master, [&](int t) {
    if (status != huxStsOk) return;
    for (Index tile = t; tile < tiles; tile += n)
      slots[t].status = std::min(slots[t].status, body(tile, block.get(), slices + stride * std::size_t(t)));
  });
  if (status != huxStsOk) return status;
  for (int t = 0; t < n; ++t) status = std::min(status, slots[t].status);
  return status;
}

HuxStatus sumRows(Index height, std::size_t partialBytes, Callable<void(RowRange, std::byte*)> body,
                  Callable<void(const std::byte*)> add) {
  RegionBlock block;
  const std::size_t stride = padded(partialBytes);
  int n = 1;
  const auto master = [&](int team) {
    n = team;
    block.allocate(stride * std::size_t(n));
  };
  region(requestedTeam(), master, [&](int t) {
    if (block.get()) body(evenShare(height, n, t), block.get() + stride * std::size_t(t));
  });
  if (!block.get()) return huxStsNoMem;
  for (int t = 0; t < n; ++t) add(block.get() + stride * std::size_t(t));
  return huxStsOk;
}

void sumRows(Index height, int mostThreads, std::byte* partials, std::size_t partialBytes,
             Callable<void(RowRange, std::byte*)> body, Callable<void(const std::byte*)> add) {
  int n = 1;
  region(
      requestedTeam(mostThreads), [&](int team) { n = team; },
      [&](int t) { body(evenShare(height, n, t), partials + partialBytes * std::size_t(t)); });
  for (int t = 0; t < n; ++t) add(partials + partialBytes * std::size_t(t));
}

}  // namespace hux
