#include "ui/MenuViewEstado.h"
#include "core/qt/Formato.h"
#include "tests/ui/BancoPanel.h"

#include <QSignalSpy>

using namespace ovanta;
using namespace ovanta::pruebas;

namespace {

/// Windows that only tell what is asked of them, in order.
class InterfazEspia final : public Interfaz
{
public:
    bool abierta = false;
    QStringList pedidos;
    std::function<void()> alAbrir = [] {};

    bool enfocarVentanaExistente() override
    {
        pedidos << QStringLiteral("enfocar");
        return abierta;
    }
    void abrirVentana() override
    {
        pedidos << QStringLiteral("abrir");
        alAbrir();
    }
    void minimizarAlCerrar(bool) override {}
    void abrirPanel(const QRect &) override {}
    void cerrarPanel() override { pedidos << QStringLiteral("cerrar panel"); }
    bool panelAbierto() const override { return true; }
};

class MenuViewEstadoTest : public BancoPanel
{
protected:
    MenuViewEstado &estado()
    {
        if (!m_estado) {
            Ovanta::usar(&app(), nullptr, &espia);
            m_estado = std::make_unique<MenuViewEstado>();
        }
        return *m_estado;
    }
    void listar() { QCoro::waitFor(app().sims().cargar()); }

    InterfazEspia espia;
    std::unique_ptr<MenuViewEstado> m_estado;
};

std::string texto(const QString &de)
{
    return de.toStdString();
}

} // namespace

TEST_F(MenuViewEstadoTest, theHeadTellsOfTheDisk)
{
    EXPECT_EQ(texto(estado().libres()), "86,02 GB libres");
    EXPECT_EQ(texto(estado().textoNivel()), "Queda poco espacio");
    EXPECT_EQ(texto(estado().simboloNivel()), "exclamationmark.triangle.fill");
    EXPECT_EQ(estado().tinteNivel(), Tinte::Naranja);
    EXPECT_EQ(texto(estado().usado()), "Usado 413,7 GB");
    EXPECT_EQ(texto(estado().umbrales()), "Avisa a 100 GB · crítico 50 GB");
    EXPECT_EQ(estado().ultimaLectura(),
              QStringLiteral("Última lectura: ") + Formato::delUsuario().hora(app().disco().ultimaLectura()));
}

TEST_F(MenuViewEstadoTest, aFreeSpaceReadingOfZeroShowsZeroGB)
{
    plataforma.m_volumen.espacio.reset();
    EXPECT_EQ(texto(estado().libres()), "0 GB libres");
    plataforma.m_volumen.espacio = Volumen::Espacio{4096, 100, 0};
    app().disco().medir();
    EXPECT_EQ(texto(estado().libres()), "0 GB libres");
}

TEST_F(MenuViewEstadoTest, aMachineWithNoBatteryHasNoBatteryRow)
{
    EXPECT_EQ(texto(estado().bateria()), "");
    EXPECT_EQ(texto(estado().salud()), "");
}

TEST_F(MenuViewEstadoTest, theFiguresFollowTheStores)
{
    plataforma.m_bateria.actual = EstadoBateria{};
    plataforma.m_bateria.actual->porcentaje = 64;
    const QSignalSpy vivo(&estado(), &MenuViewEstado::vivoChanged);
    ponerFiguras(0.62);
    EXPECT_GT(vivo.count(), 0);
    EXPECT_EQ(texto(estado().cpu()), "62 %");
    EXPECT_EQ(estado().tinteCPU(), Tinte::Naranja);
    EXPECT_EQ(estado().historialCPU().size(), 30);
    EXPECT_EQ(texto(estado().bajada()), "↓ 1,7 MB/s");
    EXPECT_EQ(texto(estado().subida()), "↑ 18 KB/s");
    EXPECT_EQ(texto(estado().bateria()), "64 %");
    plataforma.m_termico.actual = EstadoTermico::serious;
    plataforma.m_reloj.avanzar(std::chrono::seconds{5});
    EXPECT_EQ(texto(estado().termico()), "Caliente: el Mac reduce velocidad");
}

TEST_F(MenuViewEstadoTest, beforeAListThereIsNoData)
{
    EXPECT_EQ(texto(estado().simuladores()), "Sin datos todavía.");
    EXPECT_EQ(texto(estado().nuevos()), "");
    EXPECT_FALSE(estado().consultando());
}

