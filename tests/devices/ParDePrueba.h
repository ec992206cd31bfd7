#pragma once

#include "devices/OpenSsl.h"

#include <string>

namespace ovanta::pruebas {

/// A key and a certificate for it, made on the spot.
struct ParDePrueba
{
    struct Opciones
    {
        int bitsRsa = 0;         ///< 0 for an elliptic key on P-256
        long desde = -3600;      ///< seconds from now
        long hasta = 3600;       ///< seconds from now
        std::size_t relleno = 0; ///< bytes that make the certificate longer
    };

    explicit ParDePrueba(const Opciones &opciones);

    std::string der() const;
    std::string pem() const;        ///< the certificate
    std::string clavePem() const;   ///< PKCS#8
    std::string clavePkcs1() const; ///< the bare PKCS#1 in PEM; RSA only

    Certificado certificado;
    Clave clave;
};

/// One for each kind of key, made at the first use.
const ParDePrueba &parDe(int bitsRsa);

/// DER in the form of a PEM file.
std::string enPem(const std::string &der, const std::string &fin = "\n");

} // namespace ovanta::pruebas
