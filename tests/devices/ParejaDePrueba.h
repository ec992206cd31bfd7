#pragma once

#include <string>

namespace ovanta::pruebas {

/// A self-signed certificate and its key (RSA), both PEM, the key as PKCS#8. The same one in all of a run.
struct ParejaDePrueba
{
    std::string certificado, clave;
};

const ParejaDePrueba &parejaDePrueba();

} // namespace ovanta::pruebas
