#include "tests/platform/ApoyoPapelera.h"

#include <signal.h>
#include <unistd.h>

#include <filesystem>

using namespace ovanta;
using namespace ovanta::pruebas;
namespace fs = std::filesystem;

namespace {

/// The process is killed right after one step of a move; what is left must be sound.
class PapeleraTrasUnaCaida : public ConPapelera, public testing::WithParamInterface<PasoPapelera>
{
protected:
    /// Moves `ruta` in a child that dies at the step; `alPaso` runs before, at every step.
    FinDeHijo morirMoviendo(const std::string &ruta, AlPaso alPaso = [](PasoPapelera) {}) const
    {
        return enHijo([&] {
            return reciclar(ruta, [&](PasoPapelera paso) {
                alPaso(paso);
                if (paso == GetParam()) ::kill(::getpid(), SIGKILL);
            });
        });
    }

    /// Nothing in the Trash lacks its origin.
    void esperarOrigenes() const
    {
        const auto contenido = contenidoDe(suya);
        EXPECT_TRUE(contenido.sinInfo.empty());
        for (const auto &[nombre, info] : contenido.objetos)
            EXPECT_EQ(info.ruta, hogar + "/x") << nombre;
    }

    /// And an info file without item is there only for the one that is still in its place.
    void esperarPapeleraSana() const
    {
        esperarOrigenes();
        for (const std::string &suelta : contenidoDe(suya).infosSueltas) {
            EXPECT_EQ(suelta, "x.trashinfo");
            EXPECT_TRUE(hay(hogar + "/x"));
        }
    }
};

using AlMover = PapeleraTrasUnaCaida;
using AlDevolver = PapeleraTrasUnaCaida;

} // namespace

TEST_P(AlMover, theItemIsInItsPlaceOrInTheTrashWithItsOriginAndCanBeMovedAgain)
{
    escribir(hogar + "/x/dentro", "intacto");
    const FinDeHijo fin = morirMoviendo(hogar + "/x");
    ASSERT_EQ(fin.senal, SIGKILL) << "the step never came: " << fin.queja;

    esperarPapeleraSana();
    const bool movido = hacer().contiene(hogar + "/x", ahora);
    EXPECT_NE(movido, hay(hogar + "/x")) << "told apart after the fall";
    EXPECT_EQ(leer((movido ? suya + "/files/x" : hogar + "/x") + "/dentro"), "intacto");

    escribir(hogar + "/x/dentro", "otra vez");
    EXPECT_EQ(reciclar(hogar + "/x"), "");
    esperarOrigenes();
    EXPECT_FALSE(hay(hogar + "/x"));
    EXPECT_TRUE(hacer().contiene(hogar + "/x", ahora));
}

INSTANTIATE_TEST_SUITE_P(CadaPaso, AlMover,
                         testing::Values(PasoPapelera::comprobado, PasoPapelera::infoCreada,
                                         PasoPapelera::infoEscrita, PasoPapelera::movido,
                                         PasoPapelera::tamanoAparte, PasoPapelera::tamanoAnotado));

TEST_P(AlDevolver, whatTookThePlaceOfTheItemIsNeverLost)
{
    escribir(hogar + "/x", "medido");
    escribir(hogar + "/otro", "cambiado");
    const FinDeHijo fin = morirMoviendo(hogar + "/x", [&](PasoPapelera paso) {
        if (paso != PasoPapelera::comprobado) return;
        fs::rename(hogar + "/x", hogar + "/x de antes");
        fs::rename(hogar + "/otro", hogar + "/x");
    });
    ASSERT_EQ(fin.senal, SIGKILL) << "the step never came: " << fin.queja;

    EXPECT_EQ(leer(hogar + "/x de antes"), "medido");
    EXPECT_EQ(leer(hay(hogar + "/x") ? hogar + "/x" : suya + "/files/x"), "cambiado");
    esperarPapeleraSana();
}

INSTANTIATE_TEST_SUITE_P(CadaPaso, AlDevolver,
                         testing::Values(PasoPapelera::comprobado, PasoPapelera::infoCreada,
                                         PasoPapelera::infoEscrita, PasoPapelera::movido,
                                         PasoPapelera::devuelto, PasoPapelera::infoRetirada));
