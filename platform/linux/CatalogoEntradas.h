#pragma once

#include "platform/linux/EntradaEscritorio.h"

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ovanta {

/// A desktop entry and where it came from.
struct EntradaCatalogada
{
    std::string id; ///< desktop id without ".desktop"
    std::string ruta;
    EntradaEscritorio entrada;
    bool deInicio = false;  ///< known only as something that starts with the session
    std::string programa;   ///< file name of what it starts; empty where that tells nothing
    std::string real;       ///< where that program really lies; empty where it was not found
    std::string carpeta;    ///< the folder which that program has to itself, or empty
    bool instalada = false; ///< what it starts, and what it says to look for, is there
};

using EntradaRef = std::shared_ptr<const EntradaCatalogada>;

/// Where desktop entries lie, the most important folder first.
struct LugaresEntradas
{
    std::vector<std::string> aplicaciones;
    std::vector<std::string> inicio;    ///< what starts with the session
    std::vector<std::string> programas; ///< PATH
    std::vector<std::string> idiomas;   ///< as `idiomasDeEntrada` gives them
    std::string hogar;

    /// By the environment, with the folders of flatpak and snap added.
    /// Source: https://specifications.freedesktop.org/basedir-spec/latest/
    static LugaresEntradas delEntorno();
};

/// The desktop entries of this machine as this user sees them. For one thread at a time; reads files.
class CatalogoEntradas
{
public:
    explicit CatalogoEntradas(LugaresEntradas lugares);

    /// Reads everything anew if a folder changed since the last time; whether it did.
    bool refrescar();

    /// None of these finds a deleted entry; all give null where there is none.
    EntradaRef porId(std::string_view id) const;
    EntradaRef porRuta(std::string_view ruta) const;
    /// By one of the two texts of a window's WM_CLASS.
    EntradaRef porClaseVentana(std::string_view clase) const;
    /// By the path of the running program; `nombre` is its file name, or that of the script it runs.
    EntradaRef porPrograma(std::string_view exe, std::string_view nombre) const;

private:
    using Indice = std::multimap<std::string, EntradaRef, std::less<>>;
    using Marca = std::pair<std::string, std::int64_t>; ///< folder and the time of its last change

    void leerTodo();
    void leerCarpeta(const std::string &raiz, const std::string &relativa, bool deInicio, int hondura);
    void leerArchivoDe(const std::string &raiz, const std::string &relativa, bool deInicio);
    void indexar(const EntradaRef &entrada);
    std::vector<Marca> marcasDe(const std::vector<Marca> &carpetas) const;

    LugaresEntradas m_lugares;
    std::vector<Marca> m_marcas;
    std::map<std::string, EntradaRef, std::less<>> m_porId; ///< null: deleted
    std::map<std::string, EntradaRef, std::less<>> m_porRuta;
    Indice m_porClase;
    Indice m_porPrograma;
    Indice m_porCarpeta;
};

} // namespace ovanta
