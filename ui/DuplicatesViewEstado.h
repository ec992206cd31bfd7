#pragma once

#include "ui/HallazgosEstado.h"
#include "ui/MarcasDeCopias.h"
#include "ui/ModeloCopias.h"

#include <QCoroTask>

namespace ovanta {

/// The rules of the duplicates screen: what is listed, what may be marked, and the move. The marks live
/// as long as the screen; a move that it started goes on without it.
class DuplicatesViewEstado : public HallazgosEstado
{
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(ovanta::ModeloCopias *filas READ filas CONSTANT)
    Q_PROPERTY(bool vacio READ vacio NOTIFY duplicadosChanged)
    /// "12 grupos · 3,4 GB de tamaño lógico extra"; empty without groups.
    Q_PROPERTY(QString valor READ valor NOTIFY duplicadosChanged)
    Q_PROPERTY(QString tituloVacio READ tituloVacio NOTIFY duplicadosChanged)
    Q_PROPERTY(QString mensajeVacio READ mensajeVacio NOTIFY duplicadosChanged)
    Q_PROPERTY(QString simboloVacio READ simboloVacio NOTIFY duplicadosChanged)

    Q_PROPERTY(bool hayMarcadas READ hayMarcadas NOTIFY marcasChanged)
    Q_PROPERTY(bool puedeMover READ puedeMover NOTIFY marcasChanged)
    Q_PROPERTY(QString textoMarcadas READ textoMarcadas NOTIFY marcasChanged)
    /// What really leaves the disk, where that is less than what is shown; else empty.
    Q_PROPERTY(QString textoReal READ textoReal NOTIFY marcasChanged)
    Q_PROPERTY(QString tituloConfirmacion READ tituloConfirmacion NOTIFY marcasChanged)
public:
    explicit DuplicatesViewEstado(QObject *parent = nullptr);

    ModeloCopias *filas() { return &m_filas; }
    bool vacio() const { return app().scanner().duplicados().empty(); }
    QString valor() const;
    QString tituloVacio() const;
    QString mensajeVacio() const;
    QString simboloVacio() const;
    bool hayMarcadas() const { return !m_marcas.marcadas().empty(); }
    bool puedeMover() const { return hayMarcadas() && !moviendo(); }
    QString textoMarcadas() const;
    QString textoReal() const { return m_textoReal; }
    QString tituloConfirmacion() const;
    const MarcasDeCopias &marcas() const { return m_marcas; }

    Q_INVOKABLE void marcar(int fila, bool marcada);
    Q_INVOKABLE void marcarTodasMenosLaOriginal(int fila);
    Q_INVOKABLE void desmarcarTodo();
    Q_INVOKABLE void mostrarEnGestor(int fila);
    /// "Mover a la Papelera" asks first; `confirmar` moves what is marked then.
    Q_INVOKABLE void pedirConfirmacion();
    Q_INVOKABLE void confirmar();

Q_SIGNALS:
    void duplicadosChanged();
    void marcasChanged();

private:
    void publicar();
    void cambioDeMarcas();
    QCoro::Task<> medirEspacioReal();
    QCoro::Task<> moverMarcadas();

    ModeloCopias m_filas;
    MarcasDeCopias m_marcas;
    std::vector<std::string> m_ids; ///< of the groups that the marks are for
    QString m_textoReal;
    unsigned m_medicion = 0; ///< tells the last measurement of the marks from earlier ones
};

} // namespace ovanta
