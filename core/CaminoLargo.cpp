#include "core/CaminoLargo.h"

#include "core/AbrirCamino.h"
#include "core/Descriptor.h"
#include "core/Rutas.h"

#include <array>
#include <cerrno>
#include <climits>
#include <fcntl.h>
#include <ranges>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace ovanta {

namespace {

constexpr int maximoEnlaces = 40;

class Caminante
{
public:
    int andar(std::string_view ruta, UltimoEnlace ultimo)
    {
        if (const int fallo = entrar("/")) return fallo;
        anotar(ruta);
        while (!m_pendientes.empty()) {
            const std::string componente = std::move(m_pendientes.back());
            m_pendientes.pop_back();
            const bool sigueEnlace = !m_pendientes.empty() || ultimo == UltimoEnlace::seguir;
            const int fallo = componente == ".." ? subir() : pasar(componente, sigueEnlace);
            if (fallo) return fallo;
        }
        return 0;
    }

    FinalDeCamino final() const
    {
        std::string ruta;
        for (const auto &componente : m_hechos)
            ruta.append("/").append(componente);
        return {ruta.empty() ? "/" : ruta, m_modo};
    }

private:
    int pasar(const std::string &componente, bool sigueEnlace)
    {
        struct stat atributos = {};
        if (::fstatat(m_carpeta.numero(), componente.c_str(), &atributos, AT_SYMLINK_NOFOLLOW) != 0)
            return errno;
        if (S_ISLNK(atributos.st_mode) && sigueEnlace) return seguir(componente);
        m_hechos.push_back(componente);
        m_modo = atributos.st_mode;
        if (m_pendientes.empty()) return 0;
        return S_ISDIR(m_modo) ? entrar(componente.c_str()) : ENOTDIR;
    }

    int seguir(const std::string &enlace)
    {
        if (++m_enlaces > maximoEnlaces) return ELOOP;
        std::array<char, PATH_MAX> destino;
        const auto largo = ::readlinkat(m_carpeta.numero(), enlace.c_str(), destino.data(), destino.size());
        if (largo < 0) return errno;
        const std::string_view texto(destino.data(), static_cast<std::size_t>(largo));
        anotar(texto);
        if (!texto.starts_with('/')) return 0;
        m_hechos.clear();
        return entrar("/");
    }

    int subir()
    {
        if (!m_hechos.empty()) m_hechos.pop_back();
        m_modo = S_IFDIR;
        return entrar("..");
    }

    int entrar(const char *nombre)
    {
        Descriptor nueva{
            ::openat(m_carpeta.numero(), nombre, soloPasar | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC)};
        if (!nueva.abierto()) return errno;
        m_carpeta = std::move(nueva);
        return 0;
    }

    void anotar(std::string_view ruta)
    {
        std::vector<std::string> componentes;
        for (auto c = siguienteComponente(ruta); !c.empty(); c = siguienteComponente(ruta))
            if (c != ".") componentes.emplace_back(c);
        for (auto &componente : componentes | std::views::reverse)
            m_pendientes.push_back(std::move(componente));
    }

    Descriptor m_carpeta;
    int m_enlaces = 0;
    mode_t m_modo = S_IFDIR;
    std::vector<std::string> m_pendientes; // the next one last
    std::vector<std::string> m_hechos;
};

} // namespace

std::expected<FinalDeCamino, int> andarCaminoLargo(const std::string &ruta, UltimoEnlace ultimo)
{
    Caminante caminante;
    if (const int fallo = caminante.andar(ruta, ultimo)) return std::unexpected(fallo);
    return caminante.final();
}

} // namespace ovanta
