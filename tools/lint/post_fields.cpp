#include "lint/post_fields.hpp"

#include "lint/tokens.hpp"

namespace kelp::input::quill::lint {

// The numbers come right after the keyword.
std::vector<AtomNumber> atom_numbers_of(const Source& source, std::size_t command) {
  std::vector<AtomNumber> numbers;
  const std::vector<std::int32_t>& atoms = source.input().post_commands[command].atom_indices;
  if (atoms.empty()) return numbers;
  const std::vector<std::string_view> tokens =
      tokens_of(source.content(source.post_lines()[command]));
  for (std::size_t i = 0; i < atoms.size(); ++i)
    numbers.push_back({atoms[i], tokens[i + 1], command});
  return numbers;
}

void for_each_atom_number(const Source& source, const std::function<void(const AtomNumber&)>& use) {
  for (std::size_t i = 0; i < source.post_lines().size(); ++i) {
    for (const AtomNumber& number : atom_numbers_of(source, i)) use(number);
  }
}

}  // namespace kelp::input::quill::lint
