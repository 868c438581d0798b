# Writes the pages of docs/lint/ into a source file: cmake -DFOLDER=... -DOUTPUT=... -P write_pages.cmake
file(GLOB pages "${FOLDER}/QL*.md")
list(SORT pages)
set(cases "")
foreach(page IN LISTS pages)
  get_filename_component(code "${page}" NAME_WE)
  file(READ "${page}" content)
  string(APPEND cases "    {\"${code}\", R\"page(${content})page\"},\n")
endforeach()
file(WRITE "${OUTPUT}" "#include \"lint/pages.hpp\"

namespace kelp::input::quill::lint {

namespace {

struct Page {
  std::string_view code;
  std::string_view text;
};

constexpr Page pages[] = {
${cases}};

}  // namespace

std::string_view page_of(std::string_view code) {
  for (const Page& page : pages) {
    if (page.code == code) return page.text;
  }
  return {};
}

}  // namespace kelp::input::quill::lint
")
