#include "core/ErrorSistema.h"
#include "tests/core/SeguridadBanco.h"

using namespace ovanta;
using namespace ovanta::pruebas;
using namespace std::string_literals;

namespace {

const std::string SOLO_DENTRO = "rechaza Solo se permite operar dentro de la carpeta que elegiste.";
const std::string NI_ENLACES = "rechaza No se opera sobre enlaces ni rutas protegidas.";
const std::string SISTEMA =
    "rechaza Esta selección incluye una carpeta del sistema o de aplicaciones protegida.";
const std::string PROTEGIDA = "rechaza La selección contiene una ubicación que protegiste.";
const std::string APUNTA_FUERA = "rechaza El elemento apunta fuera de la carpeta elegida.";

class SeguridadSeleccion : public BancoSeguridad
{
protected:
    std::string validar(const std::string &ruta, const std::string &raiz) const
    {
        return respuesta([&] { return seguridad.validarDentroDeSeleccion(ruta, raiz); });
    }
};

class SeguridadRaiz : public BancoSeguridad
{
protected:
    std::string validar(const std::string &ruta) const
    {
        return respuesta([&] { return seguridad.validarRaizElegida(ruta); });
    }
};

const std::string ELIGE_CARPETA =
    "rechaza Elige una carpeta concreta, no la raíz del disco ni tu carpeta de inicio.";
const std::string NO_SE_ANALIZA = "rechaza No se analiza una carpeta del sistema protegida.";
const std::string CONTIENE = "rechaza Esta carpeta contiene ubicaciones protegidas.";

} // namespace

TEST_F(SeguridadSeleccion, theFirstRuleBrokenGivesTheMessage)
{
    HogarTemporal::archivo(casa.fuera("f"));
    HogarTemporal::enlace(casa.en("Library/.git"), casa.fuera());
    HogarTemporal::enlace(casa.en("Library/enlace"), casa.fuera("f"));
    HogarTemporal::enlace(casa.en("Library/carpeta"), casa.fuera());
    HogarTemporal::enlace(casa.en("sel/carpeta"), casa.fuera());
    HogarTemporal::enlace(casa.en("raiz"), casa.fuera());
    const auto library = casa.en("Library"), sel = casa.en("sel"), raiz = casa.en("raiz");

    fijarLista({library, sel});
    EXPECT_EQ(validar(library + "/.git", "/"), SOLO_DENTRO);
    EXPECT_EQ(validar(library + "/.git", casa.ruta()), SOLO_DENTRO);
    EXPECT_EQ(validar(library + "/.git", library + "/.git"), SOLO_DENTRO);
    EXPECT_EQ(validar(library + "/.git", sel), SOLO_DENTRO);
    EXPECT_EQ(validar(library + "/.git", library), NI_ENLACES);
    EXPECT_EQ(validar(library + "/.ssh/nada", library), NI_ENLACES) << "the names come before the disk";
    EXPECT_EQ(validar(library + "/nada", library), NO_EXISTE);
    EXPECT_EQ(validar(library + "/enlace", library), NI_ENLACES);
    EXPECT_EQ(validar(library + "/carpeta/f", library), SISTEMA);
    EXPECT_EQ(validar(sel + "/carpeta/f", sel), PROTEGIDA);
    fijarLista({});
    EXPECT_EQ(validar(sel + "/carpeta/f", sel), APUNTA_FUERA);
    EXPECT_EQ(validar(raiz + "/f", raiz), "rechaza El enlace apunta fuera de tu carpeta: " + casa.fuera("f"));
}

TEST_F(SeguridadSeleccion, anItemInTheChosenFolderIsReturnedStandardised)
{
    const auto foto = HogarTemporal::archivo(casa.en("Pictures/viaje/a.jpg"));
    EXPECT_EQ(validar(casa.en("Pictures//viaje/./x/../a.jpg/"), casa.en("Pictures/")), "acepta " + foto);
}

