#include "quill-inp/editing/loss_policy.hpp"

#include <cstddef>
#include <vector>

#include "editing/phrases.hpp"
#include "kelp/core/text.hpp"
#include "kelp/input/quill/lossless/input_doubt.hpp"
#include "kelp/input/quill/lossless/wording.hpp"
#include "quill-inp/command_line/arguments.hpp"
#include "quill-inp/editing/wording.hpp"
#include "quill-inp/process/trouble.hpp"
#include "quill-inp/text/counted.hpp"

namespace kelp::input::quill::tool {

namespace {

constexpr Option allow_loss{"--allow-loss", "",
                            "Write the text even if something is lost, and say what"};
constexpr Option max_change{"--max-change", "NUMBER",
                            "Accept rounding by up to this number (default 1e-6)"};

constexpr Option strict{"--strict", "", "Refuse a text in which lint finds an error"};

// If nearly everything in a text differs, a message for every number would not be useful.
constexpr std::size_t most_losses_told = 20;

double parse_max_change(const std::string& text) {
  double change = 0.0;
  if (!core::text::try_parse_double(text, change) || !(change >= 0.0))
    throw UsageError("--max-change takes a number that is 0 or larger, such as '1e-6', not '" +
                     text + "'");
  return change;
}

Place place_of(const std::string& name, const LossWords& loss, LossLines lines) {
  return {name, lines == LossLines::Shown ? loss.line : std::nullopt};
}

void report_accepted(Reporter& reporter, const std::string& name, const Losses& losses,
                     LossLines lines) {
  for (const LossWords& loss : words(losses, most_losses_told))
    reporter.warning(place_of(name, loss, lines), "accepted loss: " + loss.text);
  if (losses.count() <= most_losses_told) return;
  const std::size_t others = losses.count() - most_losses_told;
  reporter.warning({name},
                   "accepted loss: " + counted(others, "more difference") + " of this kind");
}

std::string refusal(const std::string& reason) {
  return "refused: " + reason + "; use --allow-loss to write it anyway";
}

}  // namespace

void add_loss_options(CLI::App& verb) {
  add_flag(verb, allow_loss);
  add_value(verb, max_change);
  add_flag(verb, strict);
}

LossPolicy read_loss_policy(const CLI::App& verb) {
  LossPolicy policy;
  policy.is_strict = is_given(verb, strict);
  policy.allows_loss = is_given(verb, allow_loss);
  if (const auto change = value_of(verb, max_change)) policy.max_change = parse_max_change(*change);
  return policy;
}

bool accept_as_input(Session& session, const ReadInput& input, const LossPolicy& policy) {
  const auto doubt = lossless::find_input_doubt(input.read);
  if (!doubt) return true;
  const Place place{input.name, doubt->line};
  if (policy.allows_loss) {
    session.reporter().warning(place, lossless::words(*doubt));
  } else {
    session.reporter().error(place, refusal(lossless::words(*doubt)));
  }
  return policy.allows_loss;
}

bool accept_additions(Session& session, const std::string& name,
                      const std::vector<AdditionDoubt>& doubts, const LossPolicy& policy) {
  if (doubts.empty()) return true;
  if (!policy.allows_loss) {
    session.reporter().error({name}, refusal(words(doubts.front())));
    return false;
  }
  for (const AdditionDoubt& doubt : doubts) session.reporter().warning({name}, words(doubt));
  return true;
}

bool accept_losses(Session& session, const std::string& name, const Losses& losses,
                   const LossPolicy& policy, LossLines lines) {
  if (losses.count() == 0) return true;
  if (policy.allows_loss) {
    report_accepted(session.reporter(), name, losses, lines);
    return true;
  }
  const LossWords first = words(losses, 1).front();
  session.reporter().error(place_of(name, first, lines), refusal(first.text));
  return false;
}

void note_number_changes(Session& session, const std::string& name,
                         const lossless::NumberChanges& changes) {
  if (changes.count == 0) return;
  const bool is_one = changes.count == 1;
  session.reporter().note({name}, std::to_string(changes.count) +
                                      (is_one ? " number changes" : " numbers change") +
                                      ", by up to " + lossless::rounded_text(changes.largest));
}

}  // namespace kelp::input::quill::tool
