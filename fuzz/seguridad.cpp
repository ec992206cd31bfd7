#include "tests/HogarTemporal.h"
#include "tests/core/SeguridadPropiedades.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>

using namespace ovanta;
using namespace ovanta::pruebas;

namespace {

/// A small home with a link of every kind, and its path gate.
struct Escenario
{
    HogarTemporal casa;
    PreferenciasEnMemoria preferencias;
    Seguridad seguridad{{casa.ruta(), {".local/share"}, {}}, preferencias};

    Escenario()
    {
        HogarTemporal::archivo(casa.en("a/b"));
        HogarTemporal::archivo(casa.en("a/.git/c"));
        HogarTemporal::archivo(casa.fuera("b"));
        HogarTemporal::enlace(casa.en("f"), casa.fuera());
        HogarTemporal::enlace(casa.en("a/d"), "..");
        HogarTemporal::enlace(casa.en("l"), "l");
        HogarTemporal::enlace(casa.en("n"), "nada");
        preferencias.fijar(Seguridad::claveProtecciones, std::vector<std::string>{casa.en("p")});
    }
};

void exigir(const std::string &incumplimiento)
{
    if (incumplimiento.empty()) return;
    std::fprintf(stderr, "an accepted path %s\n", incumplimiento.c_str());
    std::abort();
}

} // namespace

// The bytes up to the first line break are a path, the rest a chosen folder.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *datos, std::size_t cuantos)
{
    static const Escenario escenario;
    const auto &seguridad = escenario.seguridad;
    const std::string texto(reinterpret_cast<const char *>(datos), cuantos);
    const auto corte = std::min(texto.find('\n'), texto.size());
    const auto ruta = texto.substr(0, corte);
    const auto raiz =
        expandirTilde(std::string_view(texto).substr(std::min(corte + 1, cuantos)), seguridad.hogar());
    exigir(incumplimientoDeValidar(seguridad, texto));
    exigir(incumplimientoDeValidar(seguridad, ruta));
    exigir(incumplimientoDeSeleccion(seguridad, expandirTilde(ruta, seguridad.hogar()), raiz));
    exigir(incumplimientoDeAnalisis(seguridad, ruta, {seguridad.hogar() + "/p", raiz}));
    return 0;
}
