#include "ui/thumbnails/recent_view.h"

#include <QDateTime>
#include <QFileInfo>
#include <QLocale>
#include <QPainter>
#include <algorithm>
#include <utility>

#include "base/pixel_budget.h"
#include "kit/picture_files.h"
#include "kit/qt/picture_image.h"
#include "kit/qt/ui_text.h"

namespace kirto {

namespace {

constexpr QSize kPictureSize(96, 72);
constexpr int kMargin = 8;
constexpr int kMostRows = 2;
constexpr uint64 kMostPictureBytes = uint64{256} << 20;

QString PathText(const std::string& path) {
    return QString::fromLocal8Bit(path.c_str());
}

QString DateText(int64 seconds) {
    const QDate date = QDateTime::fromSecsSinceEpoch(seconds).date();
    return QLocale().toString(date, QLocale::ShortFormat);
}

// A picture in the middle of what is transparent, so that all take the same place.
QPixmap Framed(const QImage& picture, double scale) {
    QPixmap pixmap(kPictureSize * scale);
    pixmap.setDevicePixelRatio(scale);
    pixmap.fill(Qt::transparent);
    if (picture.isNull()) return pixmap;
    const QSizeF size = QSizeF(picture.size()) / scale;
    QPainter painter(&pixmap);
    painter.drawImage(QRectF(QPointF((kPictureSize.width() - size.width()) / 2,
                                     (kPictureSize.height() - size.height()) / 2),
                             size),
                      picture);
    return pixmap;
}

// The file's first picture, as large as there is room; null where nothing reads it.
QImage ReadSmallPicture(const std::string& path, BTranslatorRoster& roster, QSize room,
                        const std::atomic<bool>& stop) {
    std::shared_ptr<BBitmap> bitmap;
    const auto budget = std::make_shared<PixelBudget>(kMostPictureBytes);
    const auto given_up = [&stop] { return stop.load(); };
    if (ReadPictureQuietly(path, roster, budget, given_up, &bitmap) != B_OK) return {};
    const QImage image = ImageOfPicture(*bitmap);
    const bool larger = image.width() > room.width() || image.height() > room.height();
    return larger ? image.scaled(room, Qt::KeepAspectRatio, Qt::SmoothTransformation)
                  : image.copy();
}

}  // namespace

RecentView::RecentView(RecentList& list, BTranslatorRoster& roster, const BMessenger& application,
                       QWidget* parent)
    : QListWidget(parent), list_(list), roster_(roster) {
    setObjectName("RecentAnimations");
    setAccessibleName(UiText::tr("Recent animations"));
    setViewMode(QListView::IconMode);
    setMovement(QListView::Static);
    setResizeMode(QListView::Adjust);
    setIconSize(kPictureSize);
    setTextElideMode(Qt::ElideMiddle);
    setUniformItemSizes(true);
    setFrameShape(QFrame::NoFrame);
    viewport()->setAutoFillBackground(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    const int lines = 2 * fontMetrics().lineSpacing();
    setGridSize({kPictureSize.width() + 4 * kMargin, kPictureSize.height() + lines + 2 * kMargin});
    connect(this, &QListWidget::itemActivated, this, [application](const QListWidgetItem* item) {
        application.SendMessage(OpeningOf(item->data(Qt::UserRole).toByteArray().toStdString()));
    });
    list.Watch(this, [this] { Fill(); });
    Fill();
}

void RecentView::Fill() {
    clear();
    for (const RecentFile& file : list_.Files()) {
        const QFileInfo info(PathText(file.path));
        const QString date = DateText(file.seconds);
        auto* item = new QListWidgetItem(QIcon(Framed({}, devicePixelRatioF())),
                                         info.fileName() + '\n' + date, this);
        item->setData(Qt::UserRole, QByteArray::fromStdString(file.path));
        item->setData(Qt::AccessibleTextRole,
                      UiText::tr("%1 in %2, %3").arg(info.fileName(), info.path(), date));
        item->setToolTip(info.filePath());
        item->setTextAlignment(Qt::AlignHCenter);
    }
    updateGeometry();
    if (isVisible()) ReadPictures();
}

void RecentView::ReadPictures() {
    std::vector<std::string> paths;
    for (const RecentFile& file : list_.Files())
        paths.push_back(file.path);
    const QSize room = kPictureSize * devicePixelRatioF();
    pictures_.Do([this, paths = std::move(paths), room](const std::atomic<bool>& stop) {
        for (const std::string& path : paths) {
            if (stop) break;
            const bool exists = QFileInfo(PathText(path)).isFile();
            const QImage picture = exists ? ReadSmallPicture(path, roster_, room, stop) : QImage();
            QMetaObject::invokeMethod(
                this, [=, this] { ShowPicture(path, picture, exists); }, Qt::QueuedConnection);
        }
        return std::function<void()>();
    });
}

void RecentView::ShowPicture(const std::string& path, const QImage& picture, bool exists) {
    const QByteArray bytes = QByteArray::fromStdString(path);
    for (int i = 0; i < count(); ++i) {
        QListWidgetItem* found = item(i);
        if (found->data(Qt::UserRole).toByteArray() != bytes) continue;
        found->setIcon(QIcon(Framed(picture, devicePixelRatioF())));
        found->setFlags(exists ? Qt::ItemIsEnabled | Qt::ItemIsSelectable : Qt::NoItemFlags);
        if (!exists) found->setToolTip(found->toolTip() + UiText::tr("\nThe file is not there."));
    }
}

void RecentView::showEvent(QShowEvent* event) {
    QListWidget::showEvent(event);
    ReadPictures();
}

void RecentView::hideEvent(QHideEvent* event) {
    QListWidget::hideEvent(event);
    pictures_.Stop();
}

int RecentView::RowsShown() const {
    const int columns = std::max(1, viewport()->width() / std::max(1, gridSize().width()));
    return std::clamp((count() + columns - 1) / columns, 1, kMostRows);
}

QSize RecentView::sizeHint() const {
    return {3 * gridSize().width(),
            RowsShown() * gridSize().height() + 2 * frameWidth() + 2 * kMargin};
}

QSize RecentView::minimumSizeHint() const {
    return {gridSize().width() + 2 * kMargin, gridSize().height() + 2 * frameWidth() + kMargin};
}

}  // namespace kirto
