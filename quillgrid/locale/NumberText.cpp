#include "quillgrid/locale/NumberText.h"

#include "quillgrid/base/Text.h"
#include "quillgrid/locale/NumberWriter.h"

#include <algorithm>
#include <cstdint>
#include <initializer_list>

namespace quillgrid {

namespace {

bool IsDigit(char character) {
    return character >= '0' && character <= '9';
}

// Keyboards have neither the no-break spaces nor the typographic apostrophe that locales group with.
constexpr std::string_view Blanks[] = {" ", "\u00A0", "\u202F"};
constexpr std::string_view Apostrophes[] = {"'", "\u2019"};

template <std::size_t Count>
std::size_t LengthOfAny(std::string_view text, const std::string_view (&family)[Count],
                        std::string_view member) {
    if (std::find(std::begin(family), std::end(family), member) == std::end(family)) return 0;
    for (const std::string_view other : family) {
        if (text.substr(0, other.size()) == other) return other.size();
    }
    return 0;
}

/// Reads one number from left to right into its plain form.
class NumberTextReader {
public:
    NumberTextReader(std::string_view text, const Locale& locale)
        : rest_(TrimBlanks(text)), locale_(locale) {}

    std::optional<std::string> Read() {
        if (TakePrefix("-")) plain_ += '-';
        signLength_ = plain_.size();
        if (!ReadInteger()) return std::nullopt;
        if (TakePrefix(DecimalSeparatorOf(locale_))) ReadFraction();
        if (digits_ == 0) return std::nullopt;
        if (!rest_.empty() && !(ReadExponent() && ApplyExponent())) return std::nullopt;
        return std::move(plain_);
    }

private:
    bool TakePrefix(std::string_view prefix) {
        if (rest_.substr(0, prefix.size()) != prefix) return false;
        rest_.remove_prefix(prefix.size());
        return true;
    }
    std::size_t TakeDigits() {
        const auto end = std::find_if_not(rest_.begin(), rest_.end(), IsDigit);
        const auto count = static_cast<std::size_t>(end - rest_.begin());
        plain_ += rest_.substr(0, count);
        rest_.remove_prefix(count);
        digits_ += count;
        return count;
    }
    std::size_t GroupSeparatorLength() const {
        const std::string_view own = locale_.GroupSeparator;
        if (own.empty()) return 0;
        if (rest_.substr(0, own.size()) == own) return own.size();
        const std::size_t blank = LengthOfAny(rest_, Blanks, own);
        return blank > 0 ? blank : LengthOfAny(rest_, Apostrophes, own);
    }
    // "1.5" is no German number: a separator that parts no group of three is rather a slip than a grouping.
    bool ReadInteger() {
        constexpr std::size_t groupSize = 3;
        const std::size_t first = TakeDigits();
        while (const std::size_t length = first == 0 ? 0 : GroupSeparatorLength()) {
            rest_.remove_prefix(length);
            if (first > groupSize || TakeDigits() != groupSize) return false;
        }
        point_ = plain_.size() - signLength_;
        return true;
    }
    void ReadFraction() {
        plain_ += '.';
        TakeDigits();
    }
    bool ReadExponent() {
        constexpr std::int64_t beyondAnyText = 1'000'000'000'000;
        if (!TakePrefix("E") && !TakePrefix("e")) return false;
        const bool negative = TakePrefix("-");
        if (!negative) TakePrefix("+");
        if (rest_.empty() || !std::all_of(rest_.begin(), rest_.end(), IsDigit)) return false;
        for (const char digit : rest_)
            exponent_ = std::min(exponent_ * 10 + (digit - '0'), beyondAnyText);
        if (negative) exponent_ = -exponent_;
        return true;
    }
    // Moves the point. Exponents far outside a double's are cut first, so that the text stays short.
    bool ApplyExponent() {
        constexpr std::int64_t most = 400;
        std::string digits = plain_.substr(signLength_);
        digits.erase(std::remove(digits.begin(), digits.end(), '.'), digits.end());
        const std::size_t zeros = std::min(digits.find_first_not_of('0'), digits.size());
        digits.erase(0, zeros);
        const std::int64_t point =
            static_cast<std::int64_t>(point_) - static_cast<std::int64_t>(zeros) + exponent_;
        plain_.resize(signLength_);
        if (digits.empty() || point < -most) {
            plain_ += '0';
            return true;
        }
        if (point > most) return false;
        AppendShifted(digits, point);
        return true;
    }
    void AppendShifted(const std::string& digits, std::int64_t point) {
        if (point <= 0) {
            plain_ += "0.";
            plain_.append(static_cast<std::size_t>(-point), '0');
            plain_ += digits;
            return;
        }
        const auto whole = static_cast<std::size_t>(point);
        plain_.append(digits, 0, whole);
        if (whole > digits.size()) plain_.append(whole - digits.size(), '0');
        if (whole < digits.size()) plain_.append(".").append(digits, whole);
    }

    std::string_view rest_;
    const Locale& locale_;
    std::string plain_;
    std::size_t signLength_ = 0;
    std::size_t digits_ = 0;
    std::size_t point_ = 0;
    std::int64_t exponent_ = 0;
};

} // namespace

std::optional<std::string> PlainNumberText(std::string_view text, const Locale& locale) {
    return NumberTextReader(text, locale).Read();
}

} // namespace quillgrid
