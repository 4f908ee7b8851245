#pragma once

#include <QByteArray>
#include <QDBusObjectPath>
#include <QMap>
#include <QString>
#include <QVariantMap>
#include <optional>

namespace tidewatch::platform {

/// The objects of the disk service: their interfaces with their properties.
using DiskObjects = QMap<QDBusObjectPath, QMap<QString, QVariantMap>>;

/// What makes the device of a volume safe to unplug. Paths are those of the service's objects.
struct EjectionPlan {
    enum class DriveAction { none, powerOff, ejectMedium };

    QString fileSystem{};  ///< to be unmounted
    QString encrypted{};   ///< to be locked after that; empty if the volume is not encrypted
    QString drive{};       ///< empty if there is nothing to be done with it
    DriveAction action = DriveAction::none;
};

/// Nullopt if the service does not know what is mounted at `mountPoint`. A drive stays on while something
/// else on it is mounted.
[[nodiscard]] std::optional<EjectionPlan> planEjection(const DiskObjects& objects,
                                                       const QByteArray& mountPoint);

}  // namespace tidewatch::platform
