#pragma once

#include "platform/Plataforma.h"
#include "tests/MemoriaDePrueba.h"
#include "tests/PreferenciasEnMemoria.h"
#include "tests/RelojManual.h"

#include <algorithm>
#include <fcntl.h>
#include <filesystem>
#include <functional>
#include <map>
#include <mutex>
#include <set>
#include <unistd.h>
#include <utility>
#include <vector>

namespace ovanta::pruebas {

/// Scripted tools: what each call gets is told by `alEjecutar`; every call is remembered.
struct HerramientasDePrueba final : Herramientas
{
    using Guion =
        std::function<std::string(const std::string &binario, const std::vector<std::string> &args)>;
    Guion alEjecutar = [](const auto &, const auto &) { return std::string{}; };
    std::mutex cerrojo;
    std::vector<std::vector<std::string>> llamadas;
    double ultimoLimite = 0;
    bool ultimoTolerarFallo = false;

    std::string ejecutar(const std::string &binario, const std::vector<std::string> &args, double timeout,
                         bool tolerarFallo) override
    {
        {
            const std::lock_guard guardia{cerrojo};
            ultimoLimite = timeout;
            ultimoTolerarFallo = tolerarFallo;
            llamadas.push_back(args);
            llamadas.back().insert(llamadas.back().begin(), binario);
        }
        return alEjecutar(binario, args);
    }
    std::set<std::string, std::less<>> instaladas; ///< what `buscarBinario` finds, at /usr/bin
    std::optional<std::string> buscarBinario(std::string_view nombre) override
    {
        if (!instaladas.contains(nombre)) return std::nullopt;
        return "/usr/bin/" + std::string(nombre);
    }
};

/// Plain reads; `alAbrir` may hold one up.
struct AccesoArchivosDePrueba final : AccesoArchivos
{
    std::function<void(const std::string &nombre)> alAbrir = [](const std::string &) {};
    std::function<void()> alMirarCarpeta = [] {};

    int abrirEn(int carpeta, const char *nombre) override
    {
        alAbrir(nombre);
        return ::openat(carpeta, nombre, O_RDONLY | O_NOFOLLOW | O_CLOEXEC);
    }
    ssize_t leer(int descriptor, void *destino, std::size_t bytes) override
    {
        return ::read(descriptor, destino, bytes);
    }
    void anticipar(int, std::uint64_t) override {}
    std::uint64_t bytesCompartidos(int) override { return 0; }
    bool esVirtual(int) override
    {
        alMirarCarpeta();
        return false;
    }
    bool estaEnLaNube(const struct stat &) override { return false; }
};

struct VolumenDePrueba final : Volumen
{
    std::optional<Espacio> espacio = Espacio{4096, 100'000'000, 50'000'000};
    int lecturas = 0;

    std::string nombre() const override { return "/System/Volumes/Data"; }
    void leer(std::function<void(std::optional<Espacio>)> listo) override
    {
        ++lecturas;
        listo(espacio);
    }
};

struct ArchivosDePrueba final : Archivos
{
    std::map<std::string, Fecha> creados; ///< by path; nothing else is there

    std::optional<Fecha> creado(const std::string &ruta) override
    {
        const auto hallado = creados.find(ruta);
        return hallado == creados.end() ? std::nullopt : std::optional(hallado->second);
    }
};

/// A Trash that renames into a folder of its own and can be told to fail.
struct PapeleraDePrueba final : Papelera
{
    std::filesystem::path carpeta;
    std::function<std::string(const std::string &ruta)> alReciclar; ///< a text makes the move fail
    std::mutex cerrojo;
    std::vector<std::string> recicladas;

    std::expected<Medida, std::string> medir(const std::string &ruta) override
    {
        return Medida{ruta, std::filesystem::path(ruta).parent_path(), {}};
    }
    std::expected<void, std::string> reciclar(const Medida &medida) override
    {
        if (alReciclar)
            if (auto motivo = alReciclar(medida.ruta); !motivo.empty()) return std::unexpected(motivo);
        const std::lock_guard guardia{cerrojo};
        std::error_code error;
        std::filesystem::create_directories(carpeta);
        std::filesystem::rename(medida.ruta, carpeta / std::to_string(recicladas.size()), error);
        if (error) return std::unexpected("no se pudo mover");
        recicladas.push_back(medida.ruta);
        return {};
    }
    bool contiene(const std::string &ruta, Fecha) override
    {
        return std::find(recicladas.begin(), recicladas.end(), ruta) != recicladas.end();
    }
};

struct NotificacionesDePrueba final : Notificaciones
{
    bool hay = true;
    std::vector<Aviso> enviados;
    std::function<void(std::expected<bool, std::string>)> respuesta;
    std::vector<std::function<void()>> oyentes;

