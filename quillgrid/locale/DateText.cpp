#include "quillgrid/locale/DateText.h"

#include "quillgrid/base/Text.h"
#include "quillgrid/locale/DateWords.h"

#include <algorithm>

namespace quillgrid {

namespace {

constexpr std::string_view Separators = " ,./-:;";
constexpr std::string_view WideBlanks[] = {"\u00A0", "\u202F", "\u2009"};

bool IsDigit(char character) {
    return character >= '0' && character <= '9';
}

/// The length of one separator at the start of the text, else 0.
std::size_t SeparatorLength(std::string_view text) {
    if (text.empty()) return 0;
    if (Separators.find(text[0]) != std::string_view::npos) return 1;
    for (const std::string_view blank : WideBlanks) {
        if (text.substr(0, blank.size()) == blank) return blank.size();
    }
    return 0;
}

bool IsWordByte(char character) {
    const char lower = static_cast<char>(character | 0x20);
    return (lower >= 'a' && lower <= 'z') || static_cast<unsigned char>(character) >= 0x80U;
}

class DateTextScanner {
public:
    DateTextScanner(std::string_view text, const Locale& locale) : rest_(TrimBlanks(text)), locale_(locale) {}

    std::optional<DateText> Scan() {
        if (SeparatorLength(rest_) > 0) return std::nullopt;
        while (!rest_.empty()) {
            if (!TakePart()) return std::nullopt;
            SkipSeparators();
        }
        return result_;
    }

private:
    bool TakePart() {
        if (IsDigit(rest_[0])) return TakeNumber();
        return TakeLocalHalfDay() || (IsWordByte(rest_[0]) && TakeWord());
    }
    void SkipSeparators() {
        const std::string_view before = rest_;
        colon_ = false;
        while (const std::size_t length = SeparatorLength(rest_)) {
            colon_ = colon_ || rest_[0] == ':';
            rest_.remove_prefix(length);
        }
        point_ = before.size() - rest_.size() == 1 && before[0] == '.';
    }
    bool TakeNumber() {
        constexpr int mostDigits = 9;
        DateText::Number number{0, 0, colon_, point_};
        while (!rest_.empty() && IsDigit(rest_[0]) && number.Digits < mostDigits) {
            number.Value = number.Value * 10 + (rest_[0] - '0');
            ++number.Digits;
            rest_.remove_prefix(1);
        }
        const bool tooLong = !rest_.empty() && IsDigit(rest_[0]);
        if (tooLong || result_.Count == DateText::MostNumbers) return false;
        result_.Numbers[result_.Count++] = number;
        return true;
    }
    // "a. m." has a point and a blank inside, which no single word has.
    bool TakeLocalHalfDay() {
        return TakeHalfDay(locale_.Am, HalfDay::Morning) || TakeHalfDay(locale_.Pm, HalfDay::Afternoon) ||
               TakeHalfDay("a.m.", HalfDay::Morning) || TakeHalfDay("p.m.", HalfDay::Afternoon);
    }
    bool TakeHalfDay(std::string_view name, HalfDay half) {
        if (name.empty() || !StartsWithIgnoreCase(rest_, name)) return false;
        const std::string_view behind = rest_.substr(LengthOfCharacters(CharacterCount(name)));
        if (!behind.empty() && (IsWordByte(behind[0]) || IsDigit(behind[0])) &&
            SeparatorLength(behind) == 0) {
            return false;
        }
        rest_ = behind;
        return SetHalf(half);
    }
    std::size_t LengthOfCharacters(std::size_t count) const { return FirstCharacters(rest_, count).size(); }
    bool SetHalf(HalfDay half) {
        if (result_.Half != HalfDay::None) return false;
        result_.Half = half;
        return true;
    }
    bool TakeWord() {
        constexpr std::size_t longestWord = 48;
        std::size_t length = 0;
        while (length < rest_.size() && IsWordByte(rest_[length]) &&
               SeparatorLength(rest_.substr(length)) == 0) {
            if (++length > longestWord) return false;
        }
        const DateWord word = LookUpDateWord(rest_.substr(0, length), locale_);
        rest_.remove_prefix(length);
        return length > 0 && Accept(word);
    }
    bool Accept(const DateWord& word) {
        switch (word.Says) {
        case DateWord::Meaning::Month: return AcceptMonth(word);
        case DateWord::Meaning::Morning: return SetHalf(HalfDay::Morning);
        case DateWord::Meaning::Afternoon: return SetHalf(HalfDay::Afternoon);
        case DateWord::Meaning::Unknown: return false;
        default: return true;
        }
    }
    // Of two month words, the one that also names a day is the day.
    bool AcceptMonth(const DateWord& word) {
        if (result_.Month != 0 && word.MayBeDay) return true;
        if (result_.Month != 0 && !monthMayBeDay_) return false;
        result_.Month = word.Month;
        monthMayBeDay_ = word.MayBeDay;
        return true;
    }

    std::string_view rest_;
    const Locale& locale_;
    DateText result_;
    bool colon_ = false;
    bool point_ = false;
    bool monthMayBeDay_ = false;
};

} // namespace

std::optional<DateText> ScanDateText(std::string_view text, const Locale& locale) {
    return DateTextScanner(text, locale).Scan();
}

} // namespace quillgrid
