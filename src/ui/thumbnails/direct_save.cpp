#include "ui/thumbnails/direct_save.h"

#include <QGuiApplication>
#include <QUrl>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <xcb/xcb.h>

#include "base/types.h"
#include "ui/thumbnails/file_urls.h"

namespace kirto {

namespace {

constexpr uint32 kMaxUrlWords = 16 * 1024;  // of 4 bytes

struct FreeReply {
    void operator()(void* reply) const { std::free(reply); }
};
template <typename T>
using Reply = std::unique_ptr<T, FreeReply>;

// Null where windows don't speak X.
xcb_connection_t* Connection() {
    auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 ? x11->connection() : nullptr;
}

xcb_atom_t Atom(xcb_connection_t* connection, const char* name) {
    const auto length = static_cast<uint16>(std::strlen(name));
    const Reply<xcb_intern_atom_reply_t> reply(
        xcb_intern_atom_reply(connection, xcb_intern_atom(connection, 0, length, name), nullptr));
    return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

// The window that the drag goes out from is the one that owns the drag's selection.
xcb_window_t SourceWindow(xcb_connection_t* connection) {
    const xcb_atom_t selection = Atom(connection, "XdndSelection");
    const Reply<xcb_get_selection_owner_reply_t> reply(xcb_get_selection_owner_reply(
        connection, xcb_get_selection_owner(connection, selection), nullptr));
    return reply ? reply->owner : static_cast<xcb_window_t>(XCB_WINDOW_NONE);
}

}  // namespace

bool IsDirectSavePossible() {
    return Connection() != nullptr;
}

void OfferDirectSave(const std::string& file_name) {
    xcb_connection_t* connection = Connection();
    if (!connection) return;
    const xcb_window_t window = SourceWindow(connection);
    if (window == XCB_WINDOW_NONE) return;
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window,
                        Atom(connection, kDirectSaveType), Atom(connection, "text/plain"), 8,
                        static_cast<uint32>(file_name.size()), file_name.data());
    xcb_flush(connection);
}

std::optional<std::string> DirectSavePath() {
    xcb_connection_t* connection = Connection();
    if (!connection) return std::nullopt;
    const Reply<xcb_get_property_reply_t> reply(xcb_get_property_reply(
        connection,
        xcb_get_property(connection, 0, SourceWindow(connection), Atom(connection, kDirectSaveType),
                         XCB_GET_PROPERTY_TYPE_ANY, 0, kMaxUrlWords),
        nullptr));
    if (!reply || reply->format != 8) return std::nullopt;
    const QByteArray url(static_cast<const char*>(xcb_get_property_value(reply.get())),
                         xcb_get_property_value_length(reply.get()));
    return LocalPathOf(QUrl::fromEncoded(url));
}

}  // namespace kirto
