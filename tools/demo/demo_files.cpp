#include "tools/demo/demo_files.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <array>
#include <chrono>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string_view>

namespace tidewatch::demo {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view userFolders =
    "XDG_DOWNLOAD_DIR=\"$HOME/Descargas\"\n"
    "XDG_DESKTOP_DIR=\"$HOME/Escritorio\"\n"
    "XDG_DOCUMENTS_DIR=\"$HOME/Documentos\"\n"
    "XDG_VIDEOS_DIR=\"$HOME/Vídeos\"\n";

struct File {
    std::string_view path;
    std::uintmax_t megabytes;
    int days;  ///< since it was last opened
};

constexpr std::array files{
    File{"Descargas/debian-12.7.0-amd64-DVD-1.iso", 3790, 210},
    File{"Descargas/respaldo-portatil-2023.tar.gz", 1640, 480},
    File{"Descargas/curso-ilustracion.zip", 890, 132},
    File{"Descargas/firmware-camara.bin", 74, 260},
    File{"Descargas/facturas-abril.pdf", 3, 12},
    File{"Escritorio/captura-entrevista.mp4", 412, 6},
    File{"Documentos/Libro de cocina/fotos-originales.tar", 2310, 41},
    File{"Documentos/Libro de cocina/maqueta.pdf", 118, 2},
    File{"Documentos/Libro de cocina/texto.odt", 4, 0},
    File{"Documentos/Sitio web/exportacion-2024.sql", 640, 305},
    File{"Documentos/Sitio web/imagenes.zip", 530, 75},
    File{"Documentos/presupuesto.ods", 1, 20},
    File{"Vídeos/Boda de Ana/cinta-1.mkv", 2950, 530},
    File{"Vídeos/Boda de Ana/cinta-2.mkv", 2710, 530},
    File{"Vídeos/Boda de Ana/montaje-final.mkv", 1180, 9},
    File{"Vídeos/tutorial-acuarela.webm", 356, 168},
};

void setTimes(const fs::path& path, Instant at) {
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(at.time_since_epoch()).count();
    const std::array<timespec, 2> times{timespec{.tv_sec = seconds, .tv_nsec = 0},
                                        timespec{.tv_sec = seconds, .tv_nsec = 0}};
    if (::utimensat(AT_FDCWD, path.c_str(), times.data(), 0) != 0)
        throw std::runtime_error("cannot set the times of " + path.string());
}

void create(const fs::path& path) {
    fs::create_directories(path.parent_path());
    if (!std::ofstream(path, std::ios::binary)) throw std::runtime_error("cannot write " + path.string());
}

}  // namespace

void writeDemoFiles(Instant now, const std::string& home) {
    constexpr std::uintmax_t megabyte = 1024 * 1024;
    const fs::path root(home);
    create(root / ".config/user-dirs.dirs");
    std::ofstream(root / ".config/user-dirs.dirs", std::ios::binary) << userFolders;
    for (const auto& file : files) {
        const auto path = root / file.path;
        create(path);
        fs::resize_file(path, file.megabytes * megabyte);
        setTimes(path, now - std::chrono::days(file.days));
    }
}

}  // namespace tidewatch::demo
