#pragma once

#include "analysis/Recorrer.h"
#include "platform/linux/AccesoArchivosLinux.h"
#include "tests/HogarTemporal.h"

#include <algorithm>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <vector>

namespace ovanta::pruebas {

/// A folder of files that a test writes, and its walk.
class ArbolDeArchivos
{
public:
    std::string raiz() const { return m_hogar.ruta(); }
    std::string en(std::string_view relativa) const { return m_hogar.en(relativa); }

    std::string escribir(std::string_view relativa, std::string_view contenido) const
    {
        std::string ruta = en(relativa);
        std::filesystem::create_directories(std::filesystem::path(ruta).parent_path());
        std::ofstream(ruta, std::ios::binary) << contenido;
        return ruta;
    }

    /// A file of that size without blocks on the disk.
    std::string escribirHueco(std::string_view relativa, std::uint64_t bytes) const
    {
        std::string ruta = escribir(relativa, "");
        std::filesystem::resize_file(ruta, bytes);
        return ruta;
    }

    void enlazar(std::string_view relativa, std::string_view otro) const
    {
        std::filesystem::create_hard_link(en(relativa), en(otro));
    }

    void fechar(std::string_view relativa, std::int64_t segundos, long nanosegundos = 0) const
    {
        const timespec momentos[2]{{segundos, nanosegundos}, {segundos, nanosegundos}};
        ::utimensat(AT_FDCWD, en(relativa).c_str(), momentos, 0);
    }

    Recorrido recorrido(std::uint64_t minimo = 0) const
    {
        return {{raiz()}, minimo, NombresIgnorados::deAnalisis(), {}};
    }

    ListaArchivos archivos(std::uint64_t minimo = 0) const
    {
        AccesoArchivosLinux acceso;
        return recorrer(recorrido(minimo), acceso, nullptr);
    }

private:
    HogarTemporal m_hogar;
};

/// The paths of a list, sorted, without `raiz` and its slash.
inline std::vector<std::string> relativas(const ListaArchivos &archivos, const std::string &raiz)
{
    std::vector<std::string> rutas;
    for (ListaArchivos::Numero i = 0; i < archivos.size(); ++i)
        rutas.push_back(archivos.ruta(i).substr(raiz.size() + 1));
    std::ranges::sort(rutas);
    return rutas;
}

} // namespace ovanta::pruebas
