#pragma once

#include <QDialog>
#include <memory>
#include <vector>

#include "kit/qt/gui_port.h"
#include "kit/window.h"
#include "resources/ie_resource_handler.h"

// A window built from an archive in the program's resources, for the desktop's font. What it lets
// go of, its name, its place and its size come from the archive; a window that no resource holds
// says so in its title. Belongs to the GUI thread; Quit() deletes it.
class IEWindow : public QDialog, public BWindow {
  public:
    // name: of the archive. resources outlives the window; while its Error() is not 0 the window
    // keeps its archived shape, but it handles no messages, stands where it may and is not listed.
    IEWindow(const char* name, IEResourceHandler& resources, QWidget* parent = nullptr);
    ~IEWindow() override;

    // Asks the windows that depend on this one to quit, leaves the list of windows and goes.
    virtual void Quit();
    // Lets the views show their variables, and shows the window in front.
    virtual void Show();
    // Whether the user's wish to close it is granted. Here it is, once the views have stored their
    // values.
    virtual bool QuitRequested();

    // The views among the descendants of parent, or of the window for null, that are bound to a
    // variable show its value, or store theirs.
    virtual void UpdateAllViews(QWidget* parent);
    virtual void UpdateAllVariables(QWidget* parent);
    // The same for the view of that name, and how it is bound; nothing happens without such a view.
    virtual void UpdateView(const char* name);
    virtual void UpdateVariable(const char* name);
    virtual void SetViewVariable(const char* name, void* variable, const char* text);

    // The other window is asked to quit when this one goes.
    void AddDependantWindow(const BWindow& other);

    // Quits, where QuitRequested() grants it. B_QUIT_REQUESTED, the window's frame and the Escape
    // key do the same.
    void Close();

    void MessageReceived(BMessage* message) override;
    void reject() override;

  protected:
    // The archive of that name, scaled to the desktop's font; where there is none, that of a
    // placeholder which says so.
    static BMessage FindWindowResource(const char* name, const IEResourceHandler& resources);

    void closeEvent(QCloseEvent* event) override;

  private:
    IEWindow(const char* name, const BMessage& archive, IEResourceHandler& resources,
             std::shared_ptr<kirto::GuiPort> port, QWidget* parent);
    void TakeShape(const BMessage& archive);
    void TakePlace(const BMessage& archive);
    void TakeLimits(const BMessage& archive);

    IEResourceHandler& resources_;
    std::shared_ptr<kirto::GuiPort> port_;
    std::vector<BMessenger> dependants_;
    bool running_ = false;  // messages are handled
};
