#include "language_server/diagnostics/page_address.hpp"

#include <gtest/gtest.h>

#include <filesystem>

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

TEST(PageAddress, BeginsWithTheAddressThatWasChosenEvenIfThePageIsInstalled) {
  const TemporaryFolder folder;
  folder.write("QL104.md", "");
  EXPECT_EQ(page_address("QL104", {"https://host/lint/", folder.path()}),
            "https://host/lint/QL104.md");
  EXPECT_EQ(page_address("QL104", {"https://host/?page=", ""}), "https://host/?page=QL104.md");
}

}  // namespace

}  // namespace kelp::input::quill::language_server
