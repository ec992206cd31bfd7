#include "monitors/Recomendaciones.h"

#include <algorithm>
#include <gmock/gmock.h>

using namespace ovanta;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using Accion = Recomendacion::Accion;
constexpr std::uint64_t gib = 1ULL << 30;

/// Case does not count, as far as ASCII goes.
bool contiene(std::string_view nombre, std::string_view palabra)
{
    const auto igual = [](char a, char b) { return std::tolower(a) == std::tolower(b); };
    return !std::ranges::search(nombre, palabra, igual).empty();
}

std::vector<Recomendacion> lista(const DatosRecomendaciones &datos)
{
    return calcularRecomendaciones(datos, contiene);
}

std::vector<std::string> ids(const DatosRecomendaciones &datos)
{
    std::vector<std::string> todos;
    for (const Recomendacion &una : lista(datos))
        todos.push_back(una.id);
    return todos;
}

Proceso proceso(std::int32_t id, const std::string &nombre, std::uint64_t rss, bool cerrable = true,
                std::size_t procesos = 1)
{
    return {id, 1, nombre, rss, 0, procesos, cerrable, ""};
}

DatosRecomendaciones conSwap(std::uint64_t swap, EstadoMemoria estado, int dias)
{
    return {16 * gib, swap, estado, dias, {}};
}

} // namespace

TEST(Recomendaciones, oldSwapIsToldWithTheDaysSinceTheStart)
{
    const std::string texto = "Hay 2 GB de swap de un pico anterior ocupando el SSD. Ahora no se usa, pero "
                              "solo se libera al reiniciar";
    struct Caso
    {
        int dias;
        std::string final;
    };
    for (const Caso &caso :
         {Caso{0, "."}, Caso{1, " (llevas 1 día sin reiniciar)."}, Caso{2, " (llevas 2 días sin reiniciar)."},
          Caso{30, " (llevas 30 días sin reiniciar)."}})
        EXPECT_THAT(
            lista(conSwap(2 * gib, EstadoMemoria::normal, caso.dias)),
            ElementsAre(Recomendacion{
                "swap-viejo", "arrow.clockwise.circle", texto + caso.final, {Accion::Clase::reiniciar}}));
}

TEST(Recomendaciones, swapCountsFromTwoGibibytesOn)
{
    EXPECT_THAT(ids(conSwap(2 * gib, EstadoMemoria::normal, 0)), ElementsAre("swap-viejo"));
    EXPECT_THAT(ids(conSwap(2 * gib - 1, EstadoMemoria::normal, 0)), IsEmpty());
    EXPECT_THAT(ids(conSwap(2 * gib - 1, EstadoMemoria::critico, 0)), IsEmpty());
}

TEST(Recomendaciones, activeSwapExcludesTheUptimeHoweverLongTheMachineRan)
{
    const std::string texto =
        "Se está escribiendo swap ahora mismo (3 GB acumulados). Cierra algo de la lista de "
        "abajo antes de reiniciar, o volverá a llenarse.";
    for (const EstadoMemoria estado : {EstadoMemoria::tension, EstadoMemoria::critico})
        EXPECT_THAT(lista(conSwap(3 * gib, estado, 400)),
                    ElementsAre(Recomendacion{
                        "swap-activo", "exclamationmark.arrow.triangle.2.circlepath", texto, {}}));
}

TEST(Recomendaciones, theUptimeIsToldFromFourteenDaysOn)
{
    EXPECT_THAT(ids(conSwap(0, EstadoMemoria::normal, 13)), IsEmpty());
    EXPECT_THAT(
        lista(conSwap(0, EstadoMemoria::critico, 14)),
        ElementsAre(Recomendacion{"uptime",
                                  "clock.arrow.circlepath",
                                  "Llevas 14 días sin reiniciar. Reiniciar de vez en cuando limpia fugas "
                                  "de memoria de apps y servicios.",
                                  {Accion::Clase::reiniciar}}));
}

TEST(Recomendaciones, theTopConsumerIsToldFromFifteenPerCentOn)
{
    const auto con = [](std::uint64_t rss) {
        return DatosRecomendaciones{1000, 0, EstadoMemoria::normal, 0, {proceso(7, "Cosa", rss)}};
    };
    EXPECT_THAT(ids(con(149)), IsEmpty());
    EXPECT_THAT(ids(con(150)), ElementsAre("top-7"));
}

