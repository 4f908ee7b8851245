#include "platform/freedesktop/desktop_entry_loader.h"

#include <thread>
#include <utility>

namespace tidewatch::platform {

DesktopEntryLoader::DesktopEntryLoader(std::vector<std::string> folders, std::chrono::milliseconds timeout)
    : timeout_(timeout) {
    std::thread([shared = shared_, folders = std::move(folders)] { run(shared, folders); }).detach();
}

DesktopEntryLoader::~DesktopEntryLoader() {
    std::unique_lock lock(shared_->mutex);
    shared_->stop = true;
    shared_->changed.notify_all();
    shared_->changed.wait_for(lock, timeout_, [this] { return shared_->work == Work::over; });
}

void DesktopEntryLoader::run(const std::shared_ptr<Shared>& shared, const std::vector<std::string>& folders) {
    std::shared_ptr<const DesktopEntryIndex> index;
    std::unique_lock lock(shared->mutex);
    while (!shared->stop) {
        if (shared->work == Work::checking) {
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

void DesktopEntryLoader::check() {
    std::unique_lock lock(shared_->mutex);
    if (shared_->work != Work::none || shared_->fresh) return;
    shared_->work = Work::checking;
    shared_->changed.notify_all();
    shared_->changed.wait_for(lock, timeout_, [this] { return shared_->work != Work::checking; });
}

int DesktopEntryLoader::changes() const {
    const std::lock_guard lock(shared_->mutex);
    return shared_->changes;
}

bool DesktopEntryLoader::isReading() const {
    const std::lock_guard lock(shared_->mutex);
    return shared_->work == Work::reading || shared_->fresh;
}

std::shared_ptr<const DesktopEntryIndex> DesktopEntryLoader::take() {
    const std::lock_guard lock(shared_->mutex);
    return std::exchange(shared_->fresh, nullptr);
}

void DesktopEntryLoader::waitUntilIdle() const {
    std::unique_lock lock(shared_->mutex);
    shared_->changed.wait(lock, [this] { return shared_->work == Work::none; });
}

}  // namespace tidewatch::platform
