#include "bench/Bancos.h"
#include "bench/Cronometro.h"
#include "core/Seguridad.h"
#include "tests/HogarTemporal.h"

#include <cstdio>
#include <cstdlib>

namespace ovanta {
namespace {

constexpr int porTanda = 20'000;

void resolverSinMas(const std::string &ruta)
{
    std::free(::realpath(ruta.c_str(), nullptr));
}

struct Figura
{
    const char *nombre;
    double nuestra, realpath; ///< microseconds
};

void imprimir(const Figura &figura, bool ultima)
{
    std::printf("\"%s_por_segundo\":%.0f,\"%s_us\":%.3f,\"%s_realpath_us\":%.3f,\"%s_ratio\":%.3f%s",
                figura.nombre, 1e6 / figura.nuestra, figura.nombre, figura.nuestra, figura.nombre,
                figura.realpath, figura.nombre, figura.nuestra / figura.realpath, ultima ? "" : ",");
}

} // namespace

/// `validar [rounds]`: one check of a path in a home of its own against one bare realpath(3) of it.
int bancoValidar(int argc, char **argv)
{
    const int tandas = std::max(1, argc > 1 ? std::atoi(argv[1]) : 9);
    const pruebas::HogarTemporal casa;
    pruebas::PreferenciasEnMemoria preferencias;
    preferencias.fijar(Seguridad::claveProtecciones, std::vector{casa.en("Proyectos/x"), casa.en("Fotos")});
    const Seguridad seguridad{{casa.ruta(), {".local", ".local/share"}, {}}, preferencias};
    const auto hay = pruebas::HogarTemporal::archivo(casa.en(".cache/navegador/perfil/Cache/f_000123"));
    const auto noHay = casa.en(".cache/navegador/perfil/Cache/f_000124");
    const auto delUsuario = seguridad.proteccionesUsuario();
    int protegidas = 0;

    const auto comparar = [tandas](const char *nombre, const std::string &ruta, auto nuestra) {
        const auto [propia, ajena] =
            compararPorTandas(tandas, porTanda, nuestra, [&ruta] { resolverSinMas(ruta); });
        return Figura{nombre, propia, ajena};
    };
    const auto existente = comparar("validar_existente", hay, [&] { seguridad.validar(hay); });
    const auto inexistente = comparar("validar_inexistente", noHay, [&] { seguridad.validar(noHay); });
    const auto analisis = comparar(
        "analisis", hay, [&] { protegidas += seguridad.esRutaProtegidaParaAnalisis(hay, delUsuario); });
    if (protegidas != 0) return 1;

    std::printf("{");
    imprimir(existente, false);
    imprimir(inexistente, false);
    imprimir(analisis, true);
    std::printf("}\n");
    return 0;
}

} // namespace ovanta
