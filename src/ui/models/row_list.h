#pragma once

#include <qqmlregistration.h>
#include <QAbstractListModel>
#include <QHash>
#include <QSet>
#include <QVariant>
#include <algorithm>
#include <iterator>
#include <vector>

namespace tidewatch {

/// A list model whose rows are updated in place, so that unchanged rows keep their delegates. Every row has
/// the single role "row".
class RowListModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Given by the presenters")

public:
    enum Role { rowRole = Qt::UserRole };

    using QAbstractListModel::QAbstractListModel;

    [[nodiscard]] QHash<int, QByteArray> roleNames() const override { return {{rowRole, "row"}}; }
};

/// A list of `Row`s: equality-comparable values with a unique `id`.
template <class Row>
class RowList final : public RowListModel {
public:
    using RowListModel::RowListModel;

    [[nodiscard]] const std::vector<Row>& rows() const { return rows_; }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : static_cast<int>(rows_.size());
    }

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override {
        if (role != rowRole || !checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
        return QVariant::fromValue(rows_[static_cast<std::size_t>(index.row())]);
    }

    /// Makes the list equal to `target` by removing, moving, inserting and changing single rows.
    void setRows(const std::vector<Row>& target) {
        removeAllBut(target);
        for (std::size_t place = 0; place < target.size(); ++place) bringTo(place, target[place]);
    }

private:
    static auto withId(const Row& wanted) {
        return [&wanted](const Row& row) { return row.id == wanted.id; };
    }

    void removeAllBut(const std::vector<Row>& target) {
        QSet<decltype(Row::id)> kept;
        for (const auto& row : target) kept.insert(row.id);
        for (auto place = rows_.size(); place-- > 0;) {
            if (kept.contains(rows_[place].id)) continue;
            beginRemoveRows({}, static_cast<int>(place), static_cast<int>(place));
            rows_.erase(rows_.begin() + static_cast<std::ptrdiff_t>(place));
            endRemoveRows();
        }
    }

    void bringTo(std::size_t place, const Row& row) {
        const auto here = rows_.begin() + static_cast<std::ptrdiff_t>(place);
        const auto found = std::find_if(here, rows_.end(), withId(row));
        const int to = static_cast<int>(place);
        if (found == rows_.end()) {
            beginInsertRows({}, to, to);
            rows_.insert(here, row);
            endInsertRows();
            return;
        }
        if (found != here) {
            const int from = static_cast<int>(found - rows_.begin());
            beginMoveRows({}, from, from, {}, to);
            std::rotate(here, found, found + 1);
            endMoveRows();
        }
        if (*here == row) return;
        *here = row;
        Q_EMIT dataChanged(index(to), index(to), {rowRole});
    }

    std::vector<Row> rows_;
};

}  // namespace tidewatch
