#include "core/Recursos.h"

#include <gtest/gtest.h>

namespace ovanta {
namespace {

TEST(Recursos, EstanJuntoALaCarpetaDelPrograma)
{
    EXPECT_EQ(carpetaRecursos("/usr/bin"), "/usr/share/ovanta");
    EXPECT_EQ(carpetaRecursos("/opt/copia/bin/"), "/opt/copia/share/ovanta");
}

} // namespace
} // namespace ovanta
