#include "core/RegistroPrevio.h"
#include "core/LeerArchivo.h"
#include "core/Recuperacion.h"
#include "tests/DiscoLleno.h"
#include "tests/HogarTemporal.h"

#include <gmock/gmock.h>
#include <sys/stat.h>

using namespace ovanta;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

Movimiento movimiento(int numero)
{
    std::string cifras = std::to_string(numero);
    cifras.insert(0, 12 - cifras.size(), '0');
    return {"00000000-0000-4000-8000-" + cifras, "/casa/" + std::to_string(numero), 1024,
            Fecha{std::chrono::seconds{1'700'000'000 + numero}}, "pesados"};
}

struct RegistroPrevioEn : testing::Test
{
    pruebas::HogarTemporal casa;
    std::string carpeta = casa.ruta();
    RegistroPrevio registro{carpeta};

    std::string texto() const { return leerArchivo(registro.archivo(), 10'000'000, EnlaceFinal::rechazar); }
    std::vector<MovimientoPrevio> leer() const { return interpretarRegistro(texto()); }
    std::vector<Movimiento> recuperados(const EnPapelera &enPapelera) const
    {
        return recuperar(carpeta, enPapelera).movimientos;
    }
    static Identidad identidadDe(const std::string &ruta)
    {
        struct stat estado = {};
        EXPECT_EQ(::lstat(ruta.c_str(), &estado), 0);
        return {estado.st_dev, estado.st_ino, estado.st_mode & S_IFMT};
    }
    static bool siempre(const std::string &, Fecha) { return true; }
    static bool nunca(const std::string &, Fecha) { return false; }
};

} // namespace

TEST_F(RegistroPrevioEn, nothingIsWrittenBeforeTheFirstIntent)
{
    EXPECT_THAT(registrosPrevios(carpeta), IsEmpty());
    registro.fallo();
    registro.hecho(movimiento(1));
    EXPECT_THAT(registrosPrevios(carpeta), IsEmpty());
    registro.intento(movimiento(1), {});
    EXPECT_THAT(registrosPrevios(carpeta), ElementsAre(registro.archivo()));
}

TEST_F(RegistroPrevioEn, theFileIsTheUsersAlone)
{
    registro.intento(movimiento(1), {});
    EXPECT_EQ(std::filesystem::status(registro.archivo()).permissions(),
              std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
}

TEST_F(RegistroPrevioEn, intentsAndWhatWasDoneComeBackInOrder)
{
    auto rota = movimiento(2);
    rota.ruta = "/casa/dos\nlíneas\xFF";
    registro.intento(movimiento(1), {1, 2, 3});
    auto terminado = movimiento(1);
    terminado.fecha += std::chrono::seconds{30};
    registro.hecho(terminado);
    registro.intento(rota, {4, UINT64_MAX, 6});
    EXPECT_THAT(leer(), ElementsAre(MovimientoPrevio{terminado, {1, 2, 3}, true},
                                    MovimientoPrevio{rota, {4, UINT64_MAX, 6}, false}));
}

TEST_F(RegistroPrevioEn, aFailedMoveLeavesNoTrace)
{
    registro.intento(movimiento(1), {});
    registro.hecho(movimiento(1));
    const auto antes = texto();
    registro.intento(movimiento(2), {});
    registro.fallo();
    EXPECT_EQ(texto(), antes);
    registro.intento(movimiento(3), {});
    EXPECT_THAT(leer(), SizeIs(2));
}

TEST_F(RegistroPrevioEn, onlyTheMovesThatTheHistoryWouldTakeAreKept)
{
    for (int i = 0; i < 600; ++i) {
        registro.intento(movimiento(i), {});
        registro.hecho(movimiento(i));
    }
    ASSERT_THAT(leer(), SizeIs(500));
    EXPECT_EQ(leer()[499].movimiento, movimiento(499));
}

TEST_F(RegistroPrevioEn, everyTruncationGivesTheWholeLinesBefore)
{
    registro.intento(movimiento(1), {});
    registro.hecho(movimiento(1));
    const auto mitad = texto().size();
    registro.intento(movimiento(2), {});
    const auto todo = texto();
    for (std::size_t largo = 0; largo < todo.size(); ++largo) {
        const auto previos = interpretarRegistro(std::string_view(todo).substr(0, largo));
        EXPECT_LE(previos.size(), largo + 1 < todo.size() ? 1u : 2u);
        if (largo >= mitad) {
            EXPECT_TRUE(previos.at(0).hecho);
        }
    }
}

TEST_F(RegistroPrevioEn, linesOfNonsenseAreSkipped)
{
    registro.intento(movimiento(1), {});
    const auto buena = texto();
    const std::string basura =
        "\n\n{}\n[]\nnull\n\xFF\n{\"intento\":7}\n{\"hecho\":\"x\"}\n{\"hecho\":1,\"fecha\":2}\n"
        "{\"hecho\":\"00000000-0000-4000-8000-000000000001\",\"fecha\":\"ayer\"}\n" +
        std::string(100'000, '[') + "\n";
    auto sinIdentidad = buena;
    sinIdentidad.replace(sinIdentidad.find("[0,0,0]"), 7, "[0,-1,0]");
    EXPECT_THAT(interpretarRegistro(basura + sinIdentidad + buena + basura + buena), SizeIs(1));
    EXPECT_THAT(interpretarRegistro(basura), IsEmpty());
}

TEST_F(RegistroPrevioEn, aRecordThatCannotBeMadeIsIgnored)
{
    RegistroPrevio sinCarpeta{casa.en("no/hay")};
    sinCarpeta.intento(movimiento(1), {});
    sinCarpeta.hecho(movimiento(1));
    sinCarpeta.intento(movimiento(2), {});
    sinCarpeta.fallo();
    EXPECT_FALSE(std::filesystem::exists(sinCarpeta.archivo()));
}

TEST_F(RegistroPrevioEn, aFullDiskLeavesNoHalfLineThatWouldSwallowTheNext)
{
    registro.intento(movimiento(1), {});
    registro.hecho(movimiento(1));
    const auto antes = texto();
    {
        const pruebas::DiscoLleno lleno{antes.size() + 20};
        registro.intento(movimiento(2), {});
        EXPECT_EQ(texto(), antes);
    }
    registro.intento(movimiento(3), {});
    registro.hecho(movimiento(3));
    EXPECT_THAT(recuperados(nunca), ElementsAre(movimiento(1), movimiento(3)));
}

TEST_F(RegistroPrevioEn, nothingThatLiesInItsPlaceIsWrittenThrough)
{
    const auto destino = casa.archivo(casa.en("destino"));
    casa.enlace(registro.archivo(), destino);
    registro.intento(movimiento(1), {});
    EXPECT_EQ(std::filesystem::file_size(destino), 9u);
}

TEST_F(RegistroPrevioEn, whatWasDoneIsRecoveredWithoutAskingTheTrash)
{
    registro.intento(movimiento(1), {});
    registro.hecho(movimiento(1));
    EXPECT_THAT(recuperados(nunca), ElementsAre(movimiento(1)));
}

TEST_F(RegistroPrevioEn, anIntentCountsWhereTheTrashHoldsTheItemAndItsPlaceDoesNot)
{
    auto dudoso = movimiento(1);
    dudoso.ruta = casa.en("a");
    registro.intento(dudoso, {});
    std::vector<std::pair<std::string, Fecha>> preguntas;
    const auto preguntar = [&](const std::string &ruta, Fecha desde) {
        preguntas.emplace_back(ruta, desde);
        return true;
    };
    EXPECT_THAT(recuperados(preguntar), ElementsAre(dudoso));
    EXPECT_THAT(preguntas, ElementsAre(std::pair{dudoso.ruta, dudoso.fecha}));
    EXPECT_THAT(recuperados(nunca), IsEmpty());
}

TEST_F(RegistroPrevioEn, anIntentWhoseItemIsStillThereDoesNotCount)
{
    auto dudoso = movimiento(1);
    dudoso.ruta = casa.archivo(casa.en("a"));
    registro.intento(dudoso, identidadDe(dudoso.ruta));
    EXPECT_THAT(recuperados(siempre), IsEmpty());
}

TEST_F(RegistroPrevioEn, anIntentCountsAlsoWhereSomethingNewLiesInItsPlace)
{
    auto dudoso = movimiento(1);
    dudoso.ruta = casa.archivo(casa.en("a"));
    registro.intento(dudoso, identidadDe(dudoso.ruta));
    std::filesystem::rename(dudoso.ruta, casa.en("en-la-papelera"));
    casa.archivo(dudoso.ruta);
    EXPECT_THAT(recuperados(siempre), ElementsAre(dudoso));
}

TEST_F(RegistroPrevioEn, theNewestBatchComesFirstAndEachKeepsItsOrder)
{
    RegistroPrevio reciente{carpeta};
    for (int i : {5, 6}) {
        reciente.intento(movimiento(i), {});
        reciente.hecho(movimiento(i));
    }
    for (int i : {1, 2}) {
        registro.intento(movimiento(i), {});
        registro.hecho(movimiento(i));
    }
    EXPECT_THAT(recuperados(nunca), ElementsAre(movimiento(5), movimiento(6), movimiento(1), movimiento(2)));
    EXPECT_THAT(recuperar(carpeta, nunca).registros, SizeIs(2));
}

TEST_F(RegistroPrevioEn, whateverElseLiesThereUnderTheNameOfARecordGivesNothing)
{
    const auto nombre = [this](const char *fin) { return carpeta + "/historial.pendiente-" + fin; };
    casa.carpeta(nombre("carpeta"));
    ASSERT_EQ(::mkfifo(nombre("tubo").c_str(), 0600), 0);
    casa.archivo(nombre("grande"));
    std::filesystem::resize_file(nombre("grande"), 100'000'000);
    registro.intento(movimiento(1), {});
    registro.hecho(movimiento(1));
    casa.enlace(nombre("enlace"), registro.archivo());
    EXPECT_THAT(recuperados(siempre), ElementsAre(movimiento(1)));
}

TEST_F(RegistroPrevioEn, aRecordFullOfDoubtsAsksOnlySoMany)
{
    std::string hostil;
    registro.intento(movimiento(1), {});
    const auto linea = texto();
    for (int i = 0; i < 2000; ++i) {
        auto otra = linea;
        otra.replace(otra.find(movimiento(1).id), movimiento(1).id.size(), movimiento(i).id);
        hostil += otra;
    }
    std::ofstream(registro.archivo()) << hostil;
    int preguntas = 0;
    recuperados([&](const std::string &, Fecha) { return ++preguntas < 0; });
    EXPECT_EQ(preguntas, 500);
}

TEST_F(RegistroPrevioEn, aPathThatCanNameNoFileIsNotRecovered)
{
    for (const std::string &ruta : {std::string("relativa"), std::string("/a\0b", 4), std::string()}) {
        auto raro = movimiento(static_cast<int>(ruta.size()));
        raro.ruta = ruta;
        registro.intento(raro, {});
        registro.hecho(raro);
    }
    EXPECT_THAT(recuperados(siempre), IsEmpty());
}
