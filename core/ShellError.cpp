#include "core/Ejecutar.h"

#include <utility>

namespace ovanta {
namespace {

std::string recortado(const std::string &texto)
{
    constexpr const char *blancos = " \t\n\v\f\r";
    const std::size_t desde = texto.find_first_not_of(blancos);
    if (desde == std::string::npos) return {};
    return texto.substr(desde, texto.find_last_not_of(blancos) - desde + 1);
}

} // namespace

ShellError::ShellError(Caso caso, int codigo, std::string descripcion)
    : m_caso(caso), m_codigo(codigo), m_descripcion(std::move(descripcion))
{
}

ShellError ShellError::noEncontrado(const std::string &binario)
{
    return {Caso::noEncontrado, 0, "No se encontró «" + binario + "» en el sistema."};
}

ShellError ShellError::fallo(int codigo, const std::string &salida)
{
    std::string texto = recortado(salida);
    if (texto.empty()) texto = "El comando terminó con código " + std::to_string(codigo) + ".";
    return {Caso::fallo, codigo, std::move(texto)};
}

ShellError ShellError::agotado(const std::string &comando, double segundos)
{
    const std::string enteros = std::to_string(static_cast<long>(segundos));
    return {Caso::agotado, 0, "«" + comando + "» no respondió en " + enteros + " s y se detuvo."};
}

} // namespace ovanta
