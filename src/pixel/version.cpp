// The version record: constant data, so that a caller may keep the pointer.
#include "huxi.h"

namespace {

constexpr HuxLibraryVersion kVersion = {
    5, 1, 133, 272, {'p', 'x', 0, 0}, "libhuxipx-5.1.dylib", "5.1.1", "Jun 17 2006",
};

}  // namespace

const HuxLibraryVersion* huxiGetLibVersion(void) { return &kVersion; }
