#pragma once

#include <QStandardItem>
#include <string>

#include "base/types.h"

// An item of the save panel's format menu: what the translator writes when the item is marked.
// Owned by the menu.
class TranslatorMenuItem : public QStandardItem {
  public:
    // translator: 0 for the program's own GIF writer. type: of the translator's output format; 0
    // there.
    TranslatorMenuItem(const std::string& label, uint32 command, int32 translator, uint32 type);

    // What the item sends when it is chosen.
    uint32 Command() const { return command_; }
    int32 Translator() const { return translator_; }
    uint32 OutputType() const { return output_type_; }

  private:
    uint32 command_;
    int32 translator_;
    uint32 output_type_;
};
