#include "properties/spoiled_library.hpp"

#include <cstdint>
#include <utility>

// The linker's option --wrap=NAME lets what this program calls NAME be __wrap_NAME, and gives the
// library's own the name __real_NAME. CMakeLists.txt takes the names from here.

namespace kelp::input::quill {

Spoils& spoils() {
  static Spoils all;
  return all;
}

// clang-format off
ParseResult real_parse_string(std::string_view text)
    __asm__("__real__ZN4kelp5input5quill12parse_stringESt17basic_string_viewIcSt11char_traitsIcEE");
ParseResult spoiled_parse_string(std::string_view text)
    __asm__("__wrap__ZN4kelp5input5quill12parse_stringESt17basic_string_viewIcSt11char_traitsIcEE");

std::string real_to_string(const QuillInput* document)
    __asm__("__real__ZNK4kelp5input5quill10QuillInput9to_stringB5cxx11Ev");
std::string spoiled_to_string(const QuillInput* document)
    __asm__("__wrap__ZNK4kelp5input5quill10QuillInput9to_stringB5cxx11Ev");

std::string real_command_to_string(const HeaderCommand& command)
    __asm__("__real__ZN4kelp5input5quill9to_stringB5cxx11ERKNS1_13HeaderCommandE");
std::string spoiled_command_to_string(const HeaderCommand& command)
    __asm__("__wrap__ZN4kelp5input5quill9to_stringB5cxx11ERKNS1_13HeaderCommandE");

std::string real_editor_to_string(const InputEditor* editor)
    __asm__("__real__ZNK4kelp5input5quill11InputEditor9to_stringB5cxx11Ev");
std::string spoiled_editor_to_string(const InputEditor* editor)
    __asm__("__wrap__ZNK4kelp5input5quill11InputEditor9to_stringB5cxx11Ev");

std::string real_builder_to_string(const InputBuilder* builder)
    __asm__("__real__ZNK4kelp5input5quill12InputBuilder9to_stringB5cxx11Ev");
std::string spoiled_builder_to_string(const InputBuilder* builder)
    __asm__("__wrap__ZNK4kelp5input5quill12InputBuilder9to_stringB5cxx11Ev");

const HeaderCommand* real_find_const(const QuillInput* document, std::string_view name, std::uint64_t occurrence)
    __asm__("__real__ZNK4kelp5input5quill10QuillInput12find_commandESt17basic_string_viewIcSt11char_traitsIcEEm");
const HeaderCommand* spoiled_find_const(const QuillInput* document, std::string_view name, std::uint64_t occurrence)
    __asm__("__wrap__ZNK4kelp5input5quill10QuillInput12find_commandESt17basic_string_viewIcSt11char_traitsIcEEm");

HeaderCommand* real_find(QuillInput* document, std::string_view name, std::uint64_t occurrence)
    __asm__("__real__ZN4kelp5input5quill10QuillInput12find_commandESt17basic_string_viewIcSt11char_traitsIcEEm");
HeaderCommand* spoiled_find(QuillInput* document, std::string_view name, std::uint64_t occurrence)
    __asm__("__wrap__ZN4kelp5input5quill10QuillInput12find_commandESt17basic_string_viewIcSt11char_traitsIcEEm");

bool real_has_command(const QuillInput* document, std::string_view name)
    __asm__("__real__ZNK4kelp5input5quill10QuillInput11has_commandESt17basic_string_viewIcSt11char_traitsIcEE");
bool spoiled_has_command(const QuillInput* document, std::string_view name)
    __asm__("__wrap__ZNK4kelp5input5quill10QuillInput11has_commandESt17basic_string_viewIcSt11char_traitsIcEE");

std::vector<std::string> real_command_names(const QuillInput* document)
    __asm__("__real__ZNK4kelp5input5quill10QuillInput13command_namesB5cxx11Ev");
std::vector<std::string> spoiled_command_names(const QuillInput* document)
    __asm__("__wrap__ZNK4kelp5input5quill10QuillInput13command_namesB5cxx11Ev");

std::string real_trim(std::string_view text)
    __asm__("__real__ZN4kelp4core4text4trimB5cxx11ESt17basic_string_viewIcSt11char_traitsIcEE");
std::string spoiled_trim(std::string_view text)
    __asm__("__wrap__ZN4kelp4core4text4trimB5cxx11ESt17basic_string_viewIcSt11char_traitsIcEE");

std::string real_to_lower_copy(std::string_view text)
    __asm__("__real__ZN4kelp4core4text13to_lower_copyB5cxx11ESt17basic_string_viewIcSt11char_traitsIcEE");
std::string spoiled_to_lower_copy(std::string_view text)
    __asm__("__wrap__ZN4kelp4core4text13to_lower_copyB5cxx11ESt17basic_string_viewIcSt11char_traitsIcEE");

std::string real_to_upper_copy(std::string_view text)
    __asm__("__real__ZN4kelp4core4text13to_upper_copyB5cxx11ESt17basic_string_viewIcSt11char_traitsIcEE");
std::string spoiled_to_upper_copy(std::string_view text)
    __asm__("__wrap__ZN4kelp4core4text13to_upper_copyB5cxx11ESt17basic_string_viewIcSt11char_traitsIcEE");

std::vector<std::string> real_split_whitespace(std::string_view text)
    __asm__("__real__ZN4kelp4core4text16split_whitespaceB5cxx11ESt17basic_string_viewIcSt11char_traitsIcEE");
std::vector<std::string> spoiled_split_whitespace(std::string_view text)
    __asm__("__wrap__ZN4kelp4core4text16split_whitespaceB5cxx11ESt17basic_string_viewIcSt11char_traitsIcEE");

std::vector<std::string> real_split_lines(std::string_view text)
    __asm__("__real__ZN4kelp4core4text11split_linesB5cxx11ESt17basic_string_viewIcSt11char_traitsIcEE");
std::vector<std::string> spoiled_split_lines(std::string_view text)
    __asm__("__wrap__ZN4kelp4core4text11split_linesB5cxx11ESt17basic_string_viewIcSt11char_traitsIcEE");

bool real_try_parse_int(std::string_view token, int& value)
    __asm__("__real__ZN4kelp4core4text13try_parse_intESt17basic_string_viewIcSt11char_traitsIcEERi");
bool spoiled_try_parse_int(std::string_view token, int& value)
    __asm__("__wrap__ZN4kelp4core4text13try_parse_intESt17basic_string_viewIcSt11char_traitsIcEERi");

bool real_try_parse_double(std::string_view token, double& value)
    __asm__("__real__ZN4kelp4core4text16try_parse_doubleESt17basic_string_viewIcSt11char_traitsIcEERd");
bool spoiled_try_parse_double(std::string_view token, double& value)
    __asm__("__wrap__ZN4kelp4core4text16try_parse_doubleESt17basic_string_viewIcSt11char_traitsIcEERd");

std::string real_normalize_symbol(std::string_view symbol)
    __asm__("__real__ZN4kelp4chem8elements16normalize_symbolB5cxx11ESt17basic_string_viewIcSt11char_traitsIcEE");
std::string spoiled_normalize_symbol(std::string_view symbol)
    __asm__("__wrap__ZN4kelp4chem8elements16normalize_symbolB5cxx11ESt17basic_string_viewIcSt11char_traitsIcEE");

std::optional<int> real_atomic_number(std::string_view symbol)
    __asm__("__real__ZN4kelp4chem8elements25atomic_number_from_symbolESt17basic_string_viewIcSt11char_traitsIcEE");
std::optional<int> spoiled_atomic_number(std::string_view symbol)
    __asm__("__wrap__ZN4kelp4chem8elements25atomic_number_from_symbolESt17basic_string_viewIcSt11char_traitsIcEE");

void real_set_flag(InputEditor* editor, std::string_view name)
    __asm__("__real__ZN4kelp5input5quill11InputEditor8set_flagESt17basic_string_viewIcSt11char_traitsIcEE");
void spoiled_set_flag(InputEditor* editor, std::string_view name)
    __asm__("__wrap__ZN4kelp5input5quill11InputEditor8set_flagESt17basic_string_viewIcSt11char_traitsIcEE");

InputBuilder& real_add_atom_constraint(InputBuilder* builder, int atom)
    __asm__("__real__ZN4kelp5input5quill12InputBuilder19add_atom_constraintEi");
InputBuilder& spoiled_add_atom_constraint(InputBuilder* builder, int atom)
    __asm__("__wrap__ZN4kelp5input5quill12InputBuilder19add_atom_constraintEi");
// clang-format on

namespace {

template <typename Answer, typename... Arguments, typename... Passed>
Answer spoiled(const Spoil<Answer, Arguments...>& spoil, Answer answer, Passed&&... passed) {
  if (spoil) spoil(answer, std::forward<Passed>(passed)...);
  return answer;
}

}  // namespace

ParseResult spoiled_parse_string(std::string_view text) {
  return spoiled(spoils().reading, real_parse_string(text), text);
}

std::string spoiled_to_string(const QuillInput* document) {
  return spoiled(spoils().writing, real_to_string(document), *document);
}

std::string spoiled_command_to_string(const HeaderCommand& command) {
  return spoiled(spoils().writing_a_command, real_command_to_string(command), command);
}

std::string spoiled_editor_to_string(const InputEditor* editor) {
  return spoiled(spoils().writing_by_an_editor, real_editor_to_string(editor), *editor);
}

std::string spoiled_builder_to_string(const InputBuilder* builder) {
  return spoiled(spoils().writing_by_a_builder, real_builder_to_string(builder), *builder);
}

const HeaderCommand* spoiled_find_const(const QuillInput* document, std::string_view name,
                                        std::uint64_t occurrence) {
  return spoiled(spoils().finding, real_find_const(document, name, occurrence), name, occurrence);
}

HeaderCommand* spoiled_find(QuillInput* document, std::string_view name, std::uint64_t occurrence) {
  return spoiled(spoils().finding_to_change, real_find(document, name, occurrence), name,
                 occurrence);
}

bool spoiled_has_command(const QuillInput* document, std::string_view name) {
  return spoiled(spoils().having, real_has_command(document, name), name);
}

std::vector<std::string> spoiled_command_names(const QuillInput* document) {
  return spoiled(spoils().listing, real_command_names(document), *document);
}

std::string spoiled_trim(std::string_view text) {
  return spoiled(spoils().trimming, real_trim(text), text);
}

std::string spoiled_to_lower_copy(std::string_view text) {
  return spoiled(spoils().lowering, real_to_lower_copy(text), text);
}

std::string spoiled_to_upper_copy(std::string_view text) {
  return spoiled(spoils().raising, real_to_upper_copy(text), text);
}

std::vector<std::string> spoiled_split_whitespace(std::string_view text) {
  return spoiled(spoils().cutting_words, real_split_whitespace(text), text);
}

std::vector<std::string> spoiled_split_lines(std::string_view text) {
  return spoiled(spoils().cutting_lines, real_split_lines(text), text);
}

bool spoiled_try_parse_int(std::string_view token, int& value) {
  return spoiled(spoils().reading_an_integer, real_try_parse_int(token, value), token, value);
}

bool spoiled_try_parse_double(std::string_view token, double& value) {
  return spoiled(spoils().reading_a_double, real_try_parse_double(token, value), token, value);
}

std::string spoiled_normalize_symbol(std::string_view symbol) {
  return spoiled(spoils().spelling_a_symbol, real_normalize_symbol(symbol), symbol);
}

std::optional<int> spoiled_atomic_number(std::string_view symbol) {
  return spoiled(spoils().numbering_a_symbol, real_atomic_number(symbol), symbol);
}

void spoiled_set_flag(InputEditor* editor, std::string_view name) {
  if (spoils().setting_a_flag) spoils().setting_a_flag(*editor, name);
  real_set_flag(editor, name);
}

InputBuilder& spoiled_add_atom_constraint(InputBuilder* builder, int atom) {
  InputBuilder& answer = real_add_atom_constraint(builder, atom);
  if (spoils().building_a_constraint) spoils().building_a_constraint(answer, atom);
  return answer;
}

}  // namespace kelp::input::quill
