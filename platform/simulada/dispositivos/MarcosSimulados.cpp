#include "platform/simulada/dispositivos/MarcosSimulados.h"

#include "core/plist/EscribirPlist.h"

namespace ovanta {

namespace {

std::string longitudGrande(std::uint32_t longitud)
{
    std::string cabecera;
    for (const int desplazado : {24, 16, 8, 0})
        cabecera.push_back(static_cast<char>((longitud >> desplazado) & 0xff));
    return cabecera;
}

} // namespace

PeticionPlist leerMarco(CanalSimulado &canal)
{
    std::uint32_t longitud = 0;
    for (const char byte : canal.leer(4))
        longitud = longitud << 8U | static_cast<unsigned char>(byte);
    if (longitud == 0 || longitud > limiteDePeticion) throw FinDeConversacion{};
    const auto peticion = PeticionPlist::leer(canal.leer(longitud));
    if (!peticion) throw FinDeConversacion{};
    return *peticion;
}

Contestador::Contestador(EnchufeSimulado &enchufe, const FallosSimulados &fallos)
    : m_enchufe(enchufe), m_fallos(fallos)
{
    enchufe.fijarFallos(fallos);
}

void Contestador::contestar(CanalSimulado &canal, const DiccionarioPlist &respuesta, const Cabecera &cabecera)
{
    const int paso = m_paso++;
    if (m_fallos.cerrarEnElPaso == paso) throw FinDeConversacion{};
    if (m_fallos.callarEnElPaso == paso) m_enchufe.callar();
    std::string cuerpo = escribirPlistXml(respuesta).value();
    if (m_fallos.basuraEnElPaso == paso) cuerpo.assign(cuerpo.size(), '\xa7');
    const auto longitud = static_cast<std::uint32_t>(cuerpo.size());
    canal.escribir(cabecera(m_fallos.mentirEnElPaso == paso ? m_fallos.longitudMentida : longitud) + cuerpo);
}

void Contestador::contestar(CanalSimulado &canal, const DiccionarioPlist &respuesta)
{
    contestar(canal, respuesta, &longitudGrande);
}

} // namespace ovanta
