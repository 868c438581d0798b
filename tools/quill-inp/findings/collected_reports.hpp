#ifndef KELP_INPUT_QUILL_TOOL_FINDINGS_COLLECTED_REPORTS_HPP
#define KELP_INPUT_QUILL_TOOL_FINDINGS_COLLECTED_REPORTS_HPP

#include <cstddef>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "lint/rule.hpp"
#include "quill-inp/findings/file_report.hpp"

namespace kelp::input::quill::tool {

/// What is reported about all files of a call together. Several threads may add to it at once.
class CollectedReports {
 public:
  /// Adds the report of the file that `argument` names. It is kept whole only if `keeps_report`.
  void add(const std::string& argument, FileReport report, bool keeps_report);

  std::size_t count_files() const { return files_; }
  std::size_t count_files_with_findings() const { return files_with_findings_; }

  /// How often each rule was found, by its code.
  const std::map<std::string_view, std::size_t>& counts() const { return counts_; }

  /// Returns the reports that were kept, in the order of the arguments, each once.
  std::vector<FileReport> take_reports(const std::vector<std::string>& arguments);

 private:
  std::mutex mutex_;
  std::size_t files_ = 0;
  std::size_t files_with_findings_ = 0;
  std::map<std::string_view, std::size_t> counts_;
  std::map<std::string, FileReport> kept_;
};

/// Returns the worst severity of findings, or nothing for none.
std::optional<lint::Severity> worst_severity(const lint::Findings& findings);

/// Returns how often each rule was found, one line for each, the most frequent one first.
std::string statistics_text(const std::map<std::string_view, std::size_t>& counts);

/// Returns the counts in words: "12 files read, 3 with findings".
std::string count_words(const CollectedReports& reports);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_FINDINGS_COLLECTED_REPORTS_HPP
