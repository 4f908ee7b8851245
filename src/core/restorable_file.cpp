#include "core/restorable_file.h"

namespace tidewatch {

bool RestorableFile::write(std::string content) {
    const std::lock_guard lock(mutex_);
    text_ = std::move(content);
    return file_.write(*text_);
}

void RestorableFile::restoreOn(JobQueue& queue) {
    queue.post([this] { restore(); });
}

void RestorableFile::restore() {
    const std::lock_guard lock(mutex_);
    if (text_ && file_.isMissing()) file_.write(*text_);
}

}  // namespace tidewatch
