// What the files of the extension module share: the limited API, what the package gave, and what an operation is.
#pragma once

#define PY_SSIZE_T_CLEAN
#define Py_LIMITED_API 0x030B0000
#include <Python.h>

#include "table.h"

// Calls by vector entered the limited API with 3.12, as they stand in 3.11, whose headers leave them out.
#ifndef Py_TPFLAGS_HAVE_VECTORCALL
#define Py_TPFLAGS_HAVE_VECTORCALL (1UL << 11)
#endif
extern "C" PyObject* PyVectorcall_Call(PyObject*, PyObject*, PyObject*);
extern "C" PyObject* PyObject_Vectorcall(PyObject*, PyObject* const*, size_t, PyObject*);

namespace hux::python {

using tool::Value;
using VectorCall = PyObject* (*)(PyObject*, PyObject* const*, size_t, PyObject*);
constexpr size_t kArgumentsOffset = size_t(1) << (8 * sizeof(size_t) - 1);
constexpr Py_ssize_t kKeepLock = 16000;  // elements from which other threads may run meanwhile

// What the package gives (see setup): numpy's empty, zeros, a packed copy, asarray, copyto, shares_memory, dtype, what
// raises or warns of a status, and what makes the signature of an operation; and the dtypes by Type.
extern PyObject *gEmpty, *gZeros, *gPacked, *gArray, *gCopy, *gShares, *gDtype, *gReport, *gSignature;
extern PyObject* gDtypes[];
// What numpy lets extensions see of an array: the same in all its versions from 1.7 on, 2.x too. All else, and arrays
// too where setup finds that they are not laid out so, is asked for its buffer, which takes ten times as long.
struct NumpyArray {
  PyObject ob_base;
  char* data;
  int axes;
  Py_ssize_t *shape, *strides;
  PyObject *base, *dtype;
  int flags;
};
constexpr int kWriteable = 0x400;
extern PyTypeObject* gArrayType;  // null where they are not
// PyArray_Empty and PyArray_Zeros from numpy's table for extensions, which take a third of the time of empty and zeros:
// axes, sides, a dtype, whose reference they take over, and the order. Null where there is no table that is known.
using NewArray = PyObject* (*)(int, const Py_ssize_t*, PyObject*, int);
extern NewArray gNewEmpty, gNewZeros;
enum Keyword { kOut, kShift, kAlpha, kDtype, kShape, kMask, kKeywords };
constexpr const char* kKeywordNames[kKeywords] = {"out", "shift", "alpha", "dtype", "shape", "mask"};
extern PyObject* gKeywords[kKeywords];
extern bool* gCalled;  // by function: whether it has been

struct Callable {
  PyObject ob_base;  // PyObject_HEAD
  VectorCall call;
  const Operation* operation;
  PyObject *implementation, *which;  // of an operation that is not native
  PyObject* names[kOwn];             // of its parameters
  PyObject* results;                 // what several results are put in
  // The type of the members that take a type, and the one they usually give; the layout that a layout becomes.
  unsigned char sourceType[kTypes], destinationType[kTypes], destinationLayout[kLayouts];
  // The key that a call looked for last, and the members that there are for it: the next is mostly alike.
  mutable unsigned soughtKey;
  mutable const Member *apart, *inPlace;
};

// What a member's key is made of.
struct Key {
  Type source, destination;
  int sourceLayout, destinationLayout;
  bool form, inPlace, masked;
};
constexpr Key parts(unsigned key) {
  return {Type(key >> 15 & 15), Type(key >> 11 & 15), int(key >> 7 & 15), int(key >> 3 & 15),
          bool(key >> 2 & 1),   bool(key >> 1 & 1),   bool(key & 1)};
}

enum Border { kValidRegion = -1, kConstant, kReplicate, kSymmetric, kReflect101, kWrap };
// The place within an image that continues it at a place without; -1 where that is none of its pixels.
Py_ssize_t inside(Py_ssize_t at, Py_ssize_t size, int border);

// The functions of the module that raw.cpp and window.cpp have.
PyObject* callRaw(PyObject*, PyObject* const* given, Py_ssize_t count);
PyObject* frame(PyObject*, PyObject* arguments);

}  // namespace hux::python
