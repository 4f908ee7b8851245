#include "wellbeing/stretch.h"

#include <algorithm>
#include <array>

namespace tidewatch {
namespace {

struct Row {
    Stretch stretch;
    StretchTexts texts;
};

constexpr std::array rows{
    Row{Stretch::neck,
        {"Cuello", "figure.mind.and.body",
         "Gira la cabeza 10 veces a cada lado, despacio. Luego inclínala hacia los hombros 10 veces.",
         "Tu cuello te va a dar gracias en 10 años."}},
    Row{Stretch::shoulders,
        {"Hombros", "figure.arms.open",
         "Rota los hombros hacia atrás 15 veces. Estira los brazos hacia arriba 30 segundos.",
         "Estirar 1 minuto te ahorra 1 hora de masaje."}},
    Row{Stretch::back,
        {"Espalda", "figure.flexibility",
         "Levántate. Estira los brazos al techo, inclina el torso a izquierda y derecha 5 veces cada lado.",
         "Una espalda fuerte hace un cerebro fuerte."}},
    Row{Stretch::eyes,
        {"Vista", "eye",
         "Mira a 6 metros de distancia 20 segundos. Cierra los ojos fuerte 5 veces. Hidrátalos parpadeando.",
         "Los ojos también necesitan descanso."}},
    Row{Stretch::wrists,
        {"Muñecas", "hand.raised.fingers.spread",
         "Estira los dedos hacia atrás 20 segundos. Rota las muñecas en círculo 10 veces cada dirección.",
         "Tus manos son tu herramienta — cuídalas."}},
    Row{Stretch::hips,
        {"Caderas", "figure.cooldown",
         "Camina 2 minutos. Haz 10 sentadillas sin peso. Estira el cuádriceps 30 segundos cada lado.",
         "Sentado mucho = caderas tensas mañana."}},
    Row{Stretch::fullBody,
        {"Cuerpo completo", "figure.walk",
         "Levántate y camina 3 minutos. Bebe agua. Mira por la ventana al horizonte 30 segundos.",
         "El movimiento es vida. 3 minutos cambian todo."}},
};

constexpr auto stretches = [] {
    std::array<Stretch, rows.size()> result{};
    std::ranges::transform(rows, result.begin(), &Row::stretch);
    return result;
}();

}  // namespace

std::span<const Stretch> allStretches() {
    return stretches;
}

const StretchTexts& textsOf(Stretch stretch) {
    return rows[static_cast<std::size_t>(stretch)].texts;
}

}  // namespace tidewatch
