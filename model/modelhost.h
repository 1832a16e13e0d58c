// What the model layer asks of the window: messages, questions, the family list, the title and
// the reset of the window after a load. The shell implements it; tests put a recorder in its place.
#pragma once

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
};

// The host the model layer talks to. Without one set, messages are dropped and questions are
// answered No (Ok for a plain message), which is what a program without a window needs.
ModelHost& Host();
// Sets the host; nullptr restores the silent one. The caller keeps ownership.
void SetHost(ModelHost* host);

// Shows `text` in an OK box titled "Skylathe".
void ShowMessage(const std::string& text, MessageIcon icon = MessageIcon::None);
