#include "quillgrid/hosts/headless/CalendarHost.h"
#include "quillgrid/hosts/headless/MemoryBag.h"

#include <gtest/gtest.h>

namespace quillgrid::test {

namespace {

using headless::CalendarHost;
using Entries = std::vector<std::string>;

DateTime On(int year, int month, int day) {
    return {*DayFromParts(year, month, day)};
}

class CalendarPad : public testing::Test {
protected:
    void GoTo(int year, int month, int day) {
        host.Pad->SetCurrentDate(On(year, month, day));
        host.Journal.Clear();
        host.Surface.Invalid.clear();
    }
    Entries Take() {
        host.Surface.Invalid.clear();
        Entries events = host.Journal.Take();
        std::erase_if(events, [](const std::string& entry) { return entry.starts_with("repaint"); });
        return events;
    }
    std::string Date() const { return Variant(host.Pad->CurrentDate()).ToPlainText(); }
    Point Middle(CalendarPadLayout::Button which) const {
        const Rect& area = host.Pad->Layout().Buttons[which];
        return {(area.Left + area.Right) / 2, (area.Top + area.Bottom) / 2};
    }
    Point Status() const { return {100, host.Pad->Layout().Bottom.Top + 3}; }
    void Hold(Point point) {
        host.Clock.Held.Left = true;
        host.Pad->MouseDown(point);
    }

