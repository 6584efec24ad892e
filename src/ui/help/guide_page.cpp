#include "ui/help/guide_page.h"

#include <QFileInfo>
#include <QImage>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextDocument>
#include <utility>

#include "kit/qt/ui_text.h"

namespace kirto {

namespace {

constexpr int kPageMargin = 16;    // pixels around the text
constexpr int kPicturesStep = 64;  // pixels of width that pictures are loaded again for
constexpr int kSmallestRoom = 64;  // pixels

}  // namespace

GuidePage::GuidePage(QWidget* parent) : QTextBrowser(parent) {
    setObjectName("GuidePage");
    setAccessibleName(UiText::tr("Guide"));
    setOpenExternalLinks(true);
    // Or the room for pictures would depend on them.
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    document()->setDocumentMargin(kPageMargin);
}

void GuidePage::WhenMissing(std::function<void(const QString& path)> missing) {
    missing_ = std::move(missing);
}

void GuidePage::doSetSource(const QUrl& url, QTextDocument::ResourceType type) {
    QUrl page = source().resolved(url);
    const QString anchor = page.fragment();
    page.setFragment({});
    if (!QFileInfo(page.toLocalFile()).isFile()) {
        if (missing_) missing_(page.toLocalFile());
        return;
    }
    laid_out_for_ = PictureRoom();
    // The page is the place in the history; the heading only scrolls.
    if (page != source() || anchor.isEmpty()) QTextBrowser::doSetSource(page, type);
    if (!anchor.isEmpty()) ScrollToHeading(anchor);
}

QVariant GuidePage::loadResource(int type, const QUrl& name) {
    QVariant loaded = QTextBrowser::loadResource(type, name);
    if (type != QTextDocument::ImageResource) return loaded;
    const QImage image = loaded.typeId() == QMetaType::QByteArray
                             ? QImage::fromData(loaded.toByteArray())
                             : loaded.value<QImage>();
    if (image.width() <= PictureRoom()) return image;
    return image.scaledToWidth(PictureRoom(), Qt::SmoothTransformation);
}

void GuidePage::resizeEvent(QResizeEvent* event) {
    QTextBrowser::resizeEvent(event);
    if (source().isEmpty() || qAbs(PictureRoom() - laid_out_for_) < kPicturesStep) return;
    laid_out_for_ = PictureRoom();
    const int place = verticalScrollBar()->value();
    reload();
    verticalScrollBar()->setValue(place);
}

int GuidePage::PictureRoom() const {
    return qMax(viewport()->width() - 2 * kPageMargin, kSmallestRoom);
}

QString GuidePage::AnchorOf(const QString& heading) {
    QString anchor;
    for (const QChar each : heading.toLower()) {
        if (each.isLetterOrNumber() || each == '-' || each == '_') anchor += each;
        if (each == ' ') anchor += '-';
    }
    return anchor;
}

void GuidePage::ScrollToHeading(const QString& anchor) {
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() == 0 || AnchorOf(block.text()) != anchor) continue;
        QTextCursor cursor(block);
        setTextCursor(cursor);
        verticalScrollBar()->setValue(verticalScrollBar()->value() + cursorRect(cursor).top());
        return;
    }
}

}  // namespace kirto
