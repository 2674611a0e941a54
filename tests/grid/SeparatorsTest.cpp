#include "quillgrid/grid/TypedSeparators.h"

#include <gtest/gtest.h>

namespace quillgrid {
namespace {

TEST(TypedSeparators, WhatTheLocaleWritesCanBeTyped) {
    GridSettings settings;
    settings.NumSeparators = ".,";
    settings.DateSeparators = "/.";
    settings.TimeSeparators = ":";
    Locale locale = BuiltInLocale("de-DE");
    const TypedSeparators typed(settings, locale);
    EXPECT_EQ(typed.Get().Date, "/.");
    locale.DateSeparator = "-";
    locale.TimeSeparator = ".";
    EXPECT_EQ(typed.Get().Date, "/.-");
    EXPECT_EQ(typed.Get().Time, ":.");
    EXPECT_EQ(typed.Get().Number, ".,");

    settings.DateSeparators = "/#"; // as long as before
    EXPECT_EQ(typed.Get().Date, "/#-");
    locale.DateSeparator = "~"; // likewise
    EXPECT_EQ(typed.Get().Date, "/#~");
    settings.DateSeparators = "~/.";
    EXPECT_EQ(typed.Get().Date, "~/.");
    EXPECT_EQ(settings.TimeSeparators, ":");
}

} // namespace
} // namespace quillgrid
