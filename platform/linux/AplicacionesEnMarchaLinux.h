#pragma once

#include "platform/AplicacionesEnMarcha.h"
#include "platform/linux/GrupoApp.h"

#include <memory>
#include <optional>
#include <string>

namespace ovanta {

/// The applications of this user's session. In a Wayland session no application that shows itself can be
/// asked to quit, and it is left alone; forcing works there as anywhere. Whatever record is handed in, it is
/// compared with how things stand before anything is closed or signalled.
class AplicacionesEnMarchaLinux final : public AplicacionesEnMarcha
{
public:
    /// `grupos` is where the unified hierarchy of control groups is mounted; `escritorio` as in
    /// XDG_CURRENT_DESKTOP.
    AplicacionesEnMarchaLinux(std::shared_ptr<FotografoProcesos> fotografo, std::string escritorio,
                              std::string grupos = "/sys/fs/cgroup");

    std::optional<std::string> identificadorPropio() const override;
    std::vector<AplicacionEnMarcha> listar() override;
    bool terminada(const AplicacionEnMarcha &app) override;
    void cerrar(const AplicacionEnMarcha &app) override;
    void forzar(const AplicacionEnMarcha &app) override;
    std::vector<Proceso> procesosDe(const std::string &ruta) override;
    void pedirFin(const std::vector<Proceso> &procesos) override;
    bool abrirMonitorDeActividad() override;

private:
    /// A look, and in it the one application that may be touched.
    struct Hallada
    {
        FotoRef foto;
        GrupoApp grupo;
    };

    std::optional<Hallada> buscarClave(const std::string &clave);
    std::optional<Hallada> buscar(const AplicacionEnMarcha &app);
    void matar(const Hallada &hallada);
    bool puedeTenerVentanas(const GrupoApp &grupo, const FotoProcesos &foto) const;
    bool senalar(const ProcesoVisto &proceso, int senal) const;

    std::shared_ptr<FotografoProcesos> m_fotografo;
    std::string m_escritorio;
    std::string m_grupos;
};

} // namespace ovanta
