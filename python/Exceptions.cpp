// SPDX-License-Identifier: GPL-3.0-or-later

#include "python/Exceptions.h"

#include <cstdint>
#include <exception>
#include <string>

#include <pybind11/pybind11.h>

#include "python/Failures.h"
#include "python/FileNames.h"

namespace python {

namespace py = pybind11;

using modAllPurpose::ErrorNumber;
using modAllPurpose::RuntimeError;

namespace {

// Raises an exception of the package: its number, its sentence and the file that it is about.
void Raise(const char* type, std::int32_t number, const std::string& message,
           const py::object& file) {
  const py::object exception = py::module_::import("vantrel._errors").attr(type);
  PyErr_SetObject(exception.ptr(), exception(number, message, file).ptr());
}

void RaiseError(const RuntimeError& error, const py::object& file) {
  if (error.Number() == ErrorNumber::OutOfMemory) {
    PyErr_NoMemory();
    return;
  }
  std::string message = error.what();
  if (const std::string about = error.About(); !about.empty()) message += ": " + about;
  Raise("DataError", static_cast<std::int32_t>(error.Number()), message, file);
}

void Translate(std::exception_ptr thrown) {
  try {
    std::rethrow_exception(std::move(thrown));
  } catch (const OpenFailure& failure) {
    Raise("OpenError", static_cast<std::int32_t>(failure.Result),
          std::string(modVantrel::OpenFailureMessage(failure.Result)), FileName(failure.File));
  } catch (const DataFailure& failure) {
    RaiseError(failure.Error, FileName(failure.File));
  } catch (const ClosedFailure& failure) {
    PyErr_Format(PyExc_ValueError, "the trial is closed: %U", FileName(failure.File).ptr());
  } catch (const RuntimeError& error) {
    RaiseError(error, py::none());
  }
}

}  // namespace

void RegisterExceptions() { py::register_local_exception_translator(Translate); }

}  // namespace python
