#include "lint/checks/checks.hpp"
#include "lint/checks/referenced_files.hpp"

namespace kelp::input::quill::lint {

Findings check_no_frame(const Source& source) {
  return find_references(source, [](const Reference& reference) {
    return reference.file.state == ReferencedFile::State::Read && !reference.atoms;
  });
}

}  // namespace kelp::input::quill::lint
