#pragma once

#include "app/Interfaz.h"

#include <QStringList>
#include <memory>

namespace ovanta {

/// Loads the library of the windows at the first call and keeps it. Main thread.
class CargadorInterfaz
{
public:
    /// Where the library lies in a build tree and in an installation, seen from the program.
    static QStringList candidatas();

    /// The first of `candidatas` that fits is taken.
    explicit CargadorInterfaz(OvantaApp &app, QStringList candidatas = CargadorInterfaz::candidatas());

    /// The windows; nothing where the library is missing or does not fit, and then `error` says why.
    Interfaz *interfaz();

    /// The windows where they were loaded already.
    Interfaz *interfazSiHay() const { return m_interfaz.get(); }

    const QString &error() const { return m_error; }

private:
    OvantaApp &m_app;
    QStringList m_candidatas;
    std::unique_ptr<Interfaz> m_interfaz;
    QString m_error;
};

} // namespace ovanta
