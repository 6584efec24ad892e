// The other side of drag and drop: a program that drags files to the editor, or takes what the
// editor drags out. It prints a line for each thing that happens to it.
#include <QApplication>
#include <QDir>
#include <QDrag>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QLabel>
#include <QMimeData>
#include <QMouseEvent>
#include <QUrl>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "e2e/direct_save_target.h"

namespace kirto::test {
namespace {

constexpr QSize kSize(200, 150);

void Print(const QString& line) {
    std::puts(line.toUtf8().constData());
    std::fflush(stdout);
}

class PeerWindow : public QLabel {
  public:
    PeerWindow(const QString& title, QPoint position) : QLabel(title) {
        setWindowTitle(title);
        setAlignment(Qt::AlignCenter);
        setFixedSize(kSize);
        move(position);
    }

  protected:
    void showEvent(QShowEvent*) override { Print(QStringLiteral("ready")); }
};

// Drags its files when the mouse is pressed on it and moved. Prints "begun", "accepted" each time a
// target says that it would copy them, and "dropped" or "not dropped".
class OfferWindow : public PeerWindow {
  public:
    OfferWindow(const QStringList& files, QPoint position)
        : PeerWindow(QStringLiteral("Offer"), position) {
        for (const QString& file : files)
            urls_.append(QUrl::fromLocalFile(QFileInfo(file).absoluteFilePath()));
    }

  protected:
    void mouseMoveEvent(QMouseEvent* event) override {
        if (!(event->buttons() & Qt::LeftButton)) return;
        auto* files = new QMimeData;
        files->setUrls(urls_);
        auto* drag = new QDrag(this);
        drag->setMimeData(files);
        connect(drag, &QDrag::actionChanged, [](Qt::DropAction action) {
            if (action == Qt::CopyAction) Print(QStringLiteral("accepted"));
        });
        Print(QStringLiteral("begun"));
        const bool dropped = drag->exec(Qt::CopyAction, Qt::CopyAction) == Qt::CopyAction;
        Print(dropped ? QStringLiteral("dropped") : QStringLiteral("not dropped"));
    }

  private:
    QList<QUrl> urls_;
};

// Copies the files that are dropped on it into its folder. Prints "entered FORMAT...", and "copied
// NAME" or "failed NAME" for each file.
class AcceptWindow : public PeerWindow {
  public:
    AcceptWindow(const QString& folder, QPoint position)
        : PeerWindow(QStringLiteral("Accept"), position), folder_(folder) {
        setAcceptDrops(true);
    }

  protected:
    void dragEnterEvent(QDragEnterEvent* event) override {
        Print(QStringLiteral("entered ") + event->mimeData()->formats().join(' '));
        if (event->mimeData()->hasFormat(QStringLiteral("text/uri-list")))
            event->acceptProposedAction();
    }

    void dropEvent(QDropEvent* event) override {
        event->setDropAction(Qt::CopyAction);
        event->accept();
        for (const QUrl& url : event->mimeData()->urls()) {
            const QString name = url.fileName();
            const bool copied = QFile::copy(url.toLocalFile(), QDir(folder_).filePath(name));
            Print((copied ? QStringLiteral("copied ") : QStringLiteral("failed ")) + name);
        }
    }

  private:
    QString folder_;
};

int Usage() {
    std::fputs(
        "usage: kirto_dnd_peer X Y offer FILE...\n"
        "       kirto_dnd_peer X Y accept FOLDER\n"
        "       kirto_dnd_peer X Y direct-save FOLDER\n",
        stderr);
    return 2;
}

int Show(QWidget& window) {
    window.show();
    return QApplication::exec();
}

int Run(int argc, char** argv) {
    if (argc < 5) return Usage();
    const QPoint position(std::atoi(argv[1]), std::atoi(argv[2]));
    if (std::strcmp(argv[3], "direct-save") == 0)
        return RunDirectSaveTarget(argv[4], position.x(), position.y());

    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments().mid(4);
    if (std::strcmp(argv[3], "offer") == 0) {
        OfferWindow window(arguments, position);
        return Show(window);
    }
    if (std::strcmp(argv[3], "accept") == 0) {
        AcceptWindow window(arguments[0], position);
        return Show(window);
    }
    return Usage();
}

}  // namespace
}  // namespace kirto::test

int main(int argc, char** argv) {
    return kirto::test::Run(argc, argv);
}
