#include "ui/SpaceViewEstado.h"
#include "tests/ui/BancoInterfaz.h"

#include <gmock/gmock.h>

using namespace ovanta;
using namespace ovanta::pruebas;
using testing::ElementsAre;
using testing::UnorderedElementsAre;

namespace {

Regla regla(const std::string &id, const std::string &risk, std::optional<std::uint64_t> bytes,
            bool existe = true)
{
    return {id,         "Nombre de " + id, "~/" + id, "developer", risk,
            "contents", "por qué",         "coste",   bytes,       existe};
}

class SpaceEstado : public BancoInterfaz
{
protected:
    void preparar()
    {
        poner({{"npm", "Caché de npm", "npm", "developer", "safe", "contents", 2000},
               {"docker", "Docker", "docker", "developer", "manual", "self", 9000},
               {"go", "Go", "go", "developer", "review", "self", 3000},
               {"vacia", "Vacía", "vacia", "cache", "safe", "contents", 0},
               {"ausente", "Ausente", "ausente", "cache", "safe", "contents", -1}});
        app();
        medir();
        estado = std::make_unique<SpaceViewEstado>();
    }
    const FilaRegla &fila(const QString &clave) const
    {
        const auto &filas = static_cast<ModeloFilas<FilaRegla> *>(estado->filas())->filas();
        return *std::ranges::find(filas, clave, &FilaRegla::clave);
    }
    const std::vector<FilaSimulada> &simulados() const
    {
        return static_cast<ModeloFilas<FilaSimulada> *>(estado->simulados())->filas();
    }

    std::unique_ptr<SpaceViewEstado> estado;
};

} // namespace

TEST_F(SpaceEstado, aManualRuleStaysUntickedAndCannotBeTicked)
{
    preparar();
    estado->marcar(QStringLiteral("docker"), true);
    EXPECT_FALSE(fila(QStringLiteral("docker")).marcable);
    EXPECT_FALSE(fila(QStringLiteral("docker")).marcada);
    EXPECT_FALSE(estado->haySeleccion());
}

TEST(ReglasSeguras, leaveOutWhatIsNotMeasuredOrMeasuredNothing)
{
    EXPECT_THAT(reglasSeguras({regla("si", "safe", 10), regla("sin-medir", "safe", std::nullopt),
                               regla("vacia", "safe", 0), regla("ausente", "safe", 10, false),
                               regla("revisar", "review", 10), regla("manual", "manual", 10)}),
                UnorderedElementsAre("si"));
}

TEST_F(SpaceEstado, tickingTheSafeOnesReplacesTheSelection)
{
    preparar();
    estado->marcar(QStringLiteral("go"), true);
    estado->marcarSeguros();
    EXPECT_TRUE(fila(QStringLiteral("npm")).marcada);
    EXPECT_FALSE(fila(QStringLiteral("go")).marcada);
    EXPECT_EQ(estado->textoSeleccion(), QStringLiteral("1 seleccionado"));
    estado->desmarcarTodo();
    EXPECT_FALSE(estado->haySeleccion());
}

TEST_F(SpaceEstado, theSelectionIsCountedAndSummed)
{
    preparar();
    estado->marcar(QStringLiteral("npm"), true);
    estado->marcar(QStringLiteral("go"), true);
    EXPECT_EQ(estado->textoSeleccion(), QStringLiteral("2 seleccionados"));
    EXPECT_EQ(estado->tamanoSeleccion(), QStringLiteral("5,1 MB"));
    EXPECT_EQ(estado->tituloConfirmacion(), QStringLiteral("Mover 2 objetivos · 5,1 MB"));
    estado->marcar(QStringLiteral("npm"), false);
    EXPECT_EQ(estado->textoSeleccion(), QStringLiteral("1 seleccionado"));
}

TEST_F(SpaceEstado, rowsTellSizeAbsenceAndMode)
{
    preparar();
    EXPECT_EQ(fila(QStringLiteral("npm")).tamano, QStringLiteral("2 MB"));
    EXPECT_EQ(fila(QStringLiteral("ausente")).tamano, QStringLiteral("no existe"));
    EXPECT_EQ(fila(QStringLiteral("vacia")).tamano, QStringLiteral("0 GB"));
    EXPECT_EQ(fila(QStringLiteral("go")).modo, QStringLiteral("Se mueve la carpeta entera."));
    EXPECT_EQ(fila(QStringLiteral("npm")).modo,
              QStringLiteral("Se vacía el contenido, la carpeta se conserva."));
    EXPECT_EQ(fila(QStringLiteral("go")).insignia, QStringLiteral("Revisar"));
    EXPECT_EQ(fila(QStringLiteral("npm")).categoria, QStringLiteral("Desarrollo"));
    EXPECT_EQ(estado->encontrados(), QStringLiteral("4 objetivos encontrados"));
    EXPECT_EQ(estado->seguros(), QStringLiteral("2 MB seguros"));
}

TEST_F(SpaceEstado, hidingTheEmptyOnesWithAllAtZeroLeavesNothing)
{
    poner({{"a", "A", "a", "cache", "safe", "contents", 0}});
    app();
    medir();
    estado = std::make_unique<SpaceViewEstado>();
    EXPECT_FALSE(estado->vacio());
    estado->fijarSoloConTamano(true);
    EXPECT_TRUE(estado->vacio());
    estado->fijarSoloConTamano(false);
    EXPECT_FALSE(estado->vacio());
}

