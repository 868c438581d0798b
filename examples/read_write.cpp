// Reads a QUILL input, prints a summary of it, and writes it in the canonical layout.
//
//   read_write INPUT [OUTPUT]
//
// Diagnostics go to standard error as "file:line: warning: message". The exit status is 0 when the
// input was read (warnings included), 1 when a file could not be opened, 2 for wrong usage.

#include <exception>
#include <iostream>
#include <string>
#include <string_view>

#include "kelp/input/quill/quill.hpp"

namespace quill = kelp::input::quill;

namespace {

/// "Line 7: message" of "water.qin" becomes "water.qin:7: warning: message", which editors and
/// terminals know how to follow.
std::string located(const std::string& path, std::string_view diagnostic) {
  constexpr std::string_view prefix = "Line ";
  const std::size_t colon = diagnostic.find(": ");
  if (diagnostic.substr(0, prefix.size()) != prefix || colon == std::string_view::npos) {
    return path + ": warning: " + std::string(diagnostic);
  }
  const std::string_view number = diagnostic.substr(prefix.size(), colon - prefix.size());
  return path + ":" + std::string(number) +
         ": warning: " + std::string(diagnostic.substr(colon + 2));
}

std::string describe(const quill::GeometryBlock& geometry) {
  switch (geometry.kind) {
    case quill::GeometryKind::None:
      return "none";
    case quill::GeometryKind::Atoms:
      return std::to_string(geometry.atoms.size()) + " inline atoms";
    case quill::GeometryKind::XyzFile:
      return std::to_string(geometry.xyz_files.size()) + " XYZ references";
    case quill::GeometryKind::XyzTrajectory:
      return "XYZ trajectory";
  }
  return "unknown";
}

void print_summary(const quill::QuillInput& input) {
  std::cout << "commands:";
  for (const std::string& name : input.command_names()) std::cout << " [" << name << "]";
  std::cout << (input.has_task_command() ? "\n" : " (none of them a task)\n");
  if (input.geometry.has_charge_and_multiplicity) {
    std::cout << "charge: " << input.geometry.charge
              << ", multiplicity: " << input.geometry.multiplicity << "\n";
  } else {
    std::cout << "charge and multiplicity: not given\n";
  }
  std::cout << "geometry: " << describe(input.geometry) << "\n"
            << "post-processing lines: " << input.post_commands.size() << "\n";
}

int run(const std::string& path, const char* output) {
  const quill::ParseResult result = quill::parse_file(path);
  if (!result.ok) {
    std::cerr << result.error << "\n";
    return 1;
  }
  for (const std::string& warning : result.warnings) std::cerr << located(path, warning) << "\n";
  print_summary(result.input);
  std::cout << "canonical text:\n" << result.input.to_string();
  if (output != nullptr) result.input.write_file(output);
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2 && argc != 3) {
    std::cerr << "usage: read_write INPUT [OUTPUT]\n";
    return 2;
  }
  try {
    return run(argv[1], argc == 3 ? argv[2] : nullptr);
  } catch (const std::exception& failure) {
    std::cerr << failure.what() << "\n";
    return 1;
  }
}
