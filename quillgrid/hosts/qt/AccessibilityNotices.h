#pragma once

#ifndef Q_MOC_RUN // moc cannot read the concepts of the standard headers
#include "quillgrid/grid/Quillgrid.h"
#endif

#include <QAccessible>
#include <QObject>
#include <QString>

#include <memory>
#include <vector>

class QWidget;

namespace quillgrid::qt {

class PadWidget;
class QtPads;
class QuillgridWidget;

/// Tells assistive programs what happens in the control, and its accessible objects what they cannot ask of
/// it. It lives as long as the control can be asked; nothing is made while nobody listens.
class AccessibilityNotices : public QObject {
    Q_OBJECT

public:
    /// `bubble` shows why a text was refused. Becomes a child of the widget.
    AccessibilityNotices(Quillgrid& grid, QuillgridWidget& widget, QWidget& bubble, const QtPads& pads);

    /// The control is going: from now on there is nothing to ask it.
    void Stop() { setParent(nullptr); }

    /// Those of a widget; null while it is made or going.
    static AccessibilityNotices* Of(const QWidget& widget);
    /// The row of a cell, 0 where it has none.
    static std::int32_t RowOf(const Quillgrid& grid, const Cell& cell);

    Quillgrid& Grid() const { return grid_; }
    /// From now on what happens is told.
    void SomebodyAsks();
    bool HasFocus() const;
    /// The pad that the current cell has dropped down, or null.
    PadWidget* OpenPad() const;
    /// The object of the current cell, or null.
    QAccessibleInterface* CurrentRow() const;
    /// There may be other rows. Tells of them once all is done.
    void RowsChanged();
    /// Whether the control says at present that it refused the cell's text.
    bool IsRefused(const Cell& cell) const;
    /// Says that a cell must have a value.
    QString RequiredText() const;
    /// "Alt+N", or nothing.
    QString AccessKeyOf(const Cell& cell) const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QAccessibleInterface* RowInterface(const Cell& cell) const;
    void Refused(Cell& cell);
    void TellRefused();
    static void TellChecked(QAccessibleInterface& row);
    void TellValue(const Cell& cell);
    void TellFocus(const Cell& cell);
    std::vector<const Cell*> Rows() const;
    void TellRows();

    Quillgrid& grid_;
    QuillgridWidget& widget_;
    QWidget& bubble_;
    const QtPads& pads_;
    std::weak_ptr<Cell> refused_;
    std::vector<const Cell*> told_; ///< the rows that were there when they were told of last
    bool asked_ = false;
    bool tells_ = false; ///< the telling of rows is on its way
};

} // namespace quillgrid::qt
