#pragma once

#include "ui/HallazgosEstado.h"
#include "ui/MarcasDeCopias.h"
#include "ui/ModeloCopias.h"

namespace ovanta {

/// The rules of the duplicates screen: what is listed, what may be marked, and the move. The marks live
/// as long as the screen.
class DuplicatesViewEstado : public ovanta::HallazgosEstado
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
    bool vacio() const { return m_filas.grupos().empty(); }
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
    /// Of the group that a row belongs to.
    Q_INVOKABLE void marcarTodasMenosLaOriginal(int fila);
    Q_INVOKABLE void desmarcarTodo();
    Q_INVOKABLE void mostrarEnGestor(int fila);

Q_SIGNALS:
    void duplicadosChanged();
    void marcasChanged();

protected:
    bool hayQueMover() const override { return puedeMover(); }
    QCoro::Task<> moverMarcadas() override;
    void olvidarMarcas() override { desmarcarTodo(); }
    QString textoMovidos(const QString &cuantos, const QString &bytes) const override;

private:
    void publicar();
    void cambioDeMarcas();
    std::vector<std::string> rutasMarcadas() const;
    QCoro::Task<> medirEspacioReal();

    MarcasDeCopias m_marcas;
    ModeloCopias m_filas{m_marcas};
    QString m_textoReal;
    unsigned m_cambios = 0; ///< of the marks
    bool m_midiendo = false;
};

} // namespace ovanta
