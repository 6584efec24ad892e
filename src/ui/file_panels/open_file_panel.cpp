#include "ui/file_panels/open_file_panel.h"

#include <QFile>
#include <vector>

#include "base/natural_order.h"

namespace kirto {

OpenFilePanel::OpenFilePanel(OpenPanelSetup setup, BMessenger target, QPointer<QWidget> parent)
    : FileDialogPanel(setup.title, std::move(target), std::move(parent)),
      setup_(std::move(setup)) {}

void OpenFilePanel::Prepare(FileDialog& dialog) {
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(setup_.several_files ? QFileDialog::ExistingFiles
                                            : QFileDialog::ExistingFile);
    dialog.SetFilter(setup_.make_filter());
    if (setup_.button.empty()) return;
    dialog.setLabelText(QFileDialog::Accept, QString::fromStdString(setup_.button));
}

BMessage OpenFilePanel::CommandFor(const QStringList& files) const {
    BMessage command(setup_.command);
    std::vector<std::string> paths;
    for (const QString& file : files)
        paths.push_back(QFile::encodeName(file).toStdString());
    for (const std::string& path : InNaturalOrder(paths))
        command.AddRef("refs", entry_ref(path));
    return command;
}

}  // namespace kirto
