// The user's standard folders.
#pragma once

#include <string>

namespace kirto {

// Where programs keep their settings: $XDG_CONFIG_HOME where it is set to an absolute path, else
// ".config" in the home folder. No slash at the end ("/" itself excepted).
std::string SettingsDirectory();

// Where programs keep what should outlive them, but is worth less than settings and documents:
// $XDG_STATE_HOME where it is set to an absolute path, else ".local/state" in the home folder. No
// slash at the end ("/" itself excepted).
std::string StateDirectory();

// $HOME where it is set and not empty, else the account's home folder, else "/". No slash at the
// end ("/" itself excepted).
std::string HomeDirectory();

// Makes the folder and those above it that are missing, for the user only. Where that fails, making
// a file in it fails too and tells why.
void MakeFolders(const std::string& folder);

}  // namespace kirto
