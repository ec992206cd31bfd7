#pragma once

#include "analysis/BanderaCancelacion.h"
#include "analysis/Clasificar.h"
#include "analysis/GuardianDeCopias.h"
#include "analysis/Lista.h"
#include "core/qt/TareaAbandonable.h"
#include "platform/Plataforma.h"

#include <QCoroTask>
#include <QObject>
#include <QString>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace ovanta {

/// The store of the file analysis: one walk of the user's folders and all that the findings screens
/// show of it. It removes nothing. Main thread; one for the life of the process.
class Scanner final : public QObject
{
    Q_OBJECT

public:
    /// Whether an analysis runs, what it is doing as a text for the user, and how many entries it has
    /// seen; after the walk, how many files were looked at.
    Q_PROPERTY(bool trabajando READ trabajando NOTIFY trabajandoChanged)
    Q_PROPERTY(QString progreso READ progreso NOTIFY avanceChanged)
    Q_PROPERTY(qulonglong archivosVistos READ archivosVistos NOTIFY avanceChanged)
    bool trabajando() const { return m_trabajando; }
    const QString &progreso() const { return m_progreso; }
    qulonglong archivosVistos() const { return m_archivosVistos; }
    /// Whether the running analysis was told to stop.
    bool deteniendo() const { return m_cancelacion && m_cancelacion->cancelada(); }

    /// The least size of a file that an analysis looks at, in units of 2^20 bytes, and the days from
    /// which a download counts as old. Both are kept in the user's settings; a number that they
    /// cannot have changes nothing. They hold from the next analysis on.
    Q_PROPERTY(double minimoMB READ minimoMB WRITE fijarMinimoMB NOTIFY ajustesChanged)
    Q_PROPERTY(int diasDescargas READ diasDescargas WRITE fijarDiasDescargas NOTIFY ajustesChanged)
    double minimoMB() const { return m_minimoMB; }
    int diasDescargas() const { return m_diasDescargas; }
    void fijarMinimoMB(double mebibytes);
    void fijarDiasDescargas(int dias);

    /// The folders of the next analysis, relative to home. Not kept.
    const std::vector<std::string> &raices() const { return m_raices; }
    void fijarRaices(std::vector<std::string> raices);

    // What the last analysis found; each stays until the next one replaces it. Never null; who keeps a
    // list may show it as long as it likes.
    const Lista<GrupoDuplicados> &duplicados() const { return m_duplicados; }
    const Lista<ArchivoHallado> &grandes() const { return m_grandes; }
    const Lista<CarpetaPesada> &carpetas() const { return m_carpetas; }
    const Lista<ArchivoHallado> &descargasViejas() const { return m_descargasViejas; }
    const Lista<ArchivoHallado> &capturas() const { return m_capturas; }
    const Lista<ArchivoHallado> &instaladores() const { return m_instaladores; }

    /// Of all duplicates, by their logical size; of all heavy folders.
    std::uint64_t desperdicioTotal() const { return m_desperdicioTotal; }
    std::uint64_t bytesCarpetas() const { return m_bytesCarpetas; }

    /// Who moves found files asks it right before each move.
    const std::shared_ptr<GuardianDeCopias> &guardian() const { return m_guardian; }

    /// `plataforma` must outlive it and the background tasks.
    explicit Scanner(Plataforma &plataforma, QObject *parent = nullptr);
    ~Scanner() override;

    /// Looks through the user's folders; does nothing while an analysis runs. One that is stopped
    /// publishes nothing more.
    QCoro::Task<> analizar();

    /// Stops the running analysis at its next step; one that hangs in a dead disk is given up.
    void detener();

Q_SIGNALS:
    void trabajandoChanged();
    void avanceChanged();
    void ajustesChanged();
    /// `duplicados` and `grandes` are new.
    void duplicadosChanged();
    /// The other four lists are new.
    void hallazgosChanged();

private:
    void leerPreferencias();
    void empezar();
    void terminar();
    void fijarProgreso(const QString &progreso);
    void avanzar(const BanderaCancelacion *cancelacion, std::uint64_t vistas);
    std::function<void(std::uint64_t)> alAvanzar();
    void publicarDuplicados(Clasificados clasificados);
    void publicarCarpetas(std::vector<CarpetaPesada> carpetas);
    template <typename F>
    auto etapa(F trabajo);

    Plataforma &m_plataforma;
    std::shared_ptr<GuardianDeCopias> m_guardian = std::make_shared<GuardianDeCopias>();
    double m_minimoMB = 1.0;
    int m_diasDescargas = 90;
    std::vector<std::string> m_raices;
    bool m_trabajando = false;
    bool m_recorriendo = false;
    QString m_progreso;
    std::uint64_t m_archivosVistos = 0;
    Clasificados m_pendiente; ///< what waits for the end of the run
    Lista<GrupoDuplicados> m_duplicados = listaDe<GrupoDuplicados>({});
    Lista<ArchivoHallado> m_grandes = listaDe<ArchivoHallado>({});
    Lista<CarpetaPesada> m_carpetas = listaDe<CarpetaPesada>({});
    Lista<ArchivoHallado> m_descargasViejas = listaDe<ArchivoHallado>({});
    Lista<ArchivoHallado> m_capturas = listaDe<ArchivoHallado>({});
    Lista<ArchivoHallado> m_instaladores = listaDe<ArchivoHallado>({});
    std::uint64_t m_desperdicioTotal = 0;
    std::uint64_t m_bytesCarpetas = 0;
    std::shared_ptr<BanderaCancelacion> m_cancelacion; ///< of the running analysis
    std::function<void()> m_abandonar;                 ///< gives its current stage up
    std::unique_ptr<Reloj::Temporizador> m_plazo;      ///< of a stop
};

} // namespace ovanta
