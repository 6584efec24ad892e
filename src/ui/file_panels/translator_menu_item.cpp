#include "ui/file_panels/translator_menu_item.h"

TranslatorMenuItem::TranslatorMenuItem(const std::string& label, uint32 command, int32 translator,
                                       uint32 type)
    : QStandardItem(QString::fromStdString(label)),
      command_(command),
      translator_(translator),
      output_type_(type) {}
