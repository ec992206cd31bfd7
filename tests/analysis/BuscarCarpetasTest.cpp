#include "analysis/BuscarCarpetas.h"

#include "platform/linux/HerramientasLinux.h"
#include "tests/PlataformaDePrueba.h"
#include "tests/analysis/ArbolDeArchivos.h"

#include <gmock/gmock.h>

namespace ovanta::pruebas {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

std::vector<std::string> rutas(const std::vector<CarpetaPesada> &carpetas)
{
    std::vector<std::string> rutas;
    for (const CarpetaPesada &carpeta : carpetas)
        rutas.push_back(carpeta.ruta);
    return rutas;
}

Lugares lugares(const std::string &hogar)
{
    Lugares lugares;
    lugares.hogar = hogar;
    return lugares;
}

TEST(BuscarCarpetas, findsTheSixKindsWithTheRealTools)
{
    const ArbolDeArchivos arbol;
    for (const char *tipo : {"node_modules", ".venv", "venv", "target", ".next", "build"})
        arbol.escribir(std::string("p/") + tipo + "/x", std::string(50'000, 'x'));
    arbol.escribir("p/node_modules/a/node_modules/x", "dentro");
    arbol.escribir("p/node_modules_viejo/x", "otro nombre");
    HerramientasLinux herramientas{arbol.raiz()};
    const auto carpetas = buscarCarpetas(herramientas, lugares(arbol.raiz()), nullptr);
    EXPECT_THAT(rutas(carpetas),
                UnorderedElementsAre(arbol.en("p/node_modules"), arbol.en("p/.venv"), arbol.en("p/venv"),
                                     arbol.en("p/target"), arbol.en("p/.next"), arbol.en("p/build")));
    EXPECT_EQ(carpetas.front().ruta, arbol.en("p/node_modules")) << "the biggest first";
    EXPECT_EQ(carpetas.front().tipo, "node_modules");
    EXPECT_GE(carpetas.back().bytes, 50'000U);
}

TEST(BuscarCarpetas, neitherUnderLibraryNorBeyondSixLevels)
{
    const ArbolDeArchivos arbol;
    arbol.escribir("Library/node_modules/x", "x");
    arbol.escribir("proyecto/Library/node_modules/x", "x");
    arbol.escribir(".Trash/node_modules/x", "x");
    arbol.escribir("1/2/3/4/5/node_modules/x", "x");
    arbol.escribir("1/2/3/4/5/6/node_modules/x", "x");
    HerramientasLinux herramientas{arbol.raiz()};
    EXPECT_THAT(rutas(buscarCarpetas(herramientas, lugares(arbol.raiz()), nullptr)),
                ElementsAre(arbol.en("1/2/3/4/5/node_modules")));
}

TEST(BuscarCarpetas, notInTheTrashWhereverItIsNorInThatOfAnotherVolume)
{
    const ArbolDeArchivos arbol;
    for (const char *tirado : {".local/share/Trash/files", "datos/Trash/files", "disco/.Trash-77/files"})
        arbol.escribir(std::string(tirado) + "/p/node_modules/x", "x");
    arbol.escribir("disco/.Trash-770/files/p/build/x", "of another user");
    arbol.escribir("datos/Trash2/build/x", "x");
    HerramientasLinux herramientas{arbol.raiz()};
    Lugares suyos = lugares(arbol.raiz());
    suyos.papeleras = {arbol.en("datos/Trash"), arbol.en(".local/share/Trash")};
    suyos.papeleraDeVolumen = ".Trash-77";
    EXPECT_THAT(
        rutas(buscarCarpetas(herramientas, suyos, nullptr)),
        UnorderedElementsAre(arbol.en("datos/Trash2/build"), arbol.en("disco/.Trash-770/files/p/build")));
}

TEST(BuscarCarpetas, theLineBreakInANameBringsUpNothingElse)
{
    const ArbolDeArchivos arbol;
    arbol.escribir("otro/importante.txt", "x");
    arbol.escribir("fuera/node_modules/x", "x");
    arbol.escribir("otro\nproyecto/build/x", "x");
    HerramientasLinux herramientas{arbol.raiz()};
    EXPECT_THAT(rutas(buscarCarpetas(herramientas, lugares(arbol.raiz()), nullptr)),
                ElementsAre(arbol.en("fuera/node_modules")));
}

TEST(BuscarCarpetas, aLineOutsideHomeOrOfAnotherNameIsNoFolderOfItsOwn)
{
    HerramientasDePrueba herramientas;
    herramientas.alEjecutar = [](const std::string &binario, const std::vector<std::string> &args) {
        std::string salida;
        if (binario == "/usr/bin/find")
            return std::string("/h/a\n/etc/build\n/h2/build\nbuild\n/h/b/build\n/h\n");
        for (std::size_t i = 1; i < args.size(); ++i)
            salida += "4\t" + args[i] + "\n";
        return salida;
    };
    EXPECT_THAT(rutas(buscarCarpetas(herramientas, lugares("/h"), nullptr)), ElementsAre("/h/b/build"));
}

TEST(BuscarCarpetas, asksFindAndDuForExactlyWhatItNeeds)
{
    HerramientasDePrueba herramientas;
    herramientas.alEjecutar = [](const std::string &binario, const auto &) {
        return binario == "/usr/bin/find" ? std::string("/h/a/build\n/h/b/build\n")
                                          : std::string("4\t/h/a/build\n8\t/h/b/build\n");
    };
    const auto carpetas = buscarCarpetas(herramientas, lugares("/h"), nullptr);
    EXPECT_THAT(rutas(carpetas), ElementsAre("/h/b/build", "/h/a/build"));
    EXPECT_EQ(carpetas[0].bytes, 8192U);
    ASSERT_EQ(herramientas.llamadas.size(), 2U);
    EXPECT_THAT(herramientas.llamadas[0],
                ElementsAre("/usr/bin/find", "/h", "-maxdepth", "6", "(", "-path", "/h/Library", "-o",
                            "-path", "/h/.Trash", ")", "-prune", "-o", "-type", "d", "(", "-name",
                            "node_modules", "-o", "-name", ".venv", "-o", "-name", "venv", "-o", "-name",
                            "target", "-o", "-name", ".next", "-o", "-name", "build", ")", "-prune",
                            "-print"));
    EXPECT_THAT(herramientas.llamadas[1], ElementsAre("/usr/bin/du", "-sk", "/h/a/build", "/h/b/build"));
    EXPECT_EQ(herramientas.ultimoLimite, 240);
    EXPECT_TRUE(herramientas.ultimoTolerarFallo);
}

TEST(BuscarCarpetas, measuresTwoHundredAtATimeAndAFailedBatchDoesNotTakeTheOthersAlong)
{
    HerramientasDePrueba herramientas;
    int tandas = 0;
    herramientas.alEjecutar = [&](const std::string &binario, const std::vector<std::string> &args) {
        std::string salida;
        if (binario == "/usr/bin/find") {
            for (int i = 1000; i < 1450; ++i)
                salida += "/h/" + std::to_string(i) + "/build\n";
            return salida;
        }
        if (++tandas == 2) throw std::runtime_error("du");
        for (std::size_t i = 1; i < args.size(); ++i)
            salida += "4\t" + args[i] + "\n";
        return salida;
    };
    EXPECT_EQ(buscarCarpetas(herramientas, lugares("/h"), nullptr).size(), 250U);
    EXPECT_EQ(tandas, 3);
    EXPECT_EQ(herramientas.llamadas[1].size(), 202U);
}

TEST(BuscarCarpetas, anIllegibleLineOfDuIsLostAlone)
{
    HerramientasDePrueba herramientas;
    herramientas.alEjecutar = [](const std::string &binario, const auto &) {
        return binario == "/usr/bin/find"
                   ? std::string("/h/a\tb/build\n\n/h/c/build\n/h/d/build\n")
                   : std::string(" 4 \t/h/a\tb/build\nx\t/h/c/build\n/h/d/build\n9\t/h/otra\n");
    };
    EXPECT_THAT(rutas(buscarCarpetas(herramientas, lugares("/h"), nullptr)), ElementsAre("/h/a\tb/build"));
}

TEST(BuscarCarpetas, withoutFindThereAreNoFolders)
{
    HerramientasDePrueba herramientas;
    herramientas.alEjecutar = [](const auto &, const auto &) -> std::string {
        throw std::runtime_error("find");
    };
    EXPECT_THAT(buscarCarpetas(herramientas, lugares("/h"), nullptr), IsEmpty());
}

TEST(BuscarCarpetas, stoppedBetweenBatchesItDropsWhatWasMeasured)
{
    BanderaCancelacion bandera;
    HerramientasDePrueba herramientas;
    herramientas.alEjecutar = [&](const std::string &binario, const auto &) {
        std::string salida;
        if (binario != "/usr/bin/find") {
            bandera.cancelar();
            return std::string("4\t/h/1000/build\n");
        }
        for (int i = 1000; i < 1300; ++i)
            salida += "/h/" + std::to_string(i) + "/build\n";
        return salida;
    };
    EXPECT_THAT(buscarCarpetas(herramientas, lugares("/h"), &bandera), IsEmpty());
    EXPECT_EQ(herramientas.llamadas.size(), 2U);
}

TEST(BuscarCarpetas, stoppedBeforehandItCallsNobody)
{
    BanderaCancelacion bandera;
    bandera.cancelar();
    HerramientasDePrueba herramientas;
    EXPECT_THAT(buscarCarpetas(herramientas, lugares("/h"), &bandera), IsEmpty());
    EXPECT_THAT(herramientas.llamadas, IsEmpty());
}

} // namespace
} // namespace ovanta::pruebas
