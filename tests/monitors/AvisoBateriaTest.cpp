#include "monitors/AvisoBateria.h"

#include <gtest/gtest.h>

using namespace ovanta;

namespace {

EstadoBateria descargando(int porcentaje)
{
    EstadoBateria estado;
    estado.porcentaje = porcentaje;
    return estado;
}

EstadoBateria enchufada(int porcentaje)
{
    EstadoBateria estado = descargando(porcentaje);
    estado.enCorriente = true;
    return estado;
}

} // namespace

TEST(AvisoBateria, firesAtALevelEqualToTheMark)
{
    AvisoBateria aviso;
    EXPECT_FALSE(aviso.corresponde(descargando(16), 15, true));
    EXPECT_TRUE(aviso.corresponde(descargando(15), 15, true));
}

TEST(AvisoBateria, withAMarkOfZeroThereIsNoneAtAnyLevel)
{
    AvisoBateria aviso;
    for (int porcentaje = 100; porcentaje >= 0; --porcentaje) {
        EXPECT_FALSE(aviso.corresponde(descargando(porcentaje), 0, true)) << porcentaje;
        EXPECT_FALSE(aviso.corresponde(descargando(porcentaje), -5, true)) << porcentaje;
    }
}

TEST(AvisoBateria, firesOnceADischargeEvenIfThePercentageRisesInBetween)
{
    AvisoBateria aviso;
    EXPECT_TRUE(aviso.corresponde(descargando(12), 15, true));
    EXPECT_FALSE(aviso.corresponde(descargando(11), 15, true));
    EXPECT_FALSE(aviso.corresponde(descargando(40), 15, true));
    EXPECT_FALSE(aviso.corresponde(descargando(10), 15, true));
}

TEST(AvisoBateria, firesAgainAfterTheChargerWasPluggedAndRemoved)
{
    AvisoBateria aviso;
    EXPECT_TRUE(aviso.corresponde(descargando(12), 15, true));
    EXPECT_FALSE(aviso.corresponde(enchufada(12), 15, true));
    EXPECT_TRUE(aviso.corresponde(descargando(12), 15, true));
}

TEST(AvisoBateria, aMachineWithoutBatteryGetsNoneAndReArmsNothing)
{
    AvisoBateria aviso;
    EXPECT_FALSE(aviso.corresponde(std::nullopt, 100, true));
    EXPECT_TRUE(aviso.corresponde(descargando(12), 15, true));
    EXPECT_FALSE(aviso.corresponde(std::nullopt, 15, true));
    EXPECT_FALSE(aviso.corresponde(descargando(12), 15, true));
}

TEST(AvisoBateria, whatCouldNotBeSentStaysDue)
{
    AvisoBateria aviso;
    EXPECT_FALSE(aviso.corresponde(descargando(12), 15, false));
    EXPECT_TRUE(aviso.corresponde(descargando(12), 15, true));
}

TEST(AvisoBateria, saysTheLevelAndTheTimeThatIsLeft)
{
    EstadoBateria estado = descargando(14);
    EXPECT_EQ(tituloAvisoBateria(estado), "Batería al 14 %");
    EXPECT_EQ(cuerpoAvisoBateria(estado), "Conecta el cargador pronto.");
    estado.minutosRestantes = 65;
    EXPECT_EQ(cuerpoAvisoBateria(estado), "Quedan unos 1 h 5 min. Conecta el cargador.");
    estado.minutosRestantes = 1;
    EXPECT_EQ(cuerpoAvisoBateria(estado), "Quedan unos 0 h 1 min. Conecta el cargador.");
}
