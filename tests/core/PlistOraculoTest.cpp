#include "core/Ejecutar.h"
#include "core/EscrituraAtomica.h"
#include "core/LeerArchivo.h"
#include "core/plist/EscribirPlist.h"
#include "core/plist/LeerPlist.h"
#include "tests/HogarTemporal.h"
#include "tests/core/ArbolPlist.h"

#include <gtest/gtest.h>

using namespace ovanta;
using pruebas::ArbolPlist;

namespace {

/// What the common library's converter makes of a property list.
class OtroLector
{
public:
    std::string convertir(const std::string &bytes, const char *formato) const
    {
        const auto entrada = m_casa.en("entrada"), salida = m_casa.en("salida");
        EXPECT_EQ(escribirAtomico(entrada, bytes), 0);
        std::filesystem::remove(salida);
        ejecutar("/usr/bin/plistutil", {"-i", entrada, "-o", salida, "-f", formato}, 20, false);
        return leerArchivo(salida, 1 << 24, EnlaceFinal::rechazar);
    }

private:
    pruebas::HogarTemporal m_casa;
};

std::string xmlDe(const ValorPlist &valor)
{
    return escribirPlistXml(valor).value();
}

ValorPlist leida(const std::string &bytes)
{
    const auto valor = leerPlist(bytes);
    EXPECT_TRUE(valor) << valor.error().motivo << '\n' << bytes;
    return valor.value_or("ilegible");
}

} // namespace

// The other library holds a UID for the dictionary that it is in XML, so what is compared is our XML of it.

TEST(PlistOraculo, whatWeWriteComesBackTheSameThroughTheOtherLibrarysBinaryFormat)
{
    const OtroLector otro;
    for (unsigned semilla = 0; semilla < 60; ++semilla) {
        const ValorPlist valor = ArbolPlist{semilla}.diccionario(6);
        const auto binaria = otro.convertir(xmlDe(valor), "bin");
        ASSERT_TRUE(binaria.starts_with("bplist00"));
        ASSERT_EQ(xmlDe(leida(binaria)), xmlDe(valor)) << "seed " << semilla;
    }
}

TEST(PlistOraculo, weReadTheOtherLibrarysXmlAsItWasMeant)
{
    const OtroLector otro;
    for (unsigned semilla = 1000; semilla < 1040; ++semilla) {
        const ValorPlist valor = ArbolPlist{semilla}.diccionario(6);
        const auto binaria = otro.convertir(xmlDe(valor), "bin");
        const auto xml = otro.convertir(binaria, "xml");
        ASSERT_TRUE(xml.starts_with("<?xml"));
        ASSERT_EQ(xmlDe(leida(xml)), xmlDe(leida(binaria))) << "seed " << semilla << '\n' << xml;
    }
}
