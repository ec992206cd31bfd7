#pragma once

#include "core/plist/ErrorPlist.h"
#include "core/plist/ValorPlist.h"

#include <cstddef>
#include <expected>
#include <string_view>

namespace ovanta {

/// What a property list may at most make of its bytes. A list that lies within them is read in time and
/// memory that grow with its length, or are bounded by these where values are shared.
struct LimitesPlist
{
    int profundidad = 64;                              ///< containers inside each other
    std::size_t objetos = 500'000;                     ///< values and keys, a shared one each time it is used
    std::size_t bytes = std::size_t{64} * 1024 * 1024; ///< of texts, keys and data, counted likewise
};

/// Reads a property list in XML or in the binary format "bplist00", whichever the bytes begin with. They may
/// come from anybody: whatever they hold, the answer is a value or an error, soon. Any thread.
std::expected<ValorPlist, ErrorPlist> leerPlist(std::string_view bytes, const LimitesPlist &limites = {});

} // namespace ovanta
