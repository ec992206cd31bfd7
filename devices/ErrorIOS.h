#pragma once

#include <cstdint>
#include <string>
#include <utility>

namespace ovanta {

/// Why a conversation with a device ended. `errorDescription` is the text for the user.
struct ErrorIOS
{
    enum class Caso {
        socket,
        protocolo,
        tls, ///< carries `estado`
        otro ///< an error of somebody else, whose text is passed on as it came
    };

    Caso caso = Caso::otro;
    std::string texto;
    /// Where the handshake or the cipher stopped. -9803 (nothing came in time), -9805 (closed in order) and
    /// -9806 (closed in disorder) are those of the Mac's own cipher library; -1 stands for a refusal of ours;
    /// anything else is the reason number of OpenSSL (`openssl/sslerr.h`; an alert is 1000 and its number).
    std::int32_t estado = 0;

    static ErrorIOS socket(std::string texto) { return {Caso::socket, std::move(texto)}; }
    static ErrorIOS protocolo(std::string texto) { return {Caso::protocolo, std::move(texto)}; }
    static ErrorIOS tls(std::string texto, std::int32_t estado)
    {
        return {Caso::tls, std::move(texto), estado};
    }
    static ErrorIOS otro(std::string texto) { return {Caso::otro, std::move(texto)}; }

    std::string errorDescription() const;

    bool operator==(const ErrorIOS &) const = default;
};

} // namespace ovanta