TEST_F(MenuViewEstadoTest, withoutXcodeThereIsStillNoData)
{
    plataforma.m_herramientas.instaladas.clear();
    estado();
    listar();
    EXPECT_TRUE(app().sims().error());
    EXPECT_EQ(texto(estado().simuladores()), "Sin datos todavía.");
}

TEST_F(MenuViewEstadoTest, whileAListingRunsItSaysSo)
{
    ponerSimuladores({1});
    frenar();
    estado().alMostrar();
    EXPECT_TRUE(estado().consultando());
    EXPECT_EQ(texto(estado().simuladores()), "Consultando…");
    EXPECT_EQ(texto(estado().nuevos()), "");
    soltar();
    esperar([&] { return !estado().consultando(); });
    EXPECT_EQ(texto(estado().simuladores()), "1 en total · 1,02 GB");
}

TEST_F(MenuViewEstadoTest, aListTellsItsSizeAndTheNewOnes)
{
    ponerSimuladores({1, 3, 40, -1});
    estado();
    listar();
    EXPECT_EQ(texto(estado().simuladores()), "4 en total · 3,07 GB");
    EXPECT_EQ(texto(estado().nuevos()), "2 nuevos ocupan 2,05 GB");
    EXPECT_TRUE(estado().hayNuevos());
}

TEST_F(MenuViewEstadoTest, aListWithoutNewOnesNamesTheDays)
{
    ponerSimuladores({40});
    estado();
    listar();
    EXPECT_EQ(texto(estado().nuevos()), "Ninguno creado en los últimos 7 días");
    EXPECT_FALSE(estado().hayNuevos());
    const QSignalSpy cambio(&estado(), &MenuViewEstado::simuladoresChanged);
    app().sims().fijarDiasNuevo(14);
    EXPECT_EQ(cambio.count(), 1);
    EXPECT_EQ(texto(estado().nuevos()), "Ninguno creado en los últimos 14 días");
}

TEST_F(MenuViewEstadoTest, aListThatIsThereIsNotReadAgainWhenThePanelShows)
{
    ponerSimuladores({40});
    estado();
    listar();
    estado().alMostrar();
    EXPECT_FALSE(app().sims().cargando());
    EXPECT_EQ(simctls(), 1);
}

TEST_F(MenuViewEstadoTest, reviewingOpensTheWindowOnTheSimulatorsBecauseTheSelectionComesFirst)
{
    std::optional<Seccion> alAbrir;
    espia.alAbrir = [&] { alAbrir = app().navegacion().seleccion(); };
    estado().revisarSimuladores();
    EXPECT_EQ(alAbrir, Seccion::simuladores);
    EXPECT_EQ(espia.pedidos.join(QStringLiteral(", ")), QStringLiteral("enfocar, abrir, cerrar panel"));
}

TEST_F(MenuViewEstadoTest, anOpenWindowIsOnlyBroughtToTheFront)
{
    espia.abierta = true;
    estado().abrirOvanta();
    EXPECT_EQ(espia.pedidos.join(QStringLiteral(", ")), QStringLiteral("enfocar, cerrar panel"));
    EXPECT_EQ(app().navegacion().seleccion(), Seccion::resumen);
}

TEST_F(MenuViewEstadoTest, updatingMeasuresTheDiskAndListsTheSimulatorsAndNotTheCatalogue)
{
    ponerSimuladores({1});
    const MenuViewEstado &menu = estado();
    const int lecturas = plataforma.m_volumen.lecturas;
    estado().actualizarAhora();
    EXPECT_EQ(plataforma.m_volumen.lecturas, lecturas + 1);
    EXPECT_TRUE(menu.consultando());
    EXPECT_FALSE(app().reglas().midiendo());
    esperar([&] { return !menu.consultando(); });
    EXPECT_EQ(simctls(), 1);
    EXPECT_TRUE(espia.pedidos.isEmpty()) << "the panel stays open";
}

TEST_F(MenuViewEstadoTest, quittingAsksTheProgramToEnd)
{
    const QSignalSpy salir(&espia, &Interfaz::salirPedido);
    estado().salir();
    EXPECT_EQ(salir.count(), 1);
}
