#ifndef KELP_INPUT_QUILL_LANGUAGE_SERVER_PROTOCOL_RESPONSE_ERROR_HPP
#define KELP_INPUT_QUILL_LANGUAGE_SERVER_PROTOCOL_RESPONSE_ERROR_HPP

#include <stdexcept>
#include <string>

namespace kelp::input::quill::language_server {

/// Why a request has no result, by the numbers of the protocol.
enum class ErrorCode : int {
  ParseError = -32700,            // a text that is not JSON
  InvalidRequest = -32600,        // JSON that is not a message, or a request at the wrong time
  MethodNotFound = -32601,        // a request that the server does not know
  InvalidParams = -32602,         // parameters without what the request needs
  InternalError = -32603,         // anything else, such as memory that ran out
  ServerNotInitialized = -32002,  // a request before "initialize"
  RequestFailed = -32803,         // a correct request that cannot be fulfilled
  RequestCancelled = -32800,      // the client does not want the answer any more
};

/// Ends a request without a result. The message is for the person who uses the client.
class ResponseError : public std::runtime_error {
 public:
  ResponseError(ErrorCode code, const std::string& message)
      : std::runtime_error(message), code_(code) {}

  ErrorCode code() const { return code_; }

 private:
  ErrorCode code_;
};

}  // namespace kelp::input::quill::language_server

#endif  // KELP_INPUT_QUILL_LANGUAGE_SERVER_PROTOCOL_RESPONSE_ERROR_HPP
