#include "quillgrid/hosts/headless/HeadlessHost.h"

#include "quillgrid/base/Text.h"
#include "quillgrid/grid/Keys.h"

namespace quillgrid::headless {

namespace {

std::string NameOf(const Cell& cell) {
    return cell.Key().empty() ? cell.Caption() : cell.Key();
}

/// Letters and digits have the codes of their capitals; other characters share one that commands nothing.
std::int32_t KeyCodeOf(char32_t character) {
    const char32_t upper = ToUpper(character);
    const bool plain = (upper >= U'A' && upper <= U'Z') || (upper >= U'0' && upper <= U'9') || upper == U' ';
    return plain ? static_cast<std::int32_t>(upper) : 190;
}

} // namespace

HeadlessHost::HeadlessHost(Size size, std::string_view locale, bool userMode, const PropertyBag* bag)
    : Pads(std::make_unique<FakePads>(Journal, Clock, locale)) {
    Surface.Inner = size;
    Site.Running = userMode;
    Grid = std::make_unique<Quillgrid>(GridPorts{.Window = Surface,
                                                 .Editor = Box,
                                                 .Bar = Bar,
                                                 .Container = Site,
                                                 .Metrics = Metrics,
                                                 .Time = Clock,
                                                 .Desktop = Theme,
                                                 .UserLocale = BuiltInLocale(locale),
                                                 .Images = &Images,
                                                 .Pads = Pads.get()});
    if (bag) {
        Grid->ReadProperties(*bag);
    } else {
        Grid->InitProperties();
    }
}

HeadlessHost::~HeadlessHost() = default;

void HeadlessHost::RecordEvents() {
    Quillgrid& grid = *Grid;
    grid.ValidateCellError.Listen([this](Cell& cell, ValidationErrConstants& code, bool&) {
        Journal.Note("ValidateCellError " + NameOf(cell) + " " + std::to_string(code));
    });
    grid.ValidateCell.Listen([this](Cell& cell, bool&) { Journal.Note("ValidateCell " + NameOf(cell)); });
    grid.SelChange.Listen([this](Cell& cell) { Journal.Note("SelChange " + NameOf(cell)); });
    grid.Change.Listen([this](Cell& cell) { Journal.Note("Change " + NameOf(cell)); });
    grid.Beep.Listen([this] { Journal.Note("Beep"); });
    grid.KeyPressed.Listen([this](Cell& cell, std::int16_t& key) {
        Journal.Note("KeyPress " + NameOf(cell) + " " + std::to_string(key));
    });
    grid.KeyWentDown.Listen([this](Cell& cell, std::int16_t& key, std::int16_t&) {
        Journal.Note("KeyDown " + NameOf(cell) + " " + std::to_string(key));
    });
    grid.KeyWentUp.Listen([this](Cell& cell, std::int16_t& key, std::int16_t&) {
        Journal.Note("KeyUp " + NameOf(cell) + " " + std::to_string(key));
    });
    grid.LeaveFocus.Listen([this](Cell& cell) { Journal.Note("LeaveFocus " + NameOf(cell)); });
    grid.DropDown.Listen([this](Cell& cell, float x, float y) {
        Journal.Note("DropDown " + NameOf(cell) + " " + std::to_string(static_cast<int>(x)) + "," +
                     std::to_string(static_cast<int>(y)));
    });
    grid.ImageClick.Listen([this](Cell& cell) { Journal.Note("ImageClick " + NameOf(cell)); });
}

void HeadlessHost::EnterControl() {
    Focus = FocusPlace::Surface;
    Grid->FocusGained();
}

void HeadlessHost::LeaveControl() {
    Focus = FocusPlace::Outside;
    Grid->FocusLost();
}

void HeadlessHost::Type(std::string_view text) {
    while (!text.empty()) {
        const DecodedCharacter next = DecodeFirst(text);
        text.remove_prefix(next.Bytes);
        TypeCharacter(next.Character);
    }
}

void HeadlessHost::TypeCharacter(char32_t character) {
    const std::int32_t code = KeyCodeOf(character);
    if (Grid && !Grid->KeyDown(code, 0)) PressCharacter(character);
    if (Grid) Grid->KeyUp(code, 0);
}

bool HeadlessHost::PressCharacter(char32_t character) {
    if (!Grid || Grid->KeyPress(character)) return true;
    if (Focus != FocusPlace::EditBox) return false;
    if (character == KeyBackspace) {
        Box.Backspace();
    } else if (character >= U' ') {
        Box.Insert(character);
    }
    return false;
}

bool HeadlessHost::Press(std::int32_t keyCode, std::int32_t shift) {
    if (!Grid || Grid->KeyDown(keyCode, shift)) return true;
    const bool makesCharacter = keyCode == KeyEnter || keyCode == KeyEscape || keyCode == KeyBackspace;
    const bool used = makesCharacter && PressCharacter(static_cast<char32_t>(keyCode));
    if (Grid) Grid->KeyUp(keyCode, shift);
    return used;
}

void HeadlessHost::ClickRow(std::int32_t rowInView) {
    Pads->Listpad().MouseDown(Pads->MiddleOfRow(rowInView));
    if (Pads) Pads->Listpad().MouseUp();
}

void HeadlessHost::ClickDay(std::int32_t day) {
    const Point point = Pads->MiddleOfDay(day);
    Pads->DatePad().MouseDown(point);
    if (Pads) Pads->DatePad().MouseUp(point);
}

void HeadlessHost::ClickKey(std::int32_t number) {
    Pads->CalcPad().MouseDown(Pads->CornerOfKey(number));
    if (Pads) Pads->CalcPad().MouseUp();
}

RecordingCanvas HeadlessHost::Paint() const {
    return Paint({0, 0, Surface.Inner.Width, Surface.Inner.Height});
}

RecordingCanvas HeadlessHost::Paint(const Rect& area) const {
    RecordingCanvas canvas;
    Grid->Paint(canvas, area);
    return canvas;
}

void HeadlessHost::ResizeTo(Size size) {
    Surface.Inner = size;
    Grid->Resize();
}

} // namespace quillgrid::headless
