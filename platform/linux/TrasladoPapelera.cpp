#include "platform/linux/TrasladoPapelera.h"

#include "core/ErrorSistema.h"
#include "core/EscrituraAtomica.h"
#include "platform/linux/InfoPapelera.h"
#include "platform/linux/NombrePapelera.h"
#include "platform/linux/SinEnlaces.h"

#include <fcntl.h>
#include <limits.h>
#include <stdio.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <system_error>

namespace ovanta {

namespace {

/// Other programs can take names as fast as we find them free, but not this often in a row.
constexpr int intentos = 1000;

void avisar(const AlPaso &alPaso, PasoPapelera paso)
{
    if (alPaso) alPaso(paso);
}

bool existe(int carpeta, const std::string &nombre)
{
    return ::faccessat(carpeta, nombre.c_str(), F_OK, AT_SYMLINK_NOFOLLOW) == 0;
}

std::string nombreDeInfo(const std::string &nombre)
{
    return nombre + std::string(finDeInfo);
}

/// The longest name that the folder's file system takes.
std::size_t nombreMaximo(int carpeta)
{
    const long maximo = ::fpathconf(carpeta, _PC_NAME_MAX);
    return maximo > 0 ? std::min<std::size_t>(static_cast<std::size_t>(maximo), NAME_MAX) : NAME_MAX;
}

/// A name in the Trash that is claimed by its complete info file, which goes again unless `conservar`
/// was called.
class Reserva
{
public:
    /// Throws EEXIST where the name is taken.
    Reserva(const CarpetaPapelera &papelera, std::string nombre, const std::string &info,
            const AlPaso &alPaso)
        : m_papelera(papelera), m_nombre(std::move(nombre)), m_alPaso(alPaso),
          m_info(::openat(papelera.infos.numero(), nombreDeInfo(m_nombre).c_str(),
                          O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600))
    {
        if (!m_info.abierto()) lanzarErrno(errno);
        try {
            avisar(alPaso, PasoPapelera::infoCreada);
            if (const int codigo = escribirTodo(m_info.numero(), info)) lanzarErrno(codigo);
            avisar(alPaso, PasoPapelera::infoEscrita);
        } catch (...) {
            retirar();
            throw;
        }
    }
    Reserva(const Reserva &) = delete;
    Reserva &operator=(const Reserva &) = delete;
    ~Reserva()
    {
        if (m_info.abierto()) retirar();
    }

    const std::string &nombre() const { return m_nombre; }
    /// Whether some program that empties the Trash took our info file away.
    bool perdida() const
    {
        struct stat estado{};
        return ::fstat(m_info.numero(), &estado) == 0 && estado.st_nlink == 0;
    }
    void conservar() { m_info = Descriptor(); }

private:
    void retirar()
    {
        ::unlinkat(m_papelera.infos.numero(), nombreDeInfo(m_nombre).c_str(), 0);
        avisar(m_alPaso, PasoPapelera::infoRetirada);
    }

    const CarpetaPapelera &m_papelera;
    std::string m_nombre;
    const AlPaso &m_alPaso;
    Descriptor m_info;
};

/// Renames without ever replacing anything; false where the name is taken.
bool mover(int desde, const std::string &nombre, int hasta, const std::string &nuevo)
{
    if (::renameat2(desde, nombre.c_str(), hasta, nuevo.c_str(), RENAME_NOREPLACE) == 0) return true;
    if (errno == EEXIST) return false;
    if (errno == EINVAL)
        throw RechazoPapelera("su volumen no permite moverlo sin riesgo de sobrescribir otro");
    lanzarErrno(errno);
}

/// Whether what now lies in the Trash is the measured item and keeps its info file.
bool llegoBien(const CarpetaPapelera &papelera, const ObjetoATrasladar &objeto, const Reserva &reserva)
{
    struct stat estado{};
    // Gone again: it had moved, and somebody has emptied the Trash since.
    if (::fstatat(papelera.archivos.numero(), reserva.nombre().c_str(), &estado, AT_SYMLINK_NOFOLLOW) != 0)
        return true;
    return !reserva.perdida() && identidadDe(estado) == objeto.identidad;
}

[[noreturn]] void devolver(const CarpetaPapelera &papelera, const ObjetoATrasladar &objeto, Reserva &reserva,
                           const AlPaso &alPaso)
{
    if (::renameat2(papelera.archivos.numero(), reserva.nombre().c_str(), objeto.carpeta,
                    objeto.nombre.c_str(), RENAME_NOREPLACE) != 0) {
        // Its place is taken again: in the Trash, with its origin, nothing of it is lost.
        reserva.conservar();
        throw RechazoPapelera("cambió mientras se movía, y lo que había en su lugar está en la Papelera");
    }
    avisar(alPaso, PasoPapelera::devuelto);
    throw RechazoPapelera("cambió mientras se movía, así que se dejó en su sitio");
}

/// One try with one name; false where that name is taken.
bool intentar(const CarpetaPapelera &papelera, const ObjetoATrasladar &objeto, const std::string &nombre,
              const std::string &info, const AlPaso &alPaso)
try {
    Reserva reserva(papelera, nombre, info, alPaso);
    if (!mover(objeto.carpeta, objeto.nombre, papelera.archivos.numero(), nombre)) return false;
    avisar(alPaso, PasoPapelera::movido);
    if (!llegoBien(papelera, objeto, reserva)) devolver(papelera, objeto, reserva, alPaso);
    reserva.conservar();
    return true;
} catch (const std::system_error &error) {
    if (error.code().value() == EEXIST) return false;
    throw;
}

} // namespace

std::string trasladar(const CarpetaPapelera &papelera, const ObjetoATrasladar &objeto,
                      const std::string &info, const AlPaso &alPaso)
{
    avisar(alPaso, PasoPapelera::comprobado);
    const std::size_t maximo = nombreMaximo(papelera.infos.numero());
    const auto nombre = [&](unsigned numero) { return nombreEnPapelera(objeto.nombre, numero, maximo); };
    const auto ocupado = [&](unsigned numero) {
        return existe(papelera.infos.numero(), nombreDeInfo(nombre(numero))) ||
               existe(papelera.archivos.numero(), nombre(numero));
    };
    unsigned numero = 1;
    for (int intento = 0; intento < intentos; ++intento) {
        if (intentar(papelera, objeto, nombre(numero), info, alPaso)) return nombre(numero);
        numero = numeroLibre(numero + 1, ocupado);
    }
    lanzarErrno(EEXIST);
}

} // namespace ovanta
