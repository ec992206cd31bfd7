#include "app/NavegacionAplicacion.h"

#include <QSignalSpy>
#include <gtest/gtest.h>
#include <set>

using namespace ovanta;

TEST(NavegacionAplicacion, startsAtTheSummary)
{
    const NavegacionAplicacion navegacion;
    EXPECT_EQ(navegacion.seleccion(), Seccion::resumen);
    EXPECT_EQ(navegacion.claveSeleccionada(), QStringLiteral("resumen"));
}

TEST(NavegacionAplicacion, tellsOnlyRealChanges)
{
    NavegacionAplicacion navegacion;
    const QSignalSpy espia(&navegacion, &NavegacionAplicacion::seleccionChanged);
    navegacion.seleccionarClave(QStringLiteral("espacio"));
    navegacion.seleccionarClave(QStringLiteral("espacio"));
    EXPECT_EQ(espia.count(), 1);
    EXPECT_EQ(navegacion.seleccion(), Seccion::espacio);
}

TEST(NavegacionAplicacion, anUnknownKeySelectsNothing)
{
    NavegacionAplicacion navegacion;
    navegacion.seleccionarClave(QStringLiteral("otra"));
    EXPECT_EQ(navegacion.seleccion(), std::nullopt);
    EXPECT_EQ(navegacion.claveSeleccionada(), QString());
}

TEST(Seccion, theTableStandsInTheOrderOfTheCases)
{
    for (std::size_t i = 0; i < secciones.size(); ++i)
        EXPECT_EQ(static_cast<std::size_t>(secciones[i].seccion), i);
}

TEST(Seccion, theSidebarShowsEverySectionOnceGroupByGroup)
{
    const std::set<Seccion> todas(ordenLateral.begin(), ordenLateral.end());
    EXPECT_EQ(todas.size(), numeroDeSecciones);
    std::vector<std::string_view> grupos;
    for (const Seccion seccion : ordenLateral)
        if (grupos.empty() || grupos.back() != ficha(seccion).grupo) grupos.push_back(ficha(seccion).grupo);
    EXPECT_EQ(grupos, (std::vector<std::string_view>{"Disco", "Sistema", "Registro"}));
    EXPECT_EQ(ordenLateral[3], Seccion::duplicados);
    EXPECT_EQ(ordenLateral[5], Seccion::oculto);
}

TEST(Seccion, keysLeadBackToTheirSection)
{
    for (const FichaSeccion &f : secciones)
        EXPECT_EQ(seccionDeClave(f.clave), f.seccion);
    EXPECT_EQ(seccionDeClave(""), std::nullopt);
}
