#ifndef KELP_INPUT_QUILL_LOSSLESS_FILES_ATTRIBUTES_HPP
#define KELP_INPUT_QUILL_LOSSLESS_FILES_ATTRIBUTES_HPP

#include <vector>

#include "kelp/input/quill/lossless/file_replacement.hpp"

namespace kelp::input::quill::lossless {

/// Gives the new file `to` the extended attributes of `from`, file capabilities among them; both
/// are open files. It has to hold its content already: writing takes capabilities away. The access
/// list is not among the attributes that are copied, nor are checksums of the content. Returns what
/// the system does not allow.
std::vector<LostAttribute> copy_attributes(int from, int to);

/// Gives the new file the flags of the file system that chattr sets, such as "no dump", in the same
/// way. It should not hold any content: some flags say how content is stored.
std::vector<LostAttribute> copy_inode_flags(int from, int to);

}  // namespace kelp::input::quill::lossless

#endif  // KELP_INPUT_QUILL_LOSSLESS_FILES_ATTRIBUTES_HPP
