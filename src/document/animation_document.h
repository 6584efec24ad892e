#pragma once

#include <atomic>
#include <memory>
#include <string>
#include <vector>

#include "color/palette.h"
#include "document/frame.h"
#include "platform/messenger.h"
#include "platform/semaphore.h"
#include "platform/types.h"
#include "settings/prefs.h"

// The open animation: its frames, selection and global properties, and the reader/writer lock that
// guards them. All edits run on one thread (the application's); other threads read between
// ReaderEnter and ReaderExit (see ReaderScope). The lock is not re-entrant.
//
// While no writer is inside: frame i of the list has index i, and selected is -1 exactly when the
// list is empty.
class AnimationDocument {
  public:
    int32 global_height = 0;  // canvas, pixels
    int32 global_width = 0;   // canvas, pixels
    int32 loop_count = 0;     // 0: for ever
    bool use_pause_global = false;
    bool use_loop = false;
    std::atomic<bool> modified = false;  // changed since the last reset, open or save
    // Commands that are on their way and will change the document; and those of them that may bring
    // frames. A command is counted down after it has set modified.
    std::atomic<int32> changes_waiting = 0;
    std::atomic<int32> insertions_waiting = 0;
    double pause_length_global = 0.0;  // same unit as Frame::pause_length
    std::string file_name;             // "untitled" after a reset; at most 255 bytes
    std::string file_directory;        // empty after a reset
    std::unique_ptr<Palette> global_palette;
    int32 frame_count = 0;
    int32 selected = -1;
    bool open_panel_delivered = false;  // the open panel's next cancel notice is no real cancel
    Frame* first_frame = nullptr;
    sem_id frame_sem = -1;
    int32 reader_count = 0;

    // The settings must outlive the document. window receives the refresh commands; it may be
    // invalid. Ends with Reset().
    explicit AnimationDocument(Prefs& settings, BMessenger window_messenger = {});
    virtual ~AnimationDocument();
    AnimationDocument(const AnimationDocument&) = delete;
    AnimationDocument& operator=(const AnimationDocument&) = delete;

    Prefs& prefs;
    BMessenger window;
    // Counts the pixel memory of this document's frames.
    const std::shared_ptr<kirto::PixelBudget> pixel_budget;

    // Empties the document and takes its properties from the settings, under the writer lock. An
    // unreadable palette file is reported by an alert, and the palette becomes web safe.
    void Reset();

    // Queries. They do not lock; the caller is inside the lock or on the editing thread.
    int32 FrameCount() const { return frame_count; }
    Frame* FirstFrame() const { return first_frame; }
    int32 Selected() const { return selected; }
    Frame* CurrentFrame() const { return FrameAt(selected); }
    // Null outside 0..frame_count - 1.
    Frame* FrameAt(int32 i) const;
    // The first frame that is wider or taller than the canvas, or null.
    const Frame* FrameLargerThanCanvas() const;
    // Changes that no file has, made or on their way. From any thread.
    bool HasUnsavedChanges() const;
    // Edits. Each takes the writer lock itself.
    // Inserts the frame at its own index and posts 'auns' (before it, into an empty list, the
    // thumbnail-size command). True: the document owns the frame now. False: the index is outside
    // 0..frame_count, nothing happened and the frame is still the caller's.
    bool InsertFrame(Frame* frame);
    // Inserts the frame at its own index, clamped to the list, takes ownership and makes it the
    // current frame; the document is modified then. Into an empty list it also gives the canvas its
    // size, where the setting "global_setdimensions" says so. Posts as InsertFrame does.
    void InsertFrameAsCurrent(Frame* frame);
    // Deletes the current frame.
    void RemoveFrame();
    // Swaps the current frame with the one before (up) or after it; the selection follows.
    void MoveFrame(bool up);
    // Reverses the list; the selection keeps its number, modified stays.
    void ReverseFrames();
    // Makes frame i current; true only if the selection changed.
    bool Select(int32 i);
    void SetModified(bool changed);
    // Lets the global palette follow the first or the current frame, where its kind says so.
    void UpdateGlobalPalette();

    // Readers never exclude each other and are excluded by a writer; a writer waits until no reader
    // is inside, looking every millisecond, with no priority.
    void ReaderEnter();
    void ReaderExit();
    void WriterEnter();
    void WriterExit();
    // Enters as a reader unless a writer is inside; true when entered. Never waits for a writer's
    // work, for threads that must not block.
    bool TryReaderEnter();

    // Posts a command without fields to the window.
    void PostToWindow(uint32 what) const { window.SendMessage(what); }
    // Posts the progress text that the status line shows.
    void PostStatus(const std::string& text) const;
    // Posts the thumbnail-size command that the setting "thumbnail_height" asks for, if any.
    void PostThumbnailSize() const;

    // Asks work in progress to end before its next frame, from any thread. What is done stays done.
    void RequestStop() { stop_requested_ = true; }
    bool StopRequested() const { return stop_requested_; }

  private:
    // Links the frame in at its index, which is within 0..frame_count.
    void Link(Frame* frame);
    // Renews count, indices and links after the order of frames_ changed.
    void Relink();
    void ResetPalette();

    std::atomic<bool> stop_requested_ = false;
    std::vector<std::unique_ptr<Frame>> frames_;  // owns the list's frames, in order
    std::atomic<bool> writer_inside_ = false;
};
