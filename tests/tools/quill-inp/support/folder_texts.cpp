#include "tools/quill-inp/support/folder_texts.hpp"

#include <gtest/gtest.h>

#include "tools/quill-inp/support/files.hpp"

namespace kelp::input::quill::tool {

FolderTexts texts_in(const std::string& folder) {
  FolderTexts files;
  for (const std::string& name : names_in(folder)) files[name] = content_of(folder + "/" + name);
  return files;
}

void expect_old_or_new(const FolderTexts& files, const FolderTexts& before,
                       const FolderTexts& after) {
  for (const auto& [name, text] : files) {
    const auto old_file = before.find(name);
    const auto new_file = after.find(name);
    const bool is_old = old_file != before.end() && old_file->second == text;
    const bool is_new = new_file != after.end() && new_file->second == text;
    EXPECT_TRUE(is_old || is_new) << name << ":\n" << text;
  }
  for (const auto& [name, text] : before) EXPECT_EQ(files.count(name), 1U) << name;
}

}  // namespace kelp::input::quill::tool
