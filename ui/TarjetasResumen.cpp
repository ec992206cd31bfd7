#include "ui/TarjetasResumen.h"

#include "core/Tamano.h"
#include "core/qt/Formato.h"
#include "core/qt/Texto.h"
#include "ui/AspectoMemoria.h"
#include "ui/Riesgo.h"

#include <cmath>

namespace ovanta {

namespace {

const QString sinAnalizar = QStringLiteral("Sin analizar todavía");

QString numero(std::uint64_t cuantos)
{
    return Formato::delUsuario().entero(cuantos);
}

TarjetaResumen tarjeta(Seccion seccion, const QString &titulo, const QString &simbolo, Tinte tinte,
                       std::string_view risk)
{
    const Riesgo riesgo = riesgoVisible(risk);
    return {.clave = titulo,
            .seccion = mostrar(ficha(seccion).clave),
            .titulo = titulo,
            .simbolo = simbolo,
            .tinte = tinte,
            .cifra = {},
            .detalle = {},
            .insignia = riesgo.texto,
            .tinteInsignia = riesgo.tinte};
}

TarjetaResumen deCaches(const EntradasResumen &e)
{
    auto t = tarjeta(Seccion::espacio, QStringLiteral("Cachés regenerables"), QStringLiteral("shippingbox"),
                     Tinte::Azul, "safe");
    t.cifra = Formato::delUsuario().bytes(e.bytesReglas);
    t.detalle = QStringLiteral("Se recrean solas al usar las herramientas");
    return t;
}

TarjetaResumen deDuplicados(const EntradasResumen &e)
{
    auto t = tarjeta(Seccion::duplicados, QStringLiteral("Duplicados · tamaño lógico"),
                     QStringLiteral("doc.on.doc"), Tinte::Rosa, "review");
    t.cifra = Formato::delUsuario().bytes(e.bytesDuplicados);
    t.detalle =
        e.gruposDuplicados == 0
            ? sinAnalizar
            : numero(e.gruposDuplicados) + QStringLiteral(" grupos · clones APFS pueden compartir bloques");
    return t;
}

TarjetaResumen deDependencias(const EntradasResumen &e)
{
    auto t = tarjeta(Seccion::pesados, QStringLiteral("Dependencias"), QStringLiteral("shippingbox.fill"),
                     Tinte::Turquesa, "review");
    t.cifra = Formato::delUsuario().bytes(e.bytesCarpetas);
    t.detalle =
        e.carpetas == 0 ? sinAnalizar : numero(e.carpetas) + QStringLiteral(" carpetas reinstalables");
    return t;
}

TarjetaResumen deSimuladores(const EntradasResumen &e)
{
    auto t =
        tarjeta(Seccion::simuladores, QStringLiteral("Simuladores nuevos"), QStringLiteral("iphone.gen3"),
                e.simuladoresNuevos > 0 ? Tinte::Naranja : Tinte::Secundario, "review");
    t.cifra = Formato::delUsuario().bytes(e.bytesNuevos);
    t.detalle = QStringLiteral("%1 de %2, creados en ≤%3 días")
                    .arg(numero(e.simuladoresNuevos), numero(e.simuladores))
                    .arg(e.diasNuevo);
    return t;
}

TarjetaResumen deMemoria(const EntradasResumen &e)
{
    const AspectoMemoria aspecto = aspectoDe(e.memoria);
    auto t = tarjeta(Seccion::memoria, QStringLiteral("Memoria"), QStringLiteral("memorychip"), aspecto.tinte,
                     "manual");
    t.cifra = QString::number(std::lround(e.presion * 100)) + QStringLiteral(" %");
    t.detalle = aspecto.texto + QStringLiteral(" · swap ") +
                Formato::delUsuario().bytes(e.swapUsado, EstiloBytes::memoria);
    return t;
}

TarjetaResumen deDescargas(const EntradasResumen &e)
{
    auto t = tarjeta(Seccion::pesados, QStringLiteral("Descargas viejas"),
                     QStringLiteral("arrow.down.circle"), Tinte::Indigo, "manual");
    t.cifra = Formato::delUsuario().bytes(e.bytesDescargas);
    t.detalle = QStringLiteral("%1 sin tocar en %2 días").arg(numero(e.descargas)).arg(e.diasDescargas);
    return t;
}

} // namespace

EntradasResumen leerEntradas(OvantaApp &app)
{
    EntradasResumen entradas;
    entradas.bytesReglas = app.reglas().bytesRecuperables();
    entradas.midiendoReglas = app.reglas().midiendo();
    const Scanner &scanner = app.scanner();
    entradas.escaneando = scanner.trabajando();
    entradas.deteniendo = scanner.deteniendo();
    entradas.gruposDuplicados = scanner.duplicados()->size();
    entradas.bytesDuplicados = scanner.desperdicioTotal();
    entradas.carpetas = scanner.carpetas()->size();
    entradas.bytesCarpetas = scanner.bytesCarpetas();
    entradas.descargas = scanner.descargasViejas()->size();
    for (const ArchivoHallado &descarga : *scanner.descargasViejas())
        entradas.bytesDescargas = sumar(entradas.bytesDescargas, descarga.bytes);
    entradas.diasDescargas = scanner.diasDescargas();
    entradas.memoria = app.mem().estado();
    entradas.presion = app.mem().presion();
    entradas.swapUsado = app.mem().swapUsado();
    const std::vector<Simulador> nuevos = app.sims().nuevos();
    entradas.cargandoSimuladores = app.sims().cargando() || app.sims().midiendoTamanos();
    entradas.simuladores = app.sims().simuladores().size();
    entradas.simuladoresNuevos = nuevos.size();
    entradas.bytesNuevos = SimulatorStore::sumaDeBytes(nuevos);
    entradas.diasNuevo = app.sims().diasNuevo();
    return entradas;
}

bool midiendoAlgo(const EntradasResumen &entradas)
{
    return entradas.midiendoReglas || entradas.cargandoSimuladores || entradas.escaneando;
}

std::uint64_t bytesRecuperables(const EntradasResumen &entradas)
{
    return sumar(sumar(entradas.bytesReglas, entradas.bytesDuplicados),
                 sumar(entradas.bytesCarpetas, entradas.bytesNuevos));
}

std::vector<TarjetaResumen> tarjetasResumen(const EntradasResumen &entradas)
{
    return {deCaches(entradas),      deDuplicados(entradas), deDependencias(entradas),
            deSimuladores(entradas), deMemoria(entradas),    deDescargas(entradas)};
}

} // namespace ovanta
