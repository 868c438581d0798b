#include "language_server/server.hpp"

#include <algorithm>
#include <exception>
#include <optional>
#include <utility>

#include "language_server/features/feature.hpp"
#include "language_server/handlers/checking.hpp"
#include "language_server/handlers/feature_requests.hpp"
#include "language_server/handlers/handlers.hpp"

namespace kelp::input::quill::language_server {

namespace {

constexpr std::size_t most_waiting = 1000;

template <typename Row>
const Row* find_row(const std::vector<Row>& rows, std::string_view method) {
  const auto row =
      std::find_if(rows.begin(), rows.end(), [&](const Row& one) { return one.method == method; });
  return row == rows.end() ? nullptr : &*row;
}

void require_running(Phase phase, std::string_view method) {
  if (phase == Phase::New && method != "initialize")
    throw ResponseError(ErrorCode::ServerNotInitialized, "the server is not initialized");
  if (phase == Phase::ShutDown)
    throw ResponseError(ErrorCode::InvalidRequest, "the server is shutting down");
}

}  // namespace

void Server::receive(std::string_view text) {
  try {
    Message message = parse_message(text);
    if (message.kind == Message::Kind::Response) {
      state_.outbox.take_answer(message);
    } else if (message.method == "$/cancelRequest") {
      cancel(message);
    } else {
      inbox_.add(std::move(message), text.size());
    }
  } catch (const ResponseError& error) {
    refuse(error);
  }
}

void Server::refuse(const ResponseError& error) {
  state_.outbox.refuse(nullptr, error);
  Message unknown;
  unknown.kind = Message::Kind::Unknown;
  inbox_.add(std::move(unknown), 0);
}

void Server::cancel(const Message& notification) {
  const Json& id = find_member(notification.params, "id");
  if (inbox_.cancel(id))
    state_.outbox.refuse(id, ResponseError(ErrorCode::RequestCancelled, "cancelled"));
}

bool Server::has_work() const {
  const bool is_running = state_.phase == Phase::Running;
  return !inbox_.is_empty() || (is_running && has_findings_to_publish(state_));
}

bool Server::is_full() const {
  return inbox_.size() >= most_waiting || inbox_.bytes() >= state_.options.longest_message;
}

void Server::work() {
  if (inbox_.is_empty()) {
    check_or_publish(state_);
    return;
  }
  const Message message = inbox_.take();
  if (message.kind == Message::Kind::Request) {
    answer(message);
  } else if (message.kind == Message::Kind::Notification) {
    take(message);
  } else {
    state_.documents.lose_all();
  }
}

Json Server::result_of(const Message& request) {
  require_running(state_.phase, request.method);
  if (const auto* handler = find_row(request_handlers(), request.method))
    return handler->answer(state_, request.params);
  if (const auto* feature = find_row(all_features(), request.method))
    return answer_feature(state_, *feature, request.params);
  throw ResponseError(ErrorCode::MethodNotFound, "the method is not known: " + request.method);
}

void Server::answer(const Message& request) {
  std::optional<ResponseError> failure;
  try {
    state_.outbox.answer(request.id, result_of(request));
  } catch (const ResponseError& error) {
    failure = error;
  } catch (const std::exception& error) {
    failure.emplace(ErrorCode::InternalError, error.what());
  }
  if (failure) state_.outbox.refuse(request.id, *failure);
}

void Server::take(const Message& notification) {
  const auto* handler = find_row(notification_handlers(), notification.method);
  const bool is_ignored = state_.phase != Phase::Running && notification.method != "exit";
  if (handler == nullptr || is_ignored) return;
  try {
    handler->take(state_, notification.params);
  } catch (const std::exception& error) {
    state_.outbox.log(MessageType::Error, notification.method + ": " + error.what());
  }
}

int Server::exit_code() const {
  return state_.was_shut_down || state_.phase == Phase::ShutDown ? 0 : 1;
}

}  // namespace kelp::input::quill::language_server
