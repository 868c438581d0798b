#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kelp::chem::elements {

std::string normalize_symbol(std::string_view symbol);
std::optional<int> atomic_number_from_symbol(std::string_view symbol);

}  // namespace kelp::chem::elements
