#include "lint/checks/referenced_files.hpp"

namespace kelp::input::quill::lint {

void find_references(const Source& source, bool (*is_found)(const Reference&),
                     Collector& findings) {
  const std::vector<std::string>& paths = source.input().geometry.xyz_files;
  for (std::size_t i = 0; i < source.references().size(); ++i) {
    const Reference& reference = source.references()[i];
    if (!is_found(reference)) continue;
    // The path is the end of its line.
    const std::string_view content = source.trimmed(source.reference_lines()[i]);
    findings.add({source.range_of(content.substr(content.size() - paths[i].size())),
                  {text_fact("path", paths[i]), text_fact("reason", reference.file.reason)}});
  }
}

}  // namespace kelp::input::quill::lint
