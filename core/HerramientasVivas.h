#pragma once

#include "core/Descriptor.h"

#include <atomic>
#include <functional>
#include <mutex>
#include <set>
#include <shared_mutex>
#include <sys/types.h>

namespace ovanta {

/// The process groups of the tools that run now, kept for one purpose: to end them all when the
/// program ends. Any thread.
class HerramientasVivas
{
public:
    /// The one of this process. Never destroyed: background threads may outlive `main`.
    static HerramientasVivas &delPrograma();

    /// Calls `lanzar`, which starts a tool and returns its group, and keeps that group. Throws
    /// `std::system_error` with `operation_canceled`, calling nothing, once `detener` was called.
    pid_t lanzar(const std::function<pid_t()> &lanzar);

    /// Forgets a group. Before its leader is reaped: from then on the number may be a stranger's.
    void olvidar(pid_t grupo) noexcept;

    /// Kills all groups, and makes `aviso` readable and every later `lanzar` throw. Final.
    void detener();

    /// A descriptor to poll: readable from `detener` on.
    int aviso() const noexcept { return m_aviso.lectura.numero(); }

private:
    HerramientasVivas();

    Tuberia m_aviso;
    std::atomic<bool> m_detenido = false;
    std::shared_mutex m_puerta; ///< shared by launches; `detener` takes it whole to wait for them
    std::mutex m_mutex;         ///< guards m_grupos
    std::set<pid_t> m_grupos;
};

/// Sends a signal to a group whose leader was not reaped, and to the leader even if it left the group.
void senalarGrupo(pid_t lider, int senal) noexcept;

/// What `ejecutar` throws once the tools were stopped.
[[noreturn]] void lanzarCancelado();

} // namespace ovanta
