#include "app/ToquesDelIcono.h"

#include <gtest/gtest.h>

using namespace ovanta;
using Accion = ToquesDelIcono::Accion;
using std::chrono::milliseconds;

namespace {

const Fecha entonces{std::chrono::seconds{1'000'000}};

} // namespace

TEST(ToquesDelIcono, aClickOpensAndTheNextOneCloses)
{
    ToquesDelIcono toques;
    EXPECT_EQ(toques.pulsar(false, entonces), Accion::abrir);
    EXPECT_EQ(toques.pulsar(true, entonces + milliseconds{10}), Accion::cerrar);
    EXPECT_EQ(toques.pulsar(false, entonces + milliseconds{20}), Accion::abrir);
}

TEST(ToquesDelIcono, theClickThatTookTheFocusDoesNotReopen)
{
    ToquesDelIcono toques;
    toques.panelPerdioElFoco(entonces);
    EXPECT_EQ(toques.pulsar(false, entonces + milliseconds{120}), Accion::nada);
    EXPECT_EQ(toques.pulsar(false, entonces + milliseconds{150}), Accion::abrir) << "only that one click";
}

TEST(ToquesDelIcono, aLaterClickOpens)
{
    ToquesDelIcono toques;
    toques.panelPerdioElFoco(entonces);
    EXPECT_EQ(toques.pulsar(false, entonces + milliseconds{400}), Accion::abrir);
}

TEST(ToquesDelIcono, aClockThatWasSetBackDoesNotKeepThePanelAway)
{
    ToquesDelIcono toques;
    toques.panelPerdioElFoco(entonces);
    EXPECT_EQ(toques.pulsar(false, entonces - std::chrono::hours{1}), Accion::abrir);
}
