#include "analysis/Scanner.h"

#include "tests/PlataformaDePrueba.h"
#include "tests/analysis/ArbolDeArchivos.h"

#include <QCoroTask>
#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>
#include <atomic>
#include <condition_variable>
#include <future>
#include <gmock/gmock.h>

namespace ovanta::pruebas {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class ScannerTest : public testing::Test
{
protected:
    ScannerTest()
    {
        plataforma.m_lugares.hogar = arbol.raiz();
        plataforma.m_reloj.fijar(Fecha{std::chrono::sys_days{std::chrono::year{2026} / 11 / 21}});
        plataforma.m_herramientas.alEjecutar = [this](const std::string &binario, const auto &) {
            if (alEjecutar) alEjecutar();
            return binario == "/usr/bin/find" ? arbol.en("p/build") + "\n"
                                              : "4\t" + arbol.en("p/build") + "\n";
        };
    }

    void SetUp() override
    {
        scanner = std::make_unique<Scanner>(plataforma);
        scanner->fijarMinimoMB(0);
    }

    void llenar(const std::string &texto = "igual")
    {
        for (const char *nombre : {"Downloads/captura.dmg", "Downloads/copia.dmg"}) {
            arbol.escribir(nombre, texto);
            arbol.fechar(nombre, 1'500'000'000);
        }
    }

    void analizar() { QCoro::waitFor(scanner->analizar()); }

    ArbolDeArchivos arbol;
    PlataformaDePrueba plataforma;
    std::function<void()> alEjecutar;
    std::unique_ptr<Scanner> scanner;
};

TEST_F(ScannerTest, publishesAllThatItFinds)
{
    llenar();
    analizar();
    ASSERT_THAT(*scanner->duplicados(), SizeIs(1));
    EXPECT_EQ(scanner->desperdicioTotal(), 5U);
    EXPECT_THAT(*scanner->grandes(), SizeIs(2));
    EXPECT_THAT(*scanner->descargasViejas(), SizeIs(2));
    EXPECT_THAT(*scanner->capturas(), SizeIs(1));
    EXPECT_THAT(*scanner->instaladores(), SizeIs(2));
    EXPECT_THAT(*scanner->carpetas(), SizeIs(1));
    EXPECT_EQ(scanner->bytesCarpetas(), 4096U);
    EXPECT_EQ(scanner->archivosVistos(), 2U);
    EXPECT_FALSE(scanner->trabajando());
    EXPECT_EQ(scanner->progreso(), QString());
}

TEST_F(ScannerTest, startingTwiceInARowRunsItOnce)
{
    llenar();
    auto primera = scanner->analizar();
    auto segunda = scanner->analizar();
    EXPECT_TRUE(segunda.isReady());
    QCoro::waitFor(primera);
    EXPECT_EQ(plataforma.m_herramientas.llamadas.size(), 2U);
}

TEST_F(ScannerTest, withNoneOfTheFoldersTheListsAreEmptyAndTheDependenciesAreSearched)
{
    analizar();
    EXPECT_THAT(*scanner->duplicados(), IsEmpty());
    EXPECT_THAT(*scanner->grandes(), IsEmpty());
    EXPECT_THAT(*scanner->carpetas(), SizeIs(1));
}

TEST_F(ScannerTest, theLimitDateAndTheMinimumAreThoseOfTheSettings)
{
    llenar(std::string(1 << 20, 'x'));
    arbol.escribir("Downloads/pequeño", std::string((1 << 20) - 1, 'x'));
    scanner->fijarMinimoMB(1.0);
    scanner->fijarDiasDescargas(36'000);
    analizar();
    EXPECT_EQ(scanner->archivosVistos(), 2U);
    EXPECT_THAT(*scanner->descargasViejas(), IsEmpty());
}

TEST_F(ScannerTest, theProgressTellsWhereItIs)
{
    for (int i = 0; i < 2500; ++i)
        arbol.escribir("Downloads/" + std::to_string(i), "x");
    QStringList avances;
    QObject::connect(scanner.get(), &Scanner::avanceChanged, [&] { avances.append(scanner->progreso()); });
    analizar();
    ASSERT_GE(avances.size(), 4);
    EXPECT_EQ(avances.front(), QStringLiteral("Recorriendo carpetas…"));
    EXPECT_TRUE(avances.contains(QStringLiteral("Recorriendo carpetas… 2000 archivos")));
    EXPECT_TRUE(avances.contains(QStringLiteral("Buscando duplicados en 2500 archivos…")));
    EXPECT_TRUE(avances.contains(QStringLiteral("Buscando carpetas de dependencias…")));
    EXPECT_EQ(avances.back(), QString());
}

TEST_F(ScannerTest, aStopDuringTheWalkLeavesAllSixListsAsTheyWere)
{
    llenar();
    analizar();
    arbol.escribir("Downloads/otra captura.dmg", "igual");
    plataforma.m_accesoArchivos.alMirarCarpeta = [this] {
        QMetaObject::invokeMethod(
            scanner.get(), [this] { scanner->detener(); }, Qt::BlockingQueuedConnection);
    };
    analizar();
    EXPECT_EQ(scanner->duplicados()->front().copias.size(), 2U);
    EXPECT_THAT(*scanner->grandes(), SizeIs(2));
    EXPECT_THAT(*scanner->capturas(), SizeIs(1));
    EXPECT_THAT(*scanner->instaladores(), SizeIs(2));
    EXPECT_THAT(*scanner->descargasViejas(), SizeIs(2));
    EXPECT_THAT(*scanner->carpetas(), SizeIs(1));
    EXPECT_FALSE(scanner->trabajando());
}

TEST_F(ScannerTest, aStopDuringTheDuplicatesPublishesNothing)
{
    llenar();
    plataforma.m_accesoArchivos.alAbrir = [this](const std::string &) {
        QMetaObject::invokeMethod(
            scanner.get(), [this] { scanner->detener(); }, Qt::BlockingQueuedConnection);
    };
    analizar();
    EXPECT_THAT(*scanner->grandes(), IsEmpty());
    EXPECT_THAT(*scanner->duplicados(), IsEmpty());
}

TEST_F(ScannerTest, aStopDuringTheDependenciesLeavesNewDuplicatesBesideTheOldRest)
{
    llenar();
    analizar();
    arbol.escribir("Downloads/otra captura.dmg", "igual");
    alEjecutar = [this] {
        QMetaObject::invokeMethod(
            scanner.get(), [this] { scanner->detener(); }, Qt::BlockingQueuedConnection);
    };
    analizar();
    EXPECT_EQ(scanner->duplicados()->front().copias.size(), 3U);
    EXPECT_THAT(*scanner->grandes(), SizeIs(3));
    EXPECT_THAT(*scanner->capturas(), SizeIs(1));
    EXPECT_THAT(*scanner->instaladores(), SizeIs(2));
    EXPECT_THAT(*scanner->carpetas(), SizeIs(1));
}

TEST_F(ScannerTest, aDiskThatDoesNotAnswerDoesNotHoldUpAStop)
{
    std::mutex cerrojo;
    std::condition_variable contesta;
    bool libre = false, colgado = false;
    plataforma.m_accesoArchivos.alMirarCarpeta = [&] {
        std::unique_lock guardia{cerrojo};
        colgado = true;
        contesta.wait(guardia, [&] { return libre; });
    };
    llenar();
    auto tarea = scanner->analizar();
    ASSERT_TRUE(QTest::qWaitFor([&] { return std::lock_guard(cerrojo), colgado; }, 5000));
    scanner->detener();
    EXPECT_EQ(scanner->progreso(), QStringLiteral("Deteniendo…"));
    EXPECT_TRUE(scanner->deteniendo());
    plataforma.m_reloj.avanzar(600ms);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !scanner->trabajando(); }, 5000));

