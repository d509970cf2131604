// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace sample {

// A parameter to be written. Dimensions are as stored: for texts the string length comes first.
struct ParamSpec {
  using Data = std::variant<std::monostate, std::vector<std::string>, std::vector<std::uint8_t>,
                            std::vector<std::int16_t>, std::vector<float>>;

  std::string Name;
  std::vector<std::uint8_t> Dimensions;
  Data Values;
  std::string Description;
  bool Locked = false;
  // The stored type byte, where it is not the one of Values.
  std::variant<std::monostate, std::uint8_t> DataType;
};

// Parameters of one value (no dimensions) or of one list (one dimension; for texts the width of the
// longest and the count).
ParamSpec TextParam(std::string name, std::string value);
ParamSpec TextListParam(std::string name, std::vector<std::string> values);
ParamSpec ByteParam(std::string name, std::uint8_t value);
ParamSpec IntegerParam(std::string name, std::int16_t value);
ParamSpec IntegerListParam(std::string name, std::vector<std::int16_t> values);
ParamSpec SingleParam(std::string name, float value);
ParamSpec SingleListParam(std::string name, std::vector<float> values);

struct GroupSpec {
  std::string Name;
  std::uint8_t Number = 0;
  std::string Description;
  bool Locked = false;
  std::vector<ParamSpec> Params;
};

// The parameter section before it is written.
struct SectionSpec {
  std::vector<GroupSpec> Groups;

  // The group of that name; added with the next free number where there is none.
  GroupSpec& Group(const std::string& name);
  // Replaces the parameter of that name, or adds it.
  void SetParam(const std::string& group, ParamSpec param);
  void DropParam(const std::string& group, const std::string& param);
  void DropGroup(const std::string& group);
};

}  // namespace sample
