#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace ovanta {

/// A running application as its user knows it, however many processes it has. A container or a
/// virtual machine is one too, of policy `prohibida`.
struct AplicacionEnMarcha
{
    /// How it shows itself: with windows of its own, only in the background, or not at all.
    enum class Politica { regular, accesoria, prohibida };

    std::int32_t pid = 0;     ///< of its main process
    std::uint64_t inicio = 0; ///< as in `MuestraProceso`: together they name one process for ever
    /// What its processes are grouped by: the bundle on a Mac; on Linux the desktop entry, or the unit
    /// where there is none. Absent for one that nothing can be grouped under.
    std::optional<std::string> ruta;
    std::optional<std::string> identificador; ///< bundle identifier or desktop id
    std::optional<std::string> nombre;        ///< in the user's language
    Politica politica = Politica::prohibida;
    std::string icono; ///< path of a picture, or a name in the icon theme; may be empty

    bool operator==(const AplicacionEnMarcha &) const = default;
};

/// Lists the applications and ends them, politely or by force. Never touches this program, the session,
/// the shell, the display server, or a process that only took the pid of the one that was meant.
/// All calls may block; any thread.
class AplicacionesEnMarcha
{
public:
    /// A process that is named for ever.
    struct Proceso
    {
        std::int32_t pid = 0;
        std::uint64_t inicio = 0;

        bool operator==(const Proceso &) const = default;
    };

    virtual ~AplicacionesEnMarcha() = default;

    /// This program's own identifier, in the form of `AplicacionEnMarcha::identificador`.
    virtual std::optional<std::string> identificadorPropio() const = 0;

    virtual std::vector<AplicacionEnMarcha> listar() = 0;

    virtual bool terminada(const AplicacionEnMarcha &app) = 0;

    /// Asks it to quit; it may ask its user to save, or stay.
    virtual void cerrar(const AplicacionEnMarcha &app) = 0;

    /// Ends it whether it wants or not.
    virtual void forzar(const AplicacionEnMarcha &app) = 0;

    /// The user's own processes that belong to the application of that `ruta`, and may have outlived it.
    virtual std::vector<Proceso> procesosDe(const std::string &ruta) = 0;

    /// Sends each of them the polite signal; what cannot be signalled is left alone.
    virtual void pedirFin(const std::vector<Proceso> &procesos) = 0;

    /// Opens the system's own monitor of processes; false where there is none.
    virtual bool abrirMonitorDeActividad() = 0;
};

} // namespace ovanta
