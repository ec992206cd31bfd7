#include "monitors/Recomendaciones.h"

#include <algorithm>
#include <array>
#include <optional>

namespace ovanta {

namespace {

using Accion = Recomendacion::Accion;

constexpr std::uint64_t swapNotable = 2ULL << 30;
constexpr std::uint64_t memoriaNotable = 1ULL << 30;
constexpr double parteNotable = 0.15;
constexpr int diasNotables = 14;

struct Acaparador
{
    std::string_view clave;
    std::string_view consejo;
};

constexpr std::string_view claveSimulador = "Simulator";

constexpr std::array<Acaparador, 4> acaparadores{{
    {"Docker", "Docker reserva memoria para su máquina virtual aunque no tengas contenedores activos. "
               "Ciérralo si no lo usas o baja su límite en Ajustes → Resources."},
    {claveSimulador, "Hay simuladores de iOS arrancados; cada uno ocupa entre 1 y 2 GB."},
    {"ollama", "Ollama mantiene el modelo cargado en memoria unos minutos tras usarlo. "
               "`ollama stop <modelo>` lo libera al momento."},
    {"LM Studio", "LM Studio mantiene el modelo cargado. Expúlsalo desde la app para liberar esa memoria."},
}};

/// What all recommendations of one list are made with.
struct Redaccion
{
    const DatosRecomendaciones &datos;
    const ContieneTexto &contiene;
    const FormaNumeros &forma;

    std::string bytes(std::uint64_t cuantos) const
    {
        return textoBytes(cuantos, EstiloBytes::memoria, forma);
    }
};

std::string idDePrimero(const Proceso &proceso)
{
    return "top-" + std::to_string(proceso.id);
}

Accion cerrarSiSePuede(const Proceso &proceso)
{
    return proceso.sePuedeCerrar ? Accion::cerrar(proceso.id) : Accion{};
}

Recomendacion swapViejo(const Redaccion &r)
{
    const int dias = r.datos.diasEncendido;
    std::string final = ".";
    if (dias >= 1)
        final = " (llevas " + std::to_string(dias) + (dias == 1 ? " día" : " días") + " sin reiniciar).";
    return {"swap-viejo",
            "arrow.clockwise.circle",
            "Hay " + r.bytes(r.datos.swapUsado) +
                " de swap de un pico anterior ocupando el SSD. Ahora no se usa, pero solo se libera al "
                "reiniciar" +
                final,
            {Accion::Clase::reiniciar}};
}

Recomendacion swapActivo(const Redaccion &r)
{
    return {"swap-activo",
            "exclamationmark.arrow.triangle.2.circlepath",
            "Se está escribiendo swap ahora mismo (" + r.bytes(r.datos.swapUsado) +
                " acumulados). Cierra algo de la lista de abajo antes de reiniciar, o volverá a llenarse.",
            {}};
}

std::optional<Recomendacion> delSistema(const Redaccion &r)
{
    if (r.datos.swapUsado >= swapNotable)
        return r.datos.estado == EstadoMemoria::normal ? swapViejo(r) : swapActivo(r);
    if (r.datos.diasEncendido < diasNotables) return std::nullopt;
    return Recomendacion{"uptime",
                         "clock.arrow.circlepath",
                         "Llevas " + std::to_string(r.datos.diasEncendido) +
                             " días sin reiniciar. Reiniciar de vez en cuando limpia fugas de memoria de "
                             "apps y servicios.",
                         {Accion::Clase::reiniciar}};
}

std::string textoDelPrimero(const Redaccion &r, const Proceso &primero, double parte)
{
    std::string texto = primero.nombre + " usa " + r.bytes(primero.rss) + " (" +
                        std::to_string(static_cast<std::uint64_t>(parte * 100.0)) + " % de la RAM)";
    if (primero.procesos >= 2) texto += " repartidos en " + std::to_string(primero.procesos) + " procesos";
    texto += ".";
    if (r.contiene(primero.nombre, "chrome") || r.contiene(primero.nombre, "edge"))
        texto += " Cerrar pestañas o activar el ahorro de memoria del navegador lo reduce mucho.";
    return texto;
}

std::optional<Recomendacion> delPrimero(const Redaccion &r)
{
    if (r.datos.procesos.empty()) return std::nullopt;
    const Proceso &primero = r.datos.procesos.front();
    const double parte = fraccionMemoria(primero.rss, r.datos.total);
    if (parte < parteNotable) return std::nullopt;
    return Recomendacion{idDePrimero(primero), "chart.bar.xaxis", textoDelPrimero(r, primero, parte),
                         cerrarSiSePuede(primero)};
}

std::optional<Recomendacion> delAcaparador(const Redaccion &r, const Acaparador &acaparador,
                                           const std::vector<Recomendacion> &hasta)
{
    const auto hallado = std::ranges::find_if(r.datos.procesos, [&](const Proceso &proceso) {
        return r.contiene(proceso.nombre, acaparador.clave);
    });
    if (hallado == r.datos.procesos.end() || hallado->rss < memoriaNotable) return std::nullopt;
    if (std::ranges::find(hasta, idDePrimero(*hallado), &Recomendacion::id) != hasta.end())
        return std::nullopt;
    const Accion accion =
        acaparador.clave == claveSimulador ? Accion{Accion::Clase::simuladores} : cerrarSiSePuede(*hallado);
    return Recomendacion{
        "dev-" + std::string(acaparador.clave), "lightbulb",
        hallado->nombre + ": " + r.bytes(hallado->rss) + ". " + std::string(acaparador.consejo), accion};
}

} // namespace

std::vector<Recomendacion> calcularRecomendaciones(const DatosRecomendaciones &datos,
                                                   const ContieneTexto &contiene, const FormaNumeros &forma)
{
    const Redaccion redaccion{datos, contiene, forma};
    std::vector<Recomendacion> lista;
    if (auto una = delSistema(redaccion)) lista.push_back(*std::move(una));
    if (auto una = delPrimero(redaccion)) lista.push_back(*std::move(una));
    for (const Acaparador &acaparador : acaparadores)
        if (auto una = delAcaparador(redaccion, acaparador, lista)) lista.push_back(*std::move(una));
    return lista;
}

} // namespace ovanta
