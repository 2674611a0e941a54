#include "quillgrid/hosts/qt/WidgetHost.h"

#include "quillgrid/hosts/qt/Conversions.h"
#include "quillgrid/hosts/qt/QtCanvas.h"
#include "quillgrid/hosts/qt/QtLocale.h"

#include <QKeySequence>
#include <QPainter>
#include <QPointer>

#include <algorithm>
#include <utility>

namespace quillgrid::qt {

void AfterItsEvents::operator()(QWidget* widget) const {
    widget->hide();
    widget->setParent(nullptr);
    widget->deleteLater();
}

WidgetHost::WidgetHost(QuillgridWidget& widget, bool userMode)
    : widget_(widget),
      edit_(std::make_unique<GridLineEdit>(&widget)),
      bar_(new QScrollBar(Qt::Vertical, &widget)),
      bubble_(std::make_unique<ErrorBubble>(&widget)),
      Metrics(widget),
      Desktop(widget),
      Window(widget, [this](QPainter& painter, const QRect& area) { Paint(painter, area); }),
      Editor(*edit_, widget),
      Bar(*bar_, widget),
      Container(widget, userMode),
      AmbientFont(FromQFont(widget.font())),
      Pads(widget),
      Grid(Ports()),
      Refusals(Grid, widget, *bubble_),
      Focus(widget),
      Keys(Grid, *edit_, widget) {
    FollowDirection();
    edit_->hide();
    bar_->hide();
    bar_->setFocusPolicy(Qt::NoFocus);
    ConnectChildren();
    ConnectRefusals();
    ConnectEvents();
    ConnectKeys();
    Notices = std::make_unique<AccessibilityNotices>(Grid, widget, *bubble_, Pads);
    ConnectCaptionBar();
    Grid.InitProperties();
    Container.Reported = [this](std::string_view key) { PropertyChanged(key); };
}

// A late focus or text change of a child must find nobody to tell.
WidgetHost::~WidgetHost() {
    bubble_->removeEventFilter(Notices.get());
    Notices->Stop();
    edit_->disconnect(edit_.get()); // but not what Qt connects: it keeps accessible objects by address
    Editor.TextSet = [] {};
    Focus.disconnect();
    Focus.Left = [] {};
    Focus.Entered = [] {};
    edit_->removeEventFilter(&Keys);
    bar_->disconnect(bar_.get());
    Grid.Terminate(); // it hides the edit box, for which the tracker of the focus must still be there
}

GridPorts WidgetHost::Ports() {
    return {.Window = Window,
            .Editor = Editor,
            .Bar = Bar,
            .Container = Container,
            .Metrics = Metrics,
            .Time = Time,
            .Desktop = Desktop,
            .UserLocale = LocaleFromQt(widget_.locale()),
            .Images = &Images,
            .Pads = &Pads,
            .RowsSorted = [this] { RowsSorted(); }};
}

void WidgetHost::ConnectChildren() {
    Container.AccessKeysChanged = [this](const std::u32string& keys) { GrabAccessKeys(keys); };
    Window.IsEntered = [this] { return Focus.IsEntered(); };
    Window.RequestFocus = Editor.RequestFocus = [this] { Focus.Request(); };
    Focus.Entered = [this] { Grid.FocusGained(); };
    Focus.Left = [this] {
        const QPointer<QuillgridWidget> alive(&widget_);
        Keys.FinishComposing();
        if (alive) Grid.FocusLost();
    };
    Focus.MayClose = [this] { return Commit(); };
    Pads.Close = [this] { Grid.HidePads(); };
    Keys.BeforeInput = [this] { Refusals.Dismiss(); };
    Keys.LeaveControl = [this](bool next) { widget_.focusNextPrevChild(next); };
    edit_->PasteAllowed = [this] { return Grid.PasteAllowed(); };
    edit_->TakeText = [this](const QString& text) { Keys.TypeText(text); };
    edit_->Refuse = [this] {
        Window.Beep();
        Q_EMIT widget_.beep();
    };
    Editor.TextSet = [this] {
        Keys.ForgetComposing();
        TextChanged();
    };
    QObject::connect(edit_.get(), &QLineEdit::textChanged, edit_.get(), [this] { TextChanged(); });
    QObject::connect(bar_.get(), &QScrollBar::valueChanged, bar_.get(), [this](int value) {
        const QPointer<QuillgridWidget> alive(&widget_);
        Refusals.Dismiss();
        Keys.FinishComposing();
        if (alive) Grid.ScrollTo(value);
    });
}

void WidgetHost::PropertyChanged(std::string_view key) {
    if (followingFont_) return;
    const QPointer<QuillgridWidget> alive(&widget_);
    Q_EMIT widget_.propertyChanged(ToQString(key));
    if (alive) widget_.TellChanges();
}

/// A form that was loaded reports no property by itself.
void WidgetHost::RowsSorted() {
    if (!Notices) return;
    Notices->RowsChanged();
    QMetaObject::invokeMethod(
        &widget_, [this] { widget_.TellChanges(); }, Qt::QueuedConnection);
}

bool WidgetHost::Commit() {
    const QPointer<QuillgridWidget> alive(&widget_);
    Keys.FinishComposing();
    return !alive || Grid.CommitEdit();
}

// The control may be in the midst of its work: what listens hears of it afterwards.
void WidgetHost::TextChanged() {
    if (Grid.HoldsTypedText() == toldOfTyping_) return;
    QMetaObject::invokeMethod(
        &widget_, [this] { TellOfTyping(); }, Qt::QueuedConnection);
}

void WidgetHost::TellOfTyping() {
    const bool holds = Grid.HoldsTypedText();
    if (std::exchange(toldOfTyping_, holds) != holds) Q_EMIT widget_.typingChanged(holds);
}

void WidgetHost::ConnectRefusals() {
    Grid.ValidateCellError.Listen([this](Cell& cell, ValidationErrConstants& code, bool& cancel) {
        const QPointer<QuillgridWidget> alive(&widget_);
        const std::shared_ptr<Cell> held = cell.shared_from_this();
        const ValidationErrConstants refused = code; // a handler may change its copy
        Q_EMIT widget_.validateCellError(&cell, refused, &cancel);
        if (alive) Refusals.Refused(*held, refused);
    });
    Grid.SelChange.Listen([this](Cell& cell) {
        Refusals.CurrentCellChanged();
        edit_->setAccessibleName(ToQString(cell.Caption()).remove(u'&'));
        edit_->setAccessibleDescription(ToQString(cell.TooltipText()));
        Q_EMIT widget_.selChange(&cell);
    });
}

void WidgetHost::ConnectEvents() {
    Grid.ValidateCell.Listen(
        [this](Cell& cell, bool& cancel) { Q_EMIT widget_.validateCell(&cell, &cancel); });
    Grid.Change.Listen([this](Cell& cell) { Q_EMIT widget_.change(&cell); });
    Grid.Beep.Listen([this] { Q_EMIT widget_.beep(); });
    Grid.LeaveFocus.Listen([this](Cell& cell) { Q_EMIT widget_.leaveFocus(&cell); });
    Grid.ImageClick.Listen([this](Cell& cell) { Q_EMIT widget_.imageClick(&cell); });
    Grid.Click.Listen([this](Cell& cell) { Q_EMIT widget_.click(&cell); });
    Grid.DblClick.Listen([this](Cell& cell) { Q_EMIT widget_.dblClick(&cell); });
}

void WidgetHost::ConnectKeys() {
    Grid.KeyPressed.Listen(
        [this](Cell& cell, std::int16_t& character) { Q_EMIT widget_.keyPressed(&cell, &character); });
    Grid.KeyWentDown.Listen([this](Cell& cell, std::int16_t& code, std::int16_t& shift) {
        Q_EMIT widget_.keyWentDown(&cell, &code, &shift);
    });
    Grid.KeyWentUp.Listen([this](Cell& cell, std::int16_t& code, std::int16_t& shift) {
        Q_EMIT widget_.keyWentUp(&cell, &code, &shift);
    });
}

void WidgetHost::ConnectCaptionBar() {
    Grid.DropDown.Listen(
        [this](Cell& cell, float x, float y) { Q_EMIT widget_.dropDown(&cell, CornerOnWidget(x, y)); });
    Grid.CloseBoxClick.Listen([this] { Q_EMIT widget_.closeBoxClick(); });
    Grid.MenuClick.Listen([this](float x, float y) { Q_EMIT widget_.menuClick(CornerOnWidget(x, y)); });
}

/// Where a list or a menu opens: its right corner in a form that runs from right to left.
QPointF WidgetHost::CornerOnWidget(double x, double y) const {
    return {widget_.isRightToLeft() ? widget_.width() - x : x, y};
}

void WidgetHost::GrabAccessKeys(const std::u32string& keys) {
    for (const auto& [shortcut, key] : accessKeys_)
        widget_.releaseShortcut(shortcut);
    accessKeys_.clear();
    for (const char32_t key : keys) {
        const bool known = std::any_of(accessKeys_.begin(), accessKeys_.end(),
                                       [key](const auto& entry) { return entry.second == key; });
        const QString letter = QString::fromUcs4(&key, 1).toUpper();
        if (!known) accessKeys_[widget_.grabShortcut(QKeySequence(QStringLiteral("Alt+") + letter))] = key;
    }
}

void WidgetHost::PressAccessKey(int shortcut) {
    const auto key = accessKeys_.find(shortcut);
    if (key == accessKeys_.end()) return;
    Refusals.Dismiss();
    if (!Focus.IsEntered()) widget_.setFocus(Qt::ShortcutFocusReason);
    const QPointer<QuillgridWidget> alive(&widget_);
    Keys.FinishComposing();
    if (!alive) return;
    if (Grid.AccessKeyPress(key->second) && alive) Focus.Request();
}

void WidgetHost::Paint(QPainter& painter, const QRect& area) {
    QtCanvas canvas(painter, widget_.palette(), widget_.font(), &texts_);
    if (widget_.isRightToLeft()) canvas.MirrorWithin(widget_.width());
    const Rect dirty = OnWidget(FromQRect(area), widget_); // as the control counts
    canvas.Fill(dirty, Window.BackColour());
    Grid.Paint(canvas, dirty);
}

void WidgetHost::FontChanged() {
    const QPointer<QuillgridWidget> alive(&widget_); // refreshing may raise events
    const Font before = std::exchange(AmbientFont, FromQFont(widget_.font()));
    Metrics.Forget();
    texts_.Forget();
    followingFont_ = true;
    FollowFont(before);
    if (!alive) return;
    followingFont_ = false;
    LookChanged();
}

// The form keeps no fonts of its own then: nothing that is saved with it has changed.
void WidgetHost::FollowFont(const Font& before) {
    const QPointer<QuillgridWidget> alive(&widget_);
    if (Grid.Font() == before) Grid.SetFont(AmbientFont);
    if (alive && Grid.CellFont() == before) Grid.SetCellFont(AmbientFont);
    if (alive) FollowCaptionFont(before);
}

void WidgetHost::FollowCaptionFont(const Font& before) {
    for (const bool bold : {false, true}) {
        Font caption = before;
        caption.Bold = caption.Bold || bold;
        if (Grid.CaptionFont() != caption) continue;
        caption = AmbientFont;
        caption.Bold = caption.Bold || bold;
        return Grid.SetCaptionFont(caption);
    }
}

void WidgetHost::FollowWidget() {
    Editor.FollowWidget();
    Bar.FollowWidget();
    Refusals.Follow();
}

void WidgetHost::ScreenChanged() {
    Metrics.Forget();
    texts_.Forget();
    LookChanged();
}

/// A direction that the program has set stays.
void WidgetHost::FollowDirection() {
    const bool mirrors = widget_.locale().textDirection() == Qt::RightToLeft;
    if (mirrors && !widget_.testAttribute(Qt::WA_SetLayoutDirection)) {
        mirroredByLocale_ = true;
        widget_.setLayoutDirection(Qt::RightToLeft);
    } else if (!mirrors && std::exchange(mirroredByLocale_, false)) {
        widget_.unsetLayoutDirection();
    }
}

void WidgetHost::LocaleChanged() {
    const QPointer<QuillgridWidget> alive(&widget_);
    Commit();
    if (!alive) return;
    Grid.SetLocale(LocaleFromQt(widget_.locale()));
    if (alive) FollowDirection();
}

void WidgetHost::LookChanged() {
    const QPointer<QuillgridWidget> alive(&widget_);
    Editor.AmbientChanged();
    Grid.Refresh();
    if (alive) Refusals.Follow();
    if (alive) widget_.TellChanges(); // colours and fonts that follow the widget's
}

} // namespace quillgrid::qt
