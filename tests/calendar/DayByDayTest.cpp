// The calendar beside its literal definition: after any sequence of changes and questions both answer alike
// and show the same dates in their rules.
#include "quillgrid/calendar/WorkCalendar.h"
#include "tests/calendar/LiteralCalendar.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace quillgrid::test {

namespace {

constexpr HolidayTypeConstants Types[] = {qghtDayOfMonth,
                                          qghtDayOfMonth,
                                          qghtDayOfMonth,
                                          qghtDaysFromEaster,
                                          qghtDaysFromEaster,
                                          qghtDaysFromEaster,
                                          qghtDaysFromGermanBusstag,
                                          qghtSundayOfMonth,
                                          qghtMondayOfMonth,
                                          qghtThursdayOfMonth,
                                          qghtSaturdayOfMonth,
                                          qghtDaysFromUserDate1,
                                          qghtDaysFromUserDate2,
                                          qghtDaysFromUserDate3,
                                          HolidayTypeConstants{-7}};

class Twins {
public:
    explicit Twins(std::uint32_t seed)
        : random_(seed),
          centre_(Between(1700, 4000)),
          literal_(AnyDay()),
          calendar_(literal_.Settings.CurrentDate) {}

    void Change();
    void Ask();
    void Compare();

private:
    int Between(int low, int high) { return std::uniform_int_distribution<int>(low, high)(random_); }
    bool Chance(int percent) { return Between(1, 100) <= percent; }
    /// Mostly near each other, so that years and months are met again.
    std::int32_t AnyDay() {
        const int span = Chance(5) ? 90 : Chance(50) ? 1 : 5;
        return *DayFromParts(centre_ + Between(-span, span), Between(1, 12), Between(1, 31));
    }
    void ChangeRule();
    void AddRule();
    void RemoveRule();
    void ChangeFlags();
    void ChangeUserDate();
    void Reload();

    std::mt19937 random_;
    int centre_;
    LiteralCalendar literal_;
    WorkCalendar calendar_;
    int added_ = 0;
};

void Twins::ChangeRule() {
    if (literal_.Rules.empty()) return AddRule();
    const int place = Between(1, static_cast<int>(literal_.Rules.size()));
    LiteralRule& rule = literal_.Rules[static_cast<std::size_t>(place - 1)];
    const auto twin = calendar_.Holidays()->Item(place);
    switch (Between(1, 8)) {
    case 1: twin->SetEnabled(rule.Enabled = !rule.Enabled); break;
    case 2: twin->SetShift(static_cast<std::int16_t>(rule.Shift = Between(-60, 60))); break;
    case 3: twin->SetDayType(rule.Type = Types[Between(0, std::size(Types) - 1)]); break;
    case 4: twin->SetMonth(rule.Month = rule.InputMonth = Between(0, 12)); break;
    case 5: twin->SetDay(rule.Day = Between(0, 31)); break;
    case 6: twin->SetFirstYear(rule.FirstYear = Chance(30) ? 0 : centre_ + Between(-3, 3)); break;
    case 7: twin->SetLastYear(rule.LastYear = Chance(30) ? 0 : centre_ + Between(-3, 3)); break;
    default: twin->SetDisplayname(rule.Name = "n" + std::to_string(Between(1, 99))); break;
    }
}

void Twins::AddRule() {
    const std::string key = "added " + std::to_string(++added_);
    LiteralRule rule{.Type = Types[Between(0, std::size(Types) - 1)],
                     .Day = Between(0, 31),
                     .Shift = Chance(95) ? Between(-5, 60) : Between(-32'768, 32'767),
                     .Enabled = Chance(80),
                     .Name = key};
    rule.Month = rule.InputMonth = Between(0, 12);
    literal_.Rules.push_back(rule);
    calendar_.Holidays()->Add({.Key = key,
                               .DayType = rule.Type,
                               .Month = rule.Month,
                               .Day = rule.Day,
                               .Shift = static_cast<std::int16_t>(rule.Shift),
                               .Enabled = rule.Enabled});
}

void Twins::RemoveRule() {
    if (literal_.Rules.empty()) return;
    const int place = Between(1, static_cast<int>(literal_.Rules.size()));
    literal_.Rules.erase(literal_.Rules.begin() + place - 1);
    calendar_.Holidays()->Remove(place);
}

void Twins::ChangeFlags() {
    DayFlags flags{Chance(30), Chance(30), Chance(30)};
    if (Chance(50)) {
        literal_.Settings.Work = flags;
        calendar_.SetWorkHoliday(flags.Holiday);
        calendar_.SetWorkSaturday(flags.Saturday);
        calendar_.SetWorkSunday(flags.Sunday);
    } else {
        literal_.Settings.Allow = calendar_.Settings().Allow = flags;
    }
}

void Twins::ChangeUserDate() {
    const auto which = static_cast<std::size_t>(Between(0, 2));
    literal_.User[which] = Chance(20) ? 0 : AnyDay();
    const DateTime date{literal_.User[which], 3600};
    if (which == 0) calendar_.SetUserDate1(date);
    if (which == 1) calendar_.SetUserDate2(date);
    if (which == 2) calendar_.SetUserDate3(date);
}

void Twins::Reload() {
    constexpr AutoHolidayConstants presets[] = {qgahdGermany, qgahdGermany,     qgahdAustria,
                                                qgahdNone,    qgahdSwitzerland, AutoHolidayConstants{-3}};
    literal_.Settings.AutoHolidays = presets[Between(0, std::size(presets) - 1)];
    if (Chance(20)) literal_.Settings.ConfigGermany = calendar_.Settings().ConfigGermany = "1101";
    literal_.SetCurrent(literal_.Settings.CurrentDate.Day);
    literal_.SetCurrent(literal_.Settings.CurrentDate.Day);
    literal_.Reload();
    calendar_.SetAutoHolidays(literal_.Settings.AutoHolidays);
}

void Twins::Change() {
    const int choice = Between(1, 100);
    if (choice <= 35) return ChangeRule();
    if (choice <= 45) return AddRule();
    if (choice <= 50) return RemoveRule();
    if (choice <= 65) return ChangeFlags();
    if (choice <= 88) return ChangeUserDate();
    Reload();
}

void Twins::Ask() {
    const std::int32_t day = AnyDay();
    const std::int32_t other = AnyDay();
    const int days = Chance(5) ? Between(-30'000, 30'000) : Between(-300, 300);
    switch (Between(1, 9)) {
    case 1:
    case 2: ASSERT_EQ(calendar_.WorkDayDiff({day, 5}, {other}), literal_.Diff(day, other)); break;
    case 3:
    case 4: ASSERT_EQ(calendar_.WorkDayAdd({day}, days).Day, literal_.Add(day, days)); break;
    case 5:
        ASSERT_EQ(calendar_.IsWorkDay(DateTime{day}), !literal_.IsBlocked(day, literal_.Settings.Work));
        break;
    case 6: ASSERT_EQ(calendar_.Dayname({day}), literal_.Name(day)); break;
    case 7: ASSERT_EQ(calendar_.FirstOfMonth({day}).Day, literal_.FirstOfMonth(day)); break;
    case 8:
        calendar_.SetCurrentDate({day});
        literal_.SetCurrent(day);
        ASSERT_EQ(calendar_.CurrentDate().Day, literal_.Settings.CurrentDate.Day);
        break;
    default:
        calendar_.ResolveHolidays({day});
        literal_.Resolve(day);
        literal_.Build(day);
        break;
    }
}

void Twins::Compare() {
    ASSERT_EQ(calendar_.Easter().Day, EasterDay(literal_.ResolvedYear()));
    ASSERT_EQ(calendar_.Holidays()->Size(), literal_.Rules.size());
    std::size_t place = 0;
    for (const auto& rule : *calendar_.Holidays()) {
        const LiteralRule& twin = literal_.Rules[place++];
        ASSERT_EQ(rule->Month(), twin.Month) << rule->Key();
        ASSERT_EQ(rule->Day(), twin.Day) << rule->Key();
        ASSERT_EQ(rule->Year(), twin.Year) << rule->Key();
    }
}

} // namespace

