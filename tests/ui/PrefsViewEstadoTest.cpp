#include "ui/PrefsViewEstado.h"
#include "tests/Medidas.h"
#include "tests/ui/BancoInterfaz.h"

#include <QSignalSpy>
#include <cmath>
#include <gmock/gmock.h>

using namespace ovanta;
using namespace ovanta::pruebas;
using testing::ElementsAre;
using enum PoliticaActivacion::Politica;

namespace {

class PrefsViewEstadoTest : public BancoInterfaz
{
protected:
    PrefsViewEstado &estado()
    {
        app();
        if (!m_estado) m_estado = std::make_unique<PrefsViewEstado>();
        return *m_estado;
    }
    /// Until the system was asked and answered.
    void atender()
    {
        QSignalSpy atendido(&estado(), &PrefsViewEstado::inicioChanged);
        esperar([&] { return atendido.count() > 0; });
    }
    int avisos() const { return static_cast<int>(plataforma.m_notificaciones.enviados.size()); }

    ~PrefsViewEstadoTest() override { esperarSegundoPlano(10'000); }

    std::unique_ptr<PrefsViewEstado> m_estado;
};

struct Caso
{
    const char *propiedad;
    QVariant nuevo;
    const char *clave;
    Preferencias::Valor guardado;
};

} // namespace

TEST_F(PrefsViewEstadoTest, everyControlDrivesItsStoreAndItsPreferenceAndSurvivesARestart)
{
    const std::vector<Caso> casos{
        {"notificar", false, "notificar", false},
        {"umbralAviso", 150.0, "umbralAviso", 150.0},
        {"umbralCritico", 25.0, "umbralCritico", 25.0},
        {"textoEnBarra", false, "mostrarTextoEnBarra", false},
        {"barraCPU", true, "barraCPU", true},
        {"barraRAM", true, "barraRAM", true},
        {"barraRed", true, "barraRed", true},
        {"barraGrafica", false, "barraGrafica", false},
        {"opcionBateria", 5, "avisoBateria", std::int64_t{30}},
        {"enDock", false, "mostrarEnDock", false},
        {"minimoMB", 2.8, "minimoMB", 2.8},
        {"diasDescargas", 97.0, "diasDescargas", std::int64_t{97}},
    };
    for (const Caso &caso : casos) {
        EXPECT_NE(estado().property(caso.propiedad), caso.nuevo) << caso.propiedad;
        EXPECT_TRUE(estado().setProperty(caso.propiedad, caso.nuevo));
        EXPECT_EQ(estado().property(caso.propiedad), caso.nuevo) << caso.propiedad;
        EXPECT_EQ(plataforma.m_preferencias.leer(caso.clave), caso.guardado) << caso.clave;
    }
    const OvantaApp otra(plataforma);
    Ovanta::usar(const_cast<OvantaApp *>(&otra), nullptr, nullptr);
    const PrefsViewEstado despues;
    for (const Caso &caso : casos)
        EXPECT_EQ(despues.property(caso.propiedad), caso.nuevo) << caso.propiedad;
    esperarSegundoPlano(10'000);
}

TEST_F(PrefsViewEstadoTest, theTextsCarryTheirFigures)
{
    EXPECT_EQ(estado().textoAviso(), QStringLiteral("Aviso: 100 GB"));
    EXPECT_EQ(estado().textoCritico(), QStringLiteral("Crítico: 50 GB"));
    EXPECT_EQ(estado().textoMinimo(), QStringLiteral("Ignorar archivos de menos de 1 MB"));
    EXPECT_EQ(estado().textoDias(), QStringLiteral("«Descarga vieja» a partir de 90 días"));
    for (const auto &[valor, texto] :
         {std::pair{0.1, "0"}, {1.9, "2"}, {2.8, "3"}, {3.7, "4"}, {49.6, "50"}}) {
        estado().fijarMinimoMB(valor);
        EXPECT_EQ(estado().textoMinimo(),
                  QStringLiteral("Ignorar archivos de menos de %1 MB").arg(QLatin1String(texto)));
    }
}

TEST_F(PrefsViewEstadoTest, theBatteryOffersNeverAndFivePercentages)
{
    EXPECT_EQ(estado().opcionesBateria(),
              QStringList({QStringLiteral("Nunca"), QStringLiteral("Al 5 %"), QStringLiteral("Al 10 %"),
                           QStringLiteral("Al 15 %"), QStringLiteral("Al 20 %"), QStringLiteral("Al 30 %")}));
    EXPECT_EQ(estado().opcionBateria(), 3);
    estado().elegirBateria(0);
    EXPECT_EQ(app().stats().avisoBateria(), 0);
    EXPECT_EQ(estado().textoBateria(), QStringLiteral("Nunca"));
    for (const int ninguna : {-1, 6, 99})
        estado().elegirBateria(ninguna);
    EXPECT_EQ(app().stats().avisoBateria(), 0);
}

TEST_F(PrefsViewEstadoTest, aBatteryPercentageThatIsNoOptionIsShownAsItIs)
{
    plataforma.m_preferencias.fijar("avisoBateria", std::int64_t{12});
    EXPECT_EQ(estado().opcionBateria(), -1);
    EXPECT_EQ(estado().textoBateria(), QStringLiteral("Al 12 %"));
}

TEST_F(PrefsViewEstadoTest, aCriticalThresholdAtTheWarningOrAboveShowsTheLineAndChangesNothingElse)
{
    estado().fijarUmbralCritico(95);
    EXPECT_FALSE(estado().umbralesCruzados());
    for (const double critico : {100.0, 105.0}) {
        estado().fijarUmbralCritico(critico);
        EXPECT_TRUE(estado().umbralesCruzados()) << critico;
        EXPECT_EQ(estado().umbralAviso(), 100.0);
        EXPECT_EQ(estado().umbralCritico(), critico);
    }
    estado().fijarUmbralAviso(110);
    EXPECT_FALSE(estado().umbralesCruzados());
}

TEST_F(PrefsViewEstadoTest, aThresholdRaisedAboveTheFreeSpaceNotifiesOnceAndOneLoweredRearms)
{
    plataforma.m_volumen.espacio = Volumen::Espacio{1, 500 * gib, 120 * gib};
    estado();
    plataforma.m_notificaciones.respuesta(true);
    EXPECT_EQ(app().disco().nivel(), NivelDisco::ok);
    estado().fijarUmbralAviso(130);
    estado().fijarUmbralAviso(140);
    EXPECT_EQ(app().disco().nivel(), NivelDisco::aviso);
    EXPECT_EQ(avisos(), 1);
    estado().fijarUmbralAviso(100);
    EXPECT_EQ(app().disco().nivel(), NivelDisco::ok);
    estado().fijarUmbralAviso(130);
    EXPECT_EQ(avisos(), 2);
}

TEST_F(PrefsViewEstadoTest, theTestNoticeIsTheOrdinaryOneAndThePermissionIsToldInItsWords)
{
    plataforma.m_volumen.espacio = Volumen::Espacio{1, 500 * gib, 400 * gib};
    EXPECT_EQ(estado().permiso(), QStringLiteral("sin solicitar"));
    EXPECT_EQ(estado().tintePermiso(), Tinte::Secundario);
    plataforma.m_notificaciones.respuesta(true);
    EXPECT_EQ(estado().permiso(), QStringLiteral("concedido"));
    EXPECT_EQ(estado().tintePermiso(), Tinte::Verde);
    estado().probarAviso();
    ASSERT_EQ(avisos(), 1);
    EXPECT_EQ(plataforma.m_notificaciones.enviados[0].titulo, "Queda poco espacio");
}

TEST_F(PrefsViewEstadoTest, theSwitchOfTheStartAtLoginShowsWhatTheSystemReports)
{
    plataforma.m_inicio.puesto = true;
    EXPECT_FALSE(estado().alInicio()) << "not asked yet";
    atender();
    EXPECT_TRUE(estado().alInicio());
    estado().fijarAlInicio(false);
    esperarSegundoPlano(10'000);
    EXPECT_FALSE(plataforma.m_inicio.puesto);
}

TEST_F(PrefsViewEstadoTest, aFailedRegistrationShowsItsTextAndLeavesTheSwitchAsTheSystemReportsIt)
{
    estado();
    atender();
    plataforma.m_inicio.fallo = "La operación no está permitida";
    estado().fijarAlInicio(true);
    esperar([&] { return !estado().errorInicio().isEmpty(); });
    EXPECT_EQ(estado().errorInicio(), QStringLiteral("La operación no está permitida"));
    EXPECT_FALSE(estado().alInicio());
    plataforma.m_inicio.fallo.clear();
    estado().fijarAlInicio(true);
    esperar([&] { return estado().errorInicio().isEmpty(); });
    EXPECT_TRUE(estado().alInicio());
    EXPECT_TRUE(plataforma.m_inicio.puesto);
}

TEST_F(PrefsViewEstadoTest, ofSeveralWishesWhileTheSystemIsBusyTheLastOneHolds)
{
    estado();
    for (int i = 0; i < 5; ++i)
        estado().fijarAlInicio(i % 2 == 0);
    esperar([&] { return plataforma.m_inicio.activado() && esperarSegundoPlano(0); });
    QCoreApplication::processEvents();
    EXPECT_TRUE(estado().alInicio());
    EXPECT_LE(plataforma.m_inicio.cambios, 2);
}

TEST_F(PrefsViewEstadoTest, aWishIsCarriedOutEvenWhenTheScreenClosesAtOnce)
{
    estado().fijarAlInicio(true);
    m_estado.reset();
    esperarSegundoPlano(10'000);
    QCoreApplication::processEvents();
    EXPECT_TRUE(plataforma.m_inicio.activado());
    EXPECT_EQ(plataforma.m_inicio.cambios, 1);
}

TEST_F(PrefsViewEstadoTest, garbageInThePreferencesFileLeavesAWorkingScreen)
{
    for (const char *clave : {"notificar", "umbralAviso", "umbralCritico", "mostrarTextoEnBarra", "barraCPU",
                              "barraGrafica", "avisoBateria", "mostrarEnDock", "minimoMB", "diasDescargas"})
        plataforma.m_preferencias.fijar(clave, std::string("\xff basura"));
    EXPECT_EQ(estado().umbralAviso(), 0.0) << "a threshold is taken as it stands";
    EXPECT_EQ(estado().textoAviso(), QStringLiteral("Aviso: 0 GB"));
    EXPECT_TRUE(estado().enDock());
    EXPECT_EQ(estado().minimoMB(), 1.0);
    EXPECT_EQ(estado().diasDescargas(), 90);
    EXPECT_EQ(estado().textoBateria(), QStringLiteral("Nunca"));
    estado().fijarUmbralAviso(80);
    EXPECT_EQ(plataforma.m_preferencias.real("umbralAviso"), 80.0);
}

TEST_F(PrefsViewEstadoTest, theDockIconGoesAndComesAtOnce)
{
    EXPECT_TRUE(estado().enDock());
    estado().fijarEnDock(false);
    estado().fijarEnDock(false);
    estado().fijarEnDock(true);
    EXPECT_THAT(plataforma.m_politica.fijadas, ElementsAre(accesoria, regular));
}
