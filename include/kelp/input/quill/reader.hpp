#ifndef KELP_INPUT_QUILL_READER_HPP
#define KELP_INPUT_QUILL_READER_HPP

/// @file
/// Reading QUILL inputs.
///
///     const ParseResult result = parse_file("water.qin");
///     if (!result.ok) std::cerr << result.error << '\n';
///     for (const std::string& warning : result.warnings) std::cerr << warning << '\n';
///     std::cout << result.input.geometry.atoms.size() << " atoms\n";
///
/// Any text can be read: a line that cannot be understood is kept as text, or is dropped with a
/// warning that names it, and the lines after it are read as usual. Reading keeps no state; any
/// number of threads may read at once.

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "kelp/input/quill/document.hpp"
#include "kelp/input/quill/export.hpp"

namespace kelp::input::quill {

/// The result of reading: the document, and the problems that were found.
struct ParseResult {
  /// Everything that could be read; an empty document when `ok` is false.
  QuillInput input;

  /// False only when a file could not be opened. Warnings leave it true.
  bool ok = false;

  /// Says which file could not be opened; empty while `ok` is true.
  std::string error;

  /// One complete message per problem, in the order of the lines: "Line 3: empty QUILL header
  /// command", with lines counted from 1. One warning is not about a line and comes last: "No QUILL
  /// coordinate section found".
  std::vector<std::string> warnings;

  ParseResult() = default;

  /// Takes all members, in their order; if `was_read` is not given, `ok` is false.
  ParseResult(QuillInput document, bool was_read = false, std::string failure = {},
              std::vector<std::string> diagnostics = {})
      : input(std::move(document)),
        ok(was_read),
        error(std::move(failure)),
        warnings(std::move(diagnostics)) {}
  ParseResult(const ParseResult&) = default;
  ParseResult(ParseResult&&) noexcept = default;
  ParseResult& operator=(const ParseResult&) = default;
  ParseResult& operator=(ParseResult&&) noexcept = default;
  KELP_QUILL_INP_EXPORT ~ParseResult();
};

/// Reads a whole input. `ok` is always true, and nothing is thrown for any content, NUL bytes and
/// bytes above 0x7F included. Lines end in "\n" or "\r\n". The result keeps no reference to `text`.
/// One pass; the cost is linear in the length of the text.
[[nodiscard]] KELP_QUILL_INP_EXPORT ParseResult parse_string(std::string_view text);

/// Reads the whole file at `path` and returns parse_string() of its content. When the file cannot
/// be opened or read (a directory, for example), `input` is an empty document, `ok` is false,
/// `error` is "Failed to open QUILL input file: " followed by `path`, and there are no warnings.
[[nodiscard]] KELP_QUILL_INP_EXPORT ParseResult parse_file(const std::string& path);

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_READER_HPP
