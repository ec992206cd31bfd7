#include "monitors/Notificador.h"
#include "tests/PlataformaDePrueba.h"

#include <gtest/gtest.h>

using namespace ovanta;
using namespace ovanta::pruebas;
using namespace std::chrono_literals;

TEST(Notificador, sendsTitleAndBodyWithTheOrdinarySound)
{
    PlataformaDePrueba plataforma;
    Notificador::enviar(plataforma, "Un título", "Un cuerpo", "salud-bateria");
    ASSERT_EQ(plataforma.m_notificaciones.enviados.size(), 1);
    const Notificaciones::Aviso &aviso = plataforma.m_notificaciones.enviados.front();
    EXPECT_EQ(aviso.titulo, "Un título");
    EXPECT_EQ(aviso.cuerpo, "Un cuerpo");
    EXPECT_EQ(aviso.sonido, Notificaciones::Sonido::normal);
}

TEST(Notificador, theIdentifierBearsTheSecondCutTowardsZero)
{
    PlataformaDePrueba plataforma;
    const std::vector<std::pair<Fecha, std::string>> casos = {
        {Fecha{1'795'238'316s + 999'999us}, "auto-cache-1795238316"},
        {Fecha{0s}, "auto-cache-0"},
        {Fecha{-1'500'000us}, "auto-cache--1"},
    };
    for (const auto &[fecha, id] : casos) {
        plataforma.m_reloj.fijar(fecha);
        Notificador::enviar(plataforma, "t", "c", "auto-cache");
        EXPECT_EQ(plataforma.m_notificaciones.enviados.back().id, id);
    }
}

TEST(Notificador, twoWithinASecondShareTheirIdentifierAndLaterOnesDoNot)
{
    PlataformaDePrueba plataforma;
    plataforma.m_reloj.fijar(Fecha{100s});
    Notificador::enviar(plataforma, "t", "1", "id");
    plataforma.m_reloj.avanzar(900ms);
    Notificador::enviar(plataforma, "t", "2", "id");
    plataforma.m_reloj.avanzar(100ms);
    Notificador::enviar(plataforma, "t", "3", "id");
    const auto &enviados = plataforma.m_notificaciones.enviados;
    ASSERT_EQ(enviados.size(), 3);
    EXPECT_EQ(enviados[0].id, enviados[1].id);
    EXPECT_NE(enviados[1].id, enviados[2].id);
}

TEST(Notificador, isSilentWhereNoticesCannotBeShown)
{
    PlataformaDePrueba plataforma;
    plataforma.m_notificaciones.hay = false;
    Notificador::enviar(plataforma, "t", "c", "id");
    EXPECT_TRUE(plataforma.m_notificaciones.enviados.empty());
    EXPECT_TRUE(plataforma.m_dialogo.mostrados.empty());
}
