#include "analysis/Clasificar.h"

#include <gmock/gmock.h>

namespace ovanta::pruebas {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr Fecha ahora{std::chrono::sys_days{std::chrono::year{2026} / 11 / 21}};

class Clasificacion : public testing::Test
{
protected:
    void agregar(std::string_view carpeta, std::string_view nombre, std::uint64_t bytes,
                 Fecha modificado = ahora)
    {
        const auto ns =
            std::chrono::duration_cast<std::chrono::nanoseconds>(modificado.time_since_epoch()).count();
        archivos.agregar(archivos.agregarCarpeta(carpeta), nombre, {bytes, ns, 1, archivos.size() + 1});
    }

    Clasificados clasificados(int dias = 90, std::vector<GrupoDuplicados> grupos = {}) const
    {
        return clasificar(archivos, std::move(grupos), {{"/h/Downloads"}, ahora, dias});
    }

    static std::vector<std::string> rutas(const std::vector<ArchivoHallado> &lista)
    {
        std::vector<std::string> rutas;
        for (const ArchivoHallado &archivo : lista)
            rutas.push_back(archivo.ruta);
        return rutas;
    }

    ListaArchivos archivos;
};

TEST_F(Clasificacion, theSixtyBiggestComeBiggestFirst)
{
    for (std::uint64_t i = 1; i <= 61; ++i)
        agregar("/h/Downloads", "n" + std::to_string(i), i);
    const auto grandes = clasificados().grandes;
    ASSERT_EQ(grandes.size(), 60U);
    EXPECT_EQ(grandes.front().bytes, 61U);
    EXPECT_EQ(grandes.back().bytes, 2U);
}

TEST_F(Clasificacion, theSixtyFirstIsNotAmongTheBigOnesButMayStandInTheOtherLists)
{
    for (std::uint64_t i = 2; i <= 61; ++i)
        agregar("/h/x", "n" + std::to_string(i), i);
    agregar("/h/Downloads", "captura.dmg", 1, ahora - 100 * 24h);
    const Clasificados todo = clasificados();
    EXPECT_EQ(todo.grandes.back().bytes, 2U);
    for (const auto *lista : {&todo.descargasViejas, &todo.capturas, &todo.instaladores})
        EXPECT_THAT(rutas(*lista), ElementsAre("/h/Downloads/captura.dmg"));
}

TEST_F(Clasificacion, equalSizesKeepTheOrderOfTheWalk)
{
    for (const char *nombre : {"c", "a", "b"})
        agregar("/h", nombre, 5);
    EXPECT_THAT(rutas(clasificados().grandes), ElementsAre("/h/c", "/h/a", "/h/b"));
}

TEST_F(Clasificacion, aFileOfExactlyTheLimitDateIsNotOld)
{
    agregar("/h/Downloads", "justo", 1, ahora - 90 * 24h);
    agregar("/h/Downloads", "viejo", 1, ahora - 90 * 24h - 1s);
    EXPECT_THAT(rutas(clasificados().descargasViejas), ElementsAre("/h/Downloads/viejo"));
}

TEST_F(Clasificacion, whatLiesDeepInDownloadsCountsAndAnotherFolderOfThatNameDoesNot)
{
    const Fecha vieja = ahora - 365 * 24h;
    agregar("/h/Downloads/sub/carpeta", "a", 1, vieja);
    agregar("/h/Documents/Downloads", "b", 1, vieja);
    agregar("/h/Downloads2", "c", 1, vieja);
    EXPECT_THAT(rutas(clasificados().descargasViejas), ElementsAre("/h/Downloads/sub/carpeta/a"));
}

TEST_F(Clasificacion, theGroupsAreSortedByWhatTheyWaste)
{
    const auto grupo = [](const std::string &id, std::uint64_t bytes) {
        ArchivoHallado a, b;
        a.ruta = "/a";
        b.ruta = "/b";
        return GrupoDuplicados{id, bytes, {a, b}};
    };
    std::vector<std::string> ids;
    for (const auto &g :
         clasificados(90, {grupo("uno", 1), grupo("tres", 3), grupo("otro tres", 3)}).duplicados)
        ids.push_back(g.id);
    EXPECT_THAT(ids, ElementsAre("tres", "otro tres", "uno"));
}

TEST(PareceCaptura, onlyTheNameDecides)
{
    for (const char *nombre : {"Captura 2.png", "captura-de-tesis.pdf", "SCREENSHOT_1.txt",
                               "Screen Shot 2020.png", "mi Captura de pantalla.jpg"})
        EXPECT_TRUE(pareceCaptura(nombre)) << nombre;
    for (const char *nombre : {"screen.png", "foto.png", "cap tura.png"})
        EXPECT_FALSE(pareceCaptura(nombre)) << nombre;
}

TEST(EsInstalador, theLowerCaseExtensionDecides)
{
    for (const char *nombre : {"a.dmg", "a.PKG", "a.b.mpkg", "debian.iso"})
        EXPECT_TRUE(esInstalador(nombre)) << nombre;
    for (const char *nombre : {"dmg", "a.dmg.zip", ".iso", "a.pkgs"})
        EXPECT_FALSE(esInstalador(nombre)) << nombre;
}

} // namespace
} // namespace ovanta::pruebas
