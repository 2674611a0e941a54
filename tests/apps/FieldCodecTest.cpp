#include "apps/record_editor/FieldCodec.h"

#include <gtest/gtest.h>

namespace quillgrid::editor {
namespace {

using Storage = FieldValue::Storage;

FieldValue Text(const QString& text) {
    return {Storage::Text, text, text};
}
FieldValue Whole(qlonglong number) {
    return {Storage::Integer, number, QString::number(number)};
}

bool Fits(const char* text, ValueKind kind) {
    return FieldCodec::Decode(Text(QString::fromUtf8(text)), kind).has_value();
}

TEST(FieldCodec, TakesOnlyWhatACellHoldsExactly) {
    struct Case {
        ValueKind Kind;
        QStringList Good, Bad;
    };
    const Case cases[] = {
        {ValueKind::Integer,
         {"0", "-5", "2147483647"},
         {"abc", "", "2147483648", "007", "1.0", " 1", "+1", "1e3"}},
        {ValueKind::Decimal,
         {"0", "12.5", "12.50", "-0.0001", "922337203685477.5807"},
         {"0.00001", "1e3", "abc", "922337203685477.5808", "1,5", ".5", "5."}},
        {ValueKind::Real,
         {"0.1", "-2.5", "1e+20", "123456789.25"},
         {"nan", "inf", "Infinity", "1e999", "0.1000000000000000001"}},
        {ValueKind::Date,
         {"2026-11-22", "0100-01-01", "2024-02-29"},
         {"2026-02-29", "0099-12-31", "tomorrow", "22.11.2026", "2026-11-22 00:00:00", "2026-1-2",
          "infinity"}},
        {ValueKind::Time, {"08:00", "23:59:59"}, {"24:00:00", "8:00", "08:00:00.5", "08:60:00", "noon"}},
        {ValueKind::Boolean, {"true", "false"}, {"yes", "1", "t", ""}},
        {ValueKind::Text, {"", "it's", " a "}, {"two\nlines", "a\tb"}},
        {ValueKind::Unreadable, {}, {"2026-11-22 10:00:00"}},
    };
    for (const Case& test : cases) {
        for (const QString& text : test.Good) {
            EXPECT_TRUE(FieldCodec::Decode(Text(text), test.Kind)) << text.toStdString();
        }
        for (const QString& text : test.Bad) {
            EXPECT_FALSE(FieldCodec::Decode(Text(text), test.Kind)) << text.toStdString();
        }
    }
    EXPECT_TRUE(FieldCodec::Decode(Whole(1), ValueKind::Boolean));
    EXPECT_FALSE(FieldCodec::Decode(Whole(2), ValueKind::Boolean));
    EXPECT_TRUE(FieldCodec::Decode({}, ValueKind::Date)->IsNull());
    EXPECT_FALSE(Fits("٣", ValueKind::Integer));
}

TEST(FieldCodec, KeepsTheStorageThatAValueHad) {
    const FieldCodec sqlite(false);
    const Variant money(*Currency::FromDecimal("99.5"));
    EXPECT_EQ(sqlite.Encode(money, ValueKind::Decimal, {}), QVariant(QStringLiteral("99.50")));
    EXPECT_EQ(sqlite.Encode(money, ValueKind::Decimal, Text(QStringLiteral("1"))),
              QVariant(QStringLiteral("99.50")));
    EXPECT_EQ(sqlite.Encode(money, ValueKind::Decimal, {Storage::Real, 1.5, QStringLiteral("1.5")}),
              QVariant(99.5));
    const Variant three(*Currency::FromDecimal("3"));
    EXPECT_EQ(sqlite.Encode(three, ValueKind::Decimal, Whole(7)), QVariant(qlonglong(3)));
    EXPECT_EQ(sqlite.Encode(Variant(std::int32_t{5}), ValueKind::Integer, {}), QVariant(qlonglong(5)));
    EXPECT_EQ(sqlite.Encode(Variant(std::int32_t{5}), ValueKind::Integer, Text(QStringLiteral("4"))),
              QVariant(QStringLiteral("5")));
    EXPECT_EQ(sqlite.Encode(Variant(true), ValueKind::Boolean, {}), QVariant(qlonglong(1)));
    EXPECT_EQ(FieldCodec(true).Encode(Variant(true), ValueKind::Boolean, {}),
              QVariant(QStringLiteral("true")));
    EXPECT_EQ(sqlite.Encode(*FieldCodec::Decode(Text(QStringLiteral("0987-06-05")), ValueKind::Date),
                            ValueKind::Date, {}),
              QVariant(QStringLiteral("0987-06-05")));
    EXPECT_EQ(sqlite.Encode(*FieldCodec::Decode(Text(QStringLiteral("09:05")), ValueKind::Time),
                            ValueKind::Time, {}),
              QVariant(QStringLiteral("09:05:00")));
}

TEST(FieldCodec, TypedTextMayBeWiderThanTheCellButMustBeOfTheKind) {
    const FieldCodec sqlite(false);
    const Locale& german = BuiltInLocale("de-DE");
    const auto typed = [&](const char* text, ValueKind kind) {
        const auto value = sqlite.EncodeTyped(QString::fromUtf8(text), kind, german);
        return value ? value->toString() : QStringLiteral("refused");
    };
    EXPECT_EQ(typed("3000000000", ValueKind::Integer), QStringLiteral("3000000000"));
    EXPECT_EQ(typed("abc", ValueKind::Integer), QStringLiteral("refused"));
    EXPECT_EQ(typed("0.123456", ValueKind::Decimal), QStringLiteral("0.123456"));
    EXPECT_EQ(typed("1.234,5", ValueKind::Decimal), QStringLiteral("1234.5"));
    EXPECT_EQ(typed("3.5.2026", ValueKind::Date), QStringLiteral("2026-05-03"));
    EXPECT_EQ(typed("tomorrow", ValueKind::Date), QStringLiteral("refused"));
    EXPECT_EQ(typed("9:30", ValueKind::Time), QStringLiteral("09:30:00"));
    EXPECT_EQ(typed("maybe", ValueKind::Boolean), QStringLiteral("refused"));
    EXPECT_EQ(typed(" Ja", ValueKind::Boolean), QStringLiteral("1"));
    EXPECT_EQ(typed("no", ValueKind::Boolean), QStringLiteral("0"));
    EXPECT_EQ(typed("si", ValueKind::Boolean), QStringLiteral("1"));
}

} // namespace
} // namespace quillgrid::editor
