#include "platform/simulada/HerramientasSimuladas.h"

#include "core/Ejecutar.h"

#include <algorithm>
#include <array>
#include <utility>

namespace ovanta {

namespace {

constexpr std::array<std::string_view, 2> reales{"/usr/bin/du", "/usr/bin/find"};

bool esReal(std::string_view binario)
{
    return std::find(reales.begin(), reales.end(), binario) != reales.end();
}

std::string unidos(const std::vector<std::string> &args)
{
    std::string texto;
    for (const std::string &arg : args)
        texto += (texto.empty() ? "" : " ") + arg;
    return texto;
}

} // namespace

void HerramientasSimuladas::programar(std::string nombre, Guion guion)
{
    const std::lock_guard guardia{m_cerrojo};
    m_guiones.insert_or_assign(std::move(nombre), std::move(guion));
}

std::string HerramientasSimuladas::ejecutar(const std::string &binario, const std::vector<std::string> &args,
                                            double timeout, bool tolerarFallo)
{
    m_registro.anotar({Mutacion::Clase::herramienta, binario, unidos(args)});
    if (const Guion guion = guionDe(binario.substr(binario.rfind('/') + 1))) return guion(args);
    if (esReal(binario)) return ovanta::ejecutar(binario, args, timeout, tolerarFallo);
    throw ShellError::noEncontrado(binario);
}

std::optional<std::string> HerramientasSimuladas::buscarBinario(std::string_view nombre)
{
    const std::string ruta = "/usr/bin/" + std::string(nombre);
    if (esReal(ruta) || guionDe(std::string(nombre))) return ruta;
    return std::nullopt;
}

HerramientasSimuladas::Guion HerramientasSimuladas::guionDe(const std::string &nombre) const
{
    const std::lock_guard guardia{m_cerrojo};
    const auto hallado = m_guiones.find(nombre);
    return hallado == m_guiones.end() ? Guion{} : hallado->second;
}

} // namespace ovanta
