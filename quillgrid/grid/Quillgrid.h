#pragma once

#include "quillgrid/base/ControlError.h"
#include "quillgrid/base/Export.h"
#include "quillgrid/base/Rect.h"
#include "quillgrid/base/Variant.h"
#include "quillgrid/calendar/Holidays.h"
#include "quillgrid/cells/Cell.h"
#include "quillgrid/cells/Cells.h"
#include "quillgrid/cells/Groups.h"
#include "quillgrid/cells/ImageList.h"
#include "quillgrid/cells/Properties.h"
#include "quillgrid/grid/GridPorts.h"
#include "quillgrid/grid/PublishedEvents.h"
#include "quillgrid/grid/TabPolicy.h"
#include "quillgrid/platform/Canvas.h"
#include "quillgrid/platform/PropertyBag.h"
#include "quillgrid/platform/Record.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace quillgrid {

class GridCore;

/// The control: a vertical list of labelled cells, one of them edited at a time.
class QUILLGRID_EXPORT Quillgrid : public PublishedEvents {
public:
    /// Creates what the control owns. The ports must outlive it. One of InitProperties and ReadProperties
    /// follows; nothing is laid out or painted before.
    explicit Quillgrid(const GridPorts& ports);
    /// Terminates.
    ~Quillgrid();
    Quillgrid(const Quillgrid&) = delete;
    Quillgrid& operator=(const Quillgrid&) = delete;

    /// Starts a new control: every property has its default, one sample cell is shown.
    void InitProperties();
    /// Starts a control with what a form saved: sample cells take the place of all cells. Always completes;
    /// what the bag lacks, or holds in an unusable form, gets its default.
    void ReadProperties(const PropertyBag& bag);
    /// Saves every persisted property with its default.
    void WriteProperties(PropertyBag& bag) const;
    /// Releases everything; no event comes and no port is called from then on.
    void Terminate();
    /// A property of the container has changed. "ScaleUnits" (in any case) makes LabelWidth be reported and
    /// the control be laid out.
    void AmbientChanged(std::string_view name);

    /// Adds a cell; fails with 20099 (nothing added) when the key is taken. Silent is false afterwards.
    std::shared_ptr<class Cell> Add(CellArguments arguments);
    /// Adds a group and its heading row; fails with 20093 when the key is taken.
    void AddGroup(const GroupArguments& arguments);
    class Cells& Cells();
    class Groups& Groups();
    /// The host's images.
    class ImageList& ImageList();
    /// The host's currencies; those of a host that has none are the euro and what it replaced.
    CurrencyConverter* Euro() const;
    /// The control's property sheet: `Properties().Item("Caption")->Value()`. Writing a value that cannot be
    /// converted is error 20099 ("Property:Value Property Let").
    class Properties& Properties();
    // The calendar. Each question first takes over the AllowHoliday, AllowSaturday and AllowSunday of the
    // current cell and the control's own settings, and loads the rules of AutoHolidays anew: rules and
    // enabled states of the host's own last until then. Dates lie in the years 100 to 9999; one outside
    // counts as the nearest inside.

    /// Whether a day is worked on.
    bool IsWorkDay(DateTime date);
    /// Work days from `date1` to `date2`, both included; 0 when `date1` is the later one. CalendarDate
    /// becomes `date1`, here and below.
    std::int32_t WorkDayDiff(DateTime date1, DateTime date2);
    /// The date so many work days after (before) `date1`, which itself does not count and keeps its time.
    DateTime WorkDayAdd(DateTime date1, std::int32_t days);
    /// The name of a day's holiday, or of its weekday; date 0 means CalendarDate.
    std::string Dayname(DateTime date);
    DateTime CalendarDate() const;
    /// Goes to the nearest day that may be picked.
    void SetCalendarDate(DateTime date);
    std::shared_ptr<class Holidays> Holidays() const;
    void SetHolidays(std::shared_ptr<class Holidays> rules);
    /// Keeps which of the preset's rules are `Enabled` now, beyond the next question.
    void SaveHolidays();
    /// What `WriteProperties` does not save of the calendar, in a bag of its own: the rules of each preset
    /// that are on, and the looks of the calendar that drops down.
    void WriteCalendar(PropertyBag& bag) const;
    /// What the bag lacks gets its default, what it holds in an unusable form stays as it is.
    void ReadCalendar(const PropertyBag& bag);
    /// Days from which holidays may be counted. Setting one is error 382 while a form designer shows the
    /// control.
    DateTime UserDate1() const;
    void SetUserDate1(DateTime date);
    DateTime UserDate2() const;
    void SetUserDate2(DateTime date);
    DateTime UserDate3() const;
    void SetUserDate3(DateTime date);

