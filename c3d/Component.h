// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace modVantrel {

// A coordinate of a point, or an axis of a joint.
enum class Component : std::int32_t { X = 1, Y = 2, Z = 3 };

inline constexpr std::array kComponents = {Component::X, Component::Y, Component::Z};

// "x", "y" or "z", as tables name a component.
constexpr std::string_view ComponentName(Component component) {
  constexpr std::string_view kNames = "xyz";
  return kNames.substr(static_cast<std::size_t>(component) - 1, 1);
}

// The coordinate X, Y or Z of `point`, a record with fields of those names; 0 for any other.
template <typename Point>
float ComponentOf(const Point& point, Component component) {
  switch (component) {
    case Component::X:
      return point.X;
    case Component::Y:
      return point.Y;
    case Component::Z:
      return point.Z;
  }
  return 0;
}

}  // namespace modVantrel
