// The user's standard folders.
#pragma once

#include <string>

namespace kirto {

// Where programs keep their settings: $XDG_CONFIG_HOME where it is set to an absolute path, else
// ".config" in the home folder. No slash at the end ("/" itself excepted).
std::string SettingsDirectory();

// $HOME where it is set and not empty, else the account's home folder, else "/". No slash at the
// end ("/" itself excepted).
std::string HomeDirectory();

}  // namespace kirto
