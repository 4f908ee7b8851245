#include "tests/system/views/system_world.h"

#include <array>
#include <utility>

namespace tidewatch {
namespace {

using platform::FileTime;
using platform::UserFolder;

constexpr double ticksPerSample = 1000;

struct Process {
    const char* name;
    double percent;
    std::uint64_t mebibytes;
};

constexpr std::array processes{
    Process{"node", 104.5, 512},  Process{"firefox", 42.4, 1830}, Process{"code", 31, 1210},
    Process{"Xorg", 12.2, 164},   Process{"gnome-shell", 8, 355}, Process{"thunderbird", 4, 640},
    Process{"pipewire", 2.1, 24}, Process{"tidewatch", 0.6, 61},
};

struct File {
    const char* path;
    std::int64_t megabytes;
    int days;  ///< since it was last opened
};

constexpr std::array files{
    File{"Descargas/debian-12.7.0-amd64-DVD-1.iso", 3790, 210},
    File{"Descargas/respaldo-2023.tar.gz", 1640, 480},
    File{"Vídeos/Boda de Ana/cinta 1.mkv", 2950, 95},
    File{"Vídeos/Boda de Ana/cinta 2.mkv", 2710, 400},
    File{"Documentos/tesis/datos.csv", 220, 3},
    File{"Descargas/dataset.zip", 890, 132},
    File{"Escritorio/captura.mp4", 61, 0},
    File{"Descargas/notas.pdf", 2, 10},
};

}  // namespace

void SystemViewsWorld::useBelievableMachine() {
    machine_.counters.memoryReading = {
        .total = 16 * gigabyte,
        .usage = platform::MemoryUsage{.free = 2 * gigabyte,
                                       .active = 7 * gigabyte + gigabyte / 2,
                                       .wired = gigabyte,
                                       .compressed = gigabyte / 2},
        .swapUsed = gigabyte / 4,
    };
    machine_.counters.link = platform::PrimaryLink{"wlp2s0", platform::WirelessLink{"CasaNube 5G", -58}};
    machine_.counters.gpus = {12};
    for (const auto& process : processes) {
        machine_.counters.processes.push_back(
            {process.name, process.percent, process.mebibytes * 1024 * 1024});
    }
    setVolumes({{.path = "/",
                 .name = "Sistema",
                 .totalBytes = 476 * gigabyte,
                 .freeBytes = 118 * gigabyte,
                 .isInternal = true},
                {.path = "/media/user/KINGSTON",
                 .name = "KINGSTON",
                 .totalBytes = 29 * gigabyte,
                 .freeBytes = 11 * gigabyte,
                 .isInternal = false},
                {.path = "/datos",
                 .name = "Datos",
                 .totalBytes = 1863 * gigabyte,
                 .freeBytes = 90 * gigabyte,
                 .isInternal = true}});
    useProcessors(0, 0);
    machine_.counters.traffic = platform::InterfaceBytes{.received = 1000, .sent = 1000};
}

void SystemViewsWorld::useBelievableFiles() {
    const std::string home = "/home/user/";
    for (const auto& [folder, name] :
         std::initializer_list<std::pair<UserFolder, const char*>>{{UserFolder::downloads, "Descargas"},
                                                                   {UserFolder::desktop, "Escritorio"},
                                                                   {UserFolder::documents, "Documentos"},
                                                                   {UserFolder::videos, "Vídeos"}}) {
        machine_.userFolders.paths[folder] = home + name;
        static_cast<void>(machine_.files.createDirectories(home + name));
    }
    static_cast<void>(machine_.files.createDirectories(home + "Vídeos/Boda de Ana"));
    static_cast<void>(machine_.files.createDirectories(home + "Documentos/tesis"));
    for (const auto& file : files) {
        const FileTime opened = machine_.clock.now() - std::chrono::days(file.days);
        machine_.files.putSparse(home + file.path, static_cast<std::uint64_t>(file.megabytes) * 1024 * 1024,
                                 opened, opened);
    }
}

void SystemViewsWorld::useProcessors(double user, double system) {
    user_ += user * ticksPerSample;
    system_ += system * ticksPerSample;
    idle_ += (1 - user - system) * ticksPerSample;
    machine_.counters.cpu = platform::CpuTicks{.user = static_cast<std::uint32_t>(user_),
                                               .system = static_cast<std::uint32_t>(system_),
                                               .idle = static_cast<std::uint32_t>(idle_)};
}

void SystemViewsWorld::transfer(std::uint64_t received, std::uint64_t sent) {
    machine_.counters.traffic->received += received;
    machine_.counters.traffic->sent += sent;
}

void SystemViewsWorld::setVolumes(std::vector<platform::MountedVolume> volumes) {
    machine_.volumes.finish(std::move(volumes));
}

void SystemViewsWorld::show() {
    tab_.setVisible(true);
    sidebar_.setVisible(true);
    if (!machine_.counters.traffic) return;
    useProcessors(0.24, 0.13);
    transfer(5'000'000, 400'000);
    awaitSample();
}

void SystemViewsWorld::startDownload() {
    if (!machine_.counters.traffic) machine_.counters.traffic = platform::InterfaceBytes();
    overview_.speedTester.startTest();
    machine_.clock.advance(std::chrono::milliseconds(14));
    machine_.http.end();
}

void SystemViewsWorld::download(double share, std::chrono::milliseconds time) {
    const auto bytes = static_cast<std::size_t>(share * static_cast<double>(SpeedTester::target));
    machine_.http.send(0);
    transfer(bytes, 0);
    machine_.mainLoop.runFor(time);
    machine_.http.send(bytes);
}

void SystemViewsWorld::measureSpeed(std::chrono::milliseconds time) {
    constexpr std::chrono::milliseconds step(250);
    startDownload();
    const auto steps = time / step;
    for (auto done = steps; done > 0; --done) download(1.0 / static_cast<double>(steps), step);
    machine_.http.end();
}

void SystemViewsWorld::accept() {
    std::exchange(accepted_, nullptr)();
}

}  // namespace tidewatch
