#include "quillgrid/hosts/qt/QtSite.h"

#include "quillgrid/hosts/qt/AboutWindow.h"
#include "quillgrid/hosts/qt/Conversions.h"

namespace quillgrid::qt {

Font QtSite::AmbientFont() const {
    return FromQFont(widget_.font());
}

std::string QtSite::DisplayName() const {
    return FromQString(widget_.objectName());
}

void QtSite::ShowAbout(const AboutTexts& texts) {
    if (!about_) about_ = new AboutWindow(texts, &widget_);
    about_->show();
    about_->raise();
    about_->activateWindow();
}

} // namespace quillgrid::qt
