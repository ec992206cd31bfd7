#include "core/Utf8.h"

#include <gtest/gtest.h>
#include <string>

using namespace ovanta;
using namespace std::string_literals;

TEST(Utf8, wellFormedTextOfEveryLengthIsAccepted)
{
    for (const std::string &texto :
         {""s, "a"s, "\0nul\0"s, "ocho letras y más"s, "ñ"s, "€"s, "😀"s, "\x7f"s, "\u0080"s, "\u07ff"s,
          "\u0800"s, "\ud7ff"s, "\ue000"s, "\uffff"s, "\U00010000"s, "\U0010ffff"s, "12345678ñ12345678€"s}) {
        EXPECT_TRUE(esUtf8(texto)) << texto;
    }
}

TEST(Utf8, malformedBytesAreRefused)
{
    for (const std::string &bytes :
         {"\x80"s, "\xbf"s, "\xc0\x80"s, "\xc1\xbf"s, "\xc2"s, "\xc2\x41"s, "\xe0\x9f\xbf"s, "\xe2\x82"s,
          "\xe2\x82\x41"s, "\xed\xa0\x80"s, "\xed\xbf\xbf"s, "\xf0\x8f\xbf\xbf"s, "\xf0\x9f\x98"s,
          "\xf4\x90\x80\x80"s, "\xf5\x80\x80\x80"s, "\xff"s}) {
        EXPECT_FALSE(esUtf8(bytes));
        EXPECT_FALSE(esUtf8("ocho o más letras antes " + bytes));
        EXPECT_FALSE(esUtf8(bytes + " y después"));
    }
}

TEST(Utf8, aBadByteIsFoundAtEveryOffset)
{
    for (std::size_t i = 0; i < 40; ++i) {
        std::string texto(40, 'a');
        texto[i] = '\xff';
        EXPECT_FALSE(esUtf8(texto)) << i;
    }
}

TEST(Utf8, repairingLeavesGoodTextAlone)
{
    for (const std::string &texto : {""s, "a"s, "\0nul\0"s, "ocho letras y más"s, "😀"s})
        EXPECT_EQ(repararUtf8(texto), texto);
}

TEST(Utf8, eachPieceThatCouldHaveBegunACharacterIsReplacedOnce)
{
    const std::string signo = "\ufffd";
    EXPECT_EQ(repararUtf8("a\xffz"), "a" + signo + "z");
    EXPECT_EQ(repararUtf8("\xe2\x82"), signo);
    EXPECT_EQ(repararUtf8("\xe2\x82\x41"), signo + "A");
    EXPECT_EQ(repararUtf8("\xf0\x9f\x98\xc3\xb1"), signo + "ñ");
    EXPECT_EQ(repararUtf8("\xc0\x80"), signo + signo);
    EXPECT_EQ(repararUtf8("\xed\xa0\x80"), signo + signo + signo);
    EXPECT_EQ(repararUtf8("\xf4\x90\x80\x80"), signo + signo + signo + signo);
    EXPECT_EQ(repararUtf8("\xf0\x9f\x98\xff"), signo + signo);
}
