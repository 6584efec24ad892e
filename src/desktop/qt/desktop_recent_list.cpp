#include "desktop/qt/desktop_recent_list.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>
#include <QUrl>
#include <QXmlStreamReader>

namespace kirto {

namespace {

constexpr qint64 kMostBytes = qint64{16} << 20;

constexpr const char* kEmptyList =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<xbel version=\"1.0\"\n"
    "      xmlns:bookmark=\"http://www.freedesktop.org/standards/desktop-bookmarks\"\n"
    "      xmlns:mime=\"http://www.freedesktop.org/standards/shared-mime-info\"\n>\n"
    "</xbel>\n";

// Where things are in the text of a list; below 0: not there.
struct Places {
    qsizetype end = -1;               // of the list: in front of its end tag
    qsizetype bookmark = -1;          // the file's start tag
    qsizetype bookmark_end = -1;      // behind its end tag
    qsizetype application = -1;       // this program's tag in that
    qsizetype application_end = -1;   // behind its end
    qsizetype applications_end = -1;  // in front of the end tag of the programs
    int count = 0;                    // how often this program has used it
};

bool IsTag(const QXmlStreamReader& reader, const char* name) {
    return reader.qualifiedName() == QLatin1String(name);
}

// Where the tag begins that the reader has just read.
qsizetype TagStart(const QString& list, const QXmlStreamReader& reader) {
    return list.lastIndexOf('<', reader.characterOffset() - 1);
}

class PlaceFinder {
  public:
    PlaceFinder(const QString& list, const QString& uri) : list_(list), uri_(uri), reader_(list) {}

    // Nothing when the text is no list.
    std::optional<Places> Find() {
        while (!reader_.atEnd()) {
            reader_.readNext();
            if (reader_.isStartElement()) Start();
            if (reader_.isEndElement()) End();
        }
        const bool whole = !reader_.hasError() && places_.end >= 0;
        return whole ? std::optional(places_) : std::nullopt;
    }

  private:
    void Start() {
        if (IsTag(reader_, "bookmark") && reader_.attributes().value("href") == uri_) {
            inside_ = true;
            places_.bookmark = TagStart(list_, reader_);
        } else if (inside_ && IsTag(reader_, "bookmark:application") &&
                   reader_.attributes().value("name") == QLatin1String("Kirto")) {
            ours_ = true;
            places_.application = TagStart(list_, reader_);
            places_.count = reader_.attributes().value("count").toInt();
        }
    }
    void End() {
        if (IsTag(reader_, "xbel")) places_.end = TagStart(list_, reader_);
        if (!inside_) return;
        if (ours_ && IsTag(reader_, "bookmark:application")) {
            ours_ = false;
            places_.application_end = reader_.characterOffset();
        } else if (IsTag(reader_, "bookmark:applications")) {
            places_.applications_end = TagStart(list_, reader_);
        } else if (IsTag(reader_, "bookmark")) {
            inside_ = false;
            places_.bookmark_end = reader_.characterOffset();
        }
    }

    const QString& list_;
    const QString& uri_;
    QXmlStreamReader reader_;
    Places places_;
    bool inside_ = false;  // the file's bookmark
    bool ours_ = false;    // this program's element of it
};

QString TimeText(const QDateTime& time) {
    return time.toUTC().toString("yyyy-MM-ddTHH:mm:ss.zzz000Z");
}

QString ApplicationTag(const DesktopRecentFile& file, int count) {
    return QString(
               "<bookmark:application name=\"Kirto\" exec=\"&apos;kirto %u&apos;\" "
               "modified=\"%1\" count=\"%2\"/>")
        .arg(TimeText(file.time))
        .arg(count);
}

QString BookmarkTag(const DesktopRecentFile& file) {
    return QString(
               "  <bookmark href=\"%1\" added=\"%2\" modified=\"%2\" visited=\"%2\">\n"
               "    <info>\n"
               "      <metadata owner=\"http://freedesktop.org\">\n"
               "        <mime:mime-type type=\"%3\"/>\n"
               "        <bookmark:applications>\n"
               "          %4\n"
               "        </bookmark:applications>\n"
               "      </metadata>\n"
               "    </info>\n"
               "  </bookmark>\n")
        .arg(file.uri.toHtmlEscaped(), TimeText(file.time), file.type.toHtmlEscaped(),
             ApplicationTag(file, 1));
}

}  // namespace

std::string DesktopRecentListPath() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return (folder + "/recently-used.xbel").toStdString();
}

std::optional<QString> WithRecentFile(const QString& list, const DesktopRecentFile& file) {
    QString text = list.isEmpty() ? QString(kEmptyList) : list;
    const std::optional<Places> places = PlaceFinder(text, file.uri).Find();
    if (!places) return std::nullopt;
    if (places->bookmark < 0) return text.insert(places->end, BookmarkTag(file));
    const QString application = ApplicationTag(file, places->count + 1);
    if (places->application >= 0) {
        return text.replace(places->application, places->application_end - places->application,
                            application);
    }
    if (places->applications_end >= 0) {
        return text.insert(places->applications_end, application + '\n');
    }
    return text.replace(places->bookmark, places->bookmark_end - places->bookmark,
                        BookmarkTag(file).trimmed());
}

void TellDesktopOfRecentFile(const std::string& path, const std::string& type) {
    const QString list_path = QString::fromStdString(DesktopRecentListPath());
    QFile old(list_path);
    QString list;
    if (old.exists()) {
        if (!old.open(QIODevice::ReadOnly) || old.size() > kMostBytes) return;
        list = QString::fromUtf8(old.readAll());
        // One that is empty was never whole.
        if (list.isEmpty()) return;
    }
    const QUrl url = QUrl::fromLocalFile(QString::fromLocal8Bit(path.c_str()));
    const auto next =
        WithRecentFile(list, {QString::fromLatin1(url.toEncoded()), QString::fromStdString(type),
                              QDateTime::currentDateTimeUtc()});
    if (!next) return;
    QDir().mkpath(QFileInfo(list_path).path());
    QSaveFile file(list_path);
    if (!file.open(QIODevice::WriteOnly)) return;
    file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    file.write(next->toUtf8());
    file.commit();
}

}  // namespace kirto
