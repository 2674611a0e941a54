#pragma once

#include "quillgrid/base/Colour.h"
#include "quillgrid/base/DateTime.h"

#include <string>
#include <utility>

namespace quillgrid {

/// A range of dates that the calendar pad shows in colours of its own. A change shows at the next `Refresh`.
class TimeZone {
public:
    /// Both ends belong to the range, with their times: noon of a `LastDate` at midnight lies behind it. A
    /// range whose ends stand in the wrong order holds no date.
    DateTime FirstDate() const { return first_; }
    void SetFirstDate(DateTime date) { first_ = date; }
    DateTime LastDate() const { return last_; }
    void SetLastDate(DateTime date) { last_ = date; }
    /// Changing it does not change the key under which the collection finds the range. A range without one
    /// is not painted.
    const std::string& Key() const { return key_; }
    void SetKey(std::string key) { key_ = std::move(key); }
    Colour ForeColor() const { return foreColor_; }
    void SetForeColor(Colour colour) { foreColor_ = colour; }
    Colour BackColor() const { return backColor_; }
    void SetBackColor(Colour colour) { backColor_ = colour; }

    bool Contains(DateTime date) const { return first_ <= date && date <= last_; }

private:
    DateTime first_;
    DateTime last_;
    std::string key_;
    Colour foreColor_ = ColourWindowText;
    Colour backColor_ = ColourWindow;
};

} // namespace quillgrid
