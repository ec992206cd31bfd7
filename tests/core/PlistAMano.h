#pragma once

#include "core/BigEndian.h"

#include <cstdint>
#include <string>
#include <vector>

namespace ovanta::pruebas {

inline std::string enXml(const std::string &valor)
{
    return "<plist version=\"1.0\">" + valor + "</plist>";
}

/// A binary property list put together object by object, each as its bytes stand; whatever is set wrong stays
/// wrong.
struct PlistAMano
{
    std::vector<std::string> objetos;
    std::size_t anchoDeSalto = 8;
    std::size_t anchoDeReferencia = 4;
    std::uint64_t raiz = 0;
    std::uint64_t desvioDeTabla = 0; ///< added to where the table is said to be
    std::uint64_t objetosDeMas = 0;  ///< added to how many there are said to be

    std::string referencias(const std::vector<std::uint64_t> &numeros) const
    {
        std::string bytes;
        for (const auto numero : numeros)
            bytes += aBigEndian(numero, anchoDeReferencia);
        return bytes;
    }
    /// The marker of a container or text of up to 14 units, or of more.
    static std::string marca(unsigned tipo, std::uint64_t cuantos)
    {
        if (cuantos < 15) return {static_cast<char>(tipo << 4 | cuantos)};
        return static_cast<char>(tipo << 4 | 15) + std::string{'\x13'} + aBigEndian(cuantos, 8);
    }
    std::string lista(const std::vector<std::uint64_t> &numeros) const
    {
        return marca(0xA, numeros.size()) + referencias(numeros);
    }

    std::string bytes() const
    {
        std::string todo = "bplist00", tabla;
        for (const auto &objeto : objetos) {
            tabla += aBigEndian(todo.size(), anchoDeSalto);
            todo += objeto;
        }
        const auto lugar = todo.size() + desvioDeTabla;
        todo += tabla + std::string(6, '\0') + static_cast<char>(anchoDeSalto) +
                static_cast<char>(anchoDeReferencia);
        return todo + aBigEndian(objetos.size() + objetosDeMas, 8) + aBigEndian(raiz, 8) +
               aBigEndian(lugar, 8);
    }
};

} // namespace ovanta::pruebas
