#include "kit/qt/safe_drawing.h"

#include <QXmlStreamReader>
#include <QXmlStreamWriter>
#include <zlib.h>

namespace kirto {

namespace {

constexpr qsizetype kMaxBytes = qsizetype{1} << 20;
// Longer than the addresses that drawing programs abbreviate by entities, and too short to make a
// small file a large drawing.
constexpr int kMaxEntity = 256;
// Window bits of zlib: the largest window, with a header of gzip.
constexpr int kGzip = 15 + 16;

// Fails for files that unpack to more than kMaxBytes.
bool Unpack(QByteArray* bytes) {
    z_stream stream = {};
    if (inflateInit2(&stream, kGzip) != Z_OK) return false;
    QByteArray unpacked(kMaxBytes, Qt::Uninitialized);
    stream.next_in = reinterpret_cast<Bytef*>(bytes->data());
    stream.avail_in = static_cast<uInt>(bytes->size());
    stream.next_out = reinterpret_cast<Bytef*>(unpacked.data());
    stream.avail_out = static_cast<uInt>(unpacked.size());
    const int result = inflate(&stream, Z_FINISH);
    unpacked.truncate(static_cast<qsizetype>(stream.total_out));
    inflateEnd(&stream);
    *bytes = std::move(unpacked);
    return result == Z_STREAM_END;
}

// Copies a drawing, element by element, and leaves out what refers to other files.
class DrawingCopy {
  public:
    DrawingCopy(const QByteArray& source, const EmbeddedImageReader& read_embedded,
                QByteArray* target)
        : reader_(source), writer_(target), read_embedded_(read_embedded) {
        reader_.setEntityExpansionLimit(kMaxEntity);
    }

    // False for what is no SVG drawing.
    bool Run() {
        if (!reader_.readNextStartElement() || reader_.name() != u"svg") return false;
        CopyStartElement();
        while (!reader_.atEnd()) {
            // Processing instructions name stylesheets; document types and comments draw nothing.
            switch (reader_.readNext()) {
                case QXmlStreamReader::StartElement:
                    CopyStartElement();
                    break;
                case QXmlStreamReader::EndElement:
                    writer_.writeEndElement();
                    break;
                case QXmlStreamReader::Characters:
                    writer_.writeCharacters(reader_.text().toString());
                    break;
                default:
                    break;
            }
        }
        return !reader_.hasError();
    }

  private:
    void CopyStartElement() {
        const bool is_image = reader_.name() == u"image";
        QXmlStreamAttributes kept;
        bool has_picture = false;
        for (const QXmlStreamAttribute& attribute : reader_.attributes()) {
            const QString name = attribute.qualifiedName().toString();
            if (attribute.name() != u"href") {
                kept.append(name, attribute.value().toString());
                continue;
            }
            const QString reference = SafeReference(attribute.value(), is_image);
            if (reference.isEmpty()) continue;
            has_picture = true;
            kept.append(name, reference);
        }
        if (is_image && !has_picture) {
            reader_.skipCurrentElement();
            return;
        }
        writer_.writeStartElement(reader_.qualifiedName().toString());
        for (const QXmlStreamNamespaceDeclaration& space : reader_.namespaceDeclarations()) {
            const QString prefix = space.prefix().toString();
            writer_.writeAttribute(prefix.isEmpty() ? "xmlns" : "xmlns:" + prefix,
                                   space.namespaceUri().toString());
        }
        writer_.writeAttributes(kept);
    }

    // Empty for references that lead out of the drawing.
    QString SafeReference(QStringView reference, bool is_image) const {
        reference = reference.trimmed();
        if (!is_image) return reference.startsWith(u'#') ? reference.toString() : QString();
        const QStringView marker = u"base64,";
        const qsizetype found = reference.startsWith(u"data:") ? reference.indexOf(marker) : -1;
        if (found < 0) return {};
        const QByteArray file =
            QByteArray::fromBase64(reference.mid(found + marker.size()).toLatin1());
        // Qt takes what it can't decode for a file's name, so it gets nothing but what we encoded.
        const QByteArray png = read_embedded_(file);
        return png.isEmpty() ? QString()
                             : QString::fromLatin1("data:image/png;base64," + png.toBase64());
    }

    QXmlStreamReader reader_;
    QXmlStreamWriter writer_;
    const EmbeddedImageReader& read_embedded_;
};

}  // namespace

status_t ReadSafeDrawing(BFile& source, const EmbeddedImageReader& read_embedded,
                         QByteArray* drawing) {
    if (source.Size() > kMaxBytes) return B_NO_TRANSLATOR;
    QByteArray bytes(static_cast<qsizetype>(source.Size()), '\0');
    source.Seek(0, SEEK_FROM_START);
    if (!source.ReadExactly(bytes.data(), static_cast<size_t>(bytes.size()))) return B_IO_ERROR;
    if (bytes.startsWith("\x1f\x8b") && !Unpack(&bytes)) return B_NO_TRANSLATOR;
    drawing->clear();
    return DrawingCopy(bytes, read_embedded, drawing).Run() ? B_OK : B_BAD_DATA;
}

}  // namespace kirto
