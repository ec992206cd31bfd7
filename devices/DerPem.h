#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace ovanta {

/// What lies between the "-----" lines of a PEM. Nothing where it is no UTF-8 or no plain Base64 once the
/// line feeds are gone; a carriage return is one stray character too many.
std::optional<std::string> derDesdePem(std::string_view pem);

/// The contents of the inner OCTET STRING of a PKCS#8 PrivateKeyInfo (RFC 5208, section 5): version,
/// algorithm, key. Nothing where any other byte stands in their place, or the bytes end early. The outer
/// length is not looked at.
std::optional<std::string> pkcs1DesdePkcs8(std::string_view der);

} // namespace ovanta
