// What this machine is, and which library was loaded.
#pragma once

#include <string>

namespace hux::tool {

// Lines of "  name  value".
std::string about();

// The file of digests beside the installed program (as it was called), or in the tree that it was built from.
std::string listOfDigests(const char* program);

}  // namespace hux::tool
