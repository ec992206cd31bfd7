#include "platform/linux/HiloConLimite.h"

#include <atomic>
#include <future>
#include <gtest/gtest.h>
#include <memory>
#include <thread>

using namespace ovanta;

namespace {

constexpr std::chrono::milliseconds mucho{30'000};
constexpr std::chrono::milliseconds nada{0};

} // namespace

TEST(HiloConLimite, workThatEndsInTimeIsDone)
{
    HiloConLimite hilo;
    const auto hechas = std::make_shared<int>(0);
    for (int i = 0; i < 3; ++i)
        EXPECT_TRUE(hilo.correr([hechas] { ++*hechas; }, mucho));
    EXPECT_EQ(*hechas, 3);
}

TEST(HiloConLimite, everybodyGetsATurn)
{
    HiloConLimite hilo;
    const auto hechas = std::make_shared<std::atomic<int>>(0);
    std::vector<std::thread> otros;
    for (int i = 0; i < 4; ++i)
        otros.emplace_back([&] {
            for (int j = 0; j < 50; ++j)
                EXPECT_TRUE(hilo.correr([hechas] { ++*hechas; }, mucho));
        });
    for (std::thread &otro : otros)
        otro.join();
    EXPECT_EQ(*hechas, 200);
}

TEST(HiloConLimite, whileOneHangsTheOthersAreRefusedAndThenServedAgain)
{
    HiloConLimite hilo;
    auto puerta = std::make_shared<std::promise<void>>();
    auto pasa = std::make_shared<std::promise<void>>();
    EXPECT_FALSE(hilo.correr(
        [puerta, pasa] {
            puerta->get_future().wait();
            pasa->set_value();
        },
        nada));
    EXPECT_FALSE(hilo.correr([] {}, mucho));
    puerta->set_value();
    pasa->get_future().wait();
    while (!hilo.correr([] {}, mucho))
        std::this_thread::yield();
}

TEST(HiloConLimite, oneThatHangsAtTheEndIsLeftBehind)
{
    auto puerta = std::make_shared<std::promise<void>>();
    auto pasa = std::make_shared<std::promise<void>>();
    auto fin = pasa->get_future();
    {
        HiloConLimite hilo;
        EXPECT_FALSE(hilo.correr(
            [puerta, pasa] {
                puerta->get_future().wait();
                pasa->set_value();
            },
            nada));
    }
    puerta->set_value();
    fin.wait();
}
