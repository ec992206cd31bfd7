#pragma once

#include <string>
#include <string_view>

namespace ovanta {

/// A new random UUID (RFC 4122, version 4) in capitals, for example
/// "6F9619FF-8B86-4D01-B42D-00CF4FC964FF". Any thread.
std::string uuidNuevo();

/// Whether a text has the form of a UUID, of any version and in either case of letters.
bool esUuid(std::string_view texto);

} // namespace ovanta
