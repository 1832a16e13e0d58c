#include "modelhost.h"

#include "repeatedmessages.h"

namespace {

class SilentHost final : public ModelHost {
public:
    MessageAnswer ShowMessage(const std::string&, MessageButtons buttons, MessageIcon,
                              const std::string&) override {
        return buttons == MessageButtons::Ok ? MessageAnswer::Ok : MessageAnswer::No;
    }
};

SilentHost silentHost;
ModelHost* currentHost = &silentHost;

} // namespace

ModelHost& Host() {
    return *currentHost;
}

void SetHost(ModelHost* host) {
    currentHost = host != nullptr ? host : &silentHost;
}

void ShowMessage(const std::string& text, MessageIcon icon) {
    if (RepeatedMessages* gate = OpenMessageGate(); gate != nullptr && !gate->Admit(text))
        return;
    Host().ShowMessage(text, MessageButtons::Ok, icon, kProgramTitle);
}
