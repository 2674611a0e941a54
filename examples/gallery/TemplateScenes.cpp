#include "examples/gallery/SampleForms.h"
#include "examples/gallery/SceneParts.h"

namespace quillgrid::example {

namespace {

const QString Section = QStringLiteral("Templates");

SceneForm TemplateForm(StyleConstants style) {
    return {{}, style == qgstDefault ? QSize(400, 712) : QSize(400, 548), [style](qt::QuillgridWidget& form) {
                if (style == qgstPropertyList) AsPropertyList(form.grid());
                FillTemplates(form.grid());
            }};
}

SceneForm AddressForm(const QString& title, StyleConstants style, AlignmentConstants alignment) {
    return {title, {330, style == qgstDefault ? 260 : 190}, [style, alignment](qt::QuillgridWidget& form) {
                if (style == qgstPropertyList) AsPropertyList(form.grid());
                form.grid().SetAlignment(alignment);
                FillAddress(form.grid());
            }};
}

} // namespace

std::vector<Scene> TemplateScenes() {
    const Scene form{QStringLiteral("templates-form"),
                     Section,
                     QStringLiteral("Every template, as a form"),
                     1,
                     {TemplateForm(qgstDefault)},
                     false,
                     1,
                     true};
    const Scene list{QStringLiteral("templates-list"),
                     Section,
                     QStringLiteral("Every template, as a property list"),
                     1,
                     {TemplateForm(qgstPropertyList)},
                     false,
                     1,
                     true};
    const Scene sides{
        QStringLiteral("alignment"),
        QStringLiteral("Styles and alignments"),
        QStringLiteral("Both styles, with the labels on either side"),
        2,
        {AddressForm(QStringLiteral("Form, labels on the left"), qgstDefault, qgalLeftJustify),
         AddressForm(QStringLiteral("Form, labels on the right"), qgstDefault, qgalRightJustify),
         AddressForm(QStringLiteral("Property list, labels on the left"), qgstPropertyList, qgalLeftJustify),
         AddressForm(QStringLiteral("Property list, labels on the right"), qgstPropertyList,
                     qgalRightJustify)},
        false,
        1,
        true};
    return {form,
            InDark(form, QStringLiteral("templates-form-dark"), QStringLiteral("The form in the dark")),
            list,
            InDark(list, QStringLiteral("templates-list-dark"), QStringLiteral("The list in the dark")),
            sides,
            InDouble(Only(sides, {0, 3}), QStringLiteral("alignment-2x"),
                     QStringLiteral("Two of them at double density"))};
}

} // namespace quillgrid::example
