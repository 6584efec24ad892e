#pragma once

#include <memory>

#include "kit/application.h"
#include "resources/ie_resource_handler.h"

// The base of programs whose windows are built from resources.
class IEApplication : public BApplication {
  public:
    // resource_file: where the windows' layouts lie; an empty path for a program without windows.
    // Where it can't be opened the user is told, Error() is -1 and the application ends as soon as
    // it runs.
    explicit IEApplication(std::string signature, const entry_ref& resource_file = {});
    ~IEApplication() override;

    // 0, or -1 when the resources could not be opened.
    int32 Error() const { return error_; }
    // Owned by the application; null for a program without resources.
    IEResourceHandler* Resources() const { return resources_.get(); }

  protected:
    void DispatchMessage(BMessage* message, BHandler* handler) override;

  private:
    std::unique_ptr<IEResourceHandler> resources_;
    int32 error_ = 0;
};
