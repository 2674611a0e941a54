#pragma once

#include "quillgrid/hosts/qt/QuillgridProperties.h"

#include <functional>
#include <memory>

namespace quillgrid::qt {

class QtImageSource;
class WidgetHost;

/// The control as a Qt widget: put it into a layout, define cells through `grid()`, connect the signals.
///
/// Signals carry what the control's events carry. Their by-reference arguments are pointers, valid only
/// during the signal, so connect them directly (the default within one thread). A slot may delete the widget;
/// while Qt hides or resizes it, or gives it another look or locale, only with deleteLater, as Qt looks at it
/// afterwards.
class QUILLGRID_EXPORT QuillgridWidget : public QuillgridProperties {
    Q_OBJECT
    Q_PROPERTY(
        TabPolicy tabPolicy READ tabPolicy WRITE setTabPolicy RESET resetTabPolicy NOTIFY tabPolicyChanged)
    Q_PROPERTY(int messageDuration READ messageDuration WRITE setMessageDuration RESET resetMessageDuration
                   NOTIFY messageDurationChanged)

public:
    /// Says why typed text was refused, in the user's words; an empty answer falls back on the control's own.
    using MessageSource = std::function<QString(const Cell& cell, ValidationErrConstants code)>;

    /// A form designer shows the control in design mode: it keeps its sample cells, edits nothing and shows
    /// every change of a property at once.
    enum Mode { UserMode, DesignMode };

    /// Where Tab and Shift+Tab lead: from cell to cell and, at the ends, to the other controls of the window;
    /// from the last cell to the first, as Enter does under AllowWrap; or to the other controls at once.
    /// Ctrl+Tab always leaves.
    enum TabPolicy : int { TabLeavesAtEnds, TabWraps, TabLeaves };
    Q_ENUM(TabPolicy)

    /// Separators, names and date order are those of `locale()`, also when it changes; the language of the
    /// texts is the grid's own `Language`. Where `locale()` writes from right to left the form is mirrored,
    /// as it is by `setLayoutDirection`: labels at the right, values and the scroll bar at the left. The
    /// control itself counts from the left all the same; `onWidget` says where its places are seen.
    explicit QuillgridWidget(QWidget* parent = nullptr, Mode mode = UserMode);
    ~QuillgridWidget() override;

    /// The control itself; lives as long as the widget. It is saved with `grid().WriteProperties(bag)` and
    /// loaded with `grid().ReadProperties(bag)`, for instance with a JsonPropertyBag.
    Quillgrid& grid();
    const Quillgrid& grid() const;
    /// The images that cells show by position or key: the ready-made ones, to which a program adds its own.
    QtImageSource& images();

    /// The texts of the bubble beside a refused cell. By default the control's messages, in German or
    /// English.
    void setMessageSource(MessageSource source);
    /// Shows a message at the current cell as if its text had been refused. Empty hides it.
    void showMessage(const QString& text);
    /// The message shown at a cell now, empty when there is none.
    QString shownMessage() const;
    /// Milliseconds after which the message goes by itself; 0 keeps it until the next key. 8000 by default.
    int messageDuration() const;
    void setMessageDuration(int milliseconds);
    void resetMessageDuration();

    /// Takes over what is being typed; false when a handler keeps the user in the cell. Call it before
    /// saving.
    bool commitEdit();
    /// Whether the user has typed something that its cell has not taken over yet.
    bool holdsTypedText() const;

    TabPolicy tabPolicy() const { return tabPolicy_; }
    void setTabPolicy(TabPolicy policy);
    void resetTabPolicy() { setTabPolicy(TabLeavesAtEnds); }

    /// A place of the control (`grid().ValueArea(cell)`) in the widget's coordinates.
    QRect onWidget(const Rect& area) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// Typed text was refused. Set `*cancel` to keep the user in the cell.
    void validateCellError(quillgrid::Cell* cell, quillgrid::ValidationErrConstants code, bool* cancel);
    /// A value was taken over. Set `*cancel` to keep the user in the cell.
    void validateCell(quillgrid::Cell* cell, bool* cancel);
    void selChange(quillgrid::Cell* cell);
    void change(quillgrid::Cell* cell);
    /// The user began to type, or what was typed was taken over or back.
    void typingChanged(bool holdsTypedText);
    /// The cell does not accept what was typed.
    void beep();
    /// A character on its way to the cell; another one in `*character` takes its place, 0 drops it.
    void keyPressed(quillgrid::Cell* cell, std::int16_t* character);
    /// A key on its way to the control, with the modifiers that are held (1 Shift, 2 Ctrl, 4 Alt); 0 in
    /// `*keyCode` drops it.
    void keyWentDown(quillgrid::Cell* cell, std::int16_t* keyCode, std::int16_t* shift);
    /// A key after the control has seen it.
    void keyWentUp(quillgrid::Cell* cell, std::int16_t* keyCode, std::int16_t* shift);
    /// The control never emits these two by itself; they are for programs that raise the control's events.
    void click(quillgrid::Cell* cell);
    void dblClick(quillgrid::Cell* cell);
    /// The user moved past the first or the last cell while AllowWrap is false.
    void leaveFocus(quillgrid::Cell* cell);
    void imageClick(quillgrid::Cell* cell);
    /// The user asks for values that only the program knows; `corner` is where the cell's value ends below.
    void dropDown(quillgrid::Cell* cell, const QPointF& corner);
    void closeBoxClick();
    /// `corner`: where a menu can open.
    void menuClick(const QPointF& corner);
    /// A property that is saved with the form was set, to an equal value perhaps; its key in a property bag.
    /// Fonts that follow the widget's change without it.
    void propertyChanged(const QString& key);
    void tabPolicyChanged();
    void messageDurationChanged();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    friend class WidgetHost;

    Quillgrid& Control() const override;

    std::unique_ptr<WidgetHost> host_;
    TabPolicy tabPolicy_ = TabLeavesAtEnds;
};

} // namespace quillgrid::qt
