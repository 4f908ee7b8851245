#include "platform/freedesktop/desktop_entry_reader.h"

#include <thread>
#include <utility>

namespace tidewatch::platform {

DesktopEntryReader::DesktopEntryReader(std::vector<std::string> folders, std::chrono::milliseconds patience)
    : patience_(patience) {
    std::thread([shared = shared_, folders = std::move(folders)] { run(shared, folders); }).detach();
}

DesktopEntryReader::~DesktopEntryReader() {
    std::unique_lock lock(shared_->mutex);
    shared_->stop = true;
    shared_->changed.notify_all();
    shared_->changed.wait_for(lock, patience_, [this] { return shared_->work == Work::over; });
}

void DesktopEntryReader::run(const std::shared_ptr<Shared>& shared, const std::vector<std::string>& folders) {
    std::shared_ptr<const DesktopEntryIndex> index;
    std::unique_lock lock(shared->mutex);
    while (!shared->stop) {
        if (shared->work == Work::looking) {
            lock.unlock();
            const bool isCurrent = index->isCurrent();
            lock.lock();
            shared->work = isCurrent ? Work::none : Work::reading;
            shared->changes += isCurrent ? 0 : 1;
            shared->changed.notify_all();
        }
        if (shared->work == Work::reading) {
            lock.unlock();
            index = std::make_shared<const DesktopEntryIndex>(folders, shared->stop);
            lock.lock();
            shared->fresh = index;
            shared->work = Work::none;
            shared->changed.notify_all();
        }
        shared->changed.wait(lock, [&] { return shared->stop || shared->work != Work::none; });
    }
    shared->work = Work::over;
    shared->changed.notify_all();
}

void DesktopEntryReader::look() {
    std::unique_lock lock(shared_->mutex);
    if (shared_->work != Work::none || shared_->fresh) return;
    shared_->work = Work::looking;
    shared_->changed.notify_all();
    shared_->changed.wait_for(lock, patience_, [this] { return shared_->work != Work::looking; });
}

int DesktopEntryReader::changes() const {
    const std::lock_guard lock(shared_->mutex);
    return shared_->changes;
}

bool DesktopEntryReader::isReading() const {
    const std::lock_guard lock(shared_->mutex);
    return shared_->work == Work::reading || shared_->fresh;
}

std::shared_ptr<const DesktopEntryIndex> DesktopEntryReader::take() {
    const std::lock_guard lock(shared_->mutex);
    return std::exchange(shared_->fresh, nullptr);
}

void DesktopEntryReader::waitUntilIdle() const {
    std::unique_lock lock(shared_->mutex);
    shared_->changed.wait(lock, [this] { return shared_->work == Work::none; });
}

}  // namespace tidewatch::platform
