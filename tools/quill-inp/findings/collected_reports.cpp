#include "quill-inp/findings/collected_reports.hpp"

#include <algorithm>
#include <utility>

namespace kelp::input::quill::tool {

void CollectedReports::add(const std::string& argument, FileReport report, bool keeps_report) {
  const std::lock_guard<std::mutex> lock(mutex_);
  ++files_;
  if (!report.findings.empty()) ++files_with_findings_;
  for (const lint::Finding& finding : report.findings) ++counts_[finding.code];
  for (const auto& [code, count] : report.more) counts_[code] += count;
  if (keeps_report && !report.findings.empty()) kept_.emplace(argument, std::move(report));
}

std::vector<FileReport> CollectedReports::take_reports(const std::vector<std::string>& arguments) {
  std::vector<FileReport> reports;
  for (const std::string& argument : arguments) {
    const auto report = kept_.find(argument);
    if (report == kept_.end()) continue;
    reports.push_back(std::move(report->second));
    kept_.erase(report);
  }
  return reports;
}

std::optional<lint::Severity> worst_severity(const lint::Findings& findings) {
  std::optional<lint::Severity> worst;
  for (const lint::Finding& finding : findings)
    worst = std::max(worst, std::optional(lint::find_rule(finding.code)->severity));
  return worst;
}

std::string statistics_text(const std::map<std::string_view, std::size_t>& counts) {
  std::vector<std::pair<std::string_view, std::size_t>> rows(counts.begin(), counts.end());
  std::stable_sort(rows.begin(), rows.end(),
                   [](const auto& left, const auto& right) { return left.second > right.second; });
  std::string text;
  for (const auto& [code, count] : rows) {
    const std::string number = std::to_string(count);
    text += std::string(7 - std::min<std::size_t>(7, number.size()), ' ') + number + "  " +
            std::string(code) + "  " + std::string(lint::find_rule(code)->title) + "\n";
  }
  return text;
}

std::string count_words(const CollectedReports& reports) {
  const std::size_t files = reports.count_files();
  return std::to_string(files) + (files == 1 ? " file read, " : " files read, ") +
         std::to_string(reports.count_files_with_findings()) + " with findings";
}

}  // namespace kelp::input::quill::tool
