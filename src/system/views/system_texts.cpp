#include "system/views/system_texts.h"

#include <fmt/format.h>

#include <algorithm>

#include "base/byte_format.h"
#include "shell/themes/dashboard_style.h"
#include "ui/style/qt_color.h"
#include "ui/texts/display_text.h"

namespace tidewatch {

QString wholeNumber(double value) {
    return text(fmt::format("{:.0f}", value));
}

QString gigabytes(std::uint64_t bytes) {
    constexpr double bytesPerGigabyte = 1073741824;
    return text(fmt::format("{:.1f} GB", static_cast<double>(bytes) / bytesPerGigabyte));
}

QString sizeText(std::int64_t bytes) {
    return text(formatBytes(bytes));
}

QString rateText(double bytesPerSecond) {
    return text(formatRate(bytesPerSecond));
}

QString signalText(std::int64_t dBm) {
    return QString::number(dBm) + " dBm";
}

QString signalQuality(std::int64_t dBm) {
    if (dBm >= -60) return "Excelente";
    return dBm <= -76 ? "Débil" : "Buena";
}

QColor cpuColor(double load) {
    if (load < 0.5) return toQColor(DashboardStyle::tierProductive);
    return toQColor(load < 0.8 ? DashboardStyle::amber : DashboardStyle::tierDistracting);
}

QColor diskColor(double usedFraction) {
    return toQColor(usedFraction > 0.9 ? DashboardStyle::tierDistracting : DashboardStyle::amber);
}

QColor mainDiskColor(const SystemSnapshot& snap) {
    const auto* main = mainVolume(snap);
    return diskColor(main ? main->usedFraction() : 0);
}

LinkTexts linkTexts(const SystemSnapshot& snap) {
    if (snap.netType == "Wi-Fi") return {.symbol = "wifi", .name = nameText(snap.netSsid.value_or(""))};
    return {.symbol = "network",
            .name = snap.netType == "Ethernet" ? "Conexión cableada" : text(snap.netType)};
}

const DiskVolume* mainVolume(const SystemSnapshot& snap) {
    const auto found = std::ranges::find(snap.disks, true, &DiskVolume::isInternal);
    return found == snap.disks.end() ? nullptr : &*found;
}

}  // namespace tidewatch
