// The version record: constant data, so that a caller may keep the pointer. The version is the build's; what else the
// record has belongs to the interface and stays.
#include "huxi.h"

namespace {

constexpr HuxLibraryVersion kVersion = {
    HUX_MAJOR, HUX_MINOR, 133, 272, {'p', 'x', 0, 0}, "libhuxipx-" HUX_INTERFACE ".dylib", HUX_VERSION, "Jun 17 2006",
};

}  // namespace

const HuxLibraryVersion* huxiGetLibVersion(void) { return &kVersion; }
