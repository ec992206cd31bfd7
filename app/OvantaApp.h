#pragma once

#include "analysis/Scanner.h"
#include "app/NavegacionAplicacion.h"
#include "core/Cleaner.h"
#include "core/RuleStore.h"
#include "developer/SimulatorStore.h"
#include "monitors/DiskMonitor.h"
#include "monitors/MemoryMonitor.h"
#include "monitors/SystemStatsMonitor.h"
#include "platform/Plataforma.h"

#include <QObject>

namespace ovanta {

/// The owner of every store. It makes each of them once, in this order, and hands them to whoever
/// shows them; they live as long as the process. Main thread.
///
/// The places of the stores: disco, sims, reglas, limpiador, scanner, mem, apps, storageMap,
/// similarPhotos, navegacion, dev, oculto, stats, salud, restos, ios, auto.
class OvantaApp : public QObject
{
    Q_OBJECT
public:
    explicit OvantaApp(Plataforma &plataforma, QObject *parent = nullptr);
    ~OvantaApp() override;

    Plataforma &plataforma() { return m_plataforma; }

    DiskMonitor &disco() { return m_disco; }
    SimulatorStore &sims() { return m_sims; }
    RuleStore &reglas() { return m_reglas; }
    Cleaner &limpiador() { return m_limpiador; }
    Scanner &scanner() { return m_scanner; }
    MemoryMonitor &mem() { return m_mem; }
    NavegacionAplicacion &navegacion() { return m_navegacion; }
    SystemStatsMonitor &stats() { return m_stats; }

private:
    Plataforma &m_plataforma;
    DiskMonitor m_disco;
    SimulatorStore m_sims;
    RuleStore m_reglas;
    Cleaner m_limpiador;
    Scanner m_scanner;
    MemoryMonitor m_mem;
    NavegacionAplicacion m_navegacion;
    SystemStatsMonitor m_stats;
};

} // namespace ovanta
