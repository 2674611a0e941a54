#include "bench/PaintSubjects.h"

#include "quillgrid/hosts/qt/QuillgridWidget.h"

#include <QAbstractScrollArea>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>
#include <QTableWidget>

#include <algorithm>
#include <cstdio>

namespace quillgrid::bench {

namespace {

using qt::QuillgridWidget;

/// The same height for all, so that the same number of rows is seen.
int RowHeightOf(const QWidget& widget) {
    return widget.fontMetrics().height() + 5;
}

std::string NumberedText(const char* pattern, unsigned number) {
    char text[48];
    std::snprintf(text, sizeof text, pattern, number);
    return text;
}

class QuillgridForm : public PaintSubject {
public:
    QuillgridForm(LabelColumnWidth width, bool grouped) : grouped_(grouped) {
        widget_.resize(FormWidth, FormHeight);
        widget_.grid().SetLabelWidth(width == LabelColumnWidth::Fixed ? LabelColumn - 6 : 0);
        widget_.grid().SetGrouped(grouped);
    }

    QWidget& Window() override { return widget_; }
    void Fill(const FormTexts& texts) override {
        const std::size_t count = texts.Utf8Captions.size();
        for (std::size_t row = 0; row < count; ++row) {
            if (grouped_ && row % std::max<std::size_t>(count / GroupsOfForm, 1) == 0)
                widget_.grid().AddGroup({.Key = "group" + std::to_string(row)});
            widget_.grid().Add({.Caption = texts.Utf8Captions[row], .Value = texts.Utf8Values[row]});
        }
        widget_.grid().Refresh();
    }
    int VisibleRows() override { return widget_.grid().VisibleRows(); }
    void ScrollTo(int row) override { widget_.findChild<QScrollBar*>()->setValue(row + 1); }
    void ChangeValue(int row, const QString& text) override {
        const auto cell = widget_.grid().Cells().At(static_cast<std::size_t>(row) + 1);
        cell->SetText(text.toStdString());
        cell->Refresh();
    }
    void Sort(bool byCaption) override {
        widget_.grid().SetSorted(byCaption);
        widget_.grid().Refresh();
    }
    void Fold(bool collapsed) override {
        widget_.grid().Groups().Item(1)->SetExpanded(!collapsed);
        widget_.grid().Refresh();
    }

private:
    QuillgridWidget widget_;
    bool grouped_;
};

class TableForm : public PaintSubject {
public:
    TableForm() {
        table_.resize(FormWidth, FormHeight);
        table_.setColumnCount(2);
        table_.horizontalHeader()->hide();
        table_.verticalHeader()->hide();
        table_.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
        table_.verticalHeader()->setMinimumSectionSize(1);
        table_.verticalHeader()->setDefaultSectionSize(RowHeightOf(table_));
        table_.setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
        table_.setColumnWidth(0, LabelColumn);
        table_.setColumnWidth(1, FormWidth - LabelColumn - 20);
    }

    QWidget& Window() override { return table_; }
    void Fill(const FormTexts& texts) override {
        const int count = static_cast<int>(texts.Captions.size());
        table_.setRowCount(count);
        for (int row = 0; row < count; ++row) {
            table_.setItem(row, 0, new QTableWidgetItem(texts.Captions[static_cast<std::size_t>(row)]));
            table_.setItem(row, 1, new QTableWidgetItem(texts.Values[static_cast<std::size_t>(row)]));
        }
    }
    int VisibleRows() override {
        return std::min(table_.viewport()->height() / RowHeightOf(table_) + 1, table_.rowCount());
    }
    void ScrollTo(int row) override { table_.verticalScrollBar()->setValue(row); }
    void ChangeValue(int row, const QString& text) override { table_.item(row, 1)->setText(text); }
    void Sort(bool byCaption) override { table_.sortItems(byCaption ? 0 : 1); }
    void Fold(bool collapsed) override {
        const int tenth = table_.rowCount() / GroupsOfForm;
        for (int row = 0; row < tenth; ++row)
            table_.setRowHidden(row, collapsed);
    }

private:
    QTableWidget table_;
};

class FormLayoutForm : public PaintSubject {
public:
    FormLayoutForm() {
        area_.resize(FormWidth, FormHeight);
        area_.setWidgetResizable(true);
    }

