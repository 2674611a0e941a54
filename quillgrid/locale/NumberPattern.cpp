#include "quillgrid/locale/NumberPattern.h"

#include "quillgrid/locale/NumberSection.h"
#include "quillgrid/locale/NumberWriter.h"
#include "quillgrid/locale/PatternText.h"

#include <algorithm>
#include <array>
#include <utility>

namespace quillgrid {

namespace {

/// Where the first section ends: a ";" outside quotes and not escaped.
std::size_t SectionLength(std::string_view pattern) {
    std::size_t at = 0;
    while (at < pattern.size() && pattern[at] != ';') {
        at += std::max<std::size_t>(ShieldedLength(pattern.substr(at)), 1);
    }
    return at;
}

struct Sections {
    enum Place : std::size_t { Positive, Negative, Zero, Null, PlaceCount };

    std::array<std::string_view, PlaceCount> Texts;
    std::size_t Count = 0;

    explicit Sections(std::string_view pattern) {
        while (Count < PlaceCount) {
            const std::size_t length = SectionLength(pattern);
            Texts[Count++] = pattern.substr(0, length);
            if (length == pattern.size()) break;
            pattern.remove_prefix(length + 1);
        }
    }
    // A section left empty is written as the first one writes it.
    std::string_view Of(Place place) const { return Texts[place].empty() ? Texts[Positive] : Texts[place]; }
};

/// Writes one number, already rounded, by one section.
class SectionWriter {
public:
    SectionWriter(std::string_view section, const SectionLayout& layout, DecimalNumber number,
                  const Locale& locale)
        : section_(section), layout_(layout), number_(number), locale_(locale) {}

    std::string Write() {
        if (section_.empty()) return {};
        out_.reserve(section_.size() + static_cast<std::size_t>(number_.IntegerDigits()));
        if (number_.IsNegative()) out_ += '-';
        if (layout_.HasExponent) SplitExponent();
        SectionScanner scanner(section_);
        for (SectionPart part = scanner.Next(); part.Kind != SectionPartKind::End; part = scanner.Next()) {
            WritePart(part);
        }
        return std::move(out_);
    }

private:
    void SplitExponent() {
        if (number_.IsZero()) return;
        exponent_ = number_.LeadingPower() + 1 - layout_.IntegerPlaces;
        number_.Shift(-exponent_);
    }
    void WritePart(const SectionPart& part) {
        switch (part.Kind) {
        case SectionPartKind::Zero:
        case SectionPartKind::Hash: WritePlace(); break;
        case SectionPartKind::Point: WritePoint(); break;
        case SectionPartKind::Percent: out_ += '%'; break;
        case SectionPartKind::Exponent: WriteExponent(part.Text); break;
        case SectionPartKind::Literal: out_ += part.Text; break;
        default: break;
        }
    }
    void WritePlace() {
        if (pointSeen_) {
            WriteDecimal();
            return;
        }
        const std::int64_t power = layout_.IntegerPlaces - 1 - integerPlace_;
        if (integerPlace_++ == 0) WriteDigitsAbove(power);
        WriteIntegerDigit(power);
    }
    // The first place also shows every digit for which the pattern has none.
    void WriteDigitsAbove(std::int64_t power) {
        for (std::int64_t above = number_.IntegerDigits() - 1; above > power; --above)
            WriteIntegerDigit(above);
    }
    void WriteIntegerDigit(std::int64_t power) {
        if (power >= std::max(number_.IntegerDigits(), layout_.LeastInteger)) return;
        AppendIntegerDigit(out_, number_, power,
                           layout_.Grouped ? std::string_view(locale_.GroupSeparator) : std::string_view());
    }
    void WritePoint() {
        if (layout_.IntegerPlaces == 0 && layout_.HasPlaces()) WriteDigitsAbove(-1);
        out_ += DecimalSeparatorOf(locale_);
        pointSeen_ = true;
    }
    void WriteDecimal() {
        const std::int64_t place = ++decimalPlace_;
        if (place <= std::max(number_.FractionDigits(), layout_.LeastDecimals))
            out_ += number_.DigitAt(-place);
    }
    void WriteExponent(std::string_view text) {
        const auto zeros = static_cast<std::size_t>(std::count(text.begin(), text.end(), '0'));
        out_ += text[0];
        if (exponent_ < 0) out_ += '-';
        if (exponent_ >= 0 && text[1] == '+') out_ += '+';
        const std::string digits = std::to_string(exponent_ < 0 ? -exponent_ : exponent_);
        if (digits.size() < zeros) out_.append(zeros - digits.size(), '0');
        out_ += digits;
    }

    std::string_view section_;
    const SectionLayout& layout_;
    DecimalNumber number_;
    const Locale& locale_;
    std::string out_;
    std::int64_t exponent_ = 0;
    std::int64_t integerPlace_ = 0;
    std::int64_t decimalPlace_ = 0;
    bool pointSeen_ = false;
};

std::string WriteZero(const Sections& sections, const Locale& locale) {
    const std::string_view section = sections.Of(Sections::Zero);
    return SectionWriter(section, SectionLayout::Of(section), DecimalNumber(), locale).Write();
}

} // namespace

std::string WriteByNumberPattern(const DecimalNumber& number, std::string_view pattern,
                                 const Locale& locale) {
    const Sections sections(pattern);
    if (number.IsZero()) return WriteZero(sections, locale);
    const bool ownNegative = number.IsNegative() && !sections.Texts[Sections::Negative].empty();
    const std::string_view section = ownNegative ? sections.Texts[Sections::Negative] : sections.Texts[0];
    const SectionLayout layout = SectionLayout::Of(section);
    DecimalNumber shown = layout.Rounded(number);
    if (shown.IsZero()) return WriteZero(sections, locale);
    if (ownNegative) shown.ClearSign();
    return SectionWriter(section, layout, shown, locale).Write();
}

std::string WriteNullByPattern(std::string_view pattern, const Locale& locale) {
    const std::string_view section = Sections(pattern).Texts[Sections::Null];
    return SectionWriter(section, SectionLayout::Of(section), DecimalNumber(), locale).Write();
}

} // namespace quillgrid
