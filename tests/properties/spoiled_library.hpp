#ifndef KELP_INPUT_QUILL_TESTS_PROPERTIES_SPOILED_LIBRARY_HPP
#define KELP_INPUT_QUILL_TESTS_PROPERTIES_SPOILED_LIBRARY_HPP

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "kelp/input/quill/quill.hpp"

namespace kelp::input::quill {

/// Changes what a function of the library has answered to the arguments.
template <typename Answer, typename... Arguments>
using Spoil = std::function<void(Answer&, Arguments...)>;

/// What becomes of the answers of the library in a program that is linked with spoiled_library.cpp,
/// as the objects of the program itself see them. Where there is nothing, they are as they are.
struct Spoils {
  Spoil<ParseResult, std::string_view> reading;
  Spoil<std::string, const QuillInput&> writing;
  Spoil<std::string, const HeaderCommand&> writing_a_command;
  Spoil<std::string, const InputEditor&> writing_by_an_editor;
  Spoil<std::string, const InputBuilder&> writing_by_a_builder;
  Spoil<const HeaderCommand*, std::string_view, std::uint64_t> finding;
  Spoil<HeaderCommand*, std::string_view, std::uint64_t> finding_to_change;
  Spoil<bool, std::string_view> having;
  Spoil<std::vector<std::string>, const QuillInput&> listing;
  /// Called before the flag is set.
  Spoil<InputEditor, std::string_view> setting_a_flag;
  /// Called after a constraint was added.
  Spoil<InputBuilder, int> building_a_constraint;

  Spoil<std::string, std::string_view> trimming;
  Spoil<std::string, std::string_view> lowering;
  Spoil<std::string, std::string_view> raising;
  Spoil<std::vector<std::string>, std::string_view> cutting_words;
  Spoil<std::vector<std::string>, std::string_view> cutting_lines;
  Spoil<bool, std::string_view, int&> reading_an_integer;
  Spoil<bool, std::string_view, double&> reading_a_double;
  Spoil<std::string, std::string_view> spelling_a_symbol;
  Spoil<std::optional<int>, std::string_view> numbering_a_symbol;
};

Spoils& spoils();

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_TESTS_PROPERTIES_SPOILED_LIBRARY_HPP
