#include "quillgrid/locale/Format.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace quillgrid {
namespace {

struct Case {
    Variant Value;
    std::string_view Pattern;
    std::string_view Expected;
};

void Check(std::string_view localeName, std::initializer_list<Case> cases) {
    for (const Case& test : cases) {
        EXPECT_EQ(Format(test.Value, test.Pattern, BuiltInLocale(localeName)), test.Expected)
            << test.Value.ToPlainText() << " by " << test.Pattern;
    }
}

TEST(NumberPattern, PlacesDigits) {
    Check("en-US", {
                       {0, "#0", "0"},
                       {0, "#", ""},
                       {5, "000", "005"},
                       {12345, "0", "12345"},
                       {12345, "#", "12345"},
                       {5, "#.##", "5."},
                       {0, "#.##", "."},
                       {0.5, "#.##", ".5"},
                       {0.5, "0.00", "0.50"},
                       {1.5, "0.0##", "1.5"},
                       {1.23456, "0.0##", "1.235"},
                       {12.5, ".00", "12.50"},
                       {0.25, ".00", ".25"},
                       {7, "0#", "07"},
                       {7, "#0#", "07"},
                       {-0.4, "#", ""},
                       {-0.4, "0", "0"},
                       {-0.5, "0", "-1"},
                       {2.5, "0", "3"},
                       {3.5, "#0", "4"},
                       {123456789, "000-00-0000", "123-45-6789"},
                       {1.005, "0.00", "1.01"},
                       {1e21, "0", "1000000000000000000000"},
                   });
}

TEST(NumberPattern, GroupsScalesAndTakesPercent) {
    Check("de-DE", {
                       {1234567.891, "#,##0.00", "1.234.567,89"},
                       {1234567, "0,0", "1.234.567"},
                       {999, "#,##0", "999"},
                       {12, "0,000", "0.012"},
                       {1234567, "0,", "1235"},
                       {1234567890, "#,,", "1235"},
                       {1234567890, "#,##0,", "1.234.568"},
                       {1234567, "0,.00", "1234,57"},
                       {1500000, "0.0,", "1500000,0"},
                       {1.25, "0%", "125%"},
                       {0.285, "0.0%", "28,5%"},
                       {1, "%0%", "%10000%"},
                       {5000, "0, kg", "5 kg"},
                       {5000, "0 kg, net", "5000 kg net"},
                   });
}

TEST(NumberPattern, WritesExponents) {
    Check("en-US", {
                       {12345, "0.00E+00", "1.23E+04"},
                       {12345, "0.00e-0", "1.23e4"},
                       {0.00012, "0.0E-0", "1.2E-4"},
                       {0.00012, "0.0E+000", "1.2E-004"},
                       {12345, "#00.0E+0", "123.5E+2"},
                       {99999, "0.0E+0", "1.0E+5"},
                       {-5, "0E+0", "-5E+0"},
                       {0, "0.0E+0", "0.0E+0"},
                       {5, "0E", "5E"},
                       {5, "0E+", "5E+"},
                       {5, "0E+0 0", "5E+0 0"},
                       {5e-324, "0E+0", "5E-324"},
                       {12.5, ".00E+0", ".13E+2"},
                   });
}

TEST(NumberPattern, PassesLiterals) {
    Check("en-US", {
                       {5, "0 \"kg\"", "5 kg"},
                       {5, "\\#0", "#5"},
                       {5, "($0.00)", "($5.00)"},
                       {-5, "$0.00", "-$5.00"},
                       {5, "0 €", "5 €"},
                       {5, "+0", "+5"},
                       {5, "0\"open", "5open"},
                       {5, "0\\", "5"},
                       {5, "\"0;#\"0", "0;#5"},
                       {5, "0\\;0", "0;5"},
                       {5, "\"\"", ""},
                       {5, "0.0.0", "5.0.0"},
                       {5, "Foo", "Foo"},
                       {5, "0 \xff", "5 \uFFFD"},
                       {1, "0 Std.", "1 Std."},
                       {5, "\\ü0", "ü5"},
                   });
}

TEST(NumberPattern, ChoosesTheSection) {
    constexpr std::string_view all = "0.0;(0.0);zero;none";
    Check("en-US", {
                       {1, all, "1.0"},
                       {-1, all, "(1.0)"},
                       {0, all, "zero"},
                       {Variant::Null(), all, "none"},
                       {Variant(), all, "none"},
                       {-0.04, all, "zero"},
                       {0.04, all, "zero"},
                       {-1, "0;;z", "-1"},
                       {0, "0;;z", "z"},
                       {0, "0.0;(0)", "0.0"},
                       {-1, "0;(0)", "(1)"},
                       {-0.4, "0;(0)", "0"},
                       {0, "0;-0;", "0"},
                       {-2, "0;neg", "neg"},
                       {1, ";;;", ""},
                       {-1, ";;;", ""},
                       {0, ";;;", ""},
                       {Variant::Null(), ";;;", ""},
                       {Variant::Null(), "0;0;0", ""},
                       {Variant::Null(), "0;0;0;0.0", "0.0"},
                       {1, "0;1;2;3;4", "1"},
                       {"x", all, "x"},
                       {"-2", all, "(2.0)"},
                   });
}

TEST(NumberPattern, AgreesWithTheNamedFormats) {
    std::mt19937_64 random(3);
    std::uniform_real_distribution<double> exponents(-12, 17);
    const Locale& locale = BuiltInLocale("de-CH");
    for (int i = 0; i < 10'000; ++i) {
        const double number = std::pow(10.0, exponents(random)) * (i % 2 == 0 ? 1 : -1);
        ASSERT_EQ(Format(number, "Fixed", locale), Format(number, "0.00", locale));
        ASSERT_EQ(Format(number, "Standard", locale), Format(number, "#,##0.00", locale));
        ASSERT_EQ(Format(number, "Percent", locale), Format(number, "0.00%", locale));
    }
}

} // namespace
} // namespace quillgrid
