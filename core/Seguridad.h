#pragma once

#include "core/Preferencias.h"
#include "core/Rutas.h"

#include <array>
#include <functional>
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
        /// The user's home, absolute. It is standardised but its links are not resolved, so a home
        /// behind a link must come here resolved, else nothing that exists in it is ever accepted.
        /// A home that is not an absolute path, or is "/", holds nothing but itself.
        std::string hogar;
        /// Further members of `protegidas` that this platform has, relative to home.
        std::vector<std::string> protegidasDePlataforma;
        IdentificadorDePaquete identificadorDePaquete;
    };

    /// Where the preferences keep the user's list: sorted paths without duplicates.
    static constexpr std::string_view claveProtecciones = "rutasProtegidasOvanta";

    /// The places under home that no removal may name, relative to it; the first is home itself.
    static constexpr std::array<std::string_view, 19> entradasProtegidas{
        "",
        "Documents",
        "Desktop",
        "Pictures",
        "Movies",
        "Music",
        "Library",
        "Applications",
        "Public",
        ".ssh",
        ".gnupg",
        ".aws",
        ".config",
        ".gitconfig",
        "Library/Keychains",
        "Library/Mobile Documents",
        "Library/Application Support",
        "Library/Containers",
        "Library/Preferences",
    };

    /// The names that protect everything below them, wherever they stand in a path.
    static constexpr std::array<std::string_view, 4> nombresProtegidos{".git", ".ssh", ".gnupg", "Keychains"};

    /// The places under home that a folder of the user's choice may neither lie in nor contain.
    static constexpr std::array<std::string_view, 8> carpetasSensibles{
        "Library", "Applications", "Public", ".ssh", ".gnupg", ".aws", ".config", ".gitconfig"};

    /// `preferencias` must outlive this object; the user's list is read from it at every check.
    Seguridad(Entorno entorno, Preferencias &preferencias);

    const std::string &hogar() const { return m_entorno.hogar; }
    const ConjuntoRutas &protegidas() const { return m_protegidas; }

    /// For anything under home that is about to be moved. A path where nothing exists (any more)
    /// is accepted. The only validator that drops blanks at the ends.
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
    /// Stricter than `validar` on purpose: what is not reported may still be removed by a rule that
    /// names it.
    bool esRutaProtegidaParaAnalisis(std::string_view ruta, const ConjuntoRutas &proteccionesUsuario) const;
    /// Whether a path lies at, under or above any of `rutas`.
    bool cruzaProteccionPersonalizada(std::string_view ruta, const ConjuntoRutas &rutas) const;

    /// Adds a path that could be removed to the user's list.
    std::string proteger(std::string_view ruta);
    /// Takes exactly this text off the user's list; never fails.
    void quitarProteccion(std::string_view ruta);
    /// The user's list as it is now.
    ConjuntoRutas proteccionesUsuario() const;

private:
    static bool attributesNoEnlace(const std::string &ruta);
    static bool esLegibleYNoEnlace(const std::string &ruta);
    static std::string_view componenteProtegido(std::string_view ruta);

    std::string normalizar(std::string_view ruta) const;
    std::string enHogar(std::string_view relativa) const { return unir(m_entorno.hogar, relativa); }
    bool cruzaCarpetaSensible(std::string_view ruta) const;
    bool cruzaListaDelUsuario(std::string_view ruta) const;
    bool esRastroDe(std::string_view ruta, std::string_view bundleID) const;
    bool esPaquete(const std::string &ruta, std::string_view bundleID) const;
    void guardarProtecciones(const ConjuntoRutas &rutas);

    Entorno m_entorno;
    Preferencias &m_preferencias;
    ConjuntoRutas m_protegidas;
    ConjuntoRutas m_protegidasSinHogar;
};

} // namespace ovanta
