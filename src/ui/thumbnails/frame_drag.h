#pragma once

#include <QImage>
#include <QMimeData>
#include <QTemporaryDir>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "document/document_state.h"
#include "kit/message.h"
#include "kit/point.h"

class QWidget;

namespace kirto {

// The data of a drag as a message, for Kirto alone.
inline constexpr char kDragMessageType[] = "application/x-vnd.tavon-kirto-message";

// A frame on its way out of the window. Inside Kirto it is a message; other programs get a file,
// which is written only when one of them asks for it. GUI thread.
class FrameDrag : public QMimeData {
  public:
    // Carries a B_COPY_TARGET message out; false when the file could not be saved.
    using Save = std::function<bool(BMessage*)>;

    // file_name: what the file is called, unless the target calls it otherwise. folder: an empty
    // one for the file; who owns it keeps it as long as a target may be reading, which is often
    // longer than the drag.
    // state: the document, whose selected frames another editor gets; null for none.
    FrameDrag(const BMessage& message, std::string file_name, std::string folder, Save save,
              std::shared_ptr<const DocumentState> state = nullptr);

    const std::string& FileName() const { return file_name_; }

    QStringList formats() const override;
    bool hasFormat(const QString& type) const override;

  protected:
    QVariant retrieveData(const QString& type, QMetaType preferred) const override;

  private:
    bool SaveAt(const std::string& path) const;
    QByteArray FileList() const;
    QByteArray DirectSaveAnswer() const;

    const QByteArray message_;  // flattened
    const std::string file_name_;
    const std::string folder_;
    const Save save_;
    const std::shared_ptr<const DocumentState> state_;
    mutable std::optional<bool> is_saved_;  // whether the file in the folder is; unknown before
};

// True for a drag that a Kirto window began with a frame of its own.
bool BeganInKirto(const QMimeData& data);

// True where that was a window of another process.
bool BeganInAnotherEditor(const QMimeData& data);

// Drags the frame with the picture under the pointer, and returns when the drag is over. grab: the
// pointer's place in the picture.
void RunFrameDrag(QWidget* source, std::unique_ptr<FrameDrag> data, const QImage& image,
                  BPoint grab);

}  // namespace kirto
