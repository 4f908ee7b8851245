#include "core/kept_file.h"

namespace tidewatch {

bool KeptFile::write(std::string content) {
    const std::lock_guard lock(mutex_);
    text_ = std::move(content);
    return file_.write(*text_);
}

void KeptFile::restoreOn(JobQueue& queue) {
    queue.post([this] { restore(); });
}

void KeptFile::restore() {
    const std::lock_guard lock(mutex_);
    if (text_ && file_.isMissing()) file_.write(*text_);
}

}  // namespace tidewatch
