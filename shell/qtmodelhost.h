// The window's side of ModelHost: messages and questions as modal message boxes, and the window
// changes that loads and saves make (family list, spins, title, help label, tabs, view, toolbar
// images). Each control is looked up by its name at the time of the call, so that a panel that
// brings its own control of that name is served the same way.
#pragma once

#include "modelhost.h"

class frm_main;

class QtModelHost final : public ModelHost {
public:
    // The window that the window changes go to; until one is attached they change nothing.
    void AttachWindow(frm_main* window) { window_ = window; }

    MessageAnswer ShowMessage(const std::string& text, MessageButtons buttons, MessageIcon icon,
                              const std::string& title) override;
    void SetFamilyList(const std::vector<std::string>& rows) override;
    void SetFamilyListRow(int row) override;
    void SetShowThisMoxOnly(bool on) override;
    void SetWindowTitle(const std::string& title) override;
    void ShowFirstEditTab() override;
    void SetModifyAxis(int32_t axis) override;
    void SetSpinValue(const std::string& name, int value) override;
    int SpinValue(const std::string& name) override;
    void SetSpinMaximum(const std::string& name, int maximum) override;
    void FillPanel(int32_t tab) override;
    void ShowPickedPiggyback(int16_t number) override;
    void ShowPerspectiveView() override;
    void SetToolbarImage(const std::string& button, const std::string& image) override;
    void UpdateRecentMenus() override;
    std::string HelpCaption() override;
    void SetHelpCaption(const std::string& caption) override;
    bool HelpBold() override;
    void SetHelpBold(bool bold) override;
    void LetEventsRun() override;
    void JournalChanged() override;

private:
    template <typename Control> Control* Find(const char* name) const;

    frm_main* window_ = nullptr;
};
