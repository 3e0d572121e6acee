// One call of an operation.
#pragma once

#include <string>

#include "arrays.h"
#include "values.h"

namespace hux::python {

// What a call is given beside its sources.
struct Options {
  PyObject *out = nullptr, *mask = nullptr, *shape = nullptr, *own[kOwn] = {};
  Type type = Type::none;
  int shift = 0;
  bool keepAlpha = false;
};

// What an operation is asked for. All but the result and a part of it is told without a look at the pixels.
enum class Asked { result, name, reach, shape };

// A part of a geometric operation: the source begins at a place of a larger one, and the result at one of a larger
// result.
struct Part {
  bool given = false;
  HuxiSize size{};  // of the whole source; what is looked at of it must be there
  HuxiPoint source{}, result{};
};

// Step by step, what it is given is made into the arguments of a function.
class Run {
 public:
  Run(const Callable& callable, PyObject* const* arguments)
      : self(callable), op(*callable.operation), given(arguments) {}
  ~Run() { Py_XDECREF(result); }

  PyObject* operator()(Py_ssize_t count, PyObject* names, Asked what);

  Part part;

 private:
  const Callable& self;
  const Operation& op;
  PyObject* const* given;
  Asked asked = Asked::result;
  Options options;
  Image a, b, out;
  View mask;
  bool constant = false, swapped = false, fresh = false;
  Py_ssize_t sides[3] = {};  // of a shape that is given
  int axes = 0;              // of it; 0 where none is
  PyObject* seed = nullptr;
  PyObject* result = nullptr;
  Py_ssize_t height = 0, width = 0;  // of the result
  alignas(16) char constants[kOwn + 1][80];
  alignas(16) char results[kResults][4 * 8];

  // Of a window.
  Numbers numbers;  // taps, or a footprint
  void* taps = nullptr;
  HuxiSize maskSize{};
  HuxiPoint anchor{};
  bool anchored = false;
  int divisor = 1, border = -1, left = 0, top = 0, right = 0, bottom = 0;
  char borderPixel[4 * 16] = {};
  // Of geometry.
  HuxiRect region{}, resultRegion{};
  bool hasRegion = false, hasResultRegion = false, smooth = false;
  std::unique_ptr<View[]> maps;
  std::unique_ptr<char[]> work;

  // The function, and what it was found by.
  const Member *member = nullptr, *apart = nullptr, *inPlace = nullptr;
  int sourceLayout = 0, destinationLayout = 0;
  bool form = false;

  // Of a window: whether what becomes of a pixel depends on the pixels around it alone.
  bool local() const { return Py_ssize_t(left + right + 2) * (top + bottom + 1) <= member->local; }
  bool two() const { return op.sources == 2 && !constant; }
  bool refuse(PyObject* kind, const char* text) { return PyErr_Format(kind, "%s: %s", op.name, text), false; }
  // In the way of the library, of what it would refuse if it were asked.
  bool fail(HuxStatus status, const char* text);
  bool packSource(Image& image) { return asked == Asked::result ? image.pack(false, op.name) : image.layPlain(); }
  Layout layoutOf(const Image& image) const {
    return options.keepAlpha && image.layout() == kC4 ? kAC4 : image.layout();
  }
  // A parameter's place among the values of a member.
  int placeOf(int parameter) const { return parameter + (op.takesConstant ? 1 : 0); }

  bool readOptions(Py_ssize_t count, PyObject* names);
  bool takeSources();
  bool takeOut();
  bool choose();
  bool look(Type source, Type destination);
  bool windowMayWrite();
  bool explain(Type source);
  std::string existing() const;
  std::string otherForm() const;
  bool takeOwn();
  bool takeOwn(const Parameter& parameter, const Values& values, PyObject* value, char* place);
  bool readSeed(PyObject* value, char* place);
  bool findShape();
  bool fitOut();
  bool makeResult();
  void keepAlpha();
  void moveToPart();
  PyObject* shapeAndType();
  PyObject* call();
  PyObject* described();
  Value argument(char letter);
  PyObject* numbersOf(int i);
  PyObject* numbersOfAll();

  // window.cpp
  bool takeWindow(const Parameter& parameter, PyObject* value, char* place);
  bool findReach();
  bool findShapeOfWindow();
  bool findWork();
  Value callWindow(Value* values);
  // geometry.cpp
  bool takeGeometry(const Parameter& parameter, const Values& values, PyObject* value, char* place);
  bool findShapeOfGeometry();
  bool findShapeOfTwo();
  int& interpolation();
};

}  // namespace hux::python
