#include "shell/welcome.h"

#include <string>

namespace tidewatch {

void welcome(NotificationManager& notifications, bool hasTray) {
    const std::string place = hasTray ? "Su icono está en la bandeja: " : "Sobre su reloj, ";
    notifications.fireOnce(
        "welcome",
        {.title = "Tidewatch ya cuenta tu tiempo",
         .body =
             "Apunta cada segundo que trabajas, por día, hora, aplicación y proyecto; si paras, espera. " +
             place +
             "un clic abre las estadísticas; el botón derecho, el menú. Tus datos no salen de este equipo."});
}

}  // namespace tidewatch
