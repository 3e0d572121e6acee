// The four ways in which work is divided among threads. A family supplies bodies; OpenMP stays behind these functions.
//
// Each opens one parallel region with a request for threads_omp_of_n_hux threads; the runtime may grant fewer, down to
// one, and the bodies must not depend on the number. In each region the master first does the shared work; the others
// wait at the region's only barrier. Bodies write to disjoint rows, tiles and slices, so there are no locks. Bodies
// call only serial functions of the library: regions never nest. All checks of arguments come before.
#pragma once

#include <cstddef>
#include <memory>
#include <utility>

#include "core/layout.h"

namespace hux {

// A callable by reference, for the length of a call.
template <class Signature>
class Callable;
template <class R, class... A>
class Callable<R(A...)> {
 public:
  template <class F>
  Callable(F&& f)  // NOLINT: implicit, so that a lambda can be passed as it stands
      : object_(const_cast<void*>(static_cast<const void*>(std::addressof(f)))),
        call_([](void* object, A... args) -> R {
          return (*static_cast<std::remove_reference_t<F>*>(object))(args...);
        }) {}
  R operator()(A... args) const { return call_(object_, args...); }

 private:
  void* object_;
  R (*call_)(void*, A...);
};

struct RowRange {
  Index first, count;
};

// 1. Rows split evenly: each thread has height / n rows, the last takes the rest as well. No memory; or, for families
// whose caller brings the memory, a slice of `sliceBytes` for each thread out of `slices`, which has room for
// `mostThreads` of them: the team is no larger.
void splitRows(Index height, Callable<void(RowRange)> body);
void splitRows(Index height, int mostThreads, std::byte* slices, std::size_t sliceBytes,
               Callable<void(RowRange, std::byte* slice)> body);

// 2. A static loop over rows, with `sliceBytes` of scratch for each thread. A thread has one contiguous range, for
// which the body is called once: it starts its running sums at the first row. With `fork` false the caller is a team of
// one and the runtime is not asked. huxStsNoMem when there is no memory for the slices; then no body has run. Without
// scratch (`sliceBytes` 0, the slice null) nothing is allocated, and nothing can fail.
HuxStatus loopRows(Index height, bool fork, std::size_t sliceBytes, Callable<void(RowRange, std::byte* slice)> body);

// 3. A pool of tiles. The master's `prepare` fills the shared memory and returns a status; thread t then takes the
// tiles t, t + n, t + 2n, ... with a slice of its own. The result is `prepare`'s status if that is not success (then no
// tile has run), else the lowest status of all tiles; huxStsNoMem when there is no memory.
struct TilePool {
  std::size_t sharedBytes;
  std::size_t sliceBytes;
};
HuxStatus runTiles(TilePool pool, Callable<HuxStatus(std::byte* shared, Index& tiles)> prepare,
                   Callable<HuxStatus(Index tile, std::byte* shared, std::byte* slice)> body);

// 4. Rows with partial sums: as splitRows, each thread with its own `partialBytes`, which are allocated (huxStsNoMem
// when that fails) or the caller's, with room for `mostThreads`. Every thread runs its body, also one that has no rows.
// After the region the caller's thread adds the partials in thread order; that order, and so the last bits of a float
// sum, depends on the team's size.
HuxStatus sumRows(Index height, std::size_t partialBytes, Callable<void(RowRange, std::byte* partial)> body,
                  Callable<void(const std::byte* partial)> add);
void sumRows(Index height, int mostThreads, std::byte* partials, std::size_t partialBytes,
             Callable<void(RowRange, std::byte* partial)> body, Callable<void(const std::byte* partial)> add);

// The most threads that a region may have, for functions that report the size of a caller's buffer.
int maxTeam();

}  // namespace hux
