#ifndef KELP_INPUT_QUILL_LANGUAGE_SERVER_PROJECT_FILE_ADDRESS_HPP
#define KELP_INPUT_QUILL_LANGUAGE_SERVER_PROJECT_FILE_ADDRESS_HPP

#include <string>
#include <string_view>

// The addresses of files: "file:///home/user/a%20b.qin" is "/home/user/a b.qin".

namespace kelp::input::quill::language_server {

/// Returns the absolute path of the file with this address, or the empty text for an address that
/// is not one of a file of this machine.
std::string path_of_address(std::string_view address);

/// Returns the address of an absolute path.
std::string address_of_path(std::string_view path);

/// Returns the absolute path of a file that an input in `folder` refers to, without "." and "..".
std::string referenced_path(const std::string& folder, const std::string& path);

/// Returns the folder of an absolute path.
std::string folder_of(const std::string& path);

}  // namespace kelp::input::quill::language_server

#endif  // KELP_INPUT_QUILL_LANGUAGE_SERVER_PROJECT_FILE_ADDRESS_HPP
