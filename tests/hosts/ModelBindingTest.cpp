#include "quillgrid/hosts/qt/ModelBinding.h"

#include "tests/hosts/BoundForm.h"

#include <QSortFilterProxyModel>
#include <QStandardItemModel>

#include <gtest/gtest.h>

namespace quillgrid::qt {
namespace {

using Told = std::vector<std::string>;

/// Three columns: name, age, born. Refuses ages of four digits.
class People : public QStandardItemModel {
public:
    explicit People(int rows) : QStandardItemModel(0, 3) {
        setHorizontalHeaderLabels({QStringLiteral("Name"), QStringLiteral("age"), QStringLiteral("Name")});
        for (int row = 0; row < rows; ++row)
            Add(row);
    }
    void Add(int number) {
        appendRow(
            {new QStandardItem(QStringLiteral("P%1").arg(number)), new QStandardItem, new QStandardItem});
        QStandardItemModel::setData(index(rowCount() - 1, 1), number);
    }
    bool setData(const QModelIndex& where, const QVariant& value, int role = Qt::EditRole) override {
        return where.isValid() && value.toInt() < 1000 && QStandardItemModel::setData(where, value, role);
    }
    bool submit() override {
        ++Submits;
        return Submittable;
    }

    int Submits = 0;
    bool Submittable = true;
};

class RowInAForm : public testing::Test {
protected:
    RowInAForm() {
        form.Grid().Add({.Key = "name"});
        form.Grid().Add({.Key = "age", .CellTemplate = qgctInteger});
        form.Grid().Add({.Key = "born", .CellTemplate = qgctDate});
        form.Listen(*binding);
        QObject::connect(binding.get(), &ModelBinding::currentIndexChanged, form.Widget,
                         [this](int row) { form.Told.push_back("row " + std::to_string(row)); });
        binding->setModel(model.get());
        binding->addMapping(QStringLiteral("name"), 0);
        binding->addMapping(QStringLiteral("age"), 1);
        binding->addMapping(QStringLiteral("born"), 2);
        form.Show();
    }

