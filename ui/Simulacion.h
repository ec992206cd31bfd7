#pragma once

#include "core/Previsualizar.h"
#include "core/Regla.h"
#include "core/Seguridad.h"

#include <QObject>
#include <QString>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace ovanta {

/// What cleaning one rule would do, as a dry run found it.
struct ObjetivoSimulado
{
    std::string id;
    std::string nombre;
    std::string ruta;
    std::uint64_t bytes = 0;
    std::uint64_t elementos = 0;
    std::optional<std::string> error;

    bool operator==(const ObjetivoSimulado &) const = default;
};

/// Looks at each rule in order; nothing moves. Blocking; any thread.
std::vector<ObjetivoSimulado> simular(const Seguridad &seguridad, const std::vector<Regla> &reglas);

/// A row of the dry run's sheet.
struct FilaSimulada
{
    Q_GADGET
    Q_PROPERTY(QString clave MEMBER clave)
    Q_PROPERTY(QString nombre MEMBER nombre)
    Q_PROPERTY(QString texto MEMBER texto)
    Q_PROPERTY(bool fallo MEMBER fallo)
public:
    QString clave;
    QString nombre;
    QString texto;
    bool fallo = false;

    bool operator==(const FilaSimulada &) const = default;
};

std::vector<FilaSimulada> filasSimuladas(const std::vector<ObjetivoSimulado> &objetivos);

/// "12 elementos se moverían a la Papelera · 1,2 GB".
QString totalSimulado(const std::vector<ObjetivoSimulado> &objetivos, std::uint64_t bytes);

} // namespace ovanta
