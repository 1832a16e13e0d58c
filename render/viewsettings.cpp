#include "viewsettings.h"

namespace {
ViewSettings settings;
}

ViewSettings& View() {
    return settings;
}

void ResetViewSettings() {
    settings = ViewSettings{};
}
