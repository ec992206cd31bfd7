#pragma once

#include "app/OvantaApp.h"
#include "ui/componentes/Paleta.h"

#include <QString>
#include <cstdint>
#include <vector>

namespace ovanta {

/// What the summary takes from the stores. A store that is not there yet leaves its zeros.
struct EntradasResumen
{
    std::uint64_t bytesReglas = 0; ///< of the safe rules
    bool midiendoReglas = false;

    bool cargandoSimuladores = false; ///< listing or measuring them
    std::size_t simuladores = 0;
    std::size_t simuladoresNuevos = 0;
    std::uint64_t bytesNuevos = 0;
    int diasNuevo = 7;

    bool escaneando = false;
    bool deteniendo = false;
    std::size_t gruposDuplicados = 0;
    std::uint64_t bytesDuplicados = 0;
    std::size_t carpetas = 0;
    std::uint64_t bytesCarpetas = 0;
    std::size_t descargas = 0;
    std::uint64_t bytesDescargas = 0;
    int diasDescargas = 90;

    EstadoMemoria memoria = EstadoMemoria::normal;
    double presion = 0;
    std::uint64_t swapUsado = 0;
};

EntradasResumen leerEntradas(OvantaApp &app);

/// Whether any figure of the summary is still being made.
bool midiendoAlgo(const EntradasResumen &entradas);

/// The estimate of what can be saved; what is not measured counts as nothing.
std::uint64_t bytesRecuperables(const EntradasResumen &entradas);

/// A card of the summary; `seccion` is the key of the section it leads to, `clave` its own.
struct TarjetaResumen
{
    Q_GADGET
    Q_PROPERTY(QString clave MEMBER clave)
    Q_PROPERTY(QString seccion MEMBER seccion)
    Q_PROPERTY(QString titulo MEMBER titulo)
    Q_PROPERTY(QString simbolo MEMBER simbolo)
    Q_PROPERTY(ovanta::Tinte tinte MEMBER tinte)
    Q_PROPERTY(QString cifra MEMBER cifra)
    Q_PROPERTY(QString detalle MEMBER detalle)
    Q_PROPERTY(QString insignia MEMBER insignia)
    Q_PROPERTY(ovanta::Tinte tinteInsignia MEMBER tinteInsignia)
public:
    QString clave;
    QString seccion;
    QString titulo;
    QString simbolo;
    Tinte tinte = Tinte::Azul;
    QString cifra;
    QString detalle;
    QString insignia;
    Tinte tinteInsignia = Tinte::Gris;

    bool operator==(const TarjetaResumen &) const = default;
};

/// The six cards in their order.
std::vector<TarjetaResumen> tarjetasResumen(const EntradasResumen &entradas);

} // namespace ovanta
