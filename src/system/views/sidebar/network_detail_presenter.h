#pragma once

#include <qqmlregistration.h>
#include <QString>

#include "base/signal.h"
#include "system/speed_tester.h"
#include "system/views/sidebar/detail_presenter.h"
#include "system/views/system_rows.h"
#include "ui/models/row_list.h"

namespace tidewatch {

/// The sidebar's panel of the network, with its speed test. Main thread only.
class NetworkDetailPresenter final : public tidewatch::DetailPresenter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Given by the composition of the program")
    Q_PROPERTY(QString downloadTitle READ downloadTitle CONSTANT FINAL)
    Q_PROPERTY(QString download READ download NOTIFY linkChanged FINAL)
    Q_PROPERTY(QString uploadTitle READ uploadTitle CONSTANT FINAL)
    Q_PROPERTY(QString upload READ upload NOTIFY linkChanged FINAL)
    Q_PROPERTY(QString linkName READ linkName NOTIFY linkChanged FINAL)
    /// Below the name; may be empty.
    Q_PROPERTY(QString linkDetails READ linkDetails NOTIFY linkChanged FINAL)
    Q_PROPERTY(QString speedTitle READ speedTitle CONSTANT FINAL)
    Q_PROPERTY(QString buttonText READ buttonText NOTIFY speedChanged FINAL)
    Q_PROPERTY(bool isRunning READ isRunning NOTIFY speedChanged FINAL)
    Q_PROPERTY(double progress READ progress NOTIFY speedChanged FINAL)
    /// During a test, or why it failed; may be empty.
    Q_PROPERTY(QString status READ status NOTIFY speedChanged FINAL)
    /// Whether there are the figures of a test.
    Q_PROPERTY(bool hasResult READ hasResult NOTIFY speedChanged FINAL)
    Q_PROPERTY(tidewatch::RowListModel* stats READ stats CONSTANT FINAL)
    Q_PROPERTY(tidewatch::RowListModel* capabilities READ capabilities CONSTANT FINAL)

public:
    /// `speed` must outlive the presenter.
    NetworkDetailPresenter(const Frame& frame, SpeedTester& speed);

    [[nodiscard]] QString downloadTitle() const { return "Descarga"; }
    [[nodiscard]] QString download() const { return link_.download; }
    [[nodiscard]] QString uploadTitle() const { return "Subida"; }
    [[nodiscard]] QString upload() const { return link_.upload; }
    [[nodiscard]] QString linkName() const { return link_.name; }
    [[nodiscard]] QString linkDetails() const { return link_.details; }
    [[nodiscard]] QString speedTitle() const { return "TEST DE VELOCIDAD"; }
    [[nodiscard]] QString buttonText() const { return isRunning() ? "Detener" : "Probar"; }
    [[nodiscard]] bool isRunning() const { return speed_.phase() == SpeedTester::Phase::downloading; }
    [[nodiscard]] double progress() const { return speed_.progress(); }
    [[nodiscard]] QString status() const;
    [[nodiscard]] bool hasResult() const { return speed_.phase() == SpeedTester::Phase::done; }
    [[nodiscard]] RowListModel* stats() { return &stats_; }
    [[nodiscard]] RowListModel* capabilities() { return &capabilities_; }

    /// Starts a test, or cancels the running one.
    Q_INVOKABLE void press();

Q_SIGNALS:
    void linkChanged();
    void speedChanged();

private:
    struct Link {
        QString download;
        QString upload;
        QString name;
        QString details;
        bool operator==(const Link&) const = default;
    };

    void update() override;
    void updateSpeed();
    [[nodiscard]] static Link linkOf(const SystemSnapshot& snap);

    SpeedTester& speed_;
    Link link_;
    RowList<SystemFigure> stats_;
    RowList<SystemCapability> capabilities_;
    Connection speedConnection_;
};

}  // namespace tidewatch
