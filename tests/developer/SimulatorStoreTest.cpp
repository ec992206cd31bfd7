#include "developer/SimulatorStore.h"
#include "tests/PlataformaDePrueba.h"

#include <QSignalSpy>
#include <condition_variable>
#include <gmock/gmock.h>

using namespace ovanta;
using namespace ovanta::pruebas;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const std::string raiz = "/casa/Library/Developer/CoreSimulator/Devices";

struct Ficha
{
    std::string id;
    std::optional<int> dias; ///< age; nothing for one without a folder
    std::string estado = "Shutdown";
    long kib = 1;
};

struct SimulatorStoreTest : testing::Test
{
    PlataformaDePrueba plataforma;
    std::string lista, tamanos;

    SimulatorStoreTest()
    {
        plataforma.m_lugares.hogar = "/casa";
        plataforma.m_herramientas.instaladas = {"xcrun"};
        plataforma.m_herramientas.alEjecutar = [this](const std::string &binario, const auto &) {
            return binario == "/usr/bin/du" ? tamanos : lista;
        };
    }

    void poner(const std::vector<Ficha> &fichas)
    {
        std::string dispositivos;
        tamanos.clear();
        for (const Ficha &una : fichas) {
            dispositivos += (dispositivos.empty() ? "" : ",") +
                            (R"({"udid":")" + una.id + R"(","name":"n )") + una.id + R"(","state":")" +
                            una.estado + R"(","isAvailable":true})";
            if (!una.dias) continue;
            plataforma.m_archivos.creados[raiz + "/" + una.id] =
                plataforma.m_reloj.ahora() - std::chrono::hours(24 * *una.dias);
            tamanos += std::to_string(una.kib) + "\t" + raiz + "/" + una.id + "\n";
        }
        lista = R"({"devices":{"com.apple.CoreSimulator.SimRuntime.iOS-17-5":[)" + dispositivos + "]}}";
    }

    std::vector<std::string> ids(const std::vector<Simulador> &simuladores) const
    {
        std::vector<std::string> todos;
        for (const Simulador &uno : simuladores)
            todos.push_back(uno.id);
        return todos;
    }
};

void cargar(SimulatorStore &store)
{
    QCoro::waitFor(store.cargar());
}

} // namespace

TEST_F(SimulatorStoreTest, startsEmptyAndAsksNothing)
{
    SimulatorStore store(plataforma);
    EXPECT_TRUE(store.simuladores().empty());
    EXPECT_FALSE(store.cargando());
    EXPECT_EQ(store.error(), std::nullopt);
    EXPECT_EQ(store.diasNuevo(), 7);
    EXPECT_EQ(store.raiz(), raiz);
    EXPECT_TRUE(plataforma.m_herramientas.llamadas.empty());
}

TEST_F(SimulatorStoreTest, listsTheNewestFirstAndMeasuresAllWithOneDu)
{
    poner({{"vieja", 30, "Shutdown", 10}, {"nueva", 1, "Shutdown", 20}, {"media", 5, "Shutdown", 30}});
    SimulatorStore store(plataforma);
    cargar(store);
    EXPECT_THAT(ids(store.simuladores()), ElementsAre("nueva", "media", "vieja"));
    EXPECT_THAT(
        plataforma.m_herramientas.llamadas,
        ElementsAre(ElementsAre("/usr/bin/xcrun", "simctl", "list", "devices", "-j"),
                    ElementsAre("/usr/bin/du", "-sk", raiz + "/nueva", raiz + "/media", raiz + "/vieja")));
    EXPECT_EQ(plataforma.m_herramientas.ultimoLimite, 300.0);
    EXPECT_TRUE(plataforma.m_herramientas.ultimoTolerarFallo);
    EXPECT_EQ(store.bytesTotales(), 60 * 1024U);
    EXPECT_EQ(store.simuladores()[0].runtime, "iOS 17 5");
    EXPECT_FALSE(store.cargando());
    EXPECT_FALSE(store.midiendoTamanos());
}

