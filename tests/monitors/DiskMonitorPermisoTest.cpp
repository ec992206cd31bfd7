#include "monitors/DiskMonitor.h"
#include "tests/Medidas.h"
#include "tests/PlataformaDePrueba.h"

#include <QCoreApplication>
#include <QSignalSpy>
#include <gtest/gtest.h>

using namespace ovanta;
using namespace ovanta::pruebas;
using namespace std::chrono_literals;

namespace {

constexpr Volumen::Espacio lleno{1, 500 * gib, 40 * gib};
constexpr Volumen::Espacio justo{1, 500 * gib, 90 * gib};
constexpr Volumen::Espacio holgado{1, 500 * gib, 200 * gib};

/// A volume on the network: it answers when the test lets it.
struct VolumenLento final : Volumen
{
    std::vector<std::function<void(std::optional<Espacio>)>> pendientes;

    std::string nombre() const override { return "/net"; }
    void leer(std::function<void(std::optional<Espacio>)> listo) override
    {
        pendientes.push_back(std::move(listo));
    }
};

struct PlataformaLenta final : PlataformaDePrueba
{
    VolumenLento lento;
    Volumen &volumen() override { return lento; }
};

void avisarDelCambio(const NotificacionesDePrueba &notificaciones)
{
    for (const auto &oyente : notificaciones.oyentes)
        oyente();
}

std::vector<DialogoDePrueba::Mostrado> &dialogos(PlataformaDePrueba &plataforma)
{
    QCoreApplication::sendPostedEvents();
    return plataforma.m_dialogo.mostrados;
}

} // namespace

TEST(DiskMonitorPermiso, everyAnswerHasItsWords)
{
    const std::vector<std::pair<std::expected<bool, std::string>, QString>> casos = {
        {true, QStringLiteral("concedido")},
        {false, QStringLiteral("denegado")},
        {std::unexpected<std::string>("sin conexión"), QStringLiteral("denegado: sin conexión")},
    };
    for (const auto &[respuesta, texto] : casos) {
        PlataformaDePrueba plataforma;
        const DiskMonitor monitor{plataforma};
        EXPECT_EQ(monitor.permisoNotificaciones(), QStringLiteral("sin solicitar"));
        plataforma.m_notificaciones.respuesta(respuesta);
        EXPECT_EQ(monitor.permisoNotificaciones(), texto);
    }
}

TEST(DiskMonitorPermiso, withoutAServiceNothingIsAsked)
{
    PlataformaDePrueba plataforma;
    plataforma.m_notificaciones.hay = false;
    const DiskMonitor monitor{plataforma};
    EXPECT_EQ(monitor.permisoNotificaciones(), QStringLiteral("no disponible (ejecutar como .app)"));
    EXPECT_FALSE(plataforma.m_notificaciones.respuesta);
}

TEST(DiskMonitorPermiso, aServiceThatAppearsLaterIsAskedThen)
{
    PlataformaDePrueba plataforma;
    plataforma.m_notificaciones.hay = false;
    DiskMonitor monitor{plataforma};
    const QSignalSpy cambios{&monitor, &DiskMonitor::permisoNotificacionesChanged};
    plataforma.m_notificaciones.hay = true;
    avisarDelCambio(plataforma.m_notificaciones);
    ASSERT_TRUE(plataforma.m_notificaciones.respuesta);
    plataforma.m_notificaciones.respuesta(true);
    EXPECT_EQ(monitor.permisoNotificaciones(), QStringLiteral("concedido"));
    EXPECT_EQ(cambios.count(), 1);
}

TEST(DiskMonitorPermiso, aServiceThatGoesAwayTakesThePermissionWithIt)
{
    PlataformaDePrueba plataforma;
    plataforma.m_volumen.espacio = holgado;
    DiskMonitor monitor{plataforma};
    plataforma.m_notificaciones.respuesta(true);
    plataforma.m_notificaciones.hay = false;
    avisarDelCambio(plataforma.m_notificaciones);
    EXPECT_EQ(monitor.permisoNotificaciones(), QStringLiteral("no disponible (ejecutar como .app)"));
    plataforma.m_volumen.espacio = lleno;
    monitor.medir();
    EXPECT_TRUE(plataforma.m_notificaciones.enviados.empty());
    EXPECT_EQ(dialogos(plataforma).size(), 1);
}

TEST(DiskMonitorPermiso, anAnswerThatOutlivesItsServiceGrantsNothing)
{
    PlataformaDePrueba plataforma;
    const DiskMonitor monitor{plataforma};
    plataforma.m_notificaciones.hay = false;
    plataforma.m_notificaciones.respuesta(true);
    EXPECT_EQ(monitor.permisoNotificaciones(), QStringLiteral("no disponible (ejecutar como .app)"));
}

