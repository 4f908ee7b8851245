#include "system/views/sidebar/devices_detail_presenter.h"

#include <algorithm>

#include "shell/themes/dashboard_style.h"
#include "system/views/system_texts.h"
#include "ui/style/qt_color.h"

namespace tidewatch {
namespace {

std::string reason(platform::EjectionErrorKind kind) {
    switch (kind) {
        case platform::EjectionErrorKind::inUse:
            return "Algún programa tiene archivos abiertos en esta unidad. Ciérralos e inténtalo de nuevo.";
        case platform::EjectionErrorKind::noPermission:
            return "El sistema no dio permiso para expulsarla.";
        case platform::EjectionErrorKind::noService:
            return "En este equipo no hay ningún servicio que expulse unidades.";
        case platform::EjectionErrorKind::other:
            break;
    }
    return "El sistema no pudo expulsarla. No la desconectes todavía.";
}

}  // namespace

DevicesDetailPresenter::DevicesDetailPresenter(const Frame& frame, VolumeEjector& ejector,
                                               const SystemCommands& commands)
    : DetailPresenter(frame, "Dispositivos conectados",
                      {.symbol = "externaldrive", .color = toQColor(DashboardStyle::amber)}),
      ejector_(ejector),
      commands_(commands),
      ejectorChanged_(ejector.changed.connect([this] { updateIfVisible(); })) {}

void DevicesDetailPresenter::update() {
    const bool hadVolumes = hasVolumes();
    auto rows = volumeRows(snap(), VolumeKind::external, {});
    for (auto& row : rows) row.isEjecting = ejector_.isEjecting(row.path);
    volumes_.setRows(rows);
    if (hasVolumes() != hadVolumes) Q_EMIT volumesChanged();
}

void DevicesDetailPresenter::eject(const QString& id) {
    const auto row = std::ranges::find(volumes_.rows(), id, &SystemVolume::id);
    if (row == volumes_.rows().end()) return;
    ejector_.eject(row->path, [this, name = row->name](const std::optional<platform::EjectionError>& error) {
        if (error) commands_.warn(("No se pudo expulsar " + name).toStdString(), reason(error->kind));
    });
}

}  // namespace tidewatch
