#include "devices/ErrorIOS.h"

namespace ovanta {

std::string ErrorIOS::errorDescription() const
{
    switch (caso) {
    case Caso::socket:
        return "Conexión: " + texto;
    case Caso::tls:
        return "Cifrado: " + texto + " (" + std::to_string(estado) + ")";
    case Caso::protocolo:
    case Caso::otro:
        break;
    }
    return texto;
}

} // namespace ovanta
