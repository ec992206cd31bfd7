#include "core/RegistroPrevio.h"
#include "tests/core/CleanerBanco.h"

#include <QTimer>

using namespace ovanta;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

using CleanerRutas = pruebas::BancoCleaner;

} // namespace

TEST_F(CleanerRutas, everyBatchOperationGivenNothingStillWritesTheHistory)
{
    std::vector<bool> trabajando;
    QObject::connect(&cleaner(), &Cleaner::trabajandoChanged, &cleaner(),
                     [&] { trabajando.push_back(cleaner().trabajando()); });
    const std::vector<std::function<ResultadoLimpieza()>> operaciones{
        [&] { return limpiar({}); }, [&] { return limpiarRutas({}); },
        [&] { return limpiarSeleccion({}, casa.carpeta(casa.en("elegida"))); }};
    for (const auto &operacion : operaciones) {
        std::filesystem::remove(archivo());
        trabajando.clear();
        EXPECT_EQ(operacion(), ResultadoLimpieza{});
        EXPECT_EQ(leerArchivo(archivo(), 100, EnlaceFinal::rechazar), "[]");
        EXPECT_THAT(trabajando, ElementsAre(true, false));
    }
}

TEST_F(CleanerRutas, pathsUnderHomeMoveUnderTheCallersLabel)
{
    const auto uno = casa.archivo(casa.en("Downloads/uno.zip"));
    const auto dos = casa.archivo(casa.en("Downloads/dos.zip"));
    EXPECT_EQ(limpiarRutas({uno, "~/Downloads/dos.zip"}, "pesados"), (ResultadoLimpieza{2, 8192, {}}));
    EXPECT_THAT(rutas(cleaner().historial()), ElementsAre(uno, dos));
    EXPECT_EQ(cleaner().historial()[0].regla, "pesados");
}

TEST_F(CleanerRutas, aRefusedPathIsShownAsGiven)
{
    EXPECT_THAT(limpiarRutas({"/etc/../etc/passwd", "~/Library"}).errores,
                ElementsAre("Ruta rechazada: /etc/../etc/passwd", "Ruta rechazada: ~/Library"));
}

TEST_F(CleanerRutas, aFailedMoveNamesTheLastComponent)
{
    const auto archivo = casa.archivo(casa.en("Downloads/uno.zip"));
    plataforma.m_papelera.alReciclar = [](const auto &) { return std::string{"no queda espacio"}; };
    EXPECT_THAT(limpiarRutas({archivo}).errores, ElementsAre("uno.zip: no queda espacio"));
    EXPECT_THAT(cleaner().historial(), IsEmpty());
}

TEST_F(CleanerRutas, theProgressNamesTheLastComponent)
{
    const auto uno = casa.archivo(casa.en("elegida/uno"));
    const auto dos = casa.archivo(casa.en("elegida/dos"));
    std::vector<std::string> vistos;
    QObject::connect(&cleaner(), &Cleaner::progresoChanged, &cleaner(),
                     [&] { vistos.push_back(cleaner().progreso().toStdString()); });
    limpiarRutas({uno});
    limpiarSeleccion({dos}, casa.en("elegida"));
    EXPECT_THAT(vistos, ElementsAre("Moviendo uno…", "", "Preparando dos…", ""));
}

TEST_F(CleanerRutas, aSelectionIsMovedInAscendingOrderAndEachPathOnce)
{
    const auto a = casa.archivo(casa.en("elegida/a"));
    const auto b = casa.archivo(casa.en("elegida/b"));
    EXPECT_EQ(limpiarSeleccion({b, a, b}, casa.en("elegida")), (ResultadoLimpieza{2, 8192, {}}));
    EXPECT_THAT(rutas(cleaner().historial()), ElementsAre(a, b));
    EXPECT_EQ(cleaner().historial()[0].regla, "duplicados");
}

TEST_F(CleanerRutas, aRefusedPathOfASelectionIsNotShownWhole)
{
    casa.carpeta(casa.en("elegida"));
    const auto ajeno = casa.archivo(casa.en("otra/ajeno.txt"));
    EXPECT_THAT(limpiarSeleccion({ajeno}, casa.en("elegida")).errores,
                ElementsAre("Ruta no permitida: ajeno.txt"));
    EXPECT_TRUE(hay(ajeno));
}

TEST_F(CleanerRutas, aSelectionMayLieOutsideHome)
{
    const auto foto = casa.archivo(casa.fuera("disco/foto.jpg"));
    EXPECT_EQ(limpiarSeleccion({foto}, casa.fuera("disco")).movidos, 1);
    EXPECT_FALSE(hay(foto));
}

TEST_F(CleanerRutas, aVanishedItemOfASelectionIsALineAndTheOthersMove)
{
    const auto b = casa.archivo(casa.en("elegida/b"));
    const auto resultado = limpiarSeleccion({casa.en("elegida/a"), b}, casa.en("elegida"));
    EXPECT_EQ(resultado.movidos, 1);
    EXPECT_THAT(resultado.errores, ElementsAre(testing::StartsWith("a: ")));
}

