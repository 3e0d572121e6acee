// Arrays as images: what a buffer's shape and strides come to.
#pragma once

#include <climits>
#include <cmath>
#include <memory>
#include <new>

#include "module.h"

namespace hux::python {

const char* const kTypeNames[kTypes] = {"none",          "uint8",     "int8",       "uint16",  "int16",
                                        "uint32",        "int32",     "float32",    "float64", "complex_int16",
                                        "complex_int32", "complex64", "complex128", "bool",    "float16"};
constexpr int kTypeSizes[kTypes] = {0, 1, 1, 2, 2, 4, 4, 4, 8, 4, 8, 8, 16, 1, 2};

inline PyObject* dtypeOf(Type type) { return gDtypes[int(type)]; }

inline bool copy(PyObject* to, PyObject* from) {
  PyObject* none = PyObject_CallFunctionObjArgs(gCopy, to, from, nullptr);
  Py_XDECREF(none);
  return none;
}

// What a format of a buffer stands for.
Type typeOf(const char* format, Py_ssize_t size);

// An array, and what is to be let go with it.
struct View {
  Py_buffer buffer;                      // where it is held
  char* start = nullptr;                 // of the first element
  PyObject* object = nullptr;            // the array
  PyObject* own = nullptr;               // a packed copy of it, which stands for it
  bool held = false, rowsApart = false;  // rows otherwise than upwards and disjoint
  Type type = Type::none;
  Layout layout = kNoLayout;                                      // none where pixels lie as no layout has them
  Py_ssize_t height = 1, width = 1, step = 0, low = 0, high = 0;  // low and high: the bytes it lies on, from its start
  Py_ssize_t moved = 0;                                           // bytes from its start to where it is said to begin
  int channels = 1, axes = 0;

  View() = default;
  View(const View&) = delete;
  ~View() {
    release();
    Py_XDECREF(own);
    Py_XDECREF(object);
  }
  void release() {
    if (held) PyBuffer_Release(&buffer);
    held = false;
  }
  char* data() const { return start + moved; }
  PyObject* array() const { return own ? own : object; }

  bool take(PyObject* given, bool written, const char* operation) {
    object = Py_NewRef(given);
    return read(given, written, operation);
  }

  bool read(PyObject* from, bool written, const char* operation) {
    const Py_ssize_t *shape, *strides;
    type = Type::none;
    if (Py_TYPE(from) == gArrayType) {
      const NumpyArray& array = *reinterpret_cast<NumpyArray*>(from);
      for (int t = 1; t < kTypes && type == Type::none; ++t)
        if (array.dtype == dtypeOf(Type(t))) type = Type(t);
      if (written && !(array.flags & kWriteable)) type = Type::none;  // which the buffer then says
      start = array.data;
      axes = array.axes;
      shape = array.shape;
      strides = array.strides;
    }
    if (type == Type::none) {
      if (!readBuffer(from, written, operation)) return false;
      start = static_cast<char*>(buffer.buf);
      axes = buffer.ndim;
      shape = buffer.shape;
      strides = buffer.strides;
    }
    const Py_ssize_t size = kTypeSizes[int(type)];
    if (axes < 1 || axes > 3) {
      PyErr_Format(PyExc_TypeError, "%s: an image has the shape (H, W) or (H, W, C), a vector (N,); not %d axes",
                   operation, axes);
      return false;
    }
    height = axes == 1 ? 1 : shape[0];
    width = axes == 1 ? shape[0] : shape[1];
    if (axes == 3 && (shape[2] < 1 || shape[2] > 4)) {
      PyErr_Format(PyExc_TypeError, "%s: the last axis has up to 4 channels, not %zd", operation, shape[2]);
      return false;
    }
    channels = axes == 3 ? int(shape[2]) : 1;
    if (height > INT_MAX || width > INT_MAX || width * size > INT_MAX / 4) {
      PyErr_Format(PyExc_ValueError, "%s: sides and rows of an array end at 2^31 - 1", operation);
      return false;
    }
    const Py_ssize_t pixel = size * channels;
    const Py_ssize_t across = width > 1 ? strides[axes == 1 ? 0 : 1] : pixel;
    layout = kNoLayout;
    if (channels == 1)
      layout = across == pixel ? axes == 1 ? kVector : kC1
               : axes == 1     ? kNoLayout
                               : ofSeveral(across / size, across % size);
    else if (strides[2] == size)
      layout = across == pixel ? Layout(channels) : channels == 3 && across == 4 * size ? kAC4 : kNoLayout;
    const Py_ssize_t row = width > 0 ? std::abs(across) * (width - 1) + pixel : 0;
    step = axes > 1 && height > 1 ? strides[0] : across * width;
    rowsApart = step < row || step > INT_MAX || (step & (size - 1)) != 0;  // sizes are powers of two
    low = high = 0;
    for (int i = 0; i < axes; ++i) {
      const Py_ssize_t reach = shape[i] > 1 ? (shape[i] - 1) * strides[i] : 0;
      (reach < 0 ? low : high) += reach;
    }
    high += size;
    if (layout == kAC4 && !hasFourth(from)) layout = kNoLayout;
    if (!height || !width) layPlain();  // strides are nothing to go by there
    return true;
  }

