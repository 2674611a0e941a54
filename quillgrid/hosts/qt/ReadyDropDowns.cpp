#include "quillgrid/hosts/qt/ReadyDropDowns.h"

#include "quillgrid/hosts/qt/CellAddress.h"
#include "quillgrid/hosts/qt/Conversions.h"
#include "quillgrid/hosts/qt/QtTheme.h"
#include "quillgrid/hosts/qt/QuillgridWidget.h"

#include <QColorDialog>
#include <QDesktopServices>
#include <QFileDialog>
#include <QFontDialog>
#include <QMenu>

#include <memory>

namespace quillgrid::qt {

namespace {

/// Gives a cell, if it is still there, what the user has picked.
class Taker {
public:
    Taker(QuillgridWidget& widget, Cell& cell) : widget_(&widget), cell_(cell.weak_from_this()) {}

    void operator()(const QString& text) const {
        const auto cell = cell_.lock();
        if (!cell) return;
        cell->SetFocus(); // brings its row into view
        const Rect area = widget_->grid().ValueArea(*cell);
        if (!area.IsEmpty()) widget_->grid().DropText({area.Left + 1, area.Top + 1}, FromQString(text));
    }

private:
    QuillgridWidget* widget_;
    std::weak_ptr<Cell> cell_;
};

template <typename Answer>
void Offer(QuillgridWidget& widget, CellTemplateConstants kind, const QString& key, Answer answer) {
    QObject::connect(&widget, &QuillgridWidget::dropDown, &widget,
                     [&widget, kind, key = FromQString(key), answer](Cell* cell, const QPointF& corner) {
                         if (key.empty() ? cell->Template() == kind : cell->Key() == key)
                             answer(widget, *cell, corner);
                     });
}

template <typename Dialog>
Dialog* DialogFor(QuillgridWidget& widget) {
    auto* dialog = new Dialog(&widget);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    return dialog;
}

void PickFile(QuillgridWidget& widget, Cell& cell, const QPointF&) {
    auto* dialog = DialogFor<QFileDialog>(widget);
    dialog->selectFile(ToQString(cell.Text()));
    QObject::connect(dialog, &QFileDialog::fileSelected, &widget, Taker(widget, cell));
    dialog->open();
}

void PickFont(QuillgridWidget& widget, Cell& cell, const QPointF&) {
    auto* dialog = DialogFor<QFontDialog>(widget);
    dialog->setCurrentFont(QFont(ToQString(cell.Text())));
    QObject::connect(dialog, &QFontDialog::fontSelected, &widget,
                     [take = Taker(widget, cell)](const QFont& font) { take(font.family()); });
    dialog->open();
}

void PickColour(QuillgridWidget& widget, Cell& cell, const QPointF&) {
    auto* dialog = DialogFor<QColorDialog>(widget);
    QObject::connect(
        dialog, &QColorDialog::colorSelected, &widget, [take = Taker(widget, cell)](const QColor& colour) {
            const auto part = [](int value) { return static_cast<std::uint8_t>(value); };
            take(QString::number(Rgb(part(colour.red()), part(colour.green()), part(colour.blue()))));
        });
    dialog->open();
}

void PickPrinter(QuillgridWidget& widget, Cell& cell, const QPointF& corner) {
    auto* menu = new QMenu(&widget);
    for (const std::string& printer : QtTheme(widget).Printers())
        menu->addAction(ToQString(printer).replace(u'&', QStringLiteral("&&")), &widget,
                        [take = Taker(widget, cell), name = ToQString(printer)] { take(name); });
    QObject::connect(menu, &QMenu::aboutToHide, menu, &QObject::deleteLater);
    if (!menu->isEmpty()) menu->popup(widget.mapToGlobal(corner.toPoint()));
}

void OpenAddress(QuillgridWidget&, Cell& cell, const QPointF&) {
    const QUrl address = addressOf(cell);
    if (!address.isEmpty()) QDesktopServices::openUrl(address);
}

} // namespace

void offerFiles(QuillgridWidget& widget, const QString& key) {
    Offer(widget, qgctFile, key, PickFile);
}

void offerFonts(QuillgridWidget& widget, const QString& key) {
    Offer(widget, qgctFont, key, PickFont);
}

void offerColours(QuillgridWidget& widget, const QString& key) {
    Offer(widget, qgctColor, key, PickColour);
}

void offerPrinters(QuillgridWidget& widget, const QString& key) {
    Offer(widget, qgctPrinter, key, PickPrinter);
}

void openAddresses(QuillgridWidget& widget, const QString& key) {
    for (const CellTemplateConstants kind : {qgctPhone, qgctPhone2, qgctEmail, qgctwww}) {
        Offer(widget, kind, key, OpenAddress);
        if (!key.isEmpty()) return; // once for one cell
    }
}

} // namespace quillgrid::qt
