#include "quillgrid/grid/MouseController.h"

#include "quillgrid/grid/CellRules.h"

namespace quillgrid {

Hit MouseController::HitAt(Point position) const {
    return HitTest(state_.Layout, state_.FirstVisible, state_.LastVisible(), position);
}

/// What answers the pointer with its look; cells without a button have nothing at its place.
MousePart MouseController::PartAt(const Hit& hit) const {
    switch (hit.Place) {
    case HitPlace::CloseBox: return {MousePart::Kind::CloseBox, 0};
    case HitPlace::MenuBox: return {MousePart::Kind::MenuBox, 0};
    case HitPlace::Strip: {
        const auto cell = state_.RowCell(hit.Row);
        const bool button = cell && !IsHeading(*cell) && cell->Button() != qgbtNone;
        return button ? MousePart{MousePart::Kind::CellButton, hit.Row} : MousePart{};
    }
    default: return {};
    }
}

void MouseController::Press(Point position) {
    if (state_.Terminated || !state_.UserMode) return;
    with_.Spin.Stop(); // the release of the press before may have been lost
    const Hit hit = HitAt(position);
    const bool closing = IsOnButtonOfOpenPad(hit);
    with_.Pads.Hide();
    switch (hit.Place) {
    case HitPlace::Label:
    case HitPlace::Value:
    case HitPlace::Strip: return PressRow(hit, position, closing);
    case HitPlace::GroupMargin: return ToggleGroup(hit.Row);
    case HitPlace::CloseBox:
    case HitPlace::MenuBox: return SetPressed(PartAt(hit));
    default: return;
    }
}

bool MouseController::IsOnButtonOfOpenPad(const Hit& hit) const {
    const auto cell = state_.RowCell(hit.Row);
    return cell && PartAt(hit).Place == MousePart::Kind::CellButton && with_.Pads.BelongsTo(*cell);
}

/// `closing`: the press was on the button whose pad it has just closed, and opens nothing again.
void MouseController::PressRow(const Hit& hit, Point position, bool closing) {
    const auto cell = state_.RowCell(hit.Row);
    const bool onButton = PartAt(hit).Place == MousePart::Kind::CellButton;
    const bool onImage = !onButton && hit.Place != HitPlace::Label && IsOnImage(*cell, hit.Row, position);
    if (!with_.Selector.Select(hit.Row) || !state_.IsCurrent(*cell)) return;
    if (closing) return;
    if (onButton) return PressButton(cell, position);
    if (onImage) PressImage(cell);
}

void MouseController::PressImage(const std::shared_ptr<Cell>& cell) {
    if (cell->ValidationRule() == qgvrBoolean) {
        with_.DropDown.Toggle();
    } else {
        with_.Events.ImageClick(*cell);
    }
}

void MouseController::PressButton(const std::shared_ptr<Cell>& cell, Point position) {
    const Rect area = state_.ValueArea(state_.CurrentRow);
    SetPressed({MousePart::Kind::CellButton, state_.CurrentRow});
    if (cell->Button() == qgbtSpin) {
        with_.Spin.Start(position.Y <= area.Top + area.Height() / 2);
    } else {
        with_.DropDown.Run();
    }
}

bool MouseController::HasGroup(std::int32_t row) const {
    const auto cell = state_.RowCell(row);
    return cell && cell->Template() == qgctGroup;
}

void MouseController::ToggleGroup(std::int32_t row) {
    const auto cell = state_.RowCell(row);
    if (!HasGroup(row) || !with_.Selector.Select(row) || !state_.IsCurrent(*cell)) return;
    with_.Folding.Toggle(*cell);
}

void MouseController::Release(Point position) {
    if (state_.Terminated || !state_.UserMode) return;
    with_.Spin.Stop();
    const Hit hit = HitAt(position);
    const LetGo afterwards(*this); // a menu that a handler opens hangs from a pressed box
    if (hit.Place == HitPlace::CloseBox) ClickCloseBox();
    if (hit.Place == HitPlace::MenuBox) ClickMenuBox();
}

bool MouseController::ClickCloseBox() {
    if (state_.Layout.CloseBox.IsEmpty()) return false;
    with_.Events.CloseBoxClick();
    return true;
}

bool MouseController::ClickMenuBox() {
    const Rect menu = state_.Layout.MenuBox;
    if (menu.IsEmpty()) return false;
    with_.Events.MenuClick(static_cast<float>(site_.ToContainerUnits(menu.Left)),
                           static_cast<float>(site_.ToContainerUnitsVertically(menu.Bottom)));
    return true;
}

bool MouseController::ClickImage() {
    const auto cell = state_.Current;
    if (!cell || IsHeading(*cell) || !PartsOf(*cell, state_.CurrentRow).ImageContent) return false;
    PressImage(cell);
    return true;
}

void MouseController::Move(Point position, bool buttonHeld) {
    if (state_.Terminated || !state_.UserMode) return;
    const Hit hit = HitAt(position);
    const MousePart part = PartAt(hit);
    const bool overGroup = hit.Place == HitPlace::GroupMargin && HasGroup(hit.Row);
    const bool hand = part.Place != MousePart::Kind::None || overGroup;
    window_.SetPointer(hand ? MousePointer::Hand : MousePointer::Default);
    // A box that is pressed keeps the look only while the pointer is on it.
    if (state_.Pressed.Place != MousePart::Kind::CellButton && part != state_.Pressed) SetPressed({});
    SetHot(buttonHeld ? MousePart{} : part);
}

void MouseController::Leave() {
    if (state_.Terminated) return;
    SetHot({});
    window_.SetPointer(MousePointer::Default);
}

void MouseController::SetPressed(const MousePart& part) {
    const MousePart before = std::exchange(state_.Pressed, part);
    if (before == part) return;
    RepaintPart(before);
    RepaintPart(part);
}

void MouseController::SetHot(const MousePart& part) {
    const MousePart before = std::exchange(state_.Hot, part);
    if (before == part) return;
    RepaintPart(before);
    RepaintPart(part);
}

void MouseController::RepaintPart(const MousePart& part) {
    if (state_.Terminated) return;
    const GridLayout& layout = state_.Layout;
    switch (part.Place) {
    case MousePart::Kind::CloseBox: return window_.Invalidate(layout.CloseBox);
    case MousePart::Kind::MenuBox: return window_.Invalidate(layout.MenuBox);
    case MousePart::Kind::CellButton: return with_.Repaint.Row(part.Row);
    default: return;
    }
}

bool MouseController::IsOnImage(const Cell& cell, std::int32_t row, Point position) const {
    if (IsHeading(cell)) return false;
    const ValueLayout parts = PartsOf(cell, row);
    return parts.ImageContent && position.X < state_.ValueArea(row).Left + parts.Image.Width();
}

/// Of a value that may not be seen there is no picture either.
ValueLayout MouseController::PartsOf(const Cell& cell, std::int32_t row) const {
    const bool visible = IsDataVisible(cell, state_.Settings.UserLevel);
    ValueLayout parts = LayOutValue(cell, state_.ValueArea(row), state_.Layout, images_, visible);
    if (!visible) parts.ImageContent = nullptr;
    return parts;
}

void MouseController::DoubleClick() {
    if (!state_.Terminated && state_.UserMode && state_.Current && state_.Current->Button() != qgbtNone) {
        with_.DropDown.Run();
    }
}

} // namespace quillgrid
