#ifndef KELP_INPUT_QUILL_BENCH_REFERENCE_BARE_READING_HPP
#define KELP_INPUT_QUILL_BENCH_REFERENCE_BARE_READING_HPP

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "kelp/input/quill/reader.hpp"

// One loop over every text that the benchmarks read, as a template over the nine functions, so that
// two sets of them are compared by exactly the same calls. `Functions` has them as static members.

namespace kelp::input::quill::bench {

template <typename Functions>
class BareReading {
 public:
  explicit BareReading(std::string_view text) : lines_(Functions::split_lines(text)) { next(); }

  ParseResult read() {
    for (; !at_end() && trimmed_.front() == '#'; ++index_, next())
      result_.input.commands.push_back(header_command());
    read_geometry();
    for (; !at_end(); ++index_, next()) result_.input.post_commands.push_back(post_command());
    result_.ok = true;
    return std::move(result_);
  }

 private:
  bool at_end() const { return index_ == lines_.size(); }

  void next() {
    for (; index_ < lines_.size(); ++index_) {
      trimmed_ = Functions::trim(lines_[index_]);
      if (!trimmed_.empty()) return;
    }
  }

  HeaderCommand header_command() const {
    const std::string line = Functions::trim(lines_[index_]);
    const std::string body = Functions::trim(std::string_view(line).substr(1));
    const std::string_view view = body;
    const std::size_t decisive = view.find_first_of("=(");
    if (decisive == std::string_view::npos) return HeaderCommand(body);
    std::string name = Functions::trim(view.substr(0, decisive));
    if (view[decisive] == '=') {
      return HeaderCommand(std::move(name), HeaderCommandKind::Assignment,
                           Functions::trim(view.substr(decisive + 1)));
    }
    HeaderCommand command(std::move(name), HeaderCommandKind::ParameterList);
    const std::size_t close = view.rfind(')');
    read_parameters(view.substr(decisive + 1, close - decisive - 1), command.parameters);
    Functions::trim(view.substr(close + 1));
    return command;
  }

  static void read_parameters(std::string_view list, std::vector<CommandParameter>& parameters) {
    for (std::size_t start = 0; start <= list.size();) {
      const std::size_t end = std::min(list.find(',', start), list.size());
      const std::string piece = Functions::trim(list.substr(start, end - start));
      const std::string_view view = piece;
      const std::size_t equals = view.find('=');
      if (equals == std::string_view::npos) {
        parameters.emplace_back(piece);
      } else {
        parameters.emplace_back(Functions::trim(view.substr(0, equals)),
                                Functions::trim(view.substr(equals + 1)));
      }
      start = end + 1;
    }
  }

  void read_geometry() {
    if (at_end()) return;
    const std::vector<std::string> numbers = Functions::split_whitespace(trimmed_);
    GeometryBlock& geometry = result_.input.geometry;
    if (numbers.size() == 2 && Functions::try_parse_int(numbers[0], geometry.charge) &&
        Functions::try_parse_int(numbers[1], geometry.multiplicity)) {
      geometry.has_charge_and_multiplicity = true;
      ++index_;
      next();
    }
    read_references(geometry);
    if (geometry.xyz_files.empty()) read_atoms(geometry.atoms);
    if (!geometry.xyz_files.empty()) geometry.kind = GeometryKind::XyzFile;
    if (!geometry.atoms.empty()) geometry.kind = GeometryKind::Atoms;
  }

  void read_references(GeometryBlock& geometry) {
    for (; !at_end(); ++index_, next()) {
      const std::string line = Functions::trim(lines_[index_]);
      const std::vector<std::string> tokens = Functions::split_whitespace(line);
      const std::string folded = Functions::to_lower_copy(tokens.front());
      if (folded != Functions::to_lower_copy("XYZ") &&
          folded != Functions::to_lower_copy("XYZTRAJ"))
        return;
      const std::string keyword = Functions::to_upper_copy(tokens.front());
      geometry.xyz_files.push_back(line.substr(keyword.size() + 1));
    }
  }

  void read_atoms(std::vector<AtomRecord>& atoms) {
    atoms.reserve(lines_.size() - index_);
    for (; !at_end(); ++index_, next()) {
      const std::vector<std::string> tokens = Functions::split_whitespace(trimmed_);
      AtomRecord atom;
      if (tokens.size() != 4 || !Functions::try_parse_double(tokens[1], atom.x) ||
          !Functions::try_parse_double(tokens[2], atom.y) ||
          !Functions::try_parse_double(tokens[3], atom.z))
        return;
      atom.symbol = Functions::normalize_symbol(tokens[0]);
      if (!Functions::atomic_number_from_symbol(atom.symbol))
        result_.warnings.push_back("unknown element symbol " + atom.symbol);
      atoms.push_back(std::move(atom));
    }
  }

  PostCommand post_command() const {
    PostCommand command;
    command.raw_text = Functions::trim(trimmed_);
    const std::vector<std::string> tokens = Functions::split_whitespace(command.raw_text);
    const std::string keyword = Functions::to_upper_copy(tokens.front());
    command.kind = kind_of(keyword);
    std::size_t numbers = tokens.size() - 1;
    if (command.kind == PostCommandKind::Raw) return command;
    if (command.kind == PostCommandKind::PostFile) {
      command.post_file = command.raw_text.substr(keyword.size() + 1);
      return command;
    }
    if (command.kind == PostCommandKind::Scan) {
      numbers -= 2;
      Functions::try_parse_double(tokens[numbers + 1], command.scan_value.emplace());
      Functions::try_parse_int(tokens[numbers + 2], command.scan_steps.emplace());
    }
    command.atom_indices.resize(numbers);
    for (std::size_t i = 0; i < numbers; ++i)
      Functions::try_parse_int(tokens[i + 1], command.atom_indices[i]);
    return command;
  }

  static PostCommandKind kind_of(std::string_view keyword) {
    if (keyword == "POST") return PostCommandKind::PostFile;
    constexpr std::string_view letters = "CBADS";  // in the order of the enumerators
    const std::size_t place =
        keyword.size() == 1 ? letters.find(keyword.front()) : std::string_view::npos;
    return place == std::string_view::npos ? PostCommandKind::Raw
                                           : static_cast<PostCommandKind>(place);
  }

  std::vector<std::string> lines_;
  std::size_t index_ = 0;
  std::string trimmed_;
  ParseResult result_;
};

}  // namespace kelp::input::quill::bench

#endif  // KELP_INPUT_QUILL_BENCH_REFERENCE_BARE_READING_HPP
