// What a call is given beside its images: numbers, words, shapes. Each raises what is wrong, and tells whether nothing
// was.
#pragma once

#include <memory>

#include "module.h"

namespace hux::python {

// One number, as an element of a type, at the place given.
bool writeNumber(PyObject* number, Type type, void* place, const char* operation);
// A number for all channels, or a tuple, list or array of one for each.
bool writeConstants(PyObject* given, Type type, int count, void* place, const char* operation);
// By value, an integer travels as an int.
Value byValue(Type type, const void* element);
// Whether an object stands for an image beside the source.
bool isConstant(PyObject* object, PyObject* source, bool mayBePlanes);
// The value of a word; strings only.
bool readWord(const Parameter& parameter, PyObject* given, int* value, const char* operation);
bool readInt(PyObject* given, int* value, const char* name, const char* operation);
// As many integers as the text speaks of, which says what they are.
bool readInts(PyObject* given, int count, int* values, const char* name, const char* text, const char* operation);
// (w, h), w for both, or "3x5": width and height.
bool readMaskSize(PyObject* given, HuxiSize* size, const char* operation);
bool readType(PyObject* given, Type* type, const char* operation);
// A shape that is given: (H, W), (H, W, C) or (N,).
bool readShape(PyObject* given, Py_ssize_t* sides, int* axes, const char* operation);

// An array of numbers, or what numpy makes one of, of up to two axes.
class Numbers {
 public:
  int axes = 0;
  Py_ssize_t rows = 1, columns = 1;
  bool whole = false;  // integers, or booleans

  bool take(PyObject* given, const char* name, const char* operation);
  Py_ssize_t count() const { return rows * columns; }
  double operator[](Py_ssize_t i) const { return values[i]; }
  // In the place of the numbers: the same as elements of a type. Integers must fit.
  void* as(Type type, const char* name, const char* operation);

 private:
  double few[25];
  std::unique_ptr<double[]> many;
  double* values = few;
};

}  // namespace hux::python
