// The check of bits: a digest for each function, compared with a published list.
#pragma once

#include <string>

namespace hux::tool {

struct CheckOptions {
  std::string list;      // file of digests
  std::string only;      // functions whose name or family has this in it
  bool verbose = false;  // print each call
  bool write = false;    // make the list
  int threads = 0;       // of parallel functions; 0: as many as the library takes by itself
};

// Returns what the program does.
int check(const CheckOptions& options);

// Lists the functions that no rules speak of. Returns 1 where there are any.
int uncovered();

}  // namespace hux::tool
