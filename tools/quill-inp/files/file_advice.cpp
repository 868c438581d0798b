#include "quill-inp/files/file_advice.hpp"

#include "kelp/input/quill/lossless/wording.hpp"
#include "quill-inp/process/trouble.hpp"

namespace kelp::input::quill::tool {

namespace {

using Kind = lossless::FileFailure::Kind;

std::string advice_on_type(lossless::FileType type, Purpose purpose) {
  const char* const cure =
      purpose == Purpose::Reading
          ? ", not a regular file; use '-' to read standard input"
          : ", and only a regular file can be changed in place; put the text into a file first, or "
            "have the result printed instead";
  return "is " + std::string(lossless::noun_of(type)) + cure;
}

}  // namespace

std::string advice(const lossless::FileFailure& failure, Purpose purpose) {
  std::string words = lossless::words(failure);
  switch (failure.kind) {
    case Kind::NotRegular:
      return advice_on_type(failure.type, purpose);
    case Kind::TooLarge:
      return words + ", see --max-size";
    case Kind::Locked:
      return words + ", see --lock-timeout";
    case Kind::SeveralNames:
      return words + "; use --break-hard-links to accept that";
    case Kind::BackupExists:
      return words + "; use --backup=SUFFIX for another name";
    case Kind::Exists:
      return words + "; use --force to replace it";
    default:
      return words;
  }
}

void throw_trouble(const lossless::FileFailure& failure, Purpose purpose) {
  const bool is_folder =
      failure.kind == Kind::NotRegular && failure.type == lossless::FileType::Folder;
  if (is_folder) throw FolderTrouble(advice(failure, purpose));
  throw Trouble(advice(failure, purpose));
}

}  // namespace kelp::input::quill::tool