TEST_F(CleanerRutas, namesWithNewlinesAndBrokenUtf8MoveAndComeBackWhole)
{
    const auto salto = casa.archivo(casa.en("caja/dos\nlíneas"));
    const auto rota = casa.archivo(casa.en("caja/rota\xFF\xC3"));
    QStringList vistos;
    QObject::connect(&cleaner(), &Cleaner::progresoChanged, &cleaner(),
                     [&] { vistos.append(cleaner().progreso()); });
    EXPECT_EQ(limpiarRutas({salto, rota}).movidos, 2);
    EXPECT_EQ(vistos.value(1), QStringLiteral("Moviendo rota\uFFFD\uFFFD…"));
    cerrar();
    EXPECT_THAT(rutas(cleaner().historial()), ElementsAre(salto, rota));
}

TEST_F(CleanerRutas, aFolderSwappedBetweenValidationAndMeasureIsRefused)
{
    // The measure tells another place than the one that was validated.
    struct PapeleraDesviada final : Papelera
    {
        Papelera &interior;
        std::string carpetaReal;
        PapeleraDesviada(Papelera &i, std::string c) : interior(i), carpetaReal(std::move(c)) {}
        std::expected<Medida, std::string> medir(const std::string &ruta) override
        {
            auto medida = interior.medir(ruta);
            if (medida) medida->carpetaReal = carpetaReal;
            return medida;
        }
        std::expected<void, std::string> reciclar(const Medida &m) override { return interior.reciclar(m); }
        bool contiene(const std::string &r, Fecha f) override { return interior.contiene(r, f); }
    };
    const auto dentro = casa.archivo(casa.en("caja/a"));
    for (const auto &desvio : {casa.fuera(), casa.vecino(), std::string{"/"}, std::string{}}) {
        PapeleraDesviada desviada(plataforma.m_papelera, desvio);
        plataforma.m_otraPapelera = &desviada;
        cerrar();
        const std::string linea = "a: la carpeta que lo contiene cambió mientras se comprobaba";
        EXPECT_THAT(limpiarRutas({dentro}).errores, ElementsAre(linea));
        EXPECT_THAT(limpiarSeleccion({dentro}, casa.en("caja")).errores, ElementsAre(linea));
        EXPECT_TRUE(hay(dentro));
        cerrar();
    }
    plataforma.m_otraPapelera = nullptr;
}

TEST_F(CleanerRutas, tenThousandItemsMoveAndTheFirstFiveHundredAreKept)
{
    std::vector<std::string> todas;
    casa.carpeta(casa.en("caja"));
    for (int i = 0; i < 10'000; ++i)
        todas.push_back(casa.archivo(casa.en("caja/" + std::to_string(i))));
    int vueltas = 0;
    QTimer latido;
    QObject::connect(&latido, &QTimer::timeout, &latido, [&] { ++vueltas; });
    latido.start(1);
    const auto resultado = limpiarRutas(todas);

    EXPECT_EQ(resultado, (ResultadoLimpieza{10'000, 10'000 * 4096, {}}));
    todas.resize(maximoHistorial);
    EXPECT_EQ(rutas(cleaner().historial()), todas);
    EXPECT_GT(vueltas, 10) << "the main thread served its events during the batch";
}

TEST_F(CleanerRutas, twoBatchesAtOnceKeepTheirOwnResults)
{
    std::vector<std::string> unas, otras;
    for (int i = 0; i < 20; ++i) {
        unas.push_back(casa.archivo(casa.en("unas/" + std::to_string(i))));
        otras.push_back(casa.archivo(casa.en("otras/" + std::to_string(i))));
    }
    otras.push_back("/etc/passwd");
    auto primera = cleaner().limpiarRutas(unas, "primera");
    auto segunda = cleaner().limpiarRutas(otras, "segunda");
    const auto deLaPrimera = QCoro::waitFor(std::move(primera));
    const auto deLaSegunda = QCoro::waitFor(std::move(segunda));

    EXPECT_EQ(deLaPrimera, (ResultadoLimpieza{20, 20 * 4096, {}}));
    EXPECT_EQ(deLaSegunda, (ResultadoLimpieza{20, 20 * 4096, {"Ruta rechazada: /etc/passwd"}}));
    EXPECT_THAT(guardado(), SizeIs(40));
    EXPECT_EQ(guardado(), cleaner().historial());
    EXPECT_THAT(registrosPrevios(carpetaDatos()), IsEmpty());
}

TEST_F(CleanerRutas, destroyingTheStoreDuringABatchLosesNothing)
{
    std::vector<std::string> todas;
    for (int i = 0; i < 50; ++i)
        todas.push_back(casa.archivo(casa.en("caja/" + std::to_string(i))));
    int pasos = 0;
    QObject::connect(&cleaner(), &Cleaner::progresoChanged, &cleaner(), [&] { ++pasos; });
    const auto lote = cleaner().limpiarRutas(todas, "pesados");
    while (pasos < 5)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    destruir();
    esperarEscritura();

    const auto movidas = plataforma.m_papelera.recicladas;
    EXPECT_LT(movidas.size(), todas.size());
    EXPECT_EQ(rutas(cleaner().historial()), movidas);
}
