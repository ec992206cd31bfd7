#pragma once

#include "platform/ConexionesPosix.h"
#include "platform/Plataforma.h"
#include "platform/simulada/AccesoArchivosSimulado.h"
#include "platform/simulada/AplicacionesSimuladas.h"
#include "platform/simulada/ArchivosSimulados.h"
#include "platform/simulada/CasaSintetica.h"
#include "platform/simulada/EscritorioSimulado.h"
#include "platform/simulada/HerramientasSimuladas.h"
#include "platform/simulada/InicioSimulado.h"
#include "platform/simulada/MemoriaSimulada.h"
#include "platform/simulada/PapeleraSimulada.h"
#include "platform/simulada/PreferenciasRegistradas.h"
#include "platform/simulada/RegistroMutaciones.h"
#include "platform/simulada/ReinicioSimulado.h"
#include "platform/simulada/RelojSimulado.h"
#include "platform/simulada/SensoresSimulados.h"
#include "platform/simulada/SesionSimulada.h"
#include "platform/simulada/VolumenSimulado.h"
#include "platform/simulada/dispositivos/HogarDeDispositivos.h"

namespace ovanta {

/// A Mac that does not exist: a synthetic home in a temporary folder, scripted tools, a clock that
/// can be moved, and a record of everything that was done to it. The getters give the simulated
/// classes, so that a test can also play the user's and the system's part.
class PlataformaSimulada final : public Plataforma
{
public:
    struct Opciones
    {
        /// Folder of the program's own data (`carpetaRecursos`); the catalogue is "macos/rules.json"
        /// in it.
        std::string recursos;
        /// Where set, the clock stands still at this moment.
        std::optional<Fecha> relojDetenido;
        Apariencia::Estado apariencia;

        /// For a program of its own: the data beside the running program, and the dark look where
        /// it was started with "--oscuro". Needs a QCoreApplication.
        static Opciones delPrograma();
    };

    PlataformaSimulada() : PlataformaSimulada(Opciones::delPrograma()) {}

    /// Makes the home and fills it. Throws `std::system_error` where the disk refuses.
    explicit PlataformaSimulada(const Opciones &opciones);

    const RegistroMutaciones &registro() const { return m_registro; }

    const Lugares &lugares() const override { return m_lugares; }
    PreferenciasRegistradas &preferencias() override { return m_preferencias; }
    RelojSimulado &reloj() override { return m_reloj; }
    VolumenSimulado &volumen() override { return m_volumen; }
    ArchivosSimulados &archivos() override { return m_archivos; }
    PapeleraSimulada &papelera() override { return m_papelera; }
    AccesoArchivosSimulado &accesoArchivos() override { return m_accesoArchivos; }
    HerramientasSimuladas &herramientas() override { return m_herramientas; }
    AplicacionesSimuladas &aplicaciones() override { return m_aplicaciones; }
    NotificacionesSimuladas &notificaciones() override { return m_notificaciones; }
    SuspensionSimulada &suspension() override { return m_suspension; }
    DialogoSimulado &dialogoCritico() override { return m_dialogo; }
    GestorArchivosSimulado &gestorArchivos() override { return m_gestor; }
    AparienciaSimulada &apariencia() override { return m_apariencia; }
    AnfitrionBandejaSimulado &anfitrionBandeja() override { return m_anfitrion; }
    InstanciaUnicaSimulada &instanciaUnica() override { return m_instancia; }
    InicioSimulado &inicioAutomatico() override { return m_inicio; }
    PoliticaSimulada &politicaActivacion() override { return m_politica; }
    ContadoresSimulados &contadores() override { return m_contadores; }
    TermicoSimulado &termico() override { return m_termico; }
    BateriaSimulada &bateria() override { return m_bateria; }
    MemoriaSimulada &memoriaSistema() override { return m_memoria; }
    SesionSimulada &procesos() override { return m_sesion; }
    SesionSimulada &aplicacionesEnMarcha() override { return m_sesion; }
    ReinicioSimulado &reinicio() override { return m_reinicio; }
    Conexiones &conexiones() override { return m_conexiones; }

private:
    RegistroMutaciones m_registro;
    CasaSintetica m_casa;
    Lugares m_lugares;
    PreferenciasRegistradas m_preferencias;
    RelojSimulado m_reloj;
    VolumenSimulado m_volumen;
    ArchivosSimulados m_archivos;
    PapeleraSimulada m_papelera;
    AccesoArchivosSimulado m_accesoArchivos;
    HerramientasSimuladas m_herramientas;
    AplicacionesSimuladas m_aplicaciones;
    NotificacionesSimuladas m_notificaciones;
    SuspensionSimulada m_suspension;
    DialogoSimulado m_dialogo;
    GestorArchivosSimulado m_gestor;
    AparienciaSimulada m_apariencia;
    AnfitrionBandejaSimulado m_anfitrion;
    InstanciaUnicaSimulada m_instancia;
    InicioSimulado m_inicio;
    PoliticaSimulada m_politica;
    ContadoresSimulados m_contadores{m_reloj};
    TermicoSimulado m_termico;
    BateriaSimulada m_bateria{m_reloj};
    MemoriaSimulada m_memoria{m_reloj};
    SesionSimulada m_sesion{m_reloj, m_registro};
    ReinicioSimulado m_reinicio{m_herramientas};
    HogarDeDispositivos m_dispositivos;
    ConexionesPosix m_enchufes;
    ConexionesSimuladas m_conexiones{m_enchufes, m_dispositivos};
};

} // namespace ovanta
