#pragma once

#include <qqmlregistration.h>
#include <QColor>
#include <QObject>
#include <QPointF>
#include <QStringList>
#include <functional>

#include "analysis/views/dashboard_tab_presenter.h"
#include "ui/models/row_list.h"

namespace tidewatch {

/// A filter switch of a tier.
class TierSwitch final {
    Q_GADGET
    QML_VALUE_TYPE(tierSwitch)
    Q_PROPERTY(QString id MEMBER id FINAL)
    Q_PROPERTY(QString title MEMBER title FINAL)
    Q_PROPERTY(QColor color MEMBER color FINAL)
    Q_PROPERTY(bool on MEMBER on FINAL)

public:
    QString id;
    QString title;
    QColor color;
    bool on = false;

    bool operator==(const TierSwitch&) const = default;
};

/// An application in the table.
class AppDetails final {
    Q_GADGET
    QML_VALUE_TYPE(appDetails)
    Q_PROPERTY(QString id MEMBER id FINAL)
    Q_PROPERTY(QString iconName MEMBER iconName FINAL)
    Q_PROPERTY(QString symbolName MEMBER symbolName FINAL)
    Q_PROPERTY(QString name MEMBER name FINAL)
    Q_PROPERTY(QString category MEMBER category FINAL)
    Q_PROPERTY(QString tier MEMBER tier FINAL)
    Q_PROPERTY(QColor color MEMBER color FINAL)
    Q_PROPERTY(QString time MEMBER time FINAL)
    Q_PROPERTY(QString share MEMBER share FINAL)
    Q_PROPERTY(double fraction MEMBER fraction FINAL)
    Q_PROPERTY(QString accessibleText MEMBER accessibleText FINAL)

public:
    QString id;
    QString iconName;
    QString symbolName;
    QString name;
    QString category;
    QString tier;
    QColor color;  ///< of the tier
    QString time;
    QString share;
    double fraction = 0;  ///< the same share, 0 to 1
    QString accessibleText{};

    bool operator==(const AppDetails&) const = default;
};

/// The table of the day's applications, with filters. Main thread only.
class DetailsPresenter final : public tidewatch::DashboardTabPresenter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Given by the composition of the program")
    Q_PROPERTY(tidewatch::RowListModel* tiers READ tiers CONSTANT FINAL)
    Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY searchTextChanged FINAL)
    Q_PROPERTY(QString searchPrompt READ searchPrompt CONSTANT FINAL)
    Q_PROPERTY(QList<QString> columns READ columns CONSTANT FINAL)
    Q_PROPERTY(tidewatch::RowListModel* rows READ rows CONSTANT FINAL)
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY rowsChanged FINAL)
    Q_PROPERTY(QString emptyText READ emptyText CONSTANT FINAL)
    Q_PROPERTY(QString hint READ hint CONSTANT FINAL)

public:
    /// Opens the menu to reclassify an application at a desktop position.
    using OpenMenu = std::function<void(const AppId& app, QPointF at)>;

    /// `model` must outlive it.
    DetailsPresenter(DashboardModel& model, OpenMenu openMenu);

    [[nodiscard]] RowListModel* tiers() { return &tiers_; }
    [[nodiscard]] QString searchText() const;
    void setSearchText(const QString& text);
    [[nodiscard]] QString searchPrompt() const { return "buscar"; }
    [[nodiscard]] QStringList columns() const { return {"APP", "TIER", "TIEMPO", "%"}; }
    [[nodiscard]] RowListModel* rows() { return &rows_; }
    [[nodiscard]] bool isEmpty() const { return rows_.rows().empty(); }
    [[nodiscard]] QString emptyText() const { return "Sin actividad para los filtros seleccionados."; }
    [[nodiscard]] QString hint() const { return "Tip: right-click una fila para reclasificar."; }

    /// The id of one of tiers(); others have no effect.
    Q_INVOKABLE void toggleTier(const QString& id);
    /// `id` of a row; `at` in desktop points.
    Q_INVOKABLE void openMenu(const QString& id, QPointF at);

Q_SIGNALS:
    void searchTextChanged();
    void rowsChanged();

private:
    void update() override;
    void updateTiers();
    void updateRows();

    OpenMenu openMenu_;
    RowList<TierSwitch> tiers_;
    RowList<AppDetails> rows_;
    Connection filtersChanged_;
};

}  // namespace tidewatch
