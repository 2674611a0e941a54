// The form on the screen, beside Qt's table, a form layout of real editors and a painter written by hand.
#include "bench/PaintSubjects.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QImage>
#include <QLocale>

#include <malloc.h>

#include <cstdint>
#include <functional>

namespace quillgrid::bench {

namespace {

using MakeSubject = std::function<std::unique_ptr<PaintSubject>()>;

/// A shown window that is up to date.
void ShowNow(QWidget& window) {
    window.show();
    QApplication::processEvents();
    window.repaint();
}

/// What happened to the form, and the painting that it asked for. Instructions are counted by its name.
[[gnu::noinline]] void PaintPending() {
    QApplication::processEvents(); // tables put their changes off to a timer
    QApplication::processEvents();
}

/// Whether an action ends in painting: benchmarks of frames that nobody painted would look splendid.
class PaintWatch : public QObject {
public:
    PaintWatch() { qApp->installEventFilter(this); }
    bool Seen() const { return seen_; }

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        seen_ |= event->type() == QEvent::Paint;
        return false;
    }

private:
    bool seen_ = false;
};

template <typename Action>
void ExpectPainting(benchmark::State& state, Action action) {
    const PaintWatch watch;
    action();
    if (!watch.Seen()) state.SkipWithError("nothing was painted");
}

void ReportPerRow(benchmark::State& state, int rows) {
    state.counters["time_per_row"] =
        benchmark::Counter(static_cast<double>(state.iterations()) * rows,
                           benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

/// A filled form on the screen.
class ShownForm {
public:
    ShownForm(const MakeSubject& make, const benchmark::State& state)
        : texts_(static_cast<int>(state.range(0))), subject_(make()) {
        subject_->Fill(texts_);
        ShowNow(subject_->Window());
    }
    PaintSubject* operator->() { return subject_.get(); }

private:
    FormTexts texts_;
    std::unique_ptr<PaintSubject> subject_;
};

void Paint_Full(benchmark::State& state, const MakeSubject& make) {
    ShownForm form(make, state);
    QImage picture(FormWidth, FormHeight, QImage::Format_ARGB32_Premultiplied);
    // Unlike repainting this goes through all children, whoever paints the rows.
    const auto paint = [&] { form->Window().render(&picture); };
    ExpectPainting(state, paint);
    for (auto _ : state)
        paint();
    ReportPerRow(state, form->VisibleRows());
}

void Paint_Row(benchmark::State& state, const MakeSubject& make) {
    ShownForm form(make, state);
    const QString texts[] = {QStringLiteral("one text"), QStringLiteral("another text")};
    std::size_t turn = 0;
    const auto change = [&] {
        form->ChangeValue(3, texts[turn++ % 2]);
        PaintPending();
    };
    ExpectPainting(state, change);
    for (auto _ : state)
        change();
}

void Paint_PageScroll(benchmark::State& state, const MakeSubject& make) {
    ShownForm form(make, state);
    const int page = form->VisibleRows();
    const int pages = static_cast<int>(state.range(0)) / page;
    int turn = 0;
    const auto scroll = [&] {
        form->ScrollTo(++turn % pages * page);
        PaintPending();
    };
    ExpectPainting(state, scroll);
    for (auto _ : state)
        scroll();
    ReportPerRow(state, page);
}

/// From nothing to the first picture.
void Paint_FirstFrame(benchmark::State& state, const MakeSubject& make) {
    const FormTexts texts(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        auto subject = make();
        subject->Fill(texts);
        ShowNow(subject->Window());
        state.PauseTiming();
        subject.reset();
        state.ResumeTiming();
    }
}

void Build(benchmark::State& state, const MakeSubject& make) {
    const auto rows = static_cast<int>(state.range(0));
    const FormTexts texts(rows);
    for (auto _ : state) {
        state.PauseTiming();
        auto subject = make();
        state.ResumeTiming();
        subject->Fill(texts);
        state.PauseTiming();
        subject.reset();
        state.ResumeTiming();
    }
    ReportPerRow(state, rows);
}

void Sort(benchmark::State& state, const MakeSubject& make) {
    ShownForm form(make, state);
    for (auto _ : state) {
        state.PauseTiming();
        form->Sort(false);
        PaintPending();
        state.ResumeTiming();
        form->Sort(true);
        PaintPending();
    }
}

void Fold(benchmark::State& state, const MakeSubject& make) {
    ShownForm form(make, state);
    ExpectPainting(state, [&] {
        form->Fold(true);
        PaintPending();
        form->Fold(false);
    });
    for (auto _ : state) {
        form->Fold(true);
        PaintPending();
        form->Fold(false);
        PaintPending();
    }
}

std::int64_t HeapInUse() {
    const auto use = mallinfo2();
    return static_cast<std::int64_t>(use.uordblks + use.hblkhd);
}

void Heap(benchmark::State& state, const MakeSubject& make) {
    const FormTexts texts(static_cast<int>(state.range(0)));
    auto subject = make();
    for (auto _ : state) {
        const std::int64_t before = HeapInUse();
        subject->Fill(texts);
        ShowNow(subject->Window());
        state.counters["bytes_per_row"] =
            static_cast<double>(HeapInUse() - before) / static_cast<double>(state.range(0));
    }
}

void Register(const std::string& name, void (*run)(benchmark::State&, const MakeSubject&),
              const MakeSubject& make, const std::vector<std::int64_t>& sizes) {
    auto* const entry = benchmark::RegisterBenchmark(
        name.c_str(), [run, make](benchmark::State& state) { run(state, make); });
    entry->Unit(benchmark::kMicrosecond);
    for (const std::int64_t size : sizes)
        entry->Arg(size);
    if (run == Heap) entry->Iterations(1); // a second form would find the heap warm
}

const std::vector<std::int64_t> AllSizes{100, 1'000, 10'000, 100'000};
const std::vector<std::int64_t> FormLayoutSizes{100, 1'000};

void RegisterPainting() {
    const auto automatic = [] { return MakeQuillgrid(LabelColumnWidth::Automatic); };
    const auto fixed = [] { return MakeQuillgrid(); };
    const std::pair<const char*, void (*)(benchmark::State&, const MakeSubject&)> cases[] = {
        {"Paint_Full", Paint_Full},
        {"Paint_Row", Paint_Row},
        {"Paint_PageScroll", Paint_PageScroll},
        {"Paint_FirstFrame", Paint_FirstFrame}};
    for (const auto& [name, run] : cases) {
        const std::string of = name;
        Register(of + "Quillgrid", run, fixed, AllSizes);
        Register(of + "QuillgridAutomatic", run, automatic, AllSizes);
        Register(of + "Table", run, MakeTable, AllSizes);
        Register(of + "FormLayout", run, MakeFormLayout, FormLayoutSizes);
        Register(of + "ByHand", run, MakeHandPainter, AllSizes);
    }
}

void RegisterChanges() {
    const auto fixed = [] { return MakeQuillgrid(); };
    const auto grouped = [] { return MakeQuillgrid(LabelColumnWidth::Fixed, true); };
    Register("BuildQuillgrid", Build, fixed, {1'000});
    Register("BuildTable", Build, MakeTable, {1'000});
    Register("SortQuillgrid", Sort, fixed, AllSizes);
    Register("SortTable", Sort, MakeTable, AllSizes);
    Register("FoldQuillgrid", Fold, grouped, AllSizes);
    Register("FoldTable", Fold, MakeTable, AllSizes);
}

void RegisterHeap() {
    const auto automatic = [] { return MakeQuillgrid(LabelColumnWidth::Automatic); };
    Register("HeapQuillgrid", Heap, automatic, {10'000});
    Register("HeapTable", Heap, MakeTable, {10'000});
}

} // namespace

} // namespace quillgrid::bench

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QLocale::setDefault(QLocale(QStringLiteral("de_DE")));
    QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    quillgrid::bench::RegisterPainting();
    quillgrid::bench::RegisterChanges();
    quillgrid::bench::RegisterHeap();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
