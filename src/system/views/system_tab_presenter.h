#pragma once

#include <qqmlregistration.h>
#include <QColor>
#include <QString>

#include "platform/api/desktop.h"
#include "system/views/snapshot_presenter.h"
#include "system/views/speed_test_presenter.h"
#include "system/views/system_rows.h"
#include "ui/models/row_list.h"

namespace tidewatch {

/// The display values of the tab "Sistema". Main thread only.
class SystemTabPresenter final : public tidewatch::SnapshotPresenter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Given by the composition of the program")
    Q_PROPERTY(QString cpuTitle READ cpuTitle CONSTANT FINAL)
    Q_PROPERTY(QString cpu READ cpu NOTIFY figuresChanged FINAL)
    Q_PROPERTY(double cpuFraction READ cpuFraction NOTIFY figuresChanged FINAL)
    Q_PROPERTY(QColor cpuColor READ cpuColor NOTIFY figuresChanged FINAL)
    Q_PROPERTY(tidewatch::RowListModel* cpuParts READ cpuParts CONSTANT FINAL)
    Q_PROPERTY(QString memoryTitle READ memoryTitle CONSTANT FINAL)
    Q_PROPERTY(QString memory READ memory NOTIFY figuresChanged FINAL)
    Q_PROPERTY(double memoryFraction READ memoryFraction NOTIFY figuresChanged FINAL)
    Q_PROPERTY(QString memoryUse READ memoryUse NOTIFY figuresChanged FINAL)
    Q_PROPERTY(tidewatch::RowListModel* memoryParts READ memoryParts CONSTANT FINAL)
    Q_PROPERTY(QString networkTitle READ networkTitle CONSTANT FINAL)
    Q_PROPERTY(QString networkSymbol READ networkSymbol NOTIFY figuresChanged FINAL)
    Q_PROPERTY(QString network READ network NOTIFY figuresChanged FINAL)
    Q_PROPERTY(QString signal READ signal NOTIFY figuresChanged FINAL)
    Q_PROPERTY(QString downloadTitle READ downloadTitle CONSTANT FINAL)
    Q_PROPERTY(QString download READ download NOTIFY figuresChanged FINAL)
    Q_PROPERTY(QString uploadTitle READ uploadTitle CONSTANT FINAL)
    Q_PROPERTY(QString upload READ upload NOTIFY figuresChanged FINAL)
    Q_PROPERTY(QString gpuTitle READ gpuTitle CONSTANT FINAL)
    Q_PROPERTY(bool hasGpu READ hasGpu NOTIFY figuresChanged FINAL)
    Q_PROPERTY(QString gpu READ gpu NOTIFY figuresChanged FINAL)
    Q_PROPERTY(double gpuFraction READ gpuFraction NOTIFY figuresChanged FINAL)
    Q_PROPERTY(QString gpuText READ gpuText NOTIFY figuresChanged FINAL)
    Q_PROPERTY(QString disksTitle READ disksTitle CONSTANT FINAL)
    Q_PROPERTY(tidewatch::RowListModel* disks READ disks CONSTANT FINAL)
    Q_PROPERTY(bool hasDisks READ hasDisks NOTIFY figuresChanged FINAL)
    Q_PROPERTY(QString noDisks READ noDisks CONSTANT FINAL)
    Q_PROPERTY(tidewatch::SpeedTestPresenter* speedTest READ speedTest CONSTANT FINAL)

public:
    /// All must outlive it.
    SystemTabPresenter(SystemMonitor& monitor, SpeedTester& speed, SystemWatch& watch,
                       const platform::Desktop& desktop);

    [[nodiscard]] QString cpuTitle() const { return "CPU"; }
    [[nodiscard]] QString cpu() const { return figures_.cpu; }
    [[nodiscard]] double cpuFraction() const { return figures_.cpuFraction; }
    [[nodiscard]] QColor cpuColor() const { return figures_.cpuColor; }
    [[nodiscard]] RowListModel* cpuParts() { return &cpuParts_; }
    [[nodiscard]] QString memoryTitle() const { return "MEMORIA"; }
    [[nodiscard]] QString memory() const { return figures_.memory; }
    [[nodiscard]] double memoryFraction() const { return figures_.memoryFraction; }
    [[nodiscard]] QString memoryUse() const { return figures_.memoryUse; }
    [[nodiscard]] RowListModel* memoryParts() { return &memoryParts_; }
    [[nodiscard]] QString networkTitle() const { return "RED"; }
    [[nodiscard]] QString networkSymbol() const { return figures_.networkSymbol; }
    [[nodiscard]] QString network() const { return figures_.network; }
    /// Of a wireless network; otherwise empty.
    [[nodiscard]] QString signal() const { return figures_.signal; }
    [[nodiscard]] QString downloadTitle() const { return "Descarga"; }
    [[nodiscard]] QString download() const { return figures_.download; }
    [[nodiscard]] QString uploadTitle() const { return "Subida"; }
    [[nodiscard]] QString upload() const { return figures_.upload; }
    [[nodiscard]] QString gpuTitle() const { return "GPU"; }
    [[nodiscard]] bool hasGpu() const { return figures_.hasGpu; }
    /// Empty without a figure.
    [[nodiscard]] QString gpu() const { return figures_.gpu; }
    [[nodiscard]] double gpuFraction() const { return figures_.gpuFraction; }
    [[nodiscard]] QString gpuText() const;
    [[nodiscard]] QString disksTitle() const { return "ALMACENAMIENTO INTERNO"; }
    [[nodiscard]] RowListModel* disks() { return &disks_; }
    [[nodiscard]] bool hasDisks() const { return disks_.rowCount() > 0; }
    [[nodiscard]] QString noDisks() const { return "Sin volúmenes internos"; }
    [[nodiscard]] SpeedTestPresenter* speedTest() { return &speedTest_; }

Q_SIGNALS:
    void figuresChanged();

private:
    struct Figures {
        QString cpu;
        double cpuFraction = 0;
        QColor cpuColor;
        QString memory;
        double memoryFraction = 0;
        QString memoryUse;
        QString networkSymbol;
        QString network;
        QString signal;
        QString download;
        QString upload;
        bool hasGpu = false;
        QString gpu;
        double gpuFraction = 0;
        bool hasDisks = false;
        bool operator==(const Figures&) const = default;
    };

    void update() override;
    void visibilityChanged() override;
    [[nodiscard]] static Figures figuresOf(const SystemSnapshot& snap);

    const platform::Desktop& desktop_;
    QString unnamedVolume_;
    Figures figures_;
    RowList<SystemFigure> cpuParts_;
    RowList<SystemFigure> memoryParts_;
    RowList<SystemVolume> disks_;
    SpeedTestPresenter speedTest_;
};

}  // namespace tidewatch
