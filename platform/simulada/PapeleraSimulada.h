#pragma once

#include "platform/Papelera.h"
#include "platform/Reloj.h"
#include "platform/simulada/RegistroMutaciones.h"

#include <map>
#include <mutex>

namespace ovanta {

/// The Trash of the simulated Mac: the folder ".Trash" of the synthetic home. It takes nothing that
/// lies outside that home. What it holds is remembered as long as this object lives.
class PapeleraSimulada final : public Papelera
{
public:
    /// `hogar` is free of links; `reloj` and `registro` must outlive this object.
    PapeleraSimulada(std::string hogar, const Reloj &reloj, RegistroMutaciones &registro);

    std::expected<Medida, std::string> medir(const std::string &ruta) override;
    std::expected<void, std::string> reciclar(const Medida &medida) override;
    bool contiene(const std::string &ruta, Fecha desde) override;

    const std::string &carpeta() const { return m_carpeta; }

private:
    struct Ocupante
    {
        std::string rutaOriginal;
        Fecha fecha;
    };

    std::expected<std::string, std::string> mover(const std::string &origen, const Identidad &identidad,
                                                  Fecha fecha) const;

    std::string m_hogar;
    std::string m_carpeta;
    const Reloj &m_reloj;
    RegistroMutaciones &m_registro;
    std::mutex m_cerrojo;
    std::map<std::string, Ocupante> m_ocupantes; ///< by path inside the Trash
};

} // namespace ovanta
