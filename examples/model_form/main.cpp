// A form beside a table of the same model: the row selected in one is the row edited in the other.
//
//   model_form [--picture FILE.png | --smoke]
#include "examples/common/Example.h"

#include "quillgrid/hosts/qt/ModelBinding.h"
#include "quillgrid/hosts/qt/QuillgridWidget.h"

#include <QDate>
#include <QHBoxLayout>
#include <QStandardItemModel>
#include <QTableView>

using namespace quillgrid;
using namespace quillgrid::qt;

namespace {

class PeopleWindow : public QWidget {
public:
    PeopleWindow() : table_(new QTableView), form_(new QuillgridWidget), binding_(form_) {
        auto* row = new QHBoxLayout(this);
        row->addWidget(table_);
        row->addWidget(form_);
        fillModel();
        table_->setModel(&people_);
        table_->setSelectionBehavior(QTableView::SelectRows);
        table_->setSortingEnabled(true);
        table_->sortByColumn(0, Qt::AscendingOrder);
        table_->resizeColumnsToContents();
        form_->grid().SetLanguage(qglgEnglish);
        binding_.setModel(&people_);
        binding_.addCells();
        form_->grid().Update();
        connectTable();
        binding_.toFirst();
        resize(760, 260);
    }

    /// What the program is about, tried without a user.
    bool works() {
        table_->selectRow(2);
        Cell& name = *form_->grid().Cells().Item("Name");
        const bool follows = name.Text() == people_.index(2, 0).data().toString().toStdString();
        name.SetValue("Zuse");
        if (!follows || !binding_.submit()) return false;
        people_.sort(0);
        return binding_.currentIndex() == people_.rowCount() - 1 && binding_.toFirst() &&
               table_->currentIndex().row() == 0 && name.Text() == "Ada Lovelace";
    }

private:
    void fillModel() {
        people_.setHorizontalHeaderLabels({tr("Name"), tr("Born"), tr("Papers"), tr("Alive")});
        add("Grace Hopper", QDate(1906, 12, 9), 41, false);
        add("Ada Lovelace", QDate(1815, 12, 10), 1, false);
        add("Donald Knuth", QDate(1938, 1, 10), 160, true);
        add("Emmy Noether", QDate(1882, 3, 23), 43, false);
    }

    void add(const char* name, QDate born, int papers, bool alive) {
        const int row = people_.rowCount();
        people_.insertRow(row);
        const QVariantList values{QString::fromUtf8(name), born, papers, alive};
        for (int column = 0; column < values.size(); ++column)
            people_.setData(people_.index(row, column), values[column]);
    }

    /// A row that the form does not leave, because its input is refused, stays selected in the table too.
    void connectTable() {
        const auto select = [this] { table_->selectRow(binding_.currentIndex()); };
        connect(table_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
                [this, select](const QModelIndex& current) {
                    if (!binding_.setCurrentModelIndex(current))
                        QMetaObject::invokeMethod(this, select, Qt::QueuedConnection);
                });
        connect(&binding_, &ModelBinding::currentIndexChanged, this, select);
    }

    QStandardItemModel people_{0, 4};
    QTableView* table_;
    QuillgridWidget* form_;
    ModelBinding binding_;
};

} // namespace

int main(int argc, char** argv) {
    examples::Example example(argc, argv);
    PeopleWindow window;
    return example.Run(window, [&window] { return window.works(); });
}
