// The host moxtool puts in place of the window: it keeps every message the model layer shows, so
// that a command can print them or put them into its output.
#pragma once

#include "modelhost.h"

#include <string>
#include <vector>

class CollectingHost final : public ModelHost {
public:
    CollectingHost() { SetHost(this); }
    ~CollectingHost() override { SetHost(nullptr); }
    CollectingHost(const CollectingHost&) = delete;
    CollectingHost& operator=(const CollectingHost&) = delete;

    // Questions are answered No unless the command sets `questionAnswer`: a command never
    // changes what it was not asked to.
    MessageAnswer ShowMessage(const std::string& text, MessageButtons buttons, MessageIcon,
                              const std::string&) override {
        messages.push_back(text);
        return buttons == MessageButtons::Ok ? MessageAnswer::Ok : questionAnswer;
    }

    std::vector<std::string> messages;
    MessageAnswer questionAnswer = MessageAnswer::No;
};