  static Layout ofSeveral(Py_ssize_t apart, Py_ssize_t rest) {
    return rest ? kNoLayout : apart == 3 ? kOneOf3 : apart == 4 ? kOneOf4 : kNoLayout;
  }

  bool readBuffer(PyObject* from, bool written, const char* operation) {
    if (PyObject_GetBuffer(from, &buffer, written ? PyBUF_RECORDS : PyBUF_RECORDS_RO) < 0) {
      const auto* const array = Py_TYPE(from) == gArrayType ? reinterpret_cast<NumpyArray*>(from) : nullptr;
      if (PyErr_ExceptionMatches(PyExc_BufferError) || (array && written && !(array->flags & kWriteable)))
        PyErr_Format(PyExc_ValueError, "%s: out is read-only", operation);
      else if (array)  // some of numpy's types have no buffers
        PyErr_Format(PyExc_TypeError, "%s: no function takes elements of %S", operation, array->dtype);
      else if (PyErr_ExceptionMatches(PyExc_TypeError))
        PyErr_Format(PyExc_TypeError, "%s: an array is expected, not %R", operation, from);
      return false;
    }
    held = true;
    type = typeOf(buffer.format, buffer.itemsize);
    if (type != Type::none && kTypeSizes[int(type)] == buffer.itemsize) return true;
    PyObject* dtype = PyObject_GetAttrString(from, "dtype");
    PyErr_Clear();
    if (dtype)
      PyErr_Format(PyExc_TypeError, "%s: no function takes elements of %S", operation, dtype);
    else
      PyErr_Format(PyExc_TypeError, "%s: no function takes elements of format '%s'", operation, buffer.format);
    Py_XDECREF(dtype);
    return false;
  }

  // Of three channels at a distance of four: whether there is a fourth, also behind the last pixel.
  bool hasFourth(PyObject* from) const {
    PyObject* base = PyObject_GetAttrString(from, "base");
    Py_buffer whole;
    bool has = false;
    if (base && base != Py_None && PyObject_GetBuffer(base, &whole, PyBUF_RECORDS_RO) == 0) {
      const char* first = static_cast<char*>(whole.buf);
      Py_ssize_t end = whole.itemsize, before = 0;
      for (int i = 0; i < whole.ndim; ++i) {
        const Py_ssize_t reach = whole.shape[i] > 1 ? (whole.shape[i] - 1) * whole.strides[i] : 0;
        (reach < 0 ? before : end) += reach;
      }
      has = data() + low >= first + before && data() + high + kTypeSizes[int(type)] <= first + end;
      PyBuffer_Release(&whole);
    }
    PyErr_Clear();
    Py_XDECREF(base);
    return has;
  }

  // A new array of a kind, whose elements lie without gaps. It is not asked what it is, which takes long.
  bool takeNew(PyObject* given, Type ofType, Layout ofLayout, Py_ssize_t rows, Py_ssize_t columns, int count) {
    object = Py_NewRef(given);
    if (Py_TYPE(given) == gArrayType) {
      start = reinterpret_cast<NumpyArray*>(given)->data;
    } else {
      if (PyObject_GetBuffer(given, &buffer, PyBUF_WRITABLE) < 0) return false;
      held = true;
      start = static_cast<char*>(buffer.buf);
    }
    type = ofType;
    layout = ofLayout;
    height = rows;
    width = columns;
    channels = count;
    step = width * channels * kTypeSizes[int(type)];
    rowsApart = step > INT_MAX;
    low = 0;
    high = height * step;
    if (held && buffer.len != high)
      return PyErr_SetString(PyExc_SystemError, "hux: a new array of another size"), false;
    return true;
  }

