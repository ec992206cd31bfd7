#include "core/qt/SegundoPlano.h"

#include <QCoroFuture>
#include <QCoroTask>
#include <QEventLoop>
#include <QSemaphore>
#include <QThread>
#include <QTimer>
#include <gtest/gtest.h>

using namespace ovanta;

namespace {

QCoro::Task<> sumar(int a, int b, int *resultado, QThread **hilo)
{
    auto trabajo = [a, b, hilo] {
        *hilo = QThread::currentThread();
        return a + b;
    };
    auto futuro = enSegundoPlano(Prioridad::Utilidad, trabajo);
    *resultado = co_await futuro;
    EXPECT_EQ(QThread::currentThread(), QCoreApplication::instance()->thread());
}

} // namespace

TEST(SegundoPlano, workRunsElsewhereAndComesBackToTheMainThread)
{
    int resultado = 0;
    QThread *hilo = nullptr;
    QCoro::waitFor(sumar(2, 3, &resultado, &hilo));
    EXPECT_EQ(resultado, 5);
    EXPECT_NE(hilo, QThread::currentThread());
}

TEST(SegundoPlano, manyTasksAllFinish)
{
    std::atomic<int> hechas = 0;
    for (int i = 0; i < 200; ++i) {
        auto trabajo = [&hechas] { ++hechas; };
        enSegundoPlano(i % 2 ? Prioridad::Usuario : Prioridad::Utilidad, trabajo);
    }
    EXPECT_TRUE(esperarSegundoPlano(20'000));
    EXPECT_EQ(hechas, 200);
}

TEST(SegundoPlano, waitingForAStuckTaskGivesUp)
{
    QSemaphore suelta;
    auto trabajo = [&suelta] { suelta.acquire(); };
    enSegundoPlano(Prioridad::Usuario, trabajo);
    EXPECT_FALSE(esperarSegundoPlano(20));
    suelta.release();
    EXPECT_TRUE(esperarSegundoPlano(20'000));
}
