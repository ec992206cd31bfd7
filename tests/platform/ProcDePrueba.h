#pragma once

#include "platform/linux/ClasificadorApps.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ovanta::pruebas {

/// A made-up /proc with what the classifier reads of it, and the sweep over it.
class ProcDePrueba
{
public:
    static constexpr std::uint32_t uid = 1000;
    static constexpr std::int32_t propio = 900;
    /// So old that what is decided stays.
    static constexpr std::uint64_t ahora = 1'000'000;

    explicit ProcDePrueba(std::string raiz) : m_raiz(std::move(raiz))
    {
        std::filesystem::create_directories(m_raiz);
    }

    struct Datos
    {
        std::int32_t padre = 1;
        std::string cgroup = "0::/user.slice/user-1000.slice/session-2.scope\n";
        std::vector<std::string> entorno = {};
        std::vector<std::string> palabras = {};
        std::uint32_t uid = ProcDePrueba::uid;
    };

    void poner(std::int32_t pid, const std::string &exe, const Datos &datos)
    {
        const std::string carpeta = m_raiz + '/' + std::to_string(pid);
        std::filesystem::create_directories(carpeta);
        std::ofstream{carpeta + "/cgroup"} << datos.cgroup;
        escribirConCeros(carpeta + "/environ", datos.entorno);
        escribirConCeros(carpeta + "/cmdline", datos.palabras);
        const std::uint64_t inicio = static_cast<std::uint64_t>(pid) * 10;
        std::ofstream{carpeta + "/stat"} << pid << " (x) S " << datos.padre
                                         << " 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 " << inicio << " 0 0\n";
        std::erase_if(m_procesos, [&](const ProcesoVisto &proceso) { return proceso.pid == pid; });
        m_procesos.push_back(
            {pid, datos.padre, datos.uid, inicio, "x", std::make_shared<const std::string>(exe), 1000, 0});
    }

    void quitar(std::int32_t pid)
    {
        std::filesystem::remove_all(m_raiz + '/' + std::to_string(pid));
        std::erase_if(m_procesos, [&](const ProcesoVisto &proceso) { return proceso.pid == pid; });
    }

    const std::vector<ProcesoVisto> &procesos() const { return m_procesos; }
    EntornoProcesos entorno() const { return {m_raiz, uid, propio, 6000}; }

private:
    static void escribirConCeros(const std::string &ruta, const std::vector<std::string> &palabras)
    {
        std::ofstream archivo{ruta};
        for (const std::string &palabra : palabras)
            archivo << palabra << '\0';
    }

    std::string m_raiz;
    std::vector<ProcesoVisto> m_procesos;
};

/// A folder of desktop entries, and nothing of this machine's.
class EntradasDePrueba
{
public:
    explicit EntradasDePrueba(const std::string &base) : m_base(base)
    {
        for (const char *carpeta : {"/applications", "/autostart", "/bin"})
            std::filesystem::create_directories(m_base + carpeta);
    }

    LugaresEntradas lugares() const
    {
        return {{m_base + "/applications"}, {m_base + "/autostart"}, {m_base + "/bin"}, {"es"}, "/home/ana"};
    }

    /// Writes an entry and gives its path; `mas` are further lines.
    std::string poner(const std::string &id, const std::string &nombre, const std::string &exec,
                      const std::string &mas = {}, const std::string &carpeta = "applications")
    {
        const std::string ruta = m_base + '/' + carpeta + '/' + id + ".desktop";
        std::filesystem::create_directories(std::filesystem::path(ruta).parent_path());
        std::ofstream{ruta} << "[Desktop Entry]\nType=Application\nName=" << nombre << "\nExec=" << exec
                            << '\n'
                            << mas << '\n';
        return ruta;
    }

private:
    std::string m_base;
};

} // namespace ovanta::pruebas