TEST_F(SeguridadSeleccion, theChosenFolderItselfIsRefused)
{
    const auto carpeta = HogarTemporal::carpeta(casa.en("sel"));
    EXPECT_EQ(validar(carpeta, carpeta), SOLO_DENTRO);
    EXPECT_EQ(validar(carpeta + "/x/..", carpeta + "/"), SOLO_DENTRO);
}

TEST_F(SeguridadSeleccion, aFolderWhosePathBeginsLikeTheChosenOneIsOutside)
{
    HogarTemporal::carpeta(casa.en("sel"));
    EXPECT_EQ(validar(HogarTemporal::archivo(casa.en("selecta/a")), casa.en("sel")), SOLO_DENTRO);
}

TEST_F(SeguridadSeleccion, neitherTildesNorBlanksAreTouched)
{
    HogarTemporal::archivo(casa.en("sel/a"));
    EXPECT_EQ(validar("~/sel/a", "~/sel"), NO_EXISTE);
    EXPECT_EQ(validar(" " + casa.en("sel/a"), casa.en("sel")), SOLO_DENTRO);
    EXPECT_EQ(validar(casa.en("sel/a "), casa.en("sel")), NO_EXISTE);
}

TEST_F(SeguridadSeleccion, relativePathsNeverReachTheDisk)
{
    const auto anterior = std::filesystem::current_path();
    HogarTemporal::archivo(casa.en("Library/a"));
    std::filesystem::current_path(casa.ruta());
    EXPECT_EQ(validar("Library/a", "Library"), NO_EXISTE);
    std::filesystem::current_path(anterior);
    EXPECT_EQ(validar("a", ""), SOLO_DENTRO);
    EXPECT_EQ(validar(HogarTemporal::archivo(casa.en("sel/a")), ""), APUNTA_FUERA);
}

TEST_F(SeguridadSeleccion, onAnotherVolumeTheHomeRuleIsSkippedAndTheOthersHold)
{
    const auto raiz = casa.fuera("disco");
    const auto item = HogarTemporal::archivo(raiz + "/a");
    EXPECT_EQ(validar(item, raiz), "acepta " + item);
    EXPECT_EQ(validar(HogarTemporal::archivo(raiz + "/.git/a"), raiz), NI_ENLACES);
    EXPECT_EQ(validar(HogarTemporal::enlace(raiz + "/enlace", item), raiz), NI_ENLACES);
    HogarTemporal::archivo(casa.fuera("otra/a"));
    HogarTemporal::enlace(raiz + "/otra", casa.fuera("otra"));
    EXPECT_EQ(validar(raiz + "/otra/a", raiz), APUNTA_FUERA);
    fijarLista({item});
    EXPECT_EQ(validar(item, raiz), PROTEGIDA);
}

TEST_F(SeguridadSeleccion, anItemThatHoldsAProtectedPlaceIsRefused)
{
    const auto padre = std::filesystem::path(casa.ruta()).parent_path().string();
    EXPECT_EQ(validar(casa.ruta(), padre), SISTEMA);
    HogarTemporal::carpeta(casa.en("sel/a/b"));
    fijarLista({casa.en("sel/a/b")});
    EXPECT_EQ(validar(casa.en("sel/a"), casa.en("sel")), PROTEGIDA);
}

TEST_F(SeguridadSeleccion, eachSensitiveFolderIsKeptOut)
{
    for (const std::string carpeta : {"Library", "Applications", "Public", ".aws", ".config", ".gitconfig"}) {
        const auto item = HogarTemporal::archivo(casa.en(carpeta + "/sel/a"));
        EXPECT_EQ(validar(item, casa.en(carpeta + "/sel")), SISTEMA) << carpeta;
    }
    for (const std::string carpeta : {".ssh", ".gnupg"})
        EXPECT_EQ(validar(HogarTemporal::archivo(casa.en(carpeta + "/sel/a")), casa.en(carpeta + "/sel")),
                  NI_ENLACES);
}

