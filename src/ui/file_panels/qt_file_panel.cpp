#include "ui/file_panels/qt_file_panel.h"

#include "base/core_text.h"
#include "document/command_codes.h"
#include "ui/file_panels/image_filter.h"
#include "ui/file_panels/insert_tiled_file_panel.h"
#include "ui/file_panels/kirto_filter.h"
#include "ui/file_panels/open_file_panel.h"
#include "ui/file_panels/save_file_panel.h"

namespace kirto {

std::unique_ptr<FilePanel> MakeQtFilePanel(FilePanelKind kind, BMessenger target,
                                           BTranslatorRoster& roster,
                                           const QPointer<QWidget>& parent,
                                           std::function<void()> show_preferences) {
    switch (kind) {
        case FilePanelKind::kInsert: {
            OpenPanelSetup setup{CoreText::tr("Insert Frames"), kInsertFiles,
                                 CoreText::tr("Insert"), true,
                                 [&roster] { return std::make_unique<ImageFilter>(roster); }};
            return std::make_unique<OpenFilePanel>(std::move(setup), std::move(target), parent);
        }
        case FilePanelKind::kInsertAnimation: {
            OpenPanelSetup setup{CoreText::tr("Insert Animation"), kInsertAnimations,
                                 CoreText::tr("Insert"), true,
                                 [] { return std::make_unique<KirtoFilter>(); }};
            return std::make_unique<OpenFilePanel>(std::move(setup), std::move(target), parent);
        }
        case FilePanelKind::kInsertTiled:
            return std::make_unique<InsertTiledFilePanel>(std::move(target), roster, parent);
        case FilePanelKind::kSave:
            return std::make_unique<SaveFilePanel>(std::move(target), roster, parent,
                                                   std::move(show_preferences));
        case FilePanelKind::kOpen:
            break;
    }
    OpenPanelSetup setup{CoreText::tr("Open Animation"), kOpenFile, "", false,
                         [] { return std::make_unique<KirtoFilter>(); }};
    return std::make_unique<OpenFilePanel>(std::move(setup), std::move(target), parent);
}

}  // namespace kirto
