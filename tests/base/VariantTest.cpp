#include "quillgrid/base/Variant.h"

#include <gtest/gtest.h>

#include <cmath>

namespace quillgrid {
namespace {

TEST(Variant, EqualAsTextLooksThroughTypes) {
    const Variant ones[] = {std::int16_t{1}, 1, 1.0, *Currency::FromInteger(1), "1"};
    for (const Variant& left : ones) {
        for (const Variant& right : ones)
            EXPECT_TRUE(EqualAsText(left, right));
        EXPECT_FALSE(EqualAsText(left, Variant(true)));
        EXPECT_FALSE(EqualAsText(left, Variant::Null()));
    }
    EXPECT_TRUE(EqualAsText(Variant::Null(), Variant()));
    EXPECT_TRUE(EqualAsText(Variant::Null(), ""));
    EXPECT_TRUE(EqualAsText("Ärger", "ÄRGER"));
    EXPECT_TRUE(EqualAsText(true, "true"));
    EXPECT_TRUE(EqualAsText(0.0, -0.0));
    EXPECT_FALSE(EqualAsText(0.1 + 0.2, 0.3));
    EXPECT_TRUE(EqualAsText(std::nan(""), -std::nan(""))) << "both read nan";
    EXPECT_TRUE(EqualAsText(1e23, "100000000000000000000000"));
    const Variant object = std::make_shared<std::any>(5);
    EXPECT_FALSE(EqualAsText(object, object));
    EXPECT_FALSE(object == object);
}

TEST(Variant, PlainTextIsTheSameEverywhere) {
    const std::int32_t day = *DayFromParts(2026, 3, 5);
    EXPECT_EQ(Variant(-1234.5).ToPlainText(), "-1234.5");
    EXPECT_EQ(Variant(1e21).ToPlainText(), "1000000000000000000000");
    EXPECT_EQ(Variant(DateTime{day, 0}).ToPlainText(), "2026-03-05");
    EXPECT_EQ(Variant(DateTime{day, 3661}).ToPlainText(), "2026-03-05 01:01:01");
    EXPECT_EQ(Variant(DateTime{0, 45'000}).ToPlainText(), "12:30:00");
    EXPECT_EQ(Variant(false).ToPlainText(), "False");
    EXPECT_EQ(Variant::Null().ToPlainText(), "");
}

TEST(Variant, KeepsItsType) {
    EXPECT_EQ(Variant(true).Kind(), Variant::Type::Boolean);
    EXPECT_EQ(Variant("x").Kind(), Variant::Type::Text);
    EXPECT_EQ(Variant(qgctDate).Kind(), Variant::Type::Long);
    EXPECT_FALSE(Variant(1) == Variant(1.0));
    EXPECT_TRUE(Variant().IsEmpty());
}

} // namespace
} // namespace quillgrid
