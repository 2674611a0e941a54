#include "examples/gallery/SampleForms.h"
#include "examples/gallery/SceneParts.h"

#include <span>

namespace quillgrid::example {

namespace {

const QString Section = QStringLiteral("Frames");

struct Named {
    std::int32_t Number;
    const char* Name;
};

using Setter = void (*)(Quillgrid&, std::int32_t);

/// A small form for each value of a property.
std::vector<SceneForm> FormsFor(std::span<const Named> values, Setter set,
                                StyleConstants style = qgstDefault) {
    std::vector<SceneForm> forms;
    for (const Named& value : values) {
        forms.push_back(
            {QString::fromLatin1(value.Name), {200, 112}, [value, set, style](qt::QuillgridWidget& form) {
                 form.grid().SetStyle(style);
                 form.grid().SetBevelWidth(4);
                 form.grid().SetBorderWidth(4);
                 form.grid().SetBorderStyle(qgbsNone);
                 FillPlain(form.grid(), 2);
                 set(form.grid(), value.Number);
             }});
    }
    return forms;
}

constexpr Named Borders[] = {{qgbsNone, "qgbsNone"},
                             {qgbsFlat, "qgbsFlat"},
                             {qgbsSunken, "qgbsSunken"},
                             {qgbsRaised, "qgbsRaised"},
                             {qgbsSunkenLight, "qgbsSunkenLight"},
                             {qgbsRaisedLight, "qgbsRaisedLight"}};
constexpr Named InnerBevels[] = {{qgbiNone, "qgbiNone"},
                                 {qgbiFlat, "qgbiFlat"},
                                 {qgbiSunken, "qgbiSunken"},
                                 {qgbiRaised, "qgbiRaised"},
                                 {qgbiSunkenLight, "qgbiSunkenLight"},
                                 {qgbiRaisedLight, "qgbiRaisedLight"},
                                 {qgbiGroupFrame, "qgbiGroupFrame"}};
constexpr Named OuterBevels[] = {{qgboNone, "qgboNone"},
                                 {qgboFlat, "qgboFlat"},
                                 {qgboSunken, "qgboSunken"},
                                 {qgboRaised, "qgboRaised"},
                                 {qgboSunkenLight, "qgboSunkenLight"},
                                 {qgboRaisedLight, "qgboRaisedLight"},
                                 {qgboPanelLeft, "qgboPanelLeft"},
                                 {qgboPanelRight, "qgboPanelRight"},
                                 {qgboPanelCenter, "qgboPanelCenter"},
                                 {qgboDialogLeft, "qgboDialogLeft"},
                                 {qgboDialogTop, "qgboDialogTop"}};

void SetBorder(Quillgrid& grid, std::int32_t value) {
    grid.SetBorderStyle(static_cast<BorderStyleConstants>(value));
}
void SetInner(Quillgrid& grid, std::int32_t value) {
    grid.SetBevelInner(static_cast<BevelInnerConstants>(value));
    grid.SetShowCaption(value == qgbiGroupFrame);
    grid.SetCaption("Address");
}
void SetOuter(Quillgrid& grid, std::int32_t value) {
    grid.SetBevelOuter(static_cast<BevelOuterConstants>(value));
}

Scene BorderScene() {
    Scene scene{QStringLiteral("borders"),
                Section,
                QStringLiteral("`BorderStyle` around a form and around a property list"),
                3,
                FormsFor(Borders, SetBorder),
                false,
                1,
                true};
    for (SceneForm& form : FormsFor(Borders, SetBorder, qgstPropertyList))
        scene.Forms.push_back(std::move(form));
    return scene;
}

enum class Box { None, Close, Menu };

SceneForm CaptionForm(const QString& title, Box box, bool pressed) {
    const auto fill = [](qt::QuillgridWidget& form) {
        Quillgrid& grid = form.grid();
        grid.SetCaption("Gy\u00f6rgy J\u00e4ger");
        grid.SetShowCaption(true);
        grid.SetShowCloseBox(true);
        grid.SetShowMenuBox(true);
        grid.SetBevelOuter(qgboRaised);
        FillPlain(grid);
    };
    const auto act = [box, pressed](qt::QuillgridWidget& form) {
        // The boxes stand in the corners of the bar, eight pixels below the bevel.
        const QPoint place(box == Box::Menu ? 16 : form.width() - 16, 14);
        if (box == Box::None) return;
        pressed ? Press(form, place) : Hover(form, place);
    };
    return {title, {220, 132}, fill, act};
}

Scene CaptionScene() {
    return {QStringLiteral("caption-bar"),
            Section,
            QStringLiteral("The caption bar with its boxes: normal, under the mouse, pressed"),
            3,
            {CaptionForm(QStringLiteral("Normal"), Box::None, false),
             CaptionForm(QStringLiteral("Mouse over the close box"), Box::Close, false),
             CaptionForm(QStringLiteral("Close box pressed"), Box::Close, true),
             CaptionForm(QStringLiteral("Mouse over the menu box"), Box::Menu, false),
             CaptionForm(QStringLiteral("Menu box pressed"), Box::Menu, true)},
            false,
            1,
            true};
}

SceneForm TipsForm(const QString& title, StyleConstants style) {
    const auto fill = [style](qt::QuillgridWidget& form) {
        if (style == qgstPropertyList) AsPropertyList(form.grid());
        form.grid().SetBorderStyle(qgbsSunken);
        form.grid().SetShowTips(true);
        FillAddress(form.grid());
    };
    return {title, {320, style == qgstDefault ? 340 : 240}, fill, [](qt::QuillgridWidget& form) {
                Enter(form, "name");
            }};
}

Scene TipsScene() {
    return {QStringLiteral("tips-box"),
            Section,
            QStringLiteral("The tips box below the rows, about the current cell"),
            2,
            {TipsForm(QStringLiteral("Form"), qgstDefault),
             TipsForm(QStringLiteral("Property list"), qgstPropertyList)},
            false,
            1,
            true};
}

} // namespace

std::vector<Scene> FrameScenes() {
    const Scene borders = BorderScene();
    const Scene captions = CaptionScene();
    return {borders,
            InDark(borders, QStringLiteral("borders-dark"), QStringLiteral("The same in the dark")),
            {QStringLiteral("bevels-inner"), Section, QStringLiteral("`BevelInner`"), 4,
             FormsFor(InnerBevels, SetInner), false, 1, true},
            {QStringLiteral("bevels-outer"), Section, QStringLiteral("`BevelOuter`"), 4,
             FormsFor(OuterBevels, SetOuter), false, 1, true},
            captions,
            InDark(InDouble(Only(captions, {0, 1, 2}), {}, {}), QStringLiteral("caption-bar-dark-2x"),
                   QStringLiteral("The caption bar in the dark at double density")),
            TipsScene()};
}

} // namespace quillgrid::example
