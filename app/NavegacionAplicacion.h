#pragma once

#include "app/Seccion.h"

#include <QObject>
#include <optional>

namespace ovanta {

/// Which section the main window shows.
class NavegacionAplicacion : public QObject
{
    Q_OBJECT

    /// Raw value of the selected section, empty for none; an unknown text selects none.
    Q_PROPERTY(QString seleccion READ claveSeleccionada WRITE seleccionarClave NOTIFY seleccionChanged)
public:
    explicit NavegacionAplicacion(QObject *parent = nullptr);

    std::optional<Seccion> seleccion() const { return m_seleccion; }
    void seleccionar(std::optional<Seccion> seccion);

    QString claveSeleccionada() const;
    void seleccionarClave(const QString &clave);

Q_SIGNALS:
    void seleccionChanged();

private:
    std::optional<Seccion> m_seleccion = Seccion::resumen;
};

} // namespace ovanta
