#include "core/Ejecutar.h"

#include <gtest/gtest.h>

using namespace ovanta;

TEST(ShellError, aToolThatIsMissingIsNamed)
{
    EXPECT_STREQ(ShellError::noEncontrado("/usr/bin/du").what(),
                 "No se encontró «/usr/bin/du» en el sistema.");
    EXPECT_STREQ(ShellError::noEncontrado("xcrun (¿está instalado Xcode?)").what(),
                 "No se encontró «xcrun (¿está instalado Xcode?)» en el sistema.");
}

TEST(ShellError, theToolsOwnTextIsShownTrimmed)
{
    EXPECT_STREQ(ShellError::fallo(1, " \n\tno se pudo: ñ\r\n").what(), "no se pudo: ñ");
}

TEST(ShellError, aTextOfBlanksFallsBackToTheNumberedMessage)
{
    EXPECT_STREQ(ShellError::fallo(3, " \n\t\r\n").what(), "El comando terminó con código 3.");
    EXPECT_STREQ(ShellError::fallo(1, "").what(), "El comando terminó con código 1.");
}

TEST(ShellError, aLimitOfSixtyAndAHalfSecondsReadsAsSixty)
{
    EXPECT_STREQ(ShellError::agotado("du", 60.5).what(), "«du» no respondió en 60 s y se detuvo.");
}
