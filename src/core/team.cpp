#include "core/team.h"

#include <omp.h>

#include <algorithm>

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
int requestedTeam() { return int(std::clamp<Hux32u>(threads_omp_of_n_hux, 1, 1024)); }

RowRange evenShare(Index height, int n, int t) {
  const Index rows = height / n, rest = height % n;
  return {t * rows, rows + (t == n - 1 ? rest : 0)};
}

// The contiguous range that a static schedule gives to thread t: the first height % n threads have one row more.
RowRange staticShare(Index height, int n, int t) {
  const Index rows = height / n, more = height % n;
  return {t * rows + std::min<Index>(t, more), rows + (t < more)};
}

// Memory that the master allocates once the team's size is known and that lives until the region has ended.
class RegionBlock {
 public:
  RegionBlock() = default;
  ~RegionBlock() { release(block_); }
  RegionBlock(const RegionBlock&) = delete;
  RegionBlock& operator=(const RegionBlock&) = delete;
  std::byte* allocate(std::size_t bytes) { return block_ = static_cast<std::byte*>(hux::allocate(bytes)); }
  std::byte* get() const { return block_; }

 private:
  std::byte* block_ = nullptr;
};

}  // namespace

int maxTeam() { return omp_get_max_threads(); }

void splitRows(Index height, Callable<void(RowRange)> body) {
  int n = 1;
#pragma omp parallel num_threads(requestedTeam()) shared(n)
  {
#pragma omp master
    n = omp_get_num_threads();
#pragma omp barrier
    const RowRange share = evenShare(height, n, omp_get_thread_num());
    if (share.count > 0) body(share);
  }
}

HuxStatus loopRows(Index height, bool fork, std::size_t sliceBytes, Callable<void(RowRange, std::byte*)> body) {
  RegionBlock block;
  const std::size_t stride = padded(sliceBytes);
  if (!fork) {
    if (!block.allocate(stride)) return huxStsNoMem;
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
      failed = !block.allocate(stride * std::size_t(n));
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
  // One block: the shared part, a status word for each thread, a slice for each thread.
  RegionBlock block;
  const std::size_t shared = padded(pool.sharedBytes), stride = padded(pool.sliceBytes);
  int n = 1;
  Index tiles = 0;
  HuxStatus status = huxStsOk;
  HuxStatus* slots = nullptr;
  std::byte* slices = nullptr;
#pragma omp parallel num_threads(requestedTeam()) shared(block, n, tiles, status, slots, slices)
  {
#pragma omp master
    {
      n = omp_get_num_threads();
      const std::size_t words = padded(std::size_t(n) * sizeof(HuxStatus));
      if (std::byte* memory = block.allocate(shared + words + stride * std::size_t(n))) {
        slots = reinterpret_cast<HuxStatus*>(memory + shared);
        slices = memory + shared + words;
        std::fill_n(slots, n, HuxStatus(huxStsOk));
        status = prepare(memory, tiles);
      } else {
        status = huxStsNoMem;
      }
    }
#pragma omp barrier
    if (status == huxStsOk) {
      const int t = omp_get_thread_num();
      for (Index tile = t; tile < tiles; tile += n)
        slots[t] = std::min(slots[t], body(tile, block.get(), slices + stride * std::size_t(t)));
    }
  }
  if (status != huxStsOk) return status;
  return *std::min_element(slots, slots + n);
}

HuxStatus sumRows(Index height, std::size_t partialBytes, std::byte* buffer, Callable<void(RowRange, std::byte*)> body,
                  Callable<void(const std::byte*)> add) {
  RegionBlock block;
  std::byte* partials = buffer;
  int n = 1;
#pragma omp parallel num_threads(requestedTeam()) shared(block, partials, n)
  {
#pragma omp master
    {
      n = omp_get_num_threads();
      if (!partials) partials = block.allocate(partialBytes * std::size_t(n));
    }
#pragma omp barrier
    const int t = omp_get_thread_num();
    if (partials) body(evenShare(height, n, t), partials + partialBytes * std::size_t(t));
  }
  if (!partials) return huxStsNoMem;
  for (int t = 0; t < n; ++t) add(partials + partialBytes * std::size_t(t));
  return huxStsOk;
}

}  // namespace hux
