#include "platform/linux/LineasProc.h"

#include "core/Tamano.h"
#include "platform/linux/Renglones.h"

#include <limits>

namespace ovanta {

namespace {

// PF_KTHREAD: include/linux/sched.h.
constexpr std::uint64_t marcaDelNucleo = 0x00200000;

/// Takes one field off the front, with the blank behind it.
void saltarCampo(std::string_view &resto)
{
    std::size_t i = 0;
    while (i < resto.size() && resto[i] != ' ')
        ++i;
    resto.remove_prefix(std::min(i + 1, resto.size()));
}

void saltarCampos(std::string_view &resto, int cuantos)
{
    while (cuantos-- > 0)
        saltarCampo(resto);
}

} // namespace

std::optional<LineaStat> interpretarLineaStat(std::string_view texto)
{
    const std::size_t abre = texto.find('(');
    const std::size_t cierra = texto.rfind(')');
    if (abre == std::string_view::npos || cierra == std::string_view::npos || cierra < abre)
        return std::nullopt;
    LineaStat linea;
    linea.comm = texto.substr(abre + 1, cierra - abre - 1);
    std::string_view resto = texto.substr(cierra + 1);
    saltarEspacios(resto);
    if (resto.empty()) return std::nullopt;
    linea.estado = resto.front();
    saltarCampo(resto);
    const auto padre = numero(resto); // field 4
    if (!padre || *padre > std::numeric_limits<std::int32_t>::max()) return std::nullopt;
    saltarCampos(resto, 5);            // what is left of 4, and pgrp session tty_nr tpgid
    const auto marcas = numero(resto); // 9
    saltarCampos(resto, 5);
    const auto usuario = numero(resto); // 14
    const auto sistema = numero(resto);
    saltarCampos(resto, 7);
    const auto inicio = numero(resto); // 22
    if (!marcas || !usuario || !sistema || !inicio) return std::nullopt;
    linea.padre = static_cast<std::int32_t>(*padre);
    linea.delNucleo = (*marcas & marcaDelNucleo) != 0;
    linea.ticks = sumarConTope(*usuario, *sistema);
    linea.inicio = *inicio;
    return linea;
}

std::optional<LineaStatm> interpretarLineaStatm(std::string_view texto)
{
    std::array<std::uint64_t, 4> valores{}; // size resident shared text
    if (numeros(texto, valores) < valores.size()) return std::nullopt;
    // They are not read at one moment.
    return LineaStatm{.propias = restarHastaCero(valores[1], valores[2]), .codigo = valores[3]};
}

std::uint64_t interpretarVmSwap(std::string_view texto)
{
    constexpr std::string_view clave = "VmSwap:";
    while (!texto.empty()) {
        std::string_view linea = cortar(texto, '\n');
        if (!linea.starts_with(clave)) continue;
        linea.remove_prefix(clave.size());
        return multiplicarConTope(numero(linea).value_or(0), 1024);
    }
    return 0;
}

std::string_view programaDeCmdline(std::string_view texto)
{
    std::string_view programa = cortar(texto, '\0');
    programa = programa.substr(0, programa.find(programa.starts_with('/') ? " -" : " "));
    return programa;
}

std::string_view rutaDeExe(std::string_view enlace)
{
    constexpr std::string_view borrado = " (deleted)";
    if (!enlace.starts_with('/')) return {};
    if (enlace.ends_with(borrado)) enlace.remove_suffix(borrado.size());
    return enlace;
}

} // namespace ovanta
