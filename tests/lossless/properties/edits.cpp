#include "lossless/properties/edits.hpp"

#include "kelp/input/quill/lossless/wording.hpp"

namespace kelp::input::quill::lossless {

void ReplaceCommand::operator()(TrackedDocument& document) const {
  if (index < document.document().commands.size()) document.replace_command(index, command);
}

void ReplaceCommand::operator()(InputEditor& editor) const {
  QuillInput changed = editor.document();
  if (index < changed.commands.size()) changed.commands[index] = command;
  editor = InputEditor(changed);
}

void RemovePostCommands::operator()(TrackedDocument& document) const {
  std::vector<bool> of_all_lines = is_removed;
  of_all_lines.resize(document.document().post_commands.size());
  document.remove_post_commands(of_all_lines);
}

void RemovePostCommands::operator()(InputEditor& editor) const {
  QuillInput changed = editor.document();
  changed.post_commands.clear();
  for (std::size_t i = 0; i < editor.document().post_commands.size(); ++i) {
    if (i >= is_removed.size() || !is_removed[i])
      changed.post_commands.push_back(editor.document().post_commands[i]);
  }
  editor = InputEditor(changed);
}

std::vector<std::string> EditOutcome::problems() const {
  std::vector<std::string> all;
  for (const QuotingProblem& problem : quoting_problems) all.push_back(words(problem));
  return all;
}

std::string EditOutcome::refusal() const {
  return quoting_problems.empty() ? words(proof, wanted) : words(quoting_problems.front());
}

EditOutcome edit_text(const std::string& text, const std::vector<Edit>& edits, double max_change) {
  const ReadText read = read_text(text);
  TrackedDocument document(read.result.input);
  for (const Edit& edit : edits) edit.apply(document);
  EditOutcome outcome;
  static_cast<SurgicalEdit&>(outcome) = render(read, document, max_change);
  outcome.wanted = document.document();
  return outcome;
}

}  // namespace kelp::input::quill::lossless
