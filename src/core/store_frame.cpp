#include "core/store_frame.h"

#include "core/counter_json.h"
#include "core/data_directory.h"

namespace tidewatch {

StoreFrame::StoreFrame(platform::FileSystem& files, platform::Log& log, const StoreFormat& format)
    : files_(files),
      log_(log),
      directoryPath_(dataDirectory(files)),
      filePath_(directoryPath_ + "/" + std::string(format.fileName)),
      flushFailed_(format.flushFailed),
      record_(format.depth) {
    // Without the directory there is no file either, and the first flush will say so.
    static_cast<void>(files_.createDirectories(directoryPath_));
    auto text = files_.readWhole(filePath_);
    // A missing file is read as an empty one, so that what the JSON library keeps for the whole process is
    // older than any exit handler that flushes, and outlives it.
    auto record = readCounters(text ? std::move(text).value() : "{}", format.depth);
    if (record) record_ = std::move(*record);
}

void StoreFrame::flush() {
    const auto written = write();
    if (!written) log_.warning(flushFailed_ + written.error().message);
}

Outcome StoreFrame::write() {
    const std::lock_guard lock(mutex_);
    return files_.replaceAtomically(filePath_, writeCounters(record_).view());
}

}  // namespace tidewatch
