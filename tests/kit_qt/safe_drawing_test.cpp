#include "kit/qt/safe_drawing.h"

#include <filesystem>
#include <sys/inotify.h>
#include <unistd.h>
#include <zlib.h>

#include "kit_qt/roster_fixture.h"

namespace kirto::test {

namespace {

// Notices when a file of a folder is opened.
class OpenWatch {
  public:
    explicit OpenWatch(const std::string& folder) : descriptor_(inotify_init1(IN_NONBLOCK)) {
        EXPECT_GE(inotify_add_watch(descriptor_, folder.c_str(), IN_OPEN), 0);
    }
    ~OpenWatch() { close(descriptor_); }
    OpenWatch(const OpenWatch&) = delete;
    OpenWatch& operator=(const OpenWatch&) = delete;

    bool SawAny() {
        char events[4096];
        return read(descriptor_, events, sizeof(events)) > 0;
    }

  private:
    const int descriptor_;
};

std::string Drawing(const std::string& content, const std::string& before = {}) {
    return before +
           "<svg xmlns='http://www.w3.org/2000/svg' "
           "xmlns:xlink='http://www.w3.org/1999/xlink' width='4' height='4'>" +
           content + "</svg>";
}

std::string Image(const std::string& reference) {
    return "<image width='4' height='4' xlink:href='" + reference + "'/>";
}

std::string Embedded(const Bytes& file, const std::string& mime) {
    const QByteArray bytes(reinterpret_cast<const char*>(file.data()),
                           static_cast<qsizetype>(file.size()));
    return "data:" + mime + ";base64," + bytes.toBase64().toStdString();
}

Bytes RedPicture() {
    QImage image(4, 4, QImage::Format_RGB32);
    image.fill(Qt::red);
    return FileOf(image, "png");
}

Bytes Packed(const std::string& text) {
    Bytes bytes(text.size() + 1000);
    z_stream stream = {};
    deflateInit2(&stream, 9, Z_DEFLATED, 15 + 16, 9, Z_DEFAULT_STRATEGY);
    std::string source = text;
    stream.next_in = reinterpret_cast<Bytef*>(source.data());
    stream.avail_in = static_cast<uInt>(source.size());
    stream.next_out = bytes.data();
    stream.avail_out = static_cast<uInt>(bytes.size());
    EXPECT_EQ(deflate(&stream, Z_FINISH), Z_STREAM_END);
    bytes.resize(stream.total_out);
    deflateEnd(&stream);
    return bytes;
}

status_t Sanitize(const Bytes& bytes, QByteArray* drawing) {
    const auto file = BFile::OnMemory(bytes);
    return ReadSafeDrawing(
        *file, [](const QByteArray&) { return QByteArray(); }, drawing);
}

}  // namespace

class DrawingTest : public QtTranslatorRosterTest {
  protected:
    void SetUp() override {
        if (!Reads("svg")) GTEST_SKIP() << "no SVG plugin";
    }
};

TEST_F(DrawingTest, OpensNoOtherFileWhateverItNames) {
    const TemporaryFolder folder;
    const std::string path = folder.File("red.png");
    const std::string sheet = folder.File("sheet.css");
    const std::string relative = std::filesystem::relative(path).string();
    WriteBytes(path, RedPicture());
    WriteBytes(sheet, BytesOf("rect { fill: #ff0000; }"));
    const std::string rect = "<rect width='4' height='4' fill='none'/>";
    const std::vector<std::string> drawings = {
        Drawing(Image(path)),
        Drawing(Image(relative)),
        Drawing(Image(" " + path + " ")),
        Drawing(Image("file://" + path)),
        Drawing(Image("data:image/png;base64,AAAA/../" + relative)),
        Drawing("<image width='4' height='4' href='" + path + "'/>"),
        Drawing("<g xmlns:x='http://www.w3.org/2000/svg'><x:image width='4' height='4' "
                "xlink:href='" +
                path + "'/></g>"),
        Drawing(Image("&file;"), "<!DOCTYPE svg [<!ENTITY file '" + path + "'>]>"),
        Drawing("&file;", "<!DOCTYPE svg [<!ENTITY file SYSTEM '" + path + "'>]>"),
        Drawing(rect, "<!DOCTYPE svg SYSTEM '" + sheet + "'>"),
        Drawing(rect, "<?xml-stylesheet type='text/css' href='" + sheet + "'?>"),
        Drawing("<style>@import url(" + sheet + ");</style>" + rect),
        Drawing("<rect width='4' height='4' fill='url(" + path + ")'/>"),
        Drawing("<rect width='4' height='4' style='fill: url(" + path + "#a)'/>"),
        Drawing("<use xlink:href='" + path + "#a'/>"),
        Drawing("<font><font-face font-family='f'><font-face-src><font-face-uri xlink:href='" +
                path + "'/></font-face-src></font-face></font><text font-family='f'>a</text>"),
    };
    for (const std::string& drawing : drawings) {
        OpenWatch watch(folder.Path());

        const Reading reading = Read(BytesOf(drawing));

        EXPECT_FALSE(watch.SawAny()) << drawing;
        if (reading.status == B_OK) {
            EXPECT_NE(reading.Argb().front(), 0xFFFF0000) << drawing;
        }
    }
}

TEST_F(DrawingTest, ShowsPicturesThatAreEmbedded) {
    QImage image(4, 4, QImage::Format_RGB32);
    image.fill(Qt::red);
    for (const char* format : {"png", "jpeg", "bmp"}) {
        const Reading reading = Read(BytesOf(
            Drawing(Image(Embedded(FileOf(image, format, 100), "image/" + std::string(format))))));

        ASSERT_EQ(reading.status, B_OK) << format;
        EXPECT_GT(reading.Argb().front() >> 16 & 255, 250U) << format;
    }
}

TEST_F(DrawingTest, ShowsNoDrawingsThatAreEmbedded) {
    const std::string inner = Drawing("<rect width='4' height='4' fill='#ff0000'/>");
    for (const Bytes& file : {BytesOf(inner), Packed(inner)}) {
        const Reading reading = Read(BytesOf(Drawing(Image(Embedded(file, "image/svg+xml")))));

        ASSERT_EQ(reading.status, B_OK);
        EXPECT_EQ(reading.Argb().front(), 0U);
    }
}

TEST_F(DrawingTest, ShowsNoEmbeddedPicturesPastTheCeiling) {
    const auto budget = std::make_shared<PixelBudget>(uint64{1} << 20);

    const Reading reading =
        Read(BytesOf(Drawing(Image(Embedded(PngHeader(1000, 1000), "image/png")))), budget);

    ASSERT_EQ(reading.status, B_OK);
    EXPECT_EQ(reading.Argb().front(), 0U);
}

TEST_F(DrawingTest, KeepsItsOwnStylesReferencesAndEntities) {
    const std::string drawing = Drawing(
        "<style><![CDATA[.a { fill: &red; }]]></style><defs><rect id='r' width='4' "
        "height='4' fill='&red;'/></defs><use xlink:href='#r'/>",
        "<?xml version='1.0'?><!DOCTYPE svg [<!ENTITY red '#ff0000'>]>");

    const Reading reading = Read(BytesOf(drawing));

    ASSERT_EQ(reading.status, B_OK);
    EXPECT_EQ(reading.Argb().front(), 0xFFFF0000);
}

TEST_F(DrawingTest, IsReadWhenItIsPacked) {
    const Reading reading = Read(Packed(Drawing("<rect width='4' height='4' fill='#ff0000'/>")));

    ASSERT_EQ(reading.status, B_OK);
    EXPECT_EQ(reading.Argb().front(), 0xFFFF0000);
}

TEST(ReadSafeDrawing, RefusesWhatUnpacksToMoreThanAMegabyte) {
    QByteArray drawing;
    const std::string text = Drawing(std::string(1 << 20, ' '));
    const Bytes packed = Packed(text);
    ASSERT_LT(packed.size(), 10000U);

    EXPECT_EQ(Sanitize(packed, &drawing), B_NO_TRANSLATOR);
    EXPECT_EQ(Sanitize(Packed(Drawing(std::string(1000, ' '))), &drawing), B_OK);
}

TEST(ReadSafeDrawing, RefusesEntitiesThatGrow) {
    QByteArray drawing;
    const std::string laughs =
        "<!DOCTYPE svg [<!ENTITY a '" + std::string(200, 'a') + "'><!ENTITY b '&a;&a;&a;&a;'>]>";

    EXPECT_EQ(Sanitize(BytesOf(Drawing("<g id='&a;'/>", laughs)), &drawing), B_OK);
    EXPECT_EQ(Sanitize(BytesOf(Drawing("<g id='&b;'/>", laughs)), &drawing), B_BAD_DATA);
}

TEST(ReadSafeDrawing, RefusesWhatIsNoDrawing) {
    QByteArray drawing;
    for (const char* text :
         {"", "<", "<html/>", "<svg>", "<svg></g></svg>", "<?xml version='1.0'?>"})
        EXPECT_EQ(Sanitize(BytesOf(text), &drawing), B_BAD_DATA) << text;
}

}  // namespace kirto::test
