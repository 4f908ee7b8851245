#pragma once

#include <qqmlregistration.h>
#include <QColor>
#include <QObject>

#include "analysis/views/app_row.h"
#include "analysis/views/dashboard_tab_presenter.h"
#include "core/daily_store.h"
#include "projects/project_store.h"
#include "ui/models/row_list.h"

namespace tidewatch {

/// One project's time of the day.
class ProjectSheet final {
    Q_GADGET
    QML_VALUE_TYPE(projectSheet)
    Q_PROPERTY(QString id MEMBER id FINAL)
    Q_PROPERTY(QString title MEMBER title FINAL)
    Q_PROPERTY(bool tagged MEMBER tagged FINAL)
    Q_PROPERTY(QColor color MEMBER color FINAL)
    Q_PROPERTY(QString note MEMBER note FINAL)
    Q_PROPERTY(QString time MEMBER time FINAL)
    Q_PROPERTY(QString share MEMBER share FINAL)
    Q_PROPERTY(double fraction MEMBER fraction FINAL)
    Q_PROPERTY(QList<tidewatch::AppRow> apps MEMBER apps FINAL)
    Q_PROPERTY(QString accessibleText MEMBER accessibleText FINAL)

public:
    QString id;
    QString title;
    bool tagged = false;  ///< false for untagged time
    QColor color;
    QString note;
    QString time;
    QString share;
    double fraction = 0;  ///< the same share, 0 to 1
    QList<AppRow> apps{};
    QString accessibleText{};

    bool operator==(const ProjectSheet&) const = default;
};

/// The day's time by project. Main thread only.
class ProjectsPresenter final : public tidewatch::DashboardTabPresenter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Given by the composition of the program")
    Q_PROPERTY(tidewatch::RowListModel* rows READ rows CONSTANT FINAL)
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY rowsChanged FINAL)
    Q_PROPERTY(QString emptyTitle READ emptyTitle NOTIFY rowsChanged FINAL)
    Q_PROPERTY(QString emptyText READ emptyText NOTIFY rowsChanged FINAL)
    Q_PROPERTY(QString hint READ hint CONSTANT FINAL)

public:
    /// All three must outlive it.
    ProjectsPresenter(DashboardModel& model, const ProjectStore& projects, const DailyStore& days);

    [[nodiscard]] RowListModel* rows() { return &rows_; }
    [[nodiscard]] bool isEmpty() const { return !emptyTitle_.isEmpty(); }
    [[nodiscard]] QString emptyTitle() const { return emptyTitle_; }
    [[nodiscard]] QString emptyText() const { return emptyText_; }
    [[nodiscard]] QString hint() const {
        return "Tip: cambia el proyecto activo desde el menú del ⏰. El tiempo a partir de ese momento se "
               "etiqueta.";
    }

Q_SIGNALS:
    void rowsChanged();

private:
    void update() override;
    void updateEmptyState();

    const ProjectStore& projects_;
    const DailyStore& days_;
    RowList<ProjectSheet> rows_;
    QString emptyTitle_;
    QString emptyText_;
};

}  // namespace tidewatch
