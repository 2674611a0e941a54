#include "quillgrid/hosts/qt/QtSite.h"

#include "quillgrid/hosts/qt/Conversions.h"

#include <QMessageBox>

namespace quillgrid::qt {

Font QtSite::AmbientFont() const {
    return FromQFont(widget_.font());
}

std::string QtSite::DisplayName() const {
    return widget_.objectName().toStdString();
}

void QtSite::ShowAbout(const AboutTexts& texts) {
    const QString name = ToQString(texts.Name);
    auto* box = new QMessageBox(
        QMessageBox::Information, name,
        QMessageBox::tr("%1 %2\nLicence: %3").arg(name, ToQString(texts.Version), ToQString(texts.Licence)),
        QMessageBox::Close, &widget_);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

} // namespace quillgrid::qt
