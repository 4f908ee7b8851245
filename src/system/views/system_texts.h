#pragma once

#include <QColor>
#include <QString>
#include <cstdint>

#include "system/system_snapshot.h"

namespace tidewatch {

/// "42", "-3"
[[nodiscard]] QString wholeNumber(double value);

/// "9.8 GB", whatever the size. In powers of 1024.
[[nodiscard]] QString gigabytes(std::uint64_t bytes);

/// "512 MB", "1.5 TB"
[[nodiscard]] QString sizeText(std::int64_t bytes);

/// "1.2 MB/s"
[[nodiscard]] QString rateText(double bytesPerSecond);

/// "-58 dBm"
[[nodiscard]] QString signalText(std::int64_t dBm);

/// "Excelente" from -60 dBm on, "Débil" from -76 down, otherwise "Buena".
[[nodiscard]] QString signalQuality(std::int64_t dBm);

/// Of the load of the processors: green below 0.5, amber below 0.8, otherwise red.
[[nodiscard]] QColor cpuColor(double load);

/// Of how full a volume is: red above 0.9, otherwise amber.
[[nodiscard]] QColor diskColor(double usedFraction);

/// That of the main volume; amber if there is none.
[[nodiscard]] QColor mainDiskColor(const SystemSnapshot& snap);

/// How the machine is connected.
struct LinkTexts {
    QString symbol;
    QString name;  ///< the wireless network's, or the kind of connection
};
[[nodiscard]] LinkTexts linkTexts(const SystemSnapshot& snap);

/// The largest internal volume; null if there is none.
[[nodiscard]] const DiskVolume* mainVolume(const SystemSnapshot& snap);

}  // namespace tidewatch
