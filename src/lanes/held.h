// Lanes that stay in a register.
#pragma once

#include "lanes/unrolled.h"

namespace hux {

// v, a vector of the machine, whose value the compiler does not know. What is computed from it takes it from one
// register: a compiler that is short of registers would rather load and convert it once for each use, or spread a
// constant out from a single element.
template <class V>
HUX_INLINE inline V held(V v) {
#if defined(__AVX512F__)
  asm("" : "+v"(v));
#elif defined(__SSE2__)
  asm("" : "+x"(v));
#endif
  return v;
}

}  // namespace hux
