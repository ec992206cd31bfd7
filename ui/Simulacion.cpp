#include "ui/Simulacion.h"

#include "core/Tamano.h"
#include "core/qt/Formato.h"
#include "core/qt/Texto.h"

namespace ovanta {

std::vector<ObjetivoSimulado> simular(const Seguridad &seguridad, const std::vector<Regla> &reglas)
{
    std::vector<ObjetivoSimulado> objetivos;
    for (const Regla &regla : reglas) {
        const Previsualizacion vista = previsualizar(seguridad, regla);
        objetivos.push_back(
            {regla.id, regla.name, regla.path, regla.bytes.value_or(0), vista.rutas.size(), vista.error});
    }
    return objetivos;
}

std::vector<FilaSimulada> filasSimuladas(const std::vector<ObjetivoSimulado> &objetivos)
{
    const Formato &formato = Formato::delUsuario();
    std::vector<FilaSimulada> filas;
    for (const ObjetivoSimulado &objetivo : objetivos) {
        const QString medida = formato.bytes(objetivo.bytes) + QStringLiteral(" · ") +
                               formato.entero(objetivo.elementos) + QStringLiteral(" elementos");
        filas.push_back({mostrar(objetivo.id), mostrar(objetivo.nombre),
                         objetivo.error ? mostrar(*objetivo.error) : medida, objetivo.error.has_value()});
    }
    return filas;
}

QString totalSimulado(const std::vector<ObjetivoSimulado> &objetivos, std::uint64_t bytes)
{
    std::uint64_t elementos = 0;
    for (const ObjetivoSimulado &objetivo : objetivos)
        elementos = sumar(elementos, objetivo.elementos);
    const Formato &formato = Formato::delUsuario();
    return formato.entero(elementos) + QStringLiteral(" elementos se moverían a la Papelera · ") +
           formato.bytes(bytes);
}

} // namespace ovanta
