#ifndef KELP_INPUT_QUILL_TESTS_TOOLS_QUILL_INP_SUPPORT_FILES_HPP
#define KELP_INPUT_QUILL_TESTS_TOOLS_QUILL_INP_SUPPORT_FILES_HPP

#include <sys/stat.h>

#include <string>
#include <vector>

namespace kelp::input::quill::tool {

/// Returns the content of a file, byte for byte. A file that cannot be read fails the test.
std::string content_of(const std::string& path);

/// Returns the state of a file, of a link itself if it is one.
struct stat state_of(const std::string& path);

/// Returns the permission bits of a file.
unsigned mode_of(const std::string& path);

/// Returns the names in a folder, sorted.
std::vector<std::string> names_in(const std::string& folder);

/// Copies the example inputs, with the structures they refer to, into a folder.
void copy_example_inputs(const std::string& folder);

/// Puts temporary files into memory where there is such a folder, for tests that write many of
/// them: waiting for a disk is not part of what they test. Call it before the first one is made.
bool use_memory_for_temporary_files();

/// A small input, in the canonical layout: water.
extern const char* const water;

/// The same with the model m2 instead of m1.
std::string changed_water();

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TESTS_TOOLS_QUILL_INP_SUPPORT_FILES_HPP
