#pragma once

#include "core/Preferencias.h"
#include "platform/AccesoArchivos.h"
#include "platform/AnfitrionBandeja.h"
#include "platform/Apariencia.h"
#include "platform/Aplicaciones.h"
#include "platform/AplicacionesEnMarcha.h"
#include "platform/Archivos.h"
#include "platform/Bateria.h"
#include "platform/Conexiones.h"
#include "platform/Contadores.h"
#include "platform/DialogoCritico.h"
#include "platform/GestorArchivos.h"
#include "platform/Herramientas.h"
#include "platform/InicioAutomatico.h"
#include "platform/InstanciaUnica.h"
#include "platform/Lugares.h"
#include "platform/MemoriaSistema.h"
#include "platform/Notificaciones.h"
#include "platform/Papelera.h"
#include "platform/PoliticaActivacion.h"
#include "platform/Procesos.h"
#include "platform/Reinicio.h"
#include "platform/Reloj.h"
#include "platform/Suspension.h"
#include "platform/Termico.h"
#include "platform/Volumen.h"

namespace ovanta {

/// Everything the program asks of the machine it runs on. One object for the life of the process,
/// made by the composition root and handed to every store. The references stay valid as long as it.
class Plataforma
{
public:
    virtual ~Plataforma() = default;

    virtual const Lugares &lugares() const = 0;
    virtual Preferencias &preferencias() = 0;
    virtual Reloj &reloj() = 0;
    virtual Volumen &volumen() = 0;
    virtual Archivos &archivos() = 0;
    virtual Papelera &papelera() = 0;
    virtual AccesoArchivos &accesoArchivos() = 0;
    virtual Herramientas &herramientas() = 0;
    virtual Aplicaciones &aplicaciones() = 0;
    virtual Notificaciones &notificaciones() = 0;
    virtual Suspension &suspension() = 0;
    virtual DialogoCritico &dialogoCritico() = 0;
    virtual GestorArchivos &gestorArchivos() = 0;
    virtual Apariencia &apariencia() = 0;
    virtual AnfitrionBandeja &anfitrionBandeja() = 0;
    virtual InstanciaUnica &instanciaUnica() = 0;
    virtual InicioAutomatico &inicioAutomatico() = 0;
    virtual PoliticaActivacion &politicaActivacion() = 0;
    virtual Contadores &contadores() = 0;
    virtual Termico &termico() = 0;
    virtual Bateria &bateria() = 0;
    virtual MemoriaSistema &memoriaSistema() = 0;
    virtual Procesos &procesos() = 0;
    virtual AplicacionesEnMarcha &aplicacionesEnMarcha() = 0;
    virtual Reinicio &reinicio() = 0;
    virtual Conexiones &conexiones() = 0;
};

} // namespace ovanta
