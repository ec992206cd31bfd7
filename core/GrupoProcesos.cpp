#include "core/GrupoProcesos.h"

#include "core/HerramientasVivas.h"

#include <cerrno>
#include <csignal>
#include <spawn.h>
#include <sys/wait.h>
#include <system_error>
#include <thread>

// glibc 2.36 forgot to tell C++ that these are C functions.
extern "C" {
#include <sys/pidfd.h>
}

namespace ovanta {
namespace {

void exigir(int error)
{
    if (error != 0) throw std::system_error(error, std::system_category());
}

class Atributos
{
public:
    Atributos()
    {
        exigir(::posix_spawnattr_init(&m_atributos));
        sigset_t ninguna;
        sigset_t todas;
        sigemptyset(&ninguna);
        sigfillset(&todas);
        ::posix_spawnattr_setsigmask(&m_atributos, &ninguna);
        ::posix_spawnattr_setsigdefault(&m_atributos, &todas);
        ::posix_spawnattr_setpgroup(&m_atributos, 0);
        ::posix_spawnattr_setflags(&m_atributos,
                                   POSIX_SPAWN_SETPGROUP | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    }
    Atributos(const Atributos &) = delete;
    Atributos &operator=(const Atributos &) = delete;
    ~Atributos() { ::posix_spawnattr_destroy(&m_atributos); }
    const posix_spawnattr_t *get() const { return &m_atributos; }

private:
    posix_spawnattr_t m_atributos;
};

class Acciones
{
public:
    Acciones() { exigir(::posix_spawn_file_actions_init(&m_acciones)); }
    Acciones(const Acciones &) = delete;
    Acciones &operator=(const Acciones &) = delete;
    ~Acciones() { ::posix_spawn_file_actions_destroy(&m_acciones); }

    void dirigir(int salida, int error)
    {
        exigir(::posix_spawn_file_actions_adddup2(&m_acciones, salida, STDOUT_FILENO));
        exigir(::posix_spawn_file_actions_adddup2(&m_acciones, error, STDERR_FILENO));
        exigir(::posix_spawn_file_actions_addclosefrom_np(&m_acciones, STDERR_FILENO + 1));
    }
    const posix_spawn_file_actions_t *get() const { return &m_acciones; }

private:
    posix_spawn_file_actions_t m_acciones;
};

/// The form in which C takes a list of texts. A NUL would cut a text short unseen: refused.
std::vector<char *> listaC(const std::vector<std::string> &textos)
{
    std::vector<char *> lista;
    for (const std::string &texto : textos) {
        if (texto.contains('\0')) exigir(EINVAL);
        lista.push_back(const_cast<char *>(texto.c_str()));
    }
    lista.push_back(nullptr);
    return lista;
}

pid_t lanzar(const Orden &orden)
{
    const Atributos atributos;
    Acciones acciones;
    acciones.dirigir(orden.salida, orden.error);
    std::vector<char *> argumentos = listaC(orden.args);
    argumentos.insert(argumentos.begin(), const_cast<char *>(orden.binario.c_str()));
    const std::vector<char *> entorno = listaC(orden.entorno);
    pid_t pid = 0;
    exigir(::posix_spawn(&pid, orden.binario.c_str(), acciones.get(), atributos.get(), argumentos.data(),
                         entorno.data()));
    return pid;
}

siginfo_t esperarA(pid_t pid)
{
    siginfo_t fin{};
    int resultado = 0;
    do {
        resultado = ::waitid(P_PID, static_cast<id_t>(pid), &fin, WEXITED);
    } while (resultado != 0 && errno == EINTR);
    if (resultado != 0) exigir(errno);
    return fin;
}

/// A killed process can take its time to go (a dead network drive holds it in the kernel); that is
/// nobody's time but this thread's. If the thread cannot be had, it stays a zombie until our end.
void recogerAparte(pid_t pid) noexcept
{
    try {
        std::thread([pid] { ::waitpid(pid, nullptr, 0); }).detach();
    } catch (const std::system_error &) {
    }
}

} // namespace

GrupoProcesos::GrupoProcesos(const Orden &orden)
    : m_lider(HerramientasVivas::delPrograma().lanzar([&orden] { return ovanta::lanzar(orden); }))
{
}

GrupoProcesos::~GrupoProcesos()
{
    if (m_recogido) return;
    senalar(SIGKILL);
    HerramientasVivas::delPrograma().olvidar(m_lider);
    recogerAparte(m_lider);
}

Descriptor GrupoProcesos::abrirFin() const
{
    Descriptor fin(::pidfd_open(m_lider, 0));
    if (!fin.abierto()) exigir(errno);
    return fin;
}

void GrupoProcesos::senalar(int senal) const noexcept
{
    senalarGrupo(m_lider, senal);
}

int GrupoProcesos::recoger()
{
    HerramientasVivas::delPrograma().olvidar(m_lider);
    m_recogido = true;
    const siginfo_t fin = esperarA(m_lider);
    return fin.si_code == CLD_EXITED ? fin.si_status : 128 + fin.si_status;
}

} // namespace ovanta
