// A host for the model layer that records every call and answers questions from a script.
#pragma once

#include "modelhost.h"

#include <deque>
#include <string>
#include <vector>

class RecordingHost : public ModelHost {
public:
    RecordingHost();
    ~RecordingHost() override;

    MessageAnswer ShowMessage(const std::string& text, MessageButtons buttons, MessageIcon icon,
                              const std::string& title) override;

    // Answers for the next questions, in order; when none is left a question is answered No.
    std::deque<MessageAnswer> answers;
    // Every message and question shown, in order.
    std::vector<std::string> messages;
};
