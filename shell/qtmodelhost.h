// The window's side of ModelHost: messages and questions as modal message boxes.
#pragma once

#include "modelhost.h"

class QtModelHost final : public ModelHost {
public:
    MessageAnswer ShowMessage(const std::string& text, MessageButtons buttons, MessageIcon icon,
                              const std::string& title) override;
};
