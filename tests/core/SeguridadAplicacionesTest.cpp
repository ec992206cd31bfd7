#include "tests/core/SeguridadBanco.h"

using namespace ovanta;
using namespace ovanta::pruebas;
using namespace std::string_literals;

namespace {

const std::string DEL_SISTEMA = "rechaza No se desinstalan aplicaciones del sistema.";
const std::string SOLO_TERCEROS =
    "rechaza Solo se admiten apps de terceros directamente dentro de /Applications o ~/Applications.";
const std::string CAMBIO = "rechaza La app cambió o no coincide con su identificador; vuelve a analizarla.";
const std::string APP_PROTEGIDA = "rechaza La aplicación está dentro de una ubicación que protegiste.";

class SeguridadAplicacion : public BancoSeguridad
{
protected:
    std::string validar(const std::string &ruta, const std::string &bundleID = "com.ejemplo.App") const
    {
        return respuesta([&] { return seguridad.validarAplicacionInstalada(ruta, bundleID); });
    }
    std::string instalar(const std::string &nombre, const std::string &bundleID = "com.ejemplo.App")
    {
        const auto ruta = HogarTemporal::carpeta(casa.en("Applications/" + nombre));
        paquetes[ruta] = bundleID;
        return ruta;
    }
};

const std::string ID_INVALIDO = "rechaza Identificador de aplicación inválido.";
const std::string SOLO_ASOCIADOS = "rechaza Solo se admiten archivos asociados directamente a esta app.";
const std::string RASTRO_ENLACE = "rechaza No se elimina un enlace simbólico asociado a una app.";
const std::string RASTRO_PROTEGIDO = "rechaza El rastro apunta a una ubicación protegida.";

class SeguridadRastro : public BancoSeguridad
{
protected:
    std::string validar(const std::string &ruta, const std::string &bundleID = "com.ejemplo.App") const
    {
        return respuesta([&] { return seguridad.validarRastroAplicacion(ruta, bundleID); });
    }
};

const std::string SOLO_AGENTES = "rechaza Solo se pueden desactivar agentes .plist de tu carpeta de usuario.";
const std::string AGENTE_PROTEGIDO = "rechaza El agente está protegido o apunta fuera de LaunchAgents.";

class SeguridadAgente : public BancoSeguridad
{
protected:
    std::string validar(const std::string &ruta) const
    {
        return respuesta([&] { return seguridad.validarAgenteInicio(ruta); });
    }
};

} // namespace

TEST_F(SeguridadAplicacion, theFirstRuleBrokenGivesTheMessage)
{
    HogarTemporal::carpeta(casa.en("Otras"));
    HogarTemporal::enlace(casa.en("Otras/A.app"), casa.fuera());
    const auto enlace = HogarTemporal::enlace(casa.en("Applications/B.app"), casa.fuera());
    const auto distinta = instalar("C.app", "com.ejemplo.Otra");
    const auto buena = instalar("D.app");
    fijarLista({casa.en("Otras"), casa.en("Applications")});

    EXPECT_EQ(validar(casa.en("Otras/A.app"), "com.apple.Mail"), DEL_SISTEMA);
    EXPECT_EQ(validar(casa.en("Otras/A.app")), SOLO_TERCEROS);
    EXPECT_EQ(validar(casa.en("Applications/nada.app")), NO_EXISTE);
    EXPECT_EQ(validar(enlace), CAMBIO);
    EXPECT_EQ(validar(distinta), CAMBIO);
    EXPECT_EQ(validar(buena), APP_PROTEGIDA);
    fijarLista({});
    EXPECT_EQ(validar(buena), "acepta " + buena);
}