    // A new analysis runs beside the one that hangs, and what that one brings at last is dropped.
    plataforma.m_accesoArchivos.alMirarCarpeta = [] {};
    analizar();
    EXPECT_THAT(*scanner->duplicados(), SizeIs(1));
    {
        const std::lock_guard guardia{cerrojo};
        libre = true;
    }
    contesta.notify_all();
    EXPECT_TRUE(esperarSegundoPlano(5000));
    QCoreApplication::processEvents();
    EXPECT_THAT(*scanner->duplicados(), SizeIs(1));
}

TEST_F(ScannerTest, aSearchForFoldersThatNeverEndsDoesNotHoldUpAStop)
{
    std::promise<void> freno;
    auto fin = freno.get_future().share();
    std::atomic<bool> colgada = false;
    llenar();
    alEjecutar = [fin, &colgada] {
        colgada = true;
        fin.wait();
    };
    auto tarea = scanner->analizar();
    ASSERT_TRUE(QTest::qWaitFor([&] { return colgada.load(); }, 5000));
    EXPECT_THAT(*scanner->duplicados(), SizeIs(1)) << "what was found before is shown";
    scanner->detener();
    plataforma.m_reloj.avanzar(600ms);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !scanner->trabajando(); }, 5000));
    EXPECT_THAT(*scanner->carpetas(), IsEmpty());
    EXPECT_THAT(*scanner->instaladores(), IsEmpty());
    freno.set_value();
    EXPECT_TRUE(esperarSegundoPlano(5000));
    QCoreApplication::processEvents();
    EXPECT_THAT(*scanner->carpetas(), IsEmpty()) << "what it brings at last is dropped";
}

