#pragma once

#include <string>
#include <vector>

namespace kelp::core {

struct Atom {
  std::string symbol;
  double x = 0.0;
  double y = 0.0;
  double z = 0.0;
  double mass = 0.0;
};

struct Geometry {
  std::vector<Atom> atoms;
  std::string title;
};

}  // namespace kelp::core
