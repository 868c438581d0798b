#include "lint/checks/checks.hpp"
#include "lint/checks/referenced_files.hpp"

namespace kelp::input::quill::lint {

void check_no_frame(const Source& source, Collector& findings) {
  const auto is_found = [](const Reference& reference) {
    return reference.file.state == ReferencedFile::State::Read && !reference.atoms;
  };
  find_references(source, is_found, findings);
}

}  // namespace kelp::input::quill::lint
