#include "core/record_file.h"

#include "core/data_directory.h"

namespace tidewatch {

RecordFile::RecordFile(platform::FileSystem& files, platform::Log& log, std::string_view name,
                       std::string_view failure)
    : files_(files),
      log_(log),
      directory_(dataDirectory(files)),
      path_(directory_ + "/" + std::string(name)),
      failure_(failure) {}

bool RecordFile::write(std::string_view content) {
    return write([content](platform::ByteSink& sink) { sink.append(content); });
}

bool RecordFile::write(const platform::ContentWriter& content) {
    written_.reset();
    if (ensureLock() == platform::RecordLock::heldByAnother) return false;
    const auto replaced = replace(content);
    if (!replaced) {
        if (!failure_.empty()) log_.warning(failure_ + replaced.error().message);
        return false;
    }
    written_ = replaced.value();
    return true;
}

bool RecordFile::isAsWritten() {
    if (ensureLock() == platform::RecordLock::heldByAnother || !written_) return false;
    const auto info = files_.inspect(path_);
    return info && info.value() == *written_;
}

bool RecordFile::isMissing() const {
    const auto info = files_.inspect(path_);
    return !info && info.error().kind == platform::FileErrorKind::notFound;
}

platform::RecordLock RecordFile::ensureLock() {
    const auto lock = files_.ensureRecordLock(directory_);
    if (lock == platform::RecordLock::heldByAnother) unread_ = Unread::foreign;
    return lock;
}

std::optional<std::string> RecordFile::readText() {
    // Without the directory there is no file either, and the first write will say so.
    static_cast<void>(files_.createDirectories(directory_));
    auto text = files_.readFile(path_);
    return text ? std::optional(std::move(text).value()) : std::nullopt;
}

Result<platform::FileInfo> RecordFile::replace(const platform::ContentWriter& content) {
    if (const auto kept = setUnreadAside(); !kept) return kept.error();
    return files_.replaceAtomically(path_, content);
}

Status RecordFile::setUnreadAside() {
    if (unread_ == Unread::none) return success();
    const bool damaged = unread_ == Unread::damaged;
    const auto kept = files_.setAside(path_, damaged ? "damaged" : "other");
    if (!kept) return kept.error();
    unread_ = Unread::none;
    if (const auto& name = kept.value()) {
        log_.info(
            "Tidewatch: " + path_ +
            (damaged ? " could not be read; it is kept as " : " is of another instance; it is kept as ") +
            *name);
    }
    return success();
}

}  // namespace tidewatch
