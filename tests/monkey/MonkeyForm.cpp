#include "tests/monkey/MonkeyForm.h"

#include "tests/monkey/CheckingCanvas.h"
#include "tests/monkey/Picks.h"

#include <algorithm>

namespace quillgrid::monkey {

using headless::FocusPlace;
using headless::HeadlessHost;

namespace {

constexpr int DeepestHandler = 3;
/// Steps on a control that has ended.
constexpr int EnoughTerminated = 12;

const char* const Locales[] = {"de-DE", "en-US", "fr-FR", "de-CH"};

} // namespace

MonkeyForm::MonkeyForm() {
    Create({});
}

MonkeyForm::~MonkeyForm() {
    Disarm();
}

void MonkeyForm::Create(const Step& step) {
    Disarm();
    const bool userMode = step.B % 8 != 7;
    if (host_ && depth_ > 1) return; // the host of a handler that still runs must stay
    host_ = std::make_unique<HeadlessHost>(Size{300, 120}, Locales[step.A % std::size(Locales)], userMode);
    timersNoted_ = 0;
    for (const char* image : {"checked", "unchecked", "phone", "fax", "www"})
        host_->Images.Add(image);
    host_->Site.UnitsPerPixel = step.C % 4 == 3 ? 15 : 1;
    seen_.clear();
    Terminated = false;
    stepsTerminated_ = 0;
    silenced_ = false;
    faked_ = false;
    OrderTouched();
    Listen();
    RememberAll();
}

void MonkeyForm::Disarm() {
    armed_.clear();
    CancelErrors = false;
    CancelValues = false;
}

void MonkeyForm::Listen() {
    Quillgrid& grid = *Grid();
    grid.ValidateCellError.Listen([this](Cell&, ValidationErrConstants&, bool& cancel) {
        cancel = CancelErrors;
        Fire(Hook::ValidateCellError);
    });
    grid.ValidateCell.Listen([this](Cell&, bool& cancel) {
        cancel = CancelValues;
        Fire(Hook::ValidateCell);
    });
    grid.SelChange.Listen([this](Cell&) { Fire(Hook::SelChange); });
    grid.Change.Listen([this](Cell&) { Fire(Hook::Change); });
    grid.Beep.Listen([this] { Fire(Hook::Beep); });
    grid.KeyPressed.Listen([this](Cell&, std::int16_t&) { Fire(Hook::KeyPress); });
    grid.KeyWentDown.Listen([this](Cell&, std::int16_t&, std::int16_t&) { Fire(Hook::KeyDown); });
    grid.KeyWentUp.Listen([this](Cell&, std::int16_t&, std::int16_t&) { Fire(Hook::KeyUp); });
    grid.LeaveFocus.Listen([this](Cell&) { Fire(Hook::LeaveFocus); });
    grid.ImageClick.Listen([this](Cell&) { Fire(Hook::ImageClick); });
    grid.DropDown.Listen([this](Cell&, float, float) { Fire(Hook::DropDown); });
    grid.CloseBoxClick.Listen([this] { Fire(Hook::CloseBoxClick); });
    grid.MenuClick.Listen([this](float, float) { Fire(Hook::MenuClick); });
    grid.Properties().SelChange.Listen([this](Property& item) {
        item.Changed.Listen([this](const std::string&, Variant&) { Fire(Hook::ItemWritten); });
        item.QueryValue.Listen([this](const std::string&, Variant&) { Fire(Hook::ItemRead); });
        Fire(Hook::ItemFetched);
    });
    host_->Site.OnChanged = [this](std::string_view) { Fire(Hook::PropertyChanged); };
    host_->Surface.Resized = [this] {
        if (Grid()) Grid()->Resize();
        Fire(Hook::SurfaceResized);
    };
}

std::shared_ptr<Cell> MonkeyForm::CellFor(std::uint32_t pick) {
    const auto count = static_cast<std::uint32_t>(Grid()->Cells().Count());
    return count == 0 ? nullptr : Grid()->Cells().At(1 + pick % count);
}

void MonkeyForm::Fire(Hook hook) {
    const auto found = armed_.find(hook);
    if (found == armed_.end() || found->second.empty() || depth_ >= DeepestHandler || !Grid()) return;
    const Step step = found->second.back();
    found->second.pop_back();
    Act(step);
}

void MonkeyForm::Run(const Step& step) {
    host_->Journal.Clear();
    host_->Surface.Invalid.clear();
    host_->Site.Reported.clear();
    host_->Box.Inks.clear();
    const bool gone = !Grid() || (Terminated && ++stepsTerminated_ > EnoughTerminated);
    try {
        if (gone) Begin({0, step.C, step.A, step.B});
        Act(step);
    } catch (const std::exception&) { // thrown by a handler, or because an act asked for what is not there
    }
    NoteTimers();
}

void MonkeyForm::Complain(std::string what) {
    if (complaint_.empty()) complaint_ = std::move(what);
}

void MonkeyForm::RememberAll() {
    for (const auto& cell : Grid()->Cells())
        seen_.push_back(cell);
}

void MonkeyForm::NoteTimers() {
    const std::uint64_t started = host_->Clock.Started();
    if (Grid() && started != timersNoted_ && Grid()->RowCell(Grid()->CurrentRow()))
        waiting_ = Grid()->RowCell(Grid()->CurrentRow())->weak_from_this();
    timersNoted_ = started;
}

void MonkeyForm::Settle() {
    const std::uint64_t before = orderStamp_;
    host_->Surface.Invalid.clear();
    Grid()->Refresh();
    if (!Grid() || Terminated) return;
    if (depth_ == 1 && host_->Surface.Invalid.empty()) Complain("Refresh does nothing any more");
    if (depth_ == 1 && before == orderStamp_) settledStamp_ = before;
    RememberAll();
    if (depth_ > 1) return; // within a Refresh this one did nothing
    PaintArea({0, 0, host_->Surface.Inner.Width, host_->Surface.Inner.Height});
    if (host_->Bar.Visible && host_->Bar.Value != Grid()->FirstVisibleRow())
        Complain("the scroll bar stands elsewhere than the rows");
}

void MonkeyForm::PaintArea(const Rect& area) {
    CheckingCanvas canvas(host_->Surface.Inner);
    Grid()->Paint(canvas, area);
    if (!canvas.Complaint().empty()) Complain("painting: " + canvas.Complaint());
}

std::string MonkeyForm::Check() {
    if (!complaint_.empty()) return complaint_;
    if (!Grid() || Terminated) return CheckDead();
    for (const auto check : {&MonkeyForm::CheckCurrent, &MonkeyForm::CheckRows, &MonkeyForm::CheckBox,
                             &MonkeyForm::CheckTimers, &MonkeyForm::CheckView, &MonkeyForm::CheckPads}) {
        std::string wrong = (this->*check)();
        if (!wrong.empty()) return wrong;
    }
    silenced_ = Grid()->Silent();
    return orderStamp_ == settledStamp_ ? "" : CheckForgotten();
}

std::string MonkeyForm::CheckCurrent() {
    const Quillgrid& grid = *Grid();
    const Cell* current = grid.Cell();
    if (current != grid.RowCell(grid.CurrentRow()))
        return "the current cell is not the cell of the current row";
    if (!current) return grid.CurrentRow() == 0 ? "" : "a current row without a cell";
    const auto& cells = Grid()->Cells();
    const bool present = std::any_of(cells.begin(), cells.end(),
                                     [current](const auto& cell) { return cell.get() == current; });
    return present ? "" : "the current cell is none of the control's";
}

std::string MonkeyForm::CheckRows() {
    const Quillgrid& grid = *Grid();
    if (grid.Silent() && !silenced_) return "Silent did not end";
    for (const auto& cell : Grid()->Cells()) {
        if (cell->ErrorCode() != qgErrNone && !faked_) return "an error code stays";
    }
    if (grid.RowCount() > Grid()->Cells().Count()) return "more rows than cells";
    if (orderStamp_ != settledStamp_ || faked_) return {};
    for (std::int32_t row = 1; row <= grid.RowCount(); ++row) {
        if (grid.RowCell(row)->Index() != row) return "Index is not the row";
    }
    return {};
}

std::string MonkeyForm::CheckBox() {
    const auto& box = host_->Box;
    if (host_->Focus == FocusPlace::EditBox && !box.Visible) return "a hidden edit box has the focus";
    if (!box.Visible) return {};
    const Cell* cell = Grid()->Cell();
    if (!cell) return "an edit box without a cell";
    const Rect value = Grid()->ValueArea(*cell);
    const bool inside = box.Area.Left >= value.Left &&
                        box.Area.Right <= std::max(value.Right, box.Area.Left) && box.Area.Top >= value.Top &&
                        box.Area.Bottom <= std::max(value.Bottom, box.Area.Top);
    return inside ? "" : "the edit box is not over the current row";
}

std::string MonkeyForm::CheckTimers() {
    if (host_->Clock.Waiting() == 0) return {};
    if (host_->Clock.Waiting() > 3) return "more timers wait than buttons can be held";
    return waiting_.expired() ? "a timer waits for a cell that is gone" : "";
}

std::string MonkeyForm::CheckView() {
    const Quillgrid& grid = *Grid();
    const std::int32_t first = grid.FirstVisibleRow();
    if (first < 1 || first > std::max(grid.RowCount(), 1)) return "the first row in view does not exist";
    if (grid.VisibleRows() < 0) return "less than no rows in view";
    return {};
}

std::string MonkeyForm::CheckPads() {
    const int shown = host_->Pads->ShownWindows();
    if (shown > 1) return "more than one pad shows";
    if (shown == 1 && !Grid()->IsPadShown()) return "a pad shows that the control knows nothing of";
    return shown == 1 && !Grid()->RowCell(Grid()->CurrentRow()) ? "a pad without a cell" : "";
}

std::string MonkeyForm::CheckForgotten() {
    host_->Pads->ForgetCells();
    std::vector<const Cell*> present;
    for (const auto& cell : Grid()->Cells())
        present.push_back(cell.get());
    std::sort(present.begin(), present.end());
    std::erase_if(seen_, [](const auto& cell) { return cell.expired(); });
    const bool gone = std::all_of(seen_.begin(), seen_.end(), [&present](const auto& cell) {
        return std::binary_search(present.begin(), present.end(), cell.lock().get());
    });
    return gone ? "" : "something holds a cell that was removed";
}

std::string MonkeyForm::CheckDead() {
    if (host_->Clock.Waiting() > 0) return "a timer outlives the control";
    if (host_->Box.Visible) return "the edit box outlives the control";
    if (host_->Pads->ShownWindows() > 0) return "a pad outlives the control";
    host_->Pads->ForgetCells();
    if (Grid()) return CheckTerminated();
    std::erase_if(seen_, [](const auto& cell) { return cell.expired(); });
    return seen_.empty() ? "" : "something holds a cell of a control that is gone";
}

std::string MonkeyForm::CheckTerminated() {
    if (std::string held = CheckForgotten(); !held.empty()) return held;
    return Grid()->Cell() || Grid()->RowCount() != 0 ? "a terminated control has rows" : "";
}

Monkey HeadlessMonkey() {
    return {MonkeyForm::Acts(), [](const Steps& steps) {
                MonkeyForm form;
                std::size_t number = 0;
                for (const Step& step : steps) {
                    ++number;
                    form.Run(step);
                    const std::string wrong = form.Check();
                    if (!wrong.empty()) return wrong + " (step " + std::to_string(number) + ")";
                }
                return form.Examine();
            }};
}

} // namespace quillgrid::monkey
