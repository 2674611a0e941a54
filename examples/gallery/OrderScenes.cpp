#include "examples/gallery/SampleForms.h"
#include "examples/gallery/SceneParts.h"

namespace quillgrid::example {

namespace {

const QString Section = QStringLiteral("Groups and order");

struct Order {
    bool Grouped = false;
    bool Sorted = false;
    const char* Collapsed = nullptr;
    bool Margin = false;
    StyleConstants Style = qgstDefault;
    AlignmentConstants Alignment = qgalLeftJustify;
};

SceneForm GroupForm(const QString& title, Order order, int height = 316) {
    return {title, {270, height}, [order](qt::QuillgridWidget& form) {
                Quillgrid& grid = form.grid();
                if (order.Style == qgstPropertyList) AsPropertyList(grid);
                FillGroups(grid);
                grid.SetGrouped(order.Grouped);
                grid.SetSorted(order.Sorted);
                grid.SetShowGroupBox(order.Margin);
                grid.SetAlignment(order.Alignment);
                if (order.Collapsed) grid.Groups().Item(order.Collapsed)->SetExpanded(false);
            }};
}

Scene Orders() {
    return {QStringLiteral("orders"),
            Section,
            QStringLiteral("As added, sorted, grouped, and grouped with a collapsed group"),
            2,
            {GroupForm(QStringLiteral("As added"), {}), GroupForm(QStringLiteral("Sorted"), {.Sorted = true}),
             GroupForm(QStringLiteral("Grouped and sorted"), {.Grouped = true, .Sorted = true}),
             GroupForm(QStringLiteral("\"Money\" collapsed"), {.Grouped = true, .Collapsed = "money"})},
            false,
            1,
            true};
}

Scene Margins() {
    const auto margin = [](const QString& title, StyleConstants style, AlignmentConstants alignment,
                           int height) {
        return GroupForm(title, {true, false, "money", true, style, alignment}, height);
    };
    return {QStringLiteral("group-margin"),
            Section,
            QStringLiteral("The group margin, where a click folds a group; below with a scroll bar"),
            2,
            {margin(QStringLiteral("Form"), qgstDefault, qgalLeftJustify, 270),
             margin(QStringLiteral("Labels on the right"), qgstDefault, qgalRightJustify, 270),
             margin(QStringLiteral("Property list"), qgstPropertyList, qgalLeftJustify, 200),
             margin(QStringLiteral("Labels on the right"), qgstPropertyList, qgalRightJustify, 200),
             margin(QStringLiteral("Form, scrolling"), qgstDefault, qgalRightJustify, 150),
             margin(QStringLiteral("Property list, scrolling"), qgstPropertyList, qgalLeftJustify, 120)},
            false,
            1,
            true};
}

} // namespace

std::vector<Scene> OrderScenes() {
    const Scene margins = Margins();
    return {
        Orders(), margins,
        InDark(margins, QStringLiteral("group-margin-dark"), QStringLiteral("The group margin in the dark"))};
}

} // namespace quillgrid::example
