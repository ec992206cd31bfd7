#include "platform/linux/GestorArchivosLinux.h"

#include "tests/HogarTemporal.h"
#include "tests/platform/BusDePrueba.h"

#include <gtest/gtest.h>

using namespace ovanta;
using namespace ovanta::pruebas;

namespace {

const QString gestor = QStringLiteral("org.freedesktop.FileManager1");
const QString rutaGestor = QStringLiteral("/org/freedesktop/FileManager1");

std::string leerTexto(const std::string &ruta)
{
    std::ifstream archivo{ruta};
    return {std::istreambuf_iterator<char>{archivo}, {}};
}

class GestorArchivosLinuxTest : public testing::Test
{
protected:
    BusDePrueba bus;
    HogarTemporal hogar;

    std::unique_ptr<ServidorSimulado> crearServidor()
    {
        auto servidor = ServidorSimulado::sencillo(bus, gestor, rutaGestor, gestor);
        for (const char *metodo : {"ShowItems", "ShowFolders"})
            servidor->agregarMetodo(gestor, QLatin1String(metodo), QStringLiteral("ass"), {}, {});
        return servidor;
    }

    /// The one address of the last call.
    std::string pedida(ServidorSimulado &servidor, const char *metodo, int cuantas = 1)
    {
        QList<QVariantList> llamadas;
        EXPECT_TRUE(esperarA(
            [&] { return (llamadas = servidor.llamadas(QLatin1String(metodo))).size() >= cuantas; }));
        const QStringList uris = llamadas.value(llamadas.size() - 1).value(0).toStringList();
        EXPECT_EQ(uris.size(), 1);
        return uris.value(0).toStdString();
    }
};

/// While it lives, "xdg-open" writes the address that it gets into a file.
class AbridorDePrueba
{
public:
    explicit AbridorDePrueba(const HogarTemporal &hogar)
        : m_antes(qgetenv("PATH")), m_registro(hogar.fuera("abierto"))
    {
        const std::string guion = hogar.fuera("xdg-open");
        std::ofstream{guion} << "#!/bin/sh\nprintf '%s' \"$1\" > '" << m_registro << ".parte'\nmv '"
                             << m_registro << ".parte' '" << m_registro << "'\n";
        std::filesystem::permissions(guion, std::filesystem::perms::owner_all);
        qputenv("PATH", QByteArray::fromStdString(hogar.fuera()) + ':' + m_antes);
    }
    ~AbridorDePrueba() { qputenv("PATH", m_antes); }

    std::string abierto() const
    {
        EXPECT_TRUE(esperarA([&] { return std::filesystem::exists(m_registro); }));
        return leerTexto(m_registro);
    }

    bool nadaAbierto() const { return !std::filesystem::exists(m_registro); }

private:
    QByteArray m_antes;
    std::string m_registro;
};

} // namespace

TEST_F(GestorArchivosLinuxTest, anItemIsShownByItsExactBytes)
{
    const std::vector<std::pair<std::string, std::string>> casos = {
        {"simple.txt", "simple.txt"},
        {"dos palabras", "dos%20palabras"},
        {"salto\nde línea", "salto%0Ade%20l%C3%ADnea"},
        {"100% #1?", "100%25%20%231%3F"},
        {std::string{"roto\xff\xfe"}, "roto%FF%FE"},
    };
    auto servidor = crearServidor();
    GestorArchivosLinux gestorArchivos{bus.conectar()};
    int cuantas = 0;
    for (const auto &[nombre, codificado] : casos) {
        std::ofstream{hogar.en(nombre)} << "x";
        gestorArchivos.mostrar(hogar.en(nombre));
        EXPECT_EQ(pedida(*servidor, "ShowItems", ++cuantas), "file://" + hogar.en(codificado));
    }
}

TEST_F(GestorArchivosLinuxTest, aDanglingLinkIsAnItemLikeAnyOther)
{
    std::filesystem::create_symlink("nada", hogar.en("enlace"));
    auto servidor = crearServidor();
    GestorArchivosLinux gestorArchivos{bus.conectar()};
    gestorArchivos.mostrar(hogar.en("enlace"));
    EXPECT_EQ(pedida(*servidor, "ShowItems"), "file://" + hogar.en("enlace"));
}

TEST_F(GestorArchivosLinuxTest, forWhatIsGoneTheNearestFolderOpens)
{
    auto servidor = crearServidor();
    GestorArchivosLinux gestorArchivos{bus.conectar()};
    gestorArchivos.mostrar(hogar.en("no/hay/nada"));
    EXPECT_EQ(pedida(*servidor, "ShowFolders"), "file://" + hogar.ruta());
}

TEST_F(GestorArchivosLinuxTest, theTrashOpensByItsOwnAddress)
{
    auto servidor = crearServidor();
    GestorArchivosLinux gestorArchivos{bus.conectar()};
    gestorArchivos.abrirPapelera();
    EXPECT_EQ(pedida(*servidor, "ShowFolders"), "trash:///");
}

TEST_F(GestorArchivosLinuxTest, withoutAFileManagerTheDesktopOpensTheFolder)
{
    const AbridorDePrueba abridor{hogar};
    std::ofstream{hogar.en("con\n%")} << "x";
    GestorArchivosLinux gestorArchivos{bus.conectar()};
    gestorArchivos.mostrar(hogar.en("con\n%"));
    EXPECT_EQ(abridor.abierto(), "file://" + hogar.ruta());
}

TEST_F(GestorArchivosLinuxTest, withoutABusTheDesktopOpensTheTrash)
{
    const AbridorDePrueba abridor{hogar};
    GestorArchivosLinux gestorArchivos{QDBusConnection{QStringLiteral("no hay tal bus")}};
    gestorArchivos.abrirPapelera();
    EXPECT_EQ(abridor.abierto(), "trash:///");
}

TEST_F(GestorArchivosLinuxTest, aRelativePathIsIgnored)
{
    const AbridorDePrueba abridor{hogar};
    GestorArchivosLinux gestorArchivos{bus.conectar()};
    gestorArchivos.mostrar("relativa");
    gestorArchivos.mostrar("");
    dejarPasar();
    EXPECT_TRUE(abridor.nadaAbierto());
}
