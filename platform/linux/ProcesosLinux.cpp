#include "platform/linux/ProcesosLinux.h"

#include "core/Rutas.h"

#include <algorithm>
#include <unistd.h>

namespace ovanta {

namespace {

std::string nombreDe(const ProcesoVisto &proceso)
{
    std::string nombre{ultimoComponente(programaDe(proceso))};
    return nombre.empty() || nombre == "/" ? "pid " + std::to_string(proceso.pid) : nombre;
}

} // namespace

unsigned ProcesosLinux::nucleos() const
{
    return static_cast<unsigned>(std::max(::sysconf(_SC_NPROCESSORS_ONLN), 1L));
}

std::vector<MuestraProceso> ProcesosLinux::muestrear()
{
    const FotoRef foto = m_fotografo->nueva();
    std::vector<MuestraProceso> muestras;
    muestras.reserve(foto->procesos.size());
    for (std::size_t i = 0; i < foto->procesos.size(); ++i) {
        const ProcesoVisto &proceso = foto->procesos[i];
        muestras.push_back({proceso.pid, nombreDe(proceso), foto->pertenencias[i]->ruta(), proceso.huella,
                            proceso.tiempoCPU, proceso.inicio});
    }
    return muestras;
}

} // namespace ovanta
