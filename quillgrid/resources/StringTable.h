#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace quillgrid {

/// The text stored under a number: language blocks from 10000 (German and default), 11000 (English), 12000
/// (French), 13000 (Italian), 14000 (Spanish); messages from 20001 (German) and 21001 (English).
std::optional<std::string_view> StoredText(std::int32_t id);

} // namespace quillgrid
