#ifndef KELP_INPUT_QUILL_LOSSLESS_FILE_REPLACEMENT_HPP
#define KELP_INPUT_QUILL_LOSSLESS_FILE_REPLACEMENT_HPP

/// @file
/// The "Save" of a program that edits the files of its users. At every moment, even if the program
/// is killed or the disk is full, the file holds either the whole old text or the whole new one.
///
///     FileToReplace file = open_to_replace("job.qin");
///     const ReadText read = read_text(file.text());
///     TrackedDocument document(read.result.input);
///     document.set_parameter("opt", "maxiter", "100");
///     const SurgicalEdit edit = render(read, document);
///     if (!edit.proof.holds()) return;
///     for (const LostAttribute& lost : file.replace(edit.text)) std::cerr << words(lost) << '\n';
///
/// The new text is written to a temporary file in the same folder, which gets the owner, access
/// rights and attributes of the old one. It is flushed to disk, read back, and renamed if the old
/// file is still the one that was read. Programs that replace a file in this way follow one
/// another, so that none loses what another has written. Distinct objects can be used in distinct
/// threads.
///
/// These functions are not offered on Windows.

#include <chrono>
#include <cstdint>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "kelp/input/quill/lossless/export.hpp"
#include "kelp/input/quill/lossless/file_error.hpp"
#include "kelp/input/quill/lossless/unfinished_files.hpp"

namespace kelp::input::quill::lossless {

/// What a file had before it was replaced and does not have any more, since the system does not
/// allow the program to set it. Nobody has got more rights by that.
struct LostAttribute {
  /// What it is.
  enum class Kind {
    Owner,              ///< the user that the file belongs to
    Group,              ///< its group
    AccessList,         ///< its access control list
    SetUserId,          ///< the setuid bit
    SetGroupId,         ///< the setgid bit
    StickyBit,          ///< the sticky bit
    Capabilities,       ///< the capabilities of a program
    ExtendedAttribute,  ///< the extended attribute `name`
    Flags,              ///< the flags of the file system that chattr sets
  };

  Kind kind = Kind::Owner;  ///< what it is
  std::string name = {};    ///< of an extended attribute
};

/// How to open a file.
struct OpenOptions {
  /// How long to wait for other programs that are replacing the file.
  std::chrono::milliseconds patience = std::chrono::seconds(60);
  /// The largest file to read, in bytes.
  std::uint64_t max_size = std::numeric_limits<std::uint64_t>::max();
};

/// How to replace a file.
struct ReplaceOptions {
  /// With a suffix, the old text is copied into a file whose name ends in it, unless the text stays
  /// the same. An existing file with that name is not replaced.
  std::optional<std::string> backup_suffix = std::nullopt;
  /// Whether a file with several names may be replaced. Its other names keep the old text.
  bool breaks_hard_links = false;
  /// Who is told of temporary files, or nobody.
  UnfinishedFiles* unfinished = nullptr;
};

struct OpenedFile;  // not part of the interface

/// A file that was read and may be replaced. As long as the object lives, other programs that want
/// to replace the file in the same way wait; others see and change it as ever. An object that was
/// moved from can only be assigned to or destroyed.
class FileToReplace {
 public:
  /// Called by open_to_replace().
  KELP_QUILL_LOSSLESS_EXPORT explicit FileToReplace(std::unique_ptr<OpenedFile> file) noexcept;
  /// Takes over the file and its lock. The other object can only be assigned to or destroyed.
  KELP_QUILL_LOSSLESS_EXPORT FileToReplace(FileToReplace&& other) noexcept;
  /// Releases the file of this object and takes over the other one, as the constructor does.
  KELP_QUILL_LOSSLESS_EXPORT FileToReplace& operator=(FileToReplace&& other) noexcept;
  /// An object stands for one lock, which cannot be copied.
  FileToReplace(const FileToReplace&) = delete;
  /// Not possible, because a lock cannot be copied.
  FileToReplace& operator=(const FileToReplace&) = delete;
  /// Closes the file and releases its lock.
  KELP_QUILL_LOSSLESS_EXPORT ~FileToReplace();

  /// Returns the path that the file was opened by.
  KELP_QUILL_LOSSLESS_EXPORT const std::string& path() const noexcept;

  /// Returns the text that was read, or an empty one if it was taken.
  KELP_QUILL_LOSSLESS_EXPORT const std::string& text() const noexcept;

  /// Returns the text that was read and keeps no copy of it, which spares the memory. The file is
  /// then read again when it is replaced.
  KELP_QUILL_LOSSLESS_EXPORT std::string take_text() noexcept;

  /// Replaces the text of the file by a new one. If that is the same, nothing is done. Returns what
  /// of the file could not be kept.
  ///
  /// Throws FileError when the file cannot be replaced, and when another program has changed it
  /// after it was read; the file is then as it was, and the call can be repeated. Only with
  /// FileFailure::Kind::FolderNotFlushed it holds the new text. A file that was replaced has to be
  /// opened again before it can be replaced again.
  KELP_QUILL_LOSSLESS_EXPORT std::vector<LostAttribute> replace(std::string_view new_text,
                                                                const ReplaceOptions& options = {});

 private:
  std::unique_ptr<OpenedFile> file_;  // which holds what differs between systems
};

/// Opens, locks and reads the file that a path leads to, after all symbolic links. Throws FileError
/// when that fails, also for anything but a regular file, and when another program holds the file
/// for longer than the options allow.
KELP_QUILL_LOSSLESS_EXPORT FileToReplace open_to_replace(const std::string& path,
                                                         const OpenOptions& options = {});

}  // namespace kelp::input::quill::lossless

#endif  // KELP_INPUT_QUILL_LOSSLESS_FILE_REPLACEMENT_HPP