    /// The canvas of the control's window, for drawing at any moment; the control paints over it when that
    /// part of it changes.
    Canvas& hdc();
    /// Draws a picture on the control's window, pixels from the top left; what is left out of the placement
    /// is the drawing service's default.
    void PaintPicture(const Picture& picture, const PicturePlacement& placement);
    /// A small window with name, version and licence.
    void About();
    /// The current cell, null when there is none.
    class Cell* Cell() const;
    /// Key of the group added or selected last.
    std::string CurrentGroup() const;
    /// Removes all cells and groups; repaints nothing.
    void Clear();
    /// Sorts where needed, lays out and repaints. Does nothing within itself.
    void Refresh();
    /// Accepts all values (they become the undo values), then refreshes.
    void Update();
    /// Takes all values back to their undo values, then refreshes.
    void Undo();
    bool Changed() const;
    void SetChanged(bool changed);
    /// False when a cell has an error code.
    bool Valid() const;
    bool Silent() const;
    void SetSilent(bool silent);
    /// The message of a validation code; any number of the string table works, another one is error 20099.
    std::string ErrorMessage(std::int32_t errorCode) const;
    /// Fills every cell from the field of its key's name; Null empties the cell. Silent is false afterwards.
    void LoadRecord(const Record& record);
    /// Gives every cell its default, unchanged, for a new record.
    void AddNew();
    /// Takes over what is being typed; false when a handler cancelled (the user must stay in the cell).
    bool CommitEdit();

    // Properties. A setter stores, tells the container and, while a form designer shows the control,
    // refreshes; at run time the change is seen after the next Refresh.

