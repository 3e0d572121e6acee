// What is known of the taps of a kernel.
#pragma once

#include <cmath>

#include "core/layout.h"

namespace hux {

// Whether the magnitudes of the taps, added up in order in single precision, stay within 32767: what a filter of 16s
// would ask that computes in integers. Those there are compute in floats, whatever the taps.
inline int ownTestTapsFor16s(const Hux32f* pTaps, int tapsLen) {
  Hux32f total = 0;
  for (int i = 0; i < tapsLen; ++i) total += std::fabs(elements(pTaps)[i]);
  return total > 32767.0f ? 0 : 1;
}

}  // namespace hux