TEST_F(SeguridadSeleccion, underHomeTheHomeRuleHoldsToo)
{
    const auto compartida = HogarTemporal::carpeta(casa.en(".local/share"));
    EXPECT_EQ(validar(compartida, casa.en(".local")), "rechaza Ruta protegida, rechazada: " + compartida);
}

TEST_F(SeguridadSeleccion, theErrorOfTheDiskIsASpanishText)
{
    HogarTemporal::carpeta(casa.en("sel"));
    try {
        seguridad.validarDentroDeSeleccion(casa.en("sel/nada"), casa.en("sel"));
        FAIL() << "an item that is not there was accepted";
    } catch (const std::system_error &error) {
        EXPECT_EQ(error.what(), textoErrno(ENOENT));
        EXPECT_EQ(error.code(), std::errc::no_such_file_or_directory);
    }
}

TEST_F(SeguridadRaiz, theFirstRuleBrokenGivesTheMessage)
{
    HogarTemporal::enlace(casa.en("Library/.git"), casa.fuera());
    HogarTemporal::carpeta(casa.en("Library/x/.ssh"));
    HogarTemporal::carpeta(casa.en("sel"));
    fijarLista({casa.en("Library"), casa.en("sel")});

    EXPECT_EQ(validar(casa.en("Library/.git")), ELIGE_CARPETA);
    EXPECT_EQ(validar(casa.en("Library/.git/nada")), ELIGE_CARPETA);
    EXPECT_EQ(validar(casa.en("Library/x/.ssh")), NO_SE_ANALIZA);
    EXPECT_EQ(validar(casa.en("Library/x")), CONTIENE);
    EXPECT_EQ(validar(casa.en("sel")), CONTIENE);
    fijarLista({});
    EXPECT_EQ(validar(casa.en("Library/x")), CONTIENE);
    EXPECT_EQ(validar(casa.en("sel")), "acepta " + casa.en("sel"));
}

TEST_F(SeguridadRaiz, aRootThatIsNotAConcreteFolderIsRefused)
{
    HogarTemporal::enlace(casa.en("enlace"), casa.fuera());
    HogarTemporal::carpeta(casa.en("sel"));
    for (const auto &ruta : {"/"s, "//."s, ""s, casa.ruta(), casa.en("sel/.."), casa.en("enlace"),
                             casa.en("nada"), "~/sel"s, casa.en("sel "), "sel"s, casa.en("sel\0x"s)})
        EXPECT_EQ(validar(ruta), ELIGE_CARPETA) << ruta;
}

TEST_F(SeguridadRaiz, aFolderOutsideHomeMayBeChosen)
{
    EXPECT_EQ(validar(casa.fuera()), "acepta " + casa.fuera());
    EXPECT_EQ(validar(casa.vecino()), "acepta " + casa.vecino());
}

TEST_F(SeguridadRaiz, aFolderThatHoldsHomeIsRefused)
{
    EXPECT_EQ(validar(std::filesystem::path(casa.ruta()).parent_path()), CONTIENE);
}

TEST_F(SeguridadRaiz, aProtectedPathBelowTheRootRefusesIt)
{
    HogarTemporal::carpeta(casa.en("Proyectos/x"));
    fijarLista({casa.en("Proyectos/x")});
    EXPECT_EQ(validar(casa.en("Proyectos")), CONTIENE);
    fijarLista({casa.en("Proyectos/y")});
    EXPECT_EQ(validar(casa.en("Proyectos/x")), "acepta " + casa.en("Proyectos/x"));
}

TEST_F(SeguridadRaiz, documentsMayBeAnalysed)
{
    EXPECT_EQ(validar(HogarTemporal::carpeta(casa.en("Documents"))), "acepta " + casa.en("Documents"));
}
