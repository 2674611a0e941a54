#include "examples/gallery/SceneParts.h"

#include "quillgrid/hosts/qt/CalculatorWidget.h"
#include "quillgrid/hosts/qt/ListPadWidget.h"
#include "quillgrid/hosts/qt/QtImageSource.h"

#include <QEvent>

namespace quillgrid::example {

namespace {

const QString Section = QStringLiteral("List and calculator");
constexpr QSize FormOfList(240, 60);

/// A list pad with the form that it belongs to out of sight.
class ListPicture : public QWidget {
public:
    ListPicture(CellTemplateConstants cellTemplate, const std::function<void(Cell&, QGInputList&)>& prepare)
        : form_(new qt::QuillgridWidget(this)), pad_(new qt::ListPadWidget(*form_)) {
        form_->hide();
        form_->resize(FormOfList);
        form_->grid().SetLanguage(qglgEnglish);
        pad_->setParent(this);
        pad_->Pad().SetImageList(&form_->images());
        cell_ = form_->grid().Add({.Caption = "List", .CellTemplate = cellTemplate});
        prepare(*cell_, pad_->Pad());
        form_->grid().Refresh();
        Open();
    }

protected:
    void changeEvent(QEvent* event) override {
        QWidget::changeEvent(event);
        if (event->type() == QEvent::PaletteChange) Open();
    }

private:
    void Open() {
        pad_->setPalette(palette());
        pad_->Pad().Popup(cell_, 0, 0);
        setFixedSize(pad_->size());
    }

    qt::QuillgridWidget* form_;
    qt::ListPadWidget* pad_;
    std::shared_ptr<Cell> cell_;
};

SceneForm List(const char* title, CellTemplateConstants cellTemplate,
               const std::function<void(Cell&, QGInputList&)>& prepare) {
    SceneForm form;
    form.Title = QString::fromUtf8(title);
    form.Make = [cellTemplate, prepare] { return new ListPicture(cellTemplate, prepare); };
    return form;
}

void AddTree(Cell& cell, QGInputList& pad) {
    pad.SetVisibleRows(6);
    const std::pair<const char*, std::int32_t> entries[] = {
        {"Europe", 0}, {"Austria", 1},           {"Vienna", 2}, {"Burgenland", 2}, {"Italy", 1},
        {"Asia", 0},   {"Japan, Honsh\u016b", 1}};
    for (const auto& [text, indent] : entries)
        cell.Listitems().Add({.Text = text,
                              .ItemData = Variant(text),
                              .ListImage = Variant(std::int32_t{16 - indent}),
                              .Indent = indent});
    cell.SetListIndex(3);
}

Scene Lists() {
    return {.Name = QStringLiteral("pads-list"),
            .Section = Section,
            .Text = QStringLiteral(
                "A list with indents, more entries than rows; colours; images; a raised border"),
            .Columns = 4,
            .Forms = {List("Indents", qgctlist, AddTree),
                      List("Colours", qgctColor, [](Cell& cell, QGInputList&) { cell.SetListIndex(4); }),
                      List("Images", qgctSalutation, [](Cell& cell, QGInputList&) { cell.SetListIndex(2); }),
                      List("Short, raised", qgctlist,
                           [](Cell& cell, QGInputList& pad) {
                               pad.SetBorderStyle(qgpbsRaised);
                               for (const char* text : {"One", "Two", "Three"})
                                   cell.Listitems().Add({.Text = text, .ItemData = Variant(text)});
                               cell.SetListIndex(1);
                           })},
            .Golden = true};
}

SceneForm Calculator(const char* title, const std::function<void(QGCalcpad&)>& act) {
    SceneForm form;
    form.Title = QString::fromUtf8(title);
    form.Make = [act] {
        auto* calculator = new qt::CalculatorWidget;
        calculator->setFocusPolicy(Qt::NoFocus);
        act(calculator->pad());
        return calculator;
    };
    return form;
}

/// As a hurried user types: each key rests before the next goes down.
void Type(QGCalcpad& pad, std::string_view keys) {
    for (const char key : keys) {
        std::int32_t character = key;
        pad.KeyPress(character);
        pad.KeyUp(key, 0);
    }
}

Scene Calculators() {
    return {.Name = QStringLiteral("pads-calculator"),
            .Section = Section,
            .Text = QStringLiteral(
                "At rest; with a pending operator; a key held down; a value beyond its limits"),
            .Columns = 4,
            .Forms = {Calculator("At rest", [](QGCalcpad&) {}),
                      Calculator("Pending", [](QGCalcpad& pad) { Type(pad, "1234.5*7"); }),
                      Calculator("Key held",
                                 [](QGCalcpad& pad) {
                                     const Rect key = pad.Layout().Keys[15];
                                     Type(pad, "12+3");
                                     pad.MouseDown({key.Left + 5, key.Top + 5});
                                 }),
                      Calculator("Beyond the limits",
                                 [](QGCalcpad& pad) {
                                     pad.SetMax(Variant(100));
                                     Type(pad, "101");
                                 })},
            .Golden = true};
}

} // namespace

std::vector<Scene> PadScenes() {
    const QString dark = QStringLiteral("The same in the dark");
    const QString sharp = QStringLiteral("At double density");
    return {Lists(),
            InDark(Lists(), QStringLiteral("pads-list-dark"), dark),
            InDouble(Lists(), QStringLiteral("pads-list-2x"), sharp),
            Calculators(),
            InDark(Calculators(), QStringLiteral("pads-calculator-dark"), dark),
            InDouble(Calculators(), QStringLiteral("pads-calculator-2x"), sharp)};
}

} // namespace quillgrid::example
