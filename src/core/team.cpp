#include "core/team.h"

#include <omp.h>

#include <algorithm>
#include <cstdint>
#include <memory>

#include "core/check.h"
#include "core/scratch.h"
#include "huxcore.h"

namespace hux {
namespace {

// Slices are padded to whole cache lines, so that threads do not write to each other's.
constexpr std::size_t kLine = 64;
std::size_t padded(std::size_t bytes) { return (bytes + kLine - 1) / kLine * kLine; }

// Runtimes abort the process when they cannot create the threads asked for, so an absurd count is cut to a plain large
// one.
constexpr int kMostThreads = 1024;
int requestedTeam(int most = kMostThreads) {
  return int(std::clamp<Hux32u>(threads_omp_of_n_hux, 1, Hux32u(std::clamp(most, 1, kMostThreads))));
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

int maxTeam() { return omp_get_max_threads(); }

void splitRows(Index height, Callable<void(RowRange)> body) {
  splitRows(height, kMostThreads, nullptr, 0, [&](RowRange share, std::byte*) { body(share); });
}

void splitRows(Index height, int mostThreads, std::byte* slices, std::size_t sliceBytes,
               Callable<void(RowRange, std::byte*)> body) {
  int n = 1;
#pragma omp parallel num_threads(requestedTeam(mostThreads)) shared(n)
  {
#pragma omp master
    n = omp_get_num_threads();
#pragma omp barrier
    const int t = omp_get_thread_num();
    const RowRange share = evenShare(height, n, t);
    if (share.count > 0) body(share, slices + sliceBytes * std::size_t(t));
  }
}

HuxStatus loopRows(Index height, bool fork, std::size_t sliceBytes, Callable<void(RowRange, std::byte*)> body) {
  RegionBlock block;
  const std::size_t stride = padded(sliceBytes);
  if (!fork) {
    if (stride && !block.allocate(stride)) return huxStsNoMem;
    body({0, height}, block.get());
    return huxStsOk;
  }
  int n = 1;
  bool failed = false;
#pragma omp parallel num_threads(requestedTeam()) shared(n, failed, block)
  {
#pragma omp master
    {
      n = omp_get_num_threads();
      failed = stride && !block.allocate(stride * std::size_t(n));
    }
#pragma omp barrier
    const int t = omp_get_thread_num();
    const RowRange share = staticShare(height, n, t);
    if (!failed && share.count > 0) body(share, block.get() + stride * std::size_t(t));
  }
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
#pragma omp parallel num_threads(requestedTeam()) shared(block, n, tiles, status, slots, slices)
  {
#pragma omp master
    {
      n = omp_get_num_threads();
      if (std::byte* memory = block.allocate(shared + (sizeof(Slot) + stride) * std::size_t(n))) {
        slots = reinterpret_cast<Slot*>(memory + shared);
        slices = memory + shared + sizeof(Slot) * std::size_t(n);
        std::uninitialized_default_construct_n(slots, n);
        status = prepare(memory, tiles);
      } else {
        status = huxStsNoMem;
      }
    }
#pragma omp barrier
    if (status == huxStsOk) {
      const int t = omp_get_thread_num();
      for (Index tile = t; tile < tiles; tile += n)
        slots[t].status = std::min(slots[t].status, body(tile, block.get(), slices + stride * std::size_t(t)));
    }
  }
  if (status != huxStsOk) return status;
  for (int t = 0; t < n; ++t) status = std::min(status, slots[t].status);
  return status;
}

HuxStatus sumRows(Index height, std::size_t partialBytes, Callable<void(RowRange, std::byte*)> body,
                  Callable<void(const std::byte*)> add) {
  RegionBlock block;
  const std::size_t stride = padded(partialBytes);
  int n = 1;
#pragma omp parallel num_threads(requestedTeam()) shared(block, n)
  {
#pragma omp master
    {
      n = omp_get_num_threads();
      block.allocate(stride * std::size_t(n));
    }
#pragma omp barrier
    const int t = omp_get_thread_num();
    if (block.get()) body(evenShare(height, n, t), block.get() + stride * std::size_t(t));
  }
  if (!block.get()) return huxStsNoMem;
  for (int t = 0; t < n; ++t) add(block.get() + stride * std::size_t(t));
  return huxStsOk;
}

void sumRows(Index height, int mostThreads, std::byte* partials, std::size_t partialBytes,
             Callable<void(RowRange, std::byte*)> body, Callable<void(const std::byte*)> add) {
  int n = 1;
#pragma omp parallel num_threads(requestedTeam(mostThreads)) shared(n)
  {
#pragma omp master
    n = omp_get_num_threads();
#pragma omp barrier
    const int t = omp_get_thread_num();
    body(evenShare(height, n, t), partials + partialBytes * std::size_t(t));
  }
  for (int t = 0; t < n; ++t) add(partials + partialBytes * std::size_t(t));
}

}  // namespace hux
