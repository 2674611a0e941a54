#pragma once

#include "quillgrid/grid/Quillgrid.h"
#include "quillgrid/hosts/qt/QuillgridWidget.h"

#include <QString>

namespace quillgrid::qt {

class ErrorBubble;

/// Says at a cell why its text was refused and takes it back when the user goes on.
class RefusalMessages {
public:
    /// All must outlive this. `owner` is the control's widget, in which the bubble stands.
    RefusalMessages(const Quillgrid& grid, const QWidget& owner, ErrorBubble& bubble)
        : grid_(grid), owner_(owner), bubble_(bubble) {}

    QuillgridWidget::MessageSource Source;
    static constexpr int UsualDuration = 8000; ///< milliseconds
    int Duration = UsualDuration;              ///< milliseconds, 0 for ever

    void Refused(const Cell& cell, ValidationErrConstants code);
    void Say(const Cell* cell, const QString& text);
    /// The user did something: what was said has been read.
    void Dismiss();
    /// The refusal itself may go on to another cell within one key: that is no reason to take it back.
    void CurrentCellChanged();
    /// The rows may have moved.
    void Follow();
    QString ShownText() const;

private:
    QString TextFor(const Cell& cell, ValidationErrConstants code) const;
    const Cell* VisibleCell(const void* wanted) const;

    QRect PlaceOf(const Cell& cell) const;

    const Quillgrid& grid_;
    const QWidget& owner_;
    ErrorBubble& bubble_;
    const void* cell_ = nullptr; ///< only compared: the cell may be gone
    bool fresh_ = false;
};

} // namespace quillgrid::qt
