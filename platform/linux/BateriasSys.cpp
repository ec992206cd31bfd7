#include "platform/linux/BateriasSys.h"

#include "core/LeerArchivo.h"
#include "platform/linux/EntradasDeCarpeta.h"

#include <algorithm>
#include <charconv>

namespace ovanta {

namespace {

/// The attributes of one power supply.
class Fuente
{
public:
    explicit Fuente(std::string carpeta) : m_carpeta(std::move(carpeta)) {}

    /// Without its line end; empty where the attribute is not there or cannot be read now.
    std::string texto(const char *atributo) const
    {
        try {
            std::string valor = leerArchivo(m_carpeta + "/" + atributo, 4096, EnlaceFinal::seguir);
            valor.erase(valor.find_last_not_of('\n') + 1);
            return valor;
        } catch (const ErrorDeLectura &) {
            return {};
        }
    }

    std::optional<double> numero(const char *atributo) const
    {
        const std::string valor = texto(atributo);
        long long entero = 0;
        const auto [fin, error] = std::from_chars(valor.data(), valor.data() + valor.size(), entero);
        if (error != std::errc{}) return std::nullopt;
        return static_cast<double>(entero);
    }

    double numeroO0(const char *atributo) const { return numero(atributo).value_or(0); }

private:
    std::string m_carpeta;
};

LecturaBateria leerBateria(const Fuente &fuente)
{
    LecturaBateria lectura;
    if (fuente.numero("charge_full")) {
        lectura.contenido = fuente.numeroO0("charge_now");
        lectura.lleno = fuente.numeroO0("charge_full");
        lectura.deFabrica = fuente.numeroO0("charge_full_design");
        lectura.ritmo = fuente.numeroO0("current_now");
    } else {
        // Without a voltage the shares hold all the same.
        const double microvoltios = fuente.numeroO0("voltage_min_design");
        const double voltios = microvoltios > 0 ? microvoltios / 1e6 : 1.0;
        lectura.contenido = fuente.numeroO0("energy_now") / voltios;
        lectura.lleno = fuente.numeroO0("energy_full") / voltios;
        lectura.deFabrica = fuente.numeroO0("energy_full_design") / voltios;
        lectura.ritmo = fuente.numeroO0("power_now") / voltios;
    }
    lectura.porcentaje = fuente.numero("capacity");
    lectura.ciclos = static_cast<int>(std::clamp(fuente.numeroO0("cycle_count"), 0.0, 1e6));
    const std::string estado = fuente.texto("status");
    lectura.cargando = estado == "Charging";
    lectura.descargando = estado == "Discharging";
    return lectura;
}

} // namespace

LecturaBaterias leerBateriasSys(const std::string &raiz)
{
    LecturaBaterias lectura;
    const std::string carpeta = raiz + "/sys/class/power_supply/";
    for (const std::string &nombre : entradasDeCarpeta(carpeta)) {
        const Fuente fuente(carpeta + nombre);
        if (fuente.texto("scope") == "Device") continue;
        const std::string clase = fuente.texto("type");
        if (clase == "Battery") {
            if (fuente.numero("present") != 0) lectura.baterias.push_back(leerBateria(fuente));
        } else if (clase == "Mains" || clase == "USB") {
            lectura.enCorriente = lectura.enCorriente.value_or(false) || fuente.numero("online") == 1;
        }
    }
    return lectura;
}

} // namespace ovanta
