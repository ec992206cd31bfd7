#include "monitors/NivelDisco.h"

namespace ovanta {

std::string_view textoNivel(NivelDisco nivel)
{
    switch (nivel) {
    case NivelDisco::ok:
        return "ok";
    case NivelDisco::aviso:
        return "aviso";
    case NivelDisco::critico:
        return "critico";
    }
    return {};
}

NivelDisco nivelDe(std::uint64_t libre, const UmbralesDisco &umbrales)
{
    const double gibis = static_cast<double>(libre) * 0x1p-30;
    if (gibis <= umbrales.critico) return NivelDisco::critico;
    if (gibis <= umbrales.aviso) return NivelDisco::aviso;
    return NivelDisco::ok;
}

} // namespace ovanta