TEST(DiskMonitorPermiso, theServiceIsLookedForAtTheMomentOfTheNotice)
{
    PlataformaDePrueba plataforma;
    plataforma.m_volumen.espacio = holgado;
    DiskMonitor monitor{plataforma};
    plataforma.m_notificaciones.respuesta(true);
    plataforma.m_notificaciones.hay = false;
    plataforma.m_volumen.espacio = lleno;
    monitor.medir();
    EXPECT_TRUE(plataforma.m_notificaciones.enviados.empty());
    EXPECT_EQ(dialogos(plataforma).size(), 1);
}

TEST(DiskMonitorPermiso, aWarningAtLaunchIsSilentAndStillCounts)
{
    PlataformaDePrueba plataforma;
    plataforma.m_volumen.espacio = justo;
    const DiskMonitor monitor{plataforma};
    plataforma.m_notificaciones.respuesta(true);
    EXPECT_EQ(monitor.nivel(), NivelDisco::aviso);
    plataforma.m_reloj.avanzar(6h);
    EXPECT_TRUE(plataforma.m_notificaciones.enviados.empty());
    EXPECT_TRUE(dialogos(plataforma).empty());
    plataforma.m_reloj.avanzar(1min);
    EXPECT_EQ(plataforma.m_notificaciones.enviados.size(), 1);
}

TEST(DiskMonitorPermiso, aCriticalLevelAtLaunchShowsTheDialog)
{
    PlataformaDePrueba plataforma;
    plataforma.m_volumen.espacio = lleno;
    const DiskMonitor monitor{plataforma};
    EXPECT_TRUE(plataforma.m_dialogo.mostrados.empty()) << "it is queued, not shown from within the reading";
    plataforma.m_notificaciones.respuesta(true);
    ASSERT_EQ(dialogos(plataforma).size(), 1);
    EXPECT_EQ(dialogos(plataforma)[0].titulo, "Espacio crítico");
    EXPECT_EQ(dialogos(plataforma)[0].cuerpo, "Quedan 42,95 GB libres de 536,87 GB.");
    EXPECT_EQ(dialogos(plataforma)[0].boton, "Entendido");
    EXPECT_TRUE(plataforma.m_notificaciones.enviados.empty());
}

TEST(DiskMonitorPermiso, twoCriticalEvaluationsWhileTheDialogIsOpenShowOne)
{
    PlataformaDePrueba plataforma;
    plataforma.m_notificaciones.hay = false;
    plataforma.m_volumen.espacio = lleno;
    DiskMonitor monitor{plataforma};
    monitor.probarAviso();
    ASSERT_EQ(dialogos(plataforma).size(), 1);
    plataforma.m_reloj.avanzar(7h);
    EXPECT_EQ(dialogos(plataforma).size(), 1);
    dialogos(plataforma)[0].alCerrar();
    monitor.probarAviso();
    EXPECT_EQ(dialogos(plataforma).size(), 2);
}

TEST(DiskMonitorPermiso, aDialogMayCloseAfterItsMonitor)
{
    PlataformaDePrueba plataforma;
    plataforma.m_volumen.espacio = lleno;
    auto monitor = std::make_unique<DiskMonitor>(plataforma);
    ASSERT_EQ(dialogos(plataforma).size(), 1);
    monitor.reset();
    dialogos(plataforma)[0].alCerrar();
}

TEST(DiskMonitorPermiso, theFirstReadingComesBeforeTheQuestionAlsoOnASlowVolume)
{
    PlataformaLenta plataforma;
    const DiskMonitor monitor{plataforma};
    ASSERT_EQ(plataforma.lento.pendientes.size(), 1);
    EXPECT_FALSE(plataforma.m_notificaciones.respuesta);
    avisarDelCambio(plataforma.m_notificaciones);
    EXPECT_FALSE(plataforma.m_notificaciones.respuesta);
    plataforma.lento.pendientes[0](lleno);
    EXPECT_EQ(monitor.nivel(), NivelDisco::critico);
    EXPECT_TRUE(plataforma.m_notificaciones.respuesta);
    EXPECT_EQ(dialogos(plataforma).size(), 1) << "it was judged before there was a permission";
}

TEST(DiskMonitorPermiso, aReadingThatComesBackAfterTheMonitorIsDropped)
{
    PlataformaLenta plataforma;
    std::make_unique<DiskMonitor>(plataforma).reset();
    plataforma.lento.pendientes[0](lleno);
    EXPECT_TRUE(plataforma.m_dialogo.mostrados.empty());
    EXPECT_FALSE(plataforma.m_notificaciones.respuesta);
}
