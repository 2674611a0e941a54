#include "quillgrid/hosts/qt/AboutWindow.h"

#include "quillgrid/hosts/qt/Conversions.h"
#include "quillgrid/hosts/qt/QtTheme.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>

namespace quillgrid::qt {

namespace {

constexpr int EmblemSize = 56;
constexpr int Margin = 20;
constexpr double Corner = 8.0;
constexpr int Rows = 3;
constexpr double RowHeight = 9.0;
constexpr double RowPitch = 14.0;
constexpr double Inset = 9.5;
constexpr double LabelWidth = 13.0;

/// A form with its second row entered, in the colours of the desktop.
class Emblem : public QWidget {
public:
    explicit Emblem(QWidget* parent) : QWidget(parent) { setFixedSize(EmblemSize, EmblemSize); }

protected:
    void paintEvent(QPaintEvent*) override {
        const QColor ink = palette().color(QPalette::WindowText);
        const QColor frame = Mixed(palette().color(QPalette::Window), ink, 0.35);
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(frame);
        painter.setBrush(palette().color(QPalette::Base));
        painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), Corner, Corner);
        painter.setPen(Qt::NoPen);
        for (int row = 0; row < Rows; ++row)
            PaintRow(painter, row == 1 ? palette().color(QPalette::Highlight) : frame,
                     Inset + row * RowPitch);
    }

private:
    void PaintRow(QPainter& painter, const QColor& colour, double top) {
        painter.setBrush(colour);
        painter.drawRoundedRect(QRectF(Inset, top, LabelWidth, RowHeight), 2, 2);
        painter.setBrush(Mixed(palette().color(QPalette::Base), colour, 0.45));
        painter.drawRoundedRect(
            QRectF(Inset + LabelWidth + 3, top, EmblemSize - 2 * Inset - LabelWidth - 3, RowHeight), 2, 2);
    }
};

QLabel* Heading(const QString& text, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    QFont font = label->font();
    font.setBold(true);
    if (font.pointSizeF() > 0) {
        font.setPointSizeF(font.pointSizeF() * 1.5);
    } else {
        font.setPixelSize(font.pixelSize() * 3 / 2);
    }
    label->setFont(font);
    return label;
}

QLabel* Line(const QString& text, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

} // namespace

AboutWindow::AboutWindow(const AboutTexts& texts, QWidget* parent) : QDialog(parent) {
    const QString name = ToQString(texts.Name);
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(tr("About %1").arg(name));
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->setHorizontalSpacing(Margin);
    layout->addWidget(new Emblem(this), 0, 0, 3, 1, Qt::AlignTop);
    layout->addWidget(Heading(name, this), 0, 1);
    layout->addWidget(Line(tr("Version %1").arg(ToQString(texts.Version)), this), 1, 1);
    layout->addWidget(Line(tr("Licence: %1").arg(ToQString(texts.Licence)), this), 2, 1);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::close);
    layout->setRowMinimumHeight(3, Margin / 2);
    layout->addWidget(buttons, 4, 0, 1, 2);
    layout->setColumnStretch(1, 1);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

} // namespace quillgrid::qt
