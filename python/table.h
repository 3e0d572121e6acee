// The operations of the Python module as data: what python/generate.py makes of the registry.
#pragma once

#include "../tools/hux/table.h"

namespace hux::python {

enum class Type : unsigned char {
  none,
  t8u,
  t8s,
  t16u,
  t16s,
  t32u,
  t32s,
  t32f,
  t64f,
  t16sc,
  t32sc,
  t32fc,
  t64fc,
  boolean,  // these two are only moved, as 8u and 16u
  t16f,
};
constexpr int kTypes = int(Type::t16f) + 1;

// How the elements of an image lie. C1 to C4 are 1 to 4.
enum Layout : unsigned char { kNoLayout, kC1, kC2, kC3, kC4, kAC4, kP3, kP4, kOneOf3, kOneOf4, kVector, kLayouts };

// A function of the library, in the order of kFunctions also what tells whether it has been called.
struct Function {
  const char* name;
  tool::Any address;
  int shape;                 // of tool::call
  const char* shapeLetters;  // of the result and the parameters, see tools/registry
};

struct Values {  // of a parameter or a result: none where the function has it not
  Type type;
  unsigned char count;
  bool byAddress;
};
constexpr int kOwn = 5, kResults = 3;

struct Member {
  unsigned key;  // see keyOf
  int function;  // in kFunctions
  // A letter for each parameter: a, b, o the first and second source and the destination, m the mask, A, B, O, M their
  // steps, J the step of both sources, S the size, n the length, s the scale factor, 0 to 4 the operation's own
  // parameters, x, y, z the results.
  const char* program;
  Values own[kOwn], results[kResults];
};

// What tells the members of an operation from each other. The form is 1 where a constant stands for an image.
constexpr unsigned keyOf(Type source, Type destination, int sourceLayout, int destinationLayout, bool form,
                         bool inPlace, bool masked) {
  return ((((unsigned(source) * 16 + unsigned(destination)) * 16 + sourceLayout) * 16 + destinationLayout) * 2 + form) *
             4 +
         inPlace * 2u + masked;
}

enum class Kind : unsigned char { constant, enumeration, order, seed, dtype };

struct Parameter {
  const char* name;
  Kind kind;
  int words;             // of an enumeration, in kWords
  const char* fallback;  // the word where none is given
  bool keyword;          // by keyword only
};

struct Word {
  const char* word;  // null ends a list
  int value;
};

struct Operation {
  const char* name;
  const char* doc;
  bool native;         // run by this module; others by what the package gives
  int first, count;    // in kMembers of a native one, sorted by key; else in kFunctionLists
  int sources;         // images
  bool takesConstant;  // a constant may stand for the second image
  bool commutative, inPlaceSecond, moves, transposes, scaled, masked, planes, needsType;
  int firstParameter, parameters;  // in kParameters
  unsigned formMask;               // of the parameters that only functions of form 1 have
  const char* results;             // their names, with blanks between
};

struct Status {
  int value;
  const char* name;
  const char* comment;
};

extern const Function kFunctions[];
extern const int kFunctionCount;
extern const Member kMembers[];
extern const int kFunctionLists[];
extern const Parameter kParameters[];
extern const Word* const kWords[];
extern const Operation kOperations[];
extern const int kOperationCount;
extern const Status kStatuses[];
extern const int kStatusCount;
extern const char* const kVersion;

}  // namespace hux::python
