#include "platform/linux/PoliticaActivacionLinux.h"

#include "platform/linux/EstadoNetWm.h"

#include <QEvent>
#include <QGuiApplication>
#include <QWindow>

namespace ovanta {

void PoliticaActivacionLinux::fijar(Politica politica)
{
    if (politica == m_politica) return;
    m_politica = politica;
    const bool omitir = politica == Politica::accesoria;
    for (const QWindow *ventana : QGuiApplication::topLevelWindows())
        if (ventana->isVisible()) omitirEnBarraDeTareas(*ventana, omitir, true);
    if (omitir)
        qGuiApp->installEventFilter(this);
    else
        qGuiApp->removeEventFilter(this);
}

bool PoliticaActivacionLinux::eventFilter(QObject *objeto, QEvent *evento)
{
    if (evento->type() == QEvent::Show && objeto->isWindowType())
        omitirEnBarraDeTareas(static_cast<const QWindow &>(*objeto), true, false);
    return false;
}

} // namespace ovanta
