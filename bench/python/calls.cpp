// Does in C++ what bench/python/ratios.py times in Python, and prints the seconds that it took.
// Each line of the input is a job, a path and a number of repeats.

#include <benchmark/benchmark.h>

#include <cstddef>
#include <ctime>
#include <fstream>
#include <iomanip>
#include <iostream>
#include <string>
#include <utility>
#include <vector>

#include "kelp/input/quill/quill.hpp"
#include "support/inputs.hpp"

using namespace kelp::input::quill;

namespace {

void write_xyz(const std::string& path, const std::vector<AtomRecord>& atoms) {
  std::ofstream file(path);
  file << atoms.size() << "\n\n" << std::fixed << std::setprecision(6);
  for (const AtomRecord& atom : atoms) {
    file << atom.symbol << ' ' << atom.x << ' ' << atom.y << ' ' << atom.z << '\n';
  }
}

/// Writes what is read: a molecule as an input and as XYZ, and a small job.
void write_inputs(const std::string& folder) {
  constexpr std::size_t many = 10000;
  const QuillInput molecule = bench::molecule(many);
  molecule.write_file(folder + "/molecule.qin");
  write_xyz(folder + "/molecule.xyz", molecule.geometry.atoms);
  bench::small_job().write_file(folder + "/small.qin");
}

void change(const std::string& path) {
  InputEditor editor(parse_file(path).input);
  editor.set_parameter("opt", "maxiter", "250");
  editor.write_file(path + ".cpp");
}

double seconds(const std::string& job, const std::string& path, int repeats) {
  const std::clock_t start = std::clock();
  for (int i = 0; i < repeats; ++i) {
    if (job == "parse") benchmark::DoNotOptimize(parse_file(path));
    if (job == "change") change(path);
  }
  return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc == 2) write_inputs(argv[1]);
  std::string job;
  std::string path;
  for (int repeats = 0; argc == 1 && std::cin >> job >> path >> repeats;) {
    std::cout << seconds(job, path, repeats) << std::endl;
  }
}
