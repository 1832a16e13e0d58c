#include "recordinghost.h"

RecordingHost::RecordingHost() { SetHost(this); }

RecordingHost::~RecordingHost() { SetHost(nullptr); }

MessageAnswer RecordingHost::ShowMessage(const std::string& text, MessageButtons buttons,
                                         MessageIcon, const std::string&) {
    messages.push_back(text);
    if (buttons == MessageButtons::Ok)
        return MessageAnswer::Ok;
    if (answers.empty())
        return MessageAnswer::No;
    const MessageAnswer answer = answers.front();
    answers.pop_front();
    return answer;
}