TEST_F(SeguridadAplicacion, onlyThirdPartyIdentifiersAreTaken)
{
    const auto ruta = instalar("A.app");
    for (const auto &bundleID : {""s, "com.apple."s, "com.apple.Mail"s, "com.ejemplo.App\n"s, "a b"s, "a_b"s,
                                 "a/b"s, "aplicaci\u00F3n"s, "a\0"s})
        EXPECT_EQ(validar(ruta, bundleID), DEL_SISTEMA) << bundleID;
    for (const std::string bundleID : {"com.apple", "com.appleseed.App", "Com.Apple.x", "A-9.z", "-", ".."}) {
        paquetes[ruta] = bundleID;
        EXPECT_EQ(validar(ruta, bundleID), "acepta " + ruta) << bundleID;
    }
}

TEST_F(SeguridadAplicacion, onlyBundlesDirectlyInAnApplicationsFolderAreTaken)
{
    for (const auto &ruta :
         {"/Applications"s, "/Applications/A"s, "/Applications/.app"s, "/Applications/a/A.app"s,
          "/applications/A.app"s, "/Applications/A.app/x"s, "/System/Applications/A.app"s,
          "/Applications/../A.app"s, casa.en("Applications/a/A.app"), casa.en("A.app"), "A.app"s,
          " /Applications/A.app"s, "/Applications/A.apps"s, ""s})
        EXPECT_EQ(validar(ruta), SOLO_TERCEROS) << ruta;
    EXPECT_EQ(validar("/Applications/OvantaNoInstalada.app"), NO_EXISTE);
}

TEST_F(SeguridadAplicacion, theExtensionMayBeInAnyCaseAndTheTildeIsExpanded)
{
    const auto ruta = instalar("A.ApP");
    EXPECT_EQ(validar("~/Applications/./A.ApP/"), "acepta " + ruta);
}

TEST_F(SeguridadAplicacion, aFolderThatIsNoBundleHasChanged)
{
    EXPECT_EQ(validar(HogarTemporal::carpeta(casa.en("Applications/A.app"))), CAMBIO);
    const Seguridad sinPaquetes{{casa.ruta(), {}, {}}, preferencias};
    EXPECT_EQ(respuesta([&] {
                  return sinPaquetes.validarAplicacionInstalada(casa.en("Applications/A.app"),
                                                                "com.ejemplo.App");
              }),
              CAMBIO);
}

TEST_F(SeguridadAplicacion, aProtectedPathInsideABundleKeepsItInstalled)
{
    const auto ruta = instalar("A.app");
    fijarLista({ruta + "/Contents/datos"});
    EXPECT_EQ(validar(ruta), APP_PROTEGIDA);
}

TEST_F(SeguridadRastro, theFirstRuleBrokenGivesTheMessage)
{
    const auto ajeno = HogarTemporal::enlace(casa.en("Library/Caches/otra"), casa.fuera());
    const auto colgante = HogarTemporal::enlace(casa.en("Library/Logs/com.ejemplo.App"), casa.fuera("nada"));
    const auto enlace = HogarTemporal::enlace(casa.en("Library/Caches/com.ejemplo.App"), casa.fuera());
    const auto propio = HogarTemporal::carpeta(casa.en("Library/Application Support/com.ejemplo.App"));
    HogarTemporal::carpeta(casa.fuera("com.ejemplo.App"));
    HogarTemporal::enlace(casa.en("Library/Containers"), casa.fuera());
    fijarLista({casa.en("Library")});

    EXPECT_EQ(validar(ajeno, "no válido"), ID_INVALIDO);
    EXPECT_EQ(validar(ajeno), SOLO_ASOCIADOS);
    EXPECT_EQ(validar(colgante), SOLO_ASOCIADOS) << "a dangling link counts as absent";
    EXPECT_EQ(validar(enlace), RASTRO_ENLACE);
    EXPECT_EQ(validar(casa.en("Library/Containers/com.ejemplo.App")), RASTRO_PROTEGIDO);
    EXPECT_EQ(validar(propio), RASTRO_PROTEGIDO);
    fijarLista({});
    EXPECT_EQ(validar(casa.en("Library/Containers/com.ejemplo.App")), RASTRO_PROTEGIDO);
    EXPECT_EQ(validar(propio), "acepta " + propio);
}

