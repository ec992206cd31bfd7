#include "analysis/DigestosAparte.h"

#include <gtest/gtest.h>
#include <openssl/sha.h>
#include <string>

namespace ovanta::pruebas {
namespace {

Digesto digestoDe(const std::string &texto)
{
    Digesto digesto;
    ::SHA256(reinterpret_cast<const unsigned char *>(texto.data()), texto.size(), digesto.data());
    return digesto;
}

bool nadaQueHacer()
{
    return false;
}

TEST(DigestosAparte, givesOfEachTextWhatTheDigestOfTheWholeGives)
{
    DigestosAparte digestos(nadaQueHacer);
    std::vector<std::pair<std::string, const Digesto *>> pedidos;
    for (std::size_t i = 0; i < 3000; ++i) {
        std::string texto(i % 40 == 0 ? i * 300 : i, static_cast<char>('a' + i % 26));
        const auto digesto = digestos.empezar();
        digestos.agregar(digesto, texto.data(), texto.size() / 3);
        digestos.agregar(digesto, texto.data() + texto.size() / 3, texto.size() - texto.size() / 3);
        const Digesto *const lugar = digestos.terminar(digesto);
        pedidos.emplace_back(std::move(texto), lugar);
    }
    digestos.esperar();
    for (const auto &[texto, digesto] : pedidos)
        EXPECT_EQ(*digesto, digestoDe(texto)) << texto.size();
}

TEST(DigestosAparte, aCopyGoesOnFromWhereTheOtherStoodWhenItWasAskedFor)
{
    DigestosAparte digestos(nadaQueHacer);
    const std::string comienzo(300'000, 'x');
    const auto uno = digestos.empezar();
    digestos.agregar(uno, comienzo.data(), comienzo.size());
    const auto otro = digestos.copiar(uno);
    digestos.agregar(uno, "1", 1);
    digestos.agregar(otro, "2", 1);
    const Digesto *const delUno = digestos.terminar(uno);
    const Digesto *const delOtro = digestos.terminar(otro);
    digestos.esperar();
    EXPECT_EQ(*delUno, digestoDe(comienzo + "1"));
    EXPECT_EQ(*delOtro, digestoDe(comienzo + "2"));
}

TEST(DigestosAparte, goesOnAfterAWait)
{
    DigestosAparte digestos(nadaQueHacer);
    digestos.esperar();
    const auto digesto = digestos.empezar();
    digestos.agregar(digesto, "uno", 3);
    digestos.esperar();
    digestos.agregar(digesto, "dos", 3);
    const Digesto *const lugar = digestos.terminar(digesto);
    digestos.esperar();
    EXPECT_EQ(*lugar, digestoDe("unodos"));
}

TEST(DigestosAparte, whoAsksDoesSomethingElseWhileTheDigestsLagBehind)
{
    int pasos = 20;
    DigestosAparte digestos([&] { return pasos > 0 && pasos-- > 0; });
    const std::string texto(1 << 20, 'x');
    const auto digesto = digestos.empezar();
    std::string todo;
    for (int i = 0; i < 32; ++i) {
        digestos.agregar(digesto, texto.data(), texto.size());
        todo += texto;
    }
    const Digesto *const lugar = digestos.terminar(digesto);
    digestos.esperar();
    EXPECT_EQ(*lugar, digestoDe(todo));
    EXPECT_LT(pasos, 20);
}

TEST(DigestosAparte, endsInTheMiddleOfItsWork)
{
    const std::string texto(1 << 20, 'x');
    for (int i = 0; i < 50; ++i) {
        DigestosAparte digestos(nadaQueHacer);
        digestos.agregar(digestos.empezar(), texto.data(), texto.size());
    }
}

} // namespace
} // namespace ovanta::pruebas
