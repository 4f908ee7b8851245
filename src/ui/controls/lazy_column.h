#pragma once

#include <qqmlregistration.h>
#include <QQmlComponent>
#include <QQuickItem>
#include <QVariant>
#include <map>
#include <optional>
#include <vector>

#include "ui/models/row_list.h"

namespace tidewatch {

/// A virtualised list of rows of equal height: creates delegates only for visible rows and some around them.
/// It is as high as all rows together and scrolls with its ancestors; rows not clipped by an ancestor are
/// visible. The rows are its children in order, so that the Tab key and screen readers traverse them in
/// order, unlike with the toolkit's list view. The arrow keys move the focus between rows.
///
/// The delegate is an item with a property "row"; it is reused for other rows, so it must be bound to that
/// property.
class LazyColumn : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    /// A RowListModel; anything else is no rows. A variant, as with the toolkit's own views.
    Q_PROPERTY(QVariant model READ model WRITE setModel NOTIFY modelChanged FINAL)
    Q_PROPERTY(QQmlComponent* delegate READ delegate WRITE setDelegate NOTIFY delegateChanged FINAL)
    /// In points.
    Q_PROPERTY(double rowHeight READ rowHeight WRITE setRowHeight NOTIFY rowHeightChanged FINAL)

public:
    /// How many rows are created on either side of the visible ones, for keyboard navigation and screen
    /// readers.
    static constexpr int spareRows = 8;

    explicit LazyColumn(QQuickItem* parent = nullptr);

    [[nodiscard]] QVariant model() const { return QVariant::fromValue(model_); }
    void setModel(const QVariant& model);
    [[nodiscard]] QQmlComponent* delegate() const { return delegate_; }
    void setDelegate(QQmlComponent* delegate);
    [[nodiscard]] double rowHeight() const { return rowHeight_; }
    void setRowHeight(double height);

    /// The number of existing delegates, including spare ones.
    [[nodiscard]] int delegateCount() const { return static_cast<int>(rows_.size() + spare_.size()); }

Q_SIGNALS:
    void modelChanged();
    void delegateChanged();
    void rowHeightChanged();

protected:
    void componentComplete() override;
    void updatePolish() override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;
    void geometryChange(const QRectF& geometry, const QRectF& before) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    /// Indices from `first` on, excluding `end`.
    struct Range {
        int first;
        int end;
        [[nodiscard]] bool contains(int index) const { return index >= first && index < end; }
    };

    void followModel();
    void rowsInserted(int first, int count);
    void rowsRemoved(int first, int count);
    void rowMoved(int from, int to);
    void rowsChanged(int first, int last);
    void startAnew();

    /// Updates the visible rows later, once for all changes until then, even in a window that is not painted.
    void scheduleUpdate();
    void updateRows();

    void watchAncestors();
    void watchWindow(QQuickWindow* window);
    [[nodiscard]] int count() const;
    [[nodiscard]] QVariant valueOf(int index) const;
    [[nodiscard]] Range inView() const;
    [[nodiscard]] std::optional<int> focusedRow() const;
    void letGoOutside(const Range& wanted, std::optional<int> focused);
    QQuickItem* ensure(int index);
    [[nodiscard]] QQuickItem* makeRow(int index);
    void retire(QQuickItem& row);
    void place(QQuickItem& row, int index) const;
    void updateHeight();

    RowListModel* model_ = nullptr;
    QQmlComponent* delegate_ = nullptr;
    double rowHeight_ = 0;
    std::map<int, QQuickItem*> rows_;  ///< by index; owned as children
    std::vector<QQuickItem*> spare_;   ///< without a row at the moment; owned as children
    std::vector<QMetaObject::Connection> ancestors_;
    QMetaObject::Connection focusChanges_;
    bool updateScheduled_ = false;
};

}  // namespace tidewatch
