#include "quillgrid/base/Text.h"
#include "quillgrid/grid/Keys.h"
#include "quillgrid/hosts/headless/MemoryBag.h"
#include "tests/monkey/MonkeyForm.h"
#include "tests/monkey/Picks.h"

#include <algorithm>
#include <stdexcept>

namespace quillgrid::monkey {

using headless::FocusPlace;
using headless::HeadlessHost;

namespace {

/// The sheet of the cells writes numbers that are the control's own: seldom, as not much can be checked then.
bool MayWrite(MonkeyForm& form, std::string_view name, std::uint32_t pick) {
    if (!EqualIgnoreCase(name, "Index") && !EqualIgnoreCase(name, "ErrorCode")) return true;
    if (pick % 64 == 0) form.NoteFakedNumbers();
    return pick % 64 == 0;
}

/// A record that has most fields, and whose reading a handler may disturb.
class AnyRecord : public Record {
public:
    AnyRecord(MonkeyForm& form, std::uint32_t pick) : form_(form), pick_(pick) {}
    std::optional<Variant> Field(std::string_view name) const override {
        form_.Fire(Hook::FieldRead);
        if (!MayWrite(form_, name, pick_)) return std::nullopt;
        const std::uint32_t mixed = Mixed(pick_, static_cast<std::uint32_t>(HashIgnoreCase(name)));
        return mixed % 4 == 0 ? std::nullopt : std::optional(AnyValue(mixed / 4));
    }

private:
    MonkeyForm& form_;
    std::uint32_t pick_;
};

constexpr CellTemplateConstants Templates[] = {qgctNone,
                                               qgctInteger,
                                               qgctCurrency,
                                               qgctEuro,
                                               qgctDate,
                                               qgctTime,
                                               qgctPassword,
                                               qgctboolean,
                                               qgctColor,
                                               qgctFile,
                                               qgctSalutation,
                                               qgctPrinter,
                                               qgctImagelist,
                                               qgctFont,
                                               qgctPhone,
                                               qgctPhone2,
                                               qgctlist,
                                               qgctwww,
                                               qgctFax,
                                               qgctEmail,
                                               qgctSpin,
                                               qgctPercent,
                                               qgctCombo,
                                               qgctSysColor,
                                               qgctNumber,
                                               qgctGroup,
                                               static_cast<CellTemplateConstants>(77),
                                               static_cast<CellTemplateConstants>(-1)};
constexpr std::uint32_t TemplateCount = std::size(Templates);
constexpr std::int32_t ManyCells = 60;

std::string KeyFor(std::uint32_t pick) {
    return pick % 4 == 0 ? AnyText(pick / 4) : "key" + std::to_string(pick / 4 % 90);
}

// The user's hands.

/// What the host's edit box does with a character that the control let through.
void IntoBox(HeadlessHost& host, char32_t character) {
    if (host.Focus != FocusPlace::EditBox || !host.Box.Visible) return;
    if (character == KeyBackspace) {
        host.Box.Backspace();
    } else if (character >= U' ') {
        host.Box.Insert(character);
    }
}

void Character(MonkeyForm& form, char32_t character, std::int32_t code, std::int32_t shift) {
    if (!form.Grid()->KeyDown(code, shift) && form.Grid() && !form.Grid()->KeyPress(character))
        IntoBox(form.Host(), character);
    if (form.Grid()) form.Grid()->KeyUp(code, shift);
}

void TypeAct(MonkeyForm& form, const Step& step) {
    Character(form, AnyCharacter(step.A), step.B % 8 == 0 ? AnyKeyCode(step.C) : 190, ShiftNone);
}

void TypeTextAct(MonkeyForm& form, const Step& step) {
    std::string text = AnyText(step.A).substr(0, 12);
    for (std::string_view left = text; !left.empty() && form.Grid();) {
        const DecodedCharacter next = DecodeFirst(left);
        left.remove_prefix(next.Bytes);
        Character(form, next.Character, 190, ShiftNone);
    }
}

void KeyAct(MonkeyForm& form, const Step& step) {
    const std::int32_t code = AnyKeyCode(step.A);
    const bool makesCharacter =
        code == KeyEnter || code == KeyEscape || code == KeyBackspace || code == KeySpace;
    if (makesCharacter) return Character(form, static_cast<char32_t>(code), code, AnyShift(step.B));
    form.Grid()->KeyDown(code, AnyShift(step.B));
    if (form.Grid()) form.Grid()->KeyUp(code, AnyShift(step.B));
}

void KeyUpAct(MonkeyForm& form, const Step& step) {
    form.Grid()->KeyUp(AnyKeyCode(step.A), AnyShift(step.B));
}

/// What most cells refuse.
void WrongAct(MonkeyForm& form, const Step& step) {
    constexpr const char* Wrong[] = {"31.02.2026", "99:99", "1-2-3", "x", "99999999999999999999", "12"};
    HeadlessHost& host = form.Host();
    if (host.Focus == FocusPlace::Outside) host.EnterControl();
    const auto cell = form.Grid() ? form.CellFor(step.C) : nullptr;
    if (cell && cell->ValidationRule() != qgvrNone) cell->SetFocus();
    if (!form.Grid() || !host.Box.Visible || host.Box.CurrentLook.ReadOnly) return;
    host.Box.SetText(Wrong[step.A % std::size(Wrong)]);
    constexpr std::int32_t Leaving[] = {KeyEnter, quillgrid::KeyDown, KeyTab, quillgrid::KeyUp};
    const std::int32_t key = Leaving[step.B % std::size(Leaving)];
    if (key == KeyEnter) return Character(form, static_cast<char32_t>(key), key, ShiftNone);
    form.Grid()->KeyDown(key, ShiftNone);
}

void ComposeAct(MonkeyForm& form, const Step& step) {
    if (!form.Grid()->PasteAllowed()) return;
    char32_t character = AnyCharacter(step.A);
    if (!form.Grid()->KeyPress(character) && form.Grid()) IntoBox(form.Host(), character);
}

void EditAct(MonkeyForm& form, const Step& step) {
    HeadlessHost& host = form.Host();
    if (!host.Box.Visible || host.Box.CurrentLook.ReadOnly) return;
    host.Box.SetText(RepairUtf8(AnyText(step.A)));
    host.Box.Select(step.B % 12, step.C % 12);
}

void SelectAct(MonkeyForm& form, const Step& step) {
    form.Host().Box.Select(step.A % 12, step.B % 4 == 0 ? 999 : step.C % 5);
}

/// Where there is something to hit: images, buttons, caption boxes; or anywhere.
Point Target(MonkeyForm& form, std::uint32_t pick) {
    const Size size = form.Host().Surface.Inner;
    const std::uint32_t rest = pick / 8;
    const auto cell = form.CellFor(rest);
    const Rect value = cell ? form.Grid()->ValueArea(*cell) : Rect{};
    const auto offset = static_cast<std::int32_t>(Mixed(rest, 7) % 14) + 1;
    switch (pick % 8) {
    case 0: return {std::max(size.Width, 0) - 8 - 2 * offset, 9 + offset / 2};
    case 1: return {9 + offset, 9 + offset / 2};
    case 2: return value.IsEmpty() ? Point{5, 5} : Point{value.Left + offset, value.Top + offset};
    case 3: return value.IsEmpty() ? Point{9, 9} : Point{value.Right - offset, value.Top + offset};
    default: return AnyPoint(rest, size);
    }
}

void PressAct(MonkeyForm& form, const Step& step) {
    HeadlessHost& host = form.Host();
    if (host.Focus == FocusPlace::Outside && step.B % 8 != 0) {
        host.Focus = FocusPlace::Surface;
        form.Grid()->FocusGained();
    }
    if (!form.Grid()) return;
    host.Clock.Held.Left = step.B % 4 != 3;
    form.Grid()->MouseDown(Target(form, step.A));
}

void ReleaseAct(MonkeyForm& form, const Step& step) {
    form.Host().Clock.Held = {.Left = false, .Right = step.B % 8 == 0};
    form.Grid()->MouseUp(Target(form, step.A));
}

void MoveAct(MonkeyForm& form, const Step& step) {
    if (step.B % 8 == 0) return form.Grid()->MouseLeave();
    form.Grid()->MouseMove(Target(form, step.A), step.B % 2 == 0);
}

void DoubleClickAct(MonkeyForm& form, const Step& step) {
    form.Grid()->DoubleClick(AnyPoint(step.A, form.Host().Surface.Inner));
}

/// Drops something down for a cell, which may get another button for it.
void DropDownAct(MonkeyForm& form, const Step& step) {
    if (form.Host().Focus == FocusPlace::Outside) form.Host().EnterControl();
    const auto cell = form.Grid() ? form.CellFor(step.A) : nullptr;
    if (!cell) return;
    if (step.B % 4 == 0) cell->SetButton(static_cast<ButtonStyleConstants>(step.C % 8));
    cell->SetFocus();
    if (form.Grid()) form.Grid()->KeyDown(KeyF4, ShiftNone);
}

/// The mouse on the pad that shows.
void PadAct(MonkeyForm& form, const Step& step) {
    headless::FakePads& pads = *form.Host().Pads;
    const auto number = static_cast<std::int32_t>(step.A % 31) + 1;
    if (pads.WindowOf(PadKind::List).IsShown()) {
        if (step.B % 4 == 0) return pads.Listpad().MouseMove(pads.MiddleOfRow(number % 7), false);
        form.Host().ClickRow(number % 7);
    } else if (pads.WindowOf(PadKind::Date).IsShown()) {
        if (step.B % 4 != 0) return form.Host().ClickDay(number);
        form.Host().Clock.Held.Left = step.C % 2 == 0;
        pads.DatePad().MouseDown(AnyPoint(step.C, {200, 200}));
    } else if (pads.WindowOf(PadKind::Calc).IsShown()) {
        form.Host().ClickKey(number % 24 + 1);
    }
}

void WheelAct(MonkeyForm& form, const Step& step) {
    form.Grid()->MouseWheel(step.B % 2 == 0 ? AnyNumber(step.A) : static_cast<std::int32_t>(step.A % 7) - 3);
}

void ScrollAct(MonkeyForm& form, const Step& step) {
    form.Grid()->ScrollTo(AnyNumber(step.A));
}

void WaitAct(MonkeyForm& form, const Step& step) {
    form.Host().Clock.Advance(static_cast<std::int32_t>(step.A % 600));
}

void EnterAct(MonkeyForm& form, const Step&) {
    form.Host().EnterControl();
}

void LeaveAct(MonkeyForm& form, const Step&) {
    form.Host().LeaveControl();
}

void AccessKeyAct(MonkeyForm& form, const Step& step) {
    const std::u32string keys = form.Host().Site.AccessKeys;
    const bool known = !keys.empty() && step.B % 4 != 0;
    form.Grid()->AccessKeyPress(known ? keys[step.A % keys.size()] : AnyCharacter(step.A));
}

void DropAct(MonkeyForm& form, const Step& step) {
    const Point point = AnyPoint(step.A, form.Host().Surface.Inner);
    form.Grid()->MayDrop(point);
    if (step.C % 4 == 0) {
        form.Grid()->DropFiles(point, {AnyText(step.B), "second"});
    } else {
        form.Grid()->DropText(point, AnyText(step.B));
    }
}

void ResizeAct(MonkeyForm& form, const Step& step) {
    form.Host().Surface.MayResize = step.B % 4 != 0;
    form.Host().ResizeTo(AnySize(step.A));
}

void PaintAct(MonkeyForm& form, const Step& step) {
    const auto near = [](std::int32_t coordinate) { return coordinate % (1 << 25); };
    const Point from = AnyPoint(step.A, form.Host().Surface.Inner);
    const Point to = AnyPoint(step.B, form.Host().Surface.Inner);
    form.PaintArea({near(from.X), near(from.Y), near(to.X), near(to.Y)});
}

// The program's calls.

CellArguments ArgumentsFor(const Step& step) {
    CellArguments arguments{.Key = step.A % 3 == 0 ? "" : KeyFor(step.A / 3)};
    if (step.B % 4 == 0) arguments.Index = AnyNumber(step.C);
    if (step.B % 3 != 0) arguments.Caption = Variant(AnyText(step.B));
    if (step.B % 5 != 0) arguments.Value = AnyValue(step.C);
    arguments.CellTemplate = Templates[Mixed(step.A, 5) % TemplateCount];
    if (step.C % 6 == 0) arguments.Group = "Group" + std::to_string(step.C / 6 % 4);
    return arguments;
}

void AddAct(MonkeyForm& form, const Step& step) {
    form.OrderTouched();
    if (form.Grid()->Cells().Count() > ManyCells) return form.Grid()->Clear();
    const auto cell = form.Grid()->Add(ArgumentsFor(step));
    form.Remember(cell);
    for (std::uint32_t entry = 0; step.A % 5 == 0 && entry < step.C % 4; ++entry)
        cell->Listitems().Add(
            {.Text = AnyText(Mixed(step.C, entry)), .ItemData = AnyValue(Mixed(step.B, entry))});
}

void AddGroupAct(MonkeyForm& form, const Step& step) {
    form.OrderTouched();
    form.Grid()->AddGroup({.Key = step.A % 3 == 0 ? "" : "Group" + std::to_string(step.A / 3 % 4),
                           .Caption = AnyText(step.B),
                           .Expanded = step.C % 4 != 0});
    form.RememberAll();
}

void RemoveAct(MonkeyForm& form, const Step& step) {
    form.OrderTouched();
    if (step.B % 4 == 0) {
        form.Grid()->Cells().Remove(KeyFor(step.A));
    } else if (step.B % 4 == 1 && form.Grid()->RowCell(form.Grid()->CurrentRow())) {
        const Cell* current = form.Grid()->RowCell(form.Grid()->CurrentRow());
        if (!current->Key().empty()) form.Grid()->Cells().Remove(current->Key());
    } else {
        form.Grid()->Cells().Remove(1 + static_cast<std::int32_t>(step.A % 12));
    }
}

void RemoveGroupAct(MonkeyForm& form, const Step& step) {
    form.OrderTouched();
    form.Grid()->Groups().Remove(1 + static_cast<std::int32_t>(step.A % 4));
}

void ClearAct(MonkeyForm& form, const Step& step) {
    form.OrderTouched();
    if (step.A % 2 == 0) return form.Grid()->Clear();
    form.Grid()->Cells().Clear();
}

void ExpandAct(MonkeyForm& form, const Step& step) {
    if (const auto group = form.Grid()->Groups().Find(1 + static_cast<std::int32_t>(step.A % 4)))
        group->SetExpanded(step.B % 2 == 0);
}

void RefreshAct(MonkeyForm& form, const Step&) {
    form.Grid()->Refresh();
}

void SettleAct(MonkeyForm& form, const Step&) {
    if (!form.Terminated) form.Settle();
}

void UpdateAct(MonkeyForm& form, const Step&) {
    form.Grid()->Update();
}

void UndoAct(MonkeyForm& form, const Step&) {
    form.Grid()->Undo();
}

void CommitAct(MonkeyForm& form, const Step&) {
    form.Grid()->CommitEdit();
}

void ChangedAct(MonkeyForm& form, const Step& step) {
    form.Grid()->SetChanged(step.A % 2 == 0);
}

void LoadRecordAct(MonkeyForm& form, const Step& step) {
    const AnyRecord record(form, step.A);
    if (step.B % 3 != 0) return form.Grid()->LoadRecord(record);
    if (const auto cell = form.CellFor(step.B)) cell->DefineFromDataDictionary(record);
}

void AddNewAct(MonkeyForm& form, const Step&) {
    form.Grid()->AddNew();
}

void LanguageAct(MonkeyForm& form, const Step& step) {
    form.Grid()->SetLanguage(static_cast<LanguageConstants>(AnyNumber(step.A) % 8));
}

void LocaleAct(MonkeyForm& form, const Step& step) {
    constexpr const char* Names[] = {"de-DE", "en-US", "fr-FR", "it-IT"};
    form.OrderTouched(); // texts are sorted as they are written
    form.Grid()->SetLocale(BuiltInLocale(Names[step.A % std::size(Names)]));
}

void CellCountAct(MonkeyForm& form, const Step& step) {
    form.OrderTouched();
    form.Grid()->SetCellCount(step.B % 64 == 0 ? AnyNumber(step.A) : static_cast<std::int32_t>(step.A % 50));
    if (form.Grid()) form.RememberAll();
}

void StyleAct(MonkeyForm& form, const Step& step) {
    form.Grid()->SetStyle(static_cast<StyleConstants>(step.A % 5));
}

/// The current property, by the control's own sheet.
void SetPropertyAct(MonkeyForm& form, const Step& step) {
    auto& sheet = form.Grid()->Properties();
    if (sheet.Count() == 0) return;
    const auto item = sheet.At(1 + step.A % sheet.Size());
    const std::string name = item->Key();
    if (EqualIgnoreCase(name, "CellCount")) return CellCountAct(form, step);
    if (EqualIgnoreCase(name, "Silent")) form.NoteSilence();
    const bool sensible = step.C % 2 == 0;
    sheet.Item(name)->SetValue(sensible ? Variant(static_cast<std::int32_t>(step.B % 3)) : AnyValue(step.B));
}

void ReadPropertyAct(MonkeyForm& form, const Step& step) {
    auto& sheet = form.Grid()->Properties();
    if (sheet.Count() > 0) sheet.Item(sheet.At(1 + step.A % sheet.Size())->Key())->Value();
}

void SetCellPropertyAct(MonkeyForm& form, const Step& step) {
    const auto cell = form.CellFor(step.C);
    const auto sheet = cell ? cell->Properties() : nullptr;
    if (!sheet || sheet->Count() == 0) return;
    form.OrderTouched();
    const auto item = sheet->Item(sheet->At(1 + step.A % sheet->Size())->Key());
    if (!form.Grid() || !MayWrite(form, item->Key(), step.C)) return;
    if (step.C % 4 == 0) {
        item->Value();
    } else {
        item->SetValue(AnyValue(step.B));
    }
}

void SheetAct(MonkeyForm& form, const Step& step) {
    auto& sheet = form.Grid()->Properties();
    switch (step.A % 8) {
    case 0: return sheet.Clear();
    case 1: sheet.Remove(1 + static_cast<std::int32_t>(step.B % 60)); return;
    default: sheet.Add({.Index = AnyNumber(step.B), .Key = KeyFor(step.C)});
    }
}

void ValueAct(MonkeyForm& form, const Step& step) {
    const auto cell = form.CellFor(step.A);
    if (!cell) return;
    switch (step.C % 6) {
    case 0: return cell->SetText(AnyText(step.B));
    case 1: return cell->SetListIndex(AnyNumber(step.B));
    case 2: return cell->SetItemData(AnyValue(step.B));
    case 3: return cell->SetPercentValue(Currency::FromScaled(AnyNumber(step.B)));
    default: cell->SetValue(AnyValue(step.B));
    }
}

void RulesAct(MonkeyForm& form, const Step& step) {
    const auto cell = form.CellFor(step.A);
    if (!cell) return;
    switch (step.C % 12) {
    case 0: return cell->SetMin(AnyValue(step.B));
    case 1: return cell->SetMax(AnyValue(step.B));
    case 2: return cell->SetFormat(AnyText(step.B));
    case 3: return cell->SetUnit(AnyText(step.B));
    case 4: return cell->SetMaxLength(AnyNumber(step.B));
    case 5: return cell->SetCharlist(AnyText(step.B));
    case 6: return cell->SetCharCase(static_cast<CharCaseConstants>(step.B % 7));
    case 7: return cell->SetIncrement(Currency::FromScaled(AnyNumber(step.B)));
    case 8: return cell->SetValidationRule(static_cast<ValidationRuleConstants>(AnyNumber(step.B) % 10));
    case 9: return cell->SetStyle(static_cast<CellStyleConstants>(AnyNumber(step.B) % 5));
    case 10: return cell->SetDefault(AnyValue(step.B));
    default: cell->SetCausesValidation(step.B % 2 == 0);
    }
}

void LookAct(MonkeyForm& form, const Step& step) {
    const auto cell = form.CellFor(step.A);
    if (!cell) return;
    form.OrderTouched();
    const bool flag = step.B % 2 == 0;
    switch (step.C % 14) {
    case 0: return cell->SetVisible(flag);
    case 1: return cell->SetEnabled(flag);
    case 2: return cell->SetDataVisible(flag);
    case 3: return cell->SetLocked(flag);
    case 4: return cell->SetButton(static_cast<ButtonStyleConstants>(AnyNumber(step.B) % 10));
    case 5: return cell->SetAlignment(static_cast<AlignmentConstants>(AnyNumber(step.B)));
    case 6: return cell->SetListImage(AnyValue(step.B));
    case 7: return cell->SetCaption(AnyText(step.B));
    case 8: return cell->SetGroup("Group" + std::to_string(step.B % 5));
    case 9: return cell->SetUserlevelVisible(AnyNumber(step.B));
    case 10: return cell->SetUserLevelDataVisible(AnyNumber(step.B));
    case 11: return cell->SetUserLevelEnabled(AnyNumber(step.B));
    case 12: return cell->SetShowPercent(flag);
    default: cell->SetForeColor(step.B);
    }
}

void ListAct(MonkeyForm& form, const Step& step) {
    const auto cell = form.CellFor(step.A);
    if (!cell) return;
    auto& entries = cell->Listitems();
    if (step.C % 8 == 0) return entries.Clear();
    if (step.C % 8 == 1) return entries.Remove(step.B % 5);
    entries.Add(
        {.Text = AnyText(step.B), .ItemData = AnyValue(step.C), .ListImage = AnyValue(Mixed(step.B, 9))});
}

void DefineAct(MonkeyForm& form, const Step& step) {
    const auto cell = form.CellFor(step.A);
    if (!cell) return;
    form.OrderTouched();
    if (step.C % 8 == 0) return cell->Clear();
    cell->Define({.NewValue = AnyValue(step.B), .NewCellTemplate = Templates[step.C % TemplateCount]});
}

void CellCallAct(MonkeyForm& form, const Step& step) {
    const auto cell = form.CellFor(step.A);
    if (!cell) return;
    switch (step.B % 4) {
    case 0: return cell->Undo();
    case 1: return cell->Refresh();
    default: cell->SetFocus();
    }
}

void SilentAct(MonkeyForm& form, const Step& step) {
    form.NoteSilence();
    form.Grid()->SetSilent(step.A % 4 != 0);
}

void AmbientAct(MonkeyForm& form, const Step& step) {
    form.Host().Site.UnitsPerPixel = step.A % 2 == 0 ? 1 : 15;
    form.Grid()->AmbientChanged(step.B % 4 == 0 ? AnyText(step.C) : "ScaleUnits");
}

/// What a form saved, with some values that it never would.
void ReadBagAct(MonkeyForm& form, const Step& step) {
    headless::MemoryBag bag;
    form.Grid()->WriteProperties(bag);
    std::uint32_t salt = 0;
    for (auto& entry : bag.Entries) {
        const std::uint32_t pick = Mixed(step.A, ++salt);
        if (EqualIgnoreCase(entry.Key, "CellCount")) {
            entry.Value = Variant(static_cast<std::int32_t>(pick % 30));
        } else if (pick % 4 == 0) {
            entry.Value = AnyValue(pick / 4);
        }
    }
    form.OrderTouched();
    form.Grid()->ReadProperties(bag);
    if (form.Grid()) form.RememberAll();
}

void InitAct(MonkeyForm& form, const Step&) {
    form.OrderTouched();
    form.Grid()->InitProperties();
    if (form.Grid()) form.RememberAll();
}

void CalendarAct(MonkeyForm& form, const Step& step) {
    const DateTime day{AnyNumber(step.A), 0};
    form.Grid()->IsWorkDay(day);
    form.Grid()->Dayname(day);
    form.Grid()->SetCalendarDate(day);
    form.Grid()->WorkDayAdd({46000, 0}, AnyNumber(step.B) % 300);
}

void OrdinaryAct(MonkeyForm& form, const Step& step) {
    using Setting = void (Quillgrid::*)(std::int32_t);
    constexpr std::pair<Setting, std::int32_t> Settings[] = {{&Quillgrid::SetUserLevel, 0},
                                                             {&Quillgrid::SetBorderWidth, 4},
                                                             {&Quillgrid::SetBevelWidth, 4},
                                                             {&Quillgrid::SetLabelWidth, 0}};
    for (const auto& [set, number] : Settings) {
        if (form.Grid()) (form.Grid()->*set)(number);
    }
    if (!form.Grid()) return;
    form.Host().Surface.MayResize = true;
    form.Grid()->SetAllowWrap(step.B % 2 == 0);
    form.Grid()->SetTabPolicy(static_cast<TabPolicy>(step.C % 3));
    if (step.A % 2 == 1 && form.Grid()) form.Grid()->SetShowCaption(true);
    if (!form.Grid()) return;
    form.Host().ResizeTo({300, 140});
}

// Hostile deeds and their being armed.

void ArmAct(MonkeyForm& form, const Step& step);

void CancelAct(MonkeyForm& form, const Step& step) {
    form.CancelErrors = step.A % 2 == 0;
    form.CancelValues = step.A % 8 == 0;
}

void ThrowAct(MonkeyForm&, const Step&) {
    throw std::runtime_error("handler");
}

void TerminateAct(MonkeyForm& form, const Step&) {
    form.OrderTouched();
    form.Terminated = true;
    form.Grid()->Terminate();
}

void DestroyAct(MonkeyForm& form, const Step&) {
    form.OrderTouched();
    form.Host().Grid.reset();
}

/// Most new forms have some of everything.
void CreateAct(MonkeyForm& form, const Step& step) {
    form.Create(step);
    if (step.A % 4 == 0 || !form.Grid()) return;
    for (std::uint32_t number = 0; number < 4 + step.B % 24; ++number)
        AddAct(form, {0, 3 * Mixed(step.A, number), Mixed(step.B, number), Mixed(step.C, number)});
    form.Grid()->Refresh();
}

struct Deed {
    const char* Name;
    std::uint32_t Weight;        ///< of the user or the program doing it out of the blue
    std::uint32_t HandlerWeight; ///< of a handler doing it
    void (*Run)(MonkeyForm&, const Step&);
};

const Deed Deeds[] = {
    {"type", 120, 2, TypeAct},
    {"type-text", 40, 2, TypeTextAct},
    {"key", 140, 4, KeyAct},
    {"key-up", 6, 1, KeyUpAct},
    {"compose", 10, 1, ComposeAct},
    {"edit", 14, 2, EditAct},
    {"wrong", 30, 4, WrongAct},
    {"select", 10, 1, SelectAct},
    {"press", 110, 3, PressAct},
    {"release", 40, 2, ReleaseAct},
    {"move", 30, 1, MoveAct},
    {"double-click", 8, 1, DoubleClickAct},
    {"drop-down", 60, 3, DropDownAct},
    {"pad", 60, 3, PadAct},
    {"wheel", 20, 2, WheelAct},
    {"scroll", 14, 3, ScrollAct},
    {"wait", 60, 5, WaitAct},
    {"enter", 40, 2, EnterAct},
    {"leave", 20, 5, LeaveAct},
    {"access-key", 10, 2, AccessKeyAct},
    {"drop", 14, 2, DropAct},
    {"resize", 12, 4, ResizeAct},
    {"paint", 14, 2, PaintAct},
    {"add", 60, 5, AddAct},
    {"add-group", 10, 3, AddGroupAct},
    {"remove", 16, 14, RemoveAct},
    {"remove-group", 3, 2, RemoveGroupAct},
    {"clear", 3, 6, ClearAct},
    {"expand", 6, 2, ExpandAct},
    {"refresh", 10, 10, RefreshAct},
    {"settle", 100, 1, SettleAct},
    {"update", 6, 4, UpdateAct},
    {"undo", 6, 6, UndoAct},
    {"commit", 8, 6, CommitAct},
    {"changed", 4, 2, ChangedAct},
    {"load-record", 8, 6, LoadRecordAct},
    {"add-new", 5, 5, AddNewAct},
    {"language", 4, 2, LanguageAct},
    {"locale", 4, 2, LocaleAct},
    {"cell-count", 2, 2, CellCountAct},
    {"style", 5, 2, StyleAct},
    {"set-property", 40, 6, SetPropertyAct},
    {"read-property", 6, 2, ReadPropertyAct},
    {"set-cell-property", 30, 4, SetCellPropertyAct},
    {"sheet", 2, 1, SheetAct},
    {"value", 20, 6, ValueAct},
    {"rules", 20, 4, RulesAct},
    {"look", 30, 6, LookAct},
    {"list", 16, 4, ListAct},
    {"define", 10, 4, DefineAct},
    {"cell-call", 14, 10, CellCallAct},
    {"silent", 3, 3, SilentAct},
    {"ambient", 3, 1, AmbientAct},
    {"read-bag", 2, 2, ReadBagAct},
    {"init", 1, 1, InitAct},
    {"calendar", 3, 1, CalendarAct},
    {"ordinary", 40, 0, OrdinaryAct},
    {"arm", 220, 4, ArmAct},
    {"cancel", 14, 2, CancelAct},
    {"throw", 0, 8, ThrowAct},
    {"terminate", 1, 1, TerminateAct},
    {"destroy", 1, 2, DestroyAct},
    {"create", 4, 0, CreateAct},
};

/// A handler will do an act once.
void ArmAct(MonkeyForm& form, const Step& step) {
    static const Repertoire inHandlers = [] {
        Repertoire acts;
        for (const Deed& deed : Deeds)
            acts.push_back({deed.Name, deed.HandlerWeight});
        return acts;
    }();
    const auto hook = static_cast<Hook>(step.A % static_cast<std::uint32_t>(Hook::End));
    form.Arm(hook, {ChooseAct(inHandlers, step.B), step.C, Mixed(step.C, 1), Mixed(step.C, 2)});
}

bool NeedsControl(const Deed& deed) {
    return deed.Run != CreateAct && deed.Run != CancelAct && deed.Run != ArmAct && deed.Run != ThrowAct;
}

} // namespace

Repertoire MonkeyForm::Acts() {
    Repertoire acts;
    for (const Deed& deed : Deeds)
        acts.push_back({deed.Name, deed.Weight});
    return acts;
}

void MonkeyForm::Act(const Step& step) {
    const Deed& deed = Deeds[step.Act];
    if (NeedsControl(deed) && !Grid()) return;
    const struct Depth {
        int& Count;
        explicit Depth(int& count) : Count(count) { ++Count; }
        ~Depth() { --Count; }
    } deeper(depth_);
    deed.Run(*this, step);
}

void MonkeyForm::Begin(const Step& step) {
    CreateAct(*this, step);
}

/// Nothing that came before may have left a flag that makes keys, commits or layouts do nothing.
std::string MonkeyForm::Examine() {
    Disarm();
    if (!Grid() || Terminated || !host_->Site.Running) return {};
    OrdinaryAct(*this, {});
    Quillgrid& grid = *Grid();
    grid.SetStyle(qgstDefault);
    grid.SetAllowEnter(true);
    grid.SetShowCaption(false);
    grid.SetShowTips(false);
    grid.Clear();
    const auto first = grid.Add({.Key = "first", .Caption = Variant("First"), .Value = Variant("old")});
    grid.Add({.Key = "second", .Caption = Variant("Second")});
    grid.SetGrouped(false);
    grid.SetSorted(false);
    grid.Refresh();
    if (grid.RowCount() != 2 || grid.Cell() != first.get()) return "afterwards: Refresh shows no rows";
    host_->EnterControl();
    host_->Type("new");
    host_->Press(KeyEnter);
    if (first->Text() != "new") return "afterwards: what is typed is not taken over";
    if (grid.CurrentRow() != 2) return "afterwards: Enter does not go on";
    return {};
}

} // namespace quillgrid::monkey
