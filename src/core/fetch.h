// Asking memory for what comes next, where the machine does not foresee it.
#pragma once

#include "core/layout.h"

namespace hux {

// Asks for a piece of a row ahead of its use: of many rows at once, or of short pieces of rows that lie far apart, the
// machine does not see where they go on. What lies outside of the image may be asked for.
template <class E>
void fetchPiece(const E* p, Index elements) {
  for (Index i = 0; i < elements; i += 64 / Index(sizeof(E))) __builtin_prefetch(p + i);
}

}  // namespace hux
