#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace ovanta {

/// The name in the Trash at the `numero`-th try for an item called `nombre`: the name itself, then
/// "nombre.2", "nombre.3"… cut at the end of a character so that its info file's name has at most
/// `maximo` bytes.
std::string nombreEnPapelera(std::string_view nombre, unsigned numero, std::size_t maximo);

/// A number from `desde` on that is not taken: the smallest where the taken ones have no gap, which
/// takes time logarithmic in their count.
unsigned numeroLibre(unsigned desde, const std::function<bool(unsigned)> &ocupado);

} // namespace ovanta
