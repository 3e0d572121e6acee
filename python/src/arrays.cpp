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

}  // namespace hux::python
