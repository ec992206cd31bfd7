#include "platform/linux/NivelDePresion.h"

namespace ovanta {

namespace {

constexpr std::uint64_t esperaAlEntrar = 1000; // hundredths of a per cent
constexpr std::uint64_t esperaAlSalir = 500;

struct Limite
{
    double alEntrar, alSalir; ///< per cent of the memory that is available
};

constexpr Limite limiteCritico{.alEntrar = 5, .alSalir = 6};
constexpr Limite limiteTension{.alEntrar = 10, .alSalir = 12};

bool pasa(bool estaba, std::uint64_t espera, const MedidaDePresion &medida, const Limite &limite)
{
    if (espera >= (estaba ? esperaAlSalir : esperaAlEntrar)) return true;
    if (medida.total == 0) return false;
    const double disponible =
        static_cast<double>(medida.disponible) * 100 / static_cast<double>(medida.total);
    return disponible < (estaba ? limite.alSalir : limite.alEntrar);
}

} // namespace

MemoriaSistema::Nivel nivelDePresion(MemoriaSistema::Nivel anterior, const MedidaDePresion &medida)
{
    using enum MemoriaSistema::Nivel;
    const PresionPSI psi = medida.psi.value_or(PresionPSI{});
    if (pasa(anterior == critico, psi.full, medida, limiteCritico)) return critico;
    if (pasa(anterior != normal, psi.some, medida, limiteTension)) return tension;
    return normal;
}

} // namespace ovanta
