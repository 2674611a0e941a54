// One section of a number pattern ("#,##0.00 \"kg\""), read part by part.
#pragma once

#include "quillgrid/locale/DecimalNumber.h"

#include <cstdint>
#include <string_view>

namespace quillgrid {

enum class SectionPartKind { End, Zero, Hash, Point, Comma, Percent, Exponent, Literal };

struct SectionPart {
    SectionPartKind Kind = SectionPartKind::End;
    std::string_view Text; ///< a literal's bytes without quotes, or the whole exponent: "E+00"

    bool IsPlace() const { return Kind == SectionPartKind::Zero || Kind == SectionPartKind::Hash; }
};

/// Hands out the parts of a section from left to right. A second point, and places or exponents after the
/// exponent, are literals; an open quotation runs to the end.
class SectionScanner {
public:
    explicit SectionScanner(std::string_view section) : rest_(section) {}
    SectionPart Next();

private:
    SectionPart Take(SectionPartKind kind, std::size_t bytes);
    SectionPart TakeShielded();
    std::size_t ExponentLength() const;

    std::string_view rest_;
    bool pointSeen_ = false;
    bool exponentSeen_ = false;
};

/// What a section asks of a number as a whole, before any of it is written.
struct SectionLayout {
    std::int64_t IntegerPlaces = 0;
    std::int64_t LeastInteger = 0; ///< integer digits shown at least
    std::int64_t Decimals = 0;
    std::int64_t LeastDecimals = 0;
    std::int64_t Scale = 0; ///< power of ten: 2 for each "%", -3 for each scaling comma
    bool Grouped = false;
    bool HasExponent = false;

    static SectionLayout Of(std::string_view section);

    bool HasPlaces() const { return IntegerPlaces + Decimals > 0; }
    /// The number as the section shows it; with an exponent part, the digits only.
    DecimalNumber Rounded(DecimalNumber number) const;
};

} // namespace quillgrid
