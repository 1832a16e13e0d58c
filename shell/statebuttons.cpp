#include "statebuttons.h"

#include <cstring>

const std::vector<StateButton>& StateButtons() {
    static const std::vector<StateButton> buttons{
        {"Pilot",
         &model::m_pilot,
         {{"Alive", "PilotAlive", 0}, {"Dead", "PilotDead", 1}, {"Bailed Out", "PilotBailed", 2}}},
        {"LG", &model::m_lg, {{"Down", "LGDown", 1}, {"Up", "LGUp", 0}}},
        {"Wing", &model::m_wing, {{"Undamaged", "WingOK", 0}, {"Damaged", "WingDam", 1}}},
    };
    return buttons;
}

const StateButton* FindStateButton(const char* key) {
    for (const StateButton& button : StateButtons()) {
        if (std::strcmp(button.key, key) == 0)
            return &button;
    }
    return nullptr;
}

int32_t NextState(const StateButton& button, int32_t value) {
    const std::vector<StateChoice>& choices = button.choices;
    for (std::size_t i = 0; i < choices.size(); ++i) {
        if (choices[i].value == value)
            return choices[(i + 1) % choices.size()].value;
    }
    return choices.front().value;
}

const StateChoice* ChoiceOf(const StateButton& button, int32_t value) {
    for (const StateChoice& choice : button.choices) {
        if (choice.value == value)
            return &choice;
    }
    return nullptr;
}
