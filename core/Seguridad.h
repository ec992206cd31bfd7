#pragma once

#include "core/Preferencias.h"

#include <functional>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace ovanta {

/// The one gate between a path and anything that removes or analyses it. It decides only: it moves
/// and writes nothing but the user's own list of protected places. Every validator returns the
/// normalised path that the caller must use from then on, or throws `Rechazo`, or
/// `std::system_error` where the file system would not answer.
///
/// The order of the checks in each validator decides which message the user reads.
/// Paths are bytes; comparisons are exact, never case-folded. Immutable after construction, so
/// safe on any thread; `proteger` and `quitarProteccion` belong to the main thread.
class Seguridad
{
public:
    /// A refusal. `motivo` is shown to the user as it stands.
    struct Rechazo : std::runtime_error
    {
        explicit Rechazo(const std::string &motivo) : std::runtime_error(motivo), motivo(motivo) {}
        std::string motivo;
    };

    /// Gives the identifier of the application bundle at a path, or an empty text.
    using IdentificadorDePaquete = std::function<std::string(const std::string &ruta)>;

    struct Entorno
    {
        /// The user's home, absolute, no trailing slash.
        std::string hogar;
        /// Further members of `protegidas` that this platform has, relative to home.
        std::vector<std::string> protegidasDePlataforma;
        IdentificadorDePaquete identificadorDePaquete;
    };

    /// `preferencias` must outlive this object; the user's list is read from it at every check.
    Seguridad(Entorno entorno, Preferencias &preferencias);

    const std::string &hogar() const { return m_entorno.hogar; }
    const std::set<std::string> &protegidas() const { return m_protegidas; }

    /// For anything under home that is about to be moved.
    std::string validar(std::string_view ruta) const;
    /// For an item inside a folder that the user chose.
    std::string validarDentroDeSeleccion(std::string_view ruta, std::string_view raizSeleccionada) const;
    /// For an application directly in an applications folder.
    std::string validarAplicacionInstalada(std::string_view ruta, std::string_view bundleID) const;
    /// For one of the six places that belong to exactly this application.
    std::string validarRastroAplicacion(std::string_view ruta, std::string_view bundleID) const;
    /// For a launch agent of the user.
    std::string validarAgenteInicio(std::string_view ruta) const;
    /// For a folder that the user chose to analyse.
    std::string validarRaizElegida(std::string_view ruta) const;

    /// Whether a path must stay out of any analysis. `proteccionesUsuario` is the user's list, read
    /// once by the caller for its whole walk: this runs once per directory entry.
    bool esRutaProtegidaParaAnalisis(std::string_view ruta,
                                     const std::set<std::string, std::less<>> &proteccionesUsuario) const;
    /// Whether a path lies at, under or above any of `rutas`.
    bool cruzaProteccionPersonalizada(std::string_view ruta,
                                      const std::set<std::string, std::less<>> &rutas) const;

    /// Adds a path to the user's list.
    std::string proteger(std::string_view ruta);
    /// Takes exactly this text off the user's list; never fails.
    void quitarProteccion(std::string_view ruta);
    /// The user's list as it is now.
    std::set<std::string, std::less<>> proteccionesUsuario() const;

    /// "." and ".." resolved as text, repeated and trailing slashes dropped, links untouched.
    static std::string estandarizar(std::string_view ruta);

private:
    Entorno m_entorno;
    Preferencias &m_preferencias;
    std::set<std::string> m_protegidas;
};

} // namespace ovanta
