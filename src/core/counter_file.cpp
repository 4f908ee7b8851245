#include "core/store_frame.h"

#include "core/counter_json.h"

namespace tidewatch {

StoreFrame::StoreFrame(platform::FileSystem& files, platform::Log& log, const StoreFormat& format)
    : file_(files, log, format.fileName, format.flushFailed), record_(format.depth) {
    const auto parse = [&](std::string text) { return readCounters(std::move(text), format.depth); };
    auto record = file_.read(parse);
    // A missing file is read as an empty one, so that what the JSON library keeps for the whole process is
    // older than any exit handler that flushes, and outlives it.
    if (!record) record = parse("{}");
    if (record) record_ = std::move(*record);
}

void StoreFrame::flush() {
    const std::lock_guard lock(mutex_);
    file_.write(writeCounters(record_).view());
}

}  // namespace tidewatch
