#pragma once

#include <qqmlregistration.h>
#include <QQmlComponent>
#include <QQuickItem>
#include <map>
#include <optional>
#include <vector>

#include "ui/models/row_list.h"

namespace tidewatch {

/// A list of rows of one height that makes only those in view, and some around them: a thousand rows cost
/// what twenty do. It is as high as all rows together and scrolls with whatever it lies in; in view is what
/// no ancestor clips. The rows are its children in their order, so that the tabulator and screen readers go
/// through them as they stand, which is what the toolkit's own list view does not keep. The arrow keys go
/// from the row with the focus to the next one.
///
/// The delegate is an item with a property "row"; it is used again for other rows, so it must follow that
/// property.
class LazyColumn : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(tidewatch::RowListModel* model READ model WRITE setModel NOTIFY modelChanged FINAL)
    Q_PROPERTY(QQmlComponent* delegate READ delegate WRITE setDelegate NOTIFY delegateChanged FINAL)
    /// In points.
    Q_PROPERTY(double rowHeight READ rowHeight WRITE setRowHeight NOTIFY rowHeightChanged FINAL)

public:
    /// How many rows are kept on either side of those in view: what the keyboard and a reader come to next.
    static constexpr int spareRows = 8;

    explicit LazyColumn(QQuickItem* parent = nullptr);

    [[nodiscard]] RowListModel* model() const { return model_; }
    void setModel(RowListModel* model);
    [[nodiscard]] QQmlComponent* delegate() const { return delegate_; }
    void setDelegate(QQmlComponent* delegate);
    [[nodiscard]] double rowHeight() const { return rowHeight_; }
    void setRowHeight(double height);

    /// How many delegates there are at this moment, those in wait for another row included.
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
    /// Indexes from `first` on, without `end`.
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

    /// Makes what is in view in a while, once for all changes until then; a window that is not painted gets
    /// it too.
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
