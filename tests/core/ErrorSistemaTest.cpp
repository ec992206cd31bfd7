#include "core/ErrorSistema.h"

#include <cerrno>
#include <gtest/gtest.h>

using namespace ovanta;

TEST(ErrorSistema, theErrorsOfEverydayReadAsSpanishPhrases)
{
    EXPECT_EQ(textoErrno(EACCES), "no tienes permiso");
    EXPECT_EQ(textoErrno(ENOSPC), "no queda espacio en el disco");
    EXPECT_EQ(textoErrno(ENOENT), "ya no existe");
    EXPECT_EQ(textoErrno(EROFS), "el disco es de solo lectura");
    EXPECT_EQ(textoErrno(EXDEV), "está en otro volumen");
}

TEST(ErrorSistema, anErrorThatIsNotListedShowsItsNumber)
{
    EXPECT_EQ(textoErrno(EL2HLT), "error del sistema " + std::to_string(EL2HLT));
    EXPECT_EQ(textoErrno(-7), "error del sistema -7");
}

TEST(ErrorSistema, noTextEndsInAFullStopOrIsEmpty)
{
    for (int codigo = 1; codigo < 140; ++codigo) {
        const std::string texto = textoErrno(codigo);
        ASSERT_FALSE(texto.empty()) << codigo;
        EXPECT_NE(texto.back(), '.') << codigo;
    }
}