  // A copy stands for the array from now on.
  bool pack(bool written, const char* operation) {
    if (own) return true;
    release();
    own = PyObject_CallFunctionObjArgs(gPacked, object, nullptr);
    return own && read(own, written, operation);
  }

  // As if a copy stood for it.
  void layPlain() {
    layout = axes == 1 ? kVector : Layout(channels);
    step = width * channels * kTypeSizes[int(type)];
    rowsApart = false;
  }

  bool sameShape(const View& other) const {
    return axes == other.axes && height == other.height && width == other.width && channels == other.channels;
  }
  bool same(const View& other) const {
    return data() == other.data() && sameShape(other) && type == other.type && step == other.step &&
           layout == other.layout && !own && !other.own;
  }
  // Whether there is a byte that both lie on. Where they only lie between each other's ends, numpy tells.
  bool touches(const View& other) const {
    if (data() + low >= other.data() + other.high || other.data() + other.low >= data() + high) return false;
    PyObject* answer = PyObject_CallFunctionObjArgs(gShares, array(), other.array(), nullptr);
    const bool shared = answer != Py_False;
    Py_XDECREF(answer);
    PyErr_Clear();
    return shared;
  }
};

// An image: one array, or one for each channel.
struct Image {
  View first;
  std::unique_ptr<View[]> others;
  int count = 0;  // arrays
  void* pointers[4];

  View& at(int i) { return i ? others[i - 1] : first; }
  bool given() const { return count; }
  bool planes() const { return count > 1; }
  Layout layout() const { return count == 3 ? kP3 : count == 4 ? kP4 : first.layout; }
  int channels() const { return planes() ? count : first.channels; }
  void* data() {
    if (!planes()) return first.data();
    for (int i = 0; i < count; ++i) pointers[i] = at(i).data();
    return pointers;
  }

  bool take(PyObject* object, bool written, bool mayBePlanes, const char* operation) {
    if (mayBePlanes && Py_TYPE(object) != gArrayType && (PyTuple_Check(object) || PyList_Check(object))) {
      const Py_ssize_t size = PySequence_Size(object);
      if (size != 3 && size != 4) {
        PyErr_Format(PyExc_TypeError, "%s: an image has 3 or 4 planes, not %zd", operation, size);
        return false;
      }
      others.reset(new (std::nothrow) View[size - 1]);
      if (!others) return PyErr_NoMemory(), false;
      count = int(size);
      for (int i = 0; i < count; ++i) {
        PyObject* plane = PySequence_GetItem(object, i);
        const bool good = plane && at(i).take(plane, written, operation);
        Py_XDECREF(plane);
        if (!good) return false;
        if (at(i).axes != 2 || !at(i).sameShape(first) || at(i).type != first.type) {
          PyErr_Format(PyExc_ValueError, "%s: planes are arrays of one shape (H, W) and one dtype", operation);
          return false;
        }
        for (int k = 0; written && k < i; ++k)
          if (at(k).touches(at(i))) {
            PyErr_Format(PyExc_ValueError, "%s: planes of out share memory", operation);
            return false;
          }
      }
      return true;
    }
    count = 1;
    return first.take(object, written, operation);
  }

  // Whether functions can take it as it is: its rows upwards, its planes with one step.
  bool plain() {
    for (int i = 0; i < count; ++i)
      if (at(i).rowsApart || (planes() && (at(i).layout != kC1 || at(i).step != first.step))) return false;
    return true;
  }
  bool pack(bool written, const char* operation) {
    for (int i = 0; i < count; ++i)
      if (!at(i).pack(written, operation)) return false;
    return true;
  }
  bool layPlain() {
    for (int i = 0; i < count; ++i) at(i).layPlain();
    return true;
  }
  bool same(Image& other) {
    bool all = count == other.count;
    for (int i = 0; all && i < count; ++i) all = at(i).same(other.at(i));
    return all;
  }
  bool touches(Image& other) {
    for (int i = 0; i < count; ++i)
      for (int k = 0; k < other.count; ++k)
        if (at(i).touches(other.at(k))) return true;
    return false;
  }
  // Where copies were written, what they stand for gets their elements.
  bool putBack() {
    for (int i = 0; i < count; ++i)
      if (at(i).own && !copy(at(i).object, at(i).own)) return false;
    return true;
  }
};

// A new array. What functions may leave unwritten is 0.
PyObject* newArray(Type type, Py_ssize_t height, Py_ssize_t width, int axes, int channels, bool zero);

}  // namespace hux::python
