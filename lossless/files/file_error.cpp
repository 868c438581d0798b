#include "kelp/input/quill/lossless/file_error.hpp"

#include <utility>

#include "kelp/input/quill/lossless/wording.hpp"

namespace kelp::input::quill::lossless {

struct FileError::Facts {
  std::string path;
  FileFailure failure;
};

FileError::FileError(const std::string& path, FileFailure failure)
    : std::runtime_error((path.empty() ? "" : path + ": ") + words(failure)),
      facts_(std::make_shared<const Facts>(Facts{path, std::move(failure)})) {}

FileError::FileError(const FileError& other) noexcept = default;
FileError& FileError::operator=(const FileError& other) noexcept = default;
FileError::~FileError() = default;

const std::string& FileError::path() const noexcept { return facts_->path; }

const FileFailure& FileError::failure() const noexcept { return facts_->failure; }

}  // namespace kelp::input::quill::lossless
