#include "core/Cleaner.h"

#include "core/CarpetaDatos.h"
#include "core/Historial.h"
#include "core/Recuperacion.h"
#include "core/Uuid.h"
#include "core/qt/HiloPrincipal.h"
#include "core/qt/SegundoPlano.h"
#include "core/qt/Texto.h"
#include "platform/SeguridadDePlataforma.h"

#include <QCoroFuture>
#include <QPointer>
#include <algorithm>
#include <unordered_set>
#include <utility>

namespace ovanta {

namespace {

std::vector<Movimiento> sinRepetir(std::vector<Movimiento> nuevos, const std::vector<Movimiento> &conocidos)
{
    std::unordered_set<std::string> vistos;
    for (const auto &conocido : conocidos)
        vistos.insert(conocido.id);
    std::erase_if(nuevos, [&vistos](const auto &nuevo) { return !vistos.insert(nuevo.id).second; });
    return nuevos;
}

} // namespace

Cleaner::Cleaner(Plataforma &plataforma, QObject *parent)
    : QObject(parent), m_plataforma(plataforma),
      m_puerta{std::make_shared<const Seguridad>(crearSeguridad(plataforma)), &plataforma.papelera()},
      m_escritor(std::make_shared<EscritorHistorial>(plataforma.lugares().hogar))
{
    const auto &hogar = plataforma.lugares().hogar;
    m_historial = cargarHistorial(archivoHistorial(hogar));
    const auto enPapelera = [&plataforma](const std::string &ruta, Fecha desde) {
        return plataforma.papelera().contiene(ruta, desde);
    };
    auto perdido = recuperar(carpetaDatos(hogar), enPapelera);
    anteponer(m_historial, sinRepetir(std::move(perdido.movimientos), m_historial));
    m_registros = std::move(perdido.registros);
    if (!m_registros.empty()) guardarHistorial();
}

Previsualizacion Cleaner::previsualizar(const Regla &regla) const
{
    return ovanta::previsualizar(*m_puerta.seguridad, regla);
}

void Cleaner::registrarAccion(std::string ruta, std::uint64_t bytes, std::string etiqueta)
{
    OVANTA_HILO_PRINCIPAL();
    const Fecha ahora = m_plataforma.reloj().ahora();
    anteponerAlHistorial({{uuidNuevo(), std::move(ruta), bytes, ahora, std::move(etiqueta)}});
    guardarHistorial();
}

QCoro::Task<> Cleaner::guardarHistorial()
{
    const QPointer vivo{this};
    EscritorHistorial::Encargo encargo{++m_numeroDeGuardado, m_historial, m_registros};
    auto trabajo = [escritor = m_escritor, encargo] { return escritor->escribir(encargo); };
    auto futuro = enSegundoPlano(Prioridad::Usuario, std::move(trabajo));
    const bool escrito = co_await futuro;
    if (!vivo || !escrito) co_return;
    std::erase_if(m_registros, [&encargo](const auto &registro) {
        return std::ranges::find(encargo.registros, registro) != encargo.registros.end();
    });
}

void Cleaner::anteponerAlHistorial(std::vector<Movimiento> movimientos)
{
    if (movimientos.empty()) return;
    anteponer(m_historial, std::move(movimientos));
    Q_EMIT historialChanged();
}

void Cleaner::fijarTrabajando(bool trabajando)
{
    OVANTA_HILO_PRINCIPAL();
    if (std::exchange(m_trabajando, trabajando) != trabajando) Q_EMIT trabajandoChanged();
}

void Cleaner::fijarProgreso(const std::string &progreso)
{
    OVANTA_HILO_PRINCIPAL();
    const QString texto = mostrar(progreso);
    if (std::exchange(m_progreso, texto) != texto) Q_EMIT progresoChanged();
}

} // namespace ovanta
