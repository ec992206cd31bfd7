#pragma once

#include "core/plist/ErrorPlist.h"
#include "core/plist/ValorPlist.h"

#include <expected>
#include <string>

namespace ovanta {

/// Writes an XML property list, version 1.0, in UTF-8. The same value gives the same bytes: keys in
/// ascending byte order, tabs for indentation, the shortest real that reads back the same, dates in whole
/// seconds (a fraction is cut off). A UID is written as a dictionary with the one key "CF$UID".
///
/// Refused are: text that is no UTF-8 or holds a character that XML 1.0 has no place for, a date outside the
/// years 0 to 9999, and containers that nest deeper than 64.
std::expected<std::string, ErrorPlist> escribirPlistXml(const ValorPlist &valor);

} // namespace ovanta