    bool disponible() const override { return hay; }
    void pedirPermiso(std::function<void(std::expected<bool, std::string>)> r) override
    {
        respuesta = std::move(r);
    }
    void alCambiar(std::function<void()> accion) override { oyentes.push_back(std::move(accion)); }
    void enviar(const Aviso &aviso) override { enviados.push_back(aviso); }
};

struct SuspensionDePrueba final : Suspension
{
    std::vector<std::function<void()>> oyentes;

    void alDespertar(std::function<void()> accion) override { oyentes.push_back(std::move(accion)); }
    void despertar() const
    {
        for (const auto &oyente : oyentes)
            oyente();
    }
};

struct DialogoDePrueba final : DialogoCritico
{
    struct Mostrado
    {
        std::string titulo, cuerpo, boton;
        std::function<void()> alCerrar;
    };
    std::vector<Mostrado> mostrados;

    void mostrar(const std::string &titulo, const std::string &cuerpo, const std::string &boton,
                 std::function<void()> alCerrar) override
    {
        mostrados.push_back({titulo, cuerpo, boton, std::move(alCerrar)});
    }
};

struct GestorArchivosDePrueba final : GestorArchivos
{
    std::vector<std::string> mostradas;
    int papelera = 0;

    void mostrar(const std::string &ruta) override { mostradas.push_back(ruta); }
    void abrirPapelera() override { ++papelera; }
};

struct AplicacionesDePrueba final : Aplicaciones
{
    std::vector<std::string> abiertas;
    std::map<std::string, std::string> paquetes; ///< path of a bundle to its identifier

    bool enEjecucion(const std::string &bundleID) const override
    {
        return std::find(abiertas.begin(), abiertas.end(), bundleID) != abiertas.end();
    }
    std::string identificadorDePaquete(const std::string &ruta) const override
    {
        const auto hallado = paquetes.find(ruta);
        return hallado == paquetes.end() ? std::string{} : hallado->second;
    }
};

struct AparienciaDePrueba final : Apariencia
{
    Estado estado;
    bool mezcla = false;
    std::vector<std::function<void()>> oyentes;

    Estado actual() const override { return estado; }
    bool transparencia() const override { return mezcla; }
    void alCambiar(std::function<void()> accion) override { oyentes.push_back(std::move(accion)); }
    void fijar(Estado nuevo)
    {
        estado = nuevo;
        for (const auto &oyente : oyentes)
            oyente();
    }
};

struct AnfitrionDePrueba final : AnfitrionBandeja
{
    bool hay = true;
    bool anchas = false;
    std::vector<std::function<void()>> oyentes;

    bool presente() const override { return hay; }
    bool muestraAnchas() const override { return anchas; }
    void alCambiar(std::function<void()> accion) override { oyentes.push_back(std::move(accion)); }
    void cambiar(bool nuevo)
    {
        hay = nuevo;
        for (const auto &oyente : oyentes)
            oyente();
    }
};

struct InstanciaDePrueba final : InstanciaUnica
{
    bool primera = true;
    bool silenciosa = false;
    std::function<void()> alActivar;

    bool adquirir(std::function<void()> accion) override
    {
        alActivar = std::move(accion);
        return primera;
    }
    bool iniciadaPorLaSesion() const override { return silenciosa; }
};

/// Can be told to refuse; background threads ask it.
struct InicioDePrueba final : InicioAutomatico
{
    std::mutex cerrojo;
    bool puesto = false;
    std::string fallo; ///< where set, every change is refused with it
    int cambios = 0;

    bool activado() override
    {
        const std::lock_guard guardia{cerrojo};
        return puesto;
    }
    std::expected<void, std::string> fijar(bool activado) override
    {
        const std::lock_guard guardia{cerrojo};
        if (!fallo.empty()) return std::unexpected(fallo);
        ++cambios;
        puesto = activado;
        return {};
    }
};

struct PoliticaDePrueba final : PoliticaActivacion
{
    std::vector<Politica> fijadas;

    void fijar(Politica politica) override { fijadas.push_back(politica); }
};

struct ContadoresDePrueba final : Contadores
{
    std::optional<Ticks> ticks = Ticks{};
    Red bytes;
    std::optional<Memoria> enUso = Memoria{4, 2, 1, 16};