    BoundForm form;
    std::unique_ptr<People> model = std::make_unique<People>(4);
    std::unique_ptr<ModelBinding> binding = std::make_unique<ModelBinding>(form.Widget);
};

TEST_F(RowInAForm, NavigatesLikeAMapper) {
    EXPECT_EQ(binding->currentIndex(), -1);
    EXPECT_TRUE(form.At("name").Locked());
    EXPECT_TRUE(binding->toFirst());
    EXPECT_EQ(form.TextAt("name"), "P0");
    EXPECT_FALSE(form.At("name").Locked());
    EXPECT_FALSE(binding->toPrevious());
    EXPECT_TRUE(binding->toLast());
    EXPECT_FALSE(binding->toNext());
    EXPECT_TRUE(binding->toPrevious());
    EXPECT_TRUE(binding->setCurrentModelIndex(model->index(1, 2)));
    EXPECT_FALSE(binding->setCurrentIndex(4));
    EXPECT_FALSE(binding->setCurrentIndex(-1));
    EXPECT_FALSE(binding->setCurrentModelIndex(People(1).index(0, 0)));
    EXPECT_EQ(form.TextAt("age"), "1");
    EXPECT_EQ(form.TakeTold(), (Told{"row 0", "row 3", "row 2", "row 1"}));
}

TEST_F(RowInAForm, TypedTextGoesAlongWithNavigation) {
    binding->toFirst();
    form.TypeAt("age", QStringLiteral("44"));
    EXPECT_TRUE(binding->toNext());
    EXPECT_EQ(model->index(0, 1).data(), 44);
    EXPECT_EQ(form.Edit()->text(), QStringLiteral("1"));
    EXPECT_EQ(model->index(1, 1).data(), 1);
    EXPECT_EQ(model->Submits, 2);
    form.TakeTold();
    form.TypeAt("age", QStringLiteral("1000"));
    EXPECT_FALSE(binding->toNext());
    EXPECT_EQ(form.TakeTold(), (Told{"dirty", "NotTaken age 1000", "clean"}));
    EXPECT_EQ(form.TextAt("age"), "1");
    model->Submittable = false;
    EXPECT_FALSE(binding->toNext());
    EXPECT_EQ(form.TakeTold(), Told{"NotTaken  "});
    EXPECT_EQ(binding->currentIndex(), 1);
}

TEST_F(RowInAForm, ManualInputKeepsTheRowUntilItIsDecided) {
    binding->setSubmitPolicy(FormBinding::ManualSubmit);
    binding->toFirst();
    form.EnterAt("name", QStringLiteral("Ada"));
    EXPECT_EQ(model->index(0, 0).data(), QStringLiteral("P0"));
    EXPECT_FALSE(binding->toNext());
    EXPECT_FALSE(binding->setModel(nullptr));
    model->setData(model->index(0, 1), 5);
    EXPECT_EQ(form.TextAt("age"), "5");
    EXPECT_TRUE(binding->submit());
    EXPECT_EQ(model->index(0, 0).data(), QStringLiteral("Ada"));
    EXPECT_TRUE(binding->toNext());
    form.EnterAt("name", QStringLiteral("Eva"));
    model->setData(model->index(1, 0), QStringLiteral("theirs"));
    EXPECT_EQ(form.TextAt("name"), "Eva");
    model->setData(model->index(1, 0), QStringLiteral("Eva")); // the same in the end
    EXPECT_FALSE(binding->isDirty());
    EXPECT_EQ(form.TakeTold(), (Told{"row 0", "dirty", "clean", "row 1", "dirty", "conflict name", "clean"}));
    form.EnterAt("name", QStringLiteral("Ida"));
    binding->revert();
    EXPECT_EQ(form.TextAt("name"), "Eva");
    EXPECT_TRUE(binding->toNext());
}

TEST_F(RowInAForm, FollowsTheRowWhereItGoes) {
    binding->setCurrentIndex(2);
    form.TakeTold();
    model->insertRow(0);
    EXPECT_EQ(form.TakeTold(), Told{"row 3"});
    model->removeRow(0);
    model->sort(0, Qt::DescendingOrder);
    EXPECT_EQ(form.TakeTold(), (Told{"row 2", "row 1"}));
    EXPECT_EQ(form.TextAt("name"), "P2");
    model->insertColumn(0);
    EXPECT_EQ(form.TextAt("name") + form.TextAt("age"), ""); // sections are counted from the left
    EXPECT_EQ(form.TakeTold(), (Told{"NotShown age ", "NotShown born "}));
    model->removeColumn(0);
    EXPECT_EQ(form.TextAt("name"), "P2");
    form.TakeTold();
    form.TypeAt("name", QStringLiteral("lost"));
    model->removeRow(1);
    EXPECT_EQ(form.TakeTold(), (Told{"dirty", "SourceGone name lost", "clean", "row 1"}));
    EXPECT_EQ(form.TextAt("name"), "P1"); // now in its place
    model->removeRows(1, 2);
    EXPECT_EQ(form.TextAt("name"), "P3");
    model->removeRow(0);
    EXPECT_EQ(form.TextAt("name"), "");
    EXPECT_TRUE(form.At("name").Locked());
    EXPECT_EQ(form.TakeTold(), (Told{"row 0", "row -1"}));
    model->Add(9);
    EXPECT_EQ(binding->currentIndex(), -1);
}

TEST_F(RowInAForm, SurvivesResetsAndTheEndOfTheModel) {
    binding->setCurrentIndex(2);
    model->clear();
    EXPECT_EQ(binding->currentIndex(), -1);
    EXPECT_EQ(form.TextAt("name"), "");
    model->setColumnCount(3);
    model->Add(7);
    EXPECT_TRUE(binding->toFirst());
    EXPECT_EQ(form.TextAt("name"), "P7");
    model.reset();
    EXPECT_EQ(binding->model(), nullptr);
    EXPECT_EQ(form.TextAt("name"), "");
    EXPECT_FALSE(binding->toFirst());
    EXPECT_TRUE(binding->submit());
}

TEST_F(RowInAForm, AFilterMayTakeTheRowThatIsWritten) {
    QSortFilterProxyModel filtered;
    filtered.setSourceModel(model.get());
    filtered.setFilterRegularExpression(QStringLiteral("^P"));
    binding->setModel(&filtered);
    binding->setCurrentIndex(1);
    form.TakeTold();
    form.EnterAt("name", QStringLiteral("Zoe"));
    EXPECT_EQ(model->index(1, 0).data(), QStringLiteral("Zoe"));
    EXPECT_EQ(form.TextAt("name"), "P2"); // now in its place
    EXPECT_EQ(form.TakeTold(), (Told{"dirty", "clean", "row 1"}));
    binding->setSubmitPolicy(FormBinding::ManualSubmit);
    form.EnterAt("name", QStringLiteral("Yan"));
    form.EnterAt("age", QStringLiteral("77"));
    form.TakeTold();
    EXPECT_FALSE(binding->submit());
    EXPECT_EQ(model->index(2, 0).data(), QStringLiteral("Yan"));
    EXPECT_EQ(model->index(3, 1).data(), 3);
    EXPECT_EQ(form.TakeTold(), (Told{"SourceGone age 77", "clean", "row 1"}));
    binding->setModel(nullptr);
}

TEST_F(RowInAForm, RootsAndItemFlagsAreKept) {
    auto* root = new QStandardItem(QStringLiteral("root"));
    root->appendRow({new QStandardItem(QStringLiteral("child")), new QStandardItem(QStringLiteral("x"))});
    root->child(0, 1)->setEditable(false);
    root->child(0, 1)->setText(QStringLiteral("12"));
    model->appendRow(root);
    EXPECT_TRUE(binding->setRootIndex(root->index()));
    EXPECT_TRUE(binding->toFirst());
    EXPECT_EQ(form.TextAt("name") + form.TextAt("age"), "child12");
    EXPECT_FALSE(form.At("name").Locked());
    EXPECT_TRUE(form.At("age").Locked());
    model->setData(model->index(0, 0), QStringLiteral("elsewhere"));
    EXPECT_EQ(form.TextAt("name"), "child");
    root->child(0, 1)->setEditable(true);
    EXPECT_FALSE(form.At("age").Locked());
    form.At("age").SetValue(13);
    EXPECT_TRUE(binding->submit());
    EXPECT_EQ(root->child(0, 1)->data(Qt::EditRole), QStringLiteral("13")); // text it was
    model->removeRow(4);
    EXPECT_EQ(binding->currentIndex(), -1);
    EXPECT_FALSE(binding->toFirst()); // not the rows at the top
}

TEST_F(RowInAForm, MakesCellsOfHeaders) {
    form.Grid().Clear();
    binding->clearMapping();
    binding->addCells();
    EXPECT_EQ(binding->mappedCells(),
              (QStringList{QStringLiteral("Name"), QStringLiteral("age"), QStringLiteral("Name (2)")}));
    EXPECT_EQ(form.At("age").Caption(), "Age");
    EXPECT_EQ(form.At("age").Template(), qgctInteger);
    EXPECT_EQ(form.At("Name (2)").Caption(), "Name");
}

TEST(ModelBinding, AnyoneMayEndAnyTime) {
    enum Victim { TheForm, TheBinding, TheModel, TheRow };
    enum Moment { AtData, AtIndex, AtChange };
    for (const int victim : {TheForm, TheBinding, TheModel, TheRow}) {
        for (const int moment : {AtData, AtIndex, AtChange}) {
            if (victim == TheModel && moment == AtData) continue; // its own items would not survive it
            SCOPED_TRACE(victim * 10 + moment);
            BoundForm form;
            form.Grid().Add({.Key = "name"});
            form.Grid().Add({.Key = "age", .CellTemplate = qgctInteger});
            QPointer<QuillgridWidget> widget = form.Widget;
            QPointer<People> model = new People(3);
            QPointer<ModelBinding> binding = new ModelBinding(widget, widget);
            binding->setModel(model);
            binding->addMapping(QStringLiteral("name"), 0);
            binding->addMapping(QStringLiteral("age"), 1);
            binding->setCurrentIndex(1);
            form.Show();
            int ends = 0;
            const auto end = [&] {
                if (++ends > 1) return;
                if (victim == TheForm) delete widget;
                if (victim == TheBinding) delete binding;
                if (victim == TheModel) delete model;
                if (victim == TheRow && model) model->removeRow(1);
            };
            if (moment == AtData) QObject::connect(model, &People::dataChanged, qApp, end);
            if (moment == AtIndex) QObject::connect(binding, &ModelBinding::currentIndexChanged, qApp, end);
            if (moment == AtChange) QObject::connect(widget, &QuillgridWidget::change, qApp, end);
            form.TypeAt("age", QStringLiteral("5"));
            binding->toNext();
            QApplication::processEvents();
            EXPECT_GE(ends, 1);
            if (binding) binding->toFirst();
            delete model;
            delete binding;
        }
    }
}

} // namespace
} // namespace quillgrid::qt
