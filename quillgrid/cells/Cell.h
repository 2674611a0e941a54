#pragma once

#include "quillgrid/base/Colour.h"
#include "quillgrid/base/Constants.h"
#include "quillgrid/base/Currency.h"
#include "quillgrid/base/Export.h"
#include "quillgrid/base/Variant.h"
#include "quillgrid/cells/CellExtras.h"
#include "quillgrid/cells/CellState.h"
#include "quillgrid/cells/Listitems.h"
#include "quillgrid/cells/OwnerLink.h"
#include "quillgrid/locale/Locale.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace quillgrid {

class Record;

struct DefineArguments {
    std::optional<Variant> NewCaption{}; ///< the present one when not given
    std::optional<Variant> NewValue{};   ///< the stored one when not given
    CellTemplateConstants NewCellTemplate = qgctNone;
    std::string NewGroup{};
};

struct DataArguments {
    Variant NewValue{};
    ValidationRuleConstants NewValidationRule = qgvrNone;
    std::string newFormat{};
    std::int32_t newMaxLength = 50;
    std::optional<Variant> newMin{}; ///< these three stay as they are when not given
    std::optional<Variant> newMax{};
    std::optional<Variant> newDefault{};
    bool newAllowEmpty = true;
};

struct LayoutArguments {
    CellStyleConstants NewStyle = qgcsText;
    std::optional<Variant> newListimage{}; ///< stays as it is when not given
    AlignmentConstants newAlignment = qgalLeftJustify;
    ButtonStyleConstants newButton = qgbtNone;
    CharCaseConstants newCharCase = qgccNone;
};

/// One labelled input row: caption, typed value, the rules that check the value, its look and the access
/// rights. Made by `Cells::Add`. Unless said otherwise a property is only stored and the control sees it when
/// it next paints or refreshes; arguments are not validated.
class QUILLGRID_EXPORT Cell : public std::enable_shared_from_this<Cell> {
public:
    explicit Cell(OwnerLinkReference link = nullptr) : link_(std::move(link)) {}
    Cell(const Cell&) = delete;
    Cell& operator=(const Cell&) = delete;

    // Value and text

    const std::string& Caption() const { return state_.Label.Caption(); }
    void SetCaption(std::string caption) { Edit().Label.SetCaption(std::move(caption)); }
    /// The value in the type of the validation rule; the data of the chosen entry for list and boolean cells;
    /// Null where there is no value or none of that type.
    Variant Value() const;
    /// Converts by the rule, the limits and the list. A value that they reject is not taken, without an
    /// error.
    void SetValue(Variant value);
    /// The value as it is shown.
    const std::string& Text() const { return state_.Text; }
    void SetText(std::string text) { SetValue(Variant(std::move(text))); }
    const std::string& Format() const { return state_.Format; }
    void SetFormat(std::string format);
    /// Currency code or unit after the value; the text follows at once.
    const std::string& Unit() const { return Extras().Unit; }
    void SetUnit(std::string unit);
    /// 100 x value / (Max - Min), 0 when that cannot be computed.
    Currency PercentValue() const;
    /// Limited to 0..100; 0 leaves the value as it is.
    void SetPercentValue(Currency percentage);
    /// Whether the value was changed since the cell was defined or the control last accepted all values.
    bool Changed() const { return state_.Changed; }

    // Rules

    ValidationRuleConstants ValidationRule() const { return state_.Rule; }
    void SetValidationRule(ValidationRuleConstants rule);
    /// Characters; limits free text only. Negative counts as 0.
    std::int32_t MaxLength() const { return state_.MaxLength; }
    void SetMaxLength(std::int32_t characters) { Edit().MaxLength = characters; }
    const Variant& Min() const { return Extras().Min; }
    void SetMin(Variant bound) {
        SetRare(&CellExtras::Min, bound.IsEmpty() ? Variant::Null() : std::move(bound));
    }
    const Variant& Max() const { return Extras().Max; }
    void SetMax(Variant bound) { SetRare(&CellExtras::Max, std::move(bound)); }
    const Variant& Default() const { return Extras().Default; }
    void SetDefault(Variant value) { SetRare(&CellExtras::Default, std::move(value)); }
    bool AllowEmpty() const { return state_.AllowEmpty; }
    void SetAllowEmpty(bool allow) { Edit().AllowEmpty = allow; }
    /// The characters that input may have, in any case; empty allows all.
    const std::string& Charlist() const { return Extras().Charlist; }
    void SetCharlist(std::string characters) { SetRare(&CellExtras::Charlist, std::move(characters)); }
    CharCaseConstants CharCase() const { return state_.CharCase; }
    void SetCharCase(CharCaseConstants charCase) { Edit().CharCase = charCase; }
    bool CausesValidation() const { return state_.CausesValidation; }
    void SetCausesValidation(bool validate) { Edit().CausesValidation = validate; }
    /// Code of the last failed validation, 0 when there is none.
    ValidationErrConstants ErrorCode() const { return state_.ErrorCode; }
    /// Step of the spin button.
    Currency Increment() const { return Extras().Increment; }
    void SetIncrement(Currency step) { SetRare(&CellExtras::Increment, step); }
    bool AllowHoliday() const { return allowHoliday_; }
    void SetAllowHoliday(bool allow) {
        Edit();
        allowHoliday_ = allow;
    }
    bool AllowSaturday() const { return allowSaturday_; }
    void SetAllowSaturday(bool allow) {
        Edit();
        allowSaturday_ = allow;
    }
    bool AllowSunday() const { return allowSunday_; }
    void SetAllowSunday(bool allow) {
        Edit();
        allowSunday_ = allow;
    }

