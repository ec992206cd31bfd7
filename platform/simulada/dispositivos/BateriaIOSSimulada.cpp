#include "platform/simulada/dispositivos/BateriaIOSSimulada.h"

#include <limits>

namespace ovanta {

namespace {

/// Currents that flow out are negative numbers, which the registry holds as unsigned ones.
std::uint64_t corriente(const BateriaIOSSimulada &bateria)
{
    return bateria.cargando ? 1'264 : std::numeric_limits<std::uint64_t>::max() - 417;
}

DiccionarioPlist datosInternos(const BateriaIOSSimulada &bateria)
{
    return {{"ChemID", 14'353},
            {"CycleCount", bateria.ciclos},
            {"DailyMaxSoc", 88.5},
            {"LifetimeData", DiccionarioPlist{{"AverageTemperature", 26},
                                              {"MaximumTemperature", 41},
                                              {"Raw", DatosPlist{std::string("\x00\x1f\x8b\xff", 4)}}}},
            {"Qmax", ListaPlist{bateria.capacidadMedida + 63, bateria.capacidadMedida + 58}},
            {"Serial", "F8Y5241A0BCQ1QW2S"},
            {"StateOfCharge", bateria.porcentaje},
            {"Voltage", bateria.voltaje}};
}

} // namespace

DiccionarioPlist registroDeBateria(const BateriaIOSSimulada &bateria)
{
    DiccionarioPlist registro{
        {"AdapterDetails", DiccionarioPlist{{"FamilyCode", 0}, {"Watts", bateria.cargando ? 20 : 0}}},
        {"Amperage", corriente(bateria)},
        {"AppleRawCurrentCapacity", bateria.capacidadMedida * bateria.porcentaje / 100},
        {"AppleRawMaxCapacity", bateria.capacidadMedida},
        {"AtCriticalLevel", false},
        {"BatteryData", datosInternos(bateria)},
        {"BatteryInstalled", true},
        {"CurrentCapacity", bateria.porcentaje},
        {"CycleCount", bateria.ciclos},
        {"ExternalConnected", bateria.cargando},
        {"FullyCharged", bateria.porcentaje == 100},
        {"InstantAmperage", corriente(bateria)},
        {"IsCharging", bateria.cargando},
        {"MaxCapacity", 100},
        {"Temperature", bateria.temperatura},
        {"UpdateTime", 1'795'000'000},
        {"Voltage", bateria.voltaje}};
    if (bateria.capacidadDiseno) registro.poner("DesignCapacity", *bateria.capacidadDiseno);
    if (bateria.capacidadNominal) registro.poner("NominalChargeCapacity", *bateria.capacidadNominal);
    return registro;
}

DiccionarioPlist dominioDeBateria(const BateriaIOSSimulada &bateria)
{
    return {{"BatteryCurrentCapacity", bateria.porcentaje},
            {"BatteryIsCharging", bateria.cargando},
            {"ExternalChargeCapable", bateria.cargando},
            {"ExternalConnected", bateria.cargando},
            {"FullyCharged", bateria.porcentaje == 100},
            {"GasGaugeCapability", true},
            {"HasBattery", true}};
}

} // namespace ovanta
