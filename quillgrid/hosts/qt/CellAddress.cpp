#include "quillgrid/hosts/qt/CellAddress.h"

#include "quillgrid/cells/Cell.h"
#include "quillgrid/hosts/qt/Conversions.h"

#include <QRegularExpression>

namespace quillgrid::qt {

namespace {

QUrl PhoneAddress(const QString& text) {
    static const QRegularExpression written(QStringLiteral("^\\+?[0-9 ()/.-]+$"));
    static const QRegularExpression separators(QStringLiteral("[ ()/.-]"));
    if (!written.match(text).hasMatch()) return {};
    const QString number = QString(text).remove(separators);
    return number.size() < 2 ? QUrl() : QUrl(QStringLiteral("tel:") + number, QUrl::StrictMode);
}

QUrl MailAddress(const QString& text) {
    static const QRegularExpression written(QStringLiteral("^[^\\s@?&%:/<>\"\\\\]+@[^\\s@?&%:/<>\"\\\\]+$"));
    if (!written.match(text).hasMatch()) return {};
    QUrl address;
    address.setScheme(QStringLiteral("mailto"));
    address.setPath(text);
    return address;
}

QUrl WebAddress(const QString& text) {
    static const QRegularExpression scheme(QStringLiteral("^[A-Za-z][A-Za-z0-9+.-]*:"));
    static const QRegularExpression hostAndPort(QStringLiteral("^[A-Za-z0-9.-]+:[0-9]+(/|$)"));
    const bool complete = scheme.match(text).hasMatch() && !hostAndPort.match(text).hasMatch();
    const QUrl address(complete ? text : QStringLiteral("https://") + text, QUrl::StrictMode);
    const bool web = address.scheme() == u"http" || address.scheme() == u"https";
    return web && address.isValid() && !address.host().isEmpty() && address.userInfo().isEmpty() ? address
                                                                                                 : QUrl();
}

} // namespace

QUrl addressOf(const Cell& cell) {
    const QString text = ToQString(cell.Text()).trimmed();
    switch (cell.Template()) {
    case qgctPhone:
    case qgctPhone2: return PhoneAddress(text);
    case qgctEmail: return MailAddress(text);
    case qgctwww: return WebAddress(text);
    default: return {};
    }
}

} // namespace quillgrid::qt
