#include "lint/checks/checks.hpp"
#include "lint/tokens.hpp"

namespace kelp::input::quill::lint {

namespace {

bool is_quoted(std::string_view path) {
  const bool has_two = path.size() >= 2 && path.front() == path.back();
  return has_two && (path.front() == '"' || path.front() == '\'');
}

void check_path(const Source& source, std::size_t line, std::string_view path,
                Collector& findings) {
  if (!is_quoted(path)) return;
  // The path is the end of its line.
  const std::string_view content = source.trimmed(line);
  const Range range = source.range_of(content.substr(content.size() - path.size()));
  findings.add({range,
                {text_fact("path", path)},
                {},
                Mend{{{{range.offset, 1}, ""}, {{range.end() - 1, 1}, ""}}, false}});
}

}  // namespace

void check_quoted_path(const Source& source, Collector& findings) {
  const std::vector<std::string>& paths = source.input().geometry.xyz_files;
  for (std::size_t i = 0; i < paths.size(); ++i)
    check_path(source, source.reference_lines()[i], paths[i], findings);
  for (std::size_t i = 0; i < source.post_lines().size(); ++i)
    check_path(source, source.post_lines()[i], source.input().post_commands[i].post_file, findings);
}

}  // namespace kelp::input::quill::lint
