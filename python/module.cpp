// The extension module: operations as callables, which pick the C function by the elements and layouts of the arrays.
#define PY_SSIZE_T_CLEAN
#define Py_LIMITED_API 0x030B0000
#include <Python.h>
#include <dlfcn.h>
#include <structmember.h>

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstddef>
#include <cstring>
#include <memory>
#include <string>

#include "table.h"

// Calls by vector entered the limited API with 3.12, as they stand in 3.11, whose headers leave them out.
#ifndef Py_TPFLAGS_HAVE_VECTORCALL
#define Py_TPFLAGS_HAVE_VECTORCALL (1UL << 11)
#endif
extern "C" PyObject* PyVectorcall_Call(PyObject*, PyObject*, PyObject*);
extern "C" PyObject* PyObject_Vectorcall(PyObject*, PyObject* const*, size_t, PyObject*);

namespace hux::python {
namespace {

using tool::Value;
using VectorCall = PyObject* (*)(PyObject*, PyObject* const*, size_t, PyObject*);
constexpr size_t kArgumentsOffset = size_t(1) << (8 * sizeof(size_t) - 1);
constexpr Py_ssize_t kKeepLock = 16000;  // elements from which other threads may run meanwhile

// What the package gives (see setup): numpy's empty, zeros, a packed copy, copyto, dtype, the dtypes by Type, and what
// raises or warns of a status.
PyObject *gEmpty, *gZeros, *gPacked, *gCopy, *gDtype, *gDtypes, *gReport;
enum Keyword { kOut, kShift, kAlpha, kDtype, kShape, kMask, kKeywords };
constexpr const char* kKeywordNames[kKeywords] = {"out", "shift", "alpha", "dtype", "shape", "mask"};
PyObject* gKeywords[kKeywords];
bool* gCalled;  // by function: whether it has been

struct Callable {
  PyObject ob_base;  // PyObject_HEAD
  VectorCall call;
  const Operation* operation;
  PyObject *implementation, *which;  // of an operation that is not native
  PyObject* names[8];                // of its parameters
  PyObject* results;                 // what several results are put in
  // The type of the members that take a type, and the one they usually give; the layout that a layout becomes.
  unsigned char sourceType[kTypes], destinationType[kTypes], destinationLayout[kLayouts];
};

const char* const kTypeNames[kTypes] = {"none",          "uint8",     "int8",       "uint16",  "int16",
                                        "uint32",        "int32",     "float32",    "float64", "complex_int16",
                                        "complex_int32", "complex64", "complex128", "bool",    "float16"};
constexpr int kTypeSizes[kTypes] = {0, 1, 1, 2, 2, 4, 4, 4, 8, 4, 8, 8, 16, 1, 2};

Type typeOf(const char* format, Py_ssize_t size) {
  if (!format) return Type::t8u;
  if (*format == '@' || *format == '=') ++format;
  auto bySize = [&](Type one, Type two, Type four) {
    return size == 1 ? one : size == 2 ? two : size == 4 ? four : Type::none;
  };
  if (*format && !format[1]) switch (*format) {
      case 'B':
      case 'H':
      case 'I':
      case 'L':
        return bySize(Type::t8u, Type::t16u, Type::t32u);
      case 'b':
      case 'h':
      case 'i':
      case 'l':
        return bySize(Type::t8s, Type::t16s, Type::t32s);
      case 'f':
        return Type::t32f;
      case 'd':
        return Type::t64f;
      case '?':
        return Type::boolean;
      case 'e':
        return Type::t16f;
      default:
        return Type::none;
    }
  if (!std::strcmp(format, "Zf")) return Type::t32fc;
  if (!std::strcmp(format, "Zd")) return Type::t64fc;
  if (!std::strcmp(format, "T{h:re:h:im:}") && size == 4) return Type::t16sc;
  if (!std::strcmp(format, "T{i:re:i:im:}") && size == 8) return Type::t32sc;
  return Type::none;
}

PyObject* dtypeOf(Type type) { return PyTuple_GetItem(gDtypes, int(type)); }

bool copy(PyObject* to, PyObject* from) {
  PyObject* none = PyObject_CallFunctionObjArgs(gCopy, to, from, nullptr);
  Py_XDECREF(none);
  return none;
}

// An array, and what is to be let go with it.
struct View {
  Py_buffer buffer;
  PyObject* object = nullptr;            // the array
  PyObject* own = nullptr;               // a packed copy of it, which stands for it
  bool held = false, rowsApart = false;  // rows otherwise than upwards and disjoint
  Type type = Type::none;
  Layout layout = kNoLayout;                                      // none where pixels lie as no layout has them
  Py_ssize_t height = 1, width = 1, step = 0, low = 0, high = 0;  // low and high: the bytes it lies on, from its start
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
  char* data() const { return static_cast<char*>(buffer.buf); }
  PyObject* array() const { return own ? own : object; }

  bool take(PyObject* given, bool written, const char* operation) {
    object = Py_NewRef(given);
    return read(given, written, operation);
  }

  bool read(PyObject* from, bool written, const char* operation) {
    if (PyObject_GetBuffer(from, &buffer, written ? PyBUF_RECORDS : PyBUF_RECORDS_RO) < 0) {
      if (PyErr_ExceptionMatches(PyExc_TypeError))
        PyErr_Format(PyExc_TypeError, "%s: an array is expected, not %R", operation, from);
      else if (PyErr_ExceptionMatches(PyExc_BufferError))
        PyErr_Format(PyExc_ValueError, "%s: %R is read-only", operation, from);
      return false;
    }
    held = true;
    const Py_ssize_t size = buffer.itemsize;
    type = typeOf(buffer.format, size);
    if (type == Type::none || kTypeSizes[int(type)] != size) {
      PyErr_Format(PyExc_TypeError, "%s: no function takes elements of format '%s'", operation,
                   buffer.format ? buffer.format : "B");
      return false;
    }
    axes = buffer.ndim;
    if (axes < 1 || axes > 3) {
      PyErr_Format(PyExc_TypeError, "%s: an image has the shape (H, W) or (H, W, C), a vector (N,); not %d axes",
                   operation, axes);
      return false;
    }
    const Py_ssize_t *shape = buffer.shape, *strides = buffer.strides;
    height = axes == 1 ? 1 : shape[0];
    width = axes == 1 ? shape[0] : shape[1];
    if (axes == 3 && shape[2] != 1 && shape[2] != 3 && shape[2] != 4) {
      PyErr_Format(PyExc_TypeError, "%s: the last axis has 1, 3 or 4 channels, not %zd", operation, shape[2]);
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
    return true;
  }

  static Layout ofSeveral(Py_ssize_t apart, Py_ssize_t rest) {
    return rest ? kNoLayout : apart == 3 ? kOneOf3 : apart == 4 ? kOneOf4 : kNoLayout;
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
      has = data() + low >= first + before && data() + high + buffer.itemsize <= first + end;
      PyBuffer_Release(&whole);
    }
    PyErr_Clear();
    Py_XDECREF(base);
    return has;
  }

  // A new array of a kind, whose elements lie without gaps. It is not asked what it is, which takes long.
  bool takeNew(PyObject* given, Type ofType, Layout ofLayout, Py_ssize_t rows, Py_ssize_t columns, int count) {
    object = Py_NewRef(given);
    if (PyObject_GetBuffer(given, &buffer, PyBUF_WRITABLE) < 0) return false;
    held = true;
    type = ofType;
    layout = ofLayout;
    height = rows;
    width = columns;
    channels = count;
    step = width * channels * kTypeSizes[int(type)];
    rowsApart = step > INT_MAX;
    low = 0;
    high = height * step;
    if (buffer.len != high) return PyErr_SetString(PyExc_SystemError, "hux: a new array of another size"), false;
    return true;
  }

