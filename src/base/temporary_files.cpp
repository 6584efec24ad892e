#include "base/temporary_files.h"

#include <cctype>
#include <cerrno>
#include <cstring>
#include <ctime>
#include <dirent.h>
#include <fcntl.h>
#include <sys/random.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>
#include <vector>

#include "base/text.h"

namespace kirto {

namespace {

constexpr size_t kDigits = 16;
constexpr int kMaxNameAttempts = 100;
constexpr time_t kStaleSeconds = 3600;

// Calls action with free-looking names until it does not fail for a taken one; its last result.
template <typename Action>
int WithUniqueName(std::string* name, Action action) {
    for (int attempt = 0; attempt < kMaxNameAttempts; ++attempt) {
        unsigned long long number = 0;
        if (getrandom(&number, sizeof(number), 0) != sizeof(number)) return -1;
        *name = Format("%s%016llx", kTemporaryPrefix.data(), number);
        const int result = action(name->c_str());
        if (result >= 0 || errno != EEXIST) return result;
    }
    return -1;
}

std::string DescriptorPath(int descriptor) {
    return Format("/proc/self/fd/%d", descriptor);
}

bool IsTemporaryName(std::string_view name) {
    if (!name.starts_with(kTemporaryPrefix) || name.size() != kTemporaryPrefix.size() + kDigits)
        return false;
    for (const char digit : name.substr(kTemporaryPrefix.size())) {
        if (!std::isxdigit(static_cast<unsigned char>(digit))) return false;
    }
    return true;
}

bool IsStale(int directory, const char* name) {
    struct stat info {};
    return fstatat(directory, name, &info, AT_SYMLINK_NOFOLLOW) == 0 && S_ISREG(info.st_mode) &&
           info.st_uid == geteuid() && info.st_mtime < time(nullptr) - kStaleSeconds;
}

bool IsCopied(std::string_view attribute) {
    if (attribute == "system.posix_acl_access") return true;
    return attribute.starts_with("user.") && attribute != "user.mime_type";
}

void CopyAttribute(const std::string& source, const char* attribute, int descriptor) {
    const ssize_t size = lgetxattr(source.c_str(), attribute, nullptr, 0);
    if (size < 0) return;
    std::vector<char> value(static_cast<size_t>(size));
    const ssize_t read = lgetxattr(source.c_str(), attribute, value.data(), value.size());
    if (read < 0) return;
    fsetxattr(descriptor, attribute, value.data(), static_cast<size_t>(read), 0);
}

}  // namespace

int CreateTemporary(int directory, mode_t mode, std::string* name) {
    const int unnamed = openat(directory, ".", O_TMPFILE | O_RDWR | O_CLOEXEC, mode);
    if (unnamed >= 0 && access(DescriptorPath(unnamed).c_str(), F_OK) == 0) return unnamed;
    if (unnamed >= 0) close(unnamed);
    return WithUniqueName(name, [&](const char* free_name) {
        return openat(directory, free_name, O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, mode);
    });
}

bool LinkTemporary(int descriptor, int directory, const std::string& name) {
    const std::string source = DescriptorPath(descriptor);
    return linkat(AT_FDCWD, source.c_str(), directory, name.c_str(), AT_SYMLINK_FOLLOW) == 0;
}

bool NameTemporary(int descriptor, int directory, std::string* name) {
    const int linked = WithUniqueName(name, [&](const char* free_name) {
        return LinkTemporary(descriptor, directory, free_name) ? 0 : -1;
    });
    if (linked != 0) name->clear();
    return linked == 0;
}

void RemoveStaleTemporaries(int directory) {
    const int descriptor = openat(directory, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    DIR* entries = descriptor >= 0 ? fdopendir(descriptor) : nullptr;
    if (!entries) {
        if (descriptor >= 0) close(descriptor);
        return;
    }
    while (const dirent* entry = readdir(entries)) {
        if (!IsTemporaryName(entry->d_name) || !IsStale(directory, entry->d_name)) continue;
        unlinkat(directory, entry->d_name, 0);
    }
    closedir(entries);
}

void CopyAttributes(int directory, const std::string& name, int descriptor) {
    const std::string source = DescriptorPath(directory) + "/" + name;
    const ssize_t size = llistxattr(source.c_str(), nullptr, 0);
    if (size <= 0) return;
    // A list of names, each ended by a zero.
    std::string names(static_cast<size_t>(size), '\0');
    const ssize_t read = llistxattr(source.c_str(), names.data(), names.size());
    if (read < 0) return;
    names.resize(static_cast<size_t>(read));
    for (const char* attribute = names.c_str(); *attribute != '\0';
         attribute += std::strlen(attribute) + 1) {
        if (IsCopied(attribute)) CopyAttribute(source, attribute, descriptor);
    }
}

}  // namespace kirto