    /// Labels.
    quillgrid::Font Font() const;
    void SetFont(const quillgrid::Font& font);
    /// Values.
    quillgrid::Font CellFont() const;
    void SetCellFont(const quillgrid::Font& font);
    /// The caption bar; bold in a new control.
    quillgrid::Font CaptionFont() const;
    void SetCaptionFont(const quillgrid::Font& font);
    /// Text of the caption bar; a new control takes its name in the container.
    std::string Caption() const;
    void SetCaption(std::string_view text);
    /// Tooltip where no cell has its own.
    std::string TooltipText() const;
    void SetTooltipText(std::string_view text);
    /// Language of texts and messages; numbers beyond the five speak German. Setting it fills the lists of
    /// cells that speak a language anew; their values stay.
    LanguageConstants Language() const;
    void SetLanguage(LanguageConstants number);
    /// Form or property list. Anything but 0 and 1 is error 20099 ("Quillgrid: Style Method"); another style
    /// starts at the first row.
    StyleConstants Style() const;
    void SetStyle(StyleConstants number);
    /// Raised, flat, or flat until the mouse is over them: the cell buttons.
    AppearanceConstants Appearance() const;
    void SetAppearance(AppearanceConstants number);
    /// Labels on the left (0) or the right (1); limited to these.
    AlignmentConstants Alignment() const;
    void SetAlignment(AlignmentConstants number);
    /// In units of the container; 0, and what is below, measures the captions.
    std::int32_t LabelWidth() const;
    void SetLabelWidth(std::int32_t number);
    /// How many cells there are as of the last Refresh. Setting it (1..1000) replaces all cells and groups by
    /// as many sample cells, at run time too.
    std::int32_t CellCount() const;
    void SetCellCount(std::int32_t number);
    /// What the access levels of the cells are compared with.
    std::int32_t UserLevel() const;
    void SetUserLevel(std::int32_t number);
    /// Enter goes to the next row.
    bool AllowEnter() const;
    void SetAllowEnter(bool flag);
    /// Moving past an end goes on at the other one; otherwise LeaveFocus is raised.
    bool AllowWrap() const;
    void SetAllowWrap(bool flag);
    /// Escape takes back what was typed.
    bool AllowEscape() const;
    void SetAllowEscape(bool flag);
    /// Characters that count as separators in typed numbers. A missing "," then a missing "." is put in
    /// front.
    std::string NumSeparators() const;
    void SetNumSeparators(std::string_view text);
    /// A missing "/" then a missing "." is put in front.
    std::string DateSeparators() const;
    void SetDateSeparators(std::string_view text);
    /// A missing ":" is put in front.
    std::string TimeSeparators() const;
    void SetTimeSeparators(std::string_view text);
    /// The first character counts; an empty text means "*".
    std::string PasswordChar() const;
    void SetPasswordChar(std::string_view text);
    /// The desktop's colours instead of the control's own.
    bool UseSystemColors() const;
    void SetUseSystemColors(bool flag);
    /// Also the colour of the control's window.
    Colour BackColor() const;
    void SetBackColor(Colour colour);
    Colour CellForeColor() const;
    void SetCellForeColor(Colour colour);
    Colour CellForeColorDisabled() const;
    void SetCellForeColorDisabled(Colour colour);
    Colour CellForeColorError() const;
    void SetCellForeColorError(Colour colour);
    Colour CellBackColor() const;
    void SetCellBackColor(Colour colour);
    Colour CellBackColorDisabled() const;
    void SetCellBackColorDisabled(Colour colour);
    Colour LabelForeColor() const;
    void SetLabelForeColor(Colour colour);
    Colour LabelForeColorFocus() const;
    void SetLabelForeColorFocus(Colour colour);
    Colour LabelBackColor() const;
    void SetLabelBackColor(Colour colour);
    Colour LabelBackColorFocus() const;
    void SetLabelBackColorFocus(Colour colour);
    Colour Gridcolor() const;
    void SetGridcolor(Colour colour);
    Colour GroupBoxColor() const;
    void SetGroupBoxColor(Colour colour);
    /// Percent bars of cells that are defined from now on.
    Colour FillColor() const;
    void SetFillColor(Colour colour);
    BorderStyleConstants BorderStyle() const;
    void SetBorderStyle(BorderStyleConstants number);
    /// Pixels; limited to 0..999.
    std::int32_t BorderWidth() const;
    void SetBorderWidth(std::int32_t number);
    /// Pixels; limited to 0..99.
    std::int32_t BevelWidth() const;
    void SetBevelWidth(std::int32_t number);
    BevelInnerConstants BevelInner() const;
    void SetBevelInner(BevelInnerConstants number);
    BevelOuterConstants BevelOuter() const;
    void SetBevelOuter(BevelOuterConstants number);
    /// The caption bar.
    bool ShowCaption() const;
    void SetShowCaption(bool flag);
    /// In the caption bar.
    bool ShowCloseBox() const;
    void SetShowCloseBox(bool flag);
    /// In the caption bar.
    bool ShowMenuBox() const;
    void SetShowMenuBox(bool flag);
    bool ShowGroupBox() const;
    void SetShowGroupBox(bool flag);
    /// A box below the rows with the tooltip of the current cell.
    bool ShowTips() const;
    void SetShowTips(bool flag);
    /// Cells stand under the headings of their groups.
    bool Grouped() const;
    void SetGrouped(bool flag);
    /// Rows in the order of their captions.
    bool Sorted() const;
    void SetSorted(bool flag);
    /// The country whose holidays the calendar knows.
    AutoHolidayConstants AutoHolidays() const;
    void SetAutoHolidays(AutoHolidayConstants number);
    /// Kept for the host; each cell has flags of its own.
    bool AllowHoliday() const;
    void SetAllowHoliday(bool flag);
    bool AllowSaturday() const;
    void SetAllowSaturday(bool flag);
    bool AllowSunday() const;
    void SetAllowSunday(bool flag);
    DayOfWeekConstants FirstDayOfWeek() const;
    void SetFirstDayOfWeek(DayOfWeekConstants number);
    FirstWeekOfYearConstants FirstWeekOfYear() const;
    void SetFirstWeekOfYear(FirstWeekOfYearConstants number);
    /// Holidays count as work days.
    bool WorkHoliday() const;
    void SetWorkHoliday(bool flag);
    bool WorkSaturday() const;
    void SetWorkSaturday(bool flag);
    bool WorkSunday() const;
    void SetWorkSunday(bool flag);

