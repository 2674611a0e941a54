#include "examples/gallery/SampleForms.h"
#include "examples/gallery/SceneParts.h"

namespace quillgrid::example {

namespace {

const QString Section = QStringLiteral("Buttons");

enum class Mouse { Away, Over, Down };

void FillButtons(Quillgrid& grid) {
    const struct {
        const char* Caption;
        ButtonStyleConstants Button;
    } rows[] = {{"Drop-down", qgbtDropDown}, {"Spin", qgbtSpin},       {"Clock", qgbtClock},
                {"Ellipsis", qgbtEllipse},   {"Calculator", qgbtCalc}, {"Phone", qgbtPhone},
                {"Info", qgbtInfo}};
    for (const auto& row : rows)
        AddCell(grid, row.Caption, row.Caption, "").SetButton(row.Button);
}

SceneForm ButtonForm(const QString& title, StyleConstants style, AppearanceConstants appearance,
                     Mouse mouse) {
    const auto fill = [style, appearance](qt::QuillgridWidget& form) {
        if (style == qgstPropertyList) AsPropertyList(form.grid());
        form.grid().SetAppearance(appearance);
        FillButtons(form.grid());
    };
    const auto act = [mouse](qt::QuillgridWidget& form) {
        const QPoint place = ButtonOf(form, "Clock");
        if (mouse == Mouse::Over) Hover(form, place);
        if (mouse == Mouse::Down) Press(form, place);
    };
    return {title, {180, style == qgstDefault ? 230 : 170}, fill, act};
}

Scene Buttons(const QString& name, const QString& text, StyleConstants style) {
    Scene scene{name, Section, text, 3, {}, false, 1, true};
    const char* titles[] = {"Three-dimensional", "Flat", "Flat until the mouse comes"};
    for (const Mouse mouse : {Mouse::Away, Mouse::Over, Mouse::Down}) {
        for (int appearance = 0; appearance < 3; ++appearance) {
            const QString title = mouse == Mouse::Away   ? QString::fromLatin1(titles[appearance])
                                  : mouse == Mouse::Over ? QStringLiteral("Mouse over the clock")
                                                         : QStringLiteral("Clock pressed");
            scene.Forms.push_back(
                ButtonForm(title, style, static_cast<AppearanceConstants>(appearance), mouse));
        }
    }
    return scene;
}

} // namespace

std::vector<Scene> ButtonScenes() {
    const Scene form = Buttons(QStringLiteral("buttons"),
                               QStringLiteral("The seven buttons in the three appearances"), qgstDefault);
    return {form,
            Buttons(QStringLiteral("buttons-list"), QStringLiteral("The same in a property list"),
                    qgstPropertyList),
            InDark(InDouble(Only(form, {0, 3, 6}), {}, {}), QStringLiteral("buttons-dark-2x"),
                   QStringLiteral("Buttons in the dark at double density"))};
}

} // namespace quillgrid::example