    // List

    /// The entries; made on the first call.
    class Listitems& Listitems();
    const class Listitems& Listitems() const;
    /// Position of the chosen entry, -1 when none was chosen.
    std::int32_t ListIndex() const { return state_.ListIndex; }
    /// Chooses an entry; positions that do not exist change nothing.
    void SetListIndex(std::int32_t index);
    const Variant& ItemData() const { return Extras().ItemData; }
    /// For a list-style cell the same as `SetValue`.
    void SetItemData(Variant data);

    // Look

    CellTemplateConstants Template() const { return state_.Template; }
    CellStyleConstants Style() const { return state_.Style; }
    void SetStyle(CellStyleConstants style);
    AlignmentConstants Alignment() const { return state_.Alignment; }
    void SetAlignment(AlignmentConstants alignment) { Edit().Alignment = alignment; }
    ButtonStyleConstants Button() const { return state_.Button; }
    void SetButton(ButtonStyleConstants button) { Edit().Button = button; }
    /// Key of an image in the control's image list; Null or an unknown key shows none.
    const Variant& ListImage() const { return Extras().ListImage; }
    void SetListImage(Variant key) { SetRare(&CellExtras::ListImage, std::move(key)); }
    const std::string& TooltipText() const { return Extras().TooltipText; }
    void SetTooltipText(std::string text) { SetRare(&CellExtras::TooltipText, std::move(text)); }
    Colour ForeColor() const { return state_.ForeColor; }
    void SetForeColor(Colour colour);
    bool FontBold() const { return state_.FontBold; }
    void SetFontBold(bool bold);
    bool FontItalic() const { return state_.FontItalic; }
    void SetFontItalic(bool italic);
    /// Colour of the percent bar.
    Colour FillColor() const { return Extras().FillColor; }
    void SetFillColor(Colour colour) { SetRare(&CellExtras::FillColor, colour); }
    bool ShowPercent() const { return state_.ShowPercent; }
    void SetShowPercent(bool show) { Edit().ShowPercent = show; }
    /// Width of the value area in pixels, from layout.
    std::int32_t Width() const { return state_.ValueArea.Width(); }

    // Place and access

    /// Position in `Cells`; after a sort the place in the display order.
    std::int32_t Index() const { return index_; }
    const std::string& Key() const { return key_; }
    const std::string& Group() const { return state_.Group; }
    /// Another key (in any case) makes the control regroup.
    void SetGroup(std::string key);
    bool Visible() const { return state_.Visible; }
    void SetVisible(bool visible) { Edit().Visible = visible; }
    bool Enabled() const { return state_.Enabled; }
    void SetEnabled(bool enabled) { Edit().Enabled = enabled; }
    bool DataVisible() const { return state_.DataVisible; }
    void SetDataVisible(bool visible) { Edit().DataVisible = visible; }
    bool Locked() const { return state_.Locked; }
    void SetLocked(bool locked) { Edit().Locked = locked; }
    /// The least user level that sees the cell, sees its data, may change it.
    std::int32_t UserlevelVisible() const { return Extras().UserlevelVisible; }
    void SetUserlevelVisible(std::int32_t level) { SetRare(&CellExtras::UserlevelVisible, level); }
    std::int32_t UserLevelDataVisible() const { return Extras().UserLevelDataVisible; }
    void SetUserLevelDataVisible(std::int32_t level) { SetRare(&CellExtras::UserLevelDataVisible, level); }
    std::int32_t UserLevelEnabled() const { return Extras().UserLevelEnabled; }
    void SetUserLevelEnabled(std::int32_t level) { SetRare(&CellExtras::UserLevelEnabled, level); }

    // For the host

