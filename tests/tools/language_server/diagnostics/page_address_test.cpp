#include "language_server/diagnostics/page_address.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <utility>

#include "support/temporary_folder.hpp"

namespace kelp::input::quill::language_server {

namespace {

TEST(PageAddress, IsThatOfTheInstalledPage) {
  const TemporaryFolder folder;
  std::filesystem::create_directory(folder.path("lint pages"));
  folder.write("lint pages/QL104.md", "");
  EXPECT_EQ(page_address("QL104", {"", folder.path("lint pages")}),
            "file://" + folder.path() + "/lint%20pages/QL104.md");
  EXPECT_EQ(page_address("QL104", {"", folder.path("lint pages/../lint pages/")}),
            "file://" + folder.path() + "/lint%20pages/QL104.md");
}

TEST(PageAddress, IsEmptyForAPageThatIsNotInstalled) {
  const TemporaryFolder folder;
  std::filesystem::create_directory(folder.path("QL105.md"));
  EXPECT_EQ(page_address("QL104", {"", folder.path()}), "");
  EXPECT_EQ(page_address("QL105", {"", folder.path()}), "");
  EXPECT_EQ(page_address("QL104", {"", ""}), "");
}

TEST(PageAddress, IsTheOneThatWasChosenEvenIfThePageIsInstalled) {
  const TemporaryFolder folder;
  folder.write("QL104.md", "");
  const std::pair<const char*, const char*> rows[] = {
      {"https://host/lint/", "https://host/lint/QL104.md"},
      {"https://host/?page=", "https://host/?page=QL104.md"},
      {"https://host/{code}.html", "https://host/ql104.html"},
      {"https://host/{CODE}", "https://host/QL104"},
      {"https://{code}/{CODE}/{code}#{code", "https://ql104/QL104/ql104#{code"},
      {"https://host/{Code}", "https://host/{Code}QL104.md"},
  };
  for (const auto& [pages, address] : rows)
    EXPECT_EQ(page_address("QL104", {pages, folder.path()}), address);
}

}  // namespace

}  // namespace kelp::input::quill::language_server
