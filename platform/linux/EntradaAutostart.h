#pragma once

#include <optional>
#include <string>
#include <string_view>

/// The desktop entries that a session starts at login.
/// Sources: freedesktop.org, Desktop Application Autostart Specification 0.5 ("Hidden"), Desktop Entry
/// Specification 1.5 ("The Exec key"); "X-GNOME-Autostart-enabled" as gnome-session reads it.
namespace ovanta {

/// Whether a session starts what this entry names: it has a command and neither switch says no. Any
/// bytes may be given.
bool arrancaConLaSesion(std::string_view entrada);

/// The entry that starts `programa`, an absolute path; nothing where no entry can name it: one that
/// is no UTF-8, or that holds a "=" or a control character.
std::optional<std::string> entradaQueArranca(const std::string &programa);

/// The entry that takes back one of the same name for all users.
std::string entradaQueNoArranca();

} // namespace ovanta
