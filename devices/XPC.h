#pragma once

#include "devices/ValorXPC.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// The part of the remote XPC wire format that reading a list of services takes: wrappers around nothing
/// or an empty dictionary, and a decoder. All numbers are little-endian. Pure; any thread.
namespace ovanta::XPC {

/// Header of a wrapper: magic, flags, 64-bit length of the body, 64-bit message id.
inline constexpr std::size_t bytesDeEnvoltura = 24;
/// What stands before the value in a body: magic and version.
inline constexpr std::size_t bytesDePrefijo = 8;
/// A value nested deeper than this counts as unreadable. A list of services nests five deep.
inline constexpr int profundidadMaxima = 64;

/// A wrapper with message id 0. Its body is the empty dictionary where `cargaVacia`, else nothing.
std::string envoltura(std::uint32_t flags, bool cargaVacia);

/// Little-endian numbers at `posicion`; nothing where they would pass the end.
std::optional<std::uint32_t> u32(std::string_view bytes, std::size_t posicion);
std::optional<std::uint64_t> u64(std::string_view bytes, std::size_t posicion);

/// The value at `posicion`, which moves past it; where there is none the position is left somewhere
/// between. Alignment counts from the start of `bytes`. The stated length of a container decides where it
/// ends, so a hostile one can make bytes be told again and again: a value that tells over a KiB more than
/// there is in `bytes` counts as unreadable. Time and memory are linear in the length of `bytes`.
std::optional<ValorXPC> valor(std::string_view bytes, std::size_t &posicion);

} // namespace ovanta::XPC