TEST(Recomendaciones, theTopConsumerTellsShareAndProcesses)
{
    DatosRecomendaciones datos{16 * gib, 0, EstadoMemoria::normal, 0, {proceso(7, "Cosa", 3 * gib)}};
    EXPECT_THAT(lista(datos),
                ElementsAre(Recomendacion{"top-7", "chart.bar.xaxis", "Cosa usa 3 GB (18 % de la RAM).",
                                          Accion::cerrar(7)}));
    datos.procesos[0].procesos = 2;
    datos.procesos[0].sePuedeCerrar = false;
    EXPECT_THAT(
        lista(datos),
        ElementsAre(Recomendacion{
            "top-7", "chart.bar.xaxis", "Cosa usa 3 GB (18 % de la RAM) repartidos en 2 procesos.", {}}));
}

TEST(Recomendaciones, browsersGetATip)
{
    const std::string consejo =
        " Cerrar pestañas o activar el ahorro de memoria del navegador lo reduce mucho.";
    for (const std::string nombre : {"Google Chrome", "CHROME", "Microsoft Edge", "edgeworth"})
        EXPECT_EQ(lista({16 * gib, 0, EstadoMemoria::normal, 0, {proceso(7, nombre, 4 * gib)}}).at(0).texto,
                  nombre + " usa 4 GB (25 % de la RAM)." + consejo);
    EXPECT_EQ(lista({16 * gib, 0, EstadoMemoria::normal, 0, {proceso(7, "Firefox", 4 * gib)}}).at(0).texto,
              "Firefox usa 4 GB (25 % de la RAM).");
}

TEST(Recomendaciones, anUnknownTotalHasNoTopConsumer)
{
    EXPECT_THAT(ids({0, 0, EstadoMemoria::normal, 0, {proceso(7, "Cosa", gib)}}), IsEmpty());
}

TEST(Recomendaciones, theKeepersOfMemoryAreToldInTheirOrder)
{
    const DatosRecomendaciones datos{1000 * gib,
                                     0,
                                     EstadoMemoria::normal,
                                     0,
                                     {proceso(1, "LM Studio", 5 * gib), proceso(2, "ollama", 4 * gib, false),
                                      proceso(3, "Simulator", 3 * gib), proceso(4, "Docker Desktop", gib)}};
    EXPECT_THAT(
        lista(datos),
        ElementsAre(
            Recomendacion{
                "dev-Docker", "lightbulb",
                "Docker Desktop: 1 GB. Docker reserva memoria para su máquina virtual aunque no tengas "
                "contenedores activos. Ciérralo si no lo usas o baja su límite en Ajustes → Resources.",
                Accion::cerrar(4)},
            Recomendacion{
                "dev-Simulator",
                "lightbulb",
                "Simulator: 3 GB. Hay simuladores de iOS arrancados; cada uno ocupa entre 1 y 2 GB.",
                {Accion::Clase::simuladores}},
            Recomendacion{
                "dev-ollama",
                "lightbulb",
                "ollama: 4 GB. Ollama mantiene el modelo cargado en memoria unos minutos tras usarlo. "
                "`ollama stop <modelo>` lo libera al momento.",
                {}},
            Recomendacion{
                "dev-LM Studio", "lightbulb",
                "LM Studio: 5 GB. LM Studio mantiene el modelo cargado. Expúlsalo desde la app para "
                "liberar esa memoria.",
                Accion::cerrar(1)}));
}

TEST(Recomendaciones, aKeeperNeedsAGibibyteAndOnlyTheFirstOfItsNameIsLookedAt)
{
    DatosRecomendaciones datos{1000 * gib, 0, EstadoMemoria::normal, 0, {proceso(1, "docker", gib)}};
    EXPECT_THAT(ids(datos), ElementsAre("dev-Docker"));
    datos.procesos = {proceso(1, "docker", gib - 1), proceso(2, "Docker", 9 * gib)};
    EXPECT_THAT(ids(datos), IsEmpty());
}

TEST(Recomendaciones, dockerAsTopConsumerIsToldOnce)
{
    const DatosRecomendaciones datos{10 * gib,
                                     3 * gib,
                                     EstadoMemoria::normal,
                                     0,
                                     {proceso(1, "Docker", 2 * gib), proceso(2, "ollama", gib)}};
    EXPECT_THAT(ids(datos), ElementsAre("swap-viejo", "top-1", "dev-ollama"));
}

TEST(Recomendaciones, numbersAreWrittenAsTheLanguageDoes)
{
    const std::uint64_t swap = 2 * gib + gib / 2;
    EXPECT_TRUE(lista(conSwap(swap, EstadoMemoria::normal, 0)).at(0).texto.starts_with("Hay 2,5 GB de swap"));
}
