#include "system/views/system_rows.h"

#include <fmt/format.h>

#include <QHash>
#include <algorithm>
#include <array>

#include "shell/themes/dashboard_style.h"
#include "system/disk_analyzer.h"
#include "system/views/system_texts.h"
#include "ui/style/qt_color.h"
#include "ui/texts/display_text.h"

namespace tidewatch {
namespace {

/// Ids by name, which stay the same from sample to sample, unlike the model's.
class NameIds final {
public:
    [[nodiscard]] QString next(const QString& name) { return name + '#' + QString::number(count_[name]++); }

private:
    QHash<QString, int> count_;
};

struct Capability {
    const char* label;
    double neededMbps;
};

constexpr std::array capabilities{
    Capability{"gaming en línea", 5}, Capability{"video streaming", 25}, Capability{"video 4K streaming", 50},
    Capability{"video calls", 2},     Capability{"audio calls", 1},
};

}  // namespace

QString volumeName(const DiskVolume& volume, const QString& unnamed) {
    return volume.name.empty() && !unnamed.isEmpty() ? unnamed : nameText(volume.name);
}

std::vector<SystemVolume> volumeRows(const SystemSnapshot& snap, VolumeKind kind, const QString& unnamed) {
    std::vector<SystemVolume> rows;
    for (const auto& disk : snap.disks) {
        if (disk.isInternal != (kind == VolumeKind::internal)) continue;
        const auto name = volumeName(disk, unnamed);
        rows.push_back({
            // A path need not be UTF-8, but must stay unique.
            .id = QString::fromLatin1(disk.path.data(), static_cast<qsizetype>(disk.path.size())),
            .path = disk.path,
            .name = name,
            .usedShare = text(fmt::format("{:.1f}% usado", disk.usedFraction() * 100)),
            .freeOfTotal = sizeText(disk.freeBytes) + " libres de " + sizeText(disk.totalBytes),
            .total = sizeText(disk.totalBytes),
            .used = sizeText(disk.usedBytes()),
            .free = sizeText(disk.freeBytes),
            .fraction = disk.usedFraction(),
            .color = diskColor(disk.usedFraction()),
            .ejectHelp = "Expulsar " + name,
            .isEjecting = false,
        });
    }
    return rows;
}

std::vector<SystemConsumer> consumerRows(const std::vector<SysProc>& processes, QString (*toText)(double)) {
    NameIds ids;
    std::vector<SystemConsumer> rows;
    for (const auto& process : processes) {
        const auto name = nameText(process.name);
        rows.push_back({.id = ids.next(name),
                        .process = process.name,
                        .name = name,
                        .value = toText(process.value),
                        .quitHelp = "Forzar cierre de " + name});
    }
    return rows;
}

QString SystemPanelRow::accessibleText() const {
    return id + ": " + (details.isEmpty() ? value : details + ", " + value);
}

std::vector<SystemCapability> capabilityRows(double avgMbps) {
    std::vector<SystemCapability> rows;
    for (const auto& capability : capabilities) {
        const bool isReached = avgMbps >= capability.neededMbps;
        const QString label = capability.label;
        rows.push_back({
            .id = label,
            .symbol = isReached ? "checkmark.circle.fill" : "xmark.circle",
            .color = toQColor(isReached ? DashboardStyle::tierProductive : DashboardStyle::tierDistracting),
            .accessibleText = label + (isReached ? ": sí" : ": no"),
        });
    }
    return rows;
}

QString DiskRow::accessibleText() const {
    return name + ": " + (age.isEmpty() ? size : size + ", " + age);
}

std::vector<DiskRow> fileRows(const DiskScanResult& result, Instant now) {
    std::vector<DiskRow> rows;
    for (const auto& file : result.largeOld) {
        DiskRow row;
        row.id = text(file.id.text());
        row.name = nameText(file.name);
        row.size = sizeText(file.size);
        row.age = text(DiskAnalyzer::daysAgo(file.lastAccess, now));
        if (file.isOld) row.ageColor = toQColor(DashboardStyle::amber);
        rows.push_back(row);
    }
    return rows;
}

std::vector<DiskRow> folderRows(const DiskScanResult& result) {
    std::int64_t largest = 1;
    for (const auto& folder : result.topFolders) largest = std::max(largest, folder.size);
    std::vector<DiskRow> rows;
    for (const auto& folder : result.topFolders) {
        DiskRow row;
        row.id = text(folder.id.text());
        row.name = nameText(folder.name);
        row.size = sizeText(folder.size);
        row.fraction = static_cast<double>(folder.size) / static_cast<double>(largest);
        rows.push_back(row);
    }
    return rows;
}

}  // namespace tidewatch
