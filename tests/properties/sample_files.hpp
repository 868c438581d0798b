#ifndef KELP_INPUT_QUILL_TESTS_PROPERTIES_SAMPLE_FILES_HPP
#define KELP_INPUT_QUILL_TESTS_PROPERTIES_SAMPLE_FILES_HPP

#include <iosfwd>
#include <string>
#include <vector>

namespace kelp::input::quill {

struct SampleFile {
  std::string name;
  std::string content;
};

void PrintTo(const SampleFile& file, std::ostream* out);

/// The files in a folder of the source tree and in its folders. Throws when there are none.
std::vector<SampleFile> sample_files(const std::string& folder);

/// The inputs that come with the library.
std::vector<SampleFile> example_inputs();

/// One of them. Throws when it is not there.
SampleFile example_input(const std::string& name);

/// The name as GoogleTest wants it.
std::string test_name(const SampleFile& file);

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_TESTS_PROPERTIES_SAMPLE_FILES_HPP
