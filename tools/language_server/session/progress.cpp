#include "language_server/session/progress.hpp"

#include <utility>

namespace kelp::input::quill::language_server {

namespace {

std::string name_of(std::int64_t token) { return "quill-inp " + std::to_string(token); }

}  // namespace

void Progress::prepare(Outbox& outbox) {
  const std::int64_t token = ++last_;
  outbox.request("window/workDoneProgress/create", {{"token", name_of(token)}},
                 [this, token](const Message& answer) {
                   if (!answer.is_error) ready_ = token;
                 });
}

void Progress::send(Outbox& outbox, Json value) const {
  if (shown_)
    outbox.notify("$/progress", {{"token", name_of(*shown_)}, {"value", std::move(value)}});
}

void Progress::begin(Outbox& outbox, const std::string& title) {
  shown_ = std::exchange(ready_, std::nullopt);
  send(outbox, {{"kind", "begin"}, {"title", title}, {"percentage", 0}});
}

void Progress::report(Outbox& outbox, int percentage) {
  send(outbox, {{"kind", "report"}, {"percentage", percentage}});
}

void Progress::end(Outbox& outbox) {
  send(outbox, {{"kind", "end"}});
  if (std::exchange(shown_, std::nullopt)) prepare(outbox);
}

}  // namespace kelp::input::quill::language_server
