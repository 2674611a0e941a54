// How a program tests its form: keys to the widget, values from the cells, no screen.
#include "quillgrid/hosts/qt/QuillgridWidget.h"

#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace quillgrid;
using namespace quillgrid::qt;

class FormTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void typedDateIsCompletedAndTaken();
    void dateThatDoesNotExistIsRefused();
    void numbersAreBroughtIntoTheirLimits();

private:
    void type(const char* text) {
        QTest::keyClicks(QApplication::focusWidget(), QString::fromLatin1(text));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    }
    std::string textOf(const char* key) { return form_->grid().Cells().Item(key)->Text(); }

    std::unique_ptr<QuillgridWidget> form_;
};

void FormTest::init() {
    QLocale::setDefault(QLocale(QStringLiteral("de_DE"))); // the same on every machine
    form_ = std::make_unique<QuillgridWidget>();
    Quillgrid& grid = form_->grid();
    grid.Clear();
    grid.Add({.Key = "born", .Caption = "Born", .CellTemplate = qgctDate});
    grid.Add({.Key = "seats", .Caption = "Seats", .Value = 2, .CellTemplate = qgctInteger})->SetMax(8);
    grid.Refresh();
    form_->show();
    form_->activateWindow();
    form_->setFocus();
    QVERIFY(QTest::qWaitForWindowActive(form_.get()));
}

void FormTest::typedDateIsCompletedAndTaken() {
    const QSignalSpy changes(form_.get(), &QuillgridWidget::change);
    type("3.5.1931");
    QCOMPARE(textOf("born"), std::string("03.05.1931"));
    QCOMPARE(changes.size(), 1);
    QCOMPARE(form_->grid().Cell()->Key(), std::string("seats")); // Enter went on
}

void FormTest::dateThatDoesNotExistIsRefused() {
    const QSignalSpy refusals(form_.get(), &QuillgridWidget::validateCellError);
    type("31.2.1931");
    QCOMPARE(refusals.size(), 1);
    QCOMPARE(textOf("born"), std::string());
}

void FormTest::numbersAreBroughtIntoTheirLimits() {
    form_->grid().Cells().Item("seats")->SetFocus();
    type("12");
    QCOMPARE(textOf("seats"), std::string("8"));
}

QTEST_MAIN(FormTest)
#include "main.moc"
