#pragma once

#include "quillgrid/grid/Quillgrid.h"
#include "quillgrid/hosts/qt/AccessibilityNotices.h"
#include "quillgrid/hosts/qt/ErrorBubble.h"
#include "quillgrid/hosts/qt/FocusTracker.h"
#include "quillgrid/hosts/qt/GridLineEdit.h"
#include "quillgrid/hosts/qt/KeyRouter.h"
#include "quillgrid/hosts/qt/PreparedTexts.h"
#include "quillgrid/hosts/qt/QtClock.h"
#include "quillgrid/hosts/qt/QtEditBox.h"
#include "quillgrid/hosts/qt/QtImageSource.h"
#include "quillgrid/hosts/qt/QtPads.h"
#include "quillgrid/hosts/qt/QtScrollBar.h"
#include "quillgrid/hosts/qt/QtSite.h"
#include "quillgrid/hosts/qt/QtSurface.h"
#include "quillgrid/hosts/qt/QtTextMetrics.h"
#include "quillgrid/hosts/qt/QtTheme.h"
#include "quillgrid/hosts/qt/QuillgridWidget.h"
#include "quillgrid/hosts/qt/RefusalMessages.h"
#include "quillgrid/hosts/qt/WheelSteps.h"

#include <QScrollBar>

#include <map>
#include <string>

namespace quillgrid::qt {

/// Ends a widget when it is done with the event that it may be in: who scrolls may delete the form.
struct AfterItsEvents {
    void operator()(QWidget* widget) const;
};

/// What a widget is made of: the child widgets, the ports over them, the control, and the paths between. The
/// members stand in the order in which they need each other; they go in the reverse order.
class WidgetHost {
public:
    WidgetHost(QuillgridWidget& widget, bool userMode);
    ~WidgetHost();
    WidgetHost(const WidgetHost&) = delete;
    WidgetHost& operator=(const WidgetHost&) = delete;

    /// Fonts follow the widget's unless the form set its own.
    void FontChanged();
    void LookChanged();
    void LocaleChanged();
    /// The shortcut of an access key came.
    void PressAccessKey(int shortcut);
    /// Takes over what is being typed or composed; false when a handler keeps the user in the cell.
    bool Commit();
    /// Nothing is held down any more; the release may go elsewhere.
    void LetGo() { Grid.MouseUp({-1, -1}); }
    /// What stands upon the form goes where the form shows it now, also where the control found nothing new.
    void FollowWidget();
    /// Texts are measured anew: another screen may have another density.
    void ScreenChanged();
    /// Paints the control over its own background.
    void Paint(QPainter& painter, const QRect& area);

private:
    GridPorts Ports();
    void ConnectChildren();
    void ConnectRefusals();
    void ConnectEvents();
    void ConnectKeys();
    void PropertyChanged(std::string_view key);
    void RowsSorted();
    void GrabAccessKeys(const std::u32string& keys);
    void ConnectCaptionBar();
    QPointF CornerOnWidget(double x, double y) const;
    void TextChanged();
    void TellOfTyping();
    void FollowDirection();
    void FollowFont(const Font& before);
    void FollowCaptionFont(const Font& before);

    QuillgridWidget& widget_;
    bool followingFont_ = false;
    bool toldOfTyping_ = false;
    bool mirroredByLocale_ = false;
    std::map<int, char32_t> accessKeys_; ///< by the number of their shortcut
    PreparedTexts texts_;

    // The children are owned here, not by the widget's list of children: the ports end before them.
    std::unique_ptr<GridLineEdit> edit_;
    std::unique_ptr<QScrollBar, AfterItsEvents> bar_;
    std::unique_ptr<ErrorBubble> bubble_;

public:
    QtTextMetrics Metrics;
    QtTheme Desktop;
    QtClock Time;
    QtImageSource Images;
    QtSurface Window;
    QtEditBox Editor;
    QtScrollBar Bar;
    QtSite Container;
    Font AmbientFont;
    QtPads Pads;
    Quillgrid Grid;
    RefusalMessages Refusals;
    FocusTracker Focus;
    KeyRouter Keys;
    WheelSteps Wheel;
    std::unique_ptr<AccessibilityNotices> Notices;
};

} // namespace quillgrid::qt
