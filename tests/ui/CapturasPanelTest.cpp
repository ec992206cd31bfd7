#include "tests/ui/BancoPanel.h"

using namespace ovanta;
using namespace ovanta::pruebas;

namespace {

class CapturasPanel : public BancoPanel
{
protected:
    /// A picture in each look, with the window's own shadow or without.
    void retratar(const QString &nombre)
    {
        for (const bool oscuro : {false, true}) {
            plataforma.m_apariencia.fijar({.oscuro = oscuro});
            reposar();
            capturar(QStringLiteral("panel-") + nombre +
                     (oscuro ? QStringLiteral("-oscuro") : QStringLiteral("-claro")));
        }
        EXPECT_GT(panel()->height(), 300);
    }
    void abrirListado()
    {
        abrirPanel();
        esperar([&] { return !app().sims().cargando(); });
        reposar();
    }
};

} // namespace

TEST_F(CapturasPanel, thePanelStandsOnAQuietMachine)
{
    plataforma.m_volumen.espacio = Volumen::Espacio{4096, 122'000'000, 60'000'000};
    plataforma.m_bateria.actual =
        EstadoBateria{.porcentaje = 78, .minutosRestantes = 185, .ciclos = 214, .salud = 91};
    ponerSimuladores({1, 3, 40, 200});
    ponerFiguras();
    abrirListado();
    retratar(QStringLiteral("normal"));
    plataforma.m_apariencia.fijar({.altoContraste = true});
    tecla(Qt::Key_Tab);
    capturar(QStringLiteral("panel-contraste"));
}

TEST_F(CapturasPanel, thePanelStandsWithItsShadow)
{
    plataforma.m_apariencia.mezcla = true;
    ponerFiguras(0.55);
    abrirListado();
    retratar(QStringLiteral("sombra"));
}

TEST_F(CapturasPanel, thePanelStandsInTroubleAndWithLongFigures)
{
    plataforma.m_volumen.espacio = Volumen::Espacio{4096, 26'000'000'000, 5'100'100};
    plataforma.m_termico.actual = EstadoTermico::critical;
    plataforma.m_bateria.actual =
        EstadoBateria{.porcentaje = 9, .minutosRestantes = 12, .ciclos = 1204, .salud = 61};
    ponerSimuladores(std::vector<int>(1234, 2));
    ponerFiguras(0.97);
    plataforma.m_contadores.bytes.entrada += 47'345'000'000ULL;
    plataforma.m_contadores.bytes.salida += 4'999'400'000ULL;
    plataforma.m_reloj.avanzar(std::chrono::seconds{5});
    abrirListado();
    retratar(QStringLiteral("apuros"));
}

TEST_F(CapturasPanel, thePanelStandsWithoutBatteryAndWithoutXcode)
{
    plataforma.m_herramientas.instaladas.clear();
    ponerFiguras(0.04);
    abrirListado();
    retratar(QStringLiteral("minimo"));
}
