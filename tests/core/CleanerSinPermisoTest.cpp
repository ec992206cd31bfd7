#include "tests/OtroProceso.h"
#include "tests/core/CleanerBanco.h"

#include <unistd.h>

using namespace ovanta;
namespace fs = std::filesystem;
using testing::SizeIs;

namespace {

using CleanerSinPermiso = pruebas::BancoCleaner;

/// The superuser writes wherever it likes; without these two it is held to the permissions as well.
std::vector<std::string> comoUnUsuario()
{
    if (::geteuid() != 0) return {};
    return {"setpriv", "--bounding-set=-dac_override,-dac_read_search"};
}

void correr(const std::string &prueba)
{
    EXPECT_NO_THROW(pruebas::correrEnOtroProceso("CleanerSinPermiso.DISABLED_" + prueba, comoUnUsuario()));
}

} // namespace

TEST_F(CleanerSinPermiso, aDataFolderThatIsNotWritableLeavesTheListInMemory)
{
    correr("dataFolder");
}

TEST_F(CleanerSinPermiso, DISABLED_dataFolder)
{
    escribirHistorial(codificarHistorial(movimientos(2)));
    fs::permissions(carpetaDatos(), fs::perms::owner_read | fs::perms::owner_exec);
    const auto a = casa.archivo(casa.en("a"));
    EXPECT_EQ(limpiarRutas({a}), (ResultadoLimpieza{1, 4096, {}}));
    EXPECT_THAT(cleaner().historial(), SizeIs(3));
    EXPECT_EQ(guardado(), movimientos(2)) << "the file must still be the old one";
    fs::permissions(carpetaDatos(), fs::perms::owner_all);
}

TEST_F(CleanerSinPermiso, anItemInAReadOnlyFolderStaysAndTheOthersMove)
{
    correr("readOnlyFolder");
}

TEST_F(CleanerSinPermiso, DISABLED_readOnlyFolder)
{
    const auto fijo = casa.archivo(casa.en("fija/a"));
    const auto suelto = casa.archivo(casa.en("suelta/b"));
    fs::permissions(casa.en("fija"), fs::perms::owner_read | fs::perms::owner_exec);
    const auto resultado = limpiarRutas({fijo, suelto});
    EXPECT_EQ(resultado, (ResultadoLimpieza{1, 4096, {"a: no se pudo mover"}}));
    EXPECT_TRUE(hay(fijo));
    EXPECT_FALSE(hay(suelto));
    fs::permissions(casa.en("fija"), fs::perms::owner_all);
}

TEST_F(CleanerSinPermiso, aHistoryAndARuleFolderThatCannotBeReadCountAsEmpty)
{
    correr("unreadable");
}

TEST_F(CleanerSinPermiso, DISABLED_unreadable)
{
    escribirHistorial(codificarHistorial(movimientos(2)));
    fs::permissions(archivo(), fs::perms::none);
    casa.archivo(casa.en("cerrada/a"));
    fs::permissions(casa.en("cerrada"), fs::perms::owner_exec);
    EXPECT_THAT(cleaner().historial(), SizeIs(0));
    EXPECT_EQ(cleaner().previsualizar(regla("c", "~/cerrada", "contents")), Previsualizacion{});
    EXPECT_EQ(limpiar({regla("c", "~/cerrada", "contents")}), ResultadoLimpieza{});
    fs::permissions(casa.en("cerrada"), fs::perms::owner_all);
}
