#pragma once

#include <qqmlregistration.h>
#include <QList>
#include <QString>
#include <functional>
#include <vector>

#include "base/signal.h"
#include "platform/api/desktop.h"
#include "system/speed_tester.h"
#include "system/views/sidebar/sys_panel.h"
#include "system/views/snapshot_presenter.h"
#include "system/views/system_rows.h"
#include "ui/models/pane.h"
#include "ui/models/row_list.h"

namespace tidewatch {

/// The sidebar's overview: a row per panel, and below them the panes of other rooms. Main thread only.
class SysOverviewPresenter final : public tidewatch::SnapshotPresenter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Given by the composition of the program")
    Q_PROPERTY(QString title READ title CONSTANT FINAL)
    Q_PROPERTY(tidewatch::RowListModel* rows READ rows CONSTANT FINAL)
    /// From top to bottom.
    Q_PROPERTY(QList<tidewatch::Pane> below READ below CONSTANT FINAL)

public:
    /// All of it must outlive the presenter.
    struct Sources {
        SystemMonitor& monitor;
        SystemWatch& watch;
        SpeedTester& speed;
        const platform::Desktop& desktop;
        std::function<void(SysPanel)> onSelect;
        /// Visible together with the overview.
        std::vector<Pane> below;
    };

    explicit SysOverviewPresenter(Sources sources);

    [[nodiscard]] QString title() const { return "SISTEMA"; }
    [[nodiscard]] RowListModel* rows() { return &rows_; }
    [[nodiscard]] QList<Pane> below() const { return {sources_.below.begin(), sources_.below.end()}; }

    /// Opens the panel of the row at this index; ignored for any other index.
    Q_INVOKABLE void select(int row);

private:
    void update() override;
    void visibilityChanged() override;
    [[nodiscard]] std::vector<SystemPanelRow> rowsNow() const;

    const Sources sources_;
    QString unnamedVolume_;
    RowList<SystemPanelRow> rows_;
    Connection speedChanged_;
};

}  // namespace tidewatch
