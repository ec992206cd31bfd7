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

/// A monitor over a volume of 500 gib whose free space the test sets.
class DiskMonitorTest : public testing::Test
{
protected:
    PlataformaDePrueba plataforma;
    std::unique_ptr<DiskMonitor> monitor;

    void fijarLibres(double gibis)
    {
        plataforma.m_volumen.espacio =
            Volumen::Espacio{1, 500 * gib, static_cast<std::uint64_t>(gibis * gib)};
    }

    /// Makes the monitor with `gibis` free and answers its question for permission.
    void empezar(double gibis, std::expected<bool, std::string> permiso = true)
    {
        fijarLibres(gibis);
        monitor = std::make_unique<DiskMonitor>(plataforma);
        plataforma.m_notificaciones.respuesta(std::move(permiso));
    }

    void caer(double gibis)
    {
        fijarLibres(gibis);
        monitor->medir();
    }

    std::vector<Notificaciones::Aviso> &avisos() { return plataforma.m_notificaciones.enviados; }

    /// The alerts, once what the monitor queued has run.
    std::vector<DialogoDePrueba::Mostrado> &dialogos()
    {
        QCoreApplication::sendPostedEvents();
        return plataforma.m_dialogo.mostrados;
    }
};

} // namespace

TEST_F(DiskMonitorTest, publishesWhatTheVolumeSays)
{
    plataforma.m_volumen.espacio = Volumen::Espacio{4096, 1000, 250};
    monitor = std::make_unique<DiskMonitor>(plataforma);
    EXPECT_EQ(monitor->total(), 4'096'000);
    EXPECT_EQ(monitor->libre(), 1'024'000);
    EXPECT_EQ(monitor->usado(), 3'072'000);
    EXPECT_DOUBLE_EQ(monitor->fraccionUsada(), 0.75);
    EXPECT_EQ(monitor->ultimaLectura(), plataforma.m_reloj.ahora());
}

