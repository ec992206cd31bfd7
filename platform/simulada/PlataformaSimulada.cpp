#include "platform/simulada/PlataformaSimulada.h"

#include "core/Catalogo.h"
#include "core/LeerArchivo.h"
#include "core/Recursos.h"
#include "platform/simulada/SimuladoresSinteticos.h"
#include "platform/simulada/dispositivos/HistorialDeSalud.h"

#include <QCoreApplication>
#include <QFile>

namespace ovanta {

namespace {

/// The places that the catalogue names; none where there is no valid one: that is for the program
/// to tell.
std::vector<std::string> rutasDelCatalogo(const std::string &archivo)
{
    std::vector<std::string> rutas;
    try {
        for (const Regla &regla :
             decodificarCatalogo(leerArchivo(archivo, limiteDelCatalogo, EnlaceFinal::seguir)))
            rutas.push_back(regla.path);
    } catch (const std::runtime_error &) {
    }
    return rutas;
}

} // namespace

PlataformaSimulada::Opciones PlataformaSimulada::Opciones::delPrograma()
{
    Opciones opciones;
    opciones.recursos =
        carpetaRecursos(QFile::encodeName(QCoreApplication::applicationDirPath()).toStdString());
    opciones.apariencia.oscuro = QCoreApplication::arguments().contains(QStringLiteral("--oscuro"));
    return opciones;
}

PlataformaSimulada::PlataformaSimulada(const Opciones &opciones)
    : m_lugares{.hogar = m_casa.hogar(),
                .protegidas = {},
                .papeleras = {m_casa.hogar() + "/.Trash"},
                .papeleraDeVolumen = ".Trashes",
                .catalogo = opciones.recursos + "/macos/rules.json",
                .recursos = opciones.recursos},
      m_preferencias(m_casa.hogar() + "/Library/Preferences/com.belmora.Ovanta.ini", m_registro),
      m_reloj(opciones.relojDetenido), m_papelera(m_casa.hogar(), m_reloj, m_registro),
      m_herramientas(m_registro), m_notificaciones(m_registro), m_dialogo(m_registro),
      m_gestor(m_papelera.carpeta(), m_registro), m_inicio(m_registro), m_politica(m_registro)
{
    m_herramientas.programar("osascript", [](const auto &) { return std::string{}; });
    m_apariencia.fijar(opciones.apariencia);
    m_herramientas.programar("xcrun", [this](const std::vector<std::string> &args) {
        return DevicectlSimulado::entiende(args) ? m_dispositivos.devicectl().responder(args)
                                                 : responderXcrun(args);
    });
    m_casa.amueblar(rutasDelCatalogo(m_lugares.catalogo), m_reloj.ahora());
    ponerHistorialDeSalud(m_casa.hogar(), m_reloj.ahora());
}

} // namespace ovanta
