// The functions of the library as data: what tools/hux/generate.py makes of the headers and the rules.
#pragma once

#include <cstdint>

#include "huxcore.h"
#include "huxi.h"
#include "huxs.h"

namespace hux::tool {

// What a parameter stands for. The names are those of the registry.
enum class Role : std::uint8_t {
  allocation,
  anchor,
  border,
  bound,
  buffer,
  channel_order,
  coefficients,
  constant,
  context,
  context_out,
  counts,
  destination,
  dimension,
  divisor,
  element,
  enumeration,
  fixed_mask,
  flag,
  hint,
  index,
  iterations,
  kernel,
  kernel_size,
  length,
  level_count,
  levels,
  map,
  mask,
  mask_size,
  memory,
  number,
  order,
  quad,
  region,
  result,
  scale_factor,
  size,
  source,
  source_destination,
  state,
  step,
  table,
  values,
};

enum class Kind : std::uint8_t { value, pointer, planes, record, record_out };

// Elements of arrays and images; of complex ones each part is an element.
enum class Element : std::uint8_t { none, u8, s8, u16, s16, u32, s32, s64, f32, f64 };

enum class Null : std::uint8_t { refused, allowed, unchecked };

enum class Fill : std::uint8_t {
  random,
  pixels,
  mask,
  coordinates,
  taps,
  element,
  levels,
  values,
  zero,
  rows,
  constant,
  climbing,
};

// Where a value comes from.
enum class Source : std::uint8_t { none, list, formula, pixels, row };

// What a function has to do with a context.
enum class Part : std::uint8_t { none, make, init, get_size, buffer_size, free, use };

// A value of any parameter, or of a result.
union Value {
  void* p;
  int i;
  unsigned u;
  long long l;
  float f;
  double d;
  HuxiSize size;
  HuxiPoint point;
  HuxiRect rect;
  Hux16sc c16;
  Hux32sc c32;
  Hux32fc c32f;
  Hux64fc c64f;
};

// Formulas are programs for a stack of numbers, in kCode; 0 is none.
using Formula = int;
enum Code : int { kEnd, kNumber, kArgument, kRow, kAdd, kSubtract, kMultiply, kShift, kMax, kMin };

// Rows of numbers or, where an entry is not finite by intent, formulas: kNumbers from first on.
struct List {
  int first, rows, width;
};

// A function that tells how much memory another needs: its arguments, number by number, and which result it is.
struct Teller {
  int function, firstTerm, terms, result;
  bool ofContext;
};

struct Argument {
  const char* name;
  Role role;
  Kind kind;
  char shape;  // of values, see tools/registry
  Element element;
  int parts;     // 2 where an element is complex
  int perPixel;  // elements of a pixel in memory
  int pointers;  // of an array of pointers
  bool written;
  Null null;
  Fill fill;
  Source source;
  bool together;
  bool ofMaker;
  int step;  // of an image: the number of its step, or -1
  Formula extent[2], reach[4], count, span;
  List values, illegal;
  int teller;   // in kTellers, or -1
  bool judged;  // of a record: whether the function knows its own
};

// A formula among numbers: its place added to this.
constexpr double kFormula = 1e12;

using Any = void (*)();

struct Function {
  const char* name;
  const char* signature;
  const char* family;
  const char* operation;
  const char* types;  // "8u 32f"
  const char* layout;
  Any address;
  int shape;
  int firstArgument, own, all;  // its arguments; those behind own are its context's maker's
  int make, free, other;        // functions; other makes a context of the same record and another kind
  Part part;
  bool covered, byHand, sums, moves, aligned, errorsWrite;
  HuxStatus noMemory[2];  // what it may return without memory, and whether it may have written then
  bool writesAnyway;
  int calls;
};

extern const double kNumbers[];
extern const int kCode[];
extern const Teller kTellers[];
extern const int kTerms[];
extern const Argument kArguments[];
extern const Function kFunctions[];
extern const int kFunctionCount;

// The name of a status, huxStsOk and so on.
const char* nameOf(HuxStatus status);

// Calls a function of a shape with arguments of that shape.
Value call(int shape, Any function, const Value* arguments);

}  // namespace hux::tool
