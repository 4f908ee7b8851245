#pragma once

#include "shell/views/widgets/gadget_presenter.h"
#include "shell/views/widgets/gadget_rows.h"
#include "system/system_monitor.h"
#include "ui/models/row_list.h"

namespace tidewatch {

/// The load of the machine. Main thread only.
class SystemGadgetPresenter final : public tidewatch::GadgetPresenter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Given by the composition of the program")
    Q_PROPERTY(tidewatch::RowListModel* bars READ bars CONSTANT FINAL)
    Q_PROPERTY(QString networkSymbol READ networkSymbol NOTIFY networkChanged FINAL)
    Q_PROPERTY(QString network READ network NOTIFY networkChanged FINAL)
    Q_PROPERTY(QString download READ download NOTIFY networkChanged FINAL)
    Q_PROPERTY(QString upload READ upload NOTIFY networkChanged FINAL)
    Q_PROPERTY(QString networkAccessibleText READ networkAccessibleText NOTIFY networkChanged FINAL)

public:
    /// `monitor` must outlive the presenter, and be running while it is visible.
    explicit SystemGadgetPresenter(SystemMonitor& monitor);

    /// Processors, memory and the largest volume, if there is one.
    [[nodiscard]] RowListModel* bars() { return &bars_; }
    [[nodiscard]] QString networkSymbol() const { return network_.symbol; }
    [[nodiscard]] QString network() const { return network_.name; }
    [[nodiscard]] QString download() const { return network_.download; }
    [[nodiscard]] QString upload() const { return network_.upload; }
    [[nodiscard]] QString networkAccessibleText() const;

Q_SIGNALS:
    void networkChanged();

private:
    struct Network {
        QString symbol;
        QString name;
        QString download;
        QString upload;
        bool operator==(const Network&) const = default;
    };

    void update() override;

    const SystemMonitor& monitor_;
    RowList<GadgetBar> bars_;
    Network network_;
};

}  // namespace tidewatch
