#include "examples/gallery/SampleForms.h"
#include "examples/gallery/SceneParts.h"
#include "quillgrid/base/DateTime.h"
#include "quillgrid/cells/CellAccess.h"
#include "quillgrid/hosts/qt/QtImageSource.h"

namespace quillgrid::example {

namespace {

const QString Section = QStringLiteral("States and values");

void FillStates(Quillgrid& grid) {
    AddCell(grid, "current", "Current", "with the edit box");
    AddCell(grid, "plain", "Plain", "as it is");
    AddCell(grid, "error", "Error", DateTime{*DayFromDate(2026, 5, 3), 0}, qgctDate);
    AddCell(grid, "disabled", "Disabled", "not for now").SetEnabled(false);
    AddCell(grid, "locked", "Locked", "to be read only").SetLocked(true);
    AddCell(grid, "level", "Not for this user", "to be changed").SetUserLevelEnabled(2);
    AddCell(grid, "secret", "Secret to this user", "5000").SetUserLevelDataVisible(2);
    AddCell(grid, "hidden", "Hidden data", "5000").SetDataVisible(false);
    AddCell(grid, "password", "Password", "open sesame", qgctPassword);
    AddCell(grid, "bold", "Bold", "in bold letters").SetFontBold(true);
    AddCell(grid, "italic", "Italic", "in italic letters").SetFontItalic(true);
    AddCell(grid, "ink", "Own ink", "in green letters").SetForeColor(Rgb(30, 150, 80));
}

SceneForm StateForm(const QString& title, StyleConstants style) {
    const auto fill = [style](qt::QuillgridWidget& form) {
        if (style == qgstPropertyList) AsPropertyList(form.grid());
        FillStates(form.grid());
    };
    const auto act = [](qt::QuillgridWidget& form) {
        // A refused value is red while the user is told why; the picture keeps that moment.
        CellAccess::SetErrorCode(*form.grid().Cells().Item("error"), qgerrBadDate);
        form.grid().Cells().Item("error")->Refresh();
        Enter(form, "current");
    };
    return {title, {310, style == qgstDefault ? 362 : 274}, fill, act};
}

SceneForm PercentForm(const QString& title, StyleConstants style) {
    const auto fill = [style](qt::QuillgridWidget& form) {
        if (style == qgstPropertyList) AsPropertyList(form.grid());
        for (const int percent : {0, 1, 25, 50, 58, 75, 100}) {
            const QByteArray key = QByteArray::number(percent);
            AddCell(form.grid(), key, key, percent * 1.0, qgctPercent);
        }
        Cell& own = AddCell(form.grid(), "own", "Own colour", 60.0, qgctPercent);
        own.SetFillColor(Rgb(0, 120, 60));
    };
    return {title, {290, style == qgstDefault ? 260 : 190}, fill};
}

SceneForm ColourForm(const QString& title, CellTemplateConstants cellTemplate, int count, QSize size) {
    const auto fill = [cellTemplate, count](qt::QuillgridWidget& form) {
        AsPropertyList(form.grid());
        for (int i = 1; i <= count; ++i) {
            const QByteArray key = QByteArray::number(i);
            AddCell(form.grid(), key, key, {}, cellTemplate).SetListIndex(i);
        }
    };
    return {title, size, fill};
}

SceneForm ImageForm() {
    const auto fill = [](qt::QuillgridWidget& form) {
        for (int i = 1; i <= 16; ++i) {
            const QByteArray key = QByteArray::number(i);
            AddCell(form.grid(), key, key, form.images().At(static_cast<std::size_t>(i))->Key)
                .SetListImage(Variant(std::int32_t{i}));
        }
        AsPropertyList(form.grid());
    };
    return {QStringLiteral("Images"), {160, 356}, fill};
}

SceneForm NarrowForm(const QString& title, StyleConstants style, int labelWidth) {
    const auto fill = [style, labelWidth](qt::QuillgridWidget& form) {
        if (style == qgstPropertyList) AsPropertyList(form.grid());
        FillAddress(form.grid());
        form.grid().Cells().Item("name")->SetCaption("Names and all the titles");
        form.grid().Cells().Item("name")->SetValue(
            Variant("Gy\u00f6rgyi J\u00e4ger-Quappelsdorf of Gy\u0151r"));
        form.grid().SetLabelWidth(labelWidth);
    };
    return {title, {170, 200}, fill};
}

} // namespace

std::vector<Scene> StateScenes() {
    const Scene states{QStringLiteral("states"),
                       Section,
                       QStringLiteral("Current, refused, disabled, locked, barred and hidden values"),
                       2,
                       {StateForm(QStringLiteral("Form"), qgstDefault),
                        StateForm(QStringLiteral("Property list"), qgstPropertyList)},
                       false,
                       1,
                       true};
    const Scene percent{QStringLiteral("percent"),
                        Section,
                        QStringLiteral("Percent bars"),
                        2,
                        {PercentForm(QStringLiteral("Form"), qgstDefault),
                         PercentForm(QStringLiteral("Property list"), qgstPropertyList)},
                        false,
                        1,
                        true};
    const Scene colours{QStringLiteral("colours"),
                        Section,
                        QStringLiteral("Colour swatches and images"),
                        3,
                        {ColourForm(QStringLiteral("Colours"), qgctColor, 16, {200, 356}),
                         ColourForm(QStringLiteral("System colours"), qgctSysColor, 27, {260, 590}),
                         ImageForm()},
                        false,
                        1,
                        false};
    return {states,
            InDark(states, QStringLiteral("states-dark"), QStringLiteral("The same in the dark")),
            percent,
            InDark(InDouble(percent, {}, {}), QStringLiteral("percent-dark-2x"),
                   QStringLiteral("Percent bars in the dark at double density")),
            colours,
            InDark(Only(colours, {0, 2}), QStringLiteral("images-dark"),
                   QStringLiteral("Swatches and images in the dark")),
            {QStringLiteral("narrow"),
             Section,
             QStringLiteral("Too narrow for its texts"),
             3,
             {NarrowForm(QStringLiteral("Automatic labels"), qgstDefault, 0),
              NarrowForm(QStringLiteral("Labels of 60"), qgstDefault, 60),
              NarrowForm(QStringLiteral("Property list"), qgstPropertyList, 60)},
             false,
             1,
             false}};
}

} // namespace quillgrid::example
