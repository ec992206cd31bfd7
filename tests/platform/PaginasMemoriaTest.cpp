#include "platform/PaginasMemoria.h"

#include <gtest/gtest.h>

using namespace ovanta;

namespace {

constexpr std::uint64_t pagina = 16384;

} // namespace

TEST(CategoriasDeMemoria, followTheCountersPageByPage)
{
    const auto lectura = categoriasDeMemoria({.freeCount = 3,
                                              .wireCount = 5,
                                              .purgeableCount = 7,
                                              .compressorPageCount = 11,
                                              .externalPageCount = 13,
                                              .internalPageCount = 107,
                                              .swapouts = 17},
                                             pagina);
    EXPECT_EQ(lectura, (MemoriaSistema::Lectura{.apps = 100 * pagina,
                                                .wired = 5 * pagina,
                                                .comprimida = 11 * pagina,
                                                .cache = 20 * pagina,
                                                .libre = 3 * pagina,
                                                .swapouts = 17,
                                                .arranque = {}}));
}

TEST(CategoriasDeMemoria, morePurgeableThanInternalLeavesNothingToProgramsAndStillCountsAsCache)
{
    const auto lectura =
        categoriasDeMemoria({.purgeableCount = 90, .externalPageCount = 10, .internalPageCount = 89}, pagina);
    EXPECT_EQ(lectura.apps, 0);
    EXPECT_EQ(lectura.cache, 100 * pagina);
}

TEST(CategoriasDeMemoria, asManyPurgeableAsInternalLeavesNothingToPrograms)
{
    EXPECT_EQ(categoriasDeMemoria({.purgeableCount = 90, .internalPageCount = 90}, pagina).apps, 0);
    EXPECT_EQ(categoriasDeMemoria({.purgeableCount = 90, .internalPageCount = 91}, pagina).apps, pagina);
}

TEST(CategoriasDeMemoria, hold32BitCountersOfTheLargestPages)
{
    const std::uint64_t muchas = UINT32_MAX;
    const auto lectura = categoriasDeMemoria(
        {.purgeableCount = muchas, .externalPageCount = muchas, .internalPageCount = muchas}, 65536);
    EXPECT_EQ(lectura.cache, 2 * muchas * 65536);
}

TEST(CategoriasDeMemoriaDeathTest, aSizeThatDoesNotFitEndsTheProcess)
{
    EXPECT_DEATH((void)categoriasDeMemoria({.freeCount = UINT64_MAX}, pagina), "overflow");
}

TEST(NivelDeMemorystatus, knowsTwoLevelsAndTakesTheRestForNormal)
{
    using enum MemoriaSistema::Nivel;
    const struct
    {
        std::int32_t nivel;
        MemoriaSistema::Nivel esperado;
    } casos[] = {{2, tension}, {4, critico}, {0, normal}, {1, normal},
                 {3, normal},  {5, normal},  {-1, normal}};
    for (const auto &[nivel, esperado] : casos)
        EXPECT_EQ(nivelDeMemorystatus(nivel), esperado) << nivel;
}
