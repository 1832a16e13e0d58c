// The map outline of the selected polygon over the texture, drawn into the texture window.
#pragma once

class model;

// Draws the texture of the current file (store m_currmox) stretched over the texture window's
// picture and, when the selected piggyback is a textured kind, its map outline in red with the
// corners numbered from 1. Draws whether the window is shown or not; nothing without a window.
void DrawTextureMap(const model& m);
// DrawTextureMap, when a .mox family is open.
void DrawTextureLines(const model& m);
