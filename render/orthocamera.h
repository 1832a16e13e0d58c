// SetOrtho: the projection and turn of the six orthographic views.
#pragma once

#include "model.h"

// Stores `zoom`, `x`, `y` in the open model's m_zoom, m_xpos, m_ypos and, when the view has a GL
// context, sets up the orthographic view of the current ViewMode: 2 * |zoom| model units high,
// its width following the view's aspect ratio, panned by x and y, eye depths -200 to 1000, and
// the turn that shows the model from the side the ViewMode names. Asks for a frame.
void SetOrtho(float& zoom, float& x, float& y);

// Multiplies the orthographic volume of `current`'s m_zoom, m_xpos and m_ypos onto the current GL
// matrix: what SetOrtho loads as the projection, and what a pick multiplies onto its pick box.
void MultiplyOrthoVolume(const model& current);
