#include "tests/core/SeguridadBanco.h"

#include <atomic>
#include <thread>

using namespace ovanta;
using namespace ovanta::pruebas;
using namespace std::string_literals;

namespace {

class SeguridadProtecciones : public BancoSeguridad
{
protected:
    std::string proteger(const std::string &ruta)
    {
        return respuesta([&] { return seguridad.proteger(ruta); });
    }
    bool analisis(const std::string &relativa, const ConjuntoRutas &delUsuario = {}) const
    {
        return seguridad.esRutaProtegidaParaAnalisis(casa.en(relativa), delUsuario);
    }
};

const std::string ELIGE = "rechaza Elige un archivo o carpeta existente dentro de tu usuario.";

} // namespace

TEST_F(SeguridadProtecciones, beingInHomeAloneKeepsNothingOutOfAnalysis)
{
    EXPECT_TRUE(analisis(""));
    EXPECT_FALSE(analisis("Downloads/a.zip"));
    EXPECT_FALSE(analisis("proyecto/a"));
    EXPECT_FALSE(seguridad.esRutaProtegidaParaAnalisis("/", {}));
    EXPECT_FALSE(seguridad.esRutaProtegidaParaAnalisis(casa.vecino("a"), {}));
    EXPECT_FALSE(seguridad.esRutaProtegidaParaAnalisis(casa.fuera("Documents/a"), {}));
}

TEST_F(SeguridadProtecciones, eachProtectedPlaceAndAllItHoldsStayOutOfAnalysis)
{
    for (const auto entrada : Seguridad::entradasProtegidas) {
        EXPECT_TRUE(analisis(std::string(entrada))) << entrada;
        if (!entrada.empty()) EXPECT_TRUE(analisis(std::string(entrada) + "/a/b")) << entrada;
    }
    EXPECT_TRUE(analisis("Descargas/a"));
    EXPECT_FALSE(analisis("Documentsx/a"));
}

TEST_F(SeguridadProtecciones, theUsersPathsAndAllTheyHoldStayOutOfAnalysis)
{
    const ConjuntoRutas delUsuario{casa.en("p/x"), casa.fuera("y")};
    EXPECT_TRUE(analisis("p/x", delUsuario));
    EXPECT_TRUE(analisis("p/./x//z/", delUsuario));
    EXPECT_FALSE(analisis("p", delUsuario)) << "above a protected path is not in it";
    EXPECT_FALSE(analisis("p/xy", delUsuario));
    EXPECT_TRUE(seguridad.esRutaProtegidaParaAnalisis(casa.fuera("y/z"), delUsuario));
}

TEST_F(SeguridadProtecciones, aProtectedNameAnywhereStaysOutOfAnalysis)
{
    for (const std::string ruta : {"/.git", "/mnt/x/.ssh/a", "/a/.gnupg", "/Keychains/a", "~/p/.git/config"})
        EXPECT_TRUE(seguridad.esRutaProtegidaParaAnalisis(ruta, {})) << ruta;
    for (const std::string ruta : {"/.gitignore", "/a/.SSH", "/a/keychains", "/a/.git/.."})
        EXPECT_FALSE(seguridad.esRutaProtegidaParaAnalisis(ruta, {})) << ruta;
    EXPECT_TRUE(seguridad.esRutaProtegidaParaAnalisis("~/Documents/a", {}));
}

TEST_F(SeguridadProtecciones, theListOfTheCallerIsUsedAndNotTheStoredOne)
{
    fijarLista({casa.en("a")});
    EXPECT_FALSE(analisis("a"));
}

TEST_F(SeguridadProtecciones, aPathCrossesTheListAboveAtAndBelow)
{
    const ConjuntoRutas rutas{casa.en("p/x")};
    for (const std::string relativa : {"p", "p/x", "p/x/z", "p/./x/", ""})
        EXPECT_TRUE(seguridad.cruzaProteccionPersonalizada(casa.en(relativa), rutas)) << relativa;
    EXPECT_TRUE(seguridad.cruzaProteccionPersonalizada("~/p", rutas));
    for (const std::string relativa : {"p/xy", "p/X", "q"})
        EXPECT_FALSE(seguridad.cruzaProteccionPersonalizada(casa.en(relativa), rutas)) << relativa;
}

