#include <iostream>
#include <string>
#include <vector>

#include "quill-inp/process/standard_streams.hpp"
#include "quill-inp/run.hpp"

int main(int argc, char** argv) {
  namespace tool = kelp::input::quill::tool;
  tool::prepare_standard_streams();
  std::ios::sync_with_stdio(false);
  const std::vector<std::string> arguments(argv + (argc > 0 ? 1 : 0), argv + argc);
  return tool::run(arguments, std::cin, std::cout, std::cerr);
}
