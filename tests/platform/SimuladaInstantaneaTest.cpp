#include "platform/simulada/ArchivosSinteticos.h"
#include "platform/simulada/CasaSintetica.h"
#include "platform/simulada/InstantaneaArbol.h"

#include <gmock/gmock.h>

namespace ovanta {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;

class SimuladaInstantanea : public testing::Test
{
protected:
    CasaSintetica casa;
    std::string raiz = casa.hogar();

    void SetUp() override
    {
        escribirTexto(raiz + "/a/uno.txt", "1");
        escribirTexto(raiz + "/a/dos.txt", "2");
        escribirTexto(raiz + "/b/tres.txt", "3");
    }
};

TEST_F(SimuladaInstantanea, UnArbolIntactoNoTieneCambios)
{
    EXPECT_EQ(comparar(fotografiarArbol(raiz), fotografiarArbol(raiz)), CambiosArbol{});
}

TEST_F(SimuladaInstantanea, VeLoQueDesaparecioAparecioYCambio)
{
    const auto antes = fotografiarArbol(raiz);
    fs::remove(raiz + "/a/uno.txt");
    escribirTexto(raiz + "/c.txt", "c");
    fs::permissions(raiz + "/b/tres.txt", fs::perms::none);
    const auto cambios = comparar(antes, fotografiarArbol(raiz));
    EXPECT_THAT(cambios.desaparecidas, ElementsAre("a/uno.txt"));
    EXPECT_THAT(cambios.aparecidas, ElementsAre("c.txt"));
    EXPECT_THAT(cambios.cambiadas, ElementsAre("b/tres.txt"));
}

TEST_F(SimuladaInstantanea, VeQueUnArchivoFueSustituidoPorOtroIgual)
{
    const auto antes = fotografiarArbol(raiz);
    fs::copy_file(raiz + "/a/uno.txt", raiz + "/copia");
    fs::last_write_time(raiz + "/copia", fs::last_write_time(raiz + "/a/uno.txt"));
    fs::rename(raiz + "/copia", raiz + "/a/uno.txt");
    EXPECT_THAT(comparar(antes, fotografiarArbol(raiz)).cambiadas, ElementsAre("a/uno.txt"));
}

TEST_F(SimuladaInstantanea, FueraDeDejaSoloLoQueNoEstabaPermitido)
{
    const CambiosArbol cambios{{"a", "a/uno.txt", "ab"}, {"b/x"}, {"c"}};
    EXPECT_EQ(fueraDe(cambios, {"a", "c"}), (CambiosArbol{{"ab"}, {"b/x"}, {}}));
}

} // namespace
} // namespace ovanta
