#include "lint/checks/constraint_like_atoms.hpp"

#include <algorithm>
#include <functional>
#include <set>

#include "kelp/core/text.hpp"
#include "lint/tokens.hpp"
#include "model/post_line_shapes.hpp"

namespace kelp::input::quill::lint {

namespace {

using Tokens = std::vector<std::string_view>;

bool is_atom_number(std::string_view token) {
  int number = 0;
  return token.front() != '+' && core::text::try_parse_int(token, number) && number >= 1;
}

bool resembles_constraint(const Tokens& tokens) {
  return find_post_line_shape(core::text::to_upper_copy(tokens[0])) != nullptr &&
         std::all_of(tokens.begin() + 1, tokens.end(), is_atom_number) &&
         std::set<std::string_view>(tokens.begin() + 1, tokens.end()).size() == 3;
}

/// Whether the coordinates of an atom are all integers, as a constraint's numbers are.
bool has_integers(const Source& source, std::size_t line) {
  const Tokens tokens = tokens_of(source.content(line));
  return std::all_of(tokens.begin() + 1, tokens.end(), is_integer);
}

/// Returns how many atoms there are before those at the end that look like constraints.
std::size_t count_plain_atoms(const Source& source) {
  const std::vector<std::size_t>& lines = source.atom_lines();
  std::size_t count = lines.size();
  while (count > 0 && resembles_constraint(tokens_of(source.content(lines[count - 1])))) --count;
  return count;
}

bool is_set_apart(const Source& source, std::size_t first) {
  const std::vector<std::size_t>& lines = source.atom_lines();
  const bool has_blank_line = lines[first] > lines[first - 1] + 1;
  return has_blank_line || !has_integers(source, lines[first - 1]);
}

/// Passes on the index of each atom, and its keyword.
void for_each_like_constraint(const Source& source, bool wants_elements,
                              const std::function<void(std::size_t, std::string_view)>& use) {
  const std::size_t first = count_plain_atoms(source);
  const std::vector<std::size_t>& lines = source.atom_lines();
  if (first == 0 || first == lines.size() || !is_set_apart(source, first)) return;
  for (std::size_t i = first; i < lines.size(); ++i) {
    const std::string_view keyword = tokens_of(source.content(lines[i])).front();
    if (is_element(keyword) == wants_elements) use(i, keyword);
  }
}

}  // namespace

void find_constraint_like_atoms(const Source& source, bool wants_elements, Collector& findings) {
  for_each_like_constraint(source, wants_elements, [&](std::size_t atom, std::string_view keyword) {
    findings.add({source.range_of(keyword),
                  {text_fact("keyword", keyword),
                   text_fact("symbol", source.input().geometry.atoms[atom].symbol)}});
  });
}

bool has_elements_like_constraints(const Source& source) {
  bool has_some = false;
  for_each_like_constraint(source, true, [&](std::size_t, std::string_view) { has_some = true; });
  return has_some;
}

}  // namespace kelp::input::quill::lint
