// Messages met while a frame is painted. No modal box may open inside a paint or a picking pass,
// so the painter notes its messages here and they are shown once the frame is done. A message
// that the next frames meet again is not shown again until what the frame is drawn from changes:
// an expose or a resize paints the same picture and repeats nothing, and the user can always reach
// the control that removes the cause.
#pragma once

#include "framesource.h"

#include <string>

// Notes `text` for the frame being painted; a text noted twice in one frame counts once.
void NoteFrameMessage(const std::string& text);

// Ends the frame painted from `source`: its messages are shown in plain boxes through the host as
// soon as the window's events run, unless the frame before it met messages too and was drawn from
// the same inputs. A picking pass shows nothing: the frames on screen meet the same messages.
void PostFrameMessages(const FrameSource& source);
