#include "devices/RSD.h"

namespace ovanta::RSD {

std::expected<ServiciosRSD, ErrorIOS> servicios(ConexionIOS &conexion)
{
    return descubrirServicios(
        {.leer = [&conexion](std::size_t cuantos) { return conexion.leerCrudo(cuantos); },
         .escribir = [&conexion](std::string_view bytes) { return conexion.escribirCrudo(bytes); }});
}

std::expected<ServiciosRSD, ErrorIOS> servicios(Conexiones &conexiones, const std::string &ip,
                                                const Plazo &plazo)
{
    for (std::uint16_t puerto = primerPuerto; puerto <= ultimoPuerto; ++puerto) {
        if (plazo.vencido()) return std::unexpected(ErrorIOS::socket("el dispositivo no respondió a tiempo"));
        auto conexion =
            ConexionIOS::abrirTcp6(conexiones, ip, puerto, esperaPorPuerto, plazo.acotado(limitePorPuerto));
        if (!conexion) continue;
        conexion->ponerTiempos(esperaPorPaso, esperaPorPaso);
        if (auto hallados = servicios(*conexion)) return hallados;
    }
    return std::unexpected(
        ErrorIOS::protocolo("El dispositivo no respondió. Desbloquéalo y pulsa «Buscar de nuevo»."));
}

} // namespace ovanta::RSD