  // A copy stands for the array from now on.
  bool pack(bool written, const char* operation) {
    if (own) return true;
    release();
    own = PyObject_CallFunctionObjArgs(gPacked, object, nullptr);
    return own && read(own, written, operation);
  }

  bool sameShape(const View& other) const {
    return axes == other.axes && height == other.height && width == other.width && channels == other.channels;
  }
  bool same(const View& other) const {
    return data() == other.data() && sameShape(other) && type == other.type && step == other.step &&
           layout == other.layout && !own && !other.own;
  }
  bool touches(const View& other) const {
    return data() + low < other.data() + other.high && other.data() + other.low < data() + high;
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
    if (mayBePlanes && (PyTuple_Check(object) || PyList_Check(object))) {
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

// One number, as an element of a type, at the place given.
bool writeNumber(PyObject* number, Type type, void* place, const char* operation) {
  auto outside = [&] {
    if (!PyErr_Occurred() || PyErr_ExceptionMatches(PyExc_OverflowError))
      PyErr_Format(PyExc_ValueError, "%s: the constant %R is no %s", operation, number, kTypeNames[int(type)]);
    return false;
  };
  auto write = [&](auto value) {
    std::memcpy(place, &value, sizeof value);
    return true;
  };
  auto integer = [&](PyObject* from, long long low, long long high, long long* value) {
    PyObject* exact = PyNumber_Index(from);
    if (!exact) return false;
    *value = PyLong_AsLongLong(exact);
    Py_DECREF(exact);
    if (*value == -1 && PyErr_Occurred()) return outside();
    return *value >= low && *value <= high ? true : outside();
  };
  auto complex = [&](double* parts) {
    PyObject* whole = PyObject_CallFunctionObjArgs(reinterpret_cast<PyObject*>(&PyComplex_Type), number, nullptr);
    if (!whole) return false;
    parts[0] = PyComplex_RealAsDouble(whole);
    parts[1] = PyComplex_ImagAsDouble(whole);
    Py_DECREF(whole);
    return true;
  };
  auto fits = [](double x) { return !std::isfinite(x) || std::fabs(x) <= 3.4028234663852886e38; };
  long long i = 0;
  double parts[2];
  switch (type) {
    case Type::t8u:
      return integer(number, 0, 255, &i) && write(Hux8u(i));
    case Type::boolean:
      return integer(number, 0, 1, &i) && write(Hux8u(i));
    case Type::t8s:
      return integer(number, -128, 127, &i) && write(Hux8s(i));
    case Type::t16u:
      return integer(number, 0, 65535, &i) && write(Hux16u(i));
    case Type::t16s:
      return integer(number, -32768, 32767, &i) && write(Hux16s(i));
    case Type::t32u:
      return integer(number, 0, UINT_MAX, &i) && write(Hux32u(i));
    case Type::t32s:
      return integer(number, INT_MIN, INT_MAX, &i) && write(Hux32s(i));
    case Type::t32f:
    case Type::t64f:
      parts[0] = PyFloat_AsDouble(number);
      if (parts[0] == -1 && PyErr_Occurred()) return false;
      if (type == Type::t64f) return write(parts[0]);
      return fits(parts[0]) ? write(float(parts[0])) : outside();
    case Type::t32fc:
      if (!complex(parts)) return false;
      return fits(parts[0]) && fits(parts[1]) ? write(Hux32fc{float(parts[0]), float(parts[1])}) : outside();
    case Type::t64fc:
      return complex(parts) && write(Hux64fc{parts[0], parts[1]});
    case Type::t16sc:
    case Type::t32sc: {
      if (!complex(parts)) return false;
      const double low = type == Type::t16sc ? SHRT_MIN : INT_MIN, high = type == Type::t16sc ? SHRT_MAX : INT_MAX;
      for (double part : parts)
        if (!(part >= low && part <= high) || part != std::floor(part)) return outside();
      return type == Type::t16sc ? write(Hux16sc{Hux16s(parts[0]), Hux16s(parts[1])})
                                 : write(Hux32sc{Hux32s(parts[0]), Hux32s(parts[1])});
    }
    default:
      return outside();
  }
}

// A number for all channels, or a tuple or list of one for each.
bool writeConstants(PyObject* given, Type type, int count, void* place, const char* operation) {
  const bool several = PyTuple_Check(given) || PyList_Check(given);
  if (several && PySequence_Size(given) != count) {
    PyErr_Format(PyExc_ValueError, "%s: a constant has one number, or here %d; not %zd", operation, count,
                 PySequence_Size(given));
    return false;
  }
  for (int i = 0; i < count; ++i) {
    PyObject* number = several ? PySequence_GetItem(given, i) : Py_NewRef(given);
    const bool good =
        number && writeNumber(number, type, static_cast<char*>(place) + i * kTypeSizes[int(type)], operation);
    Py_XDECREF(number);
    if (!good) return false;
  }
  return true;
}

// By value, an integer travels as an int.
Value byValue(Type type, const void* element) {
  Value value = {};
  auto as = [&](auto kind) {
    std::memcpy(&kind, element, sizeof kind);
    return kind;
  };
  switch (type) {
    case Type::t8u:
      value.i = as(Hux8u());
      break;
    case Type::t8s:
      value.i = as(Hux8s());
      break;
    case Type::t16u:
      value.i = as(Hux16u());
      break;
    case Type::t16s:
      value.i = as(Hux16s());
      break;
    default:
      std::memcpy(&value, element, kTypeSizes[int(type)]);
      break;
  }
  return value;
}

bool isNumber(PyObject* object) {
  if (PyLong_Check(object) || PyFloat_Check(object) || PyComplex_Check(object)) return true;
  // Scalars of numpy are buffers without an axis.
  Py_buffer buffer;
  if (PyObject_GetBuffer(object, &buffer, PyBUF_RECORDS_RO) < 0) {
    PyErr_Clear();
    return PyNumber_Check(object);
  }
  const bool scalar = buffer.ndim == 0;
  PyBuffer_Release(&buffer);
  return scalar;
}

bool isConstant(PyObject* object, PyObject* source, bool mayBePlanes) {
  if (!PyTuple_Check(object) && !PyList_Check(object)) return Py_TYPE(object) != Py_TYPE(source) && isNumber(object);
  if (!mayBePlanes || PySequence_Size(object) < 1) return true;
  PyObject* item = PySequence_GetItem(object, 0);
  const bool number = item && isNumber(item);
  Py_XDECREF(item);
  return number;
}

// The value of a word; strings only.
bool readWord(const Parameter& parameter, PyObject* given, int* value, const char* operation) {
  const Word* const words = kWords[parameter.words];
  if (PyUnicode_Check(given))
    for (const Word* word = words; word->word; ++word)
      if (PyUnicode_CompareWithASCIIString(given, word->word) == 0) {
        *value = word->value;
        return true;
      }
  std::string list;
  for (const Word* word = words; word->word; ++word)
    list += (list.empty() ? "\"" : ", \"") + std::string(word->word) + '"';
  PyErr_Format(PyUnicode_Check(given) ? PyExc_ValueError : PyExc_TypeError, "%s: %s is one of %s, not %R", operation,
               parameter.name, list.c_str(), given);
  return false;
}

bool readInt(PyObject* given, int* value, const char* name, const char* operation) {
  const long number = PyLong_AsLong(given);
  const bool failed = number == -1 && PyErr_Occurred();
  if (failed && !PyErr_ExceptionMatches(PyExc_OverflowError)) return false;
  if (failed || number < INT_MIN || number > INT_MAX) {
    PyErr_Format(PyExc_ValueError, "%s: %s is beyond 32 bits", operation, name);
    return false;
  }
  *value = int(number);
  return true;
}

bool readType(PyObject* given, Type* type, const char* operation) {
  if (PyUnicode_Check(given))
    for (int i = 1; i < kTypes; ++i)
      if (PyUnicode_CompareWithASCIIString(given, kTypeNames[i]) == 0) {
        *type = Type(i);
        return true;
      }
  PyObject* dtype = PyObject_CallFunctionObjArgs(gDtype, given, nullptr);
  if (!dtype) return false;
  for (int i = 1; i < kTypes && *type == Type::none; ++i)
    if (PyObject_RichCompareBool(dtype, dtypeOf(Type(i)), Py_EQ) == 1) *type = Type(i);
  if (*type == Type::none) PyErr_Format(PyExc_TypeError, "%s: no function gives elements of %R", operation, dtype);
  Py_DECREF(dtype);
  return *type != Type::none;
}

// A new array. What functions may leave unwritten is 0.
PyObject* newArray(Type type, Py_ssize_t height, Py_ssize_t width, int axes, int channels, bool zero) {
  PyObject* shape = PyTuple_New(axes);
  if (!shape) return nullptr;
  if (axes > 1) PyTuple_SetItem(shape, 0, PyLong_FromSsize_t(height));
  PyTuple_SetItem(shape, axes > 1, PyLong_FromSsize_t(width));
  if (axes > 2) PyTuple_SetItem(shape, 2, PyLong_FromLong(channels));
  PyObject* array = PyObject_CallFunctionObjArgs(zero ? gZeros : gEmpty, shape, dtypeOf(type), nullptr);
  Py_DECREF(shape);
  return array;
}

std::string describe(Type type, int layout) {
  std::string word = kTypeNames[int(type)];
  switch (layout) {
    case kVector:
      return word + " vectors";
    case kAC4:
      return word + " with 4 channels and alpha=\"keep\"";
    case kP3:
    case kP4:
      return word + " in " + std::to_string(layout == kP3 ? 3 : 4) + " planes";
    case kOneOf3:
    case kOneOf4:
      return word + " with one channel of " + std::to_string(layout == kOneOf3 ? 3 : 4);
    default:
      return word + " with " + std::to_string(layout);
  }
}

struct Key {
  Type source, destination;
  int sourceLayout, destinationLayout;
  bool form, inPlace, masked;
};
Key parts(unsigned key) {
  return {Type(key >> 15 & 15), Type(key >> 11 & 15), int(key >> 7 & 15), int(key >> 3 & 15),
          bool(key >> 2 & 1),   bool(key >> 1 & 1),   bool(key & 1)};
}

const Member* find(const Operation& op, unsigned key) {
  const Member *first = kMembers + op.first, *end = first + op.count;
  const Member* found = std::lower_bound(first, end, key, [](const Member& m, unsigned k) { return m.key < k; });
  return found != end && found->key == key ? found : nullptr;
}

std::string existing(const Operation& op) {
  std::string list;
  for (int i = 0; i < op.count; ++i) {
    const Key key = parts(kMembers[op.first + i].key);
    std::string word = key.source == Type::none ? describe(key.destination, key.destinationLayout)
                                                : describe(key.source, key.sourceLayout);
    if (key.source != key.destination && key.source != Type::none && key.destination != Type::none)
      word += " to " + std::string(kTypeNames[int(key.destination)]);
    if (list.find(word + ";") == std::string::npos) list += (list.empty() ? "" : " ") + word + ";";
  }
  if (!list.empty()) list.pop_back();
  return list;
}

// What a call is given beside its images.
struct Options {
  PyObject *out = nullptr, *mask = nullptr, *shape = nullptr, *own[8] = {};
  Type type = Type::none;
  int shift = 0;
  bool keepAlpha = false, shifted = false;
};

bool readOptions(const Callable& self, PyObject* const* given, Py_ssize_t count, PyObject* names, Options* options) {
  const Operation& op = *self.operation;
  const Parameter* const parameters = kParameters + op.firstParameter;
  auto put = [&](int i, PyObject* value) {
    if (options->own[i])
      return PyErr_Format(PyExc_TypeError, "%s: %s is given twice", op.name, parameters[i].name), false;
    options->own[i] = value;
    return true;
  };
  int place = 0;
  for (Py_ssize_t i = op.sources; i < count; ++i, ++place) put(place, given[i]);
  const Py_ssize_t named = names ? PyTuple_Size(names) : 0;
  for (Py_ssize_t i = 0; i < named; ++i) {
    PyObject *name = PyTuple_GetItem(names, i), *value = given[count + i];
    auto is = [&](PyObject* word) { return name == word || PyUnicode_Compare(name, word) == 0; };
    int own = 0;
    while (own < op.parameters && !is(self.names[own])) ++own;
    if (own < op.parameters) {
      if (!put(own, value)) return false;
    } else if (is(gKeywords[kOut])) {
      options->out = value == Py_None ? nullptr : value;
    } else if (is(gKeywords[kShift]) && op.scaled) {
      if (!readInt(value, &options->shift, "shift", op.name)) return false;
    } else if (is(gKeywords[kAlpha])) {
      options->keepAlpha = value != Py_None;
      if (options->keepAlpha && (!PyUnicode_Check(value) || PyUnicode_CompareWithASCIIString(value, "keep") != 0)) {
        PyErr_Format(PyExc_ValueError, "%s: alpha is \"keep\" or None, not %R", op.name, value);
        return false;
      }
    } else if (is(gKeywords[kDtype])) {
      if (value != Py_None && !readType(value, &options->type, op.name)) return false;
    } else if (is(gKeywords[kMask]) && op.masked) {
      options->mask = value == Py_None ? nullptr : value;
    } else if (is(gKeywords[kShape]) && !op.sources) {
      options->shape = value == Py_None ? nullptr : value;
    } else {
      PyErr_Format(PyExc_TypeError, "%s: no keyword %R", op.name, name);
      return false;
    }
  }
  for (int i = 0; i < op.parameters; ++i) {
    if (options->own[i] == Py_None && (parameters[i].fallback || parameters[i].kind == Kind::dtype))
      options->own[i] = nullptr;
    if (options->own[i] && parameters[i].kind == Kind::dtype) {
      if (!readType(options->own[i], &options->type, op.name)) return false;
    }
  }
  return true;
}

// A shape that is given: (H, W), (H, W, C) or (N,).
bool readShape(PyObject* given, Py_ssize_t* sides, int* axes, const char* operation) {
  const Py_ssize_t count = PySequence_Size(given);
  if (count < 0) PyErr_Clear();
  bool good = count >= 1 && count <= 3;
  for (Py_ssize_t i = 0; good && i < count; ++i) {
    PyObject* side = PySequence_GetItem(given, i);
    sides[i] = side ? PyLong_AsSsize_t(side) : -1;
    Py_XDECREF(side);
    if (PyErr_Occurred()) PyErr_Clear(), sides[i] = -1;
    good = sides[i] >= 0 && sides[i] <= INT_MAX && (i < 2 || sides[i] == 1 || sides[i] == 3 || sides[i] == 4);
  }
  *axes = int(count);
  if (!good) PyErr_Format(PyExc_ValueError, "%s: shape is (H, W), (H, W, C) or (N,), not %R", operation, given);
  return good;
}

// One call: what it is given, step by step made into the arguments of a function.
class Run {
 public:
  Run(const Callable& callable, PyObject* const* arguments)
      : self(callable), op(*callable.operation), given(arguments) {}
  ~Run() { Py_XDECREF(result); }

  PyObject* operator()(Py_ssize_t count, PyObject* names, bool onlyAsked) {
    int most = op.sources;
    for (int i = 0; i < op.parameters; ++i) most += !kParameters[op.firstParameter + i].keyword;
    if (count < op.sources || count > most) {
      PyErr_Format(PyExc_TypeError, "%s takes %d positional argument%s, not %zd", op.name,
                   count < op.sources ? op.sources : most, (count < op.sources ? op.sources : most) == 1 ? "" : "s",
                   count);
      return nullptr;
    }
    if (!readOptions(self, given, count, names, &options) || !takeSources() || !takeOut() || !choose()) return nullptr;
    if (onlyAsked) return PyUnicode_FromString(kFunctions[member->function].name);
    if (!makeResult() || !takeConstants()) return nullptr;
    return call();
  }

 private:
  const Callable& self;
  const Operation& op;
  PyObject* const* given;
  Options options;
  Image a, b, out;
  View mask;
  bool constant = false, swapped = false, fresh = false;
  Py_ssize_t sides[3] = {};  // of a shape that is given
  int axes = 0;
  const Member* member = nullptr;
  PyObject* result = nullptr;
  alignas(16) char constants[kOwn + 1][4 * 16];
  alignas(16) char results[kResults][4 * 8];

  bool two() const { return op.sources == 2 && !constant; }
  bool refuse(PyObject* kind, const char* text) { return PyErr_Format(kind, "%s: %s", op.name, text), false; }

  bool takeSources() {
    if (!op.sources) {
      if (options.shape) return readShape(options.shape, sides, &axes, op.name);
      return options.out || refuse(PyExc_TypeError, "takes out= or shape= and dtype=");
    }
    if (!a.take(given[0], false, op.planes, op.name)) return false;
    constant = op.sources == 2 && op.takesConstant && isConstant(given[1], given[0], op.planes);
    if (two()) {
      if (!b.take(given[1], false, op.planes, op.name)) return false;
      if (b.first.type != a.first.type) {
        PyErr_Format(PyExc_TypeError, "%s: the sources have %s and %s; there is no promotion", op.name,
                     kTypeNames[int(a.first.type)], kTypeNames[int(b.first.type)]);
        return false;
      }
      if (a.count != b.count || !b.first.sameShape(a.first))
        return refuse(PyExc_ValueError, "the sources differ in shape; there is no broadcasting");
      // Images of two layouts become two of the plain one.
      if (a.layout() != b.layout() && (!packSource(a) || !packSource(b))) return false;
    }
    for (Image* image : {&a, &b})
      if (image->given() && (image->layout() == kNoLayout || !image->plain()) && !packSource(*image)) return false;
    return !options.keepAlpha || a.channels() == 4 || a.layout() == kAC4 || options.out ||
           refuse(PyExc_TypeError, "alpha=\"keep\" is for four channels");
  }
  bool packSource(Image& image) { return image.pack(false, op.name); }

  bool takeOut() {
    if (options.out) {
      if (op.results) return refuse(PyExc_TypeError, "gives numbers, and takes no out=");
      if (!out.take(options.out, true, op.planes, op.name)) return false;
      for (int i = 0; i < out.count; ++i) {
        View& view = out.at(i);
        const Py_ssize_t row = view.width * view.channels * view.buffer.itemsize;
        const bool overlapping = view.rowsApart && std::abs(view.step) < row && view.height > 1;
        if (view.layout == kNoLayout || overlapping)
          return refuse(PyExc_ValueError, "out must have its pixels one after another, and rows that do not overlap");
      }
      if (!out.plain() && !out.pack(true, op.name)) return false;
      if (options.keepAlpha && out.channels() != 4 && out.layout() != kAC4 && a.channels() != 4)
        return refuse(PyExc_TypeError, "alpha=\"keep\" is for four channels");
    }
    if (options.mask) {
      if (!out.given()) return refuse(PyExc_TypeError, "mask= needs out=");
      if (!mask.take(options.mask, false, op.name)) return false;
      if (mask.type != Type::t8u && mask.type != Type::boolean)
        return refuse(PyExc_TypeError, "a mask is uint8 or bool");
      if (mask.axes != 2 || mask.height != out.first.height || mask.width != out.first.width)
        return refuse(PyExc_ValueError, "the mask must have the rows and columns of out");
      if ((mask.layout != kC1 || mask.rowsApart || mask.touches(out.first)) && !mask.pack(false, op.name)) return false;
    }
    return true;
  }

  // Which function: by what the images are; or, where none is for that, for plain copies of the sources.
  bool choose() {
    const bool fourth = options.keepAlpha;
    auto layoutOf = [&](Image& image) { return fourth && image.layout() == kC4 ? kAC4 : image.layout(); };
    bool form = constant;
    for (int i = 0; i < op.parameters; ++i) form |= options.own[i] && op.formMask >> i & 1;
    const Type given = a.given() ? a.first.type : Type::none;
    const Type source = Type(self.sourceType[int(given)]);
    Type destination = Type::none, wanted = Type::none;
    if (!op.results) {
      wanted = out.given() ? out.first.type : options.type;
      if (out.given() && options.type != Type::none && options.type != wanted)
        return refuse(PyExc_TypeError, "dtype= and out= differ");
      if (op.needsType && wanted == Type::none) return refuse(PyExc_TypeError, "needs dtype=, or out=");
      if (!op.sources && wanted == Type::none) return refuse(PyExc_TypeError, "takes out= or shape= and dtype=");
      if (wanted == Type::none) wanted = op.moves ? given : Type(self.destinationType[int(source)]);
      destination = op.moves ? Type(self.sourceType[int(wanted)]) : wanted;
      if (op.moves && op.sources && wanted != given)
        return refuse(PyExc_TypeError, "out must have the dtype of the source");
    } else if (options.type != Type::none) {
      return refuse(PyExc_TypeError, "no keyword 'dtype'");
    }
    int sourceLayout = 0, destinationLayout = 0;
    const Member *apart = nullptr, *inPlace = nullptr;
    auto look = [&](Type type) {
      sourceLayout = a.given() ? layoutOf(a) : kNoLayout;
      auto one = [&](int from) {
        destinationLayout = op.results                ? kNoLayout
                            : out.given()             ? layoutOf(out)
                            : !op.sources             ? (axes == 1   ? int(kVector)
                                                         : axes == 3 ? int(sides[2])
                                                                     : 1)
                            : from == kAC4 && !fourth ? int(kC3)
                                                      : int(self.destinationLayout[from]);
        if (!op.sources && fourth && destinationLayout == kC4) destinationLayout = kAC4;
        if (op.sources && from != kVector && destinationLayout == kVector) destinationLayout = kC1;
        apart = find(op, keyOf(source, type, from, destinationLayout, form, false, options.mask));
        inPlace = op.sources || op.transposes
                      ? find(op, keyOf(source, type, from, destinationLayout, form, true, options.mask))
                      : nullptr;
        return apart || inPlace;
      };
      if (one(sourceLayout)) return true;
      if (sourceLayout == kVector && one(kC1)) return sourceLayout = kC1, true;
      if (!op.sources && destinationLayout == kVector && axes <= 1) {
        destinationLayout = kC1;
        apart = find(op, keyOf(source, type, 0, kC1, form, false, options.mask));
        return apart != nullptr;
      }
      return false;
    };
    const Layout lay = a.layout();
    bool found = look(destination);
    if (!found && (lay == kOneOf3 || lay == kOneOf4 || (lay == kAC4 && !a.planes()))) {
      if (!packSource(a) || (b.given() && !packSource(b))) return false;
      found = look(destination);
    }
    if (!found) return explain(source, form, look);
    if (options.shift && !std::strchr((apart ? apart : inPlace)->program, 's')) {
      PyErr_Format(PyExc_TypeError, "%s: no shift for %s", op.name, kTypeNames[int(given)]);
      return false;
    }
    member = apart;
    if (op.results) return true;
    if (!out.given()) return member || (member = inPlace);
    if (op.sources) {
      const bool turned = op.transposes;
      const View &s = a.first, &d = out.first;
      if ((turned ? d.height != s.width || d.width != s.height : d.height != s.height || d.width != s.width) ||
          (s.axes == 1) != (d.axes == 1) ||
          (s.axes != d.axes && s.channels == 1 && d.channels == 1 && !a.planes() && !out.planes()))
        return refuse(PyExc_ValueError, "out must have the shape of the source");
    }
    // Which form that asks for. Sources that share bytes with out without being it are copied.
    if (!op.sources) return true;
    const bool first = !op.inPlaceSecond || !two(), second = two() && (op.inPlaceSecond || op.commutative);
    if (inPlace && first && out.same(a) && !(two() && b.touches(out))) {
      member = inPlace;
      return true;
    }
    if (inPlace && second && out.same(b) && !a.touches(out)) {
      member = inPlace;
      swapped = !op.inPlaceSecond;
      return true;
    }
    if (!member) member = inPlace;
    const Layout before = layoutOf(a);
    if ((a.touches(out) && !packSource(a)) || (two() && b.touches(out) && !packSource(b))) return false;
    if (layoutOf(a) == before && (!two() || layoutOf(b) == before)) return true;
    // Copies do not lie as the function wants it: then out is a copy too, until the end.
    if (!packSource(a) || (two() && !packSource(b)) || !out.pack(true, op.name)) return false;
    if (!look(destination)) return explain(source, form, look);
    member = apart ? apart : inPlace;
    return true;
  }

  template <class Look>
  bool explain(Type source, bool form, Look look) {
    const Type usual = Type(self.destinationType[int(source)]);
    if (out.given() && !op.needsType && usual != out.first.type && look(usual)) {
      PyErr_Format(PyExc_TypeError, "%s: out must have the dtype %s", op.name, kTypeNames[int(usual)]);
      return false;
    }
    if (out.given() && out.layout() != a.layout() &&
        (out.layout() == kOneOf3 || out.layout() == kOneOf4 || out.layout() == kAC4))
      return refuse(PyExc_ValueError, "out must have its pixels one after another, and rows that do not overlap");
    if (out.given() && a.given() && out.channels() != a.channels())
      return refuse(PyExc_ValueError, "out must have the shape of the source");
    const Image& image = a.given() ? a : out;
    const std::string list = existing(op);
    const int channels = image.given() ? image.channels() : axes == 3 ? int(sides[2]) : 1;
    const Type type = image.given() ? image.first.type : options.type;
    PyErr_Format(PyExc_TypeError, "%s: no function for %s%s%s%s with %d channel%s%s%s; there are: %s", op.name,
                 form ? "a constant and " : "", kTypeNames[int(type)],
                 options.type != Type::none && a.given() ? " to " : "",
                 options.type != Type::none && a.given() ? kTypeNames[int(options.type)] : "", channels,
                 channels == 1 ? "" : "s", options.mask ? ", a mask" : "",
                 options.keepAlpha ? " and alpha=\"keep\"" : "", list.c_str());
    return false;
  }

  bool makeResult() {
    if (op.results) return true;
    const Key key = parts(member->key);
    const bool alpha = key.destinationLayout == kAC4;
    if (out.given()) {
      result = Py_NewRef(options.out);
      // A form in place starts from the source.
      if (!key.inPlace || !op.sources || out.same(swapped || (op.inPlaceSecond && two()) ? b : a)) return true;
      for (int i = 0; i < out.count; ++i)
        if (!copy(out.at(i).array(), a.at(i).array())) return false;
      return true;
    }
    fresh = true;
    Type type = key.destination;
    Py_ssize_t height = sides[0], width = axes > 1 ? sides[1] : sides[0];
    int count = axes, channels = axes > 2 ? int(sides[2]) : 1;
    if (op.sources) {
      height = op.transposes ? a.first.width : a.first.height;
      width = op.transposes ? a.first.height : a.first.width;
      const int lay = key.destinationLayout;
      channels = lay == kAC4 || lay == kC4 ? 4 : lay == kC3 ? 3 : 1;
      count = channels > 1                                 ? 3
              : a.first.axes == 1 && !op.transposes        ? 1
              : a.first.axes == 3 && a.first.channels == 1 ? 3
                                                           : 2;
    } else if (axes == 1) {
      height = 1;
    }
    if (op.moves) type = op.sources ? a.first.type : options.type;
    const bool zero = alpha && (!op.sources || a.first.type != type || a.channels() != 4);
    const int planes = key.destinationLayout == kP3 ? 3 : key.destinationLayout == kP4 ? 4 : 0;
    if (width * channels > INT_MAX / kTypeSizes[int(type)] || height > INT_MAX)
      return refuse(PyExc_ValueError, "sides and rows of an array end at 2^31 - 1");
    if (planes) {
      result = PyTuple_New(planes);
      out.others.reset(new (std::nothrow) View[planes - 1]);
      if (!result || !out.others) return PyErr_NoMemory(), false;
      for (int i = 0; i < planes; ++i) {
        PyObject* plane = newArray(type, height, width, 2, 1, false);
        if (!plane) return false;
        PyTuple_SetItem(result, i, plane);
        if (!out.at(i).takeNew(plane, type, kC1, height, width, 1)) return false;
        const bool starts = key.inPlace || (i == 3 && a.count == 4);  // alpha may be left alone
        if (starts && !copy(plane, a.at(i).array())) return false;
      }
      out.count = planes;
      return true;
    }
    result = newArray(type, height, width, count, channels, zero);
    if (!result || !out.first.takeNew(result, type, Layout(key.destinationLayout), height, width, channels))
      return false;
    out.count = 1;
    const bool starts = op.sources && (key.inPlace || (alpha && !zero));
    return !starts || copy(result, a.first.array());
  }

  bool takeConstants() {
    const Key key = parts(member->key);
    if (constant) {
      const Values& values = member->own[0];  // of a constant in the place of an image it is the first
      if (!writeConstants(given[1], values.type, values.count, constants[0], op.name)) return false;
    }
    const Parameter* const parameters = kParameters + op.firstParameter;
    for (int i = 0; i < op.parameters; ++i) {
      const Parameter& parameter = parameters[i];
      const Values& values = member->own[i + (op.takesConstant ? 1 : 0)];
      char* const place = constants[i + (op.takesConstant ? 1 : 0)];
      PyObject* const value = options.own[i];
      if (parameter.kind == Kind::dtype) continue;
      if (!values.count) {
        if (!value) continue;
        PyErr_Format(PyExc_TypeError, "%s: %s takes no %s", op.name, kFunctions[member->function].name, parameter.name);
        return false;
      }
      if (!value && !parameter.fallback) {
        PyErr_Format(PyExc_TypeError, "%s needs %s", op.name, parameter.name);
        return false;
      }
      int number = 0;
      switch (parameter.kind) {
        case Kind::enumeration: {
          if (value) {
            if (!readWord(parameter, value, &number, op.name)) return false;
          } else {
            for (const Word* word = kWords[parameter.words]; word->word; ++word)
              if (!std::strcmp(word->word, parameter.fallback)) number = word->value;
          }
          std::memcpy(place, &number, sizeof number);
          break;
        }
        case Kind::order: {
          const Py_ssize_t size = PySequence_Size(value);
          if (size < 0) return false;
          if (size != values.count) return refuse(PyExc_ValueError, "a channel is given for each of three");
          for (int k = 0; k < values.count; ++k) {
            PyObject* item = PySequence_GetItem(value, k);
            const bool good = item && readInt(item, &number, parameter.name, op.name);
            Py_XDECREF(item);
            if (!good) return false;
            std::memcpy(place + k * sizeof number, &number, sizeof number);
          }
          break;
        }
        case Kind::seed:
          if (!readSeed(value, place)) return false;
          break;
        default: {
          Type type = values.type;
          // An image whose bits are only moved takes constants of its own type.
          if (op.moves && key.source == Type::none) type = out.first.type;
          if (!writeConstants(value, type, values.count, place, op.name)) return false;
        }
      }
    }
    return true;
  }

  // A number, or a hux.Seed, whose state the function then goes on with.
  PyObject* seed = nullptr;
  bool readSeed(PyObject* value, char* place) {
    if (PyLong_Check(value)) return writeNumber(value, Type::t32u, place, op.name);
    PyObject* state = PyObject_GetAttrString(value, "state");
    if (!state) {
      PyErr_Clear();
      return refuse(PyExc_TypeError, "seed is an int or a hux.Seed");
    }
    seed = value;
    const bool good = PyLong_Check(state) ? writeNumber(state, Type::t32u, place, op.name)
                                          : refuse(PyExc_TypeError, "seed is an int or a hux.Seed");
    Py_DECREF(state);
    return good;
  }

  PyObject* call() {
    Image &first = swapped ? b : a, &second = swapped ? a : b;
    if (std::strchr(member->program, 'J') && a.first.step != b.first.step && (!packSource(a) || !packSource(b)))
      return nullptr;
    const View& size = a.given() ? a.first : out.first;
    Value values[16];
    for (int i = 0; member->program[i]; ++i) {
      Value& value = values[i];
      const char letter = member->program[i];
      switch (letter) {
        case 'a':
          value.p = first.data();
          break;
        case 'A':
        case 'J':
          value.i = int(first.first.step);
          break;
        case 'b':
          value.p = second.data();
          break;
        case 'B':
          value.i = int(second.first.step);
          break;
        case 'o':
          value.p = out.data();
          break;
        case 'O':
          value.i = int(out.first.step);
          break;
        case 'm':
          value.p = mask.data();
          break;
        case 'M':
          value.i = int(mask.step);
          break;
        case 'S':
          value.size = {int(size.width), int(size.height)};
          break;
        case 'n':
          value.i = int(size.width);
          break;
        case 's':
          value.i = options.shift;
          break;
        case 'x':
        case 'y':
        case 'z':
          value.p = results[letter - 'x'];
          break;
        default: {
          char* const place = constants[letter - '0'];
          const Values& own = member->own[letter - '0'];
          if (own.byAddress)
            value.p = place;
          else
            value = byValue(own.type, place);
          break;
        }
      }
    }
    const Function& function = kFunctions[member->function];
    gCalled[member->function] = true;
    Value status;
    if (size.width * size.height * size.channels > kKeepLock) {
      PyThreadState* state = PyEval_SaveThread();
      status = tool::call(function.shape, function.address, values);
      PyEval_RestoreThread(state);
    } else {
      status = tool::call(function.shape, function.address, values);
    }
    if (out.given() && !fresh && status.i >= 0 && !out.putBack()) return nullptr;
    if (seed && status.i >= 0) {
      Hux32u state;
      std::memcpy(&state, constants[stateOf()], sizeof state);
      PyObject* number = PyLong_FromUnsignedLong(state);
      if (!number) return nullptr;
      const int failed = PyObject_SetAttrString(seed, "state", number);
      Py_DECREF(number);
      if (failed) return nullptr;
    }
    if (status.i) {
      PyObject* none = PyObject_CallFunction(gReport, "iss", status.i, function.name, op.name);
      if (!none) return nullptr;
      Py_DECREF(none);
    }
    return op.results ? numbers() : Py_NewRef(result);
  }
  int stateOf() const {
    int i = 0;
    while (kParameters[op.firstParameter + i].kind != Kind::seed) ++i;
    return i;
  }

  PyObject* numbers() {
    int count = 0;
    while (count < kResults && member->results[count].count) ++count;
    if (count == 1) return numbersOf(0);
    PyObject* all = PyTuple_New(count);
    for (int i = 0; all && i < count; ++i) {
      PyObject* one = numbersOf(i);
      if (!one) {
        Py_DECREF(all);
        return nullptr;
      }
      PyTuple_SetItem(all, i, one);
    }
    if (!all || !self.results) return all;
    PyObject* named = PyObject_CallObject(self.results, all);
    Py_DECREF(all);
    return named;
  }

  // A number of one channel, an array of several.
  PyObject* numbersOf(int i) {
    const Values& values = member->results[i];
    const void* const from = results[i];
    if (values.count > 1) {
      PyObject* array = newArray(values.type, 1, values.count, 1, 1, false);
      Py_buffer buffer;
      if (!array || PyObject_GetBuffer(array, &buffer, PyBUF_WRITABLE) < 0) return Py_XDECREF(array), nullptr;
      std::memcpy(buffer.buf, from, size_t(values.count) * kTypeSizes[int(values.type)]);
      PyBuffer_Release(&buffer);
      return array;
    }
    auto as = [&](auto kind) {
      std::memcpy(&kind, from, sizeof kind);
      return kind;
    };
    switch (values.type) {
      case Type::t8u:
        return PyLong_FromLong(as(Hux8u()));
      case Type::t16s:
        return PyLong_FromLong(as(Hux16s()));
      case Type::t32s:
        return PyLong_FromLong(as(int()));
      case Type::t32f:
        return PyFloat_FromDouble(double(as(Hux32f())));
      default:
        return PyFloat_FromDouble(as(Hux64f()));
    }
  }
};

Callable& callable(PyObject* self) { return *reinterpret_cast<Callable*>(self); }
const Operation& operationOf(PyObject* self) { return *callable(self).operation; }

PyObject* vectorCall(PyObject* self, PyObject* const* given, size_t flags, PyObject* names) {
  const Callable& own = callable(self);
  if (!own.operation->native) return PyObject_Vectorcall(own.implementation, given, flags, names);
  return Run(own, given)(Py_ssize_t(flags & ~kArgumentsOffset), names, false);
}

PyObject* which(PyObject* self, PyObject* const* given, Py_ssize_t count, PyObject* names) {
  const Callable& own = callable(self);
  if (!own.operation->native) return PyObject_Vectorcall(own.which, given, size_t(count), names);
  return Run(own, given)(count, names, true);
}

PyObject* name(PyObject* self, void*) { return PyUnicode_FromString(operationOf(self).name); }
PyObject* doc(PyObject* self, void*) { return PyUnicode_FromString(operationOf(self).doc); }
PyObject* native(PyObject* self, void*) { return PyBool_FromLong(operationOf(self).native); }
PyObject* repr(PyObject* self) { return PyUnicode_FromFormat("<operation hux.%s>", operationOf(self).name); }

// Pickled by name.
PyObject* reduce(PyObject* self, PyObject*) { return name(self, nullptr); }

PyObject* members(PyObject* self, void*) {
  const Operation& op = operationOf(self);
  PyObject* all = PyTuple_New(op.count);
  for (int i = 0; all && i < op.count; ++i) {
    const int function = op.native ? kMembers[op.first + i].function : kFunctionLists[op.first + i];
    PyTuple_SetItem(all, i, PyUnicode_FromString(kFunctions[function].name));
  }
  return all;
}

PyMethodDef kMethods[] = {{"which", reinterpret_cast<PyCFunction>(reinterpret_cast<void (*)()>(which)),
                           METH_FASTCALL | METH_KEYWORDS, "The C function that a call with these arguments would run."},
                          {"__reduce__", reduce, METH_NOARGS, nullptr},
                          {}};
PyGetSetDef kProperties[] = {{"__name__", name, nullptr, nullptr, nullptr},
                             {"__qualname__", name, nullptr, nullptr, nullptr},
                             {"__doc__", doc, nullptr, nullptr, nullptr},
                             {"members", members, nullptr, "The C functions that there are.", nullptr},
                             {"native", native, nullptr, "Whether the extension module runs it by itself.", nullptr},
                             {}};
PyMemberDef kFields[] = {{"__vectorcalloffset__", T_PYSSIZET, offsetof(Callable, call), READONLY, nullptr}, {}};
PyType_Slot kSlots[] = {{Py_tp_call, reinterpret_cast<void*>(PyVectorcall_Call)},
                        {Py_tp_repr, reinterpret_cast<void*>(repr)},
                        {Py_tp_methods, kMethods},
                        {Py_tp_getset, kProperties},
                        {Py_tp_members, kFields},
                        {}};
PyType_Spec kSpec = {
    "hux.Operation", sizeof(Callable), 0,
    Py_TPFLAGS_DEFAULT | Py_TPFLAGS_HAVE_VECTORCALL | Py_TPFLAGS_DISALLOW_INSTANTIATION | Py_TPFLAGS_IMMUTABLETYPE,
    kSlots};

// setup(empty, zeros, packed, copyto, dtype, dtypes, report): the references are kept for good.
PyObject* setup(PyObject*, PyObject* arguments) {
  if (!PyArg_ParseTuple(arguments, "OOOOOO!O", &gEmpty, &gZeros, &gPacked, &gCopy, &gDtype, &PyTuple_Type, &gDtypes,
                        &gReport))
    return nullptr;
  for (PyObject* kept : {gEmpty, gZeros, gPacked, gCopy, gDtype, gDtypes, gReport}) Py_INCREF(kept);
  Py_RETURN_NONE;
}

// implement(operation, call, which), of one that is not native; name_results(operation, type) of one that gives
// several.
PyObject* gOperationType;
PyObject* implement(PyObject*, PyObject* arguments) {
  PyObject *operation, *call, *asked;
  if (!PyArg_ParseTuple(arguments, "O!OO", gOperationType, &operation, &call, &asked)) return nullptr;
  callable(operation).implementation = Py_NewRef(call);
  callable(operation).which = Py_NewRef(asked);
  Py_RETURN_NONE;
}
PyObject* nameResults(PyObject*, PyObject* arguments) {
  PyObject *operation, *type;
  if (!PyArg_ParseTuple(arguments, "O!O", gOperationType, &operation, &type)) return nullptr;
  callable(operation).results = Py_NewRef(type);
  Py_RETURN_NONE;
}

PyObject* called(PyObject*, PyObject*) {
  PyObject* names = PyList_New(0);
  for (int i = 0; names && i < kFunctionCount; ++i) {
    if (!gCalled[i]) continue;
    PyObject* name = PyUnicode_FromString(kFunctions[i].name);
    if (!name || PyList_Append(names, name) < 0) return nullptr;
    Py_DECREF(name);
  }
  return names;
}

// What the package passes to a function by itself: None, an address, an array, or for planes a tuple of arrays.
class Raw {
 public:
  ~Raw() {
    for (int i = 0; i < held; ++i) PyBuffer_Release(&buffers[i]);
  }
  bool pointer(PyObject* given, void** to) {
    *to = nullptr;
    if (given == Py_None) return true;
    if (PyLong_Check(given)) {
      *to = PyLong_AsVoidPtr(given);
      return !PyErr_Occurred();
    }
    if (PyTuple_Check(given)) {
      const Py_ssize_t count = PyTuple_Size(given);
      if (count > 4 || lists == kLists) return PyErr_SetString(PyExc_TypeError, "at most four planes"), false;
      void** const list = pointers[lists++];
      for (Py_ssize_t i = 0; i < count; ++i)
        if (!pointer(PyTuple_GetItem(given, i), &list[i])) return false;
      *to = list;
      return true;
    }
    if (held == kBuffers) return PyErr_SetString(PyExc_TypeError, "too many arrays"), false;
    if (PyObject_GetBuffer(given, &buffers[held], PyBUF_RECORDS_RO) < 0) return false;
    *to = buffers[held++].buf;
    return true;
  }
  bool ints(PyObject* given, int* to, int count) {
    for (int i = 0; i < count; ++i) {
      PyObject* item = PySequence_GetItem(given, i);
      const long number = item ? PyLong_AsLong(item) : -1;
      Py_XDECREF(item);
      if (number == -1 && PyErr_Occurred()) return false;
      if (number < INT_MIN || number > INT_MAX)
        return PyErr_SetString(PyExc_ValueError, "a number is beyond 32 bits"), false;
      to[i] = int(number);
    }
    return true;
  }
  bool value(char letter, PyObject* given, Value* to) {
    switch (letter) {
      case 'p':
        return pointer(given, &to->p);
      case 'f':
        to->f = float(PyFloat_AsDouble(given));
        return !PyErr_Occurred();
      case 'd':
        to->d = PyFloat_AsDouble(given);
        return !PyErr_Occurred();
      case 'S':
        return ints(given, &to->size.width, 2);
      case 'P':
        return ints(given, &to->point.x, 2);
      case 'R':
        return ints(given, &to->rect.x, 4);
      case 'u':
        to->u = unsigned(PyLong_AsUnsignedLong(given));
        return !PyErr_Occurred();
      case 'l':
        to->l = PyLong_AsLongLong(given);
        return !PyErr_Occurred();
      default: {
        const long number = PyLong_AsLong(given);
        if (number == -1 && PyErr_Occurred()) return false;
        if (number < INT_MIN || number > INT_MAX)
          return PyErr_SetString(PyExc_ValueError, "a number is beyond 32 bits"), false;
        to->i = int(number);
        return true;
      }
    }
  }

 private:
  static constexpr int kBuffers = 24, kLists = 5;
  Py_buffer buffers[kBuffers];
  void* pointers[kLists][4];
  int held = 0, lists = 0;
};

// call(function, operation, elements, arguments): raises or warns of what the function returns.
PyObject* callRaw(PyObject*, PyObject* const* given, Py_ssize_t count) {
  if (count != 4 || !PyTuple_Check(given[3]))
    return PyErr_SetString(PyExc_TypeError, "call takes four arguments"), nullptr;
  const long index = PyLong_AsLong(given[0]);
  const Py_ssize_t elements = PyLong_AsSsize_t(given[2]);
  if (PyErr_Occurred()) return nullptr;
  if (index < 0 || index >= kFunctionCount) return PyErr_SetString(PyExc_ValueError, "no such function"), nullptr;
  const Function& function = kFunctions[index];
  const Py_ssize_t own = PyTuple_Size(given[3]);
  const char* const letters = function.shapeLetters + 1;
  if (own != Py_ssize_t(std::strlen(letters)) || own > 20)
    return PyErr_Format(PyExc_TypeError, "%s takes %zd arguments", function.name, std::strlen(letters));
  Value values[20], status = {};
  Raw raw;
  for (Py_ssize_t i = 0; i < own; ++i)
    if (!raw.value(letters[i], PyTuple_GetItem(given[3], i), &values[i])) return nullptr;
  gCalled[index] = true;
  if (elements > kKeepLock) {
    PyThreadState* state = PyEval_SaveThread();
    status = tool::call(function.shape, function.address, values);
    PyEval_RestoreThread(state);
  } else {
    status = tool::call(function.shape, function.address, values);
  }
  if (*function.shapeLetters == 'u') return PyLong_FromUnsignedLong(status.u);
  if (status.i) return PyObject_CallFunction(gReport, "isO", status.i, function.name, given[1]);
  Py_RETURN_NONE;
}

// frame(image, out, left, top, mode, value): puts the rows of an image in a larger one, and a border around them. Both
// have their pixels one after another; mode is 0 constant, 1 replicate, 2 symmetric, 3 reflect101, 4 wrap; value is a
// pixel in bytes. A side that is longer than the image goes on as the rule does.
Py_ssize_t mirrored(Py_ssize_t at, Py_ssize_t size, int mode) {
  if (at >= 0 && at < size) return at;
  if (mode == 1) return at < 0 ? 0 : size - 1;
  if (mode == 4) return ((at % size) + size) % size;
  const Py_ssize_t period = mode == 2 ? 2 * size : std::max<Py_ssize_t>(2 * size - 2, 1);
  const Py_ssize_t in = ((at % period) + period) % period;
  return in < size ? in : mode == 2 ? period - 1 - in : period - in;
}

PyObject* frame(PyObject*, PyObject* arguments) {
  PyObject *from, *to;
  Py_ssize_t left, top, pixel;
  int mode;
  const char* value;
  if (!PyArg_ParseTuple(arguments, "OOnniy#", &from, &to, &left, &top, &mode, &value, &pixel)) return nullptr;
  Py_buffer in, out;
  if (PyObject_GetBuffer(from, &in, PyBUF_RECORDS_RO) < 0) return nullptr;
  if (PyObject_GetBuffer(to, &out, PyBUF_RECORDS) < 0) {
    PyBuffer_Release(&in);
    return nullptr;
  }
  const Py_ssize_t height = in.shape[0], width = in.shape[1], rows = out.shape[0], columns = out.shape[1];
  const Py_ssize_t size = pixel, right = left + width, across = in.strides[1];
  const bool packed = across == size || width == 1;
  const bool good = in.ndim >= 2 && out.ndim >= 2 && height > 0 && width > 0 && left >= 0 && top >= 0 &&
                    right <= columns && top + height <= rows && packed && (out.strides[1] == size || columns == 1);
  if (good) {
    PyThreadState* state = rows * columns > kKeepLock ? PyEval_SaveThread() : nullptr;
    std::unique_ptr<Py_ssize_t[]> places(new (std::nothrow) Py_ssize_t[columns]);
    for (Py_ssize_t x = 0; places && x < columns; ++x) places[x] = mode ? mirrored(x - left, width, mode) : -1;
    for (Py_ssize_t y = 0; places && y < rows; ++y) {
      char* const row = static_cast<char*>(out.buf) + y * out.strides[0];
      const bool inside = y >= top && y < top + height;
      const char* const source =
          inside || mode ? static_cast<char*>(in.buf) + mirrored(y - top, height, mode) * in.strides[0] : nullptr;
      if (source) std::memcpy(row + left * size, source, size_t(width * size));
      for (Py_ssize_t x = 0; x < columns; ++x) {
        if (x == left && source) x = right;
        if (x < columns) std::memcpy(row + x * size, source && mode ? source + places[x] * size : value, size_t(size));
      }
    }
    if (state) PyEval_RestoreThread(state);
    if (!places) PyErr_NoMemory();
  } else {
    PyErr_SetString(PyExc_ValueError, "no such frame");
  }
  PyBuffer_Release(&in);
  PyBuffer_Release(&out);
  if (PyErr_Occurred()) return nullptr;
  Py_RETURN_NONE;
}

PyMethodDef kFunctionTable[] = {
    {"setup", setup, METH_VARARGS, nullptr},
    {"implement", implement, METH_VARARGS, nullptr},
    {"name_results", nameResults, METH_VARARGS, nullptr},
    {"called", called, METH_NOARGS, "The C functions that have run in this process by way of operations."},
    {"call", reinterpret_cast<PyCFunction>(reinterpret_cast<void (*)()>(callRaw)), METH_FASTCALL, nullptr},
    {"frame", frame, METH_VARARGS, nullptr},
    {}};
PyModuleDef kModule = {
    PyModuleDef_HEAD_INIT, "hux._hux", nullptr, -1, kFunctionTable, nullptr, nullptr, nullptr, nullptr};

// Which types and layouts become which, from the members.
bool prepare(Callable* self, const Operation& op) {
  for (int i = 0; i < op.parameters; ++i) {
    self->names[i] = PyUnicode_InternFromString(kParameters[op.firstParameter + i].name);
    if (!self->names[i]) return false;
  }
  if (!op.native) return true;
  bool sources[kTypes] = {}, destinations[kTypes][kTypes] = {}, layouts[kLayouts][kLayouts] = {};
  for (int i = 0; i < op.count; ++i) {
    const Key key = parts(kMembers[op.first + i].key);
    sources[int(op.sources ? key.source : key.destination)] = true;
    destinations[int(key.source)][int(key.destination)] = true;
    layouts[key.sourceLayout][key.destinationLayout] = true;
  }
  for (int t = 0; t < kTypes; ++t) {
    int from = t;
    for (int other = 1; op.moves && t && !sources[from] && other < kTypes; ++other)
      if (sources[other] && kTypeSizes[other] == kTypeSizes[t]) from = other;
    self->sourceType[t] = static_cast<unsigned char>(from);
    int to = t;
    for (int other = 1; !destinations[t][to] && other < kTypes; ++other)
      if (destinations[t][other]) to = other;
    self->destinationType[t] = static_cast<unsigned char>(to);
  }
  for (int l = 0; l < kLayouts; ++l) {
    int to = l == kOneOf3 || l == kOneOf4 ? int(kC1) : l;
    for (int other = 1; !layouts[l][to] && other < kLayouts; ++other)
      if (layouts[l][other]) to = other;
    self->destinationLayout[l] = static_cast<unsigned char>(to);
  }
  return true;
}

}  // namespace
}  // namespace hux::python

PyMODINIT_FUNC PyInit__hux() {
  using namespace hux::python;
  for (int i = 0; i < kKeywords; ++i)
    if (!(gKeywords[i] = PyUnicode_InternFromString(kKeywordNames[i]))) return nullptr;
  gCalled = static_cast<bool*>(PyMem_Calloc(size_t(kFunctionCount), 1));
  PyObject* module = PyModule_Create(&kModule);
  PyObject* type = gOperationType = PyType_FromSpec(&kSpec);
  PyObject *operations = PyTuple_New(kOperationCount), *statuses = PyTuple_New(kStatusCount);
  if (!gCalled || !module || !type || !operations || !statuses) return nullptr;
  for (int i = 0; i < kOperationCount; ++i) {
    auto* self = reinterpret_cast<Callable*>(PyType_GenericAlloc(reinterpret_cast<PyTypeObject*>(type), 0));
    if (!self) return nullptr;
    self->call = vectorCall;
    self->operation = &kOperations[i];
    self->implementation = self->which = self->results = nullptr;
    if (!prepare(self, kOperations[i])) return nullptr;
    PyTuple_SetItem(operations, i, reinterpret_cast<PyObject*>(self));
  }
  for (int i = 0; i < kStatusCount; ++i)
    PyTuple_SetItem(statuses, i, Py_BuildValue("iss", kStatuses[i].value, kStatuses[i].name, kStatuses[i].comment));
  if (PyModule_AddObjectRef(module, "operations", operations) < 0 ||
      PyModule_AddObjectRef(module, "statuses", statuses) < 0 || PyModule_AddObjectRef(module, "Operation", type) < 0 ||
      PyModule_AddStringConstant(module, "version", kVersion) < 0)
    return nullptr;
  Dl_info library = {};
  dladdr(reinterpret_cast<void*>(&huxiGetLibVersion), &library);
  if (PyModule_AddStringConstant(module, "library_path", library.dli_fname ? library.dli_fname : "") < 0)
    return nullptr;
  return module;
}
