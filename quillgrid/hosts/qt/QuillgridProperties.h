#pragma once

#include "quillgrid/hosts/qt/SavedProperties.h"

#ifndef Q_MOC_RUN // moc cannot read the concepts of the standard headers
#include "quillgrid/grid/Quillgrid.h"
#endif

namespace quillgrid::qt {

/// The properties of a form that are saved with it, as Qt's: each has a reset to its default and a signal
/// `...Changed()`, which comes once for every change, also for one that `grid()` was told. What is set here
/// shows when the program returns to its event loop; `grid().Refresh()` shows it at once.
class QUILLGRID_EXPORT QuillgridProperties : public SavedProperties {
    Q_OBJECT

public:
    /// A form with cells apart from each other, or rows without gaps. Another style starts at the first row.
    enum GridStyle : int { FormStyle, PropertyListStyle };
    Q_ENUM(GridStyle)

    /// The buttons of cells; TrackButtons are flat until the mouse is over them.
    enum ButtonAppearance : int { RaisedButtons, FlatButtons, TrackButtons };
    Q_ENUM(ButtonAppearance)

    /// Labels beside the values.
    enum LabelSide : int { LabelsLeft, LabelsRight };
    Q_ENUM(LabelSide)

    /// The languages of lists and messages; DefaultLanguage is German.
    enum TextLanguage : int { DefaultLanguage, English, French, Italian, Spanish, German };
    Q_ENUM(TextLanguage)

    /// The edge of the control.
    enum BorderStyle : int {
        NoBorder,
        FlatBorder,
        SunkenBorder,
        RaisedBorder,
        SunkenLightBorder,
        RaisedLightBorder
    };
    Q_ENUM(BorderStyle)

    /// The edge around the rows.
    enum InnerBevel : int {
        NoInnerBevel,
        FlatInnerBevel,
        SunkenInnerBevel,
        RaisedInnerBevel,
        SunkenLightInnerBevel,
        RaisedLightInnerBevel,
        GroupFrameInnerBevel,
    };
    Q_ENUM(InnerBevel)

    /// The edge within the border.
    enum OuterBevel : int {
        NoOuterBevel = 0,
        FlatOuterBevel = 1,
        SunkenOuterBevel = 2,
        RaisedOuterBevel = 3,
        SunkenLightOuterBevel = 4,
        RaisedLightOuterBevel = 5,
        PanelLeftOuterBevel = 7,
        PanelRightOuterBevel = 8,
        PanelCenterOuterBevel = 9,
        DialogLeftOuterBevel = 10,
        DialogTopOuterBevel = 11,
    };
    Q_ENUM(OuterBevel)

