#include "tests/core/CleanerBanco.h"

#include <QSignalSpy>

using namespace ovanta;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

namespace {

using CleanerReglas = pruebas::BancoCleaner;

} // namespace

TEST_F(CleanerReglas, aRuleOfModeSelfMovesItsFolderWhole)
{
    casa.archivo(casa.en(".cache/pip/a"));
    const auto resultado = limpiar({regla("pip", "~/.cache/pip")});

    EXPECT_EQ(resultado, (ResultadoLimpieza{1, 4096, {}}));
    EXPECT_FALSE(hay(casa.en(".cache/pip")));
    const auto &historial = cleaner().historial();
    ASSERT_EQ(historial.size(), 1u);
    EXPECT_EQ(historial[0].ruta, casa.en(".cache/pip"));
    EXPECT_EQ(historial[0].regla, "pip");
    EXPECT_EQ(historial[0].bytes, 4096u);
    EXPECT_EQ(historial[0].fecha, plataforma.m_reloj.ahora());
}

TEST_F(CleanerReglas, anyOtherModeMovesTheContentsAndTheFolderStays)
{
    casa.archivo(casa.en(".cache/pip/uno"));
    casa.archivo(casa.en(".cache/pip/.oculto"));
    const auto resultado = limpiar({regla("pip", "~/.cache/pip", "contents")});

    EXPECT_EQ(resultado.movidos, 2);
    EXPECT_TRUE(hay(casa.en(".cache/pip")));
    EXPECT_TRUE(std::filesystem::is_empty(casa.en(".cache/pip")));
    EXPECT_THAT(rutas(cleaner().historial()),
                UnorderedElementsAre(casa.en(".cache/pip/uno"), casa.en(".cache/pip/.oculto")));
}

TEST_F(CleanerReglas, aRuleWhoseModeIsNotSelfOnAFileMovesThatFile)
{
    const auto archivo = casa.archivo(casa.en(".cache/registro.log"));
    EXPECT_EQ(limpiar({regla("log", "~/.cache/registro.log", "contents")}).movidos, 1);
    EXPECT_FALSE(hay(archivo));
}

TEST_F(CleanerReglas, aProtectedEntryOfARuleStaysSilentlyAndTheOthersMove)
{
    casa.carpeta(casa.en("trabajo/.git"));
    casa.archivo(casa.en("trabajo/a"));
    casa.archivo(casa.en("trabajo/b"));
    const auto resultado = limpiar({regla("trabajo", "~/trabajo", "contents")});

    EXPECT_EQ(resultado.movidos, 2);
    EXPECT_THAT(resultado.errores, IsEmpty());
    EXPECT_TRUE(hay(casa.en("trabajo/.git")));
}

TEST_F(CleanerReglas, aManualRuleGivesOneLineAndMovesNothing)
{
    const auto archivo = casa.archivo(casa.en("modelos/llm"));
    const auto resultado = limpiar({regla("llm", "~/modelos", "self", "manual")});

    EXPECT_EQ(resultado,
              (ResultadoLimpieza{0, 0, {"Regla llm: Marcada como manual: no se borra desde aquí."}}));
    EXPECT_TRUE(hay(archivo));
}

TEST_F(CleanerReglas, aRefusedRuleGivesItsNameAndTheRefusal)
{
    casa.carpeta(casa.en("Documents"));
    EXPECT_THAT(limpiar({regla("docs", "~/Documents")}).errores,
                ElementsAre("Regla docs: Ruta protegida, rechazada: " + casa.en("Documents")));
    EXPECT_TRUE(hay(casa.en("Documents")));
}

TEST_F(CleanerReglas, aRuleWhosePathIsAbsentIsNoError)
{
    EXPECT_EQ(limpiar({regla("nada", "~/.cache/nada")}), ResultadoLimpieza{});
}

