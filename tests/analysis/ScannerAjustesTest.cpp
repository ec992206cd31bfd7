#include "analysis/Scanner.h"
#include "tests/PlataformaDePrueba.h"

#include <QSignalSpy>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

using namespace ovanta;
using namespace ovanta::pruebas;

namespace {

struct ScannerAjustes : testing::Test
{
    PlataformaDePrueba plataforma;
};

} // namespace

TEST_F(ScannerAjustes, aFreshUserHasTheDefaultsAndNothingIsWritten)
{
    const Scanner scanner(plataforma);
    EXPECT_EQ(scanner.minimoMB(), 1.0);
    EXPECT_EQ(scanner.diasDescargas(), 90);
    EXPECT_EQ(plataforma.m_preferencias.real("minimoMB"), 1.0) << "registered";
    EXPECT_EQ(plataforma.m_preferencias.entero("diasDescargas"), 90) << "registered";
}

TEST_F(ScannerAjustes, aChangeIsToldOnceAndSurvivesARestart)
{
    Scanner scanner(plataforma);
    QSignalSpy cambios(&scanner, &Scanner::ajustesChanged);
    scanner.fijarMinimoMB(2.8);
    scanner.fijarMinimoMB(2.8);
    scanner.fijarDiasDescargas(97);
    EXPECT_EQ(cambios.count(), 2);
    const Scanner otro(plataforma);
    EXPECT_EQ(otro.minimoMB(), 2.8);
    EXPECT_EQ(otro.diasDescargas(), 97);
}

TEST_F(ScannerAjustes, whatNoSettingCanHoldCountsAsNothingStored)
{
    constexpr double infinito = std::numeric_limits<double>::infinity();
    for (const Preferencias::Valor &malo :
         {Preferencias::Valor{-1.0}, Preferencias::Valor{std::nan("")}, Preferencias::Valor{infinito},
          Preferencias::Valor{1e300}, Preferencias::Valor{true}, Preferencias::Valor{std::string("mucho")},
          Preferencias::Valor{std::int64_t{-7}}}) {
        plataforma.m_preferencias.fijar("minimoMB", malo);
        plataforma.m_preferencias.fijar("diasDescargas", malo);
        const Scanner scanner(plataforma);
        EXPECT_EQ(scanner.minimoMB(), 1.0) << malo.index();
        EXPECT_EQ(scanner.diasDescargas(), 90) << malo.index();
    }
}

TEST_F(ScannerAjustes, aMinimumOfZeroIsAMinimumAndSurvivesARestart)
{
    Scanner scanner(plataforma);
    scanner.fijarMinimoMB(0);
    const Scanner otro(plataforma);
    EXPECT_EQ(otro.minimoMB(), 0);
}

TEST_F(ScannerAjustes, aNumberThatNoSettingCanHoldIsNotTaken)
{
    Scanner scanner(plataforma);
    scanner.fijarMinimoMB(std::nan(""));
    scanner.fijarMinimoMB(-3);
    scanner.fijarDiasDescargas(0);
    EXPECT_EQ(scanner.minimoMB(), 1.0);
    EXPECT_EQ(scanner.diasDescargas(), 90);
}
