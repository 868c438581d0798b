#include "language_server/handlers/handlers.hpp"

namespace kelp::input::quill::language_server {

const std::vector<RequestHandler>& request_handlers() {
  static const std::vector<RequestHandler> handlers = {
      {"initialize", initialize},
      {"shutdown", shut_down},
      {"textDocument/codeAction", list_code_actions},
      {"textDocument/diagnostic", pull_diagnostics},
      {"textDocument/formatting", format_text},
      {"textDocument/rangeFormatting", format_range},
      {"workspace/executeCommand", execute_command},
  };
  return handlers;
}

const std::vector<NotificationHandler>& notification_handlers() {
  static const std::vector<NotificationHandler> handlers = {
      {"initialized", take_initialized},
      {"exit", exit},
      {"textDocument/didOpen", open_text},
      {"textDocument/didChange", change_text},
      {"textDocument/didSave", take_saved},
      {"textDocument/didClose", close_text},
      {"workspace/didChangeConfiguration", change_configuration},
      {"workspace/didChangeWatchedFiles", take_watched_files},
  };
  return handlers;
}

}  // namespace kelp::input::quill::language_server
