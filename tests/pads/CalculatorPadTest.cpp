// Keyboard, mouse, formulas, properties and geometry around the calculator.
#include "tests/pads/CalculatorFixture.h"
#include "tests/pads/FakePadHost.h"

#include "quillgrid/base/ControlError.h"
#include "quillgrid/pads/PadKeyCodes.h"

#include <gtest/gtest.h>

#include <chrono>

namespace quillgrid::test {

namespace {

/// Types on the keyboard and gives display and events.
std::string Keyed(TypedCalculator& calculator, std::u32string_view characters) {
    std::string said;
    for (const char32_t character : characters) {
        auto code = static_cast<std::int32_t>(character);
        calculator.Said.clear();
        calculator.Core.KeyPress(code);
        said += calculator.Said;
    }
    return calculator.Type("") + (said.empty() ? "" : " " + said);
}

} // namespace

TEST(CalculatorPadTest, KeyboardTypesTheKeys) {
    TypedCalculator calculator;
    EXPECT_EQ(Keyed(calculator, U"1.5*2;5\r"), "3.75 v");
    EXPECT_EQ(Keyed(calculator, U" "), "3.75 C");
    EXPECT_EQ(Keyed(calculator, U"C\x1B"), "0 C");
    EXPECT_EQ(Keyed(calculator, U"12\b,5"), "1.5");
    EXPECT_EQ(Keyed(calculator, U"a\x3E8\x3E9\x3EC\xFF"),
              "1.5 bbbbb"); // numbers of actions are no characters
    calculator.Core.SetNumSeparators("k");
    EXPECT_EQ(Keyed(calculator, U"c2K5;"), "2.5 b"); // in any case; the semicolon is one by itself
    std::int32_t negative = -5;
    calculator.Core.KeyPress(negative);
    EXPECT_EQ(negative, 0);
}

TEST(CalculatorPadTest, DrawsKeysPressedUntilTheyAreLetGo) {
    TypedCalculator calculator;
    std::int32_t code = '.';
    calculator.Core.KeyPress(code);
    EXPECT_EQ(calculator.Core.PressedKey(), 17);
    calculator.Core.KeyUp();
    EXPECT_EQ(calculator.Core.PressedKey(), 0);
    code = '.';
    calculator.Core.KeyPress(code); // refused
    EXPECT_EQ(code, 0);
    EXPECT_EQ(calculator.Core.PressedKey(), 0);

    calculator.Core.MouseDown({31, 22 + 27}); // 4
    EXPECT_EQ(calculator.Core.PressedKey(), 6);
    calculator.Core.MouseMove({32, 22 + 27}, true);
    EXPECT_EQ(calculator.Core.PressedKey(), 6);
    calculator.Core.MouseMove({0, 0}, true);
    EXPECT_EQ(calculator.Core.PressedKey(), 0);
    EXPECT_EQ(calculator.Type(""), ".4");
    calculator.Core.MouseUp();
    EXPECT_EQ(calculator.Said, "v");
    calculator.Core.MouseDown({57, 30}); // between two keys
    EXPECT_EQ(calculator.Core.PressedKey(), 0);
}

TEST(CalculatorPadTest, FunctionKeysRunFormulasAndAreUsedUp) {
    TypedCalculator calculator;
    calculator.Type("100");
    std::int32_t code = padkey::F5;
    calculator.Core.KeyDown(code);
    EXPECT_EQ(code, 0);
    EXPECT_EQ(calculator.Type(""), "195.58");
    for (const std::int32_t other : {padkey::F5 - 1, padkey::F8 + 1, 0, INT32_MAX, INT32_MIN}) {
        code = other;
        calculator.Core.KeyDown(code);
        EXPECT_EQ(code, other);
    }
}

TEST(CalculatorPadTest, FormulasAreDefinedAtOnceAndReinstalledByLayouts) {
    TypedCalculator calculator;
    CountedImages images(40);
    calculator.Core.SetImages(&images);
    calculator.Core.Refresh({13, 10});
    const auto& slots = calculator.Core.Slots();
    EXPECT_EQ(slots.ImageIndex(1), 30);
    EXPECT_EQ(slots.ImageIndex(3), 0); // the list ends before
    calculator.Core.DefineFormula(2, "((X))*4", "image 7", "four times");
    EXPECT_EQ(slots.KeyText(2), "X==*4");
    EXPECT_EQ(slots.ImageIndex(2), 7);
    EXPECT_EQ(calculator.Core.TooltipAt({5, 22 + 27}), "four times");
    EXPECT_EQ(calculator.Core.TooltipAt({32, 22 + 27}), ""); // a digit
    for (const std::int32_t outside : {0, 5, -1, INT32_MAX})
        calculator.Core.DefineFormula(outside, "1", Variant::Null(), "");
    EXPECT_EQ(calculator.Core.Formulas().Count(), 4);
    calculator.Core.LayOut({13, 10});
    EXPECT_EQ(slots.KeyText(2), "X/1.95583");
    EXPECT_EQ(calculator.Core.Formulas().Item("f6")->TooltipText(), "F6 DM/Euro");

    calculator.Core.Formulas().Item(1)->SetText("X+1"); // seen at once only by Refresh, which lays out first
    EXPECT_EQ(slots.KeyText(1), "X*1.95583");
    calculator.Core.Formulas().Clear();
    EXPECT_EQ(calculator.Core.TooltipAt({5, 30}), "");
    calculator.Core.Refresh({13, 10});
    EXPECT_EQ(calculator.Core.Formulas().Item("F8")->Text(), "116*X/100");
}

TEST(CalculatorPadTest, FormulasCollection) {
    Formulas formulas;
    formulas.Add({.Key = "b", .Text = "X"});
    formulas.Add({.Index = 1, .Key = "a", .ListImage = 3});
    EXPECT_EQ(formulas.Add({.Index = 9, .Text = "last"})->Index(), 3);
    std::string order;
    for (const auto& formula : formulas)
        order += formula->Key() + "/";
    EXPECT_EQ(order, "a/b//");
    EXPECT_EQ(formulas.Item(1)->ListImage(), Variant(3));
    EXPECT_THROW(formulas.Add({.Key = "A"}), ControlError);
    EXPECT_THROW(formulas.Item("c"), ControlError);
    EXPECT_THROW(formulas.Remove(4), ControlError);
    formulas.Remove("a");
    EXPECT_EQ(formulas.Item(1)->Key(), "b");
}

TEST(CalculatorPadTest, PropertiesTravelThroughTheBag) {
    const Locale locale = BuiltInLocale("de-DE");
    MapBag bag;
    EXPECT_EQ(ReadCalculatorSettings(bag, locale), CalculatorSettings{});
    WriteCalculatorSettings({}, bag);
    EXPECT_TRUE(bag.Kept.empty()); // defaults may be left out
    const CalculatorSettings settings{true, "x", Money("1.5"), 9};
    WriteCalculatorSettings(settings, bag);
    EXPECT_EQ(ReadCalculatorSettings(bag, locale), settings);
    bag.Kept = {{"DoublePrecision", "soon"}, {"NumSeparators", Variant::Null()}};
    EXPECT_EQ(ReadCalculatorSettings(bag, locale), CalculatorSettings{});

    TypedCalculator calculator;
    std::string changed;
    calculator.Core.PropertyChanged.Listen([&](std::string_view key) { changed.append(key).append(";"); });
    calculator.Core.SetDoublePrecision(true);
    calculator.Core.SetNumSeparators("");
    calculator.Core.SetMin(1);
    calculator.Core.SetMax(2);
    EXPECT_EQ(changed, "DoublePrecision;NumSeparators;Min;Max;");
}

TEST(CalculatorPadTest, Geometry) {
    const auto layout = LayOutCalculator({13, 10});
    EXPECT_EQ(layout.DumpText(), "pad 0,0 - 168,135\n"
                                 "well 4,4 - 164,20\n"
                                 "interior 5,5 - 162,18\n"
                                 "operator 7,8 - 17,14\n"
                                 "number 17,8 - 160,14\n"
                                 "keys 0,24 - 168,139\n"
                                 "key 1 31,22 - 56,47\n"
                                 "key 2 58,22 - 83,47\n"
                                 "key 3 85,22 - 110,47\n"
                                 "key 4 112,22 - 137,47\n"
                                 "key 5 139,22 - 164,47\n"
                                 "key 6 31,49 - 56,74\n"
                                 "key 7 58,49 - 83,74\n"
                                 "key 8 85,49 - 110,74\n"
                                 "key 9 112,49 - 137,74\n"
                                 "key 10 139,49 - 164,74\n"
                                 "key 11 31,76 - 56,101\n"
                                 "key 12 58,76 - 83,101\n"
                                 "key 13 85,76 - 110,101\n"
                                 "key 14 112,76 - 137,101\n"
                                 "key 15 139,76 - 164,128\n"
                                 "key 16 31,103 - 56,128\n"
                                 "key 17 58,103 - 83,128\n"
                                 "key 18 85,103 - 110,128\n"
                                 "key 19 112,103 - 137,128\n"
                                 "key 21 4,22 - 29,47\n"
                                 "key 22 4,49 - 29,74\n"
                                 "key 23 4,76 - 29,101\n"
                                 "key 24 4,103 - 29,128\n");
    EXPECT_EQ(LayOutCalculator({999, -4}), LayOutCalculator({20, 0})); // the keys stay on the pad
    EXPECT_EQ(CalculatorLayout::FaceOf(layout.Keys[1], 1, true), (Point{35, 26}));
    EXPECT_EQ(CalculatorLayout::FaceOf(layout.Keys[21], 21, false), (Point{9, 23}));
}

TEST(CalculatorPadTest, DisplayFontNeverOutgrowsTheDisplay) {
    FixedMetrics metrics;
    EXPECT_EQ(CalculatorFont(metrics, "Sans"), (Font{"Sans", 10, true, false}));
    metrics.HeightPerPoint = 3;
    const Font font = CalculatorFont(metrics, "Sans");
    EXPECT_EQ(font.Size, 6.5);
    EXPECT_LE(MeasureCalculator(metrics, font).TextHeight, 20);
    metrics.HeightPerPoint = 1000;
    EXPECT_EQ(CalculatorFont(metrics, "").Size, 4.0); // and never vanishes
}

TEST(CalculatorPadTest, LongestFormulasTakeTimeInProportion) {
    TypedCalculator calculator;
    const std::string text(20'000, 'X');
    const auto start = std::chrono::steady_clock::now();
    calculator.Formula(text, Money("922337203685477.5807"));
    calculator.Formula(text + "*X/X-" + text, Money("-0.0001"));
    calculator.Formula(std::string(20'000, ')'), 1);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
    EXPECT_EQ(calculator.Type("c2*3="), "6 v");
}

} // namespace quillgrid::test
