#include "devices/RegistroBateria.h"

namespace ovanta {

std::expected<DiccionarioPlist, ErrorIOS> pedirRegistroBateria(ConexionIOS &conexion)
{
    const auto enviado = conexion.enviarPlist(
        {{"Request", "IORegistry"}, {"EntryName", "AppleSmartBattery"}, {"Label", "Ovanta"}});
    if (!enviado) return std::unexpected(enviado.error());
    const auto respuesta = conexion.recibirPlist();
    if (!respuesta) return std::unexpected(respuesta.error());
    // The answer is here: whether the relay still hears the farewell changes nothing.
    static_cast<void>(conexion.enviarPlist({{"Request", "Goodbye"}, {"Label", "Ovanta"}}));

    const auto *diagnostico = respuesta->valor<DiccionarioPlist>("Diagnostics");
    const auto *registro = diagnostico ? diagnostico->valor<DiccionarioPlist>("IORegistry") : nullptr;
    if (registro && !registro->empty()) return *registro;
    const ValorPlist *estado = respuesta->buscar("Status");
    return std::unexpected(ErrorIOS::protocolo("El dispositivo no comparte los datos de la batería (" +
                                               (estado ? textoPlano(*estado) : "sin estado") + ")."));
}

} // namespace ovanta
