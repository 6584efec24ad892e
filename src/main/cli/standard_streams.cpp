#include "main/cli/standard_streams.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <unistd.h>
#include <vector>

#include "base/types.h"
#include "kit/file.h"

namespace kirto {

namespace {

constexpr size_t kChunk = size_t{1} << 16;

// $TMPDIR where it is a folder's absolute path.
std::string TemporaryFolder() {
    const char* named = std::getenv("TMPDIR");
    return named && named[0] == '/' ? named : "/tmp";
}

// A file without a name, or one that has lost it at once.
int OpenNameless() {
    const std::string folder = TemporaryFolder();
    const int descriptor = open(folder.c_str(), O_TMPFILE | O_RDWR | O_CLOEXEC, 0600);
    if (descriptor >= 0) return descriptor;
    std::string name = folder + "/kirto-XXXXXX";
    const int named = mkostemp(name.data(), O_CLOEXEC);
    if (named >= 0) unlink(name.c_str());
    return named;
}

bool WriteAll(int descriptor, const char* bytes, size_t size) {
    while (size > 0) {
        const ssize_t written = write(descriptor, bytes, size);
        if (written < 0) return false;
        bytes += written;
        size -= static_cast<size_t>(written);
    }
    return true;
}

}  // namespace

bool IsStandardStream(const std::string& value) {
    return value == "-" || value.starts_with("-@");
}

StandardInput::~StandardInput() {
    if (descriptor_ >= 0) close(descriptor_);
}

std::optional<std::string> StandardInput::Path() {
    if (descriptor_ < 0 && !Read()) return std::nullopt;
    return std::string(kStandardInputFolder) + "/" + std::to_string(descriptor_);
}

bool StandardInput::Read() {
    const int descriptor = OpenNameless();
    if (descriptor < 0) return false;
    std::vector<char> chunk(kChunk);
    for (;;) {
        const ssize_t count = read(STDIN_FILENO, chunk.data(), chunk.size());
        if (count == 0) break;
        if (count < 0 || !WriteAll(descriptor, chunk.data(), static_cast<size_t>(count))) {
            const int reason = errno;
            close(descriptor);
            errno = reason;
            return false;
        }
    }
    descriptor_ = descriptor;
    return true;
}

StandardOutput::StandardOutput() {
    std::string folder = TemporaryFolder() + "/kirto-XXXXXX";
    if (!mkdtemp(folder.data())) return;
    folder_ = folder;
    path_ = folder + "/-";
}

StandardOutput::~StandardOutput() {
    std::error_code error;
    if (!folder_.empty()) std::filesystem::remove_all(folder_, error);
}

bool StandardOutput::Send() const {
    BFile file(path_, B_READ_ONLY);
    if (file.InitCheck() != B_OK) return false;
    std::vector<char> chunk(kChunk);
    int64 count = 0;
    while ((count = file.Read(chunk.data(), chunk.size())) > 0)
        std::fwrite(chunk.data(), 1, static_cast<size_t>(count), stdout);
    return count == 0;
}

}  // namespace kirto