    std::optional<Ticks> procesador() override { return ticks; }
    Red red() override { return bytes; }
    std::optional<Memoria> memoria() override { return enUso; }
};

struct TermicoDePrueba final : Termico
{
    EstadoTermico actual = EstadoTermico::nominal;

    EstadoTermico estado() override { return actual; }
};

/// Answers at once, or holds its answers back until `responder`.
struct BateriaDePrueba final : Bateria
{
    std::optional<EstadoBateria> actual;
    bool lenta = false;
    int lecturas = 0;
    std::vector<std::function<void(std::optional<EstadoBateria>)>> pendientes;

    void leer(std::function<void(std::optional<EstadoBateria>)> listo) override
    {
        ++lecturas;
        if (lenta)
            pendientes.push_back(std::move(listo));
        else
            listo(actual);
    }
    void responder()
    {
        for (const auto &listo : std::exchange(pendientes, {}))
            listo(actual);
    }
};

/// Nobody listens anywhere.
struct ConexionesDePrueba final : Conexiones
{
    std::string rutaUsbmuxd() const override { return "/no/hay/usbmuxd"; }
    Resultado abrirUnix(const std::string &, const Plazo &) override
    {
        return std::unexpected(Fallo::sinRespuesta);
    }
    Resultado abrirTcp6(const std::string &, std::uint16_t, std::chrono::milliseconds, const Plazo &) override
    {
        return std::unexpected(Fallo::sinRespuesta);
    }
};

/// A whole platform of fakes whose members a test reads and sets directly.
struct PlataformaDePrueba : Plataforma
{
    Lugares m_lugares;
    PreferenciasEnMemoria m_preferencias;
    RelojManual m_reloj;
    VolumenDePrueba m_volumen;
    ArchivosDePrueba m_archivos;
    PapeleraDePrueba m_papelera;
    Papelera *m_otraPapelera = nullptr; ///< takes the place of `m_papelera` where set
    AccesoArchivosDePrueba m_accesoArchivos;
    HerramientasDePrueba m_herramientas;
    AplicacionesDePrueba m_aplicaciones;
    NotificacionesDePrueba m_notificaciones;
    SuspensionDePrueba m_suspension;
    DialogoDePrueba m_dialogo;
    GestorArchivosDePrueba m_gestor;
    AparienciaDePrueba m_apariencia;
    AnfitrionDePrueba m_anfitrion;
    InstanciaDePrueba m_instancia;
    InicioDePrueba m_inicio;
    PoliticaDePrueba m_politica;
    ContadoresDePrueba m_contadores;
    TermicoDePrueba m_termico;
    BateriaDePrueba m_bateria;
    MemoriaDePrueba m_memoriaSistema;
    ProcesosDePrueba m_procesos;
    AplicacionesEnMarchaDePrueba m_enMarcha;
    ReinicioDePrueba m_reinicio;
    ConexionesDePrueba m_conexiones;

    const Lugares &lugares() const override { return m_lugares; }
    Preferencias &preferencias() override { return m_preferencias; }
    Reloj &reloj() override { return m_reloj; }
    Volumen &volumen() override { return m_volumen; }
    Archivos &archivos() override { return m_archivos; }
    Papelera &papelera() override { return m_otraPapelera ? *m_otraPapelera : m_papelera; }
    AccesoArchivos &accesoArchivos() override { return m_accesoArchivos; }
    Herramientas &herramientas() override { return m_herramientas; }
    Aplicaciones &aplicaciones() override { return m_aplicaciones; }
    Notificaciones &notificaciones() override { return m_notificaciones; }
    Suspension &suspension() override { return m_suspension; }
    DialogoCritico &dialogoCritico() override { return m_dialogo; }
    GestorArchivos &gestorArchivos() override { return m_gestor; }
    Apariencia &apariencia() override { return m_apariencia; }
    AnfitrionBandeja &anfitrionBandeja() override { return m_anfitrion; }
    InstanciaUnica &instanciaUnica() override { return m_instancia; }
    InicioAutomatico &inicioAutomatico() override { return m_inicio; }
    PoliticaActivacion &politicaActivacion() override { return m_politica; }
    Contadores &contadores() override { return m_contadores; }
    Termico &termico() override { return m_termico; }
    Bateria &bateria() override { return m_bateria; }
    MemoriaSistema &memoriaSistema() override { return m_memoriaSistema; }
    Procesos &procesos() override { return m_procesos; }
    AplicacionesEnMarcha &aplicacionesEnMarcha() override { return m_enMarcha; }
    Reinicio &reinicio() override { return m_reinicio; }
    Conexiones &conexiones() override { return m_conexiones; }
};

} // namespace ovanta::pruebas
