#include "ui/controls/menu_names.h"

#include <QVariant>

namespace kirto {

namespace {

constexpr const char* kEnglishName = "english_name";

}  // namespace

void SetEnglishName(QAction& action, const char* label) {
    action.setProperty(kEnglishName, QString::fromUtf8(label).remove('&'));
}

QString EnglishNameOf(const QAction& action) {
    const QVariant name = action.property(kEnglishName);
    return name.isValid() ? name.toString() : action.text().remove('&');
}

}  // namespace kirto
