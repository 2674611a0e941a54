#include "quillgrid/locale/NumberSection.h"

#include "quillgrid/locale/PatternText.h"

#include <algorithm>

namespace quillgrid {

SectionPart SectionScanner::Take(SectionPartKind kind, std::size_t bytes) {
    const SectionPart part{kind, rest_.substr(0, bytes)};
    rest_.remove_prefix(bytes);
    return part;
}

SectionPart SectionScanner::TakeShielded() {
    const SectionPart part = Take(SectionPartKind::Literal, ShieldedLength(rest_));
    return {part.Kind, WithoutMarks(part.Text)};
}

// "E+", "E-", "e+" or "e-" with at least one place behind it, else 0.
std::size_t SectionScanner::ExponentLength() const {
    const bool signedExponent = rest_.size() > 2 && (rest_[1] == '+' || rest_[1] == '-');
    if (!signedExponent || exponentSeen_) return 0;
    const std::size_t end = std::min(rest_.find_first_not_of("0#", 2), rest_.size());
    return end > 2 ? end : 0;
}

SectionPart SectionScanner::Next() {
    if (rest_.empty()) return {};
    switch (rest_.front()) {
    case '"':
    case '\\': return TakeShielded();
    case '0': return Take(exponentSeen_ ? SectionPartKind::Literal : SectionPartKind::Zero, 1);
    case '#': return Take(exponentSeen_ ? SectionPartKind::Literal : SectionPartKind::Hash, 1);
    case ',': return Take(SectionPartKind::Comma, 1);
    case '%': return Take(SectionPartKind::Percent, 1);
    case '.':
        if (pointSeen_ || exponentSeen_) break;
        pointSeen_ = true;
        return Take(SectionPartKind::Point, 1);
    case 'E':
    case 'e':
        if (const std::size_t length = ExponentLength(); length > 0) {
            exponentSeen_ = true;
            return Take(SectionPartKind::Exponent, length);
        }
        break;
    default: break;
    }
    return Take(SectionPartKind::Literal, 1);
}

namespace {

/// Collects a layout from the parts in their order.
class LayoutReader {
public:
    void Read(const SectionPart& part) {
        switch (part.Kind) {
        case SectionPartKind::Zero:
        case SectionPartKind::Hash: ReadPlace(part.Kind == SectionPartKind::Zero); break;
        case SectionPartKind::Point: pointSeen_ = true; break;
        case SectionPartKind::Comma: ReadComma(); break;
        case SectionPartKind::Percent: layout_.Scale += 2; break;
        case SectionPartKind::Exponent: layout_.HasExponent = true; break;
        default: break;
        }
        afterPlace_ = part.IsPlace() || (part.Kind == SectionPartKind::Comma && afterPlace_);
    }

    SectionLayout Result() {
        // Commas that no further integer place follows stand left of the point, written or not.
        constexpr std::int64_t scaledByComma = 3;
        layout_.Scale -= scaledByComma * openCommas_;
        return layout_;
    }

private:
    void ReadPlace(bool zero) {
        if (pointSeen_) {
            ++layout_.Decimals;
            if (zero) layout_.LeastDecimals = layout_.Decimals;
            return;
        }
        ++layout_.IntegerPlaces;
        if (zero || layout_.LeastInteger > 0) ++layout_.LeastInteger;
        layout_.Grouped = layout_.Grouped || openCommas_ > 0;
        openCommas_ = 0;
    }
    void ReadComma() {
        if (afterPlace_ && !pointSeen_) ++openCommas_;
    }

    SectionLayout layout_;
    std::int64_t openCommas_ = 0;
    bool pointSeen_ = false;
    bool afterPlace_ = false;
};

} // namespace

SectionLayout SectionLayout::Of(std::string_view section) {
    SectionScanner scanner(section);
    LayoutReader reader;
    for (SectionPart part = scanner.Next(); part.Kind != SectionPartKind::End; part = scanner.Next()) {
        reader.Read(part);
    }
    return reader.Result();
}

DecimalNumber SectionLayout::Rounded(DecimalNumber number) const {
    if (!HasPlaces()) return number;
    number.Shift(Scale);
    if (HasExponent) {
        number.RoundToDigits(IntegerPlaces + Decimals);
    } else {
        number.RoundToDecimals(Decimals);
    }
    return number;
}

} // namespace quillgrid
