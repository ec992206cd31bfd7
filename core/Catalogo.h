#pragma once

#include "core/Regla.h"

#include <cstdint>
#include <stdexcept>
#include <string_view>
#include <vector>

namespace ovanta {

/// Why the bytes are no catalogue. `what()` is a Spanish sentence for the user.
struct ErrorDeCatalogo : std::runtime_error
{
    using std::runtime_error::runtime_error;
};

/// The largest catalogue that is read. The file is read on the main thread, and one of this size
/// still takes only a few milliseconds; a real one has about a tenth of it.
inline constexpr std::uint64_t limiteDelCatalogo = 1024 * 1024;

/// The rules in a catalogue's bytes, in their order: a JSON array of objects, each with the eight
/// text keys of `Regla`. Further keys are ignored; of a repeated key the last one counts. There is
/// no partial catalogue: the first fault throws `ErrorDeCatalogo`, which names the entry and key.
/// Any bytes may be given: time and memory stay linear in them, and nesting is bounded.
std::vector<Regla> decodificarCatalogo(std::string_view bytes);

} // namespace ovanta
