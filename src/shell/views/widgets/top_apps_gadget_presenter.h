#pragma once

#include "shell/views/widgets/gadget_presenter.h"
#include "shell/views/widgets/gadget_rows.h"
#include "shell/widgets/widget_hub.h"
#include "ui/models/row_list.h"

namespace tidewatch {

/// The most used applications of today. Main thread only.
class TopAppsGadgetPresenter final : public tidewatch::GadgetPresenter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Given by the composition of the program")
    Q_PROPERTY(tidewatch::RowListModel* apps READ apps CONSTANT FINAL)
    Q_PROPERTY(bool hasApps READ hasApps NOTIFY hasAppsChanged FINAL)
    Q_PROPERTY(QString noApps READ noApps CONSTANT FINAL)

public:
    /// `hub` must outlive the presenter.
    explicit TopAppsGadgetPresenter(WidgetHub& hub);

    /// At most four.
    [[nodiscard]] RowListModel* apps() { return &apps_; }
    [[nodiscard]] bool hasApps() const { return hasApps_; }
    [[nodiscard]] QString noApps() const { return "Sin actividad aún"; }

Q_SIGNALS:
    void hasAppsChanged();

private:
    void update() override;

    const WidgetHub& hub_;
    RowList<GadgetApp> apps_;
    bool hasApps_ = false;
};

}  // namespace tidewatch
