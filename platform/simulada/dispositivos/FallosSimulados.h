#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>

namespace ovanta {

/// What goes wrong in one conversation with a simulated service; as it stands, nothing. The answers of a
/// conversation are counted from 0.
struct FallosSimulados
{
    std::optional<int> cerrarEnElPaso; ///< closes instead of giving that answer
    std::optional<int> callarEnElPaso; ///< never gives that answer and keeps the socket open
    std::optional<int> basuraEnElPaso; ///< sends bytes that mean nothing, in a frame of their length
    std::optional<int> mentirEnElPaso; ///< tells `longitudMentida` as the length of that answer
    std::uint32_t longitudMentida = 0; ///< of the property list alone
    /// Closes after that many bytes have left, those of a TLS handshake included.
    std::optional<std::size_t> cortarEnElByte;
    std::size_t trozo = 0;              ///< bytes that leave at once; 0 for all
    std::chrono::milliseconds pausa{0}; ///< between two pieces; with a `trozo` of 1 the bytes drip
    /// Request (for a battery query "GetValue com.apple.mobile.battery") to the `Error` in its answer.
    std::map<std::string, std::string> errores;
};

} // namespace ovanta