TEST_F(ScannerTest, withoutTheToolsTheFilesAreShownAndNoFolders)
{
    llenar();
    alEjecutar = [] { throw std::runtime_error("no existe"); };
    analizar();
    EXPECT_THAT(*scanner->duplicados(), SizeIs(1));
    EXPECT_THAT(*scanner->instaladores(), SizeIs(2));
    EXPECT_THAT(*scanner->carpetas(), IsEmpty());
    EXPECT_FALSE(scanner->trabajando());
}

TEST_F(ScannerTest, whatWasThrownAwayIsNotAnalysedWhereverTheTrashIs)
{
    llenar();
    arbol.escribir("Downloads/datos/Trash/files/copia.dmg", "igual");
    plataforma.m_lugares.papeleras = {arbol.en("Downloads/datos/Trash")};
    analizar();
    EXPECT_EQ(scanner->archivosVistos(), 2U);
    EXPECT_EQ(scanner->duplicados()->front().copias.size(), 2U);
}

TEST_F(ScannerTest, destroyedDuringAnAnalysisItLeavesNoTrace)
{
    llenar();
    auto tarea = scanner->analizar();
    scanner.reset();
    QCoro::waitFor(tarea);
    EXPECT_TRUE(esperarSegundoPlano(5000));
}

TEST_F(ScannerTest, theSettingsAreKeptAtOnceAndSurviveARestart)
{
    scanner->fijarMinimoMB(2.8);
    scanner->fijarDiasDescargas(97);
    const Scanner otro(plataforma);
    EXPECT_EQ(otro.minimoMB(), 2.8);
    EXPECT_EQ(otro.diasDescargas(), 97);
    EXPECT_EQ(plataforma.m_preferencias.real("minimoMB"), 2.8);
    EXPECT_EQ(plataforma.m_preferencias.entero("diasDescargas"), 97);
}

TEST_F(ScannerTest, changingTheSettingsDuringAnAnalysisDoesNotChangeIt)
{
    llenar();
    auto tarea = scanner->analizar();
    scanner->fijarMinimoMB(1000);
    QCoro::waitFor(tarea);
    EXPECT_EQ(scanner->archivosVistos(), 2U);
}

} // namespace
} // namespace ovanta::pruebas
