#include "core/Recuperacion.h"

#include "core/Historial.h"
#include "core/LeerArchivo.h"
#include "core/RegistroPrevio.h"

#include <algorithm>
#include <cerrno>
#include <functional>
#include <iterator>
#include <sys/stat.h>
#include <utility>

namespace ovanta {

namespace {

using Lote = std::vector<Movimiento>;

/// Whether the place holds the item no longer, or another one.
bool seFue(const std::string &ruta, const Identidad &identidad)
{
    struct stat estado = {};
    if (::lstat(ruta.c_str(), &estado) != 0) return errno == ENOENT || errno == ENOTDIR;
    return estado.st_dev != identidad.dispositivo || estado.st_ino != identidad.inodo;
}

bool nombraUnArchivo(const std::string &ruta)
{
    return ruta.starts_with('/') && ruta.find('\0') == std::string::npos;
}

std::vector<MovimientoPrevio> leerRegistro(const std::string &archivo)
{
    try {
        return interpretarRegistro(leerArchivo(archivo, limiteRegistroPrevio, EnlaceFinal::rechazar));
    } catch (const ErrorDeLectura &) {
        return {};
    }
}

/// A batch leaves at most one move in doubt; a file with more of them than the history takes was not
/// written by us and gets no more answers than that.
Lote sobrevivientes(const std::vector<MovimientoPrevio> &previos, const EnPapelera &enPapelera)
{
    Lote lote;
    std::size_t dudas = 0;
    for (const auto &[movimiento, identidad, hecho] : previos) {
        if (!nombraUnArchivo(movimiento.ruta)) continue;
        if (hecho || (dudas++ < maximoHistorial && seFue(movimiento.ruta, identidad) &&
                      enPapelera(movimiento.ruta, movimiento.fecha)))
            lote.push_back(movimiento);
    }
    return lote;
}

} // namespace

Recuperacion recuperar(const std::string &carpeta, const EnPapelera &enPapelera)
{
    Recuperacion recuperacion{{}, registrosPrevios(carpeta)};
    std::vector<Lote> lotes;
    for (const auto &archivo : recuperacion.registros) {
        auto lote = sobrevivientes(leerRegistro(archivo), enPapelera);
        if (!lote.empty()) lotes.push_back(std::move(lote));
    }
    std::ranges::sort(lotes, std::greater{}, [](const Lote &lote) { return lote.back().fecha; });
    for (auto &lote : lotes)
        std::ranges::move(lote, std::back_inserter(recuperacion.movimientos));
    return recuperacion;
}

} // namespace ovanta
