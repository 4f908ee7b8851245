#include "system/system_monitor.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "system/last_component.h"

namespace tidewatch {

namespace {

using std::chrono::duration;

constexpr int ticksPerProcessList = 3;
constexpr std::size_t processRows = 8;
constexpr double bytesPerMebibyte = 1024 * 1024;

// Of counters that wrap around at 2^32.
double grown(std::uint32_t before, std::uint32_t now) {
    return static_cast<double>(static_cast<std::uint32_t>(now - before));
}

// Of counters that wrap around at 2^64.
double grown(std::uint64_t before, std::uint64_t now) {
    return static_cast<double>(now - before);
}

// A figure above 1 is a percentage.
double gpuFraction(double figure) {
    return std::min(figure > 1 ? figure / 100 : figure, 1.0);
}

}  // namespace

SystemMonitor::SystemMonitor(const Dependencies& dependencies, ProcessLists lists)
    : dependencies_(dependencies),
      lists_(lists),
      volumesRefreshed_(dependencies.volumes.refreshed.connect([this] { showFirstDisks(); })) {}

void SystemMonitor::start(std::chrono::milliseconds interval) {
    if (timer_) return;
    sample(Processes::refresh);
    timer_ = dependencies_.mainLoop.repeat(interval, platform::TimerMode::common, [this] { tick(); });
}

void SystemMonitor::stop() {
    timer_.reset();
}

void SystemMonitor::tick() {
    ++ticks_;
    sample(ticks_ % ticksPerProcessList == 0 ? Processes::refresh : Processes::keep);
}

void SystemMonitor::sample(Processes processes) {
    auto snap = snap_;
    readCpu(snap);
    readMemory(snap);
    dependencies_.volumes.refresh();
    readDisks(snap);
    readNetwork(snap);
    readLink(snap);
    readGpu(snap);
    if (processes == Processes::refresh && lists_ == ProcessLists::sampled) readProcesses(snap);
    publish(std::move(snap));
}

void SystemMonitor::publish(SystemSnapshot snap) {
    snap_ = std::move(snap);
    changed.emit();
}

// Otherwise they would be missing until the second sample.
void SystemMonitor::showFirstDisks() {
    if (!timer_ || !snap_.disks.empty()) return;
    auto snap = snap_;
    readDisks(snap);
    if (!snap.disks.empty()) publish(std::move(snap));
}

void SystemMonitor::readCpu(SystemSnapshot& snap) {
    const auto ticks = dependencies_.counters.cpuTicks();
    if (!ticks) return;
    if (lastTicks_) {
        const auto user = grown(lastTicks_->user, ticks->user);
        const auto system = grown(lastTicks_->system, ticks->system);
        const auto idle = grown(lastTicks_->idle, ticks->idle);
        const auto nice = grown(lastTicks_->nice, ticks->nice);
        const auto all = user + system + idle + nice;
        if (all > 0) {
            snap.cpuUser = (user + nice) / all;
            snap.cpuSystem = system / all;
            snap.cpuTotal = (user + system + nice) / all;
        }
    }
    lastTicks_ = ticks;
}

void SystemMonitor::readMemory(SystemSnapshot& snap) {
    const auto reading = dependencies_.counters.memory();
    snap.ramTotal = reading.total;
    if (!reading.usage) return;
    snap.ramWired = reading.usage->wired;
    snap.ramActive = reading.usage->active;
    snap.ramCompressed = reading.usage->compressed;
    snap.ramFree = reading.usage->free;
    snap.ramUsed = std::min(reading.total, snap.ramActive + snap.ramWired + snap.ramCompressed);
    if (reading.swapUsed) snap.swapUsed = *reading.swapUsed;
}

void SystemMonitor::readDisks(SystemSnapshot& snap) {
    snap.disks.clear();
    const auto volumes = dependencies_.volumes.latest();
    if (!volumes) return;
    for (const auto& volume : *volumes) {
        if (!volume.isBrowsable || volume.totalBytes.value_or(0) < 1) continue;
        snap.disks.push_back({.id = newId(),
                              .name = volume.name ? *volume.name : lastComponent(volume.path),
                              .path = volume.path,
                              .totalBytes = *volume.totalBytes,
                              .freeBytes = volume.freeBytes.value_or(0),
                              .isInternal = volume.isInternal.value_or(true)});
    }
    std::ranges::stable_sort(snap.disks, std::ranges::greater(), &DiskVolume::totalBytes);
}

void SystemMonitor::readNetwork(SystemSnapshot& snap) {
    const auto bytes = dependencies_.counters.interfaceBytes().value_or(platform::InterfaceBytes());
    const auto now = dependencies_.clock.monotonic();
    if (lastBytesTime_ && (lastBytes_.received != 0 || lastBytes_.sent != 0)) {
        const auto seconds = duration<double>(now - *lastBytesTime_).count();
        if (seconds > 0) {
            snap.netDownBps = grown(lastBytes_.received, bytes.received) / seconds;
            snap.netUpBps = grown(lastBytes_.sent, bytes.sent) / seconds;
        }
    }
    lastBytes_ = bytes;
    lastBytesTime_ = now;
}

void SystemMonitor::readLink(SystemSnapshot& snap) {
    snap.netType = noNetwork;
    snap.netSsid.reset();
    snap.netRssi.reset();
    const auto link = dependencies_.counters.primaryLink();
    if (!link) return;
    if (!link->wireless) {
        // Whatever it is, even a tunnel.
        snap.netType = "Ethernet";
        return;
    }
    snap.netType = "Wi-Fi";
    snap.netSsid = link->wireless->networkName;
    snap.netRssi = link->wireless->signal;
}

void SystemMonitor::readGpu(SystemSnapshot& snap) {
    snap.gpuUsage.reset();
    for (const auto figure : dependencies_.counters.gpuFigures()) {
        snap.gpuUsage = std::max(snap.gpuUsage.value_or(0), gpuFraction(figure));
    }
}

void SystemMonitor::readProcesses(SystemSnapshot& snap) {
    snap.topCpu.clear();
    snap.topRam.clear();
    for (const auto& process : dependencies_.counters.busiestProcesses(processRows)) {
        snap.topCpu.push_back({newId(), process.name, process.cpuPercent});
        snap.topRam.push_back(
            {newId(), process.name, static_cast<double>(process.resident) / bytesPerMebibyte});
    }
}

Uuid SystemMonitor::newId() {
    const auto high = dependencies_.randomness.bits();
    return Uuid::random(high, dependencies_.randomness.bits());
}

}  // namespace tidewatch
