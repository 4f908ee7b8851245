#pragma once

#include <qqmlregistration.h>
#include <QColor>
#include <QObject>
#include <QString>
#include <string>
#include <vector>

#include "system/disk_scan_result.h"
#include "system/system_snapshot.h"

namespace tidewatch {

/// A label and its figure.
class SystemFigure final {
    Q_GADGET
    QML_VALUE_TYPE(systemFigure)
    Q_PROPERTY(QString id MEMBER id FINAL)
    Q_PROPERTY(QString label MEMBER id FINAL)
    Q_PROPERTY(QString value MEMBER value FINAL)
    Q_PROPERTY(QString accessibleText READ accessibleText FINAL)

public:
    QString id;  ///< the label, too
    QString value;

    [[nodiscard]] QString accessibleText() const { return id + ": " + value; }

    bool operator==(const SystemFigure&) const = default;
};

/// A mounted volume.
class SystemVolume final {
    Q_GADGET
    QML_VALUE_TYPE(systemVolume)
    Q_PROPERTY(QString id MEMBER id FINAL)
    Q_PROPERTY(QString name MEMBER name FINAL)
    Q_PROPERTY(QString usedShare MEMBER usedShare FINAL)
    Q_PROPERTY(QString freeOfTotal MEMBER freeOfTotal FINAL)
    Q_PROPERTY(QString total MEMBER total FINAL)
    Q_PROPERTY(QString used MEMBER used FINAL)
    Q_PROPERTY(QString free MEMBER free FINAL)
    Q_PROPERTY(double fraction MEMBER fraction FINAL)
    Q_PROPERTY(QColor color MEMBER color FINAL)
    Q_PROPERTY(QString ejectHelp MEMBER ejectHelp FINAL)
    Q_PROPERTY(bool isEjecting MEMBER isEjecting FINAL)
    Q_PROPERTY(QString accessibleText READ accessibleText FINAL)

public:
    QString id;
    std::string path;  ///< of its mount point
    QString name;
    QString usedShare;    ///< "62.5% usado"
    QString freeOfTotal;  ///< "120 GB libres de 476 GB"
    QString total;
    QString used;
    QString free;
    double fraction = 0;  ///< of its bar
    QColor color;
    QString ejectHelp;
    bool isEjecting = false;

    [[nodiscard]] QString accessibleText() const { return name + ": " + usedShare + ", " + freeOfTotal; }

    bool operator==(const SystemVolume&) const = default;
};

/// The name shown of a volume; `unnamed` if it has none.
[[nodiscard]] QString volumeName(const DiskVolume& volume, const QString& unnamed);

enum class VolumeKind { internal, external };

/// The volumes of that kind; `unnamed` is the name of one without a name.
[[nodiscard]] std::vector<SystemVolume> volumeRows(const SystemSnapshot& snap, VolumeKind kind,
                                                   const QString& unnamed);

/// A row of a list of processes.
class SystemConsumer final {
    Q_GADGET
    QML_VALUE_TYPE(systemConsumer)
    Q_PROPERTY(QString id MEMBER id FINAL)
    Q_PROPERTY(QString name MEMBER name FINAL)
    Q_PROPERTY(QString value MEMBER value FINAL)
    Q_PROPERTY(QString quitHelp MEMBER quitHelp FINAL)
    Q_PROPERTY(QString accessibleText READ accessibleText FINAL)

public:
    QString id;
    std::string process;  ///< its whole name
    QString name;
    QString value;
    QString quitHelp;

    [[nodiscard]] QString accessibleText() const { return name + ": " + value; }

    bool operator==(const SystemConsumer&) const = default;
};

/// `processes` with their values through `toText`. The ids are the same in lists of the same names, so that
/// the rows stay while their figures change.
[[nodiscard]] std::vector<SystemConsumer> consumerRows(const std::vector<SysProc>& processes,
                                                       QString (*toText)(double));

/// A row of the sidebar's overview: opens a panel.
class SystemPanelRow final {
    Q_GADGET
    QML_VALUE_TYPE(systemPanelRow)
    Q_PROPERTY(QString id MEMBER id FINAL)
    Q_PROPERTY(QString label MEMBER id FINAL)
    Q_PROPERTY(QString symbol MEMBER symbol FINAL)
    Q_PROPERTY(QString details MEMBER details FINAL)
    Q_PROPERTY(QString value MEMBER value FINAL)
    Q_PROPERTY(QColor color MEMBER color FINAL)
    Q_PROPERTY(QString accessibleText READ accessibleText FINAL)

public:
    QString id;  ///< the label, too
    QString symbol;
    QString details;  ///< may be empty
    QString value;
    QColor color;  ///< of the value; invalid for that of ordinary text

    [[nodiscard]] QString accessibleText() const;

    bool operator==(const SystemPanelRow&) const = default;
};

/// Something that a line may be fast enough for.
class SystemCapability final {
    Q_GADGET
    QML_VALUE_TYPE(systemCapability)
    Q_PROPERTY(QString id MEMBER id FINAL)
    Q_PROPERTY(QString label MEMBER id FINAL)
    Q_PROPERTY(QString symbol MEMBER symbol FINAL)
    Q_PROPERTY(QColor color MEMBER color FINAL)
    Q_PROPERTY(QString accessibleText MEMBER accessibleText FINAL)

public:
    QString id;  ///< the label, too
    QString symbol;
    QColor color;  ///< of the symbol
    QString accessibleText;

    bool operator==(const SystemCapability&) const = default;
};

/// All of them, in the order shown, for this average speed.
[[nodiscard]] std::vector<SystemCapability> capabilityRows(double avgMbps);

/// A large file, or a folder, that a scan has found.
class DiskRow final {
    Q_GADGET
    QML_VALUE_TYPE(diskRow)
    Q_PROPERTY(QString id MEMBER id FINAL)
    Q_PROPERTY(QString name MEMBER name FINAL)
    Q_PROPERTY(QString size MEMBER size FINAL)
    Q_PROPERTY(QString age MEMBER age FINAL)
    Q_PROPERTY(QColor ageColor MEMBER ageColor FINAL)
    Q_PROPERTY(double fraction MEMBER fraction FINAL)
    Q_PROPERTY(QString accessibleText READ accessibleText FINAL)

public:
    QString id;
    QString name;
    QString size;
    QString age;          ///< of a file: since it was last opened
    QColor ageColor;      ///< invalid for that of ordinary text
    double fraction = 0;  ///< of a folder: of the largest one

    [[nodiscard]] QString accessibleText() const;

    bool operator==(const DiskRow&) const = default;
};

[[nodiscard]] std::vector<DiskRow> fileRows(const DiskScanResult& result, Instant now);
[[nodiscard]] std::vector<DiskRow> folderRows(const DiskScanResult& result);

}  // namespace tidewatch
