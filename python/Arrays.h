// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <ranges>
#include <utility>
#include <vector>

#include <pybind11/numpy.h>

#include "python/OutsideInterpreter.h"

namespace python {

using Shape = std::vector<pybind11::ssize_t>;

// A numpy array of that shape, last dimension fastest, which owns a copy of `values`, a range of
// numbers. There must be as many values as the shape has places.
template <typename Values>
auto ArrayOf(const Values& values, Shape shape) {
  using Number = std::ranges::range_value_t<Values>;
  pybind11::array_t<Number> array(std::move(shape));
  Number* const into = array.mutable_data();
  // A channel may have gigabytes: other threads go on meanwhile.
  const OutsideInterpreter outside;
  std::ranges::copy(values, into);
  return array;
}

// The same in one dimension.
template <typename Values>
auto ArrayOf(const Values& values) {
  return ArrayOf(values, Shape{static_cast<pybind11::ssize_t>(values.size())});
}

}  // namespace python
