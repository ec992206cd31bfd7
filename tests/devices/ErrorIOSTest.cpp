#include "devices/ErrorIOS.h"

#include <gtest/gtest.h>

using ovanta::ErrorIOS;

TEST(ErrorIOS, tellsAFaultOfTheSocketAsOneOfTheConnection)
{
    EXPECT_EQ(ErrorIOS::socket("usbmuxd no responde").errorDescription(), "Conexión: usbmuxd no responde");
}

TEST(ErrorIOS, tellsAFaultOfTheProtocolAsItStands)
{
    EXPECT_EQ(ErrorIOS::protocolo("respuesta ilegible").errorDescription(), "respuesta ilegible");
}

TEST(ErrorIOS, tellsAFaultOfTheCipherWithItsStatus)
{
    EXPECT_EQ(ErrorIOS::tls("lectura", -9803).errorDescription(), "Cifrado: lectura (-9803)");
}

TEST(ErrorIOS, passesAnotherErrorOnAsItCame)
{
    EXPECT_EQ(ErrorIOS::otro("No se pudo leer").errorDescription(), "No se pudo leer");
}
