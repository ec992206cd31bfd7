#pragma once

#include "app/OvantaApp.h"
#include "ui/ModeloFilas.h"

#include <QObject>
#include <QtQml/qqml.h>

namespace ovanta {

/// A row of the history; `clave` is the entry's id.
struct FilaMovimiento
{
    Q_GADGET
    Q_PROPERTY(QString clave MEMBER clave)
    Q_PROPERTY(QString nombre MEMBER nombre)
    Q_PROPERTY(QString ruta MEMBER ruta)
    Q_PROPERTY(QString fecha MEMBER fecha)
    Q_PROPERTY(QString tamano MEMBER tamano)
    Q_PROPERTY(QString regla MEMBER regla)
public:
    QString clave;
    QString nombre; ///< last component of `ruta`, or all of it where it is no path
    QString ruta;   ///< for display only
    QString fecha;
    QString tamano;
    QString regla;

    bool operator==(const FilaMovimiento &) const = default;
};

/// The rules of the history screen. It only reads.
class HistorialViewEstado : public QObject
{
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(QAbstractItemModel *filas READ filas CONSTANT)
    Q_PROPERTY(bool vacio READ vacio NOTIFY historialChanged)
    Q_PROPERTY(QString elementos READ elementos NOTIFY historialChanged)
    Q_PROPERTY(QString total READ total NOTIFY historialChanged)
public:
    explicit HistorialViewEstado(QObject *parent = nullptr);

    QAbstractItemModel *filas() { return &m_filas; }
    bool vacio() const { return m_filas.filas().empty(); }
    QString elementos() const;
    QString total() const;

    Q_INVOKABLE void abrirPapelera();

Q_SIGNALS:
    void historialChanged();

private:
    void actualizar();

    OvantaApp &m_app;
    ModeloFilas<FilaMovimiento> m_filas;
};

} // namespace ovanta
