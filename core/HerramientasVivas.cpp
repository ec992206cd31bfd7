#include "core/HerramientasVivas.h"

#include <csignal>
#include <system_error>
#include <unistd.h>

namespace ovanta {
namespace {

/// A program can be started with SIGCHLD ignored; then the system throws exit codes away.
void asegurarCodigosDeSalida()
{
    struct sigaction actual{};
    if (::sigaction(SIGCHLD, nullptr, &actual) == 0 && actual.sa_handler == SIG_IGN) {
        std::signal(SIGCHLD, SIG_DFL);
    }
}

} // namespace

HerramientasVivas::HerramientasVivas() : m_aviso(Tuberia::crear())
{
    asegurarCodigosDeSalida();
}

HerramientasVivas &HerramientasVivas::delPrograma()
{
    static HerramientasVivas &unica = *new HerramientasVivas;
    return unica;
}

pid_t HerramientasVivas::lanzar(const std::function<pid_t()> &lanzar)
{
    const std::shared_lock paso(m_puerta);
    if (m_detenido) lanzarCancelado();
    const pid_t grupo = lanzar();
    const std::lock_guard guarda(m_mutex);
    m_grupos.insert(grupo);
    return grupo;
}

void HerramientasVivas::olvidar(pid_t grupo) noexcept
{
    const std::lock_guard guarda(m_mutex);
    m_grupos.erase(grupo);
}

void HerramientasVivas::detener()
{
    // The flag first: no stream of new launches can keep the door shut against us.
    m_detenido = true;
    const std::unique_lock puerta(m_puerta);
    const std::lock_guard guarda(m_mutex);
    // The notice before the kill: a caller that sees its tool end by this sees the reason too.
    m_aviso.escritura.cerrar();
    for (const pid_t grupo : m_grupos)
        senalarGrupo(grupo, SIGKILL);
}

void senalarGrupo(pid_t lider, int senal) noexcept
{
    ::kill(-lider, senal);
    if (::getpgid(lider) != lider) ::kill(lider, senal);
}

void lanzarCancelado()
{
    throw std::system_error(std::make_error_code(std::errc::operation_canceled));
}

} // namespace ovanta
