#include "ui/controls/lazy_column.h"

#include <QKeyEvent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQmlInfo>
#include <QQuickWindow>
#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

namespace tidewatch {

namespace {

constexpr std::size_t mostSpare = 16;

}  // namespace

LazyColumn::LazyColumn(QQuickItem* parent) : QQuickItem(parent) {}

void LazyColumn::setModel(const QVariant& value) {
    auto* const model = qobject_cast<RowListModel*>(value.value<QObject*>());
    if (model == model_) return;
    if (model_ != nullptr) model_->disconnect(this);
    model_ = model;
    followModel();
    startAnew();
    Q_EMIT modelChanged();
}

void LazyColumn::setDelegate(QQmlComponent* delegate) {
    if (delegate == delegate_) return;
    delegate_ = delegate;
    startAnew();
    for (auto* row : std::exchange(spare_, {})) row->deleteLater();
    Q_EMIT delegateChanged();
}

void LazyColumn::setRowHeight(double height) {
    if (height == rowHeight_) return;
    rowHeight_ = height;
    updateHeight();
    polish();
    Q_EMIT rowHeightChanged();
}

void LazyColumn::followModel() {
    if (model_ == nullptr) return;
    connect(model_, &QAbstractItemModel::rowsInserted, this,
            [this](const QModelIndex&, int first, int last) { rowsInserted(first, last - first + 1); });
    connect(model_, &QAbstractItemModel::rowsRemoved, this,
            [this](const QModelIndex&, int first, int last) { rowsRemoved(first, last - first + 1); });
    connect(model_, &QAbstractItemModel::rowsMoved, this,
            [this](const QModelIndex&, int from, [[maybe_unused]] int last, const QModelIndex&, int to) {
                // Rows move one by one; `to` is the index of the row before which the moved one is put.
                Q_ASSERT(from == last);
                rowMoved(from, to > from ? to - 1 : to);
            });
    connect(
        model_, &QAbstractItemModel::dataChanged, this,
        [this](const QModelIndex& first, const QModelIndex& last) { rowsChanged(first.row(), last.row()); });
    connect(model_, &QAbstractItemModel::modelReset, this, &LazyColumn::startAnew);
    connect(model_, &QObject::destroyed, this, [this] {
        model_ = nullptr;
        startAnew();
    });
}

void LazyColumn::rowsInserted(int first, int count) {
    std::map<int, QQuickItem*> shifted;
    for (const auto& [index, row] : rows_) shifted.emplace(index < first ? index : index + count, row);
    rows_ = std::move(shifted);
    updateHeight();
    scheduleUpdate();
}

void LazyColumn::rowsRemoved(int first, int count) {
    std::map<int, QQuickItem*> shifted;
    for (const auto& [index, row] : rows_) {
        if (index >= first && index < first + count) {
            retire(*row);
        } else {
            shifted.emplace(index < first ? index : index - count, row);
        }
    }
    rows_ = std::move(shifted);
    updateHeight();
    scheduleUpdate();
}

void LazyColumn::rowMoved(int from, int to) {
    const auto movedIndex = [&](int index) {
        if (index == from) return to;
        if (from < index && index <= to) return index - 1;
        if (to <= index && index < from) return index + 1;
        return index;
    };
    std::map<int, QQuickItem*> shifted;
    for (const auto& [index, row] : rows_) shifted.emplace(movedIndex(index), row);
    rows_ = std::move(shifted);
    scheduleUpdate();
}

void LazyColumn::rowsChanged(int first, int last) {
    for (auto found = rows_.lower_bound(first); found != rows_.end() && found->first <= last; ++found) {
        found->second->setProperty("row", valueOf(found->first));
    }
}

void LazyColumn::startAnew() {
    for (const auto& [index, row] : std::exchange(rows_, {})) retire(*row);
    updateHeight();
    scheduleUpdate();
}

void LazyColumn::componentComplete() {
    QQuickItem::componentComplete();
    watchAncestors();
    updateRows();
}

void LazyColumn::updatePolish() {
    updateRows();
}

void LazyColumn::scheduleUpdate() {
    polish();
    if (std::exchange(updateScheduled_, true)) return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            updateScheduled_ = false;
            updateRows();
        },
        Qt::QueuedConnection);
}

void LazyColumn::updateRows() {
    if (!isComponentComplete() || delegate_ == nullptr || rowHeight_ <= 0) return;
    const auto wanted = inView();
    const auto focused = focusedRow();
    letGoOutside(wanted, focused);
    for (int index = wanted.first; index < wanted.end; ++index) ensure(index);
    if (focused) {
        // The focused row and its neighbours in tab order are kept, wherever they have been scrolled to.
        for (int index = *focused - 1; index <= *focused + 1; ++index) ensure(index);
    }
    QQuickItem* previous = nullptr;
    for (const auto& [index, row] : rows_) {
        place(*row, index);
        if (previous != nullptr) row->stackAfter(previous);
        previous = row;
    }
}

void LazyColumn::itemChange(ItemChange change, const ItemChangeData& data) {
    QQuickItem::itemChange(change, data);
    if (change == ItemSceneChange) watchWindow(data.window);
    if (change == ItemParentHasChanged && isComponentComplete()) watchAncestors();
}

void LazyColumn::geometryChange(const QRectF& geometry, const QRectF& before) {
    QQuickItem::geometryChange(geometry, before);
    polish();
}

