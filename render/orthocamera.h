// SetOrtho: the projection and turn of the six orthographic views.
#pragma once

// Sets up the orthographic view of the current ViewMode with half-height `zoom` and pan `x`, `y`,
// and stores the three values in the open model's camera fields.
void SetOrtho(float& zoom, float& x, float& y);
