#include "ui/file_dialog.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QLineEdit>

#include "ui/filter_proxy.h"

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

void FileDialog::Restart(const QString& name) {
    if (proxy_) proxy_->ForgetTypes();
    for (auto* view : findChildren<QAbstractItemView*>()) {
        if (view->selectionModel()) view->selectionModel()->clear();
    }
    auto* field = findChild<QLineEdit*>("fileNameEdit");
    field->setText(name);
    field->setFocus();
}

void FileDialog::accept() {
    if (may_write_ && (EntersFolder() || !may_write_(selectedFiles().value(0)))) return;
    QFileDialog::accept();
}

// A folder that has only now been read would still bring up what completes the typed name, and that
// would take the keyboard. The field takes its completer back with the focus.
void FileDialog::hideEvent(QHideEvent* event) {
    QFileDialog::hideEvent(event);
    if (auto* completer = findChild<QLineEdit*>("fileNameEdit")->completer())
        completer->setWidget(nullptr);
}

// The toolkit would take a folder's name for one that lacks its extension.
bool FileDialog::EntersFolder() {
    auto* field = findChild<QLineEdit*>("fileNameEdit");
    const QFileInfo typed(directory(), field->text());
    if (field->text().isEmpty() || !typed.isDir()) return false;
    setDirectory(typed.absoluteFilePath());
    field->clear();
    return true;
}

}  // namespace kirto
