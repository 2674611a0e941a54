#pragma once

#include "quillgrid/cells/InputConversion.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace quillgrid {

/// For messages of failing comparisons.
inline void PrintTo(const Variant& value, std::ostream* out) {
    *out << "type " << static_cast<int>(value.Kind()) << " \"" << value.ToPlainText() << '"';
}

/// Converts in one locale on 16 November 2026.
class ConversionTest : public testing::Test {
protected:
    static std::int32_t Day(int year, int month, int day) { return *DayFromParts(year, month, day); }
    static Variant Date(int year, int month, int day) { return DateTime{Day(year, month, day), 0}; }
    static Variant Time(int hour, int minute, int second) {
        return DateTime{0, hour * 3600 + minute * 60 + second};
    }

    ValidationErrConstants Convert(Variant& value) const {
        return ConvertInput(value, Rules, {Separators, BuiltInLocale(LocaleName), Today});
    }
    /// The converted value; a refused one gives its code as text.
    Variant Converted(Variant value) const {
        const ValidationErrConstants code = Convert(value);
        return code == qgErrNone ? value : Variant("error " + std::to_string(code));
    }
    void SetBounds(Variant least, Variant most) {
        min_ = std::move(least);
        max_ = std::move(most);
        Rules.Min = &min_;
        Rules.Max = &max_;
    }

    InputRules Rules;
    InputSeparators Separators;
    std::string LocaleName = "de-DE";
    std::int32_t Today = *DayFromParts(2026, 11, 16);

private:
    Variant min_;
    Variant max_;
};

} // namespace quillgrid
