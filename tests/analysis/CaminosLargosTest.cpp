#include "analysis/Duplicados.h"
#include "analysis/EspacioReal.h"
#include "analysis/GuardianDeCopias.h"
#include "core/AbrirCamino.h"
#include "core/Descriptor.h"
#include "tests/analysis/AccesoConFallos.h"
#include "tests/analysis/ArbolDeArchivos.h"

#include <cstdlib>
#include <gmock/gmock.h>

namespace ovanta::pruebas {
namespace {

using testing::SizeIs;

/// A tree with a folder at its bottom whose path no call takes in one piece.
class CaminosLargos : public testing::Test
{
protected:
    void SetUp() override { cavar(std::string(200, 'n'), 25); }
    // The ordinary way to remove a tree cannot go this deep by path.
    void TearDown() override { EXPECT_EQ(std::system(("rm -rf '" + arbol.raiz() + "'").c_str()), 0); }

    /// So many folders of that name, each in the one before.
    void cavar(const std::string &nombre, int hondura)
    {
        fondo = Descriptor{::open(arbol.raiz().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)};
        for (int i = 0; i < hondura; ++i) {
            ASSERT_EQ(::mkdirat(fondo.numero(), nombre.c_str(), 0700), 0);
            fondo = Descriptor{::openat(fondo.numero(), nombre.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)};
        }
    }
    void escribir(const char *nombre, std::string_view contenido) const
    {
        const Descriptor archivo{::openat(fondo.numero(), nombre, O_WRONLY | O_CREAT | O_CLOEXEC, 0600)};
        ASSERT_EQ(::write(archivo.numero(), contenido.data(), contenido.size()),
                  static_cast<ssize_t>(contenido.size()));
    }
    void enlazar(const char *nombre, const char *otro) const
    {
        ASSERT_EQ(::linkat(fondo.numero(), nombre, fondo.numero(), otro, 0), 0);
    }

    ArbolDeArchivos arbol;
    Descriptor fondo;
    AccesoConFallos acceso;
};

TEST_F(CaminosLargos, theWalkReachesFoldersDeeperThanTheLongestPathAndTheirFilesCanBeRead)
{
    constexpr int hondura = 4000;
    cavar("nivel", hondura);
    escribir("fondo", "uno");
    const ListaArchivos archivos = arbol.archivos();
    ASSERT_EQ(archivos.size(), 1U);
    EXPECT_EQ(archivos.ruta(0).size(), arbol.raiz().size() + 6 * hondura + 6);
    AccesoArchivosLinux real;
    const Descriptor abierto{real.abrir(archivos.ruta(0).c_str())};
    char leido[8];
    EXPECT_EQ(real.leer(abierto.numero(), leido, sizeof leido), 3);
}

TEST_F(CaminosLargos, hardLinksDownThereAreNamesOfOneFile)
{
    escribir("uno", "igual");
    enlazar("uno", "otro nombre");
    escribir("dos", "igual");
    const auto grupos = buscarDuplicados(arbol.archivos(), acceso, nullptr);
    ASSERT_THAT(grupos, SizeIs(1));
    EXPECT_THAT(grupos[0].copias, SizeIs(3));
    EXPECT_EQ(grupos[0].desperdiciado(), 5U);
}

TEST_F(CaminosLargos, theLastLookAtACopyDownThereSeesWhetherItChanged)
{
    escribir("uno", "igual");
    arbol.escribir("arriba", "igual");
    const auto grupos = buscarDuplicados(arbol.archivos(), acceso, nullptr);
    ASSERT_THAT(grupos, SizeIs(1));
    for (const ArchivoHallado &copia : grupos[0].copias)
        EXPECT_TRUE(sigueIgual(copia));
    escribir("uno", "otra cosa");
    for (const ArchivoHallado &copia : grupos[0].copias)
        EXPECT_EQ(sigueIgual(copia), copia.ruta == arbol.en("arriba"));
}

TEST_F(CaminosLargos, whatAFileDownThereTakesOnTheDiskIsCounted)
{
    escribir("uno", std::string(100'000, 'x'));
    EXPECT_GE(espacioReal({arbol.archivos().ruta(0)}, acceso), 100'000U);
}

TEST_F(CaminosLargos, aPathThatNamesNothingSaysSo)
{
    escribir("uno", "igual");
    const std::string ruta = arbol.archivos().ruta(0);
    struct stat atributos = {};
    EXPECT_EQ(describirCamino(ruta.c_str(), &atributos), 0);
    EXPECT_EQ(atributos.st_size, 5);
    for (const std::string &otra : {ruta + "x", ruta + "/x", "x" + ruta}) {
        EXPECT_EQ(describirCamino(otra.c_str(), &atributos), -1);
        EXPECT_TRUE(errno == ENOENT || errno == ENOTDIR) << errno;
    }
}

TEST_F(CaminosLargos, aLinkAtTheEndIsDescribedNotFollowed)
{
    ASSERT_EQ(::symlinkat("/etc/passwd", fondo.numero(), "enlace"), 0);
    escribir("uno", "igual");
    std::string ruta = arbol.archivos().ruta(0);
    ruta.replace(ruta.size() - 3, 3, "enlace");
    struct stat atributos = {};
    ASSERT_EQ(describirCamino(ruta.c_str(), &atributos), 0);
    EXPECT_TRUE(S_ISLNK(atributos.st_mode));
}

} // namespace
} // namespace ovanta::pruebas
