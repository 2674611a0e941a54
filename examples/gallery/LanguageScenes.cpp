#include "examples/gallery/SampleForms.h"
#include "examples/gallery/SceneParts.h"

namespace quillgrid::example {

namespace {

const QString Section = QStringLiteral("Languages and scripts");

struct Speech {
    LanguageConstants Language;
    const char* Locale;
    const char* Name;
    const char* Captions[6]; ///< salutation, born, member, paid, fee, colour
};

constexpr Speech Speeches[] = {
    {qglgEnglish, "en_GB", "English", {"Salutation", "Born", "Member", "Paid", "Fee", "Colour"}},
    {qglgGerman, "de_DE", "Deutsch", {"Anrede", "Geboren", "Mitglied", "Bezahlt", "Geb\u00fchr", "Farbe"}},
    {qglgFrench,
     "fr_FR",
     "Fran\u00e7ais",
     {"Civilit\u00e9", "N\u00e9(e) le", "Membre", "Pay\u00e9", "Cotisation", "Couleur"}},
    {qglgItalian, "it_IT", "Italiano", {"Titolo", "Data di nascita", "Socio", "Pagato", "Quota", "Colore"}},
    {qglgSpanish,
     "es_ES",
     "Espa\u00f1ol",
     {"Tratamiento", "Fecha de nacimiento", "Socio", "Pagado", "Cuota", "Color"}},
};

constexpr const char* Keys[] = {"salutation", "born", "member", "paid", "fee", "colour"};

SceneForm SpokenForm(const Speech& speech) {
    const auto fill = [&speech](qt::QuillgridWidget& form) {
        form.grid().SetLanguage(speech.Language);
        form.grid().SetCaption(speech.Name);
        form.grid().SetShowCaption(true);
        FillAddress(form.grid());
        form.grid().Cells().Remove("name");
        form.grid().Cells().Remove("phone");
        for (std::size_t i = 0; i < std::size(Keys); ++i)
            form.grid().Cells().Item(Keys[i])->SetCaption(speech.Captions[i]);
    };
    return {{}, {280, 226}, fill, {}, QString::fromLatin1(speech.Locale)};
}

SceneForm ScriptForm() {
    const auto fill = [](qt::QuillgridWidget& form) {
        Quillgrid& grid = form.grid();
        AddCell(grid, "umlauts", "\u00c4rztek\u00fcrzel",
                "\u00c5ngstr\u00f6m, \u0150rs\u00e9g, \u00c7\u0131plak");
        AddCell(grid, "marks", "Combining: Zu\u0308rich", "n\u0303 g\u030a y\u0331 \u1eb4");
        AddCell(grid, "greek", "\u039f\u03bd\u03bf\u03bc\u03b1",
                "\u0393\u03b9\u03ce\u03c1\u03b3\u03bf\u03c2");
        AddCell(grid, "cyrillic", "\u0418\u043c\u044f",
                "\u042e\u0440\u0438\u0439 \u0429\u0443\u043a\u0438\u043d");
        AddCell(grid, "arabic", "\u0627\u0644\u0627\u0633\u0645", "\u0645\u062d\u0645\u062f 123");
        AddCell(grid, "hebrew", "\u05e9\u05dd", "\u05d3\u05d5\u05d3 (2026)");
    };
    return {{}, {330, 200}, fill};
}

SceneForm MirroredForm(StyleConstants style) {
    const auto fill = [style](qt::QuillgridWidget& form) {
        Quillgrid& grid = form.grid();
        if (style == qgstPropertyList) AsPropertyList(grid);
        grid.SetCaption("\u0627\u0644\u0639\u0646\u0648\u0627\u0646");
        grid.SetShowCaption(true);
        grid.SetShowCloseBox(true);
        grid.SetShowMenuBox(true);
        AddCell(grid, "name", "\u0627\u0644\u0627\u0633\u0645",
                "\u0645\u062d\u0645\u062f \u0639\u0644\u064a");
        AddCell(grid, "city", "\u0627\u0644\u0645\u062f\u064a\u0646\u0629", "Cairo (2026)");
        AddCell(grid, "fee", "\u0627\u0644\u0631\u0633\u0648\u0645", 1234.5, qgctCurrency);
        AddCell(grid, "paid", "\u0645\u062f\u0641\u0648\u0639", 58.0, qgctPercent);
        AddCell(grid, "colour", "\u0627\u0644\u0644\u0648\u0646", {}, qgctColor).SetListIndex(10);
        for (int i = 1; i <= 6; ++i) {
            const QByteArray key = QByteArray::number(i);
            AddCell(grid, key, key, "\u0646\u0635");
        }
    };
    return {{},
            {280, 226},
            fill,
            [](qt::QuillgridWidget& form) { Enter(form, "name"); },
            QStringLiteral("ar_EG")};
}

Scene MirroredScene() {
    return {QStringLiteral("right-to-left"),
            Section,
            QStringLiteral("A locale that writes from right to left mirrors the form"),
            2,
            {MirroredForm(qgstDefault), MirroredForm(qgstPropertyList)},
            false,
            1,
            true,
            true};
}

} // namespace

std::vector<Scene> LanguageScenes() {
    Scene languages{QStringLiteral("languages"),
                    Section,
                    QStringLiteral("The five languages, each with the formats of a country"),
                    2,
                    {},
                    false,
                    1,
                    true};
    for (const Speech& speech : Speeches)
        languages.Forms.push_back(SpokenForm(speech));
    const Scene scripts{QStringLiteral("scripts"),
                        Section,
                        QStringLiteral("Other scripts in captions and values"),
                        1,
                        {ScriptForm()},
                        false,
                        1,
                        true};
    return {languages, scripts,
            InDouble(scripts, QStringLiteral("scripts-2x"), QStringLiteral("The same at double density")),
            MirroredScene()};
}

} // namespace quillgrid::example
