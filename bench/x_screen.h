#pragma once

#include <cstdint>
#include <memory>
#include <vector>
#include <xcb/xcb.h>

namespace kirto::bench {

// The screen of an X server on which nothing but the program under test is shown.
class XScreen {
  public:
    struct Area {
        int16_t left;  // pixels
        int16_t top;
        uint16_t width;
        uint16_t height;
    };

    // Connects to the server of the environment.
    XScreen();
    ~XScreen();
    XScreen(const XScreen&) = delete;
    XScreen& operator=(const XScreen&) = delete;

    bool Connected() const;
    Area Whole() const;
    // So many pixels around the middle of the screen.
    Area Middle(uint16_t width, uint16_t height) const;
    // 4 bytes a pixel; none where the area leaves the screen.
    std::vector<uint8_t> Pixels(const Area& area) const;
    // Moves the pointer to the middle of the area.
    void PointAt(const Area& area);
    // Turns the wheel of the mouse by one notch, down or up.
    void TurnWheel(bool down);

  private:
    xcb_connection_t* connection_;
    const xcb_screen_t* screen_ = nullptr;
};

}  // namespace kirto::bench
