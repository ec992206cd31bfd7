#include "platform/linux/LecturaRepetida.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>

namespace ovanta {

namespace {

constexpr std::size_t primerLugar = 4096;
constexpr std::size_t limite = std::size_t{1} << 20;

} // namespace

std::ptrdiff_t LecturaRepetida::leerDesde(std::size_t desde, std::span<char> lugar)
{
    if (!m_descriptor.abierto())
        m_descriptor = Descriptor(::open(m_ruta.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (!m_descriptor.abierto()) return -1;
    ssize_t leidos = -1;
    do
        leidos = ::pread(m_descriptor.numero(), lugar.data(), lugar.size(), static_cast<off_t>(desde));
    while (leidos < 0 && errno == EINTR);
    if (leidos < 0) m_descriptor.cerrar();
    return leidos;
}

std::string_view LecturaRepetida::leer(std::span<char> lugar)
{
    const std::ptrdiff_t leidos = leerDesde(0, lugar);
    return {lugar.data(), static_cast<std::size_t>(std::max<std::ptrdiff_t>(leidos, 0))};
}

std::string_view LecturaRepetida::leerEntero(std::string &lugar)
{
    if (lugar.size() < primerLugar) lugar.resize(primerLugar);
    std::size_t leidos = 0;
    while (true) {
        const std::ptrdiff_t mas = leerDesde(leidos, std::span(lugar).subspan(leidos));
        if (mas < 0) return {};
        if (mas == 0) return {lugar.data(), leidos};
        leidos += static_cast<std::size_t>(mas);
        if (leidos < lugar.size()) continue;
        if (leidos >= limite) return {lugar.data(), leidos};
        lugar.resize(lugar.size() * 2);
    }
}

} // namespace ovanta
