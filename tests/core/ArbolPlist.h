#pragma once

#include "core/Utf8.h"
#include "core/plist/ValorPlist.h"

#include <random>

namespace ovanta::pruebas {

/// Property lists out of a seed, with what is awkward in each type.
class ArbolPlist
{
public:
    explicit ArbolPlist(unsigned semilla) : m_azar(semilla) {}

    ValorPlist valor(int niveles)
    {
        switch (dado(niveles > 0 ? 12 : 9)) {
        case 0:
            return dado(2) == 0;
        case 1:
            return static_cast<std::int64_t>(bits());
        case 2:
            return bits();
        case 3:
            return real();
        case 4:
            return Fecha{std::chrono::seconds{static_cast<std::int64_t>(bits() % 4'000'000'000)}};
        case 5:
            return DatosPlist{bytes()};
        case 6:
            return UidPlist{bits() % 0x1'0000'0000};
        case 7:
        case 8:
            return texto();
        case 9:
            return lista(niveles);
        default:
            return diccionario(niveles);
        }
    }
    DiccionarioPlist diccionario(int niveles)
    {
        DiccionarioPlist entradas;
        for (auto n = dado(6); n > 0; --n)
            entradas.poner("c" + texto(), valor(niveles - 1));
        return entradas;
    }

private:
    unsigned dado(unsigned caras) { return static_cast<unsigned>(m_azar() % caras); }
    /// Small numbers as often as large ones.
    std::uint64_t bits() { return m_azar() >> dado(64); }
    double real()
    {
        const double valor = static_cast<double>(static_cast<std::int64_t>(bits())) / 1024;
        return dado(4) == 0 ? valor * 1e200 : valor;
    }
    ListaPlist lista(int niveles)
    {
        ListaPlist valores;
        for (auto n = dado(6); n > 0; --n)
            valores.push_back(valor(niveles - 1));
        return valores;
    }
    std::string bytes()
    {
        std::string datos(dado(70), '\0');
        for (char &byte : datos)
            byte = static_cast<char>(m_azar());
        return datos;
    }
    std::string texto()
    {
        constexpr char32_t letras[] = {U'a',  U'Z', U' ', U'&', U'<',  U'>', U'"',
                                       U'\'', U'ñ', U'é', U'€', U'中', U'😀'};
        std::string palabra;
        for (auto n = dado(40); n > 0; --n)
            anadirUtf8(palabra, letras[dado(std::size(letras))]);
        return palabra;
    }

    std::mt19937_64 m_azar;
};

} // namespace ovanta::pruebas
