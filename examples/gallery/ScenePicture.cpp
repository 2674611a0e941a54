#include "examples/gallery/ScenePicture.h"

#include "apps/record_editor/WindowStyle.h"

#include <QApplication>
#include <QCryptographicHash>
#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QPixmap>
#include <QScrollBar>

namespace quillgrid::example {

namespace {

/// Takes the focus, so that no form shows its edit box unasked.
class FocusHolder : public QWidget {
public:
    explicit FocusHolder(QWidget* parent) : QWidget(parent) {
        setFocusPolicy(Qt::StrongFocus);
        resize(0, 0);
    }
};

QWidget* MakeForm(const SceneForm& form, int place) {
    auto* widget = new qt::QuillgridWidget;
    widget->setLocale(QLocale(form.Locale));
    widget->setObjectName(QStringLiteral("form%1").arg(place));
    widget->setFixedSize(form.Size);
    widget->grid().SetLanguage(qglgEnglish);
    widget->grid().SetStyle(qgstDefault);
    form.Fill(*widget);
    widget->grid().Refresh();
    return widget;
}

void AddForm(QGridLayout& layout, const SceneForm& form, int place, int columns) {
    const int row = place / columns * 2;
    const int column = place % columns;
    if (!form.Title.isEmpty()) layout.addWidget(new QLabel(form.Title), row, column);
    QWidget* widget = form.Make ? form.Make() : MakeForm(form, place);
    layout.addWidget(widget, row + 1, column, Qt::AlignTop | Qt::AlignLeft);
}

QImage TextSample() {
    QImage image(240, 24, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setFont(QApplication::font());
    painter.setPen(Qt::black);
    painter.drawText(image.rect(), Qt::AlignVCenter,
                     QStringLiteral("Hxg\u00c4\u0151 12.50 \u0645\u062d\u0645\u062f"));
    return image;
}

QImage ScrollBarSample() {
    QScrollBar bar(Qt::Vertical);
    bar.setPalette(editor::LightPalette());
    bar.setFixedSize(16, 80);
    QImage image(bar.size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    bar.render(&image);
    return image;
}

} // namespace

std::unique_ptr<QWidget> MakeWindow(const Scene& scene) {
    auto window = std::make_unique<QWidget>();
    window->setPalette(scene.Dark ? editor::DarkPalette() : editor::LightPalette());
    window->setLayoutDirection(scene.RightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    new FocusHolder(window.get());
    auto* layout = new QGridLayout(window.get());
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->setContentsMargins(12, 12, 12, 12);
    layout->setHorizontalSpacing(16);
    for (std::size_t i = 0; i < scene.Forms.size(); ++i)
        AddForm(*layout, scene.Forms[i], static_cast<int>(i), scene.Columns);
    return window;
}

QImage TakePicture(const Scene& scene) {
    const auto window = MakeWindow(scene);
    window->show();
    window->activateWindow();
    QApplication::processEvents();
    for (std::size_t i = 0; i < scene.Forms.size(); ++i) {
        auto* form = window->findChild<qt::QuillgridWidget*>(QStringLiteral("form%1").arg(i));
        if (scene.Forms[i].Act) scene.Forms[i].Act(*form);
    }
    QApplication::processEvents();
    return window->grab().toImage().convertToFormat(QImage::Format_RGB32);
}

void PrepareForPictures(int scale) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qunsetenv("QT_FONT_DPI");
    qputenv("QT_SCALE_FACTOR", QByteArray::number(scale));
    qputenv("LC_ALL", "C.UTF-8");
}

void UsePictureLook() {
    editor::UseFixedLook();
    QFont font = QApplication::font();
    font.setStyleStrategy(QFont::NoSubpixelAntialias); // grey edges: fewer colours, smaller files
    QApplication::setFont(font);
    QApplication::setPalette(editor::LightPalette());
    QApplication::setCursorFlashTime(0); // a blinking cursor would make two pictures of one form
}

QString DrawingSystem() {
    QCryptographicHash hash(QCryptographicHash::Sha1);
    for (const QImage& image : {TextSample(), ScrollBarSample()}) {
        hash.addData(QByteArrayView(reinterpret_cast<const char*>(image.constBits()), image.sizeInBytes()));
    }
    return QStringLiteral("%1x: Qt %2, drawing %3")
        .arg(qApp->devicePixelRatio())
        .arg(QString::fromLatin1(qVersion()), QString::fromLatin1(hash.result().toHex().left(12)));
}

} // namespace quillgrid::example
