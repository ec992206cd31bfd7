#include "analysis/Recorrer.h"

#include "analysis/Nanosegundos.h"
#include "core/AbrirCamino.h"
#include "core/Descriptor.h"

#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <optional>
#include <unordered_set>

namespace ovanta {

namespace {

constexpr std::uint64_t entradasPorAviso = 2000;

using CarpetaAbierta = std::shared_ptr<DIR>;

/// A listed folder stays open while its subfolders wait, so that each is opened by its name alone: depth
/// first these are as many as the tree is deep. What lies deeper than this is opened by its whole path, or a
/// tree could use all descriptors up.
constexpr unsigned honduraConMadre = 64;

struct Pendiente
{
    std::string ruta;
    std::optional<dev_t> dispositivoMadre; ///< none for a root
    unsigned hondura = 0;                  ///< 0 for a root
    CarpetaAbierta madre;                  ///< or none
};

struct CarpetaVista
{
    dev_t dispositivo;
    ino_t inodo;

    bool operator==(const CarpetaVista &) const = default;
};

struct MezclaDeCarpeta
{
    std::size_t operator()(const CarpetaVista &vista) const
    {
        return static_cast<std::size_t>(vista.inodo * 0x9E3779B97F4A7C15ULL ^ vista.dispositivo);
    }
};

class Caminata
{
public:
    Caminata(const Recorrido &recorrido, AccesoArchivos &acceso, const BanderaCancelacion *cancelacion,
             const std::function<void(std::uint64_t)> &alAvanzar)
        : m_recorrido(recorrido), m_acceso(acceso), m_cancelacion(cancelacion), m_alAvanzar(alAvanzar)
    {
    }

    ListaArchivos andar()
    {
        for (const std::string &raiz : m_recorrido.raices)
            m_pendientes.push_back({raiz, std::nullopt, 0, nullptr});
        while (!m_pendientes.empty()) {
            if (cancelada(m_cancelacion)) return {};
            m_pendiente = std::move(m_pendientes.back());
            m_pendientes.pop_back();
            listar();
        }
        if (cancelada(m_cancelacion)) return {};
        if (m_alAvanzar) m_alAvanzar(m_vistas);
        return std::move(m_archivos);
    }

private:
    int abrirDescriptor() const
    {
        constexpr int opciones = O_RDONLY | O_DIRECTORY | O_CLOEXEC | O_NONBLOCK;
        const std::string &ruta = m_pendiente.ruta;
        if (m_pendiente.madre)
            return ::openat(::dirfd(m_pendiente.madre.get()), ruta.c_str() + ruta.rfind('/') + 1,
                            opciones | O_NOFOLLOW);
        return abrirCamino(ruta.c_str(), m_pendiente.hondura > 0 ? opciones | O_NOFOLLOW : opciones);
    }

    CarpetaAbierta abrir()
    {
        Descriptor abierta{abrirDescriptor()};
        struct stat atributos = {};
        if (!abierta.abierto() || ::fstat(abierta.numero(), &atributos) != 0) return nullptr;
        if (!m_vistasYa.insert({atributos.st_dev, atributos.st_ino}).second) return nullptr;
        if (m_pendiente.dispositivoMadre != atributos.st_dev && m_acceso.esVirtual(abierta.numero()))
            return nullptr;
        m_dispositivo = atributos.st_dev;
        DIR *const carpeta = ::fdopendir(abierta.numero());
        if (!carpeta) return nullptr;
        abierta.soltar();
        return CarpetaAbierta(carpeta, [](DIR *leida) { ::closedir(leida); });
    }

    void listar()
    {
        m_carpeta = abrir();
        if (!m_carpeta) return;
        m_numeroDeCarpeta.reset();
        m_ruta.assign(m_pendiente.ruta).append("/");
        const std::size_t base = m_ruta.size();
        while (const dirent *entrada = ::readdir(m_carpeta.get())) {
            const std::string_view nombre = entrada->d_name;
            m_ruta.resize(base);
            m_ruta.append(nombre);
            if (!queda(nombre)) visitar(::dirfd(m_carpeta.get()), *entrada, base);
            if (m_vistas % entradasPorAviso == 0 && cancelada(m_cancelacion)) return;
        }
    }

    bool queda(std::string_view nombre) const
    {
        if (nombre.starts_with('.') && nombre != ".git") return true;
        if (m_recorrido.ignorados.ignoraNombre(nombre)) return true;
        return m_recorrido.estaProtegida && m_recorrido.estaProtegida(m_ruta);
    }

    void visitar(int carpeta, const dirent &entrada, std::size_t base)
    {
        // What is plainly no file needs no look at its attributes.
        if (entrada.d_type != DT_REG && entrada.d_type != DT_UNKNOWN) {
            contar();
            if (entrada.d_type == DT_DIR) apilar(entrada.d_name);
            return;
        }
        struct stat atributos = {};
        if (::fstatat(carpeta, entrada.d_name, &atributos, AT_SYMLINK_NOFOLLOW) != 0) return;
        contar();
        if (S_ISDIR(atributos.st_mode)) apilar(entrada.d_name);
        if (S_ISREG(atributos.st_mode)) anotar(entrada.d_name, base, atributos);
    }

    void contar()
    {
        ++m_vistas;
        if (m_alAvanzar && m_vistas % entradasPorAviso == 0) m_alAvanzar(m_vistas);
    }

    void apilar(std::string_view nombre)
    {
        if (m_recorrido.ignorados.esPaquete(nombre)) return;
        const unsigned hondura = m_pendiente.hondura + 1;
        m_pendientes.push_back(
            {m_ruta, m_dispositivo, hondura, hondura <= honduraConMadre ? m_carpeta : nullptr});
    }

    void anotar(std::string_view nombre, std::size_t base, const struct stat &atributos)
    {
        const std::uint64_t bytes = static_cast<std::uint64_t>(std::max<off_t>(atributos.st_size, 0));
        if (bytes < m_recorrido.minimo || m_acceso.estaEnLaNube(atributos)) return;
        if (!m_numeroDeCarpeta)
            m_numeroDeCarpeta = m_archivos.agregarCarpeta(std::string_view(m_ruta).substr(0, base - 1));
        m_archivos.agregar(*m_numeroDeCarpeta, nombre,
                           {bytes, nanosegundosDe(atributos), atributos.st_dev, atributos.st_ino});
    }

    const Recorrido &m_recorrido;
    AccesoArchivos &m_acceso;
    const BanderaCancelacion *m_cancelacion;
    const std::function<void(std::uint64_t)> &m_alAvanzar;
    ListaArchivos m_archivos;
    std::vector<Pendiente> m_pendientes;
    std::unordered_set<CarpetaVista, MezclaDeCarpeta> m_vistasYa;
    std::string m_ruta;                             ///< of the entry under way
    Pendiente m_pendiente;                          ///< the folder under way
    CarpetaAbierta m_carpeta;                       ///< the same, opened
    dev_t m_dispositivo = 0;                        ///< of the same
    std::optional<std::uint32_t> m_numeroDeCarpeta; ///< of the folder under way, once it has a file
    std::uint64_t m_vistas = 0;
};

} // namespace

ListaArchivos recorrer(const Recorrido &recorrido, AccesoArchivos &acceso,
                       const BanderaCancelacion *cancelacion,
                       const std::function<void(std::uint64_t)> &alAvanzar)
{
    return Caminata(recorrido, acceso, cancelacion, alAvanzar).andar();
}

} // namespace ovanta
