// The extension module: operations as callables, which pick the C function by the elements and channels of the arrays.
#define PY_SSIZE_T_CLEAN
#define Py_LIMITED_API 0x030B0000
#include <Python.h>
#include <structmember.h>

#include <climits>
#include <cmath>
#include <cstddef>
#include <cstring>
#include <string>

#include "table.h"

// Calls by vector entered the limited API with 3.12, as they stand in 3.11, whose headers leave them out.
#ifndef Py_TPFLAGS_HAVE_VECTORCALL
#define Py_TPFLAGS_HAVE_VECTORCALL (1UL << 11)
#endif
extern "C" PyObject* PyVectorcall_Call(PyObject*, PyObject*, PyObject*);

namespace hux::python {
namespace {

using tool::Value;
using VectorCall = PyObject* (*)(PyObject*, PyObject* const*, size_t, PyObject*);
constexpr size_t kArgumentsOffset = size_t(1) << (8 * sizeof(size_t) - 1);
constexpr Py_ssize_t kKeepLock = 16000;  // elements from which other threads may run meanwhile

// What the package gives (see setup): numpy's empty, ascontiguousarray and copyto, the dtypes by Type, and what raises
// or warns of a status.
PyObject *gEmpty, *gContiguous, *gCopy, *gDtypes, *gReport;
PyObject *gOut, *gShift, *gAlpha;  // names of keywords

struct Callable {
  PyObject ob_base;  // PyObject_HEAD
  VectorCall call;
  const Operation* operation;
  // By type, layout, whether there is a constant, whether in place: which of the operation's members, from 1; 0 is
  // none.
  short index[int(Type::t64fc) + 1][6][2][2];
};

const char* const kTypeNames[] = {"none",          "uint8",     "int8",      "uint16",  "int16",
                                  "uint32",        "int32",     "float32",   "float64", "complex_int16",
                                  "complex_int32", "complex64", "complex128"};
constexpr int kTypeSizes[] = {0, 1, 1, 2, 2, 4, 4, 4, 8, 4, 8, 8, 16};

Type typeOf(const char* format, Py_ssize_t size) {
  if (!format) return Type::t8u;
  if (*format == '@' || *format == '=') ++format;
  if (!std::strcmp(format, "T{h:re:h:im:}") && size == 4) return Type::t16sc;
  if (!std::strcmp(format, "T{i:re:i:im:}") && size == 8) return Type::t32sc;
  if (!std::strcmp(format, "Zf")) return Type::t32fc;
  if (!std::strcmp(format, "Zd")) return Type::t64fc;
  if (!*format || format[1]) return Type::none;
  const bool isSigned = std::strchr("bhil", *format), isUnsigned = std::strchr("BHIL", *format);
  if (*format == 'f') return Type::t32f;
  if (*format == 'd') return Type::t64f;
  if (isSigned) return size == 1 ? Type::t8s : size == 2 ? Type::t16s : size == 4 ? Type::t32s : Type::none;
  if (isUnsigned) return size == 1 ? Type::t8u : size == 2 ? Type::t16u : size == 4 ? Type::t32u : Type::none;
  return Type::none;
}

// An array, and what is to be let go with it.
struct View {
  Py_buffer buffer;
  PyObject* own = nullptr;  // a copy that was made to be read
  bool held = false;
  Type type = Type::none;
  Py_ssize_t height = 1, width = 1, step = 0, low = 0, high = 0;  // low and high: the bytes it lies on, from its start
  int channels = 1;
  bool pixelsApart = false, rowsApart = false;  // other than one after another; other than upwards and disjoint

  View() = default;
  View(const View&) = delete;
  ~View() {
    release();
    Py_XDECREF(own);
  }
  void release() {
    if (held) PyBuffer_Release(&buffer);
    held = false;
  }
  char* data() const { return static_cast<char*>(buffer.buf); }

