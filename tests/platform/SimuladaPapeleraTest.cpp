#include "platform/simulada/ArchivosSinteticos.h"
#include "platform/simulada/PapeleraSimulada.h"
#include "platform/simulada/RelojManual.h"

#include <atomic>
#include <fstream>
#include <gmock/gmock.h>
#include <thread>

namespace ovanta {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;

class SimuladaPapelera : public testing::Test
{
protected:
    std::string hogar = [] {
        std::string plantilla = fs::canonical(fs::temp_directory_path()).native() + "/papelera.XXXXXX";
        return std::string(::mkdtemp(plantilla.data()));
    }();
    RelojManual reloj;
    RegistroMutaciones registro;
    PapeleraSimulada papelera{hogar, reloj, registro};

    void SetUp() override { reloj.fijar(*leerISO8601("2026-11-21T10:20:30Z")); }
    ~SimuladaPapelera() override { fs::remove_all(hogar); }

    std::string crear(const std::string &nombre, const std::string &texto = "contenido")
    {
        escribirTexto(hogar + "/" + nombre, texto);
        return hogar + "/" + nombre;
    }

    std::string leer(const std::string &ruta)
    {
        std::ifstream archivo(ruta);
        return {std::istreambuf_iterator<char>(archivo), {}};
    }

    std::string errorAlReciclar(const Papelera::Medida &medida)
    {
        const auto resultado = papelera.reciclar(medida);
        return resultado ? "" : resultado.error();
    }
};

TEST_F(SimuladaPapelera, MueveElElementoConSuContenidoYLoAnota)
{
    const std::string ruta = crear("Downloads/notas.txt", "hola");
    ASSERT_TRUE(papelera.reciclar(papelera.medir(ruta).value()));
    EXPECT_FALSE(fs::exists(ruta));
    EXPECT_EQ(leer(hogar + "/.Trash/notas.txt"), "hola");
    EXPECT_THAT(registro.objetos(Mutacion::Clase::movimiento), ElementsAre(ruta));
}

TEST_F(SimuladaPapelera, UnNombreOcupadoLlevaLaHoraAntesDeLaExtensionYNoSobrescribe)
{
    for (const char *texto : {"uno", "dos", "tres"})
        ASSERT_TRUE(papelera.reciclar(papelera.medir(crear("a.txt", texto)).value()));
    EXPECT_EQ(leer(hogar + "/.Trash/a.txt"), "uno");
    EXPECT_EQ(leer(hogar + "/.Trash/a 10.20.30.txt"), "dos");
    EXPECT_EQ(leer(hogar + "/.Trash/a 10.20.30 2.txt"), "tres");
}

TEST_F(SimuladaPapelera, MueveElEnlaceYNoSuDestino)
{
    const std::string destino = crear("Documents/real.txt");
    fs::create_symlink(destino, hogar + "/enlace");
    ASSERT_TRUE(papelera.reciclar(papelera.medir(hogar + "/enlace").value()));
    EXPECT_TRUE(fs::exists(destino));
    EXPECT_TRUE(fs::is_symlink(hogar + "/.Trash/enlace"));
}

TEST_F(SimuladaPapelera, RechazaElElementoQueYaNoEsElQueSeMidio)
{
    const auto medida = papelera.medir(crear("a.txt", "medido")).value();
    fs::rename(hogar + "/a.txt", hogar + "/otro.txt");
    crear("a.txt", "nuevo");
    EXPECT_EQ(errorAlReciclar(medida), "el elemento cambió desde que se midió");
    EXPECT_EQ(leer(hogar + "/a.txt"), "nuevo");
    EXPECT_THAT(registro.todas(), testing::IsEmpty());
}

TEST_F(SimuladaPapelera, RechazaLaCarpetaQueAhoraEsUnEnlace)
{
    const auto medida = papelera.medir(crear("Caches/a.txt")).value();
    fs::rename(hogar + "/Caches", hogar + "/Otras");
    fs::create_symlink(hogar + "/Otras", hogar + "/Caches");
    EXPECT_EQ(errorAlReciclar(medida), "el elemento cambió desde que se midió");
    EXPECT_TRUE(fs::exists(hogar + "/Otras/a.txt"));
}

TEST_F(SimuladaPapelera, NoTocaNadaDeFueraDelMacSimulado)
{
    const std::string fuera = hogar + "-fuera.txt";
    escribirTexto(fuera, "ajeno");
    EXPECT_EQ(errorAlReciclar(papelera.medir(fuera).value()), "está fuera del Mac simulado");
    EXPECT_EQ(leer(fuera), "ajeno");
    fs::remove(fuera);
}

TEST_F(SimuladaPapelera, NoSeMueveASiMisma)
{
    ASSERT_TRUE(papelera.reciclar(papelera.medir(crear("a.txt")).value()));
    EXPECT_EQ(errorAlReciclar(papelera.medir(hogar + "/.Trash").value()), "ya está en la Papelera");
    EXPECT_EQ(errorAlReciclar(papelera.medir(hogar + "/.Trash/a.txt").value()), "ya está en la Papelera");
}

TEST_F(SimuladaPapelera, MedirLoQueNoExisteDaUnTexto)
{
    EXPECT_FALSE(papelera.medir(hogar + "/nada").error().empty());
    EXPECT_FALSE(papelera.medir(hogar + "/sin/carpeta").error().empty());
}

TEST_F(SimuladaPapelera, ContieneMiraLaFechaPorSegundosEnterosYQueSigaAlli)
{
    const std::string ruta = crear("a.txt");
    EXPECT_FALSE(papelera.contiene(ruta, reloj.ahora()));
    ASSERT_TRUE(papelera.reciclar(papelera.medir(ruta).value()));
    EXPECT_TRUE(papelera.contiene(ruta, reloj.ahora() + std::chrono::milliseconds(999)));
    EXPECT_FALSE(papelera.contiene(ruta, reloj.ahora() + std::chrono::seconds(1)));
    fs::remove(hogar + "/.Trash/a.txt");
    EXPECT_FALSE(papelera.contiene(ruta, reloj.ahora()));
}

TEST_F(SimuladaPapelera, MuchosALaVezConElMismoNombreLleganTodos)
{
    constexpr int cuantos = 8;
    std::vector<Papelera::Medida> medidas;
    for (int i = 0; i < cuantos; ++i)
        medidas.push_back(papelera.medir(crear("c" + std::to_string(i) + "/igual.txt")).value());
    std::atomic<int> movidos = 0;
    {
        std::vector<std::jthread> hilos;
        for (const auto &medida : medidas)
            hilos.emplace_back([&] { movidos += papelera.reciclar(medida).has_value(); });
    }
    EXPECT_EQ(movidos, cuantos);
    const auto dentro = std::distance(fs::directory_iterator(hogar + "/.Trash"), {});
    EXPECT_EQ(dentro, cuantos);
}

} // namespace
} // namespace ovanta
