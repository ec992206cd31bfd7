#include "platform/simulada/RelojSimulado.h"

#include <QEventLoop>
#include <QTest>
#include <gmock/gmock.h>

namespace ovanta {
namespace {

using namespace std::chrono_literals;

TEST(SimuladaReloj, EnMarchaDaLaHoraDeLaMaquinaMasLoAdelantado)
{
    RelojSimulado reloj;
    const Fecha antes = reloj.ahora();
    reloj.avanzar(48h);
    EXPECT_GE(reloj.ahora(), antes + 48h);
    EXPECT_LT(reloj.ahora(), antes + 49h);
}

TEST(SimuladaReloj, EnMarchaLosTemporizadoresCorrenSolos)
{
    RelojSimulado reloj;
    int repetido = 0;
    int unico = 0;
    const auto cada = reloj.cada(5ms, 0ms, [&] { ++repetido; });
    const auto una = reloj.unaVez(1ms, [&] { ++unico; });
    EXPECT_TRUE(QTest::qWaitFor([&] { return repetido >= 3; }, 10'000));
    EXPECT_EQ(unico, 1);
}

TEST(SimuladaReloj, DestruirUnTemporizadorLoPara)
{
    RelojSimulado reloj;
    int veces = 0;
    auto cada = reloj.cada(1ms, 0ms, [&] { ++veces; });
    ASSERT_TRUE(QTest::qWaitFor([&] { return veces >= 1; }, 10'000));
    cada.reset();
    const int hasta = veces;
    QTest::qWait(20);
    EXPECT_EQ(veces, hasta);
}

TEST(SimuladaReloj, DetenidoSoloSeMueveConAvanzar)
{
    RelojSimulado reloj;
    const Fecha inicio = *leerISO8601("2026-11-21T00:00:00Z");
    reloj.detener(inicio);
    std::vector<Fecha> disparos;
    const auto cada = reloj.cada(60s, 6s, [&] { disparos.push_back(reloj.ahora()); });
    const auto una = reloj.unaVez(90s, [&] { disparos.push_back(reloj.ahora()); });
    QTest::qWait(5);
    EXPECT_EQ(reloj.ahora(), inicio);
    reloj.avanzar(150s);
    EXPECT_THAT(disparos, testing::ElementsAre(inicio + 60s, inicio + 90s, inicio + 120s));
    EXPECT_EQ(reloj.ahora(), inicio + 150s);
}

} // namespace
} // namespace ovanta