TEST_F(DiskMonitorTest, qmlReadsTheSameFiguresThroughProperties)
{
    empezar(40);
    EXPECT_EQ(monitor->property("libre").toULongLong(), 40 * gib);
    EXPECT_EQ(monitor->property("total").toULongLong(), 500 * gib);
    EXPECT_EQ(monitor->property("usado").toULongLong(), 460 * gib);
    EXPECT_DOUBLE_EQ(monitor->property("fraccionUsada").toDouble(), 0.92);
    EXPECT_EQ(monitor->property("nivel").toString(), QStringLiteral("critico"));
    EXPECT_EQ(monitor->property("ultimaLectura").toDateTime().toSecsSinceEpoch(), 1'795'238'316);
}

TEST_F(DiskMonitorTest, moreFreeThanTotalCountsAsNothingUsed)
{
    plataforma.m_volumen.espacio = Volumen::Espacio{4096, 10, 11};
    monitor = std::make_unique<DiskMonitor>(plataforma);
    EXPECT_EQ(monitor->usado(), 0);
    EXPECT_EQ(monitor->fraccionUsada(), 0.0);
}

TEST_F(DiskMonitorTest, aVolumeOfNoSizeIsNotDividedBy)
{
    plataforma.m_volumen.espacio = Volumen::Espacio{4096, 0, 0};
    monitor = std::make_unique<DiskMonitor>(plataforma);
    EXPECT_EQ(monitor->fraccionUsada(), 0.0);
    EXPECT_EQ(monitor->nivel(), NivelDisco::critico);
}

TEST_F(DiskMonitorTest, aFailingReadKeepsTheOldFiguresAndJudgesNothing)
{
    empezar(200);
    const Fecha antes = monitor->ultimaLectura();
    plataforma.m_reloj.avanzar(10s);
    plataforma.m_volumen.espacio.reset();
    const QSignalSpy lecturas{monitor.get(), &DiskMonitor::lecturaChanged};
    monitor->medir();
    EXPECT_EQ(monitor->libre(), 200 * gib);
    EXPECT_EQ(monitor->total(), 500 * gib);
    EXPECT_EQ(monitor->ultimaLectura(), antes);
    EXPECT_EQ(monitor->nivel(), NivelDisco::ok);
    EXPECT_EQ(lecturas.count(), 0);
}

TEST_F(DiskMonitorTest, aFirstReadThatFailsLeavesZerosAndNoAlert)
{
    plataforma.m_volumen.espacio.reset();
    monitor = std::make_unique<DiskMonitor>(plataforma);
    EXPECT_EQ(monitor->libre(), 0);
    EXPECT_EQ(monitor->total(), 0);
    EXPECT_EQ(monitor->nivel(), NivelDisco::ok);
    EXPECT_TRUE(dialogos().empty());
    EXPECT_TRUE(plataforma.m_notificaciones.respuesta) << "permission is asked for all the same";
}

TEST_F(DiskMonitorTest, exactlyAtAThresholdIsTheWorseLevel)
{
    empezar(50);
    EXPECT_EQ(monitor->nivel(), NivelDisco::critico);
    caer(100);
    EXPECT_EQ(monitor->nivel(), NivelDisco::aviso);
    caer(100.5);
    EXPECT_EQ(monitor->nivel(), NivelDisco::ok);
}

TEST_F(DiskMonitorTest, aCriticalThresholdAboveTheWarningSkipsTheWarning)
{
    plataforma.m_preferencias.fijar("umbralAviso", 50.0);
    plataforma.m_preferencias.fijar("umbralCritico", 100.0);
    empezar(101);
    EXPECT_EQ(monitor->nivel(), NivelDisco::ok);
    caer(100);
    EXPECT_EQ(monitor->nivel(), NivelDisco::critico);
    caer(40);
    EXPECT_EQ(monitor->nivel(), NivelDisco::critico);
}

TEST_F(DiskMonitorTest, readsEveryMinuteAndAfterWaking)
{
    empezar(200);
    ASSERT_EQ(plataforma.m_volumen.lecturas, 1);
    plataforma.m_reloj.avanzar(59s);
    EXPECT_EQ(plataforma.m_volumen.lecturas, 1);
    plataforma.m_reloj.avanzar(1s);
    EXPECT_EQ(plataforma.m_volumen.lecturas, 2);
    fijarLibres(99);
    plataforma.m_suspension.despertar();
    EXPECT_EQ(plataforma.m_volumen.lecturas, 3);
    EXPECT_EQ(monitor->nivel(), NivelDisco::aviso);
}

TEST_F(DiskMonitorTest, nothingCallsAMonitorThatIsGone)
{
    empezar(200);
    auto respuestaTardia = plataforma.m_notificaciones.respuesta;
    monitor.reset();
    plataforma.m_reloj.avanzar(10min);
    plataforma.m_suspension.despertar();
    respuestaTardia(true);
    for (const auto &oyente : plataforma.m_notificaciones.oyentes)
        oyente();
    EXPECT_EQ(plataforma.m_volumen.lecturas, 1);
}

TEST_F(DiskMonitorTest, settingsStartFromTheirDefaultsAndAreRememberedWhenChanged)
{
    empezar(200);
    EXPECT_EQ(monitor->umbralAviso(), 100.0);
    EXPECT_EQ(monitor->umbralCritico(), 50.0);
    EXPECT_TRUE(monitor->notificar());
    EXPECT_TRUE(monitor->mostrarTextoEnBarra());
    const QSignalSpy ajustes{monitor.get(), &DiskMonitor::ajustesChanged};
    monitor->setProperty("umbralAviso", 20.5);
    monitor->setProperty("umbralCritico", 10.25);
    monitor->setProperty("notificar", false);
    monitor->setProperty("mostrarTextoEnBarra", false);
    EXPECT_EQ(ajustes.count(), 4);

    const DiskMonitor otro{plataforma};
    EXPECT_EQ(otro.umbralAviso(), 20.5);
    EXPECT_EQ(otro.umbralCritico(), 10.25);
    EXPECT_FALSE(otro.notificar());
    EXPECT_FALSE(otro.mostrarTextoEnBarra());
}

TEST_F(DiskMonitorTest, theWarningNoticeHasItsTitleTextAndSound)
{
    empezar(200);
    caer(90);
    ASSERT_EQ(avisos().size(), 1);
    EXPECT_EQ(avisos()[0].titulo, "Queda poco espacio");
    EXPECT_EQ(avisos()[0].cuerpo, "Quedan 96,64 GB libres de 536,87 GB.");
    EXPECT_EQ(avisos()[0].sonido, Notificaciones::Sonido::normal);
}

TEST_F(DiskMonitorTest, theCriticalNoticeHasItsOwnSoundAndAFreshIdentifier)
{
    empezar(200);
    caer(90);
    caer(40);
    ASSERT_EQ(avisos().size(), 2);
    EXPECT_EQ(avisos()[1].titulo, "Espacio crítico");
    EXPECT_EQ(avisos()[1].sonido, Notificaciones::Sonido::critico);
    EXPECT_EQ(avisos()[1].id.size(), 36);
    EXPECT_NE(avisos()[1].id, avisos()[0].id);
    EXPECT_TRUE(dialogos().empty());
}

TEST_F(DiskMonitorTest, sevenCriticalHoursGiveTheFirstNoticeAndOneMore)
{
    empezar(200);
    caer(40);
    ASSERT_EQ(avisos().size(), 1);
    plataforma.m_reloj.avanzar(6h);
    EXPECT_EQ(avisos().size(), 1) << "exactly six hours do not repeat";
    plataforma.m_reloj.avanzar(1min);
    EXPECT_EQ(avisos().size(), 2);
    plataforma.m_reloj.avanzar(59min);
    EXPECT_EQ(avisos().size(), 2);
}

TEST_F(DiskMonitorTest, aThresholdChangedWithinThoseHoursRaisesNothingNew)
{
    empezar(200);
    caer(40);
    ASSERT_EQ(avisos().size(), 1);
    plataforma.m_reloj.avanzar(1h);
    monitor->fijarUmbralCritico(60);
    monitor->fijarUmbralAviso(150);
    monitor->fijarUmbralCritico(30);
    EXPECT_EQ(monitor->nivel(), NivelDisco::aviso);
    EXPECT_EQ(avisos().size(), 1);
    plataforma.m_reloj.avanzar(6h);
    EXPECT_EQ(avisos().size(), 2) << "one repeat after six hours, at the level of then";
    EXPECT_EQ(avisos()[1].titulo, "Queda poco espacio");
    monitor->fijarUmbralCritico(45);
    EXPECT_EQ(avisos().size(), 3) << "the repeat at the warning made this a rise";
}

TEST_F(DiskMonitorTest, aThresholdRaisedAboveTheFreeSpaceNotifiesAtOnceAndOneLoweredReArms)
{
    empezar(200);
    monitor->fijarUmbralAviso(300);
    EXPECT_EQ(avisos().size(), 1);
    monitor->fijarUmbralAviso(100);
    EXPECT_EQ(monitor->nivel(), NivelDisco::ok);
    monitor->fijarUmbralAviso(300);
    EXPECT_EQ(avisos().size(), 2);
}

TEST_F(DiskMonitorTest, withNoticesOffTheLevelStillChangesAndTheMemoryStandsStill)
{
    empezar(200);
    caer(90);
    ASSERT_EQ(avisos().size(), 1);
    monitor->fijarNotificar(false);
    caer(200);
    EXPECT_EQ(monitor->nivel(), NivelDisco::ok);
    caer(90);
    monitor->fijarNotificar(true);
    EXPECT_EQ(avisos().size(), 1) << "turning it on evaluates nothing";
    monitor->medir();
    EXPECT_EQ(avisos().size(), 1) << "the warning counts as told: the rise to ok was not noted";
    caer(40);
    EXPECT_EQ(avisos().size(), 2);
}

TEST_F(DiskMonitorTest, levelChangesAreAnnouncedOnce)
{
    empezar(200);
    const QSignalSpy niveles{monitor.get(), &DiskMonitor::nivelChanged};
    caer(90);
    caer(80);
    caer(40);
    EXPECT_EQ(niveles.count(), 2);
}

TEST_F(DiskMonitorTest, aTestNoticeWithEnoughSpaceShowsTheWarning)
{
    empezar(200);
    monitor->probarAviso();
    ASSERT_EQ(avisos().size(), 1);
    EXPECT_EQ(avisos()[0].titulo, "Queda poco espacio");
    caer(90);
    EXPECT_EQ(avisos().size(), 2) << "the test did not count as a notice";
}

TEST_F(DiskMonitorTest, aTestNoticeShowsTheCurrentLevelAndDelaysNoRepeat)
{
    empezar(200);
    caer(40);
    plataforma.m_reloj.avanzar(5h);
    monitor->probarAviso();
    ASSERT_EQ(avisos().size(), 2);
    EXPECT_EQ(avisos()[1].titulo, "Espacio crítico");
    plataforma.m_reloj.avanzar(1h + 1min);
    EXPECT_EQ(avisos().size(), 3);
}

TEST_F(DiskMonitorTest, aTestNoticeWithoutPermissionShowsNothingForTheWarning)
{
    empezar(200, false);
    monitor->probarAviso();
    EXPECT_TRUE(avisos().empty());
    EXPECT_TRUE(dialogos().empty());
    EXPECT_EQ(monitor->nivel(), NivelDisco::ok);
}
