#include "quillgrid/grid/Quillgrid.h"

#include "quillgrid/cells/CellAccess.h"
#include "quillgrid/cells/LanguageTexts.h"
#include "quillgrid/grid/GridCore.h"
#include "quillgrid/resources/StringTable.h"

#include <algorithm>
#include <limits>

namespace quillgrid {

namespace {

// The calls hold the core by value: a handler may destroy the control before they return.
using Core = std::shared_ptr<GridCore>;

} // namespace

Quillgrid::Quillgrid(const GridPorts& ports) : core_(std::make_shared<GridCore>(ports, *this)) {
    core_->State.Self = core_;
}

Quillgrid::~Quillgrid() {
    Terminate();
}

void Quillgrid::InitProperties() {
    const Core core = core_;
    core->Lifecycle.InitProperties();
}

void Quillgrid::ReadProperties(const PropertyBag& bag) {
    const Core core = core_;
    core->Lifecycle.ReadProperties(bag);
}

void Quillgrid::WriteProperties(PropertyBag& bag) const {
    core_->Lifecycle.WriteProperties(bag);
}

void Quillgrid::Terminate() {
    const Core core = core_;
    core->Terminate();
}

void Quillgrid::AmbientChanged(std::string_view name) {
    const Core core = core_;
    core->Setter.AmbientChanged(name);
}

std::shared_ptr<class Cell> Quillgrid::Add(CellArguments arguments) {
    const Core core = core_;
    const FlagGuard silent(core->State.Silent, true, false);
    try {
        return core->Cells.Add(std::move(arguments));
    } catch (const std::exception&) {
        throw RaiseControlError(qgerrUserDefined, "Quillgrid.add method");
    }
}

void Quillgrid::AddGroup(const GroupArguments& arguments) {
    const Core core = core_;
    core->Groups.Add(arguments);
}

class Cells& Quillgrid::Cells() {
    return core_->Cells;
}

class Groups& Quillgrid::Groups() {
    return core_->Groups;
}

class ImageList& Quillgrid::ImageList() {
    return core_->ImageList;
}

CurrencyConverter* Quillgrid::Euro() const {
    return core_->Ports().Currencies;
}

class Properties& Quillgrid::Properties() {
    return *core_->GridSheet();
}

Canvas& Quillgrid::hdc() {
    return core_->Ports().Window.Drawing();
}

void Quillgrid::PaintPicture(const Picture& picture, const PicturePlacement& placement) {
    hdc().PlacePicture(picture, placement);
}

void Quillgrid::About() {
    const Core core = core_;
    core->Ports().Container.ShowAbout({"Quillgrid", QUILLGRID_VERSION, "MIT"});
}

class Cell* Quillgrid::Cell() const {
    const GridState& state = core_->State;
    return state.Working ? state.Working : state.Current.get();
}

std::string Quillgrid::CurrentGroup() const {
    return core_->State.CurrentGroup;
}

void Quillgrid::Clear() {
    const Core core = core_;
    core->Cells.Clear();
    core->Groups.Clear();
}

void Quillgrid::Refresh() {
    const Core core = core_;
    core->Refresher.Refresh();
}

void Quillgrid::Update() {
    const Core core = core_;
    core->AcceptAll();
    core->Refresher.Refresh();
}

void Quillgrid::Undo() {
    const Core core = core_;
    core->UndoAll();
    core->Refresher.Refresh();
}

bool Quillgrid::Changed() const {
    return std::any_of(core_->Cells.begin(), core_->Cells.end(),
                       [](const auto& cell) { return cell->Changed(); });
}

void Quillgrid::SetChanged(bool changed) {
    for (const auto& cell : core_->Cells) {
        CellAccess::SetChanged(*cell, changed);
        CellAccess::SetErrorCode(*cell, qgErrNone);
    }
}

bool Quillgrid::Valid() const {
    return std::all_of(core_->Cells.begin(), core_->Cells.end(),
                       [](const auto& cell) { return cell->ErrorCode() == qgErrNone; });
}

bool Quillgrid::Silent() const {
    return core_->State.Silent;
}

void Quillgrid::SetSilent(bool silent) {
    core_->State.Silent = silent;
}

std::string Quillgrid::ErrorMessage(std::int32_t errorCode) const {
    const auto text = StoredText(errorCode);
    if (!text) throw RaiseControlError(qgerrUserDefined, "Quillgrid.ErrorMessage Method");
    return std::string(*text);
}

void Quillgrid::LoadRecord(const Record& record) {
    const Core core = core_;
    core->Records.LoadRecord(record);
}

void Quillgrid::AddNew() {
    const Core core = core_;
    core->Records.AddNew();
}

bool Quillgrid::CommitEdit() {
    const Core core = core_;
    return core->Commit.CommitInPlace() != CommitResult::Cancelled;
}

// The host calls inward.

void Quillgrid::Resize() {
    const Core core = core_;
    core->Refresher.Resize();
}

void Quillgrid::Paint(Canvas& canvas, const Rect& dirty) {
    core_->Painter.Paint(canvas, dirty);
}

bool Quillgrid::KeyDown(std::int32_t keyCode, std::int32_t shift) {
    const Core core = core_;
    return core->Editor.KeyDown(keyCode, shift);
}

bool Quillgrid::KeyPress(char32_t& character) {
    const Core core = core_;
    return core->Editor.KeyPress(character);
}

void Quillgrid::KeyUp(std::int32_t keyCode, std::int32_t shift) {
    const Core core = core_;
    core->Editor.KeyUp(keyCode, shift);
}

void Quillgrid::SetLocale(const Locale& locale) {
    const Core core = core_;
    core->SetLocale(locale);
}

const Locale& Quillgrid::UserLocale() const {
    return core_->UserLocale();
}

void Quillgrid::SetTabPolicy(TabPolicy policy) {
    core_->State.Tab = policy;
}

void Quillgrid::MouseDown(Point position) {
    const Core core = core_;
    core->Mouse.Press(position);
}

void Quillgrid::MouseUp(Point position) {
    const Core core = core_;
    core->Mouse.Release(position);
}

void Quillgrid::MouseMove(Point position, bool buttonHeld) {
    const Core core = core_;
    core->Mouse.Move(position, buttonHeld);
}

void Quillgrid::MouseLeave() {
    const Core core = core_;
    core->Mouse.Leave();
}

bool Quillgrid::AccessKeyPress(char32_t key) {
    const Core core = core_;
    return core->Keys.Press(key);
}

bool Quillgrid::MayDrop(Point position) const {
    return core_->Drops.Takes(position);
}

bool Quillgrid::DropText(Point position, std::string_view text) {
    const Core core = core_;
    return core->Drops.Drop(position, text);
}

bool Quillgrid::DropFiles(Point position, const std::vector<std::string>& names) {
    return !names.empty() && DropText(position, names.front());
}

void Quillgrid::DoubleClick(Point) {
    const Core core = core_;
    core->Mouse.DoubleClick();
}

void Quillgrid::MouseWheel(std::int32_t rows) {
    const std::int64_t first = std::int64_t{FirstVisibleRow()} + rows;
    ScrollTo(static_cast<std::int32_t>(
        std::clamp<std::int64_t>(first, 1, std::numeric_limits<std::int32_t>::max())));
}

bool Quillgrid::HasCloseBox() const {
    return !core_->State.Layout.CloseBox.IsEmpty();
}

bool Quillgrid::HasMenuBox() const {
    return !core_->State.Layout.MenuBox.IsEmpty();
}

void Quillgrid::HidePads() {
    const Core core = core_;
    if (!core->State.Terminated) core->Pads.Hide();
}

bool Quillgrid::IsPadShown() const {
    return core_->Pads.Shown().has_value();
}

void Quillgrid::ScrollTo(std::int32_t firstVisibleRow) {
    const Core core = core_;
    if (firstVisibleRow != FirstVisibleRow()) HidePads();
    core->Navigator.ScrollTo(firstVisibleRow);
}

void Quillgrid::FocusGained() {
    const Core core = core_;
    core->FocusGained();
}

void Quillgrid::FocusLost() {
    const Core core = core_;
    core->FocusLost();
}

bool Quillgrid::PasteAllowed() const {
    return core_->Editor.PasteAllowed();
}

bool Quillgrid::HoldsTypedText() const {
    return core_->Seat.IsEdited();
}

Rect Quillgrid::ValueArea(const class Cell& cell) const {
    return core_->State.ValueArea(core_->State.RowOf(cell));
}

std::int32_t Quillgrid::RowCount() const {
    return core_->State.RowCount();
}

std::int32_t Quillgrid::CurrentRow() const {
    return core_->State.CurrentRow;
}

std::int32_t Quillgrid::FirstVisibleRow() const {
    return core_->State.FirstVisible;
}

std::int32_t Quillgrid::VisibleRows() const {
    return core_->State.Layout.VisibleRows;
}

class Cell* Quillgrid::RowCell(std::int32_t row) const {
    return core_->State.RowCell(row).get();
}

Size Quillgrid::MinimumSize() const {
    return MinimumSizeOf(core_->State.Settings);
}

} // namespace quillgrid
