// What the user waits for: a key, another row, a step of the wheel, each until the form is painted again.
#include "quillgrid/hosts/qt/QuillgridWidget.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QLocale>
#include <QWheelEvent>

#include <algorithm>

namespace quillgrid::bench {

namespace {

class TypingForm {
public:
    explicit TypingForm(std::int64_t cells) {
        for (std::int64_t cell = 0; cell < cells; ++cell) {
            const std::string number = std::to_string(cell);
            widget_.grid().Add(
                {.Caption = Variant("Caption " + number), .Value = Variant("value " + number)});
        }
        widget_.grid().Refresh();
        widget_.resize(400, 600);
        widget_.show();
        widget_.activateWindow();
        widget_.setFocus();
        QApplication::processEvents();
    }
    Quillgrid& Grid() { return widget_.grid(); }
    std::string Edited() const { return widget_.findChild<QLineEdit*>()->text().toStdString(); }

    void Press(int key, const QString& text = {}) {
        for (const QEvent::Type type : {QEvent::ShortcutOverride, QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, Qt::NoModifier, text);
            if (QWidget* focus = QApplication::focusWidget()) QApplication::sendEvent(focus, &event);
        }
        QApplication::processEvents();
    }
    void TurnWheel(int angle) {
        QWheelEvent event(QPointF(20, 20), widget_.mapToGlobal(QPointF(20, 20)), {}, {0, angle}, Qt::NoButton,
                          {}, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&widget_, &event);
        QApplication::processEvents();
    }

private:
    qt::QuillgridWidget widget_;
};

void Type_Key(benchmark::State& state) {
    TypingForm form(state.range(0));
    const std::string before = form.Edited();
    int turn = 0;
    for (auto _ : state) {
        const bool back = turn++ % 2 == 1;
        form.Press(back ? Qt::Key_Backspace : Qt::Key_X, back ? QStringLiteral("\b") : QStringLiteral("x"));
    }
    if (turn % 2 == 0) form.Press(Qt::Key_X, QStringLiteral("x"));
    if (form.Edited() == before) state.SkipWithError("nothing was typed");
}

/// A text is typed, and Down takes it over; at the end it goes on at the top.
void Type_RowWithCommit(benchmark::State& state) {
    TypingForm form(state.range(0));
    std::int64_t committed = 0;
    std::int64_t turns = 0;
    form.Grid().Change.Listen([&](Cell&) { ++committed; });
    // No row gets the same text twice in a row: the numbers of rows are no multiples of three.
    const QString texts[] = {QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("z")};
    for (auto _ : state) {
        form.Press(Qt::Key_X, texts[++turns % 3]);
        form.Press(Qt::Key_Down);
    }
    if (committed < turns / 2) state.SkipWithError("nothing was taken over");
}

void Type_Wheel(benchmark::State& state) {
    TypingForm form(state.range(0));
    const std::int32_t before = form.Grid().FirstVisibleRow();
    std::int32_t furthest = before;
    int turn = 0;
    for (auto _ : state) {
        form.TurnWheel(turn++ / 8 % 2 == 0 ? -120 : 120);
        furthest = std::max(furthest, form.Grid().FirstVisibleRow());
    }
    if (furthest == before) state.SkipWithError("nothing was scrolled");
}

BENCHMARK(Type_Key)->Arg(100)->Arg(100'000)->Unit(benchmark::kMicrosecond);
BENCHMARK(Type_RowWithCommit)->Arg(100)->Arg(100'000)->Unit(benchmark::kMicrosecond);
BENCHMARK(Type_Wheel)->Arg(100)->Arg(100'000)->Unit(benchmark::kMicrosecond);

} // namespace

} // namespace quillgrid::bench