void LazyColumn::keyPressEvent(QKeyEvent* event) {
    const auto focused = focusedRow();
    const bool arrow = event->key() == Qt::Key_Up || event->key() == Qt::Key_Down;
    if (!focused || !arrow) {
        QQuickItem::keyPressEvent(event);
        return;
    }
    auto* next = ensure(*focused + (event->key() == Qt::Key_Up ? -1 : 1));
    if (next != nullptr) next->forceActiveFocus(Qt::TabFocusReason);
    event->accept();
}

void LazyColumn::watchAncestors() {
    for (const auto& connection : std::exchange(ancestors_, {})) disconnect(connection);
    for (auto* ancestor = parentItem(); ancestor != nullptr; ancestor = ancestor->parentItem()) {
        ancestors_.push_back(connect(ancestor, &QQuickItem::yChanged, this, &QQuickItem::polish));
        ancestors_.push_back(connect(ancestor, &QQuickItem::heightChanged, this, &QQuickItem::polish));
        ancestors_.push_back(connect(ancestor, &QQuickItem::clipChanged, this, &QQuickItem::polish));
        ancestors_.push_back(
            connect(ancestor, &QQuickItem::parentChanged, this, &LazyColumn::watchAncestors));
    }
    polish();
}

void LazyColumn::watchWindow(QQuickWindow* window) {
    disconnect(focusChanges_);
    if (window == nullptr) return;
    focusChanges_ = connect(window, &QQuickWindow::activeFocusItemChanged, this, &QQuickItem::polish);
}

int LazyColumn::count() const {
    return model_ == nullptr ? 0 : model_->rowCount({});
}

QVariant LazyColumn::valueOf(int index) const {
    return model_->data(model_->index(index, 0), RowListModel::rowRole);
}

LazyColumn::Range LazyColumn::inView() const {
    double top = 0;
    double bottom = height();
    for (const auto* ancestor = parentItem(); ancestor != nullptr; ancestor = ancestor->parentItem()) {
        if (!ancestor->clip() && ancestor->parentItem() != nullptr) continue;
        const auto part = mapRectFromItem(ancestor, {0, 0, ancestor->width(), ancestor->height()});
        top = std::max(top, part.top());
        bottom = std::min(bottom, part.bottom());
    }
    // If it is out of view altogether, the nearer end counts.
    top = std::min(top, height());
    bottom = std::max(bottom, top);
    const int first = static_cast<int>(std::floor(top / rowHeight_)) - spareRows;
    const int end = static_cast<int>(std::ceil(bottom / rowHeight_)) + spareRows;
    return {std::max(first, 0), std::min(end, count())};
}

std::optional<int> LazyColumn::focusedRow() const {
    const auto* focused = window() == nullptr ? nullptr : window()->activeFocusItem();
    while (focused != nullptr && focused->parentItem() != this) focused = focused->parentItem();
    if (focused == nullptr) return std::nullopt;
    const auto found =
        std::find_if(rows_.begin(), rows_.end(), [&](const auto& row) { return row.second == focused; });
    return found == rows_.end() ? std::nullopt : std::optional(found->first);
}

void LazyColumn::letGoOutside(const Range& wanted, std::optional<int> focused) {
    for (auto row = rows_.begin(); row != rows_.end();) {
        const bool besideFocus = focused && std::abs(row->first - *focused) <= 1;
        if (wanted.contains(row->first) || besideFocus) {
            ++row;
        } else {
            retire(*row->second);
            row = rows_.erase(row);
        }
    }
}

QQuickItem* LazyColumn::ensure(int index) {
    if (index < 0 || index >= count()) return nullptr;
    if (const auto found = rows_.find(index); found != rows_.end()) return found->second;
    auto* row = makeRow(index);
    if (row != nullptr) rows_.emplace(index, row);
    return row;
}

QQuickItem* LazyColumn::makeRow(int index) {
    if (!spare_.empty()) {
        auto* row = spare_.back();
        spare_.pop_back();
        row->setProperty("row", valueOf(index));
        place(*row, index);
        row->setParentItem(this);
        row->setVisible(true);
        return row;
    }
    auto* context = delegate_->creationContext();
    auto* object = delegate_->beginCreate(context == nullptr ? qmlContext(this) : context);
    auto* row = qobject_cast<QQuickItem*>(object);
    if (row == nullptr) {
        qmlWarning(this) << "The delegate is no item: " << delegate_->errorString();
        if (object != nullptr) delegate_->completeCreate();
        delete object;
        return nullptr;
    }
    row->setParent(this);
    QQmlEngine::setObjectOwnership(row, QQmlEngine::CppOwnership);
    delegate_->setInitialProperties(row, {{"row", valueOf(index)}});
    place(*row, index);
    row->setParentItem(this);
    delegate_->completeCreate();
    return row;
}

void LazyColumn::retire(QQuickItem& row) {
    // Hover, press and focus must not carry over to the next row that reuses it.
    auto* focused = window() == nullptr ? nullptr : window()->activeFocusItem();
    if (focused != nullptr && row.isAncestorOf(focused)) focused->setFocus(false);
    row.setFocus(false);
    row.setVisible(false);
    row.setParentItem(nullptr);
    if (spare_.size() < mostSpare) {
        spare_.push_back(&row);
    } else {
        row.deleteLater();
    }
}

void LazyColumn::place(QQuickItem& row, int index) const {
    row.setPosition({0, index * rowHeight_});
    row.setSize({width(), rowHeight_});
}

void LazyColumn::updateHeight() {
    setImplicitHeight(count() * rowHeight_);
}

}  // namespace tidewatch
