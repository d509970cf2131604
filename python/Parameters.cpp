// SPDX-License-Identifier: GPL-3.0-or-later

#include "python/Parameters.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include <pybind11/numpy.h>

#include "c3d/ParamIndex.h"
#include "c3d/ParameterSection.h"
#include "python/Arrays.h"

namespace python {

namespace py = pybind11;

using modVantrel::FileState;
using modVantrel::ParamRecord;

namespace {

std::string NameAt(const FileState& state, std::int32_t position) {
  bool isLast = false;
  return ReadParamRecord(state, position, true, isLast, modVantrel::Values::Skip).Name;
}

// The sizes of the array; none for a single value. A text's length is no dimension.
Shape ShapeOf(const ParamRecord& param) {
  const int ownLength = param.DataType == modVantrel::kTextData ? 1 : 0;
  const int count = std::max(param.DimensionCount - ownLength, 0);
  return {param.Dimensions.begin(), param.Dimensions.begin() + count};
}

template <typename Number>
py::object Numbers(const modVantrel::ValueArray<Number>& values, const Shape& shape) {
  if (values.Count() == 1) return py::cast(values.InFileOrder(0));
  py::array_t<Number, py::array::f_style> array(values.Count() == 0 ? Shape{0} : shape);
  Number* into = array.mutable_data();
  for (std::size_t i = 0; i < values.Count(); ++i) into[i] = values.InFileOrder(i);
  return array;
}

// The texts of one place of the dimensions in front, from `dimension` on: lists within lists.
// `offset` is that of its first text, `step` how far the next of this dimension lies behind.
py::object TextsFrom(const modVantrel::TextArray& texts, const Shape& shape, std::size_t dimension,
                     std::size_t offset, std::size_t step) {
  if (dimension == shape.size()) return py::str(texts.InFileOrder(offset));
  const auto count = static_cast<std::size_t>(shape[dimension]);
  py::list list(shape[dimension]);
  for (std::size_t i = 0; i < count; ++i) {
    list[i] = TextsFrom(texts, shape, dimension + 1, offset + i * step, step * count);
  }
  return list;
}

py::object Texts(const modVantrel::TextArray& texts, const Shape& shape) {
  if (texts.Count() == 0) return shape.empty() ? py::object(py::str()) : py::list();
  if (texts.Count() == 1) return py::str(texts.InFileOrder(0));
  return TextsFrom(texts, shape, 0, 0, 1);
}

}  // namespace

std::vector<GroupNames> ReadParameterNames(const FileState& state, bool whole) {
  const modVantrel::BinaryFile::Look look(state.C3dFileNumber);
  const modVantrel::ParamIndex index(state);
  if (whole) index.RethrowFailure();
  std::vector<GroupNames> groups;
  for (const std::int32_t position : index.Groups()) {
    const ParamRecord group = modVantrel::ReadParamRecordAt(state, position);
    GroupNames& names = groups.emplace_back(group.Name, std::vector<std::string>());
    for (const std::int32_t param : index.ParamsOf(group.Id)) {
      names.second.push_back(NameAt(state, param));
    }
  }
  return groups;
}

py::object ValueOf(const ParamRecord& param) {
  const Shape shape = ShapeOf(param);
  switch (param.DataType) {
    case modVantrel::kTextData:
      return Texts(param.TextValues, shape);
    case modVantrel::kByteData:
      return Numbers(param.ByteValues, shape);
    case modVantrel::kIntegerData:
      return Numbers(param.IntegerValues, shape);
    default:
      return Numbers(param.SingleValues, shape);
  }
}

}  // namespace python
