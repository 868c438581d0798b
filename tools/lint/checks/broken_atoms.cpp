#include "lint/checks/broken_atoms.hpp"

#include <utility>

#include "lint/line_repair.hpp"
#include "lint/tokens.hpp"

namespace kelp::input::quill::lint {

namespace {

constexpr std::size_t atom_tokens = 4;

using Edits = std::vector<ByteEdit>;

std::optional<Edits> repair(const Source& source, std::size_t line, BrokenLine::Kind kind) {
  const std::string_view content = source.content(line);
  const std::size_t base = source.lines()[line].offset;
  return kind == BrokenLine::Kind::Charge ? charge_repair(content, base)
                                          : atom_repair(content, base);
}

/// The atoms after the line usually have the same fault, and are mended with it.
void add_repairs_of_lost_atoms(const Source& source, std::size_t first, std::size_t most_edits,
                               Edits& edits) {
  for (std::size_t i = first; i < source.lines().size() && edits.size() <= most_edits; ++i) {
    if (source.lines()[i].role == LineRole::Blank) continue;
    if (!resembles_atom_line(source.content(i))) return;
    const auto more = atom_repair(source.content(i), source.lines()[i].offset);
    if (more) edits.insert(edits.end(), more->begin(), more->end());
  }
}

std::optional<Mend> find_mend(const Source& source, const BrokenLine& broken,
                              std::size_t most_edits) {
  auto edits = repair(source, broken.line, broken.kind);
  if (!edits) return std::nullopt;
  add_repairs_of_lost_atoms(source, broken.line + 1, most_edits, *edits);
  if (edits->size() > most_edits) return std::nullopt;
  return Mend{std::move(*edits), true};
}

/// What is wrong with the word, by its place on the line.
Fact fault_of(const Source& source, const BrokenLine& broken) {
  const std::vector<std::string_view> tokens = tokens_of(source.content(broken.line));
  if (broken.kind != BrokenLine::Kind::Word) return text_fact("token", broken.token);
  if (broken.token.empty()) return count_fact("missing", atom_tokens - tokens.size());
  if (tokens.size() > atom_tokens) return text_fact("extra", broken.token);
  return text_fact(broken.token.data() == tokens[0].data() ? "symbol" : "word", broken.token);
}

/// The word that is the cause, or the last byte of a line that is too short.
Range range_of_fault(const Source& source, const BrokenLine& broken) {
  if (!broken.token.empty()) return source.range_of(broken.token);
  return {source.range_of(source.trimmed(broken.line)).end(), 0};
}

}  // namespace

void find_broken_atoms(const Source& source, BrokenLine::Kind kind, Collector& findings) {
  const std::optional<BrokenLine>& broken = source.broken_line();
  if (!broken || broken->kind != kind) return;
  std::vector<Fact> facts = {count_fact("atoms", source.input().geometry.atoms.size()),
                             count_fact("lost", broken->lost)};
  if (broken->kind != BrokenLine::Kind::Charge || !broken->token.empty())
    facts.push_back(fault_of(source, *broken));
  findings.add({range_of_fault(source, *broken),
                std::move(facts),
                {},
                find_mend(source, *broken, findings.most_edits())});
}

}  // namespace kelp::input::quill::lint
