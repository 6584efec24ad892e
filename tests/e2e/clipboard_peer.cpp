// The other side of the clipboard: a program that puts a file's bytes there, or takes what the
// editor has put there.
//   kirto_clipboard_peer offer TYPE FILE    holds the bytes until somebody else has the clipboard
//   kirto_clipboard_peer take TYPE FILE     writes what is there of that type
// It prints a line for each thing that has happened, and ends then.
#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QMimeData>
#include <cstdio>

namespace {

void Print(const char* line) {
    std::puts(line);
    std::fflush(stdout);
}

bool Offer(QClipboard& clipboard, const QString& type, const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return false;
    auto* data = new QMimeData;
    data->setData(type, file.readAll());
    clipboard.setMimeData(data);
    QObject::connect(&clipboard, &QClipboard::dataChanged, [&clipboard] {
        if (clipboard.ownsClipboard()) return;
        Print("lost");
        QCoreApplication::quit();
    });
    Print("offered");
    return QCoreApplication::exec() == 0;
}

bool Take(const QClipboard& clipboard, const QString& type, const QString& path) {
    const QByteArray bytes = clipboard.mimeData()->data(type);
    QFile file(path);
    if (bytes.isEmpty() || !file.open(QIODevice::WriteOnly)) return false;
    if (file.write(bytes) != bytes.size()) return false;
    Print("taken");
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments();
    if (words.size() != 4) return 2;
    QClipboard& clipboard = *QGuiApplication::clipboard();
    if (words[1] == "offer") return Offer(clipboard, words[2], words[3]) ? 0 : 1;
    return words[1] == "take" && Take(clipboard, words[2], words[3]) ? 0 : 1;
}
