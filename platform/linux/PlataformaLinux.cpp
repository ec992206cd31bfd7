#include "platform/linux/PlataformaLinux.h"

#include "core/Enlaces.h"
#include "core/LeerArchivo.h"
#include "platform/linux/InicioDeSesion.h"

#include <cstdlib>
#include <unistd.h>

namespace ovanta {

namespace {

/// A file of /proc, empty where there is none.
std::string leerProc(const std::string &ruta)
{
    constexpr std::uint64_t limite = 16 * 1024 * 1024;
    try {
        return leerArchivo("/proc/" + ruta, limite, EnlaceFinal::seguir);
    } catch (const ErrorDeLectura &) {
        return {};
    }
}

InicioAutomaticoLinux::Lugares lugaresDeInicio(const EntornoLugares &entorno, const std::string &hogar)
{
    const char *dirs = std::getenv("XDG_CONFIG_DIRS");
    return InicioAutomaticoLinux::Lugares::de(carpetaDeConfiguracion(entorno, hogar), dirs ? dirs : "",
                                              resolverEnlaces("/proc/self/exe").value_or(""));
}

std::string escritorioDelEntorno()
{
    const char *escritorio = std::getenv("XDG_CURRENT_DESKTOP");
    return escritorio ? escritorio : "";
}

bool iniciadoPorLaSesion()
{
    return laSesionInicio(leerProc("self/cgroup"), leerProc(std::to_string(::getppid()) + "/comm"));
}

} // namespace

PlataformaLinux::PlataformaLinux()
    : m_entorno(EntornoLugares::delProceso()), m_sesion(QDBusConnection::sessionBus()),
      m_lugares(lugaresLinux(m_entorno)),
      m_preferencias(carpetaDeConfiguracion(m_entorno, m_lugares.hogar) + "/Ovanta/ajustes.ini"),
      m_volumen(m_lugares.hogar, leerProc("self/mountinfo")),
      m_papelera({{m_lugares.hogar, carpetaDeDatosXdg(m_entorno, m_lugares.hogar)},
                  [this] { return m_reloj.ahora(); }}),
      m_herramientas(m_lugares.hogar), m_notificaciones(m_sesion), m_suspension(QDBusConnection::systemBus()),
      m_gestorArchivos(m_sesion), m_apariencia(m_sesion), m_anfitrionBandeja(m_sesion),
      m_instanciaUnica({m_sesion, carpetaDeSesion(m_entorno, m_lugares.hogar), iniciadoPorLaSesion()}),
      m_inicioAutomatico(lugaresDeInicio(m_entorno, m_lugares.hogar)),
      m_aplicacionesEnMarcha(m_fotografo, escritorioDelEntorno())
{
}

} // namespace ovanta
