#include "tests/ui/BancoInterfaz.h"
#include "ui/MainViewEstado.h"

#include <QSignalSpy>
#include <QTest>

using namespace ovanta;
using namespace ovanta::pruebas;

namespace {

class MainView : public BancoVentana
{
protected:
    bool elegida(const QString &titulo)
    {
        QAccessibleInterface *fila = objeto(QAccessible::ListItem, titulo);
        return fila && fila->state().selected;
    }
};

} // namespace

TEST_F(MainView, theWindowHasItsNameAndItsSizes)
{
    abrir();
    EXPECT_EQ(ventana()->title(), QStringLiteral("Ovanta"));
    EXPECT_EQ(ventana()->size(), QSize(1000, 700));
    EXPECT_EQ(ventana()->minimumSize(), QSize(900, 660));
}

TEST_F(MainView, theSidebarShowsTheBrandTheSectionsAndTheDisk)
{
    abrir();
    for (const char *texto : {"Ovanta de Belmora", "Más espacio para lo que importa", "Disco", "Sistema",
                              "Registro", "86,02 GB libres"})
        EXPECT_TRUE(seVe(QString::fromUtf8(texto))) << texto;
    for (const FichaSeccion &f : secciones)
        EXPECT_NE(objeto(QAccessible::ListItem, mostrar(f.titulo)), nullptr) << f.titulo;
}

TEST_F(MainView, theHeadsOfTheGroupsAreRightAfterTheWindowShrankAndGrew)
{
    abrir();
    for (const int alto : {220, 700, 320, 1100, 260, 700}) {
        ventana()->resize(1000, alto);
        reposar();
    }
    for (const char *grupo : {"Disco", "Sistema", "Registro"})
        EXPECT_TRUE(seVe(QString::fromUtf8(grupo))) << grupo;
}

TEST_F(MainView, pressingARowOpensItsSection)
{
    abrir();
    pulsar(QAccessible::ListItem, QStringLiteral("Historial"));
    reposar();
    EXPECT_EQ(app().navegacion().seleccion(), Seccion::historial);
    EXPECT_TRUE(elegida(QStringLiteral("Historial")));
    EXPECT_TRUE(seVe(QStringLiteral("Aún no hay movimientos")));
}

TEST_F(MainView, arrowsMoveThroughTheSectionsInTheOrderOfTheSidebar)
{
    abrir(Seccion::desarrollo);
    tecla(Qt::Key_Down);
    EXPECT_EQ(app().navegacion().seleccion(), Seccion::duplicados);
    tecla(Qt::Key_Up);
    tecla(Qt::Key_Up);
    EXPECT_EQ(app().navegacion().seleccion(), Seccion::espacio);
    tecla(Qt::Key_End);
    EXPECT_EQ(app().navegacion().seleccion(), Seccion::ajustes);
    tecla(Qt::Key_Down);
    EXPECT_EQ(app().navegacion().seleccion(), Seccion::ajustes);
}

TEST_F(MainView, numbersOpenSections)
{
    abrir();
    tecla(Qt::Key_2, Qt::ControlModifier);
    EXPECT_EQ(app().navegacion().seleccion(), Seccion::espacio);
}

TEST_F(MainView, withNoSelectionNoRowIsMarked)
{
    abrir();
    EXPECT_TRUE(elegida(QStringLiteral("Resumen")));
    app().navegacion().seleccionar(std::nullopt);
    reposar();
    for (const FichaSeccion &f : secciones)
        EXPECT_FALSE(elegida(mostrar(f.titulo))) << f.titulo;
}

TEST_F(MainView, aSectionWithoutAScreenSaysSo)
{
    abrir(Seccion::salud);
    EXPECT_TRUE(seVe(QStringLiteral("Sección en construcción")));
}

TEST_F(MainView, controlRMeasuresTheDiskAndTheCatalogueAgain)
{
    poner({{"a", "A", "cache-a"}});
    medir();
    abrir(Seccion::historial);
    const int lecturas = plataforma.m_volumen.lecturas;
    const std::size_t llamadas = plataforma.m_herramientas.llamadas.size();
    frenar();
    tecla(Qt::Key_R, Qt::ControlModifier);
    EXPECT_EQ(plataforma.m_volumen.lecturas, lecturas + 1);
    EXPECT_TRUE(app().reglas().midiendo());
    soltar();
    esperar([&] { return !app().reglas().midiendo(); });
    EXPECT_EQ(plataforma.m_herramientas.llamadas.size(), llamadas + 1);
}

TEST_F(MainView, controlWClosesTheWindowAndItsScene)
{
    abrir();
    QSignalSpy cerrada(interfaz.get(), &Interfaz::ventanaCerrada);
    tecla(Qt::Key_W, Qt::ControlModifier);
    EXPECT_EQ(cerrada.count(), 1);
    esperar([&] { return !ventana(); });
    EXPECT_FALSE(interfaz->enfocarVentanaExistente());
    interfaz->abrirVentana();
    EXPECT_NE(ventana(), nullptr);
}

TEST_F(MainView, theDisksStateIsFollowedLive)
{
    abrir();
    plataforma.m_volumen.espacio = Volumen::Espacio{4096, 122'000'000, 5'000'000};
    app().disco().medir();
    reposar();
    EXPECT_TRUE(seVe(QStringLiteral("20,48 GB libres")));
    EXPECT_TRUE(seVe(QStringLiteral("Espacio crítico")));
}

TEST_F(MainView, rowsOutsideTheSidebarSelectNothing)
{
    app();
    MainViewEstado estado;
    estado.seleccionar(-1);
    estado.seleccionar(13);
    EXPECT_EQ(app().navegacion().seleccion(), Seccion::resumen);
    EXPECT_EQ(estado.fila(), 0);
    app().navegacion().seleccionar(std::nullopt);
    EXPECT_EQ(estado.fila(), -1);
    EXPECT_EQ(estado.vista(), QString());
}
