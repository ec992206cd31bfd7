#pragma once

#include "core/Seguridad.h"
#include "tests/PreferenciasEnMemoria.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <system_error>

namespace ovanta::pruebas {

/// A home of its own in a fresh temporary folder, with an outside beside it; both go away with it.
/// Its own path holds no link.
class HogarTemporal
{
public:
    HogarTemporal()
    {
        std::string plantilla = std::filesystem::temp_directory_path() / "ovanta-hogar.XXXXXX";
        if (!::mkdtemp(plantilla.data())) throw std::system_error(errno, std::generic_category());
        m_base = std::filesystem::canonical(plantilla);
        for (const char *carpeta : {"ana", "anabel", "fuera"})
            std::filesystem::create_directory(m_base / carpeta);
    }
    HogarTemporal(const HogarTemporal &) = delete;
    HogarTemporal &operator=(const HogarTemporal &) = delete;
    ~HogarTemporal()
    {
        std::error_code ignorado;
        std::filesystem::remove_all(m_base, ignorado);
    }

    std::string ruta() const { return m_base / "ana"; }
    /// A path under home.
    std::string en(std::string_view relativa) const { return unir(ruta(), relativa); }
    /// A path beside home.
    std::string fuera(std::string_view relativa = {}) const
    {
        return unir((m_base / "fuera").native(), relativa);
    }
    /// A path in the home of a neighbour whose path begins with the text of ours.
    std::string vecino(std::string_view relativa = {}) const
    {
        return unir((m_base / "anabel").native(), relativa);
    }

    static std::string carpeta(const std::string &ruta)
    {
        std::filesystem::create_directories(ruta);
        return ruta;
    }
    static std::string archivo(const std::string &ruta)
    {
        std::filesystem::create_directories(std::filesystem::path(ruta).parent_path());
        std::ofstream(ruta) << "contenido";
        return ruta;
    }
    static std::string enlace(const std::string &ruta, const std::string &destino)
    {
        std::filesystem::create_directories(std::filesystem::path(ruta).parent_path());
        std::filesystem::create_symlink(destino, ruta);
        return ruta;
    }

private:
    std::filesystem::path m_base;
};

} // namespace ovanta::pruebas
