#pragma once

#include <QMimeData>
#include <map>
#include <memory>
#include <optional>
#include <vector>

#include "app/frames_exchange.h"
#include "document/document_state.h"
#include "kit/message.h"

namespace kirto {

// The selected frames as other programs and editors get them: with all that belongs to them, as an
// animated GIF, and the current one as an image. Made of the document as it was; the bytes are made
// when they are asked for. GUI thread.
class FramesMimeData : public QMimeData {
  public:
    explicit FramesMimeData(std::shared_ptr<const DocumentState> state)
        : state_(std::move(state)) {}

    QStringList formats() const override;
    bool hasFormat(const QString& type) const override;

  protected:
    QVariant retrieveData(const QString& type, QMetaType preferred) const override;

  private:
    const std::shared_ptr<const DocumentState> state_;
    mutable std::map<QString, QByteArray> made_;
};

// As Qt has them.
QByteArray BytesOf(const std::vector<uint8>& bytes);

// The command that inserts what is there behind the current frame: frames, an animation, an image
// or files. Empty for anything else.
std::optional<BMessage> PasteCommand(const QMimeData& data);

}  // namespace kirto