    CalendarHost host;
};

constexpr std::int32_t Left = 37, Up = 38, Right = 39, Down = 40, PageUp = 33, PageDown = 34, Home = 36,
                       End = 35;

} // namespace

// 13 pixels a line, 7 a character: rows of 19, "Mo" and "00" 14 wide, "Januar 0000" 77.
TEST_F(CalendarPad, LaysOutWhatItNeeds) {
    EXPECT_EQ(host.Surface.Inner, (Size{173, 174}));
    EXPECT_EQ(host.Pad->Layout().DumpText(), "pad 0,0 - 173,174\n"
                                             "caption 1,1 - 171,20\n"
                                             "caption text 33,3 - 137,18\n"
                                             "button 2,2 - 16,19\n"
                                             "button 16,2 - 30,19\n"
                                             "button 139,2 - 153,19\n"
                                             "button 153,2 - 167,19\n"
                                             "day names 1,22 - 171,41\n"
                                             "grid box 4,41 - 168,153\n"
                                             "grid 6,43 - 166,151\n"
                                             "day area 26,43 - 166,151\n"
                                             "week 6 6,133 - 26,151\n"
                                             "cell 1 26,43 - 46,61\n"
                                             "cell 42 146,133 - 166,151\n"
                                             "bottom 4,155 - 168,170\n");
    host.Surface.Inner = {300, 50}; // never lower than it needs; pixels left over go to the week numbers
    host.Pad->Resize();
    EXPECT_EQ(host.Surface.Inner, (Size{300, 174}));
    EXPECT_EQ(host.Pad->Layout().DayArea, (Rect{48, 43, 293, 151}));
}

TEST(CalendarPadSize, NoDayNameIsCutShortInARoomyOne) {
    CalendarHost host("fr-FR");
    const Size roomy = host.Pad->RoomySize();
    host.Surface.Inner = roomy;
    host.Pad->Resize();
    for (const std::string& name : host.Pad->View().DayNames)
        EXPECT_LE(host.Metrics.TextWidth(host.Pad->Font(), name), host.Pad->Layout().ColumnWidth) << name;
    EXPECT_EQ(roomy.Height, host.Pad->NeededSize().Height);
}

TEST_F(CalendarPad, ShowsAMonthWithItsHolidaysAndWeeks) {
    GoTo(2024, 12, 6);
    EXPECT_EQ(host.Pad->View().DumpText(), "Dezember 2024\n"
                                           " Mo Di Mi Do Fr Sa So\n"
                                           "[48] - - - - - - 1:ff0000\n"
                                           "[49] 2 3 4 5 *6 7:0000ff 8:ff0000\n"
                                           "[50] 9 10 11 12 13 14:0000ff 15:ff0000\n"
                                           "[51] 16 17 18 19 20 21:0000ff 22:ff0000\n"
                                           "[52] 23 24 25:ff0000 26:ff0000 27 28:0000ff 29:ff0000\n"
                                           "[1] 30 31 - - - - -\n"
                                           "Freitag 06.12.2024\n");
    GoTo(2024, 12, 24); // a day that has a name, though nobody is off
    EXPECT_EQ(host.Pad->View().Status, "Heiliger Abend");
}

TEST(CalendarPadLocales, NamesAndWeeksFollowTheLocale) {
    const struct {
        const char* Locale;
        const char* Start;
        std::int32_t Sunday;
        const char* Status;
    } cases[] = {
        {"de-DE", "März 2024\n Mo Di Mi Do Fr Sa So\n[9] -", 6, "Dienstag 12.03.2024"},
        {"de-AT", "März 2024\n Mo Di Mi Do Fr Sa So\n[9] -", 6, "Dienstag 12.03.2024"},
        {"de-CH", "März 2024\n Mo Di Mi Do Fr Sa So\n[9] -", 6, "Dienstag 12.03.2024"},
        {"en-US", "March 2024\n Sun Mon Tue Wed Thu Fri Sat\n[9] -", 0, "Tuesday 3/12/2024"},
        {"en-GB", "March 2024\n Mon Tue Wed Thu Fri Sat Sun\n[9] -", 6, "Tuesday 12/03/2024"},
        {"fr-FR", "mars 2024\n lun. mar. mer. jeu. ven. sam. dim.\n[9] -", 6, "mardi 12/03/2024"},
        {"it-IT", "marzo 2024\n lun mar mer gio ven sab dom\n[9] -", 6, "martedì 12/03/2024"},
        {"es-ES", "marzo 2024\n lun mar mié jue vie sáb dom\n[9] -", 6, "martes 12/03/2024"},
    };
    for (const auto& expected : cases) {
        CalendarHost host(expected.Locale);
        host.Pad->SetCurrentDate(On(2024, 3, 12));
        const MonthView& view = host.Pad->View();
        EXPECT_EQ(view.DumpText().substr(0, std::string(expected.Start).size()), expected.Start);
        EXPECT_EQ(view.SundayColumn, expected.Sunday) << expected.Locale;
        EXPECT_EQ(view.SaturdayColumn, (expected.Sunday + 6) % 7) << expected.Locale;
        EXPECT_EQ(view.Status, expected.Status);
    }
}

TEST_F(CalendarPad, PropertiesAreKeptAndTheDateStaysWhereItWas) {
    headless::MemoryBag bag;
    host.Pad->SetForeColorWeek(0x112233);
    host.Pad->SetBackColorSaturday(0x445566);
    host.Pad->SetAutoHolidays(qgahdAustria);
    GoTo(2024, 12, 8); // a Sunday
    host.Pad->WriteProperties(bag);
    EXPECT_EQ(bag.Entries.size(), 31U);
    for (auto& entry : bag.Entries) {
        if (entry.Key == "AllowSunday") entry.Value = Variant(false);
        if (entry.Key == "ForeColor") entry.Value = Variant("no colour");
    }
    CalendarHost other;
    other.Pad->ReadProperties(bag);
    EXPECT_EQ(other.Pad->CurrentDate(), On(2024, 12, 8));
    EXPECT_EQ(other.Pad->ForeColorWeek(), 0x112233U);
    EXPECT_EQ(other.Pad->BackColorSaturday(), 0x445566U);
    EXPECT_EQ(other.Pad->ForeColor(), ColourWindowText);
    EXPECT_EQ(other.Pad->Calendar().Holidays()->Count(), host.Pad->Calendar().Holidays()->Count());
    other.Pad->SetAllowSunday(false);
    EXPECT_EQ(other.Pad->CurrentDate(), On(2024, 12, 9));
    other.Pad->ReadProperties(headless::MemoryBag());
    EXPECT_EQ(other.Pad->AutoHolidays(), qgahdGermany);
    EXPECT_EQ(other.Pad->CurrentDate(), On(2026, 3, 25));
}

TEST_F(CalendarPad, WhatIsReadShowsAtOnceAndWhatCannotBeReadStays) {
    headless::MemoryBag bag;
    host.Pad->WriteProperties(bag);
    for (auto& entry : bag.Entries) {
        if (entry.Key == "CurrentDate") entry.Value = Variant(On(2024, 12, 6));
        if (entry.Key == "ForeColor") entry.Value = Variant("no colour");
        if (entry.Key == "MinDate") entry.Value = Variant::Null();
    }
    std::erase_if(bag.Entries, [](const auto& entry) { return entry.Key == "ForeColorWeek"; });
    host.Pad->SetForeColor(0x112233);
    host.Pad->SetForeColorWeek(0x445566);
    host.Pad->SetMinDate(On(2000, 1, 1));
    host.Pad->SetRedraw(false);
    host.Surface.Invalid.clear();
    host.Pad->ReadProperties(bag);
    EXPECT_EQ(host.Pad->View().Status, "Freitag 06.12.2024");
    EXPECT_EQ(host.Surface.Invalid, std::vector<Rect>{host.Pad->Layout().Pad});
    EXPECT_EQ(host.Pad->ForeColor(), 0x112233U);
    EXPECT_EQ(host.Pad->MinDate(), On(2000, 1, 1));
    EXPECT_EQ(host.Pad->ForeColorWeek(), Rgb(255, 255, 255)); // not kept: the default
    EXPECT_TRUE(host.Pad->Redraw());
    EXPECT_EQ(&host.Pad->hWnd(), &host.Surface);
}

TEST_F(CalendarPad, WeeksAndMarksFollowTheirSettingsAtTheNextRefresh) {
    GoTo(2023, 1, 2);
    EXPECT_EQ(host.Pad->View().Weeks[0], 52);
    host.Pad->SetFirstDayOfWeek(qgdwSunday);
    host.Pad->SetFirstWeekOfYear(qgfwFirstJan1);
    host.Pad->SetMarksDate(false);
    EXPECT_EQ(host.Pad->View().Weeks[0], 52);
    host.Pad->Refresh();
    EXPECT_EQ(host.Pad->View().DumpText().substr(0, 80),
              "Januar 2023\n So Mo Di Mi Do Fr Sa\n[1] 1:ff0000 2 3 4 5 6 7:0000ff\n[2] 8:ff0000 9");
    host.Press(Right); // nothing to move, and the holidays of January stay
    EXPECT_EQ(host.Pad->View().Current, 0);
    EXPECT_EQ(host.Pad->View().Status, "");
    host.Pad->SetFirstDayOfWeek(static_cast<DayOfWeekConstants>(99));
    host.Pad->Refresh();
    EXPECT_EQ(host.Pad->View().FirstCell, 6);
}

TEST_F(CalendarPad, PartsOfTheDate) {
    GoTo(2024, 1, 31);
    const auto after = [this](auto set) {
        set(*host.Pad);
        return Date();
    };
    EXPECT_EQ(after([](QGCalendar& pad) { pad.SetCurrentMonth(2); }), "2024-02-29");
    EXPECT_EQ(after([](QGCalendar& pad) { pad.SetCurrentYear(2023); }), "2023-03-01");
    GoTo(2024, 4, 5);
    EXPECT_EQ(after([](QGCalendar& pad) { pad.SetCurrentDay(31); }), "2024-05-01");
    EXPECT_EQ(after([](QGCalendar& pad) { pad.SetCurrentMonth(14); }), "2025-02-01");
    EXPECT_EQ(after([](QGCalendar& pad) { pad.SetCurrentYear(-1); }), "1601-01-01");
}

TEST_F(CalendarPad, KeysMoveTheDate) {
    const struct {
        std::int32_t Key;
        DateTime From;
        const char* To;
    } cases[] = {
        {Left, On(2024, 3, 1), "2024-02-29"},    {Right, On(2024, 12, 31), "2025-01-01"},
        {Up, On(2024, 3, 1), "2024-02-23"},      {Down, On(2024, 12, 30), "2025-01-06"},
        {PageUp, On(2024, 3, 31), "2024-02-29"}, {PageDown, On(2024, 1, 31), "2024-02-29"},
        {Home, On(2024, 2, 29), "2023-02-28"},   {End, On(2024, 2, 29), "2025-02-28"},
        {Right, {LastDay}, "9999-12-31"},        {PageDown, On(9999, 12, 5), "9999-12-05"},
        {Home, On(1601, 6, 1), "1601-01-01"}, // MinDate
    };
    for (const auto& expected : cases) {
        host.Pad->SetCurrentDate(expected.From);
        EXPECT_TRUE(host.Press(expected.Key));
        EXPECT_EQ(Date(), expected.To) << expected.Key;
    }
    EXPECT_FALSE(host.Press(65));
}

TEST_F(CalendarPad, KeysPassOverDaysThatMayNotBePicked) {
    GoTo(2024, 12, 6); // a Friday
    host.Pad->SetAllowSaturday(false);
    host.Pad->SetAllowSunday(false);
    host.Pad->SetAllowHoliday(false);
    host.Press(Right);
    EXPECT_EQ(Date(), "2024-12-09");
    host.Press(Left);
    EXPECT_EQ(Date(), "2024-12-06");
    GoTo(2024, 12, 18);
    host.Press(Down); // by whole weeks past Christmas Day and New Year
    EXPECT_EQ(Date(), "2025-01-08");
}

TEST_F(CalendarPad, AnotherDayMovesTheHighlightAndAnotherMonthPaintsOnce) {
    GoTo(2024, 12, 6);
    host.Press(Right);
    const CalendarPadLayout& layout = host.Pad->Layout();
    EXPECT_EQ(host.Surface.Invalid, (std::vector<Rect>{layout.Cell(11), layout.Cell(12), layout.Bottom}));
    EXPECT_EQ(host.Pad->View().Status, "Samstag 07.12.2024");
    host.Surface.Invalid.clear();
    host.Press(PageDown);
    EXPECT_EQ(host.Surface.Invalid, std::vector<Rect>{layout.Pad});
}

TEST_F(CalendarPad, PaintsTheHighlightInItsCell) {
    GoTo(2024, 12, 6);
    const auto all = host.Paint();
    EXPECT_EQ(all.Starting("fill 107,62").size(), 1U);
    EXPECT_EQ(all.Starting("text 107,62 - 126,79 '6' sys14 centre").size(), 1U);
    EXPECT_EQ(all.Starting("text 33,3 - 137,18 'Dezember 2024' sys8 centre bold").size(), 1U);
    headless::RecordingCanvas part;
    host.Pad->Paint(part, host.Pad->Layout().Cell(11));
    EXPECT_EQ(part.Texts(), Entries{"6"});
}

TEST_F(CalendarPad, RedrawHoldsThePictureStill) {
    GoTo(2024, 12, 6);
    const MonthView before = host.Pad->View();
    host.Pad->SetRedraw(false);
    host.Press(PageDown);
    host.Pad->Refresh();
    EXPECT_EQ(host.Pad->View(), before);
    EXPECT_TRUE(host.Surface.Invalid.empty());
    EXPECT_EQ(Date(), "2025-01-06");
    host.Pad->SetRedraw(true);
    host.Pad->Refresh();
    EXPECT_EQ(host.Pad->View().Caption, "Januar 2025");
}

TEST_F(CalendarPad, RangesColourTheirDaysAndTheFirstOneWins) {
    GoTo(2024, 12, 6);
    auto& ranges = host.Pad->TimeZones();
    ranges.Add({"a", On(2024, 12, 3), On(2024, 12, 5), Rgb(1, 2, 3), Rgb(250, 250, 250)});
    ranges.Add({"b", On(2024, 12, 4), On(2024, 12, 7), Rgb(0, 255, 0)});
    ranges.Add({"c", On(2024, 12, 20), On(2024, 12, 18), Rgb(0, 255, 0)});
    host.Pad->Refresh();
    const std::string dump = host.Pad->View().DumpText();
    EXPECT_NE(dump.find("2 3:fafafa/010203 4:fafafa/010203 5:fafafa/010203 *6/00ff00 7:0000ff/00ff00 8"),
              std::string::npos)
        << dump;
    EXPECT_EQ(host.Pad->TimeZone(On(2024, 12, 5)), "a");
    EXPECT_EQ(host.Pad->TimeZone({On(2024, 12, 5).Day, SecondsPerDay / 2}), "b");
    EXPECT_EQ(host.Pad->TimeZone({On(2024, 12, 7).Day, SecondsPerDay / 2}), "");
    EXPECT_EQ(host.Pad->TimeZone(On(2024, 12, 19)), "");
}

TEST_F(CalendarPad, ClicksPickDaysAndKeysConfirm) {
    GoTo(2024, 12, 6);
    host.Clock.Held.Left = true;
    host.Pad->MouseDown(host.MiddleOf(12));
    EXPECT_EQ(Date(), "2024-12-12");
    host.Pad->MouseUp(host.MiddleOf(13)); // elsewhere
    EXPECT_EQ(Take(), (Entries{"change"}));
    host.Click(host.MiddleOf(12));
    EXPECT_EQ(Take(), (Entries{"click"}));
    host.Click(host.MiddleOf(33)); // behind the month's end
    EXPECT_EQ(Date(), "2025-01-02");
    EXPECT_EQ(Take(), (Entries{"change", "click"}));
    host.Pad->MouseDown(host.MiddleOf(20), PadButton::Right);
    EXPECT_EQ(Date(), "2025-01-02");
    EXPECT_EQ(host.Menu.Shown, 0);
    host.Pad->SetAllowSunday(false);
    Take();
    host.Click(host.MiddleOf(5)); // a Sunday
    EXPECT_EQ(Date(), "2025-01-02");
    EXPECT_TRUE(Take().empty());
    for (const std::int32_t typed : {13, 32, 27, 65}) {
        std::int32_t character = typed;
        host.Pad->KeyPress(character);
        EXPECT_EQ(character, 0);
    }
    host.Pad->MouseDown({-1, 5});
    host.Pad->MouseDown({5, 5000}, PadButton::Right);
    EXPECT_EQ(Take(), (Entries{"click", "click", "click", "click", "click"}));
}

TEST_F(CalendarPad, TheStatusLineGoesToToday) {
    GoTo(2024, 12, 6);
    host.Click(Status());
    EXPECT_EQ(Date(), "2026-03-25");
    EXPECT_EQ(Take(), (Entries{"change"}));
    host.Clock.Moment = On(2026, 3, 29); // a Sunday
    host.Pad->SetAllowSunday(false);
    host.Click(Status());
    EXPECT_EQ(Date(), "2026-03-25");
}

TEST_F(CalendarPad, ButtonsRepeatEverFaster) {
    GoTo(2024, 1, 15);
    Hold(Middle(CalendarPadLayout::NextMonth));
    EXPECT_EQ(Date(), "2024-02-15");
    host.Clock.Advance(249);
    EXPECT_EQ(Date(), "2024-02-15");
    host.Clock.Advance(1);
    EXPECT_EQ(Date(), "2024-03-15");
    host.Clock.Advance(10 * 125); // to the twelfth step
    EXPECT_EQ(Date(), "2025-01-15");
    host.Clock.Advance(3);
    EXPECT_EQ(Date(), "2025-04-15");
    host.Clock.Held.Left = false; // released where nobody told
    host.Clock.Advance(1000);
    EXPECT_EQ(Date(), "2025-04-15");
    EXPECT_EQ(host.Clock.Waiting(), 0U);
}

TEST_F(CalendarPad, ButtonsAndTheirZones) {
    const struct {
        std::int32_t X;
        const char* To;
    } cases[] = {{0, "2024-05-15"},   {15, "2024-05-15"},  {16, "2024-07-15"},  {32, "2024-07-15"},
                 {137, "2023-06-15"}, {152, "2023-06-15"}, {153, "2025-06-15"}, {172, "2025-06-15"}};
    for (const auto& expected : cases) {
        GoTo(2024, 6, 15);
        host.Click({expected.X, 10});
        host.Click({expected.X, 2}); // above the zones
        EXPECT_EQ(Date(), expected.To) << expected.X;
    }
}

TEST_F(CalendarPad, ButtonsWorkWhileTheyAreThere) {
    GoTo(2024, 6, 15);
    const Point next = Middle(CalendarPadLayout::NextMonth);
    host.Pad->SetShowButtons(false); // even before they are painted away
    host.Click(next);
    host.Pad->MouseDown(next, PadButton::Right);
    EXPECT_EQ(Date(), "2024-06-15");
    EXPECT_EQ(host.Menu.Shown, 0);
    host.Pad->Refresh();
    host.Pad->SetShowButtons(true);
    host.Click(next);
    EXPECT_EQ(Date(), "2024-07-15");
}

TEST_F(CalendarPad, ChangedRulesShowAtTheNextRefreshOrInAnotherMonth) {
    GoTo(2024, 3, 11);
    host.Pad->SetAllowHoliday(false);
    host.Pad->Calendar().Holidays()->Add({.Key = "fair", .Month = 3, .Day = 13});
    host.Press(Right);
    EXPECT_TRUE(host.Pad->Calendar().IsAllowed(On(2024, 3, 13)));
    host.Press(Right);
    EXPECT_EQ(host.Pad->View().Status, "Mittwoch 13.03.2024");
    host.Pad->Refresh();
    EXPECT_EQ(host.Pad->View().Status, "fair");
    EXPECT_FALSE(host.Pad->Calendar().IsAllowed(On(2024, 3, 13)));
    EXPECT_EQ(host.Pad->HolidayName(On(2024, 12, 25)), "1. Weihnachtstag");
    EXPECT_EQ(host.Pad->Calendar().Easter(), On(2024, 3, 31));
}

TEST_F(CalendarPad, RepeatingEndsWithTheWindowTheReleaseAndTheCalendar) {
    GoTo(2024, 1, 15);
    const Point next = Middle(CalendarPadLayout::NextYear);
    Hold(next);
    host.Pad->Hidden();
    EXPECT_EQ(host.Clock.Waiting(), 0U);
    Hold(next);
    host.Pad->MouseUp(next);
    EXPECT_EQ(host.Clock.Waiting(), 0U);
    host.Pad->SetMaxDate(On(2027, 6, 1));
    Hold(next);
    host.Clock.Advance(5000);
    EXPECT_EQ(Date(), "2027-06-01");
    EXPECT_EQ(host.Clock.Waiting(), 0U);
}

TEST_F(CalendarPad, MenusPickMonthsAndYears) {
    GoTo(2024, 1, 31);
    const std::int32_t year = host.Pad->View().YearStart;
    host.Click({year - 1, 10});
    ASSERT_EQ(host.Menu.Entries.size(), 12U);
    EXPECT_EQ(host.Menu.Entries[0], (PopupEntry{"Januar", true}));
    EXPECT_EQ(host.Menu.Place, (Point{year - 1, 22}));
    host.Menu.Pick(1);
    EXPECT_EQ(Date(), "2024-02-29");
    host.Pad->MouseDown({170, 10}, PadButton::Right);
    ASSERT_EQ(host.Menu.Entries.size(), 5U);
    EXPECT_EQ(host.Menu.Entries[2], (PopupEntry{"2024", true}));
    EXPECT_EQ(host.Menu.Entries[4].Text, "2026");
    host.Menu.Pick(4);
    EXPECT_EQ(Date(), "2026-03-01");
    host.Pad->MouseDown({10, 10}, PadButton::Right);
    EXPECT_EQ(host.Menu.Entries.size(), 12U);
    host.Pad->SetEnabled(false);
    host.Menu.Pick(6);
    EXPECT_EQ(Date(), "2026-03-01");
}

TEST_F(CalendarPad, TipsTellWhatIsUnderTheMouse) {
    GoTo(2024, 12, 6);
    host.Pad->MouseMove(host.MiddleOf(25));
    EXPECT_EQ(host.Surface.Tooltip, "1. Weihnachtstag");
    host.Pad->MouseMove(host.MiddleOf(32)); // in January
    EXPECT_EQ(host.Surface.Tooltip, "Neujahr");
    EXPECT_EQ(host.Pad->Calendar().Easter(), On(2024, 3, 31)); // the rules came back
    host.Pad->MouseMove(host.MiddleOf(9));
    EXPECT_EQ(host.Surface.Tooltip, "Montag 09.12.2024");
    host.Pad->MouseMove(Status());
    EXPECT_EQ(host.Surface.Tooltip, "Heute: 25.03.2026");
    host.Clock.Moment = On(2026, 3, 26);
    host.Clock.Advance(12 * 3600 * 1000);
    EXPECT_EQ(host.Surface.Tooltip, "Heute: 26.03.2026");
    host.Pad->MouseLeave();
    EXPECT_EQ(host.Surface.Tooltip, "");
    EXPECT_EQ(host.Clock.Waiting(), 0U);
}

TEST_F(CalendarPad, ADisabledPadIsSilentAndDeaf) {
    GoTo(2024, 12, 6);
    host.Pad->SetEnabled(false);
    EXPECT_FALSE(host.Press(Right));
    host.Click(host.MiddleOf(20));
    host.Pad->SetCurrentDate(On(2024, 12, 7));
    EXPECT_EQ(Date(), "2024-12-07");
    EXPECT_EQ(host.Pad->View().Current, 7);
    EXPECT_TRUE(Take().empty());
    EXPECT_EQ(host.Site.TakeReported().back(), "Enabled");
}

TEST_F(CalendarPad, HandlersMayEndThePad) {
    const auto rebuild = [](CalendarHost& fresh, bool onClick) {
        fresh.Pad->SetCurrentDate(On(2024, 12, 6));
        auto& event = onClick ? fresh.Pad->DateClick : fresh.Pad->DateChange;
        event.Listen([&fresh] { fresh.Pad.reset(); });
    };
    const std::function<void(CalendarHost&)> deeds[] = {
        [](CalendarHost& fresh) { fresh.Press(Right); },
        [](CalendarHost& fresh) { fresh.Press(PageDown); },
        [](CalendarHost& fresh) { fresh.Click(fresh.MiddleOf(12)); },
        [](CalendarHost& fresh) {
            fresh.Click({100, fresh.Pad->Layout().Bottom.Top + 3});
        },
        [](CalendarHost& fresh) { fresh.Pad->SetCurrentMonth(3); },
        [](CalendarHost& fresh) {
            fresh.Clock.Held.Left = true;
            fresh.Pad->MouseDown({20, 10});
            fresh.Clock.Advance(2000);
        },
        [](CalendarHost& fresh) {
            fresh.Pad->MouseDown({50, 10});
            fresh.Menu.Pick(3);
        },
        [](CalendarHost& fresh) { fresh.Pad->SetCurrentDate(On(2024, 12, 8)), fresh.Pad.reset(); },
    };
    for (const auto& deed : deeds) {
        CalendarHost fresh;
        rebuild(fresh, false);
        if (&deed == &deeds[7]) fresh.Pad->SetEnabled(false);
        deed(fresh);
        EXPECT_FALSE(fresh.Pad);
        EXPECT_EQ(fresh.Clock.Waiting(), 0U);
    }
    CalendarHost fresh;
    rebuild(fresh, true);
    fresh.Click(fresh.MiddleOf(6));
    EXPECT_FALSE(fresh.Pad);
}

TEST(CalendarPadAtDesignTime, AContainerMayEndThePad) {
    const std::function<void(QGCalendar&)> deeds[] = {
        [](QGCalendar& pad) { pad.SetBackColor(0); },
        [](QGCalendar& pad) { pad.SetAllowSunday(false); },
        [](QGCalendar& pad) { pad.SetAutoHolidays(qgahdNone); },
        [](QGCalendar& pad) { pad.SetCurrentDay(3); },
    };
    for (const auto& deed : deeds) {
        CalendarHost fresh("de-DE", false);
        fresh.Site.OnChanged = [&fresh](std::string_view) { fresh.Pad.reset(); };
        deed(*fresh.Pad);
        EXPECT_FALSE(fresh.Pad);
    }
}

TEST_F(CalendarPad, InksStayLegible) {
    EXPECT_NE(host.Pad->View().Colours.Week, Rgb(255, 255, 255)); // white on grey
    EXPECT_EQ(host.Pad->View().Colours.Highlight, ColourHighlightText);
    host.Pad->SetBackColorWeek(Rgb(0, 0, 128));
    host.Pad->SetBackColorSaturday(Rgb(20, 20, 20));
    host.Pad->Refresh();
    EXPECT_EQ(host.Pad->View().Colours.Week, Rgb(255, 255, 255));
    EXPECT_NE(host.Pad->View().DayAt(7).Ink, Rgb(0, 0, 255)); // blue on nearly black
    EXPECT_EQ(host.Pad->ForeColorSaturDay(), Rgb(0, 0, 255));
}

} // namespace quillgrid::test
