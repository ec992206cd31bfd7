#include "core/SoltarConexiones.h"

#include "core/Descriptor.h"

#include <array>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/wait.h>

using namespace ovanta;

TEST(SoltarConexiones, theOtherSideHearsTheEndThoughSomebodyKeepsItOpen)
{
    std::array<int, 2> par{};
    ASSERT_EQ(::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, par.data()), 0);
    Descriptor suyo{par[0]};
    const Descriptor nuestro{par[1]};
    Tuberia guardada = Tuberia::crear();
    const pid_t hijo = ::fork();
    if (hijo == 0) {
        suyo.cerrar();
        soltarConexiones();
        char nada = 0;
        const bool sigueEscribiendo = ::write(guardada.escritura.numero(), "x", 1) == 1;
        ::_exit(::read(nuestro.numero(), &nada, 1) == 0 && sigueEscribiendo ? 0 : 1);
    }
    // Ours is open twice, in the child too: the end of one of the two shows here.
    char nada = 0;
    EXPECT_EQ(::read(suyo.numero(), &nada, 1), 0);
    int estado = 0;
    ASSERT_EQ(::waitpid(hijo, &estado, 0), hijo);
    EXPECT_EQ(WEXITSTATUS(estado), 0) << "what is no connection stays";
}
