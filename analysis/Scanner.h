#pragma once

#include "platform/Plataforma.h"

#include <QObject>

namespace ovanta {

/// The store of the file analysis. Main thread; one for the life of the process.
class Scanner final : public QObject
{
    Q_OBJECT

public:
    /// The least size of a file that an analysis looks at, in units of 2^20 bytes, and the days from
    /// which a download counts as old. Both are kept in the user's settings, and always finite and
    /// above zero: a number that none of them can have changes nothing.
    Q_PROPERTY(double minimoMB READ minimoMB WRITE fijarMinimoMB NOTIFY ajustesChanged)
    Q_PROPERTY(int diasDescargas READ diasDescargas WRITE fijarDiasDescargas NOTIFY ajustesChanged)
    double minimoMB() const { return m_minimoMB; }
    int diasDescargas() const { return m_diasDescargas; }
    void fijarMinimoMB(double mebibytes);
    void fijarDiasDescargas(int dias);

    /// `plataforma` must outlive it.
    explicit Scanner(Plataforma &plataforma, QObject *parent = nullptr);

Q_SIGNALS:
    void ajustesChanged();

private:
    void leerPreferencias();

    Plataforma &m_plataforma;
    double m_minimoMB = 1.0;
    int m_diasDescargas = 90;
};

} // namespace ovanta
