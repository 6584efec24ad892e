#include "main/editor/printed_alerts.h"

#include <cstdio>

namespace kirto {

PrintedAlerts::PrintedAlerts() : previous_(InstallAlertPresenter(this)) {}

PrintedAlerts::~PrintedAlerts() {
    InstallAlertPresenter(previous_);
}

int32 PrintedAlerts::Present(const BAlert& alert) {
    presented_ = true;
    const bool ends_its_line = alert.Text().ends_with('\n');
    std::fprintf(stderr, "kirto: %s%s", alert.Text().c_str(), ends_its_line ? "" : "\n");
    return static_cast<int32>(alert.Buttons().size()) - 1;
}

}  // namespace kirto
