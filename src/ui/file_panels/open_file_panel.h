#pragma once

#include <functional>

#include "ui/file_panels/file_dialog_panel.h"

namespace kirto {

// How open panels differ.
struct OpenPanelSetup {
    std::string title;
    uint32 command = 0;  // sent with the files as refs "refs"
    std::string button;  // label of the default button; empty for the toolkit's
    bool several_files = false;
    std::function<std::unique_ptr<BRefFilter>()> make_filter;  // called when the dialog is made
};

// A panel in which files are chosen to be read.
class OpenFilePanel : public FileDialogPanel {
  public:
    OpenFilePanel(OpenPanelSetup setup, BMessenger target, QPointer<QWidget> parent);

  protected:
    void Prepare(FileDialog& dialog) override;
    BMessage CommandFor(const QStringList& files) const override;

  private:
    OpenPanelSetup setup_;
};

}  // namespace kirto
