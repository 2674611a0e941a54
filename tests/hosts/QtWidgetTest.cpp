#include "QtForm.h"

#include <QAccessible>
#include <QClipboard>
#include <QElapsedTimer>
#include <QInputMethodEvent>
#include <QMouseEvent>
#include <QPixmap>
#include <QScrollBar>
#include <QWheelEvent>

#include <gtest/gtest.h>

namespace quillgrid::qt {
namespace {

using Names = std::vector<std::string>;

class QtWidget : public testing::Test {
public: // what leaves a cell comes in many ways
    QtWidget() {
        form.Grid().Add({.Key = "name", .Caption = "Name", .Value = "Müller"});
        form.Grid().Add({.Key = "date", .Caption = "Datum", .Value = "3.5.2026", .CellTemplate = qgctDate});
        form.Grid().Add({.Key = "count", .Caption = "Anzahl", .Value = 5, .CellTemplate = qgctInteger});
        form.Grid().Add(
            {.Key = "secret", .Caption = "Kennwort", .Value = "geheim", .CellTemplate = qgctPassword});
    }

    void GoTo(int row) {
        form.Show();
        for (int current = 1; current < row; ++current)
            form.Press(Qt::Key_Down);
        form.Events.clear();
    }
    std::string TextOf(int row) { return form.Grid().RowCell(row)->Text(); }
    QRect ValueArea(int row) {
        const Rect area = form.Grid().ValueArea(*form.Grid().RowCell(row));
        return {area.Left, area.Top, area.Width(), area.Height()};
    }
    void Click(QPoint position) {
        QWidget* target = form.Widget->childAt(position);
        if (!target) target = form.Widget;
        const QPointF local = target->mapFrom(form.Widget, position);
        for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            QMouseEvent event(type, local, target->mapToGlobal(local), Qt::LeftButton, Qt::LeftButton, {});
            QApplication::sendEvent(target, &event);
        }
    }
    void Turn(int delta) {
        const QPointF centre(form.Widget->rect().center());
        QWheelEvent event(centre, form.Widget->mapToGlobal(centre), {}, {0, delta}, {}, {}, Qt::NoScrollPhase,
                          false);
        QApplication::sendEvent(form.Widget, &event);
    }

