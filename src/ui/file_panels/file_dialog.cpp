#include "ui/file_panels/file_dialog.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCompleter>
#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QLineEdit>
#include <algorithm>

#include "ui/file_panels/filter_proxy.h"

namespace kirto {

FileDialog::FileDialog(QWidget* parent) : QFileDialog(parent) {
    // The desktop's own dialog has no room for more controls.
    setOption(QFileDialog::DontUseNativeDialog);
    setOption(QFileDialog::DontConfirmOverwrite);
    setWindowModality(Qt::WindowModal);
    // A filter of types is none that the user may choose.
    for (const char* name : {"fileTypeLabel", "fileTypeCombo"}) {
        if (auto* widget = findChild<QWidget*>(name)) widget->hide();
    }
    name_field_ = findChild<QLineEdit*>("fileNameEdit");
    completer_ = name_field_->completer();
    connect(qApp, &QApplication::focusChanged, this, &FileDialog::FollowKeyboard);
}

// The toolkit moves the keyboard once more while it takes the dialog apart.
FileDialog::~FileDialog() {
    disconnect(qApp, nullptr, this, nullptr);
}

void FileDialog::SetFilter(std::unique_ptr<BRefFilter> filter) {
    proxy_ = new FilterProxy(std::move(filter));
    setProxyModel(proxy_);
}

void FileDialog::SetReplaceCheck(std::function<bool(const QString& path)> may_write) {
    may_write_ = std::move(may_write);
}

void FileDialog::AddRow(QWidget* controls) {
    auto* grid = static_cast<QGridLayout*>(layout());
    int row = grid->rowCount();
    int column = 0;
    int rows = 1;
    int columns = grid->columnCount();
    // The choice of types has left its place beside the buttons.
    const int place = grid->indexOf(findChild<QWidget*>("fileTypeCombo"));
    if (place >= 0) grid->getItemPosition(place, &row, &column, &rows, &columns);
    grid->addWidget(controls, row, 0, 1, column + columns);
    resize(width(), height() + controls->sizeHint().height());
}

void FileDialog::WatchChosenFile(std::function<void(const QString& path)> watch) {
    connect(name_field_, &QLineEdit::textChanged, this,
            [this, watch = std::move(watch)](const QString& text) {
                watch(text.isEmpty() ? QString() : ChosenFiles().value(0));
            });
}

void FileDialog::Restart(const QString& name) {
    if (proxy_) proxy_->ForgetTypes();
    for (auto* view : findChildren<QAbstractItemView*>()) {
        if (view->selectionModel()) view->selectionModel()->clear();
    }
    name_field_->setText(name);
    name_field_->setFocus();
    // Another name is just typed.
    name_field_->selectAll();
}

void FileDialog::Rename(const QString& from, const QString& to) {
    if (name_field_->text() == from) name_field_->setText(to);
}

// Of several quoted names the toolkit takes only those that the filter offers, if there are any. A
// name may hold quotes itself, so what stands between them counts only where it is the name of
// files.
QStringList FileDialog::ChosenFiles() const {
    if (fileMode() != ExistingFiles) return selectedFiles();
    QStringList typed;
    const QStringList parts = name_field_->text().split('"');
    for (qsizetype i = 1; i < parts.size(); i += 2)
        typed.append(directory().absoluteFilePath(parts[i]));
    const bool all_there = std::all_of(
        typed.begin(), typed.end(), [](const QString& path) { return QFileInfo(path).isFile(); });
    return !typed.isEmpty() && all_there ? typed : selectedFiles();
}

void FileDialog::accept() {
    if (may_write_ && (EntersFolder() || !may_write_(selectedFiles().value(0)))) return;
    QFileDialog::accept();
}

// Keys that were typed after the one that closes the dialog still reach the field; they may not
// bring up what completes the name.
void FileDialog::hideEvent(QHideEvent* event) {
    QFileDialog::hideEvent(event);
    name_field_->setCompleter(nullptr);
}

// What completes the name hands all keys to the name field, and may show itself only once a folder
// has been read. So it is there while the field has the keyboard, and no longer.
void FileDialog::FollowKeyboard(const QWidget* old, const QWidget* now) {
    if (now == name_field_) {
        name_field_->setCompleter(completer_);
    } else if (old == name_field_) {
        name_field_->setCompleter(nullptr);
    }
}

// The toolkit would take a folder's name for one that lacks its extension.
bool FileDialog::EntersFolder() {
    const QFileInfo typed(directory(), name_field_->text());
    if (name_field_->text().isEmpty() || !typed.isDir()) return false;
    setDirectory(typed.absoluteFilePath());
    name_field_->clear();
    return true;
}

}  // namespace kirto