    // The host calls inward.

    /// The surface has another size.
    void Resize();
    /// Paints what lies in `dirty`.
    void Paint(Canvas& canvas, const Rect& dirty);
    /// Each key comes here before the edit box sees it. True: it was used up and must not reach the edit box.
    bool KeyDown(std::int32_t keyCode, std::int32_t shift);
    /// True: used up. Otherwise the (possibly changed) character goes on to the edit box.
    bool KeyPress(char32_t& character);
    /// After the edit box has handled the key.
    void KeyUp(std::int32_t keyCode, std::int32_t shift);
    /// How values are read and shown from now on. What is being typed is taken over first.
    void SetLocale(const Locale& locale);
    const Locale& UserLocale() const;
    /// Where Tab leads; a host's own choice, saved with no form.
    void SetTabPolicy(TabPolicy policy);
    /// Left button.
    void MouseDown(Point position);
    /// Left button.
    void MouseUp(Point position);
    void MouseMove(Point position, bool buttonHeld);
    /// The pointer left the surface.
    void MouseLeave();
    /// In the edit box.
    void DoubleClick(Point position);
    /// An access key that was told to the container was pressed: the first row that has it becomes current.
    /// False when none has it, or when the user must stay.
    bool AccessKeyPress(char32_t key);
    /// Whether the cell under the point would take a drop.
    bool MayDrop(Point position) const;
    /// Gives the cell under the point a text, as if it had been typed; false when it was not taken.
    bool DropText(Point position, std::string_view text);
    /// The same with the first of the file names.
    bool DropFiles(Point position, const std::vector<std::string>& names);
    /// Closes what is dropped down. A host does so when the window moves, goes or is no longer the active
    /// one, and when the user presses a button somewhere else.
    void HidePads();
    /// Whether keys go to a pad now: a host keeps its own shortcuts back then.
    bool IsPadShown() const;
    /// Scrolls by rows (positive: down); never edits.
    void MouseWheel(std::int32_t rows);
    /// The scroll bar's value, 1-based; the bar is set back when a handler keeps the user in the cell.
    void ScrollTo(std::int32_t firstVisibleRow);
    /// Control or edit box received the focus from outside.
    void FocusGained();
    /// The focus left the control and its edit box.
    void FocusLost();

    // What a host asks.

    /// Whether a paste, a drop or composed text may go into the edit box; hosts beep otherwise.
    bool PasteAllowed() const;
    /// Whether the edit box holds a text of the user's that the cell has not taken yet.
    bool HoldsTypedText() const;
    /// Where the cell's value stands on the surface; empty when it is out of view.
    Rect ValueArea(const class Cell& cell) const;
    std::int32_t RowCount() const;
    /// 1-based; 0 without rows.
    std::int32_t CurrentRow() const;
    std::int32_t FirstVisibleRow() const;
    /// Whether the caption bar shows these boxes now: their keys are the control's then.
    bool HasCloseBox() const;
    bool HasMenuBox() const;
    /// Whole rows that fit.
    std::int32_t VisibleRows() const;
    /// The cell of a row (1-based), null outside.
    class Cell* RowCell(std::int32_t row) const;
    Size MinimumSize() const;

private:
    std::shared_ptr<GridCore>
        core_; // shared with the calls under way, so that a handler may destroy the control
};

} // namespace quillgrid
