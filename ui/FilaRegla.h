#pragma once

#include "core/Regla.h"
#include "ui/componentes/Paleta.h"

#include <QString>
#include <set>
#include <string>
#include <vector>

namespace ovanta {

using SeleccionReglas = std::set<std::string, std::less<>>;

/// A row of the caches screen; `clave` is the rule's id.
struct FilaRegla
{
    Q_GADGET
    Q_PROPERTY(QString clave MEMBER clave)
    Q_PROPERTY(QString categoria MEMBER categoria)
    Q_PROPERTY(QString nombre MEMBER nombre)
    Q_PROPERTY(QString ruta MEMBER ruta)
    Q_PROPERTY(QString modo MEMBER modo)
    Q_PROPERTY(QString tamano MEMBER tamano)
    Q_PROPERTY(QString insignia MEMBER insignia)
    Q_PROPERTY(ovanta::Tinte tinteInsignia MEMBER tinteInsignia)
    Q_PROPERTY(bool existe MEMBER existe)
    Q_PROPERTY(bool marcable MEMBER marcable)
    Q_PROPERTY(bool marcada MEMBER marcada)
public:
    QString clave;
    QString categoria;
    QString nombre;
    QString ruta; ///< for display only
    QString modo;
    QString tamano;
    QString insignia;
    Tinte tinteInsignia = Tinte::Gris;
    bool existe = false;
    bool marcable = false;
    bool marcada = false;

    bool operator==(const FilaRegla &) const = default;
};

/// The detail of a rule as a sheet shows it.
struct DetalleDeRegla
{
    Q_GADGET
    QML_VALUE_TYPE(detalleDeRegla)
    Q_PROPERTY(QString nombre MEMBER nombre FINAL)
    Q_PROPERTY(QString porque MEMBER porque FINAL)
    Q_PROPERTY(QString coste MEMBER coste FINAL)
    Q_PROPERTY(QString ruta MEMBER ruta FINAL)
    Q_PROPERTY(bool manual MEMBER manual FINAL)
public:
    QString nombre;
    QString porque;
    QString coste;
    QString ruta;
    bool manual = false;

    bool operator==(const DetalleDeRegla &) const = default;
};

/// Whether the user may tick a rule.
bool marcable(const Regla &regla);

/// The rows category by category, each ticked as the selection says. `soloConTamano` leaves out
/// those without a size above 0.
std::vector<FilaRegla> filasDeReglas(const std::vector<GrupoDeReglas> &grupos,
                                     const SeleccionReglas &seleccion, bool soloConTamano);

/// The ids of what "Marcar los seguros" ticks: safe, there, and with a measured size above 0.
SeleccionReglas reglasSeguras(const std::vector<Regla> &reglas);

/// The ticked rules that may be cleaned, in the order of the catalogue.
std::vector<Regla> reglasElegidas(const std::vector<Regla> &reglas, const SeleccionReglas &seleccion);

/// What they hold; an unmeasured one counts as nothing.
std::uint64_t bytesDe(const std::vector<Regla> &reglas);

DetalleDeRegla detalleDe(const Regla &regla);

} // namespace ovanta
