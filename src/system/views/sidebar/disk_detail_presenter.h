#pragma once

#include <qqmlregistration.h>
#include <QString>

#include "platform/api/desktop.h"
#include "system/views/sidebar/detail_presenter.h"
#include "system/views/system_rows.h"
#include "ui/models/row_list.h"

namespace tidewatch {

/// The sidebar's panel of the internal volumes. Main thread only.
class DiskDetailPresenter final : public tidewatch::DetailPresenter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Given by the composition of the program")
    Q_PROPERTY(QString volumesTitle READ volumesTitle CONSTANT FINAL)
    Q_PROPERTY(tidewatch::RowListModel* volumes READ volumes CONSTANT FINAL)
    Q_PROPERTY(bool hasVolumes READ hasVolumes NOTIFY volumesChanged FINAL)
    Q_PROPERTY(QString noVolumes READ noVolumes CONSTANT FINAL)
    Q_PROPERTY(QString freeCaption READ freeCaption CONSTANT FINAL)
    Q_PROPERTY(QString totalTitle READ totalTitle CONSTANT FINAL)
    Q_PROPERTY(QString usedTitle READ usedTitle CONSTANT FINAL)
    Q_PROPERTY(QString freeTitle READ freeTitle CONSTANT FINAL)

public:
    /// `desktop` must outlive the presenter.
    DiskDetailPresenter(const Frame& frame, const platform::Desktop& desktop);

    [[nodiscard]] QString volumesTitle() const { return "VOLÚMENES INTERNOS"; }
    [[nodiscard]] RowListModel* volumes() { return &volumes_; }
    [[nodiscard]] bool hasVolumes() const { return volumes_.rowCount() > 0; }
    [[nodiscard]] QString noVolumes() const { return "Sin volúmenes internos"; }
    [[nodiscard]] QString freeCaption() const { return "libres"; }
    [[nodiscard]] QString totalTitle() const { return "Total"; }
    [[nodiscard]] QString usedTitle() const { return "Usado"; }
    [[nodiscard]] QString freeTitle() const { return "Libre"; }

Q_SIGNALS:
    void volumesChanged();

private:
    void update() override;
    void visibilityChanged() override;

    const platform::Desktop& desktop_;
    QString unnamedVolume_;
    RowList<SystemVolume> volumes_;
};

}  // namespace tidewatch
