#pragma once

#include <qqmlregistration.h>
#include <QString>

#include "base/signal.h"
#include "system/views/sidebar/detail_presenter.h"
#include "system/views/system_commands.h"
#include "system/views/system_rows.h"
#include "system/volume_ejector.h"
#include "ui/models/row_list.h"

namespace tidewatch {

/// The sidebar's panel of the external volumes. Main thread only.
class DevicesDetailPresenter final : public tidewatch::DetailPresenter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Given by the composition of the program")
    Q_PROPERTY(QString volumesTitle READ volumesTitle CONSTANT FINAL)
    Q_PROPERTY(tidewatch::RowListModel* volumes READ volumes CONSTANT FINAL)
    Q_PROPERTY(bool hasVolumes READ hasVolumes NOTIFY volumesChanged FINAL)
    Q_PROPERTY(QString noVolumes READ noVolumes CONSTANT FINAL)
    Q_PROPERTY(QString freeCaption READ freeCaption CONSTANT FINAL)
    Q_PROPERTY(QString ejectingText READ ejectingText CONSTANT FINAL)

public:
    /// Both must outlive the presenter.
    DevicesDetailPresenter(const Frame& frame, VolumeEjector& ejector, const SystemCommands& commands);

    [[nodiscard]] QString volumesTitle() const { return "UNIDADES EXTERNAS"; }
    [[nodiscard]] RowListModel* volumes() { return &volumes_; }
    [[nodiscard]] bool hasVolumes() const { return volumes_.rowCount() > 0; }
    [[nodiscard]] QString noVolumes() const { return "Sin dispositivos externos conectados"; }

    [[nodiscard]] QString freeCaption() const { return "libres"; }
    [[nodiscard]] QString ejectingText() const { return "Expulsando…"; }

    /// Ejects the volume of this row. What fails is said to the user. An unknown id has no effect.
    Q_INVOKABLE void eject(const QString& id);

Q_SIGNALS:
    void volumesChanged();

private:
    void update() override;

    VolumeEjector& ejector_;
    const SystemCommands& commands_;
    RowList<SystemVolume> volumes_;
    Connection ejectorChanged_;
};

}  // namespace tidewatch
