#include "core/plist/ValorPlist.h"

#include <cmath>
#include <gtest/gtest.h>

using namespace ovanta;

TEST(ValorPlist, equalIntegersAreEqualValuesWhateverTypeTheyCameIn)
{
    EXPECT_EQ(ValorPlist{5}, ValorPlist{std::uint64_t{5}});
    EXPECT_EQ(ValorPlist{std::int16_t{-1}}, ValorPlist{std::int64_t{-1}});
    EXPECT_NE(ValorPlist{std::uint64_t{1} << 63}, ValorPlist{std::numeric_limits<std::int64_t>::min()});
    EXPECT_NE(ValorPlist{1}, ValorPlist{true});
    EXPECT_NE(ValorPlist{1}, ValorPlist{1.0});
    EXPECT_EQ(ValorPlist{std::nan("")}, ValorPlist{std::nan("1")});
}

TEST(ValorPlist, aNumberOfAnyTypeCanBeAskedFor)
{
    EXPECT_EQ(ValorPlist{7}.numero(), 7.0);
    EXPECT_EQ(ValorPlist{true}.numero(), 1.0);
    EXPECT_EQ(ValorPlist{2.5}.numero(), 2.5);
    EXPECT_EQ(ValorPlist{~std::uint64_t{0}}.numero(), 18446744073709551616.0);
    EXPECT_EQ(ValorPlist{"7"}.numero(), std::nullopt);
}

TEST(ValorPlist, aRealCountsAsAnIntegerOnlyWhereItIsOne)
{
    EXPECT_EQ(ValorPlist{7.0}.entero(), 7);
    EXPECT_EQ(ValorPlist{false}.entero(), 0);
    EXPECT_EQ(ValorPlist{-9223372036854775808.0}.entero(), std::numeric_limits<std::int64_t>::min());
    for (const double real : {7.5, 9223372036854775808.0, 1e300, -1e300, std::nan(""), HUGE_VAL})
        EXPECT_EQ(ValorPlist{real}.entero(), std::nullopt) << real;
    EXPECT_EQ(ValorPlist{~std::uint64_t{0}}.entero(), std::nullopt);
    EXPECT_EQ(ValorPlist{DatosPlist{"7"}}.entero(), std::nullopt);
}

TEST(ValorPlist, aDictionaryFindsReplacesAndKeepsItsKeysInOrder)
{
    DiccionarioPlist dic{{"b", 1}, {"a", 2}, {"b", 3}};
    ASSERT_EQ(dic.size(), 2U);
    EXPECT_EQ(dic.entradas().front().clave, "a");
    EXPECT_EQ(*dic.buscar("b"), 3);
    dic.poner("c", "x");
    dic.poner("a", "y");
    EXPECT_EQ(*dic.valor<std::string>("a"), "y");
    EXPECT_EQ(dic.valor<bool>("a"), nullptr);
    EXPECT_EQ(dic.buscar("z"), nullptr);
    EXPECT_EQ(dic.size(), 3U);
}

TEST(ValorPlist, isPrintedForAMessage)
{
    EXPECT_EQ(textoPlano("Failure"), "Failure");
    EXPECT_EQ(textoPlano(5), "5");
    EXPECT_EQ(textoPlano(~std::uint64_t{0}), "18446744073709551615");
    EXPECT_EQ(textoPlano(true), "1");
    EXPECT_EQ(textoPlano(1.5), "1.5");
    EXPECT_EQ(textoPlano(DatosPlist{"abc"}), "3 bytes");
    EXPECT_EQ(textoPlano(UidPlist{4}), "4");
    EXPECT_EQ(textoPlano(Fecha{}), "1970-01-01T00:00:00Z");
    EXPECT_EQ(textoPlano(ListaPlist{1, "a"}), "[1, a]");
    EXPECT_EQ(textoPlano(DiccionarioPlist{{"k", ListaPlist{}}}), "[k: []]");
}
