#ifndef KELP_INPUT_QUILL_LANGUAGE_SERVER_FACTS_XYZ_CANDIDATES_HPP
#define KELP_INPUT_QUILL_LANGUAGE_SERVER_FACTS_XYZ_CANDIDATES_HPP

#include <string>
#include <vector>

namespace kelp::input::quill::language_server {

/// A file or folder to which a reference that is typed may lead.
struct XyzCandidate {
  std::string name = {};
  bool is_folder = false;
};

/// Returns the folders, and the files whose names end in ".xyz" in any letter case, in a folder,
/// sorted by their names. Hidden ones are left out, and so are names that are not UTF-8. Looks at
/// the entries of for_each_entry().
std::vector<XyzCandidate> find_xyz_candidates(const std::string& folder);

}  // namespace kelp::input::quill::language_server

#endif  // KELP_INPUT_QUILL_LANGUAGE_SERVER_FACTS_XYZ_CANDIDATES_HPP
