#ifndef KELP_INPUT_QUILL_LOSSLESS_UNFINISHED_FILES_HPP
#define KELP_INPUT_QUILL_LOSSLESS_UNFINISHED_FILES_HPP

/// @file
/// For programs that a signal may end while a file is written: they are told of the names of
/// temporary files, and can remove these before they end. Without that, a signal leaves a file
/// ".quill-inp." and sixteen digits; the file that was to be replaced is as it was or as it should
/// be in any case. The library itself installs no handlers.
///
///     struct Unfinished : UnfinishedFiles {
///       UnfinishedFile* newest = nullptr;
///       void begin_step() noexcept override {}  // a program blocks its signals here
///       void end_step() noexcept override {}    // and no longer here
///       void add(UnfinishedFile& file) noexcept override { file.next = newest, newest = &file; }
///       void remove(UnfinishedFile&) noexcept override { newest = newest->next; }
///     };
///     Unfinished files;
///     WriteOptions options;
///     options.unfinished = &files;
///     write_whole_file("job.qin", "#opt\n", options);

#include <string>

#include "kelp/input/quill/lossless/export.hpp"

namespace kelp::input::quill::lossless {

/// A file with a name that is not to stay.
struct UnfinishedFile {
  int folder = -1;                 ///< the descriptor of its folder, for unlinkat()
  std::string name = {};           ///< its name in that folder
  UnfinishedFile* next = nullptr;  ///< for the program, which can so list files without memory
};

/// Is told of unfinished files, in the thread that writes them. Several threads may tell at once. A
/// step may have other steps in it.
class KELP_QUILL_LOSSLESS_EXPORT UnfinishedFiles {
 public:
  /// Makes a list without files.
  UnfinishedFiles() = default;
  /// A list is known by its address, so it cannot be copied.
  UnfinishedFiles(const UnfinishedFiles&) = delete;
  /// Not possible, because a list is known by its address.
  UnfinishedFiles& operator=(const UnfinishedFiles&) = delete;
  /// To be called when no file is listed.
  virtual ~UnfinishedFiles();

  /// What is done from here to the matching end_step() belongs together: a file is made and listed,
  /// or given its final name and taken off the list. No signal may end the program meanwhile.
  virtual void begin_step() noexcept = 0;

  /// Ends the step that began last in this thread.
  virtual void end_step() noexcept = 0;

  /// Within a step: there is a file that is not to stay. The object lives until it is removed.
  virtual void add(UnfinishedFile& file) noexcept = 0;

  /// Within a step: the file is gone, or has its final name.
  virtual void remove(UnfinishedFile& file) noexcept = 0;
};

}  // namespace kelp::input::quill::lossless

#endif  // KELP_INPUT_QUILL_LOSSLESS_UNFINISHED_FILES_HPP
