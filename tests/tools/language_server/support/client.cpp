#include "tools/language_server/support/client.hpp"

#include <gtest/gtest.h>

#include <utility>

namespace kelp::input::quill::language_server {

Client::Client(const Json& capabilities, const ServerOptions& options, const Json& settings)
    : server_(options, [this](const Json& message) { received_.push_back(message); }) {
  result("initialize", {{"processId", nullptr},
                        {"rootUri", nullptr},
                        {"capabilities", capabilities},
                        {"initializationOptions", settings}});
  notify("initialized", Json::object());
}

void Client::send(const Json& message) { server_.receive(message.dump()); }

void Client::settle() {
  while (server_.has_work()) server_.work();
}

Json Client::request(const std::string& method, const Json& params) {
  const Json id = ++last_id_;
  send(request_message(id, method, params));
  settle();
  for (auto message = received_.begin(); message != received_.end(); ++message) {
    if (message->contains("method") || (*message)["id"] != id) continue;
    Json answer = std::move(*message);
    received_.erase(message);
    return answer;
  }
  ADD_FAILURE() << "no answer to " << method;
  return nullptr;
}

Json Client::result(const std::string& method, const Json& params) {
  const Json answer = request(method, params);
  if (!answer.contains("result")) ADD_FAILURE() << answer;
  return answer.value("result", Json());
}

void Client::notify(const std::string& method, const Json& params) {
  send(notification_message(method, params));
  settle();
}

void Client::open(const std::string& uri, const std::string& text, std::int64_t version) {
  notify("textDocument/didOpen",
         {{"textDocument",
           {{"uri", uri}, {"languageId", "quill-inp"}, {"version", version}, {"text", text}}}});
}

void Client::close(const std::string& uri) { notify("textDocument/didClose", names(uri)); }

void Client::change(const std::string& uri, const Json& changes, std::int64_t version) {
  notify("textDocument/didChange",
         {{"textDocument", {{"uri", uri}, {"version", version}}}, {"contentChanges", changes}});
}

std::vector<Json> Client::take() { return std::exchange(received_, {}); }

std::vector<Json> Client::take(const std::string& method) {
  std::vector<Json> taken;
  std::vector<Json> left;
  for (Json& message : received_)
    (message.value("method", "") == method ? taken : left).push_back(std::move(message));
  received_ = std::move(left);
  return taken;
}

std::string Client::published(const std::string& uri) {
  std::string text = "nothing";
  for (const Json& message : take("textDocument/publishDiagnostics")) {
    if (message["params"]["uri"] == uri) text = shown(message["params"]["diagnostics"]);
  }
  return text;
}

Json names(const std::string& uri) { return {{"textDocument", {{"uri", uri}}}}; }

Json names(const std::string& uri, std::size_t line, std::size_t character) {
  Json params = names(uri);
  params["position"] = to_json(Position{line, character});
  return params;
}

Json replacement(const Position& start, const Position& end, const std::string& text) {
  return {{"range", to_json(PositionRange{start, end})}, {"text", text}};
}

std::string shown(const Json& diagnostics) {
  const auto place = [](const Json& position) {
    return position["line"].dump() + ":" + position["character"].dump();
  };
  std::string text;
  for (const Json& diagnostic : diagnostics) {
    const Json& range = diagnostic["range"];
    text += place(range["start"]) + "-" + place(range["end"]) + " " +
            diagnostic["code"].get<std::string>() + "\n";
  }
  return text;
}

}  // namespace kelp::input::quill::language_server
