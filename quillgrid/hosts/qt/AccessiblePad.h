#pragma once

#include "quillgrid/hosts/qt/PadPart.h"
#include "quillgrid/hosts/qt/PadWidget.h"

#include <QAccessibleWidget>
#include <QPointer>

#include <unordered_map>

namespace quillgrid::qt {

class AccessiblePart;

/// A pad as assistive programs see it: what it consists of, and which part the keys are at. Parts are numbers
/// from 1; 0 is the pad itself. Each gets an object when it is first asked for.
///
/// A pad that a cell dropped down belongs to the row of that cell, and has no parts while it is closed.
class AccessiblePad : public QAccessibleWidget {
public:
    static constexpr int Whole = 0;

    /// `face` is the pad's own window, or the widget around it.
    AccessiblePad(QWidget& face, PadWidget& pad, QAccessible::Role role);
    ~AccessiblePad() override;

    /// Tells Qt how to make these; once is enough.
    static void Install();
    /// The one that stands for a pad; null while the pad is made or going.
    static AccessiblePad* Of(PadWidget& pad);

    /// Whether there are parts now.
    bool IsOpen() const;
    virtual PadPart Part(int number) const = 0;
    /// The part that the keys are at; 0 for none.
    virtual int Current() const = 0;
    /// Parts that have others in them count as containers, and so does the pad.
    virtual int CountIn(int container) const = 0;
    virtual int NumberIn(int container, int place) const;
    virtual int ContainerOf(int number) const;
    virtual int PlaceOf(int number) const { return number - 1; }
    /// The innermost part at a point of the pad; 0 for none.
    virtual int NumberAt(Point point) const = 0;
    /// Makes a part the current one.
    virtual void GoTo(int number) = 0;
    /// As a click does. It may be the end of the pad, and of this.
    virtual void Press(int number);

    /// Never null: a number without a part gives one that says so.
    QAccessibleInterface* PartAt(int number) const;
    /// Where an area of the pad is on the screen.
    QRect OnScreen(const Rect& area) const;
    /// What of a container is at a point of the screen; 0 for nothing.
    int NumberOnScreen(int container, QPoint point) const;

    /// Tells of the part that the keys have come to, and of names that have become others.
    void Tell();
    /// The next telling is of everything.
    void ForgetTold();

    QAccessibleInterface* parent() const override;
    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;
    QString text(QAccessible::Text which) const override;

protected:
    /// Null while the pad is going.
    PadWidget* Pad() const { return pad_; }
    virtual QString Name() const = 0;
    virtual QString Value() const { return {}; }
    /// Each with its own kind of object.
    virtual AccessiblePart* Make(int number) const;
    /// Of the two the one in the language of the pad's place.
    QString Said(const char* english, const char* german) const;

private:
    QPointer<PadWidget> pad_;
    mutable std::unordered_map<int, QAccessible::Id> parts_;
    QString toldName_;
    QString toldPart_;
    int toldCurrent_ = 0;
};

} // namespace quillgrid::qt
