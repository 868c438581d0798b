#include "kelp/input/quill/lossless/file_replacement.hpp"

#include <utility>

#include "files/opened_file.hpp"
#include "files/replacing.hpp"

namespace kelp::input::quill::lossless {

FileToReplace::FileToReplace(std::unique_ptr<OpenedFile> file) noexcept : file_(std::move(file)) {}
FileToReplace::FileToReplace(FileToReplace&& other) noexcept = default;
FileToReplace& FileToReplace::operator=(FileToReplace&& other) noexcept = default;
FileToReplace::~FileToReplace() = default;

const std::string& FileToReplace::path() const noexcept { return file_->path; }

const std::string& FileToReplace::text() const noexcept { return file_->text; }

std::string FileToReplace::take_text() noexcept {
  file_->is_text_taken = true;
  return std::exchange(file_->text, std::string());
}

std::vector<LostAttribute> FileToReplace::replace(std::string_view new_text,
                                                  const ReplaceOptions& options) {
  try {
    return replace_content(*file_, new_text, options);
  } catch (const FileError& error) {
    throw FileError(file_->path, error.failure());
  }
}

FileToReplace open_to_replace(const std::string& path, const OpenOptions& options) {
  try {
    auto file = std::make_unique<OpenedFile>(open_and_lock(path, options.patience));
    file->text = read_opened(*file, options.max_size);
    return FileToReplace(std::move(file));
  } catch (const FileError& error) {
    throw FileError(path, error.failure());
  }
}

}  // namespace kelp::input::quill::lossless
