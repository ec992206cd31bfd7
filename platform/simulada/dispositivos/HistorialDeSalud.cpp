#include "platform/simulada/dispositivos/HistorialDeSalud.h"

#include "core/CarpetaDatos.h"
#include "platform/simulada/ArchivosSinteticos.h"
#include "platform/simulada/dispositivos/HogarDeDispositivos.h"

#include <array>
#include <nlohmann/json.hpp>
#include <string_view>

namespace ovanta {

namespace {

struct Desgaste
{
    std::string_view udid;
    int capacidadDiseno; ///< mAh
    int ciclosAlPrincipio;
    int ciclosPorLectura;
    std::array<int, 9> salud; ///< percent, oldest first
};

constexpr std::array desgastes{
    Desgaste{udidIphoneDeLucia, 3'274, 96, 13, {98, 98, 97, 97, 96, 96, 95, 95, 94}},
    Desgaste{udidIphoneDeMartin, 3'110, 652, 23, {82, 81, 81, 80, 79, 78, 77, 76, 75}},
};

constexpr std::chrono::days entreLecturas{31};
constexpr std::chrono::days desdeLaUltima{9};

nlohmann::json lecturasDe(const Desgaste &desgaste, Fecha ahora)
{
    auto lecturas = nlohmann::json::array();
    const auto ultima = std::chrono::floor<std::chrono::days>(ahora) - desdeLaUltima;
    for (std::size_t i = 0; i < desgaste.salud.size(); ++i) {
        const int atras = static_cast<int>(desgaste.salud.size() - 1 - i);
        lecturas.push_back(
            {{"fecha", textoISO8601(ultima - atras * entreLecturas)},
             {"salud", desgaste.salud[i]},
             {"ciclos", desgaste.ciclosAlPrincipio + static_cast<int>(i) * desgaste.ciclosPorLectura},
             {"capacidad", desgaste.capacidadDiseno * desgaste.salud[i] / 100}});
    }
    return lecturas;
}

} // namespace

void ponerHistorialDeSalud(const std::string &hogar, Fecha ahora)
{
    nlohmann::json historial;
    for (const Desgaste &desgaste : desgastes)
        historial[std::string(desgaste.udid)] = lecturasDe(desgaste, ahora);
    escribirTexto(carpetaDatos(hogar) + "/salud-dispositivos.json", historial.dump());
}

} // namespace ovanta
