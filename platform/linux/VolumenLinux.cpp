#include "platform/linux/VolumenLinux.h"

#include "core/qt/SegundoPlano.h"
#include "platform/linux/Montajes.h"

#include <QCoroFuture>
#include <QPointer>
#include <sys/statvfs.h>

namespace ovanta {

namespace {

std::optional<Volumen::Espacio> leerEspacio(const std::string &ruta)
{
    struct statvfs datos{};
    if (::statvfs(ruta.c_str(), &datos) != 0) return std::nullopt;
    return Volumen::Espacio{datos.f_frsize, datos.f_blocks, datos.f_bavail};
}

} // namespace

VolumenLinux::VolumenLinux(std::string hogar, std::string_view mountinfo) : m_hogar(std::move(hogar))
{
    const auto montaje = montajeDe(mountinfo, m_hogar);
    if (!montaje) return;
    m_nombre = montaje->punto;
    m_puedeBloquear = puedeBloquear(montaje->tipo);
}

void VolumenLinux::leer(std::function<void(std::optional<Espacio>)> listo)
{
    if (m_puedeBloquear)
        leerAparte(std::move(listo));
    else
        listo(leerEspacio(m_hogar));
}

QCoro::Task<> VolumenLinux::leerAparte(std::function<void(std::optional<Espacio>)> listo)
{
    // A volume that does not answer must not take one more thread at every tick.
    if (m_leyendo) {
        listo(std::nullopt);
        co_return;
    }
    m_leyendo = true;
    const QPointer vivo{&m_vida};
    auto trabajo = [hogar = m_hogar] { return leerEspacio(hogar); };
    auto futuro = enSegundoPlano(Prioridad::Utilidad, std::move(trabajo));
    const auto espacio = co_await futuro;
    if (!vivo) co_return;
    m_leyendo = false;
    listo(espacio);
}

} // namespace ovanta
