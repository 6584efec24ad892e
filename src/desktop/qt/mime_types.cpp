#include "desktop/qt/mime_types.h"

#include <QMimeDatabase>
#include <algorithm>
#include <array>
#include <sys/stat.h>
#include <sys/xattr.h>

#include "kit/entry_ref.h"
#include "kit/file.h"

namespace kirto {

namespace {

constexpr const char* kAttribute = "user.mime_type";
// As much of a file as the database's rules look at.
constexpr size_t kContentBytes = 16384;

// What the attribute says; empty when there is none, or none that could be a MIME type.
std::string AttributeType(const std::string& path) {
    std::array<char, 255> buffer;
    const ssize_t size = getxattr(path.c_str(), kAttribute, buffer.data(), buffer.size());
    if (size <= 0) return {};
    std::string type(buffer.data(), static_cast<size_t>(size));
    // Some write the text with its closing zero.
    if (type.back() == '\0') type.pop_back();
    const bool printable =
        std::all_of(type.begin(), type.end(), [](char c) { return c > ' ' && c < '\x7f'; });
    return printable ? type : std::string();
}

QByteArray FirstBytes(const std::string& path) {
    BFile file(path, B_READ_ONLY);
    QByteArray bytes(static_cast<qsizetype>(kContentBytes), '\0');
    const int64 read = file.InitCheck() == B_OK ? file.Read(bytes.data(), kContentBytes) : 0;
    bytes.truncate(static_cast<qsizetype>(std::max<int64>(read, 0)));
    return bytes;
}

// Most names tell, and then the file isn't opened.
std::string DatabaseType(const std::string& path) {
    const QMimeDatabase database;
    const QString name = QString::fromStdString(entry_ref(path).Leaf());
    const QList<QMimeType> candidates = database.mimeTypesForFileName(name);
    const QMimeType type = candidates.size() == 1
                               ? candidates.front()
                               : database.mimeTypeForFileNameAndData(name, FirstBytes(path));
    return type.isDefault() ? std::string() : type.name().toStdString();
}

// The system has one name for a family of which the desktop's database knows several.
std::string WithFliName(const std::string& type) {
    return type == "video/x-flic" || type == "video/fli" ? "video/x-fli" : type;
}

}  // namespace

std::string MimeTypeOf(const std::string& path) {
    struct stat status;
    if (stat(path.c_str(), &status) != 0) return {};
    const bool folder = S_ISDIR(status.st_mode);
    if (!folder && !S_ISREG(status.st_mode)) return {};
    const std::string attribute = AttributeType(path);
    if (!attribute.empty()) return WithFliName(attribute);
    return folder ? "inode/directory" : WithFliName(DatabaseType(path));
}

}  // namespace kirto
