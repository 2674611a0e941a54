// The list that a cell drops down, beside the popup of a combo box that is told that all its entries are
// alike.
#include "quillgrid/hosts/qt/ListPadWidget.h"
#include "quillgrid/hosts/qt/QuillgridWidget.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QComboBox>
#include <QListView>

namespace quillgrid::bench {

namespace {

class PadList {
public:
    explicit PadList(int entries) {
        form_.resize(300, 200);
        cell_ = form_.grid().Add({.Key = "list", .CellTemplate = qgctlist});
        for (int number = 1; number <= entries; ++number)
            cell_->Listitems().Add({.Text = "Entry " + std::to_string(number), .ItemData = Variant(number)});
        cell_->SetListIndex(entries / 2);
        form_.grid().Refresh();
        form_.show();
        QApplication::processEvents();
        pad_.setWindowFlags(Qt::ToolTip);
    }
    void Open() {
        pad_.Pad().Popup(cell_, 10, 10);
        QApplication::processEvents();
    }
    void Close() {
        pad_.hide();
        QApplication::processEvents();
    }
    void Move(bool down) {
        std::int32_t key = down ? 40 : 38;
        pad_.Pad().KeyDown(key, 0);
        QApplication::processEvents();
    }

private:
    qt::QuillgridWidget form_;
    std::shared_ptr<Cell> cell_;
    qt::ListPadWidget pad_{form_};
};

class ComboList {
public:
    explicit ComboList(int entries) {
        auto* view = new QListView;
        view->setUniformItemSizes(true);
        view->setLayoutMode(QListView::Batched);
        combo_.setView(view);
        combo_.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        combo_.setMaxVisibleItems(6);
        for (int number = 1; number <= entries; ++number)
            combo_.addItem(QStringLiteral("Entry %1").arg(number));
        combo_.setCurrentIndex(entries / 2);
        combo_.resize(300, 30);
        combo_.show();
        QApplication::processEvents();
    }
    void Open() {
        combo_.showPopup();
        QApplication::processEvents();
    }
    void Close() {
        combo_.hidePopup();
        QApplication::processEvents();
    }
    void Move(bool down) {
        const QModelIndex at = combo_.view()->currentIndex();
        combo_.view()->setCurrentIndex(at.siblingAtRow(at.row() + (down ? 1 : -1)));
        QApplication::processEvents();
    }

private:
    QComboBox combo_;
};

/// From the request to the picture.
template <typename List>
void ListPad_Open(benchmark::State& state) {
    List list(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        list.Open();
        state.PauseTiming();
        list.Close();
        state.ResumeTiming();
    }
}

/// To the next entry and back.
template <typename List>
void ListPad_Move(benchmark::State& state) {
    List list(static_cast<int>(state.range(0)));
    list.Open();
    bool down = true;
    for (auto _ : state) {
        list.Move(down);
        down = !down;
    }
}

BENCHMARK_TEMPLATE(ListPad_Open, PadList)->Arg(10)->Arg(10'000)->Unit(benchmark::kMicrosecond);
BENCHMARK_TEMPLATE(ListPad_Open, ComboList)->Arg(10)->Arg(10'000)->Unit(benchmark::kMicrosecond);
BENCHMARK_TEMPLATE(ListPad_Move, PadList)->Arg(10)->Arg(10'000)->Unit(benchmark::kMicrosecond);
BENCHMARK_TEMPLATE(ListPad_Move, ComboList)->Arg(10)->Arg(10'000)->Unit(benchmark::kMicrosecond);

} // namespace

} // namespace quillgrid::bench
