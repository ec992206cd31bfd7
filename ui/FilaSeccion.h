#pragma once

#include <QMetaType>
#include <QString>

namespace ovanta {

/// A row of the sidebar.
struct FilaSeccion
{
    Q_GADGET
    Q_PROPERTY(QString clave MEMBER clave)
    Q_PROPERTY(QString titulo MEMBER titulo)
    Q_PROPERTY(QString icono MEMBER icono)
    Q_PROPERTY(QString grupo MEMBER grupo)
public:
    QString clave;
    QString titulo;
    QString icono;
    QString grupo;

    bool operator==(const FilaSeccion &) const = default;
};

} // namespace ovanta
