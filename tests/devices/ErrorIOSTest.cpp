#include "devices/ErrorIOS.h"

#include <gtest/gtest.h>

using ovanta::ErrorIOS;

TEST(ErrorIOS, tells_a_fault_of_the_socket_as_one_of_the_connection)
{
    EXPECT_EQ(ErrorIOS::socket("usbmuxd no responde").errorDescription(), "Conexión: usbmuxd no responde");
}

TEST(ErrorIOS, tells_a_fault_of_the_protocol_as_it_stands)
{
    EXPECT_EQ(ErrorIOS::protocolo("respuesta ilegible").errorDescription(), "respuesta ilegible");
}

TEST(ErrorIOS, tells_a_fault_of_the_cipher_with_its_status)
{
    EXPECT_EQ(ErrorIOS::tls("lectura", -9803).errorDescription(), "Cifrado: lectura (-9803)");
}

TEST(ErrorIOS, passes_another_error_on_as_it_came)
{
    EXPECT_EQ(ErrorIOS::otro("No se pudo leer").errorDescription(), "No se pudo leer");
}
