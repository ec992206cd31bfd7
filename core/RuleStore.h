#pragma once

#include "core/Regla.h"
#include "platform/Plataforma.h"

#include <QCoroTask>
#include <QObject>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace ovanta {

/// The catalogue of caches and regenerable folders, and how much each of them holds. It knows
/// nothing of removing. Empty until a screen asks for it. Main thread.
class RuleStore : public QObject
{
    Q_OBJECT

    /// Whether a measurement is under way.
    Q_PROPERTY(bool midiendo READ midiendo NOTIFY midiendoChanged)
    /// What the safe rules hold as far as they are measured.
    Q_PROPERTY(quint64 bytesRecuperables READ bytesRecuperables NOTIFY reglasChanged)
public:
    /// `plataforma` must outlive this store and any measurement that it started.
    explicit RuleStore(Plataforma &plataforma, QObject *parent = nullptr);

    /// In file order.
    const std::vector<Regla> &reglas() const { return m_reglas; }
    bool midiendo() const { return m_midiendo; }
    /// Why the latest `cargar` failed, for the user.
    const std::optional<std::string> &error() const { return m_error; }

    std::uint64_t bytesRecuperables() const { return ovanta::bytesRecuperables(m_reglas); }
    std::vector<GrupoDeReglas> porCategoria() const { return ovanta::porCategoria(m_reglas); }

    /// Reads the catalogue. On success it replaces `reglas` and clears `error`; on failure it sets
    /// `error` and leaves `reglas`.
    void cargar();

    /// Looks which rules exist and measures those, one `du` at a time, in the background. Without
    /// rules, or while a measurement is under way, it returns at once and changes nothing. A rule
    /// that does not exist or cannot be measured loses its figure, unless no rule exists at all.
    QCoro::Task<> medir();

Q_SIGNALS:
    /// `reglas`, or a size or existence in it, is new.
    void reglasChanged();
    void midiendoChanged();
    void errorChanged();

private:
    using Tamanos = std::map<std::string, std::uint64_t>;

    static Tamanos medirRutas(Herramientas &herramientas, const std::vector<std::string> &rutas);

    std::vector<std::string> anotarExistencia();
    void anotarTamanos(const Tamanos &tamanos);
    void fijarMidiendo(bool midiendo);
    void fijarError(std::optional<std::string> error);

    Plataforma &m_plataforma;
    std::vector<Regla> m_reglas;
    bool m_midiendo = false;
    std::optional<std::string> m_error;
};

} // namespace ovanta
