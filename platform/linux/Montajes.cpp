#include "platform/linux/Montajes.h"

#include "core/Rutas.h"

#include <algorithm>
#include <array>
#include <vector>

namespace ovanta {

namespace {

std::vector<std::string_view> partir(std::string_view texto, char separador)
{
    std::vector<std::string_view> partes;
    while (!texto.empty()) {
        const std::size_t fin = std::min(texto.find(separador), texto.size());
        if (fin > 0) partes.push_back(texto.substr(0, fin));
        texto.remove_prefix(std::min(fin + 1, texto.size()));
    }
    return partes;
}

bool esOctal(char letra)
{
    return letra >= '0' && letra <= '7';
}

/// The kernel writes blanks, line breaks and backslashes of a path as "\ooo".
std::string sinEscapes(std::string_view texto)
{
    std::string resultado;
    for (std::size_t i = 0; i < texto.size(); ++i) {
        const std::string_view escape = texto.substr(i, 4);
        if (escape.size() == 4 && escape[0] == '\\' &&
            std::all_of(escape.begin() + 1, escape.end(), esOctal)) {
            resultado +=
                static_cast<char>((escape[1] - '0') * 64 + (escape[2] - '0') * 8 + (escape[3] - '0'));
            i += 3;
        } else {
            resultado += texto[i];
        }
    }
    return resultado;
}

/// "36 35 98:0 /root /mount/point options [optional fields] - type source options", proc(5).
std::optional<Montaje> leerLinea(std::string_view linea)
{
    const auto campos = partir(linea, ' ');
    const auto guion = std::find(campos.begin(), campos.end(), "-");
    if (guion - campos.begin() < 6 || campos.end() - guion < 2) return std::nullopt;
    return Montaje{sinEscapes(campos[4]), std::string{guion[1]}};
}

bool contiene(std::string_view punto, std::string_view ruta)
{
    return punto == "/" || yaceEn(ruta, punto);
}

} // namespace

std::optional<Montaje> montajeDe(std::string_view mountinfo, std::string_view ruta)
{
    std::optional<Montaje> mejor;
    for (const std::string_view linea : partir(mountinfo, '\n')) {
        const auto montaje = leerLinea(linea);
        if (!montaje || !contiene(montaje->punto, ruta)) continue;
        // Of two at one place the later one covers the earlier.
        if (!mejor || montaje->punto.size() >= mejor->punto.size()) mejor = montaje;
    }
    return mejor;
}

bool puedeBloquear(std::string_view tipo)
{
    static constexpr std::array<std::string_view, 15> tipos = {
        "nfs",  "nfs4",  "cifs",   "smb3",      "smbfs",  "9p",   "afs",      "ceph",
        "coda", "ncpfs", "lustre", "glusterfs", "autofs", "fuse", "virtiofs",
    };
    return tipo.starts_with("fuse.") || std::find(tipos.begin(), tipos.end(), tipo) != tipos.end();
}

} // namespace ovanta
