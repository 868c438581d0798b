#include "lint/checks/checks.hpp"

namespace kelp::input::quill::lint {

namespace {

using namespace std::string_view_literals;

struct Signature {
  std::string_view bytes;
  std::string_view kind;
};

constexpr Signature signatures[] = {
    {"\x7F"
     "ELF"sv,
     "a program"sv},
    {"MZ\x90\0"sv, "a program"sv},
    {"\x89PNG\r\n"sv, "an image"sv},
    {"GIF8"sv, "an image"sv},
    {"\xFF\xD8\xFF"sv, "an image"sv},
    {"II*\0"sv, "an image"sv},
    {"MM\0*"sv, "an image"sv},
    {"%PDF-"sv, "a PDF document"sv},
    {"PK\x03\x04"sv, "an archive"sv},
    {"\x1F\x8B\x08"sv, "a compressed file"sv},
    {"BZh9"sv, "a compressed file"sv},
    {"\xFD"
     "7zXZ\0"sv,
     "a compressed file"sv},
};

}  // namespace

void check_binary_file(const Source& source, Collector& findings) {
  for (const Signature& signature : signatures) {
    if (source.text().substr(0, signature.bytes.size()) != signature.bytes) continue;
    findings.add({{0, signature.bytes.size()}, {text_fact("kind", signature.kind)}});
    return;
  }
}

}  // namespace kelp::input::quill::lint
