#include "core/Ejecutar.h"
#include "core/LeerArchivo.h"
#include "platform/simulada/ArchivosSinteticos.h"
#include "platform/simulada/InstantaneaArbol.h"
#include "platform/simulada/PlataformaSimulada.h"

#include <QImage>
#include <gmock/gmock.h>
#include <sys/stat.h>

namespace ovanta {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

const Fecha hoy = *leerISO8601("2026-11-21T10:00:00Z");

std::uint64_t usoEnDisco(PlataformaSimulada &mac, const std::string &ruta)
{
    return std::stoull(mac.herramientas().ejecutar("/usr/bin/du", {"-sk", ruta}, 60, true)) * 1024;
}

class SimuladaPlataforma : public testing::Test
{
protected:
    PlataformaSimulada mac{{.recursos = "", .relojDetenido = hoy, .apariencia = {}}};
    std::string hogar = mac.lugares().hogar;
};

TEST(SimuladaCasa, SeBorraConSuObjeto)
{
    std::string hogar;
    {
        const CasaSintetica casa;
        casa.amueblar({}, hoy);
        hogar = casa.hogar();
        EXPECT_TRUE(fs::exists(hogar + "/Library/Developer/Xcode/DerivedData"));
    }
    EXPECT_FALSE(fs::exists(fs::path(hogar).parent_path().parent_path()));
}

TEST(SimuladaCasa, LlenaCasiTodosLosSitiosDelCatalogoYDejaAlgunoVacioOAusente)
{
    const CasaSintetica casa;
    std::vector<std::string> rutas;
    for (int i = 0; i < 18; ++i)
        rutas.push_back("~/Library/Caches/sitio" + std::to_string(i));
    rutas.push_back("/fuera/del/hogar");
    casa.amueblar(rutas, hoy);
    std::vector<std::string> ausentes;
    std::vector<std::string> vacios;
    for (int i = 0; i < 18; ++i) {
        const std::string ruta = casa.hogar() + rutas[static_cast<std::size_t>(i)].substr(1);
        if (!fs::exists(ruta))
            ausentes.push_back(fs::path(ruta).filename());
        else if (fs::is_empty(ruta))
            vacios.push_back(fs::path(ruta).filename());
    }
    EXPECT_THAT(ausentes, ElementsAre("sitio4", "sitio13"));
    EXPECT_THAT(vacios, ElementsAre("sitio7", "sitio16"));
    EXPECT_FALSE(fs::exists("/fuera"));
}

TEST(SimuladaCasa, NoTocaLoQueYaHabiaEnUnSitioDelCatalogo)
{
    const CasaSintetica casa;
    casa.amueblar({"~/Downloads"}, hoy);
    EXPECT_FALSE(fs::exists(casa.hogar() + "/Downloads/data"));
}

TEST(SimuladaPlataformaEntera, SusTamanosSonDeVerdadYPocosConTodoElCatalogo)
{
    PlataformaSimulada mac{{.recursos = OVANTA_RECURSOS, .relojDetenido = hoy, .apariencia = {}}};
    const std::string hogar = mac.lugares().hogar;
    ASSERT_TRUE(fs::exists(mac.lugares().catalogo));
    EXPECT_GE(usoEnDisco(mac, hogar + "/Library/Developer/Xcode/DerivedData"), 20'000'000U);
    EXPECT_GE(usoEnDisco(mac, hogar), 200'000'000U);
    EXPECT_LT(usoEnDisco(mac, hogar), 300'000'000U);
}

TEST_F(SimuladaPlataforma, SusAplicacionesTienenIdentificador)
{
    auto &aplicaciones = mac.aplicaciones();
    EXPECT_EQ(aplicaciones.identificadorDePaquete(hogar + "/Applications/Lienzo.app"), "com.ejemplo.Lienzo");
    EXPECT_EQ(aplicaciones.identificadorDePaquete(hogar + "/Documents"), "");
}

TEST_F(SimuladaPlataforma, UnInfoPlistSinIdentificadorRotoODemasiadoGrandeNoDaNada)
{
    const std::vector<std::pair<std::string, std::string>> casos{
        {"otra clave", "<plist><dict><key>CFBundleName</key><string>x</string></dict></plist>"},
        {"otro tipo", "<plist><dict><key>CFBundleIdentifier</key><array/></dict></plist>"},
        {"en un diccionario interior", "<plist><dict><key>a</key><dict><key>CFBundleIdentifier</key>"
                                       "<string>x</string></dict></dict></plist>"},
        {"cortado", "<plist><dict><key>CFBundleIdentifier</key>"},
        {"vacío", ""},
        {"enorme", "<plist><dict>" + std::string(70'000, ' ') +
                       "<key>CFBundleIdentifier</key><string>x</string></dict></plist>"},
    };
    for (const auto &[nombre, texto] : casos) {
        escribirTexto(hogar + "/Applications/Rara.app/Contents/Info.plist", texto);
        EXPECT_EQ(mac.aplicaciones().identificadorDePaquete(hogar + "/Applications/Rara.app"), "") << nombre;
    }
}

TEST_F(SimuladaPlataforma, UnaAplicacionCorreMientrasEstaAbierta)
{
    EXPECT_FALSE(mac.aplicaciones().enEjecucion("com.ejemplo.Lienzo"));
    mac.aplicaciones().abrir("com.ejemplo.Lienzo");
    EXPECT_TRUE(mac.aplicaciones().enEjecucion("com.ejemplo.Lienzo"));
    mac.aplicaciones().cerrar("com.ejemplo.Lienzo");
    EXPECT_FALSE(mac.aplicaciones().enEjecucion("com.ejemplo.Lienzo"));
}

TEST_F(SimuladaPlataforma, SusFotosSeAbrenYLasDeUnaSerieSeParecenSinSerIguales)
{
    const QString viajes = QString::fromStdString(hogar + "/Pictures/Viajes/");
    const QImage una(viajes + QStringLiteral("Sierra.jpg"));
    const QImage otra(viajes + QStringLiteral("Sierra 2.jpg"));
    ASSERT_FALSE(una.isNull());
    EXPECT_EQ(una.size(), otra.size());
    EXPECT_NE(una, otra);
}

TEST_F(SimuladaPlataforma, itsDownloadsHoldCopiesLinksAndOnesThatAreOnlyNearlyCopies)
{
    const std::string descargas = hogar + "/Downloads/";
    const auto contenido = [&](const std::string &nombre) {
        return leerArchivo(descargas + nombre, 10'000'000, EnlaceFinal::rechazar);
    };
    EXPECT_EQ(contenido("Viaje a Lisboa/Tranvía 28.mov"), contenido("Tranvía 28 (copia).mov"));
    EXPECT_EQ(fs::hard_link_count(descargas + "Tranvía 28 (copia).mov"), 2U);
    EXPECT_EQ(fs::hard_link_count(descargas + "Viaje a Lisboa/Tranvía 28.mov"), 1U);
    const std::string una = contenido("Informe anual v1.pdf");
    const std::string otra = contenido("Informe anual v2.pdf");
    EXPECT_EQ(una.size(), otra.size());
    EXPECT_EQ(una.substr(0, una.size() - 3), otra.substr(0, otra.size() - 3));
    EXPECT_NE(una, otra);
}

TEST_F(SimuladaPlataforma, aFileInTheCloudIsToldApartFromOneThatIsThere)
{
    const auto enLaNube = [this](const std::string &nombre) {
        struct stat atributos = {};
        EXPECT_EQ(::stat((hogar + "/Downloads/" + nombre).c_str(), &atributos), 0) << nombre;
        return mac.accesoArchivos().estaEnLaNube(atributos);
    };
    EXPECT_TRUE(enLaNube("Película en la nube.mov"));
    EXPECT_FALSE(enLaNube("Compilador-18.1.dmg"));
}

TEST_F(SimuladaPlataforma, theSearchForDependenciesRunsForRealOnItsHome)
{
    const std::string hallado = mac.herramientas().ejecutar(
        "/usr/bin/find", {hogar, "-type", "d", "-name", "node_modules", "-prune", "-print"}, 60, true);
    EXPECT_THAT(hallado, testing::HasSubstr(hogar + "/Downloads/plantilla-web/node_modules\n"));
    EXPECT_THAT(hallado, testing::HasSubstr(hogar + "/Proyectos/tienda-web/node_modules\n"));
}

TEST_F(SimuladaPlataforma, LasHerramientasSinGuionFaltan)
{
    EXPECT_EQ(mac.herramientas().buscarBinario("docker"), std::nullopt);
    try {
        mac.herramientas().ejecutar("/usr/bin/brew", {"cleanup"}, 5, false);
        FAIL() << "brew ran";
    } catch (const ShellError &error) {
        EXPECT_EQ(error.caso(), ShellError::Caso::noEncontrado);
    }
}

TEST_F(SimuladaPlataforma, XcrunListaSusSimuladoresYCadaCarpetaTieneLaEdadDelSuyo)
{
    const auto xcrun = mac.herramientas().buscarBinario("xcrun");
    ASSERT_TRUE(xcrun);
    const std::string lista =
        mac.herramientas().ejecutar(*xcrun, {"simctl", "list", "devices", "-j"}, 5, false);
    EXPECT_NE(lista.find("com.apple.CoreSimulator.SimRuntime.iOS-18-2"), std::string::npos);
    EXPECT_NE(lista.find("\"Booted\""), std::string::npos);
    int carpetas = 0;
    int recientes = 0;
    for (const auto &carpeta : fs::directory_iterator(hogar + "/Library/Developer/CoreSimulator/Devices")) {
        const std::string udid = carpeta.path().filename();
        EXPECT_NE(lista.find(udid), std::string::npos) << udid;
        const auto creado = mac.archivos().creado(carpeta.path());
        ASSERT_TRUE(creado) << udid;
        recientes += *creado >= hoy - std::chrono::days{7};
        ++carpetas;
    }
    EXPECT_EQ(carpetas, 9) << "one has no folder";
    EXPECT_EQ(recientes, 4);
    EXPECT_THROW(mac.herramientas().ejecutar(*xcrun, {"simctl", "erase", "all"}, 5, false), ShellError);
    EXPECT_EQ(mac.archivos().creado(hogar + "/nada"), std::nullopt);
}

TEST_F(SimuladaPlataforma, UnaHerramientaConGuionContestaYQuedaAnotada)
{
    mac.herramientas().programar("brew", [](const auto &args) { return "brew dice " + args.at(0); });
    const auto ruta = mac.herramientas().buscarBinario("brew");
    ASSERT_TRUE(ruta);
    EXPECT_EQ(mac.herramientas().ejecutar(*ruta, {"cleanup", "-n"}, 5, false), "brew dice cleanup");
    EXPECT_THAT(mac.registro().todas(),
                ElementsAre(Mutacion{Mutacion::Clase::herramienta, *ruta, "cleanup -n"}));
}

TEST_F(SimuladaPlataforma, ReciclarNoTocaNadaMasQueLoPedido)
{
    const std::string derivados = "Library/Developer/Xcode/DerivedData";
    const auto antes = fotografiarArbol(hogar);
    const auto medida = mac.papelera().medir(hogar + "/" + derivados);
    ASSERT_TRUE(mac.papelera().reciclar(medida.value()));
    const auto cambios = comparar(antes, fotografiarArbol(hogar));
    EXPECT_FALSE(cambios.desaparecidas.empty());
    EXPECT_EQ(fueraDe(cambios, {derivados, ".Trash"}), CambiosArbol{});
}

TEST_F(SimuladaPlataforma, LosAjustesSeGuardanEnSuHogarYSeAnotan)
{
    mac.preferencias().fijar("notificar", false);
    EXPECT_FALSE(mac.preferencias().booleano("notificar"));
    mac.preferencias().quitar("notificar");
    EXPECT_THAT(mac.registro().objetos(Mutacion::Clase::ajuste), ElementsAre("notificar", "notificar"));
}

TEST_F(SimuladaPlataforma, ElVolumenDiceLoQueSeLeFija)
{
    std::optional<Volumen::Espacio> espacio;
    const auto guardar = [&espacio](std::optional<Volumen::Espacio> leido) { espacio = leido; };
    mac.volumen().fijarLibre(40'000'000'000);
    mac.volumen().leer(guardar);
    ASSERT_TRUE(espacio);
    EXPECT_EQ(espacio->disponibles * espacio->bloque, 40'000'000'000U / 4096 * 4096);
    EXPECT_EQ(espacio->bloques * espacio->bloque, 494'384'795'648U);
    mac.volumen().fijarLegible(false);
    mac.volumen().leer(guardar);
    EXPECT_FALSE(espacio);
}

TEST_F(SimuladaPlataforma, ElEscritorioAnotaLoQueSeMuestraYAvisaDeLosCambios)
{
    int cambios = 0;
    mac.apariencia().alCambiar([&] { ++cambios; });
    mac.apariencia().fijar({.oscuro = true});
    mac.apariencia().fijar({.oscuro = true});
    EXPECT_EQ(cambios, 1);

    bool cerrado = false;
    mac.notificaciones().enviar({"disco", "Queda poco espacio", "10 GB", Notificaciones::Sonido::normal});
    mac.dialogoCritico().mostrar("Espacio crítico", "1 GB", "Entendido", [&] { cerrado = true; });
    mac.gestorArchivos().abrirPapelera();
    mac.dialogoCritico().cerrar();
    EXPECT_TRUE(cerrado);
    EXPECT_FALSE(mac.dialogoCritico().abierto());
    using enum Mutacion::Clase;
    EXPECT_THAT(mac.registro().todas(),
                ElementsAre(Mutacion{notificacion, "disco", "Queda poco espacio\n10 GB"},
                            Mutacion{dialogo, "Espacio crítico", "1 GB"},
                            Mutacion{archivoMostrado, hogar + "/.Trash", ""}));
}

TEST_F(SimuladaPlataforma, OtraCopiaActivaLaQueYaCorre)
{
    int activada = 0;
    EXPECT_TRUE(mac.instanciaUnica().adquirir([&] { ++activada; }));
    mac.instanciaUnica().iniciarOtra();
    EXPECT_EQ(activada, 1);
}

TEST_F(SimuladaPlataforma, ElUsuarioPuedeNegarLosAvisosYElServicioFaltar)
{
    std::expected<bool, std::string> respuesta = true;
    int cambios = 0;
    mac.notificaciones().responder(false);
    mac.notificaciones().pedirPermiso([&](auto dada) { respuesta = dada; });
    mac.notificaciones().alCambiar([&] { ++cambios; });
    mac.notificaciones().fijarDisponible(false);
    EXPECT_FALSE(respuesta.value());
    EXPECT_FALSE(mac.notificaciones().disponible());
    EXPECT_EQ(cambios, 1);
}

} // namespace
} // namespace ovanta
