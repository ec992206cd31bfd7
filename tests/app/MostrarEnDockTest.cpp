#include "app/MostrarEnDock.h"
#include "tests/PlataformaDePrueba.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace ovanta;
using namespace ovanta::pruebas;
using testing::ElementsAre;
using enum PoliticaActivacion::Politica;

namespace {

struct MostrarEnDockTest : testing::Test
{
    PlataformaDePrueba plataforma;
};

} // namespace

TEST_F(MostrarEnDockTest, withTheSettingNeverSetTheDockIconIsShown)
{
    aplicarMostrarEnDock(plataforma);
    EXPECT_THAT(plataforma.m_politica.fijadas, ElementsAre(regular));
    EXPECT_FALSE(plataforma.m_preferencias.leer("mostrarEnDock"));
}

TEST_F(MostrarEnDockTest, aValueOfAnotherKindCountsAsNeverSet)
{
    for (const Preferencias::Valor &otro : {Preferencias::Valor{std::int64_t{0}}, Preferencias::Valor{0.0},
                                            Preferencias::Valor{std::string("false")}}) {
        plataforma.m_preferencias.fijar("mostrarEnDock", otro);
        EXPECT_TRUE(mostrarEnDock(plataforma.m_preferencias));
    }
}

TEST_F(MostrarEnDockTest, aChangeIsKeptAndInEffectAtOnceAndAgainAtTheNextStart)
{
    fijarMostrarEnDock(plataforma, false);
    EXPECT_EQ(plataforma.m_preferencias.booleanoSiHay("mostrarEnDock"), false);
    aplicarMostrarEnDock(plataforma);
    fijarMostrarEnDock(plataforma, true);
    EXPECT_THAT(plataforma.m_politica.fijadas, ElementsAre(accesoria, accesoria, regular));
}
