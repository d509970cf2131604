// SPDX-License-Identifier: GPL-3.0-or-later

#include "sample/ParameterModel.h"

#include <algorithm>
#include <utility>

namespace sample {

namespace {

std::uint8_t Size(std::size_t size) { return static_cast<std::uint8_t>(size); }

}  // namespace

ParamSpec TextParam(std::string name, std::string value) {
  const std::uint8_t width = Size(value.size());
  return {std::move(name), {width}, std::vector{std::move(value)}, "", false, {}};
}

ParamSpec TextListParam(std::string name, std::vector<std::string> values) {
  std::size_t width = 1;
  for (const std::string& value : values) width = std::max(width, value.size());
  const std::uint8_t count = Size(values.size());
  return {std::move(name), {Size(width), count}, std::move(values), "", false, {}};
}

ParamSpec ByteParam(std::string name, std::uint8_t value) {
  return {std::move(name), {}, std::vector{value}, "", false, {}};
}

ParamSpec IntegerParam(std::string name, std::int16_t value) {
  return {std::move(name), {}, std::vector{value}, "", false, {}};
}

ParamSpec IntegerListParam(std::string name, std::vector<std::int16_t> values) {
  const std::uint8_t count = Size(values.size());
  return {std::move(name), {count}, std::move(values), "", false, {}};
}

ParamSpec SingleParam(std::string name, float value) {
  return {std::move(name), {}, std::vector{value}, "", false, {}};
}

ParamSpec SingleListParam(std::string name, std::vector<float> values) {
  const std::uint8_t count = Size(values.size());
  return {std::move(name), {count}, std::move(values), "", false, {}};
}

GroupSpec& SectionSpec::Group(const std::string& name) {
  const auto found = std::ranges::find(Groups, name, &GroupSpec::Name);
  if (found != Groups.end()) return *found;
  std::uint8_t highest = 0;
  for (const GroupSpec& group : Groups) highest = std::max(highest, group.Number);
  Groups.push_back({name, static_cast<std::uint8_t>(highest + 1), "", false, {}});
  return Groups.back();
}

void SectionSpec::SetParam(const std::string& group, ParamSpec param) {
  auto& params = Group(group).Params;
  const auto found = std::ranges::find(params, param.Name, &ParamSpec::Name);
  if (found == params.end()) {
    params.push_back(std::move(param));
  } else {
    *found = std::move(param);
  }
}

void SectionSpec::DropParam(const std::string& group, const std::string& param) {
  std::erase_if(Group(group).Params, [&](const ParamSpec& spec) { return spec.Name == param; });
}

void SectionSpec::DropGroup(const std::string& group) {
  std::erase_if(Groups, [&](const GroupSpec& spec) { return spec.Name == group; });
}

}  // namespace sample
