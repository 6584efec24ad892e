#pragma once

#include <QString>
#include <QStringList>
#include <optional>

#include "ui/export/export_form.h"

namespace kirto {

// Exports that are kept under names, and the last one of each format, in a file beside the
// settings. GUI thread.
class ExportPresets {
  public:
    // path: of the file; it need not be there.
    explicit ExportPresets(QString path = UsualPath());

    // Those that the program brings, then the user's by their names.
    QStringList Names() const;
    std::optional<ExportWish> Find(const QString& name) const;
    // Whether it is the user's, who may write over it and remove it.
    bool IsOwn(const QString& name) const;
    // False where the file can't be written, or where the name is the program's or empty.
    bool Store(const QString& name, const ExportWish& wish);
    bool Remove(const QString& name);

    // What was exported last; of that format, or of any.
    ExportWish Last(ExportFormat format) const;
    ExportWish Last() const;
    void StoreLast(const ExportWish& wish);

    // As text, and back; nothing where it is none.
    static QString TextOf(const ExportWish& wish);
    static std::optional<ExportWish> Parse(const QString& text);

  private:
    static QString UsualPath();

    const QString path_;
};

}  // namespace kirto
