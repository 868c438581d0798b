#include "tools/quill-inp/support/faulty_write.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

namespace kelp::input::quill::tool {

FaultyWrite::FaultyWrite(bool keeps_backup) : keeps_backup_(keeps_backup) {
  path_ = folder_.write("a.qin", water);
  chmod(path_.c_str(), mode);
  request_.arguments = {"set", "-q", "-i", "a.qin", "model=m2"};
  if (keeps_backup) request_.arguments.emplace_back("--backup");
  request_.folder = folder_.path();
  request_.umask = 0;
  request_.environment = {{"LD_PRELOAD", QUILL_INP_FAILING_CALLS},
                          {"ASAN_OPTIONS", "verify_asan_link_order=0"}};
}

Outcome FaultyWrite::run_with_fault(std::size_t call, const std::string& fault) {
  request_.environment["QUILL_INP_FAULT_AT"] = std::to_string(call);
  request_.environment["QUILL_INP_FAULT"] = fault;
  return run();
}

Outcome FaultyWrite::run_undisturbed() {
  request_.environment.erase("LD_PRELOAD");
  return run();
}

std::vector<std::string> FaultyWrite::list_calls(const Outcome& expected) {
  return list("QUILL_INP_CALL_LOG", expected);
}

std::vector<std::string> FaultyWrite::list_flags() {
  return list("QUILL_INP_FLAG_LOG", ended(0, "", ""));
}

std::vector<std::string> FaultyWrite::others() const {
  std::vector<std::string> names = names_in(folder_.path());
  names.erase(std::remove(names.begin(), names.end(), "a.qin"), names.end());
  return names;
}

std::vector<std::string> FaultyWrite::others_wanted() const {
  if (!keeps_backup_ || content() == water) return {};
  return {backup_name};
}

bool FaultyWrite::nothing_is_wider() const {
  for (const std::string& name : names_in(folder_.path())) {
    if ((mode_of(folder_.path(name)) & ~mode) != 0) return false;
  }
  return true;
}

std::vector<std::string> FaultyWrite::list(const std::string& variable, const Outcome& expected) {
  const TemporaryFolder logs;
  const std::string log = logs.write("log", "");
  request_.environment[variable] = log;
  EXPECT_EQ(run(), expected);
  std::istringstream lines(content_of(log));
  std::vector<std::string> all;
  for (std::string line; std::getline(lines, line);) all.push_back(line);
  return all;
}

std::vector<std::string> calls_of_a_write(bool keeps_backup) {
  return FaultyWrite(keeps_backup).list_calls();
}

std::size_t position(const std::vector<std::string>& calls, const std::string& name) {
  return static_cast<std::size_t>(std::find(calls.begin(), calls.end(), name) - calls.begin());
}

std::size_t last_call(const std::vector<std::string>& calls, const std::string& name) {
  return static_cast<std::size_t>(calls.rend() - std::find(calls.rbegin(), calls.rend(), name));
}

bool is_old_or_new(const std::string& content) {
  return content == water || content == changed_water();
}

const char* words_for(bool keeps_backup) { return keeps_backup ? "WithBackup" : "WithoutBackup"; }

}  // namespace kelp::input::quill::tool
