#include "platform/linux/BateriasSys.h"
#include "tests/platform/ArbolDePrueba.h"

#include <gtest/gtest.h>
#include <map>

using namespace ovanta;
using namespace ovanta::pruebas;

namespace {

using Atributos = std::map<std::string, std::string>;

struct BateriasSys : testing::Test
{
    ArbolDePrueba arbol;

    void fuente(const std::string &nombre, const Atributos &atributos) const
    {
        for (const auto &[atributo, valor] : atributos)
            arbol.poner("sys/class/power_supply/" + nombre + "/" + atributo, valor + "\n");
    }
    std::optional<EstadoBateria> leer() const { return combinarBaterias(leerBateriasSys(arbol.raiz())); }
};

const Atributos red{{"type", "Mains"}, {"online", "1"}};
const Atributos sinRed{{"type", "Mains"}, {"online", "0"}};

/// As most firmware tells it: in microampere hours.
const Atributos porCarga{{"type", "Battery"},       {"present", "1"},
                         {"status", "Discharging"}, {"capacity", "42"},
                         {"charge_now", "1890000"}, {"charge_full", "4500000"},
                         {"current_now", "900000"}, {"charge_full_design", "5000000"},
                         {"cycle_count", "317"},    {"voltage_min_design", "11400000"}};

/// As others do: in microwatt hours.
const Atributos porEnergia{{"type", "Battery"},        {"present", "1"},
                           {"status", "Charging"},     {"capacity", "80"},
                           {"energy_now", "40000000"}, {"energy_full", "50000000"},
                           {"power_now", "10000000"},  {"energy_full_design", "57000000"},
                           {"cycle_count", "0"},       {"voltage_min_design", "10000000"}};

Atributos con(Atributos atributos, const std::string &nombre, const std::string &valor)
{
    atributos[nombre] = valor;
    return atributos;
}

} // namespace

TEST_F(BateriasSys, aDesktopHasNone)
{
    EXPECT_EQ(leer(), std::nullopt);
    fuente("AC", red);
    EXPECT_EQ(leer(), std::nullopt);
}

TEST_F(BateriasSys, discharging)
{
    fuente("AC", sinRed);
    fuente("BAT0", porCarga);
    const EstadoBateria esperado{.porcentaje = 42,
                                 .cargando = false,
                                 .enCorriente = false,
                                 .minutosRestantes = 126,
                                 .ciclos = 317,
                                 .salud = 90};
    EXPECT_EQ(leer(), esperado);
}

TEST_F(BateriasSys, chargingAndMeasuredInEnergy)
{
    fuente("AC", red);
    fuente("BAT0", porEnergia);
    const EstadoBateria esperado{.porcentaje = 80,
                                 .cargando = true,
                                 .enCorriente = true,
                                 .minutosRestantes = {},
                                 .ciclos = {},
                                 .salud = 87};
    EXPECT_EQ(leer(), esperado);
}

TEST_F(BateriasSys, energiesBecomeChargesByTheNominalVoltage)
{
    fuente("BAT0", porEnergia);
    const LecturaBaterias lectura = leerBateriasSys(arbol.raiz());
    ASSERT_EQ(lectura.baterias.size(), 1);
    EXPECT_DOUBLE_EQ(lectura.baterias[0].contenido, 4'000'000);
    EXPECT_DOUBLE_EQ(lectura.baterias[0].lleno, 5'000'000);
    EXPECT_DOUBLE_EQ(lectura.baterias[0].deFabrica, 5'700'000);
    EXPECT_DOUBLE_EQ(lectura.baterias[0].ritmo, 1'000'000);
}

TEST_F(BateriasSys, fullOnMains)
{
    fuente("ADP1", red);
    fuente("BAT1", con(con(porCarga, "status", "Full"), "capacity", "100"));
    EXPECT_EQ(leer()->porcentaje, 100);
    EXPECT_FALSE(leer()->cargando);
    EXPECT_TRUE(leer()->enCorriente);
    EXPECT_EQ(leer()->minutosRestantes, std::nullopt);
}

TEST_F(BateriasSys, twoBatteriesOfDifferentKindsCountTogether)
{
    fuente("AC", sinRed);
    fuente("BAT0", porCarga);
    fuente("BAT1", con(porEnergia, "status", "Unknown"));
    const auto estado = leer();
    EXPECT_EQ(estado->porcentaje, 62) << "5.89 Ah of 9.5 Ah";
    EXPECT_EQ(estado->salud, 88);
    EXPECT_EQ(estado->ciclos, 317);
    EXPECT_FALSE(estado->cargando);
}

TEST_F(BateriasSys, theBatteryOfAMouseIsNone)
{
    fuente("hidpp_battery_0",
           {{"type", "Battery"}, {"scope", "Device"}, {"status", "Discharging"}, {"capacity", "5"}});
    EXPECT_EQ(leer(), std::nullopt);
    fuente("BAT0", con(porCarga, "scope", "System"));
    EXPECT_EQ(leer()->porcentaje, 42);
}

TEST_F(BateriasSys, anEmptyBayIsNoBattery)
{
    fuente("BAT1", con(porCarga, "present", "0"));
    EXPECT_EQ(leer(), std::nullopt);
}

TEST_F(BateriasSys, aChargerOnUsbIsMainsAndAnUnpluggedOneBesideItIsNot)
{
    fuente("AC", sinRed);
    fuente("BAT0", con(porCarga, "status", "Charging"));
    fuente("ucsi-source-psy-1", {{"type", "USB"}, {"online", "1"}});
    EXPECT_TRUE(leer()->enCorriente);
}

TEST_F(BateriasSys, aBatteryThatTellsOnlyItsPercentageIsEnough)
{
    fuente("BAT0", {{"type", "Battery"}, {"status", "Not charging"}, {"capacity", "61"}});
    const EstadoBateria esperado{.porcentaje = 61,
                                 .cargando = false,
                                 .enCorriente = true,
                                 .minutosRestantes = {},
                                 .ciclos = {},
                                 .salud = {}};
    EXPECT_EQ(leer(), esperado);
}

TEST_F(BateriasSys, garbageInTheAttributesIsLeftOut)
{
    fuente(
        "BAT0",
        {{"type", "Battery"}, {"capacity", "mucha"}, {"charge_full", "-"}, {"cycle_count", "99999999999"}});
    fuente("BAT1", {{"type", "Batería"}, {"capacity", "50"}});
    EXPECT_EQ(leer(), std::nullopt);
}
