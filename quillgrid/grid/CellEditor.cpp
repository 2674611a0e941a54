#include "quillgrid/grid/CellEditor.h"

#include "quillgrid/base/Text.h"
#include "quillgrid/grid/CellRules.h"
#include "quillgrid/grid/KeyFilter.h"
#include "quillgrid/grid/Keys.h"

namespace quillgrid {

namespace {

constexpr char32_t Enter = 13;
constexpr char32_t Escape = 27;
constexpr char32_t Space = 32;
constexpr char32_t DeleteCharacter = 127;

/// Keys that move or command and so never begin a completion.
bool IsCommandKey(std::int32_t keyCode) {
    return keyCode == KeyEnter || keyCode == KeyEscape || keyCode == KeyTab || keyCode == KeyBackspace ||
           keyCode == KeyDelete || keyCode == KeyInsert || (keyCode >= KeyPageUp && keyCode <= KeyDown) ||
           (keyCode >= KeyShift && keyCode <= KeyAlt) || (keyCode >= KeyF1 && keyCode <= KeyF12);
}

bool IsPasteKey(std::int32_t keyCode, std::int32_t shift) {
    return (keyCode == KeyInsert && shift == ShiftShift) || (keyCode == KeyV && shift == ShiftControl);
}

} // namespace

bool CellEditor::KeyDown(std::int32_t keyCode, std::int32_t shift) {
    const auto cell = state_.Current;
    if (!state_.UserMode || state_.Terminated) return false;
    if (!cell) return pointer_.KeyDown(keyCode, shift);
    if (!state_.PadOpen) events_.KeyDown(*cell, keyCode, shift);
    if (!state_.IsCurrent(*cell) || keyCode == 0) return true;
    if (pads_.TakeKeys()) return pads_.KeyDown(keyCode, shift);
    return HandleKeyDown(*cell, keyCode, shift);
}

bool CellEditor::HandleKeyDown(const Cell& cell, std::int32_t keyCode, std::int32_t shift) {
    if (pointer_.KeyDown(keyCode, shift)) return true;
    if ((shift & ShiftAlt) != 0) {
        if (keyCode != quillgrid::KeyDown) return false;
        dropDown_.Run();
        return true;
    }
    if (IsPasteKey(keyCode, shift)) return RefusePaste();
    if (keyCode == KeyF4) return PressF4(cell);
    return Move(cell, keyCode, shift);
}

bool CellEditor::Move(const Cell& cell, std::int32_t keyCode, std::int32_t shift) {
    switch (keyCode) {
    case quillgrid::KeyDown: navigator_.NextCell(); return true;
    case quillgrid::KeyUp: navigator_.PreviousCell(); return true;
    case KeyPageDown: navigator_.ByPages(1); return true;
    case KeyPageUp: navigator_.ByPages(-1); return true;
    case KeyLeft:
    case KeyRight: return MoveSideways(cell, keyCode == KeyRight);
    case KeyTab: return (shift & ShiftControl) == 0 && navigator_.NextByTab((shift & ShiftShift) != 0);
    case KeyHome:
    case KeyEnd: return MoveToEnd(cell, keyCode, shift);
    default: return false;
    }
}

/// The caret moves in text only. Beside the group margin the keys fold groups, towards the rows to expand.
bool CellEditor::MoveSideways(const Cell& cell, bool right) {
    if (!IsHeading(cell)) return cell.Style() != qgcsText;
    if (!state_.Settings.ShowGroupBox) return false;
    folding_.SetExpanded(cell, right != state_.Layout.LabelsRight);
    return true;
}

bool CellEditor::MoveToEnd(const Cell& cell, std::int32_t keyCode, std::int32_t shift) {
    if (IsTyped(cell) && seat_.IsSeated() && (shift & ShiftControl) == 0) return false;
    if (keyCode == KeyHome) {
        navigator_.FirstRow();
    } else {
        navigator_.LastRow();
    }
    return true;
}

bool CellEditor::PressF4(const Cell& cell) {
    if (cell.Button() == qgbtNone && cell.ValidationRule() != qgvrBoolean) return false;
    if (cell.Button() == qgbtNone) {
        dropDown_.Toggle();
    } else {
        dropDown_.Run();
    }
    return true;
}

bool CellEditor::PasteAllowed() const {
    const auto& cell = state_.Current;
    return cell && IsTyped(*cell) && cell->ValidationRule() == qgvrNone &&
           IsEditable(*cell, state_.Settings.UserLevel);
}

bool CellEditor::RefusePaste() {
    return !PasteAllowed() && Refuse();
}

bool CellEditor::Refuse() {
    events_.Beep();
    return true;
}

bool CellEditor::KeyPress(char32_t& character) {
    const auto cell = state_.Current;
    if (!cell || !state_.UserMode || state_.Terminated) return false;
    character = events_.KeyPress(*cell, character);
    if (!state_.IsCurrent(*cell) || character == 0) return true;
    if (pads_.TakeKeys()) {
        pads_.KeyPress(character);
        return true;
    }
    return HandleCharacter(cell, character);
}

bool CellEditor::HandleCharacter(const std::shared_ptr<Cell>& cell, char32_t& character) {
    if (character == Enter) {
        PressEnter();
        return true;
    }
    if (character == Escape) {
        PressEscape(cell);
        return true;
    }
    if (character < Space || character == DeleteCharacter) return false; // editing commands of the box
    if (IsHeading(*cell)) return true;
    return IsListOrBoolean(*cell) ? TypeIntoList(*cell, character) : TypeIntoText(*cell, character);
}

void CellEditor::PressEnter() {
    if (state_.Settings.AllowEnter) {
        navigator_.NextCell();
    } else {
        commit_.CommitInPlace();
    }
}

void CellEditor::PressEscape(const std::shared_ptr<Cell>& cell) {
    if (!state_.Settings.AllowEscape || !IsEditable(*cell, state_.Settings.UserLevel)) return;
    cell->Undo();
    seat_.Refill();
    cell->Refresh();
}

bool CellEditor::TypeIntoList(const Cell& cell, char32_t character) {
    if (character == Space) {
        dropDown_.Run();
    } else if (cell.Style() == qgcsList) {
        stepper_.SelectByTyping(character);
    } else {
        events_.Beep();
    }
    return true;
}

bool CellEditor::TypeIntoText(const Cell& cell, char32_t& character) {
    if (character == Space && PressSpace(cell)) return true;
    if (!IsEditable(cell, state_.Settings.UserLevel)) return Refuse();
    const std::string filter = KeyFilterOf(cell, commit_.Context().Separators, locale_);
    if (!filter.empty() && !ContainsIgnoreCase(filter, character))
        return stepper_.Step(character) || Refuse();
    if (IsFull(cell)) return Refuse();
    if (GoesToFront(cell, character)) return PutMinusInFront();
    if (filter.empty() && cell.CharCase() != qgccNone) character = InCaseOf(cell, character);
    return false;
}

char32_t CellEditor::InCaseOf(const Cell& cell, char32_t character) const {
    const std::string text = seat_.Text();
    return CaseOf(character, cell.CharCase(), FirstCharacters(text, seat_.Box().SelectionStart()));
}

bool CellEditor::PressSpace(const Cell& cell) {
    if (cell.Template() != qgctEuro && !IsAllSelected()) return false;
    if (cell.Button() != qgbtNone) dropDown_.Run();
    return true;
}

bool CellEditor::GoesToFront(const Cell& cell, char32_t character) const {
    const ValidationRuleConstants rule = cell.ValidationRule();
    const bool fraction = rule == qgvrCurrency || rule == qgvrEuro || rule == qgvrDouble;
    return character == U'-' && fraction && seat_.Box().SelectionStart() != 0;
}

bool CellEditor::PutMinusInFront() {
    const std::string text = seat_.Text();
    if (text.find('-') == std::string::npos) {
        seat_.Box().SetText("-" + text);
        seat_.Box().Select(CharacterCount(text) + 1, 0);
    }
    return true;
}

bool CellEditor::IsFull(const Cell& cell) const {
    const auto most = static_cast<std::size_t>(cell.MaxLength() > 0 ? cell.MaxLength() : 0);
    if (seat_.Box().SelectionLength() != 0) return false;
    // A long text that is pasted comes here with each of its characters: it is counted only near the limit.
    return seat_.Box().LengthAtMost() > most && CharacterCount(seat_.Text()) > most;
}

bool CellEditor::IsAllSelected() const {
    return !seat_.IsSeated() || seat_.Box().SelectionLength() >= CharacterCount(seat_.Text());
}

void CellEditor::KeyUp(std::int32_t keyCode, std::int32_t shift) {
    const auto cell = state_.Current;
    if (!cell || !state_.UserMode || state_.Terminated) return;
    if (!state_.PadOpen) events_.KeyUp(*cell, keyCode, shift);
    if (!state_.IsCurrent(*cell)) return;
    if (pads_.TakeKeys()) return pads_.KeyUp(keyCode, shift);
    if (MayComplete(*cell, keyCode, shift)) Complete(*cell);
}

bool CellEditor::MayComplete(const Cell& cell, std::int32_t keyCode, std::int32_t shift) const {
    return shift == ShiftNone && keyCode != 0 && !IsCommandKey(keyCode) && IsTyped(cell) &&
           cell.ValidationRule() == qgvrNone && seat_.IsSeatedOn(cell) &&
           IsEditable(cell, state_.Settings.UserLevel);
}

void CellEditor::Complete(const Cell& cell) {
    const std::string typed = seat_.Text();
    if (typed.empty()) return;
    for (const auto& entry : cell.Listitems()) {
        if (!StartsWithIgnoreCase(entry->Text(), typed)) continue;
        const std::size_t count = CharacterCount(typed);
        const std::size_t whole = CharacterCount(entry->Text());
        const std::size_t caret = whole == count ? 0 : count;
        seat_.Box().SetText(entry->Text());
        seat_.Box().Select(caret, whole - caret);
        return;
    }
}

} // namespace quillgrid
