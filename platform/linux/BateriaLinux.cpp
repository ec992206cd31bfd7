#include "platform/linux/BateriaLinux.h"

#include "core/qt/SegundoPlano.h"
#include "platform/linux/BateriasSys.h"
#include "platform/linux/BateriasUPower.h"

namespace ovanta {

BateriaLinux::BateriaLinux(const QDBusConnection &sistema, std::string raiz)
    : m_bus(sistema), m_raiz(std::move(raiz))
{
}

void BateriaLinux::leer(std::function<void(std::optional<EstadoBateria>)> listo)
{
    m_esperando.push_back(std::move(listo));
    if (m_esperando.size() > 1) return;
    leerBateriasUPower(m_bus, &m_contexto, [this](const std::optional<LecturaBaterias> &lectura) {
        if (lectura)
            responder(*lectura);
        else
            leerDelNucleo();
    });
}

void BateriaLinux::leerDelNucleo()
{
    auto trabajo = [raiz = m_raiz] { return leerBateriasSys(raiz); };
    auto futuro = enSegundoPlano(Prioridad::Utilidad, trabajo);
    futuro.then(&m_contexto, [this](const LecturaBaterias &lectura) { responder(lectura); });
}

void BateriaLinux::responder(const LecturaBaterias &lectura)
{
    const std::optional<EstadoBateria> estado = combinarBaterias(lectura);
    for (const auto &listo : std::exchange(m_esperando, {}))
        listo(estado);
}

} // namespace ovanta
