#pragma once

#include "platform/PoliticaActivacion.h"

#include <QObject>

namespace ovanta {

/// The entry in the task bar and the pager of an X11 desktop. Wayland leaves programs no say in this:
/// there the entry always stands.
class PoliticaActivacionLinux final : public QObject, public PoliticaActivacion
{
public:
    void fijar(Politica politica) override;

protected:
    /// Every window of the program is about to be shown here first.
    bool eventFilter(QObject *objeto, QEvent *evento) override;

private:
    Politica m_politica = Politica::regular;
};

} // namespace ovanta
