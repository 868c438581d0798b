#include "quill-inp/batch/name_census.hpp"

#include <algorithm>
#include <cstddef>
#include <map>
#include <mutex>
#include <optional>
#include <set>
#include <utility>

#include "quill-inp/batch/file_header.hpp"
#include "quill-inp/batch/ordered_work.hpp"

namespace kelp::input::quill::tool {

namespace {

// Reading a header takes less time than passing it from one thread to another.
constexpr std::size_t files_in_a_piece = 32;

using Names = std::vector<std::string>;
using Counts = std::map<std::string, std::size_t>;  // of files, by the name that they use

std::set<std::string> names_of(const std::vector<HeaderCommand>& commands) {
  std::set<std::string> names;
  for (const HeaderCommand& command : commands) names.insert(normalize_command_name(command.name));
  return names;
}

/// Counts in how many files each name is. A file counts once, whatever it is called.
class Census {
 public:
  explicit Census(const std::vector<std::string>& files) : files_(files) {}

  void take(unsigned threads) {
    found_.resize(window_of(threads));
    const std::size_t count = (files_.size() + files_in_a_piece - 1) / files_in_a_piece;
    if (threads > 1) {
      take_side_by_side(count, threads);
      return;
    }
    for (std::size_t i = 0; i < count; ++i) {
      read_piece(i);
      count_piece(i);
    }
  }

  Names names_in_several() const {
    Names names;
    for (const auto& [name, count] : counts_) {
      if (count >= 2) names.push_back(name);
    }
    return names;
  }

 private:
  void take_side_by_side(std::size_t count, unsigned threads) {
    OrderedWork pieces;
    pieces.count = count;
    pieces.work = [&](std::size_t number) { read_piece(number); };
    pieces.deliver = [&](std::size_t number) { count_piece(number); };
    pieces.pass_time = [] {};
    do_in_order(pieces, threads);
  }

  Counts& found_in(std::size_t piece) { return found_[piece % found_.size()]; }

  void read_piece(std::size_t number) {
    Counts counts;
    const std::size_t end = std::min(files_.size(), (number + 1) * files_in_a_piece);
    for (std::size_t i = number * files_in_a_piece; i < end; ++i) count_names(files_[i], counts);
    found_in(number) = std::move(counts);
  }

  /// Counts the names of a file, each once. Another thread may do so for other files.
  void count_names(const std::string& path, Counts& counts) {
    if (path == "-") return;
    const std::optional<FileHeader> header = read_header(path);
    if (!header || !is_first(header->identity)) return;
    for (const std::string& name : names_of(header->commands)) ++counts[name];
  }

  bool is_first(const std::pair<dev_t, ino_t>& identity) {
    const std::lock_guard<std::mutex> lock(mutex_);
    return counted_.insert(identity).second;
  }

  void count_piece(std::size_t number) {
    for (const auto& [name, count] : found_in(number)) counts_[name] += count;
  }

  const std::vector<std::string>& files_;
  std::mutex mutex_;
  std::set<std::pair<dev_t, ino_t>> counted_ = {};
  std::vector<Counts> found_ = {};  // of the pieces, by their numbers within the window
  Counts counts_ = {};
};

}  // namespace

std::vector<std::string> names_in_several_files(const std::vector<std::string>& files,
                                                unsigned threads) {
  Census census(files);
  census.take(threads);
  return census.names_in_several();
}

}  // namespace kelp::input::quill::tool
