#include "core/counter_file.h"

#include "core/counter_json.h"

namespace tidewatch {

CounterFile::CounterFile(platform::FileSystem& files, platform::Log& log, const CounterFormat& format)
    : record_(format.depth), file_(files, log, format.fileName, format.flushFailed) {
    const auto parse = [&](std::string text) { return parseCounters(std::move(text), format.depth); };
    auto record = file_.read(parse);
    // A missing file is parsed as an empty one, so that the JSON library's static state is initialised
    // before, and destroyed after, any exit handler that flushes.
    if (!record) record = parse("{}");
    if (record) record_ = std::move(*record);
}

void CounterFile::flush() {
    const std::lock_guard writing(writing_);
    // Only now: waiting for another write may have taken time.
    write(snapshot());
}

CounterFile::Snapshot CounterFile::snapshot() const {
    const std::lock_guard lock(mutex_);
    return {record_, revision_};
}

void CounterFile::flushOn(JobQueue& queue) {
    {
        const std::lock_guard lock(mutex_);
        waiting_ = Snapshot{record_, revision_};
    }
    queue.post([this] { flushWaiting(); });
}

void CounterFile::flushWaiting() {
    const std::lock_guard writing(writing_);
    std::optional<Snapshot> snapshot;
    {
        const std::lock_guard lock(mutex_);
        snapshot.swap(waiting_);
    }
    if (!snapshot || snapshot->revision < writtenRevision_) return;
    if (snapshot->revision == writtenRevision_ && file_.isAsWritten()) return;
    write(*snapshot);
}

void CounterFile::write(const Snapshot& snapshot) {
    const auto content = [&](platform::ByteSink& sink) { serializeCounters(snapshot.record, sink); };
    if (file_.write(content)) writtenRevision_ = snapshot.revision;
}

}  // namespace tidewatch
