// Handlers that do the worst at the worst moment. What must hold is said by the sanitizers and by the few
// invariants below.
#include "quillgrid/grid/Keys.h"
#include "quillgrid/hosts/headless/HeadlessHost.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <stdexcept>

namespace quillgrid {
namespace {

using headless::HeadlessHost;

/// A record that has every field, and may do something whenever one is asked for.
class EveryField : public Record {
public:
    std::function<void()> OnField;
    std::optional<Variant> Field(std::string_view) const override {
        if (OnField) OnField();
        return Variant("1");
    }
};

using Deed = std::function<void(HeadlessHost&)>;
struct NamedDeed {
    const char* Name;
    Deed Run;
};

const NamedDeed Deeds[] = {
    {"nothing", [](HeadlessHost&) {}},
    {"clear", [](HeadlessHost& host) { host.Grid->Clear(); }},
    {"clear and refill",
     [](HeadlessHost& host) {
         host.Grid->Clear();
         host.Grid->Add({.Key = "fresh", .Value = Variant("fresh")});
         host.Grid->Refresh();
     }},
    {"remove the current cell",
     [](HeadlessHost& host) {
         if (host.Grid->Cell()) host.Grid->Cells().Remove(host.Grid->Cell()->Key());
     }},
    {"remove the first cell",
     [](HeadlessHost& host) {
         if (host.Grid->Cells().Count() > 0) host.Grid->Cells().Remove(1);
     }},
    {"refresh", [](HeadlessHost& host) { host.Grid->Refresh(); }},
    {"hide all and refresh",
     [](HeadlessHost& host) {
         for (const auto& cell : host.Grid->Cells())
             cell->SetVisible(false);
         host.Grid->SetSorted(true);
         host.Grid->Refresh();
     }},
    {"sort backwards",
     [](HeadlessHost& host) {
         int caption = 99;
         for (const auto& cell : host.Grid->Cells())
             cell->SetCaption(std::to_string(caption--));
         host.Grid->SetSorted(true);
         host.Grid->Refresh();
     }},
    {"select another row",
     [](HeadlessHost& host) {
         if (host.Grid->Cells().Count() > 0) host.Grid->Cells().Item(1)->SetFocus();
     }},
    {"new record", [](HeadlessHost& host) { host.Grid->AddNew(); }},
    {"undo", [](HeadlessHost& host) { host.Grid->Undo(); }},
    {"set a value",
     [](HeadlessHost& host) {
         if (host.Grid->Cell()) host.Grid->Cell()->SetValue(Variant("7"));
     }},
    {"commit", [](HeadlessHost& host) { host.Grid->CommitEdit(); }},
    {"lose the focus", [](HeadlessHost& host) { host.LeaveControl(); }},
    {"resize",
     [](HeadlessHost& host) {
         host.ResizeTo({1, 1});
     }},
    {"add a cell", [](HeadlessHost& host) { host.Grid->Add({.Value = Variant("late")}); }},
    {"speak another language", [](HeadlessHost& host) { host.Grid->SetLanguage(qglgEnglish); }},
    {"load a record", [](HeadlessHost& host) { host.Grid->LoadRecord(EveryField{}); }},
    {"ask for sample cells", [](HeadlessHost& host) { host.Grid->SetCellCount(3); }},
    {"start anew", [](HeadlessHost& host) { host.Grid->InitProperties(); }},
    {"take the sheet apart",
     [](HeadlessHost& host) {
         host.Grid->Properties().Clear();
         if (host.Grid->Cell()) host.Grid->Cell()->Properties()->Clear();
     }},
    {"terminate", [](HeadlessHost& host) { host.Grid->Terminate(); }},
    {"destroy",
     [](HeadlessHost& host) {
         host.Grid.reset();
         host.Pads.reset();
     }},
    {"throw", [](HeadlessHost&) { throw std::runtime_error("handler"); }},
};

/// Connects the deed to one of the events; it is done once.
using Connect = std::function<void(Quillgrid&, std::function<void()>)>;
struct NamedEvent {
    const char* Name;
    Connect To;
};

const NamedEvent Events[] = {
    {"ValidateCellError",
     [](Quillgrid& grid, std::function<void()> run) {
         grid.ValidateCellError.Listen([run](Cell&, ValidationErrConstants&, bool& cancel) {
             cancel = true;
             run();
         });
     }},
    {"ValidateCell",
     [](Quillgrid& grid, std::function<void()> run) {
         grid.ValidateCell.Listen([run](Cell&, bool&) { run(); });
     }},
    {"SelChange",
     [](Quillgrid& grid, std::function<void()> run) { grid.SelChange.Listen([run](Cell&) { run(); }); }},
    {"Change",
     [](Quillgrid& grid, std::function<void()> run) { grid.Change.Listen([run](Cell&) { run(); }); }},
    {"Beep", [](Quillgrid& grid, std::function<void()> run) { grid.Beep.Listen(run); }},
    {"KeyPress",
     [](Quillgrid& grid, std::function<void()> run) {
         grid.KeyPressed.Listen([run](Cell&, std::int16_t&) { run(); });
     }},
    {"KeyDown",
     [](Quillgrid& grid, std::function<void()> run) {
         grid.KeyWentDown.Listen([run](Cell&, std::int16_t&, std::int16_t&) { run(); });
     }},
    {"KeyUp",
     [](Quillgrid& grid, std::function<void()> run) {
         grid.KeyWentUp.Listen([run](Cell&, std::int16_t&, std::int16_t&) { run(); });
     }},
    {"LeaveFocus",
     [](Quillgrid& grid, std::function<void()> run) { grid.LeaveFocus.Listen([run](Cell&) { run(); }); }},
    {"ImageClick",
     [](Quillgrid& grid, std::function<void()> run) { grid.ImageClick.Listen([run](Cell&) { run(); }); }},
    {"DropDown",
     [](Quillgrid& grid, std::function<void()> run) {
         grid.DropDown.Listen([run](Cell&, float, float) { run(); });
     }},
};

void Fill(HeadlessHost& host) {
    for (const char* image : {"checked", "unchecked", "phone"})
        host.Images.Add(image);
    Quillgrid& grid = *host.Grid;
    grid.SetAllowWrap(false);
    grid.Add({.Key = "date", .Value = Variant(DateTime{46000, 0}), .CellTemplate = qgctDate})
        ->SetButton(qgbtClock);
    grid.Add({.Key = "flag", .Value = Variant(true), .CellTemplate = qgctboolean});
    grid.Add({.Key = "phone", .Value = Variant("1"), .CellTemplate = qgctPhone});
    const auto list = grid.Add({.Key = "list", .Value = Variant("a"), .CellTemplate = qgctlist});
    for (const char* text : {"a", "b"})
        list->Listitems().Add({.Text = text});
    grid.Add({.Key = "count", .Value = Variant(5), .CellTemplate = qgctInteger})->SetButton(qgbtCalc);
    grid.Add({.Key = "file", .CellTemplate = qgctFile});
    grid.Add({.Key = "euro", .Value = Variant(5), .CellTemplate = qgctEuro});
    grid.Refresh();
}

/// Goes to a cell that may be gone, and drops its pad down.
void DropDown(HeadlessHost& host, const char* key) {
    host.EnterControl();
    if (!host.Grid) return;
    if (const auto cell = host.Grid->Cells().Find(key)) cell->SetFocus();
    if (host.Grid) host.Press(KeyF4);
    host.Clock.Advance(200);
}

/// Every way in that raises events; each step may find the control gone.
void Use(HeadlessHost& host) {
    const std::function<void()> steps[] = {
        [&] { host.EnterControl(); },
        [&] { host.Type("1.2.x+"); },
        [&] { host.Press(KeyEnter); },
        [&] {
            host.Grid->MouseDown({40, 30});
        },
        [&] {
            host.Grid->MouseDown({20, 48});
        },
        [&] { host.Press(quillgrid::KeyDown); },
        [&] { host.Type("b"); },
        [&] { host.Press(KeyTab); },
        [&] { host.Type("99999999999"); },
        [&] { host.Press(KeyTab); },
        [&] { host.Press(KeyEscape); },
        [&] { host.Type("3"); },
        [&] { host.Press(quillgrid::KeyDown); },
        [&] { host.Grid->ScrollTo(3); },
        [&] { host.Type("4"); },
        [&] { DropDown(host, "date"); },
        [&] { host.Press(KeyRight); },
        [&] { host.ClickDay(3); },
        [&] { DropDown(host, "list"); },
        [&] { host.Press(quillgrid::KeyUp); },
        [&] { host.Press(KeyEscape); },
        [&] { DropDown(host, "list"); },
        [&] { host.ClickRow(1); },
        [&] { DropDown(host, "count"); },
        [&] { host.Type("+7="); },
        [&] { host.ClickKey(15); },
        [&] { DropDown(host, "euro"); },
        [&] { host.Type("d"); },
        [&] { host.Press(KeyEnter); },
        [&] { host.Press(quillgrid::KeyDown); },
        [&] { DropDown(host, "file"); },
        [&] { host.LeaveControl(); },
    };
    for (const auto& step : steps) {
        if (!host.Grid) return;
        try {
            step();
        } catch (const std::runtime_error&) {
        }
    }
}

/// Where a host is called back while code, not the user, works on the control.
using Callback = std::function<void()>;
struct NamedHook {
    const char* Name;
    std::function<void(HeadlessHost&, EveryField&, Callback)> To;
};

const NamedHook Hooks[] = {
    {"a property is reported",
     [](HeadlessHost& host, EveryField&, Callback run) {
         host.Site.OnChanged = [run](std::string_view) { run(); };
     }},
    {"an item is fetched",
     [](HeadlessHost& host, EveryField&, Callback run) {
         host.Grid->Properties().SelChange.Listen([run](Property&) { run(); });
         host.Grid->Cell()->Properties()->SelChange.Listen([run](Property&) { run(); });
     }},
    {"an item is written",
     [](HeadlessHost& host, EveryField&, Callback run) {
         const auto hear = [run](Property& item) {
             item.Changed.Listen([run](const std::string&, Variant&) { run(); });
         };
         host.Grid->Properties().SelChange.Listen(hear);
         host.Grid->Cell()->Properties()->SelChange.Listen(hear);
     }},
    {"an item is read",
     [](HeadlessHost& host, EveryField&, Callback run) {
         const auto hear = [run](Property& item) {
             item.QueryValue.Listen([run](const std::string&, Variant&) { run(); });
         };
         host.Grid->Properties().SelChange.Listen(hear);
         host.Grid->Cell()->Properties()->SelChange.Listen(hear);
     }},
    {"a field is read",
     [](HeadlessHost&, EveryField& record, Callback run) { record.OnField = std::move(run); }},
    {"a value is validated",
     [](HeadlessHost& host, EveryField&, Callback run) {
         host.Grid->ValidateCell.Listen([run](Cell&, bool&) { run(); });
     }},
    {"another cell is current", [](HeadlessHost& host, EveryField&,
                                   Callback run) { host.Grid->SelChange.Listen([run](Cell&) { run(); }); }},
};

void Program(HeadlessHost& host, EveryField& record) {
    const std::function<void()> steps[] = {
        [&] { host.EnterControl(); },
        [&] { host.Press(quillgrid::KeyDown); },
        [&] { host.Press(quillgrid::KeyDown); },
        [&] { host.Type("5"); },
        [&] { host.Grid->SetStyle(qgstDefault); },
        [&] { host.Grid->Properties().Item("BevelWidth")->SetValue(Variant(9)); },
        [&] { host.Grid->Properties().Item("Caption")->Value(); },
        [&] { host.Grid->Properties().Add({.Index = 1, .Key = "Mine"}); },
        [&] { host.Grid->Properties().Remove("Mine"); },
        [&] { host.Grid->Cells().Item(1)->Properties()->Item("Caption")->SetValue(Variant("x")); },
        [&] { host.Grid->Cells().Item(1)->Properties()->Item("Value")->Value(); },
        [&] { host.Grid->Cells().Item(1)->DefineFromDataDictionary(record); },
        [&] { host.Grid->LoadRecord(record); },
        [&] { host.Grid->AddNew(); },
        [&] { host.Grid->AmbientChanged("ScaleUnits"); },
        [&] { host.Grid->SetLanguage(qglgSpanish); },
        [&] { host.Grid->SetSorted(true); },
        [&] { host.Grid->Update(); },
        [&] { host.Grid->Undo(); },
        [&] { host.Grid->SetCellCount(60); },
        [&] { host.Grid->InitProperties(); },
    };
    for (const auto& step : steps) {
        if (!host.Grid) return;
        try {
            step();
        } catch (const std::runtime_error&) { // of the deed, or because it took away what the step needs
        }
    }
}

void ExpectConsistent(HeadlessHost& host) {
    Quillgrid& grid = *host.Grid;
    EXPECT_EQ(grid.Silent(), false);
    Cell* current = grid.Cell();
    EXPECT_EQ(current, grid.RowCell(grid.CurrentRow()));
    if (current) {
        EXPECT_TRUE(std::any_of(grid.Cells().begin(), grid.Cells().end(),
                                [&](const auto& cell) { return cell.get() == current; }));
    } else {
        EXPECT_FALSE(host.Box.Visible);
    }
    for (const auto& cell : grid.Cells())
        EXPECT_EQ(cell->ErrorCode(), qgErrNone);
    grid.HidePads();
    EXPECT_EQ(host.Pads->ShownWindows(), 0);
    grid.Refresh();
    host.Paint();
    for (std::int32_t row = 1; row <= grid.RowCount(); ++row)
        EXPECT_EQ(grid.RowCell(row)->Index(), row);
}

TEST(Hostile, AnyDeedInAnyEventLeavesAControlThatWorksOrNone) {
    for (const NamedEvent& event : Events) {
        for (const NamedDeed& deed : Deeds) {
            SCOPED_TRACE(std::string(deed.Name) + " in " + event.Name);
            HeadlessHost host({300, 82});
            Fill(host);
            bool busy = false;
            int times = 0;
            event.To(*host.Grid, [&] {
                if (busy) return;
                busy = true;
                ++times;
                const std::unique_ptr<bool, void (*)(bool*)> over(&busy, [](bool* flag) { *flag = false; });
                deed.Run(host);
            });
            Use(host);
            EXPECT_GT(times, 0) << "the event never came";
            if (host.Grid) ExpectConsistent(host);
        }
    }
}

TEST(Hostile, AnyDeedWhereCodeIsCalledBackLeavesAControlThatWorksOrNone) {
    for (const bool userMode : {true, false}) {
        for (const NamedHook& hook : Hooks) {
            for (const NamedDeed& deed : Deeds) {
                SCOPED_TRACE(std::string(deed.Name) + " when " + hook.Name);
                HeadlessHost host({300, 82}, "de-DE", userMode);
                Fill(host);
                EveryField record;
                bool busy = false;
                int times = 0;
                hook.To(host, record, [&] {
                    if (busy || !host.Grid) return;
                    busy = true;
                    ++times;
                    const std::unique_ptr<bool, void (*)(bool*)> over(&busy,
                                                                      [](bool* flag) { *flag = false; });
                    deed.Run(host);
                });
                Program(host, record);
                EXPECT_TRUE(times > 0 || !userMode) << "it never came";
                if (host.Grid) ExpectConsistent(host);
            }
        }
    }
}

TEST(Hostile, CellsOutliveTheControlHarmlessly) {
    HeadlessHost host;
    Fill(host);
    const auto cell = host.Grid->Cells().Item("date");
    host.Grid.reset();
    cell->SetValue(Variant("1.1.2026"));
    cell->SetFocus();
    cell->Refresh();
    cell->Undo();
}

TEST(Hostile, AStyleThatTheContainerRefusesLeavesNoRowWithoutACell) {
    HeadlessHost host({300, 120}, "de-DE", false);
    host.Grid->Clear();
    host.Site.OnChanged = [](std::string_view) { throw std::runtime_error("container"); };
    EXPECT_THROW(host.Grid->SetStyle(qgstDefault), std::runtime_error);
    EXPECT_EQ(host.Grid->CurrentRow(), 0);
    EXPECT_EQ(host.Grid->Cell(), nullptr);
}

TEST(Hostile, AnExceptionInValidationLeavesNoErrorBehind) {
    HeadlessHost host;
    Fill(host);
    host.EnterControl();
    auto connection = host.Grid->ValidateCellError.Connect(
        [](Cell&, ValidationErrConstants&, bool&) { throw std::runtime_error("handler"); });
    host.Type("99.99.");
    EXPECT_THROW(host.Press(KeyEnter), std::runtime_error);
    EXPECT_TRUE(host.Grid->Valid());
    EXPECT_EQ(host.Box.CurrentLook.Ink, ColourWindowText);
    connection.Disconnect();
    host.Press(KeyEnter); // the commit is not stuck
    EXPECT_EQ(host.Grid->Cell()->Key(), "flag");
}

} // namespace
} // namespace quillgrid