TEST_F(SpaceEstado, aSimulationShowsARefusedRuleWithItsErrorAndTheOthersAsUsual)
{
    poner({{"bien", "Bien", "bien", "cache", "safe", "contents", 2000},
           {"mal", "Mal", "Documents", "cache", "review", "self", 1000}});
    app();
    medir();
    estado = std::make_unique<SpaceViewEstado>();
    estado->marcar(QStringLiteral("bien"), true);
    estado->marcar(QStringLiteral("mal"), true);
    estado->prepararSimulacion();
    esperar([&] { return estado->muestraSimulacion(); });
    ASSERT_EQ(simulados().size(), 2U);
    EXPECT_EQ(simulados()[0].texto, QStringLiteral("2 MB · 2 elementos"));
    EXPECT_FALSE(simulados()[0].fallo);
    EXPECT_TRUE(simulados()[1].fallo);
    EXPECT_TRUE(simulados()[1].texto.startsWith(QStringLiteral("Ruta protegida, rechazada: ")));
    EXPECT_EQ(estado->totalSimulado(), QStringLiteral("2 elementos se moverían a la Papelera · 3,1 MB"));
    EXPECT_EQ(estado->presentacion(), QStringLiteral("simulacion"));
    EXPECT_TRUE(plataforma.m_papelera.recicladas.empty());
}

TEST_F(SpaceEstado, aConfirmedMoveEmptiesTheSelectionAndMeasuresAgain)
{
    preparar();
    estado->marcar(QStringLiteral("npm"), true);
    const int lecturas = plataforma.m_volumen.lecturas;
    estado->pedirConfirmacion();
    EXPECT_TRUE(estado->confirmando());
    EXPECT_TRUE(plataforma.m_papelera.recicladas.empty());
    estado->confirmar();
    EXPECT_FALSE(estado->confirmando());
    esperar([&] { return !estado->resumen().isEmpty() && !estado->midiendo(); });
    EXPECT_EQ(estado->resumen(), QStringLiteral("Movidos 2 elementos · 0 MB a la Papelera"));
    EXPECT_FALSE(estado->conFallos());
    EXPECT_FALSE(estado->haySeleccion());
    EXPECT_EQ(plataforma.m_volumen.lecturas, lecturas + 1);
    EXPECT_THAT(plataforma.m_papelera.recicladas,
                UnorderedElementsAre(casa.en("npm/uno"), casa.en("npm/dos")));
}

TEST_F(SpaceEstado, aMoveGoesOnWithoutItsScreenAndStillMeasuresAfterwards)
{
    preparar();
    estado->marcar(QStringLiteral("npm"), true);
    const int lecturas = plataforma.m_volumen.lecturas;
    estado->pedirConfirmacion();
    estado->confirmar();
    estado.reset();
    esperar([&] { return plataforma.m_volumen.lecturas == lecturas + 1; });
    esperar([&] { return !app().limpiador().trabajando() && !app().reglas().midiendo(); });
    EXPECT_EQ(plataforma.m_papelera.recicladas.size(), 2U);
}

TEST_F(SpaceEstado, nothingMovesWithoutASelectionOrAfterCancelling)
{
    preparar();
    estado->pedirConfirmacion();
    EXPECT_FALSE(estado->confirmando());
    estado->confirmar();
    estado->marcar(QStringLiteral("npm"), true);
    estado->pedirConfirmacion();
    estado->cancelar();
    estado->confirmar();
    EXPECT_FALSE(estado->trabajando());
    EXPECT_TRUE(estado->haySeleccion());
}

TEST(ResumenDeMovimiento, tellsTheFirstThreeFailures)
{
    EXPECT_EQ(resumenDe({2, 3'000'000, {}}), QStringLiteral("Movidos 2 elementos · 3 MB a la Papelera"));
    EXPECT_EQ(resumenDe({0, 0, {}}), QStringLiteral("Movidos 0 elementos · 0 GB a la Papelera"));
    EXPECT_EQ(resumenDe({1, 10, {"a: no", "b: no", "c: no", "d: no"}}),
              QStringLiteral("Movidos 1. 4 fallos: a: no\nb: no\nc: no"));
}

TEST_F(SpaceEstado, theDetailAndTheFileManagerAreReachedByTheRulesId)
{
    preparar();
    estado->verDetalle(QStringLiteral("docker"));
    EXPECT_EQ(estado->presentacion(), QStringLiteral("detalle-docker"));
    EXPECT_TRUE(estado->detalle().manual);
    EXPECT_EQ(estado->detalle().nombre, QStringLiteral("Docker"));
    estado->cerrarPresentacion();
    EXPECT_FALSE(estado->muestraDetalle());
    estado->verDetalle(QStringLiteral("no-hay"));
    EXPECT_FALSE(estado->muestraDetalle());
    estado->mostrarEnGestor(QStringLiteral("npm"));
    EXPECT_THAT(plataforma.m_gestor.mostradas, ElementsAre(casa.en("npm")));
}

TEST_F(SpaceEstado, aCatalogueThatCannotBeReadSaysWhy)
{
    app();
    estado = std::make_unique<SpaceViewEstado>();
    estado->alMostrar();
    EXPECT_TRUE(estado->vacio());
    EXPECT_EQ(estado->error(),
              QStringLiteral("No se encontró rules.json dentro de la app. Recompila con build-app.sh."));
}
