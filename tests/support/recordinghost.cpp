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
    Record("family list: " + joined, &ModelHost::SetFamilyList, rows);
}

void RecordingHost::SetFamilyListRow(int row) {
    Record("family row: " + std::to_string(row), &ModelHost::SetFamilyListRow, row);
}

void RecordingHost::SetShowThisMoxOnly(bool on) {
    Record(std::string("this mox only: ") + OnOff(on), &ModelHost::SetShowThisMoxOnly, on);
}

void RecordingHost::SetWindowTitle(const std::string& text) {
    title = text;
    Record("title: " + text, &ModelHost::SetWindowTitle, text);
}

// Not recorded: every change makes one, and what it shows is the journal's own state.
void RecordingHost::JournalChanged() {
    if (windowSide != nullptr)
        windowSide->JournalChanged();
}

void RecordingHost::SetModifyAxis(int32_t axis) {
    Record("modify axis: " + std::to_string(axis), &ModelHost::SetModifyAxis, axis);
}

void RecordingHost::SetSpinValue(const std::string& name, int value) {
    spins[name] = value;
    Record("spin " + name + ": " + std::to_string(value), &ModelHost::SetSpinValue, name, value);
}

int RecordingHost::SpinValue(const std::string& name) {
    if (windowSide != nullptr)
        spins[name] = windowSide->SpinValue(name);
    const auto found = spins.find(name);
    return found != spins.end() ? found->second : 0;
}

void RecordingHost::SetSpinMaximum(const std::string& name, int maximum) {
    spinMaxima[name] = maximum;
    Record("spin maximum " + name + ": " + std::to_string(maximum), &ModelHost::SetSpinMaximum,
           name, maximum);
}

void RecordingHost::ShowPickedPiggyback(int16_t number) {
    Record("picked piggyback: " + std::to_string(number), &ModelHost::ShowPickedPiggyback, number);
}

void RecordingHost::SetToolbarImage(const std::string& button, const std::string& image) {
    Record("toolbar " + button + ": " + image, &ModelHost::SetToolbarImage, button, image);
}

std::string RecordingHost::HelpCaption() {
    calls.emplace_back("get help caption");
    if (windowSide != nullptr)
        helpCaption = windowSide->HelpCaption();
    return helpCaption;
}

void RecordingHost::SetHelpCaption(const std::string& caption) {
    helpCaption = caption;
    Record("help caption: " + caption, &ModelHost::SetHelpCaption, caption);
}

bool RecordingHost::HelpBold() {
    calls.emplace_back("get help bold");
    if (windowSide != nullptr)
        helpBold = windowSide->HelpBold();
    return helpBold;
}

void RecordingHost::SetHelpBold(bool bold) {
    helpBold = bold;
    Record(std::string("help bold: ") + OnOff(bold), &ModelHost::SetHelpBold, bold);
}

// A fill is the window's own work and is not a call the tests compare; it only goes on to the
// window's side, where panels show what the record holds.
void RecordingHost::FillPanel(int32_t tab) {
    if (windowSide != nullptr)
        windowSide->FillPanel(tab);
}

std::vector<std::string> RecordingHost::CallsWithoutEvents(std::size_t mark) const {
    std::vector<std::string> result;
    for (std::size_t i = mark; i < calls.size(); ++i) {
        if (calls[i] != kEvents)
            result.push_back(calls[i]);
    }
    return result;
}
