#pragma once

#include "core/Descriptor.h"
#include "core/Identidad.h"
#include "core/Movimiento.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <sys/types.h>
#include <vector>

namespace ovanta {

/// What one batch is moving, kept beside the history until the history holds it: the history is
/// written only once per batch, so without this a batch that dies is forgotten.
///
/// Each batch has a file of its own, so batches that run at once never touch each other's. It is a
/// list of JSON lines: the intent before a move, and after it that it was done. A move that failed
/// is taken back out. Only as many moves are kept as the history would take from one batch.
///
/// It outlives the death of the program, not a power failure: syncing each line would cost more
/// than the moves. A file that cannot be written is ignored. One call at a time, any thread.
class RegistroPrevio
{
public:
    /// No file appears before the first intent.
    explicit RegistroPrevio(const std::string &carpeta);

    const std::string &archivo() const { return m_archivo; }

    /// `identidad` is that of the item that is about to move.
    void intento(const Movimiento &movimiento, const Identidad &identidad);
    void hecho(const Movimiento &movimiento);
    /// Takes the last intent back: its item stayed where it was.
    void fallo();

private:
    bool abrir();
    void agregar(const std::string &linea);

    std::string m_archivo;
    Descriptor m_fd;
    off_t m_antesDelIntento = 0;
    std::size_t m_hechos = 0;
};

/// The files that earlier batches left in a folder.
std::vector<std::string> registrosPrevios(const std::string &carpeta);

/// The largest record that is read.
inline constexpr std::uint64_t limiteRegistroPrevio = 32 * 1024 * 1024;

/// A move that a record tells of.
struct MovimientoPrevio
{
    Movimiento movimiento; ///< before it is done, `fecha` is that of the intent
    Identidad identidad;
    bool hecho = false;

    bool operator==(const MovimientoPrevio &) const = default;
};

/// The moves of a record in their order. Lines that are torn or nonsense are skipped.
std::vector<MovimientoPrevio> interpretarRegistro(std::string_view bytes);

} // namespace ovanta
