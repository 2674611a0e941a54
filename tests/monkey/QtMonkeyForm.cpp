#include "tests/monkey/QtMonkeyForm.h"

#include <QApplication>
#include <QPixmap>
#include <QStyleFactory>
#include <QVBoxLayout>

#include <algorithm>

namespace quillgrid::monkey {

using qt::QuillgridWidget;

namespace {

constexpr int DeepestHandler = 2;

} // namespace

QtMonkeyForm::QtMonkeyForm() : window_(new QWidget), other_(new QWidget) {
    auto* layout = new QVBoxLayout(window_.get());
    layout->addWidget(new QLineEdit);
    layout->addWidget(new QLineEdit);
    new QVBoxLayout(other_.get());
    window_->resize(400, 260);
    Create({0, 1, 3, 5});
    QApplication::processEvents();
}

QtMonkeyForm::~QtMonkeyForm() {
    armed_.clear();
}

void QtMonkeyForm::Create(const Step& step) {
    if (depth_ > 1) return; // a handler still runs
    armed_.clear();
    CancelErrors = CancelValues = Doomed = false;
    delete widget_;
    widget_ = new QuillgridWidget(nullptr, step.B % 16 == 15 ? QuillgridWidget::DesignMode
                                                             : QuillgridWidget::UserMode);
    static_cast<QVBoxLayout*>(window_->layout())->insertWidget(1, widget_);
    Listen();
    constexpr CellTemplateConstants Kinds[] = {qgctDate,     qgctboolean, qgctSpin,     qgctCombo,
                                               qgctPassword, qgctlist,    qgctCurrency, qgctTime,
                                               qgctPhone,    qgctNone,    qgctPercent,  qgctColor};
    for (std::uint32_t number = 0; number < 4 + step.C % 14; ++number) {
        const auto cell = widget_->grid().Add({.Caption = Variant("&Cell " + std::to_string(number)),
                                               .CellTemplate = Kinds[(step.A + number) % std::size(Kinds)]});
        if (cell->Template() == qgctCombo || cell->Template() == qgctlist) {
            for (const char* text : {"Berlin", "Bern", "Wien"})
                cell->Listitems().Add({.Text = text});
        }
    }
    widget_->grid().Refresh();
    window_->show();
    window_->activateWindow();
    widget_->setFocus();
}

void QtMonkeyForm::Listen() {
    QuillgridWidget* widget = widget_;
    const auto hear = [&](auto signal, std::uint32_t hook) {
        QObject::connect(widget, signal, widget, [this, hook] { Fire(hook); });
    };
    QObject::connect(widget, &QuillgridWidget::validateCellError, widget,
                     [this](Cell*, ValidationErrConstants, bool* cancel) {
                         *cancel = CancelErrors;
                         Fire(0);
                     });
    QObject::connect(widget, &QuillgridWidget::validateCell, widget, [this](Cell*, bool* cancel) {
        *cancel = CancelValues;
        Fire(1);
    });
    hear(&QuillgridWidget::selChange, 2);
    hear(&QuillgridWidget::change, 3);
    hear(&QuillgridWidget::beep, 4);
    hear(&QuillgridWidget::leaveFocus, 5);
    hear(&QuillgridWidget::imageClick, 6);
    hear(&QuillgridWidget::closeBoxClick, 7);
    hear(&QuillgridWidget::menuClick, 8);
    hear(&QuillgridWidget::propertyChanged, 9);
    hear(&QuillgridWidget::typingChanged, 10);
}

QLineEdit* QtMonkeyForm::Edit() {
    return widget_ ? widget_->findChild<QLineEdit*>() : nullptr;
}

QWidget* QtMonkeyForm::KeyTarget() {
    QWidget* focus = QApplication::focusWidget();
    return focus ? focus : widget_.data();
}

void QtMonkeyForm::Fire(std::uint32_t hook) {
    auto& waiting = armed_[hook];
    if (waiting.empty() || depth_ > DeepestHandler || !widget_) return;
    const Step step = waiting.back();
    waiting.pop_back();
    Act(step);
}

void QtMonkeyForm::Run(const Step& step) {
    if (Doomed) delete widget_; // as the loop of a program would by now
    if (!widget_) Create(step);
    Act(step);
    MayDelete = false;
    if (step.C % 4 == 0) QApplication::processEvents();
}

std::string QtMonkeyForm::Check() {
    if (!widget_) return {};
    Quillgrid& grid = widget_->grid();
    const Cell* current = grid.Cell();
    if (current != grid.RowCell(grid.CurrentRow()))
        return "the current cell is not the cell of the current row";
    if (grid.Silent()) return "Silent did not end";
    bool present = !current;
    for (const auto& cell : grid.Cells()) {
        present = present || cell.get() == current;
        if (cell->ErrorCode() != qgErrNone) return "an error code stays";
    }
    if (!present) return "the current cell is none of the control's";
    const QLineEdit* edit = Edit();
    if (!edit || edit->isHidden()) return {};
    if (!current) return "an edit box without a cell";
    // A hidden widget hears of its new size when it is shown; a mirrored form stands by its width until then.
    if (widget_->testAttribute(Qt::WA_PendingResizeEvent)) return {};
    const QRect value = widget_->onWidget(grid.ValueArea(*current));
    return edit->geometry().isEmpty() || value.contains(edit->geometry())
               ? ""
               : "the edit box is not over the current row";
}

Monkey QtMonkey() {
    return {QtMonkeyForm::Acts(), [](const Steps& steps) -> std::string {
                qputenv("QT_QPA_PLATFORM", "offscreen");
                int count = 1;
                char name[] = "monkey";
                char* arguments[] = {name, nullptr};
                const QApplication application(count, arguments);
                QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
                QtMonkeyForm form;
                std::size_t number = 0;
                for (const Step& step : steps) {
                    ++number;
                    form.Run(step);
                    const std::string wrong = form.Check();
                    if (!wrong.empty()) return wrong + " (step " + std::to_string(number) + ")";
                }
                return {};
            }};
}

} // namespace quillgrid::monkey
