#include "lint/checks/checks.hpp"
#include "lint/checks/referenced_files.hpp"

namespace kelp::input::quill::lint {

Findings check_unreadable_file(const Source& source) {
  return find_references(source, [](const Reference& reference) {
    return reference.file.state == ReferencedFile::State::Unreadable;
  });
}

}  // namespace kelp::input::quill::lint
