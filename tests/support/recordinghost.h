// A host for the model layer that records every call and answers questions from a script.
#pragma once

#include "modelhost.h"

#include <deque>
#include <map>
#include <string>
#include <utility>
#include <vector>

class RecordingHost : public ModelHost {
public:
    RecordingHost();
    ~RecordingHost() override;
    RecordingHost(const RecordingHost&) = delete;
    RecordingHost& operator=(const RecordingHost&) = delete;

    MessageAnswer ShowMessage(const std::string& text, MessageButtons buttons, MessageIcon icon,
                              const std::string& title) override;
    void SetFamilyList(const std::vector<std::string>& rows) override;
    void SetFamilyListRow(int row) override;
    void SetShowThisMoxOnly(bool on) override;
    void SetWindowTitle(const std::string& title) override;
    void ShowFirstEditTab() override { Record("first tab", &ModelHost::ShowFirstEditTab); }
    void SetModifyAxis(int32_t axis) override;
    void SetSpinValue(const std::string& name, int value) override;
    int SpinValue(const std::string& name) override;
    void SetSpinMaximum(const std::string& name, int maximum) override;
    void ShowPickedPiggyback(int16_t number) override;
    void ShowPerspectiveView() override {
        Record("perspective view", &ModelHost::ShowPerspectiveView);
    }
    void SetToolbarImage(const std::string& button, const std::string& image) override;
    void UpdateRecentMenus() override { Record("recent menus", &ModelHost::UpdateRecentMenus); }
    std::string HelpCaption() override;
    void SetHelpCaption(const std::string& caption) override;
    bool HelpBold() override;
    void SetHelpBold(bool bold) override;
    void FillPanel(int32_t tab) override;
    void LetEventsRun() override { Record(kEvents, &ModelHost::LetEventsRun); }
    void JournalChanged() override;

    // The calls since `mark` that are not one of the pending-event runs, which a project load
    // makes after every line.
    std::vector<std::string> CallsWithoutEvents(std::size_t mark = 0) const;

    // Answers for the next questions, in order; when none is left a question is answered No.
    std::deque<MessageAnswer> answers;
    // Every message and question shown, in order.
    std::vector<std::string> messages;
    // Every call, in order, as text: "title: Skylathe - PLANEF.MOX",
    // "family list: MAIN MODEL (F)|A.MOX|...", "message information: Could not find project file".
    std::vector<std::string> calls;

    // When set, the window's side of every call but messages and questions goes on to this host
    // as well, so that GUI tests see a real window change while answering from a script.
    ModelHost* windowSide = nullptr;

    // What the window shows after the calls.
    std::vector<std::string> familyList;
    std::string title;
    std::string helpCaption;
    // The value and the top of the range of each spin set so far, by name; a spin never set
    // shows 0. With a window side, values are read from the window.
    std::map<std::string, int> spins;
    std::map<std::string, int> spinMaxima;
    bool helpBold = false;

private:
    // The call a project load makes after every line to let pending events run.
    static constexpr const char* kEvents = "events";

    // Records `call` and passes it on to the window's side, if there is one.
    template <typename... Params, typename... Args>
    void Record(std::string call, void (ModelHost::*pass)(Params...), const Args&... args) {
        calls.push_back(std::move(call));
        if (windowSide != nullptr)
            (windowSide->*pass)(args...);
    }
};
