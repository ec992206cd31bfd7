#pragma once

#include "core/qt/PreferenciasQt.h"
#include "platform/ConexionesPosix.h"
#include "platform/Plataforma.h"
#include "platform/linux/AccesoArchivosLinux.h"
#include "platform/linux/AnfitrionBandejaLinux.h"
#include "platform/linux/AparienciaLinux.h"
#include "platform/linux/AplicacionesEnMarchaLinux.h"
#include "platform/linux/AplicacionesLinux.h"
#include "platform/linux/ArchivosLinux.h"
#include "platform/linux/BateriaLinux.h"
#include "platform/linux/ContadoresLinux.h"
#include "platform/linux/DialogoCriticoLinux.h"
#include "platform/linux/GestorArchivosLinux.h"
#include "platform/linux/HerramientasLinux.h"
#include "platform/linux/InicioAutomaticoLinux.h"
#include "platform/linux/InstanciaUnicaLinux.h"
#include "platform/linux/LugaresLinux.h"
#include "platform/linux/MemoriaLinux.h"
#include "platform/linux/NotificacionesLinux.h"
#include "platform/linux/PapeleraLinux.h"
#include "platform/linux/PoliticaActivacionLinux.h"
#include "platform/linux/ProcesosLinux.h"
#include "platform/linux/ReinicioLinux.h"
#include "platform/linux/RelojLinux.h"
#include "platform/linux/SuspensionLinux.h"
#include "platform/linux/TermicoLinux.h"
#include "platform/linux/VolumenLinux.h"

namespace ovanta {

/// A freedesktop desktop on Linux: this machine, this user, this session's buses. Needs a
/// QApplication.
class PlataformaLinux final : public Plataforma
{
public:
    PlataformaLinux();

    const Lugares &lugares() const override { return m_lugares; }
    Preferencias &preferencias() override { return m_preferencias; }
    Reloj &reloj() override { return m_reloj; }
    Volumen &volumen() override { return m_volumen; }
    Archivos &archivos() override { return m_archivos; }
    Papelera &papelera() override { return m_papelera; }
    AccesoArchivos &accesoArchivos() override { return m_accesoArchivos; }
    Herramientas &herramientas() override { return m_herramientas; }
    Aplicaciones &aplicaciones() override { return m_aplicaciones; }
    Notificaciones &notificaciones() override { return m_notificaciones; }
    Suspension &suspension() override { return m_suspension; }
    DialogoCritico &dialogoCritico() override { return m_dialogoCritico; }
    GestorArchivos &gestorArchivos() override { return m_gestorArchivos; }
    Apariencia &apariencia() override { return m_apariencia; }
    AnfitrionBandeja &anfitrionBandeja() override { return m_anfitrionBandeja; }
    InstanciaUnica &instanciaUnica() override { return m_instanciaUnica; }
    InicioAutomatico &inicioAutomatico() override { return m_inicioAutomatico; }
    PoliticaActivacion &politicaActivacion() override { return m_politicaActivacion; }
    Contadores &contadores() override { return m_contadores; }
    Termico &termico() override { return m_termico; }
    Bateria &bateria() override { return m_bateria; }
    MemoriaSistema &memoriaSistema() override { return m_memoriaSistema; }
    Procesos &procesos() override { return m_procesos; }
    AplicacionesEnMarcha &aplicacionesEnMarcha() override { return m_aplicacionesEnMarcha; }
    Reinicio &reinicio() override { return m_reinicio; }
    Conexiones &conexiones() override { return m_conexiones; }

private:
    EntornoLugares m_entorno;
    QDBusConnection m_sesion;
    Lugares m_lugares;
    PreferenciasQt m_preferencias;
    RelojLinux m_reloj;
    VolumenLinux m_volumen;
    ArchivosLinux m_archivos;
    PapeleraLinux m_papelera;
    AccesoArchivosLinux m_accesoArchivos;
    HerramientasLinux m_herramientas;
    AplicacionesLinux m_aplicaciones;
    NotificacionesLinux m_notificaciones;
    SuspensionLinux m_suspension;
    DialogoCriticoLinux m_dialogoCritico;
    GestorArchivosLinux m_gestorArchivos;
    AparienciaLinux m_apariencia;
    AnfitrionBandejaLinux m_anfitrionBandeja;
    InstanciaUnicaLinux m_instanciaUnica;
    InicioAutomaticoLinux m_inicioAutomatico;
    PoliticaActivacionLinux m_politicaActivacion;
    ContadoresLinux m_contadores;
    TermicoLinux m_termico;
    BateriaLinux m_bateria{QDBusConnection::systemBus()};
    MemoriaLinux m_memoriaSistema;
    std::shared_ptr<FotografoProcesos> m_fotografo = FotografoProcesos::deEsteEquipo();
    ProcesosLinux m_procesos{m_fotografo};
    AplicacionesEnMarchaLinux m_aplicacionesEnMarcha;
    ReinicioLinux m_reinicio = ReinicioLinux::delEntorno();
    ConexionesPosix m_conexiones;
};

} // namespace ovanta