    QtForm form;
};

TEST_F(QtWidget, TypedDateIsTakenOverByEnter) {
    GoTo(2);
    EXPECT_EQ(QApplication::focusWidget(), form.Edit());
    EXPECT_EQ(form.Edit()->selectedText(), QStringLiteral("03.05.2026"));
    form.Type(QStringLiteral("1.12.2027"));
    form.Enter();
    EXPECT_EQ(TextOf(2), "01.12.2027");
    EXPECT_EQ(form.Events, (Names{"validate date", "change date", "select count"}));
    EXPECT_EQ(form.Edit()->text(), QStringLiteral("5"));
}

TEST_F(QtWidget, RefusedTextIsExplainedAtItsCellUntilTheNextKey) {
    form.Cancel = true;
    GoTo(2);
    form.Type(QStringLiteral("31.2.2026"));
    EXPECT_EQ(form.Widget->shownMessage(), QString());
    form.Enter();
    EXPECT_EQ(form.Events, Names{"refused 20002 date"});
    EXPECT_EQ(form.Widget->shownMessage(), QString::fromStdString(form.Grid().ErrorMessage(20002)));
    EXPECT_EQ(form.Edit()->selectedText(), QStringLiteral("03.05.2026"));
    form.Settle();
    EXPECT_EQ(QApplication::focusWidget(), form.Edit());
    EXPECT_FALSE(form.Widget->shownMessage().isEmpty());
    form.Type(QStringLiteral("1"));
    EXPECT_EQ(form.Widget->shownMessage(), QString());
}

TEST_F(QtWidget, ForbiddenCharactersAreExplainedInEnglishToo) {
    form.Cancel = true;
    form.Grid().SetLanguage(qglgEnglish);
    GoTo(1);
    form.Type(QStringLiteral("xyz"));
    form.Grid().RowCell(1)->SetCharlist("abc"); // before, the keys would have been refused
    form.Enter();
    EXPECT_EQ(form.Events, Names{"refused 20011 name"});
    EXPECT_EQ(form.Widget->shownMessage(), QStringLiteral("Invalid input format"));
}

TEST_F(QtWidget, MessageStaysWhenTheRowChangesAndSpeaksTheFormsLanguage) {
    form.Grid().SetLanguage(qglgEnglish);
    GoTo(2);
    form.Type(QStringLiteral("31.2.2026"));
    form.Enter();
    EXPECT_EQ(form.Grid().CurrentRow(), 3);
    EXPECT_EQ(form.Widget->shownMessage(), QString::fromStdString(form.Grid().ErrorMessage(21002)));
    form.Widget->setMessageSource([](const Cell& cell, ValidationErrConstants code) {
        return QString::fromStdString(cell.Key()) + QString::number(code);
    });
    form.Press(Qt::Key_Up);
    form.Type(QStringLiteral("31.2.2026"));
    form.Enter();
    EXPECT_EQ(form.Widget->shownMessage(), QStringLiteral("date20002"));
    form.Widget->showMessage({});
    EXPECT_EQ(form.Widget->shownMessage(), QString());
}

TEST_F(QtWidget, PasteGoesOnlyIntoFreeText) {
    QApplication::clipboard()->setText(QStringLiteral("1\n2ä😀"));
    GoTo(3);
    form.Press(Qt::Key_V, QStringLiteral("\x16"), Qt::ControlModifier);
    form.Press(Qt::Key_Insert, {}, Qt::ShiftModifier);
    EXPECT_EQ(form.Edit()->text(), QStringLiteral("5"));
    EXPECT_EQ(form.Events, (Names{"beep", "beep"}));
    form.Press(Qt::Key_Up);
    form.Press(Qt::Key_Up);
    form.Press(Qt::Key_V, QStringLiteral("\x16"), Qt::ControlModifier);
    EXPECT_EQ(form.Edit()->text(), QString::fromUtf8("1 2ä😀"));
}

TEST_F(QtWidget, PastedLinesBecomeOneLine) {
    GoTo(1);
    QApplication::clipboard()->setText(QString::fromUtf8("\nHauptstr. 5\r\n10115\tBerlin\u2029\x01Mitte\n"));
    form.Press(Qt::Key_V, QStringLiteral("\x16"), Qt::ControlModifier);
    EXPECT_EQ(form.Edit()->text(), QStringLiteral("Hauptstr. 5 10115 Berlin Mitte"));
}

TEST_F(QtWidget, LongTextIsPastedWithoutAPause) {
    form.Grid().Cells().Item("name")->SetMaxLength(15'001);
    GoTo(1);
    QApplication::clipboard()->setText(QString(20'000, u'a'));
    QElapsedTimer clock;
    clock.start();
    form.Press(Qt::Key_V, QStringLiteral("\x16"), Qt::ControlModifier);
    EXPECT_LT(clock.elapsed(), 30000) << "milliseconds";
    EXPECT_EQ(form.Edit()->text().size(), 15'002);
}

TEST_F(QtWidget, LongTextPassesThroughTheBoxUncut) {
    const std::string longText(50'000, 'a');
    form.Grid().Cells().Item("name")->SetMaxLength(100'000);
    form.Grid().Cells().Item("name")->SetValue(Variant(longText));
    GoTo(1);
    form.Press(Qt::Key_Down);
    EXPECT_EQ(TextOf(1).size(), longText.size());
    form.Press(Qt::Key_Up);
    form.Press(Qt::Key_End);
    form.Type(QStringLiteral("b"));
    form.Enter();
    EXPECT_EQ(TextOf(1), longText + "b");
}

TEST_F(QtWidget, PastedTextPassesTheFilterAndLimitsOfItsCell) {
    form.Grid().Cells().Item("name")->SetCharlist("abc");
    form.Grid().Cells().Item("name")->SetMaxLength(4);
    GoTo(1);
    QApplication::clipboard()->setText(QStringLiteral("xaybzc") + QString(3000, u'a'));
    form.Press(Qt::Key_V, QStringLiteral("\x16"), Qt::ControlModifier);
    EXPECT_EQ(form.Edit()->text(), QStringLiteral("abcaa")); // one more than fits is still typed, then cut
    form.Enter();
    EXPECT_EQ(TextOf(1), "abca");
}

TEST_F(QtWidget, PasswordsAreNeverCopied) {
    QApplication::clipboard()->setText(QStringLiteral("untouched"));
    GoTo(4);
    EXPECT_EQ(form.Edit()->displayText(), QStringLiteral("******"));
    form.Edit()->selectAll();
    form.Press(Qt::Key_C, QStringLiteral("\x03"), Qt::ControlModifier);
    form.Press(Qt::Key_X, QStringLiteral("\x18"), Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("untouched"));
    EXPECT_EQ(form.Edit()->text(), QStringLiteral("geheim"));
}

TEST_F(QtWidget, PasswordsAreToldToNobody) {
    GoTo(4);
    for (const auto query :
         {Qt::ImSurroundingText, Qt::ImCurrentSelection, Qt::ImTextBeforeCursor, Qt::ImTextAfterCursor}) {
        QInputMethodQueryEvent asked(query);
        QApplication::sendEvent(form.Edit(), &asked);
        EXPECT_EQ(asked.value(query).toString(), QString());
        QVariant answer;
        QMetaObject::invokeMethod(form.Edit(), "inputMethodQuery", Q_RETURN_ARG(QVariant, answer),
                                  Q_ARG(Qt::InputMethodQuery, query), Q_ARG(QVariant, QVariant(6)));
        EXPECT_EQ(answer.toString(), QString());
    }
    auto* read = QAccessible::queryAccessibleInterface(form.Edit());
    ASSERT_TRUE(read && read->textInterface());
    EXPECT_EQ(read->text(QAccessible::Value), QStringLiteral("******"));
    EXPECT_FALSE(read->textInterface()->text(0, 6).contains(u'g'));
    form.Press(Qt::Key_Up);
    QInputMethodQueryEvent asked(Qt::ImSurroundingText);
    QApplication::sendEvent(form.Edit(), &asked);
    EXPECT_EQ(asked.value(Qt::ImSurroundingText).toString(), QStringLiteral("5"));
    form.Edit()->undo();
    EXPECT_EQ(form.Edit()->text(), QStringLiteral("5"));
}

TEST_F(QtWidget, ClickIntoSelectedTextPutsTheCaretThere) {
    GoTo(1);
    ASSERT_TRUE(form.Edit()->hasSelectedText());
    EXPECT_TRUE(form.Edit()->dragEnabled());
    const QRect caret = form.Edit()->inputMethodQuery(Qt::ImCursorRectangle).toRect();
    form.Edit()->setCursorPosition(3);
    const QRect third = form.Edit()->inputMethodQuery(Qt::ImCursorRectangle).toRect();
    form.Edit()->selectAll();
    ASSERT_NE(caret, third);
    Click(form.Edit()->mapToParent(third.center()));
    EXPECT_FALSE(form.Edit()->hasSelectedText());
    EXPECT_EQ(form.Edit()->cursorPosition(), 3);
}

TEST_F(QtWidget, ALongTextIsSeenFromItsBeginningAndLeftByArrowsAtEitherEnd) {
    GoTo(2);
    const auto cell = form.Grid().RowCell(1);
    cell->SetMaxLength(500);
    cell->SetValue(std::string(300, 'w'));
    form.Press(Qt::Key_Up);
    ASSERT_EQ(form.Edit()->selectedText().size(), 300);
    EXPECT_EQ(form.Edit()->cursorPosition(), 0);
    form.Press(Qt::Key_Right);
    EXPECT_FALSE(form.Edit()->hasSelectedText());
    EXPECT_EQ(form.Edit()->cursorPosition(), 300);
    form.Edit()->selectAll();
    form.Press(Qt::Key_Left);
    EXPECT_EQ(form.Edit()->cursorPosition(), 0);
}

TEST_F(QtWidget, ComposedTextPassesTheSameFilter) {
    GoTo(3);
    QInputMethodEvent letters;
    letters.setCommitString(QString::fromUtf8("ä7x8"));
    QApplication::sendEvent(form.Edit(), &letters);
    EXPECT_EQ(form.Edit()->text(), QStringLiteral("78"));
    EXPECT_EQ(form.Events, (Names{"beep", "beep"}));
    form.Press(Qt::Key_Up);
    form.Press(Qt::Key_Up);
    QInputMethodEvent composing(QStringLiteral("´"), {});
    QApplication::sendEvent(form.Edit(), &composing);
    QInputMethodEvent composed;
    composed.setCommitString(QString::fromUtf8("é"));
    QApplication::sendEvent(form.Edit(), &composed);
    EXPECT_EQ(form.Edit()->text(), QString::fromUtf8("é"));
}

TEST_F(QtWidget, LeavingTakesTheTextOverOnce) {
    GoTo(3);
    form.Type(QStringLiteral("42"));
    form.After->setFocus();
    form.Settle();
    EXPECT_EQ(TextOf(3), "42");
    EXPECT_EQ(form.Events, (Names{"validate count", "change count"}));
    EXPECT_TRUE(form.Edit()->isHidden());
    EXPECT_EQ(QApplication::focusWidget(), form.After);
    form.Widget->setFocus();
    EXPECT_EQ(QApplication::focusWidget(), form.Edit());
    EXPECT_EQ(form.Grid().CurrentRow(), 3);
}

TEST_F(QtWidget, RefusalBringsTheFocusBack) {
    form.Cancel = true;
    GoTo(2);
    form.Type(QStringLiteral("31.2.2026"));
    form.After->setFocus();
    form.Settle();
    EXPECT_EQ(QApplication::focusWidget(), form.Edit());
    EXPECT_EQ(form.Events, Names{"refused 20002 date"});
    form.After->setFocus(); // the old value is back, nothing holds the user any more
    form.Settle();
    EXPECT_EQ(QApplication::focusWidget(), form.After);
}

TEST_F(QtWidget, AnotherWindowLeavesTheTypedTextAlone) {
    GoTo(3);
    form.Type(QStringLiteral("42"));
    QWidget other;
    other.show();
    other.activateWindow();
    other.setFocus();
    form.Settle();
    EXPECT_TRUE(form.Events.empty());
    EXPECT_EQ(form.Edit()->text(), QStringLiteral("42"));
    form.Window().activateWindow();
    form.Settle();
    EXPECT_EQ(form.Edit()->text(), QStringLiteral("42"));
    form.Window().close();
    EXPECT_EQ(form.Events, (Names{"validate count", "change count"}));
}

TEST_F(QtWidget, TabGoesThroughTheCellsAndOut) {
    GoTo(1);
    for (int row = 2; row <= 4; ++row) {
        form.Press(Qt::Key_Tab, QStringLiteral("\t"));
        EXPECT_EQ(form.Grid().CurrentRow(), row);
    }
    form.Press(Qt::Key_Tab, QStringLiteral("\t"));
    EXPECT_EQ(QApplication::focusWidget(), form.After);
    form.Press(Qt::Key_Backtab, QStringLiteral("\t"), Qt::ShiftModifier);
    EXPECT_EQ(QApplication::focusWidget(), form.Edit());
    form.Press(Qt::Key_Backtab, QStringLiteral("\t"), Qt::ShiftModifier | Qt::ControlModifier);
    EXPECT_EQ(QApplication::focusWidget(), form.Before);
}

TEST_F(QtWidget, TabFollowsItsPolicyAndControlTabAlwaysLeaves) {
    GoTo(4);
    form.Widget->setProperty("tabPolicy", QuillgridWidget::TabWraps);
    form.Press(Qt::Key_Tab, QStringLiteral("\t"));
    EXPECT_EQ(form.Grid().CurrentRow(), 1);
    form.Press(Qt::Key_Backtab, QStringLiteral("\t"), Qt::ShiftModifier);
    EXPECT_EQ(form.Grid().CurrentRow(), 4);
    form.Press(Qt::Key_Tab, QStringLiteral("\t"), Qt::ControlModifier);
    EXPECT_EQ(QApplication::focusWidget(), form.After);
    form.Widget->setTabPolicy(QuillgridWidget::TabLeaves);
    form.Widget->setFocus();
    form.Press(Qt::Key_Up);
    form.Type(QStringLiteral("42"));
    form.Events.clear();
    form.Press(Qt::Key_Tab, QStringLiteral("\t"));
    EXPECT_EQ(QApplication::focusWidget(), form.After);
    EXPECT_EQ(form.Events, (Names{"validate count", "change count"})) << "once";
}

TEST_F(QtWidget, WhatIsBeingComposedBelongsToItsCell) {
    using Way = void (*)(QtWidget&);
    const Way ways[] = {
        [](QtWidget& test) { test.form.Press(Qt::Key_Down); },
        [](QtWidget& test) { test.Click(test.ValueArea(3).center()); },
        [](QtWidget& test) { test.form.Widget->commitEdit(); },
        [](QtWidget& test) { test.form.After->setFocus(); },
        [](QtWidget& test) { test.form.Window().close(); },
    };
    for (const Way way : ways) {
        GoTo(1);
        form.Grid().Cells().Item(1)->SetFocus();
        form.Type(QStringLiteral("a"));
        form.Events.clear();
        QInputMethodEvent composing(QString::fromUtf8("ね"), {});
        QApplication::sendEvent(form.Edit(), &composing);
        EXPECT_EQ(form.Events, Names{}) << "nothing is taken over while composing";
        EXPECT_EQ(form.Edit()->text(), QStringLiteral("a"));
        way(*this);
        EXPECT_EQ(TextOf(1), std::string("aね"));
        EXPECT_EQ(TextOf(3), "5");
    }
}

TEST_F(QtWidget, ClosingTheWindowSaysOnceWhyNot) {
    form.Cancel = true;
    GoTo(2);
    form.Type(QStringLiteral("31.2.2026"));
    EXPECT_FALSE(form.Window().close());
    EXPECT_FALSE(form.Widget->shownMessage().isEmpty());
    EXPECT_EQ(QApplication::focusWidget(), form.Edit());
    EXPECT_TRUE(form.Window().close());
    form.Settle();
    EXPECT_FALSE(form.Window().isVisible());
    EXPECT_EQ(form.Events, Names{"refused 20002 date"});
}

TEST_F(QtWidget, TellsWhenTypedTextWaitsAndWhenNoMore) {
    GoTo(1);
    std::vector<bool> told;
    QObject::connect(form.Widget, &QuillgridWidget::typingChanged,
                     [&](bool holds) { told.push_back(holds); });
    const std::vector<void (*)(QtForm&)> ends{
        [](QtForm& f) { f.Press(Qt::Key_Escape, QStringLiteral("\x1b")); },
        [](QtForm& f) {
            f.Press(Qt::Key_Backspace, QStringLiteral("\b"));
            f.Type(QStringLiteral("Müller"));
        },
        [](QtForm& f) { f.Widget->commitEdit(); },
    };
    for (const auto end : ends) {
        told.clear();
        form.Type(QStringLiteral("x"));
        form.Settle();
        EXPECT_TRUE(form.Widget->holdsTypedText());
        end(form);
        form.Settle();
        EXPECT_EQ(told, (std::vector<bool>{true, false}));
    }
}

TEST_F(QtWidget, ClickSelectsAnotherRowAndCommitsTheFirst) {
    GoTo(3);
    form.Type(QStringLiteral("42"));
    Click(ValueArea(1).center());
    EXPECT_EQ(form.Events, (Names{"validate count", "change count", "select name"}));
    EXPECT_EQ(QApplication::focusWidget(), form.Edit());
}

TEST_F(QtWidget, WheelAndScrollBarMoveRowsWithoutEditing) {
    for (int i = 0; i < 60; ++i)
        form.Grid().Add({.Caption = "Zeile", .Value = i, .CellTemplate = qgctInteger});
    GoTo(1);
    auto* bar = form.Widget->findChild<QScrollBar*>();
    ASSERT_TRUE(bar->isVisible());
    Turn(-40);
    EXPECT_EQ(form.Grid().FirstVisibleRow(), 2);
    Turn(-80);
    EXPECT_EQ(form.Grid().FirstVisibleRow(), 4);
    EXPECT_EQ(bar->value(), 4);
    EXPECT_EQ(TextOf(5), "0");
    bar->setValue(30);
    EXPECT_EQ(form.Grid().FirstVisibleRow(), 30);
    EXPECT_EQ(std::count(form.Events.begin(), form.Events.end(), "change"), 0);
    Turn(1'000'000);
    EXPECT_EQ(form.Grid().FirstVisibleRow(), 1);
}

TEST_F(QtWidget, DeletingTheWidgetInAnyOfItsSignalsIsSafe) {
    using Connect = void (*)(QuillgridWidget*);
    const Connect connections[] = {
        [](QuillgridWidget* w) { QObject::connect(w, &QuillgridWidget::change, [w] { delete w; }); },
        [](QuillgridWidget* w) { QObject::connect(w, &QuillgridWidget::validateCell, [w] { delete w; }); },
        [](QuillgridWidget* w) {
            QObject::connect(w, &QuillgridWidget::validateCellError, [w] { delete w; });
        },
        [](QuillgridWidget* w) { QObject::connect(w, &QuillgridWidget::selChange, [w] { delete w; }); },
        [](QuillgridWidget* w) { QObject::connect(w, &QuillgridWidget::beep, [w] { delete w; }); },
        [](QuillgridWidget* w) { QObject::connect(w, &QuillgridWidget::keyWentDown, [w] { delete w; }); },
        [](QuillgridWidget* w) { QObject::connect(w, &QuillgridWidget::keyPressed, [w] { delete w; }); },
        [](QuillgridWidget* w) { QObject::connect(w, &QuillgridWidget::keyWentUp, [w] { delete w; }); },
    };
    const char* const texts[] = {"4.5.2026", "4.5.2026", "31.2.2026", "4.5.2026", "x", "4", "4", "4"};
    for (std::size_t i = 0; i < std::size(connections); ++i) {
        for (const bool byLeaving : {false, true}) {
            QtForm other;
            const QPointer<QuillgridWidget> widget = other.Widget;
            other.Grid().Add({.Key = "d", .Caption = "d", .Value = "3.5.2026", .CellTemplate = qgctDate});
            other.Grid().Add({.Key = "e", .Caption = "e"});
            other.Show();
            connections[i](other.Widget);
            other.Type(QString::fromLatin1(texts[i]));
            if (byLeaving) {
                other.After->setFocus();
            } else {
                other.Enter();
            }
            other.Settle();
            const bool selection = i == 3 && byLeaving; // leaving selects nothing
            EXPECT_EQ(widget.isNull(), !selection) << i << byLeaving;
        }
    }
}

TEST_F(QtWidget, PaintsTheSameFormAtTwiceTheDensity) {
    GoTo(2);
    QImage large(form.Widget->size() * 2, QImage::Format_RGB32);
    large.setDevicePixelRatio(2.0);
    form.Widget->render(&large);
    const QImage small = form.Widget->grab().toImage();
    ASSERT_EQ(small.size() * 2, large.size());
    const QColor label = small.pixelColor(ValueArea(2).left() - 4, ValueArea(2).center().y());
    EXPECT_EQ(label, form.Widget->palette().color(QPalette::Highlight)); // the current row's label
    EXPECT_EQ(large.pixelColor((ValueArea(2).left() - 4) * 2, ValueArea(2).center().y() * 2), label);
    int different = 0;
    for (int y = 0; y < small.height(); ++y) {
        for (int x = 0; x < small.width(); ++x)
            different += std::abs(small.pixelColor(x, y).lightness() -
                                  large.pixelColor(2 * x, 2 * y).lightness()) > 64;
    }
    EXPECT_LT(different, small.width() * small.height() / 20); // only the rims of glyphs
}

TEST_F(QtWidget, FollowsFontAndPalette) {
    GoTo(1);
    const int before = ValueArea(1).height();
    QFont font = form.Widget->font();
    font.setPixelSize(26);
    form.Widget->setFont(font);
    EXPECT_GT(ValueArea(1).height(), before + 8);
    EXPECT_EQ(form.Edit()->font().pixelSize(), 26);
    QPalette dark(QColor(40, 42, 46));
    dark.setColor(QPalette::Base, QColor(20, 20, 20));
    form.Widget->setPalette(dark);
    EXPECT_EQ(form.Edit()->palette().color(QPalette::Base), QColor(20, 20, 20));
    EXPECT_EQ(form.Widget->grab().toImage().pixelColor(ValueArea(3).center()), QColor(20, 20, 20));
}

TEST(Qt, AFormDeletedByAPressOnItsScrollBarOutlivesThePress) {
    QtForm form;
    for (int number = 0; number < 100; ++number)
        form.Grid().Add({.Caption = "Cell", .Value = "text"});
    form.Show();
    const QPointer<QuillgridWidget> widget = form.Widget;
    QObject::connect(form.Widget, &QuillgridWidget::selChange, form.Widget, [&] { delete widget.data(); });
    auto* bar = form.Widget->findChild<QScrollBar*>();
    const QPointF below(bar->width() / 2.0, bar->height() - bar->width() * 1.5);
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QMouseEvent event(type, below, bar->mapToGlobal(below), Qt::LeftButton, Qt::LeftButton, {});
        QApplication::sendEvent(bar, &event);
    }
    EXPECT_TRUE(widget.isNull());
    form.Settle();
}

TEST(QuillgridWidget, FollowsItsLocale) {
    QtForm form;
    form.Grid().Add({.Key = "day",
                     .Caption = "Day",
                     .Value = DateTime{*DayFromDate(2026, 5, 3)},
                     .CellTemplate = qgctDate});
    form.Grid().Add({.Key = "size", .Caption = "Size", .Value = 0.5, .CellTemplate = qgctNumber});
    form.Show();
    form.Edit()->selectAll();
    QtForm::Type(QStringLiteral("4.5.2026"));
    form.Window().setLocale(QLocale(QStringLiteral("en_US")));
    EXPECT_EQ(form.Events, (std::vector<std::string>{"validate day", "change day"})); // read as it was typed
    const auto day = form.Grid().Cells().Item("day");
    EXPECT_EQ(day->Text(), "5/4/2026");
    EXPECT_EQ(form.Edit()->text(), QStringLiteral("5/4/2026"));
    EXPECT_EQ(form.Grid().Cells().Item("size")->Text(), "0.5");
    form.Widget->setLocale(QLocale(QStringLiteral("ar_EG")));
    EXPECT_TRUE(form.Widget->isRightToLeft());
    form.Widget->unsetLocale();
    EXPECT_FALSE(form.Widget->isRightToLeft());
    EXPECT_EQ(day->Text(), "5/4/2026");
}

} // namespace
} // namespace quillgrid::qt
