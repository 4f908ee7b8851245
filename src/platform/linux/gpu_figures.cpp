#include "platform/linux/gpu_figures.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "platform/linux/kernel_file.h"
#include "platform/linux/text_fields.h"

namespace tidewatch::platform {

namespace {

std::optional<std::string> firstLine(const std::string& path) {
    auto text = readKernelFile(path);
    if (text) text->resize(std::min(text->find('\n'), text->size()));
    return text;
}

template <class Number>
std::optional<Number> numberIn(const std::string& path) {
    const auto line = firstLine(path);
    return line ? wholeNumber<Number>(*line) : std::nullopt;
}

// Reading most figures of such a device would switch it on.
bool isSwitchedOff(const std::string& device) {
    return firstLine(device + "/power/runtime_status") == "suspended";
}

// Where the drivers count the sleep of a card: of each of its parts, or of the whole in older kernels.
std::vector<std::string> sleepFiles(const std::string& card) {
    std::vector<std::string> files;
    for (const auto& part : namesIn(card + "/gt", "gt")) {
        if (firstLine(card + "/gt/" + part + "/rc6_enable") != "0")
            files.push_back(card + "/gt/" + part + "/rc6_residency_ms");
    }
    for (const auto& tile : namesIn(card + "/device", "tile")) {
        const auto directory = card + "/device/" + tile;
        for (const auto& part : namesIn(directory, "gt"))
            files.push_back(directory + "/" + part + "/gtidle/idle_residency_ms");
    }
    if (files.empty() && firstLine(card + "/power/rc6_enable") != "0") {
        for (const auto& name : namesIn(card + "/power", "rc6_residency_ms"))
            files.push_back(card + "/power/" + name);
    }
    return files;
}

constexpr char busyFile[] = "gpu_busy_percent";

bool tellsItsLoad(const std::string& card) {
    return !namesIn(card + "/device", busyFile).empty() || !sleepFiles(card).empty();
}

}  // namespace

GpuFigures::GpuFigures(std::string sysDirectory, AskLibrary askLibrary, Now now)
    : sysDirectory_(std::move(sysDirectory)), askLibrary_(std::move(askLibrary)), now_(std::move(now)) {}

std::vector<double> GpuFigures::read() {
    std::vector<double> figures;
    readCards(figures);
    readLibrary(figures);
    return figures;
}

void GpuFigures::readCards(std::vector<double>& figures) {
    const auto cards = sysDirectory_ + "/class/drm";
    for (const auto& name : namesIn(cards, "card")) {
        // A connector's name has a dash.
        if (name.find('-') != std::string::npos) continue;
        const auto card = cards + "/" + name;
        if (isSwitchedOff(card + "/device")) {
            if (tellsItsLoad(card)) figures.push_back(0);
            continue;
        }
        const auto busy = busyShare(card);
        if (const auto figure = busy ? busy : awakeShare(card)) figures.push_back(*figure);
    }
}

std::optional<double> GpuFigures::busyShare(const std::string& card) {
    const auto percent = numberIn<int>(card + "/device/" + busyFile);
    // As a fraction: one percent would be taken for all of it.
    return percent ? std::optional(std::clamp(*percent / 100.0, 0.0, 1.0)) : std::nullopt;
}

std::optional<double> GpuFigures::awakeShare(const std::string& card) {
    std::optional<double> greatest;
    for (const auto& file : sleepFiles(card)) {
        const auto slept = numberIn<std::int64_t>(file);
        // One that has never slept does not count its sleep.
        if (!slept || *slept <= 0) continue;
        const Sleep now{.slept = std::chrono::milliseconds(*slept), .when = now_()};
        const auto last = lastSleeps_.find(file);
        if (last != lastSleeps_.end() && now.when > last->second.when) {
            using Share = std::chrono::duration<double>;
            const auto asleep = Share(now.slept - last->second.slept) / Share(now.when - last->second.when);
            greatest = std::max(greatest.value_or(0), std::clamp(1 - asleep, 0.0, 1.0));
        }
        lastSleeps_[file] = now;
    }
    return greatest;
}

void GpuFigures::readLibrary(std::vector<double>& figures) {
    const auto driver = sysDirectory_ + "/bus/pci/drivers/nvidia";
    bool isAnyOn = false;
    std::vector<double> switchedOff;
    for (const auto& name : namesIn(driver)) {
        // Devices are named by their address.
        if (name.find(':') == std::string::npos) continue;
        if (isSwitchedOff(driver + "/" + name)) {
            switchedOff.push_back(0);
        } else {
            isAnyOn = true;
        }
    }
    // The library would switch on all of them, so that it is only asked while one is on anyway.
    const auto told = isAnyOn ? library_.latest(askLibrary_).value_or(std::vector<double>()) : switchedOff;
    figures.insert(figures.end(), told.begin(), told.end());
}

}  // namespace tidewatch::platform
