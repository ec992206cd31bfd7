#include "devices/TramasHttp2.h"

#include "tests/devices/BytesXPC.h"

#include <gtest/gtest.h>

using namespace ovanta;
using namespace ovanta::pruebas;

TEST(TramasHttp2, aFrameIsItsNineBytesAndItsPayload)
{
    EXPECT_EQ(http2::frame(4, 1, 0, {}), std::string("\0\0\0\x04\x01\0\0\0\0", 9));
    EXPECT_EQ(http2::frame(0, 0, 0x01020304, "abc"), std::string("\0\0\x03\0\0\x01\x02\x03\x04"
                                                                 "abc",
                                                                 12));
}

TEST(TramasHttp2, theLowTwentyFourBitsOfTheLengthAreWritten)
{
    for (const std::size_t largo : {0x0u, 0x1u, 0xFFFFu, 0xFFFFFFu, 0x1000000u, 0x1000005u}) {
        const std::string bytes = http2::frame(0, 0, 1, std::string(largo, 'x'));
        EXPECT_EQ(bytes.substr(0, 3), be(largo & 0xFFFFFF, 3)) << largo;
        EXPECT_EQ(bytes.size(), 9 + largo);
    }
}

TEST(TramasHttp2, aHeaderReadsBackAsItWasWritten)
{
    for (const std::size_t largo : {0u, 1u, 255u, 256u, 65536u})
        for (const std::uint32_t stream : {0u, 1u, 3u, 0x7FFFFFFFu, 0xFFFFFFFFu}) {
            const std::string bytes = http2::frame(0xFE, 0x85, stream, std::string(largo, 'x'));
            const http2::Cabecera esperada{
                .longitud = static_cast<std::uint32_t>(largo), .tipo = 0xFE, .flags = 0x85, .stream = stream};
            EXPECT_EQ(http2::leerCabecera(bytes.substr(0, 9)), esperada);
        }
}

TEST(TramasHttp2, theReservedBitOfTheStreamIsNotMasked)
{
    EXPECT_EQ(http2::leerCabecera(std::string("\0\0\0\0\0\x80\0\0\x01", 9)).stream, 0x80000001u);
}

TEST(TramasHttp2, settingsAndWindowsAreWrittenTheHighestByteFirst)
{
    EXPECT_EQ(http2::ajuste(3, 100), std::string("\0\x03\0\0\0\x64", 6));
    EXPECT_EQ(http2::incremento(983041), std::string("\0\x0F\0\x01", 4));
}
