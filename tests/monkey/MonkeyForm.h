#pragma once

#include "quillgrid/hosts/headless/HeadlessHost.h"
#include "tests/monkey/Lives.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace quillgrid::monkey {

/// Where handlers and callbacks of the container come in.
enum class Hook : std::uint8_t {
    ValidateCellError,
    ValidateCell,
    SelChange,
    Change,
    Beep,
    KeyPress,
    KeyDown,
    KeyUp,
    LeaveFocus,
    ImageClick,
    DropDown,
    CloseBoxClick,
    MenuClick,
    PropertyChanged,
    ItemFetched,
    ItemRead,
    ItemWritten,
    FieldRead,
    SurfaceResized,
    End
};

/// A form on the headless host under the hands of the monkey, with handlers that do, once each, whatever acts
/// were armed for them.
class MonkeyForm {
public:
    MonkeyForm();
    ~MonkeyForm();

    /// The name and weight of every act.
    static Repertoire Acts();
    /// One step; what its handlers throw ends here.
    void Run(const Step& step);
    /// What does not hold now, nothing when all is well.
    std::string Check();
    /// Whether a form that was used like this still does its work, with all armed acts called off.
    std::string Examine();

    // For the acts.

    headless::HeadlessHost& Host() { return *host_; }
    Quillgrid* Grid() { return host_->Grid.get(); }
    /// The cell that a number stands for; null without cells.
    std::shared_ptr<Cell> CellFor(std::uint32_t pick);
    void Arm(Hook hook, const Step& act) { armed_[hook].push_back(act); }
    void Disarm();
    void Fire(Hook hook);
    void FireCancel(Hook hook, bool& cancel);
    /// The control as by a new program run.
    void Create(const Step& step);
    /// Rows and cells may differ until the next full Refresh.
    void OrderTouched() { ++orderStamp_; }
    void Settle();
    /// Says what does not hold in the midst of an act.
    void Complain(std::string what);
    void Remember(const std::shared_ptr<Cell>& cell) { seen_.push_back(cell); }
    void RememberAll();
    void NoteSilence() { silenced_ = true; }
    /// The program has written numbers that are the control's own.
    void NoteFakedNumbers() { faked_ = true; }
    void NoteTimers();
    void PaintArea(const Rect& area);
    bool Terminated = false;
    bool CancelErrors = false;
    bool CancelValues = false;

private:
    void Act(const Step& step);
    void Begin(const Step& step);
    void Listen();
    std::string CheckCurrent();
    std::string CheckRows();
    std::string CheckBox();
    std::string CheckTimers();
    std::string CheckForgotten();
    std::string CheckDead();
    std::string CheckTerminated();
    std::string CheckView();
    std::string CheckPads();

    std::unique_ptr<headless::HeadlessHost> host_;
    std::map<Hook, std::vector<Step>> armed_;
    std::vector<std::weak_ptr<Cell>> seen_;
    std::weak_ptr<Cell> waiting_;
    std::uint64_t timersNoted_ = 0; ///< how many of the clock were set then
    std::string complaint_;
    std::uint64_t orderStamp_ = 1;
    std::uint64_t settledStamp_ = 0;
    int depth_ = 0;
    int stepsTerminated_ = 0;
    bool silenced_ = false;
    bool faked_ = false;
};

/// Plays steps on a MonkeyForm, checking after each.
Monkey HeadlessMonkey();

} // namespace quillgrid::monkey
