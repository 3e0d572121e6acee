#include "values.h"

#include <climits>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <new>
#include <string>

#include "arrays.h"

namespace hux::python {

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
    if (!exact) {
      if (PyErr_ExceptionMatches(PyExc_TypeError))
        PyErr_Format(PyExc_TypeError, "%s: the constant %R is no %s", operation, number, kTypeNames[int(type)]);
      return false;
    }
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

bool isVector(PyObject* object) {
  Py_buffer buffer;
  if (PyLong_Check(object) || PyFloat_Check(object) || PyUnicode_Check(object)) return false;
  if (PyObject_GetBuffer(object, &buffer, PyBUF_RECORDS_RO) < 0) return PyErr_Clear(), false;
  const bool vector = buffer.ndim == 1;
  PyBuffer_Release(&buffer);
  return vector;
}

bool writeConstants(PyObject* given, Type type, int count, void* place, const char* operation) {
  const bool several = PyTuple_Check(given) || PyList_Check(given) || isVector(given);
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
  if (Py_TYPE(object) == gArrayType && Py_TYPE(source) == gArrayType) return false;
  if (!PyTuple_Check(object) && !PyList_Check(object)) return Py_TYPE(object) != Py_TYPE(source) && isNumber(object);
  if (!mayBePlanes || PySequence_Size(object) < 1) return true;
  PyObject* item = PySequence_GetItem(object, 0);
  const bool number = item && isNumber(item);
  Py_XDECREF(item);
  return number;
}

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

bool readInts(PyObject* given, int count, int* values, const char* name, const char* text, const char* operation) {
  bool good = PySequence_Size(given) == count && !PyUnicode_Check(given);
  for (int i = 0; good && i < count; ++i) {
    PyObject* item = PySequence_GetItem(given, i);
    const long number = item ? PyLong_AsLong(item) : -1;
    Py_XDECREF(item);
    const bool failed = number == -1 && PyErr_Occurred();
    if ((failed && PyErr_ExceptionMatches(PyExc_OverflowError)) || number < INT_MIN || number > INT_MAX) {
      PyErr_Format(PyExc_ValueError, "%s: %s is beyond 32 bits", operation, name);
      return false;
    }
    good = !failed;
    values[i] = int(number);
  }
  if (!good) PyErr_Format(PyExc_TypeError, "%s: %s is %s, not %R", operation, name, text, given);
  return good;
}

bool readMaskSize(PyObject* given, HuxiSize* size, const char* operation) {
  constexpr const char* name = "mask_size";
  if (PyUnicode_Check(given)) {
    int end = -1;
    const char* text = PyUnicode_AsUTF8AndSize(given, nullptr);
    if (text && std::sscanf(text, "%9dx%9d%n", &size->width, &size->height, &end) == 2 && end >= 0 && !text[end])
      return true;
    PyErr_Format(PyExc_ValueError, "%s: mask_size is a pair (width, height) or \"3x3\", not %R", operation, given);
    return false;
  }
  if (PyIndex_Check(given)) {
    const bool good = readInt(given, &size->width, name, operation);
    size->height = size->width;
    return good;
  }
  return readInts(given, 2, &size->width, name, "a pair (width, height) or \"3x3\"", operation);
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

bool readShape(PyObject* given, Py_ssize_t* sides, int* axes, const char* operation) {
  const Py_ssize_t count = PySequence_Size(given);
  if (count < 0) PyErr_Clear();
  bool good = count >= 1 && count <= 3;
  for (Py_ssize_t i = 0; good && i < count; ++i) {
    PyObject* side = PySequence_GetItem(given, i);
    sides[i] = side ? PyLong_AsSsize_t(side) : -1;
    Py_XDECREF(side);
    if (PyErr_Occurred()) PyErr_Clear(), sides[i] = -1;
    good = sides[i] >= 0 && sides[i] <= INT_MAX && (i < 2 || (sides[i] >= 1 && sides[i] <= 4));
  }
  *axes = int(count);
  if (!good) PyErr_Format(PyExc_ValueError, "%s: shape is (H, W), (H, W, C) or (N,), not %R", operation, given);
  return good;
}

bool Numbers::take(PyObject* given, const char* name, const char* operation) {
  Py_buffer buffer;
  PyObject* array = Py_NewRef(given);
  if (PyObject_GetBuffer(array, &buffer, PyBUF_RECORDS_RO) < 0) {
    PyErr_Clear();
    Py_DECREF(array);
    array = PyObject_CallFunctionObjArgs(gArray, given, nullptr);
    if (!array) return false;
    if (PyObject_GetBuffer(array, &buffer, PyBUF_RECORDS_RO) < 0) return Py_DECREF(array), false;
  }
  const char* format = buffer.format ? buffer.format : "B";
  if (*format == '@' || *format == '=') ++format;
  const char kind = *format && !format[1] ? *format : 0;
  axes = buffer.ndim;
  rows = axes == 2 ? buffer.shape[0] : 1;
  columns = axes > 0 ? buffer.shape[axes - 1] : 1;
  whole = kind && std::strchr("?bBhHiIlLqQ", kind);
  bool good = (whole || kind == 'f' || kind == 'd') && axes <= 2 && count() > 0;
  if (!good)
    PyErr_Format(PyExc_TypeError, "%s: %s is an array of one or two axes of numbers, not %R", operation, name, given);
  else if (count() > Py_ssize_t(sizeof few / sizeof *few)) {
    many.reset(count() < (Py_ssize_t(1) << 28) ? new (std::nothrow) double[count()] : nullptr);
    values = many.get();
    if (!values) good = (PyErr_NoMemory(), false);
  }
  for (Py_ssize_t y = 0; good && y < rows; ++y)
    for (Py_ssize_t x = 0; x < columns; ++x) {
      const char* at = static_cast<char*>(buffer.buf) + (axes > 1 ? y * buffer.strides[0] : 0) +
                       (axes > 0 ? x * buffer.strides[axes - 1] : 0);
      auto as = [&](auto number) {
        std::memcpy(&number, at, sizeof number);
        values[y * columns + x] = double(number);
      };
      const bool plain = std::strchr("?BHILQ", kind) != nullptr;
      if (kind == 'f')
        as(0.f);
      else if (kind == 'd')
        as(0.);
      else if (buffer.itemsize == 1)
        plain ? as(std::uint8_t()) : as(std::int8_t());
      else if (buffer.itemsize == 2)
        plain ? as(std::uint16_t()) : as(std::int16_t());
      else if (buffer.itemsize == 4)
        plain ? as(std::uint32_t()) : as(std::int32_t());
      else
        plain ? as(std::uint64_t()) : as(std::int64_t());
    }
  PyBuffer_Release(&buffer);
  Py_DECREF(array);
  return good;
}

void* Numbers::as(Type type, const char* name, const char* operation) {
  auto* const place = reinterpret_cast<char*>(values);
  for (Py_ssize_t i = 0; i < count(); ++i) {
    const double value = values[i];
    if (type == Type::t32f) {
      const float element = float(value);
      std::memcpy(place + i * sizeof element, &element, sizeof element);
    } else if (type == Type::t8u) {
      place[i] = value != 0;
    } else {
      if (value < INT_MIN || value > INT_MAX) {
        PyErr_Format(PyExc_ValueError, "%s: %s: integers of 32 bits are expected", operation, name);
        return nullptr;
      }
      const int element = int(value);
      std::memcpy(place + i * sizeof element, &element, sizeof element);
    }
  }
  return place;
}

}  // namespace hux::python
