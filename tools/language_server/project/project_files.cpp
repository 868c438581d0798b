#include "language_server/project/project_files.hpp"

#include <exception>
#include <system_error>
#include <utility>

#include "quill-inp/process/trouble.hpp"

namespace kelp::input::quill::language_server {

ProjectFiles::State ProjectFiles::state_of(const std::string& file) {
  std::error_code ignored;
  return {std::filesystem::last_write_time(file, ignored),
          std::filesystem::file_size(file, ignored)};
}

ProjectFiles::Reading ProjectFiles::read(const std::string& file) {
  Reading reading;
  reading.number = ++last_number_;
  try {
    reading.choices = tool::read_project_file(file);
  } catch (const tool::Trouble& trouble) {
    reading.problem = trouble.what();
  }
  return reading;
}

const ProjectFiles::Reading& ProjectFiles::reading_for(const std::string& path) {
  const std::string file = tool::find_project_file(path);
  if (file.empty()) return nothing_;
  const State state = state_of(file);
  const auto known = read_.find(file);
  if (known != read_.end() && known->second.state == state) return known->second.reading;
  return read_.insert_or_assign(file, Entry{state, read(file)}).first->second.reading;
}

}  // namespace kelp::input::quill::language_server
