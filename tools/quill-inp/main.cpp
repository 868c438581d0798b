#include <iostream>
#include <new>
#include <string>
#include <vector>

#include "quill-inp/process/standard_streams.hpp"
#include "quill-inp/run.hpp"

int main(int argc, char** argv) {
  namespace tool = kelp::input::quill::tool;
  try {
    const std::vector<std::string> arguments(argv + (argc > 0 ? 1 : 0), argv + argc);
    return tool::run(arguments, tool::take_standard_streams());
  } catch (const std::bad_alloc&) {
    return tool::report_out_of_memory(std::cerr);
  }
}
