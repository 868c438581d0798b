#include "language_server/protocol/address.hpp"

#include <gtest/gtest.h>

namespace kelp::input::quill::language_server {

namespace {

struct Row {
  std::string name;
  std::string document;
  std::string path;
  std::optional<std::string> address;
};

class AddressOfReference : public testing::TestWithParam<Row> {};

TEST_P(AddressOfReference, IsRelativeToTheDocument) {
  EXPECT_EQ(address_of_reference(GetParam().document, GetParam().path), GetParam().address);
}

const std::string job = "file:///home/me/job.qin";

const Row rows[] = {
    {"InTheSameFolder", job, "water.xyz", "file:///home/me/water.xyz"},
    {"InAFolderBelow", job, "xyz/water.xyz", "file:///home/me/xyz/water.xyz"},
    {"InAFolderAbove", job, "../water.xyz", "file:///home/water.xyz"},
    {"AboveTheTop", job, "../../../../water.xyz", "file:///water.xyz"},
    {"WithADotInIt", job, "./a/./../water.xyz", "file:///home/me/water.xyz"},
    {"ThatEndsInDots", job, "xyz/..", "file:///home/me/"},
    {"FromTheTop", job, "/data/water.xyz", "file:///data/water.xyz"},
    {"WithADrive", "file:///c%3A/job.qin", "water.xyz", "file:///c%3A/water.xyz"},
    {"OnAHost", "file://host/job.qin", "water.xyz", "file://host/water.xyz"},
    {"WithoutAnAuthority", "file:/me/job.qin", "water.xyz", "file:/me/water.xyz"},
    {"OnAHostFromTheTop", "vscode-remote://ssh/me/job.qin", "/a.xyz", "vscode-remote://ssh/a.xyz"},
    {"WithBlanksAndOthers", job, "my water#1?%.xyz", "file:///home/me/my%20water%231%3F%25.xyz"},
    {"InUtf8", job, "\xc3\xa9.xyz", "file:///home/me/%C3%A9.xyz"},
    {"WithPlainCharacters", job, "a-._~Z0.xyz", "file:///home/me/a-._~Z0.xyz"},
    {"OfADocumentThatWasNeverSaved", "untitled:Untitled-1", "water.xyz", std::nullopt},
    {"OfAnAddressWithoutAScheme", "/home/me/job.qin", "water.xyz", std::nullopt},
};

INSTANTIATE_TEST_SUITE_P(Table, AddressOfReference, testing::ValuesIn(rows),
                         [](const auto& row) { return row.param.name; });

}  // namespace

}  // namespace kelp::input::quill::language_server
