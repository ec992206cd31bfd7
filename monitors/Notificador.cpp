#include "monitors/Notificador.h"

#include <chrono>

namespace ovanta {

void Notificador::enviar(Plataforma &plataforma, const std::string &titulo, const std::string &cuerpo,
                         const std::string &id)
{
    Notificaciones &notificaciones = plataforma.notificaciones();
    if (!notificaciones.disponible()) return;
    const auto desde1970 = plataforma.reloj().ahora().time_since_epoch();
    const auto segundos = std::chrono::duration_cast<std::chrono::seconds>(desde1970).count();
    notificaciones.enviar(
        {id + "-" + std::to_string(segundos), titulo, cuerpo, Notificaciones::Sonido::normal});
}

} // namespace ovanta
