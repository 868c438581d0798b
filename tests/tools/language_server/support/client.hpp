#ifndef KELP_INPUT_QUILL_TESTS_LANGUAGE_SERVER_CLIENT_HPP
#define KELP_INPUT_QUILL_TESTS_LANGUAGE_SERVER_CLIENT_HPP

#include <cstdint>
#include <string>
#include <vector>

#include "language_server/server.hpp"

namespace kelp::input::quill::language_server {

/// A client in the same process, which sends a message and lets the server work until it has
/// nothing left to do, unless it is told to wait.
class Client {
 public:
  /// Begins a session: sends "initialize" with these capabilities, and "initialized".
  explicit Client(const Json& capabilities = Json::object(), const ServerOptions& options = {},
                  const Json& settings = nullptr);

  /// Sends a request and returns the whole answer to it.
  Json request(const std::string& method, const Json& params = nullptr);

  /// Returns the result of a request that succeeds.
  Json result(const std::string& method, const Json& params = nullptr);

  void notify(const std::string& method, const Json& params);

  void open(const std::string& uri, const std::string& text, std::int64_t version = 1);
  void close(const std::string& uri);

  /// Changes a text; each change is as in "textDocument/didChange".
  void change(const std::string& uri, const Json& changes, std::int64_t version);

  /// Hands a message over without letting the server work.
  void send(const Json& message);
  void send_text(const std::string& text) { server_.receive(text); }
  void work() { server_.work(); }
  void settle();

  /// Returns the messages that came since the last call: all of them, and those with a method.
  std::vector<Json> take();
  std::vector<Json> take(const std::string& method);

  /// Returns the findings that were published last for a text, as "line:character-line:character
  /// code" each, in one text; "nothing" if none were published since the last call.
  std::string published(const std::string& uri);

  Server& server() { return server_; }

 private:
  std::vector<Json> received_ = {};
  Server server_;
  int last_id_ = 0;
};

/// {"textDocument": {"uri": uri}}
Json names(const std::string& uri);

/// The same with a position.
Json names(const std::string& uri, std::size_t line, std::size_t character);

/// A change of a text from one position to another.
Json replacement(const Position& start, const Position& end, const std::string& text);

/// Diagnostics as Client::published() shows them.
std::string shown(const Json& diagnostics);

}  // namespace kelp::input::quill::language_server

#endif  // KELP_INPUT_QUILL_TESTS_LANGUAGE_SERVER_CLIENT_HPP
