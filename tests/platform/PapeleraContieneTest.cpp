#include "tests/platform/ApoyoPapelera.h"

#include <sys/stat.h>

#include <filesystem>

using namespace ovanta;
using namespace ovanta::pruebas;
namespace fs = std::filesystem;

namespace {

class PapeleraConsultada : public ConPapelera
{
};

} // namespace

TEST_F(PapeleraConsultada, containsWhatWasMovedSinceAndNothingElse)
{
    escribir(hogar + "/x");
    EXPECT_FALSE(hacer().contiene(hogar + "/x", Fecha{}));
    ahora += std::chrono::microseconds{700'000};
    ASSERT_EQ(reciclar(hogar + "/x"), "");
    EXPECT_TRUE(hacer().contiene(hogar + "/x", ahora));
    EXPECT_TRUE(hacer().contiene(hogar + "/x", ahora - std::chrono::hours{1}));
    EXPECT_FALSE(hacer().contiene(hogar + "/x", ahora + std::chrono::seconds{1}));
    EXPECT_FALSE(hacer().contiene(hogar + "/X", Fecha{}));
    EXPECT_FALSE(hacer().contiene(hogar + "/no/está/x", Fecha{}));
    fs::remove(suya + "/files/x");
    EXPECT_FALSE(hacer().contiene(hogar + "/x", ahora)) << "an info file alone is no item";
}

TEST_F(PapeleraConsultada, hostileInfoFilesNeitherBlockNorMislead)
{
    escribir(hogar + "/x");
    const std::string info = "[Trash Info]\nPath=" + hogar + "/x\nDeletionDate=2026-11-21T05:18:36\n";
    for (const char *nombre : {"tubo", "enlace", "grande", "carpeta"})
        escribir(suya + "/files/" + nombre);
    fs::create_directory(suya + "/info");
    ASSERT_EQ(::mkfifo((suya + "/info/tubo.trashinfo").c_str(), 0600), 0);
    escribir(base + "/fuera/info", info);
    fs::create_symlink(base + "/fuera/info", suya + "/info/enlace.trashinfo");
    escribir(suya + "/info/grande.trashinfo", info + std::string(64 << 10, '\n'));
    fs::create_directory(suya + "/info/carpeta.trashinfo");
    escribir(suya + "/info/.trashinfo", info);
    EXPECT_FALSE(hacer().contiene(hogar + "/x", Fecha{}));
    escribir(suya + "/info/carpeta.2.trashinfo", info);
    escribir(suya + "/files/carpeta.2");
    EXPECT_TRUE(hacer().contiene(hogar + "/x", Fecha{}));
}
