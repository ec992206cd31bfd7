#include "analysis/Recorrer.h"

#include "core/Seguridad.h"
#include "tests/analysis/AccesoConFallos.h"
#include "tests/analysis/ArbolDeArchivos.h"

#include <gmock/gmock.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/un.h>

namespace ovanta::pruebas {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Rutas = std::vector<std::string>;

TEST(Recorrer, aFileOfTheMinimumIsACandidateAndOneByteLessIsNot)
{
    const ArbolDeArchivos arbol;
    arbol.escribir("justo", std::string(100, 'x'));
    arbol.escribir("corto", std::string(99, 'x'));
    EXPECT_THAT(relativas(arbol.archivos(100), arbol.raiz()), ElementsAre("justo"));
}

TEST(Recorrer, neitherFollowsNorListsLinks)
{
    const ArbolDeArchivos arbol;
    arbol.escribir("real/archivo", "uno");
    HogarTemporal::enlace(arbol.en("a carpeta"), arbol.en("real"));
    HogarTemporal::enlace(arbol.en("a archivo"), arbol.en("real/archivo"));
    HogarTemporal::enlace(arbol.en("real/bucle"), arbol.raiz());
    EXPECT_THAT(relativas(arbol.archivos(), arbol.raiz()), ElementsAre("real/archivo"));
}

TEST(Recorrer, aRootThatIsALinkIsFollowed)
{
    const ArbolDeArchivos arbol;
    arbol.escribir("otro disco/archivo", "uno");
    HogarTemporal::enlace(arbol.en("Descargas"), arbol.en("otro disco"));
    Recorrido recorrido = arbol.recorrido();
    recorrido.raices = {arbol.en("Descargas")};
    AccesoArchivosLinux acceso;
    EXPECT_THAT(relativas(recorrer(recorrido, acceso, nullptr), arbol.raiz()),
                ElementsAre("Descargas/archivo"));
}

TEST(Recorrer, doesNotEnterPackagesByTheirLowerCaseExtension)
{
    const ArbolDeArchivos arbol;
    for (const char *carpeta : {"Foo.app", "Fotos.photoslibrary", "Bar.BUNDLE", "app", "Foo.apps"})
        arbol.escribir(std::string(carpeta) + "/dentro", "uno");
    EXPECT_THAT(relativas(arbol.archivos(), arbol.raiz()), ElementsAre("Foo.apps/dentro", "app/dentro"));
}

TEST(Recorrer, passesIgnoredAndHiddenNamesBy)
{
    const ArbolDeArchivos arbol;
    for (const char *ruta :
         {"Library/x", "node_modules/x", "a/.git/x", ".oculto", ".cache/x", "venv/x", "Pods/x"})
        arbol.escribir(ruta, "uno");
    arbol.escribir("a/visible", "uno");
    arbol.escribir("a/library/x", "uno");
    EXPECT_THAT(relativas(arbol.archivos(), arbol.raiz()), ElementsAre("a/library/x", "a/visible"));
}

TEST(Recorrer, whatIsProtectedStaysOutWithAllBelowIt)
{
    const ArbolDeArchivos arbol;
    arbol.escribir("a/x", "uno");
    arbol.escribir("b/x", "uno");
    Recorrido recorrido = arbol.recorrido();
    recorrido.estaProtegida = [&](const std::string &ruta) { return ruta == arbol.en("a"); };
    AccesoArchivosLinux acceso;
    EXPECT_THAT(relativas(recorrer(recorrido, acceso, nullptr), arbol.raiz()), ElementsAre("b/x"));
}

TEST(Recorrer, pipesAndSocketsAreNoFilesAndNobodyOpensThem)
{
    const ArbolDeArchivos arbol;
    ASSERT_EQ(::mkfifo(arbol.en("tuberia").c_str(), 0600), 0);
    const int zocalo = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_un direccion{AF_UNIX, {}};
    arbol.en("z").copy(direccion.sun_path, sizeof direccion.sun_path - 1);
    ASSERT_EQ(::bind(zocalo, reinterpret_cast<sockaddr *>(&direccion), sizeof direccion), 0);
    arbol.escribir("archivo", "uno");
    EXPECT_THAT(relativas(arbol.archivos(), arbol.raiz()), ElementsAre("archivo"));
    ::close(zocalo);
}

TEST(Recorrer, aCloudPlaceholderIsNotListedHoweverBig)
{
    struct ConNube : AccesoConFallos
    {
        bool estaEnLaNube(const struct stat &atributos) override { return atributos.st_blocks == 0; }
    } acceso;
    const ArbolDeArchivos arbol;
    arbol.escribirHueco("en la nube", 1ULL << 40);
    arbol.escribir("aqui", "uno");
    EXPECT_THAT(relativas(recorrer(arbol.recorrido(), acceso, nullptr), arbol.raiz()), ElementsAre("aqui"));
}

TEST(Recorrer, eachFolderIsWalkedOnceThoughNamedTwice)
{
    const ArbolDeArchivos arbol;
    arbol.escribir("a/x", "uno");
    Recorrido recorrido = arbol.recorrido();
    recorrido.raices = {arbol.raiz(), arbol.en("a"), arbol.raiz()};
    AccesoArchivosLinux acceso;
    EXPECT_THAT(relativas(recorrer(recorrido, acceso, nullptr), arbol.raiz()), ElementsAre("a/x"));
}

TEST(Recorrer, neverEntersAVirtualFileSystem)
{
    AccesoArchivosLinux acceso;
    Recorrido recorrido;
    recorrido.raices = {"/proc/self", "/sys/kernel"};
    EXPECT_TRUE(recorrer(recorrido, acceso, nullptr).empty());
}

TEST(Recorrer, stoppedItGivesNoPartialList)
{
    const ArbolDeArchivos arbol;
    for (int i = 0; i < 5000; ++i)
        arbol.escribir("llena/" + std::to_string(i), "x");
    BanderaCancelacion bandera;
    AccesoArchivosLinux acceso;
    const auto archivos =
        recorrer(arbol.recorrido(), acceso, &bandera, [&](std::uint64_t) { bandera.cancelar(); });
    EXPECT_TRUE(archivos.empty());
}

TEST(Recorrer, tellsOfEveryTwoThousandEntriesAndOfTheEnd)
{
    const ArbolDeArchivos arbol;
    for (int i = 0; i < 4100; ++i)
        arbol.escribir("c/" + std::to_string(i), "");
    std::vector<std::uint64_t> avisos;
    AccesoArchivosLinux acceso;
    recorrer(arbol.recorrido(1), acceso, nullptr, [&](std::uint64_t n) { avisos.push_back(n); });
    EXPECT_THAT(avisos, ElementsAre(2000, 4000, 4101)) << "the folder itself is an entry too";
}

TEST(Recorrer, anUnreadableFolderIsPassedBy)
{
    if (::geteuid() == 0) GTEST_SKIP() << "root reads everything";
    const ArbolDeArchivos arbol;
    arbol.escribir("cerrada/x", "uno");
    arbol.escribir("abierta/x", "uno");
    ::chmod(arbol.en("cerrada").c_str(), 0);
    const auto archivos = arbol.archivos();
    ::chmod(arbol.en("cerrada").c_str(), 0700);
    EXPECT_THAT(relativas(archivos, arbol.raiz()), ElementsAre("abierta/x"));
}

TEST(Recorrer, aTreeDeeperThanThereAreDescriptorsIsListedWhole)
{
    const ArbolDeArchivos arbol;
    constexpr int hondura = 150;
    std::string carpeta;
    for (int i = 0; i < hondura; ++i) {
        for (const char *rama : {"a", "b", "c", "d"})
            arbol.escribir(carpeta + rama + "/x", "uno");
        carpeta += "n/";
    }
    rlimit antes = {};
    ::getrlimit(RLIMIT_NOFILE, &antes);
    const rlimit pocos{.rlim_cur = 110, .rlim_max = antes.rlim_max};
    ::setrlimit(RLIMIT_NOFILE, &pocos);
    const ListaArchivos archivos = arbol.archivos();
    ::setrlimit(RLIMIT_NOFILE, &antes);
    EXPECT_EQ(archivos.size(), 4U * hondura);
}

TEST(Recorrer, aNameThatIsNotUtf8ArrivesByteByByte)
{
    const ArbolDeArchivos arbol;
    arbol.escribir("ca\xC3\xB1\xFF/\xE9t\xE9\n.txt", "uno");
    EXPECT_THAT(relativas(arbol.archivos(), arbol.raiz()), ElementsAre("ca\xC3\xB1\xFF/\xE9t\xE9\n.txt"));
}

TEST(Recorrer, anAbsurdDateStopsAtTheEdgeOfWhatFits)
{
    const ArbolDeArchivos arbol;
    arbol.escribir("futuro", "uno");
    arbol.fechar("futuro", 10'000'000'000);
    const ListaArchivos archivos = arbol.archivos();
    struct stat atributos = {};
    ::lstat(arbol.en("futuro").c_str(), &atributos);
    if (atributos.st_mtim.tv_sec < 10'000'000'000) GTEST_SKIP() << "this file system cannot hold it";
    EXPECT_EQ(archivos.modificadoNs(0), std::numeric_limits<std::int64_t>::max());
}

} // namespace
} // namespace ovanta::pruebas
