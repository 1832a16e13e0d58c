// What the model layer asks of the window: messages, questions, the family list, the title and
// the reset of the window after a load. The shell implements it; tests put a recorder in its place.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

enum class MessageIcon { None, Information, Question, Exclamation };
enum class MessageButtons { Ok, YesNo, YesNoCancel };
enum class MessageAnswer { Ok, Yes, No, Cancel };

class ModelHost {
public:
    virtual ~ModelHost() = default;

    // A message box titled "Skylathe" (or `title`) with the given buttons; returns the answer.
    virtual MessageAnswer ShowMessage(const std::string& text, MessageButtons buttons,
                                      MessageIcon icon, const std::string& title) = 0;

    // The window operations of a load, a save and a project load. A window that lacks one of
    // them (a program without a window) does nothing there.

    // Clears cbo_1_mox and fills it with `rows`.
    virtual void SetFamilyList([[maybe_unused]] const std::vector<std::string>& rows) {}
    // Selects row `row` of cbo_1_mox.
    virtual void SetFamilyListRow([[maybe_unused]] int row) {}
    // Ticks or clears chk_thismox ("Only Show This MOX?").
    virtual void SetShowThisMoxOnly([[maybe_unused]] bool on) {}
    virtual void SetWindowTitle([[maybe_unused]] const std::string& title) {}
    // Selects the first tab of Tab_Edit and brings fra_edit(1) to the front.
    virtual void ShowFirstEditTab() {}
    // Sets the program-wide ModifyAxis (30000 X, 30001 Y, 30002 Z).
    virtual void SetModifyAxis([[maybe_unused]] int32_t axis) {}
    // Sets the value of the spin control `name` (upd_3_pb, upd_3_elem, upd_4_node, upd_2_part,
    // upd_4_x, upd_4_y, upd_4_z),
    // which raises its change notification as a user's turn would.
    virtual void SetSpinValue([[maybe_unused]] const std::string& name,
                              [[maybe_unused]] int value) {}
    // The value the spin control `name` shows (upd_4_x, upd_4_y, upd_4_z, upd_3_elem); 0 where
    // there is no such spin.
    virtual int SpinValue([[maybe_unused]] const std::string& name) { return 0; }
    // Sets the top of the range of the spin control `name` (upd_4_node).
    virtual void SetSpinMaximum([[maybe_unused]] const std::string& name,
                                [[maybe_unused]] int maximum) {}
    // Hands a piggyback picked in the view to the Elements panel: its spins upd_3_elem and
    // upd_3_pb take the element and the list position of `number`, and the panel selects it and
    // fills once. The picker has set m_currelem already.
    virtual void ShowPickedPiggyback([[maybe_unused]] int16_t number) {}
    // Runs mnu_v_persp_Click: the perspective view with its start camera.
    virtual void ShowPerspectiveView() {}
    // Gives toolbar button `button` ("Pilot", "LG", "Wing") the image `image` of the image list.
    virtual void SetToolbarImage([[maybe_unused]] const std::string& button,
                                 [[maybe_unused]] const std::string& image) {}
    // Rebuilds the recent-file entries of the File and Project menus from the recent lists.
    virtual void UpdateRecentMenus() {}
    // Caption and boldness of lbl_help.
    virtual std::string HelpCaption() { return {}; }
    virtual void SetHelpCaption([[maybe_unused]] const std::string& caption) {}
    virtual bool HelpBold() { return false; }
    virtual void SetHelpBold([[maybe_unused]] bool bold) {}
    // Fills the panel of tab `tab` (1 to 7) from the record of the current file.
    virtual void FillPanel([[maybe_unused]] int32_t tab) {}
    // The journal of changes of the open model changed: what Undo and Redo would do, and whether
    // the files differ from what was last loaded or saved.
    virtual void JournalChanged() {}
    // Lets pending window events run, so that the window repaints during a long load. The user's
    // input stays queued: a menu must not replace the model while it is being loaded.
    virtual void LetEventsRun() {}
};

// The program's name: the title of its message boxes, and the front of the window title
// ("Skylathe - PLANEF.MOX") once a file is open.
inline constexpr const char* kProgramTitle = "Skylathe";
inline constexpr const char* kTitlePrefix = "Skylathe - ";

// The host the model layer talks to. Without one set, messages are dropped and questions are
// answered No (Ok for a plain message), which is what a program without a window needs.
ModelHost& Host();
// Sets the host; nullptr restores the silent one. The caller keeps ownership.
void SetHost(ModelHost* host);

// Shows `text` in an OK box titled "Skylathe"; while a RepeatedMessages gate stands, a repeat of
// a message already shown is counted instead (model/repeatedmessages.h).
void ShowMessage(const std::string& text, MessageIcon icon = MessageIcon::None);
