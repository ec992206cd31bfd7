#include "analysis/EspacioReal.h"

#include "tests/analysis/AccesoConFallos.h"
#include "tests/analysis/ArbolDeArchivos.h"

#include <gtest/gtest.h>

namespace ovanta::pruebas {
namespace {

class EspacioReal : public testing::Test
{
protected:
    std::uint64_t de(std::vector<std::string> nombres)
    {
        for (std::string &nombre : nombres)
            nombre = arbol.en(nombre);
        return espacioReal(nombres, acceso);
    }

    ArbolDeArchivos arbol;
    AccesoConFallos acceso;
};

TEST_F(EspacioReal, aFileFreesTheBlocksThatItTakes)
{
    arbol.escribir("a", std::string(100'000, 'x'));
    EXPECT_GE(de({"a"}), 100'000U);
    EXPECT_LT(de({"a"}), 150'000U);
}

TEST_F(EspacioReal, holesTakeNoPlace)
{
    arbol.escribirHueco("a", 1ULL << 40);
    EXPECT_LT(de({"a"}), 1U << 20);
}

TEST_F(EspacioReal, aHardLinkFreesNothingWhileAnotherNameStays)
{
    arbol.escribir("a", std::string(100'000, 'x'));
    arbol.enlazar("a", "b");
    EXPECT_EQ(de({"a"}), 0U);
    EXPECT_EQ(de({"a", "b"}), de({"b", "a"}));
    EXPECT_GE(de({"a", "b"}), 100'000U);
}

TEST_F(EspacioReal, blocksSharedWithACloneStay)
{
    struct ConClon : AccesoConFallos
    {
        std::uint64_t bytesCompartidos(int) override { return 60'000; }
    } clon;
    arbol.escribir("a", std::string(100'000, 'x'));
    EXPECT_EQ(espacioReal({arbol.en("a")}, clon), de({"a"}) - 60'000);
}

TEST_F(EspacioReal, whatIsNoLongerThereDoesNotCount)
{
    EXPECT_EQ(de({"no existe"}), 0U);
}

} // namespace
} // namespace ovanta::pruebas
