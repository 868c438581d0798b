#ifndef KELP_INPUT_QUILL_BENCH_REFERENCE_BARE_LOOPS_HPP
#define KELP_INPUT_QUILL_BENCH_REFERENCE_BARE_LOOPS_HPP

#include <string>
#include <string_view>
#include <vector>

#include "kelp/input/quill/document.hpp"
#include "kelp/input/quill/reader.hpp"

// What the library is compared with: loops that make only the calls that reading must make, for
// texts without mistakes. They are in a shared library, as the library's own reader and writer are.

namespace kelp::input::quill::bench {

/// Reads a text in the canonical layout, by the functions of reference/plain_functions.hpp.
ParseResult read_with_plain_functions(std::string_view text);

/// The same by the library's own sister libraries: the rest of the time of parse_string() is spent
/// in the reader itself.
ParseResult read_with_own_functions(std::string_view text);

/// Sets a parameter that the first command of this name already has, by a lookup that ignores
/// letter case and blanks at both ends of names.
void set_parameter_bare(QuillInput& input, std::string_view command, std::string_view parameter,
                        std::string_view value);

/// Writes commands, charge and multiplicity, and atoms by std::to_chars into one reserved string.
std::string write_with_to_chars(const QuillInput& input);

/// Writes charge and multiplicity and atoms by a string stream with setw and setprecision.
std::string write_with_stream(const QuillInput& input);

/// Writes constraints and scans by std::to_chars into one buffer that is large enough for all.
std::string write_constraints_and_scans(const std::vector<PostCommand>& lines);

/// Creates or truncates a file and writes `text`, by the three system calls that this takes.
bool write_bare_file(const std::string& path, std::string_view text);

}  // namespace kelp::input::quill::bench

#endif  // KELP_INPUT_QUILL_BENCH_REFERENCE_BARE_LOOPS_HPP