TEST_F(CleanerReglas, aPathThatIsRefusedAtTheLastMomentGivesALineAndTheOthersGoOn)
{
    casa.archivo(casa.en("caja/1"));
    casa.archivo(casa.en("caja/2"));
    std::string primera;
    plataforma.m_papelera.alReciclar = [&](const std::string &ruta) {
        if (primera.empty()) {
            primera = ruta;
            const auto otra = casa.en(ruta.ends_with("1") ? "caja/2" : "caja/1");
            plataforma.preferencias().fijar(Seguridad::claveProtecciones, std::vector{otra});
        }
        return std::string{};
    };
    casa.archivo(casa.en("final"));
    const auto resultado = limpiar({regla("caja", "~/caja", "contents"), regla("final", "~/final")});

    const auto otra = casa.en(primera.ends_with("1") ? "caja/2" : "caja/1");
    EXPECT_THAT(resultado.errores, ElementsAre("Regla caja: ruta rechazada " + otra));
    EXPECT_EQ(resultado.movidos, 2);
    EXPECT_TRUE(hay(otra));
    EXPECT_FALSE(hay(casa.en("final")));
}

TEST_F(CleanerReglas, aFailedMoveGivesTheRulesNameAndTheDescriptionAndTheBatchGoesOn)
{
    casa.archivo(casa.en("uno"));
    casa.archivo(casa.en("dos"));
    plataforma.m_papelera.alReciclar = [](const std::string &ruta) {
        return ruta.ends_with("uno") ? std::string{"no tienes permiso"} : std::string{};
    };
    const auto resultado = limpiar({regla("1", "~/uno"), regla("2", "~/dos")});

    EXPECT_EQ(resultado, (ResultadoLimpieza{1, 4096, {"Regla 1: no tienes permiso"}}));
    EXPECT_TRUE(hay(casa.en("uno")));
    EXPECT_THAT(rutas(cleaner().historial()), ElementsAre(casa.en("dos")));
}

TEST_F(CleanerReglas, theErrorsOfSeveralRulesComeInTheOrderOfProcessing)
{
    const auto resultado =
        limpiar({regla("a", "/etc"), regla("b", "~/x", "self", "manual"), regla("c", " ")});
    EXPECT_THAT(resultado.errores,
                ElementsAre("Regla a: Fuera de tu carpeta de inicio, rechazado: /etc",
                            "Regla b: Marcada como manual: no se borra desde aquí.", "Regla c: Ruta vacía."));
}

TEST_F(CleanerReglas, theProgressNamesEachRuleAndEndsEmpty)
{
    casa.archivo(casa.en("uno"));
    std::vector<std::string> vistos;
    std::vector<bool> trabajando;
    QObject::connect(&cleaner(), &Cleaner::progresoChanged, &cleaner(),
                     [&] { vistos.push_back(cleaner().progreso().toStdString()); });
    QObject::connect(&cleaner(), &Cleaner::trabajandoChanged, &cleaner(),
                     [&] { trabajando.push_back(cleaner().trabajando()); });
    limpiar({regla("a", "~/uno"), regla("b", "~/nada")});

    EXPECT_THAT(vistos, ElementsAre("Procesando Regla a…", "Procesando Regla b…", ""));
    EXPECT_THAT(trabajando, ElementsAre(true, false));
}

TEST_F(CleanerReglas, theBatchIsPublishedOnceInTheOrderOfProcessing)
{
    for (const char *nombre : {"a", "b", "c"})
        casa.archivo(casa.en(nombre));
    QSignalSpy publicado(&cleaner(), &Cleaner::historialChanged);
    limpiar({regla("1", "~/b"), regla("2", "~/a"), regla("3", "~/c")});

    EXPECT_EQ(publicado.count(), 1);
    EXPECT_THAT(rutas(cleaner().historial()), ElementsAre(casa.en("b"), casa.en("a"), casa.en("c")));
    EXPECT_EQ(guardado(), cleaner().historial());
}

TEST_F(CleanerReglas, aLinkIsMovedItselfAndItsTargetStays)
{
    casa.archivo(casa.en("destino/dato"));
    casa.enlace(casa.en("enlace"), casa.en("destino"));
    EXPECT_EQ(limpiar({regla("e", "~/enlace")}).movidos, 1);
    EXPECT_FALSE(hay(casa.en("enlace")));
    EXPECT_TRUE(hay(casa.en("destino/dato")));
}

TEST_F(CleanerReglas, aRuleThatPointsOutOfHomeThroughALinkIsRefused)
{
    casa.archivo(casa.fuera("dato"));
    casa.enlace(casa.en("enlace"), casa.fuera());
    EXPECT_THAT(limpiar({regla("e", "~/enlace", "contents")}).errores,
                ElementsAre("Regla e: El enlace apunta fuera de tu carpeta: " + casa.fuera()));
    EXPECT_TRUE(hay(casa.fuera("dato")));
}
