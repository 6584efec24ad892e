#include "desktop/qt/browser.h"

#include <QFile>
#include <QProcess>

#include "desktop/browser_variable.h"
#include "desktop/desktop_entry.h"

namespace kirto {

namespace {

constexpr int kAnswerMilliseconds = 3000;

// Starts a program that outlives this one and has nothing to say to its terminal.
bool Start(const ProgramCall& call) {
    if (call.empty()) return false;
    QStringList arguments;
    for (size_t i = 1; i < call.size(); ++i)
        arguments.append(QFile::decodeName(call[i].c_str()));
    QProcess process;
    process.setProgram(QFile::decodeName(call[0].c_str()));
    process.setArguments(arguments);
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    return process.startDetached();
}

// The line that a program of the desktop prints; empty when it fails or takes too long.
std::string AnswerOf(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(program, arguments, QIODevice::ReadOnly);
    if (!process.waitForFinished(kAnswerMilliseconds)) {
        process.kill();
        process.waitForFinished();
        return {};
    }
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) return {};
    return process.readAllStandardOutput().trimmed().toStdString();
}

std::string DefaultBrowser() {
    return AnswerOf("xdg-settings", {"get", "default-web-browser"});
}

std::string DefaultGifViewer() {
    return AnswerOf("xdg-mime", {"query", "default", "image/gif"});
}

}  // namespace

bool OpenInBrowser(const std::string& path) {
    for (const ProgramCall& call : BrowserVariableCalls(path)) {
        if (Start(call)) return true;
    }
    // Where the desktop names none, the system may still have one under a common name.
    return Start(DesktopEntryCall(DefaultBrowser(), path)) || Start({"x-www-browser", path}) ||
           Start(DesktopEntryCall(DefaultGifViewer(), path)) || Start({"xdg-open", path});
}

}  // namespace kirto
