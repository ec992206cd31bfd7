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

struct CerrarCarpeta
{
    void operator()(DIR *carpeta) const { ::closedir(carpeta); }
};
using CarpetaAbierta = std::unique_ptr<DIR, CerrarCarpeta>;

struct Pendiente
{
    std::string ruta;
    std::optional<dev_t> dispositivoMadre; ///< none for a root
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
            m_pendientes.push_back({raiz, std::nullopt});
        while (!m_pendientes.empty()) {
            if (cancelada(m_cancelacion)) return {};
            const Pendiente siguiente = std::move(m_pendientes.back());
            m_pendientes.pop_back();
            listar(siguiente);
        }
        if (cancelada(m_cancelacion)) return {};
        if (m_alAvanzar) m_alAvanzar(m_vistas);
        return std::move(m_archivos);
    }

private:
    CarpetaAbierta abrir(const Pendiente &pendiente)
    {
        const int alFinal = pendiente.dispositivoMadre ? O_NOFOLLOW : 0;
        Descriptor abierta{
            abrirCamino(pendiente.ruta.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC | O_NONBLOCK | alFinal)};
        struct stat atributos = {};
        if (!abierta.abierto() || ::fstat(abierta.numero(), &atributos) != 0) return nullptr;
        if (!m_vistasYa.insert({atributos.st_dev, atributos.st_ino}).second) return nullptr;
        if (pendiente.dispositivoMadre != atributos.st_dev && m_acceso.esVirtual(abierta.numero()))
            return nullptr;
        m_dispositivo = atributos.st_dev;
        CarpetaAbierta carpeta{::fdopendir(abierta.numero())};
        if (carpeta) abierta.soltar();
        return carpeta;
    }

    void listar(const Pendiente &pendiente)
    {
        const CarpetaAbierta carpeta = abrir(pendiente);
        if (!carpeta) return;
        m_numeroDeCarpeta.reset();
        m_ruta.assign(pendiente.ruta).append("/");
        const std::size_t base = m_ruta.size();
        while (const dirent *entrada = ::readdir(carpeta.get())) {
            const std::string_view nombre = entrada->d_name;
            m_ruta.resize(base);
            m_ruta.append(nombre);
            if (!queda(nombre)) visitar(::dirfd(carpeta.get()), *entrada, base);
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
        if (!m_recorrido.ignorados.esPaquete(nombre)) m_pendientes.push_back({m_ruta, m_dispositivo});
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
    dev_t m_dispositivo = 0;                        ///< of the folder under way
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
