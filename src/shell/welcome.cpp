#include "shell/welcome.h"

#include <string>

namespace tidewatch {

void welcome(NotificationManager& notifications, bool hasTray) {
    std::string body =
        "Apunta cada segundo que trabajas, por día, hora, aplicación y proyecto; si paras, espera. ";
    if (hasTray) {
        body += "Su icono está en la bandeja: un clic abre las estadísticas; el botón derecho, el menú. ";
    }
    body += "Tus datos no salen de este equipo.";
    notifications.fireOnce("welcome", {.title = "Tidewatch ya cuenta tu tiempo", .body = body});
}

}  // namespace tidewatch