    /// Labels. Like the next two it follows the widget's font until it is set.
    QUILLGRID_PROPERTY(QFont, labelFont, LabelFont, Font)
    /// Values.
    QUILLGRID_PROPERTY(QFont, cellFont, CellFont, CellFont)
    /// The caption bar; the widget's font in bold by itself.
    QUILLGRID_PROPERTY(QFont, captionFont, CaptionFont, CaptionFont)
    /// Text of the caption bar.
    QUILLGRID_PROPERTY(QString, caption, Caption, Caption)
    /// Tooltip where no cell has its own.
    QUILLGRID_PROPERTY(QString, toolTipText, ToolTipText, TooltipText)
    /// A form, or a list of properties.
    QUILLGRID_PROPERTY(GridStyle, gridStyle, GridStyle, Style)
    /// The buttons of cells.
    QUILLGRID_PROPERTY(ButtonAppearance, buttonAppearance, ButtonAppearance, Appearance)
    /// The side of the labels.
    QUILLGRID_PROPERTY(LabelSide, alignment, Alignment, Alignment)
    /// Pixels; 0 measures the captions.
    QUILLGRID_PROPERTY(int, labelWidth, LabelWidth, LabelWidth)
    /// How many cells there are. Setting it (1 to 1000) replaces all cells and groups by as many sample
    /// cells.
    QUILLGRID_PROPERTY(int, cellCount, CellCount, CellCount)
    /// What the access levels of the cells are compared with.
    QUILLGRID_PROPERTY(int, userLevel, UserLevel, UserLevel)
    /// Of lists and messages.
    QUILLGRID_PROPERTY(TextLanguage, language, Language, Language)
    /// Enter goes to the next row.
    QUILLGRID_PROPERTY(bool, allowEnter, AllowEnter, AllowEnter)
    /// Moving past an end goes on at the other one; otherwise `leaveFocus` comes.
    QUILLGRID_PROPERTY(bool, allowWrap, AllowWrap, AllowWrap)
    /// Escape takes back what was typed.
    QUILLGRID_PROPERTY(bool, allowEscape, AllowEscape, AllowEscape)
    /// Characters that count as separators in typed numbers; "," and "." are always among them.
    QUILLGRID_PROPERTY(QString, numSeparators, NumSeparators, NumSeparators)
    /// The same in dates; "/" and "." are always among them.
    QUILLGRID_PROPERTY(QString, dateSeparators, DateSeparators, DateSeparators)
    /// The same in times; ":" is always among them.
    QUILLGRID_PROPERTY(QString, timeSeparators, TimeSeparators, TimeSeparators)
    /// What stands for each character of a password; the first character counts.
    QUILLGRID_PROPERTY(QString, passwordChar, PasswordChar, PasswordChar)
    /// The desktop's colours instead of those below.
    QUILLGRID_PROPERTY(bool, useSystemColors, UseSystemColors, UseSystemColors)
    /// Around the rows. Like every colour here it is the default, which follows the palette, when it is set
    /// to an invalid one.
    QUILLGRID_PROPERTY(QColor, backColor, BackColor, BackColor)
    /// Bars of percent cells that are added from now on.
    QUILLGRID_PROPERTY(QColor, fillColor, FillColor, FillColor)
    /// Lines between rows.
    QUILLGRID_PROPERTY(QColor, gridColor, GridColor, Gridcolor)
    /// Beside the rows of a group.
    QUILLGRID_PROPERTY(QColor, groupBoxColor, GroupBoxColor, GroupBoxColor)
    /// Values.
    QUILLGRID_PROPERTY(QColor, cellForeColor, CellForeColor, CellForeColor)
    /// Values that cannot be changed.
    QUILLGRID_PROPERTY(QColor, cellForeColorDisabled, CellForeColorDisabled, CellForeColorDisabled)
    /// Values that were refused.
    QUILLGRID_PROPERTY(QColor, cellForeColorError, CellForeColorError, CellForeColorError)
    /// Behind values.
    QUILLGRID_PROPERTY(QColor, cellBackColor, CellBackColor, CellBackColor)
    /// Behind values that cannot be changed.
    QUILLGRID_PROPERTY(QColor, cellBackColorDisabled, CellBackColorDisabled, CellBackColorDisabled)
    /// Labels.
    QUILLGRID_PROPERTY(QColor, labelForeColor, LabelForeColor, LabelForeColor)
    /// The label of the current cell.
    QUILLGRID_PROPERTY(QColor, labelForeColorFocus, LabelForeColorFocus, LabelForeColorFocus)
    /// Behind labels.
    QUILLGRID_PROPERTY(QColor, labelBackColor, LabelBackColor, LabelBackColor)
    /// Behind the label of the current cell.
    QUILLGRID_PROPERTY(QColor, labelBackColorFocus, LabelBackColorFocus, LabelBackColorFocus)
    /// The edge of the control.
    QUILLGRID_PROPERTY(BorderStyle, borderStyle, BorderStyle, BorderStyle)
    /// Pixels between the two bevels, 0 to 999.
    QUILLGRID_PROPERTY(int, borderWidth, BorderWidth, BorderWidth)
    /// The edge around the rows.
    QUILLGRID_PROPERTY(InnerBevel, bevelInner, BevelInner, BevelInner)
    /// The edge within the border.
    QUILLGRID_PROPERTY(OuterBevel, bevelOuter, BevelOuter, BevelOuter)
    /// Pixels, 0 to 99.
    QUILLGRID_PROPERTY(int, bevelWidth, BevelWidth, BevelWidth)
    /// The caption bar.
    QUILLGRID_PROPERTY(bool, showCaption, ShowCaption, ShowCaption)
    /// In the caption bar.
    QUILLGRID_PROPERTY(bool, showCloseBox, ShowCloseBox, ShowCloseBox)
    /// In the caption bar.
    QUILLGRID_PROPERTY(bool, showMenuBox, ShowMenuBox, ShowMenuBox)
    /// A strip beside the rows of a group.
    QUILLGRID_PROPERTY(bool, showGroupBox, ShowGroupBox, ShowGroupBox)
    /// A box below the rows with the tooltip of the current cell.
    QUILLGRID_PROPERTY(bool, showTips, ShowTips, ShowTips)
    /// Cells stand under the headings of their groups.
    QUILLGRID_PROPERTY(bool, grouped, Grouped, Grouped)
    /// Rows in the order of their captions.
    QUILLGRID_PROPERTY(bool, sorted, Sorted, Sorted)
    /// The country whose holidays the calendar knows.
    QUILLGRID_PROPERTY(HolidayPreset, autoHolidays, AutoHolidays, AutoHolidays)
    /// Kept for the program, like the next two; each cell has flags of its own.
    QUILLGRID_PROPERTY(bool, allowHoliday, AllowHoliday, AllowHoliday)
    /// As `allowHoliday`.
    QUILLGRID_PROPERTY(bool, allowSaturday, AllowSaturday, AllowSaturday)
    /// As `allowHoliday`.
    QUILLGRID_PROPERTY(bool, allowSunday, AllowSunday, AllowSunday)
    /// Holidays count as work days.
    QUILLGRID_PROPERTY(bool, workHoliday, WorkHoliday, WorkHoliday)
    /// Saturdays count as work days.
    QUILLGRID_PROPERTY(bool, workSaturday, WorkSaturday, WorkSaturday)
    /// Sundays count as work days.
    QUILLGRID_PROPERTY(bool, workSunday, WorkSunday, WorkSunday)
    /// In the calendar.
    QUILLGRID_PROPERTY(DayOfWeek, firstDayOfWeek, FirstDayOfWeek, FirstDayOfWeek)
    /// In the calendar.
    QUILLGRID_PROPERTY(FirstWeekOfYear, firstWeekOfYear, FirstWeekOfYear, FirstWeekOfYear)

protected:
    explicit QuillgridProperties(QWidget* parent) : SavedProperties(staticMetaObject, parent) {}

private:
    virtual Quillgrid& Control() const = 0;
    void WriteControl(PropertyBag& bag) const override;
    void ShowControl() override;
};

} // namespace quillgrid::qt
