// The window's side of ModelHost: messages and questions as modal message boxes, and the window
// changes that loads and saves make (title, help label, view and selection resets).
#pragma once

#include "modelhost.h"

class frm_main;

class QtModelHost final : public ModelHost {
public:
    // The window that the window changes go to; until one is attached they change nothing.
    void AttachWindow(frm_main* window) { window_ = window; }

    MessageAnswer ShowMessage(const std::string& text, MessageButtons buttons, MessageIcon icon,
                              const std::string& title) override;
    void SetShowThisMoxOnly(bool on) override;
    void SetWindowTitle(const std::string& title) override;
    void ShowFirstEditTab() override;
    void SetModifyAxis(int32_t axis) override;
    void ShowPerspectiveView() override;
    void UpdateRecentMenus() override;
    std::string HelpCaption() override;
    void SetHelpCaption(const std::string& caption) override;
    bool HelpBold() override;
    void SetHelpBold(bool bold) override;
    void LetEventsRun() override;

private:
    frm_main* window_ = nullptr;
};