    std::int32_t HelpContextID() const { return Extras().HelpContextID; }
    void SetHelpContextID(std::int32_t id) { SetRare(&CellExtras::HelpContextID, id); }
    std::int32_t WhatsThisHelpID() const { return Extras().WhatsThisHelpID; }
    void SetWhatsThisHelpID(std::int32_t id) { SetRare(&CellExtras::WhatsThisHelpID, id); }
    /// Anything, objects too.
    const Variant& tag() const { return Extras().Tag; }
    void Settag(Variant value) { SetRare(&CellExtras::Tag, std::move(value)); }
    /// Where the value comes from; kept for the host's data layer.
    const std::string& RecordSource() const { return Binding().RecordSource; }
    void SetRecordSource(std::string name) { SetBinding(&DataBinding::RecordSource, std::move(name)); }
    const std::string& ForeignSource() const { return Binding().ForeignSource; }
    void SetForeignSource(std::string name) { SetBinding(&DataBinding::ForeignSource, std::move(name)); }
    const std::string& ForeignKey() const { return Binding().ForeignKey; }
    void SetForeignKey(std::string name) { SetBinding(&DataBinding::ForeignKey, std::move(name)); }
    const std::string& ForeignField() const { return Binding().ForeignField; }
    void SetForeignField(std::string name) { SetBinding(&DataBinding::ForeignField, std::move(name)); }
    const std::string& ForeignIndex() const { return Binding().ForeignIndex; }
    void SetForeignIndex(std::string name) { SetBinding(&DataBinding::ForeignIndex, std::move(name)); }

    // Methods

    /// Applies a template. What the template does not name stays as it was (a unit, a character list, an
    /// image): `Clear` first to start afresh. Error 20099 when a step fails.
    void Define(DefineArguments arguments = {});
    void DefineData(DataArguments arguments);
    void DefineLayout(LayoutArguments arguments);
    void DefineRestrictions(std::int32_t newUserlevelVisible, std::int32_t newUserLevelDataVisible,
                            std::int32_t newUserLevelEnabled);
    /// Resets everything but index, key, control and the allowed days; caption and list are empty afterwards.
    void Clear();
    /// Returns to the value at the last definition or accepted update.
    void Undo();
    /// Paints the row again, unless the control is silent.
    void Refresh();
    /// Makes this the current cell.
    void SetFocus();

    /// The property sheet that all cells of a control share: its items act on the control's current cell,
    /// whichever cell they were asked of. Null for a cell without a control.
    std::shared_ptr<class Properties> Properties() const;
    /// Sets the properties of the control's current cell from the fields of the same names; fields that are
    /// missing or do not fit are passed over. The control's Silent is false afterwards.
    void DefineFromDataDictionary(const Record& record);

private:
    friend class CellAccess;
    friend class CellDefinition;

    CellOwner* Owner() const { return link_ ? link_->Owner : nullptr; }
    const Locale& UserLocale() const;
    const CellExtras& Extras() const { return extras_ ? *extras_ : CellExtras::Defaults(); }
    CellExtras& WritableExtras();
    /// The state, about to be changed by the host: a sample cell becomes one of its own.
    CellState& Edit() {
        state_.Sample = false;
        return state_;
    }
    /// As `SetValue`, by the control itself.
    void AssignValue(Variant value);
    // For those who keep the cell alive and the control silent.
    void ApplyData(DataArguments&& arguments);
    /// As `SetValue`; afterwards this is the value to return to.
    void DefineValue(Variant&& value);
    void AssignKept(Variant&& value);
    const DataBinding& Binding() const;
    void SetBinding(std::string DataBinding::*field, std::string name);
    /// Defaults take no memory.
    template <typename Field>
    void SetRare(Field CellExtras::*field, Field value) {
        Edit();
        if (!extras_ && value == CellExtras::Defaults().*field) return;
        WritableExtras().*field = std::move(value);
    }

    bool IsList() const { return state_.Style == qgcsList; }
    bool IsBoolean() const { return state_.Rule == qgvrBoolean; }
    std::optional<Variant> Accept(Variant value);
    std::optional<Variant> AcceptBoolean(const Variant& value);
    std::optional<Variant> AcceptEntry(Variant value);
    std::optional<Variant> AcceptInput(Variant value);
    void Take(std::optional<Variant> accepted);
    void StoreValue(Variant value);
    void SetChanged(bool changed);
    double Range() const;
    std::string EntryText(std::int32_t position) const;
    std::string MakeText() const;
    void RefreshText();

    OwnerLinkReference link_;
    std::unique_ptr<CellExtras> extras_;
    std::int32_t index_ = 0;
    CellState state_;
    std::string key_;
    bool allowHoliday_ = true;
    bool allowSaturday_ = true;
    bool allowSunday_ = true;
};

} // namespace quillgrid
