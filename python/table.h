// The operations of the Python module as data: what python/generate.py makes of the registry.
#pragma once

#include "../tools/hux/table.h"

namespace hux::python {

enum class Type : unsigned char { none, t8u, t8s, t16u, t16s, t32u, t32s, t32f, t64f, t16sc, t32sc, t32fc, t64fc };

struct Member {
  const char* name;
  tool::Any address;
  int shape;
  // A letter for each parameter: a, b, o the first and second source and the destination, A, B, O their steps,
  // c a constant by value, C by address, S the size, s the scale factor.
  const char* program;
  Type type, constant;
  int layout;  // channels, or 5 for AC4
  bool inPlace;
};

struct Operation {
  const char* name;
  const char* doc;
  int first, count;  // in kMembers
  int sources;
  bool commutative, scaled;
};

struct Status {
  int value;
  const char* name;
  const char* comment;
};

extern const Member kMembers[];
extern const Operation kOperations[];
extern const int kOperationCount;
extern const Status kStatuses[];
extern const int kStatusCount;
extern const char* const kVersion;

}  // namespace hux::python
