#include "ApoyoEjecutar.h"

#include <cmath>
#include <cstdlib>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <limits>
#include <memory>
#include <sstream>
#include <unistd.h>

using namespace ovanta;

namespace {

constexpr std::size_t mib = 1024 * 1024;

/// Sets a variable of this process (or unsets it) and puts it back at the end.
class VariableTemporal
{
public:
    VariableTemporal(const char *nombre, const char *valor) : m_nombre(nombre)
    {
        if (const char *antes = std::getenv(nombre)) m_antes = antes;
        poner(valor);
    }
    VariableTemporal(const VariableTemporal &) = delete;
    VariableTemporal &operator=(const VariableTemporal &) = delete;
    ~VariableTemporal() { poner(m_antes ? m_antes->c_str() : nullptr); }

private:
    void poner(const char *valor) { valor == nullptr ? ::unsetenv(m_nombre) : ::setenv(m_nombre, valor, 1); }

    const char *m_nombre;
    std::optional<std::string> m_antes;
};

std::string pathDeLaHerramienta()
{
    return sh("printf %s \"$PATH\"");
}

} // namespace

TEST(Ejecutar, returnsTheStandardOutputAndNotTheErrorOutput)
{
    EXPECT_EQ(sh("echo salida; echo error >&2"), "salida\n");
}

TEST(Ejecutar, argumentsArriveAsTheyAre)
{
    const std::vector<std::string> args{
        "-c", R"(printf '<%s>' "$@")", "sh", "", "dos palabras", "$HOME *", "ñ\n\xff"};
    EXPECT_EQ(ejecutar("/bin/sh", args, deSobra, false), "");
    EXPECT_EQ(ejecutar("/bin/sh", {args.begin(), args.end() - 1}, deSobra, false),
              "<><dos palabras><$HOME *>");
}

TEST(Ejecutar, moreThanAPipeHoldsComesBackWholeFromEitherStream)
{
    const std::string salida =
        sh("head -c 8388608 /dev/zero | tr '\\0' x & head -c 8388608 /dev/zero >&2; wait");
    EXPECT_TRUE(salida == std::string(8 * mib, 'x'));

    const auto error = errorDe([] { sh("head -c 8388608 /dev/zero | tr '\\0' e >&2; exit 1"); });
    ASSERT_TRUE(error);
    EXPECT_TRUE(error->what() == std::string(8 * mib, 'e'));
}

TEST(Ejecutar, outputThatIsNotUtf8CountsAsEmpty)
{
    EXPECT_EQ(sh("printf 'bien\\377mal'"), "");
    EXPECT_EQ(sh("printf 'a\\0b'"), std::string("a\0b", 3));
}

TEST(Ejecutar, aToolThatIsAbsentOrNoExecutableFileIsNotFound)
{
    const CarpetaTemporal carpeta;
    const std::string sinPermiso = carpeta.crear("sin-permiso", "#!/bin/sh\n", 0644);
    for (const std::string &binario :
         {std::string("/no/existe"), sinPermiso, carpeta.ruta(""), std::string("sh"), std::string()}) {
        const auto error = errorDe([&] { ejecutar(binario, {}, deSobra, true); });
        ASSERT_TRUE(error) << binario;
        EXPECT_EQ(error->caso(), ShellError::Caso::noEncontrado);
        EXPECT_EQ(error->what(), "No se encontró «" + binario + "» en el sistema.");
    }
}

