#include "tests/ui/BancoInterfaz.h"
#include "ui/HistorialViewEstado.h"

using namespace ovanta;
using namespace ovanta::pruebas;

namespace {

class HistorialView : public BancoVentana
{
protected:
    static const std::vector<FilaMovimiento> &filas(HistorialViewEstado &estado)
    {
        return static_cast<ModeloFilas<FilaMovimiento> *>(estado.filas())->filas();
    }
};

} // namespace

TEST_F(HistorialView, anEmptyHistoryShowsTheEmptyStateAndNoSummary)
{
    abrir(Seccion::historial);
    EXPECT_TRUE(seVe(QStringLiteral("Aún no hay movimientos")));
    EXPECT_TRUE(seVe(QStringLiteral("Aquí aparecerá todo lo que envíes a la Papelera desde Ovanta.")));
    EXPECT_FALSE(seVe(QStringLiteral("0 elementos")));
    EXPECT_FALSE(seVe(QStringLiteral("Abrir la Papelera")));
}

TEST_F(HistorialView, anEntryWhoseTextIsNoPathIsShownLikeAnyOther)
{
    app().limpiador().registrarAccion("Docker: imágenes sin usar", 0, "desarrollo (permanente)");
    HistorialViewEstado estado;
    ASSERT_EQ(filas(estado).size(), 1U);
    const FilaMovimiento &fila = filas(estado).front();
    EXPECT_EQ(fila.nombre, QStringLiteral("Docker: imágenes sin usar"));
    EXPECT_EQ(fila.ruta, fila.nombre);
    EXPECT_EQ(fila.tamano, QStringLiteral("0 GB"));
    EXPECT_EQ(fila.regla, QStringLiteral("desarrollo (permanente)"));
}

TEST_F(HistorialView, aPathShowsItsLastComponentInFront)
{
    app().limpiador().registrarAccion("/home/ana/.cache/pip", 2'500'000'000, "pip");
    app().limpiador().registrarAccion("/", 1, "raiz");
    HistorialViewEstado estado;
    ASSERT_EQ(filas(estado).size(), 2U);
    EXPECT_EQ(filas(estado)[0].nombre, QStringLiteral("/"));
    EXPECT_EQ(filas(estado)[1].nombre, QStringLiteral("pip"));
    EXPECT_EQ(filas(estado)[1].ruta, QStringLiteral("/home/ana/.cache/pip"));
    EXPECT_EQ(filas(estado)[1].tamano, QStringLiteral("2,5 GB"));
}

TEST_F(HistorialView, theSummaryCountsWhatIsKeptAndFollowsTheStore)
{
    ponerHistorial(500);
    app();
    HistorialViewEstado estado;
    EXPECT_EQ(estado.elementos(), QStringLiteral("500 elementos"));
    EXPECT_EQ(estado.total(), QStringLiteral("139,44 GB en total"));
    app().limpiador().registrarAccion("/home/ana/x", 1, "prueba");
    EXPECT_EQ(estado.elementos(), QStringLiteral("500 elementos"));
    EXPECT_EQ(filas(estado).front().nombre, QStringLiteral("x"));
}

TEST_F(HistorialView, fiveHundredEntriesScrollToTheLast)
{
    ponerHistorial(500);
    abrir(Seccion::historial);
    EXPECT_TRUE(seVe(QStringLiteral("500 elementos")));
    EXPECT_TRUE(seVe(QStringLiteral("pip")));
    QAccessibleInterface *accesible = objeto(QAccessible::List, QStringLiteral("Historial"));
    ASSERT_NE(accesible, nullptr);
    auto *lista = qobject_cast<QQuickItem *>(accesible->object());
    lista->forceActiveFocus();
    tecla(Qt::Key_End);
    EXPECT_EQ(lista->property("currentIndex").toInt(), 499);
    EXPECT_GT(lista->property("contentY").toReal(), 20'000);
}

TEST_F(HistorialView, theTrashOpens)
{
    ponerHistorial(3);
    abrir(Seccion::historial);
    pulsarBoton(QStringLiteral("Abrir la Papelera"));
    EXPECT_EQ(plataforma.m_gestor.papelera, 1);
}
