#include "quillgrid/hosts/qt/ModelBinding.h"

#include "quillgrid/hosts/qt/CellDesign.h"

#include <QAbstractItemModel>

#include <algorithm>
#include <utility>

namespace quillgrid::qt {

namespace {

constexpr int Untold = -2; ///< no place of a row, nor the lack of one

} // namespace

ModelBinding::ModelBinding(QuillgridWidget* form, QObject* parent) : FormBinding(form, parent) {}

QAbstractItemModel* ModelBinding::model() const {
    return model_;
}
QModelIndex ModelBinding::rootIndex() const {
    return root_;
}
int ModelBinding::currentIndex() const {
    return row_.isValid() ? row_.row() : -1;
}

bool ModelBinding::setModel(QAbstractItemModel* model) {
    const QPointer<ModelBinding> self(this);
    const QPointer<QAbstractItemModel> wanted(model);
    if (!mayLeave() || !self) return false;
    if (model_) disconnect(model_, nullptr, this, nullptr);
    model_ = wanted;
    root_ = QModelIndex();
    hasRoot_ = false;
    if (model_) listen();
    showRow(-1);
    return true;
}

bool ModelBinding::setRootIndex(const QModelIndex& index) {
    const QPersistentModelIndex wanted(index);
    const QPointer<ModelBinding> self(this);
    if (!mayLeave() || !self || (wanted.isValid() && wanted.model() != model_)) return false;
    root_ = wanted;
    hasRoot_ = root_.isValid();
    showRow(-1);
    return true;
}

void ModelBinding::listen() {
    using Model = QAbstractItemModel;
    connect(model_, &Model::dataChanged, this, &ModelBinding::dataChanged);
    connect(model_, &Model::rowsInserted, this, &ModelBinding::followRow);
    connect(model_, &Model::rowsRemoved, this, &ModelBinding::followRow);
    connect(model_, &Model::rowsMoved, this, &ModelBinding::followRow);
    connect(model_, &Model::columnsInserted, this, &ModelBinding::followRow);
    connect(model_, &Model::columnsRemoved, this, &ModelBinding::followRow);
    connect(model_, &Model::columnsMoved, this, &ModelBinding::followRow);
    connect(model_, &Model::layoutChanged, this, &ModelBinding::followRow);
    connect(model_, &Model::modelReset, this, &ModelBinding::followRow);
    connect(model_, &QObject::destroyed, this, [this] {
        model_ = nullptr;
        showRow(-1);
    });
}

bool ModelBinding::addMapping(const QString& cell, int section, int role) {
    return addField(cell, {.Section = section, .Role = role});
}

void ModelBinding::addCells() {
    const QPointer<ModelBinding> self(this);
    QStringList keys;
    for (int section = 0; self && model_ && section < model_->columnCount(root_); ++section) {
        const QString header = model_->headerData(section, Qt::Horizontal).toString();
        QString key = header.isEmpty() ? QString::number(section + 1) : header;
        for (int number = 2; keys.contains(key, Qt::CaseInsensitive); ++number)
            key = QStringLiteral("%1 (%2)").arg(header).arg(number);
        keys << key;
        const QModelIndex sample = model_->index(std::max(0, currentIndex()), section, root_);
        addCell({.Key = key,
                 .Caption = CaptionOfName(header),
                 .Type = {.Type = sample.data(Qt::EditRole).metaType(), .Nullable = true}});
        addMapping(key, section);
    }
}

int ModelBinding::rowCount() const {
    return model_ && hasRoot_ == root_.isValid() ? model_->rowCount(root_) : 0;
}

bool ModelBinding::setCurrentIndex(int row) {
    if (row < 0 || row >= rowCount()) return false;
    if (row == currentIndex()) return true;
    return setCurrentModelIndex(model_->index(row, 0, root_));
}

bool ModelBinding::setCurrentModelIndex(const QModelIndex& index) {
    if (!index.isValid() || index.model() != model_ || index.parent() != root_) return false;
    const QPersistentModelIndex wanted(index.siblingAtColumn(0)); // input that is written may move it
    if (wanted == row_) return true;
    const QPointer<ModelBinding> self(this);
    if (!mayLeave() || !self || !wanted.isValid()) return false;
    showRow(wanted.row());
    return true;
}

bool ModelBinding::toFirst() {
    return setCurrentIndex(0);
}
bool ModelBinding::toLast() {
    return setCurrentIndex(rowCount() - 1);
}
bool ModelBinding::toNext() {
    return setCurrentIndex(currentIndex() + 1);
}
bool ModelBinding::toPrevious() {
    return setCurrentIndex(currentIndex() - 1);
}

void ModelBinding::showRow(int row) {
    const QPointer<ModelBinding> self(this);
    row_ = model_ && row >= 0 ? QPersistentModelIndex(model_->index(row, 0, root_)) : QPersistentModelIndex();
    place_ = currentIndex();
    if (place_ >= 0) toldPlace_ = Untold; // another row, at the same place perhaps
    showSource();
    if (self) tellRow();
}

void ModelBinding::tellRow() {
    if (std::exchange(toldPlace_, place_) != place_) Q_EMIT currentIndexChanged(place_);
}

/// Rows or columns came, went or changed places.
void ModelBinding::followRow() {
    if (place_ < 0) return;
    if (!row_.isValid()) return showRow(std::min(place_, rowCount() - 1));
    const QPointer<ModelBinding> self(this);
    place_ = row_.row();
    fieldsChanged();
    if (self) tellRow();
}

void ModelBinding::dataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight) {
    if (!row_.isValid() || topLeft.parent() != root_) return;
    if (row_.row() < topLeft.row() || row_.row() > bottomRight.row()) return;
    fieldsChanged([left = topLeft.column(), right = bottomRight.column()](const FieldAddress& field) {
        return field.Section >= left && field.Section <= right;
    });
}

QModelIndex ModelBinding::indexOf(const FieldAddress& field) const {
    return row_.isValid() && field.Section >= 0 ? row_.sibling(row_.row(), field.Section) : QModelIndex();
}

FieldType ModelBinding::fieldType(const FieldAddress& field) const {
    return {.Type = readField(field).metaType(), .Nullable = true};
}

bool ModelBinding::isWritable(const FieldAddress& field) const {
    const QModelIndex index = indexOf(field);
    return index.isValid() && index.flags().testFlags(Qt::ItemIsEditable | Qt::ItemIsEnabled);
}

QVariant ModelBinding::readField(const FieldAddress& field) const {
    return indexOf(field).data(field.Role);
}

bool ModelBinding::writeField(const FieldAddress& field, const QVariant& value) {
    return model_ && model_->setData(indexOf(field), value, field.Role);
}

bool ModelBinding::finishSubmit() {
    return !model_ || model_->submit();
}

void ModelBinding::dropSubmitted() {
    if (model_) model_->revert();
}

} // namespace quillgrid::qt
