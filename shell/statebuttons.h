// The three state buttons of the toolbar, Pilot, LG and Wing: the display state of the aircraft
// that each shows, its choices with their images, and how a click steps it.
#pragma once

#include "model.h"

#include <cstdint>
#include <vector>

struct StateChoice {
    const char* caption; // the entry of the button's drop-down menu
    const char* image;   // the key of its image in ImgLst_Toolbar
    int32_t value;
};

struct StateButton {
    const char* key;
    int32_t model::*field;
    // In the order of the drop-down menu; a click steps to the next choice, and from a value that
    // is none of them to the first.
    std::vector<StateChoice> choices;
};

const std::vector<StateButton>& StateButtons();
// The button of `key`, or nullptr.
const StateButton* FindStateButton(const char* key);
// The value a click steps `value` to.
int32_t NextState(const StateButton& button, int32_t value);
// The choice of `value`, or nullptr.
const StateChoice* ChoiceOf(const StateButton& button, int32_t value);
