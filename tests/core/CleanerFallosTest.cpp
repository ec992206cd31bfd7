#include "core/Ejecutar.h"
#include "core/ErrorSistema.h"
#include "core/RegistroPrevio.h"
#include "tests/PapeleraConFallos.h"
#include "tests/core/CleanerBanco.h"

using namespace ovanta;
using pruebas::PapeleraConFallos;
using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

class CleanerFallos : public pruebas::BancoCleaner
{
protected:
    using Operacion = std::function<ResultadoLimpieza()>;

    struct Caso
    {
        std::string nombre;
        std::vector<std::string> objetos;
        Operacion operacion;
    };

    /// Every batch operation, over three fresh items each.
    std::vector<Caso> casos()
    {
        const auto archivos = [this](const std::string &carpeta) {
            std::vector<std::string> lista;
            for (const char *nombre : {"a", "b", "c"})
                lista.push_back(casa.archivo(casa.en(carpeta + "/" + nombre)));
            return lista;
        };
        const auto deRegla = archivos("regla");
        const auto deRutas = archivos("rutas");
        const auto elegidas = archivos("elegida");
        const auto app = casa.carpeta(casa.en("Applications/Lupa.app"));
        plataforma.m_aplicaciones.paquetes[app] = "org.ejemplo.Lupa";
        const auto cache = casa.carpeta(casa.en("Library/Caches/org.ejemplo.Lupa"));
        const auto registro = casa.carpeta(casa.en("Library/Logs/org.ejemplo.Lupa"));
        return {{"limpiar", deRegla, [this] { return limpiar({regla("r", "~/regla", "contents")}); }},
                {"limpiarRutas", deRutas, [this, deRutas] { return limpiarRutas(deRutas); }},
                {"seleccion", elegidas,
                 [this, elegidas] { return limpiarSeleccion(elegidas, casa.en("elegida")); }},
                {"desinstalar", {app, cache, registro}, [this, app, cache, registro] {
                     return QCoro::waitFor(
                         cleaner().desinstalarAplicacion(app, "org.ejemplo.Lupa", {cache, registro}));
                 }}};
    }

    /// Runs one operation with its n-th call of the Trash going wrong.
    void comprobar(const Caso &caso, int llamada, PapeleraConFallos::Fallo fallo)
    {
        SCOPED_TRACE(caso.nombre + ", call " + std::to_string(llamada));
        PapeleraConFallos papelera(plataforma.m_papelera, llamada, fallo);
        plataforma.m_otraPapelera = &papelera;
        const auto antes = cleaner().historial().size();
        const auto resultado = caso.operacion();

        EXPECT_EQ(resultado.movidos, 2);
        EXPECT_THAT(resultado.errores, SizeIs(1));
        EXPECT_EQ(resultado.bytes, 2u * 4096);
        EXPECT_EQ(cleaner().historial().size(), antes + 2);
        EXPECT_EQ(guardado(), cleaner().historial());
        EXPECT_THAT(registrosPrevios(carpetaDatos()), IsEmpty());
        const auto quedan = std::ranges::count_if(caso.objetos, hay);
        EXPECT_EQ(quedan, fallo == PapeleraConFallos::Fallo::desaparecido ? 0 : 1);
        cerrar();
        plataforma.m_otraPapelera = nullptr;
    }

    void duResponde(const std::string &salida)
    {
        plataforma.m_herramientas.alEjecutar = [salida](const auto &, const auto &) { return salida; };
    }
};

} // namespace

TEST_F(CleanerFallos, whicheverCallOfTheTrashFailsTheItemIsOneLineAndTheOthersMove)
{
    const auto todos = {PapeleraConFallos::Fallo::permiso, PapeleraConFallos::Fallo::lleno,
                        PapeleraConFallos::Fallo::desaparecido};
    for (const auto fallo : todos)
        for (int llamada = 1; llamada <= 6; ++llamada)
            for (const auto &caso : casos()) {
                cerrar();
                comprobar(caso, llamada, fallo);
            }
}

TEST_F(CleanerFallos, aFullDiskIsToldInTheWordsOfTheSystem)
{
    const auto a = casa.archivo(casa.en("a"));
    PapeleraConFallos papelera(plataforma.m_papelera, 2, PapeleraConFallos::Fallo::lleno);
    plataforma.m_otraPapelera = &papelera;
    EXPECT_THAT(limpiarRutas({a}).errores, ElementsAre("a: " + textoErrno(ENOSPC)));
    cerrar();
    plataforma.m_otraPapelera = nullptr;
}

TEST_F(CleanerFallos, aSizeThatDuDoesNotTellIsZeroAndTheItemStillMoves)
{
    for (const char *salida : {"", "basura", "12", "-4\t/x", "99999999999999999999\t/x",
                               "18446744073709551615\t/x", "du: error\n4\t/x"}) {
        const std::string texto = salida;
        duResponde(texto);
        const auto resultado = limpiarRutas({casa.archivo(casa.en("a"))});
        const std::uint64_t esperado = texto == "12" ? 12 * 1024 : 0;
        EXPECT_EQ(resultado, (ResultadoLimpieza{1, esperado, {}})) << texto;
        EXPECT_EQ(cleaner().historial()[0].bytes, esperado);
    }
}

TEST_F(CleanerFallos, aMissingOrHangingDuGivesZeroAndTheItemStillMoves)
{
    const std::vector<std::function<void()>> fallos{
        [] { throw ShellError::noEncontrado("/usr/bin/du"); },
        [] { throw ShellError::agotado("du", 60); },
        [] { throw ShellError::fallo(1, ""); },
        [] { throw std::system_error(EAGAIN, std::generic_category()); },
    };
    for (const auto &fallar : fallos) {
        plataforma.m_herramientas.alEjecutar = [fallar](const auto &, const auto &) {
            fallar();
            return std::string{};
        };
        EXPECT_EQ(limpiarRutas({casa.archivo(casa.en("a"))}), (ResultadoLimpieza{1, 0, {}}));
        EXPECT_FALSE(hay(casa.en("a")));
    }
}

TEST_F(CleanerFallos, sizesThatDoNotFitTogetherStopAtTheLargest)
{
    duResponde("18014398509481983\t/x");
    const auto resultado = limpiarRutas({casa.archivo(casa.en("a")), casa.archivo(casa.en("b"))});
    EXPECT_EQ(resultado.movidos, 2);
    EXPECT_EQ(resultado.bytes, std::numeric_limits<std::uint64_t>::max());
}

TEST_F(CleanerFallos, duIsAskedForTheValidatedPathWithItsLimit)
{
    const auto a = casa.archivo(casa.en("a"));
    limpiarRutas({"~/./a"});
    EXPECT_THAT(plataforma.m_herramientas.llamadas, ElementsAre(ElementsAre("/usr/bin/du", "-sk", a)));
    EXPECT_EQ(plataforma.m_herramientas.ultimoLimite, 60);
    EXPECT_TRUE(plataforma.m_herramientas.ultimoTolerarFallo);
}

TEST_F(CleanerFallos, aVanishedHomeGivesLinesAndNoCrash)
{
    const auto a = casa.archivo(casa.en("a"));
    cleaner();
    std::filesystem::remove_all(casa.ruta());
    std::filesystem::remove_all(plataforma.m_papelera.carpeta);
    EXPECT_THAT(limpiarRutas({a}).errores, ElementsAre(EndsWith("no se pudo mover")));
}
