#include "core/Base64.h"

#include <gtest/gtest.h>
#include <random>

using namespace ovanta;

TEST(Base64, givesTheExamplesOfItsStandard)
{
    const std::pair<std::string, std::string> casos[] = {{"", ""},
                                                         {"f", "Zg=="},
                                                         {"fo", "Zm8="},
                                                         {"foo", "Zm9v"},
                                                         {"foob", "Zm9vYg=="},
                                                         {"fooba", "Zm9vYmE="},
                                                         {"foobar", "Zm9vYmFy"}};
    for (const auto &[bytes, texto] : casos) {
        EXPECT_EQ(aBase64(bytes), texto);
        EXPECT_EQ(deBase64(texto), bytes);
    }
}

TEST(Base64, anyBytesComeBack)
{
    std::mt19937 azar{3};
    for (std::size_t largo = 0; largo < 300; ++largo) {
        std::string bytes(largo, '\0');
        for (char &byte : bytes)
            byte = static_cast<char>(azar());
        ASSERT_EQ(deBase64(aBase64(bytes)), bytes);
    }
}

TEST(Base64, anythingElseGivesNothing)
{
    for (const char *texto : {"Zg", "Zg=", "Zm9v\n", "Zm9v\r", "Zm 9v",
                              "=g==", "Z===", "====", "Zg==Zg==", "Zm9*", "Zm9-", "Zm9_", "Zm9\xC3"})
        EXPECT_EQ(deBase64(texto), std::nullopt) << texto;
}
