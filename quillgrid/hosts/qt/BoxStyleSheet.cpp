#include "quillgrid/hosts/qt/BoxStyleSheet.h"

#include <QApplication>
#include <QFont>
#include <QPalette>
#include <QWidget>

namespace quillgrid::qt {

namespace {

bool HasStyleSheet(const QWidget& form) {
    for (const QWidget* widget = &form; widget; widget = widget->parentWidget()) {
        if (!widget->styleSheet().isEmpty()) return true;
    }
    return !qApp->styleSheet().isEmpty();
}

QString FontRules(const QFont& font) {
    const bool points = font.pointSizeF() > 0;
    return QStringLiteral(
               "font-family:\"%1\";font-size:%2%3;font-weight:%4;font-style:%5;text-decoration:none;")
        .arg(font.family().remove(u'"').remove(u'\\'))
        .arg(points ? font.pointSizeF() : font.pixelSize())
        .arg(points ? QStringLiteral("pt") : QStringLiteral("px"))
        .arg(font.weight())
        .arg(font.italic() ? QStringLiteral("italic") : QStringLiteral("normal"));
}

QString ColourRules(const QPalette& palette) {
    return QStringLiteral("background:%1;color:%2;selection-background-color:%3;selection-color:%4;")
        .arg(palette.color(QPalette::Base).name(), palette.color(QPalette::Text).name(),
             palette.color(QPalette::Highlight).name(), palette.color(QPalette::HighlightedText).name());
}

} // namespace

QString BoxStyleSheet(const QWidget& form, const QPalette& palette, const QFont& font) {
    if (!HasStyleSheet(form)) return {};
    return QStringLiteral("QLineEdit{border:none;border-radius:0;padding:0;margin:0;min-width:0;min-height:0;"
                          "max-width:16777215;max-height:16777215;") +
           ColourRules(palette) + FontRules(font) + u'}';
}

} // namespace quillgrid::qt