TEST_F(SeguridadRastro, theSixPlacesOfAnApplicationAreTakenAndNoOther)
{
    const std::string id = "com.ejemplo.App";
    for (const auto &relativa :
         {"Application Support/" + id, "Caches/" + id, "Containers/" + id, "Preferences/" + id + ".plist",
          "Logs/" + id, "Saved Application State/" + id + ".savedState"}) {
        const auto ruta = HogarTemporal::carpeta(casa.en("Library/" + relativa));
        EXPECT_EQ(validar("~/Library/" + relativa + "/", id), "acepta " + ruta);
    }
    for (const auto &relativa :
         {"Library/Caches/" + id + "/x", "Library/Caches/" + id + "2", "Library/Preferences/" + id,
          "Library/Cookies/" + id, "Library/Caches/com.ejemplo.app"s, "Library/Saved Application State/" + id,
          "Caches/" + id, "Library/Caches"s})
        EXPECT_EQ(validar(HogarTemporal::carpeta(casa.en(relativa)), id), SOLO_ASOCIADOS) << relativa;
}

TEST_F(SeguridadRastro, identifiersOfTheSystemOrWithForeignBytesAreInvalid)
{
    for (const auto &id : {"com.apple.Mail"s, ""s, "a/../b"s, "a\n"s, "a*"s})
        EXPECT_EQ(validar(casa.en("Library/Caches/" + id), id), ID_INVALIDO) << id;
}

TEST_F(SeguridadRastro, anIdentifierOfPointsNeverNamesAFolderAbove)
{
    HogarTemporal::carpeta(casa.en("Library/Caches"));
    for (const std::string id : {".", ".."})
        EXPECT_EQ(validar(casa.en("Library/Caches/" + id), id), SOLO_ASOCIADOS);
}

TEST_F(SeguridadAgente, theFirstRuleBrokenGivesTheMessage)
{
    const auto agentes = casa.en("Library/LaunchAgents");
    const auto propio = HogarTemporal::archivo(agentes + "/a.plist");
    HogarTemporal::archivo(casa.fuera("a.plist"));
    HogarTemporal::enlace(agentes + "/fuera", casa.fuera());
    const auto enlace = HogarTemporal::enlace(agentes + "/enlace.plist", casa.fuera("a.plist"));
    fijarLista({agentes});

    EXPECT_EQ(validar(casa.en("Library/a.plist")), SOLO_AGENTES);
    EXPECT_EQ(validar(agentes + "/nada.plist"), SOLO_AGENTES) << "the error of the disk is replaced";
    EXPECT_EQ(validar(enlace), SOLO_AGENTES);
    EXPECT_EQ(validar(agentes + "/fuera/a.plist"), AGENTE_PROTEGIDO);
    EXPECT_EQ(validar(propio), AGENTE_PROTEGIDO);
    fijarLista({});
    EXPECT_EQ(validar(agentes + "/fuera/a.plist"), AGENTE_PROTEGIDO);
    EXPECT_EQ(validar("~/Library/LaunchAgents/./a.plist"), "acepta " + propio);
}

TEST_F(SeguridadAgente, theExtensionIsExactlyPlist)
{
    for (const std::string nombre : {"a.PLIST", "a.Plist", "a", ".plist", "a.plist.bak", "a.plist "}) {
        const auto ruta = HogarTemporal::archivo(casa.en("Library/LaunchAgents/" + nombre));
        EXPECT_EQ(validar(ruta), SOLO_AGENTES) << nombre;
    }
}

TEST_F(SeguridadAgente, onlyTheUsersOwnFolderCounts)
{
    for (const auto &ruta : {"/Library/LaunchAgents/a.plist"s, casa.en("Library/LaunchAgents.plist"),
                             casa.en("Library/LaunchAgents/../a.plist"), casa.en("Library/LaunchAgents"),
                             casa.en("Library/LaunchDaemons/a.plist"), "a.plist"s, ""s})
        EXPECT_EQ(validar(ruta), SOLO_AGENTES) << ruta;
}
