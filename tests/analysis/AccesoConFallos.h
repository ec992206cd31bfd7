#pragma once

#include "platform/linux/AccesoArchivosLinux.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <map>
#include <set>
#include <string>
#include <unistd.h>

namespace ovanta::pruebas {

/// Real reads but for those that a test breaks: by the file, so that all names of one fail alike.
class AccesoConFallos : public AccesoArchivos
{
public:
    /// Everything from that byte on cannot be read any more.
    void romperDesde(const std::string &ruta, std::uint64_t byte) { m_rotos[inodoDe(ruta)] = byte; }
    void cerrar(const std::string &ruta) { m_cerrados.insert(inodoDe(ruta)); }

    /// Bytes that were read of the file, over all.
    std::uint64_t leidosDe(const std::string &ruta) const
    {
        const auto hallado = m_leidos.find(inodoDe(ruta));
        return hallado == m_leidos.end() ? 0 : hallado->second;
    }

    int abrirEn(int carpeta, const char *nombre) override
    {
        if (m_cerrados.contains(inodoDe(nombre, carpeta))) {
            errno = EACCES;
            return -1;
        }
        return m_real.abrirEn(carpeta, nombre);
    }

    ssize_t leer(int descriptor, void *destino, std::size_t bytes) override
    {
        struct stat atributos = {};
        ::fstat(descriptor, &atributos);
        if (const auto roto = m_rotos.find(atributos.st_ino); roto != m_rotos.end()) {
            const auto lugar = static_cast<std::uint64_t>(::lseek(descriptor, 0, SEEK_CUR));
            if (lugar >= roto->second) {
                errno = EIO;
                return -1;
            }
            bytes = std::min<std::uint64_t>(bytes, roto->second - lugar);
        }
        const ssize_t n = m_real.leer(descriptor, destino, bytes);
        if (n > 0) m_leidos[atributos.st_ino] += static_cast<std::uint64_t>(n);
        return n;
    }

    void anticipar(int descriptor, std::uint64_t bytes) override { m_real.anticipar(descriptor, bytes); }
    std::uint64_t bytesCompartidos(int descriptor) override { return m_real.bytesCompartidos(descriptor); }
    bool esVirtual(int carpeta) override { return m_real.esVirtual(carpeta); }
    bool estaEnLaNube(const struct stat &) override { return false; }

private:
    static ino_t inodoDe(const std::string &ruta, int carpeta = -1)
    {
        struct stat atributos = {};
        ::fstatat(carpeta, ruta.c_str(), &atributos, AT_SYMLINK_NOFOLLOW);
        return atributos.st_ino;
    }

    AccesoArchivosLinux m_real;
    std::map<ino_t, std::uint64_t> m_rotos;
    std::set<ino_t> m_cerrados;
    std::map<ino_t, std::uint64_t> m_leidos;
};

} // namespace ovanta::pruebas
