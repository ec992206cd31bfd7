#pragma once

#include "platform/AnfitrionBandeja.h"
#include "platform/Apariencia.h"
#include "platform/DialogoCritico.h"
#include "platform/GestorArchivos.h"
#include "platform/InstanciaUnica.h"
#include "platform/Notificaciones.h"
#include "platform/Oyentes.h"
#include "platform/PoliticaActivacion.h"
#include "platform/Suspension.h"
#include "platform/simulada/RegistroMutaciones.h"

namespace ovanta {

// The desktop of the simulated Mac. What the program shows on it is only recorded; what the user or
// the system does there is done by calling these classes. Main thread.

class NotificacionesSimuladas final : public Notificaciones
{
public:
    explicit NotificacionesSimuladas(RegistroMutaciones &registro) : m_registro(registro) {}

    bool disponible() const override { return m_disponible; }
    void pedirPermiso(std::function<void(std::expected<bool, std::string>)> respuesta) override;
    void alCambiar(std::function<void()> accion) override { m_oyentes.agregar(std::move(accion)); }
    void enviar(const Aviso &aviso) override;

    /// Every notice that was sent, in order.
    const std::vector<Aviso> &enviados() const { return m_enviados; }

    /// What the user answers from now on when asked for leave.
    void responder(std::expected<bool, std::string> respuesta) { m_respuesta = std::move(respuesta); }
    void fijarDisponible(bool disponible);

private:
    RegistroMutaciones &m_registro;
    bool m_disponible = true;
    std::expected<bool, std::string> m_respuesta = true;
    std::vector<Aviso> m_enviados;
    Oyentes m_oyentes;
};

class DialogoSimulado final : public DialogoCritico
{
public:
    explicit DialogoSimulado(RegistroMutaciones &registro) : m_registro(registro) {}

    void mostrar(const std::string &titulo, const std::string &cuerpo, const std::string &boton,
                 std::function<void()> alCerrar) override;

    bool abierto() const { return !m_alCerrar.empty(); }
    /// The user dismisses the alert that was shown last.
    void cerrar();

private:
    RegistroMutaciones &m_registro;
    std::vector<std::function<void()>> m_alCerrar;
};

class GestorArchivosSimulado final : public GestorArchivos
{
public:
    /// `papelera` is the folder that stands for the Trash.
    GestorArchivosSimulado(std::string papelera, RegistroMutaciones &registro)
        : m_papelera(std::move(papelera)), m_registro(registro)
    {
    }

    void mostrar(const std::string &ruta) override;
    void abrirPapelera() override;

private:
    std::string m_papelera;
    RegistroMutaciones &m_registro;
};

class AparienciaSimulada final : public Apariencia
{
public:
    Estado actual() const override { return m_estado; }
    void alCambiar(std::function<void()> accion) override { m_oyentes.agregar(std::move(accion)); }

    void fijar(Estado estado);

private:
    Estado m_estado;
    Oyentes m_oyentes;
};

class SuspensionSimulada final : public Suspension
{
public:
    void alDespertar(std::function<void()> accion) override { m_oyentes.agregar(std::move(accion)); }

    /// The machine wakes up.
    void despertar() const { m_oyentes.avisar(); }

private:
    Oyentes m_oyentes;
};

class AnfitrionBandejaSimulado final : public AnfitrionBandeja
{
public:
    bool presente() const override { return m_presente; }
    void alCambiar(std::function<void()> accion) override { m_oyentes.agregar(std::move(accion)); }

    void fijarPresente(bool presente);

private:
    bool m_presente = true;
    Oyentes m_oyentes;
};

/// Every simulated machine has one program, so it is always the one instance.
class InstanciaUnicaSimulada final : public InstanciaUnica
{
public:
    bool adquirir(std::function<void()> alActivar) override;
    bool iniciadaPorLaSesion() const override { return false; }

    /// Another copy is started.
    void iniciarOtra() const { m_activaciones.avisar(); }

private:
    Oyentes m_activaciones;
};

class PoliticaSimulada final : public PoliticaActivacion
{
public:
    explicit PoliticaSimulada(RegistroMutaciones &registro) : m_registro(registro) {}

    Politica actual() const { return m_politica; }
    void fijar(Politica politica) override;

private:
    RegistroMutaciones &m_registro;
    Politica m_politica = Politica::regular;
};

} // namespace ovanta
