#include "platform/freedesktop/ejection_plan.h"

#include <QDBusArgument>

namespace tidewatch::platform {

namespace {

constexpr char blockInterface[] = "org.freedesktop.UDisks2.Block";
constexpr char driveInterface[] = "org.freedesktop.UDisks2.Drive";
constexpr char fileSystemInterface[] = "org.freedesktop.UDisks2.Filesystem";

// Byte strings that end with a zero byte.
QList<QByteArray> mountPoints(const QMap<QString, QVariantMap>& object) {
    auto points = qdbus_cast<QList<QByteArray>>(object[fileSystemInterface]["MountPoints"]);
    for (auto& point : points) {
        if (point.endsWith('\0')) point.chop(1);
    }
    return points;
}

// "/" stands for none.
QString pathOf(const QVariant& property) {
    const auto path = property.value<QDBusObjectPath>().path();
    return path == "/" ? QString() : path;
}

QString encryptedOf(const DiskObjects& objects, const QString& block) {
    return pathOf(objects[QDBusObjectPath(block)][blockInterface]["CryptoBackingDevice"]);
}

// An encrypted volume is on the drive of what it is stored on.
QString driveOf(const DiskObjects& objects, const QString& block) {
    const auto encrypted = encryptedOf(objects, block);
    return pathOf(objects[QDBusObjectPath(encrypted.isEmpty() ? block : encrypted)][blockInterface]["Drive"]);
}

bool isElsewhereMounted(const DiskObjects& objects, const QString& drive, const QString& fileSystem) {
    for (auto object = objects.begin(); object != objects.end(); ++object) {
        const auto path = object.key().path();
        if (path != fileSystem && !mountPoints(*object).isEmpty() && driveOf(objects, path) == drive)
            return true;
    }
    return false;
}

EjectionPlan::DriveAction actionFor(const QVariantMap& drive) {
    const bool isEjectable = drive["Ejectable"].toBool();
    // A disc comes out of its drive, which stays.
    if (isEjectable && drive["Optical"].toBool()) return EjectionPlan::DriveAction::ejectMedium;
    if (drive["CanPowerOff"].toBool()) return EjectionPlan::DriveAction::powerOff;
    return isEjectable ? EjectionPlan::DriveAction::ejectMedium : EjectionPlan::DriveAction::none;
}

}  // namespace

std::optional<EjectionPlan> planEjection(const DiskObjects& objects, const QByteArray& mountPoint) {
    for (auto object = objects.begin(); object != objects.end(); ++object) {
        if (!mountPoints(*object).contains(mountPoint)) continue;
        EjectionPlan plan{.fileSystem = object.key().path()};
        plan.encrypted = encryptedOf(objects, plan.fileSystem);
        const auto drive = driveOf(objects, plan.fileSystem);
        if (drive.isEmpty() || isElsewhereMounted(objects, drive, plan.fileSystem)) return plan;
        plan.action = actionFor(objects[QDBusObjectPath(drive)][driveInterface]);
        if (plan.action != EjectionPlan::DriveAction::none) plan.drive = drive;
        return plan;
    }
    return std::nullopt;
}

}  // namespace tidewatch::platform
