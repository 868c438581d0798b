#ifndef KELP_INPUT_QUILL_TOOL_SWEEP_MANIFEST_HPP
#define KELP_INPUT_QUILL_TOOL_SWEEP_MANIFEST_HPP

#include <string>
#include <vector>

namespace kelp::input::quill::tool {

/// One file of a sweep: its name, the SHA-256 of its bytes, and its values, in the order of the
/// keys.
struct ManifestEntry {
  std::string file = {};
  std::string sha256 = {};
  std::vector<std::string> values = {};
};

/// Returns a list of the files: JSON, one object on each line, if its own name ends in ".jsonl";
/// else a table with tabs between its columns, in which a backslash, a tab and the ends of lines
/// are written as \\, \t, \n and \r.
std::string manifest_text(const std::string& name, const std::vector<std::string>& keys,
                          const std::vector<ManifestEntry>& entries);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_SWEEP_MANIFEST_HPP
