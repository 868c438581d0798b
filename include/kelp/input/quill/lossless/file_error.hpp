#ifndef KELP_INPUT_QUILL_LOSSLESS_FILE_ERROR_HPP
#define KELP_INPUT_QUILL_LOSSLESS_FILE_ERROR_HPP

/// @file
/// Why a file could not be read or written: facts, of which words() of wording.hpp makes a
/// sentence.
///
///     try {
///       open_to_replace("job.qin").replace("#opt\n");
///     } catch (const FileError& error) {
///       // If others changed it, it can be read again.
///       if (error.failure().kind == FileFailure::Kind::ChangedByOthers) return;
///       std::cerr << error.what() << '\n';
///       // "job.qin: cannot be opened: No such file or directory"
///     }

#include <chrono>
#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>

#include "kelp/input/quill/lossless/export.hpp"

namespace kelp::input::quill::lossless {

/// What a path leads to if it is not a regular file.
enum class FileType { Folder, Pipe, Socket, Device };

/// What failed. In all cases but FolderNotFlushed, the file holds what it held before.
struct FileFailure {
  /// What failed. "Another program" may also be another run or thread of the same one.
  enum class Kind {
    NotAName,          ///< the path is empty or ends with a slash
    NulInName,         ///< the path holds a NUL byte
    NotRegular,        ///< the path leads to something else than a regular file: `type`
    DanglingLink,      ///< the path is a symbolic link to a file that does not exist
    FolderNotOpened,   ///< the folder of the file cannot be opened
    NotOpened,         ///< the file cannot be opened
    NotExamined,       ///< the system does not tell the state of the file
    NotLocked,         ///< locking failed
    Locked,            ///< another program is replacing the file, for as long as `waited`
    TooLarge,          ///< the file has more than `number` bytes
    NotRead,           ///< reading failed
    ChangedWhileRead,  ///< the file was changed while it was read
    AlreadyReplaced,   ///< this object has replaced the file, which has to be opened again
    ChangedByOthers,   ///< another program changed, replaced or removed the file after it was read
    NotExaminedAgain,  ///< whether another program changed it cannot be found out
    SeveralNames,      ///< the file has `number` names, and only one would get the new text
    NotWritable,       ///< writing failed, or the file is not to be written
    Exists,            ///< there is a file with another text already
    ExistsNotRegular,  ///< there is something else than a regular file already
    BackupExists,      ///< there is a file with the name of the backup, `backup`, already
    BackupNotMade,     ///< the backup `backup` cannot be created
    NotCreated,        ///< no temporary file can be created in the folder
    NewNotExamined,    ///< the system does not tell the state of the temporary file
    NoAccessRights,    ///< the temporary file cannot be given its access rights
    NewNotFlushed,     ///< the temporary file cannot be flushed to disk
    NewNotClosed,      ///< the temporary file cannot be closed
    NewNotReadBack,    ///< the temporary file cannot be read back
    NewIsDifferent,    ///< the temporary file does not hold what was written to it
    NotReplaced,       ///< the temporary file cannot take the name of the file
    FolderNotFlushed,  ///< the file holds the new text, but may not after a loss of power
  };

  Kind kind = Kind::NotOpened;            ///< what failed, and says which members are set
  int system_code = 0;                    ///< the errno of the call that failed, 0 for none
  FileType type = FileType::Folder;       ///< of the file
  std::uint64_t number = 0;               ///< of bytes or names
  std::chrono::milliseconds waited = {};  ///< for another program
  std::string backup = {};                ///< the name of the backup in its folder
};

/// Tells that a file could not be read or written. Copying it does not throw.
class KELP_QUILL_LOSSLESS_EXPORT FileError : public std::runtime_error {
 public:
  /// Makes the error of a path, empty where it does not matter. what() is the path and, after a
  /// colon, the words of the failure.
  FileError(const std::string& path, FileFailure failure);
  /// Makes a copy that refers to the same facts.
  FileError(const FileError& other) noexcept;
  /// Lets this error refer to the facts of the other one.
  FileError& operator=(const FileError& other) noexcept;
  /// The facts stay while another copy refers to them.
  ~FileError() override;

  /// Returns the path of the file as the caller gave it. The reference stays valid as long as this
  /// object or a copy.
  const std::string& path() const noexcept;

  /// Returns what failed. The reference stays valid in the same way.
  const FileFailure& failure() const noexcept;

 private:
  struct Facts;
  std::shared_ptr<const Facts> facts_;
};

}  // namespace kelp::input::quill::lossless

#endif  // KELP_INPUT_QUILL_LOSSLESS_FILE_ERROR_HPP
