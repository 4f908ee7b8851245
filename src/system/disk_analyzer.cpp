#include "system/disk_analyzer.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <utility>

#include "system/disk_scan.h"
#include "system/last_component.h"

namespace tidewatch {

namespace {

using platform::FileKind;
using platform::UserFolder;
using platform::VisitAction;

constexpr auto scannedFolders =
    std::to_array({UserFolder::downloads, UserFolder::desktop, UserFolder::documents, UserFolder::videos});

}  // namespace

DiskAnalyzer::DiskAnalyzer(const Dependencies& dependencies) : dependencies_(dependencies) {}

DiskAnalyzer::~DiskAnalyzer() {
    isEnding_ = true;
}

void DiskAnalyzer::scan() {
    if (isScanning_) return;
    isScanning_ = true;
    result_ = {};
    changed.emit();
    queue().run([this, now = dependencies_.clock.now()] { return run(now); },
                [this](const DiskScanResult& result) { finish(result); });
}

void DiskAnalyzer::lookUpFolderNames() {
    queue().run(
        [this] {
            auto names = roots();
            for (auto& name : names) name = lastComponent(name);
            return names;
        },
        [this](const std::vector<std::string>& names) {
            if (folderNames_ == names) return;
            folderNames_ = names;
            changed.emit();
        });
}

// No thread before somebody asks.
JobQueue& DiskAnalyzer::queue() {
    if (!queue_) queue_ = dependencies_.queues.makeQueue("disk-analyzer", platform::JobPriority::low);
    return *queue_;
}

std::vector<std::string> DiskAnalyzer::roots() const {
    std::vector<std::string> roots;
    for (const auto folder : scannedFolders) {
        const auto path = dependencies_.folders.path(folder);
        if (!path || std::ranges::find(roots, *path) != roots.end()) continue;
        const auto info = dependencies_.files.inspect(*path);
        if (info && info.value().kind == FileKind::directory) roots.push_back(*path);
    }
    return roots;
}

DiskScanResult DiskAnalyzer::run(Instant now) {
    DiskScan scan(now);
    const auto visit = [&](const platform::FoundFile& found) {
        scan.add(found);
        return isEnding_ ? VisitAction::stop : VisitAction::proceed;
    };
    for (const auto& root : roots()) {
        queue_->deliver([this, name = lastComponent(root)] {
            progressLabel_ = "Analizando " + name + "…";
            changed.emit();
        });
        scan.enterRoot(root);
        // What cannot be read is passed over, even if it is the root.
        static_cast<void>(dependencies_.files.enumerate(root, platform::HiddenFiles::skipped, visit));
    }
    auto result = std::move(scan).result();
    result.finishedAt = dependencies_.clock.now();
    return result;
}

void DiskAnalyzer::finish(DiskScanResult result) {
    result_ = std::move(result);
    for (auto& file : result_.largeOld) file.id = newId();
    for (auto& folder : result_.topFolders) folder.id = newId();
    isScanning_ = false;
    progressLabel_.clear();
    changed.emit();
}

Uuid DiskAnalyzer::newId() {
    const auto high = dependencies_.randomness.bits();
    return Uuid::random(high, dependencies_.randomness.bits());
}

void DiskAnalyzer::reveal(const std::string& path, std::function<void(const Status&)> done) {
    dependencies_.desktop.reveal(path, std::move(done));
}

bool DiskAnalyzer::moveToTrash(const std::string& path) {
    const auto status = dependencies_.trash.moveToTrash(path);
    if (!status) {
        dependencies_.log.warning("Trash failed: " + status.error().message);
        return false;
    }
    std::erase_if(result_.largeOld, [&](const ScannedFile& file) { return file.path == path; });
    changed.emit();
    return true;
}

std::string DiskAnalyzer::daysAgo(platform::FileTime time, Instant now) {
    constexpr int daysPerMonth = 30;
    constexpr int daysPerYear = 365;
    const auto days = std::chrono::duration_cast<std::chrono::days>(now - time).count();
    if (days < 1) return "hoy";
    if (days < daysPerMonth) return "hace " + std::to_string(days) + "d";
    if (days >= daysPerYear) return "hace " + std::to_string(days / daysPerYear) + "año";
    return "hace " + std::to_string(days / daysPerMonth) + "mes";
}

}  // namespace tidewatch