TEST(DayByDay, AnswersAsGoingFromDayToDayWould) {
    for (std::uint32_t seed = 1; seed <= 800; ++seed) {
        SCOPED_TRACE(seed);
        Twins twins(seed);
        for (std::uint32_t round = 0; round < 60; ++round) {
            SCOPED_TRACE(round);
            if (round % 4 == seed % 4 || seed % 5 == 0) twins.Change();
            ASSERT_NO_FATAL_FAILURE(twins.Ask());
            // Reading the rules settles them: it must not be what keeps them right.
            if (round % 7 == seed % 7) {
                ASSERT_NO_FATAL_FAILURE(twins.Compare());
            }
        }
    }
}

/// Spans of any length over a fixed set of rules, where only the known years answer.
TEST(DayByDay, LongSpansAgree) {
    std::mt19937 random(7);
    const auto any = [&](int low, int high) { return std::uniform_int_distribution<int>(low, high)(random); };
    LiteralCalendar literal(45'000);
    WorkCalendar calendar({45'000});
    literal.Rules[3].LastYear = 1990;
    calendar.Holidays()->Item(4)->SetLastYear(1990);
    literal.Resolve(45'000);
    literal.Build(45'000);
    calendar.ResolveHolidays({45'000});
    for (int i = 0; i < 60; ++i) {
        const std::int32_t first = any(FirstDay, LastDay);
        const std::int32_t last = std::min(LastDay, first + any(0, i % 10 == 0 ? 500'000 : 40'000));
        ASSERT_EQ(calendar.WorkDayDiff({first}, {last}), literal.Diff(first, last)) << first << " " << last;
        const std::int32_t days = any(-30'000, 30'000);
        ASSERT_EQ(calendar.WorkDayAdd({first}, days).Day, literal.Add(first, days)) << first << " " << days;
    }
    ASSERT_EQ(calendar.WorkDayDiff({FirstDay}, {LastDay}), literal.Diff(FirstDay, LastDay));
}

} // namespace quillgrid::test
