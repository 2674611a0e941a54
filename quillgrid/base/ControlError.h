#pragma once

#include "quillgrid/base/Export.h"

#include <cstdint>
#include <stdexcept>
#include <string>

namespace quillgrid {

/// The one exception that published members throw.
class QUILLGRID_EXPORT ControlError : public std::runtime_error {
public:
    static constexpr std::uint32_t ObjectErrorBase = 0x80040000U;
    /// Ends every source text: "Cells.Add Method.Quillgrid".
    static constexpr const char* ModuleName = "Quillgrid";

    /// `source` names class and member without the module's name, which is appended here.
    ControlError(std::int32_t code, const std::string& source, const std::string& description)
        : std::runtime_error(description), code_(code), source_(source + "." + ModuleName) {}

    /// ObjectErrorBase plus the code.
    std::uint32_t Number() const { return ObjectErrorBase + static_cast<std::uint32_t>(code_); }
    /// The bare code: 20091 unknown, 20092 item does not exist, 20093 item exists, 20099 invalid value.
    std::int32_t Code() const { return code_; }
    const std::string& Source() const { return source_; }
    std::string Description() const { return what(); }

private:
    std::int32_t code_;
    std::string source_;
};

} // namespace quillgrid
