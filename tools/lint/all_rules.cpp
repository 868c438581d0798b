#include <iterator>

#include "lint/checks/checks.hpp"
#include "lint/rule.hpp"

namespace kelp::input::quill::lint {

namespace {

// What several rules say about a line that is not an atom line, although it was meant as one.
// Macros put texts together before the program starts.
#define WHERE_ATOMS_END                                                              \
  "{atoms|the atoms end after {atoms} atom|the atoms end after {atoms} atoms|there " \
  "are no atoms}: "
#define LOST_ATOMS                                                                       \
  "[; {lost|one further line that looks like an atom is|{lost} further lines that look " \
  "like atoms are} kept as raw text]"

constexpr std::string_view labelled_atom =
    WHERE_ATOMS_END "'{token}' is not a symbol made of letters" LOST_ATOMS;
constexpr std::string_view numbered_atom =
    WHERE_ATOMS_END "the line begins with the number '{token}', and has five words" LOST_ATOMS;
constexpr std::string_view ended_atoms =
    "{atoms|this line ended the atoms after {atoms} atom|this line ended the atoms after {atoms} "
    "atoms|no atoms are read because of this line}: ['{word}' is not a number]['{symbol}' is not "
    "a symbol made of letters]['{extra}' is a fifth word][{missing|a number is missing|{missing} "
    "numbers are missing}]" LOST_ATOMS;

#undef WHERE_ATOMS_END
#undef LOST_ATOMS

constexpr Rule rules[] = {
    // The file as a whole, and its bytes.
    {"QL001", Severity::Error, Group::File, "a byte order mark before the first line",
     "the text begins with a byte order mark, which the reader takes for letters of the first line",
     "save the file as UTF-8 without a byte order mark", check_byte_order_mark, Explains::Text,
     MendReach::Rest},
    {"QL002", Severity::Error, Group::File, "a carriage return where a line should end",
     "{count|a carriage return is|{count} carriage returns are} inside this line: only LF and CR "
     "LF end a line",
     "end lines with LF or CR LF", check_lone_carriage_return, Explains::Text, MendReach::Rest},
    {"QL003", Severity::Info, Group::File, "line ends of two kinds",
     "this line ends in {found}, and the first one in {usual}",
     "save the file with one kind of line ends", check_mixed_line_ends},
    {"QL004", Severity::Warning, Group::File, "a blank that the reader takes for a letter",
     "{character} looks like a blank and is read as a letter[; {others|one more is|{others} more "
     "are} on this line]",
     "type an ordinary blank", check_unicode_blank},
    {"QL005", Severity::Warning, Group::File, "a character that cannot be seen",
     "{character} cannot be seen and is read as a letter[; {others|one more is|{others} more are} "
     "on this line]",
     "remove it", check_invisible_character},
    {"QL006", Severity::Error, Group::File, "a text in UTF-16", "the text is in UTF-16",
     "save the file as UTF-8 without a byte order mark", check_utf16, Explains::Text},
    {"QL007", Severity::Error, Group::File, "a file that is not a text", "the file is {kind}",
     "check the name of the file", check_binary_file, Explains::Text},
    {"QL008", Severity::Error, Group::File, "NUL bytes",
     "{count|a NUL byte is|{count} NUL bytes are} in the text", "check the name of the file",
     check_nul_byte, Explains::Text},
    {"QL009", Severity::Error, Group::File, "a text that is not an input",
     "nothing in the text is a command or a coordinate; the reader keeps all of it as text",
     "check the name of the file", check_not_an_input, Explains::Text},

    // Charge, multiplicity and coordinates.
    {"QL101", Severity::Error, Group::Geometry, "an atom with a label instead of its symbol",
     labelled_atom, "write the symbol of the element alone", check_labelled_atom, Explains::Line,
     MendReach::Rest},
    {"QL102", Severity::Error, Group::Geometry, "an atom with a number before its symbol",
     numbered_atom, "remove the column of numbers", check_numbered_atom, Explains::Line,
     MendReach::Rest},
    {"QL103", Severity::Error, Group::Geometry, "a line of charge and multiplicity that is not one",
     "this is not read as charge and multiplicity[: '{token}' does not fit][; no coordinates are "
     "read, and {lost|one line that looks like them is|{lost} lines that look like them are} kept "
     "as raw text]",
     "write exactly two integers", check_charge_line, Explains::Line, MendReach::Rest},
    {"QL104", Severity::Error, Group::Geometry, "a line that ends the atoms too early", ended_atoms,
     "write a symbol and three numbers with decimal points", check_ended_atoms, Explains::Line,
     MendReach::Rest},
    {"QL105", Severity::Warning, Group::Geometry, "a constraint or scan that is read as an atom",
     "'{keyword}' with three numbers right after the atoms is read as one more atom of {symbol}",
     "put another post-processing line before it, and give it the count of words it needs",
     check_element_like_constraint, Explains::Line},
    {"QL106", Severity::Error, Group::Geometry, "an angle constraint that is read as an atom",
     "'{keyword}' with three numbers right after the atoms is read as an atom of the unknown "
     "element {symbol}",
     "put another post-processing line before it", check_angle_read_as_atom, Explains::Line},
    {"QL107", Severity::Error, Group::Geometry, "a command after the header",
     "the header is over, so '{line}' is kept as raw text",
     "move the line before charge, multiplicity and coordinates", check_late_command,
     Explains::Line},
    {"QL108", Severity::Error, Group::Geometry, "a reference after the coordinates",
     "the coordinates are over, so the {keyword} line is kept as raw text",
     "use either atoms or references, and put references right after charge and multiplicity",
     check_late_reference, Explains::Line},
    {"QL109", Severity::Info, Group::Geometry, "atoms without charge and multiplicity",
     "no line gives charge and multiplicity, so the reader assumes 0 and 1",
     "write a line such as '0 1' before the atoms", check_no_charge_line},
    {"QL110", Severity::Error, Group::Geometry, "a coordinate that is not finite",
     "the coordinate '{token}' is not a finite number", "write the coordinate",
     check_no_finite_coordinate},
    {"QL111", Severity::Error, Group::Geometry, "a multiplicity below 1",
     "the multiplicity '{token}' is below 1", "write 1 for a singlet, 2 for a doublet",
     check_multiplicity_below_one},
    {"QL112", Severity::Warning, Group::Geometry, "an unknown element",
     "unknown element symbol '{symbol}'", "write the symbol of an element", check_unknown_element},
    {"QL113", Severity::Warning, Group::Geometry, "no coordinates",
     "No QUILL coordinate section found", "add charge and multiplicity, and the coordinates",
     check_no_coordinates},
    {"QL114", Severity::Error, Group::Geometry, "a reference without a path",
     "the {keyword} reference has no file path", "write the path on the same line",
     check_reference_without_path, Explains::Line},

    // Header lines.
    {"QL201", Severity::Warning, Group::Header, "a parameter list that is not closed",
     "missing ')' in QUILL header command: all that follows is read as parameters",
     "close the list on the same line", check_unclosed_list},
    {"QL202", Severity::Warning, Group::Header, "text after a parameter list",
     "ignored trailing text after QUILL header command: '{text}' is lost",
     "write another command on a separate line", check_trailing_text},
    {"QL203", Severity::Warning, Group::Header, "a header line with nothing in it",
     "empty QUILL header command", "remove the line", check_empty_command},
    {"QL204", Severity::Warning, Group::Header, "a command without a name",
     "QUILL header command has no name", "write the name after the '#'", check_nameless_command},
    {"QL205", Severity::Error, Group::Header, "several words in the name of a command",
     "this is one command named '{name}', not the command '{word}'",
     "write '#{word}' and the rest as parameters in parentheses, or on a separate line",
     check_several_words},
    {"QL206", Severity::Warning, Group::Header, "a comment that is read as a command",
     "this is a command named '{name}': an input has no comments", "remove the line",
     check_comment_like_command},
    {"QL207", Severity::Warning, Group::Header, "a name that is similar to another one",
     "the command '{name}' is not known; did you mean '{similar}'?",
     "write '{similar}', or add the name to known-commands in .quill-inp.toml", check_similar_name},
    {"QL208", Severity::Info, Group::Header, "several tasks", "the input has {count} tasks",
     "check that you want all of them", check_several_tasks},
    {"QL209", Severity::Warning, Group::Header, "no task", "no command says what to compute",
     "add a line such as '#opt' or '#sp'", check_no_task},
    {"QL210", Severity::Warning, Group::Header, "a name that is assigned twice",
     "'{name}' was assigned before, and only the first value counts", "keep one of the lines",
     check_duplicate_assignment},
    {"QL211", Severity::Warning, Group::Header, "a parameter that is given twice",
     "the parameter '{name}' was given before, and only the first one is found",
     "keep one of the two", check_duplicate_parameter},
    {"QL212", Severity::Warning, Group::Header, "an empty entry in a parameter list",
     "an entry of the list is empty", "remove the extra comma", check_empty_entry},
    {"QL213", Severity::Warning, Group::Header, "a parameter without a name",
     "the value '{value}' has no name and is lost", "write the name before the '='",
     check_nameless_entry},
    {"QL214", Severity::Error, Group::Header, "a quote that is not closed",
     "no quote closes this one: '{text}' is read as one piece", "close the quote",
     check_unclosed_quote, Explains::Line},
    {"QL215", Severity::Error, Group::Header, "a value that is cut at a comma",
     "the value of '{name}' ends at the comma: '{value}'", "put quotes around the value",
     check_cut_value},
    {"QL216", Severity::Warning, Group::Header, "typographic quotes around a value",
     "the quotes are part of the value {value}", "use the quotes of ASCII",
     check_typographic_quote},
    {"QL217", Severity::Warning, Group::Header, "a value that only looks like a number",
     "the value '{value}' looks like a number, and has characters that no number has",
     "type the number again", check_odd_number},

    // Constraints, scans and post files.
    {"QL301", Severity::Error, Group::PostProcessing, "a constraint or scan that is dropped",
     "the line is dropped: '{token}' is not a number that '{keyword}' takes",
     "write numbers with decimal points, and atom numbers and steps as integers",
     check_dropped_line, Explains::Line},
    {"QL302", Severity::Warning, Group::PostProcessing, "a keyword with the wrong number of words",
     "'{keyword}' takes {wanted}, here {found}; the line is kept as raw text",
     "write the words that the keyword takes", check_wrong_field_count},
    {"QL303", Severity::Error, Group::PostProcessing, "an atom number below 1",
     "the atom number '{number}' is below 1", "count atoms from 1", check_atom_number_below_one},
    {"QL304", Severity::Error, Group::PostProcessing, "an atom number that is repeated",
     "the atom number '{number}' is on this line twice", "name different atoms",
     check_repeated_atom_number},
    {"QL305", Severity::Error, Group::PostProcessing, "an atom number that is too large",
     "the atom '{number}' does not exist: the input has {count|{count} atom|{count} atoms}",
     "write the number of an atom", check_atom_number_too_large},
    {"QL306", Severity::Error, Group::PostProcessing, "a scan without steps",
     "the number of steps is '{steps}', but a scan needs at least one", "write the number of steps",
     check_no_scan_steps},
    {"QL307", Severity::Error, Group::PostProcessing, "a scan value that is not finite",
     "the scan value '{token}' is not a finite number", "write the value",
     check_no_finite_scan_value},

    // References to other files.
    {"QL401", Severity::Error, Group::References, "quotes around a path",
     "the quotes are part of the path {path}", "write the path without quotes", check_quoted_path,
     Explains::Line},
    {"QL402", Severity::Warning, Group::References, "a file that does not exist",
     "the file '{path}' does not exist", "write the path from the folder of the input",
     check_missing_file},
    {"QL403", Severity::Warning, Group::References, "a file that cannot be read",
     "the file '{path}' cannot be read: {reason}", "check the file and its access rights",
     check_unreadable_file},
    {"QL404", Severity::Warning, Group::References, "a file without atoms",
     "the file '{path}' does not begin with a frame of the XYZ format",
     "check that the file is complete", check_no_frame},
    {"QL405", Severity::Error, Group::References, "a second reference beside a trajectory",
     "an input has one trajectory, so the second {keyword} line is kept as raw text",
     "keep one of the lines", check_extra_trajectory, Explains::Line},

    // What is lost when the text is rewritten.
    {"QL501", Severity::Warning, Group::Writing, "a line on which the meaning of another depends",
     "this line is lost when the input is rewritten, and line {line}, '{other}', is then read as "
     "something else",
     "correct the line, or put another post-processing line in its place", check_other_meaning,
     Explains::Line},
    {"QL502", Severity::Warning, Group::Writing, "numbers that change when they are written",
     "{count|one number changes|{count} numbers change} by up to {change} when the input is "
     "rewritten",
     "write fewer digits: coordinates keep six decimals, scan values six digits",
     check_large_change},
    {"QL503", Severity::Warning, Group::Writing, "columns that touch",
     "a coordinate of this atom is so large that it would touch the column before it, and the atom "
     "would be lost",
     "move the molecule to the origin", check_touching_columns},
    {"QL504", Severity::Info, Group::Writing, "numbers that are rounded when they are written",
     "{count|one number is|{count} numbers are} rounded by up to {change} when the input is "
     "rewritten",
     "no change is needed unless the last digits matter", check_small_change},

    // What only chemistry can tell.
    {"QL601", Severity::Warning, Group::Chemistry, "a multiplicity that the electrons do not allow",
     "the multiplicity {multiplicity} is not possible with {electrons} electrons",
     "check charge, multiplicity and the hydrogen atoms", check_impossible_multiplicity},
    {"QL602", Severity::Warning, Group::Chemistry, "two atoms in almost the same place",
     "atom {second} is only {distance} from atom {first}", "check whether an atom is listed twice",
     check_too_close_atoms},
};

}  // namespace

RuleTable all_rules() { return {std::begin(rules), std::end(rules)}; }

}  // namespace kelp::input::quill::lint
