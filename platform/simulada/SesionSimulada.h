#pragma once

#include "platform/AplicacionesEnMarcha.h"
#include "platform/Procesos.h"
#include "platform/Reloj.h"
#include "platform/simulada/ProgramasMac.h"
#include "platform/simulada/RegistroMutaciones.h"

#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace ovanta {

/// What runs in the session of the simulated Mac: its processes, and its applications that can be
/// closed. Figures follow from the clock alone; an application takes a moment of it to quit. Any thread.
class SesionSimulada final : public Procesos, public AplicacionesEnMarcha
{
public:
    SesionSimulada(const Reloj &reloj, RegistroMutaciones &registro);

    unsigned nucleos() const override;
    std::vector<MuestraProceso> muestrear() override;

    std::optional<std::string> identificadorPropio() const override { return "com.belmora.Ovanta"; }
    std::vector<AplicacionEnMarcha> listar() override;
    bool terminada(const AplicacionEnMarcha &app) override;
    void cerrar(const AplicacionEnMarcha &app) override;
    void forzar(const AplicacionEnMarcha &app) override;
    std::vector<Proceso> procesosDe(const std::string &ruta) override;
    void pedirFin(const std::vector<Proceso> &procesos) override;
    bool abrirMonitorDeActividad() override;

    /// An application of that name is gone in the next moment: it quit by itself, or its user said so.
    void salir(const std::string &nombre);

    static constexpr std::chrono::milliseconds demoraAlSalir{700};

private:
    struct EnMarcha
    {
        ProcesoMac proceso;
        std::int32_t pid = 0;
        std::uint64_t inicio = 0;
        std::optional<Fecha> fin; ///< gone from then on
    };
    struct Programa
    {
        std::optional<AplicacionEnMarcha> app;
        AlCerrar alCerrar = AlCerrar::sale;
        std::vector<EnMarcha> procesos; ///< the application's own is the first
    };

    bool vive(const EnMarcha &proceso) const;
    MuestraProceso muestraDe(const Programa &programa, const EnMarcha &proceso) const;
    Programa *programaDe(const AplicacionEnMarcha &app);
    void anotar(const AplicacionEnMarcha &app, const std::string &orden);
    void terminar(Programa &programa, bool conAuxiliares);

    const Reloj &m_reloj;
    RegistroMutaciones &m_registro;
    const Fecha m_inicio;
    std::mutex m_cerrojo;
    std::vector<Programa> m_programas;
};

} // namespace ovanta
