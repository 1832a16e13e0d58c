#include "recordinghost.h"

namespace {

const char* IconName(MessageIcon icon) {
    switch (icon) {
    case MessageIcon::Information:
        return "information";
    case MessageIcon::Question:
        return "question";
    case MessageIcon::Exclamation:
        return "exclamation";
    case MessageIcon::None:
        break;
    }
    return "plain";
}

const char* OnOff(bool on) {
    return on ? "on" : "off";
}

constexpr const char* kEventsCall = "events";

} // namespace

RecordingHost::RecordingHost() {
    SetHost(this);
}

RecordingHost::~RecordingHost() {
    SetHost(nullptr);
}

MessageAnswer RecordingHost::ShowMessage(const std::string& text, MessageButtons buttons,
                                         MessageIcon icon, const std::string& title) {
    messages.push_back(text);
    const bool question = buttons != MessageButtons::Ok;
    calls.push_back(std::string(question ? "question " : "message ") + IconName(icon) +
                    (title == kProgramTitle ? "" : " [" + title + "]") + ": " + text);
    if (!question)
        return MessageAnswer::Ok;
    if (answers.empty())
        return MessageAnswer::No;
    const MessageAnswer answer = answers.front();
    answers.pop_front();
    return answer;
}

void RecordingHost::SetFamilyList(const std::vector<std::string>& rows) {
    familyList = rows;
    std::string joined;
    for (const std::string& row : rows)
        joined += (joined.empty() ? "" : "|") + row;
    calls.push_back("family list: " + joined);
    if (windowSide != nullptr)
        windowSide->SetFamilyList(rows);
}

void RecordingHost::SetFamilyListRow(int row) {
    calls.push_back("family row: " + std::to_string(row));
    if (windowSide != nullptr)
        windowSide->SetFamilyListRow(row);
}

void RecordingHost::SetShowThisMoxOnly(bool on) {
    calls.push_back(std::string("this mox only: ") + OnOff(on));
    if (windowSide != nullptr)
        windowSide->SetShowThisMoxOnly(on);
}

void RecordingHost::SetWindowTitle(const std::string& text) {
    title = text;
    calls.push_back("title: " + text);
    if (windowSide != nullptr)
        windowSide->SetWindowTitle(text);
}

// Not recorded: every change makes one, and what it shows is the journal's own state.
void RecordingHost::JournalChanged() {
    if (windowSide != nullptr)
        windowSide->JournalChanged();
}

void RecordingHost::ShowFirstEditTab() {
    calls.emplace_back("first tab");
    if (windowSide != nullptr)
        windowSide->ShowFirstEditTab();
}

void RecordingHost::SetModifyAxis(int32_t axis) {
    calls.push_back("modify axis: " + std::to_string(axis));
    if (windowSide != nullptr)
        windowSide->SetModifyAxis(axis);
}

void RecordingHost::SetSpinValue(const std::string& name, int value) {
    spins[name] = value;
    calls.push_back("spin " + name + ": " + std::to_string(value));
    if (windowSide != nullptr)
        windowSide->SetSpinValue(name, value);
}

int RecordingHost::SpinValue(const std::string& name) {
    if (windowSide != nullptr)
        spins[name] = windowSide->SpinValue(name);
    const auto found = spins.find(name);
    return found != spins.end() ? found->second : 0;
}

void RecordingHost::SetSpinMaximum(const std::string& name, int maximum) {
    spinMaxima[name] = maximum;
    calls.push_back("spin maximum " + name + ": " + std::to_string(maximum));
    if (windowSide != nullptr)
        windowSide->SetSpinMaximum(name, maximum);
}

void RecordingHost::ShowPickedPiggyback(int16_t number) {
    calls.push_back("picked piggyback: " + std::to_string(number));
    if (windowSide != nullptr)
        windowSide->ShowPickedPiggyback(number);
}

void RecordingHost::ShowPerspectiveView() {
    calls.emplace_back("perspective view");
    if (windowSide != nullptr)
        windowSide->ShowPerspectiveView();
}

void RecordingHost::SetToolbarImage(const std::string& button, const std::string& image) {
    calls.push_back("toolbar " + button + ": " + image);
    if (windowSide != nullptr)
        windowSide->SetToolbarImage(button, image);
}

void RecordingHost::UpdateRecentMenus() {
    calls.emplace_back("recent menus");
    if (windowSide != nullptr)
        windowSide->UpdateRecentMenus();
}

std::string RecordingHost::HelpCaption() {
    calls.emplace_back("get help caption");
    if (windowSide != nullptr)
        helpCaption = windowSide->HelpCaption();
    return helpCaption;
}

void RecordingHost::SetHelpCaption(const std::string& caption) {
    helpCaption = caption;
    calls.push_back("help caption: " + caption);
    if (windowSide != nullptr)
        windowSide->SetHelpCaption(caption);
}

bool RecordingHost::HelpBold() {
    calls.emplace_back("get help bold");
    if (windowSide != nullptr)
        helpBold = windowSide->HelpBold();
    return helpBold;
}

void RecordingHost::SetHelpBold(bool bold) {
    helpBold = bold;
    calls.push_back(std::string("help bold: ") + OnOff(bold));
    if (windowSide != nullptr)
        windowSide->SetHelpBold(bold);
}

// A fill is the window's own work and is not a call the tests compare; it only goes on to the
// window's side, where panels show what the record holds.
void RecordingHost::FillPanel(int32_t tab) {
    if (windowSide != nullptr)
        windowSide->FillPanel(tab);
}

void RecordingHost::LetEventsRun() {
    calls.emplace_back(kEventsCall);
    if (windowSide != nullptr)
        windowSide->LetEventsRun();
}

std::vector<std::string> RecordingHost::CallsWithoutEvents(std::size_t mark) const {
    std::vector<std::string> result;
    for (std::size_t i = mark; i < calls.size(); ++i) {
        if (calls[i] != kEventsCall)
            result.push_back(calls[i]);
    }
    return result;
}
