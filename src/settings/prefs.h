#pragma once

#include <string>

#include "base/types.h"
#include "kit/message.h"
#include "kit/node.h"
#include "kit/rect.h"

// Every user setting of the program, as public fields, kept as typed attributes named like the
// fields. The program's settings are one object, made at start, that belongs to the application
// thread; windows look at the copy in the document's state.
class Prefs {
  public:
    // The fields in the order in which they are read and written. Reading stops at the first
    // failure, so the order is part of the contract.
    int32 global_width = 320;            // of a new animation, pixels
    int32 global_height = 240;           // of a new animation, pixels
    bool global_usepause = true;         // new animations pause between frames
    bool global_useloop = true;          // new animations loop
    double global_pauselength = 100.0;   // of new animations, in the unit below
    int32 global_loopcount = 0;          // 0: forever
    bool global_setdimensions = true;    // the first inserted frame sets the animation's size
    bool global_pauseinseconds = false;  // pauses in seconds, else in hundredths
    int32 palette_mapping = 0;           // 0, 1, 2 or 7 (a kirto::PaletteMode)
    std::string palette_filename;        // at most 255 bytes
    bool palette_usetransparent = false;
    int32 palette_transparentindex = 0;
    int32 palette_backgroundindex = 0;
    bool palette_dither = false;
    int32 thumbnail_height = 0;         // 0: first frame's, 1: half of it, 2: the value below
    int32 thumbnail_heightvalue = 100;  // pixels
    int32 thumbnail_maxheight = 400;    // pixels
    int32 thumbnail_minheight = 30;     // pixels
    bool thumbnail_drawtransparent = true;
    int32 animation_gifdisposal = 0;  // written after each frame; above 2 counts as 3
    bool animation_gifinterlaced = false;
    bool animation_gifcomment = true;
    bool animation_gifloadfullframe = true;  // assemble each frame at full animation size
    bool misc_savewindowdimensions = true;
    BRect misc_windowdimensions{100, 80, 649, 479};  // screen coordinates
    std::string misc_tempfilelocation;               // directory; at most 1023 bytes
    int32 misc_preferredmode = 0;                    // 0: thumbnails, 1: frame list
    // Read animations as browsers show them, and save them so that browsers show the same. This and
    // what follows stand in the settings file only once they were something else.
    bool animation_faithful = false;
    // How frames of too many colors are saved then.
    int32 animation_dithering = 1;       // 0: not, 1: diffusing errors, 2: in a fixed pattern
    bool animation_jointcolors = false;  // they share their colors
    int32 animation_matte = 0xFFFFFF;    // below soft edges: red * 65536 + green * 256 + blue
    // Pixels of less alpha are transparent then; 0 to 255, and what is beyond counts as these.
    int32 animation_threshold = 128;
    // They keep these colors, "#rrggbb" each, with blanks or commas between; at most 255 bytes.
    std::string animation_exactcolors;

    bool failed = false;       // a read or write failed; never cleared
    std::string damaged_copy;  // where an unreadable settings file was put aside, or empty

    // Built-in values only; nothing is read or written.
    struct BuiltIn {};
    explicit Prefs(BuiltIn);
    // Loads every setting from the settings file ("Kirto_settings" in the user's configuration
    // folder), writing back the default of each that is missing and belongs there.
    Prefs();
    // As above, from the given node.
    explicit Prefs(BNode& node);

    // Writes every setting to the settings file; misc_windowdimensions is written as window_frame.
    // Stops at the first failure.
    void Save(const BRect& window_frame);
    void Save(BNode& node, const BRect& window_frame);

    // Sets one setting from text, for this run only: a whole number for integers, "true" or "false"
    // for booleans, a number for doubles, any text for strings, "left,top,right,bottom" for
    // rectangles. False, with a sentence in *reason, for an unknown key or an invalid value.
    bool SetFromText(const std::string& key, const std::string& text, std::string* reason);

    // Adds every setting to the message, as a field of its key and type; and takes over those that
    // the message has. Leaves alone what the program keeps besides the settings.
    void AddTo(BMessage* message) const;
    void TakeFrom(const BMessage& message);

    // The attribute helpers. Get: the stored bytes into *value, or the default, which is then
    // written back; Put: the value's bytes. False on failure, with a debug line and failed set.
    bool GetInt(BNode& node, const char* key, int32* value, const int32* default_value);
    bool GetBool(BNode& node, const char* key, bool* value, const bool* default_value);
    bool GetDouble(BNode& node, const char* key, double* value, const double* default_value);
    bool GetString(BNode& node, const char* key, std::string* value,
                   const std::string* default_value);
    bool GetRect(BNode& node, const char* key, BRect* value, const BRect* default_value);
    bool PutInt(BNode& node, const char* key, const int32* value);
    bool PutBool(BNode& node, const char* key, const bool* value);
    bool PutDouble(BNode& node, const char* key, const double* value);
    bool PutString(BNode& node, const char* key, const std::string* value);
    bool PutRect(BNode& node, const char* key, const BRect* value);

    // The settings file's path.
    static std::string SettingsPath();

  private:
    void Load(BNode& node);
    // The two halves of the helpers. Without a default a missing value stays as it is. verb is
    // "Get" or "Put", for the debug line of a failed write.
    template <typename T>
    bool Get(BNode& node, const char* key, T* value, const T* default_value);
    template <typename T>
    bool Write(BNode& node, const char* verb, const char* key, const T& value);
    // Makes what was written permanent. A failure is the last write's failure; its line is printed
    // unless a line was printed before (complete is false).
    void SyncWrites(BNode& node, bool complete);

    std::string unsynced_write_;  // the last write's debug line, should it fail after all
};
