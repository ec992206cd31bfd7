#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace ovanta {

/// The sections of the main window, in their own order (the sidebar's order is in `ordenLateral`).
enum class Seccion {
    resumen,
    espacio,
    desarrollo,
    oculto,
    duplicados,
    pesados,
    memoria,
    salud,
    automatizacion,
    simuladores,
    herramientas,
    historial,
    ajustes,
};

inline constexpr std::size_t numeroDeSecciones = 13;

/// What a section is called, in text, on screen and as a system symbol, and where the sidebar has it.
struct FichaSeccion
{
    Seccion seccion;
    std::string_view clave; ///< raw value
    std::string_view titulo;
    std::string_view icono;
    std::string_view grupo;
};

/// All sections in the order of their cases.
inline constexpr std::array<FichaSeccion, numeroDeSecciones> secciones{{
    {Seccion::resumen, "resumen", "Resumen", "gauge.with.dots.needle.67percent", "Disco"},
    {Seccion::espacio, "espacio", "Cachés", "shippingbox", "Disco"},
    {Seccion::desarrollo, "desarrollo", "Desarrollo", "hammer", "Disco"},
    {Seccion::oculto, "oculto", "Espacio oculto", "eye.slash", "Disco"},
    {Seccion::duplicados, "duplicados", "Duplicados", "doc.on.doc", "Disco"},
    {Seccion::pesados, "pesados", "Lo más pesado", "chart.bar.fill", "Disco"},
    {Seccion::memoria, "memoria", "Memoria", "memorychip", "Sistema"},
    {Seccion::salud, "salud", "Salud", "heart.text.square", "Sistema"},
    {Seccion::automatizacion, "automatizacion", "Automatización", "wand.and.stars", "Sistema"},
    {Seccion::simuladores, "simuladores", "Simuladores", "iphone.gen3", "Sistema"},
    {Seccion::herramientas, "herramientas", "Herramientas", "wrench.and.screwdriver", "Sistema"},
    {Seccion::historial, "historial", "Historial", "clock.arrow.circlepath", "Registro"},
    {Seccion::ajustes, "ajustes", "Ajustes", "gearshape", "Registro"},
}};

/// The order of the sidebar: group by group, which is not the order of the cases.
inline constexpr std::array<Seccion, numeroDeSecciones> ordenLateral{
    Seccion::resumen,        Seccion::espacio,     Seccion::desarrollo,   Seccion::duplicados,
    Seccion::pesados,        Seccion::oculto,      Seccion::memoria,      Seccion::salud,
    Seccion::automatizacion, Seccion::simuladores, Seccion::herramientas, Seccion::historial,
    Seccion::ajustes,
};

constexpr const FichaSeccion &ficha(Seccion seccion)
{
    return secciones[static_cast<std::size_t>(seccion)];
}

/// The section with this raw value.
constexpr std::optional<Seccion> seccionDeClave(std::string_view clave)
{
    for (const FichaSeccion &f : secciones)
        if (f.clave == clave) return f.seccion;
    return std::nullopt;
}

} // namespace ovanta
