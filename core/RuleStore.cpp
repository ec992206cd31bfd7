#include "core/RuleStore.h"

#include "core/Catalogo.h"
#include "core/Enlaces.h"
#include "core/InterpretarDu.h"
#include "core/LeerArchivo.h"
#include "core/Rutas.h"
#include "core/qt/HiloPrincipal.h"
#include "core/qt/SegundoPlano.h"

#include <QCoroFuture>
#include <QPointer>
#include <cerrno>
#include <utility>

namespace ovanta {

namespace {

constexpr double limiteDeDu = 120.0; // seconds for each path

constexpr const char *noSeEncontro =
    "No se encontró rules.json dentro de la app. Recompila con build-app.sh.";
constexpr const char *noSePudoLeer = "rules.json no se pudo leer: ";

} // namespace

RuleStore::RuleStore(Plataforma &plataforma, QObject *parent) : QObject(parent), m_plataforma(plataforma) {}

void RuleStore::cargar()
{
    OVANTA_HILO_PRINCIPAL();
    try {
        const std::string bytes =
            leerArchivo(m_plataforma.lugares().catalogo, limiteDelCatalogo, EnlaceFinal::seguir);
        m_reglas = decodificarCatalogo(bytes);
    } catch (const ErrorDeLectura &fallo) {
        const bool demasiadoGrande = fallo.codigo() == EFBIG;
        return fijarError(demasiadoGrande ? std::string(noSePudoLeer) + fallo.what() + "." : noSeEncontro);
    } catch (const ErrorDeCatalogo &fallo) {
        return fijarError(std::string(noSePudoLeer) + fallo.what());
    }
    Q_EMIT reglasChanged();
    fijarError(std::nullopt);
}

QCoro::Task<> RuleStore::medir()
{
    OVANTA_HILO_PRINCIPAL();
    if (m_reglas.empty() || m_midiendo) co_return;
    const QPointer vivo{this};
    fijarMidiendo(true);
    auto rutas = anotarExistencia();
    if (rutas.empty()) {
        fijarMidiendo(false);
        co_return;
    }
    auto trabajo = [&herramientas = m_plataforma.herramientas(), rutas = std::move(rutas)] {
        return medirRutas(herramientas, rutas);
    };
    auto futuro = enSegundoPlano(Prioridad::Utilidad, std::move(trabajo));
    const Tamanos tamanos = co_await futuro;
    if (!vivo) co_return;
    anotarTamanos(tamanos);
    fijarMidiendo(false);
}

RuleStore::Tamanos RuleStore::medirRutas(Herramientas &herramientas, const std::vector<std::string> &rutas)
{
    Tamanos tamanos;
    for (const std::string &ruta : rutas) {
        try {
            const std::string salida = herramientas.ejecutar("/usr/bin/du", {"-sk", ruta}, limiteDeDu, true);
            if (const auto bytes = interpretarDu(salida)) tamanos[ruta] = *bytes;
        } catch (const std::exception &) {
            continue; // a path without a figure is shown as such
        }
    }
    return tamanos;
}

/// Sets `existe` of every rule and gives the paths of those that exist.
std::vector<std::string> RuleStore::anotarExistencia()
{
    std::vector<std::string> rutas;
    for (Regla &regla : m_reglas) {
        std::string ruta = expandirTilde(regla.path, m_plataforma.lugares().hogar);
        regla.existe = existe(ruta);
        if (regla.existe) rutas.push_back(std::move(ruta));
    }
    Q_EMIT reglasChanged();
    return rutas;
}

/// Over the list as it stands now: `cargar` may have replaced it during the measurement.
void RuleStore::anotarTamanos(const Tamanos &tamanos)
{
    for (Regla &regla : m_reglas) {
        const auto hallado = tamanos.find(expandirTilde(regla.path, m_plataforma.lugares().hogar));
        regla.bytes.reset();
        if (hallado != tamanos.end()) regla.bytes = hallado->second;
    }
    Q_EMIT reglasChanged();
}

void RuleStore::fijarMidiendo(bool midiendo)
{
    m_midiendo = midiendo;
    Q_EMIT midiendoChanged();
}

void RuleStore::fijarError(std::optional<std::string> error)
{
    if (m_error == error) return;
    m_error = std::move(error);
    Q_EMIT errorChanged();
}

} // namespace ovanta