TEST_F(SeguridadProtecciones, theMembersOfTheListAreTakenAsTheyAreWritten)
{
    EXPECT_FALSE(seguridad.cruzaProteccionPersonalizada(casa.en("a"), {casa.en("b/../a")}));
    EXPECT_FALSE(seguridad.cruzaProteccionPersonalizada(casa.en("a/b"), {casa.en("a/")}));
}

TEST_F(SeguridadProtecciones, protectingStoresThePathSortedAndOnce)
{
    fijarLista({"/z", "/b", "/z"});
    const auto a = HogarTemporal::carpeta(casa.en("a"));
    EXPECT_EQ(proteger(" ~/x/../a/ "), "acepta " + a);
    std::vector<std::string> esperada{"/b", "/z", a};
    std::ranges::sort(esperada);
    EXPECT_EQ(lista(), esperada);
    EXPECT_EQ(seguridad.proteccionesUsuario(), ConjuntoRutas(esperada.begin(), esperada.end()));
}

TEST_F(SeguridadProtecciones, protectingTwiceIsRefusedAsListed)
{
    const auto a = HogarTemporal::carpeta(casa.en("a"));
    EXPECT_EQ(proteger(a), "acepta " + a);
    EXPECT_EQ(proteger(a), "rechaza Está en tu lista de ubicaciones protegidas: " + a);
    EXPECT_EQ(lista(), std::vector{a});
}

TEST_F(SeguridadProtecciones, onlyWhatCouldBeRemovedCanBeProtected)
{
    EXPECT_EQ(proteger("~"), "rechaza Ruta protegida, rechazada: " + casa.ruta());
    EXPECT_EQ(proteger(""), "rechaza Ruta vacía.");
    EXPECT_EQ(proteger("~/Documents"), "rechaza Ruta protegida, rechazada: " + casa.en("Documents"));
    EXPECT_EQ(proteger("~/nada"), ELIGE);
    EXPECT_EQ(proteger(HogarTemporal::enlace(casa.en("colgante"), "nada")), ELIGE);
    EXPECT_EQ(lista(), std::vector<std::string>{});
}

TEST_F(SeguridadProtecciones, protectionCanBeTakenOff)
{
    fijarLista({"/c", "/a", "/b"});
    seguridad.quitarProteccion("/b");
    EXPECT_EQ(lista(), (std::vector<std::string>{"/a", "/c"}));
}

TEST_F(SeguridadProtecciones, takingOffWhatIsNotStoredLeavesTheContent)
{
    seguridad.quitarProteccion("/nada");
    EXPECT_EQ(lista(), std::vector<std::string>{});
    fijarLista({"/c", "/a"});
    seguridad.quitarProteccion("/a/");
    EXPECT_EQ(lista(), (std::vector<std::string>{"/a", "/c"})) << "only that exact text, and sorted anew";
}

TEST_F(SeguridadProtecciones, checksOnManyThreadsSeeOldOrNewListsOnly)
{
    HogarTemporal::carpeta(casa.en("a"));
    std::atomic<int> extranas = 0;
    std::vector<std::thread> hilos;
    for (int i = 0; i < 4; ++i)
        hilos.emplace_back([&] {
            for (int vuelta = 0; vuelta < 500; ++vuelta) {
                const auto dicho = respuesta([&] { return seguridad.validar("~/a"); });
                const bool esperado =
                    dicho == "acepta " + casa.en("a") ||
                    dicho == "rechaza Está en tu lista de ubicaciones protegidas: " + casa.en("a");
                if (!esperado || !seguridad.esRutaProtegidaParaAnalisis("~/Library/x", {})) ++extranas;
            }
        });
    for (int vuelta = 0; vuelta < 500; ++vuelta) {
        seguridad.proteger("~/a");
        seguridad.quitarProteccion(casa.en("a"));
    }
    for (auto &hilo : hilos)
        hilo.join();
    EXPECT_EQ(extranas, 0);
}
