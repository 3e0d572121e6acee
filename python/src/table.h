// The operations of the Python module as data: what python/generate.py makes of the registry.
#pragma once

#include "../../tools/hux/table.h"

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
constexpr int kOwn = 10, kResults = 3;

// How far a window looks beyond a pixel: each side is a sum of a number, the mask's side, and the anchor's place along
// it, each so many times.
struct Side {
  signed char number, ofSize, ofAnchor;
  constexpr int operator()(int size, int anchor) const { return number + ofSize * size + ofAnchor * anchor; }
};
struct Reach {
  Side left, top, right, bottom;
};

struct Member {
  unsigned key;  // see keyOf
  int function;  // in kFunctions
  // A letter for each parameter: a, b, o the first and second source and the destination, m the mask, A, B, O, M their
  // steps, J the step of both sources, S the size, n the length, s the scale factor, 0 to 4 the operation's own
  // parameters, x, y, z the results. Of windows: K the taps or the footprint, W and w the mask's size as two and as
  // one, P and p the anchor, f the mask by its number, d the divisor. Of geometry: Z the size of the image around the
  // source, R and D the regions of both, X, Y, h, v the maps and their steps. T the size of a second source that has
  // its own, u work memory.
  const char* program;
  Values own[kOwn], results[kResults];
  Reach reach;         // of a window
  const short* masks;  // of a fixed mask, by their numbers, 0 behind; null where the mask is free
  // Of a window: of how many pixels it may be, a column more counted, for what becomes of a pixel to depend on the
  // pixels around it alone.
  int local;
};

// What tells the members of an operation from each other. The form is 1 where a constant stands for an image.
constexpr unsigned keyOf(Type source, Type destination, int sourceLayout, int destinationLayout, bool form,
                         bool inPlace, bool masked) {
  return ((((unsigned(source) * 16 + unsigned(destination)) * 16 + sourceLayout) * 16 + destinationLayout) * 2 + form) *
             4 +
         inPlace * 2u + masked;
}

enum class Kind : unsigned char {
  constant,
  enumeration,
  order,
  seed,
  dtype,
  maskSize,
  footprint,
  kernel,
  anchor,
  divisor,
  border,
  borderValue,
  size,    // of a result
  factor,  // to it, where it is not told
  matrix,
  quad,
  map,
  flag,
  region,
};

// What decides about the shape of a result.
enum class Family : unsigned char { pixels, measure, window, geometry, convolution, match, other };

struct Parameter {
  const char* name;
  Kind kind;
  int words;             // of an enumeration, in kWords
  const char* fallback;  // the word where none is given; of a constant, that it is 0 then
  bool keyword;          // by keyword only
};

struct Word {
  const char* word;  // null ends a list
  int value;
};

struct Operation {
  const char* name;
  const char* doc;
  Family family;       // other: run by what the package gives, not by this module
  int extent;          // of matching and convolution: 1 full, 0 same, -1 valid
  int first, count;    // in kMembers, sorted by key; of others in kFunctionLists
  int sources;         // images
  bool takesConstant;  // a constant may stand for the second image
  bool commutative, inPlaceSecond, moves, transposes, scaled, masked, planes, needsType;
  int firstParameter, parameters;  // in kParameters
  unsigned formMask;               // of the parameters that only functions of form 1 have
  const char* results;             // their names, with blanks between

  constexpr bool native() const { return family != Family::other; }
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
