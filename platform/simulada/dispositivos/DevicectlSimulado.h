#pragma once

#include "platform/simulada/dispositivos/PuertosRsdSimulados.h"

#include <functional>
#include <mutex>
#include <string>
#include <vector>

namespace ovanta {

/// A device as the developer tools know it.
struct FichaDevicectl
{
    std::shared_ptr<DispositivoSimulado> dispositivo;
    std::string id;                        ///< by which the tool names it; not its UDID
    std::optional<std::string> transporte; ///< "wired" or "localNetwork"; missing while it is away
    /// `tunnelState` at each question for its details; the last one stays.
    std::vector<std::string> estadosDelTunel = {"connected"};
};

/// The tool by which a Mac's developer tools list devices and open tunnels to them: `xcrun devicectl`. It
/// writes its answer as JSON to the file after "-j". A tunnel's ports live from its first opening until
/// this object ends. Any thread.
class DevicectlSimulado
{
public:
    explicit DevicectlSimulado(std::vector<FichaDevicectl> fichas) : m_fichas(std::move(fichas)) {}

    /// Whether these arguments of `xcrun` are for this tool.
    static bool entiende(const std::vector<std::string> &args);
    /// What `xcrun` prints. Throws `ShellError` for an unknown device or order, `std::system_error`.
    std::string responder(const std::vector<std::string> &args);

private:
    struct Tunel
    {
        std::size_t preguntas = 0;
        std::unique_ptr<PuertosRsdSimulados> puertos;
    };

    std::string lista() const;
    std::string detalles(const std::string &id);
    std::string direccionDe(const FichaDevicectl &ficha, Tunel &tunel);

    std::vector<FichaDevicectl> m_fichas;
    std::mutex m_cerrojo;
    std::map<std::string, Tunel> m_tuneles;
};

} // namespace ovanta
