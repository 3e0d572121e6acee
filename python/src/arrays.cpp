#include "arrays.h"

#include <cstring>

namespace hux::python {

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

PyObject* newArray(Type type, Py_ssize_t height, Py_ssize_t width, int axes, int channels, bool zero) {
  const Py_ssize_t all[] = {height, width, channels};
  const Py_ssize_t* const sides = axes == 1 ? all + 1 : all;
  if (NewArray make = zero ? gNewZeros : gNewEmpty) return make(axes, sides, Py_NewRef(dtypeOf(type)), 0);
  PyObject* shape = PyTuple_New(axes);
  for (int i = 0; shape && i < axes; ++i) PyTuple_SetItem(shape, i, PyLong_FromSsize_t(sides[i]));
  PyObject* array =
      shape ? PyObject_CallFunctionObjArgs(zero ? gZeros : gEmpty, shape, dtypeOf(type), nullptr) : nullptr;
  Py_XDECREF(shape);
  return array;
}

}  // namespace hux::python