TEST(Ejecutar, aPathWithANulDoesNotRunTheToolBeforeIt)
{
    const auto error = errorDe([] { ejecutar(std::string("/bin/sh\0x", 9), {"-c", ":"}, deSobra, true); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->caso(), ShellError::Caso::noEncontrado);
}

TEST(Ejecutar, aLaunchThatTheSystemRefusesGivesTheSystemsError)
{
    const CarpetaTemporal carpeta;
    const std::string sinInterprete = carpeta.crear("texto", "no es un programa\n", 0755);
    const std::string otroInterprete = carpeta.crear("guion", "#!/no/existe\n", 0755);
    EXPECT_EQ(errorSistemaDe([&] { ejecutar(sinInterprete, {}, deSobra, true); }),
              std::errc::executable_format_error);
    EXPECT_EQ(errorSistemaDe([&] { ejecutar(otroInterprete, {}, deSobra, true); }),
              std::errc::no_such_file_or_directory);
}

TEST(Ejecutar, anArgumentWithANulIsRefusedAndNotCutShort)
{
    EXPECT_EQ(errorSistemaDe([] { ejecutar("/bin/echo", {std::string("a\0b", 3)}, deSobra, false); }),
              std::errc::invalid_argument);
}

TEST(Ejecutar, aFailureCarriesTheCodeAndTheErrorText)
{
    const auto error = errorDe([] { sh("echo salida; echo ' no se pudo ' >&2; exit 3"); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->caso(), ShellError::Caso::fallo);
    EXPECT_EQ(error->codigo(), 3);
    EXPECT_STREQ(error->what(), "no se pudo");
}

TEST(Ejecutar, withoutErrorTextTheOutputIsTheText)
{
    const auto error = errorDe([] { sh("echo salida; exit 3"); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->codigo(), 3);
    EXPECT_STREQ(error->what(), "salida");
}

TEST(Ejecutar, errorTextThatIsNotUtf8GivesWayToTheOutput)
{
    const auto error = errorDe([] { sh("echo salida; printf '\\377' >&2; exit 1"); });
    ASSERT_TRUE(error);
    EXPECT_STREQ(error->what(), "salida");
}

TEST(Ejecutar, errorTextOfBlanksFallsBackToTheNumberedMessage)
{
    const auto error = errorDe([] { sh("echo salida; printf ' \\n\\n' >&2; exit 4"); });
    ASSERT_TRUE(error);
    EXPECT_STREQ(error->what(), "El comando terminó con código 4.");
}

TEST(Ejecutar, aToleratedFailureReturnsTheOutput)
{
    EXPECT_EQ(sh("echo 12; echo denegado >&2; exit 1", deSobra, true), "12\n");
}

TEST(Ejecutar, aToleratedFailureWithoutOutputIsAFailure)
{
    for (const char *guion : {"echo denegado >&2; exit 1", "printf '\\377'; echo denegado >&2; exit 1"}) {
        const auto error = errorDe([guion] { sh(guion, deSobra, true); });
        ASSERT_TRUE(error) << guion;
        EXPECT_EQ(error->caso(), ShellError::Caso::fallo);
        EXPECT_STREQ(error->what(), "denegado");
    }
}

TEST(Ejecutar, aToolThatASignalEndsFailsWith128AndTheSignal)
{
    const auto error = errorDe([] { sh("kill -9 $$"); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->codigo(), 137);
    EXPECT_STREQ(error->what(), "El comando terminó con código 137.");
}

TEST(Ejecutar, aToolThatIsTooSlowIsStoppedAndItsOutputDropped)
{
    const auto error = errorDe([] { sh("echo algo; exec sleep 1000", 1.7, true); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->caso(), ShellError::Caso::agotado);
    EXPECT_STREQ(error->what(), "«sh» no respondió en 1 s y se detuvo.");
}

TEST(Ejecutar, aToolThatEndsWellAfterTheLimitIsStillTooSlow)
{
    const auto error =
        errorDe([] { sh("trap 'echo hecho; exit 0' TERM; while :; do sleep 0.05; done", 0.5); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->caso(), ShellError::Caso::agotado);
}

TEST(Ejecutar, aToolThatNeverStopsPrintingIsStopped)
{
    const auto error = errorDe([] { sh("exec yes", 0.1); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->caso(), ShellError::Caso::agotado);
}

TEST(Ejecutar, aLimitThatIsNegativeOrNoNumberLeavesNoTime)
{
    for (const double timeout : {0.0, -1.0, -std::numeric_limits<double>::infinity(), std::nan("")}) {
        const auto error = errorDe([timeout] { ejecutar("/bin/sleep", {"1000"}, timeout, false); });
        ASSERT_TRUE(error) << timeout;
        EXPECT_STREQ(error->what(), "«sleep» no respondió en 0 s y se detuvo.");
    }
}

TEST(Ejecutar, aLimitBeyondAllMeasureIsALongTime)
{
    for (const double timeout : {1e9, 1e300, std::numeric_limits<double>::infinity()}) {
        EXPECT_EQ(sh("sleep 0.05; echo bien", timeout), "bien\n") << timeout;
    }
}

TEST(Ejecutar, theFolderOfTheToolComesFirstInThePath)
{
    const CarpetaTemporal carpeta;
    carpeta.crear("v20/bin/node-de-prueba", "#!/bin/sh\necho interpretado\n", 0755);
    const std::string npm = carpeta.crear("v20/bin/npm", "#!/usr/bin/env node-de-prueba\n", 0755);
    EXPECT_EQ(ejecutar(npm, {}, deSobra, false), "interpretado\n");

    const VariableTemporal path("PATH", "/propio:/otro");
    EXPECT_EQ(pathDeLaHerramienta(), "/bin:/opt/homebrew/bin:/usr/local/bin:/propio:/otro");
}

TEST(Ejecutar, withThePathUnsetTheToolStillHasAUsableOne)
{
    for (const char *valor : {static_cast<const char *>(nullptr), ""}) {
        const VariableTemporal path("PATH", valor);
        EXPECT_EQ(pathDeLaHerramienta(),
                  "/bin:/opt/homebrew/bin:/usr/local/bin:/usr/bin:/bin:/usr/sbin:/sbin");
    }
}

TEST(Ejecutar, theRestOfTheEnvironmentIsThisProcesss)
{
    const VariableTemporal nuestra("OVANTA_PRUEBA", "valor con = y ñ");
    const VariableTemporal brew("HOMEBREW_NO_AUTO_UPDATE", "0");
    EXPECT_EQ(sh("printf '%s|%s' \"$OVANTA_PRUEBA\" \"$HOMEBREW_NO_AUTO_UPDATE\""), "valor con = y ñ|1");
    EXPECT_EQ(ejecutar("/usr/bin/env", {}, deSobra, false).find("HOMEBREW_NO_AUTO_UPDATE=0"),
              std::string::npos);
}

TEST(Ejecutar, standardInputIsThisProcesss)
{
    const CarpetaTemporal carpeta;
    const std::string entrada = carpeta.crear("entrada", "de la entrada", 0644);
    const int antes = ::dup(STDIN_FILENO);
    const int archivo = ::open(entrada.c_str(), O_RDONLY | O_CLOEXEC);
    ::dup2(archivo, STDIN_FILENO);
    const std::string leido = ejecutar("/bin/cat", {}, deSobra, false);
    ::dup2(antes, STDIN_FILENO);
    ::close(antes);
    ::close(archivo);
    EXPECT_EQ(leido, "de la entrada");
}

TEST(Ejecutar, noOtherDescriptorIsInherited)
{
    const int heredable = ::dup(STDERR_FILENO);
    const int alto = ::fcntl(STDERR_FILENO, F_DUPFD, 200);
    const std::string abiertos =
        sh(R"(for f in /proc/self/fd/*; do [ -e "$f" ] && echo "${f##*/}"; done; :)");
    ::close(heredable);
    ::close(alto);
    EXPECT_EQ(abiertos, "0\n1\n2\n");
}

TEST(Ejecutar, noSignalIsBlockedOrIgnoredInTheTool)
{
    sigset_t bloqueadas;
    sigset_t antes;
    sigfillset(&bloqueadas);
    ::pthread_sigmask(SIG_BLOCK, &bloqueadas, &antes);
    const auto manejador = std::signal(SIGPIPE, SIG_IGN);
    std::istringstream estado(sh("exec sed -nE 's/^Sig(Blk|Ign):\\t//p' /proc/self/status"));
    std::signal(SIGPIPE, manejador);
    ::pthread_sigmask(SIG_SETMASK, &antes, nullptr);

    std::uint64_t enBloqueo = 1;
    std::uint64_t ignoradas = 1;
    estado >> std::hex >> enBloqueo >> ignoradas;
    // glibc keeps signals 32 and 33 for its threads and leaves them ignored in what it spawns.
    const std::uint64_t internas = (std::uint64_t{1} << 31) | (std::uint64_t{1} << 32);
    EXPECT_EQ(enBloqueo & ~internas, 0U);
    EXPECT_EQ(ignoradas & ~internas, 0U);
}

TEST(Ejecutar, theToolLeadsAProcessGroupOfItsOwn)
{
    std::istringstream salida(sh("cut -d' ' -f5 /proc/$$/stat; echo $$"));
    pid_t grupo = 0;
    pid_t herramienta = -1;
    salida >> grupo >> herramienta;
    EXPECT_EQ(grupo, herramienta);
    EXPECT_NE(grupo, ::getpgrp());
}
