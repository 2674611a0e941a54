#include "examples/gallery/SceneParts.h"

#include "quillgrid/hosts/qt/CalendarWidget.h"

namespace quillgrid::example {

namespace {

const QString Section = QStringLiteral("The calendar");

using Prepare = std::function<void(QGCalendar&)>;

/// A calendar, at its own size, on a day.
SceneForm Calendar(const char* title, const char* locale, QDate day, const Prepare& prepare = {}) {
    SceneForm form;
    form.Title = QString::fromUtf8(title);
    form.Make = [day, prepare, locale = QLocale(QLatin1String(locale))] {
        auto* calendar = new qt::CalendarWidget;
        calendar->setFocusPolicy(Qt::NoFocus);
        calendar->setLocale(locale);
        if (prepare) prepare(calendar->pad());
        calendar->setCurrentDate(day);
        calendar->pad().Refresh();
        return calendar;
    };
    return form;
}

DateTime On(int month, int day) {
    return {DayFromDate(2026, month, day).value_or(FirstDay)};
}

Scene Locales() {
    Scene scene{.Name = QStringLiteral("calendar-locales"),
                .Section = Section,
                .Text = QStringLiteral("Names, formats, first days and week numbers of eight countries"),
                .Columns = 4};
    for (const auto& [title, locale] : {std::pair{"Deutschland", "de_DE"},
                                        {"\u00d6sterreich", "de_AT"},
                                        {"Schweiz", "de_CH"},
                                        {"United States", "en_US"},
                                        {"United Kingdom", "en_GB"},
                                        {"France", "fr_FR"},
                                        {"Italia", "it_IT"},
                                        {"Espa\u00f1a", "es_ES"}})
        scene.Forms.push_back(Calendar(title, locale, {2026, 1, 14}));
    return scene;
}

Scene Presets() {
    Scene scene{.Name = QStringLiteral("calendar-presets"),
                .Section = Section,
                .Text = QStringLiteral("The holidays of four presets in May"),
                .Columns = 4,
                .Golden = true};
    for (const auto& [title, preset] : {std::pair{"Germany", qgahdGermany},
                                        {"Austria", qgahdAustria},
                                        {"Switzerland", qgahdSwitzerland},
                                        {"International", qgahdInternational}})
        scene.Forms.push_back(Calendar(title, "de_DE", {2026, 5, 14},
                                       [chosen = preset](QGCalendar& pad) { pad.SetAutoHolidays(chosen); }));
    return scene;
}

void AddRanges(QGCalendar& pad) {
    pad.TimeZones().Add({"trip", On(6, 3), On(6, 12), Rgb(255, 236, 179)});
    pad.TimeZones().Add({"fair", On(6, 10), On(6, 18), Rgb(200, 230, 201)});
    pad.TimeZones().Add({"audit", On(6, 23), On(6, 25), Rgb(57, 73, 171), Rgb(255, 255, 255)});
}

void BlockWeekends(QGCalendar& pad) {
    pad.SetAllowSaturday(false);
    pad.SetAllowSunday(false);
    pad.SetBackColorSaturday(ColourButtonFace);
    pad.SetBackColorSunday(ColourButtonFace);
}

Scene Days() {
    return {.Name = QStringLiteral("calendar-days"),
            .Section = Section,
            .Text = QStringLiteral(
                "Ranges of dates, two of which overlap; weekends that cannot be picked; weeks that "
                "begin on Sunday, without stepping buttons; a calendar on a button's face"),
            .Columns = 4,
            .Forms = {Calendar("Ranges", "en_GB", {2026, 6, 17}, AddRanges),
                      Calendar("Blocked weekends", "en_GB", {2026, 6, 20}, BlockWeekends),
                      Calendar("From Sunday on", "en_GB", {2026, 6, 17},
                               [](QGCalendar& pad) {
                                   pad.SetFirstDayOfWeek(qgdwSunday);
                                   pad.SetShowButtons(false);
                               }),
                      Calendar("Flat", "en_GB", {2026, 6, 17},
                               [](QGCalendar& pad) {
                                   pad.SetBackColor(ColourButtonFace);
                                   pad.SetBackColorSaturday(ColourButtonFace);
                                   pad.SetBackColorSunday(ColourButtonFace);
                               })},
            .Golden = true};
}

} // namespace

std::vector<Scene> CalendarScenes() {
    const QString dark = QStringLiteral("The same in the dark");
    Scene sharp =
        InDouble(Days(), QStringLiteral("calendar-days-2x"), QStringLiteral("The same at double density"));
    return {Locales(),
            InDark(Locales(), QStringLiteral("calendar-locales-dark"), dark),
            Presets(),
            InDark(Presets(), QStringLiteral("calendar-presets-dark"), dark),
            Days(),
            InDark(Days(), QStringLiteral("calendar-days-dark"), dark),
            sharp,
            InDark(sharp, QStringLiteral("calendar-days-dark-2x"),
                   QStringLiteral("In the dark, at double density"))};
}

} // namespace quillgrid::example
