#include "quill-inp/files/written_files.hpp"

#include "kelp/input/quill/lossless/wording.hpp"
#include "quill-inp/files/file_advice.hpp"
#include "quill-inp/files/unfinished_files.hpp"

namespace kelp::input::quill::tool {

namespace {

std::vector<std::string> words_of(const std::vector<lossless::LostAttribute>& all) {
  std::vector<std::string> notes;
  notes.reserve(all.size());
  for (const lossless::LostAttribute& lost : all) notes.push_back(lossless::words(lost));
  return notes;
}

}  // namespace

lossless::FileToReplace open_for_replacing(const std::string& path,
                                           const lossless::OpenOptions& options) {
  try {
    return lossless::open_to_replace(path, options);
  } catch (const lossless::FileError& error) {
    throw_trouble(error.failure(), Purpose::Replacing);
  }
}

std::vector<std::string> replace_text(lossless::FileToReplace& file, std::string_view text,
                                      lossless::ReplaceOptions options) {
  options.unfinished = &unfinished_files();
  try {
    return words_of(file.replace(text, options));
  } catch (const lossless::FileError& error) {
    throw_trouble(error.failure(), Purpose::Replacing);
  }
}

WrittenFile write_file(const std::string& path, std::string_view text,
                       lossless::ExistingFile existing, lossless::FolderFlush flush) {
  lossless::WriteOptions options;
  options.existing = existing;
  options.flush = flush;
  options.unfinished = &unfinished_files();
  try {
    const lossless::WrittenFile written = lossless::write_whole_file(path, text, options);
    return {written.is_written, words_of(written.lost)};
  } catch (const lossless::FileError& error) {
    throw_trouble(error.failure(), Purpose::Replacing);
  }
}

void flush_folder(const std::string& path) {
  try {
    lossless::flush_folder(path);
  } catch (const lossless::FileError& error) {
    throw_trouble(error.failure(), Purpose::Replacing);
  }
}

}  // namespace kelp::input::quill::tool
