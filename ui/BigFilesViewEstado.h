#pragma once

#include "ui/HallazgosEstado.h"
#include "ui/ModeloHallados.h"

#include <QStringList>
#include <array>

namespace ovanta {

/// The rules of the screen of what weighs most: five lists in tabs over one set of marks, and the move.
/// The marks are paths: they live as long as the screen and outlast an analysis.
class BigFilesViewEstado : public ovanta::HallazgosEstado
{
    Q_OBJECT
    QML_ELEMENT

    /// The open tab and the titles of all, each with the length of its list.
    Q_PROPERTY(int pestana READ pestana WRITE fijarPestana NOTIFY listaChanged)
    Q_PROPERTY(QStringList pestanas READ pestanas NOTIFY listaChanged)
    /// Of the open tab.
    Q_PROPERTY(ovanta::ModeloHallados *filas READ filas NOTIFY listaChanged)
    Q_PROPERTY(bool vacio READ vacio NOTIFY listaChanged)
    Q_PROPERTY(bool deCarpetas READ deCarpetas NOTIFY listaChanged)
    Q_PROPERTY(QString tituloVacio READ tituloVacio NOTIFY listaChanged)
    Q_PROPERTY(QString mensajeVacio READ mensajeVacio NOTIFY listaChanged)
    Q_PROPERTY(QString simboloVacio READ simboloVacio NOTIFY listaChanged)

    Q_PROPERTY(bool puedeMover READ puedeMover NOTIFY marcasChanged)
    /// "3 marcados · 12 MB"; empty where nothing is.
    Q_PROPERTY(QString textoMarcados READ textoMarcados NOTIFY marcasChanged)
    Q_PROPERTY(QString tituloConfirmacion READ tituloConfirmacion NOTIFY marcasChanged)
    Q_PROPERTY(QString textoConfirmar READ textoConfirmar NOTIFY marcasChanged)
public:
    explicit BigFilesViewEstado(QObject *parent = nullptr);

    int pestana() const { return m_pestana; }
    void fijarPestana(int pestana);
    QStringList pestanas() const;
    ModeloHallados *filas() const { return m_listas[static_cast<std::size_t>(m_pestana)]; }
    bool vacio() const { return filas()->rowCount() == 0; }
    bool deCarpetas() const;
    QString tituloVacio() const;
    QString mensajeVacio() const;
    QString simboloVacio() const;
    bool puedeMover() const { return !m_marcadas.empty() && !moviendo(); }
    QString textoMarcados() const;
    QString tituloConfirmacion() const;
    QString textoConfirmar() const;
    const RutasMarcadas &marcadas() const { return m_marcadas; }
    /// What is marked of the files, each path once, and of the folders.
    std::uint64_t bytesMarcados() const { return m_bytesMarcados; }

    /// Of a row of the open tab.
    Q_INVOKABLE void marcar(int fila, bool marcada);
    Q_INVOKABLE void mostrarEnGestor(int fila);

Q_SIGNALS:
    void listaChanged();
    void marcasChanged();

protected:
    bool hayQueMover() const override { return puedeMover(); }
    QCoro::Task<> moverMarcadas() override;
    void olvidarMarcas() override;
    QString textoMovidos(const QString &cuantos, const QString &bytes) const override;

private:
    void publicarGrandes();
    void publicarLoDemas();
    void cambioDeMarcas();
    void sumarMarcados();

    RutasMarcadas m_marcadas;
    ModeloHalladosDe<ArchivoHallado> m_grandes{m_marcadas};
    ModeloHalladosDe<CarpetaPesada> m_carpetas{m_marcadas};
    ModeloHalladosDe<ArchivoHallado> m_descargasViejas{m_marcadas};
    ModeloHalladosDe<ArchivoHallado> m_capturas{m_marcadas};
    ModeloHalladosDe<ArchivoHallado> m_instaladores{m_marcadas};
    const std::array<ModeloHallados *, 5> m_listas{&m_grandes, &m_carpetas, &m_descargasViejas, &m_capturas,
                                                   &m_instaladores};
    int m_pestana = 0;
    std::uint64_t m_bytesMarcados = 0;
};

} // namespace ovanta
