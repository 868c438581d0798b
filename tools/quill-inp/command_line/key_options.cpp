#include "quill-inp/command_line/key_options.hpp"

#include "quill-inp/command_line/file_options.hpp"
#include "quill-inp/process/trouble.hpp"

namespace kelp::input::quill::tool {

namespace {

constexpr Option file{"FILE", "", "The input; several with -k, -r or --files-from"};
constexpr const char* key_argument = "KEY";
constexpr Option key_option{"-k,--key", "KEY", "A KEY; all words are then names of files"};

}  // namespace

void add_key_options(CLI::App& verb, const char* help) {
  add_first_file(verb, file);
  add_files(verb, {key_argument, "", help});
  add_repeated(verb, key_option);
}

FilesAndKeys read_files_and_keys(const CLI::App& verb) {
  std::vector<std::string> words = values_of(verb, file);
  for (std::string& word : values_of(verb, {key_argument, "", ""}))
    words.push_back(std::move(word));
  if (std::vector<std::string> keys = values_of(verb, key_option); !keys.empty())
    return {std::move(words), std::move(keys)};
  FilesAndKeys result;
  if (!has_file_list(verb) && !words.empty()) {
    result.files = {std::move(words.front())};
    words.erase(words.begin());
  }
  result.keys = std::move(words);
  if (result.files.empty() && !has_file_list(verb)) throw UsageError("FILE is required");
  if (result.keys.empty()) throw UsageError("KEY is required");
  return result;
}

}  // namespace kelp::input::quill::tool
