#pragma once

#include "platform/application.h"

// The base of programs whose windows are built from resources.
class IEApplication : public BApplication {
  public:
    using BApplication::BApplication;
};
