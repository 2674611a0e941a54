#include "quillgrid/hosts/qt/PadMenu.h"

#include "quillgrid/hosts/qt/Conversions.h"

namespace quillgrid::qt {

void PadMenu::Show(Point at, const std::vector<PopupEntry>& entries, Choice chosen) {
    Close();
    menu_ = new QMenu(&pad_);
    for (std::size_t place = 0; place < entries.size(); ++place) {
        const QString text = ToQString(entries[place].Text).replace(u'&', QStringLiteral("&&"));
        QAction* action = menu_->addAction(text, &pad_, [chosen, place] { chosen(place); });
        action->setCheckable(entries[place].Checked);
        action->setChecked(entries[place].Checked);
    }
    QObject::connect(menu_, &QMenu::aboutToHide, menu_, &QObject::deleteLater);
    const QRect place = ToQRect(OnWidget({at.X, at.Y, at.X + 1, at.Y + 1}, pad_));
    menu_->popup(pad_.mapToGlobal(place.topLeft()));
    for (QAction* action : menu_->actions()) { // keys begin at what holds now
        if (action->isChecked()) menu_->setActiveAction(action);
    }
}

// The choice, if one was made, is still on its way then.
void PadMenu::Close() {
    if (!menu_) return;
    QMenu* open = menu_;
    menu_ = nullptr;
    open->close();
}

} // namespace quillgrid::qt