    QWidget& Window() override { return area_; }
    void Fill(const FormTexts& texts) override {
        auto* const form = new QWidget;
        auto* const layout = new QFormLayout(form);
        for (std::size_t row = 0; row < texts.Captions.size(); ++row) {
            edits_.push_back(new QLineEdit(texts.Values[row]));
            layout->addRow(texts.Captions[row], edits_.back());
        }
        area_.setWidget(form);
    }
    int VisibleRows() override {
        return std::min(area_.viewport()->height() / Pitch() + 1, static_cast<int>(edits_.size()));
    }
    void ScrollTo(int row) override { area_.verticalScrollBar()->setValue(row * Pitch()); }
    void ChangeValue(int row, const QString& text) override {
        edits_[static_cast<std::size_t>(row)]->setText(text);
    }
    void Sort(bool) override {}
    void Fold(bool) override {}

private:
    int Pitch() const { return std::max(edits_[1]->y() - edits_[0]->y(), 1); }

    QScrollArea area_;
    std::vector<QLineEdit*> edits_;
};

/// What a careful developer writes for two columns of text: every call goes straight to the painter.
class HandPainter : public QAbstractScrollArea, public PaintSubject {
public:
    HandPainter() {
        resize(FormWidth, FormHeight);
        setFrameShape(QFrame::NoFrame);
        viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    }

    QWidget& Window() override { return *this; }
    void Fill(const FormTexts& texts) override {
        captions_ = texts.Captions;
        values_ = texts.Values;
        verticalScrollBar()->setRange(0, std::max(Count() - VisibleRows() + 1, 0));
    }
    int VisibleRows() override { return std::min(FormHeight / RowHeightOf(*this), Count()); }
    void ScrollTo(int row) override { verticalScrollBar()->setValue(row); }
    void ChangeValue(int row, const QString& text) override {
        values_[static_cast<std::size_t>(row)] = text;
        const int height = RowHeightOf(*this);
        viewport()->update(0, (row - verticalScrollBar()->value()) * height, viewport()->width(), height);
    }
    void Sort(bool) override {}
    void Fold(bool) override {}

protected:
    void scrollContentsBy(int, int) override { viewport()->update(); }
    void paintEvent(QPaintEvent* event) override {
        QPainter painter(viewport());
        const int height = RowHeightOf(*this);
        const int first = event->rect().top() / height;
        const int last = std::min(event->rect().bottom() / height, Count() - 1);
        for (int place = first; place <= last; ++place)
            PaintRow(painter, place * height, static_cast<std::size_t>(place + verticalScrollBar()->value()));
    }

private:
    int Count() const { return static_cast<int>(captions_.size()); }
    void PaintRow(QPainter& painter, int top, std::size_t row) {
        if (row >= captions_.size()) return;
        const int height = RowHeightOf(*this);
        const QRect label(0, top, LabelColumn, height);
        const QRect value(LabelColumn, top, viewport()->width() - LabelColumn, height);
        painter.fillRect(label, palette().window());
        painter.fillRect(value, palette().base());
        painter.setPen(palette().color(QPalette::Midlight));
        painter.drawLine(label.bottomLeft(), value.bottomRight());
        painter.drawLine(label.topRight(), label.bottomRight());
        painter.setPen(palette().color(QPalette::Text));
        painter.drawText(label.adjusted(3, 0, -3, 0), Qt::AlignVCenter | Qt::TextSingleLine, captions_[row]);
        painter.drawText(value.adjusted(3, 0, -3, 0), Qt::AlignVCenter | Qt::TextSingleLine, values_[row]);
    }

    std::vector<QString> captions_;
    std::vector<QString> values_;
};

} // namespace

FormTexts::FormTexts(int rows) {
    unsigned random = 12'345;
    for (unsigned row = 0; row < static_cast<unsigned>(rows); ++row) {
        random = random * 1'103'515'245U + 12'345U;
        Utf8Captions.push_back(NumberedText("Customer %05u", (random >> 8U) % 100'000U));
        Utf8Values.push_back(NumberedText("%06u, High Street", row));
        Captions.push_back(QString::fromStdString(Utf8Captions.back()));
        Values.push_back(QString::fromStdString(Utf8Values.back()));
    }
}

std::unique_ptr<PaintSubject> MakeQuillgrid(LabelColumnWidth width, bool grouped) {
    return std::make_unique<QuillgridForm>(width, grouped);
}
std::unique_ptr<PaintSubject> MakeTable() {
    return std::make_unique<TableForm>();
}
std::unique_ptr<PaintSubject> MakeFormLayout() {
    return std::make_unique<FormLayoutForm>();
}
std::unique_ptr<PaintSubject> MakeHandPainter() {
    return std::make_unique<HandPainter>();
}

} // namespace quillgrid::bench
