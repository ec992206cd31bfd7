#pragma once

#include "app/OvantaApp.h"
#include "ui/FilaSeccion.h"
#include "ui/ModeloFilas.h"
#include "ui/componentes/Paleta.h"

#include <QObject>
#include <QtQml/qqml.h>

namespace ovanta {

/// The rules of the main window: its sidebar, and which screen stands beside it.
class MainViewEstado : public QObject
{
    Q_OBJECT
    QML_ELEMENT

    /// The sidebar's rows, group by group.
    Q_PROPERTY(QAbstractItemModel *secciones READ secciones CONSTANT)
    /// The row of the selected section; -1 where none is selected.
    Q_PROPERTY(int fila READ fila NOTIFY seleccionChanged)
    /// The screen of the selected section, by its type's name; empty where none is selected.
    Q_PROPERTY(QString vista READ vista NOTIFY seleccionChanged)
    Q_PROPERTY(QString tituloSeccion READ tituloSeccion NOTIFY seleccionChanged)
    Q_PROPERTY(QString iconoSeccion READ iconoSeccion NOTIFY seleccionChanged)

    /// The lateral state: the level's symbol and the free space.
    Q_PROPERTY(QString libres READ libres NOTIFY discoChanged)
    Q_PROPERTY(QString simboloNivel READ simboloNivel NOTIFY discoChanged)
    Q_PROPERTY(ovanta::Tinte tinteNivel READ tinteNivel NOTIFY discoChanged)
    Q_PROPERTY(qreal fraccionUsada READ fraccionUsada NOTIFY discoChanged)
public:
    explicit MainViewEstado(QObject *parent = nullptr);

    QAbstractItemModel *secciones() { return &m_secciones; }
    int fila() const;
    QString vista() const;
    QString tituloSeccion() const;
    QString iconoSeccion() const;
    QString libres() const;
    QString simboloNivel() const;
    Tinte tinteNivel() const;
    qreal fraccionUsada() const;

    /// Selects the section of a row; a row that is not there changes nothing.
    Q_INVOKABLE void seleccionar(int fila);

    /// The command "Analizar de nuevo".
    Q_INVOKABLE void analizarDeNuevo();

Q_SIGNALS:
    void seleccionChanged();
    void discoChanged();

private:
    OvantaApp &m_app;
    ModeloFilas<FilaSeccion> m_secciones;
};

} // namespace ovanta