  bool take(PyObject* object, bool written, const char* operation) {
    if (PyObject_GetBuffer(object, &buffer, written ? PyBUF_RECORDS : PyBUF_RECORDS_RO) < 0) {
      if (PyErr_ExceptionMatches(PyExc_TypeError))
        PyErr_Format(PyExc_TypeError, "%s: an array is expected, not %R", operation, object);
      else if (PyErr_ExceptionMatches(PyExc_BufferError))
        PyErr_Format(PyExc_ValueError, "%s: %R is read-only", operation, object);
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
    const int n = buffer.ndim;
    if (n < 1 || n > 3) {
      PyErr_Format(PyExc_TypeError, "%s: an image has the shape (H, W) or (H, W, C), a vector (N,); not %d axes",
                   operation, n);
      return false;
    }
    const Py_ssize_t *shape = buffer.shape, *strides = buffer.strides;
    height = n == 1 ? 1 : shape[0];
    width = n == 1 ? shape[0] : shape[1];
    if (n == 3 && shape[2] != 1 && shape[2] != 3 && shape[2] != 4) {
      PyErr_Format(PyExc_TypeError, "%s: the last axis has 1, 3 or 4 channels, not %zd", operation, shape[2]);
      return false;
    }
    channels = n == 3 ? int(shape[2]) : 1;
    if (height > INT_MAX || width > INT_MAX / (size * channels)) {
      PyErr_Format(PyExc_ValueError, "%s: sides and rows of an array end at 2^31 - 1", operation);
      return false;
    }
    const Py_ssize_t pixel = size * channels, row = width * pixel;
    const Py_ssize_t across = strides[n == 1 ? 0 : 1];
    pixelsApart = (width > 1 && across != pixel) || (channels > 1 && strides[2] != size);
    step = n > 1 && height > 1 ? strides[0] : row;
    rowsApart = step < row || step > INT_MAX || step % size != 0;
    for (int i = 0; i < n; ++i) {
      const Py_ssize_t reach = shape[i] > 1 ? (shape[i] - 1) * strides[i] : 0;
      (reach < 0 ? low : high) += reach;
    }
    high += size;
    return true;
  }

  // A new array of the kind of another, whose elements lie without gaps. It is not asked what it is, which takes long.
  bool takeNew(PyObject* object, const View& like) {
    release();
    if (PyObject_GetBuffer(object, &buffer, PyBUF_WRITABLE) < 0) return false;
    held = true;
    type = like.type;
    height = like.height;
    width = like.width;
    channels = like.channels;
    step = width * channels * kTypeSizes[int(type)];
    low = 0;
    high = height * step;
    return true;
  }

  // What is read may be a copy.
  bool takeToRead(PyObject* object, const char* operation) {
    if (!take(object, false, operation)) return false;
    if (!pixelsApart && !rowsApart) return true;
    release();
    own = PyObject_CallFunctionObjArgs(gContiguous, object, nullptr);
    low = high = 0;
    return own && take(own, false, operation);
  }

  bool sameShape(const View& other) const {
    if (buffer.ndim != other.buffer.ndim) return false;
    return !std::memcmp(buffer.shape, other.buffer.shape, sizeof(Py_ssize_t) * buffer.ndim);
  }
  bool same(const View& other) const {  // of two of the same shape
    return data() == other.data() && type == other.type && step == other.step && !pixelsApart && !other.pixelsApart;
  }
  bool touches(const View& other) const {
    return data() + low < other.data() + other.high && other.data() + other.low < data() + high;
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

const Member* find(const Callable& self, Type type, int layout, bool constant, bool inPlace) {
  const int place = self.index[int(type)][layout][constant][inPlace];
  return place ? kMembers + self.operation->first + place - 1 : nullptr;
}

std::string existing(const Operation& operation) {
  std::string list;
  for (int i = 0; i < operation.count; ++i) {
    const Member& m = kMembers[operation.first + i];
    std::string word = kTypeNames[int(m.type)];
    word += m.layout == 5 ? " with 4 channels and alpha=\"keep\"" : " with " + std::to_string(m.layout);
    if (list.find(word + ";") == std::string::npos) list += (list.empty() ? "" : " ") + word + ";";
  }
  if (!list.empty()) list.pop_back();
  return list;
}

bool isConstant(PyObject* object, PyObject* source) {
  if (Py_TYPE(object) == Py_TYPE(source)) return false;
  if (PyLong_Check(object) || PyFloat_Check(object) || PyComplex_Check(object) || PyTuple_Check(object) ||
      PyList_Check(object))
    return true;
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

PyObject* newArray(const View& like) {
  PyObject* shape = PyTuple_New(like.buffer.ndim);
  if (!shape) return nullptr;
  for (int i = 0; i < like.buffer.ndim; ++i) PyTuple_SetItem(shape, i, PyLong_FromSsize_t(like.buffer.shape[i]));
  PyObject* array = PyObject_CallFunctionObjArgs(gEmpty, shape, PyTuple_GetItem(gDtypes, int(like.type)), nullptr);
  Py_DECREF(shape);
  return array;
}

bool copy(PyObject* to, PyObject* from) {
  PyObject* none = PyObject_CallFunctionObjArgs(gCopy, to, from, nullptr);
  Py_XDECREF(none);
  return none;
}

struct Options {
  PyObject* out = nullptr;
  int shift = 0;
  bool keepAlpha = false;
};

bool readOptions(const Operation& operation, PyObject* const* values, PyObject* names, Options* options) {
  const Py_ssize_t count = names ? PyTuple_Size(names) : 0;
  for (Py_ssize_t i = 0; i < count; ++i) {
    PyObject *name = PyTuple_GetItem(names, i), *value = values[i];
    auto is = [&](PyObject* word) { return name == word || PyUnicode_Compare(name, word) == 0; };
    if (is(gOut)) {
      options->out = value == Py_None ? nullptr : value;
    } else if (is(gShift) && operation.scaled) {
      const long shift = PyLong_AsLong(value);
      const bool failed = shift == -1 && PyErr_Occurred();
      if (failed && !PyErr_ExceptionMatches(PyExc_OverflowError)) return false;
      if (failed || shift < INT_MIN || shift > INT_MAX) {
        PyErr_Format(PyExc_ValueError, "%s: shift is beyond 32 bits", operation.name);
        return false;
      }
      options->shift = int(shift);
    } else if (is(gAlpha)) {
      options->keepAlpha = value != Py_None;
      if (options->keepAlpha && (!PyUnicode_Check(value) || PyUnicode_CompareWithASCIIString(value, "keep") != 0)) {
        PyErr_Format(PyExc_ValueError, "%s: alpha is \"keep\" or None, not %R", operation.name, value);
        return false;
      }
    } else {
      PyErr_Format(PyExc_TypeError, "%s: no keyword %R", operation.name, name);
      return false;
    }
  }
  return true;
}

// Runs the operation, or with only asked, tells which function would run.
PyObject* run(const Callable& self, PyObject* const* given, Py_ssize_t count, PyObject* names, bool onlyAsked) {
  const Operation& op = *self.operation;
  Options options;
  if (count != op.sources) {
    PyErr_Format(PyExc_TypeError, "%s takes %d positional argument%s, not %zd", op.name, op.sources,
                 op.sources == 1 ? "" : "s", count);
    return nullptr;
  }
  if (!readOptions(op, given + count, names, &options)) return nullptr;

  View a, b, out;
  if (!a.takeToRead(given[0], op.name)) return nullptr;
  const bool constant = count == 2 && isConstant(given[1], given[0]);
  if (count == 2 && !constant) {
    if (!b.takeToRead(given[1], op.name)) return nullptr;
    if (b.type != a.type) {
      PyErr_Format(PyExc_TypeError, "%s: the sources have %s and %s; there is no promotion", op.name,
                   kTypeNames[int(a.type)], kTypeNames[int(b.type)]);
      return nullptr;
    }
    if (!b.sameShape(a)) {
      PyErr_Format(PyExc_ValueError, "%s: the sources differ in shape; there is no broadcasting", op.name);
      return nullptr;
    }
  }
  if (options.keepAlpha && a.channels != 4) {
    PyErr_Format(PyExc_TypeError, "%s: alpha=\"keep\" is for four channels", op.name);
    return nullptr;
  }
  const int layout = options.keepAlpha ? 5 : a.channels;
  const Member* apart = find(self, a.type, layout, constant, false);
  const Member* inPlace = find(self, a.type, layout, constant, true);
  if (!apart && !inPlace) {
    const std::string list = existing(op);
    PyErr_Format(PyExc_TypeError, "%s: no function for %s%s with %d channel%s%s; there are: %s", op.name,
                 constant ? "a constant and " : "", kTypeNames[int(a.type)], a.channels, a.channels == 1 ? "" : "s",
                 options.keepAlpha ? " and alpha=\"keep\"" : "", list.c_str());
    return nullptr;
  }
  if (options.shift && !std::strchr((apart ? apart : inPlace)->program, 's')) {
    PyErr_Format(PyExc_TypeError, "%s: no shift for %s", op.name, kTypeNames[int(a.type)]);
    return nullptr;
  }

  // Where the result goes, and which form that asks for. The result is made aside where out shares bytes with a source
  // without being it, or has rows that functions do not take.
  bool aside = false, swapped = false;
  const Member* member = apart;
  if (options.out) {
    if (!out.take(options.out, true, op.name)) return nullptr;
    if (out.type != a.type || !out.sameShape(a)) {
      PyErr_Format(out.type != a.type ? PyExc_TypeError : PyExc_ValueError, "%s: out must have the %s of the source",
                   op.name, out.type != a.type ? "dtype" : "shape");
      return nullptr;
    }
    const Py_ssize_t row = out.width * out.channels * out.buffer.itemsize;
    if (out.pixelsApart || (out.step < row && out.step > -row)) {
      PyErr_Format(PyExc_ValueError, "%s: out must have its pixels one after another, and rows that do not overlap",
                   op.name);
      return nullptr;
    }
    const bool two = count == 2 && !constant;
    if (out.rowsApart) {
      aside = true;
    } else if (out.same(a) && !a.own && inPlace && !(two && b.touches(out) && !b.same(out))) {
      member = inPlace;
    } else if (two && op.commutative && out.same(b) && !b.own && inPlace && !a.touches(out)) {
      member = inPlace;
      swapped = true;
    } else {
      aside = out.touches(a) || (two && out.touches(b));
    }
    // The second source of a form in place is apart from the destination.
    if (member == inPlace && apart && two && (swapped ? a : b).touches(out)) {
      member = apart;
      aside = true;
    }
  }
  if (!member) member = inPlace;
  if (onlyAsked) return PyUnicode_FromString(member->name);

  PyObject* result = options.out && !aside ? Py_NewRef(options.out) : newArray(a);
  if (!result) return nullptr;
  auto fail = [&] {
    Py_DECREF(result);
    return nullptr;
  };
  const bool fresh = !options.out || aside;
  if (fresh && !out.takeNew(result, a)) return fail();
  // What stays as it was: alpha, and the source that a form in place starts from.
  const bool startsFromOther = member->inPlace && (fresh || !(swapped ? out.same(b) : out.same(a)));
  if (startsFromOther || (fresh && options.keepAlpha)) {
    PyObject* start = aside && options.keepAlpha && !member->inPlace ? options.out : a.own ? a.own : given[0];
    if (!copy(result, start)) return fail();
  }
  alignas(16) char constants[4 * 16];
  if (constant && !writeConstants(given[1], member->constant, layout == 5 ? 3 : layout, constants, op.name))
    return fail();

  Value values[12], status;
  const View &first = swapped ? b : a, &second = swapped ? a : b;
  for (int i = 0; member->program[i]; ++i) switch (member->program[i]) {
      case 'a':
        values[i].p = first.data();
        break;
      case 'A':
        values[i].i = int(first.step);
        break;
      case 'b':
        values[i].p = second.data();
        break;
      case 'B':
        values[i].i = int(second.step);
        break;
      case 'o':
        values[i].p = out.data();
        break;
      case 'O':
        values[i].i = int(out.step);
        break;
      case 'c':
        values[i] = byValue(member->constant, constants);
        break;
      case 'C':
        values[i].p = constants;
        break;
      case 'S':
        values[i].size = {int(a.width), int(a.height)};
        break;
      default:
        values[i].i = options.shift;
        break;
    }
  if (a.width * a.height * a.channels > kKeepLock) {
    PyThreadState* state = PyEval_SaveThread();
    status = tool::call(member->shape, member->address, values);
    PyEval_RestoreThread(state);
  } else {
    status = tool::call(member->shape, member->address, values);
  }
  if (status.i) {
    PyObject* none = PyObject_CallFunction(gReport, "iss", status.i, member->name, op.name);
    if (!none) return fail();
    Py_DECREF(none);
  }
  if (aside) {
    if (!copy(options.out, result)) return fail();
    Py_DECREF(result);
    return Py_NewRef(options.out);
  }
  return result;
}

const Callable& callable(PyObject* self) { return *reinterpret_cast<Callable*>(self); }
const Operation& operationOf(PyObject* self) { return *callable(self).operation; }

PyObject* vectorCall(PyObject* self, PyObject* const* given, size_t count, PyObject* names) {
  return run(callable(self), given, Py_ssize_t(count & ~kArgumentsOffset), names, false);
}

PyObject* which(PyObject* self, PyObject* const* given, Py_ssize_t count, PyObject* names) {
  return run(callable(self), given, count, names, true);
}

PyObject* name(PyObject* self, void*) { return PyUnicode_FromString(operationOf(self).name); }
PyObject* doc(PyObject* self, void*) { return PyUnicode_FromString(operationOf(self).doc); }
PyObject* repr(PyObject* self) { return PyUnicode_FromFormat("<operation hux.%s>", operationOf(self).name); }

// Pickled by name.
PyObject* reduce(PyObject* self, PyObject*) { return name(self, nullptr); }

PyObject* members(PyObject* self, void*) {
  const Operation& op = operationOf(self);
  PyObject* all = PyTuple_New(op.count);
  for (int i = 0; all && i < op.count; ++i) PyTuple_SetItem(all, i, PyUnicode_FromString(kMembers[op.first + i].name));
  return all;
}

PyMethodDef kMethods[] = {{"which", reinterpret_cast<PyCFunction>(reinterpret_cast<void (*)()>(which)),
                           METH_FASTCALL | METH_KEYWORDS, "The C function that a call with these arguments would run."},
                          {"__reduce__", reduce, METH_NOARGS, nullptr},
                          {}};
PyGetSetDef kProperties[] = {{"__name__", name, nullptr, nullptr, nullptr},
                             {"__doc__", doc, nullptr, nullptr, nullptr},
                             {"members", members, nullptr, "The C functions that there are.", nullptr},
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

// setup(empty, ascontiguousarray, copyto, dtypes, report): the references are kept for good.
PyObject* setup(PyObject*, PyObject* arguments) {
  if (!PyArg_ParseTuple(arguments, "OOOO!O", &gEmpty, &gContiguous, &gCopy, &PyTuple_Type, &gDtypes, &gReport))
    return nullptr;
  for (PyObject* kept : {gEmpty, gContiguous, gCopy, gDtypes, gReport}) Py_INCREF(kept);
  Py_RETURN_NONE;
}

PyMethodDef kFunctions[] = {{"setup", setup, METH_VARARGS, nullptr}, {}};
PyModuleDef kModule = {PyModuleDef_HEAD_INIT, "hux._hux", nullptr, -1, kFunctions, nullptr, nullptr, nullptr, nullptr};

}  // namespace
}  // namespace hux::python

PyMODINIT_FUNC PyInit__hux() {
  using namespace hux::python;
  gOut = PyUnicode_InternFromString("out");
  gShift = PyUnicode_InternFromString("shift");
  gAlpha = PyUnicode_InternFromString("alpha");
  PyObject* module = PyModule_Create(&kModule);
  PyObject* type = PyType_FromSpec(&kSpec);
  PyObject *operations = PyTuple_New(kOperationCount), *statuses = PyTuple_New(kStatusCount);
  if (!gOut || !gShift || !gAlpha || !module || !type || !operations || !statuses) return nullptr;
  for (int i = 0; i < kOperationCount; ++i) {
    auto* self = reinterpret_cast<Callable*>(PyType_GenericAlloc(reinterpret_cast<PyTypeObject*>(type), 0));
    if (!self) return nullptr;
    self->call = vectorCall;
    self->operation = &kOperations[i];
    for (int k = 0; k < kOperations[i].count; ++k) {
      const Member& m = kMembers[kOperations[i].first + k];
      self->index[int(m.type)][m.layout][m.constant != Type::none][m.inPlace] = short(k + 1);
    }
    PyTuple_SetItem(operations, i, reinterpret_cast<PyObject*>(self));
  }
  for (int i = 0; i < kStatusCount; ++i)
    PyTuple_SetItem(statuses, i, Py_BuildValue("iss", kStatuses[i].value, kStatuses[i].name, kStatuses[i].comment));
  if (PyModule_AddObjectRef(module, "operations", operations) < 0 ||
      PyModule_AddObjectRef(module, "statuses", statuses) < 0 || PyModule_AddObjectRef(module, "Operation", type) < 0 ||
      PyModule_AddStringConstant(module, "version", kVersion) < 0)
    return nullptr;
  return module;
}