TEST_F(SimulatorStoreTest, aSimulatorWithoutAFolderHasNoDateSortsLastAndIsNeverNew)
{
    poner({{"sin", std::nullopt}, {"vieja", 400}});
    SimulatorStore store(plataforma);
    store.fijarDiasNuevo(100'000);
    cargar(store);
    EXPECT_THAT(ids(store.simuladores()), ElementsAre("vieja", "sin"));
    EXPECT_EQ(store.simuladores()[1].creado, std::nullopt);
    EXPECT_EQ(store.dias(store.simuladores()[1]), std::nullopt);
    EXPECT_EQ(store.simuladores()[1].bytes, std::nullopt);
    EXPECT_THAT(ids(store.nuevos()), ElementsAre("vieja"));
}

TEST_F(SimulatorStoreTest, aBootedSimulatorCreatedTodayIsNotAmongTheNewOnes)
{
    poner({{"arrancada", 0, "Booted"}, {"parada", 0}});
    SimulatorStore store(plataforma);
    cargar(store);
    EXPECT_THAT(ids(store.nuevos()), ElementsAre("parada"));
    EXPECT_THAT(store.seleccion(), ElementsAre("parada"));
}

TEST_F(SimulatorStoreTest, withZeroDaysOneCreatedTodayIsNew)
{
    poner({{"hoy", 0}, {"ayer", 1}});
    SimulatorStore store(plataforma);
    store.fijarDiasNuevo(0);
    cargar(store);
    EXPECT_THAT(ids(store.nuevos()), ElementsAre("hoy"));
}

TEST_F(SimulatorStoreTest, sevenDaysAgoIsNewWithSevenDaysAndEightIsNot)
{
    poner({{"siete", 7}, {"ocho", 8}});
    SimulatorStore store(plataforma);
    cargar(store);
    EXPECT_THAT(ids(store.nuevos()), ElementsAre("siete"));
    EXPECT_EQ(store.dias(store.simuladores()[0]), 7);
    EXPECT_EQ(store.dias(store.simuladores()[1]), 8);
}

TEST_F(SimulatorStoreTest, everyListingReplacesTheSelectionByTheNewOnes)
{
    poner({{"nueva", 1, "Shutdown", 5}, {"vieja", 30, "Shutdown", 7}});
    SimulatorStore store(plataforma);
    cargar(store);
    EXPECT_EQ(store.bytesSeleccionados(), 5 * 1024U);
    store.fijarSeleccion({"vieja", "fantasma"});
    EXPECT_EQ(store.bytesSeleccionados(), 7 * 1024U);
    cargar(store);
    EXPECT_THAT(store.seleccion(), ElementsAre("nueva"));
}

TEST_F(SimulatorStoreTest, theWindowForNewIsKeptAtEveryChange)
{
    poner({{"tres", 3}, {"nueve", 9}});
    {
        SimulatorStore store(plataforma);
        cargar(store);
        const QSignalSpy espia(&store, &SimulatorStore::simuladoresChanged);
        store.fijarDiasNuevo(10);
        EXPECT_EQ(espia.count(), 1);
        EXPECT_THAT(ids(store.nuevos()), ElementsAre("tres", "nueve"));
        EXPECT_THAT(store.seleccion(), ElementsAre("tres")) << "only a listing selects";
        store.preseleccionarNuevos();
        EXPECT_THAT(store.seleccion(), ElementsAre("nueve", "tres"));
    }
    EXPECT_EQ(SimulatorStore(plataforma).diasNuevo(), 10);
    plataforma.m_preferencias.fijar("diasNuevo", std::int64_t{-4});
    EXPECT_EQ(SimulatorStore(plataforma).diasNuevo(), 0);
}

TEST_F(SimulatorStoreTest, withoutXcrunTheErrorNamesXcode)
{
    plataforma.m_herramientas.instaladas.clear();
    SimulatorStore store(plataforma);
    cargar(store);
    EXPECT_EQ(store.error(), "No se encontró «xcrun (¿está instalado Xcode?)» en el sistema.");
    EXPECT_FALSE(store.cargando());
    EXPECT_TRUE(plataforma.m_herramientas.llamadas.empty());
}

TEST_F(SimulatorStoreTest, aFailedListingKeepsTheOldListAndTheNextOneClearsTheError)
{
    poner({{"una", 1}});
    SimulatorStore store(plataforma);
    cargar(store);
    const std::string buena = std::exchange(lista, "[]");
    cargar(store);
    EXPECT_EQ(store.error(), "No se pudo interpretar la salida de simctl.");
    EXPECT_THAT(ids(store.simuladores()), ElementsAre("una"));
    lista = buena;
    cargar(store);
    EXPECT_EQ(store.error(), std::nullopt);
}

TEST_F(SimulatorStoreTest, whatTheToolSaysWhenItFailsIsTheError)
{
    plataforma.m_herramientas.alEjecutar = [](const auto &, const auto &) -> std::string {
        throw std::runtime_error("«simctl» no respondió en 120 s y se detuvo.");
    };
    SimulatorStore store(plataforma);
    cargar(store);
    EXPECT_EQ(store.error(), "«simctl» no respondió en 120 s y se detuvo.");
    EXPECT_EQ(plataforma.m_herramientas.ultimoLimite, 120.0);
    EXPECT_FALSE(plataforma.m_herramientas.ultimoTolerarFallo);
}

TEST_F(SimulatorStoreTest, aDuThatFailsLeavesTheListWithoutFigures)
{
    poner({{"una", 1}});
    plataforma.m_herramientas.alEjecutar = [this](const std::string &binario, const auto &) {
        if (binario == "/usr/bin/du") throw std::runtime_error("agotado");
        return lista;
    };
    SimulatorStore store(plataforma);
    cargar(store);
    EXPECT_EQ(store.error(), std::nullopt);
    EXPECT_EQ(store.bytesTotales(), 0U);
    EXPECT_FALSE(store.cargando());
}

TEST_F(SimulatorStoreTest, idsThatLeadElsewhereAreListedButNeverMeasured)
{
    poner({{"../../..", 1}});
    SimulatorStore store(plataforma);
    cargar(store);
    ASSERT_EQ(store.simuladores().size(), 1U);
    EXPECT_EQ(store.simuladores()[0].creado, std::nullopt);
    EXPECT_EQ(plataforma.m_herramientas.llamadas.size(), 1U) << "du without a path would measure elsewhere";
}

TEST_F(SimulatorStoreTest, sizesBeyondAll64BitsAreCapped)
{
    poner({{"a", 1, "Shutdown", 18'014'398'509'481'983}, {"b", 1, "Shutdown", 18'014'398'509'481'983}});
    SimulatorStore store(plataforma);
    cargar(store);
    EXPECT_EQ(store.bytesTotales(), UINT64_MAX);
    EXPECT_EQ(store.bytesSeleccionados(), UINT64_MAX);
}

TEST_F(SimulatorStoreTest, measuringAnEmptyListAsksNothing)
{
    SimulatorStore store(plataforma);
    QCoro::waitFor(store.medirTamanos());
    EXPECT_TRUE(plataforma.m_herramientas.llamadas.empty());
}

namespace {

/// The same with tools that wait to be let go.
struct SimulatorStoreLento : SimulatorStoreTest
{
    std::mutex cerrojo;
    std::condition_variable aviso;
    bool abierta = false;

    SimulatorStoreLento()
    {
        plataforma.m_herramientas.alEjecutar = [this](const std::string &binario, const auto &) {
            std::unique_lock guardia{cerrojo};
            aviso.wait(guardia, [this] { return abierta; });
            return binario == "/usr/bin/du" ? tamanos : lista;
        };
    }
    void abrir()
    {
        const std::lock_guard guardia{cerrojo};
        abierta = true;
        aviso.notify_all();
    }
};

} // namespace

TEST_F(SimulatorStoreLento, listingWhileListingStartsNoSecondOne)
{
    poner({{"una", 1}});
    SimulatorStore store(plataforma);
    auto primera = store.cargar();
    EXPECT_TRUE(store.cargando());
    EXPECT_TRUE(store.cargar().isReady());
    abrir();
    QCoro::waitFor(std::move(primera));
    EXPECT_FALSE(store.cargando());
    EXPECT_EQ(plataforma.m_herramientas.llamadas.size(), 2U) << "one simctl, one du";
}

TEST_F(SimulatorStoreLento, theStoreMayGoWhileItLists)
{
    poner({{"una", 1}});
    auto store = std::make_unique<SimulatorStore>(plataforma);
    auto carga = store->cargar();
    store.reset();
    abrir();
    QCoro::waitFor(std::move(carga));
    EXPECT_EQ(plataforma.m_herramientas.llamadas.size(), 1U);
}
