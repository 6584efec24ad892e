// The hidden file that is written beside a target until it takes the target's place.
#pragma once

#include <string>
#include <string_view>
#include <sys/types.h>

namespace kirto {

// What the names of such files start with, where they have one.
inline constexpr std::string_view kTemporaryPrefix = ".kirto-";

// Creates a file in the directory, without a name where the file system and the machine can do
// that, so that nothing is left of it if the program is killed; else under a free name. Returns its
// descriptor, or -1 with errno set.
int CreateTemporary(int directory, mode_t mode, std::string* name);

// Gives a file without a name that one, which must be free. False with errno set.
bool LinkTemporary(int descriptor, int directory, const std::string& name);

// Gives a file without a name a free one. False with errno set.
bool NameTemporary(int descriptor, int directory, std::string* name);

// Removes the named temporary files that killed programs of this user have left in the directory.
// Those that changed within the last hour may still be in use and stay.
void RemoveStaleTemporaries(int directory);

// Gives the file the extended attributes and the access list of the file of that name, as far as
// both file systems allow it. The MIME type stays behind: it belongs to the old content.
void CopyAttributes(int directory, const std::string& name, int descriptor);

}  // namespace kirto
