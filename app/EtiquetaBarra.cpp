#include "app/EtiquetaBarra.h"

#include "monitors/FormatosCortos.h"

#include <cmath>

namespace ovanta {

namespace {

std::string porCiento(double fraccion)
{
    return std::to_string(std::lround(fraccion * 100.0)) + "%";
}

} // namespace

std::vector<EtiquetaBarra::Metrica> EtiquetaBarra::metricas() const
{
    std::vector<Metrica> lista;
    if (cpu) lista.push_back({"CPU", porCiento(*cpu)});
    if (ram) lista.push_back({"RAM", porCiento(*ram)});
    if (red) lista.push_back({"NET", formatearVelocidadCorta(*red)});
    return lista;
}

std::string EtiquetaBarra::texto() const
{
    std::string linea = libre.value_or("");
    for (const Metrica &metrica : metricas()) {
        if (!linea.empty()) linea += " · ";
        linea += metrica.etiqueta + " " + metrica.valor;
    }
    return linea;
}

bool EtiquetaBarra::seVeIgual(const EtiquetaBarra &otra) const
{
    return simbolo == otra.simbolo && libre == otra.libre && grafica == otra.grafica &&
           metricas() == otra.metricas();
}

} // namespace ovanta
