// The extension module: operations as callables, which pick the C function by the elements and layouts of the arrays.
#include "chain.h"
#include "run.h"

#include <dlfcn.h>
#include <structmember.h>

#include <climits>
#include <cstddef>
#include <cstdio>
#include <cstdlib>

namespace hux::python {

PyObject *gEmpty, *gZeros, *gPacked, *gArray, *gCopy, *gShares, *gDtype, *gReport, *gSignature;
PyObject* gDtypes[kTypes];
PyObject* gKeywords[kKeywords];
bool* gCalled;
PyTypeObject* gArrayType;
NewArray gNewEmpty, gNewZeros;

namespace {

Callable& callable(PyObject* self) { return *reinterpret_cast<Callable*>(self); }
const Operation& operationOf(PyObject* self) { return *callable(self).operation; }

PyObject* vectorCall(PyObject* self, PyObject* const* given, size_t flags, PyObject* names) {
  const Callable& own = callable(self);
  if (gRecording > 0) {
    PyObject* const made = recorded(self, given, Py_ssize_t(flags & ~kArgumentsOffset), names);
    if (made != Py_NotImplemented) return made;
    Py_DECREF(made);
  }
  if (!own.operation->native()) return PyObject_Vectorcall(own.implementation, given, flags, names);
  return Run(own, given)(Py_ssize_t(flags & ~kArgumentsOffset), names, Asked::result);
}

PyObject* which(PyObject* self, PyObject* const* given, Py_ssize_t count, PyObject* names) {
  const Callable& own = callable(self);
  if (!own.operation->native()) return PyObject_Vectorcall(own.which, given, size_t(count), names);
  return Run(own, given)(count, names, Asked::name);
}

bool isOf(const Callable& own, bool known, const char* what) {
  if (!known) PyErr_Format(PyExc_TypeError, "%s has no %s", own.operation->name, what);
  return known;
}

PyObject* reachOf(PyObject* self, PyObject* const* given, Py_ssize_t count, PyObject* names) {
  const Callable& own = callable(self);
  return isOf(own, own.operation->family == Family::window, "reach") ? Run(own, given)(count, names, Asked::reach)
                                                                     : nullptr;
}

PyObject* shapeOf(PyObject* self, PyObject* const* given, Py_ssize_t count, PyObject* names) {
  const Callable& own = callable(self);
  const bool known = own.operation->native() && own.operation->family != Family::measure && own.operation->sources;
  return isOf(own, known, "shape of its own") ? Run(own, given)(count, names, Asked::shape) : nullptr;
}

// part(size, source, result, ...): the three of Part, and a call.
PyObject* partOf(PyObject* self, PyObject* const* given, Py_ssize_t count, PyObject* names) {
  const Callable& own = callable(self);
  if (!isOf(own, own.operation->family == Family::geometry && count >= 3, "part")) return nullptr;
  Run run(own, given + 3);
  const char* const text = "a pair of integers (x, y)";
  run.part.given = true;
  if (!readInts(given[0], 2, &run.part.size.width, "size", text, own.operation->name) ||
      !readInts(given[1], 2, &run.part.source.x, "source", text, own.operation->name) ||
      !readInts(given[2], 2, &run.part.result.x, "result", text, own.operation->name))
    return nullptr;
  return run(count - 3, names, Asked::result);
}

PyObject* name(PyObject* self, void*) { return PyUnicode_FromString(operationOf(self).name); }
PyObject* doc(PyObject* self, void*) { return PyUnicode_FromString(operationOf(self).doc); }
PyObject* native(PyObject* self, void*) { return PyBool_FromLong(operationOf(self).native()); }
PyObject* signature(PyObject* self, void*) { return PyObject_CallFunctionObjArgs(gSignature, self, nullptr); }
PyObject* repr(PyObject* self) { return PyUnicode_FromFormat("<operation hux.%s>", operationOf(self).name); }

// Pickled by name.
PyObject* reduce(PyObject* self, PyObject*) { return name(self, nullptr); }

PyObject* members(PyObject* self, void*) {
  const Operation& op = operationOf(self);
  PyObject* all = PyTuple_New(op.count);
  for (int i = 0; all && i < op.count; ++i) {
    const int function = op.native() ? kMembers[op.first + i].function : kFunctionLists[op.first + i];
    PyTuple_SetItem(all, i, PyUnicode_FromString(kFunctions[function].name));
  }
  return all;
}

using WithNames = PyObject* (*)(PyObject*, PyObject* const*, Py_ssize_t, PyObject*);
PyMethodDef method(const char* name, WithNames function, const char* doc) {
  return {name, reinterpret_cast<PyCFunction>(reinterpret_cast<void (*)()>(function)), METH_FASTCALL | METH_KEYWORDS,
          doc};
}
PyMethodDef kMethods[] = {
    method("which", which, "The C function that a call with these arguments would run."),
    method("reach", reachOf, "How far around a pixel a window with these arguments reads: left, top, right, bottom."),
    method("shape_of", shapeOf, "The shape and the dtype of the result of a call, for which no pixel is read."),
    method("part", partOf,
           "part(size, source, result, ...): of a geometric operation, what the result is from result on, made of the\n"
           "source from source on; size is that of the whole source. Of it, all that is looked at must be there."),
    {"__reduce__", reduce, METH_NOARGS, nullptr},
    {}};
PyGetSetDef kProperties[] = {{"__name__", name, nullptr, nullptr, nullptr},
                             {"__qualname__", name, nullptr, nullptr, nullptr},
                             {"__signature__", signature, nullptr, nullptr, nullptr},
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

// Whether an array is what NumpyArray says: two of three columns of int16, at an address, read-only.
bool isLaidOut(PyObject* probe, void* address) {
  const NumpyArray& a = *reinterpret_cast<NumpyArray*>(probe);
  return a.data == address && a.axes == 2 && a.shape[0] == 2 && a.shape[1] == 2 && a.strides[0] == 6 &&
         a.strides[1] == 4 && a.dtype == dtypeOf(Type::t16s) && !(a.flags & kWriteable);
}

// The table begins with a function that tells its version. Within the two that there are places do not change.
bool findNewArray(PyObject* table) {
  const auto* const entries = static_cast<void* const*>(PyCapsule_GetPointer(table, nullptr));
  if (!entries) return false;
  const unsigned version = reinterpret_cast<unsigned (*)()>(entries[0])();
  if (version != 0x01000009 && version != 0x02000000) return true;
  gNewZeros = reinterpret_cast<NewArray>(entries[183]);
  gNewEmpty = reinterpret_cast<NewArray>(entries[184]);
  return true;
}

// setup(empty, zeros, packed, asarray, copyto, shares_memory, dtype, dtypes, report, signature, probe, its address,
// table or None): the references are kept for good.
PyObject* setup(PyObject*, PyObject* arguments) {
  PyObject *dtypes, *probe, *table;
  Py_ssize_t address;
  if (!PyArg_ParseTuple(arguments, "OOOOOOOO!OOOnO", &gEmpty, &gZeros, &gPacked, &gArray, &gCopy, &gShares, &gDtype,
                        &PyTuple_Type, &dtypes, &gReport, &gSignature, &probe, &address, &table))
    return nullptr;
  for (int t = 0; t < kTypes; ++t)
    if (!(gDtypes[t] = PyTuple_GetItem(dtypes, t))) return nullptr;
  if (isLaidOut(probe, reinterpret_cast<void*>(address))) gArrayType = Py_TYPE(probe);
  if (gArrayType && table != Py_None && !findNewArray(table)) return nullptr;
  for (PyObject* kept : {gEmpty, gZeros, gPacked, gArray, gCopy, gShares, gDtype, dtypes, gReport, gSignature})
    Py_INCREF(kept);
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
  if (!op.native()) return true;
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
    int to = op.family == Family::match ? int(Type::t32f) : t;  // scores are fractions
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
    self->soughtKey = ~0u;
    if (!prepare(self, kOperations[i])) return nullptr;
    PyTuple_SetItem(operations, i, reinterpret_cast<PyObject*>(self));
  }
  for (int i = 0; i < kStatusCount; ++i)
    PyTuple_SetItem(statuses, i, Py_BuildValue("iss", kStatuses[i].value, kStatuses[i].name, kStatuses[i].comment));
  if (PyModule_AddObjectRef(module, "operations", operations) < 0 ||
      PyModule_AddFunctions(module, kChainFunctions) < 0 || PyModule_AddObjectRef(module, "statuses", statuses) < 0 ||
      PyModule_AddObjectRef(module, "Operation", type) < 0 ||
      PyModule_AddStringConstant(module, "version", kVersion) < 0)
    return nullptr;
  Dl_info library = {};
  dladdr(reinterpret_cast<void*>(&huxiGetLibVersion), &library);
  char path[PATH_MAX] = "";
  if (library.dli_fname && !realpath(library.dli_fname, path))
    std::snprintf(path, sizeof path, "%s", library.dli_fname);
  if (PyModule_AddStringConstant(module, "library_path", path) < 0) return nullptr;
  return module;
}
