#include "x_screen.h"

#include <cstdlib>
#include <xcb/xtest.h>

namespace kirto::bench {

namespace {

struct Free {
    void operator()(void* memory) const { std::free(memory); }
};

}  // namespace

XScreen::XScreen() : connection_(xcb_connect(nullptr, nullptr)) {
    if (Connected()) screen_ = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data;
}

XScreen::~XScreen() {
    xcb_disconnect(connection_);
}

bool XScreen::Connected() const {
    return xcb_connection_has_error(connection_) == 0;
}

XScreen::Area XScreen::Whole() const {
    return {0, 0, screen_->width_in_pixels, screen_->height_in_pixels};
}

XScreen::Area XScreen::Middle(uint16_t width, uint16_t height) const {
    return {static_cast<int16_t>((screen_->width_in_pixels - width) / 2),
            static_cast<int16_t>((screen_->height_in_pixels - height) / 2), width, height};
}

std::vector<uint8_t> XScreen::Pixels(const Area& area) const {
    const auto cookie = xcb_get_image(connection_, XCB_IMAGE_FORMAT_Z_PIXMAP, screen_->root,
                                      area.left, area.top, area.width, area.height, ~0U);
    const std::unique_ptr<xcb_get_image_reply_t, Free> image(
        xcb_get_image_reply(connection_, cookie, nullptr));
    if (!image) return {};
    const uint8_t* bytes = xcb_get_image_data(image.get());
    return {bytes, bytes + xcb_get_image_data_length(image.get())};
}

void XScreen::PointAt(const Area& area) {
    xcb_test_fake_input(connection_, XCB_MOTION_NOTIFY, 0, XCB_CURRENT_TIME, screen_->root,
                        static_cast<int16_t>(area.left + area.width / 2),
                        static_cast<int16_t>(area.top + area.height / 2), 0);
    xcb_flush(connection_);
}

void XScreen::TurnWheel(bool down) {
    const uint8_t button = down ? 5 : 4;
    for (const uint8_t event : {uint8_t{XCB_BUTTON_PRESS}, uint8_t{XCB_BUTTON_RELEASE}})
        xcb_test_fake_input(connection_, event, button, XCB_CURRENT_TIME, screen_->root, 0, 0, 0);
    xcb_flush(connection_);
}

}  // namespace kirto::bench
