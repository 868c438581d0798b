#include "language_server/session/checks.hpp"

#include <utility>

namespace kelp::input::quill::language_server {

const Check* Checks::find(const std::string& uri) const {
  const auto check = done_.find(uri);
  return check == done_.end() ? nullptr : &check->second;
}

const Check& Checks::keep(const std::string& uri, Check check) {
  check.number = ++last_number_;
  return done_.insert_or_assign(uri, std::move(check)).first->second;
}

std::set<std::string> Checks::texts_with(const std::string& path) const {
  std::set<std::string> texts;
  for (const auto& [uri, check] : done_) {
    if (check.references.count(path) > 0) texts.insert(uri);
  }
  return texts;
}

}  // namespace kelp::input::quill::language_server
